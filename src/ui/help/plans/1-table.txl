<?xml version="1.0" encoding="UTF-8"?>
<layout name="Table" version="1" units="0">
  <pieces>
  </pieces>
  <levels active="1">
    <level id="1" name="Level 1" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
  </levels>
  <baseboard>
    <vertex x="0.0000" y="0.0000"/>
    <vertex x="1150.0000" y="0.0000"/>
    <vertex x="1150.0000" y="400.0000"/>
    <vertex x="2400.0000" y="400.0000"/>
    <vertex x="2400.0000" y="1800.0000"/>
    <vertex x="0.0000" y="1800.0000"/>
  </baseboard>
  <lastshape id="0" w_mm="0.0000" h_mm="0.0000" w2_mm="0.0000" h2_mm="0.0000"/>
</layout>

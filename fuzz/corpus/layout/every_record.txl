<?xml version="1.0" encoding="UTF-8"?>
<layout name="Südbahn" version="1" units="1">
  <grade_runs>
    <run deg="2.2900" anchor="2" conn="1"/>
  </grade_runs>
  <pieces>
    <piece id="1" cat="24188" x="100.0000" y="250.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="1" target="2" tconn="0"/>
    </piece>
    <piece id="2" cat="24130" x="288.3000" y="250.0000" heading="0.0000" z="0.0000" grade="2.2900" rev="1" free="1" level="2" helix="11" sel="1" color="16744448">
      <joint conn="0" target="1" tconn="1"/>
    </piece>
    <piece id="3" cat="24977" x="-20.5000" y="12.2500" heading="270.0000" z="60.0000" grade="0.0000" level="1" sel="0">
    </piece>
  </pieces>
  <scenery>
    <sceneryitem id="4" item="house_small" x="500.0000" y="120.0000" heading="90.0000" scalex="1.0000" scaley="1.5000" level="1" sel="0"/>
  </scenery>
  <levels active="1">
    <level id="1" name="Level 1" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
    <level id="2" name="Bridge" visible="0" height="120.0000" trackcolor="1" r="255" g="128" b="0">
      <pt x="0.0000" y="0.0000"/>
      <pt x="800.0000" y="0.0000"/>
      <pt x="800.0000" y="400.0000"/>
    </level>
  </levels>
  <baseboard>
    <vertex x="0.0000" y="0.0000"/>
    <vertex x="2400.0000" y="0.0000"/>
    <vertex x="2400.0000" y="1200.0000"/>
    <vertex x="0.0000" y="1200.0000"/>
  </baseboard>
  <lastshape id="0" w_mm="2400.0000" h_mm="1200.0000" w2_mm="0.0000" h2_mm="0.0000"/>
  <labels>
    <label id="5" x="40.0000" y="30.0000" text="Platform 1"/>
  </labels>
  <shapes>
    <shape id="6" r="60" g="120" b="60" a="200" outline="0" level="1" height="15.0000" label="Meadow">
      <v x="0.0000" y="900.0000"/>
      <v x="300.0000" y="900.0000"/>
      <v x="150.0000" y="1100.0000"/>
    </shape>
  </shapes>
  <tunnels>
    <tunnel id="7" portalA="8" portalB="9" anchorA="1" anchorB="2">
      <covers piece="1"/>
      <covers piece="2"/>
    </tunnel>
  </tunnels>
  <helices>
    <helix id="11" cx="1500.0000" cy="600.0000" heading="0.0000" variant="proses_2_5_r1r2" bottomR1="2" bottomR2="-1" topR1="3" topR2="-1"/>
  </helices>
</layout>

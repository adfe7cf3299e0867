<?xml version="1.0" encoding="UTF-8"?>
<layout name="" version="1" units="0">
  <pieces>
  </pieces>
  <lastshape id="0" w_mm="0.0000" h_mm="0.0000" w2_mm="0.0000" h2_mm="0.0000"/>
</layout>

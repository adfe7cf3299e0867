<?xml version="1.0" encoding="UTF-8"?>
<layout name="Z-Track Tabletop" version="1" units="0">
  <pieces>
    <piece id="3" cat="8563" x="0.0000" y="25.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="24" tconn="1"/>
      <joint conn="1" target="4" tconn="0"/>
      <joint conn="2" target="25" tconn="1"/>
    </piece>
    <piece id="4" cat="8500" x="110.0000" y="25.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="3" tconn="1"/>
      <joint conn="1" target="5" tconn="0"/>
    </piece>
    <piece id="5" cat="8500" x="220.0000" y="25.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="4" tconn="1"/>
      <joint conn="1" target="6" tconn="0"/>
    </piece>
    <piece id="6" cat="8500" x="330.0000" y="25.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="5" tconn="1"/>
      <joint conn="1" target="7" tconn="0"/>
    </piece>
    <piece id="7" cat="8500" x="440.0000" y="25.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="6" tconn="1"/>
      <joint conn="1" target="8" tconn="0"/>
    </piece>
    <piece id="8" cat="8500" x="550.0000" y="25.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="7" tconn="1"/>
      <joint conn="1" target="9" tconn="1"/>
    </piece>
    <piece id="9" cat="8562" x="770.0000" y="25.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="0"/>
      <joint conn="1" target="8" tconn="1"/>
      <joint conn="2" target="29" tconn="0"/>
    </piece>
    <piece id="10" cat="8520" x="770.0000" y="25.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="9" tconn="0"/>
      <joint conn="1" target="11" tconn="0"/>
    </piece>
    <piece id="11" cat="8520" x="907.8858" y="82.1142" heading="45.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="1"/>
      <joint conn="1" target="12" tconn="0"/>
    </piece>
    <piece id="12" cat="8520" x="965.0000" y="220.0000" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="11" tconn="1"/>
      <joint conn="1" target="13" tconn="0"/>
    </piece>
    <piece id="13" cat="8520" x="907.8858" y="357.8858" heading="135.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="12" tconn="1"/>
      <joint conn="1" target="14" tconn="0"/>
    </piece>
    <piece id="14" cat="8500" x="770.0000" y="415.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="13" tconn="1"/>
      <joint conn="1" target="15" tconn="0"/>
    </piece>
    <piece id="15" cat="8500" x="660.0000" y="415.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="14" tconn="1"/>
      <joint conn="1" target="16" tconn="0"/>
    </piece>
    <piece id="16" cat="8500" x="550.0000" y="415.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="15" tconn="1"/>
      <joint conn="1" target="17" tconn="0"/>
    </piece>
    <piece id="17" cat="8500" x="440.0000" y="415.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="16" tconn="1"/>
      <joint conn="1" target="18" tconn="0"/>
    </piece>
    <piece id="18" cat="8500" x="330.0000" y="415.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="17" tconn="1"/>
      <joint conn="1" target="19" tconn="0"/>
    </piece>
    <piece id="19" cat="8500" x="220.0000" y="415.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="18" tconn="1"/>
      <joint conn="1" target="20" tconn="0"/>
    </piece>
    <piece id="20" cat="8500" x="110.0000" y="415.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="19" tconn="1"/>
      <joint conn="1" target="21" tconn="0"/>
    </piece>
    <piece id="21" cat="8520" x="0.0000" y="415.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="20" tconn="1"/>
      <joint conn="1" target="22" tconn="0"/>
    </piece>
    <piece id="22" cat="8520" x="-137.8858" y="357.8858" heading="225.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="21" tconn="1"/>
      <joint conn="1" target="23" tconn="0"/>
    </piece>
    <piece id="23" cat="8520" x="-195.0000" y="220.0000" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="22" tconn="1"/>
      <joint conn="1" target="24" tconn="0"/>
    </piece>
    <piece id="24" cat="8520" x="-137.8858" y="82.1142" heading="315.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="23" tconn="1"/>
      <joint conn="1" target="3" tconn="0"/>
    </piece>
    <piece id="25" cat="8591" x="220.2319" y="50.0130" heading="179.9729" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="26" tconn="0"/>
      <joint conn="1" target="3" tconn="2"/>
    </piece>
    <piece id="26" cat="8500" x="220.2319" y="50.0130" heading="359.9729" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="25" tconn="0"/>
      <joint conn="1" target="27" tconn="0"/>
    </piece>
    <piece id="27" cat="8500" x="330.2319" y="49.9610" heading="359.9729" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="26" tconn="1"/>
      <joint conn="1" target="28" tconn="0"/>
    </piece>
    <piece id="28" cat="8500" x="440.2319" y="49.9089" heading="359.9729" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="27" tconn="1"/>
      <joint conn="1" target="29" tconn="1"/>
    </piece>
    <piece id="29" cat="8591" x="660.4520" y="37.2460" heading="166.9729" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="9" tconn="2"/>
      <joint conn="1" target="28" tconn="1"/>
    </piece>
    <piece id="30" cat="8500" x="0.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="51" tconn="1"/>
      <joint conn="1" target="31" tconn="0"/>
    </piece>
    <piece id="31" cat="8500" x="110.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="30" tconn="1"/>
      <joint conn="1" target="32" tconn="0"/>
    </piece>
    <piece id="32" cat="8500" x="220.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="31" tconn="1"/>
      <joint conn="1" target="33" tconn="0"/>
    </piece>
    <piece id="33" cat="8500" x="330.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="32" tconn="1"/>
      <joint conn="1" target="34" tconn="0"/>
    </piece>
    <piece id="34" cat="8500" x="440.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="33" tconn="1"/>
      <joint conn="1" target="35" tconn="0"/>
    </piece>
    <piece id="35" cat="8500" x="550.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="34" tconn="1"/>
      <joint conn="1" target="36" tconn="0"/>
    </piece>
    <piece id="36" cat="8500" x="660.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="35" tconn="1"/>
      <joint conn="1" target="37" tconn="0"/>
    </piece>
    <piece id="37" cat="8530" x="770.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="36" tconn="1"/>
      <joint conn="1" target="38" tconn="0"/>
    </piece>
    <piece id="38" cat="8530" x="925.5635" y="64.4365" heading="45.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="37" tconn="1"/>
      <joint conn="1" target="39" tconn="0"/>
    </piece>
    <piece id="39" cat="8530" x="990.0000" y="220.0000" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="38" tconn="1"/>
      <joint conn="1" target="40" tconn="0"/>
    </piece>
    <piece id="40" cat="8530" x="925.5635" y="375.5635" heading="135.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="39" tconn="1"/>
      <joint conn="1" target="41" tconn="0"/>
    </piece>
    <piece id="41" cat="8500" x="770.0000" y="440.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="40" tconn="1"/>
      <joint conn="1" target="42" tconn="0"/>
    </piece>
    <piece id="42" cat="8500" x="660.0000" y="440.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="41" tconn="1"/>
      <joint conn="1" target="43" tconn="0"/>
    </piece>
    <piece id="43" cat="8500" x="550.0000" y="440.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="42" tconn="1"/>
      <joint conn="1" target="44" tconn="0"/>
    </piece>
    <piece id="44" cat="8500" x="440.0000" y="440.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="43" tconn="1"/>
      <joint conn="1" target="45" tconn="0"/>
    </piece>
    <piece id="45" cat="8500" x="330.0000" y="440.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="44" tconn="1"/>
      <joint conn="1" target="46" tconn="0"/>
    </piece>
    <piece id="46" cat="8500" x="220.0000" y="440.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="45" tconn="1"/>
      <joint conn="1" target="47" tconn="0"/>
    </piece>
    <piece id="47" cat="8500" x="110.0000" y="440.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="46" tconn="1"/>
      <joint conn="1" target="48" tconn="0"/>
    </piece>
    <piece id="48" cat="8530" x="-0.0000" y="440.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="47" tconn="1"/>
      <joint conn="1" target="49" tconn="0"/>
    </piece>
    <piece id="49" cat="8530" x="-155.5635" y="375.5635" heading="225.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="48" tconn="1"/>
      <joint conn="1" target="50" tconn="0"/>
    </piece>
    <piece id="50" cat="8530" x="-220.0000" y="220.0000" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="49" tconn="1"/>
      <joint conn="1" target="51" tconn="0"/>
    </piece>
    <piece id="51" cat="8530" x="-155.5635" y="64.4365" heading="315.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="50" tconn="1"/>
      <joint conn="1" target="30" tconn="0"/>
    </piece>
  </pieces>
  <scenery>
    <sceneryitem id="52" item="8970" x="385.0000" y="-40.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="53" item="plat.side" x="275.0000" y="75.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="54" item="plat.side" x="385.0000" y="75.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="55" item="plat.side" x="495.0000" y="75.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="56" item="goods.shed" x="640.0000" y="90.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="57" item="church.village" x="150.0000" y="200.0000" heading="15.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="58" item="house.detached" x="240.0000" y="180.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="59" item="house.timber" x="300.0000" y="230.0000" heading="340.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="60" item="inn" x="370.0000" y="170.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="61" item="house.two" x="220.0000" y="280.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="62" item="mill" x="430.0000" y="200.0000" heading="30.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="63" item="road.minor" x="110.0000" y="345.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="64" item="road.minor" x="210.0000" y="345.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="65" item="road.minor" x="310.0000" y="345.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="66" item="road.minor" x="410.0000" y="345.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="67" item="road.minor" x="510.0000" y="345.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="68" item="road.minor" x="610.0000" y="345.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="69" item="tree.broad.m" x="100.0000" y="160.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="70" item="tree.fir.l" x="330.0000" y="290.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="71" item="tree.broad.s" x="420.0000" y="300.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="72" item="tree.broad.l" x="620.0000" y="290.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="73" item="tree.fir.m" x="-60.0000" y="180.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="74" item="tree.broad.m" x="-90.0000" y="260.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="75" item="tree.fir.l" x="740.0000" y="200.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="76" item="tree.broad.s" x="780.0000" y="300.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="77" item="tree.broad.l" x="850.0000" y="160.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="78" item="tree.fir.m" x="880.0000" y="250.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="79" item="tree.broad.m" x="-235.0000" y="-55.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="80" item="tree.fir.l" x="-230.0000" y="450.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="81" item="tree.broad.s" x="1000.0000" y="-50.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="82" item="tree.broad.l" x="1005.0000" y="445.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="83" item="tree.fir.m" x="30.0000" y="380.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="84" item="tree.broad.m" x="760.0000" y="370.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
  </scenery>
  <levels active="1">
    <level id="1" name="Level 1" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
  </levels>
  <baseboard>
    <vertex x="-270.0000" y="-90.0000"/>
    <vertex x="1040.0000" y="-90.0000"/>
    <vertex x="1040.0000" y="480.0000"/>
    <vertex x="-270.0000" y="480.0000"/>
  </baseboard>
  <lastshape id="0" w_mm="1310.0000" h_mm="570.0000" w2_mm="0.0000" h2_mm="0.0000"/>
  <labels>
    <label id="85" x="470.0000" y="-50.0000" text="Seebach"/>
  </labels>
  <shapes>
    <shape id="1" r="168" g="200" b="132" a="140" outline="0" level="1" height="0.0000" label="">
      <v x="60.0000" y="130.0000"/>
      <v x="640.0000" y="120.0000"/>
      <v x="720.0000" y="250.0000"/>
      <v x="600.0000" y="325.0000"/>
      <v x="90.0000" y="320.0000"/>
    </shape>
    <shape id="2" r="132" g="182" b="214" a="140" outline="0" level="1" height="0.0000" label="">
      <v x="470.0000" y="190.0000"/>
      <v x="560.0000" y="180.0000"/>
      <v x="580.0000" y="250.0000"/>
      <v x="500.0000" y="290.0000"/>
      <v x="450.0000" y="250.0000"/>
    </shape>
  </shapes>
</layout>

<?xml version="1.0" encoding="UTF-8"?>
<layout name="C-Track Oval with Siding" version="1" units="0">
  <pieces>
    <piece id="3" cat="24612" x="0.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="28" tconn="1"/>
      <joint conn="1" target="4" tconn="0"/>
      <joint conn="2" target="29" tconn="1"/>
    </piece>
    <piece id="4" cat="24172" x="188.3000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="3" tconn="1"/>
      <joint conn="1" target="5" tconn="0"/>
    </piece>
    <piece id="5" cat="24188" x="360.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="4" tconn="1"/>
      <joint conn="1" target="6" tconn="0"/>
    </piece>
    <piece id="6" cat="24188" x="548.3000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="5" tconn="1"/>
      <joint conn="1" target="7" tconn="0"/>
    </piece>
    <piece id="7" cat="24188" x="736.6000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="6" tconn="1"/>
      <joint conn="1" target="8" tconn="0"/>
    </piece>
    <piece id="8" cat="24172" x="924.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="7" tconn="1"/>
      <joint conn="1" target="9" tconn="1"/>
    </piece>
    <piece id="9" cat="24611" x="1284.9000" y="-0.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="0"/>
      <joint conn="1" target="8" tconn="1"/>
      <joint conn="2" target="33" tconn="0"/>
    </piece>
    <piece id="10" cat="24230" x="1284.9000" y="-0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="9" tconn="0"/>
      <joint conn="1" target="11" tconn="0"/>
    </piece>
    <piece id="11" cat="24230" x="1503.6500" y="58.6139" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="1"/>
      <joint conn="1" target="12" tconn="0"/>
    </piece>
    <piece id="12" cat="24230" x="1663.7861" y="218.7500" heading="60.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="11" tconn="1"/>
      <joint conn="1" target="13" tconn="0"/>
    </piece>
    <piece id="13" cat="24230" x="1722.4000" y="437.5000" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="12" tconn="1"/>
      <joint conn="1" target="14" tconn="0"/>
    </piece>
    <piece id="14" cat="24230" x="1663.7861" y="656.2500" heading="120.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="13" tconn="1"/>
      <joint conn="1" target="15" tconn="0"/>
    </piece>
    <piece id="15" cat="24230" x="1503.6500" y="816.3861" heading="150.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="14" tconn="1"/>
      <joint conn="1" target="16" tconn="0"/>
    </piece>
    <piece id="16" cat="24172" x="1284.9000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="15" tconn="1"/>
      <joint conn="1" target="17" tconn="0"/>
    </piece>
    <piece id="17" cat="24188" x="1113.2000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="16" tconn="1"/>
      <joint conn="1" target="18" tconn="0"/>
    </piece>
    <piece id="18" cat="24188" x="924.9000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="17" tconn="1"/>
      <joint conn="1" target="19" tconn="0"/>
    </piece>
    <piece id="19" cat="24188" x="736.6000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="18" tconn="1"/>
      <joint conn="1" target="20" tconn="0"/>
    </piece>
    <piece id="20" cat="24188" x="548.3000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="19" tconn="1"/>
      <joint conn="1" target="21" tconn="0"/>
    </piece>
    <piece id="21" cat="24188" x="360.0000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="20" tconn="1"/>
      <joint conn="1" target="22" tconn="0"/>
    </piece>
    <piece id="22" cat="24172" x="171.7000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="21" tconn="1"/>
      <joint conn="1" target="23" tconn="0"/>
    </piece>
    <piece id="23" cat="24230" x="-0.0000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="22" tconn="1"/>
      <joint conn="1" target="24" tconn="0"/>
    </piece>
    <piece id="24" cat="24230" x="-218.7500" y="816.3861" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="23" tconn="1"/>
      <joint conn="1" target="25" tconn="0"/>
    </piece>
    <piece id="25" cat="24230" x="-378.8861" y="656.2500" heading="240.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="24" tconn="1"/>
      <joint conn="1" target="26" tconn="0"/>
    </piece>
    <piece id="26" cat="24230" x="-437.5000" y="437.5000" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="25" tconn="1"/>
      <joint conn="1" target="27" tconn="0"/>
    </piece>
    <piece id="27" cat="24230" x="-378.8861" y="218.7500" heading="300.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="26" tconn="1"/>
      <joint conn="1" target="28" tconn="0"/>
    </piece>
    <piece id="28" cat="24230" x="-218.7500" y="58.6139" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="27" tconn="1"/>
      <joint conn="1" target="3" tconn="0"/>
    </piece>
    <piece id="29" cat="24224" x="360.0775" y="77.5211" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="30" tconn="0"/>
      <joint conn="1" target="3" tconn="2"/>
    </piece>
    <piece id="30" cat="24188" x="360.0775" y="77.5211" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="29" tconn="0"/>
      <joint conn="1" target="31" tconn="0"/>
    </piece>
    <piece id="31" cat="24612" x="548.3775" y="77.5211" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="30" tconn="1"/>
      <joint conn="1" target="32" tconn="0"/>
      <joint conn="2" target="34" tconn="1"/>
    </piece>
    <piece id="32" cat="24188" x="736.6775" y="77.5211" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="31" tconn="1"/>
      <joint conn="1" target="33" tconn="1"/>
    </piece>
    <piece id="33" cat="24224" x="1105.0151" y="38.7600" heading="155.7000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="9" tconn="2"/>
      <joint conn="1" target="32" tconn="1"/>
    </piece>
    <piece id="34" cat="24224" x="908.4551" y="155.0421" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="35" tconn="0"/>
      <joint conn="1" target="31" tconn="2"/>
    </piece>
    <piece id="35" cat="24188" x="908.4551" y="155.0421" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="34" tconn="0"/>
      <joint conn="1" target="36" tconn="0"/>
    </piece>
    <piece id="36" cat="24977" x="1096.7551" y="155.0421" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="35" tconn="1"/>
    </piece>
  </pieces>
  <scenery>
    <sceneryitem id="37" item="stn.medium" x="640.0000" y="-130.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="38" item="plat.side" x="460.0000" y="-42.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="39" item="plat.side" x="640.0000" y="-42.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="40" item="plat.side" x="820.0000" y="-42.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="41" item="plat.island77" x="460.0000" y="39.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="42" item="plat.island77" x="640.0000" y="39.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="43" item="plat.island77" x="820.0000" y="39.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="44" item="goods.shed" x="1060.0000" y="262.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="45" item="box.ground" x="60.0000" y="-95.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="46" item="sig.light.home" x="-150.0000" y="-40.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="47" item="sig.light.home" x="1430.0000" y="120.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="48" item="bus.shelter" x="900.0000" y="-120.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="49" item="road.minor" x="-380.0000" y="-257.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="50" item="road.minor" x="-130.0000" y="-257.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="51" item="road.minor" x="120.0000" y="-257.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="52" item="road.minor" x="370.0000" y="-257.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="53" item="road.minor" x="620.0000" y="-257.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="54" item="road.minor" x="870.0000" y="-257.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="55" item="road.minor" x="1120.0000" y="-257.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="56" item="road.minor" x="1370.0000" y="-257.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="57" item="road.minor" x="1620.0000" y="-257.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="58" item="church.village" x="420.0000" y="560.0000" heading="20.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="59" item="inn" x="640.0000" y="480.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="60" item="house.detached" x="250.0000" y="480.0000" heading="10.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="61" item="house.timber" x="800.0000" y="470.0000" heading="350.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="62" item="house.two" x="560.0000" y="660.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="63" item="farm.barn" x="800.0000" y="640.0000" heading="15.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="64" item="mill" x="940.0000" y="470.0000" heading="30.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="65" item="tree.broad.m" x="180.0000" y="600.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="66" item="tree.fir.l" x="290.0000" y="660.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="67" item="tree.broad.s" x="720.0000" y="600.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="68" item="tree.broad.l" x="900.0000" y="690.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="69" item="tree.fir.m" x="330.0000" y="400.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="70" item="tree.broad.m" x="1180.0000" y="450.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="71" item="tree.fir.l" x="1230.0000" y="700.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="72" item="tree.broad.m" x="-480.0000" y="-120.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="73" item="tree.fir.l" x="-500.0000" y="160.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="74" item="tree.broad.s" x="-490.0000" y="420.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="75" item="tree.broad.l" x="-500.0000" y="700.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="76" item="tree.fir.m" x="-460.0000" y="980.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="77" item="tree.broad.m" x="1760.0000" y="-120.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="78" item="tree.fir.l" x="1790.0000" y="180.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="79" item="tree.broad.s" x="1770.0000" y="470.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="80" item="tree.broad.l" x="1780.0000" y="760.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="81" item="tree.fir.m" x="1750.0000" y="1000.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="82" item="tree.broad.m" x="300.0000" y="1040.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="83" item="tree.fir.l" x="700.0000" y="1050.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="84" item="tree.broad.s" x="1100.0000" y="1040.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
  </scenery>
  <levels active="1">
    <level id="1" name="Level 1" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
  </levels>
  <baseboard>
    <vertex x="-560.0000" y="-300.0000"/>
    <vertex x="1850.0000" y="-300.0000"/>
    <vertex x="1850.0000" y="1100.0000"/>
    <vertex x="-560.0000" y="1100.0000"/>
  </baseboard>
  <lastshape id="0" w_mm="2410.0000" h_mm="1400.0000" w2_mm="0.0000" h2_mm="0.0000"/>
  <labels>
    <label id="85" x="560.0000" y="-140.0000" text="Neustadt"/>
    <label id="86" x="900.0000" y="240.0000" text="Goods"/>
  </labels>
  <shapes>
    <shape id="1" r="168" g="200" b="132" a="140" outline="0" level="1" height="0.0000" label="">
      <v x="120.0000" y="360.0000"/>
      <v x="1150.0000" y="330.0000"/>
      <v x="1230.0000" y="620.0000"/>
      <v x="1010.0000" y="760.0000"/>
      <v x="170.0000" y="740.0000"/>
      <v x="60.0000" y="540.0000"/>
    </shape>
    <shape id="2" r="132" g="182" b="214" a="140" outline="0" level="1" height="0.0000" label="Mill pond">
      <v x="1010.0000" y="520.0000"/>
      <v x="1110.0000" y="500.0000"/>
      <v x="1180.0000" y="560.0000"/>
      <v x="1150.0000" y="640.0000"/>
      <v x="1050.0000" y="660.0000"/>
      <v x="980.0000" y="600.0000"/>
    </shape>
  </shapes>
</layout>

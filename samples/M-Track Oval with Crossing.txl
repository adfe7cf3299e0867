<?xml version="1.0" encoding="UTF-8"?>
<layout name="M-Track Oval with Crossing" version="1" units="0">
  <pieces>
    <piece id="2" cat="5117" x="0.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="23" tconn="1"/>
      <joint conn="1" target="3" tconn="0"/>
      <joint conn="2" target="24" tconn="0"/>
    </piece>
    <piece id="3" cat="5106" x="180.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="2" tconn="1"/>
      <joint conn="1" target="4" tconn="0"/>
    </piece>
    <piece id="4" cat="5106" x="360.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="3" tconn="1"/>
      <joint conn="1" target="5" tconn="0"/>
    </piece>
    <piece id="5" cat="5106" x="540.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="4" tconn="1"/>
      <joint conn="1" target="6" tconn="0"/>
    </piece>
    <piece id="6" cat="5106" x="720.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="5" tconn="1"/>
      <joint conn="1" target="7" tconn="0"/>
    </piece>
    <piece id="7" cat="5100" x="900.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="6" tconn="1"/>
      <joint conn="1" target="8" tconn="0"/>
    </piece>
    <piece id="8" cat="5100" x="1080.0000" y="48.2309" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="7" tconn="1"/>
      <joint conn="1" target="9" tconn="0"/>
    </piece>
    <piece id="9" cat="5100" x="1211.7691" y="180.0000" heading="60.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="8" tconn="1"/>
      <joint conn="1" target="10" tconn="0"/>
    </piece>
    <piece id="10" cat="5100" x="1260.0000" y="360.0000" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="9" tconn="1"/>
      <joint conn="1" target="11" tconn="0"/>
    </piece>
    <piece id="11" cat="5100" x="1211.7691" y="540.0000" heading="120.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="1"/>
      <joint conn="1" target="12" tconn="0"/>
    </piece>
    <piece id="12" cat="5100" x="1080.0000" y="671.7691" heading="150.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="11" tconn="1"/>
      <joint conn="1" target="13" tconn="0"/>
    </piece>
    <piece id="13" cat="5106" x="900.0000" y="720.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="12" tconn="1"/>
      <joint conn="1" target="14" tconn="0"/>
    </piece>
    <piece id="14" cat="5106" x="720.0000" y="720.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="13" tconn="1"/>
      <joint conn="1" target="15" tconn="0"/>
    </piece>
    <piece id="15" cat="5106" x="540.0000" y="720.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="14" tconn="1"/>
      <joint conn="1" target="16" tconn="0"/>
    </piece>
    <piece id="16" cat="5106" x="360.0000" y="720.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="15" tconn="1"/>
      <joint conn="1" target="17" tconn="0"/>
    </piece>
    <piece id="17" cat="5106" x="180.0000" y="720.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="16" tconn="1"/>
      <joint conn="1" target="18" tconn="0"/>
    </piece>
    <piece id="18" cat="5100" x="0.0000" y="720.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="17" tconn="1"/>
      <joint conn="1" target="19" tconn="0"/>
    </piece>
    <piece id="19" cat="5100" x="-180.0000" y="671.7691" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="18" tconn="1"/>
      <joint conn="1" target="20" tconn="0"/>
    </piece>
    <piece id="20" cat="5100" x="-311.7691" y="540.0000" heading="240.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="19" tconn="1"/>
      <joint conn="1" target="21" tconn="0"/>
    </piece>
    <piece id="21" cat="5100" x="-360.0000" y="360.0000" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="20" tconn="1"/>
      <joint conn="1" target="22" tconn="0"/>
    </piece>
    <piece id="22" cat="5100" x="-311.7691" y="180.0000" heading="300.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="21" tconn="1"/>
      <joint conn="1" target="23" tconn="0"/>
    </piece>
    <piece id="23" cat="5100" x="-180.0000" y="48.2309" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="22" tconn="1"/>
      <joint conn="1" target="2" tconn="0"/>
    </piece>
    <piece id="24" cat="5114" x="180.0000" y="-48.2309" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="2" tconn="2"/>
      <joint conn="1" target="25" tconn="0"/>
      <joint conn="2" target="55" tconn="1"/>
      <joint conn="3" target="30" tconn="0"/>
    </piece>
    <piece id="25" cat="5100" x="347.1429" y="-144.7309" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="24" tconn="1"/>
      <joint conn="1" target="26" tconn="0"/>
    </piece>
    <piece id="26" cat="5106" x="527.1429" y="-192.9617" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="25" tconn="1"/>
      <joint conn="1" target="27" tconn="0"/>
    </piece>
    <piece id="27" cat="5106" x="707.1429" y="-192.9617" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="26" tconn="1"/>
      <joint conn="1" target="28" tconn="0"/>
    </piece>
    <piece id="28" cat="5112" x="887.1429" y="-192.9617" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="27" tconn="1"/>
      <joint conn="1" target="29" tconn="0"/>
    </piece>
    <piece id="29" cat="5190" x="977.1429" y="-192.9617" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="28" tconn="1"/>
    </piece>
    <piece id="30" cat="5106" x="360.0715" y="-96.4809" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="24" tconn="3"/>
      <joint conn="1" target="31" tconn="0"/>
    </piece>
    <piece id="31" cat="5106" x="540.0715" y="-96.4809" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="30" tconn="1"/>
      <joint conn="1" target="32" tconn="0"/>
    </piece>
    <piece id="32" cat="5106" x="720.0715" y="-96.4809" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="31" tconn="1"/>
      <joint conn="1" target="33" tconn="0"/>
    </piece>
    <piece id="33" cat="5200" x="900.0715" y="-96.4809" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="32" tconn="1"/>
      <joint conn="1" target="34" tconn="0"/>
    </piece>
    <piece id="34" cat="5200" x="1118.7715" y="-37.8804" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="33" tconn="1"/>
      <joint conn="1" target="35" tconn="0"/>
    </piece>
    <piece id="35" cat="5200" x="1278.8710" y="122.2191" heading="60.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="34" tconn="1"/>
      <joint conn="1" target="36" tconn="0"/>
    </piece>
    <piece id="36" cat="5110" x="1337.4715" y="340.9191" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="35" tconn="1"/>
      <joint conn="1" target="37" tconn="0"/>
    </piece>
    <piece id="37" cat="5200" x="1337.4715" y="363.4191" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="36" tconn="1"/>
      <joint conn="1" target="38" tconn="0"/>
    </piece>
    <piece id="38" cat="5200" x="1278.8710" y="582.1191" heading="120.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="37" tconn="1"/>
      <joint conn="1" target="39" tconn="0"/>
    </piece>
    <piece id="39" cat="5200" x="1118.7715" y="742.2187" heading="150.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="38" tconn="1"/>
      <joint conn="1" target="40" tconn="0"/>
    </piece>
    <piece id="40" cat="5106" x="900.0715" y="800.8191" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="39" tconn="1"/>
      <joint conn="1" target="41" tconn="0"/>
    </piece>
    <piece id="41" cat="5106" x="720.0715" y="800.8191" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="40" tconn="1"/>
      <joint conn="1" target="42" tconn="0"/>
    </piece>
    <piece id="42" cat="5106" x="540.0715" y="800.8191" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="41" tconn="1"/>
      <joint conn="1" target="43" tconn="0"/>
    </piece>
    <piece id="43" cat="5106" x="360.0715" y="800.8191" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="42" tconn="1"/>
      <joint conn="1" target="44" tconn="0"/>
    </piece>
    <piece id="44" cat="5106" x="180.0715" y="800.8191" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="43" tconn="1"/>
      <joint conn="1" target="45" tconn="0"/>
    </piece>
    <piece id="45" cat="5200" x="0.0715" y="800.8191" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="44" tconn="1"/>
      <joint conn="1" target="46" tconn="0"/>
    </piece>
    <piece id="46" cat="5200" x="-218.6285" y="742.2187" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="45" tconn="1"/>
      <joint conn="1" target="47" tconn="0"/>
    </piece>
    <piece id="47" cat="5200" x="-378.7281" y="582.1191" heading="240.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="46" tconn="1"/>
      <joint conn="1" target="48" tconn="0"/>
    </piece>
    <piece id="48" cat="5110" x="-437.3285" y="363.4191" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="47" tconn="1"/>
      <joint conn="1" target="49" tconn="0"/>
    </piece>
    <piece id="49" cat="5200" x="-437.3285" y="340.9191" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="48" tconn="1"/>
      <joint conn="1" target="50" tconn="0"/>
    </piece>
    <piece id="50" cat="5200" x="-378.7281" y="122.2191" heading="300.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="49" tconn="1"/>
      <joint conn="1" target="51" tconn="0"/>
    </piece>
    <piece id="51" cat="5200" x="-218.6285" y="-37.8804" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="50" tconn="1"/>
      <joint conn="1" target="52" tconn="0"/>
    </piece>
    <piece id="52" cat="5107" x="0.0715" y="-96.4809" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="51" tconn="1"/>
      <joint conn="1" target="53" tconn="0"/>
    </piece>
    <piece id="53" cat="5108" x="90.0715" y="-96.4809" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="52" tconn="1"/>
      <joint conn="1" target="54" tconn="0"/>
    </piece>
    <piece id="54" cat="5210" x="135.0715" y="-96.4809" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="53" tconn="1"/>
      <joint conn="1" target="55" tconn="0"/>
    </piece>
    <piece id="55" cat="5210" x="151.0715" y="-96.4809" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="54" tconn="1"/>
      <joint conn="1" target="24" tconn="2"/>
    </piece>
  </pieces>
  <scenery>
    <sceneryitem id="56" item="stn.small" x="450.0000" y="118.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="57" item="plat.side" x="270.0000" y="41.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="58" item="plat.side" x="450.0000" y="41.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="59" item="plat.side" x="630.0000" y="41.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="60" item="goods.shed" x="760.0000" y="-280.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="61" item="goods.ramp" x="560.0000" y="-265.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="62" item="7039" x="-150.0000" y="-150.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="63" item="box.ground" x="130.0000" y="-190.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="64" item="road.minor" x="-400.0000" y="-400.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="65" item="road.minor" x="-150.0000" y="-400.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="66" item="road.minor" x="100.0000" y="-400.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="67" item="road.minor" x="350.0000" y="-400.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="68" item="road.minor" x="600.0000" y="-400.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="69" item="road.minor" x="850.0000" y="-400.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="70" item="road.minor" x="1100.0000" y="-400.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="71" item="house.detached" x="180.0000" y="300.0000" heading="12.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="72" item="house.timber" x="330.0000" y="280.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="73" item="church.chapel" x="470.0000" y="330.0000" heading="20.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="74" item="inn" x="640.0000" y="290.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="75" item="house.two" x="300.0000" y="450.0000" heading="350.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="76" item="farm.house" x="620.0000" y="470.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="77" item="tree.broad.m" x="100.0000" y="420.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="78" item="tree.fir.l" x="200.0000" y="520.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="79" item="tree.broad.s" x="450.0000" y="480.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="80" item="tree.broad.l" x="780.0000" y="400.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="81" item="tree.fir.m" x="760.0000" y="220.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="82" item="tree.broad.m" x="100.0000" y="200.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="83" item="tree.fir.l" x="-520.0000" y="-260.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="84" item="tree.broad.s" x="-530.0000" y="0.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="85" item="tree.broad.l" x="-535.0000" y="330.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="86" item="tree.fir.m" x="-520.0000" y="700.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="87" item="tree.broad.m" x="1400.0000" y="-280.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="88" item="tree.fir.l" x="1420.0000" y="100.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="89" item="tree.broad.s" x="1430.0000" y="420.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="90" item="tree.broad.l" x="1400.0000" y="760.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="91" item="tree.fir.m" x="200.0000" y="890.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="92" item="tree.broad.m" x="560.0000" y="900.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="93" item="tree.fir.l" x="900.0000" y="890.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
  </scenery>
  <levels active="1">
    <level id="1" name="Level 1" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
  </levels>
  <baseboard>
    <vertex x="-600.0000" y="-460.0000"/>
    <vertex x="1500.0000" y="-460.0000"/>
    <vertex x="1500.0000" y="970.0000"/>
    <vertex x="-600.0000" y="970.0000"/>
  </baseboard>
  <lastshape id="0" w_mm="2100.0000" h_mm="1430.0000" w2_mm="0.0000" h2_mm="0.0000"/>
  <labels>
    <label id="94" x="390.0000" y="205.0000" text="Birkenau"/>
    <label id="95" x="700.0000" y="-350.0000" text="Sawmill siding"/>
  </labels>
  <shapes>
    <shape id="1" r="168" g="200" b="132" a="140" outline="0" level="1" height="0.0000" label="">
      <v x="60.0000" y="150.0000"/>
      <v x="820.0000" y="140.0000"/>
      <v x="900.0000" y="360.0000"/>
      <v x="760.0000" y="560.0000"/>
      <v x="120.0000" y="570.0000"/>
      <v x="0.0000" y="360.0000"/>
    </shape>
  </shapes>
</layout>

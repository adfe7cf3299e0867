<?xml version="1.0" encoding="UTF-8"?>
<layout name="Gauge 1 Garden Loop" version="1" units="0">
  <pieces>
    <piece id="3" cat="59083" x="0.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="31" tconn="1"/>
      <joint conn="1" target="4" tconn="0"/>
      <joint conn="2" target="32" tconn="0"/>
    </piece>
    <piece id="4" cat="59061" x="600.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="3" tconn="1"/>
      <joint conn="1" target="5" tconn="0"/>
    </piece>
    <piece id="5" cat="59053" x="1500.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="4" tconn="1"/>
      <joint conn="1" target="6" tconn="0"/>
    </piece>
    <piece id="6" cat="59051" x="1600.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="5" tconn="1"/>
      <joint conn="1" target="7" tconn="0"/>
    </piece>
    <piece id="7" cat="59051" x="1659.5000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="6" tconn="1"/>
      <joint conn="1" target="8" tconn="0"/>
    </piece>
    <piece id="8" cat="59059" x="1719.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="7" tconn="1"/>
      <joint conn="1" target="9" tconn="1"/>
    </piece>
    <piece id="9" cat="59084" x="2919.0000" y="-0.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="0"/>
      <joint conn="1" target="8" tconn="1"/>
      <joint conn="2" target="37" tconn="1"/>
    </piece>
    <piece id="10" cat="59035" x="2919.0000" y="-0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="9" tconn="0"/>
      <joint conn="1" target="11" tconn="0"/>
    </piece>
    <piece id="11" cat="59035" x="3309.3371" y="77.6429" heading="22.5000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="1"/>
      <joint conn="1" target="12" tconn="0"/>
    </piece>
    <piece id="12" cat="59035" x="3640.2489" y="298.7511" heading="45.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="11" tconn="1"/>
      <joint conn="1" target="13" tconn="0"/>
    </piece>
    <piece id="13" cat="59035" x="3861.3571" y="629.6629" heading="67.5000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="12" tconn="1"/>
      <joint conn="1" target="14" tconn="0"/>
    </piece>
    <piece id="14" cat="59035" x="3939.0000" y="1020.0000" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="13" tconn="1"/>
      <joint conn="1" target="15" tconn="0"/>
    </piece>
    <piece id="15" cat="59035" x="3861.3571" y="1410.3371" heading="112.5000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="14" tconn="1"/>
      <joint conn="1" target="16" tconn="0"/>
    </piece>
    <piece id="16" cat="59035" x="3640.2489" y="1741.2489" heading="135.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="15" tconn="1"/>
      <joint conn="1" target="17" tconn="0"/>
    </piece>
    <piece id="17" cat="59035" x="3309.3371" y="1962.3571" heading="157.5000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="16" tconn="1"/>
      <joint conn="1" target="18" tconn="0"/>
    </piece>
    <piece id="18" cat="59061" x="2919.0000" y="2040.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="17" tconn="1"/>
      <joint conn="1" target="19" tconn="0"/>
    </piece>
    <piece id="19" cat="59061" x="2019.0000" y="2040.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="18" tconn="1"/>
      <joint conn="1" target="20" tconn="0"/>
    </piece>
    <piece id="20" cat="59061" x="1119.0000" y="2040.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="19" tconn="1"/>
      <joint conn="1" target="21" tconn="0"/>
    </piece>
    <piece id="21" cat="59053" x="219.0000" y="2040.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="20" tconn="1"/>
      <joint conn="1" target="22" tconn="0"/>
    </piece>
    <piece id="22" cat="59051" x="119.0000" y="2040.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="21" tconn="1"/>
      <joint conn="1" target="23" tconn="0"/>
    </piece>
    <piece id="23" cat="59051" x="59.5000" y="2040.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="22" tconn="1"/>
      <joint conn="1" target="24" tconn="0"/>
    </piece>
    <piece id="24" cat="59035" x="-0.0000" y="2040.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="23" tconn="1"/>
      <joint conn="1" target="25" tconn="0"/>
    </piece>
    <piece id="25" cat="59035" x="-390.3371" y="1962.3571" heading="202.5000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="24" tconn="1"/>
      <joint conn="1" target="26" tconn="0"/>
    </piece>
    <piece id="26" cat="59035" x="-721.2489" y="1741.2489" heading="225.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="25" tconn="1"/>
      <joint conn="1" target="27" tconn="0"/>
    </piece>
    <piece id="27" cat="59035" x="-942.3571" y="1410.3371" heading="247.5000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="26" tconn="1"/>
      <joint conn="1" target="28" tconn="0"/>
    </piece>
    <piece id="28" cat="59035" x="-1020.0000" y="1020.0000" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="27" tconn="1"/>
      <joint conn="1" target="29" tconn="0"/>
    </piece>
    <piece id="29" cat="59035" x="-942.3571" y="629.6629" heading="292.5000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="28" tconn="1"/>
      <joint conn="1" target="30" tconn="0"/>
    </piece>
    <piece id="30" cat="59035" x="-721.2489" y="298.7511" heading="315.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="29" tconn="1"/>
      <joint conn="1" target="31" tconn="0"/>
    </piece>
    <piece id="31" cat="59035" x="-390.3371" y="77.6429" heading="337.5000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="30" tconn="1"/>
      <joint conn="1" target="3" tconn="0"/>
    </piece>
    <piece id="32" cat="59058" x="403.0374" y="35.2612" heading="10.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="3" tconn="2"/>
      <joint conn="1" target="33" tconn="1"/>
    </piece>
    <piece id="33" cat="59078" x="1101.5172" y="122.6169" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="34" tconn="0"/>
      <joint conn="1" target="32" tconn="1"/>
    </piece>
    <piece id="34" cat="59059" x="1101.5172" y="122.6169" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="33" tconn="0"/>
      <joint conn="1" target="35" tconn="0"/>
    </piece>
    <piece id="35" cat="59054" x="1701.5172" y="122.6169" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="34" tconn="1"/>
      <joint conn="1" target="36" tconn="1"/>
    </piece>
    <piece id="36" cat="59078" x="2220.5546" y="87.3557" heading="170.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="37" tconn="0"/>
      <joint conn="1" target="35" tconn="1"/>
    </piece>
    <piece id="37" cat="59058" x="2220.5546" y="87.3557" heading="350.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="36" tconn="0"/>
      <joint conn="1" target="9" tconn="2"/>
    </piece>
  </pieces>
  <scenery>
    <sceneryitem id="38" item="stn.small" x="1450.0000" y="-330.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="39" item="plat.side" x="970.0000" y="-100.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="40" item="plat.side" x="1460.0000" y="-100.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="41" item="plat.side" x="1950.0000" y="-100.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="42" item="goods.shed" x="1460.0000" y="420.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="43" item="water.crane" x="500.0000" y="240.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="44" item="house.detached" x="700.0000" y="950.0000" heading="10.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="45" item="kiosk" x="1200.0000" y="850.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="46" item="tree.broad.m" x="500.0000" y="1250.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="47" item="tree.fir.l" x="900.0000" y="1450.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="48" item="tree.broad.s" x="1250.0000" y="1250.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="49" item="tree.broad.l" x="1400.0000" y="1500.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="50" item="tree.fir.m" x="2450.0000" y="900.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="51" item="tree.broad.m" x="2600.0000" y="1500.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="52" item="tree.fir.l" x="-1100.0000" y="-250.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="53" item="tree.broad.s" x="-1150.0000" y="600.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="54" item="tree.broad.l" x="-1150.0000" y="1500.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="55" item="tree.fir.m" x="-1050.0000" y="2300.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="56" item="tree.broad.m" x="4000.0000" y="-250.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="57" item="tree.fir.l" x="4070.0000" y="700.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="58" item="tree.broad.s" x="4060.0000" y="1500.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="59" item="tree.broad.l" x="3950.0000" y="2300.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="60" item="tree.fir.m" x="600.0000" y="2350.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="61" item="tree.broad.m" x="1450.0000" y="2380.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="62" item="tree.fir.l" x="2300.0000" y="2350.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
  </scenery>
  <levels active="1">
    <level id="1" name="Level 1" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
  </levels>
  <baseboard>
    <vertex x="-1350.0000" y="-500.0000"/>
    <vertex x="4270.0000" y="-500.0000"/>
    <vertex x="4270.0000" y="2550.0000"/>
    <vertex x="-1350.0000" y="2550.0000"/>
  </baseboard>
  <lastshape id="0" w_mm="5620.0000" h_mm="3050.0000" w2_mm="0.0000" h2_mm="0.0000"/>
  <labels>
    <label id="63" x="1250.0000" y="-340.0000" text="Garden Halt"/>
  </labels>
  <shapes>
    <shape id="1" r="168" g="200" b="132" a="140" outline="0" level="1" height="0.0000" label="">
      <v x="300.0000" y="700.0000"/>
      <v x="2500.0000" y="650.0000"/>
      <v x="2800.0000" y="1200.0000"/>
      <v x="2300.0000" y="1700.0000"/>
      <v x="500.0000" y="1650.0000"/>
      <v x="150.0000" y="1200.0000"/>
    </shape>
    <shape id="2" r="132" g="182" b="214" a="140" outline="0" level="1" height="0.0000" label="Garden pond">
      <v x="1700.0000" y="1050.0000"/>
      <v x="2050.0000" y="980.0000"/>
      <v x="2350.0000" y="1150.0000"/>
      <v x="2250.0000" y="1420.0000"/>
      <v x="1850.0000" y="1450.0000"/>
      <v x="1600.0000" y="1260.0000"/>
    </shape>
  </shapes>
</layout>

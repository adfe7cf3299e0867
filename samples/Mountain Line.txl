<?xml version="1.0" encoding="UTF-8"?>
<layout name="Mountain Line" version="1" units="0">
  <pieces>
    <piece id="3" cat="24612" x="0.0000" y="0.0000" heading="270.0000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="55" tconn="1"/>
      <joint conn="1" target="4" tconn="0"/>
      <joint conn="2" target="10" tconn="1"/>
    </piece>
    <piece id="4" cat="24172" x="-0.0000" y="-188.3000" heading="270.0000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="3" tconn="1"/>
      <joint conn="1" target="5" tconn="0"/>
    </piece>
    <piece id="5" cat="24188" x="-0.0000" y="-360.0000" heading="270.0000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="4" tconn="1"/>
      <joint conn="1" target="6" tconn="0"/>
    </piece>
    <piece id="6" cat="24188" x="-0.0000" y="-548.3000" heading="270.0000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="5" tconn="1"/>
      <joint conn="1" target="7" tconn="0"/>
    </piece>
    <piece id="7" cat="24188" x="-0.0000" y="-736.6000" heading="270.0000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="6" tconn="1"/>
      <joint conn="1" target="8" tconn="0"/>
    </piece>
    <piece id="8" cat="24172" x="-0.0000" y="-924.9000" heading="270.0000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="7" tconn="1"/>
      <joint conn="1" target="9" tconn="1"/>
    </piece>
    <piece id="9" cat="24611" x="-0.0000" y="-1284.9000" heading="90.0000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="15" tconn="0"/>
      <joint conn="1" target="8" tconn="1"/>
      <joint conn="2" target="14" tconn="0"/>
    </piece>
    <piece id="10" cat="24224" x="77.5211" y="-360.0775" heading="90.0000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="11" tconn="0"/>
      <joint conn="1" target="3" tconn="2"/>
    </piece>
    <piece id="11" cat="24188" x="77.5211" y="-360.0775" heading="270.0000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="0"/>
      <joint conn="1" target="12" tconn="0"/>
    </piece>
    <piece id="12" cat="24188" x="77.5211" y="-548.3775" heading="270.0000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="11" tconn="1"/>
      <joint conn="1" target="13" tconn="0"/>
    </piece>
    <piece id="13" cat="24188" x="77.5211" y="-736.6775" heading="270.0000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="12" tconn="1"/>
      <joint conn="1" target="14" tconn="1"/>
    </piece>
    <piece id="14" cat="24224" x="38.7600" y="-1105.0151" heading="65.7000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="9" tconn="2"/>
      <joint conn="1" target="13" tconn="1"/>
    </piece>
    <piece id="15" cat="24230" x="-0.0000" y="-1284.9000" heading="270.0000" z="42.0000" grade="-1.0467" level="1" sel="0">
      <joint conn="0" target="9" tconn="0"/>
      <joint conn="1" target="16" tconn="0"/>
    </piece>
    <piece id="16" cat="24230" x="58.6139" y="-1503.6500" heading="300.0000" z="37.8153" grade="-1.0467" level="1" sel="0">
      <joint conn="0" target="15" tconn="1"/>
      <joint conn="1" target="17" tconn="0"/>
    </piece>
    <piece id="17" cat="24230" x="218.7500" y="-1663.7861" heading="330.0000" z="33.6307" grade="-1.0467" level="1" sel="0">
      <joint conn="0" target="16" tconn="1"/>
      <joint conn="1" target="18" tconn="0"/>
    </piece>
    <piece id="18" cat="24230" x="437.5000" y="-1722.4000" heading="0.0000" z="29.4460" grade="-1.0467" level="1" sel="0">
      <joint conn="0" target="17" tconn="1"/>
      <joint conn="1" target="19" tconn="0"/>
    </piece>
    <piece id="19" cat="24215" x="656.2500" y="-1663.7861" heading="30.0000" z="25.2613" grade="-1.0467" level="1" sel="0">
      <joint conn="0" target="18" tconn="1"/>
      <joint conn="1" target="20" tconn="0"/>
    </piece>
    <piece id="20" cat="24188" x="746.8592" y="-1594.2592" heading="45.0000" z="23.1690" grade="-1.0467" level="1" sel="0">
      <joint conn="0" target="19" tconn="1"/>
      <joint conn="1" target="21" tconn="0"/>
    </piece>
    <piece id="21" cat="24188" x="880.0074" y="-1461.1110" heading="45.0000" z="19.7292" grade="-1.0467" level="1" sel="0">
      <joint conn="0" target="20" tconn="1"/>
      <joint conn="1" target="22" tconn="0"/>
    </piece>
    <piece id="22" cat="24188" x="1013.1556" y="-1327.9628" heading="45.0000" z="16.2893" grade="-1.0467" level="1" sel="0">
      <joint conn="0" target="21" tconn="1"/>
      <joint conn="1" target="23" tconn="0"/>
    </piece>
    <piece id="23" cat="24188" x="1146.3038" y="-1194.8146" heading="45.0000" z="12.8495" grade="-1.0467" level="1" sel="0">
      <joint conn="0" target="22" tconn="1"/>
      <joint conn="1" target="24" tconn="0"/>
    </piece>
    <piece id="24" cat="24172" x="1279.4520" y="-1061.6664" heading="45.0000" z="9.4097" grade="-1.0467" level="1" sel="0">
      <joint conn="0" target="23" tconn="1"/>
      <joint conn="1" target="25" tconn="0"/>
    </piece>
    <piece id="25" cat="24172" x="1400.8623" y="-940.2562" heading="45.0000" z="6.2731" grade="-1.0467" level="1" sel="0">
      <joint conn="0" target="24" tconn="1"/>
      <joint conn="1" target="26" tconn="0"/>
    </piece>
    <piece id="26" cat="24172" x="1522.2725" y="-818.8459" heading="45.0000" z="3.1366" grade="-1.0467" level="1" sel="0">
      <joint conn="0" target="25" tconn="1"/>
      <joint conn="1" target="27" tconn="0"/>
    </piece>
    <piece id="27" cat="24172" x="1643.6827" y="-697.4357" heading="45.0000" z="-0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="26" tconn="1"/>
      <joint conn="1" target="28" tconn="0"/>
    </piece>
    <piece id="28" cat="24172" x="1765.0930" y="-576.0255" heading="45.0000" z="-0.0000" grade="1.3665" level="1" sel="0">
      <joint conn="0" target="27" tconn="1"/>
      <joint conn="1" target="29" tconn="0"/>
    </piece>
    <piece id="29" cat="24172" x="1886.5032" y="-454.6152" heading="45.0000" z="4.0946" grade="1.4850" level="1" sel="0">
      <joint conn="0" target="28" tconn="1"/>
      <joint conn="1" target="30" tconn="0"/>
    </piece>
    <piece id="30" cat="24077" x="2007.9135" y="-333.2050" heading="45.0000" z="8.5443" grade="1.4850" level="1" sel="0">
      <joint conn="0" target="29" tconn="1"/>
      <joint conn="1" target="31" tconn="1"/>
    </piece>
    <piece id="31" cat="24330" x="2293.5824" y="-145.1124" heading="195.0000" z="17.5410" grade="1.4850" rev="1" level="1" sel="0">
      <joint conn="0" target="32" tconn="1"/>
      <joint conn="1" target="30" tconn="1"/>
    </piece>
    <piece id="32" cat="24330" x="2560.1660" y="-145.1124" heading="165.0000" z="24.5293" grade="1.4850" rev="1" level="1" sel="0">
      <joint conn="0" target="33" tconn="1"/>
      <joint conn="1" target="31" tconn="0"/>
    </piece>
    <piece id="33" cat="24330" x="2791.0342" y="-278.4042" heading="135.0000" z="31.5176" grade="1.4850" rev="1" level="1" sel="0">
      <joint conn="0" target="34" tconn="1"/>
      <joint conn="1" target="32" tconn="0"/>
    </piece>
    <piece id="34" cat="24330" x="2924.3260" y="-509.2724" heading="105.0000" z="38.5059" grade="1.4850" rev="1" level="1" sel="0">
      <joint conn="0" target="35" tconn="1"/>
      <joint conn="1" target="33" tconn="0"/>
    </piece>
    <piece id="35" cat="24330" x="2924.3260" y="-775.8560" heading="75.0000" z="45.4941" grade="1.4850" rev="1" level="1" sel="0">
      <joint conn="0" target="36" tconn="1"/>
      <joint conn="1" target="34" tconn="0"/>
    </piece>
    <piece id="36" cat="24330" x="2791.0342" y="-1006.7242" heading="45.0000" z="52.4824" grade="1.4850" rev="1" level="1" sel="0">
      <joint conn="0" target="37" tconn="1"/>
      <joint conn="1" target="35" tconn="0"/>
    </piece>
    <piece id="37" cat="24330" x="2560.1660" y="-1140.0160" heading="15.0000" z="59.4707" grade="1.4850" rev="1" level="1" sel="0">
      <joint conn="0" target="38" tconn="1"/>
      <joint conn="1" target="36" tconn="0"/>
    </piece>
    <piece id="38" cat="24330" x="2293.5824" y="-1140.0160" heading="345.0000" z="66.4590" grade="1.4850" rev="1" level="1" sel="0">
      <joint conn="0" target="39" tconn="1"/>
      <joint conn="1" target="37" tconn="0"/>
    </piece>
    <piece id="39" cat="24330" x="2062.7142" y="-1006.7242" heading="315.0000" z="73.4472" grade="1.4850" rev="1" level="1" sel="0">
      <joint conn="0" target="40" tconn="0"/>
      <joint conn="1" target="38" tconn="0"/>
    </piece>
    <piece id="40" cat="24077" x="2062.7142" y="-1006.7242" heading="135.0000" z="73.4472" grade="1.4850" level="1" sel="0">
      <joint conn="0" target="39" tconn="0"/>
      <joint conn="1" target="41" tconn="0"/>
    </piece>
    <piece id="41" cat="24172" x="2007.9135" y="-951.9234" heading="135.0000" z="75.4557" grade="1.4850" level="1" sel="0">
      <joint conn="0" target="40" tconn="1"/>
      <joint conn="1" target="42" tconn="0"/>
    </piece>
    <piece id="42" cat="24172" x="1886.5032" y="-830.5132" heading="135.0000" z="79.9054" grade="1.3665" level="1" sel="0">
      <joint conn="0" target="41" tconn="1"/>
      <joint conn="1" target="43" tconn="0"/>
    </piece>
    <piece id="43" cat="24172" x="1765.0930" y="-709.1029" heading="135.0000" z="84.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="42" tconn="1"/>
      <joint conn="1" target="44" tconn="0"/>
    </piece>
    <piece id="44" cat="24172" x="1643.6827" y="-587.6927" heading="135.0000" z="84.0000" grade="-1.1626" level="1" sel="0">
      <joint conn="0" target="43" tconn="1"/>
      <joint conn="1" target="45" tconn="0"/>
    </piece>
    <piece id="45" cat="24172" x="1522.2725" y="-466.2825" heading="135.0000" z="80.5163" grade="-1.1626" level="1" sel="0">
      <joint conn="0" target="44" tconn="1"/>
      <joint conn="1" target="46" tconn="0"/>
    </piece>
    <piece id="46" cat="24172" x="1400.8623" y="-344.8722" heading="135.0000" z="77.0327" grade="-1.1626" level="1" sel="0">
      <joint conn="0" target="45" tconn="1"/>
      <joint conn="1" target="47" tconn="0"/>
    </piece>
    <piece id="47" cat="24188" x="1279.4520" y="-223.4620" heading="135.0000" z="73.5490" grade="-1.1626" level="1" sel="0">
      <joint conn="0" target="46" tconn="1"/>
      <joint conn="1" target="48" tconn="0"/>
    </piece>
    <piece id="48" cat="24188" x="1146.3038" y="-90.3138" heading="135.0000" z="69.7285" grade="-1.1626" level="1" sel="0">
      <joint conn="0" target="47" tconn="1"/>
      <joint conn="1" target="49" tconn="0"/>
    </piece>
    <piece id="49" cat="24188" x="1013.1556" y="42.8344" heading="135.0000" z="65.9081" grade="-1.1626" level="1" sel="0">
      <joint conn="0" target="48" tconn="1"/>
      <joint conn="1" target="50" tconn="0"/>
    </piece>
    <piece id="50" cat="24188" x="880.0074" y="175.9826" heading="135.0000" z="62.0876" grade="-1.1626" level="1" sel="0">
      <joint conn="0" target="49" tconn="1"/>
      <joint conn="1" target="51" tconn="0"/>
    </piece>
    <piece id="51" cat="24215" x="746.8592" y="309.1308" heading="135.0000" z="58.2671" grade="-1.1626" level="1" sel="0">
      <joint conn="0" target="50" tconn="1"/>
      <joint conn="1" target="52" tconn="0"/>
    </piece>
    <piece id="52" cat="24230" x="656.2500" y="378.6577" heading="150.0000" z="55.9433" grade="-1.1626" level="1" sel="0">
      <joint conn="0" target="51" tconn="1"/>
      <joint conn="1" target="53" tconn="0"/>
    </piece>
    <piece id="53" cat="24230" x="437.5000" y="437.2716" heading="180.0000" z="51.2955" grade="-1.1626" level="1" sel="0">
      <joint conn="0" target="52" tconn="1"/>
      <joint conn="1" target="54" tconn="0"/>
    </piece>
    <piece id="54" cat="24230" x="218.7500" y="378.6577" heading="210.0000" z="46.6478" grade="-1.1626" level="1" sel="0">
      <joint conn="0" target="53" tconn="1"/>
      <joint conn="1" target="55" tconn="0"/>
    </piece>
    <piece id="55" cat="24230" x="58.6139" y="218.5216" heading="240.0000" z="42.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="54" tconn="1"/>
      <joint conn="1" target="3" tconn="0"/>
    </piece>
  </pieces>
  <scenery>
    <sceneryitem id="56" item="stn.medium" x="-150.0000" y="-640.0000" heading="270.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="57" item="plat.side" x="-42.0000" y="-460.0000" heading="270.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="58" item="plat.side" x="-42.0000" y="-640.0000" heading="270.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="59" item="plat.side" x="-42.0000" y="-820.0000" heading="270.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="60" item="box.ground" x="-95.0000" y="-60.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="61" item="church.village" x="330.0000" y="-620.0000" heading="20.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="62" item="inn" x="280.0000" y="-880.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="63" item="house.timber" x="430.0000" y="-830.0000" heading="350.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="64" item="house.two" x="300.0000" y="-400.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="65" item="farm.barn" x="440.0000" y="-480.0000" heading="15.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="66" item="castle.ruin" x="2420.0000" y="-640.0000" heading="20.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="67" item="tree.broad.m" x="2230.0000" y="-860.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="68" item="tree.fir.l" x="2600.0000" y="-830.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="69" item="tree.broad.s" x="2640.0000" y="-480.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="70" item="tree.broad.l" x="2380.0000" y="-380.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="71" item="tree.fir.m" x="2190.0000" y="-520.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="72" item="tree.broad.m" x="240.0000" y="-1040.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="73" item="tree.fir.l" x="470.0000" y="-700.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="74" item="tree.broad.s" x="230.0000" y="-280.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="75" item="tree.broad.l" x="1200.0000" y="-1700.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="76" item="tree.fir.m" x="1500.0000" y="-1650.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="77" item="tree.broad.m" x="2450.0000" y="-1600.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="78" item="tree.fir.l" x="2980.0000" y="-1500.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="79" item="tree.broad.s" x="3060.0000" y="100.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="80" item="tree.broad.l" x="2500.0000" y="300.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="81" item="tree.fir.m" x="1300.0000" y="380.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="82" item="tree.broad.m" x="1650.0000" y="330.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="83" item="tree.fir.l" x="-430.0000" y="-1700.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="84" item="tree.broad.s" x="-440.0000" y="-1300.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="85" item="tree.broad.l" x="-450.0000" y="200.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="86" item="tree.fir.m" x="-420.0000" y="460.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="87" item="tree.broad.m" x="2100.0000" y="460.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="88" item="tree.fir.l" x="1250.0000" y="-640.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="89" item="tree.broad.s" x="1100.0000" y="-560.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
  </scenery>
  <levels active="1">
    <level id="1" name="Level 1" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
  </levels>
  <baseboard>
    <vertex x="-520.0000" y="-1860.0000"/>
    <vertex x="3220.0000" y="-1860.0000"/>
    <vertex x="3220.0000" y="580.0000"/>
    <vertex x="-520.0000" y="580.0000"/>
  </baseboard>
  <lastshape id="0" w_mm="3740.0000" h_mm="2440.0000" w2_mm="0.0000" h2_mm="0.0000"/>
  <labels>
    <label id="90" x="-330.0000" y="-640.0000" text="Talhausen"/>
  </labels>
  <shapes>
    <shape id="1" r="186" g="176" b="138" a="140" outline="0" level="1" height="0.0000" label="Hohe Warte">
      <v x="2200.0000" y="-960.0000"/>
      <v x="2420.0000" y="-1010.0000"/>
      <v x="2640.0000" y="-940.0000"/>
      <v x="2770.0000" y="-720.0000"/>
      <v x="2740.0000" y="-480.0000"/>
      <v x="2560.0000" y="-310.0000"/>
      <v x="2320.0000" y="-290.0000"/>
      <v x="2120.0000" y="-430.0000"/>
      <v x="2060.0000" y="-690.0000"/>
    </shape>
    <shape id="2" r="168" g="200" b="132" a="140" outline="0" level="1" height="0.0000" label="">
      <v x="180.0000" y="-1130.0000"/>
      <v x="420.0000" y="-1010.0000"/>
      <v x="560.0000" y="-760.0000"/>
      <v x="520.0000" y="-420.0000"/>
      <v x="330.0000" y="-220.0000"/>
      <v x="180.0000" y="-150.0000"/>
    </shape>
  </shapes>
</layout>

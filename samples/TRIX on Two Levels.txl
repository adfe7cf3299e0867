<?xml version="1.0" encoding="UTF-8"?>
<layout name="TRIX on Two Levels" version="1" units="0">
  <pieces>
    <piece id="1" cat="62612" x="0.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="24" tconn="1"/>
      <joint conn="1" target="2" tconn="0"/>
      <joint conn="2" target="25" tconn="2"/>
    </piece>
    <piece id="2" cat="62172" x="188.3000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="1" tconn="1"/>
      <joint conn="1" target="3" tconn="0"/>
    </piece>
    <piece id="3" cat="62188" x="360.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="2" tconn="1"/>
      <joint conn="1" target="4" tconn="0"/>
    </piece>
    <piece id="4" cat="62188" x="548.3000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="3" tconn="1"/>
      <joint conn="1" target="5" tconn="0"/>
    </piece>
    <piece id="5" cat="62188" x="736.6000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="4" tconn="1"/>
      <joint conn="1" target="6" tconn="0"/>
    </piece>
    <piece id="6" cat="62188" x="924.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="5" tconn="1"/>
      <joint conn="1" target="7" tconn="0"/>
    </piece>
    <piece id="7" cat="62330" x="1113.2000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="6" tconn="1"/>
      <joint conn="1" target="8" tconn="0"/>
    </piece>
    <piece id="8" cat="62330" x="1370.7000" y="68.9969" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="7" tconn="1"/>
      <joint conn="1" target="9" tconn="0"/>
    </piece>
    <piece id="9" cat="62330" x="1559.2031" y="257.5000" heading="60.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="8" tconn="1"/>
      <joint conn="1" target="10" tconn="0"/>
    </piece>
    <piece id="10" cat="62330" x="1628.2000" y="515.0000" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="9" tconn="1"/>
      <joint conn="1" target="11" tconn="0"/>
    </piece>
    <piece id="11" cat="62330" x="1559.2031" y="772.5000" heading="120.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="1"/>
      <joint conn="1" target="12" tconn="0"/>
    </piece>
    <piece id="12" cat="62330" x="1370.7000" y="961.0031" heading="150.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="11" tconn="1"/>
      <joint conn="1" target="13" tconn="0"/>
    </piece>
    <piece id="13" cat="62172" x="1113.2000" y="1030.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="12" tconn="1"/>
      <joint conn="1" target="14" tconn="0"/>
    </piece>
    <piece id="14" cat="62188" x="941.5000" y="1030.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="13" tconn="1"/>
      <joint conn="1" target="15" tconn="0"/>
    </piece>
    <piece id="15" cat="62188" x="753.2000" y="1030.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="14" tconn="1"/>
      <joint conn="1" target="16" tconn="0"/>
    </piece>
    <piece id="16" cat="62188" x="564.9000" y="1030.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="15" tconn="1"/>
      <joint conn="1" target="17" tconn="0"/>
    </piece>
    <piece id="17" cat="62188" x="376.6000" y="1030.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="16" tconn="1"/>
      <joint conn="1" target="18" tconn="0"/>
    </piece>
    <piece id="18" cat="62188" x="188.3000" y="1030.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="17" tconn="1"/>
      <joint conn="1" target="19" tconn="0"/>
    </piece>
    <piece id="19" cat="62330" x="0.0000" y="1030.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="18" tconn="1"/>
      <joint conn="1" target="20" tconn="0"/>
    </piece>
    <piece id="20" cat="62330" x="-257.5000" y="961.0031" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="19" tconn="1"/>
      <joint conn="1" target="21" tconn="0"/>
    </piece>
    <piece id="21" cat="62330" x="-446.0031" y="772.5000" heading="240.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="20" tconn="1"/>
      <joint conn="1" target="22" tconn="0"/>
    </piece>
    <piece id="22" cat="62330" x="-515.0000" y="515.0000" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="21" tconn="1"/>
      <joint conn="1" target="23" tconn="0"/>
    </piece>
    <piece id="23" cat="62330" x="-446.0031" y="257.5000" heading="300.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="22" tconn="1"/>
      <joint conn="1" target="24" tconn="0"/>
    </piece>
    <piece id="24" cat="62330" x="-257.5000" y="68.9969" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="23" tconn="1"/>
      <joint conn="1" target="1" tconn="0"/>
    </piece>
    <piece id="25" cat="62612" x="360.0800" y="77.5200" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="48" tconn="1"/>
      <joint conn="1" target="26" tconn="0"/>
      <joint conn="2" target="1" tconn="2"/>
    </piece>
    <piece id="26" cat="62172" x="171.7800" y="77.5200" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="25" tconn="1"/>
      <joint conn="1" target="27" tconn="1"/>
    </piece>
    <piece id="27" cat="62230" x="-218.6700" y="136.1339" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="28" tconn="1"/>
      <joint conn="1" target="26" tconn="1"/>
    </piece>
    <piece id="28" cat="62230" x="-378.8061" y="296.2700" heading="300.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="29" tconn="1"/>
      <joint conn="1" target="27" tconn="0"/>
    </piece>
    <piece id="29" cat="62230" x="-437.4200" y="515.0200" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="30" tconn="1"/>
      <joint conn="1" target="28" tconn="0"/>
    </piece>
    <piece id="30" cat="62230" x="-378.8061" y="733.7700" heading="240.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="31" tconn="1"/>
      <joint conn="1" target="29" tconn="0"/>
    </piece>
    <piece id="31" cat="62230" x="-218.6700" y="893.9061" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="32" tconn="1"/>
      <joint conn="1" target="30" tconn="0"/>
    </piece>
    <piece id="32" cat="62230" x="0.0800" y="952.5200" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="33" tconn="0"/>
      <joint conn="1" target="31" tconn="0"/>
    </piece>
    <piece id="33" cat="62188" x="0.0800" y="952.5200" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="32" tconn="0"/>
      <joint conn="1" target="34" tconn="0"/>
    </piece>
    <piece id="34" cat="62188" x="188.3800" y="952.5200" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="33" tconn="1"/>
      <joint conn="1" target="35" tconn="0"/>
    </piece>
    <piece id="35" cat="62188" x="376.6800" y="952.5200" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="34" tconn="1"/>
      <joint conn="1" target="36" tconn="0"/>
    </piece>
    <piece id="36" cat="62188" x="564.9800" y="952.5200" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="35" tconn="1"/>
      <joint conn="1" target="37" tconn="0"/>
    </piece>
    <piece id="37" cat="62188" x="753.2800" y="952.5200" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="36" tconn="1"/>
      <joint conn="1" target="38" tconn="0"/>
    </piece>
    <piece id="38" cat="62172" x="941.5800" y="952.5200" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="37" tconn="1"/>
      <joint conn="1" target="39" tconn="1"/>
    </piece>
    <piece id="39" cat="62230" x="1332.0300" y="893.9061" heading="150.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="40" tconn="1"/>
      <joint conn="1" target="38" tconn="1"/>
    </piece>
    <piece id="40" cat="62230" x="1492.1661" y="733.7700" heading="120.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="41" tconn="1"/>
      <joint conn="1" target="39" tconn="0"/>
    </piece>
    <piece id="41" cat="62230" x="1550.7800" y="515.0200" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="42" tconn="1"/>
      <joint conn="1" target="40" tconn="0"/>
    </piece>
    <piece id="42" cat="62230" x="1492.1661" y="296.2700" heading="60.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="43" tconn="1"/>
      <joint conn="1" target="41" tconn="0"/>
    </piece>
    <piece id="43" cat="62230" x="1332.0300" y="136.1339" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="44" tconn="1"/>
      <joint conn="1" target="42" tconn="0"/>
    </piece>
    <piece id="44" cat="62230" x="1113.2800" y="77.5200" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="45" tconn="0"/>
      <joint conn="1" target="43" tconn="0"/>
    </piece>
    <piece id="45" cat="62188" x="1113.2800" y="77.5200" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="44" tconn="0"/>
      <joint conn="1" target="46" tconn="0"/>
    </piece>
    <piece id="46" cat="62188" x="924.9800" y="77.5200" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="45" tconn="1"/>
      <joint conn="1" target="47" tconn="0"/>
    </piece>
    <piece id="47" cat="62188" x="736.6800" y="77.5200" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="46" tconn="1"/>
      <joint conn="1" target="48" tconn="0"/>
    </piece>
    <piece id="48" cat="62188" x="548.3800" y="77.5200" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="47" tconn="1"/>
      <joint conn="1" target="25" tconn="0"/>
    </piece>
    <piece id="65" cat="62188" x="70.0000" y="530.0000" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="80" tconn="0"/>
      <joint conn="1" target="66" tconn="0"/>
    </piece>
    <piece id="66" cat="62188" x="258.3000" y="530.0000" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="65" tconn="1"/>
      <joint conn="1" target="67" tconn="0"/>
    </piece>
    <piece id="67" cat="62630" x="446.6000" y="530.0000" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="66" tconn="1"/>
      <joint conn="1" target="68" tconn="0"/>
      <joint conn="2" target="72" tconn="1"/>
      <joint conn="3" target="76" tconn="0"/>
    </piece>
    <piece id="68" cat="62172" x="634.9000" y="530.0000" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="67" tconn="1"/>
      <joint conn="1" target="69" tconn="0"/>
    </piece>
    <piece id="69" cat="62188" x="806.6000" y="530.0000" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="68" tconn="1"/>
      <joint conn="1" target="70" tconn="0"/>
    </piece>
    <piece id="70" cat="62188" x="994.9000" y="530.0000" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="69" tconn="1"/>
      <joint conn="1" target="71" tconn="0"/>
    </piece>
    <piece id="71" cat="62977" x="1183.2000" y="530.0000" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="70" tconn="1"/>
    </piece>
    <piece id="72" cat="62224" x="806.6775" y="607.5211" heading="180.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="73" tconn="0"/>
      <joint conn="1" target="67" tconn="2"/>
    </piece>
    <piece id="73" cat="62188" x="806.6775" y="607.5211" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="72" tconn="0"/>
      <joint conn="1" target="74" tconn="0"/>
    </piece>
    <piece id="74" cat="62188" x="994.9775" y="607.5211" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="73" tconn="1"/>
      <joint conn="1" target="75" tconn="0"/>
    </piece>
    <piece id="75" cat="62977" x="1183.2775" y="607.5211" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="74" tconn="1"/>
    </piece>
    <piece id="76" cat="62224" x="626.6400" y="491.2400" heading="335.7000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="67" tconn="3"/>
      <joint conn="1" target="77" tconn="0"/>
    </piece>
    <piece id="77" cat="62188" x="806.6775" y="452.4789" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="76" tconn="1"/>
      <joint conn="1" target="78" tconn="0"/>
    </piece>
    <piece id="78" cat="62188" x="994.9775" y="452.4789" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="77" tconn="1"/>
      <joint conn="1" target="79" tconn="0"/>
    </piece>
    <piece id="79" cat="62977" x="1183.2775" y="452.4789" heading="0.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="78" tconn="1"/>
    </piece>
    <piece id="80" cat="62977" x="70.0000" y="530.0000" heading="180.0000" z="120.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="65" tconn="0"/>
    </piece>
  </pieces>
  <scenery>
    <sceneryitem id="49" item="plat.island77" x="560.0000" y="39.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="50" item="plat.island77" x="740.0000" y="39.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="51" item="plat.island77" x="920.0000" y="39.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="52" item="box.ground" x="190.0000" y="-90.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="53" item="tree.broad.m" x="-620.0000" y="20.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="54" item="tree.fir.l" x="-630.0000" y="300.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="55" item="tree.broad.s" x="-620.0000" y="640.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="56" item="tree.broad.l" x="-600.0000" y="1000.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="57" item="tree.fir.m" x="1740.0000" y="20.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="58" item="tree.broad.m" x="1750.0000" y="320.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="59" item="tree.fir.l" x="1740.0000" y="660.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="60" item="tree.broad.s" x="1720.0000" y="1000.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="61" item="tree.broad.l" x="200.0000" y="1150.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="62" item="tree.fir.m" x="700.0000" y="1150.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="63" item="tree.broad.m" x="1100.0000" y="1150.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="81" item="stn.small" x="960.0000" y="370.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="82" item="plat.island77" x="900.0000" y="491.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="83" item="plat.island77" x="1080.0000" y="491.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="84" item="plat.island77" x="900.0000" y="569.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="85" item="plat.island77" x="1080.0000" y="569.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="86" item="shed.loco1" x="140.0000" y="640.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="87" item="water.tower" x="320.0000" y="640.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="88" item="house.timber" x="160.0000" y="390.0000" heading="10.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="89" item="church.chapel" x="330.0000" y="390.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="90" item="house.two" x="500.0000" y="390.0000" heading="350.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="91" item="tree.broad.m" x="620.0000" y="360.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="92" item="tree.fir.l" x="20.0000" y="340.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="93" item="tree.broad.s" x="430.0000" y="690.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="94" item="tree.broad.l" x="560.0000" y="690.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="95" item="tree.fir.m" x="720.0000" y="700.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
  </scenery>
  <levels active="1">
    <level id="1" name="Main line" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
    <level id="2" name="Upper deck" visible="1" height="120.0000" trackcolor="1" r="176" g="132" b="92">
      <pt x="-60.0000" y="290.0000"/>
      <pt x="1240.0000" y="290.0000"/>
      <pt x="1240.0000" y="760.0000"/>
      <pt x="-60.0000" y="760.0000"/>
    </level>
  </levels>
  <baseboard>
    <vertex x="-700.0000" y="-160.0000"/>
    <vertex x="1820.0000" y="-160.0000"/>
    <vertex x="1820.0000" y="1200.0000"/>
    <vertex x="-700.0000" y="1200.0000"/>
  </baseboard>
  <lastshape id="0" w_mm="2520.0000" h_mm="1360.0000" w2_mm="0.0000" h2_mm="0.0000"/>
  <labels>
    <label id="64" x="600.0000" y="-110.0000" text="Main line, level 0"/>
    <label id="96" x="60.0000" y="265.0000" text="Terminus, level +120"/>
  </labels>
</layout>

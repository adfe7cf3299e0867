<?xml version="1.0" encoding="UTF-8"?>
<layout name="K-Track Freight Yard" version="1" units="0">
  <pieces>
    <piece id="2" cat="2263" x="0.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="52" tconn="0"/>
      <joint conn="1" target="7" tconn="0"/>
      <joint conn="2" target="3" tconn="0"/>
    </piece>
    <piece id="3" cat="2262" x="162.4874" y="32.3208" heading="22.5000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="2" tconn="2"/>
      <joint conn="1" target="4" tconn="0"/>
      <joint conn="2" target="18" tconn="0"/>
    </piece>
    <piece id="4" cat="2262" x="318.5306" y="96.9560" heading="22.5000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="3" tconn="1"/>
      <joint conn="1" target="5" tconn="0"/>
      <joint conn="2" target="28" tconn="0"/>
    </piece>
    <piece id="5" cat="2262" x="474.5739" y="161.5912" heading="22.5000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="4" tconn="1"/>
      <joint conn="1" target="6" tconn="1"/>
      <joint conn="2" target="37" tconn="0"/>
    </piece>
    <piece id="6" cat="2232" x="793.1045" y="258.5472" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="45" tconn="0"/>
      <joint conn="1" target="5" tconn="1"/>
    </piece>
    <piece id="7" cat="2207" x="168.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="2" tconn="1"/>
      <joint conn="1" target="8" tconn="0"/>
    </piece>
    <piece id="8" cat="2207" x="324.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="7" tconn="1"/>
      <joint conn="1" target="9" tconn="0"/>
    </piece>
    <piece id="9" cat="2207" x="480.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="8" tconn="1"/>
      <joint conn="1" target="10" tconn="0"/>
    </piece>
    <piece id="10" cat="2207" x="636.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="9" tconn="1"/>
      <joint conn="1" target="11" tconn="0"/>
    </piece>
    <piece id="11" cat="2200" x="792.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="1"/>
      <joint conn="1" target="12" tconn="0"/>
    </piece>
    <piece id="12" cat="2200" x="972.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="11" tconn="1"/>
      <joint conn="1" target="13" tconn="0"/>
    </piece>
    <piece id="13" cat="2297" x="1152.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="12" tconn="1"/>
      <joint conn="1" target="14" tconn="0"/>
    </piece>
    <piece id="14" cat="2200" x="1242.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="13" tconn="1"/>
      <joint conn="1" target="15" tconn="0"/>
    </piece>
    <piece id="15" cat="2200" x="1422.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="14" tconn="1"/>
      <joint conn="1" target="16" tconn="0"/>
    </piece>
    <piece id="16" cat="2200" x="1602.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="15" tconn="1"/>
      <joint conn="1" target="17" tconn="0"/>
    </piece>
    <piece id="17" cat="7389" x="1782.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="16" tconn="1"/>
    </piece>
    <piece id="18" cat="2207" x="324.9748" y="64.6415" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="3" tconn="2"/>
      <joint conn="1" target="19" tconn="0"/>
    </piece>
    <piece id="19" cat="2207" x="480.9748" y="64.6415" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="18" tconn="1"/>
      <joint conn="1" target="20" tconn="0"/>
    </piece>
    <piece id="20" cat="2207" x="636.9748" y="64.6415" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="19" tconn="1"/>
      <joint conn="1" target="21" tconn="0"/>
    </piece>
    <piece id="21" cat="2200" x="792.9748" y="64.6415" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="20" tconn="1"/>
      <joint conn="1" target="22" tconn="0"/>
    </piece>
    <piece id="22" cat="2200" x="972.9748" y="64.6415" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="21" tconn="1"/>
      <joint conn="1" target="23" tconn="0"/>
    </piece>
    <piece id="23" cat="2297" x="1152.9748" y="64.6415" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="22" tconn="1"/>
      <joint conn="1" target="24" tconn="0"/>
    </piece>
    <piece id="24" cat="2200" x="1242.9748" y="64.6415" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="23" tconn="1"/>
      <joint conn="1" target="25" tconn="0"/>
    </piece>
    <piece id="25" cat="2200" x="1422.9748" y="64.6415" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="24" tconn="1"/>
      <joint conn="1" target="26" tconn="0"/>
    </piece>
    <piece id="26" cat="2200" x="1602.9748" y="64.6415" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="25" tconn="1"/>
      <joint conn="1" target="27" tconn="0"/>
    </piece>
    <piece id="27" cat="7389" x="1782.9748" y="64.6415" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="26" tconn="1"/>
    </piece>
    <piece id="28" cat="2207" x="481.0180" y="129.2767" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="4" tconn="2"/>
      <joint conn="1" target="29" tconn="0"/>
    </piece>
    <piece id="29" cat="2207" x="637.0180" y="129.2767" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="28" tconn="1"/>
      <joint conn="1" target="30" tconn="0"/>
    </piece>
    <piece id="30" cat="2200" x="793.0180" y="129.2767" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="29" tconn="1"/>
      <joint conn="1" target="31" tconn="0"/>
    </piece>
    <piece id="31" cat="2200" x="973.0180" y="129.2767" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="30" tconn="1"/>
      <joint conn="1" target="32" tconn="0"/>
    </piece>
    <piece id="32" cat="2297" x="1153.0180" y="129.2767" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="31" tconn="1"/>
      <joint conn="1" target="33" tconn="0"/>
    </piece>
    <piece id="33" cat="2200" x="1243.0180" y="129.2767" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="32" tconn="1"/>
      <joint conn="1" target="34" tconn="0"/>
    </piece>
    <piece id="34" cat="2200" x="1423.0180" y="129.2767" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="33" tconn="1"/>
      <joint conn="1" target="35" tconn="0"/>
    </piece>
    <piece id="35" cat="2200" x="1603.0180" y="129.2767" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="34" tconn="1"/>
      <joint conn="1" target="36" tconn="0"/>
    </piece>
    <piece id="36" cat="7389" x="1783.0180" y="129.2767" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="35" tconn="1"/>
    </piece>
    <piece id="37" cat="2207" x="637.0613" y="193.9120" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="5" tconn="2"/>
      <joint conn="1" target="38" tconn="0"/>
    </piece>
    <piece id="38" cat="2200" x="793.0613" y="193.9120" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="37" tconn="1"/>
      <joint conn="1" target="39" tconn="0"/>
    </piece>
    <piece id="39" cat="2200" x="973.0613" y="193.9120" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="38" tconn="1"/>
      <joint conn="1" target="40" tconn="0"/>
    </piece>
    <piece id="40" cat="2297" x="1153.0613" y="193.9120" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="39" tconn="1"/>
      <joint conn="1" target="41" tconn="0"/>
    </piece>
    <piece id="41" cat="2200" x="1243.0613" y="193.9120" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="40" tconn="1"/>
      <joint conn="1" target="42" tconn="0"/>
    </piece>
    <piece id="42" cat="2200" x="1423.0613" y="193.9120" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="41" tconn="1"/>
      <joint conn="1" target="43" tconn="0"/>
    </piece>
    <piece id="43" cat="2200" x="1603.0613" y="193.9120" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="42" tconn="1"/>
      <joint conn="1" target="44" tconn="0"/>
    </piece>
    <piece id="44" cat="7389" x="1783.0613" y="193.9120" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="43" tconn="1"/>
    </piece>
    <piece id="45" cat="2200" x="793.1045" y="258.5472" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="6" tconn="0"/>
      <joint conn="1" target="46" tconn="0"/>
    </piece>
    <piece id="46" cat="2200" x="973.1045" y="258.5472" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="45" tconn="1"/>
      <joint conn="1" target="47" tconn="0"/>
    </piece>
    <piece id="47" cat="2297" x="1153.1045" y="258.5472" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="46" tconn="1"/>
      <joint conn="1" target="48" tconn="0"/>
    </piece>
    <piece id="48" cat="2200" x="1243.1045" y="258.5472" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="47" tconn="1"/>
      <joint conn="1" target="49" tconn="0"/>
    </piece>
    <piece id="49" cat="2200" x="1423.1045" y="258.5472" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="48" tconn="1"/>
      <joint conn="1" target="50" tconn="0"/>
    </piece>
    <piece id="50" cat="2200" x="1603.1045" y="258.5472" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="49" tconn="1"/>
      <joint conn="1" target="51" tconn="0"/>
    </piece>
    <piece id="51" cat="7389" x="1783.1045" y="258.5472" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="50" tconn="1"/>
    </piece>
    <piece id="52" cat="2200" x="0.0000" y="0.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="2" tconn="0"/>
      <joint conn="1" target="53" tconn="0"/>
    </piece>
    <piece id="53" cat="2200" x="-180.0000" y="0.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="52" tconn="1"/>
      <joint conn="1" target="54" tconn="1"/>
    </piece>
    <piece id="54" cat="2263" x="-528.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="55" tconn="0"/>
      <joint conn="1" target="53" tconn="1"/>
      <joint conn="2" target="58" tconn="0"/>
    </piece>
    <piece id="55" cat="2200" x="-528.9000" y="0.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="54" tconn="0"/>
      <joint conn="1" target="56" tconn="0"/>
    </piece>
    <piece id="56" cat="2200" x="-708.9000" y="0.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="55" tconn="1"/>
      <joint conn="1" target="57" tconn="0"/>
    </piece>
    <piece id="57" cat="7389" x="-888.9000" y="0.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="56" tconn="1"/>
    </piece>
    <piece id="58" cat="2232" x="-366.4126" y="32.3208" heading="22.5000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="54" tconn="2"/>
      <joint conn="1" target="59" tconn="0"/>
    </piece>
    <piece id="59" cat="2200" x="-228.6625" y="124.3625" heading="45.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="58" tconn="1"/>
      <joint conn="1" target="60" tconn="0"/>
    </piece>
    <piece id="60" cat="2201" x="-101.3832" y="251.6417" heading="45.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="59" tconn="1"/>
      <joint conn="1" target="61" tconn="0"/>
    </piece>
    <piece id="61" cat="7391" x="-37.7436" y="315.2813" heading="45.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="60" tconn="1"/>
    </piece>
  </pieces>
  <scenery>
    <sceneryitem id="62" item="shed.loco1" x="-37.7436" y="315.2813" heading="45.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="63" item="water.tower" x="-330.0000" y="60.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="64" item="coal.stage" x="-560.0000" y="120.0000" heading="45.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="65" item="diesel.pump" x="-620.0000" y="-110.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="66" item="house.two" x="-330.0000" y="-160.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="67" item="box.tall" x="40.0000" y="-110.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="68" item="goods.shed" x="1120.0000" y="-130.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="69" item="warehouse" x="1420.0000" y="-140.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="70" item="goods.ramp" x="1680.0000" y="-100.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="71" item="goods.gantry" x="1500.0000" y="259.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="72" item="lamp.yard" x="800.0000" y="-60.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="73" item="lamp.yard" x="1500.0000" y="330.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="74" item="lamp.yard" x="840.0000" y="330.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="75" item="road.main" x="-780.0000" y="-270.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="76" item="road.main" x="-530.0000" y="-270.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="77" item="road.main" x="-280.0000" y="-270.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="78" item="road.main" x="-30.0000" y="-270.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="79" item="road.main" x="220.0000" y="-270.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="80" item="road.main" x="470.0000" y="-270.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="81" item="road.main" x="720.0000" y="-270.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="82" item="road.main" x="970.0000" y="-270.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="83" item="road.main" x="1220.0000" y="-270.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="84" item="road.main" x="1470.0000" y="-270.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="85" item="road.main" x="1720.0000" y="-270.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="86" item="road.main" x="1970.0000" y="-270.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="87" item="factory.small" x="400.0000" y="440.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="88" item="tank" x="640.0000" y="440.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="89" item="tank" x="740.0000" y="440.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="90" item="silo" x="860.0000" y="450.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="91" item="tree.broad.m" x="-880.0000" y="200.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="92" item="tree.fir.l" x="-760.0000" y="350.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="93" item="tree.broad.s" x="-620.0000" y="420.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="94" item="tree.broad.l" x="-420.0000" y="430.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="95" item="tree.fir.m" x="-20.0000" y="330.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="96" item="tree.broad.m" x="120.0000" y="450.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="97" item="tree.fir.l" x="1200.0000" y="460.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="98" item="tree.broad.s" x="1420.0000" y="480.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="99" item="tree.broad.l" x="1640.0000" y="450.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="100" item="tree.fir.m" x="1880.0000" y="470.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
  </scenery>
  <levels active="1">
    <level id="1" name="Level 1" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
  </levels>
  <baseboard>
    <vertex x="-1020.0000" y="-330.0000"/>
    <vertex x="2130.0000" y="-330.0000"/>
    <vertex x="2130.0000" y="570.0000"/>
    <vertex x="-1020.0000" y="570.0000"/>
  </baseboard>
  <lastshape id="0" w_mm="3150.0000" h_mm="900.0000" w2_mm="0.0000" h2_mm="0.0000"/>
  <labels>
    <label id="101" x="-930.0000" y="90.0000" text="Headshunt"/>
    <label id="102" x="1000.0000" y="400.0000" text="Freight yard"/>
  </labels>
  <shapes>
    <shape id="1" r="206" g="196" b="178" a="140" outline="0" level="1" height="0.0000" label="">
      <v x="880.0000" y="-60.0000"/>
      <v x="1940.0000" y="-60.0000"/>
      <v x="1940.0000" y="320.0000"/>
      <v x="880.0000" y="320.0000"/>
    </shape>
  </shapes>
</layout>

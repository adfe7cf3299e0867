<?xml version="1.0" encoding="UTF-8"?>
<layout name="Two Tracks" version="1" units="0">
  <pieces>
    <piece id="1" cat="24094" x="486.2000" y="63.7500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="35" tconn="1"/>
      <joint conn="1" target="2" tconn="0"/>
    </piece>
    <piece id="2" cat="24071" x="580.4000" y="63.7500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="1" tconn="1"/>
      <joint conn="1" target="3" tconn="0"/>
    </piece>
    <piece id="3" cat="24230" x="651.2000" y="63.7500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="2" tconn="1"/>
      <joint conn="1" target="4" tconn="0"/>
    </piece>
    <piece id="4" cat="24230" x="869.9500" y="122.3639" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="3" tconn="1"/>
      <joint conn="1" target="5" tconn="0"/>
    </piece>
    <piece id="5" cat="24230" x="1030.0861" y="282.5000" heading="60.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="4" tconn="1"/>
      <joint conn="1" target="6" tconn="1"/>
    </piece>
    <piece id="6" cat="24130" x="1136.9309" y="681.2500" heading="240.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="7" tconn="1"/>
      <joint conn="1" target="5" tconn="1"/>
    </piece>
    <piece id="7" cat="24130" x="1268.7000" y="813.0191" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="8" tconn="1"/>
      <joint conn="1" target="6" tconn="0"/>
    </piece>
    <piece id="8" cat="24130" x="1448.7000" y="861.2500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="9" tconn="0"/>
      <joint conn="1" target="7" tconn="0"/>
    </piece>
    <piece id="9" cat="24229" x="1448.7000" y="861.2500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="8" tconn="0"/>
      <joint conn="1" target="10" tconn="0"/>
    </piece>
    <piece id="10" cat="24094" x="1678.0000" y="861.2500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="9" tconn="1"/>
      <joint conn="1" target="11" tconn="0"/>
    </piece>
    <piece id="11" cat="24071" x="1772.2000" y="861.2500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="1"/>
      <joint conn="1" target="12" tconn="0"/>
    </piece>
    <piece id="12" cat="24071" x="1843.0000" y="861.2500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="11" tconn="1"/>
      <joint conn="1" target="13" tconn="0"/>
    </piece>
    <piece id="13" cat="24230" x="1913.8000" y="861.2500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="12" tconn="1"/>
      <joint conn="1" target="14" tconn="0"/>
    </piece>
    <piece id="14" cat="24230" x="2132.5500" y="919.8639" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="13" tconn="1"/>
      <joint conn="1" target="15" tconn="0"/>
    </piece>
    <piece id="15" cat="24230" x="2292.6861" y="1080.0000" heading="60.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="14" tconn="1"/>
      <joint conn="1" target="16" tconn="0"/>
    </piece>
    <piece id="16" cat="24230" x="2351.3000" y="1298.7500" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="15" tconn="1"/>
      <joint conn="1" target="17" tconn="0"/>
    </piece>
    <piece id="17" cat="24230" x="2292.6861" y="1517.5000" heading="120.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="16" tconn="1"/>
      <joint conn="1" target="18" tconn="0"/>
    </piece>
    <piece id="18" cat="24230" x="2132.5500" y="1677.6361" heading="150.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="17" tconn="1"/>
      <joint conn="1" target="19" tconn="0"/>
    </piece>
    <piece id="19" cat="24360" x="1913.8000" y="1736.2500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="18" tconn="1"/>
      <joint conn="1" target="20" tconn="0"/>
    </piece>
    <piece id="20" cat="24360" x="1553.8000" y="1736.2500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="19" tconn="1"/>
      <joint conn="1" target="21" tconn="0"/>
    </piece>
    <piece id="21" cat="24236" x="1193.8000" y="1736.2500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="20" tconn="1"/>
      <joint conn="1" target="22" tconn="0"/>
    </piece>
    <piece id="22" cat="24188" x="957.7000" y="1736.2500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="21" tconn="1"/>
      <joint conn="1" target="23" tconn="0"/>
    </piece>
    <piece id="23" cat="24071" x="769.4000" y="1736.2500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="22" tconn="1"/>
      <joint conn="1" target="24" tconn="0"/>
    </piece>
    <piece id="24" cat="24071" x="698.6000" y="1736.2500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="23" tconn="1"/>
      <joint conn="1" target="25" tconn="0"/>
    </piece>
    <piece id="25" cat="24071" x="627.8000" y="1736.2500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="24" tconn="1"/>
      <joint conn="1" target="26" tconn="0"/>
    </piece>
    <piece id="26" cat="24071" x="557.0000" y="1736.2500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="25" tconn="1"/>
      <joint conn="1" target="27" tconn="0"/>
    </piece>
    <piece id="27" cat="24230" x="486.2000" y="1736.2500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="26" tconn="1"/>
      <joint conn="1" target="28" tconn="0"/>
    </piece>
    <piece id="28" cat="24230" x="267.4500" y="1677.6361" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="27" tconn="1"/>
      <joint conn="1" target="29" tconn="0"/>
    </piece>
    <piece id="29" cat="24230" x="107.3139" y="1517.5000" heading="240.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="28" tconn="1"/>
      <joint conn="1" target="30" tconn="0"/>
    </piece>
    <piece id="30" cat="24360" x="48.7000" y="1298.7500" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="29" tconn="1"/>
      <joint conn="1" target="31" tconn="0"/>
    </piece>
    <piece id="31" cat="24360" x="48.7000" y="938.7500" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="30" tconn="1"/>
      <joint conn="1" target="32" tconn="0"/>
    </piece>
    <piece id="32" cat="24077" x="48.7000" y="578.7500" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="31" tconn="1"/>
      <joint conn="1" target="33" tconn="0"/>
    </piece>
    <piece id="33" cat="24230" x="48.7000" y="501.2500" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="32" tconn="1"/>
      <joint conn="1" target="34" tconn="0"/>
    </piece>
    <piece id="34" cat="24230" x="107.3139" y="282.5000" heading="300.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="33" tconn="1"/>
      <joint conn="1" target="35" tconn="0"/>
    </piece>
    <piece id="35" cat="24230" x="267.4500" y="122.3639" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="34" tconn="1"/>
      <joint conn="1" target="1" tconn="0"/>
    </piece>
    <piece id="36" cat="24094" x="486.2000" y="141.2500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="75" tconn="1"/>
      <joint conn="1" target="37" tconn="0"/>
    </piece>
    <piece id="37" cat="24071" x="580.4000" y="141.2500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="36" tconn="1"/>
      <joint conn="1" target="38" tconn="0"/>
    </piece>
    <piece id="38" cat="24130" x="651.2000" y="141.2500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="37" tconn="1"/>
      <joint conn="1" target="39" tconn="0"/>
    </piece>
    <piece id="39" cat="24130" x="831.2000" y="189.4809" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="38" tconn="1"/>
      <joint conn="1" target="40" tconn="0"/>
    </piece>
    <piece id="40" cat="24130" x="962.9691" y="321.2500" heading="60.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="39" tconn="1"/>
      <joint conn="1" target="41" tconn="1"/>
    </piece>
    <piece id="41" cat="24230" x="1069.8139" y="720.0000" heading="240.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="42" tconn="1"/>
      <joint conn="1" target="40" tconn="1"/>
    </piece>
    <piece id="42" cat="24230" x="1229.9500" y="880.1361" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="43" tconn="1"/>
      <joint conn="1" target="41" tconn="0"/>
    </piece>
    <piece id="43" cat="24230" x="1448.7000" y="938.7500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="44" tconn="0"/>
      <joint conn="1" target="42" tconn="0"/>
    </piece>
    <piece id="44" cat="24229" x="1448.7000" y="938.7500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="43" tconn="0"/>
      <joint conn="1" target="45" tconn="0"/>
    </piece>
    <piece id="45" cat="24094" x="1678.0000" y="938.7500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="44" tconn="1"/>
      <joint conn="1" target="46" tconn="0"/>
    </piece>
    <piece id="46" cat="24071" x="1772.2000" y="938.7500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="45" tconn="1"/>
      <joint conn="1" target="47" tconn="0"/>
    </piece>
    <piece id="47" cat="24071" x="1843.0000" y="938.7500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="46" tconn="1"/>
      <joint conn="1" target="48" tconn="0"/>
    </piece>
    <piece id="48" cat="24130" x="1913.8000" y="938.7500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="47" tconn="1"/>
      <joint conn="1" target="49" tconn="0"/>
    </piece>
    <piece id="49" cat="24130" x="2093.8000" y="986.9809" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="48" tconn="1"/>
      <joint conn="1" target="50" tconn="0"/>
    </piece>
    <piece id="50" cat="24130" x="2225.5691" y="1118.7500" heading="60.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="49" tconn="1"/>
      <joint conn="1" target="51" tconn="0"/>
    </piece>
    <piece id="51" cat="24130" x="2273.8000" y="1298.7500" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="50" tconn="1"/>
      <joint conn="1" target="52" tconn="0"/>
    </piece>
    <piece id="52" cat="24130" x="2225.5691" y="1478.7500" heading="120.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="51" tconn="1"/>
      <joint conn="1" target="53" tconn="0"/>
    </piece>
    <piece id="53" cat="24130" x="2093.8000" y="1610.5191" heading="150.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="52" tconn="1"/>
      <joint conn="1" target="54" tconn="0"/>
    </piece>
    <piece id="54" cat="24236" x="1913.8000" y="1658.7500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="53" tconn="1"/>
      <joint conn="1" target="55" tconn="0"/>
    </piece>
    <piece id="55" cat="24612" x="1677.7000" y="1658.7500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="54" tconn="1"/>
      <joint conn="1" target="56" tconn="0"/>
      <joint conn="2" target="62" tconn="1"/>
    </piece>
    <piece id="56" cat="24360" x="1489.4000" y="1658.7500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="55" tconn="1"/>
      <joint conn="1" target="57" tconn="0"/>
    </piece>
    <piece id="57" cat="24071" x="1129.4000" y="1658.7500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="56" tconn="1"/>
      <joint conn="1" target="58" tconn="0"/>
    </piece>
    <piece id="58" cat="24071" x="1058.6000" y="1658.7500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="57" tconn="1"/>
      <joint conn="1" target="59" tconn="0"/>
    </piece>
    <piece id="59" cat="24071" x="987.8000" y="1658.7500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="58" tconn="1"/>
      <joint conn="1" target="60" tconn="0"/>
    </piece>
    <piece id="60" cat="24071" x="917.0000" y="1658.7500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="59" tconn="1"/>
      <joint conn="1" target="61" tconn="1"/>
    </piece>
    <piece id="61" cat="24611" x="657.9000" y="1658.7500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="66" tconn="0"/>
      <joint conn="1" target="60" tconn="1"/>
      <joint conn="2" target="63" tconn="0"/>
    </piece>
    <piece id="62" cat="24224" x="1317.6225" y="1581.2289" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="65" tconn="0"/>
      <joint conn="1" target="55" tconn="2"/>
    </piece>
    <piece id="63" cat="24224" x="837.9400" y="1619.9900" heading="335.7000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="61" tconn="2"/>
      <joint conn="1" target="64" tconn="1"/>
    </piece>
    <piece id="64" cat="24071" x="1088.7775" y="1581.2289" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="65" tconn="1"/>
      <joint conn="1" target="63" tconn="1"/>
    </piece>
    <piece id="65" cat="24229" x="1318.0775" y="1581.2289" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="62" tconn="0"/>
      <joint conn="1" target="64" tconn="0"/>
    </piece>
    <piece id="66" cat="24172" x="657.9000" y="1658.7500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="61" tconn="0"/>
      <joint conn="1" target="67" tconn="0"/>
    </piece>
    <piece id="67" cat="24130" x="486.2000" y="1658.7500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="66" tconn="1"/>
      <joint conn="1" target="68" tconn="0"/>
    </piece>
    <piece id="68" cat="24130" x="306.2000" y="1610.5191" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="67" tconn="1"/>
      <joint conn="1" target="69" tconn="0"/>
    </piece>
    <piece id="69" cat="24130" x="174.4309" y="1478.7500" heading="240.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="68" tconn="1"/>
      <joint conn="1" target="70" tconn="0"/>
    </piece>
    <piece id="70" cat="24360" x="126.2000" y="1298.7500" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="69" tconn="1"/>
      <joint conn="1" target="71" tconn="0"/>
    </piece>
    <piece id="71" cat="24360" x="126.2000" y="938.7500" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="70" tconn="1"/>
      <joint conn="1" target="72" tconn="0"/>
    </piece>
    <piece id="72" cat="24077" x="126.2000" y="578.7500" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="71" tconn="1"/>
      <joint conn="1" target="73" tconn="0"/>
    </piece>
    <piece id="73" cat="24130" x="126.2000" y="501.2500" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="72" tconn="1"/>
      <joint conn="1" target="74" tconn="0"/>
    </piece>
    <piece id="74" cat="24130" x="174.4309" y="321.2500" heading="300.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="73" tconn="1"/>
      <joint conn="1" target="75" tconn="0"/>
    </piece>
    <piece id="75" cat="24130" x="306.2000" y="189.4809" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="74" tconn="1"/>
      <joint conn="1" target="36" tconn="0"/>
    </piece>
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

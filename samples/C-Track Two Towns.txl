<?xml version="1.0" encoding="UTF-8"?>
<layout name="C-Track Two Towns" version="1" units="0">
  <pieces>
    <piece id="4" cat="24612" x="0.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="29" tconn="1"/>
      <joint conn="1" target="5" tconn="0"/>
      <joint conn="2" target="30" tconn="1"/>
    </piece>
    <piece id="5" cat="24172" x="188.3000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="4" tconn="1"/>
      <joint conn="1" target="6" tconn="0"/>
    </piece>
    <piece id="6" cat="24188" x="360.0000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="5" tconn="1"/>
      <joint conn="1" target="7" tconn="0"/>
    </piece>
    <piece id="7" cat="24188" x="548.3000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="6" tconn="1"/>
      <joint conn="1" target="8" tconn="0"/>
    </piece>
    <piece id="8" cat="24188" x="736.6000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="7" tconn="1"/>
      <joint conn="1" target="9" tconn="0"/>
    </piece>
    <piece id="9" cat="24172" x="924.9000" y="0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="8" tconn="1"/>
      <joint conn="1" target="10" tconn="1"/>
    </piece>
    <piece id="10" cat="24611" x="1284.9000" y="-0.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="11" tconn="0"/>
      <joint conn="1" target="9" tconn="1"/>
      <joint conn="2" target="34" tconn="0"/>
    </piece>
    <piece id="11" cat="24230" x="1284.9000" y="-0.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="0"/>
      <joint conn="1" target="12" tconn="0"/>
    </piece>
    <piece id="12" cat="24230" x="1503.6500" y="58.6139" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="11" tconn="1"/>
      <joint conn="1" target="13" tconn="0"/>
    </piece>
    <piece id="13" cat="24230" x="1663.7861" y="218.7500" heading="60.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="12" tconn="1"/>
      <joint conn="1" target="14" tconn="0"/>
    </piece>
    <piece id="14" cat="24230" x="1722.4000" y="437.5000" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="13" tconn="1"/>
      <joint conn="1" target="15" tconn="0"/>
    </piece>
    <piece id="15" cat="24230" x="1663.7861" y="656.2500" heading="120.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="14" tconn="1"/>
      <joint conn="1" target="16" tconn="0"/>
    </piece>
    <piece id="16" cat="24230" x="1503.6500" y="816.3861" heading="150.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="15" tconn="1"/>
      <joint conn="1" target="17" tconn="0"/>
    </piece>
    <piece id="17" cat="24172" x="1284.9000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="16" tconn="1"/>
      <joint conn="1" target="18" tconn="0"/>
    </piece>
    <piece id="18" cat="24188" x="1113.2000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="17" tconn="1"/>
      <joint conn="1" target="19" tconn="0"/>
    </piece>
    <piece id="19" cat="24188" x="924.9000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="18" tconn="1"/>
      <joint conn="1" target="20" tconn="0"/>
    </piece>
    <piece id="20" cat="24188" x="736.6000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="19" tconn="1"/>
      <joint conn="1" target="21" tconn="0"/>
    </piece>
    <piece id="21" cat="24188" x="548.3000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="20" tconn="1"/>
      <joint conn="1" target="22" tconn="0"/>
    </piece>
    <piece id="22" cat="24188" x="360.0000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="21" tconn="1"/>
      <joint conn="1" target="23" tconn="0"/>
    </piece>
    <piece id="23" cat="24172" x="171.7000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="22" tconn="1"/>
      <joint conn="1" target="24" tconn="0"/>
    </piece>
    <piece id="24" cat="24230" x="-0.0000" y="875.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="23" tconn="1"/>
      <joint conn="1" target="25" tconn="0"/>
    </piece>
    <piece id="25" cat="24230" x="-218.7500" y="816.3861" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="24" tconn="1"/>
      <joint conn="1" target="26" tconn="0"/>
    </piece>
    <piece id="26" cat="24230" x="-378.8861" y="656.2500" heading="240.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="25" tconn="1"/>
      <joint conn="1" target="27" tconn="0"/>
    </piece>
    <piece id="27" cat="24230" x="-437.5000" y="437.5000" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="26" tconn="1"/>
      <joint conn="1" target="28" tconn="0"/>
    </piece>
    <piece id="28" cat="24230" x="-378.8861" y="218.7500" heading="300.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="27" tconn="1"/>
      <joint conn="1" target="29" tconn="0"/>
    </piece>
    <piece id="29" cat="24230" x="-218.7500" y="58.6139" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="28" tconn="1"/>
      <joint conn="1" target="4" tconn="0"/>
    </piece>
    <piece id="30" cat="24224" x="360.0775" y="77.5211" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="31" tconn="0"/>
      <joint conn="1" target="4" tconn="2"/>
    </piece>
    <piece id="31" cat="24188" x="360.0775" y="77.5211" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="30" tconn="0"/>
      <joint conn="1" target="32" tconn="0"/>
    </piece>
    <piece id="32" cat="24612" x="548.3775" y="77.5211" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="31" tconn="1"/>
      <joint conn="1" target="33" tconn="0"/>
      <joint conn="2" target="35" tconn="0"/>
    </piece>
    <piece id="33" cat="24188" x="736.6775" y="77.5211" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="32" tconn="1"/>
      <joint conn="1" target="34" tconn="1"/>
    </piece>
    <piece id="34" cat="24224" x="1105.0151" y="38.7600" heading="155.7000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="10" tconn="2"/>
      <joint conn="1" target="33" tconn="1"/>
    </piece>
    <piece id="35" cat="24206" x="728.4175" y="116.2811" heading="24.3000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="32" tconn="2"/>
      <joint conn="1" target="36" tconn="0"/>
    </piece>
    <piece id="36" cat="24130" x="767.1300" y="136.1339" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="35" tconn="1"/>
      <joint conn="1" target="37" tconn="0"/>
    </piece>
    <piece id="37" cat="24130" x="898.8991" y="267.9030" heading="60.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="36" tconn="1"/>
      <joint conn="1" target="38" tconn="22"/>
    </piece>
    <piece id="38" cat="74861" x="947.1300" y="586.9030" heading="6.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="1" target="40" tconn="0"/>
      <joint conn="14" target="41" tconn="0"/>
      <joint conn="15" target="42" tconn="0"/>
      <joint conn="16" target="43" tconn="0"/>
      <joint conn="22" target="37" tconn="1"/>
      <joint conn="29" target="39" tconn="0"/>
    </piece>
    <piece id="39" cat="74871" x="1085.3685" y="572.3736" heading="354.0000" z="0.0000" grade="0.0000" free="1" level="1" sel="0">
      <joint conn="0" target="38" tconn="29"/>
      <joint conn="1" target="44" tconn="0"/>
    </piece>
    <piece id="40" cat="74871" x="1079.3269" y="629.8564" heading="18.0000" z="0.0000" grade="0.0000" free="1" level="1" sel="0">
      <joint conn="0" target="38" tconn="1"/>
      <joint conn="1" target="46" tconn="0"/>
    </piece>
    <piece id="41" cat="74871" x="808.8915" y="601.4325" heading="174.0000" z="0.0000" grade="0.0000" free="1" level="1" sel="0">
      <joint conn="0" target="38" tconn="14"/>
      <joint conn="1" target="48" tconn="0"/>
    </piece>
    <piece id="42" cat="74871" x="808.8915" y="572.3736" heading="186.0000" z="0.0000" grade="0.0000" free="1" level="1" sel="0">
      <joint conn="0" target="38" tconn="15"/>
      <joint conn="1" target="51" tconn="0"/>
    </piece>
    <piece id="43" cat="74871" x="814.9331" y="543.9497" heading="198.0000" z="0.0000" grade="0.0000" free="1" level="1" sel="0">
      <joint conn="0" target="38" tconn="16"/>
      <joint conn="1" target="54" tconn="0"/>
    </piece>
    <piece id="44" cat="24188" x="1142.5536" y="566.3632" heading="354.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="39" tconn="1"/>
      <joint conn="1" target="45" tconn="0"/>
    </piece>
    <piece id="45" cat="24977" x="1329.8220" y="546.6805" heading="354.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="44" tconn="1"/>
    </piece>
    <piece id="46" cat="24188" x="1134.0126" y="647.6249" heading="18.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="40" tconn="1"/>
      <joint conn="1" target="47" tconn="0"/>
    </piece>
    <piece id="47" cat="24977" x="1313.0965" y="705.8128" heading="18.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="46" tconn="1"/>
    </piece>
    <piece id="48" cat="24188" x="751.7064" y="607.4429" heading="174.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="41" tconn="1"/>
      <joint conn="1" target="49" tconn="0"/>
    </piece>
    <piece id="49" cat="24188" x="564.4380" y="627.1256" heading="174.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="48" tconn="1"/>
      <joint conn="1" target="50" tconn="0"/>
    </piece>
    <piece id="50" cat="24977" x="377.1695" y="646.8083" heading="174.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="49" tconn="1"/>
    </piece>
    <piece id="51" cat="24188" x="751.7064" y="566.3632" heading="186.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="42" tconn="1"/>
      <joint conn="1" target="52" tconn="0"/>
    </piece>
    <piece id="52" cat="24188" x="564.4380" y="546.6805" heading="186.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="51" tconn="1"/>
      <joint conn="1" target="53" tconn="0"/>
    </piece>
    <piece id="53" cat="24977" x="377.1695" y="526.9978" heading="186.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="52" tconn="1"/>
    </piece>
    <piece id="54" cat="24188" x="760.2474" y="526.1812" heading="198.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="43" tconn="1"/>
      <joint conn="1" target="55" tconn="0"/>
    </piece>
    <piece id="55" cat="24188" x="581.1635" y="467.9933" heading="198.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="54" tconn="1"/>
      <joint conn="1" target="56" tconn="0"/>
    </piece>
    <piece id="56" cat="24977" x="402.0795" y="409.8054" heading="198.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="55" tconn="1"/>
    </piece>
    <piece id="58" cat="24188" x="0.0000" y="-77.5000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="83" tconn="1"/>
      <joint conn="1" target="59" tconn="0"/>
    </piece>
    <piece id="59" cat="24172" x="188.3000" y="-77.5000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="58" tconn="1"/>
      <joint conn="1" target="60" tconn="0"/>
    </piece>
    <piece id="60" cat="24188" x="360.0000" y="-77.5000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="59" tconn="1"/>
      <joint conn="1" target="61" tconn="0"/>
    </piece>
    <piece id="61" cat="24188" x="548.3000" y="-77.5000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="60" tconn="1"/>
      <joint conn="1" target="62" tconn="0"/>
    </piece>
    <piece id="62" cat="24188" x="736.6000" y="-77.5000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="61" tconn="1"/>
      <joint conn="1" target="63" tconn="0"/>
    </piece>
    <piece id="63" cat="24172" x="924.9000" y="-77.5000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="62" tconn="1"/>
      <joint conn="1" target="64" tconn="0"/>
    </piece>
    <piece id="64" cat="24188" x="1096.6000" y="-77.5000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="63" tconn="1"/>
      <joint conn="1" target="65" tconn="0"/>
    </piece>
    <piece id="65" cat="24330" x="1284.9000" y="-77.5000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="64" tconn="1"/>
      <joint conn="1" target="66" tconn="0"/>
    </piece>
    <piece id="66" cat="24330" x="1542.4000" y="-8.5031" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="65" tconn="1"/>
      <joint conn="1" target="67" tconn="0"/>
    </piece>
    <piece id="67" cat="24330" x="1730.9031" y="180.0000" heading="60.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="66" tconn="1"/>
      <joint conn="1" target="68" tconn="0"/>
    </piece>
    <piece id="68" cat="24330" x="1799.9000" y="437.5000" heading="90.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="67" tconn="1"/>
      <joint conn="1" target="69" tconn="0"/>
    </piece>
    <piece id="69" cat="24330" x="1730.9031" y="695.0000" heading="120.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="68" tconn="1"/>
      <joint conn="1" target="70" tconn="0"/>
    </piece>
    <piece id="70" cat="24330" x="1542.4000" y="883.5031" heading="150.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="69" tconn="1"/>
      <joint conn="1" target="71" tconn="0"/>
    </piece>
    <piece id="71" cat="24172" x="1284.9000" y="952.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="70" tconn="1"/>
      <joint conn="1" target="72" tconn="0"/>
    </piece>
    <piece id="72" cat="24188" x="1113.2000" y="952.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="71" tconn="1"/>
      <joint conn="1" target="73" tconn="0"/>
    </piece>
    <piece id="73" cat="24188" x="924.9000" y="952.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="72" tconn="1"/>
      <joint conn="1" target="74" tconn="0"/>
    </piece>
    <piece id="74" cat="24188" x="736.6000" y="952.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="73" tconn="1"/>
      <joint conn="1" target="75" tconn="0"/>
    </piece>
    <piece id="75" cat="24188" x="548.3000" y="952.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="74" tconn="1"/>
      <joint conn="1" target="76" tconn="0"/>
    </piece>
    <piece id="76" cat="24188" x="360.0000" y="952.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="75" tconn="1"/>
      <joint conn="1" target="77" tconn="0"/>
    </piece>
    <piece id="77" cat="24172" x="171.7000" y="952.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="76" tconn="1"/>
      <joint conn="1" target="78" tconn="0"/>
    </piece>
    <piece id="78" cat="24330" x="0.0000" y="952.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="77" tconn="1"/>
      <joint conn="1" target="79" tconn="0"/>
    </piece>
    <piece id="79" cat="24330" x="-257.5000" y="883.5031" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="78" tconn="1"/>
      <joint conn="1" target="80" tconn="0"/>
    </piece>
    <piece id="80" cat="24330" x="-446.0031" y="695.0000" heading="240.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="79" tconn="1"/>
      <joint conn="1" target="81" tconn="0"/>
    </piece>
    <piece id="81" cat="24330" x="-515.0000" y="437.5000" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="80" tconn="1"/>
      <joint conn="1" target="82" tconn="0"/>
    </piece>
    <piece id="82" cat="24330" x="-446.0031" y="180.0000" heading="300.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="81" tconn="1"/>
      <joint conn="1" target="83" tconn="0"/>
    </piece>
    <piece id="83" cat="24330" x="-257.5000" y="-8.5031" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="82" tconn="1"/>
      <joint conn="1" target="58" tconn="0"/>
    </piece>
    <piece id="129" cat="24630" x="-200.0000" y="250.0000" heading="90.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="142" tconn="0"/>
      <joint conn="1" target="130" tconn="0"/>
      <joint conn="2" target="134" tconn="1"/>
      <joint conn="3" target="138" tconn="0"/>
    </piece>
    <piece id="130" cat="24172" x="-200.0000" y="438.3000" heading="90.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="129" tconn="1"/>
      <joint conn="1" target="131" tconn="0"/>
    </piece>
    <piece id="131" cat="24188" x="-200.0000" y="610.0000" heading="90.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="130" tconn="1"/>
      <joint conn="1" target="132" tconn="0"/>
    </piece>
    <piece id="132" cat="24188" x="-200.0000" y="798.3000" heading="90.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="131" tconn="1"/>
      <joint conn="1" target="133" tconn="0"/>
    </piece>
    <piece id="133" cat="24977" x="-200.0000" y="986.6000" heading="90.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="132" tconn="1"/>
    </piece>
    <piece id="134" cat="24224" x="-277.5211" y="610.0775" heading="270.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="135" tconn="0"/>
      <joint conn="1" target="129" tconn="2"/>
    </piece>
    <piece id="135" cat="24188" x="-277.5211" y="610.0775" heading="90.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="134" tconn="0"/>
      <joint conn="1" target="136" tconn="0"/>
    </piece>
    <piece id="136" cat="24188" x="-277.5211" y="798.3775" heading="90.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="135" tconn="1"/>
      <joint conn="1" target="137" tconn="0"/>
    </piece>
    <piece id="137" cat="24977" x="-277.5211" y="986.6775" heading="90.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="136" tconn="1"/>
    </piece>
    <piece id="138" cat="24224" x="-161.2400" y="430.0400" heading="65.7000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="129" tconn="3"/>
      <joint conn="1" target="139" tconn="0"/>
    </piece>
    <piece id="139" cat="24188" x="-122.4789" y="610.0775" heading="90.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="138" tconn="1"/>
      <joint conn="1" target="140" tconn="0"/>
    </piece>
    <piece id="140" cat="24188" x="-122.4789" y="798.3775" heading="90.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="139" tconn="1"/>
      <joint conn="1" target="141" tconn="0"/>
    </piece>
    <piece id="141" cat="24977" x="-122.4789" y="986.6775" heading="90.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="140" tconn="1"/>
    </piece>
    <piece id="142" cat="24188" x="-200.0000" y="250.0000" heading="270.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="129" tconn="0"/>
      <joint conn="1" target="143" tconn="0"/>
    </piece>
    <piece id="143" cat="24172" x="-200.0000" y="61.7000" heading="270.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="142" tconn="1"/>
      <joint conn="1" target="144" tconn="0"/>
    </piece>
    <piece id="144" cat="24130" x="-200.0000" y="-110.0000" heading="270.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="143" tconn="1"/>
      <joint conn="1" target="145" tconn="0"/>
    </piece>
    <piece id="145" cat="24130" x="-151.7691" y="-290.0000" heading="300.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="144" tconn="1"/>
      <joint conn="1" target="146" tconn="0"/>
    </piece>
    <piece id="146" cat="24130" x="-20.0000" y="-421.7691" heading="330.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="145" tconn="1"/>
      <joint conn="1" target="147" tconn="0"/>
    </piece>
    <piece id="147" cat="24188" x="160.0000" y="-470.0000" heading="0.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="146" tconn="1"/>
      <joint conn="1" target="148" tconn="0"/>
    </piece>
    <piece id="148" cat="74620" x="348.3000" y="-470.0000" heading="0.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="147" tconn="1"/>
      <joint conn="1" target="149" tconn="0"/>
    </piece>
    <piece id="149" cat="74620" x="536.6000" y="-470.0000" heading="0.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="148" tconn="1"/>
      <joint conn="1" target="150" tconn="0"/>
    </piece>
    <piece id="150" cat="24188" x="724.9000" y="-470.0000" heading="0.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="149" tconn="1"/>
      <joint conn="1" target="151" tconn="0"/>
    </piece>
    <piece id="151" cat="24188" x="913.2000" y="-470.0000" heading="0.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="150" tconn="1"/>
      <joint conn="1" target="152" tconn="0"/>
    </piece>
    <piece id="152" cat="24188" x="1101.5000" y="-470.0000" heading="0.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="151" tconn="1"/>
      <joint conn="1" target="153" tconn="0"/>
    </piece>
    <piece id="153" cat="24977" x="1289.8000" y="-470.0000" heading="0.0000" z="150.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="152" tconn="1"/>
    </piece>
  </pieces>
  <scenery>
    <sceneryitem id="57" item="72886" x="427.3929" y="532.2765" heading="96.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="84" item="stn.medium" x="650.0000" y="-215.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="85" item="plat.side" x="470.0000" y="-122.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="86" item="plat.side" x="650.0000" y="-122.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="87" item="plat.side" x="830.0000" y="-122.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="88" item="goods.shed" x="1010.0000" y="210.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="89" item="water.tower" x="700.0000" y="330.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="90" item="coal.stage" x="1180.0000" y="330.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="91" item="box.ground" x="1180.0000" y="-160.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="92" item="sig.light.home" x="60.0000" y="-120.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="93" item="sig.light.home" x="1330.0000" y="40.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="94" item="road.minor" x="130.0000" y="-345.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="95" item="road.minor" x="380.0000" y="-345.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="96" item="road.minor" x="630.0000" y="-345.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="97" item="road.minor" x="880.0000" y="-345.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="98" item="road.minor" x="1130.0000" y="-345.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="99" item="house.detached" x="140.0000" y="250.0000" heading="10.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="100" item="church.village" x="300.0000" y="240.0000" heading="15.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="101" item="house.timber" x="460.0000" y="225.0000" heading="350.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="102" item="house.two" x="1380.0000" y="-260.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="103" item="farm.barn" x="1560.0000" y="-240.0000" heading="15.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="104" item="farm.house" x="1720.0000" y="-270.0000" heading="350.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="105" item="tree.broad.m" x="90.0000" y="390.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="106" item="tree.fir.l" x="120.0000" y="500.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="107" item="tree.broad.s" x="1320.0000" y="-350.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="108" item="tree.broad.l" x="1480.0000" y="-340.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="109" item="tree.fir.m" x="1650.0000" y="-350.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="110" item="tree.broad.m" x="1800.0000" y="-220.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="111" item="tree.fir.l" x="1840.0000" y="-350.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="112" item="tree.broad.s" x="1260.0000" y="760.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="113" item="tree.broad.l" x="1340.0000" y="740.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="114" item="tree.fir.m" x="1100.0000" y="770.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="115" item="tree.broad.m" x="1840.0000" y="60.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="116" item="tree.fir.l" x="1860.0000" y="420.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="117" item="tree.broad.s" x="1850.0000" y="760.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="118" item="tree.broad.l" x="1820.0000" y="1000.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="119" item="tree.fir.m" x="1650.0000" y="1030.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="120" item="tree.broad.m" x="300.0000" y="1030.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="121" item="tree.fir.l" x="620.0000" y="1030.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="122" item="tree.broad.s" x="940.0000" y="1035.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="123" item="tree.broad.l" x="1240.0000" y="1030.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="124" item="tree.fir.m" x="1840.0000" y="-560.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="125" item="tree.broad.m" x="1700.0000" y="-620.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="126" item="tree.fir.l" x="1590.0000" y="-540.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="0"/>
    <sceneryitem id="154" item="stn.small" x="-340.0000" y="880.0000" heading="90.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="155" item="shed.loco1" x="-420.0000" y="330.0000" heading="90.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="156" item="church.chapel" x="-480.0000" y="560.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="157" item="house.timber" x="-570.0000" y="680.0000" heading="10.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="158" item="house.two" x="-560.0000" y="420.0000" heading="350.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="159" item="castle.ruin" x="60.0000" y="-590.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="160" item="inn" x="1050.0000" y="-640.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="161" item="tree.broad.m" x="-620.0000" y="-600.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="162" item="tree.fir.l" x="-540.0000" y="-520.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="163" item="tree.broad.s" x="-600.0000" y="-420.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="164" item="tree.broad.l" x="-500.0000" y="-300.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="165" item="tree.fir.m" x="-600.0000" y="-160.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="166" item="tree.broad.m" x="-420.0000" y="-640.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="167" item="tree.fir.l" x="-620.0000" y="60.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="168" item="tree.broad.s" x="-560.0000" y="220.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="169" item="tree.broad.l" x="-620.0000" y="860.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="170" item="tree.fir.m" x="-540.0000" y="1000.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="171" item="tree.broad.m" x="-440.0000" y="1010.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="172" item="tree.fir.l" x="-80.0000" y="980.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="173" item="tree.broad.s" x="420.0000" y="-660.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="174" item="tree.broad.l" x="800.0000" y="-660.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="175" item="tree.fir.m" x="1250.0000" y="-650.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="176" item="tree.broad.m" x="1420.0000" y="-500.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="177" item="tree.fir.l" x="1440.0000" y="-640.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="179" item="tun.double" x="10.0000" y="-39.0000" heading="90.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="180" item="tun.double" x="10.0000" y="914.0000" heading="90.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
  </scenery>
  <levels active="1">
    <level id="1" name="Valley" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
    <level id="2" name="Hochfels" visible="1" height="150.0000" trackcolor="1" r="186" g="142" b="96">
      <pt x="-680.0000" y="-700.0000"/>
      <pt x="1500.0000" y="-700.0000"/>
      <pt x="1500.0000" y="-440.0000"/>
      <pt x="260.0000" y="-420.0000"/>
      <pt x="20.0000" y="-250.0000"/>
      <pt x="-20.0000" y="200.0000"/>
      <pt x="-20.0000" y="1060.0000"/>
      <pt x="-680.0000" y="1060.0000"/>
    </level>
  </levels>
  <baseboard>
    <vertex x="-700.0000" y="-720.0000"/>
    <vertex x="1920.0000" y="-720.0000"/>
    <vertex x="1920.0000" y="1080.0000"/>
    <vertex x="-700.0000" y="1080.0000"/>
  </baseboard>
  <lastshape id="0" w_mm="2620.0000" h_mm="1800.0000" w2_mm="0.0000" h2_mm="0.0000"/>
  <labels>
    <label id="127" x="650.0000" y="-290.0000" text="Lindenau"/>
    <label id="128" x="1010.0000" y="745.0000" text="Engine yard"/>
    <label id="178" x="-200.0000" y="1010.0000" text="Hochfels"/>
  </labels>
  <shapes>
    <shape id="1" r="168" g="200" b="132" a="140" outline="0" level="1" height="0.0000" label="">
      <v x="60.0000" y="190.0000"/>
      <v x="480.0000" y="150.0000"/>
      <v x="560.0000" y="230.0000"/>
      <v x="500.0000" y="310.0000"/>
      <v x="230.0000" y="330.0000"/>
      <v x="60.0000" y="310.0000"/>
    </shape>
    <shape id="2" r="168" g="200" b="132" a="140" outline="0" level="1" height="0.0000" label="">
      <v x="1240.0000" y="-390.0000"/>
      <v x="1890.0000" y="-420.0000"/>
      <v x="1890.0000" y="-180.0000"/>
      <v x="1650.0000" y="-150.0000"/>
      <v x="1300.0000" y="-180.0000"/>
    </shape>
    <shape id="3" r="206" g="196" b="178" a="140" outline="0" level="1" height="0.0000" label="">
      <v x="700.0000" y="560.0000"/>
      <v x="1250.0000" y="380.0000"/>
      <v x="1400.0000" y="470.0000"/>
      <v x="1400.0000" y="690.0000"/>
      <v x="1000.0000" y="790.0000"/>
      <v x="250.0000" y="760.0000"/>
      <v x="230.0000" y="470.0000"/>
    </shape>
  </shapes>
  <tunnels>
    <tunnel id="181" portalA="179" portalB="180" anchorA="24" anchorB="83">
      <covers piece="24"/>
      <covers piece="25"/>
      <covers piece="26"/>
      <covers piece="27"/>
      <covers piece="28"/>
      <covers piece="29"/>
      <covers piece="78"/>
      <covers piece="79"/>
      <covers piece="80"/>
      <covers piece="81"/>
      <covers piece="82"/>
      <covers piece="83"/>
    </tunnel>
  </tunnels>
</layout>

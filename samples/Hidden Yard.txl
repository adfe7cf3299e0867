<?xml version="1.0" encoding="UTF-8"?>
<layout name="Hidden Yard" version="1" units="0">
  <pieces>
    <piece id="5" cat="24230" x="0.0000" y="-437.5000" heading="0.0000" z="0.0000" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="65" tconn="0"/>
      <joint conn="1" target="6" tconn="0"/>
    </piece>
    <piece id="6" cat="24230" x="218.7500" y="-378.8861" heading="30.0000" z="7.3333" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="5" tconn="1"/>
      <joint conn="1" target="7" tconn="0"/>
    </piece>
    <piece id="7" cat="24230" x="378.8861" y="-218.7500" heading="60.0000" z="14.6667" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="6" tconn="1"/>
      <joint conn="1" target="8" tconn="0"/>
    </piece>
    <piece id="8" cat="24230" x="437.5000" y="-0.0000" heading="90.0000" z="22.0000" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="7" tconn="1"/>
      <joint conn="1" target="9" tconn="0"/>
    </piece>
    <piece id="9" cat="24230" x="378.8861" y="218.7500" heading="120.0000" z="29.3333" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="8" tconn="1"/>
      <joint conn="1" target="10" tconn="0"/>
    </piece>
    <piece id="10" cat="24230" x="218.7500" y="378.8861" heading="150.0000" z="36.6667" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="9" tconn="1"/>
      <joint conn="1" target="11" tconn="0"/>
    </piece>
    <piece id="11" cat="24230" x="0.0000" y="437.5000" heading="180.0000" z="44.0000" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="10" tconn="1"/>
      <joint conn="1" target="12" tconn="0"/>
    </piece>
    <piece id="12" cat="24230" x="-218.7500" y="378.8861" heading="210.0000" z="51.3333" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="11" tconn="1"/>
      <joint conn="1" target="13" tconn="0"/>
    </piece>
    <piece id="13" cat="24230" x="-378.8861" y="218.7500" heading="240.0000" z="58.6667" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="12" tconn="1"/>
      <joint conn="1" target="14" tconn="0"/>
    </piece>
    <piece id="14" cat="24230" x="-437.5000" y="0.0000" heading="270.0000" z="66.0000" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="13" tconn="1"/>
      <joint conn="1" target="15" tconn="0"/>
    </piece>
    <piece id="15" cat="24230" x="-378.8861" y="-218.7500" heading="300.0000" z="73.3333" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="14" tconn="1"/>
      <joint conn="1" target="16" tconn="0"/>
    </piece>
    <piece id="16" cat="24230" x="-218.7500" y="-378.8861" heading="330.0000" z="80.6667" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="15" tconn="1"/>
      <joint conn="1" target="17" tconn="0"/>
    </piece>
    <piece id="17" cat="24230" x="-0.0000" y="-437.5000" heading="0.0000" z="88.0000" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="16" tconn="1"/>
      <joint conn="1" target="18" tconn="0"/>
    </piece>
    <piece id="18" cat="24230" x="218.7500" y="-378.8861" heading="30.0000" z="95.3333" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="17" tconn="1"/>
      <joint conn="1" target="19" tconn="0"/>
    </piece>
    <piece id="19" cat="24230" x="378.8861" y="-218.7500" heading="60.0000" z="102.6667" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="18" tconn="1"/>
      <joint conn="1" target="20" tconn="0"/>
    </piece>
    <piece id="20" cat="24230" x="437.5000" y="-0.0000" heading="90.0000" z="110.0000" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="19" tconn="1"/>
      <joint conn="1" target="21" tconn="0"/>
    </piece>
    <piece id="21" cat="24230" x="378.8861" y="218.7500" heading="120.0000" z="117.3333" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="20" tconn="1"/>
      <joint conn="1" target="22" tconn="0"/>
    </piece>
    <piece id="22" cat="24230" x="218.7500" y="378.8861" heading="150.0000" z="124.6667" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="21" tconn="1"/>
      <joint conn="1" target="23" tconn="0"/>
    </piece>
    <piece id="23" cat="24230" x="0.0000" y="437.5000" heading="180.0000" z="132.0000" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="22" tconn="1"/>
      <joint conn="1" target="24" tconn="0"/>
    </piece>
    <piece id="24" cat="24230" x="-218.7500" y="378.8861" heading="210.0000" z="139.3333" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="23" tconn="1"/>
      <joint conn="1" target="25" tconn="0"/>
    </piece>
    <piece id="25" cat="24230" x="-378.8861" y="218.7500" heading="240.0000" z="146.6667" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="24" tconn="1"/>
      <joint conn="1" target="26" tconn="0"/>
    </piece>
    <piece id="26" cat="24230" x="-437.5000" y="0.0000" heading="270.0000" z="154.0000" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="25" tconn="1"/>
      <joint conn="1" target="27" tconn="0"/>
    </piece>
    <piece id="27" cat="24230" x="-378.8861" y="-218.7500" heading="300.0000" z="161.3333" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="26" tconn="1"/>
      <joint conn="1" target="28" tconn="0"/>
    </piece>
    <piece id="28" cat="24230" x="-218.7500" y="-378.8861" heading="330.0000" z="168.6667" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="27" tconn="1"/>
      <joint conn="1" target="29" tconn="0"/>
    </piece>
    <piece id="29" cat="24230" x="-0.0000" y="-437.5000" heading="0.0000" z="176.0000" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="28" tconn="1"/>
      <joint conn="1" target="30" tconn="0"/>
    </piece>
    <piece id="30" cat="24230" x="218.7500" y="-378.8861" heading="30.0000" z="183.3333" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="29" tconn="1"/>
      <joint conn="1" target="31" tconn="0"/>
    </piece>
    <piece id="31" cat="24230" x="378.8861" y="-218.7500" heading="60.0000" z="190.6667" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="30" tconn="1"/>
      <joint conn="1" target="32" tconn="0"/>
    </piece>
    <piece id="32" cat="24230" x="437.5000" y="-0.0000" heading="90.0000" z="198.0000" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="31" tconn="1"/>
      <joint conn="1" target="33" tconn="0"/>
    </piece>
    <piece id="33" cat="24230" x="378.8861" y="218.7500" heading="120.0000" z="205.3333" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="32" tconn="1"/>
      <joint conn="1" target="34" tconn="0"/>
    </piece>
    <piece id="34" cat="24230" x="218.7500" y="378.8861" heading="150.0000" z="212.6667" grade="1.8345" level="1" helix="4" sel="0">
      <joint conn="0" target="33" tconn="1"/>
      <joint conn="1" target="115" tconn="0"/>
    </piece>
    <piece id="35" cat="24330" x="0.0000" y="-515.0000" heading="0.0000" z="0.0000" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="83" tconn="0"/>
      <joint conn="1" target="36" tconn="0"/>
    </piece>
    <piece id="36" cat="24330" x="257.5000" y="-446.0031" heading="30.0000" z="7.3333" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="35" tconn="1"/>
      <joint conn="1" target="37" tconn="0"/>
    </piece>
    <piece id="37" cat="24330" x="446.0031" y="-257.5000" heading="60.0000" z="14.6667" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="36" tconn="1"/>
      <joint conn="1" target="38" tconn="0"/>
    </piece>
    <piece id="38" cat="24330" x="515.0000" y="-0.0000" heading="90.0000" z="22.0000" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="37" tconn="1"/>
      <joint conn="1" target="39" tconn="0"/>
    </piece>
    <piece id="39" cat="24330" x="446.0031" y="257.5000" heading="120.0000" z="29.3333" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="38" tconn="1"/>
      <joint conn="1" target="40" tconn="0"/>
    </piece>
    <piece id="40" cat="24330" x="257.5000" y="446.0031" heading="150.0000" z="36.6667" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="39" tconn="1"/>
      <joint conn="1" target="41" tconn="0"/>
    </piece>
    <piece id="41" cat="24330" x="0.0000" y="515.0000" heading="180.0000" z="44.0000" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="40" tconn="1"/>
      <joint conn="1" target="42" tconn="0"/>
    </piece>
    <piece id="42" cat="24330" x="-257.5000" y="446.0031" heading="210.0000" z="51.3333" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="41" tconn="1"/>
      <joint conn="1" target="43" tconn="0"/>
    </piece>
    <piece id="43" cat="24330" x="-446.0031" y="257.5000" heading="240.0000" z="58.6667" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="42" tconn="1"/>
      <joint conn="1" target="44" tconn="0"/>
    </piece>
    <piece id="44" cat="24330" x="-515.0000" y="0.0000" heading="270.0000" z="66.0000" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="43" tconn="1"/>
      <joint conn="1" target="45" tconn="0"/>
    </piece>
    <piece id="45" cat="24330" x="-446.0031" y="-257.5000" heading="300.0000" z="73.3333" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="44" tconn="1"/>
      <joint conn="1" target="46" tconn="0"/>
    </piece>
    <piece id="46" cat="24330" x="-257.5000" y="-446.0031" heading="330.0000" z="80.6667" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="45" tconn="1"/>
      <joint conn="1" target="47" tconn="0"/>
    </piece>
    <piece id="47" cat="24330" x="-0.0000" y="-515.0000" heading="0.0000" z="88.0000" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="46" tconn="1"/>
      <joint conn="1" target="48" tconn="0"/>
    </piece>
    <piece id="48" cat="24330" x="257.5000" y="-446.0031" heading="30.0000" z="95.3333" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="47" tconn="1"/>
      <joint conn="1" target="49" tconn="0"/>
    </piece>
    <piece id="49" cat="24330" x="446.0031" y="-257.5000" heading="60.0000" z="102.6667" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="48" tconn="1"/>
      <joint conn="1" target="50" tconn="0"/>
    </piece>
    <piece id="50" cat="24330" x="515.0000" y="-0.0000" heading="90.0000" z="110.0000" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="49" tconn="1"/>
      <joint conn="1" target="51" tconn="0"/>
    </piece>
    <piece id="51" cat="24330" x="446.0031" y="257.5000" heading="120.0000" z="117.3333" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="50" tconn="1"/>
      <joint conn="1" target="52" tconn="0"/>
    </piece>
    <piece id="52" cat="24330" x="257.5000" y="446.0031" heading="150.0000" z="124.6667" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="51" tconn="1"/>
      <joint conn="1" target="53" tconn="0"/>
    </piece>
    <piece id="53" cat="24330" x="0.0000" y="515.0000" heading="180.0000" z="132.0000" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="52" tconn="1"/>
      <joint conn="1" target="54" tconn="0"/>
    </piece>
    <piece id="54" cat="24330" x="-257.5000" y="446.0031" heading="210.0000" z="139.3333" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="53" tconn="1"/>
      <joint conn="1" target="55" tconn="0"/>
    </piece>
    <piece id="55" cat="24330" x="-446.0031" y="257.5000" heading="240.0000" z="146.6667" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="54" tconn="1"/>
      <joint conn="1" target="56" tconn="0"/>
    </piece>
    <piece id="56" cat="24330" x="-515.0000" y="0.0000" heading="270.0000" z="154.0000" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="55" tconn="1"/>
      <joint conn="1" target="57" tconn="0"/>
    </piece>
    <piece id="57" cat="24330" x="-446.0031" y="-257.5000" heading="300.0000" z="161.3333" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="56" tconn="1"/>
      <joint conn="1" target="58" tconn="0"/>
    </piece>
    <piece id="58" cat="24330" x="-257.5000" y="-446.0031" heading="330.0000" z="168.6667" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="57" tconn="1"/>
      <joint conn="1" target="59" tconn="0"/>
    </piece>
    <piece id="59" cat="24330" x="-0.0000" y="-515.0000" heading="0.0000" z="176.0000" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="58" tconn="1"/>
      <joint conn="1" target="60" tconn="0"/>
    </piece>
    <piece id="60" cat="24330" x="257.5000" y="-446.0031" heading="30.0000" z="183.3333" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="59" tconn="1"/>
      <joint conn="1" target="61" tconn="0"/>
    </piece>
    <piece id="61" cat="24330" x="446.0031" y="-257.5000" heading="60.0000" z="190.6667" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="60" tconn="1"/>
      <joint conn="1" target="62" tconn="0"/>
    </piece>
    <piece id="62" cat="24330" x="515.0000" y="-0.0000" heading="90.0000" z="198.0000" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="61" tconn="1"/>
      <joint conn="1" target="63" tconn="0"/>
    </piece>
    <piece id="63" cat="24330" x="446.0031" y="257.5000" heading="120.0000" z="205.3333" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="62" tconn="1"/>
      <joint conn="1" target="64" tconn="0"/>
    </piece>
    <piece id="64" cat="24330" x="257.5000" y="446.0031" heading="150.0000" z="212.6667" grade="1.5584" level="1" helix="4" sel="0">
      <joint conn="0" target="63" tconn="1"/>
      <joint conn="1" target="133" tconn="0"/>
    </piece>
    <piece id="65" cat="24188" x="0.0000" y="-437.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="5" tconn="0"/>
      <joint conn="1" target="66" tconn="0"/>
    </piece>
    <piece id="66" cat="24188" x="-188.3000" y="-437.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="65" tconn="1"/>
      <joint conn="1" target="67" tconn="0"/>
    </piece>
    <piece id="67" cat="24611" x="-376.6000" y="-437.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="66" tconn="1"/>
      <joint conn="1" target="68" tconn="0"/>
      <joint conn="2" target="76" tconn="0"/>
    </piece>
    <piece id="68" cat="24172" x="-564.9000" y="-437.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="67" tconn="1"/>
      <joint conn="1" target="69" tconn="0"/>
    </piece>
    <piece id="69" cat="24188" x="-736.6000" y="-437.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="68" tconn="1"/>
      <joint conn="1" target="70" tconn="0"/>
    </piece>
    <piece id="70" cat="24188" x="-924.9000" y="-437.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="69" tconn="1"/>
      <joint conn="1" target="71" tconn="0"/>
    </piece>
    <piece id="71" cat="24188" x="-1113.2000" y="-437.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="70" tconn="1"/>
      <joint conn="1" target="72" tconn="0"/>
    </piece>
    <piece id="72" cat="24188" x="-1301.5000" y="-437.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="71" tconn="1"/>
      <joint conn="1" target="73" tconn="0"/>
    </piece>
    <piece id="73" cat="24188" x="-1489.8000" y="-437.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="72" tconn="1"/>
      <joint conn="1" target="74" tconn="0"/>
    </piece>
    <piece id="74" cat="24172" x="-1678.1000" y="-437.5000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="73" tconn="1"/>
      <joint conn="1" target="75" tconn="1"/>
    </piece>
    <piece id="75" cat="24612" x="-2038.1000" y="-437.5000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="101" tconn="1"/>
      <joint conn="1" target="74" tconn="1"/>
      <joint conn="2" target="82" tconn="1"/>
    </piece>
    <piece id="76" cat="24224" x="-556.6400" y="-398.7400" heading="155.7000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="67" tconn="2"/>
      <joint conn="1" target="77" tconn="0"/>
    </piece>
    <piece id="77" cat="24188" x="-736.6775" y="-359.9789" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="76" tconn="1"/>
      <joint conn="1" target="78" tconn="0"/>
    </piece>
    <piece id="78" cat="24188" x="-924.9775" y="-359.9789" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="77" tconn="1"/>
      <joint conn="1" target="79" tconn="0"/>
    </piece>
    <piece id="79" cat="24188" x="-1113.2775" y="-359.9789" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="78" tconn="1"/>
      <joint conn="1" target="80" tconn="0"/>
    </piece>
    <piece id="80" cat="24188" x="-1301.5775" y="-359.9789" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="79" tconn="1"/>
      <joint conn="1" target="81" tconn="0"/>
    </piece>
    <piece id="81" cat="24188" x="-1489.8775" y="-359.9789" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="80" tconn="1"/>
      <joint conn="1" target="82" tconn="0"/>
    </piece>
    <piece id="82" cat="24224" x="-1678.0225" y="-359.9789" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="81" tconn="1"/>
      <joint conn="1" target="75" tconn="2"/>
    </piece>
    <piece id="83" cat="24188" x="0.0000" y="-515.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="35" tconn="0"/>
      <joint conn="1" target="84" tconn="0"/>
    </piece>
    <piece id="84" cat="24188" x="-188.3000" y="-515.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="83" tconn="1"/>
      <joint conn="1" target="85" tconn="0"/>
    </piece>
    <piece id="85" cat="24612" x="-376.6000" y="-515.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="84" tconn="1"/>
      <joint conn="1" target="86" tconn="0"/>
      <joint conn="2" target="94" tconn="1"/>
    </piece>
    <piece id="86" cat="24172" x="-564.9000" y="-515.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="85" tconn="1"/>
      <joint conn="1" target="87" tconn="0"/>
    </piece>
    <piece id="87" cat="24188" x="-736.6000" y="-515.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="86" tconn="1"/>
      <joint conn="1" target="88" tconn="0"/>
    </piece>
    <piece id="88" cat="24188" x="-924.9000" y="-515.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="87" tconn="1"/>
      <joint conn="1" target="89" tconn="0"/>
    </piece>
    <piece id="89" cat="24188" x="-1113.2000" y="-515.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="88" tconn="1"/>
      <joint conn="1" target="90" tconn="0"/>
    </piece>
    <piece id="90" cat="24188" x="-1301.5000" y="-515.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="89" tconn="1"/>
      <joint conn="1" target="91" tconn="0"/>
    </piece>
    <piece id="91" cat="24188" x="-1489.8000" y="-515.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="90" tconn="1"/>
      <joint conn="1" target="92" tconn="0"/>
    </piece>
    <piece id="92" cat="24172" x="-1678.1000" y="-515.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="91" tconn="1"/>
      <joint conn="1" target="93" tconn="1"/>
    </piece>
    <piece id="93" cat="24611" x="-2038.1000" y="-515.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="114" tconn="0"/>
      <joint conn="1" target="92" tconn="1"/>
      <joint conn="2" target="100" tconn="0"/>
    </piece>
    <piece id="94" cat="24224" x="-736.6775" y="-592.5211" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="95" tconn="0"/>
      <joint conn="1" target="85" tconn="2"/>
    </piece>
    <piece id="95" cat="24188" x="-736.6775" y="-592.5211" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="94" tconn="0"/>
      <joint conn="1" target="96" tconn="0"/>
    </piece>
    <piece id="96" cat="24188" x="-924.9775" y="-592.5211" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="95" tconn="1"/>
      <joint conn="1" target="97" tconn="0"/>
    </piece>
    <piece id="97" cat="24188" x="-1113.2775" y="-592.5211" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="96" tconn="1"/>
      <joint conn="1" target="98" tconn="0"/>
    </piece>
    <piece id="98" cat="24188" x="-1301.5775" y="-592.5211" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="97" tconn="1"/>
      <joint conn="1" target="99" tconn="0"/>
    </piece>
    <piece id="99" cat="24188" x="-1489.8775" y="-592.5211" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="98" tconn="1"/>
      <joint conn="1" target="100" tconn="1"/>
    </piece>
    <piece id="100" cat="24224" x="-1858.0600" y="-553.7600" heading="335.7000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="93" tconn="2"/>
      <joint conn="1" target="99" tconn="1"/>
    </piece>
    <piece id="101" cat="24230" x="-2256.8500" y="-378.8861" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="102" tconn="1"/>
      <joint conn="1" target="75" tconn="0"/>
    </piece>
    <piece id="102" cat="24230" x="-2416.9861" y="-218.7500" heading="300.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="103" tconn="0"/>
      <joint conn="1" target="101" tconn="0"/>
    </piece>
    <piece id="103" cat="24330" x="-2416.9861" y="-218.7500" heading="120.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="102" tconn="0"/>
      <joint conn="1" target="104" tconn="0"/>
    </piece>
    <piece id="104" cat="24330" x="-2605.4892" y="-30.2469" heading="150.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="103" tconn="1"/>
      <joint conn="1" target="105" tconn="0"/>
    </piece>
    <piece id="105" cat="24330" x="-2862.9892" y="38.7500" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="104" tconn="1"/>
      <joint conn="1" target="106" tconn="0"/>
    </piece>
    <piece id="106" cat="24330" x="-3120.4892" y="-30.2469" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="105" tconn="1"/>
      <joint conn="1" target="107" tconn="0"/>
    </piece>
    <piece id="107" cat="24330" x="-3308.9923" y="-218.7500" heading="240.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="106" tconn="1"/>
      <joint conn="1" target="108" tconn="0"/>
    </piece>
    <piece id="108" cat="24330" x="-3377.9892" y="-476.2500" heading="270.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="107" tconn="1"/>
      <joint conn="1" target="109" tconn="0"/>
    </piece>
    <piece id="109" cat="24330" x="-3308.9923" y="-733.7500" heading="300.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="108" tconn="1"/>
      <joint conn="1" target="110" tconn="0"/>
    </piece>
    <piece id="110" cat="24330" x="-3120.4892" y="-922.2531" heading="330.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="109" tconn="1"/>
      <joint conn="1" target="111" tconn="0"/>
    </piece>
    <piece id="111" cat="24330" x="-2862.9892" y="-991.2500" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="110" tconn="1"/>
      <joint conn="1" target="112" tconn="0"/>
    </piece>
    <piece id="112" cat="24330" x="-2605.4892" y="-922.2531" heading="30.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="111" tconn="1"/>
      <joint conn="1" target="113" tconn="1"/>
    </piece>
    <piece id="113" cat="24230" x="-2256.8500" y="-573.6139" heading="210.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="114" tconn="1"/>
      <joint conn="1" target="112" tconn="1"/>
    </piece>
    <piece id="114" cat="24230" x="-2038.1000" y="-515.0000" heading="180.0000" z="0.0000" grade="0.0000" level="1" sel="0">
      <joint conn="0" target="93" tconn="0"/>
      <joint conn="1" target="113" tconn="0"/>
    </piece>
    <piece id="115" cat="24188" x="0.0000" y="437.5000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="34" tconn="1"/>
      <joint conn="1" target="116" tconn="0"/>
    </piece>
    <piece id="116" cat="24188" x="-188.3000" y="437.5000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="115" tconn="1"/>
      <joint conn="1" target="117" tconn="0"/>
    </piece>
    <piece id="117" cat="24612" x="-376.6000" y="437.5000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="116" tconn="1"/>
      <joint conn="1" target="118" tconn="0"/>
      <joint conn="2" target="126" tconn="1"/>
    </piece>
    <piece id="118" cat="24172" x="-564.9000" y="437.5000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="117" tconn="1"/>
      <joint conn="1" target="119" tconn="0"/>
    </piece>
    <piece id="119" cat="24188" x="-736.6000" y="437.5000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="118" tconn="1"/>
      <joint conn="1" target="120" tconn="0"/>
    </piece>
    <piece id="120" cat="24188" x="-924.9000" y="437.5000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="119" tconn="1"/>
      <joint conn="1" target="121" tconn="0"/>
    </piece>
    <piece id="121" cat="24188" x="-1113.2000" y="437.5000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="120" tconn="1"/>
      <joint conn="1" target="122" tconn="0"/>
    </piece>
    <piece id="122" cat="24188" x="-1301.5000" y="437.5000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="121" tconn="1"/>
      <joint conn="1" target="123" tconn="0"/>
    </piece>
    <piece id="123" cat="24188" x="-1489.8000" y="437.5000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="122" tconn="1"/>
      <joint conn="1" target="124" tconn="0"/>
    </piece>
    <piece id="124" cat="24172" x="-1678.1000" y="437.5000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="123" tconn="1"/>
      <joint conn="1" target="125" tconn="1"/>
    </piece>
    <piece id="125" cat="24611" x="-2038.1000" y="437.5000" heading="0.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="151" tconn="0"/>
      <joint conn="1" target="124" tconn="1"/>
      <joint conn="2" target="132" tconn="0"/>
    </piece>
    <piece id="126" cat="24224" x="-736.6775" y="359.9789" heading="0.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="127" tconn="0"/>
      <joint conn="1" target="117" tconn="2"/>
    </piece>
    <piece id="127" cat="24188" x="-736.6775" y="359.9789" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="126" tconn="0"/>
      <joint conn="1" target="128" tconn="0"/>
    </piece>
    <piece id="128" cat="24188" x="-924.9775" y="359.9789" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="127" tconn="1"/>
      <joint conn="1" target="129" tconn="0"/>
    </piece>
    <piece id="129" cat="24188" x="-1113.2775" y="359.9789" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="128" tconn="1"/>
      <joint conn="1" target="130" tconn="0"/>
    </piece>
    <piece id="130" cat="24188" x="-1301.5775" y="359.9789" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="129" tconn="1"/>
      <joint conn="1" target="131" tconn="0"/>
    </piece>
    <piece id="131" cat="24188" x="-1489.8775" y="359.9789" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="130" tconn="1"/>
      <joint conn="1" target="132" tconn="1"/>
    </piece>
    <piece id="132" cat="24224" x="-1858.0600" y="398.7400" heading="335.7000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="125" tconn="2"/>
      <joint conn="1" target="131" tconn="1"/>
    </piece>
    <piece id="133" cat="24188" x="0.0000" y="515.0000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="64" tconn="1"/>
      <joint conn="1" target="134" tconn="0"/>
    </piece>
    <piece id="134" cat="24188" x="-188.3000" y="515.0000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="133" tconn="1"/>
      <joint conn="1" target="135" tconn="0"/>
    </piece>
    <piece id="135" cat="24611" x="-376.6000" y="515.0000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="134" tconn="1"/>
      <joint conn="1" target="136" tconn="0"/>
      <joint conn="2" target="144" tconn="0"/>
    </piece>
    <piece id="136" cat="24172" x="-564.9000" y="515.0000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="135" tconn="1"/>
      <joint conn="1" target="137" tconn="0"/>
    </piece>
    <piece id="137" cat="24188" x="-736.6000" y="515.0000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="136" tconn="1"/>
      <joint conn="1" target="138" tconn="0"/>
    </piece>
    <piece id="138" cat="24188" x="-924.9000" y="515.0000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="137" tconn="1"/>
      <joint conn="1" target="139" tconn="0"/>
    </piece>
    <piece id="139" cat="24188" x="-1113.2000" y="515.0000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="138" tconn="1"/>
      <joint conn="1" target="140" tconn="0"/>
    </piece>
    <piece id="140" cat="24188" x="-1301.5000" y="515.0000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="139" tconn="1"/>
      <joint conn="1" target="141" tconn="0"/>
    </piece>
    <piece id="141" cat="24188" x="-1489.8000" y="515.0000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="140" tconn="1"/>
      <joint conn="1" target="142" tconn="0"/>
    </piece>
    <piece id="142" cat="24172" x="-1678.1000" y="515.0000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="141" tconn="1"/>
      <joint conn="1" target="143" tconn="1"/>
    </piece>
    <piece id="143" cat="24612" x="-2038.1000" y="515.0000" heading="0.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="164" tconn="1"/>
      <joint conn="1" target="142" tconn="1"/>
      <joint conn="2" target="150" tconn="1"/>
    </piece>
    <piece id="144" cat="24224" x="-556.6400" y="553.7600" heading="155.7000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="135" tconn="2"/>
      <joint conn="1" target="145" tconn="0"/>
    </piece>
    <piece id="145" cat="24188" x="-736.6775" y="592.5211" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="144" tconn="1"/>
      <joint conn="1" target="146" tconn="0"/>
    </piece>
    <piece id="146" cat="24188" x="-924.9775" y="592.5211" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="145" tconn="1"/>
      <joint conn="1" target="147" tconn="0"/>
    </piece>
    <piece id="147" cat="24188" x="-1113.2775" y="592.5211" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="146" tconn="1"/>
      <joint conn="1" target="148" tconn="0"/>
    </piece>
    <piece id="148" cat="24188" x="-1301.5775" y="592.5211" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="147" tconn="1"/>
      <joint conn="1" target="149" tconn="0"/>
    </piece>
    <piece id="149" cat="24188" x="-1489.8775" y="592.5211" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="148" tconn="1"/>
      <joint conn="1" target="150" tconn="0"/>
    </piece>
    <piece id="150" cat="24224" x="-1678.0225" y="592.5211" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="149" tconn="1"/>
      <joint conn="1" target="143" tconn="2"/>
    </piece>
    <piece id="151" cat="24230" x="-2038.1000" y="437.5000" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="125" tconn="0"/>
      <joint conn="1" target="152" tconn="0"/>
    </piece>
    <piece id="152" cat="24230" x="-2256.8500" y="378.8861" heading="210.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="151" tconn="1"/>
      <joint conn="1" target="153" tconn="1"/>
    </piece>
    <piece id="153" cat="24330" x="-2605.4892" y="30.2469" heading="30.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="154" tconn="1"/>
      <joint conn="1" target="152" tconn="1"/>
    </piece>
    <piece id="154" cat="24330" x="-2862.9892" y="-38.7500" heading="0.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="155" tconn="1"/>
      <joint conn="1" target="153" tconn="0"/>
    </piece>
    <piece id="155" cat="24330" x="-3120.4892" y="30.2469" heading="330.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="156" tconn="1"/>
      <joint conn="1" target="154" tconn="0"/>
    </piece>
    <piece id="156" cat="24330" x="-3308.9923" y="218.7500" heading="300.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="157" tconn="1"/>
      <joint conn="1" target="155" tconn="0"/>
    </piece>
    <piece id="157" cat="24330" x="-3377.9892" y="476.2500" heading="270.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="158" tconn="1"/>
      <joint conn="1" target="156" tconn="0"/>
    </piece>
    <piece id="158" cat="24330" x="-3308.9923" y="733.7500" heading="240.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="159" tconn="1"/>
      <joint conn="1" target="157" tconn="0"/>
    </piece>
    <piece id="159" cat="24330" x="-3120.4892" y="922.2531" heading="210.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="160" tconn="1"/>
      <joint conn="1" target="158" tconn="0"/>
    </piece>
    <piece id="160" cat="24330" x="-2862.9892" y="991.2500" heading="180.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="161" tconn="1"/>
      <joint conn="1" target="159" tconn="0"/>
    </piece>
    <piece id="161" cat="24330" x="-2605.4892" y="922.2531" heading="150.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="162" tconn="1"/>
      <joint conn="1" target="160" tconn="0"/>
    </piece>
    <piece id="162" cat="24330" x="-2416.9861" y="733.7500" heading="120.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="163" tconn="0"/>
      <joint conn="1" target="161" tconn="0"/>
    </piece>
    <piece id="163" cat="24230" x="-2416.9861" y="733.7500" heading="300.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="162" tconn="0"/>
      <joint conn="1" target="164" tconn="0"/>
    </piece>
    <piece id="164" cat="24230" x="-2256.8500" y="573.6139" heading="330.0000" z="220.0000" grade="0.0000" level="2" sel="0">
      <joint conn="0" target="163" tconn="1"/>
      <joint conn="1" target="143" tconn="0"/>
    </piece>
  </pieces>
  <scenery>
    <sceneryitem id="165" item="tun.double" x="0.0000" y="476.2500" heading="270.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="166" item="tun.double" x="-376.6000" y="476.2500" heading="90.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="168" item="tun.single" x="-2862.9892" y="-38.7500" heading="270.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="169" item="tun.single" x="-2862.9892" y="991.2500" heading="270.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="171" item="plat.island77" x="-840.0000" y="399.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="172" item="plat.island77" x="-1020.0000" y="399.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="173" item="plat.island77" x="-1200.0000" y="399.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="174" item="plat.island77" x="-1380.0000" y="399.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="175" item="plat.island77" x="-1560.0000" y="399.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="176" item="plat.island77" x="-840.0000" y="554.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="177" item="plat.island77" x="-1020.0000" y="554.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="178" item="plat.island77" x="-1200.0000" y="554.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="179" item="plat.island77" x="-1380.0000" y="554.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="180" item="plat.island77" x="-1560.0000" y="554.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="181" item="plat.side" x="-840.0000" y="637.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="182" item="plat.side" x="-1020.0000" y="637.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="183" item="plat.side" x="-1200.0000" y="637.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="184" item="plat.side" x="-1380.0000" y="637.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="185" item="plat.side" x="-1560.0000" y="637.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="186" item="stn.medium" x="-1200.0000" y="725.0000" heading="180.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="187" item="goods.shed" x="-1560.0000" y="715.0000" heading="180.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="188" item="box.ground" x="-700.0000" y="300.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="189" item="sig.light.home" x="-620.0000" y="395.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="190" item="sig.light.home" x="-1960.0000" y="560.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="191" item="road.minor" x="-2070.0000" y="860.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="192" item="road.minor" x="-1820.0000" y="860.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="193" item="road.minor" x="-1570.0000" y="860.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="194" item="road.minor" x="-1320.0000" y="860.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="195" item="road.minor" x="-1070.0000" y="860.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="196" item="road.minor" x="-820.0000" y="860.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="197" item="road.minor" x="-2000.0000" y="200.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="198" item="road.minor" x="-1750.0000" y="200.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="199" item="road.minor" x="-1500.0000" y="200.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="200" item="road.minor" x="-1250.0000" y="200.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="201" item="road.minor" x="-1000.0000" y="200.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="202" item="road.minor" x="-750.0000" y="200.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="203" item="church.village" x="-1450.0000" y="-330.0000" heading="20.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="204" item="inn" x="-1150.0000" y="-200.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="205" item="house.timber" x="-1750.0000" y="-150.0000" heading="350.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="206" item="house.two" x="-1700.0000" y="-450.0000" heading="8.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="207" item="house.detached" x="-1000.0000" y="-480.0000" heading="12.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="208" item="house.timber" x="-1250.0000" y="-650.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="209" item="farm.house" x="-1900.0000" y="-700.0000" heading="10.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="210" item="farm.barn" x="-1650.0000" y="-760.0000" heading="15.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="211" item="house.detached" x="-900.0000" y="30.0000" heading="350.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="212" item="kiosk" x="-1400.0000" y="60.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="213" item="castle.ruin" x="-2900.0000" y="-330.0000" heading="15.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="214" item="tree.broad.m" x="-3330.0000" y="-900.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="215" item="tree.fir.l" x="-3150.0000" y="-700.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="216" item="tree.broad.s" x="-3300.0000" y="-520.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="217" item="tree.broad.l" x="-2900.0000" y="-850.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="218" item="tree.fir.m" x="-2700.0000" y="-620.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="219" item="tree.broad.m" x="-3350.0000" y="-200.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="220" item="tree.fir.l" x="-2620.0000" y="-330.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="221" item="tree.broad.s" x="-2550.0000" y="-800.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="222" item="tree.broad.l" x="-2450.0000" y="-450.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="223" item="tree.fir.m" x="-2600.0000" y="-150.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="224" item="tree.broad.m" x="-2350.0000" y="-700.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="225" item="tree.fir.l" x="-3150.0000" y="100.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="226" item="tree.broad.s" x="-2350.0000" y="60.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="227" item="tree.broad.l" x="-2250.0000" y="250.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="228" item="tree.fir.m" x="-2350.0000" y="800.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="229" item="tree.broad.m" x="-2500.0000" y="950.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="230" item="tree.fir.l" x="-3000.0000" y="250.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="231" item="tree.broad.s" x="-2550.0000" y="720.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="232" item="tree.broad.l" x="-2850.0000" y="780.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="233" item="tree.fir.m" x="-1900.0000" y="960.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="234" item="tree.broad.m" x="-1500.0000" y="980.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="235" item="tree.fir.l" x="-1100.0000" y="970.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="236" item="tree.broad.s" x="-750.0000" y="950.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="237" item="tree.broad.l" x="-1000.0000" y="-850.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="238" item="tree.fir.m" x="-1350.0000" y="-900.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="239" item="tree.broad.m" x="-800.0000" y="-700.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="240" item="tree.fir.l" x="-1550.0000" y="-550.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="241" item="tree.broad.s" x="-480.0000" y="-900.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="242" item="tree.broad.l" x="-150.0000" y="-850.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="243" item="tree.fir.m" x="200.0000" y="-900.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="244" item="tree.broad.m" x="480.0000" y="-700.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="245" item="tree.fir.l" x="-450.0000" y="900.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="246" item="tree.broad.s" x="-100.0000" y="800.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="247" item="tree.broad.l" x="250.0000" y="900.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="248" item="tree.fir.m" x="500.0000" y="650.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
    <sceneryitem id="249" item="tree.broad.m" x="540.0000" y="-420.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="2" sel="0"/>
  </scenery>
  <levels active="2">
    <level id="1" name="Hidden yard" visible="1" height="0.0000" trackcolor="0" r="180" g="200" b="220"/>
    <level id="2" name="Hochwald" visible="1" height="220.0000" trackcolor="1" r="196" g="178" b="142">
      <pt x="-3460.0000" y="-1060.0000"/>
      <pt x="-575.0000" y="-1060.0000"/>
      <pt x="-575.0000" y="1080.0000"/>
      <pt x="-3460.0000" y="1080.0000"/>
    </level>
  </levels>
  <baseboard>
    <vertex x="-3460.0000" y="-1060.0000"/>
    <vertex x="620.0000" y="-1060.0000"/>
    <vertex x="620.0000" y="1080.0000"/>
    <vertex x="-3460.0000" y="1080.0000"/>
  </baseboard>
  <lastshape id="0" w_mm="4080.0000" h_mm="2140.0000" w2_mm="0.0000" h2_mm="0.0000"/>
  <labels>
    <label id="250" x="-1200.0000" y="800.0000" text="Hochwald"/>
    <label id="251" x="-2890.0000" y="-590.0000" text="Hidden yard below"/>
  </labels>
  <shapes>
    <shape id="1" r="186" g="176" b="138" a="140" outline="0" level="1" height="0.0000" label="">
      <v x="-560.0000" y="-1030.0000"/>
      <v x="380.0000" y="-1000.0000"/>
      <v x="590.0000" y="-700.0000"/>
      <v x="590.0000" y="820.0000"/>
      <v x="330.0000" y="1040.0000"/>
      <v x="-560.0000" y="1050.0000"/>
    </shape>
    <shape id="2" r="132" g="182" b="214" a="140" outline="0" level="2" height="0.0000" label="Forest lake">
      <v x="-2950.0000" y="330.0000"/>
      <v x="-2700.0000" y="270.0000"/>
      <v x="-2500.0000" y="400.0000"/>
      <v x="-2520.0000" y="610.0000"/>
      <v x="-2760.0000" y="700.0000"/>
      <v x="-2980.0000" y="560.0000"/>
    </shape>
    <shape id="3" r="168" g="200" b="132" a="140" outline="0" level="2" height="0.0000" label="">
      <v x="-2150.0000" y="-950.0000"/>
      <v x="-760.0000" y="-960.0000"/>
      <v x="-720.0000" y="-100.0000"/>
      <v x="-1100.0000" y="130.0000"/>
      <v x="-2050.0000" y="60.0000"/>
      <v x="-2200.0000" y="-400.0000"/>
    </shape>
  </shapes>
  <tunnels>
    <tunnel id="167" portalA="165" portalB="166" anchorA="115" anchorB="116">
      <covers piece="115"/>
      <covers piece="116"/>
      <covers piece="133"/>
      <covers piece="134"/>
    </tunnel>
    <tunnel id="170" portalA="168" portalB="169" anchorA="155" anchorB="160">
      <covers piece="155"/>
      <covers piece="156"/>
      <covers piece="157"/>
      <covers piece="158"/>
      <covers piece="159"/>
      <covers piece="160"/>
    </tunnel>
  </tunnels>
  <helices>
    <helix id="4" cx="0.0000" cy="0.0000" heading="0.0000" variant="helix_2_5_r2r3" bottomR1="5" bottomR2="35" topR1="34" topR2="64"/>
  </helices>
</layout>

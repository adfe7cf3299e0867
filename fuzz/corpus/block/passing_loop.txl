<?xml version="1.0" encoding="UTF-8"?>
<block name="Passing loop" version="1">
  <piece id="12" cat="24611" x="400.0000" y="80.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="1">
    <joint conn="0" target="3" tconn="1"/>
    <joint conn="1" target="13" tconn="0"/>
  </piece>
  <piece id="13" cat="24188" x="588.3000" y="80.0000" heading="0.0000" z="0.0000" grade="0.0000" level="1" sel="1">
    <joint conn="0" target="12" tconn="1"/>
  </piece>
  <scenery>
    <sceneryitem id="20" item="signal_box" x="450.0000" y="20.0000" heading="0.0000" scalex="1.0000" scaley="1.0000" level="1" sel="1"/>
  </scenery>
</block>

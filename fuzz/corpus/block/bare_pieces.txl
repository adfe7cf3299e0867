<piece id="1" x="2e8" y="-2e8" heading="720" z="?" grade="?">
<joint conn="0" target="1" tconn="0"/>
<scenery>
<sceneryitem id="1" item="" x="0" y="0" heading="0" scalex="1" scaley="1" level="2147483647"/>
</scenery>
<piece id="1" cat="24188" x="1" y="1" heading="1" level="3">

<layout name="a &amp; b" units="+1x">
<run deg="-0x1.8p-3" anchor=" 7" conn="-1"/>
<pieces>
<piece id="2000000000" cat="&lt;" x="1e300" y="-.5" heading="1e-320" grade="-0">
<joint conn="47" target="-2147483648" tconn="-1"/>
</layout>
<label id="1" x="0" y="0" text="unclosed/>

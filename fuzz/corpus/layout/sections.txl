<levels active="1"><level id="x"
<level id="1" name="height=" visible="1" height="0" trackcolor="1" r="256" g="-1" b="9"/>
<pt x="1" y="2"/>
</levels>
<shape id="1" r="1" g="2" b="3" a="4" outline="1" level="1" height="0" label="x">
<v x="1" y="2"/>
</shapes>
<covers piece="1"/>
<tunnel id="1" portalA="1" portalB="1" anchorA="1" anchorB="1">
<covers piece="1"/>
<helix id="1" cx="0" cy="0" heading="0" bottomR1="1" bottomR2="1" topR1="1" topR2="1"/>

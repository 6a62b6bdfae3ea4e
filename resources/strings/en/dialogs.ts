<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Buttons of every dialog -->
    <message>
        <source>OK Command</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel Command</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Help Command</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Revert Command</source>
        <translation>Revert</translation>
    </message>
</context>
</TS>

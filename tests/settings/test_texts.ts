<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Test of %1 and %2</source>
        <translation>%1, then %2</translation>
    </message>
    <message>
        <source>Zero pages</source>
        <translation>0</translation>
    </message>
</context>
</TS>

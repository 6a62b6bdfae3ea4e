<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message>
        <source>1 Staple</source>
        <translation>One staple</translation>
    </message>
    <message>
        <source>Quote &quot;this&quot;: a
second line</source>
        <translation>“This”</translation>
    </message>
</context>
<context>
    <name>LANFax</name>
    <message>
        <source>1 Staple</source>
        <translation>Fax staple</translation>
    </message>
</context>
</TS>

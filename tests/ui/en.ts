<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Localizable</name>
    <message><source>PaperWindow</source><translation>Paper</translation></message>
    <message><source>PaperLabel</source><translation>&amp;Paper &lt;b&gt;type&lt;/b&gt;:</translation></message>
    <message><source>PaperHelp</source><translation>What the tray holds</translation></message>
    <message><source>First</source><translation>One</translation></message>
</context>
</TS>

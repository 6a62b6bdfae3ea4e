<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Where a file of the installation is missing or damaged -->
    <message>
        <source>Window Not Made Header</source>
        <translation>The window cannot be shown</translation>
    </message>
    <message>
        <source>Panel Not Made Header</source>
        <translation>The panel cannot be shown</translation>
    </message>
    <message>
        <source>Not Made Message</source>
        <translation>A file of the printer software is missing or damaged. Nothing has been changed. Install the software again, or show your administrator this line:</translation>
    </message>
    <message>
        <source>Window Lacks Controls</source>
        <translation>The description lacks controls that the window needs: %1</translation>
    </message>
    <!-- Buttons of every dialog -->
    <message>
        <source>OK Command</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Remove Command</source>
        <translation>Remove</translation>
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

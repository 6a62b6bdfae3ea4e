<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PaperOutput</source>
        <translation>Paper/Output</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>Cover Without Source</source>
        <translation>No paper source: left out</translation>
    </message>
    <message>
        <source>Job Type:</source>
        <translation>&amp;Job type:</translation>
    </message>
    <message>
        <source>Job Type Tip</source>
        <translation>A secure print waits at the device for a passcode, and a delayed print for a time. Of a sample set one copy is printed, and the others wait until you have looked at it. A saved job stays at the device.</translation>
    </message>
    <message>
        <source>Job Type Setup</source>
        <translation>Set Up…</translation>
    </message>
    <message>
        <source>Job Type Setup Tip</source>
        <translation>Passcode, time, mailbox or fax recipients, as the job type needs them</translation>
    </message>
    <message>
        <source>Paper Summary:</source>
        <translation>P&amp;aper:</translation>
    </message>
    <message>
        <source>Paper Summary Spoken</source>
        <translation>Paper</translation>
    </message>
    <message>
        <source>Stock Menu Title</source>
        <translation>Change Paper</translation>
    </message>
    <message>
        <source>Two Sided Printing:</source>
        <translation>Two-sided p&amp;rinting:</translation>
    </message>
    <message>
        <source>Output Color:</source>
        <translation>O&amp;utput color:</translation>
    </message>
    <message>
        <source>Stapling:</source>
        <translation>Stapli&amp;ng:</translation>
    </message>
    <message>
        <source>Hole Punch:</source>
        <translation>Ho&amp;le punching:</translation>
    </message>
    <message>
        <source>Output Destination:</source>
        <translation>Output &amp;destination:</translation>
    </message>
    <message>
        <source>Finishing:</source>
        <translation>&amp;Finishing:</translation>
    </message>
    <message>
        <source>Finishing Summary Spoken</source>
        <translation>Finishing</translation>
    </message>
    <message>
        <source>Finishing Menu Title</source>
        <translation>Change Finishing</translation>
    </message>
    <message>
        <source>More Finishing Menu Title</source>
        <translation>&amp;More Finishing</translation>
    </message>
    <message>
        <source>More Finishing Tip</source>
        <translation>Windows that show each kind of finishing and say what it needs</translation>
    </message>
    <message>
        <source>No Finishing Devices</source>
        <translation>This device has no finisher.</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Paper Name in Words</source>
        <translation>Paper name:</translation>
    </message>
    <message>
        <source>Paper Properties in Words</source>
        <translation>Paper properties:</translation>
    </message>
    <message>
        <source>Paper Color in Words</source>
        <translation>Paper color:</translation>
    </message>
    <message>
        <source>Paper Type in Words</source>
        <translation>Paper type:</translation>
    </message>
</context>
</TS>

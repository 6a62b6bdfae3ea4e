<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>JobNotes</source>
        <translation>Job Notes</translation>
    </message>
    <message>
        <source>Sender Name:</source>
        <translation>Se&amp;nder name:</translation>
    </message>
    <message>
        <source>Recipient Name:</source>
        <translation>&amp;Recipient name:</translation>
    </message>
    <message>
        <source>Banner Message:</source>
        <translation>&amp;Banner message:</translation>
    </message>
    <message>
        <source>Banner Message Tip</source>
        <translation>Printed on the banner sheet, below the names; “Advanced” turns the sheet on.</translation>
    </message>
    <message>
        <source>Job Start Message:</source>
        <translation>Job start &amp;message:</translation>
    </message>
    <message>
        <source>Job Start Message Tip</source>
        <translation>Shown at the device when the job starts, such as “Load letterhead”</translation>
    </message>
    <message>
        <source>Job Notes Preferences Command</source>
        <translation>Pre&amp;ferences…</translation>
    </message>
    <message>
        <source>Job Notes Login Name Hint</source>
        <translation>The banner sheet, which the Advanced tab turns on, names you (%1) as job, sender and recipient. Type a job name to print other names.</translation>
    </message>
    <message>
        <source>Job Notes Names Lost Hint</source>
        <translation>Type a job name to print the sender and the recipient that you typed. Without one the banner sheet names you (%1) in all three places.</translation>
    </message>
    <message>
        <source>Job Notes Names Typed Hint</source>
        <translation>The banner sheet has the names as they stand here. “Use login name” prints yours (%1).</translation>
    </message>
    <message>
        <source>Job Notes Preferences Title</source>
        <translation>Job Notes Preferences</translation>
    </message>
    <message>
        <source>Job Notes New Jobs</source>
        <translation>Names of a new job</translation>
    </message>
    <message>
        <source>Use Document Name As Job Name</source>
        <translation>Use &amp;document name as job name</translation>
    </message>
    <message>
        <source>Use Login Name As Sender Name</source>
        <translation>Use login name as &amp;sender name</translation>
    </message>
    <message>
        <source>Use Login Name As Recipient Name</source>
        <translation>Use login name as &amp;recipient name</translation>
    </message>
    <message>
        <source>Job Notes Preferences Not Kept Headline</source>
        <translation>The preferences could not be saved</translation>
    </message>
    <message>
        <source>Job Notes Preferences Not Kept</source>
        <translation>To keep them, check that this file can be written to and that its disk has room: %1</translation>
    </message>
    <message>
        <source>Job Notes Banner Picture</source>
        <translation>A sheet with a message</translation>
    </message>
    <message>
        <source>Job Notes Start Picture</source>
        <translation>A message at the device</translation>
    </message>
</context>
</TS>

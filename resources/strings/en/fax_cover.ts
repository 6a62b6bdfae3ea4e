<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <!-- The preview -->
    <message>
        <source>Cover Preview Reading</source>
        <translation>Reading the picture…</translation>
    </message>
    <message>
        <source>Cover Preview Cut</source>
        <translation>There is more text than the cover sheet has room for: its end is left out.</translation>
    </message>
    <message>
        <source>Cover Preview No Font</source>
        <translation>No font on this computer has these characters, so they are left out here: %1</translation>
    </message>
    <message>
        <source>Cover Preview Image Lost</source>
        <translation>There is no image “%1” on this computer, so none is shown here.</translation>
    </message>
    <message>
        <source>Cover Preview Image Unreadable</source>
        <translation>The image cannot be shown. %1</translation>
    </message>
    <message>
        <source>Cover Preview No Thread</source>
        <translation>The preview cannot be drawn: the system has no thread for it. Close other programs.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <message>
        <source>Duplicate Recipient Header</source>
        <translation>This recipient is in the list already</translation>
    </message>
    <message>
        <source>Duplicate Recipient Message</source>
        <translation>%1 (%2) already gets this fax. Do you want to add the same recipient once more?</translation>
    </message>
    <message>
        <source>Remove One Recipient Header</source>
        <translation>Remove this recipient?</translation>
    </message>
    <message>
        <source>Remove One Recipient Message</source>
        <translation>%1 (%2) will not get this fax.</translation>
    </message>
    <message>
        <source>Remove Multiple Recipients Header</source>
        <translation>Remove these recipients?</translation>
    </message>
    <message>
        <source>Remove Multiple Recipients Message</source>
        <translation>%1 recipients will not get this fax.</translation>
    </message>
    <message>
        <source>From Label</source>
        <translation>From:</translation>
    </message>
    <message>
        <source>To Label</source>
        <translation>To:</translation>
    </message>
    <message>
        <source>Notes Label</source>
        <translation>Notes:</translation>
    </message>
    <message>
        <source>Phone Label</source>
        <translation>Phone</translation>
    </message>
    <message>
        <source>Fax Label</source>
        <translation>Fax</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PDE Shell</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Previous tab</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Next tab</translation>
    </message>
    <message>
        <source>Tab Selector</source>
        <translation>Device settings</translation>
    </message>
    <message>
        <source>Booklet Image Order:</source>
        <translation>&amp;Booklet image order:</translation>
    </message>
    <message>
        <source>Booklet Image Order</source>
        <translation>Booklet image order</translation>
    </message>
    <message>
        <source>Booklet Image Order Hint</source>
        <translation>The direction in which the pages of a booklet follow one another.</translation>
    </message>
    <message>
        <source>Banner Sheet:</source>
        <translation>Banner &amp;sheet:</translation>
    </message>
    <message>
        <source>Banner Sheet</source>
        <translation>Banner sheet</translation>
    </message>
    <message>
        <source>Banner Sheet Hint</source>
        <translation>A sheet ahead of the job that says whose it is.</translation>
    </message>
    <message>
        <source>Request Offset:</source>
        <translation>&amp;Request offset:</translation>
    </message>
    <message>
        <source>Request Offset</source>
        <translation>Request offset</translation>
    </message>
    <message>
        <source>Request Offset Hint</source>
        <translation>Shifts each finished set in the tray, so that sets are easy to tell apart.</translation>
    </message>
    <message>
        <source>Bypass Feed Edge Label</source>
        <translation>Bypass &amp;feed edge:</translation>
    </message>
    <message>
        <source>Bypass Feed Edge</source>
        <translation>Bypass feed edge</translation>
    </message>
    <message>
        <source>Bypass Feed Edge Hint</source>
        <translation>The edge of the paper that goes into the bypass tray first.</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Ab&amp;out…</translation>
    </message>
    <message>
        <source>About Title</source>
        <translation>About the Corvane Panels</translation>
    </message>
    <message>
        <source>About Product</source>
        <translation>Kelvo Corvane Panels</translation>
    </message>
    <message>
        <source>About Version</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>About Description</source>
        <translation>Paper, finishing and job settings of Corvane devices in the print dialog.</translation>
    </message>
    <message>
        <source>About Device</source>
        <translation>Current device: %1</translation>
    </message>
    <message>
        <source>About Device Unknown</source>
        <translation>Current device: unknown</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Invalid Secure Print Passcode Header</source>
        <translation>Check the passcode</translation>
    </message>
    <message>
        <source>Invalid Secure Print Passcode Message</source>
        <translation>The job needs a passcode of %1 to %2 digits, the same in both fields. It is printed when the passcode is entered at the device.</translation>
    </message>
    <message>
        <source>NoFaxDevice Header</source>
        <translation>This printer sends no faxes</translation>
    </message>
    <message>
        <source>NoFaxDevice Message</source>
        <translation>Choose a printer that does, or another job type.</translation>
    </message>
    <message>
        <source>FaxRecipientsMissing Header</source>
        <translation>The fax has no recipients</translation>
    </message>
    <message>
        <source>FaxRecipientsMissing Message</source>
        <translation>Add at least one recipient in the fax settings before you send it.</translation>
    </message>
</context>
</TS>

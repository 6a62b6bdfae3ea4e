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
        <source>Advanced Introduction</source>
        <translation>Settings that most jobs leave as they are.</translation>
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
        <translation>B&amp;anner sheet:</translation>
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
        <translation>Abo&amp;ut…</translation>
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
        <source>About Description</source>
        <translation>Paper, finishing and job settings of Corvane devices in the print dialog.</translation>
    </message>
    <message>
        <source>About Picture</source>
        <translation>The device with the parts that are fitted to it</translation>
    </message>
    <message>
        <source>About Panels:</source>
        <translation>Panels:</translation>
    </message>
    <message>
        <source>About Program:</source>
        <translation>Program:</translation>
    </message>
    <message>
        <source>About Device:</source>
        <translation>Device:</translation>
    </message>
    <message>
        <source>About Device Not Known</source>
        <translation>not known</translation>
    </message>
    <message>
        <source>About Printer:</source>
        <translation>Printer:</translation>
    </message>
    <message>
        <source>About PPD:</source>
        <translation>Description file:</translation>
    </message>
    <message>
        <source>About PPD Version</source>
        <translation>version %1</translation>
    </message>
    <message>
        <source>About Fitted:</source>
        <translation>What is fitted:</translation>
    </message>
    <message>
        <source>About Nothing Fitted</source>
        <translation>none</translation>
    </message>
    <message>
        <source>About Paper Trays:</source>
        <translation>Paper trays:</translation>
    </message>
    <message>
        <source>About Output Trays:</source>
        <translation>Output trays:</translation>
    </message>
    <message>
        <source>About System:</source>
        <translation>System:</translation>
    </message>
    <message>
        <source>About Language:</source>
        <translation>Language:</translation>
    </message>
    <message>
        <source>About Locale:</source>
        <translation>Locale:</translation>
    </message>
    <message>
        <source>About Window System:</source>
        <translation>Window system:</translation>
    </message>
    <message>
        <source>About Libraries:</source>
        <translation>Libraries used:</translation>
    </message>
    <message>
        <source>About Libraries Label</source>
        <translation>&amp;Libraries used:</translation>
    </message>
    <message>
        <source>About Libraries</source>
        <translation>Libraries used</translation>
    </message>
    <message>
        <source>About Library</source>
        <translation>%1 – %2 – %3</translation>
    </message>
    <message>
        <source>About Libraries Hint</source>
        <translation>With their licenses and main authors. Your system’s packages name those of the libraries that these bring along.</translation>
    </message>
    <message>
        <source>About Copy</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>About Copy Hint</source>
        <translation>Copies all of this and what your system is, for a support call. Names of people and passcodes are not in it.</translation>
    </message>
    <message>
        <source>About Copied</source>
        <translation>Copied to the clipboard.</translation>
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
        <translation>The job needs a passcode of %1 to %2 digits, the same in both fields under “Set Up…” beside the job type. It is printed when the passcode is entered at the device.</translation>
    </message>
    <message>
        <source>NoFaxDevice Header</source>
        <translation>This printer cannot send faxes</translation>
    </message>
    <message>
        <source>NoFaxDevice Message</source>
        <translation>Choose a printer that can, or another job type.</translation>
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

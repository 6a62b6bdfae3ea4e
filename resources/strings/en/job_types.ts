<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Passcodes -->
    <message>
        <source>Passcode:</source>
        <translation>&amp;Passcode:</translation>
    </message>
    <message>
        <source>ConfirmPasscode:</source>
        <translation>Con&amp;firm passcode:</translation>
    </message>
    <message>
        <source>Min-Max Digits</source>
        <translation>%1 to %2 digits</translation>
    </message>
    <message>
        <source>Show Passcode</source>
        <translation>&amp;Show passcode</translation>
    </message>
    <message>
        <source>Passcode Required Header</source>
        <translation>This job has a new passcode: %3</translation>
    </message>
    <message>
        <source>Passcode Required Message</source>
        <translation>The fields were empty, so the passcode %3 was made for you. Note it down: it has to be entered at the device. To use one of your own, open this window again and enter %1 to %2 digits.</translation>
    </message>
    <!-- Secure print -->
    <message>
        <source>SecurePrintSetupTitle</source>
        <translation>Secure Print Setup</translation>
    </message>
    <message>
        <source>Secure Print Hint</source>
        <translation>The device holds the job until the passcode is entered there. Leave both fields empty to have a passcode made for you.</translation>
    </message>
    <message>
        <source>Passcode Not Set Hint</source>
        <translation>No passcode yet: the job does not print without one.</translation>
    </message>
    <!-- Delayed print -->
    <message>
        <source>TimeToPrint:</source>
        <translation>&amp;Time to print:</translation>
    </message>
    <message>
        <source>Prints Today</source>
        <translation>The job prints today at %1.</translation>
    </message>
    <message>
        <source>Prints Tomorrow</source>
        <translation>The job prints tomorrow at %1.</translation>
    </message>
    <!-- Saved job -->
    <message>
        <source>Save to Mailbox Title</source>
        <translation>Saved Job Setup</translation>
    </message>
    <message>
        <source>Job Name:</source>
        <translation>&amp;Job name:</translation>
    </message>
    <message>
        <source>Use Document Name</source>
        <translation>&amp;Use document name</translation>
    </message>
    <message>
        <source>Mailbox Number Spoken</source>
        <translation>Mailbox, %1 to %2</translation>
    </message>
    <message>
        <source>Mailbox Number Label</source>
        <translation>&amp;Mailbox (%1 to %2):</translation>
    </message>
    <message>
        <source>Mailbox Hint</source>
        <translation>Without a number, the job is kept in the device’s default public folder.</translation>
    </message>
    <message>
        <source>Mailbox Elsewhere Hint</source>
        <translation>The job is kept in %1, which is not one of the mailboxes. Enter a number to keep it in one.</translation>
    </message>
    <message>
        <source>Mailbox Not Elsewhere Hint</source>
        <translation>The list still has %1, where the job was to be kept.</translation>
    </message>
    <message>
        <source>Invalid Mailbox Headline</source>
        <translation>There is no mailbox with this number</translation>
    </message>
    <message>
        <source>Invalid Mailbox Number Error</source>
        <translation>Enter a number from %1 to %2, or leave the field empty to keep the job in the device’s default public folder.</translation>
    </message>
    <message>
        <source>Save Option:</source>
        <translation>Sa&amp;ve option:</translation>
    </message>
    <message>
        <source>File Format:</source>
        <translation>File fo&amp;rmat:</translation>
    </message>
    <message>
        <source>File Format Picture</source>
        <translation>File format</translation>
    </message>
    <message>
        <source>Saved Job Format TIFF</source>
        <translation>TIFF, one file per page</translation>
    </message>
    <message>
        <source>Saved Job Format Multi-Page TIFF</source>
        <translation>TIFF, all pages in one file</translation>
    </message>
    <message>
        <source>Saved Job Format PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Saved Job Format Raster</source>
        <translation>Device raster</translation>
    </message>
    <message>
        <source>Saved Job Format Scalable Raster</source>
        <translation>Device raster, any resolution</translation>
    </message>
    <message>
        <source>SecureSavedJob:</source>
        <translation>&amp;Lock the saved job with a passcode</translation>
    </message>
    <message>
        <source>Saved Job Passcode Hint</source>
        <translation>OK needs %1 to %2 digits, or none: then a passcode is made for you.</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Passcode in Words</source>
        <translation>Passcode:</translation>
    </message>
    <message>
        <source>Passcode Is Set</source>
        <translation>is set</translation>
    </message>
    <message>
        <source>Mailbox in Words</source>
        <translation>Mailbox:</translation>
    </message>
    <message>
        <source>Credit Card in Words</source>
        <translation>Credit card:</translation>
    </message>
</context>
</TS>

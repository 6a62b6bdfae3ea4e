<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Menus of every panel -->
    <message>
        <source>PrinterDefault</source>
        <translation>Printer default</translation>
    </message>
    <message>
        <source>UseJobSetting</source>
        <translation>Use job setting</translation>
    </message>
    <message>
        <source>Not Offered Here</source>
        <translation>Not offered here</translation>
    </message>
    <message>
        <source>Choice Not Offered</source>
        <translation>The job has a choice that is not offered here, and keeps it.</translation>
    </message>
    <message>
        <source>Not on This Device</source>
        <translation>This device does not offer it.</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scan</translation>
    </message>
    <message>
        <source>Gather</source>
        <translation>Gather</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>False</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Halbrook 3300</source>
        <translation>Halbrook 3300</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>Face down</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>Face up</translation>
    </message>
    <message>
        <source>RightToLeft</source>
        <translation>Right to left</translation>
    </message>
    <message>
        <source>LeftToRight</source>
        <translation>Left to right</translation>
    </message>
    <message>
        <source>No Covers</source>
        <translation>No covers</translation>
    </message>
    <message>
        <source>Front Cover Only</source>
        <translation>Front cover only</translation>
    </message>
    <message>
        <source>Back Cover Only</source>
        <translation>Back cover only</translation>
    </message>
    <message>
        <source>Front and Back Covers</source>
        <translation>Front and back covers</translation>
    </message>
    <message>
        <source>After Page</source>
        <translation>After page</translation>
    </message>
    <message>
        <source>SpecialPageSummaryBefore1</source>
        <translation>Before page 1</translation>
    </message>
    <message>
        <source>Setup...</source>
        <translation>Set Up…</translation>
    </message>
    <message>
        <source>No Page Borders</source>
        <translation>No page borders</translation>
    </message>
    <message>
        <source>Draw Page Borders</source>
        <translation>Draw page borders</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>WatermarkBackground</source>
        <translation>Print in background</translation>
    </message>
    <message>
        <source>WatermarkBlend</source>
        <translation>Blend with page</translation>
    </message>
    <message>
        <source>WatermarkForeground</source>
        <translation>Print in foreground</translation>
    </message>
    <message>
        <source>WatermarkPrintOnAllPages</source>
        <translation>Print on all pages</translation>
    </message>
    <message>
        <source>WatermarmPrintOnPage1Only</source>
        <translation>Print on page 1 only</translation>
    </message>
    <message>
        <source>NoWatermark</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>New…</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Superfine</source>
        <translation>Superfine</translation>
    </message>
    <message>
        <source>Ultrafine</source>
        <translation>Ultrafine</translation>
    </message>
    <message>
        <source>G3-Auto</source>
        <translation>G3 (automatic)</translation>
    </message>
    <message>
        <source>Fixed G3</source>
        <translation>G3 (fixed)</translation>
    </message>
    <message>
        <source>G4-Auto</source>
        <translation>G4 (automatic)</translation>
    </message>
    <message>
        <source>Print a Confirmation Sheet</source>
        <translation>Print a confirmation sheet</translation>
    </message>
    <message>
        <source>Do Not Print a Confirmation Sheet</source>
        <translation>Do not print a confirmation sheet</translation>
    </message>
    <message>
        <source>Do Not Print a Cover Sheet</source>
        <translation>Do not print a cover sheet</translation>
    </message>
    <message>
        <source>Print a Cover Sheet...</source>
        <translation>Print a cover sheet…</translation>
    </message>
    <message>
        <source>Show All Recipients</source>
        <translation>Show all recipients</translation>
    </message>
    <message>
        <source>Hide Recipient&apos;s Information</source>
        <translation>Hide recipients’ information</translation>
    </message>
    <message>
        <source>Show Custom Text</source>
        <translation>Show custom text</translation>
    </message>
    <message>
        <source>Show Sender&apos;s Information</source>
        <translation>Show sender’s information</translation>
    </message>
    <message>
        <source>Hide Sender&apos;s Information</source>
        <translation>Hide sender’s information</translation>
    </message>
    <message>
        <source>Cover Sheet Paper Size</source>
        <translation>Cover sheet paper size</translation>
    </message>
    <message>
        <source>0.5&quot; (8.5x11&quot; Template)</source>
        <translation>0.5 in (8.5 × 11 in template)</translation>
    </message>
    <message>
        <source>12.7 mm (A4 Template)</source>
        <translation>12.7 mm (A4 template)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Inches</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Millimeters</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>SavePrint</source>
        <translation>Save and print</translation>
    </message>
    <message>
        <source>PublicFolder</source>
        <translation>Default public folder</translation>
    </message>
    <message>
        <source>UseJobName</source>
        <translation>Use document name</translation>
    </message>
    <message>
        <source>UseLoginName</source>
        <translation>Use login name</translation>
    </message>
    <message>
        <source>StockSizeLetter</source>
        <translation>Letter (8.5 × 11 in)</translation>
    </message>
    <message>
        <source>StockSizeA4</source>
        <translation>A4 (210 × 297 mm)</translation>
    </message>
    <message>
        <source>Separator Option None</source>
        <translation>No separators</translation>
    </message>
    <message>
        <source>Separator Option Blank</source>
        <translation>Blank separators</translation>
    </message>
    <message>
        <source>Separator Option Printed</source>
        <translation>Printed separators</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>SecurePrint</source>
        <translation>Secure print</translation>
    </message>
    <message>
        <source>SampleSet</source>
        <translation>Sample set</translation>
    </message>
    <message>
        <source>DelayedPrint</source>
        <translation>Delayed print</translation>
    </message>
    <message>
        <source>Save to Mailbox Command</source>
        <translation>Saved job</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>600 x 600 Resolution</source>
        <translation>600 × 600 dpi</translation>
    </message>
    <message>
        <source>Simplex</source>
        <translation>1-sided print</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>2-sided print</translation>
    </message>
    <message>
        <source>DuplexShort</source>
        <translation>2-sided print, flip on short edge</translation>
    </message>
    <message>
        <source>CoverPrinted</source>
        <translation>Printed</translation>
    </message>
    <message>
        <source>CoverBlankorPreprinted</source>
        <translation>Blank or preprinted</translation>
    </message>
    <!-- What is fitted to the device -->
    <message>
        <source>1 Staple</source>
        <translation>1 staple</translation>
    </message>
    <message>
        <source>2 Staples</source>
        <translation>2 staples</translation>
    </message>
    <message>
        <source>Multiple Staples</source>
        <translation>Multiple staples</translation>
    </message>
    <message>
        <source>HolePunch</source>
        <translation>Hole punch</translation>
    </message>
    <message>
        <source>2 Hole Punch</source>
        <translation>2-hole punch</translation>
    </message>
    <message>
        <source>3 Hole Punch</source>
        <translation>3-hole punch</translation>
    </message>
    <message>
        <source>4 Hole Punch</source>
        <translation>4-hole punch</translation>
    </message>
    <message>
        <source>FoldCFold</source>
        <translation>C-fold</translation>
    </message>
    <message>
        <source>FoldZFold</source>
        <translation>Z-fold</translation>
    </message>
    <message>
        <source>Z Fold Half Sheet</source>
        <translation>Z-fold half sheet</translation>
    </message>
    <message>
        <source>BiFoldNoStaple</source>
        <translation>Booklet fold</translation>
    </message>
    <message>
        <source>Tape Binding</source>
        <translation>Tape binding</translation>
    </message>
    <message>
        <source>Post-Print Inserter</source>
        <translation>Post-print inserter</translation>
    </message>
    <message>
        <source>Auto Switch Tray</source>
        <translation>Automatic output tray switching</translation>
    </message>
    <message>
        <source>Stacker Tray 1</source>
        <translation>Stacker tray 1 (upper)</translation>
    </message>
    <message>
        <source>Stacker Tray 2</source>
        <translation>Stacker tray 2 (lower)</translation>
    </message>
    <message>
        <source>Simple Catch Tray</source>
        <translation>Side tray</translation>
    </message>
</context>
</TS>

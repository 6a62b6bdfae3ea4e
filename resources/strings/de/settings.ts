<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Menus of every panel -->
    <message>
        <source>PrinterDefault</source>
        <translation>Druckerstandard</translation>
    </message>
    <message>
        <source>UseJobSetting</source>
        <translation>Wie im Auftrag</translation>
    </message>
    <message>
        <source>Not Offered Here</source>
        <translation>Hier nicht angeboten</translation>
    </message>
    <message>
        <source>Choice Not Offered</source>
        <translation>Der Auftrag enthält eine Wahl, die hier nicht angeboten wird, und behält sie.</translation>
    </message>
    <message>
        <source>Not on This Device</source>
        <translation>Dieses Gerät bietet das nicht an.</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Gather</source>
        <translation>Sammeln</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Halbrook 3300</source>
        <translation>Halbrook 3300</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>Druckseite unten</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>Druckseite oben</translation>
    </message>
    <message>
        <source>RightToLeft</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>LeftToRight</source>
        <translation>Von links nach rechts</translation>
    </message>
    <message>
        <source>No Covers</source>
        <translation>Keine Deckblätter</translation>
    </message>
    <message>
        <source>Front Cover Only</source>
        <translation>Nur Deckblatt vorn</translation>
    </message>
    <message>
        <source>Back Cover Only</source>
        <translation>Nur Deckblatt hinten</translation>
    </message>
    <message>
        <source>Front and Back Covers</source>
        <translation>Deckblätter vorn und hinten</translation>
    </message>
    <message>
        <source>After Page</source>
        <translation>Nach Seite</translation>
    </message>
    <message>
        <source>SpecialPageSummaryBefore1</source>
        <translation>Vor Seite 1</translation>
    </message>
    <message>
        <source>Setup...</source>
        <translation>Einrichten…</translation>
    </message>
    <message>
        <source>No Page Borders</source>
        <translation>Keine Seitenrahmen</translation>
    </message>
    <message>
        <source>Draw Page Borders</source>
        <translation>Seitenrahmen zeichnen</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>WatermarkBackground</source>
        <translation>Im Hintergrund drucken</translation>
    </message>
    <message>
        <source>WatermarkBlend</source>
        <translation>Mit der Seite mischen</translation>
    </message>
    <message>
        <source>WatermarkForeground</source>
        <translation>Im Vordergrund drucken</translation>
    </message>
    <message>
        <source>WatermarkPrintOnAllPages</source>
        <translation>Auf alle Seiten drucken</translation>
    </message>
    <message>
        <source>WatermarmPrintOnPage1Only</source>
        <translation>Nur auf Seite 1 drucken</translation>
    </message>
    <message>
        <source>NoWatermark</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>Neu…</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>Fein</translation>
    </message>
    <message>
        <source>Superfine</source>
        <translation>Superfein</translation>
    </message>
    <message>
        <source>Ultrafine</source>
        <translation>Ultrafein</translation>
    </message>
    <message>
        <source>G3-Auto</source>
        <translation>G3 (automatisch)</translation>
    </message>
    <message>
        <source>Fixed G3</source>
        <translation>G3 (fest)</translation>
    </message>
    <message>
        <source>G4-Auto</source>
        <translation>G4 (automatisch)</translation>
    </message>
    <message>
        <source>Print a Confirmation Sheet</source>
        <translation>Bestätigung drucken</translation>
    </message>
    <message>
        <source>Do Not Print a Confirmation Sheet</source>
        <translation>Keine Bestätigung drucken</translation>
    </message>
    <message>
        <source>Do Not Print a Cover Sheet</source>
        <translation>Kein Deckblatt drucken</translation>
    </message>
    <message>
        <source>Print a Cover Sheet...</source>
        <translation>Deckblatt drucken…</translation>
    </message>
    <message>
        <source>Show All Recipients</source>
        <translation>Alle Empfänger zeigen</translation>
    </message>
    <message>
        <source>Hide Recipient&apos;s Information</source>
        <translation>Angaben zum Empfänger weglassen</translation>
    </message>
    <message>
        <source>Show Custom Text</source>
        <translation>Eigenen Text zeigen</translation>
    </message>
    <message>
        <source>Show Sender&apos;s Information</source>
        <translation>Angaben zum Absender zeigen</translation>
    </message>
    <message>
        <source>Hide Sender&apos;s Information</source>
        <translation>Angaben zum Absender weglassen</translation>
    </message>
    <message>
        <source>Cover Sheet Paper Size</source>
        <translation>Papierformat des Deckblatts</translation>
    </message>
    <message>
        <source>0.5&quot; (8.5x11&quot; Template)</source>
        <translation>0,5 in (Vorlage 8,5 × 11 in)</translation>
    </message>
    <message>
        <source>12.7 mm (A4 Template)</source>
        <translation>12,7 mm (Vorlage A4)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>SavePrint</source>
        <translation>Speichern und drucken</translation>
    </message>
    <message>
        <source>PublicFolder</source>
        <translation>Öffentlicher Standardordner</translation>
    </message>
    <message>
        <source>UseJobName</source>
        <translation>Dokumentnamen verwenden</translation>
    </message>
    <message>
        <source>UseLoginName</source>
        <translation>Anmeldenamen verwenden</translation>
    </message>
    <message>
        <source>StockSizeLetter</source>
        <translation>Letter (8,5 × 11 in)</translation>
    </message>
    <message>
        <source>StockSizeA4</source>
        <translation>A4 (210 × 297 mm)</translation>
    </message>
    <message>
        <source>Separator Option None</source>
        <translation>Keine Trennblätter</translation>
    </message>
    <message>
        <source>Separator Option Blank</source>
        <translation>Leere Trennblätter</translation>
    </message>
    <message>
        <source>Separator Option Printed</source>
        <translation>Bedruckte Trennblätter</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>SecurePrint</source>
        <translation>Sicherer Druck</translation>
    </message>
    <message>
        <source>SampleSet</source>
        <translation>Probesatz</translation>
    </message>
    <message>
        <source>DelayedPrint</source>
        <translation>Zeitversetzt</translation>
    </message>
    <message>
        <source>Save to Mailbox Command</source>
        <translation>Gespeichert</translation>
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
        <translation>Einseitig</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Beidseitig</translation>
    </message>
    <message>
        <source>DuplexShort</source>
        <translation>Beidseitig, kurze Kante</translation>
    </message>
    <message>
        <source>CoverPrinted</source>
        <translation>Bedruckt</translation>
    </message>
    <message>
        <source>CoverBlankorPreprinted</source>
        <translation>Leer oder vorbedruckt</translation>
    </message>
    <!-- What is fitted to the device -->
    <message>
        <source>1 Staple</source>
        <translation>1 Heftklammer</translation>
    </message>
    <message>
        <source>2 Staples</source>
        <translation>2 Heftklammern</translation>
    </message>
    <message>
        <source>Multiple Staples</source>
        <translation>Mehrere Heftklammern</translation>
    </message>
    <message>
        <source>HolePunch</source>
        <translation>Lochen</translation>
    </message>
    <message>
        <source>2 Hole Punch</source>
        <translation>2 Löcher</translation>
    </message>
    <message>
        <source>3 Hole Punch</source>
        <translation>3 Löcher</translation>
    </message>
    <message>
        <source>4 Hole Punch</source>
        <translation>4 Löcher</translation>
    </message>
    <message>
        <source>FoldCFold</source>
        <translation>Wickelfalz</translation>
    </message>
    <message>
        <source>FoldZFold</source>
        <translation>Z-Falz</translation>
    </message>
    <message>
        <source>Z Fold Half Sheet</source>
        <translation>Z-Falz, halbes Blatt</translation>
    </message>
    <message>
        <source>BiFoldNoStaple</source>
        <translation>Broschüre falzen</translation>
    </message>
    <message>
        <source>Tape Binding</source>
        <translation>Bandbindung</translation>
    </message>
    <message>
        <source>Post-Print Inserter</source>
        <translation>Zuschießeinheit</translation>
    </message>
    <message>
        <source>Auto Switch Tray</source>
        <translation>Automatischer Ausgabefachwechsel</translation>
    </message>
    <message>
        <source>Stacker Tray 1</source>
        <translation>Stapelfach 1 (oben)</translation>
    </message>
    <message>
        <source>Stacker Tray 2</source>
        <translation>Stapelfach 2 (unten)</translation>
    </message>
    <message>
        <source>Simple Catch Tray</source>
        <translation>Seitliches Fach</translation>
    </message>
</context>
</TS>

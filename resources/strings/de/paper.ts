<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PaperOutput</source>
        <translation>Papier/Ausgabe</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Cover Without Source</source>
        <translation>Keine Papierquelle: entfällt</translation>
    </message>
    <message>
        <source>Job Type:</source>
        <translation>Auf&amp;tragsart:</translation>
    </message>
    <message>
        <source>Job Type Tip</source>
        <translation>Ein sicherer Druck wartet am Gerät auf eine PIN, ein zeitversetzter auf eine Uhrzeit. Von einem Probesatz wird ein Exemplar gedruckt; die anderen warten, bis Sie es geprüft haben. Ein gespeicherter Auftrag bleibt am Gerät.</translation>
    </message>
    <message>
        <source>Job Type Setup</source>
        <translation>Einrichten…</translation>
    </message>
    <message>
        <source>Job Type Setup Tip</source>
        <translation>PIN, Uhrzeit, Postfach oder Faxempfänger, je nach Auftragsart</translation>
    </message>
    <message>
        <source>Paper Summary:</source>
        <translation>Papie&amp;r:</translation>
    </message>
    <message>
        <source>Paper Summary Spoken</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Stock Menu Title</source>
        <translation>Papier ändern</translation>
    </message>
    <message>
        <source>Two Sided Printing:</source>
        <translation>Beidseitiger Druc&amp;k:</translation>
    </message>
    <message>
        <source>Output Color:</source>
        <translation>&amp;Farbausgabe:</translation>
    </message>
    <message>
        <source>Stapling:</source>
        <translation>H&amp;eften:</translation>
    </message>
    <message>
        <source>Hole Punch:</source>
        <translation>&amp;Lochen:</translation>
    </message>
    <message>
        <source>Output Destination:</source>
        <translation>Ausga&amp;befach:</translation>
    </message>
    <message>
        <source>Finishing:</source>
        <translation>Endverarbe&amp;itung:</translation>
    </message>
    <message>
        <source>Finishing Summary Spoken</source>
        <translation>Endverarbeitung</translation>
    </message>
    <message>
        <source>Finishing Menu Title</source>
        <translation>Endverarbeitung ändern</translation>
    </message>
    <message>
        <source>More Finishing Menu Title</source>
        <translation>&amp;Weitere Endverarbeitung</translation>
    </message>
    <message>
        <source>More Finishing Tip</source>
        <translation>Fenster, die jede Art der Endverarbeitung zeigen und sagen, was sie voraussetzt</translation>
    </message>
    <message>
        <source>No Finishing Devices</source>
        <translation>Dieses Gerät hat keine Endverarbeitungseinheit.</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Paper Name in Words</source>
        <translation>Papiername:</translation>
    </message>
    <message>
        <source>Paper Properties in Words</source>
        <translation>Papiereigenschaften:</translation>
    </message>
    <message>
        <source>Paper Color in Words</source>
        <translation>Papierfarbe:</translation>
    </message>
    <message>
        <source>Paper Type in Words</source>
        <translation>Papierart:</translation>
    </message>
</context>
</TS>

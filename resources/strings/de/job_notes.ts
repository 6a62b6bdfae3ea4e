<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>JobNotes</source>
        <translation>Auftragsnotizen</translation>
    </message>
    <message>
        <source>Sender Name:</source>
        <translation>A&amp;bsender:</translation>
    </message>
    <message>
        <source>Recipient Name:</source>
        <translation>&amp;Empfänger:</translation>
    </message>
    <message>
        <source>Banner Message:</source>
        <translation>Text au&amp;f Begleitblatt:</translation>
    </message>
    <message>
        <source>Banner Message Tip</source>
        <translation>Steht auf dem Begleitblatt unter den Namen; eingeschaltet wird das Blatt auf der Registerkarte „Erweitert“.</translation>
    </message>
    <message>
        <source>Job Start Message:</source>
        <translation>&amp;Meldung beim Start:</translation>
    </message>
    <message>
        <source>Job Start Message Tip</source>
        <translation>Erscheint am Gerät, wenn der Auftrag beginnt, etwa „Briefbogen einlegen“</translation>
    </message>
    <message>
        <source>Job Notes Preferences Command</source>
        <translation>Einste&amp;llungen…</translation>
    </message>
    <message>
        <source>Job Notes Login Name Hint</source>
        <translation>Auf dem Begleitblatt, das unter „Erweitert“ eingeschaltet wird, stehen Sie (%1) als Auftrag, Absender und Empfänger. Geben Sie einen Auftragsnamen ein, um andere Namen zu drucken.</translation>
    </message>
    <message>
        <source>Job Notes Names Lost Hint</source>
        <translation>Geben Sie einen Auftragsnamen ein, damit der eingegebene Absender und Empfänger gedruckt werden. Ohne ihn stehen Sie (%1) an allen drei Stellen des Begleitblatts.</translation>
    </message>
    <message>
        <source>Job Notes Names Typed Hint</source>
        <translation>Auf dem Begleitblatt stehen die Namen wie hier. „Anmeldenamen verwenden“ druckt Ihren (%1).</translation>
    </message>
    <message>
        <source>Job Notes Preferences Title</source>
        <translation>Einstellungen der Auftragsnotizen</translation>
    </message>
    <message>
        <source>Job Notes New Jobs</source>
        <translation>Namen eines neuen Auftrags</translation>
    </message>
    <message>
        <source>Use Document Name As Job Name</source>
        <translation>&amp;Dokumentnamen als Auftragsnamen verwenden</translation>
    </message>
    <message>
        <source>Use Login Name As Sender Name</source>
        <translation>Anmeldenamen als &amp;Absender verwenden</translation>
    </message>
    <message>
        <source>Use Login Name As Recipient Name</source>
        <translation>Anmeldenamen als &amp;Empfänger verwenden</translation>
    </message>
    <message>
        <source>Job Notes Preferences Not Kept Headline</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Job Notes Preferences Not Kept</source>
        <translation>Um sie zu behalten, sorgen Sie dafür, dass diese Datei geschrieben werden kann und dass Platz für sie da ist: %1</translation>
    </message>
    <message>
        <source>Job Notes Banner Picture</source>
        <translation>Ein Blatt mit einer Mitteilung</translation>
    </message>
    <message>
        <source>Job Notes Start Picture</source>
        <translation>Eine Meldung am Gerät</translation>
    </message>
</context>
</TS>

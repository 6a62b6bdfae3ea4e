<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <!-- The dialog -->
    <message>
        <source>Cover Sheet Title</source>
        <translation>Deckblatt</translation>
    </message>
    <message>
        <source>Cover Sender:</source>
        <translation>&amp;Absender:</translation>
    </message>
    <message>
        <source>Cover Sender Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Cover Sender Name</source>
        <translation>Name des Absenders</translation>
    </message>
    <message>
        <source>Cover Sender Organization:</source>
        <translation>&amp;Firma:</translation>
    </message>
    <message>
        <source>Cover Sender Organization</source>
        <translation>Firma des Absenders</translation>
    </message>
    <message>
        <source>Cover Sender Email:</source>
        <translation>E-&amp;Mail:</translation>
    </message>
    <message>
        <source>Cover Sender Email</source>
        <translation>E-Mail-Adresse des Absenders</translation>
    </message>
    <message>
        <source>Cover Sender Phone:</source>
        <translation>Te&amp;lefon:</translation>
    </message>
    <message>
        <source>Cover Sender Phone</source>
        <translation>Telefonnummer des Absenders</translation>
    </message>
    <message>
        <source>Cover Sender Fax:</source>
        <translation>Fa&amp;x:</translation>
    </message>
    <message>
        <source>Cover Sender Fax</source>
        <translation>Faxnummer des Absenders</translation>
    </message>
    <message>
        <source>Cover My Card</source>
        <translation>Meine &amp;Visitenkarte verwenden</translation>
    </message>
    <message>
        <source>Cover My Card Reading</source>
        <translation>Ihre Visitenkarte wird im Adressbuch gesucht…</translation>
    </message>
    <message>
        <source>Cover My Card Missing</source>
        <translation>In Ihrem Adressbuch ist keine Visitenkarte als Ihre eigene gekennzeichnet. Kennzeichnen Sie dort eine, dann kann sie hier verwendet werden.</translation>
    </message>
    <message>
        <source>Cover My Card Unavailable</source>
        <translation>Ihre Visitenkarte kann nicht verwendet werden – %1.</translation>
    </message>
    <message>
        <source>Cover My Card No Thread</source>
        <translation>das System kann keine weitere Aufgabe starten; schließen Sie andere Programme</translation>
    </message>
    <message>
        <source>Cover Recipients:</source>
        <translation>&amp;Empfänger:</translation>
    </message>
    <message>
        <source>Cover Custom Text:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>Cover Custom Text</source>
        <translation>Text anstelle der Empfänger</translation>
    </message>
    <message>
        <source>Cover Image:</source>
        <translation>&amp;Bild:</translation>
    </message>
    <message>
        <source>Cover Image</source>
        <translation>Bild über dem Deckblatt</translation>
    </message>
    <message>
        <source>Cover Image Not Here</source>
        <translation>%1 (nicht auf diesem Computer)</translation>
    </message>
    <message>
        <source>Cover Paper Hint</source>
        <translation>Papierformat: %1</translation>
    </message>
    <message>
        <source>Cover Window Preview</source>
        <translation>So sieht das Deckblatt aus</translation>
    </message>
    <message>
        <source>Delete Cover Image Header</source>
        <translation>Dieses Bild löschen?</translation>
    </message>
    <message>
        <source>Delete Cover Image Message</source>
        <translation>„%1“ wird aus Ihrer Liste der Deckblattbilder entfernt. Die Datei selbst bleibt erhalten. Das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Cover Image Not Saved Header</source>
        <translation>Das Bild wurde nicht gespeichert</translation>
    </message>
    <message>
        <source>Cover Image Not Saved Message</source>
        <translation>Ihre Liste der Deckblattbilder ist unverändert. %1</translation>
    </message>

    <!-- The preview -->
    <message>
        <source>Cover Preview Reading</source>
        <translation>Das Bild wird gelesen…</translation>
    </message>
    <message>
        <source>Cover Preview Cut</source>
        <translation>Der Text ist länger, als auf dem Deckblatt Platz ist: Sein Ende entfällt.</translation>
    </message>
    <message>
        <source>Cover Preview No Font</source>
        <translation>Einige Zeichen fehlen in allen Schriften dieses Computers und sind hier weggelassen: %1.</translation>
    </message>
    <message>
        <source>Cover Preview Image Lost</source>
        <translation>Auf diesem Computer gibt es kein Bild „%1“; deshalb wird hier keines gezeigt.</translation>
    </message>
    <message>
        <source>Cover Preview Image Unreadable</source>
        <translation>Das Bild lässt sich nicht zeigen. %1</translation>
    </message>
    <message>
        <source>Cover Preview No Thread</source>
        <translation>Die Vorschau lässt sich nicht zeichnen: Das System kann keine weitere Aufgabe starten. Schließen Sie andere Programme.</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Cover Image Editor</source>
        <translation>Deckblattbild</translation>
    </message>
</context>
</TS>

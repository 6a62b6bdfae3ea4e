<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Text or picture -->
    <message>
        <source>Watermark Kind:</source>
        <translation>Art:</translation>
    </message>
    <message>
        <source>Watermark Kind</source>
        <translation>Art des Wasserzeichens</translation>
    </message>
    <message>
        <source>Watermark Kind Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>Watermark Kind Picture</source>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>Watermark Text Hint</source>
        <translation>Der Maßstab gilt für Bilder: Ein Text ist so groß wie seine Schrift.</translation>
    </message>
    <message>
        <source>Watermark Picture Hint</source>
        <translation>Ein Bild wird aufrecht in der Mitte der Seite gedruckt, in seinen eigenen Farben. Winkel, Dichte und Lage gelten für Texte.</translation>
    </message>
    <message>
        <source>Watermark Cover Hint</source>
        <translation>Ein Deckblattbild wird aufrecht in der Mitte der Seite gedruckt. Winkel und Lage gelten für Texte.</translation>
    </message>
    <!-- Texts -->
    <message>
        <source>Watermark Words:</source>
        <translation>Wo&amp;rtlaut:</translation>
    </message>
    <message>
        <source>Watermark Words</source>
        <translation>Wortlaut</translation>
    </message>
    <message>
        <source>Watermark Font:</source>
        <translation>S&amp;chrift:</translation>
    </message>
    <message>
        <source>Watermark Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Watermark Font Missing</source>
        <translation>%1 (nicht installiert)</translation>
    </message>
    <message>
        <source>Watermark Font Replaced Hint</source>
        <translation>Diese Schrift ist hier nicht installiert. %1 tritt an ihre Stelle.</translation>
    </message>
    <message>
        <source>Watermark Font Missing Hint</source>
        <translation>Diese Schrift ist hier nicht installiert. Die Schrift der Arbeitsumgebung tritt an ihre Stelle.</translation>
    </message>
    <message>
        <source>Watermark No Fonts Hint</source>
        <translation>Die Liste der Schriften lässt sich nicht lesen. Installieren Sie die Software neu oder fragen Sie Ihre Systemverwaltung.</translation>
    </message>
    <message>
        <source>Watermark Size:</source>
        <translation>&amp;Größe:</translation>
    </message>
    <message>
        <source>Watermark Size</source>
        <translation>Größe in Punkt</translation>
    </message>
    <message>
        <source>Watermark Sizes</source>
        <translation>Größen</translation>
    </message>
    <message>
        <source>Watermark Typical Sizes</source>
        <translation>Übliche Größen</translation>
    </message>
    <message>
        <source>Watermark Size Limits</source>
        <translation>%1 bis %2 Punkt</translation>
    </message>
    <message>
        <source>Watermark Color:</source>
        <translation>&amp;Farbe:</translation>
    </message>
    <message>
        <source>Watermark Color</source>
        <translation>Farbe: Rot, Grün und Blau mit je zwei Ziffern</translation>
    </message>
    <message>
        <source>Watermark Color Button</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Watermark Color Hint</source>
        <translation>Der Text wird in dieser Farbe gedruckt</translation>
    </message>
    <message>
        <source>Watermark Font Color:</source>
        <translation>&amp;Schriftfarbe:</translation>
    </message>
    <message>
        <source>Watermark Font Color</source>
        <translation>Schriftfarbe: Rot, Grün und Blau mit je zwei Ziffern</translation>
    </message>
    <message>
        <source>Watermark Font Color Button</source>
        <translation>Schriftfarbe wählen</translation>
    </message>
    <message>
        <source>Watermark Font Color Hint</source>
        <translation>Bleibt bei der Schrift; wird nicht gedruckt</translation>
    </message>
    <message>
        <source>Watermark Angle:</source>
        <translation>Win&amp;kel:</translation>
    </message>
    <message>
        <source>Watermark Angle</source>
        <translation>Winkel in Grad</translation>
    </message>
    <message>
        <source>Watermark Angle Dial</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Watermark Degrees</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Watermark Angle Limits</source>
        <translation>%1 bis %2 Grad</translation>
    </message>
    <message>
        <source>Watermark Density:</source>
        <translation>&amp;Dichte:</translation>
    </message>
    <message>
        <source>Watermark Density</source>
        <translation>Dichte in Prozent</translation>
    </message>
    <message>
        <source>Watermark Density Tip</source>
        <translation>0 Prozent sind unsichtbar, 100 Prozent verdecken, was darunter liegt.</translation>
    </message>
    <message>
        <source>Watermark Percent</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Watermark Density Limits</source>
        <translation>%1 bis %2 Prozent</translation>
    </message>
    <!-- Place -->
    <message>
        <source>Watermark Right:</source>
        <translation>&amp;Nach rechts:</translation>
    </message>
    <message>
        <source>Watermark Right</source>
        <translation>Von der Mitte nach rechts</translation>
    </message>
    <message>
        <source>Watermark Up:</source>
        <translation>Nach &amp;oben:</translation>
    </message>
    <message>
        <source>Watermark Up</source>
        <translation>Von der Mitte nach oben</translation>
    </message>
    <message>
        <source>Watermark Units</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Watermark Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Watermark Millimetres</source>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Watermark Offset Limits</source>
        <translation>%1 bis %2 von der Mitte</translation>
    </message>
    <message>
        <source>Watermark Center</source>
        <translation>&amp;In die Mitte</translation>
    </message>
    <!-- Pictures -->
    <message>
        <source>Watermark Picture:</source>
        <translation>Bilddatei:</translation>
    </message>
    <message>
        <source>Watermark Choose</source>
        <translation>&amp;Wählen…</translation>
    </message>
    <message>
        <source>Watermark Choose Picture</source>
        <translation>Bilddatei wählen</translation>
    </message>
    <message>
        <source>Watermark Picture Chooser</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Watermark Picture Kinds</source>
        <translation>Bilder (PNG, JPEG, GIF, BMP, TIFF, SVG)</translation>
    </message>
    <message>
        <source>Watermark All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Watermark Picture None</source>
        <translation>keine gewählt</translation>
    </message>
    <message>
        <source>Watermark Picture Formats</source>
        <translation>PNG, JPEG, GIF, BMP, TIFF oder SVG</translation>
    </message>
    <message>
        <source>Watermark Picture Reading</source>
        <translation>Das Bild wird gelesen…</translation>
    </message>
    <message>
        <source>Watermark Picture Inches</source>
        <translation>%1 mal %2 Pixel, gedruckt %3 mal %4 Zoll groß</translation>
    </message>
    <message>
        <source>Watermark Picture Millimetres</source>
        <translation>%1 mal %2 Pixel, gedruckt %3 mal %4 Millimeter groß</translation>
    </message>
    <message>
        <source>Watermark Scale:</source>
        <translation>&amp;Maßstab:</translation>
    </message>
    <message>
        <source>Watermark Scale</source>
        <translation>Maßstab in Prozent</translation>
    </message>
    <message>
        <source>Watermark Scale Limits</source>
        <translation>%1 bis %2 Prozent</translation>
    </message>
    <!-- Preview -->
    <message>
        <source>Watermark Editor Preview</source>
        <translation>Das Wasserzeichen auf dem Papier</translation>
    </message>
    <message>
        <source>Watermark Over Page</source>
        <translation>&amp;Auf der ersten Seite zeigen</translation>
    </message>
    <message>
        <source>Watermark No Page</source>
        <translation>Die erste Seite lässt sich zeigen, wenn es ein Dokument gibt.</translation>
    </message>
    <message>
        <source>Watermark Place Hint</source>
        <translation>Ziehen Sie auf der Seite, um das Wasserzeichen zu verschieben, oder verwenden Sie die Pfeiltasten; mit Umschalt rückt es zehnmal so weit.</translation>
    </message>
    <!-- What OK refuses, and asks -->
    <message>
        <source>Watermark Refused Header</source>
        <translation>Das Wasserzeichen kann noch nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Watermark No Color</source>
        <translation>Geben Sie die Farbe als # mit sechs Ziffern von 0 bis 9 und A bis F ein: #FF0000 ist Rot. Oder wählen Sie sie mit der Schaltfläche.</translation>
    </message>
    <message>
        <source>Watermark No Text</source>
        <translation>Geben Sie den Wortlaut ein, der gedruckt wird.</translation>
    </message>
    <message>
        <source>Watermark No Picture</source>
        <translation>Wählen Sie das Bild, das gedruckt wird.</translation>
    </message>
    <message>
        <source>Watermark Picture Still Read</source>
        <translation>Das Bild wird noch gelesen. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>Watermark Picture Unreadable</source>
        <translation>Das Bild lässt sich nicht lesen. %1</translation>
    </message>
    <message>
        <source>Watermark Name Reserved</source>
        <translation>„%1“ ist ein Name, den die Liste der Wasserzeichen für sich selbst braucht. Ändern Sie den Wortlaut oder den Namen der Bilddatei.</translation>
    </message>
    <message>
        <source>Watermark Name Is Font</source>
        <translation>Unter „%1“ wird eine Schrift für den Druck aufbewahrt. Ändern Sie den Wortlaut oder den Namen der Bilddatei.</translation>
    </message>
    <message>
        <source>Watermark Replace Header</source>
        <translation>„%1“ ersetzen?</translation>
    </message>
    <message>
        <source>Watermark Replace Message</source>
        <translation>Es gibt schon ein Wasserzeichen mit diesem Namen. Die Liste enthält jeden Namen nur einmal, ob Text oder Bild; das andere wäre verloren.</translation>
    </message>
    <message>
        <source>Watermark Replace</source>
        <translation>Ersetzen</translation>
    </message>
</context>
</TS>

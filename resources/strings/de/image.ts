<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>ImageOptions</source>
        <translation>Bildoptionen</translation>
    </message>
    <message>
        <source>Lighten/Darken:</source>
        <translation>H&amp;eller/dunkler:</translation>
    </message>
    <message>
        <source>Lighten/Darken Slider</source>
        <translation>Heller oder dunkler, in Stufen</translation>
    </message>
    <message>
        <source>Lighten5</source>
        <translation>Heller 5</translation>
    </message>
    <message>
        <source>Lighten4</source>
        <translation>Heller 4</translation>
    </message>
    <message>
        <source>Lighten3</source>
        <translation>Heller 3</translation>
    </message>
    <message>
        <source>Lighten2</source>
        <translation>Heller 2</translation>
    </message>
    <message>
        <source>Lighten1</source>
        <translation>Heller 1</translation>
    </message>
    <message>
        <source>Darken1</source>
        <translation>Dunkler 1</translation>
    </message>
    <message>
        <source>Darken2</source>
        <translation>Dunkler 2</translation>
    </message>
    <message>
        <source>Darken3</source>
        <translation>Dunkler 3</translation>
    </message>
    <message>
        <source>Darken4</source>
        <translation>Dunkler 4</translation>
    </message>
    <message>
        <source>Darken5</source>
        <translation>Dunkler 5</translation>
    </message>
    <message>
        <source>Use Printer Default</source>
        <translation>D&amp;ruckerstandard verwenden</translation>
    </message>
    <message>
        <source>Printer Default Tip</source>
        <translation>Schickt keine Helligkeit mit dem Auftrag: Es gilt die Einstellung des Geräts.</translation>
    </message>
    <message>
        <source>Printer Default Words</source>
        <translation>Der Druckerstandard ist „%1“.</translation>
    </message>
    <message>
        <source>Kept Lightness Words</source>
        <translation>Der Auftrag enthält bereits „%1“ und behält es.</translation>
    </message>
    <message>
        <source>Image Quality:</source>
        <translation>&amp;Bildqualität:</translation>
    </message>
    <message>
        <source>Image Quality Hint</source>
        <translation>Wie fein Bilder und Text gedruckt werden.</translation>
    </message>
    <message>
        <source>Toner Saver:</source>
        <translation>Sparmodus:</translation>
    </message>
    <message>
        <source>Conserve Dry Ink</source>
        <translation>&amp;Toner sparen</translation>
    </message>
    <message>
        <source>Conserve Dry Ink Spoken</source>
        <translation>Sparmodus: Toner sparen</translation>
    </message>
    <message>
        <source>Toner Saver Hint</source>
        <translation>Druckt blasser, für Entwürfe.</translation>
    </message>
    <message>
        <source>CMYK Source Color:</source>
        <translation>CMYK-&amp;Quellfarbe:</translation>
    </message>
    <message>
        <source>CMYK Source Color Hint</source>
        <translation>Wofür die CMYK-Farben des Dokuments angelegt wurden.</translation>
    </message>
    <message>
        <source>Output Color Correction:</source>
        <translation>&amp;Farbkorrektur der Ausgabe:</translation>
    </message>
    <message>
        <source>Output Color Correction Hint</source>
        <translation>Wie Farben auf dem Papier abgestimmt werden.</translation>
    </message>
    <message>
        <source>Invert Image Label</source>
        <translation>Bild umkehren:</translation>
    </message>
    <message>
        <source>Mirror Image Title</source>
        <translation>Spiege&amp;lbild</translation>
    </message>
    <message>
        <source>Mirror Image Spoken</source>
        <translation>Bild umkehren: Spiegelbild</translation>
    </message>
    <message>
        <source>Mirror Image Hint</source>
        <translation>Vertauscht links und rechts, für Folien und Transferdruck.</translation>
    </message>
    <message>
        <source>Negative Image Title</source>
        <translation>Negativ</translation>
    </message>
    <message>
        <source>Negative Image Hint</source>
        <translation>Der Auftrag verlangt ein Negativ und behält es.</translation>
    </message>
    <message>
        <source>Image Example</source>
        <translation>So würde eine Seite gedruckt</translation>
    </message>
    <message>
        <source>Image Example Caption</source>
        <translation>Beispiel; auf Papier können Farben abweichen.</translation>
    </message>
</context>
</TS>

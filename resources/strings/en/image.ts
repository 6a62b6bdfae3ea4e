<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>ImageOptions</source>
        <translation>Image Options</translation>
    </message>
    <message>
        <source>Lighten/Darken:</source>
        <translation>Lighten/&amp;darken:</translation>
    </message>
    <message>
        <source>Lighten/Darken Slider</source>
        <translation>Lighten or darken, in steps</translation>
    </message>
    <message>
        <source>Lighten5</source>
        <translation>Lighten 5</translation>
    </message>
    <message>
        <source>Lighten4</source>
        <translation>Lighten 4</translation>
    </message>
    <message>
        <source>Lighten3</source>
        <translation>Lighten 3</translation>
    </message>
    <message>
        <source>Lighten2</source>
        <translation>Lighten 2</translation>
    </message>
    <message>
        <source>Lighten1</source>
        <translation>Lighten 1</translation>
    </message>
    <message>
        <source>Darken1</source>
        <translation>Darken 1</translation>
    </message>
    <message>
        <source>Darken2</source>
        <translation>Darken 2</translation>
    </message>
    <message>
        <source>Darken3</source>
        <translation>Darken 3</translation>
    </message>
    <message>
        <source>Darken4</source>
        <translation>Darken 4</translation>
    </message>
    <message>
        <source>Darken5</source>
        <translation>Darken 5</translation>
    </message>
    <message>
        <source>Use Printer Default</source>
        <translation>&amp;Use the printer’s default</translation>
    </message>
    <message>
        <source>Printer Default Tip</source>
        <translation>Sends no lightness with the job: the device’s own setting counts.</translation>
    </message>
    <message>
        <source>Printer Default Words</source>
        <translation>The printer’s default is “%1”.</translation>
    </message>
    <message>
        <source>Kept Lightness Words</source>
        <translation>The job already says “%1”, and keeps it.</translation>
    </message>
    <message>
        <source>Image Quality:</source>
        <translation>Image &amp;quality:</translation>
    </message>
    <message>
        <source>Image Quality Hint</source>
        <translation>How finely pictures and text are printed.</translation>
    </message>
    <message>
        <source>Toner Saver:</source>
        <translation>Toner saver:</translation>
    </message>
    <message>
        <source>Conserve Dry Ink</source>
        <translation>Use &amp;less toner</translation>
    </message>
    <message>
        <source>Conserve Dry Ink Spoken</source>
        <translation>Toner saver: use less toner</translation>
    </message>
    <message>
        <source>Toner Saver Hint</source>
        <translation>Prints paler, for drafts.</translation>
    </message>
    <message>
        <source>CMYK Source Color:</source>
        <translation>CMYK sou&amp;rce color:</translation>
    </message>
    <message>
        <source>CMYK Source Color Hint</source>
        <translation>What the document’s CMYK colors were made for.</translation>
    </message>
    <message>
        <source>Output Color Correction:</source>
        <translation>Output color correctio&amp;n:</translation>
    </message>
    <message>
        <source>Output Color Correction Hint</source>
        <translation>How colors are matched on paper.</translation>
    </message>
    <message>
        <source>Invert Image Label</source>
        <translation>Invert image:</translation>
    </message>
    <message>
        <source>Mirror Image Title</source>
        <translation>&amp;Mirror image</translation>
    </message>
    <message>
        <source>Mirror Image Spoken</source>
        <translation>Invert image: mirror image</translation>
    </message>
    <message>
        <source>Mirror Image Hint</source>
        <translation>Exchanges left and right, for film and transfers.</translation>
    </message>
    <message>
        <source>Negative Image Title</source>
        <translation>Negative image</translation>
    </message>
    <message>
        <source>Negative Image Hint</source>
        <translation>The job asks for a negative, and keeps it.</translation>
    </message>
    <message>
        <source>Image Example</source>
        <translation>How a page would be printed</translation>
    </message>
    <message>
        <source>Image Example Caption</source>
        <translation>Example; colors on paper may differ.</translation>
    </message>
</context>
</TS>

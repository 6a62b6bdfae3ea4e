<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Text or picture -->
    <message>
        <source>Watermark Kind:</source>
        <translation>Kind:</translation>
    </message>
    <message>
        <source>Watermark Kind</source>
        <translation>Kind of watermark</translation>
    </message>
    <message>
        <source>Watermark Kind Text</source>
        <translation>&amp;Text</translation>
    </message>
    <message>
        <source>Watermark Kind Picture</source>
        <translation>&amp;Picture</translation>
    </message>
    <message>
        <source>Watermark Text Hint</source>
        <translation>Scale is for pictures: a text is as large as its font.</translation>
    </message>
    <message>
        <source>Watermark Picture Hint</source>
        <translation>A picture prints upright in the middle of the page, with its own colors. Angle, density and place are for texts.</translation>
    </message>
    <message>
        <source>Watermark Cover Hint</source>
        <translation>A cover image prints upright in the middle of the page. Angle and place are for texts.</translation>
    </message>
    <!-- Texts -->
    <message>
        <source>Watermark Words:</source>
        <translation>&amp;Words:</translation>
    </message>
    <message>
        <source>Watermark Words</source>
        <translation>Words</translation>
    </message>
    <message>
        <source>Watermark Font:</source>
        <translation>&amp;Font:</translation>
    </message>
    <message>
        <source>Watermark Font</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Watermark Font Missing</source>
        <translation>%1 (not installed)</translation>
    </message>
    <message>
        <source>Watermark Font Replaced Hint</source>
        <translation>This font is not installed here. %1 takes its place.</translation>
    </message>
    <message>
        <source>Watermark Font Missing Hint</source>
        <translation>This font is not installed here. The desktop’s own font takes its place.</translation>
    </message>
    <message>
        <source>Watermark No Fonts Hint</source>
        <translation>The list of fonts cannot be read. Install the software again, or ask your administrator.</translation>
    </message>
    <message>
        <source>Watermark Size:</source>
        <translation>&amp;Size:</translation>
    </message>
    <message>
        <source>Watermark Size</source>
        <translation>Size in points</translation>
    </message>
    <message>
        <source>Watermark Sizes</source>
        <translation>Sizes</translation>
    </message>
    <message>
        <source>Watermark Typical Sizes</source>
        <translation>Typical sizes</translation>
    </message>
    <message>
        <source>Watermark Size Limits</source>
        <translation>%1 to %2 points</translation>
    </message>
    <message>
        <source>Watermark Color:</source>
        <translation>&amp;Color:</translation>
    </message>
    <message>
        <source>Watermark Color</source>
        <translation>Color, red, green and blue in two digits each</translation>
    </message>
    <message>
        <source>Watermark Color Button</source>
        <translation>Choose the color</translation>
    </message>
    <message>
        <source>Watermark Color Hint</source>
        <translation>The text prints in this color</translation>
    </message>
    <message>
        <source>Watermark Font Color:</source>
        <translation>Fo&amp;nt color:</translation>
    </message>
    <message>
        <source>Watermark Font Color</source>
        <translation>Font color, red, green and blue in two digits each</translation>
    </message>
    <message>
        <source>Watermark Font Color Button</source>
        <translation>Choose the font color</translation>
    </message>
    <message>
        <source>Watermark Font Color Hint</source>
        <translation>Kept with the font; does not print</translation>
    </message>
    <message>
        <source>Watermark Angle:</source>
        <translation>&amp;Angle:</translation>
    </message>
    <message>
        <source>Watermark Angle</source>
        <translation>Angle in degrees</translation>
    </message>
    <message>
        <source>Watermark Angle Dial</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Watermark Degrees</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Watermark Angle Limits</source>
        <translation>%1 to %2 degrees</translation>
    </message>
    <message>
        <source>Watermark Density:</source>
        <translation>&amp;Density:</translation>
    </message>
    <message>
        <source>Watermark Density</source>
        <translation>Density in percent</translation>
    </message>
    <message>
        <source>Watermark Density Tip</source>
        <translation>0 percent cannot be seen, 100 percent hides what lies below.</translation>
    </message>
    <message>
        <source>Watermark Percent</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Watermark Density Limits</source>
        <translation>%1 to %2 percent</translation>
    </message>
    <!-- Place -->
    <message>
        <source>Watermark Right:</source>
        <translation>To the &amp;right:</translation>
    </message>
    <message>
        <source>Watermark Right</source>
        <translation>From the middle to the right</translation>
    </message>
    <message>
        <source>Watermark Up:</source>
        <translation>&amp;Up:</translation>
    </message>
    <message>
        <source>Watermark Up</source>
        <translation>From the middle up</translation>
    </message>
    <message>
        <source>Watermark Units</source>
        <translation>Units</translation>
    </message>
    <message>
        <source>Watermark Inches</source>
        <translation>Inches</translation>
    </message>
    <message>
        <source>Watermark Millimetres</source>
        <translation>Millimeters</translation>
    </message>
    <message>
        <source>Watermark Offset Limits</source>
        <translation>%1 to %2 from the middle</translation>
    </message>
    <message>
        <source>Watermark Center</source>
        <translation>C&amp;enter on Page</translation>
    </message>
    <!-- Pictures -->
    <message>
        <source>Watermark Picture:</source>
        <translation>Picture file:</translation>
    </message>
    <message>
        <source>Watermark Choose</source>
        <translation>C&amp;hoose…</translation>
    </message>
    <message>
        <source>Watermark Choose Picture</source>
        <translation>Choose a picture file</translation>
    </message>
    <message>
        <source>Watermark Picture Chooser</source>
        <translation>Choose a Picture</translation>
    </message>
    <message>
        <source>Watermark Picture Kinds</source>
        <translation>Pictures (PNG, JPEG, GIF, BMP, TIFF, SVG)</translation>
    </message>
    <message>
        <source>Watermark All Files</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>Watermark Picture None</source>
        <translation>none chosen</translation>
    </message>
    <message>
        <source>Watermark Picture Formats</source>
        <translation>PNG, JPEG, GIF, BMP, TIFF or SVG</translation>
    </message>
    <message>
        <source>Watermark Picture Reading</source>
        <translation>Reading the picture…</translation>
    </message>
    <message>
        <source>Watermark Picture Inches</source>
        <translation>%1 by %2 pixels, printed at %3 by %4 inches</translation>
    </message>
    <message>
        <source>Watermark Picture Millimetres</source>
        <translation>%1 by %2 pixels, printed at %3 by %4 millimeters</translation>
    </message>
    <message>
        <source>Watermark Scale:</source>
        <translation>Sca&amp;le:</translation>
    </message>
    <message>
        <source>Watermark Scale</source>
        <translation>Scale in percent</translation>
    </message>
    <message>
        <source>Watermark Scale Limits</source>
        <translation>%1 to %2 percent</translation>
    </message>
    <!-- Preview -->
    <message>
        <source>Watermark Editor Preview</source>
        <translation>The watermark on the paper</translation>
    </message>
    <message>
        <source>Watermark Over Page</source>
        <translation>Show over the first pa&amp;ge</translation>
    </message>
    <message>
        <source>Watermark No Page</source>
        <translation>The first page can be shown when there is a document.</translation>
    </message>
    <message>
        <source>Watermark Place Hint</source>
        <translation>Drag the watermark on the page to move it, or use the arrow keys; with Shift it moves ten times as far.</translation>
    </message>
    <!-- What OK refuses, and asks -->
    <message>
        <source>Watermark Refused Header</source>
        <translation>The watermark cannot be saved yet</translation>
    </message>
    <message>
        <source>Watermark No Color</source>
        <translation>Type the color as # and six digits, 0 to 9 and A to F: #FF0000 is red. Or choose it with the button.</translation>
    </message>
    <message>
        <source>Watermark No Text</source>
        <translation>Type the words that are printed.</translation>
    </message>
    <message>
        <source>Watermark No Picture</source>
        <translation>Choose the picture that is printed.</translation>
    </message>
    <message>
        <source>Watermark Picture Still Read</source>
        <translation>The picture is still being read. Try again in a moment.</translation>
    </message>
    <message>
        <source>Watermark Picture Unreadable</source>
        <translation>The picture cannot be read. %1</translation>
    </message>
    <message>
        <source>Watermark Name Reserved</source>
        <translation>“%1” is a name that the list of watermarks needs for itself. Change the words, or the name of the picture file.</translation>
    </message>
    <message>
        <source>Watermark Name Is Font</source>
        <translation>“%1” is the name of a font that is kept for printing. Change the words, or the name of the picture file.</translation>
    </message>
    <message>
        <source>Watermark Replace Header</source>
        <translation>Replace “%1”?</translation>
    </message>
    <message>
        <source>Watermark Replace Message</source>
        <translation>A watermark of this name, a text or a picture, is already in the list. Replacing it deletes it.</translation>
    </message>
    <message>
        <source>Watermark Replace</source>
        <translation>Replace</translation>
    </message>
</context>
</TS>

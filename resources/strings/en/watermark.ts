<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- What a new user is given -->
    <message>
        <source>DraftWatermark</source>
        <translation>Draft</translation>
    </message>
    <message>
        <source>ConfidentialWatermark</source>
        <translation>Confidential</translation>
    </message>
    <message>
        <source>CopyWatermark</source>
        <translation>Copy</translation>
    </message>

    <!-- The panel -->
    <message>
        <source>BookletWatermarkPanelTitle</source>
        <translation>Booklet/Watermark</translation>
    </message>
    <message>
        <source>Booklet Layout:</source>
        <translation>Booklet &amp;layout:</translation>
    </message>
    <message>
        <source>Booklet Layout Hint</source>
        <translation>Two pages on each side of a sheet, in the order in which the folded sheets make a booklet.</translation>
    </message>
    <message>
        <source>Booklet Layout Missing</source>
        <translation>This device prints on one side of a sheet only, so it cannot lay out booklets.</translation>
    </message>
    <message>
        <source>Page Borders:</source>
        <translation>Page &amp;borders:</translation>
    </message>
    <message>
        <source>Page Borders</source>
        <translation>Page borders</translation>
    </message>
    <message>
        <source>Page Borders Tip</source>
        <translation>A thin line around each page of the booklet</translation>
    </message>
    <message>
        <source>Booklet Options... Title</source>
        <translation>Booklet Optio&amp;ns…</translation>
    </message>
    <message>
        <source>Booklet Options Tip</source>
        <translation>Fold and staple, the size of the sheets, gutter and creep</translation>
    </message>
    <message>
        <source>Watermark Title</source>
        <translation>Water&amp;mark:</translation>
    </message>
    <message>
        <source>Watermark Preview</source>
        <translation>How the watermark looks on the paper</translation>
    </message>
    <message>
        <source>Watermark Behind Hint</source>
        <translation>Behind what the pages hold, on all pages.</translation>
    </message>
    <message>
        <source>Watermark Blend Hint</source>
        <translation>Blended with what the pages hold, on all pages.</translation>
    </message>
    <message>
        <source>Watermark Front Hint</source>
        <translation>In front of what the pages hold, on all pages.</translation>
    </message>
    <message>
        <source>Watermark Behind First Hint</source>
        <translation>Behind what page 1 holds, on that page only.</translation>
    </message>
    <message>
        <source>Watermark Blend First Hint</source>
        <translation>Blended with what page 1 holds, on that page only.</translation>
    </message>
    <message>
        <source>Watermark Front First Hint</source>
        <translation>In front of what page 1 holds, on that page only.</translation>
    </message>
    <message>
        <source>Watermark Editor</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>Delete Watermark Header</source>
        <translation>Delete this watermark?</translation>
    </message>
    <message>
        <source>Delete Watermark Message</source>
        <translation>“%1” is removed from your list of watermarks. This cannot be undone.</translation>
    </message>
    <message>
        <source>Watermark Not Saved Header</source>
        <translation>The watermark was not saved</translation>
    </message>
    <message>
        <source>Watermark Not Saved Message</source>
        <translation>Your list of watermarks is as it was. %1</translation>
    </message>

    <!-- The booklet dialog -->
    <message>
        <source>Booklet Options Title</source>
        <translation>Booklet Options</translation>
    </message>
    <message>
        <source>Booklet Creation</source>
        <translation>Booklet Creation</translation>
    </message>
    <message>
        <source>Booklet Finishing:</source>
        <translation>Booklet &amp;finishing:</translation>
    </message>
    <message>
        <source>Booklet Finishing</source>
        <translation>Booklet finishing</translation>
    </message>
    <message>
        <source>Booklet Fold and Staple</source>
        <translation>Booklet fold and staple</translation>
    </message>
    <message>
        <source>Draw Outlines</source>
        <translation>&amp;Draw page borders</translation>
    </message>
    <message>
        <source>Fit to New Size Label</source>
        <translation>Fit to ne&amp;w size:</translation>
    </message>
    <message>
        <source>New Size Tip</source>
        <translation>Prints on sheets of this size in place of the job’s own; the pages become smaller or larger to fit.</translation>
    </message>
    <message>
        <source>Gutter Label</source>
        <translation>&amp;Gutter:</translation>
    </message>
    <message>
        <source>Creep Label</source>
        <translation>&amp;Creep:</translation>
    </message>
    <message>
        <source>Gutter Range Label</source>
        <translation>%1 to %2 points</translation>
    </message>
    <message>
        <source>Creep Range Label</source>
        <translation>%1 to %2 points per sheet</translation>
    </message>
    <message>
        <source>Gutter Hint</source>
        <translation>Free space at the fold, between the two pages of a side.</translation>
    </message>
    <message>
        <source>Creep Hint</source>
        <translation>How far the pages of each sheet move toward the fold, so that they stay in the middle where inner sheets stick out.</translation>
    </message>
    <message>
        <source>Booklet Picture</source>
        <translation>How the sheets come out</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Booklet in Words</source>
        <translation>gutter %1 pt, creep %2</translation>
    </message>
    <message>
        <source>Page Borders in Words</source>
        <translation>page borders</translation>
    </message>
    <message>
        <source>New Size in Words</source>
        <translation>fit to %1</translation>
    </message>
    <message>
        <source>Watermark in Words</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>Watermark Behind in Words</source>
        <translation>%1, behind the pages</translation>
    </message>
    <message>
        <source>Watermark Blend in Words</source>
        <translation>%1, blended with the pages</translation>
    </message>
    <message>
        <source>Watermark Front in Words</source>
        <translation>%1, in front of the pages</translation>
    </message>
    <message>
        <source>Watermark Behind First in Words</source>
        <translation>%1, behind page 1</translation>
    </message>
    <message>
        <source>Watermark Blend First in Words</source>
        <translation>%1, blended with page 1</translation>
    </message>
    <message>
        <source>Watermark Front First in Words</source>
        <translation>%1, in front of page 1</translation>
    </message>
    <message>
        <source>Watermark Absent in Words</source>
        <translation>“%1” is not in your list of watermarks, and none is printed</translation>
    </message>
</context>
</TS>

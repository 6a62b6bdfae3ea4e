<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Covers -->
    <message>
        <source>Covers Title</source>
        <translation>Covers</translation>
    </message>
    <message>
        <source>Cover Options:</source>
        <translation>Co&amp;vers:</translation>
    </message>
    <message>
        <source>Front and Back the Same</source>
        <translation>Front and back the same</translation>
    </message>
    <message>
        <source>Front Cover</source>
        <translation>Front cover</translation>
    </message>
    <message>
        <source>Front Cover Left Out</source>
        <translation>The front cover has no paper source: the printer leaves it out.</translation>
    </message>
    <message>
        <source>Back Cover Left Out</source>
        <translation>The back cover has no paper source: the printer leaves it out.</translation>
    </message>
    <message>
        <source>Back Cover</source>
        <translation>Back cover</translation>
    </message>
    <message>
        <source>Front Cover Paper...</source>
        <translation>Choose &amp;Paper</translation>
    </message>
    <message>
        <source>Front Cover Paper</source>
        <translation>Front cover paper</translation>
    </message>
    <message>
        <source>Front Cover Summary</source>
        <translation>Front cover paper, summary</translation>
    </message>
    <message>
        <source>Front Cover Source:</source>
        <translation>Paper &amp;source:</translation>
    </message>
    <message>
        <source>Front Cover Source</source>
        <translation>Front cover paper source</translation>
    </message>
    <message>
        <source>Front Cover Sides:</source>
        <translation>Cover &amp;is:</translation>
    </message>
    <message>
        <source>Front Cover Sides</source>
        <translation>Front cover is</translation>
    </message>
    <message>
        <source>Cover Sides Tip</source>
        <translation>On a printed cover stands a page of the document; a blank or preprinted one stays as it is.</translation>
    </message>
    <message>
        <source>Back Cover Paper...</source>
        <translation>Choose P&amp;aper</translation>
    </message>
    <message>
        <source>Back Cover Paper</source>
        <translation>Back cover paper</translation>
    </message>
    <message>
        <source>Back Cover Summary</source>
        <translation>Back cover paper, summary</translation>
    </message>
    <message>
        <source>Back Cover Source:</source>
        <translation>Paper so&amp;urce:</translation>
    </message>
    <message>
        <source>Back Cover Source</source>
        <translation>Back cover paper source</translation>
    </message>
    <message>
        <source>Back Cover Sides:</source>
        <translation>Cov&amp;er is:</translation>
    </message>
    <message>
        <source>Back Cover Sides</source>
        <translation>Back cover is</translation>
    </message>
    <message>
        <source>Cover Source Not Set</source>
        <translation>Not set</translation>
    </message>
    <message>
        <source>Front Cover Left Out Header</source>
        <translation>The front cover will be left out</translation>
    </message>
    <message>
        <source>Back Cover Left Out Header</source>
        <translation>The back cover will be left out</translation>
    </message>
    <message>
        <source>Covers Left Out Header</source>
        <translation>Both covers will be left out</translation>
    </message>
    <message>
        <source>Cover Go Back</source>
        <translation>Go Back</translation>
    </message>
    <message>
        <source>Cover Leave Out</source>
        <translation>Leave Out</translation>
    </message>
    <message>
        <source>Cover Source Missing</source>
        <translation>The printer leaves this cover out until you choose a paper source.</translation>
    </message>
    <message>
        <source>Cover Source Inserter</source>
        <translation>Covers do not come from the inserter. The printer leaves this one out until you choose a paper source.</translation>
    </message>
    <message>
        <source>Cover Source Automatic</source>
        <translation>The printer chooses the tray.</translation>
    </message>
    <message>
        <source>Cover Source Chosen</source>
        <translation>The printer takes the paper that is in this source.</translation>
    </message>
    <message>
        <source>Job Paper</source>
        <translation>“Use job setting” means the paper of the job: %1.</translation>
    </message>
    <!-- Inserts -->
    <message>
        <source>Inserts Title</source>
        <translation>Inserts</translation>
    </message>
    <message>
        <source>Insert Position:</source>
        <translation>&amp;Insert:</translation>
    </message>
    <message>
        <source>Insert Pages:</source>
        <translation>Pa&amp;ges:</translation>
    </message>
    <message>
        <source>Insert Pages Hint</source>
        <translation>The sheets come after each of these pages. Examples: 2,5 · 3-7 · 12- (from page 12 on)</translation>
    </message>
    <message>
        <source>Insert Quantity:</source>
        <translation>&amp;Sheets:</translation>
    </message>
    <message>
        <source>Insert Paper...</source>
        <translation>Choose &amp;Paper</translation>
    </message>
    <message>
        <source>Insert Paper</source>
        <translation>Insert paper</translation>
    </message>
    <message>
        <source>Insert Summary</source>
        <translation>Insert paper, summary</translation>
    </message>
    <!-- Exception pages -->
    <message>
        <source>Exceptions Title</source>
        <translation>Exception Pages</translation>
    </message>
    <message>
        <source>Exception Pages:</source>
        <translation>Pa&amp;ges:</translation>
    </message>
    <message>
        <source>Exception Pages Hint</source>
        <translation>Examples: 2,5 · 3-7 · 12- (from page 12 on)</translation>
    </message>
    <message>
        <source>Exception Tabs</source>
        <translation>Settings of these pages</translation>
    </message>
    <message>
        <source>Exception Paper and Sides</source>
        <translation>&amp;Paper and Sides</translation>
    </message>
    <message>
        <source>Exception Image</source>
        <translation>&amp;Image</translation>
    </message>
    <message>
        <source>Exception Paper...</source>
        <translation>Choose Pap&amp;er</translation>
    </message>
    <message>
        <source>Exception Paper</source>
        <translation>Exception paper</translation>
    </message>
    <message>
        <source>Exception Summary</source>
        <translation>Exception paper, summary</translation>
    </message>
    <message>
        <source>Exception Tab Shift:</source>
        <translation>&amp;Tab margin shift:</translation>
    </message>
    <message>
        <source>Exception Tab Shift...</source>
        <translation>Set &amp;Up…</translation>
    </message>
    <message>
        <source>Exception Tab Shift</source>
        <translation>Set up tab margin shift</translation>
    </message>
    <message>
        <source>Exception Tab Shift Tip</source>
        <translation>How far the printed image moves onto the tabs of tab stock</translation>
    </message>
    <message>
        <source>Tab Shift Not Needed</source>
        <translation>Only for tab stock</translation>
    </message>
    <message>
        <source>Tab Shift Words Inches</source>
        <translation>%1 in</translation>
    </message>
    <message>
        <source>Tab Shift Words Millimeters</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Exception Sides:</source>
        <translation>&amp;Sides:</translation>
    </message>
    <message>
        <source>Exception Lightness:</source>
        <translation>&amp;Lighten/darken:</translation>
    </message>
    <message>
        <source>Job Setting Hint</source>
        <translation>“Use job setting” means: %1.</translation>
    </message>
    <!-- Notices -->
    <message>
        <source>Page Number Limit Title</source>
        <translation>The page number is too high</translation>
    </message>
    <message>
        <source>Page Number Limit</source>
        <translation>A page number has at most %1 digits. Correct the pages and choose OK again.</translation>
    </message>
    <message>
        <source>Invalid Pages Title</source>
        <translation>The pages cannot be read</translation>
    </message>
    <message>
        <source>Invalid Page Ranges</source>
        <translation>Type page numbers, and ranges with one dash, separated by commas. Examples: 2,5 or 3-7. The range 12- begins at page 12 and goes on to the last page.</translation>
    </message>
    <message>
        <source>Invalid Ranges Title</source>
        <translation>A page range is the wrong way around</translation>
    </message>
    <message>
        <source>Invalid Range Order</source>
        <translation>The first page of a range comes before its last one. Type 3-7 rather than 7-3.</translation>
    </message>
    <message>
        <source>Invalid Page Numbers Title</source>
        <translation>There is no page 0</translation>
    </message>
    <message>
        <source>Invalid Page Numbers Message</source>
        <translation>Pages are counted from 1. Begin the range with page 1 or a later one.</translation>
    </message>
    <message>
        <source>Too Many Inserts Title</source>
        <translation>There are too many inserts</translation>
    </message>
    <message>
        <source>Too Many Inserts Message</source>
        <translation>The list of special pages takes at most %1 inserts, and with these pages it would have more. Choose fewer pages. To put several sheets in one place, make one insert and set the number of its sheets.</translation>
    </message>
    <message>
        <source>PageRangeConflictTitle</source>
        <translation>Page ranges overlap</translation>
    </message>
    <message>
        <source>PageRangeConflictMessage</source>
        <translation>A page can be in one range only. Change the ranges so that they share no page.</translation>
    </message>
    <message>
        <source>Delete Special Pages Title</source>
        <translation>Delete special pages?</translation>
    </message>
    <message>
        <source>Delete Selected Special Pages</source>
        <translation>The selected covers, inserts and exception pages are taken out of the job. Undo brings them back.</translation>
    </message>
    <message>
        <source>Delete All Special Pages</source>
        <translation>All covers, inserts and exception pages are taken out of the job. Undo brings them back.</translation>
    </message>
    <message>
        <source>No Command</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes Command</source>
        <translation>Yes</translation>
    </message>

    <!-- What print dialogs say of special pages -->
    <message>
        <source>Inserts in Words</source>
        <translation>Inserts:</translation>
    </message>
    <message>
        <source>Exception Pages in Words</source>
        <translation>Exception pages:</translation>
    </message>
    <message>
        <source>More Pages in Words</source>
        <translation>%1 and %2 more</translation>
    </message>
    <message>
        <source>Insert in Preview</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Exception in Preview</source>
        <translation>exception %1</translation>
    </message>
    <message>
        <source>Insert in Words</source>
        <translation>after page %1 (%2)</translation>
    </message>
    <message>
        <source>Insert before Page 1 in Words</source>
        <translation>before page 1 (%1)</translation>
    </message>
</context>
</TS>

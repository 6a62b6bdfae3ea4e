<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Job</name>
    <!-- What will come out -->
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n sheet</numerusform>
            <numerusform>%n sheets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n copy(s)</source>
        <translation>
            <numerusform>%n copy</numerusform>
            <numerusform>%n copies</numerusform>
        </translation>
    </message>
    <!-- %1 is "3 sheets", %2 "2 copies" -->
    <message numerus="yes">
        <source>%1 × %2 = %n sheet(s)</source>
        <translation>
            <numerusform>%1 × %2 = %n sheets</numerusform>
            <numerusform>%1 × %2 = %n sheets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entry(s) that the device panels add (see Ticket)</source>
        <translation>
            <numerusform>%n entry that the device panels add (see Ticket)</numerusform>
            <numerusform>%n entries that the device panels add (see Ticket)</numerusform>
        </translation>
    </message>
    <!-- Pages that do not fit: %1 is their numbers, %2 the paper, %n how many pages -->
    <message numerus="yes">
        <source>Page(s) %1 larger than the paper, %2: what does not fit is cut off.</source>
        <translation>
            <numerusform>Page %1 is larger than the paper, %2: what does not fit is cut off.</numerusform>
            <numerusform>Pages %1 are larger than the paper, %2: what does not fit is cut off.</numerusform>
        </translation>
    </message>
    <!-- What this printer does not have, or does not read -->
    <message numerus="yes">
        <source>%n setting(s) kept, to come back with a printer that has them.</source>
        <translation>
            <numerusform>It is kept, and comes back with a printer that has it.</numerusform>
            <numerusform>They are kept, and come back with a printer that has them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) kept; choose a printer that reads them.</source>
        <translation>
            <numerusform>It is kept; choose a printer that reads it.</numerusform>
            <numerusform>They are kept; choose a printer that reads them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Covers, inserts, exception pages and booklets count what is printed: the first page there has page(s) %1 of the document.</source>
        <translation>
            <numerusform>Covers, inserts, exception pages and booklets count what is printed: the first page there has page %1 of the document.</numerusform>
            <numerusform>Covers, inserts, exception pages and booklets count what is printed: the first page there has pages %1 of the document.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Page(s) %1 larger than the paper, %2, and made smaller to fit.</source>
        <translation>
            <numerusform>Page %1 is larger than the paper, %2, and made smaller to fit.</numerusform>
            <numerusform>Pages %1 are larger than the paper, %2, and made smaller to fit.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Page(s) %1 larger than the places on the sheet: what does not fit is cut off.</source>
        <translation>
            <numerusform>Page %1 is larger than its place on the sheet: what does not fit is cut off.</numerusform>
            <numerusform>Pages %1 are larger than their places on the sheet: what does not fit is cut off.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) so far</source>
        <translation>
            <numerusform>%n page so far</numerusform>
            <numerusform>%n pages so far</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message numerus="yes">
        <source>The drawing shows or uses %n other file(s), which are left out: only what a drawing holds itself is printed. Embed them in it.</source>
        <translation>
            <numerusform>The drawing shows or uses another file, which is left out: only what a drawing holds itself is printed. Embed that file in it.</numerusform>
            <numerusform>The drawing shows or uses %n other files, which are left out: only what a drawing holds itself is printed. Embed them in it.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <comment>what the first document is called</comment>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message numerus="yes">
        <source>At most %n characters fit here.</source>
        <translation>
            <numerusform>At most %n characters fit here.</numerusform>
            <numerusform>At most %n characters fit here.</numerusform>
        </translation>
    </message>
    <!-- %1 is the name of a control, %2 the row that was asked for -->
    <message numerus="yes">
        <source>%1 has %n row(s), not %2</source>
        <translation>
            <numerusform>%1 has %n rows, not %2</numerusform>
            <numerusform>%1 has %n rows, not %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Layout</name>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <!-- %1 is "Insert" -->
    <message numerus="yes">
        <source>%1, %n sheet(s)</source>
        <translation>
            <numerusform>%1, %n sheets</numerusform>
            <numerusform>%1, %n sheets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 · page(s) %2 of %3</source>
        <translation>
            <numerusform>%1 · page %2 of %3</numerusform>
            <numerusform>%1 · pages %2 of %3</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Window</name>
    <!-- %1 is the first of several sentences -->
    <message numerus="yes">
        <source>%1 (and %n more)</source>
        <translation>
            <numerusform>%1 (and %n more)</numerusform>
            <numerusform>%1 (and %n more)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message numerus="yes">
        <source>%n page(s) found</source>
        <translation>
            <numerusform>%n page found</numerusform>
            <numerusform>%n pages found</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kelvo::PrintFlow</name>
    <message numerus="yes">
        <source>%n document(s) written</source>
        <translation>
            <numerusform>%n document written</numerusform>
            <numerusform>%n documents written</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) sent to %1</source>
        <translation>
            <numerusform>%n document sent to %1</numerusform>
            <numerusform>%n documents sent to %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kelvo::PrinterChooser</name>
    <message numerus="yes">
        <source>%n printer(s)</source>
        <translation>
            <numerusform>%n printer</numerusform>
            <numerusform>%n printers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n printer(s)</source>
        <translation>
            <numerusform>%1 of %n printer</numerusform>
            <numerusform>%1 of %n printers</numerusform>
        </translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>SpecialPagesTitle</source>
        <translation>Sonderseiten</translation>
    </message>
    <message>
        <source>Add Covers Command</source>
        <translation>D&amp;eckblätter hinzufügen…</translation>
    </message>
    <message>
        <source>Add Inserts Command</source>
        <translation>Ein&amp;legeblätter hinzufügen…</translation>
    </message>
    <message>
        <source>Inserts Tip</source>
        <translation>Blätter aus anderem Papier zwischen den Seiten des Dokuments</translation>
    </message>
    <message>
        <source>Add Exceptions Command</source>
        <translation>Ausnah&amp;men hinzufügen…</translation>
    </message>
    <message>
        <source>Exceptions Tip</source>
        <translation>Seiten, die anders gedruckt werden als die übrigen: auf anderem Papier, einseitig, heller oder dunkler</translation>
    </message>
    <message>
        <source>Edit Command</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete Command</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete All Command</source>
        <translation>Alle löschen</translation>
    </message>
    <message>
        <source>Undo Command</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Move Up Command</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down Command</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Special Pages List</source>
        <translation>Sonderseiten</translation>
    </message>
    <message>
        <source>Special Pages Hint</source>
        <translation>Gezählt werden die Seiten, die gedruckt werden. Seiten, die ein Seitenbereich auslässt, zählen nicht mit.</translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Type Title</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Attributes Title</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>SpecialPageSummaryFront</source>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>SpecialPageSummaryBack</source>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>SpecialPageSummaryCover</source>
        <translation>Deckblatt</translation>
    </message>
    <message>
        <source>SpecialPageSummaryInsert</source>
        <translation>Einlegeblatt</translation>
    </message>
    <message>
        <source>SpecialPageSummaryException</source>
        <translation>Ausnahme</translation>
    </message>
    <message>
        <source>Paper Name Label</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>InsertSummaryQuantity</source>
        <translation>Blätter</translation>
    </message>
    <message>
        <source>Exception Without Pages</source>
        <translation>Gilt für keine Seite</translation>
    </message>
    <message>
        <source>Exception Image Shift</source>
        <translation>Bild für Register verschoben</translation>
    </message>
</context>
</TS>

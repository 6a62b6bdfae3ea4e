<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>SpecialPagesTitle</source>
        <translation>Special Pages</translation>
    </message>
    <message>
        <source>Add Covers Command</source>
        <translation>Add Co&amp;vers…</translation>
    </message>
    <message>
        <source>Add Inserts Command</source>
        <translation>Add I&amp;nserts…</translation>
    </message>
    <message>
        <source>Inserts Tip</source>
        <translation>Sheets of other paper between the pages of the document</translation>
    </message>
    <message>
        <source>Add Exceptions Command</source>
        <translation>&amp;Add Exceptions…</translation>
    </message>
    <message>
        <source>Exceptions Tip</source>
        <translation>Pages that are printed otherwise than the rest: on other paper, on one side, lighter or darker</translation>
    </message>
    <message>
        <source>Edit Command</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Delete Command</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Delete All Command</source>
        <translation>Delete All</translation>
    </message>
    <message>
        <source>Undo Command</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Move Up Command</source>
        <translation>Move Up</translation>
    </message>
    <message>
        <source>Move Down Command</source>
        <translation>Move Down</translation>
    </message>
    <message>
        <source>Special Pages List</source>
        <translation>Special pages</translation>
    </message>
    <message>
        <source>Special Pages Hint</source>
        <translation>Page numbers count the pages that are printed. Where a page range leaves pages out, they do not count.</translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Type Title</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Attributes Title</source>
        <translation>Attributes</translation>
    </message>
    <message>
        <source>SpecialPageSummaryFront</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>SpecialPageSummaryBack</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>SpecialPageSummaryCover</source>
        <translation>Cover</translation>
    </message>
    <message>
        <source>SpecialPageSummaryInsert</source>
        <translation>Insert</translation>
    </message>
    <message>
        <source>SpecialPageSummaryException</source>
        <translation>Exception</translation>
    </message>
    <message>
        <source>Paper Name Label</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>InsertSummaryQuantity</source>
        <translation>Sheets</translation>
    </message>
    <message>
        <source>Exception Without Pages</source>
        <translation>Applies to no pages</translation>
    </message>
    <message>
        <source>Exception Image Shift</source>
        <translation>Image shifted for tabs</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>SpecialPagesTitle</source>
        <translation>特殊ページ</translation>
    </message>
    <message>
        <source>Add Covers Command</source>
        <translation>表紙の追加(&amp;V)…</translation>
    </message>
    <message>
        <source>Add Inserts Command</source>
        <translation>合紙の追加(&amp;N)…</translation>
    </message>
    <message>
        <source>Inserts Tip</source>
        <translation>文書のページの間に入れる、別の用紙</translation>
    </message>
    <message>
        <source>Add Exceptions Command</source>
        <translation>例外ページの追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Exceptions Tip</source>
        <translation>用紙、片面・両面、濃さなどを、ほかと変えて印刷するページ</translation>
    </message>
    <message>
        <source>Edit Command</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Delete Command</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Delete All Command</source>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>Undo Command</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Move Up Command</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move Down Command</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Special Pages List</source>
        <translation>特殊ページ</translation>
    </message>
    <message>
        <source>Special Pages Hint</source>
        <translation>ページ番号は、印刷されるページを数えたものです。ページ範囲の指定で印刷されないページは数えません。</translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Type Title</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Attributes Title</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>SpecialPageSummaryFront</source>
        <translation>おもて</translation>
    </message>
    <message>
        <source>SpecialPageSummaryBack</source>
        <translation>うら</translation>
    </message>
    <message>
        <source>SpecialPageSummaryCover</source>
        <translation>表紙</translation>
    </message>
    <message>
        <source>SpecialPageSummaryInsert</source>
        <translation>合紙</translation>
    </message>
    <message>
        <source>SpecialPageSummaryException</source>
        <translation>例外ページ</translation>
    </message>
    <message>
        <source>Paper Name Label</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>InsertSummaryQuantity</source>
        <translation>枚数</translation>
    </message>
    <message>
        <source>Exception Without Pages</source>
        <translation>対象のページなし</translation>
    </message>
    <message>
        <source>Exception Image Shift</source>
        <translation>タブへ画像をシフト</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- What a new user is given -->
    <message>
        <source>DraftWatermark</source>
        <translation>下書き</translation>
    </message>
    <message>
        <source>ConfidentialWatermark</source>
        <translation>社外秘</translation>
    </message>
    <message>
        <source>CopyWatermark</source>
        <translation>コピー</translation>
    </message>

    <!-- The panel -->
    <message>
        <source>BookletWatermarkPanelTitle</source>
        <translation>製本/ウォーターマーク</translation>
    </message>
    <message>
        <source>Booklet Layout:</source>
        <translation>製本レイアウト(&amp;L):</translation>
    </message>
    <message>
        <source>Booklet Layout Hint</source>
        <translation>用紙の片面に2ページずつ、折ると冊子になる順序で並べます。</translation>
    </message>
    <message>
        <source>Booklet Layout Missing</source>
        <translation>この機器は片面印刷しかできないため、製本レイアウトは使えません。</translation>
    </message>
    <message>
        <source>Page Borders:</source>
        <translation>ページ枠(&amp;B):</translation>
    </message>
    <message>
        <source>Page Borders</source>
        <translation>ページ枠</translation>
    </message>
    <message>
        <source>Page Borders Tip</source>
        <translation>製本の各ページを囲む細い線</translation>
    </message>
    <message>
        <source>Booklet Options... Title</source>
        <translation>製本オプション(&amp;N)…</translation>
    </message>
    <message>
        <source>Booklet Options Tip</source>
        <translation>折りとステープル、用紙サイズ、とじしろ、クリープ補正</translation>
    </message>
    <message>
        <source>Watermark Title</source>
        <translation>ウォーターマーク(&amp;M):</translation>
    </message>
    <message>
        <source>Watermark Preview</source>
        <translation>用紙上のウォーターマークの見え方</translation>
    </message>
    <message>
        <source>Watermark Behind Hint</source>
        <translation>すべてのページで、ページの内容の背面に印刷します。</translation>
    </message>
    <message>
        <source>Watermark Blend Hint</source>
        <translation>すべてのページで、ページの内容に重ねて印刷します。</translation>
    </message>
    <message>
        <source>Watermark Front Hint</source>
        <translation>すべてのページで、ページの内容の前面に印刷します。</translation>
    </message>
    <message>
        <source>Watermark Behind First Hint</source>
        <translation>1ページ目だけに、ページの内容の背面に印刷します。</translation>
    </message>
    <message>
        <source>Watermark Blend First Hint</source>
        <translation>1ページ目だけに、ページの内容に重ねて印刷します。</translation>
    </message>
    <message>
        <source>Watermark Front First Hint</source>
        <translation>1ページ目だけに、ページの内容の前面に印刷します。</translation>
    </message>
    <message>
        <source>Watermark Editor</source>
        <translation>ウォーターマーク</translation>
    </message>
    <message>
        <source>Delete Watermark Header</source>
        <translation>このウォーターマークを削除しますか?</translation>
    </message>
    <message>
        <source>Delete Watermark Message</source>
        <translation>ウォーターマークの一覧から「%1」を削除します。この操作は取り消せません。</translation>
    </message>
    <message>
        <source>Watermark Not Saved Header</source>
        <translation>ウォーターマークを保存できませんでした</translation>
    </message>
    <message>
        <source>Watermark Not Saved Message</source>
        <translation>ウォーターマークの一覧は変更されていません。%1。</translation>
    </message>

    <!-- The booklet dialog -->
    <message>
        <source>Booklet Options Title</source>
        <translation>製本オプション</translation>
    </message>
    <message>
        <source>Booklet Creation</source>
        <translation>製本</translation>
    </message>
    <message>
        <source>Booklet Finishing:</source>
        <translation>製本の仕上げ(&amp;F):</translation>
    </message>
    <message>
        <source>Booklet Finishing</source>
        <translation>製本の仕上げ</translation>
    </message>
    <message>
        <source>Booklet Fold and Staple</source>
        <translation>中とじ製本</translation>
    </message>
    <message>
        <source>Draw Outlines</source>
        <translation>ページ枠を付ける(&amp;D)</translation>
    </message>
    <message>
        <source>Fit to New Size Label</source>
        <translation>合わせる用紙サイズ(&amp;W):</translation>
    </message>
    <message>
        <source>New Size Tip</source>
        <translation>ジョブの用紙の代わりにこのサイズの用紙を使い、ページを合わせて縮小または拡大します。</translation>
    </message>
    <message>
        <source>Gutter Label</source>
        <translation>とじしろ(&amp;G):</translation>
    </message>
    <message>
        <source>Creep Label</source>
        <translation>クリープ補正(&amp;C):</translation>
    </message>
    <message>
        <source>Gutter Range Label</source>
        <translation>%1～%2ポイント</translation>
    </message>
    <message>
        <source>Creep Range Label</source>
        <translation>1枚につき%1～%2ポイント</translation>
    </message>
    <message>
        <source>Gutter Hint</source>
        <translation>片面に並ぶ2ページの間の、折り目の余白です。</translation>
    </message>
    <message>
        <source>Creep Hint</source>
        <translation>内側の用紙がはみ出しても内容が中央に収まるように、用紙ごとにページを折り目の方へ動かす量です。</translation>
    </message>
    <message>
        <source>Booklet Picture</source>
        <translation>製本の仕上がりの図</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Booklet in Words</source>
        <translation>とじしろ %1ポイント、クリープ補正 %2</translation>
    </message>
    <message>
        <source>Page Borders in Words</source>
        <translation>ページ枠あり</translation>
    </message>
    <message>
        <source>New Size in Words</source>
        <translation>%1に合わせる</translation>
    </message>
    <message>
        <source>Watermark in Words</source>
        <translation>ウォーターマーク</translation>
    </message>
    <message>
        <source>Watermark Behind in Words</source>
        <translation>%1(全ページの背面)</translation>
    </message>
    <message>
        <source>Watermark Blend in Words</source>
        <translation>%1(全ページに重ねる)</translation>
    </message>
    <message>
        <source>Watermark Front in Words</source>
        <translation>%1(全ページの前面)</translation>
    </message>
    <message>
        <source>Watermark Behind First in Words</source>
        <translation>%1(1ページ目の背面)</translation>
    </message>
    <message>
        <source>Watermark Blend First in Words</source>
        <translation>%1(1ページ目に重ねる)</translation>
    </message>
    <message>
        <source>Watermark Front First in Words</source>
        <translation>%1(1ページ目の前面)</translation>
    </message>
    <message>
        <source>Watermark Absent in Words</source>
        <translation>「%1」は登録されていないため、印刷されません</translation>
    </message>
</context>
</TS>

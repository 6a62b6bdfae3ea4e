<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Covers -->
    <message>
        <source>Covers Title</source>
        <translation>表紙</translation>
    </message>
    <message>
        <source>Cover Options:</source>
        <translation>表紙(&amp;V):</translation>
    </message>
    <message>
        <source>Front and Back the Same</source>
        <translation>おもてとうらを同じにする</translation>
    </message>
    <message>
        <source>Front Cover</source>
        <translation>おもて表紙</translation>
    </message>
    <message>
        <source>Front Cover Left Out</source>
        <translation>おもて表紙の給紙トレイが指定されていないため、おもて表紙は付きません。</translation>
    </message>
    <message>
        <source>Back Cover Left Out</source>
        <translation>うら表紙の給紙トレイが指定されていないため、うら表紙は付きません。</translation>
    </message>
    <message>
        <source>Back Cover</source>
        <translation>うら表紙</translation>
    </message>
    <message>
        <source>Front Cover Paper...</source>
        <translation>用紙の選択(&amp;P)</translation>
    </message>
    <message>
        <source>Front Cover Paper</source>
        <translation>おもて表紙の用紙</translation>
    </message>
    <message>
        <source>Front Cover Summary</source>
        <translation>おもて表紙の用紙の内容</translation>
    </message>
    <message>
        <source>Front Cover Source:</source>
        <translation>給紙トレイ(&amp;S):</translation>
    </message>
    <message>
        <source>Front Cover Source</source>
        <translation>おもて表紙の給紙トレイ</translation>
    </message>
    <message>
        <source>Front Cover Sides:</source>
        <translation>表紙への印刷(&amp;I):</translation>
    </message>
    <message>
        <source>Front Cover Sides</source>
        <translation>おもて表紙への印刷</translation>
    </message>
    <message>
        <source>Cover Sides Tip</source>
        <translation>「印刷する」では文書のページを表紙に印刷します。「白紙または印刷済み」では何も印刷しません。</translation>
    </message>
    <message>
        <source>Back Cover Paper...</source>
        <translation>用紙の選択(&amp;A)</translation>
    </message>
    <message>
        <source>Back Cover Paper</source>
        <translation>うら表紙の用紙</translation>
    </message>
    <message>
        <source>Back Cover Summary</source>
        <translation>うら表紙の用紙の内容</translation>
    </message>
    <message>
        <source>Back Cover Source:</source>
        <translation>給紙トレイ(&amp;U):</translation>
    </message>
    <message>
        <source>Back Cover Source</source>
        <translation>うら表紙の給紙トレイ</translation>
    </message>
    <message>
        <source>Back Cover Sides:</source>
        <translation>表紙への印刷(&amp;E):</translation>
    </message>
    <message>
        <source>Back Cover Sides</source>
        <translation>うら表紙への印刷</translation>
    </message>
    <message>
        <source>Cover Source Not Set</source>
        <translation>未設定</translation>
    </message>
    <message>
        <source>Front Cover Left Out Header</source>
        <translation>おもて表紙は付きません</translation>
    </message>
    <message>
        <source>Back Cover Left Out Header</source>
        <translation>うら表紙は付きません</translation>
    </message>
    <message>
        <source>Covers Left Out Header</source>
        <translation>表紙は両方とも付きません</translation>
    </message>
    <message>
        <source>Cover Go Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Cover Leave Out</source>
        <translation>付けない</translation>
    </message>
    <message>
        <source>Cover Source Missing</source>
        <translation>給紙トレイを選ばないと、この表紙は付きません。</translation>
    </message>
    <message>
        <source>Cover Source Inserter</source>
        <translation>表紙はインサーターから給紙できません。給紙トレイを選ばないと、この表紙は付きません。</translation>
    </message>
    <message>
        <source>Cover Source Automatic</source>
        <translation>プリンターが給紙トレイを選びます。</translation>
    </message>
    <message>
        <source>Cover Source Chosen</source>
        <translation>この給紙トレイに入っている用紙が使われます。</translation>
    </message>
    <message>
        <source>Job Paper</source>
        <translation>「ジョブの設定に従う」では、ジョブの用紙が使われます: %1。</translation>
    </message>
    <!-- Inserts -->
    <message>
        <source>Inserts Title</source>
        <translation>合紙</translation>
    </message>
    <message>
        <source>Insert Position:</source>
        <translation>挿入位置(&amp;I):</translation>
    </message>
    <message>
        <source>Insert Pages:</source>
        <translation>ページ(&amp;G):</translation>
    </message>
    <message>
        <source>Insert Pages Hint</source>
        <translation>指定した各ページの後に入ります。例: 2,5 · 3-7 · 12-（12ページ以降）</translation>
    </message>
    <message>
        <source>Insert Quantity:</source>
        <translation>枚数(&amp;S):</translation>
    </message>
    <message>
        <source>Insert Paper...</source>
        <translation>用紙の選択(&amp;P)</translation>
    </message>
    <message>
        <source>Insert Paper</source>
        <translation>合紙の用紙</translation>
    </message>
    <message>
        <source>Insert Summary</source>
        <translation>合紙の用紙の内容</translation>
    </message>
    <!-- Exception pages -->
    <message>
        <source>Exceptions Title</source>
        <translation>例外ページ</translation>
    </message>
    <message>
        <source>Exception Pages:</source>
        <translation>ページ(&amp;G):</translation>
    </message>
    <message>
        <source>Exception Pages Hint</source>
        <translation>例: 2,5 · 3-7 · 12-（12ページ以降）</translation>
    </message>
    <message>
        <source>Exception Tabs</source>
        <translation>このページの設定</translation>
    </message>
    <message>
        <source>Exception Paper and Sides</source>
        <translation>用紙と印刷面(&amp;P)</translation>
    </message>
    <message>
        <source>Exception Image</source>
        <translation>画像(&amp;I)</translation>
    </message>
    <message>
        <source>Exception Paper...</source>
        <translation>用紙の選択(&amp;E)</translation>
    </message>
    <message>
        <source>Exception Paper</source>
        <translation>例外ページの用紙</translation>
    </message>
    <message>
        <source>Exception Summary</source>
        <translation>例外ページの用紙の内容</translation>
    </message>
    <message>
        <source>Exception Tab Shift:</source>
        <translation>タブへのシフト(&amp;T):</translation>
    </message>
    <message>
        <source>Exception Tab Shift...</source>
        <translation>設定(&amp;U)…</translation>
    </message>
    <message>
        <source>Exception Tab Shift</source>
        <translation>タブへのシフトの設定</translation>
    </message>
    <message>
        <source>Exception Tab Shift Tip</source>
        <translation>タブ紙のタブの部分へ画像をずらす量</translation>
    </message>
    <message>
        <source>Tab Shift Not Needed</source>
        <translation>タブ紙の場合のみ</translation>
    </message>
    <message>
        <source>Tab Shift Words Inches</source>
        <translation>%1インチ</translation>
    </message>
    <message>
        <source>Tab Shift Words Millimeters</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>Exception Sides:</source>
        <translation>印刷面(&amp;S):</translation>
    </message>
    <message>
        <source>Exception Lightness:</source>
        <translation>明るさ(&amp;L):</translation>
    </message>
    <message>
        <source>Job Setting Hint</source>
        <translation>「ジョブの設定に従う」では、次の設定になります: %1。</translation>
    </message>
    <!-- Notices -->
    <message>
        <source>Page Number Limit Title</source>
        <translation>ページ番号が大きすぎます</translation>
    </message>
    <message>
        <source>Page Number Limit</source>
        <translation>ページ番号は%1桁までです。ページを直してから、もう一度［OK］を押してください。</translation>
    </message>
    <message>
        <source>Invalid Pages Title</source>
        <translation>ページの指定が正しくありません</translation>
    </message>
    <message>
        <source>Invalid Page Ranges</source>
        <translation>ページ番号や、ハイフン1つで結んだ範囲を、カンマで区切って入力してください。例: 2,5 または 3-7。12- は12ページから最後のページまでです。</translation>
    </message>
    <message>
        <source>Invalid Ranges Title</source>
        <translation>ページ範囲の順序が逆です</translation>
    </message>
    <message>
        <source>Invalid Range Order</source>
        <translation>範囲の最初のページは、最後のページより前でなければなりません。7-3 ではなく、3-7 と入力してください。</translation>
    </message>
    <message>
        <source>Invalid Page Numbers Title</source>
        <translation>0ページはありません</translation>
    </message>
    <message>
        <source>Invalid Page Numbers Message</source>
        <translation>ページは1から数えます。範囲は1ページ以降から始めてください。</translation>
    </message>
    <message>
        <source>Too Many Inserts Title</source>
        <translation>合紙が多すぎます</translation>
    </message>
    <message>
        <source>Too Many Inserts Message</source>
        <translation>特殊ページの一覧に入れられる合紙は%1件までですが、このページ指定ではそれを超えます。ページを減らしてください。同じ場所に何枚も入れるには、合紙を1件作って枚数を指定してください。</translation>
    </message>
    <message>
        <source>PageRangeConflictTitle</source>
        <translation>ページ範囲が重なっています</translation>
    </message>
    <message>
        <source>PageRangeConflictMessage</source>
        <translation>1つのページは1つの範囲にしか入れられません。ページが重ならないように範囲を変更してください。</translation>
    </message>
    <message>
        <source>Delete Special Pages Title</source>
        <translation>特殊ページを削除しますか?</translation>
    </message>
    <message>
        <source>Delete Selected Special Pages</source>
        <translation>選択した表紙、合紙、例外ページをジョブから削除します。［元に戻す］で戻せます。</translation>
    </message>
    <message>
        <source>Delete All Special Pages</source>
        <translation>すべての表紙、合紙、例外ページをジョブから削除します。［元に戻す］で戻せます。</translation>
    </message>
    <message>
        <source>No Command</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Yes Command</source>
        <translation>はい</translation>
    </message>

    <!-- What print dialogs say of special pages -->
    <message>
        <source>Inserts in Words</source>
        <translation>合紙:</translation>
    </message>
    <message>
        <source>Exception Pages in Words</source>
        <translation>例外ページ:</translation>
    </message>
    <message>
        <source>More Pages in Words</source>
        <translation>%1、ほか%2件</translation>
    </message>
    <message>
        <source>Insert in Preview</source>
        <translation>合紙</translation>
    </message>
    <message>
        <source>Exception in Preview</source>
        <translation>例外ページ %1</translation>
    </message>
    <message>
        <source>Insert in Words</source>
        <translation>%1ページの後(%2)</translation>
    </message>
    <message>
        <source>Insert before Page 1 in Words</source>
        <translation>1ページの前(%1)</translation>
    </message>
</context>
</TS>

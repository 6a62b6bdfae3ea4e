<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Text or picture -->
    <message>
        <source>Watermark Kind:</source>
        <translation>種類:</translation>
    </message>
    <message>
        <source>Watermark Kind</source>
        <translation>ウォーターマークの種類</translation>
    </message>
    <message>
        <source>Watermark Kind Text</source>
        <translation>文字(&amp;T)</translation>
    </message>
    <message>
        <source>Watermark Kind Picture</source>
        <translation>画像(&amp;P)</translation>
    </message>
    <message>
        <source>Watermark Text Hint</source>
        <translation>倍率は画像用です。文字の大きさはフォントのサイズで決まります。</translation>
    </message>
    <message>
        <source>Watermark Picture Hint</source>
        <translation>画像は、ページの中央に元の色で印刷され、傾きません。角度、濃度、位置は文字用です。</translation>
    </message>
    <message>
        <source>Watermark Cover Hint</source>
        <translation>送信シートの画像は、ページの中央に印刷され、傾きません。角度と位置は文字用です。</translation>
    </message>
    <!-- Texts -->
    <message>
        <source>Watermark Words:</source>
        <translation>文字列(&amp;W):</translation>
    </message>
    <message>
        <source>Watermark Words</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>Watermark Font:</source>
        <translation>フォント(&amp;F):</translation>
    </message>
    <message>
        <source>Watermark Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Watermark Font Missing</source>
        <translation>%1 (インストールされていません)</translation>
    </message>
    <message>
        <source>Watermark Font Replaced Hint</source>
        <translation>このフォントはインストールされていません。代わりに%1を使います。</translation>
    </message>
    <message>
        <source>Watermark Font Missing Hint</source>
        <translation>このフォントはインストールされていません。代わりにデスクトップのフォントを使います。</translation>
    </message>
    <message>
        <source>Watermark No Fonts Hint</source>
        <translation>フォントの一覧を読み込めません。ソフトウェアをインストールし直すか、管理者に問い合わせてください。</translation>
    </message>
    <message>
        <source>Watermark Size:</source>
        <translation>サイズ(&amp;S):</translation>
    </message>
    <message>
        <source>Watermark Size</source>
        <translation>サイズ(ポイント)</translation>
    </message>
    <message>
        <source>Watermark Sizes</source>
        <translation>一覧</translation>
    </message>
    <message>
        <source>Watermark Typical Sizes</source>
        <translation>一般的なサイズ</translation>
    </message>
    <message>
        <source>Watermark Size Limits</source>
        <translation>%1～%2ポイント</translation>
    </message>
    <message>
        <source>Watermark Color:</source>
        <translation>色(&amp;C):</translation>
    </message>
    <message>
        <source>Watermark Color</source>
        <translation>色(赤、緑、青を2桁ずつ)</translation>
    </message>
    <message>
        <source>Watermark Color Button</source>
        <translation>色の選択</translation>
    </message>
    <message>
        <source>Watermark Color Hint</source>
        <translation>文字はこの色で印刷されます</translation>
    </message>
    <message>
        <source>Watermark Font Color:</source>
        <translation>フォントの色(&amp;N):</translation>
    </message>
    <message>
        <source>Watermark Font Color</source>
        <translation>フォントの色(赤、緑、青を2桁ずつ)</translation>
    </message>
    <message>
        <source>Watermark Font Color Button</source>
        <translation>フォントの色の選択</translation>
    </message>
    <message>
        <source>Watermark Font Color Hint</source>
        <translation>フォントと一緒に保存されます。印刷には使われません</translation>
    </message>
    <message>
        <source>Watermark Angle:</source>
        <translation>角度(&amp;A):</translation>
    </message>
    <message>
        <source>Watermark Angle</source>
        <translation>角度(度)</translation>
    </message>
    <message>
        <source>Watermark Angle Dial</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Watermark Degrees</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Watermark Angle Limits</source>
        <translation>%1～%2度</translation>
    </message>
    <message>
        <source>Watermark Density:</source>
        <translation>濃度(&amp;D):</translation>
    </message>
    <message>
        <source>Watermark Density</source>
        <translation>濃度(パーセント)</translation>
    </message>
    <message>
        <source>Watermark Density Tip</source>
        <translation>0%では見えず、100%では下の内容が隠れます。</translation>
    </message>
    <message>
        <source>Watermark Percent</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Watermark Density Limits</source>
        <translation>%1～%2パーセント</translation>
    </message>
    <!-- Place -->
    <message>
        <source>Watermark Right:</source>
        <translation>右へ(&amp;R):</translation>
    </message>
    <message>
        <source>Watermark Right</source>
        <translation>中央から右への距離</translation>
    </message>
    <message>
        <source>Watermark Up:</source>
        <translation>上へ(&amp;U):</translation>
    </message>
    <message>
        <source>Watermark Up</source>
        <translation>中央から上への距離</translation>
    </message>
    <message>
        <source>Watermark Units</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Watermark Inches</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Watermark Millimetres</source>
        <translation>ミリメートル</translation>
    </message>
    <message>
        <source>Watermark Offset Limits</source>
        <translation>中央から%1～%2</translation>
    </message>
    <message>
        <source>Watermark Center</source>
        <translation>中央に置く(&amp;M)</translation>
    </message>
    <!-- Pictures -->
    <message>
        <source>Watermark Picture:</source>
        <translation>画像ファイル:</translation>
    </message>
    <message>
        <source>Watermark Choose</source>
        <translation>選択(&amp;H)…</translation>
    </message>
    <message>
        <source>Watermark Choose Picture</source>
        <translation>画像ファイルの選択</translation>
    </message>
    <message>
        <source>Watermark Picture Chooser</source>
        <translation>画像の選択</translation>
    </message>
    <message>
        <source>Watermark Picture Kinds</source>
        <translation>画像(PNG, JPEG, GIF, BMP, TIFF, SVG)</translation>
    </message>
    <message>
        <source>Watermark All Files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>Watermark Picture None</source>
        <translation>選択されていません</translation>
    </message>
    <message>
        <source>Watermark Picture Formats</source>
        <translation>PNG、JPEG、GIF、BMP、TIFF、SVG</translation>
    </message>
    <message>
        <source>Watermark Picture Reading</source>
        <translation>画像を読み込んでいます…</translation>
    </message>
    <message>
        <source>Watermark Picture Inches</source>
        <translation>%1 × %2ピクセル、印刷時は%3 × %4インチ</translation>
    </message>
    <message>
        <source>Watermark Picture Millimetres</source>
        <translation>%1 × %2ピクセル、印刷時は%3 × %4 mm</translation>
    </message>
    <message>
        <source>Watermark Scale:</source>
        <translation>倍率(&amp;L):</translation>
    </message>
    <message>
        <source>Watermark Scale</source>
        <translation>倍率(パーセント)</translation>
    </message>
    <message>
        <source>Watermark Scale Limits</source>
        <translation>%1～%2パーセント</translation>
    </message>
    <!-- Preview -->
    <message>
        <source>Watermark Editor Preview</source>
        <translation>用紙上のウォーターマーク</translation>
    </message>
    <message>
        <source>Watermark Over Page</source>
        <translation>最初のページに重ねて表示(&amp;G)</translation>
    </message>
    <message>
        <source>Watermark No Page</source>
        <translation>文書があるときは、最初のページを表示できます。</translation>
    </message>
    <message>
        <source>Watermark Place Hint</source>
        <translation>ページの上をドラッグするか、矢印キーを押すと、ウォーターマークが動きます。Shiftキーを押しながらだと10倍動きます。</translation>
    </message>
    <!-- What OK refuses, and asks -->
    <message>
        <source>Watermark Refused Header</source>
        <translation>ウォーターマークをまだ保存できません</translation>
    </message>
    <message>
        <source>Watermark No Color</source>
        <translation>色を、# に続けて0～9とA～Fの6桁で入力してください（例: #FF0000 は赤）。ボタンで選ぶこともできます。</translation>
    </message>
    <message>
        <source>Watermark No Text</source>
        <translation>印刷する文字列を入力してください。</translation>
    </message>
    <message>
        <source>Watermark No Picture</source>
        <translation>印刷する画像を選んでください。</translation>
    </message>
    <message>
        <source>Watermark Picture Still Read</source>
        <translation>画像を読み込んでいる途中です。少し待ってから、やり直してください。</translation>
    </message>
    <message>
        <source>Watermark Picture Unreadable</source>
        <translation>画像を読み込めません。%1。</translation>
    </message>
    <message>
        <source>Watermark Name Reserved</source>
        <translation>「%1」は、ウォーターマークの一覧で使われている名前です。文字列か画像ファイルの名前を変えてください。</translation>
    </message>
    <message>
        <source>Watermark Name Is Font</source>
        <translation>「%1」という名前は、印刷用のフォントに使われています。文字列か画像ファイルの名前を変えてください。</translation>
    </message>
    <message>
        <source>Watermark Replace Header</source>
        <translation>「%1」を置き換えますか?</translation>
    </message>
    <message>
        <source>Watermark Replace Message</source>
        <translation>この名前のウォーターマークはすでにあります。文字でも画像でも、同じ名前は1つしか登録できません。置き換えると、元のものはなくなります。</translation>
    </message>
    <message>
        <source>Watermark Replace</source>
        <translation>置き換え</translation>
    </message>
</context>
</TS>

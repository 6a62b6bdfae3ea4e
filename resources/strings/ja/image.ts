<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>ImageOptions</source>
        <translation>画像オプション</translation>
    </message>
    <message>
        <source>Lighten/Darken:</source>
        <translation>明るさ(&amp;D):</translation>
    </message>
    <message>
        <source>Lighten/Darken Slider</source>
        <translation>明るさの段階</translation>
    </message>
    <message>
        <source>Lighten5</source>
        <translation>明るく5</translation>
    </message>
    <message>
        <source>Lighten4</source>
        <translation>明るく4</translation>
    </message>
    <message>
        <source>Lighten3</source>
        <translation>明るく3</translation>
    </message>
    <message>
        <source>Lighten2</source>
        <translation>明るく2</translation>
    </message>
    <message>
        <source>Lighten1</source>
        <translation>明るく1</translation>
    </message>
    <message>
        <source>Darken1</source>
        <translation>暗く1</translation>
    </message>
    <message>
        <source>Darken2</source>
        <translation>暗く2</translation>
    </message>
    <message>
        <source>Darken3</source>
        <translation>暗く3</translation>
    </message>
    <message>
        <source>Darken4</source>
        <translation>暗く4</translation>
    </message>
    <message>
        <source>Darken5</source>
        <translation>暗く5</translation>
    </message>
    <message>
        <source>Use Printer Default</source>
        <translation>プリンターの既定を使う(&amp;U)</translation>
    </message>
    <message>
        <source>Printer Default Tip</source>
        <translation>濃さを指定せずに送信し、機器側の設定を使います。</translation>
    </message>
    <message>
        <source>Printer Default Words</source>
        <translation>プリンターの既定は「%1」です。</translation>
    </message>
    <message>
        <source>Kept Lightness Words</source>
        <translation>ジョブにはすでに「%1」が設定されていて、そのまま使われます。</translation>
    </message>
    <message>
        <source>Image Quality:</source>
        <translation>画質(&amp;Q):</translation>
    </message>
    <message>
        <source>Image Quality Hint</source>
        <translation>画像と文字をどれだけきれいに印刷するかを選びます。</translation>
    </message>
    <message>
        <source>Toner Saver:</source>
        <translation>トナー節約:</translation>
    </message>
    <message>
        <source>Conserve Dry Ink</source>
        <translation>トナーを節約する(&amp;K)</translation>
    </message>
    <message>
        <source>Conserve Dry Ink Spoken</source>
        <translation>トナー節約: トナーを節約する</translation>
    </message>
    <message>
        <source>Toner Saver Hint</source>
        <translation>下書き用に薄く印刷します。</translation>
    </message>
    <message>
        <source>CMYK Source Color:</source>
        <translation>CMYKの入力カラー(&amp;R):</translation>
    </message>
    <message>
        <source>CMYK Source Color Hint</source>
        <translation>文書のCMYKカラーの基準となる印刷条件です。</translation>
    </message>
    <message>
        <source>Output Color Correction:</source>
        <translation>出力カラー補正(&amp;N):</translation>
    </message>
    <message>
        <source>Output Color Correction Hint</source>
        <translation>色を紙の上でどう合わせるかを選びます。</translation>
    </message>
    <message>
        <source>Invert Image Label</source>
        <translation>画像の反転:</translation>
    </message>
    <message>
        <source>Mirror Image Title</source>
        <translation>鏡像(&amp;M)</translation>
    </message>
    <message>
        <source>Mirror Image Spoken</source>
        <translation>画像の反転: 鏡像</translation>
    </message>
    <message>
        <source>Mirror Image Hint</source>
        <translation>左右を入れ替えます。フィルムや転写紙に使います。</translation>
    </message>
    <message>
        <source>Negative Image Title</source>
        <translation>ネガ</translation>
    </message>
    <message>
        <source>Negative Image Hint</source>
        <translation>チケットでネガが指定されていて、そのまま使われます。</translation>
    </message>
    <message>
        <source>Image Example</source>
        <translation>ページの印刷結果の例</translation>
    </message>
    <message>
        <source>Image Example Caption</source>
        <translation>例（紙の上では色が異なることがあります）</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Menus of every panel -->
    <message>
        <source>PrinterDefault</source>
        <translation>プリンターの既定</translation>
    </message>
    <message>
        <source>UseJobSetting</source>
        <translation>ジョブの設定に従う</translation>
    </message>
    <message>
        <source>Not Offered Here</source>
        <translation>選択できません</translation>
    </message>
    <message>
        <source>Choice Not Offered</source>
        <translation>ジョブには、ここでは選択できない設定があり、そのまま使われます。</translation>
    </message>
    <message>
        <source>Not on This Device</source>
        <translation>この機器では使えません。</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>スキャン</translation>
    </message>
    <message>
        <source>Gather</source>
        <translation>収集</translation>
    </message>
    <message>
        <source>True</source>
        <translation>する</translation>
    </message>
    <message>
        <source>False</source>
        <translation>しない</translation>
    </message>
    <message>
        <source>Halbrook 3300</source>
        <translation>Halbrook 3300</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>印刷面を下</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>印刷面を上</translation>
    </message>
    <message>
        <source>RightToLeft</source>
        <translation>右から左</translation>
    </message>
    <message>
        <source>LeftToRight</source>
        <translation>左から右</translation>
    </message>
    <message>
        <source>No Covers</source>
        <translation>表紙なし</translation>
    </message>
    <message>
        <source>Front Cover Only</source>
        <translation>おもて表紙のみ</translation>
    </message>
    <message>
        <source>Back Cover Only</source>
        <translation>うら表紙のみ</translation>
    </message>
    <message>
        <source>Front and Back Covers</source>
        <translation>おもて表紙とうら表紙</translation>
    </message>
    <message>
        <source>After Page</source>
        <translation>指定ページの後</translation>
    </message>
    <message>
        <source>SpecialPageSummaryBefore1</source>
        <translation>1ページの前</translation>
    </message>
    <message>
        <source>Setup...</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>No Page Borders</source>
        <translation>ページ枠なし</translation>
    </message>
    <message>
        <source>Draw Page Borders</source>
        <translation>ページ枠を付ける</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>する</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>しない</translation>
    </message>
    <message>
        <source>WatermarkBackground</source>
        <translation>背面に印刷</translation>
    </message>
    <message>
        <source>WatermarkBlend</source>
        <translation>ページに重ねて印刷</translation>
    </message>
    <message>
        <source>WatermarkForeground</source>
        <translation>前面に印刷</translation>
    </message>
    <message>
        <source>WatermarkPrintOnAllPages</source>
        <translation>すべてのページに印刷</translation>
    </message>
    <message>
        <source>WatermarmPrintOnPage1Only</source>
        <translation>1ページ目のみに印刷</translation>
    </message>
    <message>
        <source>NoWatermark</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>新規…</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>編集…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>ファイン</translation>
    </message>
    <message>
        <source>Superfine</source>
        <translation>スーパーファイン</translation>
    </message>
    <message>
        <source>Ultrafine</source>
        <translation>ウルトラファイン</translation>
    </message>
    <message>
        <source>G3-Auto</source>
        <translation>G3(自動)</translation>
    </message>
    <message>
        <source>Fixed G3</source>
        <translation>G3(固定)</translation>
    </message>
    <message>
        <source>G4-Auto</source>
        <translation>G4(自動)</translation>
    </message>
    <message>
        <source>Print a Confirmation Sheet</source>
        <translation>送信結果レポートを印刷する</translation>
    </message>
    <message>
        <source>Do Not Print a Confirmation Sheet</source>
        <translation>送信結果レポートを印刷しない</translation>
    </message>
    <message>
        <source>Do Not Print a Cover Sheet</source>
        <translation>送信シートを付けない</translation>
    </message>
    <message>
        <source>Print a Cover Sheet...</source>
        <translation>送信シートを付ける…</translation>
    </message>
    <message>
        <source>Show All Recipients</source>
        <translation>すべての宛先を載せる</translation>
    </message>
    <message>
        <source>Hide Recipient&apos;s Information</source>
        <translation>宛先の情報を載せない</translation>
    </message>
    <message>
        <source>Show Custom Text</source>
        <translation>任意の文面を載せる</translation>
    </message>
    <message>
        <source>Show Sender&apos;s Information</source>
        <translation>差出人の情報を載せる</translation>
    </message>
    <message>
        <source>Hide Sender&apos;s Information</source>
        <translation>差出人の情報を載せない</translation>
    </message>
    <message>
        <source>Cover Sheet Paper Size</source>
        <translation>送信シートの用紙サイズ</translation>
    </message>
    <message>
        <source>0.5&quot; (8.5x11&quot; Template)</source>
        <translation>0.5インチ(8.5 × 11インチのテンプレート)</translation>
    </message>
    <message>
        <source>12.7 mm (A4 Template)</source>
        <translation>12.7 mm (A4のテンプレート)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>ユーザー定義</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>ミリメートル</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存のみ</translation>
    </message>
    <message>
        <source>SavePrint</source>
        <translation>保存して印刷</translation>
    </message>
    <message>
        <source>PublicFolder</source>
        <translation>既定の共有フォルダー</translation>
    </message>
    <message>
        <source>UseJobName</source>
        <translation>文書名を使う</translation>
    </message>
    <message>
        <source>UseLoginName</source>
        <translation>ログイン名を使う</translation>
    </message>
    <message>
        <source>StockSizeLetter</source>
        <translation>レター(8.5 × 11インチ)</translation>
    </message>
    <message>
        <source>StockSizeA4</source>
        <translation>A4 (210 × 297 mm)</translation>
    </message>
    <message>
        <source>Separator Option None</source>
        <translation>仕切り紙なし</translation>
    </message>
    <message>
        <source>Separator Option Blank</source>
        <translation>白紙の仕切り紙</translation>
    </message>
    <message>
        <source>Separator Option Printed</source>
        <translation>印刷した仕切り紙</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>SecurePrint</source>
        <translation>親展印刷</translation>
    </message>
    <message>
        <source>SampleSet</source>
        <translation>試し印刷</translation>
    </message>
    <message>
        <source>DelayedPrint</source>
        <translation>時刻指定印刷</translation>
    </message>
    <message>
        <source>Save to Mailbox Command</source>
        <translation>保存ジョブ</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>ファクス</translation>
    </message>
    <message>
        <source>600 x 600 Resolution</source>
        <translation>600 × 600 dpi</translation>
    </message>
    <message>
        <source>Simplex</source>
        <translation>片面印刷</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>両面印刷(長辺とじ)</translation>
    </message>
    <message>
        <source>DuplexShort</source>
        <translation>両面印刷(短辺とじ)</translation>
    </message>
    <message>
        <source>CoverPrinted</source>
        <translation>印刷する</translation>
    </message>
    <message>
        <source>CoverBlankorPreprinted</source>
        <translation>白紙または印刷済み</translation>
    </message>
    <!-- What is fitted to the device -->
    <message>
        <source>1 Staple</source>
        <translation>ステープル(1か所)</translation>
    </message>
    <message>
        <source>2 Staples</source>
        <translation>ステープル(2か所)</translation>
    </message>
    <message>
        <source>Multiple Staples</source>
        <translation>ステープル(複数か所)</translation>
    </message>
    <message>
        <source>HolePunch</source>
        <translation>パンチ</translation>
    </message>
    <message>
        <source>2 Hole Punch</source>
        <translation>パンチ(2穴)</translation>
    </message>
    <message>
        <source>3 Hole Punch</source>
        <translation>パンチ(3穴)</translation>
    </message>
    <message>
        <source>4 Hole Punch</source>
        <translation>パンチ(4穴)</translation>
    </message>
    <message>
        <source>FoldCFold</source>
        <translation>内三つ折り</translation>
    </message>
    <message>
        <source>FoldZFold</source>
        <translation>外三つ折り</translation>
    </message>
    <message>
        <source>Z Fold Half Sheet</source>
        <translation>Z折り(半分折り返し)</translation>
    </message>
    <message>
        <source>BiFoldNoStaple</source>
        <translation>二つ折り製本</translation>
    </message>
    <message>
        <source>Tape Binding</source>
        <translation>テープ製本</translation>
    </message>
    <message>
        <source>Post-Print Inserter</source>
        <translation>インサーター</translation>
    </message>
    <message>
        <source>Auto Switch Tray</source>
        <translation>排出トレイの自動切り替え</translation>
    </message>
    <message>
        <source>Stacker Tray 1</source>
        <translation>スタッカートレイ1(上段)</translation>
    </message>
    <message>
        <source>Stacker Tray 2</source>
        <translation>スタッカートレイ2(下段)</translation>
    </message>
    <message>
        <source>Simple Catch Tray</source>
        <translation>サイドトレイ</translation>
    </message>
</context>
</TS>

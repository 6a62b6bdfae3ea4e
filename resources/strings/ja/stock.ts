<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Summary and menus of the paper -->
    <message>
        <source>StockName</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>StockColor</source>
        <translation>色</translation>
    </message>
    <message>
        <source>:</source>
        <translation>: </translation>
    </message>
    <message>
        <source>StockTypePrecutTab</source>
        <translation>タブ紙(カット済み)</translation>
    </message>
    <message>
        <source>StockTypeOrdered</source>
        <translation>順序紙</translation>
    </message>
    <message>
        <source>StockTypeCustom</source>
        <translation>ユーザー定義の種類</translation>
    </message>
    <message>
        <source>StockColorCustom</source>
        <translation>ユーザー定義の色</translation>
    </message>
    <message>
        <source>OtherSize</source>
        <translation>その他のサイズ</translation>
    </message>
    <message>
        <source>OtherColor</source>
        <translation>その他の色</translation>
    </message>
    <message>
        <source>OtherType</source>
        <translation>その他の種類</translation>
    </message>
    <message>
        <source>Default Stock</source>
        <translation>既定の用紙</translation>
    </message>
    <message>
        <source>Advanced Stock Selection...</source>
        <translation>用紙の詳細設定…</translation>
    </message>
    <message>
        <source>StockCustomSizeInches</source>
        <translation>ユーザー定義(%1 × %2インチ)</translation>
    </message>
    <message>
        <source>StockCustomSizeMillimeters</source>
        <translation>ユーザー定義(%1 × %2 mm)</translation>
    </message>
    <message>
        <source>StockSizeUnknown</source>
        <translation>その他のサイズ</translation>
    </message>
    <!-- What the paper is beyond size, color and type -->
    <message>
        <source>StockWeightText</source>
        <translation>%1 g/m²</translation>
    </message>
    <message>
        <source>StockCoatingText</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>StockNotPunched</source>
        <translation>パンチなし</translation>
    </message>
    <message>
        <source>StockPrePunched</source>
        <translation>パンチ済み</translation>
    </message>
    <message>
        <source>StockNotCoated</source>
        <translation>コートなし</translation>
    </message>
    <message>
        <source>StockOneSideCoated</source>
        <translation>片面コート</translation>
    </message>
    <message>
        <source>StockBothCoated</source>
        <translation>両面コート</translation>
    </message>
    <message>
        <source>StockCoatingUsual</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>StockCoatingGloss</source>
        <translation>光沢</translation>
    </message>
    <message>
        <source>StockCoatingSatin</source>
        <translation>半光沢</translation>
    </message>
    <message>
        <source>StockCoatingMatte</source>
        <translation>つや消し</translation>
    </message>
    <message>
        <source>StockFinishSmooth</source>
        <translation>平滑</translation>
    </message>
    <message>
        <source>StockFinishVellum</source>
        <translation>ベラム</translation>
    </message>
    <message>
        <source>StockFinishLaid</source>
        <translation>すき目入り</translation>
    </message>
    <message>
        <source>StockFinishLinen</source>
        <translation>布目</translation>
    </message>
    <message>
        <source>StockFinishFelt</source>
        <translation>フェルト</translation>
    </message>
    <message>
        <source>StockGrainLong</source>
        <translation>縦目(長辺に平行)</translation>
    </message>
    <message>
        <source>StockGrainShort</source>
        <translation>横目(短辺に平行)</translation>
    </message>
    <!-- Custom paper size -->
    <message>
        <source>Custom Size Title</source>
        <translation>ユーザー定義の用紙サイズ</translation>
    </message>
    <message>
        <source>Custom Size Width:</source>
        <translation>幅(&amp;W):</translation>
    </message>
    <message>
        <source>Custom Size Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Custom Size Length:</source>
        <translation>長さ(&amp;L):</translation>
    </message>
    <message>
        <source>Custom Size Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Custom Size Unit:</source>
        <translation>単位(&amp;U):</translation>
    </message>
    <message>
        <source>Custom Size Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Custom Size Inches</source>
        <translation>インチ(&amp;I)</translation>
    </message>
    <message>
        <source>Custom Size Millimeters</source>
        <translation>ミリメートル(&amp;M)</translation>
    </message>
    <message>
        <source>Custom Size Limits Inches</source>
        <translation>%1～%2インチ</translation>
    </message>
    <message>
        <source>Custom Size Limits Millimeters</source>
        <translation>%1～%2 mm</translation>
    </message>
    <message>
        <source>Custom Width Refused Header</source>
        <translation>この幅の用紙は、この機器では使えません</translation>
    </message>
    <message>
        <source>Custom Length Refused Header</source>
        <translation>この長さの用紙は、この機器では使えません</translation>
    </message>
    <message>
        <source>Custom Size Refused Message</source>
        <translation>使える範囲は%1です。数値を変更するか、［キャンセル］を押して元のサイズのままにしてください。</translation>
    </message>
    <message>
        <source>Custom Size Picture</source>
        <translation>用紙の幅と長さの図</translation>
    </message>
    <!-- Tab stock -->
    <message>
        <source>Tab Stock Setup</source>
        <translation>タブ紙の設定</translation>
    </message>
    <message>
        <source>Tab Margin Shift:</source>
        <translation>タブへのシフト(&amp;T):</translation>
    </message>
    <message>
        <source>Tab Margin Shift</source>
        <translation>タブへのシフト</translation>
    </message>
    <message>
        <source>Tab Shift Distance:</source>
        <translation>移動量(&amp;D):</translation>
    </message>
    <message>
        <source>Tab Shift Distance</source>
        <translation>移動量</translation>
    </message>
    <message>
        <source>Tab Shift Unit:</source>
        <translation>単位(&amp;U):</translation>
    </message>
    <message>
        <source>Tab Shift Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Tab Shift Inches</source>
        <translation>インチ(&amp;I)</translation>
    </message>
    <message>
        <source>Tab Shift Millimeters</source>
        <translation>ミリメートル(&amp;M)</translation>
    </message>
    <message>
        <source>Tab Shift Hint</source>
        <translation>印刷する画像をタブの方へ移動します。移動量を自分で決めるには、［ユーザー定義］を選んでください。</translation>
    </message>
    <message>
        <source>Tab Shift Picture</source>
        <translation>画像をタブの上に移動したタブ紙の図</translation>
    </message>
    <message>
        <source>Pre-Cut Tab Title</source>
        <translation>タブ紙(カット済み)</translation>
    </message>
    <message>
        <source>Tabs in Set:</source>
        <translation>1組のタブの数(&amp;T):</translation>
    </message>
    <message>
        <source>Tabs in Set</source>
        <translation>1組のタブの数</translation>
    </message>
    <message>
        <source>Tabs in Set Hint</source>
        <translation>最初の位置のタブから最後の位置のタブまでの枚数です。</translation>
    </message>
    <message>
        <source>Tabs in Set Picture</source>
        <translation>カット済みのタブ紙の図</translation>
    </message>
    <!-- Type of the paper -->
    <message>
        <source>Stock Type Title</source>
        <translation>用紙の種類</translation>
    </message>
    <message>
        <source>Stock Type:</source>
        <translation>種類(&amp;T):</translation>
    </message>
    <message>
        <source>Stock Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Stock Type Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Stock Type Name</source>
        <translation>種類の名前</translation>
    </message>
    <message>
        <source>Stock Type Name Hint</source>
        <translation>順序紙と「ユーザー定義の種類」には、機器に登録されている用紙の名前が必要です。</translation>
    </message>
    <message>
        <source>Stock Type Tabs:</source>
        <translation>タブ:</translation>
    </message>
    <message>
        <source>Stock Type Tabs...</source>
        <translation>タブ(&amp;B)…</translation>
    </message>
    <message>
        <source>Tabs Not Set</source>
        <translation>数は未設定</translation>
    </message>
    <message>
        <source>Tabs Set</source>
        <translation>1組に%1</translation>
    </message>
    <message>
        <source>Tabs Not Needed</source>
        <translation>この種類にはタブがありません。</translation>
    </message>
    <message>
        <source>Stock Type Name Missing Header</source>
        <translation>用紙の種類に名前が必要です</translation>
    </message>
    <message>
        <source>Stock Type Name Missing Message</source>
        <translation>順序紙と「ユーザー定義の種類」には、名前が必要です。機器に登録されている用紙の名前を入力するか、別の種類を選んでください。</translation>
    </message>
    <!-- Description of the paper -->
    <message>
        <source>Stock Description Title</source>
        <translation>用紙の説明</translation>
    </message>
    <message>
        <source>Stock Description:</source>
        <translation>説明(&amp;D):</translation>
    </message>
    <message>
        <source>Stock Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Stock Weight:</source>
        <translation>坪量(&amp;W):</translation>
    </message>
    <message>
        <source>Stock Weight</source>
        <translation>坪量</translation>
    </message>
    <message>
        <source>Stock Weight Suffix</source>
        <translation> g/m²</translation>
    </message>
    <message>
        <source>Stock Weight Range</source>
        <translation>この機器では%1～%2 g/m²</translation>
    </message>
    <message>
        <source>Stock Sides Coated:</source>
        <translation>コート(&amp;C):</translation>
    </message>
    <message>
        <source>Stock Sides Coated</source>
        <translation>コート</translation>
    </message>
    <message>
        <source>Stock Coating Type:</source>
        <translation>コートの種類(&amp;Y):</translation>
    </message>
    <message>
        <source>Stock Coating Type</source>
        <translation>コートの種類</translation>
    </message>
    <message>
        <source>Stock Finish:</source>
        <translation>表面の仕上げ(&amp;F):</translation>
    </message>
    <message>
        <source>Stock Finish</source>
        <translation>表面の仕上げ</translation>
    </message>
    <message>
        <source>Stock Finish Tip</source>
        <translation>表面の手触り。凹凸のある用紙では、トナーの乗りにむらが出ることがあります。</translation>
    </message>
    <message>
        <source>Stock Grain:</source>
        <translation>紙の目(&amp;G):</translation>
    </message>
    <message>
        <source>Stock Grain</source>
        <translation>紙の目</translation>
    </message>
    <message>
        <source>Stock Grain Tip</source>
        <translation>繊維の方向。紙の目に沿うときれいに折れ、逆らうと割れやすくなります。</translation>
    </message>
    <message>
        <source>Stock Punched:</source>
        <translation>パンチ穴(&amp;P):</translation>
    </message>
    <message>
        <source>Stock Punched</source>
        <translation>パンチ穴</translation>
    </message>
    <message>
        <source>Stock Comment:</source>
        <translation>コメント(&amp;O):</translation>
    </message>
    <message>
        <source>Stock Comment</source>
        <translation>コメント</translation>
    </message>
    <!-- All of the paper -->
    <message>
        <source>Advanced Stock Title</source>
        <translation>用紙の詳細設定</translation>
    </message>
    <message>
        <source>Stock Summary</source>
        <translation>現在の用紙の設定</translation>
    </message>
    <message>
        <source>Stock Type...</source>
        <translation>種類(&amp;T)…</translation>
    </message>
    <message>
        <source>Stock Description...</source>
        <translation>説明(&amp;D)…</translation>
    </message>
    <message>
        <source>Stock Library:</source>
        <translation>用紙ライブラリー(&amp;L):</translation>
    </message>
    <message>
        <source>Stock Library</source>
        <translation>名前を付けた用紙のライブラリー</translation>
    </message>
    <message>
        <source>Stock Library Choose</source>
        <translation>用紙を選んでください</translation>
    </message>
    <message>
        <source>Stock Library Empty</source>
        <translation>保存された用紙はまだありません</translation>
    </message>
    <message>
        <source>Stock Library Hint</source>
        <translation>ライブラリーから用紙を選ぶと、このウィンドウの設定が置き換わります。</translation>
    </message>
    <message>
        <source>Save in Library...</source>
        <translation>ライブラリーに保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Remove from Library</source>
        <translation>ライブラリーから削除(&amp;R)</translation>
    </message>
    <message>
        <source>Stock Size:</source>
        <translation>サイズ(&amp;Z):</translation>
    </message>
    <message>
        <source>Stock Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Advanced Stock Color:</source>
        <translation>色(&amp;C):</translation>
    </message>
    <message>
        <source>Advanced Stock Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Stock Color Name:</source>
        <translation>色の名前(&amp;N):</translation>
    </message>
    <message>
        <source>Stock Color Name</source>
        <translation>色の名前</translation>
    </message>
    <message>
        <source>Stock Color Name Missing Header</source>
        <translation>色に名前が必要です</translation>
    </message>
    <message>
        <source>Stock Color Name Missing Message</source>
        <translation>ユーザー定義の色には名前が必要です。名前を入力するか、別の色を選んでください。</translation>
    </message>
    <!-- The library of named papers -->
    <message>
        <source>Save in Library Title</source>
        <translation>ライブラリーに保存</translation>
    </message>
    <message>
        <source>Library Stock Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Library Stock Name</source>
        <translation>用紙の名前</translation>
    </message>
    <message>
        <source>Library Stock Name Hint</source>
        <translation>この用紙は、どのジョブでもこの名前で選べるようになります。</translation>
    </message>
    <message>
        <source>Library Name Missing Header</source>
        <translation>用紙に名前が必要です</translation>
    </message>
    <message>
        <source>Library Name Missing Message</source>
        <translation>この用紙をライブラリーに保存するための名前を入力してください。</translation>
    </message>
    <message>
        <source>Library Name Too Long Header</source>
        <translation>名前を短くしてください</translation>
    </message>
    <message>
        <source>Library Name Too Long Message</source>
        <translation>ライブラリーの名前は%1文字までです。</translation>
    </message>
    <message>
        <source>Library Full Header</source>
        <translation>ライブラリーがいっぱいです</translation>
    </message>
    <message>
        <source>Library Full Message</source>
        <translation>ライブラリーに保存できる用紙は%1件までです。不要な用紙を削除するか、すでにある名前で保存してください。</translation>
    </message>
    <message>
        <source>Library Not Found Header</source>
        <translation>この用紙はライブラリーにありません</translation>
    </message>
    <message>
        <source>Library Not Found Message</source>
        <translation>「%1」は、このウィンドウを開いている間に削除されました。</translation>
    </message>
    <message>
        <source>Library Not Written Header</source>
        <translation>ライブラリーを保存できませんでした</translation>
    </message>
    <message>
        <source>Library Not Written Message</source>
        <translation>ファイル%1に書き込めません。ディスクに空きがあり、フォルダーへの書き込みが許可されていることを確認してから、やり直してください。</translation>
    </message>
    <message>
        <source>Library Replace Header</source>
        <translation>「%1」を置き換えますか?</translation>
    </message>
    <message>
        <source>Library Replace Message</source>
        <translation>この名前の用紙は、すでにライブラリーにあります。</translation>
    </message>
    <message>
        <source>Library Replace Button</source>
        <translation>置き換え</translation>
    </message>
    <message>
        <source>Library Remove Header</source>
        <translation>「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>Library Remove Message</source>
        <translation>この用紙をライブラリーから削除します。使用中のジョブは変わりません。</translation>
    </message>
    <message>
        <source>Library Remove Button</source>
        <translation>削除</translation>
    </message>
</context>
</TS>

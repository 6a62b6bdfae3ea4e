<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PDE Shell</source>
        <translation>機器</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>前のタブ</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>次のタブ</translation>
    </message>
    <message>
        <source>Tab Selector</source>
        <translation>機器の設定</translation>
    </message>
    <message>
        <source>Advanced Introduction</source>
        <translation>ほとんどのジョブでは変更する必要のない設定です。</translation>
    </message>
    <message>
        <source>Booklet Image Order:</source>
        <translation>製本のページ順(&amp;B):</translation>
    </message>
    <message>
        <source>Booklet Image Order</source>
        <translation>製本のページ順</translation>
    </message>
    <message>
        <source>Booklet Image Order Hint</source>
        <translation>製本でページを並べる方向です。</translation>
    </message>
    <message>
        <source>Banner Sheet:</source>
        <translation>バナーシート(&amp;A):</translation>
    </message>
    <message>
        <source>Banner Sheet</source>
        <translation>バナーシート</translation>
    </message>
    <message>
        <source>Banner Sheet Hint</source>
        <translation>誰のジョブかを示すために、ジョブの前に付ける用紙です。</translation>
    </message>
    <message>
        <source>Request Offset:</source>
        <translation>オフセット排出の要求(&amp;R):</translation>
    </message>
    <message>
        <source>Request Offset</source>
        <translation>オフセット排出の要求</translation>
    </message>
    <message>
        <source>Request Offset Hint</source>
        <translation>部ごとに排出位置をずらして、区切りをわかりやすくします。</translation>
    </message>
    <message>
        <source>Bypass Feed Edge Label</source>
        <translation>手差しの給紙方向(&amp;F):</translation>
    </message>
    <message>
        <source>Bypass Feed Edge</source>
        <translation>手差しの給紙方向</translation>
    </message>
    <message>
        <source>Bypass Feed Edge Hint</source>
        <translation>手差しトレイに先に入る用紙の辺です。</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>このソフトウェアについて(&amp;U)…</translation>
    </message>
    <message>
        <source>About Title</source>
        <translation>Corvaneパネルについて</translation>
    </message>
    <message>
        <source>About Product</source>
        <translation>Kelvo Corvaneパネル</translation>
    </message>
    <message>
        <source>About Description</source>
        <translation>Corvane機の用紙、仕上げ、ジョブの設定を印刷ダイアログで行います。</translation>
    </message>
    <message>
        <source>About Picture</source>
        <translation>機器と装着されているオプション</translation>
    </message>
    <message>
        <source>About Panels:</source>
        <translation>パネル:</translation>
    </message>
    <message>
        <source>About Program:</source>
        <translation>プログラム:</translation>
    </message>
    <message>
        <source>About Device:</source>
        <translation>機器:</translation>
    </message>
    <message>
        <source>About Device Not Known</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>About Printer:</source>
        <translation>プリンター:</translation>
    </message>
    <message>
        <source>About PPD:</source>
        <translation>PPDファイル:</translation>
    </message>
    <message>
        <source>About PPD Version</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>About Fitted:</source>
        <translation>装着オプション:</translation>
    </message>
    <message>
        <source>About Nothing Fitted</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>About Paper Trays:</source>
        <translation>給紙トレイ:</translation>
    </message>
    <message>
        <source>About Output Trays:</source>
        <translation>排出トレイ:</translation>
    </message>
    <message>
        <source>About System:</source>
        <translation>システム:</translation>
    </message>
    <message>
        <source>About Language:</source>
        <translation>言語:</translation>
    </message>
    <message>
        <source>About Locale:</source>
        <translation>地域:</translation>
    </message>
    <message>
        <source>About Window System:</source>
        <translation>ウィンドウシステム:</translation>
    </message>
    <message>
        <source>About Libraries:</source>
        <translation>使用ライブラリ:</translation>
    </message>
    <message>
        <source>About Libraries Label</source>
        <translation>使用ライブラリ(&amp;L):</translation>
    </message>
    <message>
        <source>About Libraries</source>
        <translation>使用ライブラリ</translation>
    </message>
    <message>
        <source>About Library</source>
        <translation>%1 – %2 – %3</translation>
    </message>
    <message>
        <source>About Libraries Hint</source>
        <translation>ライセンスと主な作者も示します。これらがさらに使うライブラリのライセンスは、システムのパッケージに記載されています。</translation>
    </message>
    <message>
        <source>About Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>About Copy Hint</source>
        <translation>サポートへの問い合わせ用に、この内容とシステムの情報をコピーします。人の名前と暗証番号は含まれません。</translation>
    </message>
    <message>
        <source>About Copied</source>
        <translation>クリップボードにコピーしました。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Invalid Secure Print Passcode Header</source>
        <translation>暗証番号を確認してください</translation>
    </message>
    <message>
        <source>Invalid Secure Print Passcode Message</source>
        <translation>このジョブには%1～%2桁の暗証番号が必要です。ジョブの種類の横の「設定…」で、同じ番号を2回入力してください。ジョブは、機器で暗証番号を入力すると印刷されます。</translation>
    </message>
    <message>
        <source>NoFaxDevice Header</source>
        <translation>このプリンターはファクスを送信できません</translation>
    </message>
    <message>
        <source>NoFaxDevice Message</source>
        <translation>ファクスを送信できるプリンターか、別のジョブの種類を選んでください。</translation>
    </message>
    <message>
        <source>FaxRecipientsMissing Header</source>
        <translation>ファクスの宛先がありません</translation>
    </message>
    <message>
        <source>FaxRecipientsMissing Message</source>
        <translation>送信する前に、ファクスの設定で宛先を1件以上追加してください。</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <!-- The dialog -->
    <message>
        <source>Cover Sheet Title</source>
        <translation>送信シート</translation>
    </message>
    <message>
        <source>Cover Sender:</source>
        <translation>差出人(&amp;S):</translation>
    </message>
    <message>
        <source>Cover Sender Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Cover Sender Name</source>
        <translation>差出人の名前</translation>
    </message>
    <message>
        <source>Cover Sender Organization:</source>
        <translation>会社名(&amp;G):</translation>
    </message>
    <message>
        <source>Cover Sender Organization</source>
        <translation>差出人の会社名</translation>
    </message>
    <message>
        <source>Cover Sender Email:</source>
        <translation>メール(&amp;E):</translation>
    </message>
    <message>
        <source>Cover Sender Email</source>
        <translation>差出人のメールアドレス</translation>
    </message>
    <message>
        <source>Cover Sender Phone:</source>
        <translation>電話(&amp;P):</translation>
    </message>
    <message>
        <source>Cover Sender Phone</source>
        <translation>差出人の電話番号</translation>
    </message>
    <message>
        <source>Cover Sender Fax:</source>
        <translation>ファクス(&amp;F):</translation>
    </message>
    <message>
        <source>Cover Sender Fax</source>
        <translation>差出人のファクス番号</translation>
    </message>
    <message>
        <source>Cover My Card</source>
        <translation>自分のカードを使う(&amp;M)</translation>
    </message>
    <message>
        <source>Cover My Card Reading</source>
        <translation>アドレス帳から自分のカードを探しています…</translation>
    </message>
    <message>
        <source>Cover My Card Missing</source>
        <translation>アドレス帳に、自分のカードとして登録されたカードがありません。アドレス帳で登録すると、ここで使えます。</translation>
    </message>
    <message>
        <source>Cover My Card Unavailable</source>
        <translation>自分のカードを使えません: %1。</translation>
    </message>
    <message>
        <source>Cover My Card No Thread</source>
        <translation>アドレス帳に問い合わせるためのスレッドをシステムが割り当てられません。ほかのプログラムを終了してください</translation>
    </message>
    <message>
        <source>Cover Recipients:</source>
        <translation>宛先(&amp;R):</translation>
    </message>
    <message>
        <source>Cover Custom Text:</source>
        <translation>文面(&amp;T):</translation>
    </message>
    <message>
        <source>Cover Custom Text</source>
        <translation>宛先の代わりに載せる文面</translation>
    </message>
    <message>
        <source>Cover Image:</source>
        <translation>画像(&amp;I):</translation>
    </message>
    <message>
        <source>Cover Image</source>
        <translation>送信シートに重ねる画像</translation>
    </message>
    <message>
        <source>Cover Image Not Here</source>
        <translation>%1 (このコンピューターにありません)</translation>
    </message>
    <message>
        <source>Cover Paper Hint</source>
        <translation>用紙サイズ: %1</translation>
    </message>
    <message>
        <source>Cover Window Preview</source>
        <translation>送信シートの仕上がり</translation>
    </message>
    <message>
        <source>Delete Cover Image Header</source>
        <translation>この画像を削除しますか?</translation>
    </message>
    <message>
        <source>Delete Cover Image Message</source>
        <translation>送信シート用の画像の一覧から「%1」を削除します。画像ファイルそのものは残ります。この操作は取り消せません。</translation>
    </message>
    <message>
        <source>Cover Image Not Saved Header</source>
        <translation>画像を保存できませんでした</translation>
    </message>
    <message>
        <source>Cover Image Not Saved Message</source>
        <translation>送信シート用の画像の一覧は変更されていません。%1。</translation>
    </message>

    <!-- The preview -->
    <message>
        <source>Cover Preview Reading</source>
        <translation>画像を読み込んでいます…</translation>
    </message>
    <message>
        <source>Cover Preview Cut</source>
        <translation>文章が送信シートに収まりません。収まらない部分は省かれます。</translation>
    </message>
    <message>
        <source>Cover Preview No Font</source>
        <translation>このコンピューターのフォントにない文字は、ここでは省かれます: %1。</translation>
    </message>
    <message>
        <source>Cover Preview Image Lost</source>
        <translation>画像「%1」がこのコンピューターにないため、ここには表示されません。</translation>
    </message>
    <message>
        <source>Cover Preview Image Unreadable</source>
        <translation>画像を表示できません。%1。</translation>
    </message>
    <message>
        <source>Cover Preview No Thread</source>
        <translation>プレビューを描けません。システムがスレッドを割り当てられません。ほかのプログラムを終了してください。</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Cover Image Editor</source>
        <translation>送信シートの画像</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <message>
        <source>Duplicate Recipient Header</source>
        <translation>この宛先はすでに一覧にあります</translation>
    </message>
    <message>
        <source>Duplicate Recipient Message</source>
        <translation>%1（%2）は、すでにこのファクスの宛先です。同じ宛先をもう一度追加しますか?</translation>
    </message>
    <message>
        <source>Remove One Recipient Header</source>
        <translation>この宛先を削除しますか?</translation>
    </message>
    <message>
        <source>Remove One Recipient Message</source>
        <translation>%1（%2）には、このファクスは送信されません。</translation>
    </message>
    <message>
        <source>Remove Multiple Recipients Header</source>
        <translation>これらの宛先を削除しますか?</translation>
    </message>
    <message>
        <source>Remove Multiple Recipients Message</source>
        <translation>%1件の宛先には、このファクスは送信されません。</translation>
    </message>
    <message>
        <source>From Label</source>
        <translation>差出人:</translation>
    </message>
    <message>
        <source>To Label</source>
        <translation>宛先:</translation>
    </message>
    <message>
        <source>Notes Label</source>
        <translation>通信欄:</translation>
    </message>
    <message>
        <source>Phone Label</source>
        <translation>電話</translation>
    </message>
    <message>
        <source>Fax Label</source>
        <translation>ファクス</translation>
    </message>
    <message>
        <source>LAN Fax Title</source>
        <translation>ファクスの設定</translation>
    </message>
    <message>
        <source>Fax Tabs</source>
        <translation>ファクス設定の項目</translation>
    </message>
    <message>
        <source>Fax Recipients Tab</source>
        <translation>宛先(&amp;R)</translation>
    </message>
    <message>
        <source>Fax Options Tab</source>
        <translation>送信(&amp;S)</translation>
    </message>
    <message>
        <source>Cover Sheet Tab</source>
        <translation>送信シート(&amp;V)</translation>
    </message>
    <message>
        <source>Fax Recipients</source>
        <translation>ファクスの宛先</translation>
    </message>
    <message>
        <source>Recipient Name Column</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Recipient Number Column</source>
        <translation>ファクス番号</translation>
    </message>
    <message>
        <source>Recipient Organization Column</source>
        <translation>会社名</translation>
    </message>
    <message>
        <source>Add Recipient Command</source>
        <translation>追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Address Book Command</source>
        <translation>アドレス帳(&amp;B)…</translation>
    </message>
    <message>
        <source>Edit Recipient Command</source>
        <translation>編集(&amp;E)…</translation>
    </message>
    <message>
        <source>Remove Recipients Command</source>
        <translation>削除(&amp;M)</translation>
    </message>
    <message>
        <source>Save Group Command</source>
        <translation>グループとして保存(&amp;G)…</translation>
    </message>
    <message>
        <source>Remove All Recipients Command</source>
        <translation>すべて削除(&amp;L)</translation>
    </message>
    <message>
        <source>No Recipients Yet</source>
        <translation>このファクスには宛先がまだありません。1件以上追加してください。</translation>
    </message>
    <message>
        <source>One Recipient</source>
        <translation>宛先1件</translation>
    </message>
    <message>
        <source>Number of Recipients</source>
        <translation>宛先%1件</translation>
    </message>
    <message>
        <source>No Address Book Hint</source>
        <translation>一覧をグループとして保存できません: %1。</translation>
    </message>
    <message>
        <source>Confirmation Sheet:</source>
        <translation>送信結果レポート(&amp;C):</translation>
    </message>
    <message>
        <source>Confirmation Sheet Tip</source>
        <translation>ファクスが届いたかどうかを示すレポートを機器が印刷します。</translation>
    </message>
    <message>
        <source>Send Speed:</source>
        <translation>通信モード(&amp;D):</translation>
    </message>
    <message>
        <source>Send Speed Tip</source>
        <translation>通常は自動で問題ありません。回線の状態が悪いときは固定の速度を選びます。</translation>
    </message>
    <message>
        <source>Fax Resolution:</source>
        <translation>ファクス解像度(&amp;F):</translation>
    </message>
    <message>
        <source>Fax Resolution Tip</source>
        <translation>細かいほど読みやすくなりますが、送信に時間がかかります。</translation>
    </message>
    <message>
        <source>Send Time:</source>
        <translation>送信時刻:</translation>
    </message>
    <message>
        <source>Send Now</source>
        <translation>今すぐ(&amp;W)</translation>
    </message>
    <message>
        <source>Send At:</source>
        <translation>時刻指定(&amp;T):</translation>
    </message>
    <message>
        <source>Send Time Field</source>
        <translation>ファクスを送信する時刻</translation>
    </message>
    <message>
        <source>Sent Today</source>
        <translation>ファクスは今日の%1に送信されます。</translation>
    </message>
    <message>
        <source>Sent Tomorrow</source>
        <translation>ファクスは明日の%1に送信されます。</translation>
    </message>
    <message>
        <source>Sent Later</source>
        <translation>ファクスは%1の%2に送信されます。</translation>
    </message>
    <message>
        <source>Fax Dialing Options:</source>
        <translation>ダイヤル:</translation>
    </message>
    <message>
        <source>Dialing Prefix</source>
        <translation>外線発信番号を先にダイヤルする(&amp;X):</translation>
    </message>
    <message>
        <source>Dialing Prefix Field</source>
        <translation>外線発信番号</translation>
    </message>
    <message>
        <source>Dialing Prefix Hint</source>
        <translation>機器がダイヤルできる文字を%1文字まで入力できます: 数字と * # = : ! , / S $ &lt; &gt; A B C D。カンマでは間を置きます。</translation>
    </message>
    <message>
        <source>Cover Sheet Options:</source>
        <translation>送信シート(&amp;H):</translation>
    </message>
    <message>
        <source>Cover Sheet Setup Command</source>
        <translation>設定(&amp;U)…</translation>
    </message>
    <message>
        <source>Cover Sheet Notes:</source>
        <translation>送信シートの通信欄(&amp;N):</translation>
    </message>
    <message>
        <source>Cover Sheet Preview</source>
        <translation>送信シートのプレビュー</translation>
    </message>
    <message>
        <source>No Cover Sheet Hint</source>
        <translation>ファクスは文書から始まります。</translation>
    </message>
    <message>
        <source>Fax Preferences Command</source>
        <translation>環境設定(&amp;P)…</translation>
    </message>
    <message>
        <source>Max Characters Title</source>
        <translation>長すぎるファクス番号</translation>
    </message>
    <message>
        <source>Max Characters Message</source>
        <translation>機器がダイヤルできるのは、外線発信番号を含めて%1文字までです。次の番号はそれより長いため、短くするか、宛先を削除してください。</translation>
    </message>
    <message>
        <source>Too Long Recipients</source>
        <translation>番号が長すぎる宛先</translation>
    </message>
    <message>
        <source>Remove All Too Long Command</source>
        <translation>すべて削除(&amp;L)</translation>
    </message>
    <message>
        <source>Nothing Too Long</source>
        <translation>すべての番号をダイヤルできるようになりました。</translation>
    </message>
    <message>
        <source>Save Group Title</source>
        <translation>宛先をグループとして保存</translation>
    </message>
    <message>
        <source>Group Name:</source>
        <translation>グループ名(&amp;N):</translation>
    </message>
    <message>
        <source>Saving Group</source>
        <translation>アドレス帳に保存しています…</translation>
    </message>
    <message>
        <source>Group Not Saved Header</source>
        <translation>グループを保存できませんでした</translation>
    </message>
    <message>
        <source>Group Not Saved Message</source>
        <translation>アドレス帳に一部が保存されませんでした。もう一度試すか、アドレス帳に書き込めるかどうかを確認してください。</translation>
    </message>
    <message>
        <source>Required Field Header</source>
        <translation>グループ名が必要です</translation>
    </message>
    <message>
        <source>Group Name Required Message</source>
        <translation>アドレス帳でこれらの宛先を表示するための名前を入力してください。</translation>
    </message>
    <message>
        <source>Fax Preferences Dialog Title</source>
        <translation>ファクスの環境設定</translation>
    </message>
    <message>
        <source>User Preferences</source>
        <translation>次の操作の前に確認する</translation>
    </message>
    <message>
        <source>Prompt Duplicate Recipient</source>
        <translation>すでに一覧にある宛先の追加(&amp;A)</translation>
    </message>
    <message>
        <source>Prompt Remove Recipient</source>
        <translation>宛先の削除(&amp;R)</translation>
    </message>
    <message>
        <source>Nameless in Words</source>
        <translation>(名前も番号もありません)</translation>
    </message>
    <message>
        <source>Undialed in Words</source>
        <translation>%1 (ダイヤルできる番号がありません)</translation>
    </message>
    <message>
        <source>Too Long in Words</source>
        <translation>%1 (長すぎてダイヤルできません)</translation>
    </message>
    <message>
        <source>And More Recipients</source>
        <translation>%1、ほか%2件</translation>
    </message>
    <message>
        <source>No Recipients in Words</source>
        <translation>まだありません。ファクスの設定で宛先を追加してください</translation>
    </message>
    <message>
        <source>Dialing Prefix in Words</source>
        <translation>外線発信番号</translation>
    </message>
    <message>
        <source>Cover Sheet in Short</source>
        <translation>送信シート付き</translation>
    </message>
    <message>
        <source>Cover Sheet in Words</source>
        <translation>ファクスの送信シート</translation>
    </message>
    <message>
        <source>Cover Image in Words</source>
        <translation>送信シートの画像</translation>
    </message>
    <message>
        <source>Cover Image Absent in Words</source>
        <translation>「%1」はこのコンピューターの送信シート用の画像にありません</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <message>
        <source>Add Recipient Title</source>
        <translation>宛先の追加</translation>
    </message>
    <message>
        <source>Edit Recipient Title</source>
        <translation>宛先の編集</translation>
    </message>
    <message>
        <source>Recipient First Name:</source>
        <translation>名(&amp;F):</translation>
    </message>
    <message>
        <source>Recipient Last Name:</source>
        <translation>姓(&amp;L):</translation>
    </message>
    <message>
        <source>Recipient Fax Number:</source>
        <translation>ファクス番号(&amp;N):</translation>
    </message>
    <message>
        <source>Recipient Organization:</source>
        <translation>会社名(&amp;O):</translation>
    </message>
    <message>
        <source>Recipient Phone:</source>
        <translation>電話(&amp;P):</translation>
    </message>
    <message>
        <source>Recipient Email:</source>
        <translation>メール(&amp;E):</translation>
    </message>
    <message>
        <source>Recipient Mailbox:</source>
        <translation>メールボックス(&amp;M):</translation>
    </message>
    <message>
        <source>Recipient Mailbox Hint</source>
        <translation>受信側の機器のメールボックスです。空欄の場合は、受信側のトレイに出力されます。</translation>
    </message>
    <message>
        <source>Fax Number Missing Hint</source>
        <translation>番号がないと、ファクスを送信できません。</translation>
    </message>
    <message>
        <source>Fax Number Not Dialable Hint</source>
        <translation>ダイヤルできる文字がありません。</translation>
    </message>
    <message>
        <source>Fax Number Dialed Hint</source>
        <translation>ダイヤルする番号: %1</translation>
    </message>
    <message>
        <source>Fax Number Too Long Hint</source>
        <translation>ダイヤルする文字が%1文字あります。機器がダイヤルできるのは%2文字までです。</translation>
    </message>
    <message>
        <source>Fax Number Label Hint</source>
        <translation>番号の種別: %1</translation>
    </message>
    <message>
        <source>Fax Label Work</source>
        <translation>勤務先</translation>
    </message>
    <message>
        <source>Fax Label Home</source>
        <translation>自宅</translation>
    </message>
    <message>
        <source>Fax Label Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Fax Number Refused Header</source>
        <translation>ファクス番号がありません</translation>
    </message>
    <message>
        <source>Fax Number Missing Message</source>
        <translation>ファクスの送信先の番号を入力してください。</translation>
    </message>
    <message>
        <source>Fax Number Not Dialable Message</source>
        <translation>「%1」にはダイヤルできる文字がありません。数字を入力してください。* # = : ! , / S $ &lt; &gt; A B C D もダイヤルできます。</translation>
    </message>
    <message>
        <source>Address Book Title</source>
        <translation>アドレス帳からの追加</translation>
    </message>
    <message>
        <source>People Source:</source>
        <translation>探す場所(&amp;L):</translation>
    </message>
    <message>
        <source>People Source Address Book</source>
        <translation>アドレス帳</translation>
    </message>
    <message>
        <source>People Source Recent</source>
        <translation>最近使った宛先</translation>
    </message>
    <message>
        <source>People Source Cards</source>
        <translation>vCardファイル</translation>
    </message>
    <message>
        <source>Choose Cards Command</source>
        <translation>vCardファイル(&amp;V)…</translation>
    </message>
    <message>
        <source>Clear Recent Command</source>
        <translation>消去(&amp;R)</translation>
    </message>
    <message>
        <source>People Search:</source>
        <translation>検索(&amp;S):</translation>
    </message>
    <message>
        <source>People Search Hint</source>
        <translation>名前、会社名、メール、番号</translation>
    </message>
    <message>
        <source>People List</source>
        <translation>見つかった人とグループ</translation>
    </message>
    <message>
        <source>People Name Column</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>People Organization Column</source>
        <translation>会社名</translation>
    </message>
    <message>
        <source>People Number Column</source>
        <translation>ファクス番号</translation>
    </message>
    <message>
        <source>People State Column</source>
        <translation>このファクス</translation>
    </message>
    <message>
        <source>People In List</source>
        <translation>追加済み</translation>
    </message>
    <message>
        <source>People Number With Label</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>People Group</source>
        <translation>グループ(ファクス番号のある人なし)</translation>
    </message>
    <message>
        <source>People Group of One</source>
        <translation>グループ(1人)</translation>
    </message>
    <message>
        <source>People Group of Several</source>
        <translation>グループ(%1人)</translation>
    </message>
    <message>
        <source>Reading Address Book</source>
        <translation>アドレス帳を読み込んでいます…</translation>
    </message>
    <message>
        <source>Reading Cards</source>
        <translation>ファイルを読み込んでいます…</translation>
    </message>
    <message>
        <source>Person Without Name</source>
        <translation>(名前なし)</translation>
    </message>
    <message>
        <source>Books Unread</source>
        <translation>次のものは含まれていません: %1。</translation>
    </message>
    <message>
        <source>Address Book Unread</source>
        <translation>アドレス帳を読み込めません: %1。</translation>
    </message>
    <message>
        <source>Address Book Unread Advice</source>
        <translation>最近使った宛先とvCardファイルからは追加できます。</translation>
    </message>
    <message>
        <source>Address Book Empty</source>
        <translation>アドレス帳に登録がありません。</translation>
    </message>
    <message>
        <source>Recent Empty</source>
        <translation>ファクスを送信した宛先はまだありません。</translation>
    </message>
    <message>
        <source>Cards Empty</source>
        <translation>vCardファイルをここにドロップするか、上のボタンで選んでください。</translation>
    </message>
    <message>
        <source>Nobody Has Fax Number</source>
        <translation>ファクス番号のある人がいません。</translation>
    </message>
    <message>
        <source>Nobody Found</source>
        <translation>見つかりません。</translation>
    </message>
    <message>
        <source>One Without Fax Number</source>
        <translation>ファクス番号のない1人は表示されません。</translation>
    </message>
    <message>
        <source>People Without Fax Number</source>
        <translation>ファクス番号のない%1人は表示されません。</translation>
    </message>
    <message>
        <source>Nobody Added</source>
        <translation>宛先は追加されませんでした。</translation>
    </message>
    <message>
        <source>One Person Added</source>
        <translation>宛先を1件追加しました。</translation>
    </message>
    <message>
        <source>People Added</source>
        <translation>宛先を%1件追加しました。</translation>
    </message>
    <message>
        <source>One Already There</source>
        <translation>すでに一覧にある1件を省きました。</translation>
    </message>
    <message>
        <source>People Already There</source>
        <translation>すでに一覧にある%1件を省きました。</translation>
    </message>
    <message>
        <source>One Not Added Again</source>
        <translation>1件は重複して追加しませんでした。</translation>
    </message>
    <message>
        <source>Not Added Again</source>
        <translation>%1件は重複して追加しませんでした。</translation>
    </message>
    <message>
        <source>Members Without Number</source>
        <translation>ファクス番号なし: %1</translation>
    </message>
    <message>
        <source>Names and Others</source>
        <translation>%1、ほか%2人</translation>
    </message>
    <message>
        <source>Add People Command</source>
        <translation>追加(&amp;A)</translation>
    </message>
    <message>
        <source>Close Picker Command</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Clear Recent Header</source>
        <translation>最近使った宛先を消去しますか?</translation>
    </message>
    <message>
        <source>Clear Recent Message</source>
        <translation>消去した宛先は元に戻せません。このファクスの宛先は変わりません。</translation>
    </message>
    <message>
        <source>Clear Recent Failed</source>
        <translation>最近使った宛先を消去できませんでした</translation>
    </message>
    <message>
        <source>Clear Recent Failed Message</source>
        <translation>ユーザー設定のフォルダーに書き込めるかどうかを確認してください。</translation>
    </message>
    <message>
        <source>Clear Recent</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Cards Chooser</source>
        <translation>vCardファイル</translation>
    </message>
    <message>
        <source>Cards Kinds</source>
        <translation>vCardファイル</translation>
    </message>
    <message>
        <source>Cards All Files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>Cards Problems Header</source>
        <translation>読み込めなかったカードがあります</translation>
    </message>
    <message>
        <source>Cards Damaged One</source>
        <translation>%1: 壊れたカード1件を省きました。</translation>
    </message>
    <message>
        <source>Cards Damaged Several</source>
        <translation>%1: 壊れたカード%2件を省きました。</translation>
    </message>
    <message>
        <source>Cards Not Local</source>
        <translation>%1はこのコンピューターにありません。先にこのコンピューターに保存してください。</translation>
    </message>
    <message>
        <source>Cards More Problems</source>
        <translation>ほか%1件あります。</translation>
    </message>
    <message>
        <source>No Thread to Read With</source>
        <translation>読み込むためのスレッドをシステムが割り当てられません。ほかのプログラムを終了してから、やり直してください。</translation>
    </message>
</context>
</TS>

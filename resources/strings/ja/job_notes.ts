<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>JobNotes</source>
        <translation>ジョブメモ</translation>
    </message>
    <message>
        <source>Sender Name:</source>
        <translation>差出人名(&amp;N):</translation>
    </message>
    <message>
        <source>Recipient Name:</source>
        <translation>受取人名(&amp;R):</translation>
    </message>
    <message>
        <source>Banner Message:</source>
        <translation>バナーシートのメッセージ(&amp;B):</translation>
    </message>
    <message>
        <source>Banner Message Tip</source>
        <translation>バナーシートの名前の下に印刷されます。バナーシートは［詳細設定］タブで有効にします。</translation>
    </message>
    <message>
        <source>Job Start Message:</source>
        <translation>ジョブ開始時のメッセージ(&amp;M):</translation>
    </message>
    <message>
        <source>Job Start Message Tip</source>
        <translation>ジョブの開始時に機器に表示されます。例:「レターヘッドをセット」</translation>
    </message>
    <message>
        <source>Job Notes Preferences Command</source>
        <translation>環境設定(&amp;F)…</translation>
    </message>
    <message>
        <source>Job Notes Login Name Hint</source>
        <translation>バナーシート（［詳細設定］で指定）では、ジョブ名、差出人名、受取人名がすべて自分のログイン名（%1）になります。ほかの名前を印刷するには、ジョブ名を入力してください。</translation>
    </message>
    <message>
        <source>Job Notes Names Lost Hint</source>
        <translation>入力した差出人名と受取人名を印刷するには、ジョブ名も入力してください。入力しないと、バナーシートでは3つとも自分のログイン名（%1）になります。</translation>
    </message>
    <message>
        <source>Job Notes Names Typed Hint</source>
        <translation>バナーシートには、ここに入力した名前が印刷されます。「ログイン名を使う」では自分のログイン名（%1）になります。</translation>
    </message>
    <message>
        <source>Job Notes Preferences Title</source>
        <translation>ジョブメモの環境設定</translation>
    </message>
    <message>
        <source>Job Notes New Jobs</source>
        <translation>新しいジョブの名前</translation>
    </message>
    <message>
        <source>Use Document Name As Job Name</source>
        <translation>文書名をジョブ名として使う(&amp;D)</translation>
    </message>
    <message>
        <source>Use Login Name As Sender Name</source>
        <translation>ログイン名を差出人名として使う(&amp;S)</translation>
    </message>
    <message>
        <source>Use Login Name As Recipient Name</source>
        <translation>ログイン名を受取人名として使う(&amp;R)</translation>
    </message>
    <message>
        <source>Job Notes Preferences Not Kept Headline</source>
        <translation>環境設定を保存できませんでした</translation>
    </message>
    <message>
        <source>Job Notes Preferences Not Kept</source>
        <translation>保存するには、次のファイルに書き込めることと、空き容量があることを確認してください: %1</translation>
    </message>
    <message>
        <source>Job Notes Banner Picture</source>
        <translation>メッセージの入った用紙の図</translation>
    </message>
    <message>
        <source>Job Notes Start Picture</source>
        <translation>機器に表示されるメッセージの図</translation>
    </message>
</context>
</TS>

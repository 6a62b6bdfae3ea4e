<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Passcodes -->
    <message>
        <source>Passcode:</source>
        <translation>暗証番号(&amp;P):</translation>
    </message>
    <message>
        <source>ConfirmPasscode:</source>
        <translation>暗証番号の確認(&amp;F):</translation>
    </message>
    <message>
        <source>Min-Max Digits</source>
        <translation>%1～%2桁</translation>
    </message>
    <message>
        <source>Show Passcode</source>
        <translation>暗証番号を表示(&amp;S)</translation>
    </message>
    <message>
        <source>Passcode Required Header</source>
        <translation>このジョブの新しい暗証番号: %3</translation>
    </message>
    <message>
        <source>Passcode Required Message</source>
        <translation>入力欄が空のため、暗証番号%3を自動で設定しました。機器で入力する必要があるので、控えておいてください。自分で決めた番号を使うには、このウィンドウをもう一度開き、%1～%2桁の数字を入力してください。</translation>
    </message>
    <!-- Secure print -->
    <message>
        <source>SecurePrintSetupTitle</source>
        <translation>親展印刷の設定</translation>
    </message>
    <message>
        <source>Secure Print Hint</source>
        <translation>機器で暗証番号を入力するまで、ジョブは機器に保留されます。両方の欄を空にすると、暗証番号が自動で設定されます。</translation>
    </message>
    <message>
        <source>Passcode Not Set Hint</source>
        <translation>暗証番号がまだありません。暗証番号がないと、ジョブは印刷されません。</translation>
    </message>
    <!-- Delayed print -->
    <message>
        <source>TimeToPrint:</source>
        <translation>印刷時刻(&amp;T):</translation>
    </message>
    <message>
        <source>Prints Today</source>
        <translation>ジョブは今日の%1に印刷されます。</translation>
    </message>
    <message>
        <source>Prints Tomorrow</source>
        <translation>ジョブは明日の%1に印刷されます。</translation>
    </message>
    <!-- Saved job -->
    <message>
        <source>Save to Mailbox Title</source>
        <translation>保存ジョブの設定</translation>
    </message>
    <message>
        <source>Job Name:</source>
        <translation>ジョブ名(&amp;J):</translation>
    </message>
    <message>
        <source>Use Document Name</source>
        <translation>文書名を使う(&amp;U)</translation>
    </message>
    <message>
        <source>Mailbox Number Spoken</source>
        <translation>メールボックス、%1～%2</translation>
    </message>
    <message>
        <source>Mailbox Number Label</source>
        <translation>メールボックス(%1～%2)(&amp;M):</translation>
    </message>
    <message>
        <source>Mailbox Hint</source>
        <translation>番号を入力しないと、ジョブは機器の既定の共有フォルダーに保存されます。</translation>
    </message>
    <message>
        <source>Mailbox Elsewhere Hint</source>
        <translation>ジョブは%1に保存されますが、これはメールボックスではありません。メールボックスに保存するには、番号を入力してください。</translation>
    </message>
    <message>
        <source>Mailbox Not Elsewhere Hint</source>
        <translation>一覧には、ジョブの保存先だった%1が残っています。</translation>
    </message>
    <message>
        <source>Invalid Mailbox Headline</source>
        <translation>この番号のメールボックスはありません</translation>
    </message>
    <message>
        <source>Invalid Mailbox Number Error</source>
        <translation>%1～%2の番号を入力してください。機器の既定の共有フォルダーに保存するには、欄を空にしてください。</translation>
    </message>
    <message>
        <source>Save Option:</source>
        <translation>保存方法(&amp;V):</translation>
    </message>
    <message>
        <source>File Format:</source>
        <translation>ファイル形式(&amp;R):</translation>
    </message>
    <message>
        <source>File Format Picture</source>
        <translation>ファイル形式</translation>
    </message>
    <message>
        <source>Saved Job Format TIFF</source>
        <translation>TIFF(1ページ1ファイル)</translation>
    </message>
    <message>
        <source>Saved Job Format Multi-Page TIFF</source>
        <translation>TIFF(全ページ1ファイル)</translation>
    </message>
    <message>
        <source>Saved Job Format PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Saved Job Format Raster</source>
        <translation>機器用ラスター</translation>
    </message>
    <message>
        <source>Saved Job Format Scalable Raster</source>
        <translation>機器用ラスター(解像度自由)</translation>
    </message>
    <message>
        <source>SecureSavedJob:</source>
        <translation>保存ジョブを暗証番号で保護する(&amp;L)</translation>
    </message>
    <message>
        <source>Saved Job Passcode Hint</source>
        <translation>［OK］を押すには、%1～%2桁の数字を入力するか、空にします。空の場合は、暗証番号が自動で設定されます。</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Passcode in Words</source>
        <translation>暗証番号:</translation>
    </message>
    <message>
        <source>Passcode Is Set</source>
        <translation>設定済み</translation>
    </message>
    <message>
        <source>Mailbox in Words</source>
        <translation>メールボックス:</translation>
    </message>
    <message>
        <source>Credit Card in Words</source>
        <translation>クレジットカード:</translation>
    </message>
</context>
</TS>

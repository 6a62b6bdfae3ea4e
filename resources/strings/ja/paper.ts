<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PaperOutput</source>
        <translation>用紙/出力</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>無題</translation>
    </message>
    <message>
        <source>Cover Without Source</source>
        <translation>給紙トレイの指定がないため、付きません</translation>
    </message>
    <message>
        <source>Job Type:</source>
        <translation>ジョブの種類(&amp;J):</translation>
    </message>
    <message>
        <source>Job Type Tip</source>
        <translation>親展印刷は機器で暗証番号が入力されるまで、時刻指定印刷は指定の時刻まで待ちます。試し印刷では1部だけ印刷し、残りは確認が済むまで待ちます。保存ジョブは機器に残ります。</translation>
    </message>
    <message>
        <source>Job Type Setup</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Job Type Setup Tip</source>
        <translation>ジョブの種類に応じて、暗証番号、時刻、ボックス、ファクスの宛先を設定します</translation>
    </message>
    <message>
        <source>Paper Summary:</source>
        <translation>用紙(&amp;A):</translation>
    </message>
    <message>
        <source>Paper Summary Spoken</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Stock Menu Title</source>
        <translation>用紙の変更</translation>
    </message>
    <message>
        <source>Two Sided Printing:</source>
        <translation>両面印刷(&amp;R):</translation>
    </message>
    <message>
        <source>Output Color:</source>
        <translation>カラーモード(&amp;U):</translation>
    </message>
    <message>
        <source>Stapling:</source>
        <translation>ステープル(&amp;N):</translation>
    </message>
    <message>
        <source>Hole Punch:</source>
        <translation>パンチ(&amp;L):</translation>
    </message>
    <message>
        <source>Output Destination:</source>
        <translation>排出先(&amp;D):</translation>
    </message>
    <message>
        <source>Finishing:</source>
        <translation>仕上げ(&amp;F):</translation>
    </message>
    <message>
        <source>Finishing Summary Spoken</source>
        <translation>仕上げ</translation>
    </message>
    <message>
        <source>Finishing Menu Title</source>
        <translation>仕上げの変更</translation>
    </message>
    <message>
        <source>More Finishing Menu Title</source>
        <translation>その他の仕上げ(&amp;M)</translation>
    </message>
    <message>
        <source>More Finishing Tip</source>
        <translation>仕上げの種類ごとに、図と条件を示すウィンドウを開きます</translation>
    </message>
    <message>
        <source>No Finishing Devices</source>
        <translation>この機器にはフィニッシャーがありません。</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Paper Name in Words</source>
        <translation>用紙の名前:</translation>
    </message>
    <message>
        <source>Paper Properties in Words</source>
        <translation>用紙の特性:</translation>
    </message>
    <message>
        <source>Paper Color in Words</source>
        <translation>用紙の色:</translation>
    </message>
    <message>
        <source>Paper Type in Words</source>
        <translation>用紙の種類:</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Where a file of the installation is missing or damaged -->
    <message>
        <source>Window Not Made Header</source>
        <translation>ウィンドウを表示できません</translation>
    </message>
    <message>
        <source>Panel Not Made Header</source>
        <translation>パネルを表示できません</translation>
    </message>
    <message>
        <source>Not Made Message</source>
        <translation>プリンターソフトウェアのファイルが見つからないか、壊れています。変更された設定はありません。ソフトウェアをインストールし直すか、次の行を管理者に見せてください:</translation>
    </message>
    <message>
        <source>Window Lacks Controls</source>
        <translation>ウィンドウに必要な項目が定義にありません: %1</translation>
    </message>
    <!-- Buttons of every dialog -->
    <message>
        <source>OK Command</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Remove Command</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Cancel Command</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Help Command</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Revert Command</source>
        <translation>変更前に戻す</translation>
    </message>
</context>
</TS>

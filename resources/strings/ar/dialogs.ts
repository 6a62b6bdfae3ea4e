<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Where a file of the installation is missing or damaged -->
    <message>
        <source>Window Not Made Header</source>
        <translation>تعذّر عرض النافذة</translation>
    </message>
    <message>
        <source>Panel Not Made Header</source>
        <translation>تعذّر عرض اللوحة</translation>
    </message>
    <message>
        <source>Not Made Message</source>
        <translation>أحد ملفات برنامج الطابعة مفقود أو تالف. لم يتغير شيء. أعد تثبيت البرنامج، أو اعرض هذا السطر على مسؤول النظام:</translation>
    </message>
    <message>
        <source>Window Lacks Controls</source>
        <translation>ينقص الوصفَ عناصرُ تحكم تحتاج إليها النافذة: %1</translation>
    </message>
    <!-- Buttons of every dialog -->
    <message>
        <source>OK Command</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Remove Command</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Cancel Command</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Help Command</source>
        <translation>تعليمات</translation>
    </message>
    <message>
        <source>Revert Command</source>
        <translation>استعادة</translation>
    </message>
</context>
</TS>

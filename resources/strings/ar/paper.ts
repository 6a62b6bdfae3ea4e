<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PaperOutput</source>
        <translation>الورق/الإخراج</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>بلا عنوان</translation>
    </message>
    <message>
        <source>Cover Without Source</source>
        <translation>بلا مصدر ورق: لن يُطبع</translation>
    </message>
    <message>
        <source>Job Type:</source>
        <translation>نوع الم&amp;همة:</translation>
    </message>
    <message>
        <source>Job Type Tip</source>
        <translation>تنتظر الطباعة الآمنة رمز المرور على الجهاز، وتنتظر الطباعة المؤجلة وقتها. ومن نسخة العينة تُطبع نسخة واحدة وتنتظر البقية حتى تفحصها. وتبقى المهمة المحفوظة على الجهاز.</translation>
    </message>
    <message>
        <source>Job Type Setup</source>
        <translation>إعداد…</translation>
    </message>
    <message>
        <source>Job Type Setup Tip</source>
        <translation>رمز المرور أو الوقت أو صندوق البريد أو مستلمو الفاكس، بحسب نوع المهمة</translation>
    </message>
    <message>
        <source>Paper Summary:</source>
        <translation>الور&amp;ق:</translation>
    </message>
    <message>
        <source>Paper Summary Spoken</source>
        <translation>الورق</translation>
    </message>
    <message>
        <source>Stock Menu Title</source>
        <translation>تغيير الورق</translation>
    </message>
    <message>
        <source>Two Sided Printing:</source>
        <translation>الطباع&amp;ة على الوجهين:</translation>
    </message>
    <message>
        <source>Output Color:</source>
        <translation>لون الإخ&amp;راج:</translation>
    </message>
    <message>
        <source>Stapling:</source>
        <translation>الت&amp;دبيس:</translation>
    </message>
    <message>
        <source>Hole Punch:</source>
        <translation>الت&amp;ثقيب:</translation>
    </message>
    <message>
        <source>Output Destination:</source>
        <translation>و&amp;جهة الإخراج:</translation>
    </message>
    <message>
        <source>Finishing:</source>
        <translation>الت&amp;شطيب:</translation>
    </message>
    <message>
        <source>Finishing Summary Spoken</source>
        <translation>التشطيب</translation>
    </message>
    <message>
        <source>Finishing Menu Title</source>
        <translation>تغيير التشطيب</translation>
    </message>
    <message>
        <source>More Finishing Menu Title</source>
        <translation>تشطيب إ&amp;ضافي</translation>
    </message>
    <message>
        <source>More Finishing Tip</source>
        <translation>نوافذ تعرض كل نوع من التشطيب وتبيّن شروطه</translation>
    </message>
    <message>
        <source>No Finishing Devices</source>
        <translation>لا توجد وحدة تشطيب في هذا الجهاز.</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Paper Name in Words</source>
        <translation>اسم الورق:</translation>
    </message>
    <message>
        <source>Paper Properties in Words</source>
        <translation>خصائص الورق:</translation>
    </message>
    <message>
        <source>Paper Color in Words</source>
        <translation>لون الورق:</translation>
    </message>
    <message>
        <source>Paper Type in Words</source>
        <translation>نوع الورق:</translation>
    </message>
</context>
</TS>

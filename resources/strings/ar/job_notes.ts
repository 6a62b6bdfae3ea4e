<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>JobNotes</source>
        <translation>ملاحظات المهمة</translation>
    </message>
    <message>
        <source>Sender Name:</source>
        <translation>اسم الم&amp;رسل:</translation>
    </message>
    <message>
        <source>Recipient Name:</source>
        <translation>ا&amp;سم المستلم:</translation>
    </message>
    <message>
        <source>Banner Message:</source>
        <translation>رسالة ور&amp;قة التعريف:</translation>
    </message>
    <message>
        <source>Banner Message Tip</source>
        <translation>تُطبع على ورقة التعريف تحت الأسماء، وتُفعَّل الورقة من «خيارات متقدمة».</translation>
    </message>
    <message>
        <source>Job Start Message:</source>
        <translation>رسالة ب&amp;دء المهمة:</translation>
    </message>
    <message>
        <source>Job Start Message Tip</source>
        <translation>تظهر على الجهاز عند بدء المهمة، مثل «ضع الورق ذا الترويسة»</translation>
    </message>
    <message>
        <source>Job Notes Preferences Command</source>
        <translation>التف&amp;ضيلات…</translation>
    </message>
    <message>
        <source>Job Notes Login Name Hint</source>
        <translation>تحمل ورقة التعريف، التي تُفعَّل في «خيارات متقدمة»، اسمك (&#x2068;%1&#x2069;) اسمًا للمهمة والمرسل والمستلم. اكتب اسم مهمة لطباعة أسماء أخرى.</translation>
    </message>
    <message>
        <source>Job Notes Names Lost Hint</source>
        <translation>اكتب اسم مهمة ليُطبع المرسل والمستلم اللذان كتبتهما. من دونه تحمل ورقة التعريف اسمك (&#x2068;%1&#x2069;) في المواضع الثلاثة.</translation>
    </message>
    <message>
        <source>Job Notes Names Typed Hint</source>
        <translation>تحمل ورقة التعريف الأسماء كما هي هنا. «استخدام اسم تسجيل الدخول» يطبع اسمك (&#x2068;%1&#x2069;).</translation>
    </message>
    <message>
        <source>Job Notes Preferences Title</source>
        <translation>تفضيلات ملاحظات المهمة</translation>
    </message>
    <message>
        <source>Job Notes New Jobs</source>
        <translation>الأسماء في مهمة جديدة</translation>
    </message>
    <message>
        <source>Use Document Name As Job Name</source>
        <translation>&amp;استخدام اسم المستند اسمًا للمهمة</translation>
    </message>
    <message>
        <source>Use Login Name As Sender Name</source>
        <translation>استخدام اسم تسجيل ال&amp;دخول اسمًا للمرسل</translation>
    </message>
    <message>
        <source>Use Login Name As Recipient Name</source>
        <translation>استخدام اسم &amp;تسجيل الدخول اسمًا للمستلم</translation>
    </message>
    <message>
        <source>Job Notes Preferences Not Kept Headline</source>
        <translation>تعذّر حفظ التفضيلات</translation>
    </message>
    <message>
        <source>Job Notes Preferences Not Kept</source>
        <translation>للاحتفاظ بها، تحقق من إمكان كتابة هذا الملف ومن وجود مساحة على قرصه: &#x2068;%1&#x2069;</translation>
    </message>
    <message>
        <source>Job Notes Banner Picture</source>
        <translation>ورقة عليها رسالة</translation>
    </message>
    <message>
        <source>Job Notes Start Picture</source>
        <translation>رسالة على الجهاز</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Passcodes -->
    <message>
        <source>Passcode:</source>
        <translation>&amp;رمز المرور:</translation>
    </message>
    <message>
        <source>ConfirmPasscode:</source>
        <translation>تأ&amp;كيد رمز المرور:</translation>
    </message>
    <message>
        <source>Min-Max Digits</source>
        <translation>من %1 إلى %2 من الأرقام</translation>
    </message>
    <message>
        <source>Show Passcode</source>
        <translation>إظهار رمز ال&amp;مرور</translation>
    </message>
    <message>
        <source>Passcode Required Header</source>
        <translation>لهذه المهمة رمز مرور جديد: %3</translation>
    </message>
    <message>
        <source>Passcode Required Message</source>
        <translation>كانت الحقول فارغة، فأُنشئ لك رمز المرور %3. دوِّنه، إذ يجب إدخاله على الجهاز. لاستخدام رمز من اختيارك، افتح هذه النافذة مجددًا وأدخل من %1 إلى %2 من الأرقام.</translation>
    </message>
    <!-- Secure print -->
    <message>
        <source>SecurePrintSetupTitle</source>
        <translation>إعداد الطباعة الآمنة</translation>
    </message>
    <message>
        <source>Secure Print Hint</source>
        <translation>يحتجز الجهاز المهمة حتى يُدخل رمز المرور عليه. اترك الحقلين فارغين ليُنشأ لك رمز مرور.</translation>
    </message>
    <message>
        <source>Passcode Not Set Hint</source>
        <translation>لا يوجد رمز مرور بعد، ولن تُطبع المهمة من دونه.</translation>
    </message>
    <!-- Delayed print -->
    <message>
        <source>TimeToPrint:</source>
        <translation>&amp;وقت الطباعة:</translation>
    </message>
    <message>
        <source>Prints Today</source>
        <translation>تُطبع المهمة اليوم في %1.</translation>
    </message>
    <message>
        <source>Prints Tomorrow</source>
        <translation>تُطبع المهمة غدًا في %1.</translation>
    </message>
    <!-- Saved job -->
    <message>
        <source>Save to Mailbox Title</source>
        <translation>إعداد المهمة المحفوظة</translation>
    </message>
    <message>
        <source>Job Name:</source>
        <translation>اسم الم&amp;همة:</translation>
    </message>
    <message>
        <source>Use Document Name</source>
        <translation>&amp;استخدام اسم المستند</translation>
    </message>
    <message>
        <source>Mailbox Number Spoken</source>
        <translation>صندوق البريد، من %1 إلى %2</translation>
    </message>
    <message>
        <source>Mailbox Number Label</source>
        <translation>&amp;صندوق البريد (من %1 إلى %2):</translation>
    </message>
    <message>
        <source>Mailbox Hint</source>
        <translation>من دون رقم، تُحفظ المهمة في المجلد العام الافتراضي للجهاز.</translation>
    </message>
    <message>
        <source>Mailbox Elsewhere Hint</source>
        <translation>تُحفظ المهمة في &#x2068;%1&#x2069;، وهو ليس أحد صناديق البريد. أدخل رقمًا لحفظها في صندوق بريد.</translation>
    </message>
    <message>
        <source>Mailbox Not Elsewhere Hint</source>
        <translation>ما زال &#x2068;%1&#x2069; في القائمة، وهو المكان الذي كانت المهمة ستُحفظ فيه.</translation>
    </message>
    <message>
        <source>Invalid Mailbox Headline</source>
        <translation>لا يوجد صندوق بريد بهذا الرقم</translation>
    </message>
    <message>
        <source>Invalid Mailbox Number Error</source>
        <translation>أدخل رقمًا من %1 إلى %2، أو اترك الحقل فارغًا لحفظ المهمة في المجلد العام الافتراضي للجهاز.</translation>
    </message>
    <message>
        <source>Save Option:</source>
        <translation>&amp;خيار الحفظ:</translation>
    </message>
    <message>
        <source>File Format:</source>
        <translation>&amp;تنسيق الملف:</translation>
    </message>
    <message>
        <source>File Format Picture</source>
        <translation>تنسيق الملف</translation>
    </message>
    <message>
        <source>Saved Job Format TIFF</source>
        <translation>TIFF، ملف لكل صفحة</translation>
    </message>
    <message>
        <source>Saved Job Format Multi-Page TIFF</source>
        <translation>TIFF، كل الصفحات في ملف واحد</translation>
    </message>
    <message>
        <source>Saved Job Format PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Saved Job Format Raster</source>
        <translation>تنسيق نقطي للجهاز</translation>
    </message>
    <message>
        <source>Saved Job Format Scalable Raster</source>
        <translation>تنسيق نقطي للجهاز، بأي دقة</translation>
    </message>
    <message>
        <source>SecureSavedJob:</source>
        <translation>&amp;قفل المهمة المحفوظة برمز مرور</translation>
    </message>
    <message>
        <source>Saved Job Passcode Hint</source>
        <translation>يتطلب زر «موافق» من %1 إلى %2 من الأرقام، أو تركها فارغة: عندئذٍ يُنشأ لك رمز مرور.</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Passcode in Words</source>
        <translation>رمز المرور:</translation>
    </message>
    <message>
        <source>Passcode Is Set</source>
        <translation>معيَّن</translation>
    </message>
    <message>
        <source>Mailbox in Words</source>
        <translation>صندوق البريد:</translation>
    </message>
    <message>
        <source>Credit Card in Words</source>
        <translation>بطاقة الائتمان:</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <!-- The dialog -->
    <message>
        <source>Cover Sheet Title</source>
        <translation>صفحة الغلاف</translation>
    </message>
    <message>
        <source>Cover Sender:</source>
        <translation>ال&amp;مرسل:</translation>
    </message>
    <message>
        <source>Cover Sender Name:</source>
        <translation>ا&amp;لاسم:</translation>
    </message>
    <message>
        <source>Cover Sender Name</source>
        <translation>اسم المرسل</translation>
    </message>
    <message>
        <source>Cover Sender Organization:</source>
        <translation>&amp;المؤسسة:</translation>
    </message>
    <message>
        <source>Cover Sender Organization</source>
        <translation>مؤسسة المرسل</translation>
    </message>
    <message>
        <source>Cover Sender Email:</source>
        <translation>ال&amp;بريد الإلكتروني:</translation>
    </message>
    <message>
        <source>Cover Sender Email</source>
        <translation>عنوان البريد الإلكتروني للمرسل</translation>
    </message>
    <message>
        <source>Cover Sender Phone:</source>
        <translation>ال&amp;هاتف:</translation>
    </message>
    <message>
        <source>Cover Sender Phone</source>
        <translation>رقم هاتف المرسل</translation>
    </message>
    <message>
        <source>Cover Sender Fax:</source>
        <translation>ال&amp;فاكس:</translation>
    </message>
    <message>
        <source>Cover Sender Fax</source>
        <translation>رقم فاكس المرسل</translation>
    </message>
    <message>
        <source>Cover My Card</source>
        <translation>ا&amp;ستخدام بطاقتي</translation>
    </message>
    <message>
        <source>Cover My Card Reading</source>
        <translation>يجري البحث عن بطاقتك في دفتر العناوين…</translation>
    </message>
    <message>
        <source>Cover My Card Missing</source>
        <translation>لا توجد في دفتر عناوينك بطاقة محددة على أنها بطاقتك. حدِّد بطاقة هناك ليمكن استخدامها هنا.</translation>
    </message>
    <message>
        <source>Cover My Card Unavailable</source>
        <translation>لا يمكن استخدام بطاقتك: %1.</translation>
    </message>
    <message>
        <source>Cover My Card No Thread</source>
        <translation>لا يستطيع النظام بدء عملية أخرى؛ أغلق برامج أخرى</translation>
    </message>
    <message>
        <source>Cover Recipients:</source>
        <translation>المس&amp;تلمون:</translation>
    </message>
    <message>
        <source>Cover Custom Text:</source>
        <translation>ال&amp;نص:</translation>
    </message>
    <message>
        <source>Cover Custom Text</source>
        <translation>النص الذي يحل محل المستلمين</translation>
    </message>
    <message>
        <source>Cover Image:</source>
        <translation>ال&amp;صورة:</translation>
    </message>
    <message>
        <source>Cover Image</source>
        <translation>صورة فوق صفحة الغلاف</translation>
    </message>
    <message>
        <source>Cover Image Not Here</source>
        <translation>&#x2068;%1&#x2069; (غير موجودة على هذا الكمبيوتر)</translation>
    </message>
    <message>
        <source>Cover Paper Hint</source>
        <translation>حجم الورق: &#x2068;%1&#x2069;</translation>
    </message>
    <message>
        <source>Cover Window Preview</source>
        <translation>شكل صفحة الغلاف</translation>
    </message>
    <message>
        <source>Delete Cover Image Header</source>
        <translation>هل تريد حذف هذه الصورة؟</translation>
    </message>
    <message>
        <source>Delete Cover Image Message</source>
        <translation>ستُزال «&#x2068;%1&#x2069;» من قائمة صور الغلاف الخاصة بك. يبقى ملفها في مكانه. لا يمكن التراجع عن ذلك.</translation>
    </message>
    <message>
        <source>Cover Image Not Saved Header</source>
        <translation>لم تُحفظ الصورة</translation>
    </message>
    <message>
        <source>Cover Image Not Saved Message</source>
        <translation>بقيت قائمة صور الغلاف الخاصة بك كما كانت. %1</translation>
    </message>

    <!-- The preview -->
    <message>
        <source>Cover Preview Reading</source>
        <translation>تجري قراءة الصورة…</translation>
    </message>
    <message>
        <source>Cover Preview Cut</source>
        <translation>النص أطول مما تتسع له صفحة الغلاف، لذلك حُذفت نهايته.</translation>
    </message>
    <message>
        <source>Cover Preview No Font</source>
        <translation>لا يحتوي أي خط على هذا الكمبيوتر على بعض الأحرف، لذلك حُذفت هنا: %1.</translation>
    </message>
    <message>
        <source>Cover Preview Image Lost</source>
        <translation>لا توجد صورة باسم «&#x2068;%1&#x2069;» على هذا الكمبيوتر، لذلك لا تظهر هنا أي صورة.</translation>
    </message>
    <message>
        <source>Cover Preview Image Unreadable</source>
        <translation>لا يمكن عرض الصورة. %1</translation>
    </message>
    <message>
        <source>Cover Preview No Thread</source>
        <translation>لا يمكن رسم المعاينة: لا يستطيع النظام بدء عملية أخرى. أغلق برامج أخرى.</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Cover Image Editor</source>
        <translation>صورة صفحة الغلاف</translation>
    </message>
</context>
</TS>

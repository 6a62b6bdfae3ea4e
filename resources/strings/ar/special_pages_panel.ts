<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>SpecialPagesTitle</source>
        <translation>الصفحات الخاصة</translation>
    </message>
    <message>
        <source>Add Covers Command</source>
        <translation>إضافة أ&amp;غلفة…</translation>
    </message>
    <message>
        <source>Add Inserts Command</source>
        <translation>إضاف&amp;ة أوراق مدرجة…</translation>
    </message>
    <message>
        <source>Inserts Tip</source>
        <translation>أوراق من نوع آخر بين صفحات المستند</translation>
    </message>
    <message>
        <source>Add Exceptions Command</source>
        <translation>إ&amp;ضافة استثناءات…</translation>
    </message>
    <message>
        <source>Exceptions Tip</source>
        <translation>صفحات تُطبع بطريقة تختلف عن غيرها: على ورق آخر أو على وجه واحد أو أفتح أو أغمق</translation>
    </message>
    <message>
        <source>Edit Command</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Delete Command</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Delete All Command</source>
        <translation>حذف الكل</translation>
    </message>
    <message>
        <source>Undo Command</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Move Up Command</source>
        <translation>نقل إلى الأعلى</translation>
    </message>
    <message>
        <source>Move Down Command</source>
        <translation>نقل إلى الأسفل</translation>
    </message>
    <message>
        <source>Special Pages List</source>
        <translation>الصفحات الخاصة</translation>
    </message>
    <message>
        <source>Special Pages Hint</source>
        <translation>أرقام الصفحات تعدّ الصفحات التي تُطبع. الصفحات التي يستبعدها نطاق الصفحات لا تُعدّ.</translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Type Title</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Attributes Title</source>
        <translation>السمات</translation>
    </message>
    <message>
        <source>SpecialPageSummaryFront</source>
        <translation>أمامي</translation>
    </message>
    <message>
        <source>SpecialPageSummaryBack</source>
        <translation>خلفي</translation>
    </message>
    <message>
        <source>SpecialPageSummaryCover</source>
        <translation>غلاف</translation>
    </message>
    <message>
        <source>SpecialPageSummaryInsert</source>
        <translation>ورقة مدرجة</translation>
    </message>
    <message>
        <source>SpecialPageSummaryException</source>
        <translation>استثناء</translation>
    </message>
    <message>
        <source>Paper Name Label</source>
        <translation>الاسم:</translation>
    </message>
    <message>
        <source>InsertSummaryQuantity</source>
        <translation>عدد الأوراق</translation>
    </message>
    <message>
        <source>Exception Without Pages</source>
        <translation>لا ينطبق على أي صفحة</translation>
    </message>
    <message>
        <source>Exception Image Shift</source>
        <translation>الصورة مزاحة نحو الألسنة</translation>
    </message>
</context>
</TS>

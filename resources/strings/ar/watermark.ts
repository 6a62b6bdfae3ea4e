<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- What a new user is given -->
    <message>
        <source>DraftWatermark</source>
        <translation>مسودة</translation>
    </message>
    <message>
        <source>ConfidentialWatermark</source>
        <translation>سري</translation>
    </message>
    <message>
        <source>CopyWatermark</source>
        <translation>نسخة</translation>
    </message>

    <!-- The panel -->
    <message>
        <source>BookletWatermarkPanelTitle</source>
        <translation>الكتيب/العلامة المائية</translation>
    </message>
    <message>
        <source>Booklet Layout:</source>
        <translation>تخطيط ال&amp;كتيب:</translation>
    </message>
    <message>
        <source>Booklet Layout Hint</source>
        <translation>صفحتان على كل وجه من الورقة، بالترتيب الذي تؤلف به الأوراق المطوية كتيبًا.</translation>
    </message>
    <message>
        <source>Booklet Layout Missing</source>
        <translation>يطبع هذا الجهاز على وجه واحد فقط من الورقة، لذلك لا يمكنه تخطيط الكتيبات.</translation>
    </message>
    <message>
        <source>Page Borders:</source>
        <translation>&amp;حدود الصفحات:</translation>
    </message>
    <message>
        <source>Page Borders</source>
        <translation>حدود الصفحات</translation>
    </message>
    <message>
        <source>Page Borders Tip</source>
        <translation>خط رفيع حول كل صفحة من الكتيب</translation>
    </message>
    <message>
        <source>Booklet Options... Title</source>
        <translation>خيا&amp;رات الكتيب…</translation>
    </message>
    <message>
        <source>Booklet Options Tip</source>
        <translation>الطي والتدبيس وحجم الأوراق وهامش الطي والزحف</translation>
    </message>
    <message>
        <source>Watermark Title</source>
        <translation>العلام&amp;ة المائية:</translation>
    </message>
    <message>
        <source>Watermark Preview</source>
        <translation>شكل العلامة المائية على الورق</translation>
    </message>
    <message>
        <source>Watermark Behind Hint</source>
        <translation>خلف محتوى الصفحات، على كل الصفحات.</translation>
    </message>
    <message>
        <source>Watermark Blend Hint</source>
        <translation>ممزوجة مع محتوى الصفحات، على كل الصفحات.</translation>
    </message>
    <message>
        <source>Watermark Front Hint</source>
        <translation>أمام محتوى الصفحات، على كل الصفحات.</translation>
    </message>
    <message>
        <source>Watermark Behind First Hint</source>
        <translation>خلف محتوى الصفحة 1، على تلك الصفحة فقط.</translation>
    </message>
    <message>
        <source>Watermark Blend First Hint</source>
        <translation>ممزوجة مع محتوى الصفحة 1، على تلك الصفحة فقط.</translation>
    </message>
    <message>
        <source>Watermark Front First Hint</source>
        <translation>أمام محتوى الصفحة 1، على تلك الصفحة فقط.</translation>
    </message>
    <message>
        <source>Watermark Editor</source>
        <translation>علامة مائية</translation>
    </message>
    <message>
        <source>Delete Watermark Header</source>
        <translation>هل تريد حذف هذه العلامة المائية؟</translation>
    </message>
    <message>
        <source>Delete Watermark Message</source>
        <translation>ستُزال «&#x2068;%1&#x2069;» من قائمة العلامات المائية الخاصة بك. لا يمكن التراجع عن ذلك.</translation>
    </message>
    <message>
        <source>Watermark Not Saved Header</source>
        <translation>لم تُحفظ العلامة المائية</translation>
    </message>
    <message>
        <source>Watermark Not Saved Message</source>
        <translation>بقيت قائمة العلامات المائية الخاصة بك كما كانت. %1</translation>
    </message>

    <!-- The booklet dialog -->
    <message>
        <source>Booklet Options Title</source>
        <translation>خيارات الكتيب</translation>
    </message>
    <message>
        <source>Booklet Creation</source>
        <translation>إنشاء كتيب</translation>
    </message>
    <message>
        <source>Booklet Finishing:</source>
        <translation>&amp;تشطيب الكتيب:</translation>
    </message>
    <message>
        <source>Booklet Finishing</source>
        <translation>تشطيب الكتيب</translation>
    </message>
    <message>
        <source>Booklet Fold and Staple</source>
        <translation>طي الكتيب وتدبيسه</translation>
    </message>
    <message>
        <source>Draw Outlines</source>
        <translation>&amp;رسم حدود الصفحات</translation>
    </message>
    <message>
        <source>Fit to New Size Label</source>
        <translation>ال&amp;ملاءمة مع حجم جديد:</translation>
    </message>
    <message>
        <source>New Size Tip</source>
        <translation>يطبع على أوراق بهذا الحجم بدلًا من أوراق المهمة، وتُصغَّر الصفحات أو تُكبَّر لتناسبها.</translation>
    </message>
    <message>
        <source>Gutter Label</source>
        <translation>&amp;هامش الطي:</translation>
    </message>
    <message>
        <source>Creep Label</source>
        <translation>ال&amp;زحف:</translation>
    </message>
    <message>
        <source>Gutter Range Label</source>
        <translation>من %1 إلى %2 نقطة</translation>
    </message>
    <message>
        <source>Creep Range Label</source>
        <translation>من %1 إلى %2 نقطة لكل ورقة</translation>
    </message>
    <message>
        <source>Gutter Hint</source>
        <translation>مساحة خالية عند الطي، بين صفحتي الوجه.</translation>
    </message>
    <message>
        <source>Creep Hint</source>
        <translation>مقدار تحرك صفحات كل ورقة نحو الطي، كي تبقى في الوسط حيث تبرز الأوراق الداخلية.</translation>
    </message>
    <message>
        <source>Booklet Picture</source>
        <translation>كيف تخرج الأوراق</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Booklet in Words</source>
        <translation>هامش الطي %1 نقطة، الزحف %2</translation>
    </message>
    <message>
        <source>Page Borders in Words</source>
        <translation>حدود الصفحات</translation>
    </message>
    <message>
        <source>New Size in Words</source>
        <translation>الملاءمة مع &#x2068;%1&#x2069;</translation>
    </message>
    <message>
        <source>Watermark in Words</source>
        <translation>العلامة المائية</translation>
    </message>
    <message>
        <source>Watermark Behind in Words</source>
        <translation>&#x2068;%1&#x2069;، خلف الصفحات</translation>
    </message>
    <message>
        <source>Watermark Blend in Words</source>
        <translation>&#x2068;%1&#x2069;، ممزوجة مع الصفحات</translation>
    </message>
    <message>
        <source>Watermark Front in Words</source>
        <translation>&#x2068;%1&#x2069;، أمام الصفحات</translation>
    </message>
    <message>
        <source>Watermark Behind First in Words</source>
        <translation>&#x2068;%1&#x2069;، خلف الصفحة 1</translation>
    </message>
    <message>
        <source>Watermark Blend First in Words</source>
        <translation>&#x2068;%1&#x2069;، ممزوجة مع الصفحة 1</translation>
    </message>
    <message>
        <source>Watermark Front First in Words</source>
        <translation>&#x2068;%1&#x2069;، أمام الصفحة 1</translation>
    </message>
    <message>
        <source>Watermark Absent in Words</source>
        <translation>«&#x2068;%1&#x2069;» ليست في قائمة علاماتك المائية، ولا تُطبع أي علامة</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>ImageOptions</source>
        <translation>خيارات الصورة</translation>
    </message>
    <message>
        <source>Lighten/Darken:</source>
        <translation>تفتيح/ت&amp;غميق:</translation>
    </message>
    <message>
        <source>Lighten/Darken Slider</source>
        <translation>التفتيح أو التغميق، على درجات</translation>
    </message>
    <message>
        <source>Lighten5</source>
        <translation>تفتيح 5</translation>
    </message>
    <message>
        <source>Lighten4</source>
        <translation>تفتيح 4</translation>
    </message>
    <message>
        <source>Lighten3</source>
        <translation>تفتيح 3</translation>
    </message>
    <message>
        <source>Lighten2</source>
        <translation>تفتيح 2</translation>
    </message>
    <message>
        <source>Lighten1</source>
        <translation>تفتيح 1</translation>
    </message>
    <message>
        <source>Darken1</source>
        <translation>تغميق 1</translation>
    </message>
    <message>
        <source>Darken2</source>
        <translation>تغميق 2</translation>
    </message>
    <message>
        <source>Darken3</source>
        <translation>تغميق 3</translation>
    </message>
    <message>
        <source>Darken4</source>
        <translation>تغميق 4</translation>
    </message>
    <message>
        <source>Darken5</source>
        <translation>تغميق 5</translation>
    </message>
    <message>
        <source>Use Printer Default</source>
        <translation>ا&amp;ستخدام الإعداد الافتراضي للطابعة</translation>
    </message>
    <message>
        <source>Printer Default Tip</source>
        <translation>لا تُرسل درجة إضاءة مع المهمة، فيُعمل بإعداد الجهاز.</translation>
    </message>
    <message>
        <source>Printer Default Words</source>
        <translation>الإعداد الافتراضي للطابعة هو «&#x2068;%1&#x2069;».</translation>
    </message>
    <message>
        <source>Kept Lightness Words</source>
        <translation>المهمة معيَّنة بالفعل على «&#x2068;%1&#x2069;»، وتحتفظ به.</translation>
    </message>
    <message>
        <source>Image Quality:</source>
        <translation>&amp;جودة الصورة:</translation>
    </message>
    <message>
        <source>Image Quality Hint</source>
        <translation>مدى دقة طباعة الصور والنصوص.</translation>
    </message>
    <message>
        <source>Toner Saver:</source>
        <translation>توفير مسحوق الحبر:</translation>
    </message>
    <message>
        <source>Conserve Dry Ink</source>
        <translation>استخدام مسحوق &amp;حبر أقل</translation>
    </message>
    <message>
        <source>Conserve Dry Ink Spoken</source>
        <translation>توفير مسحوق الحبر: استخدام مسحوق حبر أقل</translation>
    </message>
    <message>
        <source>Toner Saver Hint</source>
        <translation>يطبع بلون أفتح، للمسودات.</translation>
    </message>
    <message>
        <source>CMYK Source Color:</source>
        <translation>لون مص&amp;در CMYK:</translation>
    </message>
    <message>
        <source>CMYK Source Color Hint</source>
        <translation>ما أُعدَّت له ألوان CMYK في المستند.</translation>
    </message>
    <message>
        <source>Output Color Correction:</source>
        <translation>تصحيح ألوان الإخ&amp;راج:</translation>
    </message>
    <message>
        <source>Output Color Correction Hint</source>
        <translation>طريقة مطابقة الألوان على الورق.</translation>
    </message>
    <message>
        <source>Invert Image Label</source>
        <translation>عكس الصورة:</translation>
    </message>
    <message>
        <source>Mirror Image Title</source>
        <translation>صورة معكوسة &amp;كالمرآة</translation>
    </message>
    <message>
        <source>Mirror Image Spoken</source>
        <translation>عكس الصورة: صورة معكوسة كالمرآة</translation>
    </message>
    <message>
        <source>Mirror Image Hint</source>
        <translation>يبدّل بين اليمين واليسار، للأفلام والنقل.</translation>
    </message>
    <message>
        <source>Negative Image Title</source>
        <translation>صورة سالبة</translation>
    </message>
    <message>
        <source>Negative Image Hint</source>
        <translation>تطلب المهمة صورة سالبة، وتحتفظ بذلك.</translation>
    </message>
    <message>
        <source>Image Example</source>
        <translation>كيف تُطبع الصفحة</translation>
    </message>
    <message>
        <source>Image Example Caption</source>
        <translation>مثال؛ قد تختلف الألوان على الورق.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Text or picture -->
    <message>
        <source>Watermark Kind:</source>
        <translation>النوع:</translation>
    </message>
    <message>
        <source>Watermark Kind</source>
        <translation>نوع العلامة المائية</translation>
    </message>
    <message>
        <source>Watermark Kind Text</source>
        <translation>&amp;نص</translation>
    </message>
    <message>
        <source>Watermark Kind Picture</source>
        <translation>&amp;صورة</translation>
    </message>
    <message>
        <source>Watermark Text Hint</source>
        <translation>المقياس مخصص للصور: حجم النص هو حجم خطه.</translation>
    </message>
    <message>
        <source>Watermark Picture Hint</source>
        <translation>تُطبع الصورة معتدلة في وسط الصفحة، بألوانها الأصلية. الزاوية والكثافة والموضع مخصصة للنصوص.</translation>
    </message>
    <message>
        <source>Watermark Cover Hint</source>
        <translation>تُطبع صورة الغلاف معتدلة في وسط الصفحة. الزاوية والموضع مخصصان للنصوص.</translation>
    </message>
    <!-- Texts -->
    <message>
        <source>Watermark Words:</source>
        <translation>&amp;الكلمات:</translation>
    </message>
    <message>
        <source>Watermark Words</source>
        <translation>الكلمات</translation>
    </message>
    <message>
        <source>Watermark Font:</source>
        <translation>ال&amp;خط:</translation>
    </message>
    <message>
        <source>Watermark Font</source>
        <translation>الخط</translation>
    </message>
    <message>
        <source>Watermark Font Missing</source>
        <translation>&#x2068;%1&#x2069; (غير مثبت)</translation>
    </message>
    <message>
        <source>Watermark Font Replaced Hint</source>
        <translation>هذا الخط غير مثبت هنا. يحل محله &#x2068;%1&#x2069;.</translation>
    </message>
    <message>
        <source>Watermark Font Missing Hint</source>
        <translation>هذا الخط غير مثبت هنا. يحل محله خط سطح المكتب.</translation>
    </message>
    <message>
        <source>Watermark No Fonts Hint</source>
        <translation>لا يمكن قراءة قائمة الخطوط. أعد تثبيت البرنامج، أو اسأل مسؤول النظام.</translation>
    </message>
    <message>
        <source>Watermark Size:</source>
        <translation>ال&amp;حجم:</translation>
    </message>
    <message>
        <source>Watermark Size</source>
        <translation>الحجم بالنقاط</translation>
    </message>
    <message>
        <source>Watermark Sizes</source>
        <translation>الأحجام</translation>
    </message>
    <message>
        <source>Watermark Typical Sizes</source>
        <translation>أحجام شائعة</translation>
    </message>
    <message>
        <source>Watermark Size Limits</source>
        <translation>من %1 إلى %2 نقطة</translation>
    </message>
    <message>
        <source>Watermark Color:</source>
        <translation>ال&amp;لون:</translation>
    </message>
    <message>
        <source>Watermark Color</source>
        <translation>اللون: الأحمر والأخضر والأزرق، رقمان لكل منها</translation>
    </message>
    <message>
        <source>Watermark Color Button</source>
        <translation>اختيار اللون</translation>
    </message>
    <message>
        <source>Watermark Color Hint</source>
        <translation>يُطبع النص بهذا اللون</translation>
    </message>
    <message>
        <source>Watermark Font Color:</source>
        <translation>ل&amp;ون الخط:</translation>
    </message>
    <message>
        <source>Watermark Font Color</source>
        <translation>لون الخط: الأحمر والأخضر والأزرق، رقمان لكل منها</translation>
    </message>
    <message>
        <source>Watermark Font Color Button</source>
        <translation>اختيار لون الخط</translation>
    </message>
    <message>
        <source>Watermark Font Color Hint</source>
        <translation>يُحفظ مع الخط؛ لا يُطبع</translation>
    </message>
    <message>
        <source>Watermark Angle:</source>
        <translation>ال&amp;زاوية:</translation>
    </message>
    <message>
        <source>Watermark Angle</source>
        <translation>الزاوية بالدرجات</translation>
    </message>
    <message>
        <source>Watermark Angle Dial</source>
        <translation>الزاوية</translation>
    </message>
    <message>
        <source>Watermark Degrees</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Watermark Angle Limits</source>
        <translation>من &#x2066;%1&#x2069; إلى &#x2066;%2&#x2069; درجة</translation>
    </message>
    <message>
        <source>Watermark Density:</source>
        <translation>ال&amp;كثافة:</translation>
    </message>
    <message>
        <source>Watermark Density</source>
        <translation>الكثافة بالنسبة المئوية</translation>
    </message>
    <message>
        <source>Watermark Density Tip</source>
        <translation>0 بالمئة لا تُرى، و100 بالمئة تحجب ما تحتها.</translation>
    </message>
    <message>
        <source>Watermark Percent</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Watermark Density Limits</source>
        <translation>من %1 إلى %2 بالمئة</translation>
    </message>
    <!-- Place -->
    <message>
        <source>Watermark Right:</source>
        <translation>إلى ال&amp;يمين:</translation>
    </message>
    <message>
        <source>Watermark Right</source>
        <translation>من الوسط إلى اليمين</translation>
    </message>
    <message>
        <source>Watermark Up:</source>
        <translation>إل&amp;ى الأعلى:</translation>
    </message>
    <message>
        <source>Watermark Up</source>
        <translation>من الوسط إلى الأعلى</translation>
    </message>
    <message>
        <source>Watermark Units</source>
        <translation>الوحدة</translation>
    </message>
    <message>
        <source>Watermark Inches</source>
        <translation>بوصة</translation>
    </message>
    <message>
        <source>Watermark Millimetres</source>
        <translation>مليمتر</translation>
    </message>
    <message>
        <source>Watermark Offset Limits</source>
        <translation>من &#x2066;%1&#x2069; إلى &#x2066;%2&#x2069; بدءًا من الوسط</translation>
    </message>
    <message>
        <source>Watermark Center</source>
        <translation>ال&amp;توسيط على الصفحة</translation>
    </message>
    <!-- Pictures -->
    <message>
        <source>Watermark Picture:</source>
        <translation>ملف الصورة:</translation>
    </message>
    <message>
        <source>Watermark Choose</source>
        <translation>اختيا&amp;ر…</translation>
    </message>
    <message>
        <source>Watermark Choose Picture</source>
        <translation>اختيار ملف صورة</translation>
    </message>
    <message>
        <source>Watermark Picture Chooser</source>
        <translation>اختيار صورة</translation>
    </message>
    <message>
        <source>Watermark Picture Kinds</source>
        <translation>صور (PNG وJPEG وGIF وBMP وTIFF وSVG)</translation>
    </message>
    <message>
        <source>Watermark All Files</source>
        <translation>كل الملفات</translation>
    </message>
    <message>
        <source>Watermark Picture None</source>
        <translation>لم تُختر صورة</translation>
    </message>
    <message>
        <source>Watermark Picture Formats</source>
        <translation>&#x200F;PNG أو JPEG أو GIF أو BMP أو TIFF أو SVG</translation>
    </message>
    <message>
        <source>Watermark Picture Reading</source>
        <translation>تجري قراءة الصورة…</translation>
    </message>
    <message>
        <source>Watermark Picture Inches</source>
        <translation>&#x2066;%1 × %2&#x2069; بكسل، تُطبع بحجم &#x2066;%3 × %4&#x2069; بوصة</translation>
    </message>
    <message>
        <source>Watermark Picture Millimetres</source>
        <translation>&#x2066;%1 × %2&#x2069; بكسل، تُطبع بحجم &#x2066;%3 × %4&#x2069; مليمتر</translation>
    </message>
    <message>
        <source>Watermark Scale:</source>
        <translation>ال&amp;مقياس:</translation>
    </message>
    <message>
        <source>Watermark Scale</source>
        <translation>المقياس بالنسبة المئوية</translation>
    </message>
    <message>
        <source>Watermark Scale Limits</source>
        <translation>من %1 إلى %2 بالمئة</translation>
    </message>
    <!-- Preview -->
    <message>
        <source>Watermark Editor Preview</source>
        <translation>العلامة المائية على الورق</translation>
    </message>
    <message>
        <source>Watermark Over Page</source>
        <translation>ال&amp;عرض فوق الصفحة الأولى</translation>
    </message>
    <message>
        <source>Watermark No Page</source>
        <translation>يمكن عرض الصفحة الأولى عندما يوجد مستند.</translation>
    </message>
    <message>
        <source>Watermark Place Hint</source>
        <translation>اسحب العلامة المائية على الصفحة لنقلها، أو استخدم مفاتيح الأسهم؛ مع المفتاح Shift تنتقل عشرة أضعاف المسافة.</translation>
    </message>
    <!-- What OK refuses, and asks -->
    <message>
        <source>Watermark Refused Header</source>
        <translation>لا يمكن حفظ العلامة المائية بعد</translation>
    </message>
    <message>
        <source>Watermark No Color</source>
        <translation>اكتب اللون في صورة # وستة رموز، من 0 إلى 9 ومن A إلى F: &#x200F;&#x2066;#FF0000&#x2069; هو الأحمر. أو اختره بالزر.</translation>
    </message>
    <message>
        <source>Watermark No Text</source>
        <translation>اكتب الكلمات التي تُطبع.</translation>
    </message>
    <message>
        <source>Watermark No Picture</source>
        <translation>اختر الصورة التي تُطبع.</translation>
    </message>
    <message>
        <source>Watermark Picture Still Read</source>
        <translation>ما زالت الصورة قيد القراءة. حاول مجددًا بعد لحظة.</translation>
    </message>
    <message>
        <source>Watermark Picture Unreadable</source>
        <translation>لا يمكن قراءة الصورة. %1</translation>
    </message>
    <message>
        <source>Watermark Name Reserved</source>
        <translation>تحتاج قائمة العلامات المائية إلى الاسم «&#x2068;%1&#x2069;» لنفسها. غيّر الكلمات، أو اسم ملف الصورة.</translation>
    </message>
    <message>
        <source>Watermark Name Is Font</source>
        <translation>«&#x2068;%1&#x2069;» اسم خط محفوظ للطباعة. غيّر الكلمات، أو اسم ملف الصورة.</translation>
    </message>
    <message>
        <source>Watermark Replace Header</source>
        <translation>هل تريد استبدال «&#x2068;%1&#x2069;»؟</translation>
    </message>
    <message>
        <source>Watermark Replace Message</source>
        <translation>توجد في القائمة علامة مائية بهذا الاسم، نصًا كانت أو صورة. الاستبدال يحذفها.</translation>
    </message>
    <message>
        <source>Watermark Replace</source>
        <translation>استبدال</translation>
    </message>
</context>
</TS>

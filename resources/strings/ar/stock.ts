<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Summary and menus of the paper -->
    <message>
        <source>StockName</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>StockColor</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>:</source>
        <translation>: </translation>
    </message>
    <message>
        <source>StockTypePrecutTab</source>
        <translation>ألسنة مقصوصة مسبقًا</translation>
    </message>
    <message>
        <source>StockTypeOrdered</source>
        <translation>ورق مرتب</translation>
    </message>
    <message>
        <source>StockTypeCustom</source>
        <translation>نوع مخصص</translation>
    </message>
    <message>
        <source>StockColorCustom</source>
        <translation>لون مخصص</translation>
    </message>
    <message>
        <source>OtherSize</source>
        <translation>حجم آخر</translation>
    </message>
    <message>
        <source>OtherColor</source>
        <translation>لون آخر</translation>
    </message>
    <message>
        <source>OtherType</source>
        <translation>نوع آخر</translation>
    </message>
    <message>
        <source>Default Stock</source>
        <translation>الورق الافتراضي</translation>
    </message>
    <message>
        <source>Advanced Stock Selection...</source>
        <translation>تحديد الورق المتقدم…</translation>
    </message>
    <message>
        <source>StockCustomSizeInches</source>
        <translation>مخصص (&#x2066;%1 × %2&#x2069; بوصة)</translation>
    </message>
    <message>
        <source>StockCustomSizeMillimeters</source>
        <translation>مخصص (&#x2066;%1 × %2&#x2069; مم)</translation>
    </message>
    <message>
        <source>StockSizeUnknown</source>
        <translation>حجم آخر</translation>
    </message>
    <!-- What the paper is beyond size, color and type -->
    <message>
        <source>StockWeightText</source>
        <translation>%1 جم/م²</translation>
    </message>
    <message>
        <source>StockCoatingText</source>
        <translation>&#x2068;%1&#x2069; (&#x2068;%2&#x2069;)</translation>
    </message>
    <message>
        <source>StockNotPunched</source>
        <translation>غير مثقّب</translation>
    </message>
    <message>
        <source>StockPrePunched</source>
        <translation>مثقّب مسبقًا</translation>
    </message>
    <message>
        <source>StockNotCoated</source>
        <translation>غير مطلي</translation>
    </message>
    <message>
        <source>StockOneSideCoated</source>
        <translation>مطلي من وجه واحد</translation>
    </message>
    <message>
        <source>StockBothCoated</source>
        <translation>مطلي من الوجهين</translation>
    </message>
    <message>
        <source>StockCoatingUsual</source>
        <translation>قياسي</translation>
    </message>
    <message>
        <source>StockCoatingGloss</source>
        <translation>لامع</translation>
    </message>
    <message>
        <source>StockCoatingSatin</source>
        <translation>ساتان</translation>
    </message>
    <message>
        <source>StockCoatingMatte</source>
        <translation>مطفأ</translation>
    </message>
    <message>
        <source>StockFinishSmooth</source>
        <translation>أملس</translation>
    </message>
    <message>
        <source>StockFinishVellum</source>
        <translation>رقّي</translation>
    </message>
    <message>
        <source>StockFinishLaid</source>
        <translation>مضلّع</translation>
    </message>
    <message>
        <source>StockFinishLinen</source>
        <translation>كتّاني</translation>
    </message>
    <message>
        <source>StockFinishFelt</source>
        <translation>لبّادي</translation>
    </message>
    <message>
        <source>StockGrainLong</source>
        <translation>ألياف على امتداد الحافة الطويلة</translation>
    </message>
    <message>
        <source>StockGrainShort</source>
        <translation>ألياف على امتداد الحافة القصيرة</translation>
    </message>
    <!-- Custom paper size -->
    <message>
        <source>Custom Size Title</source>
        <translation>حجم ورق مخصص</translation>
    </message>
    <message>
        <source>Custom Size Width:</source>
        <translation>ال&amp;عرض:</translation>
    </message>
    <message>
        <source>Custom Size Width</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Custom Size Length:</source>
        <translation>ال&amp;طول:</translation>
    </message>
    <message>
        <source>Custom Size Length</source>
        <translation>الطول</translation>
    </message>
    <message>
        <source>Custom Size Unit:</source>
        <translation>ال&amp;وحدة:</translation>
    </message>
    <message>
        <source>Custom Size Unit</source>
        <translation>الوحدة</translation>
    </message>
    <message>
        <source>Custom Size Inches</source>
        <translation>&amp;بوصة</translation>
    </message>
    <message>
        <source>Custom Size Millimeters</source>
        <translation>&amp;مليمتر</translation>
    </message>
    <message>
        <source>Custom Size Limits Inches</source>
        <translation>من %1 إلى %2 بوصة</translation>
    </message>
    <message>
        <source>Custom Size Limits Millimeters</source>
        <translation>من %1 إلى %2 مم</translation>
    </message>
    <message>
        <source>Custom Width Refused Header</source>
        <translation>لا يقبل الجهاز هذا العرض</translation>
    </message>
    <message>
        <source>Custom Length Refused Header</source>
        <translation>لا يقبل الجهاز هذا الطول</translation>
    </message>
    <message>
        <source>Custom Size Refused Message</source>
        <translation>المدى المقبول: %1. غيّر الرقم، أو ألغِ لإبقاء حجم الورق كما هو.</translation>
    </message>
    <message>
        <source>Custom Size Picture</source>
        <translation>ورقة مع عرضها وطولها</translation>
    </message>
    <!-- Tab stock -->
    <message>
        <source>Tab Stock Setup</source>
        <translation>إعداد ورق الألسنة</translation>
    </message>
    <message>
        <source>Tab Margin Shift:</source>
        <translation>إزاحة ال&amp;هامش نحو اللسان:</translation>
    </message>
    <message>
        <source>Tab Margin Shift</source>
        <translation>إزاحة الهامش نحو اللسان</translation>
    </message>
    <message>
        <source>Tab Shift Distance:</source>
        <translation>&amp;المسافة:</translation>
    </message>
    <message>
        <source>Tab Shift Distance</source>
        <translation>المسافة</translation>
    </message>
    <message>
        <source>Tab Shift Unit:</source>
        <translation>ال&amp;وحدة:</translation>
    </message>
    <message>
        <source>Tab Shift Unit</source>
        <translation>الوحدة</translation>
    </message>
    <message>
        <source>Tab Shift Inches</source>
        <translation>&amp;بوصة</translation>
    </message>
    <message>
        <source>Tab Shift Millimeters</source>
        <translation>&amp;مليمتر</translation>
    </message>
    <message>
        <source>Tab Shift Hint</source>
        <translation>ينقل الصورة المطبوعة نحو اللسان. لتعيين مسافة من عندك، اختر «مخصص».</translation>
    </message>
    <message>
        <source>Tab Shift Picture</source>
        <translation>ورقة بلسان نُقلت صورتها إلى اللسان</translation>
    </message>
    <message>
        <source>Pre-Cut Tab Title</source>
        <translation>ألسنة مقصوصة مسبقًا</translation>
    </message>
    <message>
        <source>Tabs in Set:</source>
        <translation>&amp;عدد الألسنة في كل مجموعة:</translation>
    </message>
    <message>
        <source>Tabs in Set</source>
        <translation>عدد الألسنة في كل مجموعة</translation>
    </message>
    <message>
        <source>Tabs in Set Hint</source>
        <translation>عدد الأوراق من أول موضع للسان إلى آخر موضع، قبل أن تبدأ المواضع من جديد.</translation>
    </message>
    <message>
        <source>Tabs in Set Picture</source>
        <translation>أوراق بألسنة مقصوصة مسبقًا</translation>
    </message>
    <!-- Type of the paper -->
    <message>
        <source>Stock Type Title</source>
        <translation>نوع الورق</translation>
    </message>
    <message>
        <source>Stock Type:</source>
        <translation>ال&amp;نوع:</translation>
    </message>
    <message>
        <source>Stock Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Stock Type Name:</source>
        <translation>ال&amp;اسم:</translation>
    </message>
    <message>
        <source>Stock Type Name</source>
        <translation>اسم النوع</translation>
    </message>
    <message>
        <source>Stock Type Name Hint</source>
        <translation>يحتاج الورق المرتب و«نوع مخصص» إلى اسم، هو الاسم الذي يعرف الجهاز به الورق.</translation>
    </message>
    <message>
        <source>Stock Type Tabs:</source>
        <translation>الألسنة:</translation>
    </message>
    <message>
        <source>Stock Type Tabs...</source>
        <translation>ا&amp;لألسنة…</translation>
    </message>
    <message>
        <source>Tabs Not Set</source>
        <translation>العدد غير معيَّن</translation>
    </message>
    <message>
        <source>Tabs Set</source>
        <translation>%1 في كل مجموعة</translation>
    </message>
    <message>
        <source>Tabs Not Needed</source>
        <translation>ليس لهذا النوع ألسنة.</translation>
    </message>
    <message>
        <source>Stock Type Name Missing Header</source>
        <translation>سمِّ نوع الورق</translation>
    </message>
    <message>
        <source>Stock Type Name Missing Message</source>
        <translation>يحتاج الورق المرتب و«نوع مخصص» إلى اسم. أدخل الاسم الذي يعرف الجهاز به الورق، أو اختر نوعًا آخر.</translation>
    </message>
    <!-- Description of the paper -->
    <message>
        <source>Stock Description Title</source>
        <translation>وصف الورق</translation>
    </message>
    <message>
        <source>Stock Description:</source>
        <translation>ال&amp;وصف:</translation>
    </message>
    <message>
        <source>Stock Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Stock Weight:</source>
        <translation>&amp;الوزن:</translation>
    </message>
    <message>
        <source>Stock Weight</source>
        <translation>الوزن</translation>
    </message>
    <message>
        <source>Stock Weight Suffix</source>
        <translation> جم/م²</translation>
    </message>
    <message>
        <source>Stock Weight Range</source>
        <translation>من %1 إلى %2 جم/م² على هذا الجهاز</translation>
    </message>
    <message>
        <source>Stock Sides Coated:</source>
        <translation>ال&amp;طلاء:</translation>
    </message>
    <message>
        <source>Stock Sides Coated</source>
        <translation>الطلاء</translation>
    </message>
    <message>
        <source>Stock Coating Type:</source>
        <translation>&amp;نوع الطلاء:</translation>
    </message>
    <message>
        <source>Stock Coating Type</source>
        <translation>نوع الطلاء</translation>
    </message>
    <message>
        <source>Stock Finish:</source>
        <translation>&amp;ملمس السطح:</translation>
    </message>
    <message>
        <source>Stock Finish</source>
        <translation>ملمس السطح</translation>
    </message>
    <message>
        <source>Stock Finish Tip</source>
        <translation>ملمس السطح؛ الورق ذو النسيج يتقبّل مسحوق الحبر بتجانس أقل.</translation>
    </message>
    <message>
        <source>Stock Grain:</source>
        <translation>ات&amp;جاه الألياف:</translation>
    </message>
    <message>
        <source>Stock Grain</source>
        <translation>اتجاه الألياف</translation>
    </message>
    <message>
        <source>Stock Grain Tip</source>
        <translation>اتجاه الألياف: ينطوي الورق على امتداده بسلاسة ويتشقق عبره.</translation>
    </message>
    <message>
        <source>Stock Punched:</source>
        <translation>ال&amp;ثقوب:</translation>
    </message>
    <message>
        <source>Stock Punched</source>
        <translation>الثقوب</translation>
    </message>
    <message>
        <source>Stock Comment:</source>
        <translation>&amp;تعليق:</translation>
    </message>
    <message>
        <source>Stock Comment</source>
        <translation>تعليق</translation>
    </message>
    <!-- All of the paper -->
    <message>
        <source>Advanced Stock Title</source>
        <translation>تحديد الورق المتقدم</translation>
    </message>
    <message>
        <source>Stock Summary</source>
        <translation>ملخص الورق</translation>
    </message>
    <message>
        <source>Stock Type...</source>
        <translation>ال&amp;نوع…</translation>
    </message>
    <message>
        <source>Stock Description...</source>
        <translation>ال&amp;وصف…</translation>
    </message>
    <message>
        <source>Stock Library:</source>
        <translation>ال&amp;مكتبة:</translation>
    </message>
    <message>
        <source>Stock Library</source>
        <translation>مكتبة الورق المسمّى</translation>
    </message>
    <message>
        <source>Stock Library Choose</source>
        <translation>اختر ورقًا مسمّى</translation>
    </message>
    <message>
        <source>Stock Library Empty</source>
        <translation>لا ورق محفوظ بعد</translation>
    </message>
    <message>
        <source>Stock Library Hint</source>
        <translation>الورق المختار من المكتبة يحل محل الإعدادات في هذه النافذة.</translation>
    </message>
    <message>
        <source>Save in Library...</source>
        <translation>حفظ &amp;في المكتبة…</translation>
    </message>
    <message>
        <source>Remove from Library</source>
        <translation>إ&amp;زالة من المكتبة</translation>
    </message>
    <message>
        <source>Stock Size:</source>
        <translation>ال&amp;حجم:</translation>
    </message>
    <message>
        <source>Stock Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Advanced Stock Color:</source>
        <translation>ال&amp;لون:</translation>
    </message>
    <message>
        <source>Advanced Stock Color</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>Stock Color Name:</source>
        <translation>&amp;اسم اللون:</translation>
    </message>
    <message>
        <source>Stock Color Name</source>
        <translation>اسم اللون</translation>
    </message>
    <message>
        <source>Stock Color Name Missing Header</source>
        <translation>سمِّ اللون المخصص</translation>
    </message>
    <message>
        <source>Stock Color Name Missing Message</source>
        <translation>يحتاج اللون المخصص إلى اسم. أدخل اسمًا، أو اختر لونًا آخر.</translation>
    </message>
    <!-- The library of named papers -->
    <message>
        <source>Save in Library Title</source>
        <translation>حفظ في المكتبة</translation>
    </message>
    <message>
        <source>Library Stock Name:</source>
        <translation>ال&amp;اسم:</translation>
    </message>
    <message>
        <source>Library Stock Name</source>
        <translation>اسم الورق</translation>
    </message>
    <message>
        <source>Library Stock Name Hint</source>
        <translation>يُعرض الورق بهذا الاسم في كل مهمة.</translation>
    </message>
    <message>
        <source>Library Name Missing Header</source>
        <translation>سمِّ الورق</translation>
    </message>
    <message>
        <source>Library Name Missing Message</source>
        <translation>أدخل الاسم الذي تحفظ المكتبة هذا الورق تحته.</translation>
    </message>
    <message>
        <source>Library Name Too Long Header</source>
        <translation>اختصر الاسم</translation>
    </message>
    <message>
        <source>Library Name Too Long Message</source>
        <translation>يتكون الاسم في المكتبة من %1 من الأحرف على الأكثر.</translation>
    </message>
    <message>
        <source>Library Full Header</source>
        <translation>المكتبة ممتلئة</translation>
    </message>
    <message>
        <source>Library Full Message</source>
        <translation>تحفظ المكتبة من الورق %1 على الأكثر. أزل ورقًا لم تعد بحاجة إليه، أو احفظ باسم موجود فيها.</translation>
    </message>
    <message>
        <source>Library Not Found Header</source>
        <translation>لم يعد الورق في المكتبة</translation>
    </message>
    <message>
        <source>Library Not Found Message</source>
        <translation>أُزيل «&#x2068;%1&#x2069;» في هذه الأثناء.</translation>
    </message>
    <message>
        <source>Library Not Written Header</source>
        <translation>تعذّر حفظ المكتبة</translation>
    </message>
    <message>
        <source>Library Not Written Message</source>
        <translation>لا يمكن كتابة الملف &#x2068;%1&#x2069;. تأكد من وجود مساحة على قرصه ومن أن لك حق الكتابة في مجلده، ثم حاول مجددًا.</translation>
    </message>
    <message>
        <source>Library Replace Header</source>
        <translation>هل تريد استبدال «&#x2068;%1&#x2069;»؟</translation>
    </message>
    <message>
        <source>Library Replace Message</source>
        <translation>يوجد في المكتبة ورق بهذا الاسم.</translation>
    </message>
    <message>
        <source>Library Replace Button</source>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>Library Remove Header</source>
        <translation>هل تريد إزالة «&#x2068;%1&#x2069;»؟</translation>
    </message>
    <message>
        <source>Library Remove Message</source>
        <translation>يُزال الورق من المكتبة. لا تتغير المهام التي تستخدمه.</translation>
    </message>
    <message>
        <source>Library Remove Button</source>
        <translation>إزالة</translation>
    </message>
</context>
</TS>

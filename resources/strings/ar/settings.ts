<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Menus of every panel -->
    <message>
        <source>PrinterDefault</source>
        <translation>افتراضي الطابعة</translation>
    </message>
    <message>
        <source>UseJobSetting</source>
        <translation>استخدام إعداد المهمة</translation>
    </message>
    <message>
        <source>Not Offered Here</source>
        <translation>غير متاح هنا</translation>
    </message>
    <message>
        <source>Choice Not Offered</source>
        <translation>في المهمة خيار غير متاح هنا، وهي تحتفظ به.</translation>
    </message>
    <message>
        <source>Not on This Device</source>
        <translation>لا يتيح هذا الجهاز ذلك.</translation>
    </message>
    <message>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <source>On</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>مسح ضوئي</translation>
    </message>
    <message>
        <source>Gather</source>
        <translation>تجميع</translation>
    </message>
    <message>
        <source>True</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>False</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Halbrook 3300</source>
        <translation>Halbrook 3300</translation>
    </message>
    <message>
        <source>Face Down</source>
        <translation>الوجه إلى الأسفل</translation>
    </message>
    <message>
        <source>Face Up</source>
        <translation>الوجه إلى الأعلى</translation>
    </message>
    <message>
        <source>RightToLeft</source>
        <translation>من اليمين إلى اليسار</translation>
    </message>
    <message>
        <source>LeftToRight</source>
        <translation>من اليسار إلى اليمين</translation>
    </message>
    <message>
        <source>No Covers</source>
        <translation>بلا أغلفة</translation>
    </message>
    <message>
        <source>Front Cover Only</source>
        <translation>الغلاف الأمامي فقط</translation>
    </message>
    <message>
        <source>Back Cover Only</source>
        <translation>الغلاف الخلفي فقط</translation>
    </message>
    <message>
        <source>Front and Back Covers</source>
        <translation>الغلافان الأمامي والخلفي</translation>
    </message>
    <message>
        <source>After Page</source>
        <translation>بعد الصفحة</translation>
    </message>
    <message>
        <source>SpecialPageSummaryBefore1</source>
        <translation>قبل الصفحة 1</translation>
    </message>
    <message>
        <source>Setup...</source>
        <translation>إعداد…</translation>
    </message>
    <message>
        <source>No Page Borders</source>
        <translation>بلا حدود للصفحات</translation>
    </message>
    <message>
        <source>Draw Page Borders</source>
        <translation>رسم حدود الصفحات</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>ممكّن</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>WatermarkBackground</source>
        <translation>الطباعة في الخلفية</translation>
    </message>
    <message>
        <source>WatermarkBlend</source>
        <translation>المزج مع الصفحة</translation>
    </message>
    <message>
        <source>WatermarkForeground</source>
        <translation>الطباعة في المقدمة</translation>
    </message>
    <message>
        <source>WatermarkPrintOnAllPages</source>
        <translation>الطباعة على كل الصفحات</translation>
    </message>
    <message>
        <source>WatermarmPrintOnPage1Only</source>
        <translation>الطباعة على الصفحة 1 فقط</translation>
    </message>
    <message>
        <source>NoWatermark</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>جديد…</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>تحرير…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>قياسي</translation>
    </message>
    <message>
        <source>Fine</source>
        <translation>دقيق</translation>
    </message>
    <message>
        <source>Superfine</source>
        <translation>فائق الدقة</translation>
    </message>
    <message>
        <source>Ultrafine</source>
        <translation>بالغ الدقة</translation>
    </message>
    <message>
        <source>G3-Auto</source>
        <translation>G3 (تلقائي)</translation>
    </message>
    <message>
        <source>Fixed G3</source>
        <translation>G3 (ثابت)</translation>
    </message>
    <message>
        <source>G4-Auto</source>
        <translation>G4 (تلقائي)</translation>
    </message>
    <message>
        <source>Print a Confirmation Sheet</source>
        <translation>طباعة صفحة تأكيد</translation>
    </message>
    <message>
        <source>Do Not Print a Confirmation Sheet</source>
        <translation>عدم طباعة صفحة تأكيد</translation>
    </message>
    <message>
        <source>Do Not Print a Cover Sheet</source>
        <translation>عدم طباعة صفحة غلاف</translation>
    </message>
    <message>
        <source>Print a Cover Sheet...</source>
        <translation>طباعة صفحة غلاف…</translation>
    </message>
    <message>
        <source>Show All Recipients</source>
        <translation>إظهار كل المستلمين</translation>
    </message>
    <message>
        <source>Hide Recipient&apos;s Information</source>
        <translation>إخفاء معلومات المستلمين</translation>
    </message>
    <message>
        <source>Show Custom Text</source>
        <translation>إظهار نص مخصص</translation>
    </message>
    <message>
        <source>Show Sender&apos;s Information</source>
        <translation>إظهار معلومات المرسل</translation>
    </message>
    <message>
        <source>Hide Sender&apos;s Information</source>
        <translation>إخفاء معلومات المرسل</translation>
    </message>
    <message>
        <source>Cover Sheet Paper Size</source>
        <translation>حجم ورق صفحة الغلاف</translation>
    </message>
    <message>
        <source>0.5&quot; (8.5x11&quot; Template)</source>
        <translation>0.5 بوصة (قالب &#x2066;8.5 × 11&#x2069; بوصة)</translation>
    </message>
    <message>
        <source>12.7 mm (A4 Template)</source>
        <translation>12.7 مم (قالب A4)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>مخصص</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>بوصة</translation>
    </message>
    <message>
        <source>Millimeters</source>
        <translation>مليمتر</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>SavePrint</source>
        <translation>حفظ وطباعة</translation>
    </message>
    <message>
        <source>PublicFolder</source>
        <translation>المجلد العام الافتراضي</translation>
    </message>
    <message>
        <source>UseJobName</source>
        <translation>استخدام اسم المستند</translation>
    </message>
    <message>
        <source>UseLoginName</source>
        <translation>استخدام اسم تسجيل الدخول</translation>
    </message>
    <message>
        <source>StockSizeLetter</source>
        <translation>Letter (&#x2066;8.5 × 11&#x2069; بوصة)</translation>
    </message>
    <message>
        <source>StockSizeA4</source>
        <translation>A4 (&#x2066;210 × 297&#x2069; مم)</translation>
    </message>
    <message>
        <source>Separator Option None</source>
        <translation>بلا فواصل</translation>
    </message>
    <message>
        <source>Separator Option Blank</source>
        <translation>فواصل فارغة</translation>
    </message>
    <message>
        <source>Separator Option Printed</source>
        <translation>فواصل مطبوعة</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>SecurePrint</source>
        <translation>طباعة آمنة</translation>
    </message>
    <message>
        <source>SampleSet</source>
        <translation>نسخة عينة</translation>
    </message>
    <message>
        <source>DelayedPrint</source>
        <translation>طباعة مؤجلة</translation>
    </message>
    <message>
        <source>Save to Mailbox Command</source>
        <translation>مهمة محفوظة</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>فاكس</translation>
    </message>
    <message>
        <source>600 x 600 Resolution</source>
        <translation>&#x2066;600 × 600&#x2069; نقطة في البوصة</translation>
    </message>
    <message>
        <source>Simplex</source>
        <translation>طباعة على وجه واحد</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>طباعة على الوجهين</translation>
    </message>
    <message>
        <source>DuplexShort</source>
        <translation>على الوجهين، القلب على الحافة القصيرة</translation>
    </message>
    <message>
        <source>CoverPrinted</source>
        <translation>مطبوع</translation>
    </message>
    <message>
        <source>CoverBlankorPreprinted</source>
        <translation>فارغ أو مطبوع مسبقًا</translation>
    </message>
    <!-- What is fitted to the device -->
    <message>
        <source>1 Staple</source>
        <translation>دبوس واحد</translation>
    </message>
    <message>
        <source>2 Staples</source>
        <translation>دبوسان</translation>
    </message>
    <message>
        <source>Multiple Staples</source>
        <translation>عدة دبابيس</translation>
    </message>
    <message>
        <source>HolePunch</source>
        <translation>تثقيب</translation>
    </message>
    <message>
        <source>2 Hole Punch</source>
        <translation>تثقيب بثقبين</translation>
    </message>
    <message>
        <source>3 Hole Punch</source>
        <translation>تثقيب بثلاثة ثقوب</translation>
    </message>
    <message>
        <source>4 Hole Punch</source>
        <translation>تثقيب بأربعة ثقوب</translation>
    </message>
    <message>
        <source>FoldCFold</source>
        <translation>طي على شكل C</translation>
    </message>
    <message>
        <source>FoldZFold</source>
        <translation>طي على شكل Z</translation>
    </message>
    <message>
        <source>Z Fold Half Sheet</source>
        <translation>طي نصف ورقة على شكل Z</translation>
    </message>
    <message>
        <source>BiFoldNoStaple</source>
        <translation>طي الكتيب</translation>
    </message>
    <message>
        <source>Tape Binding</source>
        <translation>تجليد بالشريط</translation>
    </message>
    <message>
        <source>Post-Print Inserter</source>
        <translation>وحدة إدراج بعد الطباعة</translation>
    </message>
    <message>
        <source>Auto Switch Tray</source>
        <translation>تبديل أدراج الإخراج تلقائيًا</translation>
    </message>
    <message>
        <source>Stacker Tray 1</source>
        <translation>درج التكديس 1 (العلوي)</translation>
    </message>
    <message>
        <source>Stacker Tray 2</source>
        <translation>درج التكديس 2 (السفلي)</translation>
    </message>
    <message>
        <source>Simple Catch Tray</source>
        <translation>الدرج الجانبي</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- The finishing menu and its summary -->
    <message>
        <source>No Staple Value</source>
        <translation>بلا تدبيس</translation>
    </message>
    <message>
        <source>NoHolePunch</source>
        <translation>بلا تثقيب</translation>
    </message>
    <message>
        <source>No Fold</source>
        <translation>بلا طي</translation>
    </message>
    <message>
        <source>Booklet Creation...</source>
        <translation>إنشاء كتيب…</translation>
    </message>
    <message>
        <source>Booklet Fold</source>
        <translation>طي الكتيب</translation>
    </message>
    <message>
        <source>Booklet FoldStaple</source>
        <translation>طي الكتيب وتدبيسه</translation>
    </message>
    <message>
        <source>Booklet Layout</source>
        <translation>تخطيط الكتيب</translation>
    </message>
    <message>
        <source>Covers Menu Option</source>
        <translation>الأ&amp;غلفة…</translation>
    </message>
    <message>
        <source>Covers Tip</source>
        <translation>أوراق من نوع آخر قبل المستند وبعده</translation>
    </message>
    <message>
        <source>Separators Option</source>
        <translation>الفواصل…</translation>
    </message>
    <message>
        <source>Separators Tip</source>
        <translation>أوراق توضع بين الشفافيات</translation>
    </message>
    <message>
        <source>Separators</source>
        <translation>الفواصل</translation>
    </message>
    <!-- The menu of further finishing -->
    <message>
        <source>1 Staple...</source>
        <translation>دبوس واحد…</translation>
    </message>
    <message>
        <source>2 Staples...</source>
        <translation>دبوسان…</translation>
    </message>
    <message>
        <source>Hole Punch...</source>
        <translation>التثقيب…</translation>
    </message>
    <message>
        <source>Fold...</source>
        <translation>الطي…</translation>
    </message>
    <message>
        <source>Advanced Fold...</source>
        <translation>الطي المتقدم…</translation>
    </message>
    <message>
        <source>Z Fold...</source>
        <translation>الطي على شكل Z…</translation>
    </message>
    <message>
        <source>Bind...</source>
        <translation>التجليد بالشريط…</translation>
    </message>
    <message>
        <source>Offset...</source>
        <translation>الإزاحة…</translation>
    </message>
    <message>
        <source>Custom Finishing...</source>
        <translation>تشطيب مخصص…</translation>
    </message>
    <!-- Staples -->
    <message>
        <source>1 Staple Title</source>
        <translation>دبوس واحد</translation>
    </message>
    <message>
        <source>2 Staples Title</source>
        <translation>دبوسان</translation>
    </message>
    <message>
        <source>Staples:</source>
        <translation>ال&amp;تدبيس:</translation>
    </message>
    <message>
        <source>No Staple Hint</source>
        <translation>لا تُدبَّس أوراق المجموعة.</translation>
    </message>
    <message>
        <source>1 Staple Hint</source>
        <translation>دبوس واحد في زاوية كل مجموعة.</translation>
    </message>
    <message>
        <source>2 Staples Hint</source>
        <translation>دبوسان على امتداد حافة واحدة من كل مجموعة.</translation>
    </message>
    <message>
        <source>Staple Limits</source>
        <translation>لا يمكن تدبيس الشفافيات والملصقات والأظرف. التدبيس يلغي الطي.</translation>
    </message>
    <!-- Holes -->
    <message>
        <source>Hole Punch Title</source>
        <translation>التثقيب</translation>
    </message>
    <message>
        <source>Holes:</source>
        <translation>ال&amp;ثقوب:</translation>
    </message>
    <message>
        <source>NoHolePunch Hint</source>
        <translation>لا تُثقب الأوراق.</translation>
    </message>
    <message>
        <source>HolePunch Hint</source>
        <translation>ثقوب وفق النمط المعيَّن على الجهاز.</translation>
    </message>
    <message>
        <source>2 Hole Punch Hint</source>
        <translation>ثقبان على امتداد حافة واحدة من كل ورقة.</translation>
    </message>
    <message>
        <source>3 Hole Punch Hint</source>
        <translation>ثلاثة ثقوب على امتداد حافة واحدة من كل ورقة.</translation>
    </message>
    <message>
        <source>4 Hole Punch Hint</source>
        <translation>أربعة ثقوب على امتداد حافة واحدة من كل ورقة.</translation>
    </message>
    <message>
        <source>Hole Punch Limits</source>
        <translation>لا يمكن تثقيب الشفافيات والملصقات وورق الألسنة والأظرف. التثقيب يلغي الطي.</translation>
    </message>
    <!-- Folds -->
    <message>
        <source>Fold Title</source>
        <translation>الطي</translation>
    </message>
    <message>
        <source>Advanced Fold Title</source>
        <translation>الطي المتقدم</translation>
    </message>
    <message>
        <source>Z Fold Title</source>
        <translation>الطي على شكل Z</translation>
    </message>
    <message>
        <source>Fold:</source>
        <translation>ال&amp;طي:</translation>
    </message>
    <message>
        <source>No Fold Hint</source>
        <translation>تخرج الأوراق مبسوطة.</translation>
    </message>
    <message>
        <source>BiFoldNoStaple Hint</source>
        <translation>طي مرة واحدة من المنتصف، بلا دبابيس. لا يمكن الجمع بينه وبين التدبيس أو التثقيب.</translation>
    </message>
    <message>
        <source>Booklet FoldStaple Hint</source>
        <translation>طي مرة واحدة من المنتصف وتدبيس عبر خط الطي. لا يمكن الجمع بينه وبين تدبيس آخر أو تثقيب.</translation>
    </message>
    <message>
        <source>FoldCFold Hint</source>
        <translation>طي إلى ثلاثة أقسام يدخل أحدها في الآخر، كرسالة تُوضع في ظرف. لا يمكن الجمع بينه وبين التدبيس أو التثقيب.</translation>
    </message>
    <message>
        <source>FoldZFold Hint</source>
        <translation>طي إلى ثلاثة أقسام على شكل Z، فتنفتح الورقة بسحبة واحدة. لا يمكن الجمع بينه وبين التدبيس.</translation>
    </message>
    <message>
        <source>Z Fold Half Sheet Hint</source>
        <translation>يُطوى نصف كل ورقة على نفسه، فتتسق الورقة الكبيرة مع أوراق بنصف حجمها.</translation>
    </message>
    <message>
        <source>Fold Limits</source>
        <translation>لا يمكن طي الشفافيات والملصقات وورق الألسنة والأظرف والورق الثقيل.</translation>
    </message>
    <!-- Binding -->
    <message>
        <source>Bind Title</source>
        <translation>التجليد بالشريط</translation>
    </message>
    <message>
        <source>Bind:</source>
        <translation>ال&amp;تجليد:</translation>
    </message>
    <message>
        <source>No Binding</source>
        <translation>بلا تجليد</translation>
    </message>
    <message>
        <source>Bind Left Edge</source>
        <translation>الحافة اليسرى</translation>
    </message>
    <message>
        <source>Bind Right Edge</source>
        <translation>الحافة اليمنى</translation>
    </message>
    <message>
        <source>Bind Top Edge</source>
        <translation>الحافة العليا</translation>
    </message>
    <message>
        <source>No Binding Hint</source>
        <translation>لا تُجلَّد أوراق المجموعة.</translation>
    </message>
    <message>
        <source>Bind Left Edge Hint</source>
        <translation>شريط على امتداد الحافة اليسرى لكل مجموعة، للنصوص التي تُقرأ من اليسار إلى اليمين.</translation>
    </message>
    <message>
        <source>Bind Right Edge Hint</source>
        <translation>شريط على امتداد الحافة اليمنى لكل مجموعة، للنصوص التي تُقرأ من اليمين إلى اليسار.</translation>
    </message>
    <message>
        <source>Bind Top Edge Hint</source>
        <translation>شريط على امتداد الحافة العليا لكل مجموعة، كما في دفاتر الملاحظات.</translation>
    </message>
    <message>
        <source>Bind Limits</source>
        <translation>يجب أن تكون كل أوراق المجموعة بالحجم نفسه.</translation>
    </message>
    <!-- What a choice does besides -->
    <message>
        <source>Finishing Replaced</source>
        <translation>المهمة معيَّنة الآن على «&#x2068;%1&#x2069;»، وزر «موافق» يستبدل ذلك.</translation>
    </message>
    <message>
        <source>Finishing Ends Booklet</source>
        <translation>زر «موافق» يوقف تخطيط الكتيب.</translation>
    </message>
    <!-- Offset -->
    <message>
        <source>Offset Title</source>
        <translation>الإزاحة</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>&amp;الإزاحة:</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>الإزاحة</translation>
    </message>
    <message>
        <source>No Offset</source>
        <translation>بلا إزاحة</translation>
    </message>
    <message>
        <source>Offset Sets</source>
        <translation>بين المجموعات</translation>
    </message>
    <message>
        <source>Offset Subsets</source>
        <translation>بين المجموعات الفرعية</translation>
    </message>
    <message>
        <source>Offset Sets and Subsets</source>
        <translation>بين المجموعات والمجموعات الفرعية</translation>
    </message>
    <message>
        <source>Offset Subsets Switch</source>
        <translation>&amp;تقسيم كل مجموعة إلى مجموعات فرعية</translation>
    </message>
    <message>
        <source>Pages per Subset:</source>
        <translation>&amp;عدد الصفحات في المجموعة الفرعية:</translation>
    </message>
    <message>
        <source>Pages per Subset</source>
        <translation>عدد الصفحات في المجموعة الفرعية</translation>
    </message>
    <message>
        <source>Offset Hint</source>
        <translation>المجموعات هي نُسخ المستند، والمجموعات الفرعية أجزاء من المجموعة. ما يُزاح يوضع منحرفًا قليلًا إلى جانب ما خرج قبله. إذا كان عدد الصفحات في المجموعة الفرعية 0، يقرر الجهاز ذلك.</translation>
    </message>
    <!-- Custom finishing -->
    <message>
        <source>Custom Finishing Title</source>
        <translation>تشطيب مخصص</translation>
    </message>
    <message>
        <source>Finishing Label</source>
        <translation>&amp;تعليمات التشطيب:</translation>
    </message>
    <message>
        <source>Custom Finishing</source>
        <translation>تعليمات التشطيب</translation>
    </message>
    <message>
        <source>Remove Custom Finishing</source>
        <translation>إ&amp;زالة</translation>
    </message>
    <message>
        <source>Custom Finishing Hint</source>
        <translation>لمشغِّل الجهاز، بكلماتك أنت. تُرسل مع المهمة ويمكن أن تبلغ 255 حرفًا؛ ويتطلب زر «موافق» حرفًا واحدًا على الأقل.</translation>
    </message>
    <!-- Separators -->
    <message>
        <source>Separators Title</source>
        <translation>فواصل الشفافيات</translation>
    </message>
    <message>
        <source>Separator Hint</source>
        <translation>الفاصل ورقة توضع بين شفافيتين كي لا تلتصقا.</translation>
    </message>
    <message>
        <source>No Separators on This Device</source>
        <translation>لا يستطيع هذا الجهاز وضع فواصل بين الشفافيات.</translation>
    </message>
    <message>
        <source>Separators:</source>
        <translation>ال&amp;فواصل:</translation>
    </message>
    <message>
        <source>Separator Source:</source>
        <translation>&amp;مصدر الورق:</translation>
    </message>
    <message>
        <source>Separator Source</source>
        <translation>مصدر الورق</translation>
    </message>
    <message>
        <source>Separator Color:</source>
        <translation>ال&amp;لون في الصورة:</translation>
    </message>
    <message>
        <source>Separator Color</source>
        <translation>اللون في الصورة</translation>
    </message>
    <message>
        <source>Separator Color Hint</source>
        <translation>يغيّر الصورة فقط. للفواصل لون الورق الموجود في المصدر.</translation>
    </message>

    <!-- What print dialogs say of a job -->
    <message>
        <source>Offset with Subsets in Words</source>
        <translation>&#x2068;%1&#x2069;، عدد الصفحات في المجموعة الفرعية: &#x2068;%2&#x2069;</translation>
    </message>
    <message>
        <source>Bind Absent in Words</source>
        <translation>&#x2068;%1&#x2069;، لكن لا توجد وحدة تجليد بالشريط في هذا الجهاز</translation>
    </message>
    <message>
        <source>Slip Sheets in Words</source>
        <translation>الأوراق الفاصلة:</translation>
    </message>
    <message>
        <source>Finished Set Spoken</source>
        <translation>كيف تخرج الأوراق</translation>
    </message>
    <message>
        <source>1 Staple in Corner</source>
        <translation>دبوس واحد في الزاوية العليا اليسرى</translation>
    </message>
    <message>
        <source>2 Staples at Edge</source>
        <translation>دبوسان على الحافة اليسرى</translation>
    </message>
    <message>
        <source>Multiple Staples at Edge</source>
        <translation>عدة دبابيس على الحافة اليسرى</translation>
    </message>
    <message>
        <source>2 Holes at Edge</source>
        <translation>ثقبان على الحافة اليسرى</translation>
    </message>
    <message>
        <source>3 Holes at Edge</source>
        <translation>3 ثقوب على الحافة اليسرى</translation>
    </message>
    <message>
        <source>4 Holes at Edge</source>
        <translation>4 ثقوب على الحافة اليسرى</translation>
    </message>
    <message>
        <source>Holes Set at Device</source>
        <translation>ثقوب بحسب إعداد الجهاز</translation>
    </message>
    <message>
        <source>Tape at Left Edge</source>
        <translation>شريط على الحافة اليسرى</translation>
    </message>
    <message>
        <source>Tape at Right Edge</source>
        <translation>شريط على الحافة اليمنى</translation>
    </message>
    <message>
        <source>Tape at Top Edge</source>
        <translation>شريط على الحافة العليا</translation>
    </message>
    <message>
        <source>Sets Lie Offset</source>
        <translation>مجموعات مُزاحة</translation>
    </message>
    <message>
        <source>Subsets Lie Offset</source>
        <translation>مجموعات فرعية مُزاحة</translation>
    </message>
    <message>
        <source>Sets and Subsets Lie Offset</source>
        <translation>مجموعات ومجموعات فرعية مُزاحة</translation>
    </message>
</context>
</TS>

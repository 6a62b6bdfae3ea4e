<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <!-- Covers -->
    <message>
        <source>Covers Title</source>
        <translation>الأغلفة</translation>
    </message>
    <message>
        <source>Cover Options:</source>
        <translation>&amp;الأغلفة:</translation>
    </message>
    <message>
        <source>Front and Back the Same</source>
        <translation>الأمامي والخلفي متماثلان</translation>
    </message>
    <message>
        <source>Front Cover</source>
        <translation>الغلاف الأمامي</translation>
    </message>
    <message>
        <source>Front Cover Left Out</source>
        <translation>ليس للغلاف الأمامي مصدر ورق: ستتركه الطابعة.</translation>
    </message>
    <message>
        <source>Back Cover Left Out</source>
        <translation>ليس للغلاف الخلفي مصدر ورق: ستتركه الطابعة.</translation>
    </message>
    <message>
        <source>Back Cover</source>
        <translation>الغلاف الخلفي</translation>
    </message>
    <message>
        <source>Front Cover Paper...</source>
        <translation>اختيار ال&amp;ورق</translation>
    </message>
    <message>
        <source>Front Cover Paper</source>
        <translation>ورق الغلاف الأمامي</translation>
    </message>
    <message>
        <source>Front Cover Summary</source>
        <translation>ورق الغلاف الأمامي، ملخص</translation>
    </message>
    <message>
        <source>Front Cover Source:</source>
        <translation>م&amp;صدر الورق:</translation>
    </message>
    <message>
        <source>Front Cover Source</source>
        <translation>مصدر ورق الغلاف الأمامي</translation>
    </message>
    <message>
        <source>Front Cover Sides:</source>
        <translation>حالة ال&amp;غلاف:</translation>
    </message>
    <message>
        <source>Front Cover Sides</source>
        <translation>حالة الغلاف الأمامي</translation>
    </message>
    <message>
        <source>Cover Sides Tip</source>
        <translation>على الغلاف المطبوع تُطبع صفحة من المستند، أما الفارغ أو المطبوع مسبقًا فيبقى كما هو.</translation>
    </message>
    <message>
        <source>Back Cover Paper...</source>
        <translation>ا&amp;ختيار الورق</translation>
    </message>
    <message>
        <source>Back Cover Paper</source>
        <translation>ورق الغلاف الخلفي</translation>
    </message>
    <message>
        <source>Back Cover Summary</source>
        <translation>ورق الغلاف الخلفي، ملخص</translation>
    </message>
    <message>
        <source>Back Cover Source:</source>
        <translation>&amp;مصدر الورق:</translation>
    </message>
    <message>
        <source>Back Cover Source</source>
        <translation>مصدر ورق الغلاف الخلفي</translation>
    </message>
    <message>
        <source>Back Cover Sides:</source>
        <translation>&amp;حالة الغلاف:</translation>
    </message>
    <message>
        <source>Back Cover Sides</source>
        <translation>حالة الغلاف الخلفي</translation>
    </message>
    <message>
        <source>Cover Source Not Set</source>
        <translation>غير معيَّن</translation>
    </message>
    <message>
        <source>Front Cover Left Out Header</source>
        <translation>سيُترك الغلاف الأمامي</translation>
    </message>
    <message>
        <source>Back Cover Left Out Header</source>
        <translation>سيُترك الغلاف الخلفي</translation>
    </message>
    <message>
        <source>Covers Left Out Header</source>
        <translation>سيُترك الغلافان</translation>
    </message>
    <message>
        <source>Cover Go Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Cover Leave Out</source>
        <translation>ترك</translation>
    </message>
    <message>
        <source>Cover Source Missing</source>
        <translation>تترك الطابعة هذا الغلاف إلى أن تختار مصدر ورق.</translation>
    </message>
    <message>
        <source>Cover Source Inserter</source>
        <translation>لا تأتي الأغلفة من وحدة الإدراج. تترك الطابعة هذا الغلاف إلى أن تختار مصدر ورق.</translation>
    </message>
    <message>
        <source>Cover Source Automatic</source>
        <translation>تختار الطابعة الدرج.</translation>
    </message>
    <message>
        <source>Cover Source Chosen</source>
        <translation>تأخذ الطابعة الورق الموجود في هذا المصدر.</translation>
    </message>
    <message>
        <source>Job Paper</source>
        <translation>«استخدام إعداد المهمة» يعني ورق المهمة: &#x2068;%1&#x2069;.</translation>
    </message>
    <!-- Inserts -->
    <message>
        <source>Inserts Title</source>
        <translation>الأوراق المدرجة</translation>
    </message>
    <message>
        <source>Insert Position:</source>
        <translation>ا&amp;لإدراج:</translation>
    </message>
    <message>
        <source>Insert Pages:</source>
        <translation>ال&amp;صفحات:</translation>
    </message>
    <message>
        <source>Insert Pages Hint</source>
        <translation>توضع الأوراق بعد كل من هذه الصفحات. أمثلة: &#x2066;2,5&#x2069; · &#x2066;3-7&#x2069; · &#x2066;12-&#x2069; (من الصفحة 12 فصاعدًا)</translation>
    </message>
    <message>
        <source>Insert Quantity:</source>
        <translation>&amp;عدد الأوراق:</translation>
    </message>
    <message>
        <source>Insert Paper...</source>
        <translation>&amp;اختيار الورق</translation>
    </message>
    <message>
        <source>Insert Paper</source>
        <translation>ورق الإدراج</translation>
    </message>
    <message>
        <source>Insert Summary</source>
        <translation>ورق الإدراج، ملخص</translation>
    </message>
    <!-- Exception pages -->
    <message>
        <source>Exceptions Title</source>
        <translation>الصفحات الاستثنائية</translation>
    </message>
    <message>
        <source>Exception Pages:</source>
        <translation>ال&amp;صفحات:</translation>
    </message>
    <message>
        <source>Exception Pages Hint</source>
        <translation>أمثلة: &#x2066;2,5&#x2069; · &#x2066;3-7&#x2069; · &#x2066;12-&#x2069; (من الصفحة 12 فصاعدًا)</translation>
    </message>
    <message>
        <source>Exception Tabs</source>
        <translation>إعدادات هذه الصفحات</translation>
    </message>
    <message>
        <source>Exception Paper and Sides</source>
        <translation>ال&amp;ورق والأوجه</translation>
    </message>
    <message>
        <source>Exception Image</source>
        <translation>ا&amp;لصورة</translation>
    </message>
    <message>
        <source>Exception Paper...</source>
        <translation>ا&amp;ختيار الورق</translation>
    </message>
    <message>
        <source>Exception Paper</source>
        <translation>ورق الاستثناء</translation>
    </message>
    <message>
        <source>Exception Summary</source>
        <translation>ورق الاستثناء، ملخص</translation>
    </message>
    <message>
        <source>Exception Tab Shift:</source>
        <translation>إزاحة ال&amp;هامش نحو اللسان:</translation>
    </message>
    <message>
        <source>Exception Tab Shift...</source>
        <translation>إ&amp;عداد…</translation>
    </message>
    <message>
        <source>Exception Tab Shift</source>
        <translation>إعداد إزاحة الهامش نحو اللسان</translation>
    </message>
    <message>
        <source>Exception Tab Shift Tip</source>
        <translation>مقدار إزاحة الصورة المطبوعة نحو ألسنة ورق الألسنة</translation>
    </message>
    <message>
        <source>Tab Shift Not Needed</source>
        <translation>لورق الألسنة فقط</translation>
    </message>
    <message>
        <source>Tab Shift Words Inches</source>
        <translation>%1 بوصة</translation>
    </message>
    <message>
        <source>Tab Shift Words Millimeters</source>
        <translation>%1 مم</translation>
    </message>
    <message>
        <source>Exception Sides:</source>
        <translation>&amp;الأوجه:</translation>
    </message>
    <message>
        <source>Exception Lightness:</source>
        <translation>&amp;تفتيح/تغميق:</translation>
    </message>
    <message>
        <source>Job Setting Hint</source>
        <translation>«استخدام إعداد المهمة» يعني: &#x2068;%1&#x2069;.</translation>
    </message>
    <!-- Notices -->
    <message>
        <source>Page Number Limit Title</source>
        <translation>رقم الصفحة أكبر من اللازم</translation>
    </message>
    <message>
        <source>Page Number Limit</source>
        <translation>يتكون رقم الصفحة من %1 من الأرقام على الأكثر. صحّح الصفحات واختر «موافق» مجددًا.</translation>
    </message>
    <message>
        <source>Invalid Pages Title</source>
        <translation>لا يمكن قراءة الصفحات</translation>
    </message>
    <message>
        <source>Invalid Page Ranges</source>
        <translation>اكتب أرقام صفحات، ونطاقات بشرطة واحدة، مفصولة بفواصل لاتينية. أمثلة: &#x2066;2,5&#x2069; أو &#x2066;3-7&#x2069;. يبدأ النطاق &#x2066;12-&#x2069; من الصفحة 12 ويستمر حتى الصفحة الأخيرة.</translation>
    </message>
    <message>
        <source>Invalid Ranges Title</source>
        <translation>نطاق صفحات معكوس</translation>
    </message>
    <message>
        <source>Invalid Range Order</source>
        <translation>تأتي الصفحة الأولى من النطاق قبل الأخيرة. اكتب &#x2066;3-7&#x2069; بدلًا من &#x2066;7-3&#x2069;.</translation>
    </message>
    <message>
        <source>Invalid Page Numbers Title</source>
        <translation>لا توجد صفحة 0</translation>
    </message>
    <message>
        <source>Invalid Page Numbers Message</source>
        <translation>تُعدّ الصفحات بدءًا من 1. ابدأ النطاق بالصفحة 1 أو بصفحة بعدها.</translation>
    </message>
    <message>
        <source>Too Many Inserts Title</source>
        <translation>عدد الأوراق المدرجة أكبر من اللازم</translation>
    </message>
    <message>
        <source>Too Many Inserts Message</source>
        <translation>تتسع قائمة الصفحات الخاصة لعدد %1 من الإدراجات على الأكثر، وبهذه الصفحات يتجاوز العدد ذلك. اختر صفحات أقل. لوضع عدة أوراق في موضع واحد، أنشئ إدراجًا واحدًا وعيّن عدد أوراقه.</translation>
    </message>
    <message>
        <source>PageRangeConflictTitle</source>
        <translation>نطاقات الصفحات متداخلة</translation>
    </message>
    <message>
        <source>PageRangeConflictMessage</source>
        <translation>لا يمكن أن تكون الصفحة إلا في نطاق واحد. غيّر النطاقات بحيث لا تشترك في أي صفحة.</translation>
    </message>
    <message>
        <source>Delete Special Pages Title</source>
        <translation>هل تريد حذف الصفحات الخاصة؟</translation>
    </message>
    <message>
        <source>Delete Selected Special Pages</source>
        <translation>تُزال من المهمة الأغلفة والأوراق المدرجة والصفحات الاستثنائية المحددة. يعيدها زر «تراجع».</translation>
    </message>
    <message>
        <source>Delete All Special Pages</source>
        <translation>تُزال من المهمة كل الأغلفة والأوراق المدرجة والصفحات الاستثنائية. يعيدها زر «تراجع».</translation>
    </message>
    <message>
        <source>No Command</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Yes Command</source>
        <translation>نعم</translation>
    </message>

    <!-- What print dialogs say of special pages -->
    <message>
        <source>Inserts in Words</source>
        <translation>الأوراق المدرجة:</translation>
    </message>
    <message>
        <source>Exception Pages in Words</source>
        <translation>الصفحات الاستثنائية:</translation>
    </message>
    <message>
        <source>More Pages in Words</source>
        <translation>%1 و%2 غيرها</translation>
    </message>
    <message>
        <source>Insert in Preview</source>
        <translation>ورقة مدرجة</translation>
    </message>
    <message>
        <source>Exception in Preview</source>
        <translation>الاستثناء &#x2066;%1&#x2069;</translation>
    </message>
    <message>
        <source>Insert in Words</source>
        <translation>بعد الصفحة &#x2068;%1&#x2069; (&#x2068;%2&#x2069;)</translation>
    </message>
    <message>
        <source>Insert before Page 1 in Words</source>
        <translation>قبل الصفحة 1 (&#x2068;%1&#x2069;)</translation>
    </message>
</context>
</TS>

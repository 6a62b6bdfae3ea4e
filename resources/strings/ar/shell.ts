<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>PDE Shell</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>خيارات متقدمة</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>علامة التبويب السابقة</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>علامة التبويب التالية</translation>
    </message>
    <message>
        <source>Tab Selector</source>
        <translation>إعدادات الجهاز</translation>
    </message>
    <message>
        <source>Advanced Introduction</source>
        <translation>إعدادات تبقى كما هي في معظم المهام.</translation>
    </message>
    <message>
        <source>Booklet Image Order:</source>
        <translation>ترتيب صور ال&amp;كتيب:</translation>
    </message>
    <message>
        <source>Booklet Image Order</source>
        <translation>ترتيب صور الكتيب</translation>
    </message>
    <message>
        <source>Booklet Image Order Hint</source>
        <translation>الاتجاه الذي تتتابع فيه صفحات الكتيب.</translation>
    </message>
    <message>
        <source>Banner Sheet:</source>
        <translation>و&amp;رقة التعريف:</translation>
    </message>
    <message>
        <source>Banner Sheet</source>
        <translation>ورقة التعريف</translation>
    </message>
    <message>
        <source>Banner Sheet Hint</source>
        <translation>ورقة تسبق المهمة وتذكر صاحبها.</translation>
    </message>
    <message>
        <source>Request Offset:</source>
        <translation>طلب الإ&amp;زاحة:</translation>
    </message>
    <message>
        <source>Request Offset</source>
        <translation>طلب الإزاحة</translation>
    </message>
    <message>
        <source>Request Offset Hint</source>
        <translation>يزيح كل مجموعة مكتملة في الدرج ليسهل التمييز بين المجموعات.</translation>
    </message>
    <message>
        <source>Bypass Feed Edge Label</source>
        <translation>حافة &amp;درج التغذية اليدوية:</translation>
    </message>
    <message>
        <source>Bypass Feed Edge</source>
        <translation>حافة درج التغذية اليدوية</translation>
    </message>
    <message>
        <source>Bypass Feed Edge Hint</source>
        <translation>حافة الورق التي تدخل أولًا إلى درج التغذية اليدوية.</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>&amp;حول…</translation>
    </message>
    <message>
        <source>About Title</source>
        <translation>حول لوحات Corvane</translation>
    </message>
    <message>
        <source>About Product</source>
        <translation>لوحات Kelvo Corvane</translation>
    </message>
    <message>
        <source>About Description</source>
        <translation>إعدادات الورق والتشطيب والمهام لأجهزة Corvane في مربع حوار الطباعة.</translation>
    </message>
    <message>
        <source>About Picture</source>
        <translation>الجهاز مع الملحقات المركّبة فيه</translation>
    </message>
    <message>
        <source>About Panels:</source>
        <translation>اللوحات:</translation>
    </message>
    <message>
        <source>About Program:</source>
        <translation>البرنامج:</translation>
    </message>
    <message>
        <source>About Device:</source>
        <translation>الجهاز:</translation>
    </message>
    <message>
        <source>About Device Not Known</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>About Printer:</source>
        <translation>الطابعة:</translation>
    </message>
    <message>
        <source>About PPD:</source>
        <translation>ملف الوصف:</translation>
    </message>
    <message>
        <source>About PPD Version</source>
        <translation>الإصدار &#x2066;%1&#x2069;</translation>
    </message>
    <message>
        <source>About Fitted:</source>
        <translation>الملحقات المركّبة:</translation>
    </message>
    <message>
        <source>About Nothing Fitted</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>About Paper Trays:</source>
        <translation>أدراج الورق:</translation>
    </message>
    <message>
        <source>About Output Trays:</source>
        <translation>أدراج الإخراج:</translation>
    </message>
    <message>
        <source>About System:</source>
        <translation>النظام:</translation>
    </message>
    <message>
        <source>About Language:</source>
        <translation>اللغة:</translation>
    </message>
    <message>
        <source>About Locale:</source>
        <translation>المنطقة:</translation>
    </message>
    <message>
        <source>About Window System:</source>
        <translation>نظام النوافذ:</translation>
    </message>
    <message>
        <source>About Libraries:</source>
        <translation>المكتبات المستخدمة:</translation>
    </message>
    <message>
        <source>About Libraries Label</source>
        <translation>المكتبات المست&amp;خدمة:</translation>
    </message>
    <message>
        <source>About Libraries</source>
        <translation>المكتبات المستخدمة</translation>
    </message>
    <message>
        <source>About Library</source>
        <translation>&#x2066;%1 – %2 – %3&#x2069;</translation>
    </message>
    <message>
        <source>About Libraries Hint</source>
        <translation>مع تراخيصها وأبرز مؤلفيها. أما تراخيص المكتبات التي تأتي معها فتذكرها حزم نظامك.</translation>
    </message>
    <message>
        <source>About Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>About Copy Hint</source>
        <translation>ينسخ كل هذا وبيانات نظامك لإرسالها إلى الدعم، من دون أسماء أشخاص ولا رموز مرور.</translation>
    </message>
    <message>
        <source>About Copied</source>
        <translation>نُسخ إلى الحافظة.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Invalid Secure Print Passcode Header</source>
        <translation>تحقق من رمز المرور</translation>
    </message>
    <message>
        <source>Invalid Secure Print Passcode Message</source>
        <translation>تحتاج المهمة إلى رمز مرور من %1 إلى %2 من الأرقام. اكتبه مرتين بالقيمة نفسها عبر زر «إعداد…» بجانب نوع المهمة. تُطبع المهمة عند إدخال رمز المرور على الجهاز.</translation>
    </message>
    <message>
        <source>NoFaxDevice Header</source>
        <translation>لا تستطيع هذه الطابعة إرسال الفاكسات</translation>
    </message>
    <message>
        <source>NoFaxDevice Message</source>
        <translation>اختر طابعة تستطيع ذلك، أو نوع مهمة آخر.</translation>
    </message>
    <message>
        <source>FaxRecipientsMissing Header</source>
        <translation>لا مستلمين للفاكس</translation>
    </message>
    <message>
        <source>FaxRecipientsMissing Message</source>
        <translation>أضف مستلمًا واحدًا على الأقل في إعدادات الفاكس قبل إرساله.</translation>
    </message>
</context>
</TS>

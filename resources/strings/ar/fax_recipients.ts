<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <message>
        <source>Add Recipient Title</source>
        <translation>إضافة مستلم</translation>
    </message>
    <message>
        <source>Edit Recipient Title</source>
        <translation>تحرير المستلم</translation>
    </message>
    <message>
        <source>Recipient First Name:</source>
        <translation>ا&amp;لاسم الأول:</translation>
    </message>
    <message>
        <source>Recipient Last Name:</source>
        <translation>&amp;اسم العائلة:</translation>
    </message>
    <message>
        <source>Recipient Fax Number:</source>
        <translation>&amp;رقم الفاكس:</translation>
    </message>
    <message>
        <source>Recipient Organization:</source>
        <translation>ال&amp;مؤسسة:</translation>
    </message>
    <message>
        <source>Recipient Phone:</source>
        <translation>ال&amp;هاتف:</translation>
    </message>
    <message>
        <source>Recipient Email:</source>
        <translation>ال&amp;بريد الإلكتروني:</translation>
    </message>
    <message>
        <source>Recipient Mailbox:</source>
        <translation>&amp;صندوق البريد:</translation>
    </message>
    <message>
        <source>Recipient Mailbox Hint</source>
        <translation>صندوق بريد على الجهاز المستلم. إذا تُرك فارغًا، يصل الفاكس إلى درج الجهاز.</translation>
    </message>
    <message>
        <source>Fax Number Missing Hint</source>
        <translation>لا يمكن إرسال الفاكس من دون رقم.</translation>
    </message>
    <message>
        <source>Fax Number Not Dialable Hint</source>
        <translation>لا يمكن طلب أي من هذه الأحرف.</translation>
    </message>
    <message>
        <source>Fax Number Dialed Hint</source>
        <translation>سيُطلب: &#x2066;%1&#x2069;</translation>
    </message>
    <message>
        <source>Fax Number Too Long Hint</source>
        <translation>سيُطلب من هذا عدد من الأحرف قدره %1، والأجهزة تطلب %2 على الأكثر.</translation>
    </message>
    <message>
        <source>Fax Number Label Hint</source>
        <translation>نوع الرقم: %1</translation>
    </message>
    <message>
        <source>Fax Label Work</source>
        <translation>العمل</translation>
    </message>
    <message>
        <source>Fax Label Home</source>
        <translation>المنزل</translation>
    </message>
    <message>
        <source>Fax Label Other</source>
        <translation>آخر</translation>
    </message>
    <message>
        <source>Fax Number Refused Header</source>
        <translation>رقم الفاكس مفقود</translation>
    </message>
    <message>
        <source>Fax Number Missing Message</source>
        <translation>اكتب الرقم الذي يُرسل إليه الفاكس.</translation>
    </message>
    <message>
        <source>Fax Number Not Dialable Message</source>
        <translation>لا يمكن طلب أي حرف من «&#x2066;%1&#x2069;». اكتب أرقامًا؛ ويمكن أيضًا طلب &#x2066;* # = : ! , / S $ &lt; &gt; A B C D&#x2069;.</translation>
    </message>
    <message>
        <source>Address Book Title</source>
        <translation>إضافة من دفتر العناوين</translation>
    </message>
    <message>
        <source>People Source:</source>
        <translation>البحث &amp;في:</translation>
    </message>
    <message>
        <source>People Source Address Book</source>
        <translation>دفتر العناوين</translation>
    </message>
    <message>
        <source>People Source Recent</source>
        <translation>المستخدمون مؤخرًا</translation>
    </message>
    <message>
        <source>People Source Cards</source>
        <translation>ملفات vCard</translation>
    </message>
    <message>
        <source>Choose Cards Command</source>
        <translation>م&amp;لفات vCard…</translation>
    </message>
    <message>
        <source>Clear Recent Command</source>
        <translation>&amp;مسح</translation>
    </message>
    <message>
        <source>People Search:</source>
        <translation>&amp;بحث:</translation>
    </message>
    <message>
        <source>People Search Hint</source>
        <translation>الاسم أو المؤسسة أو البريد الإلكتروني أو الرقم</translation>
    </message>
    <message>
        <source>People List</source>
        <translation>الأشخاص والمجموعات الذين عُثر عليهم</translation>
    </message>
    <message>
        <source>People Name Column</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>People Organization Column</source>
        <translation>المؤسسة</translation>
    </message>
    <message>
        <source>People Number Column</source>
        <translation>رقم الفاكس</translation>
    </message>
    <message>
        <source>People State Column</source>
        <translation>هذا الفاكس</translation>
    </message>
    <message>
        <source>People In List</source>
        <translation>مضاف</translation>
    </message>
    <message>
        <source>People Number With Label</source>
        <translation>&#x2066;%1&#x2069; (%2)</translation>
    </message>
    <message>
        <source>People Group</source>
        <translation>مجموعة، لا أحد فيها لديه رقم فاكس</translation>
    </message>
    <message>
        <source>People Group of One</source>
        <translation>مجموعة، شخص واحد</translation>
    </message>
    <message>
        <source>People Group of Several</source>
        <translation>مجموعة، عدد الأشخاص: %1</translation>
    </message>
    <message>
        <source>Reading Address Book</source>
        <translation>تجري قراءة دفتر العناوين…</translation>
    </message>
    <message>
        <source>Reading Cards</source>
        <translation>تجري قراءة الملفات…</translation>
    </message>
    <message>
        <source>Person Without Name</source>
        <translation>(بلا اسم)</translation>
    </message>
    <message>
        <source>Books Unread</source>
        <translation>تعذّرت قراءة دفاتر العناوين هذه: &#x2068;%1&#x2069;.</translation>
    </message>
    <message>
        <source>Address Book Unread</source>
        <translation>لا يمكن قراءة دفتر العناوين: %1.</translation>
    </message>
    <message>
        <source>Address Book Unread Advice</source>
        <translation>تبقى إضافة المستلمين المستخدمين مؤخرًا وملفات vCard ممكنة.</translation>
    </message>
    <message>
        <source>Address Book Empty</source>
        <translation>دفتر العناوين فارغ.</translation>
    </message>
    <message>
        <source>Recent Empty</source>
        <translation>لم يُرسل فاكس إلى أحد بعد.</translation>
    </message>
    <message>
        <source>Cards Empty</source>
        <translation>أسقط ملفات vCard هنا، أو اخترها من الأعلى.</translation>
    </message>
    <message>
        <source>Nobody Has Fax Number</source>
        <translation>لا أحد هنا لديه رقم فاكس.</translation>
    </message>
    <message>
        <source>Nobody Found</source>
        <translation>لم يُعثر على أحد.</translation>
    </message>
    <message>
        <source>One Without Fax Number</source>
        <translation>هناك شخص واحد بلا رقم فاكس، وهو غير معروض.</translation>
    </message>
    <message>
        <source>People Without Fax Number</source>
        <translation>الأشخاص بلا رقم فاكس غير معروضين، وعددهم: %1.</translation>
    </message>
    <message>
        <source>Nobody Added</source>
        <translation>لم يُضف أحد.</translation>
    </message>
    <message>
        <source>One Person Added</source>
        <translation>أُضيف مستلم واحد.</translation>
    </message>
    <message>
        <source>People Added</source>
        <translation>عدد المستلمين المضافين: %1.</translation>
    </message>
    <message>
        <source>One Already There</source>
        <translation>استُبعد شخص واحد لأنه موجود في القائمة.</translation>
    </message>
    <message>
        <source>People Already There</source>
        <translation>عدد من استُبعدوا لأنهم موجودون في القائمة: %1.</translation>
    </message>
    <message>
        <source>One Not Added Again</source>
        <translation>لم يُضف شخص واحد مرة أخرى.</translation>
    </message>
    <message>
        <source>Not Added Again</source>
        <translation>عدد من لم يُضافوا مرة أخرى: %1.</translation>
    </message>
    <message>
        <source>Members Without Number</source>
        <translation>بلا رقم فاكس: &#x2068;%1&#x2069;</translation>
    </message>
    <message>
        <source>Names and Others</source>
        <translation>%1 وغيرهم (%2)</translation>
    </message>
    <message>
        <source>Add People Command</source>
        <translation>إ&amp;ضافة</translation>
    </message>
    <message>
        <source>Close Picker Command</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>Clear Recent Header</source>
        <translation>هل تريد مسح المستلمين المستخدمين مؤخرًا؟</translation>
    </message>
    <message>
        <source>Clear Recent Message</source>
        <translation>لا يمكن التراجع عن ذلك. تبقى قائمة هذا الفاكس كما هي.</translation>
    </message>
    <message>
        <source>Clear Recent Failed</source>
        <translation>تعذّر مسح المستلمين المستخدمين مؤخرًا</translation>
    </message>
    <message>
        <source>Clear Recent Failed Message</source>
        <translation>تحقق من إمكان الكتابة في مجلد تفضيلاتك.</translation>
    </message>
    <message>
        <source>Clear Recent</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Cards Chooser</source>
        <translation>ملفات vCard</translation>
    </message>
    <message>
        <source>Cards Kinds</source>
        <translation>ملفات vCard</translation>
    </message>
    <message>
        <source>Cards All Files</source>
        <translation>كل الملفات</translation>
    </message>
    <message>
        <source>Cards Problems Header</source>
        <translation>لم تُقرأ كل البطاقات</translation>
    </message>
    <message>
        <source>Cards Damaged One</source>
        <translation>&#x2068;%1&#x2069;: توجد بطاقة واحدة تالفة، وقد استُبعدت.</translation>
    </message>
    <message>
        <source>Cards Damaged Several</source>
        <translation>&#x2068;%1&#x2069;: البطاقات التالفة التي استُبعدت: %2.</translation>
    </message>
    <message>
        <source>Cards Not Local</source>
        <translation>&#x2068;%1&#x2069; ليس على هذا الكمبيوتر؛ احفظه هنا أولًا.</translation>
    </message>
    <message>
        <source>Cards More Problems</source>
        <translation>وغيرها: %1.</translation>
    </message>
    <message>
        <source>No Thread to Read With</source>
        <translation>لا يستطيع النظام بدء عملية أخرى؛ أغلق برامج أخرى وحاول مجددًا.</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>LANFax</name>
    <message>
        <source>Duplicate Recipient Header</source>
        <translation>هذا المستلم موجود في القائمة</translation>
    </message>
    <message>
        <source>Duplicate Recipient Message</source>
        <translation>&#x2068;%1&#x2069; (&#x2066;%2&#x2069;) سيستلم هذا الفاكس بالفعل. هل تريد إضافة هذا المستلم مرة أخرى؟</translation>
    </message>
    <message>
        <source>Remove One Recipient Header</source>
        <translation>هل تريد إزالة هذا المستلم؟</translation>
    </message>
    <message>
        <source>Remove One Recipient Message</source>
        <translation>&#x2068;%1&#x2069; (&#x2066;%2&#x2069;) لن يستلم هذا الفاكس.</translation>
    </message>
    <message>
        <source>Remove Multiple Recipients Header</source>
        <translation>هل تريد إزالة هؤلاء المستلمين؟</translation>
    </message>
    <message>
        <source>Remove Multiple Recipients Message</source>
        <translation>عدد المستلمين الذين لن يستلموا هذا الفاكس: %1.</translation>
    </message>
    <message>
        <source>From Label</source>
        <translation>من:</translation>
    </message>
    <message>
        <source>To Label</source>
        <translation>إلى:</translation>
    </message>
    <message>
        <source>Notes Label</source>
        <translation>ملاحظات:</translation>
    </message>
    <message>
        <source>Phone Label</source>
        <translation>الهاتف</translation>
    </message>
    <message>
        <source>Fax Label</source>
        <translation>الفاكس</translation>
    </message>
    <message>
        <source>LAN Fax Title</source>
        <translation>إعداد الفاكس</translation>
    </message>
    <message>
        <source>Fax Tabs</source>
        <translation>أجزاء إعدادات الفاكس</translation>
    </message>
    <message>
        <source>Fax Recipients Tab</source>
        <translation>ال&amp;مستلمون</translation>
    </message>
    <message>
        <source>Fax Options Tab</source>
        <translation>&amp;الإرسال</translation>
    </message>
    <message>
        <source>Cover Sheet Tab</source>
        <translation>صفحة ال&amp;غلاف</translation>
    </message>
    <message>
        <source>Fax Recipients</source>
        <translation>مستلمو الفاكس</translation>
    </message>
    <message>
        <source>Recipient Name Column</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Recipient Number Column</source>
        <translation>رقم الفاكس</translation>
    </message>
    <message>
        <source>Recipient Organization Column</source>
        <translation>المؤسسة</translation>
    </message>
    <message>
        <source>Add Recipient Command</source>
        <translation>إ&amp;ضافة…</translation>
    </message>
    <message>
        <source>Address Book Command</source>
        <translation>&amp;دفتر العناوين…</translation>
    </message>
    <message>
        <source>Edit Recipient Command</source>
        <translation>&amp;تحرير…</translation>
    </message>
    <message>
        <source>Remove Recipients Command</source>
        <translation>إ&amp;زالة</translation>
    </message>
    <message>
        <source>Save Group Command</source>
        <translation>&amp;حفظ كمجموعة…</translation>
    </message>
    <message>
        <source>Remove All Recipients Command</source>
        <translation>إزالة ال&amp;كل</translation>
    </message>
    <message>
        <source>No Recipients Yet</source>
        <translation>لا أحد يستلم هذا الفاكس بعد. أضف مستلمًا واحدًا على الأقل.</translation>
    </message>
    <message>
        <source>One Recipient</source>
        <translation>مستلم واحد</translation>
    </message>
    <message>
        <source>Number of Recipients</source>
        <translation>عدد المستلمين: %1</translation>
    </message>
    <message>
        <source>No Address Book Hint</source>
        <translation>لا يمكن حفظ القائمة كمجموعة: %1.</translation>
    </message>
    <message>
        <source>Confirmation Sheet:</source>
        <translation>صفح&amp;ة التأكيد:</translation>
    </message>
    <message>
        <source>Confirmation Sheet Tip</source>
        <translation>يطبع الجهاز ورقة تبيّن هل وصل الفاكس.</translation>
    </message>
    <message>
        <source>Send Speed:</source>
        <translation>&amp;سرعة الإرسال:</translation>
    </message>
    <message>
        <source>Send Speed Tip</source>
        <translation>التلقائي مناسب في أغلب الأحوال، والسرعة الثابتة تفيد عند رداءة الخط.</translation>
    </message>
    <message>
        <source>Fax Resolution:</source>
        <translation>د&amp;قة الفاكس:</translation>
    </message>
    <message>
        <source>Fax Resolution Tip</source>
        <translation>كلما زادت الدقة سهلت القراءة وطال الإرسال.</translation>
    </message>
    <message>
        <source>Send Time:</source>
        <translation>وقت الإرسال:</translation>
    </message>
    <message>
        <source>Send Now</source>
        <translation>الآ&amp;ن</translation>
    </message>
    <message>
        <source>Send At:</source>
        <translation>&amp;في:</translation>
    </message>
    <message>
        <source>Send Time Field</source>
        <translation>الوقت الذي يُرسل فيه الفاكس</translation>
    </message>
    <message>
        <source>Sent Today</source>
        <translation>يُرسل الفاكس اليوم في %1.</translation>
    </message>
    <message>
        <source>Sent Tomorrow</source>
        <translation>يُرسل الفاكس غدًا في %1.</translation>
    </message>
    <message>
        <source>Sent Later</source>
        <translation>يُرسل الفاكس يوم %1 في %2.</translation>
    </message>
    <message>
        <source>Fax Dialing Options:</source>
        <translation>الطلب:</translation>
    </message>
    <message>
        <source>Dialing Prefix</source>
        <translation>&amp;طلب بادئة أولًا:</translation>
    </message>
    <message>
        <source>Dialing Prefix Field</source>
        <translation>بادئة الطلب</translation>
    </message>
    <message>
        <source>Dialing Prefix Hint</source>
        <translation>عدد الأحرف التي تطلبها الأجهزة %1 على الأكثر: أرقام و&#x2066;* # = : ! , / S $ &lt; &gt; A B C D&#x2069;. الفاصلة تعني الانتظار.</translation>
    </message>
    <message>
        <source>Cover Sheet Options:</source>
        <translation>&amp;صفحة الغلاف:</translation>
    </message>
    <message>
        <source>Cover Sheet Setup Command</source>
        <translation>إ&amp;عداد…</translation>
    </message>
    <message>
        <source>Cover Sheet Notes:</source>
        <translation>ملاح&amp;ظات على صفحة الغلاف:</translation>
    </message>
    <message>
        <source>Cover Sheet Preview</source>
        <translation>معاينة صفحة الغلاف</translation>
    </message>
    <message>
        <source>No Cover Sheet Hint</source>
        <translation>يبدأ الفاكس بالمستند.</translation>
    </message>
    <message>
        <source>Fax Preferences Command</source>
        <translation>ا&amp;لتفضيلات…</translation>
    </message>
    <message>
        <source>Max Characters Title</source>
        <translation>أرقام فاكس أطول من اللازم</translation>
    </message>
    <message>
        <source>Max Characters Message</source>
        <translation>تطلب الأجهزة %1 من الأحرف على الأكثر، بما في ذلك البادئة. هذه الأرقام أطول من ذلك: اختصرها، أو أزل المستلمين.</translation>
    </message>
    <message>
        <source>Too Long Recipients</source>
        <translation>المستلمون ذوو الأرقام الأطول من اللازم</translation>
    </message>
    <message>
        <source>Remove All Too Long Command</source>
        <translation>إزالة ال&amp;كل</translation>
    </message>
    <message>
        <source>Nothing Too Long</source>
        <translation>يمكن الآن طلب كل الأرقام.</translation>
    </message>
    <message>
        <source>Save Group Title</source>
        <translation>حفظ المستلمين كمجموعة</translation>
    </message>
    <message>
        <source>Group Name:</source>
        <translation>&amp;اسم المجموعة:</translation>
    </message>
    <message>
        <source>Saving Group</source>
        <translation>يجري الحفظ في دفتر العناوين…</translation>
    </message>
    <message>
        <source>Group Not Saved Header</source>
        <translation>لم تُحفظ المجموعة</translation>
    </message>
    <message>
        <source>Group Not Saved Message</source>
        <translation>لم يقبل دفتر العناوين المجموعة كلها. حاول مجددًا، أو تحقق من إمكان الكتابة في دفتر العناوين.</translation>
    </message>
    <message>
        <source>Required Field Header</source>
        <translation>تحتاج المجموعة إلى اسم</translation>
    </message>
    <message>
        <source>Group Name Required Message</source>
        <translation>اكتب الاسم الذي سيعرض دفتر العناوين هؤلاء المستلمين تحته.</translation>
    </message>
    <message>
        <source>Fax Preferences Dialog Title</source>
        <translation>تفضيلات الفاكس</translation>
    </message>
    <message>
        <source>User Preferences</source>
        <translation>السؤال قبل</translation>
    </message>
    <message>
        <source>Prompt Duplicate Recipient</source>
        <translation>إضافة &amp;مستلم موجود في القائمة</translation>
    </message>
    <message>
        <source>Prompt Remove Recipient</source>
        <translation>إ&amp;زالة مستلمين</translation>
    </message>
    <message>
        <source>Nameless in Words</source>
        <translation>(بلا اسم وبلا رقم)</translation>
    </message>
    <message>
        <source>Undialed in Words</source>
        <translation>&#x2068;%1&#x2069; (لا رقم يمكن طلبه)</translation>
    </message>
    <message>
        <source>Too Long in Words</source>
        <translation>&#x2068;%1&#x2069; (أطول من أن يُطلب)</translation>
    </message>
    <message>
        <source>And More Recipients</source>
        <translation>%1 و%2 غيرهم</translation>
    </message>
    <message>
        <source>No Recipients in Words</source>
        <translation>لا أحد بعد؛ أضف مستلمين في إعدادات الفاكس</translation>
    </message>
    <message>
        <source>Dialing Prefix in Words</source>
        <translation>بادئة الطلب</translation>
    </message>
    <message>
        <source>Cover Sheet in Short</source>
        <translation>مع صفحة غلاف</translation>
    </message>
    <message>
        <source>Cover Sheet in Words</source>
        <translation>صفحة غلاف الفاكس</translation>
    </message>
    <message>
        <source>Cover Image in Words</source>
        <translation>صورة صفحة الغلاف</translation>
    </message>
    <message>
        <source>Cover Image Absent in Words</source>
        <translation>«&#x2068;%1&#x2069;» ليست في قائمة صور الغلاف الخاصة بك</translation>
    </message>
</context>
</TS>

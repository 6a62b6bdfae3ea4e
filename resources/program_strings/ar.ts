<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Background</name>
    <message>
        <source>the system gives this program no thread, because too many processes run for this user or in this container; end some, or have the limit raised (ulimit -u), and try again</source>
        <translation>لا يخصص النظام مسار تنفيذ لهذا البرنامج، لأن عدد العمليات العاملة لهذا المستخدم أو في هذه الحاوية أكبر من اللازم؛ أنهِ بعضها، أو اطلب رفع الحد (&#x2066;ulimit -u&#x2069;)، ثم حاول مجددًا</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>a PDF file has room for one job: add --join, or name a folder</source>
        <translation>يتسع ملف PDF لمهمة واحدة: أضف --join أو سمِّ مجلدًا</translation>
    </message>
    <message>
        <source>write a PDF of what would be printed; with the
name of a folder, document.pdf, options and
ticket.plist into it, or into a folder there for
each of several jobs</source>
        <translation>كتابة ملف PDF لما سيُطبع؛ وباسم مجلد تُكتب فيه
document.pdf وoptions وticket.plist،
أو في مجلد فيه لكل مهمة من عدة مهام</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>This character cannot be used here.</source>
        <translation>لا يمكن استخدام هذا الحرف هنا.</translation>
    </message>
    <message>
        <source>There is no room for more here.</source>
        <translation>لا مكان هنا لمزيد من النص.</translation>
    </message>
    <message numerus="yes">
        <source>At most %n characters fit here.</source>
        <translation>
            <numerusform>لا يتسع هذا الحقل لأي حرف.</numerusform>
            <numerusform>يتسع هذا الحقل لحرف واحد على الأكثر.</numerusform>
            <numerusform>يتسع هذا الحقل لحرفين على الأكثر.</numerusform>
            <numerusform>يتسع هذا الحقل لعدد %n أحرف على الأكثر.</numerusform>
            <numerusform>يتسع هذا الحقل لعدد %n حرفًا على الأكثر.</numerusform>
            <numerusform>يتسع هذا الحقل لعدد %n حرف على الأكثر.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Delivery</name>
    <message>
        <source>check that it runs (lpstat -r), or name another one with CUPS_SERVER</source>
        <translation>تحقق من أنه يعمل (&#x2066;lpstat -r&#x2069;)، أو حدِّد خادمًا آخر بالمتغير CUPS_SERVER</translation>
    </message>
    <message>
        <source>nothing takes connections there</source>
        <translation>لا أحد يقبل الاتصالات هناك</translation>
    </message>
    <message>
        <source>no print server can be reached at %1: %2</source>
        <translation>لا يمكن الوصول إلى خادم طباعة على &#x2068;%1&#x2069;: %2</translation>
    </message>
    <message>
        <source>the print server at %1 did not answer for %2 s</source>
        <translation>لم يُجب خادم الطباعة على &#x2068;%1&#x2069; خلال %2 ث</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>أُلغي</translation>
    </message>
    <message>
        <source>the print server at %1 has no such printer; lpstat -e lists those it has</source>
        <translation>لا يعرف خادم الطباعة على &#x2068;%1&#x2069; طابعة كهذه؛ يسرد الأمر &#x2066;lpstat -e&#x2069; الطابعات التي يعرفها</translation>
    </message>
    <message>
        <source>the print server at %1 does not answer (%2)</source>
        <translation>لا يجيب خادم الطباعة على &#x2068;%1&#x2069; (%2)</translation>
    </message>
    <message>
        <source>the print server at %1 asks for a password, which this program cannot give; ask its administrator to let you print</source>
        <translation>يطلب خادم الطباعة على &#x2068;%1&#x2069; كلمة مرور لا يستطيع هذا البرنامج تقديمها؛ اطلب من مسؤوله السماح لك بالطباعة</translation>
    </message>
    <message>
        <source>the print server at %1 does not let you use this printer; ask its administrator</source>
        <translation>لا يسمح لك خادم الطباعة على &#x2068;%1&#x2069; باستخدام هذه الطابعة؛ اسأل مسؤوله</translation>
    </message>
    <message>
        <source>the print server at %1 said no: %2</source>
        <translation>رفض خادم الطباعة على &#x2068;%1&#x2069;: %2</translation>
    </message>
    <message>
        <source>no printer has such a name</source>
        <translation>لا توجد طابعة بهذا الاسم</translation>
    </message>
    <message>
        <source>the printer’s PPD does not say that it reads tickets (*KelvoTicket: "1"): a job with a passcode would lie open in the tray; print without it, or have the queue set up with the device’s own PPD</source>
        <translation>لا يذكر ملف PPD للطابعة أنها تقرأ التذاكر (&#x2066;*KelvoTicket: "1"&#x2069;): ستبقى مهمة لها رمز مرور مكشوفة في الدرج؛ اطبع من دونه، أو اطلب إعداد قائمة الانتظار بملف PPD الخاص بالجهاز</translation>
    </message>
    <message>
        <source>the printer’s PPD does not say that it reads tickets (*KelvoTicket: "1"): a fax would be printed instead of sent; print without it, or have the queue set up with the device’s own PPD</source>
        <translation>لا يذكر ملف PPD للطابعة أنها تقرأ التذاكر (&#x2066;*KelvoTicket: "1"&#x2069;): سيُطبع الفاكس بدلًا من إرساله؛ اطبع من دونه، أو اطلب إعداد قائمة الانتظار بملف PPD الخاص بالجهاز</translation>
    </message>
    <message>
        <source>document</source>
        <translation>مستند</translation>
    </message>
    <message>
        <source>there is nothing to print</source>
        <translation>لا شيء للطباعة</translation>
    </message>
    <message>
        <source>this is not a folder; name another one</source>
        <translation>هذا ليس مجلدًا؛ حدِّد مجلدًا آخر</translation>
    </message>
    <message>
        <source>the folder %1 does not exist; make it first, or name another one</source>
        <translation>المجلد &#x2068;%1&#x2069; غير موجود؛ أنشئه أولًا، أو حدِّد مجلدًا آخر</translation>
    </message>
    <message>
        <source>the folder cannot be made (%1)</source>
        <translation>لا يمكن إنشاء المجلد (%1)</translation>
    </message>
    <message>
        <source>this is not a regular file; move it away</source>
        <translation>هذا ليس ملفًا عاديًا؛ انقله إلى مكان آخر</translation>
    </message>
    <message>
        <source>the file is write-protected; move it away, or name another folder</source>
        <translation>الملف محمي من الكتابة؛ انقله إلى مكان آخر، أو حدِّد مجلدًا آخر</translation>
    </message>
    <message>
        <source>%1; nothing was printed</source>
        <translation>%1؛ لم يُطبع شيء</translation>
    </message>
    <message>
        <source>the whole document was sent as %1, but the print server at %2 did not answer for %3 s. The job may have been accepted: look with “lpstat -W all -o %4” before you print it again</source>
        <translation>أُرسل المستند كله باسم &#x2068;%1&#x2069;، لكن خادم الطباعة على &#x2068;%2&#x2069; لم يُجب خلال %3 ث. ربما قُبلت المهمة: تحقق بالأمر &#x2066;lpstat -W all -o %4&#x2069; قبل أن تطبعها مجددًا</translation>
    </message>
    <message>
        <source>the job holds a passcode, and the print server at %1 does not offer an encrypted connection (TLS); nothing was sent. Have it switched on, or print without the passcode</source>
        <translation>في المهمة رمز مرور، ولا يتيح خادم الطباعة على &#x2068;%1&#x2069; اتصالًا مشفرًا (TLS)؛ لم يُرسل شيء. اطلب تشغيل التشفير، أو اطبع من دون رمز المرور</translation>
    </message>
    <message>
        <source>the PPD that the print server at %1 has for it is damaged (%2); have the queue set up again with the device’s PPD</source>
        <translation>ملف PPD الذي يملكه خادم الطباعة على &#x2068;%1&#x2069; لهذه الطابعة تالف (%2)؛ اطلب إعداد قائمة الانتظار مجددًا بملف PPD الخاص بالجهاز</translation>
    </message>
    <message>
        <source>the whole document was sent as %1, but the print server at %2 broke off before it answered. The job may have been accepted: look with “lpstat -W all -o %3” before you print it again</source>
        <translation>أُرسل المستند كله باسم &#x2068;%1&#x2069;، لكن خادم الطباعة على &#x2068;%2&#x2069; قطع الاتصال قبل أن يجيب. ربما قُبلت المهمة: تحقق بالأمر &#x2066;lpstat -W all -o %3&#x2069; قبل أن تطبعها مجددًا</translation>
    </message>
    <message>
        <source>%1; the job could not be taken back: cancel it with “cancel %2”</source>
        <translation>%1؛ تعذّر سحب المهمة: ألغِها بالأمر &#x2066;cancel %2&#x2069;</translation>
    </message>
    <message>
        <source>blanks, commas, quotes and special characters cannot be sent</source>
        <translation>لا يمكن إرسال المسافات والفواصل وعلامات الاقتباس والأحرف الخاصة</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>طوله أكثر من %1 من الأحرف</translation>
    </message>
    <message>
        <source>the print server drops options of that name</source>
        <translation>يُسقط خادم الطباعة الخيارات التي تحمل هذا الاسم</translation>
    </message>
    <message>
        <source>the print server would make a booklet of its own</source>
        <translation>سيُنشئ خادم الطباعة كتيبًا من عنده</translation>
    </message>
    <message>
        <source>this setting cannot be sent to a print server: %1; choose another</source>
        <translation>لا يمكن إرسال هذا الإعداد إلى خادم طباعة: %1؛ اختر إعدادًا آخر</translation>
    </message>
    <message>
        <source>the print server at %1 broke off while it sent the PPD; try again</source>
        <translation>قطع خادم الطباعة على &#x2068;%1&#x2069; الاتصال وهو يرسل ملف PPD؛ حاول مجددًا</translation>
    </message>
    <message>
        <source>the print server has no PPD for it: it prints with common settings only</source>
        <translation>ليس لدى خادم الطباعة ملف PPD لها: تطبع بالإعدادات العامة فقط</translation>
    </message>
    <message>
        <source>the print server at %1 does not give its PPD: %2</source>
        <translation>لا يعطي خادم الطباعة على &#x2068;%1&#x2069; ملف PPD الخاص بها: %2</translation>
    </message>
    <message>
        <source>its PPD has more than %1 bytes</source>
        <translation>حجم ملف PPD الخاص بها أكثر من %1 بايت</translation>
    </message>
    <message>
        <source>the print server at %1 has an empty PPD for it; have the queue set up again with the device’s PPD</source>
        <translation>ملف PPD لدى خادم الطباعة على &#x2068;%1&#x2069; لهذه الطابعة فارغ؛ اطلب إعداد قائمة الانتظار مجددًا بملف PPD الخاص بالجهاز</translation>
    </message>
    <message>
        <source>this is the document itself, which would be lost; name another file</source>
        <translation>هذا هو المستند نفسه وسيُفقد؛ سمِّ ملفًا آخر</translation>
    </message>
    <message>
        <source>another file stands there that is no PDF; name another file</source>
        <translation>يوجد هناك ملف آخر ليس PDF؛ سمِّ ملفًا آخر</translation>
    </message>
    <message>
        <source>it is too late to cancel this job</source>
        <translation>فات أوان إلغاء هذه المهمة</translation>
    </message>
    <message>
        <source>the print server at %1 does not have this job (any more)</source>
        <translation>ليست هذه المهمة (أو لم تعد) على خادم الطباعة &#x2068;%1&#x2069;</translation>
    </message>
</context>
<context>
    <name>Device</name>
    <message>
        <source>this is not a PPD file; one begins with *PPD-Adobe</source>
        <translation>هذا ليس ملف PPD؛ يبدأ ملف كهذا بالعبارة &#x2066;*PPD-Adobe&#x2069;</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>السطر %1: %2</translation>
    </message>
    <message>
        <source>more than %1 options</source>
        <translation>أكثر من %1 خيار</translation>
    </message>
    <message>
        <source>more than %1 groups</source>
        <translation>أكثر من %1 مجموعة</translation>
    </message>
    <message>
        <source>more than %1 page sizes</source>
        <translation>أكثر من %1 حجم صفحة</translation>
    </message>
    <message>
        <source>more than %1 constraints</source>
        <translation>أكثر من %1 قيد</translation>
    </message>
    <message>
        <source>line %1: the file ends in the middle of the option %2; get it again</source>
        <translation>السطر %1: ينتهي الملف في وسط الخيار &#x2068;%2&#x2069;؛ احصل عليه مجددًا</translation>
    </message>
    <message>
        <source>line %1: the file ends in the middle of the group %2; get it again</source>
        <translation>السطر %1: ينتهي الملف في وسط المجموعة &#x2068;%2&#x2069;؛ احصل عليه مجددًا</translation>
    </message>
    <message>
        <source>line %1: the file ends in the middle of a text in quotes; get it again</source>
        <translation>السطر %1: ينتهي الملف في وسط نص بين علامتي اقتباس؛ احصل عليه مجددًا</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>أكثر من %1 بايت</translation>
    </message>
    <message>
        <source>compressed; unpack it with gunzip first</source>
        <translation>مضغوط؛ فك ضغطه بالأمر gunzip أولًا</translation>
    </message>
</context>
<context>
    <name>DialogParts</name>
    <message>
        <source>Panels</source>
        <translation>اللوحات</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>this is a folder; choose a file in it</source>
        <translation>هذا مجلد؛ اختر ملفًا فيه</translation>
    </message>
    <message>
        <source>this is no PDF</source>
        <translation>هذا ليس ملف PDF</translation>
    </message>
    <message>
        <source>it could not be turned into a sound PDF</source>
        <translation>تعذّر تحويله إلى ملف PDF سليم</translation>
    </message>
    <message>
        <source>its pages cannot be laid out like this; choose another paper or scaling</source>
        <translation>لا يمكن ترتيب صفحاته على هذا النحو؛ اختر ورقًا آخر أو تحجيمًا آخر</translation>
    </message>
    <message>
        <source>the document has %1 pages, and not all that are asked for</source>
        <translation>عدد صفحات المستند %1، وليست فيه كل الصفحات المطلوبة</translation>
    </message>
    <message>
        <source>reading it took longer than %1 seconds; it may be damaged</source>
        <translation>استغرقت قراءته أكثر من %1 ثانية؛ ربما كان تالفًا</translation>
    </message>
    <message>
        <source>as PDF it would be larger than %1 MB</source>
        <translation>سيكون حجمه كملف PDF أكبر من %1 م.ب</translation>
    </message>
    <message>
        <source>the program that reads it crashed; the file is damaged, or needs more memory than it may have</source>
        <translation>تعطّل البرنامج الذي يقرؤه؛ الملف تالف، أو يحتاج إلى ذاكرة أكثر من المسموح بها</translation>
    </message>
    <message>
        <source>%1 does not start: %2</source>
        <translation>لا يبدأ &#x2068;%1&#x2069;: %2</translation>
    </message>
    <message numerus="yes">
        <source>The drawing shows or uses %n other file(s), which are left out: only what a drawing holds itself is printed. Embed them in it.</source>
        <translation>
            <numerusform>لا يعرض الرسم ملفات أخرى.</numerusform>
            <numerusform>يعرض الرسم أو يستخدم ملفًا آخر، وهو مستبعد: لا يُطبع إلا ما يحتويه الرسم نفسه. ضمِّن ذلك الملف فيه.</numerusform>
            <numerusform>يعرض الرسم أو يستخدم ملفين آخرين، وهما مستبعدان: لا يُطبع إلا ما يحتويه الرسم نفسه. ضمِّنهما فيه.</numerusform>
            <numerusform>يعرض الرسم أو يستخدم %n ملفات أخرى، وهي مستبعدة: لا يُطبع إلا ما يحتويه الرسم نفسه. ضمِّنها فيه.</numerusform>
            <numerusform>يعرض الرسم أو يستخدم %n ملفًا آخر، وهي مستبعدة: لا يُطبع إلا ما يحتويه الرسم نفسه. ضمِّنها فيه.</numerusform>
            <numerusform>يعرض الرسم أو يستخدم %n ملف آخر، وهي مستبعدة: لا يُطبع إلا ما يحتويه الرسم نفسه. ضمِّنها فيه.</numerusform>
        </translation>
    </message>
    <message>
        <source>a text of more than %1 MB is not printed</source>
        <translation>لا يُطبع نص حجمه أكثر من %1 م.ب</translation>
    </message>
    <message>
        <source>a document of more than %1 MB is not printed</source>
        <translation>لا يُطبع مستند حجمه أكثر من %1 م.ب</translation>
    </message>
    <message>
        <source>a picture of more than %1 MB is not printed</source>
        <translation>لا تُطبع صورة حجمها أكثر من %1 م.ب</translation>
    </message>
    <message>
        <source>this is a pipe, and nothing came through it for %1 seconds; start what writes into it, or name a file</source>
        <translation>هذا أنبوب، ولم يصل عبره شيء خلال %1 ثانية؛ شغّل ما يكتب فيه، أو حدِّد ملفًا</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>الملف فارغ</translation>
    </message>
    <message>
        <source>PDF, PostScript, pictures and plain text can be printed</source>
        <translation>يمكن طباعة ملفات PDF وPostScript والصور والنص العادي</translation>
    </message>
    <message>
        <source>this part that reads documents is not installed beside the program; install kelvo-print anew</source>
        <translation>هذا الجزء الذي يقرأ المستندات غير مثبت بجانب البرنامج؛ أعد تثبيت kelvo-print</translation>
    </message>
    <message>
        <source>the program that reads it gave no answer that makes sense; the file may be damaged</source>
        <translation>لم يعط البرنامج الذي يقرؤه جوابًا مفهومًا؛ ربما كان الملف تالفًا</translation>
    </message>
    <message>
        <source>this is not the part that reads documents of kelvo-print %1; install kelvo-print anew</source>
        <translation>هذا ليس الجزء الذي يقرأ المستندات في &#x2066;kelvo-print %1&#x2069;؛ أعد تثبيت kelvo-print</translation>
    </message>
    <message>
        <source>reading it needs more than %1 MB of memory</source>
        <translation>تحتاج قراءته إلى أكثر من %1 م.ب من الذاكرة</translation>
    </message>
    <message>
        <source>the program that reads it ended with status %1: %2</source>
        <translation>انتهى البرنامج الذي يقرؤه بالحالة %1: %2</translation>
    </message>
    <message>
        <source>this is a ZIP archive or an office document</source>
        <translation>هذا أرشيف ZIP أو مستند مكتبي</translation>
    </message>
    <message>
        <source>this is an office document of an old kind</source>
        <translation>هذا مستند مكتبي من نوع قديم</translation>
    </message>
    <message>
        <source>this is a gzip-compressed file</source>
        <translation>هذا ملف مضغوط بالأداة gzip</translation>
    </message>
    <message>
        <source>this is a program</source>
        <translation>هذا برنامج</translation>
    </message>
    <message>
        <source>this is ready-made printer data</source>
        <translation>هذه بيانات طابعة جاهزة</translation>
    </message>
    <message>
        <source>this is ready-made printer data (PCL)</source>
        <translation>هذه بيانات طابعة جاهزة (PCL)</translation>
    </message>
    <message>
        <source>this is a file of a kind that is not known here</source>
        <translation>هذا ملف من نوع غير معروف هنا</translation>
    </message>
    <message>
        <source>the document holds an older file %1 that could not be taken out; save it as a new PDF without attached files, and print that</source>
        <translation>يحتوي المستند على ملف أقدم &#x2068;%1&#x2069; تعذّر إخراجه؛ احفظ المستند كملف PDF جديد بلا ملفات مرفقة، واطبع ذلك</translation>
    </message>
    <message>
        <source>the PDF is damaged and cannot be repaired: %1</source>
        <translation>ملف PDF تالف ولا يمكن إصلاحه: %1</translation>
    </message>
    <message>
        <source>the PDF cannot be read: %1</source>
        <translation>لا يمكن قراءة ملف PDF: %1</translation>
    </message>
    <message>
        <source>the author of the document does not allow printing it</source>
        <translation>لا يسمح مؤلف المستند بطباعته</translation>
    </message>
    <message>
        <source>the document has no pages</source>
        <translation>ليس في المستند صفحات</translation>
    </message>
    <message>
        <source>%1 pictures cannot be read here; install the package “qt6-image-formats-plugins”</source>
        <translation>لا يمكن قراءة صور %1 هنا؛ ثبّت الحزمة «qt6-image-formats-plugins»</translation>
    </message>
    <message>
        <source>a picture of %1 by %2 pixels is not printed; the limit is %3 million</source>
        <translation>لا تُطبع صورة بحجم &#x2066;%1 × %2&#x2069; بكسل؛ الحد هو %3 مليون</translation>
    </message>
    <message>
        <source>page %1 of the picture cannot be read: %2</source>
        <translation>لا يمكن قراءة الصفحة %1 من الصورة: %2</translation>
    </message>
    <message>
        <source>the picture cannot be read: %1</source>
        <translation>لا يمكن قراءة الصورة: %1</translation>
    </message>
    <message>
        <source>the drawing cannot be read</source>
        <translation>لا يمكن قراءة الرسم</translation>
    </message>
    <message>
        <source>no font here has the character U+%1 in line %2, which Unicode does not define; install the font that the text was written with, or take the character out</source>
        <translation>لا يوجد هنا خط فيه الحرف &#x2066;U+%1&#x2069; في السطر %2، وهو حرف لا يعرّفه Unicode؛ ثبّت الخط الذي كُتب به النص، أو احذف الحرف</translation>
    </message>
    <message>
        <source>no font here has the %1 character “%2” (U+%3) in line %4; install one, for example with the package “%5”</source>
        <comment>%1: Arabic</comment>
        <translation>لا يوجد هنا خط فيه الحرف «&#x2068;%2&#x2069;» (&#x2066;U+%3&#x2069;) في السطر %4، والكتابة: %1؛ ثبّت خطًا، مثلًا بالحزمة «%5»</translation>
    </message>
    <message>
        <source>no font here has the character “%1” (U+%2) in line %3; install one, for example with the package “%4”</source>
        <translation>لا يوجد هنا خط فيه الحرف «&#x2068;%1&#x2069;» (&#x2066;U+%2&#x2069;) في السطر %3؛ ثبّت خطًا، مثلًا بالحزمة «%4»</translation>
    </message>
    <message>
        <source>this begins like a text but holds bytes that no text has</source>
        <translation>يبدأ هذا كنص لكنه يحتوي على بايتات لا ترد في نص</translation>
    </message>
    <message>
        <source>a text of more than %1 pages is not printed</source>
        <translation>لا يُطبع نص من أكثر من %1 صفحة</translation>
    </message>
    <message>
        <source>the folder for temporary files is full (%1); remove what is no longer needed there, or set TMPDIR to a folder on another disk</source>
        <translation>مجلد الملفات المؤقتة ممتلئ (&#x2068;%1&#x2069;)؛ أزل منه ما لم تعد تحتاج إليه، أو عيّن TMPDIR على مجلد في قرص آخر</translation>
    </message>
    <message>
        <source>the folder for temporary files is missing or cannot be written (%1); set TMPDIR to another one</source>
        <translation>مجلد الملفات المؤقتة مفقود أو لا يمكن الكتابة فيه (&#x2068;%1&#x2069;)؛ عيّن TMPDIR على مجلد آخر</translation>
    </message>
    <message>
        <source>page range “%1”</source>
        <translation>نطاق الصفحات «&#x2066;%1&#x2069;»</translation>
    </message>
    <message>
        <source>pages are written like this: 1-3, 7, 9-</source>
        <translation>تُكتب الصفحات هكذا: &#x2066;1-3, 7, 9-&#x2069;</translation>
    </message>
    <message>
        <source>pages begin at 1</source>
        <translation>تبدأ الصفحات من 1</translation>
    </message>
    <message>
        <source>the document has pages 1 to %1</source>
        <translation>صفحات المستند من 1 إلى %1</translation>
    </message>
    <message>
        <source>all ranges together may name %1 pages at most</source>
        <translation>يمكن أن تشمل النطاقات معًا %1 صفحة على الأكثر</translation>
    </message>
    <message>
        <source>make it smaller, or choose another one</source>
        <translation>صغّرها، أو اختر غيرها</translation>
    </message>
    <message>
        <source>choose another picture, or repair this one</source>
        <translation>اختر صورة أخرى، أو أصلح هذه الصورة</translation>
    </message>
    <message>
        <source>this is a PDF document</source>
        <translation>هذا مستند PDF</translation>
    </message>
    <message>
        <source>this is a PostScript document</source>
        <translation>هذا مستند PostScript</translation>
    </message>
    <message>
        <source>this is a WebP picture</source>
        <translation>هذه صورة WebP</translation>
    </message>
    <message>
        <source>this is a text</source>
        <translation>هذا نص</translation>
    </message>
    <message>
        <source>this is no file, but a folder or a device</source>
        <translation>هذا ليس ملفًا، بل مجلد أو جهاز</translation>
    </message>
    <message>
        <source>a picture of more than %1 MB is not taken</source>
        <translation>لا تُقبل صورة حجمها أكثر من %1 م.ب</translation>
    </message>
    <message>
        <source>choose a picture in PNG, JPEG, GIF, BMP, TIFF or SVG format</source>
        <translation>اختر صورة بتنسيق PNG أو JPEG أو GIF أو BMP أو TIFF أو SVG</translation>
    </message>
    <message>
        <source>printing PostScript needs Ghostscript; install the package “ghostscript”</source>
        <translation>تحتاج طباعة PostScript إلى Ghostscript؛ ثبّت الحزمة «ghostscript»</translation>
    </message>
    <message>
        <source>Ghostscript cannot read the PostScript: %1</source>
        <translation>لا يستطيع Ghostscript قراءة ملف PostScript هذا: %1</translation>
    </message>
    <message>
        <source>the document is locked with a password</source>
        <translation>المستند مقفل بكلمة مرور</translation>
    </message>
    <message>
        <source>the document is locked with another password</source>
        <translation>المستند مقفل بكلمة مرور أخرى</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <comment>the title asked for, and the file’s name</comment>
        <translation>&#x2066;%1&#x2069; – &#x2066;%2&#x2069;</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <comment>what the first document is called</comment>
        <translation>
            <numerusform>&#x2066;%1&#x2069;</numerusform>
            <numerusform>&#x2066;%1&#x2069; ومستند آخر</numerusform>
            <numerusform>&#x2066;%1&#x2069; ومستندان آخران</numerusform>
            <numerusform>&#x2066;%1&#x2069; و%n مستندات أخرى</numerusform>
            <numerusform>&#x2066;%1&#x2069; و%n مستندًا آخر</numerusform>
            <numerusform>&#x2066;%1&#x2069; و%n مستند آخر</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Drawing</name>
    <message>
        <source>this part that draws is not installed beside the program’s libraries; install kelvo-print anew</source>
        <translation>هذا الجزء الذي يرسم غير مثبت بجانب مكتبات البرنامج؛ أعد تثبيت kelvo-print</translation>
    </message>
    <message>
        <source>this part that draws cannot be loaded (%1); install kelvo-print anew, with the packages that it needs</source>
        <translation>لا يمكن تحميل هذا الجزء الذي يرسم (%1)؛ أعد تثبيت kelvo-print مع الحزم التي يحتاج إليها</translation>
    </message>
    <message>
        <source>this is not the part that draws of kelvo-print %1; install kelvo-print anew</source>
        <translation>هذا ليس الجزء الذي يرسم في &#x2066;kelvo-print %1&#x2069;؛ أعد تثبيت kelvo-print</translation>
    </message>
    <message>
        <source>page</source>
        <translation>الصفحة</translation>
    </message>
    <message>
        <source>a side of %1 points; draw one of more than 0 and at most %2</source>
        <translation>طول الضلع %1 نقطة؛ ارسم ضلعًا أطول من 0 ولا يتجاوز %2</translation>
    </message>
    <message>
        <source>it cannot be shown: what was drawn is no PDF of a page</source>
        <translation>لا يمكن عرضها: ما رُسم ليس صفحة PDF</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>not a path</source>
        <translation>ليس مسارًا</translation>
    </message>
    <message>
        <source>the lock file is a symbolic link; remove it</source>
        <translation>ملف القفل رابط رمزي؛ أزله</translation>
    </message>
    <message>
        <source>the lock file is not a regular file; remove it</source>
        <translation>ملف القفل ليس ملفًا عاديًا؛ أزله</translation>
    </message>
    <message>
        <source>another program is writing it; try again</source>
        <translation>يكتب فيه برنامج آخر؛ حاول مجددًا</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>%1: damaged, kept as %2 (%3)</source>
        <translation>&#x2068;%1&#x2069;: تالف، وحُفظ باسم &#x2068;%2&#x2069; (%3)</translation>
    </message>
    <message>
        <source>damaged, and too many damaged copies lie beside it; remove them</source>
        <translation>تالف، وبجانبه نسخ تالفة أكثر من اللازم؛ أزلها</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <translation>ليس قاموسًا</translation>
    </message>
    <message>
        <source>make room there, or name another place</source>
        <translation>أفرغ مساحة هناك، أو حدِّد مكانًا آخر</translation>
    </message>
    <message>
        <source>change the rights there, or name a place that you may write to</source>
        <translation>غيّر الأذونات هناك، أو حدِّد مكانًا يمكنك الكتابة فيه</translation>
    </message>
    <message>
        <source>name another place</source>
        <translation>حدِّد مكانًا آخر</translation>
    </message>
    <message>
        <source>more than %1 bytes</source>
        <translation>أكثر من %1 بايت</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is no element of a property list</source>
        <translation>&#x2066;&lt;%1&gt;&#x2069; ليس عنصرًا من قائمة خصائص</translation>
    </message>
    <message>
        <source>&lt;%1&gt; stands inside a value</source>
        <translation>&#x2066;&lt;%1&gt;&#x2069; موجود داخل قيمة</translation>
    </message>
    <message>
        <source>&lt;plist&gt; must be the outermost element</source>
        <translation>يجب أن يكون &#x2066;&lt;plist&gt;&#x2069; العنصر الخارجي</translation>
    </message>
    <message>
        <source>&lt;key&gt; stands where a value is due</source>
        <translation>يوجد &#x2066;&lt;key&gt;&#x2069; حيث يُنتظر وجود قيمة</translation>
    </message>
    <message>
        <source>a value stands where &lt;key&gt; is due</source>
        <translation>توجد قيمة حيث يُنتظر وجود &#x2066;&lt;key&gt;&#x2069;</translation>
    </message>
    <message>
        <source>holds more than one value</source>
        <translation>يحتوي على أكثر من قيمة واحدة</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <translation>أكثر من %1 قيمة</translation>
    </message>
    <message>
        <source>nested more than %1 deep</source>
        <translation>متداخل بأكثر من %1 مستوى</translation>
    </message>
    <message>
        <source>the key “%1” has no value</source>
        <translation>ليس للمفتاح «%1» قيمة</translation>
    </message>
    <message>
        <source>holds no value</source>
        <translation>لا يحتوي على قيمة</translation>
    </message>
    <message>
        <source>text stands outside a value</source>
        <translation>يوجد نص خارج القيم</translation>
    </message>
    <message>
        <source>“%1” is no signed 64-bit integer</source>
        <translation>«&#x2068;%1&#x2069;» ليس عددًا صحيحًا من 64 بت بإشارة</translation>
    </message>
    <message>
        <source>“%1” is no finite number</source>
        <translation>«&#x2068;%1&#x2069;» ليس عددًا محدودًا</translation>
    </message>
    <message>
        <source>“%1” is no date of the form 2024-01-31T12:00:00Z</source>
        <translation>«&#x2068;%1&#x2069;» ليس تاريخًا بالصيغة &#x2066;2024-01-31T12:00:00Z&#x2069;</translation>
    </message>
    <message>
        <source>“%1” is no base64</source>
        <translation>«&#x2068;%1&#x2069;» ليس base64</translation>
    </message>
    <message>
        <source>“%1” is no content of &lt;true/&gt; or &lt;false/&gt;</source>
        <translation>«&#x2068;%1&#x2069;» ليس محتوى للعنصر &#x2066;&lt;true/&gt;&#x2069; أو &#x2066;&lt;false/&gt;&#x2069;</translation>
    </message>
    <message>
        <source>the key “%1” stands twice</source>
        <translation>المفتاح «%1» مكرر</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>نفدت الذاكرة</translation>
    </message>
    <message>
        <source>declares an entity</source>
        <translation>يصرّح بكيان</translation>
    </message>
    <message>
        <source>uses the unknown entity “%1”</source>
        <translation>يستخدم الكيان المجهول «%1»</translation>
    </message>
    <message>
        <source>not XML</source>
        <translation>ليس XML</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1، السطر %2</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>السطر %1</translation>
    </message>
    <message>
        <source>a binary property list; only the XML form is read</source>
        <translation>قائمة خصائص ثنائية؛ لا يُقرأ إلا نموذج XML</translation>
    </message>
    <message>
        <source>property list</source>
        <translation>قائمة خصائص</translation>
    </message>
    <message>
        <source>the key holds a character that XML cannot hold</source>
        <translation>يحتوي المفتاح على حرف لا يقبله XML</translation>
    </message>
    <message>
        <source>the string holds a character that XML cannot hold</source>
        <translation>تحتوي السلسلة على حرف لا يقبله XML</translation>
    </message>
    <message>
        <source>a date outside the years 1 to 9999</source>
        <translation>تاريخ خارج السنوات من 1 إلى 9999</translation>
    </message>
    <message>
        <source>a number that is not finite</source>
        <translation>عدد غير محدود</translation>
    </message>
    <message>
        <source>an integer beyond signed 64 bits</source>
        <translation>عدد صحيح يتجاوز 64 بت بإشارة</translation>
    </message>
    <message>
        <source>a property list holds no %1</source>
        <translation>لا تحتوي قائمة الخصائص على %1</translation>
    </message>
    <message>
        <source>there is no value</source>
        <translation>لا توجد قيمة</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>مفقود</translation>
    </message>
    <message>
        <source>not an integer</source>
        <translation>ليس عددًا صحيحًا</translation>
    </message>
    <message>
        <source>%1; this program reads version %2</source>
        <translation>%1؛ يقرأ هذا البرنامج الإصدار %2</translation>
    </message>
    <message>
        <source>holds an entry without a key</source>
        <translation>يحتوي على إدخال بلا مفتاح</translation>
    </message>
    <message>
        <source>not a string</source>
        <translation>ليس سلسلة نصية</translation>
    </message>
    <message>
        <source>not true or false</source>
        <translation>ليس صوابًا أو خطأ</translation>
    </message>
    <message>
        <source>not an array</source>
        <translation>ليس مصفوفة</translation>
    </message>
    <message>
        <source>holds what is no place of a ticket</source>
        <translation>يحتوي على ما ليس موضعًا في تذكرة</translation>
    </message>
    <message>
        <source>holds no dictionary</source>
        <translation>لا يحتوي على قاموس</translation>
    </message>
    <message>
        <source>the folder %1 does not exist; make it first, or name another file</source>
        <translation>المجلد &#x2068;%1&#x2069; غير موجود؛ أنشئه أولًا، أو حدِّد ملفًا آخر</translation>
    </message>
    <message>
        <source>nothing can be written into the folder %1 (%2)</source>
        <translation>لا يمكن كتابة شيء في المجلد &#x2068;%1&#x2069; (%2)</translation>
    </message>
    <message>
        <source>this is not a regular file; name another one</source>
        <translation>هذا ليس ملفًا عاديًا؛ حدِّد ملفًا آخر</translation>
    </message>
    <message>
        <source>a file that is not a ticket stands there and is not replaced; move it away or name another file</source>
        <translation>هناك ملف ليس تذكرة، ولا يُستبدل؛ انقله إلى مكان آخر أو حدِّد ملفًا آخر</translation>
    </message>
    <message>
        <source>there is no preferences folder</source>
        <translation>لا يوجد مجلد للتفضيلات</translation>
    </message>
    <message>
        <source>there is no folder for it; make ~/.local/share a folder that you can write to</source>
        <translation>لا يوجد مجلد له؛ اجعل &#x2066;~/.local/share&#x2069; مجلدًا يمكنك الكتابة فيه</translation>
    </message>
</context>
<context>
    <name>Font</name>
    <message>
        <source>a font collection</source>
        <translation>مجموعة خطوط</translation>
    </message>
    <message>
        <source>the file is no font collection</source>
        <translation>الملف ليس مجموعة خطوط</translation>
    </message>
    <message>
        <source>there is no font number %1 among its %2</source>
        <translation>لا يوجد خط رقم %1، وعدد الخطوط %2</translation>
    </message>
    <message>
        <source>the tables of font number %1 are not in the file</source>
        <translation>جداول الخط رقم %1 ليست في الملف</translation>
    </message>
    <message>
        <source>the tables of font number %1 lie upon one another</source>
        <translation>جداول الخط رقم %1 متراكبة</translation>
    </message>
    <message>
        <source>the table post has names for %1 glyphs, but the font has %2</source>
        <translation>في الجدول post أسماء لعدد %1 من الأشكال، لكن في الخط %2</translation>
    </message>
    <message>
        <source>the table post ends within the numbers of the glyphs’ names</source>
        <translation>ينتهي الجدول post ضمن أرقام أسماء الأشكال</translation>
    </message>
    <message>
        <source>the table %1 is missing or damaged</source>
        <translation>الجدول &#x2068;%1&#x2069; مفقود أو تالف</translation>
    </message>
    <message>
        <source>the table head has a wrong magic number</source>
        <translation>الرقم المميز في الجدول head خاطئ</translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>this font has no TrueType outlines</source>
        <translation>ليست لهذا الخط محيطات TrueType</translation>
    </message>
    <message>
        <source>the device prints the watermark in a font of its own</source>
        <translation>يطبع الجهاز العلامة المائية بخط من عنده</translation>
    </message>
    <message>
        <source>this font is not installed</source>
        <translation>هذا الخط غير مثبت</translation>
    </message>
    <message>
        <source>the watermarks’ file cannot take this font</source>
        <translation>لا يستوعب ملف العلامات المائية هذا الخط</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Help page</source>
        <translation>صفحة التعليمات</translation>
    </message>
    <message>
        <source>The help has no page “%1”.</source>
        <translation>لا توجد في التعليمات الصفحة «&#x2068;%1&#x2069;».</translation>
    </message>
    <message>
        <source>This address is outside the help: %1</source>
        <translation>هذا العنوان خارج التعليمات: &#x2066;%1&#x2069;</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>تقدم</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>المحتويات</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>تعليمات</translation>
    </message>
    <message>
        <source>The folder with the help pages is missing. Install the software again, or tell your administrator.</source>
        <translation>المجلد الذي فيه صفحات التعليمات مفقود. أعد تثبيت البرنامج، أو أبلغ مسؤول النظام.</translation>
    </message>
    <message>
        <source>The page “%1” is missing in %2. Install the software again, or tell your administrator.</source>
        <translation>الصفحة «&#x2068;%1&#x2069;» مفقودة في &#x2068;%2&#x2069;. أعد تثبيت البرنامج، أو أبلغ مسؤول النظام.</translation>
    </message>
    <message>
        <source>There is no help for this</source>
        <translation>لا توجد تعليمات لهذا</translation>
    </message>
    <message>
        <source>Pages that were found</source>
        <translation>الصفحات التي عُثر عليها</translation>
    </message>
    <message>
        <source>No page has all of these words. Type fewer of them, or only how they begin, or look at the contents.</source>
        <translation>لا توجد صفحة فيها كل هذه الكلمات. اكتب كلمات أقل، أو بداياتها فقط، أو انظر في المحتويات.</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) found</source>
        <translation>
            <numerusform>لم يُعثر على أي صفحة</numerusform>
            <numerusform>عُثر على صفحة واحدة</numerusform>
            <numerusform>عُثر على صفحتين</numerusform>
            <numerusform>عُثر على %n صفحات</numerusform>
            <numerusform>عُثر على %n صفحة</numerusform>
            <numerusform>عُثر على %n صفحة</numerusform>
        </translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Search in the help</source>
        <translation>البحث في التعليمات</translation>
    </message>
</context>
<context>
    <name>Job</name>
    <message>
        <source>“%1” takes no jobs.</source>
        <translation>لا تقبل «&#x2068;%1&#x2069;» مهام.</translation>
    </message>
    <message>
        <source>“%1” takes no jobs: %2.</source>
        <translation>لا تقبل «&#x2068;%1&#x2069;» مهام: &#x2068;%2&#x2069;.</translation>
    </message>
    <message>
        <source>Choose another printer, or wait until it takes jobs again.</source>
        <translation>اختر طابعة أخرى، أو انتظر إلى أن تقبل المهام مجددًا.</translation>
    </message>
    <message>
        <source>“%1” is stopped.</source>
        <translation>«&#x2068;%1&#x2069;» متوقفة.</translation>
    </message>
    <message>
        <source>“%1” is stopped: %2.</source>
        <translation>«&#x2068;%1&#x2069;» متوقفة: &#x2068;%2&#x2069;.</translation>
    </message>
    <message>
        <source>A job waits there until the printer is started again.</source>
        <translation>تنتظر المهمة هناك إلى أن تُشغَّل الطابعة مجددًا.</translation>
    </message>
    <message numerus="yes">
        <source>Page(s) %1 larger than the paper, %2: what does not fit is cut off.</source>
        <translation>
            <numerusform>الصفحات &#x2066;%1&#x2069; أكبر من الورق، %2: يُقطع ما لا يتسع له.</numerusform>
            <numerusform>الصفحة &#x2066;%1&#x2069; أكبر من الورق، %2: يُقطع ما لا يتسع له.</numerusform>
            <numerusform>الصفحتان &#x2066;%1&#x2069; أكبر من الورق، %2: يُقطع ما لا يتسع له.</numerusform>
            <numerusform>الصفحات &#x2066;%1&#x2069; أكبر من الورق، %2: يُقطع ما لا يتسع له.</numerusform>
            <numerusform>الصفحات &#x2066;%1&#x2069; أكبر من الورق، %2: يُقطع ما لا يتسع له.</numerusform>
            <numerusform>الصفحات &#x2066;%1&#x2069; أكبر من الورق، %2: يُقطع ما لا يتسع له.</numerusform>
        </translation>
    </message>
    <message>
        <source>The document is damaged; what could be read of it was put together, and parts may be missing.</source>
        <translation>المستند تالف؛ جُمع ما أمكنت قراءته منه، وربما كانت أجزاء ناقصة.</translation>
    </message>
    <message>
        <source>Compare the preview with the original, or save the document again from the program that made it.</source>
        <translation>قارن المعاينة بالأصل، أو احفظ المستند مجددًا من البرنامج الذي أنشأه.</translation>
    </message>
    <message>
        <source>This printer does not have: %1.</source>
        <translation>ليس في هذه الطابعة: &#x2068;%1&#x2069;.</translation>
    </message>
    <message>
        <source>Not sent, for the print server has no description of this printer: %1.</source>
        <translation>لم يُرسل، لأن خادم الطباعة ليس لديه وصف لهذه الطابعة: &#x2068;%1&#x2069;.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) kept, to come back with a printer that has them.</source>
        <translation>
            <numerusform>لا إعدادات محفوظة.</numerusform>
            <numerusform>يُحتفظ به، ويعود مع طابعة تدعمه.</numerusform>
            <numerusform>يُحتفظ بهما، ويعودان مع طابعة تدعمهما.</numerusform>
            <numerusform>يُحتفظ بها، وتعود مع طابعة تدعمها.</numerusform>
            <numerusform>يُحتفظ بها، وتعود مع طابعة تدعمها.</numerusform>
            <numerusform>يُحتفظ بها، وتعود مع طابعة تدعمها.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not sent, for this printer reads no job tickets: %1.</source>
        <translation>لم يُرسل، لأن هذه الطابعة لا تقرأ تذاكر المهام: &#x2068;%1&#x2069;.</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) kept; choose a printer that reads them.</source>
        <translation>
            <numerusform>لا إعدادات محفوظة.</numerusform>
            <numerusform>يُحتفظ به؛ اختر طابعة تقرؤه.</numerusform>
            <numerusform>يُحتفظ بهما؛ اختر طابعة تقرؤهما.</numerusform>
            <numerusform>يُحتفظ بها؛ اختر طابعة تقرؤها.</numerusform>
            <numerusform>يُحتفظ بها؛ اختر طابعة تقرؤها.</numerusform>
            <numerusform>يُحتفظ بها؛ اختر طابعة تقرؤها.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#x2068;%1&#x2069;»</translation>
    </message>
    <message>
        <source>%1 cannot be used together.</source>
        <translation>لا يمكن الجمع بين %1.</translation>
    </message>
    <message>
        <source>%1 cannot be used on this printer (%2).</source>
        <translation>لا يمكن استخدام %1 على هذه الطابعة (%2).</translation>
    </message>
    <message>
        <source>Set “%1” to “%2”</source>
        <translation>تعيين «&#x2068;%1&#x2069;» على «&#x2068;%2&#x2069;»</translation>
    </message>
    <message>
        <source>this printer takes no custom sizes</source>
        <translation>لا تقبل هذه الطابعة أحجامًا مخصصة</translation>
    </message>
    <message>
        <source>a custom size is written Custom.WIDTHxHEIGHT with in, mm, cm or pt behind it; this printer takes widths from %1 to %2 mm and heights from %3 to %4 mm</source>
        <translation>يُكتب الحجم المخصص بالصيغة &#x2066;Custom.WIDTHxHEIGHT&#x2069; وبعدها in أو mm أو cm أو pt؛ تقبل هذه الطابعة العرض من %1 إلى %2 مم والارتفاع من %3 إلى %4 مم</translation>
    </message>
    <message>
        <source>the print server has no description (PPD) of this printer, so that it cannot be asked for this</source>
        <translation>ليس لدى خادم الطباعة وصف (PPD) لهذه الطابعة، فلا يمكن طلب ذلك منها</translation>
    </message>
    <message>
        <source>there is no such value</source>
        <translation>لا توجد قيمة كهذه</translation>
    </message>
    <message>
        <source>this is equipment of the printer, which its administrator enters (lpadmin -p PRINTER -o …)</source>
        <translation>هذا من تجهيزات الطابعة، ويُدخله مسؤولها (&#x2066;lpadmin -p PRINTER -o …&#x2069;)</translation>
    </message>
    <message>
        <source>this printer has no paper %1</source>
        <translation>ليس في هذه الطابعة الورق &#x2068;%1&#x2069;</translation>
    </message>
    <message>
        <source>this printer does not have this option</source>
        <translation>ليس في هذه الطابعة هذا الخيار</translation>
    </message>
    <message>
        <source>3 is portrait, 4 landscape, 5 reverse landscape, 6 reverse portrait</source>
        <translation>3 عمودي، و4 أفقي، و5 أفقي مقلوب، و6 عمودي مقلوب</translation>
    </message>
    <message>
        <source>this printer does not print on both sides</source>
        <translation>لا تطبع هذه الطابعة على الوجهين</translation>
    </message>
    <message>
        <source>copies are a number from 1 to %1</source>
        <translation>عدد النسخ رقم من 1 إلى %1</translation>
    </message>
    <message>
        <source>pages are written like 1-3,7,9-</source>
        <translation>تُكتب الصفحات هكذا: &#x2066;1-3,7,9-&#x2069;</translation>
    </message>
    <message>
        <source>neither this printer nor kelvo-print has such an option</source>
        <translation>ليس في هذه الطابعة ولا في kelvo-print خيار كهذا</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>عمودي</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>أفقي</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>عمودي، مقلوب</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>أفقي، مقلوب</translation>
    </message>
    <message>
        <source>%1 – passed on, the printer may not heed it</source>
        <translation>&#x2068;%1&#x2069; – نُقل كما هو، وقد لا تراعيه الطابعة</translation>
    </message>
    <message>
        <source>Copies: %1</source>
        <translation>النسخ: %1</translation>
    </message>
    <message>
        <source>Copies: %1, collated</source>
        <translation>النسخ: %1، مجمّعة</translation>
    </message>
    <message>
        <source>Copies: %1, not collated</source>
        <translation>النسخ: %1، غير مجمّعة</translation>
    </message>
    <message>
        <source>Pages: All</source>
        <translation>الصفحات: الكل</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>الصفحات: &#x2066;%1&#x2069;</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>الاتجاه: &#x2068;%1&#x2069;</translation>
    </message>
    <message>
        <source>Paper size: %1</source>
        <translation>حجم الورق: &#x2068;%1&#x2069;</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: &#x2068;%2&#x2069;</translation>
    </message>
    <message>
        <source>%1 – this printer does not have it</source>
        <translation>&#x2068;%1&#x2069; – ليس في هذه الطابعة</translation>
    </message>
    <message>
        <source>%1 – the print server has no description of this printer</source>
        <translation>&#x2068;%1&#x2069; – ليس لدى خادم الطباعة وصف لهذه الطابعة</translation>
    </message>
    <message numerus="yes">
        <source>%n entry(s) that the device panels add (see Ticket)</source>
        <translation>
            <numerusform>لا إدخالات تضيفها لوحات الجهاز (انظر التذكرة)</numerusform>
            <numerusform>إدخال واحد تضيفه لوحات الجهاز (انظر التذكرة)</numerusform>
            <numerusform>إدخالان تضيفهما لوحات الجهاز (انظر التذكرة)</numerusform>
            <numerusform>%n إدخالات تضيفها لوحات الجهاز (انظر التذكرة)</numerusform>
            <numerusform>%n إدخالًا تضيفها لوحات الجهاز (انظر التذكرة)</numerusform>
            <numerusform>%n إدخال تضيفها لوحات الجهاز (انظر التذكرة)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 – this printer reads no tickets</source>
        <translation>&#x2068;%1&#x2069; – لا تقرأ هذه الطابعة التذاكر</translation>
    </message>
    <message>
        <source>Cautions:</source>
        <translation>تنبيهات:</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>الإعدادات:</translation>
    </message>
    <message>
        <source>Not sent:</source>
        <translation>لم يُرسل:</translation>
    </message>
    <message>
        <source>As the printer has it:</source>
        <translation>كما في الطابعة:</translation>
    </message>
    <message>
        <source>Ticket:</source>
        <translation>التذكرة:</translation>
    </message>
    <message numerus="yes">
        <source>%n copy(s)</source>
        <translation>
            <numerusform>لا نُسخ</numerusform>
            <numerusform>نسخة واحدة</numerusform>
            <numerusform>نسختان</numerusform>
            <numerusform>%n نُسخ</numerusform>
            <numerusform>%n نسخة</numerusform>
            <numerusform>%n نسخة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>لا أوراق</numerusform>
            <numerusform>ورقة واحدة</numerusform>
            <numerusform>ورقتان</numerusform>
            <numerusform>%n أوراق</numerusform>
            <numerusform>%n ورقة</numerusform>
            <numerusform>%n ورقة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n page(s)</source>
        <translation>
            <numerusform>لا صفحات</numerusform>
            <numerusform>صفحة واحدة</numerusform>
            <numerusform>صفحتان</numerusform>
            <numerusform>%n صفحات</numerusform>
            <numerusform>%n صفحة</numerusform>
            <numerusform>%n صفحة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 × %2 = %n sheet(s)</source>
        <translation>
            <numerusform>%1 × %2 = لا أوراق</numerusform>
            <numerusform>%1 × %2 = ورقة واحدة</numerusform>
            <numerusform>%1 × %2 = ورقتان</numerusform>
            <numerusform>%1 × %2 = %n أوراق</numerusform>
            <numerusform>%1 × %2 = %n ورقة</numerusform>
            <numerusform>%1 × %2 = %n ورقة</numerusform>
        </translation>
    </message>
    <message>
        <source>locked</source>
        <translation>مقفلة</translation>
    </message>
    <message>
        <source>fax</source>
        <translation>فاكس</translation>
    </message>
    <message>
        <source>there is no preset of this name, nor any other</source>
        <translation>لا يوجد إعداد مسبق بهذا الاسم، ولا أي إعداد مسبق آخر</translation>
    </message>
    <message>
        <source>there is no preset of this name</source>
        <translation>لا يوجد إعداد مسبق بهذا الاسم</translation>
    </message>
    <message>
        <source>%1: this is not a ticket file</source>
        <translation>&#x2068;%1&#x2069;: هذا ليس ملف تذكرة</translation>
    </message>
    <message>
        <source>this preset is the administrator’s and cannot be changed here; save one of your own under the same name instead</source>
        <translation>هذا الإعداد المسبق لمسؤول النظام ولا يمكن تغييره هنا؛ احفظ إعدادًا خاصًا بك بالاسم نفسه بدلًا من ذلك</translation>
    </message>
    <message>
        <source>a preset needs a name of one line that is not empty</source>
        <translation>يحتاج الإعداد المسبق إلى اسم غير فارغ من سطر واحد</translation>
    </message>
    <message>
        <source>there is such a preset already</source>
        <translation>يوجد إعداد مسبق بهذا الاسم</translation>
    </message>
    <message>
        <source>the file that stands there is no preset of this program version; move it away or take another name</source>
        <translation>الملف الموجود هناك ليس إعدادًا مسبقًا من هذا الإصدار من البرنامج؛ انقله إلى مكان آخر أو اختر اسمًا آخر</translation>
    </message>
    <message>
        <source>there is no home folder to keep presets in; set HOME</source>
        <translation>لا يوجد مجلد منزل لحفظ الإعدادات المسبقة فيه؛ عيّن HOME</translation>
    </message>
    <message>
        <source>%1; the site’s defaults are not used</source>
        <translation>%1؛ لا تُستخدم الإعدادات الافتراضية للموقع</translation>
    </message>
    <message>
        <source>the printer is not reached</source>
        <translation>لا يمكن الوصول إلى الطابعة</translation>
    </message>
    <message>
        <source>a cover is open</source>
        <translation>غطاء مفتوح</translation>
    </message>
    <message>
        <source>the developer is used up</source>
        <translation>نفدت مادة التظهير</translation>
    </message>
    <message>
        <source>the developer runs out</source>
        <translation>مادة التظهير على وشك النفاد</translation>
    </message>
    <message>
        <source>a door is open</source>
        <translation>باب مفتوح</translation>
    </message>
    <message>
        <source>the fuser is too hot</source>
        <translation>وحدة الصهر ساخنة أكثر من اللازم</translation>
    </message>
    <message>
        <source>the fuser is not hot yet</source>
        <translation>لم تسخن وحدة الصهر بعد</translation>
    </message>
    <message>
        <source>a paper tray is missing</source>
        <translation>درج ورق مفقود</translation>
    </message>
    <message>
        <source>toner or ink is used up</source>
        <translation>نفد الحبر</translation>
    </message>
    <message>
        <source>toner or ink runs out</source>
        <translation>الحبر على وشك النفاد</translation>
    </message>
    <message>
        <source>the waste container is almost full</source>
        <translation>حاوية الفضلات شبه ممتلئة</translation>
    </message>
    <message>
        <source>the waste container is full</source>
        <translation>حاوية الفضلات ممتلئة</translation>
    </message>
    <message>
        <source>there is no paper</source>
        <translation>لا يوجد ورق</translation>
    </message>
    <message>
        <source>paper is jammed</source>
        <translation>الورق محشور</translation>
    </message>
    <message>
        <source>paper runs out</source>
        <translation>الورق على وشك النفاد</translation>
    </message>
    <message>
        <source>it waits for paper</source>
        <translation>تنتظر الورق</translation>
    </message>
    <message>
        <source>an output tray is almost full</source>
        <translation>درج إخراج شبه ممتلئ</translation>
    </message>
    <message>
        <source>an output tray is full</source>
        <translation>درج إخراج ممتلئ</translation>
    </message>
    <message>
        <source>an output tray is missing</source>
        <translation>درج إخراج مفقود</translation>
    </message>
    <message>
        <source>the printer is switched off</source>
        <translation>الطابعة مطفأة</translation>
    </message>
    <message>
        <source>its memory is full</source>
        <translation>ذاكرتها ممتلئة</translation>
    </message>
    <message>
        <source>some of its printers are stopped</source>
        <translation>بعض طابعاتها متوقف</translation>
    </message>
    <message>
        <source>the printer does not answer</source>
        <translation>لا تجيب الطابعة</translation>
    </message>
    <message>
        <source>toner is used up</source>
        <translation>نفد مسحوق الحبر</translation>
    </message>
    <message>
        <source>toner runs out</source>
        <translation>مسحوق الحبر على وشك النفاد</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>&#x2068;%1&#x2069;: %2.</translation>
    </message>
    <message>
        <source>Choose larger paper, or let the pages be made to fit.</source>
        <translation>اختر ورقًا أكبر، أو دع الصفحات تُصغَّر لتلائمه.</translation>
    </message>
    <message numerus="yes">
        <source>Covers, inserts, exception pages and booklets count what is printed: the first page there has page(s) %1 of the document.</source>
        <translation>
            <numerusform>تُحسب الأغلفة والإدراجات وصفحات الاستثناء والكتيبات بما يُطبع: على الصفحة الأولى منه الصفحة %1 من المستند.</numerusform>
            <numerusform>تُحسب الأغلفة والإدراجات وصفحات الاستثناء والكتيبات بما يُطبع: على الصفحة الأولى منه الصفحة %1 من المستند.</numerusform>
            <numerusform>تُحسب الأغلفة والإدراجات وصفحات الاستثناء والكتيبات بما يُطبع: على الصفحة الأولى منه الصفحة %1 من المستند.</numerusform>
            <numerusform>تُحسب الأغلفة والإدراجات وصفحات الاستثناء والكتيبات بما يُطبع: على الصفحة الأولى منه الصفحة %1 من المستند.</numerusform>
            <numerusform>تُحسب الأغلفة والإدراجات وصفحات الاستثناء والكتيبات بما يُطبع: على الصفحة الأولى منه الصفحة %1 من المستند.</numerusform>
            <numerusform>تُحسب الأغلفة والإدراجات وصفحات الاستثناء والكتيبات بما يُطبع: على الصفحة الأولى منه الصفحة %1 من المستند.</numerusform>
        </translation>
    </message>
    <message>
        <source>Of these: %1</source>
        <translation>منها: %1</translation>
    </message>
    <message>
        <source>Order: As in the document</source>
        <translation>الترتيب: كما في المستند</translation>
    </message>
    <message>
        <source>Order: Reversed</source>
        <translation>الترتيب: معكوس</translation>
    </message>
    <message numerus="yes">
        <source>Page(s) %1 larger than the paper, %2, and made smaller to fit.</source>
        <translation>
            <numerusform>الصفحة %1 أكبر من الورق، %2، وتُصغَّر لتلائمه.</numerusform>
            <numerusform>الصفحة %1 أكبر من الورق، %2، وتُصغَّر لتلائمه.</numerusform>
            <numerusform>الصفحتان %1 أكبر من الورق، %2، وتُصغَّران لتلائماه.</numerusform>
            <numerusform>الصفحات %1 أكبر من الورق، %2، وتُصغَّر لتلائمه.</numerusform>
            <numerusform>الصفحات %1 أكبر من الورق، %2، وتُصغَّر لتلائمه.</numerusform>
            <numerusform>الصفحات %1 أكبر من الورق، %2، وتُصغَّر لتلائمه.</numerusform>
        </translation>
    </message>
    <message>
        <source>Pages per sheet: %1</source>
        <translation>الصفحات في الورقة: %1</translation>
    </message>
    <message>
        <source>Pages per sheet: %1, %2</source>
        <translation>الصفحات في الورقة: %1، %2</translation>
    </message>
    <message>
        <source>Pages per sheet: %1, %2, with borders</source>
        <translation>الصفحات في الورقة: %1، %2، بإطارات</translation>
    </message>
    <message>
        <source>Scaling: %1</source>
        <translation>التحجيم: %1</translation>
    </message>
    <message>
        <source>a side has room for 1, 2, 4, 6, 9 or 16 pages</source>
        <translation>يتسع وجه الورقة لـ 1 أو 2 أو 4 أو 6 أو 9 أو 16 صفحة</translation>
    </message>
    <message>
        <source>none of these pages has an even number</source>
        <translation>ليس بين هذه الصفحات صفحة زوجية الرقم</translation>
    </message>
    <message>
        <source>none of these pages has an odd number</source>
        <translation>ليس بين هذه الصفحات صفحة فردية الرقم</translation>
    </message>
    <message>
        <source>pages are scaled by a number from %1 to %2 percent</source>
        <translation>تُحجَّم الصفحات بعدد من %1 إلى %2 بالمئة</translation>
    </message>
    <message numerus="yes">
        <source>Page(s) %1 larger than the places on the sheet: what does not fit is cut off.</source>
        <translation>
            <numerusform>الصفحة %1 أكبر من موضعها على الورقة: يُقطع ما لا يتسع.</numerusform>
            <numerusform>الصفحة %1 أكبر من موضعها على الورقة: يُقطع ما لا يتسع.</numerusform>
            <numerusform>الصفحتان %1 أكبر من موضعيهما على الورقة: يُقطع ما لا يتسع.</numerusform>
            <numerusform>الصفحات %1 أكبر من مواضعها على الورقة: يُقطع ما لا يتسع.</numerusform>
            <numerusform>الصفحات %1 أكبر من مواضعها على الورقة: يُقطع ما لا يتسع.</numerusform>
            <numerusform>الصفحات %1 أكبر من مواضعها على الورقة: يُقطع ما لا يتسع.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose fewer pages per sheet, or let the pages be made to fit.</source>
        <translation>اختر صفحات أقل في الورقة، أو دع الصفحات تُصغَّر لتلائم مواضعها.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
    <message>
        <source>On the server: held %1</source>
        <translation>على الخادم: معلَّقة %1</translation>
    </message>
    <message>
        <source>Priority: %1</source>
        <translation>الأولوية: %1</translation>
    </message>
    <message>
        <source>a priority is a number from %1 to %2, the higher the sooner</source>
        <translation>الأولوية عدد من %1 إلى %2، وكلما زاد كان الطبع أسرع</translation>
    </message>
    <message>
        <source>a time is written HH:MM, in UTC</source>
        <translation>يُكتب الوقت بالصيغة &#x2066;HH:MM&#x2069; بتوقيت UTC</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>أُلغيت</translation>
    </message>
    <message>
        <source>given up by the print server</source>
        <translation>تخلّى عنها خادم الطباعة</translation>
    </message>
    <message>
        <source>held</source>
        <translation>معلَّقة</translation>
    </message>
    <message>
        <source>held %1</source>
        <translation>معلَّقة %1</translation>
    </message>
    <message>
        <source>it takes immediate, hold, a time HH:MM in UTC, or a word of job-hold-until: %1</source>
        <translation>يُقبل &#x2066;immediate&#x2069; أو &#x2066;hold&#x2069; أو وقت &#x2066;HH:MM&#x2069; بتوقيت UTC أو إحدى كلمات &#x2066;job-hold-until: %1&#x2069;</translation>
    </message>
    <message>
        <source>no longer on the print server, which does not keep how jobs ended</source>
        <translation>لم تعد على خادم الطباعة، وهو لا يحفظ كيف انتهت المهام</translation>
    </message>
    <message>
        <source>printed</source>
        <translation>طُبعت</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>قيد الطباعة</translation>
    </message>
    <message>
        <source>that is for a job that is there already; use “lp -i JOB -H %1”</source>
        <translation>هذا لمهمة موجودة من قبل؛ استخدم الأمر &#x2066;lp -i JOB -H %1&#x2069;</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>حتى &#x2068;%1&#x2069;</translation>
    </message>
    <message>
        <source>until daytime (6 to 18 h)</source>
        <translation>حتى النهار (من 6 إلى 18)</translation>
    </message>
    <message>
        <source>until somebody releases it</source>
        <translation>حتى يُفرج عنها</translation>
    </message>
    <message>
        <source>until the evening (18 to 6 h)</source>
        <translation>حتى المساء (من 18 إلى 6)</translation>
    </message>
    <message>
        <source>until the night (18 to 6 h)</source>
        <translation>حتى الليل (من 18 إلى 6)</translation>
    </message>
    <message>
        <source>until the second shift (16 to 24 h)</source>
        <translation>حتى الوردية الثانية (من 16 إلى 24)</translation>
    </message>
    <message>
        <source>until the third shift (0 to 8 h)</source>
        <translation>حتى الوردية الثالثة (من 0 إلى 8)</translation>
    </message>
    <message>
        <source>until the weekend</source>
        <translation>حتى عطلة نهاية الأسبوع</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>في الانتظار</translation>
    </message>
    <message>
        <source>waiting, the printer is stopped</source>
        <translation>في الانتظار، الطابعة متوقفة</translation>
    </message>
    <message>
        <source>%1 was not cancelled: %2</source>
        <translation>لم تُلغَ &#x2068;%1&#x2069;: &#x2068;%2&#x2069;</translation>
    </message>
    <message numerus="yes">
        <source>%n page(s) so far</source>
        <translation>
            <numerusform>لا صفحات حتى الآن</numerusform>
            <numerusform>صفحة واحدة حتى الآن</numerusform>
            <numerusform>صفحتان حتى الآن</numerusform>
            <numerusform>%n صفحات حتى الآن</numerusform>
            <numerusform>%n صفحة حتى الآن</numerusform>
            <numerusform>%n صفحة حتى الآن</numerusform>
        </translation>
    </message>
    <message>
        <source>there is no home folder to keep settings in; set HOME</source>
        <translation>لا يوجد مجلد منزل لحفظ الإعدادات فيه؛ عيّن HOME</translation>
    </message>
</context>
<context>
    <name>JobDetails</name>
    <message>
        <source>Before you print</source>
        <translation>قبل أن تطبع</translation>
    </message>
    <message>
        <source>Set for this job</source>
        <translation>معيَّن لهذه المهمة</translation>
    </message>
    <message>
        <source>Not sent</source>
        <translation>لا يُرسل</translation>
    </message>
    <message>
        <source>As the device has it</source>
        <translation>كما في الجهاز</translation>
    </message>
    <message>
        <source>Nothing is set: the device decides everything.</source>
        <translation>لم يُعيَّن شيء: يقرر الجهاز كل شيء.</translation>
    </message>
    <message>
        <source>What Will Be Sent</source>
        <translation>ما الذي سيُرسل</translation>
    </message>
    <message>
        <source>View</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>In Words</source>
        <translation>بالكلمات</translation>
    </message>
    <message>
        <source>Ticket</source>
        <translation>التذكرة</translation>
    </message>
    <message>
        <source>Settings in words</source>
        <translation>الإعدادات بالكلمات</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>Copies the text that is shown</source>
        <translation>ينسخ النص المعروض</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>JobTiming</name>
    <message>
        <source>&amp;Print:</source>
        <translation>ال&amp;طباعة:</translation>
    </message>
    <message>
        <source>At a time</source>
        <translation>في وقت محدد</translation>
    </message>
    <message>
        <source>At night (18 to 6 h)</source>
        <translation>ليلًا (من 18 إلى 6)</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>فورًا</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>في عطلة نهاية الأسبوع</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>In the daytime (6 to 18 h)</source>
        <translation>نهارًا (من 6 إلى 18)</translation>
    </message>
    <message>
        <source>In the evening (18 to 6 h)</source>
        <translation>مساءً (من 18 إلى 6)</translation>
    </message>
    <message>
        <source>In the second shift (16 to 24 h)</source>
        <translation>في الوردية الثانية (من 16 إلى 24)</translation>
    </message>
    <message>
        <source>In the third shift (0 to 8 h)</source>
        <translation>في الوردية الثالثة (من 0 إلى 8)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Of 1 to 100; the higher, the sooner</source>
        <translation>من 1 إلى 100؛ كلما زادت كان الطبع أسرع</translation>
    </message>
    <message>
        <source>P&amp;riority:</source>
        <translation>الأ&amp;ولوية:</translation>
    </message>
    <message>
        <source>The next time that the clock shows this</source>
        <translation>المرة التالية التي تبلغ فيها الساعة هذا الوقت</translation>
    </message>
    <message>
        <source>The print server keeps the job until then; it is sent when you press Print.</source>
        <translation>يحتفظ خادم الطباعة بالمهمة حتى ذلك الحين؛ وتُرسل عند الضغط على «طباعة».</translation>
    </message>
    <message>
        <source>Time to print at</source>
        <translation>وقت الطباعة</translation>
    </message>
    <message>
        <source>When somebody releases it</source>
        <translation>عندما يُفرج عنها</translation>
    </message>
    <message>
        <source>When to Print</source>
        <translation>موعد الطباعة</translation>
    </message>
</context>
<context>
    <name>Layout</name>
    <message>
        <source>%1 %</source>
        <comment>a percentage</comment>
        <translation>%1 %</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 و%n غيرها</numerusform>
            <numerusform>%1 و%n غيرها</numerusform>
            <numerusform>%1 و%n غيرها</numerusform>
            <numerusform>%1 و%n غيرها</numerusform>
            <numerusform>%1 و%n غيرها</numerusform>
            <numerusform>%1 و%n غيرها</numerusform>
        </translation>
    </message>
    <message>
        <source>Shrink larger pages</source>
        <translation>تصغير الصفحات الأكبر</translation>
    </message>
    <message>
        <source>Fit to paper</source>
        <translation>ملاءمة الورق</translation>
    </message>
    <message>
        <source>Fill the paper</source>
        <translation>ملء الورق</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>نسبة مئوية</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Right, then down</source>
        <translation>يمينًا ثم لأسفل</translation>
    </message>
    <message>
        <source>Right, then up</source>
        <translation>يمينًا ثم لأعلى</translation>
    </message>
    <message>
        <source>Left, then down</source>
        <translation>يسارًا ثم لأسفل</translation>
    </message>
    <message>
        <source>Left, then up</source>
        <translation>يسارًا ثم لأعلى</translation>
    </message>
    <message>
        <source>Down, then right</source>
        <translation>لأسفل ثم يمينًا</translation>
    </message>
    <message>
        <source>Down, then left</source>
        <translation>لأسفل ثم يسارًا</translation>
    </message>
    <message>
        <source>Up, then right</source>
        <translation>لأعلى ثم يمينًا</translation>
    </message>
    <message>
        <source>Up, then left</source>
        <translation>لأعلى ثم يسارًا</translation>
    </message>
    <message>
        <source>Odd and even</source>
        <translation>الفردية والزوجية</translation>
    </message>
    <message>
        <source>Odd pages</source>
        <translation>الصفحات الفردية</translation>
    </message>
    <message>
        <source>Even pages</source>
        <translation>الصفحات الزوجية</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>The device panels are missing (%1).</source>
        <translation>لوحات الجهاز مفقودة (%1).</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>Cancel Job</source>
        <translation>إلغاء المهمة</translation>
    </message>
</context>
<context>
    <name>Panels</name>
    <message>
        <source>there is no such bundle</source>
        <translation>لا توجد حزمة كهذه</translation>
    </message>
    <message>
        <source>holds no dictionary</source>
        <translation>لا يحتوي على قاموس</translation>
    </message>
    <message>
        <source>missing or not a string</source>
        <translation>مفقود أو ليس سلسلة نصية</translation>
    </message>
    <message>
        <source>%1 is already the bundle %2</source>
        <translation>&#x2068;%1&#x2069; هو بالفعل الحزمة &#x2068;%2&#x2069;</translation>
    </message>
    <message>
        <source>not the name of a file</source>
        <translation>ليس اسم ملف</translation>
    </message>
    <message>
        <source>the module has no such function</source>
        <translation>ليست في الوحدة دالة كهذه</translation>
    </message>
    <message>
        <source>it gave no interface (%1)</source>
        <translation>لم يعطِ واجهة (%1)</translation>
    </message>
    <message>
        <source>it failed (%1)</source>
        <translation>فشل (%1)</translation>
    </message>
    <message>
        <source>its interface lacks an operation</source>
        <translation>تنقص واجهته عملية</translation>
    </message>
</context>
<context>
    <name>Password</name>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>The author of “%1” does not allow printing it without the owner’s password.</source>
        <translation>لا يسمح مؤلف «&#x2068;%1&#x2069;» بطباعته بلا كلمة مرور المالك.</translation>
    </message>
    <message>
        <source>“%1” is locked with a password.</source>
        <translation>«&#x2068;%1&#x2069;» مقفل بكلمة مرور.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;كلمة المرور:</translation>
    </message>
    <message>
        <source>Password of the document</source>
        <translation>كلمة مرور المستند</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>إ&amp;ظهار</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation>كلمة المرور هذه غير صحيحة.</translation>
    </message>
    <message>
        <source>This is not the owner’s password.</source>
        <translation>هذه ليست كلمة مرور المالك.</translation>
    </message>
</context>
<context>
    <name>People</name>
    <message>
        <source>address book</source>
        <translation>دفتر العناوين</translation>
    </message>
    <message>
        <source>none is set up; make one in the desktop’s contacts</source>
        <translation>لم يُعَدّ أي دفتر؛ أنشئ دفترًا في جهات اتصال سطح المكتب</translation>
    </message>
    <message>
        <source>this address book cannot be changed; make another one the default in the desktop’s contacts</source>
        <translation>لا يمكن تغيير دفتر العناوين هذا؛ اجعل دفترًا آخر هو الافتراضي في جهات اتصال سطح المكتب</translation>
    </message>
    <message>
        <source>nobody of that entry is there any more; choose somebody else</source>
        <translation>لم يعد أحد من هذا الإدخال موجودًا؛ اختر شخصًا آخر</translation>
    </message>
    <message>
        <source>the desktop does not answer; log in anew</source>
        <translation>لا يجيب سطح المكتب؛ سجّل الدخول من جديد</translation>
    </message>
    <message>
        <source>the system has no thread to give; end other programs and try again</source>
        <translation>لا يستطيع النظام تخصيص مسار تنفيذ؛ أنهِ برامج أخرى وحاول مجددًا</translation>
    </message>
    <message>
        <source>stopped before it had answered</source>
        <translation>توقف قبل أن يجيب</translation>
    </message>
    <message>
        <source>it does not answer (%1); try again</source>
        <translation>لا يجيب (%1)؛ حاول مجددًا</translation>
    </message>
    <message>
        <source>there is no desktop session with an address book; log in to a desktop</source>
        <translation>لا توجد جلسة سطح مكتب فيها دفتر عناوين؛ سجّل الدخول إلى سطح مكتب</translation>
    </message>
    <message>
        <source>this desktop has no address book; install the package evolution-data-server</source>
        <translation>ليس لسطح المكتب هذا دفتر عناوين؛ ثبّت الحزمة evolution-data-server</translation>
    </message>
    <message>
        <source>the part of kelvo-print that asks the address book is not installed; install the package kelvo-print-address-book</source>
        <translation>جزء kelvo-print الذي يسأل دفتر العناوين غير مثبت؛ ثبّت الحزمة kelvo-print-address-book</translation>
    </message>
    <message>
        <source>the part of kelvo-print that asks the address book cannot be loaded (%1); install the package kelvo-print-address-book anew, with what it needs</source>
        <translation>لا يمكن تحميل جزء kelvo-print الذي يسأل دفتر العناوين (%1)؛ أعد تثبيت الحزمة kelvo-print-address-book مع ما تحتاج إليه</translation>
    </message>
    <message>
        <source>this part that asks the address book is not that of kelvo-print %1; install the package kelvo-print-address-book anew</source>
        <translation>هذا الجزء الذي يسأل دفتر العناوين ليس جزء &#x2066;kelvo-print %1&#x2069;؛ أعد تثبيت الحزمة kelvo-print-address-book</translation>
    </message>
    <message>
        <source>vCards</source>
        <translation>بطاقات vCard</translation>
    </message>
    <message>
        <source>more than %1 MiB; divide the file</source>
        <translation>أكثر من %1 م.ب؛ قسّم الملف</translation>
    </message>
    <message>
        <source>more than %1 cards; divide the file</source>
        <translation>أكثر من %1 بطاقة؛ قسّم الملف</translation>
    </message>
    <message>
        <source>there is no card in it; choose a vCard file (.vcf)</source>
        <translation>لا بطاقة فيه؛ اختر ملف vCard &#x2066;(.vcf)&#x2069;</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>Sheet %1, back · blank</source>
        <translation>الورقة %1، الظهر · فارغ</translation>
    </message>
    <message>
        <source>Sheet %1 · %2</source>
        <translation>الورقة %1 · %2</translation>
    </message>
    <message>
        <source>Sheets %1–%2 · %3</source>
        <translation>الأوراق &#x2066;%1–%2&#x2069; · %3</translation>
    </message>
    <message>
        <source>the printer decides where it goes</source>
        <translation>الطابعة تقرر موضعها</translation>
    </message>
    <message>
        <source>larger than the paper</source>
        <translation>أكبر من الورق</translation>
    </message>
    <message>
        <source>shown top to bottom; the printer decides</source>
        <translation>معروض من الأعلى إلى الأسفل؛ الطابعة تقرر ذلك</translation>
    </message>
    <message>
        <source>shown left to right; the printer decides</source>
        <translation>معروض من اليسار إلى اليمين؛ الطابعة تقرر ذلك</translation>
    </message>
    <message>
        <source>“%1” cannot be shown</source>
        <translation>لا يمكن عرض «&#x2068;%1&#x2069;»</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n sheet(s)</source>
        <translation>
            <numerusform>%1، لا أوراق</numerusform>
            <numerusform>%1، ورقة واحدة</numerusform>
            <numerusform>%1، ورقتان</numerusform>
            <numerusform>%1، %n أوراق</numerusform>
            <numerusform>%1، %n ورقة</numerusform>
            <numerusform>%1، %n ورقة</numerusform>
        </translation>
    </message>
    <message>
        <source>Blank</source>
        <translation>فارغ</translation>
    </message>
    <message numerus="yes">
        <source>%1 · page(s) %2 of %3</source>
        <translation>
            <numerusform>%1 · الصفحة %2 من %3</numerusform>
            <numerusform>%1 · الصفحة %2 من %3</numerusform>
            <numerusform>%1 · الصفحتان %2 من %3</numerusform>
            <numerusform>%1 · الصفحات %2 من %3</numerusform>
            <numerusform>%1 · الصفحات %2 من %3</numerusform>
            <numerusform>%1 · الصفحات %2 من %3</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, one blank</source>
        <translation>%1، وواحدة فارغة</translation>
    </message>
    <message>
        <source>Sheet %1</source>
        <translation>الورقة %1</translation>
    </message>
    <message>
        <source>Sheet %1, back</source>
        <translation>الورقة %1، الظهر</translation>
    </message>
    <message>
        <source>Sheet %1, front</source>
        <translation>الورقة %1، الوجه</translation>
    </message>
    <message>
        <source>larger than the places on the sheet</source>
        <translation>أكبر من المواضع على الورقة</translation>
    </message>
    <message>
        <source>at %1</source>
        <comment>a percentage of its size</comment>
        <translation>بنسبة %1</translation>
    </message>
</context>
<context>
    <name>Scripts</name>
    <message>
        <source>Chinese or Japanese</source>
        <translation>الصينية أو اليابانية</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>الصينية</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>اليابانية</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>الكورية</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>العربية</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>الأرمنية</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>البنغالية</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>السيريلية</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation>الديفاناغارية</translation>
    </message>
    <message>
        <source>Ethiopic</source>
        <translation>الإثيوبية</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>الجورجية</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>اليونانية</translation>
    </message>
    <message>
        <source>Gujarati</source>
        <translation>الغوجاراتية</translation>
    </message>
    <message>
        <source>Gurmukhi</source>
        <translation>الغورموخية</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>العبرية</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation>الكانادية</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation>الخميرية</translation>
    </message>
    <message>
        <source>Lao</source>
        <translation>اللاوية</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation>المالايالامية</translation>
    </message>
    <message>
        <source>Burmese</source>
        <translation>البورمية</translation>
    </message>
    <message>
        <source>Sinhala</source>
        <translation>السنهالية</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation>التاميلية</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation>التيلوغوية</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>التايلاندية</translation>
    </message>
    <message>
        <source>Tibetan</source>
        <translation>التبتية</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>caution: %1</source>
        <translation>تنبيه: %1</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a clause that stands alone</comment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Only the printer adds this: %1.</source>
        <translation>الطابعة وحدها تضيف هذا: %1.</translation>
    </message>
    <message>
        <source>the booklet</source>
        <translation>الكتيب</translation>
    </message>
    <message>
        <source>the watermark</source>
        <translation>العلامة المائية</translation>
    </message>
    <message>
        <source>covers and inserts</source>
        <translation>الأغلفة والإدراجات</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a document, and what is to be said of it</comment>
        <translation>&#x2066;%1&#x2069;: %2</translation>
    </message>
</context>
<context>
    <name>StandardWords</name>
    <message>
        <source>Two-sided printing</source>
        <translation>الطباعة على الوجهين</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>الألوان</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>مصدر الورق</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>نوع الورق</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>حجم الورق</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>جودة الطباعة</translation>
    </message>
    <message>
        <source>Output destination</source>
        <translation>وجهة الإخراج</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>Optimize for</source>
        <translation>تحسين من أجل</translation>
    </message>
    <message>
        <source>Stapling</source>
        <translation>التدبيس</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>التثقيب</translation>
    </message>
    <message>
        <source>Folding</source>
        <translation>الطي</translation>
    </message>
    <message>
        <source>Trimming</source>
        <translation>القص</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>التجليد</translation>
    </message>
    <message>
        <source>Other finishing</source>
        <translation>تشطيب آخر</translation>
    </message>
    <message>
        <source>Finishing preset</source>
        <translation>إعداد تشطيب مسبق</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>التشطيب</translation>
    </message>
    <message>
        <source>1-sided print</source>
        <translation>طباعة على وجه واحد</translation>
    </message>
    <message>
        <source>2-sided print</source>
        <translation>طباعة على الوجهين</translation>
    </message>
    <message>
        <source>2-sided print, flip on short edge</source>
        <translation>على الوجهين، القلب على الحافة القصيرة</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>أسود وأبيض</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Automatic, black and white</source>
        <translation>تلقائي، أسود وأبيض</translation>
    </message>
    <message>
        <source>Black only, no shades</source>
        <translation>أسود فقط دون تدرّج</translation>
    </message>
    <message>
        <source>Black and one color</source>
        <translation>أسود ولون واحد</translation>
    </message>
    <message>
        <source>Black only, mixed from colors</source>
        <translation>أسود فقط ممزوج من الألوان</translation>
    </message>
    <message>
        <source>Black and white, mixed from colors</source>
        <translation>أسود وأبيض ممزوج من الألوان</translation>
    </message>
    <message>
        <source>Color (CMYK)</source>
        <translation>ألوان (CMYK)</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>مسودة</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادية</translation>
    </message>
    <message>
        <source>High</source>
        <translation>عالية</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>الدرج الرئيسي</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>الدرج البديل</translation>
    </message>
    <message>
        <source>Alternate roll</source>
        <translation>اللفة البديلة</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>درج التغذية اليدوية</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>تغذية يدوية</translation>
    </message>
    <message>
        <source>Top tray</source>
        <translation>الدرج العلوي</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>الدرج الأوسط</translation>
    </message>
    <message>
        <source>Bottom tray</source>
        <translation>الدرج السفلي</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>الدرج الأيسر</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>الدرج الأيمن</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>الدرج المركزي</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>الدرج الخلفي</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>الدرج الجانبي</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>درج الأقراص</translation>
    </message>
    <message>
        <source>Envelope feed</source>
        <translation>تغذية المظاريف</translation>
    </message>
    <message>
        <source>High-capacity tray</source>
        <translation>درج السعة الكبيرة</translation>
    </message>
    <message>
        <source>Main roll</source>
        <translation>اللفة الرئيسية</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>درج الصور</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>الدرج %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>اللفة %1</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>أي نوع</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>نوع آخر</translation>
    </message>
    <message>
        <source>Plain paper</source>
        <translation>ورق عادي</translation>
    </message>
    <message>
        <source>Thin paper</source>
        <translation>ورق رقيق</translation>
    </message>
    <message>
        <source>Thick paper</source>
        <translation>ورق سميك</translation>
    </message>
    <message>
        <source>Thick coated paper</source>
        <translation>ورق سميك مطلي</translation>
    </message>
    <message>
        <source>Coated paper</source>
        <translation>ورق مطلي</translation>
    </message>
    <message>
        <source>Inkjet paper</source>
        <translation>ورق نفث حبر</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>ورق فاخر</translation>
    </message>
    <message>
        <source>Bond paper</source>
        <translation>ورق سندات</translation>
    </message>
    <message>
        <source>Recycled paper</source>
        <translation>ورق معاد تدويره</translation>
    </message>
    <message>
        <source>Colored paper</source>
        <translation>ورق ملوّن</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>ورق برأسية</translation>
    </message>
    <message>
        <source>Preprinted paper</source>
        <translation>ورق مطبوع مسبقًا</translation>
    </message>
    <message>
        <source>Prepunched paper</source>
        <translation>ورق مثقوب مسبقًا</translation>
    </message>
    <message>
        <source>Cotton paper</source>
        <translation>ورق قطني</translation>
    </message>
    <message>
        <source>Archival paper</source>
        <translation>ورق أرشيفي</translation>
    </message>
    <message>
        <source>Cardstock</source>
        <translation>ورق مقوّى</translation>
    </message>
    <message>
        <source>Cardboard</source>
        <translation>كرتون</translation>
    </message>
    <message>
        <source>Continuous paper</source>
        <translation>ورق متصل</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>قرص</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>مظروف</translation>
    </message>
    <message>
        <source>Plain envelope</source>
        <translation>مظروف عادي</translation>
    </message>
    <message>
        <source>Window envelope</source>
        <translation>مظروف بنافذة</translation>
    </message>
    <message>
        <source>Fabric</source>
        <translation>قماش</translation>
    </message>
    <message>
        <source>Film</source>
        <translation>فيلم</translation>
    </message>
    <message>
        <source>Back-print film</source>
        <translation>فيلم للطباعة الخلفية</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>شفافية</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ملصقات</translation>
    </message>
    <message>
        <source>Continuous labels</source>
        <translation>ملصقات متصلة</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>ورق صور</translation>
    </message>
    <message>
        <source>Photo paper, glossy</source>
        <translation>ورق صور لامع</translation>
    </message>
    <message>
        <source>Photo paper, high gloss</source>
        <translation>ورق صور شديد اللمعان</translation>
    </message>
    <message>
        <source>Photo paper, matte</source>
        <translation>ورق صور مطفأ</translation>
    </message>
    <message>
        <source>Photo paper, satin</source>
        <translation>ورق صور ساتان</translation>
    </message>
    <message>
        <source>Photo paper, semi-gloss</source>
        <translation>ورق صور نصف لامع</translation>
    </message>
    <message>
        <source>Photo film</source>
        <translation>فيلم صور</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>ورق ألسنة</translation>
    </message>
    <message>
        <source>Precut tabs</source>
        <translation>ألسنة مقطوعة مسبقًا</translation>
    </message>
    <message>
        <source>Fanfold paper</source>
        <translation>ورق متصل مطوي</translation>
    </message>
    <message>
        <source>Multi-part form</source>
        <translation>نموذج متعدد الطبقات</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>الوجه إلى أعلى</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>الوجه إلى أسفل</translation>
    </message>
    <message>
        <source>My mailbox</source>
        <translation>صندوق بريدي</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>صندوق البريد %1</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>المكدّس %1</translation>
    </message>
    <message>
        <source>Graphics</source>
        <translation>الرسومات</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>الصور</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>Text and graphics</source>
        <translation>النص والرسومات</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>1 staple</source>
        <translation>دبوس واحد</translation>
    </message>
    <message>
        <source>1 staple, top left</source>
        <translation>دبوس واحد، أعلى اليسار</translation>
    </message>
    <message>
        <source>1 staple, bottom left</source>
        <translation>دبوس واحد، أسفل اليسار</translation>
    </message>
    <message>
        <source>1 staple, top right</source>
        <translation>دبوس واحد، أعلى اليمين</translation>
    </message>
    <message>
        <source>1 staple, bottom right</source>
        <translation>دبوس واحد، أسفل اليمين</translation>
    </message>
    <message>
        <source>Along an edge</source>
        <translation>على طول حافة</translation>
    </message>
    <message>
        <source>Along the left edge</source>
        <translation>على طول الحافة اليسرى</translation>
    </message>
    <message>
        <source>Along the top edge</source>
        <translation>على طول الحافة العليا</translation>
    </message>
    <message>
        <source>Along the right edge</source>
        <translation>على طول الحافة اليمنى</translation>
    </message>
    <message>
        <source>Along the bottom edge</source>
        <translation>على طول الحافة السفلى</translation>
    </message>
    <message>
        <source>Through the fold</source>
        <translation>عبر الطية</translation>
    </message>
    <message>
        <source>2 staples, left</source>
        <translation>دبوسان، اليسار</translation>
    </message>
    <message>
        <source>2 staples, top</source>
        <translation>دبوسان، الأعلى</translation>
    </message>
    <message>
        <source>2 staples, right</source>
        <translation>دبوسان، اليمين</translation>
    </message>
    <message>
        <source>2 staples, bottom</source>
        <translation>دبوسان، الأسفل</translation>
    </message>
    <message>
        <source>3 staples, left</source>
        <translation>ثلاثة دبابيس، اليسار</translation>
    </message>
    <message>
        <source>3 staples, top</source>
        <translation>ثلاثة دبابيس، الأعلى</translation>
    </message>
    <message>
        <source>3 staples, right</source>
        <translation>ثلاثة دبابيس، اليمين</translation>
    </message>
    <message>
        <source>3 staples, bottom</source>
        <translation>ثلاثة دبابيس، الأسفل</translation>
    </message>
    <message>
        <source>Holes</source>
        <translation>ثقوب</translation>
    </message>
    <message>
        <source>2 holes, left</source>
        <translation>ثقبان، اليسار</translation>
    </message>
    <message>
        <source>2 holes, top</source>
        <translation>ثقبان، الأعلى</translation>
    </message>
    <message>
        <source>2 holes, right</source>
        <translation>ثقبان، اليمين</translation>
    </message>
    <message>
        <source>2 holes, bottom</source>
        <translation>ثقبان، الأسفل</translation>
    </message>
    <message>
        <source>3 holes, left</source>
        <translation>ثلاثة ثقوب، اليسار</translation>
    </message>
    <message>
        <source>3 holes, top</source>
        <translation>ثلاثة ثقوب، الأعلى</translation>
    </message>
    <message>
        <source>3 holes, right</source>
        <translation>ثلاثة ثقوب، اليمين</translation>
    </message>
    <message>
        <source>3 holes, bottom</source>
        <translation>ثلاثة ثقوب، الأسفل</translation>
    </message>
    <message>
        <source>4 holes, left</source>
        <translation>أربعة ثقوب، اليسار</translation>
    </message>
    <message>
        <source>4 holes, top</source>
        <translation>أربعة ثقوب، الأعلى</translation>
    </message>
    <message>
        <source>4 holes, right</source>
        <translation>أربعة ثقوب، اليمين</translation>
    </message>
    <message>
        <source>4 holes, bottom</source>
        <translation>أربعة ثقوب، الأسفل</translation>
    </message>
    <message>
        <source>Many holes, left</source>
        <translation>ثقوب كثيرة، اليسار</translation>
    </message>
    <message>
        <source>Many holes, top</source>
        <translation>ثقوب كثيرة، الأعلى</translation>
    </message>
    <message>
        <source>Many holes, right</source>
        <translation>ثقوب كثيرة، اليمين</translation>
    </message>
    <message>
        <source>Many holes, bottom</source>
        <translation>ثقوب كثيرة، الأسفل</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>طي</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>طي أكورديون</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>طي بوابة مزدوج</translation>
    </message>
    <message>
        <source>Engineering Z fold</source>
        <translation>طي هندسي على شكل Z</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>طي بوابة</translation>
    </message>
    <message>
        <source>Half fold</source>
        <translation>طي نصفي</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>طي Z نصفي</translation>
    </message>
    <message>
        <source>Left gate fold</source>
        <translation>طي بوابة أيسر</translation>
    </message>
    <message>
        <source>C fold</source>
        <translation>طي على شكل C</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>طي متوازٍ</translation>
    </message>
    <message>
        <source>Poster fold</source>
        <translation>طي ملصق</translation>
    </message>
    <message>
        <source>Right gate fold</source>
        <translation>طي بوابة أيمن</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>طي على شكل Z</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>After each page</source>
        <translation>بعد كل صفحة</translation>
    </message>
    <message>
        <source>After each document</source>
        <translation>بعد كل مستند</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>بعد كل نسخة</translation>
    </message>
    <message>
        <source>After the job</source>
        <translation>بعد المهمة</translation>
    </message>
    <message>
        <source>Bind</source>
        <translation>تجليد</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>الحافة اليسرى</translation>
    </message>
    <message>
        <source>Top edge</source>
        <translation>الحافة العليا</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>الحافة اليمنى</translation>
    </message>
    <message>
        <source>Bottom edge</source>
        <translation>الحافة السفلى</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>غلاف</translation>
    </message>
    <message>
        <source>Bale</source>
        <translation>حزم</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>كتيّب</translation>
    </message>
    <message>
        <source>Offset each set</source>
        <translation>إزاحة كل مجموعة</translation>
    </message>
    <message>
        <source>Coat</source>
        <translation>طلاء</translation>
    </message>
    <message>
        <source>Laminate</source>
        <translation>تغليف بلاستيكي</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1، دون هوامش</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>&#x2066;%1 × %2&#x2069; مم</translation>
    </message>
    <message>
        <source>%1 × %2 in</source>
        <translation>&#x2066;%1 × %2&#x2069; بوصة</translation>
    </message>
    <message>
        <source>Envelope %1</source>
        <translation>مظروف %1</translation>
    </message>
    <message>
        <source>Index card %1</source>
        <translation>بطاقة فهرسة %1</translation>
    </message>
    <message>
        <source>Photo %1</source>
        <translation>صورة %1</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>&#x2066;%1&#x2069; نقطة في البوصة</translation>
    </message>
    <message>
        <source>%1 × %2 dpi</source>
        <translation>&#x2066;%1 × %2&#x2069; نقطة في البوصة</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>بطاقة بريدية</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>بطاقة بريدية مزدوجة</translation>
    </message>
</context>
<context>
    <name>Watermark</name>
    <message>
        <source>the system has no thread to read it on; close programs and choose it again</source>
        <translation>لا يستطيع النظام تخصيص مسار تنفيذ لقراءتها؛ أغلق برامج أخرى واخترها مجددًا</translation>
    </message>
    <message>
        <source>Reading the picture…</source>
        <translation>تجري قراءة الصورة…</translation>
    </message>
    <message>
        <source>The picture cannot be shown.</source>
        <translation>لا يمكن عرض الصورة.</translation>
    </message>
</context>
<context>
    <name>Window</name>
    <message>
        <source>PDF, PostScript, text and pictures</source>
        <translation>PDF وPostScript ونصوص وصور</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>كل الملفات</translation>
    </message>
    <message numerus="yes">
        <source>%1 (and %n more)</source>
        <translation>
            <numerusform>%1</numerusform>
            <numerusform>%1 (وغيره: %n)</numerusform>
            <numerusform>%1 (وغيره: %n)</numerusform>
            <numerusform>%1 (وغيره: %n)</numerusform>
            <numerusform>%1 (وغيره: %n)</numerusform>
            <numerusform>%1 (وغيره: %n)</numerusform>
        </translation>
    </message>
    <message>
        <source>its Info.plist names no factory for print dialog panels</source>
        <translation>لا يذكر ملف Info.plist الخاص بها مصنعًا للوحات مربع حوار الطباعة</translation>
    </message>
    <message>
        <source>it has no function %1</source>
        <translation>ليست فيها الدالة &#x2068;%1&#x2069;</translation>
    </message>
    <message>
        <source>%1 makes no panels</source>
        <translation>لا تُنشئ &#x2068;%1&#x2069; لوحات</translation>
    </message>
    <message>
        <source>it has no panel interface, status %1</source>
        <translation>ليست لها واجهة لوحات، الحالة &#x2066;%1&#x2069;</translation>
    </message>
    <message>
        <source>Prologue failed with %1</source>
        <translation>فشلت العملية Prologue بالحالة &#x2066;%1&#x2069;</translation>
    </message>
    <message>
        <source>Initialize failed with %1</source>
        <translation>فشلت العملية Initialize بالحالة &#x2066;%1&#x2069;</translation>
    </message>
    <message>
        <source>%1: panel left out: %2</source>
        <translation>&#x2068;%1&#x2069;: استُبعدت لوحة: %2</translation>
    </message>
    <message>
        <source>%1: the panel %2 could not be opened</source>
        <translation>&#x2068;%1&#x2069;: تعذّر فتح اللوحة &#x2068;%2&#x2069;</translation>
    </message>
    <message>
        <source>there is no such panel here; there are: %1</source>
        <translation>لا توجد هنا لوحة كهذه؛ الموجود: %1</translation>
    </message>
    <message>
        <source>there are no tabs</source>
        <translation>لا توجد علامات تبويب</translation>
    </message>
    <message>
        <source>the tab cannot be chosen</source>
        <translation>لا يمكن اختيار علامة التبويب</translation>
    </message>
    <message>
        <source>there is no such tab here; there are: %1</source>
        <translation>لا توجد هنا علامة تبويب كهذه؛ الموجود: %1</translation>
    </message>
    <message>
        <source>it is in tab %1, %2</source>
        <translation>هو في علامة التبويب %1، &#x2068;%2&#x2069;</translation>
    </message>
    <message>
        <source>it is in panel %1</source>
        <translation>هو في اللوحة %1</translation>
    </message>
    <message>
        <source>it is in dialogs that are not open</source>
        <translation>هو في مربعات حوار غير مفتوحة</translation>
    </message>
    <message>
        <source>it is in the dialog “%1”</source>
        <translation>هو في مربع الحوار «%1»</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>this part that reads window descriptions is not installed beside the program’s libraries; install kelvo-print anew</source>
        <translation>هذا الجزء الذي يقرأ أوصاف النوافذ غير مثبت بجانب مكتبات البرنامج؛ أعد تثبيت kelvo-print</translation>
    </message>
    <message>
        <source>this part that reads window descriptions cannot be loaded (%1); install kelvo-print anew, with the packages that it needs</source>
        <translation>لا يمكن تحميل هذا الجزء الذي يقرأ أوصاف النوافذ (%1)؛ أعد تثبيت kelvo-print مع الحزم التي يحتاج إليها</translation>
    </message>
    <message>
        <source>this is not the part that reads window descriptions of kelvo-print %1; install kelvo-print anew</source>
        <translation>هذا ليس الجزء الذي يقرأ أوصاف النوافذ في &#x2066;kelvo-print %1&#x2069;؛ أعد تثبيت kelvo-print</translation>
    </message>
    <message>
        <source>“%1” is of the class “%2”; use one of %3</source>
        <translation>«&#x2068;%1&#x2069;» من الصنف «&#x2068;%2&#x2069;»؛ استخدم أحد %3</translation>
    </message>
    <message>
        <source>“%1” has the control ID “%2”; write four characters, a blank and a number, such as “KPDE 102”</source>
        <translation>معرّف التحكم للعنصر «&#x2068;%1&#x2069;» هو «&#x2068;%2&#x2069;»؛ اكتب أربعة أحرف ومسافة ورقمًا، مثل «&#x2066;KPDE 102&#x2069;»</translation>
    </message>
    <message>
        <source>“%1” and “%2” both have the control ID “%3”; give one of them another</source>
        <translation>للعنصرين «&#x2068;%1&#x2069;» و«&#x2068;%2&#x2069;» معرّف التحكم نفسه «&#x2068;%3&#x2069;»؛ أعطِ أحدهما معرّفًا آخر</translation>
    </message>
    <message>
        <source>“%1” has the command “%2”; write four characters, such as “ok  ”</source>
        <translation>أمر العنصر «&#x2068;%1&#x2069;» هو «&#x2068;%2&#x2069;»؛ اكتب أربعة أحرف، مثل «&#x2066;ok  &#x2069;»</translation>
    </message>
    <message>
        <source>there is no bundle to load the window from</source>
        <translation>لا توجد حزمة لتحميل النافذة منها</translation>
    </message>
    <message>
        <source>the bundle has no such window description</source>
        <translation>ليس في الحزمة وصف نافذة كهذا</translation>
    </message>
    <message>
        <source>%1: the window cannot be made: %2</source>
        <translation>&#x2068;%1&#x2069;: لا يمكن إنشاء النافذة: %2</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>حفظ كملف PDF</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>ملفات PDF</translation>
    </message>
    <message>
        <source>%1 (printed)</source>
        <comment>the name of a file</comment>
        <translation>%1 (مطبوع)</translation>
    </message>
    <message>
        <source>Choose Documents to Print</source>
        <translation>اختيار مستندات للطباعة</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>%1, did you mean %2?</source>
        <translation>%1، هل قصدت &#x2068;%2&#x2069;؟</translation>
    </message>
    <message>
        <source>%1; there are %2</source>
        <translation>%1؛ الموجود: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>where, and what is wrong there</comment>
        <translation>&#x2068;%1&#x2069;: %2</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>clauses of one sentence</comment>
        <translation>%1؛ %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>members of a series</comment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 و%2</translation>
    </message>
</context>
<context>
    <name>kelvo::CautionBar</name>
    <message>
        <source>Fi&amp;x</source>
        <translation>إص&amp;لاح</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>Fix: %1</source>
        <translation>إصلاح: &#x2068;%1&#x2069;</translation>
    </message>
    <message>
        <source>Changes the settings so that they can be used together</source>
        <translation>يغيّر الإعدادات بحيث يمكن الجمع بينها</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>لا يمكن الجمع بين هذه الإعدادات</translation>
    </message>
    <message>
        <source>Before you print</source>
        <translation>قبل أن تطبع</translation>
    </message>
    <message>
        <source>Change one of them.</source>
        <translation>غيّر أحدها.</translation>
    </message>
    <message>
        <source>Fix would do this:</source>
        <translation>زر «إصلاح» يفعل ما يلي:</translation>
    </message>
</context>
<context>
    <name>kelvo::DialogFoot</name>
    <message>
        <source>&amp;What Will Be Sent…</source>
        <translation>ما ال&amp;ذي سيُرسل…</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>تعل&amp;يمات</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>ط&amp;باعة</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>تجري الطباعة</translation>
    </message>
    <message>
        <source>Cancel printing</source>
        <translation>إلغاء الطباعة</translation>
    </message>
    <message>
        <source>All settings of the job in words, before it is printed</source>
        <translation>كل إعدادات المهمة بالكلمات قبل طباعتها</translation>
    </message>
    <message>
        <source>Save as PDF…</source>
        <translation>حفظ كملف PDF…</translation>
    </message>
    <message>
        <source>The pages as they would be printed, in a file</source>
        <translation>الصفحات كما ستُطبع، في ملف</translation>
    </message>
    <message>
        <source>At once or later, and before which other jobs</source>
        <translation>فورًا أو لاحقًا، وقبل أي مهام أخرى</translation>
    </message>
    <message>
        <source>Cancel &amp;Job</source>
        <translation>إلغاء الم&amp;همة</translation>
    </message>
    <message>
        <source>Takes the job back from the print server</source>
        <translation>يسحب المهمة من خادم الطباعة</translation>
    </message>
    <message>
        <source>When to Print…</source>
        <translation>موعد الطباعة…</translation>
    </message>
</context>
<context>
    <name>kelvo::DialogSession</name>
    <message>
        <source>The panels are not made for this device (%1).</source>
        <translation>لم تُصنع اللوحات لهذا الجهاز (%1).</translation>
    </message>
    <message>
        <source>The panels are not made for this device (%1, made by %2).</source>
        <translation>لم تُصنع اللوحات لهذا الجهاز (%1، من صنع %2).</translation>
    </message>
    <message>
        <source>The panels could not start (%1). Installing them again may help.</source>
        <translation>تعذّر بدء اللوحات (%1). قد تفيد إعادة تثبيتها.</translation>
    </message>
    <message>
        <source>The panels cannot be loaded: %1</source>
        <translation>لا يمكن تحميل اللوحات: %1</translation>
    </message>
    <message>
        <source>Copies, pages, paper size and orientation work as usual.</source>
        <translation>تعمل النسخ والصفحات وحجم الورق والاتجاه كالمعتاد.</translation>
    </message>
    <message>
        <source>Copies and pages work as usual. Paper size, orientation and collating are passed on; whether they are heeded is up to the printer.</source>
        <translation>تعمل النسخ والصفحات كالمعتاد. يُنقل حجم الورق والاتجاه وتجميع النسخ كما هي، والأمر متروك للطابعة في مراعاتها.</translation>
    </message>
    <message>
        <source>No device panels for “%1”</source>
        <translation>لا لوحات جهاز لـ «&#x2068;%1&#x2069;»</translation>
    </message>
</context>
<context>
    <name>kelvo::DocumentBar</name>
    <message>
        <source>Document</source>
        <translation>المستند</translation>
    </message>
    <message>
        <source>The document that the preview shows, and Remove removes</source>
        <translation>المستند الذي تعرضه المعاينة ويزيله الأمر «إزالة»</translation>
    </message>
    <message>
        <source>Document actions</source>
        <translation>إجراءات المستندات</translation>
    </message>
    <message>
        <source>Add or remove documents</source>
        <translation>إضافة مستندات أو إزالتها</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>إضافة…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Print all as one job</source>
        <translation>طباعة الكل كمهمة واحدة</translation>
    </message>
    <message>
        <source>The pages follow one another, as if the files were one document</source>
        <translation>تتوالى الصفحات كما لو كانت الملفات مستندًا واحدًا</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>إدخال كلمة المرور…</translation>
    </message>
    <message>
        <source>%1 (sent)</source>
        <translation>&#x2066;%1&#x2069; (أُرسل)</translation>
    </message>
    <message>
        <source>%1 (locked)</source>
        <translation>&#x2066;%1&#x2069; (مقفل)</translation>
    </message>
    <message>
        <source>%1 (cannot be printed)</source>
        <translation>&#x2066;%1&#x2069; (تتعذر طباعته)</translation>
    </message>
    <message>
        <source>%1 of %2: %3</source>
        <comment>which document of how many, and its name</comment>
        <translation>%1 من %2: %3</translation>
    </message>
</context>
<context>
    <name>kelvo::DocumentOpening</name>
    <message>
        <source>There is no document to print.</source>
        <translation>لا يوجد مستند للطباعة.</translation>
    </message>
    <message>
        <source>The document cannot be opened: %1</source>
        <translation>لا يمكن فتح المستند: %1</translation>
    </message>
    <message>
        <source>type it in the window, or write it into a file of mode 0600 that --secret DOCUMENT=FILE names</source>
        <translation>اكتبها في النافذة، أو احفظها في ملف بالصلاحيات 0600 يحدده &#x2066;--secret DOCUMENT=FILE&#x2069;</translation>
    </message>
</context>
<context>
    <name>kelvo::DocumentPreview</name>
    <message>
        <source>This page cannot be shown.</source>
        <translation>لا يمكن عرض هذه الصفحة.</translation>
    </message>
    <message>
        <source>This page takes too long to be shown. The printer may still print it.</source>
        <translation>يستغرق عرض هذه الصفحة وقتًا أطول من اللازم. قد تتمكن الطابعة من طباعتها مع ذلك.</translation>
    </message>
    <message>
        <source>This page needs too much memory to be shown. The printer may still print it.</source>
        <translation>يحتاج عرض هذه الصفحة إلى ذاكرة أكثر من اللازم. قد تتمكن الطابعة من طباعتها مع ذلك.</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>المعاينة</translation>
    </message>
    <message>
        <source>Previous page</source>
        <translation>الصفحة السابقة</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>الصفحة التالية</translation>
    </message>
</context>
<context>
    <name>kelvo::Folder</name>
    <message>
        <source>Writing to %1…</source>
        <translation>تجري الكتابة في &#x2068;%1&#x2069;…</translation>
    </message>
    <message>
        <source>Written to %1</source>
        <translation>كُتب في &#x2068;%1&#x2069;</translation>
    </message>
</context>
<context>
    <name>kelvo::LayoutRows</name>
    <message>
        <source>%1 per sheet</source>
        <translation>%1 في الورقة</translation>
    </message>
    <message>
        <source>&amp;Borders around pages</source>
        <translation>إ&amp;طارات حول الصفحات</translation>
    </message>
    <message>
        <source>Odd and even pages, order, scaling, and several pages on a sheet</source>
        <translation>الصفحات الفردية والزوجية، والترتيب، والتحجيم، وعدة صفحات في الورقة</translation>
    </message>
    <message>
        <source>Page layout</source>
        <translation>تخطيط الصفحات</translation>
    </message>
    <message>
        <source>Page layout: %1</source>
        <translation>تخطيط الصفحات: %1</translation>
    </message>
    <message>
        <source>Pages per s&amp;heet:</source>
        <translation>ال&amp;صفحات في الورقة:</translation>
    </message>
    <message>
        <source>Percentage of a page’s own size</source>
        <translation>النسبة من حجم الصفحة الأصلي</translation>
    </message>
    <message>
        <source>Re&amp;verse</source>
        <translation>&amp;معكوس</translation>
    </message>
    <message>
        <source>Sc&amp;aling:</source>
        <translation>الت&amp;حجيم:</translation>
    </message>
    <message>
        <source>The last page, or sheet, comes out first</source>
        <translation>تخرج الصفحة الأخيرة، أو الورقة الأخيرة، أولًا</translation>
    </message>
    <message>
        <source>Where the next page lies</source>
        <translation>موضع الصفحة التالية</translation>
    </message>
    <message>
        <source>not scaled</source>
        <translation>بلا تحجيم</translation>
    </message>
    <message>
        <source>reversed</source>
        <translation>معكوس</translation>
    </message>
    <message>
        <source>Of th&amp;ese:</source>
        <translation>&amp;منها:</translation>
    </message>
</context>
<context>
    <name>kelvo::OptionsPane</name>
    <message>
        <source>Printer options</source>
        <translation>خيارات الطابعة</translation>
    </message>
    <message>
        <source>This printer has no options of its own.</source>
        <translation>ليس لهذه الطابعة خيارات خاصة بها.</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 (not offered)</source>
        <translation>%1 (غير متاح)</translation>
    </message>
    <message>
        <source>Cannot be used together with other settings</source>
        <translation>لا يمكن استخدامه مع إعدادات أخرى</translation>
    </message>
    <message>
        <source>The printer’s equipment leaves no other choice</source>
        <translation>لا تتيح تجهيزات الطابعة خيارًا آخر</translation>
    </message>
</context>
<context>
    <name>kelvo::PresetMenu</name>
    <message>
        <source>Default settings</source>
        <translation>الإعدادات الافتراضية</translation>
    </message>
    <message>
        <source>Type a name for the preset.</source>
        <translation>اكتب اسمًا للإعداد المسبق.</translation>
    </message>
    <message>
        <source>“%1” is how the printer comes. Choose another name.</source>
        <translation>«&#x2068;%1&#x2069;» هي حالة الطابعة الأصلية. اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>ال&amp;اسم:</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>اسم الإعداد المسبق</translation>
    </message>
    <message>
        <source>&amp;Keep passcodes in this preset</source>
        <translation>الاحتفاظ &amp;برموز المرور في هذا الإعداد المسبق</translation>
    </message>
    <message>
        <source>Whoever can read the preset can read them</source>
        <translation>كل من يستطيع قراءة الإعداد المسبق يستطيع قراءتها</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>A preset cannot have this name</source>
        <translation>لا يمكن أن يحمل إعداد مسبق هذا الاسم</translation>
    </message>
    <message>
        <source>Replace the preset “%1”?</source>
        <translation>هل تريد استبدال الإعداد المسبق «&#x2068;%1&#x2069;»؟</translation>
    </message>
    <message>
        <source>There is a preset of this name. Its settings are lost when you replace it.</source>
        <translation>يوجد إعداد مسبق بهذا الاسم. تُفقد إعداداته عند استبداله.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>استبدال</translation>
    </message>
    <message>
        <source>There is a preset “%1” already</source>
        <translation>يوجد بالفعل إعداد مسبق باسم «&#x2068;%1&#x2069;»</translation>
    </message>
    <message>
        <source>Choose another name.</source>
        <translation>اختر اسمًا آخر.</translation>
    </message>
    <message>
        <source>Preset actions</source>
        <translation>إجراءات الإعداد المسبق</translation>
    </message>
    <message>
        <source>Save, rename or delete presets</source>
        <translation>حفظ الإعدادات المسبقة أو إعادة تسميتها أو حذفها</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>حفظ باسم…</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>إعادة تسمية…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>%1*</source>
        <comment>a preset that was changed</comment>
        <translation>&#x2068;%1&#x2069;*</translation>
    </message>
    <message>
        <source>The preset “%1” cannot be read</source>
        <translation>لا يمكن قراءة الإعداد المسبق «&#x2068;%1&#x2069;»</translation>
    </message>
    <message>
        <source>%1
The settings stay as they are.</source>
        <translation>%1
تبقى الإعدادات كما هي.</translation>
    </message>
    <message>
        <source>The preset “%1” was not saved</source>
        <translation>لم يُحفظ الإعداد المسبق «&#x2068;%1&#x2069;»</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>حفظ الإعداد المسبق</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;حفظ</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>إعادة تسمية الإعداد المسبق</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>إعادة &amp;تسمية</translation>
    </message>
    <message>
        <source>The preset “%1” was not renamed</source>
        <translation>لم تُغيَّر تسمية الإعداد المسبق «&#x2068;%1&#x2069;»</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>هل تريد حذف الإعداد المسبق «&#x2068;%1&#x2069;»؟</translation>
    </message>
    <message>
        <source>The settings in this window stay as they are.</source>
        <translation>تبقى الإعدادات في هذه النافذة كما هي.</translation>
    </message>
    <message>
        <source>The preset “%1” was not deleted</source>
        <translation>لم يُحذف الإعداد المسبق «&#x2068;%1&#x2069;»</translation>
    </message>
    <message>
        <source>A star means that settings have changed since it was chosen.</source>
        <translation>تعني النجمة أن إعدادات تغيّرت منذ اختياره.</translation>
    </message>
    <message>
        <source>Last used settings</source>
        <translation>آخر إعدادات مستخدمة</translation>
    </message>
    <message>
        <source>“%1” is what was printed with last. Choose another name.</source>
        <translation>«&#x2068;%1&#x2069;» هي ما طُبع به آخر مرة. اختر اسمًا آخر.</translation>
    </message>
</context>
<context>
    <name>kelvo::PrintDialog</name>
    <message>
        <source>Opening %1…</source>
        <translation>يجري فتح &#x2068;%1&#x2069;…</translation>
    </message>
    <message>
        <source>Print “%1”</source>
        <translation>طباعة «&#x2068;%1&#x2069;»</translation>
    </message>
    <message>
        <source>Not to be printed like this. Pages: %1</source>
        <translation>لا يمكن الطباعة هكذا. الصفحات: %1</translation>
    </message>
    <message>
        <source>Type the pages to print.</source>
        <translation>اكتب الصفحات المطلوب طباعتها.</translation>
    </message>
    <message>
        <source>Fix and Print</source>
        <translation>إصلاح وطباعة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Print Anyway</source>
        <translation>الطباعة على أي حال</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>يجري الإلغاء…</translation>
    </message>
    <message>
        <source>there are no panels</source>
        <translation>لا توجد لوحات</translation>
    </message>
    <message>
        <source>the left column</source>
        <translation>العمود الجانبي</translation>
    </message>
    <message>
        <source>“%1” is locked with a password.</source>
        <translation>«&#x2068;%1&#x2069;» مقفل بكلمة مرور.</translation>
    </message>
    <message>
        <source>What was printed with is not kept: %1</source>
        <translation>لم يُحفظ ما طُبع به: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::PrintFlow</name>
    <message>
        <source>“%1” was not printed</source>
        <translation>لم تُطبع «&#x2068;%1&#x2069;»</translation>
    </message>
    <message>
        <source>The printer’s settings have not come yet.</source>
        <translation>لم تصل إعدادات الطابعة بعد.</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>a headline and what follows it</comment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>The document is not open yet.</source>
        <translation>لم يُفتح المستند بعد.</translation>
    </message>
    <message>
        <source>“%1” is a device without a queue. Start kelvo-print with --to DIR to write the job into a folder, or with -d to print to a queue.</source>
        <translation>«&#x2068;%1&#x2069;» جهاز بلا قائمة انتظار. شغّل kelvo-print مع &#x2066;--to DIR&#x2069; لكتابة المهمة في مجلد، أو مع &#x2066;-d&#x2069; للطباعة إلى قائمة انتظار.</translation>
    </message>
    <message>
        <source>No printer was named, and there is no default printer. Name one with -d; --list-printers says which there are.</source>
        <translation>لم تُحدَّد طابعة، ولا توجد طابعة افتراضية. حدِّد طابعة بالخيار &#x2066;-d&#x2069;؛ ويذكر الخيار &#x2066;--list-printers&#x2069; الطابعات الموجودة.</translation>
    </message>
    <message>
        <source>Pages: %1</source>
        <translation>الصفحات: %1</translation>
    </message>
    <message>
        <source>These settings cannot be used together</source>
        <translation>لا يمكن الجمع بين هذه الإعدادات</translation>
    </message>
    <message>
        <source>The settings could not be written. %1</source>
        <translation>تعذّرت كتابة الإعدادات. %1</translation>
    </message>
    <message>
        <source>interrupted while the job was being sent; it may have been accepted: look at the printer’s queue before you print again</source>
        <translation>حدثت مقاطعة أثناء إرسال المهمة؛ ربما قُبلت: انظر إلى قائمة انتظار الطابعة قبل أن تطبعها مجددًا</translation>
    </message>
    <message>
        <source>%1: not sent, this printer does not have it</source>
        <translation>%1: لم يُرسل، فهو ليس في هذه الطابعة</translation>
    </message>
    <message>
        <source>%1: not sent, the print server has no description of this printer</source>
        <translation>%1: لم يُرسل، فليس لدى خادم الطباعة وصف لهذه الطابعة</translation>
    </message>
    <message>
        <source>%1: not sent, this printer reads no tickets</source>
        <translation>%1: لم يُرسل، فهذه الطابعة لا تقرأ التذاكر</translation>
    </message>
    <message>
        <source>Not all documents are open yet.</source>
        <translation>لم تُفتح كل المستندات بعد.</translation>
    </message>
    <message>
        <source>Pages of %1: %2</source>
        <translation>صفحات &#x2066;%1&#x2069;: %2</translation>
    </message>
    <message>
        <source>Sending %1 of %2: %3</source>
        <translation>يجري إرسال %1 من %2: &#x2066;%3&#x2069;</translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) written</source>
        <translation>
            <numerusform>لم يُكتب أي مستند</numerusform>
            <numerusform>كُتب مستند واحد</numerusform>
            <numerusform>كُتب مستندان</numerusform>
            <numerusform>كُتبت %n مستندات</numerusform>
            <numerusform>كُتب %n مستندًا</numerusform>
            <numerusform>كُتب %n مستند</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n document(s) sent to %1</source>
        <translation>
            <numerusform>لم يُرسل أي مستند إلى %1</numerusform>
            <numerusform>أُرسل مستند واحد إلى %1</numerusform>
            <numerusform>أُرسل مستندان إلى %1</numerusform>
            <numerusform>أُرسلت %n مستندات إلى %1</numerusform>
            <numerusform>أُرسل %n مستندًا إلى %1</numerusform>
            <numerusform>أُرسل %n مستند إلى %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>a document, and its job</comment>
        <translation>&#x2066;%1&#x2069; (&#x2066;%2&#x2069;)</translation>
    </message>
    <message>
        <source>No document was sent.</source>
        <translation>لم يُرسل أي مستند.</translation>
    </message>
    <message>
        <source>Sent: %1.</source>
        <translation>أُرسل: %1.</translation>
    </message>
    <message>
        <source>Not sent: %1.</source>
        <translation>لم يُرسل: %1.</translation>
    </message>
</context>
<context>
    <name>kelvo::PrintRun</name>
    <message>
        <source>The job was cancelled.</source>
        <translation>أُلغيت المهمة.</translation>
    </message>
    <message>
        <source>Nothing was sent: %1.</source>
        <translation>لم يُرسل شيء: %1.</translation>
    </message>
</context>
<context>
    <name>Printers</name>
    <message>
        <source>takes no jobs</source>
        <translation>لا تقبل مهام</translation>
    </message>
    <message>
        <source>idle</source>
        <translation>خاملة</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>تطبع</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>متوقفة</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>printer and its state</comment>
        <translation>&#x2068;%1&#x2069;: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>printer and its state</comment>
        <translation>&#x2068;%1&#x2069; (%2)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a printer’s state and why</comment>
        <translation>%1: &#x2068;%2&#x2069;</translation>
    </message>
    <message>
        <source>chosen</source>
        <translation>مختارة</translation>
    </message>
    <message>
        <source>default</source>
        <translation>افتراضية</translation>
    </message>
</context>
<context>
    <name>kelvo::PrinterChooser</name>
    <message>
        <source>Printers</source>
        <translation>الطابعات</translation>
    </message>
    <message>
        <source>Name, place or model</source>
        <translation>الاسم أو المكان أو الطراز</translation>
    </message>
    <message>
        <source>Search for a printer</source>
        <translation>البحث عن طابعة</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>مسح البحث</translation>
    </message>
    <message>
        <source>No printer has this in its name, place or model.</source>
        <translation>لا توجد طابعة يرد هذا في اسمها أو مكانها أو طرازها.</translation>
    </message>
    <message numerus="yes">
        <source>%n printer(s)</source>
        <translation>
            <numerusform>لا طابعات</numerusform>
            <numerusform>طابعة واحدة</numerusform>
            <numerusform>طابعتان</numerusform>
            <numerusform>%n طابعات</numerusform>
            <numerusform>%n طابعة</numerusform>
            <numerusform>%n طابعة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n printer(s)</source>
        <translation>
            <numerusform>%1 من %n طابعة</numerusform>
            <numerusform>%1 من طابعة واحدة</numerusform>
            <numerusform>%1 من طابعتين</numerusform>
            <numerusform>%1 من %n طابعات</numerusform>
            <numerusform>%1 من %n طابعة</numerusform>
            <numerusform>%1 من %n طابعة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kelvo::PrinterPane</name>
    <message>
        <source>Portrait</source>
        <translation>عمودي</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>أفقي</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>عمودي، مقلوب</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>أفقي، مقلوب</translation>
    </message>
    <message>
        <source>C&amp;ollate</source>
        <translation>&amp;تجميع النسخ</translation>
    </message>
    <message>
        <source>Prin&amp;ter:</source>
        <translation>ال&amp;طابعة:</translation>
    </message>
    <message>
        <source>Pre&amp;set:</source>
        <translation>إعداد &amp;مسبق:</translation>
    </message>
    <message>
        <source>Each copy is complete before the next one begins</source>
        <translation>تكتمل كل نسخة قبل أن تبدأ التالية</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>ال&amp;نسخ:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>نطاق</translation>
    </message>
    <message>
        <source>Pages to print</source>
        <translation>الصفحات المطلوب طباعتها</translation>
    </message>
    <message>
        <source>Pa&amp;ges:</source>
        <translation>ال&amp;صفحات:</translation>
    </message>
    <message>
        <source>Pap&amp;er size:</source>
        <translation>حجم ال&amp;ورق:</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>ال&amp;اتجاه:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>A device without a queue: nothing can be sent to it</source>
        <translation>جهاز بلا قائمة انتظار: لا يمكن إرسال شيء إليه</translation>
    </message>
    <message>
        <source>As the printer has it</source>
        <translation>كما في الطابعة</translation>
    </message>
    <message>
        <source>Custom: %1</source>
        <translation>مخصص: &#x2068;%1&#x2069;</translation>
    </message>
    <message>
        <source>%1 (not on this printer)</source>
        <translation>&#x2068;%1&#x2069; (ليس على هذه الطابعة)</translation>
    </message>
    <message>
        <source>such as 1-3, 7</source>
        <translation>مثل &#x2066;1-3, 7&#x2069;</translation>
    </message>
    <message>
        <source>Current page</source>
        <translation>الصفحة المعروضة</translation>
    </message>
</context>
<context>
    <name>kelvo::PrinterSearch</name>
    <message>
        <source>Looking for printers</source>
        <translation>يجري البحث عن طابعات</translation>
    </message>
    <message>
        <source>The print server has not answered yet.</source>
        <translation>لم يُجب خادم الطباعة بعد.</translation>
    </message>
    <message>
        <source>The print server does not answer</source>
        <translation>لا يجيب خادم الطباعة</translation>
    </message>
    <message>
        <source>The printers cannot be listed</source>
        <translation>لا يمكن سرد الطابعات</translation>
    </message>
    <message>
        <source>There is no printer</source>
        <translation>لا توجد طابعة</translation>
    </message>
    <message>
        <source>Add one in the system’s printer settings, then try again.</source>
        <translation>أضف طابعة في إعدادات الطابعات في النظام، ثم حاول مجددًا.</translation>
    </message>
    <message>
        <source>There is no printer “%1”</source>
        <translation>لا توجد طابعة باسم «&#x2068;%1&#x2069;»</translation>
    </message>
    <message>
        <source>The print server does not know it.</source>
        <translation>لا يعرفها خادم الطباعة.</translation>
    </message>
    <message>
        <source>The print server does not know it</source>
        <translation>لا يعرفها خادم الطباعة</translation>
    </message>
    <message>
        <source>Choose another printer, or try again.</source>
        <translation>اختر طابعة أخرى، أو حاول مجددًا.</translation>
    </message>
    <message>
        <source>Asking for the settings of “%1”</source>
        <translation>يجري السؤال عن إعدادات «&#x2068;%1&#x2069;»</translation>
    </message>
    <message>
        <source>The print server’s description of them is damaged (%1).</source>
        <translation>الوصف الذي لدى خادم الطباعة لها تالف (%1).</translation>
    </message>
    <message>
        <source>The settings of “%1” cannot be read</source>
        <translation>لا يمكن قراءة إعدادات «&#x2068;%1&#x2069;»</translation>
    </message>
    <message>
        <source>Try again, or choose another printer.</source>
        <translation>حاول مجددًا، أو اختر طابعة أخرى.</translation>
    </message>
    <message>
        <source>The print server has no description of its settings.</source>
        <translation>ليس لدى خادم الطباعة وصف لإعداداتها.</translation>
    </message>
    <message>
        <source>the print server does not know it any more</source>
        <translation>لم يعد خادم الطباعة يعرفها</translation>
    </message>
</context>
<context>
    <name>kelvo::Queue</name>
    <message>
        <source>Sending to %1…</source>
        <translation>يجري الإرسال إلى %1…</translation>
    </message>
    <message>
        <source>%1 sent</source>
        <comment>a job</comment>
        <translation>أُرسلت %1</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>what is wrong, and what the server said</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>kelvo::SentMessage</name>
    <message>
        <source>Cancelling %1…</source>
        <translation>يجري إلغاء &#x2068;%1&#x2069;…</translation>
    </message>
</context>
<context>
    <name>kelvo::WaitingPane</name>
    <message>
        <source>Tr&amp;y Again</source>
        <translation>إ&amp;عادة المحاولة</translation>
    </message>
</context>
<context>
    <name>kelvo::WindowColumns</name>
    <message>
        <source>Show or hide printer, pages and preview (F9)</source>
        <translation>إظهار الطابعة والصفحات والمعاينة أو إخفاؤها (F9)</translation>
    </message>
    <message>
        <source>Printer, pages and preview</source>
        <translation>الطابعة والصفحات والمعاينة</translation>
    </message>
    <message>
        <source>Device Settings</source>
        <translation>إعدادات الجهاز</translation>
    </message>
    <message>
        <source>Printer and Paper</source>
        <translation>الطابعة والورق</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AboutPane</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
    <message>
        <source>The Tor Project</source>
        <translation>مشروع Tor</translation>
    </message>
    <message>
        <source>The network and pluggable transports Veldmark builds on</source>
        <translation>الشبكة ووسائل النقل القابلة للتوصيل التي يقوم عليها Veldmark</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>شكر وتقدير</translation>
    </message>
    <message>
        <source>Homepage, downloads and updates</source>
        <translation>الموقع والتنزيلات والتحديثات</translation>
    </message>
    <message>
        <source>Sends this computer&apos;s traffic through Tor, all of it in strict mode and that of apps that use the system proxy in proxy mode, and shows whether it really does.</source>
        <translation>يرسل حركة بيانات هذا الحاسوب عبر Tor: كلها في الوضع الصارم، وحركة التطبيقات التي تستخدم وكيل النظام في وضع الوكيل، ويبيّن هل يحدث ذلك فعلًا.</translation>
    </message>
    <message>
        <source>Veldmark is made with Qt, QCoro and tl::expected.</source>
        <translation>بُني Veldmark باستخدام Qt وQCoro وtl::expected.</translation>
    </message>
</context>
<context>
    <name>ApplicationsSheet</name>
    <message>
        <source>App exceptions</source>
        <translation>استثناءات التطبيقات</translation>
    </message>
    <message>
        <source>No apps yet. Add Zoom, Discord, a game…</source>
        <translation>لا تطبيقات بعد. أضف Zoom أو Discord أو لعبة…</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>اتصل في الوضع الصارم لفتح تطبيقات بدون Tor</translation>
    </message>
    <message>
        <source>Open without Tor</source>
        <translation>فتح بدون Tor</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>إضافة…</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>BridgesPane</name>
    <message>
        <source>Bridges</source>
        <translation>الجسور</translation>
    </message>
    <message>
        <source>Programs that disguise your Tor connection</source>
        <translation>برامج تموّه اتصالك بـ Tor</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>الجسور المدمجة</translation>
    </message>
    <message>
        <source>Bridge addresses shipped with Tor</source>
        <translation>عناوين جسور مرفقة مع Tor</translation>
    </message>
    <message>
        <source>Tor Expert Bundle</source>
        <translation>Tor Expert Bundle</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>تنزيل</translation>
    </message>
    <message>
        <source>When Tor is blocked</source>
        <translation>عندما يكون Tor محجوبًا</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>افصل الاتصال للتغيير</translation>
    </message>
    <message>
        <source>Tries the available bridges in turn, without another password</source>
        <translation>يجرّب الجسور المتاحة واحدًا بعد الآخر دون كلمة سر أخرى</translation>
    </message>
</context>
<context>
    <name>BridgesSheet</name>
    <message>
        <source>Custom bridges</source>
        <translation>جسور مخصصة</translation>
    </message>
    <message>
        <source>One bridge per line. Ask the Tor Project for bridges on its bridges page, by e-mail or through its Telegram bot, or use those of someone you trust. obfs4, webtunnel, Snowflake, meek and plain bridges are supported.</source>
        <translation>جسر واحد في كل سطر. اطلب جسورًا من مشروع Tor عبر صفحة الجسور أو البريد الإلكتروني أو روبوته على Telegram، أو استخدم جسور شخص تثق به. الأنواع المدعومة: obfs4 وwebtunnel وSnowflake وmeek والجسور العادية.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>There is no bridge in this file.</source>
        <translation>لا يوجد جسر في هذا الملف.</translation>
    </message>
    <message>
        <source>Keep Only the Bridges</source>
        <translation>إبقاء الجسور فقط</translation>
    </message>
    <message>
        <source>Removes everything from the text but the bridges that were recognized</source>
        <translation>يزيل من النص كل شيء عدا الجسور التي جرى التعرف عليها</translation>
    </message>
</context>
<context>
    <name>ChooserWindow</name>
    <message>
        <source>App exceptions</source>
        <translation>استثناءات التطبيقات</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>اختر التطبيقات المسموح لها بتجاوز Tor في الوضع الصارم</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>التطبيقات المثبتة</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>أخرى…</translation>
    </message>
    <message>
        <source>Choose the .desktop file of an application that is not listed</source>
        <translation>اختر ملف ⁨.desktop⁩ لتطبيق غير مذكور في القائمة</translation>
    </message>
</context>
<context>
    <name>CircuitsSidebar</name>
    <message>
        <source>ALL CIRCUITS</source>
        <translation>كل الدوائر</translation>
    </message>
    <message>
        <source>No circuit selected</source>
        <translation>لم تُحدَّد دائرة</translation>
    </message>
    <message>
        <source>New Circuit</source>
        <translation>دائرة جديدة</translation>
    </message>
    <message>
        <source>Close this circuit; its sites get a fresh path on their next request</source>
        <translation>إغلاق هذه الدائرة؛ تحصل مواقعها على مسار جديد عند طلبها التالي</translation>
    </message>
    <message>
        <source>Sites on this circuit get a fresh path. Other sites sharing it move too.</source>
        <translation>تحصل مواقع هذه الدائرة على مسار جديد. وتنتقل معها المواقع الأخرى المشاركة فيها.</translation>
    </message>
</context>
<context>
    <name>CircuitsWindow</name>
    <message>
        <source>Circuits</source>
        <translation>الدوائر</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>هوية جديدة</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>طلب دوائر جديدة وعنوان خروج جديد من Tor</translation>
    </message>
    <message>
        <source>Find Faster</source>
        <translation>مسار أسرع</translation>
    </message>
    <message>
        <source>Time a request through Tor and get fresh circuits if it&apos;s slow</source>
        <translation>قياس زمن طلب عبر Tor، والحصول على دوائر جديدة إن كان بطيئًا</translation>
    </message>
    <message>
        <source>Reading circuits…</source>
        <translation>جارٍ قراءة الدوائر…</translation>
    </message>
    <message>
        <source>Connect to see your circuits</source>
        <translation>اتصل لرؤية دوائرك</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>Exit IP</source>
        <translation>عنوان الخروج</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Leaks</source>
        <translation>التسريبات</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>حركة البيانات</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>الوارد ⁨%1⁩، الصادر ⁨%2⁩</translation>
    </message>
    <message>
        <source>Traffic of the last two minutes</source>
        <translation>حركة البيانات في آخر دقيقتين</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>هوية جديدة</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>طلب دوائر جديدة وعنوان خروج جديد من Tor</translation>
    </message>
    <message>
        <source>Leak Test</source>
        <translation>فحص التسريب</translation>
    </message>
    <message>
        <source>Check the exit IP and try a direct connection that skips Tor</source>
        <translation>فحص عنوان الخروج ومحاولة اتصال مباشر يتجاوز Tor</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>الدوائر</translation>
    </message>
    <message>
        <source>See the path your traffic takes: entry, middle and exit relays</source>
        <translation>عرض المسار الذي تسلكه بياناتك: مرحّلات الدخول والوسط والخروج</translation>
    </message>
</context>
<context>
    <name>CopyField</name>
    <message>
        <source>Copied</source>
        <translation>تم النسخ</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
</context>
<context>
    <name>DNSCard</name>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>يمكن أن تمر استعلامات DNS خارج Tor</translation>
    </message>
    <message>
        <source>Fix DNS</source>
        <translation>إصلاح DNS</translation>
    </message>
    <message>
        <source>Re-test</source>
        <translation>إعادة الاختبار</translation>
    </message>
</context>
<context>
    <name>DoctorSheet</name>
    <message>
        <source>This computer</source>
        <translation>هذا الحاسوب</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>فحص جديد</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>عرض التقرير</translation>
    </message>
    <message>
        <source>What others need to help you, without addresses, names and bridges</source>
        <translation>ما يحتاج إليه الآخرون لمساعدتك، دون العناوين والأسماء والجسور</translation>
    </message>
</context>
<context>
    <name>DownloadButton</name>
    <message>
        <source>Download</source>
        <translation>تنزيل</translation>
    </message>
    <message>
        <source>Downloads the official Tor Expert Bundle from the Tor Project, for bridge programs and built-in bridges</source>
        <translation>ينزّل حزمة Tor Expert Bundle الرسمية من مشروع Tor، وفيها برامج الجسور والجسور المدمجة</translation>
    </message>
</context>
<context>
    <name>Footer</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Tor Log</source>
        <translation>سجل Tor</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Startup and password prompts</source>
        <translation>بدء التشغيل وطلبات كلمة السر</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>بدء التشغيل</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>الفتح عند تسجيل الدخول</translation>
    </message>
    <message>
        <source>Veldmark starts when you log in</source>
        <translation>يبدأ Veldmark عند تسجيل دخولك</translation>
    </message>
    <message>
        <source>Connect automatically</source>
        <translation>الاتصال تلقائيًا</translation>
    </message>
    <message>
        <source>Connect as soon as Veldmark opens</source>
        <translation>الاتصال بمجرد فتح Veldmark</translation>
    </message>
    <message>
        <source>Password prompts</source>
        <translation>طلبات كلمة السر</translation>
    </message>
    <message>
        <source>Passwordless mode</source>
        <translation>وضع بلا كلمة سر</translation>
    </message>
    <message>
        <source>Connect and Disconnect never ask</source>
        <translation>لا تُطلب كلمة السر للاتصال ولا لفصله</translation>
    </message>
    <message>
        <source>Asks for your password each time</source>
        <translation>تُطلب كلمة سرك في كل مرة</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>إعداد…</translation>
    </message>
    <message>
        <source>Setup asks for your admin password once. It installs a root-owned copy of Veldmark&apos;s helper and a rule in /etc/sudoers.d that lets your account run only that helper, so Connect and Disconnect stop asking. Turn it off any time.</source>
        <translation>يطلب الإعداد كلمة سر مدير النظام مرة واحدة. ويثبّت نسخة من برنامج Veldmark المساعد يملكها root، وقاعدة في ⁨/etc/sudoers.d⁩ تسمح لحسابك بتشغيل هذا البرنامج المساعد وحده، فلا تُطلب كلمة السر بعدها للاتصال ولا لفصله. يمكنك إيقافه في أي وقت.</translation>
    </message>
</context>
<context>
    <name>Hero</name>
    <message>
        <source>Show Tor Log</source>
        <translation>عرض سجل Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>عرض كل ما أبلغ عنه Tor</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>استعادة الشبكة</translation>
    </message>
    <message>
        <source>Try Bridges</source>
        <translation>جرّب الجسور</translation>
    </message>
</context>
<context>
    <name>LogLines</name>
    <message>
        <source>Tor Log</source>
        <translation>سجل Tor</translation>
    </message>
</context>
<context>
    <name>LogRow</name>
    <message>
        <source>Error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>إشعار</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>معلومة</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Tor Log</source>
        <translation>سجل Tor</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>ترشيح</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>Keep the newest lines in view</source>
        <translation>إبقاء أحدث الأسطر ظاهرة</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Copy the lines shown</source>
        <translation>نسخ الأسطر المعروضة</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>عرض</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
</context>
<context>
    <name>OptionsCard</name>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>افصل الاتصال للتغيير</translation>
    </message>
    <message>
        <source>Strict mode</source>
        <translation>الوضع الصارم</translation>
    </message>
    <message>
        <source>Kill switch: block anything not using Tor</source>
        <translation>مفتاح القطع: يحجب كل ما لا يستخدم Tor</translation>
    </message>
    <message>
        <source>Blocks every connection that doesn&apos;t go through Tor, including UDP and IPv6. Apps that ignore proxy settings won&apos;t connect at all instead of leaking.</source>
        <translation>يحجب كل اتصال لا يمر عبر Tor، ومنه UDP وIPv6. التطبيقات التي تتجاهل إعدادات الوكيل لا تتصل إطلاقًا بدل أن تسرّب بيانات.</translation>
    </message>
    <message>
        <source>Allow local network</source>
        <translation>السماح بالشبكة المحلية</translation>
    </message>
    <message>
        <source>Exit country</source>
        <translation>بلد الخروج</translation>
    </message>
    <message>
        <source>Where your traffic appears to come from</source>
        <translation>البلد الذي تبدو بياناتك قادمة منه</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>الجسور</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>تحرير…</translation>
    </message>
    <message>
        <source>Custom bridges</source>
        <translation>جسور مخصصة</translation>
    </message>
    <message>
        <source>Optimize for speed</source>
        <translation>تحسين السرعة</translation>
    </message>
    <message>
        <source>New circuits for everything</source>
        <translation>دوائر جديدة لكل شيء</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>وضع الطرفية</translation>
    </message>
    <message>
        <source>App exceptions</source>
        <translation>استثناءات التطبيقات</translation>
    </message>
    <message>
        <source>For networks that block or watch Tor</source>
        <translation>للشبكات التي تحجب Tor أو تراقبه</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Find the Cause</source>
        <translation>البحث عن السبب</translation>
    </message>
    <message>
        <source>Checks what a connection needs on this computer, what blocks it and how to fix it</source>
        <translation>يفحص هذا الحاسوب: ما يحتاج إليه الاتصال وما يعيقه وما يصلحه</translation>
    </message>
    <message>
        <source>Show Tor Log</source>
        <translation>عرض سجل Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>عرض كل ما أبلغ عنه Tor</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with this command, then click Recheck.</source>
        <translation>برنامج Tor غير مثبت. ثبّته بهذا الأمر، ثم انقر «إعادة الفحص».</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with %1, then click Recheck.</source>
        <translation>برنامج Tor غير مثبت. ثبّته باستخدام %1، ثم انقر «إعادة الفحص».</translation>
    </message>
    <message>
        <source>Recheck</source>
        <translation>إعادة الفحص</translation>
    </message>
</context>
<context>
    <name>PanelPopup</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
</context>
<context>
    <name>ProgramRow</name>
    <message>
        <source>Found %1</source>
        <translation>موجود %1</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>غير موجود</translation>
    </message>
</context>
<context>
    <name>QuitDialog</name>
    <message>
        <source>Quit Veldmark</source>
        <translation>إنهاء Veldmark</translation>
    </message>
    <message>
        <source>Your network is still routed through Tor</source>
        <translation>ما زالت شبكتك موجّهة عبر Tor</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and the kill switch stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>إذا أنهيت الآن، يبقى Tor قيد التشغيل ويبقى مفتاح القطع مفعّلًا. افتح Veldmark لاحقًا لاستعادة اتصالك العادي.</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and your system proxy stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>إذا أنهيت الآن، يبقى Tor قيد التشغيل ويبقى وكيل النظام مفعّلًا. افتح Veldmark لاحقًا لاستعادة اتصالك العادي.</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>جارٍ فصل الاتصال…</translation>
    </message>
    <message>
        <source>Disconnect &amp; Quit</source>
        <translation>فصل الاتصال والإنهاء</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>إنهاء على أي حال</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>RecoveryPane</name>
    <message>
        <source>Recovery</source>
        <translation>الاستعادة</translation>
    </message>
    <message>
        <source>Get your normal connection back</source>
        <translation>استرجع اتصالك العادي</translation>
    </message>
    <message>
        <source>Restore network settings</source>
        <translation>استعادة إعدادات الشبكة</translation>
    </message>
    <message>
        <source>Veldmark&apos;s changes are active</source>
        <translation>تغييرات Veldmark سارية</translation>
    </message>
    <message>
        <source>Nothing to restore</source>
        <translation>لا شيء لاستعادته</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>Use this if your internet stops working after a crash. It puts your DNS, proxy and firewall settings back the way they were and stops Tor.</source>
        <translation>استخدم هذا إذا توقف الإنترنت لديك بعد انهيار البرنامج. يعيد إعدادات DNS والوكيل وجدار الحماية كما كانت ويوقف Tor.</translation>
    </message>
    <message>
        <source>If the app won&apos;t open</source>
        <translation>إذا لم يُفتح التطبيق</translation>
    </message>
    <message>
        <source>Run this in Terminal to do the same thing without Veldmark.</source>
        <translation>نفّذ هذا في الطرفية لفعل الشيء نفسه بدون Veldmark.</translation>
    </message>
    <message>
        <source>Report for others</source>
        <translation>تقرير للآخرين</translation>
    </message>
    <message>
        <source>What they need to help you, without addresses, names and bridges. You read it first, and nothing sends it.</source>
        <translation>ما يحتاجون إليه لمساعدتك، دون العناوين والأسماء والجسور. تقرؤه أنت أولًا، ولا شيء يرسله.</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>عرض التقرير</translation>
    </message>
</context>
<context>
    <name>ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>التقرير</translation>
    </message>
    <message>
        <source>For those who help you. Addresses, names, bridges, keys and paths in your home are replaced. Look through it before you give it away: Veldmark sends it to nobody.</source>
        <translation>لمن يساعدونك. استُبدلت العناوين والأسماء والجسور والمفاتيح والمسارات داخل مجلدك الشخصي. راجعه قبل أن تعطيه لأحد: لا يرسله Veldmark إلى أحد.</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>حفظ…</translation>
    </message>
    <message>
        <source>Save the report in a file that only you can read</source>
        <translation>حفظ التقرير في ملف لا يقرؤه سواك</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Copy the whole report</source>
        <translation>نسخ التقرير كله</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>جارٍ فحص هذا الحاسوب…</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>الجسور</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>الطرفية</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>الاستعادة</translation>
    </message>
    <message>
        <source>About</source>
        <translation>عن البرنامج</translation>
    </message>
</context>
<context>
    <name>TerminalPane</name>
    <message>
        <source>Terminal</source>
        <translation>الطرفية</translation>
    </message>
    <message>
        <source>Route command-line tools through Tor</source>
        <translation>توجيه أدوات سطر الأوامر عبر Tor</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>وضع الطرفية</translation>
    </message>
    <message>
        <source>Shell integration</source>
        <translation>التكامل مع الصدفة</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
</context>
<context>
    <name>TorPane</name>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>The Tor program Veldmark runs</source>
        <translation>برنامج Tor الذي يشغّله Veldmark</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>البرنامج</translation>
    </message>
    <message>
        <source>Location: disconnect to change</source>
        <translation>المكان: افصل الاتصال للتغيير</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>المكان</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Custom location</source>
        <translation>مكان مخصص</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Separate applications</source>
        <translation>عزل التطبيقات</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>افصل الاتصال للتغيير</translation>
    </message>
    <message>
        <source>Each application has circuits of its own</source>
        <translation>لكل تطبيق دوائر خاصة به</translation>
    </message>
    <message>
        <source>Sites cannot tell by the exit address that two applications are yours. Veldmark tells applications apart where the desktop starts each in a control group of its own, as GNOME and KDE do. Other programs share circuits with the rest of their login session or account.</source>
        <translation>لا تستطيع المواقع أن تعرف من عنوان الخروج أن تطبيقين هما لك. يُميَّز بين التطبيقات حيث يبدأ سطح المكتب كلًّا منها في مجموعة تحكم خاصة به، كما يفعل GNOME وKDE. أما البرامج الأخرى فتشارك دوائرها مع كل ما في جلسة دخولها أو حسابها.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Start without a window, as at login.</source>
        <translation>البدء بدون نافذة، كما عند تسجيل الدخول.</translation>
    </message>
    <message>
        <source>Connect at once.</source>
        <translation>الاتصال فورًا.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor. To restore it without Veldmark, run:
%1</source>
        <translation>ما زالت شبكتك مُعدّة لـ Tor. لاستعادتها بدون Veldmark، نفّذ:
%1</translation>
    </message>
</context>
<context>
    <name>veldmark::Alerts</name>
    <message>
        <source>Another session has replaced this one</source>
        <translation>حلّت جلسة أخرى محل هذه الجلسة</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>توقف Tor عن العمل</translation>
    </message>
    <message>
        <source>Traffic can leave around Tor</source>
        <translation>يمكن أن تمر البيانات خارج Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>يمكن أن تمر استعلامات DNS خارج Tor</translation>
    </message>
    <message>
        <source>Your real address can be seen. Open Veldmark to see what to do.</source>
        <translation>يمكن رؤية عنوانك الحقيقي. افتح Veldmark لمعرفة ما يجب فعله.</translation>
    </message>
    <message>
        <source>Firewall rules were removed</source>
        <translation>أُزيلت قواعد جدار الحماية</translation>
    </message>
    <message>
        <source>The kill switch doesn&apos;t block traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>مفتاح القطع بلا مفعول. افتح Veldmark وافصل الاتصال ثم اتصل من جديد.</translation>
    </message>
    <message>
        <source>The kill switch is not watched</source>
        <translation>مفتاح القطع غير مُراقَب</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>لا يُعرف هل مفتاح القطع ساري المفعول. افتح Veldmark وافصل الاتصال ثم اتصل من جديد.</translation>
    </message>
</context>
<context>
    <name>veldmark::Application</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
    <message>
        <source>Veldmark could not open a window. Your network is not affected. To restore it without Veldmark, run:
%1

%2</source>
        <translation>تعذر إنشاء نافذة. لم تتأثر شبكتك؛ لاستعادتها بدون Veldmark، نفّذ:
%1

%2</translation>
    </message>
    <message>
        <source>Veldmark is still running</source>
        <translation>ما زال Veldmark يعمل</translation>
    </message>
    <message>
        <source>Open Veldmark again to see its window.</source>
        <translation>افتح Veldmark مرة أخرى لرؤية نافذته.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>ما زالت شبكتك مُعدّة لـ Tor</translation>
    </message>
    <message>
        <source>Veldmark had to close and could not restore the network. Open Veldmark again to restore it.</source>
        <translation>طُلب من Veldmark أن ينتهي ولم يستطع استعادة الشبكة. افتح Veldmark مرة أخرى لاستعادتها.</translation>
    </message>
</context>
<context>
    <name>veldmark::ApplicationChoices</name>
    <message>
        <source>No installed applications were found.</source>
        <translation>لم يُعثر على تطبيقات مثبتة.</translation>
    </message>
    <message>
        <source>No application is called “%1”.</source>
        <translation>لا يوجد تطبيق باسم «%1».</translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitGraphView</name>
    <message>
        <source>%1: your real IP only ever reaches the entry relay</source>
        <translation>%1: لا يصل عنوان IP الحقيقي الخاص بك إلا إلى مرحّل الدخول</translation>
    </message>
    <message>
        <source>Used by 1 circuit</source>
        <translation>تستخدمه دائرة واحدة</translation>
    </message>
    <message>
        <source>ENTRY</source>
        <translation>الدخول</translation>
    </message>
    <message>
        <source>MIDDLE</source>
        <translation>الوسط</translation>
    </message>
    <message>
        <source>EXIT</source>
        <translation>الخروج</translation>
    </message>
    <message>
        <source>SITES</source>
        <translation>المواقع</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>⁨%1⁩ غيرها</translation>
    </message>
    <message numerus="yes">
        <source>Used by %n circuits</source>
        <translation>
            <numerusform>لا تستخدمه أي دائرة</numerusform>
            <numerusform>تستخدمه دائرة واحدة</numerusform>
            <numerusform>تستخدمه دائرتان</numerusform>
            <numerusform>تستخدمه %n دوائر</numerusform>
            <numerusform>تستخدمه %n دائرة</numerusform>
            <numerusform>تستخدمه %n دائرة</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitsModel</name>
    <message>
        <source>Unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Circuit %1</source>
        <translation>الدائرة %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>1 active path</source>
        <translation>مسار نشط واحد</translation>
    </message>
    <message>
        <source> · click a relay or site to follow it</source>
        <translation> · انقر مرحّلًا أو موقعًا لتتبّعه</translation>
    </message>
    <message>
        <source>Leads to an onion service. The last relay is the meeting point.</source>
        <translation>تؤدي إلى خدمة onion. المرحّل الأخير هو نقطة اللقاء.</translation>
    </message>
    <message>
        <source>Meeting point</source>
        <translation>نقطة اللقاء</translation>
    </message>
    <message>
        <source>One of several linked legs to the same exit</source>
        <translation>أحد عدة فروع مترابطة تؤدي إلى المخرج نفسه</translation>
    </message>
    <message>
        <source>Only the entry sees your IP</source>
        <translation>لا يرى عنوان IP الخاص بك إلا مرحّل الدخول</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>الوسط</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>جسر</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>الدخول</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>الخروج</translation>
    </message>
    <message>
        <source>, +%1 more</source>
        <translation>، و%1 غيرها</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>المواقع</translation>
    </message>
    <message>
        <source>Round trip: %1</source>
        <translation>ذهابًا وإيابًا: ⁨%1⁩</translation>
    </message>
    <message numerus="yes">
        <source>%n active paths</source>
        <translation>
            <numerusform>لا مسارات نشطة</numerusform>
            <numerusform>مسار نشط واحد</numerusform>
            <numerusform>مساران نشطان</numerusform>
            <numerusform>%n مسارات نشطة</numerusform>
            <numerusform>%n مسارًا نشطًا</numerusform>
            <numerusform>%n مسار نشط</numerusform>
        </translation>
    </message>
    <message>
        <source>Asked for by %1</source>
        <translation>طلبها ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>veldmark::DoctorModel</name>
    <message>
        <source>Problem</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>غير معلوم</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>ملاحظة</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>سليم</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>استعادة الشبكة</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>تنزيل</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>جارٍ فحص هذا الحاسوب…</translation>
    </message>
    <message>
        <source>The check gave no result.</source>
        <translation>لم يُسفر الفحص عن نتيجة.</translation>
    </message>
    <message>
        <source>No problem was found that keeps Veldmark from connecting.</source>
        <translation>لم يُعثر على ما يمنع Veldmark من الاتصال.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t connect until each problem is fixed.</source>
        <translation>لا يستطيع Veldmark الاتصال قبل إصلاح كل المشكلات.</translation>
    </message>
</context>
<context>
    <name>veldmark::LogModel</name>
    <message>
        <source>Tor writes here while it connects and runs</source>
        <translation>يكتب Tor هنا أثناء اتصاله وعمله</translation>
    </message>
    <message>
        <source>Can&apos;t read the log files</source>
        <translation>لا يمكن قراءة ملفات السجل</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>سطر واحد</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>المشكلات</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>المشكلات (%1)</translation>
    </message>
    <message>
        <source>Show the log files in Finder</source>
        <translation>عرض ملفات السجل في Finder</translation>
    </message>
    <message>
        <source>Show the log files in the file manager</source>
        <translation>عرض ملفات السجل في مدير الملفات</translation>
    </message>
    <message>
        <source>There are no log files yet. Tor creates %1 when it first starts.</source>
        <translation>لا توجد ملفات سجل بعد: ينشئ Tor ⁨%1⁩ عند تشغيله أول مرة.</translation>
    </message>
    <message>
        <source>No file manager could be opened. The log files are in %1.</source>
        <translation>تعذر فتح مدير ملفات. ملفات السجل في ⁨%1⁩.</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>لا أسطر</numerusform>
            <numerusform>سطر واحد</numerusform>
            <numerusform>سطران</numerusform>
            <numerusform>%n أسطر</numerusform>
            <numerusform>%n سطرًا</numerusform>
            <numerusform>%n سطر</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::OptionsModel</name>
    <message>
        <source>Choosing a country means fewer exit relays, so it&apos;s slower and you&apos;re easier to single out.</source>
        <translation>اختيار بلد يعني مرحّلات خروج أقل، فيصبح الاتصال أبطأ ويسهل تمييزك عن غيرك.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>معطّلة</translation>
    </message>
    <message>
        <source>obfs4 (built-in)</source>
        <translation>⁨obfs4⁩ (مدمجة)</translation>
    </message>
    <message>
        <source>Snowflake (built-in)</source>
        <translation>⁨Snowflake⁩ (مدمجة)</translation>
    </message>
    <message>
        <source>meek (built-in)</source>
        <translation>⁨meek⁩ (مدمجة)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>مخصصة</translation>
    </message>
    <message>
        <source>No bridges added yet</source>
        <translation>لم تُضف جسور بعد</translation>
    </message>
    <message>
        <source>Needs bridge programs: click Download</source>
        <translation>تلزم برامج الجسور: انقر «تنزيل»</translation>
    </message>
    <message>
        <source>Built-in bridges from %1</source>
        <translation>جسور مدمجة من ⁨%1⁩</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(السطر %1)</translation>
    </message>
    <message>
        <source>(lines %1)</source>
        <translation>(الأسطر %1)</translation>
    </message>
    <message>
        <source>1 bridge recognized</source>
        <translation>تم التعرف على جسر واحد</translation>
    </message>
    <message>
        <source>A bridge line can&apos;t contain #, &quot; or \.</source>
        <translation>لا يمكن أن يحتوي سطر الجسر على # أو &quot; أو \.</translation>
    </message>
    <message>
        <source>At most %1 bridges can be used</source>
        <translation>أقصى عدد للجسور المستخدمة: %1</translation>
    </message>
    <message>
        <source>1 line not recognized</source>
        <translation>لم يُتعرف على سطر واحد</translation>
    </message>
    <message>
        <source>None</source>
        <translation>لا يوجد</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the Dock) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>في الوضع الصارم، تستطيع هذه التطبيقات الاتصال مباشرة بدل المرور عبر Tor، مستخدمةً عنوان IP الحقيقي الخاص بك. ويبقى كل ما عداها محصورًا في Tor. افتحها بزر &lt;b&gt;فتح بدون Tor&lt;/b&gt; (لا من Dock) كي يستطيع Veldmark وسمها. إذا كانت نسخة منها تعمل فستُغلق ويُعاد فتحها.</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the desktop&apos;s menu) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>في الوضع الصارم، تستطيع هذه التطبيقات الاتصال مباشرة بدل المرور عبر Tor، مستخدمةً عنوان IP الحقيقي الخاص بك. ويبقى كل ما عداها محصورًا في Tor. افتحها بزر &lt;b&gt;فتح بدون Tor&lt;/b&gt; (لا من قائمة سطح المكتب) كي يستطيع Veldmark وسمها. إذا كانت نسخة منها تعمل فستُغلق ويُعاد فتحها.</translation>
    </message>
    <message numerus="yes">
        <source>%n bridges recognized</source>
        <translation>
            <numerusform>لم يتم التعرف على أي جسر</numerusform>
            <numerusform>تم التعرف على جسر واحد</numerusform>
            <numerusform>تم التعرف على جسرين</numerusform>
            <numerusform>تم التعرف على %n جسور</numerusform>
            <numerusform>تم التعرف على %n جسرًا</numerusform>
            <numerusform>تم التعرف على %n جسر</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines not recognized</source>
        <translation>
            <numerusform>لا أسطر غير متعرَّف عليها</numerusform>
            <numerusform>لم يُتعرف على سطر واحد</numerusform>
            <numerusform>لم يُتعرف على سطرين</numerusform>
            <numerusform>لم يُتعرف على %n أسطر</numerusform>
            <numerusform>لم يُتعرف على %n سطرًا</numerusform>
            <numerusform>لم يُتعرف على %n سطر</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::PanelModel</name>
    <message>
        <source>No answer</source>
        <translation>لا رد</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but it isn&apos;t known whether the kill switch blocks such connections</source>
        <translation>لم يتلقَّ الاتصال المباشر المتجاوز لـ Tor ردًا، لكن لا يُعرف هل يحجب مفتاح القطع اتصالات كهذه</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but proxy mode doesn&apos;t block such connections</source>
        <translation>لم يتلقَّ الاتصال المباشر المتجاوز لـ Tor ردًا، لكن وضع الوكيل لا يحجب اتصالات كهذه</translation>
    </message>
    <message>
        <source>Connect to Tor</source>
        <translation>الاتصال بـ Tor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>فصل الاتصال</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>إعادة الاتصال</translation>
    </message>
    <message>
        <source>Connected through %1 bridges</source>
        <translation>متصل عبر جسور %1</translation>
    </message>
    <message>
        <source>Strict</source>
        <translation>صارم</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>وكيل</translation>
    </message>
    <message>
        <source>Install Tor to get started</source>
        <translation>ثبّت Tor للبدء</translation>
    </message>
    <message>
        <source>Click to connect</source>
        <translation>انقر للاتصال</translation>
    </message>
    <message>
        <source>Click to disconnect</source>
        <translation>انقر لفصل الاتصال</translation>
    </message>
    <message>
        <source>Tor hasn&apos;t reported progress for a while. It is still trying; a slow or blocked network is the usual reason.</source>
        <translation>لم يُبلغ Tor عن أي تقدم منذ مدة. ما زال يحاول؛ والسبب المعتاد شبكة بطيئة أو محجوبة.</translation>
    </message>
    <message>
        <source>Still waiting for Tor to start, or for your approval.</source>
        <translation>ما زال الانتظار جاريًا لبدء Tor أو لموافقتك.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>جارٍ الفحص</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>Checked against %1</source>
        <translation>جرى الفحص لدى ⁨%1⁩</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>تم التحقق</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>غير مؤكد</translation>
    </message>
    <message>
        <source>DNS leak</source>
        <translation>تسريب DNS</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>لم يُختبر</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>جارٍ الاختبار…</translation>
    </message>
    <message>
        <source>No leaks</source>
        <translation>لا تسريبات</translation>
    </message>
    <message>
        <source>Inconclusive</source>
        <translation>نتيجة غير حاسمة</translation>
    </message>
    <message>
        <source>Exposed: %1</source>
        <translation>مكشوف: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Tries a direct connection that skips Tor</source>
        <translation>يحاول اتصالًا مباشرًا يتجاوز Tor</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor are blocked</source>
        <translation>الاتصالات المباشرة التي تتجاوز Tor محجوبة</translation>
    </message>
    <message>
        <source>Apps that ignore proxy settings show your real IP (%1). Turn on Strict mode to block them.</source>
        <translation>التطبيقات التي تتجاهل إعدادات الوكيل تكشف عنوان IP الحقيقي الخاص بك (⁨%1⁩). فعّل الوضع الصارم لحجبها.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 غيرها</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>لم يُفحص</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor show your real IP (%1), although Strict mode should block them. Disconnect, or run the leak test again.</source>
        <translation>الاتصالات المباشرة المتجاوزة لـ Tor تكشف عنوان IP الحقيقي الخاص بك (⁨%1⁩)، مع أن الوضع الصارم ينبغي أن يحجبها. افصل الاتصال، أو أعد فحص التسريب.</translation>
    </message>
</context>
<context>
    <name>veldmark::ReportModel</name>
    <message>
        <source>Saved in %1</source>
        <translation>حُفظ في ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>veldmark::SettingsModel</name>
    <message>
        <source>Found</source>
        <translation>موجود</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>ناقص</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>غير موجود</translation>
    </message>
    <message>
        <source>Homebrew: %1</source>
        <translation>Homebrew: %1</translation>
    </message>
    <message>
        <source>Install it with %1</source>
        <translation>ثبّته باستخدام %1</translation>
    </message>
    <message>
        <source>Not found in Tor Browser or a downloaded bundle</source>
        <translation>غير موجود في Tor Browser ولا في حزمة منزّلة</translation>
    </message>
    <message>
        <source>Loaded from %1</source>
        <translation>حُمّل من ⁨%1⁩</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <translation>لم يُنزَّل</translation>
    </message>
    <message>
        <source>Version %1 loaded</source>
        <translation>نُزّل الإصدار %1</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>تم التحقق من التوقيع</translation>
    </message>
    <message>
        <source>Adds one line to ~/.zshrc (and ~/.bash_profile if you have one) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>يضيف سطرًا واحدًا إلى ⁨~/.zshrc⁩ (وإلى ⁨~/.bash_profile⁩ إن وُجد) وسطر Include في أعلى ⁨~/.ssh/config⁩. ملفاته في ⁨~/.veldmark⁩. لا يُوجَّه شيء إلا إذا كان Veldmark متصلًا ووضع الطرفية مفعّلًا.</translation>
    </message>
    <message>
        <source>Adds one line to ~/.bashrc (and ~/.zshrc if you use zsh) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>يضيف سطرًا واحدًا إلى ⁨~/.bashrc⁩ (وإلى ⁨~/.zshrc⁩ إن كنت تستخدم zsh) وسطر Include في أعلى ⁨~/.ssh/config⁩. ملفاته في ⁨~/.veldmark⁩. لا يُوجَّه شيء إلا إذا كان Veldmark متصلًا ووضع الطرفية مفعّلًا.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
    <message>
        <source>Fetched over HTTPS. Its signature isn&apos;t checked, since GnuPG isn&apos;t installed.</source>
        <translation>يُنزَّل عبر HTTPS. لا يُتحقق من توقيعه لأن GnuPG غير مثبت.</translation>
    </message>
    <message>
        <source>Fetched over HTTPS and checked against the Tor Project&apos;s signature.</source>
        <translation>يُنزَّل عبر HTTPS ويُتحقق منه بتوقيع مشروع Tor.</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>غير مثبت</translation>
    </message>
    <message>
        <source>Installed in your shell and SSH config</source>
        <translation>مثبت في الصدفة وإعدادات SSH</translation>
    </message>
    <message>
        <source>Installed in your shell; SSH doesn&apos;t use it</source>
        <translation>مثبت في الصدفة؛ لا يستخدمه SSH</translation>
    </message>
    <message>
        <source>curl, git, brew, pip, ssh and more use Tor</source>
        <translation>تمر عبر Tor: برامج curl وgit وbrew وpip وssh وغيرها</translation>
    </message>
    <message>
        <source>curl, git, pip, ssh and more use Tor</source>
        <translation>تمر عبر Tor: برامج curl وgit وpip وssh وغيرها</translation>
    </message>
    <message>
        <source>Veldmark is free software and independent of the Tor Project. It contains no Tor: it runs the tor that is installed here, and where bridges are used lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>برنامج Veldmark حر ومستقل عن مشروع Tor. وهو لا يتضمن Tor نفسه: بل يشغّل برنامج tor المثبت هنا، وعند استخدام الجسور يشغّل lyrebird أو snowflake-client أو webtunnel-client.</translation>
    </message>
    <message>
        <source>It sets up the network with macOS&apos;s own programs, asks for the administrator with sudo, and checks downloads with GnuPG where that is installed.</source>
        <translation>يُعدّ الشبكة ببرامج macOS نفسها، ويطلب صلاحيات مدير النظام عبر sudo، ويتحقق من التنزيلات باستخدام GnuPG حيث يكون مثبتًا.</translation>
    </message>
    <message>
        <source>It sets up the network with nftables, resolvectl and gsettings, asks for the administrator with polkit or sudo, takes ssh through Tor with a netcat, and checks downloads with GnuPG where that is installed.</source>
        <translation>يُعدّ الشبكة باستخدام nftables وresolvectl وgsettings، ويطلب صلاحيات مدير النظام عبر polkit أو sudo، ويمرّر ssh عبر Tor باستخدام netcat، ويتحقق من التنزيلات باستخدام GnuPG حيث يكون مثبتًا.</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>اسأل</translation>
    </message>
    <message>
        <source>Try bridges</source>
        <translation>جرّب الجسور</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>لا تفعل شيئًا</translation>
    </message>
</context>
<context>
    <name>veldmark::ShutdownNotice</name>
    <message>
        <source>Restoring your network settings</source>
        <translation>جارٍ استعادة إعدادات شبكتك</translation>
    </message>
</context>
<context>
    <name>veldmark::Text</name>
    <message>
        <source>Tor hasn&apos;t confirmed that it uses the network again, so traffic may not get through. Veldmark keeps telling Tor to. If this lasts, disconnect and connect again.</source>
        <translation>لم يؤكد Tor أنه عاد إلى الشبكة، لذا قد لا يمر شيء. يواصل Veldmark مطالبته بذلك؛ فإن لم ينجح فافصل الاتصال ثم اتصل من جديد.</translation>
    </message>
    <message>
        <source>Version %1 is offered, which is older than the installed %2. Nothing was changed.</source>
        <translation>الإصدار المعروض %1 أقدم من الإصدار المثبت %2. لم يُغيَّر شيء.</translation>
    </message>
    <message>
        <source>The download of version %1 contains another version, so it was discarded.</source>
        <translation>ما وصل على أنه الإصدار %1 هو إصدار آخر، لذا استُبعد.</translation>
    </message>
    <message>
        <source>The download begins again when Tor is connected…</source>
        <translation>يبدأ التنزيل من جديد عندما يتصل Tor…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a location of Tor. Give an absolute path, such as /usr/bin/tor.</source>
        <translation>«⁨%1⁩» ليس مكانًا صالحًا لبرنامج Tor: أعطِ المسار كاملًا، مثل ⁨/usr/bin/tor⁩.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be changed during a connection. Disconnect to change it.</source>
        <translation>الإعداد «%1» يسري على الاتصال كله. افصل الاتصال لتغييره.</translation>
    </message>
    <message>
        <source>Your traffic is not going through Tor</source>
        <translation>حركة بياناتك لا تمر عبر Tor</translation>
    </message>
    <message>
        <source>Restoring your network settings…</source>
        <translation>جارٍ استعادة إعدادات شبكتك…</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor from an earlier session</source>
        <translation>ما زالت شبكتك مُعدّة لـ Tor من جلسة سابقة</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>ما زالت شبكتك مُعدّة لـ Tor</translation>
    </message>
    <message>
        <source>Preparing Tor…</source>
        <translation>جارٍ تحضير Tor…</translation>
    </message>
    <message>
        <source>Waiting for administrator approval…</source>
        <translation>في انتظار موافقة مدير النظام…</translation>
    </message>
    <message>
        <source>Waiting for an administrator to approve a program…</source>
        <translation>في انتظار أن يوافق مدير النظام على برنامج…</translation>
    </message>
    <message>
        <source>Starting Tor…</source>
        <translation>جارٍ بدء Tor…</translation>
    </message>
    <message>
        <source>Tor is waiting for the bridge program, which hasn&apos;t said that it is ready.</source>
        <translation>ينتظر Tor برنامج الجسور الذي لم يعلن جاهزيته بعد.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting</source>
        <translation>لم يُكمل Tor الاتصال</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>توقف Tor عن العمل</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor</source>
        <translation>كل حركة البيانات مقصورة على Tor</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor</source>
        <translation>التطبيقات التي تستخدم إعدادات وكيل النظام تمر عبر Tor</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. Reconnect, or Restore Network to go back online.</source>
        <translation>توقف Tor عن العمل. ما زال مفتاح القطع يحجب حركة البيانات، فلم يتسرب شيء. أعد الاتصال، أو استعِد الشبكة للعودة إلى الإنترنت بدون Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, but the last checks saw traffic go around Tor. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>توقف Tor عن العمل. ما زال مفتاح القطع يحجب حركة البيانات، لكن آخر الفحوص رصدت بيانات تمر خارج Tor. أعد الاتصال، أو استعِد الشبكة للعودة إلى الإنترنت بدون Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running. Apps using the proxy can&apos;t connect until you reconnect or Restore Network.</source>
        <translation>توقف Tor عن العمل. لا تستطيع التطبيقات التي تستخدم الوكيل الاتصال حتى تعيد الاتصال أو تستعيد الشبكة.</translation>
    </message>
    <message>
        <source>Any (recommended)</source>
        <translation>أي بلد (موصى به)</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>الولايات المتحدة</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>كندا</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>المملكة المتحدة</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>ألمانيا</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>هولندا</translation>
    </message>
    <message>
        <source>France</source>
        <translation>فرنسا</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>السويد</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>سويسرا</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>فنلندا</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>رومانيا</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>اليابان</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>سنغافورة</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>مخصصة</translation>
    </message>
    <message>
        <source>DNS can go around Tor via: %1</source>
        <translation>يمكن أن تمر استعلامات DNS خارج Tor عبر: ⁨%1⁩</translation>
    </message>
    <message>
        <source>DNS: not tested yet.</source>
        <translation>حالة DNS: لم يُختبر بعد.</translation>
    </message>
    <message>
        <source>DNS: testing…</source>
        <translation>حالة DNS: جارٍ الاختبار…</translation>
    </message>
    <message>
        <source>DNS: a test lookup went through Tor.</source>
        <translation>حالة DNS: مرّ استعلام تجريبي عبر Tor.</translation>
    </message>
    <message>
        <source>DNS: settings point at Tor, but a test lookup couldn&apos;t be confirmed.</source>
        <translation>حالة DNS: الإعدادات تشير إلى Tor، لكن تعذر تأكيد استعلام تجريبي.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>هذا الحاسوب</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>جهاز Mac هذا</translation>
    </message>
    <message>
        <source>on this computer</source>
        <translation>على هذا الحاسوب</translation>
    </message>
    <message>
        <source>on this Mac</source>
        <translation>على جهاز Mac هذا</translation>
    </message>
    <message>
        <source>Tor stopped running, and your network is no longer set up for it.</source>
        <translation>توقف Tor عن العمل، ولم تعد شبكتك مُعدّة له.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is blocking traffic again, but another program had removed its rules for a while. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>توقف Tor عن العمل. عاد مفتاح القطع يحجب حركة البيانات، لكن برنامجًا آخر كان قد أزال قواعده لفترة. أعد الاتصال، أو استعِد الشبكة للعودة إلى الإنترنت بدون Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running, and the kill switch doesn&apos;t block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network.</source>
        <translation>توقف Tor عن العمل، ومفتاح القطع بلا مفعول: أزال برنامج آخر قواعده. قد تخرج البيانات من هذا الحاسوب مباشرة. أعد الاتصال، أو استعِد الشبكة.</translation>
    </message>
    <message>
        <source>Tor stopped running, and it isn&apos;t known whether the kill switch is still blocking traffic. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>توقف Tor عن العمل، ولا يُعرف هل ما زال مفتاح القطع يحجب حركة البيانات. أعد الاتصال، أو استعِد الشبكة للعودة إلى الإنترنت بدون Tor.</translation>
    </message>
    <message>
        <source>The watcher of Veldmark&apos;s firewall rules has stopped reporting, so it isn&apos;t known whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>توقف مراقب قواعد جدار الحماية الخاصة بـ Veldmark عن الإبلاغ، فلا يُعرف هل مفتاح القطع ساري المفعول. افصل الاتصال ثم اتصل من جديد.</translation>
    </message>
    <message>
        <source>Not Protected</source>
        <translation>غير محمي</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>جارٍ الاتصال…</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>جارٍ فصل الاتصال…</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>محمي</translation>
    </message>
    <message>
        <source>Proxy Active</source>
        <translation>الوكيل مفعّل</translation>
    </message>
    <message>
        <source>Needs Attention</source>
        <translation>يتطلب انتباهك</translation>
    </message>
    <message>
        <source>DNS Leak</source>
        <translation>تسريب DNS</translation>
    </message>
    <message>
        <source>Kill Switch Failed</source>
        <translation>مفتاح القطع بلا مفعول</translation>
    </message>
    <message>
        <source>Traffic may leave this computer directly</source>
        <translation>قد تخرج البيانات من هذا الحاسوب مباشرة</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>يمكن أن تمر استعلامات DNS خارج Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor, and your real address can be seen</source>
        <translation>يمكن أن تمر استعلامات DNS خارج Tor، ويمكن رؤية عنوانك الحقيقي</translation>
    </message>
    <message>
        <source>Your real address can be seen. Disconnect, or run the leak test again.</source>
        <translation>يمكن رؤية عنوانك الحقيقي. افصل الاتصال، أو أعد فحص التسريب.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>لا يُعرف هل مفتاح القطع ساري المفعول. افصل الاتصال ثم اتصل من جديد.</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor, but the exit could not be confirmed</source>
        <translation>كل حركة البيانات مقصورة على Tor، لكن تعذر تأكيد المخرج</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor, but the exit could not be confirmed</source>
        <translation>التطبيقات التي تستخدم إعدادات وكيل النظام تمر عبر Tor، لكن تعذر تأكيد المخرج</translation>
    </message>
    <message>
        <source>No Network</source>
        <translation>لا شبكة</translation>
    </message>
    <message>
        <source>Nothing Gets Through</source>
        <translation>لا شيء يمر</translation>
    </message>
    <message>
        <source>This computer has no network. Traffic around Tor stays blocked.</source>
        <translation>هذا الحاسوب بلا شبكة. وتبقى حركة البيانات خارج Tor محجوبة.</translation>
    </message>
    <message>
        <source>This computer has no network. Veldmark goes on when it is back.</source>
        <translation>هذا الحاسوب بلا شبكة. يتابع Veldmark عمله عند عودتها.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>ليس لدى Tor دائرة عاملة وهو يواصل المحاولة. وتبقى حركة البيانات خارج Tor محجوبة.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying.</source>
        <translation>ليس لدى Tor دائرة عاملة وهو يواصل المحاولة.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>لا يتلقى Tor ردًا من الشبكة وهو يواصل المحاولة. وتبقى حركة البيانات خارج Tor محجوبة.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying.</source>
        <translation>لا يتلقى Tor ردًا من الشبكة وهو يواصل المحاولة.</translation>
    </message>
    <message>
        <source>Another program has ended this session and started its own. Restore Network ends that session.</source>
        <translation>أنهى برنامج آخر هذه الجلسة وبدأ جلسة خاصة به. «استعادة الشبكة» تنهي تلك الجلسة.</translation>
    </message>
    <message>
        <source>This computer has no network, so Tor can&apos;t connect.</source>
        <translation>هذا الحاسوب بلا شبكة، لذا لا يستطيع Tor الاتصال.</translation>
    </message>
    <message>
        <source>A VPN takes Tor&apos;s traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode.</source>
        <translation>تأخذ شبكة VPN حركة بيانات Tor، والوضع الصارم لا يسمح لها بالخروج. أوقف VPN، أو استخدم وضع الوكيل.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules; they are back in place.</source>
        <translation>أزال برنامج آخر قواعد جدار الحماية الخاصة بـ Veldmark؛ وقد أُعيدت إلى مكانها.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules and they could not be put back. Traffic may leave this computer directly. Disconnect and connect again.</source>
        <translation>أزال برنامج آخر قواعد جدار الحماية الخاصة بـ Veldmark وتعذرت إعادتها. قد تخرج البيانات من هذا الحاسوب مباشرة. افصل الاتصال ثم اتصل من جديد.</translation>
    </message>
    <message>
        <source>Invalid exit country.</source>
        <translation>بلد خروج غير صالح.</translation>
    </message>
    <message>
        <source>The settings couldn&apos;t be saved. Changes to them may last only until you quit.</source>
        <translation>تعذر حفظ الإعدادات. قد لا تدوم تغييراتها إلا إلى أن تُنهي البرنامج.</translation>
    </message>
    <message>
        <source>Checking latest version…</source>
        <translation>جارٍ البحث عن أحدث إصدار…</translation>
    </message>
    <message>
        <source>Verifying signature…</source>
        <translation>جارٍ التحقق من التوقيع…</translation>
    </message>
    <message>
        <source>Another download is under way.</source>
        <translation>هناك تنزيل آخر جارٍ.</translation>
    </message>
    <message>
        <source>Path not responding, finding another…</source>
        <translation>المسار لا يستجيب، جارٍ البحث عن غيره…</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes.</source>
        <translation>لم يُكمل Tor الاتصال خلال 5 دقائق.</translation>
    </message>
    <message>
        <source>Administrator access was refused, or the agent that asks for the password gave no answer.</source>
        <translation>رُفضت صلاحيات مدير النظام، أو لم يردّ البرنامج الذي يطلب كلمة السر.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, so Tor can&apos;t connect: %1.</source>
        <translation>يمنع جدار حماية آخر على هذا الحاسوب الاتصالات الصادرة، لذا لا يستطيع Tor الاتصال: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Setup ran but the helper wasn&apos;t installed. Try again.</source>
        <translation>جرى الإعداد لكن البرنامج المساعد لم يُثبَّت. حاول مرة أخرى.</translation>
    </message>
    <message>
        <source>The helper failed without an error message.</source>
        <translation>فشل البرنامج المساعد بدون رسالة خطأ.</translation>
    </message>
    <message>
        <source>Add at least one bridge under Bridges → Custom….</source>
        <translation>أضف جسرًا واحدًا على الأقل في «الجسور ← مخصصة…».</translation>
    </message>
    <message>
        <source>Some custom bridge lines aren&apos;t valid. Fix them under Bridges → Custom….</source>
        <translation>بعض أسطر الجسور المخصصة غير صالحة. صحّحها في «الجسور ← مخصصة…».</translation>
    </message>
    <message>
        <source>At most %1 custom bridges can be used. Remove some under Bridges → Custom….</source>
        <translation>أقصى عدد للجسور المخصصة المستخدمة: %1. أزل بعضها في «الجسور ← مخصصة…».</translation>
    </message>
    <message>
        <source>Testing speed (%1 of %2)…</source>
        <translation>جارٍ اختبار السرعة (%1 من %2)…</translation>
    </message>
    <message>
        <source>Slow path (%1 ms), finding a faster one…</source>
        <translation>مسار بطيء (%1 مللي ثانية)، جارٍ البحث عن أسرع منه…</translation>
    </message>
    <message>
        <source>Downloading Tor %1 bridge programs…</source>
        <translation>جارٍ تنزيل برامج جسور Tor %1…</translation>
    </message>
    <message>
        <source>Download of %1 failed (HTTP %2).</source>
        <translation>فشل تنزيل %1 (HTTP %2).</translation>
    </message>
    <message>
        <source>The settings file couldn&apos;t be read. It was kept as %1, and a new one is used.</source>
        <translation>تعذرت قراءة ملف الإعدادات. احتُفظ به باسم ⁨%1⁩، ويُستخدم ملف جديد.</translation>
    </message>
    <message>
        <source>The settings file %1 can&apos;t be read or replaced. Changes to the settings last until you quit.</source>
        <translation>لا يمكن قراءة ملف الإعدادات ⁨%1⁩ ولا استبداله. تدوم تغييرات الإعدادات إلى أن تُنهي البرنامج.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1 without Tor: %2</source>
        <translation>تعذر فتح %1 بدون Tor: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Another Veldmark of yours has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>بدأت نسخة أخرى من Veldmark لديك جلسة منذ ذلك الحين، لذا لم تُنهَ أي جلسة. افصل الاتصال مرة أخرى لإنهائها.</translation>
    </message>
    <message>
        <source>Another user&apos;s Veldmark has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>بدأت نسخة Veldmark لمستخدم آخر جلسة منذ ذلك الحين، لذا لم تُنهَ أي جلسة. افصل الاتصال مرة أخرى لإنهائها.</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by another Veldmark of yours, process %1</source>
        <translation>شبكتك مُعدّة لـ Tor بواسطة نسخة أخرى من Veldmark لديك، العملية %1</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by %1, whose Veldmark is process %2</source>
        <translation>شبكتك مُعدّة لـ Tor بواسطة %1، وعملية Veldmark لديه رقمها %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours is connected (process %1). Disconnect it, or restore the network, first.</source>
        <translation>نسخة أخرى من Veldmark لديك متصلة (العملية %1). افصل اتصالها أو استعِد الشبكة أولًا.</translation>
    </message>
    <message>
        <source>%1 is connected with Veldmark (process %2). That session must be ended first.</source>
        <translation>المستخدم ⁨%1⁩ متصل باستخدام Veldmark (العملية %2). يجب إنهاء تلك الجلسة أولًا.</translation>
    </message>
    <message>
        <source>%1 Your network is still pointed at Tor. Click Restore Network to undo.</source>
        <translation>%1 ما زالت شبكتك موجّهة إلى Tor. انقر «استعادة الشبكة» للتراجع.</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install the OpenBSD netcat or Ncat with your package manager.</source>
        <translation>لا يمر ssh عبر Tor بعد: يحتاج إلى netcat يدعم SOCKS. ثبّت netcat من OpenBSD أو Ncat بمدير الحزم لديك.</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up terminal mode: %1</source>
        <translation>تعذر إعداد وضع الطرفية: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove terminal integration: %1</source>
        <translation>تعذرت إزالة تكامل الطرفية: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up passwordless mode: %1</source>
        <translation>تعذر إعداد الوضع بلا كلمة سر: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove passwordless mode: %1</source>
        <translation>تعذرت إزالة الوضع بلا كلمة سر: ⁨%1⁩</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install one with: %1</source>
        <translation>لا يمر ssh عبر Tor بعد: يحتاج إلى netcat يدعم SOCKS. ثبّته بالأمر: %1</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>اتصل في الوضع الصارم لفتح تطبيقات بدون Tor</translation>
    </message>
    <message>
        <source>No bridge answered a quick test, trying them all</source>
        <translation>لم يردّ أي جسر على الاختبار السريع، جارٍ تجربتها كلها</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>تحتاج هذه الجسور إلى lyrebird الذي يأتي مع Tor Browser. انقر «تنزيل» بجانب «الجسور» للحصول عليه.</translation>
    </message>
    <message>
        <source>Snowflake needs snowflake-client, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>يحتاج Snowflake إلى snowflake-client الذي يأتي مع Tor Browser. انقر «تنزيل» بجانب «الجسور» للحصول عليه.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the latest Tor version from torproject.org.</source>
        <translation>تعذرت قراءة أحدث إصدار من Tor من torproject.org.</translation>
    </message>
    <message>
        <source>The request timed out.</source>
        <translation>انتهت مهلة الطلب.</translation>
    </message>
    <message>
        <source>The server gave no HTTP answer.</source>
        <translation>لم يُعطِ الخادم ردًا بـ HTTP.</translation>
    </message>
    <message>
        <source>The connection was lost before the download ended.</source>
        <translation>انقطع الاتصال قبل اكتمال التنزيل.</translation>
    </message>
    <message>
        <source>Not connected to Tor&apos;s control port.</source>
        <translation>لا اتصال بمنفذ التحكم في Tor.</translation>
    </message>
    <message>
        <source>Tor closed the control connection.</source>
        <translation>أغلق Tor اتصال التحكم.</translation>
    </message>
    <message>
        <source>A program other than Tor listens on Tor&apos;s control port.</source>
        <translation>برنامج آخر غير Tor يستمع على منفذ التحكم في Tor.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t answer on its control port in time.</source>
        <translation>لم يردّ Tor على منفذ التحكم في الوقت المحدد.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager or set its location in Settings.</source>
        <translation>برنامج Tor غير مثبت. ثبّته بمدير الحزم لديك أو حدد مكانه في الإعدادات.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with Homebrew (brew install tor) or set its location in Settings.</source>
        <translation>برنامج Tor غير مثبت. ثبّته باستخدام Homebrew (brew install tor) أو حدد مكانه في الإعدادات.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: polkit is not running on this system.</source>
        <translation>لا يمكن طلب صلاحيات مدير النظام: لا يعمل polkit على هذا النظام.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: no PolicyKit authentication agent is running in this session.</source>
        <translation>لا يمكن طلب صلاحيات مدير النظام: لا يعمل أي عميل مصادقة لـ PolicyKit في هذه الجلسة.</translation>
    </message>
    <message>
        <source>The password could not be checked: polkit accepts no password from this terminal. Run the command with sudo.</source>
        <translation>تعذر التحقق من كلمة السر: لا يقبل polkit كلمة سر من هذه الطرفية. شغّل الأمر باستخدام sudo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t fix DNS: %1</source>
        <translation>تعذر إصلاح DNS: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t request a new identity: %1</source>
        <translation>تعذر طلب هوية جديدة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t read circuits: %1</source>
        <translation>تعذرت قراءة الدوائر: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the login-item setting: %1</source>
        <translation>تعذر تغيير إعداد الفتح عند تسجيل الدخول: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Login items can&apos;t be changed here.</source>
        <translation>لا يمكن تغيير عناصر تسجيل الدخول هنا.</translation>
    </message>
    <message>
        <source>Move Veldmark to the Applications folder and open it from there first.</source>
        <translation>انقل Veldmark إلى مجلد التطبيقات وافتحه من هناك أولًا.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1.</source>
        <translation>تعذرت إزالة ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <translation>تعذرت كتابة ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t download bridge programs: %1</source>
        <translation>تعذر تنزيل برامج الجسور: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download again to also verify the Tor Project&apos;s signature.</source>
        <translation>ثُبّت الإصدار %1 من برامج الجسور عبر HTTPS. ثبّت GnuPG (%2) وأعد التنزيل للتحقق أيضًا من توقيع مشروع Tor.</translation>
    </message>
    <message>
        <source>The download&apos;s signature didn&apos;t verify, so it was discarded. %1</source>
        <translation>فشل التحقق من توقيع التنزيل، لذا استُبعد. %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unpack the download. %1</source>
        <translation>تعذر فك حزمة التنزيل. %1</translation>
    </message>
    <message>
        <source>Tor can&apos;t reach the bridge program: %1.</source>
        <translation>لا يستطيع Tor الوصول إلى برنامج الجسور: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Tor reports: %1 (%2).</source>
        <translation>يفيد Tor بما يلي: ⁨%1⁩ (⁨%2⁩).</translation>
    </message>
    <message>
        <source>Tor reports: %1.</source>
        <translation>يفيد Tor بما يلي: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Tor replied: %1</source>
        <translation>ردّ Tor: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Tor has trouble with the bridge program: %1</source>
        <translation>يواجه Tor مشكلة مع برنامج الجسور: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The bridge program printed something that Tor doesn&apos;t understand: &quot;%1&quot;.</source>
        <translation>أخرج برنامج الجسور شيئًا لا يفهمه Tor: «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Using the %1 fastest of %2 bridges</source>
        <translation>تُستخدم أسرع الجسور: %1 من أصل %2</translation>
    </message>
    <message>
        <source>The %1 bridge type isn&apos;t supported yet.</source>
        <translation>جسور النوع %1 غير مدعومة بعد.</translation>
    </message>
    <message>
        <source>Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, install Tor Browser, or paste your own under Bridges → Custom….</source>
        <translation>تأتي جسور %1 المدمجة مع Tor Browser. انقر «تنزيل» بجانب «الجسور»، أو ثبّت Tor Browser، أو ألصق جسورك في «الجسور ← مخصصة…».</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1.</source>
        <translation>بعض إعدادات DNS مصدرها خارج Veldmark (شبكة VPN أو ⁨/etc/resolver⁩) وما زالت تشير إلى خارج Tor: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1. Strict mode&apos;s firewall blocks them.</source>
        <translation>بعض إعدادات DNS مصدرها خارج Veldmark (شبكة VPN أو ⁨/etc/resolver⁩) وما زالت تشير إلى خارج Tor: ⁨%1⁩. جدار حماية الوضع الصارم يحجبها.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager (%1) or set its location in Settings.</source>
        <translation>برنامج Tor غير مثبت. ثبّته بمدير الحزم لديك (%1) أو حدد مكانه في الإعدادات.</translation>
    </message>
    <message>
        <source>%1 is already being opened.</source>
        <translation>يجري فتح %1 بالفعل.</translation>
    </message>
    <message>
        <source>A session is open, and its kill switch doesn&apos;t block traffic: its watcher couldn&apos;t put the rules back. Traffic may leave this computer directly. Restore the network, and connect again.</source>
        <translation>هناك جلسة قائمة، ومفتاح القطع فيها بلا مفعول: لم يستطع مراقبه إعادة القواعد. قد تخرج البيانات من هذا الحاسوب مباشرة. استعِد الشبكة، ثم اتصل من جديد.</translation>
    </message>
    <message>
        <source>The clock is behind: it shows %1, but the file %2 was written on %3. Tor needs a clock that is right to within minutes.</source>
        <translation>الساعة متأخرة: تشير إلى ⁨%1⁩، لكن الملف ⁨%2⁩ كُتب في ⁨%3⁩. يحتاج Tor إلى ساعة لا يتجاوز خطؤها بضع دقائق.</translation>
    </message>
    <message>
        <source>The clock is set from the network. It shows %1.</source>
        <translation>تُضبط الساعة من الشبكة. وهي تشير إلى ⁨%1⁩.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether the clock is right: no time service seems to set it. It shows %1. Tor needs it right to within minutes.</source>
        <translation>لا يُعرف هل الساعة صحيحة: لا يظهر ما يضبطها من الشبكة. وهي تشير إلى ⁨%1⁩. يحتاج Tor إلى ألا يتجاوز خطؤها بضع دقائق.</translation>
    </message>
    <message>
        <source>nftables isn&apos;t installed. Veldmark&apos;s firewall needs it.</source>
        <translation>حزمة nftables غير مثبتة. يحتاج إليها جدار حماية Veldmark.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall, nftables, can be used.</source>
        <translation>يمكن استخدام جدار حماية النظام nftables.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall can&apos;t be used: %1</source>
        <translation>لا يمكن استخدام جدار حماية النظام: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The running kernel (%1) has no nftables. After an upgrade of the kernel, restart the computer.</source>
        <translation>النواة العاملة (⁨%1⁩) بدون nftables. أعد تشغيل الحاسوب بعد ترقية النواة.</translation>
    </message>
    <message>
        <source>nftables is installed. Only root can tell whether the running kernel can use it.</source>
        <translation>حزمة nftables مثبتة. ولا يعلم إلا root هل تستطيع النواة العاملة استخدامها.</translation>
    </message>
    <message>
        <source>nftables is installed, and the kernel has it.</source>
        <translation>حزمة nftables مثبتة، والنواة تدعمها.</translation>
    </message>
    <message>
        <source>This system has no control groups of version 2, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>ليس في هذا النظام مجموعات تحكم من الإصدار 2، لذا لا يمكن فتح أي تطبيق بدون Tor، ولا يتعرف مفتاح القطع على Tor إلا بحسابه. كل ما عدا ذلك يعمل.</translation>
    </message>
    <message>
        <source>The kernel (%1) is older than 5.13, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>النواة (⁨%1⁩) أقدم من 5.13، لذا لا يمكن فتح أي تطبيق بدون Tor، ولا يتعرف مفتاح القطع على Tor إلا بحسابه. كل ما عدا ذلك يعمل.</translation>
    </message>
    <message>
        <source>Applications can be opened without Tor: control groups of version 2 are there.</source>
        <translation>يمكن فتح تطبيقات بدون Tor: مجموعات التحكم من الإصدار 2 موجودة.</translation>
    </message>
    <message>
        <source>No other firewall that Veldmark knows runs. Only root can read the rules themselves.</source>
        <translation>لا يعمل أي جدار حماية آخر يعرفه Veldmark. أما القواعد نفسها فلا يستطيع قراءتها إلا root.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic that its rules don&apos;t allow, so Tor may not get through: %1.</source>
        <translation>يمنع جدار حماية آخر على هذا الحاسوب كل اتصال صادر لا تسمح به إحدى قواعده، لذا قد لا يمر Tor: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Other programs set firewall rules here: %1. Veldmark leaves their rules alone. Rules that drop packets can block Tor.</source>
        <translation>برامج أخرى تضع قواعد جدار حماية هنا: ⁨%1⁩. لا يمسّ Veldmark قواعدها. القواعد التي تُسقط الحزم قد تحجب Tor.</translation>
    </message>
    <message>
        <source>pkexec isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>برنامج pkexec غير مثبت، لذا لا يمكن لأي نافذة طلب كلمة سر مدير النظام.</translation>
    </message>
    <message>
        <source>polkit isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>برنامج polkit غير مثبت، لذا لا يمكن لأي نافذة طلب كلمة سر مدير النظام.</translation>
    </message>
    <message>
        <source>There is no desktop here on which a window could ask for the administrator&apos;s password. Use sudo.</source>
        <translation>لا يوجد هنا سطح مكتب تُطلب فيه كلمة سر مدير النظام بنافذة. استخدم sudo.</translation>
    </message>
    <message>
        <source>No known polkit agent, the program that asks for the password, runs in your session. Use sudo, or start an agent such as lxpolkit.</source>
        <translation>لا يعمل في جلستك أي عميل polkit معروف، وهو البرنامج الذي يطلب كلمة السر. استخدم sudo، أو شغّل عميلًا مثل lxpolkit.</translation>
    </message>
    <message>
        <source>polkit is installed, and an agent that asks for the password runs in your session.</source>
        <translation>برنامج polkit مثبت، ويعمل في جلستك عميل يطلب كلمة السر.</translation>
    </message>
    <message>
        <source>Veldmark runs as root here and asks for no password.</source>
        <translation>يعمل Veldmark هنا بحساب root ولا يطلب كلمة سر.</translation>
    </message>
    <message>
        <source>Passwordless mode is set up.</source>
        <translation>الوضع بلا كلمة سر مُعدّ.</translation>
    </message>
    <message>
        <source>sudo isn&apos;t installed. Passwordless mode needs it.</source>
        <translation>برنامج sudo غير مثبت. يحتاج إليه الوضع بلا كلمة سر.</translation>
    </message>
    <message>
        <source>sudo is installed. Only root can tell whether you may use it.</source>
        <translation>برنامج sudo مثبت. ولا يعلم إلا root هل يُسمح لك باستخدامه.</translation>
    </message>
    <message>
        <source>sudo is installed, and you are in the group %1.</source>
        <translation>برنامج sudo مثبت، وأنت في المجموعة %1.</translation>
    </message>
    <message>
        <source>The program listens on IPv6. If it takes IPv6 alone, Tor can use the port.</source>
        <translation>يستمع البرنامج على IPv6. إن كان لا يقبل إلا IPv6 أمكن Tor أن يستخدم المنفذ.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by a program of the account %2.</source>
        <translation>المنفذ %1 الذي يحتاج إليه Tor يحجزه برنامج من الحساب %2.</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) runs. Veldmark stops it while it is connected and starts it again afterwards.</source>
        <translation>تعمل خدمة Tor الخاصة بالنظام (%1). يوقفها Veldmark ما دام متصلًا ثم يعيد تشغيلها.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2 (process %3, account %4).</source>
        <translation>المنفذ %1 الذي يحتاج إليه Tor يحجزه %2 (العملية %3، الحساب %4).</translation>
    </message>
    <message>
        <source>Veldmark&apos;s own Tor holds the ports 9050, 9051 and 293.</source>
        <translation>يحجز Tor الخاص بـ Veldmark المنافذ 9050 و9051 و293.</translation>
    </message>
    <message>
        <source>The ports that Tor needs (9050, 9051 and 293) are free.</source>
        <translation>المنافذ التي يحتاج إليها Tor (9050 و9051 و293) متاحة.</translation>
    </message>
    <message>
        <source>The location of Tor in the settings, %1, is not an executable program. Veldmark searches the usual places instead.</source>
        <translation>مكان Tor المحدد في الإعدادات، ⁨%1⁩، ليس برنامجًا قابلًا للتشغيل. يجري البحث في الأماكن المعتادة بدلًا منه.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed.</source>
        <translation>برنامج Tor غير مثبت.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t start, or isn&apos;t Tor: it prints no version.</source>
        <translation>البرنامج ⁨%1⁩ لا يبدأ أو ليس Tor: لا يذكر إصداره.</translation>
    </message>
    <message>
        <source>Tor %1 is installed: %2.</source>
        <translation>برنامج Tor %1 مثبت: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The program %1 is missing. Veldmark&apos;s helper needs it.</source>
        <translation>البرنامج ⁨%1⁩ مفقود. يحتاج إليه برنامج Veldmark المساعد.</translation>
    </message>
    <message>
        <source>Every program that Veldmark&apos;s helper calls is installed.</source>
        <translation>كل البرامج التي يستدعيها برنامج Veldmark المساعد مثبتة.</translation>
    </message>
    <message>
        <source>The helper is missing. Reinstall Veldmark.</source>
        <translation>برنامج Veldmark المساعد مفقود. ثبّت Veldmark من جديد.</translation>
    </message>
    <message>
        <source>Accounts other than root can change Veldmark&apos;s helper, %1, and with it what the administrator&apos;s password runs.</source>
        <translation>تستطيع حسابات غير root تغيير برنامج Veldmark المساعد، ⁨%1⁩، فيتغير معه ما يُشغَّل بكلمة سر مدير النظام.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper, %1, is not installed: the account %2 can change it, and with it what the administrator&apos;s password runs.</source>
        <translation>برنامج Veldmark المساعد، ⁨%1⁩، ليس نسخة مثبتة: يستطيع الحساب %2 تغييره، فيتغير معه ما يُشغَّل بكلمة سر مدير النظام.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper is installed, and only root can change it: %1.</source>
        <translation>برنامج Veldmark المساعد مثبت، ولا يستطيع تغييره إلا root: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The helper of passwordless mode belongs to another version. Set up passwordless mode again in Settings, General.</source>
        <translation>البرنامج المساعد للوضع بلا كلمة سر ليس من هذا الإصدار. أعد إعداد الوضع بلا كلمة سر في الإعدادات، قسم «عام».</translation>
    </message>
    <message>
        <source>Bridges are off. Bridges need bridge programs where Tor is blocked, and none was found.</source>
        <translation>الجسور معطّلة. حيث يكون Tor محجوبًا تحتاج الجسور إلى برامج جسور، ولم يُعثر على أي منها.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridge programs were found: %1.</source>
        <translation>الجسور معطّلة. برامج الجسور التي عُثر عليها: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The chosen bridges can&apos;t be used. %1</source>
        <translation>لا يمكن استخدام الجسور المختارة. %1</translation>
    </message>
    <message>
        <source>The chosen bridges (%1) can be used: %2.</source>
        <translation>يمكن استخدام الجسور المختارة (%1): ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 manages DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>يدير ⁨%1⁩ إعدادات DNS. يغيّر Veldmark ذلك أثناء الاتصال ثم يعيده بعده إلى ما كان عليه.</translation>
    </message>
    <message>
        <source>Veldmark wrote %1. It points DNS at Tor.</source>
        <translation>الملف ⁨%1⁩ من Veldmark. خادم الأسماء المذكور فيه هو Tor.</translation>
    </message>
    <message>
        <source>The file %1 is missing, so DNS may not work at all.</source>
        <translation>الملف ⁨%1⁩ مفقود، لذا قد لا يعمل DNS إطلاقًا.</translation>
    </message>
    <message>
        <source>A resolver on this computer answers DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>يردّ على استعلامات DNS برنامج resolver على هذا الحاسوب. يغيّر Veldmark ذلك أثناء الاتصال ثم يعيده بعده إلى ما كان عليه.</translation>
    </message>
    <message>
        <source>No earlier session is left open.</source>
        <translation>لا توجد جلسة سابقة باقية.</translation>
    </message>
    <message>
        <source>A Tor of an earlier session still runs (process %1).</source>
        <translation>ما زال Tor من جلسة سابقة يعمل (العملية %1).</translation>
    </message>
    <message>
        <source>A session is open: the network is set up for Tor, and Tor runs.</source>
        <translation>هناك جلسة قائمة: الشبكة مُعدّة لـ Tor، وTor يعمل.</translation>
    </message>
    <message>
        <source>The network is set up for Tor. It isn&apos;t known whether Tor still runs.</source>
        <translation>الشبكة مُعدّة لـ Tor. ولا يُعرف هنا هل ما زال Tor يعمل.</translation>
    </message>
    <message>
        <source>The network is still set up for Tor from an earlier session, and no Tor runs. Connect again, or restore the network.</source>
        <translation>ما زالت الشبكة مُعدّة لـ Tor من جلسة سابقة، ولا يعمل أي Tor. اتصل من جديد، أو استعِد الشبكة.</translation>
    </message>
    <message>
        <source>A session is open, and it isn&apos;t known whether its kill switch blocks traffic: no watcher watches the rules. Restore the network, and connect again.</source>
        <translation>هناك جلسة قائمة، ولا يُعرف هل مفتاح القطع فيها ساري المفعول: لا مراقب يراقب القواعد. استعِد الشبكة، ثم اتصل من جديد.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>أُلغي.</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 ميغابايت</translation>
    </message>
    <message>
        <source>%1 of %2 MB (%3%)</source>
        <translation>%1 من %2 ميغابايت (%3%)</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this computer. While connected, Veldmark stops the system&apos;s own Tor service.</source>
        <translation>يحتاج Veldmark إلى صلاحيات مدير النظام لإدارة التوجيه عبر Tor على هذا الحاسوب. يوقف Veldmark خدمة Tor الخاصة بالنظام طوال مدة الاتصال.</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this Mac.</source>
        <translation>يحتاج Veldmark إلى صلاحيات مدير النظام لإدارة التوجيه عبر Tor على جهاز Mac هذا.</translation>
    </message>
    <message>
        <source>The archive contains %1: %2</source>
        <translation>يحتوي الأرشيف %1: ⁨%2⁩</translation>
    </message>
    <message>
        <source>a link that leads elsewhere</source>
        <translation>رابطًا يؤدي إلى مكان آخر</translation>
    </message>
    <message>
        <source>a hard link</source>
        <translation>رابطًا صلبًا</translation>
    </message>
    <message>
        <source>an entry that is neither a file nor a folder</source>
        <translation>ما ليس ملفًا ولا مجلدًا</translation>
    </message>
    <message>
        <source>a path that leads elsewhere</source>
        <translation>مسارًا يؤدي إلى مكان آخر</translation>
    </message>
    <message>
        <source>The file is empty or not an archive.</source>
        <translation>الأرشيف فارغ أو ليس أرشيفًا.</translation>
    </message>
    <message>
        <source>The archive&apos;s list of files is ambiguous.</source>
        <translation>قائمة ملفات الأرشيف غير واضحة.</translation>
    </message>
    <message>
        <source>The archive contains too many files.</source>
        <translation>يحتوي الأرشيف ملفات أكثر مما ينبغي.</translation>
    </message>
    <message>
        <source>The archive&apos;s content is too large.</source>
        <translation>محتوى الأرشيف أكبر مما ينبغي.</translation>
    </message>
    <message>
        <source>The archive&apos;s content could not be listed.</source>
        <translation>تعذر سرد محتوى الأرشيف.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make the folder %1: %2.</source>
        <translation>تعذر إنشاء المجلد ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1: %2.</source>
        <translation>تعذر فتح ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make a folder beside %1: %2.</source>
        <translation>تعذر إنشاء مجلد بجانب ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2.</source>
        <translation>تعذرت كتابة ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 didn&apos;t end within %2 minutes.</source>
        <translation>لم ينته %1 ضمن المهلة (بالدقائق: %2).</translation>
    </message>
    <message>
        <source>Couldn&apos;t load the Tor Browser signing key. %1</source>
        <translation>تعذر تحميل مفتاح توقيع Tor Browser. %1</translation>
    </message>
    <message>
        <source>The server sent more than %1 can be.</source>
        <translation>أرسل الخادم أكثر مما يمكن أن يكون عليه حجم %1.</translation>
    </message>
    <message>
        <source>the version index</source>
        <translation>فهرس الإصدارات</translation>
    </message>
    <message>
        <source>the bridge programs</source>
        <translation>برامج الجسور</translation>
    </message>
    <message>
        <source>signature</source>
        <translation>التوقيع</translation>
    </message>
    <message>
        <source>signing key</source>
        <translation>مفتاح التوقيع</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>جارٍ التثبيت…</translation>
    </message>
    <message>
        <source>No applications are installed.</source>
        <translation>لا توجد تطبيقات مثبتة.</translation>
    </message>
    <message>
        <source>(not in the menu)</source>
        <translation>(ليس في القائمة)</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>لا يوجد ملف «⁨%1⁩».</translation>
    </message>
    <message>
        <source>There is no application &quot;%1&quot;; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>لا يوجد تطبيق «⁨%1⁩»؛ يسرد «veldmarkctl apps» التطبيقات.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be any of: %2. Give the path.</source>
        <translation>قد يُقصد بـ «⁨%1⁩» أيٌّ مما يلي: ⁨%2⁩. أعطِ المسار.</translation>
    </message>
    <message>
        <source>%1 needs a key: veldmarkctl %1 KEY.</source>
        <translation>يحتاج %1 إلى مفتاح: veldmarkctl %1 KEY.</translation>
    </message>
    <message>
        <source>%1 needs a key and a value: veldmarkctl %1 KEY VALUE.</source>
        <translation>يحتاج %1 إلى مفتاح وقيمة: veldmarkctl %1 KEY VALUE.</translation>
    </message>
    <message>
        <source>A command is missing. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>لم يُحدَّد أمر. يسرد «veldmarkctl help» الأوامر.</translation>
    </message>
    <message>
        <source>Unknown command %1. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>أمر غير معروف %1. يسرد «veldmarkctl help» الأوامر.</translation>
    </message>
    <message>
        <source>%1 has no option %2.</source>
        <translation>ليس للأمر %1 الخيار ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t take %2.</source>
        <translation>لا يقبل %1 ما يلي: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>usage: veldmarkctl COMMAND</source>
        <translation>الاستخدام: veldmarkctl COMMAND</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage,
3 Veldmark is not running, 4 Veldmark is already running.</source>
        <translation>رمز الإنهاء: 0 تم، 1 فشل (السبب في مجرى الخطأ القياسي)، 2 استخدام خاطئ،
3 إذا كان Veldmark لا يعمل، 4 إذا كان Veldmark يعمل بالفعل.</translation>
    </message>
    <message>
        <source>line %1 is not a bridge line: %2</source>
        <translation>السطر %1 ليس سطر جسر: ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1 too many, from line %2 on; at most %3 can be used</source>
        <translation>الأسطر الزائدة: %1، بدءًا من السطر %2؛ وأقصى عدد مستخدم: %3</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>البرامج</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>غير موجود</translation>
    </message>
    <message>
        <source>doesn&apos;t say which transports it serves</source>
        <translation>لا يذكر وسائل النقل التي يوفرها</translation>
    </message>
    <message>
        <source>serves %1</source>
        <translation>يوفر %1</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>الجسور المدمجة</translation>
    </message>
    <message>
        <source>Built-in bridges, from %1</source>
        <translation>الجسور المدمجة، من ⁨%1⁩</translation>
    </message>
    <message>
        <source>none; get some with: veldmarkctl download-transports</source>
        <translation>لا توجد؛ احصل عليها بالأمر: veldmarkctl download-transports</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>تم التحقق من التوقيع</translation>
    </message>
    <message>
        <source>signature not verified</source>
        <translation>لم يُتحقق من التوقيع</translation>
    </message>
    <message>
        <source>not downloaded</source>
        <translation>لم يُنزَّل</translation>
    </message>
    <message>
        <source>Your own bridges</source>
        <translation>جسورك الخاصة</translation>
    </message>
    <message>
        <source>%1 valid</source>
        <translation>الصالحة: %1</translation>
    </message>
    <message>
        <source>Installed Tor Expert Bundle %1, signature verified.</source>
        <translation>ثُبّتت حزمة Tor Expert Bundle %1، وتم التحقق من التوقيع.</translation>
    </message>
    <message>
        <source>Veldmark isn&apos;t running. Start it with: veldmarkctl run --connect</source>
        <translation>لا يعمل Veldmark. شغّله بالأمر: veldmarkctl run --connect</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;. Fields: %2.</source>
        <translation>لا يوجد حقل «%1». الحقول: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>list the commands</source>
        <translation>سرد الأوامر</translation>
    </message>
    <message>
        <source>good</source>
        <translation>سليم</translation>
    </message>
    <message>
        <source>note</source>
        <translation>ملاحظة</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>غير معلوم</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>A connect can work.</source>
        <translation>يمكن إجراء اتصال.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work yet.</source>
        <translation>لا يمكن إجراء اتصال بعد.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work until each &quot;problem&quot; is fixed.</source>
        <translation>لا يمكن إجراء اتصال قبل إصلاح كل ما وُسم «مشكلة».</translation>
    </message>
    <message>
        <source>proxy: apps that ignore the system proxy are not covered</source>
        <translation>وكيل: لا يشمل التطبيقات التي تتجاهل وكيل النظام</translation>
    </message>
    <message>
        <source>strict: only Tor&apos;s traffic leaves</source>
        <translation>صارم: لا تخرج إلا حركة بيانات Tor</translation>
    </message>
    <message>
        <source>strict</source>
        <translation>صارم</translation>
    </message>
    <message>
        <source>blocks traffic, since %1</source>
        <translation>ساري المفعول، منذ ⁨%1⁩</translation>
    </message>
    <message>
        <source>blocks traffic; put back at %1 after another program had removed it</source>
        <translation>ساري المفعول؛ أُعيد في ⁨%1⁩ بعد أن أزاله برنامج آخر</translation>
    </message>
    <message>
        <source>NOT BLOCKING since %1: traffic may leave this computer directly</source>
        <translation>بلا مفعول منذ ⁨%1⁩: قد تخرج البيانات من هذا الحاسوب مباشرة</translation>
    </message>
    <message>
        <source>isn&apos;t known to block traffic, since %1</source>
        <translation>منذ ⁨%1⁩ لا يُعرف هل هو ساري المفعول</translation>
    </message>
    <message>
        <source>not checked yet</source>
        <translation>لم يُفحص بعد</translation>
    </message>
    <message>
        <source>the check service didn&apos;t answer through Tor</source>
        <translation>لم تردّ خدمة الفحص عبر Tor</translation>
    </message>
    <message>
        <source>%1, a Tor exit</source>
        <translation>⁨%1⁩، مخرج من مخارج Tor</translation>
    </message>
    <message>
        <source>%1, NOT a Tor exit</source>
        <translation>⁨%1⁩، ليس مخرجًا من مخارج Tor</translation>
    </message>
    <message>
        <source>open; it shows the address %1</source>
        <translation>مفتوح؛ يُظهر العنوان ⁨%1⁩</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>محجوب</translation>
    </message>
    <message>
        <source>no answer, but it isn&apos;t known whether the kill switch blocks it</source>
        <translation>لا رد، لكن لا يُعرف هل يحجبه مفتاح القطع</translation>
    </message>
    <message>
        <source>no answer, but proxy mode doesn&apos;t block it</source>
        <translation>لا رد، لكن وضع الوكيل لا يحجبه</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>جارٍ الفحص…</translation>
    </message>
    <message>
        <source>inconclusive</source>
        <translation>تعذرت معرفته</translation>
    </message>
    <message>
        <source>can go around Tor via: %1</source>
        <translation>يمكن أن تمر خارج Tor عبر: ⁨%1⁩</translation>
    </message>
    <message>
        <source>a test lookup went through Tor</source>
        <translation>مرّ استعلام تجريبي عبر Tor</translation>
    </message>
    <message>
        <source>testing…</source>
        <translation>جارٍ الاختبار…</translation>
    </message>
    <message>
        <source>settings point at Tor, but a test lookup couldn&apos;t be confirmed</source>
        <translation>الإعدادات تشير إلى Tor، لكن تعذر تأكيد استعلام تجريبي</translation>
    </message>
    <message>
        <source>not tested yet</source>
        <translation>لم يُختبر بعد</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>الوضع</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>المخرج</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>زمن الاستجابة</translation>
    </message>
    <message>
        <source>%1 ms through Tor</source>
        <translation>%1 مللي ثانية عبر Tor</translation>
    </message>
    <message>
        <source>Direct path</source>
        <translation>المسار المباشر</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>حركة البيانات</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>الوارد ⁨%1⁩، الصادر ⁨%2⁩</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>الجسور</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>ما يجب فعله</translation>
    </message>
    <message>
        <source>nothing; veldmarkctl restore would end that session</source>
        <translation>لا شيء؛ الأمر veldmarkctl restore يُنهي تلك الجلسة</translation>
    </message>
    <message>
        <source>Kill switch</source>
        <translation>مفتاح القطع</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>السبب</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>المشكلة</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>الطرفية</translation>
    </message>
    <message>
        <source>No circuits yet.</source>
        <translation>لا دوائر بعد.</translation>
    </message>
    <message>
        <source>Ready. Connect with: veldmarkctl connect</source>
        <translation>جاهز. اتصل بالأمر: veldmarkctl connect</translation>
    </message>
    <message>
        <source>Still restoring your network, one moment…</source>
        <translation>ما زالت استعادة شبكتك جارية، لحظة واحدة…</translation>
    </message>
    <message>
        <source>Stopping as soon as Tor has been started…</source>
        <translation>سيتوقف البرنامج فور اكتمال بدء Tor…</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Restore it with: %1</source>
        <translation>ما زالت الشبكة مُعدّة لـ Tor. استعِدها بالأمر: %1</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Press Ctrl-C to try again.</source>
        <translation>ما زالت الشبكة مُعدّة لـ Tor. اضغط Ctrl-C للمحاولة مرة أخرى.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Press Ctrl-C to disconnect.</source>
        <translation>اضغط Ctrl-C لفصل الاتصال.</translation>
    </message>
    <message>
        <source>A command to Tor can&apos;t contain a line break or a NUL.</source>
        <translation>لا يمكن أن يحتوي أمر إلى Tor فاصل أسطر أو NUL.</translation>
    </message>
    <message>
        <source>Tor sent a line of more than 1 MiB on its control port.</source>
        <translation>أرسل Tor على منفذ التحكم سطرًا يتجاوز 1 ميبيبايت.</translation>
    </message>
    <message>
        <source>Tor sent a reply of more than 64 MiB on its control port.</source>
        <translation>أرسل Tor على منفذ التحكم ردًا يتجاوز 64 ميبيبايت.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>القيمة «⁨%1⁩» ليست true ولا false.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a JSON array of strings.</source>
        <translation>القيمة «⁨%1⁩» ليست مصفوفة JSON من السلاسل النصية.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a bridge choice: off, obfs4, snowflake, meek or custom.</source>
        <translation>القيمة «⁨%1⁩» ليست من خيارات الجسور: off أو obfs4 أو snowflake أو meek أو custom.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;. Settings: %2.</source>
        <translation>لا يوجد إعداد «⁨%1⁩». الإعدادات: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes. (%1)</source>
        <translation>لم يُكمل Tor الاتصال خلال 5 دقائق. (⁨%1⁩)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an exit country: two lower-case letters such as &quot;de&quot;, or nothing for any.</source>
        <translation>القيمة «⁨%1⁩» ليست بلد خروج: حرفان صغيران مثل «de»، أو لا شيء لأي بلد.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an application: an absolute path that ends in &quot;%2&quot;.</source>
        <translation>القيمة «⁨%1⁩» ليست تطبيقًا: المطلوب مسار مطلق ينتهي بـ «⁨%2⁩».</translation>
    </message>
    <message>
        <source>strict mode with the kill switch, else proxy mode</source>
        <translation>الوضع الصارم مع مفتاح القطع، وإلا فوضع الوكيل</translation>
    </message>
    <message>
        <source>strict mode lets the local network through</source>
        <translation>الوضع الصارم يسمح بمرور الشبكة المحلية</translation>
    </message>
    <message>
        <source>two lower-case letters, or nothing for any</source>
        <translation>حرفان صغيران، أو لا شيء لأي بلد</translation>
    </message>
    <message>
        <source>the path of the tor to use, or nothing to search for tor</source>
        <translation>مسار برنامج tor المستخدم، أو لا شيء للبحث عنه</translation>
    </message>
    <message>
        <source>which bridges</source>
        <translation>أي الجسور تُستخدم</translation>
    </message>
    <message>
        <source>your own bridge lines, as typed</source>
        <translation>أسطر جسورك الخاصة كما كُتبت</translation>
    </message>
    <message>
        <source>paths of applications that may be opened without Tor</source>
        <translation>مسارات التطبيقات المسموح بفتحها بدون Tor</translation>
    </message>
    <message>
        <source>connect when Veldmark starts</source>
        <translation>الاتصال عند بدء Veldmark</translation>
    </message>
    <message>
        <source>test bridges before connecting, look for a faster path afterwards</source>
        <translation>اختبار الجسور قبل الاتصال، والبحث عن مسار أسرع بعده</translation>
    </message>
    <message>
        <source>command-line tools go through Tor while connected</source>
        <translation>تمر أدوات سطر الأوامر عبر Tor ما دام الاتصال قائمًا</translation>
    </message>
    <message>
        <source>with your package manager</source>
        <translation>بمدير الحزم لديك</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>جارٍ البدء…</translation>
    </message>
    <message>
        <source>&quot;set&quot; needs a &quot;key&quot; and a &quot;value&quot;, both strings.</source>
        <translation>يحتاج «set» إلى «key» و«value»، وكلاهما سلسلة نصية.</translation>
    </message>
    <message>
        <source>Already connected or connecting; &quot;veldmarkctl status&quot; says more.</source>
        <translation>متصل بالفعل، أو قيد الاتصال؛ يذكر «veldmarkctl status» المزيد.</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>ليس الآن: ⁨%1⁩</translation>
    </message>
    <message>
        <source>A check is already running.</source>
        <translation>هناك فحص جارٍ بالفعل.</translation>
    </message>
    <message>
        <source>There is no circuit &quot;%1&quot;.</source>
        <translation>لا توجد دائرة «%1».</translation>
    </message>
    <message>
        <source>Tor didn&apos;t close circuit %1.</source>
        <translation>لم يغلق Tor الدائرة %1.</translation>
    </message>
    <message>
        <source>&quot;launch&quot; needs an &quot;app&quot;, an absolute path.</source>
        <translation>يحتاج «launch» إلى «app»، وهو مسار مطلق.</translation>
    </message>
    <message>
        <source>Veldmark stopped before it had answered.</source>
        <translation>توقف Veldmark قبل أن يردّ.</translation>
    </message>
    <message>
        <source>Veldmark is already running (process %1).</source>
        <translation>يعمل Veldmark بالفعل (العملية %1).</translation>
    </message>
    <message>
        <source>%1 must be a folder of your own with mode 0700: the control socket goes there.</source>
        <translation>يجب أن يكون ⁨%1⁩ مجلدًا تملكه أنت بأذونات 0700: يوضع فيه مقبس التحكم.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1/lock.</source>
        <translation>تعذرت كتابة ⁨%1/lock⁩.</translation>
    </message>
    <message>
        <source>Couldn&apos;t listen on %1: %2.</source>
        <translation>تعذر الاستماع على ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>A command is a JSON object on one line.</source>
        <translation>الأمر كائن JSON في سطر واحد.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>أمر غير معروف «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Not connected.</source>
        <translation>غير متصل.</translation>
    </message>
    <message>
        <source>The session has ended: %1</source>
        <translation>انتهت الجلسة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>as JSON</source>
        <translation>بصيغة JSON</translation>
    </message>
    <message>
        <source>connect at once</source>
        <translation>الاتصال فورًا</translation>
    </message>
    <message>
        <source>run Veldmark here, in the foreground; Ctrl-C disconnects</source>
        <translation>تشغيل Veldmark هنا في المقدمة؛ Ctrl-C يفصل الاتصال</translation>
    </message>
    <message>
        <source>go on until Ctrl-C</source>
        <translation>الاستمرار حتى Ctrl-C</translation>
    </message>
    <message>
        <source>print the connection&apos;s state; --watch goes on until Ctrl-C</source>
        <translation>الحالة الراهنة؛ ⁨--watch⁩ يستمر حتى Ctrl-C</translation>
    </message>
    <message>
        <source>connect the running instance to Tor</source>
        <translation>وصل نسخة Veldmark العاملة بشبكة Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor</source>
        <translation>استعادة الشبكة وإيقاف Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor, also after a crash</source>
        <translation>استعادة الشبكة وإيقاف Tor، حتى بعد انهيار البرنامج</translation>
    </message>
    <message>
        <source>check the exit address, the direct path and DNS now</source>
        <translation>فحص عنوان الخروج والمسار المباشر وDNS الآن</translation>
    </message>
    <message>
        <source>point the system&apos;s DNS settings at Tor again</source>
        <translation>توجيه إعدادات DNS في النظام إلى Tor من جديد</translation>
    </message>
    <message>
        <source>Tor&apos;s circuits and the sites on them</source>
        <translation>دوائر Tor ومواقعها</translation>
    </message>
    <message>
        <source>close a circuit; its sites get a fresh path on their next request</source>
        <translation>إغلاق دائرة؛ تحصل مواقعها على مسار جديد عند طلبها التالي</translation>
    </message>
    <message>
        <source>close-circuit needs a circuit&apos;s number; &quot;veldmarkctl circuits&quot; shows them.</source>
        <translation>يحتاج close-circuit إلى رقم دائرة؛ يعرض «veldmarkctl circuits» الأرقام.</translation>
    </message>
    <message>
        <source>new circuits for everything</source>
        <translation>دوائر جديدة لكل شيء</translation>
    </message>
    <message>
        <source>warnings and errors only</source>
        <translation>التحذيرات والأخطاء فقط</translation>
    </message>
    <message>
        <source>Tor&apos;s log; --problems shows warnings and errors only</source>
        <translation>سجل Tor؛ ⁨--problems⁩ يعرض التحذيرات والأخطاء فقط</translation>
    </message>
    <message>
        <source>the bridge programs and built-in bridges that were found, and
which of your own bridge lines are not valid</source>
        <translation>برامج النقل والجسور المدمجة التي عُثر عليها،
وأسطر جسورك الخاصة غير الصالحة</translation>
    </message>
    <message>
        <source>fetch the Tor Project&apos;s bridge programs and built-in bridges</source>
        <translation>تنزيل برامج النقل والجسور المدمجة من مشروع Tor</translation>
    </message>
    <message>
        <source>the installed applications; * marks those in the setting &quot;bypassApps&quot;</source>
        <translation>التطبيقات المثبتة؛ العلامة * لما هو مذكور في الإعداد «bypassApps»</translation>
    </message>
    <message>
        <source>open an application without Tor, with your own address; needs strict mode.
APP is a name from &quot;apps&quot;, the file name of its desktop entry, or the path
of an entry or a program. Running copies are asked to quit first</source>
        <translation>فتح تطبيق بدون Tor، بعنوانك الحقيقي؛ يتطلب الوضع الصارم.
المعامل APP اسم من «apps»، أو اسم ملف مدخلة سطح المكتب للتطبيق، أو مسار
مدخلة أو برنامج. يُطلب من النسخ العاملة الإغلاق أولًا</translation>
    </message>
    <message>
        <source>launch needs an application; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>يحتاج launch إلى تطبيق؛ يسرد «veldmarkctl apps» التطبيقات.</translation>
    </message>
    <message>
        <source>check what a connect needs on this computer, what blocks it and how to fix
it. Changes nothing; the exit status is 0 when a connect can work</source>
        <translation>فحص هذا الحاسوب: ما يحتاج إليه الاتصال وما يعيقه وما يصلحه.
لا يغيّر شيئًا؛ رمز الإنهاء 0 إذا كان الاتصال ممكنًا</translation>
    </message>
    <message>
        <source>print a field of &quot;status --json&quot;</source>
        <translation>طباعة حقل من «status --json»</translation>
    </message>
    <message>
        <source>change a setting; most of them only while not connected</source>
        <translation>تغيير إعداد؛ معظم الإعدادات لا يُغيَّر إلا في غياب الاتصال</translation>
    </message>
    <message>
        <source>Can&apos;t read Tor&apos;s log</source>
        <translation>لا يمكن قراءة سجل Tor</translation>
    </message>
    <message>
        <source>The log files in %1 aren&apos;t readable by your account. Reconnect once with this version of Veldmark to fix their permissions.</source>
        <translation>لا يستطيع حسابك قراءة ملفات السجل في ⁨%1⁩. أعد الاتصال مرة واحدة بهذا الإصدار من Veldmark لإصلاح أذوناتها.</translation>
    </message>
    <message>
        <source>No log yet</source>
        <translation>لا سجل بعد</translation>
    </message>
    <message>
        <source>Connect, and Tor&apos;s messages appear here as it starts. If Tor fails to start, the reason shows up here.</source>
        <translation>اتصل، فتظهر رسائل Tor هنا أثناء بدئه. وإذا فشل Tor في البدء، يظهر السبب هنا.</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>لا نتائج مطابقة</translation>
    </message>
    <message>
        <source>No lines contain “%1”</source>
        <translation>لا سطر يحتوي «⁨%1⁩»</translation>
    </message>
    <message>
        <source>No warnings or errors. Tor is happy.</source>
        <translation>لا تحذيرات ولا أخطاء. لا يشكو Tor من شيء.</translation>
    </message>
    <message>
        <source>The bridge program %1 reports: %2</source>
        <translation>يفيد برنامج الجسور %1 بما يلي: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly.</source>
        <translation>انتهى برنامج الجسور %1 على نحو غير متوقع.</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending.</source>
        <translation>ينتهي برنامج الجسور %1 مرة بعد أخرى.</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly (exit status %2).</source>
        <translation>انتهى برنامج الجسور %1 على نحو غير متوقع (رمز الإنهاء %2).</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending (exit status %2).</source>
        <translation>ينتهي برنامج الجسور %1 مرة بعد أخرى (رمز الإنهاء %2).</translation>
    </message>
    <message>
        <source>It said: &quot;%1&quot;.</source>
        <translation>ورد منه: «⁨%1⁩».</translation>
    </message>
    <message>
        <source>The program is quitting.</source>
        <translation>يجري إنهاء البرنامج.</translation>
    </message>
    <message>
        <source>Veldmark replaces the running strict session. The new session may protect you less.</source>
        <translation>يُحلّ Veldmark جلسة جديدة محل الجلسة الصارمة العاملة. قد تحميك الجلسة الجديدة حماية أقل.</translation>
    </message>
    <message>
        <source>Veldmark wants to run %1 as a part of Tor. No package of the system installed it. Its SHA-256 is %2.</source>
        <translation>يريد Veldmark تشغيل ⁨%1⁩ بوصفه جزءًا من Tor. لم تأتِ به أي حزمة من حزم النظام. مجموع SHA-256 له هو ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be created: %2.</source>
        <translation>لا يمكن إنشاء ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed: %2.</source>
        <translation>لا يمكن إزالة ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>لا يمكن قراءة ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2.</source>
        <translation>لا يمكن كتابة ⁨%1⁩: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>المسار ⁨%1⁩ ليس ملفًا.</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>الملف ⁨%1⁩ للقراءة فقط.</translation>
    </message>
    <message>
        <source>%1 was changed by another program just now.</source>
        <translation>غيّر برنامج آخر ⁨%1⁩ قبل لحظات.</translation>
    </message>
    <message>
        <source>%1 belongs to another user or group.</source>
        <translation>المسار ⁨%1⁩ يخص مستخدمًا آخر أو مجموعة أخرى.</translation>
    </message>
    <message>
        <source>A bridge line is not valid.</source>
        <translation>أحد أسطر الجسور غير صالح.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your network settings.</source>
        <translation>كان سجل لإعدادات الشبكة السابقة تالفًا (⁨%1⁩). رُفع الحجب عن الشبكة؛ تحقق من إعدادات شبكتك.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your proxy settings.</source>
        <translation>كان سجل لإعدادات الشبكة السابقة تالفًا (⁨%1⁩). رُفع الحجب عن الشبكة؛ تحقق من إعدادات الوكيل.</translation>
    </message>
    <message>
        <source>An administrator password is needed to approve %1.</source>
        <translation>تلزم كلمة سر مدير النظام للموافقة على ⁨%1⁩.</translation>
    </message>
    <message>
        <source>An administrator password is needed to change the running strict session.</source>
        <translation>تلزم كلمة سر مدير النظام لتغيير الجلسة الصارمة العاملة.</translation>
    </message>
    <message>
        <source>An administrator password is needed to open an application without Tor.</source>
        <translation>تلزم كلمة سر مدير النظام لفتح تطبيق بدون Tor.</translation>
    </message>
    <message>
        <source>An administrator password is needed to set this up.</source>
        <translation>تلزم كلمة سر مدير النظام لهذا الإعداد.</translation>
    </message>
    <message>
        <source>Another program (process %1) has started a session meanwhile. That session was left alone.</source>
        <translation>بدأ برنامج آخر (العملية %1) جلسة منذ ذلك الحين. لم تُمسّ تلك الجلسة.</translation>
    </message>
    <message>
        <source>Another run of the helper is still working. Try again in a moment.</source>
        <translation>ما زال تشغيل آخر للبرنامج المساعد جاريًا. حاول مرة أخرى بعد لحظات.</translation>
    </message>
    <message>
        <source>Applications are not opened as root.</source>
        <translation>لا تُفتح التطبيقات بحساب root.</translation>
    </message>
    <message>
        <source>The helper opens applications only for the user who asks.</source>
        <translation>لا يمكن فتح التطبيقات إلا للمستخدم الذي يطلب ذلك.</translation>
    </message>
    <message>
        <source>Applications cannot be opened without Tor on this system.</source>
        <translation>لا يمكن فتح تطبيقات بدون Tor على هذا النظام.</translation>
    </message>
    <message>
        <source>More than %1 bridges were given.</source>
        <translation>عدد الجسور المعطاة يتجاوز %1.</translation>
    </message>
    <message>
        <source>Passwordless mode can be set up only for the user who asks.</source>
        <translation>لا يمكن إعداد الوضع بلا كلمة سر إلا للمستخدم الذي يطلبه.</translation>
    </message>
    <message>
        <source>Another program is changing the firewall. Try again in a moment.</source>
        <translation>يغيّر برنامج آخر جدار الحماية الآن. حاول مرة أخرى بعد لحظات.</translation>
    </message>
    <message>
        <source>The DNS servers of systemd-resolved cannot be changed.</source>
        <translation>لا يمكن تغيير خوادم DNS في systemd-resolved.</translation>
    </message>
    <message>
        <source>The DNS settings cannot be changed.</source>
        <translation>لا يمكن تغيير إعدادات DNS.</translation>
    </message>
    <message>
        <source>The DNS settings could not be put back.</source>
        <translation>تعذرت إعادة إعدادات DNS إلى ما كانت عليه.</translation>
    </message>
    <message>
        <source>The account %1 cannot be created.</source>
        <translation>لا يمكن إنشاء الحساب %1.</translation>
    </message>
    <message>
        <source>The account %1 has no valid user id.</source>
        <translation>ليس للحساب %1 معرّف مستخدم صالح.</translation>
    </message>
    <message>
        <source>The account %1 must be neither root&apos;s nor the caller&apos;s.</source>
        <translation>يجب ألا يكون الحساب %1 حساب ⁨root⁩ ولا حساب المستخدم الذي يطلب ذلك.</translation>
    </message>
    <message>
        <source>The application could not be started.</source>
        <translation>تعذر بدء التطبيق.</translation>
    </message>
    <message>
        <source>The caller&apos;s user id is not a number.</source>
        <translation>معرّف المستخدم الطالب ليس رقمًا.</translation>
    </message>
    <message>
        <source>The control group for Tor cannot be made.</source>
        <translation>تعذر إنشاء مجموعة التحكم الخاصة بـ Tor.</translation>
    </message>
    <message>
        <source>The control group of the applications without Tor could not be removed.</source>
        <translation>تعذرت إزالة مجموعة التحكم الخاصة بالتطبيقات المفتوحة بدون Tor.</translation>
    </message>
    <message>
        <source>The copy of the program cannot be put into %1.</source>
        <translation>لا يمكن وضع نسخة البرنامج في ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings cannot be changed.</source>
        <translation>لا يمكن تغيير إعدادات الوكيل في سطح المكتب.</translation>
    </message>
    <message>
        <source>The exit country is not a two-letter code.</source>
        <translation>بلد الخروج ليس رمزًا من حرفين.</translation>
    </message>
    <message>
        <source>The file %1 cannot be made.</source>
        <translation>لا يمكن إنشاء الملف ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>لا يمكن قراءة الملف ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed.</source>
        <translation>لا يمكن إزالة الملف ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>لا يمكن كتابة الملف ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The file %1 could not be put back.</source>
        <translation>تعذرت إعادة الملف ⁨%1⁩ إلى ما كان عليه.</translation>
    </message>
    <message>
        <source>The files in %1 cannot be removed.</source>
        <translation>لا يمكن إزالة الملفات في ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The firewall rules cannot be read, so nothing was done.</source>
        <translation>لا يمكن قراءة قواعد جدار الحماية، لذا لم يُفعل شيء.</translation>
    </message>
    <message>
        <source>The firewall cannot be switched on (%1).</source>
        <translation>لا يمكن تفعيل جدار الحماية (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The firewall cannot end the earlier connections.</source>
        <translation>لا يستطيع جدار الحماية إنهاء الاتصالات السابقة.</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off (%1).</source>
        <translation>تعذر إيقاف مفتاح القطع (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off, because another program is changing the firewall.</source>
        <translation>تعذر إيقاف مفتاح القطع، لأن برنامجًا آخر يغيّر جدار الحماية.</translation>
    </message>
    <message>
        <source>The firewall does not hold the rules that were loaded.</source>
        <translation>لا يحتوي جدار الحماية القواعد التي حُمّلت.</translation>
    </message>
    <message>
        <source>The firewall gave no token.</source>
        <translation>لم يُعطِ جدار الحماية رمزًا مميزًا (token).</translation>
    </message>
    <message>
        <source>The firewall leaves out the network device %1 (&quot;set skip&quot; in /etc/pf.conf), where nothing would be blocked.</source>
        <translation>يستثني جدار الحماية جهاز الشبكة %1 («set skip» في ⁨/etc/pf.conf⁩)، حيث لن يُحجب شيء.</translation>
    </message>
    <message>
        <source>The firewall rules were not accepted (%1).</source>
        <translation>لم تُقبل قواعد جدار الحماية (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The firewall&apos;s devices cannot be read.</source>
        <translation>لا يمكن قراءة أجهزة جدار الحماية.</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be changed (%1).</source>
        <translation>لا يمكن تغيير القواعد الرئيسية لجدار الحماية (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be read.</source>
        <translation>لا يمكن قراءة القواعد الرئيسية لجدار الحماية.</translation>
    </message>
    <message>
        <source>The firewall&apos;s state cannot be read.</source>
        <translation>لا يمكن قراءة حالة جدار الحماية.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be changed.</source>
        <translation>لا يمكن تغيير المجلد ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>لا يمكن إنشاء المجلد ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>لا يمكن الكتابة في المجلد ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it and those above it.</source>
        <translation>المجلد ⁨%1⁩ غير آمن: يجب ألا يملكه أو يكتب فيه، ولا في المجلدات التي تعلوه، أحد غير root.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it.</source>
        <translation>المجلد ⁨%1⁩ غير آمن: يجب ألا يملكه أو يكتب فيه أحد غير root.</translation>
    </message>
    <message>
        <source>The folder /etc/sudoers.d is missing or not safe.</source>
        <translation>المجلد ⁨/etc/sudoers.d⁩ مفقود أو غير آمن.</translation>
    </message>
    <message>
        <source>The folders above Veldmark&apos;s are not safe: only root may own or write them.</source>
        <translation>المجلدات التي تعلو مجلد Veldmark غير آمنة: يجب ألا يملكها أو يكتب فيها أحد غير root.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read, so nothing was done.</source>
        <translation>لا يمكن فحص المجلدات تحت ⁨%1⁩، لذا لم يُفعل شيء.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read.</source>
        <translation>لا يمكن فحص المجلدات تحت ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The former network settings could not all be restored.</source>
        <translation>تعذرت استعادة بعض إعدادات الشبكة السابقة.</translation>
    </message>
    <message>
        <source>The hashed control password is not valid.</source>
        <translation>كلمة سر التحكم المجزّأة (hash) غير صالحة.</translation>
    </message>
    <message>
        <source>The helper could not be copied to %1.</source>
        <translation>تعذر نسخ البرنامج المساعد إلى ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The helper must run as root.</source>
        <translation>يجب أن يعمل البرنامج المساعد بحساب root.</translation>
    </message>
    <message>
        <source>The helper stopped unexpectedly.</source>
        <translation>توقف البرنامج المساعد على نحو غير متوقع.</translation>
    </message>
    <message>
        <source>The helper was given an option that it does not know.</source>
        <translation>أُعطي البرنامج المساعد خيارًا لا يعرفه.</translation>
    </message>
    <message>
        <source>The helper does not know this verb.</source>
        <translation>لا يعرف البرنامج المساعد هذا الأمر.</translation>
    </message>
    <message>
        <source>The record of the former network settings cannot be written.</source>
        <translation>لا يمكن كتابة سجل إعدادات الشبكة السابقة.</translation>
    </message>
    <message>
        <source>The kill switch is not on, so no application needs to bypass it.</source>
        <translation>مفتاح القطع غير مفعّل، فلا يحتاج أي تطبيق إلى تجاوزه.</translation>
    </message>
    <message>
        <source>The launcher could not be copied to %1.</source>
        <translation>تعذر نسخ برنامج الإطلاق إلى ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be opened.</source>
        <translation>لا يمكن فتح ملف القفل ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The lock file %1 is a link, so nothing was done.</source>
        <translation>ملف القفل ⁨%1⁩ رابط، لذا لم يُفعل شيء.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back.</source>
        <translation>رُفع الحجب عن الشبكة، لكن تعذرت إعادة خوادم DNS في systemd-resolved إلى ما كانت عليه.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back. Try: systemctl restart %1.</source>
        <translation>رُفع الحجب عن الشبكة، لكن تعذرت إعادة خوادم DNS في systemd-resolved إلى ما كانت عليه. جرّب: systemctl restart %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the desktop&apos;s proxy settings could not be put back.</source>
        <translation>رُفع الحجب عن الشبكة، لكن تعذرت إعادة إعدادات الوكيل في سطح المكتب إلى ما كانت عليه.</translation>
    </message>
    <message>
        <source>The network is open again, but the journal in %1 cannot be cleared.</source>
        <translation>رُفع الحجب عن الشبكة، لكن لا يمكن تفريغ دفتر التغييرات في ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The network is open again, but the session marker cannot be removed from %1.</source>
        <translation>رُفع الحجب عن الشبكة، لكن لا يمكن إزالة علامة الجلسة من ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The network is open again, but the system&apos;s own Tor service could not be started again. Try: systemctl start %1.</source>
        <translation>رُفع الحجب عن الشبكة، لكن تعذرت إعادة تشغيل خدمة Tor الخاصة بالنظام. جرّب: systemctl start %1.</translation>
    </message>
    <message>
        <source>The network is open, but pf could not be released.</source>
        <translation>رُفع الحجب عن الشبكة، لكن تعذر تحرير ⁨pf⁩.</translation>
    </message>
    <message>
        <source>The network is open, but the firewall&apos;s main rules could not be put back.</source>
        <translation>رُفع الحجب عن الشبكة، لكن تعذرت إعادة القواعد الرئيسية لجدار الحماية.</translation>
    </message>
    <message>
        <source>The network location %1 still has Veldmark&apos;s settings. Choose it and disconnect again.</source>
        <translation>ما زالت إعدادات Veldmark في موقع الشبكة %1. اختره وافصل الاتصال مرة أخرى.</translation>
    </message>
    <message>
        <source>The network settings cannot be read.</source>
        <translation>لا يمكن قراءة إعدادات الشبكة.</translation>
    </message>
    <message>
        <source>The network stays blocked until you disconnect.</source>
        <translation>تبقى الشبكة محجوبة حتى تفصل الاتصال.</translation>
    </message>
    <message>
        <source>The notes of what to restore cannot be read.</source>
        <translation>لا يمكن قراءة الملاحظات بما تجب استعادته.</translation>
    </message>
    <message>
        <source>The option %1 needs a value.</source>
        <translation>يحتاج الخيار ⁨%1⁩ إلى قيمة.</translation>
    </message>
    <message>
        <source>The option %1 was given twice.</source>
        <translation>أُعطي الخيار ⁨%1⁩ مرتين.</translation>
    </message>
    <message>
        <source>The option --app is missing.</source>
        <translation>الخيار ⁨--app⁩ ناقص.</translation>
    </message>
    <message>
        <source>The option --hash is missing.</source>
        <translation>الخيار ⁨--hash⁩ ناقص.</translation>
    </message>
    <message>
        <source>The option --lan is missing.</source>
        <translation>الخيار ⁨--lan⁩ ناقص.</translation>
    </message>
    <message>
        <source>The option --program is missing.</source>
        <translation>الخيار ⁨--program⁩ ناقص.</translation>
    </message>
    <message>
        <source>The option --strict is missing.</source>
        <translation>الخيار ⁨--strict⁩ ناقص.</translation>
    </message>
    <message>
        <source>The option --tor is missing.</source>
        <translation>الخيار ⁨--tor⁩ ناقص.</translation>
    </message>
    <message>
        <source>The option --uid is missing.</source>
        <translation>الخيار ⁨--uid⁩ ناقص.</translation>
    </message>
    <message>
        <source>The options on standard input are not complete.</source>
        <translation>الخيارات في الدخل القياسي غير كاملة.</translation>
    </message>
    <message>
        <source>The path given with %1 is not absolute.</source>
        <translation>المسار المعطى مع ⁨%1⁩ ليس مطلقًا.</translation>
    </message>
    <message>
        <source>The path given with --app is not absolute.</source>
        <translation>المسار المعطى مع ⁨--app⁩ ليس مطلقًا.</translation>
    </message>
    <message>
        <source>The path given with --app names no application.</source>
        <translation>المسار المعطى مع ⁨--app⁩ لا يدل على تطبيق.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2. End that program, then connect again.</source>
        <translation>المنفذ %1 الذي يحتاج إليه Tor يحجزه %2. أنهِ ذلك البرنامج، ثم اتصل من جديد.</translation>
    </message>
    <message>
        <source>a program (process %1)</source>
        <translation>برنامج (العملية %1)</translation>
    </message>
    <message>
        <source>a program of the account with the id %1</source>
        <translation>برنامج من الحساب ذي المعرّف %1</translation>
    </message>
    <message>
        <source>The process id is not valid.</source>
        <translation>معرّف العملية غير صالح.</translation>
    </message>
    <message>
        <source>The program %1 cannot be copied.</source>
        <translation>لا يمكن نسخ البرنامج ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The program %1 cannot be found.</source>
        <translation>لا يمكن العثور على البرنامج ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The program %1 is missing on this system.</source>
        <translation>البرنامج ⁨%1⁩ مفقود على هذا النظام.</translation>
    </message>
    <message>
        <source>The SHA-256 of the program %1 differs from the one to approve.</source>
        <translation>قيمة SHA-256 للبرنامج ⁨%1⁩ ليست القيمة التي كان يُراد الموافقة عليها.</translation>
    </message>
    <message>
        <source>The program given with %1 is not an executable file.</source>
        <translation>البرنامج المعطى مع ⁨%1⁩ ليس ملفًا تنفيذيًا.</translation>
    </message>
    <message>
        <source>The program veldmark-launch is missing.</source>
        <translation>البرنامج veldmark-launch مفقود.</translation>
    </message>
    <message>
        <source>The session marker cannot be written.</source>
        <translation>لا يمكن كتابة علامة الجلسة.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be changed.</source>
        <translation>لا يمكن تغيير إعدادات خدمة الشبكة %1.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be read.</source>
        <translation>لا يمكن قراءة إعدادات خدمة الشبكة %1.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 could not be put back.</source>
        <translation>تعذرت إعادة إعدادات خدمة الشبكة %1 إلى ما كانت عليه.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall cannot be used (%1).</source>
        <translation>لا يمكن استخدام جدار حماية النظام (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) cannot be stopped.</source>
        <translation>لا يمكن إيقاف خدمة Tor الخاصة بالنظام (%1).</translation>
    </message>
    <message>
        <source>The user %1 is not known on this system.</source>
        <translation>المستخدم %1 غير معروف على هذا النظام.</translation>
    </message>
    <message>
        <source>The user id is not a number.</source>
        <translation>معرّف المستخدم ليس رقمًا.</translation>
    </message>
    <message>
        <source>The user name is not valid.</source>
        <translation>اسم المستخدم غير صالح.</translation>
    </message>
    <message>
        <source>The user root needs no password for the helper.</source>
        <translation>لا يحتاج المستخدم root إلى كلمة سر للبرنامج المساعد.</translation>
    </message>
    <message>
        <source>The user with the id %1 is not known on this system.</source>
        <translation>المستخدم ذو المعرّف %1 غير معروف على هذا النظام.</translation>
    </message>
    <message>
        <source>The value of %1 contains control characters.</source>
        <translation>تحتوي قيمة ⁨%1⁩ محارف تحكم.</translation>
    </message>
    <message>
        <source>The value of %1 is too long.</source>
        <translation>قيمة ⁨%1⁩ أطول مما ينبغي.</translation>
    </message>
    <message>
        <source>The value of --as must be tor, lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>يجب أن تكون قيمة ⁨--as⁩ إما tor أو lyrebird أو snowflake-client أو webtunnel-client.</translation>
    </message>
    <message>
        <source>The value of --lan must be 0 or 1.</source>
        <translation>يجب أن تكون قيمة ⁨--lan⁩ إما 0 أو 1.</translation>
    </message>
    <message>
        <source>The value of --sha256 must be 64 small hexadecimal digits.</source>
        <translation>يجب أن تكون قيمة ⁨--sha256⁩ من 64 خانة ست عشرية بأحرف صغيرة.</translation>
    </message>
    <message>
        <source>The value of --strict must be 0 or 1.</source>
        <translation>يجب أن تكون قيمة ⁨--strict⁩ إما 0 أو 1.</translation>
    </message>
    <message>
        <source>The verb fix-dns takes no options.</source>
        <translation>الأمر fix-dns لا يقبل خيارات.</translation>
    </message>
    <message>
        <source>The verb uninstall-privileged takes no options.</source>
        <translation>الأمر uninstall-privileged لا يقبل خيارات.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be started.</source>
        <translation>تعذر تشغيل مراقب جدار الحماية.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be stopped.</source>
        <translation>تعذر إيقاف مراقب جدار الحماية.</translation>
    </message>
    <message>
        <source>There are too many options on standard input.</source>
        <translation>الخيارات في الدخل القياسي أكثر مما ينبغي.</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which was not given.</source>
        <translation>تحتاج هذه الجسور إلى lyrebird الذي لم يُعطَ.</translation>
    </message>
    <message>
        <source>These bridges need snowflake-client, which was not given.</source>
        <translation>تحتاج هذه الجسور إلى snowflake-client الذي لم يُعطَ.</translation>
    </message>
    <message>
        <source>This helper is made for another system.</source>
        <translation>هذا البرنامج المساعد مصنوع لنظام آخر.</translation>
    </message>
    <message>
        <source>Tor could not be started (%1).</source>
        <translation>تعذر بدء Tor (⁨%1⁩).</translation>
    </message>
    <message>
        <source>Tor could not be stopped.</source>
        <translation>تعذر إيقاف Tor.</translation>
    </message>
    <message>
        <source>Tor did not open its control port in time.</source>
        <translation>لم يفتح Tor منفذ التحكم في الوقت المحدد.</translation>
    </message>
    <message>
        <source>Tor did not start: %1</source>
        <translation>لم يبدأ Tor: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Tor does not accept its configuration: %1</source>
        <translation>لا يقبل Tor إعداداته: ⁨%1⁩</translation>
    </message>
    <message>
        <source>it ended without a message.</source>
        <translation>انتهى بدون رسالة.</translation>
    </message>
    <message>
        <source>Tor&apos;s log files cannot be made.</source>
        <translation>لا يمكن إنشاء ملفات سجل Tor.</translation>
    </message>
    <message>
        <source>Two different callers were reported, so nothing was done.</source>
        <translation>أُبلغ عن مستخدمَين طالبَين مختلفين، لذا لم يُفعل شيء.</translation>
    </message>
    <message>
        <source>Veldmark is in use by %1. An administrator password is needed to end that session.</source>
        <translation>يستخدم ⁨%1⁩ برنامج Veldmark الآن. تلزم كلمة سر مدير النظام لإنهاء تلك الجلسة.</translation>
    </message>
    <message>
        <source>Veldmark is not connected, so the DNS settings were left alone.</source>
        <translation>بما أن Veldmark غير متصل، لم تُمسّ إعدادات DNS.</translation>
    </message>
    <message>
        <source>sudo rejects the rule for passwordless mode.</source>
        <translation>يرفض sudo قاعدة الوضع بلا كلمة سر.</translation>
    </message>
    <message>
        <source>sudo is not installed on this system.</source>
        <translation>برنامج sudo غير مثبت على هذا النظام.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read.</source>
        <translation>لا يمكن قراءة مدخلة سطح المكتب.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read (%1).</source>
        <translation>لا يمكن قراءة مدخلة سطح المكتب (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The desktop entry names no program that is installed.</source>
        <translation>لا تدل مدخلة سطح المكتب على برنامج مثبت.</translation>
    </message>
    <message>
        <source>The application could not be started (%1).</source>
        <translation>تعذر بدء التطبيق (⁨%1⁩).</translation>
    </message>
    <message>
        <source>There is no such application or program.</source>
        <translation>لا يوجد تطبيق أو برنامج كهذا.</translation>
    </message>
    <message>
        <source>The program could not be started.</source>
        <translation>تعذر بدء البرنامج.</translation>
    </message>
    <message>
        <source>The program could not be started (%1).</source>
        <translation>تعذر بدء البرنامج (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The user is not known on this system.</source>
        <translation>المستخدم غير معروف على هذا النظام.</translation>
    </message>
    <message>
        <source>There is no application at %1.</source>
        <translation>لا يوجد تطبيق في ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The home folder cannot be entered.</source>
        <translation>لا يمكن الدخول إلى مجلد المنزل.</translation>
    </message>
    <message>
        <source>nft doesn&apos;t answer.</source>
        <translation>لا يردّ nft.</translation>
    </message>
    <message>
        <source>nft fails.</source>
        <translation>يفشل nft.</translation>
    </message>
    <message>
        <source>Ended because the display is gone. Your network is still set up for Tor: start Veldmark again, or restore the network with: %1</source>
        <translation>انتهى البرنامج بعد فقدان شاشة العرض. ما زالت شبكتك مُعدّة لـ Tor: شغّل Veldmark من جديد، أو استعِدها بالأمر: %1</translation>
    </message>
    <message>
        <source>your package manager</source>
        <translation>مدير الحزم لديك</translation>
    </message>
    <message>
        <source>The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo %1 on.</source>
        <translation>رُفع الحجب عن الشبكة، لكن تعذرت إعادة إعداد جهاز loopback كما كان. جرّب: ethtool -K lo %1 on.</translation>
    </message>
    <message>
        <source>This system can&apos;t tell applications apart.</source>
        <translation>لا يُميَّز بين التطبيقات على هذا النظام.</translation>
    </message>
    <message>
        <source>Applications are not separated now: they share circuits.</source>
        <translation>التطبيقات غير معزولة الآن: فهي تتشارك الدوائر.</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>المستخدم %1</translation>
    </message>
    <message>
        <source>No application has an identity of its own now.</source>
        <translation>ليس لأي تطبيق هوية خاصة به الآن.</translation>
    </message>
    <message>
        <source>No application of yours has that identity; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>ليست هذه الهوية لأي تطبيق من تطبيقاتك؛ يسرد «veldmarkctl identities» الهويات.</translation>
    </message>
    <message>
        <source>The application did not get a new identity.</source>
        <translation>لم يحصل التطبيق على هوية أخرى.</translation>
    </message>
    <message>
        <source>The program did not get an identity of its own, so it was not started.</source>
        <translation>لم يحصل البرنامج على هوية خاصة به، لذا لم يُشغَّل.</translation>
    </message>
    <message>
        <source>A name has up to 40 letters, digits, dots and underscores.</source>
        <translation>لا يتجاوز الاسم 40 محرفًا من الحروف والأرقام والنقاط والشرطات السفلية.</translation>
    </message>
    <message>
        <source>The program systemd-run is missing. Veldmark needs it to make a group for a program.</source>
        <translation>البرنامج systemd-run مفقود. يحتاج إليه Veldmark لإنشاء مجموعة لبرنامج.</translation>
    </message>
    <message>
        <source>The program could not be started: %1.</source>
        <translation>تعذر بدء البرنامج: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>each application has circuits of its own</source>
        <translation>لكل تطبيق دوائر خاصة به</translation>
    </message>
    <message>
        <source>the applications that have circuits of their own, and the loopback address
by which Tor distinguishes them</source>
        <translation>التطبيقات التي لها دوائر خاصة بها، وعنوان loopback
الذي يميّز به Tor كلًّا منها من غيره</translation>
    </message>
    <message>
        <source>new circuits for one application, from its next connection on; APP is as
&quot;identities&quot; names it</source>
        <translation>دوائر جديدة لتطبيق واحد، ابتداءً من اتصاله التالي؛
ويُكتب APP كما يسميه «identities»</translation>
    </message>
    <message>
        <source>renew needs an application; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>يحتاج renew إلى تطبيق؛ يسرد «veldmarkctl identities» التطبيقات.</translation>
    </message>
    <message>
        <source>run a program (after --) with circuits of its own; a later run with the same
name in the same session has the same ones</source>
        <translation>تشغيل برنامج (بعد ⁨--⁩) بدوائر خاصة به؛ والتشغيل اللاحق بالاسم نفسه
في الجلسة نفسها يحصل على الدوائر نفسها</translation>
    </message>
    <message>
        <source>run-as needs a name and a program: veldmarkctl run-as NAME -- PROGRAM.</source>
        <translation>يحتاج run-as إلى اسم وبرنامج: veldmarkctl run-as NAME -- PROGRAM.</translation>
    </message>
    <message>
        <source>The table of the applications&apos; identities could not be removed (%1).</source>
        <translation>تعذرت إزالة جدول هويات التطبيقات (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The value of --separate must be 0 or 1.</source>
        <translation>يجب أن تكون قيمة ⁨--separate⁩ إما 0 أو 1.</translation>
    </message>
    <message>
        <source>No package of the system installed %1. The next connect asks an administrator to approve it.</source>
        <translation>لم تأتِ بـ ⁨%1⁩ أي حزمة من حزم النظام. يُطلب من مدير النظام أن يوافق عليه عند الاتصال التالي.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether a connect can work.</source>
        <translation>لا يُعرف هل يمكن إجراء اتصال.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, and none of its rules allows any, so Tor can&apos;t get through: %1.</source>
        <translation>يمنع جدار حماية آخر على هذا الحاسوب الاتصالات الصادرة، ولا تسمح أي من قواعده بشيء، لذا لا يمكن أن يمر Tor: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Users other than root can change %1, so root doesn&apos;t run it to ask for its version.</source>
        <translation>يمكن لمستخدمين غير root تغيير ⁨%1⁩، لذلك لا يشغّله root لسؤاله عن إصداره.</translation>
    </message>
    <message>
        <source>Type %1 to approve it, anything else to refuse.</source>
        <translation>اكتب ⁨%1⁩ للموافقة عليه، وأي شيء آخر للرفض.</translation>
    </message>
    <message>
        <source>%1 was not approved.</source>
        <translation>لم تتم الموافقة على ⁨%1⁩.</translation>
    </message>
    <message>
        <source>%1 is not a program of the system, so an administrator has to approve it, but this command has no terminal to ask on. Run &quot;sudo veldmarkctl run --connect&quot; in a terminal.</source>
        <translation>⁨%1⁩ ليس من برامج النظام، ولذلك تلزم موافقة مدير النظام عليه، لكن ليس لهذا الأمر طرفية للسؤال فيها. شغّل «⁨sudo veldmarkctl run --connect⁩» في طرفية.</translation>
    </message>
    <message>
        <source>%1 needs the name of a file.</source>
        <translation>يحتاج ⁨%1⁩ إلى اسم ملف.</translation>
    </message>
    <message>
        <source>It doesn&apos;t answer.</source>
        <translation>إنها لا تردّ.</translation>
    </message>
    <message>
        <source>This report goes to %1.</source>
        <translation>يُكتب هذا التقرير في ⁨%1⁩.</translation>
    </message>
    <message>
        <source>write it into a new file too</source>
        <translation>كتابته في ملف جديد أيضًا</translation>
    </message>
    <message>
        <source>The report can&apos;t be written to %1: %2</source>
        <translation>تتعذر كتابة التقرير في ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a regular file. Choose another name for the report.</source>
        <translation>المسار ⁨%1⁩ ليس ملفًا عاديًا. اختر اسمًا آخر للتقرير.</translation>
    </message>
    <message>
        <source>%1 exists already. Choose another name for the report.</source>
        <translation>الملف ⁨%1⁩ موجود بالفعل. اختر اسمًا آخر للتقرير.</translation>
    </message>
    <message>
        <source>The running instance gave no state: %1</source>
        <translation>لم تعطِ النسخة العاملة حالتها: ⁨%1⁩</translation>
    </message>
    <message>
        <source>a report for those who help you: settings, findings and log without addresses,
names, bridges and keys. Nothing sends it. Look through it before you give it
away</source>
        <translation>تقرير لمن يساعدونك: الإعدادات والنتائج والسجل دون العناوين والأسماء
والجسور والمفاتيح. لا شيء يرسله. راجعه قبل أن تعطيه لأحد</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>لا يمكن قراءة ⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>There is no bridge in %1.</source>
        <translation>لا يوجد جسر في ⁨%1⁩.</translation>
    </message>
    <message>
        <source>added: %1</source>
        <translation>أُضيف: ⁨%1⁩</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>موجود من قبل: ⁨%1⁩</translation>
    </message>
    <message>
        <source>add the bridges in a text to your own: in bridge lines, a whole e-mail or
a web page. FILE &quot;-&quot; is standard input</source>
        <translation>إضافة الجسور الموجودة في نص إلى جسورك: أسطر جسور أو رسالة بريد كاملة أو
صفحة ويب. FILE «-» هو الإدخال القياسي</translation>
    </message>
    <message>
        <source>add-bridges needs a file; &quot;-&quot; is standard input.</source>
        <translation>يحتاج add-bridges إلى ملف؛ «-» هو الإدخال القياسي.</translation>
    </message>
    <message>
        <source>The filter before Tor&apos;s control port cannot be used.</source>
        <translation>لا يمكن استخدام المرشّح الموجود أمام منفذ التحكم في Tor.</translation>
    </message>
    <message numerus="yes">
        <source>Testing %n bridges…</source>
        <translation>
            <numerusform>لا جسور للاختبار…</numerusform>
            <numerusform>جارٍ اختبار جسر واحد…</numerusform>
            <numerusform>جارٍ اختبار جسرين…</numerusform>
            <numerusform>جارٍ اختبار %n جسور…</numerusform>
            <numerusform>جارٍ اختبار %n جسرًا…</numerusform>
            <numerusform>جارٍ اختبار %n جسر…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 for *.%2</source>
        <translation>⁨%1⁩ للنطاق ⁨*.%2⁩</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>⁨%1⁩ على ⁨%2⁩</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>مباشر</translation>
    </message>
    <message>
        <source>Your bridges</source>
        <translation>جسورك</translation>
    </message>
    <message>
        <source>(%1 s)</source>
        <translation>(%1 ث)</translation>
    </message>
    <message>
        <source>Tried</source>
        <translation>جُرِّب</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>عرض</translation>
    </message>
    <message>
        <source>Try them with: %1</source>
        <translation>جرّبها بالأمر: ⁨%1⁩</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of ask, always and never.</source>
        <translation>القيمة «⁨%1⁩» ليست ask ولا always ولا never.</translation>
    </message>
    <message>
        <source>Refused, or out of reach.</source>
        <translation>رُفض أو تعذّر الوصول.</translation>
    </message>
    <message>
        <source>Something answered, but Tor made no further progress.</source>
        <translation>جاء رد، لكن Tor لم يتقدّم.</translation>
    </message>
    <message>
        <source>No answer.</source>
        <translation>لا رد.</translation>
    </message>
    <message>
        <source>Tor has connected.</source>
        <translation>اتصل Tor.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Tried: %1.</source>
        <translation>لا يتقدّم Tor في هذه الشبكة. جُرِّب: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Veldmark can try bridges: %1.</source>
        <translation>لا يتقدّم Tor في هذه الشبكة. يستطيع Veldmark تجربة الجسور: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Being tried…</source>
        <translation>تجري التجربة…</translation>
    </message>
    <message>
        <source>Tor did not accept these bridges.</source>
        <translation>لم يقبل Tor هذه الجسور.</translation>
    </message>
    <message>
        <source>No bridges are offered now.</source>
        <translation>لا جسور معروضة الآن.</translation>
    </message>
    <message>
        <source>whether bridges are tried when Tor cannot connect</source>
        <translation>هل تُجرَّب الجسور عندما لا يتقدّم Tor</translation>
    </message>
    <message>
        <source>try the bridges that are offered when Tor cannot connect, see &quot;status&quot;</source>
        <translation>تجربة الجسور المعروضة عندما لا يتقدّم Tor، انظر «status»</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>‏⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>الدوائر</translation>
    </message>
</context>
<context>
    <name>veldmark::Tray</name>
    <message>
        <source>Open Veldmark</source>
        <translation>فتح Veldmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
</context>
<context>
    <name>veldmark::Windows</name>
    <message>
        <source>Select the tor executable</source>
        <translation>اختر الملف التنفيذي tor</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>اختر التطبيقات المسموح لها بتجاوز Tor في الوضع الصارم</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>التطبيقات</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>حفظ التقرير</translation>
    </message>
</context>
</TS>

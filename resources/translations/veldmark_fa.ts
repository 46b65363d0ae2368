<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fa" sourcelanguage="en">
<context>
    <name>AboutPane</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
    <message>
        <source>The Tor Project</source>
        <translation>پروژهٔ Tor</translation>
    </message>
    <message>
        <source>The network and pluggable transports Veldmark builds on</source>
        <translation>شبکه و حامل‌های اتصال‌پذیری که Veldmark بر پایهٔ آن‌ها ساخته شده است</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>قدردانی</translation>
    </message>
    <message>
        <source>Homepage, downloads and updates</source>
        <translation>صفحهٔ اصلی، بارگیری و به‌روزرسانی</translation>
    </message>
    <message>
        <source>Sends this computer&apos;s traffic through Tor, all of it in strict mode and that of apps that use the system proxy in proxy mode, and shows whether it really does.</source>
        <translation>ترافیک این رایانه را از Tor می‌گذراند (در حالت سخت‌گیرانه همهٔ ترافیک و در حالت پروکسی ترافیک برنامه‌هایی که پروکسی سیستم را به کار می‌برند) و نشان می‌دهد که واقعاً چنین است یا نه.</translation>
    </message>
    <message>
        <source>Veldmark is made with Qt, QCoro and tl::expected.</source>
        <translation>برنامهٔ Veldmark با Qt و QCoro و tl::expected ساخته شده است.</translation>
    </message>
</context>
<context>
    <name>ApplicationsSheet</name>
    <message>
        <source>App exceptions</source>
        <translation>برنامه‌های مستثنا</translation>
    </message>
    <message>
        <source>No apps yet. Add Zoom, Discord, a game…</source>
        <translation>هنوز برنامه‌ای نیست. Zoom، Discord یا یک بازی اضافه کنید…</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>برای باز کردن برنامه‌ها بدون Tor، در حالت سخت‌گیرانه وصل شوید</translation>
    </message>
    <message>
        <source>Open without Tor</source>
        <translation>باز کردن بدون Tor</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>برداشتن</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تمام</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>افزودن…</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Close</source>
        <translation>بستن</translation>
    </message>
</context>
<context>
    <name>BridgesPane</name>
    <message>
        <source>Bridges</source>
        <translation>پل‌ها</translation>
    </message>
    <message>
        <source>Programs that disguise your Tor connection</source>
        <translation>برنامه‌هایی که ظاهر اتصال شما به Tor را تغییر می‌دهند</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>پل‌های داخلی</translation>
    </message>
    <message>
        <source>Bridge addresses shipped with Tor</source>
        <translation>نشانی پل‌هایی که همراه Tor می‌آیند</translation>
    </message>
    <message>
        <source>Tor Expert Bundle</source>
        <translation>Tor Expert Bundle</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>به‌روزرسانی</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>بارگیری</translation>
    </message>
    <message>
        <source>When Tor is blocked</source>
        <translation>وقتی Tor مسدود است</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>برای تغییر، اتصال را قطع کنید</translation>
    </message>
    <message>
        <source>Tries the available bridges in turn, without another password</source>
        <translation>پل‌های موجود را یکی پس از دیگری و بدون گذرواژهٔ دیگر امتحان می‌کند</translation>
    </message>
</context>
<context>
    <name>BridgesSheet</name>
    <message>
        <source>Custom bridges</source>
        <translation>پل‌های سفارشی</translation>
    </message>
    <message>
        <source>One bridge per line. Ask the Tor Project for bridges on its bridges page, by e-mail or through its Telegram bot, or use those of someone you trust. obfs4, webtunnel, Snowflake, meek and plain bridges are supported.</source>
        <translation>در هر خط یک پل بنویسید. پل را می‌توانید از صفحهٔ پل‌های پروژهٔ Tor، با رایانامه یا از ربات تلگرام آن بگیرید، یا پل‌های کسی را که به او اعتماد دارید به کار ببرید. پل‌های obfs4، webtunnel، Snowflake، meek و پل‌های ساده پشتیبانی می‌شوند.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>ذخیره</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>لغو</translation>
    </message>
    <message>
        <source>There is no bridge in this file.</source>
        <translation>در این پرونده پلی نیست.</translation>
    </message>
    <message>
        <source>Keep Only the Bridges</source>
        <translation>فقط پل‌ها بمانند</translation>
    </message>
    <message>
        <source>Removes everything from the text but the bridges that were recognized</source>
        <translation>هر چیزی جز پل‌های شناخته‌شده را از متن پاک می‌کند</translation>
    </message>
</context>
<context>
    <name>ChooserWindow</name>
    <message>
        <source>App exceptions</source>
        <translation>برنامه‌های مستثنا</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>برنامه‌هایی را برگزینید که در حالت سخت‌گیرانه اجازه دارند بدون Tor وصل شوند</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>جستجو</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>برنامه‌های نصب‌شده</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تمام</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>دیگر…</translation>
    </message>
    <message>
        <source>Choose the .desktop file of an application that is not listed</source>
        <translation>پروندهٔ ⁨.desktop⁩ برنامه‌ای را که در فهرست نیست برگزینید</translation>
    </message>
</context>
<context>
    <name>CircuitsSidebar</name>
    <message>
        <source>ALL CIRCUITS</source>
        <translation>همهٔ مدارها</translation>
    </message>
    <message>
        <source>No circuit selected</source>
        <translation>مداری انتخاب نشده</translation>
    </message>
    <message>
        <source>New Circuit</source>
        <translation>مدار جدید</translation>
    </message>
    <message>
        <source>Close this circuit; its sites get a fresh path on their next request</source>
        <translation>این مدار را می‌بندد؛ سایت‌های آن در درخواست بعدی مسیر تازه‌ای می‌گیرند</translation>
    </message>
    <message>
        <source>Sites on this circuit get a fresh path. Other sites sharing it move too.</source>
        <translation>سایت‌های این مدار مسیر تازه‌ای می‌گیرند. سایت‌های دیگری که از آن استفاده می‌کنند هم جابه‌جا می‌شوند.</translation>
    </message>
</context>
<context>
    <name>CircuitsWindow</name>
    <message>
        <source>Circuits</source>
        <translation>مدارها</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>هویت جدید</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>از Tor مدارهای تازه و نشانی خروجی جدید می‌خواهد</translation>
    </message>
    <message>
        <source>Find Faster</source>
        <translation>مسیر سریع‌تر</translation>
    </message>
    <message>
        <source>Time a request through Tor and get fresh circuits if it&apos;s slow</source>
        <translation>زمان یک درخواست از راه Tor را می‌سنجد و اگر کند بود مدارهای تازه می‌گیرد</translation>
    </message>
    <message>
        <source>Reading circuits…</source>
        <translation>خواندن مدارها…</translation>
    </message>
    <message>
        <source>Connect to see your circuits</source>
        <translation>برای دیدن مدارهایتان وصل شوید</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>اتصال</translation>
    </message>
    <message>
        <source>Exit IP</source>
        <translation>نشانی خروجی</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>کپی</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Leaks</source>
        <translation>نشت</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>ترافیک</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>دریافت: %1، ارسال: %2</translation>
    </message>
    <message>
        <source>Traffic of the last two minutes</source>
        <translation>ترافیک دو دقیقهٔ گذشته</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>هویت جدید</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>از Tor مدارهای تازه و نشانی خروجی جدید می‌خواهد</translation>
    </message>
    <message>
        <source>Leak Test</source>
        <translation>آزمون نشت</translation>
    </message>
    <message>
        <source>Check the exit IP and try a direct connection that skips Tor</source>
        <translation>نشانی خروجی را بررسی و یک اتصال مستقیم بدون Tor را امتحان می‌کند</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>مدارها</translation>
    </message>
    <message>
        <source>See the path your traffic takes: entry, middle and exit relays</source>
        <translation>مسیر ترافیک خود را ببینید: رله‌های ورودی، میانی و خروجی</translation>
    </message>
</context>
<context>
    <name>CopyField</name>
    <message>
        <source>Copied</source>
        <translation>کپی شد</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>کپی</translation>
    </message>
</context>
<context>
    <name>DNSCard</name>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>پرس‌وجوهای DNS می‌توانند Tor را دور بزنند</translation>
    </message>
    <message>
        <source>Fix DNS</source>
        <translation>اصلاح DNS</translation>
    </message>
    <message>
        <source>Re-test</source>
        <translation>آزمون دوباره</translation>
    </message>
</context>
<context>
    <name>DoctorSheet</name>
    <message>
        <source>This computer</source>
        <translation>این رایانه</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تمام</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>بررسی دوباره</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>نمایش گزارش عیب‌یابی</translation>
    </message>
    <message>
        <source>What others need to help you, without addresses, names and bridges</source>
        <translation>آنچه دیگران برای کمک به شما لازم دارند، بدون نشانی‌ها، نام‌ها و پل‌ها</translation>
    </message>
</context>
<context>
    <name>DownloadButton</name>
    <message>
        <source>Download</source>
        <translation>بارگیری</translation>
    </message>
    <message>
        <source>Downloads the official Tor Expert Bundle from the Tor Project, for bridge programs and built-in bridges</source>
        <translation>بستهٔ رسمی Tor Expert Bundle را برای برنامه‌های پل و پل‌های داخلی از پروژهٔ Tor بارگیری می‌کند</translation>
    </message>
</context>
<context>
    <name>Footer</name>
    <message>
        <source>Settings</source>
        <translation>تنظیمات</translation>
    </message>
    <message>
        <source>Tor Log</source>
        <translation>گزارش Tor</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>خروج</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>General</source>
        <translation>عمومی</translation>
    </message>
    <message>
        <source>Startup and password prompts</source>
        <translation>شروع برنامه و درخواست گذرواژه</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>شروع</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>باز شدن هنگام ورود</translation>
    </message>
    <message>
        <source>Veldmark starts when you log in</source>
        <translation>وقتی وارد حساب می‌شوید، Veldmark شروع می‌شود</translation>
    </message>
    <message>
        <source>Connect automatically</source>
        <translation>اتصال خودکار</translation>
    </message>
    <message>
        <source>Connect as soon as Veldmark opens</source>
        <translation>به محض باز شدن Veldmark وصل می‌شود</translation>
    </message>
    <message>
        <source>Password prompts</source>
        <translation>درخواست گذرواژه</translation>
    </message>
    <message>
        <source>Passwordless mode</source>
        <translation>حالت بدون گذرواژه</translation>
    </message>
    <message>
        <source>Connect and Disconnect never ask</source>
        <translation>اتصال و قطع اتصال هرگز گذرواژه نمی‌خواهند</translation>
    </message>
    <message>
        <source>Asks for your password each time</source>
        <translation>هر بار گذرواژهٔ شما را می‌خواهد</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>خاموش کردن</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>راه‌اندازی…</translation>
    </message>
    <message>
        <source>Setup asks for your admin password once. It installs a root-owned copy of Veldmark&apos;s helper and a rule in /etc/sudoers.d that lets your account run only that helper, so Connect and Disconnect stop asking. Turn it off any time.</source>
        <translation>راه‌اندازی یک بار گذرواژهٔ مدیر را می‌خواهد. رونوشتی از برنامهٔ کمکی Veldmark با مالکیت root و قاعده‌ای در ⁨/etc/sudoers.d⁩ نصب می‌کند که به حساب شما اجازه می‌دهد فقط همان برنامهٔ کمکی را اجرا کند؛ پس از آن اتصال و قطع اتصال دیگر گذرواژه نمی‌خواهند. هر زمان می‌توانید آن را خاموش کنید.</translation>
    </message>
</context>
<context>
    <name>Hero</name>
    <message>
        <source>Show Tor Log</source>
        <translation>نمایش گزارش Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>دیدن همهٔ آنچه Tor گزارش کرده است</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>بازگرداندن شبکه</translation>
    </message>
    <message>
        <source>Try Bridges</source>
        <translation>امتحان پل‌ها</translation>
    </message>
</context>
<context>
    <name>LogLines</name>
    <message>
        <source>Tor Log</source>
        <translation>گزارش Tor</translation>
    </message>
</context>
<context>
    <name>LogRow</name>
    <message>
        <source>Error</source>
        <translation>خطا</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>هشدار</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>اعلان</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>اطلاعات</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Tor Log</source>
        <translation>گزارش Tor</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>پالایش</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>دنبال کردن</translation>
    </message>
    <message>
        <source>Keep the newest lines in view</source>
        <translation>تازه‌ترین خط‌ها را در دید نگه می‌دارد</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>کپی</translation>
    </message>
    <message>
        <source>Copy the lines shown</source>
        <translation>خط‌های نمایش‌داده‌شده را کپی می‌کند</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>نمایش</translation>
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
        <translation>گزینه‌ها</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>برای تغییر، اتصال را قطع کنید</translation>
    </message>
    <message>
        <source>Strict mode</source>
        <translation>حالت سخت‌گیرانه</translation>
    </message>
    <message>
        <source>Kill switch: block anything not using Tor</source>
        <translation>کیل‌سوییچ: هر چه از Tor نگذرد مسدود می‌شود</translation>
    </message>
    <message>
        <source>Blocks every connection that doesn&apos;t go through Tor, including UDP and IPv6. Apps that ignore proxy settings won&apos;t connect at all instead of leaking.</source>
        <translation>هر اتصالی را که از Tor نگذرد مسدود می‌کند، از جمله UDP و IPv6. برنامه‌هایی که تنظیمات پروکسی را نادیده می‌گیرند به جای نشت، اصلاً وصل نمی‌شوند.</translation>
    </message>
    <message>
        <source>Allow local network</source>
        <translation>اجازه به شبکهٔ محلی</translation>
    </message>
    <message>
        <source>Exit country</source>
        <translation>کشور خروجی</translation>
    </message>
    <message>
        <source>Where your traffic appears to come from</source>
        <translation>جایی که ترافیک شما در ظاهر از آن می‌آید</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>پل‌ها</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>ویرایش…</translation>
    </message>
    <message>
        <source>Custom bridges</source>
        <translation>پل‌های سفارشی</translation>
    </message>
    <message>
        <source>Optimize for speed</source>
        <translation>بهینه‌سازی سرعت</translation>
    </message>
    <message>
        <source>New circuits for everything</source>
        <translation>مدارهای جدید برای همه چیز</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>حالت پایانه</translation>
    </message>
    <message>
        <source>App exceptions</source>
        <translation>برنامه‌های مستثنا</translation>
    </message>
    <message>
        <source>For networks that block or watch Tor</source>
        <translation>برای شبکه‌هایی که Tor را مسدود می‌کنند یا زیر نظر دارند</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Find the Cause</source>
        <translation>یافتن علت</translation>
    </message>
    <message>
        <source>Checks what a connection needs on this computer, what blocks it and how to fix it</source>
        <translation>این رایانه را بررسی می‌کند: اتصال چه لازم دارد، چه چیزی مانع آن است و آن مانع چگونه برطرف می‌شود</translation>
    </message>
    <message>
        <source>Show Tor Log</source>
        <translation>نمایش گزارش Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>دیدن همهٔ آنچه Tor گزارش کرده است</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with this command, then click Recheck.</source>
        <translation>برنامهٔ Tor نصب نیست. آن را با این دستور نصب کنید، سپس «بررسی دوباره» را بزنید.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with %1, then click Recheck.</source>
        <translation>برنامهٔ Tor نصب نیست. آن را با %1 نصب کنید، سپس «بررسی دوباره» را بزنید.</translation>
    </message>
    <message>
        <source>Recheck</source>
        <translation>بررسی دوباره</translation>
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
        <translation>%1 پیدا شد</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>پیدا نشد</translation>
    </message>
</context>
<context>
    <name>QuitDialog</name>
    <message>
        <source>Quit Veldmark</source>
        <translation>خروج از Veldmark</translation>
    </message>
    <message>
        <source>Your network is still routed through Tor</source>
        <translation>شبکهٔ شما هنوز از Tor می‌گذرد</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and the kill switch stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>اگر اکنون خارج شوید، Tor همچنان اجرا می‌شود و کیل‌سوییچ روشن می‌ماند. برای بازگرداندن اتصال عادی، بعداً Veldmark را دوباره باز کنید.</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and your system proxy stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>اگر اکنون خارج شوید، Tor همچنان اجرا می‌شود و پروکسی سیستم روشن می‌ماند. برای بازگرداندن اتصال عادی، بعداً Veldmark را دوباره باز کنید.</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>در حال قطع اتصال…</translation>
    </message>
    <message>
        <source>Disconnect &amp; Quit</source>
        <translation>قطع اتصال و خروج</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>خروج در هر حال</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>لغو</translation>
    </message>
</context>
<context>
    <name>RecoveryPane</name>
    <message>
        <source>Recovery</source>
        <translation>بازیابی</translation>
    </message>
    <message>
        <source>Get your normal connection back</source>
        <translation>بازگشت به اتصال عادی</translation>
    </message>
    <message>
        <source>Restore network settings</source>
        <translation>بازگرداندن تنظیمات شبکه</translation>
    </message>
    <message>
        <source>Veldmark&apos;s changes are active</source>
        <translation>تغییرهای Veldmark فعال‌اند</translation>
    </message>
    <message>
        <source>Nothing to restore</source>
        <translation>چیزی برای بازگرداندن نیست</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>بازگرداندن</translation>
    </message>
    <message>
        <source>Use this if your internet stops working after a crash. It puts your DNS, proxy and firewall settings back the way they were and stops Tor.</source>
        <translation>اگر پس از فروپاشی برنامه اینترنت شما کار نمی‌کند، این را به کار ببرید. تنظیمات DNS، پروکسی و دیوار آتش را به حالت پیشین برمی‌گرداند و Tor را متوقف می‌کند.</translation>
    </message>
    <message>
        <source>If the app won&apos;t open</source>
        <translation>اگر برنامه باز نمی‌شود</translation>
    </message>
    <message>
        <source>Run this in Terminal to do the same thing without Veldmark.</source>
        <translation>این را در پایانه اجرا کنید تا همین کار بدون Veldmark انجام شود.</translation>
    </message>
    <message>
        <source>Report for others</source>
        <translation>گزارش عیب‌یابی برای دیگران</translation>
    </message>
    <message>
        <source>What they need to help you, without addresses, names and bridges. You read it first, and nothing sends it.</source>
        <translation>آنچه برای کمک به شما لازم دارند، بدون نشانی‌ها، نام‌ها و پل‌ها. نخست خودتان آن را می‌خوانید و هیچ چیزی آن را نمی‌فرستد.</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>نمایش گزارش عیب‌یابی</translation>
    </message>
</context>
<context>
    <name>ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>گزارش عیب‌یابی</translation>
    </message>
    <message>
        <source>For those who help you. Addresses, names, bridges, keys and paths in your home are replaced. Look through it before you give it away: Veldmark sends it to nobody.</source>
        <translation>برای کسانی که به شما کمک می‌کنند. نشانی‌ها، نام‌ها، پل‌ها، کلیدها و مسیرهای پوشهٔ خانگی شما جایگزین شده‌اند. پیش از آن‌که آن را به کسی بدهید مرورش کنید: Veldmark آن را برای هیچ کس نمی‌فرستد.</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>ذخیره…</translation>
    </message>
    <message>
        <source>Save the report in a file that only you can read</source>
        <translation>ذخیرهٔ گزارش در پرونده‌ای که فقط شما می‌توانید بخوانید</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>کپی</translation>
    </message>
    <message>
        <source>Copy the whole report</source>
        <translation>کپی کردن همهٔ گزارش</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>بررسی این رایانه…</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>تنظیمات</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عمومی</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>پل‌ها</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>پایانه</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>بازیابی</translation>
    </message>
    <message>
        <source>About</source>
        <translation>درباره</translation>
    </message>
</context>
<context>
    <name>TerminalPane</name>
    <message>
        <source>Terminal</source>
        <translation>پایانه</translation>
    </message>
    <message>
        <source>Route command-line tools through Tor</source>
        <translation>گذراندن ابزارهای خط فرمان از Tor</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>حالت پایانه</translation>
    </message>
    <message>
        <source>Shell integration</source>
        <translation>یکپارچگی با پوسته</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>برداشتن</translation>
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
        <translation>برنامهٔ Tor که Veldmark اجرا می‌کند</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>برنامه</translation>
    </message>
    <message>
        <source>Location: disconnect to change</source>
        <translation>محل: برای تغییر، اتصال را قطع کنید</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>محل</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>خودکار</translation>
    </message>
    <message>
        <source>Custom location</source>
        <translation>محل دلخواه</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>کپی</translation>
    </message>
    <message>
        <source>Separate applications</source>
        <translation>جداسازی برنامه‌ها</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>برای تغییر، اتصال را قطع کنید</translation>
    </message>
    <message>
        <source>Each application has circuits of its own</source>
        <translation>هر برنامه مدارهای خودش را دارد</translation>
    </message>
    <message>
        <source>Sites cannot tell by the exit address that two applications are yours. Veldmark tells applications apart where the desktop starts each in a control group of its own, as GNOME and KDE do. Other programs share circuits with the rest of their login session or account.</source>
        <translation>سایت‌ها از روی نشانی خروجی نمی‌توانند بفهمند که دو برنامه هر دو از آنِ شماست. برنامه‌ها جایی از هم بازشناخته می‌شوند که میزکار هر کدام را در گروه کنترلی جداگانه‌ای شروع کند، چنان‌که GNOME و KDE می‌کنند. برنامه‌های دیگر با همهٔ نشست ورود یا حساب خود مدارهای مشترک دارند.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Start without a window, as at login.</source>
        <translation>آغاز بدون پنجره، مانند آغاز هنگام ورود.</translation>
    </message>
    <message>
        <source>Connect at once.</source>
        <translation>اتصال بی‌درنگ.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor. To restore it without Veldmark, run:
%1</source>
        <translation>شبکهٔ شما هنوز برای Tor تنظیم است. برای بازگرداندن آن بدون Veldmark این را اجرا کنید:
%1</translation>
    </message>
</context>
<context>
    <name>veldmark::Alerts</name>
    <message>
        <source>Another session has replaced this one</source>
        <translation>نشست دیگری جای این نشست را گرفته است</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>اجرای Tor متوقف شد</translation>
    </message>
    <message>
        <source>Traffic can leave around Tor</source>
        <translation>ترافیک می‌تواند Tor را دور بزند</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>پرس‌وجوهای DNS می‌توانند Tor را دور بزنند</translation>
    </message>
    <message>
        <source>Your real address can be seen. Open Veldmark to see what to do.</source>
        <translation>نشانی واقعی شما قابل مشاهده است. Veldmark را باز کنید تا ببینید چه باید کرد.</translation>
    </message>
    <message>
        <source>Firewall rules were removed</source>
        <translation>قاعده‌های دیوار آتش برداشته شدند</translation>
    </message>
    <message>
        <source>The kill switch doesn&apos;t block traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>کیل‌سوییچ ترافیک را مسدود نمی‌کند. Veldmark را باز کنید، اتصال را قطع کنید و دوباره وصل شوید.</translation>
    </message>
    <message>
        <source>The kill switch is not watched</source>
        <translation>کیل‌سوییچ زیر نظر نیست</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>معلوم نیست کیل‌سوییچ ترافیک را مسدود می‌کند یا نه. Veldmark را باز کنید، اتصال را قطع کنید و دوباره وصل شوید.</translation>
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
        <translation>ساختن پنجره ممکن نشد. این بر شبکهٔ شما اثری ندارد؛ برای بازگرداندن شبکه بدون Veldmark این را اجرا کنید:
%1

%2</translation>
    </message>
    <message>
        <source>Veldmark is still running</source>
        <translation>برنامهٔ Veldmark هنوز در حال اجراست</translation>
    </message>
    <message>
        <source>Open Veldmark again to see its window.</source>
        <translation>برای دیدن پنجرهٔ Veldmark آن را دوباره باز کنید.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>شبکهٔ شما هنوز برای Tor تنظیم است</translation>
    </message>
    <message>
        <source>Veldmark had to close and could not restore the network. Open Veldmark again to restore it.</source>
        <translation>از Veldmark خواسته شد پایان یابد و نتوانست شبکه را بازگرداند. برای این کار Veldmark را دوباره باز کنید.</translation>
    </message>
</context>
<context>
    <name>veldmark::ApplicationChoices</name>
    <message>
        <source>No installed applications were found.</source>
        <translation>هیچ برنامهٔ نصب‌شده‌ای پیدا نشد.</translation>
    </message>
    <message>
        <source>No application is called “%1”.</source>
        <translation>برنامه‌ای به نام «%1» وجود ندارد.</translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitGraphView</name>
    <message>
        <source>%1: your real IP only ever reaches the entry relay</source>
        <translation>%1: نشانی IP واقعی شما فقط به رلهٔ ورودی می‌رسد</translation>
    </message>
    <message>
        <source>Used by 1 circuit</source>
        <translation>در یک مدار به کار رفته</translation>
    </message>
    <message>
        <source>ENTRY</source>
        <translation>ورودی</translation>
    </message>
    <message>
        <source>MIDDLE</source>
        <translation>میانی</translation>
    </message>
    <message>
        <source>EXIT</source>
        <translation>خروجی</translation>
    </message>
    <message>
        <source>SITES</source>
        <translation>سایت‌ها</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 مورد دیگر</translation>
    </message>
    <message numerus="yes">
        <source>Used by %n circuits</source>
        <translation>
            <numerusform>در %n مدار به کار رفته</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitsModel</name>
    <message>
        <source>Unknown</source>
        <translation>نامعلوم</translation>
    </message>
    <message>
        <source>Circuit %1</source>
        <translation>مدار %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>وصل نیست</translation>
    </message>
    <message>
        <source>1 active path</source>
        <translation>یک مسیر فعال</translation>
    </message>
    <message>
        <source> · click a relay or site to follow it</source>
        <translation> · برای دنبال کردن یک رله یا سایت، روی آن کلیک کنید</translation>
    </message>
    <message>
        <source>Leads to an onion service. The last relay is the meeting point.</source>
        <translation>به یک سرویس پیازی می‌رسد. آخرین رله محل دیدار است.</translation>
    </message>
    <message>
        <source>Meeting point</source>
        <translation>محل دیدار</translation>
    </message>
    <message>
        <source>One of several linked legs to the same exit</source>
        <translation>یکی از چند شاخهٔ به‌هم‌پیوسته به همان خروجی</translation>
    </message>
    <message>
        <source>Only the entry sees your IP</source>
        <translation>فقط رلهٔ ورودی IP شما را می‌بیند</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>میانی</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>پل</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>ورودی</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>خروجی</translation>
    </message>
    <message>
        <source>, +%1 more</source>
        <translation>، و %1 مورد دیگر</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>سایت‌ها</translation>
    </message>
    <message>
        <source>Round trip: %1</source>
        <translation>رفت و برگشت: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n active paths</source>
        <translation>
            <numerusform>%n مسیر فعال</numerusform>
        </translation>
    </message>
    <message>
        <source>Asked for by %1</source>
        <translation>درخواست از ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>veldmark::DoctorModel</name>
    <message>
        <source>Problem</source>
        <translation>مشکل</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>نامعلوم</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>نکته</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>درست</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>بازگرداندن شبکه</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>بارگیری</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>بررسی این رایانه…</translation>
    </message>
    <message>
        <source>The check gave no result.</source>
        <translation>بررسی نتیجه‌ای نداد.</translation>
    </message>
    <message>
        <source>No problem was found that keeps Veldmark from connecting.</source>
        <translation>چیزی که مانع اتصال Veldmark شود پیدا نشد.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t connect until each problem is fixed.</source>
        <translation>تا همهٔ مشکل‌ها برطرف نشوند، Veldmark نمی‌تواند وصل شود.</translation>
    </message>
</context>
<context>
    <name>veldmark::LogModel</name>
    <message>
        <source>Tor writes here while it connects and runs</source>
        <translation>پیام‌های Tor هنگام اتصال و اجرا این‌جا نوشته می‌شوند</translation>
    </message>
    <message>
        <source>Can&apos;t read the log files</source>
        <translation>نمی‌توان پرونده‌های گزارش را خواند</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>یک خط</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>مشکل‌ها</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>مشکل‌ها (%1)</translation>
    </message>
    <message>
        <source>Show the log files in Finder</source>
        <translation>نمایش پرونده‌های گزارش در Finder</translation>
    </message>
    <message>
        <source>Show the log files in the file manager</source>
        <translation>نمایش پرونده‌های گزارش در مدیر پرونده</translation>
    </message>
    <message>
        <source>There are no log files yet. Tor creates %1 when it first starts.</source>
        <translation>هنوز پروندهٔ گزارشی نیست: Tor پوشهٔ ⁨%1⁩ را هنگام نخستین شروع می‌سازد.</translation>
    </message>
    <message>
        <source>No file manager could be opened. The log files are in %1.</source>
        <translation>باز کردن مدیر پرونده ممکن نشد. پرونده‌های گزارش در ⁨%1⁩ هستند.</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n خط</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::OptionsModel</name>
    <message>
        <source>Choosing a country means fewer exit relays, so it&apos;s slower and you&apos;re easier to single out.</source>
        <translation>با انتخاب یک کشور، رله‌های خروجی کمتر می‌شوند؛ پس اتصال کندتر است و شما از میان دیگران آسان‌تر شناخته می‌شوید.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>خاموش</translation>
    </message>
    <message>
        <source>obfs4 (built-in)</source>
        <translation>⁨obfs4⁩ (داخلی)</translation>
    </message>
    <message>
        <source>Snowflake (built-in)</source>
        <translation>⁨Snowflake⁩ (داخلی)</translation>
    </message>
    <message>
        <source>meek (built-in)</source>
        <translation>⁨meek⁩ (داخلی)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>سفارشی</translation>
    </message>
    <message>
        <source>No bridges added yet</source>
        <translation>هنوز پلی افزوده نشده</translation>
    </message>
    <message>
        <source>Needs bridge programs: click Download</source>
        <translation>برنامه‌های پل لازم است: «بارگیری» را بزنید</translation>
    </message>
    <message>
        <source>Built-in bridges from %1</source>
        <translation>پل‌های داخلی از ⁨%1⁩</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(خط %1)</translation>
    </message>
    <message>
        <source>(lines %1)</source>
        <translation>(خط‌های %1)</translation>
    </message>
    <message>
        <source>1 bridge recognized</source>
        <translation>یک پل شناخته شد</translation>
    </message>
    <message>
        <source>A bridge line can&apos;t contain #, &quot; or \.</source>
        <translation>در خط پل، نویسه‌های ⁨#⁩ و ⁨&quot;⁩ و ⁨\⁩ مجاز نیستند.</translation>
    </message>
    <message>
        <source>At most %1 bridges can be used</source>
        <translation>حداکثر %1 پل را می‌توان به کار برد</translation>
    </message>
    <message>
        <source>1 line not recognized</source>
        <translation>یک خط شناخته نشد</translation>
    </message>
    <message>
        <source>None</source>
        <translation>هیچ</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the Dock) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>در حالت سخت‌گیرانه، این برنامه‌ها می‌توانند به جای Tor مستقیم و با نشانی IP واقعی شما وصل شوند. هر چیز دیگر همچنان فقط از Tor می‌گذرد. آن‌ها را با &lt;b&gt;باز کردن بدون Tor&lt;/b&gt; باز کنید (نه از Dock) تا Veldmark بتواند نشان‌دارشان کند. اگر برنامه در حال اجرا باشد، بسته و دوباره باز می‌شود.</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the desktop&apos;s menu) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>در حالت سخت‌گیرانه، این برنامه‌ها می‌توانند به جای Tor مستقیم و با نشانی IP واقعی شما وصل شوند. هر چیز دیگر همچنان فقط از Tor می‌گذرد. آن‌ها را با &lt;b&gt;باز کردن بدون Tor&lt;/b&gt; باز کنید (نه از منوی میزکار) تا Veldmark بتواند نشان‌دارشان کند. اگر برنامه در حال اجرا باشد، بسته و دوباره باز می‌شود.</translation>
    </message>
    <message numerus="yes">
        <source>%n bridges recognized</source>
        <translation>
            <numerusform>%n پل شناخته شد</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines not recognized</source>
        <translation>
            <numerusform>%n خط شناخته نشد</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::PanelModel</name>
    <message>
        <source>No answer</source>
        <translation>بی‌پاسخ</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but it isn&apos;t known whether the kill switch blocks such connections</source>
        <translation>یک اتصال مستقیم بدون Tor پاسخی نگرفت، اما معلوم نیست کیل‌سوییچ چنین اتصال‌هایی را مسدود می‌کند یا نه</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but proxy mode doesn&apos;t block such connections</source>
        <translation>یک اتصال مستقیم بدون Tor پاسخی نگرفت، اما حالت پروکسی چنین اتصال‌هایی را مسدود نمی‌کند</translation>
    </message>
    <message>
        <source>Connect to Tor</source>
        <translation>اتصال به Tor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>لغو</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>قطع اتصال</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>اتصال دوباره</translation>
    </message>
    <message>
        <source>Connected through %1 bridges</source>
        <translation>وصل از راه پل‌های %1</translation>
    </message>
    <message>
        <source>Strict</source>
        <translation>سخت‌گیرانه</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>پروکسی</translation>
    </message>
    <message>
        <source>Install Tor to get started</source>
        <translation>برای شروع، Tor را نصب کنید</translation>
    </message>
    <message>
        <source>Click to connect</source>
        <translation>برای اتصال کلیک کنید</translation>
    </message>
    <message>
        <source>Click to disconnect</source>
        <translation>برای قطع اتصال کلیک کنید</translation>
    </message>
    <message>
        <source>Tor hasn&apos;t reported progress for a while. It is still trying; a slow or blocked network is the usual reason.</source>
        <translation>مدتی است که Tor پیشرفتی گزارش نکرده است. هنوز تلاش می‌کند؛ علت معمولاً شبکهٔ کند یا مسدود است.</translation>
    </message>
    <message>
        <source>Still waiting for Tor to start, or for your approval.</source>
        <translation>هنوز در انتظار شروع Tor یا تأیید شما.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>در حال بررسی</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>نامعلوم</translation>
    </message>
    <message>
        <source>Checked against %1</source>
        <translation>بررسی‌شده با ⁨%1⁩</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>تأیید شد</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>تأیید نشد</translation>
    </message>
    <message>
        <source>DNS leak</source>
        <translation>نشت DNS</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>آزموده نشده</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>در حال آزمون…</translation>
    </message>
    <message>
        <source>No leaks</source>
        <translation>بدون نشت</translation>
    </message>
    <message>
        <source>Inconclusive</source>
        <translation>بی‌نتیجه</translation>
    </message>
    <message>
        <source>Exposed: %1</source>
        <translation>آشکار: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Tries a direct connection that skips Tor</source>
        <translation>یک اتصال مستقیم بدون Tor را امتحان می‌کند</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor are blocked</source>
        <translation>اتصال‌های مستقیم بدون Tor مسدودند</translation>
    </message>
    <message>
        <source>Apps that ignore proxy settings show your real IP (%1). Turn on Strict mode to block them.</source>
        <translation>برنامه‌هایی که تنظیمات پروکسی را نادیده می‌گیرند IP واقعی شما (⁨%1⁩) را نشان می‌دهند. برای مسدود کردنشان حالت سخت‌گیرانه را روشن کنید.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 مورد دیگر</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>بررسی نشده</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor show your real IP (%1), although Strict mode should block them. Disconnect, or run the leak test again.</source>
        <translation>اتصال‌های مستقیم بدون Tor نشانی IP واقعی شما (⁨%1⁩) را نشان می‌دهند، با این‌که حالت سخت‌گیرانه باید آن‌ها را مسدود کند. اتصال را قطع کنید یا آزمون نشت را دوباره اجرا کنید.</translation>
    </message>
</context>
<context>
    <name>veldmark::ReportModel</name>
    <message>
        <source>Saved in %1</source>
        <translation>در ⁨%1⁩ ذخیره شد</translation>
    </message>
</context>
<context>
    <name>veldmark::SettingsModel</name>
    <message>
        <source>Found</source>
        <translation>پیدا شد</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>موجود نیست</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>پیدا نشد</translation>
    </message>
    <message>
        <source>Homebrew: %1</source>
        <translation>Homebrew: %1</translation>
    </message>
    <message>
        <source>Install it with %1</source>
        <translation>نصب با %1</translation>
    </message>
    <message>
        <source>Not found in Tor Browser or a downloaded bundle</source>
        <translation>نه در Tor Browser پیدا شد و نه در بسته‌ای بارگیری‌شده</translation>
    </message>
    <message>
        <source>Loaded from %1</source>
        <translation>بارگذاری‌شده از ⁨%1⁩</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <translation>بارگیری نشده</translation>
    </message>
    <message>
        <source>Version %1 loaded</source>
        <translation>نسخهٔ %1 بارگذاری شده</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>امضا تأیید شد</translation>
    </message>
    <message>
        <source>Adds one line to ~/.zshrc (and ~/.bash_profile if you have one) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>یک خط به ⁨~/.zshrc⁩ (و اگر دارید به ⁨~/.bash_profile⁩) و یک خط Include به بالای ⁨~/.ssh/config⁩ اضافه می‌کند. پرونده‌هایش در ⁨~/.veldmark⁩ هستند. تا وقتی Veldmark با حالت پایانهٔ روشن وصل نباشد، چیزی از Tor نمی‌گذرد.</translation>
    </message>
    <message>
        <source>Adds one line to ~/.bashrc (and ~/.zshrc if you use zsh) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>یک خط به ⁨~/.bashrc⁩ (و اگر zsh را به کار می‌برید به ⁨~/.zshrc⁩) و یک خط Include به بالای ⁨~/.ssh/config⁩ اضافه می‌کند. پرونده‌هایش در ⁨~/.veldmark⁩ هستند. تا وقتی Veldmark با حالت پایانهٔ روشن وصل نباشد، چیزی از Tor نمی‌گذرد.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>نسخهٔ %1</translation>
    </message>
    <message>
        <source>Fetched over HTTPS. Its signature isn&apos;t checked, since GnuPG isn&apos;t installed.</source>
        <translation>با HTTPS گرفته می‌شود. امضای آن بررسی نمی‌شود، چون GnuPG نصب نیست.</translation>
    </message>
    <message>
        <source>Fetched over HTTPS and checked against the Tor Project&apos;s signature.</source>
        <translation>با HTTPS گرفته و با امضای پروژهٔ Tor سنجیده می‌شود.</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>نصب نشده</translation>
    </message>
    <message>
        <source>Installed in your shell and SSH config</source>
        <translation>در پوسته و پیکربندی SSH نصب شده</translation>
    </message>
    <message>
        <source>Installed in your shell; SSH doesn&apos;t use it</source>
        <translation>در پوسته نصب شده؛ SSH از آن استفاده نمی‌کند</translation>
    </message>
    <message>
        <source>curl, git, brew, pip, ssh and more use Tor</source>
        <translation>ابزارهایی مانند curl، git، brew، pip و ssh از Tor می‌گذرند</translation>
    </message>
    <message>
        <source>curl, git, pip, ssh and more use Tor</source>
        <translation>ابزارهایی مانند curl، git، pip و ssh از Tor می‌گذرند</translation>
    </message>
    <message>
        <source>Veldmark is free software and independent of the Tor Project. It contains no Tor: it runs the tor that is installed here, and where bridges are used lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>برنامهٔ Veldmark نرم‌افزار آزاد و مستقل از پروژهٔ Tor است. خودش Tor را در بر ندارد: برنامهٔ tor نصب‌شده در این‌جا را اجرا می‌کند و اگر پل به کار رود، lyrebird، snowflake-client یا webtunnel-client را نیز.</translation>
    </message>
    <message>
        <source>It sets up the network with macOS&apos;s own programs, asks for the administrator with sudo, and checks downloads with GnuPG where that is installed.</source>
        <translation>شبکه را با برنامه‌های خود macOS تنظیم می‌کند، اجازهٔ مدیر را با sudo می‌گیرد و اگر GnuPG نصب باشد، بارگیری‌ها را با آن بررسی می‌کند.</translation>
    </message>
    <message>
        <source>It sets up the network with nftables, resolvectl and gsettings, asks for the administrator with polkit or sudo, takes ssh through Tor with a netcat, and checks downloads with GnuPG where that is installed.</source>
        <translation>شبکه را با nftables، resolvectl و gsettings تنظیم می‌کند، اجازهٔ مدیر را با polkit یا sudo می‌گیرد، ssh را با یک netcat از Tor می‌گذراند و اگر GnuPG نصب باشد، بارگیری‌ها را با آن بررسی می‌کند.</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>پرسیدن</translation>
    </message>
    <message>
        <source>Try bridges</source>
        <translation>امتحان پل‌ها</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>هیچ کاری نکردن</translation>
    </message>
</context>
<context>
    <name>veldmark::ShutdownNotice</name>
    <message>
        <source>Restoring your network settings</source>
        <translation>بازگرداندن تنظیمات شبکهٔ شما</translation>
    </message>
</context>
<context>
    <name>veldmark::Text</name>
    <message>
        <source>Tor hasn&apos;t confirmed that it uses the network again, so traffic may not get through. Veldmark keeps telling Tor to. If this lasts, disconnect and connect again.</source>
        <translation>برنامهٔ Tor تأیید نکرده است که دوباره به شبکه وصل است، پس شاید هیچ چیز عبور نکند. Veldmark همچنان این را از آن می‌خواهد؛ اگر نشد، اتصال را قطع کنید و دوباره وصل شوید.</translation>
    </message>
    <message>
        <source>Version %1 is offered, which is older than the installed %2. Nothing was changed.</source>
        <translation>نسخهٔ %1 عرضه شده که از نسخهٔ نصب‌شدهٔ %2 قدیمی‌تر است. چیزی تغییر نکرد.</translation>
    </message>
    <message>
        <source>The download of version %1 contains another version, so it was discarded.</source>
        <translation>آنچه به نام نسخهٔ %1 رسید نسخهٔ دیگری است، پس دور انداخته شد.</translation>
    </message>
    <message>
        <source>The download begins again when Tor is connected…</source>
        <translation>وقتی Tor وصل شود، بارگیری از نو آغاز می‌شود…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a location of Tor. Give an absolute path, such as /usr/bin/tor.</source>
        <translation>مقدار «⁨%1⁩» محل Tor نیست: مسیر کامل را بدهید، مانند ⁨/usr/bin/tor⁩.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be changed during a connection. Disconnect to change it.</source>
        <translation>تنظیم «%1» برای کل اتصال برقرار است. برای تغییر آن، اتصال را قطع کنید.</translation>
    </message>
    <message>
        <source>Your traffic is not going through Tor</source>
        <translation>ترافیک شما از Tor نمی‌گذرد</translation>
    </message>
    <message>
        <source>Restoring your network settings…</source>
        <translation>بازگرداندن تنظیمات شبکهٔ شما…</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor from an earlier session</source>
        <translation>شبکهٔ شما هنوز از نشستی پیشین برای Tor تنظیم مانده است</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>شبکهٔ شما هنوز برای Tor تنظیم است</translation>
    </message>
    <message>
        <source>Preparing Tor…</source>
        <translation>آماده‌سازی Tor…</translation>
    </message>
    <message>
        <source>Waiting for administrator approval…</source>
        <translation>در انتظار تأیید مدیر…</translation>
    </message>
    <message>
        <source>Waiting for an administrator to approve a program…</source>
        <translation>در انتظار تأیید یک برنامه از سوی مدیر…</translation>
    </message>
    <message>
        <source>Starting Tor…</source>
        <translation>شروع Tor…</translation>
    </message>
    <message>
        <source>Tor is waiting for the bridge program, which hasn&apos;t said that it is ready.</source>
        <translation>برنامهٔ Tor منتظر برنامهٔ پل است که هنوز آمادگی خود را اعلام نکرده است.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting</source>
        <translation>اتصال Tor کامل نشد</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>اجرای Tor متوقف شد</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor</source>
        <translation>همهٔ ترافیک به Tor محدود شده است</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor</source>
        <translation>برنامه‌هایی که تنظیمات پروکسی سیستم را به کار می‌برند از Tor می‌گذرند</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. Reconnect, or Restore Network to go back online.</source>
        <translation>اجرای Tor متوقف شد. کیل‌سوییچ هنوز ترافیک را مسدود می‌کند، پس چیزی نشت نکرده است. دوباره وصل شوید، یا برای برگشتن به اینترنت بدون Tor «بازگرداندن شبکه» را بزنید.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, but the last checks saw traffic go around Tor. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>اجرای Tor متوقف شد. کیل‌سوییچ هنوز ترافیک را مسدود می‌کند، اما در آخرین بررسی‌ها دیده شد که بخشی از آن Tor را دور زده است. دوباره وصل شوید، یا برای برگشتن به اینترنت بدون Tor «بازگرداندن شبکه» را بزنید.</translation>
    </message>
    <message>
        <source>Tor stopped running. Apps using the proxy can&apos;t connect until you reconnect or Restore Network.</source>
        <translation>اجرای Tor متوقف شد. تا دوباره وصل نشوید یا «بازگرداندن شبکه» را نزنید، برنامه‌هایی که پروکسی را به کار می‌برند نمی‌توانند وصل شوند.</translation>
    </message>
    <message>
        <source>Any (recommended)</source>
        <translation>هر کشوری (پیشنهادی)</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>آمریکا</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>کانادا</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>بریتانیا</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>آلمان</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>هلند</translation>
    </message>
    <message>
        <source>France</source>
        <translation>فرانسه</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>سوئد</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>سوئیس</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>فنلاند</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>رومانی</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>ژاپن</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>سنگاپور</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>سفارشی</translation>
    </message>
    <message>
        <source>DNS can go around Tor via: %1</source>
        <translation>پرس‌وجوهای DNS می‌توانند از این راه Tor را دور بزنند: ⁨%1⁩</translation>
    </message>
    <message>
        <source>DNS: not tested yet.</source>
        <translation>وضعیت DNS: هنوز آزموده نشده.</translation>
    </message>
    <message>
        <source>DNS: testing…</source>
        <translation>وضعیت DNS: در حال آزمون…</translation>
    </message>
    <message>
        <source>DNS: a test lookup went through Tor.</source>
        <translation>وضعیت DNS: یک پرس‌وجوی آزمایشی از Tor گذشت.</translation>
    </message>
    <message>
        <source>DNS: settings point at Tor, but a test lookup couldn&apos;t be confirmed.</source>
        <translation>وضعیت DNS: تنظیمات به Tor اشاره دارند، اما تأیید یک پرس‌وجوی آزمایشی ممکن نشد.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>این رایانه</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>این مک</translation>
    </message>
    <message>
        <source>on this computer</source>
        <translation>روی این رایانه</translation>
    </message>
    <message>
        <source>on this Mac</source>
        <translation>روی این مک</translation>
    </message>
    <message>
        <source>Tor stopped running, and your network is no longer set up for it.</source>
        <translation>اجرای Tor متوقف شد و شبکهٔ شما دیگر برای آن تنظیم نیست.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is blocking traffic again, but another program had removed its rules for a while. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>اجرای Tor متوقف شد. کیل‌سوییچ دوباره ترافیک را مسدود می‌کند، اما برنامهٔ دیگری مدتی قاعده‌های آن را برداشته بود. دوباره وصل شوید، یا برای برگشتن به اینترنت بدون Tor «بازگرداندن شبکه» را بزنید.</translation>
    </message>
    <message>
        <source>Tor stopped running, and the kill switch doesn&apos;t block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network.</source>
        <translation>اجرای Tor متوقف شد و کیل‌سوییچ ترافیک را مسدود نمی‌کند: برنامهٔ دیگری قاعده‌هایش را برداشت. ممکن است ترافیک مستقیماً از این رایانه بیرون برود. دوباره وصل شوید یا «بازگرداندن شبکه» را بزنید.</translation>
    </message>
    <message>
        <source>Tor stopped running, and it isn&apos;t known whether the kill switch is still blocking traffic. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>اجرای Tor متوقف شد و معلوم نیست کیل‌سوییچ هنوز ترافیک را مسدود می‌کند یا نه. دوباره وصل شوید، یا برای برگشتن به اینترنت بدون Tor «بازگرداندن شبکه» را بزنید.</translation>
    </message>
    <message>
        <source>The watcher of Veldmark&apos;s firewall rules has stopped reporting, so it isn&apos;t known whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>ناظر قاعده‌های دیوار آتش Veldmark دیگر خبری نمی‌دهد، پس معلوم نیست کیل‌سوییچ ترافیک را مسدود می‌کند یا نه. اتصال را قطع کنید و دوباره وصل شوید.</translation>
    </message>
    <message>
        <source>Not Protected</source>
        <translation>بدون محافظت</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>در حال اتصال…</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>در حال قطع اتصال…</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>محافظت‌شده</translation>
    </message>
    <message>
        <source>Proxy Active</source>
        <translation>پروکسی فعال است</translation>
    </message>
    <message>
        <source>Needs Attention</source>
        <translation>نیازمند توجه</translation>
    </message>
    <message>
        <source>DNS Leak</source>
        <translation>نشت DNS</translation>
    </message>
    <message>
        <source>Kill Switch Failed</source>
        <translation>کیل‌سوییچ کار نمی‌کند</translation>
    </message>
    <message>
        <source>Traffic may leave this computer directly</source>
        <translation>ممکن است ترافیک مستقیماً از این رایانه بیرون برود</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>پرس‌وجوهای DNS می‌توانند Tor را دور بزنند</translation>
    </message>
    <message>
        <source>Lookups can go around Tor, and your real address can be seen</source>
        <translation>پرس‌وجوهای DNS می‌توانند Tor را دور بزنند و نشانی واقعی شما قابل مشاهده است</translation>
    </message>
    <message>
        <source>Your real address can be seen. Disconnect, or run the leak test again.</source>
        <translation>نشانی واقعی شما قابل مشاهده است. اتصال را قطع کنید یا آزمون نشت را دوباره اجرا کنید.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>معلوم نیست کیل‌سوییچ ترافیک را مسدود می‌کند یا نه. اتصال را قطع کنید و دوباره وصل شوید.</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor, but the exit could not be confirmed</source>
        <translation>همهٔ ترافیک به Tor محدود شده است، اما تأیید خروجی ممکن نشد</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor, but the exit could not be confirmed</source>
        <translation>برنامه‌هایی که تنظیمات پروکسی سیستم را به کار می‌برند از Tor می‌گذرند، اما تأیید خروجی ممکن نشد</translation>
    </message>
    <message>
        <source>No Network</source>
        <translation>بدون شبکه</translation>
    </message>
    <message>
        <source>Nothing Gets Through</source>
        <translation>هیچ چیز عبور نمی‌کند</translation>
    </message>
    <message>
        <source>This computer has no network. Traffic around Tor stays blocked.</source>
        <translation>این رایانه شبکه ندارد. ترافیک خارج از Tor همچنان مسدود است.</translation>
    </message>
    <message>
        <source>This computer has no network. Veldmark goes on when it is back.</source>
        <translation>این رایانه شبکه ندارد. وقتی شبکه برگردد، Veldmark ادامه می‌دهد.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>هیچ مدار Tor کار نمی‌کند و Tor همچنان تلاش می‌کند. ترافیک خارج از Tor همچنان مسدود است.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying.</source>
        <translation>هیچ مدار Tor کار نمی‌کند و Tor همچنان تلاش می‌کند.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>شبکه به Tor پاسخ نمی‌دهد و Tor همچنان تلاش می‌کند. ترافیک خارج از Tor همچنان مسدود است.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying.</source>
        <translation>شبکه به Tor پاسخ نمی‌دهد و Tor همچنان تلاش می‌کند.</translation>
    </message>
    <message>
        <source>Another program has ended this session and started its own. Restore Network ends that session.</source>
        <translation>برنامهٔ دیگری این نشست را پایان داده و نشست خودش را آغاز کرده است. «بازگرداندن شبکه» به آن نشست پایان می‌دهد.</translation>
    </message>
    <message>
        <source>This computer has no network, so Tor can&apos;t connect.</source>
        <translation>این رایانه شبکه ندارد، پس Tor نمی‌تواند وصل شود.</translation>
    </message>
    <message>
        <source>A VPN takes Tor&apos;s traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode.</source>
        <translation>یک VPN ترافیک Tor را می‌گیرد و حالت سخت‌گیرانه به VPN اجازهٔ خروج نمی‌دهد. VPN را خاموش کنید یا حالت پروکسی را به کار ببرید.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules; they are back in place.</source>
        <translation>برنامهٔ دیگری قاعده‌های دیوار آتش Veldmark را برداشت؛ این قاعده‌ها دوباره برقرارند.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules and they could not be put back. Traffic may leave this computer directly. Disconnect and connect again.</source>
        <translation>برنامهٔ دیگری قاعده‌های دیوار آتش Veldmark را برداشت و برگرداندنشان ممکن نشد. ممکن است ترافیک مستقیماً از این رایانه بیرون برود. اتصال را قطع کنید و دوباره وصل شوید.</translation>
    </message>
    <message>
        <source>Invalid exit country.</source>
        <translation>کشور خروجی معتبر نیست.</translation>
    </message>
    <message>
        <source>The settings couldn&apos;t be saved. Changes to them may last only until you quit.</source>
        <translation>ذخیرهٔ تنظیمات ممکن نشد. تغییرها شاید فقط تا خروج از برنامه بمانند.</translation>
    </message>
    <message>
        <source>Checking latest version…</source>
        <translation>بررسی تازه‌ترین نسخه…</translation>
    </message>
    <message>
        <source>Verifying signature…</source>
        <translation>بررسی امضا…</translation>
    </message>
    <message>
        <source>Another download is under way.</source>
        <translation>بارگیری دیگری در جریان است.</translation>
    </message>
    <message>
        <source>Path not responding, finding another…</source>
        <translation>مسیر پاسخ نمی‌دهد، یافتن مسیری دیگر…</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes.</source>
        <translation>اتصال Tor در پنج دقیقه کامل نشد.</translation>
    </message>
    <message>
        <source>Administrator access was refused, or the agent that asks for the password gave no answer.</source>
        <translation>دسترسی مدیر رد شد، یا عاملی که گذرواژه را می‌پرسد پاسخی نداد.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, so Tor can&apos;t connect: %1.</source>
        <translation>دیوار آتش دیگری در این رایانه جلوی ترافیک خروجی را می‌گیرد، پس Tor نمی‌تواند وصل شود: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Setup ran but the helper wasn&apos;t installed. Try again.</source>
        <translation>راه‌اندازی اجرا شد، اما برنامهٔ کمکی نصب نشد. دوباره امتحان کنید.</translation>
    </message>
    <message>
        <source>The helper failed without an error message.</source>
        <translation>برنامهٔ کمکی بدون پیام خطا شکست خورد.</translation>
    </message>
    <message>
        <source>Add at least one bridge under Bridges → Custom….</source>
        <translation>در «پل‌ها ← سفارشی…» دست‌کم یک پل اضافه کنید.</translation>
    </message>
    <message>
        <source>Some custom bridge lines aren&apos;t valid. Fix them under Bridges → Custom….</source>
        <translation>برخی خط‌های پل سفارشی معتبر نیستند. آن‌ها را در «پل‌ها ← سفارشی…» درست کنید.</translation>
    </message>
    <message>
        <source>At most %1 custom bridges can be used. Remove some under Bridges → Custom….</source>
        <translation>حداکثر %1 پل سفارشی را می‌توان به کار برد. چند پل را در «پل‌ها ← سفارشی…» بردارید.</translation>
    </message>
    <message>
        <source>Testing speed (%1 of %2)…</source>
        <translation>آزمودن سرعت (%1 از %2)…</translation>
    </message>
    <message>
        <source>Slow path (%1 ms), finding a faster one…</source>
        <translation>مسیر کند (%1 میلی‌ثانیه)، یافتن مسیری سریع‌تر…</translation>
    </message>
    <message>
        <source>Downloading Tor %1 bridge programs…</source>
        <translation>بارگیری برنامه‌های پل Tor نسخهٔ %1…</translation>
    </message>
    <message>
        <source>Download of %1 failed (HTTP %2).</source>
        <translation>بارگیری %1 ناموفق بود (HTTP %2).</translation>
    </message>
    <message>
        <source>The settings file couldn&apos;t be read. It was kept as %1, and a new one is used.</source>
        <translation>خواندن پروندهٔ تنظیمات ممکن نشد. این پرونده با نام ⁨%1⁩ نگه داشته شد و پروندهٔ تازه‌ای به کار می‌رود.</translation>
    </message>
    <message>
        <source>The settings file %1 can&apos;t be read or replaced. Changes to the settings last until you quit.</source>
        <translation>پروندهٔ تنظیمات ⁨%1⁩ را نمی‌توان خواند یا جایگزین کرد. تغییر تنظیمات فقط تا خروج از برنامه می‌ماند.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1 without Tor: %2</source>
        <translation>باز کردن %1 بدون Tor ممکن نشد: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Another Veldmark of yours has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>در این میان Veldmark دیگری از خود شما نشستی آغاز کرده است، پس هیچ نشستی پایان داده نشد. برای پایان دادن به آن نشست، اتصال را دوباره قطع کنید.</translation>
    </message>
    <message>
        <source>Another user&apos;s Veldmark has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>در این میان Veldmark کاربر دیگری نشستی آغاز کرده است، پس هیچ نشستی پایان داده نشد. برای پایان دادن به آن نشست، اتصال را دوباره قطع کنید.</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by another Veldmark of yours, process %1</source>
        <translation>شبکهٔ شما را Veldmark دیگری از خود شما، فرایند %1، برای Tor تنظیم کرده است</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by %1, whose Veldmark is process %2</source>
        <translation>شبکهٔ شما را %1 برای Tor تنظیم کرده است؛ فرایند Veldmark او %2 است</translation>
    </message>
    <message>
        <source>Another Veldmark of yours is connected (process %1). Disconnect it, or restore the network, first.</source>
        <translation>یک Veldmark دیگر از خود شما وصل است (فرایند %1). ابتدا اتصال آن را قطع کنید یا شبکه را بازگردانید.</translation>
    </message>
    <message>
        <source>%1 is connected with Veldmark (process %2). That session must be ended first.</source>
        <translation>⁨%1⁩ با Veldmark وصل است (فرایند %2). ابتدا باید آن نشست پایان یابد.</translation>
    </message>
    <message>
        <source>%1 Your network is still pointed at Tor. Click Restore Network to undo.</source>
        <translation>%1 شبکهٔ شما هنوز به Tor اشاره دارد. برای برگرداندن آن «بازگرداندن شبکه» را بزنید.</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install the OpenBSD netcat or Ncat with your package manager.</source>
        <translation>ترافیک ssh هنوز از Tor نمی‌گذرد: netcat سازگار با SOCKS لازم دارد. netcat مربوط به OpenBSD یا Ncat را با مدیر بستهٔ سیستم نصب کنید.</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up terminal mode: %1</source>
        <translation>راه‌اندازی حالت پایانه ممکن نشد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove terminal integration: %1</source>
        <translation>برداشتن یکپارچگی پایانه ممکن نشد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up passwordless mode: %1</source>
        <translation>راه‌اندازی حالت بدون گذرواژه ممکن نشد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove passwordless mode: %1</source>
        <translation>برداشتن حالت بدون گذرواژه ممکن نشد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install one with: %1</source>
        <translation>ترافیک ssh هنوز از Tor نمی‌گذرد: netcat سازگار با SOCKS لازم دارد. آن را نصب کنید با: %1</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>برای باز کردن برنامه‌ها بدون Tor، در حالت سخت‌گیرانه وصل شوید</translation>
    </message>
    <message>
        <source>No bridge answered a quick test, trying them all</source>
        <translation>هیچ پلی به آزمون سریع پاسخ نداد، همه امتحان می‌شوند</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>این پل‌ها lyrebird را لازم دارند که همراه Tor Browser می‌آید. برای گرفتن آن، کنار «پل‌ها» «بارگیری» را بزنید.</translation>
    </message>
    <message>
        <source>Snowflake needs snowflake-client, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>پل Snowflake برنامهٔ snowflake-client را لازم دارد که همراه Tor Browser می‌آید. برای گرفتن آن، کنار «پل‌ها» «بارگیری» را بزنید.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the latest Tor version from torproject.org.</source>
        <translation>خواندن تازه‌ترین نسخهٔ Tor از torproject.org ممکن نشد.</translation>
    </message>
    <message>
        <source>The request timed out.</source>
        <translation>مهلت درخواست تمام شد.</translation>
    </message>
    <message>
        <source>The server gave no HTTP answer.</source>
        <translation>سرور پاسخ HTTP نداد.</translation>
    </message>
    <message>
        <source>The connection was lost before the download ended.</source>
        <translation>اتصال پیش از پایان بارگیری قطع شد.</translation>
    </message>
    <message>
        <source>Not connected to Tor&apos;s control port.</source>
        <translation>به درگاه کنترل Tor وصل نیست.</translation>
    </message>
    <message>
        <source>Tor closed the control connection.</source>
        <translation>برنامهٔ Tor اتصال کنترل را بست.</translation>
    </message>
    <message>
        <source>A program other than Tor listens on Tor&apos;s control port.</source>
        <translation>روی درگاه کنترل Tor برنامهٔ دیگری جز Tor گوش می‌دهد.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t answer on its control port in time.</source>
        <translation>پاسخ Tor روی درگاه کنترل به‌موقع نرسید.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager or set its location in Settings.</source>
        <translation>برنامهٔ Tor نصب نیست. آن را با مدیر بستهٔ سیستم نصب کنید یا محل آن را در «تنظیمات» مشخص کنید.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with Homebrew (brew install tor) or set its location in Settings.</source>
        <translation>برنامهٔ Tor نصب نیست. آن را با Homebrew (brew install tor) نصب کنید یا محل آن را در «تنظیمات» مشخص کنید.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: polkit is not running on this system.</source>
        <translation>نمی‌توان دسترسی مدیر خواست: polkit روی این سیستم در حال اجرا نیست.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: no PolicyKit authentication agent is running in this session.</source>
        <translation>نمی‌توان دسترسی مدیر خواست: در این نشست هیچ عامل احراز هویت PolicyKit در حال اجرا نیست.</translation>
    </message>
    <message>
        <source>The password could not be checked: polkit accepts no password from this terminal. Run the command with sudo.</source>
        <translation>بررسی گذرواژه ممکن نشد: polkit از این پایانه گذرواژه نمی‌پذیرد. دستور را با sudo اجرا کنید.</translation>
    </message>
    <message>
        <source>Couldn&apos;t fix DNS: %1</source>
        <translation>اصلاح DNS ممکن نشد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t request a new identity: %1</source>
        <translation>درخواست هویت جدید ممکن نشد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t read circuits: %1</source>
        <translation>خواندن مدارها ممکن نشد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the login-item setting: %1</source>
        <translation>تغییر تنظیم شروع هنگام ورود ممکن نشد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Login items can&apos;t be changed here.</source>
        <translation>شروع هنگام ورود را این‌جا نمی‌توان تغییر داد.</translation>
    </message>
    <message>
        <source>Move Veldmark to the Applications folder and open it from there first.</source>
        <translation>ابتدا Veldmark را به پوشهٔ Applications ببرید و از آن‌جا باز کنید.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1.</source>
        <translation>برداشتن ⁨%1⁩ ممکن نشد.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <translation>نوشتن ⁨%1⁩ ممکن نشد: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Couldn&apos;t download bridge programs: %1</source>
        <translation>بارگیری برنامه‌های پل ممکن نشد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download again to also verify the Tor Project&apos;s signature.</source>
        <translation>نسخهٔ %1 برنامه‌های پل با HTTPS نصب شد. برای آن‌که امضای پروژهٔ Tor هم تأیید شود، GnuPG را نصب کنید (%2) و دوباره بارگیری کنید.</translation>
    </message>
    <message>
        <source>The download&apos;s signature didn&apos;t verify, so it was discarded. %1</source>
        <translation>امضای پروندهٔ بارگیری‌شده تأیید نشد، پس آن پرونده دور انداخته شد. %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unpack the download. %1</source>
        <translation>باز کردن بستهٔ بارگیری‌شده ممکن نشد. %1</translation>
    </message>
    <message>
        <source>Tor can&apos;t reach the bridge program: %1.</source>
        <translation>برنامهٔ Tor به برنامهٔ پل دسترسی ندارد: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Tor reports: %1 (%2).</source>
        <translation>پیام Tor: ⁨%1⁩ (⁨%2⁩).</translation>
    </message>
    <message>
        <source>Tor reports: %1.</source>
        <translation>پیام Tor: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Tor replied: %1</source>
        <translation>پاسخ Tor: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Tor has trouble with the bridge program: %1</source>
        <translation>مشکل Tor با برنامهٔ پل: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The bridge program printed something that Tor doesn&apos;t understand: &quot;%1&quot;.</source>
        <translation>برنامهٔ پل چیزی نوشت که Tor نمی‌فهمد: «⁨%1⁩».</translation>
    </message>
    <message>
        <source>Using the %1 fastest of %2 bridges</source>
        <translation>استفاده از سریع‌ترین پل‌ها: %1 از %2</translation>
    </message>
    <message>
        <source>The %1 bridge type isn&apos;t supported yet.</source>
        <translation>پل نوع %1 هنوز پشتیبانی نمی‌شود.</translation>
    </message>
    <message>
        <source>Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, install Tor Browser, or paste your own under Bridges → Custom….</source>
        <translation>پل‌های داخلی %1 از Tor Browser می‌آیند. کنار «پل‌ها» «بارگیری» را بزنید، Tor Browser را نصب کنید، یا پل‌های خودتان را در «پل‌ها ← سفارشی…» بچسبانید.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1.</source>
        <translation>برخی تنظیمات DNS از بیرون Veldmark می‌آیند (یک VPN یا ⁨/etc/resolver⁩) و هنوز Tor را دور می‌زنند: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1. Strict mode&apos;s firewall blocks them.</source>
        <translation>برخی تنظیمات DNS از بیرون Veldmark می‌آیند (یک VPN یا ⁨/etc/resolver⁩) و هنوز Tor را دور می‌زنند: ⁨%1⁩. دیوار آتش حالت سخت‌گیرانه آن‌ها را مسدود می‌کند.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager (%1) or set its location in Settings.</source>
        <translation>برنامهٔ Tor نصب نیست. آن را با مدیر بستهٔ سیستم (%1) نصب کنید یا محل آن را در «تنظیمات» مشخص کنید.</translation>
    </message>
    <message>
        <source>%1 is already being opened.</source>
        <translation>برنامهٔ %1 هم‌اکنون در حال باز شدن است.</translation>
    </message>
    <message>
        <source>A session is open, and its kill switch doesn&apos;t block traffic: its watcher couldn&apos;t put the rules back. Traffic may leave this computer directly. Restore the network, and connect again.</source>
        <translation>نشستی باز است و کیل‌سوییچ آن ترافیک را مسدود نمی‌کند: ناظرش نتوانست قاعده‌ها را برگرداند. ممکن است ترافیک مستقیماً از این رایانه بیرون برود. شبکه را بازگردانید و دوباره وصل شوید.</translation>
    </message>
    <message>
        <source>The clock is behind: it shows %1, but the file %2 was written on %3. Tor needs a clock that is right to within minutes.</source>
        <translation>ساعت عقب است: ⁨%1⁩ را نشان می‌دهد، اما پروندهٔ ⁨%2⁩ در ⁨%3⁩ نوشته شده است. ساعت برای Tor باید با دقت چند دقیقه درست باشد.</translation>
    </message>
    <message>
        <source>The clock is set from the network. It shows %1.</source>
        <translation>ساعت از شبکه تنظیم می‌شود. ⁨%1⁩ را نشان می‌دهد.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether the clock is right: no time service seems to set it. It shows %1. Tor needs it right to within minutes.</source>
        <translation>معلوم نیست ساعت درست است یا نه: چیزی که آن را از شبکه تنظیم کند دیده نمی‌شود. ⁨%1⁩ را نشان می‌دهد. ساعت برای Tor باید با دقت چند دقیقه درست باشد.</translation>
    </message>
    <message>
        <source>nftables isn&apos;t installed. Veldmark&apos;s firewall needs it.</source>
        <translation>برنامهٔ nftables نصب نیست. دیوار آتش Veldmark آن را لازم دارد.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall, nftables, can be used.</source>
        <translation>دیوار آتش سیستم، یعنی nftables، قابل استفاده است.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall can&apos;t be used: %1</source>
        <translation>دیوار آتش سیستم قابل استفاده نیست: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The running kernel (%1) has no nftables. After an upgrade of the kernel, restart the computer.</source>
        <translation>هستهٔ در حال اجرا (⁨%1⁩) nftables ندارد. پس از ارتقای هسته، رایانه را دوباره راه‌اندازی کنید.</translation>
    </message>
    <message>
        <source>nftables is installed. Only root can tell whether the running kernel can use it.</source>
        <translation>برنامهٔ nftables نصب است. فقط root می‌داند که هستهٔ در حال اجرا می‌تواند از آن استفاده کند یا نه.</translation>
    </message>
    <message>
        <source>nftables is installed, and the kernel has it.</source>
        <translation>برنامهٔ nftables نصب است و هسته هم آن را دارد.</translation>
    </message>
    <message>
        <source>This system has no control groups of version 2, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>این سیستم گروه‌های کنترلی نسخهٔ ۲ (cgroup v2) ندارد؛ پس هیچ برنامه‌ای را نمی‌توان بدون Tor باز کرد و کیل‌سوییچ Tor را فقط از حسابش می‌شناسد. بقیه کار می‌کند.</translation>
    </message>
    <message>
        <source>The kernel (%1) is older than 5.13, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>هسته (⁨%1⁩) از 5.13 قدیمی‌تر است؛ پس هیچ برنامه‌ای را نمی‌توان بدون Tor باز کرد و کیل‌سوییچ Tor را فقط از حسابش می‌شناسد. بقیه کار می‌کند.</translation>
    </message>
    <message>
        <source>Applications can be opened without Tor: control groups of version 2 are there.</source>
        <translation>می‌توان برنامه‌ها را بدون Tor باز کرد: گروه‌های کنترلی نسخهٔ ۲ (cgroup v2) وجود دارند.</translation>
    </message>
    <message>
        <source>No other firewall that Veldmark knows runs. Only root can read the rules themselves.</source>
        <translation>هیچ دیوار آتش دیگری که Veldmark بشناسد در حال اجرا نیست. خود قاعده‌ها را فقط root می‌تواند بخواند.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic that its rules don&apos;t allow, so Tor may not get through: %1.</source>
        <translation>دیوار آتش دیگری در این رایانه جلوی هر ترافیک خروجی را می‌گیرد، مگر آن‌که یکی از قاعده‌هایش اجازه دهد؛ پس شاید Tor نتواند عبور کند: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Other programs set firewall rules here: %1. Veldmark leaves their rules alone. Rules that drop packets can block Tor.</source>
        <translation>برنامه‌های دیگری این‌جا قاعدهٔ دیوار آتش می‌گذارند: ⁨%1⁩. Veldmark به قاعده‌های آن‌ها دست نمی‌زند. قاعده‌هایی که بسته‌ها را دور می‌اندازند می‌توانند Tor را مسدود کنند.</translation>
    </message>
    <message>
        <source>pkexec isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>برنامهٔ pkexec نصب نیست، پس هیچ پنجره‌ای نمی‌تواند گذرواژهٔ مدیر را بپرسد.</translation>
    </message>
    <message>
        <source>polkit isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>برنامهٔ polkit نصب نیست، پس هیچ پنجره‌ای نمی‌تواند گذرواژهٔ مدیر را بپرسد.</translation>
    </message>
    <message>
        <source>There is no desktop here on which a window could ask for the administrator&apos;s password. Use sudo.</source>
        <translation>این‌جا میزکاری نیست که پنجره‌ای در آن گذرواژهٔ مدیر را بپرسد. sudo را به کار ببرید.</translation>
    </message>
    <message>
        <source>No known polkit agent, the program that asks for the password, runs in your session. Use sudo, or start an agent such as lxpolkit.</source>
        <translation>در نشست شما هیچ عامل شناخته‌شدهٔ polkit، یعنی برنامه‌ای که گذرواژه را می‌پرسد، در حال اجرا نیست. sudo را به کار ببرید یا عاملی مانند lxpolkit را شروع کنید.</translation>
    </message>
    <message>
        <source>polkit is installed, and an agent that asks for the password runs in your session.</source>
        <translation>برنامهٔ polkit نصب است و عاملی که گذرواژه را می‌پرسد در نشست شما اجرا می‌شود.</translation>
    </message>
    <message>
        <source>Veldmark runs as root here and asks for no password.</source>
        <translation>برنامهٔ Veldmark این‌جا با حساب root اجرا می‌شود و گذرواژه نمی‌خواهد.</translation>
    </message>
    <message>
        <source>Passwordless mode is set up.</source>
        <translation>حالت بدون گذرواژه راه‌اندازی شده است.</translation>
    </message>
    <message>
        <source>sudo isn&apos;t installed. Passwordless mode needs it.</source>
        <translation>برنامهٔ sudo نصب نیست. حالت بدون گذرواژه آن را لازم دارد.</translation>
    </message>
    <message>
        <source>sudo is installed. Only root can tell whether you may use it.</source>
        <translation>برنامهٔ sudo نصب است. فقط root می‌داند که شما اجازهٔ استفاده از آن را دارید یا نه.</translation>
    </message>
    <message>
        <source>sudo is installed, and you are in the group %1.</source>
        <translation>برنامهٔ sudo نصب است و شما عضو گروه %1 هستید.</translation>
    </message>
    <message>
        <source>The program listens on IPv6. If it takes IPv6 alone, Tor can use the port.</source>
        <translation>این برنامه روی IPv6 گوش می‌دهد. اگر تنها IPv6 را بپذیرد، Tor می‌تواند درگاه را به کار ببرد.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by a program of the account %2.</source>
        <translation>درگاه %1 که Tor لازم دارد در دست برنامه‌ای از حساب %2 است.</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) runs. Veldmark stops it while it is connected and starts it again afterwards.</source>
        <translation>سرویس Tor خود سیستم (%1) اجرا می‌شود. Veldmark تا وقتی وصل است آن را متوقف می‌کند و سپس دوباره شروعش می‌کند.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2 (process %3, account %4).</source>
        <translation>درگاه %1 که Tor لازم دارد در دست %2 است (فرایند %3، حساب %4).</translation>
    </message>
    <message>
        <source>Veldmark&apos;s own Tor holds the ports 9050, 9051 and 293.</source>
        <translation>درگاه‌های 9050، 9051 و 293 در دست Tor خود Veldmark است.</translation>
    </message>
    <message>
        <source>The ports that Tor needs (9050, 9051 and 293) are free.</source>
        <translation>درگاه‌هایی که Tor لازم دارد (9050، 9051 و 293) آزادند.</translation>
    </message>
    <message>
        <source>The location of Tor in the settings, %1, is not an executable program. Veldmark searches the usual places instead.</source>
        <translation>محل Tor در تنظیمات، ⁨%1⁩، برنامه‌ای نیست که بتواند اجرا شود. به جای آن، جاهای معمول جستجو می‌شوند.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed.</source>
        <translation>برنامهٔ Tor نصب نیست.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t start, or isn&apos;t Tor: it prints no version.</source>
        <translation>برنامهٔ ⁨%1⁩ شروع نمی‌شود یا Tor نیست: نسخهٔ خود را نمی‌گوید.</translation>
    </message>
    <message>
        <source>Tor %1 is installed: %2.</source>
        <translation>نسخهٔ ⁨%1⁩ از Tor نصب است: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The program %1 is missing. Veldmark&apos;s helper needs it.</source>
        <translation>برنامهٔ ⁨%1⁩ وجود ندارد. برنامهٔ کمکی Veldmark آن را لازم دارد.</translation>
    </message>
    <message>
        <source>Every program that Veldmark&apos;s helper calls is installed.</source>
        <translation>همهٔ برنامه‌هایی که برنامهٔ کمکی Veldmark فرامی‌خواند نصب‌اند.</translation>
    </message>
    <message>
        <source>The helper is missing. Reinstall Veldmark.</source>
        <translation>برنامهٔ کمکی Veldmark وجود ندارد. Veldmark را دوباره نصب کنید.</translation>
    </message>
    <message>
        <source>Accounts other than root can change Veldmark&apos;s helper, %1, and with it what the administrator&apos;s password runs.</source>
        <translation>حساب‌هایی جز root می‌توانند برنامهٔ کمکی Veldmark (⁨%1⁩) و در نتیجه آنچه را با گذرواژهٔ مدیر اجرا می‌شود تغییر دهند.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper, %1, is not installed: the account %2 can change it, and with it what the administrator&apos;s password runs.</source>
        <translation>برنامهٔ کمکی Veldmark (⁨%1⁩) نصب‌شده نیست: حساب %2 می‌تواند این برنامه و در نتیجه آنچه را با گذرواژهٔ مدیر اجرا می‌شود تغییر دهد.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper is installed, and only root can change it: %1.</source>
        <translation>برنامهٔ کمکی Veldmark نصب است و فقط root می‌تواند آن را تغییر دهد: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The helper of passwordless mode belongs to another version. Set up passwordless mode again in Settings, General.</source>
        <translation>برنامهٔ کمکی حالت بدون گذرواژه از نسخهٔ دیگری است. حالت بدون گذرواژه را در «تنظیمات»، «عمومی» دوباره راه‌اندازی کنید.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridges need bridge programs where Tor is blocked, and none was found.</source>
        <translation>پل‌ها خاموش‌اند. جایی که Tor مسدود باشد پل‌ها به برنامه‌های پل نیاز دارند و هیچ برنامهٔ پلی پیدا نشد.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridge programs were found: %1.</source>
        <translation>پل‌ها خاموش‌اند. برنامه‌های پل پیدا شدند: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The chosen bridges can&apos;t be used. %1</source>
        <translation>پل‌های برگزیده قابل استفاده نیستند. %1</translation>
    </message>
    <message>
        <source>The chosen bridges (%1) can be used: %2.</source>
        <translation>پل‌های برگزیده (%1) قابل استفاده‌اند: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 manages DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>مدیریت DNS با ⁨%1⁩ است. Veldmark تا وقتی وصل است آن را تغییر می‌دهد و سپس به حالت پیشین برمی‌گرداند.</translation>
    </message>
    <message>
        <source>Veldmark wrote %1. It points DNS at Tor.</source>
        <translation>پروندهٔ ⁨%1⁩ از Veldmark است. در آن، Tor سرور نام است.</translation>
    </message>
    <message>
        <source>The file %1 is missing, so DNS may not work at all.</source>
        <translation>پروندهٔ ⁨%1⁩ وجود ندارد، پس شاید DNS اصلاً کار نکند.</translation>
    </message>
    <message>
        <source>A resolver on this computer answers DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>به پرس‌وجوهای DNS یک برنامهٔ نام‌یاب در این رایانه پاسخ می‌دهد. Veldmark تا وقتی وصل است آن را تغییر می‌دهد و سپس به حالت پیشین برمی‌گرداند.</translation>
    </message>
    <message>
        <source>No earlier session is left open.</source>
        <translation>هیچ نشست پیشینی باز نمانده است.</translation>
    </message>
    <message>
        <source>A Tor of an earlier session still runs (process %1).</source>
        <translation>یک Tor از نشستی پیشین هنوز اجرا می‌شود (فرایند %1).</translation>
    </message>
    <message>
        <source>A session is open: the network is set up for Tor, and Tor runs.</source>
        <translation>نشستی باز است: شبکه برای Tor تنظیم است و Tor اجرا می‌شود.</translation>
    </message>
    <message>
        <source>The network is set up for Tor. It isn&apos;t known whether Tor still runs.</source>
        <translation>شبکه برای Tor تنظیم است. این‌جا معلوم نیست Tor هنوز اجرا می‌شود یا نه.</translation>
    </message>
    <message>
        <source>The network is still set up for Tor from an earlier session, and no Tor runs. Connect again, or restore the network.</source>
        <translation>شبکه از نشستی پیشین هنوز برای Tor تنظیم است و Tor در حال اجرا نیست. دوباره وصل شوید یا شبکه را بازگردانید.</translation>
    </message>
    <message>
        <source>A session is open, and it isn&apos;t known whether its kill switch blocks traffic: no watcher watches the rules. Restore the network, and connect again.</source>
        <translation>نشستی باز است و معلوم نیست کیل‌سوییچ آن ترافیک را مسدود می‌کند یا نه: قاعده‌ها ناظری ندارند. شبکه را بازگردانید و دوباره وصل شوید.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>لغو شد.</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 مگابایت</translation>
    </message>
    <message>
        <source>%1 of %2 MB (%3%)</source>
        <translation>%1 از %2 مگابایت (%3٪)</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this computer. While connected, Veldmark stops the system&apos;s own Tor service.</source>
        <translation>برنامهٔ Veldmark برای مدیریت مسیریابی Tor در این رایانه به دسترسی مدیر نیاز دارد. تا وقتی Veldmark وصل است، سرویس Tor خود سیستم را متوقف نگه می‌دارد.</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this Mac.</source>
        <translation>برنامهٔ Veldmark برای مدیریت مسیریابی Tor در این مک به دسترسی مدیر نیاز دارد.</translation>
    </message>
    <message>
        <source>The archive contains %1: %2</source>
        <translation>در بایگانی %1 هست: ⁨%2⁩</translation>
    </message>
    <message>
        <source>a link that leads elsewhere</source>
        <translation>پیوندی که به جای دیگری می‌رود</translation>
    </message>
    <message>
        <source>a hard link</source>
        <translation>پیوند سخت</translation>
    </message>
    <message>
        <source>an entry that is neither a file nor a folder</source>
        <translation>چیزی که نه پرونده است نه پوشه</translation>
    </message>
    <message>
        <source>a path that leads elsewhere</source>
        <translation>مسیری که به جای دیگری می‌رود</translation>
    </message>
    <message>
        <source>The file is empty or not an archive.</source>
        <translation>بایگانی خالی است یا اصلاً بایگانی نیست.</translation>
    </message>
    <message>
        <source>The archive&apos;s list of files is ambiguous.</source>
        <translation>فهرست پرونده‌های بایگانی ابهام دارد.</translation>
    </message>
    <message>
        <source>The archive contains too many files.</source>
        <translation>شمار پرونده‌های بایگانی بیش از اندازه است.</translation>
    </message>
    <message>
        <source>The archive&apos;s content is too large.</source>
        <translation>محتوای بایگانی بیش از اندازه بزرگ است.</translation>
    </message>
    <message>
        <source>The archive&apos;s content could not be listed.</source>
        <translation>گرفتن فهرست محتوای بایگانی ممکن نشد.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make the folder %1: %2.</source>
        <translation>ساختن پوشهٔ ⁨%1⁩ ممکن نشد: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1: %2.</source>
        <translation>باز کردن ⁨%1⁩ ممکن نشد: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make a folder beside %1: %2.</source>
        <translation>ساختن پوشه‌ای کنار ⁨%1⁩ ممکن نشد: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2.</source>
        <translation>نوشتن ⁨%1⁩ ممکن نشد: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 didn&apos;t end within %2 minutes.</source>
        <translation>برنامهٔ %1 در %2 دقیقه تمام نشد.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load the Tor Browser signing key. %1</source>
        <translation>بار کردن کلید امضای Tor Browser ممکن نشد. %1</translation>
    </message>
    <message>
        <source>The server sent more than %1 can be.</source>
        <translation>آنچه سرور فرستاد بزرگ‌تر از آن است که %1 باشد.</translation>
    </message>
    <message>
        <source>the version index</source>
        <translation>فهرست نسخه‌ها</translation>
    </message>
    <message>
        <source>the bridge programs</source>
        <translation>برنامه‌های پل</translation>
    </message>
    <message>
        <source>signature</source>
        <translation>امضا</translation>
    </message>
    <message>
        <source>signing key</source>
        <translation>کلید امضا</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>نصب…</translation>
    </message>
    <message>
        <source>No applications are installed.</source>
        <translation>هیچ برنامه‌ای نصب نیست.</translation>
    </message>
    <message>
        <source>(not in the menu)</source>
        <translation>(در منو نیست)</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>پروندهٔ «⁨%1⁩» وجود ندارد.</translation>
    </message>
    <message>
        <source>There is no application &quot;%1&quot;; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>برنامهٔ «⁨%1⁩» وجود ندارد؛ «veldmarkctl apps» فهرست برنامه‌ها را نشان می‌دهد.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be any of: %2. Give the path.</source>
        <translation>منظور از «⁨%1⁩» می‌تواند هر یک از این‌ها باشد: ⁨%2⁩. مسیر را بدهید.</translation>
    </message>
    <message>
        <source>%1 needs a key: veldmarkctl %1 KEY.</source>
        <translation>دستور %1 یک کلید لازم دارد: veldmarkctl %1 KEY.</translation>
    </message>
    <message>
        <source>%1 needs a key and a value: veldmarkctl %1 KEY VALUE.</source>
        <translation>دستور %1 یک کلید و یک مقدار لازم دارد: veldmarkctl %1 KEY VALUE.</translation>
    </message>
    <message>
        <source>A command is missing. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>دستوری داده نشده است. «veldmarkctl help» فهرست دستورها را نشان می‌دهد.</translation>
    </message>
    <message>
        <source>Unknown command %1. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>دستور %1 ناشناخته است. «veldmarkctl help» فهرست دستورها را نشان می‌دهد.</translation>
    </message>
    <message>
        <source>%1 has no option %2.</source>
        <translation>دستور %1 گزینهٔ ⁨%2⁩ ندارد.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t take %2.</source>
        <translation>دستور %1 مقدار ⁨%2⁩ را نمی‌پذیرد.</translation>
    </message>
    <message>
        <source>usage: veldmarkctl COMMAND</source>
        <translation>کاربرد: veldmarkctl COMMAND</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage,
3 Veldmark is not running, 4 Veldmark is already running.</source>
        <translation>وضعیت خروج: 0 انجام شد، 1 ناموفق (علت در خطای استاندارد)، 2 کاربرد نادرست،
3 برنامهٔ Veldmark در حال اجرا نیست، 4 برنامهٔ Veldmark از پیش در حال اجراست.</translation>
    </message>
    <message>
        <source>line %1 is not a bridge line: %2</source>
        <translation>خط %1 خط پل نیست: ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1 too many, from line %2 on; at most %3 can be used</source>
        <translation>%1 پل اضافی است، از خط %2 به بعد؛ حداکثر %3 پل را می‌توان به کار برد</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>برنامه‌ها</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>پیدا نشد</translation>
    </message>
    <message>
        <source>doesn&apos;t say which transports it serves</source>
        <translation>نمی‌گوید کدام حامل‌ها را ارائه می‌کند</translation>
    </message>
    <message>
        <source>serves %1</source>
        <translation>ارائه می‌کند: %1</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>پل‌های داخلی</translation>
    </message>
    <message>
        <source>Built-in bridges, from %1</source>
        <translation>پل‌های داخلی، از ⁨%1⁩</translation>
    </message>
    <message>
        <source>none; get some with: veldmarkctl download-transports</source>
        <translation>هیچ؛ برای گرفتن آن‌ها: veldmarkctl download-transports</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>امضا تأیید شد</translation>
    </message>
    <message>
        <source>signature not verified</source>
        <translation>امضا تأیید نشده</translation>
    </message>
    <message>
        <source>not downloaded</source>
        <translation>بارگیری نشده</translation>
    </message>
    <message>
        <source>Your own bridges</source>
        <translation>پل‌های خودتان</translation>
    </message>
    <message>
        <source>%1 valid</source>
        <translation>%1 معتبر</translation>
    </message>
    <message>
        <source>Installed Tor Expert Bundle %1, signature verified.</source>
        <translation>بستهٔ Tor Expert Bundle نسخهٔ %1 نصب شد، امضا تأیید شد.</translation>
    </message>
    <message>
        <source>Veldmark isn&apos;t running. Start it with: veldmarkctl run --connect</source>
        <translation>برنامهٔ Veldmark در حال اجرا نیست. آن را شروع کنید: veldmarkctl run --connect</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;. Fields: %2.</source>
        <translation>فیلد «%1» وجود ندارد. فیلدها: %2.</translation>
    </message>
    <message>
        <source>list the commands</source>
        <translation>نمایش فهرست دستورها</translation>
    </message>
    <message>
        <source>good</source>
        <translation>درست</translation>
    </message>
    <message>
        <source>note</source>
        <translation>نکته</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>نامعلوم</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>مشکل</translation>
    </message>
    <message>
        <source>A connect can work.</source>
        <translation>می‌توان وصل شد.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work yet.</source>
        <translation>هنوز نمی‌توان وصل شد.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work until each &quot;problem&quot; is fixed.</source>
        <translation>تا هر «مشکل» برطرف نشود، نمی‌توان وصل شد.</translation>
    </message>
    <message>
        <source>proxy: apps that ignore the system proxy are not covered</source>
        <translation>پروکسی: برنامه‌هایی که پروکسی سیستم را نادیده می‌گیرند زیر پوشش نیستند</translation>
    </message>
    <message>
        <source>strict: only Tor&apos;s traffic leaves</source>
        <translation>سخت‌گیرانه: فقط ترافیک Tor بیرون می‌رود</translation>
    </message>
    <message>
        <source>strict</source>
        <translation>سخت‌گیرانه</translation>
    </message>
    <message>
        <source>blocks traffic, since %1</source>
        <translation>ترافیک را مسدود می‌کند، از ⁨%1⁩</translation>
    </message>
    <message>
        <source>blocks traffic; put back at %1 after another program had removed it</source>
        <translation>ترافیک را مسدود می‌کند؛ برنامهٔ دیگری آن را برداشته بود و در ⁨%1⁩ برگردانده شد</translation>
    </message>
    <message>
        <source>NOT BLOCKING since %1: traffic may leave this computer directly</source>
        <translation>ترافیک را مسدود نمی‌کند، از ⁨%1⁩: ممکن است ترافیک مستقیماً از این رایانه بیرون برود</translation>
    </message>
    <message>
        <source>isn&apos;t known to block traffic, since %1</source>
        <translation>معلوم نیست ترافیک را مسدود کند، از ⁨%1⁩</translation>
    </message>
    <message>
        <source>not checked yet</source>
        <translation>هنوز بررسی نشده</translation>
    </message>
    <message>
        <source>the check service didn&apos;t answer through Tor</source>
        <translation>سرویس بررسی از راه Tor پاسخ نداد</translation>
    </message>
    <message>
        <source>%1, a Tor exit</source>
        <translation>⁨%1⁩، یک خروجی Tor</translation>
    </message>
    <message>
        <source>%1, NOT a Tor exit</source>
        <translation>⁨%1⁩، توجه: این خروجی Tor نیست</translation>
    </message>
    <message>
        <source>open; it shows the address %1</source>
        <translation>باز؛ این نشانی را نشان می‌دهد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>مسدود</translation>
    </message>
    <message>
        <source>no answer, but it isn&apos;t known whether the kill switch blocks it</source>
        <translation>بی‌پاسخ، اما معلوم نیست کیل‌سوییچ آن را مسدود می‌کند یا نه</translation>
    </message>
    <message>
        <source>no answer, but proxy mode doesn&apos;t block it</source>
        <translation>بی‌پاسخ، اما حالت پروکسی آن را مسدود نمی‌کند</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>در حال بررسی…</translation>
    </message>
    <message>
        <source>inconclusive</source>
        <translation>معلوم نشد</translation>
    </message>
    <message>
        <source>can go around Tor via: %1</source>
        <translation>از این راه می‌تواند Tor را دور بزند: ⁨%1⁩</translation>
    </message>
    <message>
        <source>a test lookup went through Tor</source>
        <translation>یک پرس‌وجوی آزمایشی از Tor گذشت</translation>
    </message>
    <message>
        <source>testing…</source>
        <translation>در حال آزمون…</translation>
    </message>
    <message>
        <source>settings point at Tor, but a test lookup couldn&apos;t be confirmed</source>
        <translation>تنظیمات به Tor اشاره دارند، اما تأیید یک پرس‌وجوی آزمایشی ممکن نشد</translation>
    </message>
    <message>
        <source>not tested yet</source>
        <translation>هنوز آزموده نشده</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>حالت</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>خروجی</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>تأخیر</translation>
    </message>
    <message>
        <source>%1 ms through Tor</source>
        <translation>%1 میلی‌ثانیه از راه Tor</translation>
    </message>
    <message>
        <source>Direct path</source>
        <translation>مسیر مستقیم</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>ترافیک</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>دریافت: %1، ارسال: %2</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>پل‌ها</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>پیشرفت</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>چه باید کرد</translation>
    </message>
    <message>
        <source>nothing; veldmarkctl restore would end that session</source>
        <translation>هیچ؛ اجرای veldmarkctl restore آن نشست را پایان می‌دهد</translation>
    </message>
    <message>
        <source>Kill switch</source>
        <translation>کیل‌سوییچ</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>علت</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>مشکل</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>پایانه</translation>
    </message>
    <message>
        <source>No circuits yet.</source>
        <translation>هنوز مداری نیست.</translation>
    </message>
    <message>
        <source>Ready. Connect with: veldmarkctl connect</source>
        <translation>آماده. برای اتصال: veldmarkctl connect</translation>
    </message>
    <message>
        <source>Still restoring your network, one moment…</source>
        <translation>شبکهٔ شما هنوز دارد بازگردانده می‌شود، کمی صبر کنید…</translation>
    </message>
    <message>
        <source>Stopping as soon as Tor has been started…</source>
        <translation>به محض آن‌که Tor شروع شود، کار پایان می‌یابد…</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Restore it with: %1</source>
        <translation>شبکه هنوز برای Tor تنظیم است. برای بازگرداندن آن: %1</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Press Ctrl-C to try again.</source>
        <translation>شبکه هنوز برای Tor تنظیم است. برای تلاش دوباره Ctrl-C را بزنید.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>انجام شد</translation>
    </message>
    <message>
        <source>Press Ctrl-C to disconnect.</source>
        <translation>برای قطع اتصال Ctrl-C را بزنید.</translation>
    </message>
    <message>
        <source>A command to Tor can&apos;t contain a line break or a NUL.</source>
        <translation>دستور به Tor نمی‌تواند شکست خط یا NUL داشته باشد.</translation>
    </message>
    <message>
        <source>Tor sent a line of more than 1 MiB on its control port.</source>
        <translation>برنامهٔ Tor روی درگاه کنترل خطی بزرگ‌تر از ۱ مبی‌بایت فرستاد.</translation>
    </message>
    <message>
        <source>Tor sent a reply of more than 64 MiB on its control port.</source>
        <translation>برنامهٔ Tor روی درگاه کنترل پاسخی بزرگ‌تر از ۶۴ مبی‌بایت فرستاد.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>مقدار «⁨%1⁩» نه true است و نه false.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a JSON array of strings.</source>
        <translation>مقدار «⁨%1⁩» آرایهٔ JSON از رشته‌ها نیست.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a bridge choice: off, obfs4, snowflake, meek or custom.</source>
        <translation>مقدار «⁨%1⁩» انتخاب پل نیست: off، obfs4، snowflake، meek یا custom.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;. Settings: %2.</source>
        <translation>تنظیم «⁨%1⁩» وجود ندارد. تنظیمات: %2.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes. (%1)</source>
        <translation>اتصال Tor در پنج دقیقه کامل نشد. (⁨%1⁩)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an exit country: two lower-case letters such as &quot;de&quot;, or nothing for any.</source>
        <translation>مقدار «⁨%1⁩» کشور خروجی نیست: دو حرف کوچک مانند «de»، یا خالی برای هر کشور.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an application: an absolute path that ends in &quot;%2&quot;.</source>
        <translation>مقدار «⁨%1⁩» برنامه نیست: مسیر مطلقی که به «⁨%2⁩» پایان یابد.</translation>
    </message>
    <message>
        <source>strict mode with the kill switch, else proxy mode</source>
        <translation>حالت سخت‌گیرانه با کیل‌سوییچ، وگرنه حالت پروکسی</translation>
    </message>
    <message>
        <source>strict mode lets the local network through</source>
        <translation>حالت سخت‌گیرانه به شبکهٔ محلی اجازه می‌دهد</translation>
    </message>
    <message>
        <source>two lower-case letters, or nothing for any</source>
        <translation>دو حرف کوچک، یا خالی برای هر کشور</translation>
    </message>
    <message>
        <source>the path of the tor to use, or nothing to search for tor</source>
        <translation>مسیر tor مورد استفاده، یا خالی تا جستجو شود</translation>
    </message>
    <message>
        <source>which bridges</source>
        <translation>کدام پل‌ها</translation>
    </message>
    <message>
        <source>your own bridge lines, as typed</source>
        <translation>خط‌های پل خودتان، همان‌طور که نوشته‌اید</translation>
    </message>
    <message>
        <source>paths of applications that may be opened without Tor</source>
        <translation>مسیر برنامه‌هایی که می‌توان آن‌ها را بدون Tor باز کرد</translation>
    </message>
    <message>
        <source>connect when Veldmark starts</source>
        <translation>اتصال هنگام شروع Veldmark</translation>
    </message>
    <message>
        <source>test bridges before connecting, look for a faster path afterwards</source>
        <translation>آزمون پل‌ها پیش از اتصال، جستجوی مسیر سریع‌تر پس از آن</translation>
    </message>
    <message>
        <source>command-line tools go through Tor while connected</source>
        <translation>گذر ابزارهای خط فرمان از Tor تا وقتی وصل است</translation>
    </message>
    <message>
        <source>with your package manager</source>
        <translation>با مدیر بستهٔ سیستم</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>شروع…</translation>
    </message>
    <message>
        <source>&quot;set&quot; needs a &quot;key&quot; and a &quot;value&quot;, both strings.</source>
        <translation>دستور «set» یک «key» و یک «value» لازم دارد که هر دو رشته باشند.</translation>
    </message>
    <message>
        <source>Already connected or connecting; &quot;veldmarkctl status&quot; says more.</source>
        <translation>از پیش وصل یا در حال اتصال است؛ «veldmarkctl status» بیشتر می‌گوید.</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>اکنون نه: ⁨%1⁩</translation>
    </message>
    <message>
        <source>A check is already running.</source>
        <translation>یک بررسی در جریان است.</translation>
    </message>
    <message>
        <source>There is no circuit &quot;%1&quot;.</source>
        <translation>مدار «%1» وجود ندارد.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t close circuit %1.</source>
        <translation>مدار %1 را Tor نبست.</translation>
    </message>
    <message>
        <source>&quot;launch&quot; needs an &quot;app&quot;, an absolute path.</source>
        <translation>دستور «launch» یک «app» لازم دارد که مسیر مطلق باشد.</translation>
    </message>
    <message>
        <source>Veldmark stopped before it had answered.</source>
        <translation>برنامهٔ Veldmark پیش از پاسخ دادن متوقف شد.</translation>
    </message>
    <message>
        <source>Veldmark is already running (process %1).</source>
        <translation>برنامهٔ Veldmark از پیش در حال اجراست (فرایند %1).</translation>
    </message>
    <message>
        <source>%1 must be a folder of your own with mode 0700: the control socket goes there.</source>
        <translation>پوشهٔ ⁨%1⁩ باید از خود شما و با مجوز 0700 باشد: سوکت کنترل در آن جا می‌گیرد.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1/lock.</source>
        <translation>نوشتن ⁨%1/lock⁩ ممکن نشد.</translation>
    </message>
    <message>
        <source>Couldn&apos;t listen on %1: %2.</source>
        <translation>گوش دادن روی ⁨%1⁩ ممکن نشد: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>A command is a JSON object on one line.</source>
        <translation>هر دستور یک شیء JSON در یک خط است.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>دستور «⁨%1⁩» ناشناخته است.</translation>
    </message>
    <message>
        <source>Not connected.</source>
        <translation>وصل نیست.</translation>
    </message>
    <message>
        <source>The session has ended: %1</source>
        <translation>نشست پایان یافت: ⁨%1⁩</translation>
    </message>
    <message>
        <source>as JSON</source>
        <translation>به‌صورت JSON</translation>
    </message>
    <message>
        <source>connect at once</source>
        <translation>اتصال بی‌درنگ</translation>
    </message>
    <message>
        <source>run Veldmark here, in the foreground; Ctrl-C disconnects</source>
        <translation>اجرای Veldmark همین‌جا، در پیش‌زمینه؛ Ctrl-C اتصال را قطع می‌کند</translation>
    </message>
    <message>
        <source>go on until Ctrl-C</source>
        <translation>ادامه تا Ctrl-C</translation>
    </message>
    <message>
        <source>print the connection&apos;s state; --watch goes on until Ctrl-C</source>
        <translation>وضعیت کنونی؛ گزینهٔ ⁨--watch⁩ تا Ctrl-C ادامه می‌دهد</translation>
    </message>
    <message>
        <source>connect the running instance to Tor</source>
        <translation>اتصال نمونهٔ در حال اجرا به Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor</source>
        <translation>بازگرداندن شبکه و توقف Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor, also after a crash</source>
        <translation>بازگرداندن شبکه و توقف Tor، پس از فروپاشی برنامه نیز</translation>
    </message>
    <message>
        <source>check the exit address, the direct path and DNS now</source>
        <translation>بررسی نشانی خروجی، مسیر مستقیم و DNS، همین حالا</translation>
    </message>
    <message>
        <source>point the system&apos;s DNS settings at Tor again</source>
        <translation>برگرداندن تنظیمات DNS سیستم به سوی Tor</translation>
    </message>
    <message>
        <source>Tor&apos;s circuits and the sites on them</source>
        <translation>مدارهای Tor و سایت‌های روی آن‌ها</translation>
    </message>
    <message>
        <source>close a circuit; its sites get a fresh path on their next request</source>
        <translation>بستن یک مدار؛ سایت‌های آن در درخواست بعدی مسیر تازه‌ای می‌گیرند</translation>
    </message>
    <message>
        <source>close-circuit needs a circuit&apos;s number; &quot;veldmarkctl circuits&quot; shows them.</source>
        <translation>دستور close-circuit شمارهٔ یک مدار را لازم دارد؛ «veldmarkctl circuits» آن‌ها را نشان می‌دهد.</translation>
    </message>
    <message>
        <source>new circuits for everything</source>
        <translation>مدارهای جدید برای همه چیز</translation>
    </message>
    <message>
        <source>warnings and errors only</source>
        <translation>فقط هشدارها و خطاها</translation>
    </message>
    <message>
        <source>Tor&apos;s log; --problems shows warnings and errors only</source>
        <translation>گزارش Tor؛ گزینهٔ ⁨--problems⁩ فقط هشدارها و خطاها را نشان می‌دهد</translation>
    </message>
    <message>
        <source>the bridge programs and built-in bridges that were found, and
which of your own bridge lines are not valid</source>
        <translation>برنامه‌های پل و پل‌های داخلی پیداشده،
و خط‌های نامعتبر در پل‌های خودتان</translation>
    </message>
    <message>
        <source>fetch the Tor Project&apos;s bridge programs and built-in bridges</source>
        <translation>گرفتن برنامه‌های پل و پل‌های داخلی از پروژهٔ Tor</translation>
    </message>
    <message>
        <source>the installed applications; * marks those in the setting &quot;bypassApps&quot;</source>
        <translation>برنامه‌های نصب‌شده؛ * نشان برنامه‌هایی است که در تنظیم «bypassApps» هستند</translation>
    </message>
    <message>
        <source>open an application without Tor, with your own address; needs strict mode.
APP is a name from &quot;apps&quot;, the file name of its desktop entry, or the path
of an entry or a program. Running copies are asked to quit first</source>
        <translation>باز کردن برنامه بدون Tor، با نشانی خودتان؛ حالت سخت‌گیرانه لازم دارد.
مقدار APP نامی از «apps»، نام پروندهٔ مدخل میزکار برنامه، یا مسیر
یک مدخل یا برنامه است. ابتدا از نمونه‌های در حال اجرا خواسته می‌شود بسته شوند</translation>
    </message>
    <message>
        <source>launch needs an application; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>دستور launch یک برنامه لازم دارد؛ «veldmarkctl apps» فهرست آن‌ها را نشان می‌دهد.</translation>
    </message>
    <message>
        <source>check what a connect needs on this computer, what blocks it and how to fix
it. Changes nothing; the exit status is 0 when a connect can work</source>
        <translation>بررسی این رایانه: اتصال چه لازم دارد، چه چیزی مانع آن است و آن مانع چگونه
برطرف می‌شود. چیزی را تغییر نمی‌دهد؛ اگر بتوان وصل شد با 0 پایان می‌یابد</translation>
    </message>
    <message>
        <source>print a field of &quot;status --json&quot;</source>
        <translation>چاپ یک فیلد از «status --json»</translation>
    </message>
    <message>
        <source>change a setting; most of them only while not connected</source>
        <translation>تغییر یک تنظیم؛ بیشتر تنظیم‌ها فقط وقتی اتصال قطع است</translation>
    </message>
    <message>
        <source>Can&apos;t read Tor&apos;s log</source>
        <translation>نمی‌توان گزارش Tor را خواند</translation>
    </message>
    <message>
        <source>The log files in %1 aren&apos;t readable by your account. Reconnect once with this version of Veldmark to fix their permissions.</source>
        <translation>حساب شما نمی‌تواند پرونده‌های گزارش در ⁨%1⁩ را بخواند. یک بار با این نسخهٔ Veldmark دوباره وصل شوید تا مجوزهایشان درست شود.</translation>
    </message>
    <message>
        <source>No log yet</source>
        <translation>هنوز گزارشی نیست</translation>
    </message>
    <message>
        <source>Connect, and Tor&apos;s messages appear here as it starts. If Tor fails to start, the reason shows up here.</source>
        <translation>وصل شوید تا پیام‌های Tor هنگام شروع این‌جا نشان داده شوند. اگر Tor شروع نشود، علت آن این‌جا می‌آید.</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>چیزی پیدا نشد</translation>
    </message>
    <message>
        <source>No lines contain “%1”</source>
        <translation>هیچ خطی شامل «⁨%1⁩» نیست</translation>
    </message>
    <message>
        <source>No warnings or errors. Tor is happy.</source>
        <translation>هشدار یا خطایی نیست. حال Tor خوب است.</translation>
    </message>
    <message>
        <source>The bridge program %1 reports: %2</source>
        <translation>پیام برنامهٔ پل %1: ⁨%2⁩</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly.</source>
        <translation>برنامهٔ پل %1 ناگهان پایان یافت.</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending.</source>
        <translation>برنامهٔ پل %1 پی‌درپی پایان می‌یابد.</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly (exit status %2).</source>
        <translation>برنامهٔ پل %1 ناگهان پایان یافت (وضعیت خروج %2).</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending (exit status %2).</source>
        <translation>برنامهٔ پل %1 پی‌درپی پایان می‌یابد (وضعیت خروج %2).</translation>
    </message>
    <message>
        <source>It said: &quot;%1&quot;.</source>
        <translation>پیام آن: «⁨%1⁩».</translation>
    </message>
    <message>
        <source>The program is quitting.</source>
        <translation>برنامه در حال خروج است.</translation>
    </message>
    <message>
        <source>Veldmark replaces the running strict session. The new session may protect you less.</source>
        <translation>برنامهٔ Veldmark نشست سخت‌گیرانهٔ در حال اجرا را جایگزین می‌کند. نشست تازه شاید کمتر از شما محافظت کند.</translation>
    </message>
    <message>
        <source>Veldmark wants to run %1 as a part of Tor. No package of the system installed it. Its SHA-256 is %2.</source>
        <translation>برنامهٔ Veldmark می‌خواهد ⁨%1⁩ را به‌عنوان بخشی از Tor اجرا کند. هیچ‌یک از بسته‌های سیستم آن را نیاورده است. SHA-256 آن این است: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be created: %2.</source>
        <translation>نمی‌توان ⁨%1⁩ را ایجاد کرد: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed: %2.</source>
        <translation>نمی‌توان ⁨%1⁩ را برداشت: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>نمی‌توان ⁨%1⁩ را خواند: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2.</source>
        <translation>نمی‌توان ⁨%1⁩ را نوشت: ⁨%2⁩.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>مسیر ⁨%1⁩ پرونده نیست.</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>پروندهٔ ⁨%1⁩ فقط‌خواندنی است.</translation>
    </message>
    <message>
        <source>%1 was changed by another program just now.</source>
        <translation>پروندهٔ ⁨%1⁩ را همین حالا برنامهٔ دیگری تغییر داد.</translation>
    </message>
    <message>
        <source>%1 belongs to another user or group.</source>
        <translation>پروندهٔ ⁨%1⁩ از آنِ کاربر یا گروه دیگری است.</translation>
    </message>
    <message>
        <source>A bridge line is not valid.</source>
        <translation>یک خط پل معتبر نیست.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your network settings.</source>
        <translation>ثبتی از تنظیمات پیشین شبکه آسیب دیده بود (⁨%1⁩). شبکه دوباره باز است؛ تنظیمات شبکهٔ خود را بررسی کنید.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your proxy settings.</source>
        <translation>ثبتی از تنظیمات پیشین شبکه آسیب دیده بود (⁨%1⁩). شبکه دوباره باز است؛ تنظیمات پروکسی خود را بررسی کنید.</translation>
    </message>
    <message>
        <source>An administrator password is needed to approve %1.</source>
        <translation>برای تأیید ⁨%1⁩ گذرواژهٔ مدیر لازم است.</translation>
    </message>
    <message>
        <source>An administrator password is needed to change the running strict session.</source>
        <translation>برای تغییر نشست سخت‌گیرانهٔ در حال اجرا گذرواژهٔ مدیر لازم است.</translation>
    </message>
    <message>
        <source>An administrator password is needed to open an application without Tor.</source>
        <translation>برای باز کردن برنامه بدون Tor گذرواژهٔ مدیر لازم است.</translation>
    </message>
    <message>
        <source>An administrator password is needed to set this up.</source>
        <translation>برای این راه‌اندازی گذرواژهٔ مدیر لازم است.</translation>
    </message>
    <message>
        <source>Another program (process %1) has started a session meanwhile. That session was left alone.</source>
        <translation>در این میان برنامهٔ دیگری (فرایند %1) نشستی آغاز کرده است. به آن دست زده نشد.</translation>
    </message>
    <message>
        <source>Another run of the helper is still working. Try again in a moment.</source>
        <translation>اجرای دیگری از برنامهٔ کمکی هنوز در کار است. کمی بعد دوباره امتحان کنید.</translation>
    </message>
    <message>
        <source>Applications are not opened as root.</source>
        <translation>برنامه‌ها با حساب root باز نمی‌شوند.</translation>
    </message>
    <message>
        <source>The helper opens applications only for the user who asks.</source>
        <translation>برنامه‌ها را فقط برای کاربری که درخواست می‌کند می‌توان باز کرد.</translation>
    </message>
    <message>
        <source>Applications cannot be opened without Tor on this system.</source>
        <translation>در این سیستم نمی‌توان برنامه‌ها را بدون Tor باز کرد.</translation>
    </message>
    <message>
        <source>More than %1 bridges were given.</source>
        <translation>بیش از %1 پل داده شد.</translation>
    </message>
    <message>
        <source>Passwordless mode can be set up only for the user who asks.</source>
        <translation>حالت بدون گذرواژه را فقط برای کاربری که درخواست می‌کند می‌توان راه‌اندازی کرد.</translation>
    </message>
    <message>
        <source>Another program is changing the firewall. Try again in a moment.</source>
        <translation>برنامهٔ دیگری در حال تغییر دیوار آتش است. کمی بعد دوباره امتحان کنید.</translation>
    </message>
    <message>
        <source>The DNS servers of systemd-resolved cannot be changed.</source>
        <translation>نمی‌توان سرورهای DNS در systemd-resolved را تغییر داد.</translation>
    </message>
    <message>
        <source>The DNS settings cannot be changed.</source>
        <translation>نمی‌توان تنظیمات DNS را تغییر داد.</translation>
    </message>
    <message>
        <source>The DNS settings could not be put back.</source>
        <translation>برگرداندن تنظیمات DNS ممکن نشد.</translation>
    </message>
    <message>
        <source>The account %1 cannot be created.</source>
        <translation>نمی‌توان حساب %1 را ایجاد کرد.</translation>
    </message>
    <message>
        <source>The account %1 has no valid user id.</source>
        <translation>حساب %1 شناسهٔ کاربری معتبر ندارد.</translation>
    </message>
    <message>
        <source>The account %1 must be neither root&apos;s nor the caller&apos;s.</source>
        <translation>حساب %1 نباید حساب ⁨root⁩ یا حساب کاربری باشد که درخواست می‌کند.</translation>
    </message>
    <message>
        <source>The application could not be started.</source>
        <translation>شروع برنامه ممکن نشد.</translation>
    </message>
    <message>
        <source>The caller&apos;s user id is not a number.</source>
        <translation>شناسهٔ کاربری فراخواننده عدد نیست.</translation>
    </message>
    <message>
        <source>The control group for Tor cannot be made.</source>
        <translation>ساختن گروه کنترلی Tor ممکن نیست.</translation>
    </message>
    <message>
        <source>The control group of the applications without Tor could not be removed.</source>
        <translation>برداشتن گروه کنترلی برنامه‌های بدون Tor ممکن نشد.</translation>
    </message>
    <message>
        <source>The copy of the program cannot be put into %1.</source>
        <translation>نمی‌توان رونوشت برنامه را در ⁨%1⁩ گذاشت.</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings cannot be changed.</source>
        <translation>نمی‌توان تنظیمات پروکسی میزکار را تغییر داد.</translation>
    </message>
    <message>
        <source>The exit country is not a two-letter code.</source>
        <translation>کشور خروجی کد دوحرفی نیست.</translation>
    </message>
    <message>
        <source>The file %1 cannot be made.</source>
        <translation>نمی‌توان پروندهٔ ⁨%1⁩ را ساخت.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>نمی‌توان پروندهٔ ⁨%1⁩ را خواند.</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed.</source>
        <translation>نمی‌توان پروندهٔ ⁨%1⁩ را برداشت.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>نمی‌توان پروندهٔ ⁨%1⁩ را نوشت.</translation>
    </message>
    <message>
        <source>The file %1 could not be put back.</source>
        <translation>برگرداندن پروندهٔ ⁨%1⁩ ممکن نشد.</translation>
    </message>
    <message>
        <source>The files in %1 cannot be removed.</source>
        <translation>نمی‌توان پرونده‌های ⁨%1⁩ را برداشت.</translation>
    </message>
    <message>
        <source>The firewall rules cannot be read, so nothing was done.</source>
        <translation>نمی‌توان قاعده‌های دیوار آتش را خواند، پس کاری انجام نشد.</translation>
    </message>
    <message>
        <source>The firewall cannot be switched on (%1).</source>
        <translation>نمی‌توان دیوار آتش را روشن کرد (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The firewall cannot end the earlier connections.</source>
        <translation>دیوار آتش نمی‌تواند اتصال‌های پیشین را پایان دهد.</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off (%1).</source>
        <translation>خاموش کردن کیل‌سوییچ ممکن نشد (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off, because another program is changing the firewall.</source>
        <translation>خاموش کردن کیل‌سوییچ ممکن نشد، چون برنامهٔ دیگری در حال تغییر دیوار آتش است.</translation>
    </message>
    <message>
        <source>The firewall does not hold the rules that were loaded.</source>
        <translation>دیوار آتش قاعده‌هایی را که بار شده بودند ندارد.</translation>
    </message>
    <message>
        <source>The firewall gave no token.</source>
        <translation>دیوار آتش توکنی نداد.</translation>
    </message>
    <message>
        <source>The firewall leaves out the network device %1 (&quot;set skip&quot; in /etc/pf.conf), where nothing would be blocked.</source>
        <translation>دیوار آتش دستگاه شبکهٔ %1 را کنار می‌گذارد («set skip» در ⁨/etc/pf.conf⁩) که روی آن هیچ چیز مسدود نمی‌شد.</translation>
    </message>
    <message>
        <source>The firewall rules were not accepted (%1).</source>
        <translation>قاعده‌های دیوار آتش پذیرفته نشدند (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The firewall&apos;s devices cannot be read.</source>
        <translation>نمی‌توان دستگاه‌های دیوار آتش را خواند.</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be changed (%1).</source>
        <translation>نمی‌توان قاعده‌های اصلی دیوار آتش را تغییر داد (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be read.</source>
        <translation>نمی‌توان قاعده‌های اصلی دیوار آتش را خواند.</translation>
    </message>
    <message>
        <source>The firewall&apos;s state cannot be read.</source>
        <translation>نمی‌توان وضعیت دیوار آتش را خواند.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be changed.</source>
        <translation>نمی‌توان پوشهٔ ⁨%1⁩ را تغییر داد.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>نمی‌توان پوشهٔ ⁨%1⁩ را ایجاد کرد.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>نمی‌توان در پوشهٔ ⁨%1⁩ نوشت.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it and those above it.</source>
        <translation>پوشهٔ ⁨%1⁩ امن نیست: کسی جز root نباید مالک آن یا پوشه‌های بالای آن باشد یا در آن‌ها بنویسد.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it.</source>
        <translation>پوشهٔ ⁨%1⁩ امن نیست: کسی جز root نباید مالک آن باشد یا در آن بنویسد.</translation>
    </message>
    <message>
        <source>The folder /etc/sudoers.d is missing or not safe.</source>
        <translation>پوشهٔ ⁨/etc/sudoers.d⁩ وجود ندارد یا امن نیست.</translation>
    </message>
    <message>
        <source>The folders above Veldmark&apos;s are not safe: only root may own or write them.</source>
        <translation>پوشه‌های بالای پوشهٔ Veldmark امن نیستند: کسی جز root نباید مالک آن‌ها باشد یا در آن‌ها بنویسد.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read, so nothing was done.</source>
        <translation>نمی‌توان پوشه‌های زیر ⁨%1⁩ را بررسی کرد، پس کاری انجام نشد.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read.</source>
        <translation>نمی‌توان پوشه‌های زیر ⁨%1⁩ را بررسی کرد.</translation>
    </message>
    <message>
        <source>The former network settings could not all be restored.</source>
        <translation>بازگرداندن برخی از تنظیمات پیشین شبکه ممکن نشد.</translation>
    </message>
    <message>
        <source>The hashed control password is not valid.</source>
        <translation>گذرواژهٔ درهم‌سازی‌شدهٔ کنترل معتبر نیست.</translation>
    </message>
    <message>
        <source>The helper could not be copied to %1.</source>
        <translation>کپی برنامهٔ کمکی در ⁨%1⁩ ممکن نشد.</translation>
    </message>
    <message>
        <source>The helper must run as root.</source>
        <translation>برنامهٔ کمکی باید با حساب root اجرا شود.</translation>
    </message>
    <message>
        <source>The helper stopped unexpectedly.</source>
        <translation>برنامهٔ کمکی ناگهان متوقف شد.</translation>
    </message>
    <message>
        <source>The helper was given an option that it does not know.</source>
        <translation>به برنامهٔ کمکی گزینه‌ای داده شد که نمی‌شناسد.</translation>
    </message>
    <message>
        <source>The helper does not know this verb.</source>
        <translation>برنامهٔ کمکی این فرمان را نمی‌شناسد.</translation>
    </message>
    <message>
        <source>The record of the former network settings cannot be written.</source>
        <translation>نمی‌توان ثبت تنظیمات پیشین شبکه را نوشت.</translation>
    </message>
    <message>
        <source>The kill switch is not on, so no application needs to bypass it.</source>
        <translation>کیل‌سوییچ روشن نیست، پس هیچ برنامه‌ای لازم نیست آن را دور بزند.</translation>
    </message>
    <message>
        <source>The launcher could not be copied to %1.</source>
        <translation>کپی برنامهٔ اجراگر در ⁨%1⁩ ممکن نشد.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be opened.</source>
        <translation>نمی‌توان پروندهٔ قفل ⁨%1⁩ را باز کرد.</translation>
    </message>
    <message>
        <source>The lock file %1 is a link, so nothing was done.</source>
        <translation>پروندهٔ قفل ⁨%1⁩ یک پیوند است، پس کاری انجام نشد.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back.</source>
        <translation>شبکه دوباره باز است، اما برگرداندن سرورهای DNS در systemd-resolved ممکن نشد.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back. Try: systemctl restart %1.</source>
        <translation>شبکه دوباره باز است، اما برگرداندن سرورهای DNS در systemd-resolved ممکن نشد. این را امتحان کنید: systemctl restart %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the desktop&apos;s proxy settings could not be put back.</source>
        <translation>شبکه دوباره باز است، اما برگرداندن تنظیمات پروکسی میزکار ممکن نشد.</translation>
    </message>
    <message>
        <source>The network is open again, but the journal in %1 cannot be cleared.</source>
        <translation>شبکه دوباره باز است، اما نمی‌توان دفتر ثبت را در ⁨%1⁩ پاک کرد.</translation>
    </message>
    <message>
        <source>The network is open again, but the session marker cannot be removed from %1.</source>
        <translation>شبکه دوباره باز است، اما نمی‌توان نشانگر نشست را از ⁨%1⁩ برداشت.</translation>
    </message>
    <message>
        <source>The network is open again, but the system&apos;s own Tor service could not be started again. Try: systemctl start %1.</source>
        <translation>شبکه دوباره باز است، اما شروع دوبارهٔ سرویس Tor خود سیستم ممکن نشد. این را امتحان کنید: systemctl start %1.</translation>
    </message>
    <message>
        <source>The network is open, but pf could not be released.</source>
        <translation>شبکه باز است، اما آزاد کردن ⁨pf⁩ ممکن نشد.</translation>
    </message>
    <message>
        <source>The network is open, but the firewall&apos;s main rules could not be put back.</source>
        <translation>شبکه باز است، اما برگرداندن قاعده‌های اصلی دیوار آتش ممکن نشد.</translation>
    </message>
    <message>
        <source>The network location %1 still has Veldmark&apos;s settings. Choose it and disconnect again.</source>
        <translation>موقعیت شبکهٔ «%1» هنوز تنظیمات Veldmark را دارد. آن را برگزینید و دوباره اتصال را قطع کنید.</translation>
    </message>
    <message>
        <source>The network settings cannot be read.</source>
        <translation>نمی‌توان تنظیمات شبکه را خواند.</translation>
    </message>
    <message>
        <source>The network stays blocked until you disconnect.</source>
        <translation>شبکه تا وقتی اتصال را قطع نکنید مسدود می‌ماند.</translation>
    </message>
    <message>
        <source>The notes of what to restore cannot be read.</source>
        <translation>نمی‌توان یادداشت‌های آنچه باید بازگردانده شود را خواند.</translation>
    </message>
    <message>
        <source>The option %1 needs a value.</source>
        <translation>گزینهٔ ⁨%1⁩ یک مقدار لازم دارد.</translation>
    </message>
    <message>
        <source>The option %1 was given twice.</source>
        <translation>گزینهٔ ⁨%1⁩ دو بار داده شد.</translation>
    </message>
    <message>
        <source>The option --app is missing.</source>
        <translation>گزینهٔ ⁨--app⁩ داده نشده است.</translation>
    </message>
    <message>
        <source>The option --hash is missing.</source>
        <translation>گزینهٔ ⁨--hash⁩ داده نشده است.</translation>
    </message>
    <message>
        <source>The option --lan is missing.</source>
        <translation>گزینهٔ ⁨--lan⁩ داده نشده است.</translation>
    </message>
    <message>
        <source>The option --program is missing.</source>
        <translation>گزینهٔ ⁨--program⁩ داده نشده است.</translation>
    </message>
    <message>
        <source>The option --strict is missing.</source>
        <translation>گزینهٔ ⁨--strict⁩ داده نشده است.</translation>
    </message>
    <message>
        <source>The option --tor is missing.</source>
        <translation>گزینهٔ ⁨--tor⁩ داده نشده است.</translation>
    </message>
    <message>
        <source>The option --uid is missing.</source>
        <translation>گزینهٔ ⁨--uid⁩ داده نشده است.</translation>
    </message>
    <message>
        <source>The options on standard input are not complete.</source>
        <translation>گزینه‌های ورودی استاندارد کامل نیستند.</translation>
    </message>
    <message>
        <source>The path given with %1 is not absolute.</source>
        <translation>مسیر داده‌شده با ⁨%1⁩ مطلق نیست.</translation>
    </message>
    <message>
        <source>The path given with --app is not absolute.</source>
        <translation>مسیر داده‌شده با ⁨--app⁩ مطلق نیست.</translation>
    </message>
    <message>
        <source>The path given with --app names no application.</source>
        <translation>مسیر داده‌شده با ⁨--app⁩ نشانی هیچ برنامه‌ای نیست.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2. End that program, then connect again.</source>
        <translation>درگاه %1 که Tor لازم دارد در دست %2 است. آن را پایان دهید، سپس دوباره وصل شوید.</translation>
    </message>
    <message>
        <source>a program (process %1)</source>
        <translation>یک برنامه (فرایند %1)</translation>
    </message>
    <message>
        <source>a program of the account with the id %1</source>
        <translation>برنامه‌ای از حساب با شناسهٔ %1</translation>
    </message>
    <message>
        <source>The process id is not valid.</source>
        <translation>شناسهٔ فرایند معتبر نیست.</translation>
    </message>
    <message>
        <source>The program %1 cannot be copied.</source>
        <translation>نمی‌توان برنامهٔ ⁨%1⁩ را کپی کرد.</translation>
    </message>
    <message>
        <source>The program %1 cannot be found.</source>
        <translation>برنامهٔ ⁨%1⁩ پیدا نمی‌شود.</translation>
    </message>
    <message>
        <source>The program %1 is missing on this system.</source>
        <translation>برنامهٔ ⁨%1⁩ در این سیستم وجود ندارد.</translation>
    </message>
    <message>
        <source>The SHA-256 of the program %1 differs from the one to approve.</source>
        <translation>مقدار SHA-256 برنامهٔ ⁨%1⁩ همانی نیست که قرار بود تأیید شود.</translation>
    </message>
    <message>
        <source>The program given with %1 is not an executable file.</source>
        <translation>برنامهٔ داده‌شده با ⁨%1⁩ پروندهٔ اجرایی نیست.</translation>
    </message>
    <message>
        <source>The program veldmark-launch is missing.</source>
        <translation>برنامهٔ veldmark-launch وجود ندارد.</translation>
    </message>
    <message>
        <source>The session marker cannot be written.</source>
        <translation>نمی‌توان نشانگر نشست را نوشت.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be changed.</source>
        <translation>نمی‌توان تنظیمات سرویس شبکهٔ «%1» را تغییر داد.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be read.</source>
        <translation>نمی‌توان تنظیمات سرویس شبکهٔ «%1» را خواند.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 could not be put back.</source>
        <translation>برگرداندن تنظیمات سرویس شبکهٔ «%1» ممکن نشد.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall cannot be used (%1).</source>
        <translation>نمی‌توان دیوار آتش سیستم را به کار برد (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) cannot be stopped.</source>
        <translation>نمی‌توان سرویس Tor خود سیستم (%1) را متوقف کرد.</translation>
    </message>
    <message>
        <source>The user %1 is not known on this system.</source>
        <translation>کاربر %1 در این سیستم شناخته‌شده نیست.</translation>
    </message>
    <message>
        <source>The user id is not a number.</source>
        <translation>شناسهٔ کاربری عدد نیست.</translation>
    </message>
    <message>
        <source>The user name is not valid.</source>
        <translation>نام کاربری معتبر نیست.</translation>
    </message>
    <message>
        <source>The user root needs no password for the helper.</source>
        <translation>کاربر root برای برنامهٔ کمکی گذرواژه لازم ندارد.</translation>
    </message>
    <message>
        <source>The user with the id %1 is not known on this system.</source>
        <translation>کاربر با شناسهٔ %1 در این سیستم شناخته‌شده نیست.</translation>
    </message>
    <message>
        <source>The value of %1 contains control characters.</source>
        <translation>مقدار ⁨%1⁩ نویسه‌های کنترلی دارد.</translation>
    </message>
    <message>
        <source>The value of %1 is too long.</source>
        <translation>مقدار ⁨%1⁩ بیش از اندازه طولانی است.</translation>
    </message>
    <message>
        <source>The value of --as must be tor, lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>مقدار ⁨--as⁩ باید tor، lyrebird، snowflake-client یا webtunnel-client باشد.</translation>
    </message>
    <message>
        <source>The value of --lan must be 0 or 1.</source>
        <translation>مقدار ⁨--lan⁩ باید 0 یا 1 باشد.</translation>
    </message>
    <message>
        <source>The value of --sha256 must be 64 small hexadecimal digits.</source>
        <translation>مقدار ⁨--sha256⁩ باید ۶۴ رقم مبنای شانزده با حروف کوچک باشد.</translation>
    </message>
    <message>
        <source>The value of --strict must be 0 or 1.</source>
        <translation>مقدار ⁨--strict⁩ باید 0 یا 1 باشد.</translation>
    </message>
    <message>
        <source>The verb fix-dns takes no options.</source>
        <translation>فرمان fix-dns گزینه‌ای نمی‌پذیرد.</translation>
    </message>
    <message>
        <source>The verb uninstall-privileged takes no options.</source>
        <translation>فرمان uninstall-privileged گزینه‌ای نمی‌پذیرد.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be started.</source>
        <translation>شروع ناظر دیوار آتش ممکن نشد.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be stopped.</source>
        <translation>توقف ناظر دیوار آتش ممکن نشد.</translation>
    </message>
    <message>
        <source>There are too many options on standard input.</source>
        <translation>شمار گزینه‌های ورودی استاندارد بیش از اندازه است.</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which was not given.</source>
        <translation>این پل‌ها lyrebird را لازم دارند که داده نشد.</translation>
    </message>
    <message>
        <source>These bridges need snowflake-client, which was not given.</source>
        <translation>این پل‌ها snowflake-client را لازم دارند که داده نشد.</translation>
    </message>
    <message>
        <source>This helper is made for another system.</source>
        <translation>این برنامهٔ کمکی برای سیستم دیگری ساخته شده است.</translation>
    </message>
    <message>
        <source>Tor could not be started (%1).</source>
        <translation>شروع Tor ممکن نشد (⁨%1⁩).</translation>
    </message>
    <message>
        <source>Tor could not be stopped.</source>
        <translation>توقف Tor ممکن نشد.</translation>
    </message>
    <message>
        <source>Tor did not open its control port in time.</source>
        <translation>برنامهٔ Tor درگاه کنترل خود را به‌موقع باز نکرد.</translation>
    </message>
    <message>
        <source>Tor did not start: %1</source>
        <translation>برنامهٔ Tor شروع نشد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Tor does not accept its configuration: %1</source>
        <translation>برنامهٔ Tor پیکربندی خود را نمی‌پذیرد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>it ended without a message.</source>
        <translation>بدون پیام پایان یافت.</translation>
    </message>
    <message>
        <source>Tor&apos;s log files cannot be made.</source>
        <translation>نمی‌توان پرونده‌های گزارش Tor را ساخت.</translation>
    </message>
    <message>
        <source>Two different callers were reported, so nothing was done.</source>
        <translation>دو فراخوانندهٔ متفاوت گزارش شدند، پس کاری انجام نشد.</translation>
    </message>
    <message>
        <source>Veldmark is in use by %1. An administrator password is needed to end that session.</source>
        <translation>برنامهٔ Veldmark را ⁨%1⁩ به کار می‌برد. برای پایان دادن به آن نشست گذرواژهٔ مدیر لازم است.</translation>
    </message>
    <message>
        <source>Veldmark is not connected, so the DNS settings were left alone.</source>
        <translation>برنامهٔ Veldmark وصل نیست، پس به تنظیمات DNS دست زده نشد.</translation>
    </message>
    <message>
        <source>sudo rejects the rule for passwordless mode.</source>
        <translation>برنامهٔ sudo قاعدهٔ حالت بدون گذرواژه را نمی‌پذیرد.</translation>
    </message>
    <message>
        <source>sudo is not installed on this system.</source>
        <translation>برنامهٔ sudo در این سیستم نصب نیست.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read.</source>
        <translation>نمی‌توان مدخل میزکار را خواند.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read (%1).</source>
        <translation>نمی‌توان مدخل میزکار را خواند (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The desktop entry names no program that is installed.</source>
        <translation>مدخل میزکار به هیچ برنامهٔ نصب‌شده‌ای اشاره ندارد.</translation>
    </message>
    <message>
        <source>The application could not be started (%1).</source>
        <translation>شروع برنامه ممکن نشد (⁨%1⁩).</translation>
    </message>
    <message>
        <source>There is no such application or program.</source>
        <translation>چنین برنامه‌ای وجود ندارد.</translation>
    </message>
    <message>
        <source>The program could not be started.</source>
        <translation>شروع برنامه ممکن نشد.</translation>
    </message>
    <message>
        <source>The program could not be started (%1).</source>
        <translation>شروع برنامه ممکن نشد (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The user is not known on this system.</source>
        <translation>این کاربر در این سیستم شناخته‌شده نیست.</translation>
    </message>
    <message>
        <source>There is no application at %1.</source>
        <translation>در ⁨%1⁩ برنامه‌ای نیست.</translation>
    </message>
    <message>
        <source>The home folder cannot be entered.</source>
        <translation>نمی‌توان وارد پوشهٔ خانه شد.</translation>
    </message>
    <message>
        <source>nft doesn&apos;t answer.</source>
        <translation>برنامهٔ nft پاسخ نمی‌دهد.</translation>
    </message>
    <message>
        <source>nft fails.</source>
        <translation>برنامهٔ nft خطا می‌دهد.</translation>
    </message>
    <message>
        <source>Ended because the display is gone. Your network is still set up for Tor: start Veldmark again, or restore the network with: %1</source>
        <translation>به‌خاطر از دست رفتن نمایشگر پایان یافت. شبکهٔ شما هنوز برای Tor تنظیم است: Veldmark را دوباره شروع کنید، یا شبکه را با این دستور بازگردانید: %1</translation>
    </message>
    <message>
        <source>your package manager</source>
        <translation>مدیر بستهٔ سیستم</translation>
    </message>
    <message>
        <source>The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo %1 on.</source>
        <translation>شبکه دوباره باز است، اما تنظیم دستگاه loopback مانند پیش ممکن نشد. این را امتحان کنید: ethtool -K lo %1 on.</translation>
    </message>
    <message>
        <source>This system can&apos;t tell applications apart.</source>
        <translation>در این سیستم برنامه‌ها از هم بازشناخته نمی‌شوند.</translation>
    </message>
    <message>
        <source>Applications are not separated now: they share circuits.</source>
        <translation>برنامه‌ها اکنون از هم جدا نیستند: مدارهای مشترک دارند.</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>کاربر %1</translation>
    </message>
    <message>
        <source>No application has an identity of its own now.</source>
        <translation>اکنون هیچ برنامه‌ای هویت خودش را ندارد.</translation>
    </message>
    <message>
        <source>No application of yours has that identity; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>هیچ برنامه‌ای از شما آن هویت را ندارد؛ «veldmarkctl identities» فهرست آن‌ها را نشان می‌دهد.</translation>
    </message>
    <message>
        <source>The application did not get a new identity.</source>
        <translation>برنامه هویت دیگری نگرفته است.</translation>
    </message>
    <message>
        <source>The program did not get an identity of its own, so it was not started.</source>
        <translation>برنامه هویت خودش را نگرفت، پس شروع نشد.</translation>
    </message>
    <message>
        <source>A name has up to 40 letters, digits, dots and underscores.</source>
        <translation>نام حداکثر ۴۰ نویسه دارد: حرف، رقم، نقطه و خط زیر.</translation>
    </message>
    <message>
        <source>The program systemd-run is missing. Veldmark needs it to make a group for a program.</source>
        <translation>برنامهٔ systemd-run وجود ندارد. Veldmark آن را لازم دارد تا برای یک برنامه گروه بسازد.</translation>
    </message>
    <message>
        <source>The program could not be started: %1.</source>
        <translation>شروع برنامه ممکن نشد: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>تنظیمات</translation>
    </message>
    <message>
        <source>each application has circuits of its own</source>
        <translation>هر برنامه مدارهای خودش را دارد</translation>
    </message>
    <message>
        <source>the applications that have circuits of their own, and the loopback address
by which Tor distinguishes them</source>
        <translation>برنامه‌هایی که مدارهای خودشان را دارند، و نشانی loopback که
با آن Tor هر یک را از بقیه بازمی‌شناسد</translation>
    </message>
    <message>
        <source>new circuits for one application, from its next connection on; APP is as
&quot;identities&quot; names it</source>
        <translation>مدارهای جدید برای یک برنامه، از اتصال بعدی آن؛
مقدار APP همان نامی است که «identities» نشان می‌دهد</translation>
    </message>
    <message>
        <source>renew needs an application; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>دستور renew یک برنامه لازم دارد؛ «veldmarkctl identities» فهرست آن‌ها را نشان می‌دهد.</translation>
    </message>
    <message>
        <source>run a program (after --) with circuits of its own; a later run with the same
name in the same session has the same ones</source>
        <translation>اجرای برنامه‌ای (پس از ⁨--⁩) با مدارهای خودش؛ اجرای بعدی با همان نام
در همان نشست همان مدارها را دارد</translation>
    </message>
    <message>
        <source>run-as needs a name and a program: veldmarkctl run-as NAME -- PROGRAM.</source>
        <translation>دستور run-as یک نام و یک برنامه لازم دارد: veldmarkctl run-as NAME -- PROGRAM.</translation>
    </message>
    <message>
        <source>The table of the applications&apos; identities could not be removed (%1).</source>
        <translation>برداشتن جدول هویت برنامه‌ها ممکن نشد (⁨%1⁩).</translation>
    </message>
    <message>
        <source>The value of --separate must be 0 or 1.</source>
        <translation>مقدار ⁨--separate⁩ باید 0 یا 1 باشد.</translation>
    </message>
    <message>
        <source>No package of the system installed %1. The next connect asks an administrator to approve it.</source>
        <translation>هیچ‌یک از بسته‌های سیستم ⁨%1⁩ را نیاورده است. در اتصال بعدی از مدیر خواسته می‌شود آن را تأیید کند.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether a connect can work.</source>
        <translation>معلوم نیست بتوان وصل شد یا نه.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, and none of its rules allows any, so Tor can&apos;t get through: %1.</source>
        <translation>دیوار آتش دیگری در این رایانه جلوی ترافیک خروجی را می‌گیرد و هیچ‌یک از قاعده‌هایش چیزی را مجاز نمی‌کند، پس Tor نمی‌تواند عبور کند: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Users other than root can change %1, so root doesn&apos;t run it to ask for its version.</source>
        <translation>کاربرانی جز root می‌توانند ⁨%1⁩ را تغییر دهند، پس root آن را برای پرسیدن نسخه اجرا نمی‌کند.</translation>
    </message>
    <message>
        <source>Type %1 to approve it, anything else to refuse.</source>
        <translation>برای تأیید آن ⁨%1⁩ را بنویسید و برای رد کردن، هر چیز دیگری.</translation>
    </message>
    <message>
        <source>%1 was not approved.</source>
        <translation>⁨%1⁩ تأیید نشد.</translation>
    </message>
    <message>
        <source>%1 is not a program of the system, so an administrator has to approve it, but this command has no terminal to ask on. Run &quot;sudo veldmarkctl run --connect&quot; in a terminal.</source>
        <translation>⁨%1⁩ برنامهٔ سیستم نیست و مدیر باید آن را تأیید کند، اما این دستور پایانه‌ای برای پرسیدن ندارد. «⁨sudo veldmarkctl run --connect⁩» را در یک پایانه اجرا کنید.</translation>
    </message>
    <message>
        <source>%1 needs the name of a file.</source>
        <translation>گزینهٔ ⁨%1⁩ نام یک پرونده را لازم دارد.</translation>
    </message>
    <message>
        <source>It doesn&apos;t answer.</source>
        <translation>پاسخ نمی‌دهد.</translation>
    </message>
    <message>
        <source>This report goes to %1.</source>
        <translation>این گزارش در ⁨%1⁩ نوشته می‌شود.</translation>
    </message>
    <message>
        <source>write it into a new file too</source>
        <translation>نوشتن آن در یک پروندهٔ تازه نیز</translation>
    </message>
    <message>
        <source>The report can&apos;t be written to %1: %2</source>
        <translation>گزارش را نمی‌توان در ⁨%1⁩ نوشت: ⁨%2⁩</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a regular file. Choose another name for the report.</source>
        <translation>مسیر ⁨%1⁩ یک پروندهٔ معمولی نیست. نام دیگری برای گزارش برگزینید.</translation>
    </message>
    <message>
        <source>%1 exists already. Choose another name for the report.</source>
        <translation>پروندهٔ ⁨%1⁩ از پیش وجود دارد. نام دیگری برای گزارش برگزینید.</translation>
    </message>
    <message>
        <source>The running instance gave no state: %1</source>
        <translation>نمونهٔ در حال اجرا وضعیت خود را نداد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>a report for those who help you: settings, findings and log without addresses,
names, bridges and keys. Nothing sends it. Look through it before you give it
away</source>
        <translation>گزارشی برای کسانی که به شما کمک می‌کنند: تنظیمات، یافته‌ها و گزارش Tor بدون
نشانی‌ها، نام‌ها، پل‌ها و کلیدها. هیچ چیزی آن را نمی‌فرستد. پیش از آن‌که آن را
به کسی بدهید مرورش کنید</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>⁨%1⁩ را نمی‌توان خواند: ⁨%2⁩</translation>
    </message>
    <message>
        <source>There is no bridge in %1.</source>
        <translation>در ⁨%1⁩ پلی نیست.</translation>
    </message>
    <message>
        <source>added: %1</source>
        <translation>افزوده شد: ⁨%1⁩</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>از پیش هست: ⁨%1⁩</translation>
    </message>
    <message>
        <source>add the bridges in a text to your own: in bridge lines, a whole e-mail or
a web page. FILE &quot;-&quot; is standard input</source>
        <translation>پل‌های درون یک متن را به پل‌های خودتان می‌افزاید: سطرهای پل، یک رایانامهٔ
کامل یا یک صفحهٔ وب. FILE برابر «-» ورودی استاندارد است</translation>
    </message>
    <message>
        <source>add-bridges needs a file; &quot;-&quot; is standard input.</source>
        <translation>دستور add-bridges یک پرونده می‌خواهد؛ «-» ورودی استاندارد است.</translation>
    </message>
    <message>
        <source>The filter before Tor&apos;s control port cannot be used.</source>
        <translation>صافی جلوی درگاه کنترل Tor قابل استفاده نیست.</translation>
    </message>
    <message numerus="yes">
        <source>Testing %n bridges…</source>
        <translation>
            <numerusform>آزمودن %n پل…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 for *.%2</source>
        <translation>⁨%1⁩ برای ⁨*.%2⁩</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>⁨%1⁩ روی ⁨%2⁩</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>مستقیم</translation>
    </message>
    <message>
        <source>Your bridges</source>
        <translation>پل‌های شما</translation>
    </message>
    <message>
        <source>(%1 s)</source>
        <translation>(%1 ثانیه)</translation>
    </message>
    <message>
        <source>Tried</source>
        <translation>امتحان‌شده</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>پیشنهاد</translation>
    </message>
    <message>
        <source>Try them with: %1</source>
        <translation>با این دستور امتحانشان کنید: ⁨%1⁩</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of ask, always and never.</source>
        <translation>مقدار «⁨%1⁩» نه ask است، نه always و نه never.</translation>
    </message>
    <message>
        <source>Refused, or out of reach.</source>
        <translation>رد شد یا در دسترس نیست.</translation>
    </message>
    <message>
        <source>Something answered, but Tor made no further progress.</source>
        <translation>پاسخی آمد، ولی Tor جلوتر نرفت.</translation>
    </message>
    <message>
        <source>No answer.</source>
        <translation>بدون پاسخ.</translation>
    </message>
    <message>
        <source>Tor has connected.</source>
        <translation>اتصال Tor برقرار شد.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Tried: %1.</source>
        <translation>در این شبکه Tor به جایی نمی‌رسد. امتحان‌شده: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Veldmark can try bridges: %1.</source>
        <translation>در این شبکه Tor به جایی نمی‌رسد. Veldmark می‌تواند پل‌ها را امتحان کند: ⁨%1⁩.</translation>
    </message>
    <message>
        <source>Being tried…</source>
        <translation>در حال امتحان…</translation>
    </message>
    <message>
        <source>Tor did not accept these bridges.</source>
        <translation>این پل‌ها را Tor نپذیرفت.</translation>
    </message>
    <message>
        <source>No bridges are offered now.</source>
        <translation>اکنون پلی پیشنهاد نمی‌شود.</translation>
    </message>
    <message>
        <source>whether bridges are tried when Tor cannot connect</source>
        <translation>آیا وقتی Tor به جایی نمی‌رسد پل‌ها امتحان شوند</translation>
    </message>
    <message>
        <source>try the bridges that are offered when Tor cannot connect, see &quot;status&quot;</source>
        <translation>امتحان پل‌هایی که وقتی Tor به جایی نمی‌رسد پیشنهاد می‌شوند، «status» را ببینید</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>‏⁨%1⁩: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>مدارها</translation>
    </message>
</context>
<context>
    <name>veldmark::Tray</name>
    <message>
        <source>Open Veldmark</source>
        <translation>باز کردن Veldmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>خروج</translation>
    </message>
</context>
<context>
    <name>veldmark::Windows</name>
    <message>
        <source>Select the tor executable</source>
        <translation>انتخاب پروندهٔ اجرایی tor</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>برنامه‌هایی را برگزینید که در حالت سخت‌گیرانه اجازه دارند بدون Tor وصل شوند</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>برنامه‌ها</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>ذخیرهٔ گزارش</translation>
    </message>
</context>
</TS>

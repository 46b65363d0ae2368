<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>AboutPane</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
    <message>
        <source>The Tor Project</source>
        <translation>Проєкт Tor</translation>
    </message>
    <message>
        <source>The network and pluggable transports Veldmark builds on</source>
        <translation>Мережа й підключні транспорти, на яких побудовано Veldmark</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Подяки</translation>
    </message>
    <message>
        <source>Homepage, downloads and updates</source>
        <translation>Сайт, завантаження й оновлення</translation>
    </message>
    <message>
        <source>Sends this computer&apos;s traffic through Tor, all of it in strict mode and that of apps that use the system proxy in proxy mode, and shows whether it really does.</source>
        <translation>Спрямовує трафік цього комп’ютера через Tor: у суворому режимі — весь, у режимі проксі — трафік застосунків, які користуються системним проксі. І показує, чи це справді так.</translation>
    </message>
    <message>
        <source>Veldmark is made with Qt, QCoro and tl::expected.</source>
        <translation>Veldmark створено за допомогою Qt, QCoro і tl::expected.</translation>
    </message>
</context>
<context>
    <name>ApplicationsSheet</name>
    <message>
        <source>App exceptions</source>
        <translation>Винятки для застосунків</translation>
    </message>
    <message>
        <source>No apps yet. Add Zoom, Discord, a game…</source>
        <translation>Застосунків ще немає. Додайте Zoom, Discord, гру…</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Щоб відкривати застосунки без Tor, під’єднайтеся в суворому режимі</translation>
    </message>
    <message>
        <source>Open without Tor</source>
        <translation>Відкрити без Tor</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Вилучити</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Додати…</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Close</source>
        <translation>Закрити</translation>
    </message>
</context>
<context>
    <name>BridgesPane</name>
    <message>
        <source>Bridges</source>
        <translation>Мости</translation>
    </message>
    <message>
        <source>Programs that disguise your Tor connection</source>
        <translation>Програми, що маскують ваше з’єднання з Tor</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Вбудовані мости</translation>
    </message>
    <message>
        <source>Bridge addresses shipped with Tor</source>
        <translation>Адреси мостів, які постачаються з Tor</translation>
    </message>
    <message>
        <source>Tor Expert Bundle</source>
        <translation>Tor Expert Bundle</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Оновити</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Завантажити</translation>
    </message>
    <message>
        <source>When Tor is blocked</source>
        <translation>Коли Tor заблоковано</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Щоб змінити, від’єднайтеся</translation>
    </message>
    <message>
        <source>Tries the available bridges in turn, without another password</source>
        <translation>Пробує наявні мости один за одним, без нового пароля</translation>
    </message>
</context>
<context>
    <name>BridgesSheet</name>
    <message>
        <source>Custom bridges</source>
        <translation>Власні мости</translation>
    </message>
    <message>
        <source>One bridge per line. Ask the Tor Project for bridges on its bridges page, by e-mail or through its Telegram bot, or use those of someone you trust. obfs4, webtunnel, Snowflake, meek and plain bridges are supported.</source>
        <translation>По одному мосту на рядок. Попросіть мости в Проєкту Tor на його сторінці мостів, електронною поштою чи через його бота в Telegram або візьміть їх у того, кому довіряєте. Підтримуються obfs4, webtunnel, Snowflake, meek і звичайні мости.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Зберегти</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>There is no bridge in this file.</source>
        <translation>У цьому файлі немає мостів.</translation>
    </message>
    <message>
        <source>Keep Only the Bridges</source>
        <translation>Залишити лише мости</translation>
    </message>
    <message>
        <source>Removes everything from the text but the bridges that were recognized</source>
        <translation>Вилучає з тексту все, крім розпізнаних мостів</translation>
    </message>
</context>
<context>
    <name>ChooserWindow</name>
    <message>
        <source>App exceptions</source>
        <translation>Винятки для застосунків</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Виберіть застосунки, яким у суворому режимі дозволено обходити Tor</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Пошук</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Установлені застосунки</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Інший…</translation>
    </message>
    <message>
        <source>Choose the .desktop file of an application that is not listed</source>
        <translation>Вибрати файл .desktop застосунку, якого немає в списку</translation>
    </message>
</context>
<context>
    <name>CircuitsSidebar</name>
    <message>
        <source>ALL CIRCUITS</source>
        <translation>УСІ ЛАНЦЮГИ</translation>
    </message>
    <message>
        <source>No circuit selected</source>
        <translation>Ланцюг не вибрано</translation>
    </message>
    <message>
        <source>New Circuit</source>
        <translation>Новий ланцюг</translation>
    </message>
    <message>
        <source>Close this circuit; its sites get a fresh path on their next request</source>
        <translation>Закрити цей ланцюг; його сайти отримають новий шлях під час наступного запиту</translation>
    </message>
    <message>
        <source>Sites on this circuit get a fresh path. Other sites sharing it move too.</source>
        <translation>Сайти в цьому ланцюгу отримають новий шлях. Інші сайти, для яких він спільний, теж змінять шлях.</translation>
    </message>
</context>
<context>
    <name>CircuitsWindow</name>
    <message>
        <source>Circuits</source>
        <translation>Ланцюги</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Нова ідентичність</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Попросити в Tor нові ланцюги й нову IP-адресу виходу</translation>
    </message>
    <message>
        <source>Find Faster</source>
        <translation>Знайти швидший</translation>
    </message>
    <message>
        <source>Time a request through Tor and get fresh circuits if it&apos;s slow</source>
        <translation>Виміряти швидкість запиту через Tor; якщо він повільний, отримати нові ланцюги</translation>
    </message>
    <message>
        <source>Reading circuits…</source>
        <translation>Читання ланцюгів…</translation>
    </message>
    <message>
        <source>Connect to see your circuits</source>
        <translation>Під’єднайтеся, щоб побачити свої ланцюги</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>З’єднання</translation>
    </message>
    <message>
        <source>Exit IP</source>
        <translation>IP виходу</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Leaks</source>
        <translation>Витоки</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Трафік</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>отримано %1, надіслано %2</translation>
    </message>
    <message>
        <source>Traffic of the last two minutes</source>
        <translation>Трафік за останні дві хвилини</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Нова ідентичність</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Попросити в Tor нові ланцюги й нову IP-адресу виходу</translation>
    </message>
    <message>
        <source>Leak Test</source>
        <translation>Тест витоків</translation>
    </message>
    <message>
        <source>Check the exit IP and try a direct connection that skips Tor</source>
        <translation>Перевірити IP виходу й спробувати пряме з’єднання повз Tor</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Ланцюги</translation>
    </message>
    <message>
        <source>See the path your traffic takes: entry, middle and exit relays</source>
        <translation>Переглянути шлях вашого трафіку: вхідний, проміжний і вихідний вузли</translation>
    </message>
</context>
<context>
    <name>CopyField</name>
    <message>
        <source>Copied</source>
        <translation>Скопійовано</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
</context>
<context>
    <name>DNSCard</name>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>DNS-запити можуть іти повз Tor</translation>
    </message>
    <message>
        <source>Fix DNS</source>
        <translation>Виправити DNS</translation>
    </message>
    <message>
        <source>Re-test</source>
        <translation>Повторити тест</translation>
    </message>
</context>
<context>
    <name>DoctorSheet</name>
    <message>
        <source>This computer</source>
        <translation>Цей комп’ютер</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Перевірити знову</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Показати звіт</translation>
    </message>
    <message>
        <source>What others need to help you, without addresses, names and bridges</source>
        <translation>Усе, що потрібно іншим, щоб вам допомогти, без адрес, імен і мостів</translation>
    </message>
</context>
<context>
    <name>DownloadButton</name>
    <message>
        <source>Download</source>
        <translation>Завантажити</translation>
    </message>
    <message>
        <source>Downloads the official Tor Expert Bundle from the Tor Project, for bridge programs and built-in bridges</source>
        <translation>Завантажує від Проєкту Tor офіційний Tor Expert Bundle: програми для мостів і вбудовані мости</translation>
    </message>
</context>
<context>
    <name>Footer</name>
    <message>
        <source>Settings</source>
        <translation>Налаштування</translation>
    </message>
    <message>
        <source>Tor Log</source>
        <translation>Журнал Tor</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>General</source>
        <translation>Загальне</translation>
    </message>
    <message>
        <source>Startup and password prompts</source>
        <translation>Запуск і запити пароля</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Запуск</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Відкривати під час входу</translation>
    </message>
    <message>
        <source>Veldmark starts when you log in</source>
        <translation>Veldmark запускається, коли ви входите в систему</translation>
    </message>
    <message>
        <source>Connect automatically</source>
        <translation>Під’єднуватися автоматично</translation>
    </message>
    <message>
        <source>Connect as soon as Veldmark opens</source>
        <translation>Під’єднуватися, щойно Veldmark відкриється</translation>
    </message>
    <message>
        <source>Password prompts</source>
        <translation>Запити пароля</translation>
    </message>
    <message>
        <source>Passwordless mode</source>
        <translation>Режим без пароля</translation>
    </message>
    <message>
        <source>Connect and Disconnect never ask</source>
        <translation>Під’єднання й від’єднання без пароля</translation>
    </message>
    <message>
        <source>Asks for your password each time</source>
        <translation>Щоразу запитує ваш пароль</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Вимкнути</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Налаштувати…</translation>
    </message>
    <message>
        <source>Setup asks for your admin password once. It installs a root-owned copy of Veldmark&apos;s helper and a rule in /etc/sudoers.d that lets your account run only that helper, so Connect and Disconnect stop asking. Turn it off any time.</source>
        <translation>Під час налаштування один раз буде запитано пароль адміністратора. Буде встановлено копію допоміжної програми Veldmark, що належить root, і правило в /etc/sudoers.d, яке дозволяє вашому обліковому запису запускати лише цю програму. Після цього під’єднання й від’єднання не запитують пароля. Вимкнути це можна будь-коли.</translation>
    </message>
</context>
<context>
    <name>Hero</name>
    <message>
        <source>Show Tor Log</source>
        <translation>Показати журнал Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Переглянути все, про що повідомив Tor</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Відновити мережу</translation>
    </message>
    <message>
        <source>Try Bridges</source>
        <translation>Спробувати мости</translation>
    </message>
</context>
<context>
    <name>LogLines</name>
    <message>
        <source>Tor Log</source>
        <translation>Журнал Tor</translation>
    </message>
</context>
<context>
    <name>LogRow</name>
    <message>
        <source>Error</source>
        <translation>Помилка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Попередження</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Сповіщення</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Інформація</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Tor Log</source>
        <translation>Журнал Tor</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Фільтр</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Стежити</translation>
    </message>
    <message>
        <source>Keep the newest lines in view</source>
        <translation>Завжди показувати найновіші рядки</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
    <message>
        <source>Copy the lines shown</source>
        <translation>Копіювати показані рядки</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показати</translation>
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
        <translation>Параметри</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Щоб змінити, від’єднайтеся</translation>
    </message>
    <message>
        <source>Strict mode</source>
        <translation>Суворий режим</translation>
    </message>
    <message>
        <source>Kill switch: block anything not using Tor</source>
        <translation>Аварійне блокування всього, що йде не через Tor</translation>
    </message>
    <message>
        <source>Blocks every connection that doesn&apos;t go through Tor, including UDP and IPv6. Apps that ignore proxy settings won&apos;t connect at all instead of leaking.</source>
        <translation>Аварійне блокування (kill switch) не пропускає жодного з’єднання, що йде не через Tor, зокрема UDP та IPv6. Застосунки, які ігнорують налаштування проксі, не спричинять витоку: вони просто не матимуть зв’язку.</translation>
    </message>
    <message>
        <source>Allow local network</source>
        <translation>Дозволити локальну мережу</translation>
    </message>
    <message>
        <source>Exit country</source>
        <translation>Країна виходу</translation>
    </message>
    <message>
        <source>Where your traffic appears to come from</source>
        <translation>Звідки нібито надходить ваш трафік</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Мости</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Змінити…</translation>
    </message>
    <message>
        <source>Custom bridges</source>
        <translation>Власні мости</translation>
    </message>
    <message>
        <source>Optimize for speed</source>
        <translation>Оптимізувати швидкість</translation>
    </message>
    <message>
        <source>New circuits for everything</source>
        <translation>Нові ланцюги для всього</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Режим термінала</translation>
    </message>
    <message>
        <source>App exceptions</source>
        <translation>Винятки для застосунків</translation>
    </message>
    <message>
        <source>For networks that block or watch Tor</source>
        <translation>Для мереж, де Tor блокують або відстежують</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Find the Cause</source>
        <translation>Знайти причину</translation>
    </message>
    <message>
        <source>Checks what a connection needs on this computer, what blocks it and how to fix it</source>
        <translation>Перевіряє цей комп’ютер: що потрібно для під’єднання, що йому заважає і як це виправити</translation>
    </message>
    <message>
        <source>Show Tor Log</source>
        <translation>Показати журнал Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Переглянути все, про що повідомив Tor</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with this command, then click Recheck.</source>
        <translation>Tor не встановлено. Установіть його цією командою й натисніть «Перевірити знову».</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with %1, then click Recheck.</source>
        <translation>Tor не встановлено. Установіть його через %1 і натисніть «Перевірити знову».</translation>
    </message>
    <message>
        <source>Recheck</source>
        <translation>Перевірити знову</translation>
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
        <translation>Знайдено %1</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Не знайдено</translation>
    </message>
</context>
<context>
    <name>QuitDialog</name>
    <message>
        <source>Quit Veldmark</source>
        <translation>Вийти з Veldmark</translation>
    </message>
    <message>
        <source>Your network is still routed through Tor</source>
        <translation>Вашу мережу досі спрямовано через Tor</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and the kill switch stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Якщо вийти зараз, Tor працюватиме далі, а аварійне блокування лишиться ввімкненим. Щоб відновити звичайне з’єднання, згодом знову відкрийте Veldmark.</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and your system proxy stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Якщо вийти зараз, Tor працюватиме далі, а системний проксі лишиться ввімкненим. Щоб відновити звичайне з’єднання, згодом знову відкрийте Veldmark.</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Від’єднання…</translation>
    </message>
    <message>
        <source>Disconnect &amp; Quit</source>
        <translation>Від’єднатися й вийти</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Усе одно вийти</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
</context>
<context>
    <name>RecoveryPane</name>
    <message>
        <source>Recovery</source>
        <translation>Відновлення</translation>
    </message>
    <message>
        <source>Get your normal connection back</source>
        <translation>Повернути звичайне з’єднання</translation>
    </message>
    <message>
        <source>Restore network settings</source>
        <translation>Відновити налаштування мережі</translation>
    </message>
    <message>
        <source>Veldmark&apos;s changes are active</source>
        <translation>Зміни Veldmark діють</translation>
    </message>
    <message>
        <source>Nothing to restore</source>
        <translation>Відновлювати нічого</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Відновити</translation>
    </message>
    <message>
        <source>Use this if your internet stops working after a crash. It puts your DNS, proxy and firewall settings back the way they were and stops Tor.</source>
        <translation>Скористайтеся цим, якщо після збою не працює інтернет. Налаштування DNS, проксі й брандмауера повернуться до попереднього стану, а Tor буде зупинено.</translation>
    </message>
    <message>
        <source>If the app won&apos;t open</source>
        <translation>Якщо програма не відкривається</translation>
    </message>
    <message>
        <source>Run this in Terminal to do the same thing without Veldmark.</source>
        <translation>Виконайте це в терміналі, щоб зробити те саме без Veldmark.</translation>
    </message>
    <message>
        <source>Report for others</source>
        <translation>Звіт для інших</translation>
    </message>
    <message>
        <source>What they need to help you, without addresses, names and bridges. You read it first, and nothing sends it.</source>
        <translation>Усе, що їм потрібно, щоб вам допомогти, без адрес, імен і мостів. Спершу його читаєте ви, і ніщо його не надсилає.</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Показати звіт</translation>
    </message>
</context>
<context>
    <name>ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>Звіт</translation>
    </message>
    <message>
        <source>For those who help you. Addresses, names, bridges, keys and paths in your home are replaced. Look through it before you give it away: Veldmark sends it to nobody.</source>
        <translation>Для тих, хто вам допомагає. Адреси, імена, мости, ключі та шляхи у вашій домашній теці замінено. Перегляньте його, перш ніж передати: Veldmark нікому його не надсилає.</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Зберегти…</translation>
    </message>
    <message>
        <source>Save the report in a file that only you can read</source>
        <translation>Зберегти звіт у файл, який можете прочитати лише ви</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
    <message>
        <source>Copy the whole report</source>
        <translation>Скопіювати весь звіт</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Перевірка цього комп’ютера…</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Налаштування</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Загальне</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Мости</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Термінал</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Відновлення</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Про програму</translation>
    </message>
</context>
<context>
    <name>TerminalPane</name>
    <message>
        <source>Terminal</source>
        <translation>Термінал</translation>
    </message>
    <message>
        <source>Route command-line tools through Tor</source>
        <translation>Спрямовувати програми командного рядка через Tor</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Режим термінала</translation>
    </message>
    <message>
        <source>Shell integration</source>
        <translation>Інтеграція з оболонкою</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Вилучити</translation>
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
        <translation>Програма Tor, яку запускає Veldmark</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Програма</translation>
    </message>
    <message>
        <source>Location: disconnect to change</source>
        <translation>Розташування: щоб змінити, від’єднайтеся</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Розташування</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Автоматично</translation>
    </message>
    <message>
        <source>Custom location</source>
        <translation>Інше розташування</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копіювати</translation>
    </message>
    <message>
        <source>Separate applications</source>
        <translation>Розділяти застосунки</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Щоб змінити, від’єднайтеся</translation>
    </message>
    <message>
        <source>Each application has circuits of its own</source>
        <translation>Кожен застосунок має власні ланцюги</translation>
    </message>
    <message>
        <source>Sites cannot tell by the exit address that two applications are yours. Veldmark tells applications apart where the desktop starts each in a control group of its own, as GNOME and KDE do. Other programs share circuits with the rest of their login session or account.</source>
        <translation>Сайти не можуть за адресою виходу визначити, що два застосунки належать вам. Застосунки розрізняються там, де середовище стільниці запускає кожен у власній контрольній групі, як-от GNOME і KDE. Інші програми мають спільні ланцюги з усім своїм сеансом входу або обліковим записом.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Start without a window, as at login.</source>
        <translation>Запустити без вікна, як під час входу в систему.</translation>
    </message>
    <message>
        <source>Connect at once.</source>
        <translation>Під’єднатися відразу.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor. To restore it without Veldmark, run:
%1</source>
        <translation>Вашу мережу досі налаштовано на Tor. Щоб відновити її без Veldmark, виконайте:
%1</translation>
    </message>
</context>
<context>
    <name>veldmark::Alerts</name>
    <message>
        <source>Another session has replaced this one</source>
        <translation>Цей сеанс замінено іншим</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor припинив роботу</translation>
    </message>
    <message>
        <source>Traffic can leave around Tor</source>
        <translation>Трафік може виходити повз Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>DNS-запити можуть іти повз Tor</translation>
    </message>
    <message>
        <source>Your real address can be seen. Open Veldmark to see what to do.</source>
        <translation>Вашу справжню адресу видно. Відкрийте Veldmark, щоб дізнатися, що робити.</translation>
    </message>
    <message>
        <source>Firewall rules were removed</source>
        <translation>Правила брандмауера було вилучено</translation>
    </message>
    <message>
        <source>The kill switch doesn&apos;t block traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>Аварійне блокування не діє. Відкрийте Veldmark, від’єднайтеся й під’єднайтеся знову.</translation>
    </message>
    <message>
        <source>The kill switch is not watched</source>
        <translation>За аварійним блокуванням ніхто не стежить</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>Невідомо, чи діє аварійне блокування. Відкрийте Veldmark, від’єднайтеся й під’єднайтеся знову.</translation>
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
        <translation>Не вдалося створити вікно. На вашу мережу це не вплинуло; щоб відновити її без Veldmark, виконайте:
%1

%2</translation>
    </message>
    <message>
        <source>Veldmark is still running</source>
        <translation>Veldmark і далі працює</translation>
    </message>
    <message>
        <source>Open Veldmark again to see its window.</source>
        <translation>Щоб побачити вікно, відкрийте Veldmark знову.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Вашу мережу досі налаштовано на Tor</translation>
    </message>
    <message>
        <source>Veldmark had to close and could not restore the network. Open Veldmark again to restore it.</source>
        <translation>Veldmark отримав команду завершити роботу й не зміг відновити мережу. Щоб відновити її, відкрийте Veldmark знову.</translation>
    </message>
</context>
<context>
    <name>veldmark::ApplicationChoices</name>
    <message>
        <source>No installed applications were found.</source>
        <translation>Установлених застосунків не знайдено.</translation>
    </message>
    <message>
        <source>No application is called “%1”.</source>
        <translation>Немає застосунку з назвою «%1».</translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitGraphView</name>
    <message>
        <source>%1: your real IP only ever reaches the entry relay</source>
        <translation>%1: ваша справжня IP-адреса доходить лише до вхідного вузла</translation>
    </message>
    <message>
        <source>Used by 1 circuit</source>
        <translation>Використовується в 1 ланцюгу</translation>
    </message>
    <message>
        <source>ENTRY</source>
        <translation>ВХІД</translation>
    </message>
    <message>
        <source>MIDDLE</source>
        <translation>СЕРЕДИНА</translation>
    </message>
    <message>
        <source>EXIT</source>
        <translation>ВИХІД</translation>
    </message>
    <message>
        <source>SITES</source>
        <translation>САЙТИ</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>ще %1</translation>
    </message>
    <message numerus="yes">
        <source>Used by %n circuits</source>
        <translation>
            <numerusform>Використовується в %n ланцюгу</numerusform>
            <numerusform>Використовується в %n ланцюгах</numerusform>
            <numerusform>Використовується в %n ланцюгах</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitsModel</name>
    <message>
        <source>Unknown</source>
        <translation>Невідомо</translation>
    </message>
    <message>
        <source>Circuit %1</source>
        <translation>Ланцюг %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Не під’єднано</translation>
    </message>
    <message>
        <source>1 active path</source>
        <translation>1 активний шлях</translation>
    </message>
    <message>
        <source> · click a relay or site to follow it</source>
        <translation> · клацніть вузол або сайт, щоб простежити його</translation>
    </message>
    <message>
        <source>Leads to an onion service. The last relay is the meeting point.</source>
        <translation>Веде до onion-сервісу. Останній вузол — точка зустрічі.</translation>
    </message>
    <message>
        <source>Meeting point</source>
        <translation>Точка зустрічі</translation>
    </message>
    <message>
        <source>One of several linked legs to the same exit</source>
        <translation>Одна з кількох пов’язаних гілок до того самого виходу</translation>
    </message>
    <message>
        <source>Only the entry sees your IP</source>
        <translation>Ваш IP бачить лише вхідний вузол</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Середина</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>Міст</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Вхід</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Вихід</translation>
    </message>
    <message>
        <source>, +%1 more</source>
        <translation>, ще %1</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Сайти</translation>
    </message>
    <message>
        <source>Round trip: %1</source>
        <translation>Туди й назад: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n active paths</source>
        <translation>
            <numerusform>%n активний шлях</numerusform>
            <numerusform>%n активні шляхи</numerusform>
            <numerusform>%n активних шляхів</numerusform>
        </translation>
    </message>
    <message>
        <source>Asked for by %1</source>
        <translation>Хто запитав: %1</translation>
    </message>
</context>
<context>
    <name>veldmark::DoctorModel</name>
    <message>
        <source>Problem</source>
        <translation>Проблема</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Невідомо</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Примітка</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Усе гаразд</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Відновити мережу</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Завантажити</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Перевірка цього комп’ютера…</translation>
    </message>
    <message>
        <source>The check gave no result.</source>
        <translation>Перевірка не дала результату.</translation>
    </message>
    <message>
        <source>No problem was found that keeps Veldmark from connecting.</source>
        <translation>Не знайдено нічого, що заважало б Veldmark під’єднатися.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t connect until each problem is fixed.</source>
        <translation>Veldmark не зможе під’єднатися, доки не буде усунено кожну проблему.</translation>
    </message>
</context>
<context>
    <name>veldmark::LogModel</name>
    <message>
        <source>Tor writes here while it connects and runs</source>
        <translation>Тут з’являються записи Tor, поки він під’єднується й працює</translation>
    </message>
    <message>
        <source>Can&apos;t read the log files</source>
        <translation>Не вдається прочитати файли журналу</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 рядок</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Проблеми</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Проблеми (%1)</translation>
    </message>
    <message>
        <source>Show the log files in Finder</source>
        <translation>Показати файли журналу у Finder</translation>
    </message>
    <message>
        <source>Show the log files in the file manager</source>
        <translation>Показати файли журналу в менеджері файлів</translation>
    </message>
    <message>
        <source>There are no log files yet. Tor creates %1 when it first starts.</source>
        <translation>Файлів журналу ще немає: Tor створить %1 під час першого запуску.</translation>
    </message>
    <message>
        <source>No file manager could be opened. The log files are in %1.</source>
        <translation>Не вдалося відкрити менеджер файлів. Файли журналу містяться в %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n рядок</numerusform>
            <numerusform>%n рядки</numerusform>
            <numerusform>%n рядків</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::OptionsModel</name>
    <message>
        <source>Choosing a country means fewer exit relays, so it&apos;s slower and you&apos;re easier to single out.</source>
        <translation>З вибраною країною вихідних вузлів менше, тому з’єднання повільніше, а вас легше вирізнити.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Вимкнено</translation>
    </message>
    <message>
        <source>obfs4 (built-in)</source>
        <translation>obfs4 (вбудовані)</translation>
    </message>
    <message>
        <source>Snowflake (built-in)</source>
        <translation>Snowflake (вбудовані)</translation>
    </message>
    <message>
        <source>meek (built-in)</source>
        <translation>meek (вбудовані)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Власні</translation>
    </message>
    <message>
        <source>No bridges added yet</source>
        <translation>Мостів ще не додано</translation>
    </message>
    <message>
        <source>Needs bridge programs: click Download</source>
        <translation>Потрібні програми для мостів: натисніть «Завантажити»</translation>
    </message>
    <message>
        <source>Built-in bridges from %1</source>
        <translation>Вбудовані мости з %1</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(рядок %1)</translation>
    </message>
    <message>
        <source>(lines %1)</source>
        <translation>(рядки %1)</translation>
    </message>
    <message>
        <source>1 bridge recognized</source>
        <translation>Розпізнано 1 міст</translation>
    </message>
    <message>
        <source>A bridge line can&apos;t contain #, &quot; or \.</source>
        <translation>Рядок моста не може містити #, &quot; або \.</translation>
    </message>
    <message>
        <source>At most %1 bridges can be used</source>
        <translation>Мостів може бути не більше ніж %1</translation>
    </message>
    <message>
        <source>1 line not recognized</source>
        <translation>Не розпізнано 1 рядок</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Немає</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the Dock) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>У суворому режимі ці застосунки можуть з’єднуватися напряму, а не через Tor, — з вашою справжньою IP-адресою. Усе інше, як і раніше, іде лише через Tor. Відкривайте їх кнопкою &lt;b&gt;Відкрити без Tor&lt;/b&gt; (не з панелі Dock), щоб Veldmark міг їх позначити. Запущений екземпляр буде закрито й відкрито знову.</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the desktop&apos;s menu) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>У суворому режимі ці застосунки можуть з’єднуватися напряму, а не через Tor, — з вашою справжньою IP-адресою. Усе інше, як і раніше, іде лише через Tor. Відкривайте їх кнопкою &lt;b&gt;Відкрити без Tor&lt;/b&gt; (не з меню стільниці), щоб Veldmark міг їх позначити. Запущений екземпляр буде закрито й відкрито знову.</translation>
    </message>
    <message numerus="yes">
        <source>%n bridges recognized</source>
        <translation>
            <numerusform>Розпізнано %n міст</numerusform>
            <numerusform>Розпізнано %n мости</numerusform>
            <numerusform>Розпізнано %n мостів</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines not recognized</source>
        <translation>
            <numerusform>Не розпізнано %n рядок</numerusform>
            <numerusform>Не розпізнано %n рядки</numerusform>
            <numerusform>Не розпізнано %n рядків</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::PanelModel</name>
    <message>
        <source>No answer</source>
        <translation>Немає відповіді</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but it isn&apos;t known whether the kill switch blocks such connections</source>
        <translation>Пряме з’єднання повз Tor лишилося без відповіді, але невідомо, чи аварійне блокування перекриває такі з’єднання</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but proxy mode doesn&apos;t block such connections</source>
        <translation>Пряме з’єднання повз Tor лишилося без відповіді, але режим проксі не перекриває таких з’єднань</translation>
    </message>
    <message>
        <source>Connect to Tor</source>
        <translation>Під’єднатися до Tor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Від’єднатися</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Під’єднатися знову</translation>
    </message>
    <message>
        <source>Connected through %1 bridges</source>
        <translation>Під’єднано через мости: %1</translation>
    </message>
    <message>
        <source>Strict</source>
        <translation>Суворий</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Проксі</translation>
    </message>
    <message>
        <source>Install Tor to get started</source>
        <translation>Для початку встановіть Tor</translation>
    </message>
    <message>
        <source>Click to connect</source>
        <translation>Натисніть, щоб під’єднатися</translation>
    </message>
    <message>
        <source>Click to disconnect</source>
        <translation>Натисніть, щоб від’єднатися</translation>
    </message>
    <message>
        <source>Tor hasn&apos;t reported progress for a while. It is still trying; a slow or blocked network is the usual reason.</source>
        <translation>Tor уже деякий час не повідомляє про поступ. Він і далі намагається під’єднатися; зазвичай причина в повільній або заблокованій мережі.</translation>
    </message>
    <message>
        <source>Still waiting for Tor to start, or for your approval.</source>
        <translation>Досі очікується запуск Tor або ваш дозвіл.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Перевірка</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Невідомо</translation>
    </message>
    <message>
        <source>Checked against %1</source>
        <translation>Перевірено через %1</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Підтверджено</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>Не підтверджено</translation>
    </message>
    <message>
        <source>DNS leak</source>
        <translation>Витік DNS</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>Не перевірено</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Перевірка…</translation>
    </message>
    <message>
        <source>No leaks</source>
        <translation>Витоків немає</translation>
    </message>
    <message>
        <source>Inconclusive</source>
        <translation>Не з’ясовано</translation>
    </message>
    <message>
        <source>Exposed: %1</source>
        <translation>Розкрито: %1</translation>
    </message>
    <message>
        <source>Tries a direct connection that skips Tor</source>
        <translation>Пробує пряме з’єднання повз Tor</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor are blocked</source>
        <translation>Прямі з’єднання повз Tor заблоковано</translation>
    </message>
    <message>
        <source>Apps that ignore proxy settings show your real IP (%1). Turn on Strict mode to block them.</source>
        <translation>Застосунки, які ігнорують налаштування проксі, показують вашу справжню IP-адресу (%1). Щоб заблокувати їх, увімкніть суворий режим.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>ще %1</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Не перевірено</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor show your real IP (%1), although Strict mode should block them. Disconnect, or run the leak test again.</source>
        <translation>Прямі з’єднання повз Tor показують вашу справжню IP-адресу (%1), хоча суворий режим мав би їх блокувати. Від’єднайтеся або повторіть тест витоків.</translation>
    </message>
</context>
<context>
    <name>veldmark::ReportModel</name>
    <message>
        <source>Saved in %1</source>
        <translation>Збережено в %1</translation>
    </message>
</context>
<context>
    <name>veldmark::SettingsModel</name>
    <message>
        <source>Found</source>
        <translation>Знайдено</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Бракує</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Не знайдено</translation>
    </message>
    <message>
        <source>Homebrew: %1</source>
        <translation>Homebrew: %1</translation>
    </message>
    <message>
        <source>Install it with %1</source>
        <translation>Установіть через %1</translation>
    </message>
    <message>
        <source>Not found in Tor Browser or a downloaded bundle</source>
        <translation>Не знайдено ні в Tor Browser, ні в завантаженому комплекті</translation>
    </message>
    <message>
        <source>Loaded from %1</source>
        <translation>Узято з %1</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <translation>Не завантажено</translation>
    </message>
    <message>
        <source>Version %1 loaded</source>
        <translation>Завантажено версію %1</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>підпис підтверджено</translation>
    </message>
    <message>
        <source>Adds one line to ~/.zshrc (and ~/.bash_profile if you have one) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>Додає один рядок до ~/.zshrc (і до ~/.bash_profile, якщо він є) та рядок Include на початок ~/.ssh/config. Файли зберігаються в ~/.veldmark. Трафік спрямовується через Tor, лише коли Veldmark під’єднано з увімкненим режимом термінала.</translation>
    </message>
    <message>
        <source>Adds one line to ~/.bashrc (and ~/.zshrc if you use zsh) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>Додає один рядок до ~/.bashrc (і до ~/.zshrc, якщо ви користуєтеся zsh) та рядок Include на початок ~/.ssh/config. Файли зберігаються в ~/.veldmark. Трафік спрямовується через Tor, лише коли Veldmark під’єднано з увімкненим режимом термінала.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версія %1</translation>
    </message>
    <message>
        <source>Fetched over HTTPS. Its signature isn&apos;t checked, since GnuPG isn&apos;t installed.</source>
        <translation>Завантажується через HTTPS. Підпис не перевіряється, бо GnuPG не встановлено.</translation>
    </message>
    <message>
        <source>Fetched over HTTPS and checked against the Tor Project&apos;s signature.</source>
        <translation>Завантажується через HTTPS і звіряється з підписом Проєкту Tor.</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Не встановлено</translation>
    </message>
    <message>
        <source>Installed in your shell and SSH config</source>
        <translation>Додано до налаштувань оболонки та SSH</translation>
    </message>
    <message>
        <source>Installed in your shell; SSH doesn&apos;t use it</source>
        <translation>Додано до налаштувань оболонки; SSH цим не користується</translation>
    </message>
    <message>
        <source>curl, git, brew, pip, ssh and more use Tor</source>
        <translation>curl, git, brew, pip, ssh та інші користуються Tor</translation>
    </message>
    <message>
        <source>curl, git, pip, ssh and more use Tor</source>
        <translation>curl, git, pip, ssh та інші користуються Tor</translation>
    </message>
    <message>
        <source>Veldmark is free software and independent of the Tor Project. It contains no Tor: it runs the tor that is installed here, and where bridges are used lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>Veldmark — вільна програма, незалежна від Проєкту Tor. Вона не містить Tor: вона запускає встановлений тут tor, а якщо використовуються мости — lyrebird, snowflake-client або webtunnel-client.</translation>
    </message>
    <message>
        <source>It sets up the network with macOS&apos;s own programs, asks for the administrator with sudo, and checks downloads with GnuPG where that is installed.</source>
        <translation>Мережу вона налаштовує власними програмами macOS, дозвіл адміністратора запитує через sudo, а завантажене перевіряє за допомогою GnuPG, якщо його встановлено.</translation>
    </message>
    <message>
        <source>It sets up the network with nftables, resolvectl and gsettings, asks for the administrator with polkit or sudo, takes ssh through Tor with a netcat, and checks downloads with GnuPG where that is installed.</source>
        <translation>Мережу вона налаштовує за допомогою nftables, resolvectl і gsettings, дозвіл адміністратора запитує через polkit або sudo, ssh спрямовує через Tor за допомогою netcat, а завантажене перевіряє за допомогою GnuPG, якщо його встановлено.</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Питати</translation>
    </message>
    <message>
        <source>Try bridges</source>
        <translation>Пробувати мости</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Нічого не робити</translation>
    </message>
</context>
<context>
    <name>veldmark::ShutdownNotice</name>
    <message>
        <source>Restoring your network settings</source>
        <translation>Відновлення налаштувань мережі</translation>
    </message>
</context>
<context>
    <name>veldmark::Text</name>
    <message>
        <source>Tor hasn&apos;t confirmed that it uses the network again, so traffic may not get through. Veldmark keeps telling Tor to. If this lasts, disconnect and connect again.</source>
        <translation>Tor не підтвердив, що він знову в мережі, тож, можливо, нічого не проходить. Veldmark і далі намагається повернути його в мережу; якщо не допоможе, від’єднайтеся й під’єднайтеся знову.</translation>
    </message>
    <message>
        <source>Version %1 is offered, which is older than the installed %2. Nothing was changed.</source>
        <translation>Запропоновано версію %1, старішу за встановлену %2. Нічого не змінено.</translation>
    </message>
    <message>
        <source>The download of version %1 contains another version, so it was discarded.</source>
        <translation>Те, що надійшло як версія %1, насправді є іншою версією, тому його відкинуто.</translation>
    </message>
    <message>
        <source>The download begins again when Tor is connected…</source>
        <translation>Завантаження почнеться знову, коли Tor під’єднається…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a location of Tor. Give an absolute path, such as /usr/bin/tor.</source>
        <translation>«%1» не може бути розташуванням Tor: укажіть повний шлях, наприклад /usr/bin/tor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be changed during a connection. Disconnect to change it.</source>
        <translation>«%1» діє впродовж усього під’єднання. Щоб змінити, від’єднайтеся.</translation>
    </message>
    <message>
        <source>Your traffic is not going through Tor</source>
        <translation>Ваш трафік не йде через Tor</translation>
    </message>
    <message>
        <source>Restoring your network settings…</source>
        <translation>Відновлення налаштувань мережі…</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor from an earlier session</source>
        <translation>Вашу мережу досі налаштовано на Tor після попереднього сеансу</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Вашу мережу досі налаштовано на Tor</translation>
    </message>
    <message>
        <source>Preparing Tor…</source>
        <translation>Підготовка Tor…</translation>
    </message>
    <message>
        <source>Waiting for administrator approval…</source>
        <translation>Очікування дозволу адміністратора…</translation>
    </message>
    <message>
        <source>Waiting for an administrator to approve a program…</source>
        <translation>Очікування, поки адміністратор схвалить програму…</translation>
    </message>
    <message>
        <source>Starting Tor…</source>
        <translation>Запуск Tor…</translation>
    </message>
    <message>
        <source>Tor is waiting for the bridge program, which hasn&apos;t said that it is ready.</source>
        <translation>Tor чекає на програму моста, яка ще не повідомила про готовність.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting</source>
        <translation>Tor не завершив під’єднання</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor припинив роботу</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor</source>
        <translation>Увесь трафік може йти лише через Tor</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor</source>
        <translation>Застосунки, що користуються системним проксі, працюють через Tor</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. Reconnect, or Restore Network to go back online.</source>
        <translation>Tor припинив роботу. Аварійне блокування досі не пропускає трафік, тож витоків не було. Під’єднайтеся знову або відновіть мережу, щоб повернутися в інтернет без Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, but the last checks saw traffic go around Tor. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor припинив роботу. Аварійне блокування досі не пропускає трафік, але останні перевірки виявили, що частина трафіку йшла повз Tor. Під’єднайтеся знову або відновіть мережу, щоб повернутися в інтернет без Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running. Apps using the proxy can&apos;t connect until you reconnect or Restore Network.</source>
        <translation>Tor припинив роботу. Застосунки, що користуються проксі, не матимуть зв’язку, доки ви не під’єднаєтеся знову або не відновите мережу.</translation>
    </message>
    <message>
        <source>Any (recommended)</source>
        <translation>Будь-яка (рекомендовано)</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>США</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Канада</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Велика Британія</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Німеччина</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Нідерланди</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Франція</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Швеція</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Швейцарія</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Фінляндія</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Румунія</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Японія</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Сінгапур</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Власні</translation>
    </message>
    <message>
        <source>DNS can go around Tor via: %1</source>
        <translation>DNS-запити можуть іти повз Tor через: %1</translation>
    </message>
    <message>
        <source>DNS: not tested yet.</source>
        <translation>DNS: ще не перевірено.</translation>
    </message>
    <message>
        <source>DNS: testing…</source>
        <translation>DNS: перевірка…</translation>
    </message>
    <message>
        <source>DNS: a test lookup went through Tor.</source>
        <translation>DNS: тестовий запит пройшов через Tor.</translation>
    </message>
    <message>
        <source>DNS: settings point at Tor, but a test lookup couldn&apos;t be confirmed.</source>
        <translation>DNS: налаштування вказують на Tor, але підтвердити тестовий запит не вдалося.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Цей комп’ютер</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Цей Mac</translation>
    </message>
    <message>
        <source>on this computer</source>
        <translation>на цьому комп’ютері</translation>
    </message>
    <message>
        <source>on this Mac</source>
        <translation>на цьому Mac</translation>
    </message>
    <message>
        <source>Tor stopped running, and your network is no longer set up for it.</source>
        <translation>Tor припинив роботу, і вашу мережу більше не налаштовано на нього.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is blocking traffic again, but another program had removed its rules for a while. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor припинив роботу. Аварійне блокування знову не пропускає трафік, але інша програма на певний час вилучала його правила. Під’єднайтеся знову або відновіть мережу, щоб повернутися в інтернет без Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running, and the kill switch doesn&apos;t block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network.</source>
        <translation>Tor припинив роботу, і аварійне блокування не діє: інша програма вилучила його правила. Трафік може виходити з цього комп’ютера напряму. Під’єднайтеся знову або відновіть мережу.</translation>
    </message>
    <message>
        <source>Tor stopped running, and it isn&apos;t known whether the kill switch is still blocking traffic. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor припинив роботу, і невідомо, чи аварійне блокування досі не пропускає трафік. Під’єднайтеся знову або відновіть мережу, щоб повернутися в інтернет без Tor.</translation>
    </message>
    <message>
        <source>The watcher of Veldmark&apos;s firewall rules has stopped reporting, so it isn&apos;t known whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>Спостерігач за правилами Veldmark у брандмауері перестав повідомляти про них, тож невідомо, чи діє аварійне блокування. Від’єднайтеся й під’єднайтеся знову.</translation>
    </message>
    <message>
        <source>Not Protected</source>
        <translation>Не захищено</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Під’єднання…</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Від’єднання…</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>Захищено</translation>
    </message>
    <message>
        <source>Proxy Active</source>
        <translation>Проксі активний</translation>
    </message>
    <message>
        <source>Needs Attention</source>
        <translation>Потрібна увага</translation>
    </message>
    <message>
        <source>DNS Leak</source>
        <translation>Витік DNS</translation>
    </message>
    <message>
        <source>Kill Switch Failed</source>
        <translation>Блокування не діє</translation>
    </message>
    <message>
        <source>Traffic may leave this computer directly</source>
        <translation>Трафік може виходити з цього комп’ютера напряму</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>DNS-запити можуть іти повз Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor, and your real address can be seen</source>
        <translation>DNS-запити можуть іти повз Tor, і вашу справжню адресу видно</translation>
    </message>
    <message>
        <source>Your real address can be seen. Disconnect, or run the leak test again.</source>
        <translation>Вашу справжню адресу видно. Від’єднайтеся або повторіть тест витоків.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>Невідомо, чи діє аварійне блокування. Від’єднайтеся й під’єднайтеся знову.</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor, but the exit could not be confirmed</source>
        <translation>Увесь трафік може йти лише через Tor, але підтвердити вихід не вдалося</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor, but the exit could not be confirmed</source>
        <translation>Застосунки, що користуються системним проксі, працюють через Tor, але підтвердити вихід не вдалося</translation>
    </message>
    <message>
        <source>No Network</source>
        <translation>Немає мережі</translation>
    </message>
    <message>
        <source>Nothing Gets Through</source>
        <translation>Нічого не проходить</translation>
    </message>
    <message>
        <source>This computer has no network. Traffic around Tor stays blocked.</source>
        <translation>На цьому комп’ютері немає мережі. Трафік повз Tor і далі блокується.</translation>
    </message>
    <message>
        <source>This computer has no network. Veldmark goes on when it is back.</source>
        <translation>На цьому комп’ютері немає мережі. Veldmark продовжить, коли вона з’явиться.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor не має робочого ланцюга й продовжує спроби. Трафік повз Tor і далі блокується.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying.</source>
        <translation>Tor не має робочого ланцюга й продовжує спроби.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor не отримує відповіді з мережі й продовжує спроби. Трафік повз Tor і далі блокується.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying.</source>
        <translation>Tor не отримує відповіді з мережі й продовжує спроби.</translation>
    </message>
    <message>
        <source>Another program has ended this session and started its own. Restore Network ends that session.</source>
        <translation>Інша програма завершила цей сеанс і почала власний. «Відновити мережу» завершує той, новий.</translation>
    </message>
    <message>
        <source>This computer has no network, so Tor can&apos;t connect.</source>
        <translation>На цьому комп’ютері немає мережі, тому Tor не може під’єднатися.</translation>
    </message>
    <message>
        <source>A VPN takes Tor&apos;s traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode.</source>
        <translation>Трафік Tor перехоплює VPN, а суворий режим не випускає VPN назовні. Вимкніть VPN або скористайтеся режимом проксі.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules; they are back in place.</source>
        <translation>Інша програма вилучила правила Veldmark із брандмауера; їх уже відновлено.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules and they could not be put back. Traffic may leave this computer directly. Disconnect and connect again.</source>
        <translation>Інша програма вилучила правила Veldmark із брандмауера, і відновити їх не вдалося. Трафік може виходити з цього комп’ютера напряму. Від’єднайтеся й під’єднайтеся знову.</translation>
    </message>
    <message>
        <source>Invalid exit country.</source>
        <translation>Хибна країна виходу.</translation>
    </message>
    <message>
        <source>The settings couldn&apos;t be saved. Changes to them may last only until you quit.</source>
        <translation>Не вдалося зберегти налаштування. Зміни в них можуть діяти лише до виходу з програми.</translation>
    </message>
    <message>
        <source>Checking latest version…</source>
        <translation>Пошук найновішої версії…</translation>
    </message>
    <message>
        <source>Verifying signature…</source>
        <translation>Перевірка підпису…</translation>
    </message>
    <message>
        <source>Another download is under way.</source>
        <translation>Уже триває інше завантаження.</translation>
    </message>
    <message>
        <source>Path not responding, finding another…</source>
        <translation>Шлях не відповідає, пошук іншого…</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes.</source>
        <translation>Tor не завершив під’єднання за 5 хвилин.</translation>
    </message>
    <message>
        <source>Administrator access was refused, or the agent that asks for the password gave no answer.</source>
        <translation>У правах адміністратора відмовлено, або програма, що запитує пароль, не відповіла.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, so Tor can&apos;t connect: %1.</source>
        <translation>Інший брандмауер на цьому комп’ютері забороняє вихідні з’єднання, тому Tor не може під’єднатися: %1.</translation>
    </message>
    <message>
        <source>Setup ran but the helper wasn&apos;t installed. Try again.</source>
        <translation>Налаштування виконано, але допоміжну програму не встановлено. Спробуйте ще раз.</translation>
    </message>
    <message>
        <source>The helper failed without an error message.</source>
        <translation>Допоміжна програма завершилася з помилкою, але без повідомлення про неї.</translation>
    </message>
    <message>
        <source>Add at least one bridge under Bridges → Custom….</source>
        <translation>Додайте хоча б один міст у «Мости → Власні…».</translation>
    </message>
    <message>
        <source>Some custom bridge lines aren&apos;t valid. Fix them under Bridges → Custom….</source>
        <translation>Деякі рядки власних мостів хибні. Виправте їх у «Мости → Власні…».</translation>
    </message>
    <message>
        <source>At most %1 custom bridges can be used. Remove some under Bridges → Custom….</source>
        <translation>Власних мостів може бути не більше ніж %1. Вилучіть зайві в «Мости → Власні…».</translation>
    </message>
    <message>
        <source>Testing speed (%1 of %2)…</source>
        <translation>Вимірювання швидкості (%1 із %2)…</translation>
    </message>
    <message>
        <source>Slow path (%1 ms), finding a faster one…</source>
        <translation>Повільний шлях (%1 мс), пошук швидшого…</translation>
    </message>
    <message>
        <source>Downloading Tor %1 bridge programs…</source>
        <translation>Завантаження програм для мостів Tor %1…</translation>
    </message>
    <message>
        <source>Download of %1 failed (HTTP %2).</source>
        <translation>Не вдалося завантажити: %1 (HTTP %2).</translation>
    </message>
    <message>
        <source>The settings file couldn&apos;t be read. It was kept as %1, and a new one is used.</source>
        <translation>Не вдалося прочитати файл налаштувань. Його збережено як %1, а замість нього використовується новий.</translation>
    </message>
    <message>
        <source>The settings file %1 can&apos;t be read or replaced. Changes to the settings last until you quit.</source>
        <translation>Файл налаштувань %1 не вдається ні прочитати, ні замінити. Зміни налаштувань діятимуть лише до виходу з програми.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1 without Tor: %2</source>
        <translation>Не вдалося відкрити %1 без Tor: %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>Інший ваш Veldmark тим часом почав сеанс, тому жодного сеансу не завершено. Щоб завершити той сеанс, від’єднайтеся ще раз.</translation>
    </message>
    <message>
        <source>Another user&apos;s Veldmark has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>Veldmark іншого користувача тим часом почав сеанс, тому жодного сеансу не завершено. Щоб завершити той сеанс, від’єднайтеся ще раз.</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by another Veldmark of yours, process %1</source>
        <translation>Вашу мережу налаштував на Tor інший ваш Veldmark, процес %1</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by %1, whose Veldmark is process %2</source>
        <translation>Вашу мережу налаштував на Tor користувач %1, його Veldmark — процес %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours is connected (process %1). Disconnect it, or restore the network, first.</source>
        <translation>Інший ваш Veldmark під’єднано (процес %1). Спершу від’єднайте його або відновіть мережу.</translation>
    </message>
    <message>
        <source>%1 is connected with Veldmark (process %2). That session must be ended first.</source>
        <translation>Користувач %1 під’єднаний через Veldmark (процес %2). Спершу треба завершити цей сеанс.</translation>
    </message>
    <message>
        <source>%1 Your network is still pointed at Tor. Click Restore Network to undo.</source>
        <translation>%1 Вашу мережу досі налаштовано на Tor. Щоб скасувати це, натисніть «Відновити мережу».</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install the OpenBSD netcat or Ncat with your package manager.</source>
        <translation>ssh ще не йде через Tor: потрібен netcat із підтримкою SOCKS. Установіть netcat від OpenBSD або Ncat за допомогою менеджера пакунків.</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up terminal mode: %1</source>
        <translation>Не вдалося налаштувати режим термінала: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove terminal integration: %1</source>
        <translation>Не вдалося вилучити інтеграцію з терміналом: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up passwordless mode: %1</source>
        <translation>Не вдалося налаштувати режим без пароля: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove passwordless mode: %1</source>
        <translation>Не вдалося вилучити режим без пароля: %1</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install one with: %1</source>
        <translation>ssh ще не йде через Tor: потрібен netcat із підтримкою SOCKS. Щоб установити його: %1</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Щоб відкривати застосунки без Tor, під’єднайтеся в суворому режимі</translation>
    </message>
    <message>
        <source>No bridge answered a quick test, trying them all</source>
        <translation>Жоден міст не відповів на швидку перевірку, тому випробовуються всі</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Для цих мостів потрібен lyrebird, який постачається з Tor Browser. Щоб отримати його, натисніть «Завантажити» біля пункту «Мости».</translation>
    </message>
    <message>
        <source>Snowflake needs snowflake-client, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Для Snowflake потрібен snowflake-client, який постачається з Tor Browser. Щоб отримати його, натисніть «Завантажити» біля пункту «Мости».</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the latest Tor version from torproject.org.</source>
        <translation>Не вдалося дізнатися найновішу версію Tor із torproject.org.</translation>
    </message>
    <message>
        <source>The request timed out.</source>
        <translation>Час очікування відповіді вичерпано.</translation>
    </message>
    <message>
        <source>The server gave no HTTP answer.</source>
        <translation>Сервер не надав відповіді HTTP.</translation>
    </message>
    <message>
        <source>The connection was lost before the download ended.</source>
        <translation>З’єднання перервалося до завершення завантаження.</translation>
    </message>
    <message>
        <source>Not connected to Tor&apos;s control port.</source>
        <translation>Немає зв’язку з портом керування Tor.</translation>
    </message>
    <message>
        <source>Tor closed the control connection.</source>
        <translation>Tor закрив з’єднання керування.</translation>
    </message>
    <message>
        <source>A program other than Tor listens on Tor&apos;s control port.</source>
        <translation>Порт керування Tor прослуховує інша програма, а не Tor.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t answer on its control port in time.</source>
        <translation>Tor не відповів на порту керування вчасно.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager or set its location in Settings.</source>
        <translation>Tor не встановлено. Установіть його за допомогою менеджера пакунків або вкажіть його розташування в налаштуваннях.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with Homebrew (brew install tor) or set its location in Settings.</source>
        <translation>Tor не встановлено. Установіть його через Homebrew (brew install tor) або вкажіть його розташування в налаштуваннях.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: polkit is not running on this system.</source>
        <translation>Неможливо запитати права адміністратора: у цій системі не запущено polkit.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: no PolicyKit authentication agent is running in this session.</source>
        <translation>Неможливо запитати права адміністратора: у цьому сеансі не запущено агента автентифікації PolicyKit.</translation>
    </message>
    <message>
        <source>The password could not be checked: polkit accepts no password from this terminal. Run the command with sudo.</source>
        <translation>Не вдалося перевірити пароль: polkit не приймає його з цього термінала. Виконайте команду через sudo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t fix DNS: %1</source>
        <translation>Не вдалося виправити DNS: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t request a new identity: %1</source>
        <translation>Не вдалося запросити нову ідентичність: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read circuits: %1</source>
        <translation>Не вдалося прочитати ланцюги: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the login-item setting: %1</source>
        <translation>Не вдалося змінити запуск під час входу: %1</translation>
    </message>
    <message>
        <source>Login items can&apos;t be changed here.</source>
        <translation>Об’єкти входу тут змінити не можна.</translation>
    </message>
    <message>
        <source>Move Veldmark to the Applications folder and open it from there first.</source>
        <translation>Спершу перемістіть Veldmark до теки «Програми» й відкрийте його звідти.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1.</source>
        <translation>Не вдалося вилучити %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <translation>Не вдалося записати %1: %2</translation>
    </message>
    <message>
        <source>Couldn&apos;t download bridge programs: %1</source>
        <translation>Не вдалося завантажити програми для мостів: %1</translation>
    </message>
    <message>
        <source>Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download again to also verify the Tor Project&apos;s signature.</source>
        <translation>Програми для мостів версії %1 завантажено через HTTPS і встановлено. Щоб перевірити ще й підпис Проєкту Tor, установіть GnuPG (%2) і завантажте їх знову.</translation>
    </message>
    <message>
        <source>The download&apos;s signature didn&apos;t verify, so it was discarded. %1</source>
        <translation>Підпис завантаженого файлу не пройшов перевірки, тому файл відкинуто. %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unpack the download. %1</source>
        <translation>Не вдалося розпакувати завантажений файл. %1</translation>
    </message>
    <message>
        <source>Tor can&apos;t reach the bridge program: %1.</source>
        <translation>Tor не може зв’язатися з програмою моста: %1.</translation>
    </message>
    <message>
        <source>Tor reports: %1 (%2).</source>
        <translation>Tor повідомляє: %1 (%2).</translation>
    </message>
    <message>
        <source>Tor reports: %1.</source>
        <translation>Tor повідомляє: %1.</translation>
    </message>
    <message>
        <source>Tor replied: %1</source>
        <translation>Відповідь Tor: %1</translation>
    </message>
    <message>
        <source>Tor has trouble with the bridge program: %1</source>
        <translation>У Tor труднощі з програмою моста: %1</translation>
    </message>
    <message>
        <source>The bridge program printed something that Tor doesn&apos;t understand: &quot;%1&quot;.</source>
        <translation>Програма моста вивела те, чого Tor не розуміє: «%1».</translation>
    </message>
    <message>
        <source>Using the %1 fastest of %2 bridges</source>
        <translation>Використовуються найшвидші мости: %1 із %2</translation>
    </message>
    <message>
        <source>The %1 bridge type isn&apos;t supported yet.</source>
        <translation>Мости типу %1 ще не підтримуються.</translation>
    </message>
    <message>
        <source>Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, install Tor Browser, or paste your own under Bridges → Custom….</source>
        <translation>Вбудовані мости %1 постачаються з Tor Browser. Натисніть «Завантажити» біля пункту «Мости», установіть Tor Browser або вставте свої в «Мости → Власні…».</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1.</source>
        <translation>Деякі налаштування DNS задано поза Veldmark (VPN або /etc/resolver), і вони досі ведуть повз Tor: %1.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1. Strict mode&apos;s firewall blocks them.</source>
        <translation>Деякі налаштування DNS задано поза Veldmark (VPN або /etc/resolver), і вони досі ведуть повз Tor: %1. Брандмауер суворого режиму їх блокує.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager (%1) or set its location in Settings.</source>
        <translation>Tor не встановлено. Установіть його за допомогою менеджера пакунків (%1) або вкажіть його розташування в налаштуваннях.</translation>
    </message>
    <message>
        <source>%1 is already being opened.</source>
        <translation>%1 уже відкривається.</translation>
    </message>
    <message>
        <source>A session is open, and its kill switch doesn&apos;t block traffic: its watcher couldn&apos;t put the rules back. Traffic may leave this computer directly. Restore the network, and connect again.</source>
        <translation>Сеанс відкрито, але його аварійне блокування не діє: спостерігач не зміг відновити правила. Трафік може виходити з цього комп’ютера напряму. Відновіть мережу й під’єднайтеся знову.</translation>
    </message>
    <message>
        <source>The clock is behind: it shows %1, but the file %2 was written on %3. Tor needs a clock that is right to within minutes.</source>
        <translation>Годинник відстає: він показує %1, але файл %2 записано %3. Для Tor годинник має бути точним до кількох хвилин.</translation>
    </message>
    <message>
        <source>The clock is set from the network. It shows %1.</source>
        <translation>Годинник синхронізується через мережу. Він показує %1.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether the clock is right: no time service seems to set it. It shows %1. Tor needs it right to within minutes.</source>
        <translation>Невідомо, чи точний годинник: не видно, щоб щось синхронізувало його через мережу. Він показує %1. Для Tor він має бути точним до кількох хвилин.</translation>
    </message>
    <message>
        <source>nftables isn&apos;t installed. Veldmark&apos;s firewall needs it.</source>
        <translation>nftables не встановлено. Він потрібен брандмауеру Veldmark.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall, nftables, can be used.</source>
        <translation>Системний брандмауер nftables можна використовувати.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall can&apos;t be used: %1</source>
        <translation>Системний брандмауер використовувати неможливо: %1</translation>
    </message>
    <message>
        <source>The running kernel (%1) has no nftables. After an upgrade of the kernel, restart the computer.</source>
        <translation>Запущене ядро (%1) не має nftables. Після оновлення ядра перезапустіть комп’ютер.</translation>
    </message>
    <message>
        <source>nftables is installed. Only root can tell whether the running kernel can use it.</source>
        <translation>nftables встановлено. Чи може запущене ядро його використовувати, відомо лише root.</translation>
    </message>
    <message>
        <source>nftables is installed, and the kernel has it.</source>
        <translation>nftables встановлено, і ядро його підтримує.</translation>
    </message>
    <message>
        <source>This system has no control groups of version 2, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>Ця система не має контрольних груп версії 2, тому відкрити застосунок без Tor неможливо, а аварійне блокування розпізнає Tor лише за його обліковим записом. Усе інше працює.</translation>
    </message>
    <message>
        <source>The kernel (%1) is older than 5.13, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>Ядро (%1) старіше за 5.13, тому відкрити застосунок без Tor неможливо, а аварійне блокування розпізнає Tor лише за його обліковим записом. Усе інше працює.</translation>
    </message>
    <message>
        <source>Applications can be opened without Tor: control groups of version 2 are there.</source>
        <translation>Застосунки можна відкривати без Tor: контрольні групи версії 2 є.</translation>
    </message>
    <message>
        <source>No other firewall that Veldmark knows runs. Only root can read the rules themselves.</source>
        <translation>Інших відомих Veldmark брандмауерів не запущено. Прочитати самі правила може лише root.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic that its rules don&apos;t allow, so Tor may not get through: %1.</source>
        <translation>Інший брандмауер на цьому комп’ютері забороняє вихідні з’єднання, якщо їх не дозволяє одне з його правил, тому Tor може не пройти: %1.</translation>
    </message>
    <message>
        <source>Other programs set firewall rules here: %1. Veldmark leaves their rules alone. Rules that drop packets can block Tor.</source>
        <translation>Правила брандмауера тут задають також інші програми: %1. Veldmark не чіпає їхніх правил. Правила, що відкидають пакети, можуть блокувати Tor.</translation>
    </message>
    <message>
        <source>pkexec isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>pkexec не встановлено, тому жодне вікно не може запитати пароль адміністратора.</translation>
    </message>
    <message>
        <source>polkit isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>polkit не встановлено, тому жодне вікно не може запитати пароль адміністратора.</translation>
    </message>
    <message>
        <source>There is no desktop here on which a window could ask for the administrator&apos;s password. Use sudo.</source>
        <translation>Тут немає стільниці, на якій вікно могло б запитати пароль адміністратора. Скористайтеся sudo.</translation>
    </message>
    <message>
        <source>No known polkit agent, the program that asks for the password, runs in your session. Use sudo, or start an agent such as lxpolkit.</source>
        <translation>У вашому сеансі не запущено жодного відомого агента polkit — програми, що запитує пароль. Скористайтеся sudo або запустіть агент, наприклад lxpolkit.</translation>
    </message>
    <message>
        <source>polkit is installed, and an agent that asks for the password runs in your session.</source>
        <translation>polkit встановлено, і у вашому сеансі запущено агент, що запитує пароль.</translation>
    </message>
    <message>
        <source>Veldmark runs as root here and asks for no password.</source>
        <translation>Veldmark запущено тут від імені root, і пароля він не запитує.</translation>
    </message>
    <message>
        <source>Passwordless mode is set up.</source>
        <translation>Режим без пароля налаштовано.</translation>
    </message>
    <message>
        <source>sudo isn&apos;t installed. Passwordless mode needs it.</source>
        <translation>sudo не встановлено. Він потрібен для режиму без пароля.</translation>
    </message>
    <message>
        <source>sudo is installed. Only root can tell whether you may use it.</source>
        <translation>sudo встановлено. Чи можна вам ним користуватися, відомо лише root.</translation>
    </message>
    <message>
        <source>sudo is installed, and you are in the group %1.</source>
        <translation>sudo встановлено, і ви належите до групи %1.</translation>
    </message>
    <message>
        <source>The program listens on IPv6. If it takes IPv6 alone, Tor can use the port.</source>
        <translation>Програма слухає IPv6. Якщо вона приймає лише IPv6, Tor може використати порт.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by a program of the account %2.</source>
        <translation>Порт %1, потрібний Tor, займає програма облікового запису %2.</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) runs. Veldmark stops it while it is connected and starts it again afterwards.</source>
        <translation>Працює системна служба Tor (%1). Veldmark зупиняє її, поки він під’єднаний, а потім запускає знову.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2 (process %3, account %4).</source>
        <translation>Порт %1, потрібний Tor, займає %2 (процес %3, обліковий запис %4).</translation>
    </message>
    <message>
        <source>Veldmark&apos;s own Tor holds the ports 9050, 9051 and 293.</source>
        <translation>Порти 9050, 9051 і 293 займає власний Tor програми Veldmark.</translation>
    </message>
    <message>
        <source>The ports that Tor needs (9050, 9051 and 293) are free.</source>
        <translation>Порти, потрібні Tor (9050, 9051 і 293), вільні.</translation>
    </message>
    <message>
        <source>The location of Tor in the settings, %1, is not an executable program. Veldmark searches the usual places instead.</source>
        <translation>Розташування Tor у налаштуваннях, %1, не вказує на програму, яку можна запустити. Натомість пошук іде у звичних місцях.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed.</source>
        <translation>Tor не встановлено.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t start, or isn&apos;t Tor: it prints no version.</source>
        <translation>%1 не запускається або це не Tor: програма не повідомляє своєї версії.</translation>
    </message>
    <message>
        <source>Tor %1 is installed: %2.</source>
        <translation>Tor %1 встановлено: %2.</translation>
    </message>
    <message>
        <source>The program %1 is missing. Veldmark&apos;s helper needs it.</source>
        <translation>Бракує програми %1. Вона потрібна допоміжній програмі Veldmark.</translation>
    </message>
    <message>
        <source>Every program that Veldmark&apos;s helper calls is installed.</source>
        <translation>Усі програми, які викликає допоміжна програма Veldmark, встановлено.</translation>
    </message>
    <message>
        <source>The helper is missing. Reinstall Veldmark.</source>
        <translation>Бракує допоміжної програми Veldmark. Установіть Veldmark знову.</translation>
    </message>
    <message>
        <source>Accounts other than root can change Veldmark&apos;s helper, %1, and with it what the administrator&apos;s password runs.</source>
        <translation>Не лише root, а й інші облікові записи можуть змінити допоміжну програму Veldmark, %1, а отже й те, що запускається з паролем адміністратора.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper, %1, is not installed: the account %2 can change it, and with it what the administrator&apos;s password runs.</source>
        <translation>Допоміжну програму Veldmark, %1, не встановлено в системі: обліковий запис %2 може змінити її, а отже й те, що запускається з паролем адміністратора.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper is installed, and only root can change it: %1.</source>
        <translation>Допоміжну програму Veldmark встановлено, і змінити її може лише root: %1.</translation>
    </message>
    <message>
        <source>The helper of passwordless mode belongs to another version. Set up passwordless mode again in Settings, General.</source>
        <translation>Допоміжна програма режиму без пароля — від іншої версії. Налаштуйте режим без пароля заново: «Налаштування», розділ «Загальне».</translation>
    </message>
    <message>
        <source>Bridges are off. Bridges need bridge programs where Tor is blocked, and none was found.</source>
        <translation>Мости вимкнено. Там, де Tor заблоковано, для них потрібні програми, а жодної не знайдено.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridge programs were found: %1.</source>
        <translation>Мости вимкнено. Знайдено програми для мостів: %1.</translation>
    </message>
    <message>
        <source>The chosen bridges can&apos;t be used. %1</source>
        <translation>Вибрані мости використовувати неможливо. %1</translation>
    </message>
    <message>
        <source>The chosen bridges (%1) can be used: %2.</source>
        <translation>Вибрані мости (%1) можна використовувати: %2.</translation>
    </message>
    <message>
        <source>%1 manages DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>За DNS відповідає %1. На час під’єднання Veldmark змінює це, а потім відновлює.</translation>
    </message>
    <message>
        <source>Veldmark wrote %1. It points DNS at Tor.</source>
        <translation>Файл %1 створив Veldmark. Сервером імен у ньому вказано Tor.</translation>
    </message>
    <message>
        <source>The file %1 is missing, so DNS may not work at all.</source>
        <translation>Файлу %1 немає, тому DNS може не працювати взагалі.</translation>
    </message>
    <message>
        <source>A resolver on this computer answers DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>На DNS-запити відповідає служба на цьому комп’ютері. На час під’єднання Veldmark змінює це, а потім відновлює.</translation>
    </message>
    <message>
        <source>No earlier session is left open.</source>
        <translation>Незавершених попередніх сеансів немає.</translation>
    </message>
    <message>
        <source>A Tor of an earlier session still runs (process %1).</source>
        <translation>Tor із попереднього сеансу досі працює (процес %1).</translation>
    </message>
    <message>
        <source>A session is open: the network is set up for Tor, and Tor runs.</source>
        <translation>Сеанс відкрито: мережу налаштовано на Tor, і Tor працює.</translation>
    </message>
    <message>
        <source>The network is set up for Tor. It isn&apos;t known whether Tor still runs.</source>
        <translation>Мережу налаштовано на Tor. Чи досі працює Tor, тут невідомо.</translation>
    </message>
    <message>
        <source>The network is still set up for Tor from an earlier session, and no Tor runs. Connect again, or restore the network.</source>
        <translation>Мережу досі налаштовано на Tor після попереднього сеансу, а Tor не працює. Під’єднайтеся знову або відновіть мережу.</translation>
    </message>
    <message>
        <source>A session is open, and it isn&apos;t known whether its kill switch blocks traffic: no watcher watches the rules. Restore the network, and connect again.</source>
        <translation>Сеанс відкрито, але невідомо, чи діє його аварійне блокування: жоден спостерігач не стежить за правилами. Відновіть мережу й під’єднайтеся знову.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Скасовано.</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>%1 of %2 MB (%3%)</source>
        <translation>%1 із %2 МБ (%3 %)</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this computer. While connected, Veldmark stops the system&apos;s own Tor service.</source>
        <translation>Щоб керувати спрямуванням через Tor на цьому комп’ютері, Veldmark потрібні права адміністратора. На час з’єднання Veldmark зупиняє системну службу Tor.</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this Mac.</source>
        <translation>Щоб керувати спрямуванням через Tor на цьому Mac, Veldmark потрібні права адміністратора.</translation>
    </message>
    <message>
        <source>The archive contains %1: %2</source>
        <translation>В архіві є %1: %2</translation>
    </message>
    <message>
        <source>a link that leads elsewhere</source>
        <translation>посилання, що веде за його межі</translation>
    </message>
    <message>
        <source>a hard link</source>
        <translation>жорстке посилання</translation>
    </message>
    <message>
        <source>an entry that is neither a file nor a folder</source>
        <translation>об’єкт, що не є ні файлом, ні текою</translation>
    </message>
    <message>
        <source>a path that leads elsewhere</source>
        <translation>шлях, що веде за його межі</translation>
    </message>
    <message>
        <source>The file is empty or not an archive.</source>
        <translation>Архів порожній або це не архів.</translation>
    </message>
    <message>
        <source>The archive&apos;s list of files is ambiguous.</source>
        <translation>Список файлів архіву неоднозначний.</translation>
    </message>
    <message>
        <source>The archive contains too many files.</source>
        <translation>В архіві забагато файлів.</translation>
    </message>
    <message>
        <source>The archive&apos;s content is too large.</source>
        <translation>Вміст архіву завеликий.</translation>
    </message>
    <message>
        <source>The archive&apos;s content could not be listed.</source>
        <translation>Не вдалося отримати список вмісту архіву.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make the folder %1: %2.</source>
        <translation>Не вдалося створити теку %1: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1: %2.</source>
        <translation>Не вдалося відкрити %1: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make a folder beside %1: %2.</source>
        <translation>Не вдалося створити теку поруч із %1: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2.</source>
        <translation>Не вдалося записати %1: %2.</translation>
    </message>
    <message>
        <source>%1 didn&apos;t end within %2 minutes.</source>
        <translation>Програма %1 не завершила роботу за %2 хв.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load the Tor Browser signing key. %1</source>
        <translation>Не вдалося завантажити ключ підпису Tor Browser. %1</translation>
    </message>
    <message>
        <source>The server sent more than %1 can be.</source>
        <translation>Сервер надіслав забагато даних: %1.</translation>
    </message>
    <message>
        <source>the version index</source>
        <translation>список версій</translation>
    </message>
    <message>
        <source>the bridge programs</source>
        <translation>програми для мостів</translation>
    </message>
    <message>
        <source>signature</source>
        <translation>підпис</translation>
    </message>
    <message>
        <source>signing key</source>
        <translation>ключ підпису</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>Установлення…</translation>
    </message>
    <message>
        <source>No applications are installed.</source>
        <translation>Застосунків не встановлено.</translation>
    </message>
    <message>
        <source>(not in the menu)</source>
        <translation>(немає в меню)</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Файлу «%1» немає.</translation>
    </message>
    <message>
        <source>There is no application &quot;%1&quot;; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>Застосунку «%1» немає; список показує «veldmarkctl apps».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be any of: %2. Give the path.</source>
        <translation>«%1» може означати будь-який із таких: %2. Укажіть шлях.</translation>
    </message>
    <message>
        <source>%1 needs a key: veldmarkctl %1 KEY.</source>
        <translation>Для %1 потрібен ключ: veldmarkctl %1 KEY.</translation>
    </message>
    <message>
        <source>%1 needs a key and a value: veldmarkctl %1 KEY VALUE.</source>
        <translation>Для %1 потрібні ключ і значення: veldmarkctl %1 KEY VALUE.</translation>
    </message>
    <message>
        <source>A command is missing. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Не вказано команди. Список команд показує «veldmarkctl help».</translation>
    </message>
    <message>
        <source>Unknown command %1. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Невідома команда %1. Список команд показує «veldmarkctl help».</translation>
    </message>
    <message>
        <source>%1 has no option %2.</source>
        <translation>Команда %1 не має параметра %2.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t take %2.</source>
        <translation>Команда %1 не приймає %2.</translation>
    </message>
    <message>
        <source>usage: veldmarkctl COMMAND</source>
        <translation>використання: veldmarkctl COMMAND</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage,
3 Veldmark is not running, 4 Veldmark is already running.</source>
        <translation>Код завершення: 0 — готово, 1 — помилка (причина в стандартному потоці помилок),
2 — хибний виклик, 3 — Veldmark не запущено, 4 — Veldmark уже запущено.</translation>
    </message>
    <message>
        <source>line %1 is not a bridge line: %2</source>
        <translation>рядок %1 не є рядком моста: %2</translation>
    </message>
    <message>
        <source>%1 too many, from line %2 on; at most %3 can be used</source>
        <translation>зайвих: %1, починаючи з рядка %2; може бути не більше ніж %3</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Програми</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>не знайдено</translation>
    </message>
    <message>
        <source>doesn&apos;t say which transports it serves</source>
        <translation>не повідомляє, які транспорти підтримує</translation>
    </message>
    <message>
        <source>serves %1</source>
        <translation>підтримує %1</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Вбудовані мости</translation>
    </message>
    <message>
        <source>Built-in bridges, from %1</source>
        <translation>Вбудовані мости, з %1</translation>
    </message>
    <message>
        <source>none; get some with: veldmarkctl download-transports</source>
        <translation>немає; завантажити: veldmarkctl download-transports</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>підпис підтверджено</translation>
    </message>
    <message>
        <source>signature not verified</source>
        <translation>підпис не перевірено</translation>
    </message>
    <message>
        <source>not downloaded</source>
        <translation>не завантажено</translation>
    </message>
    <message>
        <source>Your own bridges</source>
        <translation>Ваші власні мости</translation>
    </message>
    <message>
        <source>%1 valid</source>
        <translation>правильних: %1</translation>
    </message>
    <message>
        <source>Installed Tor Expert Bundle %1, signature verified.</source>
        <translation>Tor Expert Bundle %1 встановлено, підпис підтверджено.</translation>
    </message>
    <message>
        <source>Veldmark isn&apos;t running. Start it with: veldmarkctl run --connect</source>
        <translation>Veldmark не запущено. Запустіть його: veldmarkctl run --connect</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;. Fields: %2.</source>
        <translation>Поля «%1» немає. Наявні поля: %2.</translation>
    </message>
    <message>
        <source>list the commands</source>
        <translation>показати список команд</translation>
    </message>
    <message>
        <source>good</source>
        <translation>добре</translation>
    </message>
    <message>
        <source>note</source>
        <translation>примітка</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>невідомо</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>проблема</translation>
    </message>
    <message>
        <source>A connect can work.</source>
        <translation>Під’єднання можливе.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work yet.</source>
        <translation>Під’єднання ще неможливе.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work until each &quot;problem&quot; is fixed.</source>
        <translation>Під’єднання неможливе, доки не буде усунено кожну «проблему».</translation>
    </message>
    <message>
        <source>proxy: apps that ignore the system proxy are not covered</source>
        <translation>проксі: не охоплює застосунків, що ігнорують системний проксі</translation>
    </message>
    <message>
        <source>strict: only Tor&apos;s traffic leaves</source>
        <translation>суворий: назовні виходить лише трафік Tor</translation>
    </message>
    <message>
        <source>strict</source>
        <translation>суворий</translation>
    </message>
    <message>
        <source>blocks traffic, since %1</source>
        <translation>діє з %1</translation>
    </message>
    <message>
        <source>blocks traffic; put back at %1 after another program had removed it</source>
        <translation>діє; відновлено %1 після того, як його зняла інша програма</translation>
    </message>
    <message>
        <source>NOT BLOCKING since %1: traffic may leave this computer directly</source>
        <translation>НЕ ДІЄ з %1: трафік може виходити з цього комп’ютера напряму</translation>
    </message>
    <message>
        <source>isn&apos;t known to block traffic, since %1</source>
        <translation>з %1 невідомо, чи діє</translation>
    </message>
    <message>
        <source>not checked yet</source>
        <translation>ще не перевірено</translation>
    </message>
    <message>
        <source>the check service didn&apos;t answer through Tor</source>
        <translation>служба перевірки не відповіла через Tor</translation>
    </message>
    <message>
        <source>%1, a Tor exit</source>
        <translation>%1, вихідний вузол Tor</translation>
    </message>
    <message>
        <source>%1, NOT a Tor exit</source>
        <translation>%1, НЕ вихідний вузол Tor</translation>
    </message>
    <message>
        <source>open; it shows the address %1</source>
        <translation>відкритий; видно адресу %1</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>заблокований</translation>
    </message>
    <message>
        <source>no answer, but it isn&apos;t known whether the kill switch blocks it</source>
        <translation>немає відповіді, але невідомо, чи аварійне блокування його перекриває</translation>
    </message>
    <message>
        <source>no answer, but proxy mode doesn&apos;t block it</source>
        <translation>немає відповіді, але режим проксі його не перекриває</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>перевірка…</translation>
    </message>
    <message>
        <source>inconclusive</source>
        <translation>не вдалося визначити</translation>
    </message>
    <message>
        <source>can go around Tor via: %1</source>
        <translation>запити можуть іти повз Tor через: %1</translation>
    </message>
    <message>
        <source>a test lookup went through Tor</source>
        <translation>тестовий запит пройшов через Tor</translation>
    </message>
    <message>
        <source>testing…</source>
        <translation>перевірка…</translation>
    </message>
    <message>
        <source>settings point at Tor, but a test lookup couldn&apos;t be confirmed</source>
        <translation>налаштування вказують на Tor, але підтвердити тестовий запит не вдалося</translation>
    </message>
    <message>
        <source>not tested yet</source>
        <translation>ще не перевірено</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Вихід</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Затримка</translation>
    </message>
    <message>
        <source>%1 ms through Tor</source>
        <translation>%1 мс через Tor</translation>
    </message>
    <message>
        <source>Direct path</source>
        <translation>Прямий шлях</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Трафік</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>отримано %1, надіслано %2</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Мости</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Поступ</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Що робити</translation>
    </message>
    <message>
        <source>nothing; veldmarkctl restore would end that session</source>
        <translation>нічого; команда veldmarkctl restore завершила б той сеанс</translation>
    </message>
    <message>
        <source>Kill switch</source>
        <translation>Аварійне блокування</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Причина</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Проблема</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Термінал</translation>
    </message>
    <message>
        <source>No circuits yet.</source>
        <translation>Ланцюгів ще немає.</translation>
    </message>
    <message>
        <source>Ready. Connect with: veldmarkctl connect</source>
        <translation>Готово. Щоб під’єднатися: veldmarkctl connect</translation>
    </message>
    <message>
        <source>Still restoring your network, one moment…</source>
        <translation>Мережа ще відновлюється, зачекайте…</translation>
    </message>
    <message>
        <source>Stopping as soon as Tor has been started…</source>
        <translation>Зупинка, щойно запуститься Tor…</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Restore it with: %1</source>
        <translation>Мережу досі налаштовано на Tor. Відновіть її командою: %1</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Press Ctrl-C to try again.</source>
        <translation>Мережу досі налаштовано на Tor. Щоб спробувати ще раз, натисніть Ctrl+C.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Press Ctrl-C to disconnect.</source>
        <translation>Щоб від’єднатися, натисніть Ctrl+C.</translation>
    </message>
    <message>
        <source>A command to Tor can&apos;t contain a line break or a NUL.</source>
        <translation>Команда для Tor не може містити розриву рядка або NUL.</translation>
    </message>
    <message>
        <source>Tor sent a line of more than 1 MiB on its control port.</source>
        <translation>Tor надіслав на порту керування рядок, довший за 1 МіБ.</translation>
    </message>
    <message>
        <source>Tor sent a reply of more than 64 MiB on its control port.</source>
        <translation>Tor надіслав на порту керування відповідь, більшу за 64 МіБ.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>«%1» — ні true, ні false.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a JSON array of strings.</source>
        <translation>«%1» — не масив рядків JSON.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a bridge choice: off, obfs4, snowflake, meek or custom.</source>
        <translation>«%1» — не варіант мостів: off, obfs4, snowflake, meek або custom.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;. Settings: %2.</source>
        <translation>Налаштування «%1» немає. Наявні налаштування: %2.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes. (%1)</source>
        <translation>Tor не завершив під’єднання за 5 хвилин. (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an exit country: two lower-case letters such as &quot;de&quot;, or nothing for any.</source>
        <translation>«%1» — не країна виходу: потрібні дві малі літери, наприклад «de», або порожньо — будь-яка.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an application: an absolute path that ends in &quot;%2&quot;.</source>
        <translation>«%1» — не застосунок: потрібен абсолютний шлях, що закінчується на «%2».</translation>
    </message>
    <message>
        <source>strict mode with the kill switch, else proxy mode</source>
        <translation>суворий режим з аварійним блокуванням, інакше режим проксі</translation>
    </message>
    <message>
        <source>strict mode lets the local network through</source>
        <translation>суворий режим пропускає локальну мережу</translation>
    </message>
    <message>
        <source>two lower-case letters, or nothing for any</source>
        <translation>дві малі літери або порожньо — будь-яка</translation>
    </message>
    <message>
        <source>the path of the tor to use, or nothing to search for tor</source>
        <translation>шлях до потрібного tor або порожньо — шукати його</translation>
    </message>
    <message>
        <source>which bridges</source>
        <translation>які мости</translation>
    </message>
    <message>
        <source>your own bridge lines, as typed</source>
        <translation>ваші власні рядки мостів, як їх введено</translation>
    </message>
    <message>
        <source>paths of applications that may be opened without Tor</source>
        <translation>шляхи застосунків, які дозволено відкривати без Tor</translation>
    </message>
    <message>
        <source>connect when Veldmark starts</source>
        <translation>під’єднуватися під час запуску Veldmark</translation>
    </message>
    <message>
        <source>test bridges before connecting, look for a faster path afterwards</source>
        <translation>перевіряти мости до під’єднання, шукати швидший шлях після нього</translation>
    </message>
    <message>
        <source>command-line tools go through Tor while connected</source>
        <translation>програми командного рядка працюють через Tor, поки є під’єднання</translation>
    </message>
    <message>
        <source>with your package manager</source>
        <translation>через менеджер пакунків</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Запуск…</translation>
    </message>
    <message>
        <source>&quot;set&quot; needs a &quot;key&quot; and a &quot;value&quot;, both strings.</source>
        <translation>Для «set» потрібні «key» і «value», обидва — рядки.</translation>
    </message>
    <message>
        <source>Already connected or connecting; &quot;veldmarkctl status&quot; says more.</source>
        <translation>Уже під’єднано або триває під’єднання; докладніше: «veldmarkctl status».</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>Не зараз: %1</translation>
    </message>
    <message>
        <source>A check is already running.</source>
        <translation>Перевірка вже триває.</translation>
    </message>
    <message>
        <source>There is no circuit &quot;%1&quot;.</source>
        <translation>Ланцюга «%1» немає.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t close circuit %1.</source>
        <translation>Tor не закрив ланцюг %1.</translation>
    </message>
    <message>
        <source>&quot;launch&quot; needs an &quot;app&quot;, an absolute path.</source>
        <translation>Для «launch» потрібен «app», абсолютний шлях.</translation>
    </message>
    <message>
        <source>Veldmark stopped before it had answered.</source>
        <translation>Veldmark зупинився, не встигнувши відповісти.</translation>
    </message>
    <message>
        <source>Veldmark is already running (process %1).</source>
        <translation>Veldmark уже запущено (процес %1).</translation>
    </message>
    <message>
        <source>%1 must be a folder of your own with mode 0700: the control socket goes there.</source>
        <translation>%1 має бути вашою власною текою з правами 0700: там створюється сокет керування.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1/lock.</source>
        <translation>Не вдалося записати %1/lock.</translation>
    </message>
    <message>
        <source>Couldn&apos;t listen on %1: %2.</source>
        <translation>Не вдалося прослуховувати %1: %2.</translation>
    </message>
    <message>
        <source>A command is a JSON object on one line.</source>
        <translation>Команда — це об’єкт JSON в одному рядку.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Невідома команда «%1».</translation>
    </message>
    <message>
        <source>Not connected.</source>
        <translation>Не під’єднано.</translation>
    </message>
    <message>
        <source>The session has ended: %1</source>
        <translation>Сеанс завершено: %1</translation>
    </message>
    <message>
        <source>as JSON</source>
        <translation>у форматі JSON</translation>
    </message>
    <message>
        <source>connect at once</source>
        <translation>під’єднатися відразу</translation>
    </message>
    <message>
        <source>run Veldmark here, in the foreground; Ctrl-C disconnects</source>
        <translation>запустити Veldmark тут, на передньому плані; Ctrl+C від’єднує</translation>
    </message>
    <message>
        <source>go on until Ctrl-C</source>
        <translation>продовжувати до Ctrl+C</translation>
    </message>
    <message>
        <source>print the connection&apos;s state; --watch goes on until Ctrl-C</source>
        <translation>поточний стан; --watch продовжує до Ctrl+C</translation>
    </message>
    <message>
        <source>connect the running instance to Tor</source>
        <translation>під’єднати запущений Veldmark до Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor</source>
        <translation>відновити мережу й зупинити Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor, also after a crash</source>
        <translation>відновити мережу й зупинити Tor, зокрема й після збою</translation>
    </message>
    <message>
        <source>check the exit address, the direct path and DNS now</source>
        <translation>перевірити зараз адресу виходу, прямий шлях і DNS</translation>
    </message>
    <message>
        <source>point the system&apos;s DNS settings at Tor again</source>
        <translation>знову спрямувати системні налаштування DNS на Tor</translation>
    </message>
    <message>
        <source>Tor&apos;s circuits and the sites on them</source>
        <translation>ланцюги Tor і сайти в них</translation>
    </message>
    <message>
        <source>close a circuit; its sites get a fresh path on their next request</source>
        <translation>закрити ланцюг; за наступного запиту його сайти отримають новий шлях</translation>
    </message>
    <message>
        <source>close-circuit needs a circuit&apos;s number; &quot;veldmarkctl circuits&quot; shows them.</source>
        <translation>Для close-circuit потрібен номер ланцюга; їх показує «veldmarkctl circuits».</translation>
    </message>
    <message>
        <source>new circuits for everything</source>
        <translation>нові ланцюги для всього</translation>
    </message>
    <message>
        <source>warnings and errors only</source>
        <translation>лише попередження й помилки</translation>
    </message>
    <message>
        <source>Tor&apos;s log; --problems shows warnings and errors only</source>
        <translation>журнал Tor; --problems показує лише попередження й помилки</translation>
    </message>
    <message>
        <source>the bridge programs and built-in bridges that were found, and
which of your own bridge lines are not valid</source>
        <translation>знайдені програми для мостів і вбудовані мости, а також
хибні рядки серед ваших власних мостів</translation>
    </message>
    <message>
        <source>fetch the Tor Project&apos;s bridge programs and built-in bridges</source>
        <translation>завантажити програми для мостів і вбудовані мости Проєкту Tor</translation>
    </message>
    <message>
        <source>the installed applications; * marks those in the setting &quot;bypassApps&quot;</source>
        <translation>установлені застосунки; * позначає ті, що є в налаштуванні «bypassApps»</translation>
    </message>
    <message>
        <source>open an application without Tor, with your own address; needs strict mode.
APP is a name from &quot;apps&quot;, the file name of its desktop entry, or the path
of an entry or a program. Running copies are asked to quit first</source>
        <translation>відкрити застосунок без Tor, з вашою власною адресою; потрібен суворий режим.
APP — назва з «apps», назва файлу .desktop застосунку або шлях до такого файлу
чи програми. Запущені екземпляри спершу отримують запит завершити роботу</translation>
    </message>
    <message>
        <source>launch needs an application; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>Для launch потрібен застосунок; список показує «veldmarkctl apps».</translation>
    </message>
    <message>
        <source>check what a connect needs on this computer, what blocks it and how to fix
it. Changes nothing; the exit status is 0 when a connect can work</source>
        <translation>перевірити цей комп’ютер: що потрібно для під’єднання, що йому заважає і як
це виправити. Нічого не змінює; код завершення 0, якщо під’єднання можливе</translation>
    </message>
    <message>
        <source>print a field of &quot;status --json&quot;</source>
        <translation>вивести поле з «status --json»</translation>
    </message>
    <message>
        <source>change a setting; most of them only while not connected</source>
        <translation>змінити налаштування; більшість — лише коли не під’єднано</translation>
    </message>
    <message>
        <source>Can&apos;t read Tor&apos;s log</source>
        <translation>Не вдається прочитати журнал Tor</translation>
    </message>
    <message>
        <source>The log files in %1 aren&apos;t readable by your account. Reconnect once with this version of Veldmark to fix their permissions.</source>
        <translation>Ваш обліковий запис не може читати файли журналу в %1. Під’єднайтеся знову один раз із цією версією Veldmark, щоб виправити права доступу до них.</translation>
    </message>
    <message>
        <source>No log yet</source>
        <translation>Журналу ще немає</translation>
    </message>
    <message>
        <source>Connect, and Tor&apos;s messages appear here as it starts. If Tor fails to start, the reason shows up here.</source>
        <translation>Коли ви під’єднаєтеся, тут з’являться повідомлення Tor про запуск. Якщо Tor не запуститься, тут буде видно причину.</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>Збігів немає</translation>
    </message>
    <message>
        <source>No lines contain “%1”</source>
        <translation>Немає рядків, що містять «%1»</translation>
    </message>
    <message>
        <source>No warnings or errors. Tor is happy.</source>
        <translation>Жодних попереджень чи помилок. У Tor усе гаразд.</translation>
    </message>
    <message>
        <source>The bridge program %1 reports: %2</source>
        <translation>Програма моста %1 повідомляє: %2</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly.</source>
        <translation>Програма моста %1 несподівано завершила роботу.</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending.</source>
        <translation>Програма моста %1 раз у раз завершує роботу.</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly (exit status %2).</source>
        <translation>Програма моста %1 несподівано завершила роботу (код завершення %2).</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending (exit status %2).</source>
        <translation>Програма моста %1 раз у раз завершує роботу (код завершення %2).</translation>
    </message>
    <message>
        <source>It said: &quot;%1&quot;.</source>
        <translation>Її повідомлення: «%1».</translation>
    </message>
    <message>
        <source>The program is quitting.</source>
        <translation>Програма завершує роботу.</translation>
    </message>
    <message>
        <source>Veldmark replaces the running strict session. The new session may protect you less.</source>
        <translation>Поточний суворий сеанс буде замінено, і захист може стати слабшим.</translation>
    </message>
    <message>
        <source>Veldmark wants to run %1 as a part of Tor. No package of the system installed it. Its SHA-256 is %2.</source>
        <translation>Veldmark хоче запускати %1 як частину Tor. Ця програма не походить із жодного пакунка системи. Її SHA-256: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be created: %2.</source>
        <translation>Не вдається створити %1: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed: %2.</source>
        <translation>Не вдається вилучити %1: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>Не вдається прочитати %1: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2.</source>
        <translation>Не вдається записати %1: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 не є файлом.</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 доступний лише для читання.</translation>
    </message>
    <message>
        <source>%1 was changed by another program just now.</source>
        <translation>%1 щойно змінила інша програма.</translation>
    </message>
    <message>
        <source>%1 belongs to another user or group.</source>
        <translation>%1 належить іншому користувачеві або групі.</translation>
    </message>
    <message>
        <source>A bridge line is not valid.</source>
        <translation>Рядок моста хибний.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your network settings.</source>
        <translation>Запис про попередні налаштування мережі було пошкоджено (%1). Мережу знову розблоковано; перевірте налаштування мережі.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your proxy settings.</source>
        <translation>Запис про попередні налаштування мережі було пошкоджено (%1). Мережу знову розблоковано; перевірте налаштування проксі.</translation>
    </message>
    <message>
        <source>An administrator password is needed to approve %1.</source>
        <translation>Щоб схвалити %1, потрібен пароль адміністратора.</translation>
    </message>
    <message>
        <source>An administrator password is needed to change the running strict session.</source>
        <translation>Щоб змінити поточний суворий сеанс, потрібен пароль адміністратора.</translation>
    </message>
    <message>
        <source>An administrator password is needed to open an application without Tor.</source>
        <translation>Щоб відкрити застосунок без Tor, потрібен пароль адміністратора.</translation>
    </message>
    <message>
        <source>An administrator password is needed to set this up.</source>
        <translation>Щоб налаштувати це, потрібен пароль адміністратора.</translation>
    </message>
    <message>
        <source>Another program (process %1) has started a session meanwhile. That session was left alone.</source>
        <translation>Інша програма (процес %1) тим часом почала сеанс. Його не змінено.</translation>
    </message>
    <message>
        <source>Another run of the helper is still working. Try again in a moment.</source>
        <translation>Інший запуск допоміжної програми ще триває. Спробуйте ще раз за мить.</translation>
    </message>
    <message>
        <source>Applications are not opened as root.</source>
        <translation>Застосунки не відкриваються від імені root.</translation>
    </message>
    <message>
        <source>The helper opens applications only for the user who asks.</source>
        <translation>Застосунки можна відкривати лише для користувача, який про це просить.</translation>
    </message>
    <message>
        <source>Applications cannot be opened without Tor on this system.</source>
        <translation>У цій системі неможливо відкривати застосунки без Tor.</translation>
    </message>
    <message>
        <source>More than %1 bridges were given.</source>
        <translation>Указано забагато мостів: може бути не більше ніж %1.</translation>
    </message>
    <message>
        <source>Passwordless mode can be set up only for the user who asks.</source>
        <translation>Режим без пароля можна налаштувати лише для користувача, який про це просить.</translation>
    </message>
    <message>
        <source>Another program is changing the firewall. Try again in a moment.</source>
        <translation>Брандмауер зараз змінює інша програма. Спробуйте ще раз за мить.</translation>
    </message>
    <message>
        <source>The DNS servers of systemd-resolved cannot be changed.</source>
        <translation>Не вдається змінити DNS-сервери systemd-resolved.</translation>
    </message>
    <message>
        <source>The DNS settings cannot be changed.</source>
        <translation>Не вдається змінити налаштування DNS.</translation>
    </message>
    <message>
        <source>The DNS settings could not be put back.</source>
        <translation>Не вдалося повернути попередні налаштування DNS.</translation>
    </message>
    <message>
        <source>The account %1 cannot be created.</source>
        <translation>Не вдається створити обліковий запис %1.</translation>
    </message>
    <message>
        <source>The account %1 has no valid user id.</source>
        <translation>Обліковий запис %1 не має правильного ідентифікатора користувача.</translation>
    </message>
    <message>
        <source>The account %1 must be neither root&apos;s nor the caller&apos;s.</source>
        <translation>Обліковий запис %1 не повинен належати ні root, ні користувачеві, від якого надійшов запит.</translation>
    </message>
    <message>
        <source>The application could not be started.</source>
        <translation>Не вдалося запустити застосунок.</translation>
    </message>
    <message>
        <source>The caller&apos;s user id is not a number.</source>
        <translation>Ідентифікатор користувача, що викликав програму, не є числом.</translation>
    </message>
    <message>
        <source>The control group for Tor cannot be made.</source>
        <translation>Не вдається створити контрольну групу для Tor.</translation>
    </message>
    <message>
        <source>The control group of the applications without Tor could not be removed.</source>
        <translation>Не вдалося вилучити контрольну групу застосунків без Tor.</translation>
    </message>
    <message>
        <source>The copy of the program cannot be put into %1.</source>
        <translation>Не вдається помістити копію програми до %1.</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings cannot be changed.</source>
        <translation>Не вдається змінити налаштування проксі стільниці.</translation>
    </message>
    <message>
        <source>The exit country is not a two-letter code.</source>
        <translation>Країна виходу — не дволітерний код.</translation>
    </message>
    <message>
        <source>The file %1 cannot be made.</source>
        <translation>Не вдається створити файл %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Не вдається прочитати файл %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed.</source>
        <translation>Не вдається вилучити файл %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Не вдається записати файл %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be put back.</source>
        <translation>Не вдалося повернути попередній файл %1.</translation>
    </message>
    <message>
        <source>The files in %1 cannot be removed.</source>
        <translation>Не вдається вилучити файли в %1.</translation>
    </message>
    <message>
        <source>The firewall rules cannot be read, so nothing was done.</source>
        <translation>Не вдається прочитати правила брандмауера, тому нічого не зроблено.</translation>
    </message>
    <message>
        <source>The firewall cannot be switched on (%1).</source>
        <translation>Не вдається ввімкнути брандмауер (%1).</translation>
    </message>
    <message>
        <source>The firewall cannot end the earlier connections.</source>
        <translation>Брандмауер не може розірвати попередні з’єднання.</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off (%1).</source>
        <translation>Не вдалося вимкнути аварійне блокування (%1).</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off, because another program is changing the firewall.</source>
        <translation>Не вдалося вимкнути аварійне блокування, бо брандмауер змінює інша програма.</translation>
    </message>
    <message>
        <source>The firewall does not hold the rules that were loaded.</source>
        <translation>У брандмауері не ті правила, які було завантажено.</translation>
    </message>
    <message>
        <source>The firewall gave no token.</source>
        <translation>Брандмауер не видав токена.</translation>
    </message>
    <message>
        <source>The firewall leaves out the network device %1 (&quot;set skip&quot; in /etc/pf.conf), where nothing would be blocked.</source>
        <translation>Брандмауер не охоплює мережевого пристрою %1 («set skip» у /etc/pf.conf): на ньому нічого не було б заблоковано.</translation>
    </message>
    <message>
        <source>The firewall rules were not accepted (%1).</source>
        <translation>Правила брандмауера не прийнято (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s devices cannot be read.</source>
        <translation>Не вдається прочитати пристрої брандмауера.</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be changed (%1).</source>
        <translation>Не вдається змінити основні правила брандмауера (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be read.</source>
        <translation>Не вдається прочитати основні правила брандмауера.</translation>
    </message>
    <message>
        <source>The firewall&apos;s state cannot be read.</source>
        <translation>Не вдається прочитати стан брандмауера.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be changed.</source>
        <translation>Не вдається змінити теку %1.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Не вдається створити теку %1.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>Не вдається записати до теки %1.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it and those above it.</source>
        <translation>Тека %1 не захищена: вона й теки над нею мають належати лише root, і лише root може писати в них.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it.</source>
        <translation>Тека %1 не захищена: вона має належати лише root, і лише root може писати в неї.</translation>
    </message>
    <message>
        <source>The folder /etc/sudoers.d is missing or not safe.</source>
        <translation>Теки /etc/sudoers.d немає, або вона не захищена.</translation>
    </message>
    <message>
        <source>The folders above Veldmark&apos;s are not safe: only root may own or write them.</source>
        <translation>Теки над текою Veldmark не захищені: вони мають належати лише root, і лише root може писати в них.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read, so nothing was done.</source>
        <translation>Не вдається переглянути теки всередині %1, тому нічого не зроблено.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read.</source>
        <translation>Не вдається переглянути теки всередині %1.</translation>
    </message>
    <message>
        <source>The former network settings could not all be restored.</source>
        <translation>Відновлено не всі попередні налаштування мережі.</translation>
    </message>
    <message>
        <source>The hashed control password is not valid.</source>
        <translation>Хеш пароля керування хибний.</translation>
    </message>
    <message>
        <source>The helper could not be copied to %1.</source>
        <translation>Не вдалося скопіювати допоміжну програму до %1.</translation>
    </message>
    <message>
        <source>The helper must run as root.</source>
        <translation>Допоміжна програма має працювати від імені root.</translation>
    </message>
    <message>
        <source>The helper stopped unexpectedly.</source>
        <translation>Допоміжна програма несподівано зупинилася.</translation>
    </message>
    <message>
        <source>The helper was given an option that it does not know.</source>
        <translation>Допоміжна програма отримала невідомий їй параметр.</translation>
    </message>
    <message>
        <source>The helper does not know this verb.</source>
        <translation>Допоміжній програмі ця команда невідома.</translation>
    </message>
    <message>
        <source>The record of the former network settings cannot be written.</source>
        <translation>Не вдається записати відомості про попередні налаштування мережі.</translation>
    </message>
    <message>
        <source>The kill switch is not on, so no application needs to bypass it.</source>
        <translation>Аварійне блокування не ввімкнено, тому жодному застосунку не потрібно його обходити.</translation>
    </message>
    <message>
        <source>The launcher could not be copied to %1.</source>
        <translation>Не вдалося скопіювати програму запуску до %1.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be opened.</source>
        <translation>Не вдається відкрити файл блокування %1.</translation>
    </message>
    <message>
        <source>The lock file %1 is a link, so nothing was done.</source>
        <translation>Файл блокування %1 — посилання, тому нічого не зроблено.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back.</source>
        <translation>Мережу знову розблоковано, але повернути попередні DNS-сервери systemd-resolved не вдалося.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back. Try: systemctl restart %1.</source>
        <translation>Мережу знову розблоковано, але повернути попередні DNS-сервери systemd-resolved не вдалося. Спробуйте: systemctl restart %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the desktop&apos;s proxy settings could not be put back.</source>
        <translation>Мережу знову розблоковано, але повернути попередні налаштування проксі стільниці не вдалося.</translation>
    </message>
    <message>
        <source>The network is open again, but the journal in %1 cannot be cleared.</source>
        <translation>Мережу знову розблоковано, але очистити журнал відновлення в %1 не вдається.</translation>
    </message>
    <message>
        <source>The network is open again, but the session marker cannot be removed from %1.</source>
        <translation>Мережу знову розблоковано, але вилучити позначку сеансу з %1 не вдається.</translation>
    </message>
    <message>
        <source>The network is open again, but the system&apos;s own Tor service could not be started again. Try: systemctl start %1.</source>
        <translation>Мережу знову розблоковано, але знову запустити системну службу Tor не вдалося. Спробуйте: systemctl start %1.</translation>
    </message>
    <message>
        <source>The network is open, but pf could not be released.</source>
        <translation>Мережу розблоковано, але звільнити pf не вдалося.</translation>
    </message>
    <message>
        <source>The network is open, but the firewall&apos;s main rules could not be put back.</source>
        <translation>Мережу розблоковано, але повернути попередні основні правила брандмауера не вдалося.</translation>
    </message>
    <message>
        <source>The network location %1 still has Veldmark&apos;s settings. Choose it and disconnect again.</source>
        <translation>Мережеве розташування %1 досі має налаштування Veldmark. Виберіть його й від’єднайтеся знову.</translation>
    </message>
    <message>
        <source>The network settings cannot be read.</source>
        <translation>Не вдається прочитати налаштування мережі.</translation>
    </message>
    <message>
        <source>The network stays blocked until you disconnect.</source>
        <translation>Мережа лишатиметься заблокованою, доки ви не від’єднаєтеся.</translation>
    </message>
    <message>
        <source>The notes of what to restore cannot be read.</source>
        <translation>Не вдається прочитати записи про те, що слід відновити.</translation>
    </message>
    <message>
        <source>The option %1 needs a value.</source>
        <translation>Для параметра %1 потрібне значення.</translation>
    </message>
    <message>
        <source>The option %1 was given twice.</source>
        <translation>Параметр %1 указано двічі.</translation>
    </message>
    <message>
        <source>The option --app is missing.</source>
        <translation>Бракує параметра --app.</translation>
    </message>
    <message>
        <source>The option --hash is missing.</source>
        <translation>Бракує параметра --hash.</translation>
    </message>
    <message>
        <source>The option --lan is missing.</source>
        <translation>Бракує параметра --lan.</translation>
    </message>
    <message>
        <source>The option --program is missing.</source>
        <translation>Бракує параметра --program.</translation>
    </message>
    <message>
        <source>The option --strict is missing.</source>
        <translation>Бракує параметра --strict.</translation>
    </message>
    <message>
        <source>The option --tor is missing.</source>
        <translation>Бракує параметра --tor.</translation>
    </message>
    <message>
        <source>The option --uid is missing.</source>
        <translation>Бракує параметра --uid.</translation>
    </message>
    <message>
        <source>The options on standard input are not complete.</source>
        <translation>Параметри на стандартному вводі неповні.</translation>
    </message>
    <message>
        <source>The path given with %1 is not absolute.</source>
        <translation>Шлях, указаний у %1, не абсолютний.</translation>
    </message>
    <message>
        <source>The path given with --app is not absolute.</source>
        <translation>Шлях, указаний у --app, не абсолютний.</translation>
    </message>
    <message>
        <source>The path given with --app names no application.</source>
        <translation>Шлях, указаний у --app, не веде до застосунку.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2. End that program, then connect again.</source>
        <translation>Порт %1, потрібний Tor, займає %2. Завершіть цю програму, а потім під’єднайтеся знову.</translation>
    </message>
    <message>
        <source>a program (process %1)</source>
        <translation>програма (процес %1)</translation>
    </message>
    <message>
        <source>a program of the account with the id %1</source>
        <translation>програма облікового запису з ідентифікатором %1</translation>
    </message>
    <message>
        <source>The process id is not valid.</source>
        <translation>Ідентифікатор процесу хибний.</translation>
    </message>
    <message>
        <source>The program %1 cannot be copied.</source>
        <translation>Не вдається скопіювати програму %1.</translation>
    </message>
    <message>
        <source>The program %1 cannot be found.</source>
        <translation>Не вдається знайти програму %1.</translation>
    </message>
    <message>
        <source>The program %1 is missing on this system.</source>
        <translation>У цій системі бракує програми %1.</translation>
    </message>
    <message>
        <source>The SHA-256 of the program %1 differs from the one to approve.</source>
        <translation>SHA-256 програми %1 — не той, який треба було схвалити.</translation>
    </message>
    <message>
        <source>The program given with %1 is not an executable file.</source>
        <translation>Програма, указана в %1, не є виконуваним файлом.</translation>
    </message>
    <message>
        <source>The program veldmark-launch is missing.</source>
        <translation>Бракує програми veldmark-launch.</translation>
    </message>
    <message>
        <source>The session marker cannot be written.</source>
        <translation>Не вдається записати позначку сеансу.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be changed.</source>
        <translation>Не вдається змінити налаштування мережевої служби %1.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be read.</source>
        <translation>Не вдається прочитати налаштування мережевої служби %1.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 could not be put back.</source>
        <translation>Не вдалося повернути попередні налаштування мережевої служби %1.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall cannot be used (%1).</source>
        <translation>Системний брандмауер використовувати неможливо (%1).</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) cannot be stopped.</source>
        <translation>Не вдається зупинити системну службу Tor (%1).</translation>
    </message>
    <message>
        <source>The user %1 is not known on this system.</source>
        <translation>Користувач %1 невідомий у цій системі.</translation>
    </message>
    <message>
        <source>The user id is not a number.</source>
        <translation>Ідентифікатор користувача не є числом.</translation>
    </message>
    <message>
        <source>The user name is not valid.</source>
        <translation>Ім’я користувача хибне.</translation>
    </message>
    <message>
        <source>The user root needs no password for the helper.</source>
        <translation>Користувачеві root не потрібен пароль для допоміжної програми.</translation>
    </message>
    <message>
        <source>The user with the id %1 is not known on this system.</source>
        <translation>Користувач з ідентифікатором %1 невідомий у цій системі.</translation>
    </message>
    <message>
        <source>The value of %1 contains control characters.</source>
        <translation>Значення %1 містить керівні символи.</translation>
    </message>
    <message>
        <source>The value of %1 is too long.</source>
        <translation>Значення %1 задовге.</translation>
    </message>
    <message>
        <source>The value of --as must be tor, lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>Значенням --as має бути tor, lyrebird, snowflake-client або webtunnel-client.</translation>
    </message>
    <message>
        <source>The value of --lan must be 0 or 1.</source>
        <translation>Значенням --lan має бути 0 або 1.</translation>
    </message>
    <message>
        <source>The value of --sha256 must be 64 small hexadecimal digits.</source>
        <translation>Значенням --sha256 мають бути 64 шістнадцяткові цифри (літери — малі).</translation>
    </message>
    <message>
        <source>The value of --strict must be 0 or 1.</source>
        <translation>Значенням --strict має бути 0 або 1.</translation>
    </message>
    <message>
        <source>The verb fix-dns takes no options.</source>
        <translation>Команда fix-dns не має параметрів.</translation>
    </message>
    <message>
        <source>The verb uninstall-privileged takes no options.</source>
        <translation>Команда uninstall-privileged не має параметрів.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be started.</source>
        <translation>Не вдалося запустити спостерігача за брандмауером.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be stopped.</source>
        <translation>Не вдалося зупинити спостерігача за брандмауером.</translation>
    </message>
    <message>
        <source>There are too many options on standard input.</source>
        <translation>На стандартному вводі забагато параметрів.</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which was not given.</source>
        <translation>Для цих мостів потрібен lyrebird, якого не вказано.</translation>
    </message>
    <message>
        <source>These bridges need snowflake-client, which was not given.</source>
        <translation>Для цих мостів потрібен snowflake-client, якого не вказано.</translation>
    </message>
    <message>
        <source>This helper is made for another system.</source>
        <translation>Ця допоміжна програма призначена для іншої системи.</translation>
    </message>
    <message>
        <source>Tor could not be started (%1).</source>
        <translation>Не вдалося запустити Tor (%1).</translation>
    </message>
    <message>
        <source>Tor could not be stopped.</source>
        <translation>Не вдалося зупинити Tor.</translation>
    </message>
    <message>
        <source>Tor did not open its control port in time.</source>
        <translation>Tor не відкрив порт керування вчасно.</translation>
    </message>
    <message>
        <source>Tor did not start: %1</source>
        <translation>Tor не запустився: %1</translation>
    </message>
    <message>
        <source>Tor does not accept its configuration: %1</source>
        <translation>Tor не приймає своєї конфігурації: %1</translation>
    </message>
    <message>
        <source>it ended without a message.</source>
        <translation>він завершив роботу без повідомлення.</translation>
    </message>
    <message>
        <source>Tor&apos;s log files cannot be made.</source>
        <translation>Не вдається створити файли журналу Tor.</translation>
    </message>
    <message>
        <source>Two different callers were reported, so nothing was done.</source>
        <translation>Повідомлено про двох різних користувачів, що викликали програму, тому нічого не зроблено.</translation>
    </message>
    <message>
        <source>Veldmark is in use by %1. An administrator password is needed to end that session.</source>
        <translation>Veldmark використовує користувач %1. Щоб завершити той сеанс, потрібен пароль адміністратора.</translation>
    </message>
    <message>
        <source>Veldmark is not connected, so the DNS settings were left alone.</source>
        <translation>Veldmark не під’єднано, тому налаштувань DNS не змінено.</translation>
    </message>
    <message>
        <source>sudo rejects the rule for passwordless mode.</source>
        <translation>sudo відхиляє правило для режиму без пароля.</translation>
    </message>
    <message>
        <source>sudo is not installed on this system.</source>
        <translation>sudo не встановлено в цій системі.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read.</source>
        <translation>Не вдається прочитати файл .desktop.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read (%1).</source>
        <translation>Не вдається прочитати файл .desktop (%1).</translation>
    </message>
    <message>
        <source>The desktop entry names no program that is installed.</source>
        <translation>У файлі .desktop не вказано жодної встановленої програми.</translation>
    </message>
    <message>
        <source>The application could not be started (%1).</source>
        <translation>Не вдалося запустити застосунок (%1).</translation>
    </message>
    <message>
        <source>There is no such application or program.</source>
        <translation>Такого застосунку чи програми немає.</translation>
    </message>
    <message>
        <source>The program could not be started.</source>
        <translation>Не вдалося запустити програму.</translation>
    </message>
    <message>
        <source>The program could not be started (%1).</source>
        <translation>Не вдалося запустити програму (%1).</translation>
    </message>
    <message>
        <source>The user is not known on this system.</source>
        <translation>Користувач невідомий у цій системі.</translation>
    </message>
    <message>
        <source>There is no application at %1.</source>
        <translation>За шляхом %1 немає застосунку.</translation>
    </message>
    <message>
        <source>The home folder cannot be entered.</source>
        <translation>Не вдається ввійти до домашньої теки.</translation>
    </message>
    <message>
        <source>nft doesn&apos;t answer.</source>
        <translation>nft не відповідає.</translation>
    </message>
    <message>
        <source>nft fails.</source>
        <translation>nft повертає помилку.</translation>
    </message>
    <message>
        <source>Ended because the display is gone. Your network is still set up for Tor: start Veldmark again, or restore the network with: %1</source>
        <translation>Veldmark завершив роботу, втративши дисплей. Вашу мережу досі налаштовано на Tor: знову запустіть Veldmark або відновіть її командою: %1</translation>
    </message>
    <message>
        <source>your package manager</source>
        <translation>менеджер пакунків</translation>
    </message>
    <message>
        <source>The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo %1 on.</source>
        <translation>Мережу знову розблоковано, але повернути попередні налаштування пристрою loopback не вдалося. Спробуйте: ethtool -K lo %1 on.</translation>
    </message>
    <message>
        <source>This system can&apos;t tell applications apart.</source>
        <translation>У цій системі застосунки не розрізняються.</translation>
    </message>
    <message>
        <source>Applications are not separated now: they share circuits.</source>
        <translation>Зараз застосунки не розділено: вони мають спільні ланцюги.</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>користувач %1</translation>
    </message>
    <message>
        <source>No application has an identity of its own now.</source>
        <translation>Зараз жоден застосунок не має власної ідентичності.</translation>
    </message>
    <message>
        <source>No application of yours has that identity; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>Жоден ваш застосунок не має такої ідентичності; список показує «veldmarkctl identities».</translation>
    </message>
    <message>
        <source>The application did not get a new identity.</source>
        <translation>Застосунок не отримав іншої ідентичності.</translation>
    </message>
    <message>
        <source>The program did not get an identity of its own, so it was not started.</source>
        <translation>Програма не отримала власної ідентичності, тому її не запущено.</translation>
    </message>
    <message>
        <source>A name has up to 40 letters, digits, dots and underscores.</source>
        <translation>Назва може мати до 40 знаків: літери, цифри, крапки й підкреслення.</translation>
    </message>
    <message>
        <source>The program systemd-run is missing. Veldmark needs it to make a group for a program.</source>
        <translation>Бракує програми systemd-run. Вона потрібна Veldmark, щоб створити групу для програми.</translation>
    </message>
    <message>
        <source>The program could not be started: %1.</source>
        <translation>Не вдалося запустити програму: %1.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Налаштування</translation>
    </message>
    <message>
        <source>each application has circuits of its own</source>
        <translation>кожен застосунок має власні ланцюги</translation>
    </message>
    <message>
        <source>the applications that have circuits of their own, and the loopback address
by which Tor distinguishes them</source>
        <translation>застосунки, що мають власні ланцюги, і адреса loopback,
за якою Tor відрізняє кожен від решти</translation>
    </message>
    <message>
        <source>new circuits for one application, from its next connection on; APP is as
&quot;identities&quot; names it</source>
        <translation>нові ланцюги для одного застосунку, починаючи з його наступного з’єднання;
APP — як його називає «identities»</translation>
    </message>
    <message>
        <source>renew needs an application; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>Для renew потрібен застосунок; список показує «veldmarkctl identities».</translation>
    </message>
    <message>
        <source>run a program (after --) with circuits of its own; a later run with the same
name in the same session has the same ones</source>
        <translation>запустити програму (після --) з власними ланцюгами; наступний запуск із тією
самою назвою в тому самому сеансі має ті самі ланцюги</translation>
    </message>
    <message>
        <source>run-as needs a name and a program: veldmarkctl run-as NAME -- PROGRAM.</source>
        <translation>Для run-as потрібні назва й програма: veldmarkctl run-as NAME -- PROGRAM.</translation>
    </message>
    <message>
        <source>The table of the applications&apos; identities could not be removed (%1).</source>
        <translation>Не вдалося вилучити таблицю ідентичностей застосунків (%1).</translation>
    </message>
    <message>
        <source>The value of --separate must be 0 or 1.</source>
        <translation>Значенням --separate має бути 0 або 1.</translation>
    </message>
    <message>
        <source>No package of the system installed %1. The next connect asks an administrator to approve it.</source>
        <translation>%1 не походить із жодного пакунка системи. Під час наступного під’єднання адміністратора попросять схвалити цю програму.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether a connect can work.</source>
        <translation>Невідомо, чи можливе під’єднання.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, and none of its rules allows any, so Tor can&apos;t get through: %1.</source>
        <translation>Інший брандмауер на цьому комп’ютері забороняє вихідні з’єднання, і жодне з його правил нічого не дозволяє, тому Tor не може пройти: %1.</translation>
    </message>
    <message>
        <source>Users other than root can change %1, so root doesn&apos;t run it to ask for its version.</source>
        <translation>Не лише root може змінити %1, тому root не запускає цю програму, щоб дізнатися її версію.</translation>
    </message>
    <message>
        <source>Type %1 to approve it, anything else to refuse.</source>
        <translation>Введіть %1, щоб схвалити її; будь-яка інша відповідь — відмова.</translation>
    </message>
    <message>
        <source>%1 was not approved.</source>
        <translation>Програму %1 не схвалено.</translation>
    </message>
    <message>
        <source>%1 is not a program of the system, so an administrator has to approve it, but this command has no terminal to ask on. Run &quot;sudo veldmarkctl run --connect&quot; in a terminal.</source>
        <translation>%1 — не програма системи, тому її має схвалити адміністратор, але ця команда не має термінала, у якому можна про це запитати. Виконайте «sudo veldmarkctl run --connect» у терміналі.</translation>
    </message>
    <message>
        <source>%1 needs the name of a file.</source>
        <translation>Для %1 потрібна назва файлу.</translation>
    </message>
    <message>
        <source>It doesn&apos;t answer.</source>
        <translation>Він не відповідає.</translation>
    </message>
    <message>
        <source>This report goes to %1.</source>
        <translation>Цей звіт записується в %1.</translation>
    </message>
    <message>
        <source>write it into a new file too</source>
        <translation>записати його також у новий файл</translation>
    </message>
    <message>
        <source>The report can&apos;t be written to %1: %2</source>
        <translation>Не вдається записати звіт у %1: %2</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a regular file. Choose another name for the report.</source>
        <translation>%1 — не звичайний файл. Виберіть іншу назву для звіту.</translation>
    </message>
    <message>
        <source>%1 exists already. Choose another name for the report.</source>
        <translation>%1 уже існує. Виберіть іншу назву для звіту.</translation>
    </message>
    <message>
        <source>The running instance gave no state: %1</source>
        <translation>Запущений екземпляр не повідомив про свій стан: %1</translation>
    </message>
    <message>
        <source>a report for those who help you: settings, findings and log without addresses,
names, bridges and keys. Nothing sends it. Look through it before you give it
away</source>
        <translation>звіт для тих, хто вам допомагає: налаштування, висновки перевірки та журнал
без адрес, імен, мостів і ключів. Ніщо його не надсилає. Перегляньте його,
перш ніж передати</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>Не вдається прочитати %1: %2</translation>
    </message>
    <message>
        <source>There is no bridge in %1.</source>
        <translation>У %1 немає мостів.</translation>
    </message>
    <message>
        <source>added: %1</source>
        <translation>додано: %1</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>уже є: %1</translation>
    </message>
    <message>
        <source>add the bridges in a text to your own: in bridge lines, a whole e-mail or
a web page. FILE &quot;-&quot; is standard input</source>
        <translation>додати до власних мости з тексту: з рядків мостів, цілого листа або
вебсторінки. FILE «-» — стандартний ввід</translation>
    </message>
    <message>
        <source>add-bridges needs a file; &quot;-&quot; is standard input.</source>
        <translation>add-bridges потребує файлу; «-» — стандартний ввід.</translation>
    </message>
    <message>
        <source>The filter before Tor&apos;s control port cannot be used.</source>
        <translation>Фільтр перед портом керування Tor неможливо використати.</translation>
    </message>
    <message numerus="yes">
        <source>Testing %n bridges…</source>
        <translation>
            <numerusform>Перевіряється %n міст…</numerusform>
            <numerusform>Перевіряються %n мости…</numerusform>
            <numerusform>Перевіряється %n мостів…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 for *.%2</source>
        <translation>%1 для *.%2</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 через %2</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Напряму</translation>
    </message>
    <message>
        <source>Your bridges</source>
        <translation>Ваші мости</translation>
    </message>
    <message>
        <source>(%1 s)</source>
        <translation>(%1 с)</translation>
    </message>
    <message>
        <source>Tried</source>
        <translation>Випробувано</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Пропозиція</translation>
    </message>
    <message>
        <source>Try them with: %1</source>
        <translation>Спробуйте їх командою: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of ask, always and never.</source>
        <translation>«%1» — не ask, не always і не never.</translation>
    </message>
    <message>
        <source>Refused, or out of reach.</source>
        <translation>Відмовлено або недоступно.</translation>
    </message>
    <message>
        <source>Something answered, but Tor made no further progress.</source>
        <translation>Відповідь була, але далі Tor не просунувся.</translation>
    </message>
    <message>
        <source>No answer.</source>
        <translation>Немає відповіді.</translation>
    </message>
    <message>
        <source>Tor has connected.</source>
        <translation>Tor під’єднався.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Tried: %1.</source>
        <translation>У цій мережі Tor не просувається. Випробувано: %1.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Veldmark can try bridges: %1.</source>
        <translation>У цій мережі Tor не просувається. Veldmark може спробувати мости: %1.</translation>
    </message>
    <message>
        <source>Being tried…</source>
        <translation>Пробується…</translation>
    </message>
    <message>
        <source>Tor did not accept these bridges.</source>
        <translation>Tor не прийняв ці мости.</translation>
    </message>
    <message>
        <source>No bridges are offered now.</source>
        <translation>Зараз мости не пропонуються.</translation>
    </message>
    <message>
        <source>whether bridges are tried when Tor cannot connect</source>
        <translation>чи пробувати мости, коли Tor не просувається</translation>
    </message>
    <message>
        <source>try the bridges that are offered when Tor cannot connect, see &quot;status&quot;</source>
        <translation>спробувати мости, запропоновані, коли Tor не просувається, див. «status»</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Ланцюги</translation>
    </message>
</context>
<context>
    <name>veldmark::Tray</name>
    <message>
        <source>Open Veldmark</source>
        <translation>Відкрити Veldmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
</context>
<context>
    <name>veldmark::Windows</name>
    <message>
        <source>Select the tor executable</source>
        <translation>Виберіть виконуваний файл tor</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Виберіть застосунки, яким у суворому режимі дозволено обходити Tor</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Застосунки</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Збереження звіту</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AboutPane</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
    <message>
        <source>The Tor Project</source>
        <translation>Проект Tor</translation>
    </message>
    <message>
        <source>The network and pluggable transports Veldmark builds on</source>
        <translation>Сеть и подключаемые транспорты, на которых основан Veldmark</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Благодарности</translation>
    </message>
    <message>
        <source>Homepage, downloads and updates</source>
        <translation>Сайт, загрузки и обновления</translation>
    </message>
    <message>
        <source>Sends this computer&apos;s traffic through Tor, all of it in strict mode and that of apps that use the system proxy in proxy mode, and shows whether it really does.</source>
        <translation>Направляет трафик этого компьютера через Tor: в строгом режиме весь, в режиме прокси — трафик приложений, использующих системный прокси. И показывает, так ли это на самом деле.</translation>
    </message>
    <message>
        <source>Veldmark is made with Qt, QCoro and tl::expected.</source>
        <translation>В Veldmark используются Qt, QCoro и tl::expected.</translation>
    </message>
</context>
<context>
    <name>ApplicationsSheet</name>
    <message>
        <source>App exceptions</source>
        <translation>Исключения для приложений</translation>
    </message>
    <message>
        <source>No apps yet. Add Zoom, Discord, a game…</source>
        <translation>Приложений пока нет. Добавьте Zoom, Discord, игру…</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Чтобы открывать приложения без Tor, подключитесь в строгом режиме</translation>
    </message>
    <message>
        <source>Open without Tor</source>
        <translation>Открыть без Tor</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Добавить…</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>BridgesPane</name>
    <message>
        <source>Bridges</source>
        <translation>Мосты</translation>
    </message>
    <message>
        <source>Programs that disguise your Tor connection</source>
        <translation>Программы, маскирующие ваше подключение к Tor</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Встроенные мосты</translation>
    </message>
    <message>
        <source>Bridge addresses shipped with Tor</source>
        <translation>Адреса мостов из поставки Tor</translation>
    </message>
    <message>
        <source>Tor Expert Bundle</source>
        <translation>Tor Expert Bundle</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>When Tor is blocked</source>
        <translation>Когда Tor заблокирован</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Чтобы изменить, отключитесь</translation>
    </message>
    <message>
        <source>Tries the available bridges in turn, without another password</source>
        <translation>Пробует имеющиеся мосты один за другим, без нового пароля</translation>
    </message>
</context>
<context>
    <name>BridgesSheet</name>
    <message>
        <source>Custom bridges</source>
        <translation>Свои мосты</translation>
    </message>
    <message>
        <source>One bridge per line. Ask the Tor Project for bridges on its bridges page, by e-mail or through its Telegram bot, or use those of someone you trust. obfs4, webtunnel, Snowflake, meek and plain bridges are supported.</source>
        <translation>По одному мосту на строку. Запросите мосты у Проекта Tor на его странице мостов, по электронной почте или через его бота в Telegram либо возьмите у того, кому доверяете. Поддерживаются obfs4, webtunnel, Snowflake, meek и обычные мосты.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>There is no bridge in this file.</source>
        <translation>В этом файле нет мостов.</translation>
    </message>
    <message>
        <source>Keep Only the Bridges</source>
        <translation>Оставить только мосты</translation>
    </message>
    <message>
        <source>Removes everything from the text but the bridges that were recognized</source>
        <translation>Удаляет из текста всё, кроме распознанных мостов</translation>
    </message>
</context>
<context>
    <name>ChooserWindow</name>
    <message>
        <source>App exceptions</source>
        <translation>Исключения для приложений</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Выберите приложения, которым в строгом режиме можно обходить Tor</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Установленные приложения</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Другое…</translation>
    </message>
    <message>
        <source>Choose the .desktop file of an application that is not listed</source>
        <translation>Выбрать файл .desktop приложения, которого нет в списке</translation>
    </message>
</context>
<context>
    <name>CircuitsSidebar</name>
    <message>
        <source>ALL CIRCUITS</source>
        <translation>ВСЕ ЦЕПОЧКИ</translation>
    </message>
    <message>
        <source>No circuit selected</source>
        <translation>Цепочка не выбрана</translation>
    </message>
    <message>
        <source>New Circuit</source>
        <translation>Новая цепочка</translation>
    </message>
    <message>
        <source>Close this circuit; its sites get a fresh path on their next request</source>
        <translation>Закрыть эту цепочку; при следующем запросе её сайты получат новый путь</translation>
    </message>
    <message>
        <source>Sites on this circuit get a fresh path. Other sites sharing it move too.</source>
        <translation>Сайты этой цепочки получат новый путь. Другие сайты, которые идут по ней, тоже сменят путь.</translation>
    </message>
</context>
<context>
    <name>CircuitsWindow</name>
    <message>
        <source>Circuits</source>
        <translation>Цепочки</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Новая личность</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Запросить у Tor новые цепочки и новый выходной IP</translation>
    </message>
    <message>
        <source>Find Faster</source>
        <translation>Ускорить</translation>
    </message>
    <message>
        <source>Time a request through Tor and get fresh circuits if it&apos;s slow</source>
        <translation>Измерить время запроса через Tor и получить новые цепочки, если он медленный</translation>
    </message>
    <message>
        <source>Reading circuits…</source>
        <translation>Чтение цепочек…</translation>
    </message>
    <message>
        <source>Connect to see your circuits</source>
        <translation>Подключитесь, чтобы увидеть цепочки</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>Подключение</translation>
    </message>
    <message>
        <source>Exit IP</source>
        <translation>Выходной IP</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Leaks</source>
        <translation>Утечки</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Трафик</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>Получено %1, отправлено %2</translation>
    </message>
    <message>
        <source>Traffic of the last two minutes</source>
        <translation>Трафик за последние две минуты</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Новая личность</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Запросить у Tor новые цепочки и новый выходной IP</translation>
    </message>
    <message>
        <source>Leak Test</source>
        <translation>Тест утечек</translation>
    </message>
    <message>
        <source>Check the exit IP and try a direct connection that skips Tor</source>
        <translation>Проверить выходной IP и попробовать прямое соединение в обход Tor</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Цепочки</translation>
    </message>
    <message>
        <source>See the path your traffic takes: entry, middle and exit relays</source>
        <translation>Показать путь вашего трафика: входной, промежуточный и выходной узлы</translation>
    </message>
</context>
<context>
    <name>CopyField</name>
    <message>
        <source>Copied</source>
        <translation>Скопировано</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
</context>
<context>
    <name>DNSCard</name>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>DNS-запросы могут идти мимо Tor</translation>
    </message>
    <message>
        <source>Fix DNS</source>
        <translation>Исправить DNS</translation>
    </message>
    <message>
        <source>Re-test</source>
        <translation>Повторить</translation>
    </message>
</context>
<context>
    <name>DoctorSheet</name>
    <message>
        <source>This computer</source>
        <translation>Этот компьютер</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Проверить снова</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Показать отчёт</translation>
    </message>
    <message>
        <source>What others need to help you, without addresses, names and bridges</source>
        <translation>Всё, что нужно другим, чтобы вам помочь, без адресов, имён и мостов</translation>
    </message>
</context>
<context>
    <name>DownloadButton</name>
    <message>
        <source>Download</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>Downloads the official Tor Expert Bundle from the Tor Project, for bridge programs and built-in bridges</source>
        <translation>Загружает с сайта Проекта Tor официальный Tor Expert Bundle: программы для мостов и встроенные мосты</translation>
    </message>
</context>
<context>
    <name>Footer</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Tor Log</source>
        <translation>Журнал Tor</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Завершить</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Startup and password prompts</source>
        <translation>Запуск и запросы пароля</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Запуск</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Запускать при входе в систему</translation>
    </message>
    <message>
        <source>Veldmark starts when you log in</source>
        <translation>Veldmark запускается, когда вы входите в систему</translation>
    </message>
    <message>
        <source>Connect automatically</source>
        <translation>Подключаться автоматически</translation>
    </message>
    <message>
        <source>Connect as soon as Veldmark opens</source>
        <translation>Подключаться сразу после запуска Veldmark</translation>
    </message>
    <message>
        <source>Password prompts</source>
        <translation>Запросы пароля</translation>
    </message>
    <message>
        <source>Passwordless mode</source>
        <translation>Режим без пароля</translation>
    </message>
    <message>
        <source>Connect and Disconnect never ask</source>
        <translation>Подключение и отключение без пароля</translation>
    </message>
    <message>
        <source>Asks for your password each time</source>
        <translation>Пароль запрашивается каждый раз</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Выключить</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Настроить…</translation>
    </message>
    <message>
        <source>Setup asks for your admin password once. It installs a root-owned copy of Veldmark&apos;s helper and a rule in /etc/sudoers.d that lets your account run only that helper, so Connect and Disconnect stop asking. Turn it off any time.</source>
        <translation>При настройке один раз запрашивается пароль администратора. Устанавливаются принадлежащая root копия вспомогательной программы Veldmark и правило в /etc/sudoers.d, которое разрешает вашей учётной записи запускать только эту программу. После этого подключение и отключение не требуют пароля. Выключить можно в любое время.</translation>
    </message>
</context>
<context>
    <name>Hero</name>
    <message>
        <source>Show Tor Log</source>
        <translation>Журнал Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Показать всё, что сообщил Tor</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Восстановить сеть</translation>
    </message>
    <message>
        <source>Try Bridges</source>
        <translation>Попробовать мосты</translation>
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
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Уведомление</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Информация</translation>
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
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Следить</translation>
    </message>
    <message>
        <source>Keep the newest lines in view</source>
        <translation>Держать на виду самые новые строки</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Copy the lines shown</source>
        <translation>Копировать показанные строки</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показать</translation>
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
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Чтобы изменить, отключитесь</translation>
    </message>
    <message>
        <source>Strict mode</source>
        <translation>Строгий режим</translation>
    </message>
    <message>
        <source>Kill switch: block anything not using Tor</source>
        <translation>Kill switch: блокировать всё, что идёт мимо Tor</translation>
    </message>
    <message>
        <source>Blocks every connection that doesn&apos;t go through Tor, including UDP and IPv6. Apps that ignore proxy settings won&apos;t connect at all instead of leaking.</source>
        <translation>Блокирует все соединения, которые идут не через Tor, включая UDP и IPv6. Приложения, игнорирующие настройки прокси, вместо утечки просто не подключатся.</translation>
    </message>
    <message>
        <source>Allow local network</source>
        <translation>Разрешить локальную сеть</translation>
    </message>
    <message>
        <source>Exit country</source>
        <translation>Страна выхода</translation>
    </message>
    <message>
        <source>Where your traffic appears to come from</source>
        <translation>Откуда для сайтов идёт ваш трафик</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Мосты</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Изменить…</translation>
    </message>
    <message>
        <source>Custom bridges</source>
        <translation>Свои мосты</translation>
    </message>
    <message>
        <source>Optimize for speed</source>
        <translation>Оптимизация скорости</translation>
    </message>
    <message>
        <source>New circuits for everything</source>
        <translation>Новые цепочки для всего</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Режим терминала</translation>
    </message>
    <message>
        <source>App exceptions</source>
        <translation>Исключения для приложений</translation>
    </message>
    <message>
        <source>For networks that block or watch Tor</source>
        <translation>Для сетей, где Tor блокируют или отслеживают</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Find the Cause</source>
        <translation>Найти причину</translation>
    </message>
    <message>
        <source>Checks what a connection needs on this computer, what blocks it and how to fix it</source>
        <translation>Проверить этот компьютер: что нужно для подключения, что ему мешает и как это исправить</translation>
    </message>
    <message>
        <source>Show Tor Log</source>
        <translation>Журнал Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Показать всё, что сообщил Tor</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with this command, then click Recheck.</source>
        <translation>Tor не установлен. Установите его этой командой и нажмите «Проверить снова».</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with %1, then click Recheck.</source>
        <translation>Tor не установлен. Установите его через %1 и нажмите «Проверить снова».</translation>
    </message>
    <message>
        <source>Recheck</source>
        <translation>Проверить снова</translation>
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
        <translation>Найдено %1</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Не найдено</translation>
    </message>
</context>
<context>
    <name>QuitDialog</name>
    <message>
        <source>Quit Veldmark</source>
        <translation>Завершение Veldmark</translation>
    </message>
    <message>
        <source>Your network is still routed through Tor</source>
        <translation>Сеть всё ещё направлена через Tor</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and the kill switch stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Если завершить Veldmark сейчас, Tor продолжит работать, а kill switch останется включённым. Чтобы вернуть обычное подключение, позже снова откройте Veldmark.</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and your system proxy stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Если завершить Veldmark сейчас, Tor продолжит работать, а системный прокси останется включённым. Чтобы вернуть обычное подключение, позже снова откройте Veldmark.</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Отключение…</translation>
    </message>
    <message>
        <source>Disconnect &amp; Quit</source>
        <translation>Отключиться и завершить</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Всё равно завершить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>RecoveryPane</name>
    <message>
        <source>Recovery</source>
        <translation>Восстановление</translation>
    </message>
    <message>
        <source>Get your normal connection back</source>
        <translation>Вернуть обычное подключение</translation>
    </message>
    <message>
        <source>Restore network settings</source>
        <translation>Восстановить настройки сети</translation>
    </message>
    <message>
        <source>Veldmark&apos;s changes are active</source>
        <translation>Изменения Veldmark действуют</translation>
    </message>
    <message>
        <source>Nothing to restore</source>
        <translation>Восстанавливать нечего</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>Use this if your internet stops working after a crash. It puts your DNS, proxy and firewall settings back the way they were and stops Tor.</source>
        <translation>Используйте это, если после сбоя перестал работать интернет. Настройки DNS, прокси и брандмауэра вернутся к прежнему состоянию, а Tor остановится.</translation>
    </message>
    <message>
        <source>If the app won&apos;t open</source>
        <translation>Если приложение не открывается</translation>
    </message>
    <message>
        <source>Run this in Terminal to do the same thing without Veldmark.</source>
        <translation>Выполните эту команду в терминале, чтобы сделать то же самое без Veldmark.</translation>
    </message>
    <message>
        <source>Report for others</source>
        <translation>Отчёт для других</translation>
    </message>
    <message>
        <source>What they need to help you, without addresses, names and bridges. You read it first, and nothing sends it.</source>
        <translation>Всё, что им нужно, чтобы вам помочь, без адресов, имён и мостов. Сначала его читаете вы, и ничто его не отправляет.</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Показать отчёт</translation>
    </message>
</context>
<context>
    <name>ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>Отчёт</translation>
    </message>
    <message>
        <source>For those who help you. Addresses, names, bridges, keys and paths in your home are replaced. Look through it before you give it away: Veldmark sends it to nobody.</source>
        <translation>Для тех, кто вам помогает. Адреса, имена, мосты, ключи и пути в вашей домашней папке заменены. Просмотрите его, прежде чем передать: Veldmark никому его не отправляет.</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Сохранить…</translation>
    </message>
    <message>
        <source>Save the report in a file that only you can read</source>
        <translation>Сохранить отчёт в файл, который можете прочитать только вы</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Copy the whole report</source>
        <translation>Скопировать весь отчёт</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Проверка этого компьютера…</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Мосты</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Терминал</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Восстановление</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
</context>
<context>
    <name>TerminalPane</name>
    <message>
        <source>Terminal</source>
        <translation>Терминал</translation>
    </message>
    <message>
        <source>Route command-line tools through Tor</source>
        <translation>Направлять программы командной строки через Tor</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Режим терминала</translation>
    </message>
    <message>
        <source>Shell integration</source>
        <translation>Интеграция с оболочкой</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
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
        <translation>Программа Tor, которую запускает Veldmark</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Программа</translation>
    </message>
    <message>
        <source>Location: disconnect to change</source>
        <translation>Путь: чтобы изменить, отключитесь</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Путь</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Автоматически</translation>
    </message>
    <message>
        <source>Custom location</source>
        <translation>Другой путь</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Separate applications</source>
        <translation>Разделять приложения</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Чтобы изменить, отключитесь</translation>
    </message>
    <message>
        <source>Each application has circuits of its own</source>
        <translation>У каждого приложения свои цепочки</translation>
    </message>
    <message>
        <source>Sites cannot tell by the exit address that two applications are yours. Veldmark tells applications apart where the desktop starts each in a control group of its own, as GNOME and KDE do. Other programs share circuits with the rest of their login session or account.</source>
        <translation>Сайты не могут понять по выходному адресу, что два приложения — ваши. Приложения различаются там, где рабочая среда запускает каждое в отдельной контрольной группе, как GNOME и KDE. Остальные программы делят цепочки со всем своим сеансом входа или всей учётной записью.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Start without a window, as at login.</source>
        <translation>Запустить без окна, как при входе в систему.</translation>
    </message>
    <message>
        <source>Connect at once.</source>
        <translation>Подключиться сразу.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor. To restore it without Veldmark, run:
%1</source>
        <translation>Сеть всё ещё настроена на Tor. Чтобы восстановить её без Veldmark, выполните:
%1</translation>
    </message>
</context>
<context>
    <name>veldmark::Alerts</name>
    <message>
        <source>Another session has replaced this one</source>
        <translation>Этот сеанс заменён другим</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor прекратил работу</translation>
    </message>
    <message>
        <source>Traffic can leave around Tor</source>
        <translation>Трафик может уходить мимо Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>DNS-запросы могут идти мимо Tor</translation>
    </message>
    <message>
        <source>Your real address can be seen. Open Veldmark to see what to do.</source>
        <translation>Ваш реальный адрес виден. Откройте Veldmark, чтобы узнать, что делать.</translation>
    </message>
    <message>
        <source>Firewall rules were removed</source>
        <translation>Правила брандмауэра были удалены</translation>
    </message>
    <message>
        <source>The kill switch doesn&apos;t block traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>Kill switch не действует. Откройте Veldmark, отключитесь и подключитесь снова.</translation>
    </message>
    <message>
        <source>The kill switch is not watched</source>
        <translation>За kill switch нет наблюдения</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>Неизвестно, действует ли kill switch. Откройте Veldmark, отключитесь и подключитесь снова.</translation>
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
        <translation>Не удалось создать окно. На вашу сеть это не влияет; чтобы восстановить её без Veldmark, выполните:
%1

%2</translation>
    </message>
    <message>
        <source>Veldmark is still running</source>
        <translation>Veldmark всё ещё работает</translation>
    </message>
    <message>
        <source>Open Veldmark again to see its window.</source>
        <translation>Откройте Veldmark ещё раз, чтобы увидеть его окно.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Сеть всё ещё настроена на Tor</translation>
    </message>
    <message>
        <source>Veldmark had to close and could not restore the network. Open Veldmark again to restore it.</source>
        <translation>Veldmark получил команду завершиться и не смог восстановить сеть. Чтобы сделать это, снова откройте Veldmark.</translation>
    </message>
</context>
<context>
    <name>veldmark::ApplicationChoices</name>
    <message>
        <source>No installed applications were found.</source>
        <translation>Установленных приложений не найдено.</translation>
    </message>
    <message>
        <source>No application is called “%1”.</source>
        <translation>Приложение «%1» не найдено.</translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitGraphView</name>
    <message>
        <source>%1: your real IP only ever reaches the entry relay</source>
        <translation>%1: ваш реальный IP доходит только до входного узла</translation>
    </message>
    <message>
        <source>Used by 1 circuit</source>
        <translation>Используется в 1 цепочке</translation>
    </message>
    <message>
        <source>ENTRY</source>
        <translation>ВХОД</translation>
    </message>
    <message>
        <source>MIDDLE</source>
        <translation>СЕРЕДИНА</translation>
    </message>
    <message>
        <source>EXIT</source>
        <translation>ВЫХОД</translation>
    </message>
    <message>
        <source>SITES</source>
        <translation>САЙТЫ</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>ещё %1</translation>
    </message>
    <message numerus="yes">
        <source>Used by %n circuits</source>
        <translation>
            <numerusform>Используется в %n цепочке</numerusform>
            <numerusform>Используется в %n цепочках</numerusform>
            <numerusform>Используется в %n цепочках</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitsModel</name>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>Circuit %1</source>
        <translation>Цепочка %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Не подключено</translation>
    </message>
    <message>
        <source>1 active path</source>
        <translation>1 активный путь</translation>
    </message>
    <message>
        <source> · click a relay or site to follow it</source>
        <translation> · нажмите узел или сайт, чтобы проследить его путь</translation>
    </message>
    <message>
        <source>Leads to an onion service. The last relay is the meeting point.</source>
        <translation>Ведёт к onion-сервису. Последний узел — точка встречи.</translation>
    </message>
    <message>
        <source>Meeting point</source>
        <translation>Точка встречи</translation>
    </message>
    <message>
        <source>One of several linked legs to the same exit</source>
        <translation>Одна из нескольких связанных ветвей к одному и тому же выходу</translation>
    </message>
    <message>
        <source>Only the entry sees your IP</source>
        <translation>Ваш IP видит только входной узел</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Середина</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>Мост</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Вход</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>, +%1 more</source>
        <translation>, ещё %1</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Сайты</translation>
    </message>
    <message>
        <source>Round trip: %1</source>
        <translation>Туда и обратно: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n active paths</source>
        <translation>
            <numerusform>%n активный путь</numerusform>
            <numerusform>%n активных пути</numerusform>
            <numerusform>%n активных путей</numerusform>
        </translation>
    </message>
    <message>
        <source>Asked for by %1</source>
        <translation>Кто запросил: %1</translation>
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
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Примечание</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>В порядке</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Восстановить сеть</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Загрузить</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Проверка этого компьютера…</translation>
    </message>
    <message>
        <source>The check gave no result.</source>
        <translation>Проверка не дала результата.</translation>
    </message>
    <message>
        <source>No problem was found that keeps Veldmark from connecting.</source>
        <translation>Не найдено ничего, что мешало бы Veldmark подключиться.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t connect until each problem is fixed.</source>
        <translation>Veldmark не сможет подключиться, пока не устранены все проблемы.</translation>
    </message>
</context>
<context>
    <name>veldmark::LogModel</name>
    <message>
        <source>Tor writes here while it connects and runs</source>
        <translation>Сюда Tor пишет во время подключения и работы</translation>
    </message>
    <message>
        <source>Can&apos;t read the log files</source>
        <translation>Не удаётся прочитать файлы журнала</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 строка</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Проблемы</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Проблемы (%1)</translation>
    </message>
    <message>
        <source>Show the log files in Finder</source>
        <translation>Показать файлы журнала в Finder</translation>
    </message>
    <message>
        <source>Show the log files in the file manager</source>
        <translation>Показать файлы журнала в файловом менеджере</translation>
    </message>
    <message>
        <source>There are no log files yet. Tor creates %1 when it first starts.</source>
        <translation>Файлов журнала пока нет: Tor создаёт %1 при первом запуске.</translation>
    </message>
    <message>
        <source>No file manager could be opened. The log files are in %1.</source>
        <translation>Не удалось открыть файловый менеджер. Файлы журнала находятся в %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n строка</numerusform>
            <numerusform>%n строки</numerusform>
            <numerusform>%n строк</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::OptionsModel</name>
    <message>
        <source>Choosing a country means fewer exit relays, so it&apos;s slower and you&apos;re easier to single out.</source>
        <translation>Если выбрать страну, выходных узлов будет меньше: соединение медленнее, а вас легче выделить среди других.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Выкл.</translation>
    </message>
    <message>
        <source>obfs4 (built-in)</source>
        <translation>obfs4 (встроенные)</translation>
    </message>
    <message>
        <source>Snowflake (built-in)</source>
        <translation>Snowflake (встроенные)</translation>
    </message>
    <message>
        <source>meek (built-in)</source>
        <translation>meek (встроенные)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Свои</translation>
    </message>
    <message>
        <source>No bridges added yet</source>
        <translation>Мосты ещё не добавлены</translation>
    </message>
    <message>
        <source>Needs bridge programs: click Download</source>
        <translation>Нужны программы для мостов: нажмите «Загрузить»</translation>
    </message>
    <message>
        <source>Built-in bridges from %1</source>
        <translation>Встроенные мосты из %1</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(строка %1)</translation>
    </message>
    <message>
        <source>(lines %1)</source>
        <translation>(строки %1)</translation>
    </message>
    <message>
        <source>1 bridge recognized</source>
        <translation>Распознан 1 мост</translation>
    </message>
    <message>
        <source>A bridge line can&apos;t contain #, &quot; or \.</source>
        <translation>Строка моста не может содержать #, &quot; или \.</translation>
    </message>
    <message>
        <source>At most %1 bridges can be used</source>
        <translation>Мостов можно использовать не более %1</translation>
    </message>
    <message>
        <source>1 line not recognized</source>
        <translation>Не распознана 1 строка</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the Dock) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>В строгом режиме эти приложения могут подключаться напрямую, а не через Tor, с вашим реальным IP-адресом. Всё остальное — по-прежнему только через Tor. Открывайте их кнопкой &lt;b&gt;Открыть без Tor&lt;/b&gt; (не из Dock), чтобы Veldmark мог их пометить. Уже запущенная копия будет закрыта и открыта заново.</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the desktop&apos;s menu) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>В строгом режиме эти приложения могут подключаться напрямую, а не через Tor, с вашим реальным IP-адресом. Всё остальное — по-прежнему только через Tor. Открывайте их кнопкой &lt;b&gt;Открыть без Tor&lt;/b&gt; (не из меню рабочей среды), чтобы Veldmark мог их пометить. Уже запущенная копия будет закрыта и открыта заново.</translation>
    </message>
    <message numerus="yes">
        <source>%n bridges recognized</source>
        <translation>
            <numerusform>Распознан %n мост</numerusform>
            <numerusform>Распознано %n моста</numerusform>
            <numerusform>Распознано %n мостов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines not recognized</source>
        <translation>
            <numerusform>Не распознана %n строка</numerusform>
            <numerusform>Не распознано %n строки</numerusform>
            <numerusform>Не распознано %n строк</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::PanelModel</name>
    <message>
        <source>No answer</source>
        <translation>Нет ответа</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but it isn&apos;t known whether the kill switch blocks such connections</source>
        <translation>Прямое соединение в обход Tor осталось без ответа, но неизвестно, блокирует ли kill switch такие соединения</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but proxy mode doesn&apos;t block such connections</source>
        <translation>Прямое соединение в обход Tor осталось без ответа, но режим прокси не блокирует такие соединения</translation>
    </message>
    <message>
        <source>Connect to Tor</source>
        <translation>Подключиться к Tor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Отключиться</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Переподключиться</translation>
    </message>
    <message>
        <source>Connected through %1 bridges</source>
        <translation>Подключено через мосты: %1</translation>
    </message>
    <message>
        <source>Strict</source>
        <translation>Строгий</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>Install Tor to get started</source>
        <translation>Сначала установите Tor</translation>
    </message>
    <message>
        <source>Click to connect</source>
        <translation>Нажмите, чтобы подключиться</translation>
    </message>
    <message>
        <source>Click to disconnect</source>
        <translation>Нажмите, чтобы отключиться</translation>
    </message>
    <message>
        <source>Tor hasn&apos;t reported progress for a while. It is still trying; a slow or blocked network is the usual reason.</source>
        <translation>Tor уже некоторое время не сообщает о ходе подключения. Попытки продолжаются; обычная причина — медленная или заблокированная сеть.</translation>
    </message>
    <message>
        <source>Still waiting for Tor to start, or for your approval.</source>
        <translation>Всё ещё ожидается запуск Tor или ваше подтверждение.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Проверка</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Неизвестно</translation>
    </message>
    <message>
        <source>Checked against %1</source>
        <translation>Проверено по данным %1</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Подтверждено</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>Не подтверждено</translation>
    </message>
    <message>
        <source>DNS leak</source>
        <translation>Утечка DNS</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>Не проверено</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Проверка…</translation>
    </message>
    <message>
        <source>No leaks</source>
        <translation>Утечек нет</translation>
    </message>
    <message>
        <source>Inconclusive</source>
        <translation>Не определено</translation>
    </message>
    <message>
        <source>Exposed: %1</source>
        <translation>Раскрыт: %1</translation>
    </message>
    <message>
        <source>Tries a direct connection that skips Tor</source>
        <translation>Пробует прямое соединение в обход Tor</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor are blocked</source>
        <translation>Прямые соединения в обход Tor заблокированы</translation>
    </message>
    <message>
        <source>Apps that ignore proxy settings show your real IP (%1). Turn on Strict mode to block them.</source>
        <translation>Приложения, которые игнорируют настройки прокси, выдают ваш реальный IP (%1). Включите строгий режим, чтобы блокировать их.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>ещё %1</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Не проверено</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor show your real IP (%1), although Strict mode should block them. Disconnect, or run the leak test again.</source>
        <translation>Прямые соединения в обход Tor выдают ваш реальный IP (%1), хотя строгий режим должен их блокировать. Отключитесь или повторите тест утечек.</translation>
    </message>
</context>
<context>
    <name>veldmark::ReportModel</name>
    <message>
        <source>Saved in %1</source>
        <translation>Сохранено в %1</translation>
    </message>
</context>
<context>
    <name>veldmark::SettingsModel</name>
    <message>
        <source>Found</source>
        <translation>Найдено</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Отсутствует</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Не найдено</translation>
    </message>
    <message>
        <source>Homebrew: %1</source>
        <translation>Homebrew: %1</translation>
    </message>
    <message>
        <source>Install it with %1</source>
        <translation>Установите через %1</translation>
    </message>
    <message>
        <source>Not found in Tor Browser or a downloaded bundle</source>
        <translation>Нет ни в Tor Browser, ни в загруженном комплекте</translation>
    </message>
    <message>
        <source>Loaded from %1</source>
        <translation>Загружено из %1</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <translation>Не загружено</translation>
    </message>
    <message>
        <source>Version %1 loaded</source>
        <translation>Загружена версия %1</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>подпись подтверждена</translation>
    </message>
    <message>
        <source>Adds one line to ~/.zshrc (and ~/.bash_profile if you have one) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>Добавляет одну строку в ~/.zshrc (и в ~/.bash_profile, если он есть) и строку Include в начало ~/.ssh/config. Файлы находятся в ~/.veldmark. Через Tor трафик направляется, только когда Veldmark подключён и режим терминала включён.</translation>
    </message>
    <message>
        <source>Adds one line to ~/.bashrc (and ~/.zshrc if you use zsh) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>Добавляет одну строку в ~/.bashrc (и в ~/.zshrc, если вы пользуетесь zsh) и строку Include в начало ~/.ssh/config. Файлы находятся в ~/.veldmark. Через Tor трафик направляется, только когда Veldmark подключён и режим терминала включён.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>Fetched over HTTPS. Its signature isn&apos;t checked, since GnuPG isn&apos;t installed.</source>
        <translation>Загружается по HTTPS. Подпись не проверяется, потому что не установлен GnuPG.</translation>
    </message>
    <message>
        <source>Fetched over HTTPS and checked against the Tor Project&apos;s signature.</source>
        <translation>Загружается по HTTPS и сверяется с подписью Проекта Tor.</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Не установлено</translation>
    </message>
    <message>
        <source>Installed in your shell and SSH config</source>
        <translation>Установлено в оболочке и в настройках SSH</translation>
    </message>
    <message>
        <source>Installed in your shell; SSH doesn&apos;t use it</source>
        <translation>Установлено в оболочке; SSH это не использует</translation>
    </message>
    <message>
        <source>curl, git, brew, pip, ssh and more use Tor</source>
        <translation>curl, git, brew, pip, ssh и другие идут через Tor</translation>
    </message>
    <message>
        <source>curl, git, pip, ssh and more use Tor</source>
        <translation>curl, git, pip, ssh и другие идут через Tor</translation>
    </message>
    <message>
        <source>Veldmark is free software and independent of the Tor Project. It contains no Tor: it runs the tor that is installed here, and where bridges are used lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>Veldmark — свободная программа, не зависящая от Проекта Tor. Сам Tor в неё не входит: она запускает установленный здесь tor, а если используются мосты — lyrebird, snowflake-client или webtunnel-client.</translation>
    </message>
    <message>
        <source>It sets up the network with macOS&apos;s own programs, asks for the administrator with sudo, and checks downloads with GnuPG where that is installed.</source>
        <translation>Для настройки сети используются программы самой macOS, права администратора запрашиваются через sudo, а загрузки проверяются с помощью GnuPG, если он установлен.</translation>
    </message>
    <message>
        <source>It sets up the network with nftables, resolvectl and gsettings, asks for the administrator with polkit or sudo, takes ssh through Tor with a netcat, and checks downloads with GnuPG where that is installed.</source>
        <translation>Для настройки сети используются nftables, resolvectl и gsettings, права администратора запрашиваются через polkit или sudo, ssh направляется через Tor с помощью netcat, а загрузки проверяются с помощью GnuPG, если он установлен.</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Спрашивать</translation>
    </message>
    <message>
        <source>Try bridges</source>
        <translation>Пробовать мосты</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Ничего не делать</translation>
    </message>
</context>
<context>
    <name>veldmark::ShutdownNotice</name>
    <message>
        <source>Restoring your network settings</source>
        <translation>Настройки сети восстанавливаются</translation>
    </message>
</context>
<context>
    <name>veldmark::Text</name>
    <message>
        <source>Tor hasn&apos;t confirmed that it uses the network again, so traffic may not get through. Veldmark keeps telling Tor to. If this lasts, disconnect and connect again.</source>
        <translation>Tor не подтвердил, что снова работает в сети; возможно, ничего не проходит. Veldmark продолжает повторять ему команду; если не поможет, отключитесь и подключитесь снова.</translation>
    </message>
    <message>
        <source>Version %1 is offered, which is older than the installed %2. Nothing was changed.</source>
        <translation>Предлагается версия %1, а установлена более новая %2. Ничего не изменено.</translation>
    </message>
    <message>
        <source>The download of version %1 contains another version, so it was discarded.</source>
        <translation>Под видом версии %1 получена другая; она удалена.</translation>
    </message>
    <message>
        <source>The download begins again when Tor is connected…</source>
        <translation>Загрузка начнётся заново, когда Tor подключится…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a location of Tor. Give an absolute path, such as /usr/bin/tor.</source>
        <translation>«%1» не годится как путь к Tor: укажите полный путь, например /usr/bin/tor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be changed during a connection. Disconnect to change it.</source>
        <translation>«%1» действует на всё время подключения. Чтобы изменить, отключитесь.</translation>
    </message>
    <message>
        <source>Your traffic is not going through Tor</source>
        <translation>Ваш трафик не идёт через Tor</translation>
    </message>
    <message>
        <source>Restoring your network settings…</source>
        <translation>Восстановление настроек сети…</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor from an earlier session</source>
        <translation>Сеть всё ещё настроена на Tor после прошлого сеанса</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Сеть всё ещё настроена на Tor</translation>
    </message>
    <message>
        <source>Preparing Tor…</source>
        <translation>Подготовка Tor…</translation>
    </message>
    <message>
        <source>Waiting for administrator approval…</source>
        <translation>Ожидание подтверждения администратора…</translation>
    </message>
    <message>
        <source>Waiting for an administrator to approve a program…</source>
        <translation>Ожидание, пока администратор одобрит программу…</translation>
    </message>
    <message>
        <source>Starting Tor…</source>
        <translation>Запуск Tor…</translation>
    </message>
    <message>
        <source>Tor is waiting for the bridge program, which hasn&apos;t said that it is ready.</source>
        <translation>Tor ждёт программу моста: она ещё не сообщила о готовности.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting</source>
        <translation>Tor не завершил подключение</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor прекратил работу</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor</source>
        <translation>Весь трафик — только через Tor</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor</source>
        <translation>Приложения, использующие системный прокси, идут через Tor</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. Reconnect, or Restore Network to go back online.</source>
        <translation>Tor прекратил работу. Kill switch по-прежнему блокирует трафик, поэтому утечек не было. Переподключитесь либо восстановите сеть, чтобы вернуться в интернет без Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, but the last checks saw traffic go around Tor. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor прекратил работу. Kill switch по-прежнему блокирует трафик, но последние проверки выявили трафик мимо Tor. Переподключитесь либо восстановите сеть, чтобы вернуться в интернет без Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running. Apps using the proxy can&apos;t connect until you reconnect or Restore Network.</source>
        <translation>Tor прекратил работу. Приложения, использующие прокси, не смогут подключаться, пока вы не переподключитесь или не восстановите сеть.</translation>
    </message>
    <message>
        <source>Any (recommended)</source>
        <translation>Любая (советуем)</translation>
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
        <translation>Великобритания</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Германия</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Нидерланды</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Франция</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Швеция</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Швейцария</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Финляндия</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Румыния</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Япония</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Сингапур</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Свои</translation>
    </message>
    <message>
        <source>DNS can go around Tor via: %1</source>
        <translation>DNS может идти мимо Tor через: %1</translation>
    </message>
    <message>
        <source>DNS: not tested yet.</source>
        <translation>DNS: ещё не проверено.</translation>
    </message>
    <message>
        <source>DNS: testing…</source>
        <translation>DNS: проверка…</translation>
    </message>
    <message>
        <source>DNS: a test lookup went through Tor.</source>
        <translation>DNS: пробный запрос прошёл через Tor.</translation>
    </message>
    <message>
        <source>DNS: settings point at Tor, but a test lookup couldn&apos;t be confirmed.</source>
        <translation>DNS: настройки указывают на Tor, но подтвердить пробный запрос не удалось.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Этот компьютер</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Этот Mac</translation>
    </message>
    <message>
        <source>on this computer</source>
        <translation>на этом компьютере</translation>
    </message>
    <message>
        <source>on this Mac</source>
        <translation>на этом Mac</translation>
    </message>
    <message>
        <source>Tor stopped running, and your network is no longer set up for it.</source>
        <translation>Tor прекратил работу, и сеть больше не настроена на него.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is blocking traffic again, but another program had removed its rules for a while. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor прекратил работу. Kill switch снова блокирует трафик, но другая программа на время удаляла его правила. Переподключитесь либо восстановите сеть, чтобы вернуться в интернет без Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running, and the kill switch doesn&apos;t block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network.</source>
        <translation>Tor прекратил работу, и kill switch не действует: другая программа удалила его правила. Трафик может уходить с этого компьютера напрямую. Переподключитесь или восстановите сеть.</translation>
    </message>
    <message>
        <source>Tor stopped running, and it isn&apos;t known whether the kill switch is still blocking traffic. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor прекратил работу, и неизвестно, блокирует ли ещё kill switch трафик. Переподключитесь либо восстановите сеть, чтобы вернуться в интернет без Tor.</translation>
    </message>
    <message>
        <source>The watcher of Veldmark&apos;s firewall rules has stopped reporting, so it isn&apos;t known whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>Программа, следящая за правилами Veldmark в брандмауэре, перестала сообщать о них, поэтому неизвестно, действует ли kill switch. Отключитесь и подключитесь снова.</translation>
    </message>
    <message>
        <source>Not Protected</source>
        <translation>Не защищено</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Подключение…</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Отключение…</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>Защищено</translation>
    </message>
    <message>
        <source>Proxy Active</source>
        <translation>Прокси активен</translation>
    </message>
    <message>
        <source>Needs Attention</source>
        <translation>Требует внимания</translation>
    </message>
    <message>
        <source>DNS Leak</source>
        <translation>Утечка DNS</translation>
    </message>
    <message>
        <source>Kill Switch Failed</source>
        <translation>Kill switch не действует</translation>
    </message>
    <message>
        <source>Traffic may leave this computer directly</source>
        <translation>Трафик может уходить с этого компьютера напрямую</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>DNS-запросы могут идти мимо Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor, and your real address can be seen</source>
        <translation>DNS-запросы могут идти мимо Tor, и ваш реальный адрес виден</translation>
    </message>
    <message>
        <source>Your real address can be seen. Disconnect, or run the leak test again.</source>
        <translation>Ваш реальный адрес виден. Отключитесь или повторите тест утечек.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>Неизвестно, действует ли kill switch. Отключитесь и подключитесь снова.</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor, but the exit could not be confirmed</source>
        <translation>Весь трафик — только через Tor, но выход подтвердить не удалось</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor, but the exit could not be confirmed</source>
        <translation>Приложения, использующие системный прокси, идут через Tor, но выход подтвердить не удалось</translation>
    </message>
    <message>
        <source>No Network</source>
        <translation>Нет сети</translation>
    </message>
    <message>
        <source>Nothing Gets Through</source>
        <translation>Ничего не проходит</translation>
    </message>
    <message>
        <source>This computer has no network. Traffic around Tor stays blocked.</source>
        <translation>На этом компьютере нет сети. Трафик мимо Tor по-прежнему блокируется.</translation>
    </message>
    <message>
        <source>This computer has no network. Veldmark goes on when it is back.</source>
        <translation>На этом компьютере нет сети. Veldmark продолжит, когда она появится.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>У Tor нет работающей цепочки, он продолжает попытки. Трафик мимо Tor по-прежнему блокируется.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying.</source>
        <translation>У Tor нет работающей цепочки, он продолжает попытки.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor не получает ответа из сети и продолжает попытки. Трафик мимо Tor по-прежнему блокируется.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying.</source>
        <translation>Tor не получает ответа из сети и продолжает попытки.</translation>
    </message>
    <message>
        <source>Another program has ended this session and started its own. Restore Network ends that session.</source>
        <translation>Другая программа завершила этот сеанс и начала свой. «Восстановить сеть» завершает тот сеанс.</translation>
    </message>
    <message>
        <source>This computer has no network, so Tor can&apos;t connect.</source>
        <translation>На этом компьютере нет сети, поэтому Tor не может подключиться.</translation>
    </message>
    <message>
        <source>A VPN takes Tor&apos;s traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode.</source>
        <translation>Трафик Tor идёт через VPN, а строгий режим не выпускает VPN. Выключите VPN или используйте режим прокси.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules; they are back in place.</source>
        <translation>Другая программа удалила правила Veldmark в брандмауэре; они восстановлены.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules and they could not be put back. Traffic may leave this computer directly. Disconnect and connect again.</source>
        <translation>Другая программа удалила правила Veldmark в брандмауэре, и восстановить их не удалось. Трафик может уходить с этого компьютера напрямую. Отключитесь и подключитесь снова.</translation>
    </message>
    <message>
        <source>Invalid exit country.</source>
        <translation>Недопустимая страна выхода.</translation>
    </message>
    <message>
        <source>The settings couldn&apos;t be saved. Changes to them may last only until you quit.</source>
        <translation>Не удалось сохранить настройки. Их изменения могут действовать только до завершения Veldmark.</translation>
    </message>
    <message>
        <source>Checking latest version…</source>
        <translation>Поиск последней версии…</translation>
    </message>
    <message>
        <source>Verifying signature…</source>
        <translation>Проверка подписи…</translation>
    </message>
    <message>
        <source>Another download is under way.</source>
        <translation>Уже идёт другая загрузка.</translation>
    </message>
    <message>
        <source>Path not responding, finding another…</source>
        <translation>Путь не отвечает, идёт поиск другого…</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes.</source>
        <translation>Tor не завершил подключение за 5 минут.</translation>
    </message>
    <message>
        <source>Administrator access was refused, or the agent that asks for the password gave no answer.</source>
        <translation>В правах администратора отказано, или агент, запрашивающий пароль, не ответил.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, so Tor can&apos;t connect: %1.</source>
        <translation>Другой брандмауэр на этом компьютере запрещает исходящие соединения, поэтому Tor не может подключиться: %1.</translation>
    </message>
    <message>
        <source>Setup ran but the helper wasn&apos;t installed. Try again.</source>
        <translation>Настройка прошла, но вспомогательная программа не установилась. Повторите попытку.</translation>
    </message>
    <message>
        <source>The helper failed without an error message.</source>
        <translation>Вспомогательная программа завершилась с ошибкой без пояснений.</translation>
    </message>
    <message>
        <source>Add at least one bridge under Bridges → Custom….</source>
        <translation>Добавьте хотя бы один мост в «Мосты → Свои…».</translation>
    </message>
    <message>
        <source>Some custom bridge lines aren&apos;t valid. Fix them under Bridges → Custom….</source>
        <translation>Некоторые строки мостов недопустимы. Исправьте их в «Мосты → Свои…».</translation>
    </message>
    <message>
        <source>At most %1 custom bridges can be used. Remove some under Bridges → Custom….</source>
        <translation>Своих мостов можно использовать не более %1. Удалите лишние в «Мосты → Свои…».</translation>
    </message>
    <message>
        <source>Testing speed (%1 of %2)…</source>
        <translation>Проверка скорости (%1 из %2)…</translation>
    </message>
    <message>
        <source>Slow path (%1 ms), finding a faster one…</source>
        <translation>Медленный путь (%1 мс), идёт поиск более быстрого…</translation>
    </message>
    <message>
        <source>Downloading Tor %1 bridge programs…</source>
        <translation>Загрузка программ для мостов Tor %1…</translation>
    </message>
    <message>
        <source>Download of %1 failed (HTTP %2).</source>
        <translation>Не удалось загрузить: %1 (HTTP %2).</translation>
    </message>
    <message>
        <source>The settings file couldn&apos;t be read. It was kept as %1, and a new one is used.</source>
        <translation>Не удалось прочитать файл настроек. Он сохранён как %1, используется новый.</translation>
    </message>
    <message>
        <source>The settings file %1 can&apos;t be read or replaced. Changes to the settings last until you quit.</source>
        <translation>Файл настроек %1 нельзя ни прочитать, ни заменить. Изменения настроек действуют до завершения Veldmark.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1 without Tor: %2</source>
        <translation>Не удалось открыть %1 без Tor: %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>С тех пор сеанс начал другой ваш экземпляр Veldmark, поэтому ни один сеанс не завершён. Чтобы завершить тот сеанс, отключитесь ещё раз.</translation>
    </message>
    <message>
        <source>Another user&apos;s Veldmark has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>С тех пор сеанс начал Veldmark другого пользователя, поэтому ни один сеанс не завершён. Чтобы завершить тот сеанс, отключитесь ещё раз.</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by another Veldmark of yours, process %1</source>
        <translation>Сеть настроена на Tor другим вашим экземпляром Veldmark, процесс %1</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by %1, whose Veldmark is process %2</source>
        <translation>Сеть настроена на Tor чужим сеансом Veldmark: %1, процесс %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours is connected (process %1). Disconnect it, or restore the network, first.</source>
        <translation>Подключён другой ваш экземпляр Veldmark (процесс %1). Сначала отключите его или восстановите сеть.</translation>
    </message>
    <message>
        <source>%1 is connected with Veldmark (process %2). That session must be ended first.</source>
        <translation>Открыт чужой сеанс Veldmark: %1 (процесс %2). Сначала нужно завершить его.</translation>
    </message>
    <message>
        <source>%1 Your network is still pointed at Tor. Click Restore Network to undo.</source>
        <translation>%1 Сеть всё ещё настроена на Tor. Чтобы это отменить, нажмите «Восстановить сеть».</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install the OpenBSD netcat or Ncat with your package manager.</source>
        <translation>ssh ещё не идёт через Tor: нужен netcat с поддержкой SOCKS. Установите через менеджер пакетов netcat из OpenBSD или Ncat.</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up terminal mode: %1</source>
        <translation>Не удалось настроить режим терминала: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove terminal integration: %1</source>
        <translation>Не удалось удалить интеграцию с терминалом: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up passwordless mode: %1</source>
        <translation>Не удалось настроить режим без пароля: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove passwordless mode: %1</source>
        <translation>Не удалось убрать режим без пароля: %1</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install one with: %1</source>
        <translation>ssh ещё не идёт через Tor: нужен netcat с поддержкой SOCKS. Команда для установки: %1</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Чтобы открывать приложения без Tor, подключитесь в строгом режиме</translation>
    </message>
    <message>
        <source>No bridge answered a quick test, trying them all</source>
        <translation>Ни один мост не ответил при быстрой проверке, пробуются все</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Этим мостам нужна программа lyrebird из состава Tor Browser. Чтобы получить её, нажмите «Загрузить» рядом с «Мосты».</translation>
    </message>
    <message>
        <source>Snowflake needs snowflake-client, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Для Snowflake нужна программа snowflake-client из состава Tor Browser. Чтобы получить её, нажмите «Загрузить» рядом с «Мосты».</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the latest Tor version from torproject.org.</source>
        <translation>Не удалось узнать последнюю версию Tor на torproject.org.</translation>
    </message>
    <message>
        <source>The request timed out.</source>
        <translation>Время ожидания ответа истекло.</translation>
    </message>
    <message>
        <source>The server gave no HTTP answer.</source>
        <translation>Сервер не дал HTTP-ответа.</translation>
    </message>
    <message>
        <source>The connection was lost before the download ended.</source>
        <translation>Соединение прервалось до окончания загрузки.</translation>
    </message>
    <message>
        <source>Not connected to Tor&apos;s control port.</source>
        <translation>Нет соединения с управляющим портом Tor.</translation>
    </message>
    <message>
        <source>Tor closed the control connection.</source>
        <translation>Tor закрыл управляющее соединение.</translation>
    </message>
    <message>
        <source>A program other than Tor listens on Tor&apos;s control port.</source>
        <translation>Управляющий порт Tor прослушивает не Tor, а другая программа.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t answer on its control port in time.</source>
        <translation>Tor вовремя не ответил на управляющем порту.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager or set its location in Settings.</source>
        <translation>Tor не установлен. Установите его через менеджер пакетов или укажите путь к нему в настройках.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with Homebrew (brew install tor) or set its location in Settings.</source>
        <translation>Tor не установлен. Установите его через Homebrew (brew install tor) или укажите путь к нему в настройках.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: polkit is not running on this system.</source>
        <translation>Запросить права администратора нельзя: в этой системе не запущен polkit.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: no PolicyKit authentication agent is running in this session.</source>
        <translation>Запросить права администратора нельзя: в этом сеансе не запущен агент аутентификации PolicyKit.</translation>
    </message>
    <message>
        <source>The password could not be checked: polkit accepts no password from this terminal. Run the command with sudo.</source>
        <translation>Проверить пароль не удалось: polkit не принимает его с этого терминала. Выполните команду через sudo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t fix DNS: %1</source>
        <translation>Не удалось исправить DNS: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t request a new identity: %1</source>
        <translation>Не удалось запросить новую личность: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read circuits: %1</source>
        <translation>Не удалось прочитать цепочки: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the login-item setting: %1</source>
        <translation>Не удалось изменить запуск при входе: %1</translation>
    </message>
    <message>
        <source>Login items can&apos;t be changed here.</source>
        <translation>Объекты входа здесь изменить нельзя.</translation>
    </message>
    <message>
        <source>Move Veldmark to the Applications folder and open it from there first.</source>
        <translation>Сначала переместите Veldmark в папку «Программы» и откройте оттуда.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1.</source>
        <translation>Не удалось удалить %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <translation>Не удалось записать %1: %2</translation>
    </message>
    <message>
        <source>Couldn&apos;t download bridge programs: %1</source>
        <translation>Не удалось загрузить программы для мостов: %1</translation>
    </message>
    <message>
        <source>Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download again to also verify the Tor Project&apos;s signature.</source>
        <translation>Программы для мостов версии %1 загружены по HTTPS и установлены. Чтобы проверить и подпись Проекта Tor, установите GnuPG (%2) и загрузите их ещё раз.</translation>
    </message>
    <message>
        <source>The download&apos;s signature didn&apos;t verify, so it was discarded. %1</source>
        <translation>Подпись загруженного файла не прошла проверку, файл удалён. %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unpack the download. %1</source>
        <translation>Не удалось распаковать загруженный файл. %1</translation>
    </message>
    <message>
        <source>Tor can&apos;t reach the bridge program: %1.</source>
        <translation>Tor не может связаться с программой моста: %1.</translation>
    </message>
    <message>
        <source>Tor reports: %1 (%2).</source>
        <translation>Tor сообщает: %1 (%2).</translation>
    </message>
    <message>
        <source>Tor reports: %1.</source>
        <translation>Tor сообщает: %1.</translation>
    </message>
    <message>
        <source>Tor replied: %1</source>
        <translation>Ответ Tor: %1</translation>
    </message>
    <message>
        <source>Tor has trouble with the bridge program: %1</source>
        <translation>У Tor трудности с программой моста: %1</translation>
    </message>
    <message>
        <source>The bridge program printed something that Tor doesn&apos;t understand: &quot;%1&quot;.</source>
        <translation>Программа моста вывела то, чего Tor не понимает: «%1».</translation>
    </message>
    <message>
        <source>Using the %1 fastest of %2 bridges</source>
        <translation>Используются самые быстрые мосты: %1 из %2</translation>
    </message>
    <message>
        <source>The %1 bridge type isn&apos;t supported yet.</source>
        <translation>Мосты типа %1 пока не поддерживаются.</translation>
    </message>
    <message>
        <source>Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, install Tor Browser, or paste your own under Bridges → Custom….</source>
        <translation>Встроенные мосты %1 берутся из Tor Browser. Нажмите «Загрузить» рядом с «Мосты», установите Tor Browser или вставьте свои в «Мосты → Свои…».</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1.</source>
        <translation>Некоторые настройки DNS заданы вне Veldmark (VPN или /etc/resolver) и всё ещё ведут мимо Tor: %1.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1. Strict mode&apos;s firewall blocks them.</source>
        <translation>Некоторые настройки DNS заданы вне Veldmark (VPN или /etc/resolver) и всё ещё ведут мимо Tor: %1. Брандмауэр строгого режима их блокирует.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager (%1) or set its location in Settings.</source>
        <translation>Tor не установлен. Установите его через менеджер пакетов (%1) или укажите путь к нему в настройках.</translation>
    </message>
    <message>
        <source>%1 is already being opened.</source>
        <translation>%1 уже открывается.</translation>
    </message>
    <message>
        <source>A session is open, and its kill switch doesn&apos;t block traffic: its watcher couldn&apos;t put the rules back. Traffic may leave this computer directly. Restore the network, and connect again.</source>
        <translation>Сеанс открыт, но его kill switch не действует: наблюдающая за правилами программа не смогла их вернуть. Трафик может уходить с этого компьютера напрямую. Восстановите сеть и подключитесь снова.</translation>
    </message>
    <message>
        <source>The clock is behind: it shows %1, but the file %2 was written on %3. Tor needs a clock that is right to within minutes.</source>
        <translation>Часы отстают: они показывают %1, но файл %2 записан %3. Tor нужны часы, верные с точностью до нескольких минут.</translation>
    </message>
    <message>
        <source>The clock is set from the network. It shows %1.</source>
        <translation>Часы синхронизируются по сети. Они показывают %1.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether the clock is right: no time service seems to set it. It shows %1. Tor needs it right to within minutes.</source>
        <translation>Верны ли часы, неизвестно: не видно, чтобы что-то синхронизировало их по сети. Они показывают %1. Tor нужны часы, верные с точностью до нескольких минут.</translation>
    </message>
    <message>
        <source>nftables isn&apos;t installed. Veldmark&apos;s firewall needs it.</source>
        <translation>nftables не установлен. Он нужен брандмауэру Veldmark.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall, nftables, can be used.</source>
        <translation>Системный брандмауэр nftables можно использовать.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall can&apos;t be used: %1</source>
        <translation>Системный брандмауэр использовать нельзя: %1</translation>
    </message>
    <message>
        <source>The running kernel (%1) has no nftables. After an upgrade of the kernel, restart the computer.</source>
        <translation>В работающем ядре (%1) нет nftables. После обновления ядра перезагрузите компьютер.</translation>
    </message>
    <message>
        <source>nftables is installed. Only root can tell whether the running kernel can use it.</source>
        <translation>nftables установлен. Может ли работающее ядро его использовать, известно только root.</translation>
    </message>
    <message>
        <source>nftables is installed, and the kernel has it.</source>
        <translation>nftables установлен, и ядро его поддерживает.</translation>
    </message>
    <message>
        <source>This system has no control groups of version 2, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>В этой системе нет контрольных групп версии 2, поэтому открыть приложение без Tor нельзя, а kill switch узнаёт Tor только по его учётной записи. Всё остальное работает.</translation>
    </message>
    <message>
        <source>The kernel (%1) is older than 5.13, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>Ядро (%1) старее 5.13, поэтому открыть приложение без Tor нельзя, а kill switch узнаёт Tor только по его учётной записи. Всё остальное работает.</translation>
    </message>
    <message>
        <source>Applications can be opened without Tor: control groups of version 2 are there.</source>
        <translation>Приложения можно открывать без Tor: контрольные группы версии 2 есть.</translation>
    </message>
    <message>
        <source>No other firewall that Veldmark knows runs. Only root can read the rules themselves.</source>
        <translation>Других известных Veldmark брандмауэров не запущено. Прочитать сами правила может только root.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic that its rules don&apos;t allow, so Tor may not get through: %1.</source>
        <translation>Другой брандмауэр на этом компьютере запрещает исходящие соединения, если их не разрешает одно из его правил, поэтому Tor может не пройти: %1.</translation>
    </message>
    <message>
        <source>Other programs set firewall rules here: %1. Veldmark leaves their rules alone. Rules that drop packets can block Tor.</source>
        <translation>Правила брандмауэра здесь задают и другие программы: %1. Veldmark их правила не трогает. Правила, отбрасывающие пакеты, могут блокировать Tor.</translation>
    </message>
    <message>
        <source>pkexec isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>pkexec не установлен, поэтому запросить пароль администратора в окне нельзя.</translation>
    </message>
    <message>
        <source>polkit isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>polkit не установлен, поэтому запросить пароль администратора в окне нельзя.</translation>
    </message>
    <message>
        <source>There is no desktop here on which a window could ask for the administrator&apos;s password. Use sudo.</source>
        <translation>Здесь нет графической среды, в которой окно могло бы запросить пароль администратора. Используйте sudo.</translation>
    </message>
    <message>
        <source>No known polkit agent, the program that asks for the password, runs in your session. Use sudo, or start an agent such as lxpolkit.</source>
        <translation>В вашем сеансе не запущен ни один известный агент polkit — программа, запрашивающая пароль. Используйте sudo или запустите агент, например lxpolkit.</translation>
    </message>
    <message>
        <source>polkit is installed, and an agent that asks for the password runs in your session.</source>
        <translation>polkit установлен, и в вашем сеансе запущен агент, запрашивающий пароль.</translation>
    </message>
    <message>
        <source>Veldmark runs as root here and asks for no password.</source>
        <translation>Veldmark запущен здесь от имени root и пароль не запрашивает.</translation>
    </message>
    <message>
        <source>Passwordless mode is set up.</source>
        <translation>Режим без пароля настроен.</translation>
    </message>
    <message>
        <source>sudo isn&apos;t installed. Passwordless mode needs it.</source>
        <translation>sudo не установлен. Он нужен для режима без пароля.</translation>
    </message>
    <message>
        <source>sudo is installed. Only root can tell whether you may use it.</source>
        <translation>sudo установлен. Можно ли вам его использовать, известно только root.</translation>
    </message>
    <message>
        <source>sudo is installed, and you are in the group %1.</source>
        <translation>sudo установлен, и вы входите в группу %1.</translation>
    </message>
    <message>
        <source>The program listens on IPv6. If it takes IPv6 alone, Tor can use the port.</source>
        <translation>Программа слушает IPv6. Если она принимает только IPv6, Tor может использовать порт.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by a program of the account %2.</source>
        <translation>Порт %1, нужный Tor, занимает программа учётной записи %2.</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) runs. Veldmark stops it while it is connected and starts it again afterwards.</source>
        <translation>Запущена системная служба Tor (%1). На время подключения Veldmark останавливает её, а потом запускает снова.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2 (process %3, account %4).</source>
        <translation>Порт %1, нужный Tor, занимает %2 (процесс %3, учётная запись %4).</translation>
    </message>
    <message>
        <source>Veldmark&apos;s own Tor holds the ports 9050, 9051 and 293.</source>
        <translation>Порты 9050, 9051 и 293 занимает собственный Tor программы Veldmark.</translation>
    </message>
    <message>
        <source>The ports that Tor needs (9050, 9051 and 293) are free.</source>
        <translation>Порты, нужные Tor (9050, 9051 и 293), свободны.</translation>
    </message>
    <message>
        <source>The location of Tor in the settings, %1, is not an executable program. Veldmark searches the usual places instead.</source>
        <translation>Путь к Tor в настройках, %1, не ведёт к исполняемой программе. Вместо него поиск идёт в обычных местах.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed.</source>
        <translation>Tor не установлен.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t start, or isn&apos;t Tor: it prints no version.</source>
        <translation>%1 не запускается или это не Tor: программа не сообщает свою версию.</translation>
    </message>
    <message>
        <source>Tor %1 is installed: %2.</source>
        <translation>Tor %1 установлен: %2.</translation>
    </message>
    <message>
        <source>The program %1 is missing. Veldmark&apos;s helper needs it.</source>
        <translation>Нет программы %1. Она нужна вспомогательной программе Veldmark.</translation>
    </message>
    <message>
        <source>Every program that Veldmark&apos;s helper calls is installed.</source>
        <translation>Все программы, которые вызывает вспомогательная программа Veldmark, установлены.</translation>
    </message>
    <message>
        <source>The helper is missing. Reinstall Veldmark.</source>
        <translation>Нет вспомогательной программы Veldmark. Установите Veldmark заново.</translation>
    </message>
    <message>
        <source>Accounts other than root can change Veldmark&apos;s helper, %1, and with it what the administrator&apos;s password runs.</source>
        <translation>Не только root, но и другие учётные записи могут изменить вспомогательную программу Veldmark, %1, а с ней и то, что запускается по паролю администратора.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper, %1, is not installed: the account %2 can change it, and with it what the administrator&apos;s password runs.</source>
        <translation>Вспомогательная программа Veldmark, %1, не установлена в систему: учётная запись %2 может изменить её, а с ней и то, что запускается по паролю администратора.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper is installed, and only root can change it: %1.</source>
        <translation>Вспомогательная программа Veldmark установлена, и изменить её может только root: %1.</translation>
    </message>
    <message>
        <source>The helper of passwordless mode belongs to another version. Set up passwordless mode again in Settings, General.</source>
        <translation>Вспомогательная программа режима без пароля — от другой версии. Настройте режим без пароля заново: «Настройки», раздел «Общие».</translation>
    </message>
    <message>
        <source>Bridges are off. Bridges need bridge programs where Tor is blocked, and none was found.</source>
        <translation>Мосты выключены. Где Tor блокируют, для них нужны программы, а ни одной не найдено.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridge programs were found: %1.</source>
        <translation>Мосты выключены. Найдены программы для мостов: %1.</translation>
    </message>
    <message>
        <source>The chosen bridges can&apos;t be used. %1</source>
        <translation>Выбранные мосты использовать нельзя. %1</translation>
    </message>
    <message>
        <source>The chosen bridges (%1) can be used: %2.</source>
        <translation>Выбранные мосты (%1) можно использовать: %2.</translation>
    </message>
    <message>
        <source>%1 manages DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>За DNS отвечает %1. На время подключения Veldmark меняет это, а потом восстанавливает.</translation>
    </message>
    <message>
        <source>Veldmark wrote %1. It points DNS at Tor.</source>
        <translation>Файл %1 создан Veldmark. Сервером имён в нём указан Tor.</translation>
    </message>
    <message>
        <source>The file %1 is missing, so DNS may not work at all.</source>
        <translation>Файла %1 нет, поэтому DNS может не работать совсем.</translation>
    </message>
    <message>
        <source>A resolver on this computer answers DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>На DNS-запросы отвечает резолвер на этом компьютере. На время подключения Veldmark меняет это, а потом восстанавливает.</translation>
    </message>
    <message>
        <source>No earlier session is left open.</source>
        <translation>Незакрытых прошлых сеансов нет.</translation>
    </message>
    <message>
        <source>A Tor of an earlier session still runs (process %1).</source>
        <translation>Всё ещё работает Tor прошлого сеанса (процесс %1).</translation>
    </message>
    <message>
        <source>A session is open: the network is set up for Tor, and Tor runs.</source>
        <translation>Сеанс открыт: сеть настроена на Tor, и Tor работает.</translation>
    </message>
    <message>
        <source>The network is set up for Tor. It isn&apos;t known whether Tor still runs.</source>
        <translation>Сеть настроена на Tor. Работает ли ещё Tor, здесь неизвестно.</translation>
    </message>
    <message>
        <source>The network is still set up for Tor from an earlier session, and no Tor runs. Connect again, or restore the network.</source>
        <translation>Сеть всё ещё настроена на Tor после прошлого сеанса, а Tor не работает. Подключитесь снова или восстановите сеть.</translation>
    </message>
    <message>
        <source>A session is open, and it isn&apos;t known whether its kill switch blocks traffic: no watcher watches the rules. Restore the network, and connect again.</source>
        <translation>Сеанс открыт, но неизвестно, действует ли его kill switch: ни одна программа не следит за правилами. Восстановите сеть и подключитесь снова.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Отменено.</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 МБ</translation>
    </message>
    <message>
        <source>%1 of %2 MB (%3%)</source>
        <translation>%1 из %2 МБ (%3 %)</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this computer. While connected, Veldmark stops the system&apos;s own Tor service.</source>
        <translation>Veldmark нужны права администратора, чтобы управлять маршрутизацией через Tor на этом компьютере. На время подключения Veldmark останавливает системную службу Tor.</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this Mac.</source>
        <translation>Veldmark нужны права администратора, чтобы управлять маршрутизацией через Tor на этом Mac.</translation>
    </message>
    <message>
        <source>The archive contains %1: %2</source>
        <translation>В архиве есть %1: %2</translation>
    </message>
    <message>
        <source>a link that leads elsewhere</source>
        <translation>ссылка, ведущая за его пределы</translation>
    </message>
    <message>
        <source>a hard link</source>
        <translation>жёсткая ссылка</translation>
    </message>
    <message>
        <source>an entry that is neither a file nor a folder</source>
        <translation>объект, который не файл и не папка</translation>
    </message>
    <message>
        <source>a path that leads elsewhere</source>
        <translation>путь, ведущий за его пределы</translation>
    </message>
    <message>
        <source>The file is empty or not an archive.</source>
        <translation>Архив пуст, или это не архив.</translation>
    </message>
    <message>
        <source>The archive&apos;s list of files is ambiguous.</source>
        <translation>Список файлов архива неоднозначен.</translation>
    </message>
    <message>
        <source>The archive contains too many files.</source>
        <translation>В архиве слишком много файлов.</translation>
    </message>
    <message>
        <source>The archive&apos;s content is too large.</source>
        <translation>Содержимое архива слишком велико.</translation>
    </message>
    <message>
        <source>The archive&apos;s content could not be listed.</source>
        <translation>Не удалось получить список содержимого архива.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make the folder %1: %2.</source>
        <translation>Не удалось создать папку %1: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1: %2.</source>
        <translation>Не удалось открыть %1: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make a folder beside %1: %2.</source>
        <translation>Не удалось создать папку рядом с %1: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2.</source>
        <translation>Не удалось записать %1: %2.</translation>
    </message>
    <message>
        <source>%1 didn&apos;t end within %2 minutes.</source>
        <translation>Программа %1 не завершилась за %2 мин.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load the Tor Browser signing key. %1</source>
        <translation>Не удалось загрузить ключ подписи Tor Browser. %1</translation>
    </message>
    <message>
        <source>The server sent more than %1 can be.</source>
        <translation>Сервер прислал слишком много данных: %1.</translation>
    </message>
    <message>
        <source>the version index</source>
        <translation>список версий</translation>
    </message>
    <message>
        <source>the bridge programs</source>
        <translation>программы для мостов</translation>
    </message>
    <message>
        <source>signature</source>
        <translation>подпись</translation>
    </message>
    <message>
        <source>signing key</source>
        <translation>ключ подписи</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>Установка…</translation>
    </message>
    <message>
        <source>No applications are installed.</source>
        <translation>Приложений не установлено.</translation>
    </message>
    <message>
        <source>(not in the menu)</source>
        <translation>(нет в меню)</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Файла «%1» нет.</translation>
    </message>
    <message>
        <source>There is no application &quot;%1&quot;; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>Приложения «%1» нет; список выводит «veldmarkctl apps».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be any of: %2. Give the path.</source>
        <translation>«%1» может означать любое из: %2. Укажите путь.</translation>
    </message>
    <message>
        <source>%1 needs a key: veldmarkctl %1 KEY.</source>
        <translation>Команде %1 нужен ключ: veldmarkctl %1 KEY.</translation>
    </message>
    <message>
        <source>%1 needs a key and a value: veldmarkctl %1 KEY VALUE.</source>
        <translation>Команде %1 нужны ключ и значение: veldmarkctl %1 KEY VALUE.</translation>
    </message>
    <message>
        <source>A command is missing. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Не указана команда. Список команд выводит «veldmarkctl help».</translation>
    </message>
    <message>
        <source>Unknown command %1. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Неизвестная команда %1. Список команд выводит «veldmarkctl help».</translation>
    </message>
    <message>
        <source>%1 has no option %2.</source>
        <translation>У команды %1 нет параметра %2.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t take %2.</source>
        <translation>Команда %1 не принимает %2.</translation>
    </message>
    <message>
        <source>usage: veldmarkctl COMMAND</source>
        <translation>вызов: veldmarkctl COMMAND</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage,
3 Veldmark is not running, 4 Veldmark is already running.</source>
        <translation>Код завершения: 0 — выполнено, 1 — ошибка (причина в стандартном потоке ошибок),
2 — неверный вызов, 3 — Veldmark не запущен, 4 — Veldmark уже запущен.</translation>
    </message>
    <message>
        <source>line %1 is not a bridge line: %2</source>
        <translation>строка %1 — не строка моста: %2</translation>
    </message>
    <message>
        <source>%1 too many, from line %2 on; at most %3 can be used</source>
        <translation>лишних: %1, начиная со строки %2; использовать можно не более %3</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Программы</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>не найдено</translation>
    </message>
    <message>
        <source>doesn&apos;t say which transports it serves</source>
        <translation>не сообщает, какие транспорты поддерживает</translation>
    </message>
    <message>
        <source>serves %1</source>
        <translation>поддерживает %1</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Встроенные мосты</translation>
    </message>
    <message>
        <source>Built-in bridges, from %1</source>
        <translation>Встроенные мосты, из %1</translation>
    </message>
    <message>
        <source>none; get some with: veldmarkctl download-transports</source>
        <translation>нет; загрузить: veldmarkctl download-transports</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>подпись подтверждена</translation>
    </message>
    <message>
        <source>signature not verified</source>
        <translation>подпись не проверена</translation>
    </message>
    <message>
        <source>not downloaded</source>
        <translation>не загружено</translation>
    </message>
    <message>
        <source>Your own bridges</source>
        <translation>Свои мосты</translation>
    </message>
    <message>
        <source>%1 valid</source>
        <translation>допустимых: %1</translation>
    </message>
    <message>
        <source>Installed Tor Expert Bundle %1, signature verified.</source>
        <translation>Tor Expert Bundle %1 установлен, подпись подтверждена.</translation>
    </message>
    <message>
        <source>Veldmark isn&apos;t running. Start it with: veldmarkctl run --connect</source>
        <translation>Veldmark не запущен. Запустите его: veldmarkctl run --connect</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;. Fields: %2.</source>
        <translation>Поля «%1» нет. Поля: %2.</translation>
    </message>
    <message>
        <source>list the commands</source>
        <translation>вывести список команд</translation>
    </message>
    <message>
        <source>good</source>
        <translation>хорошо</translation>
    </message>
    <message>
        <source>note</source>
        <translation>примечание</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>неизвестно</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>проблема</translation>
    </message>
    <message>
        <source>A connect can work.</source>
        <translation>Подключение возможно.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work yet.</source>
        <translation>Подключение пока невозможно.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work until each &quot;problem&quot; is fixed.</source>
        <translation>Подключение невозможно, пока не устранена каждая «проблема».</translation>
    </message>
    <message>
        <source>proxy: apps that ignore the system proxy are not covered</source>
        <translation>прокси: не охватывает приложения, которые игнорируют системный прокси</translation>
    </message>
    <message>
        <source>strict: only Tor&apos;s traffic leaves</source>
        <translation>строгий: наружу выходит только трафик Tor</translation>
    </message>
    <message>
        <source>strict</source>
        <translation>строгий</translation>
    </message>
    <message>
        <source>blocks traffic, since %1</source>
        <translation>действует с %1</translation>
    </message>
    <message>
        <source>blocks traffic; put back at %1 after another program had removed it</source>
        <translation>действует; восстановлен (%1) после того, как его убрала другая программа</translation>
    </message>
    <message>
        <source>NOT BLOCKING since %1: traffic may leave this computer directly</source>
        <translation>НЕ ДЕЙСТВУЕТ с %1: трафик может уходить с этого компьютера напрямую</translation>
    </message>
    <message>
        <source>isn&apos;t known to block traffic, since %1</source>
        <translation>с %1 неизвестно, действует ли</translation>
    </message>
    <message>
        <source>not checked yet</source>
        <translation>ещё не проверено</translation>
    </message>
    <message>
        <source>the check service didn&apos;t answer through Tor</source>
        <translation>служба проверки не ответила через Tor</translation>
    </message>
    <message>
        <source>%1, a Tor exit</source>
        <translation>%1, выходной узел Tor</translation>
    </message>
    <message>
        <source>%1, NOT a Tor exit</source>
        <translation>%1, НЕ выходной узел Tor</translation>
    </message>
    <message>
        <source>open; it shows the address %1</source>
        <translation>открыт; виден адрес %1</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>заблокирован</translation>
    </message>
    <message>
        <source>no answer, but it isn&apos;t known whether the kill switch blocks it</source>
        <translation>нет ответа, но неизвестно, блокирует ли его kill switch</translation>
    </message>
    <message>
        <source>no answer, but proxy mode doesn&apos;t block it</source>
        <translation>нет ответа, но режим прокси его не блокирует</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>проверка…</translation>
    </message>
    <message>
        <source>inconclusive</source>
        <translation>не удалось определить</translation>
    </message>
    <message>
        <source>can go around Tor via: %1</source>
        <translation>может идти мимо Tor через: %1</translation>
    </message>
    <message>
        <source>a test lookup went through Tor</source>
        <translation>пробный запрос прошёл через Tor</translation>
    </message>
    <message>
        <source>testing…</source>
        <translation>проверка…</translation>
    </message>
    <message>
        <source>settings point at Tor, but a test lookup couldn&apos;t be confirmed</source>
        <translation>настройки указывают на Tor, но подтвердить пробный запрос не удалось</translation>
    </message>
    <message>
        <source>not tested yet</source>
        <translation>ещё не проверено</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Режим</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Задержка</translation>
    </message>
    <message>
        <source>%1 ms through Tor</source>
        <translation>%1 мс через Tor</translation>
    </message>
    <message>
        <source>Direct path</source>
        <translation>Прямой путь</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Трафик</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>получено %1, отправлено %2</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Мосты</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Ход</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Что делать</translation>
    </message>
    <message>
        <source>nothing; veldmarkctl restore would end that session</source>
        <translation>ничего; veldmarkctl restore завершит тот сеанс</translation>
    </message>
    <message>
        <source>Kill switch</source>
        <translation>Kill switch</translation>
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
        <translation>Терминал</translation>
    </message>
    <message>
        <source>No circuits yet.</source>
        <translation>Цепочек пока нет.</translation>
    </message>
    <message>
        <source>Ready. Connect with: veldmarkctl connect</source>
        <translation>Готово. Подключение: veldmarkctl connect</translation>
    </message>
    <message>
        <source>Still restoring your network, one moment…</source>
        <translation>Сеть ещё восстанавливается, подождите…</translation>
    </message>
    <message>
        <source>Stopping as soon as Tor has been started…</source>
        <translation>Остановка, как только запустится Tor…</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Restore it with: %1</source>
        <translation>Сеть всё ещё настроена на Tor. Восстановите её командой: %1</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Press Ctrl-C to try again.</source>
        <translation>Сеть всё ещё настроена на Tor. Нажмите Ctrl+C, чтобы повторить попытку.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Press Ctrl-C to disconnect.</source>
        <translation>Нажмите Ctrl+C, чтобы отключиться.</translation>
    </message>
    <message>
        <source>A command to Tor can&apos;t contain a line break or a NUL.</source>
        <translation>Команда для Tor не может содержать перевод строки или NUL.</translation>
    </message>
    <message>
        <source>Tor sent a line of more than 1 MiB on its control port.</source>
        <translation>Tor прислал на управляющий порт строку длиннее 1 МиБ.</translation>
    </message>
    <message>
        <source>Tor sent a reply of more than 64 MiB on its control port.</source>
        <translation>Tor прислал на управляющий порт ответ больше 64 МиБ.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>«%1» — ни true, ни false.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a JSON array of strings.</source>
        <translation>«%1» — не массив строк JSON.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a bridge choice: off, obfs4, snowflake, meek or custom.</source>
        <translation>«%1» — не вариант мостов: off, obfs4, snowflake, meek или custom.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;. Settings: %2.</source>
        <translation>Настройки «%1» нет. Настройки: %2.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes. (%1)</source>
        <translation>Tor не завершил подключение за 5 минут. (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an exit country: two lower-case letters such as &quot;de&quot;, or nothing for any.</source>
        <translation>«%1» — не страна выхода: две строчные буквы, например «de», или пусто — любая.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an application: an absolute path that ends in &quot;%2&quot;.</source>
        <translation>«%1» — не приложение: нужен абсолютный путь, который кончается на «%2».</translation>
    </message>
    <message>
        <source>strict mode with the kill switch, else proxy mode</source>
        <translation>строгий режим с kill switch, иначе режим прокси</translation>
    </message>
    <message>
        <source>strict mode lets the local network through</source>
        <translation>строгий режим пропускает локальную сеть</translation>
    </message>
    <message>
        <source>two lower-case letters, or nothing for any</source>
        <translation>две строчные буквы или пусто — любая</translation>
    </message>
    <message>
        <source>the path of the tor to use, or nothing to search for tor</source>
        <translation>путь к нужному tor или пусто — искать его</translation>
    </message>
    <message>
        <source>which bridges</source>
        <translation>какие мосты</translation>
    </message>
    <message>
        <source>your own bridge lines, as typed</source>
        <translation>ваши строки мостов, как введены</translation>
    </message>
    <message>
        <source>paths of applications that may be opened without Tor</source>
        <translation>пути приложений, которые можно открывать без Tor</translation>
    </message>
    <message>
        <source>connect when Veldmark starts</source>
        <translation>подключаться при запуске Veldmark</translation>
    </message>
    <message>
        <source>test bridges before connecting, look for a faster path afterwards</source>
        <translation>проверять мосты до подключения, искать более быстрый путь после</translation>
    </message>
    <message>
        <source>command-line tools go through Tor while connected</source>
        <translation>программы командной строки идут через Tor, пока есть подключение</translation>
    </message>
    <message>
        <source>with your package manager</source>
        <translation>через менеджер пакетов</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Запуск…</translation>
    </message>
    <message>
        <source>&quot;set&quot; needs a &quot;key&quot; and a &quot;value&quot;, both strings.</source>
        <translation>Для «set» нужны «key» и «value», оба — строки.</translation>
    </message>
    <message>
        <source>Already connected or connecting; &quot;veldmarkctl status&quot; says more.</source>
        <translation>Уже подключено или подключается; подробнее: «veldmarkctl status».</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>Не сейчас: %1</translation>
    </message>
    <message>
        <source>A check is already running.</source>
        <translation>Проверка уже идёт.</translation>
    </message>
    <message>
        <source>There is no circuit &quot;%1&quot;.</source>
        <translation>Цепочки «%1» нет.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t close circuit %1.</source>
        <translation>Tor не закрыл цепочку %1.</translation>
    </message>
    <message>
        <source>&quot;launch&quot; needs an &quot;app&quot;, an absolute path.</source>
        <translation>Для «launch» нужен «app», абсолютный путь.</translation>
    </message>
    <message>
        <source>Veldmark stopped before it had answered.</source>
        <translation>Veldmark остановился, не успев ответить.</translation>
    </message>
    <message>
        <source>Veldmark is already running (process %1).</source>
        <translation>Veldmark уже запущен (процесс %1).</translation>
    </message>
    <message>
        <source>%1 must be a folder of your own with mode 0700: the control socket goes there.</source>
        <translation>%1 должна быть вашей собственной папкой с правами 0700: там создаётся управляющий сокет.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1/lock.</source>
        <translation>Не удалось записать %1/lock.</translation>
    </message>
    <message>
        <source>Couldn&apos;t listen on %1: %2.</source>
        <translation>Не удалось прослушивать %1: %2.</translation>
    </message>
    <message>
        <source>A command is a JSON object on one line.</source>
        <translation>Команда — это объект JSON в одной строке.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Неизвестная команда «%1».</translation>
    </message>
    <message>
        <source>Not connected.</source>
        <translation>Не подключено.</translation>
    </message>
    <message>
        <source>The session has ended: %1</source>
        <translation>Сеанс завершён: %1</translation>
    </message>
    <message>
        <source>as JSON</source>
        <translation>в виде JSON</translation>
    </message>
    <message>
        <source>connect at once</source>
        <translation>подключиться сразу</translation>
    </message>
    <message>
        <source>run Veldmark here, in the foreground; Ctrl-C disconnects</source>
        <translation>запустить Veldmark здесь, на переднем плане; Ctrl+C отключает</translation>
    </message>
    <message>
        <source>go on until Ctrl-C</source>
        <translation>продолжать до Ctrl+C</translation>
    </message>
    <message>
        <source>print the connection&apos;s state; --watch goes on until Ctrl-C</source>
        <translation>текущее состояние; с --watch — непрерывно, до Ctrl+C</translation>
    </message>
    <message>
        <source>connect the running instance to Tor</source>
        <translation>подключить запущенный экземпляр к Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor</source>
        <translation>восстановить сеть и остановить Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor, also after a crash</source>
        <translation>восстановить сеть и остановить Tor, в том числе после сбоя</translation>
    </message>
    <message>
        <source>check the exit address, the direct path and DNS now</source>
        <translation>проверить сейчас выходной адрес, прямой путь и DNS</translation>
    </message>
    <message>
        <source>point the system&apos;s DNS settings at Tor again</source>
        <translation>снова направить настройки DNS системы на Tor</translation>
    </message>
    <message>
        <source>Tor&apos;s circuits and the sites on them</source>
        <translation>цепочки Tor и сайты на них</translation>
    </message>
    <message>
        <source>close a circuit; its sites get a fresh path on their next request</source>
        <translation>закрыть цепочку; при следующем запросе её сайты получат новый путь</translation>
    </message>
    <message>
        <source>close-circuit needs a circuit&apos;s number; &quot;veldmarkctl circuits&quot; shows them.</source>
        <translation>Команде close-circuit нужен номер цепочки; их выводит «veldmarkctl circuits».</translation>
    </message>
    <message>
        <source>new circuits for everything</source>
        <translation>новые цепочки для всего</translation>
    </message>
    <message>
        <source>warnings and errors only</source>
        <translation>только предупреждения и ошибки</translation>
    </message>
    <message>
        <source>Tor&apos;s log; --problems shows warnings and errors only</source>
        <translation>журнал Tor; с --problems — только предупреждения и ошибки</translation>
    </message>
    <message>
        <source>the bridge programs and built-in bridges that were found, and
which of your own bridge lines are not valid</source>
        <translation>найденные программы для мостов и встроенные мосты, а также
недопустимые строки среди ваших мостов</translation>
    </message>
    <message>
        <source>fetch the Tor Project&apos;s bridge programs and built-in bridges</source>
        <translation>загрузить программы для мостов и встроенные мосты Проекта Tor</translation>
    </message>
    <message>
        <source>the installed applications; * marks those in the setting &quot;bypassApps&quot;</source>
        <translation>установленные приложения; * отмечены те, что в настройке «bypassApps»</translation>
    </message>
    <message>
        <source>open an application without Tor, with your own address; needs strict mode.
APP is a name from &quot;apps&quot;, the file name of its desktop entry, or the path
of an entry or a program. Running copies are asked to quit first</source>
        <translation>открыть приложение без Tor, с вашим собственным адресом; нужен строгий режим.
APP — имя из «apps», имя файла его ярлыка .desktop либо путь к ярлыку
или программе. Запущенным копиям сначала предлагается завершиться</translation>
    </message>
    <message>
        <source>launch needs an application; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>Команде launch нужно приложение; их список выводит «veldmarkctl apps».</translation>
    </message>
    <message>
        <source>check what a connect needs on this computer, what blocks it and how to fix
it. Changes nothing; the exit status is 0 when a connect can work</source>
        <translation>проверить этот компьютер: что нужно для подключения, что ему мешает и как это
исправить. Ничего не меняет; код завершения 0, если подключение возможно</translation>
    </message>
    <message>
        <source>print a field of &quot;status --json&quot;</source>
        <translation>вывести поле из «status --json»</translation>
    </message>
    <message>
        <source>change a setting; most of them only while not connected</source>
        <translation>изменить настройку; большинство — только когда нет подключения</translation>
    </message>
    <message>
        <source>Can&apos;t read Tor&apos;s log</source>
        <translation>Не удаётся прочитать журнал Tor</translation>
    </message>
    <message>
        <source>The log files in %1 aren&apos;t readable by your account. Reconnect once with this version of Veldmark to fix their permissions.</source>
        <translation>У вашей учётной записи нет доступа к файлам журнала в %1. Один раз переподключитесь с этой версией Veldmark, чтобы исправить права доступа.</translation>
    </message>
    <message>
        <source>No log yet</source>
        <translation>Журнала пока нет</translation>
    </message>
    <message>
        <source>Connect, and Tor&apos;s messages appear here as it starts. If Tor fails to start, the reason shows up here.</source>
        <translation>Подключитесь, и здесь появятся сообщения Tor о запуске. Если Tor не запустится, причина будет указана здесь.</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>Ничего не найдено</translation>
    </message>
    <message>
        <source>No lines contain “%1”</source>
        <translation>Нет строк, содержащих «%1»</translation>
    </message>
    <message>
        <source>No warnings or errors. Tor is happy.</source>
        <translation>Ни предупреждений, ни ошибок. Tor всем доволен.</translation>
    </message>
    <message>
        <source>The bridge program %1 reports: %2</source>
        <translation>Программа моста %1 сообщает: %2</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly.</source>
        <translation>Программа моста %1 неожиданно завершилась.</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending.</source>
        <translation>Программа моста %1 снова и снова завершается.</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly (exit status %2).</source>
        <translation>Программа моста %1 неожиданно завершилась (код завершения %2).</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending (exit status %2).</source>
        <translation>Программа моста %1 снова и снова завершается (код завершения %2).</translation>
    </message>
    <message>
        <source>It said: &quot;%1&quot;.</source>
        <translation>Её сообщение: «%1».</translation>
    </message>
    <message>
        <source>The program is quitting.</source>
        <translation>Программа завершает работу.</translation>
    </message>
    <message>
        <source>Veldmark replaces the running strict session. The new session may protect you less.</source>
        <translation>Действующий строгий сеанс заменяется, и защита может стать слабее.</translation>
    </message>
    <message>
        <source>Veldmark wants to run %1 as a part of Tor. No package of the system installed it. Its SHA-256 is %2.</source>
        <translation>Veldmark хочет запустить %1 как часть Tor. Этот файл не входит ни в один пакет системы. Его SHA-256: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be created: %2.</source>
        <translation>Не удаётся создать %1: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed: %2.</source>
        <translation>Не удаётся удалить %1: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>Не удаётся прочитать %1: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2.</source>
        <translation>Не удаётся записать %1: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 — не файл.</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 — только для чтения.</translation>
    </message>
    <message>
        <source>%1 was changed by another program just now.</source>
        <translation>%1: только что изменено другой программой.</translation>
    </message>
    <message>
        <source>%1 belongs to another user or group.</source>
        <translation>%1 принадлежит другому пользователю или группе.</translation>
    </message>
    <message>
        <source>A bridge line is not valid.</source>
        <translation>Недопустимая строка моста.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your network settings.</source>
        <translation>Запись о прежних настройках сети повреждена (%1). Сеть снова открыта; проверьте настройки сети.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your proxy settings.</source>
        <translation>Запись о прежних настройках сети повреждена (%1). Сеть снова открыта; проверьте настройки прокси.</translation>
    </message>
    <message>
        <source>An administrator password is needed to approve %1.</source>
        <translation>Чтобы одобрить %1, нужен пароль администратора.</translation>
    </message>
    <message>
        <source>An administrator password is needed to change the running strict session.</source>
        <translation>Чтобы изменить действующий строгий сеанс, нужен пароль администратора.</translation>
    </message>
    <message>
        <source>An administrator password is needed to open an application without Tor.</source>
        <translation>Чтобы открыть приложение без Tor, нужен пароль администратора.</translation>
    </message>
    <message>
        <source>An administrator password is needed to set this up.</source>
        <translation>Чтобы это настроить, нужен пароль администратора.</translation>
    </message>
    <message>
        <source>Another program (process %1) has started a session meanwhile. That session was left alone.</source>
        <translation>С тех пор сеанс начала другая программа (процесс %1). Он оставлен без изменений.</translation>
    </message>
    <message>
        <source>Another run of the helper is still working. Try again in a moment.</source>
        <translation>Вспомогательная программа ещё занята другим заданием. Повторите попытку чуть позже.</translation>
    </message>
    <message>
        <source>Applications are not opened as root.</source>
        <translation>От имени root приложения не открываются.</translation>
    </message>
    <message>
        <source>The helper opens applications only for the user who asks.</source>
        <translation>Приложения можно открывать только для того пользователя, который об этом просит.</translation>
    </message>
    <message>
        <source>Applications cannot be opened without Tor on this system.</source>
        <translation>В этой системе нельзя открывать приложения без Tor.</translation>
    </message>
    <message>
        <source>More than %1 bridges were given.</source>
        <translation>Указано мостов: больше %1.</translation>
    </message>
    <message>
        <source>Passwordless mode can be set up only for the user who asks.</source>
        <translation>Режим без пароля можно настроить только для того пользователя, который об этом просит.</translation>
    </message>
    <message>
        <source>Another program is changing the firewall. Try again in a moment.</source>
        <translation>Брандмауэр сейчас меняет другая программа. Повторите попытку чуть позже.</translation>
    </message>
    <message>
        <source>The DNS servers of systemd-resolved cannot be changed.</source>
        <translation>Не удаётся изменить DNS-серверы systemd-resolved.</translation>
    </message>
    <message>
        <source>The DNS settings cannot be changed.</source>
        <translation>Не удаётся изменить настройки DNS.</translation>
    </message>
    <message>
        <source>The DNS settings could not be put back.</source>
        <translation>Не удалось вернуть прежние настройки DNS.</translation>
    </message>
    <message>
        <source>The account %1 cannot be created.</source>
        <translation>Не удаётся создать учётную запись %1.</translation>
    </message>
    <message>
        <source>The account %1 has no valid user id.</source>
        <translation>У учётной записи %1 нет допустимого идентификатора пользователя.</translation>
    </message>
    <message>
        <source>The account %1 must be neither root&apos;s nor the caller&apos;s.</source>
        <translation>Учётная запись %1 не должна принадлежать ни root, ни пользователю, от которого исходит запрос.</translation>
    </message>
    <message>
        <source>The application could not be started.</source>
        <translation>Не удалось запустить приложение.</translation>
    </message>
    <message>
        <source>The caller&apos;s user id is not a number.</source>
        <translation>Идентификатор вызывающего пользователя — не число.</translation>
    </message>
    <message>
        <source>The control group for Tor cannot be made.</source>
        <translation>Не удаётся создать контрольную группу для Tor.</translation>
    </message>
    <message>
        <source>The control group of the applications without Tor could not be removed.</source>
        <translation>Не удалось удалить контрольную группу приложений без Tor.</translation>
    </message>
    <message>
        <source>The copy of the program cannot be put into %1.</source>
        <translation>Не удаётся поместить копию программы в %1.</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings cannot be changed.</source>
        <translation>Не удаётся изменить настройки прокси рабочей среды.</translation>
    </message>
    <message>
        <source>The exit country is not a two-letter code.</source>
        <translation>Страна выхода — не двухбуквенный код.</translation>
    </message>
    <message>
        <source>The file %1 cannot be made.</source>
        <translation>Не удаётся создать файл %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Не удаётся прочитать файл %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed.</source>
        <translation>Не удаётся удалить файл %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Не удаётся записать файл %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be put back.</source>
        <translation>Не удалось вернуть прежний файл %1.</translation>
    </message>
    <message>
        <source>The files in %1 cannot be removed.</source>
        <translation>Не удаётся удалить файлы в %1.</translation>
    </message>
    <message>
        <source>The firewall rules cannot be read, so nothing was done.</source>
        <translation>Не удаётся прочитать правила брандмауэра, поэтому ничего не сделано.</translation>
    </message>
    <message>
        <source>The firewall cannot be switched on (%1).</source>
        <translation>Не удаётся включить брандмауэр (%1).</translation>
    </message>
    <message>
        <source>The firewall cannot end the earlier connections.</source>
        <translation>Брандмауэру не удаётся разорвать прежние соединения.</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off (%1).</source>
        <translation>Не удалось отключить kill switch (%1).</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off, because another program is changing the firewall.</source>
        <translation>Не удалось отключить kill switch: брандмауэр сейчас меняет другая программа.</translation>
    </message>
    <message>
        <source>The firewall does not hold the rules that were loaded.</source>
        <translation>В брандмауэре не те правила, которые были загружены.</translation>
    </message>
    <message>
        <source>The firewall gave no token.</source>
        <translation>Брандмауэр не выдал токен.</translation>
    </message>
    <message>
        <source>The firewall leaves out the network device %1 (&quot;set skip&quot; in /etc/pf.conf), where nothing would be blocked.</source>
        <translation>Брандмауэр не действует на сетевом устройстве %1 («set skip» в /etc/pf.conf): там ничего не блокировалось бы.</translation>
    </message>
    <message>
        <source>The firewall rules were not accepted (%1).</source>
        <translation>Правила брандмауэра не приняты (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s devices cannot be read.</source>
        <translation>Не удаётся прочитать устройства брандмауэра.</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be changed (%1).</source>
        <translation>Не удаётся изменить основные правила брандмауэра (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be read.</source>
        <translation>Не удаётся прочитать основные правила брандмауэра.</translation>
    </message>
    <message>
        <source>The firewall&apos;s state cannot be read.</source>
        <translation>Не удаётся прочитать состояние брандмауэра.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be changed.</source>
        <translation>Не удаётся изменить папку %1.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Не удаётся создать папку %1.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>Не удаётся записать в папку %1.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it and those above it.</source>
        <translation>Папка %1 небезопасна: она и папки над ней должны принадлежать root, и писать в них должен только root.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it.</source>
        <translation>Папка %1 небезопасна: она должна принадлежать root, и писать в неё должен только root.</translation>
    </message>
    <message>
        <source>The folder /etc/sudoers.d is missing or not safe.</source>
        <translation>Папка /etc/sudoers.d отсутствует или небезопасна.</translation>
    </message>
    <message>
        <source>The folders above Veldmark&apos;s are not safe: only root may own or write them.</source>
        <translation>Папки над папкой Veldmark небезопасны: они должны принадлежать root, и писать в них должен только root.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read, so nothing was done.</source>
        <translation>Не удаётся просмотреть папки внутри %1, поэтому ничего не сделано.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read.</source>
        <translation>Не удаётся просмотреть папки внутри %1.</translation>
    </message>
    <message>
        <source>The former network settings could not all be restored.</source>
        <translation>Восстановлены не все прежние настройки сети.</translation>
    </message>
    <message>
        <source>The hashed control password is not valid.</source>
        <translation>Недопустимый хеш пароля управления.</translation>
    </message>
    <message>
        <source>The helper could not be copied to %1.</source>
        <translation>Не удалось скопировать вспомогательную программу в %1.</translation>
    </message>
    <message>
        <source>The helper must run as root.</source>
        <translation>Вспомогательную программу нужно запускать от имени root.</translation>
    </message>
    <message>
        <source>The helper stopped unexpectedly.</source>
        <translation>Вспомогательная программа неожиданно остановилась.</translation>
    </message>
    <message>
        <source>The helper was given an option that it does not know.</source>
        <translation>Вспомогательной программе передан неизвестный ей параметр.</translation>
    </message>
    <message>
        <source>The helper does not know this verb.</source>
        <translation>Вспомогательной программе эта команда не известна.</translation>
    </message>
    <message>
        <source>The record of the former network settings cannot be written.</source>
        <translation>Не удаётся записать сведения о прежних настройках сети.</translation>
    </message>
    <message>
        <source>The kill switch is not on, so no application needs to bypass it.</source>
        <translation>Kill switch не включён, поэтому приложениям незачем его обходить.</translation>
    </message>
    <message>
        <source>The launcher could not be copied to %1.</source>
        <translation>Не удалось скопировать программу запуска в %1.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be opened.</source>
        <translation>Не удаётся открыть файл блокировки %1.</translation>
    </message>
    <message>
        <source>The lock file %1 is a link, so nothing was done.</source>
        <translation>Файл блокировки %1 — ссылка, поэтому ничего не сделано.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back.</source>
        <translation>Сеть снова открыта, но вернуть прежние DNS-серверы systemd-resolved не удалось.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back. Try: systemctl restart %1.</source>
        <translation>Сеть снова открыта, но вернуть прежние DNS-серверы systemd-resolved не удалось. Попробуйте: systemctl restart %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the desktop&apos;s proxy settings could not be put back.</source>
        <translation>Сеть снова открыта, но вернуть прежние настройки прокси рабочей среды не удалось.</translation>
    </message>
    <message>
        <source>The network is open again, but the journal in %1 cannot be cleared.</source>
        <translation>Сеть снова открыта, но очистить журнал восстановления в %1 не удаётся.</translation>
    </message>
    <message>
        <source>The network is open again, but the session marker cannot be removed from %1.</source>
        <translation>Сеть снова открыта, но удалить метку сеанса из %1 не удаётся.</translation>
    </message>
    <message>
        <source>The network is open again, but the system&apos;s own Tor service could not be started again. Try: systemctl start %1.</source>
        <translation>Сеть снова открыта, но снова запустить системную службу Tor не удалось. Попробуйте: systemctl start %1.</translation>
    </message>
    <message>
        <source>The network is open, but pf could not be released.</source>
        <translation>Сеть открыта, но освободить pf не удалось.</translation>
    </message>
    <message>
        <source>The network is open, but the firewall&apos;s main rules could not be put back.</source>
        <translation>Сеть открыта, но вернуть прежние основные правила брандмауэра не удалось.</translation>
    </message>
    <message>
        <source>The network location %1 still has Veldmark&apos;s settings. Choose it and disconnect again.</source>
        <translation>В сетевом размещении %1 остались настройки Veldmark. Выберите его и отключитесь ещё раз.</translation>
    </message>
    <message>
        <source>The network settings cannot be read.</source>
        <translation>Не удаётся прочитать настройки сети.</translation>
    </message>
    <message>
        <source>The network stays blocked until you disconnect.</source>
        <translation>Сеть останется заблокированной, пока вы не отключитесь.</translation>
    </message>
    <message>
        <source>The notes of what to restore cannot be read.</source>
        <translation>Не удаётся прочитать записи о том, что нужно восстановить.</translation>
    </message>
    <message>
        <source>The option %1 needs a value.</source>
        <translation>Параметру %1 нужно значение.</translation>
    </message>
    <message>
        <source>The option %1 was given twice.</source>
        <translation>Параметр %1 указан дважды.</translation>
    </message>
    <message>
        <source>The option --app is missing.</source>
        <translation>Не указан параметр --app.</translation>
    </message>
    <message>
        <source>The option --hash is missing.</source>
        <translation>Не указан параметр --hash.</translation>
    </message>
    <message>
        <source>The option --lan is missing.</source>
        <translation>Не указан параметр --lan.</translation>
    </message>
    <message>
        <source>The option --program is missing.</source>
        <translation>Не указан параметр --program.</translation>
    </message>
    <message>
        <source>The option --strict is missing.</source>
        <translation>Не указан параметр --strict.</translation>
    </message>
    <message>
        <source>The option --tor is missing.</source>
        <translation>Не указан параметр --tor.</translation>
    </message>
    <message>
        <source>The option --uid is missing.</source>
        <translation>Не указан параметр --uid.</translation>
    </message>
    <message>
        <source>The options on standard input are not complete.</source>
        <translation>Параметры на стандартном вводе неполны.</translation>
    </message>
    <message>
        <source>The path given with %1 is not absolute.</source>
        <translation>Путь, указанный в %1, не абсолютный.</translation>
    </message>
    <message>
        <source>The path given with --app is not absolute.</source>
        <translation>Путь, указанный в --app, не абсолютный.</translation>
    </message>
    <message>
        <source>The path given with --app names no application.</source>
        <translation>Путь, указанный в --app, не ведёт к приложению.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2. End that program, then connect again.</source>
        <translation>Порт %1, нужный Tor, занимает %2. Завершите эту программу и подключитесь снова.</translation>
    </message>
    <message>
        <source>a program (process %1)</source>
        <translation>программа (процесс %1)</translation>
    </message>
    <message>
        <source>a program of the account with the id %1</source>
        <translation>программа учётной записи с идентификатором %1</translation>
    </message>
    <message>
        <source>The process id is not valid.</source>
        <translation>Недопустимый идентификатор процесса.</translation>
    </message>
    <message>
        <source>The program %1 cannot be copied.</source>
        <translation>Не удаётся скопировать программу %1.</translation>
    </message>
    <message>
        <source>The program %1 cannot be found.</source>
        <translation>Не удаётся найти программу %1.</translation>
    </message>
    <message>
        <source>The program %1 is missing on this system.</source>
        <translation>В этой системе нет программы %1.</translation>
    </message>
    <message>
        <source>The SHA-256 of the program %1 differs from the one to approve.</source>
        <translation>SHA-256 программы %1 — не тот, который нужно было одобрить.</translation>
    </message>
    <message>
        <source>The program given with %1 is not an executable file.</source>
        <translation>Программа, указанная в %1, — не исполняемый файл.</translation>
    </message>
    <message>
        <source>The program veldmark-launch is missing.</source>
        <translation>Нет программы veldmark-launch.</translation>
    </message>
    <message>
        <source>The session marker cannot be written.</source>
        <translation>Не удаётся записать метку сеанса.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be changed.</source>
        <translation>Не удаётся изменить настройки сетевой службы %1.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be read.</source>
        <translation>Не удаётся прочитать настройки сетевой службы %1.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 could not be put back.</source>
        <translation>Не удалось вернуть прежние настройки сетевой службы %1.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall cannot be used (%1).</source>
        <translation>Системный брандмауэр использовать нельзя (%1).</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) cannot be stopped.</source>
        <translation>Не удаётся остановить системную службу Tor (%1).</translation>
    </message>
    <message>
        <source>The user %1 is not known on this system.</source>
        <translation>Пользователь %1 в этой системе неизвестен.</translation>
    </message>
    <message>
        <source>The user id is not a number.</source>
        <translation>Идентификатор пользователя — не число.</translation>
    </message>
    <message>
        <source>The user name is not valid.</source>
        <translation>Недопустимое имя пользователя.</translation>
    </message>
    <message>
        <source>The user root needs no password for the helper.</source>
        <translation>Пользователю root пароль для вспомогательной программы не нужен.</translation>
    </message>
    <message>
        <source>The user with the id %1 is not known on this system.</source>
        <translation>Пользователь с идентификатором %1 в этой системе неизвестен.</translation>
    </message>
    <message>
        <source>The value of %1 contains control characters.</source>
        <translation>Значение %1 содержит управляющие символы.</translation>
    </message>
    <message>
        <source>The value of %1 is too long.</source>
        <translation>Значение %1 слишком длинное.</translation>
    </message>
    <message>
        <source>The value of --as must be tor, lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>Значение --as должно быть tor, lyrebird, snowflake-client или webtunnel-client.</translation>
    </message>
    <message>
        <source>The value of --lan must be 0 or 1.</source>
        <translation>Значение --lan должно быть 0 или 1.</translation>
    </message>
    <message>
        <source>The value of --sha256 must be 64 small hexadecimal digits.</source>
        <translation>Значение --sha256 должно состоять из 64 шестнадцатеричных цифр (буквы строчные).</translation>
    </message>
    <message>
        <source>The value of --strict must be 0 or 1.</source>
        <translation>Значение --strict должно быть 0 или 1.</translation>
    </message>
    <message>
        <source>The verb fix-dns takes no options.</source>
        <translation>У команды fix-dns нет параметров.</translation>
    </message>
    <message>
        <source>The verb uninstall-privileged takes no options.</source>
        <translation>У команды uninstall-privileged нет параметров.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be started.</source>
        <translation>Не удалось запустить наблюдение за брандмауэром.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be stopped.</source>
        <translation>Не удалось остановить наблюдение за брандмауэром.</translation>
    </message>
    <message>
        <source>There are too many options on standard input.</source>
        <translation>На стандартном вводе слишком много параметров.</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which was not given.</source>
        <translation>Этим мостам нужна программа lyrebird, а она не указана.</translation>
    </message>
    <message>
        <source>These bridges need snowflake-client, which was not given.</source>
        <translation>Этим мостам нужна программа snowflake-client, а она не указана.</translation>
    </message>
    <message>
        <source>This helper is made for another system.</source>
        <translation>Эта вспомогательная программа — для другой системы.</translation>
    </message>
    <message>
        <source>Tor could not be started (%1).</source>
        <translation>Не удалось запустить Tor (%1).</translation>
    </message>
    <message>
        <source>Tor could not be stopped.</source>
        <translation>Не удалось остановить Tor.</translation>
    </message>
    <message>
        <source>Tor did not open its control port in time.</source>
        <translation>Tor вовремя не открыл управляющий порт.</translation>
    </message>
    <message>
        <source>Tor did not start: %1</source>
        <translation>Tor не запустился: %1</translation>
    </message>
    <message>
        <source>Tor does not accept its configuration: %1</source>
        <translation>Tor не принимает свою конфигурацию: %1</translation>
    </message>
    <message>
        <source>it ended without a message.</source>
        <translation>он завершился без сообщения.</translation>
    </message>
    <message>
        <source>Tor&apos;s log files cannot be made.</source>
        <translation>Не удаётся создать файлы журнала Tor.</translation>
    </message>
    <message>
        <source>Two different callers were reported, so nothing was done.</source>
        <translation>Сообщено о двух разных вызывающих, поэтому ничего не сделано.</translation>
    </message>
    <message>
        <source>Veldmark is in use by %1. An administrator password is needed to end that session.</source>
        <translation>Сейчас с Veldmark работает %1. Чтобы завершить этот сеанс, нужен пароль администратора.</translation>
    </message>
    <message>
        <source>Veldmark is not connected, so the DNS settings were left alone.</source>
        <translation>Veldmark не подключён, поэтому настройки DNS оставлены без изменений.</translation>
    </message>
    <message>
        <source>sudo rejects the rule for passwordless mode.</source>
        <translation>sudo отклоняет правило для режима без пароля.</translation>
    </message>
    <message>
        <source>sudo is not installed on this system.</source>
        <translation>В этой системе не установлен sudo.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read.</source>
        <translation>Не удаётся прочитать ярлык .desktop.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read (%1).</source>
        <translation>Не удаётся прочитать ярлык .desktop (%1).</translation>
    </message>
    <message>
        <source>The desktop entry names no program that is installed.</source>
        <translation>В ярлыке .desktop не указано ни одной установленной программы.</translation>
    </message>
    <message>
        <source>The application could not be started (%1).</source>
        <translation>Не удалось запустить приложение (%1).</translation>
    </message>
    <message>
        <source>There is no such application or program.</source>
        <translation>Такого приложения или программы нет.</translation>
    </message>
    <message>
        <source>The program could not be started.</source>
        <translation>Не удалось запустить программу.</translation>
    </message>
    <message>
        <source>The program could not be started (%1).</source>
        <translation>Не удалось запустить программу (%1).</translation>
    </message>
    <message>
        <source>The user is not known on this system.</source>
        <translation>Этот пользователь в системе неизвестен.</translation>
    </message>
    <message>
        <source>There is no application at %1.</source>
        <translation>Приложения в %1 нет.</translation>
    </message>
    <message>
        <source>The home folder cannot be entered.</source>
        <translation>Не удаётся войти в домашнюю папку.</translation>
    </message>
    <message>
        <source>nft doesn&apos;t answer.</source>
        <translation>nft не отвечает.</translation>
    </message>
    <message>
        <source>nft fails.</source>
        <translation>nft завершается с ошибкой.</translation>
    </message>
    <message>
        <source>Ended because the display is gone. Your network is still set up for Tor: start Veldmark again, or restore the network with: %1</source>
        <translation>Veldmark завершился, потеряв дисплей. Сеть всё ещё настроена на Tor: запустите Veldmark снова или восстановите её командой: %1</translation>
    </message>
    <message>
        <source>your package manager</source>
        <translation>менеджер пакетов</translation>
    </message>
    <message>
        <source>The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo %1 on.</source>
        <translation>Сеть снова открыта, но вернуть прежние настройки устройства loopback не удалось. Попробуйте: ethtool -K lo %1 on.</translation>
    </message>
    <message>
        <source>This system can&apos;t tell applications apart.</source>
        <translation>В этой системе приложения не различаются.</translation>
    </message>
    <message>
        <source>Applications are not separated now: they share circuits.</source>
        <translation>Сейчас приложения не разделены: у них общие цепочки.</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>пользователь %1</translation>
    </message>
    <message>
        <source>No application has an identity of its own now.</source>
        <translation>Сейчас ни у одного приложения нет своей личности Tor.</translation>
    </message>
    <message>
        <source>No application of yours has that identity; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>Ни у одного вашего приложения нет такой личности Tor; список: «veldmarkctl identities».</translation>
    </message>
    <message>
        <source>The application did not get a new identity.</source>
        <translation>Приложение не получило другую личность Tor.</translation>
    </message>
    <message>
        <source>The program did not get an identity of its own, so it was not started.</source>
        <translation>Программа не получила свою личность Tor, поэтому не запущена.</translation>
    </message>
    <message>
        <source>A name has up to 40 letters, digits, dots and underscores.</source>
        <translation>В имени может быть до 40 букв, цифр, точек и знаков подчёркивания.</translation>
    </message>
    <message>
        <source>The program systemd-run is missing. Veldmark needs it to make a group for a program.</source>
        <translation>Нет программы systemd-run. Она нужна Veldmark, чтобы создать группу для программы.</translation>
    </message>
    <message>
        <source>The program could not be started: %1.</source>
        <translation>Не удалось запустить программу: %1.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>each application has circuits of its own</source>
        <translation>у каждого приложения свои цепочки</translation>
    </message>
    <message>
        <source>the applications that have circuits of their own, and the loopback address
by which Tor distinguishes them</source>
        <translation>приложения со своими цепочками и адрес loopback, по которому Tor отличает
каждое от остальных</translation>
    </message>
    <message>
        <source>new circuits for one application, from its next connection on; APP is as
&quot;identities&quot; names it</source>
        <translation>новые цепочки для одного приложения, начиная со следующего соединения;
APP — как его называет «identities»</translation>
    </message>
    <message>
        <source>renew needs an application; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>Команде renew нужно приложение; их список выводит «veldmarkctl identities».</translation>
    </message>
    <message>
        <source>run a program (after --) with circuits of its own; a later run with the same
name in the same session has the same ones</source>
        <translation>запустить программу (после --) со своими цепочками; следующий запуск с тем же
именем в том же сеансе получает те же цепочки</translation>
    </message>
    <message>
        <source>run-as needs a name and a program: veldmarkctl run-as NAME -- PROGRAM.</source>
        <translation>Команде run-as нужны имя и программа: veldmarkctl run-as NAME -- PROGRAM.</translation>
    </message>
    <message>
        <source>The table of the applications&apos; identities could not be removed (%1).</source>
        <translation>Не удалось удалить таблицу личностей Tor для приложений (%1).</translation>
    </message>
    <message>
        <source>The value of --separate must be 0 or 1.</source>
        <translation>Значение --separate должно быть 0 или 1.</translation>
    </message>
    <message>
        <source>No package of the system installed %1. The next connect asks an administrator to approve it.</source>
        <translation>%1 не входит ни в один пакет системы. При следующем подключении администратора попросят одобрить этот файл.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether a connect can work.</source>
        <translation>Неизвестно, возможно ли подключение.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, and none of its rules allows any, so Tor can&apos;t get through: %1.</source>
        <translation>Другой брандмауэр на этом компьютере запрещает исходящие соединения, и ни одно из его правил ничего не разрешает, поэтому Tor не может пройти: %1.</translation>
    </message>
    <message>
        <source>Users other than root can change %1, so root doesn&apos;t run it to ask for its version.</source>
        <translation>Не только root может изменить %1, поэтому root не запускает эту программу, чтобы узнать её версию.</translation>
    </message>
    <message>
        <source>Type %1 to approve it, anything else to refuse.</source>
        <translation>Введите %1, чтобы одобрить его; любой другой ответ — отказ.</translation>
    </message>
    <message>
        <source>%1 was not approved.</source>
        <translation>Файл %1 не одобрен.</translation>
    </message>
    <message>
        <source>%1 is not a program of the system, so an administrator has to approve it, but this command has no terminal to ask on. Run &quot;sudo veldmarkctl run --connect&quot; in a terminal.</source>
        <translation>%1 — не программа системы, поэтому её должен одобрить администратор, но у этой команды нет терминала, в котором можно об этом спросить. Выполните «sudo veldmarkctl run --connect» в терминале.</translation>
    </message>
    <message>
        <source>%1 needs the name of a file.</source>
        <translation>Параметру %1 нужно имя файла.</translation>
    </message>
    <message>
        <source>It doesn&apos;t answer.</source>
        <translation>Он не отвечает.</translation>
    </message>
    <message>
        <source>This report goes to %1.</source>
        <translation>Этот отчёт записывается в %1.</translation>
    </message>
    <message>
        <source>write it into a new file too</source>
        <translation>записать его также в новый файл</translation>
    </message>
    <message>
        <source>The report can&apos;t be written to %1: %2</source>
        <translation>Не удаётся записать отчёт в %1: %2</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a regular file. Choose another name for the report.</source>
        <translation>%1 — не обычный файл. Выберите другое имя для отчёта.</translation>
    </message>
    <message>
        <source>%1 exists already. Choose another name for the report.</source>
        <translation>%1 уже существует. Выберите другое имя для отчёта.</translation>
    </message>
    <message>
        <source>The running instance gave no state: %1</source>
        <translation>Запущенный экземпляр не сообщил о своём состоянии: %1</translation>
    </message>
    <message>
        <source>a report for those who help you: settings, findings and log without addresses,
names, bridges and keys. Nothing sends it. Look through it before you give it
away</source>
        <translation>отчёт для тех, кто вам помогает: настройки, выводы проверки и журнал без
адресов, имён, мостов и ключей. Ничто его не отправляет. Просмотрите его,
прежде чем передать</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>Не удаётся прочитать %1: %2</translation>
    </message>
    <message>
        <source>There is no bridge in %1.</source>
        <translation>В %1 нет мостов.</translation>
    </message>
    <message>
        <source>added: %1</source>
        <translation>добавлен: %1</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>уже есть: %1</translation>
    </message>
    <message>
        <source>add the bridges in a text to your own: in bridge lines, a whole e-mail or
a web page. FILE &quot;-&quot; is standard input</source>
        <translation>добавить к своим мосты из текста: из строк мостов, целого письма или
веб-страницы. FILE «-» — стандартный ввод</translation>
    </message>
    <message>
        <source>add-bridges needs a file; &quot;-&quot; is standard input.</source>
        <translation>add-bridges нужен файл; «-» — стандартный ввод.</translation>
    </message>
    <message>
        <source>The filter before Tor&apos;s control port cannot be used.</source>
        <translation>Фильтр перед портом управления Tor не может быть использован.</translation>
    </message>
    <message numerus="yes">
        <source>Testing %n bridges…</source>
        <translation>
            <numerusform>Проверяется %n мост…</numerusform>
            <numerusform>Проверяются %n моста…</numerusform>
            <numerusform>Проверяется %n мостов…</numerusform>
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
        <translation>Напрямую</translation>
    </message>
    <message>
        <source>Your bridges</source>
        <translation>Ваши мосты</translation>
    </message>
    <message>
        <source>(%1 s)</source>
        <translation>(%1 с)</translation>
    </message>
    <message>
        <source>Tried</source>
        <translation>Испытано</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Предложение</translation>
    </message>
    <message>
        <source>Try them with: %1</source>
        <translation>Попробуйте их командой: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of ask, always and never.</source>
        <translation>«%1» — не ask, не always и не never.</translation>
    </message>
    <message>
        <source>Refused, or out of reach.</source>
        <translation>Отказано или недоступно.</translation>
    </message>
    <message>
        <source>Something answered, but Tor made no further progress.</source>
        <translation>Ответ был, но дальше Tor не продвинулся.</translation>
    </message>
    <message>
        <source>No answer.</source>
        <translation>Нет ответа.</translation>
    </message>
    <message>
        <source>Tor has connected.</source>
        <translation>Tor подключился.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Tried: %1.</source>
        <translation>В этой сети Tor не продвигается. Испытано: %1.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Veldmark can try bridges: %1.</source>
        <translation>В этой сети Tor не продвигается. Veldmark может попробовать мосты: %1.</translation>
    </message>
    <message>
        <source>Being tried…</source>
        <translation>Пробуется…</translation>
    </message>
    <message>
        <source>Tor did not accept these bridges.</source>
        <translation>Tor не принял эти мосты.</translation>
    </message>
    <message>
        <source>No bridges are offered now.</source>
        <translation>Сейчас мосты не предлагаются.</translation>
    </message>
    <message>
        <source>whether bridges are tried when Tor cannot connect</source>
        <translation>пробовать ли мосты, когда Tor не продвигается</translation>
    </message>
    <message>
        <source>try the bridges that are offered when Tor cannot connect, see &quot;status&quot;</source>
        <translation>попробовать мосты, предложенные, когда Tor не продвигается, см. «status»</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Цепочки</translation>
    </message>
</context>
<context>
    <name>veldmark::Tray</name>
    <message>
        <source>Open Veldmark</source>
        <translation>Открыть Veldmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Завершить</translation>
    </message>
</context>
<context>
    <name>veldmark::Windows</name>
    <message>
        <source>Select the tor executable</source>
        <translation>Выберите исполняемый файл tor</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Выберите приложения, которым в строгом режиме можно обходить Tor</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Приложения</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Сохранение отчёта</translation>
    </message>
</context>
</TS>

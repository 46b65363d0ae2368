<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>AboutPane</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
    <message>
        <source>The Tor Project</source>
        <translation>Tor Projesi</translation>
    </message>
    <message>
        <source>The network and pluggable transports Veldmark builds on</source>
        <translation>Veldmark&apos;ın temelini oluşturan ağ ve değiştirilebilir taşıyıcılar</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Teşekkürler</translation>
    </message>
    <message>
        <source>Homepage, downloads and updates</source>
        <translation>Ana sayfa, indirmeler ve güncellemeler</translation>
    </message>
    <message>
        <source>Sends this computer&apos;s traffic through Tor, all of it in strict mode and that of apps that use the system proxy in proxy mode, and shows whether it really does.</source>
        <translation>Bu bilgisayarın trafiğini Tor üzerinden gönderir: sıkı kipte tümünü, vekil sunucu kipinde yalnızca sistem vekil sunucusunu kullanan uygulamalarınkini. Bunun gerçekten olup olmadığını da gösterir.</translation>
    </message>
    <message>
        <source>Veldmark is made with Qt, QCoro and tl::expected.</source>
        <translation>Veldmark; Qt, QCoro ve tl::expected ile yapılmıştır.</translation>
    </message>
</context>
<context>
    <name>ApplicationsSheet</name>
    <message>
        <source>App exceptions</source>
        <translation>Uygulama istisnaları</translation>
    </message>
    <message>
        <source>No apps yet. Add Zoom, Discord, a game…</source>
        <translation>Henüz uygulama yok. Zoom, Discord ya da bir oyun ekleyin…</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Uygulamaları Tor olmadan açmak için sıkı kipte bağlanın</translation>
    </message>
    <message>
        <source>Open without Tor</source>
        <translation>Tor olmadan aç</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Ekle…</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>BridgesPane</name>
    <message>
        <source>Bridges</source>
        <translation>Köprüler</translation>
    </message>
    <message>
        <source>Programs that disguise your Tor connection</source>
        <translation>Tor bağlantınızı kamufle eden programlar</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Yerleşik köprüler</translation>
    </message>
    <message>
        <source>Bridge addresses shipped with Tor</source>
        <translation>Tor ile gelen köprü adresleri</translation>
    </message>
    <message>
        <source>Tor Expert Bundle</source>
        <translation>Tor Expert Bundle</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Güncelle</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>İndir</translation>
    </message>
    <message>
        <source>When Tor is blocked</source>
        <translation>Tor engellendiğinde</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Önce bağlantıyı kesin</translation>
    </message>
    <message>
        <source>Tries the available bridges in turn, without another password</source>
        <translation>Var olan köprüleri, başka bir parola istemeden birbiri ardına dener</translation>
    </message>
</context>
<context>
    <name>BridgesSheet</name>
    <message>
        <source>Custom bridges</source>
        <translation>Özel köprüler</translation>
    </message>
    <message>
        <source>One bridge per line. Ask the Tor Project for bridges on its bridges page, by e-mail or through its Telegram bot, or use those of someone you trust. obfs4, webtunnel, Snowflake, meek and plain bridges are supported.</source>
        <translation>Her satıra bir köprü yazın. Tor Projesi&apos;nden köprüler sayfası, e-posta ya da Telegram botu üzerinden köprü isteyin veya güvendiğiniz birinin köprülerini kullanın. obfs4, webtunnel, Snowflake, meek ve düz köprüler desteklenir.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>There is no bridge in this file.</source>
        <translation>Bu dosyada köprü yok.</translation>
    </message>
    <message>
        <source>Keep Only the Bridges</source>
        <translation>Yalnızca köprüleri tut</translation>
    </message>
    <message>
        <source>Removes everything from the text but the bridges that were recognized</source>
        <translation>Tanınan köprüler dışında metindeki her şeyi kaldırır</translation>
    </message>
</context>
<context>
    <name>ChooserWindow</name>
    <message>
        <source>App exceptions</source>
        <translation>Uygulama istisnaları</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Sıkı kipte Tor&apos;u atlayabilecek uygulamaları seçin</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Kurulu uygulamalar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Diğer…</translation>
    </message>
    <message>
        <source>Choose the .desktop file of an application that is not listed</source>
        <translation>Listede olmayan bir uygulamanın .desktop dosyasını seçin</translation>
    </message>
</context>
<context>
    <name>CircuitsSidebar</name>
    <message>
        <source>ALL CIRCUITS</source>
        <translation>TÜM DEVRELER</translation>
    </message>
    <message>
        <source>No circuit selected</source>
        <translation>Devre seçilmedi</translation>
    </message>
    <message>
        <source>New Circuit</source>
        <translation>Yeni devre</translation>
    </message>
    <message>
        <source>Close this circuit; its sites get a fresh path on their next request</source>
        <translation>Bu devreyi kapatır; devredeki siteler bir sonraki istekte yeni bir yol alır</translation>
    </message>
    <message>
        <source>Sites on this circuit get a fresh path. Other sites sharing it move too.</source>
        <translation>Bu devredeki siteler yeni bir yol alır. Devreyi paylaşan diğer siteler de taşınır.</translation>
    </message>
</context>
<context>
    <name>CircuitsWindow</name>
    <message>
        <source>Circuits</source>
        <translation>Devreler</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Yeni kimlik</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Tor&apos;dan yeni devreler ve yeni bir çıkış IP adresi ister</translation>
    </message>
    <message>
        <source>Find Faster</source>
        <translation>Hızlısını bul</translation>
    </message>
    <message>
        <source>Time a request through Tor and get fresh circuits if it&apos;s slow</source>
        <translation>Tor üzerinden bir isteğin süresini ölçer, yavaşsa yeni devreler alır</translation>
    </message>
    <message>
        <source>Reading circuits…</source>
        <translation>Devreler okunuyor…</translation>
    </message>
    <message>
        <source>Connect to see your circuits</source>
        <translation>Devrelerinizi görmek için bağlanın</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>Exit IP</source>
        <translation>Çıkış IP&apos;si</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Leaks</source>
        <translation>Sızıntılar</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafik</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>%1 alındı, %2 gönderildi</translation>
    </message>
    <message>
        <source>Traffic of the last two minutes</source>
        <translation>Son iki dakikanın trafiği</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Yeni kimlik</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Tor&apos;dan yeni devreler ve yeni bir çıkış IP adresi ister</translation>
    </message>
    <message>
        <source>Leak Test</source>
        <translation>Sızıntı testi</translation>
    </message>
    <message>
        <source>Check the exit IP and try a direct connection that skips Tor</source>
        <translation>Çıkış IP adresini denetler ve Tor&apos;u atlayan doğrudan bir bağlantı dener</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Devreler</translation>
    </message>
    <message>
        <source>See the path your traffic takes: entry, middle and exit relays</source>
        <translation>Trafiğinizin izlediği yolu gösterir: giriş, orta ve çıkış aktarıcıları</translation>
    </message>
</context>
<context>
    <name>CopyField</name>
    <message>
        <source>Copied</source>
        <translation>Kopyalandı</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
</context>
<context>
    <name>DNSCard</name>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>DNS sorguları Tor&apos;u atlayabilir</translation>
    </message>
    <message>
        <source>Fix DNS</source>
        <translation>DNS&apos;i onar</translation>
    </message>
    <message>
        <source>Re-test</source>
        <translation>Yeniden test et</translation>
    </message>
</context>
<context>
    <name>DoctorSheet</name>
    <message>
        <source>This computer</source>
        <translation>Bu bilgisayar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Yeniden incele</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Raporu göster</translation>
    </message>
    <message>
        <source>What others need to help you, without addresses, names and bridges</source>
        <translation>Başkalarının size yardım etmesi için gerekenler; adresler, adlar ve köprüler olmadan</translation>
    </message>
</context>
<context>
    <name>DownloadButton</name>
    <message>
        <source>Download</source>
        <translation>İndir</translation>
    </message>
    <message>
        <source>Downloads the official Tor Expert Bundle from the Tor Project, for bridge programs and built-in bridges</source>
        <translation>Köprü programları ve yerleşik köprüler için Tor Projesi&apos;nin resmî Tor Expert Bundle paketini indirir</translation>
    </message>
</context>
<context>
    <name>Footer</name>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Tor Log</source>
        <translation>Tor günlüğü</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Startup and password prompts</source>
        <translation>Başlangıç ve parola istemleri</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Başlangıç</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Oturum açılınca başlat</translation>
    </message>
    <message>
        <source>Veldmark starts when you log in</source>
        <translation>Oturum açtığınızda Veldmark başlar</translation>
    </message>
    <message>
        <source>Connect automatically</source>
        <translation>Otomatik bağlan</translation>
    </message>
    <message>
        <source>Connect as soon as Veldmark opens</source>
        <translation>Veldmark açılır açılmaz bağlanır</translation>
    </message>
    <message>
        <source>Password prompts</source>
        <translation>Parola istemleri</translation>
    </message>
    <message>
        <source>Passwordless mode</source>
        <translation>Parolasız kip</translation>
    </message>
    <message>
        <source>Connect and Disconnect never ask</source>
        <translation>Bağlanırken ve bağlantıyı keserken sorulmaz</translation>
    </message>
    <message>
        <source>Asks for your password each time</source>
        <translation>Parolanızı her seferinde sorar</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Kur…</translation>
    </message>
    <message>
        <source>Setup asks for your admin password once. It installs a root-owned copy of Veldmark&apos;s helper and a rule in /etc/sudoers.d that lets your account run only that helper, so Connect and Disconnect stop asking. Turn it off any time.</source>
        <translation>Kurulum, yönetici parolanızı bir kez sorar. Veldmark&apos;ın yardımcı programının root kullanıcısına ait bir kopyasını ve /etc/sudoers.d içine, hesabınızın yalnızca bu yardımcı programı çalıştırmasına izin veren bir kural kurar; böylece bağlanırken ve bağlantıyı keserken parola sorulmaz. İstediğiniz zaman kapatabilirsiniz.</translation>
    </message>
</context>
<context>
    <name>Hero</name>
    <message>
        <source>Show Tor Log</source>
        <translation>Tor günlüğünü göster</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Tor&apos;un bildirdiği her şeyi görün</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Ağı geri yükle</translation>
    </message>
    <message>
        <source>Try Bridges</source>
        <translation>Köprüleri Dene</translation>
    </message>
</context>
<context>
    <name>LogLines</name>
    <message>
        <source>Tor Log</source>
        <translation>Tor günlüğü</translation>
    </message>
</context>
<context>
    <name>LogRow</name>
    <message>
        <source>Error</source>
        <translation>Hata</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Uyarı</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Bildirim</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Bilgi</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Tor Log</source>
        <translation>Tor günlüğü</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Süz</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>İzle</translation>
    </message>
    <message>
        <source>Keep the newest lines in view</source>
        <translation>En yeni satırları görünür tut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Copy the lines shown</source>
        <translation>Gösterilen satırları kopyala</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Göster</translation>
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
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Önce bağlantıyı kesin</translation>
    </message>
    <message>
        <source>Strict mode</source>
        <translation>Sıkı kip</translation>
    </message>
    <message>
        <source>Kill switch: block anything not using Tor</source>
        <translation>Acil kesme anahtarı: Tor dışı her şeyi engeller</translation>
    </message>
    <message>
        <source>Blocks every connection that doesn&apos;t go through Tor, including UDP and IPv6. Apps that ignore proxy settings won&apos;t connect at all instead of leaking.</source>
        <translation>UDP ve IPv6 dâhil, Tor&apos;dan geçmeyen her bağlantıyı engeller. Vekil sunucu ayarlarını yok sayan uygulamalar sızıntı yapmak yerine hiç bağlanamaz.</translation>
    </message>
    <message>
        <source>Allow local network</source>
        <translation>Yerel ağa izin ver</translation>
    </message>
    <message>
        <source>Exit country</source>
        <translation>Çıkış ülkesi</translation>
    </message>
    <message>
        <source>Where your traffic appears to come from</source>
        <translation>Trafiğinizin nereden geliyor gibi göründüğü</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Köprüler</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Düzenle…</translation>
    </message>
    <message>
        <source>Custom bridges</source>
        <translation>Özel köprüler</translation>
    </message>
    <message>
        <source>Optimize for speed</source>
        <translation>Hız için iyileştir</translation>
    </message>
    <message>
        <source>New circuits for everything</source>
        <translation>Her şey için yeni devreler</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Uçbirim kipi</translation>
    </message>
    <message>
        <source>App exceptions</source>
        <translation>Uygulama istisnaları</translation>
    </message>
    <message>
        <source>For networks that block or watch Tor</source>
        <translation>Tor&apos;u engelleyen ya da izleyen ağlar için</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Find the Cause</source>
        <translation>Nedenini bul</translation>
    </message>
    <message>
        <source>Checks what a connection needs on this computer, what blocks it and how to fix it</source>
        <translation>Bu bilgisayarı inceler: bağlantı için ne gerektiğini, neyin engel olduğunu ve bunun nasıl giderileceğini gösterir</translation>
    </message>
    <message>
        <source>Show Tor Log</source>
        <translation>Tor günlüğünü göster</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Tor&apos;un bildirdiği her şeyi görün</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with this command, then click Recheck.</source>
        <translation>Tor kurulu değil. Bu komutla kurun, sonra “Yeniden denetle” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with %1, then click Recheck.</source>
        <translation>Tor kurulu değil. Kurmak için: %1. Sonra “Yeniden denetle” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Recheck</source>
        <translation>Yeniden denetle</translation>
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
        <translation>Bulundu: %1</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Bulunamadı</translation>
    </message>
</context>
<context>
    <name>QuitDialog</name>
    <message>
        <source>Quit Veldmark</source>
        <translation>Veldmark&apos;tan çık</translation>
    </message>
    <message>
        <source>Your network is still routed through Tor</source>
        <translation>Ağınız hâlâ Tor üzerinden yönlendiriliyor</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and the kill switch stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Şimdi çıkarsanız Tor çalışmayı sürdürür ve acil kesme anahtarı açık kalır. Normal bağlantınızı geri yüklemek için Veldmark&apos;ı daha sonra yeniden açın.</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and your system proxy stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Şimdi çıkarsanız Tor çalışmayı sürdürür ve sistem vekil sunucusu ayarlı kalır. Normal bağlantınızı geri yüklemek için Veldmark&apos;ı daha sonra yeniden açın.</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Bağlantı kesiliyor…</translation>
    </message>
    <message>
        <source>Disconnect &amp; Quit</source>
        <translation>Bağlantıyı kes ve çık</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Yine de çık</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>RecoveryPane</name>
    <message>
        <source>Recovery</source>
        <translation>Kurtarma</translation>
    </message>
    <message>
        <source>Get your normal connection back</source>
        <translation>Normal bağlantınıza geri dönün</translation>
    </message>
    <message>
        <source>Restore network settings</source>
        <translation>Ağ ayarlarını geri yükle</translation>
    </message>
    <message>
        <source>Veldmark&apos;s changes are active</source>
        <translation>Veldmark&apos;ın değişiklikleri etkin</translation>
    </message>
    <message>
        <source>Nothing to restore</source>
        <translation>Geri yüklenecek bir şey yok</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Geri yükle</translation>
    </message>
    <message>
        <source>Use this if your internet stops working after a crash. It puts your DNS, proxy and firewall settings back the way they were and stops Tor.</source>
        <translation>İnternetiniz bir çökmeden sonra çalışmazsa bunu kullanın. DNS, vekil sunucu ve güvenlik duvarı ayarlarınızı eski hâline getirir ve Tor&apos;u durdurur.</translation>
    </message>
    <message>
        <source>If the app won&apos;t open</source>
        <translation>Uygulama açılmıyorsa</translation>
    </message>
    <message>
        <source>Run this in Terminal to do the same thing without Veldmark.</source>
        <translation>Aynı işi Veldmark olmadan yapmak için bunu uçbirimde çalıştırın.</translation>
    </message>
    <message>
        <source>Report for others</source>
        <translation>Başkaları için rapor</translation>
    </message>
    <message>
        <source>What they need to help you, without addresses, names and bridges. You read it first, and nothing sends it.</source>
        <translation>Size yardım etmeleri için gerekenler; adresler, adlar ve köprüler olmadan. Önce siz okursunuz, hiçbir şey onu göndermez.</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Raporu göster</translation>
    </message>
</context>
<context>
    <name>ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>Rapor</translation>
    </message>
    <message>
        <source>For those who help you. Addresses, names, bridges, keys and paths in your home are replaced. Look through it before you give it away: Veldmark sends it to nobody.</source>
        <translation>Size yardım edenler için. Adresler, adlar, köprüler, anahtarlar ve ev klasörünüzdeki yollar değiştirilmiştir. Vermeden önce gözden geçirin: Veldmark onu kimseye göndermez.</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Kaydet…</translation>
    </message>
    <message>
        <source>Save the report in a file that only you can read</source>
        <translation>Raporu yalnızca sizin okuyabileceğiniz bir dosyaya kaydeder</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Copy the whole report</source>
        <translation>Raporun tamamını kopyalar</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Bu bilgisayar inceleniyor…</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Köprüler</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Uçbirim</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Kurtarma</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
</context>
<context>
    <name>TerminalPane</name>
    <message>
        <source>Terminal</source>
        <translation>Uçbirim</translation>
    </message>
    <message>
        <source>Route command-line tools through Tor</source>
        <translation>Komut satırı araçlarını Tor üzerinden yönlendirin</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Uçbirim kipi</translation>
    </message>
    <message>
        <source>Shell integration</source>
        <translation>Kabuk bütünleştirmesi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
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
        <translation>Veldmark&apos;ın çalıştırdığı Tor programı</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Location: disconnect to change</source>
        <translation>Konum: önce bağlantıyı kesin</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Konum</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Otomatik</translation>
    </message>
    <message>
        <source>Custom location</source>
        <translation>Özel konum</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Separate applications</source>
        <translation>Uygulamaları ayır</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Önce bağlantıyı kesin</translation>
    </message>
    <message>
        <source>Each application has circuits of its own</source>
        <translation>Her uygulamanın kendi devreleri olur</translation>
    </message>
    <message>
        <source>Sites cannot tell by the exit address that two applications are yours. Veldmark tells applications apart where the desktop starts each in a control group of its own, as GNOME and KDE do. Other programs share circuits with the rest of their login session or account.</source>
        <translation>Siteler, iki uygulamanın size ait olduğunu çıkış adresinden anlayamaz. Uygulamalar yalnızca masaüstünün her birini ayrı bir denetim grubunda başlattığı yerlerde ayırt edilir; GNOME ve KDE böyle yapar. Diğer programlar, devreleri aynı giriş oturumundaki ya da hesaptaki her şeyle paylaşır.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Start without a window, as at login.</source>
        <translation>Oturum açılışındaki gibi penceresiz başlatır.</translation>
    </message>
    <message>
        <source>Connect at once.</source>
        <translation>Hemen bağlanır.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor. To restore it without Veldmark, run:
%1</source>
        <translation>Ağınız hâlâ Tor için ayarlı. Veldmark olmadan geri yüklemek için çalıştırın:
%1</translation>
    </message>
</context>
<context>
    <name>veldmark::Alerts</name>
    <message>
        <source>Another session has replaced this one</source>
        <translation>Bu oturumun yerini başka bir oturum aldı</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor artık çalışmıyor</translation>
    </message>
    <message>
        <source>Traffic can leave around Tor</source>
        <translation>Trafik Tor&apos;u atlayarak çıkabilir</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>DNS sorguları Tor&apos;u atlayabilir</translation>
    </message>
    <message>
        <source>Your real address can be seen. Open Veldmark to see what to do.</source>
        <translation>Gerçek adresiniz görülebilir. Ne yapacağınızı görmek için Veldmark&apos;ı açın.</translation>
    </message>
    <message>
        <source>Firewall rules were removed</source>
        <translation>Güvenlik duvarı kuralları kaldırıldı</translation>
    </message>
    <message>
        <source>The kill switch doesn&apos;t block traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>Acil kesme anahtarı trafiği engellemiyor. Veldmark&apos;ı açın, bağlantıyı kesip yeniden bağlanın.</translation>
    </message>
    <message>
        <source>The kill switch is not watched</source>
        <translation>Acil kesme anahtarı izlenmiyor</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>Acil kesme anahtarının trafiği engelleyip engellemediği bilinemiyor. Veldmark&apos;ı açın, bağlantıyı kesip yeniden bağlanın.</translation>
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
        <translation>Veldmark bir pencere açamadı. Ağınız bundan etkilenmedi; Veldmark olmadan geri yüklemek için şunu çalıştırın:
%1

%2</translation>
    </message>
    <message>
        <source>Veldmark is still running</source>
        <translation>Veldmark hâlâ çalışıyor</translation>
    </message>
    <message>
        <source>Open Veldmark again to see its window.</source>
        <translation>Penceresini görmek için Veldmark&apos;ı yeniden açın.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Ağınız hâlâ Tor için ayarlı</translation>
    </message>
    <message>
        <source>Veldmark had to close and could not restore the network. Open Veldmark again to restore it.</source>
        <translation>Veldmark kapanmak zorunda kaldı ve ağı geri yükleyemedi. Geri yüklemek için Veldmark&apos;ı yeniden açın.</translation>
    </message>
</context>
<context>
    <name>veldmark::ApplicationChoices</name>
    <message>
        <source>No installed applications were found.</source>
        <translation>Kurulu uygulama bulunamadı.</translation>
    </message>
    <message>
        <source>No application is called “%1”.</source>
        <translation>“%1” adında bir uygulama yok.</translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitGraphView</name>
    <message>
        <source>%1: your real IP only ever reaches the entry relay</source>
        <translation>%1: gerçek IP adresiniz yalnızca giriş aktarıcısına ulaşır</translation>
    </message>
    <message>
        <source>Used by 1 circuit</source>
        <translation>1 devre kullanıyor</translation>
    </message>
    <message>
        <source>ENTRY</source>
        <translation>GİRİŞ</translation>
    </message>
    <message>
        <source>MIDDLE</source>
        <translation>ORTA</translation>
    </message>
    <message>
        <source>EXIT</source>
        <translation>ÇIKIŞ</translation>
    </message>
    <message>
        <source>SITES</source>
        <translation>SİTELER</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 tane daha</translation>
    </message>
    <message numerus="yes">
        <source>Used by %n circuits</source>
        <translation>
            <numerusform>%n devre kullanıyor</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitsModel</name>
    <message>
        <source>Unknown</source>
        <translation>Bilinmiyor</translation>
    </message>
    <message>
        <source>Circuit %1</source>
        <translation>Devre %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Bağlı değil</translation>
    </message>
    <message>
        <source>1 active path</source>
        <translation>1 etkin yol</translation>
    </message>
    <message>
        <source> · click a relay or site to follow it</source>
        <translation> · izlemek için bir aktarıcıya ya da siteye tıklayın</translation>
    </message>
    <message>
        <source>Leads to an onion service. The last relay is the meeting point.</source>
        <translation>Bir onion hizmetine gider. Buluşma noktası son aktarıcıdır.</translation>
    </message>
    <message>
        <source>Meeting point</source>
        <translation>Buluşma noktası</translation>
    </message>
    <message>
        <source>One of several linked legs to the same exit</source>
        <translation>Aynı çıkışa giden, birbirine bağlı birkaç koldan biri</translation>
    </message>
    <message>
        <source>Only the entry sees your IP</source>
        <translation>IP adresinizi yalnızca giriş görür</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Orta</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>Köprü</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Giriş</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>, +%1 more</source>
        <translation>, +%1 tane daha</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Siteler</translation>
    </message>
    <message>
        <source>Round trip: %1</source>
        <translation>Gidiş dönüş: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n active paths</source>
        <translation>
            <numerusform>%n etkin yol</numerusform>
        </translation>
    </message>
    <message>
        <source>Asked for by %1</source>
        <translation>İsteyen: %1</translation>
    </message>
</context>
<context>
    <name>veldmark::DoctorModel</name>
    <message>
        <source>Problem</source>
        <translation>Sorun</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Bilinmiyor</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Not</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Yolunda</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Ağı geri yükle</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>İndir</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Bu bilgisayar inceleniyor…</translation>
    </message>
    <message>
        <source>The check gave no result.</source>
        <translation>Hiçbir şey saptanamadı.</translation>
    </message>
    <message>
        <source>No problem was found that keeps Veldmark from connecting.</source>
        <translation>Veldmark&apos;ın bağlanmasını engelleyen bir şey bulunamadı.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t connect until each problem is fixed.</source>
        <translation>Tüm sorunlar giderilmeden Veldmark bağlanamaz.</translation>
    </message>
</context>
<context>
    <name>veldmark::LogModel</name>
    <message>
        <source>Tor writes here while it connects and runs</source>
        <translation>Tor, bağlanırken ve çalışırken buraya yazar</translation>
    </message>
    <message>
        <source>Can&apos;t read the log files</source>
        <translation>Günlük dosyaları okunamıyor</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 satır</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Sorunlar</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Sorunlar (%1)</translation>
    </message>
    <message>
        <source>Show the log files in Finder</source>
        <translation>Günlük dosyalarını Finder&apos;da gösterir</translation>
    </message>
    <message>
        <source>Show the log files in the file manager</source>
        <translation>Günlük dosyalarını dosya yöneticisinde gösterir</translation>
    </message>
    <message>
        <source>There are no log files yet. Tor creates %1 when it first starts.</source>
        <translation>Henüz günlük dosyası yok: Tor ilk kez başlatıldığında %1 oluşturulur.</translation>
    </message>
    <message>
        <source>No file manager could be opened. The log files are in %1.</source>
        <translation>Hiçbir dosya yöneticisi açılamadı. Günlük dosyalarının yeri: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n satır</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::OptionsModel</name>
    <message>
        <source>Choosing a country means fewer exit relays, so it&apos;s slower and you&apos;re easier to single out.</source>
        <translation>Ülke seçmek daha az çıkış aktarıcısı demektir: bağlantı yavaşlar ve diğer kullanıcılardan ayırt edilmeniz kolaylaşır.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>obfs4 (built-in)</source>
        <translation>obfs4 (yerleşik)</translation>
    </message>
    <message>
        <source>Snowflake (built-in)</source>
        <translation>Snowflake (yerleşik)</translation>
    </message>
    <message>
        <source>meek (built-in)</source>
        <translation>meek (yerleşik)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Özel</translation>
    </message>
    <message>
        <source>No bridges added yet</source>
        <translation>Henüz köprü eklenmedi</translation>
    </message>
    <message>
        <source>Needs bridge programs: click Download</source>
        <translation>Köprü programları gerekiyor: “İndir” düğmesine tıklayın</translation>
    </message>
    <message>
        <source>Built-in bridges from %1</source>
        <translation>Yerleşik köprülerin kaynağı: %1</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(satır %1)</translation>
    </message>
    <message>
        <source>(lines %1)</source>
        <translation>(satırlar: %1)</translation>
    </message>
    <message>
        <source>1 bridge recognized</source>
        <translation>1 köprü tanındı</translation>
    </message>
    <message>
        <source>A bridge line can&apos;t contain #, &quot; or \.</source>
        <translation>Köprü satırı #, &quot; ya da \ içeremez.</translation>
    </message>
    <message>
        <source>At most %1 bridges can be used</source>
        <translation>En çok %1 köprü kullanılabilir</translation>
    </message>
    <message>
        <source>1 line not recognized</source>
        <translation>1 satır tanınmadı</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Yok</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the Dock) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>Sıkı kipte bu uygulamalar Tor yerine doğrudan, gerçek IP adresinizle bağlanabilir. Geri kalan her şey yalnızca Tor&apos;dan geçebilir. Veldmark&apos;ın onları işaretleyebilmesi için bu uygulamaları (Dock&apos;tan değil) &lt;b&gt;Tor olmadan aç&lt;/b&gt; ile açın. Çalışan bir kopya kapatılıp yeniden açılır.</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the desktop&apos;s menu) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>Sıkı kipte bu uygulamalar Tor yerine doğrudan, gerçek IP adresinizle bağlanabilir. Geri kalan her şey yalnızca Tor&apos;dan geçebilir. Veldmark&apos;ın onları işaretleyebilmesi için bu uygulamaları (masaüstü menüsünden değil) &lt;b&gt;Tor olmadan aç&lt;/b&gt; ile açın. Çalışan bir kopya kapatılıp yeniden açılır.</translation>
    </message>
    <message numerus="yes">
        <source>%n bridges recognized</source>
        <translation>
            <numerusform>%n köprü tanındı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines not recognized</source>
        <translation>
            <numerusform>%n satır tanınmadı</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::PanelModel</name>
    <message>
        <source>No answer</source>
        <translation>Yanıt yok</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but it isn&apos;t known whether the kill switch blocks such connections</source>
        <translation>Tor&apos;u atlayan doğrudan bir bağlantı yanıt almadı, ama acil kesme anahtarının böyle bağlantıları engelleyip engellemediği bilinmiyor</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but proxy mode doesn&apos;t block such connections</source>
        <translation>Tor&apos;u atlayan doğrudan bir bağlantı yanıt almadı, ama vekil sunucu kipi böyle bağlantıları engellemez</translation>
    </message>
    <message>
        <source>Connect to Tor</source>
        <translation>Tor&apos;a bağlan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Bağlantıyı kes</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Yeniden bağlan</translation>
    </message>
    <message>
        <source>Connected through %1 bridges</source>
        <translation>Köprülerle bağlı: %1</translation>
    </message>
    <message>
        <source>Strict</source>
        <translation>Sıkı</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Vekil sunucu</translation>
    </message>
    <message>
        <source>Install Tor to get started</source>
        <translation>Başlamak için Tor&apos;u kurun</translation>
    </message>
    <message>
        <source>Click to connect</source>
        <translation>Bağlanmak için tıklayın</translation>
    </message>
    <message>
        <source>Click to disconnect</source>
        <translation>Bağlantıyı kesmek için tıklayın</translation>
    </message>
    <message>
        <source>Tor hasn&apos;t reported progress for a while. It is still trying; a slow or blocked network is the usual reason.</source>
        <translation>Tor bir süredir ilerleme bildirmedi. Hâlâ deniyor; bunun olağan nedeni yavaş ya da engellenmiş bir ağdır.</translation>
    </message>
    <message>
        <source>Still waiting for Tor to start, or for your approval.</source>
        <translation>Hâlâ Tor&apos;un başlaması ya da sizin onayınız bekleniyor.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Denetleniyor</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Bilinmiyor</translation>
    </message>
    <message>
        <source>Checked against %1</source>
        <translation>Denetlendiği yer: %1</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Doğrulandı</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>Doğrulanmadı</translation>
    </message>
    <message>
        <source>DNS leak</source>
        <translation>DNS sızıntısı</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>Test edilmedi</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Test ediliyor…</translation>
    </message>
    <message>
        <source>No leaks</source>
        <translation>Sızıntı yok</translation>
    </message>
    <message>
        <source>Inconclusive</source>
        <translation>Sonuç belirsiz</translation>
    </message>
    <message>
        <source>Exposed: %1</source>
        <translation>Açıkta: %1</translation>
    </message>
    <message>
        <source>Tries a direct connection that skips Tor</source>
        <translation>Tor&apos;u atlayan doğrudan bir bağlantı dener</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor are blocked</source>
        <translation>Tor&apos;u atlayan doğrudan bağlantılar engelleniyor</translation>
    </message>
    <message>
        <source>Apps that ignore proxy settings show your real IP (%1). Turn on Strict mode to block them.</source>
        <translation>Vekil sunucu ayarlarını yok sayan uygulamalar gerçek IP adresinizi gösterir (%1). Bunları engellemek için sıkı kipi açın.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 tane daha</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Denetlenmedi</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor show your real IP (%1), although Strict mode should block them. Disconnect, or run the leak test again.</source>
        <translation>Sıkı kipin engellemesi gerekirken, Tor&apos;u atlayan doğrudan bağlantılar gerçek IP adresinizi gösteriyor (%1). Bağlantıyı kesin ya da sızıntı testini yeniden çalıştırın.</translation>
    </message>
</context>
<context>
    <name>veldmark::ReportModel</name>
    <message>
        <source>Saved in %1</source>
        <translation>%1 içine kaydedildi</translation>
    </message>
</context>
<context>
    <name>veldmark::SettingsModel</name>
    <message>
        <source>Found</source>
        <translation>Bulundu</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Eksik</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Bulunamadı</translation>
    </message>
    <message>
        <source>Homebrew: %1</source>
        <translation>Homebrew: %1</translation>
    </message>
    <message>
        <source>Install it with %1</source>
        <translation>Kurmak için: %1</translation>
    </message>
    <message>
        <source>Not found in Tor Browser or a downloaded bundle</source>
        <translation>Ne Tor Browser&apos;da ne de indirilmiş bir pakette bulundu</translation>
    </message>
    <message>
        <source>Loaded from %1</source>
        <translation>Yüklendiği yer: %1</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <translation>İndirilmedi</translation>
    </message>
    <message>
        <source>Version %1 loaded</source>
        <translation>Sürüm %1 yüklendi</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>imza doğrulandı</translation>
    </message>
    <message>
        <source>Adds one line to ~/.zshrc (and ~/.bash_profile if you have one) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>~/.zshrc dosyasına (varsa ~/.bash_profile dosyasına da) bir satır, ~/.ssh/config dosyasının başına bir Include satırı ekler. Dosyaları ~/.veldmark klasöründedir. Veldmark, uçbirim kipi açıkken bağlı olmadıkça hiçbir şey yönlendirilmez.</translation>
    </message>
    <message>
        <source>Adds one line to ~/.bashrc (and ~/.zshrc if you use zsh) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>~/.bashrc dosyasına (zsh kullanıyorsanız ~/.zshrc dosyasına da) bir satır, ~/.ssh/config dosyasının başına bir Include satırı ekler. Dosyaları ~/.veldmark klasöründedir. Veldmark, uçbirim kipi açıkken bağlı olmadıkça hiçbir şey yönlendirilmez.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>Fetched over HTTPS. Its signature isn&apos;t checked, since GnuPG isn&apos;t installed.</source>
        <translation>HTTPS üzerinden indirildi. GnuPG kurulu olmadığı için imzası denetlenmez.</translation>
    </message>
    <message>
        <source>Fetched over HTTPS and checked against the Tor Project&apos;s signature.</source>
        <translation>HTTPS üzerinden indirildi ve Tor Projesi&apos;nin imzasıyla denetlendi.</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Kurulu değil</translation>
    </message>
    <message>
        <source>Installed in your shell and SSH config</source>
        <translation>Kabuk ve SSH yapılandırmanıza kuruldu</translation>
    </message>
    <message>
        <source>Installed in your shell; SSH doesn&apos;t use it</source>
        <translation>Kabuğunuza kuruldu; SSH bunu kullanmıyor</translation>
    </message>
    <message>
        <source>curl, git, brew, pip, ssh and more use Tor</source>
        <translation>curl, git, brew, pip, ssh ve başkaları Tor kullanır</translation>
    </message>
    <message>
        <source>curl, git, pip, ssh and more use Tor</source>
        <translation>curl, git, pip, ssh ve başkaları Tor kullanır</translation>
    </message>
    <message>
        <source>Veldmark is free software and independent of the Tor Project. It contains no Tor: it runs the tor that is installed here, and where bridges are used lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>Veldmark özgür yazılımdır ve Tor Projesi&apos;nden bağımsızdır. Tor&apos;u içermez: burada kurulu olan tor programını, köprü kullanılıyorsa lyrebird, snowflake-client ya da webtunnel-client programını çalıştırır.</translation>
    </message>
    <message>
        <source>It sets up the network with macOS&apos;s own programs, asks for the administrator with sudo, and checks downloads with GnuPG where that is installed.</source>
        <translation>Ağı macOS&apos;in kendi programlarıyla ayarlar, yönetici yetkisini sudo ile ister, GnuPG kuruluysa indirmeleri onunla denetler.</translation>
    </message>
    <message>
        <source>It sets up the network with nftables, resolvectl and gsettings, asks for the administrator with polkit or sudo, takes ssh through Tor with a netcat, and checks downloads with GnuPG where that is installed.</source>
        <translation>Ağı nftables, resolvectl ve gsettings ile ayarlar, yönetici yetkisini polkit ya da sudo ile ister, ssh bağlantılarını bir netcat ile Tor&apos;dan geçirir, GnuPG kuruluysa indirmeleri onunla denetler.</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Sor</translation>
    </message>
    <message>
        <source>Try bridges</source>
        <translation>Köprüleri dene</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Bir şey yapma</translation>
    </message>
</context>
<context>
    <name>veldmark::ShutdownNotice</name>
    <message>
        <source>Restoring your network settings</source>
        <translation>Ağ ayarlarınız geri yükleniyor</translation>
    </message>
</context>
<context>
    <name>veldmark::Text</name>
    <message>
        <source>Tor hasn&apos;t confirmed that it uses the network again, so traffic may not get through. Veldmark keeps telling Tor to. If this lasts, disconnect and connect again.</source>
        <translation>Tor ağı yeniden kullandığını doğrulamadı, bu yüzden trafik geçmiyor olabilir. Veldmark bunu Tor&apos;a söylemeyi sürdürüyor; durum sürerse bağlantıyı kesip yeniden bağlanın.</translation>
    </message>
    <message>
        <source>Version %1 is offered, which is older than the installed %2. Nothing was changed.</source>
        <translation>Sunulan sürüm %1, kurulu olan %2 sürümünden daha eski. Hiçbir şey değiştirilmedi.</translation>
    </message>
    <message>
        <source>The download of version %1 contains another version, so it was discarded.</source>
        <translation>İndirilen %1 sürümünün içinden başka bir sürüm çıktı, bu yüzden indirme atıldı.</translation>
    </message>
    <message>
        <source>The download begins again when Tor is connected…</source>
        <translation>Tor bağlanınca indirme baştan başlar…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a location of Tor. Give an absolute path, such as /usr/bin/tor.</source>
        <translation>“%1” bir Tor konumu değil. Mutlak bir yol verin, örneğin /usr/bin/tor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be changed during a connection. Disconnect to change it.</source>
        <translation>“%1” bağlantı sırasında değiştirilemez. Değiştirmek için bağlantıyı kesin.</translation>
    </message>
    <message>
        <source>Your traffic is not going through Tor</source>
        <translation>Trafiğiniz Tor&apos;dan geçmiyor</translation>
    </message>
    <message>
        <source>Restoring your network settings…</source>
        <translation>Ağ ayarlarınız geri yükleniyor…</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor from an earlier session</source>
        <translation>Ağınız önceki bir oturumdan beri hâlâ Tor için ayarlı</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Ağınız hâlâ Tor için ayarlı</translation>
    </message>
    <message>
        <source>Preparing Tor…</source>
        <translation>Tor hazırlanıyor…</translation>
    </message>
    <message>
        <source>Waiting for administrator approval…</source>
        <translation>Yönetici onayı bekleniyor…</translation>
    </message>
    <message>
        <source>Waiting for an administrator to approve a program…</source>
        <translation>Bir yöneticinin bir programı onaylaması bekleniyor…</translation>
    </message>
    <message>
        <source>Starting Tor…</source>
        <translation>Tor başlatılıyor…</translation>
    </message>
    <message>
        <source>Tor is waiting for the bridge program, which hasn&apos;t said that it is ready.</source>
        <translation>Tor, hazır olduğunu henüz bildirmeyen köprü programını bekliyor.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting</source>
        <translation>Tor bağlantıyı tamamlayamadı</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor artık çalışmıyor</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor</source>
        <translation>Tüm trafik yalnızca Tor&apos;dan geçebilir</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor</source>
        <translation>Sistem vekil sunucusu ayarlarını kullanan uygulamalar Tor&apos;dan geçer</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. Reconnect, or Restore Network to go back online.</source>
        <translation>Tor artık çalışmıyor. Acil kesme anahtarı trafiği hâlâ engelliyor, bu yüzden hiçbir şey sızmadı. Yeniden bağlanın ya da Tor olmadan çevrimiçi olmak için ağı geri yükleyin.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, but the last checks saw traffic go around Tor. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor artık çalışmıyor. Acil kesme anahtarı trafiği hâlâ engelliyor, ama son denetimlerde Tor&apos;u atlayan trafik görüldü. Yeniden bağlanın ya da Tor olmadan çevrimiçi olmak için ağı geri yükleyin.</translation>
    </message>
    <message>
        <source>Tor stopped running. Apps using the proxy can&apos;t connect until you reconnect or Restore Network.</source>
        <translation>Tor artık çalışmıyor. Vekil sunucuyu kullanan uygulamalar, siz yeniden bağlanana ya da ağı geri yükleyene dek bağlanamaz.</translation>
    </message>
    <message>
        <source>Any (recommended)</source>
        <translation>Herhangi biri (önerilir)</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>ABD</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Kanada</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Birleşik Krallık</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Almanya</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Hollanda</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Fransa</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>İsveç</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>İsviçre</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finlandiya</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Romanya</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japonya</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Singapur</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Özel</translation>
    </message>
    <message>
        <source>DNS can go around Tor via: %1</source>
        <translation>DNS şunun üzerinden Tor&apos;u atlayabilir: %1</translation>
    </message>
    <message>
        <source>DNS: not tested yet.</source>
        <translation>DNS: henüz test edilmedi.</translation>
    </message>
    <message>
        <source>DNS: testing…</source>
        <translation>DNS: test ediliyor…</translation>
    </message>
    <message>
        <source>DNS: a test lookup went through Tor.</source>
        <translation>DNS: bir test sorgusu Tor&apos;dan geçti.</translation>
    </message>
    <message>
        <source>DNS: settings point at Tor, but a test lookup couldn&apos;t be confirmed.</source>
        <translation>DNS: ayarlar Tor&apos;u gösteriyor, ama bir test sorgusu doğrulanamadı.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Bu bilgisayar</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Bu Mac</translation>
    </message>
    <message>
        <source>on this computer</source>
        <translation>bu bilgisayarda</translation>
    </message>
    <message>
        <source>on this Mac</source>
        <translation>bu Mac&apos;te</translation>
    </message>
    <message>
        <source>Tor stopped running, and your network is no longer set up for it.</source>
        <translation>Tor artık çalışmıyor ve ağınız artık Tor için ayarlı değil.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is blocking traffic again, but another program had removed its rules for a while. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor artık çalışmıyor. Acil kesme anahtarı trafiği yeniden engelliyor, ama başka bir program kurallarını bir süreliğine kaldırmıştı. Yeniden bağlanın ya da Tor olmadan çevrimiçi olmak için ağı geri yükleyin.</translation>
    </message>
    <message>
        <source>Tor stopped running, and the kill switch doesn&apos;t block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network.</source>
        <translation>Tor artık çalışmıyor ve acil kesme anahtarı trafiği engellemiyor: başka bir program kurallarını kaldırdı. Trafik bu bilgisayardan doğrudan çıkabilir. Yeniden bağlanın ya da ağı geri yükleyin.</translation>
    </message>
    <message>
        <source>Tor stopped running, and it isn&apos;t known whether the kill switch is still blocking traffic. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor artık çalışmıyor ve acil kesme anahtarının trafiği hâlâ engelleyip engellemediği bilinmiyor. Yeniden bağlanın ya da Tor olmadan çevrimiçi olmak için ağı geri yükleyin.</translation>
    </message>
    <message>
        <source>The watcher of Veldmark&apos;s firewall rules has stopped reporting, so it isn&apos;t known whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>Veldmark&apos;ın güvenlik duvarı kurallarının izleyicisi artık bilgi vermiyor, bu yüzden acil kesme anahtarının trafiği engelleyip engellemediği bilinmiyor. Bağlantıyı kesip yeniden bağlanın.</translation>
    </message>
    <message>
        <source>Not Protected</source>
        <translation>Koruma yok</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Bağlanıyor…</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Bağlantı kesiliyor…</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>Korunuyor</translation>
    </message>
    <message>
        <source>Proxy Active</source>
        <translation>Vekil sunucu etkin</translation>
    </message>
    <message>
        <source>Needs Attention</source>
        <translation>Dikkat gerekiyor</translation>
    </message>
    <message>
        <source>DNS Leak</source>
        <translation>DNS sızıntısı</translation>
    </message>
    <message>
        <source>Kill Switch Failed</source>
        <translation>Acil kesme etkisiz</translation>
    </message>
    <message>
        <source>Traffic may leave this computer directly</source>
        <translation>Trafik bu bilgisayardan doğrudan çıkabilir</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>DNS sorguları Tor&apos;u atlayabilir</translation>
    </message>
    <message>
        <source>Lookups can go around Tor, and your real address can be seen</source>
        <translation>DNS sorguları Tor&apos;u atlayabilir ve gerçek adresiniz görülebilir</translation>
    </message>
    <message>
        <source>Your real address can be seen. Disconnect, or run the leak test again.</source>
        <translation>Gerçek adresiniz görülebilir. Bağlantıyı kesin ya da sızıntı testini yeniden çalıştırın.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>Acil kesme anahtarının trafiği engelleyip engellemediği bilinemiyor. Bağlantıyı kesip yeniden bağlanın.</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor, but the exit could not be confirmed</source>
        <translation>Tüm trafik yalnızca Tor&apos;dan geçebilir, ama çıkış doğrulanamadı</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor, but the exit could not be confirmed</source>
        <translation>Sistem vekil sunucusu ayarlarını kullanan uygulamalar Tor&apos;dan geçer, ama çıkış doğrulanamadı</translation>
    </message>
    <message>
        <source>No Network</source>
        <translation>Ağ yok</translation>
    </message>
    <message>
        <source>Nothing Gets Through</source>
        <translation>Hiçbir şey geçmiyor</translation>
    </message>
    <message>
        <source>This computer has no network. Traffic around Tor stays blocked.</source>
        <translation>Bu bilgisayarın ağ bağlantısı yok. Tor&apos;u atlayan trafik hâlâ engelleniyor.</translation>
    </message>
    <message>
        <source>This computer has no network. Veldmark goes on when it is back.</source>
        <translation>Bu bilgisayarın ağ bağlantısı yok. Bağlantı geri gelince Veldmark devam eder.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor&apos;un çalışan bir devresi yok, denemeyi sürdürüyor. Tor&apos;u atlayan trafik hâlâ engelleniyor.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying.</source>
        <translation>Tor&apos;un çalışan bir devresi yok, denemeyi sürdürüyor.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor ağdan yanıt alamıyor, denemeyi sürdürüyor. Tor&apos;u atlayan trafik hâlâ engelleniyor.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying.</source>
        <translation>Tor ağdan yanıt alamıyor, denemeyi sürdürüyor.</translation>
    </message>
    <message>
        <source>Another program has ended this session and started its own. Restore Network ends that session.</source>
        <translation>Başka bir program bu oturumu sona erdirip kendi oturumunu başlattı. “Ağı geri yükle” o oturumu sona erdirir.</translation>
    </message>
    <message>
        <source>This computer has no network, so Tor can&apos;t connect.</source>
        <translation>Bu bilgisayarın ağ bağlantısı yok, bu yüzden Tor bağlanamıyor.</translation>
    </message>
    <message>
        <source>A VPN takes Tor&apos;s traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode.</source>
        <translation>Tor&apos;un trafiği bir VPN&apos;e gidiyor ve sıkı kip VPN&apos;in dışarı çıkmasına izin vermiyor. VPN&apos;i kapatın ya da vekil sunucu kipini kullanın.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules; they are back in place.</source>
        <translation>Başka bir program Veldmark&apos;ın güvenlik duvarı kurallarını kaldırdı; kurallar yeniden yerinde.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules and they could not be put back. Traffic may leave this computer directly. Disconnect and connect again.</source>
        <translation>Başka bir program Veldmark&apos;ın güvenlik duvarı kurallarını kaldırdı ve kurallar geri konamadı. Trafik bu bilgisayardan doğrudan çıkabilir. Bağlantıyı kesip yeniden bağlanın.</translation>
    </message>
    <message>
        <source>Invalid exit country.</source>
        <translation>Geçersiz çıkış ülkesi.</translation>
    </message>
    <message>
        <source>The settings couldn&apos;t be saved. Changes to them may last only until you quit.</source>
        <translation>Ayarlar kaydedilemedi. Yapılan değişiklikler yalnızca siz çıkana dek geçerli olabilir.</translation>
    </message>
    <message>
        <source>Checking latest version…</source>
        <translation>En yeni sürüm denetleniyor…</translation>
    </message>
    <message>
        <source>Verifying signature…</source>
        <translation>İmza doğrulanıyor…</translation>
    </message>
    <message>
        <source>Another download is under way.</source>
        <translation>Başka bir indirme sürüyor.</translation>
    </message>
    <message>
        <source>Path not responding, finding another…</source>
        <translation>Yol yanıt vermiyor, başka bir yol aranıyor…</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes.</source>
        <translation>Tor bağlantıyı 5 dakika içinde tamamlayamadı.</translation>
    </message>
    <message>
        <source>Administrator access was refused, or the agent that asks for the password gave no answer.</source>
        <translation>Yönetici erişimi reddedildi ya da parolayı soran aracı yanıt vermedi.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, so Tor can&apos;t connect: %1.</source>
        <translation>Bu bilgisayardaki başka bir güvenlik duvarı giden trafiği engelliyor, bu yüzden Tor bağlanamıyor: %1.</translation>
    </message>
    <message>
        <source>Setup ran but the helper wasn&apos;t installed. Try again.</source>
        <translation>Kurulum çalıştı ama yardımcı program kurulmadı. Yeniden deneyin.</translation>
    </message>
    <message>
        <source>The helper failed without an error message.</source>
        <translation>Yardımcı program hata iletisi vermeden başarısız oldu.</translation>
    </message>
    <message>
        <source>Add at least one bridge under Bridges → Custom….</source>
        <translation>“Köprüler → Özel…” altında en az bir köprü ekleyin.</translation>
    </message>
    <message>
        <source>Some custom bridge lines aren&apos;t valid. Fix them under Bridges → Custom….</source>
        <translation>Bazı özel köprü satırları geçersiz. Bunları “Köprüler → Özel…” altında düzeltin.</translation>
    </message>
    <message>
        <source>At most %1 custom bridges can be used. Remove some under Bridges → Custom….</source>
        <translation>En çok %1 özel köprü kullanılabilir. Bir kısmını “Köprüler → Özel…” altında kaldırın.</translation>
    </message>
    <message>
        <source>Testing speed (%1 of %2)…</source>
        <translation>Hız test ediliyor (%1 / %2)…</translation>
    </message>
    <message>
        <source>Slow path (%1 ms), finding a faster one…</source>
        <translation>Yavaş yol (%1 ms), daha hızlısı aranıyor…</translation>
    </message>
    <message>
        <source>Downloading Tor %1 bridge programs…</source>
        <translation>Tor %1 köprü programları indiriliyor…</translation>
    </message>
    <message>
        <source>Download of %1 failed (HTTP %2).</source>
        <translation>İndirme başarısız oldu: %1 (HTTP %2).</translation>
    </message>
    <message>
        <source>The settings file couldn&apos;t be read. It was kept as %1, and a new one is used.</source>
        <translation>Ayar dosyası okunamadı. %1 adıyla saklandı ve yeni bir dosya kullanılıyor.</translation>
    </message>
    <message>
        <source>The settings file %1 can&apos;t be read or replaced. Changes to the settings last until you quit.</source>
        <translation>Ayar dosyası %1 ne okunabiliyor ne de yenisiyle değiştirilebiliyor. Ayarlardaki değişiklikler yalnızca siz çıkana dek geçerli olur.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1 without Tor: %2</source>
        <translation>%1 Tor olmadan açılamadı: %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>Bu arada başka bir Veldmark&apos;ınız bir oturum başlatmış, bu yüzden hiçbir oturum sona erdirilmedi. O oturumu sona erdirmek için bağlantıyı yeniden kesin.</translation>
    </message>
    <message>
        <source>Another user&apos;s Veldmark has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>Bu arada başka bir kullanıcının Veldmark&apos;ı bir oturum başlatmış, bu yüzden hiçbir oturum sona erdirilmedi. O oturumu sona erdirmek için bağlantıyı yeniden kesin.</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by another Veldmark of yours, process %1</source>
        <translation>Ağınızı başka bir Veldmark&apos;ınız Tor için ayarladı (süreç %1)</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by %1, whose Veldmark is process %2</source>
        <translation>Ağınız %1 tarafından Tor için ayarlandı (Veldmark süreci: %2)</translation>
    </message>
    <message>
        <source>Another Veldmark of yours is connected (process %1). Disconnect it, or restore the network, first.</source>
        <translation>Başka bir Veldmark&apos;ınız bağlı (süreç %1). Önce onun bağlantısını kesin ya da ağı geri yükleyin.</translation>
    </message>
    <message>
        <source>%1 is connected with Veldmark (process %2). That session must be ended first.</source>
        <translation>%1 Veldmark ile bağlı (süreç %2). Önce o oturum sona erdirilmeli.</translation>
    </message>
    <message>
        <source>%1 Your network is still pointed at Tor. Click Restore Network to undo.</source>
        <translation>%1 Ağınız hâlâ Tor&apos;a yönlendirilmiş durumda. Geri almak için “Ağı geri yükle” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install the OpenBSD netcat or Ncat with your package manager.</source>
        <translation>ssh henüz Tor&apos;dan geçmiyor: SOCKS bilen bir netcat gerekiyor. Paket yöneticinizle OpenBSD netcat ya da Ncat kurun.</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up terminal mode: %1</source>
        <translation>Uçbirim kipi kurulamadı: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove terminal integration: %1</source>
        <translation>Uçbirim bütünleştirmesi kaldırılamadı: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up passwordless mode: %1</source>
        <translation>Parolasız kip kurulamadı: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove passwordless mode: %1</source>
        <translation>Parolasız kip kaldırılamadı: %1</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install one with: %1</source>
        <translation>ssh henüz Tor&apos;dan geçmiyor: SOCKS bilen bir netcat gerekiyor. Kurmak için: %1</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Uygulamaları Tor olmadan açmak için sıkı kipte bağlanın</translation>
    </message>
    <message>
        <source>No bridge answered a quick test, trying them all</source>
        <translation>Hızlı testte hiçbir köprü yanıt vermedi, tümü deneniyor</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Bu köprüler için Tor Browser ile gelen lyrebird gerekiyor. Almak için Köprüler&apos;in yanındaki “İndir” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Snowflake needs snowflake-client, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Snowflake için Tor Browser ile gelen snowflake-client gerekiyor. Almak için Köprüler&apos;in yanındaki “İndir” düğmesine tıklayın.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the latest Tor version from torproject.org.</source>
        <translation>En yeni Tor sürümü torproject.org sitesinden okunamadı.</translation>
    </message>
    <message>
        <source>The request timed out.</source>
        <translation>İstek zaman aşımına uğradı.</translation>
    </message>
    <message>
        <source>The server gave no HTTP answer.</source>
        <translation>Sunucu HTTP yanıtı vermedi.</translation>
    </message>
    <message>
        <source>The connection was lost before the download ended.</source>
        <translation>Bağlantı, indirme bitmeden koptu.</translation>
    </message>
    <message>
        <source>Not connected to Tor&apos;s control port.</source>
        <translation>Tor&apos;un denetim bağlantı noktasıyla bağlantı yok.</translation>
    </message>
    <message>
        <source>Tor closed the control connection.</source>
        <translation>Tor denetim bağlantısını kapattı.</translation>
    </message>
    <message>
        <source>A program other than Tor listens on Tor&apos;s control port.</source>
        <translation>Tor&apos;un denetim bağlantı noktasını Tor dışında bir program dinliyor.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t answer on its control port in time.</source>
        <translation>Tor, denetim bağlantı noktasında zamanında yanıt vermedi.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager or set its location in Settings.</source>
        <translation>Tor kurulu değil. Paket yöneticinizle kurun ya da konumunu Ayarlar&apos;da belirtin.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with Homebrew (brew install tor) or set its location in Settings.</source>
        <translation>Tor kurulu değil. Homebrew ile (brew install tor) kurun ya da konumunu Ayarlar&apos;da belirtin.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: polkit is not running on this system.</source>
        <translation>Yönetici erişimi istenemiyor: bu sistemde polkit çalışmıyor.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: no PolicyKit authentication agent is running in this session.</source>
        <translation>Yönetici erişimi istenemiyor: bu oturumda bir PolicyKit kimlik doğrulama aracısı çalışmıyor.</translation>
    </message>
    <message>
        <source>The password could not be checked: polkit accepts no password from this terminal. Run the command with sudo.</source>
        <translation>Parola denetlenemedi: polkit bu uçbirimden parola almıyor. Komutu sudo ile çalıştırın.</translation>
    </message>
    <message>
        <source>Couldn&apos;t fix DNS: %1</source>
        <translation>DNS onarılamadı: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t request a new identity: %1</source>
        <translation>Yeni kimlik istenemedi: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read circuits: %1</source>
        <translation>Devreler okunamadı: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the login-item setting: %1</source>
        <translation>Oturum açılışında başlatma ayarı değiştirilemedi: %1</translation>
    </message>
    <message>
        <source>Login items can&apos;t be changed here.</source>
        <translation>Oturum açılışında başlatılanlar burada değiştirilemez.</translation>
    </message>
    <message>
        <source>Move Veldmark to the Applications folder and open it from there first.</source>
        <translation>Veldmark&apos;ı önce Uygulamalar klasörüne taşıyıp oradan açın.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1.</source>
        <translation>%1 kaldırılamadı.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <translation>%1 yazılamadı: %2</translation>
    </message>
    <message>
        <source>Couldn&apos;t download bridge programs: %1</source>
        <translation>Köprü programları indirilemedi: %1</translation>
    </message>
    <message>
        <source>Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download again to also verify the Tor Project&apos;s signature.</source>
        <translation>%1 sürümü köprü programları HTTPS üzerinden indirilip kuruldu. Tor Projesi&apos;nin imzasını da doğrulamak için GnuPG kurun (%2) ve yeniden indirin.</translation>
    </message>
    <message>
        <source>The download&apos;s signature didn&apos;t verify, so it was discarded. %1</source>
        <translation>İndirilen dosyanın imzası doğrulanamadı, bu yüzden dosya atıldı. %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unpack the download. %1</source>
        <translation>İndirilen arşiv açılamadı. %1</translation>
    </message>
    <message>
        <source>Tor can&apos;t reach the bridge program: %1.</source>
        <translation>Tor köprü programına ulaşamıyor: %1.</translation>
    </message>
    <message>
        <source>Tor reports: %1 (%2).</source>
        <translation>Tor bildiriyor: %1 (%2).</translation>
    </message>
    <message>
        <source>Tor reports: %1.</source>
        <translation>Tor bildiriyor: %1.</translation>
    </message>
    <message>
        <source>Tor replied: %1</source>
        <translation>Tor yanıtladı: %1</translation>
    </message>
    <message>
        <source>Tor has trouble with the bridge program: %1</source>
        <translation>Tor, köprü programıyla sorun yaşıyor: %1</translation>
    </message>
    <message>
        <source>The bridge program printed something that Tor doesn&apos;t understand: &quot;%1&quot;.</source>
        <translation>Köprü programı Tor&apos;un anlamadığı bir şey yazdı: “%1”.</translation>
    </message>
    <message>
        <source>Using the %1 fastest of %2 bridges</source>
        <translation>%2 köprüden en hızlı %1 tanesi kullanılıyor</translation>
    </message>
    <message>
        <source>The %1 bridge type isn&apos;t supported yet.</source>
        <translation>%1 köprü türü henüz desteklenmiyor.</translation>
    </message>
    <message>
        <source>Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, install Tor Browser, or paste your own under Bridges → Custom….</source>
        <translation>Yerleşik %1 köprüleri Tor Browser ile gelir. Köprüler&apos;in yanındaki “İndir” düğmesine tıklayın, Tor Browser&apos;ı kurun ya da kendi köprülerinizi “Köprüler → Özel…” altına yapıştırın.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1.</source>
        <translation>Bazı DNS ayarları Veldmark&apos;ın dışından (bir VPN ya da /etc/resolver) geliyor ve hâlâ Tor&apos;u atlıyor: %1.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1. Strict mode&apos;s firewall blocks them.</source>
        <translation>Bazı DNS ayarları Veldmark&apos;ın dışından (bir VPN ya da /etc/resolver) geliyor ve hâlâ Tor&apos;u atlıyor: %1. Sıkı kipin güvenlik duvarı bunları engelliyor.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager (%1) or set its location in Settings.</source>
        <translation>Tor kurulu değil. Paket yöneticinizle (%1) kurun ya da konumunu Ayarlar&apos;da belirtin.</translation>
    </message>
    <message>
        <source>%1 is already being opened.</source>
        <translation>%1 zaten açılıyor.</translation>
    </message>
    <message>
        <source>A session is open, and its kill switch doesn&apos;t block traffic: its watcher couldn&apos;t put the rules back. Traffic may leave this computer directly. Restore the network, and connect again.</source>
        <translation>Açık bir oturum var ve acil kesme anahtarı trafiği engellemiyor: izleyicisi kuralları geri koyamadı. Trafik bu bilgisayardan doğrudan çıkabilir. Ağı geri yükleyip yeniden bağlanın.</translation>
    </message>
    <message>
        <source>The clock is behind: it shows %1, but the file %2 was written on %3. Tor needs a clock that is right to within minutes.</source>
        <translation>Saat geri kalmış: %1 gösteriyor, ama %2 dosyası şu tarihte yazılmış: %3. Tor için saatin birkaç dakikadan fazla şaşmaması gerekir.</translation>
    </message>
    <message>
        <source>The clock is set from the network. It shows %1.</source>
        <translation>Saat ağdan ayarlanıyor. Gösterdiği: %1.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether the clock is right: no time service seems to set it. It shows %1. Tor needs it right to within minutes.</source>
        <translation>Saatin doğru olup olmadığı bilinmiyor: onu ayarlayan bir zaman hizmeti görünmüyor. Gösterdiği: %1. Tor için saatin birkaç dakikadan fazla şaşmaması gerekir.</translation>
    </message>
    <message>
        <source>nftables isn&apos;t installed. Veldmark&apos;s firewall needs it.</source>
        <translation>nftables kurulu değil. Veldmark&apos;ın güvenlik duvarı için gerekli.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall, nftables, can be used.</source>
        <translation>Sistemin güvenlik duvarı nftables kullanılabiliyor.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall can&apos;t be used: %1</source>
        <translation>Sistemin güvenlik duvarı kullanılamıyor: %1</translation>
    </message>
    <message>
        <source>The running kernel (%1) has no nftables. After an upgrade of the kernel, restart the computer.</source>
        <translation>Çalışan çekirdekte (%1) nftables yok. Çekirdek yükseltildiyse bilgisayarı yeniden başlatın.</translation>
    </message>
    <message>
        <source>nftables is installed. Only root can tell whether the running kernel can use it.</source>
        <translation>nftables kurulu. Çalışan çekirdeğin onu kullanıp kullanamadığını yalnızca root bilebilir.</translation>
    </message>
    <message>
        <source>nftables is installed, and the kernel has it.</source>
        <translation>nftables kurulu ve çekirdek onu destekliyor.</translation>
    </message>
    <message>
        <source>This system has no control groups of version 2, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>Bu sistemde sürüm 2 denetim grupları yok, bu yüzden hiçbir uygulama Tor olmadan açılamaz ve acil kesme anahtarı Tor&apos;u yalnızca hesabından tanır. Geri kalan her şey çalışır.</translation>
    </message>
    <message>
        <source>The kernel (%1) is older than 5.13, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>Çekirdek (%1) 5.13 sürümünden eski, bu yüzden hiçbir uygulama Tor olmadan açılamaz ve acil kesme anahtarı Tor&apos;u yalnızca hesabından tanır. Geri kalan her şey çalışır.</translation>
    </message>
    <message>
        <source>Applications can be opened without Tor: control groups of version 2 are there.</source>
        <translation>Uygulamalar Tor olmadan açılabilir: sürüm 2 denetim grupları var.</translation>
    </message>
    <message>
        <source>No other firewall that Veldmark knows runs. Only root can read the rules themselves.</source>
        <translation>Veldmark&apos;ın tanıdığı başka bir güvenlik duvarı çalışmıyor. Kuralların kendilerini yalnızca root okuyabilir.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic that its rules don&apos;t allow, so Tor may not get through: %1.</source>
        <translation>Bu bilgisayardaki başka bir güvenlik duvarı, kurallarının izin vermediği giden trafiği engelliyor; bu yüzden Tor geçemeyebilir: %1.</translation>
    </message>
    <message>
        <source>Other programs set firewall rules here: %1. Veldmark leaves their rules alone. Rules that drop packets can block Tor.</source>
        <translation>Burada başka programlar güvenlik duvarı kuralları koyuyor: %1. Veldmark onların kurallarına dokunmaz. Paket düşüren kurallar Tor&apos;u engelleyebilir.</translation>
    </message>
    <message>
        <source>pkexec isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>pkexec kurulu değil, bu yüzden hiçbir pencere yönetici parolasını soramaz.</translation>
    </message>
    <message>
        <source>polkit isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>polkit kurulu değil, bu yüzden hiçbir pencere yönetici parolasını soramaz.</translation>
    </message>
    <message>
        <source>There is no desktop here on which a window could ask for the administrator&apos;s password. Use sudo.</source>
        <translation>Burada, yönetici parolasını soracak bir pencerenin açılabileceği bir masaüstü yok. sudo kullanın.</translation>
    </message>
    <message>
        <source>No known polkit agent, the program that asks for the password, runs in your session. Use sudo, or start an agent such as lxpolkit.</source>
        <translation>Oturumunuzda bilinen bir polkit aracısı (parolayı soran program) çalışmıyor. sudo kullanın ya da lxpolkit gibi bir aracı başlatın.</translation>
    </message>
    <message>
        <source>polkit is installed, and an agent that asks for the password runs in your session.</source>
        <translation>polkit kurulu ve oturumunuzda parolayı soran bir aracı çalışıyor.</translation>
    </message>
    <message>
        <source>Veldmark runs as root here and asks for no password.</source>
        <translation>Veldmark burada root olarak çalışıyor ve parola sormuyor.</translation>
    </message>
    <message>
        <source>Passwordless mode is set up.</source>
        <translation>Parolasız kip kurulu.</translation>
    </message>
    <message>
        <source>sudo isn&apos;t installed. Passwordless mode needs it.</source>
        <translation>sudo kurulu değil. Parolasız kip için gerekli.</translation>
    </message>
    <message>
        <source>sudo is installed. Only root can tell whether you may use it.</source>
        <translation>sudo kurulu. Onu kullanıp kullanamayacağınızı yalnızca root bilebilir.</translation>
    </message>
    <message>
        <source>sudo is installed, and you are in the group %1.</source>
        <translation>sudo kurulu ve şu gruptasınız: %1.</translation>
    </message>
    <message>
        <source>The program listens on IPv6. If it takes IPv6 alone, Tor can use the port.</source>
        <translation>Program IPv6 üzerinde dinliyor. Yalnızca IPv6 kabul ediyorsa Tor bu bağlantı noktasını kullanabilir.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by a program of the account %2.</source>
        <translation>Tor için gereken %1 numaralı bağlantı noktasını %2 hesabının bir programı kullanıyor.</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) runs. Veldmark stops it while it is connected and starts it again afterwards.</source>
        <translation>Sistemin kendi Tor hizmeti (%1) çalışıyor. Veldmark bağlıyken onu durdurur, sonra yeniden başlatır.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2 (process %3, account %4).</source>
        <translation>Tor için gereken %1 numaralı bağlantı noktasını şu program kullanıyor: %2 (süreç %3, hesap %4).</translation>
    </message>
    <message>
        <source>Veldmark&apos;s own Tor holds the ports 9050, 9051 and 293.</source>
        <translation>9050, 9051 ve 293 numaralı bağlantı noktalarını Veldmark&apos;ın kendi Tor&apos;u kullanıyor.</translation>
    </message>
    <message>
        <source>The ports that Tor needs (9050, 9051 and 293) are free.</source>
        <translation>Tor için gereken bağlantı noktaları (9050, 9051 ve 293) boş.</translation>
    </message>
    <message>
        <source>The location of Tor in the settings, %1, is not an executable program. Veldmark searches the usual places instead.</source>
        <translation>Ayarlarda Tor&apos;un konumu olarak verilen %1, çalıştırılabilir bir program değil. Veldmark bunun yerine olağan konumlarda arıyor.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed.</source>
        <translation>Tor kurulu değil.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t start, or isn&apos;t Tor: it prints no version.</source>
        <translation>%1 başlamıyor ya da Tor değil: sürümünü bildirmiyor.</translation>
    </message>
    <message>
        <source>Tor %1 is installed: %2.</source>
        <translation>Tor %1 kurulu: %2.</translation>
    </message>
    <message>
        <source>The program %1 is missing. Veldmark&apos;s helper needs it.</source>
        <translation>%1 programı eksik. Veldmark&apos;ın yardımcı programı için gerekli.</translation>
    </message>
    <message>
        <source>Every program that Veldmark&apos;s helper calls is installed.</source>
        <translation>Veldmark&apos;ın yardımcı programının çağırdığı tüm programlar kurulu.</translation>
    </message>
    <message>
        <source>The helper is missing. Reinstall Veldmark.</source>
        <translation>Yardımcı program eksik. Veldmark&apos;ı yeniden kurun.</translation>
    </message>
    <message>
        <source>Accounts other than root can change Veldmark&apos;s helper, %1, and with it what the administrator&apos;s password runs.</source>
        <translation>root dışındaki hesaplar Veldmark&apos;ın yardımcı programını (%1), böylece yönetici parolasının çalıştırdığı şeyi de değiştirebilir.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper, %1, is not installed: the account %2 can change it, and with it what the administrator&apos;s password runs.</source>
        <translation>Veldmark&apos;ın yardımcı programı (%1) kurulu değil: %2 hesabı onu, böylece yönetici parolasının çalıştırdığı şeyi de değiştirebilir.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper is installed, and only root can change it: %1.</source>
        <translation>Veldmark&apos;ın yardımcı programı kurulu ve onu yalnızca root değiştirebilir: %1.</translation>
    </message>
    <message>
        <source>The helper of passwordless mode belongs to another version. Set up passwordless mode again in Settings, General.</source>
        <translation>Parolasız kipin yardımcı programı başka bir sürüme ait. Parolasız kipi “Ayarlar → Genel” altında yeniden kurun.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridges need bridge programs where Tor is blocked, and none was found.</source>
        <translation>Köprüler kapalı. Tor&apos;un engellendiği yerde köprü programları gerekir, ama hiçbiri bulunamadı.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridge programs were found: %1.</source>
        <translation>Köprüler kapalı. Bulunan köprü programları: %1.</translation>
    </message>
    <message>
        <source>The chosen bridges can&apos;t be used. %1</source>
        <translation>Seçilen köprüler kullanılamıyor. %1</translation>
    </message>
    <message>
        <source>The chosen bridges (%1) can be used: %2.</source>
        <translation>Seçilen köprüler (%1) kullanılabiliyor: %2.</translation>
    </message>
    <message>
        <source>%1 manages DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>DNS&apos;i %1 yönetiyor. Veldmark bunu bağlıyken değiştirir, sonra geri yükler.</translation>
    </message>
    <message>
        <source>Veldmark wrote %1. It points DNS at Tor.</source>
        <translation>%1 dosyasını Veldmark yazdı. Dosya DNS&apos;i Tor&apos;a yönlendiriyor.</translation>
    </message>
    <message>
        <source>The file %1 is missing, so DNS may not work at all.</source>
        <translation>%1 dosyası eksik, bu yüzden DNS hiç çalışmayabilir.</translation>
    </message>
    <message>
        <source>A resolver on this computer answers DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>DNS sorgularını bu bilgisayardaki bir çözümleyici yanıtlıyor. Veldmark bunu bağlıyken değiştirir, sonra geri yükler.</translation>
    </message>
    <message>
        <source>No earlier session is left open.</source>
        <translation>Açık kalmış eski bir oturum yok.</translation>
    </message>
    <message>
        <source>A Tor of an earlier session still runs (process %1).</source>
        <translation>Önceki bir oturumun Tor&apos;u hâlâ çalışıyor (süreç %1).</translation>
    </message>
    <message>
        <source>A session is open: the network is set up for Tor, and Tor runs.</source>
        <translation>Açık bir oturum var: ağ Tor için ayarlı ve Tor çalışıyor.</translation>
    </message>
    <message>
        <source>The network is set up for Tor. It isn&apos;t known whether Tor still runs.</source>
        <translation>Ağ Tor için ayarlı. Tor&apos;un hâlâ çalışıp çalışmadığı buradan bilinemiyor.</translation>
    </message>
    <message>
        <source>The network is still set up for Tor from an earlier session, and no Tor runs. Connect again, or restore the network.</source>
        <translation>Ağ önceki bir oturumdan beri hâlâ Tor için ayarlı ve çalışan bir Tor yok. Yeniden bağlanın ya da ağı geri yükleyin.</translation>
    </message>
    <message>
        <source>A session is open, and it isn&apos;t known whether its kill switch blocks traffic: no watcher watches the rules. Restore the network, and connect again.</source>
        <translation>Açık bir oturum var ve acil kesme anahtarının trafiği engelleyip engellemediği bilinmiyor: kuralları izleyen yok. Ağı geri yükleyip yeniden bağlanın.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>İptal edildi.</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 of %2 MB (%3%)</source>
        <translation>%1 / %2 MB (yüzde %3)</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this computer. While connected, Veldmark stops the system&apos;s own Tor service.</source>
        <translation>Veldmark&apos;ın bu bilgisayarda Tor yönlendirmesini yönetmek için yönetici erişimine gereksinimi var. Veldmark bağlı olduğu sürece sistemin kendi Tor hizmetini durdurur.</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this Mac.</source>
        <translation>Veldmark&apos;ın bu Mac&apos;te Tor yönlendirmesini yönetmek için yönetici erişimine gereksinimi var.</translation>
    </message>
    <message>
        <source>The archive contains %1: %2</source>
        <translation>Arşivde %1 var: %2</translation>
    </message>
    <message>
        <source>a link that leads elsewhere</source>
        <translation>başka yere götüren bir bağlantı</translation>
    </message>
    <message>
        <source>a hard link</source>
        <translation>sabit bağlantı</translation>
    </message>
    <message>
        <source>an entry that is neither a file nor a folder</source>
        <translation>ne dosya ne klasör olan bir öge</translation>
    </message>
    <message>
        <source>a path that leads elsewhere</source>
        <translation>başka yere götüren bir yol</translation>
    </message>
    <message>
        <source>The file is empty or not an archive.</source>
        <translation>Dosya boş ya da bir arşiv değil.</translation>
    </message>
    <message>
        <source>The archive&apos;s list of files is ambiguous.</source>
        <translation>Arşivin dosya listesi belirsiz.</translation>
    </message>
    <message>
        <source>The archive contains too many files.</source>
        <translation>Arşivde çok fazla dosya var.</translation>
    </message>
    <message>
        <source>The archive&apos;s content is too large.</source>
        <translation>Arşivin içeriği çok büyük.</translation>
    </message>
    <message>
        <source>The archive&apos;s content could not be listed.</source>
        <translation>Arşivin içeriği listelenemedi.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make the folder %1: %2.</source>
        <translation>%1 klasörü oluşturulamadı: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1: %2.</source>
        <translation>%1 açılamadı: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make a folder beside %1: %2.</source>
        <translation>%1 yanında bir klasör oluşturulamadı: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2.</source>
        <translation>%1 yazılamadı: %2.</translation>
    </message>
    <message>
        <source>%1 didn&apos;t end within %2 minutes.</source>
        <translation>%1 programı %2 dakika içinde bitmedi.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load the Tor Browser signing key. %1</source>
        <translation>Tor Browser imzalama anahtarı yüklenemedi. %1</translation>
    </message>
    <message>
        <source>The server sent more than %1 can be.</source>
        <translation>Sunucu, olabileceğinden fazla veri gönderdi: %1.</translation>
    </message>
    <message>
        <source>the version index</source>
        <translation>sürüm dizini</translation>
    </message>
    <message>
        <source>the bridge programs</source>
        <translation>köprü programları</translation>
    </message>
    <message>
        <source>signature</source>
        <translation>imza</translation>
    </message>
    <message>
        <source>signing key</source>
        <translation>imzalama anahtarı</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>Kuruluyor…</translation>
    </message>
    <message>
        <source>No applications are installed.</source>
        <translation>Kurulu uygulama yok.</translation>
    </message>
    <message>
        <source>(not in the menu)</source>
        <translation>(menüde değil)</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>“%1” dosyası yok.</translation>
    </message>
    <message>
        <source>There is no application &quot;%1&quot;; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>“%1” uygulaması yok; “veldmarkctl apps” uygulamaları listeler.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be any of: %2. Give the path.</source>
        <translation>“%1” şunlardan herhangi biri olabilir: %2. Yolunu verin.</translation>
    </message>
    <message>
        <source>%1 needs a key: veldmarkctl %1 KEY.</source>
        <translation>%1 için bir anahtar gerekir: veldmarkctl %1 KEY.</translation>
    </message>
    <message>
        <source>%1 needs a key and a value: veldmarkctl %1 KEY VALUE.</source>
        <translation>%1 için bir anahtar ve bir değer gerekir: veldmarkctl %1 KEY VALUE.</translation>
    </message>
    <message>
        <source>A command is missing. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Komut eksik. “veldmarkctl help” komutları listeler.</translation>
    </message>
    <message>
        <source>Unknown command %1. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Bilinmeyen komut: %1. “veldmarkctl help” komutları listeler.</translation>
    </message>
    <message>
        <source>%1 has no option %2.</source>
        <translation>%1 komutunun %2 seçeneği yok.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t take %2.</source>
        <translation>%1 komutu şunu kabul etmez: %2.</translation>
    </message>
    <message>
        <source>usage: veldmarkctl COMMAND</source>
        <translation>kullanım: veldmarkctl COMMAND</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage,
3 Veldmark is not running, 4 Veldmark is already running.</source>
        <translation>Çıkış durumu: 0 yapıldı, 1 başarısız (neden standart hatada), 2 hatalı kullanım,
3 Veldmark çalışmıyor, 4 Veldmark zaten çalışıyor.</translation>
    </message>
    <message>
        <source>line %1 is not a bridge line: %2</source>
        <translation>satır %1 bir köprü satırı değil: %2</translation>
    </message>
    <message>
        <source>%1 too many, from line %2 on; at most %3 can be used</source>
        <translation>%1 köprü fazla, satır %2 ve sonrası; en çok %3 köprü kullanılabilir</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programlar</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>bulunamadı</translation>
    </message>
    <message>
        <source>doesn&apos;t say which transports it serves</source>
        <translation>hangi taşıyıcıları sunduğunu bildirmiyor</translation>
    </message>
    <message>
        <source>serves %1</source>
        <translation>sunduğu: %1</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Yerleşik köprüler</translation>
    </message>
    <message>
        <source>Built-in bridges, from %1</source>
        <translation>Yerleşik köprüler, kaynak: %1</translation>
    </message>
    <message>
        <source>none; get some with: veldmarkctl download-transports</source>
        <translation>yok; almak için: veldmarkctl download-transports</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>imza doğrulandı</translation>
    </message>
    <message>
        <source>signature not verified</source>
        <translation>imza doğrulanmadı</translation>
    </message>
    <message>
        <source>not downloaded</source>
        <translation>indirilmedi</translation>
    </message>
    <message>
        <source>Your own bridges</source>
        <translation>Kendi köprüleriniz</translation>
    </message>
    <message>
        <source>%1 valid</source>
        <translation>geçerli: %1</translation>
    </message>
    <message>
        <source>Installed Tor Expert Bundle %1, signature verified.</source>
        <translation>Tor Expert Bundle %1 kuruldu, imza doğrulandı.</translation>
    </message>
    <message>
        <source>Veldmark isn&apos;t running. Start it with: veldmarkctl run --connect</source>
        <translation>Veldmark çalışmıyor. Başlatmak için: veldmarkctl run --connect</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;. Fields: %2.</source>
        <translation>“%1” alanı yok. Alanlar: %2.</translation>
    </message>
    <message>
        <source>list the commands</source>
        <translation>komutları listeler</translation>
    </message>
    <message>
        <source>good</source>
        <translation>iyi</translation>
    </message>
    <message>
        <source>note</source>
        <translation>not</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>bilinmiyor</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>sorun</translation>
    </message>
    <message>
        <source>A connect can work.</source>
        <translation>Bağlantı kurulabilir.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work yet.</source>
        <translation>Henüz bağlantı kurulamaz.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work until each &quot;problem&quot; is fixed.</source>
        <translation>Her “sorun” giderilmeden bağlantı kurulamaz.</translation>
    </message>
    <message>
        <source>proxy: apps that ignore the system proxy are not covered</source>
        <translation>vekil sunucu: sistem vekil sunucusunu yok sayan uygulamalar kapsam dışı</translation>
    </message>
    <message>
        <source>strict: only Tor&apos;s traffic leaves</source>
        <translation>sıkı: yalnızca Tor&apos;un trafiği dışarı çıkar</translation>
    </message>
    <message>
        <source>strict</source>
        <translation>sıkı</translation>
    </message>
    <message>
        <source>blocks traffic, since %1</source>
        <translation>trafiği engelliyor (%1 anından beri)</translation>
    </message>
    <message>
        <source>blocks traffic; put back at %1 after another program had removed it</source>
        <translation>trafiği engelliyor; başka bir program kaldırmıştı, yeniden konduğu an: %1</translation>
    </message>
    <message>
        <source>NOT BLOCKING since %1: traffic may leave this computer directly</source>
        <translation>ENGELLEMİYOR (%1 anından beri): trafik bu bilgisayardan doğrudan çıkabilir</translation>
    </message>
    <message>
        <source>isn&apos;t known to block traffic, since %1</source>
        <translation>trafiği engelleyip engellemediği bilinmiyor (%1 anından beri)</translation>
    </message>
    <message>
        <source>not checked yet</source>
        <translation>henüz denetlenmedi</translation>
    </message>
    <message>
        <source>the check service didn&apos;t answer through Tor</source>
        <translation>denetim hizmeti Tor üzerinden yanıt vermedi</translation>
    </message>
    <message>
        <source>%1, a Tor exit</source>
        <translation>%1, bir Tor çıkışı</translation>
    </message>
    <message>
        <source>%1, NOT a Tor exit</source>
        <translation>%1, Tor çıkışı DEĞİL</translation>
    </message>
    <message>
        <source>open; it shows the address %1</source>
        <translation>açık, engellenmiyor; gösterdiği adres: %1</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>engelleniyor</translation>
    </message>
    <message>
        <source>no answer, but it isn&apos;t known whether the kill switch blocks it</source>
        <translation>yanıt yok, ama acil kesme anahtarının bu yolu engelleyip engellemediği bilinmiyor</translation>
    </message>
    <message>
        <source>no answer, but proxy mode doesn&apos;t block it</source>
        <translation>yanıt yok, ama vekil sunucu kipi bu yolu engellemez</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>denetleniyor…</translation>
    </message>
    <message>
        <source>inconclusive</source>
        <translation>anlaşılamadı</translation>
    </message>
    <message>
        <source>can go around Tor via: %1</source>
        <translation>şunun üzerinden Tor&apos;u atlayabilir: %1</translation>
    </message>
    <message>
        <source>a test lookup went through Tor</source>
        <translation>bir test sorgusu Tor&apos;dan geçti</translation>
    </message>
    <message>
        <source>testing…</source>
        <translation>test ediliyor…</translation>
    </message>
    <message>
        <source>settings point at Tor, but a test lookup couldn&apos;t be confirmed</source>
        <translation>ayarlar Tor&apos;u gösteriyor, ama bir test sorgusu doğrulanamadı</translation>
    </message>
    <message>
        <source>not tested yet</source>
        <translation>henüz test edilmedi</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Kip</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Çıkış</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Gecikme</translation>
    </message>
    <message>
        <source>%1 ms through Tor</source>
        <translation>Tor üzerinden %1 ms</translation>
    </message>
    <message>
        <source>Direct path</source>
        <translation>Doğrudan yol</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafik</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>%1 alındı, %2 gönderildi</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Köprüler</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Yapılacak</translation>
    </message>
    <message>
        <source>nothing; veldmarkctl restore would end that session</source>
        <translation>hiçbir şey; veldmarkctl restore o oturumu sona erdirir</translation>
    </message>
    <message>
        <source>Kill switch</source>
        <translation>Acil kesme anahtarı</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Neden</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Sorun</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Uçbirim</translation>
    </message>
    <message>
        <source>No circuits yet.</source>
        <translation>Henüz devre yok.</translation>
    </message>
    <message>
        <source>Ready. Connect with: veldmarkctl connect</source>
        <translation>Hazır. Bağlanmak için: veldmarkctl connect</translation>
    </message>
    <message>
        <source>Still restoring your network, one moment…</source>
        <translation>Ağınız hâlâ geri yükleniyor, bir dakika…</translation>
    </message>
    <message>
        <source>Stopping as soon as Tor has been started…</source>
        <translation>Tor başlatılır başlatılmaz durdurulacak…</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Restore it with: %1</source>
        <translation>Ağ hâlâ Tor için ayarlı. Geri yüklemek için: %1</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Press Ctrl-C to try again.</source>
        <translation>Ağ hâlâ Tor için ayarlı. Yeniden denemek için Ctrl-C tuşlarına basın.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>Press Ctrl-C to disconnect.</source>
        <translation>Bağlantıyı kesmek için Ctrl-C tuşlarına basın.</translation>
    </message>
    <message>
        <source>A command to Tor can&apos;t contain a line break or a NUL.</source>
        <translation>Tor&apos;a verilen bir komut satır sonu ya da NUL içeremez.</translation>
    </message>
    <message>
        <source>Tor sent a line of more than 1 MiB on its control port.</source>
        <translation>Tor, denetim bağlantı noktasında 1 MiB&apos;den uzun bir satır gönderdi.</translation>
    </message>
    <message>
        <source>Tor sent a reply of more than 64 MiB on its control port.</source>
        <translation>Tor, denetim bağlantı noktasında 64 MiB&apos;den büyük bir yanıt gönderdi.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>“%1” ne true ne de false.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a JSON array of strings.</source>
        <translation>“%1” dizgelerden oluşan bir JSON dizisi değil.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a bridge choice: off, obfs4, snowflake, meek or custom.</source>
        <translation>“%1” bir köprü seçimi değil: off, obfs4, snowflake, meek ya da custom.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;. Settings: %2.</source>
        <translation>“%1” ayarı yok. Ayarlar: %2.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes. (%1)</source>
        <translation>Tor bağlantıyı 5 dakika içinde tamamlayamadı. (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an exit country: two lower-case letters such as &quot;de&quot;, or nothing for any.</source>
        <translation>“%1” bir çıkış ülkesi değil: “de” gibi iki küçük harf olmalı ya da herhangi bir ülke için boş bırakılmalı.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an application: an absolute path that ends in &quot;%2&quot;.</source>
        <translation>“%1” bir uygulama değil: “%2” ile biten mutlak bir yol olmalı.</translation>
    </message>
    <message>
        <source>strict mode with the kill switch, else proxy mode</source>
        <translation>acil kesme anahtarlı sıkı kip, yoksa vekil sunucu kipi</translation>
    </message>
    <message>
        <source>strict mode lets the local network through</source>
        <translation>sıkı kip yerel ağa izin verir</translation>
    </message>
    <message>
        <source>two lower-case letters, or nothing for any</source>
        <translation>iki küçük harf ya da herhangi bir ülke için boş</translation>
    </message>
    <message>
        <source>the path of the tor to use, or nothing to search for tor</source>
        <translation>kullanılacak tor&apos;un yolu ya da aranması için boş</translation>
    </message>
    <message>
        <source>which bridges</source>
        <translation>hangi köprüler</translation>
    </message>
    <message>
        <source>your own bridge lines, as typed</source>
        <translation>kendi köprü satırlarınız, yazıldığı gibi</translation>
    </message>
    <message>
        <source>paths of applications that may be opened without Tor</source>
        <translation>Tor olmadan açılabilecek uygulamaların yolları</translation>
    </message>
    <message>
        <source>connect when Veldmark starts</source>
        <translation>Veldmark başlayınca bağlanır</translation>
    </message>
    <message>
        <source>test bridges before connecting, look for a faster path afterwards</source>
        <translation>bağlanmadan önce köprüleri test eder, sonra daha hızlı bir yol arar</translation>
    </message>
    <message>
        <source>command-line tools go through Tor while connected</source>
        <translation>bağlıyken komut satırı araçları Tor&apos;dan geçer</translation>
    </message>
    <message>
        <source>with your package manager</source>
        <translation>paket yöneticinizle</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Başlıyor…</translation>
    </message>
    <message>
        <source>&quot;set&quot; needs a &quot;key&quot; and a &quot;value&quot;, both strings.</source>
        <translation>“set” için bir “key” ve bir “value” gerekir, ikisi de dizge.</translation>
    </message>
    <message>
        <source>Already connected or connecting; &quot;veldmarkctl status&quot; says more.</source>
        <translation>Zaten bağlı ya da bağlanıyor; ayrıntı için: “veldmarkctl status”.</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>Şimdi değil: %1</translation>
    </message>
    <message>
        <source>A check is already running.</source>
        <translation>Zaten bir denetim sürüyor.</translation>
    </message>
    <message>
        <source>There is no circuit &quot;%1&quot;.</source>
        <translation>“%1” devresi yok.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t close circuit %1.</source>
        <translation>Tor şu devreyi kapatmadı: %1.</translation>
    </message>
    <message>
        <source>&quot;launch&quot; needs an &quot;app&quot;, an absolute path.</source>
        <translation>“launch” için bir “app”, yani mutlak bir yol gerekir.</translation>
    </message>
    <message>
        <source>Veldmark stopped before it had answered.</source>
        <translation>Veldmark yanıt vermeden durdu.</translation>
    </message>
    <message>
        <source>Veldmark is already running (process %1).</source>
        <translation>Veldmark zaten çalışıyor (süreç %1).</translation>
    </message>
    <message>
        <source>%1 must be a folder of your own with mode 0700: the control socket goes there.</source>
        <translation>%1 size ait ve 0700 izinli bir klasör olmalı: denetim soketi oraya konur.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1/lock.</source>
        <translation>%1/lock yazılamadı.</translation>
    </message>
    <message>
        <source>Couldn&apos;t listen on %1: %2.</source>
        <translation>%1 üzerinde dinlenemiyor: %2.</translation>
    </message>
    <message>
        <source>A command is a JSON object on one line.</source>
        <translation>Bir komut, tek satırda bir JSON nesnesidir.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Bilinmeyen komut: “%1”.</translation>
    </message>
    <message>
        <source>Not connected.</source>
        <translation>Bağlı değil.</translation>
    </message>
    <message>
        <source>The session has ended: %1</source>
        <translation>Oturum sona erdi: %1</translation>
    </message>
    <message>
        <source>as JSON</source>
        <translation>JSON olarak</translation>
    </message>
    <message>
        <source>connect at once</source>
        <translation>hemen bağlanır</translation>
    </message>
    <message>
        <source>run Veldmark here, in the foreground; Ctrl-C disconnects</source>
        <translation>Veldmark&apos;ı burada, ön planda çalıştırır; Ctrl-C bağlantıyı keser</translation>
    </message>
    <message>
        <source>go on until Ctrl-C</source>
        <translation>Ctrl-C&apos;ye dek sürer</translation>
    </message>
    <message>
        <source>print the connection&apos;s state; --watch goes on until Ctrl-C</source>
        <translation>bağlantının durumunu yazdırır; --watch Ctrl-C&apos;ye dek sürer</translation>
    </message>
    <message>
        <source>connect the running instance to Tor</source>
        <translation>çalışan Veldmark&apos;ı Tor&apos;a bağlar</translation>
    </message>
    <message>
        <source>restore the network and stop Tor</source>
        <translation>ağı geri yükler ve Tor&apos;u durdurur</translation>
    </message>
    <message>
        <source>restore the network and stop Tor, also after a crash</source>
        <translation>ağı geri yükler ve Tor&apos;u durdurur, bir çökmeden sonra da</translation>
    </message>
    <message>
        <source>check the exit address, the direct path and DNS now</source>
        <translation>çıkış adresini, doğrudan yolu ve DNS&apos;i şimdi denetler</translation>
    </message>
    <message>
        <source>point the system&apos;s DNS settings at Tor again</source>
        <translation>sistemin DNS ayarlarını yeniden Tor&apos;a yönlendirir</translation>
    </message>
    <message>
        <source>Tor&apos;s circuits and the sites on them</source>
        <translation>Tor&apos;un devreleri ve üzerlerindeki siteler</translation>
    </message>
    <message>
        <source>close a circuit; its sites get a fresh path on their next request</source>
        <translation>bir devreyi kapatır; siteleri bir sonraki istekte yeni bir yol alır</translation>
    </message>
    <message>
        <source>close-circuit needs a circuit&apos;s number; &quot;veldmarkctl circuits&quot; shows them.</source>
        <translation>close-circuit için bir devre numarası gerekir; “veldmarkctl circuits” gösterir.</translation>
    </message>
    <message>
        <source>new circuits for everything</source>
        <translation>her şey için yeni devreler</translation>
    </message>
    <message>
        <source>warnings and errors only</source>
        <translation>yalnızca uyarılar ve hatalar</translation>
    </message>
    <message>
        <source>Tor&apos;s log; --problems shows warnings and errors only</source>
        <translation>Tor&apos;un günlüğü; --problems yalnızca uyarıları ve hataları gösterir</translation>
    </message>
    <message>
        <source>the bridge programs and built-in bridges that were found, and
which of your own bridge lines are not valid</source>
        <translation>bulunan köprü programları ve yerleşik köprüler ile kendi köprü
satırlarınızdan geçersiz olanlar</translation>
    </message>
    <message>
        <source>fetch the Tor Project&apos;s bridge programs and built-in bridges</source>
        <translation>Tor Projesi&apos;nin köprü programlarını ve yerleşik köprülerini indirir</translation>
    </message>
    <message>
        <source>the installed applications; * marks those in the setting &quot;bypassApps&quot;</source>
        <translation>kurulu uygulamalar; * işareti “bypassApps” ayarındakileri gösterir</translation>
    </message>
    <message>
        <source>open an application without Tor, with your own address; needs strict mode.
APP is a name from &quot;apps&quot;, the file name of its desktop entry, or the path
of an entry or a program. Running copies are asked to quit first</source>
        <translation>bir uygulamayı Tor olmadan, kendi adresinizle açar; sıkı kip gerekir.
APP: “apps” listesinden bir ad, masaüstü girdisinin dosya adı ya da bir girdinin
veya programın yolu. Önce çalışan kopyaların kapanması istenir</translation>
    </message>
    <message>
        <source>launch needs an application; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>launch için bir uygulama gerekir; “veldmarkctl apps” uygulamaları listeler.</translation>
    </message>
    <message>
        <source>check what a connect needs on this computer, what blocks it and how to fix
it. Changes nothing; the exit status is 0 when a connect can work</source>
        <translation>bu bilgisayarı inceler: bağlantı için ne gerekir, ne engel olur, ne giderir.
Hiçbir şeyi değiştirmez; bağlantı kurulabiliyorsa 0 ile biter</translation>
    </message>
    <message>
        <source>print a field of &quot;status --json&quot;</source>
        <translation>“status --json” çıktısının bir alanını yazdırır</translation>
    </message>
    <message>
        <source>change a setting; most of them only while not connected</source>
        <translation>bir ayarı değiştirir; çoğu yalnızca bağlı değilken</translation>
    </message>
    <message>
        <source>Can&apos;t read Tor&apos;s log</source>
        <translation>Tor günlüğü okunamıyor</translation>
    </message>
    <message>
        <source>The log files in %1 aren&apos;t readable by your account. Reconnect once with this version of Veldmark to fix their permissions.</source>
        <translation>Hesabınız şu konumdaki günlük dosyalarını okuyamıyor: %1. İzinleri düzeltmek için Veldmark&apos;ın bu sürümüyle bir kez yeniden bağlanın.</translation>
    </message>
    <message>
        <source>No log yet</source>
        <translation>Henüz günlük yok</translation>
    </message>
    <message>
        <source>Connect, and Tor&apos;s messages appear here as it starts. If Tor fails to start, the reason shows up here.</source>
        <translation>Bağlandığınızda Tor&apos;un iletileri, Tor başlarken burada görünür. Tor başlatılamazsa nedeni burada yazar.</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>Eşleşme yok</translation>
    </message>
    <message>
        <source>No lines contain “%1”</source>
        <translation>“%1” içeren satır yok</translation>
    </message>
    <message>
        <source>No warnings or errors. Tor is happy.</source>
        <translation>Uyarı ya da hata yok. Tor&apos;un keyfi yerinde.</translation>
    </message>
    <message>
        <source>The bridge program %1 reports: %2</source>
        <translation>%1 köprü programı bildiriyor: %2</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly.</source>
        <translation>%1 köprü programı beklenmedik biçimde sona erdi.</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending.</source>
        <translation>%1 köprü programı sürekli sona eriyor.</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly (exit status %2).</source>
        <translation>%1 köprü programı beklenmedik biçimde sona erdi (çıkış durumu %2).</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending (exit status %2).</source>
        <translation>%1 köprü programı sürekli sona eriyor (çıkış durumu %2).</translation>
    </message>
    <message>
        <source>It said: &quot;%1&quot;.</source>
        <translation>Bildirdiği: “%1”.</translation>
    </message>
    <message>
        <source>The program is quitting.</source>
        <translation>Program kapanıyor.</translation>
    </message>
    <message>
        <source>Veldmark replaces the running strict session. The new session may protect you less.</source>
        <translation>Çalışmakta olan sıkı oturumun yerine yenisi konur; yenisi sizi daha az koruyabilir.</translation>
    </message>
    <message>
        <source>Veldmark wants to run %1 as a part of Tor. No package of the system installed it. Its SHA-256 is %2.</source>
        <translation>Veldmark, %1 programını Tor&apos;un bir parçası olarak çalıştırmak istiyor. Program, sistemin hiçbir paketinden gelmiyor. SHA-256 özeti: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be created: %2.</source>
        <translation>%1 oluşturulamıyor: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed: %2.</source>
        <translation>%1 kaldırılamıyor: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>%1 okunamıyor: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2.</source>
        <translation>%1 yazılamıyor: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 bir dosya değil.</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 salt okunur.</translation>
    </message>
    <message>
        <source>%1 was changed by another program just now.</source>
        <translation>%1 az önce başka bir program tarafından değiştirildi.</translation>
    </message>
    <message>
        <source>%1 belongs to another user or group.</source>
        <translation>%1 başka bir kullanıcıya ya da gruba ait.</translation>
    </message>
    <message>
        <source>A bridge line is not valid.</source>
        <translation>Bir köprü satırı geçersiz.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your network settings.</source>
        <translation>Önceki ağ ayarlarının bir kaydı bozulmuş (%1). Ağdaki engel kaldırıldı; ağ ayarlarınızı denetleyin.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your proxy settings.</source>
        <translation>Önceki ağ ayarlarının bir kaydı bozulmuş (%1). Ağdaki engel kaldırıldı; vekil sunucu ayarlarınızı denetleyin.</translation>
    </message>
    <message>
        <source>An administrator password is needed to approve %1.</source>
        <translation>%1 programını onaylamak için bir yönetici parolası gerekiyor.</translation>
    </message>
    <message>
        <source>An administrator password is needed to change the running strict session.</source>
        <translation>Çalışmakta olan sıkı oturumu değiştirmek için bir yönetici parolası gerekiyor.</translation>
    </message>
    <message>
        <source>An administrator password is needed to open an application without Tor.</source>
        <translation>Bir uygulamayı Tor olmadan açmak için bir yönetici parolası gerekiyor.</translation>
    </message>
    <message>
        <source>An administrator password is needed to set this up.</source>
        <translation>Bunu kurmak için bir yönetici parolası gerekiyor.</translation>
    </message>
    <message>
        <source>Another program (process %1) has started a session meanwhile. That session was left alone.</source>
        <translation>Bu arada başka bir program (süreç %1) bir oturum başlattı. O oturuma dokunulmadı.</translation>
    </message>
    <message>
        <source>Another run of the helper is still working. Try again in a moment.</source>
        <translation>Yardımcı program hâlâ başka bir işi yürütüyor. Birazdan yeniden deneyin.</translation>
    </message>
    <message>
        <source>Applications are not opened as root.</source>
        <translation>Uygulamalar root olarak açılmaz.</translation>
    </message>
    <message>
        <source>The helper opens applications only for the user who asks.</source>
        <translation>Yardımcı program, uygulamaları yalnızca isteyen kullanıcı için açar.</translation>
    </message>
    <message>
        <source>Applications cannot be opened without Tor on this system.</source>
        <translation>Bu sistemde uygulamalar Tor olmadan açılamaz.</translation>
    </message>
    <message>
        <source>More than %1 bridges were given.</source>
        <translation>Verilen köprü sayısı %1 sınırını aşıyor.</translation>
    </message>
    <message>
        <source>Passwordless mode can be set up only for the user who asks.</source>
        <translation>Parolasız kip yalnızca isteyen kullanıcı için kurulabilir.</translation>
    </message>
    <message>
        <source>Another program is changing the firewall. Try again in a moment.</source>
        <translation>Güvenlik duvarını şu anda başka bir program değiştiriyor. Birazdan yeniden deneyin.</translation>
    </message>
    <message>
        <source>The DNS servers of systemd-resolved cannot be changed.</source>
        <translation>systemd-resolved DNS sunucuları değiştirilemiyor.</translation>
    </message>
    <message>
        <source>The DNS settings cannot be changed.</source>
        <translation>DNS ayarları değiştirilemiyor.</translation>
    </message>
    <message>
        <source>The DNS settings could not be put back.</source>
        <translation>DNS ayarları eski hâline getirilemedi.</translation>
    </message>
    <message>
        <source>The account %1 cannot be created.</source>
        <translation>%1 hesabı oluşturulamıyor.</translation>
    </message>
    <message>
        <source>The account %1 has no valid user id.</source>
        <translation>%1 hesabının geçerli bir kullanıcı numarası yok.</translation>
    </message>
    <message>
        <source>The account %1 must be neither root&apos;s nor the caller&apos;s.</source>
        <translation>%1 hesabı ne root hesabı ne de istekte bulunan kullanıcının hesabı olmalı.</translation>
    </message>
    <message>
        <source>The application could not be started.</source>
        <translation>Uygulama başlatılamadı.</translation>
    </message>
    <message>
        <source>The caller&apos;s user id is not a number.</source>
        <translation>Çağıranın kullanıcı numarası bir sayı değil.</translation>
    </message>
    <message>
        <source>The control group for Tor cannot be made.</source>
        <translation>Tor için denetim grubu oluşturulamıyor.</translation>
    </message>
    <message>
        <source>The control group of the applications without Tor could not be removed.</source>
        <translation>Tor olmadan açılan uygulamaların denetim grubu kaldırılamadı.</translation>
    </message>
    <message>
        <source>The copy of the program cannot be put into %1.</source>
        <translation>Programın kopyası şuraya konamıyor: %1.</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings cannot be changed.</source>
        <translation>Masaüstünün vekil sunucu ayarları değiştirilemiyor.</translation>
    </message>
    <message>
        <source>The exit country is not a two-letter code.</source>
        <translation>Çıkış ülkesi iki harfli bir kod değil.</translation>
    </message>
    <message>
        <source>The file %1 cannot be made.</source>
        <translation>%1 dosyası oluşturulamıyor.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>%1 dosyası okunamıyor.</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed.</source>
        <translation>%1 dosyası kaldırılamıyor.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>%1 dosyası yazılamıyor.</translation>
    </message>
    <message>
        <source>The file %1 could not be put back.</source>
        <translation>%1 dosyası eski hâline getirilemedi.</translation>
    </message>
    <message>
        <source>The files in %1 cannot be removed.</source>
        <translation>Şu konumdaki dosyalar kaldırılamıyor: %1.</translation>
    </message>
    <message>
        <source>The firewall rules cannot be read, so nothing was done.</source>
        <translation>Güvenlik duvarı kuralları okunamıyor, bu yüzden hiçbir şey yapılmadı.</translation>
    </message>
    <message>
        <source>The firewall cannot be switched on (%1).</source>
        <translation>Güvenlik duvarı etkinleştirilemiyor (%1).</translation>
    </message>
    <message>
        <source>The firewall cannot end the earlier connections.</source>
        <translation>Güvenlik duvarı önceki bağlantıları sona erdiremiyor.</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off (%1).</source>
        <translation>Acil kesme anahtarı kapatılamadı (%1).</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off, because another program is changing the firewall.</source>
        <translation>Acil kesme anahtarı kapatılamadı, çünkü şu anda başka bir program güvenlik duvarını değiştiriyor.</translation>
    </message>
    <message>
        <source>The firewall does not hold the rules that were loaded.</source>
        <translation>Yüklenen kurallar güvenlik duvarında yok.</translation>
    </message>
    <message>
        <source>The firewall gave no token.</source>
        <translation>Güvenlik duvarı bir belirteç vermedi.</translation>
    </message>
    <message>
        <source>The firewall leaves out the network device %1 (&quot;set skip&quot; in /etc/pf.conf), where nothing would be blocked.</source>
        <translation>Güvenlik duvarı %1 ağ aygıtını kapsam dışı bırakıyor (/etc/pf.conf içindeki “set skip”); orada hiçbir şey engellenmez.</translation>
    </message>
    <message>
        <source>The firewall rules were not accepted (%1).</source>
        <translation>Güvenlik duvarı kuralları kabul edilmedi (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s devices cannot be read.</source>
        <translation>Güvenlik duvarının aygıtları okunamıyor.</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be changed (%1).</source>
        <translation>Güvenlik duvarının ana kuralları değiştirilemiyor (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be read.</source>
        <translation>Güvenlik duvarının ana kuralları okunamıyor.</translation>
    </message>
    <message>
        <source>The firewall&apos;s state cannot be read.</source>
        <translation>Güvenlik duvarının durumu okunamıyor.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be changed.</source>
        <translation>%1 klasörü değiştirilemiyor.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>%1 klasörü oluşturulamıyor.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>%1 klasörüne yazılamıyor.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it and those above it.</source>
        <translation>%1 klasörü güvenli değil: onun ve üstündeki klasörlerin sahibi yalnızca root olmalı, bunlara yalnızca root yazabilmeli.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it.</source>
        <translation>%1 klasörü güvenli değil: sahibi yalnızca root olmalı, ona yalnızca root yazabilmeli.</translation>
    </message>
    <message>
        <source>The folder /etc/sudoers.d is missing or not safe.</source>
        <translation>/etc/sudoers.d klasörü yok ya da güvenli değil.</translation>
    </message>
    <message>
        <source>The folders above Veldmark&apos;s are not safe: only root may own or write them.</source>
        <translation>Veldmark klasörünün üstündeki klasörler güvenli değil: sahipleri yalnızca root olmalı, bunlara yalnızca root yazabilmeli.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read, so nothing was done.</source>
        <translation>%1 altındaki klasörler okunamıyor, bu yüzden hiçbir şey yapılmadı.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read.</source>
        <translation>%1 altındaki klasörler okunamıyor.</translation>
    </message>
    <message>
        <source>The former network settings could not all be restored.</source>
        <translation>Önceki ağ ayarlarının bir kısmı geri yüklenemedi.</translation>
    </message>
    <message>
        <source>The hashed control password is not valid.</source>
        <translation>Denetim parolasının özeti geçersiz.</translation>
    </message>
    <message>
        <source>The helper could not be copied to %1.</source>
        <translation>Yardımcı program şuraya kopyalanamadı: %1.</translation>
    </message>
    <message>
        <source>The helper must run as root.</source>
        <translation>Yardımcı program root olarak çalışmalı.</translation>
    </message>
    <message>
        <source>The helper stopped unexpectedly.</source>
        <translation>Yardımcı program beklenmedik biçimde durdu.</translation>
    </message>
    <message>
        <source>The helper was given an option that it does not know.</source>
        <translation>Yardımcı programa bilmediği bir seçenek verildi.</translation>
    </message>
    <message>
        <source>The helper does not know this verb.</source>
        <translation>Yardımcı program bu komutu tanımıyor.</translation>
    </message>
    <message>
        <source>The record of the former network settings cannot be written.</source>
        <translation>Önceki ağ ayarlarının kaydı yazılamıyor.</translation>
    </message>
    <message>
        <source>The kill switch is not on, so no application needs to bypass it.</source>
        <translation>Acil kesme anahtarı açık değil, bu yüzden hiçbir uygulamanın onu atlaması gerekmez.</translation>
    </message>
    <message>
        <source>The launcher could not be copied to %1.</source>
        <translation>Başlatıcı şuraya kopyalanamadı: %1.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be opened.</source>
        <translation>%1 kilit dosyası açılamıyor.</translation>
    </message>
    <message>
        <source>The lock file %1 is a link, so nothing was done.</source>
        <translation>%1 kilit dosyası bir sembolik bağlantı, bu yüzden hiçbir şey yapılmadı.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back.</source>
        <translation>Ağdaki engel kaldırıldı, ama systemd-resolved DNS sunucuları eski hâline getirilemedi.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back. Try: systemctl restart %1.</source>
        <translation>Ağdaki engel kaldırıldı, ama systemd-resolved DNS sunucuları eski hâline getirilemedi. Şunu deneyin: systemctl restart %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the desktop&apos;s proxy settings could not be put back.</source>
        <translation>Ağdaki engel kaldırıldı, ama masaüstünün vekil sunucu ayarları eski hâline getirilemedi.</translation>
    </message>
    <message>
        <source>The network is open again, but the journal in %1 cannot be cleared.</source>
        <translation>Ağdaki engel kaldırıldı, ama %1 içindeki geri yükleme kaydı temizlenemiyor.</translation>
    </message>
    <message>
        <source>The network is open again, but the session marker cannot be removed from %1.</source>
        <translation>Ağdaki engel kaldırıldı, ama oturum işareti şuradan kaldırılamıyor: %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the system&apos;s own Tor service could not be started again. Try: systemctl start %1.</source>
        <translation>Ağdaki engel kaldırıldı, ama sistemin kendi Tor hizmeti yeniden başlatılamadı. Şunu deneyin: systemctl start %1.</translation>
    </message>
    <message>
        <source>The network is open, but pf could not be released.</source>
        <translation>Ağdaki engel kaldırıldı, ama pf serbest bırakılamadı.</translation>
    </message>
    <message>
        <source>The network is open, but the firewall&apos;s main rules could not be put back.</source>
        <translation>Ağdaki engel kaldırıldı, ama güvenlik duvarının ana kuralları eski hâline getirilemedi.</translation>
    </message>
    <message>
        <source>The network location %1 still has Veldmark&apos;s settings. Choose it and disconnect again.</source>
        <translation>%1 ağ konumunda hâlâ Veldmark&apos;ın ayarları var. Onu seçip bağlantıyı yeniden kesin.</translation>
    </message>
    <message>
        <source>The network settings cannot be read.</source>
        <translation>Ağ ayarları okunamıyor.</translation>
    </message>
    <message>
        <source>The network stays blocked until you disconnect.</source>
        <translation>Siz bağlantıyı kesene dek ağ engellenmiş kalır.</translation>
    </message>
    <message>
        <source>The notes of what to restore cannot be read.</source>
        <translation>Neyin geri yükleneceğini belirten notlar okunamıyor.</translation>
    </message>
    <message>
        <source>The option %1 needs a value.</source>
        <translation>%1 seçeneği için bir değer gerekiyor.</translation>
    </message>
    <message>
        <source>The option %1 was given twice.</source>
        <translation>%1 seçeneği iki kez verildi.</translation>
    </message>
    <message>
        <source>The option --app is missing.</source>
        <translation>--app seçeneği eksik.</translation>
    </message>
    <message>
        <source>The option --hash is missing.</source>
        <translation>--hash seçeneği eksik.</translation>
    </message>
    <message>
        <source>The option --lan is missing.</source>
        <translation>--lan seçeneği eksik.</translation>
    </message>
    <message>
        <source>The option --program is missing.</source>
        <translation>--program seçeneği eksik.</translation>
    </message>
    <message>
        <source>The option --strict is missing.</source>
        <translation>--strict seçeneği eksik.</translation>
    </message>
    <message>
        <source>The option --tor is missing.</source>
        <translation>--tor seçeneği eksik.</translation>
    </message>
    <message>
        <source>The option --uid is missing.</source>
        <translation>--uid seçeneği eksik.</translation>
    </message>
    <message>
        <source>The options on standard input are not complete.</source>
        <translation>Standart girdideki seçenekler eksik.</translation>
    </message>
    <message>
        <source>The path given with %1 is not absolute.</source>
        <translation>%1 ile verilen yol mutlak değil.</translation>
    </message>
    <message>
        <source>The path given with --app is not absolute.</source>
        <translation>--app ile verilen yol mutlak değil.</translation>
    </message>
    <message>
        <source>The path given with --app names no application.</source>
        <translation>--app ile verilen yol bir uygulamayı göstermiyor.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2. End that program, then connect again.</source>
        <translation>Tor için gereken %1 numaralı bağlantı noktasını %2 kullanıyor. O programı sonlandırıp yeniden bağlanın.</translation>
    </message>
    <message>
        <source>a program (process %1)</source>
        <translation>bir program (süreç %1)</translation>
    </message>
    <message>
        <source>a program of the account with the id %1</source>
        <translation>%1 numaralı hesabın bir programı</translation>
    </message>
    <message>
        <source>The process id is not valid.</source>
        <translation>Süreç numarası geçersiz.</translation>
    </message>
    <message>
        <source>The program %1 cannot be copied.</source>
        <translation>%1 programı kopyalanamıyor.</translation>
    </message>
    <message>
        <source>The program %1 cannot be found.</source>
        <translation>%1 programı bulunamıyor.</translation>
    </message>
    <message>
        <source>The program %1 is missing on this system.</source>
        <translation>Bu sistemde %1 programı eksik.</translation>
    </message>
    <message>
        <source>The SHA-256 of the program %1 differs from the one to approve.</source>
        <translation>%1 programının SHA-256 özeti onaylanacak olan değil.</translation>
    </message>
    <message>
        <source>The program given with %1 is not an executable file.</source>
        <translation>%1 ile verilen program çalıştırılabilir bir dosya değil.</translation>
    </message>
    <message>
        <source>The program veldmark-launch is missing.</source>
        <translation>veldmark-launch programı eksik.</translation>
    </message>
    <message>
        <source>The session marker cannot be written.</source>
        <translation>Oturum işareti yazılamıyor.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be changed.</source>
        <translation>%1 ağ hizmetinin ayarları değiştirilemiyor.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be read.</source>
        <translation>%1 ağ hizmetinin ayarları okunamıyor.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 could not be put back.</source>
        <translation>%1 ağ hizmetinin ayarları eski hâline getirilemedi.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall cannot be used (%1).</source>
        <translation>Sistemin güvenlik duvarı kullanılamıyor (%1).</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) cannot be stopped.</source>
        <translation>Sistemin kendi Tor hizmeti (%1) durdurulamıyor.</translation>
    </message>
    <message>
        <source>The user %1 is not known on this system.</source>
        <translation>Bu sistemde %1 kullanıcısı bilinmiyor.</translation>
    </message>
    <message>
        <source>The user id is not a number.</source>
        <translation>Kullanıcı numarası bir sayı değil.</translation>
    </message>
    <message>
        <source>The user name is not valid.</source>
        <translation>Kullanıcı adı geçersiz.</translation>
    </message>
    <message>
        <source>The user root needs no password for the helper.</source>
        <translation>root kullanıcısının yardımcı program için parolaya gereksinimi yok.</translation>
    </message>
    <message>
        <source>The user with the id %1 is not known on this system.</source>
        <translation>Bu sistemde %1 numaralı kullanıcı bilinmiyor.</translation>
    </message>
    <message>
        <source>The value of %1 contains control characters.</source>
        <translation>%1 değeri denetim karakterleri içeriyor.</translation>
    </message>
    <message>
        <source>The value of %1 is too long.</source>
        <translation>%1 değeri çok uzun.</translation>
    </message>
    <message>
        <source>The value of --as must be tor, lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>--as değeri tor, lyrebird, snowflake-client ya da webtunnel-client olmalı.</translation>
    </message>
    <message>
        <source>The value of --lan must be 0 or 1.</source>
        <translation>--lan değeri 0 ya da 1 olmalı.</translation>
    </message>
    <message>
        <source>The value of --sha256 must be 64 small hexadecimal digits.</source>
        <translation>--sha256 değeri küçük harfli 64 onaltılık basamaktan oluşmalı.</translation>
    </message>
    <message>
        <source>The value of --strict must be 0 or 1.</source>
        <translation>--strict değeri 0 ya da 1 olmalı.</translation>
    </message>
    <message>
        <source>The verb fix-dns takes no options.</source>
        <translation>fix-dns komutu seçenek almaz.</translation>
    </message>
    <message>
        <source>The verb uninstall-privileged takes no options.</source>
        <translation>uninstall-privileged komutu seçenek almaz.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be started.</source>
        <translation>Güvenlik duvarı kurallarının izleyicisi başlatılamadı.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be stopped.</source>
        <translation>Güvenlik duvarı kurallarının izleyicisi durdurulamadı.</translation>
    </message>
    <message>
        <source>There are too many options on standard input.</source>
        <translation>Standart girdide çok fazla seçenek var.</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which was not given.</source>
        <translation>Bu köprüler için lyrebird gerekir, ama verilmedi.</translation>
    </message>
    <message>
        <source>These bridges need snowflake-client, which was not given.</source>
        <translation>Bu köprüler için snowflake-client gerekir, ama verilmedi.</translation>
    </message>
    <message>
        <source>This helper is made for another system.</source>
        <translation>Bu yardımcı program başka bir sistem için yapılmış.</translation>
    </message>
    <message>
        <source>Tor could not be started (%1).</source>
        <translation>Tor başlatılamadı (%1).</translation>
    </message>
    <message>
        <source>Tor could not be stopped.</source>
        <translation>Tor durdurulamadı.</translation>
    </message>
    <message>
        <source>Tor did not open its control port in time.</source>
        <translation>Tor, denetim bağlantı noktasını zamanında açmadı.</translation>
    </message>
    <message>
        <source>Tor did not start: %1</source>
        <translation>Tor başlamadı: %1</translation>
    </message>
    <message>
        <source>Tor does not accept its configuration: %1</source>
        <translation>Tor, yapılandırmasını kabul etmiyor: %1</translation>
    </message>
    <message>
        <source>it ended without a message.</source>
        <translation>ileti vermeden sona erdi.</translation>
    </message>
    <message>
        <source>Tor&apos;s log files cannot be made.</source>
        <translation>Tor&apos;un günlük dosyaları oluşturulamıyor.</translation>
    </message>
    <message>
        <source>Two different callers were reported, so nothing was done.</source>
        <translation>İki farklı çağıran bildirildi, bu yüzden hiçbir şey yapılmadı.</translation>
    </message>
    <message>
        <source>Veldmark is in use by %1. An administrator password is needed to end that session.</source>
        <translation>Veldmark şu anda %1 tarafından kullanılıyor. O oturumu sona erdirmek için bir yönetici parolası gerekiyor.</translation>
    </message>
    <message>
        <source>Veldmark is not connected, so the DNS settings were left alone.</source>
        <translation>Veldmark bağlı değil, bu yüzden DNS ayarlarına dokunulmadı.</translation>
    </message>
    <message>
        <source>sudo rejects the rule for passwordless mode.</source>
        <translation>sudo, parolasız kipin kuralını reddediyor.</translation>
    </message>
    <message>
        <source>sudo is not installed on this system.</source>
        <translation>Bu sistemde sudo kurulu değil.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read.</source>
        <translation>Masaüstü girdisi okunamıyor.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read (%1).</source>
        <translation>Masaüstü girdisi okunamıyor (%1).</translation>
    </message>
    <message>
        <source>The desktop entry names no program that is installed.</source>
        <translation>Masaüstü girdisi kurulu bir programı göstermiyor.</translation>
    </message>
    <message>
        <source>The application could not be started (%1).</source>
        <translation>Uygulama başlatılamadı (%1).</translation>
    </message>
    <message>
        <source>There is no such application or program.</source>
        <translation>Böyle bir uygulama ya da program yok.</translation>
    </message>
    <message>
        <source>The program could not be started.</source>
        <translation>Program başlatılamadı.</translation>
    </message>
    <message>
        <source>The program could not be started (%1).</source>
        <translation>Program başlatılamadı (%1).</translation>
    </message>
    <message>
        <source>The user is not known on this system.</source>
        <translation>Kullanıcı bu sistemde bilinmiyor.</translation>
    </message>
    <message>
        <source>There is no application at %1.</source>
        <translation>Şu konumda uygulama yok: %1.</translation>
    </message>
    <message>
        <source>The home folder cannot be entered.</source>
        <translation>Ev klasörüne girilemiyor.</translation>
    </message>
    <message>
        <source>nft doesn&apos;t answer.</source>
        <translation>nft yanıt vermiyor.</translation>
    </message>
    <message>
        <source>nft fails.</source>
        <translation>nft başarısız oluyor.</translation>
    </message>
    <message>
        <source>Ended because the display is gone. Your network is still set up for Tor: start Veldmark again, or restore the network with: %1</source>
        <translation>Ekranı kalmadığı için sona erdi. Ağınız hâlâ Tor için ayarlı: Veldmark&apos;ı yeniden başlatın ya da ağı şununla geri yükleyin: %1</translation>
    </message>
    <message>
        <source>your package manager</source>
        <translation>paket yöneticiniz</translation>
    </message>
    <message>
        <source>The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo %1 on.</source>
        <translation>Ağdaki engel kaldırıldı, ama geri döngü aygıtı önceki gibi ayarlanamadı. Şunu deneyin: ethtool -K lo %1 on.</translation>
    </message>
    <message>
        <source>This system can&apos;t tell applications apart.</source>
        <translation>Bu sistem uygulamaları ayırt edemez.</translation>
    </message>
    <message>
        <source>Applications are not separated now: they share circuits.</source>
        <translation>Uygulamalar şu anda ayrılmış değil: devreleri paylaşıyorlar.</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>kullanıcı %1</translation>
    </message>
    <message>
        <source>No application has an identity of its own now.</source>
        <translation>Şu anda hiçbir uygulamanın kendi kimliği yok.</translation>
    </message>
    <message>
        <source>No application of yours has that identity; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>Hiçbir uygulamanız bu kimliğe sahip değil; “veldmarkctl identities” kimlikleri listeler.</translation>
    </message>
    <message>
        <source>The application did not get a new identity.</source>
        <translation>Uygulama yeni bir kimlik almadı.</translation>
    </message>
    <message>
        <source>The program did not get an identity of its own, so it was not started.</source>
        <translation>Program kendine ait bir kimlik almadı, bu yüzden başlatılmadı.</translation>
    </message>
    <message>
        <source>A name has up to 40 letters, digits, dots and underscores.</source>
        <translation>Bir ad en çok 40 karakterdir: harf, rakam, nokta ve alt çizgi.</translation>
    </message>
    <message>
        <source>The program systemd-run is missing. Veldmark needs it to make a group for a program.</source>
        <translation>systemd-run programı eksik. Veldmark&apos;ın bir program için grup oluşturmak üzere ona gereksinimi var.</translation>
    </message>
    <message>
        <source>The program could not be started: %1.</source>
        <translation>Program başlatılamadı: %1.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>each application has circuits of its own</source>
        <translation>her uygulamanın kendi devreleri olur</translation>
    </message>
    <message>
        <source>the applications that have circuits of their own, and the loopback address
by which Tor distinguishes them</source>
        <translation>kendi devreleri olan uygulamalar ve Tor&apos;un her birini diğerlerinden
ayırt ettiği geri döngü adresi</translation>
    </message>
    <message>
        <source>new circuits for one application, from its next connection on; APP is as
&quot;identities&quot; names it</source>
        <translation>bir uygulamaya, sonraki bağlantısından başlayarak yeni devreler; APP,
“identities” listesindeki addır</translation>
    </message>
    <message>
        <source>renew needs an application; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>renew için bir uygulama gerekir; “veldmarkctl identities” listeler.</translation>
    </message>
    <message>
        <source>run a program (after --) with circuits of its own; a later run with the same
name in the same session has the same ones</source>
        <translation>bir programı (-- sonrası) kendi devreleriyle çalıştırır; aynı oturumda
aynı adla yapılan sonraki çalıştırma aynı devreleri kullanır</translation>
    </message>
    <message>
        <source>run-as needs a name and a program: veldmarkctl run-as NAME -- PROGRAM.</source>
        <translation>run-as için bir ad ve bir program gerekir: veldmarkctl run-as NAME -- PROGRAM.</translation>
    </message>
    <message>
        <source>The table of the applications&apos; identities could not be removed (%1).</source>
        <translation>Uygulamaların kimlik tablosu kaldırılamadı (%1).</translation>
    </message>
    <message>
        <source>The value of --separate must be 0 or 1.</source>
        <translation>--separate değeri 0 ya da 1 olmalı.</translation>
    </message>
    <message>
        <source>No package of the system installed %1. The next connect asks an administrator to approve it.</source>
        <translation>%1 sistemin hiçbir paketinden gelmiyor. Bir sonraki bağlantıda bir yöneticiden onu onaylaması istenir.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether a connect can work.</source>
        <translation>Bağlantının kurulup kurulamayacağı bilinmiyor.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, and none of its rules allows any, so Tor can&apos;t get through: %1.</source>
        <translation>Bu bilgisayardaki başka bir güvenlik duvarı giden trafiği engelliyor ve hiçbir kuralı hiçbirine izin vermiyor; bu yüzden Tor geçemiyor: %1.</translation>
    </message>
    <message>
        <source>Users other than root can change %1, so root doesn&apos;t run it to ask for its version.</source>
        <translation>root dışındaki kullanıcılar %1 dosyasını değiştirebilir, bu yüzden root sürümünü sormak için onu çalıştırmaz.</translation>
    </message>
    <message>
        <source>Type %1 to approve it, anything else to refuse.</source>
        <translation>Onaylamak için %1 yazın; başka her yanıt reddeder.</translation>
    </message>
    <message>
        <source>%1 was not approved.</source>
        <translation>%1 onaylanmadı.</translation>
    </message>
    <message>
        <source>%1 is not a program of the system, so an administrator has to approve it, but this command has no terminal to ask on. Run &quot;sudo veldmarkctl run --connect&quot; in a terminal.</source>
        <translation>%1 sistemin bir programı değil, bu yüzden bir yöneticinin onu onaylaması gerekiyor ama bu komutun bunu soracağı bir uçbirimi yok. Bir uçbirimde “sudo veldmarkctl run --connect” komutunu çalıştırın.</translation>
    </message>
    <message>
        <source>%1 needs the name of a file.</source>
        <translation>%1 için bir dosya adı gerekir.</translation>
    </message>
    <message>
        <source>It doesn&apos;t answer.</source>
        <translation>Yanıt vermiyor.</translation>
    </message>
    <message>
        <source>This report goes to %1.</source>
        <translation>Bu rapor %1 dosyasına yazılıyor.</translation>
    </message>
    <message>
        <source>write it into a new file too</source>
        <translation>onu yeni bir dosyaya da yazar</translation>
    </message>
    <message>
        <source>The report can&apos;t be written to %1: %2</source>
        <translation>Rapor %1 konumuna yazılamıyor: %2</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a regular file. Choose another name for the report.</source>
        <translation>%1 sıradan bir dosya değil. Rapor için başka bir ad seçin.</translation>
    </message>
    <message>
        <source>%1 exists already. Choose another name for the report.</source>
        <translation>%1 zaten var. Rapor için başka bir ad seçin.</translation>
    </message>
    <message>
        <source>The running instance gave no state: %1</source>
        <translation>Çalışan örnek durumunu bildirmedi: %1</translation>
    </message>
    <message>
        <source>a report for those who help you: settings, findings and log without addresses,
names, bridges and keys. Nothing sends it. Look through it before you give it
away</source>
        <translation>size yardım edenler için rapor: adresler, adlar, köprüler ve anahtarlar
olmadan ayarlar, bulgular ve günlük. Hiçbir şey onu göndermez. Vermeden önce
gözden geçirin</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 okunamıyor: %2</translation>
    </message>
    <message>
        <source>There is no bridge in %1.</source>
        <translation>%1 içinde köprü yok.</translation>
    </message>
    <message>
        <source>added: %1</source>
        <translation>eklendi: %1</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>zaten var: %1</translation>
    </message>
    <message>
        <source>add the bridges in a text to your own: in bridge lines, a whole e-mail or
a web page. FILE &quot;-&quot; is standard input</source>
        <translation>bir metindeki köprüleri kendi köprülerinize ekler: köprü satırları, bütün bir
e-posta ya da web sayfası. FILE &quot;-&quot; standart girdidir</translation>
    </message>
    <message>
        <source>add-bridges needs a file; &quot;-&quot; is standard input.</source>
        <translation>add-bridges bir dosya ister; &quot;-&quot; standart girdidir.</translation>
    </message>
    <message>
        <source>The filter before Tor&apos;s control port cannot be used.</source>
        <translation>Tor&apos;un denetim bağlantı noktasının önündeki süzgeç kullanılamıyor.</translation>
    </message>
    <message numerus="yes">
        <source>Testing %n bridges…</source>
        <translation>
            <numerusform>%n köprü test ediliyor…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 for *.%2</source>
        <translation>*.%2 için %1</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%2 üzerinde %1</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Doğrudan</translation>
    </message>
    <message>
        <source>Your bridges</source>
        <translation>Köprüleriniz</translation>
    </message>
    <message>
        <source>(%1 s)</source>
        <translation>(%1 sn)</translation>
    </message>
    <message>
        <source>Tried</source>
        <translation>Denendi</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Öneri</translation>
    </message>
    <message>
        <source>Try them with: %1</source>
        <translation>Şununla deneyin: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of ask, always and never.</source>
        <translation>“%1” ne ask, ne always, ne de never.</translation>
    </message>
    <message>
        <source>Refused, or out of reach.</source>
        <translation>Reddedildi ya da ulaşılamıyor.</translation>
    </message>
    <message>
        <source>Something answered, but Tor made no further progress.</source>
        <translation>Bir yanıt geldi, ama Tor ilerleyemedi.</translation>
    </message>
    <message>
        <source>No answer.</source>
        <translation>Yanıt yok.</translation>
    </message>
    <message>
        <source>Tor has connected.</source>
        <translation>Tor bağlandı.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Tried: %1.</source>
        <translation>Tor bu ağda ilerleyemiyor. Denenenler: %1.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Veldmark can try bridges: %1.</source>
        <translation>Tor bu ağda ilerleyemiyor. Veldmark köprüleri deneyebilir: %1.</translation>
    </message>
    <message>
        <source>Being tried…</source>
        <translation>Deneniyor…</translation>
    </message>
    <message>
        <source>Tor did not accept these bridges.</source>
        <translation>Tor bu köprüleri kabul etmedi.</translation>
    </message>
    <message>
        <source>No bridges are offered now.</source>
        <translation>Şu anda önerilen köprü yok.</translation>
    </message>
    <message>
        <source>whether bridges are tried when Tor cannot connect</source>
        <translation>Tor ilerleyemediğinde köprülerin denenip denenmeyeceği</translation>
    </message>
    <message>
        <source>try the bridges that are offered when Tor cannot connect, see &quot;status&quot;</source>
        <translation>Tor ilerleyemediğinde önerilen köprüleri dener, bkz. “status”</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Devreler</translation>
    </message>
</context>
<context>
    <name>veldmark::Tray</name>
    <message>
        <source>Open Veldmark</source>
        <translation>Veldmark&apos;ı aç</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
</context>
<context>
    <name>veldmark::Windows</name>
    <message>
        <source>Select the tor executable</source>
        <translation>tor programını seçin</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Sıkı kipte Tor&apos;u atlayabilecek uygulamaları seçin</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Uygulamalar</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Raporu kaydet</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutPane</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
    <message>
        <source>The Tor Project</source>
        <translation>Das Tor-Projekt</translation>
    </message>
    <message>
        <source>The network and pluggable transports Veldmark builds on</source>
        <translation>Das Netzwerk und die Transportprogramme, auf denen Veldmark aufbaut</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Danksagung</translation>
    </message>
    <message>
        <source>Homepage, downloads and updates</source>
        <translation>Homepage, Downloads und Aktualisierungen</translation>
    </message>
    <message>
        <source>Sends this computer&apos;s traffic through Tor, all of it in strict mode and that of apps that use the system proxy in proxy mode, and shows whether it really does.</source>
        <translation>Schickt den Verkehr dieses Computers durch Tor, im strikten Modus den gesamten und im Proxy-Modus den von Apps, die den System-Proxy benutzen, und zeigt, ob das wirklich geschieht.</translation>
    </message>
    <message>
        <source>Veldmark is made with Qt, QCoro and tl::expected.</source>
        <translation>Veldmark ist mit Qt, QCoro und tl::expected gemacht.</translation>
    </message>
</context>
<context>
    <name>ApplicationsSheet</name>
    <message>
        <source>App exceptions</source>
        <translation>Ausnahmen für Apps</translation>
    </message>
    <message>
        <source>No apps yet. Add Zoom, Discord, a game…</source>
        <translation>Noch keine Apps. Fügen Sie Zoom, Discord oder ein Spiel hinzu…</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Verbinden Sie sich im strikten Modus, um Apps ohne Tor zu öffnen</translation>
    </message>
    <message>
        <source>Open without Tor</source>
        <translation>Ohne Tor öffnen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen…</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>BridgesPane</name>
    <message>
        <source>Bridges</source>
        <translation>Brücken</translation>
    </message>
    <message>
        <source>Programs that disguise your Tor connection</source>
        <translation>Programme, die Ihre Tor-Verbindung verschleiern</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Eingebaute Brücken</translation>
    </message>
    <message>
        <source>Bridge addresses shipped with Tor</source>
        <translation>Brückenadressen, die mit Tor kommen</translation>
    </message>
    <message>
        <source>Tor Expert Bundle</source>
        <translation>Tor Expert Bundle</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>When Tor is blocked</source>
        <translation>Wenn Tor gesperrt ist</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Zum Ändern trennen</translation>
    </message>
    <message>
        <source>Tries the available bridges in turn, without another password</source>
        <translation>Versucht die vorhandenen Brücken nacheinander, ohne weiteres Passwort</translation>
    </message>
</context>
<context>
    <name>BridgesSheet</name>
    <message>
        <source>Custom bridges</source>
        <translation>Eigene Brücken</translation>
    </message>
    <message>
        <source>One bridge per line. Ask the Tor Project for bridges on its bridges page, by e-mail or through its Telegram bot, or use those of someone you trust. obfs4, webtunnel, Snowflake, meek and plain bridges are supported.</source>
        <translation>Eine Brücke pro Zeile. Bitten Sie das Tor-Projekt auf seiner Brückenseite, per E-Mail oder über seinen Telegram-Bot um Brücken, oder nehmen Sie die von jemandem, dem Sie vertrauen. Unterstützt werden obfs4, webtunnel, Snowflake, meek und einfache Brücken.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>There is no bridge in this file.</source>
        <translation>In dieser Datei ist keine Brücke.</translation>
    </message>
    <message>
        <source>Keep Only the Bridges</source>
        <translation>Nur die Brücken behalten</translation>
    </message>
    <message>
        <source>Removes everything from the text but the bridges that were recognized</source>
        <translation>Entfernt aus dem Text alles außer den erkannten Brücken</translation>
    </message>
</context>
<context>
    <name>ChooserWindow</name>
    <message>
        <source>App exceptions</source>
        <translation>Ausnahmen für Apps</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Wählen Sie Apps, die im strikten Modus Tor umgehen dürfen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Installierte Apps</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Andere…</translation>
    </message>
    <message>
        <source>Choose the .desktop file of an application that is not listed</source>
        <translation>Die .desktop-Datei einer App wählen, die nicht aufgeführt ist</translation>
    </message>
</context>
<context>
    <name>CircuitsSidebar</name>
    <message>
        <source>ALL CIRCUITS</source>
        <translation>ALLE KANÄLE</translation>
    </message>
    <message>
        <source>No circuit selected</source>
        <translation>Kein Kanal gewählt</translation>
    </message>
    <message>
        <source>New Circuit</source>
        <translation>Neuer Kanal</translation>
    </message>
    <message>
        <source>Close this circuit; its sites get a fresh path on their next request</source>
        <translation>Diesen Kanal schließen; seine Ziele bekommen bei der nächsten Anfrage einen neuen Weg</translation>
    </message>
    <message>
        <source>Sites on this circuit get a fresh path. Other sites sharing it move too.</source>
        <translation>Ziele auf diesem Kanal bekommen einen neuen Weg. Andere Ziele, die ihn mitbenutzen, ziehen mit um.</translation>
    </message>
</context>
<context>
    <name>CircuitsWindow</name>
    <message>
        <source>Circuits</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Neue Identität</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Bittet Tor um neue Kanäle und eine neue Ausgangs-IP</translation>
    </message>
    <message>
        <source>Find Faster</source>
        <translation>Schneller</translation>
    </message>
    <message>
        <source>Time a request through Tor and get fresh circuits if it&apos;s slow</source>
        <translation>Misst eine Anfrage durch Tor und holt neue Kanäle, wenn sie langsam ist</translation>
    </message>
    <message>
        <source>Reading circuits…</source>
        <translation>Kanäle werden gelesen…</translation>
    </message>
    <message>
        <source>Connect to see your circuits</source>
        <translation>Verbinden Sie sich, um Ihre Kanäle zu sehen</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Exit IP</source>
        <translation>Ausgangs-IP</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Leaks</source>
        <translation>Lecks</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Verkehr</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>%1 empfangen, %2 gesendet</translation>
    </message>
    <message>
        <source>Traffic of the last two minutes</source>
        <translation>Verkehr der letzten zwei Minuten</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Neue Identität</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Bittet Tor um neue Kanäle und eine neue Ausgangs-IP</translation>
    </message>
    <message>
        <source>Leak Test</source>
        <translation>Lecktest</translation>
    </message>
    <message>
        <source>Check the exit IP and try a direct connection that skips Tor</source>
        <translation>Prüft die Ausgangs-IP und versucht eine direkte Verbindung an Tor vorbei</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>See the path your traffic takes: entry, middle and exit relays</source>
        <translation>Zeigt den Weg Ihres Verkehrs: Eingangs-, Mittel- und Ausgangsrelais</translation>
    </message>
</context>
<context>
    <name>CopyField</name>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>DNSCard</name>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>Namensabfragen können an Tor vorbei</translation>
    </message>
    <message>
        <source>Fix DNS</source>
        <translation>DNS reparieren</translation>
    </message>
    <message>
        <source>Re-test</source>
        <translation>Neu testen</translation>
    </message>
</context>
<context>
    <name>DoctorSheet</name>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Erneut nachsehen</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Bericht zeigen</translation>
    </message>
    <message>
        <source>What others need to help you, without addresses, names and bridges</source>
        <translation>Was andere brauchen, um Ihnen zu helfen, ohne Adressen, Namen und Brücken</translation>
    </message>
</context>
<context>
    <name>DownloadButton</name>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Downloads the official Tor Expert Bundle from the Tor Project, for bridge programs and built-in bridges</source>
        <translation>Lädt das offizielle Tor Expert Bundle vom Tor-Projekt, mit Brückenprogrammen und eingebauten Brücken</translation>
    </message>
</context>
<context>
    <name>Footer</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Tor Log</source>
        <translation>Tor-Protokoll</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Startup and password prompts</source>
        <translation>Start und Passwortabfragen</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Bei der Anmeldung öffnen</translation>
    </message>
    <message>
        <source>Veldmark starts when you log in</source>
        <translation>Veldmark startet, wenn Sie sich anmelden</translation>
    </message>
    <message>
        <source>Connect automatically</source>
        <translation>Automatisch verbinden</translation>
    </message>
    <message>
        <source>Connect as soon as Veldmark opens</source>
        <translation>Verbinden, sobald sich Veldmark öffnet</translation>
    </message>
    <message>
        <source>Password prompts</source>
        <translation>Passwortabfragen</translation>
    </message>
    <message>
        <source>Passwordless mode</source>
        <translation>Betrieb ohne Passwort</translation>
    </message>
    <message>
        <source>Connect and Disconnect never ask</source>
        <translation>Verbinden und Trennen fragen nie</translation>
    </message>
    <message>
        <source>Asks for your password each time</source>
        <translation>Fragt jedes Mal nach Ihrem Passwort</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Ausschalten</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Einrichten…</translation>
    </message>
    <message>
        <source>Setup asks for your admin password once. It installs a root-owned copy of Veldmark&apos;s helper and a rule in /etc/sudoers.d that lets your account run only that helper, so Connect and Disconnect stop asking. Turn it off any time.</source>
        <translation>Das Einrichten fragt einmal nach Ihrem Administratorpasswort. Es legt eine Kopie von Veldmarks Hilfsprogramm an, die root gehört, und eine Regel in /etc/sudoers.d, nach der Ihr Konto nur dieses Hilfsprogramm ausführen darf; dann fragen Verbinden und Trennen nicht mehr. Sie können es jederzeit ausschalten.</translation>
    </message>
</context>
<context>
    <name>Hero</name>
    <message>
        <source>Show Tor Log</source>
        <translation>Tor-Protokoll zeigen</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Alles sehen, was Tor gemeldet hat</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Netzwerk wiederherstellen</translation>
    </message>
    <message>
        <source>Try Bridges</source>
        <translation>Brücken versuchen</translation>
    </message>
</context>
<context>
    <name>LogLines</name>
    <message>
        <source>Tor Log</source>
        <translation>Tor-Protokoll</translation>
    </message>
</context>
<context>
    <name>LogRow</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Tor Log</source>
        <translation>Tor-Protokoll</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Folgen</translation>
    </message>
    <message>
        <source>Keep the newest lines in view</source>
        <translation>Die neuesten Zeilen im Blick behalten</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the lines shown</source>
        <translation>Die gezeigten Zeilen kopieren</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
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
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Zum Ändern trennen</translation>
    </message>
    <message>
        <source>Strict mode</source>
        <translation>Strikter Modus</translation>
    </message>
    <message>
        <source>Kill switch: block anything not using Tor</source>
        <translation>Notschalter: alles sperren, was nicht Tor benutzt</translation>
    </message>
    <message>
        <source>Blocks every connection that doesn&apos;t go through Tor, including UDP and IPv6. Apps that ignore proxy settings won&apos;t connect at all instead of leaking.</source>
        <translation>Sperrt jede Verbindung, die nicht durch Tor geht, auch UDP und IPv6. Apps, die Proxy-Einstellungen übergehen, verbinden sich gar nicht, statt etwas preiszugeben.</translation>
    </message>
    <message>
        <source>Allow local network</source>
        <translation>Lokales Netzwerk erlauben</translation>
    </message>
    <message>
        <source>Exit country</source>
        <translation>Ausgangsland</translation>
    </message>
    <message>
        <source>Where your traffic appears to come from</source>
        <translation>Woher Ihr Verkehr zu kommen scheint</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Brücken</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Bearbeiten…</translation>
    </message>
    <message>
        <source>Custom bridges</source>
        <translation>Eigene Brücken</translation>
    </message>
    <message>
        <source>Optimize for speed</source>
        <translation>Auf Tempo optimieren</translation>
    </message>
    <message>
        <source>New circuits for everything</source>
        <translation>Neue Kanäle für alles</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Terminalmodus</translation>
    </message>
    <message>
        <source>App exceptions</source>
        <translation>Ausnahmen für Apps</translation>
    </message>
    <message>
        <source>For networks that block or watch Tor</source>
        <translation>Für Netze, die Tor sperren oder beobachten</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Find the Cause</source>
        <translation>Ursache finden</translation>
    </message>
    <message>
        <source>Checks what a connection needs on this computer, what blocks it and how to fix it</source>
        <translation>Untersucht diesen Computer: was eine Verbindung braucht, was ihr im Weg steht und was das behebt</translation>
    </message>
    <message>
        <source>Show Tor Log</source>
        <translation>Tor-Protokoll zeigen</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Alles sehen, was Tor gemeldet hat</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with this command, then click Recheck.</source>
        <translation>Tor ist nicht installiert. Installieren Sie es mit diesem Befehl und klicken Sie dann auf „Erneut prüfen“.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with %1, then click Recheck.</source>
        <translation>Tor ist nicht installiert. Installieren Sie es mit %1 und klicken Sie dann auf „Erneut prüfen“.</translation>
    </message>
    <message>
        <source>Recheck</source>
        <translation>Erneut prüfen</translation>
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
        <translation>Gefunden: %1</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
</context>
<context>
    <name>QuitDialog</name>
    <message>
        <source>Quit Veldmark</source>
        <translation>Veldmark beenden</translation>
    </message>
    <message>
        <source>Your network is still routed through Tor</source>
        <translation>Ihr Netzwerk läuft noch durch Tor</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and the kill switch stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Wenn Sie jetzt beenden, läuft Tor weiter und der Notschalter bleibt an. Öffnen Sie Veldmark später wieder, um Ihre normale Verbindung wiederherzustellen.</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and your system proxy stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Wenn Sie jetzt beenden, läuft Tor weiter und der System-Proxy bleibt an. Öffnen Sie Veldmark später wieder, um Ihre normale Verbindung wiederherzustellen.</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Trennen…</translation>
    </message>
    <message>
        <source>Disconnect &amp; Quit</source>
        <translation>Trennen und beenden</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Trotzdem beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>RecoveryPane</name>
    <message>
        <source>Recovery</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>Get your normal connection back</source>
        <translation>Ihre normale Verbindung zurückholen</translation>
    </message>
    <message>
        <source>Restore network settings</source>
        <translation>Netzwerkeinstellungen wiederherstellen</translation>
    </message>
    <message>
        <source>Veldmark&apos;s changes are active</source>
        <translation>Veldmarks Änderungen sind aktiv</translation>
    </message>
    <message>
        <source>Nothing to restore</source>
        <translation>Nichts wiederherzustellen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Use this if your internet stops working after a crash. It puts your DNS, proxy and firewall settings back the way they were and stops Tor.</source>
        <translation>Benutzen Sie dies, wenn Ihr Internet nach einem Absturz nicht mehr geht. Es setzt DNS, Proxy und Firewall auf den früheren Stand und beendet Tor.</translation>
    </message>
    <message>
        <source>If the app won&apos;t open</source>
        <translation>Wenn sich die App nicht öffnet</translation>
    </message>
    <message>
        <source>Run this in Terminal to do the same thing without Veldmark.</source>
        <translation>Führen Sie dies im Terminal aus, um dasselbe ohne Veldmark zu tun.</translation>
    </message>
    <message>
        <source>Report for others</source>
        <translation>Bericht für andere</translation>
    </message>
    <message>
        <source>What they need to help you, without addresses, names and bridges. You read it first, and nothing sends it.</source>
        <translation>Was sie brauchen, um Ihnen zu helfen, ohne Adressen, Namen und Brücken. Sie lesen ihn zuerst, und nichts versendet ihn.</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Bericht zeigen</translation>
    </message>
</context>
<context>
    <name>ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>For those who help you. Addresses, names, bridges, keys and paths in your home are replaced. Look through it before you give it away: Veldmark sends it to nobody.</source>
        <translation>Für alle, die Ihnen helfen. Adressen, Namen, Brücken, Schlüssel und Pfade in Ihrem persönlichen Ordner sind ersetzt. Sehen Sie ihn durch, bevor Sie ihn weitergeben: Veldmark sendet ihn an niemanden.</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern…</translation>
    </message>
    <message>
        <source>Save the report in a file that only you can read</source>
        <translation>Den Bericht in einer Datei speichern, die nur Sie lesen können</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the whole report</source>
        <translation>Den ganzen Bericht kopieren</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Dieser Computer wird untersucht…</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Brücken</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Wiederherstellung</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
</context>
<context>
    <name>TerminalPane</name>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>Route command-line tools through Tor</source>
        <translation>Befehlszeilenprogramme durch Tor leiten</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Terminalmodus</translation>
    </message>
    <message>
        <source>Shell integration</source>
        <translation>Shell-Einbindung</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
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
        <translation>Das Tor-Programm, das Veldmark startet</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Location: disconnect to change</source>
        <translation>Ort: zum Ändern trennen</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Custom location</source>
        <translation>Eigener Ort</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Separate applications</source>
        <translation>Anwendungen trennen</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Zum Ändern trennen</translation>
    </message>
    <message>
        <source>Each application has circuits of its own</source>
        <translation>Jede Anwendung hat eigene Kanäle</translation>
    </message>
    <message>
        <source>Sites cannot tell by the exit address that two applications are yours. Veldmark tells applications apart where the desktop starts each in a control group of its own, as GNOME and KDE do. Other programs share circuits with the rest of their login session or account.</source>
        <translation>Websites können an der Ausgangsadresse nicht erkennen, dass zwei Anwendungen Ihre sind. Veldmark unterscheidet Anwendungen dort, wo die Arbeitsumgebung jede in einer eigenen Kontrollgruppe startet, wie GNOME und KDE. Andere Programme teilen sich Kanäle mit ihrer ganzen Anmeldesitzung oder ihrem Konto.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Start without a window, as at login.</source>
        <translation>Ohne Fenster starten, wie bei der Anmeldung.</translation>
    </message>
    <message>
        <source>Connect at once.</source>
        <translation>Sofort verbinden.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor. To restore it without Veldmark, run:
%1</source>
        <translation>Ihr Netzwerk ist noch für Tor eingerichtet. Um es ohne Veldmark wiederherzustellen, führen Sie aus:
%1</translation>
    </message>
</context>
<context>
    <name>veldmark::Alerts</name>
    <message>
        <source>Another session has replaced this one</source>
        <translation>Eine andere Sitzung hat diese ersetzt</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor läuft nicht mehr</translation>
    </message>
    <message>
        <source>Traffic can leave around Tor</source>
        <translation>Verkehr kann an Tor vorbei</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>Namensabfragen können an Tor vorbei</translation>
    </message>
    <message>
        <source>Your real address can be seen. Open Veldmark to see what to do.</source>
        <translation>Ihre echte Adresse ist sichtbar. Öffnen Sie Veldmark, um zu sehen, was zu tun ist.</translation>
    </message>
    <message>
        <source>Firewall rules were removed</source>
        <translation>Firewall-Regeln wurden entfernt</translation>
    </message>
    <message>
        <source>The kill switch doesn&apos;t block traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>Der Notschalter sperrt nicht. Öffnen Sie Veldmark, trennen Sie und verbinden Sie sich neu.</translation>
    </message>
    <message>
        <source>The kill switch is not watched</source>
        <translation>Der Notschalter wird nicht überwacht</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>Es ist nicht bekannt, ob der Notschalter sperrt. Öffnen Sie Veldmark, trennen Sie und verbinden Sie sich neu.</translation>
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
        <translation>Ein Fenster ließ sich nicht öffnen. Ihr Netzwerk ist davon nicht betroffen; um es ohne Veldmark wiederherzustellen, führen Sie aus:
%1

%2</translation>
    </message>
    <message>
        <source>Veldmark is still running</source>
        <translation>Veldmark läuft weiter</translation>
    </message>
    <message>
        <source>Open Veldmark again to see its window.</source>
        <translation>Öffnen Sie Veldmark erneut, um das Fenster zu sehen.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Ihr Netzwerk ist noch für Tor eingerichtet</translation>
    </message>
    <message>
        <source>Veldmark had to close and could not restore the network. Open Veldmark again to restore it.</source>
        <translation>Veldmark musste sich beenden und konnte das Netzwerk nicht wiederherstellen. Öffnen Sie Veldmark erneut, um es wiederherzustellen.</translation>
    </message>
</context>
<context>
    <name>veldmark::ApplicationChoices</name>
    <message>
        <source>No installed applications were found.</source>
        <translation>Es wurden keine installierten Apps gefunden.</translation>
    </message>
    <message>
        <source>No application is called “%1”.</source>
        <translation>Keine App heißt „%1“.</translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitGraphView</name>
    <message>
        <source>%1: your real IP only ever reaches the entry relay</source>
        <translation>%1: Ihre echte IP erreicht nur das Eingangsrelais</translation>
    </message>
    <message>
        <source>Used by 1 circuit</source>
        <translation>Von 1 Kanal benutzt</translation>
    </message>
    <message>
        <source>ENTRY</source>
        <translation>EINGANG</translation>
    </message>
    <message>
        <source>MIDDLE</source>
        <translation>MITTE</translation>
    </message>
    <message>
        <source>EXIT</source>
        <translation>AUSGANG</translation>
    </message>
    <message>
        <source>SITES</source>
        <translation>ZIELE</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message numerus="yes">
        <source>Used by %n circuits</source>
        <translation>
            <numerusform>Von %n Kanal benutzt</numerusform>
            <numerusform>Von %n Kanälen benutzt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitsModel</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Circuit %1</source>
        <translation>Kanal %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Nicht verbunden</translation>
    </message>
    <message>
        <source>1 active path</source>
        <translation>1 aktiver Weg</translation>
    </message>
    <message>
        <source> · click a relay or site to follow it</source>
        <translation> · klicken Sie ein Relais oder Ziel an, um ihm zu folgen</translation>
    </message>
    <message>
        <source>Leads to an onion service. The last relay is the meeting point.</source>
        <translation>Führt zu einem Onion-Dienst. Das letzte Relais ist der Treffpunkt.</translation>
    </message>
    <message>
        <source>Meeting point</source>
        <translation>Treffpunkt</translation>
    </message>
    <message>
        <source>One of several linked legs to the same exit</source>
        <translation>Einer von mehreren verbundenen Strängen zum selben Ausgang</translation>
    </message>
    <message>
        <source>Only the entry sees your IP</source>
        <translation>Nur der Eingang sieht Ihre IP</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>Brücke</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>, +%1 more</source>
        <translation>, +%1 weitere</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Ziele</translation>
    </message>
    <message>
        <source>Round trip: %1</source>
        <translation>Hin und zurück: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n active paths</source>
        <translation>
            <numerusform>%n aktiver Weg</numerusform>
            <numerusform>%n aktive Wege</numerusform>
        </translation>
    </message>
    <message>
        <source>Asked for by %1</source>
        <translation>Angefragt von %1</translation>
    </message>
</context>
<context>
    <name>veldmark::DoctorModel</name>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Netzwerk wiederherstellen</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Dieser Computer wird untersucht…</translation>
    </message>
    <message>
        <source>The check gave no result.</source>
        <translation>Es wurde nichts herausgefunden.</translation>
    </message>
    <message>
        <source>No problem was found that keeps Veldmark from connecting.</source>
        <translation>Es wurde nichts gefunden, das Veldmark am Verbinden hindert.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t connect until each problem is fixed.</source>
        <translation>Veldmark kann sich nicht verbinden, bevor jedes Problem behoben ist.</translation>
    </message>
</context>
<context>
    <name>veldmark::LogModel</name>
    <message>
        <source>Tor writes here while it connects and runs</source>
        <translation>Hier schreibt Tor, während es sich verbindet und läuft</translation>
    </message>
    <message>
        <source>Can&apos;t read the log files</source>
        <translation>Die Protokolldateien sind nicht lesbar</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Probleme (%1)</translation>
    </message>
    <message>
        <source>Show the log files in Finder</source>
        <translation>Zeigt die Protokolldateien im Finder</translation>
    </message>
    <message>
        <source>Show the log files in the file manager</source>
        <translation>Zeigt die Protokolldateien im Dateimanager</translation>
    </message>
    <message>
        <source>There are no log files yet. Tor creates %1 when it first starts.</source>
        <translation>Es gibt noch keine Protokolldateien: Tor legt %1 beim ersten Start an.</translation>
    </message>
    <message>
        <source>No file manager could be opened. The log files are in %1.</source>
        <translation>Es konnte kein Dateimanager geöffnet werden. Die Protokolldateien liegen in %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n Zeile</numerusform>
            <numerusform>%n Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::OptionsModel</name>
    <message>
        <source>Choosing a country means fewer exit relays, so it&apos;s slower and you&apos;re easier to single out.</source>
        <translation>Ein gewähltes Land lässt weniger Ausgangsrelais übrig: Es wird langsamer, und Sie fallen leichter auf.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>obfs4 (built-in)</source>
        <translation>obfs4 (eingebaut)</translation>
    </message>
    <message>
        <source>Snowflake (built-in)</source>
        <translation>Snowflake (eingebaut)</translation>
    </message>
    <message>
        <source>meek (built-in)</source>
        <translation>meek (eingebaut)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>No bridges added yet</source>
        <translation>Noch keine Brücken eingetragen</translation>
    </message>
    <message>
        <source>Needs bridge programs: click Download</source>
        <translation>Braucht Brückenprogramme: Klicken Sie auf „Herunterladen“</translation>
    </message>
    <message>
        <source>Built-in bridges from %1</source>
        <translation>Eingebaute Brücken aus %1</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(Zeile %1)</translation>
    </message>
    <message>
        <source>(lines %1)</source>
        <translation>(Zeilen %1)</translation>
    </message>
    <message>
        <source>1 bridge recognized</source>
        <translation>1 Brücke erkannt</translation>
    </message>
    <message>
        <source>A bridge line can&apos;t contain #, &quot; or \.</source>
        <translation>Eine Brückenzeile kann kein #, &quot; oder \ enthalten.</translation>
    </message>
    <message>
        <source>At most %1 bridges can be used</source>
        <translation>Höchstens %1 Brücken können benutzt werden</translation>
    </message>
    <message>
        <source>1 line not recognized</source>
        <translation>1 Zeile nicht erkannt</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the Dock) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>Im strikten Modus dürfen sich diese Apps direkt statt durch Tor verbinden, mit Ihrer echten IP-Adresse. Alles andere geht weiterhin nur durch Tor. Öffnen Sie sie mit &lt;b&gt;Ohne Tor öffnen&lt;/b&gt; (nicht aus dem Dock), damit Veldmark sie kennzeichnen kann. Eine laufende Kopie wird beendet und neu geöffnet.</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the desktop&apos;s menu) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>Im strikten Modus dürfen sich diese Apps direkt statt durch Tor verbinden, mit Ihrer echten IP-Adresse. Alles andere geht weiterhin nur durch Tor. Öffnen Sie sie mit &lt;b&gt;Ohne Tor öffnen&lt;/b&gt; (nicht aus dem Menü der Arbeitsumgebung), damit Veldmark sie kennzeichnen kann. Eine laufende Kopie wird beendet und neu geöffnet.</translation>
    </message>
    <message numerus="yes">
        <source>%n bridges recognized</source>
        <translation>
            <numerusform>%n Brücke erkannt</numerusform>
            <numerusform>%n Brücken erkannt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines not recognized</source>
        <translation>
            <numerusform>%n Zeile nicht erkannt</numerusform>
            <numerusform>%n Zeilen nicht erkannt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::PanelModel</name>
    <message>
        <source>No answer</source>
        <translation>Keine Antwort</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but it isn&apos;t known whether the kill switch blocks such connections</source>
        <translation>Eine direkte Verbindung an Tor vorbei blieb ohne Antwort, aber es ist nicht bekannt, ob der Notschalter solche Verbindungen sperrt</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but proxy mode doesn&apos;t block such connections</source>
        <translation>Eine direkte Verbindung an Tor vorbei blieb ohne Antwort, aber der Proxy-Modus sperrt solche Verbindungen nicht</translation>
    </message>
    <message>
        <source>Connect to Tor</source>
        <translation>Mit Tor verbinden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Neu verbinden</translation>
    </message>
    <message>
        <source>Connected through %1 bridges</source>
        <translation>Über %1-Brücken verbunden</translation>
    </message>
    <message>
        <source>Strict</source>
        <translation>Strikt</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Install Tor to get started</source>
        <translation>Installieren Sie zuerst Tor</translation>
    </message>
    <message>
        <source>Click to connect</source>
        <translation>Zum Verbinden klicken</translation>
    </message>
    <message>
        <source>Click to disconnect</source>
        <translation>Zum Trennen klicken</translation>
    </message>
    <message>
        <source>Tor hasn&apos;t reported progress for a while. It is still trying; a slow or blocked network is the usual reason.</source>
        <translation>Tor meldet seit einer Weile keinen Fortschritt. Es versucht es weiter; meist ist das Netz langsam oder gesperrt.</translation>
    </message>
    <message>
        <source>Still waiting for Tor to start, or for your approval.</source>
        <translation>Es wird noch auf Tors Start oder auf Ihre Zustimmung gewartet.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Wird geprüft</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Checked against %1</source>
        <translation>Geprüft bei %1</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Bestätigt</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>Nicht bestätigt</translation>
    </message>
    <message>
        <source>DNS leak</source>
        <translation>DNS-Leck</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>Nicht getestet</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Test läuft…</translation>
    </message>
    <message>
        <source>No leaks</source>
        <translation>Keine Lecks</translation>
    </message>
    <message>
        <source>Inconclusive</source>
        <translation>Ohne Ergebnis</translation>
    </message>
    <message>
        <source>Exposed: %1</source>
        <translation>Sichtbar: %1</translation>
    </message>
    <message>
        <source>Tries a direct connection that skips Tor</source>
        <translation>Versucht eine direkte Verbindung an Tor vorbei</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor are blocked</source>
        <translation>Direkte Verbindungen an Tor vorbei sind gesperrt</translation>
    </message>
    <message>
        <source>Apps that ignore proxy settings show your real IP (%1). Turn on Strict mode to block them.</source>
        <translation>Apps, die Proxy-Einstellungen übergehen, zeigen Ihre echte IP (%1). Schalten Sie den strikten Modus ein, um sie zu sperren.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Nicht geprüft</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor show your real IP (%1), although Strict mode should block them. Disconnect, or run the leak test again.</source>
        <translation>Direkte Verbindungen an Tor vorbei zeigen Ihre echte IP (%1), obwohl der strikte Modus sie sperren sollte. Trennen Sie, oder wiederholen Sie den Lecktest.</translation>
    </message>
</context>
<context>
    <name>veldmark::ReportModel</name>
    <message>
        <source>Saved in %1</source>
        <translation>Gespeichert in %1</translation>
    </message>
</context>
<context>
    <name>veldmark::SettingsModel</name>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Homebrew: %1</source>
        <translation>Homebrew: %1</translation>
    </message>
    <message>
        <source>Install it with %1</source>
        <translation>Installieren Sie es mit %1</translation>
    </message>
    <message>
        <source>Not found in Tor Browser or a downloaded bundle</source>
        <translation>Weder im Tor Browser noch in einem geladenen Bundle gefunden</translation>
    </message>
    <message>
        <source>Loaded from %1</source>
        <translation>Geladen aus %1</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <translation>Nicht geladen</translation>
    </message>
    <message>
        <source>Version %1 loaded</source>
        <translation>Version %1 geladen</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>Signatur geprüft</translation>
    </message>
    <message>
        <source>Adds one line to ~/.zshrc (and ~/.bash_profile if you have one) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>Fügt ~/.zshrc (und ~/.bash_profile, falls vorhanden) eine Zeile hinzu und oben in ~/.ssh/config eine Include-Zeile. Die Dateien liegen in ~/.veldmark. Umgeleitet wird nur, wenn Veldmark mit eingeschaltetem Terminalmodus verbunden ist.</translation>
    </message>
    <message>
        <source>Adds one line to ~/.bashrc (and ~/.zshrc if you use zsh) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>Fügt ~/.bashrc (und ~/.zshrc, wenn Sie zsh benutzen) eine Zeile hinzu und oben in ~/.ssh/config eine Include-Zeile. Die Dateien liegen in ~/.veldmark. Umgeleitet wird nur, wenn Veldmark mit eingeschaltetem Terminalmodus verbunden ist.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Fetched over HTTPS. Its signature isn&apos;t checked, since GnuPG isn&apos;t installed.</source>
        <translation>Über HTTPS geladen. Die Signatur wird nicht geprüft, weil GnuPG nicht installiert ist.</translation>
    </message>
    <message>
        <source>Fetched over HTTPS and checked against the Tor Project&apos;s signature.</source>
        <translation>Über HTTPS geladen und gegen die Signatur des Tor-Projekts geprüft.</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Nicht eingerichtet</translation>
    </message>
    <message>
        <source>Installed in your shell and SSH config</source>
        <translation>In Ihrer Shell und SSH-Konfiguration eingerichtet</translation>
    </message>
    <message>
        <source>Installed in your shell; SSH doesn&apos;t use it</source>
        <translation>In Ihrer Shell eingerichtet; SSH benutzt es nicht</translation>
    </message>
    <message>
        <source>curl, git, brew, pip, ssh and more use Tor</source>
        <translation>curl, git, brew, pip, ssh und andere benutzen Tor</translation>
    </message>
    <message>
        <source>curl, git, pip, ssh and more use Tor</source>
        <translation>curl, git, pip, ssh und andere benutzen Tor</translation>
    </message>
    <message>
        <source>Veldmark is free software and independent of the Tor Project. It contains no Tor: it runs the tor that is installed here, and where bridges are used lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>Veldmark ist freie Software und vom Tor-Projekt unabhängig. Es enthält kein Tor: Es startet das hier installierte tor und, wo Brücken benutzt werden, lyrebird, snowflake-client oder webtunnel-client.</translation>
    </message>
    <message>
        <source>It sets up the network with macOS&apos;s own programs, asks for the administrator with sudo, and checks downloads with GnuPG where that is installed.</source>
        <translation>Es richtet das Netz mit den Programmen von macOS ein, fragt mit sudo nach dem Administrator und prüft Downloads mit GnuPG, wo das installiert ist.</translation>
    </message>
    <message>
        <source>It sets up the network with nftables, resolvectl and gsettings, asks for the administrator with polkit or sudo, takes ssh through Tor with a netcat, and checks downloads with GnuPG where that is installed.</source>
        <translation>Es richtet das Netz mit nftables, resolvectl und gsettings ein, fragt mit polkit oder sudo nach dem Administrator, führt ssh mit einem netcat durch Tor und prüft Downloads mit GnuPG, wo das installiert ist.</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Fragen</translation>
    </message>
    <message>
        <source>Try bridges</source>
        <translation>Brücken versuchen</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Nichts tun</translation>
    </message>
</context>
<context>
    <name>veldmark::ShutdownNotice</name>
    <message>
        <source>Restoring your network settings</source>
        <translation>Netzwerkeinstellungen werden wiederhergestellt</translation>
    </message>
</context>
<context>
    <name>veldmark::Text</name>
    <message>
        <source>Tor hasn&apos;t confirmed that it uses the network again, so traffic may not get through. Veldmark keeps telling Tor to. If this lasts, disconnect and connect again.</source>
        <translation>Tor hat nicht bestätigt, dass es das Netzwerk wieder benutzt; der Verkehr kommt womöglich nicht durch. Veldmark fordert es weiter dazu auf. Hält das an, trennen Sie und verbinden Sie sich neu.</translation>
    </message>
    <message>
        <source>Version %1 is offered, which is older than the installed %2. Nothing was changed.</source>
        <translation>Angeboten wird Version %1, die älter ist als die installierte %2. Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>The download of version %1 contains another version, so it was discarded.</source>
        <translation>Der Download von Version %1 enthält eine andere Version und wurde verworfen.</translation>
    </message>
    <message>
        <source>The download begins again when Tor is connected…</source>
        <translation>Der Download beginnt von vorn, wenn Tor verbunden ist…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a location of Tor. Give an absolute path, such as /usr/bin/tor.</source>
        <translation>„%1“ ist kein Ort von Tor. Geben Sie einen absoluten Pfad an, etwa /usr/bin/tor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be changed during a connection. Disconnect to change it.</source>
        <translation>„%1“ lässt sich während einer Verbindung nicht ändern. Zum Ändern trennen.</translation>
    </message>
    <message>
        <source>Your traffic is not going through Tor</source>
        <translation>Ihr Verkehr geht nicht durch Tor</translation>
    </message>
    <message>
        <source>Restoring your network settings…</source>
        <translation>Ihre Netzwerkeinstellungen werden wiederhergestellt…</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor from an earlier session</source>
        <translation>Ihr Netzwerk ist noch von einer früheren Sitzung für Tor eingerichtet</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Ihr Netzwerk ist noch für Tor eingerichtet</translation>
    </message>
    <message>
        <source>Preparing Tor…</source>
        <translation>Tor wird vorbereitet…</translation>
    </message>
    <message>
        <source>Waiting for administrator approval…</source>
        <translation>Warten auf die Zustimmung eines Administrators…</translation>
    </message>
    <message>
        <source>Waiting for an administrator to approve a program…</source>
        <translation>Ein Administrator muss ein Programm zulassen…</translation>
    </message>
    <message>
        <source>Starting Tor…</source>
        <translation>Tor startet…</translation>
    </message>
    <message>
        <source>Tor is waiting for the bridge program, which hasn&apos;t said that it is ready.</source>
        <translation>Tor wartet auf das Brückenprogramm, das sich noch nicht bereit gemeldet hat.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting</source>
        <translation>Tor konnte sich nicht fertig verbinden</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor läuft nicht mehr</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor</source>
        <translation>Aller Verkehr ist auf Tor beschränkt</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor</source>
        <translation>Apps, die den System-Proxy benutzen, gehen durch Tor</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. Reconnect, or Restore Network to go back online.</source>
        <translation>Tor läuft nicht mehr. Der Notschalter sperrt weiter, also gab es kein Leck. Verbinden Sie sich neu, oder stellen Sie das Netzwerk wieder her, um ohne Tor online zu gehen.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, but the last checks saw traffic go around Tor. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor läuft nicht mehr. Der Notschalter sperrt weiter, aber die letzten Prüfungen haben Verkehr an Tor vorbei gesehen. Verbinden Sie sich neu, oder stellen Sie das Netzwerk wieder her, um ohne Tor online zu gehen.</translation>
    </message>
    <message>
        <source>Tor stopped running. Apps using the proxy can&apos;t connect until you reconnect or Restore Network.</source>
        <translation>Tor läuft nicht mehr. Apps, die den Proxy benutzen, können sich erst wieder verbinden, wenn Sie sich neu verbinden oder das Netzwerk wiederherstellen.</translation>
    </message>
    <message>
        <source>Any (recommended)</source>
        <translation>Beliebig (empfohlen)</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>USA</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Kanada</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Großbritannien</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Deutschland</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Niederlande</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Frankreich</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Schweden</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Schweiz</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finnland</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Rumänien</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japan</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Singapur</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>DNS can go around Tor via: %1</source>
        <translation>DNS kann an Tor vorbei über: %1</translation>
    </message>
    <message>
        <source>DNS: not tested yet.</source>
        <translation>DNS: noch nicht getestet.</translation>
    </message>
    <message>
        <source>DNS: testing…</source>
        <translation>DNS: Test läuft…</translation>
    </message>
    <message>
        <source>DNS: a test lookup went through Tor.</source>
        <translation>DNS: Eine Testabfrage ging durch Tor.</translation>
    </message>
    <message>
        <source>DNS: settings point at Tor, but a test lookup couldn&apos;t be confirmed.</source>
        <translation>DNS: Die Einstellungen zeigen auf Tor, aber eine Testabfrage ließ sich nicht bestätigen.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Dieser Computer</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Dieser Mac</translation>
    </message>
    <message>
        <source>on this computer</source>
        <translation>auf diesem Computer</translation>
    </message>
    <message>
        <source>on this Mac</source>
        <translation>auf diesem Mac</translation>
    </message>
    <message>
        <source>Tor stopped running, and your network is no longer set up for it.</source>
        <translation>Tor läuft nicht mehr, und Ihr Netzwerk ist nicht mehr dafür eingerichtet.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is blocking traffic again, but another program had removed its rules for a while. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor läuft nicht mehr. Der Notschalter sperrt wieder, aber ein anderes Programm hatte seine Regeln eine Zeit lang entfernt. Verbinden Sie sich neu, oder stellen Sie das Netzwerk wieder her, um ohne Tor online zu gehen.</translation>
    </message>
    <message>
        <source>Tor stopped running, and the kill switch doesn&apos;t block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network.</source>
        <translation>Tor läuft nicht mehr, und der Notschalter sperrt nicht: Ein anderes Programm hat seine Regeln entfernt. Daten können diesen Computer direkt verlassen. Verbinden Sie sich neu, oder stellen Sie das Netzwerk wieder her.</translation>
    </message>
    <message>
        <source>Tor stopped running, and it isn&apos;t known whether the kill switch is still blocking traffic. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor läuft nicht mehr, und es ist nicht bekannt, ob der Notschalter noch sperrt. Verbinden Sie sich neu, oder stellen Sie das Netzwerk wieder her, um ohne Tor online zu gehen.</translation>
    </message>
    <message>
        <source>The watcher of Veldmark&apos;s firewall rules has stopped reporting, so it isn&apos;t known whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>Der Wächter über Veldmarks Firewall-Regeln meldet sich nicht mehr, daher ist nicht bekannt, ob der Notschalter sperrt. Trennen Sie und verbinden Sie sich neu.</translation>
    </message>
    <message>
        <source>Not Protected</source>
        <translation>Nicht geschützt</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Verbinden…</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Trennen…</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>Geschützt</translation>
    </message>
    <message>
        <source>Proxy Active</source>
        <translation>Proxy aktiv</translation>
    </message>
    <message>
        <source>Needs Attention</source>
        <translation>Handlung nötig</translation>
    </message>
    <message>
        <source>DNS Leak</source>
        <translation>DNS-Leck</translation>
    </message>
    <message>
        <source>Kill Switch Failed</source>
        <translation>Notschalter sperrt nicht</translation>
    </message>
    <message>
        <source>Traffic may leave this computer directly</source>
        <translation>Daten können diesen Computer direkt verlassen</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>Namensabfragen können an Tor vorbei</translation>
    </message>
    <message>
        <source>Lookups can go around Tor, and your real address can be seen</source>
        <translation>Namensabfragen können an Tor vorbei, und Ihre echte Adresse ist sichtbar</translation>
    </message>
    <message>
        <source>Your real address can be seen. Disconnect, or run the leak test again.</source>
        <translation>Ihre echte Adresse ist sichtbar. Trennen Sie, oder wiederholen Sie den Lecktest.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>Es ist nicht bekannt, ob der Notschalter sperrt. Trennen Sie und verbinden Sie sich neu.</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor, but the exit could not be confirmed</source>
        <translation>Aller Verkehr ist auf Tor beschränkt, aber der Ausgang ließ sich nicht bestätigen</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor, but the exit could not be confirmed</source>
        <translation>Apps, die den System-Proxy benutzen, gehen durch Tor, aber der Ausgang ließ sich nicht bestätigen</translation>
    </message>
    <message>
        <source>No Network</source>
        <translation>Kein Netz</translation>
    </message>
    <message>
        <source>Nothing Gets Through</source>
        <translation>Nichts kommt durch</translation>
    </message>
    <message>
        <source>This computer has no network. Traffic around Tor stays blocked.</source>
        <translation>Dieser Computer hat kein Netz. Verkehr an Tor vorbei bleibt gesperrt.</translation>
    </message>
    <message>
        <source>This computer has no network. Veldmark goes on when it is back.</source>
        <translation>Dieser Computer hat kein Netz. Veldmark macht weiter, sobald es wieder da ist.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor hat keinen funktionierenden Kanal und versucht es weiter. Verkehr an Tor vorbei bleibt gesperrt.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying.</source>
        <translation>Tor hat keinen funktionierenden Kanal und versucht es weiter.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor bekommt aus dem Netz keine Antwort und versucht es weiter. Verkehr an Tor vorbei bleibt gesperrt.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying.</source>
        <translation>Tor bekommt aus dem Netz keine Antwort und versucht es weiter.</translation>
    </message>
    <message>
        <source>Another program has ended this session and started its own. Restore Network ends that session.</source>
        <translation>Ein anderes Programm hat diese Sitzung beendet und eine eigene begonnen. „Netzwerk wiederherstellen“ beendet die neue Sitzung.</translation>
    </message>
    <message>
        <source>This computer has no network, so Tor can&apos;t connect.</source>
        <translation>Dieser Computer hat kein Netz, daher kann Tor keine Verbindung herstellen.</translation>
    </message>
    <message>
        <source>A VPN takes Tor&apos;s traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode.</source>
        <translation>Tors Verkehr läuft über ein VPN, und der strikte Modus lässt das VPN nicht hinaus. Schalten Sie das VPN aus, oder verwenden Sie den Proxy-Modus.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules; they are back in place.</source>
        <translation>Ein anderes Programm hat Veldmarks Firewall-Regeln entfernt; sie sind wiederhergestellt.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules and they could not be put back. Traffic may leave this computer directly. Disconnect and connect again.</source>
        <translation>Ein anderes Programm hat Veldmarks Firewall-Regeln entfernt, und sie ließen sich nicht wiederherstellen. Daten können diesen Computer direkt verlassen. Trennen Sie und verbinden Sie sich neu.</translation>
    </message>
    <message>
        <source>Invalid exit country.</source>
        <translation>Ungültiges Ausgangsland.</translation>
    </message>
    <message>
        <source>The settings couldn&apos;t be saved. Changes to them may last only until you quit.</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden. Änderungen gelten vielleicht nur bis zum Beenden.</translation>
    </message>
    <message>
        <source>Checking latest version…</source>
        <translation>Neueste Version wird gesucht…</translation>
    </message>
    <message>
        <source>Verifying signature…</source>
        <translation>Signatur wird geprüft…</translation>
    </message>
    <message>
        <source>Another download is under way.</source>
        <translation>Es läuft schon ein anderer Download.</translation>
    </message>
    <message>
        <source>Path not responding, finding another…</source>
        <translation>Der Weg antwortet nicht, ein anderer wird gesucht…</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes.</source>
        <translation>Tor hat die Verbindung nicht innerhalb von 5 Minuten aufgebaut.</translation>
    </message>
    <message>
        <source>Administrator access was refused, or the agent that asks for the password gave no answer.</source>
        <translation>Administratorrechte wurden verweigert, oder der Agent, der nach dem Passwort fragt, gab keine Antwort.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, so Tor can&apos;t connect: %1.</source>
        <translation>Eine andere Firewall auf diesem Computer verwehrt ausgehende Verbindungen, daher kann Tor sich nicht verbinden: %1.</translation>
    </message>
    <message>
        <source>Setup ran but the helper wasn&apos;t installed. Try again.</source>
        <translation>Die Einrichtung lief, aber das Hilfsprogramm wurde nicht installiert. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The helper failed without an error message.</source>
        <translation>Das Hilfsprogramm ist ohne Fehlermeldung gescheitert.</translation>
    </message>
    <message>
        <source>Add at least one bridge under Bridges → Custom….</source>
        <translation>Tragen Sie unter „Brücken → Eigene…“ mindestens eine Brücke ein.</translation>
    </message>
    <message>
        <source>Some custom bridge lines aren&apos;t valid. Fix them under Bridges → Custom….</source>
        <translation>Einige eigene Brückenzeilen sind ungültig. Berichtigen Sie sie unter „Brücken → Eigene…“.</translation>
    </message>
    <message>
        <source>At most %1 custom bridges can be used. Remove some under Bridges → Custom….</source>
        <translation>Höchstens %1 eigene Brücken können benutzt werden. Entfernen Sie einige unter „Brücken → Eigene…“.</translation>
    </message>
    <message>
        <source>Testing speed (%1 of %2)…</source>
        <translation>Geschwindigkeit wird getestet (%1 von %2)…</translation>
    </message>
    <message>
        <source>Slow path (%1 ms), finding a faster one…</source>
        <translation>Langsamer Weg (%1 ms), ein schnellerer wird gesucht…</translation>
    </message>
    <message>
        <source>Downloading Tor %1 bridge programs…</source>
        <translation>Brückenprogramme von Tor %1 werden geladen…</translation>
    </message>
    <message>
        <source>Download of %1 failed (HTTP %2).</source>
        <translation>Der Download ist gescheitert: %1 (HTTP %2).</translation>
    </message>
    <message>
        <source>The settings file couldn&apos;t be read. It was kept as %1, and a new one is used.</source>
        <translation>Die Einstellungsdatei konnte nicht gelesen werden. Sie wurde als %1 aufgehoben, und eine neue wird benutzt.</translation>
    </message>
    <message>
        <source>The settings file %1 can&apos;t be read or replaced. Changes to the settings last until you quit.</source>
        <translation>Die Einstellungsdatei %1 kann weder gelesen noch ersetzt werden. Änderungen gelten bis zum Beenden.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1 without Tor: %2</source>
        <translation>%1 konnte nicht ohne Tor geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>Ein anderes Veldmark von Ihnen hat inzwischen eine Sitzung begonnen, daher wurde keine Sitzung beendet. Trennen Sie noch einmal, um jene Sitzung zu beenden.</translation>
    </message>
    <message>
        <source>Another user&apos;s Veldmark has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>Das Veldmark eines anderen Benutzers hat inzwischen eine Sitzung begonnen, daher wurde keine Sitzung beendet. Trennen Sie noch einmal, um jene Sitzung zu beenden.</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by another Veldmark of yours, process %1</source>
        <translation>Ihr Netzwerk ist durch ein anderes Veldmark von Ihnen für Tor eingerichtet, Prozess %1</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by %1, whose Veldmark is process %2</source>
        <translation>Ihr Netzwerk ist durch %1 für Tor eingerichtet, mit Veldmark als Prozess %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours is connected (process %1). Disconnect it, or restore the network, first.</source>
        <translation>Ein anderes Veldmark von Ihnen ist verbunden (Prozess %1). Trennen Sie es zuerst, oder stellen Sie das Netzwerk wieder her.</translation>
    </message>
    <message>
        <source>%1 is connected with Veldmark (process %2). That session must be ended first.</source>
        <translation>%1 ist mit Veldmark verbunden (Prozess %2). Diese Sitzung muss zuerst beendet werden.</translation>
    </message>
    <message>
        <source>%1 Your network is still pointed at Tor. Click Restore Network to undo.</source>
        <translation>%1 Ihr Netzwerk ist noch für Tor eingerichtet. Klicken Sie auf „Netzwerk wiederherstellen“, um das rückgängig zu machen.</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install the OpenBSD netcat or Ncat with your package manager.</source>
        <translation>ssh geht noch nicht durch Tor: Es braucht ein netcat, das SOCKS spricht. Installieren Sie das netcat von OpenBSD oder Ncat mit Ihrer Paketverwaltung.</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up terminal mode: %1</source>
        <translation>Der Terminalmodus konnte nicht eingerichtet werden: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove terminal integration: %1</source>
        <translation>Die Terminal-Einbindung konnte nicht entfernt werden: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up passwordless mode: %1</source>
        <translation>Der Betrieb ohne Passwort konnte nicht eingerichtet werden: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove passwordless mode: %1</source>
        <translation>Der Betrieb ohne Passwort konnte nicht entfernt werden: %1</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install one with: %1</source>
        <translation>ssh geht noch nicht durch Tor: Es braucht ein netcat, das SOCKS spricht. Installieren Sie eines mit: %1</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Verbinden Sie sich im strikten Modus, um Apps ohne Tor zu öffnen</translation>
    </message>
    <message>
        <source>No bridge answered a quick test, trying them all</source>
        <translation>Keine Brücke hat im Schnelltest geantwortet; alle werden versucht</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Diese Brücken brauchen lyrebird, das mit dem Tor Browser kommt. Klicken Sie bei „Brücken“ auf „Herunterladen“, um es zu bekommen.</translation>
    </message>
    <message>
        <source>Snowflake needs snowflake-client, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Snowflake braucht snowflake-client, das mit dem Tor Browser kommt. Klicken Sie bei „Brücken“ auf „Herunterladen“, um es zu bekommen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the latest Tor version from torproject.org.</source>
        <translation>Die neueste Version von Tor war auf torproject.org nicht zu lesen.</translation>
    </message>
    <message>
        <source>The request timed out.</source>
        <translation>Die Anfrage hat zu lange gedauert.</translation>
    </message>
    <message>
        <source>The server gave no HTTP answer.</source>
        <translation>Der Server hat nicht mit HTTP geantwortet.</translation>
    </message>
    <message>
        <source>The connection was lost before the download ended.</source>
        <translation>Die Verbindung ist vor dem Ende des Downloads abgerissen.</translation>
    </message>
    <message>
        <source>Not connected to Tor&apos;s control port.</source>
        <translation>Es besteht keine Verbindung zu Tors Steuerport.</translation>
    </message>
    <message>
        <source>Tor closed the control connection.</source>
        <translation>Tor hat die Steuerverbindung beendet.</translation>
    </message>
    <message>
        <source>A program other than Tor listens on Tor&apos;s control port.</source>
        <translation>An Tors Steuerport lauscht ein anderes Programm als Tor.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t answer on its control port in time.</source>
        <translation>Tor hat an seinem Steuerport nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager or set its location in Settings.</source>
        <translation>Tor ist nicht installiert. Installieren Sie es mit Ihrer Paketverwaltung, oder geben Sie in den Einstellungen seinen Ort an.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with Homebrew (brew install tor) or set its location in Settings.</source>
        <translation>Tor ist nicht installiert. Installieren Sie es mit Homebrew (brew install tor), oder geben Sie in den Einstellungen seinen Ort an.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: polkit is not running on this system.</source>
        <translation>Administratorrechte können nicht angefordert werden: polkit läuft auf diesem System nicht.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: no PolicyKit authentication agent is running in this session.</source>
        <translation>Administratorrechte können nicht angefordert werden: In dieser Sitzung läuft kein PolicyKit-Agent.</translation>
    </message>
    <message>
        <source>The password could not be checked: polkit accepts no password from this terminal. Run the command with sudo.</source>
        <translation>Das Passwort konnte nicht geprüft werden: polkit nimmt von diesem Terminal keines an. Führen Sie den Befehl mit sudo aus.</translation>
    </message>
    <message>
        <source>Couldn&apos;t fix DNS: %1</source>
        <translation>DNS konnte nicht repariert werden: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t request a new identity: %1</source>
        <translation>Eine neue Identität konnte nicht angefordert werden: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read circuits: %1</source>
        <translation>Die Kanäle konnten nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the login-item setting: %1</source>
        <translation>Der Start bei der Anmeldung konnte nicht geändert werden: %1</translation>
    </message>
    <message>
        <source>Login items can&apos;t be changed here.</source>
        <translation>Anmeldeobjekte lassen sich hier nicht ändern.</translation>
    </message>
    <message>
        <source>Move Veldmark to the Applications folder and open it from there first.</source>
        <translation>Bewegen Sie Veldmark zuerst in den Ordner „Programme“ und öffnen Sie es von dort.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1.</source>
        <translation>%1 ließ sich nicht entfernen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <translation>%1 ließ sich nicht schreiben: %2</translation>
    </message>
    <message>
        <source>Couldn&apos;t download bridge programs: %1</source>
        <translation>Die Brückenprogramme konnten nicht heruntergeladen werden: %1</translation>
    </message>
    <message>
        <source>Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download again to also verify the Tor Project&apos;s signature.</source>
        <translation>Brückenprogramme %1 über HTTPS installiert. Installieren Sie GnuPG (%2) und laden Sie noch einmal herunter, um auch die Signatur des Tor-Projekts zu prüfen.</translation>
    </message>
    <message>
        <source>The download&apos;s signature didn&apos;t verify, so it was discarded. %1</source>
        <translation>Die Signatur des Downloads ließ sich nicht bestätigen, er wurde verworfen. %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unpack the download. %1</source>
        <translation>Der Download konnte nicht entpackt werden. %1</translation>
    </message>
    <message>
        <source>Tor can&apos;t reach the bridge program: %1.</source>
        <translation>Tor erreicht das Brückenprogramm nicht: %1.</translation>
    </message>
    <message>
        <source>Tor reports: %1 (%2).</source>
        <translation>Tor meldet: %1 (%2).</translation>
    </message>
    <message>
        <source>Tor reports: %1.</source>
        <translation>Tor meldet: %1.</translation>
    </message>
    <message>
        <source>Tor replied: %1</source>
        <translation>Tor hat geantwortet: %1</translation>
    </message>
    <message>
        <source>Tor has trouble with the bridge program: %1</source>
        <translation>Tor hat Schwierigkeiten mit dem Brückenprogramm: %1</translation>
    </message>
    <message>
        <source>The bridge program printed something that Tor doesn&apos;t understand: &quot;%1&quot;.</source>
        <translation>Das Brückenprogramm hat etwas ausgegeben, was Tor nicht versteht: „%1“.</translation>
    </message>
    <message>
        <source>Using the %1 fastest of %2 bridges</source>
        <translation>Die %1 schnellsten von %2 Brücken werden benutzt</translation>
    </message>
    <message>
        <source>The %1 bridge type isn&apos;t supported yet.</source>
        <translation>Brücken der Art %1 werden noch nicht unterstützt.</translation>
    </message>
    <message>
        <source>Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, install Tor Browser, or paste your own under Bridges → Custom….</source>
        <translation>Eingebaute %1-Brücken kommen aus dem Tor Browser. Klicken Sie bei „Brücken“ auf „Herunterladen“, installieren Sie den Tor Browser, oder fügen Sie unter „Brücken → Eigene…“ eigene ein.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1.</source>
        <translation>Manche DNS-Einstellungen kommen von außerhalb von Veldmark (einem VPN oder /etc/resolver) und führen noch an Tor vorbei: %1.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1. Strict mode&apos;s firewall blocks them.</source>
        <translation>Manche DNS-Einstellungen kommen von außerhalb von Veldmark (einem VPN oder /etc/resolver) und führen noch an Tor vorbei: %1. Die Firewall des strikten Modus sperrt sie.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager (%1) or set its location in Settings.</source>
        <translation>Tor ist nicht installiert. Installieren Sie es mit Ihrer Paketverwaltung (%1), oder geben Sie in den Einstellungen seinen Ort an.</translation>
    </message>
    <message>
        <source>%1 is already being opened.</source>
        <translation>%1 wird schon geöffnet.</translation>
    </message>
    <message>
        <source>A session is open, and its kill switch doesn&apos;t block traffic: its watcher couldn&apos;t put the rules back. Traffic may leave this computer directly. Restore the network, and connect again.</source>
        <translation>Eine Sitzung ist offen, und ihr Notschalter sperrt nicht: Dessen Wächter konnte die Regeln nicht wiederherstellen. Daten können diesen Computer direkt verlassen. Stellen Sie das Netzwerk wieder her, und verbinden Sie sich neu.</translation>
    </message>
    <message>
        <source>The clock is behind: it shows %1, but the file %2 was written on %3. Tor needs a clock that is right to within minutes.</source>
        <translation>Die Uhr geht nach: Sie zeigt %1, aber die Datei %2 wurde am %3 geschrieben. Tor braucht eine Uhr, die auf Minuten genau geht.</translation>
    </message>
    <message>
        <source>The clock is set from the network. It shows %1.</source>
        <translation>Die Uhr wird über das Netz gestellt. Sie zeigt %1.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether the clock is right: no time service seems to set it. It shows %1. Tor needs it right to within minutes.</source>
        <translation>Ob die Uhr richtig geht, ist nicht bekannt: Kein Zeitdienst scheint sie zu stellen. Sie zeigt %1. Tor braucht sie auf Minuten genau.</translation>
    </message>
    <message>
        <source>nftables isn&apos;t installed. Veldmark&apos;s firewall needs it.</source>
        <translation>nftables ist nicht installiert. Veldmarks Firewall braucht es.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall, nftables, can be used.</source>
        <translation>Die Firewall des Systems, nftables, lässt sich benutzen.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall can&apos;t be used: %1</source>
        <translation>Die Firewall des Systems lässt sich nicht benutzen: %1</translation>
    </message>
    <message>
        <source>The running kernel (%1) has no nftables. After an upgrade of the kernel, restart the computer.</source>
        <translation>Der laufende Kernel (%1) hat kein nftables. Starten Sie nach einer Aktualisierung des Kernels den Computer neu.</translation>
    </message>
    <message>
        <source>nftables is installed. Only root can tell whether the running kernel can use it.</source>
        <translation>nftables ist installiert. Ob der laufende Kernel es nutzen kann, weiß nur root.</translation>
    </message>
    <message>
        <source>nftables is installed, and the kernel has it.</source>
        <translation>nftables ist installiert, und der Kernel hat es.</translation>
    </message>
    <message>
        <source>This system has no control groups of version 2, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>Dieses System hat keine Kontrollgruppen der Version 2, daher lässt sich keine Anwendung ohne Tor öffnen, und der Notschalter erkennt Tor allein an dessen Konto. Alles andere geht.</translation>
    </message>
    <message>
        <source>The kernel (%1) is older than 5.13, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>Der Kernel (%1) ist älter als 5.13, daher lässt sich keine Anwendung ohne Tor öffnen, und der Notschalter erkennt Tor allein an dessen Konto. Alles andere geht.</translation>
    </message>
    <message>
        <source>Applications can be opened without Tor: control groups of version 2 are there.</source>
        <translation>Anwendungen lassen sich ohne Tor öffnen: Kontrollgruppen der Version 2 sind da.</translation>
    </message>
    <message>
        <source>No other firewall that Veldmark knows runs. Only root can read the rules themselves.</source>
        <translation>Es läuft keine andere Firewall, die Veldmark kennt. Die Regeln selbst kann nur root lesen.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic that its rules don&apos;t allow, so Tor may not get through: %1.</source>
        <translation>Eine andere Firewall auf diesem Computer verwehrt ausgehende Verbindungen, die keine ihrer Regeln erlaubt; Tor kommt womöglich nicht durch: %1.</translation>
    </message>
    <message>
        <source>Other programs set firewall rules here: %1. Veldmark leaves their rules alone. Rules that drop packets can block Tor.</source>
        <translation>Andere Programme setzen hier Firewall-Regeln: %1. Veldmark lässt ihre Regeln in Ruhe. Regeln, die Pakete verwerfen, können Tor sperren.</translation>
    </message>
    <message>
        <source>pkexec isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>pkexec ist nicht installiert, daher kann kein Fenster nach dem Administratorpasswort fragen.</translation>
    </message>
    <message>
        <source>polkit isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>polkit ist nicht installiert, daher kann kein Fenster nach dem Administratorpasswort fragen.</translation>
    </message>
    <message>
        <source>There is no desktop here on which a window could ask for the administrator&apos;s password. Use sudo.</source>
        <translation>Hier gibt es keine Arbeitsumgebung, in der ein Fenster nach dem Administratorpasswort fragen könnte. Benutzen Sie sudo.</translation>
    </message>
    <message>
        <source>No known polkit agent, the program that asks for the password, runs in your session. Use sudo, or start an agent such as lxpolkit.</source>
        <translation>In Ihrer Sitzung läuft kein bekannter polkit-Agent, also das Programm, das nach dem Passwort fragt. Benutzen Sie sudo, oder starten Sie einen Agenten wie lxpolkit.</translation>
    </message>
    <message>
        <source>polkit is installed, and an agent that asks for the password runs in your session.</source>
        <translation>polkit ist installiert, und in Ihrer Sitzung läuft ein Agent, der nach dem Passwort fragt.</translation>
    </message>
    <message>
        <source>Veldmark runs as root here and asks for no password.</source>
        <translation>Veldmark läuft hier als root und fragt nach keinem Passwort.</translation>
    </message>
    <message>
        <source>Passwordless mode is set up.</source>
        <translation>Der Betrieb ohne Passwort ist eingerichtet.</translation>
    </message>
    <message>
        <source>sudo isn&apos;t installed. Passwordless mode needs it.</source>
        <translation>sudo ist nicht installiert. Der Betrieb ohne Passwort braucht es.</translation>
    </message>
    <message>
        <source>sudo is installed. Only root can tell whether you may use it.</source>
        <translation>sudo ist installiert. Ob Sie es benutzen dürfen, weiß nur root.</translation>
    </message>
    <message>
        <source>sudo is installed, and you are in the group %1.</source>
        <translation>sudo ist installiert, und Sie sind in der Gruppe %1.</translation>
    </message>
    <message>
        <source>The program listens on IPv6. If it takes IPv6 alone, Tor can use the port.</source>
        <translation>Das Programm lauscht auf IPv6. Nimmt es nur IPv6 an, kann Tor den Port benutzen.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by a program of the account %2.</source>
        <translation>Den Port %1, den Tor braucht, belegt ein Programm des Kontos %2.</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) runs. Veldmark stops it while it is connected and starts it again afterwards.</source>
        <translation>Der Tor-Dienst des Systems (%1) läuft. Veldmark hält ihn an, solange es verbunden ist, und startet ihn danach wieder.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2 (process %3, account %4).</source>
        <translation>Den Port %1, den Tor braucht, belegt %2 (Prozess %3, Konto %4).</translation>
    </message>
    <message>
        <source>Veldmark&apos;s own Tor holds the ports 9050, 9051 and 293.</source>
        <translation>Veldmarks eigenes Tor belegt die Ports 9050, 9051 und 293.</translation>
    </message>
    <message>
        <source>The ports that Tor needs (9050, 9051 and 293) are free.</source>
        <translation>Die Ports, die Tor braucht (9050, 9051 und 293), sind frei.</translation>
    </message>
    <message>
        <source>The location of Tor in the settings, %1, is not an executable program. Veldmark searches the usual places instead.</source>
        <translation>Der Ort von Tor in den Einstellungen, %1, ist kein ausführbares Programm. Veldmark sucht stattdessen an den üblichen Orten.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed.</source>
        <translation>Tor ist nicht installiert.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t start, or isn&apos;t Tor: it prints no version.</source>
        <translation>%1 startet nicht oder ist nicht Tor: Es nennt seine Version nicht.</translation>
    </message>
    <message>
        <source>Tor %1 is installed: %2.</source>
        <translation>Tor %1 ist installiert: %2.</translation>
    </message>
    <message>
        <source>The program %1 is missing. Veldmark&apos;s helper needs it.</source>
        <translation>Das Programm %1 fehlt. Veldmarks Hilfsprogramm braucht es.</translation>
    </message>
    <message>
        <source>Every program that Veldmark&apos;s helper calls is installed.</source>
        <translation>Alle Programme, die Veldmarks Hilfsprogramm aufruft, sind installiert.</translation>
    </message>
    <message>
        <source>The helper is missing. Reinstall Veldmark.</source>
        <translation>Das Hilfsprogramm fehlt. Installieren Sie Veldmark neu.</translation>
    </message>
    <message>
        <source>Accounts other than root can change Veldmark&apos;s helper, %1, and with it what the administrator&apos;s password runs.</source>
        <translation>Andere Konten als root können Veldmarks Hilfsprogramm, %1, ändern und damit auch, was mit dem Administratorpasswort ausgeführt wird.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper, %1, is not installed: the account %2 can change it, and with it what the administrator&apos;s password runs.</source>
        <translation>Veldmarks Hilfsprogramm, %1, ist nicht installiert: Das Konto %2 kann es ändern und damit auch, was mit dem Administratorpasswort ausgeführt wird.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper is installed, and only root can change it: %1.</source>
        <translation>Veldmarks Hilfsprogramm ist installiert, und nur root kann es ändern: %1.</translation>
    </message>
    <message>
        <source>The helper of passwordless mode belongs to another version. Set up passwordless mode again in Settings, General.</source>
        <translation>Das Hilfsprogramm des Betriebs ohne Passwort gehört zu einer anderen Version. Richten Sie den Betrieb ohne Passwort unter „Einstellungen → Allgemein“ neu ein.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridges need bridge programs where Tor is blocked, and none was found.</source>
        <translation>Brücken sind aus. Wo Tor gesperrt ist, brauchen sie Brückenprogramme, und es wurde keines gefunden.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridge programs were found: %1.</source>
        <translation>Brücken sind aus. Gefundene Brückenprogramme: %1.</translation>
    </message>
    <message>
        <source>The chosen bridges can&apos;t be used. %1</source>
        <translation>Die gewählten Brücken lassen sich nicht benutzen. %1</translation>
    </message>
    <message>
        <source>The chosen bridges (%1) can be used: %2.</source>
        <translation>Die gewählten Brücken (%1) lassen sich benutzen: %2.</translation>
    </message>
    <message>
        <source>%1 manages DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>%1 verwaltet DNS. Veldmark ändert das, solange es verbunden ist, und stellt es danach wieder her.</translation>
    </message>
    <message>
        <source>Veldmark wrote %1. It points DNS at Tor.</source>
        <translation>%1 ist von Veldmark geschrieben und richtet DNS auf Tor.</translation>
    </message>
    <message>
        <source>The file %1 is missing, so DNS may not work at all.</source>
        <translation>Die Datei %1 fehlt, daher funktioniert DNS vielleicht gar nicht.</translation>
    </message>
    <message>
        <source>A resolver on this computer answers DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>Ein Resolver auf diesem Computer beantwortet DNS. Veldmark ändert das, solange es verbunden ist, und stellt es danach wieder her.</translation>
    </message>
    <message>
        <source>No earlier session is left open.</source>
        <translation>Keine frühere Sitzung ist offen geblieben.</translation>
    </message>
    <message>
        <source>A Tor of an earlier session still runs (process %1).</source>
        <translation>Ein Tor einer früheren Sitzung läuft noch (Prozess %1).</translation>
    </message>
    <message>
        <source>A session is open: the network is set up for Tor, and Tor runs.</source>
        <translation>Eine Sitzung ist offen: Das Netzwerk ist für Tor eingerichtet, und Tor läuft.</translation>
    </message>
    <message>
        <source>The network is set up for Tor. It isn&apos;t known whether Tor still runs.</source>
        <translation>Das Netzwerk ist für Tor eingerichtet. Ob Tor noch läuft, ist hier nicht bekannt.</translation>
    </message>
    <message>
        <source>The network is still set up for Tor from an earlier session, and no Tor runs. Connect again, or restore the network.</source>
        <translation>Das Netzwerk ist noch von einer früheren Sitzung für Tor eingerichtet, und es läuft kein Tor. Verbinden Sie sich wieder, oder stellen Sie das Netzwerk wieder her.</translation>
    </message>
    <message>
        <source>A session is open, and it isn&apos;t known whether its kill switch blocks traffic: no watcher watches the rules. Restore the network, and connect again.</source>
        <translation>Eine Sitzung ist offen, und ob ihr Notschalter sperrt, ist nicht bekannt: Kein Wächter beobachtet die Regeln. Stellen Sie das Netzwerk wieder her, und verbinden Sie sich neu.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 of %2 MB (%3%)</source>
        <translation>%1 von %2 MB (%3 %)</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this computer. While connected, Veldmark stops the system&apos;s own Tor service.</source>
        <translation>Veldmark braucht Administratorrechte, um den Weg durch Tor auf diesem Computer einzurichten. Solange Veldmark verbunden ist, hält es den Tor-Dienst des Systems an.</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this Mac.</source>
        <translation>Veldmark braucht Administratorrechte, um den Weg durch Tor auf diesem Mac zu verwalten.</translation>
    </message>
    <message>
        <source>The archive contains %1: %2</source>
        <translation>Im Archiv ist %1: %2</translation>
    </message>
    <message>
        <source>a link that leads elsewhere</source>
        <translation>ein Verweis, der nach außerhalb führt</translation>
    </message>
    <message>
        <source>a hard link</source>
        <translation>ein harter Verweis</translation>
    </message>
    <message>
        <source>an entry that is neither a file nor a folder</source>
        <translation>etwas, das weder Datei noch Ordner ist</translation>
    </message>
    <message>
        <source>a path that leads elsewhere</source>
        <translation>ein Pfad, der nach außerhalb führt</translation>
    </message>
    <message>
        <source>The file is empty or not an archive.</source>
        <translation>Die Datei ist leer oder kein Archiv.</translation>
    </message>
    <message>
        <source>The archive&apos;s list of files is ambiguous.</source>
        <translation>Das Inhaltsverzeichnis des Archivs ist nicht eindeutig.</translation>
    </message>
    <message>
        <source>The archive contains too many files.</source>
        <translation>Im Archiv sind zu viele Dateien.</translation>
    </message>
    <message>
        <source>The archive&apos;s content is too large.</source>
        <translation>Der Inhalt des Archivs ist zu groß.</translation>
    </message>
    <message>
        <source>The archive&apos;s content could not be listed.</source>
        <translation>Der Inhalt des Archivs ließ sich nicht auflisten.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make the folder %1: %2.</source>
        <translation>Der Ordner %1 konnte nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1: %2.</source>
        <translation>%1 konnte nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make a folder beside %1: %2.</source>
        <translation>Neben %1 konnte kein Ordner angelegt werden: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2.</source>
        <translation>%1 konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 didn&apos;t end within %2 minutes.</source>
        <translation>%1 ist in %2 Minuten nicht fertig geworden.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load the Tor Browser signing key. %1</source>
        <translation>Der Signaturschlüssel des Tor Browsers ließ sich nicht laden. %1</translation>
    </message>
    <message>
        <source>The server sent more than %1 can be.</source>
        <translation>Der Server hat mehr gesandt, als möglich ist: %1.</translation>
    </message>
    <message>
        <source>the version index</source>
        <translation>Versionsverzeichnis</translation>
    </message>
    <message>
        <source>the bridge programs</source>
        <translation>Brückenprogramme</translation>
    </message>
    <message>
        <source>signature</source>
        <translation>Signatur</translation>
    </message>
    <message>
        <source>signing key</source>
        <translation>Signaturschlüssel</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>Wird installiert…</translation>
    </message>
    <message>
        <source>No applications are installed.</source>
        <translation>Es sind keine Anwendungen installiert.</translation>
    </message>
    <message>
        <source>(not in the menu)</source>
        <translation>(nicht im Menü)</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Die Datei „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>There is no application &quot;%1&quot;; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>Eine Anwendung „%1“ gibt es nicht; „veldmarkctl apps“ zählt sie auf.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be any of: %2. Give the path.</source>
        <translation>„%1“ kann jede von diesen sein: %2. Geben Sie den Pfad an.</translation>
    </message>
    <message>
        <source>%1 needs a key: veldmarkctl %1 KEY.</source>
        <translation>%1 braucht einen Schlüssel: veldmarkctl %1 KEY.</translation>
    </message>
    <message>
        <source>%1 needs a key and a value: veldmarkctl %1 KEY VALUE.</source>
        <translation>%1 braucht einen Schlüssel und einen Wert: veldmarkctl %1 KEY VALUE.</translation>
    </message>
    <message>
        <source>A command is missing. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Es fehlt ein Befehl. „veldmarkctl help“ zählt die Befehle auf.</translation>
    </message>
    <message>
        <source>Unknown command %1. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Unbekannter Befehl %1. „veldmarkctl help“ zählt die Befehle auf.</translation>
    </message>
    <message>
        <source>%1 has no option %2.</source>
        <translation>%1 hat keine Option %2.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t take %2.</source>
        <translation>%1 nimmt %2 nicht an.</translation>
    </message>
    <message>
        <source>usage: veldmarkctl COMMAND</source>
        <translation>Aufruf: veldmarkctl BEFEHL</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage,
3 Veldmark is not running, 4 Veldmark is already running.</source>
        <translation>Rückgabewert: 0 fertig, 1 gescheitert (Grund auf der Standardfehlerausgabe),
2 falscher Aufruf, 3 Veldmark läuft nicht, 4 Veldmark läuft schon.</translation>
    </message>
    <message>
        <source>line %1 is not a bridge line: %2</source>
        <translation>Zeile %1 ist keine Brückenzeile: %2</translation>
    </message>
    <message>
        <source>%1 too many, from line %2 on; at most %3 can be used</source>
        <translation>%1 zu viel, ab Zeile %2; höchstens %3 können benutzt werden</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>doesn&apos;t say which transports it serves</source>
        <translation>sagt nicht, welche Transporte es bietet</translation>
    </message>
    <message>
        <source>serves %1</source>
        <translation>bietet %1</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Eingebaute Brücken</translation>
    </message>
    <message>
        <source>Built-in bridges, from %1</source>
        <translation>Eingebaute Brücken, aus %1</translation>
    </message>
    <message>
        <source>none; get some with: veldmarkctl download-transports</source>
        <translation>keine; holen Sie welche mit: veldmarkctl download-transports</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>Signatur geprüft</translation>
    </message>
    <message>
        <source>signature not verified</source>
        <translation>Signatur nicht geprüft</translation>
    </message>
    <message>
        <source>not downloaded</source>
        <translation>nicht heruntergeladen</translation>
    </message>
    <message>
        <source>Your own bridges</source>
        <translation>Eigene Brücken</translation>
    </message>
    <message>
        <source>%1 valid</source>
        <translation>%1 gültig</translation>
    </message>
    <message>
        <source>Installed Tor Expert Bundle %1, signature verified.</source>
        <translation>Tor Expert Bundle %1 ist installiert, die Signatur wurde geprüft.</translation>
    </message>
    <message>
        <source>Veldmark isn&apos;t running. Start it with: veldmarkctl run --connect</source>
        <translation>Veldmark läuft nicht. Starten Sie es mit: veldmarkctl run --connect</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;. Fields: %2.</source>
        <translation>Ein Feld „%1“ gibt es nicht. Felder: %2.</translation>
    </message>
    <message>
        <source>list the commands</source>
        <translation>die Befehle aufzählen</translation>
    </message>
    <message>
        <source>good</source>
        <translation>gut</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unklar</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>A connect can work.</source>
        <translation>Eine Verbindung ist möglich.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work yet.</source>
        <translation>Eine Verbindung ist noch nicht möglich.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work until each &quot;problem&quot; is fixed.</source>
        <translation>Eine Verbindung ist erst möglich, wenn jedes „Problem“ behoben ist.</translation>
    </message>
    <message>
        <source>proxy: apps that ignore the system proxy are not covered</source>
        <translation>Proxy: Apps, die den System-Proxy übergehen, sind nicht erfasst</translation>
    </message>
    <message>
        <source>strict: only Tor&apos;s traffic leaves</source>
        <translation>strikt: Nur Verkehr von Tor geht hinaus</translation>
    </message>
    <message>
        <source>strict</source>
        <translation>strikt</translation>
    </message>
    <message>
        <source>blocks traffic, since %1</source>
        <translation>sperrt, seit %1</translation>
    </message>
    <message>
        <source>blocks traffic; put back at %1 after another program had removed it</source>
        <translation>sperrt; um %1 wiederhergestellt, nachdem ein anderes Programm ihn entfernt hatte</translation>
    </message>
    <message>
        <source>NOT BLOCKING since %1: traffic may leave this computer directly</source>
        <translation>SPERRT NICHT seit %1: Daten können diesen Computer direkt verlassen</translation>
    </message>
    <message>
        <source>isn&apos;t known to block traffic, since %1</source>
        <translation>nicht bekannt, ob er sperrt, seit %1</translation>
    </message>
    <message>
        <source>not checked yet</source>
        <translation>noch nicht geprüft</translation>
    </message>
    <message>
        <source>the check service didn&apos;t answer through Tor</source>
        <translation>der Prüfdienst hat durch Tor nicht geantwortet</translation>
    </message>
    <message>
        <source>%1, a Tor exit</source>
        <translation>%1, ein Ausgang von Tor</translation>
    </message>
    <message>
        <source>%1, NOT a Tor exit</source>
        <translation>%1, KEIN Ausgang von Tor</translation>
    </message>
    <message>
        <source>open; it shows the address %1</source>
        <translation>offen; er zeigt die Adresse %1</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>no answer, but it isn&apos;t known whether the kill switch blocks it</source>
        <translation>keine Antwort, aber es ist nicht bekannt, ob der Notschalter ihn sperrt</translation>
    </message>
    <message>
        <source>no answer, but proxy mode doesn&apos;t block it</source>
        <translation>keine Antwort, aber der Proxy-Modus sperrt ihn nicht</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>wird geprüft…</translation>
    </message>
    <message>
        <source>inconclusive</source>
        <translation>ließ sich nicht sagen</translation>
    </message>
    <message>
        <source>can go around Tor via: %1</source>
        <translation>kann an Tor vorbei über: %1</translation>
    </message>
    <message>
        <source>a test lookup went through Tor</source>
        <translation>eine Testabfrage ging durch Tor</translation>
    </message>
    <message>
        <source>testing…</source>
        <translation>Test läuft…</translation>
    </message>
    <message>
        <source>settings point at Tor, but a test lookup couldn&apos;t be confirmed</source>
        <translation>die Einstellungen zeigen auf Tor, aber eine Testabfrage ließ sich nicht bestätigen</translation>
    </message>
    <message>
        <source>not tested yet</source>
        <translation>noch nicht getestet</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Antwortzeit</translation>
    </message>
    <message>
        <source>%1 ms through Tor</source>
        <translation>%1 ms durch Tor</translation>
    </message>
    <message>
        <source>Direct path</source>
        <translation>Direkter Weg</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Verkehr</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>%1 empfangen, %2 gesendet</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Brücken</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Zu tun</translation>
    </message>
    <message>
        <source>nothing; veldmarkctl restore would end that session</source>
        <translation>nichts; veldmarkctl restore würde diese Sitzung beenden</translation>
    </message>
    <message>
        <source>Kill switch</source>
        <translation>Notschalter</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Ursache</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>No circuits yet.</source>
        <translation>Noch keine Kanäle.</translation>
    </message>
    <message>
        <source>Ready. Connect with: veldmarkctl connect</source>
        <translation>Bereit. Zum Verbinden: veldmarkctl connect</translation>
    </message>
    <message>
        <source>Still restoring your network, one moment…</source>
        <translation>Ihr Netzwerk wird noch wiederhergestellt, einen Augenblick…</translation>
    </message>
    <message>
        <source>Stopping as soon as Tor has been started…</source>
        <translation>Endet, sobald Tor gestartet ist…</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Restore it with: %1</source>
        <translation>Das Netzwerk ist noch für Tor eingerichtet. Stellen Sie es wieder her mit: %1</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Press Ctrl-C to try again.</source>
        <translation>Das Netzwerk ist noch für Tor eingerichtet. Drücken Sie Strg-C, um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Press Ctrl-C to disconnect.</source>
        <translation>Zum Trennen Strg-C drücken.</translation>
    </message>
    <message>
        <source>A command to Tor can&apos;t contain a line break or a NUL.</source>
        <translation>Ein Befehl an Tor darf keinen Zeilenumbruch und kein NUL enthalten.</translation>
    </message>
    <message>
        <source>Tor sent a line of more than 1 MiB on its control port.</source>
        <translation>Tor hat an seinem Steuerport eine Zeile von mehr als 1 MiB gesandt.</translation>
    </message>
    <message>
        <source>Tor sent a reply of more than 64 MiB on its control port.</source>
        <translation>Tor hat an seinem Steuerport eine Antwort von mehr als 64 MiB gesandt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>„%1“ ist weder true noch false.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a JSON array of strings.</source>
        <translation>„%1“ ist kein JSON-Array von Zeichenketten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a bridge choice: off, obfs4, snowflake, meek or custom.</source>
        <translation>„%1“ ist keine Wahl von Brücken: off, obfs4, snowflake, meek oder custom.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;. Settings: %2.</source>
        <translation>Eine Einstellung „%1“ gibt es nicht. Einstellungen: %2.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes. (%1)</source>
        <translation>Tor hat die Verbindung nicht innerhalb von 5 Minuten aufgebaut. (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an exit country: two lower-case letters such as &quot;de&quot;, or nothing for any.</source>
        <translation>„%1“ ist kein Ausgangsland: zwei Kleinbuchstaben wie „de“, oder nichts für ein beliebiges.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an application: an absolute path that ends in &quot;%2&quot;.</source>
        <translation>„%1“ ist keine Anwendung: Es muss ein absoluter Pfad sein, der auf „%2“ endet.</translation>
    </message>
    <message>
        <source>strict mode with the kill switch, else proxy mode</source>
        <translation>strikter Modus mit dem Notschalter, sonst der Proxy-Modus</translation>
    </message>
    <message>
        <source>strict mode lets the local network through</source>
        <translation>der strikte Modus lässt das lokale Netz durch</translation>
    </message>
    <message>
        <source>two lower-case letters, or nothing for any</source>
        <translation>zwei Kleinbuchstaben, oder nichts für ein beliebiges</translation>
    </message>
    <message>
        <source>the path of the tor to use, or nothing to search for tor</source>
        <translation>der Pfad des tor, das benutzt wird, oder nichts, um tor zu suchen</translation>
    </message>
    <message>
        <source>which bridges</source>
        <translation>welche Brücken</translation>
    </message>
    <message>
        <source>your own bridge lines, as typed</source>
        <translation>Ihre eigenen Brückenzeilen, wie eingegeben</translation>
    </message>
    <message>
        <source>paths of applications that may be opened without Tor</source>
        <translation>Pfade von Anwendungen, die ohne Tor geöffnet werden dürfen</translation>
    </message>
    <message>
        <source>connect when Veldmark starts</source>
        <translation>verbinden, wenn Veldmark startet</translation>
    </message>
    <message>
        <source>test bridges before connecting, look for a faster path afterwards</source>
        <translation>vor dem Verbinden Brücken testen, danach einen schnelleren Weg suchen</translation>
    </message>
    <message>
        <source>command-line tools go through Tor while connected</source>
        <translation>Programme der Kommandozeile gehen durch Tor, solange verbunden ist</translation>
    </message>
    <message>
        <source>with your package manager</source>
        <translation>mit Ihrer Paketverwaltung</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Beginnt…</translation>
    </message>
    <message>
        <source>&quot;set&quot; needs a &quot;key&quot; and a &quot;value&quot;, both strings.</source>
        <translation>„set“ braucht einen „key“ und einen „value“, beides Zeichenketten.</translation>
    </message>
    <message>
        <source>Already connected or connecting; &quot;veldmarkctl status&quot; says more.</source>
        <translation>Schon verbunden oder dabei; „veldmarkctl status“ sagt mehr.</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>Jetzt nicht: %1</translation>
    </message>
    <message>
        <source>A check is already running.</source>
        <translation>Eine Prüfung läuft schon.</translation>
    </message>
    <message>
        <source>There is no circuit &quot;%1&quot;.</source>
        <translation>Einen Kanal „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t close circuit %1.</source>
        <translation>Tor hat den Kanal %1 nicht geschlossen.</translation>
    </message>
    <message>
        <source>&quot;launch&quot; needs an &quot;app&quot;, an absolute path.</source>
        <translation>„launch“ braucht eine „app“, einen absoluten Pfad.</translation>
    </message>
    <message>
        <source>Veldmark stopped before it had answered.</source>
        <translation>Veldmark hat sich beendet, bevor es geantwortet hat.</translation>
    </message>
    <message>
        <source>Veldmark is already running (process %1).</source>
        <translation>Veldmark läuft schon (Prozess %1).</translation>
    </message>
    <message>
        <source>%1 must be a folder of your own with mode 0700: the control socket goes there.</source>
        <translation>%1 muss ein Ordner sein, der Ihnen gehört und die Rechte 0700 hat: Dort liegt der Steuer-Socket.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1/lock.</source>
        <translation>%1/lock konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Couldn&apos;t listen on %1: %2.</source>
        <translation>An %1 kann nicht gelauscht werden: %2.</translation>
    </message>
    <message>
        <source>A command is a JSON object on one line.</source>
        <translation>Ein Befehl ist ein JSON-Objekt in einer Zeile.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Unbekannter Befehl „%1“.</translation>
    </message>
    <message>
        <source>Not connected.</source>
        <translation>Nicht verbunden.</translation>
    </message>
    <message>
        <source>The session has ended: %1</source>
        <translation>Die Sitzung ist zu Ende: %1</translation>
    </message>
    <message>
        <source>as JSON</source>
        <translation>als JSON</translation>
    </message>
    <message>
        <source>connect at once</source>
        <translation>sofort verbinden</translation>
    </message>
    <message>
        <source>run Veldmark here, in the foreground; Ctrl-C disconnects</source>
        <translation>Veldmark hier ausführen, im Vordergrund; Strg-C trennt</translation>
    </message>
    <message>
        <source>go on until Ctrl-C</source>
        <translation>bis Strg-C fortfahren</translation>
    </message>
    <message>
        <source>print the connection&apos;s state; --watch goes on until Ctrl-C</source>
        <translation>den Zustand der Verbindung ausgeben; --watch fährt bis Strg-C fort</translation>
    </message>
    <message>
        <source>connect the running instance to Tor</source>
        <translation>das laufende Veldmark mit Tor verbinden</translation>
    </message>
    <message>
        <source>restore the network and stop Tor</source>
        <translation>das Netzwerk wiederherstellen und Tor beenden</translation>
    </message>
    <message>
        <source>restore the network and stop Tor, also after a crash</source>
        <translation>das Netzwerk wiederherstellen und Tor beenden, auch nach einem Absturz</translation>
    </message>
    <message>
        <source>check the exit address, the direct path and DNS now</source>
        <translation>Ausgangsadresse, direkten Weg und DNS jetzt prüfen</translation>
    </message>
    <message>
        <source>point the system&apos;s DNS settings at Tor again</source>
        <translation>die DNS-Einstellungen des Systems wieder auf Tor richten</translation>
    </message>
    <message>
        <source>Tor&apos;s circuits and the sites on them</source>
        <translation>Tors Kanäle und die Ziele darauf</translation>
    </message>
    <message>
        <source>close a circuit; its sites get a fresh path on their next request</source>
        <translation>einen Kanal schließen; seine Ziele bekommen beim nächsten Abruf einen neuen Weg</translation>
    </message>
    <message>
        <source>close-circuit needs a circuit&apos;s number; &quot;veldmarkctl circuits&quot; shows them.</source>
        <translation>close-circuit braucht die Nummer eines Kanals; „veldmarkctl circuits“ zeigt sie.</translation>
    </message>
    <message>
        <source>new circuits for everything</source>
        <translation>neue Kanäle für alles</translation>
    </message>
    <message>
        <source>warnings and errors only</source>
        <translation>nur Warnungen und Fehler</translation>
    </message>
    <message>
        <source>Tor&apos;s log; --problems shows warnings and errors only</source>
        <translation>Tors Protokoll; --problems zeigt nur Warnungen und Fehler</translation>
    </message>
    <message>
        <source>the bridge programs and built-in bridges that were found, and
which of your own bridge lines are not valid</source>
        <translation>die gefundenen Brückenprogramme und eingebauten Brücken, und
welche Ihrer eigenen Brückenzeilen ungültig sind</translation>
    </message>
    <message>
        <source>fetch the Tor Project&apos;s bridge programs and built-in bridges</source>
        <translation>die Brückenprogramme und eingebauten Brücken des Tor-Projekts holen</translation>
    </message>
    <message>
        <source>the installed applications; * marks those in the setting &quot;bypassApps&quot;</source>
        <translation>die installierten Anwendungen; * steht bei denen der Einstellung „bypassApps“</translation>
    </message>
    <message>
        <source>open an application without Tor, with your own address; needs strict mode.
APP is a name from &quot;apps&quot;, the file name of its desktop entry, or the path
of an entry or a program. Running copies are asked to quit first</source>
        <translation>eine Anwendung ohne Tor öffnen, mit Ihrer echten Adresse; nur im strikten Modus.
APP ist ein Name aus „apps“, der Dateiname ihres Desktop-Eintrags oder der Pfad
eines Eintrags oder Programms. Laufende Kopien sollen sich vorher beenden</translation>
    </message>
    <message>
        <source>launch needs an application; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>launch braucht eine Anwendung; „veldmarkctl apps“ zählt sie auf.</translation>
    </message>
    <message>
        <source>check what a connect needs on this computer, what blocks it and how to fix
it. Changes nothing; the exit status is 0 when a connect can work</source>
        <translation>diesen Computer ansehen: was eine Verbindung braucht, was ihr im Weg steht und
was es behebt. Ändert nichts; endet mit 0, wenn eine Verbindung möglich ist</translation>
    </message>
    <message>
        <source>print a field of &quot;status --json&quot;</source>
        <translation>ein Feld von „status --json“ ausgeben</translation>
    </message>
    <message>
        <source>change a setting; most of them only while not connected</source>
        <translation>eine Einstellung ändern; die meisten nur, solange nicht verbunden ist</translation>
    </message>
    <message>
        <source>Can&apos;t read Tor&apos;s log</source>
        <translation>Tors Protokoll ist nicht lesbar</translation>
    </message>
    <message>
        <source>The log files in %1 aren&apos;t readable by your account. Reconnect once with this version of Veldmark to fix their permissions.</source>
        <translation>Ihr Konto darf die Protokolldateien in %1 nicht lesen. Verbinden Sie sich mit dieser Version von Veldmark einmal neu, um die Rechte zu berichtigen.</translation>
    </message>
    <message>
        <source>No log yet</source>
        <translation>Noch kein Protokoll</translation>
    </message>
    <message>
        <source>Connect, and Tor&apos;s messages appear here as it starts. If Tor fails to start, the reason shows up here.</source>
        <translation>Verbinden Sie sich, dann erscheinen hier Tors Meldungen, während es startet. Startet Tor nicht, steht der Grund hier.</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>Nichts passt</translation>
    </message>
    <message>
        <source>No lines contain “%1”</source>
        <translation>Keine Zeile enthält „%1“</translation>
    </message>
    <message>
        <source>No warnings or errors. Tor is happy.</source>
        <translation>Keine Warnungen oder Fehler. Tor geht es gut.</translation>
    </message>
    <message>
        <source>The bridge program %1 reports: %2</source>
        <translation>Das Brückenprogramm %1 meldet: %2</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly.</source>
        <translation>Das Brückenprogramm %1 hat sich unerwartet beendet.</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending.</source>
        <translation>Das Brückenprogramm %1 beendet sich immer wieder.</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly (exit status %2).</source>
        <translation>Das Brückenprogramm %1 hat sich unerwartet beendet (Rückgabewert %2).</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending (exit status %2).</source>
        <translation>Das Brückenprogramm %1 beendet sich immer wieder (Rückgabewert %2).</translation>
    </message>
    <message>
        <source>It said: &quot;%1&quot;.</source>
        <translation>Es sagte: „%1“.</translation>
    </message>
    <message>
        <source>The program is quitting.</source>
        <translation>Das Programm wird gerade beendet.</translation>
    </message>
    <message>
        <source>Veldmark replaces the running strict session. The new session may protect you less.</source>
        <translation>Veldmark ersetzt die laufende strikte Sitzung. Die neue Sitzung schützt Sie vielleicht weniger.</translation>
    </message>
    <message>
        <source>Veldmark wants to run %1 as a part of Tor. No package of the system installed it. Its SHA-256 is %2.</source>
        <translation>Veldmark will %1 als Teil von Tor ausführen. Es stammt aus keinem Paket des Systems. Seine SHA-256-Summe ist %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be created: %2.</source>
        <translation>%1 kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed: %2.</source>
        <translation>%1 kann nicht entfernt werden: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>%1 was changed by another program just now.</source>
        <translation>%1 wurde eben von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>%1 belongs to another user or group.</source>
        <translation>%1 gehört einem anderen Benutzer oder einer anderen Gruppe.</translation>
    </message>
    <message>
        <source>A bridge line is not valid.</source>
        <translation>Eine Brückenzeile ist ungültig.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your network settings.</source>
        <translation>Eine Aufzeichnung der früheren Netzwerkeinstellungen war beschädigt (%1). Das Netzwerk ist wieder offen; sehen Sie Ihre Netzwerkeinstellungen nach.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your proxy settings.</source>
        <translation>Eine Aufzeichnung der früheren Netzwerkeinstellungen war beschädigt (%1). Das Netzwerk ist wieder offen; sehen Sie Ihre Proxy-Einstellungen nach.</translation>
    </message>
    <message>
        <source>An administrator password is needed to approve %1.</source>
        <translation>Um %1 zuzulassen, ist das Passwort eines Administrators nötig.</translation>
    </message>
    <message>
        <source>An administrator password is needed to change the running strict session.</source>
        <translation>Um die laufende strikte Sitzung zu ändern, ist das Passwort eines Administrators nötig.</translation>
    </message>
    <message>
        <source>An administrator password is needed to open an application without Tor.</source>
        <translation>Um eine Anwendung ohne Tor zu öffnen, ist das Passwort eines Administrators nötig.</translation>
    </message>
    <message>
        <source>An administrator password is needed to set this up.</source>
        <translation>Um dies einzurichten, ist das Passwort eines Administrators nötig.</translation>
    </message>
    <message>
        <source>Another program (process %1) has started a session meanwhile. That session was left alone.</source>
        <translation>Ein anderes Programm (Prozess %1) hat inzwischen eine Sitzung begonnen. Sie blieb unberührt.</translation>
    </message>
    <message>
        <source>Another run of the helper is still working. Try again in a moment.</source>
        <translation>Das Hilfsprogramm arbeitet noch an einem anderen Auftrag. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>Applications are not opened as root.</source>
        <translation>Als root werden keine Anwendungen geöffnet.</translation>
    </message>
    <message>
        <source>The helper opens applications only for the user who asks.</source>
        <translation>Das Hilfsprogramm öffnet Anwendungen nur für den Benutzer, der darum bittet.</translation>
    </message>
    <message>
        <source>Applications cannot be opened without Tor on this system.</source>
        <translation>Auf diesem System können keine Anwendungen ohne Tor geöffnet werden.</translation>
    </message>
    <message>
        <source>More than %1 bridges were given.</source>
        <translation>Es wurden mehr als %1 Brücken angegeben.</translation>
    </message>
    <message>
        <source>Passwordless mode can be set up only for the user who asks.</source>
        <translation>Der Betrieb ohne Passwort lässt sich nur für den Benutzer einrichten, der darum bittet.</translation>
    </message>
    <message>
        <source>Another program is changing the firewall. Try again in a moment.</source>
        <translation>Ein anderes Programm ändert gerade die Firewall. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The DNS servers of systemd-resolved cannot be changed.</source>
        <translation>Die DNS-Server von systemd-resolved können nicht geändert werden.</translation>
    </message>
    <message>
        <source>The DNS settings cannot be changed.</source>
        <translation>Die DNS-Einstellungen können nicht geändert werden.</translation>
    </message>
    <message>
        <source>The DNS settings could not be put back.</source>
        <translation>Die DNS-Einstellungen konnten nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The account %1 cannot be created.</source>
        <translation>Das Konto %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The account %1 has no valid user id.</source>
        <translation>Das Konto %1 hat keine gültige Benutzer-ID.</translation>
    </message>
    <message>
        <source>The account %1 must be neither root&apos;s nor the caller&apos;s.</source>
        <translation>Das Konto %1 darf weder root noch dem aufrufenden Benutzer gehören.</translation>
    </message>
    <message>
        <source>The application could not be started.</source>
        <translation>Die Anwendung konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The caller&apos;s user id is not a number.</source>
        <translation>Die Benutzer-ID des Aufrufers ist keine Zahl.</translation>
    </message>
    <message>
        <source>The control group for Tor cannot be made.</source>
        <translation>Die Kontrollgruppe für Tor kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The control group of the applications without Tor could not be removed.</source>
        <translation>Die Kontrollgruppe der Anwendungen ohne Tor konnte nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The copy of the program cannot be put into %1.</source>
        <translation>Die Kopie des Programms kann nicht in %1 abgelegt werden.</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings cannot be changed.</source>
        <translation>Die Proxy-Einstellungen der Arbeitsumgebung können nicht geändert werden.</translation>
    </message>
    <message>
        <source>The exit country is not a two-letter code.</source>
        <translation>Das Ausgangsland ist kein Kürzel aus zwei Buchstaben.</translation>
    </message>
    <message>
        <source>The file %1 cannot be made.</source>
        <translation>Die Datei %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Die Datei %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed.</source>
        <translation>Die Datei %1 kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The file %1 could not be put back.</source>
        <translation>Die Datei %1 konnte nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The files in %1 cannot be removed.</source>
        <translation>Die Dateien in %1 können nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The firewall rules cannot be read, so nothing was done.</source>
        <translation>Die Firewall-Regeln sind nicht zu lesen, also wurde nichts getan.</translation>
    </message>
    <message>
        <source>The firewall cannot be switched on (%1).</source>
        <translation>Die Firewall kann nicht eingeschaltet werden (%1).</translation>
    </message>
    <message>
        <source>The firewall cannot end the earlier connections.</source>
        <translation>Die Firewall kann die früheren Verbindungen nicht beenden.</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off (%1).</source>
        <translation>Der Notschalter konnte nicht ausgeschaltet werden (%1).</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off, because another program is changing the firewall.</source>
        <translation>Der Notschalter konnte nicht ausgeschaltet werden, weil ein anderes Programm gerade die Firewall ändert.</translation>
    </message>
    <message>
        <source>The firewall does not hold the rules that were loaded.</source>
        <translation>In der Firewall stehen nicht die Regeln, die geladen wurden.</translation>
    </message>
    <message>
        <source>The firewall gave no token.</source>
        <translation>Die Firewall hat keine Kennung zurückgegeben.</translation>
    </message>
    <message>
        <source>The firewall leaves out the network device %1 (&quot;set skip&quot; in /etc/pf.conf), where nothing would be blocked.</source>
        <translation>Die Firewall lässt das Netzwerkgerät %1 aus („set skip“ in /etc/pf.conf); dort würde nichts gesperrt.</translation>
    </message>
    <message>
        <source>The firewall rules were not accepted (%1).</source>
        <translation>Die Firewall-Regeln wurden nicht angenommen (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s devices cannot be read.</source>
        <translation>Die Geräte der Firewall sind nicht zu lesen.</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be changed (%1).</source>
        <translation>Die Hauptregeln der Firewall können nicht geändert werden (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be read.</source>
        <translation>Die Hauptregeln der Firewall sind nicht zu lesen.</translation>
    </message>
    <message>
        <source>The firewall&apos;s state cannot be read.</source>
        <translation>Der Zustand der Firewall ist nicht zu lesen.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be changed.</source>
        <translation>Der Ordner %1 kann nicht geändert werden.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it and those above it.</source>
        <translation>Der Ordner %1 ist nicht sicher: Er und die Ordner darüber dürfen nur root gehören und nur von root beschrieben werden.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it.</source>
        <translation>Der Ordner %1 ist nicht sicher: Er darf nur root gehören und nur von root beschrieben werden.</translation>
    </message>
    <message>
        <source>The folder /etc/sudoers.d is missing or not safe.</source>
        <translation>Der Ordner /etc/sudoers.d fehlt oder ist nicht sicher.</translation>
    </message>
    <message>
        <source>The folders above Veldmark&apos;s are not safe: only root may own or write them.</source>
        <translation>Die Ordner über dem von Veldmark sind nicht sicher: Sie dürfen nur root gehören und nur von root beschrieben werden.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read, so nothing was done.</source>
        <translation>Die Ordner unter %1 sind nicht zu lesen, also wurde nichts getan.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read.</source>
        <translation>Die Ordner unter %1 sind nicht zu lesen.</translation>
    </message>
    <message>
        <source>The former network settings could not all be restored.</source>
        <translation>Die früheren Netzwerkeinstellungen konnten nicht alle wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The hashed control password is not valid.</source>
        <translation>Der Hash des Steuerpassworts ist ungültig.</translation>
    </message>
    <message>
        <source>The helper could not be copied to %1.</source>
        <translation>Das Hilfsprogramm konnte nicht nach %1 kopiert werden.</translation>
    </message>
    <message>
        <source>The helper must run as root.</source>
        <translation>Das Hilfsprogramm muss als root laufen.</translation>
    </message>
    <message>
        <source>The helper stopped unexpectedly.</source>
        <translation>Das Hilfsprogramm hat sich unerwartet beendet.</translation>
    </message>
    <message>
        <source>The helper was given an option that it does not know.</source>
        <translation>Das Hilfsprogramm bekam eine Option, die es nicht kennt.</translation>
    </message>
    <message>
        <source>The helper does not know this verb.</source>
        <translation>Das Hilfsprogramm kennt diesen Befehl nicht.</translation>
    </message>
    <message>
        <source>The record of the former network settings cannot be written.</source>
        <translation>Die Aufzeichnung der früheren Netzwerkeinstellungen kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The kill switch is not on, so no application needs to bypass it.</source>
        <translation>Der Notschalter ist nicht an, daher braucht ihn keine Anwendung zu umgehen.</translation>
    </message>
    <message>
        <source>The launcher could not be copied to %1.</source>
        <translation>Das Startprogramm konnte nicht nach %1 kopiert werden.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be opened.</source>
        <translation>Die Sperrdatei %1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The lock file %1 is a link, so nothing was done.</source>
        <translation>Die Sperrdatei %1 ist ein Verweis, also wurde nichts getan.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back.</source>
        <translation>Das Netzwerk ist wieder offen, aber die DNS-Server von systemd-resolved konnten nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back. Try: systemctl restart %1.</source>
        <translation>Das Netzwerk ist wieder offen, aber die DNS-Server von systemd-resolved konnten nicht wiederhergestellt werden. Versuchen Sie: systemctl restart %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the desktop&apos;s proxy settings could not be put back.</source>
        <translation>Das Netzwerk ist wieder offen, aber die Proxy-Einstellungen der Arbeitsumgebung konnten nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The network is open again, but the journal in %1 cannot be cleared.</source>
        <translation>Das Netzwerk ist wieder offen, aber das Journal in %1 kann nicht geleert werden.</translation>
    </message>
    <message>
        <source>The network is open again, but the session marker cannot be removed from %1.</source>
        <translation>Das Netzwerk ist wieder offen, aber die Sitzungsmarke kann nicht aus %1 entfernt werden.</translation>
    </message>
    <message>
        <source>The network is open again, but the system&apos;s own Tor service could not be started again. Try: systemctl start %1.</source>
        <translation>Das Netzwerk ist wieder offen, aber der Tor-Dienst des Systems konnte nicht wieder gestartet werden. Versuchen Sie: systemctl start %1.</translation>
    </message>
    <message>
        <source>The network is open, but pf could not be released.</source>
        <translation>Das Netzwerk ist offen, aber pf konnte nicht freigegeben werden.</translation>
    </message>
    <message>
        <source>The network is open, but the firewall&apos;s main rules could not be put back.</source>
        <translation>Das Netzwerk ist offen, aber die Hauptregeln der Firewall konnten nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The network location %1 still has Veldmark&apos;s settings. Choose it and disconnect again.</source>
        <translation>Die Netzwerkumgebung %1 hat noch die Einstellungen von Veldmark. Wählen Sie sie, und trennen Sie noch einmal.</translation>
    </message>
    <message>
        <source>The network settings cannot be read.</source>
        <translation>Die Netzwerkeinstellungen sind nicht zu lesen.</translation>
    </message>
    <message>
        <source>The network stays blocked until you disconnect.</source>
        <translation>Das Netzwerk bleibt gesperrt, bis Sie die Verbindung trennen.</translation>
    </message>
    <message>
        <source>The notes of what to restore cannot be read.</source>
        <translation>Die Notizen darüber, was wiederherzustellen ist, sind nicht zu lesen.</translation>
    </message>
    <message>
        <source>The option %1 needs a value.</source>
        <translation>Die Option %1 braucht einen Wert.</translation>
    </message>
    <message>
        <source>The option %1 was given twice.</source>
        <translation>Die Option %1 wurde zweimal angegeben.</translation>
    </message>
    <message>
        <source>The option --app is missing.</source>
        <translation>Die Option --app fehlt.</translation>
    </message>
    <message>
        <source>The option --hash is missing.</source>
        <translation>Die Option --hash fehlt.</translation>
    </message>
    <message>
        <source>The option --lan is missing.</source>
        <translation>Die Option --lan fehlt.</translation>
    </message>
    <message>
        <source>The option --program is missing.</source>
        <translation>Die Option --program fehlt.</translation>
    </message>
    <message>
        <source>The option --strict is missing.</source>
        <translation>Die Option --strict fehlt.</translation>
    </message>
    <message>
        <source>The option --tor is missing.</source>
        <translation>Die Option --tor fehlt.</translation>
    </message>
    <message>
        <source>The option --uid is missing.</source>
        <translation>Die Option --uid fehlt.</translation>
    </message>
    <message>
        <source>The options on standard input are not complete.</source>
        <translation>Die Optionen auf der Standardeingabe sind nicht vollständig.</translation>
    </message>
    <message>
        <source>The path given with %1 is not absolute.</source>
        <translation>Der mit %1 angegebene Pfad ist nicht absolut.</translation>
    </message>
    <message>
        <source>The path given with --app is not absolute.</source>
        <translation>Der mit --app angegebene Pfad ist nicht absolut.</translation>
    </message>
    <message>
        <source>The path given with --app names no application.</source>
        <translation>Der mit --app angegebene Pfad nennt keine Anwendung.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2. End that program, then connect again.</source>
        <translation>Den Port %1, den Tor braucht, belegt %2. Beenden Sie dieses Programm, und verbinden Sie sich dann neu.</translation>
    </message>
    <message>
        <source>a program (process %1)</source>
        <translation>ein Programm (Prozess %1)</translation>
    </message>
    <message>
        <source>a program of the account with the id %1</source>
        <translation>ein Programm des Kontos mit der ID %1</translation>
    </message>
    <message>
        <source>The process id is not valid.</source>
        <translation>Die Prozess-ID ist ungültig.</translation>
    </message>
    <message>
        <source>The program %1 cannot be copied.</source>
        <translation>Das Programm %1 kann nicht kopiert werden.</translation>
    </message>
    <message>
        <source>The program %1 cannot be found.</source>
        <translation>Das Programm %1 ist nicht zu finden.</translation>
    </message>
    <message>
        <source>The program %1 is missing on this system.</source>
        <translation>Das Programm %1 fehlt auf diesem System.</translation>
    </message>
    <message>
        <source>The SHA-256 of the program %1 differs from the one to approve.</source>
        <translation>Die SHA-256-Summe des Programms %1 ist nicht die, die zugelassen werden soll.</translation>
    </message>
    <message>
        <source>The program given with %1 is not an executable file.</source>
        <translation>Das mit %1 angegebene Programm ist keine ausführbare Datei.</translation>
    </message>
    <message>
        <source>The program veldmark-launch is missing.</source>
        <translation>Das Programm veldmark-launch fehlt.</translation>
    </message>
    <message>
        <source>The session marker cannot be written.</source>
        <translation>Die Sitzungsmarke kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be changed.</source>
        <translation>Die Einstellungen des Netzwerkdienstes %1 können nicht geändert werden.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be read.</source>
        <translation>Die Einstellungen des Netzwerkdienstes %1 sind nicht zu lesen.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 could not be put back.</source>
        <translation>Die Einstellungen des Netzwerkdienstes %1 konnten nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall cannot be used (%1).</source>
        <translation>Die Firewall des Systems ist nicht zu benutzen (%1).</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) cannot be stopped.</source>
        <translation>Der Tor-Dienst des Systems (%1) kann nicht angehalten werden.</translation>
    </message>
    <message>
        <source>The user %1 is not known on this system.</source>
        <translation>Den Benutzer %1 gibt es auf diesem System nicht.</translation>
    </message>
    <message>
        <source>The user id is not a number.</source>
        <translation>Die Benutzer-ID ist keine Zahl.</translation>
    </message>
    <message>
        <source>The user name is not valid.</source>
        <translation>Der Benutzername ist ungültig.</translation>
    </message>
    <message>
        <source>The user root needs no password for the helper.</source>
        <translation>Der Benutzer root braucht für das Hilfsprogramm kein Passwort.</translation>
    </message>
    <message>
        <source>The user with the id %1 is not known on this system.</source>
        <translation>Einen Benutzer mit der ID %1 gibt es auf diesem System nicht.</translation>
    </message>
    <message>
        <source>The value of %1 contains control characters.</source>
        <translation>Der Wert von %1 enthält Steuerzeichen.</translation>
    </message>
    <message>
        <source>The value of %1 is too long.</source>
        <translation>Der Wert von %1 ist zu lang.</translation>
    </message>
    <message>
        <source>The value of --as must be tor, lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>Der Wert von --as muss tor, lyrebird, snowflake-client oder webtunnel-client sein.</translation>
    </message>
    <message>
        <source>The value of --lan must be 0 or 1.</source>
        <translation>Der Wert von --lan muss 0 oder 1 sein.</translation>
    </message>
    <message>
        <source>The value of --sha256 must be 64 small hexadecimal digits.</source>
        <translation>Der Wert von --sha256 muss aus 64 kleinen hexadezimalen Ziffern bestehen.</translation>
    </message>
    <message>
        <source>The value of --strict must be 0 or 1.</source>
        <translation>Der Wert von --strict muss 0 oder 1 sein.</translation>
    </message>
    <message>
        <source>The verb fix-dns takes no options.</source>
        <translation>Der Befehl fix-dns hat keine Optionen.</translation>
    </message>
    <message>
        <source>The verb uninstall-privileged takes no options.</source>
        <translation>Der Befehl uninstall-privileged hat keine Optionen.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be started.</source>
        <translation>Der Wächter über die Firewall-Regeln konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be stopped.</source>
        <translation>Der Wächter über die Firewall-Regeln konnte nicht angehalten werden.</translation>
    </message>
    <message>
        <source>There are too many options on standard input.</source>
        <translation>Auf der Standardeingabe sind zu viele Optionen.</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which was not given.</source>
        <translation>Diese Brücken brauchen lyrebird, das nicht angegeben wurde.</translation>
    </message>
    <message>
        <source>These bridges need snowflake-client, which was not given.</source>
        <translation>Diese Brücken brauchen snowflake-client, das nicht angegeben wurde.</translation>
    </message>
    <message>
        <source>This helper is made for another system.</source>
        <translation>Dieses Hilfsprogramm ist für ein anderes System gemacht.</translation>
    </message>
    <message>
        <source>Tor could not be started (%1).</source>
        <translation>Tor konnte nicht gestartet werden (%1).</translation>
    </message>
    <message>
        <source>Tor could not be stopped.</source>
        <translation>Tor konnte nicht beendet werden.</translation>
    </message>
    <message>
        <source>Tor did not open its control port in time.</source>
        <translation>Tor hat seinen Steuerport nicht rechtzeitig geöffnet.</translation>
    </message>
    <message>
        <source>Tor did not start: %1</source>
        <translation>Tor ist nicht gestartet: %1</translation>
    </message>
    <message>
        <source>Tor does not accept its configuration: %1</source>
        <translation>Tor nimmt seine Konfiguration nicht an: %1</translation>
    </message>
    <message>
        <source>it ended without a message.</source>
        <translation>Es hat sich ohne eine Meldung beendet.</translation>
    </message>
    <message>
        <source>Tor&apos;s log files cannot be made.</source>
        <translation>Tors Protokolldateien können nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Two different callers were reported, so nothing was done.</source>
        <translation>Es wurden zwei verschiedene Aufrufer gemeldet, also wurde nichts getan.</translation>
    </message>
    <message>
        <source>Veldmark is in use by %1. An administrator password is needed to end that session.</source>
        <translation>Veldmark wird von %1 benutzt. Um diese Sitzung zu beenden, ist das Passwort eines Administrators nötig.</translation>
    </message>
    <message>
        <source>Veldmark is not connected, so the DNS settings were left alone.</source>
        <translation>Veldmark ist nicht verbunden, also blieben die DNS-Einstellungen unberührt.</translation>
    </message>
    <message>
        <source>sudo rejects the rule for passwordless mode.</source>
        <translation>sudo lehnt die Regel für den Betrieb ohne Passwort ab.</translation>
    </message>
    <message>
        <source>sudo is not installed on this system.</source>
        <translation>sudo ist auf diesem System nicht installiert.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read.</source>
        <translation>Der Desktop-Eintrag ist nicht zu lesen.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read (%1).</source>
        <translation>Der Desktop-Eintrag ist nicht zu lesen (%1).</translation>
    </message>
    <message>
        <source>The desktop entry names no program that is installed.</source>
        <translation>Der Desktop-Eintrag nennt kein Programm, das installiert ist.</translation>
    </message>
    <message>
        <source>The application could not be started (%1).</source>
        <translation>Die Anwendung konnte nicht gestartet werden (%1).</translation>
    </message>
    <message>
        <source>There is no such application or program.</source>
        <translation>Eine solche Anwendung oder ein solches Programm gibt es nicht.</translation>
    </message>
    <message>
        <source>The program could not be started.</source>
        <translation>Das Programm konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The program could not be started (%1).</source>
        <translation>Das Programm konnte nicht gestartet werden (%1).</translation>
    </message>
    <message>
        <source>The user is not known on this system.</source>
        <translation>Den Benutzer gibt es auf diesem System nicht.</translation>
    </message>
    <message>
        <source>There is no application at %1.</source>
        <translation>Unter %1 ist keine Anwendung.</translation>
    </message>
    <message>
        <source>The home folder cannot be entered.</source>
        <translation>Auf den persönlichen Ordner kann nicht zugegriffen werden.</translation>
    </message>
    <message>
        <source>nft doesn&apos;t answer.</source>
        <translation>nft antwortet nicht.</translation>
    </message>
    <message>
        <source>nft fails.</source>
        <translation>nft scheitert.</translation>
    </message>
    <message>
        <source>Ended because the display is gone. Your network is still set up for Tor: start Veldmark again, or restore the network with: %1</source>
        <translation>Beendet, weil die Anzeige weg ist. Ihr Netzwerk ist noch für Tor eingerichtet: Starten Sie Veldmark noch einmal, oder stellen Sie das Netzwerk wieder her mit: %1</translation>
    </message>
    <message>
        <source>your package manager</source>
        <translation>Ihrer Paketverwaltung</translation>
    </message>
    <message>
        <source>The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo %1 on.</source>
        <translation>Das Netzwerk ist wieder offen, aber das Loopback-Gerät ließ sich nicht wie vorher einstellen. Versuchen Sie: ethtool -K lo %1 on.</translation>
    </message>
    <message>
        <source>This system can&apos;t tell applications apart.</source>
        <translation>Dieses System kann Anwendungen nicht unterscheiden.</translation>
    </message>
    <message>
        <source>Applications are not separated now: they share circuits.</source>
        <translation>Anwendungen sind jetzt nicht getrennt: Sie teilen sich Kanäle.</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>Benutzer %1</translation>
    </message>
    <message>
        <source>No application has an identity of its own now.</source>
        <translation>Jetzt hat keine Anwendung eine eigene Identität.</translation>
    </message>
    <message>
        <source>No application of yours has that identity; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>Keine Ihrer Anwendungen hat diese Identität; „veldmarkctl identities“ zählt sie auf.</translation>
    </message>
    <message>
        <source>The application did not get a new identity.</source>
        <translation>Die Anwendung hat keine neue Identität bekommen.</translation>
    </message>
    <message>
        <source>The program did not get an identity of its own, so it was not started.</source>
        <translation>Das Programm hat keine eigene Identität bekommen und wurde darum nicht gestartet.</translation>
    </message>
    <message>
        <source>A name has up to 40 letters, digits, dots and underscores.</source>
        <translation>Ein Name hat bis zu 40 Buchstaben, Ziffern, Punkte und Unterstriche.</translation>
    </message>
    <message>
        <source>The program systemd-run is missing. Veldmark needs it to make a group for a program.</source>
        <translation>Das Programm systemd-run fehlt. Veldmark braucht es, um eine Gruppe für ein Programm anzulegen.</translation>
    </message>
    <message>
        <source>The program could not be started: %1.</source>
        <translation>Das Programm ließ sich nicht starten: %1.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>each application has circuits of its own</source>
        <translation>jede Anwendung hat eigene Kanäle</translation>
    </message>
    <message>
        <source>the applications that have circuits of their own, and the loopback address
by which Tor distinguishes them</source>
        <translation>die Anwendungen mit eigenen Kanälen und die Loopback-Adresse, an der Tor
jede von den anderen unterscheidet</translation>
    </message>
    <message>
        <source>new circuits for one application, from its next connection on; APP is as
&quot;identities&quot; names it</source>
        <translation>neue Kanäle für eine Anwendung, von ihrer nächsten Verbindung an; APP, wie
„identities“ sie nennt</translation>
    </message>
    <message>
        <source>renew needs an application; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>renew braucht eine Anwendung; „veldmarkctl identities“ zählt sie auf.</translation>
    </message>
    <message>
        <source>run a program (after --) with circuits of its own; a later run with the same
name in the same session has the same ones</source>
        <translation>ein Programm (nach --) mit eigenen Kanälen ausführen; mit demselben Namen
hat es in derselben Sitzung später dieselben</translation>
    </message>
    <message>
        <source>run-as needs a name and a program: veldmarkctl run-as NAME -- PROGRAM.</source>
        <translation>run-as braucht einen Namen und ein Programm: veldmarkctl run-as NAME -- PROGRAM.</translation>
    </message>
    <message>
        <source>The table of the applications&apos; identities could not be removed (%1).</source>
        <translation>Die Tabelle mit den Identitäten der Anwendungen ließ sich nicht entfernen (%1).</translation>
    </message>
    <message>
        <source>The value of --separate must be 0 or 1.</source>
        <translation>Der Wert von --separate muss 0 oder 1 sein.</translation>
    </message>
    <message>
        <source>No package of the system installed %1. The next connect asks an administrator to approve it.</source>
        <translation>%1 stammt aus keinem Paket des Systems. Beim nächsten Verbinden wird ein Administrator gebeten, es zuzulassen.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether a connect can work.</source>
        <translation>Ob eine Verbindung möglich ist, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, and none of its rules allows any, so Tor can&apos;t get through: %1.</source>
        <translation>Eine andere Firewall auf diesem Computer verwehrt ausgehende Verbindungen, und keine ihrer Regeln erlaubt eine; Tor kommt daher nicht durch: %1.</translation>
    </message>
    <message>
        <source>Users other than root can change %1, so root doesn&apos;t run it to ask for its version.</source>
        <translation>Andere Benutzer als root können %1 ändern, darum führt root es nicht aus, um nach der Version zu fragen.</translation>
    </message>
    <message>
        <source>Type %1 to approve it, anything else to refuse.</source>
        <translation>Geben Sie %1 ein, um es zuzulassen, und etwas anderes, um es abzulehnen.</translation>
    </message>
    <message>
        <source>%1 was not approved.</source>
        <translation>%1 wurde nicht zugelassen.</translation>
    </message>
    <message>
        <source>%1 is not a program of the system, so an administrator has to approve it, but this command has no terminal to ask on. Run &quot;sudo veldmarkctl run --connect&quot; in a terminal.</source>
        <translation>%1 ist kein Programm des Systems, daher muss ein Administrator es zulassen, aber dieser Befehl hat kein Terminal, in dem er danach fragen kann. Führen Sie „sudo veldmarkctl run --connect“ in einem Terminal aus.</translation>
    </message>
    <message>
        <source>%1 needs the name of a file.</source>
        <translation>%1 braucht den Namen einer Datei.</translation>
    </message>
    <message>
        <source>It doesn&apos;t answer.</source>
        <translation>Sie antwortet nicht.</translation>
    </message>
    <message>
        <source>This report goes to %1.</source>
        <translation>Dieser Bericht wird in %1 geschrieben.</translation>
    </message>
    <message>
        <source>write it into a new file too</source>
        <translation>ihn auch in eine neue Datei schreiben</translation>
    </message>
    <message>
        <source>The report can&apos;t be written to %1: %2</source>
        <translation>Der Bericht kann nicht in %1 geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a regular file. Choose another name for the report.</source>
        <translation>%1 ist keine gewöhnliche Datei. Wählen Sie einen anderen Namen für den Bericht.</translation>
    </message>
    <message>
        <source>%1 exists already. Choose another name for the report.</source>
        <translation>%1 gibt es schon. Wählen Sie einen anderen Namen für den Bericht.</translation>
    </message>
    <message>
        <source>The running instance gave no state: %1</source>
        <translation>Die laufende Instanz hat keinen Zustand mitgeteilt: %1</translation>
    </message>
    <message>
        <source>a report for those who help you: settings, findings and log without addresses,
names, bridges and keys. Nothing sends it. Look through it before you give it
away</source>
        <translation>ein Bericht für alle, die Ihnen helfen: Einstellungen, Befunde und Protokoll
ohne Adressen, Namen, Brücken und Schlüssel. Nichts versendet ihn. Sehen Sie
ihn durch, bevor Sie ihn weitergeben</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>There is no bridge in %1.</source>
        <translation>In %1 ist keine Brücke.</translation>
    </message>
    <message>
        <source>added: %1</source>
        <translation>hinzugefügt: %1</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>schon vorhanden: %1</translation>
    </message>
    <message>
        <source>add the bridges in a text to your own: in bridge lines, a whole e-mail or
a web page. FILE &quot;-&quot; is standard input</source>
        <translation>die Brücken aus einem Text zu den eigenen hinzufügen: aus Brückenzeilen,
einer ganzen E-Mail oder einer Webseite. FILE „-“ ist die Standardeingabe</translation>
    </message>
    <message>
        <source>add-bridges needs a file; &quot;-&quot; is standard input.</source>
        <translation>add-bridges braucht eine Datei; „-“ ist die Standardeingabe.</translation>
    </message>
    <message>
        <source>The filter before Tor&apos;s control port cannot be used.</source>
        <translation>Der Filter vor Tors Steuerport kann nicht verwendet werden.</translation>
    </message>
    <message numerus="yes">
        <source>Testing %n bridges…</source>
        <translation>
            <numerusform>%n Brücke wird getestet…</numerusform>
            <numerusform>%n Brücken werden getestet…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 for *.%2</source>
        <translation>%1 für *.%2</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 über %2</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Direkt</translation>
    </message>
    <message>
        <source>Your bridges</source>
        <translation>Ihre Brücken</translation>
    </message>
    <message>
        <source>(%1 s)</source>
        <translation>(%1 s)</translation>
    </message>
    <message>
        <source>Tried</source>
        <translation>Versucht</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Angebot</translation>
    </message>
    <message>
        <source>Try them with: %1</source>
        <translation>Versuchen Sie sie mit: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of ask, always and never.</source>
        <translation>„%1“ ist weder ask noch always noch never.</translation>
    </message>
    <message>
        <source>Refused, or out of reach.</source>
        <translation>Abgelehnt oder nicht erreichbar.</translation>
    </message>
    <message>
        <source>Something answered, but Tor made no further progress.</source>
        <translation>Es kam eine Antwort, aber Tor kam nicht weiter.</translation>
    </message>
    <message>
        <source>No answer.</source>
        <translation>Keine Antwort.</translation>
    </message>
    <message>
        <source>Tor has connected.</source>
        <translation>Tor ist verbunden.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Tried: %1.</source>
        <translation>Tor kommt in diesem Netz nicht durch. Versucht: %1.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Veldmark can try bridges: %1.</source>
        <translation>Tor kommt in diesem Netz nicht durch. Veldmark kann Brücken versuchen: %1.</translation>
    </message>
    <message>
        <source>Being tried…</source>
        <translation>Wird versucht…</translation>
    </message>
    <message>
        <source>Tor did not accept these bridges.</source>
        <translation>Tor hat diese Brücken nicht angenommen.</translation>
    </message>
    <message>
        <source>No bridges are offered now.</source>
        <translation>Es werden gerade keine Brücken angeboten.</translation>
    </message>
    <message>
        <source>whether bridges are tried when Tor cannot connect</source>
        <translation>ob Brücken versucht werden, wenn Tor nicht durchkommt</translation>
    </message>
    <message>
        <source>try the bridges that are offered when Tor cannot connect, see &quot;status&quot;</source>
        <translation>die Brücken versuchen, die angeboten werden, wenn Tor nicht durchkommt, siehe „status“</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Kanäle</translation>
    </message>
</context>
<context>
    <name>veldmark::Tray</name>
    <message>
        <source>Open Veldmark</source>
        <translation>Veldmark öffnen</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>veldmark::Windows</name>
    <message>
        <source>Select the tor executable</source>
        <translation>Wählen Sie das Programm tor</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Wählen Sie Apps, die im strikten Modus Tor umgehen dürfen</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Bericht speichern</translation>
    </message>
</context>
</TS>

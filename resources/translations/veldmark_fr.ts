<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AboutPane</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
    <message>
        <source>The Tor Project</source>
        <translation>Le Projet Tor</translation>
    </message>
    <message>
        <source>The network and pluggable transports Veldmark builds on</source>
        <translation>Le réseau et les transports enfichables sur lesquels Veldmark s’appuie</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Remerciements</translation>
    </message>
    <message>
        <source>Homepage, downloads and updates</source>
        <translation>Site Web, téléchargements et mises à jour</translation>
    </message>
    <message>
        <source>Sends this computer&apos;s traffic through Tor, all of it in strict mode and that of apps that use the system proxy in proxy mode, and shows whether it really does.</source>
        <translation>Fait passer le trafic de cet ordinateur par Tor, en totalité en mode strict et, en mode proxy, celui des applications qui utilisent le proxy système, et montre si c’est réellement le cas.</translation>
    </message>
    <message>
        <source>Veldmark is made with Qt, QCoro and tl::expected.</source>
        <translation>Veldmark est réalisé avec Qt, QCoro et tl::expected.</translation>
    </message>
</context>
<context>
    <name>ApplicationsSheet</name>
    <message>
        <source>App exceptions</source>
        <translation>Applications sans Tor</translation>
    </message>
    <message>
        <source>No apps yet. Add Zoom, Discord, a game…</source>
        <translation>Aucune application. Ajoutez Zoom, Discord, un jeu…</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Connectez-vous en mode strict pour ouvrir des applications sans Tor</translation>
    </message>
    <message>
        <source>Open without Tor</source>
        <translation>Ouvrir sans Tor</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Ajouter…</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>BridgesPane</name>
    <message>
        <source>Bridges</source>
        <translation>Ponts</translation>
    </message>
    <message>
        <source>Programs that disguise your Tor connection</source>
        <translation>Programmes qui déguisent votre connexion à Tor</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Ponts intégrés</translation>
    </message>
    <message>
        <source>Bridge addresses shipped with Tor</source>
        <translation>Adresses de ponts fournies avec Tor</translation>
    </message>
    <message>
        <source>Tor Expert Bundle</source>
        <translation>Tor Expert Bundle</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>When Tor is blocked</source>
        <translation>Quand Tor est bloqué</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Déconnecter pour modifier</translation>
    </message>
    <message>
        <source>Tries the available bridges in turn, without another password</source>
        <translation>Essaie les ponts disponibles l’un après l’autre, sans nouveau mot de passe</translation>
    </message>
</context>
<context>
    <name>BridgesSheet</name>
    <message>
        <source>Custom bridges</source>
        <translation>Ponts personnalisés</translation>
    </message>
    <message>
        <source>One bridge per line. Ask the Tor Project for bridges on its bridges page, by e-mail or through its Telegram bot, or use those of someone you trust. obfs4, webtunnel, Snowflake, meek and plain bridges are supported.</source>
        <translation>Un pont par ligne. Demandez des ponts au Projet Tor sur sa page consacrée aux ponts, par courriel ou par son robot Telegram, ou utilisez ceux d’une personne de confiance. Les ponts obfs4, webtunnel, Snowflake, meek et simples sont pris en charge.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>There is no bridge in this file.</source>
        <translation>Ce fichier ne contient aucun pont.</translation>
    </message>
    <message>
        <source>Keep Only the Bridges</source>
        <translation>Garder seulement les ponts</translation>
    </message>
    <message>
        <source>Removes everything from the text but the bridges that were recognized</source>
        <translation>Retire du texte tout sauf les ponts reconnus</translation>
    </message>
</context>
<context>
    <name>ChooserWindow</name>
    <message>
        <source>App exceptions</source>
        <translation>Applications sans Tor</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Choisissez les applications autorisées à contourner Tor en mode strict</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Applications installées</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Autre…</translation>
    </message>
    <message>
        <source>Choose the .desktop file of an application that is not listed</source>
        <translation>Choisir le fichier .desktop d’une application absente de la liste</translation>
    </message>
</context>
<context>
    <name>CircuitsSidebar</name>
    <message>
        <source>ALL CIRCUITS</source>
        <translation>TOUS LES CIRCUITS</translation>
    </message>
    <message>
        <source>No circuit selected</source>
        <translation>Aucun circuit sélectionné</translation>
    </message>
    <message>
        <source>New Circuit</source>
        <translation>Nouveau circuit</translation>
    </message>
    <message>
        <source>Close this circuit; its sites get a fresh path on their next request</source>
        <translation>Fermer ce circuit ; ses sites prennent un nouveau chemin à leur prochaine requête</translation>
    </message>
    <message>
        <source>Sites on this circuit get a fresh path. Other sites sharing it move too.</source>
        <translation>Les sites de ce circuit prennent un nouveau chemin. Les autres sites qui le partagent changent aussi.</translation>
    </message>
</context>
<context>
    <name>CircuitsWindow</name>
    <message>
        <source>Circuits</source>
        <translation>Circuits</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Nouvelle identité</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Demander à Tor de nouveaux circuits et une nouvelle IP de sortie</translation>
    </message>
    <message>
        <source>Find Faster</source>
        <translation>Plus rapide</translation>
    </message>
    <message>
        <source>Time a request through Tor and get fresh circuits if it&apos;s slow</source>
        <translation>Chronométrer une requête par Tor et obtenir de nouveaux circuits si elle est lente</translation>
    </message>
    <message>
        <source>Reading circuits…</source>
        <translation>Lecture des circuits…</translation>
    </message>
    <message>
        <source>Connect to see your circuits</source>
        <translation>Connectez-vous pour voir vos circuits</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Exit IP</source>
        <translation>IP de sortie</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Leaks</source>
        <translation>Fuites</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafic</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>Reçu : %1, envoyé : %2</translation>
    </message>
    <message>
        <source>Traffic of the last two minutes</source>
        <translation>Trafic des deux dernières minutes</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Nouvelle identité</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Demander à Tor de nouveaux circuits et une nouvelle IP de sortie</translation>
    </message>
    <message>
        <source>Leak Test</source>
        <translation>Test de fuite</translation>
    </message>
    <message>
        <source>Check the exit IP and try a direct connection that skips Tor</source>
        <translation>Vérifier l’IP de sortie et tenter une connexion directe sans passer par Tor</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Circuits</translation>
    </message>
    <message>
        <source>See the path your traffic takes: entry, middle and exit relays</source>
        <translation>Voir le chemin de votre trafic : relais d’entrée, du milieu et de sortie</translation>
    </message>
</context>
<context>
    <name>CopyField</name>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>DNSCard</name>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>Des requêtes DNS peuvent contourner Tor</translation>
    </message>
    <message>
        <source>Fix DNS</source>
        <translation>Corriger le DNS</translation>
    </message>
    <message>
        <source>Re-test</source>
        <translation>Retester</translation>
    </message>
</context>
<context>
    <name>DoctorSheet</name>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Réexaminer</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Afficher le rapport</translation>
    </message>
    <message>
        <source>What others need to help you, without addresses, names and bridges</source>
        <translation>Ce dont les autres ont besoin pour vous aider, sans adresses, noms ni ponts</translation>
    </message>
</context>
<context>
    <name>DownloadButton</name>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Downloads the official Tor Expert Bundle from the Tor Project, for bridge programs and built-in bridges</source>
        <translation>Télécharge le Tor Expert Bundle officiel du Projet Tor, pour les programmes de pont et les ponts intégrés</translation>
    </message>
</context>
<context>
    <name>Footer</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Tor Log</source>
        <translation>Journal de Tor</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Startup and password prompts</source>
        <translation>Démarrage et demandes de mot de passe</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Lancer à l’ouverture de session</translation>
    </message>
    <message>
        <source>Veldmark starts when you log in</source>
        <translation>Veldmark démarre à l’ouverture de votre session</translation>
    </message>
    <message>
        <source>Connect automatically</source>
        <translation>Connexion automatique</translation>
    </message>
    <message>
        <source>Connect as soon as Veldmark opens</source>
        <translation>Se connecter dès que Veldmark s’ouvre</translation>
    </message>
    <message>
        <source>Password prompts</source>
        <translation>Demandes de mot de passe</translation>
    </message>
    <message>
        <source>Passwordless mode</source>
        <translation>Mode sans mot de passe</translation>
    </message>
    <message>
        <source>Connect and Disconnect never ask</source>
        <translation>Connexion et déconnexion sans mot de passe</translation>
    </message>
    <message>
        <source>Asks for your password each time</source>
        <translation>Votre mot de passe est demandé à chaque fois</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Désactiver</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Configurer…</translation>
    </message>
    <message>
        <source>Setup asks for your admin password once. It installs a root-owned copy of Veldmark&apos;s helper and a rule in /etc/sudoers.d that lets your account run only that helper, so Connect and Disconnect stop asking. Turn it off any time.</source>
        <translation>La configuration demande une seule fois votre mot de passe administrateur. Elle installe une copie du programme auxiliaire de Veldmark, appartenant à root, et une règle dans /etc/sudoers.d qui autorise votre compte à exécuter ce seul programme : la connexion et la déconnexion ne demandent alors plus de mot de passe. Désactivable à tout moment.</translation>
    </message>
</context>
<context>
    <name>Hero</name>
    <message>
        <source>Show Tor Log</source>
        <translation>Afficher le journal de Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Voir tout ce que Tor a signalé</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Rétablir le réseau</translation>
    </message>
    <message>
        <source>Try Bridges</source>
        <translation>Essayer les ponts</translation>
    </message>
</context>
<context>
    <name>LogLines</name>
    <message>
        <source>Tor Log</source>
        <translation>Journal de Tor</translation>
    </message>
</context>
<context>
    <name>LogRow</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Avis</translation>
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
        <translation>Journal de Tor</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Suivre</translation>
    </message>
    <message>
        <source>Keep the newest lines in view</source>
        <translation>Garder les dernières lignes visibles</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the lines shown</source>
        <translation>Copier les lignes affichées</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
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
        <translation>Options</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Déconnecter pour modifier</translation>
    </message>
    <message>
        <source>Strict mode</source>
        <translation>Mode strict</translation>
    </message>
    <message>
        <source>Kill switch: block anything not using Tor</source>
        <translation>Kill switch : bloque tout ce qui ne passe pas par Tor</translation>
    </message>
    <message>
        <source>Blocks every connection that doesn&apos;t go through Tor, including UDP and IPv6. Apps that ignore proxy settings won&apos;t connect at all instead of leaking.</source>
        <translation>Bloque toute connexion qui ne passe pas par Tor, y compris UDP et IPv6. Les applications qui ignorent les paramètres du proxy ne se connectent pas du tout, au lieu de provoquer des fuites.</translation>
    </message>
    <message>
        <source>Allow local network</source>
        <translation>Autoriser le réseau local</translation>
    </message>
    <message>
        <source>Exit country</source>
        <translation>Pays de sortie</translation>
    </message>
    <message>
        <source>Where your traffic appears to come from</source>
        <translation>D’où votre trafic semble provenir</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Ponts</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>Custom bridges</source>
        <translation>Ponts personnalisés</translation>
    </message>
    <message>
        <source>Optimize for speed</source>
        <translation>Privilégier la vitesse</translation>
    </message>
    <message>
        <source>New circuits for everything</source>
        <translation>Nouveaux circuits pour tout</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Mode terminal</translation>
    </message>
    <message>
        <source>App exceptions</source>
        <translation>Applications sans Tor</translation>
    </message>
    <message>
        <source>For networks that block or watch Tor</source>
        <translation>Pour les réseaux qui bloquent ou surveillent Tor</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Find the Cause</source>
        <translation>Trouver la cause</translation>
    </message>
    <message>
        <source>Checks what a connection needs on this computer, what blocks it and how to fix it</source>
        <translation>Examine cet ordinateur : ce qu’exige une connexion, ce qui l’empêche et comment y remédier</translation>
    </message>
    <message>
        <source>Show Tor Log</source>
        <translation>Afficher le journal de Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Voir tout ce que Tor a signalé</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with this command, then click Recheck.</source>
        <translation>Tor n’est pas installé. Installez-le avec cette commande, puis cliquez sur « Revérifier ».</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with %1, then click Recheck.</source>
        <translation>Tor n’est pas installé. Installez-le avec %1, puis cliquez sur « Revérifier ».</translation>
    </message>
    <message>
        <source>Recheck</source>
        <translation>Revérifier</translation>
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
        <translation>Trouvé : %1</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
</context>
<context>
    <name>QuitDialog</name>
    <message>
        <source>Quit Veldmark</source>
        <translation>Quitter Veldmark</translation>
    </message>
    <message>
        <source>Your network is still routed through Tor</source>
        <translation>Votre réseau passe encore par Tor</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and the kill switch stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Si vous quittez maintenant, Tor continue de fonctionner et le kill switch reste activé. Rouvrez Veldmark plus tard pour rétablir votre connexion normale.</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and your system proxy stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Si vous quittez maintenant, Tor continue de fonctionner et le proxy système reste activé. Rouvrez Veldmark plus tard pour rétablir votre connexion normale.</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Déconnexion…</translation>
    </message>
    <message>
        <source>Disconnect &amp; Quit</source>
        <translation>Déconnecter et quitter</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Quitter quand même</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>RecoveryPane</name>
    <message>
        <source>Recovery</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>Get your normal connection back</source>
        <translation>Retrouver votre connexion normale</translation>
    </message>
    <message>
        <source>Restore network settings</source>
        <translation>Rétablir les paramètres réseau</translation>
    </message>
    <message>
        <source>Veldmark&apos;s changes are active</source>
        <translation>Les modifications de Veldmark sont actives</translation>
    </message>
    <message>
        <source>Nothing to restore</source>
        <translation>Rien à rétablir</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Use this if your internet stops working after a crash. It puts your DNS, proxy and firewall settings back the way they were and stops Tor.</source>
        <translation>À utiliser si Internet ne fonctionne plus après un plantage. Remet les paramètres du DNS, du proxy et du pare-feu dans leur état antérieur et arrête Tor.</translation>
    </message>
    <message>
        <source>If the app won&apos;t open</source>
        <translation>Si l’application ne s’ouvre pas</translation>
    </message>
    <message>
        <source>Run this in Terminal to do the same thing without Veldmark.</source>
        <translation>Exécutez ceci dans un terminal pour faire la même chose sans Veldmark.</translation>
    </message>
    <message>
        <source>Report for others</source>
        <translation>Rapport pour les autres</translation>
    </message>
    <message>
        <source>What they need to help you, without addresses, names and bridges. You read it first, and nothing sends it.</source>
        <translation>Ce dont ils ont besoin pour vous aider, sans adresses, noms ni ponts. Vous le lisez d’abord, et rien ne l’envoie.</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Afficher le rapport</translation>
    </message>
</context>
<context>
    <name>ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>For those who help you. Addresses, names, bridges, keys and paths in your home are replaced. Look through it before you give it away: Veldmark sends it to nobody.</source>
        <translation>Pour ceux qui vous aident. Les adresses, noms, ponts, clés et chemins de votre dossier personnel sont remplacés. Parcourez-le avant de le donner : Veldmark ne l’envoie à personne.</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Enregistrer…</translation>
    </message>
    <message>
        <source>Save the report in a file that only you can read</source>
        <translation>Enregistrer le rapport dans un fichier que vous seul pouvez lire</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the whole report</source>
        <translation>Copier tout le rapport</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Examen de cet ordinateur…</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Ponts</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
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
        <translation>Faire passer les outils en ligne de commande par Tor</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Mode terminal</translation>
    </message>
    <message>
        <source>Shell integration</source>
        <translation>Intégration au shell</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
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
        <translation>Le programme Tor que Veldmark exécute</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Location: disconnect to change</source>
        <translation>Emplacement : déconnecter pour modifier</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Custom location</source>
        <translation>Emplacement personnalisé</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Separate applications</source>
        <translation>Séparer les applications</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Déconnecter pour modifier</translation>
    </message>
    <message>
        <source>Each application has circuits of its own</source>
        <translation>Chaque application a ses propres circuits</translation>
    </message>
    <message>
        <source>Sites cannot tell by the exit address that two applications are yours. Veldmark tells applications apart where the desktop starts each in a control group of its own, as GNOME and KDE do. Other programs share circuits with the rest of their login session or account.</source>
        <translation>L’adresse de sortie ne permet pas aux sites de savoir que deux applications sont les vôtres. Les applications sont distinguées là où le bureau démarre chacune dans son propre groupe de contrôle, comme le font GNOME et KDE. Les autres programmes partagent leurs circuits avec toute leur session utilisateur ou tout leur compte.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Start without a window, as at login.</source>
        <translation>Démarrer sans fenêtre, comme à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Connect at once.</source>
        <translation>Se connecter aussitôt.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor. To restore it without Veldmark, run:
%1</source>
        <translation>Votre réseau est encore configuré pour Tor. Pour le rétablir sans Veldmark, exécutez :
%1</translation>
    </message>
</context>
<context>
    <name>veldmark::Alerts</name>
    <message>
        <source>Another session has replaced this one</source>
        <translation>Une autre session a remplacé celle-ci</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor s’est arrêté</translation>
    </message>
    <message>
        <source>Traffic can leave around Tor</source>
        <translation>Du trafic peut contourner Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>Des requêtes DNS peuvent contourner Tor</translation>
    </message>
    <message>
        <source>Your real address can be seen. Open Veldmark to see what to do.</source>
        <translation>Votre adresse réelle est visible. Ouvrez Veldmark pour savoir quoi faire.</translation>
    </message>
    <message>
        <source>Firewall rules were removed</source>
        <translation>Des règles de pare-feu ont été supprimées</translation>
    </message>
    <message>
        <source>The kill switch doesn&apos;t block traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>Le kill switch ne bloque pas le trafic. Ouvrez Veldmark, déconnectez-vous puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>The kill switch is not watched</source>
        <translation>Le kill switch n’est pas surveillé</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>Impossible de savoir si le kill switch bloque le trafic. Ouvrez Veldmark, déconnectez-vous puis reconnectez-vous.</translation>
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
        <translation>Impossible d’ouvrir une fenêtre. Votre réseau n’est pas touché ; pour le rétablir sans Veldmark, exécutez :
%1

%2</translation>
    </message>
    <message>
        <source>Veldmark is still running</source>
        <translation>Veldmark reste actif</translation>
    </message>
    <message>
        <source>Open Veldmark again to see its window.</source>
        <translation>Rouvrez Veldmark pour voir sa fenêtre.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Votre réseau est encore configuré pour Tor</translation>
    </message>
    <message>
        <source>Veldmark had to close and could not restore the network. Open Veldmark again to restore it.</source>
        <translation>Veldmark a dû s’arrêter et n’a pas pu rétablir le réseau. Rouvrez Veldmark pour le rétablir.</translation>
    </message>
</context>
<context>
    <name>veldmark::ApplicationChoices</name>
    <message>
        <source>No installed applications were found.</source>
        <translation>Aucune application installée n’a été trouvée.</translation>
    </message>
    <message>
        <source>No application is called “%1”.</source>
        <translation>Aucune application ne s’appelle « %1 ».</translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitGraphView</name>
    <message>
        <source>%1: your real IP only ever reaches the entry relay</source>
        <translation>%1 : seul le relais d’entrée reçoit votre IP réelle</translation>
    </message>
    <message>
        <source>Used by 1 circuit</source>
        <translation>Utilisé par 1 circuit</translation>
    </message>
    <message>
        <source>ENTRY</source>
        <translation>ENTRÉE</translation>
    </message>
    <message>
        <source>MIDDLE</source>
        <translation>MILIEU</translation>
    </message>
    <message>
        <source>EXIT</source>
        <translation>SORTIE</translation>
    </message>
    <message>
        <source>SITES</source>
        <translation>SITES</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 de plus</translation>
    </message>
    <message numerus="yes">
        <source>Used by %n circuits</source>
        <translation>
            <numerusform>Utilisé par %n circuit</numerusform>
            <numerusform>Utilisé par %n circuits</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitsModel</name>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Circuit %1</source>
        <translation>Circuit %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Non connecté</translation>
    </message>
    <message>
        <source>1 active path</source>
        <translation>1 chemin actif</translation>
    </message>
    <message>
        <source> · click a relay or site to follow it</source>
        <translation> · cliquez sur un relais ou un site pour le suivre</translation>
    </message>
    <message>
        <source>Leads to an onion service. The last relay is the meeting point.</source>
        <translation>Mène à un service onion. Le dernier relais est le point de rendez-vous.</translation>
    </message>
    <message>
        <source>Meeting point</source>
        <translation>Point de rendez-vous</translation>
    </message>
    <message>
        <source>One of several linked legs to the same exit</source>
        <translation>L’une des branches liées qui mènent à la même sortie</translation>
    </message>
    <message>
        <source>Only the entry sees your IP</source>
        <translation>Seule l’entrée voit votre IP</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Milieu</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>Pont</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>, +%1 more</source>
        <translation>, et %1 de plus</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Sites</translation>
    </message>
    <message>
        <source>Round trip: %1</source>
        <translation>Aller-retour : %1</translation>
    </message>
    <message numerus="yes">
        <source>%n active paths</source>
        <translation>
            <numerusform>%n chemin actif</numerusform>
            <numerusform>%n chemins actifs</numerusform>
        </translation>
    </message>
    <message>
        <source>Asked for by %1</source>
        <translation>Demandé par %1</translation>
    </message>
</context>
<context>
    <name>veldmark::DoctorModel</name>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Rétablir le réseau</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Télécharger</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Examen de cet ordinateur…</translation>
    </message>
    <message>
        <source>The check gave no result.</source>
        <translation>Rien n’a pu être établi.</translation>
    </message>
    <message>
        <source>No problem was found that keeps Veldmark from connecting.</source>
        <translation>Rien n’a été trouvé qui empêche Veldmark de se connecter.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t connect until each problem is fixed.</source>
        <translation>Veldmark ne peut pas se connecter tant qu’il reste un problème.</translation>
    </message>
</context>
<context>
    <name>veldmark::LogModel</name>
    <message>
        <source>Tor writes here while it connects and runs</source>
        <translation>Tor écrit ici pendant qu’il se connecte et fonctionne</translation>
    </message>
    <message>
        <source>Can&apos;t read the log files</source>
        <translation>Impossible de lire les fichiers journaux</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 ligne</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Problèmes (%1)</translation>
    </message>
    <message>
        <source>Show the log files in Finder</source>
        <translation>Afficher les fichiers journaux dans le Finder</translation>
    </message>
    <message>
        <source>Show the log files in the file manager</source>
        <translation>Afficher les fichiers journaux dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>There are no log files yet. Tor creates %1 when it first starts.</source>
        <translation>Il n’y a pas encore de fichiers journaux : Tor crée %1 à son premier démarrage.</translation>
    </message>
    <message>
        <source>No file manager could be opened. The log files are in %1.</source>
        <translation>Aucun gestionnaire de fichiers n’a pu être ouvert. Les fichiers journaux se trouvent dans %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n ligne</numerusform>
            <numerusform>%n lignes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::OptionsModel</name>
    <message>
        <source>Choosing a country means fewer exit relays, so it&apos;s slower and you&apos;re easier to single out.</source>
        <translation>Choisir un pays réduit le nombre de relais de sortie : c’est plus lent et vous êtes plus facile à distinguer.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivés</translation>
    </message>
    <message>
        <source>obfs4 (built-in)</source>
        <translation>obfs4 (intégrés)</translation>
    </message>
    <message>
        <source>Snowflake (built-in)</source>
        <translation>Snowflake (intégrés)</translation>
    </message>
    <message>
        <source>meek (built-in)</source>
        <translation>meek (intégrés)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisés</translation>
    </message>
    <message>
        <source>No bridges added yet</source>
        <translation>Aucun pont ajouté</translation>
    </message>
    <message>
        <source>Needs bridge programs: click Download</source>
        <translation>Programmes de pont requis : cliquez sur « Télécharger »</translation>
    </message>
    <message>
        <source>Built-in bridges from %1</source>
        <translation>Ponts intégrés provenant de %1</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(ligne %1)</translation>
    </message>
    <message>
        <source>(lines %1)</source>
        <translation>(lignes %1)</translation>
    </message>
    <message>
        <source>1 bridge recognized</source>
        <translation>1 pont reconnu</translation>
    </message>
    <message>
        <source>A bridge line can&apos;t contain #, &quot; or \.</source>
        <translation>Une ligne de pont ne peut pas contenir #, &quot; ou \.</translation>
    </message>
    <message>
        <source>At most %1 bridges can be used</source>
        <translation>%1 ponts au maximum peuvent être utilisés</translation>
    </message>
    <message>
        <source>1 line not recognized</source>
        <translation>1 ligne non reconnue</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the Dock) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>En mode strict, ces applications peuvent se connecter directement au lieu de passer par Tor, avec votre adresse IP réelle. Tout le reste demeure confiné à Tor. Ouvrez-les avec &lt;b&gt;Ouvrir sans Tor&lt;/b&gt; (et non depuis le Dock) pour que Veldmark puisse les marquer. Une copie déjà ouverte est fermée puis rouverte.</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the desktop&apos;s menu) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>En mode strict, ces applications peuvent se connecter directement au lieu de passer par Tor, avec votre adresse IP réelle. Tout le reste demeure confiné à Tor. Ouvrez-les avec &lt;b&gt;Ouvrir sans Tor&lt;/b&gt; (et non depuis le menu du bureau) pour que Veldmark puisse les marquer. Une copie déjà ouverte est fermée puis rouverte.</translation>
    </message>
    <message numerus="yes">
        <source>%n bridges recognized</source>
        <translation>
            <numerusform>%n pont reconnu</numerusform>
            <numerusform>%n ponts reconnus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines not recognized</source>
        <translation>
            <numerusform>%n ligne non reconnue</numerusform>
            <numerusform>%n lignes non reconnues</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::PanelModel</name>
    <message>
        <source>No answer</source>
        <translation>Pas de réponse</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but it isn&apos;t known whether the kill switch blocks such connections</source>
        <translation>Une connexion directe sans passer par Tor est restée sans réponse, mais on ne sait pas si le kill switch bloque de telles connexions</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but proxy mode doesn&apos;t block such connections</source>
        <translation>Une connexion directe sans passer par Tor est restée sans réponse, mais le mode proxy ne bloque pas de telles connexions</translation>
    </message>
    <message>
        <source>Connect to Tor</source>
        <translation>Se connecter à Tor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Se déconnecter</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Se reconnecter</translation>
    </message>
    <message>
        <source>Connected through %1 bridges</source>
        <translation>Connecté par des ponts %1</translation>
    </message>
    <message>
        <source>Strict</source>
        <translation>Strict</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Install Tor to get started</source>
        <translation>Installez Tor pour commencer</translation>
    </message>
    <message>
        <source>Click to connect</source>
        <translation>Cliquez pour vous connecter</translation>
    </message>
    <message>
        <source>Click to disconnect</source>
        <translation>Cliquez pour vous déconnecter</translation>
    </message>
    <message>
        <source>Tor hasn&apos;t reported progress for a while. It is still trying; a slow or blocked network is the usual reason.</source>
        <translation>Tor n’a signalé aucun progrès depuis un moment. Il continue d’essayer ; la cause habituelle est un réseau lent ou bloqué.</translation>
    </message>
    <message>
        <source>Still waiting for Tor to start, or for your approval.</source>
        <translation>Toujours en attente du démarrage de Tor ou de votre approbation.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Checked against %1</source>
        <translation>Vérifié auprès de %1</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Vérifié</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>Non confirmé</translation>
    </message>
    <message>
        <source>DNS leak</source>
        <translation>Fuite DNS</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>Non testé</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Test en cours…</translation>
    </message>
    <message>
        <source>No leaks</source>
        <translation>Aucune fuite</translation>
    </message>
    <message>
        <source>Inconclusive</source>
        <translation>Non concluant</translation>
    </message>
    <message>
        <source>Exposed: %1</source>
        <translation>IP exposée : %1</translation>
    </message>
    <message>
        <source>Tries a direct connection that skips Tor</source>
        <translation>Tente une connexion directe sans passer par Tor</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor are blocked</source>
        <translation>Les connexions directes qui ne passent pas par Tor sont bloquées</translation>
    </message>
    <message>
        <source>Apps that ignore proxy settings show your real IP (%1). Turn on Strict mode to block them.</source>
        <translation>Les applications qui ignorent les paramètres du proxy révèlent votre IP réelle (%1). Activez le mode strict pour les bloquer.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 de plus</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Non vérifié</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor show your real IP (%1), although Strict mode should block them. Disconnect, or run the leak test again.</source>
        <translation>Les connexions directes sans passer par Tor révèlent votre IP réelle (%1), alors que le mode strict devrait les bloquer. Déconnectez-vous ou relancez le test de fuite.</translation>
    </message>
</context>
<context>
    <name>veldmark::ReportModel</name>
    <message>
        <source>Saved in %1</source>
        <translation>Enregistré dans %1</translation>
    </message>
</context>
<context>
    <name>veldmark::SettingsModel</name>
    <message>
        <source>Found</source>
        <translation>Trouvé</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Manquant</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Homebrew: %1</source>
        <translation>Homebrew : %1</translation>
    </message>
    <message>
        <source>Install it with %1</source>
        <translation>Installez-le avec %1</translation>
    </message>
    <message>
        <source>Not found in Tor Browser or a downloaded bundle</source>
        <translation>Introuvables dans Tor Browser ou un paquet téléchargé</translation>
    </message>
    <message>
        <source>Loaded from %1</source>
        <translation>Chargés depuis %1</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <translation>Non téléchargé</translation>
    </message>
    <message>
        <source>Version %1 loaded</source>
        <translation>Version %1 téléchargée</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>signature vérifiée</translation>
    </message>
    <message>
        <source>Adds one line to ~/.zshrc (and ~/.bash_profile if you have one) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>Ajoute une ligne à ~/.zshrc (et à ~/.bash_profile s’il existe) et une ligne Include au début de ~/.ssh/config. Ses fichiers se trouvent dans ~/.veldmark. Rien n’est redirigé tant que Veldmark n’est pas connecté avec le mode terminal activé.</translation>
    </message>
    <message>
        <source>Adds one line to ~/.bashrc (and ~/.zshrc if you use zsh) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>Ajoute une ligne à ~/.bashrc (et à ~/.zshrc si vous utilisez zsh) et une ligne Include au début de ~/.ssh/config. Ses fichiers se trouvent dans ~/.veldmark. Rien n’est redirigé tant que Veldmark n’est pas connecté avec le mode terminal activé.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Fetched over HTTPS. Its signature isn&apos;t checked, since GnuPG isn&apos;t installed.</source>
        <translation>Téléchargé par HTTPS. La signature n’est pas vérifiée, car GnuPG n’est pas installé.</translation>
    </message>
    <message>
        <source>Fetched over HTTPS and checked against the Tor Project&apos;s signature.</source>
        <translation>Téléchargé par HTTPS et vérifié avec la signature du Projet Tor.</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Non installée</translation>
    </message>
    <message>
        <source>Installed in your shell and SSH config</source>
        <translation>Installée dans votre shell et votre configuration SSH</translation>
    </message>
    <message>
        <source>Installed in your shell; SSH doesn&apos;t use it</source>
        <translation>Installée dans votre shell ; SSH ne l’utilise pas</translation>
    </message>
    <message>
        <source>curl, git, brew, pip, ssh and more use Tor</source>
        <translation>curl, git, brew, pip, ssh et d’autres utilisent Tor</translation>
    </message>
    <message>
        <source>curl, git, pip, ssh and more use Tor</source>
        <translation>curl, git, pip, ssh et d’autres utilisent Tor</translation>
    </message>
    <message>
        <source>Veldmark is free software and independent of the Tor Project. It contains no Tor: it runs the tor that is installed here, and where bridges are used lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>Veldmark est un logiciel libre, indépendant du Projet Tor. Il ne contient pas Tor : il exécute le tor installé ici et, si des ponts sont utilisés, lyrebird, snowflake-client ou webtunnel-client.</translation>
    </message>
    <message>
        <source>It sets up the network with macOS&apos;s own programs, asks for the administrator with sudo, and checks downloads with GnuPG where that is installed.</source>
        <translation>Il configure le réseau avec les programmes de macOS, demande les droits d’administration avec sudo et vérifie les téléchargements avec GnuPG s’il est installé.</translation>
    </message>
    <message>
        <source>It sets up the network with nftables, resolvectl and gsettings, asks for the administrator with polkit or sudo, takes ssh through Tor with a netcat, and checks downloads with GnuPG where that is installed.</source>
        <translation>Il configure le réseau avec nftables, resolvectl et gsettings, demande les droits d’administration avec polkit ou sudo, fait passer ssh par Tor avec un netcat et vérifie les téléchargements avec GnuPG s’il est installé.</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Demander</translation>
    </message>
    <message>
        <source>Try bridges</source>
        <translation>Essayer les ponts</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Ne rien faire</translation>
    </message>
</context>
<context>
    <name>veldmark::ShutdownNotice</name>
    <message>
        <source>Restoring your network settings</source>
        <translation>Rétablissement de vos paramètres réseau</translation>
    </message>
</context>
<context>
    <name>veldmark::Text</name>
    <message>
        <source>Tor hasn&apos;t confirmed that it uses the network again, so traffic may not get through. Veldmark keeps telling Tor to. If this lasts, disconnect and connect again.</source>
        <translation>Tor n’a pas confirmé qu’il utilise de nouveau le réseau : il se peut que le trafic ne passe pas. Veldmark continue de le lui demander ; si cela persiste, déconnectez-vous puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>Version %1 is offered, which is older than the installed %2. Nothing was changed.</source>
        <translation>La version %1 est proposée, mais elle est plus ancienne que la version installée, %2. Rien n’a été modifié.</translation>
    </message>
    <message>
        <source>The download of version %1 contains another version, so it was discarded.</source>
        <translation>Le téléchargement de la version %1 contient une autre version ; il a donc été rejeté.</translation>
    </message>
    <message>
        <source>The download begins again when Tor is connected…</source>
        <translation>Le téléchargement recommencera une fois Tor connecté…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a location of Tor. Give an absolute path, such as /usr/bin/tor.</source>
        <translation>« %1 » n’est pas un emplacement de Tor. Indiquez un chemin absolu, par exemple /usr/bin/tor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be changed during a connection. Disconnect to change it.</source>
        <translation>« %1 » ne se modifie pas pendant une connexion. Déconnectez-vous pour le modifier.</translation>
    </message>
    <message>
        <source>Your traffic is not going through Tor</source>
        <translation>Votre trafic ne passe pas par Tor</translation>
    </message>
    <message>
        <source>Restoring your network settings…</source>
        <translation>Rétablissement de vos paramètres réseau…</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor from an earlier session</source>
        <translation>Votre réseau est encore configuré pour Tor par une session précédente</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Votre réseau est encore configuré pour Tor</translation>
    </message>
    <message>
        <source>Preparing Tor…</source>
        <translation>Préparation de Tor…</translation>
    </message>
    <message>
        <source>Waiting for administrator approval…</source>
        <translation>En attente de l’approbation d’un administrateur…</translation>
    </message>
    <message>
        <source>Waiting for an administrator to approve a program…</source>
        <translation>Un administrateur doit approuver un programme…</translation>
    </message>
    <message>
        <source>Starting Tor…</source>
        <translation>Démarrage de Tor…</translation>
    </message>
    <message>
        <source>Tor is waiting for the bridge program, which hasn&apos;t said that it is ready.</source>
        <translation>Tor attend le programme de pont, qui n’a pas encore indiqué qu’il est prêt.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting</source>
        <translation>La connexion de Tor n’a pas abouti</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor s’est arrêté</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor</source>
        <translation>Tout le trafic est confiné à Tor</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor</source>
        <translation>Les applications qui utilisent le proxy système passent par Tor</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. Reconnect, or Restore Network to go back online.</source>
        <translation>Tor s’est arrêté. Le kill switch continue de bloquer le trafic : il n’y a donc pas eu de fuite. Reconnectez-vous, ou rétablissez le réseau pour revenir en ligne sans Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, but the last checks saw traffic go around Tor. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor s’est arrêté. Le kill switch continue de bloquer le trafic, mais les dernières vérifications ont vu du trafic contourner Tor. Reconnectez-vous, ou rétablissez le réseau pour revenir en ligne sans Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running. Apps using the proxy can&apos;t connect until you reconnect or Restore Network.</source>
        <translation>Tor s’est arrêté. Les applications qui utilisent le proxy ne pourront se connecter qu’une fois que vous vous serez reconnecté ou aurez rétabli le réseau.</translation>
    </message>
    <message>
        <source>Any (recommended)</source>
        <translation>Indifférent (recommandé)</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>États-Unis</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Canada</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Royaume-Uni</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Allemagne</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Pays-Bas</translation>
    </message>
    <message>
        <source>France</source>
        <translation>France</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Suède</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Suisse</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finlande</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Roumanie</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japon</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Singapour</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisés</translation>
    </message>
    <message>
        <source>DNS can go around Tor via: %1</source>
        <translation>Des requêtes DNS peuvent contourner Tor via : %1</translation>
    </message>
    <message>
        <source>DNS: not tested yet.</source>
        <translation>DNS : pas encore testé.</translation>
    </message>
    <message>
        <source>DNS: testing…</source>
        <translation>DNS : test en cours…</translation>
    </message>
    <message>
        <source>DNS: a test lookup went through Tor.</source>
        <translation>DNS : une requête de test est passée par Tor.</translation>
    </message>
    <message>
        <source>DNS: settings point at Tor, but a test lookup couldn&apos;t be confirmed.</source>
        <translation>DNS : les paramètres pointent vers Tor, mais une requête de test n’a pas pu être confirmée.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Cet ordinateur</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Ce Mac</translation>
    </message>
    <message>
        <source>on this computer</source>
        <translation>sur cet ordinateur</translation>
    </message>
    <message>
        <source>on this Mac</source>
        <translation>sur ce Mac</translation>
    </message>
    <message>
        <source>Tor stopped running, and your network is no longer set up for it.</source>
        <translation>Tor s’est arrêté, et votre réseau n’est plus configuré pour lui.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is blocking traffic again, but another program had removed its rules for a while. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor s’est arrêté. Le kill switch bloque de nouveau le trafic, mais un autre programme en avait supprimé les règles pendant un moment. Reconnectez-vous, ou rétablissez le réseau pour revenir en ligne sans Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running, and the kill switch doesn&apos;t block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network.</source>
        <translation>Tor s’est arrêté, et le kill switch ne bloque pas le trafic : un autre programme en a supprimé les règles. Du trafic peut sortir directement de cet ordinateur. Reconnectez-vous ou rétablissez le réseau.</translation>
    </message>
    <message>
        <source>Tor stopped running, and it isn&apos;t known whether the kill switch is still blocking traffic. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor s’est arrêté, et on ne sait pas si le kill switch bloque encore le trafic. Reconnectez-vous, ou rétablissez le réseau pour revenir en ligne sans Tor.</translation>
    </message>
    <message>
        <source>The watcher of Veldmark&apos;s firewall rules has stopped reporting, so it isn&apos;t known whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>La surveillance des règles de pare-feu de Veldmark ne répond plus : on ne sait pas si le kill switch bloque le trafic. Déconnectez-vous puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>Not Protected</source>
        <translation>Non protégé</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Connexion…</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Déconnexion…</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>Protégé</translation>
    </message>
    <message>
        <source>Proxy Active</source>
        <translation>Proxy actif</translation>
    </message>
    <message>
        <source>Needs Attention</source>
        <translation>Intervention requise</translation>
    </message>
    <message>
        <source>DNS Leak</source>
        <translation>Fuite DNS</translation>
    </message>
    <message>
        <source>Kill Switch Failed</source>
        <translation>Kill switch inopérant</translation>
    </message>
    <message>
        <source>Traffic may leave this computer directly</source>
        <translation>Du trafic peut sortir directement de cet ordinateur</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>Des requêtes DNS peuvent contourner Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor, and your real address can be seen</source>
        <translation>Des requêtes DNS peuvent contourner Tor, et votre adresse réelle est visible</translation>
    </message>
    <message>
        <source>Your real address can be seen. Disconnect, or run the leak test again.</source>
        <translation>Votre adresse réelle est visible. Déconnectez-vous ou relancez le test de fuite.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>Impossible de savoir si le kill switch bloque le trafic. Déconnectez-vous puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor, but the exit could not be confirmed</source>
        <translation>Tout le trafic est confiné à Tor, mais la sortie n’a pas pu être confirmée</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor, but the exit could not be confirmed</source>
        <translation>Les applications qui utilisent le proxy système passent par Tor, mais la sortie n’a pas pu être confirmée</translation>
    </message>
    <message>
        <source>No Network</source>
        <translation>Pas de réseau</translation>
    </message>
    <message>
        <source>Nothing Gets Through</source>
        <translation>Rien ne passe</translation>
    </message>
    <message>
        <source>This computer has no network. Traffic around Tor stays blocked.</source>
        <translation>Cet ordinateur n’a pas de réseau. Le trafic qui contourne Tor reste bloqué.</translation>
    </message>
    <message>
        <source>This computer has no network. Veldmark goes on when it is back.</source>
        <translation>Cet ordinateur n’a pas de réseau. Veldmark reprend dès qu’il revient.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor n’a aucun circuit qui fonctionne et continue d’essayer. Le trafic qui le contourne reste bloqué.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying.</source>
        <translation>Tor n’a aucun circuit qui fonctionne et continue d’essayer.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor ne reçoit aucune réponse du réseau et continue d’essayer. Le trafic qui le contourne reste bloqué.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying.</source>
        <translation>Tor ne reçoit aucune réponse du réseau et continue d’essayer.</translation>
    </message>
    <message>
        <source>Another program has ended this session and started its own. Restore Network ends that session.</source>
        <translation>Un autre programme a mis fin à cette session et en a commencé une autre. « Rétablir le réseau » met fin à cette dernière.</translation>
    </message>
    <message>
        <source>This computer has no network, so Tor can&apos;t connect.</source>
        <translation>Cet ordinateur n’a pas de réseau, Tor ne peut donc pas se connecter.</translation>
    </message>
    <message>
        <source>A VPN takes Tor&apos;s traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode.</source>
        <translation>Un VPN capte le trafic de Tor, et le mode strict ne laisse pas sortir le VPN. Désactivez le VPN ou utilisez le mode proxy.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules; they are back in place.</source>
        <translation>Un autre programme a supprimé les règles de pare-feu de Veldmark ; elles ont été rétablies.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules and they could not be put back. Traffic may leave this computer directly. Disconnect and connect again.</source>
        <translation>Un autre programme a supprimé les règles de pare-feu de Veldmark et elles n’ont pas pu être rétablies. Du trafic peut sortir directement de cet ordinateur. Déconnectez-vous puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>Invalid exit country.</source>
        <translation>Pays de sortie non valide.</translation>
    </message>
    <message>
        <source>The settings couldn&apos;t be saved. Changes to them may last only until you quit.</source>
        <translation>Les paramètres n’ont pas pu être enregistrés. Leurs modifications risquent d’être perdues quand vous quitterez.</translation>
    </message>
    <message>
        <source>Checking latest version…</source>
        <translation>Recherche de la dernière version…</translation>
    </message>
    <message>
        <source>Verifying signature…</source>
        <translation>Vérification de la signature…</translation>
    </message>
    <message>
        <source>Another download is under way.</source>
        <translation>Un autre téléchargement est en cours.</translation>
    </message>
    <message>
        <source>Path not responding, finding another…</source>
        <translation>Le chemin ne répond pas, recherche d’un autre…</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes.</source>
        <translation>La connexion de Tor n’a pas abouti en 5 minutes.</translation>
    </message>
    <message>
        <source>Administrator access was refused, or the agent that asks for the password gave no answer.</source>
        <translation>Les droits d’administration ont été refusés, ou l’agent qui demande le mot de passe n’a pas répondu.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, so Tor can&apos;t connect: %1.</source>
        <translation>Un autre pare-feu de cet ordinateur bloque le trafic sortant, Tor ne peut donc pas se connecter : %1.</translation>
    </message>
    <message>
        <source>Setup ran but the helper wasn&apos;t installed. Try again.</source>
        <translation>La configuration s’est exécutée, mais le programme auxiliaire n’a pas été installé. Réessayez.</translation>
    </message>
    <message>
        <source>The helper failed without an error message.</source>
        <translation>Le programme auxiliaire a échoué sans message d’erreur.</translation>
    </message>
    <message>
        <source>Add at least one bridge under Bridges → Custom….</source>
        <translation>Ajoutez au moins un pont sous « Ponts → Personnalisés… ».</translation>
    </message>
    <message>
        <source>Some custom bridge lines aren&apos;t valid. Fix them under Bridges → Custom….</source>
        <translation>Certaines lignes de ponts personnalisés ne sont pas valides. Corrigez-les sous « Ponts → Personnalisés… ».</translation>
    </message>
    <message>
        <source>At most %1 custom bridges can be used. Remove some under Bridges → Custom….</source>
        <translation>%1 ponts personnalisés au maximum peuvent être utilisés. Supprimez-en sous « Ponts → Personnalisés… ».</translation>
    </message>
    <message>
        <source>Testing speed (%1 of %2)…</source>
        <translation>Test de vitesse (%1 sur %2)…</translation>
    </message>
    <message>
        <source>Slow path (%1 ms), finding a faster one…</source>
        <translation>Chemin lent (%1 ms), recherche d’un plus rapide…</translation>
    </message>
    <message>
        <source>Downloading Tor %1 bridge programs…</source>
        <translation>Téléchargement des programmes de pont de Tor %1…</translation>
    </message>
    <message>
        <source>Download of %1 failed (HTTP %2).</source>
        <translation>Échec du téléchargement : %1 (HTTP %2).</translation>
    </message>
    <message>
        <source>The settings file couldn&apos;t be read. It was kept as %1, and a new one is used.</source>
        <translation>Le fichier de paramètres n’a pas pu être lu. Il a été conservé sous le nom %1, et un nouveau est utilisé.</translation>
    </message>
    <message>
        <source>The settings file %1 can&apos;t be read or replaced. Changes to the settings last until you quit.</source>
        <translation>Le fichier de paramètres %1 ne peut être ni lu ni remplacé. Les modifications des paramètres sont perdues quand vous quittez.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1 without Tor: %2</source>
        <translation>Impossible d’ouvrir %1 sans Tor : %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>Un autre de vos Veldmark a commencé une session entre-temps ; il n’a donc été mis fin à aucune session. Déconnectez-vous de nouveau pour mettre fin à celle-là.</translation>
    </message>
    <message>
        <source>Another user&apos;s Veldmark has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>Le Veldmark d’un autre utilisateur a commencé une session entre-temps ; il n’a donc été mis fin à aucune session. Déconnectez-vous de nouveau pour mettre fin à celle-là.</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by another Veldmark of yours, process %1</source>
        <translation>Votre réseau est configuré pour Tor par un autre de vos Veldmark, processus %1</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by %1, whose Veldmark is process %2</source>
        <translation>Votre réseau est configuré pour Tor par %1, dont le Veldmark est le processus %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours is connected (process %1). Disconnect it, or restore the network, first.</source>
        <translation>Un autre de vos Veldmark est connecté (processus %1). Déconnectez-le ou rétablissez le réseau d’abord.</translation>
    </message>
    <message>
        <source>%1 is connected with Veldmark (process %2). That session must be ended first.</source>
        <translation>%1 est connecté avec Veldmark (processus %2). Il faut d’abord mettre fin à cette session.</translation>
    </message>
    <message>
        <source>%1 Your network is still pointed at Tor. Click Restore Network to undo.</source>
        <translation>%1 Votre réseau est encore dirigé vers Tor. Cliquez sur « Rétablir le réseau » pour revenir à la normale.</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install the OpenBSD netcat or Ncat with your package manager.</source>
        <translation>ssh ne passe pas encore par Tor : il lui faut un netcat qui gère SOCKS. Installez le netcat d’OpenBSD ou Ncat avec votre gestionnaire de paquets.</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up terminal mode: %1</source>
        <translation>Impossible de configurer le mode terminal : %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove terminal integration: %1</source>
        <translation>Impossible de retirer l’intégration au terminal : %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up passwordless mode: %1</source>
        <translation>Impossible de configurer le mode sans mot de passe : %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove passwordless mode: %1</source>
        <translation>Impossible de retirer le mode sans mot de passe : %1</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install one with: %1</source>
        <translation>ssh ne passe pas encore par Tor : il lui faut un netcat qui gère SOCKS. Installez-en un avec : %1</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Connectez-vous en mode strict pour ouvrir des applications sans Tor</translation>
    </message>
    <message>
        <source>No bridge answered a quick test, trying them all</source>
        <translation>Aucun pont n’a répondu à un test rapide, essai de tous les ponts</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Ces ponts nécessitent lyrebird, fourni avec Tor Browser. Cliquez sur « Télécharger » à côté de « Ponts » pour l’obtenir.</translation>
    </message>
    <message>
        <source>Snowflake needs snowflake-client, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Snowflake nécessite snowflake-client, fourni avec Tor Browser. Cliquez sur « Télécharger » à côté de « Ponts » pour l’obtenir.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the latest Tor version from torproject.org.</source>
        <translation>Impossible de lire la dernière version de Tor sur torproject.org.</translation>
    </message>
    <message>
        <source>The request timed out.</source>
        <translation>La requête a expiré.</translation>
    </message>
    <message>
        <source>The server gave no HTTP answer.</source>
        <translation>Le serveur n’a pas donné de réponse HTTP.</translation>
    </message>
    <message>
        <source>The connection was lost before the download ended.</source>
        <translation>La connexion a été perdue avant la fin du téléchargement.</translation>
    </message>
    <message>
        <source>Not connected to Tor&apos;s control port.</source>
        <translation>Non connecté au port de contrôle de Tor.</translation>
    </message>
    <message>
        <source>Tor closed the control connection.</source>
        <translation>Tor a fermé la connexion de contrôle.</translation>
    </message>
    <message>
        <source>A program other than Tor listens on Tor&apos;s control port.</source>
        <translation>Un programme autre que Tor est à l’écoute sur le port de contrôle de Tor.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t answer on its control port in time.</source>
        <translation>Tor n’a pas répondu à temps sur son port de contrôle.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager or set its location in Settings.</source>
        <translation>Tor n’est pas installé. Installez-le avec votre gestionnaire de paquets ou indiquez son emplacement dans les paramètres.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with Homebrew (brew install tor) or set its location in Settings.</source>
        <translation>Tor n’est pas installé. Installez-le avec Homebrew (brew install tor) ou indiquez son emplacement dans les paramètres.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: polkit is not running on this system.</source>
        <translation>Impossible de demander les droits d’administration : polkit n’est pas actif sur ce système.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: no PolicyKit authentication agent is running in this session.</source>
        <translation>Impossible de demander les droits d’administration : aucun agent d’authentification PolicyKit n’est actif dans cette session.</translation>
    </message>
    <message>
        <source>The password could not be checked: polkit accepts no password from this terminal. Run the command with sudo.</source>
        <translation>Le mot de passe n’a pas pu être vérifié : polkit n’en accepte pas depuis ce terminal. Exécutez la commande avec sudo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t fix DNS: %1</source>
        <translation>Impossible de corriger le DNS : %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t request a new identity: %1</source>
        <translation>Impossible de demander une nouvelle identité : %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read circuits: %1</source>
        <translation>Impossible de lire les circuits : %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the login-item setting: %1</source>
        <translation>Impossible de modifier le lancement à l’ouverture de session : %1</translation>
    </message>
    <message>
        <source>Login items can&apos;t be changed here.</source>
        <translation>Les éléments d’ouverture de session ne peuvent pas être modifiés ici.</translation>
    </message>
    <message>
        <source>Move Veldmark to the Applications folder and open it from there first.</source>
        <translation>Déplacez d’abord Veldmark dans le dossier Applications et ouvrez-le depuis ce dossier.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1.</source>
        <translation>Impossible de supprimer %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <translation>Impossible d’écrire %1 : %2</translation>
    </message>
    <message>
        <source>Couldn&apos;t download bridge programs: %1</source>
        <translation>Impossible de télécharger les programmes de pont : %1</translation>
    </message>
    <message>
        <source>Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download again to also verify the Tor Project&apos;s signature.</source>
        <translation>Programmes de pont %1 installés par HTTPS. Installez GnuPG (%2) et téléchargez-les de nouveau pour vérifier aussi la signature du Projet Tor.</translation>
    </message>
    <message>
        <source>The download&apos;s signature didn&apos;t verify, so it was discarded. %1</source>
        <translation>Le téléchargement a été rejeté : la vérification de sa signature a échoué. %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unpack the download. %1</source>
        <translation>Impossible de décompresser le téléchargement. %1</translation>
    </message>
    <message>
        <source>Tor can&apos;t reach the bridge program: %1.</source>
        <translation>Tor ne peut pas joindre le programme de pont : %1.</translation>
    </message>
    <message>
        <source>Tor reports: %1 (%2).</source>
        <translation>Tor signale : %1 (%2).</translation>
    </message>
    <message>
        <source>Tor reports: %1.</source>
        <translation>Tor signale : %1.</translation>
    </message>
    <message>
        <source>Tor replied: %1</source>
        <translation>Tor a répondu : %1</translation>
    </message>
    <message>
        <source>Tor has trouble with the bridge program: %1</source>
        <translation>Tor a des difficultés avec le programme de pont : %1</translation>
    </message>
    <message>
        <source>The bridge program printed something that Tor doesn&apos;t understand: &quot;%1&quot;.</source>
        <translation>Le programme de pont a affiché quelque chose que Tor ne comprend pas : « %1 ».</translation>
    </message>
    <message>
        <source>Using the %1 fastest of %2 bridges</source>
        <translation>Utilisation des ponts les plus rapides : %1 sur %2</translation>
    </message>
    <message>
        <source>The %1 bridge type isn&apos;t supported yet.</source>
        <translation>Les ponts de type %1 ne sont pas encore pris en charge.</translation>
    </message>
    <message>
        <source>Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, install Tor Browser, or paste your own under Bridges → Custom….</source>
        <translation>Les ponts %1 intégrés proviennent de Tor Browser. Cliquez sur « Télécharger » à côté de « Ponts », installez Tor Browser ou collez les vôtres sous « Ponts → Personnalisés… ».</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1.</source>
        <translation>Certains paramètres DNS viennent de l’extérieur de Veldmark (d’un VPN ou de /etc/resolver) et contournent encore Tor : %1.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1. Strict mode&apos;s firewall blocks them.</source>
        <translation>Certains paramètres DNS viennent de l’extérieur de Veldmark (d’un VPN ou de /etc/resolver) et contournent encore Tor : %1. Le pare-feu du mode strict les bloque.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager (%1) or set its location in Settings.</source>
        <translation>Tor n’est pas installé. Installez-le avec votre gestionnaire de paquets (%1) ou indiquez son emplacement dans les paramètres.</translation>
    </message>
    <message>
        <source>%1 is already being opened.</source>
        <translation>%1 est déjà en cours d’ouverture.</translation>
    </message>
    <message>
        <source>A session is open, and its kill switch doesn&apos;t block traffic: its watcher couldn&apos;t put the rules back. Traffic may leave this computer directly. Restore the network, and connect again.</source>
        <translation>Une session est en cours, et son kill switch ne bloque pas le trafic : sa surveillance n’a pas pu rétablir les règles. Du trafic peut sortir directement de cet ordinateur. Rétablissez le réseau, puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>The clock is behind: it shows %1, but the file %2 was written on %3. Tor needs a clock that is right to within minutes.</source>
        <translation>L’horloge retarde : elle indique %1, mais le fichier %2 a été écrit le %3. Tor a besoin d’une horloge juste à quelques minutes près.</translation>
    </message>
    <message>
        <source>The clock is set from the network. It shows %1.</source>
        <translation>L’horloge est réglée par le réseau. Elle indique %1.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether the clock is right: no time service seems to set it. It shows %1. Tor needs it right to within minutes.</source>
        <translation>On ne sait pas si l’horloge est juste : aucun service de temps ne semble la régler. Elle indique %1. Tor a besoin qu’elle soit juste à quelques minutes près.</translation>
    </message>
    <message>
        <source>nftables isn&apos;t installed. Veldmark&apos;s firewall needs it.</source>
        <translation>nftables n’est pas installé. Le pare-feu de Veldmark en a besoin.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall, nftables, can be used.</source>
        <translation>Le pare-feu du système, nftables, est utilisable.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall can&apos;t be used: %1</source>
        <translation>Le pare-feu du système n’est pas utilisable : %1</translation>
    </message>
    <message>
        <source>The running kernel (%1) has no nftables. After an upgrade of the kernel, restart the computer.</source>
        <translation>Le noyau en cours d’exécution (%1) n’a pas nftables. Après une mise à niveau du noyau, redémarrez l’ordinateur.</translation>
    </message>
    <message>
        <source>nftables is installed. Only root can tell whether the running kernel can use it.</source>
        <translation>nftables est installé. Seul root peut savoir si le noyau en cours d’exécution peut l’utiliser.</translation>
    </message>
    <message>
        <source>nftables is installed, and the kernel has it.</source>
        <translation>nftables est installé, et le noyau le prend en charge.</translation>
    </message>
    <message>
        <source>This system has no control groups of version 2, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>Ce système n’a pas de groupes de contrôle version 2 : aucune application ne peut être ouverte sans Tor, et le kill switch ne reconnaît Tor qu’à son compte. Tout le reste fonctionne.</translation>
    </message>
    <message>
        <source>The kernel (%1) is older than 5.13, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>Le noyau (%1) est antérieur à 5.13 : aucune application ne peut être ouverte sans Tor, et le kill switch ne reconnaît Tor qu’à son compte. Tout le reste fonctionne.</translation>
    </message>
    <message>
        <source>Applications can be opened without Tor: control groups of version 2 are there.</source>
        <translation>Des applications peuvent être ouvertes sans Tor : les groupes de contrôle version 2 sont présents.</translation>
    </message>
    <message>
        <source>No other firewall that Veldmark knows runs. Only root can read the rules themselves.</source>
        <translation>Aucun autre pare-feu connu de Veldmark n’est actif. Seul root peut lire les règles elles-mêmes.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic that its rules don&apos;t allow, so Tor may not get through: %1.</source>
        <translation>Un autre pare-feu de cet ordinateur bloque le trafic sortant que ses règles n’autorisent pas ; il se peut donc que Tor ne passe pas : %1.</translation>
    </message>
    <message>
        <source>Other programs set firewall rules here: %1. Veldmark leaves their rules alone. Rules that drop packets can block Tor.</source>
        <translation>D’autres programmes définissent ici des règles de pare-feu : %1. Veldmark ne touche pas à leurs règles. Des règles qui rejettent des paquets peuvent bloquer Tor.</translation>
    </message>
    <message>
        <source>pkexec isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>pkexec n’est pas installé : aucune fenêtre ne peut demander le mot de passe administrateur.</translation>
    </message>
    <message>
        <source>polkit isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>polkit n’est pas installé : aucune fenêtre ne peut demander le mot de passe administrateur.</translation>
    </message>
    <message>
        <source>There is no desktop here on which a window could ask for the administrator&apos;s password. Use sudo.</source>
        <translation>Il n’y a pas ici de bureau sur lequel une fenêtre pourrait demander le mot de passe administrateur. Utilisez sudo.</translation>
    </message>
    <message>
        <source>No known polkit agent, the program that asks for the password, runs in your session. Use sudo, or start an agent such as lxpolkit.</source>
        <translation>Aucun agent polkit connu (le programme qui demande le mot de passe) n’est actif dans votre session. Utilisez sudo, ou démarrez un agent comme lxpolkit.</translation>
    </message>
    <message>
        <source>polkit is installed, and an agent that asks for the password runs in your session.</source>
        <translation>polkit est installé, et un agent qui demande le mot de passe est actif dans votre session.</translation>
    </message>
    <message>
        <source>Veldmark runs as root here and asks for no password.</source>
        <translation>Veldmark s’exécute ici en tant que root et ne demande aucun mot de passe.</translation>
    </message>
    <message>
        <source>Passwordless mode is set up.</source>
        <translation>Le mode sans mot de passe est configuré.</translation>
    </message>
    <message>
        <source>sudo isn&apos;t installed. Passwordless mode needs it.</source>
        <translation>sudo n’est pas installé. Le mode sans mot de passe en a besoin.</translation>
    </message>
    <message>
        <source>sudo is installed. Only root can tell whether you may use it.</source>
        <translation>sudo est installé. Seul root peut savoir si vous avez le droit de l’utiliser.</translation>
    </message>
    <message>
        <source>sudo is installed, and you are in the group %1.</source>
        <translation>sudo est installé, et vous êtes dans le groupe %1.</translation>
    </message>
    <message>
        <source>The program listens on IPv6. If it takes IPv6 alone, Tor can use the port.</source>
        <translation>Le programme écoute en IPv6. S’il n’accepte qu’IPv6, Tor peut utiliser le port.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by a program of the account %2.</source>
        <translation>Le port %1, nécessaire à Tor, est occupé par un programme du compte %2.</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) runs. Veldmark stops it while it is connected and starts it again afterwards.</source>
        <translation>Le service Tor du système (%1) est actif. Veldmark l’arrête pendant qu’il est connecté et le redémarre ensuite.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2 (process %3, account %4).</source>
        <translation>Le port %1, nécessaire à Tor, est occupé par %2 (processus %3, compte %4).</translation>
    </message>
    <message>
        <source>Veldmark&apos;s own Tor holds the ports 9050, 9051 and 293.</source>
        <translation>Le Tor de Veldmark occupe les ports 9050, 9051 et 293.</translation>
    </message>
    <message>
        <source>The ports that Tor needs (9050, 9051 and 293) are free.</source>
        <translation>Les ports nécessaires à Tor (9050, 9051 et 293) sont libres.</translation>
    </message>
    <message>
        <source>The location of Tor in the settings, %1, is not an executable program. Veldmark searches the usual places instead.</source>
        <translation>L’emplacement de Tor dans les paramètres, %1, n’est pas un programme exécutable. Veldmark cherche donc aux emplacements habituels.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed.</source>
        <translation>Tor n’est pas installé.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t start, or isn&apos;t Tor: it prints no version.</source>
        <translation>%1 ne démarre pas ou n’est pas Tor : il n’indique pas sa version.</translation>
    </message>
    <message>
        <source>Tor %1 is installed: %2.</source>
        <translation>Tor %1 est installé : %2.</translation>
    </message>
    <message>
        <source>The program %1 is missing. Veldmark&apos;s helper needs it.</source>
        <translation>Le programme %1 est absent. Le programme auxiliaire de Veldmark en a besoin.</translation>
    </message>
    <message>
        <source>Every program that Veldmark&apos;s helper calls is installed.</source>
        <translation>Tous les programmes qu’appelle le programme auxiliaire de Veldmark sont installés.</translation>
    </message>
    <message>
        <source>The helper is missing. Reinstall Veldmark.</source>
        <translation>Le programme auxiliaire est absent. Réinstallez Veldmark.</translation>
    </message>
    <message>
        <source>Accounts other than root can change Veldmark&apos;s helper, %1, and with it what the administrator&apos;s password runs.</source>
        <translation>D’autres comptes que root peuvent modifier le programme auxiliaire de Veldmark, %1, et donc ce qui s’exécute avec le mot de passe administrateur.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper, %1, is not installed: the account %2 can change it, and with it what the administrator&apos;s password runs.</source>
        <translation>Le programme auxiliaire de Veldmark, %1, n’est pas installé : le compte %2 peut le modifier, et donc modifier ce qui s’exécute avec le mot de passe administrateur.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper is installed, and only root can change it: %1.</source>
        <translation>Le programme auxiliaire de Veldmark est installé, et seul root peut le modifier : %1.</translation>
    </message>
    <message>
        <source>The helper of passwordless mode belongs to another version. Set up passwordless mode again in Settings, General.</source>
        <translation>Le programme auxiliaire du mode sans mot de passe est celui d’une autre version. Configurez de nouveau le mode sans mot de passe dans « Paramètres → Général ».</translation>
    </message>
    <message>
        <source>Bridges are off. Bridges need bridge programs where Tor is blocked, and none was found.</source>
        <translation>Les ponts sont désactivés. Là où Tor est bloqué, ils nécessitent des programmes de pont, et aucun n’a été trouvé.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridge programs were found: %1.</source>
        <translation>Les ponts sont désactivés. Programmes de pont trouvés : %1.</translation>
    </message>
    <message>
        <source>The chosen bridges can&apos;t be used. %1</source>
        <translation>Les ponts choisis ne sont pas utilisables. %1</translation>
    </message>
    <message>
        <source>The chosen bridges (%1) can be used: %2.</source>
        <translation>Les ponts choisis (%1) sont utilisables : %2.</translation>
    </message>
    <message>
        <source>%1 manages DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>%1 gère le DNS. Veldmark change cela tant qu’il est connecté et le rétablit ensuite.</translation>
    </message>
    <message>
        <source>Veldmark wrote %1. It points DNS at Tor.</source>
        <translation>%1 a été écrit par Veldmark et dirige le DNS vers Tor.</translation>
    </message>
    <message>
        <source>The file %1 is missing, so DNS may not work at all.</source>
        <translation>Le fichier %1 est absent : il se peut que le DNS ne fonctionne pas du tout.</translation>
    </message>
    <message>
        <source>A resolver on this computer answers DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>Un résolveur de cet ordinateur répond aux requêtes DNS. Veldmark change cela tant qu’il est connecté et le rétablit ensuite.</translation>
    </message>
    <message>
        <source>No earlier session is left open.</source>
        <translation>Aucune session précédente n’est restée ouverte.</translation>
    </message>
    <message>
        <source>A Tor of an earlier session still runs (process %1).</source>
        <translation>Un Tor d’une session précédente fonctionne encore (processus %1).</translation>
    </message>
    <message>
        <source>A session is open: the network is set up for Tor, and Tor runs.</source>
        <translation>Une session est en cours : le réseau est configuré pour Tor, et Tor fonctionne.</translation>
    </message>
    <message>
        <source>The network is set up for Tor. It isn&apos;t known whether Tor still runs.</source>
        <translation>Le réseau est configuré pour Tor. Impossible de savoir ici si Tor fonctionne encore.</translation>
    </message>
    <message>
        <source>The network is still set up for Tor from an earlier session, and no Tor runs. Connect again, or restore the network.</source>
        <translation>Le réseau est encore configuré pour Tor par une session précédente, et aucun Tor n’est actif. Reconnectez-vous ou rétablissez le réseau.</translation>
    </message>
    <message>
        <source>A session is open, and it isn&apos;t known whether its kill switch blocks traffic: no watcher watches the rules. Restore the network, and connect again.</source>
        <translation>Une session est en cours, et on ne sait pas si son kill switch bloque le trafic : aucun programme ne surveille les règles. Rétablissez le réseau, puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Annulé.</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mo</translation>
    </message>
    <message>
        <source>%1 of %2 MB (%3%)</source>
        <translation>%1 sur %2 Mo (%3 %)</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this computer. While connected, Veldmark stops the system&apos;s own Tor service.</source>
        <translation>Veldmark a besoin des droits d’administration pour gérer le routage par Tor sur cet ordinateur. Pendant la connexion, Veldmark arrête le service Tor du système.</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this Mac.</source>
        <translation>Veldmark a besoin des droits d’administration pour gérer le routage par Tor sur ce Mac.</translation>
    </message>
    <message>
        <source>The archive contains %1: %2</source>
        <translation>L’archive contient %1 : %2</translation>
    </message>
    <message>
        <source>a link that leads elsewhere</source>
        <translation>un lien qui mène ailleurs</translation>
    </message>
    <message>
        <source>a hard link</source>
        <translation>un lien physique</translation>
    </message>
    <message>
        <source>an entry that is neither a file nor a folder</source>
        <translation>un élément qui n’est ni un fichier ni un dossier</translation>
    </message>
    <message>
        <source>a path that leads elsewhere</source>
        <translation>un chemin qui mène ailleurs</translation>
    </message>
    <message>
        <source>The file is empty or not an archive.</source>
        <translation>Le fichier est vide ou n’est pas une archive.</translation>
    </message>
    <message>
        <source>The archive&apos;s list of files is ambiguous.</source>
        <translation>La liste des fichiers de l’archive est ambiguë.</translation>
    </message>
    <message>
        <source>The archive contains too many files.</source>
        <translation>L’archive contient trop de fichiers.</translation>
    </message>
    <message>
        <source>The archive&apos;s content is too large.</source>
        <translation>Le contenu de l’archive est trop volumineux.</translation>
    </message>
    <message>
        <source>The archive&apos;s content could not be listed.</source>
        <translation>Le contenu de l’archive n’a pas pu être listé.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make the folder %1: %2.</source>
        <translation>Impossible de créer le dossier %1 : %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1: %2.</source>
        <translation>Impossible d’ouvrir %1 : %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make a folder beside %1: %2.</source>
        <translation>Impossible de créer un dossier à côté de %1 : %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2.</source>
        <translation>Impossible d’écrire %1 : %2.</translation>
    </message>
    <message>
        <source>%1 didn&apos;t end within %2 minutes.</source>
        <translation>%1 n’a pas terminé en %2 min.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load the Tor Browser signing key. %1</source>
        <translation>Impossible de charger la clé de signature de Tor Browser. %1</translation>
    </message>
    <message>
        <source>The server sent more than %1 can be.</source>
        <translation>Le serveur a envoyé trop de données : %1.</translation>
    </message>
    <message>
        <source>the version index</source>
        <translation>index des versions</translation>
    </message>
    <message>
        <source>the bridge programs</source>
        <translation>programmes de pont</translation>
    </message>
    <message>
        <source>signature</source>
        <translation>signature</translation>
    </message>
    <message>
        <source>signing key</source>
        <translation>clé de signature</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>Installation…</translation>
    </message>
    <message>
        <source>No applications are installed.</source>
        <translation>Aucune application n’est installée.</translation>
    </message>
    <message>
        <source>(not in the menu)</source>
        <translation>(absente du menu)</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Le fichier « %1 » n’existe pas.</translation>
    </message>
    <message>
        <source>There is no application &quot;%1&quot;; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>L’application « %1 » n’existe pas ; « veldmarkctl apps » en affiche la liste.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be any of: %2. Give the path.</source>
        <translation>« %1 » peut désigner : %2. Indiquez le chemin.</translation>
    </message>
    <message>
        <source>%1 needs a key: veldmarkctl %1 KEY.</source>
        <translation>%1 nécessite une clé : veldmarkctl %1 KEY.</translation>
    </message>
    <message>
        <source>%1 needs a key and a value: veldmarkctl %1 KEY VALUE.</source>
        <translation>%1 nécessite une clé et une valeur : veldmarkctl %1 KEY VALUE.</translation>
    </message>
    <message>
        <source>A command is missing. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Il manque une commande. « veldmarkctl help » affiche la liste des commandes.</translation>
    </message>
    <message>
        <source>Unknown command %1. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Commande inconnue : %1. « veldmarkctl help » affiche la liste des commandes.</translation>
    </message>
    <message>
        <source>%1 has no option %2.</source>
        <translation>%1 n’a pas d’option %2.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t take %2.</source>
        <translation>%1 n’accepte pas %2.</translation>
    </message>
    <message>
        <source>usage: veldmarkctl COMMAND</source>
        <translation>utilisation : veldmarkctl COMMANDE</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage,
3 Veldmark is not running, 4 Veldmark is already running.</source>
        <translation>Code de retour : 0 réussite, 1 échec (la raison est sur la sortie d’erreur),
2 mauvaise utilisation, 3 Veldmark n’est pas lancé, 4 Veldmark est déjà lancé.</translation>
    </message>
    <message>
        <source>line %1 is not a bridge line: %2</source>
        <translation>la ligne %1 n’est pas une ligne de pont : %2</translation>
    </message>
    <message>
        <source>%1 too many, from line %2 on; at most %3 can be used</source>
        <translation>%1 en trop, à partir de la ligne %2 ; maximum utilisable : %3</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmes</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>introuvable</translation>
    </message>
    <message>
        <source>doesn&apos;t say which transports it serves</source>
        <translation>n’indique pas quels transports il gère</translation>
    </message>
    <message>
        <source>serves %1</source>
        <translation>gère %1</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Ponts intégrés</translation>
    </message>
    <message>
        <source>Built-in bridges, from %1</source>
        <translation>Ponts intégrés, provenant de %1</translation>
    </message>
    <message>
        <source>none; get some with: veldmarkctl download-transports</source>
        <translation>aucun ; pour en obtenir : veldmarkctl download-transports</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>signature vérifiée</translation>
    </message>
    <message>
        <source>signature not verified</source>
        <translation>signature non vérifiée</translation>
    </message>
    <message>
        <source>not downloaded</source>
        <translation>non téléchargé</translation>
    </message>
    <message>
        <source>Your own bridges</source>
        <translation>Vos propres ponts</translation>
    </message>
    <message>
        <source>%1 valid</source>
        <translation>valides : %1</translation>
    </message>
    <message>
        <source>Installed Tor Expert Bundle %1, signature verified.</source>
        <translation>Tor Expert Bundle %1 installé, signature vérifiée.</translation>
    </message>
    <message>
        <source>Veldmark isn&apos;t running. Start it with: veldmarkctl run --connect</source>
        <translation>Veldmark n’est pas lancé. Lancez-le avec : veldmarkctl run --connect</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;. Fields: %2.</source>
        <translation>Le champ « %1 » n’existe pas. Champs : %2.</translation>
    </message>
    <message>
        <source>list the commands</source>
        <translation>afficher la liste des commandes</translation>
    </message>
    <message>
        <source>good</source>
        <translation>bon</translation>
    </message>
    <message>
        <source>note</source>
        <translation>remarque</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problème</translation>
    </message>
    <message>
        <source>A connect can work.</source>
        <translation>Une connexion est possible.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work yet.</source>
        <translation>Une connexion n’est pas encore possible.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work until each &quot;problem&quot; is fixed.</source>
        <translation>Aucune connexion n’est possible tant qu’il reste un « problème ».</translation>
    </message>
    <message>
        <source>proxy: apps that ignore the system proxy are not covered</source>
        <translation>proxy : les applications qui ignorent le proxy système ne sont pas couvertes</translation>
    </message>
    <message>
        <source>strict: only Tor&apos;s traffic leaves</source>
        <translation>strict : seul le trafic de Tor sort</translation>
    </message>
    <message>
        <source>strict</source>
        <translation>strict</translation>
    </message>
    <message>
        <source>blocks traffic, since %1</source>
        <translation>bloque le trafic, depuis %1</translation>
    </message>
    <message>
        <source>blocks traffic; put back at %1 after another program had removed it</source>
        <translation>bloque le trafic ; rétabli (%1) après sa suppression par un autre programme</translation>
    </message>
    <message>
        <source>NOT BLOCKING since %1: traffic may leave this computer directly</source>
        <translation>NE BLOQUE PAS depuis %1 : du trafic peut sortir directement de cet ordinateur</translation>
    </message>
    <message>
        <source>isn&apos;t known to block traffic, since %1</source>
        <translation>on ne sait pas s’il bloque le trafic, depuis %1</translation>
    </message>
    <message>
        <source>not checked yet</source>
        <translation>pas encore vérifié</translation>
    </message>
    <message>
        <source>the check service didn&apos;t answer through Tor</source>
        <translation>le service de vérification n’a pas répondu par Tor</translation>
    </message>
    <message>
        <source>%1, a Tor exit</source>
        <translation>%1, une sortie de Tor</translation>
    </message>
    <message>
        <source>%1, NOT a Tor exit</source>
        <translation>%1, qui n’est PAS une sortie de Tor</translation>
    </message>
    <message>
        <source>open; it shows the address %1</source>
        <translation>ouvert ; il révèle l’adresse %1</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>bloqué</translation>
    </message>
    <message>
        <source>no answer, but it isn&apos;t known whether the kill switch blocks it</source>
        <translation>pas de réponse, mais on ne sait pas si le kill switch le bloque</translation>
    </message>
    <message>
        <source>no answer, but proxy mode doesn&apos;t block it</source>
        <translation>pas de réponse, mais le mode proxy ne le bloque pas</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>vérification…</translation>
    </message>
    <message>
        <source>inconclusive</source>
        <translation>indéterminé</translation>
    </message>
    <message>
        <source>can go around Tor via: %1</source>
        <translation>peut contourner Tor via : %1</translation>
    </message>
    <message>
        <source>a test lookup went through Tor</source>
        <translation>une requête de test est passée par Tor</translation>
    </message>
    <message>
        <source>testing…</source>
        <translation>test en cours…</translation>
    </message>
    <message>
        <source>settings point at Tor, but a test lookup couldn&apos;t be confirmed</source>
        <translation>les paramètres pointent vers Tor, mais une requête de test n’a pas pu être confirmée</translation>
    </message>
    <message>
        <source>not tested yet</source>
        <translation>pas encore testé</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Latence</translation>
    </message>
    <message>
        <source>%1 ms through Tor</source>
        <translation>%1 ms par Tor</translation>
    </message>
    <message>
        <source>Direct path</source>
        <translation>Chemin direct</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Trafic</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>reçu : %1, envoyé : %2</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Ponts</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>À faire</translation>
    </message>
    <message>
        <source>nothing; veldmarkctl restore would end that session</source>
        <translation>rien ; veldmarkctl restore mettrait fin à cette session</translation>
    </message>
    <message>
        <source>Kill switch</source>
        <translation>Kill switch</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Cause</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problème</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>No circuits yet.</source>
        <translation>Pas encore de circuits.</translation>
    </message>
    <message>
        <source>Ready. Connect with: veldmarkctl connect</source>
        <translation>Prêt. Connectez-vous avec : veldmarkctl connect</translation>
    </message>
    <message>
        <source>Still restoring your network, one moment…</source>
        <translation>Le rétablissement de votre réseau est encore en cours, un instant…</translation>
    </message>
    <message>
        <source>Stopping as soon as Tor has been started…</source>
        <translation>Arrêt dès que Tor aura démarré…</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Restore it with: %1</source>
        <translation>Le réseau est encore configuré pour Tor. Rétablissez-le avec : %1</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Press Ctrl-C to try again.</source>
        <translation>Le réseau est encore configuré pour Tor. Appuyez sur Ctrl-C pour réessayer.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Press Ctrl-C to disconnect.</source>
        <translation>Appuyez sur Ctrl-C pour vous déconnecter.</translation>
    </message>
    <message>
        <source>A command to Tor can&apos;t contain a line break or a NUL.</source>
        <translation>Une commande envoyée à Tor ne peut contenir ni saut de ligne ni NUL.</translation>
    </message>
    <message>
        <source>Tor sent a line of more than 1 MiB on its control port.</source>
        <translation>Tor a envoyé une ligne de plus de 1 Mio sur son port de contrôle.</translation>
    </message>
    <message>
        <source>Tor sent a reply of more than 64 MiB on its control port.</source>
        <translation>Tor a envoyé une réponse de plus de 64 Mio sur son port de contrôle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>« %1 » n’est ni true ni false.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a JSON array of strings.</source>
        <translation>« %1 » n’est pas un tableau JSON de chaînes.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a bridge choice: off, obfs4, snowflake, meek or custom.</source>
        <translation>« %1 » n’est pas un choix de ponts : off, obfs4, snowflake, meek ou custom.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;. Settings: %2.</source>
        <translation>Le paramètre « %1 » n’existe pas. Paramètres : %2.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes. (%1)</source>
        <translation>La connexion de Tor n’a pas abouti en 5 minutes. (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an exit country: two lower-case letters such as &quot;de&quot;, or nothing for any.</source>
        <translation>« %1 » n’est pas un pays de sortie : deux lettres minuscules comme « fr », ou rien pour un pays quelconque.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an application: an absolute path that ends in &quot;%2&quot;.</source>
        <translation>« %1 » n’est pas une application : il faut un chemin absolu qui se termine par « %2 ».</translation>
    </message>
    <message>
        <source>strict mode with the kill switch, else proxy mode</source>
        <translation>le mode strict avec le kill switch, sinon le mode proxy</translation>
    </message>
    <message>
        <source>strict mode lets the local network through</source>
        <translation>le mode strict laisse passer le réseau local</translation>
    </message>
    <message>
        <source>two lower-case letters, or nothing for any</source>
        <translation>deux lettres minuscules, ou rien pour un pays quelconque</translation>
    </message>
    <message>
        <source>the path of the tor to use, or nothing to search for tor</source>
        <translation>le chemin du tor à utiliser, ou rien pour rechercher tor</translation>
    </message>
    <message>
        <source>which bridges</source>
        <translation>quels ponts</translation>
    </message>
    <message>
        <source>your own bridge lines, as typed</source>
        <translation>vos propres lignes de ponts, telles que saisies</translation>
    </message>
    <message>
        <source>paths of applications that may be opened without Tor</source>
        <translation>chemins des applications qui peuvent être ouvertes sans Tor</translation>
    </message>
    <message>
        <source>connect when Veldmark starts</source>
        <translation>se connecter au démarrage de Veldmark</translation>
    </message>
    <message>
        <source>test bridges before connecting, look for a faster path afterwards</source>
        <translation>tester les ponts avant la connexion, chercher un chemin plus rapide ensuite</translation>
    </message>
    <message>
        <source>command-line tools go through Tor while connected</source>
        <translation>les outils en ligne de commande passent par Tor quand Veldmark est connecté</translation>
    </message>
    <message>
        <source>with your package manager</source>
        <translation>avec votre gestionnaire de paquets</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Démarrage…</translation>
    </message>
    <message>
        <source>&quot;set&quot; needs a &quot;key&quot; and a &quot;value&quot;, both strings.</source>
        <translation>« set » nécessite une « key » et une « value », toutes deux des chaînes.</translation>
    </message>
    <message>
        <source>Already connected or connecting; &quot;veldmarkctl status&quot; says more.</source>
        <translation>Déjà connecté, ou en train de l’être ; « veldmarkctl status » en dit plus.</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>Pas maintenant : %1</translation>
    </message>
    <message>
        <source>A check is already running.</source>
        <translation>Une vérification est déjà en cours.</translation>
    </message>
    <message>
        <source>There is no circuit &quot;%1&quot;.</source>
        <translation>Le circuit « %1 » n’existe pas.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t close circuit %1.</source>
        <translation>Tor n’a pas fermé le circuit %1.</translation>
    </message>
    <message>
        <source>&quot;launch&quot; needs an &quot;app&quot;, an absolute path.</source>
        <translation>« launch » nécessite une « app », un chemin absolu.</translation>
    </message>
    <message>
        <source>Veldmark stopped before it had answered.</source>
        <translation>Veldmark s’est arrêté avant d’avoir répondu.</translation>
    </message>
    <message>
        <source>Veldmark is already running (process %1).</source>
        <translation>Veldmark est déjà lancé (processus %1).</translation>
    </message>
    <message>
        <source>%1 must be a folder of your own with mode 0700: the control socket goes there.</source>
        <translation>%1 doit être un dossier qui vous appartient, en mode 0700 : le socket de contrôle y est placé.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1/lock.</source>
        <translation>Impossible d’écrire %1/lock.</translation>
    </message>
    <message>
        <source>Couldn&apos;t listen on %1: %2.</source>
        <translation>Impossible d’écouter sur %1 : %2.</translation>
    </message>
    <message>
        <source>A command is a JSON object on one line.</source>
        <translation>Une commande est un objet JSON sur une seule ligne.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Commande inconnue : « %1 ».</translation>
    </message>
    <message>
        <source>Not connected.</source>
        <translation>Non connecté.</translation>
    </message>
    <message>
        <source>The session has ended: %1</source>
        <translation>La session est terminée : %1</translation>
    </message>
    <message>
        <source>as JSON</source>
        <translation>au format JSON</translation>
    </message>
    <message>
        <source>connect at once</source>
        <translation>se connecter aussitôt</translation>
    </message>
    <message>
        <source>run Veldmark here, in the foreground; Ctrl-C disconnects</source>
        <translation>exécuter Veldmark ici, au premier plan ; Ctrl-C déconnecte</translation>
    </message>
    <message>
        <source>go on until Ctrl-C</source>
        <translation>continuer jusqu’à Ctrl-C</translation>
    </message>
    <message>
        <source>print the connection&apos;s state; --watch goes on until Ctrl-C</source>
        <translation>afficher l’état de la connexion ; --watch continue jusqu’à Ctrl-C</translation>
    </message>
    <message>
        <source>connect the running instance to Tor</source>
        <translation>connecter à Tor le Veldmark déjà lancé</translation>
    </message>
    <message>
        <source>restore the network and stop Tor</source>
        <translation>rétablir le réseau et arrêter Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor, also after a crash</source>
        <translation>rétablir le réseau et arrêter Tor, y compris après un plantage</translation>
    </message>
    <message>
        <source>check the exit address, the direct path and DNS now</source>
        <translation>vérifier maintenant l’adresse de sortie, le chemin direct et le DNS</translation>
    </message>
    <message>
        <source>point the system&apos;s DNS settings at Tor again</source>
        <translation>diriger de nouveau les paramètres DNS du système vers Tor</translation>
    </message>
    <message>
        <source>Tor&apos;s circuits and the sites on them</source>
        <translation>les circuits de Tor et leurs sites</translation>
    </message>
    <message>
        <source>close a circuit; its sites get a fresh path on their next request</source>
        <translation>fermer un circuit ; ses sites prennent un nouveau chemin à la requête suivante</translation>
    </message>
    <message>
        <source>close-circuit needs a circuit&apos;s number; &quot;veldmarkctl circuits&quot; shows them.</source>
        <translation>close-circuit nécessite un numéro de circuit ; voir « veldmarkctl circuits ».</translation>
    </message>
    <message>
        <source>new circuits for everything</source>
        <translation>nouveaux circuits pour tout</translation>
    </message>
    <message>
        <source>warnings and errors only</source>
        <translation>avertissements et erreurs seulement</translation>
    </message>
    <message>
        <source>Tor&apos;s log; --problems shows warnings and errors only</source>
        <translation>le journal de Tor ; --problems n’affiche qu’avertissements et erreurs</translation>
    </message>
    <message>
        <source>the bridge programs and built-in bridges that were found, and
which of your own bridge lines are not valid</source>
        <translation>les programmes de pont et les ponts intégrés trouvés, et
vos lignes de ponts qui ne sont pas valides</translation>
    </message>
    <message>
        <source>fetch the Tor Project&apos;s bridge programs and built-in bridges</source>
        <translation>récupérer les programmes de pont et les ponts intégrés du Projet Tor</translation>
    </message>
    <message>
        <source>the installed applications; * marks those in the setting &quot;bypassApps&quot;</source>
        <translation>les applications installées ; * marque celles du paramètre « bypassApps »</translation>
    </message>
    <message>
        <source>open an application without Tor, with your own address; needs strict mode.
APP is a name from &quot;apps&quot;, the file name of its desktop entry, or the path
of an entry or a program. Running copies are asked to quit first</source>
        <translation>ouvrir une application sans Tor, avec votre IP réelle ; exige le mode strict.
APP est un nom de « apps », le nom d’un fichier .desktop, ou le chemin d’un tel
fichier ou d’un programme. Les copies ouvertes sont d’abord priées de quitter</translation>
    </message>
    <message>
        <source>launch needs an application; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>launch nécessite une application ; voir « veldmarkctl apps ».</translation>
    </message>
    <message>
        <source>check what a connect needs on this computer, what blocks it and how to fix
it. Changes nothing; the exit status is 0 when a connect can work</source>
        <translation>examiner cet ordinateur : ce qu’exige une connexion, ce qui l’empêche et
comment y remédier. Ne modifie rien ; renvoie 0 si une connexion est possible</translation>
    </message>
    <message>
        <source>print a field of &quot;status --json&quot;</source>
        <translation>afficher un champ de « status --json »</translation>
    </message>
    <message>
        <source>change a setting; most of them only while not connected</source>
        <translation>modifier un paramètre ; la plupart seulement hors connexion</translation>
    </message>
    <message>
        <source>Can&apos;t read Tor&apos;s log</source>
        <translation>Impossible de lire le journal de Tor</translation>
    </message>
    <message>
        <source>The log files in %1 aren&apos;t readable by your account. Reconnect once with this version of Veldmark to fix their permissions.</source>
        <translation>Votre compte ne peut pas lire les fichiers journaux dans %1. Reconnectez-vous une fois avec cette version de Veldmark pour corriger leurs permissions.</translation>
    </message>
    <message>
        <source>No log yet</source>
        <translation>Pas encore de journal</translation>
    </message>
    <message>
        <source>Connect, and Tor&apos;s messages appear here as it starts. If Tor fails to start, the reason shows up here.</source>
        <translation>Connectez-vous et les messages de Tor apparaissent ici dès son démarrage. Si Tor ne démarre pas, la raison s’affiche ici.</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>Aucun résultat</translation>
    </message>
    <message>
        <source>No lines contain “%1”</source>
        <translation>Aucune ligne ne contient « %1 »</translation>
    </message>
    <message>
        <source>No warnings or errors. Tor is happy.</source>
        <translation>Ni avertissement ni erreur. Tor va bien.</translation>
    </message>
    <message>
        <source>The bridge program %1 reports: %2</source>
        <translation>Le programme de pont %1 signale : %2</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly.</source>
        <translation>Le programme de pont %1 s’est arrêté de façon inattendue.</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending.</source>
        <translation>Le programme de pont %1 s’arrête sans cesse.</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly (exit status %2).</source>
        <translation>Le programme de pont %1 s’est arrêté de façon inattendue (code de retour %2).</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending (exit status %2).</source>
        <translation>Le programme de pont %1 s’arrête sans cesse (code de retour %2).</translation>
    </message>
    <message>
        <source>It said: &quot;%1&quot;.</source>
        <translation>Il a indiqué : « %1 ».</translation>
    </message>
    <message>
        <source>The program is quitting.</source>
        <translation>Le programme est en cours de fermeture.</translation>
    </message>
    <message>
        <source>Veldmark replaces the running strict session. The new session may protect you less.</source>
        <translation>La session stricte en cours est remplacée ; la nouvelle peut moins vous protéger.</translation>
    </message>
    <message>
        <source>Veldmark wants to run %1 as a part of Tor. No package of the system installed it. Its SHA-256 is %2.</source>
        <translation>Veldmark veut exécuter %1 comme élément de Tor. Ce fichier ne provient d’aucun paquet du système. Son empreinte SHA-256 est %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be created: %2.</source>
        <translation>Impossible de créer %1 : %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed: %2.</source>
        <translation>Impossible de supprimer %1 : %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>Impossible de lire %1 : %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2.</source>
        <translation>Impossible d’écrire %1 : %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 n’est pas un fichier.</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 est en lecture seule.</translation>
    </message>
    <message>
        <source>%1 was changed by another program just now.</source>
        <translation>%1 vient d’être modifié par un autre programme.</translation>
    </message>
    <message>
        <source>%1 belongs to another user or group.</source>
        <translation>%1 appartient à un autre utilisateur ou groupe.</translation>
    </message>
    <message>
        <source>A bridge line is not valid.</source>
        <translation>Une ligne de pont n’est pas valide.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your network settings.</source>
        <translation>Un enregistrement des anciens paramètres réseau était endommagé (%1). Le réseau est de nouveau ouvert ; vérifiez vos paramètres réseau.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your proxy settings.</source>
        <translation>Un enregistrement des anciens paramètres réseau était endommagé (%1). Le réseau est de nouveau ouvert ; vérifiez vos paramètres de proxy.</translation>
    </message>
    <message>
        <source>An administrator password is needed to approve %1.</source>
        <translation>Un mot de passe administrateur est nécessaire pour approuver %1.</translation>
    </message>
    <message>
        <source>An administrator password is needed to change the running strict session.</source>
        <translation>Un mot de passe administrateur est nécessaire pour modifier la session stricte en cours.</translation>
    </message>
    <message>
        <source>An administrator password is needed to open an application without Tor.</source>
        <translation>Un mot de passe administrateur est nécessaire pour ouvrir une application sans Tor.</translation>
    </message>
    <message>
        <source>An administrator password is needed to set this up.</source>
        <translation>Un mot de passe administrateur est nécessaire pour cette configuration.</translation>
    </message>
    <message>
        <source>Another program (process %1) has started a session meanwhile. That session was left alone.</source>
        <translation>Un autre programme (processus %1) a commencé une session entre-temps. Cette session n’a pas été touchée.</translation>
    </message>
    <message>
        <source>Another run of the helper is still working. Try again in a moment.</source>
        <translation>Le programme auxiliaire traite encore une autre demande. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>Applications are not opened as root.</source>
        <translation>Aucune application n’est ouverte en tant que root.</translation>
    </message>
    <message>
        <source>The helper opens applications only for the user who asks.</source>
        <translation>Le programme auxiliaire n’ouvre des applications que pour l’utilisateur qui le demande.</translation>
    </message>
    <message>
        <source>Applications cannot be opened without Tor on this system.</source>
        <translation>Les applications ne peuvent pas être ouvertes sans Tor sur ce système.</translation>
    </message>
    <message>
        <source>More than %1 bridges were given.</source>
        <translation>Plus de %1 ponts ont été indiqués.</translation>
    </message>
    <message>
        <source>Passwordless mode can be set up only for the user who asks.</source>
        <translation>Le mode sans mot de passe ne peut être configuré que pour l’utilisateur qui le demande.</translation>
    </message>
    <message>
        <source>Another program is changing the firewall. Try again in a moment.</source>
        <translation>Un autre programme est en train de modifier le pare-feu. Réessayez dans un instant.</translation>
    </message>
    <message>
        <source>The DNS servers of systemd-resolved cannot be changed.</source>
        <translation>Les serveurs DNS de systemd-resolved ne peuvent pas être modifiés.</translation>
    </message>
    <message>
        <source>The DNS settings cannot be changed.</source>
        <translation>Les paramètres DNS ne peuvent pas être modifiés.</translation>
    </message>
    <message>
        <source>The DNS settings could not be put back.</source>
        <translation>Les paramètres DNS n’ont pas pu être rétablis.</translation>
    </message>
    <message>
        <source>The account %1 cannot be created.</source>
        <translation>Le compte %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>The account %1 has no valid user id.</source>
        <translation>Le compte %1 n’a pas d’identifiant utilisateur valide.</translation>
    </message>
    <message>
        <source>The account %1 must be neither root&apos;s nor the caller&apos;s.</source>
        <translation>Le compte %1 ne doit être ni celui de root ni celui de l’utilisateur qui fait la demande.</translation>
    </message>
    <message>
        <source>The application could not be started.</source>
        <translation>L’application n’a pas pu être démarrée.</translation>
    </message>
    <message>
        <source>The caller&apos;s user id is not a number.</source>
        <translation>L’identifiant utilisateur de l’appelant n’est pas un nombre.</translation>
    </message>
    <message>
        <source>The control group for Tor cannot be made.</source>
        <translation>Le groupe de contrôle pour Tor ne peut pas être créé.</translation>
    </message>
    <message>
        <source>The control group of the applications without Tor could not be removed.</source>
        <translation>Le groupe de contrôle des applications sans Tor n’a pas pu être supprimé.</translation>
    </message>
    <message>
        <source>The copy of the program cannot be put into %1.</source>
        <translation>La copie du programme ne peut pas être placée dans %1.</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings cannot be changed.</source>
        <translation>Les paramètres de proxy du bureau ne peuvent pas être modifiés.</translation>
    </message>
    <message>
        <source>The exit country is not a two-letter code.</source>
        <translation>Le pays de sortie n’est pas un code de deux lettres.</translation>
    </message>
    <message>
        <source>The file %1 cannot be made.</source>
        <translation>Le fichier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Le fichier %1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed.</source>
        <translation>Le fichier %1 ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Impossible d’écrire dans le fichier %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be put back.</source>
        <translation>Le fichier %1 n’a pas pu être rétabli.</translation>
    </message>
    <message>
        <source>The files in %1 cannot be removed.</source>
        <translation>Les fichiers de %1 ne peuvent pas être supprimés.</translation>
    </message>
    <message>
        <source>The firewall rules cannot be read, so nothing was done.</source>
        <translation>Les règles du pare-feu ne peuvent pas être lues ; rien n’a donc été fait.</translation>
    </message>
    <message>
        <source>The firewall cannot be switched on (%1).</source>
        <translation>Le pare-feu ne peut pas être activé (%1).</translation>
    </message>
    <message>
        <source>The firewall cannot end the earlier connections.</source>
        <translation>Le pare-feu ne peut pas couper les connexions ouvertes auparavant.</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off (%1).</source>
        <translation>Le kill switch n’a pas pu être désactivé (%1).</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off, because another program is changing the firewall.</source>
        <translation>Le kill switch n’a pas pu être désactivé, car un autre programme est en train de modifier le pare-feu.</translation>
    </message>
    <message>
        <source>The firewall does not hold the rules that were loaded.</source>
        <translation>Le pare-feu ne contient pas les règles qui ont été chargées.</translation>
    </message>
    <message>
        <source>The firewall gave no token.</source>
        <translation>Le pare-feu n’a pas fourni de jeton.</translation>
    </message>
    <message>
        <source>The firewall leaves out the network device %1 (&quot;set skip&quot; in /etc/pf.conf), where nothing would be blocked.</source>
        <translation>Le pare-feu ignore le périphérique réseau %1 (« set skip » dans /etc/pf.conf), sur lequel rien ne serait bloqué.</translation>
    </message>
    <message>
        <source>The firewall rules were not accepted (%1).</source>
        <translation>Les règles de pare-feu n’ont pas été acceptées (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s devices cannot be read.</source>
        <translation>Les périphériques du pare-feu ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be changed (%1).</source>
        <translation>Les règles principales du pare-feu ne peuvent pas être modifiées (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be read.</source>
        <translation>Les règles principales du pare-feu ne peuvent pas être lues.</translation>
    </message>
    <message>
        <source>The firewall&apos;s state cannot be read.</source>
        <translation>L’état du pare-feu ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be changed.</source>
        <translation>Le dossier %1 ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Le dossier %1 ne peut pas être créé.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>Impossible d’écrire dans le dossier %1.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it and those above it.</source>
        <translation>Le dossier %1 n’est pas sûr : seul root doit le posséder et pouvoir y écrire, de même pour les dossiers au-dessus.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it.</source>
        <translation>Le dossier %1 n’est pas sûr : seul root doit le posséder et pouvoir y écrire.</translation>
    </message>
    <message>
        <source>The folder /etc/sudoers.d is missing or not safe.</source>
        <translation>Le dossier /etc/sudoers.d est absent ou n’est pas sûr.</translation>
    </message>
    <message>
        <source>The folders above Veldmark&apos;s are not safe: only root may own or write them.</source>
        <translation>Les dossiers au-dessus de celui de Veldmark ne sont pas sûrs : seul root doit les posséder et pouvoir y écrire.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read, so nothing was done.</source>
        <translation>Les dossiers sous %1 ne peuvent pas être lus ; rien n’a donc été fait.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read.</source>
        <translation>Les dossiers sous %1 ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>The former network settings could not all be restored.</source>
        <translation>Les anciens paramètres réseau n’ont pas tous pu être rétablis.</translation>
    </message>
    <message>
        <source>The hashed control password is not valid.</source>
        <translation>Le mot de passe de contrôle haché n’est pas valide.</translation>
    </message>
    <message>
        <source>The helper could not be copied to %1.</source>
        <translation>Le programme auxiliaire n’a pas pu être copié vers %1.</translation>
    </message>
    <message>
        <source>The helper must run as root.</source>
        <translation>Le programme auxiliaire doit s’exécuter en tant que root.</translation>
    </message>
    <message>
        <source>The helper stopped unexpectedly.</source>
        <translation>Le programme auxiliaire s’est arrêté de façon inattendue.</translation>
    </message>
    <message>
        <source>The helper was given an option that it does not know.</source>
        <translation>Le programme auxiliaire a reçu une option qu’il ne connaît pas.</translation>
    </message>
    <message>
        <source>The helper does not know this verb.</source>
        <translation>Le programme auxiliaire ne connaît pas cette commande.</translation>
    </message>
    <message>
        <source>The record of the former network settings cannot be written.</source>
        <translation>L’enregistrement des anciens paramètres réseau ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>The kill switch is not on, so no application needs to bypass it.</source>
        <translation>Le kill switch n’est pas activé : aucune application n’a besoin de le contourner.</translation>
    </message>
    <message>
        <source>The launcher could not be copied to %1.</source>
        <translation>Le lanceur n’a pas pu être copié vers %1.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be opened.</source>
        <translation>Le fichier de verrouillage %1 ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>The lock file %1 is a link, so nothing was done.</source>
        <translation>Le fichier de verrouillage %1 est un lien ; rien n’a donc été fait.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back.</source>
        <translation>Le réseau est de nouveau ouvert, mais les serveurs DNS de systemd-resolved n’ont pas pu être rétablis.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back. Try: systemctl restart %1.</source>
        <translation>Le réseau est de nouveau ouvert, mais les serveurs DNS de systemd-resolved n’ont pas pu être rétablis. Essayez : systemctl restart %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the desktop&apos;s proxy settings could not be put back.</source>
        <translation>Le réseau est de nouveau ouvert, mais les paramètres de proxy du bureau n’ont pas pu être rétablis.</translation>
    </message>
    <message>
        <source>The network is open again, but the journal in %1 cannot be cleared.</source>
        <translation>Le réseau est de nouveau ouvert, mais le journal interne dans %1 ne peut pas être vidé.</translation>
    </message>
    <message>
        <source>The network is open again, but the session marker cannot be removed from %1.</source>
        <translation>Le réseau est de nouveau ouvert, mais le marqueur de session ne peut pas être supprimé de %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the system&apos;s own Tor service could not be started again. Try: systemctl start %1.</source>
        <translation>Le réseau est de nouveau ouvert, mais le service Tor du système n’a pas pu être redémarré. Essayez : systemctl start %1.</translation>
    </message>
    <message>
        <source>The network is open, but pf could not be released.</source>
        <translation>Le réseau est ouvert, mais pf n’a pas pu être libéré.</translation>
    </message>
    <message>
        <source>The network is open, but the firewall&apos;s main rules could not be put back.</source>
        <translation>Le réseau est ouvert, mais les règles principales du pare-feu n’ont pas pu être rétablies.</translation>
    </message>
    <message>
        <source>The network location %1 still has Veldmark&apos;s settings. Choose it and disconnect again.</source>
        <translation>La configuration réseau %1 contient encore les paramètres de Veldmark. Choisissez-la et déconnectez-vous de nouveau.</translation>
    </message>
    <message>
        <source>The network settings cannot be read.</source>
        <translation>Les paramètres réseau ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>The network stays blocked until you disconnect.</source>
        <translation>Le réseau reste bloqué jusqu’à ce que vous vous déconnectiez.</translation>
    </message>
    <message>
        <source>The notes of what to restore cannot be read.</source>
        <translation>Les notes sur ce qu’il faut rétablir ne peuvent pas être lues.</translation>
    </message>
    <message>
        <source>The option %1 needs a value.</source>
        <translation>L’option %1 nécessite une valeur.</translation>
    </message>
    <message>
        <source>The option %1 was given twice.</source>
        <translation>L’option %1 a été indiquée deux fois.</translation>
    </message>
    <message>
        <source>The option --app is missing.</source>
        <translation>L’option --app est absente.</translation>
    </message>
    <message>
        <source>The option --hash is missing.</source>
        <translation>L’option --hash est absente.</translation>
    </message>
    <message>
        <source>The option --lan is missing.</source>
        <translation>L’option --lan est absente.</translation>
    </message>
    <message>
        <source>The option --program is missing.</source>
        <translation>L’option --program est absente.</translation>
    </message>
    <message>
        <source>The option --strict is missing.</source>
        <translation>L’option --strict est absente.</translation>
    </message>
    <message>
        <source>The option --tor is missing.</source>
        <translation>L’option --tor est absente.</translation>
    </message>
    <message>
        <source>The option --uid is missing.</source>
        <translation>L’option --uid est absente.</translation>
    </message>
    <message>
        <source>The options on standard input are not complete.</source>
        <translation>Les options sur l’entrée standard ne sont pas complètes.</translation>
    </message>
    <message>
        <source>The path given with %1 is not absolute.</source>
        <translation>Le chemin indiqué avec %1 n’est pas absolu.</translation>
    </message>
    <message>
        <source>The path given with --app is not absolute.</source>
        <translation>Le chemin indiqué avec --app n’est pas absolu.</translation>
    </message>
    <message>
        <source>The path given with --app names no application.</source>
        <translation>Le chemin indiqué avec --app ne désigne aucune application.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2. End that program, then connect again.</source>
        <translation>Le port %1, nécessaire à Tor, est occupé par %2. Arrêtez ce programme, puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>a program (process %1)</source>
        <translation>un programme (processus %1)</translation>
    </message>
    <message>
        <source>a program of the account with the id %1</source>
        <translation>un programme du compte d’identifiant %1</translation>
    </message>
    <message>
        <source>The process id is not valid.</source>
        <translation>L’identifiant de processus n’est pas valide.</translation>
    </message>
    <message>
        <source>The program %1 cannot be copied.</source>
        <translation>Le programme %1 ne peut pas être copié.</translation>
    </message>
    <message>
        <source>The program %1 cannot be found.</source>
        <translation>Le programme %1 est introuvable.</translation>
    </message>
    <message>
        <source>The program %1 is missing on this system.</source>
        <translation>Le programme %1 est absent de ce système.</translation>
    </message>
    <message>
        <source>The SHA-256 of the program %1 differs from the one to approve.</source>
        <translation>L’empreinte SHA-256 du programme %1 n’est pas celle à approuver.</translation>
    </message>
    <message>
        <source>The program given with %1 is not an executable file.</source>
        <translation>Le programme indiqué avec %1 n’est pas un fichier exécutable.</translation>
    </message>
    <message>
        <source>The program veldmark-launch is missing.</source>
        <translation>Le programme veldmark-launch est absent.</translation>
    </message>
    <message>
        <source>The session marker cannot be written.</source>
        <translation>Le marqueur de session ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be changed.</source>
        <translation>Les paramètres du service réseau %1 ne peuvent pas être modifiés.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be read.</source>
        <translation>Les paramètres du service réseau %1 ne peuvent pas être lus.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 could not be put back.</source>
        <translation>Les paramètres du service réseau %1 n’ont pas pu être rétablis.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall cannot be used (%1).</source>
        <translation>Le pare-feu du système n’est pas utilisable (%1).</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) cannot be stopped.</source>
        <translation>Le service Tor du système (%1) ne peut pas être arrêté.</translation>
    </message>
    <message>
        <source>The user %1 is not known on this system.</source>
        <translation>L’utilisateur %1 est inconnu sur ce système.</translation>
    </message>
    <message>
        <source>The user id is not a number.</source>
        <translation>L’identifiant utilisateur n’est pas un nombre.</translation>
    </message>
    <message>
        <source>The user name is not valid.</source>
        <translation>Le nom d’utilisateur n’est pas valide.</translation>
    </message>
    <message>
        <source>The user root needs no password for the helper.</source>
        <translation>L’utilisateur root n’a pas besoin de mot de passe pour le programme auxiliaire.</translation>
    </message>
    <message>
        <source>The user with the id %1 is not known on this system.</source>
        <translation>L’utilisateur d’identifiant %1 est inconnu sur ce système.</translation>
    </message>
    <message>
        <source>The value of %1 contains control characters.</source>
        <translation>La valeur de %1 contient des caractères de contrôle.</translation>
    </message>
    <message>
        <source>The value of %1 is too long.</source>
        <translation>La valeur de %1 est trop longue.</translation>
    </message>
    <message>
        <source>The value of --as must be tor, lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>La valeur de --as doit être tor, lyrebird, snowflake-client ou webtunnel-client.</translation>
    </message>
    <message>
        <source>The value of --lan must be 0 or 1.</source>
        <translation>La valeur de --lan doit être 0 ou 1.</translation>
    </message>
    <message>
        <source>The value of --sha256 must be 64 small hexadecimal digits.</source>
        <translation>La valeur de --sha256 doit être composée de 64 chiffres hexadécimaux en minuscules.</translation>
    </message>
    <message>
        <source>The value of --strict must be 0 or 1.</source>
        <translation>La valeur de --strict doit être 0 ou 1.</translation>
    </message>
    <message>
        <source>The verb fix-dns takes no options.</source>
        <translation>La commande fix-dns n’accepte aucune option.</translation>
    </message>
    <message>
        <source>The verb uninstall-privileged takes no options.</source>
        <translation>La commande uninstall-privileged n’accepte aucune option.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be started.</source>
        <translation>La surveillance des règles de pare-feu n’a pas pu être démarrée.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be stopped.</source>
        <translation>La surveillance des règles de pare-feu n’a pas pu être arrêtée.</translation>
    </message>
    <message>
        <source>There are too many options on standard input.</source>
        <translation>Il y a trop d’options sur l’entrée standard.</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which was not given.</source>
        <translation>Ces ponts nécessitent lyrebird, qui n’a pas été indiqué.</translation>
    </message>
    <message>
        <source>These bridges need snowflake-client, which was not given.</source>
        <translation>Ces ponts nécessitent snowflake-client, qui n’a pas été indiqué.</translation>
    </message>
    <message>
        <source>This helper is made for another system.</source>
        <translation>Ce programme auxiliaire est conçu pour un autre système.</translation>
    </message>
    <message>
        <source>Tor could not be started (%1).</source>
        <translation>Tor n’a pas pu être démarré (%1).</translation>
    </message>
    <message>
        <source>Tor could not be stopped.</source>
        <translation>Tor n’a pas pu être arrêté.</translation>
    </message>
    <message>
        <source>Tor did not open its control port in time.</source>
        <translation>Tor n’a pas ouvert son port de contrôle à temps.</translation>
    </message>
    <message>
        <source>Tor did not start: %1</source>
        <translation>Tor n’a pas démarré : %1</translation>
    </message>
    <message>
        <source>Tor does not accept its configuration: %1</source>
        <translation>Tor n’accepte pas sa configuration : %1</translation>
    </message>
    <message>
        <source>it ended without a message.</source>
        <translation>il s’est arrêté sans message.</translation>
    </message>
    <message>
        <source>Tor&apos;s log files cannot be made.</source>
        <translation>Les fichiers journaux de Tor ne peuvent pas être créés.</translation>
    </message>
    <message>
        <source>Two different callers were reported, so nothing was done.</source>
        <translation>Deux appelants différents ont été signalés ; rien n’a donc été fait.</translation>
    </message>
    <message>
        <source>Veldmark is in use by %1. An administrator password is needed to end that session.</source>
        <translation>Veldmark est utilisé par %1. Un mot de passe administrateur est nécessaire pour mettre fin à cette session.</translation>
    </message>
    <message>
        <source>Veldmark is not connected, so the DNS settings were left alone.</source>
        <translation>Veldmark n’est pas connecté ; les paramètres DNS n’ont donc pas été modifiés.</translation>
    </message>
    <message>
        <source>sudo rejects the rule for passwordless mode.</source>
        <translation>sudo rejette la règle du mode sans mot de passe.</translation>
    </message>
    <message>
        <source>sudo is not installed on this system.</source>
        <translation>sudo n’est pas installé sur ce système.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read.</source>
        <translation>Le fichier .desktop ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read (%1).</source>
        <translation>Le fichier .desktop ne peut pas être lu (%1).</translation>
    </message>
    <message>
        <source>The desktop entry names no program that is installed.</source>
        <translation>Le fichier .desktop ne désigne aucun programme installé.</translation>
    </message>
    <message>
        <source>The application could not be started (%1).</source>
        <translation>L’application n’a pas pu être démarrée (%1).</translation>
    </message>
    <message>
        <source>There is no such application or program.</source>
        <translation>Cette application ou ce programme n’existe pas.</translation>
    </message>
    <message>
        <source>The program could not be started.</source>
        <translation>Le programme n’a pas pu être démarré.</translation>
    </message>
    <message>
        <source>The program could not be started (%1).</source>
        <translation>Le programme n’a pas pu être démarré (%1).</translation>
    </message>
    <message>
        <source>The user is not known on this system.</source>
        <translation>L’utilisateur est inconnu sur ce système.</translation>
    </message>
    <message>
        <source>There is no application at %1.</source>
        <translation>Aucune application à l’emplacement %1.</translation>
    </message>
    <message>
        <source>The home folder cannot be entered.</source>
        <translation>Impossible d’accéder au dossier personnel.</translation>
    </message>
    <message>
        <source>nft doesn&apos;t answer.</source>
        <translation>nft ne répond pas.</translation>
    </message>
    <message>
        <source>nft fails.</source>
        <translation>nft échoue.</translation>
    </message>
    <message>
        <source>Ended because the display is gone. Your network is still set up for Tor: start Veldmark again, or restore the network with: %1</source>
        <translation>Arrêté après la perte de l’affichage. Votre réseau est encore configuré pour Tor : relancez Veldmark ou rétablissez le réseau avec : %1</translation>
    </message>
    <message>
        <source>your package manager</source>
        <translation>votre gestionnaire de paquets</translation>
    </message>
    <message>
        <source>The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo %1 on.</source>
        <translation>Le réseau est de nouveau ouvert, mais l’interface de bouclage n’a pas pu être réglée comme avant. Essayez : ethtool -K lo %1 on.</translation>
    </message>
    <message>
        <source>This system can&apos;t tell applications apart.</source>
        <translation>Ce système ne permet pas de distinguer les applications.</translation>
    </message>
    <message>
        <source>Applications are not separated now: they share circuits.</source>
        <translation>Les applications ne sont pas séparées en ce moment : elles partagent leurs circuits.</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>utilisateur %1</translation>
    </message>
    <message>
        <source>No application has an identity of its own now.</source>
        <translation>Aucune application n’a d’identité propre en ce moment.</translation>
    </message>
    <message>
        <source>No application of yours has that identity; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>Aucune de vos applications n’a cette identité ; « veldmarkctl identities » en affiche la liste.</translation>
    </message>
    <message>
        <source>The application did not get a new identity.</source>
        <translation>L’application n’a pas reçu de nouvelle identité.</translation>
    </message>
    <message>
        <source>The program did not get an identity of its own, so it was not started.</source>
        <translation>Le programme n’a pas reçu d’identité propre ; il n’a donc pas été démarré.</translation>
    </message>
    <message>
        <source>A name has up to 40 letters, digits, dots and underscores.</source>
        <translation>Un nom comporte jusqu’à 40 lettres, chiffres, points et tirets bas.</translation>
    </message>
    <message>
        <source>The program systemd-run is missing. Veldmark needs it to make a group for a program.</source>
        <translation>Le programme systemd-run est absent. Veldmark en a besoin pour créer un groupe pour un programme.</translation>
    </message>
    <message>
        <source>The program could not be started: %1.</source>
        <translation>Le programme n’a pas pu être démarré : %1.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>each application has circuits of its own</source>
        <translation>chaque application a ses propres circuits</translation>
    </message>
    <message>
        <source>the applications that have circuits of their own, and the loopback address
by which Tor distinguishes them</source>
        <translation>les applications qui ont leurs propres circuits, et l’adresse de bouclage
qui permet à Tor de distinguer chacune des autres</translation>
    </message>
    <message>
        <source>new circuits for one application, from its next connection on; APP is as
&quot;identities&quot; names it</source>
        <translation>nouveaux circuits pour une application, dès sa prochaine connexion ;
APP est le nom donné par « identities »</translation>
    </message>
    <message>
        <source>renew needs an application; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>renew nécessite une application ; voir « veldmarkctl identities ».</translation>
    </message>
    <message>
        <source>run a program (after --) with circuits of its own; a later run with the same
name in the same session has the same ones</source>
        <translation>exécuter un programme (après --) avec ses propres circuits ; plus tard,
le même nom dans la même session donne les mêmes circuits</translation>
    </message>
    <message>
        <source>run-as needs a name and a program: veldmarkctl run-as NAME -- PROGRAM.</source>
        <translation>run-as nécessite un nom et un programme : veldmarkctl run-as NAME -- PROGRAM.</translation>
    </message>
    <message>
        <source>The table of the applications&apos; identities could not be removed (%1).</source>
        <translation>La table des identités des applications n’a pas pu être supprimée (%1).</translation>
    </message>
    <message>
        <source>The value of --separate must be 0 or 1.</source>
        <translation>La valeur de --separate doit être 0 ou 1.</translation>
    </message>
    <message>
        <source>No package of the system installed %1. The next connect asks an administrator to approve it.</source>
        <translation>%1 ne provient d’aucun paquet du système. À la prochaine connexion, un administrateur est invité à l’approuver.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether a connect can work.</source>
        <translation>On ne sait pas si une connexion est possible.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, and none of its rules allows any, so Tor can&apos;t get through: %1.</source>
        <translation>Un autre pare-feu de cet ordinateur bloque le trafic sortant et aucune de ses règles n’en autorise, Tor ne peut donc pas passer : %1.</translation>
    </message>
    <message>
        <source>Users other than root can change %1, so root doesn&apos;t run it to ask for its version.</source>
        <translation>D’autres utilisateurs que root peuvent modifier %1 ; root ne l’exécute donc pas pour en demander la version.</translation>
    </message>
    <message>
        <source>Type %1 to approve it, anything else to refuse.</source>
        <translation>Tapez %1 pour l’approuver, autre chose pour refuser.</translation>
    </message>
    <message>
        <source>%1 was not approved.</source>
        <translation>%1 n’a pas été approuvé.</translation>
    </message>
    <message>
        <source>%1 is not a program of the system, so an administrator has to approve it, but this command has no terminal to ask on. Run &quot;sudo veldmarkctl run --connect&quot; in a terminal.</source>
        <translation>%1 n’est pas un programme du système ; un administrateur doit donc l’approuver, mais cette commande n’a pas de terminal où le demander. Exécutez « sudo veldmarkctl run --connect » dans un terminal.</translation>
    </message>
    <message>
        <source>%1 needs the name of a file.</source>
        <translation>%1 nécessite le nom d’un fichier.</translation>
    </message>
    <message>
        <source>It doesn&apos;t answer.</source>
        <translation>Elle ne répond pas.</translation>
    </message>
    <message>
        <source>This report goes to %1.</source>
        <translation>Ce rapport va dans %1.</translation>
    </message>
    <message>
        <source>write it into a new file too</source>
        <translation>l’écrire aussi dans un nouveau fichier</translation>
    </message>
    <message>
        <source>The report can&apos;t be written to %1: %2</source>
        <translation>Le rapport ne peut pas être écrit dans %1 : %2</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a regular file. Choose another name for the report.</source>
        <translation>%1 n’est pas un fichier ordinaire. Choisissez un autre nom pour le rapport.</translation>
    </message>
    <message>
        <source>%1 exists already. Choose another name for the report.</source>
        <translation>%1 existe déjà. Choisissez un autre nom pour le rapport.</translation>
    </message>
    <message>
        <source>The running instance gave no state: %1</source>
        <translation>L’instance en cours n’a pas donné son état : %1</translation>
    </message>
    <message>
        <source>a report for those who help you: settings, findings and log without addresses,
names, bridges and keys. Nothing sends it. Look through it before you give it
away</source>
        <translation>un rapport pour ceux qui vous aident : réglages, constats et journal, sans
adresses, noms, ponts ni clés. Rien ne l’envoie. Parcourez-le avant de le
donner</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>Impossible de lire %1 : %2</translation>
    </message>
    <message>
        <source>There is no bridge in %1.</source>
        <translation>Il n’y a aucun pont dans %1.</translation>
    </message>
    <message>
        <source>added: %1</source>
        <translation>ajouté : %1</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>déjà présent : %1</translation>
    </message>
    <message>
        <source>add the bridges in a text to your own: in bridge lines, a whole e-mail or
a web page. FILE &quot;-&quot; is standard input</source>
        <translation>ajouter les ponts d’un texte aux vôtres : lignes de ponts, e-mail entier ou
page web. « - » comme FILE désigne l’entrée standard</translation>
    </message>
    <message>
        <source>add-bridges needs a file; &quot;-&quot; is standard input.</source>
        <translation>add-bridges a besoin d’un fichier ; « - » désigne l’entrée standard.</translation>
    </message>
    <message>
        <source>The filter before Tor&apos;s control port cannot be used.</source>
        <translation>Le filtre placé devant le port de contrôle de Tor ne peut pas être utilisé.</translation>
    </message>
    <message numerus="yes">
        <source>Testing %n bridges…</source>
        <translation>
            <numerusform>Test de %n pont…</numerusform>
            <numerusform>Test de %n ponts…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 for *.%2</source>
        <translation>%1 pour *.%2</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Your bridges</source>
        <translation>Vos ponts</translation>
    </message>
    <message>
        <source>(%1 s)</source>
        <translation>(%1 s)</translation>
    </message>
    <message>
        <source>Tried</source>
        <translation>Essayé</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Offre</translation>
    </message>
    <message>
        <source>Try them with: %1</source>
        <translation>Essayez-les avec : %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of ask, always and never.</source>
        <translation>« %1 » n’est ni ask, ni always, ni never.</translation>
    </message>
    <message>
        <source>Refused, or out of reach.</source>
        <translation>Refusé ou hors d’atteinte.</translation>
    </message>
    <message>
        <source>Something answered, but Tor made no further progress.</source>
        <translation>Il y a eu une réponse, mais Tor n’est pas allé plus loin.</translation>
    </message>
    <message>
        <source>No answer.</source>
        <translation>Pas de réponse.</translation>
    </message>
    <message>
        <source>Tor has connected.</source>
        <translation>Tor est connecté.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Tried: %1.</source>
        <translation>Tor n’arrive à rien sur ce réseau. Essayé : %1.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Veldmark can try bridges: %1.</source>
        <translation>Tor n’arrive à rien sur ce réseau. Veldmark peut essayer des ponts : %1.</translation>
    </message>
    <message>
        <source>Being tried…</source>
        <translation>Essai en cours…</translation>
    </message>
    <message>
        <source>Tor did not accept these bridges.</source>
        <translation>Tor n’a pas accepté ces ponts.</translation>
    </message>
    <message>
        <source>No bridges are offered now.</source>
        <translation>Aucun pont n’est proposé pour le moment.</translation>
    </message>
    <message>
        <source>whether bridges are tried when Tor cannot connect</source>
        <translation>si des ponts sont essayés quand Tor n’arrive à rien</translation>
    </message>
    <message>
        <source>try the bridges that are offered when Tor cannot connect, see &quot;status&quot;</source>
        <translation>essayer les ponts proposés quand Tor n’arrive à rien, voir « status »</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Circuits</translation>
    </message>
</context>
<context>
    <name>veldmark::Tray</name>
    <message>
        <source>Open Veldmark</source>
        <translation>Ouvrir Veldmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
</context>
<context>
    <name>veldmark::Windows</name>
    <message>
        <source>Select the tor executable</source>
        <translation>Sélectionnez l’exécutable tor</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Choisissez les applications autorisées à contourner Tor en mode strict</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Applications</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
</context>
</TS>

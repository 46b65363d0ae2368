<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AboutPane</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
    <message>
        <source>The Tor Project</source>
        <translation>El Proyecto Tor</translation>
    </message>
    <message>
        <source>The network and pluggable transports Veldmark builds on</source>
        <translation>La red y los transportes conectables en los que se basa Veldmark</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Créditos</translation>
    </message>
    <message>
        <source>Homepage, downloads and updates</source>
        <translation>Página web, descargas y actualizaciones</translation>
    </message>
    <message>
        <source>Sends this computer&apos;s traffic through Tor, all of it in strict mode and that of apps that use the system proxy in proxy mode, and shows whether it really does.</source>
        <translation>Envía por Tor el tráfico de este equipo (todo en modo estricto; en modo proxy, el de las aplicaciones que usan el proxy del sistema) y muestra si de verdad es así.</translation>
    </message>
    <message>
        <source>Veldmark is made with Qt, QCoro and tl::expected.</source>
        <translation>Veldmark está hecho con Qt, QCoro y tl::expected.</translation>
    </message>
</context>
<context>
    <name>ApplicationsSheet</name>
    <message>
        <source>App exceptions</source>
        <translation>Aplicaciones exentas</translation>
    </message>
    <message>
        <source>No apps yet. Add Zoom, Discord, a game…</source>
        <translation>Aún no hay aplicaciones. Añada Zoom, Discord, un juego…</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Conéctese en modo estricto para abrir aplicaciones sin Tor</translation>
    </message>
    <message>
        <source>Open without Tor</source>
        <translation>Abrir sin Tor</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Añadir…</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>BridgesPane</name>
    <message>
        <source>Bridges</source>
        <translation>Puentes</translation>
    </message>
    <message>
        <source>Programs that disguise your Tor connection</source>
        <translation>Programas que camuflan su conexión a Tor</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Puentes integrados</translation>
    </message>
    <message>
        <source>Bridge addresses shipped with Tor</source>
        <translation>Direcciones de puentes que vienen con Tor</translation>
    </message>
    <message>
        <source>Tor Expert Bundle</source>
        <translation>Tor Expert Bundle</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>When Tor is blocked</source>
        <translation>Cuando Tor está bloqueado</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Desconéctese para cambiar</translation>
    </message>
    <message>
        <source>Tries the available bridges in turn, without another password</source>
        <translation>Prueba los puentes disponibles uno tras otro, sin otra contraseña</translation>
    </message>
</context>
<context>
    <name>BridgesSheet</name>
    <message>
        <source>Custom bridges</source>
        <translation>Puentes propios</translation>
    </message>
    <message>
        <source>One bridge per line. Ask the Tor Project for bridges on its bridges page, by e-mail or through its Telegram bot, or use those of someone you trust. obfs4, webtunnel, Snowflake, meek and plain bridges are supported.</source>
        <translation>Un puente por línea. Pida puentes al Proyecto Tor en su página de puentes, por correo electrónico o mediante su bot de Telegram, o use los de alguien de confianza. Se admiten puentes obfs4, webtunnel, Snowflake, meek y simples.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>There is no bridge in this file.</source>
        <translation>Este archivo no contiene ningún puente.</translation>
    </message>
    <message>
        <source>Keep Only the Bridges</source>
        <translation>Conservar solo los puentes</translation>
    </message>
    <message>
        <source>Removes everything from the text but the bridges that were recognized</source>
        <translation>Quita del texto todo salvo los puentes reconocidos</translation>
    </message>
</context>
<context>
    <name>ChooserWindow</name>
    <message>
        <source>App exceptions</source>
        <translation>Aplicaciones exentas</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Elija las aplicaciones que pueden conectarse sin Tor en modo estricto</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Aplicaciones instaladas</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Otra…</translation>
    </message>
    <message>
        <source>Choose the .desktop file of an application that is not listed</source>
        <translation>Elegir el archivo .desktop de una aplicación que no está en la lista</translation>
    </message>
</context>
<context>
    <name>CircuitsSidebar</name>
    <message>
        <source>ALL CIRCUITS</source>
        <translation>TODOS LOS CIRCUITOS</translation>
    </message>
    <message>
        <source>No circuit selected</source>
        <translation>Ningún circuito elegido</translation>
    </message>
    <message>
        <source>New Circuit</source>
        <translation>Nuevo circuito</translation>
    </message>
    <message>
        <source>Close this circuit; its sites get a fresh path on their next request</source>
        <translation>Cerrar este circuito; sus sitios tendrán una ruta nueva en su próxima solicitud</translation>
    </message>
    <message>
        <source>Sites on this circuit get a fresh path. Other sites sharing it move too.</source>
        <translation>Los sitios de este circuito reciben una ruta nueva. Los demás sitios que lo comparten también cambian.</translation>
    </message>
</context>
<context>
    <name>CircuitsWindow</name>
    <message>
        <source>Circuits</source>
        <translation>Circuitos</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Nueva identidad</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Pedir a Tor circuitos nuevos y otra IP de salida</translation>
    </message>
    <message>
        <source>Find Faster</source>
        <translation>Más rápido</translation>
    </message>
    <message>
        <source>Time a request through Tor and get fresh circuits if it&apos;s slow</source>
        <translation>Medir cuánto tarda una solicitud por Tor y pedir circuitos nuevos si es lenta</translation>
    </message>
    <message>
        <source>Reading circuits…</source>
        <translation>Leyendo los circuitos…</translation>
    </message>
    <message>
        <source>Connect to see your circuits</source>
        <translation>Conéctese para ver sus circuitos</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>Exit IP</source>
        <translation>IP de salida</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Leaks</source>
        <translation>Fugas</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfico</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>%1 recibidos, %2 enviados</translation>
    </message>
    <message>
        <source>Traffic of the last two minutes</source>
        <translation>Tráfico de los dos últimos minutos</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Nueva identidad</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Pedir a Tor circuitos nuevos y otra IP de salida</translation>
    </message>
    <message>
        <source>Leak Test</source>
        <translation>Prueba de fugas</translation>
    </message>
    <message>
        <source>Check the exit IP and try a direct connection that skips Tor</source>
        <translation>Comprobar la IP de salida e intentar una conexión directa, sin pasar por Tor</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Circuitos</translation>
    </message>
    <message>
        <source>See the path your traffic takes: entry, middle and exit relays</source>
        <translation>Ver la ruta de su tráfico: repetidores de entrada, intermedio y salida</translation>
    </message>
</context>
<context>
    <name>CopyField</name>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>DNSCard</name>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>Las consultas DNS pueden eludir Tor</translation>
    </message>
    <message>
        <source>Fix DNS</source>
        <translation>Reparar DNS</translation>
    </message>
    <message>
        <source>Re-test</source>
        <translation>Repetir prueba</translation>
    </message>
</context>
<context>
    <name>DoctorSheet</name>
    <message>
        <source>This computer</source>
        <translation>Este equipo</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Examinar de nuevo</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Mostrar el informe</translation>
    </message>
    <message>
        <source>What others need to help you, without addresses, names and bridges</source>
        <translation>Lo que otros necesitan para ayudarle, sin direcciones, nombres ni puentes</translation>
    </message>
</context>
<context>
    <name>DownloadButton</name>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Downloads the official Tor Expert Bundle from the Tor Project, for bridge programs and built-in bridges</source>
        <translation>Descargar del Proyecto Tor el Tor Expert Bundle oficial, con programas de puente y puentes integrados</translation>
    </message>
</context>
<context>
    <name>Footer</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Tor Log</source>
        <translation>Registro de Tor</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Startup and password prompts</source>
        <translation>Inicio y peticiones de contraseña</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Veldmark starts when you log in</source>
        <translation>Veldmark se inicia cuando usted inicia sesión</translation>
    </message>
    <message>
        <source>Connect automatically</source>
        <translation>Conectar automáticamente</translation>
    </message>
    <message>
        <source>Connect as soon as Veldmark opens</source>
        <translation>Conectar en cuanto se abre Veldmark</translation>
    </message>
    <message>
        <source>Password prompts</source>
        <translation>Peticiones de contraseña</translation>
    </message>
    <message>
        <source>Passwordless mode</source>
        <translation>Modo sin contraseña</translation>
    </message>
    <message>
        <source>Connect and Disconnect never ask</source>
        <translation>Conectar y desconectar nunca la piden</translation>
    </message>
    <message>
        <source>Asks for your password each time</source>
        <translation>Se pide la contraseña cada vez</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Desactivar</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Configurar…</translation>
    </message>
    <message>
        <source>Setup asks for your admin password once. It installs a root-owned copy of Veldmark&apos;s helper and a rule in /etc/sudoers.d that lets your account run only that helper, so Connect and Disconnect stop asking. Turn it off any time.</source>
        <translation>Al configurarlo se pide una vez la contraseña de administrador. Se instalan una copia del programa auxiliar de Veldmark, propiedad de root, y una regla en /etc/sudoers.d que permite a su cuenta ejecutar sin contraseña solo ese programa; así, «Conectar» y «Desconectar» dejan de pedirla. Puede desactivarlo cuando quiera.</translation>
    </message>
</context>
<context>
    <name>Hero</name>
    <message>
        <source>Show Tor Log</source>
        <translation>Ver registro de Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Ver todo lo que ha comunicado Tor</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Restaurar la red</translation>
    </message>
    <message>
        <source>Try Bridges</source>
        <translation>Probar puentes</translation>
    </message>
</context>
<context>
    <name>LogLines</name>
    <message>
        <source>Tor Log</source>
        <translation>Registro de Tor</translation>
    </message>
</context>
<context>
    <name>LogRow</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Tor Log</source>
        <translation>Registro de Tor</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Seguir</translation>
    </message>
    <message>
        <source>Keep the newest lines in view</source>
        <translation>Mantener a la vista las líneas más recientes</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the lines shown</source>
        <translation>Copiar las líneas mostradas</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
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
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Desconéctese para cambiar</translation>
    </message>
    <message>
        <source>Strict mode</source>
        <translation>Modo estricto</translation>
    </message>
    <message>
        <source>Kill switch: block anything not using Tor</source>
        <translation>Bloqueo de emergencia: corta todo lo que no use Tor</translation>
    </message>
    <message>
        <source>Blocks every connection that doesn&apos;t go through Tor, including UDP and IPv6. Apps that ignore proxy settings won&apos;t connect at all instead of leaking.</source>
        <translation>Se bloquea toda conexión que no pase por Tor, también por UDP e IPv6. Las aplicaciones que ignoran la configuración del proxy no se conectan en absoluto, en vez de provocar fugas.</translation>
    </message>
    <message>
        <source>Allow local network</source>
        <translation>Permitir la red local</translation>
    </message>
    <message>
        <source>Exit country</source>
        <translation>País de salida</translation>
    </message>
    <message>
        <source>Where your traffic appears to come from</source>
        <translation>De dónde parece venir su tráfico</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Puentes</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <source>Custom bridges</source>
        <translation>Puentes propios</translation>
    </message>
    <message>
        <source>Optimize for speed</source>
        <translation>Optimizar la velocidad</translation>
    </message>
    <message>
        <source>New circuits for everything</source>
        <translation>Circuitos nuevos para todo</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Modo terminal</translation>
    </message>
    <message>
        <source>App exceptions</source>
        <translation>Aplicaciones exentas</translation>
    </message>
    <message>
        <source>For networks that block or watch Tor</source>
        <translation>Para redes que bloquean o vigilan Tor</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Find the Cause</source>
        <translation>Buscar la causa</translation>
    </message>
    <message>
        <source>Checks what a connection needs on this computer, what blocks it and how to fix it</source>
        <translation>Examinar este equipo: qué necesita la conexión, qué la impide y cómo se resuelve</translation>
    </message>
    <message>
        <source>Show Tor Log</source>
        <translation>Ver registro de Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Ver todo lo que ha comunicado Tor</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with this command, then click Recheck.</source>
        <translation>Tor no está instalado. Instálelo con este comando y haga clic en «Volver a comprobar».</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with %1, then click Recheck.</source>
        <translation>Tor no está instalado. Instálelo con %1 y haga clic en «Volver a comprobar».</translation>
    </message>
    <message>
        <source>Recheck</source>
        <translation>Volver a comprobar</translation>
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
        <translation>Encontrado: %1</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
</context>
<context>
    <name>QuitDialog</name>
    <message>
        <source>Quit Veldmark</source>
        <translation>Salir de Veldmark</translation>
    </message>
    <message>
        <source>Your network is still routed through Tor</source>
        <translation>Su red sigue encaminada por Tor</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and the kill switch stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Si sale ahora, Tor sigue funcionando y el bloqueo de emergencia sigue activado. Vuelva a abrir Veldmark más tarde para restaurar su conexión normal.</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and your system proxy stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Si sale ahora, Tor sigue funcionando y el proxy del sistema sigue activado. Vuelva a abrir Veldmark más tarde para restaurar su conexión normal.</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Desconectando…</translation>
    </message>
    <message>
        <source>Disconnect &amp; Quit</source>
        <translation>Desconectar y salir</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Salir de todos modos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>RecoveryPane</name>
    <message>
        <source>Recovery</source>
        <translation>Recuperación</translation>
    </message>
    <message>
        <source>Get your normal connection back</source>
        <translation>Recupere su conexión normal</translation>
    </message>
    <message>
        <source>Restore network settings</source>
        <translation>Restaurar la configuración de red</translation>
    </message>
    <message>
        <source>Veldmark&apos;s changes are active</source>
        <translation>Los cambios de Veldmark están activos</translation>
    </message>
    <message>
        <source>Nothing to restore</source>
        <translation>No hay nada que restaurar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Use this if your internet stops working after a crash. It puts your DNS, proxy and firewall settings back the way they were and stops Tor.</source>
        <translation>Use esto si Internet deja de funcionar tras un cierre inesperado. El DNS, el proxy y el cortafuegos vuelven a su estado anterior y Tor se detiene.</translation>
    </message>
    <message>
        <source>If the app won&apos;t open</source>
        <translation>Si la aplicación no se abre</translation>
    </message>
    <message>
        <source>Run this in Terminal to do the same thing without Veldmark.</source>
        <translation>Ejecute esto en un terminal para hacer lo mismo sin Veldmark.</translation>
    </message>
    <message>
        <source>Report for others</source>
        <translation>Informe para otros</translation>
    </message>
    <message>
        <source>What they need to help you, without addresses, names and bridges. You read it first, and nothing sends it.</source>
        <translation>Lo que necesitan para ayudarle, sin direcciones, nombres ni puentes. Usted lo lee primero y nada lo envía.</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Mostrar el informe</translation>
    </message>
</context>
<context>
    <name>ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>For those who help you. Addresses, names, bridges, keys and paths in your home are replaced. Look through it before you give it away: Veldmark sends it to nobody.</source>
        <translation>Para quienes le ayudan. Las direcciones, los nombres, los puentes, las claves y las rutas de su carpeta personal están sustituidos. Revíselo antes de entregarlo: Veldmark no lo envía a nadie.</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Guardar…</translation>
    </message>
    <message>
        <source>Save the report in a file that only you can read</source>
        <translation>Guardar el informe en un archivo que solo usted puede leer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the whole report</source>
        <translation>Copiar el informe completo</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Examinando este equipo…</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Puentes</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recuperación</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
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
        <translation>Llevar por Tor las herramientas de línea de comandos</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Modo terminal</translation>
    </message>
    <message>
        <source>Shell integration</source>
        <translation>Integración con el shell</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
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
        <translation>El programa Tor que ejecuta Veldmark</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Location: disconnect to change</source>
        <translation>Ubicación: desconéctese para cambiar</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automática</translation>
    </message>
    <message>
        <source>Custom location</source>
        <translation>Otra ubicación</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Separate applications</source>
        <translation>Separar aplicaciones</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Desconéctese para cambiar</translation>
    </message>
    <message>
        <source>Each application has circuits of its own</source>
        <translation>Cada aplicación tiene circuitos propios</translation>
    </message>
    <message>
        <source>Sites cannot tell by the exit address that two applications are yours. Veldmark tells applications apart where the desktop starts each in a control group of its own, as GNOME and KDE do. Other programs share circuits with the rest of their login session or account.</source>
        <translation>Por la dirección de salida, los sitios no pueden saber que dos aplicaciones son suyas. Las aplicaciones se distinguen cuando el escritorio inicia cada una en un grupo de control propio, como hacen GNOME y KDE. Los demás programas comparten circuitos con toda la sesión de usuario o la cuenta a la que pertenecen.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Start without a window, as at login.</source>
        <translation>Iniciar sin ventana, como al iniciar sesión.</translation>
    </message>
    <message>
        <source>Connect at once.</source>
        <translation>Conectar de inmediato.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor. To restore it without Veldmark, run:
%1</source>
        <translation>Su red sigue configurada para Tor. Para restaurarla sin Veldmark, ejecute:
%1</translation>
    </message>
</context>
<context>
    <name>veldmark::Alerts</name>
    <message>
        <source>Another session has replaced this one</source>
        <translation>Otra sesión ha reemplazado a esta</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor dejó de funcionar</translation>
    </message>
    <message>
        <source>Traffic can leave around Tor</source>
        <translation>El tráfico puede salir sin pasar por Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>Las consultas DNS pueden eludir Tor</translation>
    </message>
    <message>
        <source>Your real address can be seen. Open Veldmark to see what to do.</source>
        <translation>Su dirección real es visible. Abra Veldmark para ver qué hacer.</translation>
    </message>
    <message>
        <source>Firewall rules were removed</source>
        <translation>Se quitaron reglas del cortafuegos</translation>
    </message>
    <message>
        <source>The kill switch doesn&apos;t block traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>El bloqueo de emergencia no corta el tráfico. Abra Veldmark, desconéctese y vuelva a conectarse.</translation>
    </message>
    <message>
        <source>The kill switch is not watched</source>
        <translation>El bloqueo de emergencia no está vigilado</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>Veldmark no puede saber si el bloqueo de emergencia corta el tráfico. Abra Veldmark, desconéctese y vuelva a conectarse.</translation>
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
        <translation>Veldmark no pudo abrir una ventana. Esto no afecta a su red; para restaurarla sin Veldmark, ejecute:
%1

%2</translation>
    </message>
    <message>
        <source>Veldmark is still running</source>
        <translation>Veldmark sigue funcionando</translation>
    </message>
    <message>
        <source>Open Veldmark again to see its window.</source>
        <translation>Abra Veldmark de nuevo para ver su ventana.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Su red sigue configurada para Tor</translation>
    </message>
    <message>
        <source>Veldmark had to close and could not restore the network. Open Veldmark again to restore it.</source>
        <translation>Veldmark tuvo que cerrarse y no pudo restaurar la red. Abra Veldmark de nuevo para restaurarla.</translation>
    </message>
</context>
<context>
    <name>veldmark::ApplicationChoices</name>
    <message>
        <source>No installed applications were found.</source>
        <translation>No se encontraron aplicaciones instaladas.</translation>
    </message>
    <message>
        <source>No application is called “%1”.</source>
        <translation>Ninguna aplicación se llama «%1».</translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitGraphView</name>
    <message>
        <source>%1: your real IP only ever reaches the entry relay</source>
        <translation>%1: su IP real solo llega al repetidor de entrada</translation>
    </message>
    <message>
        <source>Used by 1 circuit</source>
        <translation>Usado por 1 circuito</translation>
    </message>
    <message>
        <source>ENTRY</source>
        <translation>ENTRADA</translation>
    </message>
    <message>
        <source>MIDDLE</source>
        <translation>INTERMEDIO</translation>
    </message>
    <message>
        <source>EXIT</source>
        <translation>SALIDA</translation>
    </message>
    <message>
        <source>SITES</source>
        <translation>SITIOS</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 más</translation>
    </message>
    <message numerus="yes">
        <source>Used by %n circuits</source>
        <translation>
            <numerusform>Usado por %n circuito</numerusform>
            <numerusform>Usado por %n circuitos</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitsModel</name>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Circuit %1</source>
        <translation>Circuito %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>1 active path</source>
        <translation>1 ruta activa</translation>
    </message>
    <message>
        <source> · click a relay or site to follow it</source>
        <translation> · haga clic en un repetidor o un sitio para seguirlo</translation>
    </message>
    <message>
        <source>Leads to an onion service. The last relay is the meeting point.</source>
        <translation>Lleva a un servicio onion. El último repetidor es el punto de encuentro.</translation>
    </message>
    <message>
        <source>Meeting point</source>
        <translation>Punto de encuentro</translation>
    </message>
    <message>
        <source>One of several linked legs to the same exit</source>
        <translation>Uno de varios tramos enlazados hacia la misma salida</translation>
    </message>
    <message>
        <source>Only the entry sees your IP</source>
        <translation>Solo la entrada ve su IP</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Intermedio</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>Puente</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>, +%1 more</source>
        <translation>, +%1 más</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Sitios</translation>
    </message>
    <message>
        <source>Round trip: %1</source>
        <translation>Ida y vuelta: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n active paths</source>
        <translation>
            <numerusform>%n ruta activa</numerusform>
            <numerusform>%n rutas activas</numerusform>
        </translation>
    </message>
    <message>
        <source>Asked for by %1</source>
        <translation>Solicitado por %1</translation>
    </message>
</context>
<context>
    <name>veldmark::DoctorModel</name>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>No se sabe</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Restaurar la red</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Descargar</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Examinando este equipo…</translation>
    </message>
    <message>
        <source>The check gave no result.</source>
        <translation>No se pudo averiguar nada.</translation>
    </message>
    <message>
        <source>No problem was found that keeps Veldmark from connecting.</source>
        <translation>No se encontró nada que impida a Veldmark conectarse.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t connect until each problem is fixed.</source>
        <translation>Veldmark no puede conectarse hasta que se resuelva cada problema.</translation>
    </message>
</context>
<context>
    <name>veldmark::LogModel</name>
    <message>
        <source>Tor writes here while it connects and runs</source>
        <translation>Tor escribe aquí mientras se conecta y funciona</translation>
    </message>
    <message>
        <source>Can&apos;t read the log files</source>
        <translation>No se pueden leer los archivos de registro</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 línea</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Problemas (%1)</translation>
    </message>
    <message>
        <source>Show the log files in Finder</source>
        <translation>Mostrar los archivos de registro en el Finder</translation>
    </message>
    <message>
        <source>Show the log files in the file manager</source>
        <translation>Mostrar los archivos de registro en el gestor de archivos</translation>
    </message>
    <message>
        <source>There are no log files yet. Tor creates %1 when it first starts.</source>
        <translation>Aún no hay archivos de registro: Tor crea %1 cuando se inicia por primera vez.</translation>
    </message>
    <message>
        <source>No file manager could be opened. The log files are in %1.</source>
        <translation>No se pudo abrir ningún gestor de archivos. Los archivos de registro están en %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n línea</numerusform>
            <numerusform>%n líneas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::OptionsModel</name>
    <message>
        <source>Choosing a country means fewer exit relays, so it&apos;s slower and you&apos;re easier to single out.</source>
        <translation>Con un país elegido hay menos repetidores de salida: la conexión es más lenta y usted destaca más entre los demás.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Sin puentes</translation>
    </message>
    <message>
        <source>obfs4 (built-in)</source>
        <translation>obfs4 (integrados)</translation>
    </message>
    <message>
        <source>Snowflake (built-in)</source>
        <translation>Snowflake (integrados)</translation>
    </message>
    <message>
        <source>meek (built-in)</source>
        <translation>meek (integrados)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Propios</translation>
    </message>
    <message>
        <source>No bridges added yet</source>
        <translation>Aún no se han añadido puentes</translation>
    </message>
    <message>
        <source>Needs bridge programs: click Download</source>
        <translation>Faltan programas de puente: haga clic en «Descargar»</translation>
    </message>
    <message>
        <source>Built-in bridges from %1</source>
        <translation>Puentes integrados de %1</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(línea %1)</translation>
    </message>
    <message>
        <source>(lines %1)</source>
        <translation>(líneas %1)</translation>
    </message>
    <message>
        <source>1 bridge recognized</source>
        <translation>1 puente reconocido</translation>
    </message>
    <message>
        <source>A bridge line can&apos;t contain #, &quot; or \.</source>
        <translation>Una línea de puente no puede contener #, &quot; ni \.</translation>
    </message>
    <message>
        <source>At most %1 bridges can be used</source>
        <translation>Se pueden usar %1 puentes como máximo</translation>
    </message>
    <message>
        <source>1 line not recognized</source>
        <translation>1 línea no reconocida</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the Dock) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>En modo estricto, estas aplicaciones pueden conectarse directamente en vez de por Tor, con su dirección IP real. Todo lo demás sigue pasando solo por Tor. Ábralas con &lt;b&gt;Abrir sin Tor&lt;/b&gt; (no desde el Dock) para que Veldmark pueda marcarlas. Si una ya está abierta, se cierra y se vuelve a abrir.</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the desktop&apos;s menu) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>En modo estricto, estas aplicaciones pueden conectarse directamente en vez de por Tor, con su dirección IP real. Todo lo demás sigue pasando solo por Tor. Ábralas con &lt;b&gt;Abrir sin Tor&lt;/b&gt; (no desde el menú del escritorio) para que Veldmark pueda marcarlas. Si una ya está abierta, se cierra y se vuelve a abrir.</translation>
    </message>
    <message numerus="yes">
        <source>%n bridges recognized</source>
        <translation>
            <numerusform>%n puente reconocido</numerusform>
            <numerusform>%n puentes reconocidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines not recognized</source>
        <translation>
            <numerusform>%n línea no reconocida</numerusform>
            <numerusform>%n líneas no reconocidas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::PanelModel</name>
    <message>
        <source>No answer</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but it isn&apos;t known whether the kill switch blocks such connections</source>
        <translation>Una conexión directa, sin pasar por Tor, no obtuvo respuesta, pero no se sabe si el bloqueo de emergencia corta esas conexiones</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but proxy mode doesn&apos;t block such connections</source>
        <translation>Una conexión directa, sin pasar por Tor, no obtuvo respuesta, pero el modo proxy no corta esas conexiones</translation>
    </message>
    <message>
        <source>Connect to Tor</source>
        <translation>Conectar a Tor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>Reconectar</translation>
    </message>
    <message>
        <source>Connected through %1 bridges</source>
        <translation>Conexión mediante puentes %1</translation>
    </message>
    <message>
        <source>Strict</source>
        <translation>Estricto</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Install Tor to get started</source>
        <translation>Instale Tor para empezar</translation>
    </message>
    <message>
        <source>Click to connect</source>
        <translation>Haga clic para conectar</translation>
    </message>
    <message>
        <source>Click to disconnect</source>
        <translation>Haga clic para desconectar</translation>
    </message>
    <message>
        <source>Tor hasn&apos;t reported progress for a while. It is still trying; a slow or blocked network is the usual reason.</source>
        <translation>Tor lleva un rato sin informar de avances. Sigue intentándolo; lo habitual es que la red sea lenta o esté bloqueada.</translation>
    </message>
    <message>
        <source>Still waiting for Tor to start, or for your approval.</source>
        <translation>Se sigue esperando a que Tor arranque o a que usted dé su autorización.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Comprobando</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>Checked against %1</source>
        <translation>Comprobado con %1</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Verificado</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>Sin confirmar</translation>
    </message>
    <message>
        <source>DNS leak</source>
        <translation>Fuga de DNS</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>Sin probar</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Probando…</translation>
    </message>
    <message>
        <source>No leaks</source>
        <translation>Sin fugas</translation>
    </message>
    <message>
        <source>Inconclusive</source>
        <translation>No concluyente</translation>
    </message>
    <message>
        <source>Exposed: %1</source>
        <translation>Expuesta: %1</translation>
    </message>
    <message>
        <source>Tries a direct connection that skips Tor</source>
        <translation>Se intenta una conexión directa, sin pasar por Tor</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor are blocked</source>
        <translation>Las conexiones directas que no pasan por Tor están bloqueadas</translation>
    </message>
    <message>
        <source>Apps that ignore proxy settings show your real IP (%1). Turn on Strict mode to block them.</source>
        <translation>Las aplicaciones que ignoran la configuración del proxy muestran su IP real (%1). Active el modo estricto para bloquearlas.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 más</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Sin comprobar</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor show your real IP (%1), although Strict mode should block them. Disconnect, or run the leak test again.</source>
        <translation>Las conexiones directas, sin pasar por Tor, muestran su IP real (%1), aunque el modo estricto debería bloquearlas. Desconéctese o repita la prueba de fugas.</translation>
    </message>
</context>
<context>
    <name>veldmark::ReportModel</name>
    <message>
        <source>Saved in %1</source>
        <translation>Guardado en %1</translation>
    </message>
</context>
<context>
    <name>veldmark::SettingsModel</name>
    <message>
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Falta</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>Homebrew: %1</source>
        <translation>Homebrew: %1</translation>
    </message>
    <message>
        <source>Install it with %1</source>
        <translation>Instálelo con %1</translation>
    </message>
    <message>
        <source>Not found in Tor Browser or a downloaded bundle</source>
        <translation>No se encuentran en Tor Browser ni en un paquete descargado</translation>
    </message>
    <message>
        <source>Loaded from %1</source>
        <translation>Cargados de %1</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <translation>Sin descargar</translation>
    </message>
    <message>
        <source>Version %1 loaded</source>
        <translation>Versión %1 cargada</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>firma verificada</translation>
    </message>
    <message>
        <source>Adds one line to ~/.zshrc (and ~/.bash_profile if you have one) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>Se añade una línea a ~/.zshrc (y a ~/.bash_profile si existe) y una línea Include al principio de ~/.ssh/config. Los archivos están en ~/.veldmark. Solo se encamina algo cuando Veldmark está conectado con el modo terminal activado.</translation>
    </message>
    <message>
        <source>Adds one line to ~/.bashrc (and ~/.zshrc if you use zsh) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>Se añade una línea a ~/.bashrc (y a ~/.zshrc si usa zsh) y una línea Include al principio de ~/.ssh/config. Los archivos están en ~/.veldmark. Solo se encamina algo cuando Veldmark está conectado con el modo terminal activado.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>Fetched over HTTPS. Its signature isn&apos;t checked, since GnuPG isn&apos;t installed.</source>
        <translation>Descargado por HTTPS. Su firma no se comprueba, porque GnuPG no está instalado.</translation>
    </message>
    <message>
        <source>Fetched over HTTPS and checked against the Tor Project&apos;s signature.</source>
        <translation>Descargado por HTTPS y comprobado con la firma del Proyecto Tor.</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Sin instalar</translation>
    </message>
    <message>
        <source>Installed in your shell and SSH config</source>
        <translation>Instalada en su shell y en la configuración de SSH</translation>
    </message>
    <message>
        <source>Installed in your shell; SSH doesn&apos;t use it</source>
        <translation>Instalada en su shell; SSH no la usa</translation>
    </message>
    <message>
        <source>curl, git, brew, pip, ssh and more use Tor</source>
        <translation>curl, git, brew, pip, ssh y otros usan Tor</translation>
    </message>
    <message>
        <source>curl, git, pip, ssh and more use Tor</source>
        <translation>curl, git, pip, ssh y otros usan Tor</translation>
    </message>
    <message>
        <source>Veldmark is free software and independent of the Tor Project. It contains no Tor: it runs the tor that is installed here, and where bridges are used lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>Veldmark es software libre e independiente del Proyecto Tor. No contiene Tor: ejecuta el tor instalado aquí y, cuando se usan puentes, lyrebird, snowflake-client o webtunnel-client.</translation>
    </message>
    <message>
        <source>It sets up the network with macOS&apos;s own programs, asks for the administrator with sudo, and checks downloads with GnuPG where that is installed.</source>
        <translation>Veldmark configura la red con los programas propios de macOS, solicita el acceso de administrador con sudo y comprueba las descargas con GnuPG si está instalado.</translation>
    </message>
    <message>
        <source>It sets up the network with nftables, resolvectl and gsettings, asks for the administrator with polkit or sudo, takes ssh through Tor with a netcat, and checks downloads with GnuPG where that is installed.</source>
        <translation>Veldmark configura la red con nftables, resolvectl y gsettings, solicita el acceso de administrador con polkit o sudo, lleva ssh por Tor con un netcat y comprueba las descargas con GnuPG si está instalado.</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Preguntar</translation>
    </message>
    <message>
        <source>Try bridges</source>
        <translation>Probar puentes</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>No hacer nada</translation>
    </message>
</context>
<context>
    <name>veldmark::ShutdownNotice</name>
    <message>
        <source>Restoring your network settings</source>
        <translation>Restaurando la configuración de red</translation>
    </message>
</context>
<context>
    <name>veldmark::Text</name>
    <message>
        <source>Tor hasn&apos;t confirmed that it uses the network again, so traffic may not get through. Veldmark keeps telling Tor to. If this lasts, disconnect and connect again.</source>
        <translation>Tor no ha confirmado que vuelva a usar la red, así que puede que el tráfico no pase. Veldmark se lo sigue pidiendo; si esto continúa, desconéctese y vuelva a conectarse.</translation>
    </message>
    <message>
        <source>Version %1 is offered, which is older than the installed %2. Nothing was changed.</source>
        <translation>Se ofrece la versión %1, anterior a la instalada, %2. No se cambió nada.</translation>
    </message>
    <message>
        <source>The download of version %1 contains another version, so it was discarded.</source>
        <translation>La descarga de la versión %1 contiene otra versión, así que se descartó.</translation>
    </message>
    <message>
        <source>The download begins again when Tor is connected…</source>
        <translation>La descarga volverá a empezar cuando Tor esté conectado…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a location of Tor. Give an absolute path, such as /usr/bin/tor.</source>
        <translation>«%1» no es una ubicación de Tor. Indique una ruta absoluta, como /usr/bin/tor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be changed during a connection. Disconnect to change it.</source>
        <translation>«%1» no se puede cambiar durante una conexión. Desconéctese para cambiarlo.</translation>
    </message>
    <message>
        <source>Your traffic is not going through Tor</source>
        <translation>Su tráfico no pasa por Tor</translation>
    </message>
    <message>
        <source>Restoring your network settings…</source>
        <translation>Restaurando la configuración de red…</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor from an earlier session</source>
        <translation>Su red sigue configurada para Tor desde una sesión anterior</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Su red sigue configurada para Tor</translation>
    </message>
    <message>
        <source>Preparing Tor…</source>
        <translation>Preparando Tor…</translation>
    </message>
    <message>
        <source>Waiting for administrator approval…</source>
        <translation>Esperando la autorización del administrador…</translation>
    </message>
    <message>
        <source>Waiting for an administrator to approve a program…</source>
        <translation>Esperando a que un administrador apruebe un programa…</translation>
    </message>
    <message>
        <source>Starting Tor…</source>
        <translation>Iniciando Tor…</translation>
    </message>
    <message>
        <source>Tor is waiting for the bridge program, which hasn&apos;t said that it is ready.</source>
        <translation>Tor espera al programa de puente, que aún no ha indicado que esté listo.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting</source>
        <translation>Tor no terminó de conectarse</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor dejó de funcionar</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor</source>
        <translation>Todo el tráfico está restringido a Tor</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor</source>
        <translation>Las aplicaciones que usan el proxy del sistema pasan por Tor</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. Reconnect, or Restore Network to go back online.</source>
        <translation>Tor dejó de funcionar. El bloqueo de emergencia sigue cortando el tráfico, así que no hubo fugas. Vuelva a conectarse, o use «Restaurar la red» para volver a tener conexión sin Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, but the last checks saw traffic go around Tor. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor dejó de funcionar. El bloqueo de emergencia sigue cortando el tráfico, pero las últimas comprobaciones vieron tráfico que eludía Tor. Vuelva a conectarse, o use «Restaurar la red» para volver a tener conexión sin Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running. Apps using the proxy can&apos;t connect until you reconnect or Restore Network.</source>
        <translation>Tor dejó de funcionar. Las aplicaciones que usan el proxy no pueden conectarse hasta que usted vuelva a conectarse o use «Restaurar la red».</translation>
    </message>
    <message>
        <source>Any (recommended)</source>
        <translation>Cualquiera (recomendado)</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>Estados Unidos</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Canadá</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Reino Unido</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Alemania</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Países Bajos</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Francia</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Suecia</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Suiza</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finlandia</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Rumanía</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japón</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Singapur</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Propios</translation>
    </message>
    <message>
        <source>DNS can go around Tor via: %1</source>
        <translation>El DNS puede eludir Tor a través de: %1</translation>
    </message>
    <message>
        <source>DNS: not tested yet.</source>
        <translation>DNS: aún sin probar.</translation>
    </message>
    <message>
        <source>DNS: testing…</source>
        <translation>DNS: probando…</translation>
    </message>
    <message>
        <source>DNS: a test lookup went through Tor.</source>
        <translation>DNS: una consulta de prueba pasó por Tor.</translation>
    </message>
    <message>
        <source>DNS: settings point at Tor, but a test lookup couldn&apos;t be confirmed.</source>
        <translation>DNS: la configuración apunta a Tor, pero no se pudo confirmar una consulta de prueba.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este equipo</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Este Mac</translation>
    </message>
    <message>
        <source>on this computer</source>
        <translation>en este equipo</translation>
    </message>
    <message>
        <source>on this Mac</source>
        <translation>en este Mac</translation>
    </message>
    <message>
        <source>Tor stopped running, and your network is no longer set up for it.</source>
        <translation>Tor dejó de funcionar y su red ya no está configurada para él.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is blocking traffic again, but another program had removed its rules for a while. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor dejó de funcionar. El bloqueo de emergencia vuelve a cortar el tráfico, pero otro programa había quitado sus reglas durante un tiempo. Vuelva a conectarse, o use «Restaurar la red» para volver a tener conexión sin Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running, and the kill switch doesn&apos;t block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network.</source>
        <translation>Tor dejó de funcionar y el bloqueo de emergencia no corta el tráfico: otro programa quitó sus reglas. El tráfico puede salir directamente de este equipo. Vuelva a conectarse o use «Restaurar la red».</translation>
    </message>
    <message>
        <source>Tor stopped running, and it isn&apos;t known whether the kill switch is still blocking traffic. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor dejó de funcionar y no se sabe si el bloqueo de emergencia sigue cortando el tráfico. Vuelva a conectarse, o use «Restaurar la red» para volver a tener conexión sin Tor.</translation>
    </message>
    <message>
        <source>The watcher of Veldmark&apos;s firewall rules has stopped reporting, so it isn&apos;t known whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>El vigilante de las reglas de Veldmark en el cortafuegos ha dejado de informar, así que no se sabe si el bloqueo de emergencia corta el tráfico. Desconéctese y vuelva a conectarse.</translation>
    </message>
    <message>
        <source>Not Protected</source>
        <translation>Sin protección</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Conectando…</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Desconectando…</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>Protegido</translation>
    </message>
    <message>
        <source>Proxy Active</source>
        <translation>Proxy activo</translation>
    </message>
    <message>
        <source>Needs Attention</source>
        <translation>Requiere atención</translation>
    </message>
    <message>
        <source>DNS Leak</source>
        <translation>Fuga de DNS</translation>
    </message>
    <message>
        <source>Kill Switch Failed</source>
        <translation>Bloqueo sin efecto</translation>
    </message>
    <message>
        <source>Traffic may leave this computer directly</source>
        <translation>El tráfico puede salir directamente de este equipo</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>Las consultas DNS pueden eludir Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor, and your real address can be seen</source>
        <translation>Las consultas DNS pueden eludir Tor, y su dirección real es visible</translation>
    </message>
    <message>
        <source>Your real address can be seen. Disconnect, or run the leak test again.</source>
        <translation>Su dirección real es visible. Desconéctese o repita la prueba de fugas.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>Veldmark no puede saber si el bloqueo de emergencia corta el tráfico. Desconéctese y vuelva a conectarse.</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor, but the exit could not be confirmed</source>
        <translation>Todo el tráfico está restringido a Tor, pero no se pudo confirmar la salida</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor, but the exit could not be confirmed</source>
        <translation>Las aplicaciones que usan el proxy del sistema pasan por Tor, pero no se pudo confirmar la salida</translation>
    </message>
    <message>
        <source>No Network</source>
        <translation>Sin red</translation>
    </message>
    <message>
        <source>Nothing Gets Through</source>
        <translation>El tráfico no pasa</translation>
    </message>
    <message>
        <source>This computer has no network. Traffic around Tor stays blocked.</source>
        <translation>Este equipo no tiene red. El tráfico que elude Tor sigue bloqueado.</translation>
    </message>
    <message>
        <source>This computer has no network. Veldmark goes on when it is back.</source>
        <translation>Este equipo no tiene red. Veldmark continuará cuando la recupere.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor no tiene ningún circuito que funcione y lo sigue intentando. El tráfico que elude Tor sigue bloqueado.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying.</source>
        <translation>Tor no tiene ningún circuito que funcione y lo sigue intentando.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor no recibe respuesta de la red y lo sigue intentando. El tráfico que elude Tor sigue bloqueado.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying.</source>
        <translation>Tor no recibe respuesta de la red y lo sigue intentando.</translation>
    </message>
    <message>
        <source>Another program has ended this session and started its own. Restore Network ends that session.</source>
        <translation>Otro programa terminó esta sesión y comenzó una propia. «Restaurar la red» termina esa otra sesión.</translation>
    </message>
    <message>
        <source>This computer has no network, so Tor can&apos;t connect.</source>
        <translation>Este equipo no tiene red, así que Tor no puede conectarse.</translation>
    </message>
    <message>
        <source>A VPN takes Tor&apos;s traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode.</source>
        <translation>El tráfico de Tor va por una VPN, y el modo estricto no deja salir a la VPN. Desactive la VPN o use el modo proxy.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules; they are back in place.</source>
        <translation>Otro programa quitó las reglas de Veldmark del cortafuegos; ya están puestas de nuevo.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules and they could not be put back. Traffic may leave this computer directly. Disconnect and connect again.</source>
        <translation>Otro programa quitó las reglas de Veldmark del cortafuegos y no se pudieron volver a poner. El tráfico puede salir directamente de este equipo. Desconéctese y vuelva a conectarse.</translation>
    </message>
    <message>
        <source>Invalid exit country.</source>
        <translation>País de salida no válido.</translation>
    </message>
    <message>
        <source>The settings couldn&apos;t be saved. Changes to them may last only until you quit.</source>
        <translation>No se pudo guardar la configuración. Los cambios quizá duren solo hasta que salga de Veldmark.</translation>
    </message>
    <message>
        <source>Checking latest version…</source>
        <translation>Buscando la última versión…</translation>
    </message>
    <message>
        <source>Verifying signature…</source>
        <translation>Verificando la firma…</translation>
    </message>
    <message>
        <source>Another download is under way.</source>
        <translation>Ya hay otra descarga en curso.</translation>
    </message>
    <message>
        <source>Path not responding, finding another…</source>
        <translation>La ruta no responde, buscando otra…</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes.</source>
        <translation>Tor no terminó de conectarse en 5 minutos.</translation>
    </message>
    <message>
        <source>Administrator access was refused, or the agent that asks for the password gave no answer.</source>
        <translation>Se denegó el acceso de administrador, o el agente que pide la contraseña no respondió.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, so Tor can&apos;t connect: %1.</source>
        <translation>Otro cortafuegos de este equipo bloquea el tráfico saliente, así que Tor no puede conectarse: %1.</translation>
    </message>
    <message>
        <source>Setup ran but the helper wasn&apos;t installed. Try again.</source>
        <translation>La configuración se ejecutó, pero el programa auxiliar no quedó instalado. Inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The helper failed without an error message.</source>
        <translation>El programa auxiliar falló sin mensaje de error.</translation>
    </message>
    <message>
        <source>Add at least one bridge under Bridges → Custom….</source>
        <translation>Añada al menos un puente en «Puentes → Propios…».</translation>
    </message>
    <message>
        <source>Some custom bridge lines aren&apos;t valid. Fix them under Bridges → Custom….</source>
        <translation>Algunas líneas de los puentes propios no son válidas. Corríjalas en «Puentes → Propios…».</translation>
    </message>
    <message>
        <source>At most %1 custom bridges can be used. Remove some under Bridges → Custom….</source>
        <translation>Se pueden usar %1 puentes propios como máximo. Quite algunos en «Puentes → Propios…».</translation>
    </message>
    <message>
        <source>Testing speed (%1 of %2)…</source>
        <translation>Probando la velocidad (%1 de %2)…</translation>
    </message>
    <message>
        <source>Slow path (%1 ms), finding a faster one…</source>
        <translation>Ruta lenta (%1 ms), buscando una más rápida…</translation>
    </message>
    <message>
        <source>Downloading Tor %1 bridge programs…</source>
        <translation>Descargando los programas de puente de Tor %1…</translation>
    </message>
    <message>
        <source>Download of %1 failed (HTTP %2).</source>
        <translation>La descarga falló: %1 (HTTP %2).</translation>
    </message>
    <message>
        <source>The settings file couldn&apos;t be read. It was kept as %1, and a new one is used.</source>
        <translation>No se pudo leer el archivo de configuración. Se conservó como %1 y se usa uno nuevo.</translation>
    </message>
    <message>
        <source>The settings file %1 can&apos;t be read or replaced. Changes to the settings last until you quit.</source>
        <translation>No se puede leer ni reemplazar el archivo de configuración %1. Los cambios de configuración duran hasta que salga de Veldmark.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1 without Tor: %2</source>
        <translation>No se pudo abrir %1 sin Tor: %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>Otro Veldmark suyo ha iniciado una sesión entretanto, así que no se terminó ninguna sesión. Desconéctese de nuevo para terminar esa sesión.</translation>
    </message>
    <message>
        <source>Another user&apos;s Veldmark has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>El Veldmark de otro usuario ha iniciado una sesión entretanto, así que no se terminó ninguna sesión. Desconéctese de nuevo para terminar esa sesión.</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by another Veldmark of yours, process %1</source>
        <translation>Su red está configurada para Tor por otro Veldmark suyo, proceso %1</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by %1, whose Veldmark is process %2</source>
        <translation>Su red está configurada para Tor por %1, cuyo Veldmark es el proceso %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours is connected (process %1). Disconnect it, or restore the network, first.</source>
        <translation>Otro Veldmark suyo está conectado (proceso %1). Desconéctelo o restaure la red primero.</translation>
    </message>
    <message>
        <source>%1 is connected with Veldmark (process %2). That session must be ended first.</source>
        <translation>%1 tiene abierta una conexión de Veldmark (proceso %2). Primero hay que terminar esa sesión.</translation>
    </message>
    <message>
        <source>%1 Your network is still pointed at Tor. Click Restore Network to undo.</source>
        <translation>%1 Su red sigue apuntando a Tor. Haga clic en «Restaurar la red» para deshacerlo.</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install the OpenBSD netcat or Ncat with your package manager.</source>
        <translation>ssh aún no pasa por Tor: necesita un netcat que admita SOCKS. Instale el netcat de OpenBSD o Ncat con su gestor de paquetes.</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up terminal mode: %1</source>
        <translation>No se pudo configurar el modo terminal: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove terminal integration: %1</source>
        <translation>No se pudo quitar la integración con el terminal: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up passwordless mode: %1</source>
        <translation>No se pudo configurar el modo sin contraseña: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove passwordless mode: %1</source>
        <translation>No se pudo quitar el modo sin contraseña: %1</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install one with: %1</source>
        <translation>ssh aún no pasa por Tor: necesita un netcat que admita SOCKS. Instale uno con: %1</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Conéctese en modo estricto para abrir aplicaciones sin Tor</translation>
    </message>
    <message>
        <source>No bridge answered a quick test, trying them all</source>
        <translation>Ningún puente respondió a una prueba rápida; se intenta con todos</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Estos puentes necesitan lyrebird, que viene con Tor Browser. Haga clic en «Descargar», junto a «Puentes», para obtenerlo.</translation>
    </message>
    <message>
        <source>Snowflake needs snowflake-client, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Snowflake necesita snowflake-client, que viene con Tor Browser. Haga clic en «Descargar», junto a «Puentes», para obtenerlo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the latest Tor version from torproject.org.</source>
        <translation>No se pudo leer la última versión de Tor en torproject.org.</translation>
    </message>
    <message>
        <source>The request timed out.</source>
        <translation>La solicitud superó el tiempo de espera.</translation>
    </message>
    <message>
        <source>The server gave no HTTP answer.</source>
        <translation>El servidor no dio una respuesta HTTP.</translation>
    </message>
    <message>
        <source>The connection was lost before the download ended.</source>
        <translation>La conexión se perdió antes de que terminara la descarga.</translation>
    </message>
    <message>
        <source>Not connected to Tor&apos;s control port.</source>
        <translation>No hay conexión con el puerto de control de Tor.</translation>
    </message>
    <message>
        <source>Tor closed the control connection.</source>
        <translation>Tor cerró la conexión de control.</translation>
    </message>
    <message>
        <source>A program other than Tor listens on Tor&apos;s control port.</source>
        <translation>En el puerto de control de Tor escucha otro programa que no es Tor.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t answer on its control port in time.</source>
        <translation>Tor no respondió a tiempo en su puerto de control.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager or set its location in Settings.</source>
        <translation>Tor no está instalado. Instálelo con su gestor de paquetes o indique su ubicación en Configuración.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with Homebrew (brew install tor) or set its location in Settings.</source>
        <translation>Tor no está instalado. Instálelo con Homebrew (brew install tor) o indique su ubicación en Configuración.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: polkit is not running on this system.</source>
        <translation>No se puede solicitar acceso de administrador: polkit no está en ejecución en este sistema.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: no PolicyKit authentication agent is running in this session.</source>
        <translation>No se puede solicitar acceso de administrador: en esta sesión no se ejecuta ningún agente de autenticación de PolicyKit.</translation>
    </message>
    <message>
        <source>The password could not be checked: polkit accepts no password from this terminal. Run the command with sudo.</source>
        <translation>No se pudo comprobar la contraseña: polkit no acepta ninguna desde este terminal. Ejecute el comando con sudo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t fix DNS: %1</source>
        <translation>No se pudo reparar el DNS: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t request a new identity: %1</source>
        <translation>No se pudo pedir una nueva identidad: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read circuits: %1</source>
        <translation>No se pudieron leer los circuitos: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the login-item setting: %1</source>
        <translation>No se pudo cambiar la apertura al iniciar sesión: %1</translation>
    </message>
    <message>
        <source>Login items can&apos;t be changed here.</source>
        <translation>Los ítems de inicio no se pueden cambiar aquí.</translation>
    </message>
    <message>
        <source>Move Veldmark to the Applications folder and open it from there first.</source>
        <translation>Primero mueva Veldmark a la carpeta Aplicaciones y ábralo desde allí.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1.</source>
        <translation>No se pudo quitar %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <translation>No se pudo escribir %1: %2</translation>
    </message>
    <message>
        <source>Couldn&apos;t download bridge programs: %1</source>
        <translation>No se pudieron descargar los programas de puente: %1</translation>
    </message>
    <message>
        <source>Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download again to also verify the Tor Project&apos;s signature.</source>
        <translation>Programas de puente %1 instalados; se descargaron por HTTPS. Instale GnuPG (%2) y vuelva a descargarlos para verificar también la firma del Proyecto Tor.</translation>
    </message>
    <message>
        <source>The download&apos;s signature didn&apos;t verify, so it was discarded. %1</source>
        <translation>La firma de la descarga no superó la verificación, así que se descartó. %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unpack the download. %1</source>
        <translation>No se pudo desempaquetar la descarga. %1</translation>
    </message>
    <message>
        <source>Tor can&apos;t reach the bridge program: %1.</source>
        <translation>Tor no puede contactar con el programa de puente: %1.</translation>
    </message>
    <message>
        <source>Tor reports: %1 (%2).</source>
        <translation>Tor informa: %1 (%2).</translation>
    </message>
    <message>
        <source>Tor reports: %1.</source>
        <translation>Tor informa: %1.</translation>
    </message>
    <message>
        <source>Tor replied: %1</source>
        <translation>Tor respondió: %1</translation>
    </message>
    <message>
        <source>Tor has trouble with the bridge program: %1</source>
        <translation>Tor tiene dificultades con el programa de puente: %1</translation>
    </message>
    <message>
        <source>The bridge program printed something that Tor doesn&apos;t understand: &quot;%1&quot;.</source>
        <translation>El programa de puente mostró algo que Tor no entiende: «%1».</translation>
    </message>
    <message>
        <source>Using the %1 fastest of %2 bridges</source>
        <translation>Se usan los puentes más rápidos: %1 de %2</translation>
    </message>
    <message>
        <source>The %1 bridge type isn&apos;t supported yet.</source>
        <translation>Los puentes de tipo %1 aún no se admiten.</translation>
    </message>
    <message>
        <source>Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, install Tor Browser, or paste your own under Bridges → Custom….</source>
        <translation>Los puentes %1 integrados vienen con Tor Browser. Haga clic en «Descargar», junto a «Puentes», instale Tor Browser o pegue los suyos en «Puentes → Propios…».</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1.</source>
        <translation>Algunos ajustes de DNS vienen de fuera de Veldmark (una VPN o /etc/resolver) y todavía apuntan a servidores fuera de Tor: %1.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1. Strict mode&apos;s firewall blocks them.</source>
        <translation>Algunos ajustes de DNS vienen de fuera de Veldmark (una VPN o /etc/resolver) y todavía apuntan a servidores fuera de Tor: %1. El cortafuegos del modo estricto los bloquea.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager (%1) or set its location in Settings.</source>
        <translation>Tor no está instalado. Instálelo con su gestor de paquetes (%1) o indique su ubicación en Configuración.</translation>
    </message>
    <message>
        <source>%1 is already being opened.</source>
        <translation>%1 ya se está abriendo.</translation>
    </message>
    <message>
        <source>A session is open, and its kill switch doesn&apos;t block traffic: its watcher couldn&apos;t put the rules back. Traffic may leave this computer directly. Restore the network, and connect again.</source>
        <translation>Hay una sesión abierta y su bloqueo de emergencia no corta el tráfico: su vigilante no pudo volver a poner las reglas. El tráfico puede salir directamente de este equipo. Restaure la red y vuelva a conectarse.</translation>
    </message>
    <message>
        <source>The clock is behind: it shows %1, but the file %2 was written on %3. Tor needs a clock that is right to within minutes.</source>
        <translation>El reloj va atrasado: marca %1, pero el archivo %2 se escribió el %3. Tor necesita que el reloj no se desvíe más de unos minutos.</translation>
    </message>
    <message>
        <source>The clock is set from the network. It shows %1.</source>
        <translation>El reloj se ajusta por la red. Marca %1.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether the clock is right: no time service seems to set it. It shows %1. Tor needs it right to within minutes.</source>
        <translation>No se sabe si el reloj es correcto: ningún servicio horario parece ajustarlo. Marca %1. Tor necesita que no se desvíe más de unos minutos.</translation>
    </message>
    <message>
        <source>nftables isn&apos;t installed. Veldmark&apos;s firewall needs it.</source>
        <translation>nftables no está instalado. El cortafuegos de Veldmark lo necesita.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall, nftables, can be used.</source>
        <translation>El cortafuegos del sistema, nftables, se puede usar.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall can&apos;t be used: %1</source>
        <translation>El cortafuegos del sistema no se puede usar: %1</translation>
    </message>
    <message>
        <source>The running kernel (%1) has no nftables. After an upgrade of the kernel, restart the computer.</source>
        <translation>El núcleo en ejecución (%1) no tiene nftables. Tras actualizar el núcleo, reinicie el equipo.</translation>
    </message>
    <message>
        <source>nftables is installed. Only root can tell whether the running kernel can use it.</source>
        <translation>nftables está instalado. Solo root puede saber si el núcleo en ejecución puede usarlo.</translation>
    </message>
    <message>
        <source>nftables is installed, and the kernel has it.</source>
        <translation>nftables está instalado y el núcleo lo tiene.</translation>
    </message>
    <message>
        <source>This system has no control groups of version 2, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>Este sistema no tiene grupos de control de la versión 2, así que no se puede abrir ninguna aplicación sin Tor, y el bloqueo de emergencia reconoce a Tor únicamente por su cuenta de usuario. Todo lo demás funciona.</translation>
    </message>
    <message>
        <source>The kernel (%1) is older than 5.13, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>El núcleo (%1) es anterior al 5.13, así que no se puede abrir ninguna aplicación sin Tor, y el bloqueo de emergencia reconoce a Tor únicamente por su cuenta de usuario. Todo lo demás funciona.</translation>
    </message>
    <message>
        <source>Applications can be opened without Tor: control groups of version 2 are there.</source>
        <translation>Se pueden abrir aplicaciones sin Tor: hay grupos de control de la versión 2.</translation>
    </message>
    <message>
        <source>No other firewall that Veldmark knows runs. Only root can read the rules themselves.</source>
        <translation>No está en marcha ningún otro cortafuegos que Veldmark conozca. Solo root puede leer las reglas mismas.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic that its rules don&apos;t allow, so Tor may not get through: %1.</source>
        <translation>Otro cortafuegos de este equipo bloquea el tráfico saliente que sus reglas no permiten, así que Tor quizá no logre pasar: %1.</translation>
    </message>
    <message>
        <source>Other programs set firewall rules here: %1. Veldmark leaves their rules alone. Rules that drop packets can block Tor.</source>
        <translation>Otros programas ponen aquí reglas de cortafuegos: %1. Veldmark no toca sus reglas. Las reglas que descartan paquetes pueden bloquear Tor.</translation>
    </message>
    <message>
        <source>pkexec isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>pkexec no está instalado, así que ninguna ventana puede pedir la contraseña de administrador.</translation>
    </message>
    <message>
        <source>polkit isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>polkit no está instalado, así que ninguna ventana puede pedir la contraseña de administrador.</translation>
    </message>
    <message>
        <source>There is no desktop here on which a window could ask for the administrator&apos;s password. Use sudo.</source>
        <translation>Aquí no hay un escritorio en el que una ventana pueda pedir la contraseña de administrador. Use sudo.</translation>
    </message>
    <message>
        <source>No known polkit agent, the program that asks for the password, runs in your session. Use sudo, or start an agent such as lxpolkit.</source>
        <translation>En su sesión no se ejecuta ningún agente de polkit conocido (el programa que pide la contraseña). Use sudo o inicie un agente como lxpolkit.</translation>
    </message>
    <message>
        <source>polkit is installed, and an agent that asks for the password runs in your session.</source>
        <translation>polkit está instalado y en su sesión se ejecuta un agente que pide la contraseña.</translation>
    </message>
    <message>
        <source>Veldmark runs as root here and asks for no password.</source>
        <translation>Veldmark se ejecuta aquí como root y no pide contraseña.</translation>
    </message>
    <message>
        <source>Passwordless mode is set up.</source>
        <translation>El modo sin contraseña está configurado.</translation>
    </message>
    <message>
        <source>sudo isn&apos;t installed. Passwordless mode needs it.</source>
        <translation>sudo no está instalado. El modo sin contraseña lo necesita.</translation>
    </message>
    <message>
        <source>sudo is installed. Only root can tell whether you may use it.</source>
        <translation>sudo está instalado. Solo root puede saber si usted puede usarlo.</translation>
    </message>
    <message>
        <source>sudo is installed, and you are in the group %1.</source>
        <translation>sudo está instalado y usted pertenece al grupo %1.</translation>
    </message>
    <message>
        <source>The program listens on IPv6. If it takes IPv6 alone, Tor can use the port.</source>
        <translation>El programa escucha en IPv6. Si solo acepta IPv6, Tor puede usar el puerto.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by a program of the account %2.</source>
        <translation>El puerto %1, que Tor necesita, lo ocupa un programa de la cuenta %2.</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) runs. Veldmark stops it while it is connected and starts it again afterwards.</source>
        <translation>El servicio Tor del propio sistema (%1) está en marcha. Veldmark lo detiene mientras está conectado y después vuelve a iniciarlo.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2 (process %3, account %4).</source>
        <translation>El puerto %1, que Tor necesita, lo ocupa %2 (proceso %3, cuenta %4).</translation>
    </message>
    <message>
        <source>Veldmark&apos;s own Tor holds the ports 9050, 9051 and 293.</source>
        <translation>El Tor del propio Veldmark ocupa los puertos 9050, 9051 y 293.</translation>
    </message>
    <message>
        <source>The ports that Tor needs (9050, 9051 and 293) are free.</source>
        <translation>Los puertos que Tor necesita (9050, 9051 y 293) están libres.</translation>
    </message>
    <message>
        <source>The location of Tor in the settings, %1, is not an executable program. Veldmark searches the usual places instead.</source>
        <translation>La ubicación de Tor en la configuración, %1, no es un programa ejecutable. En su lugar, Veldmark busca en los sitios habituales.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed.</source>
        <translation>Tor no está instalado.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t start, or isn&apos;t Tor: it prints no version.</source>
        <translation>%1 no arranca o no es Tor: no indica su versión.</translation>
    </message>
    <message>
        <source>Tor %1 is installed: %2.</source>
        <translation>Tor %1 está instalado: %2.</translation>
    </message>
    <message>
        <source>The program %1 is missing. Veldmark&apos;s helper needs it.</source>
        <translation>Falta el programa %1. El programa auxiliar de Veldmark lo necesita.</translation>
    </message>
    <message>
        <source>Every program that Veldmark&apos;s helper calls is installed.</source>
        <translation>Están instalados todos los programas que usa el programa auxiliar de Veldmark.</translation>
    </message>
    <message>
        <source>The helper is missing. Reinstall Veldmark.</source>
        <translation>Falta el programa auxiliar. Vuelva a instalar Veldmark.</translation>
    </message>
    <message>
        <source>Accounts other than root can change Veldmark&apos;s helper, %1, and with it what the administrator&apos;s password runs.</source>
        <translation>Otras cuentas además de root pueden cambiar el programa auxiliar de Veldmark, %1, y con ello lo que se ejecuta con la contraseña de administrador.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper, %1, is not installed: the account %2 can change it, and with it what the administrator&apos;s password runs.</source>
        <translation>El programa auxiliar de Veldmark, %1, no está instalado: la cuenta %2 puede cambiarlo y, con ello, lo que se ejecuta con la contraseña de administrador.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper is installed, and only root can change it: %1.</source>
        <translation>El programa auxiliar de Veldmark está instalado y solo root puede cambiarlo: %1.</translation>
    </message>
    <message>
        <source>The helper of passwordless mode belongs to another version. Set up passwordless mode again in Settings, General.</source>
        <translation>El programa auxiliar del modo sin contraseña es de otra versión. Vuelva a configurar el modo sin contraseña en «Configuración → General».</translation>
    </message>
    <message>
        <source>Bridges are off. Bridges need bridge programs where Tor is blocked, and none was found.</source>
        <translation>Los puentes están desactivados. Donde Tor está bloqueado, necesitan programas de puente, y no se encontró ninguno.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridge programs were found: %1.</source>
        <translation>Los puentes están desactivados. Programas de puente encontrados: %1.</translation>
    </message>
    <message>
        <source>The chosen bridges can&apos;t be used. %1</source>
        <translation>Los puentes elegidos no se pueden usar. %1</translation>
    </message>
    <message>
        <source>The chosen bridges (%1) can be used: %2.</source>
        <translation>Los puentes elegidos (%1) se pueden usar: %2.</translation>
    </message>
    <message>
        <source>%1 manages DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>%1 gestiona el DNS. Veldmark cambia eso mientras está conectado y después lo restaura.</translation>
    </message>
    <message>
        <source>Veldmark wrote %1. It points DNS at Tor.</source>
        <translation>Veldmark escribió %1. Ese archivo apunta el DNS a Tor.</translation>
    </message>
    <message>
        <source>The file %1 is missing, so DNS may not work at all.</source>
        <translation>Falta el archivo %1, así que puede que el DNS no funcione en absoluto.</translation>
    </message>
    <message>
        <source>A resolver on this computer answers DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>Un programa de este equipo responde a las consultas DNS. Veldmark cambia eso mientras está conectado y después lo restaura.</translation>
    </message>
    <message>
        <source>No earlier session is left open.</source>
        <translation>No quedó abierta ninguna sesión anterior.</translation>
    </message>
    <message>
        <source>A Tor of an earlier session still runs (process %1).</source>
        <translation>Un Tor de una sesión anterior sigue funcionando (proceso %1).</translation>
    </message>
    <message>
        <source>A session is open: the network is set up for Tor, and Tor runs.</source>
        <translation>Hay una sesión abierta: la red está configurada para Tor y Tor está en marcha.</translation>
    </message>
    <message>
        <source>The network is set up for Tor. It isn&apos;t known whether Tor still runs.</source>
        <translation>La red está configurada para Tor. Aquí no se sabe si Tor sigue funcionando.</translation>
    </message>
    <message>
        <source>The network is still set up for Tor from an earlier session, and no Tor runs. Connect again, or restore the network.</source>
        <translation>La red sigue configurada para Tor desde una sesión anterior y no hay ningún Tor en marcha. Vuelva a conectarse o restaure la red.</translation>
    </message>
    <message>
        <source>A session is open, and it isn&apos;t known whether its kill switch blocks traffic: no watcher watches the rules. Restore the network, and connect again.</source>
        <translation>Hay una sesión abierta y no se sabe si su bloqueo de emergencia tiene efecto: ningún vigilante vigila las reglas. Restaure la red y vuelva a conectarse.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Cancelado.</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 of %2 MB (%3%)</source>
        <translation>%1 de %2 MB (%3 %)</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this computer. While connected, Veldmark stops the system&apos;s own Tor service.</source>
        <translation>Veldmark necesita acceso de administrador para gestionar el encaminamiento por Tor en este equipo. Mientras está conectado, Veldmark mantiene detenido el servicio Tor del propio sistema.</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this Mac.</source>
        <translation>Veldmark necesita acceso de administrador para gestionar el encaminamiento por Tor en este Mac.</translation>
    </message>
    <message>
        <source>The archive contains %1: %2</source>
        <translation>El archivo comprimido contiene %1: %2</translation>
    </message>
    <message>
        <source>a link that leads elsewhere</source>
        <translation>un enlace que lleva fuera</translation>
    </message>
    <message>
        <source>a hard link</source>
        <translation>un enlace duro</translation>
    </message>
    <message>
        <source>an entry that is neither a file nor a folder</source>
        <translation>algo que no es ni archivo ni carpeta</translation>
    </message>
    <message>
        <source>a path that leads elsewhere</source>
        <translation>una ruta que lleva fuera</translation>
    </message>
    <message>
        <source>The file is empty or not an archive.</source>
        <translation>El archivo está vacío o no es un archivo comprimido.</translation>
    </message>
    <message>
        <source>The archive&apos;s list of files is ambiguous.</source>
        <translation>La lista del contenido del archivo comprimido es ambigua.</translation>
    </message>
    <message>
        <source>The archive contains too many files.</source>
        <translation>El archivo comprimido contiene demasiados archivos.</translation>
    </message>
    <message>
        <source>The archive&apos;s content is too large.</source>
        <translation>El contenido del archivo comprimido es demasiado grande.</translation>
    </message>
    <message>
        <source>The archive&apos;s content could not be listed.</source>
        <translation>No se pudo listar el contenido del archivo comprimido.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make the folder %1: %2.</source>
        <translation>No se pudo crear la carpeta %1: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1: %2.</source>
        <translation>No se pudo abrir %1: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make a folder beside %1: %2.</source>
        <translation>No se pudo crear una carpeta junto a %1: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2.</source>
        <translation>No se pudo escribir %1: %2.</translation>
    </message>
    <message>
        <source>%1 didn&apos;t end within %2 minutes.</source>
        <translation>%1 no terminó en %2 min.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load the Tor Browser signing key. %1</source>
        <translation>No se pudo cargar la clave de firma de Tor Browser. %1</translation>
    </message>
    <message>
        <source>The server sent more than %1 can be.</source>
        <translation>El servidor envió más datos de los admisibles: %1.</translation>
    </message>
    <message>
        <source>the version index</source>
        <translation>índice de versiones</translation>
    </message>
    <message>
        <source>the bridge programs</source>
        <translation>programas de puente</translation>
    </message>
    <message>
        <source>signature</source>
        <translation>firma</translation>
    </message>
    <message>
        <source>signing key</source>
        <translation>clave de firma</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>Instalando…</translation>
    </message>
    <message>
        <source>No applications are installed.</source>
        <translation>No hay aplicaciones instaladas.</translation>
    </message>
    <message>
        <source>(not in the menu)</source>
        <translation>(no está en el menú)</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>No existe el archivo «%1».</translation>
    </message>
    <message>
        <source>There is no application &quot;%1&quot;; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>No existe la aplicación «%1»; «veldmarkctl apps» las muestra.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be any of: %2. Give the path.</source>
        <translation>«%1» puede ser cualquiera de estas: %2. Indique la ruta.</translation>
    </message>
    <message>
        <source>%1 needs a key: veldmarkctl %1 KEY.</source>
        <translation>%1 necesita una clave: veldmarkctl %1 KEY.</translation>
    </message>
    <message>
        <source>%1 needs a key and a value: veldmarkctl %1 KEY VALUE.</source>
        <translation>%1 necesita una clave y un valor: veldmarkctl %1 KEY VALUE.</translation>
    </message>
    <message>
        <source>A command is missing. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Falta un comando. «veldmarkctl help» muestra los comandos.</translation>
    </message>
    <message>
        <source>Unknown command %1. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Comando desconocido: %1. «veldmarkctl help» muestra los comandos.</translation>
    </message>
    <message>
        <source>%1 has no option %2.</source>
        <translation>%1 no tiene la opción %2.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t take %2.</source>
        <translation>%1 no admite %2.</translation>
    </message>
    <message>
        <source>usage: veldmarkctl COMMAND</source>
        <translation>uso: veldmarkctl COMMAND</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage,
3 Veldmark is not running, 4 Veldmark is already running.</source>
        <translation>Código de salida: 0 hecho, 1 fallo (el motivo está en la salida de error),
2 uso incorrecto, 3 Veldmark no se está ejecutando, 4 Veldmark ya se ejecuta.</translation>
    </message>
    <message>
        <source>line %1 is not a bridge line: %2</source>
        <translation>la línea %1 no es una línea de puente: %2</translation>
    </message>
    <message>
        <source>%1 too many, from line %2 on; at most %3 can be used</source>
        <translation>de más: %1, desde la línea %2; se pueden usar %3 como máximo</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programas</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>no encontrado</translation>
    </message>
    <message>
        <source>doesn&apos;t say which transports it serves</source>
        <translation>no indica qué transportes ofrece</translation>
    </message>
    <message>
        <source>serves %1</source>
        <translation>ofrece %1</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Puentes integrados</translation>
    </message>
    <message>
        <source>Built-in bridges, from %1</source>
        <translation>Puentes integrados, de %1</translation>
    </message>
    <message>
        <source>none; get some with: veldmarkctl download-transports</source>
        <translation>ninguno; obténgalos con: veldmarkctl download-transports</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>firma verificada</translation>
    </message>
    <message>
        <source>signature not verified</source>
        <translation>firma no verificada</translation>
    </message>
    <message>
        <source>not downloaded</source>
        <translation>sin descargar</translation>
    </message>
    <message>
        <source>Your own bridges</source>
        <translation>Puentes propios</translation>
    </message>
    <message>
        <source>%1 valid</source>
        <translation>válidos: %1</translation>
    </message>
    <message>
        <source>Installed Tor Expert Bundle %1, signature verified.</source>
        <translation>Instalado Tor Expert Bundle %1, firma verificada.</translation>
    </message>
    <message>
        <source>Veldmark isn&apos;t running. Start it with: veldmarkctl run --connect</source>
        <translation>Veldmark no se está ejecutando. Inícielo con: veldmarkctl run --connect</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;. Fields: %2.</source>
        <translation>No existe el campo «%1». Campos: %2.</translation>
    </message>
    <message>
        <source>list the commands</source>
        <translation>mostrar los comandos</translation>
    </message>
    <message>
        <source>good</source>
        <translation>bien</translation>
    </message>
    <message>
        <source>note</source>
        <translation>nota</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>no se sabe</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problema</translation>
    </message>
    <message>
        <source>A connect can work.</source>
        <translation>La conexión es posible.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work yet.</source>
        <translation>La conexión aún no es posible.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work until each &quot;problem&quot; is fixed.</source>
        <translation>La conexión no es posible hasta que se resuelva cada «problema».</translation>
    </message>
    <message>
        <source>proxy: apps that ignore the system proxy are not covered</source>
        <translation>proxy: no cubre las aplicaciones que ignoran el proxy del sistema</translation>
    </message>
    <message>
        <source>strict: only Tor&apos;s traffic leaves</source>
        <translation>estricto: solo sale el tráfico de Tor</translation>
    </message>
    <message>
        <source>strict</source>
        <translation>estricto</translation>
    </message>
    <message>
        <source>blocks traffic, since %1</source>
        <translation>corta el tráfico, desde %1</translation>
    </message>
    <message>
        <source>blocks traffic; put back at %1 after another program had removed it</source>
        <translation>corta el tráfico; restablecido (%1) después de que otro programa lo quitara</translation>
    </message>
    <message>
        <source>NOT BLOCKING since %1: traffic may leave this computer directly</source>
        <translation>NO CORTA EL TRÁFICO desde %1: puede salir directamente de este equipo</translation>
    </message>
    <message>
        <source>isn&apos;t known to block traffic, since %1</source>
        <translation>desde %1 no se sabe si corta el tráfico</translation>
    </message>
    <message>
        <source>not checked yet</source>
        <translation>aún sin comprobar</translation>
    </message>
    <message>
        <source>the check service didn&apos;t answer through Tor</source>
        <translation>el servicio de comprobación no respondió a través de Tor</translation>
    </message>
    <message>
        <source>%1, a Tor exit</source>
        <translation>%1, una salida de Tor</translation>
    </message>
    <message>
        <source>%1, NOT a Tor exit</source>
        <translation>%1, NO es una salida de Tor</translation>
    </message>
    <message>
        <source>open; it shows the address %1</source>
        <translation>abierta; muestra la dirección %1</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>bloqueada</translation>
    </message>
    <message>
        <source>no answer, but it isn&apos;t known whether the kill switch blocks it</source>
        <translation>sin respuesta, pero no se sabe si el bloqueo de emergencia la corta</translation>
    </message>
    <message>
        <source>no answer, but proxy mode doesn&apos;t block it</source>
        <translation>sin respuesta, pero el modo proxy no la corta</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>comprobando…</translation>
    </message>
    <message>
        <source>inconclusive</source>
        <translation>no se pudo determinar</translation>
    </message>
    <message>
        <source>can go around Tor via: %1</source>
        <translation>puede eludir Tor a través de: %1</translation>
    </message>
    <message>
        <source>a test lookup went through Tor</source>
        <translation>una consulta de prueba pasó por Tor</translation>
    </message>
    <message>
        <source>testing…</source>
        <translation>probando…</translation>
    </message>
    <message>
        <source>settings point at Tor, but a test lookup couldn&apos;t be confirmed</source>
        <translation>la configuración apunta a Tor, pero no se pudo confirmar una consulta de prueba</translation>
    </message>
    <message>
        <source>not tested yet</source>
        <translation>aún sin probar</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Latencia</translation>
    </message>
    <message>
        <source>%1 ms through Tor</source>
        <translation>%1 ms a través de Tor</translation>
    </message>
    <message>
        <source>Direct path</source>
        <translation>Vía directa</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfico</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>%1 recibidos, %2 enviados</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Puentes</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>Qué hacer</translation>
    </message>
    <message>
        <source>nothing; veldmarkctl restore would end that session</source>
        <translation>nada; veldmarkctl restore terminaría esa sesión</translation>
    </message>
    <message>
        <source>Kill switch</source>
        <translation>Bloqueo de emergencia</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>Causa</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>No circuits yet.</source>
        <translation>Aún no hay circuitos.</translation>
    </message>
    <message>
        <source>Ready. Connect with: veldmarkctl connect</source>
        <translation>Listo. Conéctese con: veldmarkctl connect</translation>
    </message>
    <message>
        <source>Still restoring your network, one moment…</source>
        <translation>Aún se está restaurando su red, un momento…</translation>
    </message>
    <message>
        <source>Stopping as soon as Tor has been started…</source>
        <translation>Se detendrá en cuanto Tor haya arrancado…</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Restore it with: %1</source>
        <translation>La red sigue configurada para Tor. Restáurela con: %1</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Press Ctrl-C to try again.</source>
        <translation>La red sigue configurada para Tor. Pulse Ctrl-C para intentarlo de nuevo.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hecho</translation>
    </message>
    <message>
        <source>Press Ctrl-C to disconnect.</source>
        <translation>Pulse Ctrl-C para desconectar.</translation>
    </message>
    <message>
        <source>A command to Tor can&apos;t contain a line break or a NUL.</source>
        <translation>Un comando para Tor no puede contener un salto de línea ni un NUL.</translation>
    </message>
    <message>
        <source>Tor sent a line of more than 1 MiB on its control port.</source>
        <translation>Tor envió una línea de más de 1 MiB en su puerto de control.</translation>
    </message>
    <message>
        <source>Tor sent a reply of more than 64 MiB on its control port.</source>
        <translation>Tor envió una respuesta de más de 64 MiB en su puerto de control.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>«%1» no es ni true ni false.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a JSON array of strings.</source>
        <translation>«%1» no es un array JSON de cadenas.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a bridge choice: off, obfs4, snowflake, meek or custom.</source>
        <translation>«%1» no es una opción de puentes: off, obfs4, snowflake, meek o custom.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;. Settings: %2.</source>
        <translation>No existe el ajuste «%1». Ajustes: %2.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes. (%1)</source>
        <translation>Tor no terminó de conectarse en 5 minutos. (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an exit country: two lower-case letters such as &quot;de&quot;, or nothing for any.</source>
        <translation>«%1» no es un país de salida: dos letras minúsculas, como «de», o nada para cualquiera.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an application: an absolute path that ends in &quot;%2&quot;.</source>
        <translation>«%1» no es una aplicación: se espera una ruta absoluta que termine en «%2».</translation>
    </message>
    <message>
        <source>strict mode with the kill switch, else proxy mode</source>
        <translation>modo estricto con el bloqueo de emergencia; si no, modo proxy</translation>
    </message>
    <message>
        <source>strict mode lets the local network through</source>
        <translation>el modo estricto deja pasar la red local</translation>
    </message>
    <message>
        <source>two lower-case letters, or nothing for any</source>
        <translation>dos letras minúsculas, o nada para cualquiera</translation>
    </message>
    <message>
        <source>the path of the tor to use, or nothing to search for tor</source>
        <translation>la ruta del tor que se usa, o nada para buscar tor</translation>
    </message>
    <message>
        <source>which bridges</source>
        <translation>qué puentes</translation>
    </message>
    <message>
        <source>your own bridge lines, as typed</source>
        <translation>sus propias líneas de puente, tal como se escribieron</translation>
    </message>
    <message>
        <source>paths of applications that may be opened without Tor</source>
        <translation>rutas de aplicaciones que se pueden abrir sin Tor</translation>
    </message>
    <message>
        <source>connect when Veldmark starts</source>
        <translation>conectar cuando se inicia Veldmark</translation>
    </message>
    <message>
        <source>test bridges before connecting, look for a faster path afterwards</source>
        <translation>probar los puentes antes de conectar y buscar después una ruta más rápida</translation>
    </message>
    <message>
        <source>command-line tools go through Tor while connected</source>
        <translation>las herramientas de línea de comandos pasan por Tor mientras hay conexión</translation>
    </message>
    <message>
        <source>with your package manager</source>
        <translation>con su gestor de paquetes</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Comenzando…</translation>
    </message>
    <message>
        <source>&quot;set&quot; needs a &quot;key&quot; and a &quot;value&quot;, both strings.</source>
        <translation>«set» necesita «key» y «value», ambos de tipo cadena.</translation>
    </message>
    <message>
        <source>Already connected or connecting; &quot;veldmarkctl status&quot; says more.</source>
        <translation>Ya está conectado o conectándose; «veldmarkctl status» dice más.</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>Ahora no: %1</translation>
    </message>
    <message>
        <source>A check is already running.</source>
        <translation>Ya hay una comprobación en curso.</translation>
    </message>
    <message>
        <source>There is no circuit &quot;%1&quot;.</source>
        <translation>No existe el circuito «%1».</translation>
    </message>
    <message>
        <source>Tor didn&apos;t close circuit %1.</source>
        <translation>Tor no cerró el circuito %1.</translation>
    </message>
    <message>
        <source>&quot;launch&quot; needs an &quot;app&quot;, an absolute path.</source>
        <translation>«launch» necesita «app», una ruta absoluta.</translation>
    </message>
    <message>
        <source>Veldmark stopped before it had answered.</source>
        <translation>Veldmark se detuvo antes de responder.</translation>
    </message>
    <message>
        <source>Veldmark is already running (process %1).</source>
        <translation>Veldmark ya se está ejecutando (proceso %1).</translation>
    </message>
    <message>
        <source>%1 must be a folder of your own with mode 0700: the control socket goes there.</source>
        <translation>%1 debe ser una carpeta suya con modo 0700: allí va el socket de control.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1/lock.</source>
        <translation>No se pudo escribir %1/lock.</translation>
    </message>
    <message>
        <source>Couldn&apos;t listen on %1: %2.</source>
        <translation>No se pudo escuchar en %1: %2.</translation>
    </message>
    <message>
        <source>A command is a JSON object on one line.</source>
        <translation>Un comando es un objeto JSON en una línea.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Comando desconocido: «%1».</translation>
    </message>
    <message>
        <source>Not connected.</source>
        <translation>Sin conexión.</translation>
    </message>
    <message>
        <source>The session has ended: %1</source>
        <translation>La sesión ha terminado: %1</translation>
    </message>
    <message>
        <source>as JSON</source>
        <translation>como JSON</translation>
    </message>
    <message>
        <source>connect at once</source>
        <translation>conectar de inmediato</translation>
    </message>
    <message>
        <source>run Veldmark here, in the foreground; Ctrl-C disconnects</source>
        <translation>ejecutar Veldmark aquí, en primer plano; Ctrl-C desconecta</translation>
    </message>
    <message>
        <source>go on until Ctrl-C</source>
        <translation>continuar hasta Ctrl-C</translation>
    </message>
    <message>
        <source>print the connection&apos;s state; --watch goes on until Ctrl-C</source>
        <translation>mostrar el estado de la conexión; --watch continúa hasta Ctrl-C</translation>
    </message>
    <message>
        <source>connect the running instance to Tor</source>
        <translation>conectar a Tor el Veldmark en ejecución</translation>
    </message>
    <message>
        <source>restore the network and stop Tor</source>
        <translation>restaurar la red y detener Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor, also after a crash</source>
        <translation>restaurar la red y detener Tor, también tras un cierre inesperado</translation>
    </message>
    <message>
        <source>check the exit address, the direct path and DNS now</source>
        <translation>comprobar ahora la dirección de salida, la vía directa y el DNS</translation>
    </message>
    <message>
        <source>point the system&apos;s DNS settings at Tor again</source>
        <translation>volver a apuntar a Tor la configuración DNS del sistema</translation>
    </message>
    <message>
        <source>Tor&apos;s circuits and the sites on them</source>
        <translation>los circuitos de Tor y sus sitios</translation>
    </message>
    <message>
        <source>close a circuit; its sites get a fresh path on their next request</source>
        <translation>cerrar un circuito; sus sitios tendrán una ruta nueva en su próxima solicitud</translation>
    </message>
    <message>
        <source>close-circuit needs a circuit&apos;s number; &quot;veldmarkctl circuits&quot; shows them.</source>
        <translation>close-circuit necesita el número de un circuito; «veldmarkctl circuits» los muestra.</translation>
    </message>
    <message>
        <source>new circuits for everything</source>
        <translation>circuitos nuevos para todo</translation>
    </message>
    <message>
        <source>warnings and errors only</source>
        <translation>solo advertencias y errores</translation>
    </message>
    <message>
        <source>Tor&apos;s log; --problems shows warnings and errors only</source>
        <translation>el registro de Tor; --problems muestra solo advertencias y errores</translation>
    </message>
    <message>
        <source>the bridge programs and built-in bridges that were found, and
which of your own bridge lines are not valid</source>
        <translation>los programas de puente y los puentes integrados que se encontraron, y
qué líneas de puentes propios no son válidas</translation>
    </message>
    <message>
        <source>fetch the Tor Project&apos;s bridge programs and built-in bridges</source>
        <translation>obtener los programas de puente y los puentes integrados del Proyecto Tor</translation>
    </message>
    <message>
        <source>the installed applications; * marks those in the setting &quot;bypassApps&quot;</source>
        <translation>las aplicaciones instaladas; * marca las del ajuste «bypassApps»</translation>
    </message>
    <message>
        <source>open an application without Tor, with your own address; needs strict mode.
APP is a name from &quot;apps&quot;, the file name of its desktop entry, or the path
of an entry or a program. Running copies are asked to quit first</source>
        <translation>abrir una aplicación sin Tor, con su dirección real; requiere el modo estricto.
APP es un nombre de «apps», el nombre de archivo de su entrada de escritorio,
o la ruta de una entrada o programa; pide antes a las copias abiertas cerrarse</translation>
    </message>
    <message>
        <source>launch needs an application; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>launch necesita una aplicación; «veldmarkctl apps» las muestra.</translation>
    </message>
    <message>
        <source>check what a connect needs on this computer, what blocks it and how to fix
it. Changes nothing; the exit status is 0 when a connect can work</source>
        <translation>examinar este equipo: qué necesita una conexión, qué la impide y cómo se
resuelve. No cambia nada; termina con 0 si la conexión es posible</translation>
    </message>
    <message>
        <source>print a field of &quot;status --json&quot;</source>
        <translation>mostrar un campo de «status --json»</translation>
    </message>
    <message>
        <source>change a setting; most of them only while not connected</source>
        <translation>cambiar un ajuste; la mayoría, solo sin conexión</translation>
    </message>
    <message>
        <source>Can&apos;t read Tor&apos;s log</source>
        <translation>No se puede leer el registro de Tor</translation>
    </message>
    <message>
        <source>The log files in %1 aren&apos;t readable by your account. Reconnect once with this version of Veldmark to fix their permissions.</source>
        <translation>Su cuenta no puede leer los archivos de registro en %1. Vuelva a conectarse una vez con esta versión de Veldmark para corregir sus permisos.</translation>
    </message>
    <message>
        <source>No log yet</source>
        <translation>Aún no hay registro</translation>
    </message>
    <message>
        <source>Connect, and Tor&apos;s messages appear here as it starts. If Tor fails to start, the reason shows up here.</source>
        <translation>Al conectarse, aquí aparecen los mensajes de Tor mientras arranca. Si Tor no consigue arrancar, aquí se ve el motivo.</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>Sin coincidencias</translation>
    </message>
    <message>
        <source>No lines contain “%1”</source>
        <translation>Ninguna línea contiene «%1»</translation>
    </message>
    <message>
        <source>No warnings or errors. Tor is happy.</source>
        <translation>Sin advertencias ni errores. Tor va bien.</translation>
    </message>
    <message>
        <source>The bridge program %1 reports: %2</source>
        <translation>El programa de puente %1 informa: %2</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly.</source>
        <translation>El programa de puente %1 terminó inesperadamente.</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending.</source>
        <translation>El programa de puente %1 termina una y otra vez.</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly (exit status %2).</source>
        <translation>El programa de puente %1 terminó inesperadamente (código de salida %2).</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending (exit status %2).</source>
        <translation>El programa de puente %1 termina una y otra vez (código de salida %2).</translation>
    </message>
    <message>
        <source>It said: &quot;%1&quot;.</source>
        <translation>Su mensaje: «%1».</translation>
    </message>
    <message>
        <source>The program is quitting.</source>
        <translation>El programa se está cerrando.</translation>
    </message>
    <message>
        <source>Veldmark replaces the running strict session. The new session may protect you less.</source>
        <translation>Veldmark reemplaza la sesión estricta en curso. La nueva sesión puede protegerle menos.</translation>
    </message>
    <message>
        <source>Veldmark wants to run %1 as a part of Tor. No package of the system installed it. Its SHA-256 is %2.</source>
        <translation>Veldmark quiere ejecutar %1 como parte de Tor. No procede de ningún paquete del sistema. Su SHA-256 es %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be created: %2.</source>
        <translation>No se puede crear %1: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed: %2.</source>
        <translation>No se puede quitar %1: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>No se puede leer %1: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2.</source>
        <translation>No se puede escribir %1: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 no es un archivo.</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 es de solo lectura.</translation>
    </message>
    <message>
        <source>%1 was changed by another program just now.</source>
        <translation>Otro programa acaba de cambiar %1.</translation>
    </message>
    <message>
        <source>%1 belongs to another user or group.</source>
        <translation>%1 pertenece a otro usuario o grupo.</translation>
    </message>
    <message>
        <source>A bridge line is not valid.</source>
        <translation>Una línea de puente no es válida.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your network settings.</source>
        <translation>Un registro de la configuración de red anterior estaba dañado (%1). La red vuelve a estar abierta; revise su configuración de red.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your proxy settings.</source>
        <translation>Un registro de la configuración de red anterior estaba dañado (%1). La red vuelve a estar abierta; revise su configuración de proxy.</translation>
    </message>
    <message>
        <source>An administrator password is needed to approve %1.</source>
        <translation>Se necesita una contraseña de administrador para aprobar %1.</translation>
    </message>
    <message>
        <source>An administrator password is needed to change the running strict session.</source>
        <translation>Se necesita una contraseña de administrador para cambiar la sesión estricta en curso.</translation>
    </message>
    <message>
        <source>An administrator password is needed to open an application without Tor.</source>
        <translation>Se necesita una contraseña de administrador para abrir una aplicación sin Tor.</translation>
    </message>
    <message>
        <source>An administrator password is needed to set this up.</source>
        <translation>Se necesita una contraseña de administrador para configurar esto.</translation>
    </message>
    <message>
        <source>Another program (process %1) has started a session meanwhile. That session was left alone.</source>
        <translation>Otro programa (proceso %1) ha iniciado una sesión entretanto. Esa sesión no se tocó.</translation>
    </message>
    <message>
        <source>Another run of the helper is still working. Try again in a moment.</source>
        <translation>El programa auxiliar aún trabaja en otra tarea. Inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>Applications are not opened as root.</source>
        <translation>Las aplicaciones no se abren como root.</translation>
    </message>
    <message>
        <source>The helper opens applications only for the user who asks.</source>
        <translation>El programa auxiliar solo abre aplicaciones para el usuario que lo pide.</translation>
    </message>
    <message>
        <source>Applications cannot be opened without Tor on this system.</source>
        <translation>En este sistema no se pueden abrir aplicaciones sin Tor.</translation>
    </message>
    <message>
        <source>More than %1 bridges were given.</source>
        <translation>Se indicaron más de %1 puentes.</translation>
    </message>
    <message>
        <source>Passwordless mode can be set up only for the user who asks.</source>
        <translation>El modo sin contraseña solo se puede configurar para el usuario que lo pide.</translation>
    </message>
    <message>
        <source>Another program is changing the firewall. Try again in a moment.</source>
        <translation>Otro programa está cambiando el cortafuegos. Inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>The DNS servers of systemd-resolved cannot be changed.</source>
        <translation>No se pueden cambiar los servidores DNS de systemd-resolved.</translation>
    </message>
    <message>
        <source>The DNS settings cannot be changed.</source>
        <translation>No se puede cambiar la configuración DNS.</translation>
    </message>
    <message>
        <source>The DNS settings could not be put back.</source>
        <translation>No se pudo restablecer la configuración DNS.</translation>
    </message>
    <message>
        <source>The account %1 cannot be created.</source>
        <translation>No se puede crear la cuenta %1.</translation>
    </message>
    <message>
        <source>The account %1 has no valid user id.</source>
        <translation>La cuenta %1 no tiene un id de usuario válido.</translation>
    </message>
    <message>
        <source>The account %1 must be neither root&apos;s nor the caller&apos;s.</source>
        <translation>La cuenta %1 no debe ser la de root ni la del usuario que lo solicita.</translation>
    </message>
    <message>
        <source>The application could not be started.</source>
        <translation>No se pudo iniciar la aplicación.</translation>
    </message>
    <message>
        <source>The caller&apos;s user id is not a number.</source>
        <translation>El id de usuario del solicitante no es un número.</translation>
    </message>
    <message>
        <source>The control group for Tor cannot be made.</source>
        <translation>No se puede crear el grupo de control para Tor.</translation>
    </message>
    <message>
        <source>The control group of the applications without Tor could not be removed.</source>
        <translation>No se pudo quitar el grupo de control de las aplicaciones sin Tor.</translation>
    </message>
    <message>
        <source>The copy of the program cannot be put into %1.</source>
        <translation>No se puede poner en %1 la copia del programa.</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings cannot be changed.</source>
        <translation>No se puede cambiar la configuración de proxy del escritorio.</translation>
    </message>
    <message>
        <source>The exit country is not a two-letter code.</source>
        <translation>El país de salida no es un código de dos letras.</translation>
    </message>
    <message>
        <source>The file %1 cannot be made.</source>
        <translation>No se puede crear el archivo %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>No se puede leer el archivo %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed.</source>
        <translation>No se puede quitar el archivo %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>No se puede escribir el archivo %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be put back.</source>
        <translation>No se pudo restablecer el archivo %1.</translation>
    </message>
    <message>
        <source>The files in %1 cannot be removed.</source>
        <translation>No se pueden quitar los archivos de %1.</translation>
    </message>
    <message>
        <source>The firewall rules cannot be read, so nothing was done.</source>
        <translation>No se pueden leer las reglas del cortafuegos, así que no se hizo nada.</translation>
    </message>
    <message>
        <source>The firewall cannot be switched on (%1).</source>
        <translation>No se puede activar el cortafuegos (%1).</translation>
    </message>
    <message>
        <source>The firewall cannot end the earlier connections.</source>
        <translation>El cortafuegos no puede cortar las conexiones anteriores.</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off (%1).</source>
        <translation>No se pudo desactivar el bloqueo de emergencia (%1).</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off, because another program is changing the firewall.</source>
        <translation>No se pudo desactivar el bloqueo de emergencia, porque otro programa está cambiando el cortafuegos.</translation>
    </message>
    <message>
        <source>The firewall does not hold the rules that were loaded.</source>
        <translation>El cortafuegos no contiene las reglas que se cargaron.</translation>
    </message>
    <message>
        <source>The firewall gave no token.</source>
        <translation>El cortafuegos no devolvió ningún token.</translation>
    </message>
    <message>
        <source>The firewall leaves out the network device %1 (&quot;set skip&quot; in /etc/pf.conf), where nothing would be blocked.</source>
        <translation>El cortafuegos omite el dispositivo de red %1 («set skip» en /etc/pf.conf), donde no se bloquearía nada.</translation>
    </message>
    <message>
        <source>The firewall rules were not accepted (%1).</source>
        <translation>No se aceptaron las reglas del cortafuegos (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s devices cannot be read.</source>
        <translation>No se pueden leer los dispositivos del cortafuegos.</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be changed (%1).</source>
        <translation>No se pueden cambiar las reglas principales del cortafuegos (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be read.</source>
        <translation>No se pueden leer las reglas principales del cortafuegos.</translation>
    </message>
    <message>
        <source>The firewall&apos;s state cannot be read.</source>
        <translation>No se puede leer el estado del cortafuegos.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be changed.</source>
        <translation>No se puede cambiar la carpeta %1.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>No se puede escribir en la carpeta %1.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it and those above it.</source>
        <translation>La carpeta %1 no es segura: ella y las superiores deben pertenecer solo a root y solo root debe poder escribir en ellas.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it.</source>
        <translation>La carpeta %1 no es segura: debe pertenecer solo a root y solo root debe poder escribir en ella.</translation>
    </message>
    <message>
        <source>The folder /etc/sudoers.d is missing or not safe.</source>
        <translation>La carpeta /etc/sudoers.d falta o no es segura.</translation>
    </message>
    <message>
        <source>The folders above Veldmark&apos;s are not safe: only root may own or write them.</source>
        <translation>Las carpetas superiores a la de Veldmark no son seguras: deben pertenecer solo a root y solo root debe poder escribir en ellas.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read, so nothing was done.</source>
        <translation>No se pueden leer las carpetas dentro de %1, así que no se hizo nada.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read.</source>
        <translation>No se pueden leer las carpetas dentro de %1.</translation>
    </message>
    <message>
        <source>The former network settings could not all be restored.</source>
        <translation>No se pudo restaurar toda la configuración de red anterior.</translation>
    </message>
    <message>
        <source>The hashed control password is not valid.</source>
        <translation>El hash de la contraseña de control no es válido.</translation>
    </message>
    <message>
        <source>The helper could not be copied to %1.</source>
        <translation>No se pudo copiar el programa auxiliar en %1.</translation>
    </message>
    <message>
        <source>The helper must run as root.</source>
        <translation>El programa auxiliar debe ejecutarse como root.</translation>
    </message>
    <message>
        <source>The helper stopped unexpectedly.</source>
        <translation>El programa auxiliar se detuvo inesperadamente.</translation>
    </message>
    <message>
        <source>The helper was given an option that it does not know.</source>
        <translation>El programa auxiliar recibió una opción que no conoce.</translation>
    </message>
    <message>
        <source>The helper does not know this verb.</source>
        <translation>El programa auxiliar no conoce este comando.</translation>
    </message>
    <message>
        <source>The record of the former network settings cannot be written.</source>
        <translation>No se puede escribir el registro de la configuración de red anterior.</translation>
    </message>
    <message>
        <source>The kill switch is not on, so no application needs to bypass it.</source>
        <translation>El bloqueo de emergencia no está activado, así que ninguna aplicación necesita eludirlo.</translation>
    </message>
    <message>
        <source>The launcher could not be copied to %1.</source>
        <translation>No se pudo copiar el lanzador en %1.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be opened.</source>
        <translation>No se puede abrir el archivo de bloqueo %1.</translation>
    </message>
    <message>
        <source>The lock file %1 is a link, so nothing was done.</source>
        <translation>El archivo de bloqueo %1 es un enlace, así que no se hizo nada.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back.</source>
        <translation>La red vuelve a estar abierta, pero no se pudieron restablecer los servidores DNS de systemd-resolved.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back. Try: systemctl restart %1.</source>
        <translation>La red vuelve a estar abierta, pero no se pudieron restablecer los servidores DNS de systemd-resolved. Pruebe: systemctl restart %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the desktop&apos;s proxy settings could not be put back.</source>
        <translation>La red vuelve a estar abierta, pero no se pudo restablecer la configuración de proxy del escritorio.</translation>
    </message>
    <message>
        <source>The network is open again, but the journal in %1 cannot be cleared.</source>
        <translation>La red vuelve a estar abierta, pero no se puede vaciar el diario de cambios en %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the session marker cannot be removed from %1.</source>
        <translation>La red vuelve a estar abierta, pero no se puede quitar de %1 la marca de sesión.</translation>
    </message>
    <message>
        <source>The network is open again, but the system&apos;s own Tor service could not be started again. Try: systemctl start %1.</source>
        <translation>La red vuelve a estar abierta, pero no se pudo iniciar de nuevo el servicio Tor del propio sistema. Pruebe: systemctl start %1.</translation>
    </message>
    <message>
        <source>The network is open, but pf could not be released.</source>
        <translation>La red está abierta, pero no se pudo liberar pf.</translation>
    </message>
    <message>
        <source>The network is open, but the firewall&apos;s main rules could not be put back.</source>
        <translation>La red está abierta, pero no se pudieron restablecer las reglas principales del cortafuegos.</translation>
    </message>
    <message>
        <source>The network location %1 still has Veldmark&apos;s settings. Choose it and disconnect again.</source>
        <translation>La ubicación de red %1 aún tiene la configuración de Veldmark. Selecciónela y desconéctese de nuevo.</translation>
    </message>
    <message>
        <source>The network settings cannot be read.</source>
        <translation>No se puede leer la configuración de red.</translation>
    </message>
    <message>
        <source>The network stays blocked until you disconnect.</source>
        <translation>La red sigue bloqueada hasta que se desconecte.</translation>
    </message>
    <message>
        <source>The notes of what to restore cannot be read.</source>
        <translation>No se pueden leer las notas de lo que hay que restaurar.</translation>
    </message>
    <message>
        <source>The option %1 needs a value.</source>
        <translation>La opción %1 necesita un valor.</translation>
    </message>
    <message>
        <source>The option %1 was given twice.</source>
        <translation>La opción %1 se indicó dos veces.</translation>
    </message>
    <message>
        <source>The option --app is missing.</source>
        <translation>Falta la opción --app.</translation>
    </message>
    <message>
        <source>The option --hash is missing.</source>
        <translation>Falta la opción --hash.</translation>
    </message>
    <message>
        <source>The option --lan is missing.</source>
        <translation>Falta la opción --lan.</translation>
    </message>
    <message>
        <source>The option --program is missing.</source>
        <translation>Falta la opción --program.</translation>
    </message>
    <message>
        <source>The option --strict is missing.</source>
        <translation>Falta la opción --strict.</translation>
    </message>
    <message>
        <source>The option --tor is missing.</source>
        <translation>Falta la opción --tor.</translation>
    </message>
    <message>
        <source>The option --uid is missing.</source>
        <translation>Falta la opción --uid.</translation>
    </message>
    <message>
        <source>The options on standard input are not complete.</source>
        <translation>Las opciones de la entrada estándar no están completas.</translation>
    </message>
    <message>
        <source>The path given with %1 is not absolute.</source>
        <translation>La ruta indicada con %1 no es absoluta.</translation>
    </message>
    <message>
        <source>The path given with --app is not absolute.</source>
        <translation>La ruta indicada con --app no es absoluta.</translation>
    </message>
    <message>
        <source>The path given with --app names no application.</source>
        <translation>La ruta indicada con --app no corresponde a ninguna aplicación.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2. End that program, then connect again.</source>
        <translation>El puerto %1, que Tor necesita, lo ocupa %2. Cierre ese programa y vuelva a conectarse.</translation>
    </message>
    <message>
        <source>a program (process %1)</source>
        <translation>un programa (proceso %1)</translation>
    </message>
    <message>
        <source>a program of the account with the id %1</source>
        <translation>un programa de la cuenta con id %1</translation>
    </message>
    <message>
        <source>The process id is not valid.</source>
        <translation>El id de proceso no es válido.</translation>
    </message>
    <message>
        <source>The program %1 cannot be copied.</source>
        <translation>No se puede copiar el programa %1.</translation>
    </message>
    <message>
        <source>The program %1 cannot be found.</source>
        <translation>No se encuentra el programa %1.</translation>
    </message>
    <message>
        <source>The program %1 is missing on this system.</source>
        <translation>Falta el programa %1 en este sistema.</translation>
    </message>
    <message>
        <source>The SHA-256 of the program %1 differs from the one to approve.</source>
        <translation>El SHA-256 del programa %1 no es el que se va a aprobar.</translation>
    </message>
    <message>
        <source>The program given with %1 is not an executable file.</source>
        <translation>El programa indicado con %1 no es un archivo ejecutable.</translation>
    </message>
    <message>
        <source>The program veldmark-launch is missing.</source>
        <translation>Falta el programa veldmark-launch.</translation>
    </message>
    <message>
        <source>The session marker cannot be written.</source>
        <translation>No se puede escribir la marca de sesión.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be changed.</source>
        <translation>No se puede cambiar la configuración del servicio de red %1.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be read.</source>
        <translation>No se puede leer la configuración del servicio de red %1.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 could not be put back.</source>
        <translation>No se pudo restablecer la configuración del servicio de red %1.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall cannot be used (%1).</source>
        <translation>No se puede usar el cortafuegos del sistema (%1).</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) cannot be stopped.</source>
        <translation>No se puede detener el servicio Tor del propio sistema (%1).</translation>
    </message>
    <message>
        <source>The user %1 is not known on this system.</source>
        <translation>El usuario %1 no existe en este sistema.</translation>
    </message>
    <message>
        <source>The user id is not a number.</source>
        <translation>El id de usuario no es un número.</translation>
    </message>
    <message>
        <source>The user name is not valid.</source>
        <translation>El nombre de usuario no es válido.</translation>
    </message>
    <message>
        <source>The user root needs no password for the helper.</source>
        <translation>El usuario root no necesita contraseña para el programa auxiliar.</translation>
    </message>
    <message>
        <source>The user with the id %1 is not known on this system.</source>
        <translation>El usuario con id %1 no existe en este sistema.</translation>
    </message>
    <message>
        <source>The value of %1 contains control characters.</source>
        <translation>El valor de %1 contiene caracteres de control.</translation>
    </message>
    <message>
        <source>The value of %1 is too long.</source>
        <translation>El valor de %1 es demasiado largo.</translation>
    </message>
    <message>
        <source>The value of --as must be tor, lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>El valor de --as debe ser tor, lyrebird, snowflake-client o webtunnel-client.</translation>
    </message>
    <message>
        <source>The value of --lan must be 0 or 1.</source>
        <translation>El valor de --lan debe ser 0 o 1.</translation>
    </message>
    <message>
        <source>The value of --sha256 must be 64 small hexadecimal digits.</source>
        <translation>El valor de --sha256 debe ser de 64 dígitos hexadecimales en minúscula.</translation>
    </message>
    <message>
        <source>The value of --strict must be 0 or 1.</source>
        <translation>El valor de --strict debe ser 0 o 1.</translation>
    </message>
    <message>
        <source>The verb fix-dns takes no options.</source>
        <translation>El comando fix-dns no admite opciones.</translation>
    </message>
    <message>
        <source>The verb uninstall-privileged takes no options.</source>
        <translation>El comando uninstall-privileged no admite opciones.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be started.</source>
        <translation>No se pudo iniciar el vigilante de las reglas del cortafuegos.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be stopped.</source>
        <translation>No se pudo detener el vigilante de las reglas del cortafuegos.</translation>
    </message>
    <message>
        <source>There are too many options on standard input.</source>
        <translation>Hay demasiadas opciones en la entrada estándar.</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which was not given.</source>
        <translation>Estos puentes necesitan lyrebird, que no se indicó.</translation>
    </message>
    <message>
        <source>These bridges need snowflake-client, which was not given.</source>
        <translation>Estos puentes necesitan snowflake-client, que no se indicó.</translation>
    </message>
    <message>
        <source>This helper is made for another system.</source>
        <translation>Este programa auxiliar es para otro sistema.</translation>
    </message>
    <message>
        <source>Tor could not be started (%1).</source>
        <translation>No se pudo iniciar Tor (%1).</translation>
    </message>
    <message>
        <source>Tor could not be stopped.</source>
        <translation>No se pudo detener Tor.</translation>
    </message>
    <message>
        <source>Tor did not open its control port in time.</source>
        <translation>Tor no abrió a tiempo su puerto de control.</translation>
    </message>
    <message>
        <source>Tor did not start: %1</source>
        <translation>Tor no arrancó: %1</translation>
    </message>
    <message>
        <source>Tor does not accept its configuration: %1</source>
        <translation>Tor no acepta su configuración: %1</translation>
    </message>
    <message>
        <source>it ended without a message.</source>
        <translation>terminó sin ningún mensaje.</translation>
    </message>
    <message>
        <source>Tor&apos;s log files cannot be made.</source>
        <translation>No se pueden crear los archivos de registro de Tor.</translation>
    </message>
    <message>
        <source>Two different callers were reported, so nothing was done.</source>
        <translation>Se indicaron dos solicitantes distintos, así que no se hizo nada.</translation>
    </message>
    <message>
        <source>Veldmark is in use by %1. An administrator password is needed to end that session.</source>
        <translation>%1 está usando Veldmark. Se necesita una contraseña de administrador para terminar esa sesión.</translation>
    </message>
    <message>
        <source>Veldmark is not connected, so the DNS settings were left alone.</source>
        <translation>Veldmark no está conectado, así que no se tocó la configuración DNS.</translation>
    </message>
    <message>
        <source>sudo rejects the rule for passwordless mode.</source>
        <translation>sudo rechaza la regla del modo sin contraseña.</translation>
    </message>
    <message>
        <source>sudo is not installed on this system.</source>
        <translation>sudo no está instalado en este sistema.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read.</source>
        <translation>No se puede leer la entrada de escritorio.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read (%1).</source>
        <translation>No se puede leer la entrada de escritorio (%1).</translation>
    </message>
    <message>
        <source>The desktop entry names no program that is installed.</source>
        <translation>La entrada de escritorio no indica ningún programa instalado.</translation>
    </message>
    <message>
        <source>The application could not be started (%1).</source>
        <translation>No se pudo iniciar la aplicación (%1).</translation>
    </message>
    <message>
        <source>There is no such application or program.</source>
        <translation>No existe tal aplicación o programa.</translation>
    </message>
    <message>
        <source>The program could not be started.</source>
        <translation>No se pudo iniciar el programa.</translation>
    </message>
    <message>
        <source>The program could not be started (%1).</source>
        <translation>No se pudo iniciar el programa (%1).</translation>
    </message>
    <message>
        <source>The user is not known on this system.</source>
        <translation>El usuario no existe en este sistema.</translation>
    </message>
    <message>
        <source>There is no application at %1.</source>
        <translation>No hay ninguna aplicación en %1.</translation>
    </message>
    <message>
        <source>The home folder cannot be entered.</source>
        <translation>No se puede entrar en la carpeta personal.</translation>
    </message>
    <message>
        <source>nft doesn&apos;t answer.</source>
        <translation>nft no responde.</translation>
    </message>
    <message>
        <source>nft fails.</source>
        <translation>nft falla.</translation>
    </message>
    <message>
        <source>Ended because the display is gone. Your network is still set up for Tor: start Veldmark again, or restore the network with: %1</source>
        <translation>Terminado al quedarse sin pantalla. Su red sigue configurada para Tor: inicie Veldmark de nuevo o restaure la red con: %1</translation>
    </message>
    <message>
        <source>your package manager</source>
        <translation>su gestor de paquetes</translation>
    </message>
    <message>
        <source>The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo %1 on.</source>
        <translation>La red vuelve a estar abierta, pero el dispositivo loopback no se pudo configurar como antes. Pruebe: ethtool -K lo %1 on.</translation>
    </message>
    <message>
        <source>This system can&apos;t tell applications apart.</source>
        <translation>Este sistema no puede distinguir las aplicaciones.</translation>
    </message>
    <message>
        <source>Applications are not separated now: they share circuits.</source>
        <translation>Ahora las aplicaciones no están separadas: comparten circuitos.</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>usuario %1</translation>
    </message>
    <message>
        <source>No application has an identity of its own now.</source>
        <translation>Ahora ninguna aplicación tiene una identidad propia.</translation>
    </message>
    <message>
        <source>No application of yours has that identity; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>Ninguna aplicación suya tiene esa identidad; «veldmarkctl identities» las muestra.</translation>
    </message>
    <message>
        <source>The application did not get a new identity.</source>
        <translation>La aplicación no obtuvo una identidad nueva.</translation>
    </message>
    <message>
        <source>The program did not get an identity of its own, so it was not started.</source>
        <translation>El programa no obtuvo una identidad propia, así que no se inició.</translation>
    </message>
    <message>
        <source>A name has up to 40 letters, digits, dots and underscores.</source>
        <translation>Un nombre tiene hasta 40 letras, dígitos, puntos y guiones bajos.</translation>
    </message>
    <message>
        <source>The program systemd-run is missing. Veldmark needs it to make a group for a program.</source>
        <translation>Falta el programa systemd-run. Veldmark lo necesita para crear un grupo para un programa.</translation>
    </message>
    <message>
        <source>The program could not be started: %1.</source>
        <translation>No se pudo iniciar el programa: %1.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>each application has circuits of its own</source>
        <translation>cada aplicación tiene circuitos propios</translation>
    </message>
    <message>
        <source>the applications that have circuits of their own, and the loopback address
by which Tor distinguishes them</source>
        <translation>las aplicaciones que tienen circuitos propios y la dirección de loopback
por la que Tor distingue cada una de las demás</translation>
    </message>
    <message>
        <source>new circuits for one application, from its next connection on; APP is as
&quot;identities&quot; names it</source>
        <translation>circuitos nuevos para una aplicación, desde su próxima conexión; APP es
como la nombra «identities»</translation>
    </message>
    <message>
        <source>renew needs an application; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>renew necesita una aplicación; «veldmarkctl identities» las muestra.</translation>
    </message>
    <message>
        <source>run a program (after --) with circuits of its own; a later run with the same
name in the same session has the same ones</source>
        <translation>ejecutar un programa (tras --) con circuitos propios; si se repite después con
el mismo nombre en la misma sesión, tiene los mismos</translation>
    </message>
    <message>
        <source>run-as needs a name and a program: veldmarkctl run-as NAME -- PROGRAM.</source>
        <translation>run-as necesita un nombre y un programa: veldmarkctl run-as NAME -- PROGRAM.</translation>
    </message>
    <message>
        <source>The table of the applications&apos; identities could not be removed (%1).</source>
        <translation>No se pudo quitar la tabla de identidades de las aplicaciones (%1).</translation>
    </message>
    <message>
        <source>The value of --separate must be 0 or 1.</source>
        <translation>El valor de --separate debe ser 0 o 1.</translation>
    </message>
    <message>
        <source>No package of the system installed %1. The next connect asks an administrator to approve it.</source>
        <translation>%1 no procede de ningún paquete del sistema. En la próxima conexión se pide a un administrador que lo apruebe.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether a connect can work.</source>
        <translation>No se sabe si la conexión es posible.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, and none of its rules allows any, so Tor can&apos;t get through: %1.</source>
        <translation>Otro cortafuegos de este equipo bloquea el tráfico saliente y ninguna de sus reglas lo permite, así que Tor no puede pasar: %1.</translation>
    </message>
    <message>
        <source>Users other than root can change %1, so root doesn&apos;t run it to ask for its version.</source>
        <translation>Otros usuarios además de root pueden cambiar %1, así que root no lo ejecuta para preguntar su versión.</translation>
    </message>
    <message>
        <source>Type %1 to approve it, anything else to refuse.</source>
        <translation>Escriba %1 para aprobarlo o cualquier otra cosa para rechazarlo.</translation>
    </message>
    <message>
        <source>%1 was not approved.</source>
        <translation>%1 no se aprobó.</translation>
    </message>
    <message>
        <source>%1 is not a program of the system, so an administrator has to approve it, but this command has no terminal to ask on. Run &quot;sudo veldmarkctl run --connect&quot; in a terminal.</source>
        <translation>%1 no es un programa del sistema, por lo que un administrador tiene que aprobarlo, pero este comando no tiene ningún terminal donde preguntarlo. Ejecute «sudo veldmarkctl run --connect» en un terminal.</translation>
    </message>
    <message>
        <source>%1 needs the name of a file.</source>
        <translation>%1 necesita el nombre de un archivo.</translation>
    </message>
    <message>
        <source>It doesn&apos;t answer.</source>
        <translation>No responde.</translation>
    </message>
    <message>
        <source>This report goes to %1.</source>
        <translation>Este informe se escribe en %1.</translation>
    </message>
    <message>
        <source>write it into a new file too</source>
        <translation>escribirlo también en un archivo nuevo</translation>
    </message>
    <message>
        <source>The report can&apos;t be written to %1: %2</source>
        <translation>No se puede escribir el informe en %1: %2</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a regular file. Choose another name for the report.</source>
        <translation>%1 no es un archivo normal. Elija otro nombre para el informe.</translation>
    </message>
    <message>
        <source>%1 exists already. Choose another name for the report.</source>
        <translation>%1 ya existe. Elija otro nombre para el informe.</translation>
    </message>
    <message>
        <source>The running instance gave no state: %1</source>
        <translation>La instancia en ejecución no dio su estado: %1</translation>
    </message>
    <message>
        <source>a report for those who help you: settings, findings and log without addresses,
names, bridges and keys. Nothing sends it. Look through it before you give it
away</source>
        <translation>un informe para quienes le ayudan: ajustes, hallazgos y registro sin
direcciones, nombres, puentes ni claves. Nada lo envía. Revíselo antes de
entregarlo</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>There is no bridge in %1.</source>
        <translation>No hay ningún puente en %1.</translation>
    </message>
    <message>
        <source>added: %1</source>
        <translation>añadido: %1</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>ya estaba: %1</translation>
    </message>
    <message>
        <source>add the bridges in a text to your own: in bridge lines, a whole e-mail or
a web page. FILE &quot;-&quot; is standard input</source>
        <translation>añadir a los suyos los puentes de un texto: líneas de puentes, un correo
entero o una página web. FILE «-» es la entrada estándar</translation>
    </message>
    <message>
        <source>add-bridges needs a file; &quot;-&quot; is standard input.</source>
        <translation>add-bridges necesita un archivo; «-» es la entrada estándar.</translation>
    </message>
    <message>
        <source>The filter before Tor&apos;s control port cannot be used.</source>
        <translation>No se puede usar el filtro que protege el puerto de control de Tor.</translation>
    </message>
    <message numerus="yes">
        <source>Testing %n bridges…</source>
        <translation>
            <numerusform>Probando %n puente…</numerusform>
            <numerusform>Probando %n puentes…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 for *.%2</source>
        <translation>%1 para *.%2</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Directo</translation>
    </message>
    <message>
        <source>Your bridges</source>
        <translation>Sus puentes</translation>
    </message>
    <message>
        <source>(%1 s)</source>
        <translation>(%1 s)</translation>
    </message>
    <message>
        <source>Tried</source>
        <translation>Probado</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Oferta</translation>
    </message>
    <message>
        <source>Try them with: %1</source>
        <translation>Pruébelos con: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of ask, always and never.</source>
        <translation>«%1» no es ask, always ni never.</translation>
    </message>
    <message>
        <source>Refused, or out of reach.</source>
        <translation>Rechazado o fuera de alcance.</translation>
    </message>
    <message>
        <source>Something answered, but Tor made no further progress.</source>
        <translation>Hubo una respuesta, pero Tor no avanzó más.</translation>
    </message>
    <message>
        <source>No answer.</source>
        <translation>Sin respuesta.</translation>
    </message>
    <message>
        <source>Tor has connected.</source>
        <translation>Tor se ha conectado.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Tried: %1.</source>
        <translation>Tor no avanza en esta red. Probado: %1.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Veldmark can try bridges: %1.</source>
        <translation>Tor no avanza en esta red. Veldmark puede probar puentes: %1.</translation>
    </message>
    <message>
        <source>Being tried…</source>
        <translation>Probando…</translation>
    </message>
    <message>
        <source>Tor did not accept these bridges.</source>
        <translation>Tor no aceptó estos puentes.</translation>
    </message>
    <message>
        <source>No bridges are offered now.</source>
        <translation>Ahora no se ofrece ningún puente.</translation>
    </message>
    <message>
        <source>whether bridges are tried when Tor cannot connect</source>
        <translation>si se prueban puentes cuando Tor no avanza</translation>
    </message>
    <message>
        <source>try the bridges that are offered when Tor cannot connect, see &quot;status&quot;</source>
        <translation>probar los puentes que se ofrecen cuando Tor no avanza, véase «status»</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Circuitos</translation>
    </message>
</context>
<context>
    <name>veldmark::Tray</name>
    <message>
        <source>Open Veldmark</source>
        <translation>Abrir Veldmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
</context>
<context>
    <name>veldmark::Windows</name>
    <message>
        <source>Select the tor executable</source>
        <translation>Seleccione el ejecutable de tor</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Elija las aplicaciones que pueden conectarse sin Tor en modo estricto</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicaciones</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Guardar el informe</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AboutPane</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
    <message>
        <source>The Tor Project</source>
        <translation>O Projeto Tor</translation>
    </message>
    <message>
        <source>The network and pluggable transports Veldmark builds on</source>
        <translation>A rede e os transportes plugáveis nos quais o Veldmark se baseia</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>Créditos</translation>
    </message>
    <message>
        <source>Homepage, downloads and updates</source>
        <translation>Página do projeto, downloads e atualizações</translation>
    </message>
    <message>
        <source>Sends this computer&apos;s traffic through Tor, all of it in strict mode and that of apps that use the system proxy in proxy mode, and shows whether it really does.</source>
        <translation>Envia o tráfego deste computador pelo Tor (todo ele no modo estrito; no modo proxy, o dos aplicativos que usam o proxy do sistema) e mostra se isso está mesmo acontecendo.</translation>
    </message>
    <message>
        <source>Veldmark is made with Qt, QCoro and tl::expected.</source>
        <translation>O Veldmark é feito com Qt, QCoro e tl::expected.</translation>
    </message>
</context>
<context>
    <name>ApplicationsSheet</name>
    <message>
        <source>App exceptions</source>
        <translation>Exceções de aplicativos</translation>
    </message>
    <message>
        <source>No apps yet. Add Zoom, Discord, a game…</source>
        <translation>Nenhum aplicativo ainda. Adicione o Zoom, o Discord, um jogo…</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Conecte no modo estrito para abrir aplicativos sem o Tor</translation>
    </message>
    <message>
        <source>Open without Tor</source>
        <translation>Abrir sem o Tor</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Adicionar…</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>BridgesPane</name>
    <message>
        <source>Bridges</source>
        <translation>Pontes</translation>
    </message>
    <message>
        <source>Programs that disguise your Tor connection</source>
        <translation>Programas que disfarçam sua conexão com o Tor</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Pontes integradas</translation>
    </message>
    <message>
        <source>Bridge addresses shipped with Tor</source>
        <translation>Endereços de pontes que vêm com o Tor</translation>
    </message>
    <message>
        <source>Tor Expert Bundle</source>
        <translation>Tor Expert Bundle</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Baixar</translation>
    </message>
    <message>
        <source>When Tor is blocked</source>
        <translation>Quando o Tor está bloqueado</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Desconecte para alterar</translation>
    </message>
    <message>
        <source>Tries the available bridges in turn, without another password</source>
        <translation>Testa as pontes disponíveis uma após a outra, sem outra senha</translation>
    </message>
</context>
<context>
    <name>BridgesSheet</name>
    <message>
        <source>Custom bridges</source>
        <translation>Pontes personalizadas</translation>
    </message>
    <message>
        <source>One bridge per line. Ask the Tor Project for bridges on its bridges page, by e-mail or through its Telegram bot, or use those of someone you trust. obfs4, webtunnel, Snowflake, meek and plain bridges are supported.</source>
        <translation>Uma ponte por linha. Peça pontes ao Projeto Tor na página de pontes dele, por e-mail ou pelo bot dele no Telegram, ou use as de alguém em quem você confia. São aceitas pontes obfs4, webtunnel, Snowflake, meek e pontes simples.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>There is no bridge in this file.</source>
        <translation>Este arquivo não contém nenhuma ponte.</translation>
    </message>
    <message>
        <source>Keep Only the Bridges</source>
        <translation>Manter só as pontes</translation>
    </message>
    <message>
        <source>Removes everything from the text but the bridges that were recognized</source>
        <translation>Remove do texto tudo, menos as pontes reconhecidas</translation>
    </message>
</context>
<context>
    <name>ChooserWindow</name>
    <message>
        <source>App exceptions</source>
        <translation>Exceções de aplicativos</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Escolha os aplicativos que podem ficar fora do Tor no modo estrito</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>Aplicativos instalados</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>Outro…</translation>
    </message>
    <message>
        <source>Choose the .desktop file of an application that is not listed</source>
        <translation>Escolhe o arquivo .desktop de um aplicativo que não está na lista</translation>
    </message>
</context>
<context>
    <name>CircuitsSidebar</name>
    <message>
        <source>ALL CIRCUITS</source>
        <translation>TODOS OS CIRCUITOS</translation>
    </message>
    <message>
        <source>No circuit selected</source>
        <translation>Nenhum circuito selecionado</translation>
    </message>
    <message>
        <source>New Circuit</source>
        <translation>Novo circuito</translation>
    </message>
    <message>
        <source>Close this circuit; its sites get a fresh path on their next request</source>
        <translation>Fecha este circuito; os sites dele ganham um novo caminho na próxima solicitação</translation>
    </message>
    <message>
        <source>Sites on this circuit get a fresh path. Other sites sharing it move too.</source>
        <translation>Os sites deste circuito ganham um novo caminho. Outros sites que o compartilham também mudam de caminho.</translation>
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
        <translation>Nova identidade</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Pede ao Tor novos circuitos e um novo IP de saída</translation>
    </message>
    <message>
        <source>Find Faster</source>
        <translation>Acelerar</translation>
    </message>
    <message>
        <source>Time a request through Tor and get fresh circuits if it&apos;s slow</source>
        <translation>Mede o tempo de uma solicitação pelo Tor e obtém novos circuitos se for lenta</translation>
    </message>
    <message>
        <source>Reading circuits…</source>
        <translation>Lendo os circuitos…</translation>
    </message>
    <message>
        <source>Connect to see your circuits</source>
        <translation>Conecte para ver seus circuitos</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>Conexão</translation>
    </message>
    <message>
        <source>Exit IP</source>
        <translation>IP de saída</translation>
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
        <translation>Vazamentos</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfego</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>Recebido: %1, enviado: %2</translation>
    </message>
    <message>
        <source>Traffic of the last two minutes</source>
        <translation>Tráfego dos últimos dois minutos</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>Nova identidade</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>Pede ao Tor novos circuitos e um novo IP de saída</translation>
    </message>
    <message>
        <source>Leak Test</source>
        <translation>Teste de vazamento</translation>
    </message>
    <message>
        <source>Check the exit IP and try a direct connection that skips Tor</source>
        <translation>Verifica o IP de saída e tenta uma conexão direta, sem passar pelo Tor</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>Circuitos</translation>
    </message>
    <message>
        <source>See the path your traffic takes: entry, middle and exit relays</source>
        <translation>Mostra o caminho do seu tráfego: relés de entrada, do meio e de saída</translation>
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
        <translation>Consultas DNS podem sair por fora do Tor</translation>
    </message>
    <message>
        <source>Fix DNS</source>
        <translation>Corrigir DNS</translation>
    </message>
    <message>
        <source>Re-test</source>
        <translation>Testar de novo</translation>
    </message>
</context>
<context>
    <name>DoctorSheet</name>
    <message>
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Examinar de novo</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Mostrar relatório</translation>
    </message>
    <message>
        <source>What others need to help you, without addresses, names and bridges</source>
        <translation>O que outras pessoas precisam para ajudar você, sem endereços, nomes nem pontes</translation>
    </message>
</context>
<context>
    <name>DownloadButton</name>
    <message>
        <source>Download</source>
        <translation>Baixar</translation>
    </message>
    <message>
        <source>Downloads the official Tor Expert Bundle from the Tor Project, for bridge programs and built-in bridges</source>
        <translation>Baixa o Tor Expert Bundle oficial do Projeto Tor, com programas de ponte e pontes integradas</translation>
    </message>
</context>
<context>
    <name>Footer</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Tor Log</source>
        <translation>Registro do Tor</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Startup and password prompts</source>
        <translation>Inicialização e pedidos de senha</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Inicialização</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Abrir ao fazer login</translation>
    </message>
    <message>
        <source>Veldmark starts when you log in</source>
        <translation>O Veldmark inicia quando você faz login</translation>
    </message>
    <message>
        <source>Connect automatically</source>
        <translation>Conectar automaticamente</translation>
    </message>
    <message>
        <source>Connect as soon as Veldmark opens</source>
        <translation>Conecta assim que o Veldmark abre</translation>
    </message>
    <message>
        <source>Password prompts</source>
        <translation>Pedidos de senha</translation>
    </message>
    <message>
        <source>Passwordless mode</source>
        <translation>Modo sem senha</translation>
    </message>
    <message>
        <source>Connect and Disconnect never ask</source>
        <translation>Conectar e Desconectar nunca pedem senha</translation>
    </message>
    <message>
        <source>Asks for your password each time</source>
        <translation>Pede sua senha toda vez</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>Desativar</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>Configurar…</translation>
    </message>
    <message>
        <source>Setup asks for your admin password once. It installs a root-owned copy of Veldmark&apos;s helper and a rule in /etc/sudoers.d that lets your account run only that helper, so Connect and Disconnect stop asking. Turn it off any time.</source>
        <translation>A configuração pede sua senha de administrador uma vez. Ela instala uma cópia do programa auxiliar do Veldmark, pertencente ao root, e uma regra em /etc/sudoers.d que autoriza sua conta a executar somente esse programa; assim, Conectar e Desconectar deixam de pedir a senha. Você pode desativar isso quando quiser.</translation>
    </message>
</context>
<context>
    <name>Hero</name>
    <message>
        <source>Show Tor Log</source>
        <translation>Mostrar registro do Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Mostra tudo o que o Tor informou</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Restaurar rede</translation>
    </message>
    <message>
        <source>Try Bridges</source>
        <translation>Tentar pontes</translation>
    </message>
</context>
<context>
    <name>LogLines</name>
    <message>
        <source>Tor Log</source>
        <translation>Registro do Tor</translation>
    </message>
</context>
<context>
    <name>LogRow</name>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Notificação</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informação</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Tor Log</source>
        <translation>Registro do Tor</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Acompanhar</translation>
    </message>
    <message>
        <source>Keep the newest lines in view</source>
        <translation>Mantém as linhas mais novas à vista</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the lines shown</source>
        <translation>Copia as linhas mostradas</translation>
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
        <translation>Opções</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Desconecte para alterar</translation>
    </message>
    <message>
        <source>Strict mode</source>
        <translation>Modo estrito</translation>
    </message>
    <message>
        <source>Kill switch: block anything not using Tor</source>
        <translation>Kill switch: bloqueia tudo que não usa o Tor</translation>
    </message>
    <message>
        <source>Blocks every connection that doesn&apos;t go through Tor, including UDP and IPv6. Apps that ignore proxy settings won&apos;t connect at all instead of leaking.</source>
        <translation>Bloqueia toda conexão que não passa pelo Tor, inclusive UDP e IPv6. Aplicativos que ignoram as configurações de proxy ficam sem conexão, em vez de vazar dados.</translation>
    </message>
    <message>
        <source>Allow local network</source>
        <translation>Permitir rede local</translation>
    </message>
    <message>
        <source>Exit country</source>
        <translation>País de saída</translation>
    </message>
    <message>
        <source>Where your traffic appears to come from</source>
        <translation>De onde seu tráfego parece vir</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Pontes</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <source>Custom bridges</source>
        <translation>Pontes personalizadas</translation>
    </message>
    <message>
        <source>Optimize for speed</source>
        <translation>Otimizar a velocidade</translation>
    </message>
    <message>
        <source>New circuits for everything</source>
        <translation>Novos circuitos para tudo</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Modo terminal</translation>
    </message>
    <message>
        <source>App exceptions</source>
        <translation>Exceções de aplicativos</translation>
    </message>
    <message>
        <source>For networks that block or watch Tor</source>
        <translation>Para redes que bloqueiam ou vigiam o Tor</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Find the Cause</source>
        <translation>Encontrar a causa</translation>
    </message>
    <message>
        <source>Checks what a connection needs on this computer, what blocks it and how to fix it</source>
        <translation>Examina este computador: o que uma conexão exige, o que a impede e como resolver</translation>
    </message>
    <message>
        <source>Show Tor Log</source>
        <translation>Mostrar registro do Tor</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>Mostra tudo o que o Tor informou</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with this command, then click Recheck.</source>
        <translation>O Tor não está instalado. Instale-o com este comando e clique em “Verificar de novo”.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with %1, then click Recheck.</source>
        <translation>O Tor não está instalado. Instale-o com %1 e clique em “Verificar de novo”.</translation>
    </message>
    <message>
        <source>Recheck</source>
        <translation>Verificar de novo</translation>
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
        <translation>Não encontrado</translation>
    </message>
</context>
<context>
    <name>QuitDialog</name>
    <message>
        <source>Quit Veldmark</source>
        <translation>Sair do Veldmark</translation>
    </message>
    <message>
        <source>Your network is still routed through Tor</source>
        <translation>Sua rede ainda passa pelo Tor</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and the kill switch stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Se você sair agora, o Tor continua em execução e o kill switch continua ativado. Abra o Veldmark de novo mais tarde para restaurar sua conexão normal.</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and your system proxy stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>Se você sair agora, o Tor continua em execução e o proxy do sistema continua ativado. Abra o Veldmark de novo mais tarde para restaurar sua conexão normal.</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>Desconectando…</translation>
    </message>
    <message>
        <source>Disconnect &amp; Quit</source>
        <translation>Desconectar e sair</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>Sair mesmo assim</translation>
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
        <translation>Recuperação</translation>
    </message>
    <message>
        <source>Get your normal connection back</source>
        <translation>Recupera sua conexão normal</translation>
    </message>
    <message>
        <source>Restore network settings</source>
        <translation>Restaurar as configurações de rede</translation>
    </message>
    <message>
        <source>Veldmark&apos;s changes are active</source>
        <translation>As alterações do Veldmark estão ativas</translation>
    </message>
    <message>
        <source>Nothing to restore</source>
        <translation>Nada a restaurar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Use this if your internet stops working after a crash. It puts your DNS, proxy and firewall settings back the way they were and stops Tor.</source>
        <translation>Use isto se a internet parar de funcionar depois de uma falha. Suas configurações de DNS, proxy e firewall voltam a ser como eram, e o Tor é encerrado.</translation>
    </message>
    <message>
        <source>If the app won&apos;t open</source>
        <translation>Se o aplicativo não abrir</translation>
    </message>
    <message>
        <source>Run this in Terminal to do the same thing without Veldmark.</source>
        <translation>Execute isto no terminal para fazer o mesmo sem o Veldmark.</translation>
    </message>
    <message>
        <source>Report for others</source>
        <translation>Relatório para outras pessoas</translation>
    </message>
    <message>
        <source>What they need to help you, without addresses, names and bridges. You read it first, and nothing sends it.</source>
        <translation>O que elas precisam para ajudar você, sem endereços, nomes nem pontes. Você o lê primeiro, e nada o envia.</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Mostrar relatório</translation>
    </message>
</context>
<context>
    <name>ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>Relatório</translation>
    </message>
    <message>
        <source>For those who help you. Addresses, names, bridges, keys and paths in your home are replaced. Look through it before you give it away: Veldmark sends it to nobody.</source>
        <translation>Para quem ajuda você. Endereços, nomes, pontes, chaves e caminhos da sua pasta pessoal são substituídos. Revise-o antes de entregá-lo: o Veldmark não o envia a ninguém.</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Salvar…</translation>
    </message>
    <message>
        <source>Save the report in a file that only you can read</source>
        <translation>Salvar o relatório em um arquivo que só você pode ler</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the whole report</source>
        <translation>Copiar o relatório inteiro</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Examinando este computador…</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Pontes</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Recuperação</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
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
        <translation>Envia ferramentas de linha de comando pelo Tor</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>Modo terminal</translation>
    </message>
    <message>
        <source>Shell integration</source>
        <translation>Integração com o shell</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
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
        <translation>O programa Tor que o Veldmark executa</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Location: disconnect to change</source>
        <translation>Local: desconecte para alterar</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Local</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Custom location</source>
        <translation>Local personalizado</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Separate applications</source>
        <translation>Separar aplicativos</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>Desconecte para alterar</translation>
    </message>
    <message>
        <source>Each application has circuits of its own</source>
        <translation>Cada aplicativo tem seus próprios circuitos</translation>
    </message>
    <message>
        <source>Sites cannot tell by the exit address that two applications are yours. Veldmark tells applications apart where the desktop starts each in a control group of its own, as GNOME and KDE do. Other programs share circuits with the rest of their login session or account.</source>
        <translation>Os sites não conseguem saber, pelo endereço de saída, que dois aplicativos são seus. Os aplicativos são diferenciados quando o ambiente de trabalho inicia cada um em um grupo de controle próprio, como fazem o GNOME e o KDE. Os demais programas compartilham circuitos com tudo o que é da mesma sessão de login ou da mesma conta.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Start without a window, as at login.</source>
        <translation>Inicia sem janela, como no login.</translation>
    </message>
    <message>
        <source>Connect at once.</source>
        <translation>Conecta imediatamente.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor. To restore it without Veldmark, run:
%1</source>
        <translation>Sua rede ainda está configurada para o Tor. Para restaurá-la sem o Veldmark, execute:
%1</translation>
    </message>
</context>
<context>
    <name>veldmark::Alerts</name>
    <message>
        <source>Another session has replaced this one</source>
        <translation>Outra sessão substituiu esta</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>O Tor parou de funcionar</translation>
    </message>
    <message>
        <source>Traffic can leave around Tor</source>
        <translation>Pode sair tráfego por fora do Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>Consultas DNS podem sair por fora do Tor</translation>
    </message>
    <message>
        <source>Your real address can be seen. Open Veldmark to see what to do.</source>
        <translation>Seu endereço real pode ser visto. Abra o Veldmark para saber o que fazer.</translation>
    </message>
    <message>
        <source>Firewall rules were removed</source>
        <translation>Regras de firewall removidas</translation>
    </message>
    <message>
        <source>The kill switch doesn&apos;t block traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>O kill switch não bloqueia o tráfego. Abra o Veldmark, desconecte e conecte de novo.</translation>
    </message>
    <message>
        <source>The kill switch is not watched</source>
        <translation>O kill switch não está sendo monitorado</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>Não é possível saber se o kill switch bloqueia o tráfego. Abra o Veldmark, desconecte e conecte de novo.</translation>
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
        <translation>O Veldmark não conseguiu abrir uma janela. Sua rede não foi afetada; para restaurá-la sem o Veldmark, execute:
%1

%2</translation>
    </message>
    <message>
        <source>Veldmark is still running</source>
        <translation>O Veldmark continua em execução</translation>
    </message>
    <message>
        <source>Open Veldmark again to see its window.</source>
        <translation>Abra o Veldmark de novo para ver a janela dele.</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Sua rede ainda está configurada para o Tor</translation>
    </message>
    <message>
        <source>Veldmark had to close and could not restore the network. Open Veldmark again to restore it.</source>
        <translation>O Veldmark precisou ser encerrado e não conseguiu restaurar a rede. Abra-o de novo para restaurá-la.</translation>
    </message>
</context>
<context>
    <name>veldmark::ApplicationChoices</name>
    <message>
        <source>No installed applications were found.</source>
        <translation>Nenhum aplicativo instalado foi encontrado.</translation>
    </message>
    <message>
        <source>No application is called “%1”.</source>
        <translation>Nenhum aplicativo se chama “%1”.</translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitGraphView</name>
    <message>
        <source>%1: your real IP only ever reaches the entry relay</source>
        <translation>%1: seu IP real só chega ao relé de entrada</translation>
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
        <translation>MEIO</translation>
    </message>
    <message>
        <source>EXIT</source>
        <translation>SAÍDA</translation>
    </message>
    <message>
        <source>SITES</source>
        <translation>SITES</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>mais %1</translation>
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
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>Circuit %1</source>
        <translation>Circuito %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Não conectado</translation>
    </message>
    <message>
        <source>1 active path</source>
        <translation>1 caminho ativo</translation>
    </message>
    <message>
        <source> · click a relay or site to follow it</source>
        <translation> · clique em um relé ou site para acompanhá-lo</translation>
    </message>
    <message>
        <source>Leads to an onion service. The last relay is the meeting point.</source>
        <translation>Leva a um serviço onion. O último relé é o ponto de encontro.</translation>
    </message>
    <message>
        <source>Meeting point</source>
        <translation>Ponto de encontro</translation>
    </message>
    <message>
        <source>One of several linked legs to the same exit</source>
        <translation>Um de vários ramos interligados até a mesma saída</translation>
    </message>
    <message>
        <source>Only the entry sees your IP</source>
        <translation>Só a entrada vê seu IP</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Meio</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>Ponte</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>, +%1 more</source>
        <translation>, mais %1</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>Sites</translation>
    </message>
    <message>
        <source>Round trip: %1</source>
        <translation>Ida e volta: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n active paths</source>
        <translation>
            <numerusform>%n caminho ativo</numerusform>
            <numerusform>%n caminhos ativos</numerusform>
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
        <translation>Incerto</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>Restaurar rede</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Baixar</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>Examinando este computador…</translation>
    </message>
    <message>
        <source>The check gave no result.</source>
        <translation>Nada foi descoberto.</translation>
    </message>
    <message>
        <source>No problem was found that keeps Veldmark from connecting.</source>
        <translation>Não foi encontrado nada que impeça o Veldmark de conectar.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t connect until each problem is fixed.</source>
        <translation>O Veldmark não pode conectar antes que cada problema seja resolvido.</translation>
    </message>
</context>
<context>
    <name>veldmark::LogModel</name>
    <message>
        <source>Tor writes here while it connects and runs</source>
        <translation>O Tor escreve aqui enquanto conecta e funciona</translation>
    </message>
    <message>
        <source>Can&apos;t read the log files</source>
        <translation>Não é possível ler os arquivos de registro</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 linha</translation>
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
        <translation>Mostra os arquivos de registro no Finder</translation>
    </message>
    <message>
        <source>Show the log files in the file manager</source>
        <translation>Mostra os arquivos de registro no gerenciador de arquivos</translation>
    </message>
    <message>
        <source>There are no log files yet. Tor creates %1 when it first starts.</source>
        <translation>Ainda não há arquivos de registro: o Tor cria %1 quando é iniciado pela primeira vez.</translation>
    </message>
    <message>
        <source>No file manager could be opened. The log files are in %1.</source>
        <translation>Não foi possível abrir um gerenciador de arquivos. Os arquivos de registro estão em %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n linha</numerusform>
            <numerusform>%n linhas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::OptionsModel</name>
    <message>
        <source>Choosing a country means fewer exit relays, so it&apos;s slower and you&apos;re easier to single out.</source>
        <translation>Escolher um país deixa menos relés de saída: a conexão fica mais lenta, e fica mais fácil distinguir você dos demais.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Não usar</translation>
    </message>
    <message>
        <source>obfs4 (built-in)</source>
        <translation>obfs4 (integradas)</translation>
    </message>
    <message>
        <source>Snowflake (built-in)</source>
        <translation>Snowflake (integradas)</translation>
    </message>
    <message>
        <source>meek (built-in)</source>
        <translation>meek (integradas)</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizadas</translation>
    </message>
    <message>
        <source>No bridges added yet</source>
        <translation>Nenhuma ponte adicionada ainda</translation>
    </message>
    <message>
        <source>Needs bridge programs: click Download</source>
        <translation>Precisa de programas de ponte: clique em “Baixar”</translation>
    </message>
    <message>
        <source>Built-in bridges from %1</source>
        <translation>Pontes integradas, de %1</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>(linha %1)</translation>
    </message>
    <message>
        <source>(lines %1)</source>
        <translation>(linhas %1)</translation>
    </message>
    <message>
        <source>1 bridge recognized</source>
        <translation>1 ponte reconhecida</translation>
    </message>
    <message>
        <source>A bridge line can&apos;t contain #, &quot; or \.</source>
        <translation>Uma linha de ponte não pode conter #, &quot; nem \.</translation>
    </message>
    <message>
        <source>At most %1 bridges can be used</source>
        <translation>O limite é de %1 pontes</translation>
    </message>
    <message>
        <source>1 line not recognized</source>
        <translation>1 linha não reconhecida</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the Dock) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>No modo estrito, estes aplicativos podem se conectar diretamente, e não pelo Tor, usando o seu endereço IP real. Todo o resto continua restrito ao Tor. Abra-os com &lt;b&gt;Abrir sem o Tor&lt;/b&gt; (não pelo Dock) para que o Veldmark possa marcá-los. Uma cópia em execução é encerrada e aberta de novo.</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the desktop&apos;s menu) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>No modo estrito, estes aplicativos podem se conectar diretamente, e não pelo Tor, usando o seu endereço IP real. Todo o resto continua restrito ao Tor. Abra-os com &lt;b&gt;Abrir sem o Tor&lt;/b&gt; (não pelo menu do ambiente de trabalho) para que o Veldmark possa marcá-los. Uma cópia em execução é encerrada e aberta de novo.</translation>
    </message>
    <message numerus="yes">
        <source>%n bridges recognized</source>
        <translation>
            <numerusform>%n ponte reconhecida</numerusform>
            <numerusform>%n pontes reconhecidas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines not recognized</source>
        <translation>
            <numerusform>%n linha não reconhecida</numerusform>
            <numerusform>%n linhas não reconhecidas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::PanelModel</name>
    <message>
        <source>No answer</source>
        <translation>Sem resposta</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but it isn&apos;t known whether the kill switch blocks such connections</source>
        <translation>Uma conexão direta, sem passar pelo Tor, não teve resposta, mas não se sabe se o kill switch bloqueia conexões assim</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but proxy mode doesn&apos;t block such connections</source>
        <translation>Uma conexão direta, sem passar pelo Tor, não teve resposta, mas o modo proxy não bloqueia conexões assim</translation>
    </message>
    <message>
        <source>Connect to Tor</source>
        <translation>Conectar ao Tor</translation>
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
        <translation>Conectado por pontes (%1)</translation>
    </message>
    <message>
        <source>Strict</source>
        <translation>Estrito</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Install Tor to get started</source>
        <translation>Instale o Tor para começar</translation>
    </message>
    <message>
        <source>Click to connect</source>
        <translation>Clique para conectar</translation>
    </message>
    <message>
        <source>Click to disconnect</source>
        <translation>Clique para desconectar</translation>
    </message>
    <message>
        <source>Tor hasn&apos;t reported progress for a while. It is still trying; a slow or blocked network is the usual reason.</source>
        <translation>O Tor não informa progresso há algum tempo. Ele continua tentando; em geral, a causa é uma rede lenta ou bloqueada.</translation>
    </message>
    <message>
        <source>Still waiting for Tor to start, or for your approval.</source>
        <translation>Ainda aguardando o Tor iniciar ou a sua aprovação.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Verificando</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>Checked against %1</source>
        <translation>Verificação feita com %1</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Verificado</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>Não confirmado</translation>
    </message>
    <message>
        <source>DNS leak</source>
        <translation>Vazamento de DNS</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>Não testado</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>Testando…</translation>
    </message>
    <message>
        <source>No leaks</source>
        <translation>Sem vazamentos</translation>
    </message>
    <message>
        <source>Inconclusive</source>
        <translation>Inconclusivo</translation>
    </message>
    <message>
        <source>Exposed: %1</source>
        <translation>Exposto: %1</translation>
    </message>
    <message>
        <source>Tries a direct connection that skips Tor</source>
        <translation>Tenta uma conexão direta, sem passar pelo Tor</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor are blocked</source>
        <translation>Conexões diretas, sem passar pelo Tor, estão bloqueadas</translation>
    </message>
    <message>
        <source>Apps that ignore proxy settings show your real IP (%1). Turn on Strict mode to block them.</source>
        <translation>Aplicativos que ignoram as configurações de proxy mostram seu IP real (%1). Ative o modo estrito para bloqueá-los.</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>mais %1</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Não verificado</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor show your real IP (%1), although Strict mode should block them. Disconnect, or run the leak test again.</source>
        <translation>Conexões diretas, sem passar pelo Tor, mostram seu IP real (%1), embora o modo estrito devesse bloqueá-las. Desconecte ou repita o teste de vazamento.</translation>
    </message>
</context>
<context>
    <name>veldmark::ReportModel</name>
    <message>
        <source>Saved in %1</source>
        <translation>Salvo em %1</translation>
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
        <translation>Ausente</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Não encontrado</translation>
    </message>
    <message>
        <source>Homebrew: %1</source>
        <translation>Homebrew: %1</translation>
    </message>
    <message>
        <source>Install it with %1</source>
        <translation>Instale com %1</translation>
    </message>
    <message>
        <source>Not found in Tor Browser or a downloaded bundle</source>
        <translation>Não encontradas no Tor Browser nem em um pacote baixado</translation>
    </message>
    <message>
        <source>Loaded from %1</source>
        <translation>Carregadas de %1</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <translation>Não baixado</translation>
    </message>
    <message>
        <source>Version %1 loaded</source>
        <translation>Versão %1 carregada</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>assinatura verificada</translation>
    </message>
    <message>
        <source>Adds one line to ~/.zshrc (and ~/.bash_profile if you have one) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>Adiciona uma linha a ~/.zshrc (e a ~/.bash_profile, se existir) e uma linha Include no início de ~/.ssh/config. Os arquivos ficam em ~/.veldmark. Nada é redirecionado, a menos que o Veldmark esteja conectado com o modo terminal ativado.</translation>
    </message>
    <message>
        <source>Adds one line to ~/.bashrc (and ~/.zshrc if you use zsh) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>Adiciona uma linha a ~/.bashrc (e a ~/.zshrc, se você usa zsh) e uma linha Include no início de ~/.ssh/config. Os arquivos ficam em ~/.veldmark. Nada é redirecionado, a menos que o Veldmark esteja conectado com o modo terminal ativado.</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>Fetched over HTTPS. Its signature isn&apos;t checked, since GnuPG isn&apos;t installed.</source>
        <translation>Baixado por HTTPS. A assinatura não é verificada, pois o GnuPG não está instalado.</translation>
    </message>
    <message>
        <source>Fetched over HTTPS and checked against the Tor Project&apos;s signature.</source>
        <translation>Baixado por HTTPS e verificado com a assinatura do Projeto Tor.</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Não instalada</translation>
    </message>
    <message>
        <source>Installed in your shell and SSH config</source>
        <translation>Instalada no seu shell e na configuração do SSH</translation>
    </message>
    <message>
        <source>Installed in your shell; SSH doesn&apos;t use it</source>
        <translation>Instalada no seu shell; o SSH não a usa</translation>
    </message>
    <message>
        <source>curl, git, brew, pip, ssh and more use Tor</source>
        <translation>curl, git, brew, pip, ssh e outros usam o Tor</translation>
    </message>
    <message>
        <source>curl, git, pip, ssh and more use Tor</source>
        <translation>curl, git, pip, ssh e outros usam o Tor</translation>
    </message>
    <message>
        <source>Veldmark is free software and independent of the Tor Project. It contains no Tor: it runs the tor that is installed here, and where bridges are used lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>O Veldmark é software livre e independente do Projeto Tor. Ele não contém o Tor: executa o tor instalado aqui e, quando há pontes em uso, o lyrebird, o snowflake-client ou o webtunnel-client.</translation>
    </message>
    <message>
        <source>It sets up the network with macOS&apos;s own programs, asks for the administrator with sudo, and checks downloads with GnuPG where that is installed.</source>
        <translation>Ele configura a rede com os próprios programas do macOS, pede a autorização do administrador com o sudo e verifica os downloads com o GnuPG, quando instalado.</translation>
    </message>
    <message>
        <source>It sets up the network with nftables, resolvectl and gsettings, asks for the administrator with polkit or sudo, takes ssh through Tor with a netcat, and checks downloads with GnuPG where that is installed.</source>
        <translation>Ele configura a rede com nftables, resolvectl e gsettings, pede a autorização do administrador com o polkit ou o sudo, leva o ssh pelo Tor com um netcat e verifica os downloads com o GnuPG, quando instalado.</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Perguntar</translation>
    </message>
    <message>
        <source>Try bridges</source>
        <translation>Tentar pontes</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>Não fazer nada</translation>
    </message>
</context>
<context>
    <name>veldmark::ShutdownNotice</name>
    <message>
        <source>Restoring your network settings</source>
        <translation>Restaurando suas configurações de rede</translation>
    </message>
</context>
<context>
    <name>veldmark::Text</name>
    <message>
        <source>Tor hasn&apos;t confirmed that it uses the network again, so traffic may not get through. Veldmark keeps telling Tor to. If this lasts, disconnect and connect again.</source>
        <translation>O Tor não confirmou que voltou a usar a rede, então o tráfego talvez não passe. O Veldmark continua pedindo isso a ele; se persistir, desconecte e conecte de novo.</translation>
    </message>
    <message>
        <source>Version %1 is offered, which is older than the installed %2. Nothing was changed.</source>
        <translation>A versão oferecida, %1, é mais antiga que a instalada, %2. Nada foi alterado.</translation>
    </message>
    <message>
        <source>The download of version %1 contains another version, so it was discarded.</source>
        <translation>O download da versão %1 contém outra versão, por isso foi descartado.</translation>
    </message>
    <message>
        <source>The download begins again when Tor is connected…</source>
        <translation>O download recomeça quando o Tor estiver conectado…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a location of Tor. Give an absolute path, such as /usr/bin/tor.</source>
        <translation>“%1” não é um local do Tor. Informe um caminho absoluto, como /usr/bin/tor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be changed during a connection. Disconnect to change it.</source>
        <translation>“%1” não pode mudar durante uma conexão. Desconecte para alterar.</translation>
    </message>
    <message>
        <source>Your traffic is not going through Tor</source>
        <translation>Seu tráfego não está passando pelo Tor</translation>
    </message>
    <message>
        <source>Restoring your network settings…</source>
        <translation>Restaurando suas configurações de rede…</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor from an earlier session</source>
        <translation>Sua rede ainda está configurada para o Tor por uma sessão anterior</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>Sua rede ainda está configurada para o Tor</translation>
    </message>
    <message>
        <source>Preparing Tor…</source>
        <translation>Preparando o Tor…</translation>
    </message>
    <message>
        <source>Waiting for administrator approval…</source>
        <translation>Aguardando aprovação do administrador…</translation>
    </message>
    <message>
        <source>Waiting for an administrator to approve a program…</source>
        <translation>Aguardando um administrador aprovar um programa…</translation>
    </message>
    <message>
        <source>Starting Tor…</source>
        <translation>Iniciando o Tor…</translation>
    </message>
    <message>
        <source>Tor is waiting for the bridge program, which hasn&apos;t said that it is ready.</source>
        <translation>O Tor está esperando o programa de ponte, que ainda não informou que está pronto.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting</source>
        <translation>O Tor não concluiu a conexão</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>O Tor parou de funcionar</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor</source>
        <translation>Todo o tráfego está restrito ao Tor</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor</source>
        <translation>Aplicativos que usam o proxy do sistema passam pelo Tor</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. Reconnect, or Restore Network to go back online.</source>
        <translation>O Tor parou de funcionar. O kill switch continua bloqueando o tráfego, então nada vazou. Reconecte, ou use “Restaurar rede” para voltar a ficar on-line sem o Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, but the last checks saw traffic go around Tor. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>O Tor parou de funcionar. O kill switch continua bloqueando o tráfego, mas as últimas verificações viram tráfego passar por fora do Tor. Reconecte, ou use “Restaurar rede” para voltar a ficar on-line sem o Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running. Apps using the proxy can&apos;t connect until you reconnect or Restore Network.</source>
        <translation>O Tor parou de funcionar. Aplicativos que usam o proxy não conseguem se conectar até você reconectar ou usar “Restaurar rede”.</translation>
    </message>
    <message>
        <source>Any (recommended)</source>
        <translation>Qualquer um (recomendado)</translation>
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
        <translation>Alemanha</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Países Baixos</translation>
    </message>
    <message>
        <source>France</source>
        <translation>França</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>Suécia</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>Suíça</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finlândia</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Romênia</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japão</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Singapura</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizadas</translation>
    </message>
    <message>
        <source>DNS can go around Tor via: %1</source>
        <translation>O DNS pode sair por fora do Tor via: %1</translation>
    </message>
    <message>
        <source>DNS: not tested yet.</source>
        <translation>DNS: ainda não testado.</translation>
    </message>
    <message>
        <source>DNS: testing…</source>
        <translation>DNS: testando…</translation>
    </message>
    <message>
        <source>DNS: a test lookup went through Tor.</source>
        <translation>DNS: uma consulta de teste passou pelo Tor.</translation>
    </message>
    <message>
        <source>DNS: settings point at Tor, but a test lookup couldn&apos;t be confirmed.</source>
        <translation>DNS: as configurações apontam para o Tor, mas não foi possível confirmar uma consulta de teste.</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>Este computador</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>Este Mac</translation>
    </message>
    <message>
        <source>on this computer</source>
        <translation>neste computador</translation>
    </message>
    <message>
        <source>on this Mac</source>
        <translation>neste Mac</translation>
    </message>
    <message>
        <source>Tor stopped running, and your network is no longer set up for it.</source>
        <translation>O Tor parou de funcionar, e sua rede não está mais configurada para ele.</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is blocking traffic again, but another program had removed its rules for a while. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>O Tor parou de funcionar. O kill switch voltou a bloquear o tráfego, mas outro programa havia removido as regras dele por algum tempo. Reconecte, ou use “Restaurar rede” para voltar a ficar on-line sem o Tor.</translation>
    </message>
    <message>
        <source>Tor stopped running, and the kill switch doesn&apos;t block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network.</source>
        <translation>O Tor parou de funcionar, e o kill switch não bloqueia o tráfego: outro programa removeu as regras dele. Pode haver tráfego saindo diretamente deste computador. Reconecte ou use “Restaurar rede”.</translation>
    </message>
    <message>
        <source>Tor stopped running, and it isn&apos;t known whether the kill switch is still blocking traffic. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>O Tor parou de funcionar, e não se sabe se o kill switch ainda bloqueia o tráfego. Reconecte, ou use “Restaurar rede” para voltar a ficar on-line sem o Tor.</translation>
    </message>
    <message>
        <source>The watcher of Veldmark&apos;s firewall rules has stopped reporting, so it isn&apos;t known whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>O monitor das regras de firewall do Veldmark parou de informar, então não se sabe se o kill switch bloqueia o tráfego. Desconecte e conecte de novo.</translation>
    </message>
    <message>
        <source>Not Protected</source>
        <translation>Não protegido</translation>
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
        <translation>Proxy ativo</translation>
    </message>
    <message>
        <source>Needs Attention</source>
        <translation>Requer atenção</translation>
    </message>
    <message>
        <source>DNS Leak</source>
        <translation>Vazamento de DNS</translation>
    </message>
    <message>
        <source>Kill Switch Failed</source>
        <translation>Kill switch sem efeito</translation>
    </message>
    <message>
        <source>Traffic may leave this computer directly</source>
        <translation>Pode haver tráfego saindo diretamente deste computador</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>Consultas DNS podem sair por fora do Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor, and your real address can be seen</source>
        <translation>Consultas DNS podem sair por fora do Tor, e seu endereço real pode ser visto</translation>
    </message>
    <message>
        <source>Your real address can be seen. Disconnect, or run the leak test again.</source>
        <translation>Seu endereço real pode ser visto. Desconecte ou repita o teste de vazamento.</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>Não é possível saber se o kill switch bloqueia o tráfego. Desconecte e conecte de novo.</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor, but the exit could not be confirmed</source>
        <translation>Todo o tráfego está restrito ao Tor, mas não foi possível confirmar a saída</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor, but the exit could not be confirmed</source>
        <translation>Aplicativos que usam o proxy do sistema passam pelo Tor, mas não foi possível confirmar a saída</translation>
    </message>
    <message>
        <source>No Network</source>
        <translation>Sem rede</translation>
    </message>
    <message>
        <source>Nothing Gets Through</source>
        <translation>Nada passa</translation>
    </message>
    <message>
        <source>This computer has no network. Traffic around Tor stays blocked.</source>
        <translation>Este computador está sem rede. O tráfego por fora do Tor continua bloqueado.</translation>
    </message>
    <message>
        <source>This computer has no network. Veldmark goes on when it is back.</source>
        <translation>Este computador está sem rede. O Veldmark continua quando ela voltar.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>O Tor não tem nenhum circuito funcionando e continua tentando. O tráfego por fora dele continua bloqueado.</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying.</source>
        <translation>O Tor não tem nenhum circuito funcionando e continua tentando.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>O Tor não recebe resposta da rede e continua tentando. O tráfego por fora dele continua bloqueado.</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying.</source>
        <translation>O Tor não recebe resposta da rede e continua tentando.</translation>
    </message>
    <message>
        <source>Another program has ended this session and started its own. Restore Network ends that session.</source>
        <translation>Outro programa encerrou esta sessão e iniciou a dele. “Restaurar rede” encerra essa outra sessão.</translation>
    </message>
    <message>
        <source>This computer has no network, so Tor can&apos;t connect.</source>
        <translation>Este computador está sem rede, então o Tor não consegue conectar.</translation>
    </message>
    <message>
        <source>A VPN takes Tor&apos;s traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode.</source>
        <translation>Uma VPN captura o tráfego do Tor, e o modo estrito não deixa a VPN sair. Desative a VPN ou use o modo proxy.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules; they are back in place.</source>
        <translation>Outro programa removeu as regras de firewall do Veldmark; elas já foram restauradas.</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules and they could not be put back. Traffic may leave this computer directly. Disconnect and connect again.</source>
        <translation>Outro programa removeu as regras de firewall do Veldmark, e não foi possível restaurá-las. Pode haver tráfego saindo diretamente deste computador. Desconecte e conecte de novo.</translation>
    </message>
    <message>
        <source>Invalid exit country.</source>
        <translation>País de saída inválido.</translation>
    </message>
    <message>
        <source>The settings couldn&apos;t be saved. Changes to them may last only until you quit.</source>
        <translation>Não foi possível salvar as configurações. As alterações talvez só durem até você sair.</translation>
    </message>
    <message>
        <source>Checking latest version…</source>
        <translation>Verificando a versão mais recente…</translation>
    </message>
    <message>
        <source>Verifying signature…</source>
        <translation>Verificando a assinatura…</translation>
    </message>
    <message>
        <source>Another download is under way.</source>
        <translation>Já há outro download em andamento.</translation>
    </message>
    <message>
        <source>Path not responding, finding another…</source>
        <translation>O caminho não responde, buscando outro…</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes.</source>
        <translation>O Tor não concluiu a conexão em 5 minutos.</translation>
    </message>
    <message>
        <source>Administrator access was refused, or the agent that asks for the password gave no answer.</source>
        <translation>O acesso de administrador foi recusado, ou o agente que pede a senha não respondeu.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, so Tor can&apos;t connect: %1.</source>
        <translation>Outro firewall neste computador bloqueia o tráfego de saída, então o Tor não consegue conectar: %1.</translation>
    </message>
    <message>
        <source>Setup ran but the helper wasn&apos;t installed. Try again.</source>
        <translation>A configuração foi executada, mas o programa auxiliar não foi instalado. Tente de novo.</translation>
    </message>
    <message>
        <source>The helper failed without an error message.</source>
        <translation>O programa auxiliar falhou sem mensagem de erro.</translation>
    </message>
    <message>
        <source>Add at least one bridge under Bridges → Custom….</source>
        <translation>Adicione pelo menos uma ponte em “Pontes → Personalizadas”.</translation>
    </message>
    <message>
        <source>Some custom bridge lines aren&apos;t valid. Fix them under Bridges → Custom….</source>
        <translation>Algumas linhas de ponte personalizadas não são válidas. Corrija-as em “Pontes → Personalizadas”.</translation>
    </message>
    <message>
        <source>At most %1 custom bridges can be used. Remove some under Bridges → Custom….</source>
        <translation>No máximo %1 pontes personalizadas podem ser usadas. Remova algumas em “Pontes → Personalizadas”.</translation>
    </message>
    <message>
        <source>Testing speed (%1 of %2)…</source>
        <translation>Testando a velocidade (%1 de %2)…</translation>
    </message>
    <message>
        <source>Slow path (%1 ms), finding a faster one…</source>
        <translation>Caminho lento (%1 ms), buscando um mais rápido…</translation>
    </message>
    <message>
        <source>Downloading Tor %1 bridge programs…</source>
        <translation>Baixando os programas de ponte do Tor %1…</translation>
    </message>
    <message>
        <source>Download of %1 failed (HTTP %2).</source>
        <translation>Falha no download: %1 (HTTP %2).</translation>
    </message>
    <message>
        <source>The settings file couldn&apos;t be read. It was kept as %1, and a new one is used.</source>
        <translation>Não foi possível ler o arquivo de configurações. Ele foi guardado como %1, e um novo está em uso.</translation>
    </message>
    <message>
        <source>The settings file %1 can&apos;t be read or replaced. Changes to the settings last until you quit.</source>
        <translation>O arquivo de configurações %1 não pode ser lido nem substituído. As alterações nas configurações só duram até você sair.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1 without Tor: %2</source>
        <translation>Não foi possível abrir %1 sem o Tor: %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>Outro Veldmark seu iniciou uma sessão nesse meio-tempo, então nenhuma sessão foi encerrada. Desconecte de novo para encerrar essa sessão.</translation>
    </message>
    <message>
        <source>Another user&apos;s Veldmark has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>O Veldmark de outro usuário iniciou uma sessão nesse meio-tempo, então nenhuma sessão foi encerrada. Desconecte de novo para encerrar essa sessão.</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by another Veldmark of yours, process %1</source>
        <translation>Sua rede está configurada para o Tor por outro Veldmark seu, processo %1</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by %1, whose Veldmark is process %2</source>
        <translation>Sua rede está configurada para o Tor por %1, cujo Veldmark é o processo %2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours is connected (process %1). Disconnect it, or restore the network, first.</source>
        <translation>Outro Veldmark seu está conectado (processo %1). Primeiro desconecte-o ou restaure a rede.</translation>
    </message>
    <message>
        <source>%1 is connected with Veldmark (process %2). That session must be ended first.</source>
        <translation>%1 está com o Veldmark conectado (processo %2). Essa sessão precisa ser encerrada primeiro.</translation>
    </message>
    <message>
        <source>%1 Your network is still pointed at Tor. Click Restore Network to undo.</source>
        <translation>%1 Sua rede ainda está apontada para o Tor. Clique em “Restaurar rede” para desfazer isso.</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install the OpenBSD netcat or Ncat with your package manager.</source>
        <translation>O ssh ainda não passa pelo Tor: ele precisa de um netcat que fale SOCKS. Instale o netcat do OpenBSD ou o Ncat com seu gerenciador de pacotes.</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up terminal mode: %1</source>
        <translation>Não foi possível configurar o modo terminal: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove terminal integration: %1</source>
        <translation>Não foi possível remover a integração com o terminal: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up passwordless mode: %1</source>
        <translation>Não foi possível configurar o modo sem senha: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove passwordless mode: %1</source>
        <translation>Não foi possível remover o modo sem senha: %1</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install one with: %1</source>
        <translation>O ssh ainda não passa pelo Tor: ele precisa de um netcat que fale SOCKS. Instale um com: %1</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>Conecte no modo estrito para abrir aplicativos sem o Tor</translation>
    </message>
    <message>
        <source>No bridge answered a quick test, trying them all</source>
        <translation>Nenhuma ponte respondeu a um teste rápido; tentando todas</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Estas pontes precisam do lyrebird, que vem com o Tor Browser. Clique em “Baixar”, ao lado de “Pontes”, para obtê-lo.</translation>
    </message>
    <message>
        <source>Snowflake needs snowflake-client, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>O Snowflake precisa do snowflake-client, que vem com o Tor Browser. Clique em “Baixar”, ao lado de “Pontes”, para obtê-lo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the latest Tor version from torproject.org.</source>
        <translation>Não foi possível ler a versão mais recente do Tor em torproject.org.</translation>
    </message>
    <message>
        <source>The request timed out.</source>
        <translation>A solicitação expirou.</translation>
    </message>
    <message>
        <source>The server gave no HTTP answer.</source>
        <translation>O servidor não deu uma resposta HTTP.</translation>
    </message>
    <message>
        <source>The connection was lost before the download ended.</source>
        <translation>A conexão caiu antes do fim do download.</translation>
    </message>
    <message>
        <source>Not connected to Tor&apos;s control port.</source>
        <translation>Sem conexão com a porta de controle do Tor.</translation>
    </message>
    <message>
        <source>Tor closed the control connection.</source>
        <translation>O Tor fechou a conexão de controle.</translation>
    </message>
    <message>
        <source>A program other than Tor listens on Tor&apos;s control port.</source>
        <translation>Outro programa, e não o Tor, escuta na porta de controle do Tor.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t answer on its control port in time.</source>
        <translation>O Tor não respondeu a tempo na porta de controle.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager or set its location in Settings.</source>
        <translation>O Tor não está instalado. Instale-o com seu gerenciador de pacotes ou informe o local dele nas Configurações.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with Homebrew (brew install tor) or set its location in Settings.</source>
        <translation>O Tor não está instalado. Instale-o com o Homebrew (brew install tor) ou informe o local dele nas Configurações.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: polkit is not running on this system.</source>
        <translation>Não é possível pedir acesso de administrador: o polkit não está em execução neste sistema.</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: no PolicyKit authentication agent is running in this session.</source>
        <translation>Não é possível pedir acesso de administrador: nenhum agente de autenticação do PolicyKit está em execução nesta sessão.</translation>
    </message>
    <message>
        <source>The password could not be checked: polkit accepts no password from this terminal. Run the command with sudo.</source>
        <translation>Não foi possível verificar a senha: o polkit não aceita senhas deste terminal. Execute o comando com sudo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t fix DNS: %1</source>
        <translation>Não foi possível corrigir o DNS: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t request a new identity: %1</source>
        <translation>Não foi possível pedir uma nova identidade: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read circuits: %1</source>
        <translation>Não foi possível ler os circuitos: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the login-item setting: %1</source>
        <translation>Não foi possível alterar a abertura ao fazer login: %1</translation>
    </message>
    <message>
        <source>Login items can&apos;t be changed here.</source>
        <translation>Os itens de início não podem ser alterados aqui.</translation>
    </message>
    <message>
        <source>Move Veldmark to the Applications folder and open it from there first.</source>
        <translation>Primeiro, mova o Veldmark para a pasta Aplicativos e abra-o a partir dela.</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1.</source>
        <translation>Não foi possível remover %1.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <translation>Não foi possível gravar %1: %2</translation>
    </message>
    <message>
        <source>Couldn&apos;t download bridge programs: %1</source>
        <translation>Não foi possível baixar os programas de ponte: %1</translation>
    </message>
    <message>
        <source>Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download again to also verify the Tor Project&apos;s signature.</source>
        <translation>Programas de ponte %1 instalados por HTTPS. Instale o GnuPG (%2) e baixe de novo para verificar também a assinatura do Projeto Tor.</translation>
    </message>
    <message>
        <source>The download&apos;s signature didn&apos;t verify, so it was discarded. %1</source>
        <translation>A verificação da assinatura do download falhou, por isso ele foi descartado. %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unpack the download. %1</source>
        <translation>Não foi possível descompactar o download. %1</translation>
    </message>
    <message>
        <source>Tor can&apos;t reach the bridge program: %1.</source>
        <translation>O Tor não consegue acessar o programa de ponte: %1.</translation>
    </message>
    <message>
        <source>Tor reports: %1 (%2).</source>
        <translation>O Tor informa: %1 (%2).</translation>
    </message>
    <message>
        <source>Tor reports: %1.</source>
        <translation>O Tor informa: %1.</translation>
    </message>
    <message>
        <source>Tor replied: %1</source>
        <translation>O Tor respondeu: %1</translation>
    </message>
    <message>
        <source>Tor has trouble with the bridge program: %1</source>
        <translation>O Tor está com problemas com o programa de ponte: %1</translation>
    </message>
    <message>
        <source>The bridge program printed something that Tor doesn&apos;t understand: &quot;%1&quot;.</source>
        <translation>O programa de ponte emitiu algo que o Tor não entende: “%1”.</translation>
    </message>
    <message>
        <source>Using the %1 fastest of %2 bridges</source>
        <translation>Usando as pontes mais rápidas (%1 de %2)</translation>
    </message>
    <message>
        <source>The %1 bridge type isn&apos;t supported yet.</source>
        <translation>Pontes do tipo %1 ainda não são aceitas.</translation>
    </message>
    <message>
        <source>Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, install Tor Browser, or paste your own under Bridges → Custom….</source>
        <translation>As pontes integradas %1 vêm do Tor Browser. Clique em “Baixar”, ao lado de “Pontes”, instale o Tor Browser ou cole suas próprias pontes em “Pontes → Personalizadas”.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1.</source>
        <translation>Algumas configurações de DNS vêm de fora do Veldmark (de uma VPN ou de /etc/resolver) e ainda levam para fora do Tor: %1.</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1. Strict mode&apos;s firewall blocks them.</source>
        <translation>Algumas configurações de DNS vêm de fora do Veldmark (de uma VPN ou de /etc/resolver) e ainda levam para fora do Tor: %1. O firewall do modo estrito as bloqueia.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager (%1) or set its location in Settings.</source>
        <translation>O Tor não está instalado. Instale-o com seu gerenciador de pacotes (%1) ou informe o local dele nas Configurações.</translation>
    </message>
    <message>
        <source>%1 is already being opened.</source>
        <translation>%1 já está sendo aberto.</translation>
    </message>
    <message>
        <source>A session is open, and its kill switch doesn&apos;t block traffic: its watcher couldn&apos;t put the rules back. Traffic may leave this computer directly. Restore the network, and connect again.</source>
        <translation>Há uma sessão aberta, e o kill switch dela não bloqueia o tráfego: o monitor não conseguiu restaurar as regras. Pode haver tráfego saindo diretamente deste computador. Restaure a rede e conecte de novo.</translation>
    </message>
    <message>
        <source>The clock is behind: it shows %1, but the file %2 was written on %3. Tor needs a clock that is right to within minutes.</source>
        <translation>O relógio está atrasado: ele mostra %1, mas o arquivo %2 foi gravado em %3. O Tor precisa de um relógio certo, com poucos minutos de erro no máximo.</translation>
    </message>
    <message>
        <source>The clock is set from the network. It shows %1.</source>
        <translation>O relógio é acertado pela rede. Ele mostra %1.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether the clock is right: no time service seems to set it. It shows %1. Tor needs it right to within minutes.</source>
        <translation>Não se sabe se o relógio está certo: nenhum serviço de hora parece acertá-lo. Ele mostra %1. O Tor precisa dele certo, com poucos minutos de erro no máximo.</translation>
    </message>
    <message>
        <source>nftables isn&apos;t installed. Veldmark&apos;s firewall needs it.</source>
        <translation>O nftables não está instalado. O firewall do Veldmark precisa dele.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall, nftables, can be used.</source>
        <translation>O firewall do sistema, nftables, pode ser usado.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall can&apos;t be used: %1</source>
        <translation>O firewall do sistema não pode ser usado: %1</translation>
    </message>
    <message>
        <source>The running kernel (%1) has no nftables. After an upgrade of the kernel, restart the computer.</source>
        <translation>O kernel em execução (%1) não tem nftables. Depois de atualizar o kernel, reinicie o computador.</translation>
    </message>
    <message>
        <source>nftables is installed. Only root can tell whether the running kernel can use it.</source>
        <translation>O nftables está instalado. Só o root pode saber se o kernel em execução consegue usá-lo.</translation>
    </message>
    <message>
        <source>nftables is installed, and the kernel has it.</source>
        <translation>O nftables está instalado, e o kernel tem suporte a ele.</translation>
    </message>
    <message>
        <source>This system has no control groups of version 2, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>Este sistema não tem grupos de controle da versão 2; por isso, nenhum aplicativo pode ser aberto sem o Tor, e o kill switch reconhece o Tor apenas pela conta dele. Todo o resto funciona.</translation>
    </message>
    <message>
        <source>The kernel (%1) is older than 5.13, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>O kernel (%1) é anterior ao 5.13; por isso, nenhum aplicativo pode ser aberto sem o Tor, e o kill switch reconhece o Tor apenas pela conta dele. Todo o resto funciona.</translation>
    </message>
    <message>
        <source>Applications can be opened without Tor: control groups of version 2 are there.</source>
        <translation>É possível abrir aplicativos sem o Tor: há grupos de controle da versão 2.</translation>
    </message>
    <message>
        <source>No other firewall that Veldmark knows runs. Only root can read the rules themselves.</source>
        <translation>Nenhum outro firewall que o Veldmark conheça está em execução. As regras em si, só o root pode ler.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic that its rules don&apos;t allow, so Tor may not get through: %1.</source>
        <translation>Outro firewall neste computador bloqueia o tráfego de saída que as regras dele não permitem, então o Tor talvez não consiga passar: %1.</translation>
    </message>
    <message>
        <source>Other programs set firewall rules here: %1. Veldmark leaves their rules alone. Rules that drop packets can block Tor.</source>
        <translation>Outros programas definem regras de firewall aqui: %1. O Veldmark não mexe nas regras deles. Regras que descartam pacotes podem bloquear o Tor.</translation>
    </message>
    <message>
        <source>pkexec isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>O pkexec não está instalado, então nenhuma janela pode pedir a senha de administrador.</translation>
    </message>
    <message>
        <source>polkit isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>O polkit não está instalado, então nenhuma janela pode pedir a senha de administrador.</translation>
    </message>
    <message>
        <source>There is no desktop here on which a window could ask for the administrator&apos;s password. Use sudo.</source>
        <translation>Não há aqui um ambiente de trabalho em que uma janela possa pedir a senha de administrador. Use o sudo.</translation>
    </message>
    <message>
        <source>No known polkit agent, the program that asks for the password, runs in your session. Use sudo, or start an agent such as lxpolkit.</source>
        <translation>Nenhum agente polkit conhecido (o programa que pede a senha) está em execução na sua sessão. Use o sudo ou inicie um agente, como o lxpolkit.</translation>
    </message>
    <message>
        <source>polkit is installed, and an agent that asks for the password runs in your session.</source>
        <translation>O polkit está instalado, e um agente que pede a senha está em execução na sua sessão.</translation>
    </message>
    <message>
        <source>Veldmark runs as root here and asks for no password.</source>
        <translation>O Veldmark está em execução como root aqui e não pede senha.</translation>
    </message>
    <message>
        <source>Passwordless mode is set up.</source>
        <translation>O modo sem senha está configurado.</translation>
    </message>
    <message>
        <source>sudo isn&apos;t installed. Passwordless mode needs it.</source>
        <translation>O sudo não está instalado. O modo sem senha precisa dele.</translation>
    </message>
    <message>
        <source>sudo is installed. Only root can tell whether you may use it.</source>
        <translation>O sudo está instalado. Só o root pode saber se você tem permissão para usá-lo.</translation>
    </message>
    <message>
        <source>sudo is installed, and you are in the group %1.</source>
        <translation>O sudo está instalado, e você está no grupo %1.</translation>
    </message>
    <message>
        <source>The program listens on IPv6. If it takes IPv6 alone, Tor can use the port.</source>
        <translation>O programa escuta em IPv6. Se ele aceitar apenas IPv6, o Tor poderá usar a porta.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by a program of the account %2.</source>
        <translation>A porta %1, de que o Tor precisa, está ocupada por um programa da conta %2.</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) runs. Veldmark stops it while it is connected and starts it again afterwards.</source>
        <translation>O serviço Tor do próprio sistema (%1) está em execução. O Veldmark o para enquanto está conectado e depois o inicia de novo.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2 (process %3, account %4).</source>
        <translation>A porta %1, de que o Tor precisa, está ocupada por %2 (processo %3, conta %4).</translation>
    </message>
    <message>
        <source>Veldmark&apos;s own Tor holds the ports 9050, 9051 and 293.</source>
        <translation>O Tor do próprio Veldmark ocupa as portas 9050, 9051 e 293.</translation>
    </message>
    <message>
        <source>The ports that Tor needs (9050, 9051 and 293) are free.</source>
        <translation>As portas de que o Tor precisa (9050, 9051 e 293) estão livres.</translation>
    </message>
    <message>
        <source>The location of Tor in the settings, %1, is not an executable program. Veldmark searches the usual places instead.</source>
        <translation>O local do Tor nas configurações, %1, não é um programa executável. Em vez disso, o Veldmark procura nos locais habituais.</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed.</source>
        <translation>O Tor não está instalado.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t start, or isn&apos;t Tor: it prints no version.</source>
        <translation>%1 não inicia ou não é o Tor: não informa a versão.</translation>
    </message>
    <message>
        <source>Tor %1 is installed: %2.</source>
        <translation>O Tor %1 está instalado: %2.</translation>
    </message>
    <message>
        <source>The program %1 is missing. Veldmark&apos;s helper needs it.</source>
        <translation>Falta o programa %1. O programa auxiliar do Veldmark precisa dele.</translation>
    </message>
    <message>
        <source>Every program that Veldmark&apos;s helper calls is installed.</source>
        <translation>Todos os programas que o programa auxiliar do Veldmark chama estão instalados.</translation>
    </message>
    <message>
        <source>The helper is missing. Reinstall Veldmark.</source>
        <translation>Falta o programa auxiliar. Instale o Veldmark de novo.</translation>
    </message>
    <message>
        <source>Accounts other than root can change Veldmark&apos;s helper, %1, and with it what the administrator&apos;s password runs.</source>
        <translation>Outras contas além do root podem alterar o programa auxiliar do Veldmark, %1, e, com isso, o que a senha de administrador executa.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper, %1, is not installed: the account %2 can change it, and with it what the administrator&apos;s password runs.</source>
        <translation>O programa auxiliar do Veldmark, %1, não está instalado: a conta %2 pode alterá-lo e, com isso, alterar o que a senha de administrador executa.</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper is installed, and only root can change it: %1.</source>
        <translation>O programa auxiliar do Veldmark está instalado, e só o root pode alterá-lo: %1.</translation>
    </message>
    <message>
        <source>The helper of passwordless mode belongs to another version. Set up passwordless mode again in Settings, General.</source>
        <translation>O programa auxiliar do modo sem senha é de outra versão. Configure de novo o modo sem senha em “Configurações → Geral”.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridges need bridge programs where Tor is blocked, and none was found.</source>
        <translation>As pontes estão desativadas. Onde o Tor é bloqueado, elas precisam de programas de ponte, e nenhum foi encontrado.</translation>
    </message>
    <message>
        <source>Bridges are off. Bridge programs were found: %1.</source>
        <translation>As pontes estão desativadas. Programas de ponte encontrados: %1.</translation>
    </message>
    <message>
        <source>The chosen bridges can&apos;t be used. %1</source>
        <translation>As pontes escolhidas não podem ser usadas. %1</translation>
    </message>
    <message>
        <source>The chosen bridges (%1) can be used: %2.</source>
        <translation>As pontes escolhidas (%1) podem ser usadas: %2.</translation>
    </message>
    <message>
        <source>%1 manages DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>%1 gerencia o DNS. O Veldmark altera isso enquanto está conectado e depois restaura.</translation>
    </message>
    <message>
        <source>Veldmark wrote %1. It points DNS at Tor.</source>
        <translation>O Veldmark gravou %1. Esse arquivo aponta o DNS para o Tor.</translation>
    </message>
    <message>
        <source>The file %1 is missing, so DNS may not work at all.</source>
        <translation>Falta o arquivo %1, então o DNS talvez não funcione.</translation>
    </message>
    <message>
        <source>A resolver on this computer answers DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>Um resolvedor neste computador responde ao DNS. O Veldmark altera isso enquanto está conectado e depois restaura.</translation>
    </message>
    <message>
        <source>No earlier session is left open.</source>
        <translation>Nenhuma sessão anterior ficou aberta.</translation>
    </message>
    <message>
        <source>A Tor of an earlier session still runs (process %1).</source>
        <translation>Um Tor de uma sessão anterior ainda está em execução (processo %1).</translation>
    </message>
    <message>
        <source>A session is open: the network is set up for Tor, and Tor runs.</source>
        <translation>Há uma sessão aberta: a rede está configurada para o Tor, e o Tor está em execução.</translation>
    </message>
    <message>
        <source>The network is set up for Tor. It isn&apos;t known whether Tor still runs.</source>
        <translation>A rede está configurada para o Tor. Aqui não se sabe se o Tor ainda está em execução.</translation>
    </message>
    <message>
        <source>The network is still set up for Tor from an earlier session, and no Tor runs. Connect again, or restore the network.</source>
        <translation>A rede ainda está configurada para o Tor por uma sessão anterior, e nenhum Tor está em execução. Conecte de novo ou restaure a rede.</translation>
    </message>
    <message>
        <source>A session is open, and it isn&apos;t known whether its kill switch blocks traffic: no watcher watches the rules. Restore the network, and connect again.</source>
        <translation>Há uma sessão aberta, e não se sabe se o kill switch dela está em vigor: nada monitora as regras. Restaure a rede e conecte de novo.</translation>
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
        <translation>%1 de %2 MB (%3%)</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this computer. While connected, Veldmark stops the system&apos;s own Tor service.</source>
        <translation>O Veldmark precisa de acesso de administrador para gerenciar o roteamento pelo Tor neste computador. Enquanto está conectado, o Veldmark mantém parado o serviço Tor do próprio sistema.</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this Mac.</source>
        <translation>O Veldmark precisa de acesso de administrador para gerenciar o roteamento pelo Tor neste Mac.</translation>
    </message>
    <message>
        <source>The archive contains %1: %2</source>
        <translation>O pacote contém %1: %2</translation>
    </message>
    <message>
        <source>a link that leads elsewhere</source>
        <translation>um link que leva para fora dele</translation>
    </message>
    <message>
        <source>a hard link</source>
        <translation>um link físico</translation>
    </message>
    <message>
        <source>an entry that is neither a file nor a folder</source>
        <translation>algo que não é arquivo nem pasta</translation>
    </message>
    <message>
        <source>a path that leads elsewhere</source>
        <translation>um caminho que leva para fora dele</translation>
    </message>
    <message>
        <source>The file is empty or not an archive.</source>
        <translation>O arquivo está vazio ou não é um pacote.</translation>
    </message>
    <message>
        <source>The archive&apos;s list of files is ambiguous.</source>
        <translation>A lista de arquivos do pacote é ambígua.</translation>
    </message>
    <message>
        <source>The archive contains too many files.</source>
        <translation>O pacote contém arquivos demais.</translation>
    </message>
    <message>
        <source>The archive&apos;s content is too large.</source>
        <translation>O conteúdo do pacote é grande demais.</translation>
    </message>
    <message>
        <source>The archive&apos;s content could not be listed.</source>
        <translation>Não foi possível listar o conteúdo do pacote.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make the folder %1: %2.</source>
        <translation>Não foi possível criar a pasta %1: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1: %2.</source>
        <translation>Não foi possível abrir %1: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t make a folder beside %1: %2.</source>
        <translation>Não foi possível criar uma pasta ao lado de %1: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2.</source>
        <translation>Não foi possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>%1 didn&apos;t end within %2 minutes.</source>
        <translation>%1 não terminou em %2 min.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load the Tor Browser signing key. %1</source>
        <translation>Não foi possível carregar a chave de assinatura do Tor Browser. %1</translation>
    </message>
    <message>
        <source>The server sent more than %1 can be.</source>
        <translation>O servidor enviou mais dados do que seria possível: %1.</translation>
    </message>
    <message>
        <source>the version index</source>
        <translation>índice de versões</translation>
    </message>
    <message>
        <source>the bridge programs</source>
        <translation>programas de ponte</translation>
    </message>
    <message>
        <source>signature</source>
        <translation>assinatura</translation>
    </message>
    <message>
        <source>signing key</source>
        <translation>chave de assinatura</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>Instalando…</translation>
    </message>
    <message>
        <source>No applications are installed.</source>
        <translation>Nenhum aplicativo está instalado.</translation>
    </message>
    <message>
        <source>(not in the menu)</source>
        <translation>(fora do menu)</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>O arquivo “%1” não existe.</translation>
    </message>
    <message>
        <source>There is no application &quot;%1&quot;; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>O aplicativo “%1” não existe; “veldmarkctl apps” lista os aplicativos.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be any of: %2. Give the path.</source>
        <translation>“%1” pode ser qualquer um destes: %2. Informe o caminho.</translation>
    </message>
    <message>
        <source>%1 needs a key: veldmarkctl %1 KEY.</source>
        <translation>%1 precisa de uma chave: veldmarkctl %1 KEY.</translation>
    </message>
    <message>
        <source>%1 needs a key and a value: veldmarkctl %1 KEY VALUE.</source>
        <translation>%1 precisa de uma chave e de um valor: veldmarkctl %1 KEY VALUE.</translation>
    </message>
    <message>
        <source>A command is missing. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Falta um comando. “veldmarkctl help” lista os comandos.</translation>
    </message>
    <message>
        <source>Unknown command %1. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>Comando desconhecido: %1. “veldmarkctl help” lista os comandos.</translation>
    </message>
    <message>
        <source>%1 has no option %2.</source>
        <translation>%1 não tem a opção %2.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t take %2.</source>
        <translation>%1 não aceita %2.</translation>
    </message>
    <message>
        <source>usage: veldmarkctl COMMAND</source>
        <translation>uso: veldmarkctl COMMAND</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage,
3 Veldmark is not running, 4 Veldmark is already running.</source>
        <translation>Código de saída: 0 feito, 1 falhou (o motivo está na saída de erro padrão),
2 uso incorreto, 3 o Veldmark não está em execução, 4 ele já está em execução.</translation>
    </message>
    <message>
        <source>line %1 is not a bridge line: %2</source>
        <translation>a linha %1 não é uma linha de ponte: %2</translation>
    </message>
    <message>
        <source>%1 too many, from line %2 on; at most %3 can be used</source>
        <translation>linhas a mais: %1, a partir da linha %2; o limite é de %3</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programas</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>não encontrado</translation>
    </message>
    <message>
        <source>doesn&apos;t say which transports it serves</source>
        <translation>não informa quais transportes oferece</translation>
    </message>
    <message>
        <source>serves %1</source>
        <translation>oferece %1</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>Pontes integradas</translation>
    </message>
    <message>
        <source>Built-in bridges, from %1</source>
        <translation>Pontes integradas, de %1</translation>
    </message>
    <message>
        <source>none; get some with: veldmarkctl download-transports</source>
        <translation>nenhuma; obtenha algumas com: veldmarkctl download-transports</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>assinatura verificada</translation>
    </message>
    <message>
        <source>signature not verified</source>
        <translation>assinatura não verificada</translation>
    </message>
    <message>
        <source>not downloaded</source>
        <translation>não baixado</translation>
    </message>
    <message>
        <source>Your own bridges</source>
        <translation>Suas próprias pontes</translation>
    </message>
    <message>
        <source>%1 valid</source>
        <translation>válidas: %1</translation>
    </message>
    <message>
        <source>Installed Tor Expert Bundle %1, signature verified.</source>
        <translation>Tor Expert Bundle %1 instalado, assinatura verificada.</translation>
    </message>
    <message>
        <source>Veldmark isn&apos;t running. Start it with: veldmarkctl run --connect</source>
        <translation>O Veldmark não está em execução. Inicie-o com: veldmarkctl run --connect</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;. Fields: %2.</source>
        <translation>O campo “%1” não existe. Campos: %2.</translation>
    </message>
    <message>
        <source>list the commands</source>
        <translation>lista os comandos</translation>
    </message>
    <message>
        <source>good</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>note</source>
        <translation>nota</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>incerto</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>problema</translation>
    </message>
    <message>
        <source>A connect can work.</source>
        <translation>É possível conectar.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work yet.</source>
        <translation>Ainda não é possível conectar.</translation>
    </message>
    <message>
        <source>A connect can&apos;t work until each &quot;problem&quot; is fixed.</source>
        <translation>Não é possível conectar antes que cada “problema” seja resolvido.</translation>
    </message>
    <message>
        <source>proxy: apps that ignore the system proxy are not covered</source>
        <translation>proxy: não abrange aplicativos que ignoram o proxy do sistema</translation>
    </message>
    <message>
        <source>strict: only Tor&apos;s traffic leaves</source>
        <translation>estrito: só sai o tráfego do Tor</translation>
    </message>
    <message>
        <source>strict</source>
        <translation>estrito</translation>
    </message>
    <message>
        <source>blocks traffic, since %1</source>
        <translation>bloqueia o tráfego, desde %1</translation>
    </message>
    <message>
        <source>blocks traffic; put back at %1 after another program had removed it</source>
        <translation>bloqueia o tráfego; restaurado em %1 depois que outro programa o removeu</translation>
    </message>
    <message>
        <source>NOT BLOCKING since %1: traffic may leave this computer directly</source>
        <translation>NÃO BLOQUEIA desde %1: pode haver tráfego saindo diretamente deste computador</translation>
    </message>
    <message>
        <source>isn&apos;t known to block traffic, since %1</source>
        <translation>não se sabe se bloqueia o tráfego, desde %1</translation>
    </message>
    <message>
        <source>not checked yet</source>
        <translation>ainda sem verificação</translation>
    </message>
    <message>
        <source>the check service didn&apos;t answer through Tor</source>
        <translation>o serviço de verificação não respondeu pelo Tor</translation>
    </message>
    <message>
        <source>%1, a Tor exit</source>
        <translation>%1, uma saída do Tor</translation>
    </message>
    <message>
        <source>%1, NOT a Tor exit</source>
        <translation>%1, NÃO é uma saída do Tor</translation>
    </message>
    <message>
        <source>open; it shows the address %1</source>
        <translation>aberta; expõe o endereço %1</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>bloqueada</translation>
    </message>
    <message>
        <source>no answer, but it isn&apos;t known whether the kill switch blocks it</source>
        <translation>sem resposta, mas não se sabe se o kill switch a bloqueia</translation>
    </message>
    <message>
        <source>no answer, but proxy mode doesn&apos;t block it</source>
        <translation>sem resposta, mas o modo proxy não a bloqueia</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>verificando…</translation>
    </message>
    <message>
        <source>inconclusive</source>
        <translation>não foi possível saber</translation>
    </message>
    <message>
        <source>can go around Tor via: %1</source>
        <translation>pode sair por fora do Tor via: %1</translation>
    </message>
    <message>
        <source>a test lookup went through Tor</source>
        <translation>uma consulta de teste passou pelo Tor</translation>
    </message>
    <message>
        <source>testing…</source>
        <translation>testando…</translation>
    </message>
    <message>
        <source>settings point at Tor, but a test lookup couldn&apos;t be confirmed</source>
        <translation>as configurações apontam para o Tor, mas não foi possível confirmar uma consulta de teste</translation>
    </message>
    <message>
        <source>not tested yet</source>
        <translation>ainda não testado</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modo</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Latência</translation>
    </message>
    <message>
        <source>%1 ms through Tor</source>
        <translation>%1 ms pelo Tor</translation>
    </message>
    <message>
        <source>Direct path</source>
        <translation>Rota direta</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Tráfego</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>recebido: %1, enviado: %2</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>Pontes</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>O que fazer</translation>
    </message>
    <message>
        <source>nothing; veldmarkctl restore would end that session</source>
        <translation>nada; veldmarkctl restore encerraria essa sessão</translation>
    </message>
    <message>
        <source>Kill switch</source>
        <translation>Kill switch</translation>
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
        <translation>Ainda não há circuitos.</translation>
    </message>
    <message>
        <source>Ready. Connect with: veldmarkctl connect</source>
        <translation>Pronto. Conecte com: veldmarkctl connect</translation>
    </message>
    <message>
        <source>Still restoring your network, one moment…</source>
        <translation>Ainda restaurando sua rede, um momento…</translation>
    </message>
    <message>
        <source>Stopping as soon as Tor has been started…</source>
        <translation>O Veldmark será encerrado assim que o Tor tiver iniciado…</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Restore it with: %1</source>
        <translation>A rede ainda está configurada para o Tor. Restaure-a com: %1</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Press Ctrl-C to try again.</source>
        <translation>A rede ainda está configurada para o Tor. Pressione Ctrl-C para tentar de novo.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Press Ctrl-C to disconnect.</source>
        <translation>Pressione Ctrl-C para desconectar.</translation>
    </message>
    <message>
        <source>A command to Tor can&apos;t contain a line break or a NUL.</source>
        <translation>Um comando para o Tor não pode conter quebra de linha nem NUL.</translation>
    </message>
    <message>
        <source>Tor sent a line of more than 1 MiB on its control port.</source>
        <translation>O Tor enviou uma linha de mais de 1 MiB na porta de controle.</translation>
    </message>
    <message>
        <source>Tor sent a reply of more than 64 MiB on its control port.</source>
        <translation>O Tor enviou uma resposta de mais de 64 MiB na porta de controle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>“%1” não é true nem false.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a JSON array of strings.</source>
        <translation>“%1” não é um array JSON de strings.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a bridge choice: off, obfs4, snowflake, meek or custom.</source>
        <translation>“%1” não é uma opção de pontes: off, obfs4, snowflake, meek ou custom.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;. Settings: %2.</source>
        <translation>A configuração “%1” não existe. Configurações: %2.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes. (%1)</source>
        <translation>O Tor não concluiu a conexão em 5 minutos. (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an exit country: two lower-case letters such as &quot;de&quot;, or nothing for any.</source>
        <translation>“%1” não é um país de saída: duas letras minúsculas, como “de”, ou nada para qualquer um.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an application: an absolute path that ends in &quot;%2&quot;.</source>
        <translation>“%1” não é um aplicativo: deve ser um caminho absoluto terminado em “%2”.</translation>
    </message>
    <message>
        <source>strict mode with the kill switch, else proxy mode</source>
        <translation>modo estrito com o kill switch; senão, o modo proxy</translation>
    </message>
    <message>
        <source>strict mode lets the local network through</source>
        <translation>o modo estrito deixa passar a rede local</translation>
    </message>
    <message>
        <source>two lower-case letters, or nothing for any</source>
        <translation>duas letras minúsculas, ou nada para qualquer um</translation>
    </message>
    <message>
        <source>the path of the tor to use, or nothing to search for tor</source>
        <translation>o caminho do tor a usar, ou nada para procurar o tor</translation>
    </message>
    <message>
        <source>which bridges</source>
        <translation>quais pontes</translation>
    </message>
    <message>
        <source>your own bridge lines, as typed</source>
        <translation>suas próprias linhas de ponte, como digitadas</translation>
    </message>
    <message>
        <source>paths of applications that may be opened without Tor</source>
        <translation>caminhos dos aplicativos que podem ser abertos sem o Tor</translation>
    </message>
    <message>
        <source>connect when Veldmark starts</source>
        <translation>conecta quando o Veldmark inicia</translation>
    </message>
    <message>
        <source>test bridges before connecting, look for a faster path afterwards</source>
        <translation>testa as pontes antes de conectar e depois procura um caminho mais rápido</translation>
    </message>
    <message>
        <source>command-line tools go through Tor while connected</source>
        <translation>ferramentas de linha de comando usam o Tor durante a conexão</translation>
    </message>
    <message>
        <source>with your package manager</source>
        <translation>com seu gerenciador de pacotes</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>Iniciando…</translation>
    </message>
    <message>
        <source>&quot;set&quot; needs a &quot;key&quot; and a &quot;value&quot;, both strings.</source>
        <translation>“set” precisa de “key” e “value”, ambos strings.</translation>
    </message>
    <message>
        <source>Already connected or connecting; &quot;veldmarkctl status&quot; says more.</source>
        <translation>Já conectado ou conectando; “veldmarkctl status” diz mais.</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>Agora não: %1</translation>
    </message>
    <message>
        <source>A check is already running.</source>
        <translation>Já há uma verificação em andamento.</translation>
    </message>
    <message>
        <source>There is no circuit &quot;%1&quot;.</source>
        <translation>O circuito “%1” não existe.</translation>
    </message>
    <message>
        <source>Tor didn&apos;t close circuit %1.</source>
        <translation>O Tor não fechou o circuito %1.</translation>
    </message>
    <message>
        <source>&quot;launch&quot; needs an &quot;app&quot;, an absolute path.</source>
        <translation>“launch” precisa de “app”, um caminho absoluto.</translation>
    </message>
    <message>
        <source>Veldmark stopped before it had answered.</source>
        <translation>O Veldmark foi encerrado antes de responder.</translation>
    </message>
    <message>
        <source>Veldmark is already running (process %1).</source>
        <translation>O Veldmark já está em execução (processo %1).</translation>
    </message>
    <message>
        <source>%1 must be a folder of your own with mode 0700: the control socket goes there.</source>
        <translation>%1 deve ser uma pasta sua com permissões 0700: o soquete de controle fica nela.</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1/lock.</source>
        <translation>Não foi possível gravar %1/lock.</translation>
    </message>
    <message>
        <source>Couldn&apos;t listen on %1: %2.</source>
        <translation>Não foi possível escutar em %1: %2.</translation>
    </message>
    <message>
        <source>A command is a JSON object on one line.</source>
        <translation>Um comando é um objeto JSON em uma só linha.</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>Comando desconhecido: “%1”.</translation>
    </message>
    <message>
        <source>Not connected.</source>
        <translation>Não conectado.</translation>
    </message>
    <message>
        <source>The session has ended: %1</source>
        <translation>A sessão terminou: %1</translation>
    </message>
    <message>
        <source>as JSON</source>
        <translation>em JSON</translation>
    </message>
    <message>
        <source>connect at once</source>
        <translation>conecta imediatamente</translation>
    </message>
    <message>
        <source>run Veldmark here, in the foreground; Ctrl-C disconnects</source>
        <translation>executa o Veldmark aqui, em primeiro plano; Ctrl-C desconecta</translation>
    </message>
    <message>
        <source>go on until Ctrl-C</source>
        <translation>continua até Ctrl-C</translation>
    </message>
    <message>
        <source>print the connection&apos;s state; --watch goes on until Ctrl-C</source>
        <translation>mostra o estado da conexão; --watch continua até Ctrl-C</translation>
    </message>
    <message>
        <source>connect the running instance to Tor</source>
        <translation>conecta ao Tor o Veldmark em execução</translation>
    </message>
    <message>
        <source>restore the network and stop Tor</source>
        <translation>restaura a rede e encerra o Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor, also after a crash</source>
        <translation>restaura a rede e encerra o Tor, inclusive depois de uma falha</translation>
    </message>
    <message>
        <source>check the exit address, the direct path and DNS now</source>
        <translation>verifica agora o endereço de saída, a rota direta e o DNS</translation>
    </message>
    <message>
        <source>point the system&apos;s DNS settings at Tor again</source>
        <translation>aponta de novo para o Tor as configurações de DNS do sistema</translation>
    </message>
    <message>
        <source>Tor&apos;s circuits and the sites on them</source>
        <translation>mostra os circuitos do Tor e os sites em cada um</translation>
    </message>
    <message>
        <source>close a circuit; its sites get a fresh path on their next request</source>
        <translation>fecha um circuito; os sites dele ganham um novo caminho na próxima solicitação</translation>
    </message>
    <message>
        <source>close-circuit needs a circuit&apos;s number; &quot;veldmarkctl circuits&quot; shows them.</source>
        <translation>close-circuit precisa do número de um circuito; “veldmarkctl circuits” mostra os números.</translation>
    </message>
    <message>
        <source>new circuits for everything</source>
        <translation>novos circuitos para tudo</translation>
    </message>
    <message>
        <source>warnings and errors only</source>
        <translation>só avisos e erros</translation>
    </message>
    <message>
        <source>Tor&apos;s log; --problems shows warnings and errors only</source>
        <translation>mostra o registro do Tor; --problems mostra só avisos e erros</translation>
    </message>
    <message>
        <source>the bridge programs and built-in bridges that were found, and
which of your own bridge lines are not valid</source>
        <translation>mostra os programas de ponte e as pontes integradas encontrados, e quais
das suas próprias linhas de ponte não são válidas</translation>
    </message>
    <message>
        <source>fetch the Tor Project&apos;s bridge programs and built-in bridges</source>
        <translation>obtém os programas de ponte e as pontes integradas do Projeto Tor</translation>
    </message>
    <message>
        <source>the installed applications; * marks those in the setting &quot;bypassApps&quot;</source>
        <translation>lista os aplicativos instalados; * marca os da configuração “bypassApps”</translation>
    </message>
    <message>
        <source>open an application without Tor, with your own address; needs strict mode.
APP is a name from &quot;apps&quot;, the file name of its desktop entry, or the path
of an entry or a program. Running copies are asked to quit first</source>
        <translation>abre um aplicativo sem o Tor, com o seu endereço real; exige o modo estrito.
APP é um nome de “apps”, o nome ou o caminho de um arquivo .desktop, ou o
caminho de um programa. Antes, pede que as cópias em execução se encerrem</translation>
    </message>
    <message>
        <source>launch needs an application; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>launch precisa de um aplicativo; “veldmarkctl apps” lista os aplicativos.</translation>
    </message>
    <message>
        <source>check what a connect needs on this computer, what blocks it and how to fix
it. Changes nothing; the exit status is 0 when a connect can work</source>
        <translation>examina este computador: o que uma conexão exige, o que a impede e como
resolver. Não altera nada; termina com 0 quando é possível conectar</translation>
    </message>
    <message>
        <source>print a field of &quot;status --json&quot;</source>
        <translation>mostra um campo de “status --json”</translation>
    </message>
    <message>
        <source>change a setting; most of them only while not connected</source>
        <translation>altera uma configuração; a maioria, só quando não há conexão</translation>
    </message>
    <message>
        <source>Can&apos;t read Tor&apos;s log</source>
        <translation>Não é possível ler o registro do Tor</translation>
    </message>
    <message>
        <source>The log files in %1 aren&apos;t readable by your account. Reconnect once with this version of Veldmark to fix their permissions.</source>
        <translation>Sua conta não tem permissão para ler os arquivos de registro em %1. Reconecte uma vez com esta versão do Veldmark para corrigir as permissões deles.</translation>
    </message>
    <message>
        <source>No log yet</source>
        <translation>Ainda não há registro</translation>
    </message>
    <message>
        <source>Connect, and Tor&apos;s messages appear here as it starts. If Tor fails to start, the reason shows up here.</source>
        <translation>Conecte, e as mensagens do Tor aparecem aqui enquanto ele inicia. Se o Tor não conseguir iniciar, o motivo aparece aqui.</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>Nenhum resultado</translation>
    </message>
    <message>
        <source>No lines contain “%1”</source>
        <translation>Nenhuma linha contém “%1”</translation>
    </message>
    <message>
        <source>No warnings or errors. Tor is happy.</source>
        <translation>Sem avisos nem erros. O Tor vai bem.</translation>
    </message>
    <message>
        <source>The bridge program %1 reports: %2</source>
        <translation>O programa de ponte %1 informa: %2</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly.</source>
        <translation>O programa de ponte %1 terminou inesperadamente.</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending.</source>
        <translation>O programa de ponte %1 termina repetidamente.</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly (exit status %2).</source>
        <translation>O programa de ponte %1 terminou inesperadamente (código de saída %2).</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending (exit status %2).</source>
        <translation>O programa de ponte %1 termina repetidamente (código de saída %2).</translation>
    </message>
    <message>
        <source>It said: &quot;%1&quot;.</source>
        <translation>Ele disse: “%1”.</translation>
    </message>
    <message>
        <source>The program is quitting.</source>
        <translation>O programa está sendo encerrado.</translation>
    </message>
    <message>
        <source>Veldmark replaces the running strict session. The new session may protect you less.</source>
        <translation>O Veldmark substitui a sessão estrita em andamento. A nova talvez proteja você menos.</translation>
    </message>
    <message>
        <source>Veldmark wants to run %1 as a part of Tor. No package of the system installed it. Its SHA-256 is %2.</source>
        <translation>O Veldmark quer executar %1 como parte do Tor. Esse programa não veio de nenhum pacote do sistema. O SHA-256 dele é %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be created: %2.</source>
        <translation>Não é possível criar %1: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed: %2.</source>
        <translation>Não é possível remover %1: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>Não é possível ler %1: %2.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2.</source>
        <translation>Não é possível gravar %1: %2.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 não é um arquivo.</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 é somente leitura.</translation>
    </message>
    <message>
        <source>%1 was changed by another program just now.</source>
        <translation>%1 acaba de ser alterado por outro programa.</translation>
    </message>
    <message>
        <source>%1 belongs to another user or group.</source>
        <translation>%1 pertence a outro usuário ou grupo.</translation>
    </message>
    <message>
        <source>A bridge line is not valid.</source>
        <translation>Uma linha de ponte não é válida.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your network settings.</source>
        <translation>Um registro das configurações de rede anteriores estava danificado (%1). A rede está desbloqueada de novo; confira suas configurações de rede.</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your proxy settings.</source>
        <translation>Um registro das configurações de rede anteriores estava danificado (%1). A rede está desbloqueada de novo; confira suas configurações de proxy.</translation>
    </message>
    <message>
        <source>An administrator password is needed to approve %1.</source>
        <translation>É necessária uma senha de administrador para aprovar %1.</translation>
    </message>
    <message>
        <source>An administrator password is needed to change the running strict session.</source>
        <translation>É necessária uma senha de administrador para alterar a sessão estrita em andamento.</translation>
    </message>
    <message>
        <source>An administrator password is needed to open an application without Tor.</source>
        <translation>É necessária uma senha de administrador para abrir um aplicativo sem o Tor.</translation>
    </message>
    <message>
        <source>An administrator password is needed to set this up.</source>
        <translation>É necessária uma senha de administrador para configurar isto.</translation>
    </message>
    <message>
        <source>Another program (process %1) has started a session meanwhile. That session was left alone.</source>
        <translation>Outro programa (processo %1) iniciou uma sessão nesse meio-tempo. Essa sessão não foi alterada.</translation>
    </message>
    <message>
        <source>Another run of the helper is still working. Try again in a moment.</source>
        <translation>Outra execução do programa auxiliar ainda está em andamento. Tente de novo daqui a pouco.</translation>
    </message>
    <message>
        <source>Applications are not opened as root.</source>
        <translation>Aplicativos não são abertos como root.</translation>
    </message>
    <message>
        <source>The helper opens applications only for the user who asks.</source>
        <translation>O programa auxiliar só abre aplicativos para o usuário que faz o pedido.</translation>
    </message>
    <message>
        <source>Applications cannot be opened without Tor on this system.</source>
        <translation>Não é possível abrir aplicativos sem o Tor neste sistema.</translation>
    </message>
    <message>
        <source>More than %1 bridges were given.</source>
        <translation>Foram informadas mais de %1 pontes.</translation>
    </message>
    <message>
        <source>Passwordless mode can be set up only for the user who asks.</source>
        <translation>O modo sem senha só pode ser configurado para o usuário que faz o pedido.</translation>
    </message>
    <message>
        <source>Another program is changing the firewall. Try again in a moment.</source>
        <translation>Outro programa está alterando o firewall. Tente de novo daqui a pouco.</translation>
    </message>
    <message>
        <source>The DNS servers of systemd-resolved cannot be changed.</source>
        <translation>Não é possível alterar os servidores DNS do systemd-resolved.</translation>
    </message>
    <message>
        <source>The DNS settings cannot be changed.</source>
        <translation>Não é possível alterar as configurações de DNS.</translation>
    </message>
    <message>
        <source>The DNS settings could not be put back.</source>
        <translation>Não foi possível restaurar as configurações de DNS.</translation>
    </message>
    <message>
        <source>The account %1 cannot be created.</source>
        <translation>Não é possível criar a conta %1.</translation>
    </message>
    <message>
        <source>The account %1 has no valid user id.</source>
        <translation>A conta %1 não tem um ID de usuário válido.</translation>
    </message>
    <message>
        <source>The account %1 must be neither root&apos;s nor the caller&apos;s.</source>
        <translation>A conta %1 não pode ser a do root nem a do usuário que faz o pedido.</translation>
    </message>
    <message>
        <source>The application could not be started.</source>
        <translation>Não foi possível iniciar o aplicativo.</translation>
    </message>
    <message>
        <source>The caller&apos;s user id is not a number.</source>
        <translation>O ID de usuário do solicitante não é um número.</translation>
    </message>
    <message>
        <source>The control group for Tor cannot be made.</source>
        <translation>Não é possível criar o grupo de controle para o Tor.</translation>
    </message>
    <message>
        <source>The control group of the applications without Tor could not be removed.</source>
        <translation>Não foi possível remover o grupo de controle dos aplicativos sem o Tor.</translation>
    </message>
    <message>
        <source>The copy of the program cannot be put into %1.</source>
        <translation>Não é possível colocar a cópia do programa em %1.</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings cannot be changed.</source>
        <translation>Não é possível alterar as configurações de proxy do ambiente de trabalho.</translation>
    </message>
    <message>
        <source>The exit country is not a two-letter code.</source>
        <translation>O país de saída não é um código de duas letras.</translation>
    </message>
    <message>
        <source>The file %1 cannot be made.</source>
        <translation>Não é possível criar o arquivo %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>Não é possível ler o arquivo %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed.</source>
        <translation>Não é possível remover o arquivo %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Não é possível gravar o arquivo %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be put back.</source>
        <translation>Não foi possível restaurar o arquivo %1.</translation>
    </message>
    <message>
        <source>The files in %1 cannot be removed.</source>
        <translation>Não é possível remover os arquivos em %1.</translation>
    </message>
    <message>
        <source>The firewall rules cannot be read, so nothing was done.</source>
        <translation>Não é possível ler as regras do firewall, então nada foi feito.</translation>
    </message>
    <message>
        <source>The firewall cannot be switched on (%1).</source>
        <translation>Não é possível ativar o firewall (%1).</translation>
    </message>
    <message>
        <source>The firewall cannot end the earlier connections.</source>
        <translation>O firewall não consegue encerrar as conexões anteriores.</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off (%1).</source>
        <translation>Não foi possível desativar o kill switch (%1).</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off, because another program is changing the firewall.</source>
        <translation>Não foi possível desativar o kill switch, porque outro programa está alterando o firewall.</translation>
    </message>
    <message>
        <source>The firewall does not hold the rules that were loaded.</source>
        <translation>O firewall não contém as regras que foram carregadas.</translation>
    </message>
    <message>
        <source>The firewall gave no token.</source>
        <translation>O firewall não devolveu um token.</translation>
    </message>
    <message>
        <source>The firewall leaves out the network device %1 (&quot;set skip&quot; in /etc/pf.conf), where nothing would be blocked.</source>
        <translation>O firewall deixa de fora o dispositivo de rede %1 (“set skip” em /etc/pf.conf); nele, nada seria bloqueado.</translation>
    </message>
    <message>
        <source>The firewall rules were not accepted (%1).</source>
        <translation>As regras de firewall não foram aceitas (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s devices cannot be read.</source>
        <translation>Não é possível ler os dispositivos do firewall.</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be changed (%1).</source>
        <translation>Não é possível alterar as regras principais do firewall (%1).</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be read.</source>
        <translation>Não é possível ler as regras principais do firewall.</translation>
    </message>
    <message>
        <source>The firewall&apos;s state cannot be read.</source>
        <translation>Não é possível ler o estado do firewall.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be changed.</source>
        <translation>Não é possível alterar a pasta %1.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>Não é possível criar a pasta %1.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>Não é possível gravar na pasta %1.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it and those above it.</source>
        <translation>A pasta %1 não é segura: ela e as pastas acima dela devem pertencer ao root, e só ele deve poder gravar nelas.</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it.</source>
        <translation>A pasta %1 não é segura: ela deve pertencer ao root, e só ele deve poder gravar nela.</translation>
    </message>
    <message>
        <source>The folder /etc/sudoers.d is missing or not safe.</source>
        <translation>A pasta /etc/sudoers.d não existe ou não é segura.</translation>
    </message>
    <message>
        <source>The folders above Veldmark&apos;s are not safe: only root may own or write them.</source>
        <translation>As pastas acima da do Veldmark não são seguras: elas devem pertencer ao root, e só ele deve poder gravar nelas.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read, so nothing was done.</source>
        <translation>Não é possível ler as pastas dentro de %1, então nada foi feito.</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read.</source>
        <translation>Não é possível ler as pastas dentro de %1.</translation>
    </message>
    <message>
        <source>The former network settings could not all be restored.</source>
        <translation>Não foi possível restaurar todas as configurações de rede anteriores.</translation>
    </message>
    <message>
        <source>The hashed control password is not valid.</source>
        <translation>O hash da senha de controle não é válido.</translation>
    </message>
    <message>
        <source>The helper could not be copied to %1.</source>
        <translation>Não foi possível copiar o programa auxiliar para %1.</translation>
    </message>
    <message>
        <source>The helper must run as root.</source>
        <translation>O programa auxiliar precisa ser executado como root.</translation>
    </message>
    <message>
        <source>The helper stopped unexpectedly.</source>
        <translation>O programa auxiliar parou inesperadamente.</translation>
    </message>
    <message>
        <source>The helper was given an option that it does not know.</source>
        <translation>O programa auxiliar recebeu uma opção que não conhece.</translation>
    </message>
    <message>
        <source>The helper does not know this verb.</source>
        <translation>O programa auxiliar não conhece este comando.</translation>
    </message>
    <message>
        <source>The record of the former network settings cannot be written.</source>
        <translation>Não é possível gravar o registro das configurações de rede anteriores.</translation>
    </message>
    <message>
        <source>The kill switch is not on, so no application needs to bypass it.</source>
        <translation>O kill switch não está ativado, então nenhum aplicativo precisa contorná-lo.</translation>
    </message>
    <message>
        <source>The launcher could not be copied to %1.</source>
        <translation>Não foi possível copiar o iniciador para %1.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be opened.</source>
        <translation>Não é possível abrir o arquivo de trava %1.</translation>
    </message>
    <message>
        <source>The lock file %1 is a link, so nothing was done.</source>
        <translation>O arquivo de trava %1 é um link, então nada foi feito.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back.</source>
        <translation>A rede está desbloqueada de novo, mas não foi possível restaurar os servidores DNS do systemd-resolved.</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back. Try: systemctl restart %1.</source>
        <translation>A rede está desbloqueada de novo, mas não foi possível restaurar os servidores DNS do systemd-resolved. Tente: systemctl restart %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the desktop&apos;s proxy settings could not be put back.</source>
        <translation>A rede está desbloqueada de novo, mas não foi possível restaurar as configurações de proxy do ambiente de trabalho.</translation>
    </message>
    <message>
        <source>The network is open again, but the journal in %1 cannot be cleared.</source>
        <translation>A rede está desbloqueada de novo, mas não é possível esvaziar o diário de alterações em %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the session marker cannot be removed from %1.</source>
        <translation>A rede está desbloqueada de novo, mas não é possível remover a marca de sessão de %1.</translation>
    </message>
    <message>
        <source>The network is open again, but the system&apos;s own Tor service could not be started again. Try: systemctl start %1.</source>
        <translation>A rede está desbloqueada de novo, mas não foi possível iniciar de novo o serviço Tor do próprio sistema. Tente: systemctl start %1.</translation>
    </message>
    <message>
        <source>The network is open, but pf could not be released.</source>
        <translation>A rede está desbloqueada, mas não foi possível liberar o pf.</translation>
    </message>
    <message>
        <source>The network is open, but the firewall&apos;s main rules could not be put back.</source>
        <translation>A rede está desbloqueada, mas não foi possível restaurar as regras principais do firewall.</translation>
    </message>
    <message>
        <source>The network location %1 still has Veldmark&apos;s settings. Choose it and disconnect again.</source>
        <translation>A localização de rede %1 ainda tem as configurações do Veldmark. Selecione-a e desconecte de novo.</translation>
    </message>
    <message>
        <source>The network settings cannot be read.</source>
        <translation>Não é possível ler as configurações de rede.</translation>
    </message>
    <message>
        <source>The network stays blocked until you disconnect.</source>
        <translation>A rede continua bloqueada até você desconectar.</translation>
    </message>
    <message>
        <source>The notes of what to restore cannot be read.</source>
        <translation>Não é possível ler as anotações do que restaurar.</translation>
    </message>
    <message>
        <source>The option %1 needs a value.</source>
        <translation>A opção %1 precisa de um valor.</translation>
    </message>
    <message>
        <source>The option %1 was given twice.</source>
        <translation>A opção %1 foi informada duas vezes.</translation>
    </message>
    <message>
        <source>The option --app is missing.</source>
        <translation>Falta a opção --app.</translation>
    </message>
    <message>
        <source>The option --hash is missing.</source>
        <translation>Falta a opção --hash.</translation>
    </message>
    <message>
        <source>The option --lan is missing.</source>
        <translation>Falta a opção --lan.</translation>
    </message>
    <message>
        <source>The option --program is missing.</source>
        <translation>Falta a opção --program.</translation>
    </message>
    <message>
        <source>The option --strict is missing.</source>
        <translation>Falta a opção --strict.</translation>
    </message>
    <message>
        <source>The option --tor is missing.</source>
        <translation>Falta a opção --tor.</translation>
    </message>
    <message>
        <source>The option --uid is missing.</source>
        <translation>Falta a opção --uid.</translation>
    </message>
    <message>
        <source>The options on standard input are not complete.</source>
        <translation>As opções na entrada padrão não estão completas.</translation>
    </message>
    <message>
        <source>The path given with %1 is not absolute.</source>
        <translation>O caminho informado com %1 não é absoluto.</translation>
    </message>
    <message>
        <source>The path given with --app is not absolute.</source>
        <translation>O caminho informado com --app não é absoluto.</translation>
    </message>
    <message>
        <source>The path given with --app names no application.</source>
        <translation>O caminho informado com --app não indica um aplicativo.</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2. End that program, then connect again.</source>
        <translation>A porta %1, de que o Tor precisa, está ocupada por %2. Encerre esse programa e conecte de novo.</translation>
    </message>
    <message>
        <source>a program (process %1)</source>
        <translation>um programa (processo %1)</translation>
    </message>
    <message>
        <source>a program of the account with the id %1</source>
        <translation>um programa da conta com o ID %1</translation>
    </message>
    <message>
        <source>The process id is not valid.</source>
        <translation>O ID do processo não é válido.</translation>
    </message>
    <message>
        <source>The program %1 cannot be copied.</source>
        <translation>Não é possível copiar o programa %1.</translation>
    </message>
    <message>
        <source>The program %1 cannot be found.</source>
        <translation>Não é possível encontrar o programa %1.</translation>
    </message>
    <message>
        <source>The program %1 is missing on this system.</source>
        <translation>Falta o programa %1 neste sistema.</translation>
    </message>
    <message>
        <source>The SHA-256 of the program %1 differs from the one to approve.</source>
        <translation>O SHA-256 do programa %1 não é o que deve ser aprovado.</translation>
    </message>
    <message>
        <source>The program given with %1 is not an executable file.</source>
        <translation>O programa informado com %1 não é um arquivo executável.</translation>
    </message>
    <message>
        <source>The program veldmark-launch is missing.</source>
        <translation>Falta o programa veldmark-launch.</translation>
    </message>
    <message>
        <source>The session marker cannot be written.</source>
        <translation>Não é possível gravar a marca de sessão.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be changed.</source>
        <translation>Não é possível alterar as configurações do serviço de rede %1.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be read.</source>
        <translation>Não é possível ler as configurações do serviço de rede %1.</translation>
    </message>
    <message>
        <source>The settings of the network service %1 could not be put back.</source>
        <translation>Não foi possível restaurar as configurações do serviço de rede %1.</translation>
    </message>
    <message>
        <source>The system&apos;s firewall cannot be used (%1).</source>
        <translation>Não é possível usar o firewall do sistema (%1).</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) cannot be stopped.</source>
        <translation>Não é possível parar o serviço Tor do próprio sistema (%1).</translation>
    </message>
    <message>
        <source>The user %1 is not known on this system.</source>
        <translation>O usuário %1 não é conhecido neste sistema.</translation>
    </message>
    <message>
        <source>The user id is not a number.</source>
        <translation>O ID de usuário não é um número.</translation>
    </message>
    <message>
        <source>The user name is not valid.</source>
        <translation>O nome de usuário não é válido.</translation>
    </message>
    <message>
        <source>The user root needs no password for the helper.</source>
        <translation>O usuário root não precisa de senha para o programa auxiliar.</translation>
    </message>
    <message>
        <source>The user with the id %1 is not known on this system.</source>
        <translation>O usuário com o ID %1 não é conhecido neste sistema.</translation>
    </message>
    <message>
        <source>The value of %1 contains control characters.</source>
        <translation>O valor de %1 contém caracteres de controle.</translation>
    </message>
    <message>
        <source>The value of %1 is too long.</source>
        <translation>O valor de %1 é longo demais.</translation>
    </message>
    <message>
        <source>The value of --as must be tor, lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>O valor de --as deve ser tor, lyrebird, snowflake-client ou webtunnel-client.</translation>
    </message>
    <message>
        <source>The value of --lan must be 0 or 1.</source>
        <translation>O valor de --lan deve ser 0 ou 1.</translation>
    </message>
    <message>
        <source>The value of --sha256 must be 64 small hexadecimal digits.</source>
        <translation>O valor de --sha256 deve ter 64 dígitos hexadecimais minúsculos.</translation>
    </message>
    <message>
        <source>The value of --strict must be 0 or 1.</source>
        <translation>O valor de --strict deve ser 0 ou 1.</translation>
    </message>
    <message>
        <source>The verb fix-dns takes no options.</source>
        <translation>O comando fix-dns não aceita opções.</translation>
    </message>
    <message>
        <source>The verb uninstall-privileged takes no options.</source>
        <translation>O comando uninstall-privileged não aceita opções.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be started.</source>
        <translation>Não foi possível iniciar o monitor das regras do firewall.</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be stopped.</source>
        <translation>Não foi possível parar o monitor das regras do firewall.</translation>
    </message>
    <message>
        <source>There are too many options on standard input.</source>
        <translation>Há opções demais na entrada padrão.</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which was not given.</source>
        <translation>Estas pontes precisam do lyrebird, que não foi informado.</translation>
    </message>
    <message>
        <source>These bridges need snowflake-client, which was not given.</source>
        <translation>Estas pontes precisam do snowflake-client, que não foi informado.</translation>
    </message>
    <message>
        <source>This helper is made for another system.</source>
        <translation>Este programa auxiliar foi feito para outro sistema.</translation>
    </message>
    <message>
        <source>Tor could not be started (%1).</source>
        <translation>Não foi possível iniciar o Tor (%1).</translation>
    </message>
    <message>
        <source>Tor could not be stopped.</source>
        <translation>Não foi possível parar o Tor.</translation>
    </message>
    <message>
        <source>Tor did not open its control port in time.</source>
        <translation>O Tor não abriu a porta de controle a tempo.</translation>
    </message>
    <message>
        <source>Tor did not start: %1</source>
        <translation>O Tor não iniciou: %1</translation>
    </message>
    <message>
        <source>Tor does not accept its configuration: %1</source>
        <translation>O Tor não aceita a configuração: %1</translation>
    </message>
    <message>
        <source>it ended without a message.</source>
        <translation>ele terminou sem nenhuma mensagem.</translation>
    </message>
    <message>
        <source>Tor&apos;s log files cannot be made.</source>
        <translation>Não é possível criar os arquivos de registro do Tor.</translation>
    </message>
    <message>
        <source>Two different callers were reported, so nothing was done.</source>
        <translation>Foram informados dois solicitantes diferentes, então nada foi feito.</translation>
    </message>
    <message>
        <source>Veldmark is in use by %1. An administrator password is needed to end that session.</source>
        <translation>O Veldmark está em uso por %1. É necessária uma senha de administrador para encerrar essa sessão.</translation>
    </message>
    <message>
        <source>Veldmark is not connected, so the DNS settings were left alone.</source>
        <translation>O Veldmark não está conectado, então as configurações de DNS não foram alteradas.</translation>
    </message>
    <message>
        <source>sudo rejects the rule for passwordless mode.</source>
        <translation>O sudo rejeita a regra do modo sem senha.</translation>
    </message>
    <message>
        <source>sudo is not installed on this system.</source>
        <translation>O sudo não está instalado neste sistema.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read.</source>
        <translation>Não é possível ler o arquivo .desktop.</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read (%1).</source>
        <translation>Não é possível ler o arquivo .desktop (%1).</translation>
    </message>
    <message>
        <source>The desktop entry names no program that is installed.</source>
        <translation>O arquivo .desktop não indica nenhum programa instalado.</translation>
    </message>
    <message>
        <source>The application could not be started (%1).</source>
        <translation>Não foi possível iniciar o aplicativo (%1).</translation>
    </message>
    <message>
        <source>There is no such application or program.</source>
        <translation>Esse aplicativo ou programa não existe.</translation>
    </message>
    <message>
        <source>The program could not be started.</source>
        <translation>Não foi possível iniciar o programa.</translation>
    </message>
    <message>
        <source>The program could not be started (%1).</source>
        <translation>Não foi possível iniciar o programa (%1).</translation>
    </message>
    <message>
        <source>The user is not known on this system.</source>
        <translation>O usuário não é conhecido neste sistema.</translation>
    </message>
    <message>
        <source>There is no application at %1.</source>
        <translation>Não há nenhum aplicativo em %1.</translation>
    </message>
    <message>
        <source>The home folder cannot be entered.</source>
        <translation>Não é possível entrar na pasta pessoal.</translation>
    </message>
    <message>
        <source>nft doesn&apos;t answer.</source>
        <translation>O nft não responde.</translation>
    </message>
    <message>
        <source>nft fails.</source>
        <translation>O nft falha.</translation>
    </message>
    <message>
        <source>Ended because the display is gone. Your network is still set up for Tor: start Veldmark again, or restore the network with: %1</source>
        <translation>Encerrado por ter perdido a tela. Sua rede ainda está configurada para o Tor: inicie o Veldmark de novo ou restaure a rede com: %1</translation>
    </message>
    <message>
        <source>your package manager</source>
        <translation>seu gerenciador de pacotes</translation>
    </message>
    <message>
        <source>The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo %1 on.</source>
        <translation>A rede está desbloqueada de novo, mas não foi possível configurar o dispositivo de loopback como antes. Tente: ethtool -K lo %1 on.</translation>
    </message>
    <message>
        <source>This system can&apos;t tell applications apart.</source>
        <translation>Este sistema não consegue distinguir os aplicativos.</translation>
    </message>
    <message>
        <source>Applications are not separated now: they share circuits.</source>
        <translation>Os aplicativos não estão separados agora: eles compartilham circuitos.</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>usuário %1</translation>
    </message>
    <message>
        <source>No application has an identity of its own now.</source>
        <translation>Nenhum aplicativo tem identidade própria agora.</translation>
    </message>
    <message>
        <source>No application of yours has that identity; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>Nenhum aplicativo seu tem essa identidade; “veldmarkctl identities” lista as identidades.</translation>
    </message>
    <message>
        <source>The application did not get a new identity.</source>
        <translation>O aplicativo não recebeu uma nova identidade.</translation>
    </message>
    <message>
        <source>The program did not get an identity of its own, so it was not started.</source>
        <translation>O programa não recebeu uma identidade própria, por isso não foi iniciado.</translation>
    </message>
    <message>
        <source>A name has up to 40 letters, digits, dots and underscores.</source>
        <translation>Um nome tem no máximo 40 letras, dígitos, pontos e sublinhados.</translation>
    </message>
    <message>
        <source>The program systemd-run is missing. Veldmark needs it to make a group for a program.</source>
        <translation>Falta o programa systemd-run. O Veldmark precisa dele para criar um grupo para um programa.</translation>
    </message>
    <message>
        <source>The program could not be started: %1.</source>
        <translation>Não foi possível iniciar o programa: %1.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>each application has circuits of its own</source>
        <translation>cada aplicativo tem seus próprios circuitos</translation>
    </message>
    <message>
        <source>the applications that have circuits of their own, and the loopback address
by which Tor distinguishes them</source>
        <translation>mostra os aplicativos que têm circuitos próprios e o endereço de loopback
pelo qual o Tor distingue cada um dos demais</translation>
    </message>
    <message>
        <source>new circuits for one application, from its next connection on; APP is as
&quot;identities&quot; names it</source>
        <translation>novos circuitos para um aplicativo, a partir da próxima conexão dele; APP é
o nome dado por “identities”</translation>
    </message>
    <message>
        <source>renew needs an application; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>renew precisa de um aplicativo; “veldmarkctl identities” lista os aplicativos.</translation>
    </message>
    <message>
        <source>run a program (after --) with circuits of its own; a later run with the same
name in the same session has the same ones</source>
        <translation>executa um programa (depois de --) com circuitos próprios; outra execução com
o mesmo nome na mesma sessão usa os mesmos circuitos</translation>
    </message>
    <message>
        <source>run-as needs a name and a program: veldmarkctl run-as NAME -- PROGRAM.</source>
        <translation>run-as precisa de um nome e de um programa: veldmarkctl run-as NAME -- PROGRAM.</translation>
    </message>
    <message>
        <source>The table of the applications&apos; identities could not be removed (%1).</source>
        <translation>Não foi possível remover a tabela de identidades dos aplicativos (%1).</translation>
    </message>
    <message>
        <source>The value of --separate must be 0 or 1.</source>
        <translation>O valor de --separate deve ser 0 ou 1.</translation>
    </message>
    <message>
        <source>No package of the system installed %1. The next connect asks an administrator to approve it.</source>
        <translation>%1 não veio de nenhum pacote do sistema. Na próxima conexão, pede-se a um administrador que o aprove.</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether a connect can work.</source>
        <translation>Não se sabe se é possível conectar.</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, and none of its rules allows any, so Tor can&apos;t get through: %1.</source>
        <translation>Outro firewall neste computador bloqueia o tráfego de saída e nenhuma regra dele permite algum, então o Tor não consegue passar: %1.</translation>
    </message>
    <message>
        <source>Users other than root can change %1, so root doesn&apos;t run it to ask for its version.</source>
        <translation>Outros usuários além do root podem alterar %1, então o root não o executa para perguntar a versão.</translation>
    </message>
    <message>
        <source>Type %1 to approve it, anything else to refuse.</source>
        <translation>Digite %1 para aprová-lo ou qualquer outra coisa para recusar.</translation>
    </message>
    <message>
        <source>%1 was not approved.</source>
        <translation>%1 não foi aprovado.</translation>
    </message>
    <message>
        <source>%1 is not a program of the system, so an administrator has to approve it, but this command has no terminal to ask on. Run &quot;sudo veldmarkctl run --connect&quot; in a terminal.</source>
        <translation>%1 não é um programa do sistema, por isso um administrador precisa aprová-lo, mas este comando não tem um terminal em que perguntar. Execute “sudo veldmarkctl run --connect” em um terminal.</translation>
    </message>
    <message>
        <source>%1 needs the name of a file.</source>
        <translation>%1 precisa do nome de um arquivo.</translation>
    </message>
    <message>
        <source>It doesn&apos;t answer.</source>
        <translation>Ela não responde.</translation>
    </message>
    <message>
        <source>This report goes to %1.</source>
        <translation>Este relatório vai para %1.</translation>
    </message>
    <message>
        <source>write it into a new file too</source>
        <translation>gravá-lo também em um arquivo novo</translation>
    </message>
    <message>
        <source>The report can&apos;t be written to %1: %2</source>
        <translation>Não é possível gravar o relatório em %1: %2</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a regular file. Choose another name for the report.</source>
        <translation>%1 não é um arquivo comum. Escolha outro nome para o relatório.</translation>
    </message>
    <message>
        <source>%1 exists already. Choose another name for the report.</source>
        <translation>%1 já existe. Escolha outro nome para o relatório.</translation>
    </message>
    <message>
        <source>The running instance gave no state: %1</source>
        <translation>A instância em execução não informou seu estado: %1</translation>
    </message>
    <message>
        <source>a report for those who help you: settings, findings and log without addresses,
names, bridges and keys. Nothing sends it. Look through it before you give it
away</source>
        <translation>um relatório para quem ajuda você: configurações, constatações e registro sem
endereços, nomes, pontes nem chaves. Nada o envia. Revise-o antes de
entregá-lo</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>Não é possível ler %1: %2</translation>
    </message>
    <message>
        <source>There is no bridge in %1.</source>
        <translation>Não há nenhuma ponte em %1.</translation>
    </message>
    <message>
        <source>added: %1</source>
        <translation>adicionada: %1</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>já existia: %1</translation>
    </message>
    <message>
        <source>add the bridges in a text to your own: in bridge lines, a whole e-mail or
a web page. FILE &quot;-&quot; is standard input</source>
        <translation>adicionar às suas as pontes de um texto: linhas de pontes, um e-mail
inteiro ou uma página web. FILE &quot;-&quot; é a entrada padrão</translation>
    </message>
    <message>
        <source>add-bridges needs a file; &quot;-&quot; is standard input.</source>
        <translation>add-bridges precisa de um arquivo; &quot;-&quot; é a entrada padrão.</translation>
    </message>
    <message>
        <source>The filter before Tor&apos;s control port cannot be used.</source>
        <translation>Não é possível usar o filtro diante da porta de controle do Tor.</translation>
    </message>
    <message numerus="yes">
        <source>Testing %n bridges…</source>
        <translation>
            <numerusform>Testando %n ponte…</numerusform>
            <numerusform>Testando %n pontes…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 for *.%2</source>
        <translation>%1 para *.%2</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 em %2</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Direto</translation>
    </message>
    <message>
        <source>Your bridges</source>
        <translation>Suas pontes</translation>
    </message>
    <message>
        <source>(%1 s)</source>
        <translation>(%1 s)</translation>
    </message>
    <message>
        <source>Tried</source>
        <translation>Tentado</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Oferta</translation>
    </message>
    <message>
        <source>Try them with: %1</source>
        <translation>Tente com: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of ask, always and never.</source>
        <translation>“%1” não é ask, always nem never.</translation>
    </message>
    <message>
        <source>Refused, or out of reach.</source>
        <translation>Recusado ou fora de alcance.</translation>
    </message>
    <message>
        <source>Something answered, but Tor made no further progress.</source>
        <translation>Houve uma resposta, mas o Tor não avançou.</translation>
    </message>
    <message>
        <source>No answer.</source>
        <translation>Sem resposta.</translation>
    </message>
    <message>
        <source>Tor has connected.</source>
        <translation>O Tor conectou.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Tried: %1.</source>
        <translation>O Tor não avança nesta rede. Tentado: %1.</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Veldmark can try bridges: %1.</source>
        <translation>O Tor não avança nesta rede. O Veldmark pode tentar pontes: %1.</translation>
    </message>
    <message>
        <source>Being tried…</source>
        <translation>Tentando…</translation>
    </message>
    <message>
        <source>Tor did not accept these bridges.</source>
        <translation>O Tor não aceitou estas pontes.</translation>
    </message>
    <message>
        <source>No bridges are offered now.</source>
        <translation>Nenhuma ponte é oferecida agora.</translation>
    </message>
    <message>
        <source>whether bridges are tried when Tor cannot connect</source>
        <translation>se pontes são tentadas quando o Tor não avança</translation>
    </message>
    <message>
        <source>try the bridges that are offered when Tor cannot connect, see &quot;status&quot;</source>
        <translation>tenta as pontes oferecidas quando o Tor não avança, veja “status”</translation>
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
        <translation>Abrir o Veldmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
</context>
<context>
    <name>veldmark::Windows</name>
    <message>
        <source>Select the tor executable</source>
        <translation>Selecione o executável tor</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>Escolha os aplicativos que podem ficar fora do Tor no modo estrito</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Aplicativos</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Salvar o relatório</translation>
    </message>
</context>
</TS>

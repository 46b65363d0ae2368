<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutPane</name>
    <message>
        <source>Veldmark</source>
        <translation>Veldmark</translation>
    </message>
    <message>
        <source>The Tor Project</source>
        <translation>Tor 项目</translation>
    </message>
    <message>
        <source>The network and pluggable transports Veldmark builds on</source>
        <translation>Veldmark 所依托的网络和可插拔传输</translation>
    </message>
    <message>
        <source>Credits</source>
        <translation>致谢</translation>
    </message>
    <message>
        <source>Homepage, downloads and updates</source>
        <translation>主页、下载和更新</translation>
    </message>
    <message>
        <source>Sends this computer&apos;s traffic through Tor, all of it in strict mode and that of apps that use the system proxy in proxy mode, and shows whether it really does.</source>
        <translation>让本机流量通过 Tor：严格模式下为全部流量，代理模式下为使用系统代理的应用的流量；并显示流量是否真的通过 Tor。</translation>
    </message>
    <message>
        <source>Veldmark is made with Qt, QCoro and tl::expected.</source>
        <translation>Veldmark 使用 Qt、QCoro 和 tl::expected 构建。</translation>
    </message>
</context>
<context>
    <name>ApplicationsSheet</name>
    <message>
        <source>App exceptions</source>
        <translation>应用例外</translation>
    </message>
    <message>
        <source>No apps yet. Add Zoom, Discord, a game…</source>
        <translation>尚无应用。可添加 Zoom、Discord、游戏…</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>以严格模式连接后，才能不经 Tor 打开应用</translation>
    </message>
    <message>
        <source>Open without Tor</source>
        <translation>不经 Tor 打开</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>添加…</translation>
    </message>
</context>
<context>
    <name>Banner</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>BridgesPane</name>
    <message>
        <source>Bridges</source>
        <translation>网桥</translation>
    </message>
    <message>
        <source>Programs that disguise your Tor connection</source>
        <translation>用于伪装您的 Tor 连接的程序</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>内置网桥</translation>
    </message>
    <message>
        <source>Bridge addresses shipped with Tor</source>
        <translation>随 Tor 提供的网桥地址</translation>
    </message>
    <message>
        <source>Tor Expert Bundle</source>
        <translation>Tor Expert Bundle</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>When Tor is blocked</source>
        <translation>当 Tor 被封锁时</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>断开后才能更改</translation>
    </message>
    <message>
        <source>Tries the available bridges in turn, without another password</source>
        <translation>依次尝试现有的网桥，无需再次输入密码</translation>
    </message>
</context>
<context>
    <name>BridgesSheet</name>
    <message>
        <source>Custom bridges</source>
        <translation>自定义网桥</translation>
    </message>
    <message>
        <source>One bridge per line. Ask the Tor Project for bridges on its bridges page, by e-mail or through its Telegram bot, or use those of someone you trust. obfs4, webtunnel, Snowflake, meek and plain bridges are supported.</source>
        <translation>每行一个网桥。可通过 Tor 项目的网桥页面、电子邮件或 Telegram 机器人索取网桥，也可使用您信任的人提供的网桥。支持 obfs4、webtunnel、Snowflake、meek 和普通网桥。</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>There is no bridge in this file.</source>
        <translation>此文件中没有网桥。</translation>
    </message>
    <message>
        <source>Keep Only the Bridges</source>
        <translation>只保留网桥</translation>
    </message>
    <message>
        <source>Removes everything from the text but the bridges that were recognized</source>
        <translation>从文本中移除除已识别网桥以外的所有内容</translation>
    </message>
</context>
<context>
    <name>ChooserWindow</name>
    <message>
        <source>App exceptions</source>
        <translation>应用例外</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>选择在严格模式下可以绕过 Tor 的应用</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Installed applications</source>
        <translation>已安装的应用</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Other…</source>
        <translation>其他…</translation>
    </message>
    <message>
        <source>Choose the .desktop file of an application that is not listed</source>
        <translation>为未列出的应用选择其 .desktop 文件</translation>
    </message>
</context>
<context>
    <name>CircuitsSidebar</name>
    <message>
        <source>ALL CIRCUITS</source>
        <translation>所有线路</translation>
    </message>
    <message>
        <source>No circuit selected</source>
        <translation>未选择线路</translation>
    </message>
    <message>
        <source>New Circuit</source>
        <translation>新建线路</translation>
    </message>
    <message>
        <source>Close this circuit; its sites get a fresh path on their next request</source>
        <translation>关闭此线路；其上的站点在下次请求时会获得新路径</translation>
    </message>
    <message>
        <source>Sites on this circuit get a fresh path. Other sites sharing it move too.</source>
        <translation>此线路上的站点会获得新路径。共用此线路的其他站点也会一同切换。</translation>
    </message>
</context>
<context>
    <name>CircuitsWindow</name>
    <message>
        <source>Circuits</source>
        <translation>线路</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>新身份</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>请求 Tor 提供新线路和新的出口 IP</translation>
    </message>
    <message>
        <source>Find Faster</source>
        <translation>找更快线路</translation>
    </message>
    <message>
        <source>Time a request through Tor and get fresh circuits if it&apos;s slow</source>
        <translation>测量一次经由 Tor 的请求的耗时，如果较慢则换用新线路</translation>
    </message>
    <message>
        <source>Reading circuits…</source>
        <translation>正在读取线路…</translation>
    </message>
    <message>
        <source>Connect to see your circuits</source>
        <translation>连接后可查看您的线路</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Exit IP</source>
        <translation>出口 IP</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Leaks</source>
        <translation>泄露</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>流量</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>已接收 %1，已发送 %2</translation>
    </message>
    <message>
        <source>Traffic of the last two minutes</source>
        <translation>最近两分钟的流量</translation>
    </message>
    <message>
        <source>New Identity</source>
        <translation>新身份</translation>
    </message>
    <message>
        <source>Ask Tor for fresh circuits and a new exit IP</source>
        <translation>请求 Tor 提供新线路和新的出口 IP</translation>
    </message>
    <message>
        <source>Leak Test</source>
        <translation>泄露测试</translation>
    </message>
    <message>
        <source>Check the exit IP and try a direct connection that skips Tor</source>
        <translation>检查出口 IP，并尝试绕过 Tor 直接连接</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>线路</translation>
    </message>
    <message>
        <source>See the path your traffic takes: entry, middle and exit relays</source>
        <translation>查看流量经过的路径：入口、中间和出口中继</translation>
    </message>
</context>
<context>
    <name>CopyField</name>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>DNSCard</name>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>DNS 查询可能绕过 Tor</translation>
    </message>
    <message>
        <source>Fix DNS</source>
        <translation>修复 DNS</translation>
    </message>
    <message>
        <source>Re-test</source>
        <translation>重新测试</translation>
    </message>
</context>
<context>
    <name>DoctorSheet</name>
    <message>
        <source>This computer</source>
        <translation>本机</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>再次检查</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>显示报告</translation>
    </message>
    <message>
        <source>What others need to help you, without addresses, names and bridges</source>
        <translation>他人帮助您所需的内容，不含地址、名称和网桥</translation>
    </message>
</context>
<context>
    <name>DownloadButton</name>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Downloads the official Tor Expert Bundle from the Tor Project, for bridge programs and built-in bridges</source>
        <translation>从 Tor 项目下载官方的 Tor Expert Bundle，以获取网桥程序和内置网桥</translation>
    </message>
</context>
<context>
    <name>Footer</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Tor Log</source>
        <translation>Tor 日志</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>GeneralPane</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Startup and password prompts</source>
        <translation>启动和密码提示</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>启动</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>登录时打开</translation>
    </message>
    <message>
        <source>Veldmark starts when you log in</source>
        <translation>您登录时启动 Veldmark</translation>
    </message>
    <message>
        <source>Connect automatically</source>
        <translation>自动连接</translation>
    </message>
    <message>
        <source>Connect as soon as Veldmark opens</source>
        <translation>Veldmark 打开后立即连接</translation>
    </message>
    <message>
        <source>Password prompts</source>
        <translation>密码提示</translation>
    </message>
    <message>
        <source>Passwordless mode</source>
        <translation>免密码模式</translation>
    </message>
    <message>
        <source>Connect and Disconnect never ask</source>
        <translation>连接和断开时从不询问密码</translation>
    </message>
    <message>
        <source>Asks for your password each time</source>
        <translation>每次都询问您的密码</translation>
    </message>
    <message>
        <source>Turn Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Set Up…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Setup asks for your admin password once. It installs a root-owned copy of Veldmark&apos;s helper and a rule in /etc/sudoers.d that lets your account run only that helper, so Connect and Disconnect stop asking. Turn it off any time.</source>
        <translation>设置时会询问一次您的管理员密码。它会安装一份归 root 所有的 Veldmark 辅助程序副本，并在 /etc/sudoers.d 中添加一条规则，允许您的账户运行该辅助程序（仅此程序）；此后连接和断开都不再询问密码。可随时关闭。</translation>
    </message>
</context>
<context>
    <name>Hero</name>
    <message>
        <source>Show Tor Log</source>
        <translation>显示 Tor 日志</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>查看 Tor 报告的全部内容</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>恢复网络</translation>
    </message>
    <message>
        <source>Try Bridges</source>
        <translation>尝试网桥</translation>
    </message>
</context>
<context>
    <name>LogLines</name>
    <message>
        <source>Tor Log</source>
        <translation>Tor 日志</translation>
    </message>
</context>
<context>
    <name>LogRow</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
</context>
<context>
    <name>LogWindow</name>
    <message>
        <source>Tor Log</source>
        <translation>Tor 日志</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>跟随</translation>
    </message>
    <message>
        <source>Keep the newest lines in view</source>
        <translation>始终显示最新的行</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the lines shown</source>
        <translation>复制显示的行</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
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
        <translation>选项</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>断开后才能更改</translation>
    </message>
    <message>
        <source>Strict mode</source>
        <translation>严格模式</translation>
    </message>
    <message>
        <source>Kill switch: block anything not using Tor</source>
        <translation>断网保护：阻断一切不使用 Tor 的流量</translation>
    </message>
    <message>
        <source>Blocks every connection that doesn&apos;t go through Tor, including UDP and IPv6. Apps that ignore proxy settings won&apos;t connect at all instead of leaking.</source>
        <translation>阻断所有不经过 Tor 的连接，包括 UDP 和 IPv6。忽略代理设置的应用将完全无法连接，而不会造成泄露。</translation>
    </message>
    <message>
        <source>Allow local network</source>
        <translation>允许本地网络</translation>
    </message>
    <message>
        <source>Exit country</source>
        <translation>出口国家</translation>
    </message>
    <message>
        <source>Where your traffic appears to come from</source>
        <translation>您的流量看起来来自何处</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>网桥</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>编辑…</translation>
    </message>
    <message>
        <source>Custom bridges</source>
        <translation>自定义网桥</translation>
    </message>
    <message>
        <source>Optimize for speed</source>
        <translation>优化速度</translation>
    </message>
    <message>
        <source>New circuits for everything</source>
        <translation>全部使用新线路</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>终端模式</translation>
    </message>
    <message>
        <source>App exceptions</source>
        <translation>应用例外</translation>
    </message>
    <message>
        <source>For networks that block or watch Tor</source>
        <translation>适用于封锁或监视 Tor 的网络</translation>
    </message>
</context>
<context>
    <name>Panel</name>
    <message>
        <source>Find the Cause</source>
        <translation>查找原因</translation>
    </message>
    <message>
        <source>Checks what a connection needs on this computer, what blocks it and how to fix it</source>
        <translation>检查本机：连接需要什么、有什么阻碍、如何解决</translation>
    </message>
    <message>
        <source>Show Tor Log</source>
        <translation>显示 Tor 日志</translation>
    </message>
    <message>
        <source>See everything Tor reported</source>
        <translation>查看 Tor 报告的全部内容</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with this command, then click Recheck.</source>
        <translation>未安装 Tor。请用此命令安装，然后点击“重新检查”。</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with %1, then click Recheck.</source>
        <translation>未安装 Tor。请用 %1 安装，然后点击“重新检查”。</translation>
    </message>
    <message>
        <source>Recheck</source>
        <translation>重新检查</translation>
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
        <translation>已%1找到</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
</context>
<context>
    <name>QuitDialog</name>
    <message>
        <source>Quit Veldmark</source>
        <translation>退出 Veldmark</translation>
    </message>
    <message>
        <source>Your network is still routed through Tor</source>
        <translation>您的网络流量仍经由 Tor</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and the kill switch stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>如果现在退出，Tor 会继续运行，断网保护也会保持开启。以后再次打开 Veldmark 即可恢复正常连接。</translation>
    </message>
    <message>
        <source>If you quit now, Tor keeps running and your system proxy stays on. Open Veldmark again later to restore your normal connection.</source>
        <translation>如果现在退出，Tor 会继续运行，系统代理也会保持开启。以后再次打开 Veldmark 即可恢复正常连接。</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>正在断开…</translation>
    </message>
    <message>
        <source>Disconnect &amp; Quit</source>
        <translation>断开并退出</translation>
    </message>
    <message>
        <source>Quit Anyway</source>
        <translation>仍然退出</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>RecoveryPane</name>
    <message>
        <source>Recovery</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Get your normal connection back</source>
        <translation>找回正常的网络连接</translation>
    </message>
    <message>
        <source>Restore network settings</source>
        <translation>恢复网络设置</translation>
    </message>
    <message>
        <source>Veldmark&apos;s changes are active</source>
        <translation>Veldmark 所做的更改正在生效</translation>
    </message>
    <message>
        <source>Nothing to restore</source>
        <translation>没有需要恢复的内容</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Use this if your internet stops working after a crash. It puts your DNS, proxy and firewall settings back the way they were and stops Tor.</source>
        <translation>如果崩溃后无法上网，请使用此功能。它会将您的 DNS、代理和防火墙设置还原为原来的状态，并停止 Tor。</translation>
    </message>
    <message>
        <source>If the app won&apos;t open</source>
        <translation>如果应用无法打开</translation>
    </message>
    <message>
        <source>Run this in Terminal to do the same thing without Veldmark.</source>
        <translation>在终端中运行此命令，无需 Veldmark 即可完成同样的操作。</translation>
    </message>
    <message>
        <source>Report for others</source>
        <translation>给他人的报告</translation>
    </message>
    <message>
        <source>What they need to help you, without addresses, names and bridges. You read it first, and nothing sends it.</source>
        <translation>他人帮助您所需的内容，不含地址、名称和网桥。您先阅读，没有任何程序会发送它。</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>显示报告</translation>
    </message>
</context>
<context>
    <name>ReportWindow</name>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>For those who help you. Addresses, names, bridges, keys and paths in your home are replaced. Look through it before you give it away: Veldmark sends it to nobody.</source>
        <translation>供帮助您的人使用。地址、名称、网桥、密钥以及您主目录中的路径均已替换。交出之前请先过目：Veldmark 不会把它发送给任何人。</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
    <message>
        <source>Save the report in a file that only you can read</source>
        <translation>将报告保存到只有您能读取的文件中</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the whole report</source>
        <translation>复制整个报告</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>正在检查本机…</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Tor</source>
        <translation>Tor</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>网桥</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>终端</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
</context>
<context>
    <name>TerminalPane</name>
    <message>
        <source>Terminal</source>
        <translation>终端</translation>
    </message>
    <message>
        <source>Route command-line tools through Tor</source>
        <translation>让命令行工具通过 Tor</translation>
    </message>
    <message>
        <source>Terminal mode</source>
        <translation>终端模式</translation>
    </message>
    <message>
        <source>Shell integration</source>
        <translation>Shell 集成</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
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
        <translation>Veldmark 运行的 Tor 程序</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Location: disconnect to change</source>
        <translation>位置：断开后才能更改</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Custom location</source>
        <translation>自定义位置</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Separate applications</source>
        <translation>按应用分开线路</translation>
    </message>
    <message>
        <source>Disconnect to change</source>
        <translation>断开后才能更改</translation>
    </message>
    <message>
        <source>Each application has circuits of its own</source>
        <translation>每个应用都有自己的线路</translation>
    </message>
    <message>
        <source>Sites cannot tell by the exit address that two applications are yours. Veldmark tells applications apart where the desktop starts each in a control group of its own, as GNOME and KDE do. Other programs share circuits with the rest of their login session or account.</source>
        <translation>网站无法凭出口地址看出两个应用都属于您。只有当桌面环境让每个应用在各自的控制组中启动时（如 GNOME 和 KDE），才能区分应用。其他程序与所在登录会话或账户的所有程序共用线路。</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Start without a window, as at login.</source>
        <translation>启动时不显示窗口，与登录时相同。</translation>
    </message>
    <message>
        <source>Connect at once.</source>
        <translation>立即连接。</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor. To restore it without Veldmark, run:
%1</source>
        <translation>您的网络仍设置为使用 Tor。要在不使用 Veldmark 的情况下恢复网络，请运行：
%1</translation>
    </message>
</context>
<context>
    <name>veldmark::Alerts</name>
    <message>
        <source>Another session has replaced this one</source>
        <translation>此会话已被另一个会话取代</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor 已停止运行</translation>
    </message>
    <message>
        <source>Traffic can leave around Tor</source>
        <translation>流量可能绕过 Tor 流出</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>DNS 查询可能绕过 Tor</translation>
    </message>
    <message>
        <source>Your real address can be seen. Open Veldmark to see what to do.</source>
        <translation>您的真实 IP 地址对外可见。请打开 Veldmark 查看应如何处理。</translation>
    </message>
    <message>
        <source>Firewall rules were removed</source>
        <translation>防火墙规则曾被移除</translation>
    </message>
    <message>
        <source>The kill switch doesn&apos;t block traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>断网保护已失效。请打开 Veldmark，断开并重新连接。</translation>
    </message>
    <message>
        <source>The kill switch is not watched</source>
        <translation>断网保护未受监视</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Open Veldmark, disconnect and connect again.</source>
        <translation>无法确定断网保护是否有效。请打开 Veldmark，断开并重新连接。</translation>
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
        <translation>无法创建窗口。您的网络不受影响；要在不使用 Veldmark 的情况下恢复网络，请运行：
%1

%2</translation>
    </message>
    <message>
        <source>Veldmark is still running</source>
        <translation>Veldmark 仍在运行</translation>
    </message>
    <message>
        <source>Open Veldmark again to see its window.</source>
        <translation>再次打开 Veldmark 即可看到其窗口。</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>您的网络仍设置为使用 Tor</translation>
    </message>
    <message>
        <source>Veldmark had to close and could not restore the network. Open Veldmark again to restore it.</source>
        <translation>Veldmark 被要求结束，但未能恢复网络。请再次打开 Veldmark 来恢复。</translation>
    </message>
</context>
<context>
    <name>veldmark::ApplicationChoices</name>
    <message>
        <source>No installed applications were found.</source>
        <translation>没有找到已安装的应用。</translation>
    </message>
    <message>
        <source>No application is called “%1”.</source>
        <translation>没有名为“%1”的应用。</translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitGraphView</name>
    <message>
        <source>%1: your real IP only ever reaches the entry relay</source>
        <translation>%1：您的真实 IP 只会到达入口中继</translation>
    </message>
    <message>
        <source>Used by 1 circuit</source>
        <translation>被 1 条线路使用</translation>
    </message>
    <message>
        <source>ENTRY</source>
        <translation>入口</translation>
    </message>
    <message>
        <source>MIDDLE</source>
        <translation>中间</translation>
    </message>
    <message>
        <source>EXIT</source>
        <translation>出口</translation>
    </message>
    <message>
        <source>SITES</source>
        <translation>站点</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>另有 %1 个</translation>
    </message>
    <message numerus="yes">
        <source>Used by %n circuits</source>
        <translation>
            <numerusform>被 %n 条线路使用</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::CircuitsModel</name>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Circuit %1</source>
        <translation>线路 %1</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>1 active path</source>
        <translation>1 条活动路径</translation>
    </message>
    <message>
        <source> · click a relay or site to follow it</source>
        <translation> · 点击中继或站点可跟踪其路径</translation>
    </message>
    <message>
        <source>Leads to an onion service. The last relay is the meeting point.</source>
        <translation>通往洋葱服务。最后一个中继是会合点。</translation>
    </message>
    <message>
        <source>Meeting point</source>
        <translation>会合点</translation>
    </message>
    <message>
        <source>One of several linked legs to the same exit</source>
        <translation>通往同一出口的多条关联分支之一</translation>
    </message>
    <message>
        <source>Only the entry sees your IP</source>
        <translation>只有入口能看到您的 IP</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中间</translation>
    </message>
    <message>
        <source>Bridge</source>
        <translation>网桥</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>入口</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>出口</translation>
    </message>
    <message>
        <source>, +%1 more</source>
        <translation>，另有 %1 个</translation>
    </message>
    <message>
        <source>Sites</source>
        <translation>站点</translation>
    </message>
    <message>
        <source>Round trip: %1</source>
        <translation>往返时间：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n active paths</source>
        <translation>
            <numerusform>%n 条活动路径</numerusform>
        </translation>
    </message>
    <message>
        <source>Asked for by %1</source>
        <translation>由 %1 请求</translation>
    </message>
</context>
<context>
    <name>veldmark::DoctorModel</name>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Restore Network</source>
        <translation>恢复网络</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
    <message>
        <source>Looking at this computer…</source>
        <translation>正在检查本机…</translation>
    </message>
    <message>
        <source>The check gave no result.</source>
        <translation>检查没有得出结果。</translation>
    </message>
    <message>
        <source>No problem was found that keeps Veldmark from connecting.</source>
        <translation>没有发现妨碍 Veldmark 连接的问题。</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t connect until each problem is fixed.</source>
        <translation>在每个问题都解决之前，Veldmark 无法连接。</translation>
    </message>
</context>
<context>
    <name>veldmark::LogModel</name>
    <message>
        <source>Tor writes here while it connects and runs</source>
        <translation>Tor 在连接和运行时会在此写入信息</translation>
    </message>
    <message>
        <source>Can&apos;t read the log files</source>
        <translation>无法读取日志文件</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 行</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>问题（%1）</translation>
    </message>
    <message>
        <source>Show the log files in Finder</source>
        <translation>在访达中显示日志文件</translation>
    </message>
    <message>
        <source>Show the log files in the file manager</source>
        <translation>在文件管理器中显示日志文件</translation>
    </message>
    <message>
        <source>There are no log files yet. Tor creates %1 when it first starts.</source>
        <translation>尚无日志文件：Tor 会在首次启动时创建 %1。</translation>
    </message>
    <message>
        <source>No file manager could be opened. The log files are in %1.</source>
        <translation>无法打开任何文件管理器。日志文件位于 %1。</translation>
    </message>
    <message numerus="yes">
        <source>%n lines</source>
        <translation>
            <numerusform>%n 行</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::OptionsModel</name>
    <message>
        <source>Choosing a country means fewer exit relays, so it&apos;s slower and you&apos;re easier to single out.</source>
        <translation>选定国家意味着可用的出口中继更少，因此速度更慢，您也更容易被识别出来。</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>obfs4 (built-in)</source>
        <translation>obfs4（内置）</translation>
    </message>
    <message>
        <source>Snowflake (built-in)</source>
        <translation>Snowflake（内置）</translation>
    </message>
    <message>
        <source>meek (built-in)</source>
        <translation>meek（内置）</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>No bridges added yet</source>
        <translation>尚未添加网桥</translation>
    </message>
    <message>
        <source>Needs bridge programs: click Download</source>
        <translation>需要网桥程序：请点击“下载”</translation>
    </message>
    <message>
        <source>Built-in bridges from %1</source>
        <translation>内置网桥来自 %1</translation>
    </message>
    <message>
        <source>(line %1)</source>
        <translation>（第 %1 行）</translation>
    </message>
    <message>
        <source>(lines %1)</source>
        <translation>（第 %1 行）</translation>
    </message>
    <message>
        <source>1 bridge recognized</source>
        <translation>识别到 1 个网桥</translation>
    </message>
    <message>
        <source>A bridge line can&apos;t contain #, &quot; or \.</source>
        <translation>网桥行不能包含 #、&quot; 或 \。</translation>
    </message>
    <message>
        <source>At most %1 bridges can be used</source>
        <translation>最多可使用 %1 个网桥</translation>
    </message>
    <message>
        <source>1 line not recognized</source>
        <translation>1 行无法识别</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the Dock) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>在严格模式下，这些应用可以不通过 Tor 而直接连接，并使用您的真实 IP 地址。其他一切仍只能通过 Tor。请用 &lt;b&gt;不经 Tor 打开&lt;/b&gt; 来打开它们（不要从程序坞打开），以便 Veldmark 标记它们。正在运行的副本会被退出并重新打开。</translation>
    </message>
    <message>
        <source>In strict mode, these apps can connect directly instead of through Tor, using your real IP address. Everything else stays locked. Open them with &lt;b&gt;Open without Tor&lt;/b&gt; (not from the desktop&apos;s menu) so Veldmark can tag them. A running copy is quit and reopened.</source>
        <translation>在严格模式下，这些应用可以不通过 Tor 而直接连接，并使用您的真实 IP 地址。其他一切仍只能通过 Tor。请用 &lt;b&gt;不经 Tor 打开&lt;/b&gt; 来打开它们（不要从桌面菜单打开），以便 Veldmark 标记它们。正在运行的副本会被退出并重新打开。</translation>
    </message>
    <message numerus="yes">
        <source>%n bridges recognized</source>
        <translation>
            <numerusform>识别到 %n 个网桥</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n lines not recognized</source>
        <translation>
            <numerusform>%n 行无法识别</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>veldmark::PanelModel</name>
    <message>
        <source>No answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but it isn&apos;t known whether the kill switch blocks such connections</source>
        <translation>绕过 Tor 的直接连接没有得到应答，但无法确认断网保护是否会阻断此类连接</translation>
    </message>
    <message>
        <source>A direct connection that bypasses Tor got no answer, but proxy mode doesn&apos;t block such connections</source>
        <translation>绕过 Tor 的直接连接没有得到应答，但代理模式并不阻断此类连接</translation>
    </message>
    <message>
        <source>Connect to Tor</source>
        <translation>连接到 Tor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开</translation>
    </message>
    <message>
        <source>Reconnect</source>
        <translation>重新连接</translation>
    </message>
    <message>
        <source>Connected through %1 bridges</source>
        <translation>已通过 %1 网桥连接</translation>
    </message>
    <message>
        <source>Strict</source>
        <translation>严格</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Install Tor to get started</source>
        <translation>请先安装 Tor</translation>
    </message>
    <message>
        <source>Click to connect</source>
        <translation>点击连接</translation>
    </message>
    <message>
        <source>Click to disconnect</source>
        <translation>点击断开</translation>
    </message>
    <message>
        <source>Tor hasn&apos;t reported progress for a while. It is still trying; a slow or blocked network is the usual reason.</source>
        <translation>Tor 已有一段时间没有报告进展。它仍在尝试；原因通常是网络缓慢或被封锁。</translation>
    </message>
    <message>
        <source>Still waiting for Tor to start, or for your approval.</source>
        <translation>仍在等待 Tor 启动，或等待您的批准。</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>正在检查</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Checked against %1</source>
        <translation>检查服务：%1</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>已验证</translation>
    </message>
    <message>
        <source>Not confirmed</source>
        <translation>未确认</translation>
    </message>
    <message>
        <source>DNS leak</source>
        <translation>DNS 泄露</translation>
    </message>
    <message>
        <source>Not tested</source>
        <translation>未测试</translation>
    </message>
    <message>
        <source>Testing…</source>
        <translation>正在测试…</translation>
    </message>
    <message>
        <source>No leaks</source>
        <translation>无泄露</translation>
    </message>
    <message>
        <source>Inconclusive</source>
        <translation>无法判定</translation>
    </message>
    <message>
        <source>Exposed: %1</source>
        <translation>已暴露：%1</translation>
    </message>
    <message>
        <source>Tries a direct connection that skips Tor</source>
        <translation>尝试绕过 Tor 直接连接</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor are blocked</source>
        <translation>绕过 Tor 的直接连接已被阻断</translation>
    </message>
    <message>
        <source>Apps that ignore proxy settings show your real IP (%1). Turn on Strict mode to block them.</source>
        <translation>忽略代理设置的应用会暴露您的真实 IP（%1）。请启用严格模式来阻断它们。</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>另有 %1 个</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>未检查</translation>
    </message>
    <message>
        <source>Direct connections that skip Tor show your real IP (%1), although Strict mode should block them. Disconnect, or run the leak test again.</source>
        <translation>绕过 Tor 的直接连接会暴露您的真实 IP（%1），而严格模式本应阻断它们。请断开，或再次运行泄露测试。</translation>
    </message>
</context>
<context>
    <name>veldmark::ReportModel</name>
    <message>
        <source>Saved in %1</source>
        <translation>已保存到 %1</translation>
    </message>
</context>
<context>
    <name>veldmark::SettingsModel</name>
    <message>
        <source>Found</source>
        <translation>已找到</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Homebrew: %1</source>
        <translation>Homebrew：%1</translation>
    </message>
    <message>
        <source>Install it with %1</source>
        <translation>请用 %1 安装</translation>
    </message>
    <message>
        <source>Not found in Tor Browser or a downloaded bundle</source>
        <translation>在 Tor Browser 和已下载的 Tor Expert Bundle 中均未找到</translation>
    </message>
    <message>
        <source>Loaded from %1</source>
        <translation>已从 %1 加载</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <translation>未下载</translation>
    </message>
    <message>
        <source>Version %1 loaded</source>
        <translation>已加载版本 %1</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>签名已验证</translation>
    </message>
    <message>
        <source>Adds one line to ~/.zshrc (and ~/.bash_profile if you have one) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>在 ~/.zshrc（以及 ~/.bash_profile，如果有）中添加一行，并在 ~/.ssh/config 顶部添加一行 Include。相关文件位于 ~/.veldmark。只有在 Veldmark 已连接且终端模式开启时，命令行工具才会被引导通过 Tor。</translation>
    </message>
    <message>
        <source>Adds one line to ~/.bashrc (and ~/.zshrc if you use zsh) and an Include line at the top of ~/.ssh/config. Its files live in ~/.veldmark. Nothing is routed unless Veldmark is connected with Terminal mode on.</source>
        <translation>在 ~/.bashrc（以及 ~/.zshrc，如果您使用 zsh）中添加一行，并在 ~/.ssh/config 顶部添加一行 Include。相关文件位于 ~/.veldmark。只有在 Veldmark 已连接且终端模式开启时，命令行工具才会被引导通过 Tor。</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>Fetched over HTTPS. Its signature isn&apos;t checked, since GnuPG isn&apos;t installed.</source>
        <translation>通过 HTTPS 获取。由于未安装 GnuPG，不检查其签名。</translation>
    </message>
    <message>
        <source>Fetched over HTTPS and checked against the Tor Project&apos;s signature.</source>
        <translation>通过 HTTPS 获取，并用 Tor 项目的签名验证。</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>未安装</translation>
    </message>
    <message>
        <source>Installed in your shell and SSH config</source>
        <translation>已安装到您的 Shell 和 SSH 配置中</translation>
    </message>
    <message>
        <source>Installed in your shell; SSH doesn&apos;t use it</source>
        <translation>已安装到您的 Shell 中；SSH 未使用它</translation>
    </message>
    <message>
        <source>curl, git, brew, pip, ssh and more use Tor</source>
        <translation>curl、git、brew、pip、ssh 等使用 Tor</translation>
    </message>
    <message>
        <source>curl, git, pip, ssh and more use Tor</source>
        <translation>curl、git、pip、ssh 等使用 Tor</translation>
    </message>
    <message>
        <source>Veldmark is free software and independent of the Tor Project. It contains no Tor: it runs the tor that is installed here, and where bridges are used lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>Veldmark 是自由软件，独立于 Tor 项目。它不包含 Tor：它运行本机已安装的 tor；使用网桥时，还会运行 lyrebird、snowflake-client 或 webtunnel-client。</translation>
    </message>
    <message>
        <source>It sets up the network with macOS&apos;s own programs, asks for the administrator with sudo, and checks downloads with GnuPG where that is installed.</source>
        <translation>它用 macOS 自带的程序设置网络，通过 sudo 请求管理员授权；如果安装了 GnuPG，则用它检查下载内容。</translation>
    </message>
    <message>
        <source>It sets up the network with nftables, resolvectl and gsettings, asks for the administrator with polkit or sudo, takes ssh through Tor with a netcat, and checks downloads with GnuPG where that is installed.</source>
        <translation>它用 nftables、resolvectl 和 gsettings 设置网络，通过 polkit 或 sudo 请求管理员授权，用 netcat 让 ssh 通过 Tor；如果安装了 GnuPG，则用它检查下载内容。</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>询问</translation>
    </message>
    <message>
        <source>Try bridges</source>
        <translation>尝试网桥</translation>
    </message>
    <message>
        <source>Do nothing</source>
        <translation>什么都不做</translation>
    </message>
</context>
<context>
    <name>veldmark::ShutdownNotice</name>
    <message>
        <source>Restoring your network settings</source>
        <translation>正在恢复您的网络设置</translation>
    </message>
</context>
<context>
    <name>veldmark::Text</name>
    <message>
        <source>Tor hasn&apos;t confirmed that it uses the network again, so traffic may not get through. Veldmark keeps telling Tor to. If this lasts, disconnect and connect again.</source>
        <translation>Tor 尚未确认已重新接入网络，因此流量可能无法通过。Veldmark 会继续要求它接入；如果仍然不行，请断开并重新连接。</translation>
    </message>
    <message>
        <source>Version %1 is offered, which is older than the installed %2. Nothing was changed.</source>
        <translation>所提供的版本 %1 比已安装的 %2 更旧。未作任何更改。</translation>
    </message>
    <message>
        <source>The download of version %1 contains another version, so it was discarded.</source>
        <translation>作为版本 %1 收到的内容其实是另一个版本，因此已丢弃。</translation>
    </message>
    <message>
        <source>The download begins again when Tor is connected…</source>
        <translation>Tor 连接后将重新开始下载…</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a location of Tor. Give an absolute path, such as /usr/bin/tor.</source>
        <translation>“%1”不能作为 Tor 的位置：请给出完整路径，例如 /usr/bin/tor。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be changed during a connection. Disconnect to change it.</source>
        <translation>“%1”对整个连接有效。断开后才能更改。</translation>
    </message>
    <message>
        <source>Your traffic is not going through Tor</source>
        <translation>您的流量没有通过 Tor</translation>
    </message>
    <message>
        <source>Restoring your network settings…</source>
        <translation>正在恢复您的网络设置…</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor from an earlier session</source>
        <translation>您的网络仍因先前的会话而设置为使用 Tor</translation>
    </message>
    <message>
        <source>Your network is still set up for Tor</source>
        <translation>您的网络仍设置为使用 Tor</translation>
    </message>
    <message>
        <source>Preparing Tor…</source>
        <translation>正在准备 Tor…</translation>
    </message>
    <message>
        <source>Waiting for administrator approval…</source>
        <translation>正在等待管理员批准…</translation>
    </message>
    <message>
        <source>Waiting for an administrator to approve a program…</source>
        <translation>正在等待管理员批准一个程序…</translation>
    </message>
    <message>
        <source>Starting Tor…</source>
        <translation>正在启动 Tor…</translation>
    </message>
    <message>
        <source>Tor is waiting for the bridge program, which hasn&apos;t said that it is ready.</source>
        <translation>Tor 正在等待网桥程序，该程序尚未报告已就绪。</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting</source>
        <translation>Tor 未能完成连接</translation>
    </message>
    <message>
        <source>Tor stopped running</source>
        <translation>Tor 已停止运行</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor</source>
        <translation>所有流量只能通过 Tor</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor</source>
        <translation>使用系统代理设置的应用通过 Tor</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, so nothing leaked. Reconnect, or Restore Network to go back online.</source>
        <translation>Tor 已停止运行。断网保护仍在阻断流量，因此没有发生泄露。请重新连接，或恢复网络以不经 Tor 上网。</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is still blocking traffic, but the last checks saw traffic go around Tor. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor 已停止运行。断网保护仍在阻断流量，但最近的检查发现有流量绕过了 Tor。请重新连接，或恢复网络以不经 Tor 上网。</translation>
    </message>
    <message>
        <source>Tor stopped running. Apps using the proxy can&apos;t connect until you reconnect or Restore Network.</source>
        <translation>Tor 已停止运行。在您重新连接或恢复网络之前，使用代理的应用无法连接。</translation>
    </message>
    <message>
        <source>Any (recommended)</source>
        <translation>任意（推荐）</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>美国</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>加拿大</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>英国</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>德国</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>荷兰</translation>
    </message>
    <message>
        <source>France</source>
        <translation>法国</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>瑞典</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>瑞士</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>芬兰</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>罗马尼亚</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>日本</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>新加坡</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>DNS can go around Tor via: %1</source>
        <translation>DNS 可能绕过 Tor，经由：%1</translation>
    </message>
    <message>
        <source>DNS: not tested yet.</source>
        <translation>DNS：尚未测试。</translation>
    </message>
    <message>
        <source>DNS: testing…</source>
        <translation>DNS：正在测试…</translation>
    </message>
    <message>
        <source>DNS: a test lookup went through Tor.</source>
        <translation>DNS：一次测试查询通过了 Tor。</translation>
    </message>
    <message>
        <source>DNS: settings point at Tor, but a test lookup couldn&apos;t be confirmed.</source>
        <translation>DNS：设置指向 Tor，但测试查询未能得到确认。</translation>
    </message>
    <message>
        <source>This computer</source>
        <translation>本机</translation>
    </message>
    <message>
        <source>This Mac</source>
        <translation>这台 Mac</translation>
    </message>
    <message>
        <source>on this computer</source>
        <translation>在本机上</translation>
    </message>
    <message>
        <source>on this Mac</source>
        <translation>在这台 Mac 上</translation>
    </message>
    <message>
        <source>Tor stopped running, and your network is no longer set up for it.</source>
        <translation>Tor 已停止运行，您的网络也不再设置为使用 Tor。</translation>
    </message>
    <message>
        <source>Tor stopped running. The kill switch is blocking traffic again, but another program had removed its rules for a while. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor 已停止运行。断网保护已重新开始阻断流量，但此前其规则曾一度被另一个程序移除。请重新连接，或恢复网络以不经 Tor 上网。</translation>
    </message>
    <message>
        <source>Tor stopped running, and the kill switch doesn&apos;t block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network.</source>
        <translation>Tor 已停止运行，并且断网保护已失效：另一个程序移除了其规则。流量可能直接离开本机。请重新连接，或恢复网络。</translation>
    </message>
    <message>
        <source>Tor stopped running, and it isn&apos;t known whether the kill switch is still blocking traffic. Reconnect, or Restore Network to go online without Tor.</source>
        <translation>Tor 已停止运行，并且无法确定断网保护是否仍在阻断流量。请重新连接，或恢复网络以不经 Tor 上网。</translation>
    </message>
    <message>
        <source>The watcher of Veldmark&apos;s firewall rules has stopped reporting, so it isn&apos;t known whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>Veldmark 防火墙规则的监视程序已不再报告，因此无法确定断网保护是否有效。请断开并重新连接。</translation>
    </message>
    <message>
        <source>Not Protected</source>
        <translation>未受保护</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>正在连接…</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <translation>正在断开…</translation>
    </message>
    <message>
        <source>Protected</source>
        <translation>已受保护</translation>
    </message>
    <message>
        <source>Proxy Active</source>
        <translation>代理已启用</translation>
    </message>
    <message>
        <source>Needs Attention</source>
        <translation>需要处理</translation>
    </message>
    <message>
        <source>DNS Leak</source>
        <translation>DNS 泄露</translation>
    </message>
    <message>
        <source>Kill Switch Failed</source>
        <translation>断网保护失效</translation>
    </message>
    <message>
        <source>Traffic may leave this computer directly</source>
        <translation>流量可能直接离开本机</translation>
    </message>
    <message>
        <source>Lookups can go around Tor</source>
        <translation>DNS 查询可能绕过 Tor</translation>
    </message>
    <message>
        <source>Lookups can go around Tor, and your real address can be seen</source>
        <translation>DNS 查询可能绕过 Tor，且您的真实 IP 地址对外可见</translation>
    </message>
    <message>
        <source>Your real address can be seen. Disconnect, or run the leak test again.</source>
        <translation>您的真实 IP 地址对外可见。请断开，或再次运行泄露测试。</translation>
    </message>
    <message>
        <source>Veldmark can&apos;t tell whether the kill switch blocks traffic. Disconnect and connect again.</source>
        <translation>无法确定断网保护是否有效。请断开并重新连接。</translation>
    </message>
    <message>
        <source>All traffic is locked to Tor, but the exit could not be confirmed</source>
        <translation>所有流量只能通过 Tor，但无法确认出口</translation>
    </message>
    <message>
        <source>Apps that use system proxy settings go through Tor, but the exit could not be confirmed</source>
        <translation>使用系统代理设置的应用通过 Tor，但无法确认出口</translation>
    </message>
    <message>
        <source>No Network</source>
        <translation>无网络</translation>
    </message>
    <message>
        <source>Nothing Gets Through</source>
        <translation>流量无法通过</translation>
    </message>
    <message>
        <source>This computer has no network. Traffic around Tor stays blocked.</source>
        <translation>本机没有网络。绕过 Tor 的流量仍被阻断。</translation>
    </message>
    <message>
        <source>This computer has no network. Veldmark goes on when it is back.</source>
        <translation>本机没有网络。网络恢复后 Veldmark 会继续。</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor 没有可用的线路，正在继续尝试。绕过 Tor 的流量仍被阻断。</translation>
    </message>
    <message>
        <source>Tor has no working circuit and keeps trying.</source>
        <translation>Tor 没有可用的线路，正在继续尝试。</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying. Traffic around Tor stays blocked.</source>
        <translation>Tor 没有得到网络的应答，正在继续尝试。绕过 Tor 的流量仍被阻断。</translation>
    </message>
    <message>
        <source>Tor gets no answer from the network and keeps trying.</source>
        <translation>Tor 没有得到网络的应答，正在继续尝试。</translation>
    </message>
    <message>
        <source>Another program has ended this session and started its own. Restore Network ends that session.</source>
        <translation>另一个程序已结束此会话，并开始了它自己的会话。“恢复网络”会结束后者。</translation>
    </message>
    <message>
        <source>This computer has no network, so Tor can&apos;t connect.</source>
        <translation>本机没有网络，因此 Tor 无法连接。</translation>
    </message>
    <message>
        <source>A VPN takes Tor&apos;s traffic, and strict mode does not let the VPN out. Switch the VPN off, or use proxy mode.</source>
        <translation>VPN 接管了 Tor 的流量，而严格模式不放行该 VPN。请关闭 VPN，或使用代理模式。</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules; they are back in place.</source>
        <translation>另一个程序移除了 Veldmark 的防火墙规则；规则现已恢复。</translation>
    </message>
    <message>
        <source>Another program removed Veldmark&apos;s firewall rules and they could not be put back. Traffic may leave this computer directly. Disconnect and connect again.</source>
        <translation>另一个程序移除了 Veldmark 的防火墙规则，且规则未能恢复。流量可能直接离开本机。请断开并重新连接。</translation>
    </message>
    <message>
        <source>Invalid exit country.</source>
        <translation>出口国家无效。</translation>
    </message>
    <message>
        <source>The settings couldn&apos;t be saved. Changes to them may last only until you quit.</source>
        <translation>无法保存设置。对设置的更改可能只保留到您退出为止。</translation>
    </message>
    <message>
        <source>Checking latest version…</source>
        <translation>正在检查最新版本…</translation>
    </message>
    <message>
        <source>Verifying signature…</source>
        <translation>正在验证签名…</translation>
    </message>
    <message>
        <source>Another download is under way.</source>
        <translation>另一项下载正在进行。</translation>
    </message>
    <message>
        <source>Path not responding, finding another…</source>
        <translation>路径没有响应，正在寻找其他路径…</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes.</source>
        <translation>Tor 未能在 5 分钟内完成连接。</translation>
    </message>
    <message>
        <source>Administrator access was refused, or the agent that asks for the password gave no answer.</source>
        <translation>管理员权限被拒绝，或者询问密码的认证代理没有应答。</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, so Tor can&apos;t connect: %1.</source>
        <translation>本机上的另一个防火墙禁止出站流量，因此 Tor 无法连接：%1。</translation>
    </message>
    <message>
        <source>Setup ran but the helper wasn&apos;t installed. Try again.</source>
        <translation>设置已运行，但辅助程序未安装成功。请重试。</translation>
    </message>
    <message>
        <source>The helper failed without an error message.</source>
        <translation>辅助程序失败，但没有给出错误消息。</translation>
    </message>
    <message>
        <source>Add at least one bridge under Bridges → Custom….</source>
        <translation>请在“网桥 → 自定义…”中至少添加一个网桥。</translation>
    </message>
    <message>
        <source>Some custom bridge lines aren&apos;t valid. Fix them under Bridges → Custom….</source>
        <translation>有些自定义网桥行无效。请在“网桥 → 自定义…”中修正。</translation>
    </message>
    <message>
        <source>At most %1 custom bridges can be used. Remove some under Bridges → Custom….</source>
        <translation>最多可使用 %1 个自定义网桥。请在“网桥 → 自定义…”中移除一些。</translation>
    </message>
    <message>
        <source>Testing speed (%1 of %2)…</source>
        <translation>正在测试速度（%1/%2）…</translation>
    </message>
    <message>
        <source>Slow path (%1 ms), finding a faster one…</source>
        <translation>路径较慢（%1 毫秒），正在寻找更快的路径…</translation>
    </message>
    <message>
        <source>Downloading Tor %1 bridge programs…</source>
        <translation>正在下载 Tor %1 的网桥程序…</translation>
    </message>
    <message>
        <source>Download of %1 failed (HTTP %2).</source>
        <translation>下载失败：%1（HTTP %2）。</translation>
    </message>
    <message>
        <source>The settings file couldn&apos;t be read. It was kept as %1, and a new one is used.</source>
        <translation>无法读取设置文件。原文件已保留为 %1，现使用新文件。</translation>
    </message>
    <message>
        <source>The settings file %1 can&apos;t be read or replaced. Changes to the settings last until you quit.</source>
        <translation>设置文件 %1 无法读取，也无法替换。对设置的更改只保留到您退出为止。</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1 without Tor: %2</source>
        <translation>未能以不经 Tor 的方式打开 %1：%2</translation>
    </message>
    <message>
        <source>Another Veldmark of yours has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>其间您的另一个 Veldmark 已开始会话，因此没有结束任何会话。再次断开即可结束该会话。</translation>
    </message>
    <message>
        <source>Another user&apos;s Veldmark has started a session meanwhile, so no session was ended. Disconnect again to end that session.</source>
        <translation>其间另一个用户的 Veldmark 已开始会话，因此没有结束任何会话。再次断开即可结束该会话。</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by another Veldmark of yours, process %1</source>
        <translation>您的另一个 Veldmark（进程 %1）已将您的网络设置为使用 Tor</translation>
    </message>
    <message>
        <source>Your network is set up for Tor by %1, whose Veldmark is process %2</source>
        <translation>%1 的 Veldmark（进程 %2）已将您的网络设置为使用 Tor</translation>
    </message>
    <message>
        <source>Another Veldmark of yours is connected (process %1). Disconnect it, or restore the network, first.</source>
        <translation>您的另一个 Veldmark 已连接（进程 %1）。请先将其断开，或恢复网络。</translation>
    </message>
    <message>
        <source>%1 is connected with Veldmark (process %2). That session must be ended first.</source>
        <translation>%1 已用 Veldmark 连接（进程 %2）。必须先结束该会话。</translation>
    </message>
    <message>
        <source>%1 Your network is still pointed at Tor. Click Restore Network to undo.</source>
        <translation>%1 您的网络仍指向 Tor。点击“恢复网络”可撤销。</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install the OpenBSD netcat or Ncat with your package manager.</source>
        <translation>ssh 尚未通过 Tor：它需要支持 SOCKS 的 netcat。请用您的软件包管理器安装 OpenBSD netcat 或 Ncat。</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up terminal mode: %1</source>
        <translation>无法设置终端模式：%1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove terminal integration: %1</source>
        <translation>无法移除终端集成：%1</translation>
    </message>
    <message>
        <source>Couldn&apos;t set up passwordless mode: %1</source>
        <translation>无法设置免密码模式：%1</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove passwordless mode: %1</source>
        <translation>无法移除免密码模式：%1</translation>
    </message>
    <message>
        <source>ssh doesn&apos;t go through Tor yet: it needs a netcat that speaks SOCKS. Install one with: %1</source>
        <translation>ssh 尚未通过 Tor：它需要支持 SOCKS 的 netcat。安装方法：%1</translation>
    </message>
    <message>
        <source>Connect in strict mode to open apps without Tor</source>
        <translation>以严格模式连接后，才能不经 Tor 打开应用</translation>
    </message>
    <message>
        <source>No bridge answered a quick test, trying them all</source>
        <translation>快速测试中没有网桥应答，正在尝试全部网桥</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>这些网桥需要 lyrebird，它随 Tor Browser 提供。点击“网桥”旁的“下载”即可获取。</translation>
    </message>
    <message>
        <source>Snowflake needs snowflake-client, which comes with Tor Browser. Click Download next to Bridges to get it.</source>
        <translation>Snowflake 需要 snowflake-client，它随 Tor Browser 提供。点击“网桥”旁的“下载”即可获取。</translation>
    </message>
    <message>
        <source>Couldn&apos;t read the latest Tor version from torproject.org.</source>
        <translation>无法从 torproject.org 读取 Tor 的最新版本。</translation>
    </message>
    <message>
        <source>The request timed out.</source>
        <translation>请求超时。</translation>
    </message>
    <message>
        <source>The server gave no HTTP answer.</source>
        <translation>服务器没有给出 HTTP 应答。</translation>
    </message>
    <message>
        <source>The connection was lost before the download ended.</source>
        <translation>连接在下载完成之前中断。</translation>
    </message>
    <message>
        <source>Not connected to Tor&apos;s control port.</source>
        <translation>未连接到 Tor 的控制端口。</translation>
    </message>
    <message>
        <source>Tor closed the control connection.</source>
        <translation>Tor 关闭了控制连接。</translation>
    </message>
    <message>
        <source>A program other than Tor listens on Tor&apos;s control port.</source>
        <translation>在 Tor 的控制端口上监听的不是 Tor，而是其他程序。</translation>
    </message>
    <message>
        <source>Tor didn&apos;t answer on its control port in time.</source>
        <translation>Tor 未在其控制端口上及时应答。</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager or set its location in Settings.</source>
        <translation>未安装 Tor。请用您的软件包管理器安装，或在“设置”中指定其位置。</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with Homebrew (brew install tor) or set its location in Settings.</source>
        <translation>未安装 Tor。请用 Homebrew 安装（brew install tor），或在“设置”中指定其位置。</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: polkit is not running on this system.</source>
        <translation>无法请求管理员权限：此系统上没有运行 polkit。</translation>
    </message>
    <message>
        <source>Administrator access can&apos;t be asked for: no PolicyKit authentication agent is running in this session.</source>
        <translation>无法请求管理员权限：此会话中没有运行 PolicyKit 认证代理。</translation>
    </message>
    <message>
        <source>The password could not be checked: polkit accepts no password from this terminal. Run the command with sudo.</source>
        <translation>无法检查密码：polkit 不接受来自此终端的密码。请用 sudo 运行该命令。</translation>
    </message>
    <message>
        <source>Couldn&apos;t fix DNS: %1</source>
        <translation>无法修复 DNS：%1</translation>
    </message>
    <message>
        <source>Couldn&apos;t request a new identity: %1</source>
        <translation>无法请求新身份：%1</translation>
    </message>
    <message>
        <source>Couldn&apos;t read circuits: %1</source>
        <translation>无法读取线路：%1</translation>
    </message>
    <message>
        <source>Couldn&apos;t change the login-item setting: %1</source>
        <translation>无法更改登录项设置：%1</translation>
    </message>
    <message>
        <source>Login items can&apos;t be changed here.</source>
        <translation>此处无法更改登录项。</translation>
    </message>
    <message>
        <source>Move Veldmark to the Applications folder and open it from there first.</source>
        <translation>请先将 Veldmark 移到“应用程序”文件夹，再从那里打开。</translation>
    </message>
    <message>
        <source>Couldn&apos;t remove %1.</source>
        <translation>无法移除 %1。</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Couldn&apos;t download bridge programs: %1</source>
        <translation>无法下载网桥程序：%1</translation>
    </message>
    <message>
        <source>Bridge programs %1 installed over HTTPS. Install GnuPG (%2) and download again to also verify the Tor Project&apos;s signature.</source>
        <translation>网桥程序 %1 已通过 HTTPS 安装。如果还要验证 Tor 项目的签名，请安装 GnuPG（%2）并重新下载。</translation>
    </message>
    <message>
        <source>The download&apos;s signature didn&apos;t verify, so it was discarded. %1</source>
        <translation>下载内容的签名未通过验证，因此已丢弃。%1</translation>
    </message>
    <message>
        <source>Couldn&apos;t unpack the download. %1</source>
        <translation>无法解压下载内容。%1</translation>
    </message>
    <message>
        <source>Tor can&apos;t reach the bridge program: %1.</source>
        <translation>Tor 无法连接到网桥程序：%1。</translation>
    </message>
    <message>
        <source>Tor reports: %1 (%2).</source>
        <translation>Tor 报告：%1（%2）。</translation>
    </message>
    <message>
        <source>Tor reports: %1.</source>
        <translation>Tor 报告：%1。</translation>
    </message>
    <message>
        <source>Tor replied: %1</source>
        <translation>Tor 答复：%1</translation>
    </message>
    <message>
        <source>Tor has trouble with the bridge program: %1</source>
        <translation>Tor 与网桥程序之间出现问题：%1</translation>
    </message>
    <message>
        <source>The bridge program printed something that Tor doesn&apos;t understand: &quot;%1&quot;.</source>
        <translation>网桥程序输出了 Tor 无法理解的内容：“%1”。</translation>
    </message>
    <message>
        <source>Using the %1 fastest of %2 bridges</source>
        <translation>正在使用 %2 个网桥中最快的 %1 个</translation>
    </message>
    <message>
        <source>The %1 bridge type isn&apos;t supported yet.</source>
        <translation>尚不支持 %1 类型的网桥。</translation>
    </message>
    <message>
        <source>Built-in %1 bridges come from Tor Browser. Click Download next to Bridges, install Tor Browser, or paste your own under Bridges → Custom….</source>
        <translation>内置 %1 网桥来自 Tor Browser。请点击“网桥”旁的“下载”，或安装 Tor Browser，或在“网桥 → 自定义…”中粘贴您自己的网桥。</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1.</source>
        <translation>有些 DNS 设置来自 Veldmark 之外（VPN 或 /etc/resolver），仍会绕过 Tor：%1。</translation>
    </message>
    <message>
        <source>Some DNS settings come from outside Veldmark (a VPN or /etc/resolver) and still point around Tor: %1. Strict mode&apos;s firewall blocks them.</source>
        <translation>有些 DNS 设置来自 Veldmark 之外（VPN 或 /etc/resolver），仍会绕过 Tor：%1。严格模式的防火墙会阻断它们。</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed. Install it with your package manager (%1) or set its location in Settings.</source>
        <translation>未安装 Tor。请用您的软件包管理器安装（%1），或在“设置”中指定其位置。</translation>
    </message>
    <message>
        <source>%1 is already being opened.</source>
        <translation>%1 已在打开中。</translation>
    </message>
    <message>
        <source>A session is open, and its kill switch doesn&apos;t block traffic: its watcher couldn&apos;t put the rules back. Traffic may leave this computer directly. Restore the network, and connect again.</source>
        <translation>有会话正在进行，但其断网保护未生效：监视程序未能恢复规则。流量可能直接离开本机。请恢复网络，然后重新连接。</translation>
    </message>
    <message>
        <source>The clock is behind: it shows %1, but the file %2 was written on %3. Tor needs a clock that is right to within minutes.</source>
        <translation>时钟慢了：时钟显示 %1，但文件 %2 的写入时间是 %3。Tor 要求时钟误差在几分钟以内。</translation>
    </message>
    <message>
        <source>The clock is set from the network. It shows %1.</source>
        <translation>时钟由网络校准，显示 %1。</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether the clock is right: no time service seems to set it. It shows %1. Tor needs it right to within minutes.</source>
        <translation>无法确定时钟是否准确：没有发现通过网络校准时钟的程序。时钟显示 %1。Tor 要求误差在几分钟以内。</translation>
    </message>
    <message>
        <source>nftables isn&apos;t installed. Veldmark&apos;s firewall needs it.</source>
        <translation>未安装 nftables。Veldmark 的防火墙需要它。</translation>
    </message>
    <message>
        <source>The system&apos;s firewall, nftables, can be used.</source>
        <translation>系统的防火墙 nftables 可以使用。</translation>
    </message>
    <message>
        <source>The system&apos;s firewall can&apos;t be used: %1</source>
        <translation>系统的防火墙无法使用：%1</translation>
    </message>
    <message>
        <source>The running kernel (%1) has no nftables. After an upgrade of the kernel, restart the computer.</source>
        <translation>正在运行的内核（%1）不带 nftables。升级内核后，请重启电脑。</translation>
    </message>
    <message>
        <source>nftables is installed. Only root can tell whether the running kernel can use it.</source>
        <translation>nftables 已安装。正在运行的内核能否使用它，只有 root 能查明。</translation>
    </message>
    <message>
        <source>nftables is installed, and the kernel has it.</source>
        <translation>nftables 已安装，内核也支持它。</translation>
    </message>
    <message>
        <source>This system has no control groups of version 2, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>此系统没有第 2 版控制组，因此不能以不经 Tor 的方式打开应用，断网保护也只能凭账户识别 Tor。其他功能均正常。</translation>
    </message>
    <message>
        <source>The kernel (%1) is older than 5.13, so no application can be opened without Tor, and the kill switch knows Tor by its account alone. Everything else works.</source>
        <translation>内核（%1）早于 5.13，因此不能以不经 Tor 的方式打开应用，断网保护也只能凭账户识别 Tor。其他功能均正常。</translation>
    </message>
    <message>
        <source>Applications can be opened without Tor: control groups of version 2 are there.</source>
        <translation>可以不经 Tor 打开应用：系统具备第 2 版控制组。</translation>
    </message>
    <message>
        <source>No other firewall that Veldmark knows runs. Only root can read the rules themselves.</source>
        <translation>没有 Veldmark 已知的其他防火墙在运行。规则本身只有 root 能读取。</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic that its rules don&apos;t allow, so Tor may not get through: %1.</source>
        <translation>本机上的另一个防火墙会禁止未经其规则允许的出站流量，因此 Tor 可能无法通过：%1。</translation>
    </message>
    <message>
        <source>Other programs set firewall rules here: %1. Veldmark leaves their rules alone. Rules that drop packets can block Tor.</source>
        <translation>其他程序在此设置了防火墙规则：%1。Veldmark 不会改动它们的规则。丢弃数据包的规则可能会阻断 Tor。</translation>
    </message>
    <message>
        <source>pkexec isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>未安装 pkexec，因此无法弹出窗口询问管理员密码。</translation>
    </message>
    <message>
        <source>polkit isn&apos;t installed, so no window can ask for the administrator&apos;s password.</source>
        <translation>未安装 polkit，因此无法弹出窗口询问管理员密码。</translation>
    </message>
    <message>
        <source>There is no desktop here on which a window could ask for the administrator&apos;s password. Use sudo.</source>
        <translation>此处没有可弹出窗口询问管理员密码的桌面环境。请使用 sudo。</translation>
    </message>
    <message>
        <source>No known polkit agent, the program that asks for the password, runs in your session. Use sudo, or start an agent such as lxpolkit.</source>
        <translation>您的会话中没有运行已知的 polkit 认证代理（询问密码的程序）。请使用 sudo，或启动 lxpolkit 之类的认证代理。</translation>
    </message>
    <message>
        <source>polkit is installed, and an agent that asks for the password runs in your session.</source>
        <translation>polkit 已安装，且您的会话中运行着询问密码的认证代理。</translation>
    </message>
    <message>
        <source>Veldmark runs as root here and asks for no password.</source>
        <translation>Veldmark 在此以 root 身份运行，不询问密码。</translation>
    </message>
    <message>
        <source>Passwordless mode is set up.</source>
        <translation>免密码模式已设置。</translation>
    </message>
    <message>
        <source>sudo isn&apos;t installed. Passwordless mode needs it.</source>
        <translation>未安装 sudo。免密码模式需要它。</translation>
    </message>
    <message>
        <source>sudo is installed. Only root can tell whether you may use it.</source>
        <translation>sudo 已安装。您是否可以使用它，只有 root 能查明。</translation>
    </message>
    <message>
        <source>sudo is installed, and you are in the group %1.</source>
        <translation>sudo 已安装，且您属于 %1 组。</translation>
    </message>
    <message>
        <source>The program listens on IPv6. If it takes IPv6 alone, Tor can use the port.</source>
        <translation>该程序在 IPv6 上监听。如果它只接受 IPv6，Tor 就可以使用该端口。</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by a program of the account %2.</source>
        <translation>Tor 需要的端口 %1 被账户 %2 的一个程序占用。</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) runs. Veldmark stops it while it is connected and starts it again afterwards.</source>
        <translation>系统自带的 Tor 服务（%1）正在运行。Veldmark 连接期间会停止它，之后再重新启动它。</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2 (process %3, account %4).</source>
        <translation>Tor 需要的端口 %1 被 %2（进程 %3，账户 %4）占用。</translation>
    </message>
    <message>
        <source>Veldmark&apos;s own Tor holds the ports 9050, 9051 and 293.</source>
        <translation>端口 9050、9051 和 293 由 Veldmark 自己的 Tor 占用。</translation>
    </message>
    <message>
        <source>The ports that Tor needs (9050, 9051 and 293) are free.</source>
        <translation>Tor 需要的端口（9050、9051 和 293）空闲。</translation>
    </message>
    <message>
        <source>The location of Tor in the settings, %1, is not an executable program. Veldmark searches the usual places instead.</source>
        <translation>设置中的 Tor 位置 %1 不是可以运行的程序。将改为搜索常用位置。</translation>
    </message>
    <message>
        <source>Tor isn&apos;t installed.</source>
        <translation>未安装 Tor。</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t start, or isn&apos;t Tor: it prints no version.</source>
        <translation>%1 无法启动，或者不是 Tor：它没有报告自己的版本。</translation>
    </message>
    <message>
        <source>Tor %1 is installed: %2.</source>
        <translation>Tor %1 已安装：%2。</translation>
    </message>
    <message>
        <source>The program %1 is missing. Veldmark&apos;s helper needs it.</source>
        <translation>缺少程序 %1。Veldmark 的辅助程序需要它。</translation>
    </message>
    <message>
        <source>Every program that Veldmark&apos;s helper calls is installed.</source>
        <translation>Veldmark 的辅助程序所调用的程序均已安装。</translation>
    </message>
    <message>
        <source>The helper is missing. Reinstall Veldmark.</source>
        <translation>缺少 Veldmark 的辅助程序。请重新安装 Veldmark。</translation>
    </message>
    <message>
        <source>Accounts other than root can change Veldmark&apos;s helper, %1, and with it what the administrator&apos;s password runs.</source>
        <translation>root 以外的账户可以改动 Veldmark 的辅助程序 %1，从而改动凭管理员密码运行的内容。</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper, %1, is not installed: the account %2 can change it, and with it what the administrator&apos;s password runs.</source>
        <translation>Veldmark 的辅助程序 %1 不是已安装的版本：账户 %2 可以改动它，从而改动凭管理员密码运行的内容。</translation>
    </message>
    <message>
        <source>Veldmark&apos;s helper is installed, and only root can change it: %1.</source>
        <translation>Veldmark 的辅助程序已安装，且只有 root 能改动它：%1。</translation>
    </message>
    <message>
        <source>The helper of passwordless mode belongs to another version. Set up passwordless mode again in Settings, General.</source>
        <translation>免密码模式的辅助程序属于另一个版本。请在“设置”的“常规”中重新设置免密码模式。</translation>
    </message>
    <message>
        <source>Bridges are off. Bridges need bridge programs where Tor is blocked, and none was found.</source>
        <translation>网桥已关闭。在 Tor 被封锁的地方，网桥需要网桥程序才能工作，但没有找到任何网桥程序。</translation>
    </message>
    <message>
        <source>Bridges are off. Bridge programs were found: %1.</source>
        <translation>网桥已关闭。找到的网桥程序：%1。</translation>
    </message>
    <message>
        <source>The chosen bridges can&apos;t be used. %1</source>
        <translation>所选网桥无法使用。%1</translation>
    </message>
    <message>
        <source>The chosen bridges (%1) can be used: %2.</source>
        <translation>所选网桥（%1）可以使用：%2。</translation>
    </message>
    <message>
        <source>%1 manages DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>DNS 由 %1 管理。Veldmark 在连接期间会更改该设置，之后再还原。</translation>
    </message>
    <message>
        <source>Veldmark wrote %1. It points DNS at Tor.</source>
        <translation>%1 是 Veldmark 的文件，其中将 Tor 指定为域名服务器。</translation>
    </message>
    <message>
        <source>The file %1 is missing, so DNS may not work at all.</source>
        <translation>缺少文件 %1，因此 DNS 可能完全无法工作。</translation>
    </message>
    <message>
        <source>A resolver on this computer answers DNS. Veldmark changes that while connected and restores it afterwards.</source>
        <translation>本机上的解析器负责应答 DNS 查询。Veldmark 在连接期间会更改该设置，之后再还原。</translation>
    </message>
    <message>
        <source>No earlier session is left open.</source>
        <translation>没有先前遗留的未结束会话。</translation>
    </message>
    <message>
        <source>A Tor of an earlier session still runs (process %1).</source>
        <translation>先前会话的 Tor 仍在运行（进程 %1）。</translation>
    </message>
    <message>
        <source>A session is open: the network is set up for Tor, and Tor runs.</source>
        <translation>有会话正在进行：网络已设置为使用 Tor，且 Tor 正在运行。</translation>
    </message>
    <message>
        <source>The network is set up for Tor. It isn&apos;t known whether Tor still runs.</source>
        <translation>网络已设置为使用 Tor。此处无法确定 Tor 是否仍在运行。</translation>
    </message>
    <message>
        <source>The network is still set up for Tor from an earlier session, and no Tor runs. Connect again, or restore the network.</source>
        <translation>网络仍因先前的会话而设置为使用 Tor，但没有 Tor 在运行。请重新连接，或恢复网络。</translation>
    </message>
    <message>
        <source>A session is open, and it isn&apos;t known whether its kill switch blocks traffic: no watcher watches the rules. Restore the network, and connect again.</source>
        <translation>有会话正在进行，但无法确定其断网保护是否有效：没有程序在监视规则。请恢复网络，然后重新连接。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>已取消。</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 of %2 MB (%3%)</source>
        <translation>%1/%2 MB（%3%）</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this computer. While connected, Veldmark stops the system&apos;s own Tor service.</source>
        <translation>Veldmark 需要管理员权限来管理本机的 Tor 路由。连接期间，Veldmark 会停止系统自带的 Tor 服务。</translation>
    </message>
    <message>
        <source>Veldmark needs administrator access to manage Tor routing on this Mac.</source>
        <translation>Veldmark 需要管理员权限来管理这台 Mac 的 Tor 路由。</translation>
    </message>
    <message>
        <source>The archive contains %1: %2</source>
        <translation>归档中含有%1：%2</translation>
    </message>
    <message>
        <source>a link that leads elsewhere</source>
        <translation>指向别处的链接</translation>
    </message>
    <message>
        <source>a hard link</source>
        <translation>硬链接</translation>
    </message>
    <message>
        <source>an entry that is neither a file nor a folder</source>
        <translation>既非文件也非文件夹的条目</translation>
    </message>
    <message>
        <source>a path that leads elsewhere</source>
        <translation>指向别处的路径</translation>
    </message>
    <message>
        <source>The file is empty or not an archive.</source>
        <translation>归档为空，或者不是归档。</translation>
    </message>
    <message>
        <source>The archive&apos;s list of files is ambiguous.</source>
        <translation>归档的文件列表不明确。</translation>
    </message>
    <message>
        <source>The archive contains too many files.</source>
        <translation>归档中的文件过多。</translation>
    </message>
    <message>
        <source>The archive&apos;s content is too large.</source>
        <translation>归档的内容过大。</translation>
    </message>
    <message>
        <source>The archive&apos;s content could not be listed.</source>
        <translation>无法列出归档的内容。</translation>
    </message>
    <message>
        <source>Couldn&apos;t make the folder %1: %2.</source>
        <translation>无法创建文件夹 %1：%2。</translation>
    </message>
    <message>
        <source>Couldn&apos;t open %1: %2.</source>
        <translation>无法打开 %1：%2。</translation>
    </message>
    <message>
        <source>Couldn&apos;t make a folder beside %1: %2.</source>
        <translation>无法在 %1 旁创建文件夹：%2。</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>%1 didn&apos;t end within %2 minutes.</source>
        <translation>%1 未在 %2 分钟内结束。</translation>
    </message>
    <message>
        <source>Couldn&apos;t load the Tor Browser signing key. %1</source>
        <translation>无法加载 Tor Browser 签名密钥。%1</translation>
    </message>
    <message>
        <source>The server sent more than %1 can be.</source>
        <translation>服务器发来的数据超出了应有的大小：%1。</translation>
    </message>
    <message>
        <source>the version index</source>
        <translation>版本索引</translation>
    </message>
    <message>
        <source>the bridge programs</source>
        <translation>网桥程序</translation>
    </message>
    <message>
        <source>signature</source>
        <translation>签名</translation>
    </message>
    <message>
        <source>signing key</source>
        <translation>签名密钥</translation>
    </message>
    <message>
        <source>Installing…</source>
        <translation>正在安装…</translation>
    </message>
    <message>
        <source>No applications are installed.</source>
        <translation>没有已安装的应用。</translation>
    </message>
    <message>
        <source>(not in the menu)</source>
        <translation>（不在菜单中）</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>没有文件“%1”。</translation>
    </message>
    <message>
        <source>There is no application &quot;%1&quot;; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>没有应用“%1”；“veldmarkctl apps”会列出所有应用。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; may be any of: %2. Give the path.</source>
        <translation>“%1”可能是其中任意一个：%2。请给出路径。</translation>
    </message>
    <message>
        <source>%1 needs a key: veldmarkctl %1 KEY.</source>
        <translation>%1 需要一个键：veldmarkctl %1 KEY。</translation>
    </message>
    <message>
        <source>%1 needs a key and a value: veldmarkctl %1 KEY VALUE.</source>
        <translation>%1 需要一个键和一个值：veldmarkctl %1 KEY VALUE。</translation>
    </message>
    <message>
        <source>A command is missing. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>缺少命令。“veldmarkctl help”会列出所有命令。</translation>
    </message>
    <message>
        <source>Unknown command %1. &quot;veldmarkctl help&quot; lists the commands.</source>
        <translation>未知命令 %1。“veldmarkctl help”会列出所有命令。</translation>
    </message>
    <message>
        <source>%1 has no option %2.</source>
        <translation>%1 没有选项 %2。</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t take %2.</source>
        <translation>%1 不接受 %2。</translation>
    </message>
    <message>
        <source>usage: veldmarkctl COMMAND</source>
        <translation>用法：veldmarkctl COMMAND</translation>
    </message>
    <message>
        <source>Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage,
3 Veldmark is not running, 4 Veldmark is already running.</source>
        <translation>退出状态：0 完成，1 失败（原因见标准错误输出），2 用法错误，
3 Veldmark 未在运行，4 Veldmark 已在运行。</translation>
    </message>
    <message>
        <source>line %1 is not a bridge line: %2</source>
        <translation>第 %1 行不是网桥行：%2</translation>
    </message>
    <message>
        <source>%1 too many, from line %2 on; at most %3 can be used</source>
        <translation>多出 %1 个，从第 %2 行起；最多可使用 %3 个</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>doesn&apos;t say which transports it serves</source>
        <translation>未说明支持哪些传输</translation>
    </message>
    <message>
        <source>serves %1</source>
        <translation>支持 %1</translation>
    </message>
    <message>
        <source>Built-in bridges</source>
        <translation>内置网桥</translation>
    </message>
    <message>
        <source>Built-in bridges, from %1</source>
        <translation>内置网桥，来自 %1</translation>
    </message>
    <message>
        <source>none; get some with: veldmarkctl download-transports</source>
        <translation>无；获取方法：veldmarkctl download-transports</translation>
    </message>
    <message>
        <source>signature verified</source>
        <translation>签名已验证</translation>
    </message>
    <message>
        <source>signature not verified</source>
        <translation>签名未验证</translation>
    </message>
    <message>
        <source>not downloaded</source>
        <translation>未下载</translation>
    </message>
    <message>
        <source>Your own bridges</source>
        <translation>您自己的网桥</translation>
    </message>
    <message>
        <source>%1 valid</source>
        <translation>%1 个有效</translation>
    </message>
    <message>
        <source>Installed Tor Expert Bundle %1, signature verified.</source>
        <translation>已安装 Tor Expert Bundle %1，签名已验证。</translation>
    </message>
    <message>
        <source>Veldmark isn&apos;t running. Start it with: veldmarkctl run --connect</source>
        <translation>Veldmark 未在运行。启动方法：veldmarkctl run --connect</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;. Fields: %2.</source>
        <translation>没有字段“%1”。字段：%2。</translation>
    </message>
    <message>
        <source>list the commands</source>
        <translation>列出所有命令</translation>
    </message>
    <message>
        <source>good</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>note</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>A connect can work.</source>
        <translation>可以进行连接。</translation>
    </message>
    <message>
        <source>A connect can&apos;t work yet.</source>
        <translation>尚无法连接。</translation>
    </message>
    <message>
        <source>A connect can&apos;t work until each &quot;problem&quot; is fixed.</source>
        <translation>在每个“问题”都解决之前，无法连接。</translation>
    </message>
    <message>
        <source>proxy: apps that ignore the system proxy are not covered</source>
        <translation>代理：忽略系统代理的应用不在保护范围内</translation>
    </message>
    <message>
        <source>strict: only Tor&apos;s traffic leaves</source>
        <translation>严格：只有 Tor 的流量能离开本机</translation>
    </message>
    <message>
        <source>strict</source>
        <translation>严格</translation>
    </message>
    <message>
        <source>blocks traffic, since %1</source>
        <translation>有效，自 %1 起</translation>
    </message>
    <message>
        <source>blocks traffic; put back at %1 after another program had removed it</source>
        <translation>有效；曾被另一个程序移除，已于 %1 恢复</translation>
    </message>
    <message>
        <source>NOT BLOCKING since %1: traffic may leave this computer directly</source>
        <translation>【失效】自 %1 起：流量可能直接离开本机</translation>
    </message>
    <message>
        <source>isn&apos;t known to block traffic, since %1</source>
        <translation>无法确定是否有效，自 %1 起</translation>
    </message>
    <message>
        <source>not checked yet</source>
        <translation>尚未检查</translation>
    </message>
    <message>
        <source>the check service didn&apos;t answer through Tor</source>
        <translation>通过 Tor 未能得到检查服务的应答</translation>
    </message>
    <message>
        <source>%1, a Tor exit</source>
        <translation>%1，是 Tor 出口</translation>
    </message>
    <message>
        <source>%1, NOT a Tor exit</source>
        <translation>%1，【并非】Tor 出口</translation>
    </message>
    <message>
        <source>open; it shows the address %1</source>
        <translation>未阻断；会暴露地址 %1</translation>
    </message>
    <message>
        <source>blocked</source>
        <translation>已阻断</translation>
    </message>
    <message>
        <source>no answer, but it isn&apos;t known whether the kill switch blocks it</source>
        <translation>无应答，但无法确认断网保护是否会将其阻断</translation>
    </message>
    <message>
        <source>no answer, but proxy mode doesn&apos;t block it</source>
        <translation>无应答，但代理模式并不阻断它</translation>
    </message>
    <message>
        <source>checking…</source>
        <translation>正在检查…</translation>
    </message>
    <message>
        <source>inconclusive</source>
        <translation>无法判定</translation>
    </message>
    <message>
        <source>can go around Tor via: %1</source>
        <translation>可能绕过 Tor，经由：%1</translation>
    </message>
    <message>
        <source>a test lookup went through Tor</source>
        <translation>一次测试查询通过了 Tor</translation>
    </message>
    <message>
        <source>testing…</source>
        <translation>正在测试…</translation>
    </message>
    <message>
        <source>settings point at Tor, but a test lookup couldn&apos;t be confirmed</source>
        <translation>设置指向 Tor，但测试查询未能得到确认</translation>
    </message>
    <message>
        <source>not tested yet</source>
        <translation>尚未测试</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>出口</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>延迟</translation>
    </message>
    <message>
        <source>%1 ms through Tor</source>
        <translation>%1 毫秒（通过 Tor）</translation>
    </message>
    <message>
        <source>Direct path</source>
        <translation>直连路径</translation>
    </message>
    <message>
        <source>DNS</source>
        <translation>DNS</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>流量</translation>
    </message>
    <message>
        <source>%1 received, %2 sent</source>
        <translation>已接收 %1，已发送 %2</translation>
    </message>
    <message>
        <source>Bridges</source>
        <translation>网桥</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>What to do</source>
        <translation>处理方法</translation>
    </message>
    <message>
        <source>nothing; veldmarkctl restore would end that session</source>
        <translation>无需操作；veldmarkctl restore 会结束该会话</translation>
    </message>
    <message>
        <source>Kill switch</source>
        <translation>断网保护</translation>
    </message>
    <message>
        <source>Cause</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>终端</translation>
    </message>
    <message>
        <source>No circuits yet.</source>
        <translation>尚无线路。</translation>
    </message>
    <message>
        <source>Ready. Connect with: veldmarkctl connect</source>
        <translation>已就绪。连接方法：veldmarkctl connect</translation>
    </message>
    <message>
        <source>Still restoring your network, one moment…</source>
        <translation>仍在恢复您的网络，请稍候…</translation>
    </message>
    <message>
        <source>Stopping as soon as Tor has been started…</source>
        <translation>正在等待 Tor 启动，启动后立即停止…</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Restore it with: %1</source>
        <translation>网络仍设置为使用 Tor。恢复方法：%1</translation>
    </message>
    <message>
        <source>The network is still set up for Tor. Press Ctrl-C to try again.</source>
        <translation>网络仍设置为使用 Tor。按 Ctrl-C 可再试一次。</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Press Ctrl-C to disconnect.</source>
        <translation>按 Ctrl-C 断开。</translation>
    </message>
    <message>
        <source>A command to Tor can&apos;t contain a line break or a NUL.</source>
        <translation>发给 Tor 的命令不能包含换行符或 NUL。</translation>
    </message>
    <message>
        <source>Tor sent a line of more than 1 MiB on its control port.</source>
        <translation>Tor 在其控制端口上发送了超过 1 MiB 的一行。</translation>
    </message>
    <message>
        <source>Tor sent a reply of more than 64 MiB on its control port.</source>
        <translation>Tor 在其控制端口上发送了超过 64 MiB 的答复。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither true nor false.</source>
        <translation>“%1”既不是 true 也不是 false。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a JSON array of strings.</source>
        <translation>“%1”不是由字符串组成的 JSON 数组。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a bridge choice: off, obfs4, snowflake, meek or custom.</source>
        <translation>“%1”不是有效的网桥选项；可选：off、obfs4、snowflake、meek 或 custom。</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;. Settings: %2.</source>
        <translation>没有设置项“%1”。设置项：%2。</translation>
    </message>
    <message>
        <source>Tor didn&apos;t finish connecting within 5 minutes. (%1)</source>
        <translation>Tor 未能在 5 分钟内完成连接。（%1）</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an exit country: two lower-case letters such as &quot;de&quot;, or nothing for any.</source>
        <translation>“%1”不是出口国家：应为两个小写字母，如“de”；留空表示任意国家。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an application: an absolute path that ends in &quot;%2&quot;.</source>
        <translation>“%1”不是应用：应为以“%2”结尾的绝对路径。</translation>
    </message>
    <message>
        <source>strict mode with the kill switch, else proxy mode</source>
        <translation>带断网保护的严格模式；否则为代理模式</translation>
    </message>
    <message>
        <source>strict mode lets the local network through</source>
        <translation>严格模式放行本地网络</translation>
    </message>
    <message>
        <source>two lower-case letters, or nothing for any</source>
        <translation>两个小写字母；留空表示任意国家</translation>
    </message>
    <message>
        <source>the path of the tor to use, or nothing to search for tor</source>
        <translation>要使用的 tor 的路径；留空表示自动查找</translation>
    </message>
    <message>
        <source>which bridges</source>
        <translation>使用哪种网桥</translation>
    </message>
    <message>
        <source>your own bridge lines, as typed</source>
        <translation>您自己的网桥行，按原样输入</translation>
    </message>
    <message>
        <source>paths of applications that may be opened without Tor</source>
        <translation>可以不经 Tor 打开的应用的路径</translation>
    </message>
    <message>
        <source>connect when Veldmark starts</source>
        <translation>Veldmark 启动时连接</translation>
    </message>
    <message>
        <source>test bridges before connecting, look for a faster path afterwards</source>
        <translation>连接前测试网桥，连接后寻找更快的路径</translation>
    </message>
    <message>
        <source>command-line tools go through Tor while connected</source>
        <translation>连接期间命令行工具通过 Tor</translation>
    </message>
    <message>
        <source>with your package manager</source>
        <translation>使用您的软件包管理器</translation>
    </message>
    <message>
        <source>Starting…</source>
        <translation>正在启动…</translation>
    </message>
    <message>
        <source>&quot;set&quot; needs a &quot;key&quot; and a &quot;value&quot;, both strings.</source>
        <translation>“set”需要“key”和“value”，两者都是字符串。</translation>
    </message>
    <message>
        <source>Already connected or connecting; &quot;veldmarkctl status&quot; says more.</source>
        <translation>已连接或正在连接；“veldmarkctl status”可查看详情。</translation>
    </message>
    <message>
        <source>Not now: %1</source>
        <translation>现在不行：%1</translation>
    </message>
    <message>
        <source>A check is already running.</source>
        <translation>检查已在进行。</translation>
    </message>
    <message>
        <source>There is no circuit &quot;%1&quot;.</source>
        <translation>没有线路“%1”。</translation>
    </message>
    <message>
        <source>Tor didn&apos;t close circuit %1.</source>
        <translation>Tor 没有关闭线路 %1。</translation>
    </message>
    <message>
        <source>&quot;launch&quot; needs an &quot;app&quot;, an absolute path.</source>
        <translation>“launch”需要“app”，即一个绝对路径。</translation>
    </message>
    <message>
        <source>Veldmark stopped before it had answered.</source>
        <translation>Veldmark 在应答之前停止了。</translation>
    </message>
    <message>
        <source>Veldmark is already running (process %1).</source>
        <translation>Veldmark 已在运行（进程 %1）。</translation>
    </message>
    <message>
        <source>%1 must be a folder of your own with mode 0700: the control socket goes there.</source>
        <translation>%1 必须是您自己的文件夹，且权限为 0700：控制套接字将放在其中。</translation>
    </message>
    <message>
        <source>Couldn&apos;t write %1/lock.</source>
        <translation>无法写入 %1/lock。</translation>
    </message>
    <message>
        <source>Couldn&apos;t listen on %1: %2.</source>
        <translation>无法在 %1 上监听：%2。</translation>
    </message>
    <message>
        <source>A command is a JSON object on one line.</source>
        <translation>命令是写在一行中的 JSON 对象。</translation>
    </message>
    <message>
        <source>Unknown command &quot;%1&quot;.</source>
        <translation>未知命令“%1”。</translation>
    </message>
    <message>
        <source>Not connected.</source>
        <translation>未连接。</translation>
    </message>
    <message>
        <source>The session has ended: %1</source>
        <translation>会话已结束：%1</translation>
    </message>
    <message>
        <source>as JSON</source>
        <translation>以 JSON 输出</translation>
    </message>
    <message>
        <source>connect at once</source>
        <translation>立即连接</translation>
    </message>
    <message>
        <source>run Veldmark here, in the foreground; Ctrl-C disconnects</source>
        <translation>在此处前台运行 Veldmark；按 Ctrl-C 断开</translation>
    </message>
    <message>
        <source>go on until Ctrl-C</source>
        <translation>持续运行，直到按 Ctrl-C</translation>
    </message>
    <message>
        <source>print the connection&apos;s state; --watch goes on until Ctrl-C</source>
        <translation>显示当前状态；--watch 持续显示，直到按 Ctrl-C</translation>
    </message>
    <message>
        <source>connect the running instance to Tor</source>
        <translation>将正在运行的 Veldmark 连接到 Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor</source>
        <translation>恢复网络并停止 Tor</translation>
    </message>
    <message>
        <source>restore the network and stop Tor, also after a crash</source>
        <translation>恢复网络并停止 Tor，也适用于崩溃之后</translation>
    </message>
    <message>
        <source>check the exit address, the direct path and DNS now</source>
        <translation>立即检查出口地址、直连路径和 DNS</translation>
    </message>
    <message>
        <source>point the system&apos;s DNS settings at Tor again</source>
        <translation>将系统的 DNS 设置重新指向 Tor</translation>
    </message>
    <message>
        <source>Tor&apos;s circuits and the sites on them</source>
        <translation>Tor 的线路及其上的站点</translation>
    </message>
    <message>
        <source>close a circuit; its sites get a fresh path on their next request</source>
        <translation>关闭一条线路；其上的站点在下次请求时会获得新路径</translation>
    </message>
    <message>
        <source>close-circuit needs a circuit&apos;s number; &quot;veldmarkctl circuits&quot; shows them.</source>
        <translation>close-circuit 需要线路编号；“veldmarkctl circuits”可显示编号。</translation>
    </message>
    <message>
        <source>new circuits for everything</source>
        <translation>全部使用新线路</translation>
    </message>
    <message>
        <source>warnings and errors only</source>
        <translation>仅显示警告和错误</translation>
    </message>
    <message>
        <source>Tor&apos;s log; --problems shows warnings and errors only</source>
        <translation>Tor 的日志；--problems 仅显示警告和错误</translation>
    </message>
    <message>
        <source>the bridge programs and built-in bridges that were found, and
which of your own bridge lines are not valid</source>
        <translation>找到的网桥程序和内置网桥，
以及您自己的网桥行中哪些无效</translation>
    </message>
    <message>
        <source>fetch the Tor Project&apos;s bridge programs and built-in bridges</source>
        <translation>获取 Tor 项目的网桥程序和内置网桥</translation>
    </message>
    <message>
        <source>the installed applications; * marks those in the setting &quot;bypassApps&quot;</source>
        <translation>已安装的应用；* 标记设置项“bypassApps”中的应用</translation>
    </message>
    <message>
        <source>open an application without Tor, with your own address; needs strict mode.
APP is a name from &quot;apps&quot;, the file name of its desktop entry, or the path
of an entry or a program. Running copies are asked to quit first</source>
        <translation>不经 Tor 打开应用，使用您自己的地址；需要严格模式。
APP 是“apps”列出的名称、其桌面项的文件名，
或者桌面项或程序的路径。正在运行的副本会先被要求退出</translation>
    </message>
    <message>
        <source>launch needs an application; &quot;veldmarkctl apps&quot; lists them.</source>
        <translation>launch 需要一个应用；“veldmarkctl apps”会列出所有应用。</translation>
    </message>
    <message>
        <source>check what a connect needs on this computer, what blocks it and how to fix
it. Changes nothing; the exit status is 0 when a connect can work</source>
        <translation>检查本机：连接需要什么、有什么阻碍、
如何解决。不作任何更改；可以连接时以 0 退出</translation>
    </message>
    <message>
        <source>print a field of &quot;status --json&quot;</source>
        <translation>输出“status --json”中的一个字段</translation>
    </message>
    <message>
        <source>change a setting; most of them only while not connected</source>
        <translation>更改设置项；多数设置项只能在未连接时更改</translation>
    </message>
    <message>
        <source>Can&apos;t read Tor&apos;s log</source>
        <translation>无法读取 Tor 的日志</translation>
    </message>
    <message>
        <source>The log files in %1 aren&apos;t readable by your account. Reconnect once with this version of Veldmark to fix their permissions.</source>
        <translation>您的账户无法读取 %1 中的日志文件。请用此版本的 Veldmark 重新连接一次，以修复其权限。</translation>
    </message>
    <message>
        <source>No log yet</source>
        <translation>尚无日志</translation>
    </message>
    <message>
        <source>Connect, and Tor&apos;s messages appear here as it starts. If Tor fails to start, the reason shows up here.</source>
        <translation>连接后，Tor 启动时的消息会显示在这里。如果 Tor 启动失败，原因也会显示在这里。</translation>
    </message>
    <message>
        <source>Nothing matches</source>
        <translation>无匹配项</translation>
    </message>
    <message>
        <source>No lines contain “%1”</source>
        <translation>没有包含“%1”的行</translation>
    </message>
    <message>
        <source>No warnings or errors. Tor is happy.</source>
        <translation>没有警告或错误。Tor 运行正常。</translation>
    </message>
    <message>
        <source>The bridge program %1 reports: %2</source>
        <translation>网桥程序 %1 报告：%2</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly.</source>
        <translation>网桥程序 %1 意外结束。</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending.</source>
        <translation>网桥程序 %1 不断结束。</translation>
    </message>
    <message>
        <source>The bridge program %1 ended unexpectedly (exit status %2).</source>
        <translation>网桥程序 %1 意外结束（退出状态 %2）。</translation>
    </message>
    <message>
        <source>The bridge program %1 keeps ending (exit status %2).</source>
        <translation>网桥程序 %1 不断结束（退出状态 %2）。</translation>
    </message>
    <message>
        <source>It said: &quot;%1&quot;.</source>
        <translation>它的输出：“%1”。</translation>
    </message>
    <message>
        <source>The program is quitting.</source>
        <translation>程序正在退出。</translation>
    </message>
    <message>
        <source>Veldmark replaces the running strict session. The new session may protect you less.</source>
        <translation>Veldmark 将取代正在运行的严格模式会话。新会话对您的保护可能更弱。</translation>
    </message>
    <message>
        <source>Veldmark wants to run %1 as a part of Tor. No package of the system installed it. Its SHA-256 is %2.</source>
        <translation>Veldmark 要将 %1 作为 Tor 的一部分运行。它不属于系统的任何软件包。其 SHA-256 为 %2。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be created: %2.</source>
        <translation>无法创建 %1：%2。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be removed: %2.</source>
        <translation>无法移除 %1：%2。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2.</source>
        <translation>无法读取 %1：%2。</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: %2.</source>
        <translation>无法写入 %1：%2。</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 不是文件。</translation>
    </message>
    <message>
        <source>%1 is read-only.</source>
        <translation>%1 是只读的。</translation>
    </message>
    <message>
        <source>%1 was changed by another program just now.</source>
        <translation>%1 刚刚被另一个程序更改。</translation>
    </message>
    <message>
        <source>%1 belongs to another user or group.</source>
        <translation>%1 属于另一个用户或组。</translation>
    </message>
    <message>
        <source>A bridge line is not valid.</source>
        <translation>有一个网桥行无效。</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your network settings.</source>
        <translation>一份先前网络设置的记录已损坏（%1）。网络已解除阻断；请检查您的网络设置。</translation>
    </message>
    <message>
        <source>A record of the former network settings was damaged (%1). The network is open again; check your proxy settings.</source>
        <translation>一份先前网络设置的记录已损坏（%1）。网络已解除阻断；请检查您的代理设置。</translation>
    </message>
    <message>
        <source>An administrator password is needed to approve %1.</source>
        <translation>批准 %1 需要管理员密码。</translation>
    </message>
    <message>
        <source>An administrator password is needed to change the running strict session.</source>
        <translation>更改正在运行的严格模式会话需要管理员密码。</translation>
    </message>
    <message>
        <source>An administrator password is needed to open an application without Tor.</source>
        <translation>不经 Tor 打开应用需要管理员密码。</translation>
    </message>
    <message>
        <source>An administrator password is needed to set this up.</source>
        <translation>进行此项设置需要管理员密码。</translation>
    </message>
    <message>
        <source>Another program (process %1) has started a session meanwhile. That session was left alone.</source>
        <translation>其间另一个程序（进程 %1）已开始会话。该会话未被改动。</translation>
    </message>
    <message>
        <source>Another run of the helper is still working. Try again in a moment.</source>
        <translation>辅助程序的另一次运行仍在进行。请稍后重试。</translation>
    </message>
    <message>
        <source>Applications are not opened as root.</source>
        <translation>不以 root 身份打开应用。</translation>
    </message>
    <message>
        <source>The helper opens applications only for the user who asks.</source>
        <translation>只能为提出请求的用户打开应用。</translation>
    </message>
    <message>
        <source>Applications cannot be opened without Tor on this system.</source>
        <translation>此系统不支持以不经 Tor 的方式打开应用。</translation>
    </message>
    <message>
        <source>More than %1 bridges were given.</source>
        <translation>给出的网桥超过 %1 个。</translation>
    </message>
    <message>
        <source>Passwordless mode can be set up only for the user who asks.</source>
        <translation>只能为提出请求的用户设置免密码模式。</translation>
    </message>
    <message>
        <source>Another program is changing the firewall. Try again in a moment.</source>
        <translation>另一个程序正在更改防火墙。请稍后重试。</translation>
    </message>
    <message>
        <source>The DNS servers of systemd-resolved cannot be changed.</source>
        <translation>无法更改 systemd-resolved 的 DNS 服务器。</translation>
    </message>
    <message>
        <source>The DNS settings cannot be changed.</source>
        <translation>无法更改 DNS 设置。</translation>
    </message>
    <message>
        <source>The DNS settings could not be put back.</source>
        <translation>未能还原 DNS 设置。</translation>
    </message>
    <message>
        <source>The account %1 cannot be created.</source>
        <translation>无法创建账户 %1。</translation>
    </message>
    <message>
        <source>The account %1 has no valid user id.</source>
        <translation>账户 %1 没有有效的用户 ID。</translation>
    </message>
    <message>
        <source>The account %1 must be neither root&apos;s nor the caller&apos;s.</source>
        <translation>账户 %1 不能是 root 的账户，也不能是发出请求的用户的账户。</translation>
    </message>
    <message>
        <source>The application could not be started.</source>
        <translation>未能启动应用。</translation>
    </message>
    <message>
        <source>The caller&apos;s user id is not a number.</source>
        <translation>调用者的用户 ID 不是数字。</translation>
    </message>
    <message>
        <source>The control group for Tor cannot be made.</source>
        <translation>无法创建 Tor 的控制组。</translation>
    </message>
    <message>
        <source>The control group of the applications without Tor could not be removed.</source>
        <translation>未能移除不经 Tor 的应用所在的控制组。</translation>
    </message>
    <message>
        <source>The copy of the program cannot be put into %1.</source>
        <translation>无法将程序副本放入 %1。</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings cannot be changed.</source>
        <translation>无法更改桌面的代理设置。</translation>
    </message>
    <message>
        <source>The exit country is not a two-letter code.</source>
        <translation>出口国家不是两个字母的代码。</translation>
    </message>
    <message>
        <source>The file %1 cannot be made.</source>
        <translation>无法创建文件 %1。</translation>
    </message>
    <message>
        <source>The file %1 cannot be read.</source>
        <translation>无法读取文件 %1。</translation>
    </message>
    <message>
        <source>The file %1 cannot be removed.</source>
        <translation>无法移除文件 %1。</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>无法写入文件 %1。</translation>
    </message>
    <message>
        <source>The file %1 could not be put back.</source>
        <translation>未能还原文件 %1。</translation>
    </message>
    <message>
        <source>The files in %1 cannot be removed.</source>
        <translation>无法移除 %1 中的文件。</translation>
    </message>
    <message>
        <source>The firewall rules cannot be read, so nothing was done.</source>
        <translation>无法读取防火墙规则，因此未执行任何操作。</translation>
    </message>
    <message>
        <source>The firewall cannot be switched on (%1).</source>
        <translation>无法启用防火墙（%1）。</translation>
    </message>
    <message>
        <source>The firewall cannot end the earlier connections.</source>
        <translation>防火墙无法终止先前的连接。</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off (%1).</source>
        <translation>未能关闭断网保护（%1）。</translation>
    </message>
    <message>
        <source>The kill switch could not be switched off, because another program is changing the firewall.</source>
        <translation>未能关闭断网保护，因为另一个程序正在更改防火墙。</translation>
    </message>
    <message>
        <source>The firewall does not hold the rules that were loaded.</source>
        <translation>防火墙中的规则与所加载的规则不符。</translation>
    </message>
    <message>
        <source>The firewall gave no token.</source>
        <translation>防火墙没有返回令牌。</translation>
    </message>
    <message>
        <source>The firewall leaves out the network device %1 (&quot;set skip&quot; in /etc/pf.conf), where nothing would be blocked.</source>
        <translation>防火墙跳过了网络设备 %1（/etc/pf.conf 中的“set skip”），该设备上的任何流量都不会被阻断。</translation>
    </message>
    <message>
        <source>The firewall rules were not accepted (%1).</source>
        <translation>防火墙规则未被接受（%1）。</translation>
    </message>
    <message>
        <source>The firewall&apos;s devices cannot be read.</source>
        <translation>无法读取防火墙的设备。</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be changed (%1).</source>
        <translation>无法更改防火墙的主规则（%1）。</translation>
    </message>
    <message>
        <source>The firewall&apos;s main rules cannot be read.</source>
        <translation>无法读取防火墙的主规则。</translation>
    </message>
    <message>
        <source>The firewall&apos;s state cannot be read.</source>
        <translation>无法读取防火墙的状态。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be changed.</source>
        <translation>无法更改文件夹 %1。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>无法写入文件夹 %1。</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it and those above it.</source>
        <translation>文件夹 %1 不安全：它及其上级文件夹都必须归 root 所有，且只能由 root 写入。</translation>
    </message>
    <message>
        <source>The folder %1 is not safe: only root may own or write it.</source>
        <translation>文件夹 %1 不安全：它必须归 root 所有，且只能由 root 写入。</translation>
    </message>
    <message>
        <source>The folder /etc/sudoers.d is missing or not safe.</source>
        <translation>文件夹 /etc/sudoers.d 缺失或不安全。</translation>
    </message>
    <message>
        <source>The folders above Veldmark&apos;s are not safe: only root may own or write them.</source>
        <translation>Veldmark 文件夹的上级文件夹不安全：它们必须归 root 所有，且只能由 root 写入。</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read, so nothing was done.</source>
        <translation>无法查看 %1 下的文件夹，因此未执行任何操作。</translation>
    </message>
    <message>
        <source>The folders below %1 cannot be read.</source>
        <translation>无法查看 %1 下的文件夹。</translation>
    </message>
    <message>
        <source>The former network settings could not all be restored.</source>
        <translation>先前的网络设置未能全部恢复。</translation>
    </message>
    <message>
        <source>The hashed control password is not valid.</source>
        <translation>控制密码的哈希值无效。</translation>
    </message>
    <message>
        <source>The helper could not be copied to %1.</source>
        <translation>未能将辅助程序复制到 %1。</translation>
    </message>
    <message>
        <source>The helper must run as root.</source>
        <translation>辅助程序必须以 root 身份运行。</translation>
    </message>
    <message>
        <source>The helper stopped unexpectedly.</source>
        <translation>辅助程序意外停止。</translation>
    </message>
    <message>
        <source>The helper was given an option that it does not know.</source>
        <translation>辅助程序收到了它不认识的选项。</translation>
    </message>
    <message>
        <source>The helper does not know this verb.</source>
        <translation>辅助程序不认识此命令。</translation>
    </message>
    <message>
        <source>The record of the former network settings cannot be written.</source>
        <translation>无法写入先前网络设置的记录。</translation>
    </message>
    <message>
        <source>The kill switch is not on, so no application needs to bypass it.</source>
        <translation>断网保护未开启，因此没有应用需要绕过它。</translation>
    </message>
    <message>
        <source>The launcher could not be copied to %1.</source>
        <translation>未能将启动器复制到 %1。</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be opened.</source>
        <translation>无法打开锁文件 %1。</translation>
    </message>
    <message>
        <source>The lock file %1 is a link, so nothing was done.</source>
        <translation>锁文件 %1 是链接，因此未执行任何操作。</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back.</source>
        <translation>网络已解除阻断，但未能还原 systemd-resolved 的 DNS 服务器。</translation>
    </message>
    <message>
        <source>The network is open again, but the DNS servers of systemd-resolved could not be put back. Try: systemctl restart %1.</source>
        <translation>网络已解除阻断，但未能还原 systemd-resolved 的 DNS 服务器。请尝试：systemctl restart %1。</translation>
    </message>
    <message>
        <source>The network is open again, but the desktop&apos;s proxy settings could not be put back.</source>
        <translation>网络已解除阻断，但未能还原桌面的代理设置。</translation>
    </message>
    <message>
        <source>The network is open again, but the journal in %1 cannot be cleared.</source>
        <translation>网络已解除阻断，但无法清除 %1 中的操作记录。</translation>
    </message>
    <message>
        <source>The network is open again, but the session marker cannot be removed from %1.</source>
        <translation>网络已解除阻断，但无法从 %1 移除会话标记。</translation>
    </message>
    <message>
        <source>The network is open again, but the system&apos;s own Tor service could not be started again. Try: systemctl start %1.</source>
        <translation>网络已解除阻断，但未能重新启动系统自带的 Tor 服务。请尝试：systemctl start %1。</translation>
    </message>
    <message>
        <source>The network is open, but pf could not be released.</source>
        <translation>网络未被阻断，但未能释放 pf。</translation>
    </message>
    <message>
        <source>The network is open, but the firewall&apos;s main rules could not be put back.</source>
        <translation>网络未被阻断，但未能还原防火墙的主规则。</translation>
    </message>
    <message>
        <source>The network location %1 still has Veldmark&apos;s settings. Choose it and disconnect again.</source>
        <translation>网络位置 %1 中仍有 Veldmark 的设置。请选择该位置，然后再次断开。</translation>
    </message>
    <message>
        <source>The network settings cannot be read.</source>
        <translation>无法读取网络设置。</translation>
    </message>
    <message>
        <source>The network stays blocked until you disconnect.</source>
        <translation>在您断开之前，网络将一直被阻断。</translation>
    </message>
    <message>
        <source>The notes of what to restore cannot be read.</source>
        <translation>无法读取待还原设置的记录。</translation>
    </message>
    <message>
        <source>The option %1 needs a value.</source>
        <translation>选项 %1 需要一个值。</translation>
    </message>
    <message>
        <source>The option %1 was given twice.</source>
        <translation>选项 %1 重复给出。</translation>
    </message>
    <message>
        <source>The option --app is missing.</source>
        <translation>缺少选项 --app。</translation>
    </message>
    <message>
        <source>The option --hash is missing.</source>
        <translation>缺少选项 --hash。</translation>
    </message>
    <message>
        <source>The option --lan is missing.</source>
        <translation>缺少选项 --lan。</translation>
    </message>
    <message>
        <source>The option --program is missing.</source>
        <translation>缺少选项 --program。</translation>
    </message>
    <message>
        <source>The option --strict is missing.</source>
        <translation>缺少选项 --strict。</translation>
    </message>
    <message>
        <source>The option --tor is missing.</source>
        <translation>缺少选项 --tor。</translation>
    </message>
    <message>
        <source>The option --uid is missing.</source>
        <translation>缺少选项 --uid。</translation>
    </message>
    <message>
        <source>The options on standard input are not complete.</source>
        <translation>标准输入中的选项不完整。</translation>
    </message>
    <message>
        <source>The path given with %1 is not absolute.</source>
        <translation>用 %1 给出的路径不是绝对路径。</translation>
    </message>
    <message>
        <source>The path given with --app is not absolute.</source>
        <translation>用 --app 给出的路径不是绝对路径。</translation>
    </message>
    <message>
        <source>The path given with --app names no application.</source>
        <translation>用 --app 给出的路径不是应用。</translation>
    </message>
    <message>
        <source>The port %1, which Tor needs, is held by %2. End that program, then connect again.</source>
        <translation>Tor 需要的端口 %1 被%2占用。请先将其结束，然后重新连接。</translation>
    </message>
    <message>
        <source>a program (process %1)</source>
        <translation>一个程序（进程 %1）</translation>
    </message>
    <message>
        <source>a program of the account with the id %1</source>
        <translation>ID 为 %1 的账户的一个程序</translation>
    </message>
    <message>
        <source>The process id is not valid.</source>
        <translation>进程 ID 无效。</translation>
    </message>
    <message>
        <source>The program %1 cannot be copied.</source>
        <translation>无法复制程序 %1。</translation>
    </message>
    <message>
        <source>The program %1 cannot be found.</source>
        <translation>找不到程序 %1。</translation>
    </message>
    <message>
        <source>The program %1 is missing on this system.</source>
        <translation>此系统缺少程序 %1。</translation>
    </message>
    <message>
        <source>The SHA-256 of the program %1 differs from the one to approve.</source>
        <translation>程序 %1 的 SHA-256 与要批准的不符。</translation>
    </message>
    <message>
        <source>The program given with %1 is not an executable file.</source>
        <translation>用 %1 给出的程序不是可执行文件。</translation>
    </message>
    <message>
        <source>The program veldmark-launch is missing.</source>
        <translation>缺少程序 veldmark-launch。</translation>
    </message>
    <message>
        <source>The session marker cannot be written.</source>
        <translation>无法写入会话标记。</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be changed.</source>
        <translation>无法更改网络服务 %1 的设置。</translation>
    </message>
    <message>
        <source>The settings of the network service %1 cannot be read.</source>
        <translation>无法读取网络服务 %1 的设置。</translation>
    </message>
    <message>
        <source>The settings of the network service %1 could not be put back.</source>
        <translation>未能还原网络服务 %1 的设置。</translation>
    </message>
    <message>
        <source>The system&apos;s firewall cannot be used (%1).</source>
        <translation>系统的防火墙无法使用（%1）。</translation>
    </message>
    <message>
        <source>The system&apos;s own Tor service (%1) cannot be stopped.</source>
        <translation>无法停止系统自带的 Tor 服务（%1）。</translation>
    </message>
    <message>
        <source>The user %1 is not known on this system.</source>
        <translation>此系统上没有用户 %1。</translation>
    </message>
    <message>
        <source>The user id is not a number.</source>
        <translation>用户 ID 不是数字。</translation>
    </message>
    <message>
        <source>The user name is not valid.</source>
        <translation>用户名无效。</translation>
    </message>
    <message>
        <source>The user root needs no password for the helper.</source>
        <translation>用户 root 使用辅助程序不需要密码。</translation>
    </message>
    <message>
        <source>The user with the id %1 is not known on this system.</source>
        <translation>此系统上没有 ID 为 %1 的用户。</translation>
    </message>
    <message>
        <source>The value of %1 contains control characters.</source>
        <translation>%1 的值包含控制字符。</translation>
    </message>
    <message>
        <source>The value of %1 is too long.</source>
        <translation>%1 的值过长。</translation>
    </message>
    <message>
        <source>The value of --as must be tor, lyrebird, snowflake-client or webtunnel-client.</source>
        <translation>--as 的值必须是 tor、lyrebird、snowflake-client 或 webtunnel-client。</translation>
    </message>
    <message>
        <source>The value of --lan must be 0 or 1.</source>
        <translation>--lan 的值必须是 0 或 1。</translation>
    </message>
    <message>
        <source>The value of --sha256 must be 64 small hexadecimal digits.</source>
        <translation>--sha256 的值必须是 64 位小写十六进制数字。</translation>
    </message>
    <message>
        <source>The value of --strict must be 0 or 1.</source>
        <translation>--strict 的值必须是 0 或 1。</translation>
    </message>
    <message>
        <source>The verb fix-dns takes no options.</source>
        <translation>命令 fix-dns 不接受选项。</translation>
    </message>
    <message>
        <source>The verb uninstall-privileged takes no options.</source>
        <translation>命令 uninstall-privileged 不接受选项。</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be started.</source>
        <translation>未能启动防火墙的监视程序。</translation>
    </message>
    <message>
        <source>The watcher of the firewall rules could not be stopped.</source>
        <translation>未能停止防火墙的监视程序。</translation>
    </message>
    <message>
        <source>There are too many options on standard input.</source>
        <translation>标准输入中的选项过多。</translation>
    </message>
    <message>
        <source>These bridges need lyrebird, which was not given.</source>
        <translation>这些网桥需要 lyrebird，但未给出它。</translation>
    </message>
    <message>
        <source>These bridges need snowflake-client, which was not given.</source>
        <translation>这些网桥需要 snowflake-client，但未给出它。</translation>
    </message>
    <message>
        <source>This helper is made for another system.</source>
        <translation>此辅助程序适用于另一种系统。</translation>
    </message>
    <message>
        <source>Tor could not be started (%1).</source>
        <translation>未能启动 Tor（%1）。</translation>
    </message>
    <message>
        <source>Tor could not be stopped.</source>
        <translation>未能停止 Tor。</translation>
    </message>
    <message>
        <source>Tor did not open its control port in time.</source>
        <translation>Tor 未及时打开其控制端口。</translation>
    </message>
    <message>
        <source>Tor did not start: %1</source>
        <translation>Tor 没有启动：%1</translation>
    </message>
    <message>
        <source>Tor does not accept its configuration: %1</source>
        <translation>Tor 不接受其配置：%1</translation>
    </message>
    <message>
        <source>it ended without a message.</source>
        <translation>它没有给出任何消息就结束了。</translation>
    </message>
    <message>
        <source>Tor&apos;s log files cannot be made.</source>
        <translation>无法创建 Tor 的日志文件。</translation>
    </message>
    <message>
        <source>Two different callers were reported, so nothing was done.</source>
        <translation>报告了两个不同的调用者，因此未执行任何操作。</translation>
    </message>
    <message>
        <source>Veldmark is in use by %1. An administrator password is needed to end that session.</source>
        <translation>%1 正在使用 Veldmark。结束该会话需要管理员密码。</translation>
    </message>
    <message>
        <source>Veldmark is not connected, so the DNS settings were left alone.</source>
        <translation>Veldmark 未连接，因此没有改动 DNS 设置。</translation>
    </message>
    <message>
        <source>sudo rejects the rule for passwordless mode.</source>
        <translation>sudo 拒绝了免密码模式的规则。</translation>
    </message>
    <message>
        <source>sudo is not installed on this system.</source>
        <translation>此系统未安装 sudo。</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read.</source>
        <translation>无法读取桌面项。</translation>
    </message>
    <message>
        <source>The desktop entry cannot be read (%1).</source>
        <translation>无法读取桌面项（%1）。</translation>
    </message>
    <message>
        <source>The desktop entry names no program that is installed.</source>
        <translation>桌面项所指的程序未安装。</translation>
    </message>
    <message>
        <source>The application could not be started (%1).</source>
        <translation>未能启动应用（%1）。</translation>
    </message>
    <message>
        <source>There is no such application or program.</source>
        <translation>没有这样的应用或程序。</translation>
    </message>
    <message>
        <source>The program could not be started.</source>
        <translation>未能启动程序。</translation>
    </message>
    <message>
        <source>The program could not be started (%1).</source>
        <translation>未能启动程序（%1）。</translation>
    </message>
    <message>
        <source>The user is not known on this system.</source>
        <translation>此系统上没有该用户。</translation>
    </message>
    <message>
        <source>There is no application at %1.</source>
        <translation>%1 处没有应用。</translation>
    </message>
    <message>
        <source>The home folder cannot be entered.</source>
        <translation>无法进入主文件夹。</translation>
    </message>
    <message>
        <source>nft doesn&apos;t answer.</source>
        <translation>nft 没有应答。</translation>
    </message>
    <message>
        <source>nft fails.</source>
        <translation>nft 失败。</translation>
    </message>
    <message>
        <source>Ended because the display is gone. Your network is still set up for Tor: start Veldmark again, or restore the network with: %1</source>
        <translation>程序因图形显示中断而结束。您的网络仍设置为使用 Tor：请重新启动 Veldmark，或用此命令恢复网络：%1</translation>
    </message>
    <message>
        <source>your package manager</source>
        <translation>您的软件包管理器</translation>
    </message>
    <message>
        <source>The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo %1 on.</source>
        <translation>网络已解除阻断，但未能还原回环设备的设置。请尝试：ethtool -K lo %1 on。</translation>
    </message>
    <message>
        <source>This system can&apos;t tell applications apart.</source>
        <translation>此系统上不区分应用。</translation>
    </message>
    <message>
        <source>Applications are not separated now: they share circuits.</source>
        <translation>目前未按应用分开线路：各应用共用线路。</translation>
    </message>
    <message>
        <source>user %1</source>
        <translation>用户 %1</translation>
    </message>
    <message>
        <source>No application has an identity of its own now.</source>
        <translation>目前没有应用拥有自己的身份。</translation>
    </message>
    <message>
        <source>No application of yours has that identity; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>您的应用中没有此身份；“veldmarkctl identities”会列出所有身份。</translation>
    </message>
    <message>
        <source>The application did not get a new identity.</source>
        <translation>该应用未能换成新的身份。</translation>
    </message>
    <message>
        <source>The program did not get an identity of its own, so it was not started.</source>
        <translation>该程序没有得到自己的身份，因此没有启动。</translation>
    </message>
    <message>
        <source>A name has up to 40 letters, digits, dots and underscores.</source>
        <translation>名称最多包含 40 个字母、数字、点和下划线。</translation>
    </message>
    <message>
        <source>The program systemd-run is missing. Veldmark needs it to make a group for a program.</source>
        <translation>缺少程序 systemd-run。Veldmark 需要它来为程序创建控制组。</translation>
    </message>
    <message>
        <source>The program could not be started: %1.</source>
        <translation>未能启动程序：%1。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>each application has circuits of its own</source>
        <translation>每个应用都有自己的线路</translation>
    </message>
    <message>
        <source>the applications that have circuits of their own, and the loopback address
by which Tor distinguishes them</source>
        <translation>拥有自己线路的应用，以及 Tor 用来
区分各个应用的回环地址</translation>
    </message>
    <message>
        <source>new circuits for one application, from its next connection on; APP is as
&quot;identities&quot; names it</source>
        <translation>为一个应用使用新线路，从其下一个连接开始；
APP 为“identities”所列的名称</translation>
    </message>
    <message>
        <source>renew needs an application; &quot;veldmarkctl identities&quot; lists them.</source>
        <translation>renew 需要一个应用；“veldmarkctl identities”会列出所有应用。</translation>
    </message>
    <message>
        <source>run a program (after --) with circuits of its own; a later run with the same
name in the same session has the same ones</source>
        <translation>以自己的线路运行程序（写在 -- 之后）；在同一会话中，
以后以相同名称运行时使用相同的线路</translation>
    </message>
    <message>
        <source>run-as needs a name and a program: veldmarkctl run-as NAME -- PROGRAM.</source>
        <translation>run-as 需要名称和程序：veldmarkctl run-as NAME -- PROGRAM。</translation>
    </message>
    <message>
        <source>The table of the applications&apos; identities could not be removed (%1).</source>
        <translation>未能移除应用身份表（%1）。</translation>
    </message>
    <message>
        <source>The value of --separate must be 0 or 1.</source>
        <translation>--separate 的值必须是 0 或 1。</translation>
    </message>
    <message>
        <source>No package of the system installed %1. The next connect asks an administrator to approve it.</source>
        <translation>%1 不属于系统的任何软件包。下次连接时会请管理员批准它。</translation>
    </message>
    <message>
        <source>It isn&apos;t known whether a connect can work.</source>
        <translation>无法确定能否连接。</translation>
    </message>
    <message>
        <source>Another firewall on this computer blocks outgoing traffic, and none of its rules allows any, so Tor can&apos;t get through: %1.</source>
        <translation>本机上的另一个防火墙禁止出站流量，且没有任何规则放行，因此 Tor 无法通过：%1。</translation>
    </message>
    <message>
        <source>Users other than root can change %1, so root doesn&apos;t run it to ask for its version.</source>
        <translation>root 以外的用户可以更改 %1，因此 root 不会运行它来查询版本。</translation>
    </message>
    <message>
        <source>Type %1 to approve it, anything else to refuse.</source>
        <translation>输入 %1 以批准，输入其他内容则拒绝。</translation>
    </message>
    <message>
        <source>%1 was not approved.</source>
        <translation>%1 未获批准。</translation>
    </message>
    <message>
        <source>%1 is not a program of the system, so an administrator has to approve it, but this command has no terminal to ask on. Run &quot;sudo veldmarkctl run --connect&quot; in a terminal.</source>
        <translation>%1 不是系统的程序，需要管理员批准，但此命令没有可供询问的终端。请在终端中运行“sudo veldmarkctl run --connect”。</translation>
    </message>
    <message>
        <source>%1 needs the name of a file.</source>
        <translation>%1 需要一个文件名。</translation>
    </message>
    <message>
        <source>It doesn&apos;t answer.</source>
        <translation>它没有应答。</translation>
    </message>
    <message>
        <source>This report goes to %1.</source>
        <translation>此报告将写入 %1。</translation>
    </message>
    <message>
        <source>write it into a new file too</source>
        <translation>同时写入一个新文件</translation>
    </message>
    <message>
        <source>The report can&apos;t be written to %1: %2</source>
        <translation>无法将报告写入 %1：%2</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a regular file. Choose another name for the report.</source>
        <translation>%1 不是普通文件。请为报告另选一个名称。</translation>
    </message>
    <message>
        <source>%1 exists already. Choose another name for the report.</source>
        <translation>%1 已存在。请为报告另选一个名称。</translation>
    </message>
    <message>
        <source>The running instance gave no state: %1</source>
        <translation>正在运行的实例未提供状态：%1</translation>
    </message>
    <message>
        <source>a report for those who help you: settings, findings and log without addresses,
names, bridges and keys. Nothing sends it. Look through it before you give it
away</source>
        <translation>供帮助您的人使用的报告：设置、检查结果和日志，不含地址、名称、网桥和密钥。
没有任何程序会发送它。交出之前请先过目</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>There is no bridge in %1.</source>
        <translation>%1 中没有网桥。</translation>
    </message>
    <message>
        <source>added: %1</source>
        <translation>已添加：%1</translation>
    </message>
    <message>
        <source>already there: %1</source>
        <translation>已存在：%1</translation>
    </message>
    <message>
        <source>add the bridges in a text to your own: in bridge lines, a whole e-mail or
a web page. FILE &quot;-&quot; is standard input</source>
        <translation>把文本中的网桥加入自己的网桥：网桥行、整封邮件或网页。
FILE 为“-”时读取标准输入</translation>
    </message>
    <message>
        <source>add-bridges needs a file; &quot;-&quot; is standard input.</source>
        <translation>add-bridges 需要一个文件；“-”表示标准输入。</translation>
    </message>
    <message>
        <source>The filter before Tor&apos;s control port cannot be used.</source>
        <translation>无法使用 Tor 控制端口前的过滤器。</translation>
    </message>
    <message numerus="yes">
        <source>Testing %n bridges…</source>
        <translation>
            <numerusform>正在测试 %n 个网桥…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 for *.%2</source>
        <translation>%1（用于 *.%2）</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%2 上的 %1</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>直接连接</translation>
    </message>
    <message>
        <source>Your bridges</source>
        <translation>您的网桥</translation>
    </message>
    <message>
        <source>(%1 s)</source>
        <translation>（%1 秒）</translation>
    </message>
    <message>
        <source>Tried</source>
        <translation>已尝试</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>建议</translation>
    </message>
    <message>
        <source>Try them with: %1</source>
        <translation>用此命令尝试：%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is none of ask, always and never.</source>
        <translation>“%1”不是 ask、always 或 never。</translation>
    </message>
    <message>
        <source>Refused, or out of reach.</source>
        <translation>被拒绝或无法到达。</translation>
    </message>
    <message>
        <source>Something answered, but Tor made no further progress.</source>
        <translation>有应答，但 Tor 没有进展。</translation>
    </message>
    <message>
        <source>No answer.</source>
        <translation>没有应答。</translation>
    </message>
    <message>
        <source>Tor has connected.</source>
        <translation>Tor 已连接。</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Tried: %1.</source>
        <translation>Tor 在此网络中没有进展。已尝试：%1。</translation>
    </message>
    <message>
        <source>Tor cannot connect in this network. Veldmark can try bridges: %1.</source>
        <translation>Tor 在此网络中没有进展。Veldmark 可以尝试网桥：%1。</translation>
    </message>
    <message>
        <source>Being tried…</source>
        <translation>正在尝试…</translation>
    </message>
    <message>
        <source>Tor did not accept these bridges.</source>
        <translation>Tor 不接受这些网桥。</translation>
    </message>
    <message>
        <source>No bridges are offered now.</source>
        <translation>现在没有提供网桥。</translation>
    </message>
    <message>
        <source>whether bridges are tried when Tor cannot connect</source>
        <translation>Tor 没有进展时是否尝试网桥</translation>
    </message>
    <message>
        <source>try the bridges that are offered when Tor cannot connect, see &quot;status&quot;</source>
        <translation>尝试 Tor 没有进展时提供的网桥，参见“status”</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Circuits</source>
        <translation>线路</translation>
    </message>
</context>
<context>
    <name>veldmark::Tray</name>
    <message>
        <source>Open Veldmark</source>
        <translation>打开 Veldmark</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
</context>
<context>
    <name>veldmark::Windows</name>
    <message>
        <source>Select the tor executable</source>
        <translation>选择 tor 可执行文件</translation>
    </message>
    <message>
        <source>Choose apps that may skip Tor in strict mode</source>
        <translation>选择在严格模式下可以绕过 Tor 的应用</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>保存报告</translation>
    </message>
</context>
</TS>

#include "terminal/TerminalFiles.h"

#include <QStringList>

namespace veldmark {

namespace {

QByteArray joined(const QStringList &lines)
{
    return lines.join(u'\n').toUtf8();
}

// Split into lines, so that each can be compared with a terminal's output.
QStringList lines(const char *text)
{
    return QString::fromUtf8(text).split(u'\n');
}

QString firstLine(const TerminalNames &names)
{
    return QStringLiteral("# Veldmark terminal mode. Managed by %1; safe to leave in place.")
        .arg(names.maker);
}

// Sets the variables and, after the session, clears them.
constexpr const char *plainSync = R"(_veldmark_sync() {
  if _veldmark_is_on; then
    if [ -z "${VELDMARK_ACTIVE:-}" ]; then
      _veldmark_p="socks5h://127.0.0.1:9050"
      export ALL_PROXY="$_veldmark_p" all_proxy="$_veldmark_p"
      export HTTP_PROXY="$_veldmark_p" http_proxy="$_veldmark_p"
      export HTTPS_PROXY="$_veldmark_p" https_proxy="$_veldmark_p"
      export NO_PROXY="localhost,127.0.0.1,::1" no_proxy="localhost,127.0.0.1,::1"
      export VELDMARK_ACTIVE=1
      unset _veldmark_p
    fi
  elif [ -n "${VELDMARK_ACTIVE:-}" ]; then
    unset ALL_PROXY all_proxy HTTP_PROXY http_proxy HTTPS_PROXY https_proxy \
          NO_PROXY no_proxy VELDMARK_ACTIVE
  fi
})";

// The same, but it restores the user's earlier values and keeps values that the user has changed
// since. The saved values are exported, so that a shell started during the session can restore them
// too. Keeps $? for prompts that show it. The variables exist before the functions use them: zsh
// can be set to warn about variables that a function creates.
constexpr const char *carefulSync = R"(_veldmark_name='' _veldmark_ours='' _veldmark_now=''

_veldmark_keep() {
  for _veldmark_name in ALL_PROXY all_proxy HTTP_PROXY http_proxy HTTPS_PROXY https_proxy \
                        NO_PROXY no_proxy; do
    eval "if [ -n \"\${$_veldmark_name+x}\" ]; then
            export VELDMARK_USER_$_veldmark_name=\"\$$_veldmark_name\"
          fi"
  done
}

_veldmark_give_back() {
  for _veldmark_name in ALL_PROXY all_proxy HTTP_PROXY http_proxy HTTPS_PROXY https_proxy \
                        NO_PROXY no_proxy; do
    case $_veldmark_name in
      NO_PROXY|no_proxy) _veldmark_ours="localhost,127.0.0.1,::1" ;;
      *) _veldmark_ours="socks5h://127.0.0.1:9050" ;;
    esac
    eval "_veldmark_now=\"\${$_veldmark_name-}\""
    if [ "$_veldmark_now" = "$_veldmark_ours" ]; then
      eval "if [ -n \"\${VELDMARK_USER_$_veldmark_name+x}\" ]; then
              export $_veldmark_name=\"\$VELDMARK_USER_$_veldmark_name\"
            else
              unset $_veldmark_name
            fi"
    fi
    unset "VELDMARK_USER_$_veldmark_name"
  done
}

_veldmark_sync() {
  set -- "$?"
  if _veldmark_is_on; then
    if [ -z "${VELDMARK_ACTIVE:-}" ]; then
      _veldmark_keep
      _veldmark_ours="socks5h://127.0.0.1:9050"
      export ALL_PROXY="$_veldmark_ours" all_proxy="$_veldmark_ours"
      export HTTP_PROXY="$_veldmark_ours" http_proxy="$_veldmark_ours"
      export HTTPS_PROXY="$_veldmark_ours" https_proxy="$_veldmark_ours"
      export NO_PROXY="localhost,127.0.0.1,::1" no_proxy="localhost,127.0.0.1,::1"
      export VELDMARK_ACTIVE=1
    fi
  elif [ -n "${VELDMARK_ACTIVE:-}" ]; then
    _veldmark_give_back
    unset VELDMARK_ACTIVE
  fi
  return "$1"
})";

constexpr const char *promptHook = R"(_veldmark_sync

if [ -n "${ZSH_VERSION:-}" ]; then
  autoload -Uz add-zsh-hook 2>/dev/null && add-zsh-hook precmd _veldmark_sync
elif [ -n "${BASH_VERSION:-}" ]; then
  case ";${PROMPT_COMMAND:-};" in
    *";_veldmark_sync;"*) ;;
    *) PROMPT_COMMAND="_veldmark_sync${PROMPT_COMMAND:+;$PROMPT_COMMAND}" ;;
  esac
fi)";

} // namespace

QByteArray shellFile(const TerminalNames &names)
{
    QStringList file = {
        firstLine(names),
        QStringLiteral(
            "# While Veldmark is connected with Terminal mode on, command-line tools use Tor."),
        QString(),
        QStringLiteral("_veldmark_is_on() {"),
        QStringLiteral("  [ -f \"$HOME/.veldmark/active\" ] && [ -f \"%1\" ]")
            .arg(names.sessionMarker),
        QStringLiteral("}"),
        QString(),
    };
    file += lines(names.givesBackProxies ? carefulSync : plainSync);
    file += {
        QString(),
        QStringLiteral("# Show your current exit IP (goes through Tor when terminal mode is on)."),
        QStringLiteral("torip() {"),
        QStringLiteral("  _veldmark_sync"),
        QStringLiteral("  curl -s --max-time 30 %1; echo").arg(names.exitCheck),
        QStringLiteral("}"),
        QString(),
    };
    file += lines(promptHook);
    return joined(file);
}

QByteArray sshFile(const TerminalNames &names, const QString &socksCommand)
{
    return joined({
        firstLine(names),
        QStringLiteral(
            "# While Veldmark is connected with Terminal mode on, ssh goes through Tor."),
        QStringLiteral("Match exec \"$HOME/.veldmark/bin/veldmark-active %h\""),
        QStringLiteral("    ProxyCommand ") + socksCommand,
    });
}

QByteArray activeProgram(const TerminalNames &names)
{
    return joined({
        QStringLiteral("#!/bin/sh"),
        QStringLiteral("# Exit 0 when ssh to host $1 should go through Tor."),
        QStringLiteral("[ -f \"$HOME/.veldmark/active\" ] || exit 1"),
        QStringLiteral("[ -f \"%1\" ] || exit 1").arg(names.sessionMarker),
        QStringLiteral("case \"$1\" in"),
        QStringLiteral("  localhost|::1|*.local) exit 1 ;;"),
        // A name may begin like a private address: 10.example.org.
        QStringLiteral("  [0-9]*[!0-9.]*) exit 0 ;;"),
        QStringLiteral("  127.*|10.*|192.168.*|169.254.*) exit 1 ;;"),
        QStringLiteral("  172.1[6-9].*|172.2[0-9].*|172.3[01].*) exit 1 ;;"),
        QStringLiteral("esac"),
        QStringLiteral("exit 0"),
    });
}

} // namespace veldmark


# ---- Linux: system proxy -----------------------------------------------------------------------------------
# GNOME's settings and KDE's kioslaverc, whichever the session's user has. All of it runs as that user, with time limits. The output of
# those programs is data that is only given back to them.

readonly GNOME_ENTRY=40-gnome
readonly KDE_ENTRY=50-kde
readonly ANSWER=$RUN/answer   # 0600; the output of a user's program
readonly ANSWER_BYTES=262144
readonly SESSION_SECONDS=5    # for a script that runs one or two programs, and for each program of a longer one
readonly SESSION_LIMIT=15     # for a script that runs a program for each setting; shorter than the wait for the lock
readonly MAX_SETTING=65536    # bytes; a longer setting could not be passed back in an argument

# The user's own exceptions would go around Tor, so the only exceptions are this computer itself and, with LAN 1, the local network. The
# first line is the one that switches the proxy on.
# print_gnome_values LAN: "SCHEMA KEY VALUE" lines.
print_gnome_values() {
  local lan=''
  [[ $1 != 1 ]] || lan=", '10.0.0.0/8', '172.16.0.0/12', '192.168.0.0/16', '169.254.0.0/16', 'fe80::/10', 'fc00::/7'"
  print_text <<END
org.gnome.system.proxy mode 'manual'
org.gnome.system.proxy ignore-hosts ['localhost', '127.0.0.0/8', '::1'$lan]
org.gnome.system.proxy.http host ''
org.gnome.system.proxy.https host ''
org.gnome.system.proxy.ftp host ''
org.gnome.system.proxy.socks host '127.0.0.1'
org.gnome.system.proxy.socks port $SOCKS_PORT
END
}

# print_kde_values LAN: "KEY=VALUE" lines of the group [Proxy Settings].
print_kde_values() {
  local lan=''
  [[ $1 != 1 ]] || lan=",10.0.0.0/8,172.16.0.0/12,192.168.0.0/16,169.254.0.0/16,fe80::/10,fc00::/7"
  print_text <<END
ProxyType=1
socksProxy=socks://127.0.0.1 $SOCKS_PORT
httpProxy=
httpsProxy=
ftpProxy=
NoProxyFor=localhost,127.0.0.0/8,::1$lan
ReversedException=false
END
}

# Scripts for sh that run as the user. Status 3: the user has no such desktop.
# shellcheck disable=SC2016
readonly GNOME_READ='
[ -S "$XDG_RUNTIME_DIR/bus" ] && command -v gsettings >/dev/null || exit 3
[ "$(gsettings writable org.gnome.system.proxy mode)" = true ] || exit 3
exec gsettings list-recursively org.gnome.system.proxy'

# The beginning of scripts with many programs. A program that hangs is ended as early as in a short script, while slow programs are not.
# Each stays in the process group that is ended together.
readonly IN_STEPS="
step() { timeout --foreground -k 1 $SESSION_SECONDS \"\$@\"; }"

# Arguments: "SCHEMA KEY VALUE" each. The mode is set last, when the other values are in place.
# shellcheck disable=SC2016
readonly GNOME_SET="$IN_STEPS"'
for line; do
  schema=${line%% *}; line=${line#* }
  step gsettings set "$schema" "${line%% *}" "${line#* }" || exit 1
done'

# Resets each key, and sets it when its former value was not the default. Works without the user's session bus, too.
# shellcheck disable=SC2016
readonly GNOME_RESTORE="$IN_STEPS"'
if [ ! -S "$XDG_RUNTIME_DIR/bus" ] && [ -z "$INNER" ]; then
  INNER=1 exec dbus-run-session -- sh -c "$0" "$0" "$@"
fi
for line; do
  schema=${line%% *}; line=${line#* }
  step gsettings reset "$schema" "${line%% *}" || exit 1
done
end="
"
now=$end$(step gsettings list-recursively org.gnome.system.proxy)$end || exit 1
for line; do
  case $now in *"$end$line$end"*) continue ;; esac
  schema=${line%% *}; line=${line#* }
  step gsettings set "$schema" "${line%% *}" "${line#* }" || exit 1
done'

# shellcheck disable=SC2016
readonly KDE_READ='
file=$HOME/.config/kioslaverc
if [ -e "$file" ]; then
  [ -f "$file" ] && [ "$(stat -L -c %s -- "$file")" -le 131072 ] || exit 3
  printf "file "
  base64 -w0 -- "$file"
  echo
elif [ -e "$HOME/.config/kdeglobals" ]; then
  echo absent
else
  exit 3
fi'

# Writes standard input to the file, or removes the file when the argument is "absent".
# shellcheck disable=SC2016
readonly KDE_WRITE='
file=$HOME/.config/kioslaverc
if [ "$1" = absent ]; then
  rm -f -- "$file"
else
  file=$(readlink -f -- "$file") && new=$(mktemp -- "$file.XXXXXX") || exit 1
  if [ -e "$file" ]; then chmod --reference="$file" -- "$new"; fi
  cat >"$new" && mv -f -- "$new" "$file" || exit 1
fi
if [ -S "$XDG_RUNTIME_DIR/bus" ] && command -v dbus-send >/dev/null; then
  dbus-send --session --type=signal /KIO/Scheduler org.kde.KIO.Scheduler.reparseSlaveConfiguration string: || true
fi'

# as_session SCRIPT [ARGUMENT...]: runs it as the session's user; its output goes to $ANSWER, up to ANSWER_BYTES, so that it cannot fill the
# disk. A program that keeps the pipe open is not waited for.
as_session() {
  local script=$1 seconds=$SESSION_SECONDS
  shift
  [[ $script != "$IN_STEPS"* ]] || seconds=$SESSION_LIMIT
  rm -f -- "$ANSWER"
  as_caller "$seconds" env XDG_RUNTIME_DIR="/run/user/$CALLER_UID" INNER= \
    DBUS_SESSION_BUS_ADDRESS="unix:path=/run/user/$CALLER_UID/bus" sh -c "$script" "$script" "$@" |
    take_output $((seconds + 2)) "$ANSWER_BYTES" >"$ANSWER"
}

# be_session_user UID: makes the UID of a journal entry the user that as_session runs as.
be_session_user() {
  is_uid "$1" && [[ $1 != 0 ]] || return 1
  CALLER_UID=$1 CALLER_NAME=''
  read_accounts
  [[ -n $CALLER_NAME ]]
}

# put_proxy: in proxy mode a desktop without a working proxy setting is a failure, since nothing else protects it.
put_proxy() {
  local entry user=$CALLER_UID
  # Settings of another user, from a session that is being replaced, are restored first.
  for entry in "$GNOME_ENTRY" "$KDE_ENTRY"; do
    if journal_read "$entry" && [[ $(journal_value uid) != "$user" ]]; then
      undo_entry "$entry" || true
    fi
  done
  CALLER_UID=$user CALLER_NAME=''
  read_accounts
  [[ $CALLER_UID != 0 ]] || return 0
  put_gnome && put_kde || [[ $OPT_STRICT == 1 ]] || die "The desktop's proxy settings cannot be changed."
}

put_gnome() {
  local line status=0 was=() values=() texts wanted
  texts=$(print_gnome_values "$OPT_LAN")
  wanted=$'\n'$texts$'\n'
  as_session "$GNOME_READ" </dev/null || status=$?
  ((status != 3)) || return 0
  ((status == 0)) || return 1
  # An answer that is cut off or cannot be passed back is not used.
  [[ $(stat -c %s -- "$ANSWER") -lt $ANSWER_BYTES ]] || return 1
  while IFS= read -r line; do
    ((${#line} <= MAX_SETTING)) || return 1
    if [[ $line =~ ^(org\.gnome\.system\.proxy[.a-z]*\ [a-z-]+)\ . ]] && ! has_controls "$line" &&
      [[ $wanted == *$'\n'"${BASH_REMATCH[1]} "* ]]; then
      was[${#was[@]}]="was $line"
    fi
  done <"$ANSWER"
  ((${#was[@]})) || return 1
  journal_has "$GNOME_ENTRY" || journal_put "$GNOME_ENTRY" "uid $CALLER_UID" "${was[@]}" ||
    die "The journal cannot be written."
  while IFS= read -r line; do
    values[${#values[@]}]=$line
  done <<<"${texts#*$'\n'}"
  as_session "$GNOME_SET" "${values[@]}" "${texts%%$'\n'*}" </dev/null
}

undo_gnome() {
  local line was=()
  for line in ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}; do
    [[ $line != "was "* ]] || was[${#was[@]}]=${line#was }
  done
  ((${#was[@]})) || return 0
  # A deleted user has no settings to restore.
  be_session_user "$(journal_value uid)" || return 0
  as_session "$GNOME_RESTORE" "${was[@]}" </dev/null && return 0
  UNDONE="The network is open again, but the desktop's proxy settings could not be put back."
  return 1
}

# print_kde_group TEXT [LINE...]: TEXT with the keys of print_kde_values in [Proxy Settings] replaced by LINE...
print_kde_group() {
  local line inside='' found='' keys=''
  while IFS= read -r line; do
    keys="$keys ${line%%=*} "
  done <<<"$(print_kde_values 0)"
  while IFS= read -r line; do
    case $line in
    "[Proxy Settings]")
      inside=1
      printf '%s\n' "$line"
      if [[ -z $found && $# -gt 1 ]]; then printf '%s\n' "${@:2}"; fi
      found=1
      continue
      ;;
    "["*) inside='' ;;
    esac
    # A key may have a flag, as in ProxyType[$e].
    if [[ -n $inside && $line == *=* ]]; then
      local key=${line%%=*}
      [[ $keys != *" ${key%%\[*} "* ]] || continue
    fi
    printf '%s\n' "$line"
  done < <(printf '%s' "$1"; [[ -z $1 || $1 == *$'\n' ]] || printf '\n')
  if [[ -z $found && $# -gt 1 ]]; then
    [[ -z $1 ]] || printf '\n'
    printf '%s\n' "[Proxy Settings]" "${@:2}"
  fi
}

# print_kde_keys TEXT: the lines of TEXT that print_kde_group replaces.
print_kde_keys() {
  local line inside='' key keys=''
  while IFS= read -r line; do
    keys="$keys ${line%%=*} "
  done <<<"$(print_kde_values 0)"
  while IFS= read -r line; do
    case $line in
    "[Proxy Settings]") inside=1 ;;
    "["*) inside='' ;;
    *=*)
      key=${line%%=*}
      [[ -z $inside || $keys != *" ${key%%\[*} "* ]] || printf '%s\n' "$line"
      ;;
    esac
  done <<<"$1"
}

# read_kde: sets KDE_FILE to the file's content in base64, or "absent"; 3 when this user has no KDE.
KDE_FILE=''
read_kde() {
  local status=0 word
  as_session "$KDE_READ" </dev/null || status=$?
  ((status == 0)) || return "$status"
  read -r word KDE_FILE <"$ANSWER" || return 1
  case $word in
  absent) KDE_FILE=absent ;;
  file) [[ $KDE_FILE =~ ^[A-Za-z0-9+/]*=?=?$ ]] ;;
  *) return 1 ;;
  esac
}

# kde_text CODED: prints the content, followed by an x that keeps the last newline.
kde_text() {
  [[ $1 == absent ]] || base64 -d <<<"$1" | tr -d '\0'
  printf x
}

# kde_ours CODED LAN: prints the helper's version of that content, followed by an x.
kde_ours() {
  local line lines=() text
  while IFS= read -r line; do
    lines[${#lines[@]}]=$line
  done <<<"$(print_kde_values "$2")"
  text=$(kde_text "$1")
  print_kde_group "${text%x}" "${lines[@]}"
  printf x
}

put_kde() {
  local status=0 text
  read_kde || status=$?
  ((status != 3)) || return 0
  ((status == 0)) || return 1
  journal_has "$KDE_ENTRY" || journal_put "$KDE_ENTRY" "uid $CALLER_UID" "file $KDE_FILE" ||
    die "The journal cannot be written."
  text=$(kde_ours "$KDE_FILE" "$OPT_LAN")
  printf '%s' "${text%x}" | as_session "$KDE_WRITE" file
}

# undo_kde: restores the former file byte for byte. If the user has changed other settings in it meanwhile, only the helper's keys are
# restored.
undo_kde() {
  local former now text line lines=()
  former=$(journal_value file) || return 0
  be_session_user "$(journal_value uid)" || return 0
  UNDONE="The network is open again, but the desktop's proxy settings could not be put back."
  read_kde || KDE_FILE=absent
  [[ $KDE_FILE != "$former" ]] || return 0
  now=$(kde_text "$KDE_FILE")
  if [[ $now == "$(kde_ours "$former" 0)" || $now == "$(kde_ours "$former" 1)" || $KDE_FILE == absent ]]; then
    if [[ $former == absent ]]; then
      as_session "$KDE_WRITE" absent </dev/null
    else
      base64 -d <<<"$former" | as_session "$KDE_WRITE" file
    fi
  else
    text=$(kde_text "$former")
    while IFS= read -r line; do
      [[ -z $line ]] || lines[${#lines[@]}]=$line
    done <<<"$(print_kde_keys "${text%x}")"
    text=$(print_kde_group "${now%x}" ${lines[@]+"${lines[@]}"}; printf x)
    printf '%s' "${text%x}" | as_session "$KDE_WRITE" file
  fi
}

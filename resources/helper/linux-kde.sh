
# ---- Linux: KDE's proxy settings ---------------------------------------------------------------------------
# In kioslaverc. The same addresses bypass the proxy as in GNOME.

readonly KDE_ENTRY=50-kde

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
  journal_once "$KDE_ENTRY" "uid $CALLER_UID" "file $KDE_FILE"
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

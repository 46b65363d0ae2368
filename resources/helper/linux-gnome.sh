
# ---- Linux: GNOME's proxy settings -------------------------------------------------------------------------
# The user's own list of addresses that bypass the proxy would go around Tor. So only this computer itself bypasses it and, with LAN 1, the
# local network.

readonly GNOME_ENTRY=40-gnome

# The first line is the one that switches the proxy on.
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

# shellcheck disable=SC2016
readonly GNOME_READ='
[ -S "$XDG_RUNTIME_DIR/bus" ] && command -v gsettings >/dev/null || exit 3
[ "$(gsettings writable org.gnome.system.proxy mode)" = true ] || exit 3
exec gsettings list-recursively org.gnome.system.proxy'

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
  journal_once "$GNOME_ENTRY" "uid $CALLER_UID" "${was[@]}"
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

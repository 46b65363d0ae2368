#!/bin/bash
# join.sh SYSTEM OUTPUT: joins the parts of the root helper for SYSTEM, linux or darwin, into the one file that
# ships there. The same parts give the same bytes. Parts without a system's name at the start are in both.
set -euo pipefail
export LC_ALL=C
here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
usage="usage: join.sh linux|darwin OUTPUT"
system=${1:?$usage} output=${2:?$usage}
case $system in
linux)
  own=(linux-state linux-groups programs linux-bundle torrc linux-firewall linux-bridges linux-loopback linux-others linux-resolver linux-resolved linux-tor linux-service linux-proxy linux-gnome linux-kde linux-bypass
    linux-watcher linux-identify linux-owner linux-session)
  ;;
darwin)
  own=(darwin-state programs torrc darwin-rules darwin-firewall darwin-jobs darwin-tor darwin-watcher
    darwin-names darwin-services darwin-bypass darwin-session)
  ;;
*)
  printf '%s\n' "$usage" >&2
  exit 2
  ;;
esac
new=$output.new.$$
trap 'rm -f -- "$new"' EXIT
{
  cat -- "$here/core.sh"
  printf '\nreadonly SYSTEM=%s   # what this file was joined for\n' "$system"
  for part in options files note addresses session launch "${own[@]}" privileged main; do
    cat -- "$here/$part.sh"
  done
} >"$new"
chmod -- 0755 "$new"
mv -f -- "$new" "$output"

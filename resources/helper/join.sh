#!/bin/bash
# join.sh OUTPUT: joins the parts of the root helper into the one file that ships. Same parts, same bytes.
set -euo pipefail
export LC_ALL=C
here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
output=${1:?usage: join.sh OUTPUT}
parts=(core options
  linux-state linux-programs linux-torrc linux-firewall linux-resolver linux-resolved linux-tor linux-proxy linux-exempt linux-watcher linux-session linux-privileged
  main)
new=$output.new.$$
trap 'rm -f -- "$new"' EXIT
for part in "${parts[@]}"; do
  cat -- "$here/$part.sh"
done >"$new"
chmod 0755 -- "$new"
mv -f -- "$new" "$output"

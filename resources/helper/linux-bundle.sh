
# ---- Linux: transports out of the Tor Project's signed bundle ----------------------------------------------
# A transport of the user's needs nobody's approval where the Tor Project has signed an archive that holds the very same file. Archive,
# signature and key are the user's to bring, and hostile until gpgv has said whose they are: they are read as the user, and gpgv and
# tar are given copies of root's. Both run as an account that owns nothing, without a network, and write no file: a member's digest is
# all that is taken out, so that no name, link, device or owner in the archive ever means anything.

readonly BUNDLE_SIGNER=EF6E286DDA85EA2A4BA7DE684E2C6E8793298290   # the Tor Browser Developers' key
readonly BUNDLE=$PROGRAMS/bundle.new   # 0750; archive, signature and key, while a run looks at them
readonly BUNDLE_NOTE=$BASE/bundle      # 0600; when the newest bundle was signed, and which copies came from one
readonly MAX_BUNDLE_BYTES=100000000
readonly MAX_KEY_BYTES=262144
readonly NO_ACCOUNT=65532   # "nobody" (65534) has other services' processes, which could have gpgv and tar say what they like

BUNDLE_STATE=''    # "signed" or "refused", once this run has looked
BUNDLE_SIGNED=''   # when it was signed, in seconds since 1970

# as_no_account SECONDS COMMAND...: without rights, network, processes of others and a descriptor of ours; it writes to standard output alone.
# The first process of its namespace is root's: whatever the command starts, and wherever that goes, ends with it.
as_no_account() {
  local seconds=$1
  shift
  # shellcheck disable=SC2016
  timeout -k 1 "$seconds" /bin/sh -c 'exec 7>&- 9>&-; ulimit -c 0 && ulimit -f 0 && ulimit -v 2000000 && ulimit -t "$0" && exec "$@"' "$seconds" \
    unshare --net --ipc --pid --fork --kill-child /bin/sh -c '"$@"; exit "$?"' first \
    env -i --default-signal PATH="$PATH" LC_ALL=C HOME=/nonexistent \
    setpriv --reuid "$NO_ACCOUNT" --regid "$NO_ACCOUNT" --clear-groups --no-new-privs --bounding-set=-all --inh-caps=-all \
    --ambient-caps=-all "$@" 8>&-
}

# clear_bundle: also what a run that was killed has left.
clear_bundle() { [[ ! -e $BUNDLE && ! -L $BUNDLE ]] || rm -rf -- "$BUNDLE"; }

# copy_to_bundle PATH NAME BYTES SECONDS: a copy of the caller's file that nobody's account may read, unless it is longer than that, or
# slower to read: others wait for the lock.
copy_to_bundle() {
  local size
  print_file "$1" "$(($3 + 1))" "$4" >"$BUNDLE/$2" && size=$(stat -c %s -- "$BUNDLE/$2") && ((size > 0 && size <= $3)) &&
    chown -- "0:$NO_ACCOUNT" "$BUNDLE/$2" && chmod -- 0640 "$BUNDLE/$2"
}

# holds_signers_key FILE: whether it is BUNDLE_SIGNER's key with its names, subkeys and signatures, and nothing besides: gpgv trusts every
# key that it is given, and finds a subkey's owner by a number of 64 bits. A fingerprint is the SHA-1 of 0x99, the length of the
# key's packet in two bytes, and the packet.
holds_signers_key() {
  local bytes at=0 head size sum
  read -r -d '' -a bytes < <(od -An -v -tu1 -- "$1") || true
  while ((at < ${#bytes[@]})); do
    case $at:${bytes[at]} in
    0:152 | *:136 | *:180 | *:184) head=2 size=${bytes[at + 1]:-0} ;;
    0:153 | *:137 | *:181 | *:185) head=3 size=$((${bytes[at + 1]:-0} * 256 + ${bytes[at + 2]:-0})) ;;
    *) return 1 ;;
    esac
    # The first must be the key itself.
    if ((at == 0)); then
      [[ ${bytes[0]} == 15[23] ]] || return 1
      # shellcheck disable=SC2059
      sum=$({
        printf "\\x99\\x$(printf %02x $((size / 256)))\\x$(printf %02x $((size % 256)))"
        head -c "$((head + size))" -- "$1" | tail -c "$size"
      } | sha1sum | tr a-f A-F) || return 1
      [[ ${sum%% *} == "$BUNDLE_SIGNER" ]] || return 1
    fi
    at=$((at + head + size))
  done
  ((at > 0 && at == ${#bytes[@]}))
}

# read_verdict TEXT: sets BUNDLE_SIGNED from gpgv's status lines, where the signer's key, or a subkey of it, has signed the file itself, with a
# SHA-2. A key that its owner has revoked does not count.
read_verdict() {
  local fields revoked=''
  BUNDLE_SIGNED=''
  while read -r -a fields; do
    [[ ${fields[0]-} == '[GNUPG:]' ]] || continue
    case ${fields[1]-} in
    NEWSIG | GOODSIG) revoked='' ;;
    REVKEYSIG) revoked=1 ;;
    VALIDSIG)   # KEY DAY SECONDS EXPIRES VERSION RESERVED ALGORITHM HASH CLASS PRIMARY
      [[ -z $revoked && ${fields[11]-} == "$BUNDLE_SIGNER" && ${fields[9]} =~ ^(8|9|10)$ && ${fields[10]} == 00 ]] || continue
      [[ ! ${fields[4]} =~ ^[1-9][0-9]{8,10}$ ]] || BUNDLE_SIGNED=${fields[4]}
      ;;
    esac
  done <<<"$1"
  [[ -n $BUNDLE_SIGNED ]]
}

# read_bundle_note: fills JOURNAL_LINES with "signed SECONDS" and, for each copy that came from a bundle, "program DIGEST/ROLE", or
# "former DIGEST/ROLE" where a newer bundle has taken its place: such a copy does not run any more. Fails where there is no note, with
# status 2 where it is damaged.
read_bundle_note() {
  JOURNAL_LINES=()
  [[ -f $BUNDLE_NOTE && ! -L $BUNDLE_NOTE ]] || return 1
  read_lines "$BUNDLE_NOTE"
}

# put_bundle_note LINE...
put_bundle_note() {
  local text
  printf -v text '%s\n' "$@" end
  write_file "$BUNDLE_NOTE" 0600 root "$text"
}

# is_replaced DIGEST/ROLE: whether a newer bundle has taken the place of the one that this copy came from.
is_replaced() {
  local line
  read_bundle_note || return 1
  for line in ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}; do
    [[ $line != "former $1" ]] || return 0
  done
  return 1
}

# note_program DIGEST/ROLE: before its copy is made, so that none from a bundle passes for an administrator's.
note_program() {
  local line lines=("signed $BUNDLE_SIGNED" "program $1") noted=''
  ! read_bundle_note || noted=$(journal_value signed) || true
  for line in ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}; do
    case $line in
    "signed "* | "program $1" | "former $1") continue ;;
    "program "*) [[ $noted == "$BUNDLE_SIGNED" ]] || line="former ${line#* }" ;;
    esac
    lines[${#lines[@]}]=$line
  done
  put_bundle_note "${lines[@]}"
}

# forget_program DIGEST/ROLE: from now on its copy is there by an administrator's approval.
forget_program() {
  local line lines=() found=''
  read_bundle_note || return 0
  for line in ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}; do
    if [[ $line == "program $1" || $line == "former $1" ]]; then found=1; else lines[${#lines[@]}]=$line; fi
  done
  [[ -z $found ]] || put_bundle_note "${lines[@]}"
}

# drop_replaced: once a session runs without them. What the session uses is the system's own with the same content.
drop_replaced() {
  local line lines=() found=''
  read_bundle_note || return 0
  for line in ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}; do
    if [[ $line =~ ^former\ ([0-9a-f]{64})/[a-z-]+$ && " $OPT_LYREBIRD $OPT_SNOWFLAKE $OPT_WEBTUNNEL " != *" $PROGRAMS/${line#* } "* ]]; then
      found=1
      rm -f -- "$PROGRAMS/${line#* }" || return 1
      rmdir -- "$PROGRAMS/${BASH_REMATCH[1]}" || true   # it may have another role
    else
      lines[${#lines[@]}]=$line
    fi
  done
  [[ -z $found ]] || put_bundle_note "${lines[@]}"
}

# verify_bundle: whether the bundle that was named, of which copies are in $BUNDLE then, is the signer's, and none older than one that was
# accepted before.
verify_bundle() {
  local verdict noted status=0
  in_path gpgv && in_path tar && in_path gzip || return 1
  clear_bundle
  mkdir -m 0750 -- "$BUNDLE" && chown -- "0:$NO_ACCOUNT" "$BUNDLE" || return 1
  copy_to_bundle "$OPT_BUNDLE.key" key "$MAX_KEY_BYTES" 2 && holds_signers_key "$BUNDLE/key" || return 1
  copy_to_bundle "$OPT_BUNDLE.asc" signature "$MAX_KEY_BYTES" 2 && copy_to_bundle "$OPT_BUNDLE" archive "$MAX_BUNDLE_BYTES" 5 || return 1
  verdict=$(as_no_account 10 gpgv --homedir /nonexistent --status-fd 1 --keyring "$BUNDLE/key" -- "$BUNDLE/signature" "$BUNDLE/archive" \
    </dev/null | take_output 12 65536) || true   # its status is also another where a key is out of date
  read_verdict "$verdict" || return 1
  read_bundle_note || status=$?
  ((status != 2)) || return 1
  if ((status == 0)); then
    noted=$(journal_value signed) && [[ $noted =~ ^[1-9][0-9]{8,10}$ ]] && ((BUNDLE_SIGNED >= noted)) || return 1
  fi
}

# in_bundle PATH ROLE: whether what copy_program has left is PATH's namesake in the signed bundle; notes that it is.
in_bundle() {
  local name=${1##*/} folder sum
  [[ -n $OPT_BUNDLE && -s $NEW_PROGRAM && $name =~ ^(lyrebird|snowflake-client|webtunnel-client)$ ]] && name_fits "$2" "$name" || return 1
  if [[ -z $BUNDLE_STATE ]]; then
    BUNDLE_STATE=refused
    ! verify_bundle || BUNDLE_STATE=signed
  fi
  [[ $BUNDLE_STATE == signed ]] || return 1
  for folder in tor ./tor; do
    # A member that tar could not give whole is none.
    sum=$(as_no_account 10 tar -xzOf - -- "$folder/pluggable_transports/$name" <"$BUNDLE/archive" |
      take_output 12 "$MAX_PROGRAM_BYTES" | print_sum) || continue
    [[ ${sum%% *} != "$DIGEST" ]] || { note_program "$DIGEST/$2" && return 0; }
  done
  return 1
}

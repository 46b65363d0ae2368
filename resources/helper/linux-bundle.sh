
# ---- Linux: transports from the Tor Project's signed bundle ------------------------------------------------
# A user's transport needs no approval if the Tor Project has signed an archive that contains the same file. The user supplies archive,
# signature and key, and they are hostile until gpgv has verified them: the helper reads them as the user, and gpgv and tar get root's
# copies. Both run as an account that owns nothing, without a network, and write no file. Only a member's digest is taken from the archive,
# so its names, links, devices and owners have no effect.

readonly BUNDLE_SIGNER=EF6E286DDA85EA2A4BA7DE684E2C6E8793298290   # the Tor Browser Developers' key
readonly BUNDLE=$PROGRAMS/bundle.new   # 0750; archive, signature and key during a run
readonly BUNDLE_NOTE=$BASE/bundle      # 0600; when the newest bundle was signed, and the copies from bundles
readonly MAX_BUNDLE_BYTES=100000000
readonly MAX_KEY_BYTES=262144
readonly NO_ACCOUNT=65532   # "nobody" (65534) has other services' processes, which could tamper with gpgv and tar

BUNDLE_STATE=''    # "signed" or "refused" once this run has verified it
BUNDLE_SIGNED=''   # when it was signed, in seconds since 1970

# as_no_account SECONDS COMMAND...: runs it without rights, network, other processes and the helper's descriptors, in 2 GB of memory.
as_no_account() {
  # shellcheck disable=SC2016
  as_confined "$1" "$NO_ACCOUNT" "$NO_ACCOUNT" /nonexistent '--net --ipc' /bin/sh -c 'ulimit -v 2000000 && exec "$@"' limited "${@:2}"
}

# clear_bundle: also removes what a killed run has left.
clear_bundle() { [[ ! -e $BUNDLE && ! -L $BUNDLE ]] || rm -rf -- "$BUNDLE"; }

# copy_to_bundle PATH NAME BYTES SECONDS: copies the caller's file so that NO_ACCOUNT may read it. Fails when the file is longer, or slower
# to read: other runs wait for the lock.
copy_to_bundle() {
  local size
  print_file "$1" "$(($3 + 1))" "$4" >"$BUNDLE/$2" && size=$(stat -c %s -- "$BUNDLE/$2") && ((size > 0 && size <= $3)) &&
    chown -- "0:$NO_ACCOUNT" "$BUNDLE/$2" && chmod -- 0640 "$BUNDLE/$2"
}

# holds_signers_key FILE: whether it is BUNDLE_SIGNER's key with its names, subkeys and signatures, and nothing else: gpgv trusts every key
# in the file, and finds a subkey's owner by a number of 64 bits. A fingerprint is the SHA-1 of 0x99, the length of the key's packet in two
# bytes, and the packet.
holds_signers_key() {
  local bytes at=0 head size sum
  read -r -d '' -a bytes < <(od -An -v -tu1 -- "$1") || true
  while ((at < ${#bytes[@]})); do
    case $at:${bytes[at]} in
    0:152 | *:136 | *:180 | *:184) head=2 size=${bytes[at + 1]:-0} ;;
    0:153 | *:137 | *:181 | *:185) head=3 size=$((${bytes[at + 1]:-0} * 256 + ${bytes[at + 2]:-0})) ;;
    *) return 1 ;;
    esac
    # The first packet must be the key itself.
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

# read_verdict TEXT: sets BUNDLE_SIGNED from gpgv's status lines if the signer's key, or a subkey of it, has signed the file itself with a
# SHA-2. A revoked key does not count.
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

# read_bundle_note: fills JOURNAL_LINES with "signed SECONDS" and, for each copy from a bundle, "program DIGEST/ROLE", or "former
# DIGEST/ROLE" if a newer bundle has replaced it: such a copy does not run any more. Fails without a note, and with status 2 when the note
# is damaged.
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

# is_replaced DIGEST/ROLE: whether a newer bundle has replaced the one that this copy came from.
is_replaced() {
  local line
  read_bundle_note || return 1
  for line in ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}; do
    [[ $line != "former $1" ]] || return 0
  done
  return 1
}

# note_program DIGEST/ROLE: called before the copy is made, so that a bundle's copy never counts as approved by an administrator.
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

# forget_program DIGEST/ROLE: from now on its copy counts as approved by an administrator.
forget_program() {
  local line lines=() found=''
  read_bundle_note || return 0
  for line in ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}; do
    if [[ $line == "program $1" || $line == "former $1" ]]; then found=1; else lines[${#lines[@]}]=$line; fi
  done
  [[ -z $found ]] || put_bundle_note "${lines[@]}"
}

# drop_replaced: called once a session runs without the replaced copies. One that the session uses stays: the system's own program has the
# same content.
drop_replaced() {
  local line lines=() found=''
  read_bundle_note || return 0
  for line in ${JOURNAL_LINES[@]+"${JOURNAL_LINES[@]}"}; do
    if [[ $line =~ ^former\ ([0-9a-f]{64})/[a-z-]+$ && " $OPT_LYREBIRD $OPT_SNOWFLAKE $OPT_WEBTUNNEL " != *" $PROGRAMS/${line#* } "* ]]; then
      found=1
      rm -f -- "$PROGRAMS/${line#* }" || return 1
      rmdir -- "$PROGRAMS/${BASH_REMATCH[1]}" || true   # the folder may hold another role's copy
    else
      lines[${#lines[@]}]=$line
    fi
  done
  [[ -z $found ]] || put_bundle_note "${lines[@]}"
}

# verify_bundle: whether the named bundle is the signer's, and not older than one that was accepted before. Afterwards its copies are in
# $BUNDLE.
verify_bundle() {
  local verdict noted status=0
  in_path gpgv && in_path tar && in_path gzip || return 1
  clear_bundle
  mkdir -m 0750 -- "$BUNDLE" && chown -- "0:$NO_ACCOUNT" "$BUNDLE" || return 1
  copy_to_bundle "$OPT_BUNDLE.key" key "$MAX_KEY_BYTES" 5 && holds_signers_key "$BUNDLE/key" || return 1
  copy_to_bundle "$OPT_BUNDLE.asc" signature "$MAX_KEY_BYTES" 5 && copy_to_bundle "$OPT_BUNDLE" archive "$MAX_BUNDLE_BYTES" 5 || return 1
  verdict=$(as_no_account 10 gpgv --homedir /nonexistent --status-fd 1 --keyring "$BUNDLE/key" -- "$BUNDLE/signature" "$BUNDLE/archive" \
    </dev/null | take_output 12 65536) || true   # its status is not 0 for an expired key either
  read_verdict "$verdict" || return 1
  read_bundle_note || status=$?
  ((status != 2)) || return 1
  if ((status == 0)); then
    noted=$(journal_value signed) && [[ $noted =~ ^[1-9][0-9]{8,10}$ ]] && ((BUNDLE_SIGNED >= noted)) || return 1
  fi
}

# in_bundle PATH ROLE: whether the copy that copy_program made equals the file of the same name in the signed bundle. Notes it if so.
in_bundle() {
  local name=${1##*/} folder sum
  [[ -n $OPT_BUNDLE && -s $NEW_PROGRAM && $name =~ ^(lyrebird|snowflake-client|webtunnel-client)$ ]] && name_fits "$2" "$name" || return 1
  if [[ -z $BUNDLE_STATE ]]; then
    BUNDLE_STATE=refused
    ! verify_bundle || BUNDLE_STATE=signed
  fi
  [[ $BUNDLE_STATE == signed ]] || return 1
  for folder in tor ./tor; do
    # A member that tar could not print completely does not count.
    sum=$(as_no_account 10 tar -xzOf - -- "$folder/pluggable_transports/$name" <"$BUNDLE/archive" |
      take_output 12 "$MAX_PROGRAM_BYTES" | print_sum) || continue
    [[ ${sum%% *} != "$DIGEST" ]] || { note_program "$DIGEST/$2" && return 0; }
  done
  return 1
}


# ---- Linux: other firewalls --------------------------------------------------------------------------------
# Other firewalls' rules can keep Tor from going out, and only root can read them. A connect, and the watcher of a strict session after each
# change, note what they find. The application names it when Tor gets nowhere. The helper never changes these rules.

readonly OTHERS_NOTE=/run/veldmark.others   # 0644; a name per line: ufw, firewalld, or "table FAMILY NAME"

# The matches before a verdict that hold for all connections that Tor opens.
# shellcheck disable=SC2089
readonly ALWAYS='^(counter( packets [0-9]+ bytes [0-9]+)?|oif(name)? != "lo"|ct state new|meta l4proto tcp|ip protocol tcp|meta nfproto ipv4|log( (prefix|level|flags|group|snaplen) ("[^"]*"|[a-z0-9]+))*) (.+)$'

CHAINS=() CHAIN_RULES=()   # "FAMILY TABLE CHAIN", and its rules without a condition, one per line

# read_chains: reads a listing of the rules from standard input, except the helper's own table.
read_chains() {
  local line family='' table='' count=0
  CHAINS=() CHAIN_RULES=()
  while IFS= read -r line; do
    line=${line#"${line%%[!$'\t ']*}"}
    if [[ $line == "table "* ]]; then
      table=''   # skip what follows, also in the helper's own table
      [[ $line == "table inet $TABLE {"* || ! $line =~ ^table\ (ip|inet)\ ([A-Za-z0-9_./-]+)\ \{ ]] ||
        family=${BASH_REMATCH[1]} table=${BASH_REMATCH[2]}
    elif [[ -z $table ]]; then
      continue
    elif [[ $line == "flags "*dormant* ]]; then
      table=''   # a dormant table has no effect
    elif [[ $line =~ ^chain\ ([A-Za-z0-9_./-]+)\ \{ ]]; then
      CHAINS[count]="$family $table ${BASH_REMATCH[1]}" CHAIN_RULES[count]=''
      count=$((count + 1))
    elif ((count)); then
      while [[ $line =~ $ALWAYS ]]; do line=${BASH_REMATCH[7]}; done
      case $line in
      "type "*" hook output "* | accept | return | drop | reject | "reject with "* | "jump "* | "goto "*)
        CHAIN_RULES[count - 1]=${CHAIN_RULES[count - 1]}$line$'\n'
        ;;
      esac
    fi
  done
}

# judge_chain "FAMILY TABLE" CHAIN DEPTH: sets JUDGED to the verdict on a packet that matches no rule with a condition: deny, accept, or
# nothing when the chain gives none. The kernel allows sixteen nested chains.
judge_chain() {
  local rules='' policy='' line i
  JUDGED=''
  (($3 <= 16)) || return 0
  for ((i = 0; i < ${#CHAINS[@]}; i++)); do
    [[ ${CHAINS[i]} != "$1 $2" ]] || rules=${CHAIN_RULES[i]}
  done
  while IFS= read -r line; do
    case $line in
    "type "*"policy drop;"*) policy=deny ;;
    drop | reject*) JUDGED=deny ;;
    accept) JUDGED=accept ;;
    return) break ;;
    "jump "* | "goto "*)
      judge_chain "$1" "${line#* }" $(($3 + 1))
      [[ $line != "goto "* ]] || break
      ;;
    esac
    [[ -z $JUDGED ]] || return 0
  done <<<"$rules"
  JUDGED=${JUDGED:-$policy}
}

# name_others: prints the firewalls that deny outgoing traffic, from the listing that was read.
name_others() {
  local i place chain named=$'\n' name
  for ((i = 0; i < ${#CHAINS[@]}; i++)); do
    [[ ${CHAIN_RULES[i]} == "type "* ]] || continue
    chain=${CHAINS[i]##* } place=${CHAINS[i]% *}
    judge_chain "$place" "$chain" 0
    [[ $JUDGED == deny ]] || continue
    name="table $place"
    [[ ${CHAIN_RULES[i]} != *"jump ufw-"* ]] || name=ufw
    [[ $place != "inet firewalld" ]] || name=firewalld
    [[ $named != *$'\n'"$name"$'\n'* ]] || continue
    named=$named$name$'\n'
    printf '%s\n' "$name"
  done
}

# note_others: when the rules cannot be read, no firewall is named.
note_others() {
  local names
  read_chains < <(timeout -k 1 5 unshare --mount --propagation private sh -c "$WITHOUT_GROUPS" nft -s -t list ruleset)
  names=$(name_others)
  if [[ -z $names ]]; then
    rm -f -- "$OTHERS_NOTE"
  else
    write_file "$OTHERS_NOTE" 0644 root "$names"$'\n' || true
  fi
}

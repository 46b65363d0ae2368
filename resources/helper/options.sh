
# ---- Options -----------------------------------------------------------------------------------------------
# Every value is checked against one strict pattern before any change.

OPT_TOR='' OPT_HASH='' OPT_STRICT='' OPT_LAN='' OPT_EXIT='' OPT_SEPARATE=''
OPT_BRIDGES=() OPT_RESERVES=()   # bridges in use; bridges that the program may change to during the session
OPT_LYREBIRD='' OPT_SNOWFLAKE='' OPT_WEBTUNNEL='' OPT_BUNDLE=''
OPT_USER='' OPT_LAUNCH=''
OPT_UID='' OPT_APP='' OPT_PROCESS=''
OPT_PROGRAM='' OPT_AS='' OPT_SHA256=''

readonly MAX_BRIDGES=100
readonly MAX_VALUE=4096   # bytes
readonly MAX_WORDS=300
readonly BRIDGE_PATTERN='^([a-z][a-z0-9_]* )?\[?[0-9A-Fa-f.:]+\]?:[0-9]+( [!-~]+)*$'

# read_words: sets WORDS to the lines of standard input, up to a last line "end"; truncated input gives no words.
# Options come this way when no other user may see them on a command line.
WORDS=()
read_words() {
  local line words=0 status=0
  while ((words++ <= MAX_WORDS)); do
    status=0
    IFS= read -r -n "$((MAX_VALUE + 1))" line || status=$?
    if ((status == 0)) && [[ $line == end ]]; then
      exec </dev/null
      return
    fi
    ((status == 0)) || die "The options on standard input are not complete."
    WORDS[${#WORDS[@]}]=$line
  done
  die "There are too many options on standard input."
}

# take NAME OPTION VALUE: stores a single option, once.
take() {
  [[ -z ${!1} ]] || die "The option $2 was given twice."
  printf -v "$1" '%s' "$3"
}

# parse_options ALLOWED WORD...: ALLOWED is a blank-separated list of option names with blanks at both ends.
parse_options() {
  local allowed=$1 option value
  shift
  while (($#)); do
    option=$1
    if has_controls "$option" || [[ $allowed != *" $option "* || $option == *" "* || -z $option ]]; then
      die "The helper was given an option that it does not know."
    fi
    (($# > 1)) || die "The option $option needs a value."
    value=$2
    shift 2
    [[ -n $value ]] || die "The option $option needs a value."
    ((${#value} <= MAX_VALUE)) || die "The value of $option is too long."
    ! has_controls "$value" || die "The value of $option contains control characters."
    case $option in
    --tor) take OPT_TOR "$option" "$value" ;;
    --hash) take OPT_HASH "$option" "$value" ;;
    --strict) take OPT_STRICT "$option" "$value" ;;
    --lan) take OPT_LAN "$option" "$value" ;;
    --separate) take OPT_SEPARATE "$option" "$value" ;;
    --exit) take OPT_EXIT "$option" "$value" ;;
    --pt-lyrebird) take OPT_LYREBIRD "$option" "$value" ;;
    --pt-snowflake) take OPT_SNOWFLAKE "$option" "$value" ;;
    --pt-webtunnel) take OPT_WEBTUNNEL "$option" "$value" ;;
    --bundle) take OPT_BUNDLE "$option" "$value" ;;
    --user) take OPT_USER "$option" "$value" ;;
    --launch) take OPT_LAUNCH "$option" "$value" ;;
    --uid) take OPT_UID "$option" "$value" ;;
    --app) take OPT_APP "$option" "$value" ;;
    --process) take OPT_PROCESS "$option" "$value" ;;
    --program) take OPT_PROGRAM "$option" "$value" ;;
    --as) take OPT_AS "$option" "$value" ;;
    --sha256) take OPT_SHA256 "$option" "$value" ;;
    --bridge | --reserve)
      ((${#OPT_BRIDGES[@]} + ${#OPT_RESERVES[@]} < MAX_BRIDGES)) || die "More than $MAX_BRIDGES bridges were given."
      if [[ $option == --bridge ]]; then OPT_BRIDGES[${#OPT_BRIDGES[@]}]=$value; else OPT_RESERVES[${#OPT_RESERVES[@]}]=$value; fi
      ;;
    esac
  done
}

# check_path OPTION PATH
check_path() { [[ $2 == /* ]] || die "The path given with $1 is not absolute."; }

# check_program OPTION PATH
check_program() {
  check_path "$1" "$2"
  [[ -f $2 && -x $2 ]] || die "The program given with $1 is not an executable file."
}

# check_transport OPTION PATH: like check_program. no_program is in programs.sh.
check_transport() {
  check_path "$1" "$2"
  [[ -f $2 && -x $2 ]] || no_program "The program given with $1 is not an executable file."
}

# The characters refused here have a special meaning in Tor's configuration file: # starts a comment, " a quoted
# value, and \ at the end continues the line.
check_bridge() {
  [[ $1 =~ $BRIDGE_PATTERN && $1 != *[\#\"\\]* ]] || die "A bridge line is not valid."
}

parse_connect() {
  local bridge
  parse_options " --tor --hash --strict --lan --separate --exit --bridge --reserve --pt-lyrebird --pt-snowflake --pt-webtunnel --bundle " "$@"
  [[ -n $OPT_TOR ]] || die "The option --tor is missing."
  [[ -n $OPT_HASH ]] || die "The option --hash is missing."
  [[ -n $OPT_STRICT ]] || die "The option --strict is missing."
  [[ -n $OPT_LAN ]] || die "The option --lan is missing."
  [[ $OPT_HASH =~ ^16:[0-9A-F]{58}$ ]] || die "The hashed control password is not valid."
  [[ $OPT_STRICT == [01] ]] || die "The value of --strict must be 0 or 1."
  [[ $OPT_LAN == [01] ]] || die "The value of --lan must be 0 or 1."
  [[ -z $OPT_SEPARATE || $OPT_SEPARATE == [01] ]] || die "The value of --separate must be 0 or 1."
  [[ -z $OPT_EXIT || $OPT_EXIT =~ ^[a-z]{2}$ ]] || die "The exit country is not a two-letter code."
  for bridge in ${OPT_BRIDGES[@]+"${OPT_BRIDGES[@]}"} ${OPT_RESERVES[@]+"${OPT_RESERVES[@]}"}; do
    check_bridge "$bridge"
  done
  check_program --tor "$OPT_TOR"
  [[ -z $OPT_LYREBIRD ]] || check_transport --pt-lyrebird "$OPT_LYREBIRD"
  [[ -z $OPT_SNOWFLAKE ]] || check_transport --pt-snowflake "$OPT_SNOWFLAKE"
  [[ -z $OPT_WEBTUNNEL ]] || check_transport --pt-webtunnel "$OPT_WEBTUNNEL"
  [[ -z $OPT_BUNDLE ]] || check_path --bundle "$OPT_BUNDLE"   # any path: without a valid signature it changes nothing
  choose_transports
}

# The transports of the bridge lines, also of those in reserve, by the program that serves each: lists joined by commas.
USED_LYREBIRD='' USED_SNOWFLAKE='' USED_WEBTUNNEL=''

choose_transports() {
  local bridge transport seen=" "
  for bridge in ${OPT_BRIDGES[@]+"${OPT_BRIDGES[@]}"} ${OPT_RESERVES[@]+"${OPT_RESERVES[@]}"}; do
    transport=${bridge%% *}
    [[ $transport =~ ^[a-z][a-z0-9_]*$ && $seen != *" $transport "* ]] || continue
    seen="$seen$transport "
    case $transport in
    webtunnel)
      if [[ -n $OPT_WEBTUNNEL ]]; then
        USED_WEBTUNNEL=webtunnel
      else
        USED_LYREBIRD=${USED_LYREBIRD:+$USED_LYREBIRD,}webtunnel
      fi
      ;;
    obfs4 | meek_lite | obfs3 | scramblesuit) USED_LYREBIRD=${USED_LYREBIRD:+$USED_LYREBIRD,}$transport ;;
    snowflake) USED_SNOWFLAKE=snowflake ;;
    *) die "The $transport bridge type isn't supported yet." ;;
    esac
  done
  [[ -z $USED_LYREBIRD || -n $OPT_LYREBIRD ]] || die "These bridges need lyrebird, which was not given."
  [[ -z $USED_SNOWFLAKE || -n $OPT_SNOWFLAKE ]] || die "These bridges need snowflake-client, which was not given."
}

# transports_need_names: whether a used transport, or one in reserve, looks up host names before Tor has a circuit.
transports_need_names() {
  [[ ",$USED_LYREBIRD," == *,meek_lite,* || ",$USED_LYREBIRD," == *,webtunnel,* ||
    -n $USED_SNOWFLAKE || -n $USED_WEBTUNNEL ]]
}

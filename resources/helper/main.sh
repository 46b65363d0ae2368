
# ---- Start -------------------------------------------------------------------------------------------------

main() {
  local verb=${1-}
  clean_environment "$@"
  open_messages
  SELF=$0
  [[ $SELF == /* ]] || SELF=$PWD/$SELF
  identify_caller
  case $SYSTEM-$(uname -s) in
  linux-Linux | darwin-Darwin) ;;
  *) die "This helper is made for another system." ;;
  esac
  [[ $SYSTEM != darwin ]] || find_caller
  case $verb in
  connect | disconnect | fix-dns | launch | install-privileged | uninstall-privileged) shift ;;
  *) die "The helper was not given a verb that it knows." ;;
  esac
  case $verb in
  *-privileged) "any_$verb" "$@" ;;
  *) "${SYSTEM}_$verb" "$@" ;;
  esac
}

# Read whole before anything runs, so that a change of the file meanwhile changes nothing.
if [[ ${BASH_SOURCE[0]} == "$0" ]]; then
  main "$@"
  exit
fi

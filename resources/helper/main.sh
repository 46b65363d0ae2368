
# ---- Start -------------------------------------------------------------------------------------------------

main() {
  local verb=${1-} system=''
  clean_environment "$@"
  open_messages
  identify_caller
  SELF=$0
  [[ $SELF == /* ]] || SELF=$PWD/$SELF
  case $verb in
  connect | disconnect | fix-dns | launch | install-privileged | uninstall-privileged) shift ;;
  *) die "The helper was not given a verb that it knows." ;;
  esac
  case $OSTYPE in
  linux*) system=linux ;;
  darwin*) system=darwin ;;
  esac
  declare -F "${system}_$verb" >/dev/null || die "The verb $verb is not available on this system yet."
  "${system}_$verb" "$@"
}

# Read whole before anything runs, so that a change of the file meanwhile changes nothing.
if [[ ${BASH_SOURCE[0]} == "$0" ]]; then
  main "$@"
  exit
fi


# ---- Start -------------------------------------------------------------------------------------------------

main() {
  VERB=${1-}
  clean_environment "$@"
  [[ $SYSTEM != darwin ]] || unite_ids "$@"
  open_messages
  SELF=$0
  [[ $SELF == /* ]] || SELF=$PWD/$SELF
  identify_caller
  case $SYSTEM-$(uname -s) in
  linux-Linux | darwin-Darwin) ;;
  *) die "This helper is made for another system." ;;
  esac
  [[ $SYSTEM != darwin ]] || find_caller
  case $VERB in
  connect | replace | approve | disconnect | fix-dns | launch | install-privileged | uninstall-privileged) shift ;;
  *) die "The helper does not know this verb." ;;
  esac
  if (($# == 1)) && [[ $1 == - ]]; then
    read_words
    set -- ${WORDS[@]+"${WORDS[@]}"}
  fi
  case $VERB in
  replace) "${SYSTEM}_connect" "$@" ;;
  approve | *-privileged) "any_$VERB" "$@" ;;
  *) "${SYSTEM}_$VERB" "$@" ;;
  esac
}

# bash reads all of this before it runs anything, so that a change of the file meanwhile has no effect.
if [[ ${BASH_SOURCE[0]} == "$0" ]]; then
  main "$@"
  exit
fi

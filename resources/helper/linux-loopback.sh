
# ---- Linux: the loopback device ----------------------------------------------------------------------------
# A datagram that is sent with UDP_SEGMENT crosses the loopback device whole, and becomes many short ones where no rule sees them; look-ups
# that are too short end some versions of Tor. Without this feature of the device the kernel cuts it before, and the rules see each. Where
# ethtool is missing the device stays as it is.

readonly LOOPBACK_ENTRY=13-loopback
readonly LATE_CUT=tx-udp-segmentation

ask_ethtool() { timeout -k 1 5 ethtool "$@" </dev/null; }

# put_loopback: fails where the device keeps the feature.
put_loopback() {
  local features
  command -v ethtool >/dev/null || return 0
  features=$(ask_ethtool -k lo) || return 1
  [[ $features$'\n' == *$'\n'"$LATE_CUT: on"$'\n'* ]] || return 0
  journal_has "$LOOPBACK_ENTRY" || journal_put "$LOOPBACK_ENTRY" "feature $LATE_CUT" || die "The journal cannot be written."
  ask_ethtool -K lo "$LATE_CUT" off >/dev/null
}

undo_loopback() {
  ((${#JOURNAL_LINES[@]})) || return 0
  ask_ethtool -K lo "$LATE_CUT" on >/dev/null && return 0
  UNDONE="The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo $LATE_CUT on."
  return 1
}

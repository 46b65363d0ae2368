
# ---- Linux: the loopback device ----------------------------------------------------------------------------
# A datagram sent with UDP_SEGMENT crosses the loopback device in one piece and is split afterwards, where no rule sees the parts. A DNS
# lookup that is too short ends some versions of Tor. Without this device feature the kernel splits the datagram before, and the rules see
# each part. Without ethtool the device stays unchanged.

readonly LOOPBACK_ENTRY=13-loopback
readonly LATE_CUT=tx-udp-segmentation

ask_ethtool() { timeout -k 1 5 ethtool "$@" </dev/null; }

# put_loopback: fails when the device keeps the feature.
put_loopback() {
  local features
  command -v ethtool >/dev/null || return 0
  features=$(ask_ethtool -k lo) || return 1
  [[ $features$'\n' == *$'\n'"$LATE_CUT: on"$'\n'* ]] || return 0
  journal_once "$LOOPBACK_ENTRY" "feature $LATE_CUT"
  ask_ethtool -K lo "$LATE_CUT" off >/dev/null
}

undo_loopback() {
  ((${#JOURNAL_LINES[@]})) || return 0
  ask_ethtool -K lo "$LATE_CUT" on >/dev/null && return 0
  UNDONE="The network is open again, but the loopback device could not be set up as before. Try: ethtool -K lo $LATE_CUT on."
  return 1
}

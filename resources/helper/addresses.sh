
# ---- Addresses ---------------------------------------------------------------------------------------------

is_address4() {
  local part
  [[ $1 =~ ^[0-9]{1,3}(\.[0-9]{1,3}){3}$ ]] || return 1
  for part in ${1//./ }; do
    ((10#$part <= 255)) || return 1
  done
}

is_address6() {
  local part parts=0 text=$1
  [[ $text =~ ^[0-9A-Fa-f:]{2,39}$ && $text == *:*:* && $text != *:::* && $text != *::*::* ]] || return 1
  [[ $text != :* || $text == ::* ]] && [[ $text != *: || $text == *:: ]] || return 1
  for part in ${text//:/ }; do
    ((${#part} <= 4)) || return 1
    parts=$((parts + 1))
  done
  if [[ $text == *::* ]]; then ((parts <= 7)); else ((parts == 8)); fi
}

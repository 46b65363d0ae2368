#!/usr/bin/env bash
# lint.sh QMLLINT IMPORT_DIR FILE…: fails on every warning of qmllint.
# Ids of outer components cannot be declared as bound before Qt 6.5, so their use is no warning. The content of Veldmark's controls
# is created at once on purpose.
set -euo pipefail
qmllint=$1 imports=$2
shift 2
said=$("$qmllint" -I "$imports" --unqualified info --deferred-property-id disable "$@" 2>&1) || {
    printf '%s\n' "$said"
    exit 1
}
if grep -E '^(Warning|Error)' <<<"$said"; then
    exit 1
fi

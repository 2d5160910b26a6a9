# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# The few words that the script tests are written in. To be sourced.
set -euo pipefail

# shellcheck disable=SC2034 # The tests use it.
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

# expect WHAT WANTED GOT
expect() {
    [[ $2 != "$3" ]] || return 0
    printf 'FAIL: %s\n  wanted: %s\n  got:    %s\n' "$1" "$2" "$3"
    failures=$((failures + 1))
}

# mark_display: makes the X server of DISPLAY known again. is_marked: true while that very server answers; its number alone
# says nothing, because another test that runs at the same time may have been given it.
mark_display() { xprop -root -f "_TEST_$display_mark" 8s -set "_TEST_$display_mark" marked; }
is_marked() { timeout 5 xprop -root "_TEST_$display_mark" 2>/dev/null | grep -q marked; }
export display_mark=$$
export -f mark_display is_marked

finish() {
    ((failures == 0)) || exit 1
    printf 'passed\n'
}

# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# The helpers of the script tests. To be sourced.
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

# mark_display: marks the X server of DISPLAY. is_marked: true while that same server answers; the display number alone
# doesn't tell, because another test that runs at the same time may have got it since.
mark_display() { xprop -root -f "_TEST_$display_mark" 8s -set "_TEST_$display_mark" marked; }
is_marked() { timeout 5 xprop -root "_TEST_$display_mark" 2>/dev/null | grep -q marked; }
export display_mark=$$
export -f mark_display is_marked

finish() {
    ((failures == 0)) || exit 1
    printf 'passed\n'
}

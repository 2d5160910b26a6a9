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

finish() {
    ((failures == 0)) || exit 1
    printf 'passed\n'
}

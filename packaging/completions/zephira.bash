# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
_zephira() {
    local word=${COMP_WORDS[COMP_CWORD]}
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "--ftp --help --version" -- "$word")
    elif [[ $word == /n* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "/nodialog" -- "$word"; compgen -f -- "$word")
    else
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -o filenames -F _zephira zephira

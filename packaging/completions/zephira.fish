# SPDX-License-Identifier: GPL-3.0-or-later
complete -c zephira -l ftp -d "Open the file transfer client"
complete -c zephira -l help -d "Print a short text about the options"
complete -c zephira -l version -d "Print the version"
complete -c zephira -a /nodialog -d "Start without the tip and the start dialog"

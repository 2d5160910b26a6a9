# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# Shared by the commands: messages to the user, packages, and a virtual display. To be sourced.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
readonly root

# Messages for people go to stderr, so that stdout holds only what other programs read.
say() { printf '%s\n' "$*" >&2; }

die() {
    say "$*"
    exit 1
}

# package_names LIST...: the packages of the named lists without duplicates, one per line.
package_names() {
    local list
    for list in "$@"; do
        sed -e 's/#.*//' -e 's/[[:blank:]]//g' -e '/^$/d' "$root/packaging/packages/$list"
    done | sort -u
}

# missing_packages LIST...: those of them that are not installed. A name with a question mark is a command as well, and the
# package isn't missed where that command is there. A single query for all of them keeps later starts fast.
missing_packages() {
    local name wanted=()
    while read -r name; do
        [[ $name == *"?" ]] && command -v "${name%"?"}" >/dev/null || wanted+=("${name%"?"}")
    done < <(package_names "$@" | sort -t '?' -k 1,1)
    comm -23 <(printf '%s\n' "${wanted[@]}") <(
        # The second letter of the status is "i" if the package is installed. For an unknown package dpkg-query prints an
        # error and no line.
        dpkg-query --show --showformat='${db:Status-Abbrev} ${Package}\n' "${wanted[@]}" 2>/dev/null |
            sed -n 's/^.i[^ ]* *//p' | sort -u
    )
}

# How many seconds to wait for another package operation.
package_patience=1800

# apt_get WORD...: apt-get as root or through sudo, as soon as no other package operation is running. apt-get's own time-out
# covers only dpkg's lock; if the package lists or the archive are locked, it fails at once and is therefore retried.
apt_get() {
    local prefix=() said status end=$((SECONDS + package_patience))
    ((EUID == 0)) || prefix=(sudo)
    said=$(mktemp)
    while
        status=0
        "${prefix[@]}" env LC_ALL=C DEBIAN_FRONTEND=noninteractive \
            apt-get -o "DPkg::Lock::Timeout=$package_patience" "$@" 2>&1 | tee "$said" >&2 || status=${PIPESTATUS[0]}
        ((status != 0 && SECONDS < end)) && grep -q 'Could not get lock' "$said"
    do
        say "Waiting for another package operation to end."
        sleep 2
    done
    rm -f "$said"
    return "$status"
}

# install_missing LIST...: installs the missing packages, as root or through sudo.
install_missing() {
    local missing
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]})) || return 0
    command -v apt-get >/dev/null || die "These packages are missing, and there is no apt-get to install them: ${missing[*]}"
    ((EUID == 0)) || command -v sudo >/dev/null || die "These packages are missing; install them as root: ${missing[*]}"
    say "Installing ${#missing[@]} packages: ${missing[*]}"
    apt_get update -q && apt_get install -y -q --no-install-recommends "${missing[@]}"
}

# configured_tree PRESET: configures the preset's build tree unless it exists already; ninja keeps it up to date by itself.
configured_tree() {
    [[ -f $root/build/$1/build.ninja ]] || (cd "$root" && cmake --preset "$1") >&2
}

# start_display [SCREEN]: starts an X server on a free display and sets DISPLAY. It must be called from the script's main
# shell, because the server is ended with the shell that started it. The caller stops it with stop_display.
start_display() {
    display_folder=$(mktemp -d)
    local number=
    exec {display_fd}>"$display_folder/number"
    setpriv --pdeathsig TERM Xvfb -displayfd "$display_fd" -screen 0 "${1:-1600x1000x24}" -noreset -nolisten tcp \
        >"$display_folder/log" 2>&1 &
    display_pid=$!
    exec {display_fd}>&-
    until [[ -n $number ]]; do
        kill -0 "$display_pid" 2>/dev/null || die "The X server did not start: $(cat "$display_folder/log")"
        sleep 0.02
        number=$(cat "$display_folder/number")
    done
    export DISPLAY=:$number
    unset WAYLAND_DISPLAY
}

# start_window_manager: windows get the keyboard focus only if a window manager runs. It reads no user's settings.
start_window_manager() {
    HOME=$display_folder XDG_CONFIG_HOME=$display_folder XDG_CACHE_HOME=$display_folder \
        setpriv --pdeathsig TERM openbox --sm-disable >>"$display_folder/log" 2>&1 &
    window_manager_pid=$!
    until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; do
        kill -0 "$window_manager_pid" 2>/dev/null || die "The window manager did not start: $(cat "$display_folder/log")"
        sleep 0.02
    done
}

stop_display() {
    local pid
    for pid in "${window_manager_pid:-}" "${display_pid:-}"; do
        [[ -n $pid ]] || continue
        kill "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    window_manager_pid='' display_pid=''
    [[ -z ${display_folder:-} ]] || rm -rf "$display_folder"
}

screen_hash() { import -silent -window root rgb:- | sha256sum; }

# picture_when_painted PNG PID BLANK: saves the screen as soon as it differs from BLANK, the hash of the empty screen, and
# shows nothing new four times in a row. A picture that was seen before counts as nothing new, so that a blinking caret
# doesn't matter. Fails if the process ends first or the screen doesn't settle within a minute.
picture_when_painted() {
    local now known=0 end=$((SECONDS + 60))
    local -A seen=(["$3"]=blank)
    while ((known < 4)); do
        kill -0 "$2" 2>/dev/null || { say "The program ended before it had painted its window."; return 1; }
        ((SECONDS < end)) || { say "The window did not settle within a minute."; return 1; }
        sleep 0.1
        now=$(screen_hash)
        if [[ $now == "$3" || -z ${seen[$now]-} ]]; then known=0; else known=$((known + 1)); fi
        seen[$now]=${seen[$now]-seen}
    done
    import -silent -window root "$1"
}

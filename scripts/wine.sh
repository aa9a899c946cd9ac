# A virtual display and a Wine prefix for one run. Sourced by the commands, not run by itself.
#
# The prefix is made once as a template under build/wine and copied for every run, so that runs at
# the same time share neither registry, nor server, nor display. Whatever is started here is ended
# by end_wine, by its id; the starter's death ends it too, so that even a killed run leaves nothing.

root=${root:-$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)}
wine_folder=$root/build/wine
# ONBOARDUI_SCREEN and ONBOARDUI_DPI give another size in pixels and another resolution in dots per
# inch, which programs see that say that they are aware of it.
screen=${ONBOARDUI_SCREEN:-1280x1024}x24

display_pid=
server_pid=
program_pid=
prefix_lent=

say() { printf '%s\n' "$*" >&2; }

fail() {
    say "$@"
    exit 1
}

# Asks for up to 20 s, a hundred times a second, until the command given succeeds.
wait_until() {
    for _ in {1..2000}; do
        "$@" && return
        sleep 0.01
    done
    return 1
}

# The display chooses a free number itself; no other run can be given the same one.
start_display() {
    local number=
    read -r -t 20 number < <(exec setpriv --pdeathsig TERM Xvfb -displayfd 1 -screen 0 "$screen" \
        -nolisten tcp -noreset 2> "$wine_folder/display.$$.log")
    display_pid=$!
    if [[ -z $number ]]; then
        cat "$wine_folder/display.$$.log" >&2
        fail "The virtual display did not start."
    fi
    rm -f "$wine_folder/display.$$.log"
    export DISPLAY=:$number
    # A desktop's display has settings. Of one that has none, and no file of them, the libraries under
    # Wine look for that file several times for each font that a program selects.
    export XENVIRONMENT=$root/scripts/display.resources
    unset WAYLAND_DISPLAY XAUTHORITY
}

end_display() {
    if [[ -n $display_pid ]]; then
        kill "$display_pid" 2> /dev/null
        wait "$display_pid" 2> /dev/null
        display_pid=
    fi
    rm -f "$wine_folder/display.$$.log"
}

# Only the Liberation fonts: what else a machine has installed would change which face "Arial" is.
# The cache lies beside it, so that nothing is written into the home folder. It takes its name when it
# is whole: another run may be reading it.
write_font_configuration() {
    cat > "$wine_folder/fonts.conf.$$" << XML
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/truetype/liberation</dir>
  <cachedir>$wine_folder/font-cache</cachedir>
</fontconfig>
XML
    mv "$wine_folder/fonts.conf.$$" "$wine_folder/fonts.conf"
}

set_wine_environment() {
    export FONTCONFIG_FILE=$wine_folder/fonts.conf
    export WINEARCH=win64
    export WINEDEBUG=${WINEDEBUG--all}
    export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
    export LC_ALL=C.UTF-8
    unset WINELOADER WINESERVER WINEPATH
}

# The server's socket lies in a folder under /tmp that the prefix names itself.
server_listens() {
    local device inode
    read -r device inode < <(stat -L -c '%d %i' "$WINEPREFIX")
    printf -v inode 'server-%x-%x' "$device" "$inode"
    [[ -S /tmp/$(cat "$WINEPREFIX/wineserver" 2> /dev/null)/$inode/socket ]]
}

forget_server() {
    local name
    name=$(cat "$1/wineserver" 2> /dev/null)
    [[ $name == wine-?????? ]] && rm -rf "/tmp/$name"
    rm -f "$1/wineserver"
}

# Wine's own files, 700 MB that no program writes to, are shared with the template by hard links
# where the file system allows; the registry and the user's folders are real copies.
copy_template() {
    local from=$1 to=$2 part=$2.part
    rm -rf "$part"
    mkdir -p "$part" || return 1
    if ! cp -al "$from/drive_c" "$part/" 2> /dev/null; then
        rm -rf "$part/drive_c"
        cp -a "$from/drive_c" "$part/" || return 1
    fi
    rm -rf "$part/drive_c/users" &&
        cp -a "$from/drive_c/users" "$part/drive_c/" &&
        cp -a "$from/dosdevices" "$from/.update-timestamp" "$from"/*.reg "$part/" &&
        mv "$part" "$to"
}

# make_template FOLDER: in a subshell, whose display and prefix are not those of the run.
make_template() (
    export WINEPREFIX=$1
    display_pid=
    trap end_display EXIT
    start_display
    mkdir -p "$WINEPREFIX" &&
        wine wineboot -i &&
        wineserver -w &&
        cp /usr/share/wine/fonts/*.ttf /usr/share/wine/fonts/*.fon \
            "$WINEPREFIX/drive_c/windows/Fonts/" &&
        wine regedit /S "$root/scripts/prefix.reg" &&
        wineserver -w &&
        grep -q '"Managed"="N"' "$WINEPREFIX/user.reg"
)

# What a template is made of, in short: another recipe or another Wine gives another template.
template_stamp() {
    {
        declare -f make_template write_font_configuration
        cat "$root/scripts/prefix.reg"
        dpkg-query -W -f '${Version}\n' libwine fonts-wine fonts-liberation
    } | sha256sum | cut -c 1-12
}

# Makes the template if it is missing and puts a copy of it at $1. One run at a time: the template
# takes its final name when it is complete, so an interrupted one never counts.
lend_prefix() (
    flock 9
    template=$wine_folder/template-$(template_stamp)
    if [[ ! -d $template ]]; then
        making=$wine_folder/making
        rm -rf "$making" "$wine_folder"/template-*
        say "Making the Wine prefix (once, about 15 s) ..."
        make_template "$making" > "$wine_folder/making.log" 2>&1 9>&-
        made=$?
        forget_server "$making"
        if [[ $made != 0 ]] || ! mv "$making" "$template"; then
            tail -n 20 "$wine_folder/making.log" >&2
            fail "The Wine prefix could not be made."
        fi
    fi
    copy_template "$template" "$1"
) 9> "$wine_folder/lock"

# Copies whose run was killed before it could remove them.
remove_stale_prefixes() {
    local folder owner
    for folder in "$wine_folder"/run.*; do
        owner=${folder##*/run.}
        if [[ -d $folder && ! -d /proc/${owner%.part} ]]; then
            forget_server "$folder"
            rm -rf "$folder"
        fi
    done
}

# A server and a desktop that stay for the whole run: otherwise each program would bring its own and
# wait for the last one's end. No program may start before the server is there. The desktop runs a
# command as soon as it is ready; it and Wine's services keep what they inherit, so started here, and
# not by the first program, they hold nobody's pipe open.
# The server has a session of its own: it must outlive a signal to the whole group of this script,
# because only the server can end the programs.
start_server() {
    local ready=$WINEPREFIX/drive_c/desktop-is-ready
    forget_server "$WINEPREFIX"
    rm -f "$ready"
    setsid setpriv --pdeathsig INT wineserver -f -p < /dev/null &
    server_pid=$!
    wait_until server_listens || fail "The Wine server did not start."
    wine explorer /desktop cmd /c copy nul 'C:\desktop-is-ready' < /dev/null > /dev/null 2>&1 &
    wait_until test -e "$ready" || fail "The Wine desktop did not start."
}

# The server must not run yet: it keeps the registry and writes it when it ends.
set_resolution() {
    sed -i "s/^\"LogPixels\"=.*/\"LogPixels\"=dword:$(printf %08x "$1")/" "$WINEPREFIX"/{user,system}.reg
}

# start_wine [--windowed] [PREFIX]: display, prefix and server for this run. PREFIX names a folder
# to use and keep. --windowed is for the user's own display, where a window manager runs.
start_wine() {
    local windowed=
    if [[ ${1-} == --windowed ]]; then
        windowed=1
        shift
    fi
    mkdir -p "$wine_folder"
    trap end_wine EXIT
    trap 'exit 130' INT
    trap 'exit 143' TERM HUP
    write_font_configuration
    set_wine_environment
    remove_stale_prefixes
    if [[ -n ${1-} ]]; then
        export WINEPREFIX=$1
        mkdir -p "$(dirname "$1")"
        exec {prefix_lock}> "$1.lock"
        flock -n "$prefix_lock" || fail "$1 is in use by another run."
    else
        export WINEPREFIX=$wine_folder/run.$$
        prefix_lent=1
    fi
    if [[ ! -d $WINEPREFIX ]]; then
        lend_prefix "$WINEPREFIX" || exit 1
    fi
    if [[ -n $windowed ]]; then
        sed -i '/^"Managed"=/d' "$WINEPREFIX/user.reg"
    else
        start_display
    fi
    [[ -n ${ONBOARDUI_DPI-} ]] && set_resolution "$ONBOARDUI_DPI"
    start_server
}

# Runs a command and returns what it returns. A signal to this script is answered at once and not
# only when the command has ended.
attend() {
    "$@" <&0 &
    program_pid=$!
    wait "$program_pid"
    local status=$?
    program_pid=
    return "$status"
}

end_wine() {
    local status=$?
    trap - EXIT INT TERM HUP
    if [[ -n $program_pid ]]; then
        kill "$program_pid" 2> /dev/null
    fi
    if [[ -n $server_pid ]]; then
        wineserver -k 2> /dev/null
        wait "$server_pid" 2> /dev/null
        forget_server "$WINEPREFIX"
        server_pid=
    fi
    end_display
    if [[ -n $prefix_lent ]]; then
        rm -rf "$WINEPREFIX"
    fi
    exit "$status"
}

# shellcheck shell=bash
# Starts a program, waits for its window, and ends everything that it started. To be sourced.
# What is started here leads a session of its own, so that a Ctrl+C in the terminal reaches this script alone
# and the program can still save before its display goes; and it is ended by the kernel should this script
# be killed.

displayPids=()
programPid=
window=

# Starts a process that neither outlives this script nor hears the terminal.
StartApart() {
    exec setsid setpriv --pdeathsig TERM "$@"
}

# Starts a virtual display with a window manager, and sets DISPLAY to it. $1: a folder for their logs, from here.
StartVirtualDisplay() {
    local logs=$1 numberFile=$1/display number="" quoted
    : >"$numberFile"
    # The X server itself picks a free number and says it on the descriptor once it listens.
    StartApart Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset \
        3>"$numberFile" >"$logs/xvfb.log" 2>&1 </dev/null &
    displayPids+=($!)
    for ((i = 0; i < 200; ++i)); do
        # A number without its line end may be half of one.
        if read -r number <"$numberFile"; then
            break
        fi
        if ! kill -0 "${displayPids[0]}" 2>/dev/null; then
            break
        fi
        sleep 0.05
    done
    if [[ -z $number ]]; then
        echo "The virtual display did not start:" >&2
        cat "$logs/xvfb.log" >&2
        return 1
    fi
    export DISPLAY=:$number
    unset WAYLAND_DISPLAY
    # A window that is mapped while the window manager takes over may never be shown, so wait until it runs its
    # start-up command: that comes when it has taken over all.
    rm -f "$logs/managed"
    # It runs that command in the user's home, and splits it as a shell does.
    quoted="'${PWD//\'/\'\\\'\'}/$logs/managed'"
    StartApart openbox --sm-disable --startup "touch $quoted" >"$logs/openbox.log" 2>&1 </dev/null &
    displayPids+=($!)
    for ((i = 0; i < 200; ++i)); do
        [[ -e $logs/managed ]] && return 0
        sleep 0.05
    done
    echo "The window manager did not start:" >&2
    cat "$logs/openbox.log" >&2
    return 1
}

# Prints the id of the X window of process $1 with the title $2, or nothing.
FindWindow() {
    xdotool search --all --onlyvisible --pid "$1" --name "^$2\$" 2>/dev/null | head -n 1 || true
}

# Waits up to $3 seconds for the X window of process $1 with the title $2 and leaves its id in `window`.
# Fails when the process ends before or the time is over. Not to be called in a $(...): signals would wait.
WaitForWindow() {
    local pid=$1 title=$2 deadline=$((SECONDS + $3))
    while ((SECONDS < deadline)); do
        window=$(FindWindow "$pid" "$title")
        [[ -n $window ]] && return 0
        kill -0 "$pid" 2>/dev/null || return 1
        sleep 0.05
    done
    return 1
}

# Waits until window $1 of the program has drawn itself; uses file $2.
WaitUntilDrawn() {
    local id=$1 file=$2
    for ((i = 0; i < 100; ++i)); do
        kill -0 "$programPid" 2>/dev/null || return 1
        # A window that is mapped but not drawn yet has a single colour. For one that has just gone, import would
        # wait until the user clicks on another.
        if timeout 2 import -silent -window "$id" "$file" 2>/dev/null && (($(identify -format '%k' "$file") > 2)); then
            return 0
        fi
        sleep 0.05
    done
    return 1
}

# Writes a picture of window $1 and of what the program asks above it to file $2.
WritePicture() {
    local id=$1 file=$2 before="" now
    WaitUntilDrawn "$id" "$file" || return 1
    # What is asked is drawn too when two pictures in a row are alike. A caret that blinks makes some differ.
    for ((i = 0; i < 20; ++i)); do
        timeout 2 import -silent -window root -trim +repage "$file" || return 1
        now=$(identify -format '%#' "$file")
        [[ $now == "$before" ]] && break
        before=$now
        sleep 0.1
    done
}

# Ends the program and waits for it: a signal lets it save, and only one that hangs is killed.
EndProgram() {
    [[ -n $programPid ]] || return 0
    kill -TERM "$programPid" 2>/dev/null || return 0
    for ((i = 0; i < 100; ++i)); do
        kill -0 "$programPid" 2>/dev/null || return 0
        sleep 0.05
    done
    echo "The program did not end within five seconds of being asked to: killing it." >&2
    kill -KILL "$programPid" 2>/dev/null || true
}

# Ends the program, then the display it was on.
EndAll() {
    EndProgram
    local pid
    for pid in "${displayPids[@]}"; do
        kill -TERM "$pid" 2>/dev/null || true
    done
    for pid in "${displayPids[@]}"; do
        wait "$pid" 2>/dev/null || true
    done
    displayPids=()
}

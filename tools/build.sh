# Configuring and building a preset. To be sourced, in the project's folder.

# ccache makes a second build short; where it is not installed, nothing is missed.
if command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi

# build_preset PRESET [TARGET]...
build_preset() {
    local preset=$1
    shift
    cmake --preset "$preset" &&
        nice -n 5 cmake --build --preset "$preset" --parallel "$(nproc)" ${1:+--target "$@"}
}

# Shows the progress of a build in one line, on a terminal only. Reads the build's output.
show_progress() {
    local line
    while IFS= read -r line; do
        [[ -t 1 && $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || continue
        printf '\rBuilding %3d %%' $((100 * BASH_REMATCH[1] / BASH_REMATCH[2]))
    done
    [[ -t 1 ]] && printf '\r\033[K'
    return 0
}

# Builds a preset quietly. When it fails, the end of its output is shown.
build_quietly() {
    local log=build/logs/$1.log
    build_preset "$@" 2>&1 | tee "$log" | show_progress
    [[ ${PIPESTATUS[0]} -eq 0 ]] && return 0
    tail -n 40 "$log"
    echo "The build failed; its whole output is in $log."
    return 1
}

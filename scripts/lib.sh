# What ./play and ./check share. Sourced by them, in the project's folder.

# Neither command reads its standard input, and nothing below them shall wait for it.
exec </dev/null

jobs=$(nproc)

# quietly LOG COMMAND...: the output goes to the file LOG; its end is shown when the command fails.
quietly() {
    local log=$1 status=0
    shift
    mkdir -p "$(dirname "$log")"
    "$@" >"$log" 2>&1 || status=$?
    if [ "$status" -ne 0 ]; then
        # A compiler's first error counts, and it stands far above the last line.
        grep -nE '(error|FAILED):' "$log" | head -n 10 >&2 || true
        echo "--- the end of $log:" >&2
        tail -n 60 "$log" >&2
        echo "--- all of it: $log" >&2
    fi
    return "$status"
}

# configure_and_build PRESET [CMAKE-OPTION...] [-- BUILD-OPTION...]
configure_and_build() {
    local preset=$1 options=()
    shift
    while [ $# -gt 0 ] && [ "$1" != -- ]; do
        options+=("$1")
        shift
    done
    [ $# -eq 0 ] || shift
    cmake --preset "$preset" "${options[@]}" && cmake --build "build/$preset" -j "$jobs" "$@"
}

# Sourced by .ci/checks: the single checks.

code_folders=(gfx objects platform resources script shell tests bench artwork)

# check NAME COMMAND...: runs it and says how long it took; a failure ends the checks.
check() {
    local name=$1 start=$SECONDS
    shift
    echo "== $name"
    "$@" || {
        echo "== $name: failed"
        exit 1
    }
    echo "== $name: $((SECONDS - start)) s"
}

code_files() { find "${code_folders[@]}" -name '*.h' -o -name '*.cpp'; }

check_format() {
    code_files | xargs clang-format --dry-run --Werror
}

check_tidy() {
    find gfx objects platform resources script shell -name '*.cpp' | sort \
        | xargs -P "$(nproc)" -n 4 clang-tidy -p build/clang --quiet 2>/dev/null
}

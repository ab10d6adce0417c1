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

# On a machine that has no package at all: elsewhere one is told what is left out, in continuous integration it fails.
check_leaving_out() (
    scratch=$(mktemp -d) || exit
    trap 'rm -rf "$scratch"' EXIT
    printf '#!/bin/sh\nexit 1\n' >"$scratch/dpkg-query"
    chmod +x "$scratch/dpkg-query"
    goes_on() { CI=$1 PATH=$scratch:$PATH bash -c '. packaging/build-lib.sh && echo goes on' 2>&1 | grep -q '^goes on$'; }
    goes_on false && ! goes_on true
)

check_format() {
    code_files | xargs clang-format --dry-run --Werror
}

check_tidy() {
    find gfx objects platform resources script shell -name '*.cpp' | sort \
        | xargs -P "$(nproc)" -n 4 clang-tidy -p build/clang --quiet 2>/dev/null
}

# A function that the linker may share between files must not come from one that is compiled for other processors.
check_row_ops() {
    local found
    [ -n "$(find build -name 'RowOpsAvx*.cpp.o' -print -quit)" ] || {
        echo "no row operations are built"
        return 1
    }
    found=$(find build -name 'RowOpsAvx*.cpp.o' -print0 | xargs -0 -r nm -C -A | grep -E ' W ' || true)
    [ -z "$found" ] || {
        echo "$found"
        return 1
    }
}

# Each fuzz target for a short while. What it learns is thrown away; an input that fails stays in build/fuzz.
check_fuzz() (
    configure_and_build fuzz -DTOBRIK_DESKTOP=OFF || exit
    scratch=$(mktemp -d) || exit
    trap 'rm -rf "$scratch"' EXIT
    for target in script bmp render; do
        mkdir "$scratch/$target"
        TMPDIR=$scratch "build/fuzz/tests/fuzz/fuzz_$target" -max_total_time=20 -max_len=16384 -rss_limit_mb=512 \
            -print_final_stats=1 -artifact_prefix=build/fuzz/ "$scratch/$target" "tests/fuzz/corpus/$target" \
            >"$scratch/$target.log" 2>&1 || {
            cat "$scratch/$target.log"
            exit 1
        }
        sed -n "s/^stat::number_of_executed_units: */fuzz_$target, inputs tried: /p" "$scratch/$target.log"
    done
)

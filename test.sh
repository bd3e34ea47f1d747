#!/usr/bin/env bash
# Builds and runs every test twice: a normal build and one with AddressSanitizer and
# UndefinedBehaviorSanitizer, then the short fuzz runs. The last line is the summary "N passed, N failed".
set -uo pipefail
ROOT=$(cd "$(dirname "$0")" && pwd)
source "$ROOT/scripts/common.sh"
ensure_packages || exit 1
ensure_packages "${FUZZ_PACKAGES[@]}" || exit 1

export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export LSAN_OPTIONS=suppressions=$ROOT/tests/support/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

passed=0
failed=0
status=0

# run_suite NAME DIR [cmake options...]
run_suite() {
    local name=$1 dir=$2
    shift 2
    echo "== $name build"
    if ! build "$dir" "$@"; then
        echo "$name: build failed"
        failed=$((failed + 1))
        status=1
        return
    fi
    echo "== $name tests"
    local log="$dir/ctest.log"
    ctest --test-dir "$dir" --output-on-failure -j2 --timeout 300 2>&1 | tee "$log" | grep -vE '^ *[0-9]+/[0-9]+ Test +#[0-9]+: .* Passed'
    local total fail
    total=$(grep -oE 'tests failed out of [0-9]+' "$log" | grep -oE '[0-9]+$' | tail -n 1)
    fail=$(grep -oE '[0-9]+ tests failed' "$log" | grep -oE '^[0-9]+' | tail -n 1)
    if [ -z "$total" ]; then
        echo "$name: ctest did not report"
        failed=$((failed + 1))
        status=1
        return
    fi
    passed=$((passed + total - fail))
    failed=$((failed + fail))
    [ "$fail" -eq 0 ] || status=1
}

# ./test.sh --coverage: the suite once, built with gcov's counters, then the line and branch
# coverage of src/ per file in build/coverage/coverage.txt.
if [ "${1:-}" = "--coverage" ]; then
    ensure_packages gcovr || exit 1
    find "$ROOT/build/coverage" -name '*.gcda' -delete 2>/dev/null
    run_suite "coverage" "$ROOT/build/coverage" -DCMAKE_BUILD_TYPE=Debug -DSTEWARD_COVERAGE=ON \
        -DSTEWARD_BENCH=OFF
    gcovr --root "$ROOT" --filter "$ROOT/src/" --object-directory "$ROOT/build/coverage" -j 2 \
        --exclude-throw-branches --exclude-unreachable-branches \
        --json-summary "$ROOT/build/coverage/summary.json" || status=1
    "$ROOT/tools/coverage_report.py" "$ROOT/build/coverage/summary.json" \
        >"$ROOT/build/coverage/coverage.txt" || status=1
    tail -n 1 "$ROOT/build/coverage/coverage.txt"
    echo "$passed passed, $failed failed"
    exit $status
fi

run_suite "release" "$ROOT/build/release" -DCMAKE_BUILD_TYPE=Release
run_suite "sanitize" "$ROOT/build/sanitize" -DCMAKE_BUILD_TYPE=Debug -DSTEWARD_SANITIZE=ON -DSTEWARD_BENCH=OFF
# Each fuzz program over its corpus for a few seconds, and over every input that once failed.
run_suite "fuzz" "$ROOT/build/fuzz" "${FUZZ_OPTIONS[@]}"

echo "$passed passed, $failed failed"
exit $status

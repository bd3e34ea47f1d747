#!/usr/bin/env bash
# Counts the lines of the program (src/ and world/) and of tests/, C++ files only, as git
# tracks them, and prints their ratio.
set -euo pipefail
cd "$(dirname "$0")/.."
count() { git ls-files "$@" | grep -E '\.(cpp|h)$' | xargs cat | wc -l; }
code=$(count src world)
tests=$(count tests)
echo "code $code, tests $tests ($((100 * tests / code))%)"

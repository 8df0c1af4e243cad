#!/usr/bin/env bash
# Everything that has to hold before a change lands, cheapest first: the sources as text, the layers without Qt and then
# the screens under sanitizers, the suite of the release with programs, package and the fingerprint of the searches.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. scripts/setup.sh

phase() { printf '\n== %s (%d s)\n' "$*" "$SECONDS"; }

phase "Packages"
ensure_packages "${packages[@]}" clang-format python3-pyftpdlib mdbtools

phase "Sources"
scripts/check_sources.sh

# run_sanitized PRESET: all test programs of a build, each in a few processes that share its tests; a process for each
# test would spend a third of the time on the start of the sanitizers. Under them a tenth of the random settings.
run_sanitized() {
  local preset=$1 program shard shards=4 programs=("build/$1"/bin/test_*)
  phase "Tests of $preset, sanitized"
  [ -x "${programs[0]}" ] || stop "build/$preset holds no tests."
  for program in "${programs[@]}"; do
    for ((shard = 0; shard < shards; ++shard)); do printf '%s\0' "$program" "$shard"; done
  done | GTEST_TOTAL_SHARDS=$shards GTEST_BRIEF=1 TRV5_RANDOM_SHARE=10 QT_QPA_PLATFORM=offscreen \
    xargs -0 -n 2 -P $((2 * $(nproc))) scripts/run_shard.sh
}

phase "Build without Qt, with sanitizers"
configure core -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON
cmake --build --preset core
run_sanitized core

# The layers without Qt have had their tests.
phase "Build of the screens, with sanitizers"
configure sanitize
cmake --build --preset sanitize --target gui_tests
run_sanitized sanitize

# Here a process for each test, and all random settings.
phase "Build of the release"
configure release
cmake --build --preset release
phase "Tests of the release"
QT_QPA_PLATFORM=offscreen ctest --test-dir build/release --output-on-failure --no-tests=error \
  --parallel $((2 * $(nproc)))

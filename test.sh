#!/usr/bin/env bash
# Everything that has to hold before a change lands, cheapest first: the sources as text, that the layers without Qt are
# set up where there is none, the suite under sanitizers, then that of the release with programs, package and the
# fingerprint of the searches.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. scripts/setup.sh

# ./test.sh --coverage: only how much of the layers without Qt their tests run.
if [ "${1:-}" = --coverage ]; then exec scripts/coverage.sh; fi

phase() { printf '\n== %s (%d s)\n' "$*" "$SECONDS"; }

phase "Packages"
ensure_packages "${packages[@]}" clang-format python3-pyftpdlib mdbtools

phase "Sources"
scripts/check_sources.sh

# run_tests PRESET [CTEST OPTION...]: a process for each test.
run_tests() {
  local preset=$1
  shift
  phase "Tests of $preset"
  QT_QPA_PLATFORM=offscreen ctest --test-dir "build/$preset" --output-on-failure --no-tests=error \
    --parallel "$(nproc)" "$@"
}

# run_programs PRESET: its test programs without Qt, each in a few processes that share its tests. The start of the
# sanitizers would take a third of the time with a process for each test. Twice as many at a time as there are cores: some
# wait for locks.
run_programs() {
  local program shard shards=4 programs=()
  phase "Tests of $1 without Qt"
  for program in "build/$1"/bin/test_*; do
    case "${program##*/}" in
      test_screens | test_console | test_help) ;;
      *) programs+=("$program") ;;
    esac
  done
  [ -x "${programs[0]}" ] || stop "build/$1 holds no tests."
  for program in "${programs[@]}"; do
    for ((shard = 0; shard < shards; ++shard)); do printf '%s\0' "$program" "$shard"; done
  done | GTEST_TOTAL_SHARDS=$shards GTEST_BRIEF=1 xargs -0 -n 2 -P $((2 * $(nproc))) scripts/run_shard.sh
}

phase "Without Qt"
configure core -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON

# Under sanitizers a tenth of the random settings, and ten seconds of changed inputs for each reader; the release goes
# through all settings.
phase "Build with sanitizers"
configure sanitize
cmake --build --preset sanitize
export TRV5_RANDOM_SHARE=10 TRV5_FUZZ_SECONDS=10
run_programs sanitize
run_tests sanitize --label-regex gui
unset TRV5_RANDOM_SHARE TRV5_FUZZ_SECONDS

phase "Build of the release"
configure release
cmake --build --preset release
run_tests release

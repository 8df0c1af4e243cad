#!/usr/bin/env bash
# Everything that has to hold before a change lands, cheapest first: the sources as text, the layers without Qt, the
# suite under sanitizers, the suite of the release with programs, package and the fingerprint of the searches.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. packaging/setup.sh

phase() { printf '\n== %s (%d s)\n' "$*" "$SECONDS"; }

phase "Packages"
ensure_packages "${packages[@]}" clang-format

phase "Sources"
packaging/check_sources.sh

# build_and_test PRESET [CTEST OPTION...]
build_and_test() {
  local preset=$1
  shift
  cmake --build --preset "$preset"
  phase "Tests of $preset"
  QT_QPA_PLATFORM=offscreen ctest --test-dir "build/$preset" --output-on-failure --no-tests=error \
    --parallel "$(nproc)" "$@"
}

phase "Build without Qt"
configure core -DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON
TRV5_RANDOM_SHARE=10 build_and_test core

phase "Build with sanitizers"
configure sanitize
TRV5_RANDOM_SHARE=10 build_and_test sanitize

phase "Build of the release"
configure release
build_and_test release

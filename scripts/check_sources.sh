#!/usr/bin/env bash
# What a machine can see in the sources as text: format, encoding, words that have no place in the project. Prints each
# finding and ends with 1 when there was one.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Files of the project, whatever their owner: without the build folders and git's own.
files() { find . -name .git -prune -o -path ./build -prune -o -type f "$@" -print | sort; }

found=0
report() {
  found=1
  printf '%s\n' "$@"
}

mapfile -t sources < <(files \( -name '*.cpp' -o -name '*.h' \))
clang-format --dry-run --Werror "${sources[@]}" || report "Run clang-format -i on the files named above."

mapfile -t texts < <(files ! -name '*.png' ! -name '*.gz' ! -name '*.zip' ! -name '*.mdb')
for file in "${texts[@]}"; do
  # Files of the tests may be damaged on purpose.
  case "$file" in ./tests/data/*) continue ;; esac
  iconv -f UTF-8 -t UTF-8 "$file" >/dev/null 2>&1 || report "$file: not valid UTF-8"
  if LC_ALL=C grep -q $'^\xEF\xBB\xBF' "$file"; then report "$file: begins with a byte order mark"; fi
  if LC_ALL=C grep -q $'\r$' "$file"; then report "$file: lines end in CR LF"; fi
done

# forbid WHY PATTERN [FILE...]: no line of the files may match. The patterns are written so that they don't find
# themselves.
forbid() {
  local why=$1 pattern=$2 hits
  shift 2
  [ $# -gt 0 ] || set -- "${texts[@]}"
  if hits=$(grep -nE "$pattern" "$@"); then report "$why:" "$hits"; fi
}
forbid "Speaks of papers that a reader of the project doesn't have" \
  '\b[P]arts? [0-9]+(\.[0-9]+)?\b|\b[p]arts? [0-9]+(\.[0-9]+)?\b|[Ss]pecificatio[n]|\bspec[.]md\b|[.]{2}/shared/spe[c]'
forbid "Bears a path of one machine" '(^|[^[:alnum:]._-])/(wor[k]|roo[t])/[[:alnum:]]'
forbid "Unfinished by its own word" '\b(TOD[O]|FIXM[E]|XX[X]|HAC[K])\b|no[t] implemented|no[n] implementat[oa]\b'
mapfile -t tests < <(files -path './tests/*' -name '*.cpp')
[ ${#tests[@]} -eq 0 ] ||
  forbid "A test that doesn't test" 'GTEST_SKI[P]|QSKI[P]|DISABLED[_]|(EXPECT|ASSERT)_TRUE\(tru[e]\)' "${tests[@]}"

exit "$found"

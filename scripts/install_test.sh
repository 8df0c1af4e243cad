#!/usr/bin/env bash
# install_test.sh prefix|package BUILD: installs the build into an empty folder and starts the console from there, or
# makes the Debian package and looks into it. Nothing outside a temporary folder is touched.
set -euo pipefail
kind=$1 build=$2
cd "$(dirname "${BASH_SOURCE[0]}")/.."
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

fail() {
  printf '%s\n' "$@" >&2
  exit 1
}

# The program finds no database beside itself, makes the user's own from the model and loads the archive it names.
check_prefix() {
  cmake --install "$build" --prefix "$folder/prefix" >"$folder/log" || fail "Not installed:" "$(cat "$folder/log")"
  local answers
  answers=$(printf '%s\n' "[\"start\",\"$folder/prefix/bin\"]" '["get","INIZIO","Lbl_Archivio"]' \
    '["click","INIZIO","Command2"]' '["click","Container","Command4"]' '["screens"]' |
    XDG_DATA_HOME="$folder/data" XDG_CONFIG_HOME="$folder/config" "$folder/prefix/bin/trv5-console") ||
    fail "The installed console failed:" "$answers"
  [[ $answers == *'Sommativi1'* ]] || fail "The workbench didn't open:" "$answers"
  [ -s "$folder/data/trv5/DbTRV5.mdb" ] || fail "The user has no main database of his own."
  [ ! -e "$folder/prefix/bin/DbTRV5.mdb" ] || fail "A main database lies beside the installed program."
}

# holds PACKAGE FILE...
holds() {
  local package=$1 listed wanted
  listed=$(dpkg-deb --contents "$package")
  shift
  for wanted in "$@"; do
    grep -qF " .$wanted" <<<"$listed" || fail "$package has no $wanted:" "$listed"
  done
}

check_package() {
  (cd "$folder" && cpack --config "$build/CPackConfig.cmake" -B "$folder" >log) || fail "No package:" "$(cat "$folder/log")"
  local desktop=("$folder"/trv5_*.deb) console=("$folder"/trv5-console_*.deb)
  holds "${desktop[0]}" /usr/bin/trv5 /usr/bin/trv5-data /usr/share/trv5/DbTRV5.mdb \
    '/usr/share/trv5/Archivio dimostrativo (simulato).mdb' /usr/share/applications/trv5.desktop \
    /usr/share/metainfo/org.nerovia.trv5.metainfo.xml /usr/share/icons/hicolor/scalable/apps/trv5.svg \
    /usr/share/doc/trv5/copyright /usr/share/doc/trv5/changelog.gz /usr/share/man/man1/trv5.1.gz \
    /usr/share/man/man1/trv5-data.1.gz
  holds "${console[0]}" /usr/bin/trv5-console /usr/share/doc/trv5-console/copyright \
    /usr/share/doc/trv5-console/changelog.gz /usr/share/man/man1/trv5-console.1.gz
  if dpkg-deb --field "${desktop[0]}" Depends | grep -q libqt6test; then
    fail "The desktop program asks for Qt's test library."
  fi
  # Where the checkers are installed the packages pass them without a word.
  local said=
  if command -v lintian >/dev/null; then said+=$(lintian --allow-root "${desktop[0]}" "${console[0]}" 2>&1 || true); fi
  if command -v desktop-file-validate >/dev/null; then said+=$(desktop-file-validate packaging/trv5.desktop 2>&1 || true); fi
  if command -v appstreamcli >/dev/null; then
    appstreamcli validate --no-net packaging/*.metainfo.xml >"$folder/said" 2>&1 || said+=$(cat "$folder/said")
  fi
  [ -z "$said" ] || fail "The checkers find:" "$said"
  dpkg-deb --field "${desktop[0]}" Depends | grep -q libqt6widgets6 || fail "The package doesn't ask for Qt."
  dpkg-deb --extract "${desktop[0]}" "$folder/extracted"
  "$folder/extracted/usr/bin/trv5-data" aiuto | grep -q storico || fail "The packaged trv5-data doesn't run."
  grep -qaF '/usr/share/trv5/Archivio dimostrativo (simulato).mdb' "$folder/extracted/usr/share/trv5/DbTRV5.mdb" ||
    fail "The packaged model doesn't name the packaged archive."
}

case $kind in
  prefix) check_prefix ;;
  package) check_package ;;
  *) fail "install_test.sh prefix|package BUILD" ;;
esac

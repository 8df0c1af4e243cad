#!/usr/bin/env bash
# install_test.sh prefix|package BUILD: installs the build into an empty folder and starts the console from there, or
# makes the Debian package and looks into it. Nothing outside a temporary folder is touched.
set -euo pipefail
kind=$1 build=$2
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

check_package() {
  (cd "$folder" && cpack --config "$build/CPackConfig.cmake" -B "$folder" >log) || fail "No package:" "$(cat "$folder/log")"
  local deb=("$folder"/trv5_*.deb) listed wanted
  listed=$(dpkg-deb --contents "${deb[0]}")
  for wanted in /usr/bin/trv5 /usr/bin/trv5-console /usr/bin/trv5-data /usr/share/trv5/DbTRV5.mdb \
    '/usr/share/trv5/Archivio dimostrativo (simulato).mdb' /usr/share/applications/trv5.desktop \
    /usr/share/icons/hicolor/scalable/apps/trv5.svg /usr/share/doc/trv5/copyright; do
    grep -qF " .$wanted" <<<"$listed" || fail "The package has no $wanted:" "$listed"
  done
  dpkg-deb --field "${deb[0]}" Depends | grep -q libqt6widgets6 || fail "The package doesn't ask for Qt."
  dpkg-deb --extract "${deb[0]}" "$folder/extracted"
  "$folder/extracted/usr/bin/trv5-data" aiuto | grep -q storico || fail "The packaged trv5-data doesn't run."
  grep -qaF '/usr/share/trv5/Archivio dimostrativo (simulato).mdb' "$folder/extracted/usr/share/trv5/DbTRV5.mdb" ||
    fail "The packaged model doesn't name the packaged archive."
}

case $kind in
  prefix) check_prefix ;;
  package) check_package ;;
  *) fail "install_test.sh prefix|package BUILD" ;;
esac

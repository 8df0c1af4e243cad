#!/usr/bin/env bash
# help_pictures.sh BIN: takes the pictures of the help again, out of the demonstration archive. Run it when a screen has
# changed its looks. pngquant (a Debian package) makes them a third of their size.
set -euo pipefail
bin=$(cd "$1" && pwd)
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# The start screen shows this path.
folder=/tmp/TRV5
mkdir "$folder"
trap 'rm -rf "$folder"' EXIT
cd "$folder"
archive="Archivio dimostrativo (simulato).mdb"
"$bin/trv5-data" demo "$archive" >/dev/null
"$bin/trv5-data" modello DbTRV5.mdb --archivio "$folder/$archive" >/dev/null
XDG_CONFIG_HOME=$folder "$bin/trv5-console" <"$root/help/immagini.txt" >answers || { grep '"ok":false' answers; exit 1; }
pngquant --nofs --force --ext .png 256 ./*.png
mkdir -p "$root/help/img"
mv ./*.png "$root/help/img/"

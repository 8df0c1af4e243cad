#!/usr/bin/env bash
# help_pictures.sh BIN: takes the pictures of the help again, out of the demonstration archive. Run it when a screen has
# changed its looks. pngquant (a Debian package) makes them a third of their size.
set -euo pipefail
bin=$(cd "$1" && pwd)
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
"$bin/trv5-data" demo "$folder/Archivio dimostrativo (simulato).mdb" >/dev/null
"$bin/trv5-data" modello "$folder/DbTRV5.mdb" --archivio "$folder/Archivio dimostrativo (simulato).mdb" >/dev/null
cd "$folder"
XDG_CONFIG_HOME=$folder "$bin/trv5-console" <"$root/help/immagini.txt" >answers || { grep '"ok":false' answers; exit 1; }
pngquant --nofs --force --ext .png 256 ./*.png
mkdir -p "$root/help/img"
mv ./*.png "$root/help/img/"

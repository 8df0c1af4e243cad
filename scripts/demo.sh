#!/usr/bin/env bash
# demo.sh BIN FOLDER: plays a whole method on the demonstration archive through the console and prints what a user would
# read; the pictures of the screens are left in FOLDER/immagini. FOLDER has a main database of its own, so that the
# user's plays no part.
set -euo pipefail
bin=$(cd "$1" && pwd) folder=$2
script=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/metodo.txt
archive="$bin/Archivio dimostrativo (simulato).mdb"

rm -rf "$folder"
mkdir -p "$folder/immagini"
[ -e "$archive" ] || "$bin/trv5-data" demo "$archive"
"$bin/trv5-data" modello "$folder/DbTRV5.mdb" --archivio "$archive" >/dev/null
cd "$folder"
XDG_CONFIG_HOME=$PWD/config "$bin/trv5-console" <"$script" >risposte.jsonl || true # the report names the line that failed
"$bin/trv5-report" "$script" risposte.jsonl
rm -rf config

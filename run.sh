#!/usr/bin/env bash
# Installs what is missing, builds TRV5, makes its data at the first use and opens it. With --build it stops after the
# build. Without a display it runs a whole method on the demonstration archive and prints what the user would read.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. scripts/setup.sh

case "${1-}" in
  "" | --build) ;;
  *) stop "Uso: ./run.sh [--build]" ;;
esac

ensure_packages "${packages[@]}"
configure release
cmake --build --preset release --target trv5 trv5-console trv5-data trv5-report
[ "${1-}" != --build ] || exit 0

bin=$PWD/build/release/bin
archive="$bin/Archivio dimostrativo (simulato).mdb"
[ -e "$archive" ] || "$bin/trv5-data" demo "$archive"
[ -e "$bin/DbTRV5.mdb" ] || "$bin/trv5-data" modello "$bin/DbTRV5.mdb" --archivio "$archive"

if [ -n "${DISPLAY-}${WAYLAND_DISPLAY-}" ]; then
  exec "$bin/trv5"
fi

echo
echo "Nessun display: eseguo un metodo intero sull'archivio dimostrativo, senza finestre."
demo=$PWD/build/release/dimostrazione
scripts/demo.sh "$bin" "$demo"
echo
echo "Immagini delle finestre: $demo/immagini"

# shellcheck shell=bash disable=SC2034
# Sourced by run.sh and test.sh, from the project's own folder: installs the Debian packages that are missing, sets up
# the compiler cache, configures a preset.

# Debian 12. What the programs need to be built and run; the fonts are those that the screens are designed for.
packages=(build-essential cmake ninja-build ccache pkg-config git cmark
  qt6-base-dev qt6-svg-dev qt6-wayland qt6-translations-l10n fonts-noto-core
  libsqlitecpp-dev libsqlite3-dev libfmt-dev libsodium-dev libcurl4-openssl-dev libarchive-dev zlib1g-dev
  libxlsxwriter-dev nlohmann-json3-dev libgtest-dev libgmock-dev libbenchmark-dev)

# Objects compiled in one checkout serve the next one too.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
# Without these the cache passes over what uses a precompiled header; such objects serve their own checkout only.
export CCACHE_SLOPPINESS=pch_defines,time_macros

stop() {
  printf '%s\n' "$*" >&2
  exit 1
}

# missing_packages NAME...: those that aren't installed, one a line. Asks no network.
missing_packages() {
  local name
  for name in "$@"; do
    [ "$(dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || printf '%s\n' "$name"
  done
}

# ensure_packages NAME...: installs what is missing, as root or through sudo.
ensure_packages() {
  command -v dpkg-query >/dev/null || {
    echo "Questo sistema non usa i pacchetti Debian: servono gli equivalenti di: $*" >&2
    return 0
  }
  local missing as_root=()
  mapfile -t missing < <(missing_packages "$@")
  [ ${#missing[@]} -gt 0 ] || return 0
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null ||
      stop "Mancano dei pacchetti e per installarli serve l'amministratore: apt-get install ${missing[*]}"
    as_root=(sudo)
  fi
  echo "Installo i pacchetti mancanti: ${missing[*]}"
  # Without network the lists on the disk may still do.
  "${as_root[@]}" apt-get -q update || echo "Elenco dei pacchetti non aggiornato: uso quello presente." >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "${missing[@]}" ||
    stop "Installazione dei pacchetti non riuscita."
}

# configure PRESET [OPTION...]: writes the build files; what it prints is shown only when it fails. A folder that was
# configured at another place starts afresh, the data in its bin/ stays.
configure() {
  local preset=$1 log=build/$1.log fresh=()
  shift
  mkdir -p build
  if [ -e "build/$preset/CMakeCache.txt" ] &&
    ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$(pwd -P)" "build/$preset/CMakeCache.txt" &&
    ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "build/$preset/CMakeCache.txt"; then
    fresh=(--fresh)
  fi
  cmake "${fresh[@]}" --preset "$preset" "$@" >"$log" 2>&1 || {
    cat "$log" >&2
    stop "Preparazione di build/$preset non riuscita."
  }
}

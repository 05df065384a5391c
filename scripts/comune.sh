# Shared by the scripts beside it: sourced, never run.
set -euo pipefail

radice=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$radice"

dico() { printf '\033[1m==> %s\033[0m\n' "$*"; }
errore() {
  printf 'Error: %s\n' "$*" >&2
  exit 1
}

# What building, testing and the demonstration need, as Debian names it.
pacchetti_costruzione=(g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-svg-dev qt6-speech-dev
  qt6-declarative-dev libsqlite3-dev)
pacchetti_uso=(libqt6svg6 qt6-speech-speechd-plugin speech-dispatcher speech-dispatcher-espeak-ng
  speech-dispatcher-audio-plugins espeak-ng fonts-liberation fonts-dejavu-core fonts-comic-neue fonts-roboto fonts-lato
  fonts-open-sans)
pacchetti_prova=(libgtest-dev libgmock-dev mdbtools xvfb xauth openbox x11-xserver-utils x11-utils xdotool imagemagick
  sqlite3 pulseaudio pulseaudio-utils)

# Installs the packages that are missing; with none missing it asks the package manager nothing.
installa() {
  local mancanti=() p
  for p in "$@"; do
    dpkg-query -W -f='${db:Status-Status}' "$p" 2>/dev/null | grep -qx installed || mancanti+=("$p")
  done
  [ ${#mancanti[@]} -eq 0 ] && return 0
  command -v apt-get >/dev/null || errore "these packages are missing, and there is no apt-get here: ${mancanti[*]}"
  local come=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || errore "run as root, or install sudo: these packages are missing: ${mancanti[*]}"
    come=(sudo)
  fi
  dico "Installing ${#mancanti[@]} packages: ${mancanti[*]}"
  "${come[@]}" apt-get update -q
  "${come[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${mancanti[@]}"
}

# costruisci PRESET [targets...]
costruisci() {
  local preset=$1
  shift
  dico "Building ($preset)"
  cmake --preset "$preset" >"$radice/build/$preset.log" 2>&1 || {
    cat "$radice/build/$preset.log" >&2
    errore "CMake could not set up the build"
  }
  if [ $# -gt 0 ]; then
    cmake --build --preset "$preset" --target "$@"
  else
    cmake --build --preset "$preset"
  fi
}

mkdir -p "$radice/build"

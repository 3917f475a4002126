# SPDX-License-Identifier: GPL-3.0-or-later
# Sourced by ./run and ./test: installs what is missing on Debian 12, configures and builds.

PAQUETES=(g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-base-dev-tools qt6-svg-dev libgl-dev
  qt6-translations-l10n libsqlcipher-dev libzint-dev zlib1g-dev libzip-dev libgtest-dev libbenchmark-dev fonts-dejavu-core poppler-utils zbar-tools zxing-cpp-tools libarchive-tools)

instalar_faltantes() {
  local faltan=() p
  for p in "${PAQUETES[@]}"; do
    dpkg-query -W -f='${db:Status-Status}' "$p" 2>/dev/null | grep -q '^installed' || faltan+=("$p")
  done
  [ ${#faltan[@]} -eq 0 ] && return
  echo "Se instalan: ${faltan[*]}"
  local como=()
  [ "$(id -u)" -eq 0 ] || como=(sudo)
  "${como[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${como[@]}" apt-get install -y -qq --no-install-recommends "${faltan[@]}"
}

# construir PRESET [TARGET...]: everything without targets.
construir() {
  local preset=$1
  shift
  instalar_faltantes
  export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-$([ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || echo offscreen)}
  [ -n "$QT_QPA_PLATFORM" ] || unset QT_QPA_PLATFORM
  [ "build/$preset/build.ninja" -nt CMakePresets.json ] || cmake --preset "$preset" >/dev/null
  # Forms first: the build learns of a header that uic has written anew only when it starts.
  cmake --build --preset "$preset" --target autogen
  cmake --build --preset "$preset" ${1:+--target} "$@"
}

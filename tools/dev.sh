#!/usr/bin/env bash
# One entry point for a fresh Debian 12 machine: installs what is missing,
# configures, builds, then runs the app or the whole test suite.
#   tools/dev.sh run [qor options]   the app on the bundled data pack
#   tools/dev.sh test                every test (CTest), as CI runs it
set -euo pipefail
cd "$(dirname "$0")/.."

PACKAGES=(cmake g++ ninja-build pkg-config libsqlite3-dev libplist-dev
  qt6-base-dev qt6-declarative-dev qt6-webengine-dev qt6-pdf-dev qt6-svg-dev
  qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools linguist-qt6
  qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-layouts
  qml6-module-qtquick-window qml6-module-qtqml-workerscript qml6-module-qtquick-templates
  qml6-module-qtwebengine qml6-module-qtquick-dialogs qml6-module-qttest
  libgtest-dev libbenchmark-dev xvfb xauth)

install_missing() {
  local missing=()
  for p in "${PACKAGES[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

BUILD_DIR=${QOR_BUILD_DIR:-build}
build() {
  cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=${QOR_BUILD_TYPE:-RelWithDebInfo} "$@"
  cmake --build "$BUILD_DIR" -j"$(nproc)"
}

cmd=${1:-}
shift || true
case "$cmd" in
  run)
    install_missing
    build
    if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
      cat <<MSG
No display found. To run the app headless:
  QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software QTWEBENGINE_DISABLE_SANDBOX=1 $BUILD_DIR/src/app/qor
or look materials up on the command line:
  $BUILD_DIR/src/cli/qor-cli material 1005
  $BUILD_DIR/src/cli/qor-cli --help
MSG
      exit 0
    fi
    [ "$(id -u)" -eq 0 ] && export QTWEBENGINE_DISABLE_SANDBOX=1
    exec "$BUILD_DIR/src/app/qor" "$@"
    ;;
  test)
    install_missing
    build
    ctest --test-dir "$BUILD_DIR" --output-on-failure -j"$(nproc)"
    ;;
  *)
    echo "usage: tools/dev.sh run|test" >&2
    exit 2
    ;;
esac

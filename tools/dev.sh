#!/usr/bin/env bash
# One entry point for a fresh Debian 12 machine: installs what is missing,
# configures, builds, then runs the app or the whole test suite.
#   tools/dev.sh run [qor options]   the app on the bundled data pack
#   tools/dev.sh test                what CI runs: every test (CTest), then the
#                                    sanitizer suite and each fuzzer for a while
#   tools/dev.sh sanitize            the CTest suite under ASan and UBSan only
#   tools/dev.sh fuzz [seconds]      each fuzzer for that long (default 20)
set -euo pipefail
cd "$(dirname "$0")/.."

PACKAGES=(cmake g++ ninja-build pkg-config libsqlite3-dev libplist-dev
  qt6-base-dev qt6-declarative-dev qt6-webengine-dev qt6-pdf-dev qt6-svg-dev
  qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools linguist-qt6
  qml6-module-qtquick qml6-module-qtquick-controls qml6-module-qtquick-layouts
  qml6-module-qtquick-window qml6-module-qtqml-workerscript qml6-module-qtquick-templates
  qml6-module-qtwebengine qml6-module-qtquick-dialogs qml6-module-qttest
  libgtest-dev libbenchmark-dev xvfb xauth clang libclang-rt-14-dev
  libpoppler-cpp-dev libarchive-dev libxml2-dev poppler-utils ccache
  file dpkg-dev llvm)

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
# ccache keeps rebuilds of unchanged sources cheap across build folders.
LAUNCHER=()
command -v ccache >/dev/null && LAUNCHER=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
build() {
  cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=${QOR_BUILD_TYPE:-RelWithDebInfo} "${LAUNCHER[@]}" "$@"
  cmake --build "$BUILD_DIR" -j"$(nproc)"
}

# One clang build serves both: everything built with ASan and UBSan (plus
# fuzzer coverage), no benchmarks, lightly optimised to keep the build short.
SAN_DIR=${QOR_SANITIZE_BUILD_DIR:-build-asan}
build_sanitized() {
  CC=clang CXX=clang++ cmake -S . -B "$SAN_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "${LAUNCHER[@]}" \
    -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O1 -gline-tables-only" -DCMAKE_C_FLAGS_RELWITHDEBINFO="-O1 -gline-tables-only" \
    -DQOR_FUZZ=ON -DQOR_BUILD_BENCH=OFF
  cmake --build "$SAN_DIR" -j"$(nproc)"
}

# Full stacks on allocation (slower) so that leak suppressions can name the
# Qt Quick caches that live until exit; Qt's libraries have no frame pointers.
# new_delete_type_mismatch is off: the web engine's own code frees objects
# with a mismatched sized delete, inside the system library.
sanitizer_env() {
  export ASAN_OPTIONS="halt_on_error=1:new_delete_type_mismatch=0:check_initialization_order=1:strict_init_order=1:fast_unwind_on_malloc=0:suppressions=$PWD/tools/asan.supp"
  export UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1"
  export LSAN_OPTIONS="suppressions=$PWD/tools/lsan.supp:print_suppressions=0"
}

run_sanitized_tests() {
  sanitizer_env
  # The package check builds a .deb; it tests packaging, not memory safety.
  # The importer tests each read every page of the official documents again;
  # one whole import of each document (ErgCli, ImportCommands and one guides
  # test) runs the same code under the sanitizers at a tenth of the time, and
  # the fuzzers feed the importers damaged input.
  ctest --test-dir "$SAN_DIR" --output-on-failure -j"$(nproc)" \
    -E '^(deb_package|pack_build_.*|ErgImport\..*|ErgImportSections\..*|ErgGuides\..*|PocketGuide\..*)$'
  ctest --test-dir "$SAN_DIR" --output-on-failure -R '^ErgGuides\.EveryGuideOfTheEditionInOrder$'

}

# Each fuzzer for a bounded time on a scratch copy of its seed corpus; any
# crash, leak, timeout or sanitizer report fails the run.
run_fuzzers() {
  local seconds=${1:-20} failed=0
  sanitizer_env
  # Leaks are checked per input here; full stacks would cost most of the speed.
  export ASAN_OPTIONS="${ASAN_OPTIONS/fast_unwind_on_malloc=0/fast_unwind_on_malloc=1}"
  local out="$SAN_DIR/fuzz-run"
  # The targets write their scratch packs and user folders for every input.
  [ -w /dev/shm ] && export TMPDIR=/dev/shm
  mkdir -p "$out"
  for fuzzer in "$SAN_DIR"/tests/fuzz/fuzz_*; do
    [ -f "$fuzzer" ] && [ -x "$fuzzer" ] || continue
    local name=${fuzzer##*/fuzz_}
    local seeds="tests/fuzz/corpus/$name" corpus="$out/$name"
    mkdir -p "$corpus" "$out/artifacts"
    if "$fuzzer" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
        -artifact_prefix="$out/artifacts/$name-" "$corpus" "$seeds" >"$out/$name.log" 2>&1; then
      local runs execs corp
      runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$out/$name.log")
      execs=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$out/$name.log")
      corp=$(sed -n 's/.*DONE .*corp: \([0-9]*\/[0-9a-zA-Z]*\).*/\1/p' "$out/$name.log" | tail -n 1)
      printf 'fuzz %-14s ok: %s runs, %s exec/s, corpus %s (inputs/bytes)\n' "$name" "$runs" "$execs" "$corp"
    else
      echo "fuzz $name FAILED; log: $out/$name.log"
      tail -n 40 "$out/$name.log"
      failed=1
    fi
  done
  return $failed
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
    build_sanitized
    run_sanitized_tests
    run_fuzzers "${QOR_FUZZ_SECONDS:-10}"
    ;;
  sanitize)
    install_missing
    build_sanitized
    run_sanitized_tests
    ;;
  fuzz)
    install_missing
    build_sanitized
    run_fuzzers "${1:-20}"
    ;;
  *)
    echo "usage: tools/dev.sh run|test|sanitize|fuzz [seconds]" >&2
    exit 2
    ;;
esac

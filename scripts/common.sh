# Shared by ./run, ./test and .ci/run: what they say, how they fail, and how they set up what is missing.
# shellcheck shell=bash

project_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '== %s\n' "$*"; }
fail() { printf 'FAILED: %s\n' "$*" >&2; exit 1; }

build_packages=(g++ cmake ninja-build ccache qtbase5-dev qttools5-dev qttools5-dev-tools python3-markdown)
# shellcheck disable=SC2034 # used by the scripts that read this one
window_packages=(fonts-noto-cjk libfaketime qttranslations5-l10n)
demo_packages=(fonts-noto-cjk xvfb xdotool openbox)
check_packages=(clang-format clang-tidy desktop-file-utils appstream libxml2-utils man-db)
fuzz_packages=(clang libclang-rt-14-dev)
# shellcheck disable=SC2034
bench_packages=(libbenchmark-dev libqcustomplot-dev libqwt-qt5-dev)

# need_packages NAME...: installs the Debian packages that are missing.
need_packages() {
  command -v dpkg-query >/dev/null || fail "this is not Debian; install what these Debian packages hold, then set NELVO_NO_SETUP=1: $*"
  local missing=() name
  for name in "$@"; do
    dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q '^install ok installed$' || missing+=("$name")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "packages are missing and there is no sudo; as root, run: apt-get install ${missing[*]}"
    as_root=(sudo)
  fi
  say "installing ${missing[*]}"
  local log
  log=$(mktemp)
  if ! { "${as_root[@]}" apt-get update && "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1 </dev/null; then
    tail -n 5 "$log" >&2
    fail "Debian's packages could not be installed (whole log: $log); mend the cause, then run this again"
  fi
  rm -f "$log"
}

# set_up NAME...: need_packages, unless the one who runs this looks after the packages.
set_up() {
  [ "${NELVO_NO_SETUP:-}" = 1 ] || need_packages "$@"
}

# build_preset PRESET [TARGET...]: configures and builds build/PRESET.
build_preset() {
  local preset=$1
  shift
  say "configuring build/$preset"
  (cd "$project_root" && cmake --preset "$preset" >"$project_root/build-$preset.log" 2>&1) || {
    tail -n 20 "$project_root/build-$preset.log" >&2
    fail "CMake could not configure; the whole log is build-$preset.log"
  }
  rm -f "$project_root/build-$preset.log"
  say "building build/$preset"
  local targets=()
  [ $# -gt 0 ] && targets=(--target "$@")
  (cd "$project_root" && cmake --build --preset "$preset" "${targets[@]}") ||
    fail "the build stopped; the compiler's message above says where"
}

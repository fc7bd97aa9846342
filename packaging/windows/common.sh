# Shared by the scripts beside it. Needs `here`, the folder of the script that reads it.
# shellcheck shell=bash

# shellcheck source=scripts/common.sh
. "$here/../../scripts/common.sh"

cache=${NELVO_CACHE:-$HOME/.cache/nelvo}

# shellcheck disable=SC2034 # used by the scripts that read this one
windows_packages=("${build_packages[@]}" "${window_packages[@]}" g++-mingw-w64-x86-64-posix gcc-mingw-w64-x86-64-posix dpkg-dev make perl nsis
  wine64 locales "${demo_packages[@]}")

qt_version() { dpkg-query -W -f='${source:Version}' qtbase5-dev; }

# qt_prefix: where the Qt for Windows lies, by what it is made from and with.
qt_prefix() {
  local made_with
  made_with=$({ cat "$here/qt-options"; x86_64-w64-mingw32-g++-posix -dumpfullversion; } | sha256sum | cut -c 1-8)
  printf '%s/qt-win64-%s-%s' "$cache" "$(qt_version)" "$made_with"
}

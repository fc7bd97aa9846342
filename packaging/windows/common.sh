# Shared by the scripts beside it. Needs `here`, the folder of the script that reads it.
# shellcheck shell=bash

# shellcheck source=scripts/common.sh
. "$here/../../scripts/common.sh"

cache=${NELVO_CACHE:-$HOME/.cache/nelvo}

# qt_prefix VERSION: where the Qt for Windows of that Debian version lies, by what it is made of and with.
qt_prefix() {
  local made_with
  made_with=$({ cat "$here/qt-options"; x86_64-w64-mingw32-g++-posix -dumpfullversion; } | sha256sum | cut -c 1-8)
  printf '%s/qt-win64-%s-%s' "$cache" "$1" "$made_with"
}

# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

# Shell functions that make this machine ready, for `run` and `test`, which set `root` to the folder
# of the tree before they read this file.

say() { printf '%s\n' "$*" >&2; }

# listed_packages run|test|package: what packages.txt names for it. The tests and the package need
# what the program needs.
listed_packages() {
  while read -r use name _; do
    case $use in
      run) printf '%s ' "$name" ;;
      test | package) [ "$1" != "$use" ] || printf '%s ' "$name" ;;
    esac
  done <"$root/cmake/packages.txt"
}

# missing_packages run|test: those of them that are not installed. One question to dpkg for all, for
# it is asked at each start.
missing_packages() {
  names=$(listed_packages "$1")
  # shellcheck disable=SC2016,SC2086  # the fields are dpkg's, and the names have no blanks
  installed=" $(dpkg-query -W -f='${Package}=${db:Status-Status} ' $names 2>/dev/null)" || true
  for name in $names; do
    case $installed in
      *" $name=installed "*) ;;
      *) printf '%s ' "$name" ;;
    esac
  done
}

# require_packages run|test: installs what is missing; fails, and says what to do, when it cannot.
require_packages() {
  if ! command -v dpkg-query >/dev/null; then
    say "This is not Debian: the libraries that cmake/packages.txt names must be there already."
    return 0
  fi
  missing=$(missing_packages "$1")
  missing=${missing% }
  [ -n "$missing" ] || return 0

  as_root=
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      say "Some packages are missing, and installing them needs root. Ask for:"
      say "  apt-get install --no-install-recommends $missing"
      return 1
    fi
    as_root=sudo
  fi
  say "Installing what is missing: $missing"
  # A source that cannot be reached need not be one that is needed.
  $as_root apt-get -qq update || true
  # shellcheck disable=SC2086  # the names have no blanks
  if ! $as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get -qq install -y --no-install-recommends $missing >&2; then
    say "The packages could not be installed. Try this, and then again:"
    say "  ${as_root:+$as_root }apt-get install --no-install-recommends $missing"
    return 1
  fi
}

# build PRESET [-DNAME=VALUE...]: builds what has changed in build/PRESET, which it configures, with
# the values given, if that was never done or the presets have changed since.
build() {
  preset=$1
  shift
  folder=$root/build/$preset
  if [ ! -f "$folder/build.ninja" ] ||
    ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$folder/CMakeCache.txt"; then
    # New, or moved here from another folder, which makes what was built useless.
    configure "$preset" --fresh "$@" || return 1
  elif [ "$root/CMakePresets.json" -nt "$folder/build.ninja" ]; then
    configure "$preset" --fresh "$@" || return 1
  fi
  say "Building $preset ..."
  quiet=--quiet
  [ ! -t 2 ] || quiet=
  # shellcheck disable=SC2086  # nothing at all when it is empty
  NINJA_STATUS="[%f/%t] " ninja -C "$folder" $quiet >&2
}

# configure PRESET [argument of cmake...]: tells what cmake said only when it failed.
configure() {
  preset=$1
  shift
  say "Getting the $preset build ready ..."
  mkdir -p "$root/build"
  log=$root/build/configure-$preset.log
  if ! (cd "$root" && cmake --preset "$preset" "$@") >"$log" 2>&1; then
    cat "$log" >&2
    return 1
  fi
}

# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

# prepare_test.sh ROOT: tries what `run` does about packages on machines that are made up here: their
# dpkg-query, id, sudo and apt-get come from a folder of our own and only write down their calls.
set -eu
unset DEBIAN_FRONTEND

real_root=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

root="$scratch/a tree"
bin=$scratch/bin
calls=$scratch/calls
mkdir -p "$root/cmake" "$bin"
cp "$real_root/cmake/prepare.sh" "$root/cmake/"
printf '# a comment\nrun   alpha  needed\nrun   beta   needed\ntest  gamma  for the tests\npackage delta wraps it\n' \
  >"$root/cmake/packages.txt"
sh=$(command -v sh)
env=$(command -v env)

fail() {
  printf 'FAILED: %s\n' "$*" >&2
  exit 1
}

# command_of_machine NAME LINE...: a command of the made-up machine.
command_of_machine() {
  name=$1
  shift
  { printf '#!%s\n' "$sh" && printf '%s\n' "$@"; } >"$bin/$name"
  chmod +x "$bin/$name"
}

# machine UID INSTALLED: a machine of this user with these packages, without sudo.
machine() {
  rm -f "$bin"/* "$calls"
  : >"$calls"
  ln -s "$env" "$bin/env"
  command_of_machine id "echo $1"
  command_of_machine dpkg-query "echo dpkg-query >>'$calls'" "printf '%s' '$2'" "exit 1"
  command_of_machine apt-get \
    "echo \"apt-get \$* (\${DEBIAN_FRONTEND:-})\" >>'$calls'"
}

# require USE: the answer to it, on standard error, is kept in $said.
require() {
  status=0
  said=$(PATH=$bin "$sh" -euc 'root=$1; . "$root/cmake/prepare.sh"; require_packages "$2"' \
    sh "$root" "$1" 2>&1) || status=$?
}

expect_calls() {
  printf '%s\n' "$@" >"$scratch/expected"
  diff "$scratch/expected" "$calls" >&2 || fail "other calls were made than expected"
}

all_installed='alpha=installed beta=installed gamma=installed '

machine 0 "$all_installed"
require test
[ "$status" -eq 0 ] || fail "with all packages there nothing can fail: $said"
[ -z "$said" ] || fail "with all packages there nothing is to be said: $said"
expect_calls dpkg-query

machine 0 'alpha=installed beta=config-files '
require run
[ "$status" -eq 0 ] || fail "root can install: $said"
case $said in *"missing: beta"*) ;; *) fail "what is installed is told: $said" ;; esac
expect_calls dpkg-query 'apt-get -qq update ()' \
  'apt-get -qq install -y --no-install-recommends beta (noninteractive)'

machine 0 'alpha=installed beta=installed '
require test
expect_calls dpkg-query 'apt-get -qq update ()' \
  'apt-get -qq install -y --no-install-recommends gamma (noninteractive)'

machine 0 "$all_installed"
require package
expect_calls dpkg-query 'apt-get -qq update ()' \
  'apt-get -qq install -y --no-install-recommends delta (noninteractive)'

machine 1000 ''
command_of_machine sudo "echo sudo >>'$calls'" 'exec "$@"'
require run
[ "$status" -eq 0 ] || fail "sudo can install: $said"
expect_calls dpkg-query sudo 'apt-get -qq update ()' sudo \
  'apt-get -qq install -y --no-install-recommends alpha beta (noninteractive)'

machine 1000 ''
require run
[ "$status" -eq 1 ] || fail "nobody can install"
case $said in
  *"apt-get install --no-install-recommends alpha beta") ;;
  *) fail "the line to install with is told: $said" ;;
esac
expect_calls dpkg-query

machine 0 ''
command_of_machine apt-get 'exit 100'
require run
[ "$status" -eq 1 ] || fail "a failed installation is a failure"
case $said in
  *"apt-get install --no-install-recommends alpha beta") ;;
  *) fail "the line to install with is told: $said" ;;
esac

while read -r use name why; do
  case $use in
    '' | '#'*) continue ;;
    run | test | package)
      [ -n "$name" ] && [ -n "$why" ] || fail "packages.txt: $use $name $why"
      ;;
    *) fail "packages.txt: \"$use\" is not run, test or package" ;;
  esac
done <"$real_root/cmake/packages.txt"

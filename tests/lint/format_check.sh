# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

# format_check.sh ROOT CLANG-FORMAT: fails if a source of ours has another format than .clang-format
# says, and shows where. The check itself is tried on a badly formatted line first.
set -eu
root=$1
clang_format=$2
cd "$root"

if echo 'int   a ;' | "$clang_format" --dry-run --Werror --assume-filename=sample.cc 2>/dev/null; then
  echo "clang-format takes any format for good" >&2
  exit 1
fi
find src tests assets bench fuzz -type f \( -name '*.h' -o -name '*.cc' \) -print0 |
  xargs -0 "$clang_format" --dry-run --Werror

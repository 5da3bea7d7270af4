# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

# Link to `warnings` for what every target of ours is compiled with.
add_library(warnings INTERFACE)
target_compile_options(
  warnings
  INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
            -Wimplicit-fallthrough -Wswitch $<$<BOOL:${VMOD17_WERROR}>:-Werror>)

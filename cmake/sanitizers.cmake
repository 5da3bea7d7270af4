# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

if(VMOD17_SANITIZE)
  add_compile_options(-fsanitize=${VMOD17_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${VMOD17_SANITIZE})
endif()

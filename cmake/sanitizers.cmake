# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

if(VMOD17_SANITIZE)
  add_compile_options(-fsanitize=${VMOD17_SANITIZE} -fno-sanitize-recover=all
                      -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${VMOD17_SANITIZE})
  if(VMOD17_SANITIZE STREQUAL "thread")
    add_library(thread_sanitizer OBJECT ${CMAKE_CURRENT_LIST_DIR}/thread_sanitizer.cc)
    link_libraries(
      $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:$<TARGET_OBJECTS:thread_sanitizer>>)
  endif()
endif()

# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

# one_unit_a_folder(TARGET)
#
# A unity build compiles each folder of the target as one file, so that what all of its files include
# is read once. What stands in an unnamed namespace has a name of its own in its folder.
function(one_unit_a_folder target)
  get_target_property(sources ${target} SOURCES)
  foreach(source IN LISTS sources)
    get_filename_component(folder ${source} DIRECTORY)
    string(MAKE_C_IDENTIFIER "unit_${folder}" group)
    set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group})
  endforeach()
  set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
endfunction()

# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

# cmake -P Uninstall.cmake, in the build folder
#
# Removes what the last installation from there put in place, and the folders
# that have become empty by it.

set(manifest "install_manifest.txt")
if(NOT EXISTS "${manifest}")
  message(FATAL_ERROR "Nothing was installed from here: there is no ${manifest}")
endif()

file(STRINGS "${manifest}" files)
foreach(file IN LISTS files)
  set(file "$ENV{DESTDIR}${file}")
  if(EXISTS "${file}" OR IS_SYMLINK "${file}")
    file(REMOVE "${file}")
    message(STATUS "Removed ${file}")
  endif()
  # Up to the first folder that still holds something.
  cmake_path(GET file PARENT_PATH folder)
  while(IS_DIRECTORY "${folder}")
    file(GLOB left LIST_DIRECTORIES true "${folder}/*" "${folder}/.*")
    if(left)
      break()
    endif()
    file(REMOVE_RECURSE "${folder}")
    cmake_path(GET folder PARENT_PATH folder)
  endwhile()
endforeach()
file(REMOVE "${manifest}")

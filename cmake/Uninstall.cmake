# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

# cmake -P Uninstall.cmake, in the build folder
#
# Removes what the last installation from there put in place, and the folders
# that have become empty by it. Those of the system stay, empty or not.

set(manifest "install_manifest.txt")
if(NOT EXISTS "${manifest}")
  message(FATAL_ERROR "Nothing was installed from here: there is no ${manifest}")
endif()

file(STRINGS "${manifest}" files)
foreach(file IN LISTS files)
  if(EXISTS "$ENV{DESTDIR}${file}" OR IS_SYMLINK "$ENV{DESTDIR}${file}")
    file(REMOVE "$ENV{DESTDIR}${file}")
    message(STATUS "Removed $ENV{DESTDIR}${file}")
  endif()
  # Up to the first folder that still holds something.
  cmake_path(GET file PARENT_PATH folder)
  while(IS_DIRECTORY "$ENV{DESTDIR}${folder}")
    file(GLOB left LIST_DIRECTORIES true "$ENV{DESTDIR}${folder}/*" "$ENV{DESTDIR}${folder}/.*")
    if(left OR (folder MATCHES "^/usr(/local)?/" AND NOT folder MATCHES "/quillmark-[a-z-]+(/|$)"))
      break()
    endif()
    file(REMOVE_RECURSE "$ENV{DESTDIR}${folder}")
    cmake_path(GET folder PARENT_PATH folder)
  endwhile()
endforeach()
file(REMOVE "${manifest}")

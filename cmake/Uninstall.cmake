# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

# cmake -P Uninstall.cmake, in the build folder
#
# Removes the files that the last installation from the build folder
# installed, and the folders that are empty afterwards. System folders stay, even
# if empty.

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
  # Removes parents up to the first folder that is not empty.
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

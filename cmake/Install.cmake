# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

include_guard(GLOBAL)

# How things are installed. Everything belongs to a component, `panel` or
# `sample_agent`; each component becomes a package.

# Otherwise installing would build the tests.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)

# Makes the prefix absolute: some installed files and the install manifest contain it.
install(CODE "cmake_path(ABSOLUTE_PATH CMAKE_INSTALL_PREFIX NORMALIZE)" ALL_COMPONENTS)

# The bundle's folder, relative to the prefix.
set(QUILLMARK_INSTALL_HOME "lib/quillmark-agent")

# quillmark_install_link(<path> <goal> <component>): a symbolic link at a path
# below the prefix.
function(quillmark_install_link path goal component)
  cmake_path(GET path PARENT_PATH folder)
  set(link "${CMAKE_BINARY_DIR}/installed/${path}")
  file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/installed/${folder}")
  file(CREATE_LINK "${goal}" "${link}" SYMBOLIC)
  install(FILES "${link}" DESTINATION "${folder}" COMPONENT ${component})
endfunction()

# quillmark_install_template(<file>.in <folder> <component>): a file that
# contains paths below the prefix. Filled in during installation, because the
# prefix is known only then.
function(quillmark_install_template template folder component)
  cmake_path(GET template STEM LAST_ONLY name)
  install(
    CODE "
      set(QUILLMARK_LAUNCH \"\${CMAKE_INSTALL_PREFIX}/${QUILLMARK_INSTALL_HOME}/launch\")
      if(QUILLMARK_LAUNCH MATCHES \"[^A-Za-z0-9/._+@-]\")
        set(QUILLMARK_LAUNCH \"\\\"\${QUILLMARK_LAUNCH}\\\"\")
      endif()
      configure_file(\"${CMAKE_CURRENT_SOURCE_DIR}/${template}\"
                     \"${CMAKE_BINARY_DIR}/installed/${name}\" @ONLY)
      file(INSTALL DESTINATION \"\${CMAKE_INSTALL_PREFIX}/${folder}\" TYPE FILE
           FILES \"${CMAKE_BINARY_DIR}/installed/${name}\")"
    COMPONENT ${component})
endfunction()

# quillmark_install_compressed(<file> <folder> <component>): as <file>.gz,
# rebuilt when the file changes; the same file always gives the same bytes.
function(quillmark_install_compressed file folder component)
  cmake_path(ABSOLUTE_PATH file)
  cmake_path(GET file FILENAME name)
  set(compressed "${CMAKE_CURRENT_BINARY_DIR}/${component}/${name}.gz")
  file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/${component}")
  add_custom_command(
    OUTPUT "${compressed}"
    COMMAND gzip --best --no-name --stdout "${file}" > "${compressed}"
    DEPENDS "${file}"
    VERBATIM)
  quillmark_installed_file("${compressed}")
  install(FILES "${compressed}" DESTINATION "${folder}" COMPONENT ${component})
endfunction()

# Builds everything that is installed.
add_custom_target(quillmark_installed ALL)

# quillmark_installed_file(<file>...): files to install that a custom command of
# this folder creates.
function(quillmark_installed_file)
  string(SHA1 name "${ARGN}")
  string(SUBSTRING "${name}" 0 12 name)
  add_custom_target(quillmark_installed_${name} DEPENDS ${ARGN})
  add_dependencies(quillmark_installed quillmark_installed_${name})
endfunction()

add_custom_target(
  uninstall
  COMMAND ${CMAKE_COMMAND} -P "${CMAKE_CURRENT_LIST_DIR}/Uninstall.cmake"
  WORKING_DIRECTORY "${CMAKE_BINARY_DIR}"
  VERBATIM)

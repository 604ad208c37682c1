# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

include(Install)

# The application bundle: both programs are in the same folder of it, because
# the panel starts the agent from its own folder.
set(QUILLMARK_BUNDLE_PROGRAMS "QuillmarkAgent.app/Contents/MacOS")

# quillmark_bundle_program(<target> <file name> <component> [COMMAND <file>])
#
# Adds a program to the bundle, and a link in bin/ to it, or to the file in the
# bundle's folder that starts it.
function(quillmark_bundle_program target output_name component)
  cmake_parse_arguments(PARSE_ARGV 3 arg "" "COMMAND" "")
  set_target_properties(
    ${target}
    PROPERTIES OUTPUT_NAME ${output_name}
               RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/${QUILLMARK_BUNDLE_PROGRAMS}")
  add_dependencies(quillmark_installed ${target})
  install(TARGETS ${target} RUNTIME DESTINATION "${QUILLMARK_INSTALL_HOME}/${QUILLMARK_BUNDLE_PROGRAMS}"
          COMPONENT ${component})
  if(NOT arg_COMMAND)
    set(arg_COMMAND "${QUILLMARK_BUNDLE_PROGRAMS}/${output_name}")
  endif()
  quillmark_install_link("bin/${output_name}" "../${QUILLMARK_INSTALL_HOME}/${arg_COMMAND}"
                         ${component})
endfunction()

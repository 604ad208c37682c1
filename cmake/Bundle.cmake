# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

include(Install)

# The application bundle: both programs are in the same folder of it, because
# the panel starts the agent from its own folder.
set(QUILLMARK_BUNDLE_PROGRAMS "QuillmarkAgent.app/Contents/MacOS")

# quillmark_bundle_program(<target> <file name> [<component>])
#
# Adds a program to the bundle, and a link to it in
# bin/. The component defaults to `panel`.
function(quillmark_bundle_program target output_name)
  set(component panel)
  if(ARGC GREATER 2)
    set(component ${ARGV2})
  endif()
  set_target_properties(
    ${target}
    PROPERTIES OUTPUT_NAME ${output_name}
               RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/${QUILLMARK_BUNDLE_PROGRAMS}")
  add_dependencies(quillmark_installed ${target})
  set(programs "${QUILLMARK_INSTALL_HOME}/${QUILLMARK_BUNDLE_PROGRAMS}")
  install(TARGETS ${target} RUNTIME DESTINATION "${programs}" COMPONENT ${component})
  quillmark_install_link("bin/${output_name}" "../${programs}/${output_name}" ${component})
endfunction()

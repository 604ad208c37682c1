# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The application bundle: both programs lie side by side in it, because the
# panel starts the agent from its own folder.
set(QUILLMARK_BUNDLE_PROGRAMS "QuillmarkAgent.app/Contents/MacOS")

# quillmark_bundle_program(<target> <file name>)
function(quillmark_bundle_program target output_name)
  set_target_properties(
    ${target}
    PROPERTIES OUTPUT_NAME ${output_name}
               RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/${QUILLMARK_BUNDLE_PROGRAMS}")
endfunction()

# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Strips what CPack would strip, and the compilers' version notes, too.

find_program(STRIP strip REQUIRED)
file(GLOB programs "${CPACK_TEMPORARY_DIRECTORY}/*/usr/lib/quillmark-agent/*/Contents/MacOS/*")
if(NOT programs)
  message(FATAL_ERROR "No programs to strip below ${CPACK_TEMPORARY_DIRECTORY}")
endif()
execute_process(COMMAND "${STRIP}" --remove-section=.comment --remove-section=.note ${programs}
                        COMMAND_ERROR_IS_FATAL ANY)

# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

include_guard(GLOBAL)

# How libraries that use Qt are built: one QML module each.

set(QUILLMARK_QML_PREFIX "/qt/qml")
# All of the panel's QML libraries, for programs that show its window.
set(QUILLMARK_QML_LIBRARIES quillmark_viewmodel quillmark_controls quillmark_views quillmark_main)

# quillmark_qml_library(<name> URI <uri> [DEPENDENCIES <uri>...] [SOURCES <file>...]
#                       [QML_FILES <file>...])
#
# A static library that is also a QML module. A target that links <name> also
# needs <name>plugin, which `quillmark_use_qml` links.
function(quillmark_qml_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "URI" "DEPENDENCIES;SOURCES;QML_FILES")
  string(REPLACE "." "/" path "${arg_URI}")
  qt_add_library(${name} STATIC)
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  if(Qt6_VERSION VERSION_LESS 6.8)
    # Its C++ code declares variables in another order each time, so the same sources
    # would give other programs. Its byte code is always the same.
    set_target_properties(${name} PROPERTIES QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
  endif()
  qt_add_qml_module(
    ${name}
    URI ${arg_URI}
    VERSION 1.0
    RESOURCE_PREFIX ${QUILLMARK_QML_PREFIX}
    OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/qml/${path}"
    IMPORT_PATH "${CMAKE_BINARY_DIR}/qml"
    DEPENDENCIES ${arg_DEPENDENCIES}
    SOURCES ${arg_SOURCES}
    QML_FILES ${arg_QML_FILES})
  quillmark_configure(${name})
  if(Qt6_VERSION VERSION_GREATER_EQUAL 6.8)
    # Code that Qt generates from QML causes warnings. A file with options of its own is no
    # part of a unity build, which byte code alone makes much shorter.
    get_target_property(generated ${name} SOURCES)
    list(FILTER generated INCLUDE REGEX "/\\.rcc/|_qmltyperegistrations\\.cpp$")
    set_source_files_properties(${generated} PROPERTIES COMPILE_OPTIONS "-w")
  endif()
  target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
  target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                             QT_NO_KEYWORDS)
endfunction()

# quillmark_use_qml(<target> <qml library>...): links QML libraries so that
# their types and files are available at run time.
function(quillmark_use_qml target)
  foreach(library IN LISTS ARGN)
    target_link_libraries(${target} PRIVATE ${library} ${library}plugin)
  endforeach()
endfunction()

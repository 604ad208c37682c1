# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

# How every target of this project is compiled: it gets the common flags from
# `quillmark_library` or by linking `quillmark_options`.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_SCAN_FOR_MODULES OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release)
endif()

include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
include(Hardening)

add_library(quillmark_options INTERFACE)
target_compile_options(
  quillmark_options
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wsign-conversion
            -Woverloaded-virtual
            -Wcast-align
            -Wformat=2
            -Wimplicit-fallthrough)

if(CMAKE_UNITY_BUILD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Where several files are compiled as one, it takes what is private to a file for a
  # mistake in a header.
  target_compile_options(quillmark_options INTERFACE -Wno-subobject-linkage)
endif()

if(QUILLMARK_SANITIZE)
  target_compile_options(
    quillmark_options INTERFACE -fsanitize=${QUILLMARK_SANITIZE} -fno-omit-frame-pointer
                                -fno-sanitize-recover=all
                                # Clang 14 cannot split a coroutine that this check instruments.
                                $<$<CXX_COMPILER_ID:Clang>:-fno-sanitize=function>
                                # GCC 12 takes Asio's own memory for coroutines for a mistake.
                                $<$<CXX_COMPILER_ID:GNU>:-Wno-mismatched-new-delete>)
  if(QUILLMARK_SANITIZE STREQUAL "thread")
    # ThreadSanitizer supports atomic operations, but not fences.
    target_compile_definitions(
      quillmark_options INTERFACE BOOST_ASIO_DISABLE_STD_ATOMIC BOOST_AC_USE_STD_ATOMIC
                                  BOOST_ASIO_DISABLE_FENCED_BLOCK)
  endif()
  target_link_options(quillmark_options INTERFACE -fsanitize=${QUILLMARK_SANITIZE})
else()
  quillmark_harden(quillmark_options)
  target_link_options(quillmark_options INTERFACE -Wl,--as-needed)
endif()

if(QUILLMARK_COVERAGE)
  # Without atomic updates, concurrent threads lose counts or make them negative.
  target_compile_options(quillmark_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(quillmark_options INTERFACE --coverage)
endif()

# quillmark_library(<name> <file>...): a static library that sees the
# TovelAgent folder as its include root ("model/AgentStatus.h").
function(quillmark_library name)
  add_library(${name} STATIC ${ARGN})
  quillmark_configure(${name})
endfunction()

# quillmark_configure(<name>): the common settings, for a library that another
# function created.
function(quillmark_configure name)
  target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/TovelAgent")
  target_link_libraries(${name} PRIVATE quillmark_options)
endfunction()

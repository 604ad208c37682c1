# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

include_guard(GLOBAL)

# How tests are registered. ctest knows every test program and, by their own
# names, all cases of the C++ ones. `test` runs the programs, because starting one
# program per case costs a minute; they write their results to
# test-results/<name>.xml, for the final count. ctest with a preset runs the cases.
#
# `test` runs ctest with 16 places (parallel slots) per core. A test that computes
# takes 6, not 16, because at times it waits; one that drives a panel takes 2, one
# that mostly waits takes 1. All tests have the same time limit, which is set in
# `test` and ends a test that hangs.

find_package(GTest REQUIRED)
include(GoogleTest)

set(QUILLMARK_PLACES_TO_COMPUTE 6)
set(QUILLMARK_SANDBOX "${PROJECT_SOURCE_DIR}/tests/support/sandbox")
set(QUILLMARK_TEST_RESULTS "${CMAKE_BINARY_DIR}/test-results")
file(MAKE_DIRECTORY "${QUILLMARK_TEST_RESULTS}")

# The prefix of every test's command.
set(QUILLMARK_LAUNCHER env "QUILLMARK_BUILD_DIR=${CMAKE_BINARY_DIR}")
if(QUILLMARK_SANITIZE AND QUILLMARK_GUI)
  # Qt and the libraries below it never free some objects. Leaks are detected in
  # the core's build, which does not use them.
  list(APPEND QUILLMARK_LAUNCHER "ASAN_OPTIONS=detect_leaks=0")
endif()
set(QUILLMARK_DIRECT_LAUNCHER ${QUILLMARK_LAUNCHER})
if(NOT QUILLMARK_SANITIZE)
  # The sandbox does the same for its tests. A sanitizer reports crashes itself.
  list(APPEND QUILLMARK_DIRECT_LAUNCHER "QUILLMARK_CRASH_FOLDER=${QUILLMARK_TEST_RESULTS}"
       "LD_PRELOAD=${CMAKE_BINARY_DIR}/tests/support/crash/libcrash_reporter.so")
endif()

# quillmark_test(<name> <places> <command>...): a test inside the sandbox.
function(quillmark_test name places)
  set(name "${QUILLMARK_TEST_PREFIX}${name}")
  add_test(NAME ${name} COMMAND ${QUILLMARK_LAUNCHER} "${QUILLMARK_SANDBOX}" ${ARGN})
  set_tests_properties(${name} PROPERTIES PROCESSORS ${places})
endfunction()

# quillmark_gtest(<target> <file>... LIBRARIES <library>... [SANDBOX | AS_USER]
#                 [PLACES <number>])
#
# SANDBOX is for tests that need the real port, token paths or processes;
# AS_USER runs there as an ordinary user, because root ignores file modes.
function(quillmark_gtest target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "SANDBOX;AS_USER" "PLACES" "LIBRARIES")
  add_executable(${target} ${arg_UNPARSED_ARGUMENTS})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${target} PRIVATE quillmark_options ${arg_LIBRARIES} GTest::gtest_main)
  # Only the code under test is optimised: this halves the build time.
  target_compile_options(${target} PRIVATE -O0 -U_FORTIFY_SOURCE)

  if(NOT arg_PLACES)
    set(arg_PLACES ${QUILLMARK_PLACES_TO_COMPUTE})
  endif()
  if(arg_AS_USER)
    set(launcher ${QUILLMARK_LAUNCHER} ${QUILLMARK_SANDBOX} --as-user)
  elseif(arg_SANDBOX)
    set(launcher ${QUILLMARK_LAUNCHER} ${QUILLMARK_SANDBOX})
  else()
    set(launcher ${QUILLMARK_DIRECT_LAUNCHER})
  endif()

  set(name "${QUILLMARK_TEST_PREFIX}${target}")
  add_test(NAME ${name} COMMAND ${launcher} $<TARGET_FILE:${target}>
                                "--gtest_output=xml:${QUILLMARK_TEST_RESULTS}/${name}.xml")
  set_tests_properties(${name} PROPERTIES PROCESSORS ${arg_PLACES} LABELS program)

  # CMake uses the first property before 3.29, the second one since then.
  set_target_properties(${target} PROPERTIES CROSSCOMPILING_EMULATOR "${launcher}"
                                             TEST_LAUNCHER "${launcher}")
  set(prefix "")
  if(QUILLMARK_TEST_PREFIX)
    set(prefix TEST_PREFIX "${QUILLMARK_TEST_PREFIX}")
  endif()
  # CMake 4 lets the program write its list of cases here; the rest of the build folder is
  # read-only in the sandbox.
  gtest_discover_tests(
    ${target}
    ${prefix}
    WORKING_DIRECTORY "${QUILLMARK_TEST_RESULTS}"
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 600
    PROPERTIES PROCESSORS ${arg_PLACES} LABELS case)
endfunction()

# quillmark_pytest(<name> <places> <file> [<word>...]): a file of Python tests.
# The words come before it on the sandbox's command line.
function(quillmark_pytest name places file)
  quillmark_test(
    ${name}
    ${places}
    ${ARGN}
    /usr/bin/python3
    -m
    pytest
    --quiet
    -p
    no:cacheprovider
    "--junitxml=${QUILLMARK_TEST_RESULTS}/${QUILLMARK_TEST_PREFIX}${name}.xml"
    "${CMAKE_CURRENT_SOURCE_DIR}/${file}")
endfunction()

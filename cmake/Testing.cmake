# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

include_guard(GLOBAL)

# How tests are registered. ctest knows every program of tests and, by their own
# names, all cases of the C++ ones. `test` runs the programs, because starting one
# for each case costs a minute; these write what they ran to
# test-results/<name>.xml, for the closing count. Whoever calls ctest with a
# preset runs the cases.
#
# `test` gives ctest twelve places for each core. A test that computes takes six,
# for now and then it waits, too; one that works a panel takes two, one that waits
# most of the time one. The time a test may take is one for all and stands in
# `test`: it ends what hangs.

find_package(GTest REQUIRED)
include(GoogleTest)

set(QUILLMARK_PLACES_TO_COMPUTE 6)
set(QUILLMARK_SANDBOX "${PROJECT_SOURCE_DIR}/tests/support/sandbox")
set(QUILLMARK_TEST_RESULTS "${CMAKE_BINARY_DIR}/test-results")
file(MAKE_DIRECTORY "${QUILLMARK_TEST_RESULTS}")

# What every test is started with. A sanitizer tells of a crash itself.
set(QUILLMARK_LAUNCHER env "QUILLMARK_BUILD_DIR=${CMAKE_BINARY_DIR}")
if(QUILLMARK_SANITIZE AND QUILLMARK_GUI)
  # Qt and the libraries below it keep for good what they made once. Leaks are
  # looked for in the core, without them.
  list(APPEND QUILLMARK_LAUNCHER "ASAN_OPTIONS=detect_leaks=0")
endif()
set(QUILLMARK_DIRECT_LAUNCHER ${QUILLMARK_LAUNCHER})
if(NOT QUILLMARK_SANITIZE)
  # As the sandbox does for what runs in there.
  list(APPEND QUILLMARK_DIRECT_LAUNCHER "QUILLMARK_CRASH_FOLDER=${QUILLMARK_TEST_RESULTS}"
       "LD_PRELOAD=${CMAKE_BINARY_DIR}/tests/support/libcrash_reporter.so")
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
# AS_USER runs there as an ordinary user: for root file modes do not count.
function(quillmark_gtest target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "SANDBOX;AS_USER" "PLACES" "LIBRARIES")
  add_executable(${target} ${arg_UNPARSED_ARGUMENTS})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${target} PRIVATE quillmark_options ${arg_LIBRARIES} GTest::gtest_main)
  # Only the code under test is worth optimising: it halves the build.
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

  # The first name is CMake's before 3.29, the second one's since.
  set_target_properties(${target} PROPERTIES CROSSCOMPILING_EMULATOR "${launcher}"
                                             TEST_LAUNCHER "${launcher}")
  gtest_discover_tests(
    ${target}
    TEST_PREFIX "${QUILLMARK_TEST_PREFIX}"
    DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 600
    PROPERTIES PROCESSORS ${arg_PLACES} LABELS case)
endfunction()

# quillmark_pytest(<name> <places> <file> [<word>...]): a file of tests in Python,
# behind what words of the sandbox's command line are given.
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

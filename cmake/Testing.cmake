# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

include_guard(GLOBAL)

# How tests are registered. Each writes what it ran to
# test-results/<name>.xml, from which the closing count is made.

find_package(GTest REQUIRED)

set(QUILLMARK_SANDBOX "${PROJECT_SOURCE_DIR}/tests/support/sandbox")
set(QUILLMARK_TEST_RESULTS "${CMAKE_BINARY_DIR}/test-results")
file(MAKE_DIRECTORY "${QUILLMARK_TEST_RESULTS}")

# quillmark_test(<name> <seconds> <command>...): a test inside the sandbox.
function(quillmark_test name seconds)
  add_test(NAME ${name} COMMAND "${QUILLMARK_SANDBOX}" ${ARGN})
  set_tests_properties(
    ${name} PROPERTIES TIMEOUT ${seconds} ENVIRONMENT "QUILLMARK_BUILD_DIR=${CMAKE_BINARY_DIR}")
endfunction()

# quillmark_gtest(<target> <file>... LIBRARIES <library>... [SANDBOX | AS_USER])
#
# SANDBOX is for tests that need the real port, token paths or processes;
# AS_USER runs there as an ordinary user: for root file modes do not count.
function(quillmark_gtest target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "SANDBOX;AS_USER" "" "LIBRARIES")
  add_executable(${target} ${arg_UNPARSED_ARGUMENTS})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${target} PRIVATE quillmark_options ${arg_LIBRARIES} GTest::gtest_main)
  # Only the code under test is worth optimising: it halves the build.
  target_compile_options(${target} PRIVATE -O0 -U_FORTIFY_SOURCE)

  # Against hanging, and enough under a sanitizer.
  set(patience 400)
  set(command $<TARGET_FILE:${target}>
              "--gtest_output=xml:${QUILLMARK_TEST_RESULTS}/${target}.xml")
  if(arg_AS_USER)
    quillmark_test(${target} ${patience} --as-user ${command})
  elseif(arg_SANDBOX)
    quillmark_test(${target} ${patience} ${command})
  else()
    add_test(NAME ${target} COMMAND ${command})
    set_tests_properties(${target} PROPERTIES TIMEOUT ${patience})
  endif()
endfunction()

# quillmark_pytest(<name> <file> [<word>...]): a file of tests in Python, behind
# what words of the sandbox's command line are given.
function(quillmark_pytest name file)
  quillmark_test(
    ${name}
    300
    ${ARGN}
    /usr/bin/python3
    -m
    pytest
    --quiet
    -p
    no:cacheprovider
    "--junitxml=${QUILLMARK_TEST_RESULTS}/${name}.xml"
    "${CMAKE_CURRENT_SOURCE_DIR}/${file}")
endfunction()

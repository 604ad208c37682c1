# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

include_guard(GLOBAL)

# quillmark_gtest_as_user(<target> <file>... LIBRARIES <library>...)
#
# Like quillmark_gtest in the sandbox, but run as an ordinary user: for root
# file modes do not count.
function(quillmark_gtest_as_user target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBRARIES")
  add_executable(${target} ${arg_UNPARSED_ARGUMENTS})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${target} PRIVATE quillmark_options ${arg_LIBRARIES} GTest::gtest_main)
  quillmark_test(${target} 180 --as-user $<TARGET_FILE:${target}>
                 "--gtest_output=xml:${QUILLMARK_TEST_RESULTS}/${target}.xml")
endfunction()

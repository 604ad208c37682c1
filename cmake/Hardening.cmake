# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later

include_guard(GLOBAL)

# The protections against exploits. These options come after those of
# CMAKE_CXX_FLAGS on the command line and would replace them, so each one is added
# only if whoever builds did not choose its value: a distribution's stronger value
# stays.

include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CMakePushCheckState)

# Protects jumps and returns, on processors that support it.
check_cxx_compiler_flag(-fcf-protection=full QUILLMARK_HAS_CF_PROTECTION)

string(TOUPPER "${CMAKE_BUILD_TYPE}" build_type)
set(QUILLMARK_GIVEN_FLAGS "${CMAKE_CXX_FLAGS} ${CMAKE_CXX_FLAGS_${build_type}}")

# quillmark_defines(<macro> <variable>): whether the compiler or the flags define a
# macro. Some compilers define _FORTIFY_SOURCE themselves, but only to optimise.
function(quillmark_defines macro variable)
  cmake_push_check_state()
  set(CMAKE_REQUIRED_FLAGS "${QUILLMARK_GIVEN_FLAGS} -O2")
  check_cxx_source_compiles(
    "#ifndef ${macro}\n#error undefined\n#endif\nint main() { return 0; }" ${variable})
  cmake_pop_check_state()
endfunction()

# quillmark_harden(<interface library>): for all that link it.
function(quillmark_harden target)
  if(NOT QUILLMARK_GIVEN_FLAGS MATCHES "-f(no-)?stack-protector")
    target_compile_options(${target} INTERFACE -fstack-protector-strong)
  endif()
  if(QUILLMARK_HAS_CF_PROTECTION AND NOT QUILLMARK_GIVEN_FLAGS MATCHES "-fcf-protection")
    target_compile_options(${target} INTERFACE -fcf-protection=full)
  endif()
  quillmark_defines(_GLIBCXX_ASSERTIONS QUILLMARK_ASSERTIONS_GIVEN)
  if(NOT QUILLMARK_ASSERTIONS_GIVEN)
    target_compile_definitions(${target} INTERFACE _GLIBCXX_ASSERTIONS)
  endif()
  quillmark_defines(_FORTIFY_SOURCE QUILLMARK_FORTIFY_GIVEN)
  if(NOT QUILLMARK_FORTIFY_GIVEN)
    # It needs an optimised build.
    target_compile_definitions(${target} INTERFACE $<$<CONFIG:Release>:_FORTIFY_SOURCE=2>)
  endif()
  target_link_options(${target} INTERFACE -Wl,-z,relro,-z,now)
endfunction()

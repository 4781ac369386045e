# Rounding is part of the results: no fused operations, whatever the processor offers, and strict ISO
# C++, since GCC allows excess precision with its extensions.
if(MSVC)
  set(SORVIK_OPTIONS /fp:strict)
  set(warnings /W4)
  set(warningsAreErrors /WX)
else()
  set(SORVIK_OPTIONS -ffp-contract=off)
  set(warnings -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wdouble-promotion
    $<$<CXX_COMPILER_ID:Clang,AppleClang>:-Wdocumentation>)
  set(warningsAreErrors -Werror)
endif()
if(SORVIK_WARNINGS)
  list(APPEND SORVIK_OPTIONS ${warnings})
endif()
# Files that are compiled as one hide nothing from each other.
if(CMAKE_UNITY_BUILD AND NOT MSVC)
  list(APPEND SORVIK_OPTIONS -Wno-shadow)
endif()
if(SORVIK_WERROR)
  list(APPEND SORVIK_OPTIONS ${warningsAreErrors})
endif()
if(NOT CMAKE_CXX_STANDARD)
  set(CMAKE_CXX_STANDARD 17)
endif()
set(CMAKE_CXX_EXTENSIONS OFF)

# Compiles the targets with the options of the project. They do not reach who links the library.
function(sorvik_options)
  foreach(target IN LISTS ARGV)
    target_compile_options(${target} PRIVATE ${SORVIK_OPTIONS})
  endforeach()
endfunction()

# sorvik_speed_options(FILE... OPTIONS OPTION...): what these files of the library gain from where
# Release is built for speed.
function(sorvik_speed_options)
  cmake_parse_arguments(PARSE_ARGV 0 speed "" "" OPTIONS)
  if(NOT MSVC AND CMAKE_CXX_FLAGS_RELEASE MATCHES "-O[23]")
    set_source_files_properties(${speed_UNPARSED_ARGUMENTS} TARGET_DIRECTORY sorvik PROPERTIES
      COMPILE_OPTIONS "$<$<CONFIG:Release>:${speed_OPTIONS}>")
  endif()
endfunction()

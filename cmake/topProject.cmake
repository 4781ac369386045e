# Defaults for a build of this project by itself. A project that adds it as a folder has its own.
set(SORVIK_IS_TOP OFF)
if(CMAKE_SOURCE_DIR STREQUAL CMAKE_CURRENT_SOURCE_DIR)
  set(SORVIK_IS_TOP ON)
  get_property(isMultiConfig GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
  if(NOT isMultiConfig AND NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Debug, Release or RelWithDebInfo" FORCE)
  endif()
  # Stands before project(), which would set -O3. The sources that gain from more have it of their own.
  set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG" CACHE STRING "Flags of Release builds")
  set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
endif()

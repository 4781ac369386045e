# Targets for the header-only libraries of the programs around sorvikPre, where they are installed:
# commandLine is CLI11, jsonText is nlohmann-json.

# header_library(TARGET PACKAGE LINKED FOLDER HEADER)
function(header_library target package linked folder header)
  if(CMAKE_CROSSCOMPILING)
    # The headers are the same for every machine, but lie among headers of this one.
    set(headers ${PROJECT_BINARY_DIR}/headers)
    file(MAKE_DIRECTORY ${headers})
    if(EXISTS /usr/include/${folder}/${header})
      file(CREATE_LINK /usr/include/${folder} ${headers}/${folder} SYMBOLIC)
      add_library(${target} INTERFACE)
      target_include_directories(${target} SYSTEM INTERFACE ${headers})
    endif()
  else()
    find_package(${package} QUIET)
    if(${package}_FOUND)
      add_library(${target} INTERFACE)
      target_link_libraries(${target} INTERFACE ${linked})
    endif()
  endif()
endfunction()

header_library(commandLine CLI11 CLI11::CLI11 CLI CLI.hpp)
header_library(jsonText nlohmann_json nlohmann_json::nlohmann_json nlohmann json.hpp)

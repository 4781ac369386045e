# The program sorvikCheck, where the headers that it is made with are installed.
if(CMAKE_CROSSCOMPILING)
  # They are the same for every machine, but lie among headers of this one.
  set(headers ${PROJECT_BINARY_DIR}/headers)
  file(MAKE_DIRECTORY ${headers})
  foreach(folder IN ITEMS CLI nlohmann)
    if(EXISTS /usr/include/${folder})
      file(CREATE_LINK /usr/include/${folder} ${headers}/${folder} SYMBOLIC)
    endif()
  endforeach()
  set(libraries "")
else()
  find_package(CLI11 QUIET)
  find_package(nlohmann_json QUIET)
  set(headers "")
  set(libraries CLI11::CLI11 nlohmann_json::nlohmann_json)
endif()
if(NOT (CLI11_FOUND AND nlohmann_json_FOUND)
    AND NOT (EXISTS "${headers}/CLI/CLI.hpp" AND EXISTS "${headers}/nlohmann/json.hpp"))
  message(STATUS "sorvikCheck is left out: it needs CLI11 and nlohmann-json "
    "(on Debian libcli11-dev and nlohmann-json3-dev)")
  return()
endif()
add_executable(sorvikCheck
  src/app/check/hullCommand.cpp
  src/app/check/inputCommand.cpp
  src/app/check/jsonReport.cpp
  src/app/check/main.cpp
  src/app/check/projectCommand.cpp
  src/app/check/resultsCommand.cpp
  src/app/check/seaCommand.cpp)
sorvik_options(sorvikCheck)
target_link_libraries(sorvikCheck PRIVATE sorvik ${libraries})
target_include_directories(sorvikCheck SYSTEM PRIVATE ${headers})
target_compile_definitions(sorvikCheck PRIVATE SORVIK_VERSION="${SORVIK_VERSION}")
set_target_properties(sorvikCheck PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})

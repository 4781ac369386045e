# The program sorvikCheck, where the headers that it is made with are installed.
find_package(CLI11 QUIET)
find_package(nlohmann_json QUIET)
if(NOT CLI11_FOUND OR NOT nlohmann_json_FOUND)
  message(STATUS "sorvikCheck is left out: it needs CLI11 and nlohmann-json "
    "(on Debian libcli11-dev and nlohmann-json3-dev)")
  return()
endif()
add_executable(sorvikCheck
  src/app/check/hullCommand.cpp
  src/app/check/jsonReport.cpp
  src/app/check/main.cpp)
sorvik_options(sorvikCheck)
target_link_libraries(sorvikCheck PRIVATE sorvik CLI11::CLI11 nlohmann_json::nlohmann_json)
target_compile_definitions(sorvikCheck PRIVATE SORVIK_VERSION="${SORVIK_VERSION}")
set_target_properties(sorvikCheck PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})

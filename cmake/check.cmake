# The program sorvikCheck, where the libraries that it is made with are installed.
if(NOT TARGET commandLine OR NOT TARGET jsonText)
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
target_link_libraries(sorvikCheck PRIVATE sorvik commandLine jsonText)
target_compile_definitions(sorvikCheck PRIVATE SORVIK_VERSION="${SORVIK_VERSION}")
set_target_properties(sorvikCheck PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})

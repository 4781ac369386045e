# The program sorvikView, where three.js, which its pages carry, and CLI11 are installed.
set(SORVIK_THREE /usr/share/javascript/three CACHE PATH "Folder of three.js, release 111 or near")
set(SORVIK_THREE_LICENCE /usr/share/doc/libjs-three/copyright CACHE FILEPATH
  "Licence of three.js, which pages carry too")
set(three ${SORVIK_THREE}/three.min.js ${SORVIK_THREE}/examples/js/controls/OrbitControls.js
  ${SORVIK_THREE_LICENCE})
foreach(file IN LISTS three)
  if(NOT EXISTS ${file})
    message(STATUS "sorvikView is left out: it needs three.js (on Debian libjs-three), and ${file} is missing")
    return()
  endif()
endforeach()
if(NOT TARGET commandLine)
  message(STATUS "sorvikView is left out: it needs CLI11 (on Debian libcli11-dev)")
  return()
endif()

set(page ${PROJECT_SOURCE_DIR}/src/view/page)
set(texts
  libraryLicence ${SORVIK_THREE_LICENCE}
  libraryScript ${SORVIK_THREE}/three.min.js
  libraryScript ${SORVIK_THREE}/examples/js/controls/OrbitControls.js
  pageStyle ${page}/page.css
  pageStyle ${page}/figure.css
  pageStyle ${page}/sea.css
  pageScript ${page}/numbers.js
  pageScript ${page}/stage.js
  pageScript ${page}/hull.js
  pageScript ${page}/sea.js
  pageScript ${page}/start.js)
set(names "")
set(files "")
while(texts)
  list(POP_FRONT texts name file)
  list(APPEND names ${name})
  list(APPEND files ${file})
endwhile()
list(JOIN names "," nameList)
list(JOIN files "," fileList)
set(assets ${PROJECT_BINARY_DIR}/assets.cpp)
add_custom_command(OUTPUT ${assets}
  COMMAND ${CMAKE_COMMAND} -D TARGET=${assets} -D NAMES=${nameList} -D FILES=${fileList}
    -P ${PROJECT_SOURCE_DIR}/cmake/embedText.cmake
  DEPENDS ${files} ${PROJECT_SOURCE_DIR}/cmake/embedText.cmake
  COMMENT "Putting the scripts of pages into a source" VERBATIM)
# The standard asks compilers for 65,536 characters only; all that we support take more.
set_source_files_properties(${assets} PROPERTIES COMPILE_OPTIONS -Wno-overlength-strings)

add_executable(sorvikView
  ${assets}
  src/app/view/hullCommand.cpp
  src/app/view/main.cpp
  src/app/view/projectCommand.cpp
  src/app/view/seaCommand.cpp)
sorvik_options(sorvikView)
target_link_libraries(sorvikView PRIVATE sorvik commandLine)
target_compile_definitions(sorvikView PRIVATE SORVIK_VERSION="${SORVIK_VERSION}")
set_target_properties(sorvikView PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})

# The packages that scripts/package makes with `cpack`: the same bytes in every folder.
set(SORVIK_MAINTAINER "sorvikPre developers <sorvikpre@packages.invalid>"
    CACHE STRING "Maintainer of the Debian package")
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME sorvikPre)
set(CPACK_PACKAGE_VENDOR "sorvikPre developers")
set(CPACK_PACKAGE_CONTACT ${SORVIK_MAINTAINER})
set(CPACK_STRIP_FILES ON)
set(CPACK_SORVIK_STRIP ${CMAKE_STRIP})
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/stagePackage.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/settlePackage.cmake)

set(CPACK_DEBIAN_PACKAGE_NAME sorvikpre)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
if(CMAKE_CROSSCOMPILING AND CMAKE_SYSTEM_PROCESSOR STREQUAL aarch64)
  set(CPACK_SYSTEM_NAME Linux-aarch64)
  set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE arm64)
  # dpkg-shlibdeps would name the packages of the cross compiler. scripts/package checks the versions.
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "libc6 (>= 2.35), libgcc-s1 (>= 4.2), libstdc++6 (>= 11)")
else()
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
endif()
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "gnuplot-nox, parallel")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Converts hull surface meshes between STL, WAMIT GDF and Nemoh and cuts them
at the waterline, sets up projects for the boundary-element solver Nemoh,
writes the surface elevation of regular, JONSWAP and listed waves, and turns
input files into JSON. sorvikCheck checks all of these before a long
computation. sorvikView shows hulls, seas and projects as pages for a browser,
which carry three.js, and writes them for ParaView. The library and its headers
come with it.")
include(CPack)

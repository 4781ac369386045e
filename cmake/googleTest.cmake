# Finds GoogleTest, or says that the tests are left out.
if(NOT CMAKE_CROSSCOMPILING)
  find_package(GTest QUIET)
elseif(EXISTS /usr/src/googletest)
  # Debian's library is for this machine; its package googletest brings the source.
  add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
endif()
if(NOT TARGET GTest::gmock_main)
  message(STATUS "The tests are left out: they need GoogleTest with GoogleMock "
    "(on Debian libgtest-dev and libgmock-dev)")
endif()

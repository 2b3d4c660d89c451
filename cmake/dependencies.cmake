# Third-party code, built from the sources that Debian ships (see script/setup).

include(${CMAKE_CURRENT_LIST_DIR}/tinyxml.cmake)

# GoogleTest, for the tests (Debian's googletest package, or KIV_GOOGLETEST_DIR).
if(kiv_tests)
  set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
  add_subdirectory(${KIV_GOOGLETEST_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
endif()

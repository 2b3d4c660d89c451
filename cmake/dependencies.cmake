# Third-party code, built from the sources that Debian ships (see script/setup).

include(${CMAKE_CURRENT_LIST_DIR}/tinyxml.cmake)

# GoogleTest from Debian's googletest package.
if(BUILD_TESTING OR NOT DEFINED BUILD_TESTING)
  set(gtest_force_shared_crt ON CACHE BOOL "" FORCE)
  set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
  set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
endif()

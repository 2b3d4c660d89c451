# The installed package (cmake --install): public headers under include/ (with the compat
# headers under include/compat for toolchains without MFC), import libraries under lib/, the DLLs
# and the tools under bin/, the sample schemes under share/kiv_skin/schemes, and the CMake
# package under lib/cmake/kiv_skin, so that a plug-in project writes
#     find_package(kiv_skin 0.1 REQUIRED)
#     target_link_libraries(myplugin PRIVATE kiv_skin::kiv_skin)
include(CMakePackageConfigHelpers)
set(kiv_package_dir lib/cmake/kiv_skin)

# Each architecture (x64, x86) installs into a prefix of its own: the package records the pointer
# size it was built with and refuses a project that builds for the other one.
install(TARGETS kiv_skin kiv_base kiv_core EXPORT kiv_skin_targets
  RUNTIME DESTINATION bin ARCHIVE DESTINATION lib FILE_SET HEADERS DESTINATION include)
# The framework target goes with them in both builds: the compat headers, or with MFC the
# shared-MFC definition (_AFXDLL) that a plug-in compiles with.
if(KIV_USE_MFC)
  install(TARGETS afx_compat EXPORT kiv_skin_targets)
else()
  install(TARGETS afx_compat EXPORT kiv_skin_targets FILE_SET HEADERS DESTINATION include/compat)
endif()
install(TARGETS moxc kivlint RUNTIME DESTINATION bin)
# On x86 the modules load MinGW's runtime DLLs, which the package ships beside them.
if(KIV_MINGW_RUNTIME_DLLS)
  install(FILES ${KIV_MINGW_RUNTIME_DLLS} DESTINATION bin)
endif()
install(DIRECTORY ${PROJECT_SOURCE_DIR}/schemes/cfg ${PROJECT_SOURCE_DIR}/schemes/skin
  DESTINATION share/kiv_skin/schemes)

install(EXPORT kiv_skin_targets NAMESPACE kiv_skin:: DESTINATION ${kiv_package_dir})
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(KIV_PACKAGE_ARCH x86)
else()
  set(KIV_PACKAGE_ARCH x64)
endif()
set(KIV_MINGW_RUNTIME_DLL_NAMES)
foreach(dll IN LISTS KIV_MINGW_RUNTIME_DLLS)
  get_filename_component(name ${dll} NAME)
  list(APPEND KIV_MINGW_RUNTIME_DLL_NAMES ${name})
endforeach()
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/kiv_skinConfig.cmake.in
  ${PROJECT_BINARY_DIR}/kiv_skinConfig.cmake INSTALL_DESTINATION ${kiv_package_dir})
# The architecture is checked by kiv_skinConfig.cmake, which says what is wrong; the version file
# only compares versions.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kiv_skinConfigVersion.cmake
  COMPATIBILITY SameMinorVersion ARCH_INDEPENDENT)
install(FILES ${PROJECT_BINARY_DIR}/kiv_skinConfig.cmake ${PROJECT_BINARY_DIR}/kiv_skinConfigVersion.cmake
  DESTINATION ${kiv_package_dir})

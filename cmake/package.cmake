# The installed package (cmake --install): public headers under include/ (with the compat
# headers under include/compat for toolchains without MFC), import libraries under lib/, the DLLs
# and the tools under bin/, the sample schemes under share/kiv_skin/schemes, and the CMake
# package under lib/cmake/kiv_skin, so that a plug-in project writes
#     find_package(kiv_skin 0.1 REQUIRED)
#     target_link_libraries(myplugin PRIVATE kiv_skin::kiv_skin)
include(CMakePackageConfigHelpers)
set(kiv_package_dir lib/cmake/kiv_skin)

install(TARGETS kiv_skin kiv_base kiv_core EXPORT kiv_skin_targets
  RUNTIME DESTINATION bin ARCHIVE DESTINATION lib FILE_SET HEADERS DESTINATION include)
if(NOT KIV_USE_MFC)
  install(TARGETS afx_compat EXPORT kiv_skin_targets FILE_SET HEADERS DESTINATION include/compat)
endif()
install(TARGETS moxc kivlint RUNTIME DESTINATION bin)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/schemes/cfg ${CMAKE_SOURCE_DIR}/schemes/skin
  DESTINATION share/kiv_skin/schemes)

install(EXPORT kiv_skin_targets NAMESPACE kiv_skin:: DESTINATION ${kiv_package_dir})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/kiv_skinConfig.cmake.in
  ${CMAKE_BINARY_DIR}/kiv_skinConfig.cmake INSTALL_DESTINATION ${kiv_package_dir})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/kiv_skinConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/kiv_skinConfig.cmake ${CMAKE_BINARY_DIR}/kiv_skinConfigVersion.cmake
  DESTINATION ${kiv_package_dir})

# TinyXML 2.6.2 in STL mode (TIXML_USE_STL), as the target "tinyxml". Either compiled here as a
# static library from its sources in KIV_TINYXML_DIR (script/setup puts Debian's source package,
# with Debian's patches, in .deps/tinyxml), or, without them, a prebuilt TinyXML found on the
# search paths (CMAKE_PREFIX_PATH) or named by KIV_TINYXML_INCLUDE_DIR and KIV_TINYXML_LIBRARY;
# that one must have been built with TIXML_USE_STL too.
set(KIV_TINYXML_DIR ${KIV_DEPS_DIR}/tinyxml CACHE PATH "TinyXML's sources (tinyxml.h, tinyxml.cpp...)")
if(EXISTS ${KIV_TINYXML_DIR}/tinyxml.h)
  set(tinyxml_dir ${KIV_TINYXML_DIR})
  add_library(tinyxml STATIC
    ${tinyxml_dir}/tinystr.cpp ${tinyxml_dir}/tinyxml.cpp
    ${tinyxml_dir}/tinyxmlerror.cpp ${tinyxml_dir}/tinyxmlparser.cpp)
  target_include_directories(tinyxml SYSTEM PUBLIC ${tinyxml_dir})
  target_compile_definitions(tinyxml PUBLIC TIXML_USE_STL)
  target_compile_options(tinyxml PRIVATE -w)
  set_target_properties(tinyxml PROPERTIES POSITION_INDEPENDENT_CODE ON)
  return()
endif()

find_path(KIV_TINYXML_INCLUDE_DIR tinyxml.h)
find_library(KIV_TINYXML_LIBRARY NAMES tinyxml tinyxmlSTL)
if(NOT KIV_TINYXML_INCLUDE_DIR OR NOT KIV_TINYXML_LIBRARY)
  message(FATAL_ERROR "TinyXML not found. Set KIV_TINYXML_DIR to its source folder (script/setup "
    "fetches Debian's into .deps/tinyxml), or install a TinyXML built with TIXML_USE_STL where "
    "CMAKE_PREFIX_PATH finds it (or set KIV_TINYXML_INCLUDE_DIR and KIV_TINYXML_LIBRARY).")
endif()
add_library(tinyxml UNKNOWN IMPORTED)
set_target_properties(tinyxml PROPERTIES IMPORTED_LOCATION ${KIV_TINYXML_LIBRARY}
  INTERFACE_INCLUDE_DIRECTORIES ${KIV_TINYXML_INCLUDE_DIR} INTERFACE_COMPILE_DEFINITIONS TIXML_USE_STL)

# TinyXML 2.6.2 from Debian's source package, with Debian's patches (STL mode enforced).
set(tinyxml_dir ${KIV_DEPS_DIR}/tinyxml)
if(NOT EXISTS ${tinyxml_dir}/tinyxml.h)
  message(FATAL_ERROR "TinyXML source missing in ${tinyxml_dir}: run script/setup")
endif()
add_library(tinyxml STATIC
  ${tinyxml_dir}/tinystr.cpp ${tinyxml_dir}/tinyxml.cpp
  ${tinyxml_dir}/tinyxmlerror.cpp ${tinyxml_dir}/tinyxmlparser.cpp)
target_include_directories(tinyxml SYSTEM PUBLIC ${tinyxml_dir})
target_compile_definitions(tinyxml PUBLIC TIXML_USE_STL)
target_compile_options(tinyxml PRIVATE -w)
set_target_properties(tinyxml PROPERTIES POSITION_INDEPENDENT_CODE ON)

# The catalogue format and the language table: pure C++, shared by kiv_skin.dll, tools/moxc
# (built for Windows and natively) and the tests.
set(kiv_intl_dir ${CMAKE_CURRENT_LIST_DIR})
add_library(kiv_mox STATIC ${kiv_intl_dir}/mox_format.cpp ${kiv_intl_dir}/mox_index.cpp ${kiv_intl_dir}/languages.cpp)
target_include_directories(kiv_mox PUBLIC ${kiv_intl_dir}/../..)

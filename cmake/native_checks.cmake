# Native checks of pure logic (no GDI, no framework) with clang: GoogleTest programs under
# AddressSanitizer and UndefinedBehaviorSanitizer, and libFuzzer targets under both. Every error
# stops the program (-fno-sanitize-recover=all), so a finding always fails its CTest entry.
# Used by tests/native/CMakeLists.txt; a source of the library is compiled there by its path.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  message(FATAL_ERROR "The native checks need clang (libFuzzer): configure with -DCMAKE_CXX_COMPILER=clang++-14")
endif()

set(KIV_SANITIZERS address,undefined)
set(KIV_SANITIZER_FLAGS -fno-sanitize-recover=all -fno-omit-frame-pointer)
add_compile_options(-fsanitize=${KIV_SANITIZERS} ${KIV_SANITIZER_FLAGS})
add_link_options(-fsanitize=${KIV_SANITIZERS})

set(KIV_FUZZ_SECONDS 30 CACHE STRING "How long CTest's smoke run of each fuzz target lasts")
set(kiv_fuzz_smoke ${CMAKE_CURRENT_LIST_DIR}/fuzz-smoke)

# GoogleTest from Debian's googletest package, built with the same sanitizers.
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)

# kiv_native_test(NAME SOURCES...): a GoogleTest program, one CTest entry.
function(kiv_native_test name)
  add_executable(${name} ${ARGN})
  target_include_directories(${name} PRIVATE ${KIV_ROOT})
  target_link_libraries(${name} PRIVATE gtest_main)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES FAIL_REGULAR_EXPRESSION "\\[==========\\] 0 tests")
endfunction()

# kiv_fuzz_target(NAME SOURCES... [SEEDS folder...] [SEED_WRITER target] [CRASH_EXPECTED regex]):
# builds fuzz_NAME, a libFuzzer program over LLVMFuzzerTestOneInput, and registers the CTest entry
# fuzz_NAME that runs it for KIV_FUZZ_SECONDS (cmake/fuzz-smoke). Seeds come from the folders
# and from the folder that SEED_WRITER (a program given that folder) fills at build time. The
# corpus grows in the build tree, fuzz/NAME/corpus, where crash inputs are also left.
# CRASH_EXPECTED marks a target with a planted bug: its entry passes only if the smoke run fails
# with a sanitizer summary that matches the regex.
function(kiv_fuzz_target name)
  cmake_parse_arguments(F "" "SEED_WRITER;CRASH_EXPECTED" "SEEDS" ${ARGN})
  set(exe fuzz_${name})
  set(work ${CMAKE_BINARY_DIR}/fuzz/${name})
  add_executable(${exe} ${F_UNPARSED_ARGUMENTS})
  target_include_directories(${exe} PRIVATE ${KIV_ROOT})
  target_compile_options(${exe} PRIVATE -fsanitize=fuzzer)
  target_link_options(${exe} PRIVATE -fsanitize=fuzzer)
  set(seeds ${F_SEEDS})
  if(F_SEED_WRITER)
    set(written ${work}/seeds)
    add_custom_command(OUTPUT ${work}/seeds.stamp
      COMMAND ${CMAKE_COMMAND} -E rm -rf ${written}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${written}
      COMMAND ${F_SEED_WRITER} ${written}
      COMMAND ${CMAKE_COMMAND} -E touch ${work}/seeds.stamp
      DEPENDS ${F_SEED_WRITER} COMMENT "Writing the seeds of ${exe}")
    add_custom_target(${exe}_seeds ALL DEPENDS ${work}/seeds.stamp)
    list(APPEND seeds ${written})
  endif()
  add_test(NAME ${exe} COMMAND ${kiv_fuzz_smoke} ${KIV_FUZZ_SECONDS} $<TARGET_FILE:${exe}> ${work} ${seeds})
  set_tests_properties(${exe} PROPERTIES LABELS fuzz TIMEOUT 600)
  if(F_CRASH_EXPECTED)
    set_tests_properties(${exe} PROPERTIES
      PASS_REGULAR_EXPRESSION "fuzz-smoke: ${exe} failed [^\n]*SUMMARY: ${F_CRASH_EXPECTED}")
  endif()
endfunction()

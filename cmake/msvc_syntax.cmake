# Every C++ source built for Windows read as MSVC reads it: clang in MSVC mode (the x64 MSVC
# target, Microsoft's language extensions and quirks) over libc++ and Wine's msvcrt and Windows
# headers (libwine-dev; tests/native/msvc adds what those lack and the Universal CRT's and the
# Windows SDK's have), against compat, syntax only, with each target's own definitions and include
# folders, every warning and every GCC or clang extension an error. It catches what GCC accepts
# and MSVC refuses: a name the Windows SDK's headers define as a macro, GCC's extensions, an
# _MSC_VER branch that does not compile. (A GCC builtin outside such a branch passes: clang knows
# GCC's builtins in MSVC mode too.)
# One CTest entry per source folder, msvc_syntax_<folder>, run by cmake/msvc-syntax. The sources
# are the build's own, every target's, taken once all targets exist (this file is included at
# the end of the top-level CMakeLists.txt), so a new source or target is read as soon as it is
# built. The example plug-in, a project of its own, is configured inside this build for it.
find_program(KIV_MSVC_CLANG clang++-14 REQUIRED)
set(kiv_msvc_dir ${CMAKE_BINARY_DIR}/msvc_syntax)

# Where a source comes from, in OUT: "ours", "built" (generated into the build tree) or
# "third-party" (TinyXML from KIV_DEPS_DIR, GoogleTest), which is not ours to check: the include
# folders of a third-party target are read as system headers, as the build reads them.
function(kiv_msvc_origin path out)
  cmake_path(IS_PREFIX CMAKE_BINARY_DIR ${path} NORMALIZE built)
  cmake_path(IS_PREFIX KIV_DEPS_DIR ${path} NORMALIZE deps)
  cmake_path(IS_PREFIX PROJECT_SOURCE_DIR ${path} NORMALIZE ours)
  if(built)
    set(${out} built PARENT_SCOPE)
  elseif(ours AND NOT deps)
    set(${out} ours PARENT_SCOPE)
  else()
    set(${out} third-party PARENT_SCOPE)
  endif()
endfunction()

# The example plug-in builds against the installed package (tests/package). Its CMakeLists is read
# here too, with the build tree's kiv_skin standing in for the package and without the top-level
# folder's definitions, which the example does not have; its targets are never built.
function(kiv_msvc_example)
  set(package ${kiv_msvc_dir}/package)
  file(WRITE ${package}/kiv_skinConfig.cmake
    "add_library(kiv_skin::kiv_skin ALIAS kiv_skin)\nset(KIV_SKIN_SCHEMES_DIR ${PROJECT_SOURCE_DIR}/schemes)\n")
  configure_file(${PROJECT_BINARY_DIR}/kiv_skinConfigVersion.cmake ${package} COPYONLY)
  set(kiv_skin_DIR ${package})
  get_directory_property(definitions COMPILE_DEFINITIONS)
  set_directory_properties(PROPERTIES COMPILE_DEFINITIONS "")
  add_subdirectory(${PROJECT_SOURCE_DIR}/examples/quote_panel ${kiv_msvc_dir}/example EXCLUDE_FROM_ALL)
  set_directory_properties(PROPERTIES COMPILE_DEFINITIONS "${definitions}")
endfunction()

# The targets of DIR and of its subdirectories, in OUT.
function(kiv_msvc_targets dir out)
  get_directory_property(targets DIRECTORY ${dir} BUILDSYSTEM_TARGETS)
  get_directory_property(subdirs DIRECTORY ${dir} SUBDIRECTORIES)
  foreach(subdir ${subdirs})
    kiv_msvc_targets(${subdir} more)
    list(APPEND targets ${more})
  endforeach()
  set(${out} ${targets} PARENT_SCOPE)
endfunction()

# Writes the response file GROUP: TARGET's definitions and include folders, then SOURCES.
# Each argument is single-quoted: definitions may hold double quotes (KIV_VERSION="0.1.0").
function(kiv_msvc_group group target sources)
  set(definitions $<REMOVE_DUPLICATES:$<TARGET_PROPERTY:${target},COMPILE_DEFINITIONS>>)
  set(includes $<REMOVE_DUPLICATES:$<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>>)
  list(JOIN sources "'\n'" sources)
  file(GENERATE OUTPUT ${group} CONTENT
"$<$<BOOL:${definitions}>:'-D$<JOIN:${definitions},'\n'-D>'\n>$<$<BOOL:${includes}>:'-I$<JOIN:${includes},'\n'-I>'\n>'${sources}'\n")
endfunction()

kiv_msvc_example()
kiv_msvc_targets(${PROJECT_SOURCE_DIR} targets)
set(system_includes)
set(folders)
foreach(target ${targets})
  get_target_property(type ${target} TYPE)
  if(NOT type MATCHES "^(EXECUTABLE|STATIC_LIBRARY|SHARED_LIBRARY|MODULE_LIBRARY|OBJECT_LIBRARY)$")
    continue()
  endif()
  get_target_property(sources ${target} SOURCES)
  get_target_property(source_dir ${target} SOURCE_DIR)
  foreach(source ${sources})
    if(source MATCHES "\\$<")
      message(FATAL_ERROR "${target}: the MSVC syntax check cannot follow the source ${source}")
    endif()
    get_filename_component(source ${source} ABSOLUTE BASE_DIR ${source_dir})
    kiv_msvc_origin(${source} origin)
    if(origin STREQUAL third-party)
      list(APPEND system_includes $<TARGET_PROPERTY:${target},INTERFACE_INCLUDE_DIRECTORIES>)
    endif()
    if(NOT origin STREQUAL ours OR NOT source MATCHES "\\.(cpp|cxx|cc|c)$")
      continue()
    elseif(NOT source MATCHES "\\.cpp$")
      message(FATAL_ERROR "${source}: the MSVC syntax check reads .cpp sources only")
    endif()
    file(RELATIVE_PATH folder ${PROJECT_SOURCE_DIR} ${source})
    get_filename_component(folder ${folder} DIRECTORY)
    string(MAKE_C_IDENTIFIER ${folder} id)
    list(APPEND folders ${id})
    set(folder_${id} ${folder})
    list(APPEND targets_${id} ${target})
    list(APPEND sources_${id}_${target} ${source})
  endforeach()
endforeach()

# The flags every source is read with. Two warnings clang has and MSVC does not are off:
# -Winconsistent-missing-override fires on DECLARE_DYNAMIC's GetRuntimeClass, which MFC's macro
# declares without "override" in classes whose other overrides have it, and
# -Wtautological-undefined-compare on the "this == NULL" test of GetSafeHandle and friends,
# which answer NULL through a null pointer as MFC's do. WINE_UNICODE_NATIVE makes Wine's WCHAR
# wchar_t, as the Windows SDK's is.
set(msvc ${CMAKE_CURRENT_LIST_DIR}/../tests/native/msvc)
get_filename_component(msvc ${msvc} ABSOLUTE)
set(common --target=x86_64-pc-windows-msvc -fms-compatibility -fms-extensions -std=c++17 -fsyntax-only
  -Werror -pedantic-errors -Wno-inconsistent-missing-override -Wno-tautological-undefined-compare
  -nostdinc++ -nostdlibinc -D_LIBCPP_NO_VCRUNTIME -DWINE_UNICODE_NATIVE
  -isystem /usr/lib/llvm-14/include/c++/v1 -isystem ${msvc}
  -isystem /usr/include/wine/wine/msvcrt -isystem /usr/include/wine/wine/windows)
list(JOIN common "\n" common)
list(REMOVE_DUPLICATES system_includes)
set(system_includes $<REMOVE_DUPLICATES:${system_includes}>)
file(GENERATE OUTPUT ${kiv_msvc_dir}/common.rsp
  CONTENT "${common}\n$<$<BOOL:${system_includes}>:-isystem\n$<JOIN:${system_includes},\n-isystem\n>\n>")

list(REMOVE_DUPLICATES folders)
foreach(id ${folders})
  set(groups)
  list(REMOVE_DUPLICATES targets_${id})
  foreach(target ${targets_${id}})
    set(group ${kiv_msvc_dir}/${folder_${id}}/${target}.rsp)
    kiv_msvc_group(${group} ${target} "${sources_${id}_${target}}")
    list(APPEND groups ${group})
  endforeach()
  add_test(NAME msvc_syntax_${id} COMMAND ${CMAKE_CURRENT_LIST_DIR}/msvc-syntax ${KIV_MSVC_CLANG}
    ${kiv_msvc_dir}/common.rsp ${groups})
  set_tests_properties(msvc_syntax_${id} PROPERTIES LABELS msvc_syntax)
endforeach()

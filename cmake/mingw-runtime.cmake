# How MinGW's C and C++ runtime reaches each module.
#
# x64: one self-contained binary per module, the runtime linked in statically. Exceptions unwind
# through the system's own table-based unwinder, so the memory context's resource exception,
# thrown inside kiv_skin.dll, reaches a plug-in's catch whatever runtime the plug-in carries.
#
# x86: MinGW unwinds with DWARF tables that each copy of libgcc registers for itself, so an
# exception passes from one module to another only when both use the same libgcc and libstdc++.
# Every module links them as DLLs (the compiler's default there); the three DLLs (libgcc,
# libstdc++ and the libwinpthread that the posix-thread libstdc++ needs) are copied beside the
# build's programs and installed into the package's bin/ beside kiv_skin.dll.
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  add_link_options(-static)
  set(KIV_MINGW_RUNTIME_DLLS)
else()
  set(KIV_MINGW_RUNTIME_DLLS)
  foreach(dll libgcc_s_dw2-1.dll libstdc++-6.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
      OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${path}" OR NOT EXISTS "${path}")
      message(FATAL_ERROR "${CMAKE_CXX_COMPILER} does not have ${dll}, which x86 modules load")
    endif()
    get_filename_component(path "${path}" REALPATH)
    list(APPEND KIV_MINGW_RUNTIME_DLLS "${path}")
  endforeach()
  file(COPY ${KIV_MINGW_RUNTIME_DLLS} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endif()

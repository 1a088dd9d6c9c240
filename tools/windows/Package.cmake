# What tools/windows/make-packages.sh packs besides the library and its headers: the DLLs that it
# loads, with their licences, the import library for Microsoft's linker, README.txt and the
# example in C#. The DLLs lie beside the programs in the build folder too, so that these can be run.
find_program(ZRSTRING_DLLTOOL llvm-dlltool REQUIRED)
math(EXPR bits "${CMAKE_SIZEOF_VOID_P} * 8")
if(bits EQUAL 32)
  set(gcc_unwinder libgcc_s_dw2-1.dll)
  set(dlltool_machine i386)
else()
  set(gcc_unwinder libgcc_s_seh-1.dll)
  set(dlltool_machine i386:x86-64)
endif()

# ICU under the names by which it is loaded, and GCC's runtime: an exception passes from one module
# to another only if both use the same one, so it is not linked statically.
cmake_path(GET ICU_INCLUDE_DIR PARENT_PATH icu)
string(REGEX MATCH "^[0-9]+" icu_major "${ICU_VERSION}")
foreach(name dt in uc)
  list(APPEND dlls ${icu}/bin/icu${name}${icu_major}.dll)
endforeach()
foreach(name libstdc++-6.dll ${gcc_unwinder} libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
    OUTPUT_VARIABLE dll OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND dlls ${dll})
endforeach()
foreach(dll ${dlls})
  cmake_path(GET dll FILENAME name)
  set(stripped ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name})
  add_custom_command(OUTPUT ${stripped}
    COMMAND ${CMAKE_STRIP} --preserve-dates -o ${stripped} ${dll} DEPENDS ${dll} VERBATIM)
  list(APPEND stripped_dlls ${stripped})
endforeach()
add_custom_target(zrstring-dlls DEPENDS ${stripped_dlls})
add_dependencies(ZRString zrstring-dlls)
install(FILES ${stripped_dlls} DESTINATION bin COMPONENT Runtime)

# For Microsoft's linker: the functions that have plain names. Decorated names are this compiler's.
set(exports ${PROJECT_BINARY_DIR}/exports.def)
set(def ${PROJECT_BINARY_DIR}/ZRString.def)
set(lib ${PROJECT_BINARY_DIR}/ZRString.lib)
target_link_options(ZRString PRIVATE -Wl,--output-def,${exports})
add_custom_command(TARGET ZRString POST_BUILD
  COMMAND sed -nE -e "1i LIBRARY ZRString.dll" -e "1i EXPORTS"
    -e "s/^ *([A-Z][A-Za-z]*) @[0-9]+$/  \\1/p" ${exports} > ${def}
  COMMAND ${ZRSTRING_DLLTOOL} -m ${dlltool_machine} -d ${def} -l ${lib}
  BYPRODUCTS ${exports} ${def} ${lib} VERBATIM)
install(FILES ${def} ${lib} DESTINATION lib COMPONENT Development)

# What README.txt names: Debian's MinGW calls itself version 12, without the rest. `dll` is now the
# last one, GCC's.
string(REPLACE _ - gcc_package g++-mingw-w64-${CMAKE_SYSTEM_PROCESSOR}-posix)
execute_process(COMMAND dpkg-query -W -f \${Version} ${gcc_package}
  OUTPUT_VARIABLE gcc_version COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCH "^[0-9]+[.][0-9.]+[0-9]" gcc_version "${gcc_version}")
execute_process(COMMAND ${CMAKE_OBJDUMP} -p ${dll}
  OUTPUT_VARIABLE imports COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCH "msvcrt|ucrtbase|api-ms-win-crt" c_runtime "${imports}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/README.txt.in README.txt @ONLY NEWLINE_STYLE WIN32)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/README.txt DESTINATION . COMPONENT Runtime)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/languages/csharp
  DESTINATION examples COMPONENT Development)

install(FILES ${icu}/share/icu/${ICU_VERSION}/LICENSE
  DESTINATION licenses RENAME icu.txt COMPONENT Runtime)
set(gcc_notice /usr/share/doc/gcc-mingw-w64-base/copyright)
set(winpthreads_notice /usr/share/doc/mingw-w64-common/copyright)
install(FILES ${gcc_notice} DESTINATION licenses RENAME gcc-runtime.txt COMPONENT Runtime)
install(FILES ${winpthreads_notice} DESTINATION licenses RENAME winpthreads.txt COMPONENT Runtime)
# The texts that these two refer to.
foreach(notice ${gcc_notice} ${winpthreads_notice})
  file(STRINGS ${notice} lines REGEX /usr/share/common-licenses/)
  string(REGEX MATCHALL "/usr/share/common-licenses/[A-Za-z]+(-[0-9]+([.][0-9]+)?)?" texts
    "${lines}")
  foreach(text IN LISTS texts)
    cmake_path(GET text FILENAME name)
    file(REAL_PATH ${text} text)
    install(FILES ${text} DESTINATION licenses/common-licenses RENAME ${name}.txt COMPONENT Runtime)
  endforeach()
endforeach()

# What `cmake --install` and the packages install. There are these components: Runtime is needed
# to run programs, Development to compile and debug them, and Python, if asked for, is the package.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# A relative --prefix is relative to the folder that `cmake --install` runs in. GDB's script lies
# under the absolute one.
install(CODE [[
  get_filename_component(CMAKE_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}" ABSOLUTE)
]] ALL_COMPONENTS)

set(zrstring_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ZRString)

install(TARGETS ZRString EXPORT ZRString
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY include/ZRString include/Velmar
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT Development
  FILES_MATCHING PATTERN *.h)
install(FILES ${PROJECT_BINARY_DIR}/include/ZRString/ZRVersion.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/ZRString COMPONENT Development)

install(EXPORT ZRString NAMESPACE ZRString:: FILE ZRStringTargets.cmake
  DESTINATION ${zrstring_cmake_dir} COMPONENT Development)
configure_package_config_file(cmake/ZRStringConfig.cmake.in ZRStringConfig.cmake
  INSTALL_DESTINATION ${zrstring_cmake_dir}
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(ZRStringConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/ZRStringConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/ZRStringConfigVersion.cmake
  DESTINATION ${zrstring_cmake_dir} COMPONENT Development)

# The .pc file derives the prefix from its own location, so that an installed tree can be moved.
# Absolute directories are written unchanged.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
  BASE_DIRECTORY ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig OUTPUT_VARIABLE zrstring_pc_to_prefix)
cmake_path(APPEND zrstring_pc_includedir "\${prefix}" ${CMAKE_INSTALL_INCLUDEDIR})
cmake_path(APPEND zrstring_pc_libdir "\${prefix}" ${CMAKE_INSTALL_LIBDIR})
configure_file(cmake/zrstring.pc.in zrstring.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/zrstring.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)

# What shows strings in the system's debugger. GDB loads its script by itself if it lies below GDB's
# auto-load directory (share/gdb/auto-load, with the prefix /usr) under the library's full path. The
# prefix in that path is the one given when installing, which may differ from the one configured.
if(WIN32)
  install(FILES tools/debugger/ZRString.natvis
    DESTINATION ${CMAKE_INSTALL_DATADIR}/zrstring COMPONENT Development)
else()
  set(zrstring_installed_libdir "\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}")
  if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
    set(zrstring_installed_libdir "${CMAKE_INSTALL_LIBDIR}")
  endif()
  install(FILES tools/debugger/zrstring-gdb.py
    DESTINATION ${CMAKE_INSTALL_DATADIR}/gdb/auto-load${zrstring_installed_libdir}
    COMPONENT Development
    RENAME libZRString.so.${PROJECT_VERSION}-gdb.py)
endif()

if(PROJECT_IS_TOP_LEVEL)
  if(MINGW AND CMAKE_CROSSCOMPILING)
    include(tools/windows/Package.cmake)
  endif()
  # CMake's manifest lists only the last installation, and no DESTDIR.
  install(CODE "set(record \"${PROJECT_BINARY_DIR}/installed.txt\")" ALL_COMPONENTS)
  install(CODE [[
    if("$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}" MATCHES "[][;]")
      message(WARNING "Uninstalling will leave these files: CMake's lists cannot hold a path "
        "with a bracket or a semicolon.")
    else()
      foreach(file IN LISTS CMAKE_INSTALL_MANIFEST_FILES)
        get_filename_component(file "$ENV{DESTDIR}${file}" ABSOLUTE)
        file(APPEND "${record}" "${file}\n")
      endforeach()
    endif()
  ]] ALL_COMPONENTS)
  add_custom_target(uninstall
    COMMAND ${CMAKE_COMMAND} -P ${PROJECT_SOURCE_DIR}/cmake/Uninstall.cmake
    WORKING_DIRECTORY ${CMAKE_BINARY_DIR}
    COMMENT "Removing what was installed from this build folder"
    VERBATIM)
endif()

# What the DLL needs.
configure_file(platform/Windows.rc.in Windows.rc @ONLY)
target_sources(ZRString PRIVATE platform/Windows.cpp ${PROJECT_BINARY_DIR}/Windows.rc)
# The DLL is called ZRString.dll with every toolchain. std::type_info must be
# declared before the first exported class: otherwise GCC 12 exports the type information of every
# class, those of the standard library included.
set_target_properties(ZRString PROPERTIES PREFIX "")
target_compile_options(ZRString PRIVATE
  "$<$<CXX_COMPILER_ID:GNU>:SHELL:-include typeinfo>")
include(CheckLinkerFlag)
# Without the time of linking, the same sources give the same DLL.
check_linker_flag(CXX LINKER:--no-insert-timestamp ZRSTRING_LINKER_HAS_NO_TIMESTAMP)
target_link_options(ZRString PRIVATE
  $<$<BOOL:${ZRSTRING_LINKER_HAS_NO_TIMESTAMP}>:LINKER:--no-insert-timestamp>)
set(zrstring_exports LINKER:--version-script=${PROJECT_SOURCE_DIR}/platform/Pe.map)
check_linker_flag(CXX ${zrstring_exports} ZRSTRING_LINKER_HAS_VERSION_SCRIPTS)
if(ZRSTRING_LINKER_HAS_VERSION_SCRIPTS)
  target_link_options(ZRString PRIVATE LINKER:--export-all-symbols ${zrstring_exports})
  set_target_properties(ZRString PROPERTIES
    LINK_DEPENDS ${PROJECT_SOURCE_DIR}/platform/Pe.map)
endif()

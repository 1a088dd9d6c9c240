# What the library needs on Linux, and on other systems with ELF.
include(CheckCXXSourceCompiles)
include(CheckLinkerFlag)

# Unique symbols would keep the library in the process after dlclose. Calls inside the library do
# not go through symbols that a program could replace. All symbols are bound when the library is
# loaded, and the table of their addresses is read-only from then on.
target_compile_options(ZRString PRIVATE
  $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique> -fno-semantic-interposition -fno-plt)
foreach(flag -Bsymbolic-functions -znow -zrelro)
  check_linker_flag(CXX LINKER:${flag} ZRSTRING_LINKER_HAS${flag})
  target_link_options(ZRString PRIVATE $<$<BOOL:${ZRSTRING_LINKER_HAS${flag}}>:LINKER:${flag}>)
endforeach()
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/empty.map "ZRSTRING_PROBE { local: *; };\n")
check_linker_flag(CXX LINKER:--version-script=${CMAKE_CURRENT_BINARY_DIR}/empty.map
  ZRSTRING_LINKER_HAS_VERSION_SCRIPTS)
if(ZRSTRING_LINKER_HAS_VERSION_SCRIPTS)
  target_link_options(ZRString PRIVATE
    LINKER:--version-script=${PROJECT_SOURCE_DIR}/platform/Elf.map)
  set_target_properties(ZRString PROPERTIES
    LINK_DEPENDS ${PROJECT_SOURCE_DIR}/platform/Elf.map)
else()
  message(NOTICE "ZRString: this linker has no --version-script. The library will export parts "
    "of the C++ standard library too, and its names will have no version.")
endif()

# The stack protector guards the code that reads records and writes output; in string/ it would make
# calls slower, as -fcf-protection would. _FORTIFY_SOURCE needs optimization. If the compiler or
# CMAKE_CXX_FLAGS sets it, that stays.
option(ZRSTRING_HARDENING "Harden the library where that makes no counted call slower" ON)
if(ZRSTRING_HARDENING)
  include(CheckCXXCompilerFlag)
  check_cxx_compiler_flag(-fstack-protector-strong ZRSTRING_COMPILER_HAS_STACK_PROTECTOR)
  if(ZRSTRING_COMPILER_HAS_STACK_PROTECTOR)
    get_target_property(sources ZRString SOURCES)
    list(FILTER sources EXCLUDE REGEX ^string/)
    set_property(SOURCE ${sources} APPEND PROPERTY COMPILE_OPTIONS -fstack-protector-strong)
  endif()
  set(CMAKE_REQUIRED_FLAGS -O2)
  check_cxx_source_compiles("
    #ifdef _FORTIFY_SOURCE
    #error
    #endif
    int main() { return 0; }" ZRSTRING_FORTIFY_SOURCE_IS_FREE)
  unset(CMAKE_REQUIRED_FLAGS)
  if(ZRSTRING_FORTIFY_SOURCE_IS_FREE)
    target_compile_definitions(ZRString PRIVATE
      $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:_FORTIFY_SOURCE=2>)
  endif()
endif()

# Inlining across the thin layers saves instructions in most calls. lld would make an empty
# library from GCC's intermediate code.
include(CheckIPOSupported)
check_ipo_supported(RESULT zrstring_ipo LANGUAGES CXX)
string(REPLACE ";" " " CMAKE_REQUIRED_FLAGS "${CMAKE_CXX_COMPILE_OPTIONS_IPO}")
check_cxx_source_compiles("int main() { return 0; }" ZRSTRING_LINKER_HAS_IPO)
unset(CMAKE_REQUIRED_FLAGS)
if(zrstring_ipo AND ZRSTRING_LINKER_HAS_IPO)
  set_target_properties(ZRString PROPERTIES INTERPROCEDURAL_OPTIMIZATION_RELEASE ON)
endif()

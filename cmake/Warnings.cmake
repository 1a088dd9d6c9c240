# The warnings for the targets of the project.
option(ZRSTRING_WARNINGS_AS_ERRORS "Treat warnings as errors" OFF)

function(zrstring_warnings target)
  if(NOT MSVC)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow
      -Wconversion -Wno-sign-conversion $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>)
  endif()
  set_target_properties(${target} PROPERTIES
    COMPILE_WARNING_AS_ERROR ${ZRSTRING_WARNINGS_AS_ERRORS})
endfunction()

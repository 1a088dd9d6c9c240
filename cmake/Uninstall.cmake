# Run in a build folder: removes the files that its last `cmake --install` installed, and the
# folders that only ZRString uses if they are then empty: its own, and those below GDB's auto-load
# directory, which repeat the prefix.
file(GLOB manifests install_manifest*.txt)
if(NOT manifests)
  message(FATAL_ERROR "Nothing has been installed from this build folder.")
endif()
foreach(manifest IN LISTS manifests)
  file(STRINGS ${manifest} files)
  foreach(file IN LISTS files)
    set(file "$ENV{DESTDIR}${file}")
    message(STATUS "Removing: ${file}")
    file(REMOVE "${file}")
    cmake_path(GET file PARENT_PATH folder)
    # A folder whose name file(GLOB) would take for a pattern is left alone.
    while(folder MATCHES "/(ZRString|Velmar|zrstring)$|/gdb/auto-load/." AND
        NOT folder MATCHES "[][*?]")
      file(GLOB rest "${folder}/*")
      if(rest)
        break()
      endif()
      file(REMOVE_RECURSE "${folder}")
      cmake_path(GET folder PARENT_PATH folder)
    endwhile()
  endforeach()
  file(REMOVE ${manifest})
endforeach()

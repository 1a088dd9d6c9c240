# Run in a build folder: removes the files that were installed from it, wherever, and the folders
# that only ZRString uses if they are then empty: its own, and those below GDB's auto-load
# directory, which repeat the prefix. The list of files stays until all are removed.
if(EXISTS installed.txt)
  file(STRINGS installed.txt files)
endif()
if(NOT files)
  message(FATAL_ERROR "Nothing has been installed from this build folder.")
endif()
list(REMOVE_DUPLICATES files)
foreach(file IN LISTS files)
  if(NOT EXISTS "${file}" AND NOT IS_SYMLINK "${file}")
    continue()
  endif()
  file(REMOVE "${file}")
  if(EXISTS "${file}" OR IS_SYMLINK "${file}")
    message(FATAL_ERROR "Cannot remove this file:\n  ${file}\n"
      "It and the files listed after it in installed.txt are still installed.")
  endif()
  message(STATUS "Removed: ${file}")
  cmake_path(GET file PARENT_PATH folder)
  # A folder whose name file(GLOB) would take for a pattern is left alone.
  while(folder MATCHES "/(ZRString|Velmar|zrstring(-[0-9.]*dist-info)?)$|/gdb/auto-load/." AND NOT
      folder MATCHES "[][*?]")
    # What Python has compiled of its package. Without the sources it is of no use.
    file(REMOVE_RECURSE "${folder}/__pycache__")
    file(GLOB rest "${folder}/*")
    if(rest)
      break()
    endif()
    file(REMOVE_RECURSE "${folder}")
    cmake_path(GET folder PARENT_PATH folder)
  endwhile()
endforeach()
file(GLOB manifests install_manifest*.txt)
file(REMOVE installed.txt ${manifests})

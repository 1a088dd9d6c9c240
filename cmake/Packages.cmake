# The Debian packages that `cpack` makes: libzrstring1 to run programs, libzrstring-dev to build
# them. They install below the prefix of the build; with /usr the libraries go to the multiarch
# directory.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_COMPONENTS_ALL Runtime Development)
set(CPACK_PACKAGE_NAME zrstring)
set(CPACK_PACKAGE_VENDOR ZRString)
set(CPACK_PACKAGE_CONTACT "ZRString developers <maintainers@zrstring.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "shared copy-on-write Unicode string")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(zrstring_runtime libzrstring${PROJECT_VERSION_MAJOR})
set(zrstring_description "\
Strings of UTF-16 code units that share their text until one of them is
edited, with comparison, searching, normalization and case mapping by ICU.
They have an interface of classes for C++ and one of handles for C.
")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${zrstring_runtime})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "${zrstring_description}
This package contains what programs need to run.")

# The dependencies are read from the library. The shlibs file makes dependents require at least this
# version; the trigger runs ldconfig.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/packages/shlibs
  "libZRString ${PROJECT_VERSION_MAJOR} ${zrstring_runtime} (>= ${PROJECT_VERSION})\n")
file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/packages/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
  ${CMAKE_CURRENT_BINARY_DIR}/packages/shlibs ${CMAKE_CURRENT_BINARY_DIR}/packages/triggers)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libzrstring-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "${zrstring_description}
This package contains the headers, what CMake and pkg-config need to find the
library, and what lets debuggers show a string.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "${zrstring_runtime} (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

include(CPack)

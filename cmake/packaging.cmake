# Debian packages made by CPack from the install rules' two components:
#   libapp-s2j1      runtime: libapp_s2j.so.1 (stripped); depends on libc6 and libcjson1
#   libapp-s2j-dev   development: headers, the .so link, app_s2j.pc, the CMake
#                    package; depends on the runtime package of the same version
#                    and on libcjson-dev
# Both take their version from project(VERSION) like the soname does.
#   cmake --build build && (cd build && cpack)        -> build/packages/*.deb
# A cross build (cmake/toolchains/) makes packages for its target architecture.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME libapp-s2j)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "libapp_s2j developers <app-s2j@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Appliance control and configuration records to and from JSON")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libapp-s2j${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
# The C library and cJSON as in Debian 12 or later (the library's glibc
# symbol versions stay below 2.34 on the targets built here).
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS "libc6 (>= 2.34), libcjson1 (>= 1.7.15)")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
  "Converts the control and configuration records of an audio/video appliance,\n plain C structs, to and from JSON. Shared library.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libapp-s2j-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
  "libapp-s2j${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), libcjson-dev (>= 1.7.15)")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
  "Converts the control and configuration records of an audio/video appliance,\n plain C structs, to and from JSON. Headers, pkg-config and CMake files.")

# The package architecture of a cross build is the target's, not dpkg's.
if(CMAKE_CROSSCOMPILING)
  set(_app_s2j_deb_arch_arm-linux-gnueabihf armhf)
  set(_app_s2j_deb_arch_aarch64-linux-gnu arm64)
  set(_app_s2j_deb_arch_s390x-linux-gnu s390x)
  if(DEFINED _app_s2j_deb_arch_${CMAKE_LIBRARY_ARCHITECTURE})
    set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE ${_app_s2j_deb_arch_${CMAKE_LIBRARY_ARCHITECTURE}})
  endif()
endif()

include(CPack)

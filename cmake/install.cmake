# Installation and packaging: the library with its development link, the two
# headers, a CMake package (kvtcore::kvtcore), kvtcore.pc, the calculator, and
# the reference; CPack turns the same install rules into three Debian packages:
#   libkvtcore6      the shared library (component runtime)
#   libkvtcore-dev   headers, development link, CMake package, kvtcore.pc (dev)
#   kvtcore-tools    kvtcalc, its man pages and the HTML reference (tools)
include(CMakePackageConfigHelpers)

set(KVT_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/kvtcore)

install(TARGETS kvtcore EXPORT kvtcoreTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT dev
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev)
install(FILES include/kvtcore.h include/kvtcore_batch.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT dev)
install(EXPORT kvtcoreTargets NAMESPACE kvtcore:: FILE kvtcoreTargets.cmake
  DESTINATION ${KVT_CMAKE_DIR} COMPONENT dev)

configure_package_config_file(cmake/kvtcoreConfig.cmake.in
  ${PROJECT_BINARY_DIR}/kvtcoreConfig.cmake INSTALL_DESTINATION ${KVT_CMAKE_DIR})
# A new minor version keeps every export and ordinal, so any 6.x will do.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kvtcoreConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kvtcoreConfig.cmake ${PROJECT_BINARY_DIR}/kvtcoreConfigVersion.cmake
  DESTINATION ${KVT_CMAKE_DIR} COMPONENT dev)

# pkg-config: the prefix is found from the file's own place, so the same file
# serves an install under any prefix and the Debian package under /usr.
file(RELATIVE_PATH KVT_PC_TO_PREFIX ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" KVT_PC_TO_PREFIX "${KVT_PC_TO_PREFIX}")
configure_file(cmake/kvtcore.pc.in ${PROJECT_BINARY_DIR}/kvtcore.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kvtcore.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)

if(TARGET kvtcalc)
  # Installed under any prefix, the calculator finds the library beside it.
  set_target_properties(kvtcalc PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  install(TARGETS kvtcalc RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
endif()

# ---- Debian packages, made only by this project's own build ----
if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kvtcore)
set(CPACK_PACKAGE_VENDOR "kvtcore")
set(CPACK_PACKAGE_CONTACT "kvtcore maintainers <kvtcore@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "properties of water, steam and ideal gases (IAPWS-IF97)")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime dev tools)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# kvtcalc links the library of the package built beside it.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libkvtcore6)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEV_PACKAGE_NAME libkvtcore-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME kvtcore-tools)
set(KVT_DEB_VERSION "${PROJECT_VERSION}")
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "libkvtcore6 (= ${KVT_DEB_VERSION})")
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "libkvtcore6 (= ${KVT_DEB_VERSION})")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "kvtcore shared library: water, steam and ideal-gas properties")
set(CPACK_COMPONENT_DEV_DESCRIPTION "kvtcore development files: headers, CMake package, pkg-config file")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "kvtcore tools: the calculator kvtcalc, man pages and HTML reference")
# The runtime package tells ldconfig about the new library.
file(WRITE ${PROJECT_BINARY_DIR}/deb/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/deb/triggers)
include(CPack)

# Installation: libraries, headers, package files, program.
include(CMakePackageConfigHelpers)

set(cmakedir "${CMAKE_INSTALL_LIBDIR}/cmake/tarvex")
install(TARGETS tarvex_store tarvex EXPORT tarvexTargets
  LIBRARY NAMELINK_COMPONENT development
  FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/tarvex"
  FILE_SET generated DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/tarvex")
install(TARGETS tarvex_program)
install(EXPORT tarvexTargets NAMESPACE tarvex:: DESTINATION "${cmakedir}")
# The same targets from the build tree.
export(EXPORT tarvexTargets NAMESPACE tarvex:: FILE "${PROJECT_BINARY_DIR}/tarvexTargets.cmake")

configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/tarvexConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/tarvexConfig.cmake" INSTALL_DESTINATION "${cmakedir}")
# Before 1.0 a new minor version may break users.
write_basic_package_version_file("${PROJECT_BINARY_DIR}/tarvexConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/tarvexConfig.cmake"
  "${PROJECT_BINARY_DIR}/tarvexConfigVersion.cmake" DESTINATION "${cmakedir}")

# The way from the package file up to the prefix, so that an installation can be moved.
file(RELATIVE_PATH TARVEX_UP_TO_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
configure_file("${CMAKE_CURRENT_LIST_DIR}/tarvex.pc.in" "${PROJECT_BINARY_DIR}/tarvex.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/tarvex.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
install(FILES "${PROJECT_SOURCE_DIR}/docs/model.schema.json"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/tarvex/schema")

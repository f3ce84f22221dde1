# Headers, CMake package, pkg-config file, documents; libraries are installed where they are declared.
include(CMakePackageConfigHelpers)

install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/vlqs)
install(EXPORT vlqsTargets NAMESPACE vlqs:: DESTINATION ${package_dir})
configure_package_config_file(cmake/vlqsConfig.cmake.in ${PROJECT_BINARY_DIR}/vlqsConfig.cmake
  INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/vlqsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/vlqsConfig.cmake ${PROJECT_BINARY_DIR}/vlqsConfigVersion.cmake
  DESTINATION ${package_dir})

# The pkg-config file finds the rest by its own place, wherever the tree is installed or moved to.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH VLQS_PREFIX_FROM_PC /prefix/${pkgconfig_dir} /prefix)
string(REGEX REPLACE "/$" "" VLQS_PREFIX_FROM_PC "${VLQS_PREFIX_FROM_PC}")
if(VLQS_LINKAGE STREQUAL "STATIC")
  set(VLQS_STATIC_LIBS " -lm -pthread")
endif()
configure_file(cmake/vlqs.pc.in ${PROJECT_BINARY_DIR}/vlqs.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/vlqs.pc DESTINATION ${pkgconfig_dir})

# What a user reads; the manual if it has been built.
install(FILES LICENSE README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY examples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples FILES_MATCHING PATTERN "*.[ch]")
install(DIRECTORY ${PROJECT_BINARY_DIR}/docs/html DESTINATION ${CMAKE_INSTALL_DOCDIR} OPTIONAL)
install(DIRECTORY ${PROJECT_BINARY_DIR}/docs/man3 DESTINATION ${CMAKE_INSTALL_MANDIR} OPTIONAL)

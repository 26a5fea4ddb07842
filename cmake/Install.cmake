# What `cmake --install` leaves behind: the library with its headers, the program, and what CMake and pkg-config need to
# find them. Components of the package: Cpp (the target QmChart6::QmChart6, which needs Qt) and C (QmChart6::C).
include(CMakePackageConfigHelpers)
set(package "${CMAKE_INSTALL_LIBDIR}/cmake/QmChart6")

install(TARGETS QmChart6 EXPORT QmChart6Targets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Runtime NAMELINK_COMPONENT Development)
install(EXPORT QmChart6Targets NAMESPACE QmChart6:: DESTINATION "${package}" COMPONENT Development)
install(FILES include/qmchart6.h DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT Development)
install(DIRECTORY include/qmchart6 DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT Development FILES_MATCHING PATTERN "*.h")

configure_package_config_file(cmake/QmChart6Config.cmake.in "${PROJECT_BINARY_DIR}/QmChart6Config.cmake"
  INSTALL_DESTINATION "${package}" PATH_VARS CMAKE_INSTALL_INCLUDEDIR)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/QmChart6ConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/QmChart6Config.cmake" "${PROJECT_BINARY_DIR}/QmChart6ConfigVersion.cmake"
  DESTINATION "${package}" COMPONENT Development)
# It says where it is itself, so that what was installed may be moved.
file(RELATIVE_PATH up_to_prefix "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
configure_file(cmake/qmchart6.pc.in "${PROJECT_BINARY_DIR}/qmchart6.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/qmchart6.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT Development)

# The program finds the library beside it, wherever both were put.
file(RELATIVE_PATH to_library "/${CMAKE_INSTALL_BINDIR}" "/${CMAKE_INSTALL_LIBDIR}")
set_target_properties(qmchart PROPERTIES INSTALL_RPATH "$ORIGIN/${to_library}")
install(TARGETS qmchart RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT Runtime)

# Installs the header, the library with its SONAME links, a CMake package and
# a pkg-config file.
include(CMakePackageConfigHelpers)

set(QUEN_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/quen_3_1")

install(TARGETS quen_3_1 EXPORT quen_3_1Targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} NAMELINK_COMPONENT Development COMPONENT Runtime
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY include/quen_3_1 DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT Development)
install(EXPORT quen_3_1Targets NAMESPACE quen_3_1:: DESTINATION ${QUEN_CMAKE_DIR} COMPONENT Development)

configure_package_config_file(cmake/quen_3_1Config.cmake.in
  "${PROJECT_BINARY_DIR}/quen_3_1Config.cmake"
  INSTALL_DESTINATION ${QUEN_CMAKE_DIR})
write_basic_package_version_file("${PROJECT_BINARY_DIR}/quen_3_1ConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/quen_3_1Config.cmake" "${PROJECT_BINARY_DIR}/quen_3_1ConfigVersion.cmake"
  DESTINATION ${QUEN_CMAKE_DIR} COMPONENT Development)

if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(QUEN_PC_LIBDIR "${CMAKE_INSTALL_LIBDIR}")
else()
  set(QUEN_PC_LIBDIR "\${exec_prefix}/${CMAKE_INSTALL_LIBDIR}")
endif()
if(IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
  set(QUEN_PC_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}")
else()
  set(QUEN_PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
# The prefix is written at install time, so that `cmake --install --prefix`
# into any directory gives a .pc file that points there.
set(QUEN_PC_PREFIX "@QUEN_PC_PREFIX@")
configure_file(cmake/quen_3_1.pc.in "${PROJECT_BINARY_DIR}/quen_3_1.pc.in" @ONLY)
install(CODE "set(QUEN_PC_PREFIX \"\${CMAKE_INSTALL_PREFIX}\")
  configure_file(\"${PROJECT_BINARY_DIR}/quen_3_1.pc.in\" \"${PROJECT_BINARY_DIR}/quen_3_1.pc\" @ONLY)"
  COMPONENT Development)
install(FILES "${PROJECT_BINARY_DIR}/quen_3_1.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT Development)

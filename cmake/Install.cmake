# What is installed, and how other projects find it: find_package(BaseFrame_PKG) offers the targets BaseFrame::Ado,
# BaseFrame::Component_TRV, BaseFrame::BaseFrame_PKG, BaseFrame::Database and BaseFrame::ReferenceHost.

include(CMakePackageConfigHelpers)

set(package_folder "${CMAKE_INSTALL_LIBDIR}/cmake/BaseFrame_PKG")

install(TARGETS Ado Component_TRV BaseFrame_PKG Database ReferenceHost EXPORT BaseFrameTargets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/BaseFrame_PKG")
install(EXPORT BaseFrameTargets NAMESPACE BaseFrame:: DESTINATION "${package_folder}")

configure_package_config_file(cmake/BaseFrame_PKGConfig.cmake.in
  "${CMAKE_CURRENT_BINARY_DIR}/BaseFrame_PKGConfig.cmake"
  INSTALL_DESTINATION "${package_folder}" PATH_VARS CMAKE_INSTALL_DATADIR)
# Until 1.0 the interfaces may change with the minor version.
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/BaseFrame_PKGConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/BaseFrame_PKGConfig.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/BaseFrame_PKGConfigVersion.cmake" DESTINATION "${package_folder}")

# The libraries that the host loads by name stand where it looks for them, with the others.
install(TARGETS ExpenseCenter_TRV AutoVoucher_TRV
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(TARGETS workbench RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(TARGETS BaseFrame_Designer LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/qt6/plugins/designer")

# The scripts that a server database is made of.
install(FILES database/schema.sql database/functions.sql DESTINATION "${CMAKE_INSTALL_DATADIR}/BaseFrame_PKG")
install(DIRECTORY database/upgrades DESTINATION "${CMAKE_INSTALL_DATADIR}/BaseFrame_PKG" FILES_MATCHING PATTERN "*.sql")
install(DIRECTORY docs/ DESTINATION "${CMAKE_INSTALL_DOCDIR}" PATTERN "*.md" PATTERN "*.png")
install(FILES README.md LICENSE NOTICE suite/fonts/OFL.txt DESTINATION "${CMAKE_INSTALL_DOCDIR}")

set(CPACK_PACKAGE_NAME baseframe-pkg)
set(CPACK_PACKAGE_CONTACT "The BaseFrame_PKG developers <baseframe-pkg@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_RESOURCE_FILE_LICENSE "${CMAKE_CURRENT_SOURCE_DIR}/LICENSE")
set(CPACK_STRIP_FILES ON)
set(CPACK_GENERATOR DEB)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
# For programs that are built against the package.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-base-dev")
include(CPack)

# Installs the libraries and headers and exports them as TNWizard::core, ::ui and ::mavt,
# so find_package(TNWizard) works from an install prefix and from the build tree.
include(CMakePackageConfigHelpers)

set(TNW_EXPORT_TARGETS tnwizard_core)
if(TARGET tnwizard_ui)
  list(APPEND TNW_EXPORT_TARGETS tnwizard_ui)
endif()
if(TARGET tnwizard_mavt)
  list(APPEND TNW_EXPORT_TARGETS tnwizard_mavt)
endif()

install(TARGETS ${TNW_EXPORT_TARGETS} EXPORT TNWizardTargets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/src/
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tnwizard
  FILES_MATCHING PATTERN "*.h")

set(TNW_CONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/TNWizard)
install(EXPORT TNWizardTargets NAMESPACE TNWizard:: DESTINATION ${TNW_CONFIG_DIR})
export(EXPORT TNWizardTargets NAMESPACE TNWizard::
  FILE ${PROJECT_BINARY_DIR}/TNWizardTargets.cmake)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/TNWizardConfig.cmake.in
  ${PROJECT_BINARY_DIR}/TNWizardConfig.cmake INSTALL_DESTINATION ${TNW_CONFIG_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TNWizardConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TNWizardConfig.cmake
  ${PROJECT_BINARY_DIR}/TNWizardConfigVersion.cmake DESTINATION ${TNW_CONFIG_DIR})

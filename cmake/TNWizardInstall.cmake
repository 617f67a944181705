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
# Printing and SVG writing, loaded by the component on first use from beside it.
if(TARGET tnwizard_mavt_print)
  install(TARGETS tnwizard_mavt_print LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
endif()

# The public headers, and only they: what a host of TNW_MAVT includes (tnw_mavt.h and what it
# names), and what a user of the Qt-free core includes to read, write and value model files or to
# drive the wizard with dialogs of its own (WizardComponent and its factory). Each includes only
# headers of this list. The other headers are the implementation and stay in the source tree.
set(TNW_PUBLIC_HEADERS
  common/core/currency.h
  common/core/ui_services.h
  component/tnw_mavt.h
  component/core/tnw_mavt_events.h
  component/core/wizard_component.h
  wizard/core/wizard_context.h
  wizard/core/wizard_dialog.h
  wizard/core/wizard_dialog_factory.h
  direct/core/direct_a_events.h
  model/attribute_model.h
  model/model_file_reader.h
  model/model_file_writer.h
  model/model_read_report.h
  model/value_function.h
  selmethod/core/selmethod_events.h
  tradeoffs/core/tradeoffs_a_events.h)
foreach(header ${TNW_PUBLIC_HEADERS})
  get_filename_component(dir ${header} DIRECTORY)
  install(FILES ${PROJECT_SOURCE_DIR}/src/${header}
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tnwizard/${dir})
endforeach()

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

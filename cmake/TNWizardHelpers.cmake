# Helpers shared by every target of the project.

# Warnings are errors on our own code only.
function(tnw_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror)
endfunction()

# Adds a GoogleTest executable linked to the core library and registers its tests.
function(tnw_add_test name)
  add_executable(${name} ${ARGN})
  tnw_warnings(${name})
  target_link_libraries(${name} PRIVATE TNWizard::core GTest::gtest GTest::gmock GTest::gtest_main)
  gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES LABELS core)
endfunction()

# Adds a QtTest executable that drives real widgets on the offscreen platform.
function(tnw_add_dialog_test name)
  add_executable(${name} ${ARGN})
  tnw_warnings(${name})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_link_libraries(${name} PRIVATE TNWizard::mavt TNWizard::ui TNWizard::core Qt6::Test Qt6::Widgets)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen"
    LABELS dialog)
endfunction()

# Helpers shared by every target of the project.

# Our scripts and CI build with warnings as errors; a consumer building the package does not need
# to (a newer compiler may warn where ours does not).
option(TNW_WERROR "Treat compiler warnings on the project's own targets as errors" OFF)

# The warnings of our own targets, chosen per compiler, as errors with TNW_WERROR.
function(tnw_warnings target)
  if(MSVC)
    target_compile_options(${target} PRIVATE /W4 /permissive-)
    if(TNW_WERROR)
      target_compile_options(${target} PRIVATE /WX)
    endif()
    return()
  endif()
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12's -Wrestrict misfires inside libstdc++'s std::string when an optimised build
    # inlines an assignment or concatenation of a short literal ("W" + std::to_string(id),
    # caption = "1"): GCC bug 105329, fixed in GCC 13. Every other warning stays on.
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
  if(TNW_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
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

# Makes a shared library of ours cheaper to load on an ELF platform, where the linker accepts
# each option: its relative relocations packed (DT_RELR, a few hundred bytes instead of tens of
# kilobytes for the loader to read), and, given a linker script that names its start-up code,
# that code laid out together, so that the kernel maps fewer 64 KiB windows of code to run it.
# Neither changes what the library does.
function(tnw_lean_startup_link target)
  if(MSVC OR NOT CMAKE_EXECUTABLE_FORMAT STREQUAL "ELF")
    return()
  endif()
  include(CheckLinkerFlag)
  # A linker that only warns about an unknown -z option (lld before 15) does not pack.
  check_linker_flag(CXX "LINKER:-z,pack-relative-relocs,--fatal-warnings"
    TNW_LINKER_PACKS_RELATIVE_RELOCATIONS)
  if(TNW_LINKER_PACKS_RELATIVE_RELOCATIONS)
    target_link_options(${target} PRIVATE "LINKER:-z,pack-relative-relocs")
  endif()
  if(ARGC GREATER 1)
    check_linker_flag(CXX "LINKER:-T,${ARGV1}" TNW_LINKER_ORDERS_STARTUP_CODE)
    if(TNW_LINKER_ORDERS_STARTUP_CODE)
      target_link_options(${target} PRIVATE "LINKER:-T,${ARGV1}")
      set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${ARGV1})
    endif()
  endif()
endfunction()

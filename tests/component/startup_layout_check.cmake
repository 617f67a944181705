# Checks the layout that keeps libtnwizard_mavt cheap to load: the code that shows the first
# dialog lies together in .text.tnw_startup, which holds none of the other dialogs and, in an
# optimised build, fits in two 64 KiB windows; and, where the linker packs relative relocations,
# the library has them packed (DT_RELR).
# cmake -DLIBRARY=<libtnwizard_mavt.so> -DREADELF=<readelf> -DNM=<nm> -DPACKED=<ON|OFF>
#       -DCONFIG=<build type> -P startup_layout_check.cmake

function(fail message)
  message(FATAL_ERROR "${LIBRARY}: ${message}")
endfunction()

execute_process(COMMAND ${READELF} -SW ${LIBRARY} OUTPUT_VARIABLE sections RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  fail("readelf -S failed")
endif()
string(REGEX MATCH "\\.text\\.tnw_startup +PROGBITS +([0-9a-f]+) +[0-9a-f]+ +([0-9a-f]+)"
  found "${sections}")
if(NOT found)
  fail("no .text.tnw_startup section: the start-up code is spread over the library")
endif()
math(EXPR first "0x${CMAKE_MATCH_1}")
math(EXPR size "0x${CMAKE_MATCH_2}")
math(EXPR end "${first} + ${size}")
if(NOT CONFIG STREQUAL "Debug" AND size GREATER 131072)
  fail("the start-up code is ${size} bytes, more than two 64 KiB windows")
endif()

execute_process(COMMAND ${NM} -C --defined-only ${LIBRARY} OUTPUT_VARIABLE symbols RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  fail("nm failed")
endif()
string(REPLACE ";" "," symbols "${symbols}")
string(REPLACE "\n" ";" symbols "${symbols}")

# Whether a function whose name starts with prefix lies inside the start-up code (its cold
# parts, never run on the way, are left out) or anywhere at all.
function(where prefix insideVar anywhereVar)
  set(inside OFF)
  set(anywhere OFF)
  foreach(line IN LISTS symbols)
    if(NOT line MATCHES "^([0-9a-f]+) [tT] (.*)$")
      continue()
    endif()
    set(name "${CMAKE_MATCH_2}")
    math(EXPR at "0x${CMAKE_MATCH_1}")
    string(FIND "${name}" "${prefix}" pos)
    if(NOT pos EQUAL 0 OR name MATCHES "\\[clone \\.cold\\]$")
      continue()
    endif()
    set(anywhere ON)
    if(at GREATER_EQUAL first AND at LESS end)
      set(inside ON)
    endif()
  endforeach()
  set(${insideVar} ${inside} PARENT_SCOPE)
  set(${anywhereVar} ${anywhere} PARENT_SCOPE)
endfunction()

set(startup
  "frame_dummy"
  "qInitResources_tnw_help()"
  "tnw::TNW_MAVT::TNW_MAVT("
  "tnw::TNW_MAVT::GetCurFileData("
  "tnw::WizardComponent::ShowTNWizard()"
  "tnw::WidgetDialogFactory::createSelMethod("
  "tnw::WizardBackend::WizardBackend("
  "tnw::WidgetUiServices::screenSize()"
  "tnw::readModelFileBytes("
  "tnw::ModelFileReader::read("
  "tnw::selmethod::SelMethodPresenter::SelMethodPresenter("
  "tnw::selmethod::MethodsPage::initializePage()"
  "tnw::selmethod::SelMethodDialog::SelMethodDialog("
  "tnw::selmethod::SelMethodDialog::buildLayout()"
  "tnw::selmethod::SelMethodDialog::qt_metacast("
  "tnw::DialogWindow::showWithModality("
  "tnw::DialogWindow::qt_metacast("
  "tnw::makeWizardButtonBox("
  "tnw::nameControlsByBuddies("
  "tnw::WrappedLabel::heightForWidth("
  "tnw::WrappedLabel::qt_metacast("
  "tnw::KeptTextLabel::paintEvent("
  "tnw::KeptText::draw(")
foreach(prefix IN LISTS startup)
  where("${prefix}" inside anywhere)
  if(NOT anywhere)
    fail("no function ${prefix}...: this list names what showing the first dialog runs")
  endif()
  if(NOT inside)
    fail("${prefix}... lies outside the start-up code")
  endif()
endforeach()

set(later
  "tnw::direct::DirectADialog::DirectADialog("
  "tnw::tradeoffs::TradeOffsADialog::TradeOffsADialog("
  "tnw::direct::DirectAPresenter::DirectAPresenter("
  "tnw::tradeoffs::TradeOffsAPresenter::TradeOffsAPresenter(")
foreach(prefix IN LISTS later)
  where("${prefix}" inside anywhere)
  if(NOT anywhere)
    fail("no function ${prefix}...")
  endif()
  if(inside)
    fail("${prefix}..., which runs only later, lies inside the start-up code")
  endif()
endforeach()

if(PACKED)
  execute_process(COMMAND ${READELF} -dW ${LIBRARY} OUTPUT_VARIABLE dynamic RESULT_VARIABLE rc)
  if(NOT rc EQUAL 0 OR NOT dynamic MATCHES "\\(RELR\\)")
    fail("the relative relocations are not packed (no DT_RELR)")
  endif()
endif()
message(STATUS "start-up code: ${size} bytes, ${first}..${end}")

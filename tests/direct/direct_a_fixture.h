#pragma once

#include "common/core/recording_ui_services.h"
#include "direct/core/direct_a_presenter.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"

// GoogleTest
#include <gtest/gtest.h>

// Std
#include <memory>
#include <string>

namespace tnw::direct {

using Box = JudgmentPage::Box;

class DirectAPresenterTest : public ::testing::Test {
 protected:
  explicit DirectAPresenterTest(int n = 3) : context(test::makeContext(n)) {}

  DirectAPresenter& load() {
    presenter = std::make_unique<DirectAPresenter>(context, ui, events);
    presenter->setChangeListener([this] { ++changes; });
    presenter->Form_Load();
    return *presenter;
  }
  // Places attribute j into group g, adding groups as needed.
  void place(int j, int g) {
    while (presenter->ordering().order().GroupCount() < g) presenter->cmdAdd_Click();
    presenter->picOrder_DragDrop(g, "A" + std::to_string(j));
  }
  // Four attributes ordered {1, 2, 2, 3} (attributes 1 and 2 tied), reference attribute `ref`
  // (1 unless given), on the judgment step; the fixture must hold four attributes.
  DirectAPresenter& toTiedJudgments(int ref = 1) {
    DirectAPresenter& p = load();
    place(0, 1);
    place(1, 2);
    place(2, 2);
    place(3, 3);
    p.cmdNext_Click();
    p.cmdAttButtons_Click(ref);
    p.cmdNext_Click();
    return p;
  }
  // Types both bounds, leaves both boxes and presses Enter.
  void judge(int target, const std::string& lower, const std::string& upper) {
    presenter->imgcmbTargetAtt_Click(target);
    presenter->txtWR_SetText(Box::Lower, lower);
    presenter->txtWR_SetText(Box::Upper, upper);
    presenter->txtWR_LostFocus(Box::Lower);
    presenter->txtWR_LostFocus(Box::Upper);
    presenter->cmdEnter_Click();
  }

  WizardContext context;
  RecordingUiServices ui;
  test::RecordingDirectAEvents events;
  std::unique_ptr<DirectAPresenter> presenter;
  int changes = 0;
};

}  // namespace tnw::direct

#pragma once

#include "wizard/core/wizard_context.h"
#include "wizard/core/wizard_dialog_factory.h"
#include "direct/core/direct_a_events.h"
#include "selmethod/core/selmethod_events.h"
#include "selmethod/core/selmethod_presenter.h"
#include "tradeoffs/core/tradeoffs_a_events.h"

// Std
#include <memory>
#include <string>
#include <vector>

namespace tnw::testing {

// What happened to the fake dialogs, in order ("create DirectA#1", "modal DirectA#1", ...).
struct DialogLog {
  std::vector<std::string> entries;
  int destroyedInOwnHandler = 0;
  int alive = 0;
};

// A dialog that records what the component does with it. Its handlers (raise*) mark themselves
// running, so destroying the dialog from inside one of them is noticed.
class FakeDialog : public WizardDialog {
 public:
  FakeDialog(DialogLog& log, std::string name, ScreenSize size)
      : m_log(log), m_name(std::move(name)), m_size(size) {
    ++m_log.alive;
    m_log.entries.push_back("create " + m_name);
  }
  ~FakeDialog() override {
    if (m_handlerDepth > 0) ++m_log.destroyedInOwnHandler;
    --m_log.alive;
  }

  void showModeless() override {
    m_visible = true;
    m_modal = false;
    ++shows;
    m_log.entries.push_back("modeless " + m_name);
  }
  void showModal() override {
    m_visible = true;
    m_modal = true;
    ++shows;
    m_log.entries.push_back("modal " + m_name);
  }
  void setDialogVisible(bool visible) override {
    m_visible = visible;
    m_log.entries.push_back((visible ? "visible " : "hide ") + m_name);
  }
  bool dialogVisible() const override { return m_visible; }
  ScreenSize dialogSize() const override { return m_size; }
  void moveDialog(int l, int t) override {
    left = l;
    top = t;
    ++moves;
  }

  // The dialog's name with its creation number, e.g. "DirectA#2".
  const std::string& name() const { return m_name; }
  // Whether its last show was modal.
  bool modal() const { return m_modal; }

  int left = -1;
  int top = -1;
  int moves = 0;
  int shows = 0;

 protected:
  // Runs an event of this dialog the way a button handler would: the dialog keeps using its
  // own members after the event returns.
  template <typename F>
  void handler(F&& raise) {
    ++m_handlerDepth;
    raise();
    m_log.entries.push_back("handler done " + m_name);
    --m_handlerDepth;
  }

  DialogLog& m_log;

 private:
  std::string m_name;
  ScreenSize m_size;
  bool m_visible = false;
  bool m_modal = false;
  int m_handlerDepth = 0;
};

// The selection dialog over the real presenter; loading it raises SendMasseges.
class FakeSelMethod : public FakeDialog {
 public:
  FakeSelMethod(DialogLog& log, std::string name, WizardContext& context, UiServices& ui,
                selmethod::SelMethodEvents& events)
      : FakeDialog(log, std::move(name), {400, 300}), presenter(context, ui, events) {
    presenter.Form_Load();
  }
  void chooseDirect() {
    presenter.lstMethods_Click(0);
    handler([this] { presenter.cmdNext_Click(); });
  }
  void chooseTradeOffs() {
    presenter.lstMethods_Click(1);
    handler([this] { presenter.cmdNext_Click(); });
  }
  void cancel() {
    handler([this] { presenter.cmdCancel_Click(); });
  }

  selmethod::SelMethodPresenter presenter;
};

// A direct-method dialog with its export arrays.
class FakeDirectA : public FakeDialog {
 public:
  FakeDirectA(DialogLog& log, std::string name, WizardContext& context,
              direct::DirectAEvents& events)
      : FakeDialog(log, std::move(name), {640, 480}), m_context(context), m_events(events) {
    m_events.SendMasseges("Order the attributes according to their relative importance.");
  }
  // Back on step 0: back to selection, then ask to be released.
  void backOnFirstStep() {
    handler([this] {
      m_events.ShowTNWSelMethod();
      m_events.UnloadDirectA();
    });
  }
  // Back to selection without asking to be released.
  void raiseShowTNWSelMethod() {
    handler([this] { m_events.ShowTNWSelMethod(); });
  }
  void finish() {
    handler([this] {
      m_events.ExportDirectAW("MAVT_DIRECT", 1, Weights, WeightsH, WeightsL);
      m_events.UnloadTNWizard(m_context.FileIndex, true);
    });
  }
  void cancel() {
    handler([this] { m_events.UnloadTNWizard(m_context.FileIndex, false); });
  }
  void say(const std::string& msg) {
    handler([&] { m_events.SendMasseges(msg); });
  }

  std::vector<double> Weights{0.5, 0.3, 0.2};
  std::vector<double> WeightsH{0.6, 0.4, 0.3};
  std::vector<double> WeightsL{0.4, 0.2, 0.1};

 private:
  WizardContext& m_context;
  direct::DirectAEvents& m_events;
};

// A trade-off dialog with its export arrays.
class FakeTradeOffsA : public FakeDialog {
 public:
  FakeTradeOffsA(DialogLog& log, std::string name, WizardContext& context,
                 tradeoffs::TradeOffsAEvents& events)
      : FakeDialog(log, std::move(name), {800, 600}), m_context(context), m_events(events) {}
  void back() {
    handler([this] { m_events.ShowTNWSelMethod(); });
  }
  void finish() {
    handler([this] {
      m_events.ExportTradeOffsW("MAVT_TRADEOFFS", Weights, WeightsH, WeightsL);
      m_events.UnloadTNWizard(m_context.FileIndex, true);
    });
  }
  void say(const std::string& msg) {
    handler([&] { m_events.SendMasseges(msg); });
  }

  std::vector<double> Weights{0.25, 0.75};
  std::vector<double> WeightsH{0.35, 0.85};
  std::vector<double> WeightsL{0.25, 0.75};

 private:
  WizardContext& m_context;
  tradeoffs::TradeOffsAEvents& m_events;
};

// Makes the fake dialogs and keeps released ones until flush(), as an event loop would.
class FakeDialogFactory : public WizardDialogFactory {
 public:
  explicit FakeDialogFactory(UiServices& ui) : m_ui(ui) {}
  ~FakeDialogFactory() override { flush(); }

  std::unique_ptr<WizardDialog> createSelMethod(WizardContext& context,
                                                selmethod::SelMethodEvents& events) override {
    return std::make_unique<FakeSelMethod>(log, "SelMethod#" + std::to_string(++m_selCount),
                                           context, m_ui, events);
  }
  std::unique_ptr<WizardDialog> createDirectA(WizardContext& context,
                                              direct::DirectAEvents& events) override {
    if (!directAvailable) return nullptr;
    return std::make_unique<FakeDirectA>(log, "DirectA#" + std::to_string(++m_directCount), context,
                                         events);
  }
  std::unique_ptr<WizardDialog> createTradeOffsA(WizardContext& context,
                                                 tradeoffs::TradeOffsAEvents& events) override {
    if (!tradeOffsAvailable) return nullptr;
    return std::make_unique<FakeTradeOffsA>(log, "TradeOffsA#" + std::to_string(++m_tradeOffsCount),
                                            context, events);
  }
  void release(std::unique_ptr<WizardDialog> dialog) override {
    log.entries.push_back("release " + static_cast<FakeDialog&>(*dialog).name());
    m_released.push_back(std::move(dialog));
  }
  // Destroys the released dialogs, as the event loop does once the handlers have returned.
  void flush() { m_released.clear(); }

  DialogLog log;
  bool directAvailable = true;
  bool tradeOffsAvailable = true;

 private:
  UiServices& m_ui;
  std::vector<std::unique_ptr<WizardDialog>> m_released;
  int m_selCount = 0;
  int m_directCount = 0;
  int m_tradeOffsCount = 0;
};

}  // namespace tnw::testing

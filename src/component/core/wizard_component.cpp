#include "component/core/wizard_component.h"

#include "model/center.h"

// Std
#include <utility>

namespace tnw {

// Each dialog raises its events on its own sink, since the same event (ShowTNWSelMethod,
// SendMasseges) means a different relay depending on which dialog raised it.
class WizardComponent::SelMethodSink : public selmethod::SelMethodEvents {
 public:
  explicit SelMethodSink(WizardComponent& c) : m_c(c) {}
  void ShowTNWDirect() override { m_c.mSelMethod_ShowTNWDirect(); }
  void ShowTNWTradeOffsA() override { m_c.mSelMethod_ShowTNWTradeOffsA(); }
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    m_c.relayUnloadTNWizard(fIndex, WeightsDone);
  }
  void SendMasseges(const std::string& Msg) override { m_c.relaySendMasseges(Msg); }

 private:
  WizardComponent& m_c;
};

class WizardComponent::DirectASink : public direct::DirectAEvents {
 public:
  explicit DirectASink(WizardComponent& c) : m_c(c) {}
  void ExportDirectAW(const std::string& TNType, std::int16_t RefAttID,
                      std::vector<double>& Weights, std::vector<double>& WeightsH,
                      std::vector<double>& WeightsL) override {
    m_c.relayExportDirectAW(TNType, RefAttID, Weights, WeightsH, WeightsL);
  }
  void SendMasseges(const std::string& Msg) override { m_c.relaySendMasseges(Msg); }
  void ShowTNWSelMethod() override { m_c.mDirectA_ShowTNWSelMethod(); }
  void UnloadDirectA() override { m_c.mDirectA_UnloadDirectA(); }
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    m_c.relayUnloadTNWizard(fIndex, WeightsDone);
  }

 private:
  WizardComponent& m_c;
};

class WizardComponent::TradeOffsASink : public tradeoffs::TradeOffsAEvents {
 public:
  explicit TradeOffsASink(WizardComponent& c) : m_c(c) {}
  void ExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                        std::vector<double>& WeightsH, std::vector<double>& WeightsL) override {
    m_c.relayExportTradeOffsW(TNType, Weights, WeightsH, WeightsL);
  }
  void SendMasseges(const std::string& Msg) override { m_c.relaySendMasseges(Msg); }
  void ShowTNWSelMethod() override { m_c.mTNWTradeOffsA_ShowTNWSelMethod(); }
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    m_c.relayUnloadTNWizard(fIndex, WeightsDone);
  }

 private:
  WizardComponent& m_c;
};

WizardComponent::WizardComponent(WizardDialogFactory& factory, UiServices& ui,
                                 ModelReader readModel)
    : m_factory(factory),
      m_ui(ui),
      m_readModel(std::move(readModel)),
      m_selMethodSink(std::make_unique<SelMethodSink>(*this)),
      m_directASink(std::make_unique<DirectASink>(*this)),
      m_tradeOffsASink(std::make_unique<TradeOffsASink>(*this)) {}

WizardComponent::~WizardComponent() {
  // The pending continuation belongs to a modal show that will never return now.
  m_whenSelMethodHidden = nullptr;
  m_events = nullptr;
  release(Slot::SelMethod);
  release(Slot::DirectA);
  release(Slot::TradeOffsA);
}

void WizardComponent::GetCurFileData(const std::string& NorixDir, std::int16_t FileIndex,
                                     const std::string& PathAndFileName) {
  m_context.NorixDir = NorixDir;
  m_context.FileIndex = FileIndex;
  m_context.PathAndFileName = PathAndFileName;
  if (m_readModel) m_readModel(m_context.PathAndFileName, m_context.model, m_ui);
}

void WizardComponent::ShowTNWizard() {
  if (mSelMethod) {
    mSelMethod->setDialogVisible(true);
    return;
  }
  if (!create(Slot::SelMethod)) return;
  mSelMethod->showModeless();
}

void WizardComponent::UnloadTNWizard() {
  for (Slot slot : {Slot::DirectA, Slot::TradeOffsA, Slot::SelMethod}) {
    if (field(slot)) hide(slot);
  }
  release(Slot::SelMethod);
  release(Slot::DirectA);
  release(Slot::TradeOffsA);
}

void WizardComponent::endAfterFailure(const std::string& message) noexcept {
  if (m_ending) return;
  m_ending = true;
  try {
    m_ui.messageBox(message, MessageIcon::Exclamation, "NORIX");
  } catch (...) {
    // The wizard ends all the same.
  }
  try {
    UnloadTNWizard();
  } catch (...) {
    // Whatever could not be released goes with the component.
  }
  m_ending = false;
  // Last: the host may destroy the component from inside its handler.
  try {
    relayUnloadTNWizard(m_context.FileIndex, false);
  } catch (...) {
    // The host's own failure does not go back into the event loop either.
  }
}

void WizardComponent::mSelMethod_ShowTNWDirect() {
  hide(Slot::SelMethod);
  if (!mDirectA && !create(Slot::DirectA)) {
    // No direct-method dialog could be made: the user stays on method selection.
    if (mSelMethod) mSelMethod->setDialogVisible(true);
    return;
  }
  mDirectA->showModal();
}

void WizardComponent::mSelMethod_ShowTNWTradeOffsA() {
  hide(Slot::SelMethod);
  if (!mTNWTradeOffsA && !create(Slot::TradeOffsA)) {
    if (mSelMethod) mSelMethod->setDialogVisible(true);
    return;
  }
  mTNWTradeOffsA->showModal();
}

void WizardComponent::mDirectA_ShowTNWSelMethod() {
  hide(Slot::DirectA);
  if (!mSelMethod && !create(Slot::SelMethod)) return;
  // A later hide of the selection dialog ends this modal show; only then is mDirectA released.
  runWhenSelMethodHidden();
  m_whenSelMethodHidden = [this] { release(Slot::DirectA); };
  mSelMethod->showModal();
}

void WizardComponent::mTNWTradeOffsA_ShowTNWSelMethod() {
  hide(Slot::TradeOffsA);
  if (mSelMethod) {
    mSelMethod->setDialogVisible(true);
  } else {
    // Unreachable in the normal flow; a fresh selection dialog keeps the user inside the wizard.
    ShowTNWizard();
  }
  release(Slot::TradeOffsA);
}

void WizardComponent::mDirectA_UnloadDirectA() {
  hide(Slot::DirectA);
  release(Slot::DirectA);
}

void WizardComponent::relayUnloadTNWizard(std::int16_t fIndex, bool WeightsDone) {
  if (m_events) m_events->UnloadTNWizard(fIndex, WeightsDone);
}

void WizardComponent::relaySendMasseges(const std::string& Msg) {
  if (m_events) m_events->SendMasseges(Msg);
}

void WizardComponent::relayExportDirectAW(const std::string& TNType, std::int16_t RefAttID,
                                          std::vector<double>& Weights,
                                          std::vector<double>& WeightsH,
                                          std::vector<double>& WeightsL) {
  if (m_events) m_events->ExportDirectAW(TNType, RefAttID, Weights, WeightsH, WeightsL);
}

void WizardComponent::relayExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                                            std::vector<double>& WeightsH,
                                            std::vector<double>& WeightsL) {
  if (m_events) m_events->ExportTradeOffsW(TNType, Weights, WeightsH, WeightsL);
}

std::unique_ptr<WizardDialog>& WizardComponent::field(Slot slot) {
  switch (slot) {
    case Slot::SelMethod:
      return mSelMethod;
    case Slot::DirectA:
      return mDirectA;
    case Slot::TradeOffsA:
      break;
  }
  return mTNWTradeOffsA;
}

bool WizardComponent::create(Slot slot) {
  std::unique_ptr<WizardDialog> dialog;
  switch (slot) {
    case Slot::SelMethod:
      dialog = m_factory.createSelMethod(m_context, *m_selMethodSink);
      break;
    case Slot::DirectA:
      dialog = m_factory.createDirectA(m_context, *m_directASink);
      break;
    case Slot::TradeOffsA:
      dialog = m_factory.createTradeOffsA(m_context, *m_tradeOffsASink);
      break;
  }
  if (!dialog) return false;
  dialog->setFailureHandler([this](const std::string& message) { endAfterFailure(message); });
  center(*dialog);
  // A dialog's loading may have raised an event whose host handler filled the field meanwhile.
  release(slot);
  field(slot) = std::move(dialog);
  return true;
}

void WizardComponent::center(WizardDialog& dialog) {
  const DialogPosition at = Center(m_ui.screenSize(), dialog.dialogSize());
  dialog.moveDialog(at.left, at.top);
}

void WizardComponent::hide(Slot slot) {
  if (WizardDialog* dialog = field(slot).get()) dialog->setDialogVisible(false);
  if (slot == Slot::SelMethod) runWhenSelMethodHidden();
}

void WizardComponent::release(Slot slot) {
  std::unique_ptr<WizardDialog> dialog = std::move(field(slot));
  if (slot == Slot::SelMethod) runWhenSelMethodHidden();
  if (!dialog) return;
  // A released dialog that is still to be destroyed ends nothing any more.
  dialog->setFailureHandler(nullptr);
  m_factory.release(std::move(dialog));
}

void WizardComponent::runWhenSelMethodHidden() {
  std::function<void()> next = std::move(m_whenSelMethodHidden);
  m_whenSelMethodHidden = nullptr;
  if (next) next();
}

}  // namespace tnw

#include "component/tnw_mavt.h"

#include "common/ui/widget_ui_services.h"
#include "component/core/wizard_component.h"
#include "component/json_judgment_files.h"
#include "component/ui/widget_dialog_factory.h"
#include "component/ui/wizard_backend.h"

namespace tnw {

// Everything a wizard object owns. It forwards the events to the host's listener and counts
// how deep it is inside them, so that a host destroying the object from inside an event does
// not pull the data and dialogs from under the frames still to return.
struct TNW_MAVT::Impl : TnwMavtEvents {
  explicit Impl(UiServices* hostUi)
      : parts(hostUi, jsonJudgmentFiles()),
        component(parts.factory(), parts.ui(), parts.modelReader()) {
    component.setEvents(this);
  }

  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    Depth d(depth);
    if (host) host->UnloadTNWizard(fIndex, WeightsDone);
  }
  void ExportDirectAW(const std::string& TNType, std::int16_t RefAttID,
                      std::vector<double>& Weights, std::vector<double>& WeightsH,
                      std::vector<double>& WeightsL) override {
    Depth d(depth);
    if (host) host->ExportDirectAW(TNType, RefAttID, Weights, WeightsH, WeightsL);
  }
  void ExportTradeOffsW(const std::string& TNType, std::vector<double>& Weights,
                        std::vector<double>& WeightsH, std::vector<double>& WeightsL) override {
    Depth d(depth);
    if (host) host->ExportTradeOffsW(TNType, Weights, WeightsH, WeightsL);
  }
  void SendMasseges(const std::string& Msg) override {
    Depth d(depth);
    if (host) host->SendMasseges(Msg);
  }

  struct Depth {
    explicit Depth(int& d) : depth(d) { ++depth; }
    ~Depth() { --depth; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;
    int& depth;
  };

  WizardBackend parts;
  WizardComponent component;
  TnwMavtEvents* host = nullptr;
  int depth = 0;
};

TNW_MAVT::TNW_MAVT() : m_impl(std::make_unique<Impl>(nullptr)) {}

TNW_MAVT::TNW_MAVT(UiServices& ui) : m_impl(std::make_unique<Impl>(&ui)) {}

TNW_MAVT::~TNW_MAVT() {
  if (m_impl->depth == 0) return;
  // Destroyed from inside one of its own events: the host gets no more events, and the rest
  // goes once control is back in the event loop.
  m_impl->host = nullptr;
  Impl* impl = m_impl.release();
  WidgetDialogFactory::runLater([impl] { delete impl; });
}

void TNW_MAVT::setEvents(TnwMavtEvents* events) { m_impl->host = events; }

void TNW_MAVT::setHelpHandler(HelpHandler handler) {
  if (WidgetUiServices* ui = m_impl->parts.qtUi()) ui->setHelpHandler(std::move(handler));
}

void TNW_MAVT::GetCurFileData(const std::string& NorixDir, std::int16_t FileIndex,
                              const std::string& PathAndFileName) {
  m_impl->component.GetCurFileData(NorixDir, FileIndex, PathAndFileName);
}

void TNW_MAVT::ShowTNWizard() { m_impl->component.ShowTNWizard(); }

void TNW_MAVT::UnloadTNWizard() { m_impl->component.UnloadTNWizard(); }

const WizardContext& TNW_MAVT::context() const { return m_impl->component.context(); }

}  // namespace tnw

#include "component/tnw_mavt.h"

#include "common/ui_services_qt.h"
#include "component/wizard_component.h"
#include "component/wizard_dialog_factory_qt.h"
#include "model/model_file_reader.h"

namespace tnw {

struct TNW_MAVT::Impl {
  explicit Impl(UiServices* hostUi)
      : ownUi(hostUi == nullptr ? std::make_unique<UiServicesQt>() : nullptr),
        ui(hostUi == nullptr ? *ownUi : *hostUi),
        factory(ui),
        component(factory, ui,
                  [](const std::string& path, AttributeModel& model, UiServices& services) {
                    OpenRelatedFileForTNW(path, model, services);
                  }) {}

  std::unique_ptr<UiServicesQt> ownUi;
  UiServices& ui;
  WizardDialogFactoryQt factory;
  WizardComponent component;
};

TNW_MAVT::TNW_MAVT() : m_impl(std::make_unique<Impl>(nullptr)) {}

TNW_MAVT::TNW_MAVT(UiServices& ui) : m_impl(std::make_unique<Impl>(&ui)) {}

TNW_MAVT::~TNW_MAVT() = default;

void TNW_MAVT::setEvents(TnwMavtEvents* events) { m_impl->component.setEvents(events); }

void TNW_MAVT::setHelpHandler(HelpHandler handler) {
  if (m_impl->ownUi) m_impl->ownUi->setHelpHandler(std::move(handler));
}

void TNW_MAVT::GetCurFileData(std::string& NorixDir, std::int16_t FileIndex,
                              const std::string& PathAndFileName) {
  m_impl->component.GetCurFileData(NorixDir, FileIndex, PathAndFileName);
}

void TNW_MAVT::ShowTNWizard() { m_impl->component.ShowTNWizard(); }

void TNW_MAVT::UnloadTNWizard() { m_impl->component.UnloadTNWizard(); }

const WizardContext& TNW_MAVT::context() const { return m_impl->component.context(); }

}  // namespace tnw

#include "scripted/scripted_dialog_backend.h"

#include "model/model_file_reader.h"

namespace tnw {

ScriptedDialogBackend::ScriptedDialogBackend(MessageWindow& window)
    : m_ui(m_trace), m_scenario(m_trace), m_factory(m_scenario, m_ui, window, m_trace) {}

WizardComponent::ModelReader ScriptedDialogBackend::modelReader() {
  const ScriptedTrace& trace = m_trace;
  return [&trace](const std::string& PathAndFileName, AttributeModel& model, UiServices& ui) {
    OpenRelatedFileForTNW(PathAndFileName, model, ui);
    trace.write("model read " + PathAndFileName + " NumAtt " + std::to_string(model.NumAtt));
  };
}

std::unique_ptr<DialogBackend> makeDialogBackend(MessageWindow& window) {
  return std::make_unique<ScriptedDialogBackend>(window);
}

}  // namespace tnw

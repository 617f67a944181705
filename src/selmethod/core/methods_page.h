#pragma once

#include "wizard/core/wizard_page.h"

// Std
#include <string>
#include <vector>

namespace tnw {
struct AttributeModel;
}  // namespace tnw

namespace tnw::selmethod {

// The one page of the method-selection dialog: the list of methods, the selected one and the
// description shown beside it. Next leaves the dialog for the selected method's dialog, so the
// page names no next page of its own.
class MethodsPage : public wizard::WizardPage {
 public:
  // A page over the model, whose earlier result (PrevTNType) chooses the preselected method; the
  // model must outlive the page.
  explicit MethodsPage(const AttributeModel& model) : m_model(model) {}

  // Loading: fills the list, preselects the earlier result's method and describes it.
  void initializePage() override;
  // The only page.
  int nextId() const override { return kNoNextPage; }
  // A method is selected.
  bool isComplete() const override { return m_selectedIndex >= 0; }

  // The user selected list item index (-1 for none); the description does not follow.
  void lstMethods_Click(int index);
  // Shows the description of method index (0..4) in the two labels; other indexes do nothing.
  void ShowMethodDescription(int index);

  // The items of lstMethods, in order.
  const std::vector<std::string>& methods() const { return m_methods; }
  // The selected item of lstMethods (-1 for none).
  int selectedIndex() const { return m_selectedIndex; }
  // The caption of lblSelectedMethodName.
  const std::string& selectedMethodName() const { return m_selectedMethodName; }
  // The caption of lblDescription.
  const std::string& description() const { return m_description; }

 private:
  const AttributeModel& m_model;
  std::vector<std::string> m_methods;
  int m_selectedIndex = -1;
  std::string m_selectedMethodName = "Selected method:";
  std::string m_description = "Description contents";
};

}  // namespace tnw::selmethod

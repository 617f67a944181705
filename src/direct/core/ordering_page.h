#pragma once

#include "direct/core/direct_a_shared.h"
#include "direct/core/importance_order.h"
#include "direct/core/previous_judgments.h"
#include "wizard/core/control_states.h"
#include "wizard/core/wizard_page.h"

// Std
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tnw::direct {

// Step 0 of the direct method: the attribute list on the left (cmdAttA, lblAttName,
// optAttInfo), the order panel on the right (picOrder boxes with the placed buttons cmdAttB),
// cmdAdd and cmdInsert, and the attribute information frame.
class OrderingPage : public wizard::WizardPage {
 public:
  // The step this page is on.
  static constexpr int kStep = 0;
  // Button faces (0x00BBGGRR): light red for benefit-, light blue for cost-oriented attributes.
  static constexpr std::uint32_t kBenefitFace = 0xC0C0FF;  // RGB 255, 192, 192
  static constexpr std::uint32_t kCostFace = 0xFFC0C0;     // RGB 192, 192, 255

  // The page's fixed texts.
  static constexpr const char* kAttributesLabel = "Attributes:";
  static constexpr const char* kOrderLabel = "Initial importance order:";
  static constexpr const char* kInstruction =
      "Order relative importance of the attributes by dragging the attribute name buttons on the "
      "left to the yellow boxes on the right.";
  static constexpr const char* kNotice =
      "    Notice that: (1) The attributes in the 1st group are the most important, the ones in "
      "the 2nd group are less important relative to the 1st group, and so on. (2) The attributes "
      "with red labels are benefit-oriented, while the ones with blue labels are cost-oriented.";

  // One attribute button of the list (cmdAttA(i)) or of the reference choice (cmdAttButtons(i)).
  struct AttributeButton {
    std::string caption;      // the trimmed attribute name
    std::uint32_t faceColor;  // kBenefitFace or kCostFace
    bool visible = true;      // list buttons hide once placed
  };

  // The page over the shared data; numAtt attributes (0..31).
  OrderingPage(DirectAShared& shared, int numAtt);

  // Loading: the attribute list and two empty groups, or the order of an earlier result when
  // the model holds one; with no usable attributes, Add and Insert are disabled and a message
  // says why. Next and Finish start disabled.
  void initializePage() override;
  // Back from the reference choice: Next is enabled again (the order is complete).
  void revisitPage() override;
  // The reference choice comes next.
  int nextId() const override { return kStep + 1; }
  // Complete once every attribute is placed (or an earlier order resumed), which enables Next.
  bool isComplete() const override { return m_shared.usable && m_shared.buttons.cmdNext.enabled; }

  // Builds the attribute buttons and shows attribute 0's information (IniAttList).
  void IniAttList();
  // Two empty groups (IniOrderList).
  void IniOrderList();
  // Shows an order rebuilt from an earlier result (DisplayPreviousOrder).
  void DisplayPreviousOrder(const PreviousJudgments::Order& order);

  // A drop with drag payload `tag` on the box of `group` (picOrder_DragDrop).
  ImportanceOrder::DropResult dropOnGroup(std::string_view tag, int group);
  // A drop on the placed button of attribute `placedAtt` (cmdAttB_DragDrop).
  ImportanceOrder::DropResult dropOnPlacedAttribute(std::string_view tag, int placedAtt);
  // cmdAdd_Click; false when Add is disabled.
  bool add();
  // cmdInsert_Click; false when Insert is disabled.
  bool insert();
  // picOrder_Click / lblOrderID_Click on the box of `group`.
  void clickGroup(int group);
  // cmdAttB_Click on the placed button of attribute j: selects its group.
  void clickPlacedAttribute(int j);
  // lblAttName_Click / optAttInfo_Click: shows attribute j's information.
  void showAttributeInfo(int j);
  // A drag over the attribute list: shows the dragged attribute's information.
  void dragOverAttributeList(std::string_view tag);

  // The ordering model.
  const ImportanceOrder& order() const { return m_order; }
  // The list buttons cmdAttA(i), in model order.
  const std::vector<AttributeButton>& attributeButtons() const { return m_buttons; }
  // The selected option button optAttInfo (the attribute whose information shows).
  int selectedInfo() const { return m_info; }
  // The button of attribute j as the reference choice shows it (same caption and face).
  AttributeButton referenceButton(int j) const;
  // Add and Insert, shown on this step only.
  const wizard::ButtonState& cmdAdd() const { return m_cmdAdd; }
  const wizard::ButtonState& cmdInsert() const { return m_cmdInsert; }
  // The information frame's caption and its attribute's name, orientation and definition.
  const wizard::LabelState& frameAttInfo() const { return m_frameAttInfo; }
  const wizard::LabelState& labAttName() const { return m_labAttName; }
  const wizard::LabelState& labAttProperty() const { return m_labAttProperty; }
  const wizard::LabelState& txtAttDefinition() const { return m_txtAttDefinition; }
  // The notice under the order panel.
  const wizard::LabelState& lblNotice3() const { return m_lblNotice3; }
  // Shows Add and Insert on this page's step, hides them on the others.
  void showButtons(bool visible);

 private:
  void refreshButtons();
  void resumeEarlierOrder();

  DirectAShared& m_shared;
  ImportanceOrder m_order;
  std::vector<AttributeButton> m_buttons;
  int m_info = 0;
  wizard::ButtonState m_cmdAdd{"&Add"};
  wizard::ButtonState m_cmdInsert{"&Insert"};
  wizard::LabelState m_frameAttInfo{"Attribute 1's information"};
  wizard::LabelState m_labAttName;
  wizard::LabelState m_labAttProperty;
  wizard::LabelState m_txtAttDefinition;
  wizard::LabelState m_lblNotice3{kNotice};
};

}  // namespace tnw::direct

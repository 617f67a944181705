#pragma once

#include "direct/core/weight_ratio_judgments.h"
#include "model/attribute_model.h"

// Std
#include <string>
#include <vector>

namespace tnw::direct {

// The target list imgcmbTargetAtt of the judgment page (ListAtt) and the choice of a target.
class TargetList {
 public:
  // One item of the list; item i stands for attribute i.
  struct Item {
    std::string text;           // trimmed name, " ¤ " in front once judged
    std::string key;            // "Benefit1", "Cost2", ...
    std::string image;          // "Smiling", "Smiling2", "Crying", "Crying2"
    std::string selectedImage;  // "Smiling1", "Smiling2", "Crying1", "Crying2"
  };

  // The outcome of choosing a target.
  enum class Choice {
    Chosen,           // the attribute became the current target
    ReferenceItself,  // refused: it is the reference attribute
    SameGroup,        // refused: it is tied with the reference attribute
    Ignored           // not an item of the list
  };

  // The prefix of a judged target's text: blank, currency sign, blank.
  static constexpr const char* kJudgedPrefix = " \xC2\xA4 ";

  // Fills the list for the model's attributes (ListAtt) and picks the first target: the first
  // attribute whose group differs from the reference's (none when every one is tied with it).
  void ListAtt(const AttributeModel& model, const WeightRatioJudgments& judgments, int refAtt);
  // Empties the list and forgets the target.
  void clear();
  // Chooses attribute i as the target (imgcmbTargetAtt_Click).
  Choice choose(int i, const WeightRatioJudgments& judgments, int refAtt);
  // Marks attribute i's item as judged (" ¤ " and its name).
  void markJudged(int i);

  // The items, in model order.
  const std::vector<Item>& items() const { return m_items; }
  // The current target; -1 when there is none.
  int currentTarget() const { return m_target; }
  // The item selected in the list; -1 when none.
  int selectedIndex() const { return m_selected; }
  // Counts of benefit- and cost-oriented attributes.
  int benefitCount() const { return m_benefitCount; }
  int costCount() const { return m_costCount; }

 private:
  std::vector<Item> m_items;
  std::vector<std::string> m_names;
  int m_target = -1;
  int m_selected = -1;
  int m_benefitCount = 0;
  int m_costCount = 0;
};

}  // namespace tnw::direct

#include "tradeoffs/core/saved_judgments.h"

#include "common/core/number_format.h"
#include "common/core/ui_services.h"
#include "model/value_function.h"
#include "tradeoffs/core/judgment_entry.h"
#include "tradeoffs/core/score_entry.h"
#include "tradeoffs/core/tradeoffs_a_presenter.h"
#include "wizard/core/wizard_context.h"

namespace tnw::tradeoffs {
namespace {

constexpr const char* kTitle = "NORIX";

// "judgment [2]: " as the file's readers name a judgment by its 0-based place.
std::string judgmentName(std::size_t at) { return "judgment [" + std::to_string(at) + "]: "; }

// The pair the two lists hold after choosing j's pair from (first, second) the way
// enterJudgment does, each click refused where the dialog's lists refuse it.
std::pair<int, int> chosenPair(int first, int second, int numAtt, const TradeOffJudgment& j) {
  const auto clickFirst = [&](int t) {
    if (t != second) first = t;
  };
  const auto clickSecond = [&](int t) {
    if (t != first) second = t;
  };
  if (j.first == second && j.second == first) {
    for (int t = 0; t < numAtt; ++t) {
      if (t != j.first && t != j.second) {
        clickFirst(t);
        break;
      }
    }
  }
  if (j.first == second) {
    clickSecond(j.second);
    clickFirst(j.first);
  } else {
    clickFirst(j.first);
    clickSecond(j.second);
  }
  return {first, second};
}

// Why score cannot be entered for attribute att: outside the range between its stored ends, as
// Enter checks it, or without a single-attribute value.
std::optional<std::string> scoreProblem(const AttributeModel& model, int att, double score) {
  const auto a = static_cast<std::size_t>(att);
  const std::string text = generalText(score);
  if (auto message = ScoreEntry::checkRange(text, static_cast<float>(model.AttScoreLow[a]),
                                            static_cast<float>(model.AttScoreHigh[a]))) {
    return message;
  }
  const AttValueResult value = SingleAttValue(model, att, leadingNumber(text));
  if (!value.value) return valueFailureMessage(model, att, value.failure);
  return std::nullopt;
}

}  // namespace

SavedJudgments::SavedJudgments(WizardContext& context, UiServices& ui,
                               TradeOffsAPresenter& presenter, const JudgmentsFile* file)
    : m_context(context), m_ui(ui), m_presenter(presenter), m_file(file) {}

wizard::ButtonState SavedJudgments::cmdSaveJudgments() const {
  return {kSaveCaption, m_presenter.judgmentPage().store().JudgmentCount > 0, m_file != nullptr};
}

wizard::ButtonState SavedJudgments::cmdLoadJudgments() const {
  return {kLoadCaption, !m_presenter.modelProblem().has_value(), m_file != nullptr};
}

std::vector<TradeOffJudgment> SavedJudgments::recorded(const JudgmentStore& store) {
  std::vector<TradeOffJudgment> out;
  const auto count = static_cast<std::size_t>(store.JudgmentCount < 0 ? 0 : store.JudgmentCount);
  for (std::size_t k = 0; k < count && k < store.FirstAtt.size(); ++k) {
    TradeOffJudgment j;
    j.first = store.FirstAtt[k];
    j.second = store.SecondAtt[k];
    j.scores[0] = store.ScoreAFirst[k];
    j.scores[1] = store.ScoreBFirst[k];
    j.scores[2] = store.ScoreASecond[k];
    j.scores[3] = store.ScoreBSecond[k];
    j.response = store.PrefResponse[k];
    out.push_back(j);
  }
  return out;
}

std::optional<std::string> SavedJudgments::problem(
    const std::vector<TradeOffJudgment>& judgments) const {
  const AttributeModel& model = m_context.model;
  const int numAtt = model.attributeCount();
  const JudgmentPage& page = m_presenter.judgmentPage();
  const auto needed = static_cast<std::size_t>(page.TradeOffsNeeded());
  if (judgments.size() > needed) {
    return "The file holds " + std::to_string(judgments.size()) + " judgments; this model needs " +
           std::to_string(needed) + ", and no more can be entered.";
  }
  int first = page.FirstAttIndex();
  int second = page.SecondAttIndex();
  for (std::size_t at = 0; at < judgments.size(); ++at) {
    const TradeOffJudgment& j = judgments[at];
    if (j.first < 0 || j.first >= numAtt || j.second < 0 || j.second >= numAtt) {
      return judgmentName(at) + "the pair is not a pair of the model's attributes.";
    }
    std::tie(first, second) = chosenPair(first, second, numAtt, j);
    if (first != j.first || second != j.second) {
      return judgmentName(at) + "the lists cannot choose this pair (" + std::to_string(j.first) +
             ", " + std::to_string(j.second) + ").";
    }
    const int atts[4] = {j.first, j.first, j.second, j.second};
    for (std::size_t i = 0; i < 4; ++i) {
      if (auto message = scoreProblem(model, atts[i], j.scores[i])) {
        return judgmentName(at) + *message;
      }
    }
    if (j.response < -3 || j.response > 3) {
      return judgmentName(at) + "the response must be an integer from -3 to 3.";
    }
  }
  return std::nullopt;
}

bool SavedJudgments::replace(const std::vector<TradeOffJudgment>& judgments) {
  if (auto why = problem(judgments)) {
    warn("These judgments cannot be loaded, and nothing was changed.\r" + *why);
    return false;
  }
  const int numAtt = m_context.model.attributeCount();
  m_presenter.cmdTradeOffClearAll_Click();
  m_presenter.optPCManual_Click();
  for (const TradeOffJudgment& j : judgments) enterJudgment(m_presenter, numAtt, j);
  return true;
}

void SavedJudgments::cmdSaveJudgments_Click() {
  if (m_file == nullptr || !cmdSaveJudgments().enabled) return;
  const std::string path = m_ui.chooseSaveFile("Save the judgments", kFilter, kSuggestedName);
  if (path.empty()) return;
  if (auto why = m_file->save(path, recorded(m_presenter.judgmentPage().store()))) {
    warn("The judgments could not be saved.\r" + *why);
  }
}

void SavedJudgments::cmdLoadJudgments_Click() {
  if (m_file == nullptr || !cmdLoadJudgments().enabled) return;
  const std::string path = m_ui.chooseOpenFile("Load judgments", kFilter);
  if (path.empty()) return;
  std::vector<TradeOffJudgment> judgments;
  if (auto why = m_file->load(path, m_context.model.attributeCount(), judgments)) {
    warn("These judgments cannot be loaded, and nothing was changed.\r" + *why);
    return;
  }
  replace(judgments);
}

void SavedJudgments::warn(const std::string& text) {
  m_ui.beep();
  m_ui.messageBox(text, MessageIcon::Exclamation, kTitle);
}

}  // namespace tnw::tradeoffs

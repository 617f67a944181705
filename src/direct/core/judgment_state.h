#pragma once

namespace tnw::direct {

// The judgment status the page keeps: 0 when cleared, else as Check_Judgment_Status found it.
enum class JudgmentState {
  None = 0,         // cleared by IniJudgmentStatusA or a new page
  Invalid = 1,      // a handle too near the corner or outside the area
  Consistent = 2,   // the interval agrees with the judged attributes of other groups
  Inconsistent = 3  // it contradicts a judged attribute of another group
};

}  // namespace tnw::direct

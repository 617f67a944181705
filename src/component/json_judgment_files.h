#pragma once

#include "component/ui/widget_dialog_factory.h"
#include "model_json/judgment_files.h"

namespace tnw {

// The judgment files of the dialogs in the JSON forms the command line reads, for every host of
// the Qt dialogs: the component's library and the Windows server.
inline JudgmentFiles jsonJudgmentFiles() {
  static const JsonJudgmentsFile tradeOffs;
  static const JsonIntervalsFile direct;
  return {&tradeOffs, &direct};
}

}  // namespace tnw

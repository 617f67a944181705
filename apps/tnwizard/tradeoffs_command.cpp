// tnwizard tradeoffs MODEL JUDGMENTS.json: records judgments as the trade-off dialog's Enter does
// and runs the regression of its Next button, through the dialog's own presenter.

#include "commands.h"
#include "wizard/core/wizard_context.h"
#include "console_ui_services.h"
#include "model/model_file_reader.h"
#include "model_json/judgments_json.h"
#include "model_json/tradeoffs_player.h"
#include "tradeoffs/core/clock_random_source.h"

// Std
#include <cstdio>
#include <string>

int runTradeOffs(const std::vector<std::string>& args) {
  if (args.size() != 2) return tnwUsage();
  tnw::ConsoleUiServices console;
  tnw::WizardContext ctx;
  ctx.PathAndFileName = args[0];
  ctx.FileIndex = 1;
  if (!tnw::OpenRelatedFileForTNW(args[0], ctx.model, console).opened) return kExitCannotOpen;
  std::string text;
  if (const int status = readJsonInputFile(args[1], tnw::kJudgmentsJsonLimits.maxBytes, text)) {
    return status;
  }
  std::vector<tnw::tradeoffs::TradeOffJudgment> judgments;
  if (const auto error = tnw::readTradeOffJudgments(text, ctx.model.attributeCount(), judgments)) {
    std::fprintf(stderr, "%s\n", tnw::inputErrorLine(args[1], *error).c_str());
    return 1;
  }
  tnw::tradeoffs::ClockRandomSource random;
  const std::string out = tnw::playTradeOffJudgments(ctx, judgments, random)
                              .dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  std::printf("%s\n", out.c_str());
  return 0;
}

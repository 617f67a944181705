// tnwizard value MODEL ATT SCORE...

#include "commands.h"
#include "common/core/number_format.h"
#include "console_ui_services.h"
#include "model/model_file_reader.h"
#include "model/value_function.h"

// Std
#include <charconv>
#include <cmath>
#include <cstdio>

namespace {

template <typename T>
bool parseWhole(const std::string& text, T& out) {
  const char* end = text.data() + text.size();
  const auto res = std::from_chars(text.data(), end, out);
  return res.ec == std::errc() && res.ptr == end;
}

}  // namespace

int runValue(const std::vector<std::string>& args) {
  if (args.size() < 3) return tnwUsage();
  int att = 0;
  if (!parseWhole(args[1], att)) return tnwUsage();
  std::vector<double> scores;
  for (std::size_t i = 2; i < args.size(); ++i) {
    double score = 0.0;
    if (!parseWhole(args[i], score) || !std::isfinite(score)) return tnwUsage();
    scores.push_back(score);
  }
  tnw::ConsoleUiServices ui;
  tnw::AttributeModel model;
  if (!tnw::OpenRelatedFileForTNW(args[0], model, ui).opened) return kExitCannotOpen;
  for (double score : scores) {
    const tnw::AttValueResult r = tnw::SingleAttValue(model, att, score);
    if (!r.value) {
      std::fprintf(stderr, "tnwizard: %s\n",
                   tnw::valueFailureMessage(model, att, r.failure).c_str());
      return 1;
    }
    std::printf("%s\n", tnw::formatNumber(r.value->toDouble(), "0.0000").c_str());
  }
  return 0;
}

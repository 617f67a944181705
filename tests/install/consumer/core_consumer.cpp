// A program that uses the Qt-free core alone (TNWizard::core): reads a model file and values the
// first attribute's first point.

#include <common/core/ui_services.h>
#include <model/model_file_reader.h>
#include <model/value_function.h>

#include <cstdio>
#include <string>

namespace {

// No windows here: a message is printed, the rest is ignored.
class PrintingUi : public tnw::UiServices {
 public:
  void messageBox(const std::string& text, tnw::MessageIcon, const std::string&) override {
    std::fprintf(stderr, "core_consumer: %s\n", text.c_str());
    ++shown;
  }
  void beep() override {}
  void setBusy(bool) override {}
  void showHelp(const std::string&, int) override {}
  tnw::ScreenSize screenSize() const override { return {}; }

  int shown = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 1;
  PrintingUi ui;
  tnw::AttributeModel model;
  tnw::OpenRelatedFileForTNW(argv[1], model, ui);
  if (ui.shown != 0 || model.NumAtt <= 0 || !model.PointScore[0][0]) return 1;
  const tnw::AttValueResult value = tnw::SingleAttValue(model, 0, *model.PointScore[0][0]);
  if (!value.value) return 1;
  std::printf("core_consumer: %d attributes, the first valued\n", int{model.NumAtt});
  return 0;
}

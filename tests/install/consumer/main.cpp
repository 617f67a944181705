// A host that embeds the installed wizard, linking TNWizard::mavt alone: shows it headless,
// presses Cancel on the selection dialog and checks that the events arrive as documented.

#include <component/tnw_mavt.h>
#include <wizard/core/wizard_context.h>

#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <cstdio>
#include <string>
#include <vector>

namespace {

// The host's own message boxes, pointer and help: it keeps the message texts.
class HostUi : public tnw::UiServices {
 public:
  void messageBox(const std::string& text, tnw::MessageIcon, const std::string&) override {
    messages.push_back(text);
  }
  void beep() override {}
  void setBusy(bool) override {}
  void showHelp(const std::string&, int) override {}
  tnw::ScreenSize screenSize() const override { return {1024, 768}; }

  std::vector<std::string> messages;
};

class Host : public tnw::TnwMavtEvents {
 public:
  explicit Host(tnw::TNW_MAVT& wizard) : m_wizard(wizard) {}
  void SendMasseges(const std::string& Msg) override { messages.push_back(Msg); }
  void UnloadTNWizard(std::int16_t fIndex, bool WeightsDone) override {
    unloadIndex = fIndex;
    unloadDone = WeightsDone;
    m_wizard.UnloadTNWizard();
    QCoreApplication::exit(0);
  }

  std::vector<std::string> messages;
  int unloadIndex = -1;
  bool unloadDone = true;

 private:
  tnw::TNW_MAVT& m_wizard;
};

int fail(const char* what) {
  std::fprintf(stderr, "consumer: %s\n", what);
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return fail("usage: consumer MODEL");
  QApplication app(argc, argv);

  HostUi ui;
  tnw::TNW_MAVT wizard(ui);
  Host host(wizard);
  wizard.setEvents(&host);
  // The host's directory as a literal, as hosts pass it.
  wizard.GetCurFileData("/opt/norix", 5, argv[1]);
  if (!ui.messages.empty()) return fail("the model could not be read");
  if (wizard.context().NorixDir != "/opt/norix" || wizard.context().FileIndex != 5)
    return fail("GetCurFileData did not keep the host's values");
  if (wizard.context().model.NumAtt <= 0) return fail("the model has no attributes");
  wizard.ShowTNWizard();

  QTimer::singleShot(0, [] {
    for (QWidget* w : QApplication::topLevelWidgets()) {
      if (w->objectName() != QLatin1String("frmTNWSelMethod")) continue;
      if (auto* cancel = w->findChild<QPushButton*>(QStringLiteral("cmdCancel"))) cancel->click();
    }
  });
  QTimer::singleShot(10000, [] { QCoreApplication::exit(3); });
  const int status = QApplication::exec();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

  if (status != 0) return fail("no UnloadTNWizard event arrived");
  if (host.messages.size() != 1 ||
      host.messages[0] != "Select a method to make value judgments between the attributes.")
    return fail("unexpected status texts");
  if (host.unloadIndex != 5 || host.unloadDone) return fail("unexpected UnloadTNWizard values");
  if (!QApplication::topLevelWidgets().isEmpty()) return fail("a dialog was not released");
  std::puts("consumer: received SendMasseges and UnloadTNWizard(5, false)");
  return 0;
}

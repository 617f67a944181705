#pragma once

#include "common/core/ui_services.h"
#include "component/core/wizard_component.h"
#include "component/ui/widget_dialog_factory.h"

// Std
#include <memory>

class QApplication;
class QString;

namespace tnw {

class WidgetUiServices;

// The wizard's Qt parts, assembled in one place for every host that shows the Qt dialogs: the
// dialog factory, the UI services (Qt's own, or the host's) and the reader of the host's model
// file. TNW_MAVT builds its component from them, and so does the in-process automation server
// for Windows, which first makes sure the process has a QApplication (ensureApplication).
class WizardBackend {
 public:
  // Parts that show messages, the beep, the busy pointer and help with Qt, or through hostUi
  // when it is given (hostUi must outlive the backend). Dialogs are made only once a
  // QApplication exists. The dialogs save and load judgments with files.
  explicit WizardBackend(UiServices* hostUi = nullptr, JudgmentFiles files = {});
  ~WizardBackend();
  WizardBackend(const WizardBackend&) = delete;
  WizardBackend& operator=(const WizardBackend&) = delete;

  // The QApplication the dialogs run in, on the calling thread: the host's own where it has
  // one, else one made here that lives for the rest of the process and is never run with
  // exec() (the host's message loop delivers its events). Null when the process's application
  // cannot show widgets (a QCoreApplication or QGuiApplication) or belongs to another thread.
  // libraryDir, when not empty, is searched first for Qt's plugins by an application made here
  // (the folder where they are deployed beside a DLL).
  static QApplication* ensureApplication(const QString& libraryDir);
  // Whether ensureApplication made this process's QApplication.
  static bool madeApplication();

  // Makes and releases the Qt dialogs.
  WizardDialogFactory& factory() { return m_factory; }
  // The UI services the dialogs and the component use: the host's or the Qt ones.
  UiServices& ui() { return m_ui; }
  // The Qt UI services when the backend owns them (to install a help handler); null when the
  // host gave its own.
  WidgetUiServices* qtUi() { return m_ownUi.get(); }
  // Reads the host's model file with OpenRelatedFileForTNW.
  WizardComponent::ModelReader modelReader() const;

 private:
  std::unique_ptr<WidgetUiServices> m_ownUi;
  UiServices& m_ui;
  WidgetDialogFactory m_factory;
};

}  // namespace tnw

// The dialog backend of the server built with a Windows Qt: the wizard's own Qt dialogs, shown in
// the process's QApplication. The Qt parts are assembled by WizardBackend, which is built and
// tested on every platform; this file only adds what is particular to a DLL inside a Win32 host.

#include "component/json_judgment_files.h"
#include "component/ui/wizard_backend.h"
#include "component/windows/dialog_backend.h"
#include "component/windows/qt_platform_selection.h"
#include "component/windows/server_module.h"

// Qt
#include <QCoreApplication>
#include <QFileInfo>
#include <QString>
#include <QtPlugin>

// A static Qt has its plugins inside this DLL; they are registered here.
#ifdef QT_STATIC
Q_IMPORT_PLUGIN(QWindowsIntegrationPlugin)
#ifdef TNW_IMPORT_VISTA_STYLE
Q_IMPORT_PLUGIN(QWindowsVistaStylePlugin)
#endif
#endif

// Windows
#include <windows.h>

// Std
#include <mutex>
#include <string>

namespace tnw {

namespace {

// The Qt dialogs, UI services and model reader, behind the server's backend interface.
class QtDialogBackend final : public DialogBackend {
 public:
  // The Qt dialogs.
  WizardDialogFactory& factory() override { return m_parts.factory(); }
  // The Qt UI services (message boxes, beep, busy pointer, WinHelp).
  UiServices& ui() override { return m_parts.ui(); }
  // OpenRelatedFileForTNW.
  WizardComponent::ModelReader modelReader() override { return m_parts.modelReader(); }

 private:
  // The dialogs save and load judgments in the command line's JSON forms.
  WizardBackend m_parts{nullptr, jsonJudgmentFiles()};
};

std::once_flag g_pinOnce;
bool g_pinned = false;

// Keeps this DLL, and with it Qt's DLLs, loaded until the process ends, although
// DllCanUnloadNow still answers S_OK once no object and no lock is left. After the last object
// is gone Qt may still hold work of this DLL: dialogs released with deleteLater, queued calls,
// and the QApplication made here with its windows and timers. Unloading then would leave Qt
// calling freed code, so the module is pinned from the first object on (as Qt's ActiveQt DLL
// servers never let themselves be unloaded).
bool stayLoaded() {
  std::call_once(g_pinOnce, [] {
    HMODULE module = nullptr;
    g_pinned =
        GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                           reinterpret_cast<LPCWSTR>(&g_pinned), &module) != 0;
  });
  return g_pinned;
}

// The folder of this DLL, where windeployqt puts Qt's plugins (platforms\qwindows.dll and the
// styles); Qt would otherwise look beside the host's executable.
QString moduleFolder() {
  const std::wstring path = ServerModule::modulePath();
  if (path.empty()) return {};
  return QFileInfo(QString::fromStdWString(path)).absolutePath();
}

}  // namespace

std::unique_ptr<DialogBackend> makeDialogBackend(MessageWindow&) {
  // Qt's own posted events and timers take the place of the message window here.
  if (!stayLoaded()) return nullptr;
  // Null when the host's application cannot show widgets or the object is made on a thread
  // other than the one of the QApplication: the object is then not created (E_FAIL).
  if (QCoreApplication::instance() == nullptr) {
    // The QApplication made here runs on the windows platform whatever the host's environment
    // names.
    const QtPlatformSelection platform;
    if (WizardBackend::ensureApplication(moduleFolder()) == nullptr) return nullptr;
  } else if (WizardBackend::ensureApplication(moduleFolder()) == nullptr) {
    return nullptr;
  }
  return std::make_unique<QtDialogBackend>();
}

}  // namespace tnw

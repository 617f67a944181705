#include "component/windows/message_window.h"

#include "component/windows/server_module.h"

// Std
#include <utility>

namespace tnw {

namespace {

constexpr wchar_t kClassName[] = L"TNWizard_MAVT.MessageWindow";
constexpr UINT kRunTask = WM_APP + 1;
// Windows of this class that exist; the class is unregistered with the last one, so the DLL can
// be unloaded without leaving a window procedure behind. Objects may live in several apartments,
// so the count is guarded, by a lock that never throws (the destructor takes it too).
long g_windowCount = 0;
SRWLOCK g_classLock = SRWLOCK_INIT;

class ClassLock {
 public:
  ClassLock() { AcquireSRWLockExclusive(&g_classLock); }
  ~ClassLock() { ReleaseSRWLockExclusive(&g_classLock); }
  ClassLock(const ClassLock&) = delete;
  ClassLock& operator=(const ClassLock&) = delete;
};

}  // namespace

MessageWindow::MessageWindow() {
  if (!registerClass()) return;
  m_window = CreateWindowExW(0, kClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                             ServerModule::instance(), nullptr);
  if (!m_window) {
    unregisterClass();
    return;
  }
  SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

MessageWindow::~MessageWindow() {
  if (!m_window) return;
  SetWindowLongPtrW(m_window, GWLP_USERDATA, 0);
  DestroyWindow(m_window);
  unregisterClass();
}

bool MessageWindow::post(std::function<void()> task) noexcept {
  if (!m_window) return false;
  try {
    m_tasks.push_back(std::move(task));
  } catch (...) {
    return false;
  }
  if (!PostMessageW(m_window, kRunTask, 0, 0)) {
    m_tasks.pop_back();
    return false;
  }
  return true;
}

LRESULT CALLBACK MessageWindow::windowProc(HWND window, UINT message, WPARAM wParam,
                                           LPARAM lParam) {
  if (message != kRunTask) return DefWindowProcW(window, message, wParam, lParam);
  auto* self = reinterpret_cast<MessageWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (!self || self->m_tasks.empty()) return 0;
  std::function<void()> task = std::move(self->m_tasks.front());
  self->m_tasks.pop_front();
  // A window procedure is a boundary the host's message loop calls: nothing may escape it.
  try {
    task();
  } catch (...) {
  }
  return 0;
}

bool MessageWindow::registerClass() {
  const ClassLock lock;
  if (g_windowCount++ > 0) return true;
  WNDCLASSEXW windowClass{};
  windowClass.cbSize = sizeof(windowClass);
  windowClass.lpfnWndProc = &MessageWindow::windowProc;
  windowClass.hInstance = ServerModule::instance();
  windowClass.lpszClassName = kClassName;
  if (RegisterClassExW(&windowClass) || GetLastError() == ERROR_CLASS_ALREADY_EXISTS) return true;
  --g_windowCount;
  return false;
}

void MessageWindow::unregisterClass() {
  const ClassLock lock;
  if (--g_windowCount == 0) UnregisterClassW(kClassName, ServerModule::instance());
}

}  // namespace tnw

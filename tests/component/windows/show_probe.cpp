// tnw_show_probe DIR: how long the registered server takes to show its first dialog. Creates
// TNWizard_MAVT.TNW_MAVT, reads DIR\three_cars.mod with GetCurFileData, calls ShowTNWizard and
// runs the message loop until the window titled "Tarnel Wizard" has returned from its first
// WM_PAINT, dispatched by this loop (Qt's windows platform paints a widget window and flushes it
// to the screen inside that message). Prints the times in milliseconds from the
// QueryPerformanceCounter clock:
//   create <CoCreateInstance> show-call <ShowTNWizard's return> show-to-paint <first paint>
// and ends the process without closing the wizard; exits 1 when nothing is painted in 30 s.
#include "component/windows/tnwizard_mavt_h.h"

// Windows
#include <windows.h>
#include <wrl/client.h>

// Std
#include <cstdio>
#include <cwchar>
#include <string>

using Microsoft::WRL::ComPtr;

namespace {

LARGE_INTEGER g_frequency;
LONGLONG g_painted = 0;

LONGLONG now() {
  LARGE_INTEGER t;
  QueryPerformanceCounter(&t);
  return t.QuadPart;
}

double milliseconds(LONGLONG from, LONGLONG to) {
  return 1000.0 * static_cast<double>(to - from) / static_cast<double>(g_frequency.QuadPart);
}

// Whether the message just dispatched was the first WM_PAINT of the wizard's top-level window.
bool firstPaint(const MSG& message) {
  if (message.message != WM_PAINT || GetAncestor(message.hwnd, GA_ROOT) != message.hwnd ||
      !IsWindowVisible(message.hwnd)) {
    return false;
  }
  wchar_t title[64] = {};
  GetWindowTextW(message.hwnd, title, 64);
  return wcscmp(title, L"Tarnel Wizard") == 0;
}

}  // namespace

int wmain(int argc, wchar_t** argv) {
  if (argc < 2) {
    std::fputs("usage: tnw_show_probe DIR\n", stderr);
    return 2;
  }
  const std::wstring dir = argv[1];
  QueryPerformanceFrequency(&g_frequency);
  CoInitialize(nullptr);

  const LONGLONG started = now();
  CLSID clsid;
  ComPtr<_TNW_MAVT> wizard;
  if (FAILED(CLSIDFromProgID(L"TNWizard_MAVT.TNW_MAVT", &clsid)) ||
      FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID__TNW_MAVT,
                              reinterpret_cast<void**>(wizard.GetAddressOf())))) {
    std::fputs("the server cannot be created\n", stderr);
    return 1;
  }
  const LONGLONG created = now();
  VARIANT norixDir;
  VariantInit(&norixDir);
  V_VT(&norixDir) = VT_BSTR;
  V_BSTR(&norixDir) = SysAllocString(dir.c_str());
  BSTR path = SysAllocString((dir + L"\\three_cars.mod").c_str());
  wizard->GetCurFileData(&norixDir, 1, path);

  const LONGLONG show = now();
  const HRESULT shown = wizard->ShowTNWizard();
  const LONGLONG returned = now();
  for (int i = 0; i < 3000 && SUCCEEDED(shown) && g_painted == 0; ++i) {
    MSG message;
    while (g_painted == 0 && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      DispatchMessageW(&message);
      if (firstPaint(message)) g_painted = now();
    }
    if (g_painted == 0) MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
  if (g_painted == 0) {
    std::fputs("no dialog was painted\n", stderr);
    return 1;
  }
  std::printf("create %.1f show-call %.1f show-to-paint %.1f\n", milliseconds(started, created),
              milliseconds(show, returned), milliseconds(show, g_painted));
  std::fflush(stdout);
  // The wizard stays open: the probe measures only its start.
  ExitProcess(0);
}

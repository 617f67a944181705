// tnw_window_probe: reads and works another program's top-level window by its title, for tests
// that drive windows they did not make (Wine's help viewer, message boxes).
//   tnw_window_probe text TITLE           prints the texts of the window's controls, one a line
//   tnw_window_probe press TITLE CAPTION  clicks the window's button with this caption
//   tnw_window_probe close TITLE          asks the window to close
// Exit status 0 when done, 1 when no such window or button, 2 on bad arguments.

// Windows
#include <windows.h>

// Std
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

// The texts of a window's descendants, and their handles, in creation order.
struct Controls {
  std::vector<std::string> texts;
  std::vector<HWND> handles;
};

BOOL CALLBACK collect(HWND control, LPARAM into) {
  char text[1024] = {};
  GetWindowTextA(control, text, static_cast<int>(sizeof text));
  auto* controls = reinterpret_cast<Controls*>(into);
  controls->texts.emplace_back(text);
  controls->handles.push_back(control);
  return TRUE;
}

Controls controlsOf(HWND window) {
  Controls controls;
  EnumChildWindows(window, collect, reinterpret_cast<LPARAM>(&controls));
  return controls;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fputs("usage: tnw_window_probe text|press|close TITLE [CAPTION]\n", stderr);
    return 2;
  }
  const HWND window = FindWindowA(nullptr, argv[2]);
  if (window == nullptr) {
    std::printf("no window titled \"%s\"\n", argv[2]);
    return 1;
  }
  if (std::strcmp(argv[1], "text") == 0) {
    for (const std::string& text : controlsOf(window).texts) {
      if (!text.empty()) std::printf("%s\n", text.c_str());
    }
    return 0;
  }
  if (std::strcmp(argv[1], "press") == 0 && argc == 4) {
    const Controls controls = controlsOf(window);
    for (std::size_t i = 0; i < controls.texts.size(); ++i) {
      if (controls.texts[i] != argv[3]) continue;
      PostMessageA(controls.handles[i], BM_CLICK, 0, 0);
      return 0;
    }
    std::printf("no button \"%s\" in \"%s\"\n", argv[3], argv[2]);
    return 1;
  }
  if (std::strcmp(argv[1], "close") == 0) {
    PostMessageA(window, WM_CLOSE, 0, 0);
    return 0;
  }
  std::fputs("usage: tnw_window_probe text|press|close TITLE [CAPTION]\n", stderr);
  return 2;
}

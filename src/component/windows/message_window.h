#pragma once

// Windows
#include <windows.h>

// Std
#include <deque>
#include <functional>

namespace tnw {

// A hidden message-only window of the creating thread that runs posted tasks from that thread's
// message loop, later and outside whatever call posted them. The component uses it to release
// itself after the host let go of it inside one of its events, and scripted dialogs use it to
// act when a user would: from the message loop, not from inside the call that showed them.
class MessageWindow {
 public:
  // Creates the window on the calling thread; valid() tells whether that worked.
  MessageWindow();
  // Destroys the window; tasks not run yet are dropped.
  ~MessageWindow();
  MessageWindow(const MessageWindow&) = delete;
  MessageWindow& operator=(const MessageWindow&) = delete;

  // Whether the window exists, so posted tasks will run.
  bool valid() const { return m_window != nullptr; }
  // Queues task to run from the message loop; false if it cannot be queued (never throws). A
  // task may destroy this window's owner: nothing of the window is touched after a task ran.
  bool post(std::function<void()> task) noexcept;
  // How many tasks wait to run.
  std::size_t pending() const { return m_tasks.size(); }

 private:
  static LRESULT CALLBACK windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  static bool registerClass();
  static void unregisterClass();

  HWND m_window = nullptr;
  std::deque<std::function<void()>> m_tasks;
};

}  // namespace tnw

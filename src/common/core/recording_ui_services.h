#pragma once

#include "common/core/ui_services.h"

// Std
#include <string>
#include <utility>
#include <vector>

namespace tnw {

// UI services that show nothing and record every request, for tests and headless runs.
class RecordingUiServices : public UiServices {
 public:
  // One message box that was shown.
  struct Message {
    std::string text;
    MessageIcon icon = MessageIcon::Information;
    std::string title;
  };
  // One request for a file name.
  struct FileRequest {
    std::string caption;
    std::string filter;
    std::string suggestedName;
  };

  void messageBox(const std::string& text, MessageIcon icon, const std::string& title) override {
    m_messages.push_back({text, icon, title});
  }
  void beep() override { ++m_beeps; }
  void setBusy(bool busy) override {
    m_busy = busy;
    if (busy) ++m_busyCount;
  }
  void showHelp(const std::string& helpFile, int context) override {
    m_helpFile = helpFile;
    m_helpContext = context;
  }
  void showHelpTopic(const std::string& helpFile, int context, const HelpTopic& topic) override {
    m_helpTopic = topic;
    showHelp(helpFile, context);
  }
  ScreenSize screenSize() const override { return m_screen; }
  bool askYesNo(const std::string& text, const std::string& title) override {
    m_questions.push_back({text, MessageIcon::Question, title});
    return m_answer;
  }
  std::string chooseOpenFile(const std::string& caption, const std::string& filter) override {
    m_fileRequests.push_back({caption, filter, {}});
    return m_openFile;
  }
  std::string chooseSaveFile(const std::string& caption, const std::string& filter,
                             const std::string& suggestedName) override {
    m_fileRequests.push_back({caption, filter, suggestedName});
    return m_saveFile;
  }

  // The message boxes shown so far, in order.
  const std::vector<Message>& messages() const { return m_messages; }
  // Forgets the recorded message boxes.
  void clearMessages() { m_messages.clear(); }
  // How often the beep sounded.
  int beeps() const { return m_beeps; }
  // Whether the busy pointer is showing now.
  bool busy() const { return m_busy; }
  // How often the busy pointer was turned on.
  int busyCount() const { return m_busyCount; }
  // The last help file and context asked for (empty and 0 when none).
  const std::string& helpFile() const { return m_helpFile; }
  int helpContext() const { return m_helpContext; }
  // The dialog page and step anchor of the last help request that gave one.
  const HelpTopic& helpTopic() const { return m_helpTopic; }
  // Sets the screen size reported to callers.
  void setScreenSize(ScreenSize size) { m_screen = size; }
  // The yes/no questions asked so far, in order (icon Question).
  const std::vector<Message>& questions() const { return m_questions; }
  // Sets the answer to every later question (Yes by default).
  void setAnswer(bool yes) { m_answer = yes; }
  // The file names asked for so far, in order.
  const std::vector<FileRequest>& fileRequests() const { return m_fileRequests; }
  // Sets the file chosen by every later request to read (empty: cancelled).
  void setOpenFile(std::string path) { m_openFile = std::move(path); }
  // Sets the file chosen by every later request to write (empty: cancelled).
  void setSaveFile(std::string path) { m_saveFile = std::move(path); }

 private:
  std::vector<Message> m_messages;
  int m_beeps = 0;
  bool m_busy = false;
  int m_busyCount = 0;
  std::string m_helpFile;
  int m_helpContext = 0;
  HelpTopic m_helpTopic;
  ScreenSize m_screen{1024, 768};
  std::vector<Message> m_questions;
  bool m_answer = true;
  std::vector<FileRequest> m_fileRequests;
  std::string m_openFile;
  std::string m_saveFile;
};

}  // namespace tnw

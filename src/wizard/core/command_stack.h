#pragma once

// Std
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tnw::wizard {

// The undo history of a dialog: the commands the user made, each able to take itself back and to
// make itself again. A command is recorded once it is done; undoing it moves it to the redo
// history, and a new command clears that history. The commands of the two methods put back whole
// snapshots of what they changed (taken before and after), so undo and redo are exact whatever
// the command drew at random or worked out on the way.
class CommandStack {
 public:
  // One recorded command.
  struct Command {
    // Puts back the state from before the command.
    std::function<void()> undo;
    // Puts back the state the command left.
    std::function<void()> redo;
  };

  // The captions of the Undo and Redo buttons: their mnemonics match Ctrl+Z and Ctrl+Y.
  static constexpr const char* kUndoCaption = "Undo (&Z)";
  static constexpr const char* kRedoCaption = "Redo (&Y)";

  // Records a command that was just done; whatever was undone before can no longer be redone.
  void push(Command command);
  // Takes back the last command done; false when there is none.
  bool undo();
  // Makes the last command undone again; false when there is none.
  bool redo();
  // Forgets every command (the state they worked on has gone).
  void clear();

  // Whether there is a command to undo, or to redo.
  bool canUndo() const { return !m_done.empty(); }
  bool canRedo() const { return !m_undone.empty(); }
  // The number of commands that can be undone, and redone.
  std::size_t undoCount() const { return m_done.size(); }
  std::size_t redoCount() const { return m_undone.size(); }

  // The question Cancel asks before n recorded judgments go: "Discard N judgments?", or
  // "Discard 1 judgment?" for one.
  static std::string discardQuestion(int n);

 private:
  std::vector<Command> m_done;
  std::vector<Command> m_undone;
};

}  // namespace tnw::wizard

#pragma once

// Std
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tnw::wizard {

// What the undo history of every dialog shows the user: the Undo and Redo captions and the
// question asked before recorded judgments are discarded.
struct UndoTexts {
  // The captions of the Undo and Redo buttons: their mnemonics match Ctrl+Z and Ctrl+Y.
  static constexpr const char* kUndoCaption = "Undo (&Z)";
  static constexpr const char* kRedoCaption = "Redo (&Y)";

  // The question Cancel asks before n recorded judgments go: "Discard N judgments?", or
  // "Discard 1 judgment?" for one.
  static std::string discardQuestion(int n);
};

// The undo history of a dialog: the commands the user made, each able to take itself back and to
// make itself again. A command is recorded once it is done; undoing it moves it to the redo
// history, and a new command clears that history. A command is kept as two snapshots of what it
// changed (taken before and after), by value and side by side with the others, so undo and redo
// are exact whatever the command drew at random or worked out on the way, and forgetting a long
// history frees its storage at once. Undo and redo hand the snapshot to put back to the caller's
// restore function.
template <typename State>
class CommandStack : public UndoTexts {
 public:
  // One recorded command.
  struct Command {
    // The state from before the command.
    State before;
    // The state the command left.
    State after;
  };

  // Records a command that was just done; whatever was undone before can no longer be redone.
  void push(State before, State after) {
    m_done.push_back({std::move(before), std::move(after)});
    m_undone.clear();
  }
  // Takes back the last command done, putting back its state from before with
  // restore(const State&); false when there is none. If restore throws, the history stays as it
  // was.
  template <typename Restore>
  bool undo(Restore&& restore) {
    return transfer(m_done, m_undone, restore, &Command::before);
  }
  // Makes the last command undone again, putting back the state it left; false when there is
  // none. If restore throws, the history stays as it was.
  template <typename Restore>
  bool redo(Restore&& restore) {
    return transfer(m_undone, m_done, restore, &Command::after);
  }
  // Forgets every command (the state they worked on has gone), and the room they took.
  void clear() {
    std::vector<Command>().swap(m_done);
    std::vector<Command>().swap(m_undone);
  }

  // Whether there is a command to undo, or to redo.
  bool canUndo() const { return !m_done.empty(); }
  bool canRedo() const { return !m_undone.empty(); }
  // The number of commands that can be undone, and redone.
  std::size_t undoCount() const { return m_done.size(); }
  std::size_t redoCount() const { return m_undone.size(); }

 private:
  template <typename Restore>
  static bool transfer(std::vector<Command>& from, std::vector<Command>& to, Restore& restore,
                       State Command::*state) {
    if (from.empty()) return false;
    // The command moves first (a failed push_back leaves both histories as they were), and moves
    // back if the state cannot be put back.
    to.push_back(std::move(from.back()));
    try {
      restore(std::as_const(to.back().*state));
    } catch (...) {
      from.back() = std::move(to.back());
      to.pop_back();
      throw;
    }
    from.pop_back();
    return true;
  }

  std::vector<Command> m_done;
  std::vector<Command> m_undone;
};

}  // namespace tnw::wizard

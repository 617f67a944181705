#pragma once

// Qt
#include <QString>

class QHBoxLayout;
class QPushButton;
class QWidget;

namespace tnw {

// The Save and Load buttons of a judgment page.
struct JudgmentFileButtons {
  QPushButton* cmdSaveJudgments = nullptr;
  QPushButton* cmdLoadJudgments = nullptr;
};

// Makes the Save and Load buttons of a page (cmdSaveJudgments, cmdLoadJudgments) with their tool
// tips and adds them to row; they stay hidden until the dialog has a file form to offer them
// with.
JudgmentFileButtons addJudgmentFileButtons(QWidget* page, QHBoxLayout* row, const QString& saveTip,
                                           const QString& loadTip);

}  // namespace tnw

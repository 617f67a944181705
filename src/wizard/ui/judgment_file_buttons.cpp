#include "wizard/ui/judgment_file_buttons.h"

#include "common/ui/kept_look_widgets.h"

// Qt
#include <QHBoxLayout>
#include <QObject>
#include <QPushButton>

namespace tnw {

namespace {

QPushButton* fileButton(QWidget* page, QHBoxLayout* row, const char* name, const QString& text,
                        const QString& tip) {
  auto* button = new KeptPushButton(text, page);
  button->setObjectName(QString::fromLatin1(name));
  button->setToolTip(tip);
  button->setAutoDefault(false);
  button->setVisible(false);
  row->addWidget(button);
  return button;
}

}  // namespace

JudgmentFileButtons addJudgmentFileButtons(QWidget* page, QHBoxLayout* row, const QString& saveTip,
                                           const QString& loadTip) {
  return {fileButton(page, row, "cmdSaveJudgments", QObject::tr("Sa&ve judgments..."), saveTip),
          fileButton(page, row, "cmdLoadJudgments", QObject::tr("&Load judgments..."), loadTip)};
}

}  // namespace tnw

// The texts of the judgment page and of the reference header are drawn from kept layouts, with
// the pixels a plain QLabel draws for them.

#include "common/core/recording_ui_services.h"
#include "common/ui/kept_text_label.h"
#include "direct/ui/direct_a_dialog.h"
#include "direct_a_dialog_helpers.h"
#include "direct_test_models.h"
#include "recording_direct_a_events.h"

// Qt
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QTest>

// Std
#include <memory>

namespace tnw::direct {

using test::control;

namespace {

// What a widget paints, in one format whatever the device it was grabbed from.
QImage pixels(QWidget* widget) {
  return widget->grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

// The labels under root that show a plain text: no picture, no style sheet of their own, not
// the chart's axis names (which elide theirs).
QList<QLabel*> textLabels(const QWidget* root) {
  QList<QLabel*> found;
  for (QLabel* label : root->findChildren<QLabel*>()) {
    if (!label->isVisibleTo(root->window()) || label->text().isEmpty()) continue;
    if (!label->pixmap().isNull() || !label->styleSheet().isEmpty()) continue;
    if (label->parentWidget()->inherits("tnw::direct::StatusLightsWidget")) continue;
    if (label->inherits("tnw::ElidedLabelWidget")) continue;
    found.append(label);
  }
  return found;
}

// A plain QLabel set up as label is.
std::unique_ptr<QLabel> plainTwin(const QLabel* label) {
  auto twin = std::make_unique<QLabel>(label->text());
  twin->setFont(label->font());
  twin->setPalette(label->palette());
  twin->setAlignment(label->alignment());
  twin->setTextFormat(label->textFormat());
  twin->setWordWrap(label->wordWrap());
  twin->setLayoutDirection(label->layoutDirection());
  twin->setBuddy(label->buddy());
  twin->setEnabled(label->isEnabled());
  twin->resize(label->size());
  return twin;
}

}  // namespace

class JudgmentPageLabelsTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() {
    m_dialog.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
  }

  void theJudgmentPagesTextsAreKeptWithQLabelsPixels() {
    toJudgmentPage();
    QList<QLabel*> labels = textLabels(control<QWidget>(m_dialog.get(), "picStep2"));
    labels.append(textLabels(control<QWidget>(m_dialog.get(), "picRefHeader")));
    // The captions of both frames, the ranges and the header's texts.
    QVERIFY(labels.size() >= 12);
    for (QLabel* label : labels) {
      const QString what = label->objectName() + QStringLiteral(" \"") + label->text() + u'"';
      auto* kept = qobject_cast<KeptTextLabel*>(label);
      QVERIFY2(kept != nullptr, qPrintable(what + QStringLiteral(" is not kept")));
      QVERIFY2(kept->paintsKept(), qPrintable(what + QStringLiteral(" is painted by QLabel")));
      const QImage mine = pixels(label);
      const int laidOut = kept->laidOut();
      QCOMPARE(pixels(label), mine);
      // Painted again at the same size, the text is not laid out again.
      QCOMPARE(kept->laidOut(), laidOut);
      const std::unique_ptr<QLabel> twin = plainTwin(label);
      QVERIFY2(pixels(twin.get()) == mine, qPrintable(what + QStringLiteral(" differs")));
    }
  }

 private:
  // Four attributes in three groups, attribute 1 the reference, on the judgment page.
  void toJudgmentPage() {
    m_context = test::makeContext(4);
    m_dialog = std::make_unique<DirectADialog>(m_context, m_ui, m_events);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    const int groupOf[] = {1, 2, 2, 3};
    for (int j = 0; j < 4; ++j) {
      while (m_dialog->presenter().ordering().order().GroupCount() < groupOf[j]) {
        control<QPushButton>(m_dialog.get(), "cmdAdd")->click();
      }
      QVERIFY(test::dragAndDrop(test::orderBox(m_dialog.get(), groupOf[j]),
                                QStringLiteral("A%1").arg(j)));
    }
    control<QPushButton>(m_dialog.get(), "cmdNext")->click();
    control<QPushButton>(m_dialog.get(), "cmdAttButtons", 0)->click();
    control<QPushButton>(m_dialog.get(), "cmdNext")->click();
    QVERIFY(control<QWidget>(m_dialog.get(), "picStep2")->isVisible());
  }

  WizardContext m_context;
  RecordingUiServices m_ui;
  test::RecordingDirectAEvents m_events;
  std::unique_ptr<DirectADialog> m_dialog;
};

}  // namespace tnw::direct

QTEST_MAIN(tnw::direct::JudgmentPageLabelsTest)
#include "judgment_page_labels_test.moc"

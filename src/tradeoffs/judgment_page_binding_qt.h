#pragma once

// Qt
#include <QObject>

// Std
#include <string>
#include <vector>

class QLineEdit;

namespace tnw {

// The trade-off judgment page shares its name with the direct method's; it lives in the inline
// namespace tradeoffs and is named with it here.
inline namespace tradeoffs {
class JudgmentPage;
}
class TradeOffsAPresenter;
class TradeOffsJudgmentWidget;
struct WizardContext;

// Connects the controls of the judgment page widget to the trade-off presenter: every user
// action goes to the presenter's handler, and render() shows the judgment page's control states.
// It holds no judgment state of its own.
class JudgmentPageBindingQt : public QObject {
  Q_OBJECT

 public:
  // Binds the widget to the presenter; the model is read for the panel's range labels only.
  JudgmentPageBindingQt(TradeOffsJudgmentWidget& widget, TradeOffsAPresenter& presenter,
                        const WizardContext& context, QObject* parent = nullptr);

  // Shows the page's current state in the widgets.
  void render();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool filterKey(QObject* watched, QEvent* event);
  void connectSelection();
  void connectScores();
  void connectJudgment();
  void renderSelection();
  void renderScores();
  void renderJudgment();
  void renderRangeLabels();
  bool scoreBoxKey(int box, QLineEdit& edit, int key);
  void focusControl(const std::string& name);
  template <typename Handler>
  void act(Handler handler);

  TradeOffsJudgmentWidget& m_widget;
  TradeOffsAPresenter& m_presenter;
  const tradeoffs::JudgmentPage& m_page;
  const WizardContext& m_context;
  std::vector<std::string> m_listItems;
  // The text and selection last written into each score box.
  struct ShownBox {
    std::string text;
    int selStart = -1;
    int selLength = -1;
  };
  ShownBox m_shown[4];
  bool m_rendering = false;
};

}  // namespace tnw

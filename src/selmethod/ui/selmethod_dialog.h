#pragma once

#include "wizard/ui/dialog_window.h"
#include "selmethod/core/selmethod_presenter.h"

class QFrame;
class QLabel;
class QListWidget;
class QPushButton;

namespace tnw::selmethod {

// frmTNWSelMethod: the method-selection step as a Qt dialog over SelMethodPresenter. Every
// control's objectName is its given name.
class SelMethodDialog : public DialogWindow {
  Q_OBJECT

 public:
  // Builds and loads the dialog: the presenter's Form_Load runs here.
  SelMethodDialog(const WizardContext& context, UiServices& ui, SelMethodEvents& events);

  // The presenter behind the dialog.
  const SelMethodPresenter& presenter() const { return m_presenter; }

 protected:
  void closeRequested() override;
  void activated() override;

 private:
  void buildLayout();
  void connectControls();
  void render();
  void onSelectionChanged();

  SelMethodPresenter m_presenter;
  QListWidget* m_lstMethods = nullptr;
  QLabel* m_lblSelectedMethodName = nullptr;
  QFrame* m_picDescription = nullptr;
  QLabel* m_lblDescription = nullptr;
  QPushButton* m_cmdBack = nullptr;
  QPushButton* m_cmdNext = nullptr;
  QPushButton* m_cmdFinish = nullptr;
  QPushButton* m_cmdCancel = nullptr;
  QPushButton* m_cmdHelp = nullptr;
  bool m_rendering = false;
};

}  // namespace tnw::selmethod

// hostUiDialog: the host's dialog frame for modules: resizable, modal or
// modeless, with the OK, Cancel and close steps as overridable handlers.
// It remembers nothing by itself: a dialog that wants its size kept stores
// it where it keeps its own state.
#pragma once

#include <QDialog>

class hostUiDialog : public QDialog
{
  Q_OBJECT

public:
  // The results of DoModal, as the host's dialogs answer.
  enum Result
  {
    kIdOk = 1,
    kIdCancel = 2
  };

  explicit hostUiDialog(QWidget* parent = nullptr);
  ~hostUiDialog() override;

  // Runs the dialog modally: OnInitDialog, then the user's answer. A false
  // OnInitDialog ends it at once with -1.
  int DoModal();
  // Shows it modelessly after OnInitDialog; false when that refuses.
  bool Create();
  // Ends the dialog with a result (kIdOk accepts, anything else rejects).
  void EndDialog(int result);
  int ResultCode() const { return m_result; }

  // OK (Enter, or a button's accepted signal) and Escape reach the handlers.
  void accept() override { OnOK(); }
  void reject() override { OnCancel(); }

  // A size grip in the bottom right corner; on by default.
  void SetSizeGrip(bool on) { setSizeGripEnabled(on); }

protected:
  // The window and its children exist; fill them here.
  virtual bool OnInitDialog() { return true; }
  virtual void OnOK() { EndDialog(kIdOk); }
  virtual void OnCancel() { EndDialog(kIdCancel); }
  // The title bar's close button; by default the same as Cancel.
  virtual void OnClose() { OnCancel(); }

  void closeEvent(QCloseEvent* event) override;

private:
  int m_result = 0;
};

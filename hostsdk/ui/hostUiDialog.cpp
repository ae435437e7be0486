// The dialog frame.
#include "hostsdk/ui/hostUiDialog.h"

#include <QCloseEvent>

hostUiDialog::hostUiDialog(QWidget* parent) : QDialog(parent)
{
  setSizeGripEnabled(true);
}

hostUiDialog::~hostUiDialog() = default;

int hostUiDialog::DoModal()
{
  m_result = 0;
  if (!OnInitDialog()) {
    m_result = -1;
    return m_result;
  }
  exec();
  return m_result;
}

bool hostUiDialog::Create()
{
  m_result = 0;
  if (!OnInitDialog())
    return false;
  show();
  return true;
}

void hostUiDialog::EndDialog(int result)
{
  m_result = result;
  if (result == kIdOk)
    QDialog::accept();
  else
    QDialog::reject();
}

void hostUiDialog::closeEvent(QCloseEvent* event)
{
  // Not QDialog's handling, which would take the close button for Cancel.
  OnClose();
  if (isVisible())
    event->ignore();
  else
    event->accept();
}

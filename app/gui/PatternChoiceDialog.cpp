// The pattern choice.
#include "app/gui/PatternChoiceDialog.h"

#include "hostsdk/core/HostCore.h"
#include "hostsdk/patterns/PatLibrary.h"
#include "hostsdk/patterns/VerdaniCmd1.h"
#include "hostsdk/ui/HostUiFileDialogs.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int kPicture = 64;
} // namespace

PatternChoiceDialog::PatternChoiceDialog(int hatchType, const OdString& file, QWidget* parent)
    : hostUiDialog(parent), m_type(hatchType)
{
  setWindowTitle(tr("Hatch Pattern"));
  auto* layout = new QVBoxLayout(this);
  auto* fileRow = new QHBoxLayout;
  m_fileLabel = new QLabel(this);
  m_fileLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
  fileRow->addWidget(m_fileLabel, 1);
  if (hatchType == kHostHatchCustom) {
    auto* browse = new QPushButton(tr("Other File..."), this);
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &PatternChoiceDialog::browse);
    fileRow->addWidget(browse);
  }
  layout->addLayout(fileRow);
  m_list = new QListWidget(this);
  m_list->setViewMode(QListView::IconMode);
  m_list->setIconSize(QSize(kPicture, kPicture));
  m_list->setGridSize(QSize(kPicture + 48, kPicture + 36));
  m_list->setResizeMode(QListView::Adjust);
  m_list->setMovement(QListView::Static);
  m_list->setWordWrap(true);
  connect(m_list, &QListWidget::itemDoubleClicked, this, [this] { OnOK(); });
  layout->addWidget(m_list, 1);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { OnOK(); });
  connect(buttons, &QDialogButtonBox::rejected, this, [this] { OnCancel(); });
  layout->addWidget(buttons);
  resize(560, 440);
  showFile(file);
}

bool PatternChoiceDialog::showFile(const OdString& file)
{
  OdString error;
  const auto parsed = PatLibrary::loadFile(file, &error);
  if (!parsed) {
    hostMessageBox(error, OdString(windowTitle()), 48);
    return false;
  }
  m_file = parsed->path();
  m_fileLabel->setText(m_file.qstring());
  m_list->clear();
  for (const PatPattern& pattern : parsed->patterns()) {
    QImage picture;
    hostCreatePatternImageEx(pattern.name(), m_file, kPicture, picture);
    auto* item = new QListWidgetItem(QIcon(QPixmap::fromImage(picture)), pattern.name().qstring(), m_list);
    item->setToolTip(pattern.description().qstring());
  }
  if (m_list->count())
    m_list->setCurrentRow(0);
  return true;
}

OdString PatternChoiceDialog::chosen() const
{
  const QListWidgetItem* item = m_list->currentItem();
  return item ? OdString(item->text()) : OdString();
}

void PatternChoiceDialog::browse()
{
  OdString path;
  if (hostUiGetOpenFileName(this, OdString(tr("Pattern File")), "Hatch patterns (*.pat)|*.pat||", "pat", m_file, path))
    showFile(path);
}

void PatternChoiceDialog::OnOK()
{
  if (chosen().isEmpty())
    return; // nothing to choose from: only Cancel ends it
  EndDialog(kIdOk);
}

bool PatternChoiceDialog::run(int hatchType, OdString& file, OdString& name)
{
  PatternChoiceDialog dialog(hatchType, file, QApplication::activeWindow());
  if (dialog.m_list->count() == 0 || dialog.DoModal() != kIdOk)
    return false;
  file = dialog.file();
  name = dialog.chosen();
  return true;
}

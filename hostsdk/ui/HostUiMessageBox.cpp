// Message boxes, and the answers kept for boxes that are not to show again.
#include "hostsdk/ui/HostUiMessageBox.h"

#include "hostsdk/core/AppInterfaces.h"
#include "hostsdk/core/HostCore.h"
#include "hostsdk/ui/HostUiCommandLine.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>

#include <utility>
#include <vector>

namespace {

// Kept answers live in this folder of the configuration, below it the key's
// folders.
constexpr const char* kStoreFolder = "MessageBoxes";

enum Answer
{
  kIdOk = 1,
  kIdCancel = 2,
  kIdAbort = 3,
  kIdRetry = 4,
  kIdIgnore = 5,
  kIdYes = 6,
  kIdNo = 7
};

std::vector<std::pair<QMessageBox::StandardButton, int>> buttonsOf(unsigned style)
{
  switch (style & 0xF) {
  case 1: return {{QMessageBox::Ok, kIdOk}, {QMessageBox::Cancel, kIdCancel}};
  case 2: return {{QMessageBox::Abort, kIdAbort}, {QMessageBox::Retry, kIdRetry}, {QMessageBox::Ignore, kIdIgnore}};
  case 3: return {{QMessageBox::Yes, kIdYes}, {QMessageBox::No, kIdNo}, {QMessageBox::Cancel, kIdCancel}};
  case 4: return {{QMessageBox::Yes, kIdYes}, {QMessageBox::No, kIdNo}};
  case 5: return {{QMessageBox::Retry, kIdRetry}, {QMessageBox::Cancel, kIdCancel}};
  default: return {{QMessageBox::Ok, kIdOk}};
  }
}

QMessageBox::Icon iconOf(unsigned style)
{
  switch (style & 0xF0) {
  case 0x10: return QMessageBox::Critical;
  case 0x20: return QMessageBox::Question;
  case 0x30: return QMessageBox::Warning;
  case 0x40: return QMessageBox::Information;
  default: return QMessageBox::NoIcon;
  }
}

int defaultAnswer(unsigned style)
{
  const auto buttons = buttonsOf(style);
  const std::size_t which = (style >> 8) & 0xF;
  return buttons[which < buttons.size() ? which : 0].second;
}

// With `checkText`, a check box below the text; `checked` tells its state.
int runBox(QWidget* parent, const OdString& text, const OdString& caption, unsigned style, const QString* checkText,
           bool* checked)
{
  QMessageBox box(iconOf(style), caption.qstring(), text.qstring(), QMessageBox::NoButton, parent);
  const auto buttons = buttonsOf(style);
  for (const auto& b : buttons)
    box.addButton(b.first);
  const std::size_t which = (style >> 8) & 0xF;
  box.setDefaultButton(buttons[which < buttons.size() ? which : 0].first);
  if (checkText)
    box.setCheckBox(new QCheckBox(*checkText, &box));
  box.exec();
  if (checked)
    *checked = box.checkBox() && box.checkBox()->isChecked();
  const auto clicked = box.standardButton(box.clickedButton());
  for (const auto& b : buttons)
    if (b.first == clicked)
      return b.second;
  // Closed without a button: what Escape means for this set of buttons.
  return (style & 0xF) == 0 ? kIdOk : (style & 0xF) == 4 ? kIdNo : kIdCancel;
}

// The folder of a key and the value's name in it: "A\B\Name".
bool splitKey(const OdString& key, QString& folder, QString& name)
{
  QString k = key.qstring();
  k.replace(u'\\', u'/');
  const qsizetype slash = k.lastIndexOf(u'/');
  name = k.mid(slash + 1);
  folder = QString::fromLatin1(kStoreFolder);
  if (slash > 0)
    folder += u'/' + k.left(slash);
  return !name.isEmpty();
}

CRkPtr<IConfigManager> storeFolder(const OdString& key, bool create, QString& name)
{
  QString folder;
  if (key.isEmpty() || !splitKey(key, folder, name))
    return {};
  CRkPtr<IProfile> profile = CRkPtr<IProfile>::query(hostContextApp());
  CRkPtr<IConfigManager> root;
  if (!profile || !profile->getRoot(root.put()) || !root)
    return {};
  CRkPtr<IConfigManager> out;
  if (!root->openFolder(folder.toUtf8().constData(), create, out.put()))
    return {};
  return out;
}

bool keptAnswer(const OdString& key, int& answer)
{
  QString name;
  CRkPtr<IConfigManager> folder = storeFolder(key, false, name);
  CRkVariant value;
  if (!folder || !folder->getValue(name.toUtf8().constData(), value))
    return false;
  answer = value.toInt32();
  return answer > 0;
}

void keepAnswer(const OdString& key, int answer)
{
  QString name;
  if (CRkPtr<IConfigManager> folder = storeFolder(key, true, name))
    folder->setValue(name.toUtf8().constData(), CRkVariant(std::int32_t(answer)));
}

} // namespace

int hostUiShowMessageBox(QWidget* parent, const OdString& text, const OdString& caption, unsigned style)
{
  if (!HostUiCommandLine::hasWindows()) {
    HostUiCommandLine::say(caption.isEmpty() ? text : caption + ": " + text);
    return defaultAnswer(style);
  }
  return runBox(parent, text, caption, style, nullptr, nullptr);
}

int hostShowMessageBoxWithCheckBox(QWidget* parent, const OdString& text, const OdString& key,
                                   const OdString& caption, unsigned style, const OdString& checkText)
{
  int answer = 0;
  if (keptAnswer(key, answer))
    return answer;
  if (!HostUiCommandLine::hasWindows()) {
    HostUiCommandLine::say(caption.isEmpty() ? text : caption + ": " + text);
    return defaultAnswer(style);
  }
  const QString check = checkText.isEmpty() ? QObject::tr("Do not show this message again") : checkText.qstring();
  bool checked = false;
  answer = runBox(parent, text, caption, style, &check, &checked);
  // A box closed by Cancel keeps nothing: the user did not decide.
  if (checked && answer != kIdCancel)
    keepAnswer(key, answer);
  return answer;
}

bool hostResetMessageBoxWithCheckBox(const OdString& key)
{
  QString name;
  CRkPtr<IConfigManager> folder = storeFolder(key, false, name);
  return folder && folder->deleteValue(name.toUtf8().constData());
}

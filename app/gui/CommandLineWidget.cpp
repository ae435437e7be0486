// The command line widget.
#include "app/gui/CommandLineWidget.h"

#include "app/core/HostCompletionRegistryImpl.h"
#include "app/gui/GuiCommandInput.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QVBoxLayout>

#include <exception>

namespace {

constexpr std::size_t kMaxShown = 40;
constexpr int kMaxHistoryLines = 5000;

QIcon pictureOf(const HostEdCompletion::EntryPtr& entry)
{
  if (!entry->pictogram)
    return QIcon();
  QPixmap pixmap(16, 16);
  pixmap.fill(Qt::transparent);
  {
    QPainter p(&pixmap);
    try {
      entry->pictogram->draw(&p, 0, 0, 16, 16);
    } catch (...) {
      // A picture that cannot draw leaves its place empty.
    }
  }
  return QIcon(pixmap);
}

// 0 for a text that starts with what was typed, 1 for one whose part after
// "PREFIX:" does, 2 for one that contains it, -1 for none.
int rank(const QString& text, const QString& typed)
{
  if (text.startsWith(typed, Qt::CaseInsensitive))
    return 0;
  const qsizetype colon = text.indexOf(u':');
  if (colon >= 0 && text.mid(colon + 1).startsWith(typed, Qt::CaseInsensitive))
    return 1;
  return text.contains(typed, Qt::CaseInsensitive) ? 2 : -1;
}

} // namespace

CommandLineWidget::CommandLineWidget(GuiCommandInput& input, HostCompletionRegistryImpl& completion, QWidget* parent)
    : QWidget(parent), m_input(input), m_registry(completion)
{
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(2, 2, 2, 2);
  layout->setSpacing(2);
  m_history = new QPlainTextEdit(this);
  m_history->setReadOnly(true);
  m_history->setMaximumBlockCount(kMaxHistoryLines);
  m_history->setFocusPolicy(Qt::ClickFocus);
  m_history->setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 9));
  layout->addWidget(m_history, 1);

  auto* row = new QHBoxLayout;
  m_prompt = new QLabel(this);
  row->addWidget(m_prompt);
  m_line = new QLineEdit(this);
  m_line->setFrame(false);
  m_line->installEventFilter(this);
  row->addWidget(m_line, 1);
  layout->addLayout(row);

  connect(m_line, &QLineEdit::returnPressed, this, &CommandLineWidget::onReturn);
  connect(m_line, &QLineEdit::textEdited, this, [this] {
    m_walk = -1;
    updateCompletion();
  });
  connect(&m_input, &GuiCommandInput::waitingChanged, this, &CommandLineWidget::showPrompt);
  showPrompt();
  setFocusProxy(m_line);
}

CommandLineWidget::~CommandLineWidget()
{
  delete m_list;
}

void CommandLineWidget::appendOutput(const OdString& text)
{
  QTextCursor cursor = m_history->textCursor();
  cursor.movePosition(QTextCursor::End);
  cursor.insertText(text.qstring());
  m_history->setTextCursor(cursor);
  m_history->verticalScrollBar()->setValue(m_history->verticalScrollBar()->maximum());
}

QString CommandLineWidget::historyText() const
{
  return m_history->toPlainText();
}

void CommandLineWidget::focusInput()
{
  m_line->setFocus();
}

void CommandLineWidget::showPrompt()
{
  const bool waiting = m_input.isWaiting();
  QString text = waiting ? m_input.prompt().message.qstring().trimmed() : tr("Command:");
  if (text.isEmpty())
    text = tr("Input:");
  m_prompt->setText(text);
  hideCompletion();
}

void CommandLineWidget::onReturn()
{
  const QString text = m_line->text();
  if (m_list && m_list->isVisible() && m_list->currentRow() >= 0) {
    choose(m_list->currentRow());
    return;
  }
  hideCompletion();
  m_line->clear();
  m_walk = -1;
  if (text.trimmed().isEmpty()) {
    m_input.submitEmpty();
    return;
  }
  if (m_entered.isEmpty() || m_entered.last() != text)
    m_entered << text;
  m_input.submit(OdString(text));
}

std::vector<HostEdCompletion::EntryPtr>
CommandLineWidget::matching(const std::vector<HostEdCompletion::EntryPtr>& entries, const QString& typed,
                            std::size_t limit)
{
  std::vector<HostEdCompletion::EntryPtr> ranked[3];
  for (const auto& e : entries) {
    const int r = rank(e->text.qstring(), typed);
    if (r >= 0)
      ranked[r].push_back(e);
  }
  std::vector<HostEdCompletion::EntryPtr> out;
  for (const auto& list : ranked)
    for (const auto& e : list)
      if (out.size() < limit)
        out.push_back(e);
  return out;
}

void CommandLineWidget::updateCompletion()
{
  const QString typed = m_line->text().trimmed();
  // Names are completed at the command prompt, not while a command waits.
  if (typed.isEmpty() || m_input.isWaiting() || typed.contains(u' ')) {
    hideCompletion();
    return;
  }
  std::vector<HostEdCompletion::EntryPtr> entries;
  try {
    entries = m_registry.entries();
  } catch (...) {
    // A source that fails offers nothing this time.
  }
  m_shown = matching(entries, typed, kMaxShown);
  if (m_shown.empty()) {
    hideCompletion();
    return;
  }
  if (!m_list) {
    m_list = new QListWidget(window());
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setIconSize(QSize(16, 16));
    m_list->setFrameShape(QFrame::Box);
    connect(m_list, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { choose(m_list->row(item)); });
  }
  m_list->clear();
  for (const auto& e : m_shown)
    m_list->addItem(new QListWidgetItem(pictureOf(e), e->displayText.qstring()));
  m_list->setCurrentRow(-1);
  placeList();
  m_list->show();
  m_list->raise();
}

void CommandLineWidget::placeList()
{
  QWidget* top = window();
  if (m_list->parentWidget() != top)
    m_list->setParent(top);
  const int rows = std::min(int(m_shown.size()), 10);
  const int height = rows * (m_list->sizeHintForRow(0) > 0 ? m_list->sizeHintForRow(0) : 18) + 4;
  const QPoint at = m_line->mapTo(top, QPoint(0, 0));
  const int width = std::max(240, m_line->width());
  // Above the input line when there is room, else below it.
  const int y = at.y() - height >= 0 ? at.y() - height : at.y() + m_line->height();
  m_list->setGeometry(at.x(), y, width, height);
}

void CommandLineWidget::hideCompletion()
{
  if (m_list)
    m_list->hide();
  m_shown.clear();
}

void CommandLineWidget::choose(int row)
{
  if (row < 0 || std::size_t(row) >= m_shown.size())
    return;
  const HostEdCompletion::EntryPtr entry = m_shown[std::size_t(row)];
  hideCompletion();
  m_line->clear();
  if (!entry->action)
    return;
  try {
    entry->action->execute();
  } catch (const std::exception& e) {
    appendOutput(OdString::formatted("\n%s could not run: %s\n", entry->text, OdString(e.what())));
  } catch (...) {
    appendOutput(OdString::formatted("\n%s could not run.\n", entry->text));
  }
}

void CommandLineWidget::walkHistory(int step)
{
  if (m_entered.isEmpty())
    return;
  int at = m_walk < 0 ? int(m_entered.size()) : m_walk;
  at = std::clamp(at + step, 0, int(m_entered.size()));
  m_walk = at == int(m_entered.size()) ? -1 : at;
  m_line->setText(m_walk < 0 ? QString() : m_entered[m_walk]);
}

bool CommandLineWidget::eventFilter(QObject* watched, QEvent* event)
{
  if (watched != m_line || event->type() != QEvent::KeyPress)
    return QWidget::eventFilter(watched, event);
  auto* key = static_cast<QKeyEvent*>(event);
  const bool listShown = m_list && m_list->isVisible() && !m_shown.empty();
  switch (key->key()) {
  case Qt::Key_Up:
  case Qt::Key_Down: {
    const int step = key->key() == Qt::Key_Up ? -1 : 1;
    if (listShown) {
      const int count = m_list->count();
      const int now = m_list->currentRow();
      m_list->setCurrentRow(now < 0 ? (step > 0 ? 0 : count - 1) : (now + step + count) % count);
    } else {
      walkHistory(step);
    }
    return true;
  }
  case Qt::Key_Tab:
    if (listShown) {
      choose(std::max(0, m_list->currentRow()));
      return true;
    }
    return false;
  case Qt::Key_Escape:
    if (listShown) {
      hideCompletion();
    } else if (m_input.isWaiting()) {
      m_line->clear();
      m_input.cancel();
    } else {
      m_line->clear();
      emit escapeWithNothingToCancel();
    }
    return true;
  default: return QWidget::eventFilter(watched, event);
  }
}

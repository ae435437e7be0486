// The property inspector.
#include "hostsdk/ui/CInspectorCtrl.h"

#include "hostsdk/core/HostCore.h"
#include "hostsdk/core/HostObjProps.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QToolButton>

#include <functional>

namespace {

// A combo box whose list is built each time it opens.
class InspectorCombo : public QComboBox
{
public:
  InspectorCombo(QWidget* parent, std::function<void(QComboBox*)> fill) : QComboBox(parent), m_fill(std::move(fill)) {}
  void showPopup() override
  {
    const QString text = currentText();
    m_fill(this);
    setEditText(text);
    const int at = findText(text);
    if (at >= 0)
      setCurrentIndex(at);
    QComboBox::showPopup();
  }

private:
  std::function<void(QComboBox*)> m_fill;
};

QIcon itemIcon(const RkPropertyListItem& item)
{
  if (!item.hasSwatch && item.lineWeight == -100)
    return QIcon();
  QPixmap pixmap(24, 14);
  pixmap.fill(Qt::transparent);
  QPainter p(&pixmap);
  if (item.hasSwatch) {
    p.fillRect(QRect(1, 1, 22, 12), QColor::fromRgb(item.rgb));
    p.setPen(Qt::black);
    p.drawRect(QRect(1, 1, 21, 11));
  } else {
    // Weights in hundredths of a millimetre, shown at about 4 pixels a mm.
    const int width = std::clamp(item.lineWeight / 25, 1, 10);
    p.fillRect(QRect(1, 7 - width / 2, 22, width), Qt::black);
  }
  return QIcon(pixmap);
}

void fillList(QComboBox* combo, IRkEditableProperty* property)
{
  combo->clear();
  for (const RkPropertyListItem& item : property->enumerateList())
    combo->addItem(itemIcon(item), item.text.qstring());
}

} // namespace

// Hears the rows; outlives nothing: the inspector cuts it off when it goes.
class CInspectorCtrl::Sink : public CRkUnknownImpl<IRkEditablePropertySink>
{
public:
  explicit Sink(CInspectorCtrl* owner) : m_owner(owner) {}
  void detach() { m_owner = nullptr; }
  void onPropertyChanged(IRkEditableProperty* property) override
  {
    if (m_owner)
      m_owner->propertyChanged(property);
  }
  void onRefreshAll() override
  {
    if (m_owner)
      m_owner->RefreshProperties(true);
  }

private:
  CInspectorCtrl* m_owner;
};

CInspectorCtrl::CInspectorCtrl(QWidget* parent)
    : QTreeWidget(parent), m_sink(CRkPtr<Sink>::attach(new Sink(this)))
{
  setColumnCount(2);
  setHeaderLabels({tr("Property"), tr("Value")});
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAlternatingRowColors(true);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  header()->setSectionsMovable(false);
  header()->setStretchLastSection(true);
  header()->resizeSection(0, 151);
  connect(this, &QTreeWidget::currentItemChanged, this, &CInspectorCtrl::onCurrentChanged);
  m_refresherCookie = hostAddPropertyRefresher([this](bool all) { RefreshProperties(all); });
}

CInspectorCtrl::~CInspectorCtrl()
{
  hostRemovePropertyRefresher(m_refresherCookie);
  m_editRow = -1;
  RemoveAll();
  m_sink->detach();
}

int CInspectorCtrl::AddProperty(IRkEditableProperty* property)
{
  if (!property)
    return -1;
  Row row;
  row.property = CRkPtr<IRkEditableProperty>(property);
  row.item = new QTreeWidgetItem(this);
  row.item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  if (auto* point = property->connectionPoint())
    point->advise(m_sink.get());
  m_rows.push_back(row);
  showRow(m_rows.back(), true);
  return int(m_rows.size()) - 1;
}

void CInspectorCtrl::RemoveAll()
{
  closeEditor();
  for (Row& row : m_rows)
    if (auto* point = row.property->connectionPoint())
      point->unadvise(m_sink.get());
  m_rows.clear();
  clear();
}

IRkEditableProperty* CInspectorCtrl::GetProperty(int row) const
{
  return row >= 0 && row < GetPropertyCount() ? m_rows[std::size_t(row)].property.get() : nullptr;
}

bool CInspectorCtrl::IsRowShown(int row) const
{
  return row >= 0 && row < GetPropertyCount() && !m_rows[std::size_t(row)].item->isHidden();
}

void CInspectorCtrl::SetRedraw(bool on)
{
  setUpdatesEnabled(on);
  if (on)
    viewport()->update();
}

int CInspectorCtrl::GetSplitterPos() const
{
  return header()->sectionSize(0);
}

void CInspectorCtrl::SetSplitterPos(int position)
{
  header()->resizeSection(0, std::max(1, position));
}

void CInspectorCtrl::showRow(Row& row, bool all)
{
  IRkEditableProperty* p = row.property.get();
  row.item->setText(0, p->title().qstring());
  row.item->setText(1, p->valueText().qstring());
  if (!all)
    return;
  row.item->setHidden(!p->isVisible());
  const bool readOnly = p->isReadOnly();
  const QPalette::ColorGroup group = readOnly ? QPalette::Disabled : QPalette::Active;
  row.item->setForeground(0, palette().brush(group, QPalette::Text));
  row.item->setForeground(1, palette().brush(group, QPalette::Text));
}

void CInspectorCtrl::RefreshProperties(bool all)
{
  for (Row& row : m_rows)
    showRow(row, all);
  if (m_editRow < 0)
    return;
  const Row& open = m_rows[std::size_t(m_editRow)];
  if (all && (open.item->isHidden() || open.property->isReadOnly())) {
    closeEditor();
  } else if (editorText() == m_editStartText) {
    // Nothing typed yet: the editor follows the new value.
    m_editStartText = open.property->valueText().qstring();
    setEditorText(m_editStartText);
  }
}

void CInspectorCtrl::propertyChanged(IRkEditableProperty* property)
{
  const int row = rowOf(property);
  if (row >= 0)
    showRow(m_rows[std::size_t(row)], true);
}

int CInspectorCtrl::rowOf(const QTreeWidgetItem* item) const
{
  for (std::size_t i = 0; i < m_rows.size(); ++i)
    if (m_rows[i].item == item)
      return int(i);
  return -1;
}

int CInspectorCtrl::rowOf(const IRkEditableProperty* property) const
{
  for (std::size_t i = 0; i < m_rows.size(); ++i)
    if (m_rows[i].property.get() == property)
      return int(i);
  return -1;
}

bool CInspectorCtrl::EditRow(int row)
{
  if (!IsRowShown(row) || m_rows[std::size_t(row)].property->isReadOnly())
    return false;
  setCurrentItem(m_rows[std::size_t(row)].item);
  return m_editRow == row;
}

void CInspectorCtrl::onCurrentChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous)
{
  if (m_movingBack)
    return;
  if (m_editRow >= 0 && !CommitEdit()) {
    // The old row keeps the selection until its value is right.
    m_movingBack = true;
    setCurrentItem(previous);
    m_movingBack = false;
    if (m_control)
      m_control->setFocus();
    return;
  }
  closeEditor();
  const int row = rowOf(current);
  if (row >= 0 && !current->isHidden() && !m_rows[std::size_t(row)].property->isReadOnly())
    openEditor(row);
}

void CInspectorCtrl::openEditor(int row)
{
  IRkEditableProperty* p = m_rows[std::size_t(row)].property.get();
  QTreeWidgetItem* item = m_rows[std::size_t(row)].item;
  m_editRow = row;
  m_editStartText = p->valueText().qstring();

  auto* box = new QWidget(viewport());
  auto* layout = new QHBoxLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  QWidget* custom = p->createInPlaceControl(box, visualItemRect(item));
  if (custom) {
    layout->addWidget(custom);
    m_control = custom;
  } else if (p->hasDropList()) {
    auto* combo = new InspectorCombo(box, [p](QComboBox* c) { fillList(c, p); });
    combo->setEditable(!p->isListOnly());
    combo->setInsertPolicy(QComboBox::NoInsert);
    fillList(combo, p);
    setEditorTextOf(combo, m_editStartText);
    connect(combo, &QComboBox::activated, this, [this] { CommitEdit(); });
    if (combo->lineEdit()) {
      connect(combo->lineEdit(), &QLineEdit::editingFinished, this, [this] { CommitEdit(); });
      combo->lineEdit()->installEventFilter(this);
    }
    combo->installEventFilter(this);
    layout->addWidget(combo);
    m_control = combo;
  } else {
    auto* edit = new QLineEdit(m_editStartText, box);
    edit->setFrame(false);
    connect(edit, &QLineEdit::editingFinished, this, [this] { CommitEdit(); });
    edit->installEventFilter(this);
    layout->addWidget(edit);
    m_control = edit;
  }
  if (p->hasDialogButton()) {
    auto* button = new QToolButton(box);
    button->setText(QStringLiteral("..."));
    connect(button, &QToolButton::clicked, this, [this] { runRowDialog(); });
    layout->addWidget(button);
  }
  setItemWidget(item, 1, box);
  m_control->setFocus();
}

void CInspectorCtrl::closeEditor()
{
  if (m_editRow < 0)
    return;
  QTreeWidgetItem* item = m_rows[std::size_t(m_editRow)].item;
  m_editRow = -1;
  m_control = nullptr;
  if (QWidget* box = itemWidget(item, 1)) {
    // The editor may be inside its own signal: it goes once that returns.
    removeItemWidget(item, 1);
    box->hide();
    box->deleteLater();
  }
}

void CInspectorCtrl::setEditorTextOf(QComboBox* combo, const QString& text)
{
  if (combo->isEditable()) {
    combo->setEditText(text);
    return;
  }
  int at = combo->findText(text);
  if (at < 0) {
    combo->addItem(text);
    at = combo->count() - 1;
  }
  combo->setCurrentIndex(at);
}

QString CInspectorCtrl::editorText() const
{
  if (auto* combo = qobject_cast<QComboBox*>(m_control.data()))
    return combo->currentText();
  if (auto* edit = qobject_cast<QLineEdit*>(m_control.data()))
    return edit->text();
  return m_editStartText;
}

void CInspectorCtrl::setEditorText(const QString& text)
{
  if (auto* combo = qobject_cast<QComboBox*>(m_control.data()))
    setEditorTextOf(combo, text);
  else if (auto* edit = qobject_cast<QLineEdit*>(m_control.data()))
    edit->setText(text);
}

bool CInspectorCtrl::CommitEdit()
{
  if (m_editRow < 0 || m_commitLock > 0 || !m_control)
    return true;
  const QString text = editorText();
  if (text == m_editStartText)
    return true;
  const int row = m_editRow;
  IRkEditableProperty* p = m_rows[std::size_t(row)].property.get();
  ++m_commitLock;
  OdString message;
  bool ok = false;
  try {
    ok = p->commit(OdString(text), message);
  } catch (...) {
    message = tr("The value could not be set.");
  }
  if (!ok) {
    if (!message.isEmpty())
      hostMessageBox(message, p->title(), 48);
    if (m_control) {
      m_control->setFocus();
      if (auto* edit = qobject_cast<QLineEdit*>(m_control.data()))
        edit->selectAll();
    }
  } else {
    RefreshProperties(false);
    m_editStartText = p->valueText().qstring();
    setEditorText(m_editStartText);
  }
  --m_commitLock;
  if (ok)
    emit propertyCommitted(row);
  return ok;
}

void CInspectorCtrl::CancelEdit()
{
  if (m_editRow < 0)
    return;
  m_rows[std::size_t(m_editRow)].property->cancel();
  m_editStartText = m_rows[std::size_t(m_editRow)].property->valueText().qstring();
  setEditorText(m_editStartText);
  showRow(m_rows[std::size_t(m_editRow)], false);
}

void CInspectorCtrl::runRowDialog()
{
  if (m_editRow < 0)
    return;
  const int row = m_editRow;
  IRkEditableProperty* p = m_rows[std::size_t(row)].property.get();
  ++m_commitLock;
  const bool changed = p->runDialog(window());
  --m_commitLock;
  if (!changed || m_editRow != row)
    return;
  RefreshProperties(false);
  m_editStartText = p->valueText().qstring();
  setEditorText(m_editStartText);
  emit propertyCommitted(row);
}

bool CInspectorCtrl::eventFilter(QObject* watched, QEvent* event)
{
  if (event->type() == QEvent::KeyPress && m_editRow >= 0) {
    auto* key = static_cast<QKeyEvent*>(event);
    // Escape takes back what was typed; with nothing typed it goes on to the
    // dialog, which closes.
    if (key->key() == Qt::Key_Escape && editorText() != m_editStartText) {
      CancelEdit();
      return true;
    }
  }
  return QTreeWidget::eventFilter(watched, event);
}

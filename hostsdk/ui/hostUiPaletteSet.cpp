// The dockable pane.
#include "hostsdk/ui/hostUiPaletteSet.h"

#include <QCloseEvent>
#include <QMainWindow>

hostUiPaletteSet::hostUiPaletteSet()
{
  setFeatures(DockWidgetClosable | DockWidgetMovable | DockWidgetFloatable);
  setAllowedAreas(Qt::NoDockWidgetArea);
  hide();
}

hostUiPaletteSet::~hostUiPaletteSet() = default;

bool hostUiPaletteSet::Create(const OdString& title, unsigned style, const QRect& rect, QWidget* parent, unsigned id)
{
  if (!parent || m_created)
    return false;
  setWindowTitle(title.qstring());
  setObjectName(QStringLiteral("hostUiPaletteSet%1").arg(id));
  if (auto* main = qobject_cast<QMainWindow*>(parent)) {
    // Docked at the right until docking is enabled elsewhere: a pane with no
    // allowed area would otherwise be thrown out of the main window.
    setAllowedAreas(Qt::RightDockWidgetArea);
    main->addDockWidget(Qt::RightDockWidgetArea, this);
  } else {
    setParent(parent);
  }
  if (!rect.isEmpty()) {
    setFloating(true);
    setGeometry(rect);
  }
  m_created = true;
  if (!OnCreate()) {
    m_created = false;
    hide();
    return false;
  }
  setVisible((style & kStyleVisible) != 0);
  return true;
}

void hostUiPaletteSet::EnableDocking(unsigned alignment)
{
  Qt::DockWidgetAreas areas = Qt::NoDockWidgetArea;
  if (alignment & kAlignLeft)
    areas |= Qt::LeftDockWidgetArea;
  if (alignment & kAlignTop)
    areas |= Qt::TopDockWidgetArea;
  if (alignment & kAlignRight)
    areas |= Qt::RightDockWidgetArea;
  if (alignment & kAlignBottom)
    areas |= Qt::BottomDockWidgetArea;
  setAllowedAreas(areas);
  if (areas == Qt::NoDockWidgetArea && !isFloating())
    setFloating(true);
}

void hostUiPaletteSet::ShowPane(bool show)
{
  setVisible(show);
  if (show)
    raise();
}

bool hostUiPaletteSet::IsPaneVisible() const
{
  return m_created && !isHidden();
}

void hostUiPaletteSet::SetContent(QWidget* content)
{
  setWidget(content);
}

QWidget* hostUiPaletteSet::GetOwner() const
{
  return m_owner ? m_owner.data() : parentWidget();
}

void hostUiPaletteSet::closeEvent(QCloseEvent* event)
{
  OnPressCloseButton();
  QDockWidget::closeEvent(event);
  if (event->isAccepted())
    emit paneClosedByUser();
}

void hostUiPaletteSet::resizeEvent(QResizeEvent* event)
{
  QDockWidget::resizeEvent(event);
  const QRect client = widget() ? widget()->geometry() : contentsRect();
  OnSize(client.width(), client.height());
}

// The coloured splitter.
#include "hostsdk/ui/hostUiColoredSplitter.h"

#include <QPainter>
#include <QSplitterHandle>

namespace {

class ColoredHandle : public QSplitterHandle
{
public:
  ColoredHandle(Qt::Orientation orientation, hostUiColoredSplitter* parent)
      : QSplitterHandle(orientation, parent), m_splitter(parent)
  {
  }

protected:
  void paintEvent(QPaintEvent*) override
  {
    QPainter p(this);
    p.fillRect(rect(), m_splitter->SplitterColor());
  }

private:
  hostUiColoredSplitter* m_splitter;
};

} // namespace

hostUiColoredSplitter::hostUiColoredSplitter(QWidget* parent) : QSplitter(parent), m_color(palette().color(QPalette::Mid))
{
  setChildrenCollapsible(true);
  setHandleWidth(4);
}

hostUiColoredSplitter::~hostUiColoredSplitter() = default;

bool hostUiColoredSplitter::CreateStatic(QWidget* parent, int rows, int cols)
{
  if (rows < 1 || cols < 1 || (rows > 1 && cols > 1))
    return false;
  if (parent)
    setParent(parent);
  setOrientation(cols > 1 ? Qt::Horizontal : Qt::Vertical);
  m_info.assign(std::size_t(std::max(rows, cols)), Info());
  return true;
}

void hostUiColoredSplitter::SetColumnInfo(int column, int ideal, int minimum)
{
  if (column < 0)
    return;
  if (std::size_t(column) >= m_info.size())
    m_info.resize(std::size_t(column) + 1);
  m_info[std::size_t(column)] = Info{ideal, std::max(0, minimum)};
}

void hostUiColoredSplitter::GetColumnInfo(int column, int& current, int& minimum) const
{
  const QList<int> now = sizes();
  current = column >= 0 && column < now.size() ? now.at(column) : 0;
  minimum = column >= 0 && std::size_t(column) < m_info.size() ? m_info[std::size_t(column)].minimum : 0;
}

void hostUiColoredSplitter::RecalcLayout()
{
  QList<int> wanted = sizes();
  for (int i = 0; i < wanted.size() && std::size_t(i) < m_info.size(); ++i) {
    const Info& info = m_info[std::size_t(i)];
    if (info.ideal >= 0)
      wanted[i] = std::max(info.ideal, info.ideal == 0 ? 0 : info.minimum);
    if (QWidget* pane = widget(i)) {
      // A minimum of 0 lets the pane be pushed out of sight entirely.
      if (orientation() == Qt::Horizontal)
        pane->setMinimumWidth(info.minimum);
      else
        pane->setMinimumHeight(info.minimum);
    }
  }
  setSizes(wanted);
}

void hostUiColoredSplitter::SetSplitterColor(const QColor& color)
{
  m_color = color;
  for (int i = 0; i < count(); ++i)
    if (QSplitterHandle* h = handle(i))
      h->update();
}

QSplitterHandle* hostUiColoredSplitter::createHandle()
{
  return new ColoredHandle(orientation(), this);
}

// hostUiColoredSplitter: a splitter of panes in one row or one column whose
// bars are drawn in a colour of their own. Panes may be pushed to width 0,
// which shows the other pane alone.
#pragma once

#include <QColor>
#include <QSplitter>

class hostUiColoredSplitter : public QSplitter
{
  Q_OBJECT

public:
  explicit hostUiColoredSplitter(QWidget* parent = nullptr);
  ~hostUiColoredSplitter() override;

  // One row of `cols` panes or one column of `rows` panes (the other count
  // is 1). False for any other shape.
  bool CreateStatic(QWidget* parent, int rows, int cols);
  // Adds the next pane, left to right or top to bottom.
  void AddPane(QWidget* pane) { addWidget(pane); }

  // The wanted and the least size of a column (or row) in pixels; applied
  // by RecalcLayout.
  void SetColumnInfo(int column, int ideal, int minimum);
  void GetColumnInfo(int column, int& current, int& minimum) const;
  void SetRowInfo(int row, int ideal, int minimum) { SetColumnInfo(row, ideal, minimum); }
  void GetRowInfo(int row, int& current, int& minimum) const { GetColumnInfo(row, current, minimum); }
  void RecalcLayout();

  void SetSplitterColor(const QColor& color);
  QColor SplitterColor() const { return m_color; }

protected:
  QSplitterHandle* createHandle() override;

private:
  struct Info
  {
    int ideal = -1;
    int minimum = 0;
  };
  std::vector<Info> m_info;
  QColor m_color;
};

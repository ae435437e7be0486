// CInspectorCtrl: the host's property inspector. Two columns, the names and
// the values of rows given as IRkEditableProperty, with a movable split
// between them. The selected row edits in place: a line, a drop list, a
// "..." button, as the row asks; Enter or leaving the field commits, Escape
// takes the edit back.
#pragma once

#include "hostsdk/core/RkEditableProperty.h"

#include <QPointer>
#include <QTreeWidget>

#include <vector>

class QComboBox;

class CInspectorCtrl : public QTreeWidget
{
  Q_OBJECT

public:
  explicit CInspectorCtrl(QWidget* parent = nullptr);
  ~CInspectorCtrl() override;

  // Adds a row at the end; the inspector holds a reference until the rows
  // are removed. Returns the row's index.
  int AddProperty(IRkEditableProperty* property);
  void RemoveAll();
  int GetPropertyCount() const { return int(m_rows.size()); }
  IRkEditableProperty* GetProperty(int row) const;
  // The row on screen: invisible rows are there but hidden.
  bool IsRowShown(int row) const;

  // Off while many rows are added, to draw once at the end.
  void SetRedraw(bool on);
  // The width of the names column.
  int GetSplitterPos() const;
  void SetSplitterPos(int position);

  // Reads the rows anew: the values, and with `all` also which rows show
  // and which may be edited.
  void RefreshProperties(bool all);

  // Opens the editor of a row, as a click on it does; false for a read-only
  // or hidden row.
  bool EditRow(int row);
  int EditingRow() const { return m_editRow; }
  // The editor's main control (a line edit or a combo box), or null.
  QWidget* EditorControl() const { return m_control; }
  // Commits what the open editor holds. False when the row refused it: the
  // editor stays open with the text, and the user was told why.
  bool CommitEdit();
  // Takes back what was typed in the open editor.
  void CancelEdit();

signals:
  void propertyCommitted(int row);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  class Sink;
  struct Row
  {
    CRkPtr<IRkEditableProperty> property;
    QTreeWidgetItem* item = nullptr;
  };

  void onCurrentChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous);
  void showRow(Row& row, bool all);
  int rowOf(const QTreeWidgetItem* item) const;
  int rowOf(const IRkEditableProperty* property) const;
  void openEditor(int row);
  void closeEditor();
  QString editorText() const;
  void setEditorText(const QString& text);
  static void setEditorTextOf(QComboBox* combo, const QString& text);
  void runRowDialog();
  void propertyChanged(IRkEditableProperty* property);

  std::vector<Row> m_rows;
  CRkPtr<Sink> m_sink;
  int m_refresherCookie = 0;
  int m_editRow = -1;
  QPointer<QWidget> m_control; // the line edit or combo of the open editor
  QString m_editStartText;     // the value when the editor opened or last committed
  int m_commitLock = 0;        // a focus change caused by the commit itself commits nothing
  bool m_movingBack = false;   // the selection returns to a row that refused its edit
};

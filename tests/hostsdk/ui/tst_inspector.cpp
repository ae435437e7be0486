// The property inspector driven by events: rows shown as their properties
// say, edits committed, refused or taken back.
#include "hostsdk/core/HostCore.h"
#include "hostsdk/core/HostObjProps.h"
#include "hostsdk/ui/CInspectorCtrl.h"
#include "tests/WidgetTestEnvironment.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

namespace {

// A number between 0 and 100, as a row of a module would hold it.
class NumberProperty : public CRkUnknownImpl<IRkEditableProperty>
{
public:
  NumberProperty(const char* title, double value) : m_title(title), m_value(value) {}
  OdString title() const override { return m_title; }
  OdString valueText() const override { return OdString::formatted("%g", m_value); }
  bool isReadOnly() const override { return readOnly; }
  bool isVisible() const override { return visible; }
  bool commit(const OdString& text, OdString& message) override
  {
    ++commits;
    bool ok = false;
    const double v = text.qstring().toDouble(&ok);
    if (!ok) {
      message = "Invalid expression: " + text;
      return false;
    }
    if (v < 0 || v > 100) {
      message = "Value must be between 0 and 100";
      return false;
    }
    m_value = v;
    return true;
  }
  void cancel() override { ++cancels; }
  bool hasDropList() const override { return !list.empty(); }
  bool isListOnly() const override { return listOnly; }
  std::vector<RkPropertyListItem> enumerateList() override
  {
    ++enumerations;
    return list;
  }
  bool hasDialogButton() const override { return dialogValue >= 0; }
  bool runDialog(QWidget*) override
  {
    m_value = dialogValue;
    return true;
  }
  IRkConnectionPoint<IRkEditablePropertySink>* connectionPoint() override { return &point; }

  double value() const { return m_value; }
  void setValueFromOutside(double v)
  {
    m_value = v;
    point.fire([this](IRkEditablePropertySink* s) { s->onPropertyChanged(this); });
  }

  bool readOnly = false, visible = true, listOnly = false;
  double dialogValue = -1;
  std::vector<RkPropertyListItem> list;
  int commits = 0, cancels = 0, enumerations = 0;
  CRkConnectionPointImpl<IRkEditablePropertySink> point;

private:
  OdString m_title;
  double m_value;
};

using NumberPtr = CRkPtr<NumberProperty>;

NumberPtr makeNumber(const char* title, double value)
{
  return NumberPtr::attach(new NumberProperty(title, value));
}

class InspectorTest : public ::testing::Test
{
protected:
  void SetUp() override
  {
    s_messages.clear();
    hostSetMessageBoxHandler([](const OdString& text, const OdString&, unsigned) {
      s_messages << text.qstring();
      return 1;
    });
    m_inspector.resize(400, 300);
    m_inspector.show();
  }
  void TearDown() override { hostSetMessageBoxHandler(nullptr); }

  QLineEdit* lineEditor() const { return qobject_cast<QLineEdit*>(m_inspector.EditorControl()); }

  // Types into the open line editor, replacing what it holds, then a key.
  void typeAndPress(const QString& text, Qt::Key key)
  {
    QLineEdit* edit = lineEditor();
    ASSERT_NE(edit, nullptr);
    edit->selectAll();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, key);
  }

  static inline QStringList s_messages;
  CInspectorCtrl m_inspector;
};

TEST_F(InspectorTest, rows_showTitleAndValueAndFollowVisibility)
{
  NumberPtr scale = makeNumber("Scale", 1.5), hidden = makeNumber("Hidden", 2);
  hidden->visible = false;
  m_inspector.AddProperty(scale.get());
  m_inspector.AddProperty(hidden.get());
  ASSERT_EQ(m_inspector.GetPropertyCount(), 2);
  EXPECT_EQ(m_inspector.topLevelItem(0)->text(0), "Scale");
  EXPECT_EQ(m_inspector.topLevelItem(0)->text(1), "1.5");
  EXPECT_TRUE(m_inspector.IsRowShown(0));
  EXPECT_FALSE(m_inspector.IsRowShown(1));

  // What a setter of a module calls after changing what other rows depend on.
  hidden->visible = true;
  scale->visible = false;
  OpmRefreshProperties(true);
  EXPECT_FALSE(m_inspector.IsRowShown(0));
  EXPECT_TRUE(m_inspector.IsRowShown(1));
}

TEST_F(InspectorTest, readOnlyAndHiddenRows_openNoEditor)
{
  NumberPtr fixed = makeNumber("Fixed", 3), hidden = makeNumber("Hidden", 4);
  fixed->readOnly = true;
  hidden->visible = false;
  m_inspector.AddProperty(fixed.get());
  m_inspector.AddProperty(hidden.get());
  EXPECT_FALSE(m_inspector.EditRow(0));
  EXPECT_FALSE(m_inspector.EditRow(1));
  QTest::mouseClick(m_inspector.viewport(), Qt::LeftButton, {},
                    m_inspector.visualItemRect(m_inspector.topLevelItem(0)).center());
  EXPECT_EQ(m_inspector.EditorControl(), nullptr);
}

TEST_F(InspectorTest, enter_commitsTheTypedValue)
{
  NumberPtr scale = makeNumber("Scale", 1);
  m_inspector.AddProperty(scale.get());
  ASSERT_TRUE(m_inspector.EditRow(0));
  typeAndPress("42", Qt::Key_Return);
  EXPECT_EQ(scale->value(), 42.0);
  EXPECT_EQ(m_inspector.topLevelItem(0)->text(1), "42");
  EXPECT_TRUE(s_messages.isEmpty());
}

struct RefusalRow
{
  const char* typed;
  const char* message;
  friend void PrintTo(const RefusalRow& r, std::ostream* os) { *os << "typed " << r.typed; }
};

class InspectorRefusal : public InspectorTest, public ::testing::WithParamInterface<RefusalRow>
{
};

TEST_P(InspectorRefusal, refusedValue_isToldAndTheEditorStaysWithTheText)
{
  NumberPtr scale = makeNumber("Scale", 7);
  m_inspector.AddProperty(scale.get());
  ASSERT_TRUE(m_inspector.EditRow(0));
  typeAndPress(GetParam().typed, Qt::Key_Return);
  ASSERT_EQ(s_messages.size(), 1) << "one message, not one per focus change";
  EXPECT_EQ(s_messages[0], GetParam().message);
  EXPECT_EQ(scale->value(), 7.0);
  EXPECT_EQ(m_inspector.EditingRow(), 0);
  ASSERT_NE(lineEditor(), nullptr);
  EXPECT_EQ(lineEditor()->text(), GetParam().typed);
  EXPECT_EQ(m_inspector.topLevelItem(0)->text(1), "7");
}

INSTANTIATE_TEST_SUITE_P(Values, InspectorRefusal,
                         ::testing::Values(RefusalRow{"-1", "Value must be between 0 and 100"},
                                           RefusalRow{"abc", "Invalid expression: abc"}));

TEST_F(InspectorTest, refusedValue_keepsTheSelectionOnItsRow)
{
  NumberPtr a = makeNumber("A", 1), b = makeNumber("B", 2);
  m_inspector.AddProperty(a.get());
  m_inspector.AddProperty(b.get());
  ASSERT_TRUE(m_inspector.EditRow(0));
  lineEditor()->setText("500");
  m_inspector.setCurrentItem(m_inspector.topLevelItem(1));
  EXPECT_EQ(m_inspector.EditingRow(), 0);
  EXPECT_EQ(m_inspector.currentItem(), m_inspector.topLevelItem(0));
  EXPECT_FALSE(s_messages.isEmpty());
}

TEST_F(InspectorTest, escape_takesTheEditBack)
{
  NumberPtr scale = makeNumber("Scale", 5);
  m_inspector.AddProperty(scale.get());
  ASSERT_TRUE(m_inspector.EditRow(0));
  typeAndPress("99", Qt::Key_Escape);
  EXPECT_EQ(scale->cancels, 1);
  EXPECT_EQ(scale->value(), 5.0);
  EXPECT_EQ(lineEditor()->text(), "5");
  // Leaving the row now commits nothing, since nothing is typed any more.
  m_inspector.CommitEdit();
  EXPECT_EQ(scale->commits, 0);
}

TEST_F(InspectorTest, dropList_isBuiltEachTimeItOpens)
{
  NumberPtr weight = makeNumber("Weight", 25);
  weight->list = {{"0", false, 0, 0}, {"25", false, 0, 25}, {"50", false, 0, 50}};
  weight->listOnly = true;
  m_inspector.AddProperty(weight.get());
  ASSERT_TRUE(m_inspector.EditRow(0));
  auto* combo = qobject_cast<QComboBox*>(m_inspector.EditorControl());
  ASSERT_NE(combo, nullptr);
  EXPECT_FALSE(combo->isEditable());
  EXPECT_EQ(combo->currentText(), "25");
  const int before = weight->enumerations;
  combo->showPopup();
  EXPECT_EQ(weight->enumerations, before + 1);
  combo->hidePopup();
  combo->setCurrentIndex(2);
  emit combo->activated(2);
  EXPECT_EQ(weight->value(), 50.0);
}

TEST_F(InspectorTest, dialogButton_runsTheRowsDialog)
{
  NumberPtr file = makeNumber("File", 1);
  file->dialogValue = 12;
  m_inspector.AddProperty(file.get());
  ASSERT_TRUE(m_inspector.EditRow(0));
  auto* button = m_inspector.itemWidget(m_inspector.topLevelItem(0), 1)->findChild<QToolButton*>();
  ASSERT_NE(button, nullptr);
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(m_inspector.topLevelItem(0)->text(1), "12");
  EXPECT_EQ(lineEditor()->text(), "12");
}

TEST_F(InspectorTest, rowChangedByItsModule_isShownAnew)
{
  NumberPtr scale = makeNumber("Scale", 1);
  m_inspector.AddProperty(scale.get());
  scale->setValueFromOutside(3);
  EXPECT_EQ(m_inspector.topLevelItem(0)->text(1), "3");
  m_inspector.RemoveAll();
  EXPECT_EQ(scale->point.sinkCount(), 0u) << "the inspector stops listening with its rows";
}

TEST_F(InspectorTest, splitterPosition_isTheNamesColumnWidth)
{
  m_inspector.SetSplitterPos(120);
  EXPECT_EQ(m_inspector.GetSplitterPos(), 120);
}

} // namespace

// The kit's standard dialogs: in windows driven by events, and answered on
// the command line when the host has no windows.
#include "hostsdk/ui/HostUiColorDialog.h"
#include "hostsdk/ui/HostUiColorText.h"
#include "hostsdk/ui/HostUiFileDialogs.h"
#include "hostsdk/ui/HostUiMessageBox.h"
#include "tests/WidgetTestEnvironment.h"
#include "tests/hostsdk/ui/FakeHostContext.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

namespace {

// Runs `step` on the modal window that opens within the next two seconds.
void onNextModal(std::function<void(QWidget*)> step, int attempts = 200)
{
  QTimer::singleShot(attempts == 200 ? 0 : 10, [step, attempts] {
    if (QWidget* modal = QApplication::activeModalWidget())
      step(modal);
    else if (attempts > 0)
      onNextModal(step, attempts - 1);
  });
}

struct ColorTextRow
{
  const char* text;
  bool valid;
  const char* formatted; // how the colour read is written back
  friend void PrintTo(const ColorTextRow& r, std::ostream* os) { *os << '"' << r.text << '"'; }
};

class ColorText : public ::testing::TestWithParam<ColorTextRow>
{
};

TEST_P(ColorText, parse_thenFormat)
{
  OdCmColor color;
  ASSERT_EQ(HostUiColorText::parse(GetParam().text, color), GetParam().valid);
  if (GetParam().valid)
    EXPECT_EQ(HostUiColorText::format(color).qstring(), GetParam().formatted);
}

INSTANTIATE_TEST_SUITE_P(Texts, ColorText,
                         ::testing::Values(ColorTextRow{"bylayer", true, "ByLayer"}, ColorTextRow{"256", true, "ByLayer"},
                                           ColorTextRow{"BYBLOCK", true, "ByBlock"}, ColorTextRow{"0", true, "ByBlock"},
                                           ColorTextRow{"Red", true, "red"}, ColorTextRow{"7", true, "white"},
                                           ColorTextRow{"130", true, "130"}, ColorTextRow{" 12, 34 ,56", true, "12,34,56"},
                                           ColorTextRow{"256,0,0", false, ""}, ColorTextRow{"1,2", false, ""},
                                           ColorTextRow{"300", false, ""}, ColorTextRow{"purple", false, ""},
                                           ColorTextRow{"", false, ""}));

TEST(ColorTextRules, byLayerAndByBlock_canBeRefused)
{
  OdCmColor color;
  color.setColorIndex(3);
  EXPECT_FALSE(HostUiColorText::parse("ByLayer", color, false));
  EXPECT_EQ(color.colorIndex(), 3) << "untouched after a refusal";
}

struct FilterRow
{
  const char* host;
  const char* qt;
  friend void PrintTo(const FilterRow& r, std::ostream* os) { *os << '"' << r.host << '"'; }
};

class Filters : public ::testing::TestWithParam<FilterRow>
{
};

TEST_P(Filters, hostFilter_becomesQtFilter)
{
  EXPECT_EQ(hostUiQtFilter(GetParam().host), GetParam().qt);
}

INSTANTIATE_TEST_SUITE_P(
    Forms, Filters,
    ::testing::Values(FilterRow{"Tool Palette(*.xtp)|*.xtp|", "Tool Palette (*.xtp)"},
                      FilterRow{"Image (*.jpg;*.jpeg;*.png)|*.jpg;*.jpeg;*.png|All files (*.*)|*.*||",
                                "Image (*.jpg *.jpeg *.png);;All files (*)"},
                      FilterRow{"Drawing|*.dxf||", "Drawing (*.dxf)"}, FilterRow{"", ""}));

TEST(MessageBoxWithCheckBox, tickedAnswer_isKeptUnderItsKey)
{
  uitest::ScopedHost host;
  QWidget mainWindow;
  host.services.window = &mainWindow;
  int shown = 0;
  onNextModal([&](QWidget* w) {
    ++shown;
    auto* box = qobject_cast<QMessageBox*>(w);
    ASSERT_NE(box, nullptr);
    box->checkBox()->setChecked(true);
    box->button(QMessageBox::No)->click();
  });
  EXPECT_EQ(hostShowMessageBoxWithCheckBox(nullptr, "Convert?", "ToolPaletteManager\\MTMsg", "Verdani", 4, ""), 7);
  EXPECT_EQ(shown, 1);
  // No box this time: the kept answer comes back.
  EXPECT_EQ(hostShowMessageBoxWithCheckBox(nullptr, "Convert?", "ToolPaletteManager\\MTMsg", "Verdani", 4, ""), 7);
  EXPECT_TRUE(hostResetMessageBoxWithCheckBox("ToolPaletteManager\\MTMsg"));
  EXPECT_FALSE(hostResetMessageBoxWithCheckBox("ToolPaletteManager\\MTMsg"));
}

TEST(MessageBoxWithCheckBox, untickedAnswer_isNotKept)
{
  uitest::ScopedHost host;
  QWidget mainWindow;
  host.services.window = &mainWindow;
  for (int round = 0; round < 2; ++round) {
    bool shown = false;
    onNextModal([&](QWidget* w) {
      shown = true;
      static_cast<QMessageBox*>(w)->button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(hostShowMessageBoxWithCheckBox(nullptr, "Skipped tools", "ToolPaletteManager\\UTMsg", "Verdani",
                                             0x11000040, ""),
              1);
    EXPECT_TRUE(shown) << "round " << round;
  }
}

TEST(MessageBoxWithCheckBox, withoutWindows_printsAndAnswersTheDefault)
{
  uitest::ScopedHost host; // a host without a main window
  EXPECT_EQ(hostShowMessageBoxWithCheckBox(nullptr, "Palette imported.", "K\\V", "Verdani", 0x40, ""), 1);
  EXPECT_EQ(hostShowMessageBoxWithCheckBox(nullptr, "Replace?", "", "Verdani", 4 | 0x100, ""), 7)
      << "the second button is the default";
  EXPECT_TRUE(host.services.output.printed.contains("Verdani: Palette imported."));
}

TEST(ColorDialog, clickedIndex_isTheAnswer)
{
  onNextModal([](QWidget* w) {
    auto* dialog = qobject_cast<HostUiColorDialog*>(w);
    ASSERT_NE(dialog, nullptr);
    // The cell of index 1 (red) is the first of the row below the hues.
    QWidget* palette = dialog->indexPalette();
    QTest::mouseClick(palette, Qt::LeftButton, {}, QPoint(5, 10 * 14 + 6 + 5));
    EXPECT_EQ(dialog->colorEdit()->text(), "red");
    dialog->accept();
  });
  OdCmColor color(OdCmEntityColor::kByLayer);
  ASSERT_TRUE(hostUiSelectColor(nullptr, color));
  EXPECT_TRUE(color.isByACI());
  EXPECT_EQ(color.colorIndex(), 1);
}

TEST(ColorDialog, typedTrueColour_andCancelKeepsTheColour)
{
  onNextModal([](QWidget* w) {
    auto* dialog = static_cast<HostUiColorDialog*>(w);
    dialog->colorEdit()->setText("10,20,30");
    dialog->accept();
  });
  OdCmColor color;
  ASSERT_TRUE(hostUiSelectColor(nullptr, color));
  EXPECT_TRUE(color.isByColor());
  EXPECT_EQ(color.rgb(), 0x0A141Eu);

  onNextModal([](QWidget* w) { static_cast<HostUiColorDialog*>(w)->reject(); });
  EXPECT_FALSE(hostUiSelectColor(nullptr, color));
  EXPECT_EQ(color.rgb(), 0x0A141Eu);
}

struct TypedColorRow
{
  const char* answer; // null: no input left
  bool result;
  const char* after;
  friend void PrintTo(const TypedColorRow& r, std::ostream* os) { *os << (r.answer ? r.answer : "(no input)"); }
};

class ColorOnCommandLine : public ::testing::TestWithParam<TypedColorRow>
{
};

TEST_P(ColorOnCommandLine, answersFromTheCommandLine)
{
  uitest::ScopedHost host;
  if (GetParam().answer)
    host.services.document.answers << GetParam().answer;
  OdCmColor color;
  color.setColorIndex(5);
  EXPECT_EQ(hostUiSelectColor(nullptr, color), GetParam().result);
  EXPECT_EQ(HostUiColorText::format(color).qstring(), GetParam().after);
  ASSERT_EQ(host.services.document.prompts.size(), 1);
  EXPECT_TRUE(host.services.document.prompts[0].endsWith("<blue>: "));
}

INSTANTIATE_TEST_SUITE_P(Answers, ColorOnCommandLine,
                         ::testing::Values(TypedColorRow{"green", true, "green"}, TypedColorRow{"", true, "blue"},
                                           TypedColorRow{"ByBlock", true, "ByBlock"},
                                           TypedColorRow{"nonsense", false, "blue"},
                                           TypedColorRow{nullptr, false, "blue"}));

class FileDialogs : public ::testing::Test
{
protected:
  void SetUp() override
  {
    ASSERT_TRUE(m_dir.isValid());
    QFile f(m_dir.filePath("palette.xtp"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  }
  QTemporaryDir m_dir;
};

TEST_F(FileDialogs, open_typedNameOfAnExistingFile)
{
  uitest::ScopedHost host;
  host.services.document.answers << "\"" + m_dir.filePath("palette") + "\"";
  OdString path;
  ASSERT_TRUE(hostUiGetOpenFileName(nullptr, "Import palette", "Tool Palette(*.xtp)|*.xtp|", "xtp", "", path));
  EXPECT_EQ(path.qstring(), m_dir.filePath("palette.xtp")) << "the default extension completes the name";

  host.services.document.answers << m_dir.filePath("missing.xtp");
  EXPECT_FALSE(hostUiGetOpenFileName(nullptr, "Import palette", "", "xtp", "", path));
  EXPECT_TRUE(host.services.output.printed.contains("does not exist"));
}

TEST_F(FileDialogs, saveAndFolder_typed)
{
  uitest::ScopedHost host;
  host.services.document.answers << m_dir.filePath("out") << m_dir.path() << m_dir.filePath("palette.xtp");
  OdString path, folder;
  ASSERT_TRUE(hostUiGetSaveFileName(nullptr, "Export", "", "xtp", "", true, path));
  EXPECT_EQ(path.qstring(), m_dir.filePath("out.xtp"));
  ASSERT_TRUE(hostUiBrowseForFolder(nullptr, "Select Tool Palette folder", "", folder));
  EXPECT_EQ(folder.qstring(), m_dir.path());
  EXPECT_FALSE(hostUiBrowseForFolder(nullptr, "Select Tool Palette folder", "", folder)) << "a file is no folder";
}

TEST_F(FileDialogs, open_inAWindow)
{
  onNextModal([this](QWidget* w) {
    auto* dialog = qobject_cast<QFileDialog*>(w);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->nameFilters(), QStringList{"Tool Palette (*.xtp)"});
    dialog->selectFile(m_dir.filePath("palette.xtp"));
    QMetaObject::invokeMethod(dialog, "accept");
  });
  OdString path;
  ASSERT_TRUE(hostUiGetOpenFileName(nullptr, "Import palette", "Tool Palette(*.xtp)|*.xtp|", "xtp", m_dir.path(), path));
  EXPECT_EQ(path.qstring(), m_dir.filePath("palette.xtp"));
}

TEST_F(FileDialogs, save_inAWindowAddsTheExtension)
{
  onNextModal([this](QWidget* w) {
    auto* dialog = static_cast<QFileDialog*>(w);
    dialog->selectFile(m_dir.filePath("exported"));
    QMetaObject::invokeMethod(dialog, "accept");
  });
  OdString path;
  ASSERT_TRUE(hostUiGetSaveFileName(nullptr, "Export", "Tool Palette(*.xtp)|*.xtp|", "xtp", m_dir.path(), true, path));
  EXPECT_EQ(path.qstring(), m_dir.filePath("exported.xtp"));
}

} // namespace

// The remembered state of the palette window: kept under "cmddata" /
// "ToolPaletteManager" when the host has "cmddata", nothing kept and
// nothing told when it has not, and reached by the host through the
// module's exports.
#include "tests/module/FakeHost.h"

#include "module/OdTcStateSaverImpl.h"
#include "module/TcExports.h"
#include "module/TcModuleState.h"
#include "module/TcUiStateSaver.h"

#include "sdk/kernel/OdRxModule.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

extern "C" OdRxModule* odrxCreateModuleObject(void*& instance);

using namespace tc;

namespace {

class StateSaver : public ::testing::Test
{
protected:
  void SetUp() override { fakehost::reset(); }
  void TearDown() override { fakehost::reset(); }
};

// Each call makes a new saver, so the values must live in the host.
class BothSavers : public StateSaver, public ::testing::WithParamInterface<bool>
{
protected:
  void set(const char* name, const CRkVariant& value)
  {
    if (GetParam()) {
      OdTcStateSaverImpl::createNew()->setValue(name, value);
    } else {
      TcUiStateSaver saver;
      saver.setValue(name, value);
    }
  }
  bool get(const char* name, CRkVariant& value)
  {
    if (GetParam())
      return OdTcStateSaverImpl::createNew()->getValue(name, value);
    TcUiStateSaver saver;
    return saver.getValue(name, value);
  }
};

} // namespace

TEST_P(BothSavers, withCmdData_valuesOutliveTheSaver_numbersAndTexts)
{
  fakehost::state().hasCmdData = true;
  set("ActiveView", CRkVariant(std::int32_t(2)));
  // An identifier of a catalog gone since is kept as it is; skipping it is
  // the tree's business.
  const OdString expanded("{A0000000-0000-4000-8000-0000000000C1}|{FFFFFFFF-0000-4000-8000-000000000000}|");
  set("ExpandedItems", CRkVariant(expanded));

  EXPECT_TRUE(fakehost::state().hasToolPaletteManager) << "the node is made at first use";
  CRkVariant value;
  ASSERT_TRUE(get("ActiveView", value));
  EXPECT_EQ(value.type(), CRkVariant::kInt32);
  EXPECT_EQ(value.toInt32(), 2);
  ASSERT_TRUE(get("ExpandedItems", value));
  EXPECT_EQ(value.toString(), expanded);
  EXPECT_FALSE(get("IconSize", value)) << "a value never set is missing: the caller takes its default";
  EXPECT_FALSE(get(nullptr, value));
}

TEST_P(BothSavers, withoutCmdData_nothingIsKept_andNoBranchIsMade)
{
  set("ActiveView", CRkVariant(std::int32_t(0)));
  CRkVariant value;
  EXPECT_FALSE(get("ActiveView", value));
  EXPECT_FALSE(fakehost::state().hasToolPaletteManager);
  EXPECT_TRUE(fakehost::state().toolPaletteManager.empty());
  EXPECT_TRUE(fakehost::state().printed.empty()) << "a host without the branch is not an error";
}

TEST_P(BothSavers, brokenConfiguration_keepsNothing_andThrowsNothing)
{
  fakehost::state().hasCmdData = true;
  fakehost::state().brokenProfile = true;
  EXPECT_NO_THROW(set("ActiveView", CRkVariant(std::int32_t(1))));
  CRkVariant value;
  EXPECT_NO_THROW(EXPECT_FALSE(get("ActiveView", value)));
}

INSTANTIATE_TEST_SUITE_P(Savers, BothSavers, ::testing::Bool(),
                         [](const auto& info) { return info.param ? "moduleWide" : "window"; });

TEST_F(StateSaver, moduleWideSaver_reachesABranchTheHostMadeAfterIt)
{
  OdTcStateSaverImplPtr moduleWide = OdTcStateSaverImpl::createNew();
  TcUiStateSaver window;
  fakehost::state().hasCmdData = true;

  window.setValue("IconSize", CRkVariant(std::int32_t(4)));
  EXPECT_TRUE(fakehost::state().toolPaletteManager.empty()) << "the window's saver looks once, when made";
  moduleWide->setValue("IconSize", CRkVariant(std::int32_t(3)));
  CRkVariant value;
  ASSERT_TRUE(moduleWide->getValue("IconSize", value));
  EXPECT_EQ(value.toInt32(), 3);
}

TEST_F(StateSaver, exports_reachTheStartedModulesSaver_andNothingWithoutIt)
{
  QTemporaryDir dir;
  fakehost::state().hasCmdData = true;
  fakehost::state().userDataFolder = OdString(dir.filePath(QStringLiteral("data")));
  CRkVariant value;
  odtcSetStateValue("SplitterPos", CRkVariant(std::int32_t(151)));
  EXPECT_FALSE(odtcGetStateValue("SplitterPos", value)) << "nothing is kept before the module starts";

  void* handle = nullptr;
  OdRxModule* module = odrxCreateModuleObject(handle);
  module->initApp();
  odtcSetStateValue("SplitterPos", CRkVariant(std::int32_t(180)));
  ASSERT_TRUE(odtcGetStateValue("SplitterPos", value));
  EXPECT_EQ(value.toInt32(), 180);
  module->uninitApp();
  EXPECT_EQ(fakehost::state().toolPaletteManager.at("SplitterPos").toInt32(), 180);
}

TEST_F(StateSaver, defaults_ofTheValuesThatHaveAFixedOne)
{
  const struct
  {
    const char* name;
    bool fixed;
    std::int32_t value;
  } rows[] = {{"ActiveView", true, 1},
              {"Col0", true, 200},
              {"Col1", true, 200},
              {"SplitterPos", true, 151},
              {"MultitoolConvertMessage", true, 0},
              {"UnsupportedToolsMessage", true, 0},
              {"Col2", false, 0},
              {"NameClmn", false, 0},
              {"IconSize", false, 0},
              {"ExpandedItems", false, 0},
              {"activeview", false, 0},
              {nullptr, false, 0}};
  for (const auto& row : rows) {
    CRkVariant value;
    EXPECT_EQ(odtcGetStateDefault(row.name, value), row.fixed) << (row.name ? row.name : "null");
    if (row.fixed) {
      EXPECT_EQ(value.toInt32(), row.value) << row.name;
    }
  }
}

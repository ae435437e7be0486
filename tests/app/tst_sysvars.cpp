// System variables by name, the host's variable store, SETVAR, and the
// events of variables and documents.
#include "tests/app/AppTestSupport.h"

#include "app/core/HostDocumentManager.h"
#include "app/core/HostServicesImpl.h"
#include "app/core/HostSysVars.h"
#include "app/core/HostVariableStoreImpl.h"

#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdDbLayout.h"

#include <QFile>

#include <cmath>

using namespace apptest;

namespace {

class SysVars : public HostFixture
{
protected:
  HostSystemVariables* vars() { return app().services().systemVariables(); }
  OdDbDatabase* db() { return app().documents().current()->database(); }
  OdString shown(const char* name) { return HostSysVarsImpl::formatValue(vars()->getVar(name)); }
};

struct DefaultRow
{
  const char* name;
  int type;
  const char* shown;
};

class SysVarDefaults : public SysVars, public ::testing::WithParamInterface<DefaultRow>
{
};

// A new drawing holds none of these: each has its default and its kind.
TEST_P(SysVarDefaults, newDrawing_givesDefaultOfItsKind)
{
  OdResBufPtr v = vars()->getVar(GetParam().name);
  ASSERT_TRUE(v.get()) << GetParam().name;
  EXPECT_EQ(v->restype(), GetParam().type) << GetParam().name;
  EXPECT_EQ(HostSysVarsImpl::formatValue(v), OdString(GetParam().shown)) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SysVarDefaults,
    ::testing::Values(DefaultRow{"ATTREQ", OdResBuf::kRtInt16, "1"}, DefaultRow{"dimscale", OdResBuf::kRtDouble, "1"},
                      DefaultRow{"HPNAME", OdResBuf::kRtString, "\"ANSI31\""},
                      DefaultRow{"HPANG", OdResBuf::kRtAngle, "0"}, DefaultRow{"HPSCALE", OdResBuf::kRtDouble, "1"},
                      DefaultRow{"HPDOUBLE", OdResBuf::kRtInt16, "0"}, DefaultRow{"HPSPACE", OdResBuf::kRtDouble, "1"},
                      DefaultRow{"HPCOLOR", OdResBuf::kRtColor, "NONE"}, DefaultRow{"GFNAME", OdResBuf::kRtInt16, "1"},
                      DefaultRow{"GFANG", OdResBuf::kRtAngle, "0"}, DefaultRow{"GFSHIFT", OdResBuf::kRtInt16, "0"},
                      DefaultRow{"GFCLR1", OdResBuf::kRtColor, "RGB:0,0,255"},
                      DefaultRow{"GFCLR2", OdResBuf::kRtColor, "RGB:255,255,153"},
                      DefaultRow{"LWUNITS", OdResBuf::kRtInt16, "1"}, DefaultRow{"INSUNITS", OdResBuf::kRtInt16, "0"},
                      DefaultRow{"TEXTSIZE", OdResBuf::kRtDouble, "2.5"},
                      DefaultRow{"CLAYER", OdResBuf::kRtString, "\"0\""},
                      DefaultRow{"CECOLOR", OdResBuf::kRtString, "\"BYLAYER\""},
                      DefaultRow{"CELTYPE", OdResBuf::kRtString, "\"ByLayer\""},
                      DefaultRow{"CELTSCALE", OdResBuf::kRtDouble, "1"},
                      DefaultRow{"CELWEIGHT", OdResBuf::kRtInt16, "-1"},
                      DefaultRow{"CEPSNTYPE", OdResBuf::kRtInt16, "0"},
                      DefaultRow{"CPLOTSTYLE", OdResBuf::kRtString, "\"ByColor\""},
                      DefaultRow{"TEXTSTYLE", OdResBuf::kRtString, "\"Standard\""},
                      DefaultRow{"DIMSTYLE", OdResBuf::kRtString, "\"Standard\""},
                      DefaultRow{"CETRANSPARENCY", OdResBuf::kRtString, "\"ByLayer\""}),
    [](const auto& info) { return std::string(info.param.name); });

struct SetRow
{
  const char* name;
  std::function<OdResBufPtr()> value;
  HostSystemVariables::Status status;
  const char* shownAfter; // null: not looked at
};

void PrintTo(const SetRow& row, std::ostream* os)
{
  *os << row.name;
}

class SysVarSet : public SysVars, public ::testing::WithParamInterface<SetRow>
{
};

TEST_P(SysVarSet, valueOfAnyFittingKind)
{
  const char* name = GetParam().name;
  EXPECT_EQ(vars()->setVar(name, GetParam().value()), GetParam().status) << name;
  if (GetParam().shownAfter) {
    EXPECT_EQ(shown(name), OdString(GetParam().shownAfter)) << name;
  }
}

OdResBufPtr int16(int v) { return OdResBuf::newValue(std::int16_t(v)); }
OdResBufPtr text(const char* v) { return OdResBuf::newValue(OdString(v)); }

INSTANTIATE_TEST_SUITE_P(
    Rows, SysVarSet,
    ::testing::Values(
        SetRow{"ATTREQ", [] { return int16(0); }, HostSystemVariables::kOk, "0"},
        SetRow{"ATTREQ", [] { return OdResBuf::newValue(std::int32_t(2)); }, HostSystemVariables::kBadValue, "1"},
        SetRow{"ATTREQ", [] { return OdResBuf::newValue(true); }, HostSystemVariables::kOk, "1"},
        SetRow{"ATTREQ", [] { return text("1"); }, HostSystemVariables::kBadType, nullptr},
        SetRow{"HPSCALE", [] { return int16(3); }, HostSystemVariables::kOk, "3"},
        SetRow{"HPSCALE", [] { return OdResBuf::newValue(0.0); }, HostSystemVariables::kBadValue, "1"},
        SetRow{"HPANG", [] { return OdResBuf::newValue(M_PI / 4); }, HostSystemVariables::kOk, "45"},
        SetRow{"HPNAME", [] { return text(""); }, HostSystemVariables::kOk, "\"\""},
        SetRow{"HPCOLOR", [] { return OdResBuf::newValue(OdCmColor(OdCmEntityColor::kByLayer)); },
               HostSystemVariables::kOk, "BYLAYER"},
        SetRow{"GFCLR1", [] { return text("RGB:10,20,30"); }, HostSystemVariables::kOk, "RGB:10,20,30"},
        SetRow{"GFCLR2", [] { return int16(3); }, HostSystemVariables::kOk, "3"},
        SetRow{"GFNAME", [] { return int16(10); }, HostSystemVariables::kBadValue, "1"},
        SetRow{"GFSHIFT", [] { return OdResBuf::newValue(0.5); }, HostSystemVariables::kBadType, "0"},
        SetRow{"INSUNITS", [] { return int16(4); }, HostSystemVariables::kOk, "4"},
        SetRow{"TEXTSIZE", [] { return OdResBuf::newValue(-1.0); }, HostSystemVariables::kBadValue, "2.5"},
        SetRow{"CLAYER", [] { return text("NoSuchLayer"); }, HostSystemVariables::kBadValue, "\"0\""},
        SetRow{"CECOLOR", [] { return OdResBuf::newValue(OdCmColor(OdCmEntityColor::kByBlock)); },
               HostSystemVariables::kOk, "\"BYBLOCK\""},
        SetRow{"CECOLOR", [] { return text("RGB:1,2,3"); }, HostSystemVariables::kOk, "\"RGB:1,2,3\""},
        SetRow{"CELWEIGHT", [] { return int16(35); }, HostSystemVariables::kOk, "35"},
        SetRow{"CELWEIGHT", [] { return int16(36); }, HostSystemVariables::kBadValue, "-1"},
        SetRow{"CETRANSPARENCY", [] { return int16(50); }, HostSystemVariables::kOk, "\"50\""},
        SetRow{"CETRANSPARENCY", [] { return text("ByBlock"); }, HostSystemVariables::kOk, "\"ByBlock\""},
        SetRow{"CPLOTSTYLE", [] { return text("Normal"); }, HostSystemVariables::kReadOnly, "\"ByColor\""},
        SetRow{"NOSUCHVAR", [] { return int16(1); }, HostSystemVariables::kUnknown, nullptr}),
    [](const auto& info) { return std::string(info.param.name) + "_" + std::to_string(info.index); });

TEST_F(SysVars, unknownName_doesNotExist)
{
  EXPECT_TRUE(vars()->getVar("NOSUCHVAR").isNull());
  EXPECT_TRUE(vars()->getVar("").isNull());
}

TEST_F(SysVars, headerVariablesOfTheDrawing_areVariablesToo)
{
  db()->setHeaderDouble("$ANGBASE", 0.5, 50);
  db()->setHeaderPoint("$EXTMAX", OdGePoint3d(1, 2, 3));
  EXPECT_EQ(vars()->getVar("ANGBASE")->getDouble(), 0.5);
  EXPECT_EQ(vars()->getVar("extmax")->getPoint3d(), OdGePoint3d(1, 2, 3));
  EXPECT_EQ(vars()->setVar("ANGBASE", OdResBuf::newValue(0.25)), HostSystemVariables::kOk);
  EXPECT_EQ(db()->getHeaderDouble("$ANGBASE"), 0.25);
}

TEST_F(SysVars, savedAndPutBack_isTheSameValue)
{
  // What a tool does around its command: read, set its own, put back.
  for (const char* name : {"HPNAME", "HPANG", "HPCOLOR", "GFCLR1", "ATTREQ", "CLAYER", "CECOLOR", "TEXTSIZE"}) {
    OdResBufPtr saved = vars()->getVar(name);
    ASSERT_TRUE(saved.get()) << name;
    EXPECT_EQ(vars()->setVar(name, saved), HostSystemVariables::kOk) << name;
    EXPECT_EQ(HostSysVarsImpl::formatValue(vars()->getVar(name)), HostSysVarsImpl::formatValue(saved)) << name;
  }
}

TEST_F(SysVars, recordVariables_makeTheRecordCurrent)
{
  OdDbLayerTableRecordPtr layer = OdDbLayerTableRecord::createObject();
  layer->setName("Walls");
  OdDbSymbolTable::cast(db()->getLayerTableId().openObject(OdDb::kForWrite))->add(layer);
  EXPECT_EQ(vars()->setVar("CLAYER", text("walls")), HostSystemVariables::kOk);
  EXPECT_EQ(db()->getCLAYER(), layer->objectId());
  EXPECT_EQ(vars()->setVar("TEXTSTYLE", text("Standard")), HostSystemVariables::kOk);
}

TEST_F(SysVars, changes_areToldToEditorReactors)
{
  struct Seen : OdStaticRxObject<HostEditorReactor>
  {
    std::vector<std::string> names;
    OdDbDatabase* database = nullptr;
    void sysVarChanged(OdDbDatabase* db, const OdString& name) override
    {
      names.push_back(name.toUtf8());
      database = db;
    }
  } seen;
  app().editorEvents().addReactor(&seen);
  vars()->setVar("HPNAME", text("ANSI32"));
  vars()->setVar("TEXTSIZE", OdResBuf::newValue(3.0));
  db()->setCELTSCALE(2.0); // a header change by any road counts
  vars()->setVar("ATTREQ", int16(7));   // refused: nothing changed
  app().editorEvents().removeReactor(&seen);
  EXPECT_EQ(seen.names, (std::vector<std::string>{"HPNAME", "TEXTSIZE", "CELTSCALE"}));
  EXPECT_EQ(seen.database, db());
}

TEST_F(SysVars, variableStore_keepsAnyValue)
{
  HostVariableStore* store = app().services().variableStore();
  boost::any v;
  ASSERT_TRUE(store->getValue("hatch_type", v));
  EXPECT_EQ(boost::any_cast<int>(v), 0);
  EXPECT_FALSE(store->getValue("Hatch_Type", v)) << "names compare exactly";
  store->setValue("hatch_type", short(2));
  store->setValue("hatch_pattern_file", std::wstring(L"/p/custom.pat"));
  EXPECT_EQ(app().variableStore().intValue("hatch_type", -1), 2);
  EXPECT_EQ(app().variableStore().textValue("hatch_pattern_file"), OdString("/p/custom.pat"));
  restart();
  EXPECT_EQ(app().variableStore().intValue("hatch_type", -1), 0) << "a new session starts afresh";
}

TEST_F(SysVars, setvarCommand_printsSetsAndAsksAgain)
{
  app().typeLine("SETVAR HPANG\n");
  EXPECT_NE(m_output.find("HPANG = 0\n"), std::string::npos) << m_output;
  app().typeLine("SETVAR HPANG 45");
  EXPECT_NEAR(vars()->getVar("HPANG")->getDouble(), M_PI / 4, 1e-12);
  app().typeLine("SETVAR HPNAME .");
  EXPECT_EQ(vars()->getVar("HPNAME")->getString(), OdString());
  app().typeLine("SETVAR ATTREQ\n5\n0");
  EXPECT_NE(m_output.find("Requires an integer between 0 and 1."), std::string::npos) << m_output;
  EXPECT_EQ(vars()->getVar("ATTREQ")->getInt16(), 0);
  app().typeLine("SETVAR GFCLR1\nRGB:1,2,3");
  EXPECT_EQ(shown("GFCLR1"), OdString("RGB:1,2,3"));
  app().typeLine("SETVAR NOPE");
  EXPECT_NE(m_output.find("Unknown variable name \"NOPE\"."), std::string::npos) << m_output;
  app().typeLine("SETVAR CLAYER\nMissing\n0");
  EXPECT_NE(m_output.find("The drawing has no layer named \"Missing\"."), std::string::npos) << m_output;
}

TEST_F(SysVars, activeLayout_givesItsStandardScale)
{
  OdDbPlotSettingsPtr settings = OdDbPlotSettings::cast(db()->currentLayoutId().openObject());
  ASSERT_TRUE(settings.get());
  double scale = 0.0;
  EXPECT_TRUE(settings->getStdScale(scale));
  EXPECT_EQ(scale, 1.0);
}

// Documents made, opened, switched and closed, as the reactors hear them.
class DocumentEvents : public HostFixture
{
protected:
  struct Heard : OdStaticRxObject<HostEditorReactor>, HostDocManagerReactor
  {
    std::vector<std::string> events;
    void beginDwgOpen(const OdString&) override { events.push_back("beginDwgOpen"); }
    void endDwgOpen(const OdString&) override { events.push_back("endDwgOpen"); }
    void beginDocClose(OdDbDatabase*) override { events.push_back("beginDocClose"); }
    void docCloseWillStart(OdDbDatabase*) override { events.push_back("docCloseWillStart"); }
    void DestroyWillStart() override { events.push_back("DestroyWillStart"); }
    void DestroyFinished() override { events.push_back("DestroyFinished"); }
    void documentCreated(HostDocument* d) override { events.push_back("created:" + d->documentName().toUtf8()); }
    void documentActivated(HostDocument* d) override { events.push_back("activated:" + d->documentName().toUtf8()); }
    void documentToBeDestroyed(HostDocument* d) override
    {
      events.push_back("toBeDestroyed:" + d->documentName().toUtf8());
    }
  } m_heard;

  void SetUp() override
  {
    HostFixture::SetUp();
    app().editorEvents().addReactor(&m_heard);
    app().editorEvents().addDocManagerReactor(&m_heard);
  }
  void TearDown() override
  {
    app().editorEvents().removeReactor(&m_heard);
    app().editorEvents().removeDocManagerReactor(&m_heard);
    HostFixture::TearDown();
  }
};

TEST_F(DocumentEvents, newOpenClose_areToldInOrder)
{
  const QString file = m_home.path() + "/plan.dxf";
  QFile f(file);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n");
  f.close();
  app().typeLine("NewDocument");
  app().typeLine("OpenDocument\n" + OdString(file));
  app().typeLine("OpenDocument\n" + OdString(m_home.path() + "/missing.dxf"));
  app().typeLine("CloseDocument");
  EXPECT_EQ(m_heard.events,
            (std::vector<std::string>{"created:Drawing2.dxf", "activated:Drawing2.dxf", "beginDwgOpen", "endDwgOpen",
                                      "created:plan.dxf", "activated:plan.dxf", "beginDocClose", "docCloseWillStart",
                                      "toBeDestroyed:plan.dxf", "DestroyWillStart", "DestroyFinished",
                                      "activated:Drawing2.dxf"}));
  m_heard.events.clear();
  ASSERT_TRUE(app().documents().makeCurrent(app().documents().documents().front()));
  EXPECT_EQ(m_heard.events, (std::vector<std::string>{"activated:Drawing1.dxf"}));
}

} // namespace

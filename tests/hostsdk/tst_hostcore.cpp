// The host core's services: path helpers, variants, translation, file tests.
#include "hostsdk/core/CRkVariant.h"
#include "hostsdk/core/CXStringW.h"
#include "hostsdk/core/HostCore.h"
#include "hostsdk/core/HostEditorReactor.h"
#include "hostsdk/core/RkUnknown.h"

#include "sdk/kernel/OdRxClass.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(CXStringW, pathParts_onBothSeparators)
{
  EXPECT_EQ(CXStringW("/home/u/ToolPalette/VdTcCatalog.vtc").FilePath().str(), "/home/u/ToolPalette");
  EXPECT_EQ(CXStringW("C:\\Palettes\\Walls.vtc").GetFileName().str(), "Walls.vtc");
  EXPECT_EQ(CXStringW("/file").FilePath().str(), "/");
  EXPECT_EQ(CXStringW("file.vtc").FilePath().str(), "");
  EXPECT_EQ(CXStringW("/a/b/").GetFileName().str(), "");
  EXPECT_EQ(CXStringW("/a/b.c/d.XTP").GetFileExt().str(), ".XTP");
  EXPECT_EQ(CXStringW("/a/b.c/d").GetFileExt().str(), "");
  EXPECT_NE(CXStringW("/A").Compare("/a"), 0);
  EXPECT_EQ(CXStringW("/Ä").CompareNoCase("/ä"), 0);
}

TEST(CRkVariant, typesAndConversions)
{
  EXPECT_EQ(CRkVariant(std::int32_t(5)).type(), CRkVariant::kInt32);
  EXPECT_EQ(CRkVariant("narrow").type(), CRkVariant::kStringA);
  EXPECT_EQ(CRkVariant(OdString("wide")).type(), CRkVariant::kStringW);
  EXPECT_EQ(CRkVariant("narrow").toString(), "narrow");
  EXPECT_EQ(CRkVariant(OdString(" 42x")).toInt32(), 42);
  EXPECT_EQ(CRkVariant(std::int32_t(-3)).toString(), "-3");
  EXPECT_DOUBLE_EQ(CRkVariant("2.5").toDouble(), 2.5);
  EXPECT_TRUE(CRkVariant().isEmpty());
  EXPECT_EQ(CRkVariant(std::int32_t(1)), CRkVariant(std::int32_t(1)));
  EXPECT_FALSE(CRkVariant(std::int32_t(1)) == CRkVariant(std::int64_t(1)));
}

TEST(SuppTranslate, catalogReplacesKnownTextsOnly)
{
  QTemporaryDir dir;
  const QString file = dir.filePath(QStringLiteral("de.tr"));
  QFile f(file);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.write("Tool Palettes Manager\tWerkzeugpaletten\nLine\\nbreak\tZeilen\\numbruch\n");
  f.close();
  EXPECT_EQ(Supp_Translate("Tool Palettes Manager"), "Tool Palettes Manager");
  ASSERT_TRUE(Supp_InstallTranslations(OdString(file)));
  EXPECT_EQ(Supp_Translate("Tool Palettes Manager"), "Werkzeugpaletten");
  EXPECT_EQ(Supp_Translate("Line\nbreak"), "Zeilen\numbruch");
  EXPECT_EQ(Supp_Translate("Unknown"), "Unknown");
  EXPECT_FALSE(Supp_InstallTranslations(OdString(dir.filePath(QStringLiteral("none")))));
  EXPECT_EQ(Supp_Translate("Tool Palettes Manager"), "Tool Palettes Manager");
}

TEST(FileTests, existenceAndWritableFolders)
{
  QTemporaryDir dir;
  const OdString folder(dir.path());
  EXPECT_TRUE(Fio_IsFileExist(folder));
  EXPECT_FALSE(Fio_IsFileExist(folder + "/missing"));
  EXPECT_FALSE(Fio_IsFileExist(OdString()));
  EXPECT_TRUE(Fio_IsWritableDir(folder));
  EXPECT_FALSE(Fio_IsWritableDir(folder + "/missing"));
  // A file is no folder to write in.
  QFile f(dir.filePath(QStringLiteral("plain")));
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.close();
  EXPECT_FALSE(Fio_IsWritableDir(OdString(f.fileName())));
  // The probe leaves nothing behind.
  EXPECT_EQ(QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
}

TEST(MessageBoxes, handlerAnswers_defaultWithoutOne)
{
  EXPECT_EQ(hostDefaultMessageBoxAnswer(48), kHostIdOk);
  EXPECT_EQ(hostDefaultMessageBoxAnswer(4 | 32), kHostIdYes);
  hostSetMessageBoxHandler([](const OdString&, const OdString&, unsigned) { return int(kHostIdNo); });
  EXPECT_EQ(hostMessageBox("Replace?", "Verdani", 4), kHostIdNo);
  hostSetMessageBoxHandler(nullptr);
}

TEST(HostEditorReactorClass, registeredWhenTheCoreLoads)
{
  ASSERT_NE(HostEditorReactor::desc(), nullptr);
  EXPECT_TRUE(HostEditorReactor::desc()->isDerivedFrom(OdRxEventReactor::desc()));
  EXPECT_EQ(odrxClassDictionary()->getAt("HostEditorReactor"), HostEditorReactor::desc());
}

TEST(CRkUnknownImpl, countsAndAnswersItsInterfaces)
{
  class Thing : public CRkUnknownImpl<IRkUnknown>
  {
  public:
    ~Thing() override { *m_gone = true; }
    bool* m_gone = nullptr;
  };
  bool gone = false;
  auto* t = new Thing;
  t->m_gone = &gone;
  void* out = nullptr;
  EXPECT_TRUE(t->queryInterface(IRkUnknown::kIID, &out));
  EXPECT_EQ(t->refCount(), 2);
  EXPECT_FALSE(t->queryInterface("IApp", &out));
  EXPECT_EQ(out, nullptr);
  {
    CRkPtr<IRkUnknown> held = CRkPtr<IRkUnknown>::attach(t);
    EXPECT_EQ(t->release(), 1);
  }
  EXPECT_TRUE(gone);
}

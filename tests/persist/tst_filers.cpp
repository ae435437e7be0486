// The filers: objects through a one-line XML document and back, and the
// reading rules in which the two file kinds differ.
#include "persist/OdTcCatalogFilerImpl.h"
#include "persist/OdTcPalettePropertiesFilerImpl.h"
#include "model/OdTcPersistImpl.h"
#include "persist/OdTcTagTable.h"

#include "hostsdk/core/HostCore.h"
#include "sdk/kernel/OdRxClass.h"

#include <gtest/gtest.h>

using namespace tc;

namespace {

// A persistent object of the test: a name as element text, a number and a
// flag as attributes, free values kept by name, and child objects.
class TstItem : public OdTcPersistImpl<OdTcPersist>
{
public:
  static OdSmartPtr<TstItem> create(const OdString& tag = "TstItem")
  {
    auto p = OdSmartPtr<TstItem>(new OdRxObjectImpl<TstItem>, kOdRxObjAttach);
    p->m_tag = tag;
    return p;
  }
  OdString tagName() const override { return m_tag; }

  bool setValue(const OdString& name, const OdVariant& value) override
  {
    if (value.type() == OdVariant::kRxObjectPtr) {
      OdRxObjectPtr object = value.getRxObjectPtr();
      m_children.append(OdSmartPtr<OdTcPersist>(object));
      return true;
    }
    m_seen.append(name);
    if (name == "Revision") {
      m_revision = value.getString();
      return true;
    }
    if (name == "ItemName") {
      m_name = value.getString();
      return true;
    }
    m_values[name] = value.getString();
    return true;
  }

  void writeBody(OdTcFiler* filer) override
  {
    filer->writeAttribute("Revision", OdVariant(std::int32_t(8)));
    filer->writeTextElement("ItemName", OdVariant(m_name), false);
    for (const auto& [name, value] : m_values)
      filer->writeAttributeElement(name, name, OdVariant(value));
    for (const auto& child : m_children)
      filer->writeTextElement("ignored", OdVariant(OdRxObjectPtr(child)), false);
  }

  OdString m_tag;
  OdString m_name;
  OdString m_revision;
  std::map<OdString, OdString> m_values;
  OdArray<OdString> m_seen;
  OdArray<OdTcPersistPtr> m_children;
};

OdTcPersistPtr makeTstItem()
{
  return TstItem::create();
}

class Filers : public ::testing::Test
{
protected:
  static void SetUpTestSuite()
  {
    if (!OdTcPersist::desc())
      OdTcPersist::rxInit();
    OdTcTagTable::instance().registerTag("TstItem", &makeTstItem);
    OdTcTagTable::instance().registerTag("LayerCreateInfo", &makeTstItem);
  }
  static void TearDownTestSuite()
  {
    OdTcTagTable::instance().unregisterTag("TstItem");
    OdTcTagTable::instance().unregisterTag("LayerCreateInfo");
  }

  static std::string written(const OdTcFilerPtr& filer, OdTcPersist* root, bool catalog)
  {
    OdStreamBufPtr stream = OdMemoryStream::createNew();
    if (catalog)
      filer->openCatalog(stream, root, true);
    else
      filer->openPalette(stream, root, true);
    filer->flush();
    const auto& bytes = static_cast<OdMemoryStream*>(stream.get())->data();
    return std::string(bytes.begin(), bytes.end());
  }

  static OdSmartPtr<TstItem> readCatalog(const std::string& xml, bool* result = nullptr)
  {
    auto root = TstItem::create("Catalog");
    OdStreamBufPtr stream = OdMemoryStream::createNew(std::vector<char>(xml.begin(), xml.end()));
    const bool ok = OdTcCatalogFilerImpl::createObject()->openCatalog(stream, root, false);
    if (result)
      *result = ok;
    return root;
  }

  static OdSmartPtr<TstItem> readPalette(const std::string& xml)
  {
    auto root = TstItem::create("Palette");
    OdStreamBufPtr stream = OdMemoryStream::createNew(std::vector<char>(xml.begin(), xml.end()));
    EXPECT_TRUE(OdTcPalettePropertiesFilerImpl::createObject()->openPalette(stream, root, false));
    return root;
  }

  static OdSmartPtr<TstItem> sampleTree(const OdString& rootTag)
  {
    auto root = TstItem::create(rootTag);
    root->m_name = "Каталог  with two blanks & <marks>";
    root->m_values["Url"] = "Palettes/Walls.vtc";
    auto child = TstItem::create();
    child->m_name = "Walls";
    auto grandchild = TstItem::create();
    grandchild->m_name = "Door";
    child->m_children.append(OdTcPersistPtr(grandchild));
    root->m_children.append(OdTcPersistPtr(child));
    return root;
  }

  static void expectSameTree(TstItem* a, TstItem* b)
  {
    EXPECT_EQ(a->m_name, b->m_name);
    EXPECT_EQ(a->m_values, b->m_values);
    ASSERT_EQ(a->m_children.size(), b->m_children.size());
    for (unsigned i = 0; i < a->m_children.size(); ++i)
      expectSameTree(static_cast<TstItem*>(a->m_children[i].get()), static_cast<TstItem*>(b->m_children[i].get()));
  }
};

} // namespace

TEST_F(Filers, catalogRoundTrip_oneLineWithoutDeclaration)
{
  auto root = sampleTree("Catalog");
  const std::string xml = written(OdTcCatalogFilerImpl::createObject(), root, true);
  EXPECT_EQ(xml.find('\n'), std::string::npos);
  EXPECT_EQ(xml.rfind("<Catalog Revision=\"8\">", 0), 0u) << xml;
  EXPECT_EQ(xml.find("<?xml"), std::string::npos);

  bool ok = false;
  auto back = readCatalog(xml, &ok);
  EXPECT_TRUE(ok);
  expectSameTree(root, back);
  // Attributes of the root are not read back: the object keeps its own.
  EXPECT_TRUE(back->m_revision.isEmpty());
  ASSERT_EQ(back->m_children.size(), 1u);
  EXPECT_EQ(static_cast<TstItem*>(back->m_children[0].get())->m_revision, "8");
  // Children are attached to their parent before they are filled.
  ASSERT_EQ(back->m_children.size(), 1u);
  EXPECT_EQ(back->m_children[0]->parent(), back.get());
}

TEST_F(Filers, paletteRoundTrip_oneLine)
{
  auto root = sampleTree("Palette");
  const std::string xml = written(OdTcPalettePropertiesFilerImpl::createObject(), root, false);
  EXPECT_EQ(xml.find('\n'), std::string::npos);
  EXPECT_EQ(xml.rfind("<Palette Revision=\"8\">", 0), 0u) << xml;
  expectSameTree(root, readPalette(xml));
}

TEST_F(Filers, emptyElement_endsCatalogReadingButNotPaletteReading)
{
  const std::string body = "<ItemName>A</ItemName><Description/><Time created=\"x\"/>";
  auto cat = readCatalog("<Catalog>" + body + "</Catalog>");
  EXPECT_EQ(cat->m_name, "A");
  EXPECT_FALSE(cat->m_values.count("Description"));
  EXPECT_FALSE(cat->m_values.count("created")); // everything after the stop is lost

  auto pal = readPalette("<Palette>" + body + "</Palette>");
  EXPECT_TRUE(pal->m_values.count("Description"));
  EXPECT_EQ(pal->m_values["created"], "x");
}

TEST_F(Filers, attributeElementWithText_deliversBoth_emptyTextOnlyAttributes)
{
  auto cat = readCatalog("<Catalog><Url href=\"a/b.vtc\"/><Note kind=\"k\">text</Note></Catalog>");
  EXPECT_EQ(cat->m_values["href"], "a/b.vtc");
  EXPECT_FALSE(cat->m_values.count("Url"));
  EXPECT_EQ(cat->m_values["kind"], "k");
  EXPECT_EQ(cat->m_values["Note"], "text");
}

TEST_F(Filers, createInfo_underLayerBecomesObject)
{
  // The object is created when "CreateInfo" stands under a "Layer" element.
  OdTcTagTable::instance().registerTag("Layer", &makeTstItem);
  OdTcTagTable::instance().registerTag("Other", &makeTstItem);
  auto pal = readPalette("<Palette><Layer><CreateInfo a=\"1\"/></Layer><Other><CreateInfo c=\"3\"/></Other></Palette>");
  OdTcTagTable::instance().unregisterTag("Layer");
  OdTcTagTable::instance().unregisterTag("Other");
  ASSERT_EQ(pal->m_children.size(), 2u);
  // Under any other parent, "CreateInfo" is unknown and arrives as values.
  auto* other = static_cast<TstItem*>(pal->m_children[1].get());
  EXPECT_EQ(other->m_children.size(), 0u);
  EXPECT_EQ(other->m_values["c"], "3");
  auto* layer = static_cast<TstItem*>(pal->m_children[0].get());
  ASSERT_EQ(layer->m_children.size(), 1u);
  EXPECT_EQ(static_cast<TstItem*>(layer->m_children[0].get())->m_values["a"], "1");
}

TEST_F(Filers, valueFormatting_differsBetweenFilers)
{
  auto cat = OdTcCatalogFilerImpl::createObject();
  auto pal = OdTcPalettePropertiesFilerImpl::createObject();
  auto* c = static_cast<OdTcFilerImplBase*>(cat.get());
  auto* p = static_cast<OdTcFilerImplBase*>(pal.get());
  EXPECT_EQ(c->formatValue(OdVariant(std::int32_t(-1)), false).text, "-1");
  EXPECT_EQ(p->formatValue(OdVariant(std::int32_t(-1)), false).text, "4294967295");
  EXPECT_EQ(p->formatValue(OdVariant(std::int32_t(-1)), true).text, "-1");
  EXPECT_EQ(c->formatValue(OdVariant(true), false).text, "-1");
  EXPECT_EQ(c->formatValue(OdVariant(false), false).text, "0");
  EXPECT_EQ(c->formatValue(OdVariant(0.25), false).text, "0.25");
  EXPECT_EQ(c->formatValue(OdVariant(std::int16_t(-3)), false).typeCode, 2);
  EXPECT_EQ(c->formatValue(OdVariant(OdArray<OdVariant>{OdVariant("x")}), false).text, "");
}

TEST_F(Filers, emptyValues_skippedByAttributeElementButNotByAttributesElement)
{
  class Writer : public OdTcPersistImpl<OdTcPersist>
  {
  public:
    OdString tagName() const override { return "Catalog"; }
    void writeBody(OdTcFiler* f) override
    {
      f->writeAttributeElement("Empty", "v", OdVariant(OdString()));
      f->writeAttributesElement("Time", OdTcValueMap{{"a", OdVariant(OdString())}, {"b", OdVariant("1")}});
      f->writeTextElement("Macro", OdVariant("^C^C_line"), true);
      f->writeTextElement("Blank", OdVariant(OdString()), false);
    }
  };
  OdRxObjectImpl<Writer> w;
  const std::string xml = written(OdTcCatalogFilerImpl::createObject(), &w, true);
  EXPECT_EQ(xml, "<Catalog><Time a=\"\" b=\"1\" /><Macro><![CDATA[^C^C_line]]></Macro><Blank></Blank></Catalog>");
}

TEST_F(Filers, missingPaletteElement_showsMessageAndLeavesRoot)
{
  static OdString shown;
  hostSetMessageBoxHandler([](const OdString& text, const OdString& caption, unsigned) {
    shown = caption + ": " + text;
    return 1;
  });
  auto root = readPalette("<Other><ItemName>X</ItemName></Other>");
  EXPECT_EQ(shown, "Verdani: Error while reading tool palette file.");
  EXPECT_TRUE(root->m_name.isEmpty());
  shown = OdString();
  readPalette("<Palette></Palette>"); // no child element: the same message
  EXPECT_FALSE(shown.isEmpty());
  hostSetMessageBoxHandler(nullptr);
}

namespace {

struct BrokenRow
{
  const char* name;
  std::string xml;
  bool opened;            // what openCatalog answers
  const char* nameRead;   // the root's ItemName afterwards
  const char* problem;    // a part of readProblem(); "" when it parsed whole
  bool refused;
};

void PrintTo(const BrokenRow& row, std::ostream* os)
{
  *os << row.name;
}

std::string nested(int depth)
{
  std::string xml = "<Catalog><ItemName>deep</ItemName>";
  for (int i = 0; i < depth; ++i)
    xml += "<a x=\"<b>\">";
  for (int i = 0; i < depth; ++i)
    xml += "</a>";
  return xml + "</Catalog>";
}

class BrokenDocuments : public Filers, public ::testing::WithParamInterface<BrokenRow>
{
};

} // namespace

TEST_P(BrokenDocuments, readAsFarAsTheyGo_andSaySo)
{
  const BrokenRow& row = GetParam();
  auto root = TstItem::create("Catalog");
  OdStreamBufPtr stream = OdMemoryStream::createNew(std::vector<char>(row.xml.begin(), row.xml.end()));
  OdTcFilerPtr filer = OdTcCatalogFilerImpl::createObject();
  EXPECT_EQ(filer->openCatalog(stream, root, false), row.opened);
  EXPECT_EQ(root->m_name, row.nameRead);
  const auto* base = static_cast<OdTcFilerImplBase*>(filer.get());
  if (*row.problem)
    EXPECT_NE(base->readProblem().find(row.problem), -1) << base->readProblem();
  else
    EXPECT_TRUE(base->readProblem().isEmpty()) << base->readProblem();
  EXPECT_EQ(base->isRefused(), row.refused);
}

INSTANTIATE_TEST_SUITE_P(
    rows, BrokenDocuments,
    ::testing::Values(BrokenRow{"empty", "", false, "", "breaks off", false},
                      BrokenRow{"otherRoot", "<NotACatalog/>", false, "", "", false},
                      BrokenRow{"randomBytes", "\x01\x02garbage<<", false, "", "breaks off", false},
                      BrokenRow{"cutShort", "<Catalog><ItemName>A</ItemName><TstItem><ItemName>B</Item", true, "A",
                                "breaks off at line 1", false},
                      BrokenRow{"deepButReal", nested(200), true, "deep", "", false},
                      BrokenRow{"tooDeep", nested(20000), false, "", "deeper than 256 levels", true}),
    [](const ::testing::TestParamInfo<BrokenRow>& info) { return std::string(info.param.name); });

TEST_F(Filers, foreignPalette_readsPartAfterPaletteContentWithToolsAsValues)
{
  OdTcTagTable::instance().registerTag("Tool", &makeTstItem);
  auto pal = readPalette("<Palette><ItemName>P</ItemName><Palette/></Palette><PaletteContent/>"
                         "<Content><Tool id=\"7\"/><TstItem><ItemName>T</ItemName></TstItem></Content>");
  OdTcTagTable::instance().unregisterTag("Tool");
  EXPECT_EQ(pal->m_name, "P");
  EXPECT_EQ(pal->m_values["id"], "7"); // "Tool" arrived as plain values
  ASSERT_EQ(pal->m_children.size(), 1u);
  EXPECT_EQ(static_cast<TstItem*>(pal->m_children[0].get())->m_name, "T");
}

TEST_F(Filers, popAtEndOfRoot_clearsBothCurrentElements)
{
  auto filer = OdTcCatalogFilerImpl::createObject();
  auto root = TstItem::create("Catalog");
  const std::string xml = "<Catalog><ItemName>A</ItemName></Catalog>";
  OdStreamBufPtr stream = OdMemoryStream::createNew(std::vector<char>(xml.begin(), xml.end()));
  filer->openCatalog(stream, root, false);
  EXPECT_TRUE(filer->atEnd());
  EXPECT_EQ(filer->top(), nullptr);
  EXPECT_FALSE(filer->next());
}

// Catalog items, their display record, reactors, lists and order lists.
#include "tests/model/ModelClasses.h"

#include "model/OdTcCatalogItemImplBase.h"
#include "model/OdTcLists.h"
#include "model/OdTcPaletteSoftRef.h"
#include "persist/OdTcCatalogFilerImpl.h"

#include <gtest/gtest.h>

using namespace tc;

namespace {

// An item as the concrete classes build it: the common reader and writer.
class TstItem : public OdTcCatalogItemImplBase<OdTcCatalogItem>
{
public:
  static OdSmartPtr<TstItem> create(const OdString& id = OdString())
  {
    auto item = OdSmartPtr<TstItem>(new OdRxObjectImpl<TstItem>, kOdRxObjAttach);
    if (!id.isEmpty())
      item->setId(id);
    return item;
  }
  OdString tagName() const override { return m_tag; }
  void notifyAdded(OdTcCatalogItem* child) { fireItemAdded(child); }
  OdString m_tag = "Catalog";
};

// A reference whose palette can be made to disappear.
class TstRef : public OdTcCatalogItemImplBase<OdTcPaletteSoftRef>
{
public:
  OdTcToolPalette* palette() override { return m_resolves ? reinterpret_cast<OdTcToolPalette*>(this) : nullptr; }
  OdString tagName() const override { return "ToolPalette"; }
  bool m_resolves = true;
};

struct CountingReactor : OdTcCatalogItemReactor
{
  int added = 0;
  void itemAdded(OdTcCatalogItem*) override { ++added; }
};

class CatalogItems : public ::testing::Test
{
protected:
  static void SetUpTestSuite() { tst::registerModelClasses(); }

  static std::string write(OdTcPersist* root)
  {
    OdStreamBufPtr stream = OdMemoryStream::createNew();
    auto filer = OdTcCatalogFilerImpl::createObject();
    filer->openCatalog(stream, root, true);
    filer->flush();
    const auto& bytes = static_cast<OdMemoryStream*>(stream.get())->data();
    return std::string(bytes.begin(), bytes.end());
  }
  static void read(const std::string& xml, OdTcPersist* root)
  {
    OdStreamBufPtr stream = OdMemoryStream::createNew(std::vector<char>(xml.begin(), xml.end()));
    OdTcCatalogFilerImpl::createObject()->openCatalog(stream, root, false);
  }
  static OdTcProperties* props(TstItem* item) { return item->properties(); }
};

const OdString kOld = "Mon Jan  1 00:00:00 2001";

} // namespace

TEST_F(CatalogItems, newItem_hasFreshIdRevisionAndPresentDates)
{
  auto a = TstItem::create();
  auto b = TstItem::create();
  EXPECT_NE(a->id(), b->id());
  EXPECT_EQ(a->revision(), "8.0");
  EXPECT_FALSE(props(a)->created().isEmpty());
  EXPECT_EQ(props(a)->created(), props(a)->changed());
  EXPECT_EQ(props(a)->parent(), a.get());
  EXPECT_FALSE(a->isModified());
}

TEST_F(CatalogItems, nameAndDescriptionSetters_refreshChangedAndMark)
{
  auto item = TstItem::create();
  props(item)->setDates(kOld, kOld);
  item->setName("Walls");
  EXPECT_NE(props(item)->changed(), kOld);
  EXPECT_EQ(props(item)->created(), kOld);
  EXPECT_TRUE(item->isModified());
  props(item)->setDates(kOld, kOld);
  item->setDescription("d");
  EXPECT_NE(props(item)->changed(), kOld);
  props(item)->setDates(kOld, kOld);
  props(item)->setResource("RES", "src.dll"); // resource and source leave the date alone
  item->setId("other");
  EXPECT_EQ(props(item)->changed(), kOld);
}

TEST_F(CatalogItems, storedTimeSurvives_onlyWhenTimeFollowsItemName)
{
  auto item = TstItem::create();
  item->setName("Sample");
  props(item)->setDates(kOld, kOld);
  const std::string xml = write(item);
  EXPECT_NE(xml.find("<ItemName>Sample</ItemName><Time "), std::string::npos) << xml;

  auto back = TstItem::create();
  read(xml, back);
  EXPECT_EQ(back->displayName(), "Sample");
  EXPECT_EQ(props(back)->changed(), kOld);
  EXPECT_EQ(props(back)->created(), kOld);
  EXPECT_EQ(back->id(), item->id());
  EXPECT_FALSE(back->isModified()); // reading marks nothing

  // A foreign file with "Time" first ends with the time of reading.
  auto foreign = TstItem::create();
  read("<Catalog><Properties><Time createdUniversalDateTime=\"" + kOld.toUtf8() + "\" modifiedUniversalDateTime=\"" +
           kOld.toUtf8() + "\"/><ItemName>F</ItemName></Properties></Catalog>",
       foreign);
  EXPECT_EQ(props(foreign)->created(), kOld);
  EXPECT_NE(props(foreign)->changed(), kOld);
}

TEST_F(CatalogItems, resourceName_standsInForEmptyName_andHidesTypedName)
{
  auto item = TstItem::create();
  props(item)->setResource("X", "AcTpCatalogRes.dll");
  EXPECT_EQ(item->displayName(), "X");
  item->setName("Y");
  EXPECT_EQ(item->displayName(), "Y");
  EXPECT_EQ(item->resourceSource(), "AcTpCatalogRes.dll");
  // With a resource the typed name is not written, so it is lost on reload.
  auto back = TstItem::create();
  read(write(item), back);
  EXPECT_EQ(back->displayName(), "X");
  item->clearResource();
  auto again = TstItem::create();
  read(write(item), again);
  EXPECT_EQ(again->displayName(), "Y");
}

TEST_F(CatalogItems, emptyDescription_isNotWritten_andOptionTextIsParsed)
{
  auto item = TstItem::create();
  item->setName("N");
  const std::string xml = write(item);
  EXPECT_EQ(xml.find("Description"), std::string::npos);
  auto back = TstItem::create();
  read(xml, back);
  EXPECT_TRUE(back->description().isEmpty());
  EXPECT_FALSE(back->setValue("unknown", OdVariant("1")));
  EXPECT_TRUE(back->setValue("option", OdVariant("abc")));
  EXPECT_EQ(back->option(), 0);
}

TEST_F(CatalogItems, emptyName_endsCatalogReadingBeforeTime)
{
  // An empty "ItemName" stops the reading of the record: "Time" and
  // "Images" after it are not read, and the next load has the present time.
  auto item = TstItem::create();
  props(item)->setDates(kOld, kOld);
  auto back = TstItem::create();
  read(write(item), back);
  EXPECT_NE(props(back)->created(), kOld);
}

TEST_F(CatalogItems, reactors_addedTwiceNeedTwoRemovals_disabledAreSkipped)
{
  auto item = TstItem::create();
  CountingReactor r;
  item->addReactor(&r);
  item->addReactor(&r);
  item->notifyAdded(item);
  EXPECT_EQ(r.added, 2);
  EXPECT_TRUE(item->removeReactor(&r));
  item->notifyAdded(item);
  EXPECT_EQ(r.added, 3);
  CountingReactor stranger;
  EXPECT_FALSE(item->removeReactor(&stranger));
  r.enabled = false;
  item->notifyAdded(item);
  EXPECT_EQ(r.added, 3);
  EXPECT_TRUE(item->removeReactor(&r));
  EXPECT_FALSE(item->removeReactor(&r));
}

TEST_F(CatalogItems, setImageFile_makesThreeSizesFromOneFile)
{
  auto item = TstItem::create();
  item->setImageFile("/pics/wall.png");
  ASSERT_NE(item->image(1), nullptr);
  EXPECT_EQ(item->image(1)->cx(), 16);
  EXPECT_EQ(item->image(4)->src(), "/pics/wall.png");
  EXPECT_EQ(item->image(2), nullptr);
  EXPECT_EQ(item->images()->count(), 3);
  item->setImageFile("/pics/other.png");
  EXPECT_EQ(item->images()->count(), 3);
  auto back = TstItem::create();
  item->setName("pictured");
  read(write(item), back);
  ASSERT_NE(back->image(3), nullptr);
  EXPECT_EQ(back->image(3)->src(), "/pics/other.png");
  EXPECT_EQ(back->image(3)->getSizeClass(), 3);
}

TEST_F(CatalogItems, lists_keepDuplicatesAndRemoveTheFirst)
{
  OdRxObjectImpl<OdTcGroupListImpl> list;
  auto a = TstItem::create("same");
  auto b = TstItem::create("same");
  list.add(a);
  list.add(b);
  EXPECT_EQ(a->parent(), &list);
  EXPECT_EQ(list.find("same"), a.get());
  EXPECT_FALSE(list.remove("missing"));
  EXPECT_TRUE(list.remove("same"));
  EXPECT_EQ(list.find("same"), b.get());
  EXPECT_EQ(a->parent(), &list); // the parent link is not reset
  EXPECT_TRUE(list.contains("same"));
  EXPECT_FALSE(list.contains("SAME")); // identifiers compare exactly
  list.clear();
  EXPECT_FALSE(list.hasChildren());
  list.clear();
}

TEST_F(CatalogItems, enumerator_emptyAndReset_seesChanges)
{
  OdRxObjectImpl<OdTcToolListImpl> list;
  OdTcEnumPtr<OdTcCatalogItem> e = list.enumerate();
  EXPECT_EQ(e->next(), nullptr);
  auto a = TstItem::create("a");
  list.add(a);
  EXPECT_EQ(e->next(), a.get()); // no copy: the cursor sees the list
  EXPECT_EQ(e->next(), nullptr);
  e->reset();
  EXPECT_EQ(e->next(), a.get());
}

TEST_F(CatalogItems, contentList_dropsReferencesWhosePaletteIsGone)
{
  auto group = TstItem::create();
  group->m_tag = "Catalog";
  class Holder : public OdTcPersistImpl<OdTcPersist>
  {
  public:
    OdString tagName() const override { return "Catalog"; }
    void writeBody(OdTcFiler* f) override { f->writeObject(m_contents); }
    OdSmartPtr<OdTcGroupContentList> m_contents =
        OdRxObjectImpl<OdTcGroupContentListImpl, OdTcGroupContentList>::createObject();
  };
  OdRxObjectImpl<Holder> holder;
  auto live = OdSmartPtr<TstRef>(new OdRxObjectImpl<TstRef>, kOdRxObjAttach);
  auto gone = OdSmartPtr<TstRef>(new OdRxObjectImpl<TstRef>, kOdRxObjAttach);
  live->setId("live");
  gone->setId("gone");
  gone->m_resolves = false;
  holder.m_contents->add(live);
  holder.m_contents->add(gone);
  EXPECT_EQ(write(&holder), "<Catalog><Contents><ToolPalette ID=\"live\" /></Contents></Catalog>");
  holder.m_contents->remove("live");
  EXPECT_EQ(write(&holder), "<Catalog><Contents /></Catalog>");
}

TEST_F(CatalogItems, orderLists_readIdsAndDropOneDuplicate)
{
  auto item = TstItem::create();
  item->m_tag = "Catalog";
  read("<Catalog><CatalogItemOrder><ID>a</ID><ID>b</ID><ID>a</ID></CatalogItemOrder></Catalog>", item);
  // The common reader takes no "CatalogItemOrder": a container class does.
  EXPECT_TRUE(item->itemOrder().isEmpty());
  OdRxObjectImpl<OdTcCatalogItemOrderListImpl> empty;
  EXPECT_TRUE(empty.ids().isEmpty());
  item->setItemOrder(OdArray<OdString>{"a", "b", "a"});
  item->itemOrder().remove("a");
  EXPECT_EQ(item->itemOrder(), (OdArray<OdString>{"b", "a"}));
  OdRxObjectImpl<OdTcToolOrderListImpl> tools;
  tools.setValue("ID", OdVariant("t1"));
  EXPECT_FALSE(tools.setValue("Other", OdVariant("x")));
  EXPECT_EQ(tools.ids(), OdArray<OdString>{"t1"});
}

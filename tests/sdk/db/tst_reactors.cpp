// What the drawing tells its reactors, in what order, and resbufs: the
// hooks an undo journal and the system variables stand on.
#include "sdk/db/OdDbBlockReference.h"
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbDatabaseReactor.h"
#include "sdk/db/OdDbLayerTableRecord.h"
#include "sdk/db/OdResBuf.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// Writes down each notice, and for a modification what the object held
// then: the state a journal would keep.
class Recorder : public OdDbDatabaseReactor
{
public:
  void objectAppended(const OdDbDatabase*, const OdDbObject* o) override { note("appended", o); }
  void objectOpenedForModify(const OdDbDatabase*, const OdDbObject* o) override { note("modify", o); }
  void headerSysVarWillChange(const OdDbDatabase* db, const OdString& name) override
  {
    notices.push_back("willChange:" + name.toUtf8() + "=" + db->getHeaderString("$" + name.toUtf8()).toUtf8());
  }
  void headerSysVarChanged(const OdDbDatabase* db, const OdString& name) override
  {
    notices.push_back("changed:" + name.toUtf8() + "=" + db->getHeaderString("$" + name.toUtf8()).toUtf8());
  }

  std::vector<std::string> notices;

private:
  void note(const char* what, const OdDbObject* o)
  {
    std::string owner = o->ownerId().isNull() ? "-" : o->ownerId().getHandle().text();
    notices.push_back(std::string(what) + ":" + o->dxfType() + " owner " + owner + (o->isErased() ? " erased" : ""));
  }
};

class DbReactor : public ::testing::Test
{
protected:
  void SetUp() override { m_db->addReactor(&m_recorder); }
  void TearDown() override { m_db->removeReactor(&m_recorder); }

  OdDbBlockTableRecordPtr modelSpace() const
  {
    return OdDbBlockTableRecord::cast(m_db->getModelSpaceId().openObject(OdDb::kForWrite));
  }
  bool saw(const std::string& notice) const
  {
    return std::find(m_recorder.notices.begin(), m_recorder.notices.end(), notice) != m_recorder.notices.end();
  }

  OdDbDatabasePtr m_db = odDbCreateDatabase();
  Recorder m_recorder;
};

TEST_F(DbReactor, append_isToldBeforeTheObjectHasAnOwner)
{
  OdDbLinePtr line = OdDbLine::createObject();
  modelSpace()->appendOdDbEntity(line);
  ASSERT_FALSE(m_recorder.notices.empty());
  // A journal that keeps the first notice of an object must see it as new,
  // not as an object that already had an owner.
  EXPECT_EQ(m_recorder.notices.front(), "appended:LINE owner -");
}

TEST_F(DbReactor, changes_areToldBeforeTheyHappen)
{
  OdDbCirclePtr circle = OdDbCircle::createObject();
  circle->setRadius(1.0);
  modelSpace()->appendOdDbEntity(circle);
  // What a journal keeps: the state at the first notice of a change.
  struct FirstState : OdDbDatabaseReactor
  {
    double radius = -1.0;
    bool erased = true;
    int notices = 0;
    void objectOpenedForModify(const OdDbDatabase*, const OdDbObject* o) override
    {
      if (notices++ == 0) {
        radius = OdDbCircle::cast(o)->radius();
        erased = o->isErased();
      }
    }
  } first;
  m_db->addReactor(&first);
  circle->setRadius(4.0);
  circle->setColorIndex(1);
  circle->erase();
  const int afterErase = first.notices;
  circle->erase(); // erased already: nothing changes, nothing is told
  m_db->removeReactor(&first);
  EXPECT_EQ(first.radius, 1.0);
  EXPECT_FALSE(first.erased);
  EXPECT_EQ(first.notices, afterErase);
  EXPECT_TRUE(circle->isErased());
}

TEST_F(DbReactor, erasingAReference_tellsOfItsAttributesToo)
{
  OdDbBlockReferencePtr ref = OdDbBlockReference::createObject();
  modelSpace()->appendOdDbEntity(ref);
  OdDbAttributePtr attribute = OdDbAttribute::createObject();
  ref->appendAttribute(attribute);
  m_recorder.notices.clear();
  ref->erase();
  EXPECT_TRUE(saw("modify:ATTRIB owner " + ref->objectId().getHandle().text()));
  EXPECT_TRUE(saw("modify:INSERT owner " + m_db->getModelSpaceId().getHandle().text()));
}

TEST_F(DbReactor, header_isToldBeforeAndAfterWithItsBareName)
{
  m_db->setHeaderString("$CLAYER", 8, "0");
  m_recorder.notices.clear();
  m_db->setHeaderString("$CLAYER", 8, "Walls");
  m_db->removeHeaderVar("$NOTTHERE"); // absent: nothing to tell
  EXPECT_EQ(m_recorder.notices, (std::vector<std::string>{"willChange:CLAYER=0", "changed:CLAYER=Walls"}));
}

TEST_F(DbReactor, removedReactor_hearsNothing)
{
  m_db->removeReactor(&m_recorder);
  m_db->setDIMSCALE(2.0);
  modelSpace()->appendOdDbEntity(OdDbLine::createObject());
  EXPECT_TRUE(m_recorder.notices.empty());
}

TEST(OdDbSymbolTable, recordMadeAgainAfterAnErasedOne_isFound)
{
  // What undo and a second run of a tool do: the layer is erased, then made
  // anew under the same name.
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(db->getLayerTableId().openObject(OdDb::kForWrite));
  OdDbLayerTableRecordPtr first = OdDbLayerTableRecord::createObject();
  first->setName("Doors");
  layers->add(first);
  ASSERT_EQ(layers->getAt("doors"), first->objectId());
  first->erase();
  EXPECT_TRUE(layers->getAt("Doors").isNull());
  OdDbLayerTableRecordPtr second = OdDbLayerTableRecord::createObject();
  second->setName("Doors");
  layers->add(second);
  EXPECT_EQ(layers->getAt("Doors"), second->objectId());
}

struct ResBufRow
{
  const char* name;
  int type;
  OdResBuf::Kind kind;
};

class ResBufKinds : public ::testing::TestWithParam<ResBufRow>
{
};

TEST_P(ResBufKinds, typeGivesKind)
{
  EXPECT_EQ(OdResBuf::kindOf(GetParam().type), GetParam().kind);
}

INSTANTIATE_TEST_SUITE_P(Rows, ResBufKinds,
                         ::testing::Values(ResBufRow{"rtAngle", OdResBuf::kRtAngle, OdResBuf::kReal},
                                           ResBufRow{"rtInt16", OdResBuf::kRtInt16, OdResBuf::kInteger},
                                           ResBufRow{"rtBool", OdResBuf::kRtBool, OdResBuf::kInteger},
                                           ResBufRow{"rtColor", OdResBuf::kRtColor, OdResBuf::kColor},
                                           ResBufRow{"rtPoint3d", OdResBuf::kRtPoint3d, OdResBuf::kPoint},
                                           ResBufRow{"dxfLayerName", 8, OdResBuf::kText},
                                           ResBufRow{"dxfInsertionPoint", 10, OdResBuf::kPoint},
                                           ResBufRow{"dxfReal", 40, OdResBuf::kReal},
                                           ResBufRow{"dxfInt16", 70, OdResBuf::kInteger},
                                           ResBufRow{"dxfHandle", 330, OdResBuf::kObjectId},
                                           ResBufRow{"dxfBool", 290, OdResBuf::kInteger}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(OdResBuf, numbersConvertOtherKindsGiveEmptyValues)
{
  OdResBufPtr real = OdResBuf::newValue(2.75);
  EXPECT_EQ(real->restype(), OdResBuf::kRtDouble);
  EXPECT_EQ(real->getInt16(), 2) << "a real read as an integer rounds toward zero";
  OdResBufPtr i = OdResBuf::newValue(std::int16_t(-3));
  EXPECT_DOUBLE_EQ(i->getDouble(), -3.0);
  EXPECT_TRUE(OdResBuf::newValue(true)->getBool());
  OdResBufPtr text = OdResBuf::newValue(OdString("ANSI31"));
  EXPECT_EQ(text->getDouble(), 0.0);
  EXPECT_EQ(real->getString(), OdString());
  // A colour variable of the older kind keeps an index.
  OdResBufPtr index = OdResBuf::newRb(OdResBuf::kRtInt16);
  index->setInt16(5);
  EXPECT_EQ(index->getColor().colorIndex(), 5);
}

TEST(OdResBuf, list_chainsAndFindsItsEnd)
{
  OdResBufPtr head = OdResBuf::newValue(OdString("first"));
  head->setNext(OdResBuf::newValue(1.0));
  head->last()->setNext(OdResBuf::newValue(OdGePoint3d(1, 2, 3)));
  EXPECT_EQ(head->last()->getPoint3d(), OdGePoint3d(1, 2, 3));
  EXPECT_EQ(head->next()->getDouble(), 1.0);
}

} // namespace

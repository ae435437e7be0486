// The id cursor under the entity, record, attribute and vertex iterators:
// both directions, erased ids skipped or not, seeking.
#include "sdk/db/OdDbBlockTableRecord.h"
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDatabase.h"
#include "sdk/db/OdDbLayerTableRecord.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace {

struct Walk
{
  const char* name;
  std::set<int> erased; // positions of the five listed objects that are erased
  bool forward;
  bool skipErased;
  std::vector<int> expected; // positions met, in order
};

const Walk kWalks[] = {
    {"forwardNoneErased", {}, true, true, {0, 1, 2, 3, 4}},
    {"forwardSkipsInside", {1, 3}, true, true, {0, 2, 4}},
    {"forwardSkipsBothEnds", {0, 4}, true, true, {1, 2, 3}},
    {"backwardSkipsBothEnds", {0, 4}, false, true, {3, 2, 1}},
    {"backwardSkipsInside", {2}, false, true, {4, 3, 1, 0}},
    {"allErasedIsDoneAtOnce", {0, 1, 2, 3, 4}, true, true, {}},
    {"allErasedBackward", {0, 1, 2, 3, 4}, false, true, {}},
    {"erasedKeptWhenAsked", {0, 2}, true, false, {0, 1, 2, 3, 4}},
    {"erasedKeptBackward", {4}, false, false, {4, 3, 2, 1, 0}},
};

class IdCursor : public testing::TestWithParam<Walk>
{
protected:
  // Five entities in a block and five layers after layer 0, the same
  // positions erased in both.
  void SetUp() override
  {
    m_db = odDbCreateDatabase();
    OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(m_db->getModelSpaceId().openObject(OdDb::kForWrite));
    OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(m_db->getLayerTableId().openObject(OdDb::kForWrite));
    m_layers.push_back(m_db->getLayerZeroId());
    for (int i = 0; i < 5; ++i) {
      m_entities.push_back(ms->appendOdDbEntity(OdDbLine::createObject()));
      OdDbLayerTableRecordPtr l = OdDbLayerTableRecord::createObject();
      l->setName(OdString::formatted("L%d", i));
      m_layers.push_back(layers->add(l));
    }
    for (int i : GetParam().erased) {
      m_entities[std::size_t(i)].openObject(OdDb::kForWrite)->erase();
      m_layers[std::size_t(i) + 1].openObject(OdDb::kForWrite)->erase();
    }
  }

  OdDbDatabasePtr m_db;
  std::vector<OdDbObjectId> m_entities, m_layers;
};

int positionOf(const std::vector<OdDbObjectId>& ids, OdDbObjectId id)
{
  for (std::size_t i = 0; i < ids.size(); ++i)
    if (ids[i] == id)
      return int(i);
  return -1;
}

TEST_P(IdCursor, entitiesOfABlock_meetThePositionsInOrder)
{
  const Walk& w = GetParam();
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(m_db->getModelSpaceId().openObject());
  std::vector<int> met;
  // A bound on the walk, so that a cursor that turns back fails the test.
  for (OdDbObjectIteratorPtr it = ms->newIterator(w.forward, w.skipErased); !it->done() && met.size() < 10;
       it->step(w.forward, w.skipErased)) {
    met.push_back(positionOf(m_entities, it->objectId()));
    EXPECT_EQ(it->entity(OdDb::kForRead, true)->objectId(), it->objectId());
  }
  EXPECT_EQ(met, w.expected);
}

TEST_P(IdCursor, recordsOfATable_meetThePositionsInOrder)
{
  const Walk& w = GetParam();
  OdDbSymbolTablePtr layers = OdDbSymbolTable::cast(m_db->getLayerTableId().openObject());
  std::vector<int> met;
  for (OdDbSymbolTableIteratorPtr it = layers->newIterator(w.forward, w.skipErased); !it->done() && met.size() < 10;
       it->step(w.forward, w.skipErased)) {
    const int at = positionOf(m_layers, it->getRecordId()) - 1;
    if (at >= 0) // layer 0 stands before the five
      met.push_back(at);
    EXPECT_EQ(it->getRecord(OdDb::kForRead, true)->objectId(), it->getRecordId());
  }
  EXPECT_EQ(met, w.expected);
}

INSTANTIATE_TEST_SUITE_P(Walks, IdCursor, testing::ValuesIn(kWalks),
                         [](const testing::TestParamInfo<Walk>& info) { return std::string(info.param.name); });

TEST(OdDbObjectIterator, seek_landsOnErasedIdsAndStepsOnFromThere)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite));
  std::vector<OdDbObjectId> ids;
  for (int i = 0; i < 4; ++i)
    ids.push_back(ms->appendOdDbEntity(OdDbCircle::createObject()));
  ids[1].openObject(OdDb::kForWrite)->erase();
  ids[2].openObject(OdDb::kForWrite)->erase();
  OdDbObjectIteratorPtr it = ms->newIterator();
  ASSERT_TRUE(it->seek(ids[1]));
  EXPECT_EQ(it->objectId(), ids[1]) << "a seek goes where it is told, erased or not";
  EXPECT_TRUE(it->entity().isNull()) << "but an erased entity opens only when asked for";
  it->step();
  EXPECT_EQ(it->objectId(), ids[3]);
  it->step();
  EXPECT_TRUE(it->done());
  EXPECT_TRUE(it->objectId().isNull());
  EXPECT_FALSE(it->seek(db->getLayerZeroId()));
  it->start(false);
  EXPECT_EQ(it->objectId(), ids[3]);
}

TEST(OdDbObjectIterator, entitiesAddedWhileWalking_areNotMet)
{
  OdDbDatabasePtr db = odDbCreateDatabase();
  OdDbBlockTableRecordPtr ms = OdDbBlockTableRecord::cast(db->getModelSpaceId().openObject(OdDb::kForWrite));
  ms->appendOdDbEntity(OdDbLine::createObject());
  ms->appendOdDbEntity(OdDbLine::createObject());
  int met = 0;
  for (OdDbObjectIteratorPtr it = ms->newIterator(); !it->done(); it->step()) {
    ms->appendOdDbEntity(OdDbLine::createObject());
    ++met;
  }
  EXPECT_EQ(met, 2);
  EXPECT_EQ(ms->entityIds().size(), 4u);
}

} // namespace

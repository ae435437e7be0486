// The pair array under every object: storage of its own, a borrowed slice,
// or a class's constant table of defaults, changed alike and never written
// through to what it does not own.
#include "sdk/db/OdDbCurves.h"
#include "sdk/db/OdDbDxfPairArray.h"
#include "sdk/db/OdDbText.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

const OdDbDxfPair kTable[] = {{10, "a"}, {20, "b"}, {30, "c"}, {40, "d"}};
constexpr std::size_t kTableSize = sizeof kTable / sizeof kTable[0];

std::string text(const OdDbDxfPairArray& pairs)
{
  std::string out;
  for (const OdDbDxfPair& p : pairs)
    out += std::to_string(p.code) + "=" + std::string(p.value.view()) + " ";
  return out;
}

std::string tableText()
{
  return text(OdDbDxfPairArray(kTable, kTable + kTableSize));
}

enum class Storage { Own, Borrowed, Shared };

struct Change
{
  const char* name;
  std::function<void(OdDbDxfPairArray&)> apply;
  const char* expected;
};

const Change kChanges[] = {
    {"pushBack", [](OdDbDxfPairArray& a) { a.push_back({50, "e"}); }, "10=a 20=b 30=c 40=d 50=e "},
    {"pushBackOwnPair", [](OdDbDxfPairArray& a) { a.push_back(std::as_const(a)[1]); }, "10=a 20=b 30=c 40=d 20=b "},
    {"insertInMiddle", [](OdDbDxfPairArray& a) { a.insert(std::as_const(a).begin() + 2, {{25, "x"}, {26, "y"}}); },
     "10=a 20=b 25=x 26=y 30=c 40=d "},
    {"insertOwnPairs",
     [](OdDbDxfPairArray& a) {
       const OdDbDxfPair* first = std::as_const(a).begin();
       a.insert(first + 1, first + 2, first + 4);
     },
     "10=a 30=c 40=d 20=b 30=c 40=d "},
    {"erase", [](OdDbDxfPairArray& a) { a.erase(std::as_const(a).begin() + 1, std::as_const(a).begin() + 3); },
     "10=a 40=d "},
    {"writeThroughIndex", [](OdDbDxfPairArray& a) { a[3].value = "z"; }, "10=a 20=b 30=c 40=z "},
    {"writeThroughIteration",
     [](OdDbDxfPairArray& a) {
       for (OdDbDxfPair& p : a)
         p.code += 1;
     },
     "11=a 21=b 31=c 41=d "},
    {"clearThenPush",
     [](OdDbDxfPairArray& a) {
       a.clear();
       a.push_back({1, "only"});
     },
     "1=only "},
    {"reserveThenPush",
     [](OdDbDxfPairArray& a) {
       a.reserve(2);
       a.push_back({50, "e"});
     },
     "10=a 20=b 30=c 40=d 50=e "},
};

class PairStorage : public testing::TestWithParam<std::tuple<Storage, std::size_t>>
{
};

TEST_P(PairStorage, changeGivesTheSameResult_andLeavesTheSourceAlone)
{
  const auto [storage, row] = GetParam();
  const Change& change = kChanges[row];
  std::vector<OdDbDxfPair> slice(kTable, kTable + kTableSize);
  OdDbDxfPairArray a;
  switch (storage) {
  case Storage::Own: a = OdDbDxfPairArray(kTable, kTable + kTableSize); break;
  case Storage::Borrowed: a = OdDbDxfPairArray::borrowing(slice.data(), slice.size()); break;
  case Storage::Shared: a = OdDbDxfPairArray::sharing(kTable, kTableSize); break;
  }
  change.apply(a);
  EXPECT_EQ(text(a), change.expected);
  EXPECT_EQ(tableText(), "10=a 20=b 30=c 40=d ") << "the constant table was written";
  // A copy is independent of the array it came from.
  OdDbDxfPairArray copy = a;
  copy.push_back({99, "copy"});
  copy[0].value = "changed";
  EXPECT_EQ(text(a), change.expected);
}

std::string caseName(const testing::TestParamInfo<std::tuple<Storage, std::size_t>>& info)
{
  static const char* storages[] = {"own", "borrowed", "shared"};
  return std::string(storages[int(std::get<0>(info.param))]) + "_" + kChanges[std::get<1>(info.param)].name;
}

INSTANTIATE_TEST_SUITE_P(Changes, PairStorage,
                         testing::Combine(testing::Values(Storage::Own, Storage::Borrowed, Storage::Shared),
                                          testing::Range<std::size_t>(0, sizeof kChanges / sizeof kChanges[0])),
                         caseName);

TEST(SharedPairs, sharedArray_readsWithoutCopying)
{
  const OdDbDxfPairArray a = OdDbDxfPairArray::sharing(kTable, kTableSize);
  EXPECT_EQ(a.data(), kTable);
  OdDbDxfPairArray moved = OdDbDxfPairArray::sharing(kTable, kTableSize);
  OdDbDxfPairArray target = std::move(moved);
  EXPECT_EQ(std::as_const(target).data(), kTable);
  EXPECT_NE(target.data(), kTable) << "a writable access must copy first";
}

// New objects of one class start from the same defaults: what one changes,
// the others and the next one made must not see.
TEST(SharedPairs, newObjects_keepTheirDefaultsApart)
{
  OdDbLinePtr first = OdDbLine::createObject();
  OdDbLinePtr second = OdDbLine::createObject();
  first->setStartPoint(OdGePoint3d(1, 2, 3));
  first->setEndPoint(OdGePoint3d(4, 5, 6));
  EXPECT_EQ(second->startPoint(), OdGePoint3d(0, 0, 0));
  EXPECT_EQ(second->endPoint(), OdGePoint3d(0, 0, 0));
  EXPECT_EQ(OdDbLine::createObject()->startPoint(), OdGePoint3d(0, 0, 0));
  EXPECT_EQ(first->startPoint(), OdGePoint3d(1, 2, 3));

  OdDbTextPtr a = OdDbText::createObject();
  OdDbTextPtr b = OdDbText::createObject();
  a->setTextString("changed");
  EXPECT_EQ(b->textString(), OdString(""));
  EXPECT_EQ(OdDbText::createObject()->textString(), OdString(""));
}

} // namespace

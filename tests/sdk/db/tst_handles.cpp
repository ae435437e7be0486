// The handle table under every drawing: stubs found by handle after any mix
// of additions and removals, against a plain map doing the same.
#include "sdk/db/OdDbHandleMap.h"

#include <gtest/gtest.h>

#include <deque>
#include <random>
#include <unordered_map>

namespace {

struct Pattern
{
  const char* name;
  std::uint64_t first, step; // handles first, first + step, ...
  int count;
  int removeEvery; // then every n-th one goes, and comes back under a handle far off
};

const Pattern kPatterns[] = {
    {"consecutive", 1, 1, 5000, 3},
    {"sparse", 0x100, 0x1000, 3000, 2},
    {"powersOfTwoApart", 1, 1ull << 20, 2000, 5},
    {"nearTheTop", 0x7000000000000000ull, 7, 3000, 4},
};

class HandleMap : public testing::TestWithParam<Pattern>
{
};

TEST_P(HandleMap, findsWhatAPlainMapFinds)
{
  const Pattern& pat = GetParam();
  std::deque<OdDbStub> stubs;
  OdDbHandleMap map;
  std::unordered_map<std::uint64_t, OdDbStub*> expected;
  auto add = [&](std::uint64_t h) {
    stubs.emplace_back();
    stubs.back().handle = OdDbHandle(h);
    map.insert(&stubs.back());
    expected[h] = &stubs.back();
  };
  for (int i = 0; i < pat.count; ++i)
    add(pat.first + std::uint64_t(i) * pat.step);
  for (int i = 0; i < pat.count; i += pat.removeEvery) {
    const std::uint64_t h = pat.first + std::uint64_t(i) * pat.step;
    map.erase(h);
    expected.erase(h);
    add(h ^ 0x5A5A5A5A00000000ull);
  }
  map.erase(0xDEAD); // not there: nothing happens
  EXPECT_EQ(map.size(), expected.size());
  for (const auto& [h, stub] : expected)
    ASSERT_EQ(map.find(h), stub) << std::hex << h;
  std::mt19937_64 random(42);
  for (int i = 0; i < 20000; ++i) {
    const std::uint64_t h = random();
    EXPECT_EQ(map.find(h), expected.count(h) ? expected[h] : nullptr);
  }
}

INSTANTIATE_TEST_SUITE_P(Patterns, HandleMap, testing::ValuesIn(kPatterns),
                         [](const testing::TestParamInfo<Pattern>& info) { return std::string(info.param.name); });

TEST(HandleMap, removingEveryStubLeavesItEmpty)
{
  std::deque<OdDbStub> stubs;
  OdDbHandleMap map;
  map.reserve(100);
  for (std::uint64_t h = 1; h <= 1000; ++h) {
    stubs.emplace_back();
    stubs.back().handle = OdDbHandle(h);
    map.insert(&stubs.back());
  }
  // In an order unlike the one of insertion, so that runs are cut anywhere.
  for (std::uint64_t k = 0; k < 1000; ++k) {
    const std::uint64_t h = 1 + (k * 389) % 1000;
    ASSERT_NE(map.find(h), nullptr) << h;
    map.erase(h);
    EXPECT_EQ(map.find(h), nullptr);
  }
  EXPECT_EQ(map.size(), 0u);
}

} // namespace

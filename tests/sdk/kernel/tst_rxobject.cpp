// Run-time classes: registration errors, creation, casts and counts.
#include "sdk/kernel/OdArray.h"
#include "sdk/kernel/OdRxClass.h"

#include <gtest/gtest.h>

namespace {

class Shape : public OdRxObject
{
  ODRX_DECLARE_MEMBERS(Shape);

public:
  virtual int corners() const = 0;
};

class Square : public Shape
{
  ODRX_DECLARE_MEMBERS(Square);

public:
  int corners() const override { return 4; }
};

class Other : public OdRxObject
{
  ODRX_DECLARE_MEMBERS(Other);
};

int g_alive = 0;
class SquareImpl : public Square
{
public:
  SquareImpl() { ++g_alive; }
  ~SquareImpl() override { --g_alive; }
};

ODRX_NO_CONS_DEFINE_MEMBERS(Shape, OdRxObject)
ODRX_DEFINE_MEMBERS(Square, Shape, ODRX_CREATE_IMPL(SquareImpl, Square))
ODRX_DEFINE_MEMBERS(Other, OdRxObject, return OdRxObjectImpl<Other>::createObject();)

class RxClasses : public ::testing::Test
{
protected:
  void SetUp() override
  {
    Shape::rxInit();
    Square::rxInit();
    Other::rxInit();
  }
  void TearDown() override
  {
    for (auto uninit : {&Other::rxUninit, &Square::rxUninit, &Shape::rxUninit})
      try {
        uninit();
      } catch (const OdError&) {
      }
  }
};

} // namespace

TEST_F(RxClasses, secondRegistration_throws313)
{
  try {
    Square::rxInit();
    FAIL() << "no error";
  } catch (const OdError& e) {
    EXPECT_EQ(e.code(), 313);
  }
  EXPECT_NE(Square::desc(), nullptr); // the first registration stands
}

TEST_F(RxClasses, unregisteredClass_throws255)
{
  Other::rxUninit();
  try {
    Other::createObject();
    FAIL() << "no error";
  } catch (const OdError& e) {
    EXPECT_EQ(e.code(), 255);
  }
  try {
    Other::rxUninit();
    FAIL() << "no error";
  } catch (const OdError& e) {
    EXPECT_EQ(e.code(), 255);
  }
  try {
    odrxCreateObject("Other");
    FAIL() << "no error";
  } catch (const OdError& e) {
    EXPECT_EQ(e.code(), 255);
  }
}

TEST_F(RxClasses, createThroughDescription_givesImplementation)
{
  OdSmartPtr<Square> sq = Square::createObject();
  ASSERT_FALSE(sq.isNull());
  EXPECT_EQ(sq->corners(), 4);
  EXPECT_EQ(sq->isA(), Square::desc());
  EXPECT_TRUE(sq->isKindOf(Shape::desc()));
  EXPECT_TRUE(sq->isKindOf(OdRxObject::desc()));
  EXPECT_FALSE(sq->isKindOf(Other::desc()));
  EXPECT_TRUE(Shape::createObject().isNull()); // abstract: no creation function
  EXPECT_EQ(odrxClassDictionary()->getAt("Square"), Square::desc());
  EXPECT_EQ(Square::desc()->myParent(), Shape::desc());
}

TEST_F(RxClasses, failedNarrowing_throwsNotThatKindOfClass)
{
  OdRxObjectPtr other = Other::createObject();
  EXPECT_TRUE(Square::cast(other.get()).isNull()); // cast gives null
  EXPECT_THROW(OdSmartPtr<Square> s(other), OdError_NotThatKindOfClass);
  try {
    OdSmartPtr<Shape> s(other);
  } catch (const OdError& e) {
    EXPECT_EQ(e.code(), eNotThatKindOfClass);
  }
  OdRxObjectPtr square = Square::createObject();
  OdSmartPtr<Shape> shape(square); // narrowing to a parent class works
  EXPECT_EQ(shape->corners(), 4);
}

TEST_F(RxClasses, smartPointers_countAndRelease)
{
  {
    OdSmartPtr<Square> a = Square::createObject();
    EXPECT_EQ(g_alive, 1);
    EXPECT_EQ(a->numRefs(), 1);
    OdSmartPtr<Square> b = a;
    OdRxObjectPtr c(a);
    EXPECT_EQ(a->numRefs(), 3);
    OdSmartPtr<Shape> d(c); // through queryX: one more reference
    EXPECT_EQ(a->numRefs(), 4);
    b = nullptr;
    c.release();
    EXPECT_EQ(a->numRefs(), 2);
    OdSmartPtr<Square> moved = std::move(a);
    EXPECT_TRUE(a.isNull());
    EXPECT_EQ(moved->numRefs(), 2);
    OdArray<OdSmartPtr<Square>> list;
    list.append(moved);
    OdArray<OdSmartPtr<Square>> copy = list; // shared storage: no new reference
    EXPECT_EQ(moved->numRefs(), 3);
  }
  EXPECT_EQ(g_alive, 0);
}

TEST(OdStaticRxObject, ignoresCounts)
{
  static OdStaticRxObject<Other> keeper;
  keeper.addRef();
  keeper.release();
  keeper.release();
  EXPECT_EQ(keeper.numRefs(), 1);
}

TEST(OdArray, copyOnWrite_keepsCopiesApart)
{
  OdArray<int> a{1, 2, 3};
  OdArray<int> b = a;
  EXPECT_EQ(a.sharedCount(), 2);
  b[0] = 9; // the write detaches b
  EXPECT_EQ(a[0], 1);
  EXPECT_EQ(b[0], 9);
  a.append(a); // appending itself
  EXPECT_EQ(a.size(), 6u);
  EXPECT_TRUE(a.remove(2));
  EXPECT_EQ(a, (OdArray<int>{1, 3, 1, 2, 3}));
  unsigned i = 0;
  EXPECT_TRUE(a.find(3, i, 2));
  EXPECT_EQ(i, 4u);
  a.insertAt(0, 7).removeAt(1);
  EXPECT_EQ(a.first(), 7);
  EXPECT_FALSE(OdArray<int>().contains(1));
}

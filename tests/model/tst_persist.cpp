// The persistent object frame: the upward walk, unknown values, clones.
#include "model/OdTcPersistImpl.h"
#include "sdk/kernel/OdWcstol.h"

#include "sdk/kernel/OdRxClass.h"

#include <gtest/gtest.h>

using namespace tc;

namespace {

class TstNode : public OdTcPersist
{
  ODRX_DECLARE_MEMBERS(TstNode);
};

class TstNodeImpl : public OdTcPersistImpl<TstNode>
{
public:
  bool setValue(const OdString& name, const OdVariant& value) override
  {
    if (name != "option")
      return false;
    m_option = odWcstol(value.getString());
    return true;
  }
  int m_option = 0;
};

ODRX_DEFINE_MEMBERS(TstNode, OdTcPersist, ODRX_CREATE_IMPL(TstNodeImpl, TstNode))

class PersistFrame : public ::testing::Test
{
protected:
  static void SetUpTestSuite()
  {
    if (!OdTcPersist::desc())
      OdTcPersist::rxInit();
    TstNode::rxInit();
  }
  static void TearDownTestSuite() { TstNode::rxUninit(); }
};

} // namespace

TEST_F(PersistFrame, ownParent_endsTheWalk)
{
  OdSmartPtr<TstNode> node = TstNode::createObject();
  node->setParent(node.get());
  EXPECT_EQ(node->database(), nullptr);
  EXPECT_EQ(node->catalog(), nullptr);
  EXPECT_EQ(node->parent(), node.get());
}

TEST_F(PersistFrame, setValue_unknownNameChangesNothing_badNumberIsZero)
{
  OdSmartPtr<TstNode> node = TstNode::createObject();
  auto* impl = static_cast<TstNodeImpl*>(node.get());
  EXPECT_FALSE(impl->setValue("unknown", OdVariant("5")));
  EXPECT_EQ(impl->m_option, 0);
  EXPECT_TRUE(impl->setValue("option", OdVariant("12x")));
  EXPECT_EQ(impl->m_option, 12);
  EXPECT_TRUE(impl->setValue("option", OdVariant("abc")));
  EXPECT_EQ(impl->m_option, 0);
}

TEST_F(PersistFrame, clone_keepsParentAndClass)
{
  OdSmartPtr<TstNode> parent = TstNode::createObject();
  OdSmartPtr<TstNode> child = TstNode::createObject();
  child->setParent(parent.get());
  OdSmartPtr<TstNode> copy(child->clone());
  ASSERT_FALSE(copy.isNull());
  EXPECT_NE(copy.get(), child.get());
  EXPECT_EQ(copy->isA(), TstNode::desc());
  EXPECT_EQ(copy->parent(), parent.get());
  EXPECT_EQ(copy->tagName(), "OdTcPersist");
  EXPECT_FALSE(parent->hasChildren());
}

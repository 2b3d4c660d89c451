// The object registry: objects by backslash-separated path, looked up both ways.
#include "core_fixture.h"
#include "kiv_core/object_manager.h"
#include <gtest/gtest.h>

using obj_system::ObjectManager;

namespace {

class ObjectManagerTest : public ::testing::Test {
protected:
    void TearDown() override
    {
        registry->Unregister(&panel);
        registry->Unregister(&parent);
    }
    ObjectManager* registry = ObjectManager::GetInstance();
    RecordingObject panel;
    RecordingObject parent;
};

}  // namespace

TEST_F(ObjectManagerTest, GetInstanceIsOneObject)
{
    EXPECT_NE(nullptr, registry);
    EXPECT_EQ(registry, ObjectManager::GetInstance());
}

TEST_F(ObjectManagerTest, LooksUpARegisteredObjectBothWays)
{
    ASSERT_TRUE(registry->Register("terminal\\quote", &parent));
    ASSERT_TRUE(registry->Register("terminal\\quote\\panel1", &panel));
    EXPECT_EQ("terminal\\quote\\panel1", registry->GetPathByIns(&panel));
    EXPECT_EQ(&panel, registry->GetInsByPath("terminal\\quote\\panel1"));
    EXPECT_EQ(&parent, registry->GetInsByPath("terminal\\quote"));
}

TEST_F(ObjectManagerTest, UnknownPathsAndObjectsFindNothing)
{
    ASSERT_TRUE(registry->Register("terminal\\quote", &parent));
    EXPECT_EQ(nullptr, registry->GetInsByPath("terminal\\news"));
    EXPECT_EQ(nullptr, registry->GetInsByPath("TERMINAL\\QUOTE"));  // paths are case-sensitive
    EXPECT_EQ(nullptr, registry->GetInsByPath(nullptr));
    EXPECT_EQ("", registry->GetPathByIns(&panel));
    EXPECT_EQ("", registry->GetPathByIns(nullptr));
}

TEST_F(ObjectManagerTest, UnregisterFreesThePathAndTheObject)
{
    ASSERT_TRUE(registry->Register("terminal\\quote\\panel1", &panel));
    EXPECT_TRUE(registry->Unregister(&panel));
    EXPECT_EQ(nullptr, registry->GetInsByPath("terminal\\quote\\panel1"));
    EXPECT_EQ("", registry->GetPathByIns(&panel));
    EXPECT_FALSE(registry->Unregister(&panel));
    EXPECT_TRUE(registry->Register("terminal\\quote\\panel1", &parent));
}

TEST_F(ObjectManagerTest, ATakenPathOrARegisteredObjectIsRefused)
{
    ASSERT_TRUE(registry->Register("terminal\\quote", &parent));
    EXPECT_FALSE(registry->Register("terminal\\quote", &panel));
    EXPECT_FALSE(registry->Register("terminal\\other", &parent));
    EXPECT_EQ(&parent, registry->GetInsByPath("terminal\\quote"));
    EXPECT_EQ(nullptr, registry->GetInsByPath("terminal\\other"));
}

TEST_F(ObjectManagerTest, MalformedPathsAndNullsAreRefused)
{
    for (const char* path : {"", "\\terminal", "terminal\\", "terminal\\\\quote", "\\"})
        EXPECT_FALSE(registry->Register(path, &panel)) << path;
    EXPECT_FALSE(registry->Register(nullptr, &panel));
    EXPECT_FALSE(registry->Register("terminal", nullptr));
    EXPECT_EQ("", registry->GetPathByIns(&panel));
}

TEST_F(ObjectManagerTest, APathWithoutBackslashIsATopLevelObject)
{
    ASSERT_TRUE(registry->Register("terminal", &parent));
    EXPECT_EQ("terminal", registry->GetPathByIns(&parent));
    EXPECT_EQ(&parent, registry->GetInsByPath("terminal"));
}

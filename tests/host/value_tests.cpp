// Command values: the untyped-pointer form the library passes, and integers.
#include "kiv_core/kiv_value.h"
#include <gtest/gtest.h>
#include <vector>

using kiv_value::Value;

TEST(Value, ACopyKeepsItsPointer)
{
    int target = 0;
    Value original(&target);
    Value copy(original);
    Value assigned;
    assigned = original;
    EXPECT_EQ(Value::POINTER, copy.GetType());
    EXPECT_EQ(&target, copy.GetPointer());
    EXPECT_EQ(&target, assigned.GetPointer());
    std::vector<Value> list{original};
    std::vector<Value> listCopy = list;
    list.clear();
    EXPECT_EQ(&target, listCopy.at(0).GetPointer());
}

TEST(Value, ANullPointerIsStillAPointerValue)
{
    Value value(static_cast<void*>(nullptr));
    EXPECT_EQ(Value::POINTER, value.GetType());
    EXPECT_FALSE(value.IsEmpty());
}

TEST(Value, AskingForTheOtherFormGivesNullOrZero)
{
    int target = 0;
    Value pointer(&target);
    Value number(-5);
    Value empty;
    EXPECT_EQ(0, pointer.GetInt());
    EXPECT_EQ(nullptr, number.GetPointer());
    EXPECT_EQ(-5, number.GetInt());
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_EQ(nullptr, empty.GetPointer());
    EXPECT_EQ(0, empty.GetInt());
}

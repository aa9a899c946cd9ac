#include "YAUL.h"
#include "kcommon.h"

#include <gtest/gtest.h>

#include <thread>

namespace {
TEST(CritSectTest, EntersAgainOnItsThreadAndLetsOthersInAfterTheLastLeave)
{
    CritSect section;
    {
        const CritSectLock outer(section);
        const CritSectLock inner(section);
    }
    std::thread([&] { const CritSectLock lock(section); }).join();
}

TEST(KArrayTest, HoldsPointersAndRefusesIndexesOutside)
{
    int a = 1, b = 2;
    KArray items;
    EXPECT_EQ(items.Add(&a), 0);
    EXPECT_EQ(items.Add(nullptr), 1);
    EXPECT_TRUE(items.SetAt(1, &b));
    for (const int index : {-1, 2, 1000000})
    {
        EXPECT_EQ(items.GetAt(index), nullptr) << index;
        EXPECT_FALSE(items.SetAt(index, nullptr)) << index;
        EXPECT_FALSE(items.RemoveAt(index)) << index;
    }
    const KArray copy = items;
    EXPECT_TRUE(items.RemoveAt(0));
    EXPECT_EQ(items.GetCount(), 1);
    EXPECT_EQ(items.GetAt(0), &b);
    items.RemoveAll();
    EXPECT_EQ(items.GetCount(), 0);
    EXPECT_EQ(copy.GetCount(), 2);
}
} // namespace

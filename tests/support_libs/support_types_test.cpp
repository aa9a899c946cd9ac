#include "GMSUtil.h"
#include "LayoutMgmt.h"
#include "YAUL.h"
#include "kcommon.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace {
TEST(CritSectTest, KeepsTwoThreadsApart)
{
    CritSect section;
    // Not atomic, and the step between reading and writing is given away on purpose: without the
    // lock the two threads lose counts.
    volatile int count = 0;
    constexpr int ROUNDS = 2000;
    const auto countUp = [&] {
        for (int i = 0; i < ROUNDS; ++i)
        {
            const CritSectLock lock(section);
            const int read = count;
            std::this_thread::yield();
            count = read + 1;
        }
    };
    std::thread first(countUp);
    std::thread second(countUp);
    first.join();
    second.join();
    EXPECT_EQ(count, 2 * ROUNDS);
}

TEST(CritSectTest, EntersAgainOnItsThreadAndShutsOthersOutUntilTheLastLeave)
{
    CritSect section;
    std::atomic<bool> asked = false;
    std::atomic<bool> entered = false;
    std::thread other;
    {
        const CritSectLock outer(section);
        {
            const CritSectLock inner(section);
        }
        other = std::thread([&] {
            asked = true;
            const CritSectLock lock(section);
            entered = true;
        });
        while (!asked)
        {
            std::this_thread::yield();
        }
        // Time for a wrongly opened lock to show; a right one costs just this wait.
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        EXPECT_FALSE(entered);
    }
    other.join();
    EXPECT_TRUE(entered);
}

TEST(KArrayTest, HoldsPointersWithoutOwningThem)
{
    int a = 1;
    int b = 2;
    int c = 3;
    KArray items;
    EXPECT_EQ(items.Add(&a), 0);
    EXPECT_EQ(items.Add(nullptr), 1);
    EXPECT_EQ(items.Add(&c), 2);
    EXPECT_TRUE(items.SetAt(1, &b));

    const KArray copy = items;
    EXPECT_TRUE(items.RemoveAt(0));
    EXPECT_EQ(items.GetCount(), 2);
    EXPECT_EQ(items.GetAt(0), &b);
    EXPECT_EQ(items.GetAt(1), &c);
    items.RemoveAll();
    EXPECT_EQ(items.GetCount(), 0);
    EXPECT_EQ(copy.GetCount(), 3);
    EXPECT_EQ(copy.GetAt(0), &a);
    EXPECT_EQ(a + b + c, 6);
}

TEST(KArrayTest, RefusesIndexesOutside)
{
    int a = 1;
    KArray items;
    EXPECT_EQ(items.GetAt(0), nullptr);
    items.Add(&a);
    for (const int index : {-1, 1, 1000000})
    {
        EXPECT_EQ(items.GetAt(index), nullptr) << index;
        EXPECT_FALSE(items.SetAt(index, nullptr)) << index;
        EXPECT_FALSE(items.RemoveAt(index)) << index;
    }
    EXPECT_EQ(items.GetCount(), 1);
    EXPECT_EQ(items.GetAt(0), &a);
}

TEST(SystemVersionTest, AgreesWithThePlatformsOwnComparison)
{
    // This comparison is only bent for systems newer than Windows 8, far above the one asked for.
    OSVERSIONINFOEXA wanted = {};
    wanted.dwOSVersionInfoSize = sizeof(wanted);
    wanted.dwMajorVersion = 6;
    const DWORDLONG condition = ::VerSetConditionMask(0, VER_MAJORVERSION, VER_GREATER_EQUAL);
    const bool expected = ::VerifyVersionInfoA(&wanted, VER_MAJORVERSION, condition) != FALSE;
    EXPECT_EQ(IsVistaOrHigher(), expected);
}

TEST(ZOrderManagerTest, HostsOwnManagerIsReachedThroughTheBase)
{
    class Counting : public CZOrderManager
    {
    public:
        void UpdateZOrder() override { ++updates; }
        int updates = 0;
    };
    CZOrderManager plain;
    plain.UpdateZOrder();
    Counting counting;
    static_cast<CZOrderManager&>(counting).UpdateZOrder();
    EXPECT_EQ(counting.updates, 1);
}
} // namespace

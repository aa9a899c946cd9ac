#include "AppIcons.h"
#include "MappedImageList.h"
#include "VehicleIconList.h"
#include "support/LiveObjects.h"
#include "support_libs/text_file.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

// The table is filled once in the life of a process; each test begins before that.
class FreshAppIcons : public AppIcons
{
public:
    FreshAppIcons() { Empty(); }
    ~FreshAppIcons() { Empty(); }

    static void Empty()
    {
        const CritSectLock lock(iconmap_cs_);
        iconmap_.clear();
    }

    std::vector<int> Ids()
    {
        std::vector<ICON_INFO> icons;
        GetIcons(icons);
        std::vector<int> ids;
        for (const ICON_INFO& each : icons)
        {
            ids.push_back(int(each.id));
            EXPECT_NE(each.icon, nullptr);
            EXPECT_EQ(each.icon, GetIcon(int(each.id)));
        }
        return ids;
    }
};

// What the program has of the ids that are loaded; it has those around them, too.
const std::vector<int> Present = {3527, 3573, 3575, 3579, 3600};

TEST(AppIconsTest, LoadsWhatThereIsOfItsIdsOnce)
{
    FreshAppIcons icons;
    EXPECT_EQ(icons.Ids(), std::vector<int>());
    icons.LoadIcons();
    EXPECT_EQ(icons.Ids(), Present);
    for (const int id : {3526, 3574, 3576, 3577, 3578, 3601, 3540, 0, -1, 3527 + 0x10000})
    {
        EXPECT_EQ(icons.GetIcon(id), nullptr) << id;
    }

    // Another object sees the same, and asking again loads nothing, nor forgets.
    const HICON first = icons.GetIcon(3527);
    const int objects = GraphicsObjects();
    for (int time = 0; time < 10; ++time)
    {
        AppIcons().LoadIcons();
    }
    EXPECT_EQ(GraphicsObjects(), objects);
    EXPECT_EQ(AppIcons().GetIcon(3527), first);

    std::vector<AppIcons::ICON_INFO> more = {{1, nullptr}};
    icons.GetIcons(more);
    ASSERT_EQ(more.size(), 1 + Present.size()) << "appended";
    EXPECT_EQ(more.front().id, 1u);
}

TEST(AppIconsTest, AReaderOnAnotherThreadSeesNoneOrAllWhileItFills)
{
    std::atomic<bool> done = false;
    std::atomic<int> empty = 0;
    std::atomic<int> full = 0;
    std::atomic<int> torn = 0;
    FreshAppIcons icons;
    std::thread reader([&] {
        AppIcons own;
        while (!done)
        {
            std::vector<AppIcons::ICON_INFO> seen;
            own.GetIcons(seen);
            ++(seen.empty() ? empty : seen.size() == Present.size() ? full : torn);
        }
    });
    // Not before the reader came by in this state.
    const auto awaitOneMore = [](const std::atomic<int>& readings) {
        for (const int before = readings; readings == before;)
        {
            std::this_thread::yield();
        }
    };
    for (int filling = 0; filling < 40; ++filling)
    {
        awaitOneMore(empty);
        icons.LoadIcons();
        awaitOneMore(full);
        FreshAppIcons::Empty();
    }
    done = true;
    reader.join();
    EXPECT_EQ(torn, 0);
}

TEST(MappedImageListTest, KnowsTheImageOfEachIdItWasGiven)
{
    MappedImageList images;
    images.AddIcon(3527); // there is no list yet
    EXPECT_EQ(images.GetIdxFromCtrlID(3527), -1);

    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 0, 4));
    images.AddIcon(3527);
    images.AddIcon(0x00050000 + 3600); // loaded by its low word, known by all of it
    const HICON icon = AfxGetApp()->LoadIcon(3573);
    images.AddIcon(40001, icon);
    EXPECT_EQ(images.GetIdxFromCtrlID(3527), 0);
    EXPECT_EQ(images.GetIdxFromCtrlID(0x00050000 + 3600), 1);
    EXPECT_EQ(images.GetIdxFromCtrlID(3600), -1);
    EXPECT_EQ(images.GetIdxFromCtrlID(40001), 2);

    images.AddIcon(3540); // the program has none
    images.AddIcon(40001, nullptr);
    EXPECT_EQ(images.GetImageCount(), 3);
    EXPECT_EQ(images.GetIdxFromCtrlID(3540), -1);
    EXPECT_EQ(images.GetIdxFromCtrlID(40001), 2) << "unchanged";
    images.AddIcon(3527);
    EXPECT_EQ(images.GetIdxFromCtrlID(3527), 3) << "the latest";
}

TEST(VehicleIconListTest, LoadsTheVehiclesOfItsFile)
{
    const TextFile file("[Airports]\nAirport Large\n###\n"
                        "[Vehicle Icons]\nVehicle Glider\n#.#\n.#.\nVehicle Car\n##\n");
    VehicleIconList vehicles;
    IconList& icons = vehicles;
    EXPECT_TRUE(icons.Load(file.Path(), nullptr));
    ASSERT_EQ(icons.GetCount(), 2);
    EXPECT_EQ(icons.GetAt(1)->GetName(), "Car");
    EXPECT_FALSE(icons.Load("no such file", nullptr));
    EXPECT_FALSE(icons.Load(nullptr, nullptr));
    EXPECT_EQ(icons.GetCount(), 2) << "as it was";
}

} // namespace

#include "AppIcons.h"
#include "MappedImageList.h"
#include "VehicleIconList.h"
#include "support/LiveObjects.h"
#include "support/TextFile.h"

#include <gtest/gtest.h>

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
};

// What the program has of the ids that are loaded; it has those around them, too.
const std::vector<int> Present = {3527, 3573, 3575, 3579, 3600};

TEST(AppIconsTest, LoadsWhatThereIsOfItsIdsOnce)
{
    FreshAppIcons icons;
    std::vector<AppIcons::ICON_INFO> found = {{1, nullptr}};
    icons.GetIcons(found);
    EXPECT_EQ(found.size(), 1U);
    icons.LoadIcons();
    for (const int id : {3526, 3574, 3576, 3577, 3578, 3601, 3540, 0, -1, 3527 + 0x10000})
    {
        EXPECT_EQ(icons.GetIcon(id), nullptr) << id;
    }
    // Another object sees the same, and asking again loads nothing, nor forgets.
    const int objects = GraphicsObjects();
    for (int time = 0; time < 10; ++time)
    {
        AppIcons().LoadIcons();
    }
    EXPECT_EQ(GraphicsObjects(), objects);
    AppIcons().GetIcons(found);
    ASSERT_EQ(found.size(), 1 + Present.size()) << "appended";
    EXPECT_EQ(found.front().id, 1U);
    for (size_t index = 0; index < Present.size(); ++index)
    {
        EXPECT_EQ(int(found[1 + index].id), Present[index]);
        EXPECT_NE(found[1 + index].icon, nullptr);
        EXPECT_EQ(found[1 + index].icon, icons.GetIcon(Present[index]));
    }
}

TEST(MappedImageListTest, KnowsTheImageOfEachIdItWasGiven)
{
    MappedImageList images;
    images.AddIcon(3527); // there is no list yet
    ASSERT_TRUE(images.Create(16, 16, ILC_COLOR32 | ILC_MASK, 0, 4));
    EXPECT_EQ(images.GetIdxFromCtrlID(3527), -1);
    images.AddIcon(3527);
    images.AddIcon(0x00050000 + 3600); // loaded by its low word, known by all of it
    images.AddIcon(40001, AfxGetApp()->LoadIcon(3573));
    images.AddIcon(3540); // the program has none
    images.AddIcon(40001, nullptr);
    EXPECT_EQ(images.GetImageCount(), 3);
    for (const auto& [id, index] :
         {std::pair(3527U, 0), {0x00050000 + 3600, 1}, {3600, -1}, {40001, 2}, {3540, -1}})
    {
        EXPECT_EQ(images.GetIdxFromCtrlID(id), index) << id;
    }
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

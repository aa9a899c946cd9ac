#include "GMSUtil.h"
#include "SpecialConfigVals.h"

#include <gtest/gtest.h>

#include <climits>
#include <utility>

namespace {

TEST(SpecialConfigVals, NumbersAndTextsAreOneTableThatAnswersTheDefaultUntilSet)
{
    SetSpecialConfigVal("Dialog", "Width", 0);
    EXPECT_EQ(GetSpecialConfigVal("DIALOG", "wIDTH", 7), 0) << "case does not count";
    EXPECT_EQ(GetSpecialConfigVal("DialogW", "idth", 7), 7) << "the two names stay apart";
    SetSpecialConfigVal("Dialog", "Title", "");
    EXPECT_EQ(GetSpecialConfigVal("Dialog", "Title", "none"), "");
    SetSpecialConfigVal("Dialog", "Title", nullptr);
    EXPECT_EQ(GetSpecialConfigVal("Dialog", "Title", "none"), "none");
    SetSpecialConfigVal("Map", "Zoom", INT_MIN);
    EXPECT_EQ(GetSpecialConfigVal("Map", "Zoom", ""), "-2147483648");
    for (const auto& [text, number] :
         {std::pair("-3", -3), {"", 99}, {"12 ", 99}, {"-", 99}, {"2147483648", 99}})
    {
        SetSpecialConfigVal("Map", "Zoom", text);
        EXPECT_EQ(GetSpecialConfigVal("Map", "Zoom", 99), number) << '"' << text << '"';
    }
    ClearSpecialConfigVals();
    EXPECT_EQ(GetSpecialConfigVal("Dialog", "Width", 7), 7);
}

} // namespace

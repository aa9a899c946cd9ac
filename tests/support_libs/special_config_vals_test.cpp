#include "GMSUtil.h"
#include "SpecialConfigVals.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>

namespace {
class SpecialConfigVals : public testing::Test
{
protected:
    SpecialConfigVals() { ClearSpecialConfigVals(); }
    ~SpecialConfigVals() override { ClearSpecialConfigVals(); }
};

TEST_F(SpecialConfigVals, AnswersTheDefaultUntilSetAndAfterTaking)
{
    SetSpecialConfigVal("Dialog", "Width", 0);
    SetSpecialConfigVal("Dialog", "Title", "");
    EXPECT_EQ(GetSpecialConfigVal("Dialog", "Title", "none"), "");
    SetSpecialConfigVal("Dialog", "Title", nullptr);
    EXPECT_EQ(GetSpecialConfigVal("Dialog", "Title", "none"), "none");
    EXPECT_EQ(GetSpecialConfigVal("DIALOG", "wIDTH", 7), 0) << "case does not count";
    EXPECT_EQ(GetSpecialConfigVal("DialogW", "idth", 7), 7) << "the two names stay apart";
    ClearSpecialConfigVals();
    EXPECT_EQ(GetSpecialConfigVal("Dialog", "Width", 7), 7);
    SetSpecialConfigVal(nullptr, "Key", 1);
    EXPECT_EQ(GetSpecialConfigVal(nullptr, "Key", 5), 5);
    EXPECT_EQ(GetSpecialConfigVal("Section", "Key", static_cast<const char*>(nullptr)), "");
}

TEST_F(SpecialConfigVals, NumbersAndTextsAreOneTable)
{
    SetSpecialConfigVal("Map", "Zoom", INT_MIN);
    EXPECT_EQ(GetSpecialConfigVal("Map", "Zoom", ""), "-2147483648");
    EXPECT_EQ(GetSpecialConfigVal("Map", "Zoom", 0), INT_MIN);

    const std::pair<const char*, int> cases[] = {{"-3", -3},  {"", 99},  {"yes", 99},
                                                 {"12 ", 99}, {"-", 99}, {"2147483648", 99}};
    for (const auto& [text, number] : cases)
    {
        SetSpecialConfigVal("Map", "Zoom", text);
        EXPECT_EQ(GetSpecialConfigVal("Map", "Zoom", 99), number) << '"' << text << '"';
    }
}
} // namespace

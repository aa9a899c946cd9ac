#include "GMSObjects.h"
#include "support_libs/text_file.h"

#include <gtest/gtest.h>

namespace {

class Symbols : public IconList
{
public:
    bool Load(const char* path, K3Grfx* graphics) override
    {
        return IconList::Load(path, graphics, "Symbols", "Symbol");
    }
    bool LoadText(const std::string& text) { return Load(TextFile(text).Path(), nullptr); }
};

TEST(IconListTest, ReadsNamesAndPicturesOfItsListAlone)
{
    Symbols symbols;
    ASSERT_TRUE(symbols.LoadText("; symbols of a chart\r\n"
                                 "Anything before the first list\r\n"
                                 "[Others]\r\nOther A\r\n###\r\n"
                                 "[Symbols]\r\n\r\n"
                                 "Symbol Two words \r\n"
                                 "#..\r\n"
                                 "; amid the picture\r\n"
                                 ".##  \r\n"
                                 "Symbol Dot\r\n#\r\n"
                                 "[More]\r\nrubbish\r\n"
                                 "[Symbols]\r\nSymbol Dot\r\n.")); // goes on; no end of line
    ASSERT_EQ(symbols.GetCount(), 3);
    const IconInfo* const icon = symbols.Find("Two words");
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(icon->GetWidth(), 3);
    EXPECT_EQ(icon->GetHeight(), 2);
    EXPECT_TRUE(icon->IsSet(0, 0) && icon->IsSet(2, 1));
    EXPECT_FALSE(icon->IsSet(0, 1) || icon->IsSet(3, 1) || icon->IsSet(0, 2));
    EXPECT_EQ(symbols.Find("Dot"), symbols.GetAt(1)) << "the first of two";
    EXPECT_EQ(symbols.Find("dot"), nullptr);
    EXPECT_EQ(symbols.GetAt(3), nullptr);
}

} // namespace

// Text as values.

#include <afxwin.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

// Resource ids of framework_strings.rc
constexpr UINT ShortString = 60000;
constexpr UINT LongString = 60001;
constexpr UINT FormatString = 60002;
constexpr UINT MissingString = 60003;

TEST(Text, NullIsEmptyAndPartsAreCutToTheText)
{
    const LPCTSTR null = nullptr;
    CString empty(null);
    empty += null;
    empty.Append(null, 3);
    EXPECT_EQ(CString("ab").FindOneOf(null), -1);
    EXPECT_EQ(empty.Compare(null), 0);
    EXPECT_EQ(CString("ab").Replace(null, "x"), 0);
    EXPECT_STREQ(CString("ab") + null, "ab");
    CString formatted("kept");
    formatted.AppendFormat(null);
    EXPECT_STREQ(formatted, "kept");
    formatted.Format(null);
    EXPECT_TRUE(formatted.IsEmpty());

    // Counts below zero are none.
    CString cut("abc", -1);
    cut.Preallocate(-1);
    *cut.GetBufferSetLength(-1) = '\0';
    for (const auto shorten : {&CString::Truncate, &CString::ReleaseBufferSetLength})
    {
        cut = "abc";
        (cut.*shorten)(-1);
        EXPECT_TRUE(cut.IsEmpty());
    }

    const CString text("abcdef");
    const std::pair<CString, const char*> parts[] = {
        {text.Left(99), "abcdef"},
        {text.Left(-1), ""},
        {text.Right(2), "ef"},
        {text.Right(-1), ""},
        {text.Mid(4, 99), "ef"},
        {text.Mid(99), ""},
        {text.Mid(-1, 2), "ab"},
        {text.SpanIncluding("ba"), "ab"},
        {text.SpanExcluding("d"), "abc"},
    };
    for (const auto& [part, expected] : parts)
    {
        EXPECT_STREQ(part, expected);
    }
}

TEST(Text, SearchesAndChanges)
{
    CString text("one two one");
    EXPECT_EQ(text.Find("one", 1), 8);
    EXPECT_EQ(text.Find("one", 99), -1);
    EXPECT_EQ(text.ReverseFind('o'), 8);
    EXPECT_EQ(text.Replace("one", "one one"), 2) << "a replacement must not be found again";
    EXPECT_STREQ(text, "one one two one one");
    EXPECT_EQ(text.Remove(' '), 4);
    EXPECT_EQ(text.Delete(3, 99), 3);
    EXPECT_EQ(text.Insert(99, "!"), 4);
    EXPECT_STREQ(text, "one!");
    EXPECT_STREQ(CString(" \t a b \n").Trim(), "a b");
    EXPECT_STREQ(CString("***").TrimLeft('*'), "");

    text = "abc"; // parts of itself
    text += text;
    text = text.GetString() + 2;
    text.Format("%s-%s", text.GetString(), text.GetString());
    text.Insert(0, text.Right(2));
    EXPECT_STREQ(text, "bccabc-cabc");

    std::string tokens;
    int position = 0;
    for (CString token = CString("%First Second##Third").Tokenize("% #", position);
         !token.IsEmpty(); token = CString("%First Second##Third").Tokenize("% #", position))
    {
        tokens += token + '|';
    }
    EXPECT_EQ(tokens, "First|Second|Third|");
    EXPECT_EQ(position, -1);
}

TEST(Text, StringAndPatternsComeFromTheResources)
{
    CString text("kept");
    EXPECT_FALSE(text.LoadString(MissingString));
    EXPECT_STREQ(text, "kept");
    EXPECT_TRUE(text.LoadString(LongString));
    EXPECT_EQ(text.GetLength(), 300);
    EXPECT_STREQ(text.Right(3), "end");
    EXPECT_STREQ(CString(MAKEINTRESOURCE(ShortString)), "short");
    text.Format(FormatString, 7, "x");
    EXPECT_STREQ(text, "7 of x");
    // A pattern takes its texts whatever they say.
    AfxFormatString1(text, 60006, "%2");
    EXPECT_STREQ(text, "%2 before %2 and %2");
    AfxFormatString2(text, 60006, "%2", "%1");
    EXPECT_STREQ(text, "%2 before %1 and %2");
}

// In a file of the system's folder, or in the user's registry.
TEST(Settings, AreReadAsTheyWereWritten)
{
    CWinApp& app = *AfxGetApp();
    for (const char* const company : {"", "OnBoardUI tests"})
    {
        app.SetRegistryKey(company);
        EXPECT_EQ(app.GetProfileInt("Test", "Number", -3), UINT(-3));
        EXPECT_STREQ(app.GetProfileString("Test", "Text", "none"), "none");
        EXPECT_STREQ(app.GetProfileString("Test", "Text"), "");
        EXPECT_TRUE(app.WriteProfileInt("Test", "Number", -7));
        EXPECT_TRUE(app.WriteProfileString("Test", "Text", "some text"));
        EXPECT_EQ(int(app.GetProfileInt("Test", "Number", 1)), -7);
        EXPECT_STREQ(app.GetProfileString("Test", "Text", "none"), "some text");
        EXPECT_TRUE(app.WriteProfileString("Test", "Text", nullptr));
        EXPECT_STREQ(app.GetProfileString("Test", "Text", "none"), "none");
        EXPECT_TRUE(app.WriteProfileString("Test", nullptr, nullptr));
        EXPECT_EQ(app.GetProfileInt("Test", "Number", 5), 5U);
    }
    app.SetRegistryKey("");
}

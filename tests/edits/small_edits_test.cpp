// The edit with colours, the one with a prompt and the one that keeps its place.

#include "ColorEdit.h"
#include "EditWithPrompt.h"
#include "QuixEdit.h"
#include "support/WindowTest.h"

#include <cstring>

using SmallEditsTest = WindowTest;

namespace {

class PromptSeen : public EditWithPrompt
{
public:
    // What is in the edit itself, whatever it says.
    std::string Shown()
    {
        char line[100] = {};
        line[DefWindowProc(WM_GETTEXT, sizeof(line), LPARAM(line))] = '\0';
        return line;
    }
    bool IsHidden() { return DefWindowProc(EM_GETPASSWORDCHAR, 0, 0) != 0; }
};

} // namespace

TEST_F(SmallEditsTest, ColoursAreBlackOnFacesUntilSet)
{
    auto& edit = Add<ColorEdit>(CRect(20, 20, 220, 60), 0, "");
    edit.SetWindowText("WWWWWWWW");
    PumpAll();
    const auto count = [&](COLORREF color) { return WindowPixels(edit).Count(color); };
    EXPECT_GT(count(::GetSysColor(COLOR_3DFACE)), 4000);
    EXPECT_GT(count(RGB(0, 0, 0)), 50);
    edit.SetBackgroundColor(RGB(10, 60, 20));
    edit.SetTextColor(RGB(250, 200, 0));
    PumpAll();
    EXPECT_GT(count(RGB(10, 60, 20)), 4000);
    EXPECT_GT(count(RGB(250, 200, 0)), 50);
    EXPECT_EQ(count(RGB(0, 0, 0)), 0);
}

TEST_F(SmallEditsTest, PromptRules)
{
    using Edit = EditWithPrompt;
    constexpr const char* prompt = "<Enter text here>";
    // A name, the text before, if any, the deed, then the text as told and as seen.
    const std::tuple<const char*, const char*, void (*)(Edit&), const char*, const char*> table[] =
        {
            {"a text", "abc", [](Edit&) {}, "abc", "abc"},
            {"empty text", nullptr, [](Edit& e) { e.SetWindowText(""); }, "", prompt},
            {"null text", nullptr, [](Edit& e) { e.SetWindowText(nullptr); }, "", prompt},
            {"prompt as text", nullptr, [](Edit& e) { e.SetWindowText(prompt); }, "", prompt},
            {"a text by message", nullptr,
             [](Edit& e) { e.SendMessage(WM_SETTEXT, 0, LPARAM("abc")); }, "abc", "abc"},
            {"a text taken away", "abc", [](Edit& e) { e.SetWindowText(""); }, "", ""},
            {"reset", "abc", [](Edit& e) { e.Reset(); }, "", prompt},
            {"other prompt", nullptr, [](Edit& e) { e.SetPromptText("?"); }, "", "?"},
            {"null prompt", nullptr, [](Edit& e) { e.SetPromptText(nullptr); }, "", ""},
            {"prompt under a text", "abc", [](Edit& e) { e.SetPromptText("?"); }, "abc", "abc"},
            {"key", nullptr, [](Edit&) { TypeText("q"); }, "q", "q"},
            {"on-screen key", nullptr, [](Edit& e) { e.SendMessage(WM_CHAR, 'q', 1); }, "q", "q"},
            {"press", nullptr, [](Edit& e) { Click(ClientPoint(e, CPoint(9, 9))); }, "", ""},
            {"right press", nullptr, [](Edit& e) { e.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, 0); },
             "", ""},
            {"middle press", nullptr, [](Edit& e) { e.SendMessage(WM_MBUTTONDOWN, MK_MBUTTON, 0); },
             "", ""},
            {"all selected", nullptr, [](Edit& e) { e.SetSel(0, -1); }, "", prompt},
        };
    for (const auto& [name, before, deed, text, shown] : table)
    {
        SCOPED_TRACE(name);
        auto& edit = Add<PromptSeen>(CRect(20, 20, 220, 50), ES_AUTOHSCROLL);
        edit.SetFocus();
        if (before != nullptr)
        {
            edit.SetWindowText(before);
        }
        deed(edit);
        PumpAll();
        EXPECT_EQ(TextOf(edit), text);
        EXPECT_EQ(edit.Shown(), shown);
        EXPECT_EQ(::GetWindowTextLength(edit), int(std::strlen(text)));
        EXPECT_EQ(edit.LineLength(0), int(std::strlen(text)));
        if (std::strcmp(text, shown) != 0)
        {
            EXPECT_EQ(edit.GetSel(), 0U) << "caret in front, nothing selected";
        }
        Remove(edit);
    }
    char given[] = "u";
    auto& edit = Add<PromptSeen>(CRect(20, 20, 220, 50));
    EXPECT_EQ(edit.GetWindowText(nullptr, 0), 0);
    edit.SendMessage(WM_GETTEXT, 0, LPARAM(given));
    EXPECT_STREQ(given, "u") << "no room";
    edit.SendMessage(WM_GETTEXT, WPARAM(-1), LPARAM(given));
    EXPECT_STREQ(given, "") << "a size beyond all numbers";
}

TEST_F(SmallEditsTest, AParentMayBringThePromptBackWhereverTheEditIsEmpty)
{
    PromptSeen edit;
    Host().hook = [&](ToldMessage& told) {
        if (told.code == EN_CHANGE && edit.GetWindowTextLength() == 0)
        {
            edit.Reset();
        }
    };
    edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(20, 20, 220, 50), &Host(), 5);
    edit.Reset();
    EXPECT_EQ(edit.Shown(), "<Enter text here>");
    edit.SetFocus();
    TypeText("q");
    EXPECT_EQ(TextOf(edit) + edit.Shown(), "qq");
    TypeKey(VK_BACK);
    EXPECT_EQ(TextOf(edit) + edit.Shown(), "<Enter text here>");
    Click(ClientPoint(edit, CPoint(9, 9)));
    EXPECT_EQ(edit.Shown(), "") << "the user begins";
    edit.DestroyWindow();

    const char* wanted = "First";
    int tellings = 0;
    Host().hook = [&](ToldMessage& told) {
        if (told.code == EN_CHANGE)
        {
            ++tellings;
            edit.SetPromptText(wanted);
        }
    };
    edit.Create(WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, CRect(20, 20, 220, 50), &Host(), 5);
    EXPECT_EQ(edit.Shown(), "First");
    for (const char* const each : {"Second", "", "Third"})
    {
        edit.SetWindowText("text");
        wanted = each;
        tellings = 0;
        edit.Reset();
        EXPECT_EQ(TextOf(edit) + edit.Shown(), wanted);
        EXPECT_EQ(tellings, 2) << "of the prompt before, and of this one";
        edit.SetPromptText(each);
        EXPECT_EQ(tellings, 2);
        tellings = 0;
        edit.Reset();
        EXPECT_EQ(tellings, *each == '\0') << "the prompt is there";
    }
    edit.SetWindowText("text");
    std::string count; // another one each time: that which waits comes when it is asked for
    Host().OnCode(EN_CHANGE, [&](ToldMessage&) { edit.SetPromptText((count += 'I').c_str()); });
    edit.Reset();
    EXPECT_EQ(edit.Shown(), "I");
    Host().hook = nullptr;
    edit.Reset();
    EXPECT_EQ(edit.Shown(), "II");
    edit.DestroyWindow();
}

TEST_F(SmallEditsTest, ThePromptIsGreyAndComesWithEachWindow)
{
    auto& edit = Add<PromptSeen>(CRect(20, 20, 260, 60));
    const auto count = [&](COLORREF color) { return Settled(edit).Count(color); };
    EXPECT_GT(count(RGB(119, 121, 118)), 20);
    edit.SetPromptColor(RGB(200, 30, 30));
    EXPECT_GT(count(RGB(200, 30, 30)), 20);
    const int window = COLOR_WINDOW; // another one, as the user chooses it
    const COLORREF before = ::GetSysColor(window);
    const COLORREF green = RGB(10, 60, 20);
    ::SetSysColors(1, &window, &green);
    Repaint(edit);
    EXPECT_GT(count(green), 5000);
    EXPECT_EQ(count(before), 0) << "one ground behind letters and beside them";
    ::SetSysColors(1, &window, &before);
    PumpAll();
    edit.SetWindowText("text");
    EXPECT_EQ(count(RGB(200, 30, 30)), 0);
    edit.DestroyWindow();
    ASSERT_TRUE(edit.Create(WS_CHILD | WS_VISIBLE, CRect(20, 20, 260, 60), &Host(), 5));
    EXPECT_EQ(edit.Shown(), "<Enter text here>");
}

TEST_F(SmallEditsTest, ThePromptOfAnEditThatWasThereIsNoTextEither)
{
    // What the host gives before the prompt is told, how often the parent is told of a change, and
    // what it gives itself when it reads nothing then.
    using Give = void (*)(EditWithPrompt&, const char*);
    const Give set = [](EditWithPrompt& edit, const char* text) { edit.SetWindowText(text); };
    const Give replace = [](EditWithPrompt& edit, const char* text) { edit.ReplaceSel(text); };
    const Give prompt = [](EditWithPrompt& edit, const char*) { edit.SetPromptText("Search"); };
    const std::tuple<Give, int, const char*> cases[] = {
        {nullptr, 1, ""}, {nullptr, 2, "EDDF"}, {set, 1, ""}, {replace, 3, ""}, {prompt, 1, ""}};
    for (const auto& [give, changes, answer] : cases)
    {
        SCOPED_TRACE(testing::Message() << changes << answer);
        auto& before = Add<CEdit>(CRect(20, 80, 260, 110));
        before.SetWindowText("text");
        PromptSeen taker;
        CString value("EDDF"); // which the parent keeps up to date
        std::string read;
        int told = 0;
        Host().OnCode(EN_CHANGE, [&, answer = answer](ToldMessage& change) {
            ++told;
            Host().GetDlgItemText(int(change.id), value);
            read += value;
            if (value.IsEmpty() && *answer != '\0')
            {
                taker.SetWindowText(answer);
            }
        });
        taker.SubclassWindow(before.UnsubclassWindow());
        EXPECT_EQ(TextOf(taker), "");
        const std::string given(give == set || give == replace ? "EDDF" : answer);
        if (give != nullptr)
        {
            give(taker, value);
            EXPECT_STREQ(value, given.c_str());
        }
        PumpAll(); // without another message it comes with the next paint
        EXPECT_EQ(TextOf(taker), given);
        EXPECT_EQ(taker.Shown(), given.empty() ? taker.GetPromptText().GetString() : given);
        EXPECT_EQ(read.find('<'), std::string::npos);
        EXPECT_EQ(told, changes);
        Host().hook = nullptr;
        taker.DestroyWindow();
    }
}

TEST_F(SmallEditsTest, APromptIsReadWhereAPasswordIsNot)
{
    auto& edit = Add<PromptSeen>(CRect(20, 20, 260, 60), ES_PASSWORD);
    PromptSeen taker;
    taker.SubclassWindow(Add<CEdit>(CRect(20, 80, 260, 110), ES_PASSWORD).UnsubclassWindow());
    PumpAll();
    for (PromptSeen* const each : {&edit, &taker})
    {
        EXPECT_FALSE(each->IsHidden());
        EXPECT_NE(each->GetPasswordChar(), '\0');
        each->SetFocus();
        TypeText("s");
        EXPECT_TRUE(each->IsHidden());
        each->Reset();
        EXPECT_FALSE(each->IsHidden());
        each->SetWindowText("secret");
        EXPECT_TRUE(each->IsHidden());
        each->Reset();
        each->SetPasswordChar('#');
        each->SetPromptText("");
        EXPECT_EQ(each->GetPasswordChar(), '#');
        EXPECT_TRUE(each->IsHidden());
    }
    taker.DestroyWindow();
}

TEST_F(SmallEditsTest, AFixedEditKeepsItsPlaceAndWidthAndKnowsOfEscape)
{
    auto& edit = Add<QuixEdit>(CRect(40, 30, 190, 60));
    const CRect host = WindowRectOf(Host());
    for (const int width : {150, 120})
    {
        edit.SetFixedPlace(40, 30, width);
        edit.MoveWindow(200, 200, 500, 44);
        EXPECT_EQ(WindowRectOf(edit), CRect(host.TopLeft() + CPoint(40, 30), CSize(width, 44)));
    }
    edit.SetWindowText("ab");
    edit.SetFocus();
    edit.SetSel(0, -1);
    edit.Copy();
    for (const UINT key : {UINT(VK_ESCAPE), UINT('V')})
    {
        TypeKey(key);
        EXPECT_EQ(edit.EscapePressed(), key == VK_ESCAPE);
    }
    EXPECT_EQ(TextOf(edit), "v") << "without Ctrl";
    // With it, before any accelerator takes the key: what is selected, the key and the text then.
    BYTE keys[256] = {};
    keys[VK_CONTROL] = 0x80;
    edit.SetWindowText("ab");
    ::SetKeyboardState(keys);
    for (const auto& [from, to, key, text] :
         {std::tuple(0, 1, 'C', "ab"), {2, 2, 'V', "aba"}, {0, 1, 'X', "ba"}, {0, 0, 'Z', "aba"}})
    {
        edit.SetSel(from, to);
        MSG pressed = {edit, WM_KEYDOWN, WPARAM(key), 1, 0, {}};
        edit.PreTranslateMessage(&pressed);
        EXPECT_EQ(TextOf(edit), text) << key;
    }
    edit.SetFixedPlace(40, 30, 150);
    MSG escape = {edit, WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    edit.PreTranslateMessage(&escape);
    edit.DestroyWindow();
    edit.Create(WS_CHILD | WS_VISIBLE | ES_PASSWORD | ES_AUTOHSCROLL, CRect(), &Host(), 5);
    EXPECT_FALSE(edit.EscapePressed()) << "that was the window before";
    edit.SetWindowText("secret");
    for (const UINT key : {UINT('C'), UINT('X'), UINT('V')})
    {
        edit.SetSel(0, key == 'V' ? 0 : -1);
        MSG pressed = {edit, WM_KEYDOWN, key, 1, 0, {}};
        edit.PreTranslateMessage(&pressed);
    }
    EXPECT_EQ(TextOf(edit), "asecret") << "no password in the clipboard";
    keys[VK_CONTROL] = 0;
    ::SetKeyboardState(keys);
}

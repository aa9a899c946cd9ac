// Real input on an edit: what lists/own_bars_test.cpp does not say of every bar, and the on-screen
// keyboard.

#include "edits/edit_for_tests.h"
#include "support/ChildModes.h"

using namespace parts;

// The bar has positions past the end of the text; the way back is in step all the same.
TEST_F(EditOnBoard, AThumbDragMovesTheTextLineByLine)
{
    auto& edit = AddEdit(120);
    MessageLog log(edit, {WM_VSCROLL});
    const CPoint grip = edit.PartPoint(Thumb);
    Press(grip);
    DragTo(grip + CPoint(0, 30));
    EXPECT_EQ(log.Count(WM_VSCROLL), edit.GetFirstVisibleLine());
    const CRect area = edit.m_bar.GetArea();
    for (const int y : {area.bottom - 5, area.CenterPoint().y, area.bottom - 5})
    {
        DragTo(WindowPoint(edit, CPoint(area.CenterPoint().x, y)), 10);
        EXPECT_EQ(edit.GetFirstVisibleLine(),
                  std::min(edit.m_bar.GetScrollPos(), edit.LastTopRow()));
    }
    Release();
    ExpectAgreement(edit, "dragged");
    // A text of the host's under a held thumb, and an end that nobody's finger made.
    Press(edit.PartPoint(Thumb));
    edit.Fill(150);
    Release();
    ExpectAgreement(edit, "another text");
    Press(edit.PartPoint(Thumb));
    DragTo(WindowPoint(edit, CPoint(area.CenterPoint().x, area.bottom - 5)), 10);
    edit.SendMessage(WM_CANCELMODE);
    PumpAll();
    ExpectAgreement(edit, "cut off past the end");
    Release();
}

TEST_F(EditTest, AFingerInTheTextSelectsNothingThatAnotherModeLaysUnderIt)
{
    auto& edit = AddEdit(50);
    for (const APPMODE mode : {ONBOARD, STD})
    {
        Press(ClientPoint(edit, CPoint(30, 30)));
        DragTo(ClientPoint(edit, CPoint(50, 40)));
        const DWORD selected = edit.GetSel();
        EXPECT_NE(LOWORD(selected), HIWORD(selected));
        SetModeOfChildren(mode, Host());
        DragTo(ClientPoint(edit, CPoint(40, 70)));
        Release();
        EXPECT_EQ(edit.GetSel(), selected) << APPMODE_NAMES[mode];
    }
    // Of an edit that follows no mode itself.
    auto& plain = Add<CEdit>(CRect(400, 20, 600, 60), 0, "");
    plain.SetWindowText("Find: EDDF and more of it");
    Press(ClientPoint(plain, CPoint(30, 10)));
    DragTo(ClientPoint(plain, CPoint(50, 10)));
    const DWORD selected = plain.GetSel();
    EXPECT_NE(LOWORD(selected), HIWORD(selected));
    SetModeOfChildren(ONBOARD, Host());
    DragTo(ClientPoint(plain, CPoint(160, 10)));
    Release();
    EXPECT_EQ(plain.GetSel(), selected);
}

// The on-screen keyboard ------------------------------------------------------------------------

namespace {

// The flight bag while it lives: writes the requests down, and may act on one.
class KeyboardHost : public IEFB
{
public:
    KeyboardHost() { CCustomEdit::SetEfb(this); }
    ~KeyboardHost() override { CCustomEdit::SetEfb(nullptr); }
    using Request = std::tuple<bool, int, HWND>; // show, position, window

    const char* GetProviderName() override { return "test"; }
    void ShowVKB(bool show, VKB_SHOW_POS position, HWND window) override
    {
        requests.emplace_back(show, position, window);
        act();
    }

    std::vector<Request> requests;
    std::function<void()> act = [] {};
};

} // namespace

TEST_F(EditTest, ATapAsksForTheKeyboardInTheFlightBagModesAndTheHostMayDoAnythingThen)
{
    KeyboardHost keyboard;
    for (const APPMODE mode : {STD, FULLSCREEN, ONBOARD, EFB, EFBFS})
    {
        COnBoardUIGeneral::SetAppMode(mode);
        auto& edit = AddEdit(50);
        const HWND window = edit;
        using Requests = std::vector<KeyboardHost::Request>;
        Click(ClientPoint(edit, CPoint(30, 30)));
        EXPECT_EQ(::GetFocus(), window);
        EXPECT_EQ(std::exchange(keyboard.requests, {}),
                  mode == EFB || mode == EFBFS ? Requests({{false, 3, window}, {true, 3, window}})
                                               : Requests())
            << APPMODE_NAMES[mode];
        edit.SetFauxReadOnly();
        Click(ClientPoint(edit, CPoint(60, 60)));
        EXPECT_TRUE(keyboard.requests.empty());
        Remove(edit);
    }
    const std::function<void(CWnd&)> deeds[] = {
        [](CWnd& edit) { edit.DestroyWindow(); },
        [](CWnd&) { COnBoardUIGeneral::SetAppMode(STD); },
        [](CWnd&) { CCustomEdit::SetEfb(nullptr); },
    };
    for (const auto& deed : deeds)
    {
        COnBoardUIGeneral::SetAppMode(EFB);
        auto& edit = AddEdit(50);
        keyboard.requests.clear();
        keyboard.act = [&] { deed(edit); };
        Click(ClientPoint(edit, CPoint(30, 30)));
        EXPECT_EQ(keyboard.requests.size(), 1U);
        Remove(edit);
    }
}

// Keys ------------------------------------------------------------------------------------------

TEST_F(EditTest, AFauxReadOnlyEditScrollsAndCopiesAndTakesNoOtherKey)
{
    for (const APPMODE mode : {STD, ONBOARD})
    {
        COnBoardUIGeneral::SetAppMode(mode);
        auto& edit = AddEdit(100);
        auto& other = AddEdit(0);
        other.SetWindowText("pasted");
        other.SetSel(0, -1);
        other.Copy();
        edit.SetFauxReadOnly();
        edit.SetFocus();
        edit.SetSel(0, 6);
        const std::string before = edit.Text();
        // After each key: what is cut could be pasted back.
        const std::pair<UINT, UINT> keys[] = {
            {'A', 0},    {VK_DELETE, 0},    {VK_BACK, 0},      {VK_RETURN, 0},
            {VK_F16, 0}, {'X', VK_CONTROL}, {'V', VK_CONTROL}, {VK_INSERT, VK_SHIFT}};
        for (const auto& [key, held] : keys)
        {
            TypeKey(key, held);
            EXPECT_EQ(edit.Text(), before) << APPMODE_NAMES[mode] << key;
        }
        edit.SetSel(0, 0);
        edit.SendMessage(WM_MBUTTONDOWN, MK_MBUTTON, 0); // pastes under Wine
        EXPECT_EQ(edit.Text(), before) << APPMODE_NAMES[mode];
        ForgetClipboard();
        edit.SetSel(0, 6);
        TypeKey('C', VK_CONTROL);
        edit.SendMessage(WM_VSCROLL, SB_LINEDOWN);
        EXPECT_EQ(edit.GetFirstVisibleLine(), 1);
        other.SetWindowText("");
        other.Paste();
        EXPECT_EQ(other.Text(), "Line 0");
        Remove(other);
        Remove(edit);
    }
}

TEST_F(EditTest, TheContextMenuIsForTheStandardMode)
{
    auto& edit = AddEdit(3);
    for (const APPMODE mode : {ONBOARD, EFBFS, STD})
    {
        SetMode(mode, edit);
        bool opened = false;
        const auto close = [&] {
            GUITHREADINFO info = {.cbSize = sizeof(info)};
            ::GetGUIThreadInfo(::GetCurrentThreadId(), &info);
            if ((info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0)
            {
                opened = true;
                QueueKey(VK_ESCAPE, true);
                QueueKey(VK_ESCAPE, false);
            }
        };
        MoveTo(ClientPoint(edit, CPoint(30, 30)));
        const auto tap = [] {
            QueueButton(true, true);
            QueueButton(false, true);
        };
        PlaySteps({tap, close, close});
        EXPECT_EQ(opened, mode == STD) << APPMODE_NAMES[mode];
    }
}

TEST_F(EditOnBoard, CtrlBackspaceEmptiesWhatMayBeEdited)
{
    auto& edit = AddEdit(30);
    edit.SetFocus();
    for (const bool readOnly : {true, false})
    {
        edit.SetReadOnly(readOnly);
        edit.SendMessage(WM_CHAR, 0x7F, 1);
        EXPECT_EQ(edit.Text() != "", readOnly);
    }
    edit.Fill(3);
    TypeKey(VK_F16);
    EXPECT_EQ(edit.Text(), "");
    EXPECT_TRUE(edit.Undo());
    EXPECT_EQ(edit.GetLineCount(), 3);
}

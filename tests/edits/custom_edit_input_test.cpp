// Real presses, holds, drags and keys on an edit's own bar, and the on-screen keyboard.

#include "edits/edit_for_tests.h"

#include <tuple>

using namespace parts;

TEST_F(EditTest, EveryOnBoardModeScrollsByPointer)
{
    for (const APPMODE mode : {FULLSCREEN, ONBOARD, EFB, EFBFS})
    {
        SCOPED_TRACE(APPMODE_NAMES[mode]);
        COnBoardUIGeneral::SetAppMode(mode);
        auto& edit = AddEdit(500);
        const int page = edit.VisibleLines();
        // The second click is fast enough to be a double click.
        for (const auto& [part, line] : {std::pair(Second, 1),
                                         {Second, 2},
                                         {First, 1},
                                         {AfterThumb, 1 + page},
                                         {BeforeThumb, 1}})
        {
            Click(edit.PartPoint(part));
            EXPECT_NEAR(edit.GetFirstVisibleLine(), line, part == Second || part == First ? 0 : 1);
        }
        ExpectAgreement(edit, "a page up");
        Remove(edit);
    }
}

TEST_F(EditOnBoard, AHeldArrowScrollsALineEachTickUntilThePressEnds)
{
    const std::function<void(EditForTests&)> ends[] = {
        [](EditForTests&) { Release(); }, [](EditForTests& edit) { SetMode(STD, edit); },
        [](EditForTests& edit) { SetMode(EFB, edit); },
        [](EditForTests& edit) { edit.DestroyWindow(); }};
    for (const auto& end : ends)
    {
        auto& edit = AddEdit(500);
        MessageLog log(edit, {WM_VSCROLL});
        MoveTo(edit.PartPoint(Second));
        const DWORD start = ::GetTickCount();
        Press();
        EXPECT_EQ(log.WParams(WM_VSCROLL), std::vector<WPARAM>{SB_LINEDOWN});
        MoveTo(ClientPoint(Host(), CPoint(600, 500)));
        ASSERT_TRUE(PumpUntil([&] { return log.Count(WM_VSCROLL) == 4; }));
        EXPECT_GE(::GetTickCount() - start, 3 * 90U);
        EXPECT_TRUE(edit.m_scrolling);
        end(edit);
        PumpFor(120);
        EXPECT_FALSE(edit.m_scrolling);
        log.Clear();
        PumpFor(250);
        EXPECT_EQ(log.Count(WM_VSCROLL), 0);
        Release();
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        Remove(edit);
    }
}

TEST_F(EditOnBoard, AThumbDragMovesTheTextLineByLineToBothEnds)
{
    auto& edit = AddEdit(120);
    const CPoint grip = edit.PartPoint(Thumb) + CPoint(0, 9); // off its middle
    MessageLog log(edit, {WM_VSCROLL});
    MoveTo(grip);
    Press();
    EXPECT_EQ(edit.m_lastHit, Thumb);
    EXPECT_EQ(log.Count(WM_VSCROLL), 0) << "the press alone moves nothing";
    DragTo(grip + CPoint(0, 30));
    const int reached = edit.GetFirstVisibleLine();
    EXPECT_NEAR(reached, 30 / edit.m_bar.GetPixelsPerScroll(), 1);
    EXPECT_EQ(log.Count(WM_VSCROLL), reached);
    EXPECT_EQ(edit.m_bar.GetScrollPos(), reached);
    const CRect area = edit.m_bar.GetArea();
    const auto at = [&](int y) { return WindowPoint(edit, CPoint(area.CenterPoint().x, y)); };
    DragTo(at(area.bottom - 5), 10);
    const int end = edit.GetLineCount() - edit.VisibleLines();
    EXPECT_EQ(edit.GetFirstVisibleLine(), end);
    // The bar stands past the end of the text; the way back is in step all the same.
    DragTo(at(area.CenterPoint().y), 10);
    EXPECT_EQ(edit.GetFirstVisibleLine(), edit.m_bar.GetScrollPos());
    DragTo(at(area.top + 5), 10);
    EXPECT_EQ(edit.GetFirstVisibleLine(), 0);
    Release();
}

TEST_F(EditOnBoard, ATroughAndAThumbAreLeftWithThePointer)
{
    for (const auto part : {AfterThumb, Thumb})
    {
        auto& edit = AddEdit(500);
        MoveTo(edit.PartPoint(part));
        Press();
        EXPECT_EQ(edit.m_lastHit, part);
        MoveTo(ClientPoint(Host(), CPoint(700, 400)));
        ASSERT_TRUE(PumpUntil([&] { return !edit.m_scrolling; }));
        const int reached = edit.GetFirstVisibleLine();
        DragTo(edit.PartPoint(Thumb) + CPoint(0, 60));
        EXPECT_EQ(edit.GetFirstVisibleLine(), reached);
        Release();
        Remove(edit);
    }
}

// The on-screen keyboard ------------------------------------------------------------------------

namespace {

// Writes the requests down, and may act on one.
class KeyboardHost : public IEFB
{
public:
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

TEST_F(EditTest, ATapAsksForTheKeyboardInTheFlightBagModes)
{
    KeyboardHost keyboard;
    CCustomEdit::SetEfb(&keyboard);
    for (const APPMODE mode : {STD, FULLSCREEN, ONBOARD, EFB, EFBFS})
    {
        COnBoardUIGeneral::SetAppMode(mode);
        auto& edit = AddEdit(50);
        keyboard.requests.clear();
        const HWND window = edit.m_hWnd;
        Click(ClientPoint(edit, CPoint(30, 30)));
        EXPECT_EQ(::GetFocus(), window);
        std::vector<KeyboardHost::Request> expected;
        if (mode == EFB || mode == EFBFS)
        {
            expected = {{false, 3, window}, {true, 3, window}};
        }
        EXPECT_EQ(keyboard.requests, expected) << APPMODE_NAMES[mode];
        edit.SetFauxReadOnly();
        keyboard.requests.clear();
        Click(ClientPoint(edit, CPoint(60, 60)));
        EXPECT_TRUE(keyboard.requests.empty());
        Remove(edit);
    }
}

TEST_F(EditTest, TheHostMayDoAnythingWhenItIsAskedForTheKeyboard)
{
    KeyboardHost keyboard;
    const std::function<void(CWnd&)> deeds[] = {
        [](CWnd& edit) { edit.DestroyWindow(); },
        [](CWnd&) { COnBoardUIGeneral::SetAppMode(STD); },
        [](CWnd&) { CCustomEdit::SetEfb(nullptr); },
    };
    for (const auto& deed : deeds)
    {
        COnBoardUIGeneral::SetAppMode(EFB);
        CCustomEdit::SetEfb(&keyboard);
        auto& edit = AddEdit(50);
        keyboard.act = [&] { deed(edit); };
        Click(ClientPoint(edit, CPoint(30, 30)));
        EXPECT_EQ(std::exchange(keyboard.requests, {}).size(), 1U);
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
        edit.SetFauxReadOnly();
        edit.SetFocus();
        edit.SetSel(0, 6);
        const std::string before = edit.Text();
        TypeText("abc");
        for (const UINT key : {VK_DELETE, VK_BACK, VK_RETURN, VK_F16})
        {
            TypeKey(key);
        }
        TypeKey('X', VK_CONTROL);
        TypeKey('V', VK_CONTROL);
        TypeKey(VK_INSERT, VK_SHIFT);
        EXPECT_EQ(edit.Text(), before) << APPMODE_NAMES[mode];
        TypeKey('C', VK_CONTROL);
        edit.SendMessage(WM_VSCROLL, SB_LINEDOWN);
        EXPECT_EQ(edit.GetFirstVisibleLine(), 1);
        auto& other = AddEdit(0);
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
            GUITHREADINFO info = {};
            info.cbSize = sizeof(info);
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

#include "CustomEdit.h"
#include "OnBoardUI.h"
#include "ZepMsgBoxDlg.h"
#include "dialogs/MessageText.h"
#include "dialogs/dialog_for_tests.h"

#include <functional>
#include <string>

namespace {

constexpr APPMODE AllModes[] = {STD, FULLSCREEN, ONBOARD, EFB, EFBFS};
const CSize Screen(1280, 1024);

// A message box with its protected side open to tests.
class Box : public Scripted<CZepMsgBoxDlg>
{
public:
    Box(const char* text, unsigned int style, CSize area = Screen)
        : Scripted<CZepMsgBoxDlg>(text, style, area, nullptr)
    {}

    std::function<void()> inInit;

    BOOL OnInitDialog() override
    {
        const BOOL result = Scripted<CZepMsgBoxDlg>::OnInitDialog();
        if (inInit)
        {
            inInit();
        }
        return result;
    }

    CWnd& Button(size_t index) { return *m_buttons[index]; }
    CRect PlaceOf(const CWnd& part) const
    {
        CRect place = WindowRectOf(part);
        ScreenToClient(&place);
        return place;
    }
    void ClickOn(size_t index) { Click(WindowRectOf(Button(index)).CenterPoint()); }
    int FirstLine() { return int(m_text->SendMessage(EM_GETFIRSTVISIBLELINE)); }
    std::string Shown()
    {
        CString text;
        m_text->GetWindowText(text);
        return std::string(text);
    }

    using CZepMsgBoxDlg::GetStaticTextSize;
    using CZepMsgBoxDlg::m_buttons;
    using CZepMsgBoxDlg::m_icon;
    using CZepMsgBoxDlg::m_iconId;
    using CZepMsgBoxDlg::m_lpszTemplateName;
    using CZepMsgBoxDlg::m_text;
};

std::string Lines(int count)
{
    std::string text;
    for (int line = 1; line <= count; ++line)
    {
        text += (line > 1 ? "\r\n" : "") + ("Waypoint " + std::to_string(line)) + " is passed";
    }
    return text;
}

class MessageBoxTest : public CustomDialogTest
{
protected:
    void SetUp() override
    {
        CustomDialogTest::SetUp();
        SetOnBoardAppTitle("Flight");
    }
    void TearDown() override
    {
        SetOnBoardAppTitle("");
        CustomDialogTest::TearDown();
    }
};

// Buttons and icons -----------------------------------------------------------------------------

struct Set
{
    unsigned int style;
    int icon;
    struct
    {
        const char* caption;
        int id;
    } buttons[3];
};
constexpr Set Sets[] = {
    {MB_OK, 10002, {{"OK", IDOK}}},
    {MB_OKCANCEL, 10002, {{"OK", IDOK}, {"Cancel", IDCANCEL}}},
    {MB_ABORTRETRYIGNORE, 10006, {{"Abort", IDABORT}, {"Retry", IDRETRY}, {"Ignore", IDIGNORE}}},
    {MB_YESNOCANCEL, 10006, {{"Yes", IDYES}, {"No", IDNO}, {"Cancel", IDCANCEL}}},
    {MB_YESNO, 10006, {{"Yes", IDYES}, {"No", IDNO}}},
    {MB_RETRYCANCEL, 10006, {{"Retry", IDRETRY}, {"Cancel", IDCANCEL}}},
};

TEST_F(MessageBoxTest, EveryButtonOfEverySetAnswersToThePointerInEveryMode)
{
    for (const APPMODE mode : AllModes)
    {
        const ModeScope scope(mode);
        for (const Set& set : Sets)
        {
            for (size_t index = 0; index < 3 && set.buttons[index].caption != nullptr; ++index)
            {
                const auto& button = set.buttons[index];
                Box box("Go on?", set.style);
                box.inLoop = [&] {
                    CString caption;
                    box.Button(index).GetWindowText(caption);
                    EXPECT_EQ(caption, button.caption);
                    box.ClickOn(index);
                };
                EXPECT_EQ(box.DoModal(), button.id == IDCANCEL ? IDCANCEL : IDOK);
                EXPECT_EQ(box.GetButtonPressed(), button.id) << APPMODE_NAMES[mode];
                EXPECT_EQ(box.m_iconId, set.icon);
                const size_t next = index + 1;
                EXPECT_EQ(box.m_buttons.size() > next,
                          next < 3 && set.buttons[next].caption != nullptr);
            }
        }
    }
}

TEST_F(MessageBoxTest, TheStyleNamesTheIcon)
{
    const struct
    {
        unsigned int style;
        int icon;
    } cases[] = {{MB_YESNO | MB_ICONHAND, 10007},    {MB_OK | MB_ICONQUESTION, 10006},
                 {MB_YESNO | MB_ICONWARNING, 10002}, {MB_ABORTRETRYIGNORE | MB_ICONASTERISK, 10004},
                 {MB_OK | MB_USERICON, 10002},       {MB_YESNO | 0xF0, 10006},
                 {MB_OK | 0xFFFF0000U, 10002},       {0xF, 10006}};
    for (const auto& each : cases)
    {
        EXPECT_EQ(Box("", each.style).m_iconId, each.icon) << each.style;
    }
    // The picture lies on the ground of the mode, and it is one of its own for each meaning.
    std::vector<Pixels> pictures;
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        for (const UINT icon : {MB_ICONHAND, MB_ICONQUESTION, MB_ICONEXCLAMATION, MB_ICONASTERISK})
        {
            Box box("Look", MB_OK | icon);
            box.inLoop = [&] {
                PumpAll();
                pictures.push_back(WindowPixels(box.m_icon));
                box.EndDialog(1);
            };
            box.DoModal();
            const Pixels& picture = pictures.back();
            const COLORREF ground = mode == STD ? ::GetSysColor(COLOR_3DFACE) : RGB(50, 50, 50);
            EXPECT_EQ(picture.Width(), 48);
            EXPECT_EQ(picture.Height(), 48);
            EXPECT_GT(picture.Count(ground), 48 * 48 / 8) << "what is not painted is ground";
            EXPECT_LT(picture.Count(ground), 48 * 48 * 3 / 4) << "something is painted";
            for (size_t before = 0; before + 1 < pictures.size(); ++before)
            {
                EXPECT_FALSE(picture == pictures[before]);
            }
        }
    }
}

// Keys ------------------------------------------------------------------------------------------

TEST_F(MessageBoxTest, TheKeysOfAMessageBoxAnswerIt)
{
    const struct
    {
        unsigned int style;
        std::vector<UINT> keys;
        int pressed;
    } cases[] = {
        {MB_OK, {VK_RETURN}, IDOK},
        {MB_OK, {VK_ESCAPE}, IDOK},
        {MB_OK, {VK_SPACE}, IDOK},
        {MB_OK, {'O'}, IDOK},
        {MB_OKCANCEL, {VK_ESCAPE}, IDCANCEL},
        {MB_OKCANCEL, {VK_TAB, VK_RETURN}, IDCANCEL},
        {MB_OKCANCEL, {VK_TAB, VK_SPACE}, IDCANCEL},
        {MB_OKCANCEL | MB_DEFBUTTON2, {VK_RETURN}, IDCANCEL},
        {MB_OKCANCEL | MB_DEFBUTTON3, {VK_RETURN}, IDOK}, // there is no third
        {MB_ABORTRETRYIGNORE | MB_DEFBUTTON3, {VK_SPACE}, IDIGNORE},
        {MB_ABORTRETRYIGNORE | MB_DEFBUTTON4, {VK_RETURN}, IDABORT},
        {MB_ABORTRETRYIGNORE, {VK_RIGHT, VK_RETURN}, IDRETRY},
        {MB_ABORTRETRYIGNORE, {VK_LEFT, VK_RETURN}, IDIGNORE}, // round the end
        {MB_ABORTRETRYIGNORE, {VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}, IDABORT},
        {MB_ABORTRETRYIGNORE, {VK_DOWN, VK_UP, VK_UP, VK_SPACE}, IDIGNORE},
        {MB_ABORTRETRYIGNORE, {VK_ESCAPE, 'R'}, IDRETRY}, // nothing to cancel
        {MB_ABORTRETRYIGNORE, {'Y', 'N', 'O', 'A'}, IDABORT},
        {MB_ABORTRETRYIGNORE, {'I'}, IDIGNORE},
        {MB_YESNOCANCEL, {'Y'}, IDYES},
        {MB_YESNOCANCEL, {'N'}, IDNO},
        {MB_YESNOCANCEL, {'C'}, IDCANCEL},
        {MB_YESNOCANCEL, {VK_ESCAPE}, IDCANCEL},
        {MB_YESNO, {VK_ESCAPE, VK_TAB, VK_RETURN}, IDNO},
        // The text is the last stop, and there the default button answers.
        {MB_YESNO, {VK_TAB, VK_TAB, VK_RETURN}, IDYES},
        {MB_YESNO | MB_DEFBUTTON2, {VK_TAB, VK_RETURN}, IDNO},
        {MB_YESNO, {VK_TAB, VK_TAB, 'N'}, IDNO},
        {MB_YESNO, {VK_TAB, VK_TAB, VK_TAB, VK_TAB, VK_RETURN}, IDNO},
        {MB_RETRYCANCEL, {VK_TAB, VK_TAB, VK_ESCAPE}, IDCANCEL},
        {7, {VK_ESCAPE}, IDCANCEL}, // without buttons there is still a way out
        {7, {VK_RETURN}, IDOK},
    };
    for (const APPMODE mode : {STD, ONBOARD, EFB})
    {
        const ModeScope scope(mode);
        for (const auto& each : cases)
        {
            Box box("Go on?", each.style);
            box.inLoop = [&] {
                for (const UINT key : each.keys)
                {
                    EXPECT_NE(box.GetSafeHwnd(), nullptr);
                    EXPECT_EQ(box.GetButtonPressed(), 0) << "before key " << key;
                    TypeKey(key);
                }
                if (box.GetButtonPressed() == 0)
                {
                    ADD_FAILURE() << "style " << each.style << ", key " << each.keys.back();
                    box.EndDialog(-2);
                }
            };
            box.DoModal();
            EXPECT_EQ(box.GetButtonPressed(), each.pressed)
                << APPMODE_NAMES[mode] << ", style " << each.style;
        }
    }
}

TEST_F(MessageBoxTest, TheCloseBoxAnswersAsEscapeDoes)
{
    const struct
    {
        unsigned int style;
        int pressed;
    } cases[] = {{MB_OK, IDOK}, {MB_RETRYCANCEL, IDCANCEL}, {MB_YESNO, 0}};
    for (const auto& each : cases)
    {
        Box box("Close?", each.style);
        box.inLoop = [&] {
            const UINT state = ::GetMenuState(::GetSystemMenu(box, FALSE), SC_CLOSE, MF_BYCOMMAND);
            EXPECT_EQ((state & MF_GRAYED) != 0, each.pressed == 0);
            TypeKey(VK_F4, VK_MENU);
            EXPECT_EQ(box.GetButtonPressed(), each.pressed) << each.style;
            box.SendMessage(WM_CLOSE);
            EXPECT_EQ(box.GetButtonPressed(), each.pressed) << each.style;
            box.EndDialog(-2);
        };
        box.DoModal();
    }
}

TEST_F(MessageBoxTest, ALongTextIsScrolledAndCopiedByKeys)
{
    const std::string text = Lines(400);
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        Box box(text.c_str(), MB_YESNO);
        box.inLoop = [&] {
            EXPECT_EQ(box.FirstLine(), 0);
            TypeKey(VK_NEXT); // from a button, too
            const int page = box.FirstLine();
            EXPECT_GT(page, 5);
            TypeKey(VK_TAB);
            TypeKey(VK_TAB);
            EXPECT_EQ(::GetFocus(), box.m_text->GetSafeHwnd());
            TypeKey(VK_DOWN);
            EXPECT_EQ(box.FirstLine(), page + 1);
            TypeKey(VK_UP);
            TypeKey(VK_PRIOR);
            EXPECT_EQ(box.FirstLine(), 0);
            TypeKey(VK_END);
            EXPECT_GT(box.FirstLine(), 350);
            TypeKey(VK_DELETE);
            TypeKey(VK_BACK);
            EXPECT_EQ(box.Shown(), text);
            TypeKey('C', VK_CONTROL);
            EXPECT_EQ(box.GetButtonPressed(), 0);
            box.EndDialog(1);
        };
        box.DoModal();
        ASSERT_TRUE(::OpenClipboard(Host()));
        const HANDLE copied = ::GetClipboardData(CF_TEXT);
        EXPECT_STREQ(static_cast<const char*>(::GlobalLock(copied)), text.c_str());
        ::GlobalUnlock(copied);
        ::EmptyClipboard();
        ::CloseClipboard();
    }
}

// Layout ----------------------------------------------------------------------------------------

TEST_F(MessageBoxTest, AShortBoxIsExactInBothLooks)
{
    const struct
    {
        APPMODE mode;
        CSize client;
        CRect icon;
        CRect text;
        CRect yes;
        CRect no;
    } cases[] = {
        {STD, CSize(326, 116), CRect(11, -2, 59, 46), CRect(70, 13, 311, 30),
         CRect(79, 50, 154, 73), CRect(161, 50, 236, 73)},
        {ONBOARD, CSize(626, 151), CRect(18, 5, 66, 53), CRect(84, 15, 603, 43),
         CRect(173, 62, 300, 101), CRect(311, 62, 438, 101)},
    };
    for (const auto& each : cases)
    {
        const ModeScope scope(each.mode);
        Box box("Ready", MB_YESNO);
        box.inLoop = [&] {
            const CSize client = ClientRectOf(box).Size();
            EXPECT_NEAR(client.cx, each.client.cx, 1) << "by the rounding of the halves";
            EXPECT_NEAR(client.cy, each.client.cy, 1);
            const CPoint up(0, client.cy - each.client.cy);
            EXPECT_EQ(box.PlaceOf(box.m_icon), each.icon);
            EXPECT_EQ(box.PlaceOf(*box.m_text), each.text);
            EXPECT_EQ(box.PlaceOf(box.Button(0)), each.yes + up);
            EXPECT_EQ(box.PlaceOf(box.Button(1)), each.no + up);
            EXPECT_NE(box.GetExStyle() & WS_EX_TOPMOST, 0U);
            CString title;
            box.GetWindowText(title);
            EXPECT_EQ(title, "Flight");
            box.EndDialog(1);
        };
        box.DoModal();
    }
}

void ExpectOrdered(Box& box, const CSize& area, bool fits)
{
    const CRect client = ClientRectOf(box);
    std::vector<CRect> places = {box.PlaceOf(box.m_icon), box.PlaceOf(*box.m_text)};
    for (const auto& button : box.m_buttons)
    {
        places.push_back(box.PlaceOf(*button));
        CRect inside;
        inside.IntersectRect(client, places.back());
        EXPECT_EQ(inside, places.back()) << "a button lies inside";
    }
    for (size_t one = 0; one < places.size(); ++one)
    {
        for (size_t other = one + 1; other < places.size(); ++other)
        {
            CRect both;
            EXPECT_FALSE(both.IntersectRect(places[one], places[other])) << one << ' ' << other;
        }
    }
    if (fits)
    {
        const CSize window = WindowRectOf(box).Size();
        EXPECT_LE(window.cx, area.cx);
        EXPECT_LE(window.cy, area.cy);
    }
    EXPECT_LE(places[1].right, client.right);
}

TEST_F(MessageBoxTest, NothingOverlapsForAnyTextButtonsAndArea)
{
    const std::string texts[] = {
        "Word", Lines(3), Lines(40), Lines(400), std::string(5'000, 'x'), [] {
            std::string line;
            while (line.size() < 5'000)
            {
                line += "several words ";
            }
            return line;
        }()};
    const CSize areas[] = {CSize(320, 240), CSize(640, 480), CSize(800, 300),
                           Screen,          CSize(0, 0),     CSize(-1, 5)};
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        for (const std::string& text : texts)
        {
            for (const CSize& area : areas)
            {
                for (const Set& set : Sets)
                {
                    // The other sets with one text: it is the widest that makes a difference.
                    if (set.style != MB_ABORTRETRYIGNORE && &text != &texts[1])
                    {
                        continue;
                    }
                    SCOPED_TRACE(std::to_string(area.cx) + " " + std::to_string(text.size()) + " " +
                                 std::to_string(set.style) + " " + APPMODE_NAMES[mode]);
                    Box box(text.c_str(), set.style, area);
                    ASSERT_TRUE(box.Create(CZepMsgBoxDlg::IDD, &Host()));
                    // Three large buttons need more.
                    const bool fits =
                        area.cy >= 240 && area.cx >= (mode == STD || box.m_buttons.size() < 2 ? 320
                                                      : box.m_buttons.size() < 3              ? 340
                                                                                 : 480);
                    ExpectOrdered(box, area, fits);
                    const CRect shown = ClientRectOf(*box.m_text);
                    const int lines = int(box.m_text->SendMessage(EM_GETLINECOUNT));
                    const int lineHeight = mode == STD ? 13 : 27;
                    if (lines * lineHeight > shown.Height())
                    {
                        const bool bar =
                            mode == STD ? (box.m_text->GetStyle() & WS_VSCROLL) != 0
                                        : shown.Width() <= WindowRectOf(*box.m_text).Width() - 52;
                        EXPECT_TRUE(bar) << lines << " lines in " << shown.Height();
                        box.m_text->SendMessage(WM_VSCROLL, SB_BOTTOM);
                        EXPECT_GT(box.FirstLine(), 0);
                    }
                }
            }
        }
    }
}

TEST_F(MessageBoxTest, ALongTitleWidensTheBox)
{
    const std::string title(100, 'W');
    SetOnBoardAppTitle(title.c_str());
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        Box box("Ready", MB_OK, CSize(9'000, 1'000));
        ASSERT_TRUE(box.Create(CZepMsgBoxDlg::IDD, &Host()));
        int width = 0;
        int height = 0;
        box.GetStaticTextSize(title.c_str(), width, height);
        EXPECT_GT(width, 900);
        EXPECT_GT(ClientRectOf(box).Width(), width);
    }
}

TEST_F(MessageBoxTest, AMeasuredTextOfLinesCountsOneMore)
{
    const struct
    {
        const char* text;
        int lines;
    } cases[] = {{"one", 1}, {"one\r\ntwo", 3}, {"one\r\n", 2}, {"one\n\ntwo", 4}};
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        Box box("Ready", MB_OK);
        ASSERT_TRUE(box.Create(CZepMsgBoxDlg::IDD, &Host()));
        const int lineHeight = mode == STD ? 16 : 27;
        for (const auto& each : cases)
        {
            int width = 10;
            int height = 0;
            box.GetStaticTextSize(each.text, width, height);
            EXPECT_EQ(height, each.lines * lineHeight) << each.text;
            EXPECT_GT(width, 15) << each.text;
            width = 900;
            box.GetStaticTextSize(each.text, width, height);
            EXPECT_EQ(width, 900);
        }
    }
}

// Modes -----------------------------------------------------------------------------------------

std::vector<CRect> Arrangement(Box& box)
{
    std::vector<CRect> places = ChildPlaces(box);
    const CRect client = ClientRectOf(box);
    // The client area is by up to two pixels larger than it has to be, as its halves round: what
    // hangs on its lower edge is told from there.
    for (size_t index = 2; index < places.size(); ++index)
    {
        places[index] -= CPoint(0, client.Height());
    }
    return places;
}

TEST_F(MessageBoxTest, AnOpenBoxFollowsTheModeAndIsThenAnsweredByPointerAndKey)
{
    for (const int lines : {3, 400})
    {
        const std::string text = Lines(lines);
        for (const APPMODE from : AllModes)
        {
            for (const APPMODE to : AllModes)
            {
                if (lines == 400 && (from == to || from % 2 != 0 || to % 2 != 0))
                {
                    continue; // long texts take their time
                }
                SCOPED_TRACE(std::string(APPMODE_NAMES[from]) + " " + APPMODE_NAMES[to]);
                std::vector<CRect> expected;
                bool bar = false;
                {
                    const ModeScope scope(to);
                    Box fresh(text.c_str(), MB_YESNOCANCEL);
                    ASSERT_TRUE(fresh.Create(CZepMsgBoxDlg::IDD, &Host()));
                    expected = Arrangement(fresh);
                    bar = ClientRectOf(*fresh.m_text).Width() < expected[1].Width();
                }
                const ModeScope scope(from);
                Box box(text.c_str(), MB_YESNOCANCEL);
                box.inLoop = [&] {
                    COnBoardUIGeneral::SetAppMode(to);
                    PumpAll();
                    EXPECT_EQ(Arrangement(box), expected);
                    EXPECT_EQ(ClientRectOf(*box.m_text).Width() < expected[1].Width(), bar);
                    EXPECT_EQ((box.Button(0).GetStyle() & BS_TYPEMASK) == BS_OWNERDRAW, to != STD);
                    if (from < to)
                    {
                        box.ClickOn(1);
                    }
                    else
                    {
                        TypeKey(VK_RIGHT);
                        TypeKey(VK_RETURN);
                    }
                    if (box.GetButtonPressed() == 0)
                    {
                        box.EndDialog(-2);
                    }
                };
                box.DoModal();
                EXPECT_EQ(box.GetButtonPressed(), IDNO);
            }
        }
    }
}

TEST_F(MessageBoxTest, OnBoardTheTextLooksLikeALabelAndAsksForNoKeyboard)
{
    struct Keyboard : IEFB
    {
        const char* GetProviderName() override { return "bag"; }
        void ShowVKB(bool, VKB_SHOW_POS, HWND) override { ++asked; }
        int asked = 0;
    } keyboard;
    const ModeScope scope(EFB);
    CCustomEdit::SetEfb(&keyboard);
    Box box("Ready", MB_OK);
    box.inLoop = [&] {
        PumpAll();
        const Pixels text = WindowPixels(*box.m_text);
        EXPECT_GT(text.Count(RGB(50, 50, 50)), text.Width() * text.Height() / 2);
        EXPECT_GT(text.Count(RGB(230, 230, 230)), 50);
        Click(WindowRectOf(*box.m_text).CenterPoint());
        box.EndDialog(1);
    };
    box.DoModal();
    CCustomEdit::SetEfb(nullptr);
    EXPECT_EQ(keyboard.asked, 0);
}

// What a host may do wrong ----------------------------------------------------------------------

TEST_F(MessageBoxTest, BadInputHasADefinedResult)
{
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        Box empty(nullptr, 0xFFFFFFF8U, CSize(0, 0)); // no such buttons, no such icon
        empty.inLoop = [&] {
            EXPECT_EQ(empty.Shown(), "");
            EXPECT_TRUE(empty.m_buttons.empty());
            ExpectOrdered(empty, CSize(0, 0), false);
            empty.EndDialog(9);
        };
        EXPECT_EQ(empty.DoModal(), 9);
        EXPECT_EQ(empty.GetButtonPressed(), 0);

        Box pictureless("Ready", MB_OK);
        pictureless.m_iconId = 31'999;
        pictureless.inLoop = [&] {
            EXPECT_EQ(pictureless.m_icon.GetBitmap(), nullptr);
            TypeKey(VK_RETURN);
        };
        EXPECT_EQ(pictureless.DoModal(), IDOK);

        Box templateless("Ready", MB_OK);
        templateless.m_lpszTemplateName = MAKEINTRESOURCE(31'999);
        EXPECT_EQ(templateless.DoModal(), -1);
        EXPECT_EQ(templateless.GetButtonPressed(), 0);

        // A template without the box's controls.
        const TemplateBytes bare({.style = WS_POPUP | WS_CAPTION, .title = u"Bare"});
        Box partless("Ready", MB_OKCANCEL);
        partless.m_lpszTemplateName = nullptr;
        partless.InitModalIndirect(bare, &Host());
        partless.inLoop = [&] {
            TypeKey(VK_NEXT);
            TypeKey('C', VK_CONTROL);
            COnBoardUIGeneral::SetAppMode(mode == STD ? EFBFS : STD);
            TypeKey('C');
        };
        EXPECT_EQ(partless.DoModal(), IDCANCEL);
        COnBoardUIGeneral::SetAppMode(mode);
    }
}

TEST_F(MessageBoxTest, ABoxCanBeShownAgainAndCanGoInsideItsLoop)
{
    Box box("Ready", MB_YESNO);
    for (const APPMODE mode : {STD, ONBOARD, STD, EFB})
    {
        const ModeScope scope(mode);
        box.inLoop = [&] { box.ClickOn(mode == STD ? 0 : 1); };
        EXPECT_EQ(box.DoModal(), IDOK);
        EXPECT_EQ(box.GetButtonPressed(), mode == STD ? IDYES : IDNO);
        EXPECT_EQ(box.m_buttons.size(), 2U);
        box.inLoop = [&] { box.DestroyWindow(); };
        box.DoModal();
        EXPECT_EQ(box.GetButtonPressed(), 0);
    }
    // Deleted with its window.
    auto* const modeless = new Box(Lines(400).c_str(), MB_OK);
    ASSERT_TRUE(modeless->Create(CZepMsgBoxDlg::IDD, &Host()));
    const HWND window = *modeless;
    delete modeless;
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(MessageBoxTest, BoxesLeaveNoGraphicsObjectsBehind)
{
    const auto show = [] {
        Box box("Ready", MB_YESNO);
        box.inLoop = [&] {
            COnBoardUIGeneral::SetAppMode(ONBOARD);
            box.SendMessage(WM_SYSCOLORCHANGE);
            COnBoardUIGeneral::SetAppMode(STD);
            box.EndDialog(1);
        };
        box.DoModal();
    };
    show();
    const int before = GraphicsObjects();
    for (int round = 0; round < 5; ++round)
    {
        show();
    }
    EXPECT_EQ(GraphicsObjects(), before);
}

} // namespace

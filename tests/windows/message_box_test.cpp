#include "support/Accessible.h"
#include "support/Acting.h"
#include "windows/message_box_for_tests.h"

namespace {

using Box = MessageBoxForTests;

class MessageBoxInMode : public InMode<MessageBoxTest>
{};

INSTANTIATE_TEST_SUITE_P(Modes, MessageBoxInMode, testing::ValuesIn(AllModes));

// Buttons and icons -----------------------------------------------------------------------------

TEST_P(MessageBoxInMode, EveryButtonOfEverySetAnswersToThePointer)
{
    const char* const captions[] = {"",      "OK",     "Cancel", "Abort",
                                    "Retry", "Ignore", "Yes",    "No"}; // by their ids
    const std::pair<unsigned int, std::vector<int>> sets[] = {
        {MB_OK, {IDOK}},
        {MB_OKCANCEL, {IDOK, IDCANCEL}},
        {MB_ABORTRETRYIGNORE, {IDABORT, IDRETRY, IDIGNORE}},
        {MB_YESNOCANCEL, {IDYES, IDNO, IDCANCEL}},
        {MB_YESNO, {IDYES, IDNO}},
        {MB_RETRYCANCEL, {IDRETRY, IDCANCEL}},
    };
    for (const auto& [style, ids] : sets)
    {
        Box box("Go on?", style); // shown again and again
        for (size_t index = 0; index < ids.size(); ++index)
        {
            const int id = ids[index];
            box.inLoop = [&] {
                EXPECT_EQ(box.GetButtonPressed(), 0);
                EXPECT_EQ(TextOf(box.Button(index)), captions[id]);
                box.ClickOn(index);
            };
            EXPECT_EQ(box.DoModal(), id == IDCANCEL ? IDCANCEL : IDOK);
            EXPECT_EQ(box.GetButtonPressed(), id);
        }
        EXPECT_EQ(box.m_buttons.size(), ids.size());
    }
}

TEST_F(MessageBoxTest, TheStyleNamesTheIcon)
{
    const std::pair<int, std::vector<unsigned int>> cases[] = {
        {10002,
         {MB_OK, MB_OKCANCEL, MB_OK | MB_USERICON, MB_OK | 0xFFFF0000U, MB_YESNO | MB_ICONWARNING}},
        {10004, {MB_ABORTRETRYIGNORE | MB_ICONASTERISK}},
        {10006,
         {MB_ABORTRETRYIGNORE, MB_YESNO, MB_YESNOCANCEL, MB_RETRYCANCEL, MB_OK | MB_ICONQUESTION,
          MB_YESNO | 0xF0, 0xF}},
        {10007, {MB_YESNO | MB_ICONHAND}},
    };
    for (const auto& [icon, styles] : cases)
    {
        for (const unsigned int style : styles)
        {
            EXPECT_EQ(Box("", style).m_iconId, icon) << style;
        }
    }
    // The picture lies on the ground of the mode, and it is one of its own for each meaning.
    std::vector<Pixels> pictures;
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        const COLORREF ground = mode == STD ? ::GetSysColor(COLOR_3DFACE) : RGB(50, 50, 50);
        for (const UINT icon : {MB_ICONHAND, MB_ICONQUESTION, MB_ICONEXCLAMATION, MB_ICONASTERISK})
        {
            Box box("Look", MB_OK | icon, nullptr);
            box.ShowWindow(SW_SHOW);
            const Pixels picture = Settled(box.m_icon);
            EXPECT_EQ(ClientRectOf(box.m_icon).Size(), CSize(48, 48));
            EXPECT_GT(picture.Count(ground), 48 * 48 / 8) << "what is not painted is ground";
            EXPECT_LT(picture.Count(ground), 48 * 48 * 3 / 4) << "something is painted";
            EXPECT_EQ(std::count(pictures.begin(), pictures.end(), picture), 0);
            pictures.push_back(picture);
        }
    }
    // One of the application's own may have another size. It is laid over the ground anew.
    Box box("Look", MB_OK);
    box.m_iconId = 10017; // of the test program
    ASSERT_TRUE(box.Create(Box::IDD, &Host()));
    box.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(ClientRectOf(box.m_icon).Size(), CSize(48, 48));
}

// Keys ------------------------------------------------------------------------------------------

TEST_F(MessageBoxTest, TheKeysOfAMessageBoxAnswerIt)
{
    const std::tuple<unsigned int, std::vector<UINT>, int> cases[] = {
        {MB_OK, {VK_RETURN}, IDOK},
        {MB_OK, {VK_ESCAPE}, IDOK},
        {MB_OK, {VK_CANCEL}, IDOK},
        {MB_OKCANCEL, {VK_TAB, VK_SPACE}, IDCANCEL},
        {MB_OKCANCEL | MB_DEFBUTTON2, {VK_RETURN}, IDCANCEL},
        {MB_OKCANCEL | MB_DEFBUTTON3, {VK_RETURN}, IDOK}, // there is no third
        {MB_ABORTRETRYIGNORE | MB_DEFBUTTON3, {VK_SPACE}, IDIGNORE},
        {MB_ABORTRETRYIGNORE | MB_DEFBUTTON4, {VK_RETURN}, IDABORT},
        {MB_ABORTRETRYIGNORE, {VK_RIGHT, VK_RETURN}, IDRETRY},
        {MB_ABORTRETRYIGNORE, {VK_LEFT, VK_RETURN}, IDIGNORE}, // round the end
        {MB_ABORTRETRYIGNORE, {VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}, IDABORT},
        {MB_ABORTRETRYIGNORE, {VK_UP, VK_SPACE}, IDIGNORE},
        {MB_ABORTRETRYIGNORE, {VK_ESCAPE, 'R'}, IDRETRY}, // nothing to cancel
        {MB_ABORTRETRYIGNORE, {'Y', 'N', 'O', 'A'}, IDABORT},
        {MB_YESNOCANCEL, {'C'}, IDCANCEL},
        {MB_YESNO, {VK_ESCAPE, VK_CANCEL, VK_TAB, VK_RETURN}, IDNO},
        // The text is the last stop, and there the default button answers.
        {MB_YESNO, {VK_TAB, VK_TAB, VK_RETURN}, IDYES},
        {MB_YESNO | MB_DEFBUTTON2, {VK_TAB, VK_RETURN}, IDNO},
        {MB_YESNO, {VK_RIGHT, VK_TAB, VK_RETURN}, IDNO}, // the arrows move it
        {MB_YESNO, {VK_TAB, VK_TAB, VK_TAB, VK_TAB, VK_RETURN}, IDNO},
        {7, {VK_ESCAPE}, IDCANCEL}, // without buttons there is still a way out
        {7, {VK_RETURN}, IDOK},
    };
    // The last two change the mode of the open box first.
    const std::pair<APPMODE, APPMODE> modes[] = {
        {STD, STD}, {ONBOARD, ONBOARD}, {EFB, EFB}, {STD, EFB}, {ONBOARD, STD}};
    for (const auto& [opened, mode] : modes)
    {
        for (const auto& [style, keys, answer] : cases)
        {
            SCOPED_TRACE(testing::Message() << APPMODE_NAMES[opened] << ' ' << APPMODE_NAMES[mode]
                                            << ", style " << style << ", last key " << keys.back());
            const ModeScope scope(opened);
            const int pressed = Answer("Go on?", style, [&, mode = mode, &keys = keys](Box& box) {
                COnBoardUIGeneral::SetAppMode(mode);
                PumpAll();
                for (const UINT key : keys)
                {
                    EXPECT_EQ(box.GetButtonPressed(), 0) << "before key " << key;
                    TypeKey(key);
                }
            });
            EXPECT_EQ(pressed, answer);
        }
    }
}

TEST_F(MessageBoxTest, TheArrowsPassButtonsThatCannotBePressed)
{
    const auto walk = [](Box& box) {
        box.Button(1).EnableWindow(FALSE);
        for (const auto& [key, focused] : {std::pair(VK_RIGHT, 2), {VK_RIGHT, 0}, {VK_UP, 2}})
        {
            TypeKey(UINT(key));
            EXPECT_EQ(::GetFocus(), box.Button(size_t(focused)).m_hWnd) << key;
        }
        box.Button(0).ShowWindow(SW_HIDE);
        TypeKey(VK_DOWN); // there is no other
        TypeKey(VK_RETURN);
    };
    EXPECT_EQ(Answer("Go on?", MB_YESNOCANCEL, walk), IDCANCEL);
}

TEST_F(MessageBoxTest, OtherWindowsKeepTheirKeys)
{
    const auto typeIntoOthers = [](Box& box) {
        CWnd popup;  // owned by the box
        CEdit added; // as a derived class has it
        ASSERT_TRUE(popup.CreateEx(0, "EDIT", "", WS_POPUP | WS_VISIBLE | ES_MULTILINE,
                                   CRect(10, 10, 200, 100), &box, 0));
        ASSERT_TRUE(added.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &box, 900));
        for (CWnd* const own : {&popup, static_cast<CWnd*>(&added)})
        {
            own->SetFocus();
            TypeText("yn");
            TypeKey(VK_ESCAPE);
            EXPECT_EQ(TextOf(*own), "yn");
        }
        box.Button(0).SetFocus();
        box.Button(0).PostMessage(WM_CHAR, 0x159); // no Y
        PumpAll();
    };
    EXPECT_EQ(Answer("Go on?", MB_YESNO, typeIntoOthers), 0);
}

TEST_F(MessageBoxTest, TheCloseBoxAnswersAsEscapeDoes)
{
    const std::pair<unsigned int, int> cases[] = {
        {MB_OK, IDOK}, {MB_RETRYCANCEL, IDCANCEL}, {MB_YESNO, 0}};
    for (const auto& [style, answer] : cases)
    {
        for (const bool byKey : {true, false})
        {
            const auto close = [&, answer = answer](Box& box) {
                const UINT state =
                    ::GetMenuState(::GetSystemMenu(box, FALSE), SC_CLOSE, MF_BYCOMMAND);
                EXPECT_EQ((state & MF_GRAYED) != 0, answer == 0);
                byKey ? TypeKey(VK_F4, VK_MENU) : void(box.SendMessage(WM_CLOSE));
            };
            EXPECT_EQ(Answer("Close?", style, close), answer) << style << byKey;
        }
    }
}

TEST_P(MessageBoxInMode, ALongTextIsScrolledAndCopiedByKeys)
{
    const std::string text = Lines(400);
    const auto scrollAndCopy = [&](Box& box) {
        MoveTo(WindowRectOf(box.Button(0)).CenterPoint());
        Wheel(-WHEEL_DELTA);
        EXPECT_EQ(box.FirstLine(), 3);
        const auto key = [&](UINT pressed) {
            TypeKey(pressed);
            return box.FirstLine();
        };
        EXPECT_EQ(key(VK_HOME), 0);
        for (const auto& [turned, line] :
             {std::pair(-10, 0), {-10, 0}, {-20, 1}, {-30, 1}, {10, 1}, {20, 1}, {10, 0}})
        {
            Wheel(turned); // of a touchpad
            EXPECT_EQ(box.FirstLine(), line) << turned;
        }
        const int page = key(VK_NEXT); // from a button, too
        EXPECT_GT(page, 5);
        key(VK_TAB);
        key(VK_TAB);
        EXPECT_EQ(::GetFocus(), box.m_text->GetSafeHwnd());
        EXPECT_EQ(key(VK_DOWN), page + 1);
        EXPECT_EQ(key(VK_UP), page);
        EXPECT_EQ(key(VK_PRIOR), 0);
        EXPECT_GT(key(VK_END), 350);
        key(VK_DELETE);
        key(VK_BACK);
        EXPECT_EQ(box.Shown(), text);
        TypeKey('C', VK_CONTROL);
    };
    EXPECT_EQ(Answer(text, MB_YESNO, scrollAndCopy), 0);
    ASSERT_TRUE(::OpenClipboard(Host()));
    const HANDLE copied = ::GetClipboardData(CF_TEXT);
    EXPECT_STREQ(static_cast<const char*>(::GlobalLock(copied)), text.c_str());
    ::GlobalUnlock(copied);
    ::EmptyClipboard();
    ::CloseClipboard();
}

TEST_F(MessageBoxTest, OnBoardTheTextLooksLikeALabelAndAsksForNoKeyboard)
{
    Journal journal;
    FlightBag bag(journal);
    const ModeScope scope(EFB);
    CCustomEdit::SetEfb(&bag);
    Answer("Ready", MB_OK, [](Box& box) {
        const Pixels text = Settled(*box.m_text);
        EXPECT_GT(text.Count(RGB(50, 50, 50)), text.Width() * text.Height() / 2);
        EXPECT_GT(text.Count(RGB(230, 230, 230)), 50);
        const Read read(*Reached(*box.m_text), CHILDID_SELF);
        EXPECT_EQ(read.name + ": " + read.value, "Flight: Ready");
        Click(WindowRectOf(*box.m_text).CenterPoint());
    });
    CCustomEdit::SetEfb(nullptr);
    EXPECT_EQ(journal, Journal());
}

// What a host may do wrong ----------------------------------------------------------------------

TEST_P(MessageBoxInMode, BadInputHasADefinedResult)
{
    Box empty(nullptr, 0xFFFFFFF8U, CSize(0, 0)); // no such buttons
    empty.m_iconId = 31'999;                      // no such picture
    empty.inLoop = [&] {
        EXPECT_EQ(empty.Shown(), "");
        empty.SendMessage(WM_CTLCOLORSTATIC, 0, LPARAM(empty.m_text->m_hWnd)); // no context
        EXPECT_TRUE(empty.m_buttons.empty());
        empty.EndDialog(9);
    };
    EXPECT_EQ(empty.DoModal(), 9);
    EXPECT_EQ(empty.GetButtonPressed(), 0);
    EXPECT_FALSE(empty.PreTranslateMessage(nullptr));

    // A template without the box's controls.
    const DialogTemplate bare({.style = WS_POPUP | WS_CAPTION, .title = "Bare"});
    Box partless("Ready", MB_OKCANCEL);
    partless.m_lpszTemplateName = nullptr;
    partless.InitModalIndirect(bare, &Host());
    partless.inLoop = [&] {
        TypeKey(VK_NEXT);
        TypeKey('C', VK_CONTROL);
        COnBoardUIGeneral::SetAppMode(GetParam() == STD ? EFBFS : STD);
        TypeKey('C');
    };
    EXPECT_EQ(partless.DoModal(), IDCANCEL);
    COnBoardUIGeneral::SetAppMode(GetParam());
    EXPECT_EQ(partless.GetButtonPressed(), IDCANCEL);
    partless.m_lpszTemplateName = "NoSuchTemplate";
    EXPECT_EQ(partless.DoModal(), -1);
    EXPECT_EQ(partless.GetButtonPressed(), 0) << "of the box that could not be made";
}

TEST_F(MessageBoxTest, ABoxMayGoInAMessageOfOneOfItsButtons)
{
    auto* box = new Fenced<Box>(Lines(3), MB_YESNOCANCEL, &Host());
    auto button = std::make_unique<Fenced<Acting<CCustomPushbutton>>>();
    button->Attach(box->Button(0).Detach());
    button->ActIn(BM_SETSTYLE, [&] { delete std::exchange(box, nullptr); });
    box->m_buttons[0] = std::move(button);
    const ModeScope scope(ONBOARD);
    EXPECT_EQ(box, nullptr);
}

} // namespace

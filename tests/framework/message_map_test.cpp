#include "catalog/DialogTemplate.h"
#include "support/Acting.h"
#include "support/WindowTest.h"

#include <afxext.h>

#include <new>
#include <stdexcept>

namespace {

using Journal = std::vector<std::string>;

const UINT Registered = ::RegisterWindowMessage("message map test");

// A window whose base class has a map too.
class BasePanel : public CWnd
{
public:
    Journal journal;

protected:
    void Note(const std::string& text) { journal.push_back(text); }
    void OnTen() { Note("base 10"); }
    void OnEleven() { Note("base 11"); }
    void OnRange(UINT id) { Note("range " + std::to_string(id)); }
    void OnClicked() { Note("clicked"); }
    void OnAnyChange(UINT id) { Note("change " + std::to_string(id)); }
    void OnItem(NMHDR* header, LRESULT* result)
    {
        Note("notify " + std::to_string(int(header->code)));
        *result = 0;
    }
    BOOL OnItemEx(UINT id, NMHDR*, LRESULT* result)
    {
        Note("notify ex " + std::to_string(id));
        *result = 77;
        return TRUE;
    }
    LRESULT OnRegistered(WPARAM wParam, LPARAM lParam)
    {
        Note("registered");
        return LRESULT(wParam) * 100 + lParam;
    }
    LRESULT OnTextLength(WPARAM, LPARAM) { return 0; }
    LRESULT OnNcHitTest(CPoint point) { return point == CPoint(-5, 7) ? 0 : HTCLIENT; }
    void OnUpdateTen(CCmdUI* ui) { ui->Enable(FALSE); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BasePanel, CWnd)
    ON_COMMAND(10, &BasePanel::OnTen)
    ON_COMMAND(11, &BasePanel::OnEleven)
    ON_COMMAND(12, &BasePanel::OnTen)
    ON_NOTIFY(NM_RCLICK, 30, &BasePanel::OnItem)
    ON_CONTROL_REFLECT(EN_CHANGE, &BasePanel::OnTen)
    ON_COMMAND_RANGE(20, 22, &BasePanel::OnRange)
    ON_COMMAND(0x8000, &BasePanel::OnTen)
    ON_UPDATE_COMMAND_UI(10, &BasePanel::OnUpdateTen)
    ON_BN_CLICKED(30, &BasePanel::OnClicked)
    ON_CONTROL_RANGE(EN_CHANGE, 40, 42, &BasePanel::OnAnyChange)
    ON_NOTIFY(NM_CLICK, 30, &BasePanel::OnItem)
    ON_NOTIFY_EX(NM_DBLCLK, 30, &BasePanel::OnItemEx)
    ON_REGISTERED_MESSAGE(Registered, &BasePanel::OnRegistered)
    ON_MESSAGE(WM_GETTEXTLENGTH, &BasePanel::OnTextLength)
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

class Panel : public BasePanel
{
public:
    BOOL takeEleven = TRUE;

protected:
    void OnTen() { Note("10"); }
    BOOL OnElevenEx(UINT)
    {
        Note("11");
        return takeEleven;
    }
    // Everything that the base has an entry for, too, ends the panel and declines.
    BOOL End()
    {
        delete this;
        return FALSE;
    }
    BOOL OnTwelve(UINT) { return End(); }
    BOOL OnItemEnds(UINT, NMHDR*, LRESULT*) { return End(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Panel, BasePanel)
    ON_COMMAND(10, &Panel::OnTen)
    ON_COMMAND_EX(11, &Panel::OnElevenEx)
    ON_COMMAND_EX(12, &Panel::OnTwelve)
    ON_NOTIFY_EX(NM_RCLICK, 30, &Panel::OnItemEnds)
    ON_CONTROL_REFLECT_EX(EN_CHANGE, &Panel::End)
END_MESSAGE_MAP()

// Writes down with what its handlers are called.
class Listener : public CWnd
{
public:
    Journal journal;

protected:
    template <class... Values> void Note(const char* what, Values... values)
    {
        std::string text = what;
        ((text += " " + std::to_string(values)), ...);
        journal.push_back(text);
    }
    void OnSysCommand(UINT id, LPARAM lParam) { Note("system", id, lParam); }
    BOOL OnCopyData(CWnd* from, COPYDATASTRUCT* data)
    {
        Note("data", from == this, data->dwData);
        return TRUE;
    }
    void OnMouseHWheel(UINT keys, short delta, CPoint point)
    {
        Note("wheel", keys, delta, point.x, point.y);
    }
    void HScroll(UINT code, UINT position) { Note("scroll", code, position); }
    LRESULT OnMenuChar(UINT letter, UINT flags, CMenu* menu)
    {
        Note("letter", letter, flags, menu == nullptr);
        return MAKELRESULT(3, MNC_EXECUTE);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Listener, CWnd)
    ON_WM_SYSCOMMAND()
    ON_WM_COPYDATA()
    ON_WM_MOUSEHWHEEL()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_MENUCHAR()
END_MESSAGE_MAP()

class MessageMap : public WindowTest
{
protected:
    Panel& AddPanel() { return Add<Panel>(CRect(0, 0, 200, 100)); }

    static Journal Command(Panel& panel, UINT id, UINT code, HWND control)
    {
        panel.journal.clear();
        panel.SendMessage(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(control));
        return panel.journal;
    }

    static LRESULT Notify(const CWnd& parent, const CWnd& from, UINT code)
    {
        NMHDR header = {from, UINT_PTR(from.GetDlgCtrlID()), code};
        return parent.SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    }
};

TEST_F(MessageMap, CommandsFindTheHandlerOfTheirIdAndCode)
{
    Panel& panel = AddPanel();
    CWnd button;
    ASSERT_TRUE(button.Create("BUTTON", "", WS_CHILD, CRect(0, 0, 9, 9), &panel, 30));
    // The id, the code, whether it is of a control, and what is done.
    const std::tuple<UINT, UINT, bool, Journal> cases[] = {
        {10, 0, false, {"10"}}, // the derived map first, and only it
        {10, 1, false, {"10"}}, // the same from an accelerator
        {20, 0, false, {"range 20"}},
        {22, 0, false, {"range 22"}},
        {23, 0, false, {}},
        {30, BN_CLICKED, true, {"clicked"}},
        {30, BN_DOUBLECLICKED, true, {}},
        {40, EN_CHANGE, true, {"change 40"}},
        {42, EN_UPDATE, true, {}},
        {10, EN_CHANGE, true, {}}, // a control of a command's number
    };
    for (const auto& [id, code, fromControl, done] : cases)
    {
        EXPECT_EQ(Command(panel, id, code, fromControl ? button.m_hWnd : nullptr), done)
            << id << ", " << code;
    }
    panel.takeEleven = FALSE;
    EXPECT_EQ(Command(panel, 11, 0, nullptr), (Journal{"11", "base 11"}))
        << "declined, so it goes on";
}

TEST_F(MessageMap, ADialogAsksItsOwnerWhoMayEndAndDecline)
{
    auto* const owner = new Fenced<Panel>;
    owner->CreateEx(0, nullptr, "", WS_POPUP, CRect(0, 0, 50, 50), nullptr, 0);
    CDialog dialog;
    const DialogTemplate form(CRect(0, 0, 80, 40));
    ASSERT_TRUE(dialog.CreateIndirect(form, owner));
    dialog.SendMessage(WM_COMMAND, 20);
    EXPECT_EQ(owner->journal, Journal()) << "the number of a control of its own";
    dialog.SendMessage(WM_COMMAND, 0x8000);
    EXPECT_EQ(owner->journal, Journal{"base 10"});
    ::SendMessage(*owner, WM_COMMAND, 12, 0);
    EXPECT_EQ(dialog.GetSafeHwnd(), nullptr) << "its owner took it along";
}

TEST_F(MessageMap, NobodyIsAskedOnceAHandlerHasEndedTheWindow)
{
    CWnd item;
    ASSERT_TRUE(item.Create("STATIC", "", WS_CHILD, CRect(0, 0, 9, 9), &Host(), 30));
    const Act<CWnd&> acts[] = {
        {"a command", [](CWnd& panel) { panel.SendMessage(WM_COMMAND, 12); }},
        {"a notification", [&](CWnd& panel) { Notify(panel, item, UINT(NM_RCLICK)); }},
        {"a reflected command",
         [&](CWnd& panel) {
             Host().SendMessage(WM_COMMAND, MAKEWPARAM(31, EN_CHANGE), LPARAM(panel.m_hWnd));
         }},
    };
    for (const auto& [name, act] : acts)
    {
        auto* const panel = new Fenced<Panel>;
        panel->Create(nullptr, "", WS_CHILD, CRect(0, 0, 50, 50), &Host(), 31);
        const HWND window = *panel;
        act(*panel);
        EXPECT_FALSE(::IsWindow(window)) << name;
    }
}

TEST_F(MessageMap, AskingWhoHandlesACommandDoesNotRunIt)
{
    Panel& panel = AddPanel();
    auto& button = Add<CButton>(CRect(0, 0, 9, 9));
    CCmdUI ui;
    ui.m_pOther = &button;
    // 10 decides itself, nobody handles 13, and 11 has a handler that nobody questions.
    for (const auto& [id, enabled] : {std::pair(10U, FALSE), {13U, FALSE}, {11U, TRUE}})
    {
        button.EnableWindow(!enabled);
        ui.m_nID = id;
        ui.DoUpdate(&panel, TRUE);
        EXPECT_EQ(button.IsWindowEnabled(), enabled) << id;
    }
    EXPECT_EQ(panel.journal, Journal());

    CDialog dialog;
    DialogTemplate form(CRect(0, 0, 80, 40));
    for (const WORD id : {WORD(10), WORD(11), WORD(13), WORD(IDOK), WORD(0xFFFF)})
    {
        form.Add("Button", "", BS_PUSHBUTTON, CRect(0, 0, 9, 9), id);
    }
    form.Add("Edit", "", 0, CRect(0, 0, 9, 9), 14);
    ASSERT_TRUE(dialog.CreateIndirect(form, &Host()));
    dialog.UpdateDialogControls(&panel, TRUE);
    std::vector<int> pressable;
    for (HWND child = ::GetTopWindow(dialog); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if (::IsWindowEnabled(child))
        {
            pressable.push_back(::GetDlgCtrlID(child) & 0xFFFF);
        }
    }
    EXPECT_EQ(pressable, (std::vector<int>{11, IDOK, 0xFFFF, 14})) << "OK is the dialog's own";
}

// Exceptions ------------------------------------------------------------------------------------

struct Thrower : Acting<CWnd>
{
    bool throws = false; // before any message is dispatched
    BOOL PreTranslateMessage(MSG*) override
    {
        return throws ? (AfxThrowUserException(), TRUE) : FALSE;
    }
};

int liveExceptions = 0;

class Counted : public CException
{
public:
    Counted() { ++liveExceptions; }
    ~Counted() override { --liveExceptions; }
};

TEST_F(MessageMap, AnExceptionOutOfAHandlerGoesNoFurtherThanItsWindow)
{
    constexpr UINT AnswerBox = WM_APP + 4;
    std::string said;
    Host().AlsoRecord({AnswerBox});
    Host().hook = [&](ToldMessage& told) {
        const HWND box = ::GetLastActivePopup(Host());
        if (told.message == AnswerBox && box != Host().m_hWnd)
        {
            char text[200] = {};
            ::GetDlgItemText(box, 0xFFFF, text, sizeof(text));
            said = text;
            ::SendMessage(box, WM_COMMAND, IDOK, 0);
        }
    };
    auto& thrower = Add<Thrower>(CRect(0, 0, 50, 50));
    // The message, what is thrown, the result, and what the user is told.
    const std::tuple<UINT, std::function<void()>, LRESULT, const char*> cases[] = {
        {WM_APP, [] { throw new Counted; }, 0, "Internal application error."},
        {WM_COMMAND, &AfxThrowNotSupportedException, TRUE,
         "Command failed.\n\nThis is not supported."},
        {WM_APP, [] { throw std::bad_alloc(); }, 0,
         "Internal application error.\n\nOut of memory."},
        {WM_APP, [] { throw std::out_of_range("No such leg."); }, 0,
         "Internal application error.\n\nNo such leg."},
        {WM_APP, &AfxThrowUserException, 0, ""}, // he knows
        {WM_PAINT, &AfxThrowUserException, 0, ""},
    };
    Host().SetForegroundWindow();
    for (const auto& [message, act, result, text] : cases)
    {
        said.clear();
        thrower.ActIn(message, act);
        thrower.Invalidate();
        Host().PostMessage(AnswerBox);
        EXPECT_EQ(thrower.SendMessage(message, 12), result) << message;
        EXPECT_EQ(thrower.GetUpdateRect(nullptr), message != WM_PAINT);
        PumpAll();
        EXPECT_EQ(said, text);
    }
    EXPECT_EQ(liveExceptions, 0);

    Thrower unborn;
    unborn.ActIn(WM_CREATE, &AfxThrowUserException);
    EXPECT_FALSE(unborn.Create(nullptr, "", WS_CHILD, CRect(0, 0, 9, 9), &Host(), 1));
    EXPECT_EQ(unborn.GetSafeHwnd(), nullptr);
    thrower.throws = true;
    thrower.PostMessage(WM_APP);
    EXPECT_TRUE(AfxPumpMessage()) << "nor does one on the way to the handlers";
    thrower.throws = false;
    // Whose message it is afterwards.
    bool back = false;
    Host().hook = [&](ToldMessage&) {
        thrower.ActIn(WM_APP, &AfxThrowUserException);
        thrower.SendMessage(WM_APP);
        back = CWnd::GetCurrentMessage()->hwnd == Host().m_hWnd;
    };
    Host().SendMessage(WM_COMMAND, 1);
    EXPECT_TRUE(back);
}

TEST_F(MessageMap, HandlersGetTheWordsOfTheirMessageAndGiveTheResultEvenWhenItIsZero)
{
    Panel& panel = AddPanel();
    CWnd item;
    ASSERT_TRUE(item.Create("STATIC", "", WS_CHILD, CRect(0, 0, 9, 9), &panel, 30));
    EXPECT_EQ(Notify(panel, item, UINT(NM_CLICK)), 0);
    EXPECT_EQ(Notify(panel, item, UINT(NM_DBLCLK)), 77);
    EXPECT_EQ(panel.SendMessage(Registered, 3, 4), 304);
    EXPECT_EQ(panel.journal, (Journal{"notify -2", "notify ex 30", "registered"}));

    panel.SetWindowText("text");
    EXPECT_EQ(panel.SendMessage(WM_GETTEXTLENGTH), 0) << "handled: the default is not asked";
    EXPECT_EQ(panel.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(-5, 7)), HTNOWHERE);

    auto& listener = Add<Listener>(CRect(0, 0, 50, 50));
    COPYDATASTRUCT data = {7, 0, nullptr};
    listener.SendMessage(WM_SYSCOMMAND, SC_CLOSE, 12);
    EXPECT_TRUE(listener.SendMessage(WM_COPYDATA, WPARAM(listener.m_hWnd), LPARAM(&data)));
    listener.SendMessage(WM_MOUSEHWHEEL, MAKEWPARAM(MK_CONTROL, -120), MAKELPARAM(-5, 6));
    Host().SendMessage(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 40000), LPARAM(listener.m_hWnd));
    EXPECT_EQ(listener.SendMessage(WM_MENUCHAR, MAKEWPARAM('x', MF_POPUP)),
              MAKELRESULT(3, MNC_EXECUTE));
    EXPECT_EQ(listener.journal, (Journal{"system 61536 12", "data 1 7", "wheel 8 -120 -5 6",
                                         "scroll 5 40000", "letter 120 16 1"}));
}

} // namespace

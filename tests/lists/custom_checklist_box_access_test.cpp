// The check list as an assistive program sees it: through the platform's accessibility interface.

#include "lists/check_list_for_tests.h"

#include <oleacc.h>

#include <gmock/gmock.h>

#include <thread>

using testing::ElementsAre;

namespace {

// Holds a reference.
template <class Interface> class Held
{
public:
    explicit Held(Interface* object = nullptr)
        : m_object(object)
    {}
    Held(Held&& other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {}
    ~Held()
    {
        if (m_object != nullptr)
        {
            m_object->Release();
        }
    }
    Interface* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

private:
    Interface* m_object;
};

Held<IAccessible> Reached(HWND window)
{
    IAccessible* reached = nullptr;
    const HRESULT result = ::AccessibleObjectFromWindow(
        window, DWORD(OBJID_CLIENT), IID_IAccessible, reinterpret_cast<void**>(&reached));
    EXPECT_EQ(result, S_OK);
    return Held(reached);
}

VARIANT Child(long id)
{
    VARIANT child = {};
    child.vt = VT_I4;
    child.lVal = id;
    return child;
}

} // namespace

class CheckListAccess : public CheckListTest
{
protected:
    void SetUp() override
    {
        CheckListTest::SetUp();
        ::CoInitialize(nullptr);
    }
    void TearDown() override
    {
        CheckListTest::TearDown();
        ::CoUninitialize();
    }

    // Answers as numbers; -1 where there is none.
    static long Role(const Held<IAccessible>& object, long child)
    {
        VARIANT answer = {};
        const HRESULT result = object->get_accRole(Child(child), &answer);
        return result == S_OK && answer.vt == VT_I4 ? answer.lVal : -1;
    }
    static long State(const Held<IAccessible>& object, long child)
    {
        VARIANT answer = {};
        const HRESULT result = object->get_accState(Child(child), &answer);
        return result == S_OK && answer.vt == VT_I4 ? answer.lVal : -1;
    }
    // Answers as texts; "(none)" where there is none, "(error)" where there cannot be one.
    static std::string Name(const Held<IAccessible>& object, long child)
    {
        BSTR answer = nullptr;
        const HRESULT result = object->get_accName(Child(child), &answer);
        return Text(result, answer);
    }
    static std::string Action(const Held<IAccessible>& object, long child)
    {
        BSTR answer = nullptr;
        const HRESULT result = object->get_accDefaultAction(Child(child), &answer);
        return Text(result, answer);
    }

private:
    static std::string Text(HRESULT result, BSTR answer)
    {
        std::string text = FAILED(result) ? "(error)" : "(none)";
        if (result == S_OK && answer != nullptr)
        {
            const std::wstring wide(answer);
            text.assign(wide.begin(), wide.end());
        }
        ::SysFreeString(answer);
        return text;
    }
};

TEST_F(CheckListAccess, EachRowIsACheckButtonWithItsState)
{
    auto& list = AddList(40, BS_AUTO3STATE);
    const Held<IAccessible> object = Reached(list);
    ASSERT_TRUE(bool(object));
    long count = 0;
    EXPECT_EQ(object->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 40);
    EXPECT_EQ(Role(object, CHILDID_SELF), ROLE_SYSTEM_LIST);
    EXPECT_EQ(Role(object, 1), ROLE_SYSTEM_CHECKBUTTON);
    EXPECT_EQ(Name(object, 3), "Row 2");

    list.SetCheck(1, 1);
    list.SetCheck(2, 2);
    list.Enable(3, FALSE);
    list.SetFocus();
    list.SetCurSel(1);
    constexpr long looked = STATE_SYSTEM_CHECKED | STATE_SYSTEM_MIXED | STATE_SYSTEM_UNAVAILABLE |
                            STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED | STATE_SYSTEM_OFFSCREEN;
    const auto state = [&](long child) { return State(object, child) & looked; };
    EXPECT_EQ(state(1), 0);
    EXPECT_EQ(state(2), STATE_SYSTEM_CHECKED | STATE_SYSTEM_SELECTED | STATE_SYSTEM_FOCUSED);
    EXPECT_EQ(state(3), STATE_SYSTEM_MIXED);
    EXPECT_EQ(state(4), STATE_SYSTEM_UNAVAILABLE);
    EXPECT_EQ(state(40), STATE_SYSTEM_OFFSCREEN);
    list.EnableWindow(FALSE);
    EXPECT_NE(state(1) & STATE_SYSTEM_UNAVAILABLE, 0);
    for (const long child : {-1L, 41L, LONG_MAX, LONG_MIN})
    {
        EXPECT_EQ(Role(object, child), -1) << child;
        EXPECT_EQ(State(object, child), -1) << child;
        EXPECT_EQ(Name(object, child), "(error)") << child;
        EXPECT_EQ(object->accDoDefaultAction(Child(child)), E_INVALIDARG) << child;
    }
}

TEST_F(CheckListAccess, TheDefaultActionChangesTheCheck)
{
    auto& list = AddList(3, BS_AUTO3STATE);
    const Held<IAccessible> object = Reached(list);
    ASSERT_TRUE(bool(object));
    std::vector<std::string> actions;
    std::vector<int> checks;
    for (int turn = 0; turn < 3; ++turn)
    {
        actions.push_back(Action(object, 2));
        EXPECT_EQ(object->accDoDefaultAction(Child(2)), S_OK);
        checks.push_back(list.GetCheck(1));
    }
    EXPECT_THAT(actions, ElementsAre("Check", "Toggle", "Uncheck"));
    EXPECT_THAT(checks, ElementsAre(1, 2, 0));
    EXPECT_EQ(Told(list), 3);
    list.SetCheckStyle(BS_AUTOCHECKBOX);
    list.SetCheck(1, 1);
    EXPECT_EQ(Action(object, 2), "Uncheck");
    // Where the user can change nothing, nor can an assistive program.
    list.Enable(0, FALSE);
    EXPECT_EQ(Action(object, 1), "(none)");
    EXPECT_EQ(object->accDoDefaultAction(Child(1)), DISP_E_MEMBERNOTFOUND);
    list.SetCheckStyle(BS_CHECKBOX);
    EXPECT_EQ(Action(object, 2), "(none)");
    EXPECT_EQ(object->accDoDefaultAction(Child(2)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(list.GetCheck(1), 1);
    EXPECT_EQ(Told(list), 3);
}

TEST_F(CheckListAccess, PlacesAndNeighbours)
{
    auto& list = AddList(8);
    const Held<IAccessible> object = Reached(list);
    ASSERT_TRUE(bool(object));
    long left = 0;
    long top = 0;
    long width = 0;
    long height = 0;
    ASSERT_EQ(object->accLocation(&left, &top, &width, &height, Child(3)), S_OK);
    CRect row = list.RowRect(2);
    list.ClientToScreen(&row);
    EXPECT_EQ(CRect(CPoint(left, top), CSize(width, height)), row);
    VARIANT answer = {};
    EXPECT_EQ(object->accHitTest(left + 1, top + 1, &answer), S_OK);
    EXPECT_EQ(answer.lVal, 3);
    EXPECT_EQ(object->accHitTest(left - 400, top, &answer), S_FALSE);
    EXPECT_EQ(object->accNavigate(NAVDIR_NEXT, Child(3), &answer), S_OK);
    EXPECT_EQ(answer.lVal, 4);
    EXPECT_EQ(object->accNavigate(NAVDIR_LASTCHILD, Child(CHILDID_SELF), &answer), S_OK);
    EXPECT_EQ(answer.lVal, 8);
    EXPECT_EQ(object->accNavigate(NAVDIR_NEXT, Child(8), &answer), S_FALSE);
}

TEST_F(CheckListAccess, FocusAndSelectionAreToldAndTaken)
{
    auto& list = AddList(8, BS_AUTOCHECKBOX, CheckListStyle | LBS_EXTENDEDSEL);
    const Held<IAccessible> object = Reached(list);
    ASSERT_TRUE(bool(object));
    VARIANT answer = {};
    EXPECT_EQ(object->get_accFocus(&answer), S_FALSE);
    EXPECT_EQ(object->get_accSelection(&answer), S_FALSE);
    EXPECT_EQ(object->accSelect(SELFLAG_TAKEFOCUS | SELFLAG_TAKESELECTION, Child(5)), S_OK);
    EXPECT_EQ(object->get_accFocus(&answer), S_OK);
    EXPECT_EQ(answer.lVal, 5);
    EXPECT_EQ(object->get_accSelection(&answer), S_OK);
    EXPECT_EQ(answer.lVal, 5);
    EXPECT_EQ(object->accSelect(SELFLAG_ADDSELECTION, Child(7)), S_OK);
    ASSERT_EQ(object->get_accSelection(&answer), S_OK);
    ASSERT_EQ(answer.vt, VT_UNKNOWN);
    IEnumVARIANT* found = nullptr;
    ASSERT_EQ(answer.punkVal->QueryInterface(IID_IEnumVARIANT, reinterpret_cast<void**>(&found)),
              S_OK);
    const Held<IEnumVARIANT> rows(found);
    answer.punkVal->Release();
    VARIANT ids[3] = {};
    ULONG given = 0;
    EXPECT_EQ(rows->Next(3, ids, &given), S_FALSE);
    ASSERT_EQ(given, 2U);
    EXPECT_EQ(ids[0].lVal, 5);
    EXPECT_EQ(ids[1].lVal, 7);
    // The parent is told what came of it, and what cannot be done is said.
    EXPECT_THAT(Codes(list), ElementsAre(LBN_SETFOCUS, LBN_SELCHANGE, LBN_SELCHANGE));
    for (const long flags : {long(SELFLAG_EXTENDSELECTION), 0x20L, -1L,
                             long(SELFLAG_ADDSELECTION | SELFLAG_REMOVESELECTION)})
    {
        EXPECT_EQ(object->accSelect(flags, Child(2)), E_INVALIDARG) << flags;
    }
    EXPECT_EQ(list.GetSelCount(), 2);
    EXPECT_EQ(Codes(list).size(), 3U);
    EXPECT_EQ(Reached(AddList(3))->accSelect(SELFLAG_ADDSELECTION, Child(2)), E_INVALIDARG);
}

TEST_F(CheckListAccess, ChangesOfStateAreAnnounced)
{
    static std::vector<LONG> announced; // the child of each event
    const WINEVENTPROC note = [](HWINEVENTHOOK, DWORD, HWND, LONG object, LONG child, DWORD,
                                 DWORD) {
        if (object == OBJID_CLIENT)
        {
            announced.push_back(child);
        }
    };
    auto& list = AddList(4);
    const HWINEVENTHOOK hook = ::SetWinEventHook(
        EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_STATECHANGE, ::GetModuleHandle(nullptr), note,
        ::GetCurrentProcessId(), ::GetCurrentThreadId(), WINEVENT_INCONTEXT);
    ASSERT_NE(hook, nullptr);
    list.SetCheck(2, 1);
    list.SetCheck(1, 2); // refused, and announced all the same
    list.SetCheck(9, 1);
    list.SetCheck(9, 2); // refused before the row is looked for
    Click(list.CheckPoint(0));
    list.Enable(3, FALSE);
    list.Enable(3, FALSE);
    ::UnhookWinEvent(hook);
    EXPECT_THAT(announced, ElementsAre(3, 2, 10, 1, 4));
    EXPECT_EQ(list.GetCheck(1), 0);
}

TEST_F(CheckListAccess, TheObjectOutlivesItsList)
{
    auto& list = AddList(3);
    const Held<IAccessible> object = Reached(list);
    ASSERT_TRUE(bool(object));
    Host().hook = [&](ToldMessage& told) {
        if (told.code == CLBN_CHKCHANGE)
        {
            list.DestroyWindow();
        }
    };
    EXPECT_EQ(object->accDoDefaultAction(Child(1)), S_OK);
    EXPECT_EQ(list.GetSafeHwnd(), nullptr);
    long count = 0;
    EXPECT_EQ(object->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(object->accDoDefaultAction(Child(1)), CO_E_OBJNOTCONNECTED);
    Host().hook = nullptr;
}

// As from another program: asked on another thread, answered where the list lives.
TEST_F(CheckListAccess, AnotherThreadReadsAndWorksTheChecks)
{
    auto& list = AddList(3);
    list.SetCheck(1, 1);
    const HWND window = list;
    std::vector<long> seen;
    std::atomic<bool> done = false;
    std::thread reader([&] {
        ::CoInitialize(nullptr);
        {
            const Held<IAccessible> object = Reached(window);
            if (object)
            {
                seen.push_back(Role(object, 1));
                seen.push_back(State(object, 2) & STATE_SYSTEM_CHECKED);
                seen.push_back(object->accDoDefaultAction(Child(3)));
            }
        }
        ::CoUninitialize();
        done = true;
    });
    EXPECT_TRUE(PumpUntil([&] { return done.load(); }, 5000));
    reader.join();
    EXPECT_THAT(seen, ElementsAre(ROLE_SYSTEM_CHECKBUTTON, STATE_SYSTEM_CHECKED, S_OK));
    EXPECT_EQ(list.GetCheck(2), 1);
    EXPECT_EQ(Told(list), 1);
}

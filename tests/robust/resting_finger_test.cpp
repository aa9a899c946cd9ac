// What a finger does that rests on a control: the system asks before, and presses at once or not.
// And one that has been lifted, or sent back, before its press has begun.

#include "robust/Subjects.h"
#include "support/WindowTest.h"

#include <set>
#include <tpcshrd.h>

TEST_F(WindowTest, AFingerThatRestsPressesAtOnceOnBoard)
{
    // Everywhere, or on its bars alone. Of a sheet it is the tabs.
    const std::map<std::string, bool> table = {
        {"push button", true},     {"check box", true},      {"combo", true},
        {"list of a combo", true}, {"header", true},         {"edit of many lines", true},
        {"tool bar", true},        {"property sheet", true}, {"list box", false},
        {"check list", false},     {"report list", false},   {"tree", false},
        {"tree view", false},
    };
    size_t seen = 0;
    for (const Subject& subject : Subjects())
    {
        const auto row = table.find(subject.name);
        if (row == table.end())
        {
            continue;
        }
        SCOPED_TRACE(subject.name);
        ++seen;
        for (const APPMODE mode : {STD, ONBOARD})
        {
            const ModeScope scope(mode);
            const std::unique_ptr<CWnd> window = subject.make(Host());
            PumpAll();
            const HWND tabs = ::FindWindowEx(*window, nullptr, WC_TABCONTROL, nullptr);
            const HWND asked = tabs != nullptr ? tabs : window->GetSafeHwnd();
            const CRect place = WindowRectOf(asked);
            int meant = 0; // points of the kind that the table is about
            for (int x = place.left + 1; x < place.right; x += 12)
            {
                for (int y = place.top + 1; y < place.bottom; y += 12)
                {
                    const auto ask = [=](UINT question) {
                        return ::SendMessage(asked, question, 0, MAKELPARAM(x, y));
                    };
                    const LRESULT hit = ask(WM_NCHITTEST);
                    const bool bar = hit == HTVSCROLL || hit == HTHSCROLL;
                    meant += bar != row->second;
                    EXPECT_EQ((ask(WM_TABLET_QUERYSYSTEMGESTURESTATUS) &
                               TABLET_DISABLE_PRESSANDHOLD) != 0,
                              mode == ONBOARD && (bar || row->second))
                        << x << ' ' << y;
                }
            }
            EXPECT_GT(meant, 0);
        }
    }
    EXPECT_EQ(seen, table.size());
}

TEST_F(WindowTest, APressIsNoneWhenTheFieldBeforeItOpensABoxOrTakesTheFocusBack)
{
    using Names = std::set<std::string>;
    const ModeScope scope(ONBOARD);
    // Whose press goes on until the button is up, and whose focus is the platform's part, too. Rows
    // of a report list are selected all the same, as by the platform's.
    const Names boxed = {"push button", "check box", "edit of many lines"};
    const Names sentBack = {"edit of many lines", "list box", "check list", "report list"};
    for (const bool box : {true, false})
    {
        size_t seen = 0;
        for (const Subject& subject : Subjects())
        {
            if (!(box ? boxed : sentBack).contains(subject.name))
            {
                continue;
            }
            SCOPED_TRACE(subject.name);
            ++seen;
            auto& field = Add<CEdit>(CRect(600, 500, 700, 520));
            const std::unique_ptr<CWnd> control = subject.make(Host());
            field.SetFocus();
            int asked = 0;
            Host().OnCode(EN_KILLFOCUS, [&](ToldMessage& told) {
                if (told.id != UINT(field.GetDlgCtrlID()))
                {
                    return;
                }
                ++asked;
                if (box)
                {
                    Host().EnableWindow(FALSE);
                    Release();
                    Host().EnableWindow(TRUE);
                }
                (box ? *control : field).SetFocus();
            });
            Press(ClientPoint(*control, CPoint(20, 60)));
            EXPECT_EQ(::GetCapture(), nullptr);
            EXPECT_EQ(asked, 1);
            EXPECT_EQ(control->SendMessage(BM_GETSTATE), 0);
            EXPECT_EQ(control->SendMessage(LVM_GETSELECTEDCOUNT), IsOfClass(*control, WC_LISTVIEW));
            Host().hook = nullptr;
            Release();
            ::ReleaseCapture();
            Remove(field);
        }
        EXPECT_EQ(seen, box ? boxed.size() : sentBack.size());
    }
}

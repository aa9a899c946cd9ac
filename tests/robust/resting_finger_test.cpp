// What a finger does that rests on a control: the system asks before, and presses at once or not.

#include "robust/Subjects.h"
#include "support/WindowTest.h"

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

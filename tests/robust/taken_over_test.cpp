// What becomes of a platform's control that is seen already.

#include "robust/Subjects.h"
#include "support/WindowTest.h"

#include <set>

TEST_F(WindowTest, AControlTakenOverOnBoardLooksAsOneThatItsClassMade)
{
    // The platform's would begin with a prompt, have no rows, or be laid out by its own.
    const std::set<std::string> others = {"edit with prompt", "combo", "form view",
                                          "property page"};
    Host().ModifyStyle(WS_CLIPCHILDREN, 0); // a dialog paints beneath an outline
    for (const Subject& subject : Subjects())
    {
        SCOPED_TRACE(subject.name);
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        std::unique_ptr<CWnd> control = subject.make(Host());
        const Pixels wanted = Settled(*control);
        if ((control->GetStyle() & WS_CHILD) == 0 || others.contains(subject.name))
        {
            continue;
        }
        control.reset(); // its place is another's
        COnBoardUIGeneral::SetAppMode(STD);
        control = subject.make(Host());
        const HWND platforms = control->UnsubclassWindow();
        SetMode(ONBOARD, *CWnd::FromHandle(platforms));
        EXPECT_TRUE(control->SubclassWindow(platforms));
        EXPECT_TRUE(Settled(*control) == wanted);
    }
}

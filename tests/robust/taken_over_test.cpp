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
    int alike = 0;
    for (const Subject& subject : Subjects())
    {
        SCOPED_TRACE(subject.name);
        const auto make = [&](APPMODE mode) {
            COnBoardUIGeneral::SetAppMode(mode);
            return subject.make(Host());
        };
        std::unique_ptr<CWnd> control = make(ONBOARD);
        ASSERT_NE(control, nullptr);
        const Pixels wanted = Settled(*control);
        control.reset(); // its place is another's
        control = make(STD);
        if ((control->GetStyle() & WS_CHILD) == 0 || others.contains(subject.name))
        {
            continue;
        }
        const HWND platforms = control->UnsubclassWindow();
        COnBoardUIGeneral::SetAppMode(ONBOARD);
        Repaint(platforms);
        alike += WindowPixels(*CWnd::FromHandle(platforms)) == wanted;
        EXPECT_TRUE(control->SubclassWindow(platforms));
        EXPECT_TRUE(Settled(*control) == wanted);
    }
    EXPECT_LE(alike, 3) << "labels and the fixed edit look as the platform's";
}

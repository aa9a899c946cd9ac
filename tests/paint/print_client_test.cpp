// What a control shows on the screen it also draws into a context that it is given.

#include "catalog/Controls.h"
#include "modes/WindowFacts.h"
#include "support/Canvas.h"
#include "support/WindowTest.h"

namespace {

using PrintClient = WindowTest;

TEST_F(PrintClient, GivesTheLookOfTheScreenInEveryMode)
{
    const CRect all = ClientRectOf(Host());
    const COLORREF ground = WindowPixels(Host()).At(all.right - 1, all.bottom - 1);
    for (const APPMODE mode : {STD, ONBOARD, EFBFS})
    {
        const ModeScope scope(mode);
        for (const Control& control : Controls())
        {
            SCOPED_TRACE(testing::Message() << control.name << " in " << mode);
            const auto window = control.make(Host(), {CRect(20, 30, 320, 230), "Direct to", 30});
            ASSERT_NE(window, nullptr);
            RestPointer();
            Repaint(*window);
            PumpAll();
            const CRect client = ClientRectOf(*window);
            Canvas canvas(client.Width(), client.Height());
            canvas.DC().FillSolidRect(client, ground); // which some leave to their parent
            window->SendMessage(WM_PRINT, WPARAM(canvas.DC().GetSafeHdc()),
                                PRF_CLIENT | PRF_ERASEBKGND);
            CClientDC screen(window.get());
            Pixels shown(screen, client);
            Pixels printed = canvas.Picture();
            for (const HWND child : ChildrenNow(*window))
            {
                CRect place = WindowRectOf(child);
                window->ScreenToClient(&place);
                shown.Leave(place);
                printed.Leave(place);
            }
            EXPECT_EQ(printed, shown);
        }
    }
}

} // namespace

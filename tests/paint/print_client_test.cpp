// What a control shows on the screen it also draws into a context that it is given.

#include "CustomDropListCombo.h"
#include "CustomStatic.h"
#include "catalog/Controls.h"
#include "modes/WindowFacts.h"
#include "support/Canvas.h"
#include "support/WindowTest.h"

namespace {

using PrintClient = WindowTest;

Pixels Printed(HWND window)
{
    CRect client;
    ::GetClientRect(window, &client);
    Canvas canvas(client.Width(), client.Height());
    ::SendMessage(window, WM_PRINTCLIENT, WPARAM(canvas.DC().GetSafeHdc()), PRF_CLIENT);
    return canvas.Picture();
}

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

// Which draws on its window, whoever asks.
class OwnLook : public CCustomStatic
{
    void Draw() override { CPaintDC dc(this); }
    void DrawGroupBox() override { CPaintDC dc(this); }
};

TEST_F(PrintClient, GivesTheClasssLookWhereAnHeirDrawsAndALookBeforeTheFirstPaint)
{
    CCustomDropListCombo::RegisterWndClass(nullptr);
    const CRect place(20, 30, 220, 90);
    for (const APPMODE mode : {STD, ONBOARD})
    {
        const ModeScope scope(mode);
        for (const DWORD style : {DWORD(SS_LEFT), DWORD(BS_GROUPBOX)})
        {
            SCOPED_TRACE(testing::Message() << mode << ", " << style);
            CCustomStatic plain;
            OwnLook heir;
            for (CCustomStatic* const each : {&plain, static_cast<CCustomStatic*>(&heir)})
            {
                each->CreateEx(0, style == BS_GROUPBOX ? "BUTTON" : "STATIC", "Direct to",
                               style | WS_CHILD | WS_VISIBLE, place, &Host(), 7);
            }
            EXPECT_EQ(Printed(heir), Printed(plain));
            plain.DestroyWindow();
            heir.DestroyWindow();
        }
        const HWND combo =
            ::CreateWindow("CCUSTOMDROPLISTCOMBO", "", WS_CHILD | WS_VISIBLE, place.left, place.top,
                           place.Width(), place.Height(), Host(), nullptr, nullptr, nullptr);
        EXPECT_EQ(Printed(combo).Count(Canvas::Untouched), 0) << "combo in " << mode;
        ::DestroyWindow(combo);
    }
}

} // namespace

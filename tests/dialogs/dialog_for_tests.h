#pragma once

#include "AppAccess.h"
#include "CustomDialog.h"
#include "CustomPropSheet.h"
#include "EFB.h"
#include "LayoutMgmt.h"
#include "SpecialConfigVals.h"
#include "dialogs/template_bytes.h"
#include "support/Scripted.h"
#include "support/WindowTest.h"

#include <ostream>

// A dialog with its protected side open to tests, from a template in memory.
class DialogForTests : public Scripted<CCustomDialog>
{
public:
    explicit DialogForTests(CWnd* parent = nullptr, IAppAccess* host = nullptr)
        : Scripted<CCustomDialog>(0U, parent, host)
    {}

    std::function<void()> inCreate;   // before the template's controls are made
    std::function<void()> beforeInit; // and after the dialog's own initialisation
    std::function<void()> inInit;

    BOOL OnInitDialog() override
    {
        if (beforeInit)
        {
            beforeInit();
        }
        const BOOL result = Scripted<CCustomDialog>::OnInitDialog();
        if (inInit)
        {
            inInit();
        }
        return result;
    }

    // Once the platform's loop for moves runs, the pointer goes there and lets go. Input that is
    // queued before the loop has the capture would go to whatever lies under it.
    void DragOnPress(CPoint to) { m_dragTo = to; }

    using CCustomDialog::BuildListOfControls;
    using CCustomDialog::CheckForChildDialog;
    using CCustomDialog::m_captionHeight;
    using CCustomDialog::m_centredTitle;
    using CCustomDialog::m_hasModalChild;
    using CCustomDialog::m_inModalLoop;
    using CCustomDialog::m_lpszTemplateName;
    using CCustomDialog::m_showEntire;
    using CCustomDialog::SetCtrlTabOrder;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        constexpr UINT Step = WM_APP + 0x3E00;
        constexpr WPARAM Steps = 4;
        constexpr UINT_PTR Arrival = 0x3E00;
        constexpr UINT ArrivalPeriod = 15; // ms
        if (message == WM_CREATE && inCreate)
        {
            inCreate();
        }
        if (message == WM_ENTERSIZEMOVE)
        {
            ::GetCursorPos(&m_dragFrom);
            PostMessage(Step, 1);
        }
        if (message == Step)
        {
            const auto between = [=](int from, int to) {
                return from + (to - from) * int(wParam) / int(Steps);
            };
            SendPointer(MOUSEEVENTF_MOVE, CPoint(between(m_dragFrom.x, m_dragTo.x),
                                                 between(m_dragFrom.y, m_dragTo.y)));
            if (wParam == Steps)
            {
                SetTimer(Arrival, ArrivalPeriod, nullptr);
            }
            else
            {
                PostMessage(Step, wParam + 1);
            }
        }
        if (message == WM_TIMER && wParam == Arrival)
        {
            // The display tells of each move once more, on a busy machine some time later: until
            // that has happened the pointer may be put back.
            CPoint now;
            ::GetCursorPos(&now);
            m_arrivals = now == m_dragTo ? m_arrivals + 1 : 0;
            if (m_arrivals < 3)
            {
                SendPointer(MOUSEEVENTF_MOVE, m_dragTo);
            }
            else
            {
                m_arrivals = 0;
                KillTimer(Arrival);
                SendPointer(MOUSEEVENTF_LEFTUP, m_dragTo);
            }
        }
        return Scripted<CCustomDialog>::WindowProc(message, wParam, lParam);
    }

private:
    CPoint m_dragFrom;
    CPoint m_dragTo;
    int m_arrivals = 0; // how often the pointer was found there

    // Without pumping: this is inside the loop.
    static void SendPointer(DWORD what, CPoint point)
    {
        INPUT input = {};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = what | MOUSEEVENTF_ABSOLUTE;
        input.mi.dx = point.x * 65536 / ::GetSystemMetrics(SM_CXSCREEN) + 1;
        input.mi.dy = point.y * 65536 / ::GetSystemMetrics(SM_CYSCREEN) + 1;
        ::SendInput(1, &input, sizeof(input));
    }
};

class DialogHost : public IAppAccess
{
public:
    const char* GetProviderName() override { return "test"; }
    bool GetAvailableArea(GAA_TYPE type, int& x, int& y, int& width, int& height) override
    {
        askedFor = int(type);
        x = area.left;
        y = area.top;
        width = area.Width();
        height = area.Height();
        return true;
    }
    CZOrderManager* GetZOrderManager() override { return manager; }

    CRect area;
    int askedFor = 0;
    CZOrderManager* manager = nullptr;
};

inline int BandOf(const DialogForTests& dialog)
{
    return int(dialog.m_captionHeight * 1.7);
}

// Where the rule of the display modes takes a child that enters the on-board modes.
inline CRect Enlarged(const CRect& place)
{
    return CRect(CPoint(int(place.left * 1.7 * 1.32), int(place.top * 1.7)),
                 CSize(int(place.Width() * 1.7 * 1.32), int(place.Height() * 1.7)));
}

// Failures show places by their numbers.
inline void PrintTo(const CRect& rect, std::ostream* out)
{
    *out << '(' << rect.left << ", " << rect.top << ")-(" << rect.right << ", " << rect.bottom
         << ')';
}

inline std::vector<CRect> ChildPlaces(const CWnd& parent)
{
    std::vector<CRect> places;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CRect place;
        ::GetWindowRect(child, &place);
        parent.ScreenToClient(&place);
        places.push_back(place);
    }
    return places;
}

// What the tests put on a dialog.
enum : WORD
{
    IdLabel = 101,
    IdEdit,
    IdDisabled,
    IdReadOnly,
    IdList,
    IdButton,
};

inline TemplateBytes Form(DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX |
                                        WS_VISIBLE,
                          DWORD exStyle = 0)
{
    TemplateBytes form({.style = style, .exStyle = exStyle, .title = u"Title"});
    form.Add(u"Static", u"Label", 0, CRect(5, 5, 60, 17), IdLabel)
        .Add(u"Edit", u"text", WS_TABSTOP, CRect(5, 20, 60, 32), IdEdit)
        .Add(u"Edit", u"text", WS_DISABLED, CRect(5, 35, 60, 47), IdDisabled)
        .Add(u"Edit", u"text", ES_READONLY, CRect(5, 50, 60, 62), IdReadOnly)
        .Add(u"ListBox", u"", LBS_NOINTEGRALHEIGHT, CRect(80, 5, 140, 60), IdList)
        .Add(u"Button", u"OK", WS_TABSTOP, CRect(5, 90, 50, 104), IdButton);
    return form;
}

class CustomDialogTest : public WindowTest
{
protected:
    const TemplateBytes form = Form();
    DialogHost host;

    void TearDown() override
    {
        COnBoardUIGeneral::SetAppMode(STD);
        ClearSpecialConfigVals();
        CCustomDialog::SetEfb(nullptr);
        CCustomPropSheet::SetEfb(nullptr);
        WindowTest::TearDown();
    }
};

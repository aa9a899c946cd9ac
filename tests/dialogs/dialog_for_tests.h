#pragma once

#include "CustomDialog.h"
#include "CustomFormView.h"
#include "CustomPropSheet.h"
#include "EFB.h"
#include "SpecialConfigVals.h"
#include "catalog/DialogTemplate.h"
#include "support/Acting.h"
#include "support/AreaHost.h"
#include "support/Scripted.h"
#include "support/WindowTest.h"
#include "support/forms.h"

#include <ostream>

constexpr APPMODE AllModes[] = {STD, FULLSCREEN, ONBOARD, EFB, EFBFS};

// A dialog with its protected side open to tests, from a template in memory.
class DialogForTests : public Scripted<CCustomDialog>
{
public:
    explicit DialogForTests(CWnd* parent = nullptr, IAppAccess* host = nullptr)
        : Scripted<CCustomDialog>(0U, parent, host)
    {}
    // Open at once.
    DialogForTests(const DialogTemplate& form, CWnd& parent, IAppAccess* host = nullptr)
        : DialogForTests(nullptr, host)
    {
        EXPECT_TRUE(CreateIndirect(form, &parent));
    }

    std::function<void()> inCreate = [] {};   // before the template's controls are made
    std::function<void()> beforeInit = [] {}; // and after the dialog's own initialisation
    std::function<void()> inInit = [] {};

    BOOL OnInitDialog() override
    {
        beforeInit();
        const BOOL result = Scripted<CCustomDialog>::OnInitDialog();
        inInit();
        return result;
    }

    // As it finds out itself.
    bool HasModalChild()
    {
        const WNDENUMPROC check = &CCustomDialog::CheckForChildDialog;
        m_hasModalChild = false;
        ::EnumThreadWindows(::GetCurrentThreadId(), check, reinterpret_cast<LPARAM>(this));
        return m_hasModalChild;
    }

    using CCustomDialog::BuildListOfControls;
    using CCustomDialog::m_captionHeight;
    using CCustomDialog::m_centredTitle;
    using CCustomDialog::SetCtrlTabOrder;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_CREATE)
        {
            inCreate();
        }
        return Scripted<CCustomDialog>::WindowProc(message, wParam, lParam);
    }
};

// An open form view that the test owns.
class ViewForTests : public Standing<CCustomFormView>
{
public:
    explicit ViewForTests(CWnd& parent, UINT form = IDD_TEST_FORM)
        : Standing(form)
    {
        const CRect place(0, 0, 500, 400);
        EXPECT_TRUE(Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, place, &parent, 5, nullptr));
    }
};

using Journal = std::vector<std::string>;

// Writes down what it is told.
class FlightBag : public IEFB
{
public:
    explicit FlightBag(Journal& journal)
        : m_journal(journal)
    {}
    const char* GetProviderName() override { return "bag"; }
    bool BeginModalDialog() override { return Note("begin"); }
    bool EndModalDialog() override { return Note("end"); }
    void ShowVKB(bool, VKB_SHOW_POS, HWND) override { Note("keyboard"); }

private:
    Journal& m_journal;

    bool Note(const char* what)
    {
        m_journal.push_back(what);
        return true;
    }
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

inline std::vector<CRect> Enlarged(std::vector<CRect> places)
{
    for (CRect& place : places)
    {
        place = Enlarged(place);
    }
    return places;
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
        places.push_back(PlaceIn(parent, *CWnd::FromHandle(child)));
    }
    return places;
}

// The brush with which a window answers a control's request for colours, which it sets in dc.
inline HGDIOBJ AskColors(const CWnd& window, UINT message, CDC& dc, HWND control)
{
    return reinterpret_cast<HGDIOBJ>(
        window.SendMessage(message, WPARAM(dc.GetSafeHdc()), reinterpret_cast<LPARAM>(control)));
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

inline DialogTemplate Form(DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX |
                                         WS_VISIBLE,
                           DWORD exStyle = 0)
{
    DialogTemplate form({.style = style, .exStyle = exStyle, .title = "Title"});
    form.Add("Static", "Label", 0, CRect(5, 5, 60, 17), IdLabel)
        .Add("Edit", "text", WS_TABSTOP, CRect(5, 20, 60, 32), IdEdit)
        .Add("Edit", "text", WS_DISABLED, CRect(5, 35, 60, 47), IdDisabled)
        .Add("Edit", "text", ES_READONLY, CRect(5, 50, 60, 62), IdReadOnly)
        .Add("ListBox", "", LBS_NOINTEGRALHEIGHT, CRect(80, 5, 140, 60), IdList)
        .Add("Button", "OK", WS_TABSTOP, CRect(5, 90, 50, 104), IdButton);
    return form;
}

class CustomDialogTest : public WindowTest
{
protected:
    const DialogTemplate form = Form();
    AreaHost host;

    // Of the form's controls in the standard mode.
    std::vector<CRect> StandardPlaces()
    {
        const ModeScope mode(STD);
        return ChildPlaces(DialogForTests(form, Host()));
    }

    void TearDown() override
    {
        ClearSpecialConfigVals();
        CCustomDialog::SetEfb(nullptr);
        CCustomPropSheet::SetEfb(nullptr);
        WindowTest::TearDown();
    }
};

// Changes of the mode. mode.change: there and back against the least that it takes, placing each
// child and giving it its font. mode.all: a host with a window of every kind through all modes
// against repaints of the same windows, one in each mode.

#include "CustomDialog.h"
#include "CustomListBox.h"
#include "OnBoardUIGeneral.h"
#include "Row.h"
#include "Stage.h"
#include "catalog/Controls.h"
#include "catalog/DialogTemplate.h"

namespace {

constexpr int Children = 200;

// An empty dialog that fills the stage.
class Form : public CCustomDialog
{
public:
    Form()
        : CCustomDialog(0U, &Stage())
    {
        CreateIndirect(DialogTemplate({.style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN,
                                       .title = "",
                                       .points = 0,
                                       .place = CRect(0, 0, 480, 380)}),
                       &Stage());
    }
};

// One with children of the common kinds, among them list boxes of the library.
class Parent : public Form
{
public:
    Parent()
    {
        static const char* const classes[] = {"Static", "Edit", "Button", "ListBox", "ComboBox"};
        for (int child = 0; child < Children; ++child)
        {
            const CRect place(CPoint(8 + child % 20 * 24, 8 + child / 20 * 36), CSize(20, 30));
            const char* const kind = classes[child % 5];
            if (child % 10 == 3)
            {
                m_lists.push_back(std::make_unique<CCustomListBox>());
                m_lists.back()->Create(WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOINTEGRALHEIGHT,
                                       place, this, UINT(child));
                continue;
            }
            ::CreateWindow(kind, "Text", WS_CHILD | WS_VISIBLE, place.left, place.top,
                           place.Width(), place.Height(), m_hWnd, nullptr, AfxGetInstanceHandle(),
                           nullptr);
        }
        PaintNow(*this);
        Settle();
    }

    // The same placing and fonts without any rule.
    void PlaceAll(double across, double down, CFont& font)
    {
        for (HWND child = ::GetWindow(m_hWnd, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
        {
            CRect rect;
            ::GetWindowRect(child, &rect);
            ScreenToClient(&rect);
            ::SendMessage(child, WM_SETFONT, WPARAM(font.GetSafeHandle()), TRUE);
            ::SetWindowPos(child, nullptr, int(rect.left * across), int(rect.top * down),
                           int(rect.Width() * across), int(rect.Height() * down), SWP_NOZORDER);
        }
    }

private:
    std::vector<std::unique_ptr<CCustomListBox>> m_lists;
};

void StartFresh(const std::shared_ptr<std::unique_ptr<Parent>>& parent)
{
    EnterMode(STD);
    *parent = std::make_unique<Parent>();
}

Side ModeThereAndBack()
{
    auto parent = std::make_shared<std::unique_ptr<Parent>>();
    return {[parent] { StartFresh(parent); },
            [parent] {
                for (const APPMODE mode : {ONBOARD, STD})
                {
                    COnBoardUIGeneral::SetAppMode(mode);
                    PaintNow(**parent);
                }
            },
            [parent] { parent->reset(); }};
}

Side LoopThereAndBack()
{
    auto parent = std::make_shared<std::unique_ptr<Parent>>();
    return {[parent] { StartFresh(parent); },
            [parent] {
                constexpr double down = 1.7;
                constexpr double across = down * 1.32;
                (*parent)->PlaceAll(across, down, CCustomListBox::GetOnBoardFont());
                PaintNow(**parent);
                (*parent)->PlaceAll(1 / across, 1 / down, CCustomListBox::GetStdFont());
                PaintNow(**parent);
            },
            [parent] { parent->reset(); }};
}

// A window of every kind, in rows on a dialog that follows the mode.
class Host : public Form
{
public:
    Host()
    {
        int place = 0;
        for (const Control& control : Controls())
        {
            const CRect room(CPoint(4 + place % 7 * 70, 4 + place / 7 * 100), CSize(66, 96));
            m_windows.push_back(control.make(*this, {room, "Direct to", Rows}));
            ++place;
        }
        RepaintAll();
        Settle();
    }

    ~Host() override
    {
        for (const std::unique_ptr<CWnd>& window : m_windows)
        {
            window->DestroyWindow();
        }
        DestroyWindow();
    }

    void PaintAll()
    {
        PaintNow(*this);
        for (const std::unique_ptr<CWnd>& window : m_windows)
        {
            PaintNow(*window); // also what is no child
        }
    }

    void RepaintAll()
    {
        Invalidate();
        for (const std::unique_ptr<CWnd>& window : m_windows)
        {
            window->RedrawWindow(nullptr, nullptr,
                                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
        }
        PaintAll();
    }

private:
    static constexpr int Rows = 1000;
    std::vector<std::unique_ptr<CWnd>> m_windows;
};

constexpr APPMODE AllModes[] = {FULLSCREEN, ONBOARD, EFB, EFBFS, STD};

Side CycleAll()
{
    auto host = std::make_shared<std::unique_ptr<Host>>();
    return {[host] {
                EnterMode(STD);
                *host = std::make_unique<Host>();
            },
            [host] {
                for (const APPMODE mode : AllModes)
                {
                    COnBoardUIGeneral::SetAppMode(mode);
                    (*host)->PaintAll();
                }
            },
            [host] { host->reset(); }};
}

Side RepaintInEach()
{
    auto host = std::make_shared<std::unique_ptr<Host>>();
    return {[host] {
                EnterMode(STD);
                *host = std::make_unique<Host>();
            },
            [host] {
                for (const APPMODE mode : AllModes)
                {
                    {
                        const Untimed change;
                        COnBoardUIGeneral::SetAppMode(mode);
                        (*host)->PaintAll();
                        Settle();
                    }
                    (*host)->RepaintAll();
                }
            },
            [host] { host->reset(); }};
}

} // namespace

std::vector<Row> ModeRows()
{
    return {{"mode.all", 1.5, 5, &CycleAll, &RepaintInEach},
            {"mode.change", 1.3, 7, &ModeThereAndBack, &LoopThereAndBack}};
}

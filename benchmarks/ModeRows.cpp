// A change of mode against the least that it takes: placing each child and giving it its font.

#include "CustomDialog.h"
#include "CustomListBox.h"
#include "OnBoardUIGeneral.h"
#include "Row.h"
#include "Stage.h"

namespace {

constexpr int Children = 200;

// A dialog on the stage with children of the common kinds, among them list boxes of the library.
class Parent : public CCustomDialog
{
public:
    Parent()
        : CCustomDialog(0U, &Stage())
    {
        struct
        {
            DLGTEMPLATE head;
            WORD menu, windowClass, title;
        } const empty = {{WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 0, 0, 480, 380}, 0, 0, 0};
        CreateIndirect(&empty.head, &Stage());
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

void StartFresh(std::shared_ptr<std::unique_ptr<Parent>> parent)
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

} // namespace

std::vector<Row> ModeRows()
{
    return {{"mode.change", 1.3, 7, &ModeThereAndBack, &LoopThereAndBack}};
}

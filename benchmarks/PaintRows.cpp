// One repaint of each control in an on-board mode against one block copy and one gradient fill of
// the same area: about the least that a drawing of its own takes through a back buffer. A ratio
// above 4 asks where the rest goes: bare.* repaints windows of the same places and sizes that paint
// nothing, which the platform takes by itself.

#include "Row.h"
#include "Stage.h"
#include "catalog/Controls.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace {

constexpr int Repaints = 20;
const CRect Room(40, 30, 340, 230);

Side Repaint(const Control& control)
{
    auto window = std::make_shared<std::unique_ptr<CWnd>>();
    return {[window, &control] {
                EnterMode(ONBOARD);
                *window = control.make(Stage(), {Room, "Direct to"});
                (*window)->BringWindowToTop();
                (*window)->ShowWindow(SW_SHOW);
                PaintNow(**window);
            },
            [window] {
                for (int repaint = 0; repaint < Repaints; ++repaint)
                {
                    (*window)->RedrawWindow(nullptr, nullptr,
                                            RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW |
                                                RDW_ALLCHILDREN);
                }
            },
            [window] {
                (*window)->DestroyWindow();
                window->reset();
            }};
}

// What a fill and a copy of a window's area need, made before the clock runs.
struct Canvas
{
    std::unique_ptr<CWnd> window; // for its size alone
    CRect area;
    CDC memory;
    CBitmap bitmap;
};

Side FillAndCopy(const Control& control)
{
    auto canvas = std::make_shared<std::unique_ptr<Canvas>>();
    return {[canvas, &control] {
                EnterMode(ONBOARD);
                *canvas = std::make_unique<Canvas>();
                Canvas& made = **canvas;
                made.window = control.make(Stage(), {Room, "Direct to"});
                made.window->GetWindowRect(&made.area);
                made.window->ShowWindow(SW_HIDE);
                made.area.MoveToXY(0, 0);
                CClientDC dc(&Stage());
                made.memory.CreateCompatibleDC(&dc);
                made.bitmap.CreateCompatibleBitmap(&dc, made.area.right, made.area.bottom);
                made.memory.SelectObject(&made.bitmap);
            },
            [canvas] {
                const CRect& area = (*canvas)->area;
                CDC& memory = (*canvas)->memory;
                for (int repaint = 0; repaint < Repaints; ++repaint)
                {
                    CClientDC dc(&Stage());
                    TRIVERTEX corners[] = {{0, 0, 0x4000, 0x4000, 0x4000, 0},
                                           {area.right, area.bottom, 0x8000, 0x8000, 0x8000, 0}};
                    GRADIENT_RECT whole = {0, 1};
                    memory.GradientFill(corners, 2, &whole, 1, GRADIENT_FILL_RECT_V);
                    dc.BitBlt(0, 0, area.right, area.bottom, &memory, 0, 0, SRCCOPY);
                }
            },
            [canvas] {
                (*canvas)->window->DestroyWindow();
                canvas->reset();
            }};
}

// A window that paints nothing, over whatever stands below it.
class Bare : public CWnd
{
public:
    // In the place of a window and with such children as it has.
    Bare(HWND original, CWnd& parent)
    {
        CRect place;
        ::GetWindowRect(original, &place);
        parent.ScreenToClient(&place);
        CreateEx(0, AfxRegisterWndClass(0), "",
                 WS_CHILD | WS_CLIPCHILDREN |
                     (DWORD(::GetWindowLong(original, GWL_STYLE)) & WS_VISIBLE),
                 place, &parent, ControlId);
        for (HWND child = ::GetWindow(original, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
        {
            m_children.push_back(std::make_unique<Bare>(child, *this));
        }
    }

    BOOL DestroyWindow() override
    {
        m_children.clear();
        return CWnd::DestroyWindow();
    }
    ~Bare() override { DestroyWindow(); }

private:
    std::vector<std::unique_ptr<Bare>> m_children;
};

Control BareOf(const Control& control)
{
    return {control.name,
            [&control](CWnd& parent, const Contents& contents) -> std::unique_ptr<CWnd> {
                const std::unique_ptr<CWnd> original = control.make(parent, contents);
                PaintNow(*original);
                auto bare = std::make_unique<Bare>(*original, parent);
                original->DestroyWindow();
                return bare;
            }};
}

} // namespace

std::vector<Row> PaintRows()
{
    std::vector<Row> rows;
    static const std::vector<Control> bare = [] {
        std::vector<Control> all;
        std::ranges::transform(Controls(), std::back_inserter(all), &BareOf);
        return all;
    }();
    const auto add = [&rows](const char* group, const Control& control) {
        std::string name = group + std::string(control.name);
        std::ranges::replace(name, ' ', '_');
        rows.push_back({name, 4.0, 5, [&control] { return Repaint(control); },
                        [&control] { return FillAndCopy(control); }});
    };
    for (size_t index = 0; index < Controls().size(); ++index)
    {
        add("paint.", Controls()[index]);
        add("bare.", bare[index]);
    }
    return rows;
}

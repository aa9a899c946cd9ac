// One repaint of each control in an on-board mode against one block copy and one gradient fill of
// the same area: about the least that a drawing of its own takes through a back buffer. A ratio
// above 4 asks where the rest goes; paint.nothing shows how much of it the platform takes by
// itself.

#include "Row.h"
#include "Stage.h"
#include "catalog/Controls.h"

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

// A window that paints nothing: what the platform takes for any repaint.
const Control Nothing = {"nothing", [](CWnd& parent, const Contents& contents) {
                             auto window = std::make_unique<CWnd>();
                             window->CreateEx(0, AfxRegisterWndClass(0), "", WS_CHILD | WS_VISIBLE,
                                              contents.place, &parent, ControlId);
                             return window;
                         }};

} // namespace

std::vector<Row> PaintRows()
{
    std::vector<Row> rows;
    static const std::vector<Control> controls = [] {
        std::vector<Control> all = Controls();
        all.insert(all.begin(), Nothing);
        return all;
    }();
    for (const Control& control : controls)
    {
        std::string name = "paint." + std::string(control.name);
        std::replace(name.begin(), name.end(), ' ', '_');
        rows.push_back({name, 4.0, 5, [&control] { return Repaint(control); },
                        [&control] { return FillAndCopy(control); }});
    }
    return rows;
}

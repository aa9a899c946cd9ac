#include "trees/DragImage.h"

#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"

#include <algorithm>

namespace trees {

namespace {

// What stays transparent: a colour that neither texts nor icons are likely to have.
constexpr COLORREF Clear = RGB(255, 0, 254);

// One picture is dragged at a time, by the user interface's only thread.
bool dragging = false;
int hidden = 0;

} // namespace

CImageList* ComposeDragImage(TreeItems& items, TreeLook& look, const CWnd& window)
{
    struct Part
    {
        HTREEITEM item;
        CRect box;
        CRect text;
    };
    CRect client;
    window.GetClientRect(&client);
    std::vector<Part> parts;
    CRect all(0, 0, 0, 0);
    for (HTREEITEM item = items.Next(nullptr, TVGN_FIRSTVISIBLE); item != nullptr;
         item = items.Next(item, TVGN_NEXTVISIBLE))
    {
        const CRect text = items.Rect(item, true);
        if (text.top >= client.bottom)
        {
            break;
        }
        const CRect box = look.IconAndText(item);
        CRect inSight;
        if (items.IsSelected(item) && inSight.IntersectRect(&box, &client))
        {
            parts.push_back({item, box, text});
            all.UnionRect(&all, &inSight);
        }
    }
    if (parts.empty())
    {
        return nullptr;
    }
    CClientDC screen(nullptr);
    CBitmap bitmap;
    CDC memory;
    if (!memory.CreateCompatibleDC(&screen) ||
        !bitmap.CreateCompatibleBitmap(&screen, all.Width(), all.Height()))
    {
        return nullptr;
    }
    {
        const Selected selected(memory, bitmap);
        memory.SetViewportOrg(-all.left, -all.top);
        memory.FillSolidRect(all, Clear);
        const WindowAlive alive(const_cast<CWnd&>(window));
        // The parent may be asked for texts, and may take items away then.
        std::vector<HTREEITEM> order;
        for (const Part& part : parts)
        {
            order.push_back(part.item);
        }
        const WatchedItems held(items, order);
        for (size_t index = 0; index < parts.size() && alive; ++index)
        {
            if (held[index] != nullptr)
            {
                look.DrawIconAndText(memory, held[index], parts[index].text, true);
            }
        }
        if (!alive)
        {
            return nullptr;
        }
    }
    auto image = std::make_unique<CImageList>();
    if (!image->Create(all.Width(), all.Height(), ILC_COLOR24 | ILC_MASK, 1, 0) ||
        image->Add(&bitmap, Clear) < 0)
    {
        return nullptr;
    }
    return image.release();
}

void ShowDragImage(CImageList& image, CPoint hotSpot, CPoint screen)
{
    image.BeginDrag(0, hotSpot);
    CImageList::DragShowNolock(TRUE);
    CImageList::DragMove(screen);
    dragging = true;
}

void MoveDragImage(CPoint screen)
{
    if (dragging)
    {
        CImageList::DragMove(screen);
    }
}

void EndDragImage()
{
    if (dragging)
    {
        dragging = false;
        CImageList::DragShowNolock(FALSE);
        CImageList::EndDrag();
    }
}

DragImageHidden::DragImageHidden()
{
    if (hidden++ == 0 && dragging)
    {
        CImageList::DragShowNolock(FALSE);
    }
}

DragImageHidden::~DragImageHidden()
{
    if (--hidden == 0 && dragging)
    {
        ::GdiFlush(); // what was painted has to lie on the screen before the picture is put over it
        CImageList::DragShowNolock(TRUE);
    }
}

} // namespace trees

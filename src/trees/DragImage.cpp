#include "trees/DragImage.h"

#include "modes/WindowAlive.h"
#include "paint/GdiGuards.h"

#include <algorithm>

namespace trees {

namespace {

// What stays transparent: a colour that neither texts nor icons are likely to have.
constexpr COLORREF Clear = RGB(255, 0, 254);

// One picture is dragged at a time, by the user interface's only thread.
const CImageList* s_dragged = nullptr; // compared, never followed
int s_hidden = 0;

} // namespace

CImageList* ComposeDragImage(TreeItems& items, TreeLook& look, const CWnd& window)
{
    struct Part
    {
        CRect box;
        CRect text;
    };
    CRect client;
    window.GetClientRect(&client);
    std::vector<Part> parts;
    CRect all(0, 0, 0, 0);
    const WindowAlive alive(const_cast<CWnd&>(window));
    // The parent may be asked for texts all along, and may take items away then.
    WatchedItem item(items, items.Next(nullptr, TVGN_FIRSTVISIBLE));
    WatchedItems held(items, {}); // of parts
    while (item.Get() != nullptr)
    {
        const CRect text = items.Rect(item.Get(), true);
        if (!alive || item.Get() == nullptr || text.top >= client.bottom)
        {
            break;
        }
        const CRect box = look.IconAndText(item.Get());
        if (!alive || item.Get() == nullptr)
        {
            break;
        }
        CRect inSight;
        if (items.IsSelected(item.Get()) && inSight.IntersectRect(&box, &client))
        {
            parts.push_back({box, text});
            held.Add(item.Get());
            all.UnionRect(&all, &inSight);
        }
        item.Set(items.Next(item.Get(), TVGN_NEXTVISIBLE));
    }
    if (!alive || parts.empty())
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
    if (s_dragged != nullptr)
    {
        EndDragImage(*s_dragged);
    }
    image.BeginDrag(0, hotSpot);
    CImageList::DragShowNolock(TRUE);
    CImageList::DragMove(screen);
    s_dragged = &image;
}

void MoveDragImage(CPoint screen)
{
    if (s_dragged != nullptr)
    {
        CImageList::DragMove(screen);
    }
}

void EndDragImage(const CImageList& image)
{
    if (s_dragged == &image)
    {
        s_dragged = nullptr;
        CImageList::DragShowNolock(FALSE);
        CImageList::EndDrag();
    }
}

bool IsDragImageShown()
{
    return s_dragged != nullptr && s_hidden == 0;
}

DragImageHidden::DragImageHidden()
{
    if (s_hidden++ == 0 && s_dragged != nullptr)
    {
        CImageList::DragShowNolock(FALSE);
    }
}

DragImageHidden::~DragImageHidden()
{
    if (--s_hidden == 0 && s_dragged != nullptr)
    {
        ::GdiFlush(); // what was painted has to lie on the screen before the picture is put over it
        CImageList::DragShowNolock(TRUE);
    }
}

CSize CursorSize()
{
    CSize size(::GetSystemMetrics(SM_CXCURSOR), ::GetSystemMetrics(SM_CYCURSOR));
    const HCURSOR cursor = ::GetCursor();
    ICONINFO info = {};
    if (cursor == nullptr || !::GetIconInfo(cursor, &info))
    {
        return size;
    }
    BITMAP picture = {};
    const bool colored = info.hbmColor != nullptr;
    if (::GetObject(colored ? info.hbmColor : info.hbmMask, sizeof(picture), &picture) != 0)
    {
        // Without colours the mask holds both halves of the picture, one below the other.
        size = CSize(picture.bmWidth, colored ? picture.bmHeight : picture.bmHeight / 2);
    }
    for (const HBITMAP bitmap : {info.hbmColor, info.hbmMask})
    {
        if (bitmap != nullptr)
        {
            ::DeleteObject(bitmap);
        }
    }
    return size;
}

} // namespace trees

#pragma once

#include "trees/TreeLook.h"

namespace trees {

// One picture of the icons and texts of the selected items in sight, placed as in the tree and no
// taller than it; the platform draws it half transparent when it is dragged. The list is the
// caller's; null when nothing selected is in sight or memory is short.
CImageList* ComposeDragImage(TreeItems& items, TreeLook& look, const CWnd& window);

// The picture that is being dragged over the screen: one at a time in a process, so that showing
// one ends another. End does nothing for a picture that is not the one.
void ShowDragImage(CImageList& image, CPoint hotSpot, CPoint screen);
void MoveDragImage(CPoint screen);
void EndDragImage(const CImageList& image);
bool IsDragImageShown();

// While windows are painted or scrolled the picture has to be away: what lies under it is kept
// aside, and would come back out of date.
class DragImageHidden
{
public:
    DragImageHidden();
    DragImageHidden(const DragImageHidden&) = delete;
    DragImageHidden& operator=(const DragImageHidden&) = delete;
    ~DragImageHidden();
};

// Pixels of the picture of the cursor that is set; of the system's cursors where there is none.
CSize CursorSize();

} // namespace trees

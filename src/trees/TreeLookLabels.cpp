// The tree's look: the edit of a label.

#include "modes/LabelEdit.h"
#include "modes/WindowAlive.h"
#include "modes/WindowFacts.h"
#include "trees/TreeLook.h"

namespace trees {

// Where the platform opens the edit of a label: around the label it is kept so.
void TreeLook::NoteLabelEdit()
{
    const auto edit = HWND(m_items.Ask(TVM_GETEDITCONTROL));
    if (edit == nullptr || edit == m_edit)
    {
        return;
    }
    const WindowAlive alive(m_owner.Window());
    const CRect label = m_items.Rect(m_items.Edited(), true); // for which the parent may be asked
    if (alive && !label.IsRectEmpty())
    {
        const CRect place = PlaceIn(m_owner.Window(), edit);
        m_edit = edit;
        m_editFrame.SetRect(label.left - place.left, label.top - place.top, 0,
                            place.bottom - label.bottom);
    }
}

// The edit of a label stays with its item when the rows move or have another height; it ends when
// the item is not in sight any more.
void TreeLook::FollowLabelEdit(bool newFont)
{
    const auto edit = HWND(m_items.Ask(TVM_GETEDITCONTROL));
    if (edit == nullptr)
    {
        return;
    }
    const WindowAlive alive(m_owner.Window());
    const CRect label = m_items.Rect(m_items.Edited(), true); // for which the parent may be asked
    CRect client;
    m_owner.Window().GetClientRect(&client);
    client.bottom += m_items.RowHeight() - 1; // a row may be in sight in part
    // A bold item has its own.
    const bool bold = alive && m_items.State(m_items.Edited(), TVIS_BOLD) != 0;
    const LRESULT font = alive && newFont ? LRESULT(Font(bold)) : 0;
    if (alive && !PlaceLabelEdit(edit, label, client, font, m_editFrame))
    {
        EndLabelEdit(m_owner.Window(), m_items.Ask(TVM_GETEDITCONTROL));
    }
}

// Whether the edit of a label has our font: in the standard mode, too, that of a bold item which
// has been open since an on-board mode.
bool TreeLook::IsLabelEditBold() const
{
    const auto edit = HWND(m_items.Ask(TVM_GETEDITCONTROL));
    const auto bold = LRESULT(m_bold.GetSafeHandle());
    return edit != nullptr && bold != 0 && ::SendMessage(edit, WM_GETFONT, 0, 0) == bold;
}

} // namespace trees

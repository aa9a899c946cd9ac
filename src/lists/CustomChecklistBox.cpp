// The check list: records, and the messages by which callers know nothing of them.

#include "CustomChecklistBox.h"

#include "access/Rows.h"
#include "lists/CheckListLayout.h"
#include "lists/CheckRecords.h"
#include "modes/WindowAlive.h"
#include "paint/SharedObjects.h"

#include <algorithm>
#include <vector>

using lists::CheckRecords;

static_assert(sizeof(_KES_CHECKLIST_STATE) == 2 * sizeof(int) + sizeof(ULONG_PTR));

IMPLEMENT_DYNAMIC(CCustomChecklistBox, CCustomListBox)

BEGIN_MESSAGE_MAP(CCustomChecklistBox, CCustomListBox)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
    ON_WM_KILLFOCUS()
    ON_MESSAGE(WM_SETFONT, &CCustomChecklistBox::OnSetFont)
    ON_MESSAGE(LB_ADDSTRING, &CCustomChecklistBox::OnAddString)
    ON_MESSAGE(LB_INSERTSTRING, &CCustomChecklistBox::OnAddString)
    ON_MESSAGE(LB_DELETESTRING, &CCustomChecklistBox::OnDeleteString)
    ON_MESSAGE(LB_RESETCONTENT, &CCustomChecklistBox::OnResetContent)
    ON_MESSAGE(LB_FINDSTRING, &CCustomChecklistBox::OnFindString)
    ON_MESSAGE(LB_FINDSTRINGEXACT, &CCustomChecklistBox::OnFindString)
    ON_MESSAGE(LB_SELECTSTRING, &CCustomChecklistBox::OnSelectString)
    ON_MESSAGE(LB_GETITEMDATA, &CCustomChecklistBox::OnGetItemData)
    ON_MESSAGE(LB_SETITEMDATA, &CCustomChecklistBox::OnSetItemData)
    ON_MESSAGE(LB_GETTEXT, &CCustomChecklistBox::OnGetText)
    ON_MESSAGE(LB_SETITEMHEIGHT, &CCustomChecklistBox::OnSetItemHeight)
END_MESSAGE_MAP()

CFont CCustomChecklistBox::m_OBFont;
CFont CCustomChecklistBox::m_StdFont;

CCustomChecklistBox::CCustomChecklistBox()
    : m_records(std::make_unique<CheckRecords>())
{}

CCustomChecklistBox::~CCustomChecklistBox()
{
    // The window may go only now, and tells its parent of each item.
    ReleaseRecords();
}

CFont& CCustomChecklistBox::GetOnBoardFont()
{
    return OnBoardControlFont(m_OBFont, LargeOnBoardFont);
}

CFont& CCustomChecklistBox::GetStdFont()
{
    return StandardControlFont(m_StdFont);
}

BOOL CCustomChecklistBox::PreCreateWindow(CREATESTRUCT& cs)
{
    // A list box that its owner does not draw holds strings.
    if ((cs.style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) == 0)
    {
        cs.style |= LBS_OWNERDRAWFIXED | LBS_HASSTRINGS;
    }
    return CCustomListBox::PreCreateWindow(cs);
}

void CCustomChecklistBox::PreSubclassWindow()
{
    // The object may have had another window before.
    m_emptied = false;
    m_ownHeight[0] = 0;
    m_ownHeight[1] = 0;
    CCustomListBox::PreSubclassWindow();
}

int CCustomChecklistBox::OnCreate(LPCREATESTRUCT cs)
{
    const WindowAlive alive(*this);
    const int result = CCustomListBox::OnCreate(cs);
    if (alive && result != -1)
    {
        FitRows();
    }
    return result;
}

void CCustomChecklistBox::OnDestroy()
{
    ReleaseRecords();
    m_emptied = true;
    CCustomListBox::OnDestroy();
}

// Records ---------------------------------------------------------------------------------------

// Of an item that exists.
ULONG_PTR CCustomChecklistBox::SlotOf(int index)
{
    return ULONG_PTR(DefWindowProc(LB_GETITEMDATA, WPARAM(index), 0));
}

_KES_CHECKLIST_STATE* CCustomChecklistBox::RecordOf(int index)
{
    return Exists(index) ? m_records->Find(SlotOf(index)) : nullptr;
}

// The record of an item, made if it has none. Null for an item that does not exist or is on its way
// out with all others, and in a list that keeps no data.
_KES_CHECKLIST_STATE* CCustomChecklistBox::MakeRecord(int index)
{
    if (m_emptied || !Exists(index) || (GetStyle() & LBS_NODATA) != 0)
    {
        return nullptr;
    }
    const ULONG_PTR slot = SlotOf(index);
    _KES_CHECKLIST_STATE* record = m_records->Find(slot);
    if (record == nullptr)
    {
        record = m_records->Make(slot);
        if (Ask(LB_SETITEMDATA, WPARAM(index), reinterpret_cast<LPARAM>(record)) == LB_ERR)
        {
            m_records->Free(record);
            record = nullptr;
        }
    }
    return record;
}

// Gives the caller's data back to the slot, so that whoever is told of the item's end is told of
// that and not of a record.
void CCustomChecklistBox::ReleaseRecord(int index)
{
    if (_KES_CHECKLIST_STATE* const record = RecordOf(index))
    {
        Ask(LB_SETITEMDATA, WPARAM(index), LPARAM(record->data));
        m_records->Free(record);
    }
}

void CCustomChecklistBox::ReleaseRecords()
{
    const int count = m_records->Count() == 0 || GetSafeHwnd() == nullptr ? 0 : Ask(LB_GETCOUNT);
    for (int index = 0; index < count; ++index)
    {
        ReleaseRecord(index);
    }
    m_records->Clear();
}

// Checks ----------------------------------------------------------------------------------------

void CCustomChecklistBox::SetCheckStyle(UINT style)
{
    if (lists::IsCheckStyle(style))
    {
        m_checkStyle = style;
    }
}

void CCustomChecklistBox::SetCheck(int index, int check)
{
    if (check == BST_INDETERMINATE && !lists::HasThreeStates(m_checkStyle))
    {
        AnnounceState(index); // who listens asks again and finds it as it was
        return;
    }
    if (_KES_CHECKLIST_STATE* const record = MakeRecord(index))
    {
        record->check = check;
        InvalidateCheck(index);
        AnnounceState(index);
    }
}

int CCustomChecklistBox::GetCheck(int index)
{
    const _KES_CHECKLIST_STATE* const record = RecordOf(index);
    return record == nullptr ? BST_UNCHECKED : record->check;
}

void CCustomChecklistBox::Enable(int index, int enable)
{
    if (!Exists(index) || (IsEnabled(index) != FALSE) == (enable != FALSE))
    {
        return;
    }
    if (_KES_CHECKLIST_STATE* const record = MakeRecord(index))
    {
        record->enabled = enable != FALSE;
        InvalidateItem(index);
        AnnounceState(index);
    }
}

BOOL CCustomChecklistBox::IsEnabled(int index)
{
    if (!Exists(index))
    {
        return FALSE;
    }
    const _KES_CHECKLIST_STATE* const record = m_records->Find(SlotOf(index));
    return record == nullptr || record->enabled;
}

// For assistive programs. A listener in this process may do anything in it.
void CCustomChecklistBox::AnnounceState(int index)
{
    if (GetSafeHwnd() != nullptr)
    {
        // Also of an index that no item has.
        access::TellChild(GetSafeHwnd(), EVENT_OBJECT_STATECHANGE, access::ChildOf(index));
    }
}

// List messages ---------------------------------------------------------------------------------

LRESULT CCustomChecklistBox::OnAddString(WPARAM wParam, LPARAM lParam)
{
    if (HasText() || (GetStyle() & LBS_NODATA) != 0)
    {
        return CCustomListBox::OnAddString(wParam, lParam);
    }
    // What is added is the item's data.
    const WindowAlive alive(*this);
    _KES_CHECKLIST_STATE* const record = m_records->Make(ULONG_PTR(lParam));
    const LRESULT result = CCustomListBox::OnAddString(wParam, reinterpret_cast<LPARAM>(record));
    if (alive && result < 0)
    {
        m_records->Free(record);
    }
    return result;
}

LRESULT CCustomChecklistBox::OnDeleteString(WPARAM wParam, LPARAM lParam)
{
    ReleaseRecord(int(wParam));
    return CCustomListBox::OnDeleteString(wParam, lParam);
}

LRESULT CCustomChecklistBox::OnResetContent(WPARAM wParam, LPARAM lParam)
{
    const WindowAlive alive(*this);
    ReleaseRecords();
    m_emptied = true;
    const LRESULT result = CCustomListBox::OnResetContent(wParam, lParam);
    if (alive)
    {
        m_emptied = false;
    }
    return result;
}

// Calls search with what the platform has to look for when the caller looks for data in a list
// without strings: what it compares are the records.
template <class Search>
LRESULT CCustomChecklistBox::SearchData(WPARAM start, LPARAM data, Search search)
{
    const WindowAlive alive(*this);
    if ((GetStyle() & LBS_SORT) != 0)
    {
        // The platform may ask the owner to compare, who is given the data of both.
        _KES_CHECKLIST_STATE* const wanted = m_records->Make(ULONG_PTR(data));
        const LRESULT found = search(reinterpret_cast<LPARAM>(wanted));
        if (!alive)
        {
            return LB_ERR;
        }
        m_records->Free(wanted);
        if (found != LB_ERR)
        {
            return found;
        }
    }
    const int count = Ask(LB_GETCOUNT);
    const int after = Exists(int(start)) ? int(start) : -1;
    for (int step = 1; step <= count; ++step)
    {
        const ULONG_PTR slot = SlotOf((after + step) % count);
        if (m_records->DataIn(slot) == ULONG_PTR(data))
        {
            return search(LPARAM(slot));
        }
    }
    return LB_ERR;
}

LRESULT CCustomChecklistBox::OnFindString(WPARAM wParam, LPARAM lParam)
{
    const auto search = [=, this](LPARAM wanted) {
        return CCustomListBox::OnFindString(wParam, wanted);
    };
    return HasText() ? search(lParam) : SearchData(wParam, lParam, search);
}

LRESULT CCustomChecklistBox::OnSelectString(WPARAM wParam, LPARAM lParam)
{
    const auto search = [=, this](LPARAM wanted) {
        return CCustomListBox::OnSelectString(wParam, wanted);
    };
    return HasText() ? search(lParam) : SearchData(wParam, lParam, search);
}

LRESULT CCustomChecklistBox::OnGetItemData(WPARAM wParam, LPARAM)
{
    const int index = int(wParam);
    return Exists(index) ? LRESULT(m_records->DataIn(SlotOf(index))) : Default();
}

// A platform that gives every item the data writes over the records.
LRESULT CCustomChecklistBox::SetDataOfAll(LPARAM data)
{
    std::vector<ULONG_PTR> slots;
    for (int index = 0; Exists(index); ++index)
    {
        slots.push_back(SlotOf(index));
    }
    const LRESULT result = DefWindowProc(LB_SETITEMDATA, WPARAM(-1), data);
    for (size_t index = 0; result != LB_ERR && index < slots.size(); ++index)
    {
        if (_KES_CHECKLIST_STATE* const record = m_records->Find(slots[index]))
        {
            record->data = ULONG_PTR(data);
            Ask(LB_SETITEMDATA, WPARAM(index), LPARAM(slots[index]));
        }
    }
    return result;
}

LRESULT CCustomChecklistBox::OnSetItemData(WPARAM wParam, LPARAM lParam)
{
    if (int(wParam) == -1)
    {
        return SetDataOfAll(lParam);
    }
    _KES_CHECKLIST_STATE* const record = MakeRecord(int(wParam));
    if (record == nullptr)
    {
        return Default();
    }
    record->data = ULONG_PTR(lParam);
    return DefWindowProc(LB_SETITEMDATA, wParam, reinterpret_cast<LPARAM>(record));
}

LRESULT CCustomChecklistBox::OnGetText(WPARAM wParam, LPARAM lParam)
{
    const int index = int(wParam);
    if (HasText() || !Exists(index))
    {
        return Default();
    }
    // The text of an item without a string is its data.
    ULONG_PTR slot = 0;
    const LRESULT size = DefWindowProc(LB_GETTEXT, wParam, reinterpret_cast<LPARAM>(&slot));
    if (lParam == 0)
    {
        return LB_ERR;
    }
    const ULONG_PTR data = m_records->DataIn(SlotOf(index));
    ::CopyMemory(reinterpret_cast<void*>(lParam), &data, sizeof(data));
    return size;
}

LRESULT CCustomChecklistBox::OnSetItemHeight(WPARAM wParam, LPARAM lParam)
{
    const int height = std::max(int(LOWORD(lParam)), CalcMinimumItemHeight());
    return OnRowsMeasured(wParam, MAKELPARAM(height, 0));
}

// The drop-list combo: its items, which the list holds.

#include "CustomComboLBox.h"
#include "CustomDropListCombo.h"

#include "access/Answers.h"
#include "modes/WindowAlive.h"

#include <algorithm>

namespace {

// A list box takes a missing text for an item of its own kind.
LPCSTR TextOf(LPCSTR text)
{
    return text == nullptr ? "" : text;
}

} // namespace

int CCustomDropListCombo::GetCount() const
{
    const CCustomComboLBox* const list = ListIfMade();
    return list == nullptr ? 0 : list->GetCount();
}

int CCustomDropListCombo::GetSize() const
{
    return GetCount();
}

int CCustomDropListCombo::GetCurSel() const
{
    const CCustomComboLBox* const list = ListIfMade();
    return list == nullptr ? -1 : list->GetCurSel();
}

int CCustomDropListCombo::SetCurSel(int index)
{
    CCustomComboLBox* const list = List();
    if (list == nullptr)
    {
        return CB_ERR;
    }
    const WindowAlive alive(*this);
    // The platform's list box drops its selection for an index that is not there.
    const bool known = index >= -1 && index < list->GetCount();
    const int result = known ? list->SetCurSel(index) : CB_ERR;
    if (alive && m_expanded)
    {
        ToggleDropList();
    }
    if (alive)
    {
        Repaint();
        access::Tell(m_hWnd, EVENT_OBJECT_VALUECHANGE);
    }
    return result;
}

CString CCustomDropListCombo::GetSelString() const
{
    CString text;
    if (const int selected = GetCurSel(); selected >= 0)
    {
        m_list->GetText(selected, text);
    }
    return text;
}

// The text that is shown may be another one now, and an open list needs another height.
void CCustomDropListCombo::ItemsChanged()
{
    const WindowAlive alive(*this);
    if (m_expanded)
    {
        UpdateComboLBoxPos();
    }
    if (alive)
    {
        Repaint();
    }
}

int CCustomDropListCombo::AddString(LPCSTR text)
{
    return Insert(-1, text);
}

int CCustomDropListCombo::InsertString(int index, LPCSTR text)
{
    return Insert(index, text);
}

// Not through the operations, which heirs override.
int CCustomDropListCombo::Insert(int index, LPCSTR text)
{
    CCustomComboLBox* const list = List();
    if (list == nullptr || index < -1)
    {
        return CB_ERR;
    }
    const WindowAlive alive(*this);
    const int result =
        index < 0 ? list->AddString(TextOf(text)) : list->InsertString(index, TextOf(text));
    if (alive)
    {
        ItemsChanged();
    }
    return result;
}

int CCustomDropListCombo::RemoveString(int index)
{
    CCustomComboLBox* const list = List();
    if (list == nullptr || index < 0)
    {
        return CB_ERR;
    }
    const WindowAlive alive(*this);
    const int result = list->DeleteString(UINT(index));
    if (alive)
    {
        ItemsChanged();
    }
    return result;
}

void CCustomDropListCombo::ResetContent()
{
    if (CCustomComboLBox* const list = List())
    {
        const WindowAlive alive(*this);
        list->ResetContent();
        if (alive)
        {
            ItemsChanged();
        }
    }
}

int CCustomDropListCombo::FindString(int after, LPCSTR text) const
{
    const CCustomComboLBox* const list = ListIfMade();
    return list == nullptr ? CB_ERR : list->FindString(after, TextOf(text));
}

int CCustomDropListCombo::FindStringExact(int after, LPCSTR text) const
{
    const CCustomComboLBox* const list = ListIfMade();
    return list == nullptr ? CB_ERR : list->FindStringExact(after, TextOf(text));
}

int CCustomDropListCombo::SelectString(int after, LPCSTR text)
{
    const WindowAlive alive(*this);
    const int found = FindString(after, text);
    return found == CB_ERR || !alive ? CB_ERR : SetCurSel(found);
}

void CCustomDropListCombo::Sort(bool ascending)
{
    struct Item
    {
        CString text;
        DWORD_PTR data;
        bool selected;
    };
    CCustomComboLBox* const list = List();
    if (list == nullptr)
    {
        return;
    }
    const WindowAlive alive(*this);
    // The list may be gone, or another's, once anybody has heard of it.
    const auto listed = [&] { return alive && list == ListIfMade(); };
    std::vector<Item> items(size_t(list->GetCount()));
    const int selected = list->GetCurSel();
    for (int index = 0; index < int(items.size()); ++index)
    {
        Item& item = items[size_t(index)];
        list->GetText(index, item.text);
        item.data = listed() ? list->GetItemData(index) : 0;
        if (!listed())
        {
            return;
        }
        item.selected = index == selected;
    }
    std::stable_sort(items.begin(), items.end(), [ascending](const Item& a, const Item& b) {
        const int order = a.text.CompareNoCase(b.text);
        return ascending ? order < 0 : order > 0;
    });
    list->ResetContent();
    for (const Item& item : items)
    {
        const int index = listed() ? list->AddString(item.text) : LB_ERR;
        if (index < 0 || !listed())
        {
            return;
        }
        list->SetItemData(index, item.data);
        if (item.selected && listed())
        {
            list->SetCurSel(index);
        }
    }
    if (alive)
    {
        ItemsChanged();
    }
}

void* CCustomDropListCombo::GetItemDataPtr(int index) const
{
    const bool known = index >= 0 && index < GetCount();
    return known ? m_list->GetItemDataPtr(index) : nullptr;
}

void* CCustomDropListCombo::RemoveItemDataPtr(int index)
{
    void* const before = CCustomDropListCombo::GetItemDataPtr(index);
    CCustomDropListCombo::SetItemDataPtr(index, nullptr);
    return before;
}

int CCustomDropListCombo::SetItemDataPtr(int index, void* data)
{
    const bool known = index >= 0 && index < GetCount();
    return known ? m_list->SetItemDataPtr(index, data) : CB_ERR;
}

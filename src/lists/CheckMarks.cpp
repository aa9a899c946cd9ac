#include "lists/CheckMarks.h"

#include <algorithm>

namespace lists {

namespace {

constexpr int Checks = 3;

// By kind of mode and by state.
constexpr const char* Names[2][2] = {
    {"CHECK_MARKS_STD_DISABLED", "CHECK_MARKS_STD_ENABLED"},
    {"CHECK_MARKS_ONBOARD_DISABLED", "CHECK_MARKS_ONBOARD_ENABLED"},
};

} // namespace

CheckMarks& CheckMarks::Of(bool onBoard, bool enabled)
{
    static CheckMarks marks[2][2];
    CheckMarks& wanted = marks[onBoard][enabled];
    wanted.m_name = Names[onBoard][enabled];
    return wanted;
}

void CheckMarks::Load()
{
    if (m_dc.GetSafeHdc() != nullptr || !m_bitmap.LoadBitmap(m_name))
    {
        return;
    }
    BITMAP bitmap = {};
    m_bitmap.GetBitmap(&bitmap);
    m_size = CSize(bitmap.bmWidth / Checks, bitmap.bmHeight);
    m_dc.CreateCompatibleDC(nullptr);
    m_dc.SelectObject(&m_bitmap); // for good
}

CSize CheckMarks::Size()
{
    Load();
    return m_size;
}

void CheckMarks::Draw(CDC& dc, const CPoint& place, int check)
{
    Load();
    const int column = std::clamp(check, 0, Checks - 1);
    dc.BitBlt(place.x, place.y, m_size.cx, m_size.cy - 1, &m_dc, m_size.cx * column, 0, SRCCOPY);
}

} // namespace lists

#include "LabelsPage.h"

#include "Look.h"
#include "resource.h"

namespace {

// Labels on the left, what has colours on the right, the group boxes below in two columns.
constexpr int Columns = 2;
constexpr int LineHeight = 17;
constexpr int LineStep = 22;
constexpr int ChoiceStep = grid::Choice;
constexpr int BoxInset = 10;

constexpr int BoxesTop = 138;
constexpr int BoxHeight = 126;
constexpr int LowBoxesTop = BoxesTop + BoxHeight + 14;
constexpr int LowBoxHeight = 62;

constexpr int SwatchSize = 20;
constexpr int SwatchStep = 28;
constexpr COLORREF Swatches[] = {RGB(200, 60, 50), RGB(220, 170, 40), RGB(70, 150, 70),
                                 RGB(60, 120, 190)};
constexpr COLORREF BoldColors[] = {RGB(170, 30, 30), RGB(20, 70, 150)};

CRect Line(int column, int row)
{
    return grid::Cell(Columns, column, row * LineStep, LineHeight);
}

CRect Box(int column, int top, int height)
{
    return grid::Cell(Columns, column, top, height);
}

CRect InBox(const CRect& box, int row)
{
    return CRect(CPoint(box.left + BoxInset, box.top + 26 + row * ChoiceStep),
                 CSize(box.Width() - 2 * BoxInset, grid::Choice));
}

enum ControlId : UINT
{
    FirstRadio = IDC_PAGE_FIRST,
    CheckBox = FirstRadio + 10,
    PushButton
};

} // namespace

BEGIN_MESSAGE_MAP(LabelsPage, GalleryPage)
    ON_CONTROL_RANGE(BN_CLICKED, FirstRadio, PushButton, &LabelsPage::OnClicked)
END_MESSAGE_MAP()

CRect LabelsPage::MakeStatic(CStatic& label, const char* text, DWORD exStyle, DWORD style,
                             const CRect& design)
{
    label.CreateEx(exStyle, "STATIC", text, style | WS_CHILD | WS_VISIBLE, design, this, UINT(-1));
    Place(label, design);
    return design;
}

void LabelsPage::MakeBox(int index, const char* caption, const CRect& design)
{
    // The group ends before the box, so that the box's own controls begin one.
    m_boxes[index].CreateEx(0, "BUTTON", caption, BS_GROUPBOX | WS_GROUP | WS_CHILD | WS_VISIBLE,
                            design, this, UINT(-1));
    m_boxes[index].SetFont(&CCustomStatic::GetStdFont());
    Place(m_boxes[index], design);
}

void LabelsPage::CreateContent()
{
    MakeStatic(m_labels[0], "A plain label", 0, SS_LEFT, Line(0, 0));
    MakeStatic(m_labels[1], "A label with a border", WS_EX_CLIENTEDGE, SS_LEFT | SS_CENTERIMAGE,
               grid::Cell(Columns, 0, LineStep, LineHeight + 4));
    MakeStatic(m_labels[2], "A disabled label", 0, SS_LEFT | WS_DISABLED,
               Line(0, 2) + CPoint(0, 6));
    // Transparent: what has no ground of its own shows the page between its lines.
    MakeStatic(m_bold[0], "Bold, red in STD", WS_EX_TRANSPARENT, SS_LEFT,
               Line(0, 3) + CPoint(0, 6));
    MakeStatic(m_bold[1], "Bold, blue in STD", WS_EX_TRANSPARENT, SS_LEFT,
               Line(0, 4) + CPoint(0, 6));
    for (int index = 0; index < BoldCount; ++index)
    {
        m_bold[index].SetColor(BoldColors[index]);
    }

    AddLabel("Colours", Line(1, 0));
    for (int index = 0; index < SwatchCount; ++index)
    {
        m_swatches[index].Set(Swatches[index]);
        MakeStatic(m_swatches[index], "", 0, SS_LEFT,
                   CRect(CPoint(grid::Left(Columns, 1) + index * SwatchStep, LineStep),
                         CSize(SwatchSize, SwatchSize)));
    }
    AddLabel("Outlines", Line(1, 2) + CPoint(0, 6));
    for (int index = 0; index < OutlineCount; ++index)
    {
        m_outlines[index].SetColor(Swatches[index == 0 ? 1 : 3]);
        MakeStatic(m_outlines[index], "", WS_EX_TRANSPARENT, SS_LEFT,
                   grid::Cell(2 * Columns, Columns + index, 3 * LineStep + 6, 38));
    }

    const CRect units = Box(0, BoxesTop, BoxHeight);
    MakeBox(0, "Units", units);
    AddButton(m_radios[0], "Metres", BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP, InBox(units, 0),
              FirstRadio);
    AddButton(m_radios[1], "Feet", BS_AUTORADIOBUTTON, InBox(units, 1), FirstRadio + 1);
    AddButton(m_radios[2], "Flight levels", BS_AUTORADIOBUTTON, InBox(units, 2), FirstRadio + 2);

    const CRect route = Box(1, BoxesTop, BoxHeight);
    MakeBox(1, "Route", route);
    AddButton(m_checkBox, "Show the route", BS_AUTOCHECKBOX | WS_GROUP | WS_TABSTOP,
              CRect(InBox(route, 0).TopLeft() + CPoint(0, (grid::Choice - grid::Check) / 2),
                    CSize(route.Width() - 2 * BoxInset, grid::Check)),
              CheckBox);
    AddButton(m_push, "Calculate", PushStyle,
              CRect(InBox(route, 1).TopLeft() + CPoint(0, 6), CSize(110, grid::Push)), PushButton);

    MakeBox(2, "", Box(0, LowBoxesTop, LowBoxHeight));
    AddLabel("A box without a caption", InBox(Box(0, LowBoxesTop, LowBoxHeight), 0));
    MakeBox(3, "A caption that is a good deal too wide for the group box that it is to name",
            Box(1, LowBoxesTop, LowBoxHeight));
    AddLabel("Its caption is too wide", InBox(Box(1, LowBoxesTop, LowBoxHeight), 0));
}

void LabelsPage::OnLaidOut()
{
    CFont& font = look::Dark() ? CCustomStatic::GetOnBoardFont() : CCustomStatic::GetStdFont();
    for (CCustomStatic& label : m_labels)
    {
        label.SetFont(&font);
    }
    // Bold is twice the weight, so the font has to name one.
    if (m_normal.GetSafeHandle() == nullptr)
    {
        LOGFONT description = {};
        CCustomStatic::GetStdFont().GetLogFont(&description);
        description.lfWeight = FW_NORMAL;
        m_normal.CreateFontIndirect(&description);
    }
    for (CBoldStatic& label : m_bold)
    {
        label.SetFont(look::Dark() ? &font : &m_normal);
    }
    // A group box keeps what its first mode made of it; its owner lets the ground through, or not.
    for (CCustomStatic& box : m_boxes)
    {
        box.ModifyStyleEx(look::Dark() ? WS_EX_TRANSPARENT : 0,
                          look::Dark() ? 0 : WS_EX_TRANSPARENT);
    }
    for (int index = 0; index < RadioCount; ++index)
    {
        m_radios[index].SetCheck(index == m_radio ? BST_CHECKED : BST_UNCHECKED);
    }
    m_checkBox.SetCheck(m_checked);
}

void LabelsPage::KeepState()
{
    for (int index = 0; index < RadioCount; ++index)
    {
        if (m_radios[index].GetCheck() == BST_CHECKED)
        {
            m_radio = index;
        }
    }
    m_checked = m_checkBox.GetCheck();
}

void LabelsPage::OnClicked(UINT id)
{
    CString caption;
    GetDlgItemText(int(id), caption);
    Events().ParentWasTold("BN_CLICKED from '" + caption + "'");
}

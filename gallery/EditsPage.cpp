#include "EditsPage.h"

#include "DisplayModes.h"
#include "Look.h"
#include "Tap.h"
#include "resource.h"

#include <AppAccess.h>
#include <EFB.h>
#include <OnBoardUIGeneral.h>

namespace {

constexpr UINT FirstId = IDC_PAGE_FIRST;

constexpr int Columns = 2;

struct EditPlace
{
    const char* caption;
    int column;
    int top;
    int height; // of the edit, without its caption
    DWORD style;

    CRect Design() const { return grid::Cell(Columns, column, top, grid::CaptionStep + height); }
};

constexpr DWORD OneLine = ES_AUTOHSCROLL;
constexpr DWORD ManyLines = ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_VSCROLL;

constexpr EditPlace Places[] = {
    {"Single line", 0, 0, grid::Line, OneLine},
    {"With a prompt", 1, 0, grid::Line, OneLine},
    {"Coloured", 0, 56, grid::Line, OneLine},
    {"Fixed in its place", 1, 56, grid::Line, OneLine},
    {"Long", 0, 112, 263, ManyLines},
    {"Read-only", 1, 112, 119, ManyLines | ES_READONLY},
    {"Read-only, and looks as if it were not", 1, 256, 119, ManyLines},
};

// Edits of the on-board modes.
constexpr COLORREF EditText = RGB(26, 26, 26);
constexpr COLORREF EditGround = RGB(180, 180, 180);

CString LongText()
{
    static constexpr const char* Sentences[] = {
        "Taxi to the holding point by way of Alpha and November.",
        "Line up and wait behind the landing traffic.",
        "Climb on runway heading to 4,000 feet, then turn left.",
        "Contact departure when airborne.",
        "Report passing flight level 100.",
    };
    CString text;
    for (int line = 0; line < 40; ++line)
    {
        CString numbered;
        numbered.Format(line > 0 ? "\r\n%d. %s" : "%d. %s", line + 1, Sentences[line % 5]);
        text += numbered;
    }
    return text;
}

constexpr const char* Briefing =
    "EDDF: runway 18 for departures only; taxi clearance is given on the apron frequency.\r\n"
    "EGLL: stands 301 to 307 closed for works until further notice; expect remote parking.\r\n"
    "EHAM: birds in large numbers near the approach path of runway 27 from sunrise to sunset.\r\n"
    "LSZH: approaches over the south until 0700 local time.";

} // namespace

BEGIN_MESSAGE_MAP(EditsPage, GalleryPage)
    ON_WM_CTLCOLOR()
    ON_CONTROL_RANGE(EN_CHANGE, FirstId, FirstId + EditCount - 1, &EditsPage::OnEditChange)
    ON_CONTROL_RANGE(EN_VSCROLL, FirstId, FirstId + EditCount - 1, &EditsPage::OnEditVScroll)
    ON_CONTROL_RANGE(EN_SETFOCUS, FirstId, FirstId + EditCount - 1, &EditsPage::OnEditSetFocus)
END_MESSAGE_MAP()

EditsPage::EditsPage(IAppAccess& host, GalleryEvents& events)
    : GalleryPage(host, events)
    , m_appAccess(host)
{}

CEdit& EditsPage::At(int index)
{
    CEdit* const edits[EditCount] = {&m_single, &m_prompt,   &m_coloured,    &m_fixed,
                                     &m_long,   &m_readOnly, &m_fauxReadOnly};
    return *edits[index];
}

void EditsPage::CreateContent()
{
    for (int index = 0; index < EditCount; ++index)
    {
        const EditPlace& place = Places[index];
        const CRect design = place.Design();
        CStatic& caption =
            AddLabel(place.caption, CRect(design.TopLeft(), CSize(design.Width(), grid::Caption)));
        CEdit& edit = At(index);
        edit.CreateEx(WS_EX_CLIENTEDGE, "EDIT", "",
                      WS_CHILD | WS_VISIBLE | WS_TABSTOP | place.style, design, this,
                      FirstId + UINT(index));
        edit.SetFont(&CCustomEdit::GetStdFont());
        if (index == Fixed)
        {
            m_fixedCaption = &caption; // it takes its place from there
        }
        else
        {
            Place(edit,
                  CRect(design.left, design.top + grid::CaptionStep, design.right, design.bottom));
        }
    }
    m_single.SetWindowText("EDDF 25C");
    m_prompt.SetPromptText("<Flight number>");
    m_coloured.SetBackgroundColor(look::ColouredGround);
    m_coloured.SetTextColor(look::ColouredText);
    m_coloured.SetWindowText("Squawk 4671");
    m_fixed.SetWindowText("Ctrl+C, X, V and Z");
    m_long.SetWindowText(LongText());
    m_readOnly.SetWindowText(Briefing);
    m_fauxReadOnly.SetWindowText(Briefing);
    m_fauxReadOnly.SetFauxReadOnly();
}

void EditsPage::OnLaidOut()
{
    CRect above;
    CRect beside;
    m_fixedCaption->GetWindowRect(&above);
    ScreenToClient(&above);
    m_coloured.GetWindowRect(&beside);
    ScreenToClient(&beside);
    m_fixed.SetFixedPlace(above.left, beside.top, above.Width());
    m_fixed.MoveWindow(above.left, beside.top, above.Width(), beside.Height());
    if (IEFB* const efb = m_appAccess.GetEFB();
        efb != nullptr && !IsFlightBag(COnBoardUIGeneral::GetAppMode()))
    {
        efb->ShowVKB(false, VKB_FOR_EDIT, m_single.GetSafeHwnd());
    }
}

void EditsPage::PoseForPicture()
{
    m_long.SendMessage(WM_VSCROLL, SB_TOP);
    for (int line = 0; line < 4; ++line)
    {
        m_long.SendMessage(WM_VSCROLL, SB_LINEDOWN);
    }
    CRect area;
    m_single.GetClientRect(&area);
    Tap(m_single, CPoint(area.right / 2, area.bottom / 2));
}

HBRUSH EditsPage::OnCtlColor(CDC* dc, CWnd* control, UINT kind)
{
    if (look::Dark() && kind == CTLCOLOR_EDIT && control != &m_prompt && control != &m_coloured)
    {
        static CBrush ground(EditGround);
        dc->SetTextColor(EditText);
        dc->SetBkColor(EditGround);
        return ground;
    }
    return GalleryPage::OnCtlColor(dc, control, kind);
}

void EditsPage::Tell(const char* notification, UINT id)
{
    CString text;
    text.Format("%s from '%s'", notification, Places[id - FirstId].caption);
    Events().ParentWasTold(text);
}

void EditsPage::OnEditChange(UINT id)
{
    Tell("EN_CHANGE", id);
}

void EditsPage::OnEditVScroll(UINT id)
{
    Tell("EN_VSCROLL", id);
}

void EditsPage::OnEditSetFocus(UINT id)
{
    Tell("EN_SETFOCUS", id);
}

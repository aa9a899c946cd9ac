#include "CustomDialogTemplate.h"

#include "CustomDialog.h"
#include "dialogs/OnBoardFrame.h"
#include "dialogs/TemplateFormat.h"
#include "modes/ChildRestyling.h"
#include "paint/GdiGuards.h"
#include "paint/MeasuringDC.h"

#include <climits>
#include <utility>

namespace {

using dialogs::UnitsAcross;
using dialogs::UnitsDown;

// In place of a dialog's left side: the platform chooses where it opens. No length.
constexpr short DefaultPosition = SHRT_MIN;

// What the platform makes of a font in a template: pixels of an average character, and the font.
struct DialogFont
{
    CSize character;
    CFont font; // without a handle for the system's
};

INT_PTR CALLBACK NoAnswer(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

// Asks an empty, hidden dialog, since the platform alone knows how it chooses and measures.
bool AskPlatform(const std::optional<dialogs::TemplateFont>& font, DialogFont& answer)
{
    const auto bytes = dialogs::EmptyTemplate(font);
    const HWND dialog = ::CreateDialogIndirectParam(AfxGetInstanceHandle(),
                                                    reinterpret_cast<LPCDLGTEMPLATE>(bytes.data()),
                                                    nullptr, &NoAnswer, 0);
    if (dialog == nullptr)
    {
        return false;
    }
    CRect unit(0, 0, UnitsAcross, UnitsDown);
    ::MapDialogRect(dialog, &unit);
    answer.character = unit.Size();
    LOGFONT description = {};
    const auto handle = reinterpret_cast<HFONT>(::SendMessage(dialog, WM_GETFONT, 0, 0));
    if (handle != nullptr && ::GetObject(handle, sizeof(description), &description) != 0)
    {
        answer.font.CreateFontIndirect(&description);
    }
    ::DestroyWindow(dialog);
    return answer.character.cx > 0 && answer.character.cy > 0;
}

// The font of on-board statics as a template names it.
dialogs::TemplateFont OnBoardTemplateFont()
{
    dialogs::CreateSharedObjects();
    CDC& screen = MeasuringDC();
    const Selected selected(screen, CCustomDialog::m_OBStaticTextFont);
    TEXTMETRIC metrics = {};
    screen.GetTextMetrics(&metrics);

    dialogs::TemplateFont font;
    font.points = WORD(::MulDiv(metrics.tmHeight - metrics.tmInternalLeading, 72,
                                screen.GetDeviceCaps(LOGPIXELSY)));
    font.face = u"Arial";
    return font;
}

short ToShort(LONGLONG value)
{
    return short(value < SHRT_MIN ? SHRT_MIN : value > SHRT_MAX ? SHRT_MAX : value);
}

short NearestUnit(int pixels, int character, int units)
{
    return ToShort(::MulDiv(pixels, units, character));
}

// The smallest number of units that gives at least so many pixels.
short CoveringUnits(LONGLONG pixels, int character, int units)
{
    return ToShort((pixels * units + character - 1) / character);
}

CRect InPixels(const dialogs::TemplatePlace& place, const CSize& character)
{
    return CRect(CPoint(::MulDiv(place.x, character.cx, UnitsAcross),
                        ::MulDiv(place.y, character.cy, UnitsDown)),
                 CSize(::MulDiv(place.cx, character.cx, UnitsAcross),
                       ::MulDiv(place.cy, character.cy, UnitsDown)));
}

dialogs::TemplatePlace InUnits(const CRect& place, const CSize& character)
{
    return {NearestUnit(place.left, character.cx, UnitsAcross),
            NearestUnit(place.top, character.cy, UnitsDown),
            NearestUnit(place.Width(), character.cx, UnitsAcross),
            NearestUnit(place.Height(), character.cy, UnitsDown)};
}

// How many bytes can be read from here on.
size_t ReadableBytes(const void* memory)
{
    const auto start = reinterpret_cast<UINT_PTR>(memory);
    UINT_PTR end = start;
    MEMORY_BASIC_INFORMATION region = {};
    constexpr DWORD noAccess = PAGE_NOACCESS | PAGE_GUARD | PAGE_EXECUTE;
    constexpr size_t enough = 0x100000; // no template is longer than this
    while (end - start < enough &&
           ::VirtualQuery(reinterpret_cast<const void*>(end), &region, sizeof(region)) != 0 &&
           region.State == MEM_COMMIT && (region.Protect & noAccess) == 0)
    {
        end = reinterpret_cast<UINT_PTR>(region.BaseAddress) + region.RegionSize;
    }
    return end - start;
}

} // namespace

CCustomDialogTemplate::~CCustomDialogTemplate() = default;

void CCustomDialogTemplate::Clear()
{
    m_bytes.clear();
    m_controls.clear();
    m_standardFont.DeleteObject();
    m_module = nullptr;
    m_rewritten = false;
}

// Loading ---------------------------------------------------------------------------------------

bool CCustomDialogTemplate::Load(LPCSTR name, HINSTANCE module)
{
    const HINSTANCE from =
        module != nullptr || name == nullptr ? module : AfxFindResourceHandle(name, RT_DIALOG);
    const HRSRC found = name == nullptr ? nullptr : ::FindResource(from, name, RT_DIALOG);
    const HGLOBAL loaded = found == nullptr ? nullptr : ::LoadResource(from, found);
    if (!Load(::LockResource(loaded), found == nullptr ? 0 : ::SizeofResource(from, found)))
    {
        return false;
    }
    m_module = from;
    return true;
}

bool CCustomDialogTemplate::Load(UINT id, HINSTANCE module)
{
    return Load(MAKEINTRESOURCE(id), module);
}

bool CCustomDialogTemplate::Load(const void* memory, size_t bytes)
{
    if (m_locks != 0)
    {
        return false;
    }
    Clear();
    if (memory == nullptr)
    {
        return false;
    }
    const dialogs::Bytes source(static_cast<const std::byte*>(memory), bytes);
    const auto layout = dialogs::ReadTemplate(source);
    if (!layout)
    {
        return false;
    }
    m_bytes = dialogs::WriteTemplate(source, *layout); // without what lies behind it
    return true;
}

bool CCustomDialogTemplate::Load(LPCDLGTEMPLATE memory)
{
    return Load(memory, memory == nullptr ? 0 : ReadableBytes(memory));
}

// Rewriting -------------------------------------------------------------------------------------

bool CCustomDialogTemplate::ChangeTemplateForOB()
{
    if (m_locks != 0 || m_rewritten)
    {
        return false;
    }
    auto layout = dialogs::ReadTemplate(m_bytes);
    DialogFont standard;
    DialogFont onBoard;
    const dialogs::TemplateFont font = OnBoardTemplateFont();
    if (!layout || !AskPlatform(layout->font, standard) || !AskPlatform(font, onBoard))
    {
        return false;
    }
    const CSize& larger = onBoard.character;
    for (dialogs::TemplateControl& control : layout->controls)
    {
        const CRect place = InPixels(control.place, standard.character);
        m_controls.push_back({control.id, place});
        control.place = InUnits(place, larger);
    }

    const CRect place = InPixels(layout->place, standard.character);
    const CSize client =
        RescaledRect(CRect(CPoint(0, 0), place.Size()), metrics::OnBoardScale).Size();
    // As the platform reads the dialog's own styles.
    const bool control = (layout->style & DS_CONTROL) != 0;
    const CSize growth = dialogs::OnBoardFrameGrowth(
        layout->style & ~(control ? DWORD(WS_CAPTION | WS_SYSMENU) : 0),
        layout->exStyle | ((layout->style & DS_MODALFRAME) != 0 ? WS_EX_DLGMODALFRAME : 0));
    const dialogs::TemplatePlace before = layout->place;
    layout->place = InUnits(place, larger);
    if (before.x == DefaultPosition)
    {
        layout->place.x = before.x;
        layout->place.y = before.y;
    }
    if (place.Width() > 0)
    {
        layout->place.cx = CoveringUnits(LONGLONG(client.cx) + growth.cx, larger.cx, UnitsAcross);
    }
    if (place.Height() > 0)
    {
        layout->place.cy = CoveringUnits(LONGLONG(client.cy) + growth.cy, larger.cy, UnitsDown);
    }
    layout->font = font;
    layout->style |= DS_SETFONT;

    m_bytes = dialogs::WriteTemplate(m_bytes, *layout);
    m_standardUnit = standard.character;
    m_standardFont.DeleteObject();
    if (standard.font.GetSafeHandle() != nullptr)
    {
        m_standardFont.Attach(standard.font.Detach());
    }
    m_rewritten = true;
    return true;
}

HFONT CCustomDialogTemplate::StandardFont() const
{
    return m_standardFont.GetSafeHandle() != nullptr
               ? HFONT(m_standardFont)
               : static_cast<HFONT>(::GetStockObject(SYSTEM_FONT));
}

// Handing out -----------------------------------------------------------------------------------

LPCDLGTEMPLATE CCustomDialogTemplate::Lock()
{
    if (m_bytes.empty())
    {
        return nullptr;
    }
    ++m_locks;
    return reinterpret_cast<LPCDLGTEMPLATE>(m_bytes.data());
}

void CCustomDialogTemplate::Unlock()
{
    m_locks -= m_locks > 0 ? 1 : 0;
}

#include "GalleryHost.h"

#include "DisplayModes.h"

#include <AppIcons.h>
#include <CustomDialog.h>
#include <CustomEdit.h>
#include <CustomPropSheet.h>

#include <cstdlib>

namespace {

constexpr int IconSize = 16;
constexpr int LargeIconSize = 32;

// Where the display mode is kept, by its name.
constexpr const char* DisplaySection = "Display";
constexpr const char* ModeKey = "Mode";

const MappedImageList* Filled(MappedImageList& list, int size)
{
    if (list.GetSafeHandle() == nullptr)
    {
        AppIcons icons;
        icons.LoadIcons();
        std::vector<AppIcons::ICON_INFO> all;
        icons.GetIcons(all);
        list.Create(size, size, ILC_COLOR32 | ILC_MASK, int(all.size()), 1);
        for (const AppIcons::ICON_INFO& each : all)
        {
            list.AddIcon(each.id, each.icon);
        }
    }
    return &list;
}

template <class Class> void TakeBack(const IEFB* efb)
{
    if (Class::GetEfb() == efb)
    {
        Class::SetEfb(nullptr);
    }
}

} // namespace

GalleryEfb::GalleryEfb(IAppAccess& host)
    : m_host(host)
{
    CCustomEdit::SetEfb(this);
    CCustomDialog::SetEfb(this);
    CCustomPropSheet::SetEfb(this);
}

GalleryEfb::~GalleryEfb()
{
    // Another may have been given since.
    TakeBack<CCustomEdit>(this);
    TakeBack<CCustomDialog>(this);
    TakeBack<CCustomPropSheet>(this);
}

bool GalleryEfb::GetAvailableArea(int& x, int& y, int& width, int& height)
{
    return m_host.GetAvailableArea(GAA_WINDOW_AREA, x, y, width, height);
}

bool GalleryEfb::BeginModalDialog()
{
    ++m_modalDialogs;
    return true;
}

bool GalleryEfb::EndModalDialog()
{
    m_modalDialogs -= m_modalDialogs > 0 ? 1 : 0;
    return true;
}

void GalleryEfb::ShowVKB(bool show, VKB_SHOW_POS, HWND window)
{
    const HWND top = ::GetAncestor(window, GA_ROOT);
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    if (show && top != nullptr && GetAvailableArea(x, y, width, height))
    {
        m_keyboard.ShowFor(window, *CWnd::FromHandle(top),
                           CRect(CPoint(x, y), CSize(width, height)));
    }
    else
    {
        m_keyboard.Hide();
    }
}

GalleryHost::GalleryHost()
    : m_efb(*this)
{}

APPMODE GalleryHost::KeptMode()
{
    return ModeNamed(GetConfigVal(DisplaySection, ModeKey, "")).value_or(STD);
}

void GalleryHost::KeepMode(APPMODE mode)
{
    SetConfigVal(DisplaySection, ModeKey, APPMODE_NAMES[mode]);
}

CString GalleryHost::GetConfigVal(const char* section, const char* key, const char* fallback)
{
    return m_settings.Get(section, key, fallback);
}

int GalleryHost::GetConfigVal(const char* section, const char* key, int fallback)
{
    const CString value = m_settings.Get(section, key, "");
    return value.IsEmpty() ? fallback : std::atoi(value);
}

void GalleryHost::SetConfigVal(const char* section, const char* key, const char* value)
{
    m_settings.Set(section, key, value);
}

void GalleryHost::SetConfigVal(const char* section, const char* key, int value)
{
    CString text;
    text.Format("%d", value);
    m_settings.Set(section, key, text);
}

bool GalleryHost::GetAvailableArea(GAA_TYPE type, int& x, int& y, int& width, int& height)
{
    if (type != GAA_WINDOW_AREA || m_window == nullptr || m_window->GetSafeHwnd() == nullptr)
    {
        return IAppAccess::GetAvailableArea(type, x, y, width, height);
    }
    CRect area;
    m_window->GetClientRect(&area);
    m_window->ClientToScreen(&area);
    x = area.left;
    y = area.top;
    width = area.Width();
    height = area.Height();
    return true;
}

void GalleryHost::GetProductName(CString& name)
{
    name = "OnBoardUI Gallery";
}

const MappedImageList* GalleryHost::GetMasterIconList() const
{
    return Filled(m_icons, IconSize);
}

const MappedImageList* GalleryHost::GetMasterLargeIconList() const
{
    return Filled(m_largeIcons, LargeIconSize);
}

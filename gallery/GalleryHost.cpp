#include "GalleryHost.h"

GalleryEfb::GalleryEfb(IAppAccess& host)
    : m_host(host)
{}

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

GalleryHost::GalleryHost()
    : m_efb(*this)
{}

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

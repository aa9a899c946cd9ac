#include "framework/DeviceContext.h"

#include "GdiMaps.h"
#include "framework/Wnd.h"

IMPLEMENT_DYNAMIC(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

namespace {

HWND HandleOf(const CWnd* window)
{
    return window == nullptr ? nullptr : window->m_hWnd;
}

} // namespace

CDC* PASCAL CDC::FromHandle(HDC handle)
{
    CDC* dc = framework::ThreadGdiMaps().contexts.Find(handle,
                                                       [](HDC) { return std::make_unique<CDC>(); });
    if (dc != nullptr && dc->m_hDC == nullptr)
    {
        dc->m_hDC = dc->m_hAttribDC = handle;
    }
    return dc;
}

void PASCAL CDC::DeleteTempMap()
{
    framework::ThreadGdiMaps().DeleteTemporaryContexts();
}

CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

BOOL CDC::Attach(HDC handle)
{
    ASSERT(m_hDC == nullptr);
    if (handle == nullptr)
    {
        return FALSE;
    }
    SetOutputDC(handle);
    SetAttribDC(handle);
    return TRUE;
}

HDC CDC::Detach()
{
    const HDC handle = m_hDC;
    ReleaseOutputDC();
    ReleaseAttribDC();
    return handle;
}

void CDC::SetOutputDC(HDC handle)
{
    m_hDC = handle;
    framework::ThreadGdiMaps().contexts.SetPermanent(handle, this);
}

void CDC::ReleaseOutputDC()
{
    if (m_hDC != nullptr)
    {
        framework::ThreadGdiMaps().contexts.Remove(m_hDC, this);
        m_hDC = nullptr;
    }
}

CGdiObject* CDC::SelectObject(CGdiObject* object)
{
    // What comes back for a region is a kind of region and no handle.
    ASSERT(object == nullptr || object->GetObjectType() != OBJ_REGION);
    return CGdiObject::FromHandle(Select(object));
}

CGdiObject* CDC::SelectStockObject(int index)
{
    return CGdiObject::FromHandle(OnBoth(::SelectObject, ::GetStockObject(index)));
}

void CDC::DPtoLP(LPSIZE size) const
{
    CRect rect(CPoint(0, 0), *size);
    DPtoLP(&rect);
    *size = rect.Size();
}

void CDC::LPtoDP(LPSIZE size) const
{
    CRect rect(CPoint(0, 0), *size);
    LPtoDP(&rect);
    *size = rect.Size();
}

int CDC::ExcludeUpdateRgn(CWnd* window)
{
    return ::ExcludeUpdateRgn(m_hDC, window->m_hWnd);
}

void CDC::FillSolidRect(LPCRECT rect, COLORREF color)
{
    const COLORREF before = ::SetBkColor(m_hDC, color);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, before);
}

void CDC::FillSolidRect(int x, int y, int width, int height, COLORREF color)
{
    FillSolidRect(CRect(CPoint(x, y), CSize(width, height)), color);
}

// The right and the bottom line own the corners that they share with the others.
void CDC::Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight)
{
    const RECT& r = *rect;
    FillSolidRect(CRect(r.left, r.top, r.right - 1, r.top + 1), topLeft);
    FillSolidRect(CRect(r.left, r.top, r.left + 1, r.bottom - 1), topLeft);
    FillSolidRect(CRect(r.right - 1, r.top, r.right, r.bottom), bottomRight);
    FillSolidRect(CRect(r.left, r.bottom - 1, r.right, r.bottom), bottomRight);
}

void CDC::Draw3dRect(int x, int y, int width, int height, COLORREF topLeft, COLORREF bottomRight)
{
    Draw3dRect(CRect(CPoint(x, y), CSize(width, height)), topLeft, bottomRight);
}

int CDC::GetTextFace(CString& name) const
{
    char face[LF_FACESIZE] = "";
    const int count = GetTextFace(LF_FACESIZE, face);
    name = face;
    return count;
}

CClientDC::CClientDC(CWnd* window)
    : m_hWnd(HandleOf(window))
{
    VERIFY(Attach(::GetDC(m_hWnd)));
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* window)
    : m_hWnd(HandleOf(window))
{
    VERIFY(Attach(::GetWindowDC(m_hWnd)));
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd* window)
    : m_hWnd(HandleOf(window))
{
    // The window is told to paint its frame and its ground now and may end in that, together with
    // its context.
    if (const HDC handle = ::BeginPaint(m_hWnd, &m_ps); ::IsWindow(m_hWnd))
    {
        VERIFY(Attach(handle));
    }
}

CPaintDC::~CPaintDC()
{
    if (Detach() != nullptr && ::IsWindow(m_hWnd))
    {
        ::EndPaint(m_hWnd, &m_ps);
    }
}

#include "framework/Gdi.h"

#include "GdiMaps.h"

#include <cstdlib>

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace framework {
namespace {

// A plain pointer outlives the destructors of the thread: whoever asks later gets new maps.
thread_local GdiMaps* threadMaps = nullptr;

struct EndOfThread
{
    EndOfThread() = default;
    ~EndOfThread()
    {
        delete threadMaps;
        threadMaps = nullptr;
    }
};

} // namespace

GdiMaps& ThreadGdiMaps()
{
    if (threadMaps == nullptr)
    {
        threadMaps = new GdiMaps;
        [[maybe_unused]] static thread_local const EndOfThread end;
    }
    return *threadMaps;
}

GdiMaps::~GdiMaps()
{
    DeleteAllTemporaries(0); // the thread may end in a modal loop
}

void GdiMaps::DeleteTemporaryObjects(int depth)
{
    for (Objects* map : {&pens, &brushes, &fonts, &bitmaps, &regions, &others})
    {
        map->DeleteTemporaries([](CGdiObject& object) { object.m_hObject = nullptr; }, depth);
    }
}

void GdiMaps::DeleteTemporaryContexts(int depth)
{
    contexts.DeleteTemporaries([](CDC& dc) { dc.m_hDC = dc.m_hAttribDC = nullptr; }, depth);
}

void GdiMaps::DeleteTemporaryImageLists(int depth)
{
    imageLists.DeleteTemporaries([](CImageList& images) { images.m_hImageList = nullptr; }, depth);
}

void GdiMaps::DeleteAllTemporaries(int depth)
{
    DeleteTemporaryObjects(depth);
    DeleteTemporaryContexts(depth);
    DeleteTemporaryImageLists(depth);
}

void DeleteTemporaryGdiObjects()
{
    ThreadGdiMaps().DeleteAllTemporaries();
}

namespace {

// The owner of the handle if it is a Class, else a temporary one.
template <class Class> Class* ObjectFor(HGDIOBJ handle, GdiMaps::Objects GdiMaps::*temporaries)
{
    GdiMaps& maps = ThreadGdiMaps();
    if (CGdiObject* owner = maps.owners.FindPermanent(handle);
        owner != nullptr && owner->IsKindOf(RUNTIME_CLASS(Class)))
    {
        return static_cast<Class*>(owner);
    }
    CGdiObject* object =
        (maps.*temporaries).Find(handle, [](HGDIOBJ) { return std::make_unique<Class>(); });
    if (object != nullptr)
    {
        object->m_hObject = handle; // also when somebody took the handle away from it before
    }
    return static_cast<Class*>(object);
}

} // namespace
} // namespace framework

using framework::GdiMaps;
using framework::ObjectFor;

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ handle)
{
    if (CGdiObject* owner = framework::ThreadGdiMaps().owners.FindPermanent(handle))
    {
        return owner;
    }
    switch (::GetObjectType(handle))
    {
    case OBJ_PEN:
    case OBJ_EXTPEN:
        return CPen::FromHandle(HPEN(handle));
    case OBJ_BRUSH:
        return CBrush::FromHandle(HBRUSH(handle));
    case OBJ_FONT:
        return CFont::FromHandle(HFONT(handle));
    case OBJ_BITMAP:
        return CBitmap::FromHandle(HBITMAP(handle));
    case OBJ_REGION:
        return CRgn::FromHandle(HRGN(handle));
    default:
        return ObjectFor<CGdiObject>(handle, &GdiMaps::others);
    }
}

void PASCAL CGdiObject::DeleteTempMap()
{
    framework::ThreadGdiMaps().DeleteTemporaryObjects();
}

BOOL CGdiObject::Attach(HGDIOBJ handle)
{
    ASSERT(m_hObject == nullptr);
    if (handle == nullptr)
    {
        return FALSE;
    }
    m_hObject = handle;
    framework::ThreadGdiMaps().owners.SetPermanent(handle, this);
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    const HGDIOBJ handle = m_hObject;
    if (handle != nullptr)
    {
        framework::ThreadGdiMaps().owners.Remove(handle, this);
        m_hObject = nullptr;
    }
    return handle;
}

BOOL CGdiObject::DeleteObject()
{
    return m_hObject != nullptr && ::DeleteObject(Detach());
}

CPen* PASCAL CPen::FromHandle(HPEN handle)
{
    return ObjectFor<CPen>(handle, &GdiMaps::pens);
}

CBrush* PASCAL CBrush::FromHandle(HBRUSH handle)
{
    return ObjectFor<CBrush>(handle, &GdiMaps::brushes);
}

CFont* PASCAL CFont::FromHandle(HFONT handle)
{
    return ObjectFor<CFont>(handle, &GdiMaps::fonts);
}

CBitmap* PASCAL CBitmap::FromHandle(HBITMAP handle)
{
    return ObjectFor<CBitmap>(handle, &GdiMaps::bitmaps);
}

CRgn* PASCAL CRgn::FromHandle(HRGN handle)
{
    return ObjectFor<CRgn>(handle, &GdiMaps::regions);
}

BOOL CBrush::CreatePatternBrush(CBitmap* pattern)
{
    return Attach(::CreatePatternBrush(*pattern));
}

BOOL CFont::CreatePointFont(int tenths, LPCTSTR faceName, CDC* dc)
{
    LOGFONT font = {};
    font.lfHeight = tenths;
    font.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpyn(font.lfFaceName, faceName, LF_FACESIZE);
    return CreatePointFontIndirect(&font, dc);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONT* font, CDC* dc)
{
    const HDC screen = dc == nullptr ? ::GetDC(nullptr) : nullptr;
    const HDC measured = dc == nullptr ? screen : dc->m_hAttribDC;

    // 720 tenths of a point are an inch; the mapping mode may scale or turn the axis.
    POINT ends[] = {{0, 0},
                    {0, ::MulDiv(font->lfHeight, ::GetDeviceCaps(measured, LOGPIXELSY), 720)}};
    ::DPtoLP(measured, ends, 2);
    LOGFONT scaled = *font;
    scaled.lfHeight = -std::abs(ends[1].y - ends[0].y);

    if (screen != nullptr)
    {
        ::ReleaseDC(nullptr, screen);
    }
    return CreateFontIndirect(&scaled);
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height)
{
    return Attach(::CreateCompatibleBitmap(dc->m_hDC, width, height));
}

#include "Pictures.h"

#include "Look.h"
#include "Output.h"
#include "Pages.h"

#include <gdiplus.h>

#include <cstring>
#include <iterator>

namespace {

// The PNG encoder of the platform's image services.
constexpr CLSID PngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

// How long a window may take to come to rest; what moves on purpose never does.
constexpr DWORD SettleLimit = 2000; // ms
constexpr DWORD SettleStep = 40;    // ms

class ImageServices
{
public:
    ImageServices()
    {
        const Gdiplus::GdiplusStartupInput input;
        m_ready = Gdiplus::GdiplusStartup(&m_token, &input, nullptr) == Gdiplus::Ok;
    }
    ImageServices(const ImageServices&) = delete;
    ImageServices& operator=(const ImageServices&) = delete;
    ~ImageServices()
    {
        if (m_ready)
        {
            Gdiplus::GdiplusShutdown(m_token);
        }
    }

    bool WritePng(HBITMAP bitmap, const CString& path) const
    {
        WCHAR wide[MAX_PATH] = L"";
        Gdiplus::GpBitmap* image = nullptr;
        if (!m_ready || ::MultiByteToWideChar(CP_ACP, 0, path, -1, wide, MAX_PATH) == 0 ||
            Gdiplus::DllExports::GdipCreateBitmapFromHBITMAP(bitmap, nullptr, &image) !=
                Gdiplus::Ok)
        {
            return false;
        }
        const bool written = Gdiplus::DllExports::GdipSaveImageToFile(image, wide, &PngEncoder,
                                                                      nullptr) == Gdiplus::Ok;
        Gdiplus::DllExports::GdipDisposeImage(image);
        return written;
    }

private:
    ULONG_PTR m_token = 0;
    bool m_ready = false;
};

// What the screen shows where a window is, its frame included.
class Snapshot
{
public:
    explicit Snapshot(const CWnd& window)
    {
        CRect rect;
        window.GetWindowRect(&rect);
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = rect.Width();
        info.bmiHeader.biHeight = rect.Height();
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 24; // no byte left over for an alpha that nothing sets
        m_size = size_t((rect.Width() * 3 + 3) / 4 * 4) * size_t(rect.Height());

        CClientDC screen(nullptr);
        CDC memory;
        memory.CreateCompatibleDC(&screen);
        m_bitmap.Attach(::CreateDIBSection(screen, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0));
        const InUse copied(memory, m_bitmap);
        memory.BitBlt(0, 0, rect.Width(), rect.Height(), &screen, rect.left, rect.top, SRCCOPY);
        ::GdiFlush();
    }

    HBITMAP Bitmap() const { return m_bitmap; }
    bool Shows(const Snapshot& other) const
    {
        return m_bits != nullptr && other.m_bits != nullptr && m_size == other.m_size &&
               std::memcmp(m_bits, other.m_bits, m_size) == 0;
    }

private:
    CBitmap m_bitmap;
    void* m_bits = nullptr;
    size_t m_size = 0;
};

// Handles all that waits, for at least a moment.
void Pump(DWORD milliseconds)
{
    const DWORD start = ::GetTickCount();
    for (DWORD passed = 0; passed < milliseconds; passed = ::GetTickCount() - start)
    {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, milliseconds - passed, QS_ALLINPUT);
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
        {
            AfxPumpMessage();
        }
    }
}

// A picture of the window once all is painted and the screen shows the same twice running.
std::unique_ptr<Snapshot> Settled(GalleryFrame& frame)
{
    const DWORD start = ::GetTickCount();
    auto last = std::make_unique<Snapshot>(frame);
    do
    {
        Pump(SettleStep);
        frame.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        Pump(SettleStep);
        auto next = std::make_unique<Snapshot>(frame);
        const bool settled = next->Shows(*last);
        last = std::move(next);
        if (settled)
        {
            break;
        }
    } while (::GetTickCount() - start < SettleLimit);
    return last;
}

CString PicturePath(const CString& folder, const PageEntry& page, APPMODE mode, const char* suffix)
{
    CString name = CString(page.name) + "-" + APPMODE_NAMES[mode] + suffix + ".png";
    name.MakeLower();
    return folder + "\\" + name;
}

} // namespace

bool WritePictures(GalleryFrame& frame, const CommandLine& options)
{
    const ImageServices images;
    // What else is on the display must not cover it.
    ::SetWindowPos(frame, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    Settled(frame); // its first activation would come over what a page opens
    ::CreateDirectory(options.pictures, nullptr);

    bool all = true;
    const auto pages = Pages();
    for (size_t page = 0; page < pages.size(); ++page)
    {
        for (int mode = 0; mode < int(std::size(APPMODE_NAMES)); ++mode)
        {
            if (options.page.value_or(page) != page || options.mode.value_or(APPMODE(mode)) != mode)
            {
                continue;
            }
            if (!frame.ShowPage(page))
            {
                PrintLine(CString("Could not be opened: ") + pages[page].name);
                all = false;
                continue;
            }
            frame.Switches().Tap(APPMODE(mode));
            frame.Page().TakePictures([&](const char* suffix) {
                const auto picture = Settled(frame);
                const CString path =
                    PicturePath(options.pictures, pages[page], APPMODE(mode), suffix);
                if (images.WritePng(picture->Bitmap(), path))
                {
                    PrintLine(path);
                }
                else
                {
                    PrintLine("Could not be written: " + path);
                    all = false;
                }
            });
        }
    }
    frame.Switches().Tap(STD);
    return all;
}

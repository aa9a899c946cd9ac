#pragma once

#include "support/RunningProgram.h"
#include "support/WindowTest.h"

// The gallery's program, from beside the tests'.
inline std::string GalleryCommand(const std::string& arguments)
{
    char own[MAX_PATH] = "";
    ::GetModuleFileName(nullptr, own, MAX_PATH);
    const std::string path(own);
    return '"' + path.substr(0, path.find_last_of('\\') + 1) + "gallery.exe\" " + arguments;
}

constexpr const char* Title = "OnBoardUI Gallery";

class RunningGallery : public RunningProgram
{
public:
    explicit RunningGallery(const std::string& arguments)
        : RunningProgram(GalleryCommand(arguments))
    {}

    // Once there is one.
    HWND Window(const char* title) const
    {
        HWND found = nullptr;
        PumpUntil([&] { return (found = RunningProgram::Window(title)) != nullptr; }, 20000);
        return found;
    }
};

// A visible window on a page of its frame, of that class and with that text, or the page that is
// shown, once there is one.
inline HWND Shown(HWND frame, const char* text = nullptr, const char* windowClass = nullptr)
{
    HWND found = nullptr;
    PumpUntil(
        [&] {
            HWND page = nullptr;
            while (found == nullptr && (page = ::FindWindowEx(frame, page, "#32770", nullptr)))
            {
                found = text == nullptr ? page : ::FindWindowEx(page, nullptr, windowClass, text);
                found = ::IsWindowVisible(found) ? found : nullptr;
            }
            return found != nullptr;
        },
        10000);
    return found;
}

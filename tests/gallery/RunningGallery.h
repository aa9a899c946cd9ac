#pragma once

#include "support/WindowTest.h"

#include <string>

// The gallery's program, from beside the tests'.
inline std::string GalleryCommand(const std::string& arguments)
{
    char own[MAX_PATH] = "";
    ::GetModuleFileName(nullptr, own, MAX_PATH);
    const std::string path(own);
    return '"' + path.substr(0, path.find_last_of('\\') + 1) + "gallery.exe\" " + arguments;
}

constexpr const char* Title = "OnBoardUI Gallery";

// Ended with the object.
class RunningGallery
{
public:
    explicit RunningGallery(const std::string& arguments)
    {
        std::string command = GalleryCommand(arguments);
        STARTUPINFO start = {};
        start.cb = sizeof(start);
        PROCESS_INFORMATION made = {};
        if (::CreateProcess(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                            &start, &made))
        {
            m_process = made.hProcess;
            m_id = made.dwProcessId;
            ::CloseHandle(made.hThread);
        }
    }
    RunningGallery(const RunningGallery&) = delete;
    RunningGallery& operator=(const RunningGallery&) = delete;
    ~RunningGallery()
    {
        ::TerminateProcess(m_process, 0);
        ::WaitForSingleObject(m_process, 5000);
        ::CloseHandle(m_process);
    }

    // Its first visible top-level window with that text, once there is one.
    HWND Window(const char* title) const
    {
        HWND found = nullptr;
        PumpUntil(
            [&] {
                DWORD process = 0;
                do
                {
                    found = ::FindWindowEx(nullptr, found, nullptr, title);
                    ::GetWindowThreadProcessId(found, &process);
                } while (found != nullptr && (process != m_id || !::IsWindowVisible(found)));
                return found != nullptr;
            },
            20000);
        return found;
    }

private:
    HANDLE m_process = nullptr;
    DWORD m_id = 0;
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

#pragma once

#include "support/WindowTest.h"

#include <string>

// The gallery's program, from beside the tests'. Ended with the object.
class RunningGallery
{
public:
    // What it prints goes to the handles given, which it has to be able to inherit.
    explicit RunningGallery(const std::string& arguments, HANDLE output = nullptr,
                            HANDLE errors = nullptr)
    {
        char own[MAX_PATH] = "";
        ::GetModuleFileName(nullptr, own, MAX_PATH);
        std::string command(own);
        command = '"' + command.substr(0, command.find_last_of('\\') + 1) + "gallery.exe\" ";
        command += arguments;
        STARTUPINFO start = {};
        start.cb = sizeof(start);
        start.dwFlags = output != nullptr ? STARTF_USESTDHANDLES : 0;
        start.hStdOutput = output;
        start.hStdError = errors;
        PROCESS_INFORMATION made = {};
        if (::CreateProcess(nullptr, command.data(), nullptr, nullptr, output != nullptr, 0,
                            nullptr, nullptr, &start, &made))
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
                while ((found = ::FindWindowEx(nullptr, found, nullptr, title)) != nullptr)
                {
                    DWORD process = 0;
                    ::GetWindowThreadProcessId(found, &process);
                    if (process == m_id && ::IsWindowVisible(found))
                    {
                        return true;
                    }
                }
                return false;
            },
            20000);
        return found;
    }

    // Its exit code, once it has ended by itself.
    DWORD Ended() const
    {
        DWORD code = STILL_ACTIVE;
        ::WaitForSingleObject(m_process, 20000);
        ::GetExitCodeProcess(m_process, &code);
        return code;
    }

private:
    HANDLE m_process = nullptr;
    DWORD m_id = 0;
};

inline CRect PlaceOf(HWND window)
{
    CRect place;
    ::GetWindowRect(window, &place);
    return place;
}

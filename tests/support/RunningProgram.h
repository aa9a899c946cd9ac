#pragma once

#include <windows.h>

#include <string>

// Another program; ended with the object if it has not ended by then.
class RunningProgram
{
public:
    explicit RunningProgram(std::string commandLine)
    {
        STARTUPINFO start = {.cb = sizeof(start)};
        ::CreateProcess(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &start, &m_process);
    }
    RunningProgram(const RunningProgram&) = delete;
    RunningProgram& operator=(const RunningProgram&) = delete;
    ~RunningProgram()
    {
        ::TerminateProcess(m_process.hProcess, 1);
        EndsWithin(5000);
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }

    bool Started() const { return m_process.hProcess != nullptr; }
    bool EndsWithin(DWORD milliseconds) const
    {
        return ::WaitForSingleObject(m_process.hProcess, milliseconds) == WAIT_OBJECT_0;
    }
    DWORD ExitCode() const
    {
        DWORD code = STILL_ACTIVE;
        ::GetExitCodeProcess(m_process.hProcess, &code);
        return code;
    }

    // Its first visible top-level window with that text, if there is one by now.
    HWND Window(const char* title) const
    {
        HWND found = nullptr;
        DWORD process = 0;
        do
        {
            found = ::FindWindowEx(nullptr, found, nullptr, title);
            ::GetWindowThreadProcessId(found, &process);
        } while (found != nullptr &&
                 (process != m_process.dwProcessId || !::IsWindowVisible(found)));
        return found;
    }

private:
    PROCESS_INFORMATION m_process = {};
};

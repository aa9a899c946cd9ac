#include "Output.h"

namespace {

bool IsOpen(HANDLE output)
{
    return output != nullptr && output != INVALID_HANDLE_VALUE;
}

bool Print(DWORD which, const CString& line)
{
    HANDLE output = ::GetStdHandle(which);
    if (!IsOpen(output) && ::AttachConsole(ATTACH_PARENT_PROCESS))
    {
        output = ::CreateFile("CONOUT$", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_EXISTING, 0, nullptr);
        ::SetStdHandle(which, output);
    }
    const CString text = line + "\r\n";
    DWORD written = 0;
    return IsOpen(output) &&
           ::WriteFile(output, LPCSTR(text), DWORD(text.GetLength()), &written, nullptr) != 0 &&
           written == DWORD(text.GetLength());
}

} // namespace

bool PrintLine(const CString& line)
{
    return Print(STD_OUTPUT_HANDLE, line);
}

bool PrintProblem(const CString& line)
{
    return Print(STD_ERROR_HANDLE, line);
}

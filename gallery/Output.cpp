#include "Output.h"

bool PrintLine(const CString& line)
{
    const CString text = line + "\r\n";
    const HANDLE output = ::GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD written = 0;
    return output != nullptr && output != INVALID_HANDLE_VALUE &&
           ::WriteFile(output, LPCSTR(text), DWORD(text.GetLength()), &written, nullptr) != 0 &&
           written == DWORD(text.GetLength());
}

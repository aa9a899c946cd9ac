#include "framework/RichEditCtrl.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CRichEditCtrl, CWnd)

BOOL AfxInitRichEdit2()
{
    // Never unloaded: windows of its class may exist until the process ends.
    static const HMODULE library = ::LoadLibrary("riched20.dll");
    return library != nullptr;
}

void CRichEditCtrl::GetSel(long& start, long& end) const
{
    CHARRANGE range = {};
    GetSel(range);
    start = range.cpMin;
    end = range.cpMax;
}

CString CRichEditCtrl::GetSelText() const
{
    CHARRANGE range = {};
    GetSel(range);
    CString text;
    GetTextRange(range.cpMin, range.cpMax, text);
    return text;
}

int CRichEditCtrl::GetTextRange(int first, int last, CString& text) const
{
    const int length = int(GetTextLength());
    const int end = last < 0 ? length : std::min(last, length);
    const int begin = std::clamp(first, 0, end);
    TEXTRANGE range = {};
    range.chrg = {begin, end};
    // A character may take two bytes in the system's code page.
    range.lpstrText = text.GetBufferSetLength((end - begin) * 2);
    const auto copied = int(SendMessage(EM_GETTEXTRANGE, 0, LPARAM(&range)));
    text.ReleaseBuffer();
    return copied;
}

#include "framework/Exceptions.h"

#include "Guarded.h"
#include "framework/App.h"
#include "framework/ControlBar.h"

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)

void CException::Delete()
{
    if (m_autoDelete)
    {
        delete this;
    }
}

BOOL CException::GetErrorMessage(LPSTR buffer, UINT size, UINT* helpContext) const
{
    if (buffer != nullptr && size > 0)
    {
        buffer[0] = '\0';
    }
    if (helpContext != nullptr)
    {
        *helpContext = 0;
    }
    return FALSE;
}

BOOL CSimpleException::GetErrorMessage(LPSTR buffer, UINT size, UINT* helpContext) const
{
    CException::GetErrorMessage(buffer, size, helpContext);
    return m_text != nullptr && buffer != nullptr && size > 0 &&
           ::lstrcpyn(buffer, m_text, int(size)) != nullptr;
}

namespace {

constexpr UINT LongestText = 512;

// Empty if it has nothing to say.
CString TextOf(const CException& thrown)
{
    CString text;
    const BOOL says = thrown.GetErrorMessage(text.GetBuffer(LongestText), LongestText);
    text.ReleaseBuffer();
    return says ? text : CString();
}

} // namespace

int CException::ReportError(UINT type, UINT messageId)
{
    CString text = TextOf(*this);
    if (text.IsEmpty() && (messageId == 0 || !text.LoadString(messageId)))
    {
        text = "No error message is available.";
    }
    return AfxMessageBox(text, type);
}

void AfxThrowMemoryException()
{
    throw new CMemoryException;
}

void AfxThrowNotSupportedException()
{
    throw new CNotSupportedException;
}

void AfxThrowResourceException()
{
    throw new CResourceException;
}

void AfxThrowInvalidArgException()
{
    throw new CInvalidArgException;
}

void AfxThrowUserException()
{
    throw new CUserException;
}

// Out of a handler ------------------------------------------------------------------------------

namespace {

LRESULT AnswerOf(const MSG& message)
{
    if (message.message == WM_PAINT)
    {
        ::ValidateRect(message.hwnd, nullptr); // or the message would come again at once
    }
    return message.message == WM_CREATE ? -1 : 0;
}

// From a menu, an accelerator or a tool bar, not from a control.
bool IsCommand(const MSG& message)
{
    const auto from = reinterpret_cast<HWND>(message.lParam);
    return message.message == WM_COMMAND &&
           (from == nullptr ||
            DYNAMIC_DOWNCAST(CControlBar, CWnd::FromHandlePermanent(from)) != nullptr);
}

} // namespace

namespace framework {

LRESULT AnswerThrown(CException& thrown, const MSG& message)
{
    CWinThread* const thread = AfxGetThread();
    return thread == nullptr ? AnswerOf(message)
                             : thread->ProcessWndProcException(&thrown, &message);
}

// One of the standard library's says itself what went wrong.
LRESULT AnswerThrown(const std::exception& thrown, const MSG& message)
{
    struct Standard : CSimpleException
    {
        explicit Standard(LPCSTR text)
            : CSimpleException(FALSE, text)
        {}
    };
    Standard told(thrown.what());
    return AnswerThrown(told, message);
}

} // namespace framework

LRESULT CWinThread::ProcessWndProcException(CException*, const MSG* message)
{
    return AnswerOf(*message);
}

LRESULT CWinApp::ProcessWndProcException(CException* thrown, const MSG* message)
{
    const LRESULT answer = CWinThread::ProcessWndProcException(thrown, message);
    if (!thrown->IsKindOf(RUNTIME_CLASS(CUserException)))
    {
        CString text(IsCommand(*message) ? "Command failed." : "Internal application error.");
        const CString why = TextOf(*thrown);
        if (!why.IsEmpty())
        {
            text += "\n\n" + why;
        }
        AfxMessageBox(text, MB_OK | MB_ICONSTOP);
    }
    return message->message == WM_COMMAND ? TRUE : answer;
}

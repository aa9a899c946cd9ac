#pragma once

// What is thrown, by pointer: who catches one calls Delete. One that leaves a handler of a message
// goes no further than the window procedure: CWinThread::ProcessWndProcException answers instead.

#include "framework/Object.h"

class FRAMEWORK_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)

public:
    // autoDelete: the object is on the heap, and Delete deletes it.
    explicit CException(BOOL autoDelete = TRUE)
        : m_autoDelete(autoDelete)
    {}
    void Delete();

    // What went wrong, cut to the buffer; FALSE and an empty text when there is nothing to say.
    virtual BOOL GetErrorMessage(LPSTR buffer, UINT size, UINT* helpContext = nullptr) const;
    // Tells the user; without a text of its own, the string resource messageId. The box's answer.
    virtual int ReportError(UINT type = MB_OK, UINT messageId = 0);

private:
    BOOL m_autoDelete;
};

// One that says the same each time.
class FRAMEWORK_API CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)

public:
    BOOL GetErrorMessage(LPSTR buffer, UINT size, UINT* helpContext = nullptr) const override;

protected:
    CSimpleException(BOOL autoDelete, LPCSTR text)
        : CException(autoDelete)
        , m_text(text)
    {}

private:
    LPCSTR m_text; // null for none
};

class FRAMEWORK_API CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)

public:
    explicit CMemoryException(BOOL autoDelete = TRUE)
        : CSimpleException(autoDelete, "Out of memory.")
    {}
};

class FRAMEWORK_API CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)

public:
    explicit CNotSupportedException(BOOL autoDelete = TRUE)
        : CSimpleException(autoDelete, "This is not supported.")
    {}
};

class FRAMEWORK_API CResourceException : public CSimpleException
{
    DECLARE_DYNAMIC(CResourceException)

public:
    explicit CResourceException(BOOL autoDelete = TRUE)
        : CSimpleException(autoDelete, "A resource is missing.")
    {}
};

class FRAMEWORK_API CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)

public:
    explicit CInvalidArgException(BOOL autoDelete = TRUE)
        : CSimpleException(autoDelete, "An argument is not valid.")
    {}
};

// An operation that ended on behalf of the user, who knows already.
class FRAMEWORK_API CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)

public:
    explicit CUserException(BOOL autoDelete = TRUE)
        : CSimpleException(autoDelete, nullptr)
    {}
};

[[noreturn]] FRAMEWORK_API void AfxThrowMemoryException();
[[noreturn]] FRAMEWORK_API void AfxThrowNotSupportedException();
[[noreturn]] FRAMEWORK_API void AfxThrowResourceException();
[[noreturn]] FRAMEWORK_API void AfxThrowInvalidArgException();
[[noreturn]] FRAMEWORK_API void AfxThrowUserException();

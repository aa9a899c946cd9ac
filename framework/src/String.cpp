#include "framework/String.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

LPCTSTR OrEmpty(LPCTSTR text)
{
    return text == nullptr ? "" : text;
}

std::string Formatted(LPCTSTR givenFormat, va_list arguments)
{
    const LPCTSTR format = OrEmpty(givenFormat);
    va_list measured;
    va_copy(measured, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, measured);
    va_end(measured);
    if (length <= 0)
    {
        return {};
    }
    std::string text(size_t(length), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

} // namespace

CString::CString(LPCTSTR text)
{
    if (text != nullptr && IS_INTRESOURCE(text))
    {
        LoadString(LOWORD(reinterpret_cast<ULONG_PTR>(text)));
        return;
    }
    SetString(text);
}

CString::CString(LPCWSTR text)
{
    const int size = text == nullptr
                         ? 0
                         : ::WideCharToMultiByte(CP_ACP, 0, text, -1, nullptr, 0, nullptr, nullptr);
    if (size > 1)
    {
        m_text.resize(size_t(size - 1));
        ::WideCharToMultiByte(CP_ACP, 0, text, -1, m_text.data(), size, nullptr, nullptr);
    }
}

CString CString::Right(int count) const
{
    const int kept = std::clamp(count, 0, GetLength());
    return Mid(GetLength() - kept, kept);
}

CString CString::Mid(int first, int count) const
{
    const int start = std::clamp(first, 0, GetLength());
    return CString(m_text.data() + start, std::clamp(count, 0, GetLength() - start));
}

CString CString::SpanIncluding(LPCTSTR characters) const
{
    return Left(int(std::min(m_text.find_first_not_of(OrEmpty(characters)), m_text.size())));
}

CString CString::SpanExcluding(LPCTSTR characters) const
{
    return Left(int(std::min(m_text.find_first_of(OrEmpty(characters)), m_text.size())));
}

CString CString::Tokenize(LPCTSTR separators, int& start) const
{
    const size_t first =
        start < 0 ? npos : m_text.find_first_not_of(OrEmpty(separators), size_t(start));
    if (first == npos)
    {
        start = -1;
        return CString();
    }
    const size_t end = std::min(m_text.find_first_of(OrEmpty(separators), first), m_text.size());
    start = int(end) + 1;
    return Mid(int(first), int(end - first));
}

int CString::Find(LPCTSTR text, int start) const
{
    return start < 0 ? -1 : Index(m_text.find(OrEmpty(text), size_t(start)));
}

int CString::Find(char character, int start) const
{
    return start < 0 ? -1 : Index(m_text.find(character, size_t(start)));
}

int CString::Compare(LPCTSTR other) const
{
    return std::strcmp(m_text.c_str(), OrEmpty(other));
}

int CString::CompareNoCase(LPCTSTR other) const
{
    return _stricmp(m_text.c_str(), OrEmpty(other));
}

int CString::Collate(LPCTSTR other) const
{
    return std::strcoll(m_text.c_str(), OrEmpty(other));
}

CString& CString::MakeUpper()
{
    ::CharUpperBuff(m_text.data(), DWORD(m_text.size()));
    return *this;
}

CString& CString::MakeLower()
{
    ::CharLowerBuff(m_text.data(), DWORD(m_text.size()));
    return *this;
}

CString& CString::MakeReverse()
{
    std::reverse(m_text.begin(), m_text.end());
    return *this;
}

CString& CString::TrimLeft(LPCTSTR targets)
{
    m_text.erase(0, m_text.find_first_not_of(OrEmpty(targets)));
    return *this;
}

CString& CString::TrimRight(LPCTSTR targets)
{
    m_text.erase(m_text.find_last_not_of(OrEmpty(targets)) + 1);
    return *this;
}

int CString::Replace(LPCTSTR old, LPCTSTR replacement)
{
    const std::string from(OrEmpty(old));
    const std::string to(OrEmpty(replacement));
    if (from.empty())
    {
        return 0;
    }
    int count = 0;
    for (size_t at = m_text.find(from); at != npos; at = m_text.find(from, at + to.size()))
    {
        m_text.replace(at, from.size(), to);
        ++count;
    }
    return count;
}

int CString::Replace(char old, char replacement)
{
    const auto count = std::count(m_text.begin(), m_text.end(), old);
    std::replace(m_text.begin(), m_text.end(), old, replacement);
    return old == replacement ? 0 : int(count);
}

int CString::Insert(int index, LPCTSTR text)
{
    m_text.insert(size_t(std::clamp(index, 0, GetLength())), OrEmpty(text));
    return GetLength();
}

int CString::Delete(int index, int count)
{
    const int start = std::max(index, 0);
    if (start < GetLength() && count > 0)
    {
        m_text.erase(size_t(start), size_t(count));
    }
    return GetLength();
}

void CString::Format(LPCTSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void CString::Format(UINT formatId, ...)
{
    CString format;
    VERIFY(format.LoadString(formatId));
    va_list arguments;
    va_start(arguments, formatId);
    FormatV(format, arguments);
    va_end(arguments);
}

// The new text is complete before the old one goes: the arguments may point into it.
void CString::FormatV(LPCTSTR format, va_list arguments)
{
    m_text = Formatted(format, arguments);
}

void CString::AppendFormat(LPCTSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    AppendFormatV(format, arguments);
    va_end(arguments);
}

void CString::AppendFormat(UINT formatId, ...)
{
    CString format;
    VERIFY(format.LoadString(formatId));
    va_list arguments;
    va_start(arguments, formatId);
    AppendFormatV(format, arguments);
    va_end(arguments);
}

void CString::AppendFormatV(LPCTSTR format, va_list arguments)
{
    m_text += Formatted(format, arguments);
}

BOOL CString::LoadString(HINSTANCE module, UINT id)
{
    // The platform does not tell how long a string is: one that fills the buffer may be cut.
    std::string buffer(256, '\0');
    int length = ::LoadString(module, id, buffer.data(), int(buffer.size()));
    while (length > 0 && size_t(length) + 1 == buffer.size())
    {
        buffer.resize(buffer.size() * 2);
        length = ::LoadString(module, id, buffer.data(), int(buffer.size()));
    }
    if (length <= 0)
    {
        return FALSE;
    }
    m_text.assign(buffer, 0, size_t(length));
    return TRUE;
}

LPTSTR CString::GetBuffer(int minLength)
{
    if (minLength > GetLength())
    {
        m_text.resize(size_t(minLength));
    }
    return m_text.data();
}

LPTSTR CString::GetBufferSetLength(int length)
{
    m_text.resize(Count(length));
    return m_text.data();
}

void CString::ReleaseBuffer(int newLength)
{
    m_text.resize(newLength < 0 ? std::strlen(m_text.c_str()) : size_t(newLength));
}

BOOL AFXAPI AfxExtractSubString(CString& part, LPCTSTR text, int number, char separator)
{
    const std::string whole(OrEmpty(text)); // the part may be the text
    size_t first = 0;
    for (; number > 0 && first != std::string::npos; --number)
    {
        const size_t next = whole.find(separator, first);
        first = next == std::string::npos ? next : next + 1;
    }
    if (number < 0 || first == std::string::npos || text == nullptr)
    {
        part.Empty();
        return FALSE;
    }
    part = whole.substr(first, whole.find(separator, first) - first).c_str();
    return TRUE;
}

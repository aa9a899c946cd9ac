#pragma once

// Narrow text as a value. It passes wherever the platform wants a null-terminated string; a null
// pointer counts as empty text everywhere.

#include "framework/Platform.h"

#include <compare>
#include <cstdarg>
#include <string>

FRAMEWORK_API HINSTANCE AfxFindResourceHandle(LPCSTR name, LPCSTR type);

#if defined(__GNUC__)
#define FRAMEWORK_PRINTF_LIKE [[gnu::format(__MINGW_PRINTF_FORMAT, 2, 3)]]
#else
#define FRAMEWORK_PRINTF_LIKE
#endif

class FRAMEWORK_API CString
{
public:
    CString() = default;
    // Also takes MAKEINTRESOURCE(id) and loads that string resource.
    CString(LPCTSTR text);
    CString(LPCTSTR text, int length)
        : m_text(text == nullptr ? std::string() : std::string(text, Count(length)))
    {}
    CString(const unsigned char* text)
        : CString(reinterpret_cast<LPCTSTR>(text))
    {}
    CString(LPCWSTR text);
    explicit CString(char repeated, int count = 1)
        : m_text(Count(count), repeated)
    {}

    CString& operator=(LPCTSTR text) { return SetString(text), *this; }
    CString& operator=(LPCWSTR text) { return *this = CString(text); }
    CString& operator=(char character) { return m_text.assign(1, character), *this; }

    operator LPCTSTR() const { return m_text.c_str(); }
    LPCTSTR GetString() const { return m_text.c_str(); }
    int GetLength() const { return int(m_text.size()); }
    BOOL IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    char GetAt(int index) const { return m_text[Checked(index)]; }
    char operator[](int index) const { return m_text[Checked(index)]; }
    void SetAt(int index, char character) { m_text[Checked(index)] = character; }
    void SetString(LPCTSTR text) { m_text.assign(text == nullptr ? "" : text); }
    void SetString(LPCTSTR text, int length) { *this = CString(text, length); }

    void Append(LPCTSTR text) { m_text.append(text == nullptr ? "" : text); }
    void Append(LPCTSTR text, int length) { *this += CString(text, length); }
    void AppendChar(char character) { m_text.push_back(character); }
    CString& operator+=(LPCTSTR text) { return Append(text), *this; }
    CString& operator+=(const CString& text) { return m_text.append(text.m_text), *this; }
    CString& operator+=(char character) { return AppendChar(character), *this; }

    // Parts; counts and positions beyond the text are cut to it.
    CString Left(int count) const { return Mid(0, count); }
    CString Right(int count) const;
    CString Mid(int first) const { return Mid(first, GetLength()); }
    CString Mid(int first, int count) const;
    CString SpanIncluding(LPCTSTR characters) const;
    CString SpanExcluding(LPCTSTR characters) const;
    // The next run of characters that are no separators, from start on; moves start behind it.
    // Empty, with start at -1, when none is left.
    CString Tokenize(LPCTSTR separators, int& start) const;

    // Searches; -1 when there is no match.
    int Find(LPCTSTR text, int start = 0) const;
    int Find(char character, int start = 0) const;
    int ReverseFind(char character) const { return Index(m_text.rfind(character)); }
    int FindOneOf(LPCTSTR characters) const
    {
        return characters == nullptr ? -1 : Index(m_text.find_first_of(characters));
    }

    // Comparisons stop at the first null character. Less than, equal to or more than zero.
    int Compare(LPCTSTR other) const;
    int CompareNoCase(LPCTSTR other) const;
    int Collate(LPCTSTR other) const;

    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    CString& Trim() { return TrimRight().TrimLeft(); }
    CString& Trim(char target) { return TrimRight(target).TrimLeft(target); }
    CString& Trim(LPCTSTR targets) { return TrimRight(targets).TrimLeft(targets); }
    CString& TrimLeft() { return TrimLeft(" \t\n\v\f\r"); }
    CString& TrimLeft(char target) { return TrimLeft(CString(target).GetString()); }
    CString& TrimLeft(LPCTSTR targets);
    CString& TrimRight() { return TrimRight(" \t\n\v\f\r"); }
    CString& TrimRight(char target) { return TrimRight(CString(target).GetString()); }
    CString& TrimRight(LPCTSTR targets);

    // Return how many were replaced or removed.
    int Replace(LPCTSTR old, LPCTSTR replacement);
    int Replace(char old, char replacement);
    int Remove(char character) { return int(std::erase(m_text, character)); }
    // Return the new length.
    int Insert(int index, LPCTSTR text);
    int Insert(int index, char character) { return Insert(index, CString(character).GetString()); }
    int Delete(int index, int count = 1);

    FRAMEWORK_PRINTF_LIKE void Format(LPCTSTR format, ...);
    void Format(UINT formatId, ...);
    void FormatV(LPCTSTR format, va_list arguments);
    FRAMEWORK_PRINTF_LIKE void AppendFormat(LPCTSTR format, ...);
    void AppendFormat(UINT formatId, ...);
    void AppendFormatV(LPCTSTR format, va_list arguments);

    // FALSE, with the text unchanged, when there is no such string resource.
    BOOL LoadString(UINT id);
    BOOL LoadString(HINSTANCE module, UINT id);

    // A buffer of at least minLength characters and a null, holding the text so far. Writing into
    // it must be followed by ReleaseBuffer before anything else is asked of the string.
    LPTSTR GetBuffer() { return m_text.data(); }
    LPTSTR GetBuffer(int minLength);
    LPTSTR GetBufferSetLength(int length);
    void ReleaseBuffer(int newLength = -1);
    void ReleaseBufferSetLength(int newLength) { m_text.resize(Count(newLength)); }
    void Truncate(int newLength) { m_text.resize(Count(newLength)); }
    void Preallocate(int length) { m_text.reserve(Count(length)); }
    void FreeExtra() { m_text.shrink_to_fit(); }

    friend CString operator+(CString a, const CString& b) { return a += b; }
    friend CString operator+(CString a, LPCTSTR b) { return a += b; }
    friend CString operator+(LPCTSTR a, const CString& b) { return CString(a) += b; }
    friend CString operator+(CString a, char b) { return a += b; }
    friend CString operator+(char a, const CString& b) { return CString(a) += b; }

    friend bool operator==(const CString& a, const CString& b) { return a.Compare(b) == 0; }
    friend bool operator==(const CString& a, LPCTSTR b) { return a.Compare(b) == 0; }
    friend bool operator==(const CString& a, char b)
    {
        return a.m_text.compare(0, npos, &b, 1) == 0;
    }
    friend auto operator<=>(const CString& a, const CString& b) { return a.Compare(b) <=> 0; }
    friend auto operator<=>(const CString& a, LPCTSTR b) { return a.Compare(b) <=> 0; }

private:
    static constexpr size_t npos = std::string::npos;
    static size_t Count(int count) { return count > 0 ? size_t(count) : 0; } // below zero is none
    static int Index(size_t found) { return found == npos ? -1 : int(found); }
    size_t Checked(int index) const
    {
        ASSERT(index >= 0 && index <= GetLength());
        return size_t(index);
    }

    std::string m_text;
};

// The part with that number, from 0 on, of a text whose parts are separated by a character; FALSE,
// with an empty part, when there is none.
FRAMEWORK_API BOOL AFXAPI AfxExtractSubString(CString& part, LPCTSTR text, int number,
                                              char separator = '\n');

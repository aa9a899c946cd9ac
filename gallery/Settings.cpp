#include "Settings.h"

#include <shlobj.h>

namespace {

constexpr DWORD LongestValue = 256; // characters

CString FolderOf(const CString& file)
{
    return file.Left(file.ReverseFind('\\'));
}

} // namespace

CString Settings::UsualFile()
{
    char folder[MAX_PATH] = "";
    if (::SHGetFolderPath(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT,
                          folder) != S_OK)
    {
        return "";
    }
    return CString(folder) + "\\OnBoardUI Gallery\\gallery.ini";
}

void Settings::KeepIn(const CString& file)
{
    // Without a folder the platform would look for the file in its own.
    char full[MAX_PATH] = "";
    const DWORD length =
        file.IsEmpty() ? 0 : ::GetFullPathName(file, DWORD(sizeof(full)), full, nullptr);
    m_file = length < sizeof(full) ? full : "";
}

CString Settings::Get(const char* section, const char* key, const char* fallback) const
{
    if (m_file.IsEmpty() || section == nullptr || key == nullptr)
    {
        return fallback;
    }
    char value[LongestValue] = "";
    ::GetPrivateProfileString(section, key, fallback, value, LongestValue, m_file);
    return value;
}

void Settings::Set(const char* section, const char* key, const char* value) const
{
    if (!m_file.IsEmpty() && section != nullptr && key != nullptr)
    {
        ::CreateDirectory(FolderOf(m_file), nullptr);
        ::WritePrivateProfileString(section, key, value, m_file);
    }
}

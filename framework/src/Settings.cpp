// The settings of an application, in the registry or in a file.

#include "framework/App.h"

#include <vector>

CString CWinApp::RegistrySection(LPCSTR section) const
{
    return m_company.IsEmpty()
               ? CString()
               : CString("Software\\") + m_company + "\\" + AfxGetAppName() + "\\" + section;
}

CString CWinApp::SettingsFile() const
{
    return CString(m_pszExeName) + ".INI";
}

UINT CWinApp::GetProfileInt(LPCSTR section, LPCSTR entry, int fallback)
{
    const CString key = RegistrySection(section);
    if (key.IsEmpty())
    {
        return ::GetPrivateProfileInt(section, entry, fallback, SettingsFile());
    }
    DWORD value = 0;
    DWORD size = sizeof(value);
    const LONG failed =
        ::RegGetValue(HKEY_CURRENT_USER, key, entry, RRF_RT_REG_DWORD, nullptr, &value, &size);
    return failed == ERROR_SUCCESS ? UINT(value) : UINT(fallback);
}

CString CWinApp::GetProfileString(LPCSTR section, LPCSTR entry, LPCSTR fallback)
{
    const CString key = RegistrySection(section);
    CString value;
    if (key.IsEmpty())
    {
        constexpr DWORD most = 4096;
        ::GetPrivateProfileString(section, entry, fallback == nullptr ? "" : fallback,
                                  value.GetBuffer(most), most, SettingsFile());
        value.ReleaseBuffer();
        return value;
    }
    DWORD size = 0;
    const auto read = [&](LPSTR buffer) {
        return ::RegGetValue(HKEY_CURRENT_USER, key, entry, RRF_RT_REG_SZ, nullptr, buffer, &size);
    };
    if (read(nullptr) != ERROR_SUCCESS)
    {
        return fallback;
    }
    std::vector<char> buffer(size + 1);
    return read(buffer.data()) == ERROR_SUCCESS ? CString(buffer.data()) : CString(fallback);
}

BOOL CWinApp::WriteProfileInt(LPCSTR section, LPCSTR entry, int value)
{
    const CString key = RegistrySection(section);
    if (key.IsEmpty())
    {
        CString text;
        text.Format("%d", value);
        return ::WritePrivateProfileString(section, entry, text, SettingsFile());
    }
    return ::RegSetKeyValue(HKEY_CURRENT_USER, key, entry, REG_DWORD, &value, sizeof(value)) ==
           ERROR_SUCCESS;
}

BOOL CWinApp::WriteProfileString(LPCSTR section, LPCSTR entry, LPCSTR value)
{
    const CString key = RegistrySection(section);
    if (key.IsEmpty())
    {
        return ::WritePrivateProfileString(section, entry, value, SettingsFile());
    }
    LONG failed = ERROR_SUCCESS;
    if (section == nullptr || *section == '\0')
    {
        return FALSE; // the key of the application, with all its sections
    }
    if (entry == nullptr)
    {
        failed = ::RegDeleteTree(HKEY_CURRENT_USER, key);
    }
    else if (value == nullptr)
    {
        failed = ::RegDeleteKeyValue(HKEY_CURRENT_USER, key, entry);
    }
    else
    {
        failed = ::RegSetKeyValue(HKEY_CURRENT_USER, key, entry, REG_SZ, value,
                                  DWORD(::lstrlen(value)) + 1);
    }
    return failed == ERROR_SUCCESS;
}

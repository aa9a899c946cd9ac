#pragma once

#include <afxwin.h>

// What the gallery keeps from one run to the next: texts in a file of the user's, by section and
// key. Without a file nothing is kept and every answer is the fallback. Failures to write are not
// told: the next run begins as if nothing had been kept.
class Settings
{
public:
    // The file that a run keeps its settings in unless it is told another; empty when the user has
    // no folder for such files.
    static CString UsualFile();

    // From now on. The file and its folder are made when something is kept.
    void KeepIn(const CString& file);

    // A null section or key names nothing; a null value takes away what was kept.
    CString Get(const char* section, const char* key, const char* fallback) const;
    void Set(const char* section, const char* key, const char* value) const;

private:
    CString m_file;
};

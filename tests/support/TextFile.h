#pragma once

#include <windows.h>

#include <fstream>
#include <string>

// A file with a text, among the temporary ones, for the life of the object.
class TextFile
{
public:
    explicit TextFile(const std::string& text)
    {
        char folder[MAX_PATH] = "";
        ::GetTempPath(MAX_PATH, folder);
        ::GetTempFileName(folder, "obt", 0, m_path);
        std::ofstream(m_path, std::ios::binary) << text;
    }
    TextFile(const TextFile&) = delete;
    TextFile& operator=(const TextFile&) = delete;
    ~TextFile() { ::DeleteFile(m_path); }

    const char* Path() const { return m_path; }

private:
    char m_path[MAX_PATH] = "";
};

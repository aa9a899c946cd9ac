#pragma once

// Breaking a message into lines: pure functions of text.

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace windows {

// How many characters a line of a message has at most, on a screen of this width in pixels.
constexpr size_t LineLimit(int screenWidth)
{
    return size_t(std::max((screenWidth - 768) / 512 * 18 + 32, 1));
}

constexpr bool IsSeparator(char character)
{
    return std::string_view(" \t\f\r\n").find(character) != std::string_view::npos;
}

// How the characters of a code page are told apart.
class CodePage
{
public:
    explicit CodePage(UINT id)
        : m_utf8(id == CP_UTF8)
    {
        if (!m_utf8)
        {
            ::GetCPInfo(id, &m_info);
        }
    }

    // How many bytes the first character of a text has, at most all of them.
    size_t FirstCharacter(std::string_view text) const
    {
        size_t bytes = 1;
        if (m_utf8)
        {
            const auto continues = [](char byte) { return (byte & 0xC0) == 0x80; };
            while (bytes < text.size() && continues(text[bytes]))
            {
                ++bytes;
            }
        }
        else if (IsLeadByte(BYTE(text.front())))
        {
            bytes = 2;
        }
        return std::min(bytes, text.size());
    }

private:
    // Pairs of the first and the last byte of a range, up to a pair of zeros.
    bool IsLeadByte(BYTE byte) const
    {
        for (const BYTE* range = m_info.LeadByte; *range != 0; range += 2)
        {
            if (byte >= range[0] && byte <= range[1])
            {
                return true;
            }
        }
        return false;
    }

    bool m_utf8;
    CPINFO m_info = {};
};

// How many bytes of a line without line ends stand before its first break: all of them if the line
// has no more characters than limit. It breaks after the last separator within the limit; a word
// longer than that breaks at the limit. Further separators stay before the break.
inline size_t BeforeBreak(std::string_view line, size_t limit, const CodePage& codePage)
{
    if (line.size() <= limit)
    {
        return line.size();
    }
    size_t position = 0;
    size_t afterSeparator = 0;
    for (size_t count = 0; count < limit && position < line.size(); ++count)
    {
        const bool separator = IsSeparator(line[position]);
        position += codePage.FirstCharacter(line.substr(position));
        afterSeparator = separator ? position : afterSeparator;
    }
    if (position == line.size())
    {
        return position;
    }
    position = afterSeparator > 0 ? afterSeparator : position;
    while (position < line.size() && IsSeparator(line[position]))
    {
        ++position;
    }
    return position;
}

// The text with each of its lines broken where it has more characters than limit (at least 1), all
// lines ended alike. A text's own line ends stay, of whichever kind they are.
inline std::string SplitLines(std::string_view text, size_t limit, const CodePage& codePage)
{
    constexpr std::string_view end = "\r\n";
    std::string lines;
    lines.reserve(text.size() + text.size() / limit * end.size());
    while (!text.empty())
    {
        const auto ends = [](char character) { return character == '\r' || character == '\n'; };
        std::string_view line(text.begin(), std::find_if(text.begin(), text.end(), ends));
        text.remove_prefix(line.size());
        while (!line.empty())
        {
            const size_t bytes = BeforeBreak(line, limit, codePage);
            lines += line.substr(0, bytes);
            line.remove_prefix(bytes);
            lines += line.empty() ? std::string_view() : end;
        }
        if (!text.empty())
        {
            lines += end;
            text.remove_prefix(text.starts_with(end) ? end.size() : 1);
        }
    }
    return lines;
}

} // namespace windows

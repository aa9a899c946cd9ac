#include "CommandLine.h"

#include <iterator>

namespace {

std::optional<size_t> PageNamed(LPCSTR name)
{
    const auto pages = Pages();
    for (size_t index = 0; index < pages.size(); ++index)
    {
        if (::lstrcmpi(pages[index].name, name) == 0)
        {
            return index;
        }
    }
    return std::nullopt;
}

std::optional<APPMODE> ModeNamed(LPCSTR name)
{
    for (size_t mode = 0; mode < std::size(APPMODE_NAMES); ++mode)
    {
        if (::lstrcmpi(APPMODE_NAMES[mode], name) == 0)
        {
            return APPMODE(mode);
        }
    }
    return std::nullopt;
}

} // namespace

CommandLine CommandLine::Parse(int count, char** arguments)
{
    CommandLine result;
    for (int index = 1; index < count && result.problem.IsEmpty(); ++index)
    {
        const CString option = arguments[index];
        if (option == "--help")
        {
            result.help = true;
            continue;
        }
        if (option != "--pictures" && option != "--page" && option != "--mode")
        {
            result.problem = "Unknown argument: " + option;
            continue;
        }
        const CString value = index + 1 < count ? arguments[++index] : "";
        if (value.IsEmpty())
        {
            result.problem = option + " needs a value.";
        }
        else if (option == "--pictures")
        {
            result.pictures = value;
        }
        else if (option == "--page" && !(result.page = PageNamed(value)))
        {
            result.problem = "There is no page " + value + ".";
        }
        else if (option == "--mode" && !(result.mode = ModeNamed(value)))
        {
            result.problem = "There is no mode " + value + ".";
        }
    }
    return result;
}

CString CommandLine::Usage()
{
    CString text =
        "gallery [--page NAME] [--mode NAME] [--pictures FOLDER] [--help]\r\n"
        "\r\n"
        "  --page NAME        opens this page; with --pictures, takes no other\r\n"
        "  --mode NAME        starts in this display mode; with --pictures, takes no other\r\n"
        "  --pictures FOLDER  writes a picture of each page in each mode and ends\r\n"
        "\r\n"
        "F5 to F9 or Ctrl+1 to Ctrl+5 switch the display mode.\r\n"
        "\r\n"
        "Modes:";
    for (const char* name : APPMODE_NAMES)
    {
        text += CString(" ") + name;
    }
    text += "\r\nPages:";
    for (const PageEntry& page : Pages())
    {
        text += CString(" ") + page.name;
    }
    return text;
}

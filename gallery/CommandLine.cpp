#include "CommandLine.h"

#include "DisplayModes.h"
#include "Pages.h"

namespace {

CString ModeNames()
{
    CString names;
    for (const char* name : APPMODE_NAMES)
    {
        names += CString(" ") + name;
    }
    return names;
}

CString PageNames()
{
    CString names;
    for (const PageEntry& page : Pages())
    {
        names += CString(" ") + page.name;
    }
    return names;
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
        if (option != "--pictures" && option != "--page" && option != "--mode" &&
            option != "--settings")
        {
            result.problem =
                "Unknown argument: " + option + "; gallery --help tells what there is.";
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
        else if (option == "--settings")
        {
            result.settings = value;
        }
        else if (option == "--page" && !(result.page = PageNamed(value)))
        {
            result.problem = "There is no page " + value + ". The pages are" + PageNames();
        }
        else if (option == "--mode" && !(result.mode = ModeNamed(value)))
        {
            result.problem = "There is no mode " + value + ". The modes are" + ModeNames();
        }
    }
    return result;
}

CString CommandLine::Usage()
{
    return "gallery [--page NAME] [--mode NAME] [--settings FILE] [--pictures FOLDER] [--help]\r\n"
           "\r\n"
           "  --page NAME        opens this page; with --pictures, takes no other\r\n"
           "  --mode NAME        starts in this display mode, not in the one chosen last;\r\n"
           "                     with --pictures, takes no other\r\n"
           "  --settings FILE    keeps there what the next run starts with\r\n"
           "  --pictures FOLDER  writes pictures of each page in each mode and ends\r\n"
           "\r\n"
           "F5 to F9 or Ctrl+1 to Ctrl+5 switch the display mode.\r\n"
           "\r\n"
           "Modes:" +
           ModeNames() + "\r\nPages:" + PageNames();
}

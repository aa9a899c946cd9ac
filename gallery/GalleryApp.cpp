#include "GalleryApp.h"

#include "CommandLine.h"
#include "GalleryFrame.h"
#include "Output.h"
#include "Pictures.h"

#include <OnBoardUI.h>
#include <OnBoardUIGeneral.h>

#include <cstdlib>

namespace {

GalleryApp theApp;

constexpr int Failed = 1;
constexpr int CommandLineFailed = 2;

} // namespace

BOOL GalleryApp::InitInstance()
{
    const CommandLine options = CommandLine::Parse(__argc, __argv);
    if (!options.problem.IsEmpty())
    {
        if (!PrintProblem(options.problem))
        {
            AfxMessageBox(options.problem);
        }
        m_exitCode = CommandLineFailed;
        return FALSE;
    }
    if (options.help)
    {
        if (!PrintLine(CommandLine::Usage()))
        {
            AfxMessageBox(CommandLine::Usage());
        }
        return FALSE;
    }

    ::SetProcessDPIAware();  // pixels are pixels, whatever the resolution
    ::CoInitialize(nullptr); // assistive programs reach the windows by it
    COnBoardUIGeneral::SetStdModeGoals();
    CString title;
    m_host.GetProductName(title);
    SetOnBoardAppTitle(title);

    auto* const frame = new GalleryFrame(m_host);
    if (!frame->Open(options.page.value_or(0)))
    {
        m_exitCode = Failed;
        return FALSE;
    }
    m_pMainWnd = frame;
    // Pictures show every mode and are the same whoever takes them: nothing is kept, nor read.
    const bool pictures = !options.pictures.IsEmpty();
    if (!pictures)
    {
        m_host.KeepSettingsIn(options.settings.IsEmpty() ? Settings::UsualFile()
                                                         : options.settings);
        frame->SwitchMode(options.mode.value_or(m_host.KeptMode()));
    }
    frame->ShowWindow(pictures ? SW_SHOW : m_nCmdShow);
    frame->UpdateWindow();
    if (pictures)
    {
        m_exitCode = WritePictures(*frame, options) ? 0 : Failed;
        return FALSE;
    }
    return TRUE;
}

BOOL GalleryApp::PreTranslateMessage(MSG* message)
{
    auto* const frame = static_cast<GalleryFrame*>(m_pMainWnd);
    return (frame != nullptr && frame->SwitchByKey(*message)) ||
           CWinApp::PreTranslateMessage(message);
}

int GalleryApp::ExitInstance()
{
    // Without a loop there was no WM_QUIT to take the code from.
    const bool looped = m_exitCode == 0 && m_msgCur.message == WM_QUIT;
    return looped ? CWinApp::ExitInstance() : m_exitCode;
}

#pragma once

#include "GalleryHost.h"

#include <afxwin.h>

// The program: reads its command line, prepares the library as a host has to, and opens the frame.
class GalleryApp : public CWinApp
{
public:
    GalleryApp()
        : CWinApp("OnBoardUI Gallery")
    {}

    BOOL InitInstance() override;
    int ExitInstance() override;
    BOOL PreTranslateMessage(MSG* message) override;

private:
    GalleryHost m_host;
    int m_exitCode = 0;
};

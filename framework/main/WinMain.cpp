// The entry of a windowed program, linked into it: the application object does the rest.

#include <afxwin.h>

int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int showCommand)
{
    return AfxWinMain(instance, previous, commandLine, showCommand);
}

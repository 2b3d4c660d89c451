// A console program that uses MFC without calling AfxWinInit: asking for the resource handle is
// the programming error MFC asserts, and CTest expects the assertion's message.
#include <afxwin.h>

int main()
{
    AfxGetResourceHandle();
    return 0;
}

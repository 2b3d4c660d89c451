// The main of every test program: a console program with MFC support, as MFC documents one. The
// application object is used as it is; MFC is initialised before any test runs.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <cstdio>

CWinApp theApp;

int main(int argc, char** argv)
{
    if (!AfxWinInit(::GetModuleHandleA(nullptr), nullptr, ::GetCommandLineA(), 0)) {
        std::fprintf(stderr, "MFC did not initialise\n");
        return 1;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

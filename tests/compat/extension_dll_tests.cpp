// The state a program shares with its extension DLLs: the resource handle AfxWinInit sets, the
// application object, and the resource chain that extension DLLs join from their DllMain. Here
// system modules stand in for extension DLLs: kernel32 and user32 hold a version resource, the
// test program does not.
#include <afxwin.h>
#include <gtest/gtest.h>

namespace {

LPCSTR const kVersion = MAKEINTRESOURCEA(1);

HINSTANCE Program() { return ::GetModuleHandleA(nullptr); }

// An extension module linked into the chain for the length of a test, as its DllMain links it.
struct LinkedModule {
    explicit LinkedModule(const char* name, BOOL bSystem = FALSE)
    {
        AfxInitExtensionModule(state, ::GetModuleHandleA(name));
        new CDynLinkLibrary(state, bSystem);
    }
    ~LinkedModule() { AfxTermExtensionModule(state); }
    AFX_EXTENSION_MODULE state = {};
};

}  // namespace

TEST(AfxWinInit, MadeTheProgramTheResourceHandleAndFilledTheApplication)
{
    EXPECT_EQ(Program(), AfxGetResourceHandle());
    CWinApp* app = AfxGetApp();
    ASSERT_NE(nullptr, app);
    EXPECT_EQ(Program(), app->m_hInstance);
    EXPECT_STREQ(::GetCommandLineA(), app->m_lpCmdLine);
    EXPECT_EQ(0, app->m_nCmdShow);
    EXPECT_STREQ("compat_tests", app->m_pszAppName) << "named after the program's file";
    EXPECT_EQ(app, AfxGetThread());
}

TEST(AfxInitExtensionModule, RecordsTheModuleOnce)
{
    AFX_EXTENSION_MODULE state = {};
    HMODULE kernel = ::GetModuleHandleA("kernel32.dll");
    EXPECT_TRUE(AfxInitExtensionModule(state, kernel));
    EXPECT_TRUE(state.bInitialized);
    EXPECT_EQ(kernel, state.hModule);
    EXPECT_EQ(kernel, state.hResource);
    EXPECT_TRUE(AfxInitExtensionModule(state, ::GetModuleHandleA("user32.dll")));
    EXPECT_EQ(kernel, state.hModule) << "a second call changes nothing";
}

TEST(ResourceChain, AResourceTheHandleLacksComesFromTheExtensionModuleThatHasIt)
{
    ASSERT_EQ(nullptr, ::FindResourceA(Program(), kVersion, RT_VERSION));
    EXPECT_EQ(Program(), AfxFindResourceHandle(kVersion, RT_VERSION)) << "nothing in the chain yet";
    HINSTANCE kernel = ::GetModuleHandleA("kernel32.dll");
    {
        LinkedModule linked("kernel32.dll");
        EXPECT_EQ(kernel, AfxFindResourceHandle(kVersion, RT_VERSION));
        EXPECT_EQ(Program(), AfxFindResourceHandle(MAKEINTRESOURCEA(4242), RT_BITMAP)) << "nobody has it";
        EXPECT_EQ(Program(), AfxGetResourceHandle()) << "the search leaves the handle alone";
    }
    EXPECT_EQ(Program(), AfxFindResourceHandle(kVersion, RT_VERSION)) << "AfxTermExtensionModule unlinked it";
}

TEST(ResourceChain, TheResourceHandleComesFirst)
{
    LinkedModule linked("kernel32.dll");
    HINSTANCE user = ::GetModuleHandleA("user32.dll");
    ASSERT_NE(nullptr, ::FindResourceA(user, kVersion, RT_VERSION));
    AfxSetResourceHandle(user);
    EXPECT_EQ(user, AfxFindResourceHandle(kVersion, RT_VERSION));
    AfxSetResourceHandle(Program());
}

TEST(ResourceChain, ExtensionModulesComeBeforeSystemOnesWhateverTheirOrder)
{
    LinkedModule user("user32.dll");
    LinkedModule system("kernel32.dll", TRUE);  // joined last, so first in the chain
    EXPECT_EQ(::GetModuleHandleA("user32.dll"), AfxFindResourceHandle(kVersion, RT_VERSION));
}

TEST(ResourceChain, TerminatingWithAllUnlinksEveryModule)
{
    AFX_EXTENSION_MODULE kernel = {}, user = {};
    AfxInitExtensionModule(kernel, ::GetModuleHandleA("kernel32.dll"));
    AfxInitExtensionModule(user, ::GetModuleHandleA("user32.dll"));
    new CDynLinkLibrary(kernel);
    new CDynLinkLibrary(user);
    AfxTermExtensionModule(user);
    EXPECT_EQ(::GetModuleHandleA("kernel32.dll"), AfxFindResourceHandle(kVersion, RT_VERSION));
    AfxTermExtensionModule(user, TRUE);
    EXPECT_EQ(Program(), AfxFindResourceHandle(kVersion, RT_VERSION));
}

// (Asking before AfxWinInit is the program uninitialised_mfc, run by CTest.)
TEST(ResourceHandleDeathTest, SettingNoneIsAnAssertion)
{
    EXPECT_DEATH(AfxSetResourceHandle(nullptr), "Assertion failed");
}

TEST(WinAppDeathTest, ASecondApplicationObjectIsAnAssertion)
{
    EXPECT_DEATH({ CWinApp second; }, "Assertion failed");
}

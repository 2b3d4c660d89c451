// kiv_skin.dll carries the project's version in its version resource, as Windows Explorer and
// an installer read it.
#include "kiv_skin/style/kiv_style_mgr.h"
#include <gtest/gtest.h>
#include <windows.h>
#include <string>
#include <vector>

namespace {

std::vector<char> VersionInfoOfKivSkin()
{
    HMODULE module = ::GetModuleHandleA("kiv_skin.dll");
    char path[MAX_PATH] = {};
    if (!module || !::GetModuleFileNameA(module, path, MAX_PATH)) return {};
    DWORD ignored = 0;
    std::vector<char> info(::GetFileVersionInfoSizeA(path, &ignored));
    if (info.empty() || !::GetFileVersionInfoA(path, 0, DWORD(info.size()), info.data())) return {};
    return info;
}

}  // namespace

TEST(VersionResource, FixedFileInfoHoldsTheProjectVersion)
{
    kiv_skin::KivStyleMgr::GetInstance();  // the library is loaded by now
    std::vector<char> info = VersionInfoOfKivSkin();
    ASSERT_FALSE(info.empty());
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT size = 0;
    ASSERT_TRUE(::VerQueryValueA(info.data(), "\\", reinterpret_cast<void**>(&fixed), &size));
    EXPECT_EQ(DWORD(VS_FFI_SIGNATURE), fixed->dwSignature);
    EXPECT_EQ(DWORD(KIV_VERSION_MAJOR << 16 | KIV_VERSION_MINOR), fixed->dwFileVersionMS);
    EXPECT_EQ(DWORD(KIV_VERSION_PATCH << 16), fixed->dwFileVersionLS);
    EXPECT_EQ(DWORD(VFT_DLL), fixed->dwFileType);
}

TEST(VersionResource, StringsNameTheLibraryAndItsVersion)
{
    std::vector<char> info = VersionInfoOfKivSkin();
    ASSERT_FALSE(info.empty());
    auto text = [&info](const char* name) {
        char* value = nullptr;
        UINT size = 0;
        std::string query = std::string("\\StringFileInfo\\040904B0\\") + name;
        return ::VerQueryValueA(info.data(), query.c_str(), reinterpret_cast<void**>(&value), &size) ? std::string(value) : "";
    };
    EXPECT_EQ(KIV_VERSION, text("FileVersion"));
    EXPECT_EQ(KIV_VERSION, text("ProductVersion"));
    EXPECT_EQ("kiv_skin.dll", text("OriginalFilename"));
}

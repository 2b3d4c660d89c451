// The host object interface as callers see it through the table of virtual operations: the
// interface query is the first operation and release the third.
#include "core_fixture.h"
#include <gtest/gtest.h>

namespace {

using QueryOperation = HRESULT (STDMETHODCALLTYPE*)(IKivObject*, REFIID, void**);
using ReleaseOperation = ULONG (STDMETHODCALLTYPE*)(IKivObject*);

void* Operation(IKivObject* object, int index)
{
    return (*reinterpret_cast<void***>(object))[index];
}

}  // namespace

TEST(KivObject, InterfaceQueryIsTheFirstOperationAndReleaseTheThird)
{
    RecordingObject object;
    IKivObject* interfacePointer = &object;
    void* out = nullptr;
    auto query = reinterpret_cast<QueryOperation>(Operation(interfacePointer, 0));
    ASSERT_EQ(S_OK, query(interfacePointer, IID_IUnknown, &out));
    EXPECT_EQ(static_cast<void*>(interfacePointer), out);
    EXPECT_EQ(2u, object.refs);
    auto release = reinterpret_cast<ReleaseOperation>(Operation(interfacePointer, 2));
    EXPECT_EQ(1u, release(interfacePointer));
    EXPECT_EQ(1u, object.refs);
}

TEST(KivObject, AnUnknownInterfaceGivesNull)
{
    RecordingObject object;
    const IID unknown = {0x83947233, 0x6E55, 0x4CEF, {0x9D, 0x67, 0x86, 0xF6, 0x39, 0xB0, 0x0C, 0x0C}};
    void* out = &object;
    EXPECT_EQ(E_NOINTERFACE, object.QueryInterface(unknown, &out));
    EXPECT_EQ(nullptr, out);
    EXPECT_EQ(1u, object.refs);
}

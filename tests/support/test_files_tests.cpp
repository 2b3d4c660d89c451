// The fixture helpers themselves: a file that cannot be written fails the test that wanted it.
#include "support/test_files.h"
#include <windows.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

TEST(WriteFileBytes, AFailedWriteFailsTheTest)
{
    ScratchDir scratch;
    // A folder of that name is in the way of the file.
    CreateDirectoryA(scratch.Path("taken").c_str(), nullptr);
    EXPECT_NONFATAL_FAILURE(WriteFileBytes(scratch.Path("taken"), "x"), "cannot write the fixture file");
    EXPECT_NONFATAL_FAILURE(WriteFileBytes("Q:\\no\\such\\drive\\file.txt", "x"), "cannot write the fixture file");
}

TEST(WriteFileBytes, WritesTheBytesAndItsFolders)
{
    ScratchDir scratch;
    std::string path = scratch.Path("a\\b\\c.bin");
    WriteFileBytes(path, std::string("x\0y", 3));
    EXPECT_EQ(std::string("x\0y", 3), ReadFileBytes(path));
}

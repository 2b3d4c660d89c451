// The gallery of the dark scheme, painted once into a scratch folder for every test of the
// suite, and its pictures decoded again.
#pragma once
#include "png_reader.h"
#include "support/test_files.h"
#include <gtest/gtest.h>
#include <memory>

class DarkGallery : public testing::Test {
protected:
    static void SetUpTestSuite();
    static void TearDownTestSuite();
    void SetUp() override;

    static std::unique_ptr<ScratchDir> s_folder;
    static bool s_initialised, s_written;
    static DecodedPng s_panel, s_sheet, s_markup, s_scroll, s_contrast, s_vision;
};

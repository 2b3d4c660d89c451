// The 28 scheme icons: the glyph ORed onto what is there and the mask ANDed over it, from the
// 23-unit pitch at scale 1 and the 19-unit pitch when scaled; the dark variant on a dark
// background when asked; nothing for an icon out of range, a context that cannot stretch, or a
// scheme without the strips.
#include "draw_fixture.h"
#include "kiv_skin/draw/kiv_draw.h"
#include "kiv_skin/style/kiv_style_mgr.h"
#include "support/bitmap_files.h"

using kiv_skin::KivDraw;

namespace {

PixelGrid Strip(const char* key) { return BitmapPixels(*kiv_skin::KivStyleMgr::GetInstance()->GetBitmap(key)); }

// (behind OR glyph) AND mask, channel by channel.
COLORREF Composed(COLORREF behind, COLORREF glyph, COLORREF mask) { return (behind | glyph) & mask; }

// The icon drawn at (x, y) shows, block by block, the strips' pixels from (sx, sy) on.
void ExpectIcon(const Sheet& sheet, const char* glyphKey, int x, int y, int sx, int sy, int scale)
{
    PixelGrid glyph = Strip(glyphKey), mask = Strip("IDB_ICONS");
    int differs = 0;
    for (int j = 0; j < 19 * scale; ++j)
        for (int i = 0; i < 19 * scale; ++i) {
            int u = sx + i / scale, v = sy + j / scale;
            COLORREF expected = Composed(kSentinel, glyph.At(u, v), mask.At(u, v));
            differs += expected != kSentinel ? 1 : 0;
            ASSERT_EQ(expected, sheet.At(x + i, y + j)) << glyphKey << " " << i << ", " << j;
        }
    EXPECT_GT(differs, 10 * scale * scale) << "the icon shows";
}

}  // namespace

using TestSchemeIcons = TestScheme;

TEST_F(TestSchemeIcons, ScaleOneReadsTheCellAtPitch23InsetBy2)
{
    Sheet sheet(40, 40);
    KivDraw::DrawWekIcons(sheet.dc(), 5, 10, 12, 1, 0);
    ExpectIcon(sheet, "IDB_ICONREV", 10, 12, 23 * 5 + 2, 2, 1);
    EXPECT_EQ(40 * 40 - 19 * 19, sheet.Count(kSentinel, {0, 0, 40, 40}) - sheet.Count(kSentinel, {10, 12, 29, 31}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

TEST_F(TestSchemeIcons, DarkBackgroundPicksTheDarkGlyphsWhenAsked)
{
    Sheet sheet(40, 40);
    KivDraw::DrawWekIcons(sheet.dc(), 7, 0, 0, 1, 1);  // the test scheme's background is dark
    ExpectIcon(sheet, "IDB_ICONREVBLACK", 0, 0, 23 * 7 + 2, 2, 1);
}

TEST_F(TestSchemeIcons, ScaledIconsReadThe19UnitPitchAndStretch)
{
    for (int scale : {2, 3}) {
        Sheet sheet(70, 70);
        KivDraw::DrawWekIcons(sheet.dc(), 1, 4, 4, scale, 0);
        ExpectIcon(sheet, "IDB_ICONREV", 4, 4, 19 * 1, 0, scale);
        EXPECT_TRUE(sheet.check.Unchanged());
    }
}

TEST_F(TestSchemeIcons, IconsOutOfRangeDrawNothing)
{
    Sheet sheet(40, 40);
    for (int icon : {28, -1, 1000}) KivDraw::DrawWekIcons(sheet.dc(), icon, 5, 5, 1, 0);
    EXPECT_EQ(40 * 40, sheet.Count(kSentinel, {0, 0, 40, 40}));
}

// A print-preview-like context: output to a canvas, attributes from a Windows metafile, which
// reports no raster capabilities and so cannot stretch.
TEST_F(TestSchemeIcons, ScaledIconOnAContextThatCannotStretchDrawsNothing)
{
    Sheet sheet(60, 60);
    HDC metafile = ::CreateMetaFileA(nullptr);
    ASSERT_EQ(0, ::GetDeviceCaps(metafile, RASTERCAPS) & RC_STRETCHBLT);
    CDC preview;
    preview.m_hDC = sheet.dc()->m_hDC;
    preview.m_hAttribDC = metafile;
    KivDraw::DrawWekIcons(&preview, 3, 2, 2, 2, 0);
    EXPECT_EQ(60 * 60, sheet.Count(kSentinel, {0, 0, 60, 60}));
    KivDraw::DrawWekIcons(&preview, 3, 2, 2, 1, 0);
    EXPECT_LT(sheet.Count(kSentinel, {0, 0, 60, 60}), 60 * 60) << "scale 1 needs no stretching";
    preview.Detach();
    ::DeleteMetaFile(::CloseMetaFile(metafile));
}

TEST_F(BareScheme, IconsWithoutStripsDrawNothing)
{
    Sheet sheet(40, 40);
    KivDraw::DrawWekIcons(sheet.dc(), 3, 0, 0, 1, 1);
    EXPECT_EQ(40 * 40, sheet.Count(kSentinel, {0, 0, 40, 40}));
    EXPECT_TRUE(sheet.check.Unchanged());
}

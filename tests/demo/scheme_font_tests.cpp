// The sample schemes name 宋体 (SimSun). On Windows every code below 127 takes one width, half that
// of a Chinese character, which the cut-text walk of rich text relies on. The Wine prefixes map
// SimSun's names to a fixed-pitch copy of AR PL UMing CN, a Song face with those metrics (Wine's
// GetTextFace answers with the requested name, so the face is checked by the name its outline
// metrics give). Run under code page 936, as the demo.
#include <afxwin.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

const char* const kSimSunNames[] = {"\xCB\xCE\xCC\xE5", "SimSun", "\xD0\xC2\xCB\xCE\xCC\xE5", "NSimSun"};
const char kMappedFace[] = "UMing CN Fixed Pitch";

class FontInDc {
public:
    FontInDc(const char* face, int height, int weight)
        : m_dc(CreateCompatibleDC(nullptr)),
          m_font(CreateFontA(height, 0, 0, 0, weight, FALSE, FALSE, FALSE, GB2312_CHARSET, OUT_DEFAULT_PRECIS,
                             CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, face)),
          m_old(SelectObject(m_dc, m_font))
    {
    }
    ~FontInDc()
    {
        SelectObject(m_dc, m_old);
        DeleteObject(m_font);
        DeleteDC(m_dc);
    }
    HDC dc() const { return m_dc; }

    // The face name of the font file behind the selected font.
    std::string FileFace() const
    {
        UINT size = GetOutlineTextMetricsA(m_dc, 0, nullptr);
        if (size == 0) return "";
        std::vector<char> metrics(size);
        auto* otm = reinterpret_cast<OUTLINETEXTMETRICA*>(metrics.data());
        GetOutlineTextMetricsA(m_dc, size, otm);
        return metrics.data() + reinterpret_cast<size_t>(otm->otmpFaceName);
    }

private:
    HDC m_dc;
    HFONT m_font;
    HGDIOBJ m_old;
};

}  // namespace

TEST(SchemeFont, SimSunsNamesGiveTheMappedSongFace)
{
    ASSERT_EQ(936u, GetACP()) << "the process did not run under code page 936";
    std::string mapped = FontInDc(kMappedFace, -12, FW_NORMAL).FileFace();
    ASSERT_FALSE(mapped.empty());
    for (const char* name : kSimSunNames) {
        FontInDc font(name, -12, FW_NORMAL);
        EXPECT_EQ(mapped, font.FileFace()) << name;
        char face[LF_FACESIZE] = "";
        GetTextFaceA(font.dc(), LF_FACESIZE, face);
        EXPECT_STREQ(name, face);
    }
}

TEST(SchemeFont, AsciiLettersTakeOneWidthHalfAChineseCharacter)
{
    // The schemes' sizes at 96 DPI (-11, -12) and scaled to 120, 144 and 192 DPI (-15, -18;
    // -22, -24, drawn from the outlines, above the face's bitmap sizes).
    for (const char* name : kSimSunNames)
        for (int height : {-11, -12, -15, -18, -22, -24})
            for (int weight : {FW_NORMAL, FW_BOLD}) {
                FontInDc font(name, height, weight);
                // The walk counts a blank by the width of code 31, so the codes below 32 count too.
                INT widths[127] = {};
                ASSERT_TRUE(GetCharWidthA(font.dc(), 0, 126, widths));
                for (int c = 1; c <= 126; ++c)
                    EXPECT_EQ(widths[0], widths[c]) << name << " " << height << " " << weight << ": code " << c;
                SIZE chinese = {};
                ASSERT_TRUE(GetTextExtentPoint32A(font.dc(), "\xD6\xD0", 2, &chinese));  // 中
                // A synthesized bold adds a pixel to every advance, as on Windows.
                int bold = weight == FW_BOLD ? 1 : 0;
                EXPECT_EQ(2 * (widths[0] - bold) + bold, chinese.cx) << name << " " << height << " " << weight;
                EXPECT_GE(widths[0] - bold, -height / 2) << name << " " << height << " " << weight;
            }
}

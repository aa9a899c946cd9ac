#include "windows/MessageMeasure.h"

#include "CustomDialog.h"
#include "OnBoardUIGeneral.h"
#include "paint/MeasuringDC.h"

#include <uxtheme.h>

#include <algorithm>
#include <climits>
#include <numeric>

namespace windows {

bool VisualStyles()
{
    return ::IsAppThemed() && ::IsThemeActive();
}

int LineHead(HFONT font)
{
    CDC& dc = MeasuringDC();
    const Selected selected(dc, font);
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    return metrics.tmInternalLeading;
}

namespace {

int LineHeight(CDC& dc)
{
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    return metrics.tmHeight;
}

// The standard mode measures in the context's own font, which is higher than that of the template;
// at some resolutions it is not, and a text of one line would be cut.
HGDIOBJ FontToMeasure(CDC& dc)
{
    if (COnBoardUIGeneral::InOnBoardMode())
    {
        return CCustomDialog::m_OBStaticTextFont.GetSafeHandle();
    }
    // As res/MessageBox.rc has it, and not asked of the box: it may be on its way from another
    // mode.
    static CFont ofTemplate;
    if (ofTemplate.GetSafeHandle() == nullptr)
    {
        ofTemplate.CreatePointFont(80, "Microsoft Sans Serif");
    }
    const int usual = LineHeight(dc);
    const Selected selected(dc, ofTemplate);
    return LineHeight(dc) > usual ? ofTemplate.GetSafeHandle() : nullptr;
}

} // namespace

TextMeasure::TextMeasure()
    : m_dc(MeasuringDC())
    , m_font(m_dc, FontToMeasure(m_dc))
{}

CSize TextMeasure::Extent(std::string_view text)
{
    CSize extent(0, 0);
    ::GetTextExtentPoint32(m_dc, text.data(), int(text.size()), &extent);
    return extent;
}

TextMeasure::Widths TextMeasure::CharacterWidths()
{
    std::array<char, std::tuple_size_v<Widths> - 1> characters; // all but the null character
    std::iota(characters.begin(), characters.end(), char(1));
    Widths widths = {};
    CSize extent(0, 0);
    ::GetTextExtentExPoint(m_dc, characters.data(), int(characters.size()), 0, nullptr,
                           widths.data() + 1, &extent);
    std::adjacent_difference(widths.begin(), widths.end(), widths.begin());
    return widths;
}

// The widest and the highest of pieces of text. Of those whose width is the sum of their
// characters' only the widest is measured: the platform takes its time for each.
class TextMeasure::LargestPiece
{
public:
    explicit LargestPiece(TextMeasure& measure)
        : m_measure(measure)
        , m_widths(measure.CharacterWidths())
    {}

    void Add(std::string_view piece)
    {
        int width = 0;
        for (const char character : piece)
        {
            if (static_cast<unsigned char>(character) >= m_widths.size())
            {
                Measure(piece);
                return;
            }
            width += m_widths[size_t(character)];
        }
        if (width > m_widestSum || m_widest.empty())
        {
            m_widestSum = width;
            m_widest = piece;
        }
    }

    CSize Size()
    {
        Measure(m_widest);
        return m_size;
    }

private:
    void Measure(std::string_view piece)
    {
        const CSize extent = m_measure.Extent(piece);
        m_size.cx = std::max(m_size.cx, extent.cx);
        m_size.cy = std::max(m_size.cy, extent.cy);
    }

    TextMeasure& m_measure;
    const Widths m_widths;
    std::string_view m_widest;
    int m_widestSum = 0;
    CSize m_size = CSize(0, 0);
};

CSize TextMeasure::Lines(std::string_view text, int width)
{
    constexpr int themedExtra = 5; // pixels of width
    LargestPiece largest(*this);
    int lines = 1;
    size_t end = text.find('\n');
    const bool several = end != std::string_view::npos;
    for (; end != std::string_view::npos; end = text.find('\n'))
    {
        largest.Add(text.substr(0, end));
        ++lines;
        text.remove_prefix(end + 1);
    }
    if (!text.empty())
    {
        largest.Add(text);
        lines += several ? 1 : 0;
    }
    const CSize size = largest.Size();
    constexpr LONGLONG Highest = INT_MAX / 4; // what is around the text is added
    return CSize(std::max(width, int(size.cx)) + (VisualStyles() ? themedExtra : 0),
                 int(std::min(LONGLONG(size.cy) * lines, Highest)));
}

int TextMeasure::Title(const CString& title)
{
    return Extent({title, size_t(title.GetLength())}).cx;
}

} // namespace windows

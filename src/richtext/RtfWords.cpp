#include "richtext/RtfWords.h"

#include <algorithm>
#include <array>

namespace
{
using A = RtfAction;

// Ascending by name.
constexpr std::array words = {
    RtfWord{"annotation", A::Skip},
    RtfWord{"ansi", A::AnsiPage, 1252},
    RtfWord{"ansicpg", A::AnsiPageNumber},
    RtfWord{"atnauthor", A::Skip},
    RtfWord{"atnid", A::Skip},
    RtfWord{"b", A::Bold},
    RtfWord{"blue", A::Blue},
    RtfWord{"bullet", A::Character, 0x2022},
    RtfWord{"cell", A::Character, 0x09},
    RtfWord{"cf", A::Colour},
    RtfWord{"colortbl", A::ColourTable},
    RtfWord{"column", A::BreakIfText},
    RtfWord{"comment", A::Skip},
    RtfWord{"cpg", A::FontPage},
    RtfWord{"deff", A::DefaultFont},
    RtfWord{"deleted", A::Deleted},
    RtfWord{"emdash", A::Character, 0x2014},
    RtfWord{"emspace", A::Character, 0x2003},
    RtfWord{"endash", A::Character, 0x2013},
    RtfWord{"enspace", A::Character, 0x2002},
    RtfWord{"f", A::Font},
    RtfWord{"fcharset", A::Charset},
    RtfWord{"fi", A::First},
    RtfWord{"filetbl", A::Skip},
    RtfWord{"fldinst", A::Skip},
    RtfWord{"fonttbl", A::FontTable},
    RtfWord{"footer", A::Skip},
    RtfWord{"footerf", A::Skip},
    RtfWord{"footerl", A::Skip},
    RtfWord{"footerr", A::Skip},
    RtfWord{"footnote", A::Skip},
    RtfWord{"fs", A::Size},
    RtfWord{"green", A::Green},
    RtfWord{"header", A::Skip},
    RtfWord{"headerf", A::Skip},
    RtfWord{"headerl", A::Skip},
    RtfWord{"headerr", A::Skip},
    RtfWord{"i", A::Italic},
    RtfWord{"info", A::Skip},
    RtfWord{"ldblquote", A::Character, 0x201c},
    RtfWord{"li", A::Left},
    RtfWord{"line", A::ParagraphEnd},
    RtfWord{"listoverridetable", A::Skip},
    RtfWord{"listtable", A::Skip},
    RtfWord{"listtext", A::ListLabel},
    RtfWord{"lquote", A::Character, 0x2018},
    RtfWord{"ls", A::List},
    RtfWord{"ltrmark", A::Character, 0x200e},
    RtfWord{"mac", A::AnsiPage, 10000},
    RtfWord{"nestcell", A::Character, 0x09},
    RtfWord{"nestrow", A::ParagraphEnd},
    RtfWord{"nonesttables", A::Skip},
    RtfWord{"objdata", A::Skip},
    RtfWord{"object", A::Skip},
    RtfWord{"page", A::BreakIfText},
    RtfWord{"par", A::ParagraphEnd},
    RtfWord{"pard", A::Pard},
    RtfWord{"pc", A::AnsiPage, 437},
    RtfWord{"pca", A::AnsiPage, 850},
    RtfWord{"pict", A::Skip},
    RtfWord{"plain", A::Plain},
    RtfWord{"pn", A::OldList},
    RtfWord{"pnlvl", A::NumberLevel},
    RtfWord{"pnlvlblt", A::BulletLevel},
    RtfWord{"pnlvlbody", A::NumberLevel},
    RtfWord{"pntext", A::ListLabel},
    RtfWord{"private", A::Skip},
    RtfWord{"qc", A::Align, 2},
    RtfWord{"qd", A::Align, 0},
    RtfWord{"qj", A::Align, 0},
    RtfWord{"ql", A::Align, 0},
    RtfWord{"qmspace", A::Character, 0x2005},
    RtfWord{"qr", A::Align, 1},
    RtfWord{"rdblquote", A::Character, 0x201d},
    RtfWord{"red", A::Red},
    RtfWord{"revtbl", A::Skip},
    RtfWord{"ri", A::Right},
    RtfWord{"row", A::ParagraphEnd},
    RtfWord{"rquote", A::Character, 0x2019},
    RtfWord{"rtlmark", A::Character, 0x200f},
    RtfWord{"rxe", A::Skip},
    RtfWord{"sect", A::BreakIfText},
    RtfWord{"strike", A::Strike},
    RtfWord{"striked", A::Strike},
    RtfWord{"stylesheet", A::Skip},
    RtfWord{"tab", A::Character, 0x09},
    RtfWord{"tc", A::Skip},
    RtfWord{"template", A::Skip},
    RtfWord{"tx", A::Tab},
    RtfWord{"txe", A::Skip},
    RtfWord{"u", A::Unicode},
    RtfWord{"uc", A::FallbackLength},
    RtfWord{"ud", A::UnicodeText},
    RtfWord{"ul", A::Underline},
    RtfWord{"uld", A::Underline},
    RtfWord{"uldash", A::Underline},
    RtfWord{"uldashd", A::Underline},
    RtfWord{"uldashdd", A::Underline},
    RtfWord{"uldb", A::Underline},
    RtfWord{"ulnone", A::NoUnderline},
    RtfWord{"ulth", A::Underline},
    RtfWord{"ulw", A::Underline},
    RtfWord{"ulwave", A::Underline},
    RtfWord{"upr", A::UnicodePair},
    RtfWord{"xe", A::Skip},
    RtfWord{"zwj", A::Character, 0x200d},
    RtfWord{"zwnj", A::Character, 0x200c},
};

constexpr bool byName(const RtfWord &left, const RtfWord &right)
{
    return left.name < right.name;
}
static_assert(std::is_sorted(words.begin(), words.end(), byName));
} // namespace

const RtfWord *findRtfWord(QByteArrayView name)
{
    const RtfWord wanted{{name.data(), static_cast<std::size_t>(name.size())}, A::Skip};
    const auto *found = std::lower_bound(words.begin(), words.end(), wanted, byName);
    return found != words.end() && found->name == wanted.name ? found : nullptr;
}

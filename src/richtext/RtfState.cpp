#include "richtext/RtfState.h"

#include <algorithm>
#include <array>

namespace
{
bool isOn(const RtfToken &token)
{
    return !token.hasNumber || token.number != 0;
}

int bounded(int twips)
{
    return std::clamp(twips, -ParagraphState::MaxTwips, ParagraphState::MaxTwips);
}
} // namespace

bool RtfState::takeCharWord(const RtfWord &word, const RtfToken &token)
{
    switch (word.action) {
    case RtfAction::Bold:
        chars.bold = isOn(token);
        return true;
    case RtfAction::Italic:
        chars.italic = isOn(token);
        return true;
    case RtfAction::Underline:
        chars.underline = isOn(token);
        return true;
    case RtfAction::NoUnderline:
        chars.underline = false;
        return true;
    case RtfAction::Strike:
        chars.strike = isOn(token);
        return true;
    case RtfAction::Deleted:
        deleted = isOn(token);
        return true;
    case RtfAction::Size:
        if (token.number > 0)
            chars.halfPoints = std::clamp(token.number, 2, CharState::MaxHalfPoints);
        return true;
    default:
        return false;
    }
}

bool RtfState::takeParagraphWord(const RtfWord &word, const RtfToken &token)
{
    static constexpr std::array alignments = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};
    switch (word.action) {
    case RtfAction::Pard:
        paragraph = ParagraphState();
        return true;
    case RtfAction::Align:
        paragraph.alignment = alignments.at(static_cast<std::size_t>(word.value));
        return true;
    case RtfAction::Left:
        paragraph.left = bounded(token.number);
        return true;
    case RtfAction::First:
        paragraph.first = bounded(token.number);
        return true;
    case RtfAction::Right:
        paragraph.right = bounded(token.number);
        return true;
    case RtfAction::Tab:
        paragraph.addTab(token.number);
        return true;
    case RtfAction::List:
        paragraph.bullet = token.number > 0;
        return true;
    default:
        return false;
    }
}

#include "richtext/RtfListLabel.h"

#include "platform/Ascii.h"

#include <QByteArray>
#include <algorithm>

namespace
{
// A bullet may be a letter of a picture font, so a letter alone does not make a number.
bool isNumber(const QByteArray &label)
{
    return std::any_of(label.begin(), label.end(), isDigit) || label.endsWith('.') ||
           label.endsWith(')');
}
} // namespace

RtfListLabel rtfListLabel(RtfTokenizer ahead)
{
    QByteArray label;
    int depth = 1;
    while (depth > 0) {
        const RtfToken token = ahead.next();
        switch (token.kind) {
        case RtfToken::Kind::End:
            depth = 0;
            break;
        case RtfToken::Kind::GroupOpen:
            ++depth;
            break;
        case RtfToken::Kind::GroupClose:
            --depth;
            break;
        case RtfToken::Kind::Text:
            label += token.bytes.toByteArray();
            break;
        case RtfToken::Kind::Word:
            if (token.isWord("par"))
                return RtfListLabel::Items;
            break;
        default:
            break;
        }
    }
    return isNumber(label.trimmed()) ? RtfListLabel::Number : RtfListLabel::Bullet;
}

#include "richtext/WordCount.h"

#include <algorithm>

namespace
{
bool isHyphen(QChar c)
{
    return c == u'-' || c == u'\u2010' || c == u'\u2011';
}
} // namespace

int countWords(QStringView text, int most)
{
    int words = 0;
    bool inside = false;
    for (qsizetype at = 0; at < text.size() && words < most; ++at) {
        const QChar c = text.at(at);
        if (c.isLetterOrNumber() || (inside && c.isMark())) {
            if (!inside)
                ++words;
            inside = true;
        } else if (!(inside && isHyphen(c) && at + 1 < text.size() &&
                     text.at(at + 1).isLetterOrNumber())) {
            inside = false;
        }
    }
    return words;
}

int countSigns(QStringView text)
{
    return static_cast<int>(std::count_if(text.begin(), text.end(), [](QChar c) {
        return c != u'\r' && c != u'\n' && !c.isLowSurrogate() && !c.isMark();
    }));
}

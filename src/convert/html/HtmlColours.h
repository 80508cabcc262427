#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <array>

// The colours of an RTF text for the HTML export: those of its second line, which holds the colour
// table in what the editor writes. Without two line ends there are none. Entries are counted from 0
// in the order written, which fits tables whose first entry is the explicit default colour.
class HtmlColours
{
public:
    explicit HtmlColours(QByteArrayView rtf);

    // "FF8000" of the entry whose number follows \cf. index: the text behind \cf, of which only two
    // characters count. A number above the last entry gives entry 0: black when there is none.
    QByteArray hexOf(QByteArrayView index) const;

private:
    void readLine(QByteArrayView line);

    std::array<int, 21> m_colours{}; // entries beyond the 21st are ignored: required
    int m_count = 0;
};

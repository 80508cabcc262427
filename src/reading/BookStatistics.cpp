#include "reading/BookStatistics.h"

#include "check/BookWays.h"
#include "reading/BookPaths.h"

#include <algorithm>

BookStatistics::Span BookStatistics::span() const
{
    if (paragraphs.isEmpty())
        return {};
    const auto shorter = [](const Paragraph &a, const Paragraph &b) { return a.words < b.words; };
    return {std::min_element(paragraphs.begin(), paragraphs.end(), shorter)->number,
            std::max_element(paragraphs.begin(), paragraphs.end(), shorter)->number};
}

BookStatistics bookStatistics(const Variables &variables, const BookWays &ways,
                              const TextSizes &sizes)
{
    BookStatistics book;
    book.starts = ways.starts;
    const BookPaths paths(ways);
    for (int n = 1; n < ParagraphSet::count(); ++n) {
        if (!ways.written.at(n))
            continue;
        const BookStatistics::Paragraph paragraph{n, sizes.words.at(n), sizes.signs.at(n),
                                                  static_cast<int>(choicesAt(variables, n).size())};
        book.words += paragraph.words;
        book.signs += paragraph.signs;
        book.choices += paragraph.choices;
        book.reached += ways.reached.at(n) ? 1 : 0;
        book.paragraphs.append(paragraph);
        if (paragraph.choices == 0)
            book.endings.append({n, paths.wayTo(n), paths.passagesTo(n)});
    }
    return book;
}

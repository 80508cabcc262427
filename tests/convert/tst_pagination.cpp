#include "convert/pdf/Pagination.h"
#include "support/TestTable.h"

#include <algorithm>

namespace
{
// "3 1 o4 X": blocks of so many lines, one that is blank, one line of 40. Lines are 1 high, and a
// number with what is below it 2.
FlowParagraph paragraph(const QString &blocks)
{
    FlowParagraph paragraph{2, {}};
    for (const QString &block : blocks.split(' ', Qt::SkipEmptyParts)) {
        const int lines = block == "o" || block == "X" ? 1 : block.toInt();
        for (int i = 0; i < lines; ++i)
            paragraph.lines.append(
                {block == "X" ? 40.0 : 1.0, i == 0, i == lines - 1, block == "o"});
    }
    return paragraph;
}

QList<FlowParagraph> paragraphs(const QString &texts)
{
    QList<FlowParagraph> all;
    for (const QString &text : texts.split(','))
        all.append(paragraph(text));
    return all;
}

// "a6@0 b0-2@8.5 | b2-9@0": of each page the paragraphs, their lines and where they stand.
QString shown(const QList<FlowPage> &pages)
{
    QStringList all;
    for (const FlowPage &page : pages) {
        QStringList pieces;
        for (const FlowPiece &piece : page)
            pieces.append(QString("%1%2-%3@%4")
                              .arg(QChar('a' + piece.paragraph))
                              .arg(piece.line)
                              .arg(piece.line + piece.lines)
                              .arg(piece.y));
        all.append(pieces.join(' '));
    }
    return all.join(" | ");
}

const PageRoom Room{10, 1, 0.5, 3};
} // namespace

class tst_pagination : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesBecomePages_data()
    {
        addTable<QString, QString>(
            {"texts", "pages"},
            {{"one page", "3,2", "a0-3@0 b0-2@6"},
             {"the last page is not stretched", "2", "a0-2@0"},
             {"a number is not alone at the foot", "5,4", "a0-5@0 | b0-4@0"},
             {"nor with one line", "4,4", "a0-4@0 | b0-4@0"},
             {"all of a short text may stand with its number", "4,1", "a0-4@0 b0-1@7"},
             {"no line alone on the next page", "9,2", "a0-7@0 | a7-9@0 b0-2@3"},
             {"three lines are never parted", "4,3", "a0-4@0 | b0-3@0"},
             {"a block's first line does not end a page", "7 5", "a0-7@0 | a7-12@0"},
             {"nor does its last line begin one", "9 5", "a0-7@0 | a7-14@0"},
             {"lines that are blocks may", "8 1 1 1", "a0-8@0 | a8-11@0"},
             {"eight lines stay whole, for a wider gap", "2,2,5", "a0-2@0 b0-2@6 | c0-5@0"},
             {"and a narrower one", "1,1,1,2", "a0-1@0 b0-1@3.5 c0-1@7 | d0-2@0"},
             {"they are parted where the page stays short", "2,7,2",
              "a0-2@0 b0-3@5 | b3-7@0 c0-2@5"},
             {"nine lines are parted before a gap is wide", "3,9", "a0-3@0 b0-2@6 | b2-9@0"},
             {"what is blank begins no page", "8 o 3", "a0-8@0 | a9-12@0"},
             {"and takes no room at its end", "7 o o o 2", "a0-7@0 | a10-12@0"},
             {"a line higher than the page", "1,X,1", "a0-1@0 | b0-1@0 | c0-1@0"},
             {"a number without a text", ",,2", "a0-0@0 b0-0@3 c0-2@6"},
             {"no text at all", "", "a0-0@0"}});
    }
    void linesBecomePages()
    {
        QFETCH(QString, texts);
        QFETCH(QString, pages);
        QCOMPARE(shown(paginate(paragraphs(texts), Room)), pages);
    }

    void aPageEach()
    {
        PageRoom each = Room;
        each.pageEach = true;
        QCOMPARE(shown(paginate(paragraphs("2,12,1"), each)),
                 QString("a0-2@0 | b0-8@0 | b8-12@0 | c0-1@0"));
        QVERIFY(paginate({}, Room).isEmpty());
    }

    void linesGiveWayWhereGapsDoNot()
    {
        PageRoom room{10, 0, 0, 0, 0.05};
        const QList<FlowPage> pages = paginate({{0, paragraph("30").lines}}, room);
        QCOMPARE(pages.size(), 3);
        room.height = 10.4;
        const FlowPage spread = paginate({{0, paragraph("30").lines}}, room).first();
        QCOMPARE(spread.first().lines * (1 + spread.first().spread), room.height);
    }

    void everyLineOfALongBookIsThereOnce()
    {
        QList<FlowParagraph> all{paragraph("7000")};
        for (int i = 0; i < 500; ++i)
            all.append(paragraph(QString("%1 %2").arg(i % 13 + 1).arg(i * 7 % 11 + 1)));
        QList<int> seen(all.size(), 0);
        const QList<FlowPage> pages = paginate(all, {30, 1, 0.5, 3, 0.03});
        for (const FlowPage &page : pages) {
            for (const FlowPiece &piece : page) {
                QCOMPARE(piece.line, seen.at(piece.paragraph));
                seen[piece.paragraph] += piece.lines;
                const bool alone = piece.lines == 1 && all.at(piece.paragraph).lines.size() > 1;
                QVERIFY(!alone);
            }
        }
        for (int i = 0; i < all.size(); ++i)
            QCOMPARE(seen.at(i), all.at(i).lines.size());
        const auto isShort = [](const FlowPage &page) {
            const FlowPiece &last = page.last();
            const double share = 1 + last.spread;
            return last.y + (last.lines + (last.line == 0 ? 2 : 0)) * share < 30 - 1e-6;
        };
        QVERIFY(std::count_if(pages.begin(), pages.end(), isShort) < pages.size() / 50);
    }
};

QTEST_GUILESS_MAIN(tst_pagination)
#include "tst_pagination.moc"

#include "convert/book/Book.h"
#include "platform/Errors.h"
#include "store/AdventureChanges.h"
#include "store/AdventureFile.h"
#include "store/ParagraphTexts.h"
#include "support/AdventureBuilder.h"
#include "support/TestTable.h"

namespace
{
// "Va au |26>26|" : runs with where they refer to, blocks on lines of their own.
QString shown(const BookParagraph &paragraph)
{
    QStringList lines;
    for (const BookBlock &block : paragraph.blocks) {
        QStringList runs;
        for (const BookRun &run : block.runs)
            runs.append(run.refersTo == 0 ? run.text
                                          : run.text + u'>' + QString::number(run.refersTo) +
                                                (run.linked ? QString() : QStringLiteral("!")));
        lines.append(runs.join(u'|'));
    }
    return lines.join(u'\n');
}

const Progress quietly = [](int, int) {};
} // namespace

class tst_book : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void referencesAreRunsOfTheirOwn_data()
    {
        addTable<QByteArray, QString>(
            {"body", "runs"},
            {{"at the end", QByteArray("Va au 26"), QStringLiteral("Va au |26>26!")},
             {"capitals", QByteArray("VA AU 26."), QStringLiteral("VA AU |26>26!|.")},
             {"two", QByteArray("x au 3, au 4"), QStringLiteral("x au |3>3!|, au |4>4!")},
             {"in two looks", QByteArray("x au {\\b 2}6 ou{\\i  au 7}"),
              QStringLiteral("x au |26>26!| ou| au |7>7!")},
             {"phrase in two looks", QByteArray("x{\\b  a}u 26"), QStringLiteral("x| a|u |26>26!")},
             {"none", QByteArray("x au 2001, au pied"), QStringLiteral("x au 2001, au pied")},
             {"not over a line", QByteArray("x au\\par 5"), QStringLiteral("x au\n5")},
             {"empty end", QByteArray("x\\par\\par  \\par"), QStringLiteral("x")},
             {"nothing", QByteArray(""), QString()}});
    }
    void referencesAreRunsOfTheirOwn()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, runs);
        QCOMPARE(shown(bookParagraph(1, "{\\rtf1 " + body + "}", QStringLiteral(" au "))), runs);
    }

    void aBookIsWhatIsWritten()
    {
        const TestAdventure adventure;
        Variables v = adventure.variables;
        const QString path =
            adventure.file("a.usm", AdventureBuilder({"0: notes", "1: Va au 2, au 83, au 9, au 83",
                                                      "2: Va au 90", "9: fin"})
                                        .bytes());
        takeOver(v, readAdventure(path));
        const Book book = readBook(v, {0, 5}, quietly);
        QCOMPARE(book.paragraphs.size(), 2);
        QVERIFY(shown(book.paragraphs.at(0)).endsWith("|2>2|, au |83>83!|, au |9>9!|, au |83>83!"));
        QCOMPARE(book.emptyTargets, (QList<int>{83, 83, 90}));
        QVERIFY(emptyTargetsSentence(book).contains("83, 90"));
        QVERIFY(emptyTargetsSentence(readBook(v, {9, 9}, quietly)).isEmpty());
        QVERIFY(readBook(v, {20, 30}, quietly).paragraphs.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_book)
#include "tst_book.moc"

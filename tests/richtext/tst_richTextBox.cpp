#include "Look.h"
#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "support/TestTable.h"

#include <QTemporaryDir>
#include <QTest>

namespace
{
const QRgb red = qRgb(255, 0, 0);

const QString four = "un\r\n\r\ndeux trois\r\nquatre";

// Gives the selection every attribute but a bullet, which would hang by itself.
void format(RichTextBox &box)
{
    box.setSelBold(true);
    box.setSelItalic(true);
    box.setSelUnderline(true);
    box.setSelStrikeThru(true);
    box.setSelFontName("Écriture; {ronde} ★");
    box.setSelFontSize(10.5);
    box.setSelColor(qRgb(204, 0, 255));
    box.setSelAlignment(RichTextBox::Alignment::Right);
    box.setSelIndent(1);
    box.setSelHangingIndent(-0.5);
    box.setSelRightIndent(0.25);
    box.setSelTabs({5, 2.5});
}
} // namespace

class TestRichTextBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void positionsCountBreaksTwice()
    {
        const Table<int, int, int, QString> rows{
            {"with break", 0, 4, 0, "un\r\n"},
            {"half a break at the end", 0, 3, 0, "un"},
            {"from half a break", 3, 1, 2, "\r\n"},
            {"to the end", 18, 999, 18, "quatre"},
            {"before", -5, 2, 0, "un"},
            {"largest", 6, std::numeric_limits<int>::max(), 6, "deux trois\r\nquatre"}};
        for (const auto &[name, start, length, gotStart, text] : rows) {
            WithText box(four);
            box.select(start, length);
            QCOMPARE(box.selStart(), gotStart);
            QCOMPARE(box.selLength(), text.size());
            QCOMPARE(box.selText(), text);
            QCOMPARE(box.textLength(), box.text().size());
        }
    }

    void enteringTextIsCleaned()
    {
        const Table<QString, QString> rows{
            {"breaks", "a\nb\rc\r\nd\u2029e", "a\r\nb\r\nc\r\nd\r\ne"},
            {"controls and marks", QStringLiteral(u"a\u0001\u0000\tb\ufdd0\ufdd1\ufffcc"), "a\tbc"},
            {"half a pair", "a" + QString(QChar(0xd800)), "a\ufffd"},
            {"no-break space", "1\u00a0a", "1\u00a0a"}};
        for (const auto &[name, entered, text] : rows) {
            WithText box(entered);
            QCOMPARE(box.text(), text);
            box.setText({});
            box.setSelText(entered);
            QCOMPARE(box.text(), text);
            QCOMPARE(box.selStart(), text.size());
        }
    }

    void findSelects()
    {
        const Table<QString, int, bool, bool, int> rows{
            {"first", " au ", 0, false, false, 5},
            {"same case", " au ", 6, false, true, -1},
            {"accents count", "ete", 0, false, false, -1},
            {"across a break", "3\r\nou", 0, false, false, 9},
            {"no-break space", "\u00a0:", 0, false, false, 28},
            {"word", "porte", 32, true, false, -1},
            {"word at the end", "portes", -3, true, false, 38},
            {"beyond", " au ", 500, false, false, -1}};
        for (const auto &[name, needle, start, wholeWord, matchCase, found] : rows) {
            WithText box("Allez au 3\r\nou AU 7, à l'Été\u00a0: porte, portes");
            box.select(1, 2);
            QCOMPARE(box.find(needle, start, {wholeWord, matchCase}), found);
            QCOMPARE(box.selStart(), found < 0 ? 1 : found);
            QCOMPARE(box.selLength(), found < 0 ? 2 : needle.size());
        }
    }

    void replacementKeepsFirstFormat()
    {
        WithText box("au 26.");
        at(box, 3, 1).setSelBold(true);
        box.setSelColor(red);
        at(box, 3, 2).setSelText("143");
        QCOMPARE(box.selStart(), 6);
        QCOMPARE(box.selLength(), 0);
        QCOMPARE(looks(box), "[au][143 b #ff0000][.]");
    }

    void attributesAreKeptAndMixedOnesEmpty()
    {
        const QString chars = "b i ul strike Écriture; {ronde} ★ 10.5 #cc00ff ";
        const QString paragraph = "r li1 fi-0.5 ri0.25 t2.5,5";
        const QString mixed = "b? i? ul? strike? ? ? ? ";
        WithText written(four);
        format(at(written, 6, 4));
        WithRtf read(written.rtf());
        for (HiddenBox *box : std::initializer_list<HiddenBox *>{&written, &read}) {
            QCOMPARE(look(*box, 6, 4), chars + paragraph);
            QCOMPARE(look(*box, 6, 8), mixed + paragraph);
            // A selection that merely ends at the start of a paragraph does not hold it.
            QCOMPARE(look(*box, 6, 12), mixed + paragraph);
            QCOMPARE(look(*box, 6, 13), mixed + "? li? fi? ri? t?");
        }
        // An empty paragraph keeps the format of its end.
        at(written, 0, 999).setSelFontSize(20);
        read.setRtf(written.rtf());
        QCOMPARE(look(read, 4, 0), "20");
    }

    void plainTakesEveryFormatOfTheSelection()
    {
        WithText box(four);
        format(at(box, 0, 24));
        at(box, 6, 12).setSelBullet(true);
        const QString before = look(box, 0, 2);
        at(box, 4, 0).setSelPlain(); // an empty paragraph and what is typed there
        box.setSelText("x");
        QCOMPARE(look(box, 4, 1), "");
        at(box, 7, 4).setSelPlain();
        QCOMPARE(look(box, 7, 4), "");
        QCOMPARE(look(box, 12, 5), "b i ul strike Écriture; {ronde} ★ 10.5 #cc00ff");
        QCOMPARE(look(box, 19, 6), before);
        QCOMPARE(look(box, 0, 2), before);
    }

    void insertedRtfKeepsFormatBehind()
    {
        WithText box("avantaprès");
        box.setSelAlignment(RichTextBox::Alignment::Right);
        at(box, 5, 0).setSelRtf("{\\rtf1\\pard\\qc\\b un\\par\\ls1 deux\\par trois\\par}");
        QCOMPARE(looks(box), "[avant c][un b c]/[deux b c *]/[trois b r][après r]");
    }

    void insertedSelectionIsItself()
    {
        WithText box(four);
        at(box, 6, 4).setSelBold(true);
        box.setSelBullet(true);
        const QByteArray before = box.rtf();
        for (const auto &[start, length] : {std::pair(6, 4), {0, 6}, {2, 12}, {0, 24}, {8, 0}}) {
            box.select(start, length);
            box.setSelRtf(box.selRtf());
            QCOMPARE(box.rtf(), before);
            QCOMPARE(box.selStart(), start + length);
        }
    }

    void refusedValuesChangeNothing()
    {
        constexpr double nan = std::numeric_limits<double>::quiet_NaN();
        WithText box(four);
        box.select(0, 24);
        const QByteArray before = box.rtf();
        for (const double size : {0.0, -3.0, 1639.0, nan})
            box.setSelFontSize(size);
        box.setSelFontName({});
        box.setSelIndent(nan);
        box.setSelTabs({-1, 0, 1e9});
        QCOMPARE(box.rtf(), before);
    }

    // What the box refuses, the reader would refuse as well; what it takes can be read back.
    void nothingGrowsBeyondTheLimit()
    {
        constexpr int limit = 100'000;
        const QByteArray accents = "{\\rtf1 " + QByteArray(limit / 4, '\xe9') + "}";
        const QTemporaryDir folder;
        const QString path = folder.filePath("grand.rtf");
        writeWholeFile(path, accents, Durability::Data, Links::Follow);
        HiddenBox box;
        box.setLimit(limit);
        box.setText("reste");
        const QByteArray before = box.rtf();
        QVERIFY_THROWS_EXCEPTION(LimitError, box.setText(QString(limit, u'a')));
        QVERIFY_THROWS_EXCEPTION(LimitError, box.setSelText(QString(limit / 4, u'é')));
        QVERIFY_THROWS_EXCEPTION(LimitError, box.setSelRtf(accents));
        QVERIFY_THROWS_EXCEPTION(LimitError, box.loadFile(path));
        QCOMPARE(box.rtf(), before);
        int pieces = 0;
        const auto fill = [&box, &pieces] {
            for (;; ++pieces)
                box.setSelText(QString(1000, u'é'));
        };
        QVERIFY_THROWS_EXCEPTION(LimitError, fill());
        QCOMPARE(pieces, 22); // of 4,000 bytes, and room kept for formatting
        QVERIFY(box.rtf().size() <= limit);
        at(box, 0, 999'999).setSelText("neuf");
        QCOMPARE(box.text(), "neuf");
    }

    void manyTextsLeaveNothingBehind()
    {
        HiddenBox box;
        box.setBaseFont("Arial", 10);
        box.setText(four);
        at(box, 0, 24).setSelBullet(true);
        box.setSelColor(red);
        const QByteArray rich = box.rtf();
        box.setText("a");
        const auto formats = box.document()->allFormats().size();
        for (int i = 0; i < 20; ++i) {
            box.setRtf(rich);
            QCOMPARE(box.rtf(), rich);
            box.setText("a");
        }
        QCOMPARE(box.document()->allFormats().size(), formats);
        QVERIFY(box.rtf().contains("{\\f0\\fnil Arial;}}"));
        QVERIFY(box.rtf().endsWith("\\pard \\plain\\f0\\fs20 a\r\n\\par }"));
    }

    void filesAreLoadedAndSaved()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("LTdI-0026.rtf");
        WithText box(four);
        HiddenBox other;
        box.saveFile(path);
        other.loadFile(path);
        QVERIFY_THROWS_EXCEPTION(FileError, other.loadFile(path + u'x'));
        QVERIFY_THROWS_EXCEPTION(FileError, other.saveFile(folder.filePath("x/y.rtf")));
        QCOMPARE(other.rtf(), box.rtf());
    }
};

QTEST_MAIN(TestRichTextBox)
#include "tst_richTextBox.moc"

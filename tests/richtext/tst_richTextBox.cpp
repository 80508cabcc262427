#include "platform/Errors.h"
#include "richtext/HiddenBox.h"

#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>

namespace
{
const QRgb red = qRgb(255, 0, 0);

void fill(RichTextBox &box)
{
    box.setText(QStringLiteral("un\r\n\r\ndeux trois\r\nquatre"));
}
} // namespace

class TestRichTextBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void positionsCountBreaksTwice_data();
    void positionsCountBreaksTwice();
    void everyPositionMapsBack();
    void enteringTextIsCleaned_data();
    void enteringTextIsCleaned();
    void findSelects_data();
    void findSelects();
    void foundTextFeedsNextSearch();
    void replacementKeepsFirstFormat();
    void mixedAttributesAreEmpty();
    void attributesRoundTripThroughRtf();
    void blackIsAutomatic();
    void caretTakesAttributes();
    void emptyParagraphTakesAttributes();
    void insertedRtfKeepsFormatBehind();
    void insertedSelectionIsItself();
    void bulletsGoWithoutIndent();
    void refusedValuesChangeNothing();
    void manyTextsLeaveNothingBehind();
    void filesAreLoadedAndSaved();
};

void TestRichTextBox::positionsCountBreaksTwice_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("gotStart");
    QTest::addColumn<QString>("text");
    QTest::newRow("first word") << 0 << 2 << 0 << QStringLiteral("un");
    QTest::newRow("with break") << 0 << 4 << 0 << QStringLiteral("un\r\n");
    QTest::newRow("half a break at the end") << 0 << 3 << 0 << QStringLiteral("un");
    QTest::newRow("from half a break") << 3 << 1 << 2 << QStringLiteral("\r\n");
    QTest::newRow("half a break alone") << 2 << 1 << 2 << QString();
    QTest::newRow("empty paragraph") << 4 << 2 << 4 << QStringLiteral("\r\n");
    QTest::newRow("across") << 6 << 14 << 6 << QStringLiteral("deux trois\r\nqu");
    QTest::newRow("to the end") << 18 << 999 << 18 << QStringLiteral("quatre");
    QTest::newRow("beyond") << 999 << 5 << 24 << QString();
    QTest::newRow("before") << -5 << 2 << 0 << QStringLiteral("un");
    QTest::newRow("negative length") << 6 << -3 << 6 << QString();
    QTest::newRow("largest") << 6 << std::numeric_limits<int>::max() << 6
                             << QStringLiteral("deux trois\r\nquatre");
}

void TestRichTextBox::positionsCountBreaksTwice()
{
    QFETCH(int, start);
    QFETCH(int, length);
    QFETCH(int, gotStart);
    QFETCH(QString, text);
    HiddenBox box;
    fill(box);
    box.select(start, length);
    QCOMPARE(box.selStart(), gotStart);
    QCOMPARE(box.selLength(), text.size());
    QCOMPARE(box.selText(), text);
}

void TestRichTextBox::everyPositionMapsBack()
{
    HiddenBox box;
    fill(box);
    const QString text = box.text();
    for (int position = 0; position <= text.size(); ++position) {
        box.select(position, 0);
        const bool inside = position > 0 && position < text.size() && text.at(position) == u'\n';
        QCOMPARE(box.selStart(), inside ? position - 1 : position);
    }
}

void TestRichTextBox::enteringTextIsCleaned_data()
{
    QTest::addColumn<QString>("entered");
    QTest::addColumn<QString>("text");
    const QString lines = QStringLiteral("a\r\nb");
    QTest::newRow("LF") << QStringLiteral("a\nb") << lines;
    QTest::newRow("CR") << QStringLiteral("a\rb") << lines;
    QTest::newRow("CR LF") << lines << lines;
    QTest::newRow("line separator") << QStringLiteral("a\u2028b") << lines;
    QTest::newRow("paragraph separator") << QStringLiteral("a\u2029b") << lines;
    QTest::newRow("controls") << QStringLiteral(u"a\u0001\u0000\tb") << QStringLiteral("a\tb");
    QTest::newRow("frame marks") << QStringLiteral(u"a\ufdd0\ufdd1\ufffcb") << QStringLiteral("ab");
    QTest::newRow("half a pair") << QStringLiteral("a") + QChar(0xd800)
                                 << QStringLiteral(u"a\ufffd");
    QTest::newRow("no-break space") << QStringLiteral(u"1\u00a0a") << QStringLiteral(u"1\u00a0a");
}

void TestRichTextBox::enteringTextIsCleaned()
{
    QFETCH(QString, entered);
    QFETCH(QString, text);
    HiddenBox box;
    box.setText(entered);
    QCOMPARE(box.text(), text);
    box.setText(QString());
    box.setSelText(entered);
    QCOMPARE(box.text(), text);
    QCOMPARE(box.selStart(), text.size());
}

void TestRichTextBox::findSelects_data()
{
    QTest::addColumn<QString>("needle");
    QTest::addColumn<int>("start");
    QTest::addColumn<bool>("wholeWord");
    QTest::addColumn<bool>("matchCase");
    QTest::addColumn<int>("found");
    const QString au = QStringLiteral(" au ");
    // The text: "Allez au 3\r\nou AU 7, à l'Été\u00a0: porte, portes"
    QTest::newRow("first") << au << 0 << false << false << 5;
    QTest::newRow("other case") << au << 6 << false << false << 14;
    QTest::newRow("same case") << au << 6 << false << true << -1;
    QTest::newRow("accents have cases") << QStringLiteral("été") << 0 << false << false << 25;
    QTest::newRow("accents count") << QStringLiteral("ete") << 0 << false << false << -1;
    QTest::newRow("across a break") << QStringLiteral("3\r\nou") << 0 << false << false << 9;
    QTest::newRow("no-break space") << QStringLiteral(u"\u00a0:") << 0 << false << false << 28;
    QTest::newRow("is no space") << QStringLiteral("Été :") << 0 << false << false << -1;
    QTest::newRow("word") << QStringLiteral("porte") << 32 << true << false << -1;
    QTest::newRow("part of a word") << QStringLiteral("porte") << 32 << false << false << 38;
    QTest::newRow("word at the end") << QStringLiteral("portes") << 0 << true << false << 38;
    QTest::newRow("nothing") << QString() << 0 << false << false << -1;
    QTest::newRow("beyond") << au << 500 << false << false << -1;
    QTest::newRow("before") << QStringLiteral("allez") << -3 << false << false << 0;
}

void TestRichTextBox::findSelects()
{
    QFETCH(QString, needle);
    QFETCH(int, start);
    QFETCH(bool, wholeWord);
    QFETCH(bool, matchCase);
    QFETCH(int, found);
    HiddenBox box;
    box.setText(QStringLiteral(u"Allez au 3\r\nou AU 7, à l'Été\u00a0: porte, portes"));
    box.select(1, 2);
    QCOMPARE(box.find(needle, start, {wholeWord, matchCase}), found);
    QCOMPARE(box.selStart(), found < 0 ? 1 : found);
    QCOMPARE(box.selLength(), found < 0 ? 2 : needle.size());
}

void TestRichTextBox::foundTextFeedsNextSearch()
{
    HiddenBox box;
    box.setText(QStringLiteral("Allez\r\nau 3 ou\r\n au 7 au 8"));
    QString numbers;
    int from = 0;
    while ((from = box.find(QStringLiteral("au "), from, {})) >= 0) {
        from += 3;
        numbers += box.text().mid(from, 1);
    }
    QCOMPARE(numbers, QStringLiteral("378"));
}

void TestRichTextBox::replacementKeepsFirstFormat()
{
    HiddenBox box;
    box.setText(QStringLiteral("au 26."));
    box.select(3, 1);
    box.setSelBold(true);
    box.setSelColor(red);
    box.select(3, 2);
    box.setSelText(QStringLiteral("143"));
    QCOMPARE(box.text(), QStringLiteral("au 143."));
    QCOMPARE(box.selStart(), 6);
    QCOMPARE(box.selLength(), 0);
    box.select(3, 3);
    QCOMPARE(box.selBold(), std::optional(true));
    QCOMPARE(box.selColor(), std::optional(red));
    box.select(6, 1);
    QCOMPARE(box.selBold(), std::optional(false));
}

void TestRichTextBox::mixedAttributesAreEmpty()
{
    HiddenBox box;
    fill(box);
    box.select(6, 4);
    box.setSelBold(true);
    box.setSelFontSize(10.5);
    box.setSelFontName(QStringLiteral("Arial"));
    box.setSelColor(red);
    box.setSelBullet(true);
    box.setSelIndent(1.5);
    box.setSelTabs({3, 1});
    QCOMPARE(box.selFontSize(), std::optional(10.5));
    box.select(6, 8);
    QVERIFY(!box.selBold() && !box.selFontSize() && !box.selFontName() && !box.selColor());
    QCOMPARE(box.selItalic(), std::optional(false));
    QCOMPARE(box.selBullet(), std::optional(true));
    // A selection that merely ends at the start of a paragraph does not hold it.
    box.select(6, 12);
    QVERIFY(box.selBullet() && box.selIndent() && box.selTabs());
    box.select(6, 13);
    QVERIFY(!box.selBullet() && !box.selIndent() && !box.selTabs());
    QCOMPARE(box.selRightIndent(), std::optional(0.0));
    QCOMPARE(box.selAlignment(), std::optional(RichTextBox::Alignment::Left));
}

void TestRichTextBox::attributesRoundTripThroughRtf()
{
    HiddenBox box;
    fill(box);
    box.select(6, 4);
    box.setSelItalic(true);
    box.setSelUnderline(true);
    box.setSelStrikeThru(true);
    box.setSelFontSize(10.5);
    box.setSelFontName(QStringLiteral("Écriture; {ronde} ★"));
    box.setSelColor(qRgb(204, 0, 255));
    box.setSelAlignment(RichTextBox::Alignment::Right);
    box.setSelIndent(1);
    box.setSelHangingIndent(-0.5);
    box.setSelRightIndent(0.25);
    box.setSelTabs({5, 2.5});
    HiddenBox other;
    other.setRtf(box.rtf());
    other.select(6, 4);
    QCOMPARE(other.selItalic(), std::optional(true));
    QCOMPARE(other.selUnderline(), std::optional(true));
    QCOMPARE(other.selStrikeThru(), std::optional(true));
    QCOMPARE(other.selFontSize(), std::optional(10.5));
    QCOMPARE(other.selFontName(), std::optional(QStringLiteral("Écriture; {ronde} ★")));
    QCOMPARE(other.selColor(), std::optional(qRgb(204, 0, 255)));
    QCOMPARE(other.selAlignment(), std::optional(RichTextBox::Alignment::Right));
    // To three decimals, as the formatting panel shows them.
    QCOMPARE(qRound(*other.selIndent() * 100), 100);
    QCOMPARE(qRound(*other.selHangingIndent() * 100), -50);
    QCOMPARE(qRound(*other.selRightIndent() * 100), 25);
    QCOMPARE(other.selTabs()->size(), 2);
    QCOMPARE(qRound(other.selTabs()->at(0) * 100), 250);
    QCOMPARE(qRound(other.selTabs()->at(1) * 100), 500);
}

void TestRichTextBox::blackIsAutomatic()
{
    HiddenBox box;
    box.setText(QStringLiteral("noir"));
    const QByteArray untouched = box.rtf();
    box.select(0, 4);
    box.setSelColor(red);
    QVERIFY(box.rtf().contains("\\cf1"));
    box.setSelColor(qRgb(0, 0, 0));
    QCOMPARE(box.selColor(), std::optional(qRgb(0, 0, 0)));
    QCOMPARE(box.rtf(), untouched);
}

void TestRichTextBox::caretTakesAttributes()
{
    HiddenBox box;
    box.setText(QStringLiteral("ab"));
    box.select(1, 0);
    box.setSelBold(true);
    box.setSelFontSize(20);
    QCOMPARE(box.selBold(), std::optional(true));
    box.setSelText(QStringLiteral("X"));
    box.select(1, 1);
    QCOMPARE(box.selBold(), std::optional(true));
    QCOMPARE(box.selFontSize(), std::optional(20.0));
    box.select(0, 3);
    QVERIFY(!box.selBold());
    QCOMPARE(box.text(), QStringLiteral("aXb"));
}

void TestRichTextBox::emptyParagraphTakesAttributes()
{
    HiddenBox box;
    fill(box);
    box.select(0, 999);
    box.setSelFontSize(20);
    HiddenBox other;
    other.setRtf(box.rtf());
    other.select(4, 0);
    QCOMPARE(other.selFontSize(), std::optional(20.0));
    QVERIFY(!box.rtf().contains("\\fs24"));
}

void TestRichTextBox::insertedRtfKeepsFormatBehind()
{
    HiddenBox box;
    box.setText(QStringLiteral("avantaprès"));
    box.select(0, 1);
    box.setSelAlignment(RichTextBox::Alignment::Right);
    box.select(5, 0);
    box.setSelRtf("{\\rtf1\\pard\\qc\\b un\\par\\ls1 deux\\par trois\\par}");
    QCOMPARE(box.text(), QStringLiteral("avantun\r\ndeux\r\ntroisaprès"));
    box.select(0, 0);
    QCOMPARE(box.selAlignment(), std::optional(RichTextBox::Alignment::Centre));
    box.select(11, 0);
    QCOMPARE(box.selBullet(), std::optional(true));
    box.select(20, 0);
    QCOMPARE(box.selAlignment(), std::optional(RichTextBox::Alignment::Right));
    QCOMPARE(box.selBullet(), std::optional(false));
    box.select(15, 5);
    QCOMPARE(box.selText(), QStringLiteral("trois"));
    QCOMPARE(box.selBold(), std::optional(true));
}

void TestRichTextBox::insertedSelectionIsItself()
{
    HiddenBox box;
    fill(box);
    box.select(6, 4);
    box.setSelBold(true);
    box.setSelBullet(true);
    const QByteArray before = box.rtf();
    for (const auto &[start, length] : {std::pair(6, 4), {0, 6}, {2, 12}, {0, 24}, {8, 0}}) {
        box.select(start, length);
        box.setSelRtf(box.selRtf());
        QCOMPARE(box.rtf(), before);
        QCOMPARE(box.selStart(), start + length);
    }
}

void TestRichTextBox::bulletsGoWithoutIndent()
{
    HiddenBox box;
    fill(box);
    const QByteArray before = box.rtf();
    box.select(0, 24);
    box.setSelBullet(true);
    QCOMPARE(box.selBullet(), std::optional(true));
    QCOMPARE(box.selIndent(), std::optional(0.0));
    box.select(6, 0);
    box.setSelBullet(false);
    box.select(0, 24);
    QVERIFY(!box.selBullet());
    box.setSelBullet(false);
    QCOMPARE(box.rtf(), before);
}

void TestRichTextBox::refusedValuesChangeNothing()
{
    HiddenBox box;
    fill(box);
    box.select(0, 24);
    const QByteArray before = box.rtf();
    box.setSelFontSize(0);
    box.setSelFontSize(-3);
    box.setSelFontSize(1639);
    box.setSelFontSize(std::numeric_limits<double>::quiet_NaN());
    box.setSelFontName(QString());
    box.setSelIndent(std::numeric_limits<double>::quiet_NaN());
    box.setSelTabs({-1, 0, 1e9});
    QCOMPARE(box.rtf(), before);
    QList<double> many;
    for (int i = 1; i <= 100; ++i)
        many.append(i * 0.5);
    box.setSelTabs(many);
    QCOMPARE(box.selTabs()->size(), 64);
}

void TestRichTextBox::manyTextsLeaveNothingBehind()
{
    HiddenBox box;
    box.setBaseFont(QStringLiteral("Arial"), 10);
    fill(box);
    box.select(0, 24);
    box.setSelBullet(true);
    box.setSelColor(red);
    const QByteArray rich = box.rtf();
    box.setText(QStringLiteral("a"));
    const auto formats = box.document()->allFormats().size();
    for (int i = 0; i < 20; ++i) {
        box.setRtf(rich);
        QCOMPARE(box.rtf(), rich);
        box.setText(QStringLiteral("a"));
    }
    QCOMPARE(box.document()->allFormats().size(), formats);
    QVERIFY(box.rtf().contains("{\\f0\\fnil Arial;}}"));
    QVERIFY(box.rtf().endsWith("\\pard \\plain\\f0\\fs20 a\r\n\\par }"));
}

void TestRichTextBox::filesAreLoadedAndSaved()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("LTdI-0026.rtf"));
    HiddenBox box;
    fill(box);
    box.saveFile(path);
    HiddenBox other;
    other.loadFile(path);
    QCOMPARE(other.rtf(), box.rtf());
    QVERIFY_THROWS_EXCEPTION(FileError, other.loadFile(path + u'x'));
    QVERIFY_THROWS_EXCEPTION(FileError, other.saveFile(folder.filePath(QStringLiteral("x/y.rtf"))));
    QCOMPARE(other.text(), box.text());
}

QTEST_MAIN(TestRichTextBox)
#include "tst_richTextBox.moc"

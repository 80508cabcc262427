#include "richtext/HiddenBox.h"

#include <QFile>
#include <QTest>

namespace
{
void type(RichTextBox &box, const QString &text)
{
    box.select(static_cast<int>(box.text().size()), 0);
    box.setSelText(text);
}

void selectText(RichTextBox &box, const QString &text)
{
    QVERIFY2(box.find(text, 0, {}) >= 0, qPrintable(text));
}

void makeStyles(RichTextBox &box)
{
    box.setText(QStringLiteral("Gras puis maigre, puis tout\r\nencore tout\r\nfin"));
    selectText(box, QStringLiteral("Gras"));
    box.setSelBold(true);
    selectText(box, QStringLiteral("tout\r\nencore tout"));
    box.setSelBold(true);
    box.setSelItalic(true);
    box.setSelUnderline(true);
    box.setSelStrikeThru(true);
}

void makeParagraphs(RichTextBox &box)
{
    box.setText(QStringLiteral("Titre\r\ncitation\r\ntableau\tdroite\r\n\r\nsignature\r\nsuite"));
    selectText(box, QStringLiteral("Titre"));
    box.setSelAlignment(RichTextBox::Alignment::Centre);
    selectText(box, QStringLiteral("citation"));
    box.setSelIndent(1);
    box.setSelHangingIndent(-0.5);
    box.setSelRightIndent(2.54);
    selectText(box, QStringLiteral("tableau"));
    box.setSelTabs({5.08, 2.54});
    selectText(box, QStringLiteral("signature\r\nsuite"));
    box.setSelAlignment(RichTextBox::Alignment::Right);
}

void makeBullets(RichTextBox &box)
{
    box.setText(QStringLiteral("Prenez :\r\nl'épée\r\nla corde\r\nrien"));
    selectText(box, QStringLiteral("épée\r\nla"));
    box.setSelBullet(true);
    selectText(box, QStringLiteral("corde"));
    box.setSelIndent(1);
}

void makeColours(RichTextBox &box)
{
    box.setText(QStringLiteral("noir rouge orange rouge autre"));
    box.select(5, 5);
    box.setSelColor(qRgb(255, 0, 0));
    box.select(11, 6);
    box.setSelColor(qRgb(255, 128, 0));
    box.setSelFontName(QStringLiteral("Écriture {du} \\Mage; ★"));
    box.setSelFontSize(10.5);
    box.select(18, 5);
    box.setSelColor(qRgb(255, 0, 0));
    box.setSelFontName(QStringLiteral("Arial"));
    box.select(0, 4);
    box.setSelColor(qRgb(0, 0, 0));
}

// Beyond Windows-1252 a character closes the styles for the HTML export; a tab does not.
void makeCharacters(RichTextBox &box)
{
    box.setText(QStringLiteral(u"{a} \\b\u00a0« œuf – 1\u00a0€ » …\u2011 ★ 📘 \x7f\u0081"));
    type(box, QStringLiteral("\r\n★★é★\tab★\r\n★fin"));
    box.select(static_cast<int>(box.text().indexOf(QStringLiteral("\r\n"))) + 2, 100);
    box.setSelBold(true);
}
} // namespace

class TestRtfWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layoutIsPinned_data();
    void layoutIsPinned();
    void selectionIsWrittenAlone();
    void nothingThatNoReaderTakesIsWritten();
    void fontNamesThatAreWrittenAlikeAreOne();
};

void TestRtfWriter::layoutIsPinned_data()
{
    using Make = void (*)(RichTextBox &);
    QTest::addColumn<Make>("make");
    QTest::newRow("vide") << Make([](RichTextBox &box) { box.setText(QString()); });
    QTest::newRow("simple") << Make([](RichTextBox &box) {
        box.setText(QStringLiteral("Rendez-vous au 26.\r\n\r\nOu au 103.\r\n"));
    });
    QTest::newRow("styles") << Make(makeStyles);
    QTest::newRow("paragraphes") << Make(makeParagraphs);
    QTest::newRow("puces") << Make(makeBullets);
    QTest::newRow("couleurs") << Make(makeColours);
    QTest::newRow("caracteres") << Make(makeCharacters);
}

// The HTML export goes by these bytes: a difference here is a change of the file format.
void TestRtfWriter::layoutIsPinned()
{
    using Make = void (*)(RichTextBox &);
    QFETCH(Make, make);
    HiddenBox box;
    make(box);
    const QString name = QStringLiteral(USMIRA_TEST_DATA "/rtf/%1.rtf")
                             .arg(QString::fromLatin1(QTest::currentDataTag()));
    QFile golden(name);
    QVERIFY2(golden.open(QIODevice::ReadOnly), qPrintable(name));
    const QByteArray wanted = golden.readAll();
    QCOMPARE(box.rtf(), wanted);
    const QString text = box.text();
    box.setRtf(wanted);
    QCOMPARE(box.rtf(), wanted);
    QCOMPARE(box.text(), text);
}

void TestRtfWriter::selectionIsWrittenAlone()
{
    HiddenBox box;
    makeStyles(box);
    box.select(5, 100);
    const QByteArray rtf = box.selRtf();
    HiddenBox other;
    other.setRtf(rtf);
    QCOMPARE(other.text(), QStringLiteral("puis maigre, puis tout\r\nencore tout\r\nfin"));
    QVERIFY(!rtf.contains("Gras"));
    other.select(0, 4);
    QCOMPARE(other.selBold(), std::optional(false));
    // A selection that ends behind a paragraph break holds the break.
    box.select(0, static_cast<int>(box.text().indexOf(QStringLiteral("encore"))));
    other.setRtf(box.selRtf());
    QCOMPARE(other.text(), QStringLiteral("Gras puis maigre, puis tout\r\n"));
}

void TestRtfWriter::nothingThatNoReaderTakesIsWritten()
{
    HiddenBox box;
    // Straight into the document, past the cleaning of the box.
    QTextCursor(box.document())
        .insertText(QStringLiteral(u"a\ufffcb\u2028c\xd800") + QChar(0xdc01));
    const QByteArray rtf = box.rtf();
    QVERIFY(rtf.endsWith("\\plain\\f0\\fs24 ab\r\n\\par c\\u-10240 ?\\u-9215 ?\r\n\\par }"));
}

void TestRtfWriter::fontNamesThatAreWrittenAlikeAreOne()
{
    HiddenBox box;
    box.setRtf("{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 A\\'01rial ;}{\\f2 " +
               QByteArray(255, 'x') + " y;}}\\f0 a\\f1 b\\f2 c}");
    const QByteArray rtf = box.rtf();
    QCOMPARE(rtf.count("Arial"), 1);
    QVERIFY(rtf.contains(" ab"));
    box.setRtf(rtf);
    QCOMPARE(box.rtf(), rtf);
}

QTEST_MAIN(TestRtfWriter)
#include "tst_rtfWriter.moc"

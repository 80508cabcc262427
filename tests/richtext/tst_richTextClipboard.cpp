#include "richtext/HiddenBox.h"
#include "richtext/RichTextClipboard.h"
#include "richtext/RtfPlainText.h"

#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

namespace
{
QByteArray rtfFromHtml(const QString &html)
{
    return RichTextClipboard::rtfFromHtml(html, QStringLiteral("Arial"), 10);
}
} // namespace

class TestRichTextClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void htmlGivesText_data();
    void htmlGivesText();
    void htmlKeepsKnownFormatting();
    void picturesAreNeverFetched();
    void bestFormIsPasted_data();
    void bestFormIsPasted();
    void copyPastesTheSame();
    void nothingSelectedGivesNothing();
};

void TestRichTextClipboard::htmlGivesText_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QString &html, const QString &text) {
        QTest::newRow(name) << html << text;
    };
    row("nothing", {}, {});
    row("paragraphs", QStringLiteral("<p>un</p><p>deux<br>trois</p>"),
        QStringLiteral("un\r\ndeux\r\ntrois"));
    row("white space", QStringLiteral("<p>a \n b&nbsp;c&amp;</p>"), QStringLiteral(u"a b\u00a0c&"));
    row("list", QStringLiteral("<ul><li>a</li><li>b</li></ul>"), QStringLiteral("a\r\nb"));
    row("numbers", QStringLiteral("<ol><li>a</li><li>b</li></ol>"),
        QStringLiteral("1.\ta\r\n2.\tb"));
    row("table",
        QStringLiteral("<p>x</p><table><tr><td>a</td><td>b</td></tr>"
                       "<tr><td>c</td><td></td></tr></table><p>y</p>"),
        QStringLiteral("x\r\na\tb\r\nc\t\r\ny"));
    row("table alone",
        QStringLiteral("<table><tr><td>a</td><td><p>b</p><p>c<br>d</p></td></tr></table>"),
        QStringLiteral("a\tb c d"));
    row("script and style", QStringLiteral("<style>p{}</style><script>x()</script><p>a</p>"),
        QStringLiteral("a"));
}

void TestRichTextClipboard::htmlGivesText()
{
    QFETCH(QString, html);
    QFETCH(QString, text);
    QCOMPARE(rtfToPlainText(rtfFromHtml(html)), text);
}

void TestRichTextClipboard::htmlKeepsKnownFormatting()
{
    HiddenBox box;
    box.setRtf(rtfFromHtml(QStringLiteral(
        "<p align=center><b>gras</b> <i>i</i> <font color=#ff0000>rouge</font> "
        "<span style='font-family:Courier;font-size:16px'>fixe</span></p><ul><li>puce</li></ul>")));
    QCOMPARE(box.text(), QStringLiteral("gras i rouge fixe\r\npuce"));
    QCOMPARE(box.selAlignment(), std::optional(RichTextBox::Alignment::Centre));
    box.select(0, 4);
    QCOMPARE(box.selBold(), std::optional(true));
    QCOMPARE(box.selFontName(), std::optional(QStringLiteral("Arial")));
    QCOMPARE(box.selFontSize(), std::optional(10.0));
    box.select(5, 1);
    QCOMPARE(box.selItalic(), std::optional(true));
    box.select(7, 5);
    QCOMPARE(box.selColor(), std::optional(qRgb(255, 0, 0)));
    box.select(13, 4);
    QCOMPARE(box.selFontName(), std::optional(QStringLiteral("Courier")));
    QCOMPARE(box.selFontSize(), std::optional(12.0));
    box.select(20, 0);
    QCOMPARE(box.selBullet(), std::optional(true));
}

void TestRichTextClipboard::picturesAreNeverFetched()
{
    // A style sheet on the disk would be read, and show its effect, if anything were looked up.
    const QTemporaryDir folder;
    QFile sheet(folder.filePath(QStringLiteral("s.css")));
    QVERIFY(sheet.open(QIODevice::WriteOnly));
    sheet.write("p { font-weight: bold }");
    sheet.close();
    const QString url = QUrl::fromLocalFile(sheet.fileName()).toString();
    const QByteArray rtf = rtfFromHtml(
        QStringLiteral("<html><head><link rel=stylesheet type='text/css' href='%1'></head>"
                       "<body><p>a<img src='%1'>b</p></body></html>")
            .arg(url));
    QCOMPARE(rtfToPlainText(rtf), QStringLiteral("ab"));
    QVERIFY(!rtf.contains("\\b "));
}

void TestRichTextClipboard::bestFormIsPasted_data()
{
    QTest::addColumn<QByteArray>("rtf");
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("text");
    const QString html = QStringLiteral("<p>html</p>");
    const QString plain = QStringLiteral("brut\nsuite");
    QTest::newRow("RTF") << QByteArray("{\\rtf1 rtf}") << html << plain << QStringLiteral("[rtf]");
    QTest::newRow("bad RTF") << QByteArray("rtf") << html << plain << QStringLiteral("[html]");
    QTest::newRow("HTML") << QByteArray() << html << plain << QStringLiteral("[html]");
    QTest::newRow("text") << QByteArray() << QString() << plain
                          << QStringLiteral("[brut\r\nsuite]");
    QTest::newRow("nothing") << QByteArray() << QString() << QString() << QStringLiteral("[x]");
}

void TestRichTextClipboard::bestFormIsPasted()
{
    QFETCH(QByteArray, rtf);
    QFETCH(QString, html);
    QFETCH(QString, plain);
    QFETCH(QString, text);
    QMimeData data;
    if (!rtf.isEmpty())
        data.setData(QStringLiteral("application/rtf"), rtf);
    if (!html.isEmpty())
        data.setHtml(html);
    if (!plain.isEmpty())
        data.setText(plain);
    HiddenBox box;
    box.setText(QStringLiteral("[x]"));
    box.select(1, 1);
    const bool pasted = RichTextClipboard::paste(box, data);
    QCOMPARE(box.text(), text);
    QCOMPARE(pasted, text != QStringLiteral("[x]"));
    QCOMPARE(RichTextClipboard::canPaste(data), pasted);
}

void TestRichTextClipboard::copyPastesTheSame()
{
    HiddenBox box;
    box.setRtf("{\\rtf1{\\colortbl;\\red255\\green0\\blue0;}\\cf1\\b a\\par\\ls1 b\\par\\pard c}");
    box.select(0, 7);
    const auto data = RichTextClipboard::mimeData(box);
    QCOMPARE(data->text(), QStringLiteral("a\nb\nc"));
    HiddenBox other;
    QVERIFY(RichTextClipboard::paste(other, *data));
    QCOMPARE(other.rtf(), box.rtf());
}

void TestRichTextClipboard::nothingSelectedGivesNothing()
{
    HiddenBox box;
    box.setText(QStringLiteral("a"));
    QVERIFY(RichTextClipboard::mimeData(box) == nullptr);
}

QTEST_MAIN(TestRichTextClipboard)
#include "tst_richTextClipboard.moc"

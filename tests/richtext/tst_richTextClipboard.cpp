#include "Look.h"
#include "richtext/RichTextClipboard.h"
#include "richtext/RtfPlainText.h"
#include "support/TestTable.h"

#include <QMimeData>
#include <QTemporaryFile>
#include <QTest>
#include <QUrl>

namespace
{
QByteArray rtfFromHtml(const QString &html)
{
    return RichTextClipboard::rtfFromHtml(html, "Arial", 10);
}
} // namespace

class TestRichTextClipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void htmlGivesText()
    {
        const Table<QString, QString> rows{
            {"paragraphs", "<p>un</p><p>deux<br>trois</p>", "un\r\ndeux\r\ntrois"},
            {"white space", "<p>a \n b&nbsp;c&amp;</p>", "a b\u00a0c&"},
            {"lists", "<ul><li>a</li></ul><ol><li>b</li><li>c</li></ol>", "a\r\n1.\tb\r\n2.\tc"},
            {"table",
             "<p>x</p><table><tr><td>a</td><td>b</td></tr>"
             "<tr><td>c</td><td></td></tr></table><p>y</p>",
             "x\r\na\tb\r\nc\t\r\ny"},
            {"table alone", "<table><tr><td>a</td><td><p>b</p><p>c<br>d</p></td></tr></table>",
             "a\tb c d"},
            {"not text", "<style>p{}</style><script>x()</script><p>a</p>", "a"},
        };
        for (const auto &[name, html, text] : rows)
            QCOMPARE(rtfToPlainText(rtfFromHtml(html)), text);
    }

    void htmlKeepsKnownFormatting()
    {
        WithRtf box(rtfFromHtml(
            "<p align=center><b>gras</b><i>i</i><font color=#ff0000>rouge</font><span "
            "style='font-family:Courier;font-size:16px'>fixe</span></p><ul><li>puce</li></ul>"));
        QCOMPARE(looks(box), "[gras b Arial 10 c][i i Arial 10 c][rouge Arial 10 #ff0000 c]"
                             "[fixe Courier c]/[puce Arial 10 *]");
    }

    void nothingIsFetched()
    {
        // A style sheet on the disk would show its effect if anything were looked up.
        QTemporaryFile sheet;
        QVERIFY(sheet.open());
        sheet.write("p { font-weight: bold }");
        sheet.close();
        const QString html = "<html><head><link rel=stylesheet type='text/css' href='%1'></head>"
                             "<body><p>a<img src='%1'>b</p></body></html>";
        const QByteArray rtf =
            rtfFromHtml(html.arg(QUrl::fromLocalFile(sheet.fileName()).toString()));
        QCOMPARE(rtfToPlainText(rtf), "ab");
        QVERIFY(!rtf.contains("\\b "));
    }

    void bestFormIsPasted()
    {
        const QString page = "<p>html</p>";
        const QString lines = "brut\nsuite";
        const Table<QByteArray, QString, QString, QString, QString> rows{
            {"RTF", "{\\rtf1 rtf}", page, lines, "[rtf]", "[brut\r\nsuite]"},
            {"RTF only", "{\\rtf1\\b rtf}", "", "", "[rtf]", "[rtf]"},
            {"bad RTF", "rtf", page, lines, "[html]", "[brut\r\nsuite]"},
            {"HTML", "", page, "", "[html]", "[html]"},
            {"text", "", "", lines, "[brut\r\nsuite]", "[brut\r\nsuite]"},
            {"nothing", "", "", "", "[x]", "[x]"},
        };
        for (const auto &[name, rtf, html, plain, text, alone] : rows) {
            QMimeData data;
            if (!rtf.isEmpty())
                data.setData("application/rtf", rtf);
            if (!html.isEmpty())
                data.setHtml(html);
            if (!plain.isEmpty())
                data.setText(plain);
            WithText box("[x]");
            const bool pasted = RichTextClipboard::paste(at(box, 1, 1), data);
            QCOMPARE(box.text(), text);
            QCOMPARE(pasted, text != "[x]");
            QCOMPARE(RichTextClipboard::canPaste(data), pasted);
            box.setText("[x]");
            at(box, 1, 1).setSelBold(true);
            QCOMPARE(RichTextClipboard::pastePlain(box, data), pasted);
            QCOMPARE(box.text(), alone);
            QCOMPARE(look(box, 1, 1), "b");
        }
    }

    void copyPastesTheSame()
    {
        WithRtf box("{\\rtf1{\\colortbl;\\red255;}\\cf1\\b a\\par\\ls1 b\\par\\pard c}");
        QVERIFY(RichTextClipboard::mimeData(box) == nullptr);
        const auto data = RichTextClipboard::mimeData(at(box, 0, 7));
        QCOMPARE(data->text(), "a\nb\nc");
        HiddenBox other;
        QVERIFY(RichTextClipboard::paste(other, *data));
        QCOMPARE(other.rtf(), box.rtf());
    }
};

QTEST_MAIN(TestRichTextClipboard)
#include "tst_richTextClipboard.moc"

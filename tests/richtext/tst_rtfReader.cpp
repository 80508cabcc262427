#include "platform/Errors.h"
#include "richtext/HiddenBox.h"
#include "richtext/RtfPlainText.h"
#include "richtext/RtfReader.h"

#include <QTest>
#include <QTextBlock>
#include <QTextList>

namespace
{
// What a handler was told, one line for each paragraph: its formatting, then its runs.
class Recorder : public RtfHandler
{
public:
    void text(QStringView text, const CharState &state) override
    {
        m_runs += u'[' + text.toString() + describe(state) + u']';
    }
    void paragraphEnd(const ParagraphState &state, const CharState &) override
    {
        m_lines += describe(state) + m_runs;
        m_runs.clear();
    }
    QString lines() const { return m_lines.join(u'/'); }

private:
    static QString describe(const CharState &state)
    {
        QString styles;
        if (!state.family.isEmpty())
            styles += u' ' + state.family;
        if (state.halfPoints != CharState::DefaultHalfPoints)
            styles += u' ' + QString::number(state.halfPoints);
        if (state.colour)
            styles += u' ' + QColor(*state.colour).name();
        styles += QLatin1String(state.bold ? " b" : "") + QLatin1String(state.italic ? " i" : "");
        styles += QLatin1String(state.underline ? " ul" : "");
        return styles + QLatin1String(state.strike ? " strike" : "");
    }
    static QString describe(const ParagraphState &state)
    {
        QString words;
        if (state.alignment != Qt::AlignLeft)
            words += QLatin1String(state.alignment == Qt::AlignRight ? "r " : "c ");
        if (state.left != 0 || state.first != 0 || state.right != 0)
            words += QStringLiteral("%1,%2,%3 ").arg(state.left).arg(state.first).arg(state.right);
        for (const int tab : state.tabs)
            words += QStringLiteral("t%1 ").arg(tab);
        return words + QLatin1String(state.bullet ? "* " : "");
    }

    QStringList m_lines;
    QString m_runs;
};

QString recorded(const QByteArray &rtf)
{
    Recorder recorder;
    RtfReader(rtf).read(recorder);
    return recorder.lines();
}

const QByteArray fonts =
    "{\\fonttbl{\\f0 Serif;}{\\f1\\fcharset204 Sans;}{\\f2\\fcharset128 Mincho;}}"
    "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue0;}";
} // namespace

class TestRtfReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bodyGivesText_data();
    void bodyGivesText();
    void bodyGivesFormats_data();
    void bodyGivesFormats();
    void documentPageDecodes_data();
    void documentPageDecodes();
    void notRtfIsRefused_data();
    void notRtfIsRefused();
    void deepNestingKeepsText();
    void fontTableIsBounded();
    void longListsAreCut();
    void everyPrefixIsReadOrRefused();
};

void TestRtfReader::bodyGivesText_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const QByteArray &body, const QString &text) {
        QTest::newRow(name) << body << text;
    };
    row("nothing", "", {});
    row("last par ends, does not begin", "a\\par b\\par ", QStringLiteral("a\r\nb"));
    row("empty paragraphs", "\\par \\par a\\par \\par ", QStringLiteral("\r\n\r\na\r\n"));
    row("line ends are nothing", "a\r\nb\nc", QStringLiteral("abc"));
    row("backslash and line end", "a\\\r\nb\\\nc", QStringLiteral("a\r\nb\r\nc"));
    row("line", "a\\line b", QStringLiteral("a\r\nb"));
    row("page in text", "a\\page b\\par\\page c", QStringLiteral("a\r\nb\r\nc"));
    row("escapes", "\\{\\}\\\\", QStringLiteral("{}\\"));
    row("named characters", "\\lquote\\rquote\\ldblquote\\rdblquote\\endash\\emdash\\bullet\\tab",
        QStringLiteral("‘’“”–—•\t"));
    row("symbols", "a\\~b\\-c\\_d", QStringLiteral(u"a\u00a0b\u00adc\u2011d"));
    row("table", "a\\cell b\\cell\\row c", QStringLiteral("a\tb\t\r\nc"));
    row("control characters", QByteArray("a\x01\x02\tb\\'00\\u7?c"), QStringLiteral("a\tbc"));
    row("unicode", "\\u233?t\\u-10179?\\u-9000?!", QStringLiteral("ét📘!"));
    row("pair across groups", "{\\u-10179?}{\\b\\u-9000?}", QStringLiteral("📘"));
    row("lone surrogates", "\\u-10179?a\\u-9000?\\u-10179?", QStringLiteral("\ufffda\ufffd\ufffd"));
    row("out of range", "\\u99999?\\u-70000?", QStringLiteral("\ufffd\ufffd"));
    row("breaks by number", "a\\u8232?b\\'0d\\'0ac", QStringLiteral("a\r\nb\r\nc"));
    row("fallback of two", "\\uc2\\u8364\\'80\\'80x", QStringLiteral("€x"));
    row("fallback is per group", "{\\uc0\\u233}\\u233?x", QStringLiteral("ééx"));
    row("fallback is a word", "\\u233\\tab x", QStringLiteral("éx"));
    row("fallback ends with group", "{\\uc5\\u233 a}bc", QStringLiteral("ébc"));
    row("fallback ends at group", "\\uc5\\u233 a{bc}", QStringLiteral("ébc"));
    row("unknown word", "a\\foo12 b{\\bar c}", QStringLiteral("abc"));
    row("unknown star group", "a{\\*\\foo{b}\\bar c}d", QStringLiteral("ad"));
    row("skipped groups", "a{\\pict 00ff}{\\footnote b}{\\header c}{\\info{\\title d}}e",
        QStringLiteral("ae"));
    row("field gives its result",
        "{\\field{\\*\\fldinst HYPERLINK \"file:///etc/passwd\"}{\\fldrslt lien}}",
        QStringLiteral("lien"));
    row("unicode pair", "{\\upr{plain}{\\*\\ud{\\u233?}}}x", QStringLiteral("éx"));
    row("binary", QByteArray("a{\\pict\\bin4 }}}}}b\\bin3 {{{c"), QStringLiteral("abc"));
    row("binary beyond the end", "a\\bin999999 bc", QStringLiteral("a"));
    row("negative binary", "a\\bin-4 b", QStringLiteral("ab"));
    row("hidden", "a{\\v b\\par }c\\v d\\plain e", QStringLiteral("ace"));
    row("long word", "a\\" + QByteArray(5000, 'b') + " c", QStringLiteral("ac"));
    row("huge number", "a\\fs99999999999999999999 b", QStringLiteral("ab"));
    row("bad hex", "a\\'zzb", QStringLiteral("azzb"));
    row("surplus brace ends the text", "a}b", QStringLiteral("a"));
    row("number label is text", "{\\listtext 1.\\tab}\\ls1 a", QStringLiteral("1.\ta"));
    row("bullet label is none", "{\\listtext\\'95\\tab}\\ls1 a", QString(u'a'));
    row("label within a label", "{\\listtext 1.{\\listtext\\'95} }a", QStringLiteral("1.• a"));
    row("items in a label", "{\\listtext a\\par}{\\listtext b\\par}", QStringLiteral("a\r\nb"));
    row("double byte", "\\f2 \\'93\\'fa{\\f2 \\'83A}", QStringLiteral("日ア"));
    row("font page", "\\f1 \\'cf\\f0 \\'e9", QStringLiteral("Пé"));
    row("word out of place", "\\footnote a{\\b b}", QStringLiteral("ab"));
}

void TestRtfReader::bodyGivesText()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, text);
    const QByteArray rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0" + fonts + body + "}";
    QCOMPARE(rtfToPlainText(rtf), text);
    HiddenBox box;
    box.setRtf(rtf);
    QCOMPARE(box.text(), text);
    // Without its last brace, and with what some programs leave behind it.
    if (!body.contains("bin999999")) {
        QCOMPARE(rtfToPlainText(rtf.chopped(1)), text);
        QCOMPARE(rtfToPlainText("\xef\xbb\xbf" + rtf + QByteArray(3, '\0') + "rest"), text);
    }
}

void TestRtfReader::bodyGivesFormats_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("lines");
    const auto row = [](const char *name, const QByteArray &body, const char *lines) {
        QTest::newRow(name) << body << QString::fromUtf8(lines);
    };
    row("default font", "a", "[a Serif]");
    row("styles", "\\b\\i\\ul\\strike a", "[a Serif b i ul strike]");
    row("off by zero", "\\b a\\b0 b", "[a Serif b][b Serif]");
    row("off by plain", "\\b\\i\\fs40\\f1\\cf1 a\\plain b", "[a Sans 40 #ff0000 b i][b Serif]");
    row("group restores", "{\\b a}b", "[a Serif b][b Serif]");
    row("underlines", "\\ulw a\\ulnone b\\uldb c\\ul0 d",
        "[a Serif ul][b Serif][c Serif ul][d Serif]");
    row("half points", "\\fs21 a\\fs0 b\\fs9999 c", "[a Serif 21][b Serif 21][c Serif 3276]");
    row("black is automatic", "\\cf1 a\\cf2 b\\cf0 c\\cf77 d",
        "[a Serif #ff0000][b Serif][c Serif][d Serif]");
    row("font not in table", "\\f9 a", "[a]");
    row("alignment", "\\qc a\\par\\qr b\\par\\qj c\\par\\pard d",
        "c [a Serif]/r [b Serif]/[c Serif]/[d Serif]");
    row("indents", "\\li720\\fi-360\\ri100 a", "720,-360,100 [a Serif]");
    row("indents are clamped", "\\li9999999\\fi-9999999 a", "31680,-31680,0 [a Serif]");
    row("tabs are sorted", "\\tx900\\tx300\\tx300\\tx-5 a", "t300 t900 [a Serif]");
    row("bullet by list", "\\ls1 a\\par b\\par\\pard c", "* [a Serif]/* [b Serif]/[c Serif]");
    row("bullet hangs by itself", "\\ls1\\li360\\fi-360 a\\par\\li709\\fi-283 b",
        "* [a Serif]/426,0,0 * [b Serif]");
    row("old bullets",
        "{\\*\\pn\\pnlvlblt\\pnf1{\\pntxtb\\'b7}}{\\pntext\\f1\\'b7\\tab}a\\par b\\par\\pard c",
        "* [a Serif]/* [b Serif]/[c Serif]");
    row("old bullet before its definition", "{\\pntext\\'b7\\tab}{\\*\\pn\\pnlvlblt}a",
        "* [a Serif]");
    row("old numbers", "{\\pntext 1)\\tab}{\\*\\pn\\pnlvlbody}a", "[1)\t Serif][a Serif]");
    row("state at the end counts", "a\\qc\\par b", "c [a Serif]/c [b Serif]");
    row("end in a group", "{\\pard\\qc a\\par}b", "c [a Serif]/[b Serif]");
    row("no end", "{\\qc a}", "c [a Serif]");
}

void TestRtfReader::bodyGivesFormats()
{
    QFETCH(QByteArray, body);
    QFETCH(QString, lines);
    QCOMPARE(recorded("{\\rtf1\\ansi\\deff0" + fonts + body + "}"), lines);
}

void TestRtfReader::documentPageDecodes_data()
{
    QTest::addColumn<QByteArray>("rtf");
    QTest::addColumn<QString>("text");
    const QString e = QStringLiteral("é");
    QTest::newRow("Mac") << QByteArray("{\\rtf1\\mac \\'8e}") << e;
    QTest::newRow("DOS") << QByteArray("{\\rtf1\\pc \\'82}") << e;
    QTest::newRow("none") << QByteArray("{\\rtf1 \\'e9}") << e;
    QTest::newRow("number") << QByteArray("{\\rtf1\\ansi\\ansicpg1251 \\'e9}")
                            << QStringLiteral("й");
    QTest::newRow("zero") << QByteArray("{\\rtf1\\ansi\\ansicpg0 \\'e9}") << e;
    QTest::newRow("raw bytes") << QByteArray("{\\rtf1\\ansi \xe9\\'e9}") << e + e;
    QTest::newRow("name with a note")
        << QByteArray(
               "{\\rtf1\\deff3{\\fonttbl{\\f3\\fcharset204{\\*\\panose 02}A{\\*\\falt B};}}\\'e9}")
        << QStringLiteral("й");
}

void TestRtfReader::documentPageDecodes()
{
    QFETCH(QByteArray, rtf);
    QFETCH(QString, text);
    QCOMPARE(rtfToPlainText(rtf), text);
}

void TestRtfReader::notRtfIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("text") << QByteArray("Bonjour");
    QTest::newRow("upper case") << QByteArray("{\\RTF1 a}");
    QTest::newRow("blank first") << QByteArray(" {\\rtf1 a}");
    QTest::newRow("cut") << QByteArray("{\\rt");
    QTest::newRow("too long") << "{\\rtf1 " + QByteArray(RtfReader::MaxBytes, 'a');
}

void TestRtfReader::notRtfIsRefused()
{
    QFETCH(QByteArray, bytes);
    QVERIFY_THROWS_EXCEPTION(FormatError, rtfToPlainText(bytes));
    HiddenBox box;
    box.setText(QStringLiteral("reste"));
    QVERIFY_THROWS_EXCEPTION(FormatError, box.setRtf(bytes));
    QCOMPARE(box.text(), QStringLiteral("reste"));
}

void TestRtfReader::deepNestingKeepsText()
{
    constexpr int depth = 100000;
    const QByteArray open = QByteArray(depth, '{');
    const QByteArray close = QByteArray(depth, '}');
    QCOMPARE(rtfToPlainText("{\\rtf1 a" + open + "\\i b" + close + "c}"), QStringLiteral("abc"));
    QCOMPARE(rtfToPlainText("{\\rtf1 a" + open), QString(u'a'));
    // Below the depth that has states of its own, groups are still left out whole.
    QCOMPARE(
        rtfToPlainText("{\\rtf1 " + open + "{\\*\\x b}{\\fonttbl c}{\\pict d}e" + close + "f}"),
        QStringLiteral("ef"));
}

void TestRtfReader::fontTableIsBounded()
{
    QByteArray table;
    for (int i = 0; i < 5000; ++i)
        table += "{\\f" + QByteArray::number(i) + " F" + QByteArray::number(i) + ";}";
    const QByteArray rtf = "{\\rtf1{\\fonttbl" + table + "}\\f4095 a\\f4096 b}";
    QCOMPARE(recorded(rtf), QStringLiteral("[a F4095][b]"));
}

// A list takes time for all its items whenever one joins, so that a file of bullets only would
// take the square of its length.
void TestRtfReader::longListsAreCut()
{
    QByteArray body;
    for (int i = 0; i < 1000; ++i)
        body += "a\\par ";
    HiddenBox box;
    box.setRtf("{\\rtf1\\ls1 " + body + "}");
    QCOMPARE(box.document()->blockCount(), 1000);
    const QTextDocument &document = *box.document();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        QVERIFY(block.textList() != nullptr && block.textList()->count() <= 64);
}

void TestRtfReader::everyPrefixIsReadOrRefused()
{
    const QByteArray rtf =
        "{\\rtf1\\ansi\\deff0" + fonts +
        "{\\*\\listtable{\\list{\\listlevel}\\listid1}}\\pard\\qc\\tx720\\plain\\f1\\fs28\\cf1\\b "
        "A\\'e9{\\pntext\\'b7\\tab}{\\*\\pn\\pnlvlblt}{\\upr{x}{\\*\\ud{\\u8217\\'92}}}"
        "\\uc2\\u233ab"
        "{\\pict\\bin5 }}{{\\}}\\f2\\'93\\'fa\\u-10179?\\u-9000?\\cell\\row{\\v "
        "h}\\~\\_\\\r\nfin\\par }";
    for (qsizetype size = 0; size <= rtf.size(); ++size) {
        const QByteArray prefix = rtf.first(size);
        HiddenBox box;
        try {
            box.setRtf(prefix);
        } catch (const FormatError &) {
            QVERIFY(size < 5);
            continue;
        }
        QCOMPARE(box.text(), rtfToPlainText(prefix));
        const QByteArray written = box.rtf();
        box.setRtf(written);
        QCOMPARE(box.rtf(), written);
    }
}

QTEST_MAIN(TestRtfReader)
#include "tst_rtfReader.moc"

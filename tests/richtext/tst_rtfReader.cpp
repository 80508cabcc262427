#include "Look.h"
#include "platform/Errors.h"
#include "richtext/RtfPlainText.h"
#include "richtext/TextLimit.h"
#include "support/TestTable.h"

#include <QTest>
#include <QTextList>

namespace
{
const QByteArray head = "{\\rtf1\\ansi\\ansicpg1252\\deff0"
                        "{\\fonttbl{\\f0 Serif;}{\\f1\\fcharset204 Sans;}{\\f2\\fcharset128 M;}}"
                        "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue0;}";
} // namespace

class TestRtfReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bodyGivesText_data()
    {
        addTable<QByteArray, QString>(
            {"body", "text"},
            {
                {"last par ends, does not begin", R"(a\par b\par )", "a\r\nb"},
                {"empty paragraphs", R"(\par \par a\par \par )", "\r\n\r\na\r\n"},
                {"line ends", "a\r\nb\nc\\\r\nd\\\ne", "abc\r\nd\r\ne"},
                {"line and page", R"(a\line b\page c\par\page d)", "a\r\nb\r\nc\r\nd"},
                {"quotes and escapes", R"(\lquote\rquote\ldblquote\rdblquote\{\}\\)", R"(‘’“”{}\)"},
                {"symbols", R"(\endash\emdash\bullet\tab\~b\-c\_d)", "–—•\t\u00a0b\u00adc\u2011d"},
                {"table", R"(a\cell b\cell\row c)", "a\tb\t\r\nc"},
                {"control characters", "a\x01\x02\tb\\'00\\u7?c", "a\tbc"},
                {"unicode", R"(\u233?t\u-10179?\u-9000?!)", "ét📘!"},
                {"pair across groups", R"({\u-10179?}{\b\u-9000?})", "📘"},
                {"no characters", R"(\u-10179?a\u-9000?\u99999?\u-70000?\u-10179?)",
                 "\ufffda\ufffd\ufffd\ufffd\ufffd"},
                {"breaks by number", R"(a\u8232?b\'0d\'0ac)", "a\r\nb\r\nc"},
                {"fallback is per group", R"({\uc2\u8364\'80\'80x}{\uc0\u233}\u233?x)", "€xééx"},
                {"fallback is a word", R"(\u233\tab x)", "éx"},
                {"fallback ends at groups", R"({\uc5\u233 a}b\uc5\u233 a{bc})", "ébébc"},
                {"unknown words", R"(a\foo12 b{\bar c}{\*\foo{d}\bar e}f)", "abcf"},
                {"skipped groups", R"(a{\pict 00ff}{\header c}{\info{\title d}}e)", "ae"},
                {"field", R"({\field{\*\fldinst HYPERLINK "x"}{\fldrslt lien}})", "lien"},
                {"unicode pair", R"({\upr{plain}{\*\ud{\u233?}}}x)", "éx"},
                {"binary", R"(a{\pict\bin4 }}}}}b\bin3 {{{c\bin-4 d)", "abcd"},
                {"binary beyond the end", R"(a\bin999999 bc)", "a"},
                {"hidden is text", R"(a{\v b\par }c{\*\x{\v d}})", "ab\r\nc"},
                {"deleted", R"(a{\deleted b\par }c\deleted d\plain e)", "ace"},
                {"huge number", R"(a\fs99999999999999999999 b)", "ab"},
                {"surplus brace ends the text", "a}b", "a"},
                {"labels", R"({\listtext 1.\tab}\ls1 a\par{\listtext\'95\tab}\ls1 a)",
                 "1.\ta\r\na"},
                {"label within a label", R"({\listtext 1.{\listtext\'95} }a)", "1.• a"},
                {"items in a label", R"({\listtext a\par}{\listtext b\par})", "a\r\nb"},
                {"font pages", R"(\f2 \'93\'fa{\f2 \'83A}\f1 \'cf\f0 \'e9)", "日アПé"},
                {"word out of place", R"(\footnote a{\b b})", "ab"},
                {"Mac", R"({\rtf1\mac \'8e})", "é"},
                {"page by number", R"({\rtf1\ansi\ansicpg1251 \'e9})", "й"},
                {"raw bytes", "{\\rtf1\\ansi \xe9\\'e9}", "éé"},
                {"font name with a note",
                 R"({\rtf1\deff3{\fonttbl{\f3\fcharset204{\*\panose 02}A{\*\falt B};}}\'e9})", "й"},
            });
    }
    void bodyGivesText()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, text);
        const QByteArray rtf = body.startsWith("{\\rtf1") ? body : head + body + "}";
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

    void bodyGivesFormats_data()
    {
        addTable<QByteArray, QString>(
            {"body", "looks"},
            {
                {"styles", R"(a{\b\i\ul\strike b}c)", "[a Serif][b b i ul strike Serif][c Serif]"},
                {"off by plain", R"(\b\fs40\f1\cf1 a\plain b)", "[a b Sans 20 #ff0000][b Serif]"},
                {"underlines", R"(\ulw a\ulnone b\uldb c\ul0 d)",
                 "[a ul Serif][b Serif][c ul Serif][d Serif]"},
                {"black is automatic", R"(\cf1 a\cf2 b\cf0 c\cf77 d)",
                 "[a Serif #ff0000][bcd Serif]"},
                {"font not in table", R"(\f9 a)", "[a]"},
                {"alignment", R"(\qc a\par\qr b\par\qj c\par\pard d)",
                 "[a Serif c]/[b Serif r]/[c Serif]/[d Serif]"},
                {"indents", R"(\li720\fi-360\ri1440 a)", "[a Serif li1.27 fi-0.64 ri2.54]"},
                {"indents are clamped", R"(\li9999999\fi-9999999 a)", "[a Serif li55.88 fi-55.88]"},
                {"tabs are sorted", R"(\tx1440\tx720\tx720\tx-5 a)", "[a Serif t1.27,2.54]"},
                {"bullet by list", R"(\ls1 a\par b\par\pard c)",
                 "[a Serif *]/[b Serif *]/[c Serif]"},
                {"bullet hangs by itself", R"(\ls1\li360\fi-360 a\par\li709\fi-283 b)",
                 "[a Serif *]/[b Serif * li0.75]"},
                {"old bullets",
                 R"({\*\pn\pnlvlblt\pnf1{\pntxtb\'b7}}{\pntext\f1\'b7\tab}a\par b\par\pard c)",
                 "[a Serif *]/[b Serif *]/[c Serif]"},
                {"old bullet before its definition", R"({\pntext\'b7\tab}{\*\pn\pnlvlblt}a)",
                 "[a Serif *]"},
                {"old numbers", R"-({\pntext 1)\tab}{\*\pn\pnlvlbody}a)-", "[1)\ta Serif]"},
                {"state at the end counts", R"(a\qc\par b)", "[a Serif c]/[b Serif c]"},
                {"ends in groups", R"({\pard\qc a\par}b\par{\qr c})",
                 "[a Serif c]/[b Serif]/[c Serif r]"},
            });
    }
    void bodyGivesFormats()
    {
        QFETCH(QByteArray, body);
        HiddenBox box;
        box.setRtf(head + body + "}");
        QTEST(looks(box), "looks");
    }

    void notRtfIsRefused()
    {
        const QByteArray large = "{\\rtf1 " + QByteArray(LargestText, 'a');
        for (const QByteArray &bytes :
             {QByteArray("Bonjour"), QByteArray("{\\RTF1 a}"), QByteArray(" {\\rtf1 a}"), large}) {
            QVERIFY_THROWS_EXCEPTION(FormatError, rtfToPlainText(bytes));
            HiddenBox box;
            box.setText("reste");
            QVERIFY_THROWS_EXCEPTION(FormatError, box.setRtf(bytes));
            QCOMPARE(box.text(), "reste");
        }
    }

    void deepNestingKeepsText()
    {
        const QByteArray open(100000, '{');
        const QByteArray close(100000, '}');
        QCOMPARE(rtfToPlainText("{\\rtf1 a" + open + "\\i b" + close + "c}"), "abc");
        QCOMPARE(rtfToPlainText("{\\rtf1 a" + open), "a");
        // Below the depth that has states of its own, groups are still left out whole.
        const QByteArray groups = "{\\*\\x b}{\\fonttbl c}{\\pict d}e";
        QCOMPARE(rtfToPlainText("{\\rtf1 " + open + groups + close + "f}"), "ef");
    }

    void fontTableIsBounded()
    {
        QByteArray rtf = "{\\rtf1{\\fonttbl";
        for (int i = 0; i < 5000; ++i)
            rtf += "{\\f" + QByteArray::number(i) + " F" + QByteArray::number(i) + ";}";
        HiddenBox box;
        box.setRtf(rtf + "}\\f4095 a\\f4096 b}");
        QCOMPARE(looks(box), "[a F4095][b]");
    }

    // A list takes time for all its items whenever one joins, so that a file of bullets only would
    // take the square of its length.
    void longListsAreCut()
    {
        HiddenBox box;
        box.setRtf("{\\rtf1\\ls1 " + QByteArray("a\\par ").repeated(1000) + "}");
        QCOMPARE(box.document()->blockCount(), 1000);
        for (auto block = box.document()->begin(); block.isValid(); block = block.next())
            QVERIFY(block.textList() != nullptr && block.textList()->count() <= 64);
    }

    void everyPrefixIsReadOrRefused()
    {
        const QByteArray rtf =
            head +
            R"({\*\listtable{\list{\listlevel}\listid1}}\pard\qc\tx720\plain\f1\fs28\cf1\b )"
            R"(A\'e9{\pntext\'b7\tab}{\*\pn\pnlvlblt}{\upr{x}{\*\ud{\u8217\'92}}}\uc2\u233ab)"
            R"({\pict\bin5 }}{{\}}\f2\'93\'fa\u-10179?\u-9000?\cell\row{\deleted h}\~\_)"
            "\\\r\nfin\\par }";
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
};

QTEST_MAIN(TestRtfReader)
#include "tst_rtfReader.moc"

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
    void bodyGivesText()
    {
        const Table<QByteArray, QString> rows{
            {"paragraphs", R"(\par \par a\par \par )", "\r\n\r\na\r\n"},
            {"breaks", "a\r\nb\nc\\\r\nd\\\ne\\line f\\page g\\par\\page h",
             "abc\r\nd\r\ne\r\nf\r\ng\r\nh"},
            {"symbols",
             R"(\lquote\rquote\ldblquote\rdblquote\{\}\\\endash\emdash\bullet\tab\~b\-c\_d)",
             "‘’“”{}\\–—•\t\u00a0b\u00adc\u2011d"},
            {"table", R"(a\cell b\cell\row c)", "a\tb\t\r\nc"},
            {"controls", "a\x01\x02\tb\\'00\\u7?c\\u8232?d\\'0d\\'0ae", "a\tbc\r\nd\r\ne"},
            {"unicode", R"(\u233?t\u-10179?\u-9000?{\u-10179?}{\b\u-9000?}!)", "ét📘📘!"},
            {"no characters", R"(\u-10179?a\u-9000?\u99999?\u-70000?\u-10179?)",
             "\ufffda\ufffd\ufffd\ufffd\ufffd"},
            {"fallback is per group", R"({\uc2\u8364\'80\'80x}{\uc0\u233}\u233?x\u233\tab y)",
             "€xééxéy"},
            {"fallback ends at groups", R"({\uc5\u233 a}b\uc5\u233 a{bc})", "ébébc"},
            {"unknown and skipped",
             R"(a\foo1 b{\bar c}{\*\foo{d}\bar e}f{\pict 00}{\header c}{\info{\title d}}g\footnote h)",
             "abcfgh"},
            {"field, pair",
             R"({\field{\*\fldinst LINK "x"}{\fldrslt lien}}{\upr{plain}{\*\ud{\u233?}}})",
             "lien\u00e9"},
            {"binary", R"(a{\pict\bin4 }}}}}b\bin3 {{{c\bin-4 d)", "abcd"},
            {"binary beyond the end", R"(a\bin999999 bc)", "a"},
            {"hidden, deleted", R"(a{\v b\par }c{\*\x{\v d}}{\deleted b\par }e\deleted f\plain g)",
             "ab\r\nceg"},
            {"huge number, surplus brace", R"(a\fs99999999999999999999 b}c)", "ab"},
            {"labels", R"({\listtext 1.\tab}\ls1 a\par{\listtext\'95\tab}\ls1 a)", "1.\ta\r\na"},
            {"label within a label", R"({\listtext 1.{\listtext\'95} }a)", "1.• a"},
            {"items in a label", R"({\listtext a\par}{\listtext b\par})", "a\r\nb"},
            {"font pages", R"(\f2 \'93\'fa{\f2 \'83A}\f1 \'cf\f0 \'e9)", "日アПé"},
            {"Mac", R"({\rtf1\mac \'8e})", "é"},
            {"page by number", R"({\rtf1\ansi\ansicpg1251 \'e9})", "й"},
            {"raw bytes", "{\\rtf1\\ansi \xe9\\'e9}", "éé"},
            {"font name with a note",
             R"({\rtf1\deff3{\fonttbl{\f3\fcharset204{\*\panose 02}A{\*\falt B};}}\'e9})", "й"}};
        for (const auto &[name, body, text] : rows) {
            const QByteArray rtf = body.startsWith("{\\rtf1") ? body : head + body + "}";
            QCOMPARE(rtfToPlainText(rtf), text);
            WithRtf box(rtf);
            QCOMPARE(box.text(), text);
            // Without its last brace, and with what some programs leave behind it.
            if (!body.contains("bin999999")) {
                QCOMPARE(rtfToPlainText(rtf.chopped(1)), text);
                QCOMPARE(rtfToPlainText("\xef\xbb\xbf" + rtf + QByteArray(3, '\0') + "rest"), text);
            }
        }
    }

    void bodyGivesFormats()
    {
        const Table<QByteArray, QString> rows{
            {"styles", R"(a{\b\i\ul\strike b}\b\fs40\f1\cf1 c\plain d)",
             "[a Serif][b b i ul strike Serif][c b Sans 20 #ff0000][d Serif]"},
            {"underlines", R"(\ulw a\ulnone b\uldb c\ul0 d)",
             "[a ul Serif][b Serif][c ul Serif][d Serif]"},
            {"black is automatic", R"(\cf1 a\cf2 b\cf0 c\cf77 d\f9 e)",
             "[a Serif #ff0000][bcd Serif][e]"},
            {"alignment", R"(\qc a\par\qr b\par\qj c\par\pard d)",
             "[a Serif c]/[b Serif r]/[c Serif]/[d Serif]"},
            {"indents are clamped", R"(\li720\fi-360\ri1440 a\par\pard\li9999999\fi-9999999 b)",
             "[a Serif li1.27 fi-0.64 ri2.54]/[b Serif li55.88 fi-55.88]"},
            {"tabs are sorted", R"(\tx1440\tx720\tx720\tx-5 a)", "[a Serif t1.27,2.54]"},
            {"bullets hang by themselves", R"(\ls1\li360\fi-360 a\par\li709\fi-283 b\par\pard c)",
             "[a Serif *]/[b Serif * li0.75]/[c Serif]"},
            {"old bullets",
             R"({\*\pn\pnlvlblt\pnf1{\pntxtb\'b7}}{\pntext\f1\'b7\tab}a\par b\par\pard c)",
             "[a Serif *]/[b Serif *]/[c Serif]"},
            {"old bullet before its definition", R"({\pntext\'b7\tab}{\*\pn\pnlvlblt}a)",
             "[a Serif *]"},
            {"old numbers", R"-({\pntext 1)\tab}{\*\pn\pnlvlbody}a)-", "[1)\ta Serif]"},
            {"state at the end counts", R"(a\qc\par b)", "[a Serif c]/[b Serif c]"},
            {"ends in groups", R"({\pard\qc a\par}b\par{\qr c})",
             "[a Serif c]/[b Serif]/[c Serif r]"}};
        for (const auto &[name, body, shown] : rows) {
            WithRtf box(head + body + "}");
            QCOMPARE(looks(box), shown);
        }
    }

    void notRtfIsRefused()
    {
        const QByteArray large = "{\\rtf1 " + QByteArray(LargestText, 'a');
        for (const QByteArray &bytes :
             {QByteArray("Bonjour"), QByteArray("{\\RTF1 a}"), QByteArray(" {\\rtf1 a}"), large}) {
            QVERIFY_THROWS_EXCEPTION(FormatError, rtfToPlainText(bytes));
            WithText box("reste");
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
        WithRtf box(rtf + "}\\f4095 a\\f4096 b}");
        QCOMPARE(looks(box), "[a F4095][b]");
    }

    // A list takes time for all its items whenever one joins, so that a file of bullets only would
    // take the square of its length.
    void longListsAreCut()
    {
        WithRtf box("{\\rtf1\\ls1 " + QByteArray("a\\par ").repeated(1000) + "}");
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

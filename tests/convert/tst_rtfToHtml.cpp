#include "convert/html/HtmlText.h"
#include "convert/html/RtfToHtml.h"
#include "platform/Errors.h"
#include "richtext/HiddenBox.h"
#include "store/ReferenceIndex.h"
#include "support/TestTable.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

namespace
{
// One paragraph with its references, and how its links are made.
struct Paragraph {
    QByteArray rtf;
    QString list;
    QString phrase = " au ";
    QString prefix = "AB-";
    bool manyFiles = false;
    int n = 7;

    QByteArray html() const
    {
        Variables variables;
        variables.TargetPhrase = phrase;
        variables.refIndex.at(7) = list;
        return RtfToHtml(variables, rtf, prefix, n, manyFiles);
    }
};

// Three colours: black, red and a dark green.
QByteArray document(const QByteArray &body)
{
    return "{\\rtf1\\ansi{\\fonttbl{\\f2\\fnil Arial;}}\r\n{\\colortbl\\red0\\green0\\blue0;"
           "\\red255\\green0\\blue0;\\red0\\green128\\blue10;}\r\n" +
           body + "}";
}

// Text that goes through the first pass as it stands.
QByteArray verbatim(const QByteArray &html)
{
    return "}\\x " + html + "}";
}

RichTextBox &found(RichTextBox &box, const QString &text)
{
    if (box.find(text, 0, {}) < 0)
        qFatal("not found: %s", qPrintable(text));
    return box;
}

void makeStyles(RichTextBox &box)
{
    box.setText("Gras et « penché »\u00a0:\r\nva au 26\tou au 103 — fin");
    found(box, "Gras").setSelBold(true);
    found(box, "« penché »\u00a0:").setSelItalic(true);
    found(box, "26").setSelUnderline(true);
    box.setSelColor(qRgb(255, 128, 0));
    found(box, "10").setSelBold(true);
}

void makeParagraphs(RichTextBox &box)
{
    box.setText("Titre\r\ncorde\r\nclé\r\n\r\nsuite {\\b}\r\n★a📘★œuf…\r\nlivre");
    found(box, "Titre").setSelAlignment(RichTextBox::Alignment::Centre);
    box.setSelColor(qRgb(0, 0, 255));
    found(box, "corde\r\nclé\r\n\r\n").setSelBullet(true);
    found(box, "livre").setSelBullet(true);
    found(box, "★a📘★œ").setSelBold(true);
    box.setSelAlignment(RichTextBox::Alignment::Right);
}
} // namespace

class TestRtfToHtml : public QObject
{
    Q_OBJECT
    using Make = void (*)(RichTextBox &);

private Q_SLOTS:
    void bodyIsConverted_data()
    {
        addTable<QByteArray, QByteArray>(
            {"body", "html"},
            {{"\\b0 is bold", "\\b Bold\\b0  plain", "<B>Bold plain</B>"},
             {"any other run closes bold", "\\b a\\fs20 b\\b c", "<B>a</B>b<B>c</B>"},
             {"colour", "\\plain\\f2\\fs20\\cf1 red\\plain\\f2\\fs20  black",
              "<FONT COLOR=\"#FF0000\">red</FONT> black"},
             {"order of tags", "\\qc\\cf2\\ul\\i\\b x\\plain y",
              "<B><I><U><FONT COLOR=\"#00800A\"><P ALIGN=\"Center\">x</B></I></U></FONT>y"},
             {"words that begin alike", "\\ilvl0 a\\ulnone b\\box c\\fi0 d",
              "<I>a</I><U>b<B></U>c</B>d"},
             {"colour stays without \\plain", "\\cf1 a\\f1 b\\f1\\plain c\\plain d",
              "<FONT COLOR=\"#FF0000\">abc</FONT>d"},
             {"colour after colour", "\\cf1 a\\cf2\\b b",
              "<FONT COLOR=\"#FF0000\">a<B></FONT><FONT COLOR=\"#00800A\">b</B></FONT>"},
             {"signs close nothing", "\\b\\cf1 a\\par b\\tab \\bullet \\endash \\emdash ",
              "<B><FONT COLOR=\"#FF0000\">a<BR>b&nbsp; &nbsp; &nbsp;&#149;&#150;&#151;</B></FONT>"},
             {"no sign with more in the run", "\\b x\\par\\pard \\tab\\fs2 ",
              "<B>x</B><P ALIGN=\"Left\">"},
             {"alignments", "\\pard a\\pard\\qc b\\pard\\qj c\\qr\\qc d",
              "<P ALIGN=\"Left\">a<P ALIGN=\"Center\">bc<P ALIGN=\"Center\"><P ALIGN=\"Right\">d"},
             {"codes", "\\'e0\\'0a\\'E9\\'95\\'4z\\'zz.", "&#224;&#010;&#233;&#149;&#004;&#000;."},
             {"no-break space", "\\x a\\~b", "a&nbsp;b"},
             {"narrow no-break space", "\\u8239 ?!", "&#8239;!"},
             {"a run goes on to the space", "\\x*?{\r\n\\y=z  a", " a"},
             {"behind the last brace but one", "\\b lost}lost\\i kept", "<I>kept</I>"},
             {"characters by number",
              "\\b \\u9733 ?x\\u-10179 ?\\u-9000 ?\\u55357 ?\\u56536 ?\\u128216 ?",
              "<B>&#9733;x&#128216;&#128216;&#128216;</B>"},
             {"no such character", "\\u-10179 ?x\\u-9000 ?\\u-10179 ?\\u65 ?\\u0 ?\\u99999999999 ?",
              "&#65533;x&#65533;&#65533;&#65;&#65533;&#65533;"},
             {"other fallbacks, and none", "\\u8217 \\'92x\\u233 \\par b\\u233 ",
              "&#8217;x&#233;<BR>b&#233;"},
             {"no number", "\\i\\u5 .\\u .\\u-\\u5a .\\u5\\b .", "<I>.</I>..<B>.</B>"}});
    }
    void bodyIsConverted()
    {
        QFETCH(QByteArray, body);
        QTEST((Paragraph{document(body), {}}.html()), "html");
    }

    void colourLineIsRead_data()
    {
        const QByteArray entry = "\\red1\\green2\\blue3;";
        addTable<QByteArray, QByteArray>(
            {"rtf", "colour"},
            {{"of the second line", "{\\red9\\green9\\blue9\r\n{" + entry + "}\r\n\\cf0 }",
              "010203"},
             {"not of the third", "{\r\n\r\n{" + entry + "}\r\n\\cf0 }", "000000"},
             {"one line end", "{\r\n{" + entry + "}\\cf0 }", "000000"},
             {"three digits", "{\r\n{\\red2555\\green12x\\blue\\x}\r\n\\cf0 }", "FF0C00"},
             {"above a byte", "{\r\n{\\red999\\green256\\blue0}\r\n\\cf0 }", "3E80000"},
             {"the 21st", "{\r\n{" + entry.repeated(20) + "\\red4\\green5\\blue6;}\r\n\\cf20 }",
              "040506"},
             {"no 22nd", "{\r\n{" + entry.repeated(21) + "\\red4\\green5\\blue6;}\r\n\\cf21 }",
              "010203"}});
    }
    void colourLineIsRead()
    {
        QFETCH(QByteArray, rtf);
        QFETCH(QByteArray, colour);
        QCOMPARE((Paragraph{rtf, {}}.html()), "<FONT COLOR=\"#" + colour + "\"></FONT>");
    }

    void referencesBecomeLinks_data()
    {
        const QByteArray link = "<A HREF=\"#P0026\">26</A>";
        addTable<QByteArray, QString, QString, QByteArray>(
            {"text", "list", "phrase", "html"},
            {{"all digits", " au 5, au 1999", "0005/1999/", " au ",
              " au <A HREF=\"#P0005\">5</A>, au <A HREF=\"#P1999\">1999</A>"},
             {"each place of a listed number", " au 26 au 26", "0026/", " au ",
              " au " + link + " au " + link},
             {"listed twice", " au 26, au 7", "0026/0007/0026/", " au ",
              " au <A HREF=\"#P0026\">" + link + "</A>, au <A HREF=\"#P0007\">7</A>"},
             {"phrase cut by the start", "au 26", "0026/", " au ", "au 26"},
             {"phrase at the start", " au 26", "0026/", " au ", " au " + link},
             {"digit behind", " au 265 au 26", "0026/", " au ", " au 265 au " + link},
             {"digit before, leading zero", " au 126 au 026", "0026/", " au ", " au 126 au 026"},
             {"not listed", " au 26", "0027/abcd/2001/00", " au ", " au 26"},
             {"letter case", " AU 26", "0026/", " au ", " AU 26"},
             {"tags between", " a<FONT COLOR=\"#26\">u <B></I>26</B>", "0026/", " au ",
              " a<FONT COLOR=\"#26\">u <B></I>" + link + "</B>"},
             {"tag within the number", " au 2<B>6", "0002/0026/", " au ",
              " au <A HREF=\"#P0002\">2</A><B>6"},
             {"entities are characters", " au&nbsp;26 &#126;", "0026/0126/", "&#",
              " au&nbsp;26 &#<A HREF=\"#P0126\">126</A>;"},
             {"accents never match", " &#224; 26", "0026/", " à ", " &#224; 26"},
             {"> hides what is before it", " au > 26 -> 26, au 26", "0026/", "> ",
              " au > 26 -> 26, au 26"},
             {"no tag, no mark", "a < b au > 26", "0026/", "a  ", "a < b au > " + link},
             {"no phrase", "26", "0026/", "", "26"},
             {"digits in the phrase", "n1126", "0126/0026/", "n1",
              "n1<A HREF=\"#P0126\">126</A>"}});
    }
    void referencesBecomeLinks()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, list);
        QFETCH(QString, phrase);
        QTEST((Paragraph{verbatim(text), list, phrase}.html()), "html");
    }

    void linksToFilesHaveThePrefix()
    {
        Paragraph paragraph{verbatim("Va au 26 - au 1234."), "0026/1234/", " au ", "É»Ł📘-", true};
        QCOMPARE(paragraph.html(),
                 QByteArray("Va au <A HREF=\"\xc9\xbb&#321;&#128216;-0026.htm\">26</A> - au "
                            "<A HREF=\"\xc9\xbb&#321;&#128216;-1234.htm\">1234</A>."));
        paragraph.prefix = "a #1 %23\"?";
        QVERIFY(paragraph.html().contains("<A HREF=\"a %231 %2523%22%3F0026.htm\">26</A>"));
    }

    void textsOfTheEditorAreConverted_data()
    {
        addTable<Make, QByteArray>(
            {"make", "html"},
            {{"empty", [](RichTextBox &) {}, "<P ALIGN=\"Left\">\r\n<BR>"},
             {"styles", makeStyles,
              "<P ALIGN=\"Left\"><B>Gras</B> et <I>&#171; pench&#233; &#187;&nbsp;:\r\n<BR></I>"
              "va au <U><FONT COLOR=\"#FF8000\"><A HREF=\"AB-0026.htm\">26</A></U></FONT>&nbsp; "
              "&nbsp; "
              "&nbsp;ou au <B>10</B>3 &#151; fin\r\n<BR>"},
             {"paragraphs", makeParagraphs,
              "<P ALIGN=\"Center\"><FONT COLOR=\"#0000FF\">Titre\r\n<BR>"
              "<P ALIGN=\"Left\">&#149;&nbsp;</FONT>corde\r\n<BR>&#149;&nbsp;cl&#233;\r\n<BR>"
              "&#149;&nbsp;\r\n<BR><P ALIGN=\"Left\">suite "
              "&#123;&#092;b&#125;\r\n<BR>"
              "<P ALIGN=\"Right\"><B>&#9733;a&#128216;&#9733;&#156;</B>uf&#133;\r\n<BR>"
              "<P ALIGN=\"Left\">&#149;&nbsp;livre\r\n<BR>"}});
    }
    void textsOfTheEditorAreConverted()
    {
        QFETCH(Make, make);
        HiddenBox box;
        make(box);
        Variables variables;
        ScanReferences(variables, box.text(), 3);
        QTEST(RtfToHtml(variables, box.rtf(), "AB-", 3, true), "html");
    }

    void damageIsReported_data()
    {
        addTable<QByteArray>({"rtf"}, {{"no body", "{\\rtf1{\\b x}text}"},
                                       {"no RTF", "x"},
                                       {"run without a space", "{\\rtf1 x\\par}"},
                                       {"backslash alone", "{\\rtf1 x\\"},
                                       {"text without a brace", "{\\rtf1 text"}});
    }
    void damageIsReported()
    {
        QFETCH(QByteArray, rtf);
        QVERIFY_THROWS_EXCEPTION(FormatError, (Paragraph{rtf, {}}.html()));
    }

    void limitsAreKept_data()
    {
        constexpr int runs = HtmlText::MaxBytes / 29 + 2; // of what "\cf " becomes
        addTable<QByteArray, QString, int>(
            {"rtf", "list", "n"}, {{"number above", "", {}, 2001},
                                   {"number below", "", {}, -1},
                                   {"colours", QByteArray("\\cf ").repeated(runs) + '}', {}, 7},
                                   {"links", verbatim(QByteArray(" au 26").repeated(2000)),
                                    QString("0026/").repeated(2000), 7}});
    }
    void limitsAreKept()
    {
        QFETCH(QByteArray, rtf);
        QFETCH(QString, list);
        QFETCH(int, n);
        const Paragraph paragraph{rtf, list, " au ", {}, false, n};
        QVERIFY_THROWS_EXCEPTION(LimitError, paragraph.html());
    }

    void damagedBytesAreConvertedOrReported()
    {
        HiddenBox box;
        makeStyles(box);
        const QByteArray whole = box.rtf() + document("\\u-10179 ?\\u-9000 ?\\'e9\\cf1\\~ ");
        QRandomGenerator random(2026);
        int converted = 0;
        const auto convert = [&converted](const QByteArray &rtf) {
            try {
                Paragraph{rtf, "0026/0103/"}.html();
                ++converted;
            } catch (const FormatError &) {
            }
        };
        for (qsizetype length = 0; length <= whole.size(); ++length)
            convert(whole.first(length));
        for (int run = 0; run < 5000; ++run) {
            QByteArray bytes = run % 2 == 0 ? whole : QByteArray(random.bounded(200), '\\');
            for (qsizetype i = 0; i < bytes.size(); i += random.bounded(1, 40))
                bytes[i] = static_cast<char>(random.bounded(256));
            convert(bytes);
        }
        QVERIFY(converted > 100);
    }

    void timeGrowsAsTheText_data()
    {
        constexpr int many = 400'000;
        const auto times = [](const char *piece) { return QByteArray(piece).repeated(many); };
        addTable<QByteArray>(
            {"rtf"}, {{"backslashes", QByteArray("\\x ").repeated(many) + times("\\") + " }"},
                      {"groups", verbatim(times("{"))},
                      {"pairs cut in half", times("\\u-10179 \\~") + '}'},
                      {"tags", verbatim(times("<> 26"))},
                      {"digits", verbatim(" au " + times("26"))},
                      {"references", verbatim(QByteArray(" au 26").repeated(many / 2))},
                      {"colours", "{\r\n" + times("\\red") + "\r\n\\cf0 }"}});
    }
    // Only work that grows faster than the text comes near this time.
    void timeGrowsAsTheText()
    {
        QFETCH(QByteArray, rtf);
        QElapsedTimer timer;
        timer.start();
        QVERIFY((Paragraph{rtf, "0026/0006/0002/"}.html()).size() < HtmlText::MaxBytes);
        QVERIFY(timer.elapsed() < 20000);
    }
};

QTEST_MAIN(TestRtfToHtml)
#include "tst_rtfToHtml.moc"

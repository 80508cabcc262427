#include "convert/book/BookHtml.h"
#include "convert/book/XmlText.h"
#include "convert/epub/EpubBook.h"
#include "support/TestTable.h"

#include <QObject>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

namespace
{
BookParagraph paragraphOf(int number, const QByteArray &body)
{
    BookParagraph paragraph =
        bookParagraph(number, "{\\rtf1{\\colortbl;\\red255\\green0\\blue0;}" + body + "}", " au ");
    for (BookBlock &block : paragraph.blocks)
        for (BookRun &run : block.runs)
            run.linked = run.refersTo > 0 && run.refersTo != 83;
    return paragraph;
}

// What a mean author writes.
Book meanBook()
{
    return {{paragraphOf(1, "<b> & \"q\" ]]> \\u-10179?\\u-8704? au 200, au 83\\par\\par au 2"),
             paragraphOf(2, "{\\pntext x}{\\*\\pn\\pnlvlblt}\\cf1 un au 2000\\par\\pard a\\tab b"),
             paragraphOf(200, ""), paragraphOf(2000, "fin au 1")},
            {},
            24};
}

BookFacts meanFacts()
{
    return {"<Titre> & \"moi\"",
            "A\x01 & B",
            "fr",
            "À <toi>\n\n&",
            "avant",
            "après",
            QByteArray::fromBase64("iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1Pe")};
}

// Ids and links of a page, as "p0001.xhtml#p1"; an empty list of links where it is no XML.
struct Anchors {
    QSet<QString> ids;
    QStringList links;
};

Anchors anchorsOf(const QString &name, const QByteArray &page)
{
    Anchors anchors{{name}, {}};
    QXmlStreamReader reader(page);
    while (!reader.atEnd()) {
        reader.readNext();
        const auto attributes = reader.attributes();
        if (attributes.hasAttribute("id"))
            anchors.ids.insert(name + u'#' + attributes.value("id").toString());
        if (attributes.hasAttribute("href") && reader.isStartElement() && reader.name() == u"a")
            anchors.links.append(attributes.value("href").toString());
    }
    return reader.hasError() ? Anchors{{}, {name + ": " + reader.errorString()}} : anchors;
}
} // namespace

class tst_epub : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formattingIsKept_data()
    {
        const QString link = "<a href=\"#3\">%1</a>";
        addTable<QByteArray, QString>(
            {"body", "html"},
            {{"styles", "a{\\b\\i b}{\\ul\\strike c}", "<p>a<b><i>b</i></b><u><s>c</s></u></p>\n"},
             {"link", "x au {\\b 3}", "<p>x au " + link.arg("<b>3</b>") + "</p>\n"},
             {"to an empty one", "x au 83", "<p>x au 83</p>\n"},
             {"colour, size", "{\\cf1\\fs48 a}",
              "<p><span class=\"kFF0000\" style=\"font-size:2em\">a</span></p>\n"},
             {"middle", "\\qc a\\par\\qr b", "<p class=\"m\">a</p>\n<p class=\"r\">b</p>\n"},
             {"indents", "\\li720\\fi-360\\ri240 a",
              "<p style=\"margin-left:3em;text-indent:-1.5em;margin-right:1em\">a</p>\n"},
             {"beyond the edge", "\\li0\\fi-360 a", "<p>a</p>\n"},
             {"spaces", "a  b\\par a b", "<p class=\"w\">a  b</p>\n<p>a b</p>\n"},
             {"tab", "\\tx2400 a\\tab b",
              "<p><span class=\"t\" style=\"min-width:10em\">a </span>b</p>\n"},
             {"behind the tab stops", "\\tx240 aaaaaaaaaa\\tab b",
              "<p><span class=\"t\" style=\"min-width:6em\">aaaaaaaaaa </span>b</p>\n"},
             {"list", "a\\par{\\pntext x}{\\*\\pn\\pnlvlblt}b\\par\\pard c",
              "<p>a</p>\n<ul>\n<li>b</li>\n</ul>\n<p>c</p>\n"},
             {"nothing", "a\\par\\par b", "<p>a</p>\n<p><br/></p>\n<p>b</p>\n"}});
    }
    void formattingIsKept()
    {
        QFETCH(const QByteArray, body);
        QFETCH(const QString, html);
        BookHtml writer(24, [](int number) { return '#' + QString::number(number); });
        QCOMPARE(writer.blocks(paragraphOf(1, body)), html);
    }

    void textsAreEscaped_data()
    {
        addTable<QString, QString>(
            {"text", "xml"},
            {{"markup", "<a href=\"b\">&", "&lt;a href=&quot;b&quot;&gt;&amp;"},
             {"controls", QString("a\x01\x1F\x7F") + QChar(0x85) + "\t\n", "a\t\n"},
             {"no characters", QString("a") + QChar(0xFFFF) + QChar(0xFFFE), "a"},
             {"emoji", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
             {"half of one", QString("a") + QChar(0xD83D) + "b" + QChar(0xDE00), "ab"}});
    }
    void textsAreEscaped()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, xml);
        QCOMPARE(xmlText(text), xml);
    }

    void everyLinkLeadsToItsParagraph_data()
    {
        addTable<EpubPages::Files, int>(
            {"files", "pages"},
            {{"hundreds", EpubPages::Files::Hundreds, 8}, {"each", EpubPages::Files::Each, 9}});
    }
    void everyLinkLeadsToItsParagraph()
    {
        QFETCH(const EpubPages::Files, files);
        QFETCH(const int, pages);
        const Book book = meanBook();
        const BookFacts facts = meanFacts();
        const EpubPages epub(book, facts, files, [](int, int) {});
        QCOMPARE(epub.pages().size(), pages);
        Anchors all = anchorsOf("nav.xhtml", epub.navigation());
        // Contents (dedication, before, three hundreds, after), numbers, cover and start.
        QCOMPARE(all.links.size(), 6 + 4 + 2);
        for (const EpubPage &page : epub.pages()) {
            const Anchors anchors = anchorsOf(page.name, page.bytes);
            all.ids.unite(anchors.ids);
            all.links += anchors.links;
        }
        QCOMPARE(all.links.size(), 12 + 3);
        for (const QString &link : std::as_const(all.links))
            QVERIFY2(all.ids.contains(link), qPrintable(link));
        QVERIFY(all.links.contains(files == EpubPages::Files::Each ? "p0200.xhtml#p200"
                                                                   : "p0101.xhtml#p200"));
    }

    void packingCanBeStopped()
    {
        const Book book = meanBook();
        for (const int stopAt : {1, 30, 60, 99}) {
            const auto progress = [&](int done, int total) {
                if (done * 100 >= total * stopAt)
                    throw std::domain_error("stopped");
            };
            QVERIFY_THROWS_EXCEPTION(
                std::domain_error, epubOf(book, meanFacts(), EpubPages::Files::Each, {}, progress));
        }
    }

    void aFileOfTheBookIsAlwaysTheSame()
    {
        const QDateTime modified(QDate(2026, 11, 22), QTime(1, 2, 3), Qt::UTC);
        const Book book = meanBook();
        BookFacts facts = meanFacts();
        const auto make = [&] {
            return epubOf(book, facts, EpubPages::Files::Hundreds, modified, [](int, int) {});
        };
        const QByteArray bytes = make();
        QCOMPARE(bytes.mid(30, 28), "mimetypeapplication/epub+zip");
        QVERIFY(bytes.contains(facts.cover) && bytes.contains("OEBPS/cover.png"));
        QCOMPARE(make(), bytes);
        facts.cover = "no picture";
        QVERIFY(!make().contains("OEBPS/cover"));
    }
};

QTEST_GUILESS_MAIN(tst_epub)
#include "tst_epub.moc"

#include "convert/page/BookPage.h"
#include "support/TestTable.h"

#include <QCryptographicHash>
#include <QObject>
#include <QRegularExpression>
#include <QTest>

namespace
{
// 1 leads to 2, which ends; 7 leads to 83, which nobody has written.
Book book()
{
    BookRun two{"2", {}, 2, true};
    BookRun red{"{{title}} </script><script>alert(1)</script>", {}};
    red.chars.colour = qRgb(0, 0, 255);
    return {{{1, {{{}, {}, {{"va au ", {}}, two}}}},
             {2, {{{}, {}, {red}}}},
             {7, {{{}, {}, {{"va au ", {}}, {"83", {}, 83, false}}}}}},
            {83},
            24};
}

QString page(const PageChoice &choice = {{2}, true}, const QString &language = "fr")
{
    const BookFacts facts{"<T> & \"U\"", "A", language, "{{script}}", "avant", "après", {}};
    return QString::fromUtf8(pageOf(book(), facts, choice));
}

QString between(const QString &text, const QString &from, const QString &to)
{
    const qsizetype start = text.indexOf(from) + from.size();
    return text.mid(start, text.indexOf(to, start) - start);
}
} // namespace

class tst_bookPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A browser runs what has the hash, and nothing that an author has written.
    void onlyItsOwnScriptRuns()
    {
        const QString html = page();
        const QByteArray script = between(html, "<script>", "</script>").toUtf8();
        const QByteArray hash = QCryptographicHash::hash(script, QCryptographicHash::Sha256);
        QVERIFY(script.size() > 1000);
        QCOMPARE(between(html, "'sha256-", "'").toLatin1(), hash.toBase64());
        QCOMPARE(html.count("<script"), 1);
        QVERIFY(html.contains("<title>&lt;T&gt; &amp; &quot;U&quot;</title>"));
        QVERIFY(html.contains(">{{title}} &lt;/script&gt;"));
        QCOMPARE(html.count("{{"), 2);
        QVERIFY(!html.contains(QRegularExpression("(src|href|url)[=(][\"']?https?:")));
    }

    void everyLinkLeadsToItsParagraph()
    {
        QStringList links;
        const QString html = page();
        auto match = QRegularExpression("<a href=\"#([^\"]*)\"").globalMatch(html);
        while (match.hasNext())
            links.append(match.next().captured(1));
        QCOMPARE(links, (QStringList{"p2", "p2"})); // the start, and 1
        QVERIFY(html.contains("<section id=\"p1\">\n"));
        QVERIFY(html.contains("<section id=\"p2\" class=\"end\">\n"));
    }

    void startsOfTheBookCount_data()
    {
        addTable<QList<int>, QString>({"starts", "words"},
                                      {{"one", {7}, "<a href=\"#p7\">Commencer la lecture</a>"},
                                       {"two", {2, 7, 83}, "<a href=\"#p7\">Commencer au 7</a>"},
                                       {"none in it", {83}, "<a href=\"#p1\">Commencer"},
                                       {"none", {}, "<a href=\"#p1\">Commencer"}});
    }
    void startsOfTheBookCount()
    {
        QFETCH(const QList<int>, starts);
        QFETCH(const QString, words);
        QVERIFY(page({starts, true}).contains(words));
    }

    void itsWordsAreInTheLanguageOfTheBook_data()
    {
        addTable<QString, QString>({"language", "word"}, {{"French", "fr-CA", "Marque-pages"},
                                                          {"English", "en", "Bookmarks"},
                                                          {"another", "de", "Bookmarks"}});
    }
    void itsWordsAreInTheLanguageOfTheBook()
    {
        QFETCH(const QString, language);
        QFETCH(const QString, word);
        const QString html = page({}, language);
        QVERIFY(html.contains(word) && html.contains("<html lang=\"" + language + "\">"));
    }

    void coloursCanBeReadOnADarkPage()
    {
        const QString html = page();
        QVERIFY(html.contains("\n.k0000FF{color:#0000ff}"));
        const QString dark = between(html, ":root[data-theme=dark] .k0000FF{color:#", "}");
        QVERIFY2(dark.size() == 6 && dark != "0000ff", qPrintable(dark));
    }

    void theSheetCanBeLeftOut()
    {
        QVERIFY(page().contains("id=\"notes\""));
        const QString without = page({{}, false});
        QVERIFY(!without.contains("id=\"notes\"") && !without.contains("data-panel=\"sheet\""));
    }
};

QTEST_GUILESS_MAIN(tst_bookPage)
#include "tst_bookPage.moc"

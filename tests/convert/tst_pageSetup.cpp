#include "convert/pdf/BlockText.h"
#include "convert/pdf/Hyphenation.h"
#include "convert/pdf/PageWords.h"
#include "convert/pdf/SetBlock.h"
#include "support/TestTable.h"

#include <QTemporaryDir>

class tst_pageSetup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsAreUnderstoodOrNamed_data()
    {
        addTable<QString, QString, QString>(
            {"words", "wrong", "shown"},
            {{"nothing", "", "", "papier=A5"},
             {"paper by name", "papier=a4", "", "papier=A4"},
             {"inches", "papier=6x9", "", "papier=6x9"},
             {"centimetres", "papier=14x21", "", "papier=14x21"},
             {"its own", "papier=120x180,5", "", "papier=120x180.5"},
             {"no paper", "papier=A7", "papier=A7", "papier=A5"},
             {"a measure with a comma", "tete=12,5", "", "tete=12.5"},
             {"no measure", "tete=haut", "tete=haut", "tete=20"},
             {"a larger size", "taille=21", "", "interligne=27"},
             {"with its own leading", "interligne=24;taille=21", "", "interligne=24"},
             {"names with blanks", "police=DejaVu Serif", "", "police=DejaVu Serif"},
             {"style", "numero=italique,souligne", "", "numero=italique,souligne"},
             {"no style", "numero=rien", "", "numero=rien"},
             {"an unknown style", "numero=gras,grand", "numero=gras,grand", "numero=gras,centre"},
             {"a choice", "renvois=fleche;un-par-page=oui", "", "un-par-page=oui"},
             {"no choice", "noir=oui;renvois=bleus", "renvois=bleus", "noir=non"},
             {"no word", "A4", "A4", "papier=A5"},
             {"unknown", "encre=verte", "encre=verte", "papier=A5"}});
    }
    void wordsAreUnderstoodOrNamed()
    {
        QFETCH(QString, words);
        QFETCH(QString, wrong);
        QFETCH(QString, shown);
        PageSetup setup;
        QCOMPARE(setPageWords(setup, words.split(';', Qt::SkipEmptyParts)), wrong);
        QVERIFY2(pageWords(setup).contains(shown), qPrintable(pageWords(setup).join(' ')));
        PageSetup again;
        QCOMPARE(setPageWords(again, pageWords(setup)), QString());
        QVERIFY(again == setup);
    }

    void whatCannotBePrintedIsSaid_data()
    {
        addTable<QString, QString>(
            {"words", "said"},
            {{"as it is", "", ""},
             {"large margins", "interieur=70;exterieur=60", "ne laissent pas 25 mm"},
             {"high margins", "tete=150;pied=50", "tête et de pied ne laissent pas"},
             {"margins of their own", "tete=1000", "0 à 500"},
             {"no number", "pied=nan", "0 à 500"},
             {"tiny paper", "papier=10x10", "50 à 500 mm"},
             {"endless paper", "papier=infx200", "50 à 500 mm"},
             {"tiny type", "taille=1", "4 à 72 points"},
             {"huge numbers", "numero-taille=400", "4 à 72 points"},
             {"no font", "police= ", "police"},
             {"high lines", "tete=90;pied=90;taille=30", "deux lignes"},
             {"a high number", "tete=90;pied=90;numero-taille=72", "deux lignes"},
             {"lines in each other", "interligne=5", "interligne"},
             {"no room for the head", "tete=5", "titre courant"},
             {"none needed", "tete=5;titre-courant=rien", ""},
             {"no room for page numbers", "pied=5", "numéros de page"}});
    }
    void whatCannotBePrintedIsSaid()
    {
        QFETCH(QString, words);
        QFETCH(QString, said);
        PageSetup setup;
        setup.font = "DejaVu Sans";
        QCOMPARE(setPageWords(setup, words.split(';', Qt::SkipEmptyParts)), QString());
        const QString fault = pageSetupFault(setup);
        QVERIFY2(said.isEmpty() ? fault.isEmpty() : fault.contains(said), qPrintable(fault));
    }

    void wordsArePartedByTheirPatterns()
    {
        const QTemporaryDir folder;
        writePatterns(folder);
        const Hyphenation patterns("xx", {folder.path()});
        QVERIFY(patterns.isThere());
        QCOMPARE(patterns.places(u"Étabulaire, l'étabulaire étab 42"),
                 (QList<qsizetype>{3, 4, 17, 18}));
        QVERIFY(!Hyphenation("yy", {folder.path()}).isThere());
        QVERIFY(Hyphenation("yy", {folder.path()}).places(u"tabulaire").isEmpty());
    }

    // Shown with "-" where a word may be parted and "_" for a no-break space.
    void referencesStayWhole_data()
    {
        addTable<QByteArray, PageSetup::References, QString>(
            {"text", "form", "laidOut"},
            {{"no reference", "tabulaire tabulaire", PageSetup::References::AsWritten,
              "ta-b-ulaire ta-b-ulaire"},
             {"and the word before it", "tabulaire tabulaire 26 tabulaire",
              PageSetup::References::AsWritten, "ta-b-ulaire tabulaire_26 ta-b-ulaire"},
             {"an arrow", "tabulaire tabulaire 26", PageSetup::References::Arrow,
              "ta-b-ulaire tabulaire_→_26"}});
    }
    void referencesStayWhole()
    {
        QFETCH(QByteArray, text);
        QFETCH(PageSetup::References, form);
        QFETCH(QString, laidOut);
        const QTemporaryDir folder;
        writePatterns(folder);
        const Book book = bookOf(text);
        PageSetup setup;
        setup.references = form;
        BookFonts fonts(book, setup);
        const Hyphenation patterns("xx", {folder.path()});
        QString shown =
            blockText(book.paragraphs.first().blocks.first(), setup, fonts, &patterns).text;
        QCOMPARE(shown.replace(QChar::SoftHyphen, u'-').replace(QChar::Nbsp, u'_'), laidOut);
    }

    void threeLinesInARowEndInAHyphen()
    {
        const QTemporaryDir folder;
        writePatterns(folder);
        const Book book = bookOf(QByteArray("tabulaire ").repeated(200));
        PageSetup setup;
        const Hyphenation patterns("xx", {folder.path()});
        QSet<int> runs;
        for (double width = 600; width < 3000; width += 50) {
            BookFonts fonts(book, setup);
            const BookBlock &block = book.paragraphs.first().blocks.first();
            const SetBlock lines(block, blockText(block, setup, fonts, &patterns), setup, fonts,
                                 width);
            int run = 0;
            for (int i = 0; i < lines.lineCount(); ++i) {
                const QString text = lines.text(i);
                QVERIFY2(text.endsWith(QChar::SoftHyphen) || text.endsWith(u' '), qPrintable(text));
                runs.insert(run);
                run = text.endsWith(QChar::SoftHyphen) ? run + 1 : 0;
            }
        }
        QCOMPARE(runs, (QSet<int>{0, 1, 2, 3}));
    }

    void lettersAreNoLargerThanThePage()
    {
        const Book book = bookOf("Un \\fs3276 A");
        PageSetup setup;
        BookFonts fonts(book, setup);
        const auto pixels = [&](int halfPoints) {
            CharState chars = fonts.usual();
            chars.halfPoints = halfPoints;
            return QFontMetricsF(fonts.format(chars).font()).horizontalAdvance(u'M');
        };
        constexpr double Twips = 1440 / 25.4; // to the millimetre
        QVERIFY(pixels(60) > pixels(24) * 2.4 && fonts.remarks().isEmpty());
        QVERIFY(pixels(3276) > pixels(60) && pixels(3276) < setup.textWidth() * Twips);
        QVERIFY(fonts.leading(3276) < setup.textHeight() * Twips);
        QVERIFY(fonts.remarks().contains("plus grandes que la page"));
    }

private:
    static Book bookOf(const QByteArray &text)
    {
        Book book;
        book.paragraphs = {bookParagraph(1, "{\\rtf1 " + text + "}", " tabulaire ")};
        return book;
    }
    static void writePatterns(const QTemporaryDir &folder)
    {
        QFile file(folder.filePath("hyph_xx_YY.dic"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("UTF-8\n.é2t1a2n\na1b\nb1u\n");
    }
};

QTEST_MAIN(tst_pageSetup)
#include "tst_pageSetup.moc"

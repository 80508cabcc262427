#include "convert/book/Book.h"
#include "convert/pdf/MissingCharacters.h"
#include "convert/pdf/PageWords.h"
#include "convert/pdf/PdfCommand.h"
#include "convert/pdf/PdfFile.h"
#include "outil/HeadlessView.h"
#include "platform/OpenedFile.h"
#include "store/AdventureFile.h"
#include "store/LongWork.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"
#include "support/TestTable.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

namespace
{
constexpr int Paragraphs = 130;

class TellingView : public HeadlessView
{
public:
    using HeadlessView::HeadlessView;
    void announce(const QString &text) override { told = text; }
    bool progress(int done, int total) override { return stopAt >= 0 && done >= stopAt * total; }

    QString told;
    double stopAt = -1; // a share of the work
};

QString textOf(int n)
{
    QString text = QString("Paragraphe%1fin. L’été, cœur & <b> ; « mot » – %1.").arg(n);
    for (int i = 0; i < n % 9; ++i)
        text += QString(" Extraordinairement précipité, l’aventurier numéro%1x%2 hésite.")
                    .arg(n)
                    .arg(i);
    return text + QString("\r\nAllez au %1, au %2 ou AU %3. Jamais au 1999 ni au %4.")
                      .arg((n * 7) % Paragraphs + 1)
                      .arg((n * 31) % Paragraphs + 1)
                      .arg((n * 3) % Paragraphs + 1)
                      .arg(Paragraphs + 5);
}

// Paragraphs 1..130 without every thirteenth, and 0, which is none of the book.
struct Scene {
    Scene()
    {
        QStringList lines{"0: Notesdelauteur au 3"};
        for (int n = 1; n <= Paragraphs; ++n)
            if (n % 13 != 0)
                lines.append(QString("%1: %2").arg(n).arg(textOf(n)));
        v.AdventurePath = adventure.file("Le Loup.usm", AdventureBuilder(lines).bytes());
        v.AdventureFileName = "Le Loup.usm";
        v.FilePrefix = "a-";
        takeOver(v, readAdventure(std::make_shared<OpenedFile>(v.AdventurePath)));
    }

    bool print(const QString &words = {}, double first = 0, double second = 2000)
    {
        PageSetup setup = defaultPageSetup(v);
        setPageWords(setup, words.split(';', Qt::SkipEmptyParts));
        return exportToPdf({v, prompts, view}, {first, second, path}, {bookFacts(v), setup})
            .has_value();
    }

    QByteArray document() const { return adventure.content("livre.pdf"); }

    // A page, or a part of it in points, as a reader would copy it.
    QString read(int page, const QRectF &part = {}) const
    {
        QStringList options{"-layout", "-f", QString::number(page + 1), "-l",
                            QString::number(page + 1)};
        if (!part.isNull())
            options << "-x" << QString::number(qRound(part.x())) << "-y"
                    << QString::number(qRound(part.y())) << "-W"
                    << QString::number(qRound(part.width())) << "-H"
                    << QString::number(qRound(part.height()));
        QProcess reader;
        reader.start("pdftotext", options << path << "-");
        reader.waitForFinished();
        return QString::fromUtf8(reader.readAllStandardOutput());
    }

    TestAdventure adventure;
    Variables &v = adventure.variables;
    PromptRecorder prompts;
    TellingView view{v};
    const QString path = adventure.file("livre.pdf", "ancien");
};

struct Link {
    int page;
    QRectF place; // from the upper left corner, in points
    int to;
    double y; // there
};

// What a PDF has beside what is seen.
class Document : public PdfFile
{
public:
    using PdfFile::PdfFile;

    // Fonts that are not in the file.
    QStringList fontsOutside() const
    {
        QStringList names;
        for (int i = 0; i < pageCount(); ++i) {
            const Object fonts = page(i).at("/Resources").at("/Font");
            for (const QString &key : fonts.keys()) {
                const Object font = fonts.at(key.toUtf8().constData());
                const Object descriptor = font.at("/DescendantFonts").at(0).at("/FontDescriptor");
                if (!descriptor.has("/FontFile2") && !descriptor.has("/FontFile3"))
                    names.append(font.at("/BaseFont").name());
            }
        }
        return names;
    }

    QList<Link> links() const
    {
        QList<Link> links;
        for (int i = 0; i < pageCount(); ++i) {
            if (!page(i).has("/Annots"))
                continue;
            const Object annotations = page(i).at("/Annots");
            for (int one = 0; one < annotations.count(); ++one)
                links.append(link(i, annotations.at(one)));
        }
        return links;
    }

    int pageOf(const Object &action) const
    {
        for (int i = 0; i < pageCount(); ++i)
            if (page(i).id() == action.at("/D").at(0).id())
                return i;
        return -1;
    }

private:
    Link link(int index, const Object &annotation) const
    {
        const Object action = annotation.at("/A");
        if (action.at("/S").name() != "/GoTo")
            qFatal("a link that is no GoTo");
        const double top = page(index).at("/MediaBox").at(3).number();
        const Object rect = annotation.at("/Rect");
        const QPointF corner(rect.at(0).number(), top - rect.at(3).number());
        return {index,
                {corner, QPointF(rect.at(2).number(), top - rect.at(1).number())},
                pageOf(action),
                top - action.at("/D").at(3).number()};
    }
};

// As a text is compared: a page parts words and lines in its own way.
QString joined(QString text)
{
    static const QRegularExpression parted("[-\u2010\u00ad]\\s*\n\\s*");
    static const QRegularExpression blanks("[\\s\u00a0-]+");
    return text.replace(parted, "").replace(blanks, "").toLower();
}
} // namespace

class tst_bookPdf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyReferenceLeadsToItsNumber()
    {
        if (QStandardPaths::findExecutable("pdftotext").isEmpty())
            QSKIP("pdftotext is not there");
        Scene scene;
        QVERIFY(scene.print("police=Liberation Serif"));
        const Document pdf(scene.document());
        const QList<Link> links = pdf.links();
        QCOMPARE(links.size(), Paragraphs * 3 * 12 / 13 - expectedEmpty());
        for (qsizetype i = 0; i < links.size(); i += 7) { // a sample: each takes two processes
            const Link &link = links.at(i);
            const QString number =
                scene.read(link.page, link.place.adjusted(0, 0, -2, 0)).trimmed();
            const QRectF there(0, link.y, 420, 24);
            QCOMPARE(scene.read(link.to, there).trimmed(), number);
        }
    }

    void allTextsAreThere()
    {
        if (QStandardPaths::findExecutable("pdftotext").isEmpty())
            QSKIP("pdftotext is not there");
        Scene scene;
        scene.v.extras.book.dedication = "Pour Honorine";
        scene.v.extras.book.before = "Avantpropos";
        scene.v.extras.book.after = "Postface";
        QVERIFY(scene.print("titre-courant=rien;numeros-de-page=non"));
        QString text;
        for (int page = 0; page < Document(scene.document()).pageCount(); ++page)
            text += scene.read(page);
        const QString all = joined(text);
        for (int n = 1; n <= Paragraphs; ++n)
            QVERIFY2((n % 13 == 0) != all.contains(joined(textOf(n))), qPrintable(textOf(n)));
        QVERIFY(!all.contains("notesdelauteur"));
        QVERIFY(scene.read(0).trimmed() == "Pour Honorine");
        QVERIFY(scene.read(1).trimmed().isEmpty()); // each begins on the right
        QVERIFY(scene.read(2).trimmed() == "Avantpropos");
        QVERIFY(scene.read(4).trimmed().startsWith("1\n"));
        QVERIFY(all.endsWith("postface"));
    }

    void theDocumentSaysWhatItIs()
    {
        Scene scene;
        scene.v.extras.book.author = "Léa Œuvrard";
        QVERIFY(scene.print());
        const Document pdf(scene.document());
        const auto info = pdf.trailer().at("/Info");
        QCOMPARE(info.at("/Title").text(), "Le Loup");
        QCOMPARE(info.at("/Author").text(), "Léa Œuvrard");
        QCOMPARE(pdf.root().at("/Lang").text(), "fr");
        QCOMPARE(pdf.fontsOutside(), QStringList());
        QStringList outline;
        int last = -1;
        for (auto entry = pdf.root().at("/Outlines").at("/First"); entry.isDictionary();
             entry = entry.at("/Next")) {
            outline.append(entry.at("/Title").text());
            QVERIFY(pdf.pageOf(entry.at("/A")) > last);
            last = pdf.pageOf(entry.at("/A"));
        }
        QVERIFY(pdf.isSound());
        QCOMPARE(outline, (QStringList{"1–99", "100–129"}));
        const QByteArray first = scene.document();
        QVERIFY(scene.print());
        QCOMPARE(scene.document(), first);
    }

    void remarksStandAtTheEnd()
    {
        Scene scene;
        QVERIFY(scene.print("police=Nullepart", 2, 2));
        QVERIFY2(scene.view.told.contains("1999, 135") || scene.view.told.contains("135, 1999"),
                 qPrintable(scene.view.told));
        QVERIFY(scene.view.told.contains("« Nullepart » manque"));
        scene.v.extras.book.language = "zz";
        QVERIFY(scene.print("police=Liberation Serif", 2, 2));
        QVERIFY(scene.view.told.contains("dictionnaire de césures manque (zz)"));
        QVERIFY(scene.print("police=Liberation Serif;cesures=non", 2, 2));
        QVERIFY(!scene.view.told.contains("manque"));
    }

    void charactersThatNoFontHasAreTold()
    {
        MissingCharacters missing(QFont("Liberation Serif"));
        missing.add(bookParagraph(1, "{\\rtf1 \\'e9t\\'e9\\u173 ? \\u9731 ? \\u20013 ?}", " au "));
        const QString told = missing.sentence();
        QVERIFY2(told.endsWith(QString(" : ") + QChar(20013) + '.'), qPrintable(told));
    }

    void nothingIsLeftOfWhatStops()
    {
        Scene scene;
        for (const double share : {0.1, 0.4, 0.8, 0.95}) {
            scene.view.stopAt = share;
            QVERIFY(!scene.print());
            QCOMPARE(scene.document(), "ancien");
            QVERIFY(scene.view.told.startsWith("Conversion arrêtée"));
        }
        scene.prompts.expect("Aucun paragraphe n'est écrit de 13 à 13.", "Zut");
        QVERIFY(!scene.print({}, 13, 13));
        QCOMPARE(scene.document(), "ancien");
    }

    void aParagraphOf200Pages()
    {
        Scene scene;
        QString text = "Début. ";
        for (int i = 0; i < 4000; ++i)
            text += "Le sentier se referme derrière vous, et la pluie tombe sur les fougères. ";
        scene.v.AdventurePath = scene.adventure.file(
            "b.usm", AdventureBuilder({"1: " + text + "au 2", "2: Va au 1"}).bytes());
        takeOver(scene.v, readAdventure(std::make_shared<OpenedFile>(scene.v.AdventurePath)));
        QVERIFY(scene.print("papier=80x100;interieur=10;exterieur=10"));
        const Document pdf(scene.document());
        QVERIFY(pdf.pageCount() > 200);
        QCOMPARE(pdf.links().size(), 2);
        QVERIFY(pdf.links().at(0).to >= 200);
    }

private:
    // References of the texts to the paragraphs that are not written.
    static int expectedEmpty()
    {
        int empty = 0;
        for (int n = 1; n <= Paragraphs; ++n)
            for (const int factor : {7, 31, 3})
                if (n % 13 != 0 && ((n * factor) % Paragraphs + 1) % 13 == 0)
                    ++empty;
        return empty;
    }
};

QTEST_MAIN(tst_bookPdf)
#include "tst_bookPdf.moc"

#include "check/TextBook.h"
#include "convert/html/RtfToHtml.h"
#include "store/references/DoubtfulReferences.h"
#include "support/AdventureBuilder.h"
#include "support/TestTable.h"

#include <QFile>

namespace
{
// "non-suivi: § 12", in the order of the list.
QString marked(const QList<Finding> &findings)
{
    QStringList texts;
    for (const Finding &finding : findings)
        if (!finding.text.isEmpty() && finding.kind != FindingKind::Ending &&
            finding.kind != FindingKind::EmptyTarget)
            texts.append(QString(kindName(finding.kind)) + ": " + finding.text);
    return texts.join(u'|');
}
} // namespace

class tst_checkTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsAreFound_data()
    {
        addTable<QString, QString, QString>(
            {"phrase", "text", "found"},
            {{"section", " au ", "Allez à la section 12.", "non-suivi: à la section 12"},
             {"sign", " au ", "Lisez ceci (§ 12).", "non-suivi: § 12"},
             {"en", " au ", "Allez en 12 si vous osez.", "non-suivi: en 12"},
             {"voir", " au ", "Le nain (voir 12) rit.", "non-suivi: voir 12"},
             {"square", " au ", "Vous fuyez [12] ou non.", "non-suivi: [12]"},
             {"round", " au ", "Vous fuyez ( 12 ) ou non.", "non-suivi: ( 12 )"},
             {"not written", " au ", "Vous fuyez (13) ou non.", ""},
             {"a noun", " au ", "Allez voir 12 amis, lisez 12 pages.", ""},
             {"strokes", " au ", "Aux 12 coups de minuit. De 10 à 12.", ""},
             {"date", " au ", "Revenez au 3 décembre.", "douteux: au 3"},
             {"beyond", " au ", "Rendez-vous au 2345.", "hors-limites: au 2345"},
             {"far beyond", " au ", "Rendez-vous au paragraphe 23456.",
              "hors-limites: au paragraphe 23456"},
             {"large sum", " au ", "Il tient au 900 000 et au 5000 francs.", ""},
             {"line end", " au ", "Un.\r\nVa au  \r\n 12, oui.", "non-suivi: 12"},
             {"capitals", " au ", "RENDEZ-VOUS AU 12.", "sans-lien: AU 12"},
             {"own phrase", " vers ", "Va vers 12, vers paragraphe 13.",
              "non-suivi: vers paragraphe 13"},
             {"own, beyond", " vers ", "Va vers 2001.", "hors-limites: vers 2001"},
             {"own, list", " vers ", "Va vers 12 ou 13.", "non-suivi: ou 13"},
             {"accent", " là ", "Va là 12.", "sans-lien: là 12"},
             {"marks", " au ", "À FAIRE. C'est à faire ! XXX et XXXI, TODOS. Quoi ??? Oui ??",
              "a-faire: À FAIRE|a-faire: XXX|a-faire: ???"}});
    }
    void wordsAreFound()
    {
        QFETCH(QString, phrase);
        QFETCH(QString, text);
        TextBook book;
        book.variables.TargetPhrase = phrase;
        book.write(12, "Ici on peut s'arrêter un peu.");
        const QString entry = referenceEntry(text, phrase);
        book.write(1, text);
        QTEST(marked(book.findings()), "found");
        QCOMPARE(book.variables.refIndex.at(1), entry);
        for (const Finding &finding : book.findings())
            QCOMPARE(finding.text, book.texts.texts.at(finding.number)
                                       .mid(finding.position, finding.length)
                                       .simplified());
    }

    // What it says of links is what the HTML has.
    void linksAreThoseOfTheHtml()
    {
        for (const QString phrase : {" au ", " Au ", " là ", "<", "->"}) {
            QString text = "Début";
            int number = 20;
            for (const QString &each : {phrase, phrase.toUpper(), phrase.toLower(), phrase})
                text += "x" + each + QString::number(++number) + ", puis";
            TextBook book;
            book.variables.TargetPhrase = phrase;
            book.write(1, text);
            qsizetype links = 0;
            for (const ReferenceMark &mark : referenceMarks(text, phrase))
                links += mark.read > 0 ? 1 : 0;
            for (const Finding &finding : book.findings())
                links -= finding.kind == FindingKind::NotLinked ? 1 : 0;
            QCOMPARE(links, RtfToHtml(book.variables, rtfOf(text), {}, 1, false).count("</A>"));
        }
    }

    // Prose full of dates, hours, sums and addresses. What is told there is read as a reference,
    // and a renumbering would change it: nothing else is.
    void proseIsLeftAlone()
    {
        const Table<QStringList> table{
            {"enquete.txt",
             {"douteux: au 12", "douteux: au 3", "douteux: au 3", "douteux: au 15",
              "douteux: au 4"}},
            {"donjon.txt", {"douteux: au 5"}},
            {"voyage.txt", {"douteux: au 9", "douteux: Au 60", "non-suivi: § 3"}},
        };
        for (const auto &[name, expected] : table) {
            QFile file(QString(USMIRA_TEST_DATA) + "/check/" + name);
            QVERIFY(file.open(QIODevice::ReadOnly));
            TextBook book;
            for (int n = 2; n <= 400; ++n)
                book.write(n, "Ici on peut s'arrêter un peu.");
            book.write(1, QString::fromUtf8(file.readAll()).replace("\n", "\r\n"));
            const QStringList found = marked(book.findings()).split('|', Qt::SkipEmptyParts);
            QVERIFY2(found == expected, qPrintable(found.join("\n")));
        }
    }
};

QTEST_GUILESS_MAIN(tst_checkTexts)
#include "tst_checkTexts.moc"

#include "TextBook.h"

#include "check/FindingGroups.h"
#include "check/FindingMends.h"
#include "check/StartNumbers.h"
#include "store/CsvCell.h"
#include "support/TestTable.h"

namespace
{
// "Fins (2): 3 7+|Renvois ... (1): 1", where + stands behind what was accepted.
QString shortly(const QList<FindingGroup> &groups)
{
    QStringList texts;
    for (const FindingGroup &group : groups) {
        QString text = groupTitle(group) + u':';
        for (const ListedFinding &listed : group.findings)
            text += QString(" %1%2").arg(listed.finding.number).arg(listed.accepted ? "+" : "");
        texts.append(text);
    }
    return texts.join(u'|');
}

CheckedBook checked(const TextBook &book)
{
    return CheckBook(book.variables, book.texts);
}
} // namespace

class tst_bookList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptedFindingsArePutAsideAndTakenBack()
    {
        TextBook book;
        book.write(1, "Il faut partir : allez au 2 ou au 3, vite.");
        book.write(2, "On revient en courant : allez au 4.");
        book.write(4, "On tourne en rond ici : allez au 2.");
        book.write(3, "Tout est fini, vous dormez enfin.");
        const QList<Finding> all = book.findings();
        QCOMPARE(shortly(all), QStringList({"fin 3", "piege 2 2,4"}));
        AdventureExtras &extras = book.variables.extras;
        extras = withAccepted(extras, all);
        extras = withAccepted(extras, all); // each once
        QCOMPARE(extras.accepted.size(), 2);
        for (AcceptedFinding &entry : extras.accepted)
            entry.number = entry.number == 2 ? 4 : entry.number; // a trap counts by any member
        QCOMPARE(shortly(checked(book).accepted), shortly(all));
        extras = withoutAccepted(extras, checked(book).accepted);
        QVERIFY(extras.accepted.isEmpty());
    }

    void listShowsWhatTheFilterLetsThrough()
    {
        TextBook book;
        book.write(1, "Il faut partir très loin : allez au 2, au 3 ou au 9.");
        book.write(2, "TODO : finir ceci un jour ou l'autre.");
        book.write(3, "Tout est fini, vous dormez enfin à l'École.");
        book.variables.extras = withAccepted({}, {checked(book).findings.at(1)}); // the ending 2
        const CheckedBook findings = checked(book);
        for (const auto &[name, words, severities, accepted, expected] :
             Table<QString, std::array<bool, 3>, bool, QString>{
                 {"all",
                  "",
                  {true, true, true},
                  true,
                  "Renvois à un paragraphe vide (1): 1|Fins (2): 2+ 3|Reste à faire (1): 2"},
                 {"faults", "", {true, false, false}, true, "Renvois à un paragraphe vide (1): 1"},
                 {"no accepted",
                  "",
                  {false, true, true},
                  false,
                  "Fins (1): 3|Reste à faire (1): 2"},
                 {"accents", "a l'ecole", {true, true, true}, true, "Fins (1): 3"},
                 {"sentence",
                  "PAS ÉCRIT",
                  {true, true, true},
                  true,
                  "Renvois à un paragraphe vide (1): 1"},
                 {"nothing", "dragon", {true, true, true}, true, ""}})
            QCOMPARE(shortly(findingGroups(findings, {words, severities, accepted})), expected);
        const QList<FindingGroup> groups = findingGroups(findings, {});
        QCOMPARE(QString::fromUtf8(findingText(groups).split('\n').value(1)).trimmed(),
                 "1  Un renvoi mène au 9, qui n'est pas écrit. "
                 "[Il faut partir très loin : allez au 2, au 3 ou au 9.]");
        QVERIFY(findingCsv(groups).contains(
            "\r\n\"remarque\";\"fin\";\"3\";\"Rien ne mène plus loin\u00a0: est-ce une "
            "fin\u00a0?\";"
            "\"Tout est fini, vous dormez enfin à l'École.\";\"\"\r\n"));
    }

    void cellsAreTextsForASpreadsheet()
    {
        for (const auto &[name, text, cell] :
             Table<QString, QString>{{"quotation marks", "dit \"non\";", "\"dit \"\"non\"\";\""},
                                     {"formula", "=1+1", "\"'=1+1\""},
                                     {"minus", "-1", "\"'-1\""},
                                     {"dash", "\u2014 Oui", "\"\u2014 Oui\""},
                                     {"empty", "", "\"\""}})
            QCOMPARE(csvCell(text), cell);
    }

    void referencesAreMendedWhereTheyStand()
    {
        TextBook book;
        const QString text = "Allez au12, ou bien voir 12.\r\nAllez au  12 !";
        book.write(1, text);
        book.write(12, "Allez au 1 et à la page 1.");
        QList<Finding> findings = book.findings();
        findings.removeIf([](const Finding &finding) { return finding.number != 1; });
        const auto mended = [&](const QString &of) {
            QString result = of;
            const QList<Replacement> parts = replacementsOf(findings, 0, of);
            for (auto part = parts.rbegin(); part != parts.rend(); ++part)
                result.replace(part->position, part->length, part->text);
            return result;
        };
        QCOMPARE(mended(text), "Allez au 12, ou bien voir au 12.\r\nAllez au 12 !");
        QCOMPARE(mended("Plus rien de tout cela."), "Plus rien de tout cela.");
    }

    void startsAreReadAndJudged()
    {
        TextBook book;
        book.write(5, "Allez au 5.");
        for (const auto &[name, typed, numbers, refused, note] :
             Table<QString, QList<int>, QString, QString>{
                 {"none", " ", {}, "", ""},
                 {"written", "5", {5}, "", ""},
                 {"some empty", "5, 7;5 8", {5, 7, 8}, "", "Sans texte : 7, 8."},
                 {"all empty", "7", {7}, "", "Sans texte : 7. Le contrôle part donc du 5."},
                 {"word", "5 loup", {5}, "loup", ""},
                 {"beyond", "2001 0", {}, "2001", ""}}) {
            const StartNumbers starts = startNumbers(typed);
            QCOMPARE(starts.numbers, numbers);
            QCOMPARE(starts.refused, refused);
            book.variables.extras.starts = numbers;
            QCOMPARE(startsNote(book.variables), note);
        }
    }
};

QTEST_GUILESS_MAIN(tst_bookList)
#include "tst_bookList.moc"

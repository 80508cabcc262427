#include "platform/OpenedFile.h"
#include "store/AdventureFile.h"
#include "support/AdventureBuilder.h"
#include "support/TestTable.h"
#include "views/ParagraphStatuses.h"
#include "views/PreviewText.h"

class tst_paragraphStatuses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachNumberHasItsStatus_data()
    {
        // The statuses from 0 on, as digits.
        addTable<QStringList, QString, int>(
            {"index", "statuses", "maxShown"},
            {{"nothing written", {}, "00000", 1},
             {"alone", {"1:"}, "05000", 1},
             {"refers to itself", {"2:0002/"}, "00100", 2},
             {"written before and behind", {"1:0002/", "2:0001/", "3:"}, "01150", 3},
             {"dead end", {"1:0003/", "3:"}, "05020", 3},
             {"reserved beyond the written", {"1:0004/0001/"}, "01003", 4},
             {"paragraph 0", {"0:0001/", "1:0000/"}, "11000", 1},
             {"what cannot be used", {"1:12x4/0003/9999/00"}, "05030", 3},
             {"nothing that can be used", {"1:zzzz/", "2:0001/"}, "01500", 2}});
    }
    void eachNumberHasItsStatus()
    {
        QFETCH(const QStringList, index);
        Variables variables;
        for (const QString &line : index) {
            const int n = line.section(':', 0, 0).toInt();
            variables.Written.at(n) = 1;
            variables.refIndex.at(n) = line.section(':', 1);
        }
        RecomputeWrittenRange(variables);
        variables.refIndex.at(4) = "0001/"; // left of a text that has gone
        const ParagraphStatuses found = classifyParagraphs(variables);
        QString statuses;
        for (int n = 0; n < 5; ++n)
            statuses += QString::number(found.status.at(n));
        QTEST(statuses, "statuses");
        QTEST(found.maxShown, "maxShown");
    }

    void previewsSayWhatIsEmptyOrUnreadable()
    {
        TestAdventure adventure;
        Variables &variables = adventure.variables;
        const AdventureBuilder builder =
            AdventureBuilder({"1: Un\r\ndeux", "2:", "3: x"}).rawText(3, "no RTF");
        takeOver(variables, readAdventure(std::make_shared<OpenedFile>(
                                adventure.file("a.usm", builder.bytes()))));
        QCOMPARE(previewText(variables, 1), "Un\r\ndeux");
        QCOMPARE(previewText(variables, 2), "(Vide)");
        QCOMPARE(previewText(variables, 3), "Le texte de ce paragraphe est illisible.");
        QCOMPARE(previewText(variables, 2000), "(Vide)");
    }
};

QTEST_MAIN(tst_paragraphStatuses)
#include "tst_paragraphStatuses.moc"

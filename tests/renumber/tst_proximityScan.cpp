#include "app/WindowFixture.h"
#include "renumber/ProximityLines.h"
#include "support/TestTable.h"

namespace
{
const QString NoSense = "Proximity Scan avec 0 ou moins ne fait aucun sens.";

void writeIndex(Variables &variables, int n, const QString &entry)
{
    variables.Written.at(n) = 1;
    variables.refIndex.at(n) = entry;
}
} // namespace

class tst_proximityScan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsWhatIsTooClose_data()
    {
        addTable<QString, double, QString>(
            {"entry", "proximity", "lines"}, // of paragraph 25
            {{"pairs are not as close", "0026/0024/", 1, "25 mène au 26|25 mène au 24"},
             {"pairs", "0026/0024/", 2, "25 mène au 26|25 mène au 24|25 mène au 24 et au 26"},
             {"only a pair", "0040/0041/", 1, "25 mène au 41 et au 40"},
             {"earlier ones in their order", "0043/0041/0042/", 1,
              "25 mène au 42 et au 43|25 mène au 42 et au 41"},
             {"its own number", "0025/", 1, "25 mène au 25"},
             {"twice the same", "0100/0100/0100/", 0.5,
              "25 mène au 100 et au 100|25 mène au 100 et au 100|25 mène au 100 et au 100"},
             {"fraction below", "0027/", 1.9, "Aucun Problème !"},
             {"fraction above", "0027/", 2.1, "25 mène au 27"},
             {"everything", "0001/2000/", 1e300,
              "25 mène au 1|25 mène au 2000|25 mène au 2000 et au 1"},
             {"unusable entries", "9999/00x6/0026/00", 1, "25 mène au 26"},
             {"none", "", 5, "Aucun Problème !"}});
    }
    void listsWhatIsTooClose()
    {
        QFETCH(const QString, entry);
        QFETCH(const double, proximity);
        Variables variables;
        PromptRecorder prompts;
        writeIndex(variables, 25, entry);
        variables.refIndex.at(24) = "0025/"; // left of a text that has gone
        RecomputeWrittenRange(variables);
        const auto found = ProximityScan(variables, proximity, prompts);
        QTEST(found.value().lines.join('|'), "lines");
        QCOMPARE(found->cut, QString());
    }

    void aListWithoutEndIsCut()
    {
        Variables variables;
        PromptRecorder prompts;
        for (int n = 1; n <= 500; ++n)
            writeIndex(variables, n, QString("0777/").repeated(2000));
        RecomputeWrittenRange(variables);
        const auto found = ProximityScan(variables, 1, prompts);
        QCOMPARE(found.value().lines.size(), MostProximityLines);
        QCOMPARE(found->cut, "La liste s'arrête après 100000 lignes.");
    }

    void theWindowListsAndLeads()
    {
        WindowFixture fixture(
            AdventureBuilder({"1: Un.", "3: Va au 4 ou au 9.", "4: Fin.", "9: Va au 8."})
                .list(3, "0004/0009/")
                .list(9, "0008/"));
        fixture.trigger("menuComProxScan");
        auto &scan = fixture.control<QDialog>("proximityScan");
        auto &list = child<QListWidget>(scan, "theList");
        auto &detect = child<QAbstractButton>(scan, "btnCompute");
        QVERIFY(QTest::qWaitForWindowActive(&scan));
        QVERIFY(!scan.isModal());
        const auto lines = [&] {
            QStringList texts;
            for (int row = 0; row < list.count(); ++row)
                texts.append(list.item(row)->text());
            return texts.join('|');
        };
        const auto enter = [&](const QString &number) {
            typeOver(child<QLineEdit>(scan, "txtProx"), number);
            QTest::keyClick(scan.focusWidget(), Qt::Key_Return);
            return lines() + '|' + detect.text();
        };
        fixture.prompts.expect(NoSense, "Niouf");
        QCOMPARE(enter("0"), "|Détecter");
        QCOMPARE(enter("1"), "3 mène au 4|9 mène au 8|Redétecter");
        ::click(scan, "btnRemove");
        QCOMPARE(list.count(), 2);
        list.setFocus();
        list.setCurrentRow(1);
        fixture.type("x"); // is saved before another paragraph comes
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(fixture.current(), 9);
        QCOMPARE(fixture.variables.Extracted.at(1), 1);
        list.setCurrentRow(0);
        ::click(scan, "btnRemove");
        QCOMPARE(lines(), "9 mène au 8");
        QCOMPARE(enter(".1"), "Aucun Problème !|Redétecter");
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {},
                           list.visualItemRect(list.item(0)).center());
        QCOMPARE(fixture.current(), 9);
        fixture.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(fixture.window.get()));
        fixture.trigger("menuComProxScan");
        QTRY_COMPARE(detect.text(), "Détecter");
        QCOMPARE(list.count(), 1);
        fixture.open(AdventureBuilder({"1: Un."}).bytes());
        QCOMPARE(list.count(), 0);
    }
};

QTEST_MAIN(tst_proximityScan)
#include "tst_proximityScan.moc"

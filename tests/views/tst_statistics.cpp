#include "app/WindowFixture.h"
#include "platform/Twips.h"
#include "support/TestTable.h"
#include "views/grid/GridGeometry.h"
#include "views/grid/GridSurface.h"
#include "views/statistics/BarChart.h"
#include "views/statistics/FigureTable.h"
#include "views/statistics/statisticsWindow.h"

#include <QClipboard>
#include <QComboBox>
#include <QTextBrowser>
#include <QTreeView>
#include <cmath>

namespace
{
double luminance(const QColor &colour)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

// 1 leads to 2 and 3, and 2 to 3; 4 is met by nobody.
AdventureBuilder smallBook()
{
    return AdventureBuilder(
               {"1: Un, deux, trois. Va au 2 ou au 3.", "2: Bon. Va au 3.", "3: Fin.", "4: Rien."})
        .list(1, "0002/0003/")
        .list(2, "0003/");
}

class StatisticsFixture : public WindowFixture
{
public:
    explicit StatisticsFixture(const AdventureBuilder &builder) : WindowFixture(builder)
    {
        trigger("menuComStatistics");
        QVERIFY(QTest::qWaitForWindowActive(&window()));
        QCoreApplication::processEvents();
    }
    statisticsWindow &window() const { return control<statisticsWindow>("statisticsWindow"); }
    // Also on a page that is not shown.
    void press(const char *button) const { control<QAbstractButton>(button).click(); }
    QString text(const char *browser) const { return control<QTextBrowser>(browser).toPlainText(); }
    // Rows as "1 10 ...", without the first words.
    QStringList rows(const char *table) const
    {
        const QAbstractItemModel &model = *view(table).model();
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column + 1 < model.columnCount(); ++column)
                cells.append(model.index(row, column).data().toString());
            rows.append(cells.join(u' '));
        }
        return rows;
    }
    QTreeView &view(const char *table) const
    {
        return *control<FigureTable>(table).findChild<QTreeView *>();
    }
    void sort(const char *table, const QString &entry) const
    {
        control<FigureTable>(table).findChild<QComboBox *>()->setCurrentText(entry);
    }
};
} // namespace

class tst_statistics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesFallIntoBars_data()
    {
        using Counts = QMap<int, int>;
        using Bars = QList<HistogramBar>;
        addTable<Counts, Bars>(
            {"counts", "bars"},
            {{"none", {}, {}},
             {"one", {{7, 3}}, {{7, 7, 3}}},
             {"each its own", {{0, 2}, {3, 1}}, {{0, 0, 2}, {1, 1, 0}, {2, 2, 0}, {3, 3, 1}}},
             {"by fives",
              {{12, 1}, {14, 1}, {15, 2}, {29, 1}},
              {{10, 14, 2}, {15, 19, 2}, {20, 24, 0}, {25, 29, 1}}},
             {"far apart", {{1, 1}, {2000, 1}}, {{0, 999, 1}, {1000, 1999, 0}, {2000, 2999, 1}}}});
    }
    void valuesFallIntoBars()
    {
        QFETCH(QList<HistogramBar>, bars);
        using Counts = QMap<int, int>;
        QFETCH(Counts, counts);
        QVERIFY(histogram(counts, 4) == bars);
    }

    void shadesCanBeReadAndToldApart()
    {
        double before = luminance(shadeColour(0));
        for (int share = 1; share <= 1000; ++share) {
            const double ground = luminance(shadeColour(share / 1000.0));
            const double ink = luminance(inkUpon(share / 1000.0));
            QVERIFY((std::max(ink, ground) + 0.05) / (std::min(ink, ground) + 0.05) >= 4.5);
            QVERIFY(ground <= before);
            before = ground;
        }
        QVERIFY(luminance(shadeColour(0.001)) < luminance(shadeColour(0)));
    }

    void theBookIsCounted()
    {
        StatisticsFixture fixture(smallBook());
        QVERIFY(fixture.text("book").startsWith(
            "Paragraphes : 4, dont 3 qu'une lecture peut atteindre\nMots : 15"));
        QCOMPARE(fixture.text("readings").section(u'\n', -1), "Jamais rencontrés (1) : 4");
        QCOMPARE(fixture.rows("endings"), QStringList({"3 100,0 % 2 1", "4 0,0 % 0 0"}));
        fixture.sort("paragraphs", "Mots, décroissant");
        QCOMPARE(fixture.rows("paragraphs").first(), "1 9 33 2 100,0 %");
        QCOMPARE(fixture.rows("paragraphs").last(), "4 1 5 0 0,0 %"); // after 3, which has one too
        fixture.press("btnCopy");
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY(copied.contains("\n3\t100,0 %\t2\t1, 3\t1\tFin.\n"));
        QVERIFY(copied.contains("\n4\t1\t5\t0\t0\tRien.\n"));
    }

    void whatIsWrittenIsCountedAnew()
    {
        StatisticsFixture fixture(smallBook());
        fixture.type("Va au 4.");
        fixture.trigger("menuNavNext");
        QCoreApplication::processEvents();
        QCOMPARE(fixture.rows("paragraphs").first().section(u' ', 3, 3), "3");
        QVERIFY(!fixture.text("readings").contains("Jamais"));
        fixture.open(AdventureBuilder({"7: Seul."}).bytes());
        QCoreApplication::processEvents();
        QCOMPARE(fixture.rows("paragraphs"), QStringList{"7 1 5 0 100,0 %"});
    }

    void numbersGoThere()
    {
        StatisticsFixture fixture(smallBook());
        Q_EMIT fixture.control<QTextBrowser>("book").anchorClicked(QUrl("2"));
        QCOMPARE(fixture.current(), 2);
        QTreeView &paragraphs = fixture.view("paragraphs");
        Q_EMIT paragraphs.activated(paragraphs.model()->index(2, 0));
        QCOMPARE(fixture.current(), 3);
        QList<QList<int>> ways;
        connect(&fixture.window(), &statisticsWindow::wayWanted, this,
                [&ways](const QList<int> &way) { ways.append(way); });
        QTreeView &endings = fixture.view("endings");
        endings.setCurrentIndex(endings.model()->index(0, 0));
        QCOMPARE(fixture.text("ending"),
                 "Chemin le plus court vers le 3 : 1, 3\nPassages obligés : 1");
        Q_EMIT endings.activated(endings.model()->index(0, 0));
        Q_EMIT endings.activated(endings.model()->index(1, 0));
        QCOMPARE(ways, QList<QList<int>>({{1, 3}})); // none leads to the other
        QCOMPARE(fixture.prompts.beeps(), 1);
    }

    void aSeedRepeatsReadings()
    {
        StatisticsFixture fixture(smallBook());
        auto &seed = fixture.control<QLineEdit>("txtSeed");
        const QString first = fixture.rows("paragraphs").at(1);
        fixture.press("btnRead");
        QVERIFY(seed.text() != "1");
        seed.setText("1");
        fixture.press("btnRead");
        QCOMPARE(seed.text(), "1");
        QCOMPARE(fixture.rows("paragraphs").at(1), first);
        seed.setText("2.5");
        fixture.press("btnRead");
        QCOMPARE(fixture.prompts.beeps(), 1);
        QCOMPARE(fixture.rows("paragraphs").at(1), first);
    }

    void theGridShowsWhatIsMet()
    {
        StatisticsFixture fixture(smallBook());
        const auto colour = [&fixture](int n) {
            auto &surface = fixture.control<GridSurface>("surface");
            const QPoint place = (cellOrigin(n, 0) + QPoint(210, 240)) / Twips::PerPixel;
            return surface.grab().toImage().pixelColor(place);
        };
        fixture.press("chkShades");
        QVERIFY(QTest::qWaitForWindowActive(&fixture.control<QDialog>("paraGrid")));
        QCOMPARE(colour(1), shadeColour(1));
        QCOMPARE(colour(4), shadeColour(0));
        QVERIFY(colour(2) != colour(4));
        QCOMPARE(fixture.label("lblLegend"), "Lectures au hasard");
        fixture.window().hide();
        QCOMPARE(colour(1), statusColour(Orphan));
        QCOMPARE(colour(3), statusColour(DeadEnd));
        QCOMPARE(fixture.label("lblLegend"), "Légende");
    }

    void chartsAreGoneThroughWithKeys()
    {
        BarChart chart;
        chart.setTitles("choix", "paragraphes");
        QTest::keyClick(&chart, Qt::Key_Right);
        QCOMPARE(chart.accessibleDescription(), "");
        chart.setBars({{0, 4, 7}, {5, 9, 0}});
        QTest::keyClick(&chart, Qt::Key_End);
        QCOMPARE(chart.accessibleDescription(), "5 à 9 choix : 0 paragraphes");
        QTest::keyClick(&chart, Qt::Key_Left);
        QTest::keyClick(&chart, Qt::Key_Left);
        QCOMPARE(chart.accessibleDescription(), "0 à 4 choix : 7 paragraphes");
        QVERIFY(!chart.grab().isNull());
    }
};

QTEST_MAIN(tst_statistics)
#include "tst_statistics.moc"

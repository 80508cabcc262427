#include "app/Settings.h"
#include "support/AdventureBuilder.h"
#include "support/TestTable.h"

#include <QTextStream>

class tst_settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsReadBack()
    {
        TestAdventure folder;
        Variables v;
        v.optMDash = v.optLigatureOE = true;
        v.optEllipsis = v.showTabPanel = -1;
        v.defaultFontName = "Été, ou \"presque\"";
        writeSettings(folder.path("s"), v, {16200, 10800, -30, 0});
        const QByteArray written = folder.content("s");
        QVERIFY(written.startsWith("#FALSE#,#TRUE#,#FALSE#,-1\r\n#FALSE#,#FALSE#,#TRUE#,0\r\n"
                                   "#FALSE#,-1\r\n16200,10800,-30,0\r\n\""));
        QVERIFY(written.endsWith("\"\r\n12\r\n"));
        Variables read;
        WindowGeometry geometry;
        readSettings(folder.path("s"), read, geometry);
        QCOMPARE(read.defaultFontName, v.defaultFontName);
        writeSettings(folder.path("again"), read, geometry);
        QCOMPARE(folder.content("again"), written);
    }

    void whatCannotBeReadKeepsItsDefaultToTheEndOfItsLine_data()
    {
        addTable<QByteArray, QString>(
            {"bytes", "outcome"},
            {{"short", "#TRUE#", "100 0 Times New Roman 12 100x50+5+6"},
             {"damaged field", "#TRUE#,oops,#TRUE#,-1\r\n\r\n#TRUE#,-1\r\n200,300,,9\r\n",
              "100 1 Times New Roman 12 200x300+5+6"},
             {"nonsense numbers", "#TRUE#\n\n\n-5,1e9,3,4\n\"\"\n0\n",
              "100 0 Times New Roman 12 100x50+5+6"},
             {"endless", QByteArray(100000, 'x'), "000 0 Times New Roman 12 100x50+5+6"},
             {"font and size", "\n\n\n\n\"Arial\"\n9\n", "000 0 Arial 9 100x50+5+6"}});
    }
    void whatCannotBeReadKeepsItsDefaultToTheEndOfItsLine()
    {
        QFETCH(const QByteArray, bytes);
        TestAdventure folder;
        Variables v;
        WindowGeometry g{100, 50, 5, 6};
        readSettings(folder.file("s", bytes), v, g);
        QString outcome;
        QTextStream(&outcome) << v.optNDash << v.optMDash << v.optBullet << ' ' << v.optCtrlECentres
                              << ' ' << v.defaultFontName << ' ' << v.defaultFontSize << ' '
                              << g.width << 'x' << g.height << '+' << g.left << '+' << g.top;
        QTEST(outcome, "outcome");
    }
};

QTEST_APPLESS_MAIN(tst_settings)
#include "tst_settings.moc"

#include "app/Settings.h"
#include "support/AdventureBuilder.h"

#include <QTest>
#include <QTextStream>

class tst_settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyOptionOffIsSixPlainLines()
    {
        TestAdventure folder;
        writeSettings(folder.path(QStringLiteral("s")), Variables(), {16200, 10800, -30, 0});
        QCOMPARE(
            folder.content(QStringLiteral("s")),
            QByteArray("#FALSE#,#FALSE#,#FALSE#,0\r\n#FALSE#,#FALSE#,#FALSE#,0\r\n#FALSE#,0\r\n"
                       "16200,10800,-30,0\r\n\"Times New Roman\"\r\n12\r\n"));
    }

    void whatIsWrittenIsReadBack()
    {
        TestAdventure folder;
        Variables v;
        v.optMDash = v.optLigatureOE = v.optCtrlECentres = true;
        v.optEllipsis = v.showTabPanel = -1;
        v.defaultFontName = QStringLiteral("Été, ou \"presque\"");
        v.defaultFontSize = 14;
        writeSettings(folder.path(QStringLiteral("s")), v, {9000, 8000, 10, 20});
        Variables read;
        WindowGeometry geometry;
        readSettings(folder.path(QStringLiteral("s")), read, geometry);
        QVERIFY(read.optMDash && read.optLigatureOE && read.optCtrlECentres && !read.optNDash);
        QCOMPARE(read.optEllipsis, qint16{-1});
        QCOMPARE(read.showTabPanel, qint16{-1});
        QCOMPARE(read.defaultFontName, v.defaultFontName);
        QCOMPARE(read.defaultFontSize, qint16{14});
        QCOMPARE(geometry.height, 8000);
        QCOMPARE(geometry.top, 20);
    }

    void whatCannotBeReadKeepsItsDefaultToTheEndOfItsLine_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("outcome");
        const auto row = [](const char *name, const QByteArray &bytes, const char *outcome) {
            QTest::newRow(name) << bytes << outcome;
        };
        row("short", "#TRUE#", "100 0 Times New Roman 12 100x50+5+6");
        row("damaged field", "#TRUE#,oops,#TRUE#,-1\r\n\r\n#TRUE#,-1\r\n200,300,,9\r\n",
            "100 1 Times New Roman 12 200x300+5+6");
        row("nonsense numbers", "#TRUE#\n\n\n-5,1e9,3,4\n\"\"\n0\n",
            "100 0 Times New Roman 12 100x50+5+6");
        row("endless", QByteArray(100000, 'x'), "000 0 Times New Roman 12 100x50+5+6");
        row("font and size", "\n\n\n\n\"Arial\"\n9\n", "000 0 Arial 9 100x50+5+6");
    }
    void whatCannotBeReadKeepsItsDefaultToTheEndOfItsLine()
    {
        QFETCH(QByteArray, bytes);
        TestAdventure folder;
        Variables v;
        WindowGeometry g{100, 50, 5, 6};
        readSettings(folder.file(QStringLiteral("s"), bytes), v, g);
        QString outcome;
        QTextStream(&outcome) << v.optNDash << v.optMDash << v.optBullet << ' ' << v.optCtrlECentres
                              << ' ' << v.defaultFontName << ' ' << v.defaultFontSize << ' '
                              << g.width << 'x' << g.height << '+' << g.left << '+' << g.top;
        QTEST(outcome, "outcome");
    }
};

QTEST_APPLESS_MAIN(tst_settings)
#include "tst_settings.moc"

#include "WindowFixture.h"

#include <QKeySequence>
#include <QMenu>

class tst_keys : public QObject
{
    Q_OBJECT

    // The dialog that a key opens, if any: in the editing box, or elsewhere.
    static QString opened(const WindowFixture &fixture, int key)
    {
        return opened(fixture, key, fixture.box());
    }
    static QString opened(const WindowFixture &fixture, int key, QWidget &focus)
    {
        return fixture.inDialog(
            [&] {
                const auto code = static_cast<Qt::Key>(key);
                QTest::keyClick(&focus, code, Qt::ControlModifier);
            },
            [](QDialog &) {});
    }

private Q_SLOTS:
    void ctrlECentresOrSwaps()
    {
        const WindowFixture fixture(AdventureBuilder({"1: Un deux."}));
        const auto &swap = fixture.control<QAction>("menuComSwap");
        const auto centred = [&] {
            return fixture.box().selAlignment() == RichTextBox::Alignment::Centre;
        };
        QCOMPARE(opened(fixture, Qt::Key_3), "");
        QCOMPARE(opened(fixture, Qt::Key_E), "exchangeDlog");
        QVERIFY(!centred());
        fixture.variables.optCtrlECentres = true;
        QCOMPARE(opened(fixture, Qt::Key_E), "");
        QVERIFY(centred());
        QCOMPARE(opened(fixture, Qt::Key_3), "exchangeDlog");
        QCOMPARE(opened(fixture, Qt::Key_QuoteDbl), "exchangeDlog");
        Q_EMIT fixture.control<QMenu>("menuCommands").aboutToShow();
        QCOMPARE(swap.shortcut(), QKeySequence("Ctrl+3"));
        QCOMPARE(opened(fixture, Qt::Key_E), "");
        QCOMPARE(opened(fixture, Qt::Key_3), "exchangeDlog");
        auto &number = fixture.field("txtPargNum");
        QVERIFY(fixture.editorHasFocus());
        QCOMPARE(opened(fixture, Qt::Key_E, number), "");
        QCOMPARE(opened(fixture, Qt::Key_3, number), "exchangeDlog");
    }

    void withoutAnAdventureTheKeysDoNothing()
    {
        const WindowFixture fixture;
        const QString welcome = fixture.box().text();
        for (const bool centres : {false, true}) {
            fixture.variables.optCtrlECentres = centres;
            for (const char key : QByteArray("MBIUE3LKHT"))
                QCOMPARE(opened(fixture, key), "");
        }
        QCOMPARE(fixture.box().text(), welcome);
    }

    void noTwoCommandsShareAKey()
    {
        for (const bool centres : {false, true}) {
            WindowFixture fixture;
            fixture.variables.optCtrlECentres = centres;
            Q_EMIT fixture.control<QMenu>("menuCommands").aboutToShow();
            QStringList keys{"Ctrl+B", "Ctrl+I", "Ctrl+U"};
            if (centres)
                keys.append("Ctrl+E");
            for (const QAction *item : fixture.window->findChildren<QAction *>())
                keys.append(QKeySequence::listToString(item->shortcuts()).split("; "));
            keys.removeAll(QString());
            QVERIFY(keys.size() > 20);
            QCOMPARE(keys.removeDuplicates(), 0);
            const std::pair<const char *, const char *> fixed[] = {
                {"menuComMasterMix", "Ctrl+M"}, {"menuComBlockMove", "Ctrl+L"},
                {"menuComPackHoles", "Ctrl+H"}, {"menuComCount", "Ctrl+K"},
                {"menuComTarget", "Ctrl+T"},    {"menuComOptions", "Ctrl+J"},
                {"menuComProxScan", "Ctrl+P"},  {"menuComGrid", "Ctrl+D"},
                {"menuComGraphs", "Ctrl+G"}};
            for (const auto &[item, key] : fixed)
                QCOMPARE(fixture.control<QAction>(item).shortcut().toString(), key);
        }
    }
};

QTEST_MAIN(tst_keys)
#include "tst_keys.moc"

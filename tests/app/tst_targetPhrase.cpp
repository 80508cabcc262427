#include "WindowFixture.h"

class tst_targetPhrase : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void phraseIsChangedAndTheIndexWithIt_data()
    {
        QTest::addColumn<QString>("typed"); // and confirmed; else cancelled
        QTest::addColumn<bool>("confirmed");
        QTest::addColumn<QString>("phrase");
        QTest::addColumn<QString>("index"); // of paragraph 1
        const QString before = " au ";
        QTest::newRow("another") << "_to_" << true << " to "
                                 << "0007/";
        QTest::newRow("real spaces") << " to " << true << " to "
                                     << "0007/";
        QTest::newRow("same") << "_au_" << true << before << "0012/";
        QTest::newRow("other case") << "_AU_" << true << " AU "
                                    << "0012/";
        QTest::newRow("empty") << "" << true << ""
                               << "";
        QTest::newRow("cancelled") << "_to_" << false << before << "0012/";
        QTest::newRow("not to be kept") << "_→_" << true << before << "0012/";
    }
    void phraseIsChangedAndTheIndexWithIt()
    {
        QFETCH(QString, typed);
        QFETCH(bool, confirmed);
        QFETCH(QString, phrase);
        QFETCH(QString, index);
        WindowFixture fixture(AdventureBuilder({"1: Allez au 12.", "7: Go to 7."}));
        fixture.type(" Go to 7.");
        if (typed.contains(u'→'))
            fixture.prompts.expect("Cette phrase contient un caractère que l'aventure ne peut pas "
                                   "garder.",
                                   "Zut");
        const QString name =
            fixture.inDialog([&] { fixture.trigger("menuComTarget"); },
                             [&](QDialog &dialog) {
                                 auto &field = child<QLineEdit>(dialog, "txtTarget");
                                 QCOMPARE(field.selectedText(), "_au_");
                                 field.setText(typed);
                                 click(dialog, confirmed ? "OKButton" : "CancelButton");
                             });
        QCOMPARE(name, "targetDlog");
        QCOMPARE(fixture.variables.TargetPhrase, phrase);
        QCOMPARE(fixture.variables.refIndex.at(1), index);
        fixture.window->LoadParg(7);
        QCOMPARE(fixture.entries("incomingList"), index == "0007/" ? "     1|     7" : "");
        QVERIFY(fixture.editorHasFocus());
    }
};

QTEST_MAIN(tst_targetPhrase)
#include "tst_targetPhrase.moc"

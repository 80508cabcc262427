#include "editor/FirstWords.h"
#include "editor/RtfBox.h"
#include "editor/StatusLine.h"
#include "editor/helpWindow.h"
#include "support/AdventureBuilder.h"

#include <QPushButton>
#include <QTest>

class tst_helpWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheFileOfTheLanguage_data();
    void showsTheFileOfTheLanguage();
    void closingEmptiesIt();
    void describesParagraphs_data();
    void describesParagraphs();
    void firstWordsEndAtAWord();
    void firstWordsOfADamagedParagraphAreNone();
};

void tst_helpWindow::showsTheFileOfTheLanguage_data()
{
    QTest::addColumn<helpWindow::Tag>("tag");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("text");
    using Tag = helpWindow::Tag;
    QTest::newRow("French") << Tag::French << "Aide Française.rtf"
                            << "De l'aide";
    QTest::newRow("English") << Tag::English << "English Help.rtf"
                             << "De l'aide";
    QTest::newRow("French missing") << Tag::French << "English Help.rtf"
                                    << "Aide Française Non Trouvée";
    QTest::newRow("English missing") << Tag::English << "Aide Française.rtf"
                                     << "English Help File Not Found";
}

void tst_helpWindow::showsTheFileOfTheLanguage()
{
    QFETCH(const helpWindow::Tag, tag);
    QFETCH(const QString, file);
    QFETCH(const QString, text);
    const TestAdventure adventure;
    adventure.file(QStringLiteral("Dossier Usmira/") + file, rtfOf(QStringLiteral("De l'aide")));
    helpWindow help(adventure.variables);
    help.showHelp(tag);
    QVERIFY(help.isVisible());
    QVERIFY(!help.isModal());
    QCOMPARE(help.windowTitle(), QStringLiteral("Help / Aide"));
    const auto *box = help.findChild<RtfBox *>();
    QVERIFY(box->isReadOnly());
    QCOMPARE(box->text(), text);
}

void tst_helpWindow::closingEmptiesIt()
{
    const TestAdventure adventure;
    helpWindow help(adventure.variables);
    help.showHelp(helpWindow::Tag::French);
    QTest::mouseClick(help.findChild<QPushButton *>(QStringLiteral("btnClose")), Qt::LeftButton);
    QVERIFY(!help.isVisible());
    QCOMPARE(help.findChild<RtfBox *>()->text(), QString());
}

void tst_helpWindow::describesParagraphs_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("description");
    QTest::newRow("empty") << ""
                           << "paragraphe 7 · 0 mot · 0 renvoi";
    QTest::newRow("one of each") << "- au 12 !"
                                 << "paragraphe 7 · 2 mots · 1 renvoi";
    QTest::newRow("signs are no words") << "Oui — non : « peut-être » ?"
                                        << "paragraphe 7 · 3 mots · 0 renvoi";
    QTest::newRow("breaks part words") << "un\r\ndeux\ttrois quatre"
                                       << "paragraphe 7 · 4 mots · 0 renvoi";
    QTest::newRow("no reference beyond 2000") << "Va au 2001 ou au 2000."
                                              << "paragraphe 7 · 6 mots · 1 renvoi";
}

void tst_helpWindow::describesParagraphs()
{
    QFETCH(const QString, text);
    QFETCH(const QString, description);
    QCOMPARE(describeParagraph(7, text, QStringLiteral(" au ")), description);
}

void tst_helpWindow::firstWordsEndAtAWord()
{
    TestAdventure adventure;
    const QString sentence = QStringLiteral("La porte est close. ");
    adventure.file(QStringLiteral("Dossier Usmira/0005.rtf"), rtfOf(sentence.repeated(20)));
    adventure.variables.Written.at(5) = 1;
    adventure.variables.Extracted.at(5) = 1;
    QCOMPARE(firstWords(adventure.variables, 5),
             sentence.repeated(4) + QStringLiteral("La porte …"));
    QCOMPARE(firstWords(adventure.variables, 6), QString());
}

void tst_helpWindow::firstWordsOfADamagedParagraphAreNone()
{
    TestAdventure adventure;
    adventure.file(QStringLiteral("Dossier Usmira/0005.rtf"), "no rich text");
    adventure.variables.Written.at(5) = 1;
    adventure.variables.Extracted.at(5) = 1;
    QCOMPARE(firstWords(adventure.variables, 5), QString());
}

QTEST_MAIN(tst_helpWindow)
#include "tst_helpWindow.moc"

#include "editor/FirstWords.h"
#include "editor/RtfBox.h"
#include "editor/StatusLine.h"
#include "editor/helpWindow.h"
#include "support/AdventureBuilder.h"
#include "support/TestTable.h"

#include <QPushButton>
#include <QScrollBar>

class tst_helpWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheFileOfTheLanguage_data()
    {
        using Tag = helpWindow::Tag;
        addTable<Tag, QString, QString>(
            {"tag", "file", "text"},
            {{"French", Tag::French, "Aide Française.rtf", "De l'aide"},
             {"English", Tag::English, "English Help.rtf", "De l'aide"},
             {"no French", Tag::French, "English Help.rtf", "Aide Française Non Trouvée"},
             {"no English", Tag::English, "Aide Française.rtf", "English Help File Not Found"}});
    }
    void showsTheFileOfTheLanguage()
    {
        QFETCH(const helpWindow::Tag, tag);
        QFETCH(const QString, file);
        QFETCH(const QString, text);
        const TestAdventure adventure;
        adventure.file("Dossier Usmira/" + file, rtfOf("De l'aide"));
        helpWindow help(adventure.variables);
        help.showHelp(tag);
        QVERIFY(help.isVisible() && !help.isModal());
        const auto *box = help.findChild<RtfBox *>();
        QVERIFY(box->isReadOnly());
        QCOMPARE(box->text(), text);
        QTest::mouseClick(help.findChild<QPushButton *>("btnClose"), Qt::LeftButton);
        QVERIFY(!help.isVisible());
        QCOMPARE(box->text(), QString());
    }

    void comesBackToItsPlace()
    {
        using Tag = helpWindow::Tag;
        const TestAdventure adventure;
        for (const char *name : {"Aide Française.rtf", "English Help.rtf"})
            adventure.file(QString("Dossier Usmira/") + name,
                           rtfOf(QString("Ligne\r\n").repeated(200)));
        helpWindow help(adventure.variables);
        help.showHelp(Tag::French);
        QScrollBar &bar = *help.findChild<RtfBox *>()->verticalScrollBar();
        bar.setValue(700);
        help.showHelp(Tag::English);
        QCOMPARE(bar.value(), 0);
        help.close();
        help.showHelp(Tag::French);
        QCOMPARE(bar.value(), 700);
    }

    void describesParagraphs()
    {
        const std::pair<QString, QString> cases[] = {
            {"", "0 mot · 0 renvoi"},
            {"- au 12 !", "2 mots · 1 renvoi"},
            {"Oui — non : « peut-être » ?", "3 mots · 0 renvoi"},
            {"un\r\ndeux\ttrois quatre", "4 mots · 0 renvoi"},
            {"Va au 2001 ou au 2000.", "6 mots · 1 renvoi"},
        };
        for (const auto &[text, counts] : cases)
            QCOMPARE(describeParagraph(7, text, " au "), "paragraphe 7 · " + counts);
    }

    void firstWordsEndAtAWord()
    {
        TestAdventure adventure;
        const QString sentence = "La porte est close. ";
        adventure.file("Dossier Usmira/0005.rtf", rtfOf(sentence.repeated(20)));
        adventure.file("Dossier Usmira/0007.rtf", "no rich text");
        for (const int n : {5, 7})
            adventure.variables.Written.at(n) = adventure.variables.Extracted.at(n) = 1;
        QCOMPARE(firstWords(adventure.variables, 5), sentence.repeated(4) + "La porte …");
        QCOMPARE(firstWords(adventure.variables, 6), QString()); // not written
        QCOMPARE(firstWords(adventure.variables, 7), "illisible");
    }
};

QTEST_MAIN(tst_helpWindow)
#include "tst_helpWindow.moc"

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
    void showsTheFileOfTheLanguage_data()
    {
        using Tag = helpWindow::Tag;
        QTest::addColumn<Tag>("tag");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, Tag tag, const char *file, const char *text) {
            QTest::newRow(name) << tag << file << text;
        };
        row("French", Tag::French, "Aide Française.rtf", "De l'aide");
        row("English", Tag::English, "English Help.rtf", "De l'aide");
        row("no French", Tag::French, "English Help.rtf", "Aide Française Non Trouvée");
        row("no English", Tag::English, "Aide Française.rtf", "English Help File Not Found");
    }
    void showsTheFileOfTheLanguage()
    {
        QFETCH(const helpWindow::Tag, tag);
        QFETCH(const QString, file);
        QFETCH(const QString, text);
        const TestAdventure adventure;
        adventure.file(QStringLiteral("Dossier Usmira/") + file,
                       rtfOf(QStringLiteral("De l'aide")));
        helpWindow help(adventure.variables);
        help.showHelp(tag);
        QVERIFY(help.isVisible());
        QVERIFY(!help.isModal());
        const auto *box = help.findChild<RtfBox *>();
        QVERIFY(box->isReadOnly());
        QCOMPARE(box->text(), text);
        QTest::mouseClick(help.findChild<QPushButton *>(QStringLiteral("btnClose")),
                          Qt::LeftButton);
        QVERIFY(!help.isVisible());
        QCOMPARE(box->text(), QString());
    }

    void describesParagraphs()
    {
        const std::pair<const char *, const char *> cases[] = {
            {"", "0 mot · 0 renvoi"},
            {"- au 12 !", "2 mots · 1 renvoi"},
            {"Oui — non : « peut-être » ?", "3 mots · 0 renvoi"},
            {"un\r\ndeux\ttrois quatre", "4 mots · 0 renvoi"},
            {"Va au 2001 ou au 2000.", "6 mots · 1 renvoi"},
        };
        for (const auto &[text, counts] : cases)
            QCOMPARE(describeParagraph(7, QString::fromUtf8(text), QStringLiteral(" au ")),
                     QStringLiteral("paragraphe 7 · ") + QString::fromUtf8(counts));
    }

    void firstWordsEndAtAWord()
    {
        TestAdventure adventure;
        const QString sentence = QStringLiteral("La porte est close. ");
        adventure.file(QStringLiteral("Dossier Usmira/0005.rtf"), rtfOf(sentence.repeated(20)));
        adventure.file(QStringLiteral("Dossier Usmira/0007.rtf"), "no rich text");
        for (const int n : {5, 7})
            adventure.variables.Written.at(n) = adventure.variables.Extracted.at(n) = 1;
        QCOMPARE(firstWords(adventure.variables, 5),
                 sentence.repeated(4) + QStringLiteral("La porte …"));
        QCOMPARE(firstWords(adventure.variables, 6), QString()); // not written
        QCOMPARE(firstWords(adventure.variables, 7), QString()); // damaged
    }
};

QTEST_MAIN(tst_helpWindow)
#include "tst_helpWindow.moc"

#include "TextBook.h"
#include "check/GrammarCheck.h"
#include "store/AdventureEvents.h"
#include "support/AdventureBuilder.h"
#include "support/TestTable.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

namespace
{
const QByteArray Chat = "\"nStart\": 4, \"nEnd\": 8, \"sType\": \"gn\", \"sMessage\": \"Accord.\"";

QByteArray line(int n, const QByteArray &error)
{
    return "{\"iParagraph\": " + QByteArray::number(n) + ", \"lGrammarErrors\": [{" + error +
           "}]},";
}

PlainTexts texts(const QString &one, const QString &three = {})
{
    PlainTexts book;
    book.texts.at(1) = one;
    book.texts.at(3) = three;
    return book;
}

QString shown(const QList<Finding> &findings)
{
    QStringList all;
    for (const Finding &finding : findings)
        all.append(QString("%1 %2 %3: %4")
                       .arg(finding.number)
                       .arg(finding.position)
                       .arg(finding.text, finding.sentence()));
    return all.join(u'|');
}
} // namespace

class tst_grammarCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersAreRead_data()
    {
        addTable<QByteArray, QString>(
            {"answer", "findings"},
            {{"plain", line(2, Chat), "1 10 chat: Accord."},
             {"suggestions", line(2, Chat + ", \"aSuggestions\": [\"chats\", 5, \"\", \"chas\"]"),
              "1 10 chat: Accord. Peut-être «\u00a0chats\u00a0», «\u00a0chas\u00a0»."},
             {"behind an emoji", line(3, Chat), "3 5 chat: Accord."},
             {"typography",
              line(2, "\"nStart\": 0, \"nEnd\": 2, \"sMessage\": \"x\", "
                      "\"sType\": \"nbsp\""),
              ""},
             {"beyond the line", line(2, "\"nStart\": 4, \"nEnd\": 99, \"sMessage\": \"x\""), ""},
             {"backwards", line(2, "\"nStart\": 4, \"nEnd\": 4, \"sMessage\": \"x\""), ""},
             {"negative", line(2, "\"nStart\": -4, \"nEnd\": 4, \"sMessage\": \"x\""), ""},
             {"no words", line(2, "\"nStart\": 4, \"nEnd\": 8"), ""},
             {"other types", line(2, "\"nStart\": \"a\", \"nEnd\": [], \"sMessage\": 7"), ""},
             {"no such line", line(9, Chat), ""},
             {"no line", "{\"lGrammarErrors\": 5}", ""},
             {"no object", "[[[[", ""},
             {"bytes", "\xff\xfe\x00", ""}});
    }
    void answersAreRead()
    {
        QFETCH(QByteArray, answer);
        const GrammarTexts book(texts("Ici.\r\nLes chat.", "😀le chat."), " au ");
        QCOMPARE(book.file(), "Ici.\nLes chat.\n😀le chat.\n");
        const auto read = book.answer(answer);
        QTEST(read ? shown(read->findings) : QString(), "findings");
    }

    void findingsFollowTheText()
    {
        const GrammarTexts book(texts("Les chat. Ici les chat."), " au ");
        const auto found = book.answer(line(1, Chat))->findings;
        QCOMPARE(shown(stillThere(found, texts("Bon. Les chat. Ici."))), "1 9 chat: Accord.");
        QCOMPARE(shown(stillThere(found, texts("Les chats. Ici les chat."))), "");
        TextBook adventure;
        adventure.variables.extras = withAccepted({}, found);
        QCOMPARE(withFindings(adventure.variables, {}, found).accepted.size(), 1);
    }

    // A program that is killed, says nothing, too much or nonsense does no harm.
    void programsAreRun_data()
    {
        addTable<QByteArray, QString, int>(
            {"script", "state", "count"},
            {{"whole", "sed 's/.*//' \"$2\" | wc -l >&2; cat answer; exit 3", "2 constats.", 2},
             {"dies", "head -n 1 answer; kill -9 $$", "s'est arrêté à la ligne 1 sur 2.", 1},
             {"silent", "exec sleep 100", "ne répond plus.", 0},
             {"endless", "exec cat /dev/zero", "n'importe quoi.", 0},
             {"nothing", "exit 0", "s'est arrêté à la ligne 0 sur 2.", 0}});
    }
    void programsAreRun()
    {
#ifdef Q_OS_WIN
        QSKIP("The programs are shell scripts.");
#endif
        QFETCH(QByteArray, script);
        QFETCH(QString, state);
        TestAdventure adventure;
        adventure.file("answer", line(1, Chat) + "\nnonsense\n" + line(2, Chat) + '\n');
        const QString folder = QFileInfo(adventure.path("answer")).path();
        const QString program =
            adventure.file("p", "#!/bin/sh\ncd '" + folder.toUtf8() + "'\n" + script + '\n');
        QVERIFY(QFile(program).setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        GrammarCheck check(adventure.variables, program);
        check.setPatience(script.contains("sleep") ? 200 : 20'000);
        const PlainTexts book = texts("Les chat.", "Les chat.");
        check.start(book);
        QTRY_VERIFY_WITH_TIMEOUT(!check.isRunning() && check.state().endsWith(state), 20'000);
        QTEST(int(check.findings(book).size()), "count");
        QVERIFY(adventure.workingFiles().isEmpty());
        check.start(book);
        check.stop();
        QVERIFY(!check.isRunning() && adventure.workingFiles().isEmpty());
        Q_EMIT adventure.variables.Events->adventureReplaced();
        QVERIFY(check.findings(book).isEmpty() && check.state().isEmpty());
    }

    void noProgramIsNone()
    {
        TestAdventure adventure;
        GrammarCheck check(adventure.variables, adventure.path("none"));
        check.start(texts("Les chat."));
        QTRY_COMPARE(check.state(), "Grammaire : le programme ne démarre pas.");
    }
};

QTEST_GUILESS_MAIN(tst_grammarCheck)
#include "tst_grammarCheck.moc"

#include "editor/RtfBox.h"
#include "store/Variables.h"
#include "support/TestTable.h"

#include <QInputMethodEvent>
#include <QTest>

namespace
{
// An editing box with the aids named, or all of them.
class AidedBox : public RtfBox
{
public:
    explicit AidedBox(const QString &names, const QString &text = {})
    {
        for (const TypingOption &option : typingOptions())
            option.set(m_variables, names == "all" || names.split(u' ').contains(option.name()));
        setKeyPress([this](QChar previous, QChar key) {
            return withTypingAids(m_variables, previous, key);
        });
        setText(text);
        moveCursor(QTextCursor::End);
    }

    void type(const QString &keys)
    {
        for (const QChar c : keys)
            press(c == u'\n' ? Qt::Key_Return : 0, Qt::NoModifier, c == u'\n' ? QString("\r") : c);
    }
    void press(int key, Qt::KeyboardModifiers modifiers, const QString &text)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
        QCoreApplication::sendEvent(this, &event);
    }
    void commit(const QString &text, const QString &composing = {})
    {
        QInputMethodEvent event(composing, {});
        event.setCommitString(text);
        QCoreApplication::sendEvent(this, &event);
    }

private:
    Variables m_variables;
};
} // namespace

class tst_typingAids : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsTyped_data()
    {
        addTable<QString, QString, QString>(
            {"options", "keys", "text"},
            {{"n-dash", "optNDash", "a-- ---", "a– –-"},
             {"m-dash", "optNDash optMDash", "a--- ----", "a— —-"},
             {"m-dash of a dash entered otherwise", "optMDash", "-- a–-", "-- a—"},
             {"bullet", "optBullet", "a.. ...", "a• •."},
             {"ellipsis", "optBullet optEllipsis", "a... ....", "a… …."},
             {"ellipsis needs the bullet", "optEllipsis", "a...", "a..."},
             {"ellipsis of a bullet entered otherwise", "optEllipsis", "a•.", "a…"},
             {"ligature of a", "optLigatureAE", "ae AE aE Ae oe", "æ Æ aE Ae oe"},
             {"ligature of o", "optLigatureOE", "oe OE oE Oe ae", "œ Œ oE Oe ae"},
             {"no-break space", "optNbsp", "a  b   c", "a\u00a0b\u00a0 c"},
             {"quotes", "optFrenchQuotes", "x \"a\".\"b\" \t\"c\"", "x «a».»b» \t«c»"},
             {"quote on a new line", "optFrenchQuotes", "x\n\"a\"", "x\r\n«a»"},
             {"quotes and blanks", "optFrenchQuotes optNbsp", "x  \"a  \"", "x\u00a0«a\u00a0«"},
             {"line start joins nothing", "all", "-\n-\n.\n.\no\ne", "-\r\n-\r\n.\r\n.\r\no\r\ne"},
             {"very start", "all", "\"-", "\"-"},
             {"very start, others", "all", " -.e", " -.e"},
             {"chains", "all", "x---...oeuvre  \"", "x—…œuvre\u00a0«"},
             {"none", "", "x-- .. ae oe  \"", "x-- .. ae oe  \""}});
    }
    void whatIsTyped()
    {
        QFETCH(const QString, options);
        QFETCH(const QString, keys);
        AidedBox box(options);
        box.type(keys);
        QTEST(box.text(), "text");
    }

    void undoTakesTheAidBackAndLeavesWhatWasTyped()
    {
        AidedBox box("all");
        box.type("un--deux \"");
        QStringList steps;
        for (; box.document()->isUndoAvailable(); box.undo())
            steps.prepend(box.text());
        QCOMPARE(steps, QStringList({"un--", "un–", "un–deux ", "un–deux \"", "un–deux «"}));
        while (box.document()->isRedoAvailable())
            box.redo();
        QCOMPARE(box.text(), "un–deux «");
    }

    void theSelectionGoesWithThePreviousCharacter()
    {
        AidedBox box("all", "a-XYZ-");
        box.select(1, 1);
        box.setSelBold(true);
        box.select(2, 3);
        box.type("-");
        QCOMPARE(box.text(), "a–-");
        QCOMPARE(box.selStart(), 2);
        box.select(1, 1);
        QCOMPARE(box.selBold(), true); // it takes the place of the previous one
        box.undo();
        QCOMPARE(box.text(), "a---");
        box.undo();
        QCOMPARE(box.text(), "a-XYZ-");
        box.select(0, 3); // no previous character
        box.type("-");
        QCOMPARE(box.text(), "-YZ-");
    }

    void inputMethodsTypeSingleCharacters()
    {
        AidedBox box("all", "a");
        box.commit("-");
        box.commit("-", "tel");
        QCOMPARE(box.text(), "a–");
        box.commit("--");
        QCOMPARE(box.text(), "a–--");
        box.type(" ");
        box.commit("\"");
        QCOMPARE(box.text(), "a–-- «");
        box.undo();
        QCOMPARE(box.text(), "a–-- \"");
    }

    void keysThatTypeNothingChangeNothing()
    {
        AidedBox box("all", "a-");
        box.press(Qt::Key_Minus, Qt::ControlModifier, "-");
        box.setReadOnly(true);
        box.type("-");
        QCOMPARE(box.text(), "a-");
        QVERIFY(!box.document()->isUndoAvailable());
    }
};

QTEST_MAIN(tst_typingAids)
#include "tst_typingAids.moc"

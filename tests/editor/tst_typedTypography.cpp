#include "editor/RtfBox.h"
#include "language/typography/TypedTypography.h"
#include "store/Variables.h"
#include "support/TestTable.h"

#include <QTest>

namespace
{
// A box with the rules of these kinds, "~" for a no-break space and "^" for a narrow one.
class RuledBox : public RtfBox
{
public:
    explicit RuledBox(const QString &kinds, bool narrow = false, const QString &aids = {})
    {
        const TypographyKinds wanted =
            kinds == "all" ? TypographyKinds().set() : typographyKindsNamed(kinds);
        setLineRules([=](const QString &line, qsizetype caret, const QString &previous) {
            QList<Replacement> parts;
            for (const auto &mend : typedMends(line, caret, previous, {" au ", narrow, {}}, wanted))
                parts.append({mend.position, mend.length, mend.replacement});
            return parts;
        });
        for (const TypingOption &option : typingOptions())
            option.set(m_variables, aids.split(u' ').contains(option.name()));
        setKeyPress([this](QChar previous, QChar key) {
            return withTypingAids(m_variables, previous, key);
        });
    }

    void type(const QString &keys)
    {
        for (const QChar c : keys) {
            QKeyEvent event(QEvent::KeyPress, c == u'|' ? Qt::Key_Return : 0, Qt::NoModifier,
                            c == u'|' ? QString("\r") : QString(c));
            QCoreApplication::sendEvent(this, &event);
        }
    }
    QString written() const
    {
        return text().replace("\r\n", "|").replace(u'\u00a0', u'~').replace(u'\u202f', u'^');
    }

private:
    Variables m_variables;
};
} // namespace

class tst_typedTypography : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keysAreFollowed_data()
    {
        addTable<QString, QString, QString>(
            {"kinds", "keys", "text"},
            {{"none", "", "Qui ? \"l'eau\"... oui!", "Qui ? \"l'eau\"... oui!"},
             {"sign", "insecables", "Qui ?", "Qui~?"},
             {"colon once it is none of a face", "insecables", "a : b :-) c :", "a~: b :-) c :"},
             {"guillemets", "insecables", "« oui »", "«~oui~»"},
             {"space that lacks", "espaces-manquantes", "Oui! 12:30: ", "Oui~! 12:30~: "},
             {"address", "all", "http://a.fr?b! ", "http://a.fr?b! "},
             {"quotes when they close", "guillemets", "\"a \"b\" c\" \"d", "«~a “b” c~» \"d"},
             {"inches", "guillemets", "5'10\" et", "5'10\" et"},
             {"apostrophe at the next letter", "apostrophes", "l'eau des amis' x",
              "l’eau des amis' x"},
             {
                 "dots",
                 "suspension",
                 "Oui... non....",
                 "Oui… non….",
             },
             {"speech at its end", "dialogue", "- Oui.|- Non!|- et", "— Oui.|— Non!|- et"},
             {"list", "dialogue", "- Une épée|- Un arc.", "- Une épée|- Un arc."},
             {"choice", "dialogue", "- Va au 12.", "- Va au 12."},
             {"dash behind it", "tirets", "a -- b --- c", "a – b --- c"},
             {"doubled space", "espaces", "a  b   au  12", "a b au 12"},
             {"indent", "espaces", "  a", "  a"},
             {"ligature behind the word", "ligatures", "coeur, soeurs", "cœur, soeurs"},
             {"capital", "capitales", "A la mer. Ca va", "À la mer. Ça va"},
             {"tag", "all", "<a b=\"c\" d='e' f ! g> \"h\"", "<a b=\"c\" d='e' f ! g> «~h~»"},
             {"all", "all", "\"Oui!\", dit-elle...", "«~Oui~!~», dit-elle…"}});
    }
    void keysAreFollowed()
    {
        QFETCH(const QString, keys);
        QFETCH(const QString, kinds);
        RuledBox box(kinds);
        box.type(keys);
        QTEST(box.written(), "text");
        box.setText(QString("Une très longue ligne. ").repeated(2000));
        box.moveCursor(QTextCursor::End);
        const qsizetype before = box.written().size();
        if (!keys.startsWith(u' ') && !keys.startsWith(u'-')) {
            box.type(keys);
            QTEST(box.written().mid(before), "text");
        }
    }

    // The key stays, what is typed next does not bring the rule back, and what stands behind the
    // caret is looked at too.
    void oneUndoTakesTheRuleBack()
    {
        RuledBox box("all", true);
        box.type("Qui ");
        box.setSelBold(true);
        box.type("va!");
        QCOMPARE(box.written(), "Qui va^!");
        box.undo();
        QCOMPARE(box.written(), "Qui va!");
        box.type(" Ici ?");
        QCOMPARE(box.written(), "Qui va! Ici^?");
        box.undo();
        QCOMPARE(box.written(), "Qui va! Ici ?");
        box.redo();
        box.select(7, 0);
        box.type("?");
        QCOMPARE(box.written(), "Qui va!? Ici^?");
        box.select(4, 4);
        QCOMPARE(box.selBold(), true);
        box.setText("mot");
        box.select(0, 0);
        box.type("«");
        QCOMPARE(box.written(), "«~mot");
        box.undo();
        QCOMPARE(box.written(), "«mot");
        box.setText({});
        box.type("- Oui.");
        box.undo();
        box.type(" Non.");
        QCOMPARE(box.written(), "- Oui. Non.");
    }

    void typingAidsStandAboveTheRules()
    {
        RuledBox box("all", false, "optFrenchQuotes optNbsp optNDash");
        box.type("a \"b\" c--d  e");
        QCOMPARE(box.written(), "a «b» c–d~e");
    }
};

QTEST_MAIN(tst_typedTypography)
#include "tst_typedTypography.moc"

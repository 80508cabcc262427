#include "store/ReferenceIndex.h"
#include "store/references/ReferenceMends.h"
#include "support/TestTable.h"

#include <QRandomGenerator>
#include <algorithm>

namespace
{
const QString Phrase = " au ";

// What is doubtful in a text, as "reason number: words", with strokes between.
QString doubts(const QString &text, const QString &phrase)
{
    QStringList found;
    for (const ReferenceMark &mark : referenceMarks(text, phrase))
        if (mark.doubt != Doubt::None)
            found.append(
                QStringLiteral("%1: %2").arg(mark.read).arg(text.mid(mark.position, mark.length)));
    return found.join(u'|');
}

QString entryOf(const QList<ReferenceMark> &marks)
{
    QString entry;
    for (const ReferenceMark &mark : marks)
        if (mark.read > 0)
            entry += fourDigits(mark.read) + u'/';
    return entry;
}
} // namespace

class tst_referenceMarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void doubtfulReferences_data()
    {
        addTable<QString, QString, int>(
            {"text", "doubts", "reason"},
            {{"two blanks", "Va au  185.", "185: au  185", int(Doubt::BlanksBefore)},
             {"leading zero", "Va au 026.", "26: au 026", int(Doubt::LeadingZero)},
             {"digits behind", "Va au 13 3 orcs", "133: au 13 3", int(Doubt::DigitsBehind)},
             {"behind a stop", "Va au 14. 6 orcs", "15: au 14. 6", int(Doubt::DigitsBehind)},
             {"half read", "Va au 144 150 livres", "1441: au 144 150", int(Doubt::DigitsBehind)},
             {"thousands", "Va au 1 250", "1250: au 1 250", int(Doubt::DigitsBehind)},
             {"beyond 2000", "Va au 300 3 gardes", "0: au 300", int(Doubt::DigitsJoined)},
             {"tab behind", "Va au\t9 gardes. Va au 45", "0: au\t9", int(Doubt::NoBlank)},
             {"tab before", "Oui\tau 12", "0: au 12", int(Doubt::NoBlank)},
             {"tab at the start", "\tAu 12 si 3", "0: Au 12", int(Doubt::NoBlank)},
             {"zero apart", "Va au 0 26.", "26: au 0 26", int(Doubt::LeadingZero)},
             {"zero and digits", "Va au 026 3 ou", "263: au 026 3", int(Doubt::DigitsBehind)},
             {"exponent", "Va au 1e2", "100: au 1", int(Doubt::Measure)},
             {"far away", "Va au      12", "0: au      12", int(Doubt::TooManyBlanks)},
             {"text's start", "Au 146, tout va", "0: Au 146", int(Doubt::NoBlank)},
             {"bracket", "Fuir (au 13)", "0: au 13", int(Doubt::NoBlank)},
             {"apostrophe", "Lire jusqu'au 12", "0: au 12", int(Doubt::NoBlank)},
             {"no-break space behind", "Va au\u00a012.", "0: au\u00a012", int(Doubt::NoBreakSpace)},
             {"narrow space behind", "Va au\u202f12.", "0: au\u202f12", int(Doubt::NoBreakSpace)},
             {"no-break space before", "Va\u00a0au 12.", "0: au 12", int(Doubt::NoBreakSpace)},
             {"line end", "Va au\r\n12.", "0: 12", int(Doubt::LineBreak)},
             {"line start", "Va\r\nau 12.", "0: au 12", int(Doubt::NoBlank)},
             {"a word", "Va au paragraphe 12", "0: au paragraphe 12", int(Doubt::WordBetween)},
             {"a sign", "Va au n°\u00a012", "0: au n°\u00a012", int(Doubt::WordBetween)},
             {"no phrase", "Rendez-vous 12.", "0: Rendez-vous 12", int(Doubt::PhraseMissing)},
             {"plural", "Va aux 12 et 15.", "0: aux 12|0: et 15", int(Doubt::PhraseMissing)},
             {"second of two", "Va au 12 ou 15.", "0: ou 15", int(Doubt::PhraseMissing)},
             {"more of them", "Va au 12, 15 ou 18.", "0: , 15|0: ou 18", int(Doubt::PhraseMissing)},
             {"colon", "Va au : 12", "0: au : 12", int(Doubt::WordBetween)},
             {"wrong word", "Rendez-vous à 176", "0: à 176", int(Doubt::PhraseMissing)},
             {"row", "Va\r\n12, 45  78", "0: 12, 45  78", int(Doubt::NumbersAlone)},
             {"telephone", "Tél. au 01 42 33 44 55", "142: au 01", int(Doubt::Telephone)},
             {"month", "Fermé au 15 août.", "15: au 15", int(Doubt::Date)},
             {"rank", "Montez au 3e étage", "3: au 3", int(Doubt::Ordinal)},
             {"share", "Réduit au 12/20", "12: au 12", int(Doubt::Measure)},
             {"unit", "Tirez au 100 mètres", "100: au 100", int(Doubt::Measure)},
             {"other book", "Lisez au 54 du deuxième volume", "54: au 54", int(Doubt::OtherBook)}});
    }
    void doubtfulReferences()
    {
        QFETCH(QString, text);
        QTEST(doubts(text, Phrase), "doubts");
        const QList<ReferenceMark> marks = referenceMarks(text, Phrase);
        const auto doubtful = std::find_if(
            marks.begin(), marks.end(), [](const auto &mark) { return mark.doubt != Doubt::None; });
        QTEST(int(doubtful->doubt), "reason");
        QVERIFY(!doubtReason(doubtful->doubt, doubtful->read, Phrase).contains(u'%'));
        QCOMPARE(entryOf(marks), referenceEntry(text, Phrase)); // read as everywhere
        const qsizetype start = text.lastIndexOf('\n') + 1;
        const QString line = text.mid(start);
        ReferenceMark mark = *doubtful;
        mark.position -= start;
        mark.digits -= start;
        for (const Mend &mend :
             mendsOf(mark, line, text.left(start).chopped(start > 0 ? 2 : 0), Phrase)) {
            QString document = QString(text).replace("\r\n", "\n");
            const qsizetype lineStart = document.lastIndexOf('\n') + 1;
            QVERIFY(!mend.replacements.isEmpty());
            for (qsizetype i = mend.replacements.size() - 1; i >= 0; --i) {
                const Replacement &part = mend.replacements.at(i);
                document.replace(lineStart + part.position, part.length, part.text);
            }
            const QString mended = doubts(document.replace("\n", "\r\n"), Phrase);
            QVERIFY2(mended.count('|') < doubts(text, Phrase).count('|') || mended.isEmpty(),
                     qPrintable(document + ": " + mended));
            QVERIFY(!mend.caption.contains('%') && !mend.caption.isEmpty());
        }
    }

    // Only what differs is replaced, as the rest may have its own formatting.
    void mendsTouchNoMoreThanTheyHaveTo()
    {
        const Table<QString, QString> table{
            {"zero", "Va au 026", "Va au [0>]26"},
            {"zero apart", "Va au 0 26", "Va au [0 >]26"},
            {"blank", "Va au  185", "Va au [ >]185"},
            {"word", "Va au paragraphe 12", "Va au [paragraphe >]12"},
            {"plural", "Va aux numéros 012", "Va au[x numéros>] [0>]12"},
            {"both sides", "Va\u00a0au\u00a012", "Va[\u00a0> ]au[\u00a0> ]12"},
            {"narrow on both sides", "Va\u202fau\u202f12", "Va[\u202f> ]au[\u202f> ]12"},
            {"tab before", "Oui\tau 12", "Oui\t[> ]au 12"},
            {"tab behind", "Va au\t9 gardes. Au 45", "Va au[\t> ]9 gardes. Au 45"},
            {"digits behind", "Va au 13. 3 orcs", "Va au 13.[ >\u00a0]3 orcs"},
            {"another word", "Rendez-vous à 17", "Rendez-vous [à>au] 17"}};
        for (const auto &[name, line, expected] : table) {
            const ReferenceMark mark = referenceMarks(line, Phrase).first();
            QString mended = line;
            const Mend mend = mendsOf(mark, line, {}, Phrase).first();
            for (qsizetype i = mend.replacements.size() - 1; i >= 0; --i) {
                const Replacement &part = mend.replacements.at(i);
                mended.insert(part.position + part.length, u'>' + part.text + u']')
                    .insert(part.position, u'[');
            }
            QCOMPARE(mended, expected);
        }
    }

    void nothingIsDoubtful()
    {
        for (const QString text : {"Va au 26.",
                                   "Va au 12, au 2000 ou AU 3",
                                   "Va au 45 !",
                                   "Au bout de 3 jours",
                                   "Va au 300\r\n4 gardes",
                                   "S'il y a plus de 900 gardes",
                                   "Va au 12\u00a03 fois",
                                   "Plus de 12 ? Va au 7, sinon au 8 (3 points)",
                                   "Il vit au 900 000",
                                   "Va au 26 et",
                                   "Fermé au\u00a015 août",
                                   "Au 3e jour",
                                   "(au 12 mai)",
                                   "À 8 heures",
                                   "dès 26 ans",
                                   "Tableau 12",
                                   "Au feu : au 12 / au 13",
                                   "Va au 12, 3 orcs et 5",
                                   "Rendez-vous 3 fois",
                                   "Si le total est égal à 12, va au 5",
                                   "26"}) {
            QCOMPARE(doubts(text, Phrase), QString());
            QCOMPARE(entryOf(referenceMarks(text, Phrase)), referenceEntry(text, Phrase));
        }
    }

    // Edits at many places of a line, each against reading all of it.
    void readsAgainAroundWhatHasChanged()
    {
        const QStringList words{" au 26", " au  7",     " au",    " 12",         " (au 3)",
                                "5",      ".",          " texte", " aux 3 et 4", " au au 8",
                                "\u00a0", " au 15 mai", " "};
        QRandomGenerator random(7);
        LineReferences references;
        QString line = "12, 13";
        for (int edit = 0; edit < 800; ++edit) {
            const qsizetype at = random.bounded(line.size() + 1);
            line.replace(at, random.bounded(line.size() > 900 ? 30 : 6),
                         words.at(random.bounded(words.size())));
            const QString previous = edit % 50 < 25 ? "Va au" : "";
            references.read(line, previous, Phrase);
            const QString text = previous + "\r\n" + line;
            QList<ReferenceMark> whole = referenceMarks(text, Phrase);
            QCOMPARE(references.marks().size(), whole.size());
            for (const ReferenceMark &mark : references.marks()) {
                const ReferenceMark expected = whole.takeFirst();
                QCOMPARE(mark.position + previous.size() + 2, expected.position);
                QCOMPARE(mark.length, expected.length);
                QCOMPARE(mark.read, expected.read);
                QCOMPARE(mark.doubt, expected.doubt);
            }
        }
    }

    void anyPhraseHasItsLookAlikes()
    {
        QCOMPARE(doubts("To 12, (to 13) or to  14", " to "), "0: To 12|0: to 13|14: to  14");
        QCOMPARE(doubts("Go to 3 May, to paragraph 12 or (au 12)", " to "), QString());
        QCOMPARE(doubts("→ 12 →13", "→"), "12: → 12");
        QCOMPARE(doubts("12, 13", ", "), QString());
        QVERIFY(referenceMarks(u"Au 12, va au 13", QString()).isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_referenceMarks)
#include "tst_referenceMarks.moc"

#include "language/typography/TypographyRules.h"
#include "store/ReferenceIndex.h"
#include "support/TestTable.h"

#include <QElapsedTimer>
#include <QRandomGenerator>

namespace
{
// "~" is a no-break space, "^" a narrow one and "|" the end of a line.
QString real(const char *text)
{
    return QString(text).replace(u'~', u'\u00a0').replace(u'^', u'\u202f').replace(u'|', "\r\n");
}

bool isWord(const QString &word)
{
    static const QStringList words{"ça",    "état",  "êtes", "était", "élise", "âme", "ils", "un",
                                   "élève", "échec", "et",   "ami",   "pâle",  "île", "ile"};
    return words.contains(word);
}

QString kindsOf(const QList<TypographyMend> &mends)
{
    TypographyKinds kinds;
    for (const TypographyMend &mend : mends)
        kinds.set(indexOf(mend.kind));
    return typographyKindNames(kinds);
}

QList<TypographyMend> withoutReferences(QList<TypographyMend> mends)
{
    mends.removeIf([](const auto &mend) { return mend.kind == TypographyKind::Reference; });
    return mends;
}

// Prose of parts that rules look at, with references in it and things that only look so.
QString generated(QRandomGenerator &random, int parts)
{
    static const QStringList pieces{
        "Allez", "A",    "l'aube", "coeur",    "-",      "--",        "...",    "\"",          "«",
        "»",     " ",    "  ",     "\r\n",     "\u00a0", "\u202f",    "!",      "?",           ":",
        ";",     " au ", " au 12", " au  13 ", "au",     "12",        "a\r\nb", "<b>",         ">",
        "'",     "(",    ")",      ".",        ",",      "Etat",      "\t",     "http://x.fr", "“",
        "”",     "—",    "…",      "Bonjour.", " Au 26", "au\u00a07", "5'10\"", "&eacute;"};
    QString text;
    while (parts-- > 0)
        text += pieces.at(random.bounded(int(pieces.size())));
    return text;
}
} // namespace

class tst_typographyRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void phrases()
    {
        using Row = Table<const char *, const char *>;
        const Row rows{
            {"insecables", "Qui ? Toi !", "Qui~? Toi~!"},
            {"insecables", "Voici : « oui » ; non", "Voici~: «~oui~»~; non"},
            {"insecables", "Quoi  ?", "Quoi~?"},
            {"insecables", "Oui^!", "Oui~!"},
            {"insecables", "Allez au 12 !", "Allez au 12~!"},
            {"espaces-manquantes", "Quoi! Qui? Voici: oui; non.",
             "Quoi~! Qui~? Voici~: oui~; non."},
            {"espaces-manquantes", "Quoi?! Hein!, (oui!)", "Quoi~?! Hein~!, (oui~!)"},
            {"espaces-manquantes", "«oui»", "«~oui~»"},
            {"espaces-manquantes", "Plan A: non", "Plan A~: non"},
            {"espaces-manquantes", "Allez au 12!", "Allez au 12~!"},
            {"", "À 12:30, http://a.fr?b! C:\\jeux :-) ;) :'( (C:) a::b", nullptr},
            {"", "(?) [!] 3:1 &nbsp; moi@x.fr;y", nullptr},
            {"", "bien :D :( :/ bien", nullptr},
            {"", "Qui~? Toi~! «~oui~»~: non", nullptr},
            {"", "| !", nullptr},
            {"guillemets", "\"Bonjour\", dit-il.", "«~Bonjour~», dit-il."},
            {"guillemets", "Il dit \" oui \" et (\"non\").", "Il dit «~oui~» et («~non~»)."},
            {"guillemets", "\"Le mot \"oui\" suffit.\"", "«~Le mot “oui” suffit.~»"},
            {"guillemets", "«~Le mot \"oui\".~»", "«~Le mot “oui”.~»"},
            {"guillemets", "\"Venez,|partons.\"", "«~Venez,|partons.~»"},
            {"guillemets", "\"Lisez au 12\"", "«~Lisez au 12~»"},
            {"insecables,guillemets", "\"Oui !\"", "«~Oui~!~»"},
            {"espaces-manquantes,guillemets", "\"Oui\"!", "«~Oui~»~!"},
            {"guillemets", "<i>\"mot\"</i>, \"a\",\"b\", …\"c\"",
             "<i>«~mot~»</i>, «~a~»,«~b~», …«~c~»"},
            {"", "5'10\" et 12\" de haut", nullptr},
            {"", "\"Il ne ferme pas.", nullptr},
            {"", "\"Il ne ferme pas.||Ni ici\"", nullptr},
            {"", "\"\" et <a href=\"x\">", nullptr},
            {"apostrophes", "l'eau, aujourd'hui, l'<b>ours", "l’eau, aujourd’hui, l’<b>ours"},
            {"guillemets,apostrophes", "l'\"eau\"", "l’«~eau~»"},
            {"", "les 'gens' d' ici, 5' de long", nullptr},
            {"suspension", "Il vint... puis...", "Il vint… puis…"},
            {"suspension", "Quoi~?...", "Quoi~?…"},
            {"espaces-manquantes,suspension", "Hein!... Bah...!", "Hein~!… Bah…~!"},
            {"", "Il.... Or.. et ...… ou .../bin", nullptr},
            {"dialogue", "- Bonjour.|- Bonsoir~!", "— Bonjour.|— Bonsoir~!"},
            {"dialogue", "-Bonjour.", "—~Bonjour."},
            {"dialogue", "-- Bonjour.", "— Bonjour."},
            {"guillemets,dialogue", "- \"Oui\"", "— «~Oui~»"},
            {"", "- une épée.|- Bonjour.", nullptr},
            {"", "- Une épée|- Un arc", nullptr},
            {"", "- Courir~? Allez au 12.|- Dormir.", nullptr},
            {"", "- 12 pièces.", nullptr},
            {"tirets", "Il vint -- tard -- puis--non", "Il vint – tard – puis–non"},
            {"", "-----|-- -- --|a --> b <-- c --- d", nullptr},
            {"espaces", "Il  vint.   Puis ", "Il vint. Puis"},
            {"espaces", "a |b   |  ", "a|b|"},
            {"espaces", "Va  au 12  puis", "Va au 12 puis"},
            {"", "  retrait|\tligne\t|a~~b", nullptr},
            {"ligatures", "Coeur, SOEUR, l’oeil et oeuvres", "Cœur, SŒUR, l’œil et œuvres"},
            {"ligatures", "des boeufs, un noeud, mes voeux", "des bœufs, un nœud, mes vœux"},
            {"ligatures", "manoeuvrer, désoeuvré, Oedipe", "manœuvrer, désœuvré, Œdipe"},
            {"ligatures", "ex aequo, curriculum vitae", "ex æquo, curriculum vitæ"},
            {"ligatures", "Et caetera, moeurs, foetus", "Et cætera, mœurs, fœtus"},
            {"", "moelle, poele, coexister, aérien, vitae, Michael", nullptr},
            {"", "goeland, Noel, poete", nullptr},
            {"capitales", "A l’aube. A peine.", "À l’aube. À peine."},
            {"capitales", "A 5 heures. A 17h30. «~Non.~» A l’est",
             "À 5 heures. À 17h30. «~Non.~» À l’est"},
            {"capitales", "—~A droite~: «~A moi~»", "—~À droite~: «~À moi~»"},
            {"capitales", "Ca va.|Ca suffit.", "Ça va.|Ça suffit."},
            {"capitales", "Etat. Etes-vous là~? Ame", "État. Êtes-vous là~? Âme"},
            {"", "A. A 12. A mangé. A man. Et A l’aube", nullptr},
            {"", "Ile. Elric. ETAT. l’Etat. Et. Eleve", nullptr},
            {"", "Il dit A l’aube", nullptr},
            {"lignes-vides", "a||||b", "a||b"},
            {"lignes-vides", "a|||", "a|"},
            {"", "a||b|", nullptr},
            {"", "<p class=\"l'eau !\" >l’eau~!</p  >", nullptr},
            {"insecables", "<i> <b>oui</b> !", "<i> <b>oui</b>~!"},
            {"renvois", "Va au  185.", "Va au 185."},
            {"renvois", "Va au 026 et au\u00a07.", "Va au 26 et au 7."},
        };
        for (const auto &[kinds, before, after] : rows) {
            const QString text = real(before);
            const QList<TypographyMend> mends = typographyMends(text, {" au ", false, {}});
            const bool spelt = QString(kinds) == "capitales";
            const auto found =
                spelt || mends.isEmpty() ? typographyMends(text, {" au ", false, isWord}) : mends;
            QCOMPARE(withMends(text, found), after == nullptr ? text : real(after));
            QCOMPARE(kindsOf(found), QString(kinds));
        }
    }

    void narrowSpacesStandBeforeThreeSigns()
    {
        const QString text = real("Qui ? Toi~! Oui; «non» : là");
        const QString mended = withMends(text, typographyMends(text, {" au ", true, {}}));
        QCOMPARE(mended, real("Qui^? Toi^! Oui^; «~non~»~: là"));
    }

    // By any phrase, and so that nothing is left to be done.
    void referencesStayAndNothingIsLeft()
    {
        static const QStringList phrases{" au ", "au ", " ",  "...", "–",
                                         "\"",   "« ",  "l’", "",    "au"};
        QRandomGenerator random(16);
        for (int i = 0; i < 4000; ++i) {
            const QString text = generated(random, 3 + i % 40);
            const TypographyRules rules{phrases.at(i < 2000 ? 0 : i % phrases.size()), i % 2 == 0,
                                        isWord};
            const auto mends = withoutReferences(typographyMends(text, rules));
            const QString mended = withMends(text, mends);
            QCOMPARE(referenceEntry(mended, rules.phrase), referenceEntry(text, rules.phrase));
            const auto left = withoutReferences(typographyMends(mended, rules));
            if (rules.phrase == " au " && withMends(mended, left) != mended)
                QFAIL(qPrintable(text + "\n=> " + mended + "\n=> " + withMends(mended, left)));
        }
    }

    // A kind is done without the others, and leaves nothing of itself.
    void eachKindAlone()
    {
        QRandomGenerator random(17);
        for (int i = 0; i < 1200; ++i) {
            const TypographyRules rules{" au ", false, isWord};
            const QString text = generated(random, 20);
            const auto kind = static_cast<TypographyKind>(i % (TypographyKindCount - 1));
            const auto only = [&](QList<TypographyMend> mends) {
                mends.removeIf([&](const auto &mend) { return mend.kind != kind; });
                return mends;
            };
            const QString mended = withMends(text, only(typographyMends(text, rules)));
            QCOMPARE(referenceEntry(mended, " au "), referenceEntry(text, " au "));
            const auto left = only(typographyMends(mended, rules));
            if (!left.isEmpty())
                QFAIL(qPrintable(text + "\n=> " + mended + "\n=> " + withMends(mended, left)));
        }
    }

    void hugeTextsTakeNoTime_data()
    {
        addTable<QString>({"piece"}, {{"quotes", "\"a «"},
                                      {"closings", "a\" "},
                                      {"tags", "<"},
                                      {"dashes", "--"},
                                      {"blanks", "  "},
                                      {"letters", "oe"},
                                      {"openings", "«(A"},
                                      {"lines", " \r\n"},
                                      {"speech", "- A.\r\n"},
                                      {"references", "va au  12 "},
                                      {"digits", "1"}});
    }

    void hugeTextsTakeNoTime()
    {
        QFETCH(QString, piece);
        const QString text = piece.repeated(300'000 / piece.size());
        QElapsedTimer timer;
        timer.start();
        const QString mended = withMends(text, typographyMends(text, {" au ", false, isWord}));
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
        QCOMPARE(referenceEntry(mended, " au "), referenceEntry(text, " au "));
    }
};

QTEST_GUILESS_MAIN(tst_typographyRules)
#include "tst_typographyRules.moc"

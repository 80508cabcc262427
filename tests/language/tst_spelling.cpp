#include "language/spelling/Dictionary.h"
#include "language/spelling/OwnWords.h"
#include "language/spelling/Speller.h"
#include "language/spelling/Spelling.h"
#include "platform/Errors.h"
#include "store/Variables.h"
#include "store/extras/ExtrasBlock.h"
#include "support/TestTable.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

namespace
{
std::shared_ptr<const Dictionary> french()
{
    static const auto dictionary = std::make_shared<const Dictionary>(*findDictionary("fr"));
    return dictionary;
}

Speller strictSpeller()
{
    Speller speller;
    speller.setDictionary(french());
    speller.setOptions({false, false});
    return speller;
}

// The doubtful parts of a text, as they stand in it.
QString doubtsIn(const Speller &speller, const QString &text)
{
    QStringList found;
    const QList<SpellingWord> words = spellingWords(text).words;
    for (const SpellingWord &word : words) {
        const QList<SpellingWord> doubts = speller.doubts(word);
        for (const SpellingWord &doubt : doubts)
            found.append(text.mid(doubt.position, doubt.length));
    }
    return found.join(u' ');
}

void put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

// What a careful reader passes over, a phrase between two bars.
constexpr auto Right =
    "l'épée|L’Épée|l’épée|d'or|D'OR|qu'il|qu’elle|jusqu'au bout|jusqu’à|lorsqu'elle|puisqu'on|"
    "quoiqu'il|c'est|C’est|s'il|n'y|m'a|t'es|j'ai|J’AI|aujourd'hui|Aujourd’hui|AUJOURD'HUI|"
    "presqu'île|entr'ouvrir|entrouvrir|quelqu'un|prud'homme|d'aujourd'hui|l'un et l'autre|"
    "dit-il|a-t-il|A-t-elle|répond-il|donne-moi|Donnez-moi|va-t'en|allez-vous-en|vas-y|prends-le|"
    "dis-le-moi|celui-là|celle-ci|cette nuit-là|là-bas|ci-dessous|lui-même|eux-mêmes|"
    "arc-en-ciel|peut-être|Peut-être|rendez-vous|porte-clés|chef-d'œuvre|main-d’œuvre|grand-mère|"
    "après-midi|demi-tour|quatre-vingt-dix|vingt et un|c'est-à-dire|sous-sol|week-end|"
    "cœur|Cœur|CŒUR|sœur|œuvre|Œil|bœuf|nœud|ex æquo|moelle|poêle|coexister|"
    "Eau|A l'aube|À l'aube|Etat|État|ÉPÉE|EPEE|ECOLE|école|Ecole|ÇA|Ca va|Çà et là|OU|ETRE|"
    "élève|hôtel|Noël|maïs|aiguë|où|ambiguïté|âme|forêt|île|flûte|août|naïf|haïr|ça|reçu|"
    "un 1er pas|le XIVe siècle|Mme Dupont|M. Durand|etc.|n° 12|p. 4|vers 12 h 30|12:30|"
    "Rendez-vous au 26.|rendez-vous\u00A0au\u00A026|Allez\u202F!|« Halte\u00A0! »|épée\u00ADs|"
    "mer\u00ADveil\u00ADle|e\u0301pe\u0301e|L'e\u0301cole|🐉 dragon 🐉|feu🔥feu|…puis|--|—|"
    "https://exemple.org/zzqx|www.zzqx.org|moi@zzqx.org|<b>gras</b>|<img src=\"zzqx.png\">|"
    "<zzqx attr='yyy'>mot</zzqx>|5 < 6 et 7 > 3|elle (aussi)|[le gardien]|un/une|"
    "'guillemets simples'|É. Z.|‘ici’|fini…|mot;mot,mot|J'suis là|t'as vu|p'tit|"
    "gobelins|gobeline|parchemin|grimoire|hallebarde|nécromancien|arbalète|donjon|ogresse";

// And what he marks, with the words that he would underline.
constexpr auto Wrong =
    "apeller>apeller|languge>languge|epée>epée|coeur>coeur|COEUR>COEUR|soeur>soeur|"
    "l'oeil>oeil|main-d'oeuvre>oeuvre|chevals>chevals|l'dragon>l'dragon|qu'dragon>qu'dragon|"
    "lorsqu'dragon>lorsqu'dragon|d'epée>epée|D’epée>epée|peut-etre>etre|rendez-vou>vou|"
    "donne-moa>moa|rendezvous>rendezvous|aujourdhui>aujourdhui|aujourd>aujourd|"
    "un dragonn rouge>dragonn|le le guerier>guerier|ogrre, ogre>ogrre|(chateau)>chateau|"
    "foretz>foretz|acceuil>acceuil|language>language|dévelloper>dévelloper|"
    "Elric>Elric|d'Elric>Elric|ELRIC>ELRIC|Val-d'Orric>Orric|zzqx2>zzqx2|"
    "mer\u00ADvzil\u00ADle>mer\u00ADvzil\u00ADle|e\u0301pz\u0301e>e\u0301pz\u0301e|"
    "moi@ zzqx>zzqx|< zzqx>zzqx|<b>zzqx</b>>zzqx|feu🔥feuu>feuu|Θάλασσα>Θάλασσα|"
    "Hte>Hte|ecole>ecole|foobar\u202F!>foobar|zzqx\u00A0: non>zzqx|a'b'c>a'b'c|"
    "hopital>hopital|evenement>evenement|parmis>parmis|malgrés>malgrés|enmener>enmener|"
    "connection>connection|bizare>bizare|dificile>dificile|tranquile>tranquile|honneteté>honneteté";
} // namespace

class tst_spelling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aCarefulReaderAgrees()
    {
        const Speller speller = strictSpeller();
        const QStringList right = QString::fromUtf8(Right).split(u'|');
        const QStringList wrong = QString::fromUtf8(Wrong).split(u'|');
        QVERIFY(right.size() + wrong.size() >= 150);
        QStringList otherwise;
        for (const QString &phrase : right)
            if (!doubtsIn(speller, phrase).isEmpty())
                otherwise.append(phrase);
        for (const QString &row : wrong) {
            const qsizetype bar = row.lastIndexOf(u'>');
            const QString doubts = doubtsIn(speller, row.first(bar));
            if (doubts != row.sliced(bar + 1))
                otherwise.append(row + " is " + doubts);
        }
        QCOMPARE(otherwise.join(u'|'), QString());
    }

    void optionsPassOverWords()
    {
        Speller speller = strictSpeller();
        const QString text = "ZZQX zzqx2 l'ZZ2";
        QCOMPARE(doubtsIn(speller, text), "ZZQX zzqx2 l'ZZ2");
        speller.setOptions({true, false});
        QCOMPARE(doubtsIn(speller, text), "zzqx2");
        speller.setOptions({false, true});
        QCOMPARE(doubtsIn(speller, text), "ZZQX");
        QVERIFY(!speller.isWord(u"Etat") && speller.isWord(u"État") && speller.knows(u"Etat"));
    }

    void addedWordsAreRightInTheirCase()
    {
        Speller speller = strictSpeller();
        const QString text = "Elric d’Elric ELRIC elric Elric-le-Noir orik Orik ORIK oRik";
        QCOMPARE(doubtsIn(speller, text).count(u' '), 8);
        speller.setAdventureWords({"Elric"});
        speller.setOwnWords({"orik"});
        QCOMPARE(doubtsIn(speller, text), "elric oRik");
    }

    void monstersAreHandledFast()
    {
        const Speller speller = strictSpeller();
        QElapsedTimer timer;
        timer.start();
        for (const QString &text : {QString(10000, u'e'), QString("a-").repeated(5000) + "b",
                                    QString("l'").repeated(5000) + "x", QString(60, u'E'),
                                    QString("é\u00AD").repeated(5000), QString("<").repeated(5000)})
            static_cast<void>(doubtsIn(speller, text));
        QVERIFY(timer.elapsed() < 2000);
        QCOMPARE(doubtsIn(speller, QString(10000, u'e')).size(), 10000);
    }

    void suggestionsAreFewAndLigaturesFirst()
    {
        QCOMPARE(suggestionsFor(*french(), "soeur").value(0), "sœur");
        QCOMPARE(suggestionsFor(*french(), "Oeuvre").value(0), "Œuvre");
        QVERIFY(suggestionsFor(*french(), "guerier").contains("guerrier"));
        QVERIFY(suggestionsFor(*french(), "epre").size() <= MostSuggestions);
        QVERIFY(suggestionsFor(*french(), QString(40, u'e')).isEmpty());
        QCOMPARE(withApostropheOf("l’epée", "l'épée"), "l’épée");
    }

    void synonymsAreReadFromTheirFiles()
    {
        const QTemporaryDir folder;
        const QByteArray entries = "UTF-8\népée|2\n(Nom)|glaive|rapière\n-|lame\nmal|9\n";
        put(folder.filePath("th_fr_FR_v2.dat"), entries);
        put(folder.filePath("th_fr_FR_v2.idx"),
            "UTF-8\n3\népée|6\nfaux|900\nmal|" + QByteArray::number(entries.indexOf("mal")));
        const Thesaurus thesaurus("fr", {"/nowhere", folder.path()});
        QCOMPARE(thesaurus.meanings("Épée"),
                 (QList<Thesaurus::Meaning>{{"Nom", {"glaive", "rapière"}}, {"", {"lame"}}}));
        for (const char *word : {"pée", "faux", "mal", "", "épée\n"})
            QVERIFY(thesaurus.meanings(QString::fromUtf8(word)).isEmpty());
        QVERIFY(!Thesaurus("de", {folder.path()}).isThere());
    }

    void anAdventureTakesSoManyWordsAndNoMore()
    {
        AdventureExtras extras = withWord(withWord({}, "orik"), "l’Elric");
        QCOMPARE(withWord(extras, "orik").words, (QStringList{"l'Elric", "orik"}));
        QVERIFY_THROWS_EXCEPTION(LimitError, withWord(extras, QString(101, u'x')));
        for (int i = 0; extras.words.size() < MostAdventureWords; ++i)
            extras.words.append(QString("zz%1").arg(i, 6, 10, QChar(u'0')));
        QVERIFY(extrasFrom(bytesOf(extras)) == extras);
        QVERIFY_THROWS_EXCEPTION(LimitError, withWord(extras, "Elric"));
    }

    void damagedDictionariesAreRefused_data()
    {
        addTable<QByteArray, QByteArray>(
            {"affixes", "words"},
            {{"empty affixes", "", "1\nmot\n"},
             {"no words", "SET UTF-8\n", ""},
             {"no count", "SET UTF-8\n", "mot\nmots\n"},
             {"cut words", "SET UTF-8\n", "100\nmot\nmots\n"},
             {"cut affixes", "SET UTF-8\nSFX S Y 2\nSFX S 0 s .\n", "1\nmot/S\n"},
             {"half a head", "SET UTF-8\nSFX S\n", "1\nmot/S\n"},
             {"other bytes", "SET UTF-8\n", "1\nm\xE9t\n"},
             {"no such encoding", "SET KLINGON\n", "1\nmot\n"}});
    }
    void damagedDictionariesAreRefused()
    {
        QFETCH(QByteArray, affixes);
        QFETCH(QByteArray, words);
        const QTemporaryDir folder;
        put(folder.filePath("xx.aff"), affixes);
        put(folder.filePath("xx.dic"), words);
        const auto files = findDictionary("xx", {folder.path()});
        QVERIFY_THROWS_EXCEPTION(FileError, Dictionary{*files});
    }

    void anotherEncodingIsRead()
    {
        if (!QStringDecoder("ISO8859-15").isValid())
            QSKIP("the system does not have this encoding");
        const QTemporaryDir folder;
        put(folder.filePath("xx.aff"), "SET ISO8859-15\nTRY \xE9\n");
        put(folder.filePath("xx.dic"), "2\n\xBDil\nm\xE9tal\n");
        QCOMPARE(installedDictionaries({folder.path(), folder.path()}).size(), 1);
        const Dictionary dictionary(*findDictionary("xx", {folder.path()}));
        QVERIFY(dictionary.has("œil") && dictionary.has("métal") && !dictionary.has("Ωil"));
        QVERIFY(dictionary.suggestions("metal").contains("métal"));
    }

    void ownWordsOfTwoProgramsStay()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("Usmira Mots.xyz");
        OwnWords one(path);
        OwnWords other(path);
        QVERIFY(!one.refresh());
        one.add("orik");
        other.add("Elric");
        QVERIFY(one.refresh() && !one.refresh());
        QCOMPARE(one.words(), (QStringList{"Elric", "orik"}));
        put(path, QByteArray("z\r\n  a’b \n") + QByteArray(200, 'x') + "\n\xFF\n");
        QVERIFY(one.refresh());
        QVERIFY(one.words().contains("a'b") && one.words().contains("z"));
        QVERIFY(!one.words().contains(QString(200, u'x')));
        put(path, "\xE9p\xE9iste\némoi\n"); // not by us alone
        one.add("orik");
        other.add("Elric");
        QCOMPARE(other.words(), (QStringList{"Elric", "orik", "émoi", "épéiste"}));
        QVERIFY(QFile::remove(path) && one.refresh() && one.words().isEmpty());
        QVERIFY_THROWS_EXCEPTION(FileError, OwnWords("/nowhere/at/all").add("x"));
        Variables second; // program, with a working folder within the first one's
        second.MainFolder = folder.path() + '/';
        second.WorkingFolder = folder.filePath("2/");
        Spelling(second).addToOwnWords("orik");
        QVERIFY(one.refresh() && one.words().contains("orik"));
    }
};

QTEST_GUILESS_MAIN(tst_spelling)
#include "tst_spelling.moc"

#include "Targets.h"

#include "check/GrammarTexts.h"
#include "language/spelling/SpellingWords.h"
#include "language/typography/TypedTypography.h"
#include "richtext/HiddenBox.h"
#include "store/ReferenceIndex.h"

namespace
{
constexpr int LongestText = 256;

QString boxText(const QByteArray &bytes)
{
    HiddenBox box;
    box.setText(QString::fromUtf8(bytes));
    return box.text();
}

QList<TypographyMend> safeMends(const QString &text, const TypographyRules &rules)
{
    QList<TypographyMend> mends = typographyMends(text, rules);
    mends.removeIf([](const auto &mend) { return mend.kind == TypographyKind::Reference; });
    return mends;
}

// What stands before the first line feed is the target phrase.
void typography(const QByteArray &bytes)
{
    const qsizetype end = bytes.indexOf('\n');
    const TypographyRules rules{QString::fromUtf8(bytes.left(end)), bytes.size() % 2 == 0, {}};
    const QString text = boxText(bytes.mid(end + 1));
    const QString mended = withMends(text, safeMends(text, rules));
    promise(referenceEntry(mended, rules.phrase) == referenceEntry(text, rules.phrase),
            "typography changes no reference");
    qsizetype behind = 0;
    for (const TypographyMend &mend : typographyMends(text, rules)) {
        promise(mend.position >= behind, "mends do not overlap");
        behind = mend.position + mend.length;
    }
    promise(behind <= text.size(), "mends lie in their text");
    const QString line = text.section(u'\r', 0, 0);
    for (const TypographyMend &mend :
         typedMends(line, line.size(), {}, rules, typedTypographyKinds()))
        promise(mend.position >= 0 && mend.position + mend.length <= line.size(),
                "typing mends what stands before the caret");
}

// Whatever is read again of a line is read as the whole line is.
void words(const QByteArray &bytes)
{
    const QString line = QString::fromUtf8(bytes).section(u'\n', 0, 0);
    const WordsAndCode whole = spellingWords(line);
    qsizetype end = 0;
    for (const SpellingWord &word : whole.words) {
        promise(word.position >= end && word.length > 0 && !word.text.isEmpty(),
                "words are no empty ones, in their order");
        end = word.position + word.length;
    }
    promise(end <= line.size(), "words lie in their text");
    for (qsizetype at = 0; at <= line.size(); at += 7) {
        const TextRange part = wordsAround(line, {at, at + 2});
        QList<SpellingWord> inside = whole.words;
        inside.removeIf([&part](const SpellingWord &word) {
            return word.position < part.begin || word.position + word.length > part.end;
        });
        QList<SpellingWord> read =
            spellingWords(QStringView(line).mid(part.begin, part.end - part.begin)).words;
        for (SpellingWord &word : read)
            word.position += part.begin;
        promise(read == inside, "a part of a line has the words that the line has there");
    }
}

QList<QByteArray> wordSeeds()
{
    return {"L'\xC3\xA9p\xC3\xA9"
            "e <b>d\xE2\x80\x99or</b>, va-t'en \xC2\xAD au 26 !",
            "moi@ici.fr <img src=x alt='a > b'> https://x.y/<z a\xCC\x81,b"};
}

QList<QByteArray> typographySeeds()
{
    return {" au \nAllez  au 12 ! \"Oui\", dit l'ours... - Bah -- A l'aube, coeur",
            " au \n- Oui.\n- Non!\n\n\n\xc2\xab Quoi?\xc2\xbb <a b=\"c\">d</a> http://a.fr 5'10\"",
            "...\n...12 \"a \"b\" c\" :-) &amp; ex aequo"};
}

// What stands before the first line feed is the text, the rest what the program says of it.
void grammar(const QByteArray &bytes)
{
    const qsizetype end = bytes.indexOf('\n');
    PlainTexts texts;
    texts.texts.at(5) = boxText(bytes.left(end));
    const GrammarTexts book(texts, QStringLiteral(" au "));
    const auto answer = book.answer(bytes.mid(end + 1));
    if (!answer)
        return;
    for (const Finding &finding : stillThere(answer->findings, texts)) {
        promise(finding.position >= 0 && finding.length > 0 &&
                    finding.position + finding.length <= texts.texts.at(5).size(),
                "a finding lies in its text");
        promise(!finding.sentence().isEmpty(), "a finding says something");
    }
}

QList<QByteArray> grammarSeeds()
{
    return {"Les chat dort.\n{\"iParagraph\": 1, \"lGrammarErrors\": [{\"nStart\": 4, \"nEnd\": 8, "
            "\"sType\": \"gn\", \"sMessage\": \"Accord.\", \"aSuggestions\": [\"chats\"]}]},"};
}
} // namespace

QList<FuzzTarget> languageTargets()
{
    return {{"mots", &words, &wordSeeds, LongestText},
            {"typographie", &typography, &typographySeeds, LongestText},
            {"grammaire", &grammar, &grammarSeeds, LongestText}};
}

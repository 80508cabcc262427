#include "editor/language/TypographyCommands.h"
#include "language/typography/FrenchWords.h"
#include "outil/CommandEntry.h"
#include "outil/Commands.h"
#include "outil/Script.h"
#include "store/DamagedTexts.h"

#include <array>

namespace
{
// What the words behind the command ask for.
struct Wanted {
    TypographyKinds kinds;
    bool narrow = false;
    bool withZero = false;
    bool apply = false;
};

Wanted wantedBy(const QStringList &words)
{
    Wanted wanted;
    for (const QString &word : words) {
        if (word == QStringLiteral("appliquer"))
            wanted.apply = true;
        else if (word == QStringLiteral("fines"))
            wanted.narrow = true;
        else if (word == QStringLiteral("0"))
            wanted.withZero = true;
        else if (const std::optional<TypographyKind> kind = typographyKindNamed(word))
            wanted.kinds.set(indexOf(*kind));
        else
            throw UsageError(Commands::tr("appliquer, fines, 0 ou une sorte (%1) attendu : %2")
                                 .arg(typographyKindNames(TypographyKinds().set()), word));
    }
    if (wanted.kinds.none())
        wanted.kinds = safeTypographyKinds();
    return wanted;
}

QByteArray countsOf(const TypographyCommands::Looks &looks, const TypographyKinds &kinds)
{
    std::array<int, TypographyKindCount> counts{};
    for (const auto &[number, look] : looks)
        for (const TypographyMend &mend : look.mends)
            ++counts.at(indexOf(mend.kind));
    QByteArray lines;
    for (std::size_t i = 0; i < counts.size(); ++i)
        if (kinds.test(i))
            lines += typographyKindName(static_cast<TypographyKind>(i)).toUtf8() + '\t' +
                     QByteArray::number(counts.at(i)) + '\n';
    return lines;
}

QByteArray typographie(CommandServices &script, const QStringList &arguments)
{
    const Wanted wanted = wantedBy(arguments);
    TypographyCommands commands(script.variables, script.view, script.view);
    QList<int> unreadable;
    const TypographyRules rules = commands.rules(wanted.narrow, frenchWords(script.variables));
    auto looks = commands.lookAtAll(rules, wanted.withZero, unreadable);
    tellUnreadable(unreadable, script.prompts);
    for (auto &[number, look] : looks)
        look.mends.removeIf(
            [&](const TypographyMend &mend) { return !wanted.kinds.test(indexOf(mend.kind)); });
    if (wanted.apply) {
        commands.apply(looks);
        script.shownAgain(true);
    }
    return countsOf(looks, wanted.kinds);
}
} // namespace

std::vector<CommandEntry> typographyEntries()
{
    return {
        {"typographie", "[appliquer] [SORTE...]",
         QT_TRANSLATE_NOOP("Commands",
                           "compte par sortes ce que la typographie demande ; appliquer le fait, "
                           "fines met l'espace fine devant ; ! et ?, 0 prend aussi ce paragraphe"),
         true, &typographie},
    };
}

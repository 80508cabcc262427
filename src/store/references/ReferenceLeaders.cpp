#include "store/references/ReferenceLeaders.h"

namespace
{
QString pattern(const char *text)
{
    return QString::fromUtf8(text);
}

// What a paragraph may be called before its number.
QString nouns()
{
    return pattern("(?:paragraphes?|numéros?|numeros?|chapitres?|sections?|no\\.?|n\\s?[°º]|§|#)");
}

// A sentence or a part of it ends behind the number, so that nothing is counted.
QString sentenceEnd()
{
    return pattern("^\\s*(?:[.,;:!?)\\]»”\"…]|$|(?:et|ou|sinon|si|pour|puis|où)(?!\\pL))");
}
} // namespace

ReferenceLeaders::ReferenceLeaders(const QString &core, Reach reach)
{
    addUsual(core);
    if (reach == Reach::Wide)
        addWide();
}

std::optional<Unread> ReferenceLeaders::find(const QString &before, const QString &behind) const
{
    for (const Leader &leader : m_leaders) {
        const QRegularExpressionMatch match = leader.before.match(before);
        if (!match.hasMatch() || !leader.behind.match(behind).hasMatch())
            continue;
        const int group = match.capturedStart(1) >= 0 ? 1 : 0;
        return Unread{leader.doubt, before.size() - match.capturedStart(group)};
    }
    return std::nullopt;
}

void ReferenceLeaders::add(Doubt doubt, const QString &before, const QString &behind)
{
    constexpr auto options =
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption;
    m_leaders.push_back(
        {doubt, QRegularExpression(before, options), QRegularExpression(behind, options)});
}

void ReferenceLeaders::addUsual(const QString &core)
{
    const QString word = QRegularExpression::escape(core);
    const QString own = QStringLiteral("(?<!\\pL)") + word;
    const QString list = own + pattern("\\s+\\d{1,4}(?:\\s*,\\s*\\d{1,4})*");
    add(Doubt::WordBetween, own + pattern("x?\\s+(?:%1\\s*)+$").arg(nouns()));
    add(Doubt::WordBetween, own + pattern("\\s*:\\s*$"));
    add(Doubt::PhraseMissing,
        pattern("(?<!\\pL)(?:rendez|rends|reportez|reporte)[- ](?:vous|toi)\\s+$"));
    add(Doubt::PhraseMissing,
        pattern("(?<!\\pL)(?:rendez-vous|rends-toi|reportez-vous|reporte-toi|allez|aller|va|"
                "retourne[rz]?|passez|passer)\\s+((?:à|en|vers\\s+le)\\s+)$"));
    add(Doubt::PhraseMissing, pattern("\\((à\\s+)$"), pattern("^\\)"));
    // "aux 12 et 15", and the second of the two
    add(Doubt::PhraseMissing, own + pattern("x\\s+$"), pattern("^\\s*(?:,|et|ou|à|-|–)\\s*\\d"));
    add(Doubt::PhraseMissing,
        own + pattern("x\\s+(?:(?:paragraphes|numéros)\\s+)?[\\d\\s,]*\\d\\s*((?:,|et|ou|à|-|–)"
                      "\\s*)$"));
    // "au 12, 15 ou 18." with nothing that is counted behind
    add(Doubt::PhraseMissing, list + pattern("\\s+((?:et|ou)\\s+)$"),
        pattern("^\\s*(?:[.,;:!?)]|$)"));
    add(Doubt::PhraseMissing, list + pattern("(\\s*,\\s*)$"),
        pattern("^\\s*(?:,|et|ou)\\s*\\d{1,4}\\s*(?:[.,;:!?)]|et|ou|$)"));
}

void ReferenceLeaders::addWide()
{
    const QString verbs =
        pattern("(?<!\\pL)(?:voir|voyez|vois|cf\\.?|lire|lisez|lis|aller|allez|va|revenir|"
                "revenez|reviens|retourne[rz]?|continuez|continue|poursuivez|poursuis|passe[rz]?|"
                "filez|file|courez|cours|sautez|saute)\\s+");
    add(Doubt::PhraseMissing, verbs + u'$', sentenceEnd());
    add(Doubt::OtherWords,
        verbs + pattern("((?:(?:en|à|le|vers)\\s+)(?:le\\s+)?(?:%1\\s*)?|%1\\s*)$").arg(nouns()),
        sentenceEnd());
    add(Doubt::OtherWords,
        pattern("(?<!\\pL)(?:à|en|vers|dans)\\s+(?:la\\s+|le\\s+|l['’])?%1\\s*$").arg(nouns()),
        sentenceEnd());
    add(Doubt::OtherWords, pattern("§\\s*$"), sentenceEnd());
}

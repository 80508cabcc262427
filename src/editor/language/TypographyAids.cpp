#include "editor/language/TypographyAids.h"

#include "editor/RtfBox.h"
#include "editor/options/EditorComfort.h"
#include "language/typography/FrenchWords.h"
#include "language/typography/TypedTypography.h"
#include "store/Variables.h"

#include <QTimer>

TypographyAids::TypographyAids(const Variables &variables, const ComfortKeeper &comfort,
                               RtfBox &box)
    : QObject(&box), m_variables(variables), m_comfort(comfort), m_box(box)
{
    connect(&comfort, &ComfortKeeper::changed, this, &TypographyAids::follow);
}

// Behind the first paint, and before a key has to wait for it.
void TypographyAids::readDictionary()
{
    m_rules.isWord = frenchWords(m_variables);
    constexpr int later = 500; // milliseconds
    QTimer::singleShot(later, this, [this] {
        if (m_rules.isWord)
            m_rules.isWord(QStringLiteral("a"));
    });
}

void TypographyAids::follow()
{
    const TypographyKinds kinds = m_comfort.comfort().typography & typedTypographyKinds();
    m_rules.narrow = m_comfort.comfort().narrowSpaces;
    if (kinds.none()) {
        m_box.setLineRules({});
        return;
    }
    if (!m_rules.isWord && kinds.test(indexOf(TypographyKind::Capital)))
        readDictionary();
    m_box.setLineRules(
        [this, kinds](const QString &line, qsizetype caret, const QString &previous) {
            m_rules.phrase = m_variables.TargetPhrase;
            QList<Replacement> replacements;
            for (const TypographyMend &mend : typedMends(line, caret, previous, m_rules, kinds))
                replacements.append({mend.position, mend.length, mend.replacement});
            return replacements;
        });
}

#include "editor/language/TypographyAids.h"

#include "editor/RtfBox.h"
#include "editor/options/EditorComfort.h"
#include "language/typography/FrenchWords.h"
#include "language/typography/TypedTypography.h"
#include "store/Variables.h"

TypographyAids::TypographyAids(const Variables &variables, const ComfortKeeper &comfort,
                               RtfBox &box)
    : QObject(&box), m_variables(variables), m_comfort(comfort), m_box(box)
{
    connect(&comfort, &ComfortKeeper::changed, this, &TypographyAids::follow);
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
        m_rules.isWord = frenchWords();
    m_box.setLineRules(
        [this, kinds](const QString &line, qsizetype caret, const QString &previous) {
            m_rules.phrase = m_variables.TargetPhrase;
            QList<Replacement> replacements;
            for (const TypographyMend &mend : typedMends(line, caret, previous, m_rules, kinds))
                replacements.append({mend.position, mend.length, mend.replacement});
            return replacements;
        });
}

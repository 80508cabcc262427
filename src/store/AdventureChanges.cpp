#include "store/AdventureChanges.h"

#include "platform/Errors.h"
#include "store/Session.h"
#include "store/extras/ExtrasBlock.h"

namespace
{
void setFlags(Variables &variables, bool texts, bool marks)
{
    const bool before = hasUnsavedChanges(variables);
    variables.AdventureModified = texts;
    variables.MarksModified = marks;
    if (hasUnsavedChanges(variables) != before)
        Q_EMIT variables.Events->modifiedChanged(!before);
}
} // namespace

bool hasUnsavedChanges(const Variables &variables)
{
    return variables.AdventureModified || variables.MarksModified;
}

void setModified(Variables &variables)
{
    setFlags(variables, true, variables.MarksModified);
}

void setSaved(Variables &variables)
{
    variables.extrasModified = false;
    setFlags(variables, false, false);
}

void setFixed(Variables &variables, int n, bool fixed)
{
    quint8 &mark = variables.Unmixable.at(n);
    if ((mark == 1) == fixed)
        return;
    mark = fixed ? 1 : 0;
    setFlags(variables, variables.AdventureModified, true);
    tryKeepSession(variables);
    Q_EMIT variables.Events->marksChanged();
}

void setTargetPhrase(Variables &variables, const QString &phrase,
                     const ParagraphArray<QString, 2001> &index)
{
    variables.TargetPhrase = phrase;
    variables.refIndex = index;
    setModified(variables);
    tryKeepSession(variables);
    Q_EMIT variables.Events->targetPhraseChanged();
}

void changeExtras(Variables &variables, const AdventureExtras &extras)
{
    const std::optional<AdventureExtras> kept = extrasFrom(bytesOf(extras));
    if (!kept)
        throw LimitError(QStringLiteral("bytes of what an adventure has beside"), LargestExtras);
    if (*kept == variables.extras)
        return;
    variables.extras = *kept;
    variables.extrasModified = true;
    setModified(variables);
    tryKeepSession(variables);
    Q_EMIT variables.Events->extrasChanged();
}

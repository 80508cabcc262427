#include "store/ReplaceQuestions.h"

#include "platform/OpenedFile.h"
#include "platform/Prompts.h"
#include "platform/SafeFile.h"
#include "platform/SameFile.h"
#include "store/DamagedTexts.h"
#include "store/DatedCopies.h"
#include "store/Variables.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>

namespace
{
bool isAllowed(Prompts &prompts, const QString &question)
{
    return prompts.message(question, QCoreApplication::translate("AdventureSave", "Attention !"),
                           Prompts::Buttons::YesNo) == Prompts::Answer::Yes;
}

bool isAnother(OpenedFile *expected, const QString &path)
{
    return expected != nullptr && QFileInfo(path).isFile() && !expected->isStillAt(path);
}

// A save that was killed may have left the file a name among the copies; that one is ours.
bool hasOtherNames(const Variables &variables)
{
    const QString &path = variables.AdventurePath;
    if (!QFileInfo(path).isFile() || namesOf(path) < 2)
        return false;
    const QList<DatedCopy> copies = datedCopies(variables);
    const auto own = std::count_if(copies.begin(), copies.end(), [&](const DatedCopy &copy) {
        return isSameFile(copy.path, path);
    });
    return namesOf(path) - own > 1;
}

// The question names the copy; meanwhile another program may have taken that name.
bool keepsOtherVersion(const Variables &variables, Prompts &prompts)
{
    const QString path = variables.AdventurePath;
    const QString backup = otherVersionPath(path);
    const QString question = QCoreApplication::translate(
        "AdventureSave", "Un autre programme a modifié l'aventure %1 depuis son ouverture. "
                         "Voulez-vous la remplacer par la vôtre ? L'autre version sera "
                         "gardée sous le nom %2.");
    if (!isAllowed(prompts,
                   question.arg(variables.AdventureFileName, QFileInfo(backup).fileName())))
        return false;
    copyFile(path, otherVersionPath(path));
    return true;
}
} // namespace

ReplaceAnswer askToReplace(const Variables &variables, OpenedFile *expected, Prompts &prompts)
{
    ReplaceAnswer answer;
    if (isReadOnly(variables.AdventurePath) &&
        !isAllowed(prompts, QCoreApplication::translate(
                                "AdventureSave",
                                "L'aventure %1 est protégée en écriture. Voulez-vous la remplacer "
                                "quand même ?")
                                .arg(variables.AdventureFileName)))
        return answer;
    if (hasOtherNames(variables) &&
        !isAllowed(prompts,
                   QCoreApplication::translate(
                       "AdventureSave",
                       "Le fichier de l'aventure %1 porte aussi d'autres noms. Voulez-vous "
                       "l'enregistrer sous ce nom seul ? Les autres garderont le texte "
                       "d'avant.")
                       .arg(variables.AdventureFileName)))
        return answer;
    if (isAnother(expected, variables.AdventurePath)) {
        if (!keepsOtherVersion(variables, prompts))
            return answer;
        answer.otherVersionKept = true;
    }
    answer.allowed = true;
    return answer;
}

#include "convert/pdf/PageSetupFile.h"

#include "convert/pdf/PageWords.h"
#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "store/WorkingFiles.h"

namespace
{
constexpr qint64 LargestFile = 64 * 1024;
const QString LineEnd = QStringLiteral("\r\n");
} // namespace

PageSetup readPageSetup(const Variables &variables)
{
    const PageSetup usual = defaultPageSetup(variables);
    PageSetup setup = usual;
    try {
        const QString text =
            QString::fromUtf8(readWholeFile(WorkingFiles(variables).pageSetup(), LargestFile));
        for (const QString &word : text.split(LineEnd, Qt::SkipEmptyParts))
            setPageWords(setup, {word}); // those of a later version say nothing here
    } catch (const UsmiraError &) {
        return usual; // none yet, or none that can be read
    }
    return pageSetupFault(setup).isEmpty() ? setup : usual;
}

void keepPageSetup(const Variables &variables, const PageSetup &setup)
{
    try {
        writeWholeFile(WorkingFiles(variables).pageSetup(),
                       (pageWords(setup).join(LineEnd) + LineEnd).toUtf8(), Durability::Data,
                       Links::Replace);
    } catch (const UsmiraError &) {
        return;
    }
}

#include "platform/Translations.h"

#include <QCoreApplication>
#include <QTranslator>

void loadTranslations()
{
    Q_INIT_RESOURCE(translations); // a static library brings its resources only when asked
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(QStringLiteral(":/translations/usmira_fr.qm")))
        QCoreApplication::installTranslator(translator);
}

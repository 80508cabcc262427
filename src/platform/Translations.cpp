#include "platform/Translations.h"

#include <QCoreApplication>
#include <QTranslator>

Language desktopLanguage()
{
    const QStringList wanted = QLocale::system().uiLanguages();
    return wanted.value(0).startsWith(QStringLiteral("fr")) ? Language::French : Language::English;
}

void loadTranslations(Language language)
{
    Q_INIT_RESOURCE(translations); // a static library brings its resources only when asked
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(language == Language::French
                             ? QStringLiteral(":/translations/usmira_fr.qm")
                             : QStringLiteral(":/translations/usmira_en.qm")))
        QCoreApplication::installTranslator(translator);
}

QLocale localeOfTexts()
{
    //: The language of the translation, with its country.
    return QLocale(QCoreApplication::translate("Translations", "fr_FR"));
}

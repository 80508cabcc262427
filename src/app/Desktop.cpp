#include "app/Desktop.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>

namespace
{
void chooseIcons()
{
    const bool dark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
    QIcon::setFallbackThemeName(dark ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"));
    // Icons already shown look their theme up again only when a theme name is set.
    QIcon::setThemeName({});
}
} // namespace

Desktop::Desktop(QApplication &application)
{
    chooseIcons();
    application.installEventFilter(this);
    if (m_french.load(QStringLiteral("qtbase_fr"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_french);
}

bool Desktop::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange &&
        watched == QCoreApplication::instance())
        chooseIcons();
    return QObject::eventFilter(watched, event);
}

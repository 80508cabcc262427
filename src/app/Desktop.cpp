#include "app/Desktop.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <utility>

namespace
{
void chooseIcons()
{
    const bool dark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
    QIcon::setFallbackThemeName(dark ? QStringLiteral("breeze-dark") : QStringLiteral("breeze"));
    // Icons already shown look their theme up again only when a theme name is set.
    QIcon::setThemeName({});
}
struct Tones {
    QColor window, base, button, text, faint, highlight, link;
};

QPalette paletteOf(const Tones &tones)
{
    QPalette palette(tones.button, tones.window);
    palette.setColor(QPalette::Base, tones.base);
    palette.setColor(QPalette::AlternateBase, tones.window);
    palette.setColor(QPalette::ToolTipBase, tones.button);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, tones.text);
    palette.setColor(QPalette::PlaceholderText, tones.faint);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, tones.faint);
    palette.setColor(QPalette::Highlight, tones.highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, tones.link);
    palette.setColor(QPalette::LinkVisited, tones.link);
    return palette;
}

QPalette paletteOf(EditorComfort::Colours colours)
{
    switch (colours) {
    case EditorComfort::Colours::Light:
        return paletteOf({0xeff0f1, 0xffffff, 0xeff0f1, 0x232629, 0x6b6f73, 0x2a6f97, 0x1a5f8a});
    case EditorComfort::Colours::Dark:
        return paletteOf({0x2a2e32, 0x1b1e20, 0x31363b, 0xfcfcfc, 0xa0a4a8, 0x2a6f97, 0x6cb8e6});
    case EditorComfort::Colours::Desktop:
        break;
    }
    return {};
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

void Desktop::show(EditorComfort::Colours colours)
{
    if (std::exchange(m_colours, colours) == colours)
        return;
    QApplication::setPalette(paletteOf(colours));
    chooseIcons(); // before the program runs nobody is told of another palette
}

bool Desktop::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange &&
        watched == QCoreApplication::instance())
        chooseIcons();
    return QObject::eventFilter(watched, event);
}

#include "app/Desktop.h"

#include "platform/Translations.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QStyle>
#include <utility>

namespace
{
bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

// Where there are no icon themes the program brings its own.
void findCarriedIcons()
{
    const QString carried =
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("icons"));
    if (QFileInfo(carried).isDir())
        QIcon::setThemeSearchPaths({carried});
}

// A desktop without an icon theme of its own would keep the bundled theme that it had first; and
// the theme of one with another lightness than the author's cannot be read.
void chooseIcons(const QPalette &palette, bool ownColours)
{
    const QString bundled =
        isDark(palette) ? QStringLiteral("breeze-dark") : QStringLiteral("breeze");
    QIcon::setFallbackThemeName(bundled);
    QIcon::setThemeName({});
    const QString desktops = QIcon::themeName();
    if (ownColours || desktops.isEmpty() || desktops == QStringLiteral("hicolor"))
        QIcon::setThemeName(bundled);
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

Desktop::Desktop(QApplication &application) : m_nativeStyle(QApplication::style()->name())
{
    findCarriedIcons();
    chooseStyle(QGuiApplication::palette());
    chooseIcons(QGuiApplication::palette(), false);
    application.installEventFilter(this);
}

void Desktop::speak(EditorComfort::Language chosen)
{
    const bool english =
        chosen == EditorComfort::Language::English ||
        (chosen == EditorComfort::Language::Desktop && desktopLanguage() == Language::English);
    loadTranslations(english ? Language::English : Language::French);
    if (!english && m_french.load(QStringLiteral("qtbase_fr"),
                                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_french);
}

// The style of Windows draws its controls light, whatever the palette.
void Desktop::chooseStyle(const QPalette &palette)
{
    if (m_nativeStyle != QStringLiteral("windowsvista"))
        return;
    const QString wanted = isDark(palette) ? QStringLiteral("fusion") : m_nativeStyle;
    if (QApplication::style()->name() != wanted)
        QApplication::setStyle(wanted);
}

void Desktop::show(EditorComfort::Colours colours)
{
    if (std::exchange(m_colours, colours) == colours)
        return;
    const bool own = colours != EditorComfort::Colours::Desktop;
    const QPalette palette = paletteOf(colours);
    // Before the program runs nobody is told of another palette; and some draw their icons then.
    if (own)
        chooseIcons(palette, true);
    QApplication::setPalette(palette);
    chooseStyle(QGuiApplication::palette());
    if (!own)
        chooseIcons(QGuiApplication::palette(), false);
}

bool Desktop::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange &&
        watched == QCoreApplication::instance()) {
        chooseStyle(QGuiApplication::palette());
        chooseIcons(QGuiApplication::palette(), m_colours != EditorComfort::Colours::Desktop);
    }
    return QObject::eventFilter(watched, event);
}

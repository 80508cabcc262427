#include <QFont>
#include <QStringList>

namespace
{
// Without a screen Qt on Windows knows the fonts of one folder, and no other names for them.
const bool fontsHaveTheirNames = [] {
    const QString serif = QStringLiteral("Liberation Serif");
    const QString sans = QStringLiteral("Liberation Sans");
    const QString mono = QStringLiteral("Liberation Mono");
    const QString standard = QStringLiteral("DejaVu Sans");
    QFont::insertSubstitution(QStringLiteral("Times New Roman"), serif);
    QFont::insertSubstitution(QStringLiteral("serif"), serif);
    QFont::insertSubstitution(QStringLiteral("Arial"), sans);
    QFont::insertSubstitution(QStringLiteral("Courier New"), mono);
    QFont::insertSubstitution(QStringLiteral("monospace"), mono);
    QFont::insertSubstitution(QStringLiteral("sans-serif"), standard);
    QFont::insertSubstitution(QStringLiteral("Sans Serif"), standard);
    return true;
}();
} // namespace

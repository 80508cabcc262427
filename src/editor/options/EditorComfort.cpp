#include "editor/options/EditorComfort.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"

#include <QDir>
#include <algorithm>

namespace
{
constexpr qint64 LargestFile = 128 * 1024;
constexpr int LongestPath = 4096;
constexpr int LongestName = 64; // of a dictionary

const QStringList &colourNames()
{
    static const QStringList names{QStringLiteral("bureau"), QStringLiteral("claires"),
                                   QStringLiteral("sombres")};
    return names;
}

const QStringList &languageNames()
{
    static const QStringList names{QStringLiteral("fr"), QStringLiteral("en"),
                                   QStringLiteral("bureau")};
    return names;
}

void readNumber(const QString &text, int lowest, int highest, int &value)
{
    bool ok = false;
    const int number = text.toInt(&ok);
    if (ok && number >= lowest && number <= highest)
        value = number;
}

bool readFlag(const QString &name, const QString &value, EditorComfort &comfort)
{
    const std::initializer_list<std::pair<QStringView, bool *>> flags{
        {u"renvois", &comfort.underlines},
        {u"orthographe", &comfort.spelling},
        {u"capitales", &comfort.skipsCapitals},
        {u"chiffres", &comfort.skipsDigits},
        {u"fines", &comfort.narrowSpaces}};
    for (const auto &[known, flag] : flags)
        if (name == known) {
            *flag = value != QStringLiteral("0");
            return true;
        }
    return false;
}

bool isPath(const QString &text)
{
    return text.size() <= LongestPath && QDir::isAbsolutePath(text) &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c.isPrint(); });
}

void readValue(const QString &name, const QString &value, EditorComfort &comfort)
{
    using Comfort = EditorComfort;
    if (readFlag(name, value, comfort))
        return;
    if (name == QStringLiteral("zoom"))
        readNumber(value, Comfort::LeastZoom, Comfort::MostZoom, comfort.zoom);
    else if (name == QStringLiteral("page"))
        readNumber(value, Comfort::NarrowestPage, Comfort::WidestPage, comfort.pageWidth);
    else if (name == QStringLiteral("couleurs") && colourNames().contains(value))
        comfort.colours = static_cast<Comfort::Colours>(colourNames().indexOf(value));
    else if (name == QStringLiteral("rouvrir"))
        comfort.reopenLast = value == QStringLiteral("1");
    else if (name == QStringLiteral("dictionnaire") && !value.isEmpty() &&
             value.size() <= LongestName)
        comfort.dictionary = value;
    else if (name == QStringLiteral("typographie"))
        comfort.typography = typographyKindsNamed(value) & typedTypographyKinds();
    else if (name == QStringLiteral("langue") && languageNames().contains(value))
        comfort.language = static_cast<Comfort::Language>(languageNames().indexOf(value));
    else if (name == QStringLiteral("aventure") && isPath(value) &&
             comfort.adventures.size() < Comfort::MostAdventures &&
             !comfort.adventures.contains(value))
        comfort.adventures.append(value);
}

QString line(const QString &name, const QString &value)
{
    return name + u'=' + value + QStringLiteral("\r\n");
}
} // namespace

EditorComfort readComfort(const QString &path)
{
    EditorComfort comfort;
    try {
        const QString text = QString::fromUtf8(readWholeFile(path, LargestFile));
        QStringList lines = text.split(u'\n');
        lines.replaceInStrings(QStringLiteral("\r"), QString());
        for (const QString &one : lines)
            readValue(one.section(u'=', 0, 0), one.section(u'=', 1), comfort);
    } catch (const UsmiraError &) {
        return {}; // none yet, or none that can be read
    }
    return comfort;
}

void writeComfort(const QString &path, const EditorComfort &comfort)
{
    const auto colours = static_cast<qsizetype>(comfort.colours);
    const auto language = static_cast<qsizetype>(comfort.language);
    QString text =
        line(QStringLiteral("zoom"), QString::number(comfort.zoom)) +
        line(QStringLiteral("page"), QString::number(comfort.pageWidth)) +
        line(QStringLiteral("couleurs"), colourNames().at(colours)) +
        line(QStringLiteral("rouvrir"), QString::number(comfort.reopenLast ? 1 : 0)) +
        line(QStringLiteral("renvois"), QString::number(comfort.underlines ? 1 : 0)) +
        line(QStringLiteral("orthographe"), QString::number(comfort.spelling ? 1 : 0)) +
        line(QStringLiteral("dictionnaire"), comfort.dictionary) +
        line(QStringLiteral("capitales"), QString::number(comfort.skipsCapitals ? 1 : 0)) +
        line(QStringLiteral("chiffres"), QString::number(comfort.skipsDigits ? 1 : 0)) +
        line(QStringLiteral("typographie"), typographyKindNames(comfort.typography)) +
        line(QStringLiteral("fines"), QString::number(comfort.narrowSpaces ? 1 : 0)) +
        line(QStringLiteral("langue"), languageNames().at(language));
    for (const QString &adventure : comfort.adventures)
        text += line(QStringLiteral("aventure"), adventure);
    writeWholeFile(path, text.toUtf8(), Durability::Data, Links::Replace);
}

void ComfortKeeper::load(const QString &path)
{
    m_path = path;
    m_kept = readComfort(path);
    change(m_kept);
}

void ComfortKeeper::save()
{
    if (m_path.isEmpty() || m_comfort == m_kept)
        return;
    try {
        writeComfort(m_path, m_comfort);
        m_kept = m_comfort;
    } catch (const UsmiraError &) {
        return; // the next start has that of before
    }
}

void ComfortKeeper::change(EditorComfort comfort)
{
    comfort.zoom = std::clamp(comfort.zoom, EditorComfort::LeastZoom, EditorComfort::MostZoom);
    comfort.pageWidth =
        std::clamp(comfort.pageWidth, EditorComfort::NarrowestPage, EditorComfort::WidestPage);
    if (comfort == m_comfort)
        return;
    m_comfort = comfort;
    Q_EMIT changed();
}

void ComfortKeeper::zoomTo(int percent)
{
    EditorComfort comfort = m_comfort;
    comfort.zoom = percent;
    change(comfort);
}

// A name that a line of the file cannot hold is not kept.
void ComfortKeeper::remember(const QString &adventurePath)
{
    const QString path = QDir::cleanPath(QDir().absoluteFilePath(adventurePath));
    if (!isPath(path) || m_comfort.adventures.value(0) == path)
        return;
    EditorComfort comfort = m_comfort;
    comfort.adventures.removeAll(path);
    comfort.adventures.prepend(path);
    comfort.adventures = comfort.adventures.mid(0, EditorComfort::MostAdventures);
    change(comfort);
}

#include "app/Settings.h"

#include "platform/Errors.h"
#include "platform/SafeFile.h"
#include "richtext/CodePage.h"

#include <QStringList>
#include <limits>

namespace
{
constexpr qint64 LargestSettings = 64 * 1024;
constexpr int LongestFontName = 255;
constexpr int LargestFontSize = 1638; // points, what a text may have

// The fields of one line. Reading stops for good at the first field that is not what it should be.
class FieldReader
{
public:
    explicit FieldReader(const QString &line) : m_fields(line.split(u',')) {}

    void truth(bool &value)
    {
        const QString field = next();
        if (field == QStringLiteral("#TRUE#") || field == QStringLiteral("#FALSE#"))
            value = field == QStringLiteral("#TRUE#");
        else
            m_stopped = true;
    }

    void flag(qint16 &value)
    {
        int number = value;
        whole(number, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max());
        value = number != 0 ? -1 : 0;
    }

    void whole(int &value, int lowest, int highest)
    {
        bool ok = false;
        const int number = next().toInt(&ok);
        if (!ok || m_stopped || number < lowest || number > highest)
            m_stopped = true;
        else
            value = number;
    }

private:
    QString next()
    {
        if (m_stopped || m_next >= m_fields.size()) {
            m_stopped = true;
            return {};
        }
        return m_fields.at(m_next++).trimmed();
    }

    QStringList m_fields;
    qsizetype m_next = 0;
    bool m_stopped = false;
};

// A font name may hold commas, so that its line is one field.
void readFontName(const QString &line, QString &name)
{
    const QString field = line.trimmed();
    const bool quoted = field.size() > 2 && field.startsWith(u'"') && field.endsWith(u'"');
    if (quoted && field.size() - 2 <= LongestFontName)
        name = field.mid(1, field.size() - 2);
}

void readLines(const QStringList &lines, Variables &v, WindowGeometry &geometry)
{
    constexpr int farthest = 1000000; // twips, far beyond any screen
    FieldReader first(lines.value(0));
    first.truth(v.optNDash);
    first.truth(v.optMDash);
    first.truth(v.optBullet);
    first.flag(v.optEllipsis);
    FieldReader second(lines.value(1));
    second.truth(v.optFrenchQuotes);
    second.truth(v.optLigatureAE);
    second.truth(v.optLigatureOE);
    second.flag(v.optNbsp);
    FieldReader third(lines.value(2));
    third.truth(v.optCtrlECentres);
    third.flag(v.showTabPanel);
    FieldReader fourth(lines.value(3));
    fourth.whole(geometry.width, 1, farthest);
    fourth.whole(geometry.height, 1, farthest);
    fourth.whole(geometry.left, -farthest, farthest);
    fourth.whole(geometry.top, -farthest, farthest);
    readFontName(lines.value(4), v.defaultFontName);
    int size = v.defaultFontSize;
    FieldReader(lines.value(5)).whole(size, 1, LargestFontSize);
    v.defaultFontSize = static_cast<qint16>(size);
}

QString truth(bool value)
{
    return value ? QStringLiteral("#TRUE#") : QStringLiteral("#FALSE#");
}

QString line(const QStringList &fields)
{
    return fields.join(u',') + QStringLiteral("\r\n");
}
} // namespace

void readSettings(const QString &path, Variables &variables, WindowGeometry &geometry)
{
    try {
        const QString text = fromWindows1252(readWholeFile(path, LargestSettings));
        readLines(text.split(u'\n'), variables, geometry);
    } catch (const UsmiraError &) {
        return; // no settings yet, or none that can be read: the defaults stand
    }
}

void writeSettings(const QString &path, const Variables &v, const WindowGeometry &geometry)
{
    const auto number = [](int n) { return QString::number(n); };
    const QString text =
        line({truth(v.optNDash), truth(v.optMDash), truth(v.optBullet), number(v.optEllipsis)}) +
        line({truth(v.optFrenchQuotes), truth(v.optLigatureAE), truth(v.optLigatureOE),
              number(v.optNbsp)}) +
        line({truth(v.optCtrlECentres), number(v.showTabPanel)}) +
        line({number(geometry.width), number(geometry.height), number(geometry.left),
              number(geometry.top)}) +
        line({u'"' + v.defaultFontName + u'"'}) + line({number(v.defaultFontSize)});
    // A font name that Windows-1252 cannot hold is read back as none, and the default stands.
    writeWholeFile(path, toWindows1252(text).value_or(text.toLatin1()), Durability::Full,
                   Links::Replace);
}

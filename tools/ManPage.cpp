#include "ManPage.h"

#include "platform/Errors.h"

#include <QRegularExpression>

namespace
{
// The formatter would take a bare hyphen for a typographic one, which nobody can search for.
QString escaped(QChar c)
{
    switch (c.unicode()) {
    case u'-':
        return QStringLiteral("\\-");
    case u'\\':
        return QStringLiteral("\\e");
    case u'\'':
        return QStringLiteral("\\(aq");
    default:
        return c;
    }
}

QString roff(const QString &text)
{
    QString out = text.startsWith(u'.') ? QStringLiteral("\\&") : QString();
    bool marked = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool bold = text.mid(i, 2) == QStringLiteral("**");
        if (text.at(i) == u'*') {
            marked = !marked;
            out += !marked ? QStringLiteral("\\fR")
                   : bold  ? QStringLiteral("\\fB")
                           : QStringLiteral("\\fI");
            i += bold ? 1 : 0;
            continue;
        }
        if (text.at(i) == u'\\' && i + 1 < text.size())
            ++i; // the next character stands for itself
        out += escaped(text.at(i));
    }
    return out;
}

QString entry(const QString &text)
{
    static const QRegularExpression headed(QStringLiteral("^(.*?\\*\\*)\\s?: (.*)$"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = headed.match(text);
    if (!match.hasMatch())
        throw FormatError(0, QStringLiteral("the head of an entry in ") + text);
    return QStringLiteral(".TP\n") + roff(match.captured(1)) + u'\n' + roff(match.captured(2));
}

QString block(const QString &line)
{
    static const QRegularExpression smallTitle(QStringLiteral("^(\\w+)\\s?:$"),
                                               QRegularExpression::UseUnicodePropertiesOption);
    if (line.startsWith(QStringLiteral("# ")))
        return QStringLiteral(".TH ") + line.mid(2).toUpper() + QStringLiteral(" \"\" Usmira");
    if (line.startsWith(QStringLiteral("## ")))
        return QStringLiteral(".SH \"") + line.mid(3) + u'"';
    if (line.startsWith(QStringLiteral("- ")))
        return entry(line.mid(2));
    if (const auto match = smallTitle.match(line); match.hasMatch())
        return QStringLiteral(".SS ") + match.captured(1);
    return QStringLiteral(".PP\n") + roff(line);
}
} // namespace

QByteArray manPage(const QStringList &lines)
{
    QString page;
    for (const QString &line : lines)
        if (!line.isEmpty())
            page += block(line) + u'\n';
    return page.toUtf8();
}

QStringList sectionOf(const QStringList &lines, const QString &title)
{
    const qsizetype begin = lines.indexOf(QStringLiteral("## ") + title);
    if (begin < 0)
        throw FormatError(0, QStringLiteral("the title ") + title);
    QStringList section;
    for (const QString &line : lines.mid(begin + 1)) {
        if (line.startsWith(QStringLiteral("## ")))
            break;
        section.append(line);
    }
    return section;
}

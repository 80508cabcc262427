#include "Markup.h"

#include "platform/Errors.h"
#include "richtext/RichTextBox.h"

#include <QMap>

namespace
{
constexpr double TextSize = 12;
constexpr double TitleSize = 18;
constexpr double SubtitleSize = 14;

QRgb colorNamed(const QString &name)
{
    static const QMap<QString, QRgb> colors{
        {QStringLiteral("noir"), qRgb(0, 0, 0)},
        {QStringLiteral("bleu"), qRgb(0, 0, 255)},
        {QStringLiteral("cyan"), qRgb(0, 255, 255)},
        {QStringLiteral("gris"), qRgb(128, 128, 128)},
        {QStringLiteral("vert"), qRgb(0, 255, 0)},
        {QStringLiteral("magenta"), qRgb(255, 0, 255)},
        {QStringLiteral("orange"), qRgb(255, 128, 0)},
        {QStringLiteral("violet"), qRgb(204, 0, 255)},
        {QStringLiteral("rouge"), qRgb(255, 0, 0)},
        {QStringLiteral("jaune"), qRgb(255, 255, 0)},
    };
    const auto found = colors.find(name);
    if (found == colors.end())
        throw FormatError(0, QStringLiteral("a colour instead of ") + name);
    return *found;
}

struct Style {
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
    QRgb color = qRgb(0, 0, 0);
    double size = TextSize;
};

// Of what is written next.
void setStyle(RichTextBox &box, const Style &style)
{
    box.setSelBold(style.bold);
    box.setSelItalic(style.italic);
    box.setSelUnderline(style.underline);
    box.setSelStrikeThru(style.strike);
    box.setSelColor(style.color);
    box.setSelFontSize(style.size);
}

class LineAppender
{
public:
    LineAppender(RichTextBox &box, const QString &line) : m_box(box), m_rest(line) {}

    void append()
    {
        m_box.select(static_cast<int>(m_box.text().size()), 0);
        takePrefix();
        while (!m_rest.isEmpty())
            takeOne();
        flush();
        if (m_style.italic || m_style.underline || m_style.strike ||
            m_style.color != qRgb(0, 0, 0) || m_style.bold != (m_style.size > TextSize))
            throw FormatError(0, QStringLiteral("a closing mark"));
    }

private:
    bool takeIf(const QString &mark)
    {
        if (!m_rest.startsWith(mark))
            return false;
        m_rest = m_rest.mid(mark.size());
        return true;
    }

    void takePrefix()
    {
        auto alignment = RichTextBox::Alignment::Left;
        if (takeIf(QStringLiteral("^ ")))
            alignment = RichTextBox::Alignment::Centre;
        else if (takeIf(QStringLiteral("> ")))
            alignment = RichTextBox::Alignment::Right;
        m_box.setSelAlignment(alignment);
        m_box.setSelBullet(takeIf(QStringLiteral("- ")));
        if (takeIf(QStringLiteral("# ")))
            m_style.size = TitleSize;
        else if (takeIf(QStringLiteral("## ")))
            m_style.size = SubtitleSize;
        m_style.bold = m_style.size > TextSize;
    }

    void takeOne()
    {
        if (takeIf(QStringLiteral("**")))
            toggle(&Style::bold);
        else if (takeIf(QStringLiteral("__")))
            toggle(&Style::underline);
        else if (takeIf(QStringLiteral("~~")))
            toggle(&Style::strike);
        else if (takeIf(QStringLiteral("*")))
            toggle(&Style::italic);
        else if (takeIf(QStringLiteral("{")))
            setColor(colorNamed(takeColorName()));
        else if (takeIf(QStringLiteral("}")))
            setColor(qRgb(0, 0, 0));
        else {
            takeIf(QStringLiteral("\\")); // the next character stands for itself
            takeCharacter();
        }
    }

    QString takeColorName()
    {
        const qsizetype bar = m_rest.indexOf(u'|');
        const QString name = m_rest.left(bar);
        m_rest = bar < 0 ? QString() : m_rest.mid(bar + 1);
        return name;
    }

    void takeCharacter()
    {
        m_run += m_rest.left(1);
        m_rest = m_rest.mid(1);
    }

    void toggle(bool Style::*flag)
    {
        flush();
        m_style.*flag = !(m_style.*flag);
    }

    void setColor(QRgb color)
    {
        flush();
        m_style.color = color;
    }

    void flush()
    {
        if (m_run.isEmpty())
            return;
        setStyle(m_box, m_style);
        m_box.setSelText(m_run);
        m_run.clear();
    }

    RichTextBox &m_box;
    QString m_rest;
    QString m_run;
    Style m_style;
};
} // namespace

void appendMarkup(RichTextBox &box, const QString &line)
{
    LineAppender(box, line).append();
}

void setMarkup(RichTextBox &box, QStringList lines)
{
    while (!lines.isEmpty() && lines.first().trimmed().isEmpty())
        lines.removeFirst();
    while (!lines.isEmpty() && lines.last().trimmed().isEmpty())
        lines.removeLast();
    box.setText(QString());
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            box.select(static_cast<int>(box.text().size()), 0);
            setStyle(box, Style());
            box.setSelText(QStringLiteral("\r\n"));
        }
        appendMarkup(box, lines.at(i));
    }
}

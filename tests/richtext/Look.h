#pragma once

#include "richtext/HiddenBox.h"

#include <QTextBlock>
#include <QTextDocument>

struct WithText : HiddenBox {
    explicit WithText(const QString &text) { setText(text); }
};

struct WithRtf : HiddenBox {
    explicit WithRtf(const QByteArray &rtf) { setRtf(rtf); }
};

inline RichTextBox &at(RichTextBox &box, int start, int length)
{
    box.select(start, length);
    return box;
}

// How the selection is formatted, in words such as "b Arial 10.5 #ff0000 r * li1 t2.5", without
// what a new text has anyway. A question mark stands behind the names of mixed attributes.
inline QString look(const RichTextBox &box)
{
    QString words;
    const auto add = [&words](const QString &name, const auto &value, const auto &usual,
                              const auto &shown) {
        if (value != usual)
            words += u' ' + name + (value ? shown(*value) : QStringLiteral("?"));
    };
    const auto nothing = [](bool) { return QString(); };
    const auto number = [](double value) { return QString::number(qRound(value * 100) / 100.0); };
    for (const auto &[name, on] : {std::pair("b", box.selBold()),
                                   {"i", box.selItalic()},
                                   {"ul", box.selUnderline()},
                                   {"strike", box.selStrikeThru()}})
        add(name, on, false, nothing);
    add("", box.selFontName(), box.baseFont().family(), [](const QString &name) { return name; });
    add("", box.selFontSize(), box.baseFont().pointSizeF(), number);
    add("", box.selColor(), qRgb(0, 0, 0), [](QRgb rgb) { return QColor(rgb).name(); });
    add("", box.selAlignment(), RichTextBox::Alignment::Left, [](auto alignment) {
        return QString(alignment == RichTextBox::Alignment::Right ? u'r' : u'c');
    });
    add("*", box.selBullet(), false, nothing);
    add("li", box.selIndent(), 0.0, number);
    add("fi", box.selHangingIndent(), 0.0, number);
    add("ri", box.selRightIndent(), 0.0, number);
    add("t", box.selTabs(), QList<double>(), [&number](const QList<double> &tabs) {
        QStringList places;
        for (const double tab : tabs)
            places += number(tab);
        return places.join(u',');
    });
    return words.mid(1);
}

inline QString look(RichTextBox &box, int start, int length)
{
    return look(at(box, start, length));
}

// All runs as "[text look]", paragraphs parted by "/".
inline QString looks(RichTextBox &box)
{
    QStringList lines;
    for (auto block = box.document()->begin(); block.isValid(); block = block.next()) {
        QString line;
        for (auto run = block.begin(); !run.atEnd(); ++run) {
            const QTextFragment part = run.fragment();
            const QString words = look(box, part.position() + block.blockNumber(), part.length());
            line += u'[' + (part.text() + u' ' + words).trimmed() + u']';
        }
        lines += line;
    }
    return lines.join(u'/');
}

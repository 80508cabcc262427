#include "Seeds.h"

#include "richtext/HiddenBox.h"
#include "support/AdventureBuilder.h"

#include <QFile>

namespace
{
// One text with every kind of formatting that the box knows.
QByteArray formatted()
{
    HiddenBox box;
    box.setText(QStringLiteral("Rendez-vous au 26.\r\nÀ l’œil nu\u00a0: 1 €\r\npuce\r\nfin"));
    box.select(0, 12);
    box.setSelBold(true);
    box.setSelColor(qRgb(200, 0, 30));
    box.select(6, 9);
    box.setSelItalic(true);
    box.setSelFontName(QStringLiteral("Courier"));
    box.select(20, 4);
    box.setSelUnderline(true);
    box.setSelFontSize(19.5);
    box.setSelAlignment(RichTextBox::Alignment::Centre);
    box.setSelTabs({1, 2.5});
    box.select(40, 2);
    box.setSelStrikeThru(true);
    box.setSelBullet(true);
    box.setSelIndent(1.5);
    return box.rtf();
}

// Pages of the help, each short enough for many to be tried in a second.
QList<QByteArray> helpPages()
{
    QFile file(QStringLiteral(USMIRA_RESOURCES "/documents/Aide Française.rtf"));
    file.open(QIODevice::ReadOnly);
    const QByteArray help = file.readAll();
    const qsizetype head = help.indexOf("\\pard");
    QList<QByteArray> pages;
    for (qsizetype at = head; at < help.size() && pages.size() < 8; at += 4000)
        pages.append(help.first(head) + help.sliced(at).first(qMin(600, help.size() - at)));
    return pages;
}
} // namespace

QList<QByteArray> rtfSeeds()
{
    const QByteArray small(
        R"({\rtf1\ansi\ansicpg1252\uc1 a\u8364\'80\u-10179 ?\u-8704 ?\line\tab b})");
    const QByteArray fonts(
        "\xef\xbb\xbf"
        R"({\rtf1\mac\deff1{\fonttbl{\f1\fcharset2 Symbol;}{\f2\fcharset128 MS;}})"
        R"(\f2\'83\'65\f1\'b7{\*\unknown x}{\pict 0011}\bin3 {{{}})");
    const QByteArray others(R"({\rtf1{\field{\*\fldinst HYPERLINK "x"}{\fldrslt{\ul lien}}})"
                            R"({\upr{a}{\*\ud \u233\'e9}}{\footnote n}\trowd\cellx10 a\cell\row)"
                            R"({\pntext\f1\'B7\tab}{\*\pn\pnlvlblt}\fi-284\li284 b\par\page})");
    return helpPages() + QList<QByteArray>{formatted(),
                                           rtfOf(QStringLiteral("Allez au 12 ou au 340")), small,
                                           fonts, others};
}

QList<QByteArray> adventureSeeds()
{
    const AdventureBuilder small({QStringLiteral("1: Allez au 3"), QStringLiteral("3!: Fin")});
    AdventureBuilder rich({QStringLiteral("0: Avant"), QStringLiteral("26: Allez au 2000"),
                           QStringLiteral("2000!: Fin")});
    rich.phrase("rendez-vous au ").current(26).list(26, "2000/").rawText(0, formatted());
    return {small.bytes(), rich.bytes(), AdventureBuilder().bytes(), small.oldBytes(25),
            small.oldBytes(12)};
}

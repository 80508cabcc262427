// The selection attributes of RichTextBox.
#include "platform/Twips.h"
#include "richtext/RichTextBox.h"
#include "richtext/SelectionFormats.h"
#include "richtext/TextCleaning.h"
#include "richtext/TextStates.h"

#include <QTextDocument>
#include <algorithm>
#include <cmath>

namespace
{
double centimetresOfTwips(int twips)
{
    return twips / Twips::PerCentimetre;
}

int twipsOfCentimetres(double centimetres)
{
    if (!std::isfinite(centimetres))
        return 0;
    constexpr double limit = ParagraphState::MaxTwips;
    return qRound(std::clamp(centimetres * Twips::PerCentimetre, -limit, limit));
}
} // namespace

std::optional<bool> RichTextBox::selHas(bool (*has)(const QTextCharFormat &)) const
{
    return SelectionFormats::commonOfRuns(cursor(), has);
}

std::optional<bool> RichTextBox::selBold() const
{
    return selHas([](const QTextCharFormat &f) { return f.fontWeight() >= QFont::DemiBold; });
}

std::optional<bool> RichTextBox::selItalic() const
{
    return selHas([](const QTextCharFormat &f) { return f.fontItalic(); });
}

std::optional<bool> RichTextBox::selUnderline() const
{
    return selHas([](const QTextCharFormat &f) { return f.fontUnderline(); });
}

std::optional<bool> RichTextBox::selStrikeThru() const
{
    return selHas([](const QTextCharFormat &f) { return f.fontStrikeOut(); });
}

std::optional<QString> RichTextBox::selFontName() const
{
    return SelectionFormats::commonOfRuns(cursor(), [this](const QTextCharFormat &format) {
        return CharState::of(format, m_baseFont).family;
    });
}

std::optional<double> RichTextBox::selFontSize() const
{
    return SelectionFormats::commonOfRuns(cursor(), [this](const QTextCharFormat &format) {
        return CharState::of(format, m_baseFont).halfPoints / 2.0;
    });
}

std::optional<QRgb> RichTextBox::selColor() const
{
    return SelectionFormats::commonOfRuns(cursor(), [this](const QTextCharFormat &format) {
        return CharState::of(format, m_baseFont).colour.value_or(qRgb(0, 0, 0));
    });
}

// Without a selection the format is that of what is typed next, and belongs to the caret.
void RichTextBox::mergeChars(const QTextCharFormat &format)
{
    QTextCursor selection = cursor();
    if (selection.hasSelection()) {
        SelectionFormats::mergeIntoRuns(selection, format);
        return;
    }
    selection.mergeCharFormat(format);
    setCursor(selection);
}

void RichTextBox::setSelBold(bool on)
{
    QTextCharFormat format;
    format.setFontWeight(on ? QFont::Bold : QFont::Normal);
    mergeChars(format);
}

void RichTextBox::setSelItalic(bool on)
{
    QTextCharFormat format;
    format.setFontItalic(on);
    mergeChars(format);
}

void RichTextBox::setSelUnderline(bool on)
{
    QTextCharFormat format;
    format.setFontUnderline(on);
    mergeChars(format);
}

void RichTextBox::setSelStrikeThru(bool on)
{
    QTextCharFormat format;
    format.setFontStrikeOut(on);
    mergeChars(format);
}

void RichTextBox::setSelFontName(const QString &name)
{
    const QString cleaned = cleanedFontName(name);
    if (cleaned.isEmpty())
        return;
    QTextCharFormat format;
    format.setFontFamilies({cleaned});
    mergeChars(format);
}

void RichTextBox::setSelFontSize(double points)
{
    constexpr double most = CharState::MaxHalfPoints / 2.0;
    if (!(points >= 1.0 && points <= most))
        return;
    QTextCharFormat format;
    format.setFontPointSize(qRound(points * 2) / 2.0);
    mergeChars(format);
}

void RichTextBox::setSelColor(QRgb color)
{
    QTextCharFormat format;
    const std::optional<QRgb> colour = colourOrAutomatic(color);
    // A brush that paints nothing is how a merge takes a colour away.
    format.setForeground(colour ? QBrush(QColor(*colour)) : QBrush(Qt::NoBrush));
    mergeChars(format);
}

std::optional<RichTextBox::Alignment> RichTextBox::selAlignment() const
{
    return SelectionFormats::commonOfBlocks(cursor(), [](const QTextBlock &block) {
        const Qt::Alignment alignment = ParagraphState::of(block).alignment;
        if (alignment == Qt::AlignHCenter)
            return Alignment::Centre;
        return alignment == Qt::AlignRight ? Alignment::Right : Alignment::Left;
    });
}

std::optional<bool> RichTextBox::selBullet() const
{
    return SelectionFormats::commonOfBlocks(
        cursor(), [](const QTextBlock &block) { return block.textList() != nullptr; });
}

std::optional<double> RichTextBox::selDistance(int ParagraphState::*distance) const
{
    return SelectionFormats::commonOfBlocks(cursor(), [distance](const QTextBlock &block) {
        return centimetresOfTwips(ParagraphState::of(block).*distance);
    });
}

std::optional<double> RichTextBox::selIndent() const
{
    return selDistance(&ParagraphState::left);
}

std::optional<double> RichTextBox::selHangingIndent() const
{
    return selDistance(&ParagraphState::first);
}

std::optional<double> RichTextBox::selRightIndent() const
{
    return selDistance(&ParagraphState::right);
}

std::optional<QList<double>> RichTextBox::selTabs() const
{
    const std::optional<QList<int>> tabs = SelectionFormats::commonOfBlocks(
        cursor(), [](const QTextBlock &block) { return ParagraphState::of(block).tabs; });
    if (!tabs)
        return std::nullopt;
    QList<double> centimetres;
    for (const int tab : *tabs)
        centimetres.append(centimetresOfTwips(tab));
    return centimetres;
}

void RichTextBox::setSelAlignment(Alignment alignment)
{
    SelectionFormats::changeBlocks(cursor(), [alignment](ParagraphState &state) {
        if (alignment == Alignment::Left)
            state.alignment = Qt::AlignLeft;
        else
            state.alignment = alignment == Alignment::Right ? Qt::AlignRight : Qt::AlignHCenter;
    });
}

void RichTextBox::setSelBullet(bool on)
{
    SelectionFormats::changeBlocks(cursor(), [on](ParagraphState &state) { state.bullet = on; });
}

void RichTextBox::setDistance(int ParagraphState::*distance, double centimetres)
{
    const int twips = twipsOfCentimetres(centimetres);
    SelectionFormats::changeBlocks(
        cursor(), [distance, twips](ParagraphState &state) { state.*distance = twips; });
}

void RichTextBox::setSelIndent(double centimetres)
{
    setDistance(&ParagraphState::left, centimetres);
}

void RichTextBox::setSelHangingIndent(double centimetres)
{
    setDistance(&ParagraphState::first, centimetres);
}

void RichTextBox::setSelRightIndent(double centimetres)
{
    setDistance(&ParagraphState::right, centimetres);
}

void RichTextBox::setSelTabs(const QList<double> &centimetres)
{
    ParagraphState sorted;
    for (const double position : centimetres) {
        if (position * Twips::PerCentimetre <= ParagraphState::MaxTwips)
            sorted.addTab(twipsOfCentimetres(position));
    }
    SelectionFormats::changeBlocks(cursor(),
                                   [&sorted](ParagraphState &state) { state.tabs = sorted.tabs; });
}

void RichTextBox::setSelPlain()
{
    QTextCursor selection = cursor();
    SelectionFormats::setPlain(selection, CharState::plain(m_baseFont).toFormat(m_baseFont));
    setCursor(selection);
}

#include "convert/pdf/BookFonts.h"

#include "convert/book/Book.h"
#include "platform/Twips.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontInfo>
#include <QMap>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace
{
constexpr double TwipsPerPoint = 20;
constexpr double MarginShare = 0.85; // of the size of the text
constexpr double MostOfWidth = 0.5;  // that a letter takes: indents may leave no more

QFont fontInTwips(const QString &family, double points)
{
    QFont font;
    if (!family.isEmpty())
        font.setFamilies({family});
    font.setPixelSize(std::max(1, qRound(points * TwipsPerPoint)));
    // Whatever the resolution that the page is shown in, its lines end at the same words.
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::ForceOutline);
    return font;
}

QString usualFamily(const Book &book)
{
    QMap<QString, qsizetype> lengths;
    for (const BookParagraph &paragraph : book.paragraphs)
        for (const BookBlock &block : paragraph.blocks)
            for (const BookRun &run : block.runs)
                lengths[run.chars.family] += run.text.size();
    const auto most = std::max_element(lengths.begin(), lengths.end());
    return most == lengths.end() ? QString() : most.key();
}

// Letters that a page has room for, below a number and beside indents.
int mostHalfPoints(const PageSetup &setup, int usualHalfPoints)
{
    constexpr double MillimetresPerPoint = 25.4 / 72;
    const double lines = std::floor(setup.textHeight() / MillimetresPerPoint / setup.leading);
    const double high = lines - numberLines(setup); // in lines of text
    const double wide = setup.textWidth() / MillimetresPerPoint * MostOfWidth / setup.points;
    return static_cast<int>(std::max(1.0, std::min(high, wide)) * usualHalfPoints);
}

QString keyOf(const CharState &chars)
{
    return QStringLiteral("%1/%2/%3/%4")
        .arg(chars.family)
        .arg(chars.halfPoints)
        .arg(chars.bold * 8 + chars.italic * 4 + chars.underline * 2 + chars.strike)
        .arg(chars.colour ? static_cast<qint64>(*chars.colour) : -1);
}
} // namespace

BookFonts::BookFonts(const Book &book, const PageSetup &setup)
    : m_setup(setup), m_usualFamily(usualFamily(book)), m_usualHalfPoints(book.halfPoints),
      m_mostHalfPoints(mostHalfPoints(setup, book.halfPoints)),
      m_leading(setup.leading * TwipsPerPoint)
{
    const QFontMetricsF metrics(fontOf(setup.font, setup.points));
    const double free = m_leading - metrics.ascent() - metrics.descent();
    m_ascentShare = (free / 2 + metrics.ascent()) / m_leading;
}

CharState BookFonts::usual() const
{
    CharState chars;
    chars.family = m_usualFamily;
    chars.halfPoints = m_usualHalfPoints;
    return chars;
}

const QTextCharFormat &BookFonts::format(const CharState &chars)
{
    const QString key = keyOf(chars);
    const auto known = m_formats.constFind(key);
    if (known != m_formats.cend())
        return *known;
    const bool usual = chars.family.isEmpty() || chars.family == m_usualFamily;
    m_hasShrunk = m_hasShrunk || chars.halfPoints > m_mostHalfPoints;
    QFont font = fontOf(usual ? m_setup.font : chars.family,
                        m_setup.points * fitting(chars.halfPoints) / m_usualHalfPoints);
    font.setBold(chars.bold);
    font.setItalic(chars.italic);
    QTextCharFormat format;
    format.setFont(font);
    format.setFontUnderline(chars.underline);
    format.setFontStrikeOut(chars.strike);
    const QRgb colour = m_setup.black ? qRgb(0, 0, 0) : chars.colour.value_or(qRgb(0, 0, 0));
    format.setForeground(QColor(colour));
    return *m_formats.insert(key, format);
}

int BookFonts::fitting(int halfPoints) const
{
    return std::min(halfPoints, m_mostHalfPoints);
}

double BookFonts::leading(int halfPoints) const
{
    return m_leading * fitting(halfPoints) / m_usualHalfPoints;
}

double BookFonts::baseline(double height) const
{
    return height * m_ascentShare;
}

QFont BookFonts::text() const
{
    return fontInTwips(m_setup.font, m_setup.points);
}

QFont BookFonts::number()
{
    const NumberStyle &style = m_setup.number;
    QFont font = fontOf(style.fontName.isEmpty() ? m_setup.font : style.fontName, style.points);
    font.setBold(style.bold);
    font.setItalic(style.italic);
    font.setUnderline(style.underline);
    const double room = m_setup.textWidth() / 10 * Twips::PerCentimetre;
    const double widest = QFontMetricsF(font).horizontalAdvance(QStringLiteral("2000"));
    if (widest > room)
        font.setPixelSize(std::max(1, static_cast<int>(font.pixelSize() * room / widest)));
    return font;
}

QFont BookFonts::margin() const
{
    return fontInTwips(m_setup.font, m_setup.points * MarginShare);
}

QFont BookFonts::fontOf(const QString &family, double points)
{
    if (!family.isEmpty())
        m_asked.insert(family);
    return fontInTwips(family, points);
}

QString BookFonts::remarks() const
{
    QStringList asked(m_asked.cbegin(), m_asked.cend());
    asked.sort();
    QStringList sentences;
    for (const QString &family : std::as_const(asked))
        if (!QFontDatabase::hasFamily(family))
            sentences.append(
                QCoreApplication::translate("BookFonts",
                                            "La police « %1 » manque : « %2 » la remplace.")
                    .arg(family, QFontInfo(fontInTwips(family, m_setup.points)).family()));
    if (m_hasShrunk)
        sentences.append(QCoreApplication::translate(
            "BookFonts", "Des lettres plus grandes que la page ont été réduites."));
    return sentences.join(u' ');
}

#include "richtext/RtfTables.h"

#include "richtext/TextCleaning.h"
#include "richtext/TextStates.h"

#include <algorithm>

void RtfFontTable::startEntry(int number)
{
    endEntry();
    m_number = number;
}

void RtfFontTable::endEntry()
{
    if (m_number && m_fonts.size() < MaxFonts) {
        m_entry.name = cleanedFontName(m_entry.name);
        m_fonts.insert(*m_number, m_entry);
    }
    m_number.reset();
    m_entry = {};
}

void RtfColourTable::setComponent(int value, int shift)
{
    const QRgb others = m_entry.value_or(0) & ~(0xffU << shift);
    m_entry = others | (static_cast<QRgb>(std::clamp(value, 0, 255)) << shift);
}

void RtfColourTable::endEntry()
{
    if (m_colours.size() < MaxColours)
        m_colours.append(m_entry ? colourOrAutomatic(*m_entry) : std::nullopt);
    m_entry.reset();
}

#pragma once

#include <QColor>
#include <QHash>
#include <QList>
#include <QString>
#include <optional>

struct RtfFont {
    QString name;
    int page = 0; // code page, 0: the document's
};

// The font table of an RTF text, filled as it is read. At most 4,096 fonts are kept.
class RtfFontTable
{
public:
    static constexpr int MaxFonts = 4096;

    void startEntry(int number);
    void setPage(int page) { m_entry.page = page; }
    int page() const { return m_entry.page; }
    void addToName(const QString &text) { m_entry.name += text; }
    // Keeps the entry that was started, if there is one.
    void endEntry();

    // A font that the table lacks has no name.
    RtfFont font(int number) const { return m_fonts.value(number); }

private:
    QHash<int, RtfFont> m_fonts;
    std::optional<int> m_number;
    RtfFont m_entry;
};

// The colour table. An entry without components is the automatic colour. At most 4,096 are kept.
class RtfColourTable
{
public:
    static constexpr int MaxColours = 4096;

    void setRed(int value) { setComponent(value, 16); }
    void setGreen(int value) { setComponent(value, 8); }
    void setBlue(int value) { setComponent(value, 0); }
    void endEntry();

    // Automatic for an index that the table lacks.
    std::optional<QRgb> colour(int index) const { return m_colours.value(index); }

private:
    void setComponent(int value, int shift);

    QList<std::optional<QRgb>> m_colours;
    std::optional<QRgb> m_entry;
};

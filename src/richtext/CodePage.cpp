#include "richtext/CodePage.h"

#include <algorithm>
#include <array>
#include <utility>

namespace
{
// The characters of the bytes 80 to 9f; all other bytes are the character of the same code.
constexpr std::array<char16_t, 32> upperControls = {
    0x20ac, 0x0081, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021, 0x02c6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008d, 0x017d, 0x008f, 0x0090, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022,
    0x2013, 0x2014, 0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0x009d, 0x017e, 0x0178};

bool isPlainLatin(char16_t code)
{
    return code < 0x80 || (code >= 0xa0 && code < 0x100);
}
} // namespace

QString fromWindows1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char c) {
        const auto byte = static_cast<uchar>(c);
        return QChar(byte >= 0x80 && byte < 0xa0 ? upperControls.at(byte - 0x80) : char16_t{byte});
    });
    return text;
}

std::optional<uchar> windows1252Byte(QChar character)
{
    const char16_t code = character.unicode();
    if (isPlainLatin(code))
        return static_cast<uchar>(code);
    const auto *found = std::find(upperControls.begin(), upperControls.end(), code);
    if (found == upperControls.end())
        return std::nullopt;
    return static_cast<uchar>(0x80 + (found - upperControls.begin()));
}

std::optional<QByteArray> toWindows1252(const QString &text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar character : text) {
        const std::optional<uchar> byte = windows1252Byte(character);
        if (!byte)
            return std::nullopt;
        bytes += static_cast<char>(*byte);
    }
    return bytes;
}

int CodePage::fromFontCharset(int charset)
{
    static constexpr std::array<std::pair<int, int>, 18> pages = {{
        {0, 1252},
        {2, 1252},
        {77, 10000},
        {78, 932},
        {128, 932},
        {129, 949},
        {134, 936},
        {136, 950},
        {161, 1253},
        {162, 1254},
        {163, 1258},
        {177, 1255},
        {178, 1256},
        {186, 1257},
        {204, 1251},
        {222, 874},
        {238, 1250},
        {254, 437},
    }};
    const auto *found = std::find_if(pages.begin(), pages.end(), [charset](const auto &entry) {
        return entry.first == charset;
    });
    return found != pages.end() ? found->second : 0;
}

QString CodePage::decode(QByteArrayView bytes, int page)
{
    const bool ascii = std::all_of(bytes.begin(), bytes.end(),
                                   [](char c) { return static_cast<uchar>(c) < 0x80; });
    if (ascii || page == Windows1252)
        return fromWindows1252(bytes);
    PageDecoder &decoder = m_decoders.try_emplace(page, page).first->second;
    return decoder.isValid() ? decoder.decode(bytes) : fromWindows1252(bytes);
}

#include "platform/PageDecoder.h"

#include <algorithm>
#include <array>
#include <utility>

namespace
{
// Converter names, for the pages whose name is not simply "windows-" and the number.
QByteArray converterName(int page)
{
    static constexpr std::array<std::pair<int, const char *>, 15> names = {{
        {437, "IBM437"},
        {850, "IBM850"},
        {852, "IBM852"},
        {866, "IBM866"},
        {932, "Shift_JIS"},
        {936, "GBK"},
        {949, "windows-949"},
        {950, "Big5"},
        {10000, "macintosh"},
        {10001, "Shift_JIS"},
        {10006, "x-mac-greek"},
        {10007, "x-mac-cyrillic"},
        {10029, "x-mac-centraleurroman"},
        {10081, "x-mac-turkish"},
        {65001, "UTF-8"},
    }};
    const auto *found = std::find_if(names.begin(), names.end(),
                                     [page](const auto &entry) { return entry.first == page; });
    if (found != names.end())
        return found->second;
    const bool windows = page == 874 || (page >= 1250 && page <= 1258);
    return windows ? "windows-" + QByteArray::number(page) : QByteArray();
}
} // namespace

PageDecoder::PageDecoder(int page)
    : m_converter(converterName(page).constData(), QStringDecoder::Flag::Stateless)
{
}

bool PageDecoder::isValid() const
{
    return m_converter.isValid();
}

QString PageDecoder::decode(QByteArrayView bytes)
{
    m_converter.resetState();
    return m_converter.decode(bytes);
}

#include "platform/PageDecoder.h"

#include <array>
#include <windows.h>

PageDecoder::PageDecoder(int page) : m_page(page) {}

bool PageDecoder::isValid() const
{
    return ::IsValidCodePage(static_cast<UINT>(m_page)) != 0;
}

// Character by character, since the system tells of a bad one only that there is one.
QString PageDecoder::decode(QByteArrayView bytes)
{
    if (m_page == CP_UTF8)
        return QString::fromUtf8(bytes);
    const auto page = static_cast<UINT>(m_page);
    QString text;
    while (!bytes.isEmpty()) {
        const auto first = static_cast<BYTE>(bytes.front());
        const int length = ::IsDBCSLeadByteEx(page, first) != 0 ? 2 : 1;
        if (length > bytes.size())
            break;
        std::array<wchar_t, 4> characters = {};
        const int count = ::MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(), length,
                                                characters.data(), characters.size());
        text += count > 0 ? QString::fromWCharArray(characters.data(), count)
                          : QString(QChar::ReplacementCharacter);
        bytes = bytes.sliced(length);
    }
    return text;
}

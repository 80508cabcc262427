#include "richtext/RtfPlainText.h"

#include "richtext/RtfReader.h"

#include <utility>

namespace
{
class TextCollector : public RtfHandler
{
public:
    void text(QStringView text, const CharState &) override
    {
        startParagraph();
        m_text += text;
    }

    void paragraphEnd(const ParagraphState &, const CharState &) override
    {
        startParagraph();
        m_ended = true;
    }

    QString takeText() { return std::move(m_text); }

private:
    void startParagraph()
    {
        if (m_ended)
            m_text += QLatin1String("\r\n");
        m_ended = false;
    }

    QString m_text;
    bool m_ended = false;
};
} // namespace

QString rtfToPlainText(QByteArrayView rtf)
{
    if (rtf.isEmpty())
        return {};
    TextCollector collector;
    RtfReader(rtf).read(collector);
    return collector.takeText();
}

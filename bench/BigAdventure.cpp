#include "BigAdventure.h"

#include "richtext/HiddenBox.h"
#include "store/AdventureFile.h"
#include "store/ParagraphStore.h"

#include <QRandomGenerator>
#include <QTemporaryDir>

namespace
{
const QStringList &words()
{
    static const QStringList list =
        QStringLiteral("la forêt se referme derrière vous et le sentier n’est plus qu’une trace "
                       "pâle entre les fougères où l’ombre d’un château dévoré de lierre apparaît "
                       "puis s’efface sous la pluie tiède des collines vous hésitez un instant "
                       "car une clé rouillée brille à côté du vieux puits près de l’âtre éteint")
            .split(u' ');
    return list;
}

class ParagraphWriter
{
public:
    explicit ParagraphWriter(int n) : m_random(static_cast<quint32>(n)) {}

    QByteArray write()
    {
        m_box.setSelAlignment(RichTextBox::Alignment::Centre);
        m_box.setSelBold(true);
        put(sentence(4) + QStringLiteral("\r\n"));
        m_box.setSelAlignment(RichTextBox::Alignment::Left);
        for (int reference = 0; reference < 3; ++reference) {
            m_box.setSelBold(false);
            put(sentence(52) + u' ');
            m_box.setSelItalic(true);
            put(sentence(5));
            m_box.setSelItalic(false);
            m_box.setSelColor(qRgb(255, 0, 0));
            put(QStringLiteral(" Rendez-vous au %1.").arg(below(BigAdventure::Paragraphs) + 1));
            m_box.setSelColor(qRgb(0, 0, 0));
            put(reference < 2 ? QStringLiteral("\r\n") : QString());
        }
        return m_box.rtf();
    }

private:
    int below(qsizetype bound)
    {
        return static_cast<int>(m_random.bounded(static_cast<quint32>(bound)));
    }

    QString sentence(int count)
    {
        QStringList chosen;
        for (int i = 0; i < count; ++i)
            chosen.append(words().at(below(words().size())));
        return chosen.join(u' ') + u'.';
    }

    void put(const QString &text)
    {
        if (!text.isEmpty())
            m_box.setSelText(text);
    }

    QRandomGenerator m_random;
    HiddenBox m_box;
};
} // namespace

QByteArray BigAdventure::paragraphRtf(int n)
{
    return ParagraphWriter(n).write();
}

void BigAdventure::make(const QString &path)
{
    const QTemporaryDir folder;
    Variables variables;
    variables.WorkingFolder = folder.path() + u'/';
    variables.FilePrefix = QStringLiteral("b-");
    HiddenBox box;
    for (int n = 1; n <= Paragraphs; ++n) {
        variables.CurrentParagraph = static_cast<qint16>(n);
        variables.ParagraphDirty = true;
        box.setRtf(paragraphRtf(n));
        SaveCurParg(variables, box);
    }
    variables.CurrentParagraph = 1;
    writeAdventure(variables, path);
}

#include "editor/PageDocument.h"

#include "editor/PageColours.h"
#include "richtext/TextStates.h"

#include <QTextOption>

namespace
{
// Pixels. The document's own margin is small and never changes, since a change of it would be an
// edit of the text.
constexpr int ownMargin = 8;
} // namespace

PageDocument::PageDocument(const QFont &font) : m_colours(new PageColours(this))
{
    setDefaultFont(font);
    setDocumentMargin(ownMargin);
    setIndentWidth(pixelsOfTwips(ParagraphState::BulletTwips));
    QTextOption option = defaultTextOption();
    option.setTabStopDistance(pixelsOfTwips(ParagraphState::DefaultTabTwips));
    setDefaultTextOption(option);
    connect(this, &QTextDocument::contentsChange, this,
            [this](int, int, int added) { m_entered += added; });
}

bool PageDocument::hasSteps() const
{
    return isUndoAvailable() || isRedoAvailable();
}

qint64 PageDocument::memory() const
{
    constexpr qint64 ofCharacter = 2; // in the store that the undo list refers to
    constexpr qint64 ofShown = 40;    // laid out
    constexpr qint64 ofBlock = 800;
    constexpr qint64 ofStep = 100;
    constexpr qint64 ofDocument = 20000;
    const qint64 steps = qint64{availableUndoSteps()} + availableRedoSteps();
    return ofDocument + m_entered * ofCharacter + characterCount() * ofShown +
           blockCount() * ofBlock + steps * ofStep;
}

// Not a null value, with which the document would go and look for itself.
QVariant PageDocument::loadResource(int, const QUrl &)
{
    return QByteArrayLiteral("");
}

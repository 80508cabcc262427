#include "editor/RtfBox.h"

#include "editor/PageColours.h"
#include "editor/PageDocument.h"
#include "platform/Errors.h"
#include "platform/Twips.h"
#include "richtext/RichTextClipboard.h"
#include "richtext/SelectionFormats.h"
#include "richtext/TextStates.h"

#include <QAbstractTextDocumentLayout>
#include <QClipboard>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QTextBlock>
#include <QTextLayout>
#include <utility>

RtfBox::RtfBox(QWidget *parent) : QTextEdit(parent), m_device(*viewport())
{
    // Before there is any event, and a child announces itself by one, for which all members must be
    // there.
    exchange(nullptr);
    setFrameShape(QFrame::NoFrame);
    setFont(baseFont());
    connect(this, &QTextEdit::cursorPositionChanged, this, [this] {
        if (!m_typing)
            m_run.end();
    });
}

// The document goes after the device.
RtfBox::~RtfBox()
{
    document()->documentLayout()->setPaintDevice(viewport());
}

std::unique_ptr<PageDocument> RtfBox::exchange(std::unique_ptr<PageDocument> document)
{
    if (!document)
        document = std::make_unique<PageDocument>(font());
    if (m_page != nullptr)
        m_page->disconnect(this);
    if (!textCursor().block().layout()->preeditAreaText().isEmpty()) {
        QInputMethodEvent nothingComposed;
        QTextEdit::inputMethodEvent(&nothingComposed);
    }
    std::unique_ptr<PageDocument> left(m_page);
    m_page = document.release();
    m_page->setParent(this);
    // What it is laid out by comes first, so that this is done once.
    m_page->setDefaultFont(font());
    m_page->documentLayout()->setPaintDevice(&m_device);
    m_page->colours().setPage(palette().color(QPalette::Base));
    setDocument(m_page);
    if (left)
        left->setParent(nullptr);
    connectPage();
    return left;
}

void RtfBox::connectPage()
{
    connect(m_page, &QTextDocument::contentsChange, this, &RtfBox::changedAt);
    // A step of the undo list that changed nothing is announced by the second signal alone.
    m_changed = false;
    connect(m_page, &QTextDocument::contentsChange, this, [this] {
        m_changed = true;
        if (isLoading())
            m_page->noteLoaded();
    });
    connect(m_page, &QTextDocument::contentsChanged, this, [this] {
        if (std::exchange(m_changed, false) && !isLoading())
            Q_EMIT edited();
    });
    m_run.end();
    Q_EMIT undoAvailable(m_page->isUndoAvailable());
    Q_EMIT redoAvailable(m_page->isRedoAvailable());
}

// What fails is caught where our code ends, before it goes through code that was built without
// exceptions, and once more around whole events. The text is brought back when the outermost guard
// ends, since a step of the undo list may be open until then; not that of another text which has
// come into the box meanwhile.
template <typename Action> void RtfBox::guarded(Action action)
{
    const QPointer<PageDocument> text = m_page;
    const int steps = m_page->availableUndoSteps();
    ++m_guards;
    try {
        action();
    } catch (const LimitError &) {
        m_failure = tr("Ce texte est trop long : un paragraphe ne peut dépasser 32 Mo.");
    } catch (const std::exception &) {
        m_failure = tr("Cette action a échoué. Le texte est resté comme il était.");
    }
    --m_guards;
    if (m_guards > 0 || m_failure.isEmpty())
        return;
    if (text == m_page)
        takeBack(steps);
    report(std::exchange(m_failure, QString()));
}

// The steps that failed shall not be there to be done again either.
void RtfBox::takeBack(int undoSteps)
{
    if (document()->availableUndoSteps() <= undoSteps)
        return;
    while (document()->availableUndoSteps() > undoSteps)
        undo();
    document()->clearUndoRedoStacks(QTextDocument::RedoStack);
}

// What shows the report lets the box paint itself, which may fail again.
void RtfBox::report(const QString &frenchText)
{
    if (std::exchange(m_reporting, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this, frenchText] {
            Q_EMIT failed(frenchText);
            m_reporting = false;
        },
        Qt::QueuedConnection);
}

void RtfBox::baseFontChanged(const QFont &font)
{
    setFont(font);
}

bool RtfBox::canInsertFromMimeData(const QMimeData *source) const
{
    return RichTextClipboard::canPaste(*source);
}

void RtfBox::insertFromMimeData(const QMimeData *source)
{
    if (isReadOnly() || source == nullptr)
        return;
    guarded([this, source] {
        RichTextClipboard::paste(*this, *source);
        ensureCursorVisible();
    });
}

void RtfBox::pastePlain()
{
    const QMimeData *source = QGuiApplication::clipboard()->mimeData();
    if (isReadOnly() || source == nullptr)
        return;
    guarded([this, source] {
        RichTextClipboard::pastePlain(*this, *source);
        ensureCursorVisible();
    });
}

void RtfBox::setZoom(int percent)
{
    if (percent == m_device.percent())
        return;
    m_device.setPercent(percent);
    document()->documentLayout()->setPaintDevice(&m_device);
    document()->markContentsDirty(0, document()->characterCount());
    centrePage();
    ensureCursorVisible();
}

void RtfBox::setPageWidth(int characters)
{
    m_pageWidth = characters;
    centrePage();
}

// Copying may fail, and what was not copied must not be removed.
void RtfBox::cut()
{
    guarded([this] { QTextEdit::cut(); });
}

QMimeData *RtfBox::createMimeDataFromSelection() const
{
    QMimeData *copied = nullptr;
    // The base declares this const, but a failure is one of the box.
    const_cast<RtfBox *>(this)->guarded(
        [this, &copied] { copied = RichTextClipboard::mimeData(*this).release(); });
    return copied;
}

bool RtfBox::event(QEvent *event)
{
    bool handled = true;
    guarded([this, event, &handled] {
        if (event->type() == QEvent::Paint)
            paintPage();
        else if (event->type() == QEvent::Resize)
            centrePage();
        handled = QTextEdit::event(event);
    });
    return handled;
}

bool RtfBox::viewportEvent(QEvent *event)
{
    bool handled = true;
    guarded([this, event, &handled] { handled = QTextEdit::viewportEvent(event); });
    return handled;
}

void RtfBox::paintEvent(QPaintEvent *event)
{
    QTextEdit::paintEvent(event);
    guarded([this, event] {
        QPainter painter(viewport());
        Q_EMIT painted(painter, event->rect());
    });
}

void RtfBox::changeEvent(QEvent *event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        centrePage();
    else if (event->type() == QEvent::PaletteChange)
        m_page->colours().setPage(palette().color(QPalette::Base));
    update();
}

// There are no line breaks within a paragraph: the key for them gives a paragraph break.
void RtfBox::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::InsertLineSeparator)) {
        QKeyEvent plain(event->type(), Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        QTextEdit::keyPressEvent(&plain);
        event->setAccepted(plain.isAccepted());
    } else if (takesBulletAway(*event)) {
        setSelBullet(false);
    } else if (breaksEmptyLine(*event)) {
        textCursor().insertBlock();
        ensureCursorVisible();
    } else {
        type(event);
    }
}

void RtfBox::type(QKeyEvent *event)
{
    const QString text = event->text();
    // A letter that is no mnemonic of any menu is not meant for the text. Where Alt makes other
    // characters of the letters, those are.
    if (event->modifiers() == Qt::AltModifier &&
        text.toUpper() == QKeySequence(event->key()).toString()) {
        event->ignore();
        return;
    }
    if (isReadOnly() || text.isEmpty() || !text.front().isPrint())
        QTextEdit::keyPressEvent(event);
    else
        insertTyped(event);
}

// Insertions that follow one another become one step of the undo list, except into a document that
// counts as unmodified.
void RtfBox::insertTyped(QKeyEvent *event)
{
    const QString text = event->text();
    const int start = textCursor().selectionStart();
    const QChar previous = start > 0 ? document()->characterAt(start - 1) : QChar();
    if (m_run.begins(text, start, event->timestamp()))
        document()->setModified(false);
    m_typing = true;
    QTextEdit::keyPressEvent(event);
    m_typing = false;
    // Not every key with a text types it.
    const bool typed = text.size() == 1 && textCursor().position() == start + 1 &&
                       document()->characterAt(start) == text.front();
    const bool lineStart = previous == QChar::ParagraphSeparator;
    if (typed && !replaceTyped(lineStart ? QChar(QChar::LineFeed) : previous, text.front()))
        mendLine();
}

// Whether the typing aids made something of the key.
bool RtfBox::replaceTyped(QChar previous, QChar key)
{
    const TypedKey typed = m_keyPress ? m_keyPress(previous, key) : TypedKey{key};
    if (typed == TypedKey{key})
        return false;
    const int behind = textCursor().position();
    QTextCursor replaced(document());
    replaced.setPosition(behind - (typed.replacesPrevious ? 2 : 1));
    replaced.setPosition(behind, QTextCursor::KeepAnchor);
    replaced.insertText(QString(typed.character), SelectionFormats::firstCharFormat(replaced));
    m_run.end();
    return true;
}

// From the last to the first, so that the places of those before hold.
void RtfBox::mendLine()
{
    const QTextBlock block = textCursor().block();
    const auto replacements =
        m_lineRules
            ? m_lineRules(block.text(), textCursor().positionInBlock(), block.previous().text())
            : QList<Replacement>();
    if (replacements.isEmpty())
        return;
    document()->setModified(false);      // a step of its own
    QTextCursor replaced = textCursor(); // undo goes back to where the step began
    replaced.beginEditBlock();
    for (qsizetype i = replacements.size() - 1; i >= 0; --i) {
        const Replacement &part = replacements.at(i);
        replaced.setPosition(block.position() + static_cast<int>(part.position));
        replaced.setPosition(replaced.position() + static_cast<int>(part.length),
                             QTextCursor::KeepAnchor);
        replaced.insertText(part.text, SelectionFormats::firstCharFormat(replaced));
    }
    replaced.endEditBlock();
    m_run.end();
}

// A single character, from a dead key or the like, is typed as by any other key.
void RtfBox::inputMethodEvent(QInputMethodEvent *event)
{
    const QString text = event->commitString();
    if (text.size() != 1 || !text.front().isPrint() || event->replacementLength() != 0 ||
        isReadOnly()) {
        QTextEdit::inputMethodEvent(event);
        return;
    }
    QInputMethodEvent composed; // what was shown until now goes
    QTextEdit::inputMethodEvent(&composed);
    QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, text);
    key.setTimestamp(m_run.when());
    type(&key);
    QInputMethodEvent next(event->preeditString(), event->attributes());
    QTextEdit::inputMethodEvent(&next);
}

// Left to itself, the edit would turn the bullet into an indent that no file keeps, or with the key
// that ends a list take all formatting away.
bool RtfBox::takesBulletAway(const QKeyEvent &event) const
{
    const QTextCursor caret = textCursor();
    return !isReadOnly() && !caret.hasSelection() && caret.atBlockStart() &&
           caret.block().textList() != nullptr &&
           (event.key() == Qt::Key_Backspace ||
            (caret.atBlockEnd() && event.matches(QKeySequence::InsertParagraphSeparator)));
}

// Here the edit would take the formatting away and add no line.
bool RtfBox::breaksEmptyLine(const QKeyEvent &event) const
{
    const QTextCursor caret = textCursor();
    return !isReadOnly() && !caret.hasSelection() && caret.atBlockStart() && caret.atBlockEnd() &&
           event.matches(QKeySequence::InsertParagraphSeparator);
}

// Goes by the width of the whole box alone. The viewport's own width depends on the result, and a
// change of it from within its resize event is lost while the box is being shown.
void RtfBox::centrePage()
{
    const double column =
        QFontMetricsF(font()).averageCharWidth() * m_pageWidth * m_device.percent() / 100;
    m_frame =
        PageFrame(contentsRect().width(), qRound(column) + 2 * qRound(m_page->documentMargin()));
    if (viewportMargins() == m_frame.margins())
        return;
    setViewportMargins(m_frame.margins());
    update(); // around the page as well
}

void RtfBox::paintPage()
{
    QPainter painter(this);
    m_frame.paint(painter, rect(), viewport()->geometry(), palette());
}

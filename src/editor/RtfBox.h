#pragma once

#include "editor/PageFrame.h"
#include "editor/TypingAids.h"
#include "editor/TypingRun.h"
#include "editor/options/ZoomedDevice.h"
#include "richtext/Replacements.h"
#include "richtext/RichTextBox.h"

#include <QTextEdit>
#include <functional>
#include <memory>

class PageDocument;
class QPainter;

// The box on the screen: a page of readable width, centred when there is room for more, in the
// palette's base colour with surroundings a shade apart. Text in the automatic colour follows the
// palette, and other colours are painted lighter where a dark page asks for it. What is pasted or
// dropped is reduced to the formatting that the box knows.
//
// No exception leaves its events and slots: one that comes is reported by failed(), and the text is
// brought back to what it was before the event.
class RtfBox : public QTextEdit, public RichTextBox
{
    Q_OBJECT

public:
    explicit RtfBox(QWidget *parent = nullptr);
    ~RtfBox() override;

    QTextDocument *document() const override { return QTextEdit::document(); }

    // Puts a text that has left the box, with its undo list, in the place of the one that is there
    // and gives that one; nothing stands for a new, empty text. The caret goes to the start. No
    // edit is announced.
    std::unique_ptr<PageDocument> exchange(std::unique_ptr<PageDocument> document);
    const PageDocument &page() const { return *m_page; }

    // Both bases have these names; the box's meaning counts.
    using RichTextBox::find;
    using RichTextBox::setText;

    // What becomes of each typed character, given the one before it (null at the start of the text,
    // a line feed at the start of a line). Its answer is a step of the undo list of its own, which
    // leaves what was typed.
    using KeyPress = std::function<TypedKey(QChar previous, QChar key)>;
    void setKeyPress(KeyPress keyPress) { m_keyPress = std::move(keyPress); }

    // What comes in the place of parts of the line behind which the caret stands, once a key has
    // typed there and the function above has made nothing of it: positions in the line, none behind
    // the caret. A step of the undo list of its own as well. Both lines are without their breaks.
    using LineRules = std::function<QList<Replacement>(const QString &line, qsizetype caret,
                                                       const QString &previous)>;
    void setLineRules(LineRules rules) { m_lineRules = std::move(rules); }

    // How large the text is on the screen, in percent, and how many characters of its font a line
    // of the page has room for. Neither changes the text.
    void setZoom(int percent);
    void setPageWidth(int characters);

    void cut();
    // Puts the text of the clipboard in place of the selection, in the format that is there.
    void pastePlain();

Q_SIGNALS:
    // The text or its formatting was changed by other means than setText, setRtf and loadFile.
    void edited();
    // The text was changed by whatever means, at a position of the document.
    void changedAt(int position, int removed, int added);
    // The page was painted, so that more can be painted over an area of the viewport.
    void painted(QPainter &painter, const QRect &area);
    // Something failed inside the box, for the reason that the French text gives. Comes when the
    // event is over; once, however often it failed until then.
    void failed(const QString &frenchText);

protected:
    QTextCursor cursor() const override { return textCursor(); }
    void setCursor(const QTextCursor &cursor) override { setTextCursor(cursor); }
    void baseFontChanged(const QFont &font) override;

    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    QMimeData *createMimeDataFromSelection() const override;

    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;

private:
    template <typename Action> void guarded(Action action);
    void takeBack(int undoSteps);
    void connectPage();
    void report(const QString &frenchText);
    void type(QKeyEvent *event);
    void insertTyped(QKeyEvent *event);
    bool replaceTyped(QChar previous, QChar key);
    void mendLine();
    bool takesBulletAway(const QKeyEvent &event) const;
    bool breaksEmptyLine(const QKeyEvent &event) const;
    void centrePage();
    void paintPage();

    PageDocument *m_page = nullptr; // the document
    KeyPress m_keyPress;
    LineRules m_lineRules;
    TypingRun m_run;
    bool m_typing = false;
    bool m_changed = false; // the document, in the step that is going on
    int m_guards = 0;       // one within the other
    QString m_failure;      // since the outermost of them began
    bool m_reporting = false;
    ZoomedDevice m_device;
    int m_pageWidth = 72;
    PageFrame m_frame;
};

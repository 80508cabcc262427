#pragma once

#include "richtext/RichTextBox.h"

#include <QTextEdit>

// The box on the screen: a page of readable width, centred when there is room for more, in the
// palette's base colour with surroundings a shade apart. Text in the automatic colour follows the
// palette. What is pasted or dropped is reduced to the formatting that the box knows.
class RtfBox : public QTextEdit, public RichTextBox
{
    Q_OBJECT

public:
    explicit RtfBox(QWidget *parent = nullptr);

    QTextDocument *document() const override { return QTextEdit::document(); }

    // Both bases have these names; the box's meaning counts.
    using RichTextBox::find;
    using RichTextBox::setText;

    // Never anything: texts refer to nothing outside.
    QVariant loadResource(int type, const QUrl &name) override;

Q_SIGNALS:
    // The text or its formatting was changed by other means than setText, setRtf and loadFile.
    void edited();

protected:
    QTextCursor cursor() const override { return textCursor(); }
    void setCursor(const QTextCursor &cursor) override { setTextCursor(cursor); }
    void baseFontChanged(const QFont &font) override;

    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    QMimeData *createMimeDataFromSelection() const override;

    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool takesBulletAway(const QKeyEvent &event) const;
    void centrePage();
    void paintPage();

    int m_padding = 0; // pixels of the page on each side of the viewport and above it
};

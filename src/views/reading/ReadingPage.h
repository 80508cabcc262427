#pragma once

#include "editor/RtfBox.h"
#include "store/HistoryStep.h"

#include <functional>
#include <optional>

class QHelpEvent;

// A paragraph as its reader sees it: the page of the editing box, which nobody types in, with links
// in it. A link is chosen with the mouse, or with Tab and Enter; keys that go to no link leave the
// page.
class ReadingPage : public RtfBox
{
    Q_OBJECT

public:
    struct Link {
        enum class Kind { Open, Taken, Empty };
        int from; // positions in the document
        int to;
        int target;
        Kind kind;
    };

    explicit ReadingPage(QWidget *parent = nullptr);

    // The text of paragraph n. The one that is there already stays, with the author's place in it,
    // and so does the place in another text of the same paragraph. Gives false, and shows nothing,
    // when the bytes are no RTF.
    bool showText(int n, const QByteArray &rtf, const QFont &font);
    void showNothing();
    // Paragraphs have other numbers.
    void follow(const NumberMap &newNumbers);

    // Of the text that is shown, ascending. The one with the focus keeps it by its place among
    // them; forgetFocus() takes it away.
    void setLinks(const QList<Link> &links);
    void forgetFocus() { m_focused = -1; }

    // Asked for the tip of a link when it is to be shown.
    void setTips(std::function<QString(const Link &)> tips) { m_tips = std::move(tips); }

    // Where the author is in text(): at the link with the focus, at the caret where he has clicked,
    // else at the upper edge of the page.
    int place() const;

Q_SIGNALS:
    void chosen(int target);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    const Link *linkAt(const QPoint &point) const;
    void showLinks();
    void showTip(const QHelpEvent &event) const;
    void pointAt(const QPoint &point);
    QTextEdit::ExtraSelection selectionOf(const Link &link, bool focused) const;

    int m_shown = -1; // the paragraph, given these bytes
    QByteArray m_given;
    QList<Link> m_links;
    qsizetype m_focused = -1;
    std::optional<int> m_pressed; // where the link begins that the mouse was pressed on
    std::function<QString(const Link &)> m_tips;
};

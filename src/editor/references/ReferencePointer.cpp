#include "editor/references/ReferencePointer.h"

#include "editor/FirstWords.h"
#include "editor/RtfBox.h"
#include "editor/references/ReferenceUnderlines.h"
#include "store/Variables.h"

#include <QCursor>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace
{
QString targetTip(const Variables &variables, int n)
{
    const QString words = variables.Written.at(n) == 1 ? firstWords(variables, n)
                                                       : ReferencePointer::tr("encore vide");
    return ReferencePointer::tr("%1 : %2").arg(QString::number(n), words);
}
} // namespace

ReferencePointer::ReferencePointer(const Variables &variables, RtfBox &box,
                                   const ReferenceUnderlines &underlines)
    : QObject(&box), m_variables(variables), m_box(box), m_viewport(*box.viewport()),
      m_underlines(underlines)
{
    box.installEventFilter(this);
    box.viewport()->installEventFilter(this);
    // A click may have led to another text.
    connect(&box, &RtfBox::textChanged, this, [this] { showHand({}, false); });
}

bool ReferencePointer::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &m_viewport) {
        if (event->type() == QEvent::ToolTip)
            return showTip(*static_cast<QHelpEvent *>(event));
        if (event->type() == QEvent::MouseMove) {
            const auto &mouse = *static_cast<QMouseEvent *>(event);
            showHand(mouse.position().toPoint(),
                     mouse.modifiers() == Qt::ControlModifier && mouse.buttons() == Qt::NoButton);
        }
    } else {
        handleKey(*event);
    }
    return false;
}

// The modifiers of a key's own event are those before it.
void ReferencePointer::handleKey(QEvent &event)
{
    const bool press = event.type() == QEvent::KeyPress;
    if (event.type() == QEvent::FocusOut)
        showHand({}, false);
    else if ((press || event.type() == QEvent::KeyRelease) &&
             static_cast<QKeyEvent &>(event).key() == Qt::Key_Control && m_viewport.underMouse())
        showHand(m_viewport.mapFromGlobal(QCursor::pos()), press);
}

// A click follows the digits alone, wherever what is doubtful begins.
void ReferencePointer::showHand(const QPoint &point, bool ctrl)
{
    bool hand = false;
    if (ctrl)
        if (const auto place = m_underlines.under(point))
            hand = m_box.cursorForPosition(point).position() >=
                   place->block.position() + place->mark.digits;
    if (hand != m_hand)
        m_viewport.setCursor(hand ? Qt::PointingHandCursor : Qt::IBeamCursor);
    m_hand = hand;
}

bool ReferencePointer::showTip(const QHelpEvent &event) const
{
    const auto place = m_underlines.under(event.pos());
    if (!place) {
        QToolTip::hideText();
        return true;
    }
    const ReferenceMark &mark = place->mark;
    const QString text = mark.doubt == Doubt::None
                             ? targetTip(m_variables, mark.read)
                             : doubtReason(mark.doubt, mark.read, m_variables.TargetPhrase);
    // The words are the author's and may look like markup.
    QToolTip::showText(event.globalPos(), QStringLiteral("<qt>") + text.toHtmlEscaped(),
                       &m_viewport, m_underlines.rectOf(*place));
    return true;
}

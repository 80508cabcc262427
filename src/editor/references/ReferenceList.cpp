#include "editor/references/ReferenceList.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace
{
constexpr int Rows = 12;
constexpr int Characters = 64; // of a row
} // namespace

ReferenceList::ReferenceList(const Variables &variables, const QString &typed, QWidget *parent)
    : QFrame(parent, Qt::Popup), m_choices(variables), m_typed(new QLineEdit(typed)),
      m_list(new QListView)
{
    setObjectName(QStringLiteral("referenceList"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    m_typed->setPlaceholderText(tr("Numéro ou premiers mots"));
    m_typed->setAccessibleName(tr("Numéro ou premiers mots"));
    m_typed->installEventFilter(this);
    m_list->setUniformItemSizes(true); // or each would be read to be measured
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setModel(&m_choices);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(4, 4, 4, 4);
    column->setSpacing(4);
    column->addWidget(m_typed);
    column->addWidget(m_list);
    resize(fontMetrics().averageCharWidth() * Characters, fontMetrics().lineSpacing() * (Rows + 3));
    connect(m_typed, &QLineEdit::textChanged, this, &ReferenceList::narrow);
    connect(m_list, &QListView::clicked, this, &ReferenceList::choose);
    narrow(typed);
    m_typed->setFocus();
}

void ReferenceList::showBeside(const QRect &caret)
{
    const QRect room = parentWidget()->screen()->availableGeometry();
    QPoint corner = caret.bottomLeft();
    if (corner.y() + height() > room.bottom())
        corner.setY(caret.top() - height());
    corner.setX(std::min(corner.x(), room.right() - width()));
    move(corner);
    show();
}

void ReferenceList::narrow(const QString &typed)
{
    m_choices.narrow(typed);
    m_list->setCurrentIndex(m_choices.index(0));
}

// The keys of the list go to it, the others into the line.
bool ReferenceList::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_typed || event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(m_list, event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose();
        return true;
    case Qt::Key_Escape:
        close();
        return true;
    default:
        return false;
    }
}

void ReferenceList::choose()
{
    const QModelIndex current = m_list->currentIndex();
    close();
    if (current.isValid())
        Q_EMIT chosen(m_choices.numberAt(current.row()));
}

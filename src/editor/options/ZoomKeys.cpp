#include "editor/options/ZoomKeys.h"

#include "editor/RtfBox.h"
#include "editor/options/EditorComfort.h"

#include <QAction>
#include <QWheelEvent>

ZoomKeys::ZoomKeys(ComfortKeeper &keeper, RtfBox &box, QWidget &window)
    : QObject(&box), m_keeper(keeper)
{
    box.viewport()->installEventFilter(this);
    const auto add = [&](const QList<QKeySequence> &keys, const auto &work) {
        auto *action = new QAction(this);
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, this, work);
        window.addAction(action);
    };
    add({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, [this] { step(1); });
    add({Qt::CTRL | Qt::Key_Minus}, [this] { step(-1); });
    // French keyboards have the digit with Shift, and this letter without.
    add({Qt::CTRL | Qt::Key_0, Qt::CTRL | Qt::Key_Agrave}, [this] { m_keeper.zoomTo(100); });
}

bool ZoomKeys::eventFilter(QObject * /*watched*/, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return false;
    auto &wheel = static_cast<QWheelEvent &>(*event);
    if (wheel.modifiers() != Qt::ControlModifier)
        return false;
    m_turned += wheel.angleDelta().y();
    const int steps = m_turned / QWheelEvent::DefaultDeltasPerStep;
    m_turned -= steps * QWheelEvent::DefaultDeltasPerStep;
    step(steps);
    wheel.accept();
    return true;
}

void ZoomKeys::step(int steps)
{
    constexpr int percentOfStep = 10;
    m_keeper.zoomTo(m_keeper.comfort().zoom + steps * percentOfStep);
}

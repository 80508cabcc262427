#include "store/TypedSnapshot.h"

#include "platform/Errors.h"
#include "store/Session.h"

#include <algorithm>

namespace
{
constexpr qint64 Pause = 3000; // milliseconds
// Of unbroken typing. A busy disk may take its time, and yet no more than three seconds are to go.
constexpr qint64 Soonest = 2000;
constexpr qint64 Longest = 30000;
constexpr int Retry = 10000; // after a failure

// Keeping the text takes no more than one part in so many of the time.
constexpr qint64 Share = 10;
} // namespace

TypedSnapshot::TypedSnapshot(const Variables &variables, const RichTextBox &box)
    : m_variables(variables), m_box(box), m_longest(Soonest)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &TypedSnapshot::take);
}

void TypedSnapshot::follow()
{
    if (!m_variables.ParagraphDirty) {
        m_timer.stop();
        m_sinceFirst.invalidate();
        return;
    }
    if (!m_sinceFirst.isValid())
        m_sinceFirst.start();
    const qint64 left = std::max<qint64>(m_longest - m_sinceFirst.elapsed(), 0);
    m_timer.start(static_cast<int>(std::min(Pause, left)));
}

void TypedSnapshot::take()
{
    m_timer.stop();
    if (!m_sinceFirst.isValid())
        return;
    QElapsedTimer cost;
    cost.start();
    try {
        keepBox(m_variables, m_box);
    } catch (const UsmiraError &error) {
        m_sinceFirst.start();
        m_timer.start(Retry);
        tellOnce(error);
        return;
    }
    m_sinceFirst.invalidate();
    m_told = false;
    m_longest = std::clamp(Share * cost.elapsed(), Soonest, Longest);
}

void TypedSnapshot::tellOnce(const UsmiraError &error)
{
    if (!m_told)
        Q_EMIT failed(error);
    m_told = true;
}

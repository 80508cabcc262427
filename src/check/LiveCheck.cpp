#include "check/LiveCheck.h"

#include "check/BookWays.h"
#include "check/TextCheck.h"
#include "store/AdventureEvents.h"
#include "store/Variables.h"

#include <QElapsedTimer>
#include <limits>

namespace
{
// Milliseconds. Who goes on writing, or from one paragraph to the next, is ahead of the check.
constexpr int Pause = 250;
constexpr qint64 AtATime = 8;

void addAll(std::set<int> &numbers)
{
    for (int n = 0; n <= Variables::LastParagraph; ++n)
        numbers.insert(n);
}

int takeFirst(std::set<int> &numbers)
{
    return numbers.extract(numbers.begin()).value();
}
} // namespace

// The ways of the book as they are while its texts are looked into.
struct LiveCheck::Pass {
    explicit Pass(const Variables &variables) : ways(variables), check(variables, ways) {}

    const BookWays ways;
    const TextCheck check;
};

LiveCheck::LiveCheck(const Variables &variables) : m_variables(variables)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (!workFor(AtATime))
            m_timer.start(0);
    });
    const auto again = [this] { changedAt({}); };
    const AdventureEvents *events = variables.Events.get();
    connect(events, &AdventureEvents::paragraphSaved, this, [this](int n) { changedAt({n}); });
    connect(events, &AdventureEvents::textsChanged, this, &LiveCheck::changedAt);
    connect(events, &AdventureEvents::targetPhraseChanged, this, again);
    connect(events, &AdventureEvents::extrasChanged, this, again);
    connect(events, &AdventureEvents::adventureReplaced, this, &LiveCheck::begin);
    if (variables.AdventureOpen)
        begin();
}

LiveCheck::~LiveCheck() = default;

void LiveCheck::begin()
{
    m_checked = false;
    m_book = {};
    m_texts = {};
    m_found = {};
    addAll(m_unread);
    changedAt({});
    Q_EMIT changed();
}

void LiveCheck::changedAt(const QList<int> &numbers)
{
    m_unread.insert(numbers.begin(), numbers.end());
    m_pass.reset();
    m_timer.start(Pause);
}

void LiveCheck::bringUpToDate()
{
    if (!m_timer.isActive())
        return;
    m_timer.stop();
    workFor(std::numeric_limits<qint64>::max());
}

// Whether all is done.
bool LiveCheck::workFor(qint64 milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!m_unread.empty() && timer.elapsed() < milliseconds) {
        const int n = takeFirst(m_unread);
        m_texts.read(m_variables, n);
        m_unchecked.insert(n);
    }
    if (m_unread.empty() && !m_pass)
        beginPass();
    while (m_pass && !m_unchecked.empty() && timer.elapsed() < milliseconds) {
        const int n = takeFirst(m_unchecked);
        m_found.at(n) = findingsIn(n, m_pass->check, m_pass->ways, m_texts);
    }
    const bool done = m_pass && m_unchecked.empty() && timer.elapsed() < milliseconds;
    if (done)
        finish();
    return done;
}

void LiveCheck::beginPass()
{
    m_pass = std::make_unique<Pass>(m_variables);
    if (m_phrase != m_variables.TargetPhrase || m_written != m_variables.Written)
        addAll(m_unchecked);
    m_phrase = m_variables.TargetPhrase;
    m_written = m_variables.Written;
}

void LiveCheck::finish()
{
    QList<Finding> ofTexts;
    for (const QList<Finding> &found : m_found)
        ofTexts += found;
    m_book = CheckBook(m_variables, m_pass->ways, m_texts, ofTexts);
    m_pass.reset();
    m_checked = true;
    Q_EMIT changed();
}

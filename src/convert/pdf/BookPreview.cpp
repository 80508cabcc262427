#include "convert/pdf/BookPreview.h"

#include "convert/pdf/SpreadView.h"
#include "platform/Errors.h"
#include "store/Variables.h"

#include <QElapsedTimer>
#include <algorithm>

namespace
{
constexpr int AfterLastChange = 150; // milliseconds
constexpr int AtATime = 12;
} // namespace

BookPreview::BookPreview(const Variables &variables, SpreadView &view)
    : m_variables(variables), m_view(view), m_number(variables.CurrentParagraph)
{
    m_wait.setSingleShot(true);
    m_wait.setInterval(AfterLastChange);
    connect(&m_wait, &QTimer::timeout, this, &BookPreview::begin);
    connect(&m_work, &QTimer::timeout, this, &BookPreview::work);
}

BookPreview::~BookPreview() = default;

void BookPreview::show(const Wanted &wanted)
{
    if (m_wanted == wanted)
        return;
    m_wanted = wanted;
    m_work.stop();
    m_wait.start();
}

void BookPreview::rest()
{
    m_wait.stop();
    m_work.stop();
    m_wanted.reset();
    m_read.reset();
    m_book = {};
    m_typesetter.reset();
    m_pages.reset();
    m_view.keepPicture();
}

// What cannot be read is told by the command itself; here it leaves the old pages.
void BookPreview::begin()
{
    m_typesetter.reset();
    try {
        if (m_read != m_wanted->range) {
            m_read.reset();
            m_book = readBook(m_variables, m_wanted->range, [](int, int) {});
            m_read = m_wanted->range;
        }
    } catch (const UsmiraError &) {
        return;
    }
    m_typesetter = std::make_unique<BookTypesetter>(m_book, m_wanted->facts, m_wanted->setup);
    m_work.start(0);
}

void BookPreview::work()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < AtATime) {
        if (!m_typesetter->step()) {
            m_work.stop();
            finish();
            return;
        }
    }
}

void BookPreview::finish()
{
    m_pages = std::make_shared<const BookPages>(m_typesetter->pages());
    m_remarks = m_typesetter->remarks();
    m_typesetter.reset();
    showPage(pageOfNumber());
}

// Of the paragraph seen before, or of the next one that is in the book.
int BookPreview::pageOfNumber() const
{
    const QList<int> numbers = m_pages->numbers();
    const auto next = std::lower_bound(numbers.begin(), numbers.end(), m_number);
    if (next != numbers.end())
        return m_pages->places().value(*next).page;
    return numbers.isEmpty() ? 0 : m_pages->places().value(numbers.last()).page;
}

void BookPreview::turn(int spreads)
{
    if (!m_pages || m_pages->count() == 0)
        return;
    const int page = SpreadView::spreadOf(*m_pages, m_page).second + 2 * spreads;
    showPage(std::clamp(page, 0, m_pages->count() - 1));
    const int number = m_pages->numberOn(m_page);
    m_number = number != 0 ? number : m_number;
}

void BookPreview::showPage(int page)
{
    m_page = page;
    m_view.showPages(m_pages, page);
    Q_EMIT changed();
}

QString BookPreview::place() const
{
    if (!m_pages || m_pages->count() == 0)
        return {};
    const auto [left, right] = SpreadView::spreadOf(*m_pages, m_page);
    if (left < 0 || right >= m_pages->count())
        return tr("Page %1 de %2").arg(left < 0 ? right + 1 : left + 1).arg(m_pages->count());
    return tr("Pages %1 et %2 de %3").arg(left + 1).arg(right + 1).arg(m_pages->count());
}

bool BookPreview::hasBefore() const
{
    return m_pages && SpreadView::spreadOf(*m_pages, m_page).first > 0;
}

bool BookPreview::hasNext() const
{
    return m_pages && SpreadView::spreadOf(*m_pages, m_page).second + 1 < m_pages->count();
}

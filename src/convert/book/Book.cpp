#include "convert/book/Book.h"

#include "platform/Errors.h"
#include "richtext/RtfReader.h"
#include "store/ExportTarget.h"
#include "store/ParagraphTexts.h"
#include "store/ReferenceIndex.h"
#include "store/Variables.h"
#include "store/references/ReferenceMarks.h"

#include <QCoreApplication>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QUuid>
#include <algorithm>

namespace
{
// Ours: what is made of it is told from what others make of the same words.
constexpr QUuid Books(0x4c3f1c52, 0x7f0e, 0x4b7a, 0x9d, 0x61, 0x2a, 0x85, 0xe0, 0x13, 0xcb, 0x94);

class BlockCollector : public RtfHandler
{
public:
    void text(QStringView text, const CharState &chars) override
    {
        m_block.runs.append({text.toString(), chars});
    }

    void paragraphEnd(const ParagraphState &format, const CharState &chars) override
    {
        m_block.format = format;
        m_block.mark = chars;
        m_blocks.append(std::move(m_block));
        m_block = {};
    }

    QList<BookBlock> takeBlocks() { return std::move(m_blocks); }

private:
    QList<BookBlock> m_blocks;
    BookBlock m_block;
};

QString textOf(const BookBlock &block)
{
    QString text;
    for (const BookRun &run : block.runs)
        text += run.text;
    return text;
}

// Takes runs apart at references, from the beginning of a block to its end.
class RunSplitter
{
public:
    explicit RunSplitter(const BookBlock &block) : m_runs(block.runs), m_text(textOf(block)) {}

    QList<BookRun> split(const QString &phrase)
    {
        LineReferences references;
        references.read(m_text, {}, phrase);
        for (const ReferenceMark &mark : references.marks()) {
            if (mark.read == 0)
                continue;
            takeText(mark.digits);
            takeReference(mark.position + mark.length, mark.read);
        }
        takeText(m_text.size());
        return std::move(m_result);
    }

private:
    void takeText(qsizetype end)
    {
        while (m_at < end) {
            skipRuns();
            const qsizetype next = std::min(end, m_runBegin + m_runs.at(m_run).text.size());
            m_result.append({m_text.mid(m_at, next - m_at), m_runs.at(m_run).chars});
            m_at = next;
        }
    }

    // It keeps together, whatever its digits look like.
    void takeReference(qsizetype end, int refersTo)
    {
        skipRuns();
        m_result.append({m_text.mid(m_at, end - m_at), m_runs.at(m_run).chars, refersTo});
        m_at = end;
    }

    // Up to the run that has the character at m_at.
    void skipRuns()
    {
        while (m_at >= m_runBegin + m_runs.at(m_run).text.size())
            m_runBegin += m_runs.at(m_run++).text.size();
    }

    const QList<BookRun> &m_runs;
    QString m_text;
    QList<BookRun> m_result;
    qsizetype m_at = 0;
    qsizetype m_run = 0;
    qsizetype m_runBegin = 0;
};

void removeEmptyEnd(QList<BookBlock> &blocks)
{
    while (!blocks.isEmpty() && textOf(blocks.last()).trimmed().isEmpty())
        blocks.removeLast();
}

template <typename Action> void forEachRun(Book &book, const Action &action)
{
    for (BookParagraph &paragraph : book.paragraphs)
        for (BookBlock &block : paragraph.blocks)
            for (BookRun &run : block.runs)
                action(run);
}

void settleReferences(Book &book, const Variables &variables)
{
    QSet<int> there;
    for (const BookParagraph &paragraph : book.paragraphs)
        there.insert(paragraph.number);
    forEachRun(book, [&](BookRun &run) {
        run.linked = there.contains(run.refersTo);
        if (run.refersTo != 0 && variables.Written.at(run.refersTo) == 0)
            book.emptyTargets.append(run.refersTo);
    });
}

int usualHalfPoints(Book &book)
{
    QMap<int, qsizetype> lengths;
    forEachRun(book, [&](const BookRun &run) { lengths[run.chars.halfPoints] += run.text.size(); });
    const auto most = std::max_element(lengths.begin(), lengths.end());
    return most == lengths.end() ? CharState::DefaultHalfPoints : most.key();
}

// Nothing that a title page could show.
bool isBlank(const QString &title)
{
    return std::none_of(title.begin(), title.end(),
                        [](QChar c) { return c.isPrint() && !c.isSpace(); });
}
} // namespace

BookParagraph bookParagraph(int number, QByteArrayView rtf, const QString &phrase)
{
    if (rtf.isEmpty())
        return {number, {}};
    BlockCollector collector;
    RtfReader(rtf).read(collector);
    BookParagraph paragraph{number, collector.takeBlocks()};
    removeEmptyEnd(paragraph.blocks);
    for (BookBlock &block : paragraph.blocks)
        block.runs = RunSplitter(block).split(phrase);
    return paragraph;
}

Book readBook(const Variables &variables, const ExportRange &range, const Progress &progress)
{
    Book book;
    QList<int> unreadable;
    forEachWritten(variables, {std::max(range.low, 1), range.high}, progress, [&](int n) {
        try {
            book.paragraphs.append(
                bookParagraph(n, GetParagraphRtf(variables, n), variables.TargetPhrase));
        } catch (const UsmiraError &) {
            unreadable.append(n);
        }
    });
    if (!unreadable.isEmpty())
        throw UnreadableTexts(unreadable);
    settleReferences(book, variables);
    book.halfPoints = usualHalfPoints(book);
    return book;
}

bool isLanguageCode(const QString &code)
{
    static const QRegularExpression form(
        QStringLiteral("\\A[A-Za-z]{2,3}(-[A-Za-z]{4})?(-([A-Za-z]{2}|[0-9]{3}))?\\z"));
    return form.match(code).hasMatch();
}

BookFacts bookFacts(const Variables &variables)
{
    BookFacts facts = variables.extras.book;
    for (const QString &title :
         {proposedName(variables), QCoreApplication::translate("Book", "Sans titre")})
        if (isBlank(facts.title))
            facts.title = title;
    if (!isLanguageCode(facts.language))
        facts.language = BookFacts().language;
    return facts;
}

QString bookIdentity(const BookFacts &facts)
{
    const QString words = facts.title + u'\n' + facts.author;
    return QUuid::createUuidV5(Books, words.toUtf8()).toString(QUuid::WithoutBraces);
}

QString bookLine(const BookFacts &facts)
{
    return facts.author.isEmpty()
               ? facts.title
               : QCoreApplication::translate("Book", "%1, par %2").arg(facts.title, facts.author);
}

QList<int> emptyTargets(const Variables &variables, const ExportRange &range)
{
    QList<int> targets;
    forEachWritten(
        variables, range, [](int, int) {},
        [&](int n) {
            for (const int target : referredParagraphs(variables.refIndex.at(n)))
                if (target != 0 && variables.Written.at(target) == 0)
                    targets.append(target);
        });
    return targets;
}

QString emptyTargetsSentence(const Book &book)
{
    return emptyTargetsSentence(book.emptyTargets);
}

QString emptyTargetsSentence(const QList<int> &targets)
{
    if (targets.isEmpty())
        return {};
    QList<int> numbers = targets;
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    QStringList list;
    for (const int n : numbers)
        list.append(QString::number(n));
    const auto references = static_cast<int>(targets.size());
    const QString one = QCoreApplication::translate(
        "Book", "%n renvoi(s) mène(nt) à un paragraphe vide : %1.", nullptr, references);
    const QString more = QCoreApplication::translate(
        "Book", "%n renvoi(s) mène(nt) à des paragraphes vides : %1.", nullptr, references);
    return withNoBreakSpaces(
        (numbers.size() == 1 ? one : more).arg(list.join(QStringLiteral(", "))));
}

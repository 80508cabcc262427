#include "store/extras/ExtrasBlock.h"

#include "platform/Errors.h"
#include "store/Variables.h"

#include <QCryptographicHash>
#include <QStringDecoder>
#include <QtEndian>
#include <algorithm>

namespace
{
constexpr QByteArrayView Magic("XTRA");
constexpr QByteArrayView Starts("STRT");
constexpr QByteArrayView Accepted("ACPT");
constexpr QByteArrayView Read("READ");
constexpr QByteArrayView Taken("TAKN");
constexpr QByteArrayView Bookmarks("BKMK");
constexpr QByteArrayView Facts("BOOK");
constexpr QByteArrayView Cover("COVR");
constexpr QByteArrayView Words("WORD");
constexpr QByteArrayView Ignored("IGNW");
constexpr quint16 Version = 1;
constexpr qsizetype LengthOfSum = 32;
constexpr qsizetype LengthOfTag = 4;

// What the checksum stands behind, and guards with the records.
constexpr qsizetype Guarded = ExtrasHead - LengthOfSum;

// Takes a record apart. All of it throws FormatError at the end of the bytes.
class RecordReader
{
public:
    explicit RecordReader(QByteArrayView bytes) : m_bytes(bytes) {}

    bool atEnd() const { return m_next == m_bytes.size(); }

    QByteArrayView take(qint64 length)
    {
        if (length > m_bytes.size() - m_next)
            throw FormatError(m_next, QStringLiteral("%1 more bytes").arg(length));
        m_next += length;
        return m_bytes.sliced(m_next - length, length);
    }

    quint32 takeLong() { return qFromLittleEndian<quint32>(take(sizeof(quint32)).data()); }

    int takeNumber()
    {
        const int n = qFromLittleEndian<quint16>(take(sizeof(quint16)).data());
        if (n > Variables::LastParagraph)
            throw FormatError(m_next, QStringLiteral("a paragraph number up to 2000"));
        return n;
    }

    QList<int> takeNumbers()
    {
        QList<int> numbers;
        while (!atEnd())
            numbers.append(takeNumber());
        return numbers;
    }

    // A byte order mark at its beginning is part of it, so that it is written as it was read.
    QString takeText()
    {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
        return decoder(take(takeLong()));
    }

private:
    QByteArrayView m_bytes;
    qsizetype m_next = 0;
};

template <typename Unsigned> QByteArray littleEndian(qint64 n)
{
    const Unsigned number = qToLittleEndian(static_cast<Unsigned>(n));
    return QByteArray(reinterpret_cast<const char *>(&number), sizeof number);
}

QByteArray numberBytes(int n)
{
    return littleEndian<quint16>(n);
}

QByteArray lengthBytes(qsizetype length)
{
    return littleEndian<quint32>(length);
}

QByteArray numbersBytes(const QList<int> &numbers)
{
    QByteArray bytes;
    for (const int n : numbers)
        bytes += numberBytes(n);
    return bytes;
}

QByteArray textBytes(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    return lengthBytes(utf8.size()) + utf8;
}

// Of a record that is empty there is nothing to say.
QByteArray record(QByteArrayView tag, const QByteArray &bytes)
{
    return bytes.isEmpty() ? QByteArray() : tag.toByteArray() + lengthBytes(bytes.size()) + bytes;
}

QByteArray acceptedBytes(const QList<AcceptedFinding> &accepted)
{
    QByteArray bytes;
    for (const AcceptedFinding &finding : accepted)
        bytes += numberBytes(finding.number) + numberBytes(finding.target) +
                 finding.sentence.leftJustified(LengthOfSum, '\0', true) + textBytes(finding.kind);
    return bytes;
}

QByteArray takenBytes(const QList<ReadingMarks::Choice> &taken)
{
    QByteArray bytes;
    for (const ReadingMarks::Choice &choice : taken)
        bytes += numberBytes(choice.from) + numberBytes(choice.to);
    return bytes;
}

QByteArray bookmarkBytes(const QList<ReadingMarks::Bookmark> &bookmarks)
{
    QByteArray bytes;
    for (const ReadingMarks::Bookmark &bookmark : bookmarks)
        bytes += textBytes(bookmark.name) + lengthBytes(bookmark.way.size()) +
                 numbersBytes(bookmark.way);
    return bytes;
}

QByteArray factsBytes(BookFacts facts)
{
    facts.cover.clear();
    if (facts == BookFacts())
        return {};
    return textBytes(facts.title) + textBytes(facts.author) + textBytes(facts.language) +
           textBytes(facts.dedication) + textBytes(facts.before) + textBytes(facts.after);
}

QByteArray wordBytes(const QStringList &words)
{
    QByteArray bytes;
    for (const QString &word : words)
        bytes += textBytes(word);
    return bytes;
}

QByteArray ignoredBytes(const QList<IgnoredWord> &ignored)
{
    QByteArray bytes;
    for (const IgnoredWord &one : ignored)
        bytes += numberBytes(one.number) + textBytes(one.word);
    return bytes;
}

QByteArray recordBytes(const AdventureExtras &extras)
{
    QByteArray bytes = record(Starts, numbersBytes(extras.starts)) +
                       record(Accepted, acceptedBytes(extras.accepted)) +
                       record(Read, numbersBytes(extras.reading.read)) +
                       record(Taken, takenBytes(extras.reading.taken)) +
                       record(Bookmarks, bookmarkBytes(extras.reading.bookmarks)) +
                       record(Facts, factsBytes(extras.book)) + record(Cover, extras.book.cover) +
                       record(Words, wordBytes(extras.words)) +
                       record(Ignored, ignoredBytes(extras.ignored));
    for (const UnknownRecord &unknown : extras.unknown)
        bytes += unknown.tag + lengthBytes(unknown.bytes.size()) + unknown.bytes;
    return bytes;
}

QList<AcceptedFinding> readAccepted(RecordReader &record)
{
    QList<AcceptedFinding> accepted;
    while (!record.atEnd()) {
        AcceptedFinding finding;
        finding.number = record.takeNumber();
        finding.target = record.takeNumber();
        finding.sentence = record.take(LengthOfSum).toByteArray();
        finding.kind = record.takeText();
        accepted.append(finding);
    }
    return accepted;
}

QList<ReadingMarks::Choice> readTaken(RecordReader &record)
{
    QList<ReadingMarks::Choice> taken;
    while (!record.atEnd()) {
        const int from = record.takeNumber();
        taken.append({from, record.takeNumber()});
    }
    return taken;
}

QList<ReadingMarks::Bookmark> readBookmarks(RecordReader &record)
{
    QList<ReadingMarks::Bookmark> bookmarks;
    while (!record.atEnd()) {
        const QString name = record.takeText();
        const qint64 count = record.takeLong();
        RecordReader way(record.take(count * qint64{sizeof(quint16)}));
        bookmarks.append({name, way.takeNumbers()});
    }
    return bookmarks;
}

QStringList readWords(RecordReader &record)
{
    QStringList words;
    while (!record.atEnd())
        words.append(record.takeText());
    return words;
}

QList<IgnoredWord> readIgnored(RecordReader &record)
{
    QList<IgnoredWord> ignored;
    while (!record.atEnd()) {
        const int number = record.takeNumber();
        ignored.append({number, record.takeText()});
    }
    return ignored;
}

void readFacts(RecordReader &record, BookFacts &facts)
{
    for (QString *text : {&facts.title, &facts.author, &facts.language, &facts.dedication,
                          &facts.before, &facts.after})
        *text = record.takeText();
}

void readRecord(QByteArrayView tag, QByteArrayView bytes, AdventureExtras &extras)
{
    RecordReader record(bytes);
    if (tag == Starts)
        extras.starts = record.takeNumbers();
    else if (tag == Accepted)
        extras.accepted = readAccepted(record);
    else if (tag == Read)
        extras.reading.read = record.takeNumbers();
    else if (tag == Taken)
        extras.reading.taken = readTaken(record);
    else if (tag == Bookmarks)
        extras.reading.bookmarks = readBookmarks(record);
    else if (tag == Facts)
        readFacts(record, extras.book);
    else if (tag == Cover)
        extras.book.cover = bytes.toByteArray();
    else if (tag == Words)
        extras.words = readWords(record);
    else if (tag == Ignored)
        extras.ignored = readIgnored(record);
    else
        extras.unknown.append({tag.toByteArray(), bytes.toByteArray()});
}

// A file may end within its magic.
bool beginsAsBlock(QByteArrayView bytes)
{
    const qsizetype length = std::min(bytes.size(), Magic.size());
    return length > 0 && bytes.first(length) == Magic.first(length);
}

// SHA-256 as everywhere in the program: what there is may be a picture, and costs a millisecond for
// half a megabyte.
QByteArray sumOf(QByteArrayView guarded, QByteArrayView records)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(guarded);
    hash.addData(records);
    return hash.result();
}

// Throws FormatError unless the bytes are those of a whole block.
QByteArrayView recordsOf(QByteArrayView bytes)
{
    RecordReader block(bytes);
    block.take(Magic.size());
    const auto version = qFromLittleEndian<quint16>(block.take(sizeof(quint16)).data());
    const qint64 length = block.takeLong();
    const QByteArrayView sum = block.take(LengthOfSum);
    if (version != Version || length > LargestExtras)
        throw FormatError(Magic.size(), QStringLiteral("version and length of a block"));
    const QByteArrayView records = block.take(length);
    if (sum != sumOf(bytes.first(Guarded), records))
        throw FormatError(Guarded, QStringLiteral("the checksum of the block"));
    return records;
}
} // namespace

qsizetype extrasLength(QByteArrayView head)
{
    if (!beginsAsBlock(head))
        return 0;
    if (head.size() < ExtrasHead)
        return head.size();
    RecordReader block(head);
    block.take(Guarded - qsizetype{sizeof(quint32)});
    const qint64 length = block.takeLong();
    return length > LargestExtras ? ExtrasHead : ExtrasHead + length;
}

std::optional<AdventureExtras> extrasFrom(QByteArrayView bytes)
{
    AdventureExtras extras;
    if (!beginsAsBlock(bytes))
        return extras;
    try {
        RecordReader records(recordsOf(bytes));
        while (!records.atEnd()) {
            const QByteArrayView tag = records.take(LengthOfTag);
            readRecord(tag, records.take(records.takeLong()), extras);
        }
    } catch (const FormatError &) {
        return std::nullopt;
    }
    return extras;
}

QByteArray bytesOf(const AdventureExtras &extras)
{
    const QByteArray records = recordBytes(extras);
    if (records.isEmpty())
        return {};
    const QByteArray guarded =
        Magic.toByteArray() + littleEndian<quint16>(Version) + lengthBytes(records.size());
    return guarded + sumOf(guarded, records) + records;
}

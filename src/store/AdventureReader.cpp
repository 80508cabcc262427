#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"
#include "platform/SystemFiles.h"
#include "richtext/CodePage.h"
#include "richtext/RtfReader.h"
#include "richtext/TextLimit.h"
#include "store/AdventureFile.h"
#include "store/WorkingFiles.h"
#include "store/extras/ExtrasBlock.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <algorithm>
#include <limits>

namespace
{
constexpr int LargestShort = 32767; // larger 2-byte numbers are damage
constexpr int OldParagraphs = 1000;
constexpr int OldVersionWithFlags = 25;
constexpr int OldPhraseField = 31; // behind its length byte
constexpr int OldReserved = 64;

// Reads big-endian numbers and texts forward through a file, by way of a window of its bytes, so
// that neither many small pieces nor long skipped texts cost more than they must.
class ByteReader
{
public:
    explicit ByteReader(OpenedFile &file) : m_file(file) {}

    // 0-based offset of the next byte.
    qint64 offset() const { return m_windowStart + m_next; }

    QByteArrayView take(qint64 length)
    {
        if (length > m_window.size() - m_next)
            fill(length);
        const QByteArrayView bytes(m_window.constData() + m_next, length);
        m_next += length;
        return bytes;
    }

    void skip(qint64 length)
    {
        if (length > m_file.size() - offset())
            throw FormatError(offset(), QStringLiteral("%1 more bytes").arg(length));
        if (length <= m_window.size() - m_next) {
            m_next += length;
            return;
        }
        m_windowStart = offset() + length;
        m_window.clear();
        m_next = 0;
    }

    qint16 takeShort()
    {
        const auto value = qFromBigEndian<quint16>(take(2).data());
        if (value > LargestShort)
            throw FormatError(offset() - 2, QStringLiteral("a number up to 32767"));
        return static_cast<qint16>(value);
    }

    quint32 takeLong() { return qFromBigEndian<quint32>(take(4).data()); }

private:
    void fill(qint64 length)
    {
        constexpr qint64 WindowSize = 64 * 1024;
        const qint64 start = offset();
        const qint64 left = m_file.size() - start;
        if (length > left)
            throw FormatError(start, QStringLiteral("%1 more bytes").arg(length));
        m_window = m_file.read(start, std::min(left, std::max(length, WindowSize)));
        m_windowStart = start;
        m_next = 0;
    }

    OpenedFile &m_file;
    QByteArray m_window;
    qint64 m_windowStart = 0;
    qint64 m_next = 0;
};

void readHeader(ByteReader &reader, AdventureContents &contents)
{
    contents.version = reader.takeShort();
    contents.lowest = reader.takeShort();
    contents.highest = reader.takeShort();
    contents.current = reader.takeShort();
}

// Bytes that show whether a text is one.
constexpr qint64 TextHead = 8;

bool isTextHead(QByteArrayView head, qint64 length)
{
    return length <= LargestText && RtfReader::beginsAsRtf(head);
}

void readFlags(ByteReader &reader, AdventureContents &contents)
{
    for (int n = contents.lowest; n <= contents.highest; ++n) {
        const char flag = reader.take(1).front();
        if (n <= Variables::LastParagraph)
            contents.unmixable.at(n) = flag != 0 ? 1 : 0;
    }
}

void readSection(ByteReader &reader, AdventureContents &contents)
{
    const int n = reader.takeShort();
    if (n > Variables::LastParagraph)
        throw FormatError(reader.offset() - 2, QStringLiteral("a paragraph number up to 2000"));
    const quint32 length = reader.takeLong();
    const qint64 position = reader.offset() + 1;
    if (position > std::numeric_limits<qint32>::max())
        throw FormatError(reader.offset(), QStringLiteral("a text below 2 GiB"));
    const qint64 head = std::min<qint64>(length, TextHead);
    const bool isText = length == 0 || isTextHead(reader.take(head), length);
    reader.skip(length - head);
    contents.damaged.at(n) = isText ? 0 : 1;
    contents.sectionOffset.at(n) = static_cast<qint32>(position);
    contents.refIndex.at(n) = fromWindows1252(reader.take(reader.takeShort()));
    contents.written.at(n) = 1;
}

// The four letters of a tag as one number: of a file full of unknown tags there are millions.
constexpr quint32 tag(const char (&letters)[5])
{
    quint32 number = 0;
    for (int i = 0; i < 4; ++i)
        number = number << 8 | static_cast<uchar>(letters[i]);
    return number;
}

void readSections(ByteReader &reader, AdventureContents &contents)
{
    for (;;) {
        switch (reader.takeLong()) {
        case tag("DONE"):
            return;
        case tag("TARG"):
            contents.targetPhrase = fromWindows1252(reader.take(reader.takeShort()));
            break;
        case tag("UNMX"):
            readFlags(reader, contents);
            break;
        case tag("SECT"):
            readSection(reader, contents);
            break;
        default:
            break; // passed over
        }
    }
}

// However many bytes of whatever kind stand behind "DONE", only a block of ours is read.
void readExtras(OpenedFile &file, qint64 at, AdventureContents &contents)
{
    const qint64 left = file.size() - at;
    const qint64 length = extrasLength(file.read(at, std::min(left, qint64{ExtrasHead})));
    const std::optional<AdventureExtras> extras = extrasFrom(file.read(at, std::min(left, length)));
    contents.extras = extras.value_or(AdventureExtras());
    contents.extrasDamaged = !extras;
}

// An offset that no file can have reads as one behind the file's end: that text cannot be read.
qint32 clampedOffset(quint32 offset)
{
    constexpr quint32 largest = std::numeric_limits<qint32>::max();
    return static_cast<qint32>(std::min(offset, largest));
}

void readOldLayout(ByteReader &reader, AdventureContents &contents)
{
    const int length = static_cast<uchar>(reader.take(1).front());
    if (length > OldPhraseField)
        throw FormatError(reader.offset() - 1, QStringLiteral("a phrase of at most 31 characters"));
    contents.targetPhrase = fromWindows1252(reader.take(length));
    reader.skip(OldPhraseField - length + OldReserved);
    if (contents.version == OldVersionWithFlags) {
        for (int n = 0; n < OldParagraphs; ++n)
            contents.unmixable.at(n) = reader.take(1).front() != 0 ? 1 : 0;
    }
    for (int n = 0; n <= OldParagraphs; ++n)
        contents.sectionOffset.at(n) = clampedOffset(reader.takeLong());
    for (int n = 0; n < OldParagraphs; ++n)
        contents.written.at(n) = contents.sectionOffset.at(n + 1) > contents.sectionOffset.at(n);
}

// An old file knows its texts by their offsets alone, so that one cut short loses only some.
void findOldDamage(OpenedFile &file, AdventureContents &contents)
{
    for (int n = 0; n < OldParagraphs; ++n) {
        const qint64 offset = qint64{contents.sectionOffset.at(n)} - 1;
        const qint64 length = qint64{contents.sectionOffset.at(n + 1)} - 1 - offset;
        if (contents.written.at(n) == 0)
            continue;
        const bool inside = offset >= 0 && offset + length <= file.size();
        const bool isText =
            inside && isTextHead(file.read(offset, std::min(length, TextHead)), length);
        contents.damaged.at(n) = isText ? 0 : 1;
    }
}

// A range that says nonsense is made anew from the sections; a section outside it widens it.
void repairRange(AdventureContents &contents)
{
    constexpr qint16 last = Variables::LastParagraph;
    qint16 lowest = last;
    qint16 highest = 0;
    for (qint16 n = 0; n <= last; ++n) {
        if (contents.written.at(n) == 1) {
            lowest = std::min(lowest, n);
            highest = n;
        }
    }
    const bool empty = lowest > highest;
    if (contents.lowest > contents.highest || contents.highest > last) {
        contents.lowest = empty ? qint16{1} : lowest;
        contents.highest = empty ? qint16{1} : highest;
    } else if (!empty) {
        contents.lowest = std::min(contents.lowest, lowest);
        contents.highest = std::max(contents.highest, highest);
    }
    if (contents.current > last)
        contents.current = contents.lowest;
}
} // namespace

AdventureContents readAdventure(const std::shared_ptr<OpenedFile> &file)
{
    AdventureContents contents;
    ByteReader reader(*file);
    readHeader(reader, contents);
    if (contents.version == CurrentVersion) {
        readSections(reader, contents);
        readExtras(*file, reader.offset(), contents);
    } else {
        readOldLayout(reader, contents);
        findOldDamage(*file, contents);
    }
    repairRange(contents);
    contents.file = file;
    return contents;
}

AdventureContents readAdventure(const QString &path)
{
    try {
        return readAdventure(std::make_shared<OpenedFile>(path));
    } catch (const FormatError &error) {
        throw FileError(FileError::Operation::Read, path, QString::fromUtf8(error.what()),
                        std::errc::illegal_byte_sequence);
    }
}

bool isPlaceholder(const QString &path)
{
    QFile file(path);
    const QByteArray placeholder(Placeholder);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) &&
           file.read(placeholder.size() + 1) == placeholder;
}

int readVersion(const QString &path)
{
    QFile file(path);
    openRegular(file, QIODevice::ReadOnly);
    const QByteArray bytes = file.read(sizeof(quint16));
    if (file.error() != QFileDevice::NoError)
        throw FileError(FileError::Operation::Read, path, failureOf(file));
    const int version =
        bytes.size() == sizeof(quint16) ? qFromBigEndian<quint16>(bytes.constData()) : -1;
    if (version < 0 || version > LargestShort)
        throw FileError(FileError::Operation::Read, path, QStringLiteral("no version"),
                        std::errc::illegal_byte_sequence);
    return version;
}

void takeOver(Variables &variables, AdventureContents contents)
{
    variables.LowestWritten = contents.lowest;
    variables.HighestWritten = contents.highest;
    variables.CurrentParagraph = contents.current;
    variables.TargetPhrase = contents.targetPhrase;
    variables.Written = contents.written;
    variables.Extracted.fill(0);
    variables.SectionOffset = contents.sectionOffset;
    variables.Unmixable = contents.unmixable;
    variables.refIndex = std::move(contents.refIndex);
    variables.Damaged = contents.damaged;
    variables.extras = std::move(contents.extras);
    variables.extrasModified = false;
    variables.AdventureFile = std::move(contents.file);
    variables.CurrentFormat = contents.version == CurrentVersion;
    variables.AdventureOpen = true;
    variables.AdventureModified = false;
    variables.MarksModified = false;
    variables.ParagraphDirty = false;
}

void setNames(Variables &variables, const QString &path)
{
    variables.AdventurePath = QFileInfo(path).absoluteFilePath();
    variables.AdventureFileName = QFileInfo(path).fileName();
    variables.FilePrefix = filePrefixOf(variables.AdventureFileName);
}

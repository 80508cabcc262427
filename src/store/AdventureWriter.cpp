#include "platform/Errors.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"
#include "richtext/CodePage.h"
#include "store/AdventureFile.h"
#include "store/ParagraphTexts.h"
#include "store/extras/ExtrasBlock.h"

#include <QtEndian>
#include <limits>

namespace
{
// A 2-byte length holds 32,767 at the most, and a list ends with a whole entry of five characters.
constexpr qsizetype LongestList = 6553 * 5;

// Collects small pieces, so that the file sees few large writes.
class ByteWriter
{
public:
    explicit ByteWriter(SafeFile &file) : m_file(file) {}

    // 1-based position of the next byte.
    qint64 position() const { return m_file.position() + m_pending.size() + 1; }

    void bytes(QByteArrayView bytes)
    {
        m_pending += bytes;
        if (m_pending.size() >= 256 * 1024)
            flush();
    }

    void shortNumber(qsizetype n) { number(static_cast<quint16>(n)); }
    void longNumber(qsizetype n) { number(static_cast<quint32>(n)); }

    void flush()
    {
        m_file.write(m_pending);
        m_pending.clear();
    }

private:
    template <typename Unsigned> void number(Unsigned n)
    {
        const Unsigned bigEndian = qToBigEndian(n);
        bytes(QByteArrayView(reinterpret_cast<const char *>(&bigEndian), sizeof bigEndian));
    }

    SafeFile &m_file;
    QByteArray m_pending;
};

QByteArray phraseBytes(const Variables &variables)
{
    const std::optional<QByteArray> phrase = toWindows1252(variables.TargetPhrase);
    if (!phrase || phrase->size() > LongestPhrase)
        throw FormatError(0, QStringLiteral("a target phrase in Windows-1252"));
    return *phrase;
}

// Every list is ours or was read from Windows-1252 bytes, so that it always fits into them.
QByteArray listBytes(const QString &list)
{
    return toWindows1252(list.left(LongestList)).value_or(QByteArray());
}

void writeHeader(ByteWriter &out, const Variables &variables)
{
    out.shortNumber(CurrentVersion);
    out.shortNumber(variables.LowestWritten);
    out.shortNumber(variables.HighestWritten);
    out.shortNumber(variables.CurrentParagraph);
    const QByteArray phrase = phraseBytes(variables);
    out.bytes("TARG");
    out.shortNumber(phrase.size());
    out.bytes(phrase);
    out.bytes("UNMX");
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n) {
        const char flag = variables.Unmixable.at(n) != 0 ? 1 : 0;
        out.bytes(QByteArrayView(&flag, 1));
    }
}

qint32 writeSection(ByteWriter &out, const Variables &variables, int n, const QByteArray &text)
{
    const QByteArray list = listBytes(variables.refIndex.at(n));
    out.bytes("SECT");
    out.shortNumber(n);
    out.longNumber(text.size());
    const qint64 position = out.position();
    if (position + text.size() > std::numeric_limits<qint32>::max())
        throw FormatError(position, QStringLiteral("an adventure below 2 GiB"));
    out.bytes(text);
    out.shortNumber(list.size());
    out.bytes(list);
    return static_cast<qint32>(position);
}

// The sections are compared by where their texts begin, which fixes every length before them.
void compare(const AdventureContents &read, const Variables &variables,
             const ParagraphArray<qint32, 2001> &offsets, qint64 size)
{
    bool same = read.lowest == variables.LowestWritten &&
                read.highest == variables.HighestWritten &&
                read.current == variables.CurrentParagraph &&
                read.targetPhrase == variables.TargetPhrase && read.sectionOffset == offsets &&
                read.extras == variables.extras && read.file->size() == size;
    for (int n = 0; same && n < offsets.count(); ++n) {
        const bool inRange = offsets.at(n) != 0;
        same = (read.written.at(n) == 1) == inRange &&
               (!inRange || read.refIndex.at(n) == variables.refIndex.at(n).left(LongestList));
    }
    if (!same)
        throw FormatError(0, QStringLiteral("the adventure as it was written"));
}
} // namespace

AdventureContents writeAdventure(const Variables &variables, const QString &path,
                                 const TextSource &text, const Progress &progress)
{
    const int total = variables.HighestWritten - variables.LowestWritten + 1;
    ParagraphArray<qint32, 2001> offsets;
    SafeFile file(path, Durability::Data, Links::Replace);
    ByteWriter out(file);
    writeHeader(out, variables);
    for (int n = variables.LowestWritten; n <= variables.HighestWritten; ++n) {
        const std::optional<QByteArray> rtf = variables.Written.at(n) == 1 ? text(n) : std::nullopt;
        if (rtf)
            offsets.at(n) = writeSection(out, variables, n, *rtf);
        progress(n - variables.LowestWritten + 1, total);
    }
    out.bytes("DONE");
    out.bytes(bytesOf(variables.extras));
    out.flush();
    const qint64 size = file.position();
    file.commit();
    AdventureContents contents = readAdventure(std::make_shared<OpenedFile>(path));
    compare(contents, variables, offsets, size);
    return contents;
}

AdventureContents writeAdventure(const Variables &variables, const QString &path)
{
    return writeAdventure(
        variables, path, [&variables](int n) { return GetParagraphRtf(variables, n); },
        [](int, int) {});
}

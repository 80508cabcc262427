#include "support/AdventureBuilder.h"

#include "platform/Translations.h"
#include "richtext/HiddenBox.h"
#include "store/WorkingFiles.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QtEndian>
#include <algorithm>

// What tests see is what authors see, plurals included.
static void speakFrench()
{
    loadTranslations(Language::French);
}
Q_COREAPP_STARTUP_FUNCTION(speakFrench)

namespace
{
template <typename Number> QByteArray bigEndian(qsizetype n)
{
    const Number big = qToBigEndian(static_cast<Number>(n));
    return QByteArray(reinterpret_cast<const char *>(&big), sizeof big);
}

constexpr auto u16 = &bigEndian<quint16>;
constexpr auto u32 = &bigEndian<quint32>;

// What the index should hold for a text, for " au " and plain numbers.
QByteArray listOf(const QString &text)
{
    static const QRegularExpression reference(QStringLiteral(" au (\\d{1,4})\\b"),
                                              QRegularExpression::CaseInsensitiveOption);
    QByteArray list;
    for (auto match = reference.globalMatch(text); match.hasNext();)
        list += match.next().captured(1).rightJustified(4, u'0').toLatin1() + '/';
    return list;
}
} // namespace

QByteArray rtfOf(const QString &text)
{
    HiddenBox box;
    box.setText(text);
    return box.rtf();
}

AdventureBuilder::AdventureBuilder(const QStringList &lines)
{
    for (const QString &line : lines) {
        const qsizetype colon = line.indexOf(u':');
        QString number = line.left(colon);
        const bool fixed = number.endsWith(u'!');
        number.remove(u'!');
        const QString text = line.mid(colon + 2);
        m_paragraphs.append({number.toInt(), rtfOf(text), listOf(text), fixed});
    }
    if (!m_paragraphs.isEmpty()) {
        m_lowest = m_paragraphs.first().number;
        m_highest = m_paragraphs.last().number;
        m_current = m_lowest;
    }
}

AdventureBuilder &AdventureBuilder::range(int lowest, int highest)
{
    m_lowest = lowest;
    m_highest = highest;
    return *this;
}

AdventureBuilder::Paragraph &AdventureBuilder::paragraph(int n)
{
    return *std::find_if(m_paragraphs.begin(), m_paragraphs.end(),
                         [n](const Paragraph &p) { return p.number == n; });
}

QByteArray AdventureBuilder::header(int version) const
{
    return u16(version) + u16(m_lowest) + u16(m_highest) + u16(m_current);
}

char AdventureBuilder::flag(int n) const
{
    return std::any_of(m_paragraphs.begin(), m_paragraphs.end(),
                       [n](const Paragraph &p) { return p.number == n && p.fixed; })
               ? '\1'
               : '\0';
}

QByteArray AdventureBuilder::bytes() const
{
    QByteArray bytes = header(35) + "TARG" + u16(m_phrase.size()) + m_phrase;
    bytes += "UNMX";
    for (int n = m_lowest; n <= m_highest; ++n)
        bytes += flag(n);
    for (const Paragraph &p : m_paragraphs)
        bytes += "SECT" + u16(p.number) + u32(p.text.size()) + p.text + u16(p.list.size()) + p.list;
    return bytes + "DONE";
}

QByteArray AdventureBuilder::oldBytes(int version) const
{
    QByteArray bytes = header(version) + static_cast<char>(m_phrase.size()) + m_phrase;
    bytes += QByteArray(31 - m_phrase.size() + 64, '\0');
    for (int n = 0; version == 25 && n < 1000; ++n)
        bytes += flag(n);
    qsizetype offset = bytes.size() + qsizetype{1001} * 4 + 1;
    QByteArray texts;
    auto next = m_paragraphs.begin();
    for (int n = 0; n <= 1000; ++n) {
        bytes += u32(offset + texts.size());
        if (next != m_paragraphs.end() && next->number == n)
            texts += (next++)->text;
    }
    return bytes + texts;
}

QByteArray extrasBlock(const QByteArray &records, char version)
{
    const QByteArray head = "XTRA" + QByteArray(1, version) + '\0' + lengthInBlock(records.size());
    return head + QCryptographicHash::hash(head + records, QCryptographicHash::Sha256) + records;
}

QByteArray lengthInBlock(qsizetype n)
{
    const quint32 little = qToLittleEndian(static_cast<quint32>(n));
    return QByteArray(reinterpret_cast<const char *>(&little), sizeof little);
}

TestAdventure::TestAdventure()
{
    QVERIFY(m_folder.isValid());
    variables.WorkingFolder = // as the program has it
        QDir::toNativeSeparators(m_folder.filePath(QStringLiteral("Dossier Usmira")) + u'/');
    QVERIFY(QDir().mkpath(variables.WorkingFolder));
}

QString TestAdventure::file(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        QTest::qFail("the test's own file could not be written", __FILE__, __LINE__);
    return file.fileName();
}

QByteArray TestAdventure::content(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList TestAdventure::workingFiles() const
{
    const QString session = QStringLiteral("Session");
    const QDir folder(variables.WorkingFolder);
    QStringList names = folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    const QStringList inside = QDir(folder.filePath(session)).entryList(QDir::Files);
    if (!inside.isEmpty())
        names.removeOne(session);
    for (const QString &name : inside)
        names.append(session + u'/' + name);
    names.removeOne(QStringLiteral("Copies"));
    names.removeOne(QStringLiteral("Usmira Documents.xyz"));
    names.removeIf(
        [](const QString &name) { return WorkingFiles::documentNames().contains(name); });
    return names;
}

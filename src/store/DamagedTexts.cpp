#include "store/DamagedTexts.h"

#include "platform/Failures.h"
#include "platform/OpenedFile.h"
#include "platform/SafeFile.h"
#include "richtext/RtfPlainText.h"
#include "richtext/TextLimit.h"
#include "store/ParagraphTexts.h"
#include "store/WorkingFiles.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <utility>

namespace
{
constexpr qint64 Piece = 1024 * 1024;

// "Le Loup (note).bin", or "Le Loup (note 2).bin" when that is taken.
QString freePathBeside(const QString &adventurePath, const QString &note, const QString &suffix)
{
    const QFileInfo info(adventurePath);
    const QString stem = info.path() + u'/' + info.completeBaseName();
    QString path = QStringLiteral("%1 (%2)%3").arg(stem, note, suffix);
    for (int k = 2; QFileInfo::exists(path) || QFileInfo(path).isSymLink(); ++k)
        path = QStringLiteral("%1 (%2 %3)%4").arg(stem, note, QString::number(k), suffix);
    return path;
}

QString keptBytesPath(const Variables &variables, int n)
{
    return freePathBeside(variables.AdventurePath, QStringLiteral("illisible ") + fourDigits(n),
                          QStringLiteral(".bin"));
}

// Both give true when these are all bytes that there can be.
bool copyWorkingFile(const Variables &variables, int n, SafeFile &to)
{
    QFile from(extractedTextPath(variables, n));
    if (!QFileInfo(from.fileName()).isFile() || !from.open(QIODevice::ReadOnly))
        return false;
    while (!from.atEnd() && from.error() == QFileDevice::NoError)
        to.write(from.read(Piece));
    return from.error() == QFileDevice::NoError;
}

// Copies no more than a text may have: a few bytes of damage can claim any length.
bool copyFromAdventure(const Variables &variables, int n, SafeFile &to)
{
    OpenedFile &from = *variables.AdventureFile;
    try {
        const TextExtent text = textExtent(variables, n);
        const qint64 last = std::min(text.offset + text.length, from.size());
        const qint64 end = std::min(last, text.offset + LargestText);
        for (qint64 at = text.offset; at < end; at += Piece)
            to.write(from.read(at, std::min(Piece, end - at)));
        return end == last;
    } catch (const FileError &error) {
        if (error.operation() == FileError::Operation::Write)
            throw;
        return false;
    }
}

// Of a text without a single byte that can be read no file is made.
bool copyBytes(const Variables &variables, int n, const QString &path)
{
    SafeFile to(path, Durability::Full, Links::Replace);
    const bool all = variables.Extracted.at(n) == 1 ? copyWorkingFile(variables, n, to)
                                                    : copyFromAdventure(variables, n, to);
    if (to.position() > 0)
        to.commit();
    return all;
}
} // namespace

QList<int> damagedParagraphs(const Variables &variables)
{
    QList<int> numbers;
    for (int n = 0; n < variables.Damaged.count(); ++n)
        if (variables.Damaged.at(n) == 1)
            numbers.append(n);
    return numbers;
}

QByteArray textToShow(Variables &variables, int n, Prompts &prompts)
{
    const bool known = variables.Damaged.at(n) == 1;
    const QByteArray text = textToShow(variables, n);
    if (variables.Damaged.at(n) == 1 && !known)
        tellUnreadable({n}, prompts);
    return text;
}

std::optional<QByteArray> readableText(const Variables &variables, int n, QList<int> &unreadable)
{
    try {
        return GetParagraphRtf(variables, n);
    } catch (const UsmiraError &) {
        unreadable.append(n);
        return std::nullopt;
    }
}

std::optional<QString> readablePlainText(const Variables &variables, int n, QList<int> &unreadable)
{
    try {
        return rtfToPlainText(GetParagraphRtf(variables, n));
    } catch (const UsmiraError &) {
        unreadable.append(n);
        return std::nullopt;
    }
}

void tellUnreadable(const QList<int> &paragraphs, Prompts &prompts)
{
    const QString text = QCoreApplication::translate("DamagedTexts", "Paragraphes illisibles : %1");
    if (!paragraphs.isEmpty())
        prompts.notice(text.arg(paragraphNames(paragraphs)), QStringLiteral("BUG"));
}

KeptBytes::KeptBytes(const Variables &variables, const QList<int> &paragraphs, WholeFile whole)
    : m_beside(whole == WholeFile::IsKept)
{
    try {
        keep(variables, paragraphs);
    } catch (const FileError &) {
        undo();
        throw;
    }
}

KeptBytes::~KeptBytes()
{
    undo();
}

void KeptBytes::keep(const Variables &variables, const QList<int> &paragraphs)
{
    const bool wholeKept = m_beside;
    bool all = true;
    for (const int n : paragraphs)
        all = keepText(variables, n) && all;
    const QString &adventure = variables.AdventurePath;
    if (all || wholeKept || !QFileInfo(adventure).isFile())
        return;
    m_paths.append(otherVersionPath(adventure));
    keepAs(adventure, m_paths.last());
    m_beside = true;
}

// True when these are all bytes that there can be.
bool KeptBytes::keepText(const Variables &variables, int n)
{
    const QString path = keptBytesPath(variables, n);
    m_paths.append(path);
    const bool copied = copyBytes(variables, n, path);
    m_beside = m_beside || QFileInfo::exists(path);
    return copied || moveAside(variables, n);
}

bool KeptBytes::moveAside(const Variables &variables, int n)
{
    const QString path = extractedTextPath(variables, n);
    if (variables.Extracted.at(n) == 0 || !QFileInfo::exists(path))
        return false;
    if (m_folder.isEmpty())
        m_folder = WorkingFiles(variables).newRecoveryFolder(QDateTime::currentDateTime());
    QDir().mkpath(m_folder);
    const QString aside = m_folder + u'/' + QFileInfo(path).fileName();
    renameFile(path, aside);
    m_moved.append({path, aside});
    return true;
}

QString KeptBytes::whereKept() const
{
    QString where;
    if (m_beside)
        where += u' ' + QCoreApplication::translate(
                            "DamagedTexts", "Leurs octets sont gardés à côté de l'aventure.");
    if (!m_folder.isEmpty())
        where +=
            u' ' + QCoreApplication::translate(
                       "DamagedTexts", "Leurs fichiers de travail sont rangés dans le dossier %1.")
                       .arg(m_folder);
    return where;
}

void KeptBytes::textsAreReplaced()
{
    m_paths.clear();
    m_moved.clear();
}

void KeptBytes::undo()
{
    for (const QString &path : std::as_const(m_paths))
        tryRemoveFile(path);
    for (const Moved &moved : std::as_const(m_moved))
        QFile::rename(moved.to, moved.from);
    if (!m_moved.isEmpty())
        QDir().rmdir(m_folder);
}

void askToReplaceDamaged(const Variables &variables, int n, Prompts &prompts)
{
    const QString file = QFileInfo(keptBytesPath(variables, n)).fileName();
    KeptBytes kept(variables, {n});
    const QString where =
        kept.folder().isEmpty()
            ? QCoreApplication::translate("DamagedTexts",
                                          "Les octets illisibles seront gardés dans le fichier %1.")
                  .arg(file)
            : QCoreApplication::translate("DamagedTexts",
                                          "Son fichier de travail sera rangé dans le dossier %1.")
                  .arg(kept.folder());
    const QString text = QCoreApplication::translate(
        "DamagedTexts", "Le texte du paragraphe %1 est illisible. Le remplacer par le vôtre ?");
    if (prompts.message(text.arg(n) + u' ' + where,
                        QCoreApplication::translate("DamagedTexts", "Attention"),
                        Prompts::Buttons::YesNo) != Prompts::Answer::Yes)
        throw NotAllowed();
    kept.textsAreReplaced();
}

QString pathBeside(const QString &adventurePath, const QString &note)
{
    const QString suffix = QFileInfo(adventurePath).suffix();
    return freePathBeside(adventurePath, note, suffix.isEmpty() ? QString() : u'.' + suffix);
}

QString otherVersionPath(const QString &adventurePath)
{
    return pathBeside(adventurePath, QStringLiteral("autre version"));
}

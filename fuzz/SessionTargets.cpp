#include "Scratch.h"
#include "Targets.h"

#include "outil/ScriptPrompts.h"
#include "platform/OpenedFile.h"
#include "richtext/RtfPlainText.h"
#include "store/Journal.h"
#include "store/ParagraphStore.h"
#include "store/SessionRecovery.h"
#include "store/SummedLines.h"
#include "store/extras/ExtrasBlock.h"
#include "support/AdventureBuilder.h"

#include <QDirIterator>
#include <QFileInfo>

namespace
{
constexpr int LongestLines = 2048; // a state has 1700
constexpr int LongestBlock = 1024;
constexpr int FoldersEvery = 16; // folders take time

QByteArray withoutSum(const QByteArray &bytes)
{
    return bytes.first(bytes.lastIndexOf("sum "));
}

// As the start of the program finds it beside two parked texts.
void recover(const QByteArray &bytes)
{
    const Scratch folder;
    folder.put(QStringLiteral("Session/Journal.xyz"), bytes);
    folder.put(QStringLiteral("0012.xyz"), "x");
    folder.put(QStringLiteral("0013.xyz"), "x");
    const QString note = folder.put(QStringLiteral("Note.rtf"), "y");
    recoverJournal(folder.path());
    promise(QFileInfo(note).size() == 1, "a file of the author's stays");
    promise(!QFileInfo::exists(folder.path() + QStringLiteral("Session")),
            "a start leaves no journal behind");
}

// A journal, its checksum aside.
void journal(const QByteArray &lines)
{
    journalOf(lines);
    const QByteArray bytes = summed(lines);
    const std::optional<Journal> journal = journalOf(bytes);
    if (journal)
        promise(journalBytes(*journal) == bytes, "a journal is read as it was written");
    if (journal || lines.size() % FoldersEvery == 0)
        recover(bytes);
}

QList<QByteArray> journalSeeds()
{
    const QByteArray sum = sha256("x");
    return {withoutSum(journalBytes(
                {QStringLiteral("Éà-"),
                 {{12, 340, true, sum, QStringLiteral("0012/0026/")}, {13, 12, false, sum, {}}},
                 {{13, true}, {9, false}}})),
            withoutSum(journalBytes({QStringLiteral("a-"), {{12, 13, false, sum, {}}}, {}}))};
}

const QString &adventure()
{
    static const QString path = scratchFolder().put(
        QStringLiteral("a.usm"),
        AdventureBuilder({QStringLiteral("1: un"), QStringLiteral("3: trois")}).bytes());
    return path;
}

// How many files, wherever they lie, hold these bytes.
int filesWith(const QString &folder, const QByteArray &bytes)
{
    int count = 0;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        count += file.open(QIODevice::ReadOnly) && file.readAll() == bytes ? 1 : 0;
    }
    return count;
}

// As the start of the program finds it beside two texts and a box that it may be about.
void offer(const QByteArray &bytes, const std::optional<SessionState> &state,
           Prompts::Answer answer)
{
    const QByteArray text("{\\rtf1 Allez au 3}");
    const QByteArray box("{\\rtf1 Allez au 1}");
    const Scratch folder;
    folder.put(QStringLiteral("Session/Etat.xyz"), bytes);
    folder.put(QStringLiteral("Session/Saisie-0001.rtf"), box);
    folder.put(QStringLiteral("a-0012.rtf"), text);
    folder.put(QStringLiteral("b-0013.rtf"), text);
    QString said;
    QTextStream errors(&said);
    ScriptPrompts prompts(errors, answer);
    const auto work = offerUnsavedWork(folder.path(), prompts);
    if (work) {
        Variables variables;
        variables.WorkingFolder = folder.path();
        takeOver(variables, *work, [](int, int) {});
        for (int n = 0; n <= Variables::LastParagraph; ++n)
            if (variables.Written.at(n) == 1)
                rtfToPlainText(GetParagraphRtf(variables, n));
    }
    const bool saved = state && state->saving == OpenedFile(adventure()).identity();
    const bool emptied = state && (state->emptied.contains(12) || state->emptied.contains(13));
    promise(saved || emptied || filesWith(folder.path(), text) == 2, "unsaved texts stay");
    promise(saved || filesWith(folder.path(), box) == 1, "the box stays");
}

// A state, its checksum aside; a line may name the adventure that there is, and its identity.
void sessionState(QByteArray lines)
{
    sessionStateOf(lines);
    const FileIdentity identity = OpenedFile(adventure()).identity();
    lines.replace("@adventure", wordOf(adventure()));
    lines.replace("@identity", QByteArray::number(identity.size) + ' ' + identity.sum);
    const QByteArray bytes = summed(lines);
    const std::optional<SessionState> state = sessionStateOf(bytes);
    if (state)
        promise(sessionStateBytes(*state) == bytes, "a state is read as it was written");
    if (state || lines.size() % FoldersEvery == 0)
        offer(bytes, state, lines.size() % 2 == 0 ? Prompts::Answer::Yes : Prompts::Answer::No);
}

QList<QByteArray> sessionSeeds()
{
    const auto seed = [](const QByteArray &identities, const SessionState &state) {
        QByteArray lines = withoutSum(sessionStateBytes(state));
        lines.replace("%2Fa.usm\r\n", "@adventure\r\n" + identities);
        return lines;
    };
    SessionState state;
    state.adventurePath = QStringLiteral("/a.usm");
    state.targetPhrase = QStringLiteral(" au ");
    state.highest = 12;
    state.written.set(1).set(3).set(12);
    state.extracted.set(12);
    SessionState other = state;
    other.written.reset(3);
    other.unmixable.set(1);
    other.emptied = {3};
    other.next = 13;
    return {seed("opened @identity\r\n", state), seed("opened @identity\r\n", other),
            seed("saving @identity\r\n", state), seed({}, other)};
}

// What stands behind "DONE", its checksum aside.
void extras(const QByteArray &records)
{
    extrasFrom(records);
    const auto extras = extrasFrom(extrasBlock(records));
    if (extras)
        promise(extrasFrom(bytesOf(*extras)) == extras, "what is kept is read as it was written");
}

QList<QByteArray> extrasSeeds()
{
    AdventureExtras extras;
    extras.starts = {1, 2000};
    extras.accepted = {{QStringLiteral("fin"), 12, QByteArray(32, 's')}};
    extras.reading = {{1, 12}, {{1, 12}}, {{QStringLiteral("là"), {1, 12}}, {{}, {}}}};
    extras.words = {QStringLiteral("Elric"), QStringLiteral("Val-d'Or")};
    extras.ignored = {{12, QStringLiteral("qué")}};
    extras.unknown = {{"ZZZZ", "z"}, {"AAAA", {}}};
    return {bytesOf(extras).sliced(ExtrasHead)};
}
} // namespace

QList<FuzzTarget> sessionTargets()
{
    return {
        {"journal", &journal, &journalSeeds, LongestLines},
        {"etat", [](const QByteArray &lines) { sessionState(lines); }, &sessionSeeds, LongestLines},
        {"bloc", &extras, &extrasSeeds, LongestBlock}};
}

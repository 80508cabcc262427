#include "Sweep.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtEndian>

using FaultyCalls::Fault;

namespace
{
// Texts, marks, lists and target phrase. Where a text lies counts for nothing.
QByteArray comparable(const QByteArray &state)
{
    QJsonObject object = QJsonDocument::fromJson(state).object();
    for (const char *key : {"modified", "file", "current"})
        object.remove(QLatin1String(key));
    QJsonArray paragraphs;
    for (const QJsonValue value : object[QStringLiteral("paragraphs")].toArray()) {
        QJsonObject paragraph = value.toObject();
        paragraph.remove(QStringLiteral("extracted"));
        paragraphs.append(paragraph);
    }
    object[QStringLiteral("paragraphs")] = paragraphs;
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

// Every message of a failed write or read is one of these, whatever reason stands behind it. A
// command whose step could not be kept is not taken back, and all that was written stays.
bool isKnownMessage(const QByteArray &errors)
{
    static const QRegularExpression words(
        QStringLiteral("^(BUG|Songez-y|Attention !|Usmira) : .*(écriture|enregistré|lecture|"
                       "Opération annulée|illisible)|^Zut : Rien n'a été annulé"),
        QRegularExpression::MultilineOption);
    return words.match(QString::fromUtf8(errors)).hasMatch();
}

// What stands behind "DONE" says its own length.
bool isWhole(const QByteArray &adventure)
{
    constexpr qsizetype head = 42;
    constexpr qsizetype lengthAt = 6;
    const qsizetype done = adventure.lastIndexOf("DONE");
    const QByteArray behind = adventure.mid(done + 4);
    const bool noBlock = behind.isEmpty();
    return done >= 0 &&
           (noBlock ||
            (behind.size() >= head &&
             behind.size() == head + qFromLittleEndian<quint32>(behind.constData() + lengthAt)));
}

// What was set aside, and the dated copies: one that is not whole is a stray.
bool isKept(const QString &name, const QByteArray &bytes)
{
    const bool isCopy = name.startsWith(QStringLiteral("w/Copies/"));
    return name.startsWith(QStringLiteral("w/Récupération ")) ||
           (isCopy &&
            (name.endsWith(u'/') || (name.endsWith(QStringLiteral(").usm")) && isWhole(bytes))));
}
} // namespace

const QList<Mode> &modes()
{
    static const QList<Mode> all{
        {QStringLiteral("disque plein, une fois"), Fault::FailOnce, ENOSPC, false},
        {QStringLiteral("erreur d'E/S, une fois"), Fault::FailOnce, EIO, false},
        {QStringLiteral("accès refusé, une fois"), Fault::FailOnce, EACCES, false},
        {QStringLiteral("autre disque, une fois"), Fault::FailOnce, EXDEV, false},
        {QStringLiteral("disque plein dès lors"), Fault::FailOn, ENOSPC, false},
        {QStringLiteral("erreur d'E/S dès lors"), Fault::FailOn, EIO, false},
        {QStringLiteral("écriture courte"), Fault::Short, EIO, false},
        {QStringLiteral("écriture déchirée, arrêt"), Fault::Kill, EIO, false},
        {QStringLiteral("arrêt avant"), Fault::KillBefore, EIO, false},
        {QStringLiteral("arrêt après"), Fault::KillAfter, EIO, false},
        {QStringLiteral("arrêt, reprises arrêtées"), Fault::KillBefore, EIO, true},
        {QStringLiteral("aventure emportée"), Fault::Vanish, EIO, false},
    };
    return all;
}

Sweep::Sweep(const ToolRun &run, const Operation &operation, const Files &start)
    : m_run(run), m_operation(operation), m_start(start)
{
    for (int steps = 0; steps <= m_operation.steps.size(); ++steps) {
        m_saved.append(stateAfter(steps, {}));
        // A command that there is not ends a script without saving.
        m_dropped.append(stateAfter(steps, {QStringLiteral("fin")}));
    }
    m_run.script(m_operation.next);
    m_left = filesIn(m_run.folder()).keys();
}

QStringList Sweep::script() const
{
    return QStringList{QStringLiteral("ouvrir @/a.usm")} + m_operation.steps;
}

Sweep::State Sweep::stateAfter(int steps, const QStringList &end) const
{
    restore(m_run.folder(), m_start);
    m_run.script(script().mid(0, steps + 1) + end);
    return look();
}

Sweep::State Sweep::look() const
{
    const RunResult opened = m_run.script({QStringLiteral("ouvrir @/a.usm")});
    State state;
    state.adventure = comparable(opened.states.value(0));
    const Files files = filesIn(m_run.folder());
    const QByteArray file = files.value(QStringLiteral("a.usm"));
    state.adventure += file.mid(file.lastIndexOf("DONE")).toHex();
    for (const QString &product : m_operation.products)
        if (files.contains(product))
            state.products[product] = files[product];
    return state;
}

Tally Sweep::tally(const Mode &mode, int every, int offset) const
{
    restore(m_run.folder(), m_start);
    const int calls = m_run.script(script(), {mode.fault, mode.error, FaultAt::Never}).calls;
    Tally tally;
    for (int call = 1 + offset % qMax(1, qMin(every, calls)); call <= calls; call += every) {
        const QString loss = fault(mode, call);
        ++tally.tried;
        if (loss.isEmpty())
            ++tally.survived;
        else
            tally.losses.append(QStringLiteral("%1, %2, call %3: %4")
                                    .arg(m_operation.name, mode.name, QString::number(call), loss));
    }
    return tally;
}

// Empty when nothing was lost.
QString Sweep::fault(const Mode &mode, int call) const
{
    restore(m_run.folder(), m_start);
    const RunResult result = m_run.script(script(), {mode.fault, mode.error, call});
    if (!result.isKilled() && result.calls < call)
        return QStringLiteral("the call was not reached");
    if (mode.restartsKilled)
        restartKilled();
    putBack();
    return loss(result);
}

// Whoever took the adventure away brings it back, unless another has been saved in its place.
void Sweep::putBack() const
{
    const QString adventure = m_run.folder() + QStringLiteral("/a.usm");
    const QString away = m_run.folder() + QStringLiteral("/a.away");
    if (!QFile::rename(away, adventure))
        QFile::remove(away);
}

void Sweep::begin() const
{
    restore(m_run.folder(), m_start);
}

QString Sweep::loss(const RunResult &result) const
{
    const QString loss = judge(result);
    return loss.isEmpty() ? next() : loss;
}

void Sweep::restartKilled() const
{
    for (int call = 1; m_run.restart({Fault::KillBefore, EIO, call}).isKilled();)
        ++call;
}

QString Sweep::judge(const RunResult &result) const
{
    const int done = qMax(0, static_cast<int>(result.states.size()) - 1); // opening is no step
    m_run.restart({});
    const QList<State> recovered{m_saved.at(done), m_saved.at(qMin(done + 1, last()))};
    if (result.isKilled())
        return compare(look(), recovered);
    if (!result.ended || result.status > 1)
        return QStringLiteral("the program ended with %1: ").arg(result.status) +
               QString::fromUtf8(result.errors);
    if (result.status == 0)
        return compare(look(), {m_saved.last()});
    if (!m_operation.silent && !isKnownMessage(result.errors))
        return QStringLiteral("failed with the message \"%1\"")
            .arg(QString::fromUtf8(result.errors).trimmed());
    // A script drops what was unsaved. When the disk fails there too, the next start recovers it.
    QList<State> allowed = recovered + QList<State>{m_dropped.at(done)};
    if (m_operation.onlyInMemory)
        allowed.append(m_saved.at(qMax(0, done - 1)));
    return compare(look(), allowed);
}

int Sweep::last() const
{
    return static_cast<int>(m_operation.steps.size());
}

// Files that are written one after the other may be new up to one of them.
QString Sweep::compare(const State &found, const QList<State> &allowed) const
{
    const auto has = [&](auto part) {
        return std::any_of(allowed.begin(), allowed.end(),
                           [&](const State &state) { return part(state) == part(found); });
    };
    if (!has([](const State &state) { return state.adventure; }))
        return QStringLiteral("the adventure is ") + QString::fromUtf8(found.adventure);
    for (const QString &product : m_operation.products) {
        const auto bytes = [&product](const State &state) {
            return state.products.contains(product) ? state.products[product] + '+' : QByteArray();
        };
        if (!has(bytes) && bytes(found) != bytes(m_dropped.first()) &&
            bytes(found) != bytes(m_saved.last()))
            return product + QStringLiteral(" is neither old nor new: ") +
                   QString::fromLatin1(
                       bytes(found).first(qMin(40, bytes(found).size())).toPercentEncoding());
    }
    return {};
}

QString Sweep::next() const
{
    const RunResult result = m_run.script(m_operation.next);
    if (result.status != 0)
        return QStringLiteral("the author cannot go on: ") + QString::fromUtf8(result.errors);
    QStringList strays;
    const Files files = filesIn(m_run.folder());
    for (auto file = files.begin(); file != files.end(); ++file)
        if (!m_left.contains(file.key()) && !m_operation.products.contains(file.key()) &&
            !isKept(file.key(), file.value()))
            strays.append(file.key());
    return strays.isEmpty() ? QString()
                            : QStringLiteral("left behind: ") + strays.join(QStringLiteral(", "));
}

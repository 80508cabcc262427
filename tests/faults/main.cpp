// usmira-faults [--every N] [--from K] [--threads N] [--tool PROGRAM] [OPERATION...]: makes the
// file calls of usmira-outil go wrong, and prints for each operation and each way of going wrong
// how many of the runs were survived. Fails when one was not, or when the saver that is made to
// lose texts is not found out.

#include "Control.h"
#include "Limits.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <atomic>
#include <cstdio>
#include <mutex>
#include <thread>

namespace
{
// In memory where the system has a folder for that: tens of thousands of files are synced.
QString folderTemplate()
{
    const QString memory = QStringLiteral("/dev/shm");
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) +
           QStringLiteral("/usmira-faults-XXXXXX");
}

ToolRun runIn(const QTemporaryDir &folder, const QString &tool)
{
    return ToolRun(tool, QStringLiteral(USMIRA_SHIM), folder.filePath(QStringLiteral("case")));
}

Files prepared(const ToolRun &run)
{
    Files files;
    for (const auto &[name, bytes] : preparedFiles())
        files.insert(name, bytes);
    restore(run.folder(), files);
    run.script(preparations());
    return filesIn(run.folder());
}

struct Choice {
    int every = 1;
    int from = 0;
    int threads = 1;
    QString tool;
    QList<Operation> operations;
};

// Runs the operations, several at a time, and prints what became of them.
class AllSweeps
{
public:
    AllSweeps(Choice choice) : m_choice(std::move(choice)) {}

    int run()
    {
        const bool controlled = controlLoses(); // also when the sweep itself finds something
        std::vector<std::thread> threads;
        threads.reserve(static_cast<std::size_t>(m_choice.threads));
        for (int i = 0; i < m_choice.threads; ++i)
            threads.emplace_back([this] { work(); });
        for (std::thread &thread : threads)
            thread.join();
        std::printf("all: survived %d of %d\n", m_survived, m_tried);
        return m_survived == m_tried && m_tried > 0 && controlled ? 0 : 1;
    }

private:
    void work()
    {
        const QTemporaryDir folder(folderTemplate());
        const ToolRun run = runIn(folder, m_choice.tool);
        const Files start = prepared(run);
        for (int next = m_next++; next < m_choice.operations.size(); next = m_next++) {
            const Operation &operation = m_choice.operations.at(next);
            const Sweep sweep(run, operation, start);
            int offset = m_choice.from + next;
            for (const Mode &mode : modes())
                tell(operation, mode.name, sweep.tally(mode, m_choice.every, offset++));
            for (const Limit &limit : limits())
                tell(operation, limit.name, limit.tally(sweep, run, m_choice.every, offset++));
        }
    }

    // In every mode that meets a call of its, and does something to it.
    bool controlLoses() const
    {
        const QTemporaryDir folder(folderTemplate());
        const ToolRun run = runIn(folder, m_choice.tool);
        const Files start = prepared(run);
        bool loses = true;
        for (const Mode &mode : modes()) {
            const Tally tally = naiveControl(run, start, mode);
            std::printf("naive control, %s: survived %d of %d\n", qUtf8Printable(mode.name),
                        tally.survived, tally.tried);
            loses = loses && (tally.survived < tally.tried || mode.error == EXDEV ||
                              mode.fault == FaultyCalls::Fault::Vanish);
        }
        std::puts(loses ? "the naive control loses, as it must"
                        : "the naive control must lose: the sweep finds nothing");
        return loses;
    }

    void tell(const Operation &operation, const QString &fault, const std::optional<Tally> &tally)
    {
        const std::lock_guard lock(m_telling);
        std::printf("%s, %s: ", qUtf8Printable(operation.name), qUtf8Printable(fault));
        if (!tally) {
            std::puts("skipped, this system does not let us");
            return;
        }
        m_tried += tally->tried;
        m_survived += tally->survived;
        std::printf("survived %d of %d\n", tally->survived, tally->tried);
        for (const QString &loss : tally->losses)
            std::printf("  %s\n", qUtf8Printable(loss));
        std::fflush(stdout);
    }

    const Choice m_choice;
    std::atomic<int> m_next{0};
    std::mutex m_telling;
    int m_tried = 0;
    int m_survived = 0;
};

Choice choiceOf(const QCommandLineParser &parser)
{
    const auto number = [&parser](const char *name) {
        return parser.value(QLatin1String(name)).toInt();
    };
    Choice choice{qMax(1, number("every")),
                  number("from"),
                  qMax(1, number("threads")),
                  parser.value(QStringLiteral("tool")),
                  {}};
    const QStringList names = parser.positionalArguments();
    for (const Operation &operation : operations())
        if (names.isEmpty() || names.contains(operation.name))
            choice.operations.append(operation);
    return choice;
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const auto option = [](const char *name, const char *value) {
        return QCommandLineOption(QLatin1String(name), {}, QStringLiteral("N"),
                                  QLatin1String(value));
    };
    parser.addOptions({option("every", "1"), option("from", "0"), option("threads", "1"),
                       option("tool", USMIRA_OUTIL)});
    parser.process(application);
    return AllSweeps(choiceOf(parser)).run();
}

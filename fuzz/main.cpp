// usmira-fuzz TARGET [options of libFuzzer] [corpus folders]
// usmira-fuzz --seeds TARGET FOLDER writes what fuzzing TARGET begins with.
// usmira-fuzz --longest TARGET prints how many bytes an input of TARGET may have.
// usmira-fuzz --targets prints their names.

#include "Targets.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>

namespace
{
const FuzzTarget *chosen = nullptr;
std::clock_t slowest = 0; // of the processor, whatever else the machine does

const FuzzTarget &targetNamed(const char *name)
{
    const auto found =
        std::find_if(fuzzTargets().begin(), fuzzTargets().end(), [name](const FuzzTarget &target) {
            return std::strcmp(target.name, name) == 0;
        });
    if (found != fuzzTargets().end())
        return *found;
    for (const FuzzTarget &target : fuzzTargets())
        std::puts(target.name);
    std::exit(std::strcmp(name, "--targets") == 0 ? 0 : 2);
}

int writeSeeds(const FuzzTarget &target, const QString &folder)
{
    QDir().mkpath(folder);
    const QList<QByteArray> seeds = target.seeds();
    for (qsizetype i = 0; i < seeds.size(); ++i) {
        QFile file(QDir(folder).filePath(QStringLiteral("seed%1").arg(i)));
        if (!file.open(QIODevice::WriteOnly) || file.write(seeds.at(i)) != seeds.at(i).size())
            return 1;
    }
    return 0;
}

void tellSlowest()
{
    std::fprintf(stderr, "slowest input: %.1f ms\n",
                 1000.0 * static_cast<double>(slowest) / CLOCKS_PER_SEC);
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int *count, char ***arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(*count, *arguments);
    char **words = *arguments;
    const bool seeds = *count == 4 && std::strcmp(words[1], "--seeds") == 0;
    const bool longest = *count == 3 && std::strcmp(words[1], "--longest") == 0;
    chosen = &targetNamed(*count < 2 ? "--targets" : words[seeds || longest ? 2 : 1]);
    if (seeds)
        std::exit(writeSeeds(*chosen, QString::fromLocal8Bit(words[3])));
    if (longest)
        std::exit(std::printf("%d\n", chosen->longest) < 0);
    // The rest is for libFuzzer.
    std::rotate(words + 1, words + 2, words + *count);
    --*count;
    std::atexit(&tellSlowest);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uchar *data, size_t size)
{
    const std::clock_t begin = std::clock();
    chosen->run(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    slowest = std::max(slowest, std::clock() - begin);
    return 0;
}

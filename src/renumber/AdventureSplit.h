#pragma once

#include "platform/Progress.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <functional>

class Prompts;
class WorkReport;
struct Variables;

// What the author asks of a split.
struct SplitRequest {
    double low; // the paragraphs, as the numbers were typed
    double high;
    bool murder; // whether they go from the open adventure
};

// Writes a range of paragraphs into an adventure of its own, with their numbers, texts, lists and
// fixed marks and what extrasOf() gives of the rest, and may take them from the open one then: all
// of them, once the new file is whole and was read back. References to them stay as they are.
//
// The current paragraph must have been saved, and its number is to be shown again afterwards.
class AdventureSplit
{
    Q_DECLARE_TR_FUNCTIONS(AdventureSplit)

public:
    AdventureSplit(Variables &variables, Prompts &prompts, WorkReport &report);

    // Asks for the file. True when all is done. Else the author has chosen none or has been told,
    // and the open adventure is as it was: when there is no text in the range, when one of them
    // cannot be read, which would be missing in the new adventure, or when the file cannot be
    // written or is one of the open adventure's own. A file of that name stays until the new one
    // takes its place.
    bool Export(const SplitRequest &request);

    // choose gives the file, or an empty name to end the command.
    bool Export(const SplitRequest &request, const std::function<QString()> &choose);

    // The written paragraphs that are asked for, ascending, and what the author is told when there
    // are none.
    static QList<int> writtenNumbers(const Variables &variables, const SplitRequest &request);
    static QString nothingWritten();

private:
    void write(const QList<int> &numbers, const QString &path, const Progress &progress) const;
    void remove(const QList<int> &numbers);

    Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
};

#pragma once

#include "convert/ExportRange.h"
#include "platform/Progress.h"

#include <QCoreApplication>
#include <QString>
#include <functional>

class FileError;
class Prompts;
class WorkReport;
struct Variables;

// What the author asks of an export.
struct ExportRequest {
    double first; // the paragraphs, as the numbers were typed
    double second;
    QString place; // the file, or the folder of the files
};

// What all kinds of exports do around the writing, behind their dialogs and behind scripts. Each
// kind is a function that takes a command and a request. The current paragraph must have been
// saved.
class ExportCommand
{
    Q_DECLARE_TR_FUNCTIONS(ExportCommand)

public:
    ExportCommand(const Variables &variables, Prompts &prompts, WorkReport &report);

    struct Kind {
        QString caption; // of the work
        // Writes the paragraphs and gives their number. What it throws has changed no file.
        std::function<int(const ExportRange &, const Progress &)> write;
        QString failure; // the words when a file cannot be written, if the usual ones are not meant
        // What is told behind how much went where, once it is written.
        std::function<QString()> remark = {};
    };

    // False when the file is one of the adventure's own: the author has been told.
    bool mayReplace(const QString &path) const;

    // False when none of the paragraphs is a written one of the book: the author has been told. For
    // books, which need one.
    bool hasParagraphs(const ExportRequest &request) const;

    // Writes, and announces in the end how much went where. False when it failed, or the author has
    // stopped it: the author has been told, and what was there before still is.
    bool run(const ExportRequest &request, const Kind &kind) const;

    // Tells in passing that a file could not be made, where a message is not meant.
    void tellNothingWritten(const FileError &error) const;

    const Variables &variables() const { return m_variables; }

private:
    void announce(int written, const QString &place, const QString &remark) const;

    const Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
};

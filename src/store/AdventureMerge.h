#pragma once

#include "store/Variables.h"

#include <QCoreApplication>
#include <optional>

class Prompts;
class WorkReport;

// Merges another adventure, of any version, into the open one: its paragraphs come in under their
// own numbers, each as if the author had typed it there, and bring their fixed marks along. Its
// target phrase, its lists and what it has beside paragraphs are not used, and references keep
// their numbers. A paragraph whose text is empty does not come, whatever stands at its number
// stays.
//
// The current paragraph must have been saved, and its number is to be shown again afterwards.
class AdventureMerge
{
    Q_DECLARE_TR_FUNCTIONS(AdventureMerge)

public:
    AdventureMerge(Variables &variables, Prompts &prompts, WorkReport &report);

    // Asks for the file.
    void Import();

    // With the file already chosen. Asks whether paragraphs are to be replaced. All that come in do
    // so at once, or none does when they cannot be written. When a text of the other adventure
    // cannot be read, those before it stay. The author has been told what has failed.
    void ImportFrom(const QString &path);

private:
    enum class Collisions { Replaced, Kept };

    std::optional<Collisions> askToReplace(const Variables &other);
    QString preview(const Variables &other) const;
    // What is to come in, ascending.
    QList<int> wanted(const Variables &other, Collisions collisions) const;
    void importAll(const Variables &other, Collisions collisions);
    void tell(const QString &text, const QString &title);

    Variables &m_variables;
    Prompts &m_prompts;
    WorkReport &m_report;
};

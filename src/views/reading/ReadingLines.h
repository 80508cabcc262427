#pragma once

#include "store/Variables.h"

#include <QAbstractListModel>
#include <QHash>

// Paragraphs in a list, each with how its text begins, which is read when the line is first shown.
class ReadingLines : public QAbstractListModel
{
    Q_OBJECT

public:
    struct Line {
        int number = 0;
        int key = 0;         // the digit that chooses it; 0: none does
        bool ticked = false; // it was chosen, or read, before
        bool faint = false;
        bool operator==(const Line &) const = default;
    };

    ReadingLines(const Variables &variables, QObject *parent);

    // Lines that are there already stay where the author sees them.
    void show(const QList<Line> &lines);
    const Line &line(int row) const { return m_lines.at(row); }

    // Texts have changed: they are read anew.
    void forgetWords();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QString words(int n) const;
    QString text(const Line &line) const;
    bool isEmpty(const Line &line) const { return m_variables.Written.at(line.number) == 0; }

    const Variables &m_variables;
    QList<Line> m_lines;
    mutable QHash<int, QString> m_words;
};

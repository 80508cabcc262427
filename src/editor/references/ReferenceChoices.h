#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <vector>

struct Variables;

// The paragraphs that a reference may lead to, each with its first words: the first free number on
// top, then the written ones. Words are read when they are to be seen or searched, and once.
class ReferenceChoices : public QAbstractListModel
{
    Q_OBJECT

public:
    // The current paragraph must have been saved.
    explicit ReferenceChoices(const Variables &variables, QObject *parent = nullptr);

    // Leaves the numbers that begin with the digits typed, and any number 1..2000 that was typed
    // whole; or the paragraphs whose first words contain the words typed, whatever their accents
    // and letter case.
    void narrow(const QString &typed);

    int numberAt(int row) const { return m_shown.at(static_cast<std::size_t>(row)); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    bool matches(int n, const QString &typed) const;
    QString words(int n) const;

    const Variables &m_variables;
    int m_firstFree; // 0: there is none
    std::vector<int> m_all;
    std::vector<int> m_shown;
    mutable QHash<int, QString> m_words; // as they were read
};

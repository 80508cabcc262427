#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <memory>

// Where words may be parted, by the patterns of a language that the system has.
class Hyphenation
{
public:
    // language by BCP 47; the folders are looked through in turn.
    explicit Hyphenation(const QString &language, const QStringList &folders = systemFolders());
    ~Hyphenation();
    Hyphenation(const Hyphenation &) = delete;
    Hyphenation &operator=(const Hyphenation &) = delete;

    // Those of the system, and one that the program may carry with it.
    static QStringList systemFolders();

    // False: the system has no patterns, and no word is parted.
    bool isThere() const { return m_patterns != nullptr; }

    // Positions in text in front of which a word may be parted, ascending. What is parted has at
    // least two letters in front and three behind, and words of less than six stay whole.
    QList<qsizetype> places(QStringView text) const;

private:
    const QList<qsizetype> &placesIn(const QString &word) const;

    struct Patterns;
    std::unique_ptr<Patterns> m_patterns;
};

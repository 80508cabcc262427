#pragma once

#include "editor/search/MatchModel.h"
#include "views/language/SpellingModel.h"

#include <QDialog>
#include <memory>

class Prompts;
class Spelling;
struct Variables;

namespace Ui
{
class bookSpelling;
}

// What the author wants in the place of a doubtful word: everywhere, or where it was listed.
struct SpellingChange {
    QString word;
    QString by;
    bool everywhere = true;
    QList<WordPlace> places;
};

// The doubtful words of the book, with their places and what may be meant by each. It stays open
// beside the editing box and follows the texts; what is to be done to them is asked of others.
class bookSpelling : public QDialog
{
    Q_OBJECT

public:
    // All must outlive it.
    bookSpelling(const Variables &variables, Spelling &spelling, Prompts &prompts, QWidget *parent);
    ~bookSpelling() override;

    // Reads the whole book; what is listed stays when progress throws.
    void read(const Progress &progress);

    // The author begins in the list.
    void focusList();

Q_SIGNALS:
    // He wants to see a place in the text,
    void wanted(const WordPlace &place, const QString &word);
    // or to have a word replaced.
    void replaceWanted(const SpellingChange &change);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void connectControls();
    void follow();
    void readAgain(const QList<int> &numbers);
    void judgeAgain(bool onlyFewer);
    void fill();
    void showWord();
    void showPlaces(const DoubtfulWord &word);
    void showSuggestions(const QString &word);
    void fillSuggestions(const QStringList &suggestions);
    void showState();
    void showButtons();
    void replace(bool everywhere);
    void ignoreChosen();
    const DoubtfulWord *current() const;
    QList<WordPlace> chosenPlaces() const;

    const Variables &m_variables;
    Spelling &m_spelling;
    Prompts &m_prompts;
    std::unique_ptr<Ui::bookSpelling> m_ui;
    BookSpelling m_book;
    SpellingModel m_model;
    MatchModel m_places;
    QString m_shown; // the word whose places and suggestions are shown
};

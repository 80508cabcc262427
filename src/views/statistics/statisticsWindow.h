#pragma once

#include "platform/Prompts.h"
#include "reading/StatisticsText.h"
#include "store/Variables.h"
#include "views/grid/GridShades.h"

#include <QDialog>
#include <QTimer>
#include <memory>
#include <optional>

class QTextBrowser;
struct BookWays;

namespace Ui
{
class statisticsWindow;
}

// The book in numbers, and what random readings of it come to. It stays open beside the editing box
// and follows the adventure.
class statisticsWindow : public QDialog
{
    Q_OBJECT

public:
    // words gives the first words of a paragraph.
    statisticsWindow(const Variables &variables, Prompts &prompts,
                     const std::function<QString(int)> &words, QWidget *parent);
    ~statisticsWindow() override;

    // The author begins with the names of the pages.
    void focusPages();

Q_SIGNALS:
    // He wants to see this paragraph in the editing box.
    void wanted(int n);
    // He wants to read what he comes by on this way, and on from there.
    void wayWanted(const QList<int> &way);
    // The grid is to show these, from now on; or none any more.
    void shadesChanged(const std::optional<GridShades> &shades);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setUpTables();
    void setUpLinks(QTextBrowser &browser);
    void connectControls();
    void follow();
    void textsAreOld(const QList<int> &numbers);
    void allIsOld();
    void computeSoon();
    void compute();
    void readTexts();
    void readAtRandom(const BookWays &ways);
    void btnRead_Click();
    void txtSeed_Enter();
    bool takeTypedSeed();
    void tellSeedRefused();
    void showAll();
    void showParagraphs();
    void showEndings();
    void showEnding(int n);
    void showCharts();
    void giveShades();
    void readTo(int ending);
    void copy();
    const BookStatistics::Ending *endingAt(int n) const;

    const Variables &m_variables;
    Prompts &m_prompts;
    std::function<QString(int)> m_words;
    std::unique_ptr<Ui::statisticsWindow> m_ui;
    TextSizes m_sizes;
    BookStatistics m_book;
    RandomReadings m_readings;
    quint32 m_seed = UsualSeed;
    QTimer m_computing; // once the event loop has nothing else to do
    bool m_allOld = true;
    QList<int> m_oldTexts; // when not all of them are
    bool m_due = true;
    int m_ending = 0; // that is told about
};

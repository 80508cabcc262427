#pragma once

#include "platform/Prompts.h"
#include "store/Variables.h"
#include "views/graph/GraphCanvas.h"
#include "views/graph/ReferenceTree.h"

#include <QTimer>
#include <QWidget>
#include <memory>
#include <optional>

namespace Ui
{
class paraGraphs;
}

// Shows what leads where in the adventure, as a picture that the author moves about in and saves: a
// tree from one paragraph, or the whole book from its beginning.
// It is a window like the main one and stays open beside it. What it shows follows the adventure,
// but is computed only while it is seen.
class paraGraphs : public QWidget
{
    Q_OBJECT

public:
    paraGraphs(const Variables &variables, Prompts &prompts);
    ~paraGraphs() override;

    // Comes to the front, with the tree that begins at the current paragraph.
    void showCurrent();

    // The editing box may show another paragraph.
    void followEditor();

Q_SIGNALS:
    // The author wants to see this paragraph in the editing box.
    void wanted(int n);

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum class View { Forward, Backward, Book };

    View view() const;
    int start() const;
    void connectControls();
    void connectGraph();
    void connectSaving();
    void follow();

    void showView();
    void computeSoon(GraphCanvas::Place place);
    void compute();
    GraphDrawing drawing() const;
    void showCount();

    void beginAtCurrent();
    void setStart(int n);
    void txtStart_Enter();
    void txtFind_Enter();
    void refuse(std::optional<int> n);
    void preview(int n);
    void forgetPreview();
    void toggleStop(int n);
    void showMenu(int n, const QPoint &place);
    void save(const QString &extension, const QString &kind);

    const Variables &m_variables;
    Prompts &m_prompts;
    std::unique_ptr<Ui::paraGraphs> m_ui;
    int m_start = 1;                // of the trees
    std::optional<int> m_bookStart; // where the author wants the book to begin; else as it does
    int m_focus = 1;                // the number that a new picture begins at
    int m_current = 1;              // as the picture shows it
    std::optional<int> m_previewed;
    QTimer m_computing; // once the event loop has nothing else to do
    bool m_due = true;
    GraphCanvas::Place m_place = GraphCanvas::Place::Begin; // of what is computed next
};

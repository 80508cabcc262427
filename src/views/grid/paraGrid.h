#pragma once

#include "views/ParagraphStatuses.h"
#include "views/grid/GridShades.h"

#include <QDialog>
#include <memory>
#include <optional>

class QMouseEvent;

namespace Ui
{
class paraGrid;
}

// Every number of the adventure as a coloured cell. It stays open beside the editing box and
// follows it; it reads the adventure and changes nothing in it.
class paraGrid : public QDialog
{
    Q_OBJECT

public:
    paraGrid(const Variables &variables, QWidget *parent);
    ~paraGrid() override;

    // The statuses and the scroll bar are those of the adventure as it is now.
    void ClassifyParagraphs();

    void DrawGrid();

    // The editing box may show another paragraph: its cell is brought onto the page.
    void followEditor();

    // Written numbers show how many readings come to them instead of what they are, and the legend
    // says so; nothing: as before.
    void setShades(const std::optional<GridShades> &shades);
    bool isShaded() const { return m_shades.has_value(); }

    // The author begins at the current number.
    void focusGrid();

Q_SIGNALS:
    // He wants to see this paragraph in the editing box.
    void wanted(int n);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void followAdventure();
    void Form_Activate();
    void Form_MouseDown(const QMouseEvent &event, double x, double y);
    void btnClose_Click();
    void preview(int n);
    void previewNothing();
    void refresh();
    void showPreview();

    const Variables &m_variables;
    std::unique_ptr<Ui::paraGrid> m_ui;
    ParagraphStatuses m_statuses;
    std::optional<GridShades> m_shades;
    int m_current = 0;              // the current number when it was last followed
    std::optional<int> m_previewed; // the number whose text is shown
    QString m_shownText;
};

#pragma once

#include "views/grid/GridCell.h"

#include <QWidget>
#include <optional>

class QHelpEvent;
class QScrollBar;

// The cells of the grid as they are painted, pointed at and gone through with keys.
class GridSurface : public QWidget
{
    Q_OBJECT

public:
    explicit GridSurface(QWidget *parent = nullptr);

    // Once, before it is shown; all must outlive it. bar says which page is shown.
    void attach(const Variables &variables, const ParagraphStatuses &statuses, QScrollBar &bar);

    // Written numbers show these instead of their statuses; they must outlive it. Null: as before.
    void setShades(const GridShades *shades);

    // The cell that keys act on; brought onto the page.
    void setFocusNumber(int n);

    QSize sizeHint() const override;

Q_SIGNALS:
    // A mouse button went down, at a place in twips.
    void pressed(const QMouseEvent &event, double x, double y);
    // A key asks to preview the number, or to go to it.
    void previewWanted(int n);
    void wanted(int n);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showToolTip(const QHelpEvent &event);
    bool choose(const QKeyEvent &event);
    bool moveFocus(int key);
    int lastNumber() const;
    GridCell cell(int n) const;

    const Variables *m_variables = nullptr;
    const ParagraphStatuses *m_statuses = nullptr;
    const GridShades *m_shades = nullptr;
    QScrollBar *m_bar = nullptr;
    int m_focusNumber = 1;
};

#pragma once

#include "convert/pdf/BookPages.h"

#include <QPixmap>
#include <QWidget>
#include <memory>

// Shows two pages of a book as they lie beside each other, as large as there is room for.
class SpreadView : public QWidget
{
    Q_OBJECT

public:
    explicit SpreadView(QWidget *parent = nullptr);

    // Null: nothing is to be seen. page is one of the two.
    void showPages(std::shared_ptr<const BookPages> pages, int page);

    // Needs the pages no more: what is seen stays as long as the size does.
    void keepPicture();

    // The pages of the spread that page is on; one of them may be none of the book.
    static std::pair<int, int> spreadOf(const BookPages &pages, int page);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void draw();
    void drawPage(QPainter &painter, int page, QPointF corner, double scale) const;

    std::shared_ptr<const BookPages> m_pages;
    int m_page = 0;
    QPixmap m_drawn; // null when it has to be made
};

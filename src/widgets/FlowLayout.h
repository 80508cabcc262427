#pragma once

#include <QLayout>
#include <memory>
#include <vector>

// Lays its items out in rows like words in a text: what does not fit goes to the next row, so that
// a narrow window hides no command.
class FlowLayout : public QLayout
{
public:
    explicit FlowLayout(QWidget *parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem *item) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect &rect) override;

private:
    enum class Action { Measure, Place };
    int flow(const QRect &rect, Action action) const;
    void placeRow(size_t first, size_t last, const QPoint &topLeft, int height) const;

    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

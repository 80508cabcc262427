#pragma once

#include <QLabel>

// The line under the boxes of a dialog that says what the command would do. Its room is kept, so
// that nothing moves when the text becomes longer or shorter. A link behind the text is reached
// with Tab too.
class PreviewLine : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(int rows READ rows WRITE setRows)

public:
    explicit PreviewLine(QWidget *parent = nullptr);

    // Rows of text that there is room for; 2 to begin with. A text that needs more gets more.
    int rows() const { return m_rows; }
    void setRows(int rows);

    // Plain texts.
    void say(const QString &text, const QString &link = {});

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    void linkChosen();

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    int m_rows = 2;
};

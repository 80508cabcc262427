#pragma once

#include <QByteArray>
#include <QLabel>

class Prompts;
class QPushButton;

// The cover of a book, shown small, with the buttons that choose another and take it away.
class CoverPicture : public QLabel
{
    Q_OBJECT

public:
    explicit CoverPicture(QWidget *parent = nullptr);

    void connectButtons(Prompts &prompts, const QPushButton &choose, QPushButton &remove);

    // The bytes of the file; none: there is no cover.
    const QByteArray &cover() const { return m_cover; }
    void setCover(const QByteArray &cover);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void coverChanged();

private:
    void choose(Prompts &prompts);

    QByteArray m_cover;
};

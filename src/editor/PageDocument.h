#pragma once

#include <QFont>
#include <QTextDocument>

class PageColours;

// A text in the box on the screen, with its undo list and what else belongs to it alone. It can
// leave the box and come back later as it was.
class PageDocument : public QTextDocument
{
    Q_OBJECT

public:
    explicit PageDocument(const QFont &font);

    PageColours &colours() const { return *m_colours; }

    // Whether there is anything to be undone or done again.
    bool hasSteps() const;

    // It was given a text that cannot be undone, and holds nothing else.
    void noteLoaded() { m_entered = characterCount(); }

    // What it takes of the memory, in bytes: an estimate that is rather too high. Text that was
    // removed counts, since the undo list holds it.
    qint64 memory() const;

protected:
    // Never anything: texts refer to nothing outside.
    QVariant loadResource(int type, const QUrl &name) override;

private:
    PageColours *m_colours;
    qint64 m_entered = 0; // characters, since it was loaded
};

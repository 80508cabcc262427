#pragma once

#include "renumber/RenumberPreview.h"
#include "store/references/DoubtfulReferences.h"

#include <QObject>
#include <functional>
#include <optional>

class PreviewLine;
class QDialog;

// Says in the line of a dialog what its command would do, and follows every key in its boxes. Once
// the dialog is on the screen all texts are read for doubtful references, which takes a moment, and
// the line says how many of them concern numbers that change, with a link to their list.
class NumberPreview : public QObject
{
    Q_OBJECT

public:
    using Preview = std::function<RenumberPreview()>;

    // For a dialog that is filled. All must outlive it.
    NumberPreview(const Variables &variables, QDialog &dialog, PreviewLine &line,
                  const Preview &preview);

    void update();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void readDoubtful();
    void showDoubtful();
    QList<DoubtfulReference> concerned() const;

    const Variables &m_variables;
    QDialog &m_dialog;
    PreviewLine &m_line;
    Preview m_compute;
    RenumberPreview m_preview;
    QList<DoubtfulReference> m_doubtful; // in all texts, once they have been read
};

#pragma once

#include <QObject>
#include <QTranslator>

class QApplication;

// What the desktop decides about the look: icons from its icon theme, with a bundled theme for
// those that it lacks, light or dark as its palette is. Qt's own texts (file dialogs, the menu of
// the editing box) are French, as the rest of the program.
class Desktop : public QObject
{
    Q_OBJECT

public:
    explicit Desktop(QApplication &application);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QTranslator m_french;
};

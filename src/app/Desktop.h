#pragma once

#include "editor/options/EditorComfort.h"

#include <QObject>
#include <QTranslator>

class QApplication;
class QPalette;

// What the desktop decides about the look: icons from its icon theme, with a bundled theme for
// those that it lacks, light or dark as its palette is, unless the author chose one of the two.
// The language too may be that of the desktop; Qt's own texts (file dialogs, the menu of the
// editing box) are in the language of the rest of the program.
class Desktop : public QObject
{
    Q_OBJECT

public:
    explicit Desktop(QApplication &application);

    // Once, before the first text: what is on the screen stays in the language it has.
    void speak(EditorComfort::Language chosen);
    void show(EditorComfort::Colours colours);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void chooseStyle(const QPalette &palette);

    QTranslator m_french;
    QString m_nativeStyle;
    EditorComfort::Colours m_colours = EditorComfort::Colours::Desktop;
};

#pragma once

#include "platform/Prompts.h"

#include <QStringList>

class QFileDialog;

// Prompts over Qt's own dialogs, centred on the active window. The buttons are French whatever the
// language of the desktop.
class DialogPrompts : public Prompts
{
public:
    DialogPrompts();

    Answer message(const QString &text, const QString &title, Buttons buttons) override;
    QString openName(const QString &title, const QString &filter) override;
    QString saveName(const QString &title, const QString &filter, const QString &defaultExtension,
                     const QString &proposed) override;
    QString folderName(const QString &title, const QString &start) override;
    void beep() override;

private:
    QString askForName(QFileDialog &dialog, const QString &filter);

    QString m_folder; // where the last file was, while the program runs
};

// "Fichiers RTF (*.rtf)|*.rtf|Tous|*.*;*.txt" as Qt wants it: "Fichiers RTF (*.rtf)" and
// "Tous (*.* *.txt)".
QStringList dialogFilters(const QString &filter);

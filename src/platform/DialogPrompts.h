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
    Answer question(const QString &text, const QString &note, const QString &title,
                    Buttons buttons) override;
    void beginIn(const QString &folder) override { m_adventureFolder = folder; }
    QString openName(const QString &title, const QString &filter) override;
    QString saveName(const QString &title, const QString &filter, const QString &defaultExtension,
                     const QString &proposed) override;
    QString folderName(const QString &title, const QString &start) override;
    void beep() override;

private:
    QString startFolder() const;
    QString askForName(QFileDialog &dialog);
    bool mayReplace(const QString &path, const QString &title);

    QString m_adventureFolder; // of the open adventure
    QString m_folder;          // where the last file was, while the program runs
};

// "Fichiers RTF (*.rtf)|*.rtf|Tous|*.*;*.txt" as Qt wants it: "Fichiers RTF (*.rtf)" and
// "Tous (*.* *.txt)".
QStringList dialogFilters(const QString &filter);

// The name with ".defaultExtension" behind it, unless it ends in one of the filter's extensions
// already: a dot in a name begins no extension ("Mr. Loup"). Without a default extension the name.
QString withExtension(const QString &name, const QString &filter, const QString &defaultExtension);

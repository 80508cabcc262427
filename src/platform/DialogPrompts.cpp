#include "platform/DialogPrompts.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>

namespace
{
// In the order of the buttons; the first is the default one.
QList<Prompts::Answer> answersOf(Prompts::Buttons buttons)
{
    using Answer = Prompts::Answer;
    switch (buttons) {
    case Prompts::Buttons::OkCancel:
        return {Answer::Ok, Answer::Cancel};
    case Prompts::Buttons::YesNo:
        return {Answer::Yes, Answer::No};
    case Prompts::Buttons::YesNoCancel:
        return {Answer::Yes, Answer::No, Answer::Cancel};
    default:
        return {Answer::Ok};
    }
}

QPushButton *addButton(QMessageBox &box, Prompts::Answer answer)
{
    switch (answer) {
    case Prompts::Answer::Yes:
        return box.addButton(QCoreApplication::translate("DialogPrompts", "&Oui"),
                             QMessageBox::YesRole);
    case Prompts::Answer::No:
        return box.addButton(QCoreApplication::translate("DialogPrompts", "&Non"),
                             QMessageBox::NoRole);
    case Prompts::Answer::Cancel:
        return box.addButton(QCoreApplication::translate("DialogPrompts", "&Annuler"),
                             QMessageBox::RejectRole);
    default:
        return box.addButton(QCoreApplication::translate("DialogPrompts", "OK"),
                             QMessageBox::AcceptRole);
    }
}

void setFilter(QFileDialog &dialog, const QString &filter)
{
    if (!filter.isEmpty())
        dialog.setNameFilters(dialogFilters(filter));
}
} // namespace

DialogPrompts::DialogPrompts()
    : m_folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
{
    // A folder that is not there would be taken for the name of a file.
    if (!QFileInfo(m_folder).isDir())
        m_folder = QDir::homePath();
}

Prompts::Answer DialogPrompts::message(const QString &text, const QString &title, Buttons buttons)
{
    return question(text, QString(), title, buttons);
}

Prompts::Answer DialogPrompts::question(const QString &text, const QString &note,
                                        const QString &title, Buttons buttons)
{
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(title);
    // A file name in the text may look like markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setInformativeText(note);
    const QList<Answer> answers = answersOf(buttons);
    QList<QPushButton *> shown;
    for (const Answer answer : answers)
        shown.append(addButton(box, answer));
    box.setDefaultButton(shown.first());
    // Escape answers as the last one: Annuler, else Non, else OK.
    box.setEscapeButton(shown.last());
    box.exec();
    for (qsizetype i = 0; i < shown.size(); ++i) {
        if (box.clickedButton() == shown.at(i))
            return answers.at(i);
    }
    return answers.last();
}

// A folder that is not there would be taken for the name of a file.
QString DialogPrompts::startFolder() const
{
    return QFileInfo(m_adventureFolder).isDir() ? m_adventureFolder : m_folder;
}

QString DialogPrompts::askForName(QFileDialog &dialog)
{
    if (dialog.exec() != QDialog::Accepted)
        return {};
    m_folder = dialog.directory().path();
    return dialog.selectedFiles().value(0);
}

QString DialogPrompts::openName(const QString &title, const QString &filter)
{
    QFileDialog dialog(QApplication::activeWindow(), title, startFolder());
    dialog.setFileMode(QFileDialog::ExistingFile);
    setFilter(dialog, filter);
    return askForName(dialog);
}

// The dialog's own question would concern the name as it was typed. So it is asked here, and after
// "Non" the dialog comes again.
QString DialogPrompts::saveName(const QString &title, const QString &filter,
                                const QString &defaultExtension, const QString &proposed)
{
    QFileDialog dialog(QApplication::activeWindow(), title, startFolder());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    setFilter(dialog, filter);
    dialog.selectFile(proposed);
    for (;;) {
        const QString typed = askForName(dialog);
        if (typed.isEmpty())
            return {};
        const QString name = withExtension(typed, filter, defaultExtension);
        if (mayReplace(name, title))
            return name;
        dialog.selectFile(name);
    }
}

bool DialogPrompts::mayReplace(const QString &path, const QString &title)
{
    if (!QFileInfo::exists(path))
        return true;
    const QString question =
        QCoreApplication::translate("DialogPrompts", "%1 existe déjà. Voulez-vous le remplacer ?");
    return message(question.arg(QFileInfo(path).fileName()), title, Buttons::YesNo) == Answer::Yes;
}

QString DialogPrompts::folderName(const QString &title, const QString &start)
{
    return QFileDialog::getExistingDirectory(QApplication::activeWindow(), title,
                                             start.isEmpty() ? startFolder() : start);
}

void DialogPrompts::beep()
{
    QApplication::beep();
}

QStringList dialogFilters(const QString &filter)
{
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString label = parts.at(i).section(u'(', 0, 0).trimmed();
        QString patterns = parts.at(i + 1);
        filters.append(label + QStringLiteral(" (") + patterns.replace(u';', u' ') + u')');
    }
    return filters;
}

QString withExtension(const QString &name, const QString &filter, const QString &defaultExtension)
{
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 1; i < parts.size(); i += 2) {
        const QStringList patterns = parts.at(i).split(u';');
        for (const QString &pattern : patterns) {
            const QString extension = pattern.mid(1); // without the asterisk
            if (extension != QStringLiteral(".*") && name.endsWith(extension, Qt::CaseInsensitive))
                return name;
        }
    }
    return defaultExtension.isEmpty() ? name : name + u'.' + defaultExtension;
}

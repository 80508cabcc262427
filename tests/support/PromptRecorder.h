#pragma once

#include "platform/Prompts.h"

#include <QList>
#include <QStringList>
#include <functional>

// Prompts that tests answer beforehand. Every box must have been expected with its text and is
// answered as told; one that nobody expected fails the test, and so does an expected one that
// never came, when the recorder goes. Of a text of several lines the first is what the author is
// told at any rate, and those below say which file failed and why: when what was expected is one
// line, only the first is compared, else all of them.
class PromptRecorder : public Prompts
{
public:
    ~PromptRecorder() override;

    void expect(const QString &text, const QString &title, Buttons buttons = Buttons::Ok,
                Answer answer = Answer::Ok);
    // The next file dialog, open, save or folder, gives this name; an empty one means that it is
    // cancelled. It must propose a name (a folder dialog: begin in a folder).
    void expectFileDialog(const QString &title, const QString &name, const QString &proposed = {});

    // Filter and default extension of the last file dialog: "Textes (*.txt)|*.txt;txt".
    const QString &fileKind() const { return m_fileKind; }

    int beeps() const { return m_beeps; }

    // What stood below the last question that had a note.
    const QString &note() const { return m_note; }

    // What happens while a box stands.
    std::function<void()> meanwhile = [] {};

    Answer message(const QString &text, const QString &title, Buttons buttons) override;
    Answer question(const QString &text, const QString &note, const QString &title,
                    Buttons buttons) override
    {
        m_note = note;
        return message(text, title, buttons);
    }
    QString openName(const QString &title, const QString &filter) override;
    QString saveName(const QString &title, const QString &filter, const QString &defaultExtension,
                     const QString &proposed) override;
    QString folderName(const QString &title, const QString &start) override;
    void beep() override { ++m_beeps; }

private:
    struct Box {
        QString text;
        QString title;
        Buttons buttons;
        Answer answer;
    };
    struct FileDialog {
        QString title;
        QString name;
        QString proposed;
    };
    QString fileDialog(const QString &title, const QString &proposed);

    QList<Box> m_boxes;
    QList<FileDialog> m_fileDialogs;
    QString m_fileKind;
    QString m_note;
    int m_beeps = 0;
};

#pragma once

#include "convert/html/CodeSnippet.h"

#include <QPlainTextEdit>

class Prompts;
class QPushButton;
struct Variables;

// A text box for a piece of HTML code that is kept in a text file. It remembers the encoding of the
// file that it was loaded from.
class CodeBox : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit CodeBox(QWidget *parent = nullptr);

    // What its file dialogs offer.
    struct FileKind {
        QString filter;
        QString defaultExtension;
    };
    // The two buttons load and save the code from now on. A file that fails ends the click without
    // a word, but a file of the adventure itself is refused with one.
    void connectButtons(const Variables &variables, Prompts &prompts, const QPushButton &load,
                        const QPushButton &save, const FileKind &kind);

    // Shows the code of a file; one that cannot be read leaves the box as it is.
    void readFile(const QString &path);

    // Lines end with LF, no-break spaces stay.
    QString code() const;

private:
    void load(Prompts &prompts, const FileKind &kind);
    void save(const Variables &variables, Prompts &prompts, const FileKind &kind) const;

    std::optional<CodeSnippet::Encoding> m_encoding;
};

// The font of the texts that become HTML, or the one that comes closest to it.
void setCodeFont(QWidget &box);

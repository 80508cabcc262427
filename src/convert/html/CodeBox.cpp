#include "convert/html/CodeBox.h"

#include "platform/Guarded.h"
#include "store/ExportTarget.h"

#include <QFileInfo>
#include <QPushButton>
#include <QTextDocument>

CodeBox::CodeBox(QWidget *parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
    setCodeFont(*this);
}

void CodeBox::connectButtons(const Variables &variables, Prompts &prompts, const QPushButton &load,
                             const QPushButton &save, const FileKind &kind)
{
    connectGuarded(&load, &QPushButton::clicked, this, prompts,
                   [this, &prompts, kind] { this->load(prompts, kind); });
    connectGuarded(&save, &QPushButton::clicked, this, prompts,
                   [this, &variables, &prompts, kind] { this->save(variables, prompts, kind); });
}

void CodeBox::readFile(const QString &path)
{
    try {
        const CodeSnippet snippet = readSnippet(path);
        m_encoding = snippet.encoding;
        setPlainText(snippet.text);
    } catch (const UsmiraError &) {
        // The author sees that the box has not changed.
    }
}

// The box's own text would have plain spaces for no-break spaces.
QString CodeBox::code() const
{
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    return text.replace(QChar::LineSeparator, u'\n');
}

void CodeBox::load(Prompts &prompts, const FileKind &kind)
{
    const QString path = prompts.openName(tr("Ouvrir Fichier Texte"), kind.filter);
    if (QFileInfo::exists(path))
        readFile(path);
}

void CodeBox::save(const Variables &variables, Prompts &prompts, const FileKind &kind) const
{
    const QString path = prompts.saveName(tr("Enregistrer Fichier Texte"), kind.filter,
                                          kind.defaultExtension, QString());
    if (path.isEmpty())
        return;
    refuseOwnFiles(variables, path);
    try {
        saveSnippet(path, {code(), m_encoding});
    } catch (const FileError &) {
        // An old file of that name is still there.
    }
}

void setCodeFont(QWidget &box)
{
    QFont font = box.font();
    font.setFamilies({QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
    box.setFont(font);
}

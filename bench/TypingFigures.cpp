#include "TypingFigures.h"

#include "BenchWindow.h"
#include "Figures.h"
#include "editor/RtfBox.h"
#include "editor/TypingAids.h"

#include <QKeyEvent>

namespace
{
constexpr int Keys = 400;
constexpr int Lines = 100;
constexpr int LineLength = 500;

QString longText()
{
    const QString words = QStringLiteral("Rendez-vous au 26, la porte est close. ");
    return (words.repeated(LineLength / words.size()) + u'\n').repeated(Lines);
}

// Milliseconds a key takes in the middle of the text, when the keys are pressed by turns.
double typingTime(QTextEdit &edit, const QString &keys)
{
    QTextCursor caret = edit.textCursor();
    caret.setPosition(edit.document()->characterCount() / 2);
    edit.setTextCursor(caret);
    qsizetype next = 0;
    return medianMilliseconds(
        Keys,
        [] {
            QCoreApplication::processEvents(); // what was put off until the key was dealt with
        },
        [&] {
            QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, keys.at(next % keys.size()));
            ++next;
            QCoreApplication::sendEvent(&edit, &key);
        });
}
} // namespace

void printTypingFigures(const QString &path, const QString &folder)
{
    BenchWindow editor(folder);
    editor.waitUntilExposed();
    editor.window.openCommandLine(path);
    for (const TypingOption &option : typingOptions())
        option.set(editor.variables, true);
    auto &box = *editor.window.findChild<RtfBox *>(QStringLiteral("rtfBox"));
    box.setText(longText());
    QTextEdit bare;
    bare.setFont(box.font());
    bare.resize(box.viewport()->size());
    bare.setPlainText(longText());
    bare.show();
    const double plain = typingTime(bare, QStringLiteral("x"));
    printFigure(QStringLiteral("a key in a bare QTextEdit with 50000 characters"), plain,
                QStringLiteral("ms"));
    printFigure(QStringLiteral("a key in 50000 characters, over a bare QTextEdit"),
                typingTime(box, QStringLiteral("x")) - plain, QStringLiteral("ms"));
    printFigure(QStringLiteral("a key that a typing aid changes, over a bare QTextEdit"),
                typingTime(box, QStringLiteral("\"")) - plain, QStringLiteral("ms"));
}

#include "support/PromptRecorder.h"

#include <QTest>

namespace
{
void complain(const QString &what)
{
    QTest::qFail(qPrintable(what), __FILE__, __LINE__);
}
} // namespace

PromptRecorder::~PromptRecorder()
{
    for (const Box &box : m_boxes)
        complain(QStringLiteral("this box never came: ") + box.text);
    for (const FileDialog &dialog : m_fileDialogs)
        complain(QStringLiteral("this file dialog never came: ") + dialog.title);
}

void PromptRecorder::expect(const QString &text, const QString &title, Buttons buttons,
                            Answer answer)
{
    m_boxes.append({text, title, buttons, answer});
}

void PromptRecorder::expectFileDialog(const QString &title, const QString &name,
                                      const QString &proposed)
{
    m_fileDialogs.append({title, name, proposed});
}

Prompts::Answer PromptRecorder::message(const QString &text, const QString &title, Buttons buttons)
{
    meanwhile();
    if (m_boxes.isEmpty()) {
        complain(QStringLiteral("nobody expected \"%1\": %2").arg(title, text));
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    }
    const Box box = m_boxes.takeFirst();
    const QString compared = box.text.contains(u'\n') ? text : text.section(u'\n', 0, 0);
    if (box.text != compared || box.title != title || box.buttons != buttons)
        complain(QStringLiteral("expected \"%1\": %2\n   but got \"%3\": %4")
                     .arg(box.title, box.text, title, text));
    return box.answer;
}

QString PromptRecorder::openName(const QString &title, const QString &filter)
{
    m_fileKind = filter + u';';
    return fileDialog(title, {});
}

QString PromptRecorder::saveName(const QString &title, const QString &filter,
                                 const QString &defaultExtension, const QString &proposed)
{
    m_fileKind = filter + u';' + defaultExtension;
    return fileDialog(title, proposed);
}

QString PromptRecorder::folderName(const QString &title, const QString &start)
{
    return fileDialog(title, start);
}

QString PromptRecorder::fileDialog(const QString &title, const QString &proposed)
{
    if (m_fileDialogs.isEmpty()) {
        complain(QStringLiteral("nobody expected the file dialog ") + title);
        return {};
    }
    const FileDialog dialog = m_fileDialogs.takeFirst();
    if (dialog.title != title || dialog.proposed != proposed)
        complain(
            QStringLiteral("expected the file dialog \"%1\" with \"%2\" but got \"%3\" with \"%4\"")
                .arg(dialog.title, dialog.proposed, title, proposed));
    return dialog.name;
}

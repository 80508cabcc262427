#pragma once

#include "app/formUsmira.h"
#include "editor/RtfBox.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <functional>
#include <memory>

// A control of a window or a dialog by its name.
template <typename Control> Control &child(const QWidget &window, const QString &name)
{
    auto *found = window.findChild<Control *>(name);
    if (found == nullptr)
        qFatal("there is no %s", qPrintable(name));
    return *found;
}

inline void click(const QWidget &window, const QString &button)
{
    QTest::mouseClick(&child<QAbstractButton>(window, button), Qt::LeftButton);
}

inline void typeOver(QLineEdit &edit, const QString &text)
{
    edit.setFocus();
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClicks(&edit, text);
}

// The main window on a temporary working folder, driven through its controls by their names.
class WindowFixture
{
public:
    // Without an adventure, as the program starts.
    WindowFixture() { start(); }

    // With the adventure "Le Loup.usm" open.
    explicit WindowFixture(const AdventureBuilder &builder)
    {
        start();
        open(builder.bytes());
    }

    void open(const QByteArray &bytes)
    {
        window->openCommandLine(adventure.file(QStringLiteral("Le Loup.usm"), bytes));
    }

    // A new window on the same folder and state, as the next start of the program.
    void start()
    {
        window = std::make_unique<formUsmira>(variables, prompts);
        window->Form_Load();
        window->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }

    template <typename Control> Control &control(const char *name) const
    {
        return child<Control>(*window, QLatin1String(name));
    }
    QString label(const char *name) const { return control<QLabel>(name).text(); }
    RtfBox &box() const { return control<RtfBox>("rtfBox"); }
    int current() const { return variables.CurrentParagraph; }

    void click(const char *button) const { ::click(*window, QLatin1String(button)); }
    void trigger(const char *item) const { control<QAction>(item).trigger(); }

    void clickRow(const char *list, int row) const
    {
        auto &entries = control<QListWidget>(list);
        const QRect entry = entries.visualItemRect(entries.item(row));
        QTest::mouseClick(entries.viewport(), Qt::LeftButton, {}, entry.center());
    }
    // The entries of a list with strokes between them.
    QString entries(const char *list) const
    {
        QStringList texts;
        const auto &widget = control<QListWidget>(list);
        for (int row = 0; row < widget.count(); ++row)
            texts.append(widget.item(row)->text());
        return texts.join(u'|');
    }

    // Opens a dialog and does the work in it. A dialog that the work leaves open is cancelled.
    // Gives the name of the dialog, or an empty one when none came.
    QString inDialog(const std::function<void()> &open,
                     const std::function<void(QDialog &dialog)> &work) const
    {
        QString name;
        QTimer::singleShot(0, window.get(), [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            name = dialog->objectName();
            if (QTest::qWaitForWindowActive(dialog))
                work(*dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
        open();
        QCoreApplication::processEvents(); // without a dialog the timer is still to come
        return name;
    }
    // The platform of the tests does not itself activate the window that a dialog leaves.
    bool editorHasFocus() const
    {
        window->activateWindow();
        return QTest::qWaitFor([this] { return box().hasFocus(); });
    }

    QLineEdit &field(const char *name) const { return control<QLineEdit>(name); }
    void enter(QLineEdit &edit, const char *text) const
    {
        typeOver(edit, QString::fromUtf8(text));
        QTest::keyClick(&edit, Qt::Key_Return);
    }

    // Types at the end of the paragraph on the screen.
    void type(const char *text) const
    {
        box().moveCursor(QTextCursor::End);
        QTest::keyClicks(&box(), QString::fromUtf8(text));
    }

    TestAdventure adventure;
    Variables &variables = adventure.variables;
    PromptRecorder prompts;
    std::unique_ptr<formUsmira> window;
};

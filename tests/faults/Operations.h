#pragma once

#include <QString>
#include <QStringList>

// What an author does, as lines for usmira-outil; @ stands for the folder in which it happens.
struct Operation {
    QString name;
    QStringList steps;    // behind opening "@/a.usm", which is the first step of all
    QStringList products; // other files that they write
    QStringList next;     // what the author does next; it must work, and leave nothing of the fault
    // Marks, the target phrase and where readings start are changed at once, whether or not that
    // can be written down.
    bool onlyInMemory = false;
    bool silent = false; // what fails may be said in the status line alone, which a script lacks
};

const QList<Operation> &operations();

// Lines that make what the operations start from, and the texts that they read.
QStringList preparations();
QList<std::pair<QString, QByteArray>> preparedFiles();

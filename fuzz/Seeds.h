#pragma once

#include <QByteArray>
#include <QList>

// What fuzzing begins with: RTF with everything that the editor writes, and as word processors
// write it.
QList<QByteArray> rtfSeeds();

// Adventure files of both layouts.
QList<QByteArray> adventureSeeds();

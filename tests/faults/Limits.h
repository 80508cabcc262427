#pragma once

#include "Sweep.h"

// Limits of the system's own, without a shim: a disk that is really full, files that may not grow,
// folders that may not be written to.
struct Limit {
    QString name;
    // Every so many sizes, from an offset on; nothing when this system does not let us try.
    std::optional<Tally> (*tally)(const Sweep &, const ToolRun &, int every, int offset);
};

const QList<Limit> &limits();

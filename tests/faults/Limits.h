#pragma once

#include "Sweep.h"

// Limits of the system's own, without a shim: a disk that is really full, files that may not grow,
// folders that may not be written to.
struct Limit {
    QString name;
    // Nothing when this system does not let us try.
    std::optional<Tally> (*tally)(const Sweep &, const ToolRun &);
};

const QList<Limit> &limits();

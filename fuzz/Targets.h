#pragma once

#include <QByteArray>
#include <QList>

// What reads bytes that come from elsewhere. Each target takes any bytes at all: it must neither
// crash nor hang nor take memory without bounds, and what it promises about what it made of them
// must hold. One that breaks a promise throws std::logic_error.
struct FuzzTarget {
    const char *name;
    void (*run)(const QByteArray &bytes);
    QList<QByteArray> (*seeds)(); // bytes as the program and its relatives write them
    int longest;                  // bytes of an input
};

const QList<FuzzTarget> &fuzzTargets();

// The targets by their files: TextTargets.cpp and so on.
QList<FuzzTarget> textTargets();
QList<FuzzTarget> fileTargets();
QList<FuzzTarget> sessionTargets();
QList<FuzzTarget> languageTargets();

// Throws std::logic_error when a promise does not hold.
void promise(bool holds, const char *words);

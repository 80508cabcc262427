#pragma once

#include "store/Variables.h"

// The settings file, six lines of comma-separated fields ended by CR LF:
//   optNDash,optMDash,optBullet,optEllipsis
//   optFrenchQuotes,optLigatureAE,optLigatureOE,optNbsp
//   optCtrlECentres,showTabPanel
//   width,height,left,top of the main window, in twips
//   "defaultFontName"
//   defaultFontSize
// True/false values are #TRUE# or #FALSE#, 16-bit flags -1 or 0, texts in double quotes.

// Geometry in twips; left and top may be negative.
struct WindowGeometry {
    int width = 0;
    int height = 0;
    int left = 0;
    int top = 0;
    bool operator==(const WindowGeometry &) const = default;
};

// Reads what it can: a value that cannot be read keeps what it had, and so does the rest of its
// line. Never throws.
void readSettings(const QString &path, Variables &variables, WindowGeometry &geometry);

// Throws FileError.
void writeSettings(const QString &path, const Variables &variables, const WindowGeometry &geometry);

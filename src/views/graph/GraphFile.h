#pragma once

#include "views/graph/GraphDrawing.h"

#include <QByteArray>

struct Variables;

// A picture of references as a file, dark on white, without what an author points at.

// Where Qt's base is all that there is, nothing draws SVG.
#ifdef Q_OS_WIN
constexpr bool DrawsSvg = false;
#else
constexpr bool DrawsSvg = true;
#endif

// An SVG document of the picture's size, where it can be drawn.
QByteArray graphSvg(const GraphDrawing &drawing, const QString &title);

struct GraphPng {
    QByteArray bytes;
    double scale; // 1, or less where the image would be too large: see its bounds
};
constexpr int MostPixelsASide = 16000;
constexpr double MostPixels = 40e6;
GraphPng graphPng(const GraphDrawing &drawing);

// What a picture of the open adventure from a start on is called: "Le Loup 12".
QString graphName(const Variables &variables, int start);

bool isImageName(const QString &path); // ends in ".png"

// Writes the picture as an image where it has an image's name, else as an SVG document, and gives
// the scale. Throws FileError, also when the file is one of the adventure's own; what was there
// before still is.
double saveGraph(const Variables &variables, const GraphDrawing &drawing, const QString &path,
                 const QString &title);

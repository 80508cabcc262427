#pragma once

#include "language/typography/TypographyKinds.h"

#include <QObject>
#include <QString>
#include <QStringList>

// How an author likes the editor to look and to start. Nothing of it is part of a text.
//
// It has a file of its own, in UTF-8, a line for each value, ended by CR LF:
//   zoom=120                  percent
//   page=72                   characters of a line of the page
//   couleurs=bureau           or claires, or sombres
//   rouvrir=1                 or 0
//   renvois=1                 or 0: whether references are underlined
//   orthographe=1             or 0: whether doubtful words are underlined
//   dictionnaire=fr           by which spelling goes, as its files are called
//   capitales=1               or 0: whether spelling passes over words of capitals
//   chiffres=1                or 0: whether it passes over words with digits
//   typographie=espaces,...   the kinds of typography that are mended while one types
//   fines=0                   or 1: U+202F stands before ; ! ? and not U+00A0
//   langue=fr                 or en, or bureau
//   aventure=/home/...        of each adventure opened last, the latest first
struct EditorComfort {
    enum class Colours { Desktop, Light, Dark };
    enum class Language { French, English, Desktop }; // of the program from its next start on

    static constexpr int LeastZoom = 50;
    static constexpr int MostZoom = 400;
    static constexpr int NarrowestPage = 40;
    static constexpr int WidestPage = 200;
    static constexpr int MostAdventures = 9;

    int zoom = 100;
    int pageWidth = 72;
    Colours colours = Colours::Desktop;
    bool reopenLast = false;
    bool underlines = true;
    bool spelling = true;
    QString dictionary = QStringLiteral("fr");
    bool skipsCapitals = true;
    bool skipsDigits = true;
    TypographyKinds typography;
    bool narrowSpaces = false;
    Language language = Language::French;
    QStringList adventures;

    bool operator==(const EditorComfort &) const = default;
};

// Reads what it can: what cannot be read, or makes no sense, keeps its default. Never throws.
EditorComfort readComfort(const QString &path);

// Throws FileError.
void writeComfort(const QString &path, const EditorComfort &comfort);

// The comfort of the program that runs, for whoever follows it, with its file.
class ComfortKeeper : public QObject
{
    Q_OBJECT

public:
    const EditorComfort &comfort() const { return m_comfort; }

    void load(const QString &path);
    // Writes the file that was loaded when something is no longer as it says. A failure is passed
    // over: the comfort of a later start is not worth a message.
    void save();

    // Values outside their bounds are brought to the nearest one.
    void change(EditorComfort comfort);
    void zoomTo(int percent);
    // Puts an adventure at the head of those opened last.
    void remember(const QString &adventurePath);

Q_SIGNALS:
    void changed();

private:
    EditorComfort m_comfort;
    QString m_path;
    EditorComfort m_kept; // what the file says
};

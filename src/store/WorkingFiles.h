#pragma once

#include <QString>
#include <QStringList>

class QDateTime;
struct Variables;

// Every name that the program gives to a file in its working folder:
//
//   LTdI-0026.rtf                      text of paragraph 26, edited and not yet in the adventure
//   0026.xyz                           new text of paragraph 26, parked until its change counts
//   Usmira Temporary Save File.xyz     the adventure as it is being saved
//   Usmira Settings.xyz                settings
//   Usmira Fenêtre.xyz                 there while the window is to come back maximised
//   Usmira Confort.xyz                 how the editor looks and starts
//   Usmira Mise en Pages.xyz           how the pages of a printed book look
//   Usmira Mots.xyz                    words that the author's spelling takes as right
//   Usmira Documents.xyz               which documents were delivered, by their checksums
//   Grammaire.txt.usmira-part          the texts, while another program looks at their grammar
//   Copyright.rtf and the like         documents, which the author may replace
//   Session/Journal.xyz                a change of many paragraphs that counts
//   Session/Etat.xyz                   what is unsaved
//   Session/Suite.xyz                  the same once the change in the journal is put in place
//   Session/Saisie-0026.rtf            the box as last typed
//   Session/Annexe-0a1b2c3d4e5f6071.xyz  what is unsaved beside the paragraphs, by its checksum
//   Session/Annuler-0007.xyz           what a command on the whole adventure changed
//   Session/Usmira.lock                the program that works here
//   Copies/Le Loup (2026-11-21 ...).usm  an adventure as it was, see DatedCopies
//   Récupération 2026-11-21 0137/      what was set aside; never removed by the program
//
// Unless a function says that it looks, names are made up without touching the disk.
class WorkingFiles
{
public:
    // folder ends with a separator. All names have the separators of Qt, so that the same file has
    // the same name, whether it was made up or found.
    explicit WorkingFiles(const QString &folder, const QString &filePrefix = {});
    // Those of the open adventure.
    explicit WorkingFiles(const Variables &variables);
    // Those that programs with working folders of their own share.
    static WorkingFiles shared(const Variables &variables);

    const QString &folder() const { return m_folder; }

    QString text(int n) const;
    QString parked(int n) const;
    QString temporarySave() const;
    QString settings() const;
    QString maximized() const;
    QString comfort() const;
    QString pageSetup() const;
    QString ownWords() const;
    QString deliveries() const;

    enum class Document {
        Welcome,
        EnglishWelcome,
        FrenchHelp,
        EnglishHelp,
        OneFileHeader,
        Numbers,
        PageHeader,
        Footer,
    };
    QString document(Document document) const { return m_folder + documentName(document); }
    static QString documentName(Document document);
    static QStringList documentNames();

    QString session() const; // without a separator at its end
    QString journal() const;
    QString state() const;
    QString nextState() const;
    QString typed(int n) const;
    QString step(int id) const;
    QString extras(const QByteArray &sha256) const; // in hexadecimal
    QString lock() const;
    QString copies() const; // without a separator at its end

    // Looks: a name that is still free.
    QString newRecoveryFolder(const QDateTime &now) const;

    // Looks: full paths of all working files of any adventure, of all parked texts, of all boxes as
    // last typed, of all steps of commands, and of what is unsaved beside the paragraphs.
    QStringList allTexts() const;
    QStringList allParked() const;
    QStringList allTyped() const;
    QStringList allSteps() const;
    QStringList allExtras() const;

    // The number in the name of a working file, or of a box as last typed.
    static int numberOf(const QString &path);

    // Whether a file of this name, anywhere in the working folder, is the program's own, of this
    // adventure or another. All others are the author's to replace.
    static bool isOwnName(const QString &path);

private:
    QString m_folder;
    QString m_filePrefix;
};

// "LTdI-" for "La Tour d'Ivoire.usm": the first character, each character that follows an
// apostrophe, a space or a hyphen, and a hyphen. Adventures with the same initials share names.
QString filePrefixOf(const QString &adventureFileName);

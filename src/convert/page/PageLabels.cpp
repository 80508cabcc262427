#include "convert/page/PageLabels.h"

#include "convert/book/BookWords.h"

namespace
{
struct Word {
    const char *name; // all three in UTF-8
    const char *french;
    const char *english;
};

constexpr Word Words[] = {
    {"w-tools", "Lecture", "Reading"},
    {"w-back", "Reculer", "Back"},
    {"w-forward", "Avancer", "Forward"},
    {"w-way", "Chemin", "Way"},
    {"w-number", "Aller au", "Go to"},
    {"w-go", "Aller", "Go"},
    {"w-restart", "Recommencer", "Start again"},
    {"w-marks", "Marque-pages", "Bookmarks"},
    {"w-mark", "Marquer cette page", "Mark this page"},
    {"w-marked", "Marque-page posé : %", "Bookmark set: %"},
    {"w-remove", "Enlever le marque-page : %", "Remove the bookmark: %"},
    {"w-unkept", "Ce navigateur ne garde rien de cette page : tout s’efface quand on la ferme.",
     "This browser keeps nothing of this page: all of it goes when the page is closed."},
    {"w-look", "Affichage", "Display"},
    {"w-smaller", "A− Caractères plus petits", "A− Smaller type"},
    {"w-larger", "A+ Caractères plus grands", "A+ Larger type"},
    {"w-colours", "Couleurs", "Colours"},
    {"w-auto", "Comme l’appareil", "As the device"},
    {"w-light", "Clair", "Light"},
    {"w-dark", "Sombre", "Dark"},
    {"w-sheet", "Fiche", "Sheet"},
    {"w-notes", "Notes", "Notes"},
    {"w-die", "Jeter un dé", "Throw a die"},
    {"w-missing", "Il n’y a pas de paragraphe %.", "There is no paragraph %."},
    {"w-start", "Début", "Start"},
    {"w-begin", "Commencer la lecture", "Begin to read"},
    {"w-begin-at", "Commencer au %", "Begin at %"},
};
} // namespace

QHash<QString, QString> pageLabels(const QString &language)
{
    const bool french = isFrench(language);
    QHash<QString, QString> words;
    for (const Word &word : Words)
        words.insert(QString::fromLatin1(word.name),
                     QString::fromUtf8(french ? word.french : word.english));
    return words;
}

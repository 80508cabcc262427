#include "Operations.h"

namespace
{
const QString Save = QStringLiteral("enregistrer");
const QString Open = QStringLiteral("ouvrir @/a.usm");
const QString Swap = QStringLiteral("echanger 2 5");
const QString TakeBack = QStringLiteral("annuler");
const QString Edit = QStringLiteral("texte 4 @/t.rtf");
const QStringList NextSave{Open, QStringLiteral("texte 8 @/t.rtf"), Save};

// A change between the edit of another paragraph and the save.
Operation changing(const QString &name, const QString &command, bool onlyInMemory = false)
{
    return {name, {Edit, command, Save}, {}, NextSave, onlyInMemory};
}

// Writes other files, from a paragraph in its working file and others in the adventure.
Operation exporting(const QString &name, const QString &command, const QStringList &products)
{
    return {name, {Edit, command}, products, {Open, Edit, command}, false, true};
}
} // namespace

const QList<Operation> &operations()
{
    static const QList<Operation> all{
        changing(QStringLiteral("éditer"), QStringLiteral("texte 5 @/u.rtf")),
        changing(QStringLiteral("vider"), QStringLiteral("effacer 5")),
        changing(QStringLiteral("enregistrer"), Save),
        changing(QStringLiteral("fixer"), QStringLiteral("fixe 5 1"), true),
        changing(QStringLiteral("phrase"), QStringLiteral("phrase rendez-vous_au_"), true),
        changing(QStringLiteral("départs"), QStringLiteral("departs 2 7"), true),
        {QStringLiteral("départs, échangés"),
         {QStringLiteral("departs 2 7"), Swap, Save},
         {},
         NextSave,
         true},
        changing(QStringLiteral("échanger"), Swap),
        changing(QStringLiteral("mélanger"), QStringLiteral("melanger 1 9 5")),
        changing(QStringLiteral("déplacer"), QStringLiteral("deplacer 2 4 3 haut")),
        changing(QStringLiteral("combler"), QStringLiteral("combler 1 9")),
        changing(QStringLiteral("remplacer"), QStringLiteral("remplacer Allez Va")),
        changing(QStringLiteral("typographie"), QStringLiteral("typographie appliquer")),
        changing(QStringLiteral("ajouter-mot"), QStringLiteral("ajouter-mot Elric"), true),
        changing(QStringLiteral("uniformiser"), QStringLiteral("uniformiser Arial 14")),
        {QStringLiteral("annuler"), {Edit, Swap, TakeBack, Save}, {}, NextSave},
        {QStringLiteral("rétablir"),
         {Edit, Swap, TakeBack, QStringLiteral("retablir"), Save},
         {},
         NextSave},
        changing(QStringLiteral("fusionner"), QStringLiteral("fusionner @/b.usm")),
        {QStringLiteral("nouvelle"),
         {QStringLiteral("nouvelle @/n.usm"), Edit, Save},
         {QStringLiteral("n.usm")},
         NextSave},
        {QStringLiteral("nouvelle, sur une autre"),
         {QStringLiteral("nouvelle @/a.usm"), Edit, Save},
         {},
         NextSave},
        {QStringLiteral("ouvrir une autre"),
         {Edit, QStringLiteral("ouvrir @/b.usm"), QStringLiteral("texte 9 @/t.rtf"), Save},
         {QStringLiteral("b.usm")},
         NextSave},
        {QStringLiteral("scinder"),
         {Edit, QStringLiteral("scinder 2 4 @/c.usm effacer"), Save},
         {QStringLiteral("c.usm")},
         NextSave},
        exporting(QStringLiteral("html"), QStringLiteral("html 1 9 @/out/o.htm"),
                  {QStringLiteral("out/o.htm")}),
        exporting(QStringLiteral("pages"), QStringLiteral("pages 1 9 @/out/ x-"),
                  {QStringLiteral("out/x-0002.htm"), QStringLiteral("out/x-0003.htm"),
                   QStringLiteral("out/x-0004.htm"), QStringLiteral("out/x-0005.htm"),
                   QStringLiteral("out/x-0007.htm")}),
        exporting(QStringLiteral("compiler-rtf"),
                  QStringLiteral("compiler-rtf 1 9 @/out/o.rtf liens"),
                  {QStringLiteral("out/o.rtf")}),
        exporting(QStringLiteral("epub"), QStringLiteral("epub 1 9 @/out/o.epub date=2026-11-22"),
                  {QStringLiteral("out/o.epub")}),
        exporting(QStringLiteral("pdf"), QStringLiteral("pdf 1 9 @/out/o.pdf"),
                  {QStringLiteral("out/o.pdf")}),
        exporting(QStringLiteral("lecture"), QStringLiteral("lecture 1 9 @/out/o.html fiche"),
                  {QStringLiteral("out/o.html")}),
    };
    return all;
}

QStringList preparations()
{
    return {QStringLiteral("nouvelle @/b.usm"), QStringLiteral("texte 3 @/u.rtf"),
            QStringLiteral("texte 9 @/u.rtf"),  Save,
            QStringLiteral("nouvelle @/a.usm"), QStringLiteral("texte 2 @/t.rtf"),
            QStringLiteral("texte 3 @/u.rtf"),  QStringLiteral("texte 5 @/t.rtf"),
            QStringLiteral("texte 7 @/u.rtf"),  QStringLiteral("fixe 3 1"),
            QStringLiteral("fixe 7 1"),         Save};
}

QList<std::pair<QString, QByteArray>> preparedFiles()
{
    const QString old = QStringLiteral("out/");
    return {{QStringLiteral("t.rtf"), "{\\rtf1\\ansi Allez au 7 ou au 3.}"},
            {QStringLiteral("u.rtf"), "{\\rtf1\\ansi Allez \\b au\\b0  2.\\par Fin !}"},
            {old + QStringLiteral("o.htm"), "avant"},
            {old + QStringLiteral("x-0003.htm"), "avant"},
            {old + QStringLiteral("o.rtf"), "avant"},
            {old + QStringLiteral("o.epub"), "avant"},
            {old + QStringLiteral("o.pdf"), "avant"},
            {old + QStringLiteral("o.html"), "avant"}};
}

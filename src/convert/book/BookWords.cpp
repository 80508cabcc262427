#include "convert/book/BookWords.h"

bool isFrench(const QString &language)
{
    return language.section(u'-', 0, 0).toLower() == QStringLiteral("fr");
}

BookWords BookWords::of(const QString &language)
{
    if (isFrench(language))
        return {QStringLiteral("Couverture"),         QStringLiteral("Dédicace"),
                QStringLiteral("Pour commencer"),     QStringLiteral("Pour finir"),
                QStringLiteral("Table des matières"), QStringLiteral("Numéros"),
                QStringLiteral("Début du livre")};
    return {QStringLiteral("Cover"),
            QStringLiteral("Dedication"),
            QStringLiteral("To begin with"),
            QStringLiteral("In the end"),
            QStringLiteral("Contents"),
            QStringLiteral("Numbers"),
            QStringLiteral("Start of the book")};
}

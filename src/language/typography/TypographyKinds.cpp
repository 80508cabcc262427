#include "language/typography/TypographyKinds.h"

#include <QCoreApplication>
#include <QStringList>
#include <array>

namespace
{
struct Kind {
    const char *name;
    const char *title;
    const char *purpose;
};

constexpr std::array<Kind, TypographyKindCount> Kinds{{
    {"insecables", QT_TRANSLATE_NOOP("Typography", "Espaces insécables"),
     QT_TRANSLATE_NOOP("Typography", "L'espace devant ; : ! ? et » et derrière « ne se coupe pas "
                                     "en fin de ligne")},
    {"espaces-manquantes", QT_TRANSLATE_NOOP("Typography", "Espaces qui manquent"),
     QT_TRANSLATE_NOOP("Typography", "Devant ; : ! ? et » et derrière «")},
    {"guillemets", QT_TRANSLATE_NOOP("Typography", "Guillemets droits"),
     QT_TRANSLATE_NOOP("Typography", "\"mot\" devient « mot », et “mot” entre guillemets")},
    {"apostrophes", QT_TRANSLATE_NOOP("Typography", "Apostrophes droites"),
     QT_TRANSLATE_NOOP("Typography", "l'eau devient l’eau")},
    {"suspension", QT_TRANSLATE_NOOP("Typography", "Points de suspension"),
     QT_TRANSLATE_NOOP("Typography", "Trois points deviennent un seul signe")},
    {"dialogue", QT_TRANSLATE_NOOP("Typography", "Tirets de dialogue"),
     QT_TRANSLATE_NOOP("Typography", "- Bonjour. devient — Bonjour.")},
    {"tirets", QT_TRANSLATE_NOOP("Typography", "Doubles tirets"),
     QT_TRANSLATE_NOOP("Typography", "-- devient –")},
    {"espaces", QT_TRANSLATE_NOOP("Typography", "Espaces en trop"),
     QT_TRANSLATE_NOOP("Typography", "Plusieurs de suite, ou en fin de ligne")},
    {"ligatures", QT_TRANSLATE_NOOP("Typography", "Ligatures"),
     QT_TRANSLATE_NOOP("Typography", "coeur devient cœur, ex aequo devient ex æquo")},
    {"capitales", QT_TRANSLATE_NOOP("Typography", "Capitales sans accent"),
     QT_TRANSLATE_NOOP("Typography", "En début de phrase : A l'aube devient À l'aube")},
    {"lignes-vides", QT_TRANSLATE_NOOP("Typography", "Lignes vides en trop"),
     QT_TRANSLATE_NOOP("Typography", "De plusieurs de suite il reste une")},
    {"renvois", QT_TRANSLATE_NOOP("Typography", "Renvois douteux"),
     QT_TRANSLATE_NOOP("Typography", "Corrigés comme le fait le menu de l'éditeur : cela peut "
                                     "changer où ils mènent")},
}};

const Kind &entryOf(TypographyKind kind)
{
    return Kinds.at(indexOf(kind));
}

QString translated(const char *text)
{
    return QCoreApplication::translate("Typography", text);
}
} // namespace

TypographyKinds safeTypographyKinds()
{
    return TypographyKinds().set().reset(indexOf(TypographyKind::Reference));
}

// The others wait for the end of a line, or are about lines.
TypographyKinds typedTypographyKinds()
{
    return safeTypographyKinds().reset(indexOf(TypographyKind::EmptyLines));
}

QString typographyKindName(TypographyKind kind)
{
    return QString::fromLatin1(entryOf(kind).name);
}

std::optional<TypographyKind> typographyKindNamed(const QString &name)
{
    for (std::size_t i = 0; i < Kinds.size(); ++i)
        if (name == QLatin1String(Kinds.at(i).name))
            return static_cast<TypographyKind>(i);
    return std::nullopt;
}

QString typographyKindNames(const TypographyKinds &kinds)
{
    QStringList names;
    for (std::size_t i = 0; i < Kinds.size(); ++i)
        if (kinds.test(i))
            names.append(QString::fromLatin1(Kinds.at(i).name));
    return names.join(u',');
}

TypographyKinds typographyKindsNamed(const QString &names)
{
    TypographyKinds kinds;
    const QStringList words = names.split(u',');
    for (const QString &word : words)
        if (const std::optional<TypographyKind> kind = typographyKindNamed(word))
            kinds.set(indexOf(*kind));
    return kinds;
}

QString typographyKindTitle(TypographyKind kind)
{
    return translated(entryOf(kind).title);
}

QString typographyKindPurpose(TypographyKind kind)
{
    return translated(entryOf(kind).purpose);
}

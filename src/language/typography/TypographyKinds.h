#pragma once

#include <QString>
#include <bitset>
#include <optional>

// What the typography of a text can lack. In the order in which it is listed.
enum class TypographyKind : quint8 {
    NoBreak,      // the space before a high sign or within guillemets may end a line
    MissingSpace, // there is none
    Quotes,       // straight quotation marks
    Apostrophe,   // straight ones
    Ellipsis,     // three full stops
    Dialogue,     // a hyphen opens a line that somebody says
    Dash,         // two hyphens
    Spaces,       // doubled, or at the end of a line
    Ligature,     // oe and ae in a word that has œ or æ
    Capital,      // without its accent at the start of a sentence
    EmptyLines,   // more than one
    Reference,    // a doubtful one, mended as the editor's menu mends it
};
constexpr int TypographyKindCount = 12;

// Some of them, by their values.
using TypographyKinds = std::bitset<TypographyKindCount>;

constexpr std::size_t indexOf(TypographyKind kind)
{
    return static_cast<std::size_t>(kind);
}

// All but what changes references, which an author has to want.
TypographyKinds safeTypographyKinds();

// Those that can be mended while one types.
TypographyKinds typedTypographyKinds();

// "insecables": as scripts and files call it. ASCII.
QString typographyKindName(TypographyKind kind);
std::optional<TypographyKind> typographyKindNamed(const QString &name);

// Their names with commas between, and those that such a text names; others are passed over.
QString typographyKindNames(const TypographyKinds &kinds);
TypographyKinds typographyKindsNamed(const QString &names);

// "Espaces insécables": in French, for a list, and what is done, for a tool tip.
QString typographyKindTitle(TypographyKind kind);
QString typographyKindPurpose(TypographyKind kind);

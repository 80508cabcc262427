#pragma once

#include <QChar>
#include <array>
#include <variant>

struct Variables;

// One of the options about typing: its name, and where its value is kept.
class TypingOption
{
public:
    using Place = std::variant<bool Variables::*, qint16 Variables::*>;

    constexpr TypingOption(const char *name, Place place) : m_name(name), m_place(place) {}

    const char *name() const { return m_name; }
    bool isOn(const Variables &variables) const;
    void set(Variables &variables, bool on) const;

private:
    const char *m_name;
    Place m_place;
};

// All of them, in the order in which they are offered.
const std::array<TypingOption, 9> &typingOptions();

// What becomes of a key that types a character.
struct TypedKey {
    QChar character;
    bool replacesPrevious = false; // the character takes the place of the one before it

    bool operator==(const TypedKey &) const = default;
};

// The typing aids: pairs of typed characters become the one that books are set with. previous is
// the character before the caret, or before the selection that is typed over. A paragraph break is
// a line feed; at the very start of the text it is null, and every key stays what it is.
TypedKey withTypingAids(const Variables &options, QChar previous, QChar key);

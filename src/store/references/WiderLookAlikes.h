#pragma once

#include "store/references/ReferenceLeaders.h"

#include <QString>
#include <QStringView>
#include <optional>

struct Variables;

// What looks like a reference when a whole book is checked, and is not marked while one writes:
// "à la section 12", "§ 12", "voir 12", a number of the adventure alone in brackets, "au 2345"; and
// with a phrase of the author's own all that is marked with a French one.
class WiderLookAlikes
{
public:
    // The adventure must outlive it.
    explicit WiderLookAlikes(const Variables &variables);

    // As unreadByContext(), for numbers of any size that this finds nothing for.
    std::optional<Unread> unread(const QString &before, QStringView digits,
                                 QStringView behind) const;

private:
    std::optional<Unread> beyondLast(const QString &before, QStringView digits,
                                     const QString &behind) const;
    bool isWritten(int n) const;

    const Variables &m_variables;
    ReferenceLeaders m_leaders;
};

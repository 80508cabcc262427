#include "editor/TypingAids.h"

#include "store/Variables.h"

#include <QStringView>

namespace
{
constexpr QChar NoBreakSpace(QChar::Nbsp);

// The order of the options' check boxes.
enum Option {
    NDash,
    MDash,
    Bullet,
    Ellipsis,
    FrenchQuotes,
    LigatureAE,
    LigatureOE,
    Nbsp,
};

// A key behind a certain character takes its place as a third one.
struct Rule {
    Option option;
    QChar previous;
    QChar key;
    QChar result;
};
constexpr Rule Rules[] = {
    {NDash, u'-', u'-', u'–'},        {MDash, u'–', u'-', u'—'},
    {Bullet, u'.', u'.', u'•'},       {Ellipsis, u'•', u'.', u'…'},
    {LigatureAE, u'a', u'e', u'æ'},   {LigatureAE, u'A', u'E', u'Æ'},
    {LigatureOE, u'o', u'e', u'œ'},   {LigatureOE, u'O', u'E', u'Œ'},
    {Nbsp, u' ', u' ', NoBreakSpace},
};

bool isOn(const Variables &options, Option option)
{
    return typingOptions().at(option).isOn(options);
}

bool opensQuotation(QChar previous)
{
    return QStringView(u" \n\t\u00a0").contains(previous);
}
} // namespace

bool TypingOption::isOn(const Variables &variables) const
{
    return std::visit([&](auto place) { return variables.*place != 0; }, m_place);
}

// The 16-bit ones are -1 when they are on, as the settings file has them.
void TypingOption::set(Variables &variables, bool on) const
{
    if (const auto *truth = std::get_if<bool Variables::*>(&m_place))
        variables.**truth = on;
    else
        variables.*std::get<qint16 Variables::*>(m_place) = on ? -1 : 0;
}

const std::array<TypingOption, 9> &typingOptions()
{
    static constexpr std::array<TypingOption, 9> options{{
        {"optNDash", &Variables::optNDash},
        {"optMDash", &Variables::optMDash},
        {"optBullet", &Variables::optBullet},
        {"optEllipsis", &Variables::optEllipsis},
        {"optFrenchQuotes", &Variables::optFrenchQuotes},
        {"optLigatureAE", &Variables::optLigatureAE},
        {"optLigatureOE", &Variables::optLigatureOE},
        {"optNbsp", &Variables::optNbsp},
        {"optCtrlECentres", &Variables::optCtrlECentres},
    }};
    return options;
}

TypedKey withTypingAids(const Variables &options, QChar previous, QChar key)
{
    if (previous.isNull())
        return {key};
    if (key == u'"' && isOn(options, FrenchQuotes))
        return {opensQuotation(previous) ? u'«' : u'»'};
    for (const Rule &rule : Rules) {
        if (rule.previous == previous && rule.key == key && isOn(options, rule.option))
            return {rule.result, true};
    }
    return {key};
}

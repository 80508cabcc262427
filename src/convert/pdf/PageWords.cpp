#include "convert/pdf/PageWords.h"

#include <QRegularExpression>
#include <functional>
#include <optional>
#include <vector>

namespace
{
// What a word of a setup means: how its value is read, and written.
struct Word {
    QString name;
    std::function<bool(PageSetup &, const QString &)> set;
    std::function<QString(const PageSetup &)> value;
};

std::optional<double> number(QString text)
{
    bool ok = false;
    const double value = text.replace(u',', u'.').toDouble(&ok);
    return ok ? std::optional(value) : std::nullopt;
}

QString text(double value)
{
    return QString::number(value, 'g', 8);
}

bool setPaper(PageSetup &setup, const QString &value)
{
    for (const Paper &paper : knownPapers()) {
        if (value.compare(QLatin1String(paper.name), Qt::CaseInsensitive) == 0) {
            setup.paper = paper.millimetres;
            return true;
        }
    }
    const auto width = number(value.section(u'x', 0, 0));
    const auto height = number(value.section(u'x', 1));
    if (width && height)
        setup.paper = {*width, *height};
    return width && height;
}

QString paperValue(const PageSetup &setup)
{
    for (const Paper &paper : knownPapers())
        if (setup.paper == paper.millimetres)
            return QLatin1String(paper.name);
    return text(setup.paper.width()) + u'x' + text(setup.paper.height());
}

Word numberWord(const QString &name, double PageSetup::*member)
{
    return {name,
            [member](PageSetup &setup, const QString &value) {
                const auto read = number(value);
                setup.*member = read.value_or(setup.*member);
                return read.has_value();
            },
            [member](const PageSetup &setup) { return text(setup.*member); }};
}

// A member that is one of some values, each with a name.
template <typename Value>
Word choiceWord(const QString &name, Value PageSetup::*member,
                const std::vector<std::pair<QString, Value>> &choices)
{
    return {name,
            [=](PageSetup &setup, const QString &text) {
                for (const auto &[word, value] : choices) {
                    if (word == text) {
                        setup.*member = value;
                        return true;
                    }
                }
                return false;
            },
            [=](const PageSetup &setup) {
                for (const auto &[word, value] : choices)
                    if (value == setup.*member)
                        return word;
                return QString();
            }};
}

Word yesWord(const QString &name, bool PageSetup::*member)
{
    return choiceWord<bool>(name, member,
                            {{QStringLiteral("oui"), true}, {QStringLiteral("non"), false}});
}

bool setSize(PageSetup &setup, const QString &value)
{
    const auto points = number(value);
    if (!points)
        return false;
    setup.leading *= *points / setup.points;
    setup.points = *points;
    return true;
}

struct StyleName {
    QString name;
    bool NumberStyle::*member;
};

const std::vector<StyleName> &styleNames()
{
    static const std::vector<StyleName> names{{QStringLiteral("gras"), &NumberStyle::bold},
                                              {QStringLiteral("italique"), &NumberStyle::italic},
                                              {QStringLiteral("souligne"), &NumberStyle::underline},
                                              {QStringLiteral("centre"), &NumberStyle::centred}};
    return names;
}

bool setStyle(PageSetup &setup, const QString &value)
{
    QStringList wanted = value.split(u',');
    wanted.removeAll(QStringLiteral("rien"));
    for (const StyleName &style : styleNames())
        setup.number.*style.member = wanted.removeAll(style.name) > 0;
    return wanted.isEmpty();
}

QString styleValue(const PageSetup &setup)
{
    QStringList names;
    for (const StyleName &style : styleNames())
        if (setup.number.*style.member)
            names.append(style.name);
    return names.isEmpty() ? QStringLiteral("rien") : names.join(u',');
}

bool setFont(QString &font, const QString &value)
{
    font = value;
    return true;
}

std::vector<Word> lengthWords()
{
    return {{QStringLiteral("papier"), &setPaper, &paperValue},
            numberWord(QStringLiteral("interieur"), &PageSetup::inside),
            numberWord(QStringLiteral("exterieur"), &PageSetup::outside),
            numberWord(QStringLiteral("tete"), &PageSetup::top),
            numberWord(QStringLiteral("pied"), &PageSetup::foot),
            yesWord(QStringLiteral("recto-verso"), &PageSetup::twoSided)};
}

std::vector<Word> typeWords()
{
    return {{QStringLiteral("police"),
             [](PageSetup &setup, const QString &value) { return setFont(setup.font, value); },
             [](const PageSetup &setup) { return setup.font; }},
            {QStringLiteral("taille"), &setSize,
             [](const PageSetup &setup) { return text(setup.points); }},
            numberWord(QStringLiteral("interligne"), &PageSetup::leading),
            yesWord(QStringLiteral("justifie"), &PageSetup::justified),
            yesWord(QStringLiteral("cesures"), &PageSetup::hyphenated),
            yesWord(QStringLiteral("noir"), &PageSetup::black),
            {QStringLiteral("numero"), &setStyle, &styleValue},
            {QStringLiteral("numero-police"),
             [](PageSetup &setup, const QString &value) {
                 return setFont(setup.number.fontName, value);
             },
             [](const PageSetup &setup) { return setup.number.fontName; }},
            {QStringLiteral("numero-taille"),
             [](PageSetup &setup, const QString &value) {
                 const auto read = number(value);
                 setup.number.points = read.value_or(setup.number.points);
                 return read.has_value();
             },
             [](const PageSetup &setup) { return text(setup.number.points); }}};
}

std::vector<Word> contentWords()
{
    using Setup = PageSetup;
    return {choiceWord<Setup::References>(QStringLiteral("renvois"), &Setup::references,
                                          {{QStringLiteral("tels"), Setup::References::AsWritten},
                                           {QStringLiteral("gras"), Setup::References::Bold},
                                           {QStringLiteral("fleche"), Setup::References::Arrow}}),
            choiceWord<Setup::Head>(QStringLiteral("titre-courant"), &Setup::head,
                                    {{QStringLiteral("rien"), Setup::Head::Nothing},
                                     {QStringLiteral("numeros"), Setup::Head::Numbers},
                                     {QStringLiteral("titre"), Setup::Head::Title}}),
            yesWord(QStringLiteral("numeros-de-page"), &Setup::pageNumbers),
            choiceWord<Setup::Flow>(QStringLiteral("un-par-page"), &Setup::flow,
                                    {{QStringLiteral("oui"), Setup::Flow::PageEach},
                                     {QStringLiteral("non"), Setup::Flow::OneAfterAnother}})};
}

std::vector<Word> allWords()
{
    std::vector<Word> words;
    for (const auto &group : {lengthWords(), typeWords(), contentWords()})
        words.insert(words.end(), group.begin(), group.end());
    return words;
}

bool setWord(PageSetup &setup, const QString &word)
{
    if (!word.contains(u'='))
        return false;
    for (const Word &one : allWords())
        if (one.name == word.section(u'=', 0, 0))
            return one.set(setup, word.section(u'=', 1));
    return false;
}
} // namespace

QString setPageWords(PageSetup &setup, const QStringList &words)
{
    PageSetup changed = setup;
    const QStringList leading = words.filter(QRegularExpression(QStringLiteral("^interligne=")));
    for (const QString &word : words + leading) // which the size has changed meanwhile
        if (!setWord(changed, word))
            return word;
    setup = changed;
    return {};
}

QStringList pageWords(const PageSetup &setup)
{
    QStringList words;
    for (const Word &word : allWords())
        words.append(word.name + u'=' + word.value(setup));
    return words;
}

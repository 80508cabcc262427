#include "convert/pdf/PageSetup.h"

#include "platform/Translations.h"
#include "store/Variables.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <cmath>

namespace
{
constexpr double LeastPaper = 50;
constexpr double MostPaper = 500;
constexpr double LeastText = 25; // of paper, in both directions
constexpr double LeastPoints = 4;
constexpr double MostPoints = 72;
constexpr double FreeBelowNumber = 0.35; // of a line
constexpr double LinesBelowNumber = 2;
constexpr double Inch = 25.4;
constexpr double MillimetresPerPoint = Inch / 72;

QString shown(double value)
{
    return localeOfTexts().toString(value, 'g', 4);
}

bool isWithin(double value, double least, double most)
{
    return std::isfinite(value) && value >= least && value <= most;
}

// Each gives what is wrong with one side of a setup, or nothing.
class SetupFault
{
    Q_DECLARE_TR_FUNCTIONS(PageSetup)

public:
    static QString paper(const PageSetup &setup)
    {
        if (isWithin(setup.paper.width(), LeastPaper, MostPaper) &&
            isWithin(setup.paper.height(), LeastPaper, MostPaper))
            return {};
        return tr("Le papier doit avoir de %1 à %2 mm de côté.")
            .arg(shown(LeastPaper), shown(MostPaper));
    }

    static QString margin(const PageSetup &setup)
    {
        for (const double margin : {setup.inside, setup.outside, setup.top, setup.foot})
            if (!isWithin(margin, 0, MostPaper))
                return tr("Les marges doivent avoir de 0 à %1 mm.").arg(shown(MostPaper));
        if (setup.textWidth() < LeastText)
            return tr("Les marges intérieure et extérieure ne laissent pas %1 mm au texte sur un "
                      "papier large de %2 mm.")
                .arg(shown(LeastText), shown(setup.paper.width()));
        if (setup.textHeight() < LeastText)
            return tr("Les marges de tête et de pied ne laissent pas %1 mm au texte sur un papier "
                      "haut de %2 mm.")
                .arg(shown(LeastText), shown(setup.paper.height()));
        return {};
    }

    static QString type(const PageSetup &setup)
    {
        if (setup.font.trimmed().isEmpty())
            return tr("Choisissez une police.");
        if (!isWithin(setup.points, LeastPoints, MostPoints) ||
            !isWithin(setup.number.points, LeastPoints, MostPoints))
            return tr("Les caractères doivent avoir de %1 à %2 points.")
                .arg(shown(LeastPoints), shown(MostPoints));
        if (!isWithin(setup.leading, 0.8 * setup.points, 3 * setup.points))
            return tr("L'interligne doit avoir de %1 à %2 points pour des caractères de %3 points.")
                .arg(shown(0.8 * setup.points), shown(3 * setup.points), shown(setup.points));
        return {};
    }

    // Else a number would stand alone.
    static QString lines(const PageSetup &setup)
    {
        const double lines = std::floor(setup.textHeight() / MillimetresPerPoint / setup.leading);
        if (lines >= std::ceil(numberLines(setup) + LinesBelowNumber))
            return {};
        return tr("Les marges et l'interligne ne laissent pas la hauteur d'un numéro et de deux "
                  "lignes.");
    }

    // What stands in the margins is two lines away from the text, and not at the very edge.
    static QString inTheMargins(const PageSetup &setup)
    {
        const double needed = std::ceil(2 * setup.leading * MillimetresPerPoint + 2);
        if (setup.head != PageSetup::Head::Nothing && setup.top < needed)
            return tr("Le titre courant demande une marge de tête de %1 mm au moins.")
                .arg(shown(needed));
        if (setup.pageNumbers && setup.foot < needed)
            return tr("Les numéros de page demandent une marge de pied de %1 mm au moins.")
                .arg(shown(needed));
        return {};
    }
};
} // namespace

double numberLines(const PageSetup &setup)
{
    return std::max(1.0, setup.number.points / setup.points) + FreeBelowNumber;
}

const std::array<Paper, 4> &knownPapers()
{
    static const std::array<Paper, 4> all{{{"A4", {210, 297}},
                                           {"A5", {148, 210}},
                                           {"6x9", {6 * Inch, 9 * Inch}},
                                           {"14x21", {140, 210}}}};
    return all;
}

PageSetup defaultPageSetup(const Variables &variables)
{
    PageSetup setup;
    setup.font = variables.defaultFontName;
    return setup;
}

QString pageSetupFault(const PageSetup &setup)
{
    for (const auto &faultOf : {&SetupFault::paper, &SetupFault::margin, &SetupFault::type,
                                &SetupFault::lines, &SetupFault::inTheMargins})
        if (const QString fault = faultOf(setup); !fault.isEmpty())
            return fault;
    return {};
}

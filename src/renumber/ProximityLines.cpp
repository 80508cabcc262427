#include "renumber/ProximityLines.h"

#include "platform/Ascii.h"
#include "platform/Prompts.h"
#include "store/LenientNumbers.h"
#include "store/ReferenceIndex.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <set>
#include <utility>
#include <vector>

namespace
{
// The references of one paragraph that have been passed, found by their numbers: looking through
// all of them for each reference would take minutes in a text of nothing but references.
class PassedReferences
{
public:
    // The numbers within proximity of number, in the order of the text.
    std::vector<int> near(int number, double proximity) const
    {
        std::vector<std::pair<int, int>> found; // place in the text, number
        const double lowest = std::ceil(number - proximity);
        auto passed =
            lowest > 0 ? m_passed.lower_bound({static_cast<int>(lowest), 0}) : m_passed.begin();
        for (; passed != m_passed.end() && passed->first <= number + proximity; ++passed)
            found.emplace_back(passed->second, passed->first);
        std::sort(found.begin(), found.end());
        std::vector<int> numbers;
        for (const auto &[place, passedNumber] : found)
            numbers.push_back(passedNumber);
        return numbers;
    }

    void pass(int number) { m_passed.emplace(number, static_cast<int>(m_passed.size())); }

private:
    std::set<std::pair<int, int>> m_passed; // number, place in the text
};

class Scan
{
public:
    explicit Scan(double proximity) : m_proximity(proximity) {}

    void scan(int paragraph, const QString &indexEntry)
    {
        PassedReferences passed;
        for (const int number : referredParagraphs(indexEntry)) {
            if (std::abs(number - paragraph) <= m_proximity)
                add(m_leadsTo.arg(paragraph).arg(number));
            for (const int other : passed.near(number, m_proximity))
                add(m_andTo.arg(paragraph).arg(number).arg(other));
            passed.pass(number);
            if (!m_found.whole)
                return;
        }
    }

    ProximityLines &found() { return m_found; }

private:
    void add(const QString &line)
    {
        m_found.whole = m_found.whole && m_found.lines.size() < MostProximityLines;
        if (m_found.whole)
            m_found.lines.append(line);
    }

    double m_proximity;
    ProximityLines m_found;
    const QString m_leadsTo = QCoreApplication::translate("ProximityLines", "%1 mène au %2");
    const QString m_andTo = QCoreApplication::translate("ProximityLines", "%1 mène au %2 et au %3");
};
} // namespace

std::optional<ProximityLines> ProximityScan(const Variables &variables, double proximity,
                                            Prompts &prompts)
{
    if (proximity == 0) {
        prompts.message(QCoreApplication::translate(
                            "ProximityLines", "Proximity Scan avec 0 ou moins ne fait aucun sens."),
                        QStringLiteral("Niouf"), Prompts::Buttons::Ok);
        return std::nullopt;
    }
    Scan scan(proximity);
    for (int n = variables.LowestWritten; n <= variables.HighestWritten && scan.found().whole; ++n)
        if (variables.Written.at(n) == 1)
            scan.scan(n, variables.refIndex.at(n));
    if (scan.found().lines.isEmpty())
        scan.found().lines.append(
            QCoreApplication::translate("ProximityLines", "Aucun Problème !"));
    return scan.found();
}

std::optional<int> proximityParagraph(const QString &line)
{
    if (line.isEmpty() || !isAsciiDigit(line.front()))
        return std::nullopt;
    return roundHalfEven(lenientNumber(line));
}

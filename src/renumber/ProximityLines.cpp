#include "renumber/ProximityLines.h"

#include "platform/Ascii.h"
#include "platform/Prompts.h"
#include "store/LenientNumbers.h"
#include "store/ReferenceIndex.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace
{
// The references of one paragraph that have been passed, found by their numbers: looking through
// all of them for each reference would take minutes in texts of nothing but references.
class PassedReferences
{
public:
    // The numbers within proximity of number, in the order of the text.
    std::vector<int> near(int number, double proximity) const
    {
        const int lowest = static_cast<int>(std::ceil(std::max(number - proximity, 0.0)));
        std::vector<std::pair<int, int>> found; // place, number
        for (int n = lowest; n < m_places.count() && n <= number + proximity; ++n)
            for (const int place : m_places.at(n))
                found.emplace_back(place, n);
        std::sort(found.begin(), found.end());
        std::vector<int> numbers;
        numbers.reserve(found.size());
        for (const auto &[place, passed] : found)
            numbers.push_back(passed);
        return numbers;
    }

    void pass(int number) { m_places.at(number).push_back(m_count++); }

    // Before another paragraph; numbers are those that were passed.
    void forget(const QList<int> &numbers)
    {
        for (const int number : numbers)
            m_places.at(number).clear();
    }

private:
    ParagraphArray<std::vector<int>, 2001> m_places; // in the text, of each number
    int m_count = 0;
};

class Scan
{
public:
    explicit Scan(double proximity) : m_proximity(proximity) {}

    void scan(int paragraph, const QString &indexEntry)
    {
        const QList<int> numbers = referredParagraphs(indexEntry);
        for (const int number : numbers) {
            if (std::abs(number - paragraph) <= m_proximity)
                add(m_leadsTo.arg(paragraph).arg(number));
            for (const int other : m_passed.near(number, m_proximity))
                add(m_andTo.arg(paragraph).arg(number).arg(other));
            m_passed.pass(number);
            if (isCut())
                return;
        }
        m_passed.forget(numbers);
    }

    ProximityLines &found() { return m_found; }
    bool isCut() const { return !m_found.cut.isEmpty(); }

private:
    void add(const QString &line)
    {
        if (m_found.lines.size() < MostProximityLines)
            m_found.lines.append(line);
        else
            m_found.cut =
                QCoreApplication::translate("ProximityLines", "La liste s'arrête après %1 lignes.")
                    .arg(MostProximityLines);
    }

    double m_proximity;
    PassedReferences m_passed;
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
                        QCoreApplication::translate("ProximityLines", "Niouf"),
                        Prompts::Buttons::Ok);
        return std::nullopt;
    }
    Scan scan(proximity);
    for (int n = variables.LowestWritten; n <= variables.HighestWritten && !scan.isCut(); ++n)
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

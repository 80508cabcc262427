#include "check/GrammarTexts.h"

#include "check/TextSentences.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>
#include <algorithm>
#include <utility>

namespace
{
constexpr qsizetype LongestMessage = 400;
constexpr qsizetype LongestSuggestion = 60;
constexpr qsizetype MostSuggestions = 3;

// What other programs take for the end of a line, or for nothing, counts one character here too.
QString onOneLine(QString line)
{
    for (QChar &c : line)
        if (c < u' ' || c == u'\u0085' || c == u'\u2028' || c == u'\u2029')
            c = u' ';
    return line;
}

bool isTypography(const QString &type)
{
    static const QStringList types{QStringLiteral("typo"), QStringLiteral("apos"),
                                   QStringLiteral("esp"),  QStringLiteral("nbsp"),
                                   QStringLiteral("unit"), QStringLiteral("num"),
                                   QStringLiteral("tab"),  QStringLiteral("liga")};
    return types.contains(type);
}

// Where so many code points end in a line; -1 beyond it.
qsizetype position(const QString &line, int codePoints)
{
    qsizetype at = 0;
    for (; codePoints > 0 && at < line.size(); --codePoints)
        at += line.at(at).isHighSurrogate() && at + 1 < line.size() &&
                      line.at(at + 1).isLowSurrogate()
                  ? 2
                  : 1;
    return codePoints == 0 ? at : -1;
}

QString messageOf(const QJsonObject &error)
{
    const QString said =
        error[QLatin1String("sMessage")].toString().simplified().left(LongestMessage);
    QStringList suggestions;
    const QJsonArray all = error[QLatin1String("aSuggestions")].toArray();
    for (const auto &one : all)
        if (const QString text = one.toString().simplified(); !text.isEmpty() &&
                                                              text.size() <= LongestSuggestion &&
                                                              suggestions.size() < MostSuggestions)
            suggestions.append(QCoreApplication::translate("Finding", "« %1 »").arg(text));
    if (suggestions.isEmpty() || said.isEmpty())
        return said;
    return QCoreApplication::translate("Finding", "%1 Peut-être %2.")
        .arg(said, suggestions.join(QStringLiteral(", ")));
}
} // namespace

GrammarTexts::GrammarTexts(const PlainTexts &texts, const QString &phrase) : m_phrase(phrase)
{
    for (int n = 1; n < texts.texts.count(); ++n) {
        qsizetype start = 0;
        const QStringList lines = texts.texts.at(n).split(QStringLiteral("\r\n"));
        for (const QString &line : lines) {
            if (!line.trimmed().isEmpty())
                m_lines.append({n, start, onOneLine(line)});
            start += line.size() + 2;
        }
    }
}

QByteArray GrammarTexts::file() const
{
    QByteArray file;
    for (const Line &line : m_lines)
        file += line.text.toUtf8() + '\n';
    return file;
}

std::optional<GrammarTexts::Answer> GrammarTexts::answer(const QByteArray &output) const
{
    QByteArray object = output.trimmed();
    if (object.endsWith(','))
        object.chop(1);
    const QJsonObject said = QJsonDocument::fromJson(object).object();
    const int number = said[QLatin1String("iParagraph")].toInt();
    if (number < 1 || number > lineCount())
        return std::nullopt;
    Answer answer{number, {}};
    const QJsonArray errors = said[QLatin1String("lGrammarErrors")].toArray();
    for (const auto &error : errors)
        if (const auto found = finding(m_lines.at(number - 1), error.toObject()))
            answer.findings.append(*found);
    return answer;
}

std::optional<Finding> GrammarTexts::finding(const Line &line, const QJsonObject &error) const
{
    const qsizetype start = position(line.text, error[QLatin1String("nStart")].toInt(-1));
    const qsizetype end = position(line.text, error[QLatin1String("nEnd")].toInt(-1));
    const QString message = messageOf(error);
    if (start < 0 || end <= start || message.isEmpty() ||
        isTypography(error[QLatin1String("sType")].toString()))
        return std::nullopt;
    const TextPart sentence = sentenceAround(line.text, {start, end - start});
    Finding finding;
    finding.kind = FindingKind::Grammar;
    finding.number = line.number;
    finding.position = line.position + start;
    finding.length = end - start;
    finding.text = line.text.mid(start, end - start).simplified();
    finding.around = line.text.mid(sentence.position, sentence.length);
    finding.placeInAround = std::max<qsizetype>(start - sentence.position, 0);
    finding.phrase = m_phrase;
    finding.message = message;
    return finding;
}

QList<Finding> stillThere(const QList<Finding> &findings, const PlainTexts &texts)
{
    QList<Finding> there;
    int number = -1; // those of a paragraph follow one another
    QString text;
    for (Finding finding : findings) {
        if (std::exchange(number, finding.number) != finding.number)
            text = onOneLine(texts.texts.at(finding.number));
        const qsizetype before = finding.position - finding.placeInAround;
        const bool same =
            QStringView(text).mid(std::max<qsizetype>(before, 0)).startsWith(finding.around);
        const qsizetype sentence = same ? before : text.indexOf(finding.around);
        if (sentence < 0 || finding.around.isEmpty())
            continue;
        finding.position = sentence + finding.placeInAround;
        there.append(finding);
    }
    return there;
}

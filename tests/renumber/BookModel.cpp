#include "BookModel.h"

#include "renumber/RenumberParagraphs.h"
#include "richtext/RtfPlainText.h"

#include <QRegularExpression>
#include <algorithm>

namespace
{
const QRegularExpression Reference(QStringLiteral(" au (\\d+)"));

QString listOf(const QString &text)
{
    QString list;
    for (auto match = Reference.globalMatch(text); match.hasNext();)
        list += fourDigits(match.next().captured(1).toInt()) + u'/';
    return list;
}

QString withNumbers(const QString &text, const QList<int> &numbers)
{
    QString result;
    qsizetype behind = 0;
    for (auto matches = Reference.globalMatch(text); matches.hasNext();) {
        const auto match = matches.next();
        result += text.mid(behind, match.capturedStart(1) - behind) +
                  QString::number(numbers.at(match.captured(1).toInt()));
        behind = match.capturedEnd(1);
    }
    return result + text.mid(behind);
}

bool wasEdited(const BookModel::Paragraph &now, const BookModel::Paragraph &left)
{
    return !now.sameText(left) || now.fixed != left.fixed;
}

RenumberMap mapOf(const QList<int> &numbers)
{
    RenumberMap map;
    for (int n = 0; n < numbers.size(); ++n)
        map.set(n, numbers.at(n));
    return map;
}

BookModel withOldNumbers(const BookModel &now, const CommandModel &command)
{
    QList<int> back(command.numbers.size());
    for (int n = 0; n < back.size(); ++n)
        back[command.numbers.at(n)] = n;
    BookModel result = now;
    TextRenumbering engine(" au ", mapOf(back)); // for the bytes alone
    for (int n = 0; n < back.size(); ++n) {
        const BookModel::Paragraph &paragraph = now.paragraphs.at(n);
        const BookModel::Paragraph &left = command.after.paragraphs.at(n);
        const int then = back.at(n);
        BookModel::Paragraph &old = result.paragraphs[then];
        old = paragraph;
        if (!paragraph.text.isEmpty() && paragraph.sameText(left)) {
            old = command.before.paragraphs.at(then);
        } else if (!paragraph.text.isEmpty()) {
            old.text = withNumbers(paragraph.text, back);
            old.references = listOf(old.text);
            if (const auto text = engine.of(n, paragraph.references, [&] { return paragraph.rtf; }))
                old.rtf = text->rtf;
        }
        old.fixed = paragraph.fixed == left.fixed ? command.before.paragraphs.at(then).fixed
                                                  : paragraph.fixed;
    }
    if (!now.paragraphs.at(now.current).text.isEmpty())
        result.current = back.at(now.current);
    return result;
}
} // namespace

BookModel BookModel::of(const Variables &variables)
{
    BookModel book;
    for (int n = 0; n <= Variables::LastParagraph; ++n) {
        Paragraph paragraph;
        paragraph.fixed = variables.Unmixable.at(n) == 1;
        paragraph.references = variables.refIndex.at(n);
        if (variables.Written.at(n) == 1) {
            paragraph.rtf = GetParagraphRtf(variables, n);
            paragraph.text = rtfToPlainText(paragraph.rtf);
        }
        book.paragraphs.append(paragraph);
    }
    book.lowest = variables.LowestWritten;
    book.highest = variables.HighestWritten;
    book.current = variables.CurrentParagraph;
    return book;
}

BookModel takenBack(const BookModel &now, const CommandModel &command, bool asBefore,
                    QList<int> &edited)
{
    BookModel result = now;
    if (!command.numbers.isEmpty())
        result = withOldNumbers(now, command);
    for (int n = 0; command.numbers.isEmpty() && n < now.paragraphs.size(); ++n) {
        if (command.before.paragraphs.at(n) == command.after.paragraphs.at(n))
            continue;
        const bool stays = wasEdited(now.paragraphs.at(n), command.after.paragraphs.at(n));
        if (stays)
            edited.append(n);
        if (!stays || asBefore)
            result.paragraphs[n] = command.before.paragraphs.at(n);
    }
    if (now.lowest == command.after.lowest && now.highest == command.after.highest) {
        result.lowest = command.before.lowest;
        result.highest = command.before.highest;
        return result;
    }
    for (int n = 0; n < result.paragraphs.size(); ++n) {
        if (result.paragraphs.at(n).text.isEmpty())
            continue;
        result.lowest = std::min(result.lowest, n);
        result.highest = std::max(result.highest, n);
    }
    return result;
}

QString difference(const BookModel &book, const BookModel &foretold)
{
    if (book.lowest != foretold.lowest || book.highest != foretold.highest ||
        book.current != foretold.current)
        return QStringLiteral("range %1 %2, current %3 instead of %4 %5, %6")
            .arg(book.lowest)
            .arg(book.highest)
            .arg(book.current)
            .arg(foretold.lowest)
            .arg(foretold.highest)
            .arg(foretold.current);
    for (int n = 0; n < book.paragraphs.size(); ++n) {
        const BookModel::Paragraph &paragraph = book.paragraphs.at(n);
        const BookModel::Paragraph &told = foretold.paragraphs.at(n);
        if (paragraph != told)
            return QStringLiteral("%1: %2 (%3) %4 %5 instead of %6 (%7) %8 %9")
                .arg(QString::number(n), paragraph.text, paragraph.references,
                     QString::number(paragraph.fixed ? 1 : 0), QString::fromLatin1(paragraph.rtf),
                     told.text, told.references, QString::number(told.fixed ? 1 : 0),
                     QString::fromLatin1(told.rtf));
    }
    return {};
}

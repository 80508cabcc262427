#include "convert/page/BookPage.h"

#include "convert/book/BookCover.h"
#include "convert/book/BookHtml.h"
#include "convert/book/BookResources.h"
#include "convert/book/BookWords.h"
#include "convert/book/XmlText.h"
#include "convert/page/PageLabels.h"
#include "richtext/ReadableColour.h"

#include <QColor>
#include <QCryptographicHash>
#include <algorithm>

namespace
{
using Values = QHash<QString, QString>;

constexpr QRgb DarkPage = 0xFF1B1B1D; // as in the style sheet

// Puts values in the places of their names, "{{title}}". What is put in is not looked at again,
// whatever an author has written.
QString filled(const QString &pattern, const Values &values)
{
    QString text;
    qsizetype at = 0;
    for (qsizetype open = pattern.indexOf(u"{{"); open >= 0; open = pattern.indexOf(u"{{", at)) {
        const qsizetype close = pattern.indexOf(u"}}", open);
        text += QStringView(pattern).mid(at, open - at);
        text += values.value(pattern.mid(open + 2, close - open - 2));
        at = close + 2;
    }
    return text + pattern.mid(at);
}

QString resource(const char *name)
{
    return QString::fromUtf8(bookResource(QString::fromLatin1(name)));
}

QString hashOf(const QString &script)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(script.toUtf8(), QCryptographicHash::Sha256).toBase64());
}

QString anchor(int number)
{
    return QStringLiteral("#p%1").arg(number);
}

bool leadsOn(const BookParagraph &paragraph)
{
    const auto isLinked = [](const BookRun &run) { return run.linked; };
    return std::any_of(paragraph.blocks.begin(), paragraph.blocks.end(), [&](const BookBlock &b) {
        return std::any_of(b.runs.begin(), b.runs.end(), isLinked);
    });
}

QString element(const QString &kind, const QString &inside)
{
    return inside.isEmpty() ? QString()
                            : QStringLiteral("<div class=\"%1\">\n%2</div>\n").arg(kind, inside);
}

QString textElement(const QString &kind, const QString &text)
{
    return text.isEmpty() ? QString() : element(kind, plainHtml(text));
}

class PageWriter
{
public:
    PageWriter(const Book &book, const BookFacts &facts, const PageChoice &choice)
        : m_book(book), m_facts(facts), m_choice(choice), m_labels(pageLabels(facts.language)),
          m_html(book.halfPoints, &anchor)
    {
    }

    QByteArray write()
    {
        Values values = m_labels;
        for (QString &word : values)
            word = xmlText(word);
        const auto set = [&values](const char *name, const QString &value) {
            values.insert(QString::fromLatin1(name), value);
        };
        set("language", m_facts.language);
        set("title", xmlText(m_facts.title));
        set("author-meta", authorMeta());
        set("identity", bookIdentity(m_facts));
        set("front", front());
        set("paragraphs", paragraphs());
        set("after", after());
        set("style", resource("page.css") + colours());
        const QString script = resource("page.js");
        set("script", script);
        set("hash", hashOf(script));
        if (m_choice.sheet) {
            set("sheet-button", filled(resource("page-sheet-button.html"), values));
            set("sheet-panel", filled(resource("page-sheet.html"), values));
        }
        return filled(resource("page.html"), values).toUtf8();
    }

private:
    QString authorMeta() const
    {
        return m_facts.author.isEmpty() ? QString()
                                        : QStringLiteral("<meta name=\"author\" content=\"%1\">\n")
                                              .arg(xmlText(m_facts.author));
    }

    QString front() const
    {
        QString html =
            QStringLiteral("<section id=\"start\">\n") + element(QStringLiteral("cover"), cover());
        html += QStringLiteral("<h1 tabindex=\"-1\">%1</h1>\n").arg(xmlText(m_facts.title));
        html += textElement(QStringLiteral("author"), m_facts.author);
        html += textElement(QStringLiteral("dedication"), m_facts.dedication);
        html += textElement(QStringLiteral("before"), m_facts.before);
        return html + element(QStringLiteral("begin"), begin()) + QStringLiteral("</section>\n");
    }

    QString cover() const
    {
        const CoverKind kind = coverKind(m_facts.cover);
        if (kind == CoverKind::None)
            return {};
        return QStringLiteral("<img alt=\"%1\" src=\"data:image/%2;base64,%3\">\n")
            .arg(xmlText(BookWords::of(m_facts.language).cover),
                 kind == CoverKind::Png ? QStringLiteral("png") : QStringLiteral("jpeg"),
                 QString::fromLatin1(m_facts.cover.toBase64()));
    }

    QString begin() const
    {
        const QList<int> starts = startsInBook();
        QString html;
        for (const int n : starts) {
            const QString text = starts.size() == 1
                                     ? label("w-begin")
                                     : label("w-begin-at").replace(u'%', QString::number(n));
            html += QStringLiteral("<p><a href=\"%1\">%2</a></p>\n").arg(anchor(n), xmlText(text));
        }
        return html;
    }

    QList<int> startsInBook() const
    {
        QList<int> starts;
        for (const BookParagraph &paragraph : m_book.paragraphs)
            if (m_choice.starts.contains(paragraph.number))
                starts.append(paragraph.number);
        return starts.isEmpty() ? QList<int>{m_book.paragraphs.first().number} : starts;
    }

    QString paragraphs()
    {
        QString html;
        for (const BookParagraph &paragraph : m_book.paragraphs) {
            const QString end = leadsOn(paragraph) ? QString() : QStringLiteral(" class=\"end\"");
            html += QStringLiteral("<section id=\"p%1\"%2>\n<h2 tabindex=\"-1\">%1</h2>\n")
                        .arg(QString::number(paragraph.number), end);
            html += m_html.blocks(paragraph) + QStringLiteral("</section>\n");
        }
        return html;
    }

    // Shown below the paragraphs that lead nowhere.
    QString after() const
    {
        return m_facts.after.isEmpty()
                   ? QString()
                   : QStringLiteral("<section id=\"after\" class=\"after\">\n%1</section>\n")
                         .arg(plainHtml(m_facts.after));
    }

    // On a dark page lighter ones of the same hue.
    QString colours() const
    {
        const auto asChosen = [](QRgb colour) { return QColor(colour); };
        const auto onDark = [](QRgb colour) {
            return readableColour(QColor(colour), QColor(DarkPage));
        };
        if (m_html.colours().empty())
            return {};
        return m_html.colourRules(asChosen) +
               QStringLiteral("@media screen and (prefers-color-scheme: dark) {\n") +
               m_html.colourRules(onDark, QStringLiteral(":root:not([data-theme=light]) ")) +
               QStringLiteral("}\n@media screen {\n") +
               m_html.colourRules(onDark, QStringLiteral(":root[data-theme=dark] ")) +
               QStringLiteral("}\n");
    }

    QString label(const char *name) const { return m_labels.value(QString::fromLatin1(name)); }

    const Book &m_book;
    const BookFacts &m_facts;
    const PageChoice &m_choice;
    const Values m_labels;
    BookHtml m_html;
};
} // namespace

QByteArray pageOf(const Book &book, const BookFacts &facts, const PageChoice &choice)
{
    return PageWriter(book, facts, choice).write();
}

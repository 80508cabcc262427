#include "convert/epub/EpubPages.h"

#include "convert/book/BookCover.h"
#include "convert/book/BookResources.h"
#include "convert/book/XmlText.h"
#include "store/Variables.h"

#include <QColor>

namespace
{
int hundredOf(int number)
{
    return (number - 1) / 100;
}

QString link(const QString &address, const QString &text, const QString &attributes = {})
{
    return QStringLiteral("<li><a%1 href=\"%2\">%3</a></li>\n")
        .arg(attributes, address, xmlText(text));
}

QString list(const QString &attributes, const QString &title, const QString &links)
{
    return QStringLiteral("<nav %1>\n<h2>%2</h2>\n<ol>\n%3</ol>\n</nav>\n")
        .arg(attributes, xmlText(title), links);
}
} // namespace

EpubPages::EpubPages(const Book &book, const BookFacts &facts, Files files,
                     const Progress &progress)
    : m_book(book), m_facts(facts), m_files(files), m_words(BookWords::of(facts.language)),
      m_html(book.halfPoints, [this](int number) { return address(number); })
{
    appendCover();
    appendTitle();
    appendText(QStringLiteral("dedication.xhtml"), m_words.dedication, QStringLiteral("dedication"),
               facts.dedication);
    appendText(QStringLiteral("before.xhtml"), m_words.before, QStringLiteral("preface"),
               facts.before);
    appendParagraphs(progress);
    appendText(QStringLiteral("after.xhtml"), m_words.after, QStringLiteral("afterword"),
               facts.after);
}

QByteArray EpubPages::navigation() const
{
    return page(m_facts.title, {}, contents() + numbers() + landmarks());
}

QByteArray EpubPages::styleSheet() const
{
    return bookResource(QStringLiteral("epub.css")) +
           m_html.colourRules([](QRgb colour) { return QColor(colour); }).toLatin1();
}

QString EpubPages::coverName() const
{
    const CoverKind kind = coverKind(m_facts.cover);
    if (kind == CoverKind::None)
        return {};
    return kind == CoverKind::Png ? QStringLiteral("cover.png") : QStringLiteral("cover.jpg");
}

void EpubPages::appendPage(EpubPage::Kind kind, const QString &name, const QString &title,
                           const QString &type, const QString &body)
{
    const QString attributes = QStringLiteral(" epub:type=\"%1\"").arg(type);
    m_pages.append({name, title, kind, page(title, attributes, body)});
}

void EpubPages::appendCover()
{
    if (!coverName().isEmpty())
        appendPage(EpubPage::Kind::Front, QStringLiteral("cover.xhtml"), m_words.cover,
                   QStringLiteral("cover"),
                   QStringLiteral("<div class=\"cover\"><img src=\"%1\" alt=\"%2\"/></div>\n")
                       .arg(coverName(), xmlText(m_words.cover)));
}

void EpubPages::appendTitle()
{
    QString body = QStringLiteral("<h1>%1</h1>\n").arg(xmlText(m_facts.title));
    if (!m_facts.author.isEmpty())
        body += QStringLiteral("<p class=\"author\">%1</p>\n").arg(xmlText(m_facts.author));
    appendPage(EpubPage::Kind::Front, QStringLiteral("title.xhtml"), m_facts.title,
               QStringLiteral("titlepage"), body);
}

void EpubPages::appendText(const QString &name, const QString &title, const QString &type,
                           const QString &text)
{
    if (text.isEmpty())
        return;
    appendPage(EpubPage::Kind::Text, name, title, type,
               QStringLiteral("<section class=\"%1\">\n%2</section>\n").arg(type, plainHtml(text)));
}

void EpubPages::appendParagraphs(const Progress &progress)
{
    const QList<BookParagraph> &paragraphs = m_book.paragraphs;
    for (qsizetype i = 0; i < paragraphs.size();) {
        const int first = paragraphs.at(i).number;
        const QString name = fileOf(first);
        int last = first;
        QString body;
        for (; i < paragraphs.size() && fileOf(paragraphs.at(i).number) == name; ++i) {
            last = paragraphs.at(i).number;
            body += section(paragraphs.at(i));
            progress(static_cast<int>(i), static_cast<int>(paragraphs.size()));
        }
        const QString numbers = QString::number(first);
        appendPage(EpubPage::Kind::Paragraphs, name,
                   first == last ? numbers : numbers + u'–' + QString::number(last),
                   QStringLiteral("bodymatter"), body);
    }
}

QByteArray EpubPages::page(const QString &title, const QString &bodyAttributes,
                           const QString &body) const
{
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<!DOCTYPE html>\n"
                          "<html xmlns=\"http://www.w3.org/1999/xhtml\" "
                          "xmlns:epub=\"http://www.idpf.org/2007/ops\" "
                          "lang=\"%1\" xml:lang=\"%1\">\n"
                          "<head>\n<meta charset=\"utf-8\"/>\n<title>%2</title>\n"
                          "<link rel=\"stylesheet\" type=\"text/css\" href=\"style.css\"/>\n"
                          "</head>\n<body%3>\n%4</body>\n</html>\n")
        .arg(m_facts.language, xmlText(title), bodyAttributes, body)
        .toUtf8();
}

QString EpubPages::section(const BookParagraph &paragraph)
{
    return QStringLiteral("<section id=\"p%1\">\n<h2>%1</h2>\n").arg(paragraph.number) +
           m_html.blocks(paragraph) + QStringLiteral("</section>\n");
}

// In the order of the pages.
QString EpubPages::contents() const
{
    QString links;
    bool numbered = false;
    for (const EpubPage &page : m_pages) {
        if (page.kind == EpubPage::Kind::Text)
            links += link(page.name, page.title);
        else if (!numbered && page.kind == EpubPage::Kind::Paragraphs) {
            links += hundreds();
            numbered = true;
        }
    }
    return list(QStringLiteral("epub:type=\"toc\" role=\"doc-toc\""), m_words.contents, links);
}

QString EpubPages::hundreds() const
{
    QString links;
    const QList<BookParagraph> &paragraphs = m_book.paragraphs;
    for (qsizetype i = 0; i < paragraphs.size();) {
        const int first = paragraphs.at(i).number;
        int last = first;
        for (; i < paragraphs.size() && hundredOf(paragraphs.at(i).number) == hundredOf(first); ++i)
            last = paragraphs.at(i).number;
        const QString numbers = QString::number(first);
        links +=
            link(address(first), first == last ? numbers : numbers + u'–' + QString::number(last));
    }
    return links;
}

QString EpubPages::numbers() const
{
    QString links;
    for (const BookParagraph &paragraph : m_book.paragraphs)
        links += link(address(paragraph.number), QString::number(paragraph.number));
    return list(QStringLiteral("epub:type=\"page-list\" role=\"doc-pagelist\" hidden=\"\""),
                m_words.numbers, links);
}

QString EpubPages::landmarks() const
{
    QString links;
    if (!coverName().isEmpty())
        links += link(QStringLiteral("cover.xhtml"), m_words.cover,
                      QStringLiteral(" epub:type=\"cover\""));
    links += link(address(m_book.paragraphs.first().number), m_words.start,
                  QStringLiteral(" epub:type=\"bodymatter\""));
    return list(QStringLiteral("epub:type=\"landmarks\" hidden=\"\""), m_words.start, links);
}

QString EpubPages::fileOf(int number) const
{
    const int first = m_files == Files::Each ? number : hundredOf(number) * 100 + 1;
    return QStringLiteral("p%1.xhtml").arg(fourDigits(first));
}

QString EpubPages::address(int number) const
{
    return QStringLiteral("%1#p%2").arg(fileOf(number)).arg(number);
}

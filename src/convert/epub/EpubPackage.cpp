#include "convert/epub/EpubPackage.h"

#include "convert/book/XmlText.h"

namespace
{
QString item(const QString &id, const QString &name, const QString &kind,
             const QString &properties = {})
{
    const QString more =
        properties.isEmpty() ? QString() : QStringLiteral(" properties=\"%1\"").arg(properties);
    return QStringLiteral("<item id=\"%1\" href=\"%2\" media-type=\"%3\"%4/>\n")
        .arg(id, name, kind, more);
}

QString property(const QString &name, const QString &value)
{
    return QStringLiteral("<meta property=\"%1\">%2</meta>\n").arg(name, value);
}

QString metadata(const BookFacts &facts, bool hasCover, const QDateTime &modified)
{
    const auto element = [](const QString &name, const QString &text) {
        return QStringLiteral("<dc:%1>%2</dc:%1>\n").arg(name, xmlText(text));
    };
    QString xml = QStringLiteral("<dc:identifier id=\"id\">urn:uuid:%1</dc:identifier>\n")
                      .arg(bookIdentity(facts));
    xml += element(QStringLiteral("title"), facts.title);
    xml += element(QStringLiteral("language"), facts.language);
    if (!facts.author.isEmpty())
        xml += element(QStringLiteral("creator"), facts.author);
    xml += property(QStringLiteral("dcterms:modified"),
                    modified.toUTC().toString(QStringLiteral("yyyy-MM-ddThh:mm:ss")) + u'Z');
    xml += property(QStringLiteral("schema:accessMode"), QStringLiteral("textual"));
    xml += property(QStringLiteral("schema:accessModeSufficient"), QStringLiteral("textual"));
    for (const char *feature :
         {"tableOfContents", "structuralNavigation", "displayTransformability"})
        xml +=
            property(QStringLiteral("schema:accessibilityFeature"), QString::fromLatin1(feature));
    xml += property(QStringLiteral("schema:accessibilityHazard"), QStringLiteral("none"));
    if (hasCover)
        xml += QStringLiteral("<meta name=\"cover\" content=\"cover-picture\"/>\n");
    return xml;
}

QString idOf(const EpubPage &page)
{
    return page.name.section(u'.', 0, 0);
}

QString manifest(const EpubPages &pages)
{
    const QString xhtml = QStringLiteral("application/xhtml+xml");
    QString xml =
        item(QStringLiteral("nav"), QStringLiteral("nav.xhtml"), xhtml, QStringLiteral("nav")) +
        item(QStringLiteral("style"), QStringLiteral("style.css"), QStringLiteral("text/css"));
    if (const QString cover = pages.coverName(); !cover.isEmpty())
        xml += item(QStringLiteral("cover-picture"), cover,
                    cover.endsWith(QStringLiteral("png")) ? QStringLiteral("image/png")
                                                          : QStringLiteral("image/jpeg"),
                    QStringLiteral("cover-image"));
    for (const EpubPage &page : pages.pages())
        xml += item(idOf(page), page.name, xhtml);
    return xml;
}

QString spine(const EpubPages &pages)
{
    QString xml;
    for (const EpubPage &page : pages.pages())
        xml += QStringLiteral("<itemref idref=\"%1\"/>\n").arg(idOf(page));
    return xml;
}
} // namespace

QByteArray epubPackage(const BookFacts &facts, const EpubPages &pages, const QDateTime &modified)
{
    const bool hasCover = !pages.coverName().isEmpty();
    QString xml = QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                 "<package xmlns=\"http://www.idpf.org/2007/opf\" version=\"3.0\" "
                                 "unique-identifier=\"id\" xml:lang=\"") +
                  facts.language + QStringLiteral("\">\n");
    xml += QStringLiteral("<metadata xmlns:dc=\"http://purl.org/dc/elements/1.1/\">\n") +
           metadata(facts, hasCover, modified) + QStringLiteral("</metadata>\n");
    xml += QStringLiteral("<manifest>\n") + manifest(pages) + QStringLiteral("</manifest>\n");
    xml += QStringLiteral("<spine>\n") + spine(pages) + QStringLiteral("</spine>\n</package>\n");
    return xml.toUtf8();
}

QByteArray epubContainer(const QString &package)
{
    return QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<container version=\"1.0\" "
                          "xmlns=\"urn:oasis:names:tc:opendocument:xmlns:container\">\n"
                          "<rootfiles>\n<rootfile full-path=\"%1\" "
                          "media-type=\"application/oebps-package+xml\"/>\n</rootfiles>\n"
                          "</container>\n")
        .arg(package)
        .toUtf8();
}

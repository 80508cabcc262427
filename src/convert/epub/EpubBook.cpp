#include "convert/epub/EpubBook.h"

#include "convert/book/WorkPart.h"
#include "convert/epub/EpubPackage.h"
#include "convert/epub/ZipArchive.h"

namespace
{
// In hundredths, by how long the parts take.
constexpr int Written = 40;
constexpr int Packed = 100;
} // namespace

QByteArray epubOf(const Book &book, const BookFacts &facts, EpubPages::Files files,
                  const QDateTime &modified, const Progress &progress)
{
    using Packing = ZipArchive::Packing;
    const EpubPages pages(book, facts, files, workPart(progress, 0, Written));
    const QString folder = QStringLiteral("OEBPS/");
    const QString package = folder + QStringLiteral("package.opf");
    ZipArchive archive;
    archive.add(QStringLiteral("mimetype"), "application/epub+zip", Packing::Stored);
    archive.add(QStringLiteral("META-INF/container.xml"), epubContainer(package));
    archive.add(package, epubPackage(facts, pages, modified));
    archive.add(folder + QStringLiteral("nav.xhtml"), pages.navigation());
    archive.add(folder + QStringLiteral("style.css"), pages.styleSheet());
    if (!pages.coverName().isEmpty())
        archive.add(folder + pages.coverName(), facts.cover, Packing::Stored);
    for (const EpubPage &page : pages.pages())
        archive.add(folder + page.name, page.bytes);
    return archive.finish(workPart(progress, Written, Packed));
}

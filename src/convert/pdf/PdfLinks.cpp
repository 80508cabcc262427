#include "convert/pdf/PdfLinks.h"

#include "convert/pdf/PdfFile.h"
#include "platform/Errors.h"

#include <QCryptographicHash>
#include <QSet>
#include <vector>

namespace
{
using Object = PdfFile::Object;

constexpr double TwipsPerPoint = 20;
constexpr int OutlineStep = 100; // paragraphs of an entry
constexpr int SubsetLetters = 6; // in front of the name of a font

class Linking
{
public:
    Linking(const DrawnPdf &drawn, const BookPages &pages)
        : m_pdf(drawn.bytes), m_drawn(drawn), m_pages(pages)
    {
        if (m_pdf.pageCount() != pages.count())
            throw FormatError(0, QStringLiteral("as many pages as were drawn"));
        for (int page = 0; page < pages.count(); ++page)
            m_objects.push_back(m_pdf.page(page));
        m_height = m_objects.empty() ? 0 : m_objects.front().at("/MediaBox").at(3).number();
    }

    void addLinks(const Progress &progress)
    {
        for (int page = 0; page < m_pages.count(); ++page) {
            setBoxes(object(page));
            Object annotations = m_pdf.array();
            for (const PageLink &link : m_drawn.links.at(page))
                if (m_pages.places().contains(link.number))
                    annotations.append(m_pdf.shared(annotation(link)));
            if (annotations.count() > 0)
                object(page).set("/Annots", annotations);
            progress(page + 1, m_pages.count());
        }
    }

    // An entry for the numbers of each hundred, those that are there.
    void addOutline()
    {
        const QList<int> numbers = m_pages.numbers();
        std::vector<Object> entries;
        Object outline = m_pdf.shared(m_pdf.dictionary());
        for (qsizetype begin = 0; begin < numbers.size();) {
            qsizetype end = begin;
            while (end < numbers.size() &&
                   numbers.at(end) / OutlineStep == numbers.at(begin) / OutlineStep)
                ++end;
            entries.push_back(entry(numbers.at(begin), numbers.at(end - 1), outline));
            begin = end;
        }
        if (entries.empty())
            return;
        for (std::size_t i = 1; i < entries.size(); ++i) {
            entries.at(i - 1).set("/Next", entries.at(i));
            entries.at(i).set("/Prev", entries.at(i - 1));
        }
        outline.set("/Type", m_pdf.name(QStringLiteral("/Outlines")))
            .set("/First", entries.front())
            .set("/Last", entries.back())
            .set("/Count", m_pdf.whole(static_cast<int>(entries.size())));
        m_pdf.root().set("/Outlines", outline);
    }

    // Without the time at which it was made, and what the drawing has noted of itself.
    void addFacts(const BookFacts &facts)
    {
        Object info = m_pdf.dictionary();
        info.set("/Title", m_pdf.text(facts.title))
            .set("/Creator", m_pdf.text(QStringLiteral("Usmira")));
        if (!facts.author.isEmpty())
            info.set("/Author", m_pdf.text(facts.author));
        m_pdf.trailer().set("/Info", m_pdf.shared(info)).remove("/ID");
        Object root = m_pdf.root();
        root.remove("/Metadata");
        if (!facts.language.isEmpty())
            root.set("/Lang", m_pdf.text(facts.language));
        root.set("/ViewerPreferences",
                 m_pdf.dictionary().set("/DisplayDocTitle", m_pdf.boolean(true)));
        if (m_pages.setup().twoSided)
            root.set("/PageLayout", m_pdf.name(QStringLiteral("/TwoPageRight")));
    }

    // The parts of fonts are called after their place in the drawing, which is another each time;
    // here after what is in them.
    void nameFonts()
    {
        QSet<int> named;
        for (const Object &page : m_objects) {
            const Object fonts = page.at("/Resources").at("/Font");
            for (const QString &key : fonts.keys()) {
                Object font = fonts.at(key.toUtf8().constData());
                if (named.contains(font.id()))
                    continue;
                named.insert(font.id());
                nameFont(font);
            }
        }
    }

    QByteArray bytes() const { return m_pdf.bytes(); }

private:
    Object &object(int page) { return m_objects.at(static_cast<std::size_t>(page)); }

    double fromFoot(double y) const { return m_height - y / TwipsPerPoint; }

    Object box(double left, double bottom, double right, double top) const
    {
        return m_pdf.array(
            {m_pdf.number(left), m_pdf.number(bottom), m_pdf.number(right), m_pdf.number(top)});
    }

    // The drawing knows whole points only. The trimmed page is the paper itself.
    void setBoxes(Object &page) const
    {
        const QSizeF paper = m_pages.paper();
        for (const char *name : {"/MediaBox", "/TrimBox"})
            page.set(name,
                     box(0, fromFoot(paper.height()), paper.width() / TwipsPerPoint, m_height));
    }

    Object goTo(int number)
    {
        const BookPages::Place place = m_pages.places().value(number);
        const Object destination =
            m_pdf.array({object(place.page), m_pdf.name(QStringLiteral("/XYZ")), m_pdf.null(),
                         m_pdf.number(fromFoot(place.y)), m_pdf.null()});
        return m_pdf.dictionary()
            .set("/S", m_pdf.name(QStringLiteral("/GoTo")))
            .set("/D", destination);
    }

    Object annotation(const PageLink &link)
    {
        const QRectF &place = link.place;
        const Object none = m_pdf.whole(0);
        return m_pdf.dictionary()
            .set("/Type", m_pdf.name(QStringLiteral("/Annot")))
            .set("/Subtype", m_pdf.name(QStringLiteral("/Link")))
            .set("/Rect", box(place.left() / TwipsPerPoint, fromFoot(place.bottom()),
                              place.right() / TwipsPerPoint, fromFoot(place.top())))
            .set("/Border", m_pdf.array({none, none, none}))
            .set("/A", goTo(link.number));
    }

    Object entry(int first, int last, const Object &outline)
    {
        const QString name =
            first == last ? QString::number(first) : QStringLiteral("%1–%2").arg(first).arg(last);
        return m_pdf.shared(m_pdf.dictionary()
                                .set("/Title", m_pdf.text(name))
                                .set("/Parent", outline)
                                .set("/A", goTo(first)));
    }

    void nameFont(Object &font) const
    {
        if (!font.has("/DescendantFonts"))
            return;
        Object inner = font.at("/DescendantFonts").at(0);
        Object descriptor = inner.at("/FontDescriptor");
        const char *file = descriptor.has("/FontFile2") ? "/FontFile2" : "/FontFile3";
        const QByteArray hash =
            QCryptographicHash::hash(descriptor.at(file).streamBytes(), QCryptographicHash::Sha256);
        QString name(u'/');
        for (int i = 0; i < SubsetLetters; ++i)
            name += QChar('A' + static_cast<unsigned char>(hash.at(i)) % 26);
        name += u'+' + descriptor.at("/FontName").name().section(u'+', 1).remove(u'/');
        descriptor.set("/FontName", m_pdf.name(name));
        inner.set("/BaseFont", m_pdf.name(name));
        font.set("/BaseFont", m_pdf.name(name));
    }

    const PdfFile m_pdf;
    const DrawnPdf &m_drawn;
    const BookPages &m_pages;
    std::vector<Object> m_objects;
    double m_height = 0; // of the page as it was drawn, in points
};
} // namespace

QByteArray withLinks(const DrawnPdf &drawn, const BookPages &pages, const BookFacts &facts,
                     const Progress &progress)
{
    Linking linking(drawn, pages);
    linking.addLinks(progress);
    linking.addOutline();
    linking.addFacts(facts);
    linking.nameFonts();
    return linking.bytes();
}

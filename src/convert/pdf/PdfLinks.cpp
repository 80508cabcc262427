#include "convert/pdf/PdfLinks.h"

#include "platform/Errors.h"

#define POINTERHOLDER_TRANSITION 4 // the library asks which of its pointers we know
#include <qpdf/Buffer.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <QCryptographicHash>

#include <memory>
#include <vector>

namespace
{
using Object = QPDFObjectHandle;

constexpr double TwipsPerPoint = 20;
constexpr int OutlineStep = 100; // paragraphs of an entry
constexpr int Decimals = 3;
constexpr int SubsetLetters = 6; // in front of the name of a font

Object real(double value)
{
    return Object::newReal(value, Decimals);
}

Object text(const QString &text)
{
    return Object::newUnicodeString(text.toStdString());
}

Object box(double left, double bottom, double right, double top)
{
    return Object::newArray({real(left), real(bottom), real(right), real(top)});
}

class Linking
{
public:
    Linking(const DrawnPdf &drawn, const BookPages &pages) : m_drawn(drawn), m_pages(pages)
    {
        m_pdf.setSuppressWarnings(true);
        m_pdf.processMemoryFile("book", drawn.bytes.constData(),
                                static_cast<std::size_t>(drawn.bytes.size()));
        m_objects = QPDFPageDocumentHelper(m_pdf).getAllPages();
        if (static_cast<int>(m_objects.size()) != pages.count())
            throw FormatError(0, QStringLiteral("as many pages as were drawn"));
        m_height = m_objects.empty() ? 0
                                     : m_objects.front()
                                           .getObjectHandle()
                                           .getKey("/MediaBox")
                                           .getArrayItem(3)
                                           .getNumericValue();
    }

    void addLinks(const Progress &progress)
    {
        for (int page = 0; page < m_pages.count(); ++page) {
            setBoxes(object(page));
            Object annotations = Object::newArray();
            for (const PageLink &link : m_drawn.links.at(page))
                if (m_pages.places().contains(link.number))
                    annotations.appendItem(m_pdf.makeIndirectObject(annotation(link)));
            if (annotations.getArrayNItems() > 0)
                object(page).replaceKey("/Annots", annotations);
            progress(page + 1, m_pages.count());
        }
    }

    // An entry for the numbers of each hundred, those that are there.
    void addOutline()
    {
        const QList<int> numbers = m_pages.numbers();
        std::vector<Object> entries;
        Object outline = m_pdf.makeIndirectObject(Object::newDictionary());
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
            entries.at(i - 1).replaceKey("/Next", entries.at(i));
            entries.at(i).replaceKey("/Prev", entries.at(i - 1));
        }
        outline.replaceKey("/Type", Object::newName("/Outlines"));
        outline.replaceKey("/First", entries.front());
        outline.replaceKey("/Last", entries.back());
        outline.replaceKey("/Count", Object::newInteger(static_cast<long long>(entries.size())));
        m_pdf.getRoot().replaceKey("/Outlines", outline);
    }

    // Without the time at which it was made, and what the drawing has noted of itself.
    void addFacts(const BookFacts &facts)
    {
        Object info = Object::newDictionary();
        info.replaceKey("/Title", text(facts.title));
        if (!facts.author.isEmpty())
            info.replaceKey("/Author", text(facts.author));
        info.replaceKey("/Creator", text(QStringLiteral("Usmira")));
        m_pdf.getTrailer().replaceKey("/Info", m_pdf.makeIndirectObject(info));
        m_pdf.getTrailer().removeKey("/ID");
        Object root = m_pdf.getRoot();
        root.removeKey("/Metadata");
        if (!facts.language.isEmpty())
            root.replaceKey("/Lang", text(facts.language));
        Object showsTitle = Object::newDictionary();
        showsTitle.replaceKey("/DisplayDocTitle", Object::newBool(true));
        root.replaceKey("/ViewerPreferences", showsTitle);
        if (m_pages.setup().twoSided)
            root.replaceKey("/PageLayout", Object::newName("/TwoPageRight"));
    }

    // The parts of fonts are called after their place in the drawing, which is another each time;
    // here after what is in them.
    void nameFonts()
    {
        for (Object font : m_pdf.getAllObjects()) {
            if (!font.isDictionaryOfType("/Font", "/Type0"))
                continue;
            Object inner = font.getKey("/DescendantFonts").getArrayItem(0);
            Object descriptor = inner.getKey("/FontDescriptor");
            const Object name = subsetName(descriptor);
            descriptor.replaceKey("/FontName", name);
            inner.replaceKey("/BaseFont", name);
            font.replaceKey("/BaseFont", name);
        }
    }

    QByteArray bytes()
    {
        QPDFWriter writer(m_pdf);
        writer.setOutputMemory();
        writer.setDeterministicID(true);
        writer.write();
        const std::shared_ptr<Buffer> buffer = writer.getBufferSharedPointer();
        const auto size = static_cast<qsizetype>(buffer->getSize());
        QByteArray bytes(size, Qt::Uninitialized);
        std::copy_n(buffer->getBuffer(), size, bytes.begin());
        return bytes;
    }

private:
    Object object(int page)
    {
        return m_objects.at(static_cast<std::size_t>(page)).getObjectHandle();
    }

    double fromFoot(double y) const { return m_height - y / TwipsPerPoint; }

    // The drawing knows whole points only. The trimmed page is the paper itself.
    void setBoxes(Object page)
    {
        const QSizeF paper = m_pages.paper();
        for (const char *name : {"/MediaBox", "/TrimBox"})
            page.replaceKey(
                name, box(0, fromFoot(paper.height()), paper.width() / TwipsPerPoint, m_height));
    }

    Object destination(int number)
    {
        const BookPages::Place place = m_pages.places().value(number);
        return Object::newArray({object(place.page), Object::newName("/XYZ"), Object::newNull(),
                                 real(fromFoot(place.y)), Object::newNull()});
    }

    Object goTo(int number)
    {
        Object action = Object::newDictionary();
        action.replaceKey("/S", Object::newName("/GoTo"));
        action.replaceKey("/D", destination(number));
        return action;
    }

    Object annotation(const PageLink &link)
    {
        const QRectF &place = link.place;
        Object annotation = Object::newDictionary();
        annotation.replaceKey("/Type", Object::newName("/Annot"));
        annotation.replaceKey("/Subtype", Object::newName("/Link"));
        annotation.replaceKey("/Rect", box(place.left() / TwipsPerPoint, fromFoot(place.bottom()),
                                           place.right() / TwipsPerPoint, fromFoot(place.top())));
        annotation.replaceKey("/Border",
                              Object::newArray({Object::newInteger(0), Object::newInteger(0),
                                                Object::newInteger(0)}));
        annotation.replaceKey("/A", goTo(link.number));
        return annotation;
    }

    Object entry(int first, int last, Object outline)
    {
        const QString name =
            first == last ? QString::number(first) : QStringLiteral("%1–%2").arg(first).arg(last);
        Object entry = Object::newDictionary();
        entry.replaceKey("/Title", text(name));
        entry.replaceKey("/Parent", outline);
        entry.replaceKey("/A", goTo(first));
        return m_pdf.makeIndirectObject(entry);
    }

    // "/ABCDEF+Name".
    static Object subsetName(Object descriptor)
    {
        const bool isTrueType = descriptor.hasKey("/FontFile2");
        const auto data =
            descriptor.getKey(isTrueType ? "/FontFile2" : "/FontFile3").getRawStreamData();
        const QByteArray hash = QCryptographicHash::hash(
            QByteArrayView(data->getBuffer(), static_cast<qsizetype>(data->getSize())),
            QCryptographicHash::Sha256);
        std::string tag = "/";
        for (int i = 0; i < SubsetLetters; ++i)
            tag += static_cast<char>('A' + static_cast<unsigned char>(hash.at(i)) % 26);
        const std::string name = descriptor.getKey("/FontName").getName();
        return Object::newName(tag + '+' + name.substr(name.find('+') + 1));
    }

    QPDF m_pdf;
    const DrawnPdf &m_drawn;
    const BookPages &m_pages;
    std::vector<QPDFPageObjectHelper> m_objects;
    double m_height = 0; // of the page as it was drawn, in points
};
} // namespace

QByteArray withLinks(const DrawnPdf &drawn, const BookPages &pages, const BookFacts &facts,
                     const Progress &progress)
{
    try {
        Linking linking(drawn, pages);
        linking.addLinks(progress);
        linking.addOutline();
        linking.addFacts(facts);
        linking.nameFonts();
        return linking.bytes();
    } catch (const QPDFExc &error) {
        throw FormatError(0, QString::fromUtf8(error.what()));
    }
}

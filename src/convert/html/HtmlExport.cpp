#include "convert/html/HtmlExport.h"

#include "convert/html/HtmlCharset.h"
#include "convert/html/HtmlLosses.h"
#include "convert/html/RtfToHtml.h"
#include "platform/Errors.h"
#include "platform/FileBatch.h"
#include "platform/SafeFile.h"
#include "richtext/HiddenBox.h"
#include "store/ExportTarget.h"
#include "store/ParagraphTexts.h"

#include <QDir>

namespace
{
QString withNumber(QString code, int n)
{
    return code.replace(QStringLiteral("<999>"), QString::number(n));
}

QString withName(QString code, const Variables &variables)
{
    return code.replace(QStringLiteral("<AVENTURE>"), proposedName(variables).toHtmlEscaped());
}

// The pages belong into the folder that the author chose.
void refuseFolderIn(const QString &prefix)
{
    if (prefix.contains(u'/') || prefix.contains(QDir::separator()))
        throw FileError(FileError::Operation::Write, prefix, QStringLiteral("holds a folder"),
                        std::errc::invalid_argument);
}

// Codes as they go into a file.
QByteArray codeBytes(QString code, HtmlCharset charset)
{
    code.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return htmlBytes(code.replace(u'\n', QStringLiteral("\r\n")), charset);
}

// The box makes a text of ours of what another program wrote, where the pass would lose some of it.
QByteArray htmlOf(const Variables &variables, int n, const QString &prefix, bool manyFiles)
{
    QByteArray rtf = GetParagraphRtf(variables, n);
    if (losesInHtml(rtf)) {
        HiddenBox box;
        box.setRtf(rtf);
        rtf = box.rtf();
    }
    return RtfToHtml(variables, rtf, prefix, n, manyFiles);
}
} // namespace

int exportOneFile(const Variables &variables, const ExportRange &range, const HtmlCodes &codes,
                  SafeFile &file, const Progress &progress)
{
    const HtmlCharset charset = declaredCharset(codes.header);
    file.write(codeBytes(withName(codes.header, variables), charset) + "\r\n");
    const int written = forEachWritten(variables, range, progress, [&](int n) {
        const QByteArray html = htmlOf(variables, n, QStringLiteral("Irrelevant"), false);
        const QByteArray anchor = "<A NAME=\"P" + fourDigits(n).toLatin1() + "\"></A>";
        file.write(anchor + codeBytes(withNumber(codes.numbers, n), charset) +
                   recodedHtml(html, charset) + "\r\n");
    });
    file.write(codeBytes(codes.footer, charset) + "\r\n");
    file.commit();
    return written;
}

int exportManyFiles(const Variables &variables, const ExportRange &range, const HtmlCodes &codes,
                    const QString &folder, const QString &prefix, const Progress &progress)
{
    refuseFolderIn(prefix);
    const HtmlCharset charset = declaredCharset(codes.header);
    const QString head = withName(codes.header, variables);
    const QByteArray footer = codeBytes(codes.footer, charset) + "\r\n";
    FileBatch pages;
    const int written = forEachWritten(variables, range, progress, [&](int n) {
        const QString path = folder + u'/' + prefix + fourDigits(n) + QStringLiteral(".htm");
        refuseOwnFiles(variables, path);
        const QByteArray header = codeBytes(withNumber(head, n), charset);
        pages.add(path, header + recodedHtml(htmlOf(variables, n, prefix, true), charset) + footer);
    });
    pages.commit();
    return written;
}

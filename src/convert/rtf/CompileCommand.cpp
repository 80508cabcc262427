#include "convert/rtf/CompileCommand.h"

#include "convert/book/Book.h"

namespace
{
QString translated(const char *text)
{
    return QCoreApplication::translate("CompileCommand", text);
}
} // namespace

std::optional<QString> compileToRtf(const ExportCommand &command, const ExportRequest &request,
                                    const NumberStyle &style, RtfLinks links)
{
    const Variables &variables = command.variables();
    const auto write = [&](const ExportRange &range, const Progress &progress) {
        return compileRtf(variables, range, style, links, request.place, progress);
    };
    const auto remark = [&] {
        return links == RtfLinks::With ? emptyTargetsSentence(emptyTargets(
                                             variables, exportRange(request.first, request.second)))
                                       : QString();
    };
    const ExportCommand::Kind kind{
        translated(QT_TRANSLATE_NOOP("CompileCommand", "Conversion en Cours Veuillez Attendre")),
        write,
        translated(QT_TRANSLATE_NOOP("CompileCommand", "Erreur d'enregistrement du fichier")),
        remark};
    const bool written = command.mayReplace(request.place) && command.run(request, kind);
    return written ? std::optional(remark()) : std::nullopt;
}

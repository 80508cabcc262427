#include "convert/rtf/CompileCommand.h"

bool compileToRtf(const ExportCommand &command, const ExportRequest &request,
                  const NumberStyle &style)
{
    const auto write = [&](const ExportRange &range, const Progress &progress) {
        return compileRtf(command.variables(), range, style, request.place, progress);
    };
    return command.mayReplace(request.place) &&
           command.run(request, {QCoreApplication::translate(
                                     "CompileCommand", "Conversion en Cours Veuillez Attendre"),
                                 write,
                                 QCoreApplication::translate(
                                     "CompileCommand", "Erreur d'enregistrement du fichier")});
}
#include <QCoreApplication>

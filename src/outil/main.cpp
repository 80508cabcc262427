#include "outil/Commands.h"
#include "outil/ScriptPrompts.h"
#include "platform/Failures.h"
#include "platform/SystemFiles.h"
#include "platform/Translations.h"
#include "store/FolderLock.h"
#include "store/SessionRecovery.h"
#include "store/WorkingFolder.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QTextStream>
#include <cstdio>

namespace
{
enum Status { Done = 0, Failed = 1, BadUsage = 2 };

QCommandLineOption option(const QString &name, const QString &purpose, const QString &value = {})
{
    return {name, purpose, value};
}

QString usage()
{
    return QCoreApplication::translate(
               "usmira-outil",
               "usmira-outil [OPTIONS] [FICHIER]\n"
               "\n"
               "Exécute des commandes sur une aventure, une par ligne, lues dans FICHIER ou sur "
               "l'entrée standard.\n"
               "Les arguments se mettent entre guillemets comme dans un shell ; # commence un "
               "commentaire.\n"
               "\n"
               "  -e COMMANDE     exécute cette commande au lieu de lire un fichier (répétable)\n"
               "  --dossier DIR   utilise un autre dossier de travail\n"
               "  --oui           répond Oui à toutes les questions\n"
               "  --non           répond Non à toutes les questions\n"
               "  --recuperer     après un arrêt brusque, rouvre d'abord l'aventure avec ce qui\n"
               "                  n'était pas enregistré (avec --non : le range dans un dossier\n"
               "                  Récupération) ; il reste à reprendre tant qu'il n'est pas "
               "enregistré\n"
               "  --aide          affiche cette aide\n"
               "\n"
               "Sans --oui ni --non, une question fait échouer la commande. À la fin, ce qui n'a "
               "pas été enregistré\n"
               "est abandonné, ou enregistré avec --oui si tout a réussi. Statut : 0 réussi,\n"
               "1 commande échouée, 2 mauvais usage.\n"
               "Sans --recuperer, ce qu'un Usmira arrêté brusquement n'a pas enregistré est laissé "
               "où il est,\n"
               "et l'outil travaille dans un dossier à lui.\n"
               "Les positions comptent les caractères à partir de 0, une fin de ligne pour deux ; "
               "casse distingue\n"
               "majuscules et minuscules, mot ne trouve que des mots entiers.\n"
               "\n"
               "Commandes :\n") +
           Commands::help();
}

// In our own words: the parser has them in English.
QString optionFault(const QCommandLineParser &parser)
{
    const QStringList unknown = parser.unknownOptionNames();
    return unknown.isEmpty()
               ? QCoreApplication::translate("usmira-outil", "valeur attendue après une option")
               : QCoreApplication::translate("usmira-outil", "option inconnue : %1")
                     .arg(unknown.join(QStringLiteral(", ")));
}

QStringList scriptLines(const QCommandLineParser &parser)
{
    QStringList lines = parser.values(QStringLiteral("e"));
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1)
        throw UsageError(
            QCoreApplication::translate("usmira-outil", "un seul fichier de commandes attendu"));
    if (files.isEmpty() && !lines.isEmpty())
        return lines;
    QFile file;
    const bool opened = files.isEmpty()
                            ? file.open(stdin, QIODevice::ReadOnly)
                            : (file.setFileName(files.first()), file.open(QIODevice::ReadOnly));
    if (!opened)
        throw FileError(FileError::Operation::Read, file.fileName(), file.errorString());
    return lines + QString::fromUtf8(file.readAll()).split(u'\n');
}

QString workingFolder(const QCommandLineParser &parser)
{
    const QString given = parser.value(QStringLiteral("dossier"));
    if (given.isEmpty())
        return findWorkingFolder(QCoreApplication::applicationDirPath());
    return QDir(QDir(given).absolutePath()).path() + QDir::separator();
}

std::optional<Prompts::Answer> givenAnswer(const QCommandLineParser &parser)
{
    if (parser.isSet(QStringLiteral("oui")))
        return Prompts::Answer::Yes;
    if (parser.isSet(QStringLiteral("non")))
        return Prompts::Answer::No;
    return std::nullopt;
}

// Up to the first command that fails. Throws UsageError.
void runLines(const QStringList &lines, Commands &commands, ScriptPrompts &prompts)
{
    QFile output;
    output.open(stdout, QIODevice::WriteOnly);
    for (const QString &line : lines) {
        try {
            output.write(commands.run(splitCommand(line)));
        } catch (const UsmiraError &error) {
            reportFailure(prompts, error);
        }
        output.flush();
        if (prompts.hasFailed())
            break;
    }
}

int runScript(const QCommandLineParser &parser, QTextStream &errors)
{
    Variables variables;
    const bool recovers = parser.isSet(QStringLiteral("recuperer"));
    variables.MainFolder = workingFolder(parser);
    const WorkingPlace place = takeWorkingFolder(
        variables.MainFolder, findBundledDocuments(QCoreApplication::applicationDirPath()),
        recovers ? LeftSessions::First : LeftSessions::Avoid);
    variables.WorkingFolder = place.folder;
    const std::optional<Prompts::Answer> answer = givenAnswer(parser);
    ScriptPrompts prompts(errors, answer);
    finishLeftChange(variables.WorkingFolder, prompts);
    ScriptPrompts offer(errors, answer.value_or(Prompts::Answer::Yes));
    const auto unsaved = offerUnsavedWork(variables.WorkingFolder, offer);
    Commands commands(variables, prompts);
    if (unsaved)
        commands.open(*unsaved);
    // What was recovered is another program's: it goes when it is saved, and not before.
    const auto finish = [&](bool save) {
        if (save || !unsaved)
            commands.finish(save);
    };
    try {
        runLines(scriptLines(parser), commands, prompts);
    } catch (const UsageError &) {
        finish(false);
        throw;
    }
    finish(parser.isSet(QStringLiteral("oui")) && !prompts.hasFailed());
    return prompts.hasFailed() ? Failed : Done;
}
} // namespace

int main(int argc, char *argv[])
{
    // No command needs a screen, and standard error is for the commands' own messages. Where there
    // always is a screen, that without one would have no fonts.
#ifndef Q_OS_WIN
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    letTooLongWritesFail();
    useConsoleForUtf8();
    const QGuiApplication application(argc, argv);
    loadTranslations(Language::French); // scripts read it
    QCoreApplication::setApplicationName(QStringLiteral("Usmira"));
    QTextStream errors(stderr);
    QCommandLineParser parser;
    parser.addOptions({option(QStringLiteral("e"), {}, QStringLiteral("COMMANDE")),
                       option(QStringLiteral("dossier"), {}, QStringLiteral("DIR")),
                       option(QStringLiteral("oui"), {}), option(QStringLiteral("non"), {}),
                       option(QStringLiteral("recuperer"), {}),
                       option(QStringLiteral("aide"), {})});
    try {
        if (!parser.parse(QCoreApplication::arguments()))
            throw UsageError(optionFault(parser));
        if (parser.isSet(QStringLiteral("aide"))) {
            QTextStream(stdout) << usage();
            return Done;
        }
        return runScript(parser, errors);
    } catch (const UsageError &error) {
        errors << error.what() << Qt::endl
               << QCoreApplication::translate("usmira-outil", "Voir : usmira-outil --aide")
               << Qt::endl;
        return BadUsage;
    } catch (const UsmiraError &error) {
        ScriptPrompts prompts(errors, std::nullopt);
        reportFailure(prompts, error);
        return Failed;
    }
}

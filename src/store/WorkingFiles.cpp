#include "store/WorkingFiles.h"

#include "store/Variables.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace
{
QString numberedText(const QString &before, int n)
{
    return before + fourDigits(n) + QStringLiteral(".rtf");
}

QStringList pathsOf(const QString &folder, const QString &names)
{
    const QDir dir(folder);
    QStringList paths;
    const QStringList found = dir.entryList({names}, QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &name : found)
        paths.append(dir.filePath(name));
    return paths;
}

QStringList withNumbers(QStringList paths)
{
    paths.removeIf([](const QString &path) {
        return WorkingFiles::numberOf(path) > Variables::LastParagraph;
    });
    return paths;
}
} // namespace

WorkingFiles::WorkingFiles(const QString &folder, const QString &filePrefix)
    : m_folder(QDir::fromNativeSeparators(folder)), m_filePrefix(filePrefix)
{
}

WorkingFiles::WorkingFiles(const Variables &variables)
    : WorkingFiles(variables.WorkingFolder, variables.FilePrefix)
{
}

WorkingFiles WorkingFiles::shared(const Variables &variables)
{
    const QString &main = variables.MainFolder;
    return WorkingFiles(main.isEmpty() ? variables.WorkingFolder : main);
}

QString WorkingFiles::text(int n) const
{
    return numberedText(m_folder + m_filePrefix, n);
}

QString WorkingFiles::parked(int n) const
{
    return m_folder + fourDigits(n) + QStringLiteral(".xyz");
}

QString WorkingFiles::temporarySave() const
{
    return m_folder + QStringLiteral("Usmira Temporary Save File.xyz");
}

QString WorkingFiles::settings() const
{
    return m_folder + QStringLiteral("Usmira Settings.xyz");
}

QString WorkingFiles::maximized() const
{
    return m_folder + QStringLiteral("Usmira Fenêtre.xyz");
}

QString WorkingFiles::comfort() const
{
    return m_folder + QStringLiteral("Usmira Confort.xyz");
}

QString WorkingFiles::pageSetup() const
{
    return m_folder + QStringLiteral("Usmira Mise en Pages.xyz");
}

QString WorkingFiles::ownWords() const
{
    return m_folder + QStringLiteral("Usmira Mots.xyz");
}

QString WorkingFiles::deliveries() const
{
    return m_folder + QStringLiteral("Usmira Documents.xyz");
}

QString WorkingFiles::documentName(Document document)
{
    return documentNames().at(static_cast<int>(document));
}

QStringList WorkingFiles::documentNames()
{
    return {QStringLiteral("Copyright.rtf"),
            QStringLiteral("Welcome.rtf"),
            QStringLiteral("Aide Française.rtf"),
            QStringLiteral("English Help.rtf"),
            QStringLiteral("Début du Fichier Unique.txt"),
            QStringLiteral("Numéros de Paragraphes.txt"),
            QStringLiteral("Début de Chaque Paragraphe.txt"),
            QStringLiteral("Fin de Chaque Paragraphe.txt")};
}

QString WorkingFiles::session() const
{
    return m_folder + QStringLiteral("Session");
}

QString WorkingFiles::journal() const
{
    return session() + QStringLiteral("/Journal.xyz");
}

QString WorkingFiles::state() const
{
    return session() + QStringLiteral("/Etat.xyz");
}

QString WorkingFiles::nextState() const
{
    return session() + QStringLiteral("/Suite.xyz");
}

QString WorkingFiles::typed(int n) const
{
    return numberedText(session() + QStringLiteral("/Saisie-"), n);
}

QString WorkingFiles::step(int id) const
{
    return session() + QStringLiteral("/Annuler-") + fourDigits(id) + QStringLiteral(".xyz");
}

QString WorkingFiles::extras(const QByteArray &sha256) const
{
    return session() + QStringLiteral("/Annexe-%1.xyz").arg(QString::fromLatin1(sha256.first(16)));
}

QString WorkingFiles::lock() const
{
    return session() + QStringLiteral("/Usmira.lock");
}

QString WorkingFiles::copies() const
{
    return m_folder + QStringLiteral("Copies");
}

QString WorkingFiles::newRecoveryFolder(const QDateTime &now) const
{
    const QString name = m_folder + QStringLiteral("Récupération ") +
                         now.toString(QStringLiteral("yyyy-MM-dd HHmm"));
    QString folder = name;
    for (int k = 2; QFileInfo::exists(folder); ++k)
        folder = name + QStringLiteral(" (%1)").arg(k);
    return folder;
}

QStringList WorkingFiles::allTexts() const
{
    return withNumbers(pathsOf(m_folder, QStringLiteral("*-[0-2][0-9][0-9][0-9].rtf")));
}

QStringList WorkingFiles::allParked() const
{
    return pathsOf(m_folder, QStringLiteral("[0-9][0-9][0-9][0-9].xyz"));
}

QStringList WorkingFiles::allTyped() const
{
    return withNumbers(pathsOf(session(), QStringLiteral("Saisie-[0-2][0-9][0-9][0-9].rtf")));
}

QStringList WorkingFiles::allSteps() const
{
    return pathsOf(session(), QStringLiteral("Annuler-[0-9]*.xyz"));
}

QStringList WorkingFiles::allExtras() const
{
    return pathsOf(session(), QStringLiteral("Annexe-*.xyz"));
}

int WorkingFiles::numberOf(const QString &path)
{
    return path.chopped(QStringView(u".rtf").size()).last(4).toInt();
}

bool WorkingFiles::isOwnName(const QString &path)
{
    static const QRegularExpression names(
        QStringLiteral("-(?:[01][0-9]{3}|2000)\\.rtf$|\\.xyz$|\\.lock$"),
        QRegularExpression::CaseInsensitiveOption);
    return names.match(path).hasMatch();
}

QString filePrefixOf(const QString &adventureFileName)
{
    QString prefix = adventureFileName.left(1);
    for (qsizetype i = 1; i < adventureFileName.size(); ++i) {
        const QChar before = adventureFileName.at(i - 1);
        if (before == u'\'' || before == u' ' || before == u'-')
            prefix += adventureFileName.at(i);
    }
    return prefix + u'-';
}

#include "convert/html/CodeSnippet.h"
#include "convert/html/HtmlCommands.h"
#include "outil/HeadlessView.h"
#include "platform/OpenedFile.h"
#include "store/AdventureFile.h"
#include "support/AdventureBuilder.h"
#include "support/PromptRecorder.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

namespace
{
// A page that opens the exported ones in a frame, collects the links of all of them, and walks from
// paragraph 1 to an ending by clicking on links. It leaves what it found as JSON in its text.
constexpr auto Walker = R"(<!DOCTYPE html><meta charset="utf-8">
<iframe id="frame" width="800" height="600"></iframe><pre id="found"></pre>
<script>
const frame = document.getElementById('frame');
const pages = PAGES;
const links = {}, shown = [];
const when = (event, action) => new Promise(done => {
    const target = event === 'load' ? frame : frame.contentWindow;
    target.addEventListener(event, done, {once: true});
    action();
});
const load = url => when('load', () => { frame.src = url; });
const numberOf = url => (url.match(/(\d{4})(\.htm)?$/) || [])[1];
const hrefs = from => [...from.querySelectorAll('a[href]')].map(a => a.getAttribute('href'));

// The links of a paragraph in the one file: those between its anchor and the next.
function linksBehind(name) {
    const all = [...frame.contentDocument.querySelectorAll('a')];
    const rest = all.slice(all.findIndex(a => a.name === name) + 1);
    const next = rest.findIndex(a => a.name);
    return (next < 0 ? rest : rest.slice(0, next)).filter(a => a.hash);
}

function wayToAnEnding() {
    const from = {'0001': null}, queue = ['0001'];
    while (queue.length) {
        const n = queue.shift();
        if (links[n].length === 0) {
            const way = [];
            for (let k = n; k; k = from[k]) way.unshift(k);
            return way;
        }
        for (const next of links[n])
            if (next in links && !(next in from)) { from[next] = n; queue.push(next); }
    }
}

async function manyFiles() {
    for (const page of pages) {
        await load(page);
        links[numberOf(page)] = hrefs(frame.contentDocument).map(numberOf);
    }
    await load(pages[0]);
    for (const next of wayToAnEnding().slice(1)) {
        const link = [...frame.contentDocument.links].find(a => numberOf(a.href) === next);
        await when('load', () => link.click());
        shown.push(frame.contentDocument.querySelector('h1').textContent);
    }
}

async function oneFile() {
    await load(pages[0]);
    for (const anchor of frame.contentDocument.querySelectorAll('a[name]'))
        links[numberOf(anchor.name)] = linksBehind(anchor.name).map(a => numberOf(a.hash));
    let at = '0001';
    for (const next of wayToAnEnding().slice(1)) {
        const link = linksBehind('P' + at).find(a => numberOf(a.hash) === next);
        await when('hashchange', () => link.click());
        const top = frame.contentDocument.getElementsByName('P' + next)[0].getBoundingClientRect().top;
        shown.push(top >= -1 && top < 600 ? frame.contentWindow.location.hash : 'not in view');
        at = next;
    }
}

(pages.length > 1 ? manyFiles() : oneFile())
    .then(() => JSON.stringify({links, shown}), error => String(error))
    .then(text => { document.getElementById('found').textContent = text; });
</script>
)";

QString document(const QString &name)
{
    return readSnippet(QStringLiteral(USMIRA_RESOURCES "/documents/") + name).text;
}
} // namespace

// The exports of the sample adventure in a real browser, where there is one.
class tst_browser : public QObject
{
    Q_OBJECT

    QString m_browser = QStandardPaths::findExecutable(QStringLiteral("chromium"));
    TestAdventure m_adventure;
    PromptRecorder m_prompts;

    QJsonObject walk(const QStringList &pages)
    {
        QString html = QString::fromUtf8(Walker);
        html.replace("PAGES",
                     QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(pages)).toJson()));
        const QString path = m_adventure.file("walker.html", html.toUtf8());
        QProcess process;
        process.start(m_browser, {"--headless", "--no-sandbox", "--disable-gpu",
                                  "--allow-file-access-from-files", "--virtual-time-budget=60000",
                                  "--user-data-dir=" + m_adventure.path("profile"), "--dump-dom",
                                  "file://" + path});
        if (!process.waitForFinished(120000))
            process.kill();
        static const QRegularExpression found("<pre id=\"found\">(.*)</pre>");
        const QString dom = QString::fromUtf8(process.readAllStandardOutput());
        return QJsonDocument::fromJson(found.match(dom).captured(1).toUtf8()).object();
    }

    // Every reference is a link, and none leads nowhere but those to unwritten paragraphs.
    void checkLinks(const QJsonObject &links) const
    {
        const Variables &v = m_adventure.variables;
        for (int n = v.LowestWritten; n <= v.HighestWritten; ++n) {
            QCOMPARE(links.contains(fourDigits(n)), v.Written.at(n) == 1);
            QStringList targets;
            const QJsonArray found = links[fourDigits(n)].toArray();
            for (const auto &target : found)
                targets.append(target.toString() + u'/');
            targets.sort();
            QStringList references = v.refIndex.at(n).split(u'/', Qt::SkipEmptyParts);
            for (QString &reference : references)
                reference += u'/';
            references.sort();
            QCOMPARE(targets, references);
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (m_browser.isEmpty())
            QSKIP("no Chromium here");
        const QDir samples(QStringLiteral(USMIRA_RESOURCES "/samples"));
        const QString path = samples.filePath(samples.entryList({"*.usm"}).value(0));
        takeOver(m_adventure.variables, readAdventure(std::make_shared<OpenedFile>(path)));
        m_adventure.variables.AdventurePath = path;
    }

    void theOneFileIsABook()
    {
        HeadlessView view(m_adventure.variables);
        QVERIFY(exportToOneFile(m_adventure.variables, m_prompts, view, 1, 2000,
                                {document("Début du Fichier Unique.txt"),
                                 document("Numéros de Paragraphes.txt"),
                                 document("Fin de Chaque Paragraphe.txt")},
                                m_adventure.path("book.htm")));
        const QJsonObject found = walk({"book.htm"});
        checkLinks(found["links"].toObject());
        const QJsonArray shown = found["shown"].toArray();
        QVERIFY(shown.size() > 3);
        QVERIFY(!shown.contains("not in view"));
    }

    void thePagesAreABook()
    {
        HeadlessView view(m_adventure.variables);
        QVERIFY(QDir().mkpath(m_adventure.path("pages")));
        QVERIFY(exportToManyFiles(m_adventure.variables, m_prompts, view, 1, 2000,
                                  {document("Début de Chaque Paragraphe.txt"),
                                   {},
                                   document("Fin de Chaque Paragraphe.txt")},
                                  m_adventure.path("pages"), "Été-"));
        QStringList pages = QDir(m_adventure.path("pages")).entryList(QDir::Files, QDir::Name);
        const QJsonObject found = walk(pages.replaceInStrings(QRegularExpression("^"), "pages/"));
        checkLinks(found["links"].toObject());
        QVERIFY(found["shown"].toArray().size() > 3);
    }
};

QTEST_MAIN(tst_browser)
#include "tst_browser.moc"

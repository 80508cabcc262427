#include "check/TextBook.h"
#include "support/References.h"
#include "support/TestTable.h"

#include <QRandomGenerator>
#include <algorithm>
#include <numeric>

namespace
{
const QString Prose = "Vous avancez à tâtons dans le couloir.";

QString to(int n)
{
    return QString(" Rendez-vous au %1.").arg(n);
}

// A sound book with faults put into it, under shuffled numbers.
class PlantedBook : public TextBook
{
public:
    explicit PlantedBook(quint32 seed) : m_random(seed)
    {
        m_free.resize(400);
        std::iota(m_free.begin(), m_free.end(), 1);
        std::shuffle(m_free.begin(), m_free.end(), m_random);
        m_ways = {newNumber()};
        variables.extras.starts = m_ways;
        for (int i = 0; i < 60; ++i)
            m_ways.append(newNumber());
        m_texts.resize(401);
        const int end = newNumber();
        for (qsizetype i = 0; i < m_ways.size(); ++i)
            add(m_ways.at(i), Prose + to(m_ways.value(i + 1, end)));
        add(end, Prose);
        expect("fin", end);
        plantWays();
        plantTexts();
        for (int n = 1; n <= 400; ++n)
            if (!m_texts.at(n).isEmpty())
                write(n, m_texts.at(n).trimmed());
    }

    QStringList expected;

private:
    int newNumber() { return m_free.takeLast(); }
    // Each paragraph of the sound way gets one plant at most.
    int takeWay() { return m_ways.takeAt(m_random.bounded(int(m_ways.size()))); }
    void add(int n, const QString &text) { m_texts[n] += text; }
    void expect(const QString &kind, int n, const QString &more = {})
    {
        expected.append(QString("%1 %2 %3").arg(kind).arg(n).arg(more).trimmed());
    }

    void plantWays()
    {
        const int promising = takeWay();
        const int empty = newNumber();
        add(promising, to(empty));
        expect("vide", promising, QString::number(empty));

        const int orphan = newNumber();
        const int child = newNumber();
        add(orphan, Prose + to(child));
        add(child, Prose + to(takeWay()));
        expect("inaccessible", orphan);
        expect("inaccessible", child, QString::number(orphan));

        QList<int> ring{newNumber(), newNumber(), newNumber()};
        for (int i = 0; i < 3; ++i)
            add(ring.at(i), Prose + to(ring.at((i + 1) % 3)));
        add(ring.first(), to(takeWay()));
        for (const int n : ring)
            expect("inaccessible", n, QString::number(*std::min_element(ring.begin(), ring.end())));

        QList<int> trap;
        for (int size = m_random.bounded(3, 9); size > 0; --size)
            trap.append(newNumber());
        add(takeWay(), to(trap.first())); // into it, one paragraph before the ring
        for (qsizetype i = 0; i < trap.size(); ++i)
            add(trap.at(i), Prose + to(i + 1 < trap.size() ? trap.at(i + 1) : trap.at(1)));
        std::sort(trap.begin(), trap.end());
        QStringList members;
        for (const int n : trap)
            members.append(QString::number(n));
        expect("piege", trap.first(), members.join(u','));

        const int alone = newNumber();
        add(takeWay(), to(alone));
        add(alone, Prose + to(alone));
        expect("soi-seul", alone);
    }

    void plantTexts()
    {
        const int itself = takeWay();
        add(itself, to(itself));
        expect("soi", itself);
        const int twice = takeWay();
        const int target = takeWay();
        add(twice, to(target) + " Sinon, allez aussi au " + QString::number(target) + '.');
        expect("double", twice, QString::number(target));
        const std::tuple<const char *, const char *, const char *> plants[] = {
            {"hors-limites", " Montez au 2345.", "2345"},
            {"douteux", " Descendez au 0%1.", ""},
            {"non-suivi", " Voir § %1.", ""},
            {"sans-lien", " REVENEZ AU %1.", ""},
            {"a-faire", " TODO : la scène du pont.", ""},
        };
        for (const auto &[kind, text, more] : plants) {
            const int n = takeWay();
            const QString planted(text);
            add(n, planted.contains('%') ? planted.arg(takeWay()) : planted);
            expect(kind, n, more);
        }
        const int brief = takeWay();
        m_texts[brief] =
            "Là." + m_texts.at(brief).mid(Prose.size() + QString(" Rendez-vous").size());
        expect("court", brief);
    }

    QRandomGenerator m_random;
    QList<int> m_free;
    QList<int> m_ways;
    QStringList m_texts;
};

// The same findings about ways by comparing every paragraph with every other.
class SlowModel
{
public:
    SlowModel(const Variables &variables, int count, const QList<int> &starts)
        : m_variables(variables), m_count(count), m_leads(count + 1, QList<bool>(count + 1))
    {
        for (int a = 1; a <= count; ++a)
            for (const int b : referredParagraphs(variables.refIndex.at(a)))
                m_leads[a][b] = true;
        for (int k = 1; k <= count; ++k)
            for (int a = 1; a <= count; ++a)
                for (int b = 1; b <= count; ++b)
                    m_leads[a][b] |= m_leads[a][k] && m_leads[k][b];
        for (int n = 1; n <= count; ++n)
            m_reached.append(std::any_of(starts.begin(), starts.end(), [&](int start) {
                return start == n || m_leads[start][n];
            }));
    }

    QStringList findings() const
    {
        QStringList found;
        bool ending = false;
        QMap<int, QStringList> traps;
        for (int n = 1; n <= m_count; ++n) {
            ending |= reached(n) && written(n) && isEnd(n);
            if (written(n) && !reached(n))
                found.append(QString("inaccessible %1 %2").arg(n).arg(hook(n)).trimmed());
            if (isCaught(n))
                traps[lowestOfSet(n)].append(QString::number(n));
        }
        for (auto trap = traps.begin(); trap != traps.end(); ++trap)
            if (trap->size() > 1)
                found.append(QString("piege %1 %2").arg(trap.key()).arg(trap->join(u',')));
        if (!ending)
            found.append("sans-fin 1");
        found.sort();
        return found;
    }

private:
    bool written(int n) const { return m_variables.Written.at(n) == 1; }
    bool reached(int n) const { return m_reached.at(n - 1); }
    bool isEnd(int n) const { return !m_leads[n].contains(true); }
    bool isCaught(int n) const
    {
        if (!reached(n) || isEnd(n))
            return false;
        for (int end = 1; end <= m_count; ++end)
            if (m_leads[n][end] && isEnd(end))
                return false;
        return true;
    }

    // Two that are caught are in one set when a chain of them leads there, either way round.
    int lowestOfSet(int n) const
    {
        QList<int> set{n};
        for (qsizetype i = 0; i < set.size(); ++i)
            for (int m = 1; m <= m_count; ++m)
                if (isCaught(m) && !set.contains(m) &&
                    (m_leads[m][set.at(i)] || m_leads[set.at(i)][m]))
                    set.append(m);
        return *std::min_element(set.begin(), set.end());
    }

    // The lowest that leads to n, or is n, and is led to only by those that it leads to.
    QString hook(int n) const
    {
        for (int root = 1; root <= m_count; ++root) {
            QList<int> before; // others that lead to it
            for (int m = 1; m <= m_count; ++m)
                if (m != root && m_leads[m][root])
                    before.append(m);
            const bool isRoot =
                std::all_of(before.begin(), before.end(), [&](int m) { return m_leads[root][m]; });
            if (!isRoot || !written(root) || (root != n && !m_leads[root][n]))
                continue;
            return root == n && before.isEmpty() ? QString() : QString::number(root);
        }
        return "?";
    }

    const Variables &m_variables;
    int m_count;
    QList<QList<bool>> m_leads;
    QList<bool> m_reached;
};
} // namespace

class tst_checkBook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsWhatWasPlanted()
    {
        for (quint32 seed = 1; seed <= 20; ++seed) {
            PlantedBook book(seed);
            book.expected.sort();
            const QStringList found = shortly(book.findings());
            QVERIFY2(found == book.expected,
                     qPrintable(QString("seed %1: %2 instead of %3")
                                    .arg(QString::number(seed), found.join("; "),
                                         book.expected.join("; "))));
        }
    }

    void waysAreThoseOfASlowModel()
    {
        const QStringList ofWays{"inaccessible", "piege", "sans-fin"};
        for (quint32 seed = 1; seed <= 300; ++seed) {
            constexpr int count = 14;
            const Variables variables = randomBook(seed, count);
            QList<Finding> found = CheckBook(variables, {}).findings;
            found.removeIf([&](const Finding &f) { return !ofWays.contains(kindName(f.kind)); });
            QCOMPARE(shortly(found),
                     SlowModel(variables, count, variables.extras.starts).findings());
            for (const Finding &trap : found) {
                for (qsizetype i = 0; i < trap.loop.size(); ++i) {
                    const int next = trap.loop.at((i + 1) % trap.loop.size());
                    QVERIFY(trap.members.contains(next));
                    QVERIFY(variables.refIndex.at(trap.loop.at(i)).contains(fourDigits(next)));
                }
                QCOMPARE(trap.loop.isEmpty(), trap.kind != FindingKind::Trap);
            }
        }
    }

    void badInput_data()
    {
        QString ring;
        for (int n = 1; n <= 2000; ++n)
            ring += QString("%1: %2\n").arg(n).arg(n % 2000 + 1);
        QString star = "1:";
        for (int n = 1; n <= 2000; ++n)
            star += " " + QString::number(n);
        addTable<QString, QList<int>, QStringList>(
            {"book", "starts", "kinds"},
            {{"nothing", "", {}, {"sans-fin 1"}},
             {"one empty paragraph", "1:", {}, {"court 1", "fin 1"}},
             {"ring", ring.trimmed(), {}, {"court 2000", "piege 1", "sans-fin 1"}},
             {"references", star, {}, {"court 1", "sans-fin 1", "soi 1", "vide 1999"}},
             {"empty starts", "7: 8\n8:", {3, 0, -1, 2001}, {"court 2", "fin 1"}},
             {"zero", "0: 3\n1: 0\n3: 1", {}, {"court 2", "fin 1", "inaccessible 1"}}});
    }
    void badInput()
    {
        QFETCH(QString, book);
        QFETCH(QList<int>, starts);
        Variables variables = referring(book);
        variables.extras.starts = starts;
        const QList<Finding> found = CheckBook(variables, {}).findings;
        QMap<QString, int> counts;
        for (const Finding &finding : found) {
            ++counts[kindName(finding.kind)];
            QVERIFY(!finding.sentence().isEmpty());
            QVERIFY2(!finding.sentence().contains('%'), qPrintable(finding.sentence()));
        }
        QStringList kinds;
        for (auto kind = counts.begin(); kind != counts.end(); ++kind)
            kinds.append(QString("%1 %2").arg(kind.key()).arg(kind.value()));
        QTEST(kinds, "kinds");
    }

    // It is forgotten when its sentence changes, and not when numbers or other sentences do.
    void acceptedFindingsStayAway()
    {
        const Table<QString, bool> table{
            {"same", "Il dort. Fuyez au 0%1 ou au 0%1. Fin.", true},
            {"another number", "Il dort. Fuyez au 0%2 ou au 0%2. Fin.", true},
            {"another sentence", "Il ronfle. Fuyez au 0%1 ou au 0%1. Fin.", true},
            {"its sentence", "Il dort. Courez au 0%1 ou au 0%1. Fin.", false},
        };
        for (const auto &[name, text, stays] : table) {
            TextBook book;
            book.write(1, "Il dort. Fuyez au 012 ou au 012. Fin.");
            QList<AcceptedFinding> &aside = book.variables.extras.accepted;
            for (const Finding &finding : book.findings())
                if (finding.kind == FindingKind::Doubtful)
                    aside.append(accepted(finding));
            QCOMPARE(aside.size(), 2);
            aside.removeLast(); // each of the two counts alone
            book.write(1, QString(text).replace("%1", "12").replace("%2", "1234"));
            const QStringList found = shortly(book.findings());
            QCOMPARE(found.count("douteux 1"), stays ? 1 : 2);
        }
    }

    // What is accepted about a reference says nothing about one to another number, and follows its
    // own through a renumbering.
    void acceptedTargetsAreTheirOwn()
    {
        const Table<QString, QStringList> table{
            {"renumbered", "Fuyez au 4 ou au 3. Courez au 2345.", {}},
            {"another empty one", "Fuyez au 4 ou au 88. Courez au 2345.", {"vide 1 88"}},
            {"another beyond",
             "Fuyez au 4 ou au 3. Courez au 99999999999.",
             {"hors-limites 1 2147483647"}},
        };
        for (const auto &[name, text, found] : table) {
            TextBook book;
            book.write(1, "Fuyez au 4 ou au 88. Courez au 2345.");
            book.write(4, "Fin du livre pour vous deux.");
            NumberMap swapped = unmovedNumbers();
            std::swap(swapped.at(3), swapped.at(88));
            book.variables.extras =
                renumbered(withAccepted(book.variables.extras, book.findings()), swapped);
            book.write(1, text);
            QCOMPARE(shortly(book.findings()), found);
        }
    }
};

QTEST_GUILESS_MAIN(tst_checkBook)
#include "tst_checkBook.moc"

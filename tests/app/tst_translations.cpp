#include "WindowFixture.h"
#include "convert/book/bookFactsDlog.h"
#include "platform/Translations.h"
#include "support/TestTable.h"

#include <QFile>
#include <QGroupBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QSet>
#include <QTabWidget>
#include <QTranslator>
#include <QTreeView>
#include <QXmlStreamReader>

namespace
{
struct Message {
    QString source;
    QStringList translations;
    bool finished = true;
};

QList<Message> englishTable()
{
    QFile file(QString(USMIRA_RESOURCES) + "/translations/usmira_en.ts");
    QList<Message> found;
    QXmlStreamReader reader(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    bool plural = false;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString name = reader.name().toString();
        if (name == "message")
            plural = reader.attributes().hasAttribute("numerus");
        else if (name == "source")
            found.append({reader.readElementText(), {}});
        else if (name == "translation")
            found.last().finished = !reader.attributes().hasAttribute("type");
        if (name == (plural ? "numerusform" : "translation"))
            found.last().translations.append(reader.readElementText());
    }
    return found;
}

QStringList placesOf(const QString &text)
{
    QStringList places;
    auto match = QRegularExpression("%[0-9np]|<999>|\n|\t").globalMatch(text);
    while (match.hasNext())
        places.append(match.next().captured());
    places.sort();
    return places;
}

QString mnemonicOf(const QString &text)
{
    return QRegularExpression("^(?:[^&]|&&)*&([^&\\s])").match(text).captured(1).toLower();
}

template <typename Kind> QList<Kind *> shown(const QWidget &window)
{
    QList<Kind *> found = window.findChildren<Kind *>();
    found.removeIf([](const Kind *widget) {
        return !widget->isVisible() || widget->objectName().startsWith(u"qt_");
    });
    return found;
}

// Captions that the keyboard reaches by a letter.
QStringList captionsOf(const QWidget &window)
{
    QStringList captions;
    for (const auto *button : shown<QAbstractButton>(window))
        captions.append(button->text());
    for (const auto *label : shown<QLabel>(window))
        if (label->buddy() != nullptr)
            captions.append(label->text());
    for (const auto *bar : shown<QTabBar>(window))
        for (int i = 0; i < bar->count(); ++i)
            captions.append(bar->tabText(i));
    for (const auto *bar : shown<QMenuBar>(window))
        for (const QAction *menu : bar->actions())
            captions.append(menu->text());
    return captions;
}

QStringList textsOf(const QWidget &window)
{
    QStringList texts = captionsOf(window) + QStringList{window.windowTitle()};
    for (const auto *widget : window.findChildren<QWidget *>())
        texts += {widget->toolTip(), widget->accessibleName()};
    for (const auto *label : window.findChildren<QLabel *>())
        texts.append(label->text());
    for (const auto *edit : window.findChildren<QLineEdit *>())
        texts.append(edit->placeholderText());
    for (const auto *action : window.findChildren<QAction *>())
        texts += {action->text(), action->toolTip()};
    for (const auto *header : window.findChildren<QHeaderView *>())
        for (int i = 0; i < header->count(); ++i)
            texts.append(header->model()->headerData(i, header->orientation()).toString());
    return texts;
}

QStringList doubled(const QStringList &captions)
{
    QStringList twice;
    QSet<QString> used;
    for (const QString &caption : captions) {
        const QString key = mnemonicOf(caption);
        if (!key.isEmpty() && used.contains(key))
            twice.append(caption);
        used.insert(key);
    }
    return twice;
}

bool isCut(const QLabel &label)
{
    return label.wordWrap() ? label.heightForWidth(label.width()) > label.height()
                            : label.sizeHint().width() > label.width();
}

QStringList cutTexts(const QWidget &window)
{
    QStringList cut;
    for (const auto *label : shown<QLabel>(window))
        if (isCut(*label))
            cut.append(label->text());
    for (const auto *button : shown<QAbstractButton>(window))
        if (!button->text().isEmpty() && button->sizeHint().width() > button->width())
            cut.append(button->text());
    for (const auto *bar : shown<QTabBar>(window))
        if (bar->sizeHint().width() > bar->width())
            cut.append(bar->tabText(0));
    for (const auto *header : shown<QHeaderView>(window))
        for (int i = 0; header->orientation() == Qt::Horizontal && i < header->count(); ++i) {
            const QString title = header->model()->headerData(i, Qt::Horizontal).toString();
            if (header->fontMetrics().horizontalAdvance(title) > header->sectionSize(i))
                cut.append(title);
        }
    return cut;
}
} // namespace

class tst_translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_messages = englishTable();
        QVERIFY(m_messages.size() > 900 && m_english.load(":/translations/usmira_en.qm"));
        for (const Message &message : std::as_const(m_messages))
            if (!message.translations.contains(message.source))
                m_french.insert(message.source);
    }
    void cleanup() { QCoreApplication::removeTranslator(&m_english); }

    void theEnglishTableIsWhole()
    {
        const auto blanks = [](const QString &text) {
            return std::pair(text.startsWith(u' '), text.endsWith(u' '));
        };
        for (const auto &[source, translations, finished] : std::as_const(m_messages)) {
            QVERIFY2(finished, qPrintable(source));
            for (const QString &text : translations) {
                QVERIFY2(!text.isEmpty(), qPrintable(source));
                QVERIFY2(placesOf(text) == placesOf(source), qPrintable(text));
                QVERIFY2(blanks(text) == blanks(source) || text == "%", qPrintable(text));
            }
        }
    }

    void theWelcomeIsInItsLanguage()
    {
        WindowFixture fixture;
        fixture.adventure.file("Dossier Usmira/Copyright.rtf", rtfOf("Bienvenue"));
        QCoreApplication::installTranslator(&m_english);
        fixture.start();
        QCOMPARE(fixture.box().text(), "Bienvenue"); // a folder of an earlier version
        fixture.adventure.file("Dossier Usmira/Welcome.rtf", rtfOf("Welcome"));
        fixture.start();
        QCOMPARE(fixture.box().text(), "Welcome");
        QCoreApplication::removeTranslator(&m_english);
        fixture.start();
        QCOMPARE(fixture.box().text(), "Bienvenue");
    }

    void everyWindowIsInItsLanguage_data()
    {
        addTable<bool>({"english"}, {{"French", false}, {"English", true}});
    }
    void everyWindowIsInItsLanguage()
    {
        QFETCH(const bool, english);
        if (english)
            QCoreApplication::installTranslator(&m_english);
        QCOMPARE(localeOfTexts().language(), english ? QLocale::English : QLocale::French);
        WindowFixture fixture(AdventureBuilder(
            {"1: Va au 7, au 900 ou au  7.", "2: au 026.", "7: Ici, au 15 août, enfin au 1."}));
        const auto &keys = fixture.control<QAction>(english ? "menuInfoHelp" : "menuInfoAide");
        QCOMPARE(keys.shortcut(), QKeySequence("F1"));
        fixture.click("btnMore");
        QStringList names;
        const auto look = [&](QWidget &window) {
            names.append(window.objectName());
            checkPages(window, english);
        };
        look(*fixture.window);
        for (QAction *item : fixture.window->findChildren<QAction *>(QRegularExpression("^menu"))) {
            if (!item->text().endsWith("...") && !Windows.contains(item->objectName()))
                continue;
            if (Prompting.contains(item->objectName()))
                continue;
            fixture.inDialog([item] { item->trigger(); }, look);
            for (QWidget *window : QApplication::topLevelWidgets())
                if (window->isVisible() && window != fixture.window.get()) {
                    look(*window);
                    window->close();
                }
        }
        bookFactsDlog facts(fixture.variables, fixture.prompts, fixture.window.get());
        facts.show();
        look(facts);
        qsizetype shown = 27;
        for (const char *item : {"menuConvPdf", "menuConvEpub"}) // not on every system
            shown += fixture.control<QAction>(item).isVisible() ? 1 : 0;
        QVERIFY2(names.size() == shown, qPrintable(names.join(u' ')));
    }

private:
    // Their captions end without the dots, or they ask for a file at once.
    static inline const QStringList Windows{
        "menuComGraphs",  "menuComGrid",     "menuComCheck",    "menuComStatistics",
        "menuComReading", "menuConv1toHTML", "menuConvNtoHTML", "menuInfoHelp"};
    static inline const QStringList Prompting{"menuAvNew",    "menuAvOpen",    "menuAvSaveCopy",
                                              "menuAvImport", "menuConvLoad1", "menuConvSave1"};

    void checkPages(QWidget &window, bool english)
    {
        window.resize(0, 0);
        auto *tabs = window.findChild<QTabWidget *>();
        for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
            if (tabs != nullptr)
                tabs->setCurrentIndex(page);
            QTest::qWait(20);
            const QString where = window.objectName() + QString(" %1: ").arg(page);
            const auto none = [&](const QStringList &texts, const char *what) {
                QVERIFY2(texts.isEmpty(), qPrintable(where + what + texts.join(" | ")));
            };
            none(doubled(captionsOf(window)), "the same letter: ");
            none(cutTexts(window), "cut: ");
        }
        for (const auto *menu : window.findChildren<QMenu *>()) {
            QStringList captions;
            for (const QAction *action : menu->actions())
                captions.append(action->text());
            QVERIFY2(doubled(captions).isEmpty(), qPrintable(doubled(captions).join(" | ")));
        }
        for (const QString &text : textsOf(window))
            QVERIFY2(!english || !m_french.contains(text), qPrintable(text));
    }

    QList<Message> m_messages;
    QSet<QString> m_french; // what only French says
    QTranslator m_english;
};

QTEST_MAIN(tst_translations)
#include "tst_translations.moc"

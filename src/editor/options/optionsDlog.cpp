#include "editor/options/optionsDlog.h"

#include "editor/TypingAids.h"
#include "editor/options/DefaultFont.h"
#include "editor/options/EditorComfort.h"
#include "language/spelling/DictionaryFiles.h"
#include "platform/Guarded.h"
#include "store/Variables.h"
#include "ui_optionsDlog.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QLineEdit>

optionsDlog::optionsDlog(Variables &variables, Prompts &prompts, ComfortKeeper &keeper,
                         RichTextBox &box, QWidget *parent)
    : QDialog(parent), m_variables(variables), m_keeper(keeper), m_box(box),
      m_ui(std::make_unique<Ui::optionsDlog>())
{
    m_ui->setupUi(this);
    connectGuarded(m_ui->OKButton, &QPushButton::clicked, this, prompts,
                   [this] { OKButton_Click(); });
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &optionsDlog::CancelButton_Click);
    Form_Load();
    Form_Activate();
}

optionsDlog::~optionsDlog() = default;

void optionsDlog::Form_Load()
{
    constexpr int longestFontName = 255; // what the settings file takes
    m_ui->comboFonts->addItems(QFontDatabase::families());
    m_ui->comboFonts->lineEdit()->setMaxLength(longestFontName);
    m_ui->spinZoom->setRange(EditorComfort::LeastZoom, EditorComfort::MostZoom);
    m_ui->spinPage->setRange(EditorComfort::NarrowestPage, EditorComfort::WidestPage);
    m_ui->tabs->setCurrentIndex(0);
}

// In the order of the options.
QCheckBox &optionsDlog::check(int option) const
{
    const std::array<QCheckBox *, 9> boxes{m_ui->Check1, m_ui->Check2, m_ui->Check3,
                                           m_ui->Check4, m_ui->Check5, m_ui->Check6,
                                           m_ui->Check7, m_ui->Check8, m_ui->Check9};
    return *boxes.at(static_cast<std::size_t>(option));
}

void optionsDlog::Form_Activate()
{
    int i = 0;
    for (const TypingOption &option : typingOptions())
        check(i++).setChecked(option.isOn(m_variables));
    m_ui->comboFonts->setEditText(m_variables.defaultFontName);
    m_ui->comboSizes->setEditText(QString::number(m_variables.defaultFontSize));
    showComfort();
}

void optionsDlog::showComfort()
{
    const EditorComfort &comfort = m_keeper.comfort();
    m_ui->spinZoom->setValue(comfort.zoom);
    m_ui->spinPage->setValue(comfort.pageWidth);
    m_ui->comboColours->setCurrentIndex(static_cast<int>(comfort.colours));
    m_ui->comboLanguage->setCurrentIndex(static_cast<int>(comfort.language));
    m_ui->chkReopen->setChecked(comfort.reopenLast);
    m_ui->chkUnderlines->setChecked(comfort.underlines);
    m_ui->chkSpelling->setChecked(comfort.spelling);
    m_ui->chkCapitals->setChecked(comfort.skipsCapitals);
    m_ui->chkDigits->setChecked(comfort.skipsDigits);
    m_ui->typographyOptions->setKinds(comfort.typography);
    showDictionaries();
}

// The one that is chosen stays in the list, also where it is not installed.
void optionsDlog::showDictionaries()
{
    const QString chosen = m_keeper.comfort().dictionary;
    const std::optional<DictionaryFiles> files = findDictionary(chosen);
    const QList<DictionaryFiles> installed = installedDictionaries();
    for (const DictionaryFiles &one : installed) {
        m_ui->comboDictionary->addItem(dictionaryCaption(one.name), one.name);
        if (files &&
            QFileInfo(one.words).canonicalFilePath() == QFileInfo(files->words).canonicalFilePath())
            m_ui->comboDictionary->setCurrentIndex(m_ui->comboDictionary->count() - 1);
    }
    if (files)
        return;
    m_ui->comboDictionary->addItem(tr("%1, pas installé").arg(dictionaryCaption(chosen)), chosen);
    m_ui->comboDictionary->setCurrentIndex(m_ui->comboDictionary->count() - 1);
}

void optionsDlog::OKButton_Click()
{
    int i = 0;
    for (const TypingOption &option : typingOptions())
        option.set(m_variables, check(i++).isChecked());
    setDefaultFont(m_variables, m_ui->comboFonts->currentText(), m_ui->comboSizes->currentText());
    takeComfort();
    applyDefaultFont(m_variables, m_box);
    accept();
}

void optionsDlog::takeComfort()
{
    EditorComfort comfort = m_keeper.comfort();
    comfort.zoom = m_ui->spinZoom->value();
    comfort.pageWidth = m_ui->spinPage->value();
    comfort.colours = static_cast<EditorComfort::Colours>(m_ui->comboColours->currentIndex());
    comfort.language = static_cast<EditorComfort::Language>(m_ui->comboLanguage->currentIndex());
    comfort.reopenLast = m_ui->chkReopen->isChecked();
    comfort.underlines = m_ui->chkUnderlines->isChecked();
    comfort.spelling = m_ui->chkSpelling->isChecked();
    comfort.dictionary = m_ui->comboDictionary->currentData().toString();
    comfort.skipsCapitals = m_ui->chkCapitals->isChecked();
    comfort.skipsDigits = m_ui->chkDigits->isChecked();
    comfort.typography = m_ui->typographyOptions->kinds();
    m_keeper.change(comfort);
}

void optionsDlog::CancelButton_Click()
{
    reject();
}

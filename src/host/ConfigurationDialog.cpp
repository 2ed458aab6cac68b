#include "ConfigurationDialog.h"

#include "Catalogues.h"
#include "DataFolderCheck.h"
#include "DataFolderChoice.h"
#include "HostNames.h"
#include "LanguageChoice.h"
#include "ZvConfig.h"
#include "ZvEditorConfig.h"
#include "upload/UploadTargetList.h"
#include "upload/UploadTargets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QStyle>
#include <QVBoxLayout>

namespace Zavo {

namespace {
constexpr int mostRemovingDays = 36500;
constexpr int explanationWidthInCharacters = 84;
constexpr int targetListHeightInLines = 7;

/// A sentence that explains a control, @p indentPx from the left.
QLabel *createExplanation(const QString &text, QWidget *parent, int indentPx = 0)
{
    auto *const label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setContentsMargins(indentPx, 0, 0, 0);
    // A layout within layouts does not ask how high a text is at a width, so the label tells it.
    const int width = label->fontMetrics().averageCharWidth() * explanationWidthInCharacters;
    label->setMinimumWidth(width);
    label->setFixedHeight(label->heightForWidth(width));
    QSizePolicy policy = label->sizePolicy();
    policy.setHeightForWidth(false);
    label->setSizePolicy(policy);
    return label;
}

QCheckBox *addSwitch(QVBoxLayout *layout, const char *name, const QString &text,
                     const QString &explanation)
{
    auto *const box = new QCheckBox(text, layout->parentWidget());
    box->setObjectName(QLatin1String(name));
    box->setAccessibleDescription(explanation);
    box->setStatusTip(explanation);
    layout->addWidget(box);
    const QStyle &style = *box->style();
    const int indentPx = style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, box) +
                         style.pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, box);
    layout->addWidget(createExplanation(explanation, layout->parentWidget(), indentPx));
    return box;
}
} // namespace

ConfigurationDialog::ConfigurationDialog(bool targetsAreInUse, QWidget *parent)
    : QDialog(parent)
{
    setObjectName(QLatin1String(HostNames::configurationDialog));
    setWindowTitle(tr("Configuration"));
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(createLanguageBox());
    layout->addWidget(createFolderBox());
    layout->addWidget(createFileBox());
    layout->addWidget(createTargetBox(targetsAreInUse));
    auto *const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    layout->addWidget(buttons);
}

void ConfigurationDialog::accept()
{
    if (!checkFolder() || !writeFile())
        return;
    LanguageChoice::store(m_language->currentData().toString());
    DataFolderChoice::store(chosenFolder());
    if (m_targets->isEnabled())
        UploadTargets::store(m_targets->targets());
    QDialog::accept();
}

void ConfigurationDialog::browse()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Choose Data Folder"),
                                                             ZvEditorConfig::dataDir());
    if (!folder.isEmpty())
        m_folder->setText(QDir::toNativeSeparators(folder));
}

QGroupBox *ConfigurationDialog::createLanguageBox()
{
    const QString explanation = tr("Takes effect at the next start.");
    auto *const group = new QGroupBox(tr("Language"), this);
    m_language = new QComboBox(group);
    m_language->setObjectName(QLatin1String(HostNames::languageBox));
    m_language->setAccessibleName(tr("Language"));
    m_language->setAccessibleDescription(explanation);
    m_language->setStatusTip(explanation);
    m_language->addItem(tr("As in the system"), QString());
    QStringList languages = Catalogues::languages(Catalogues::standardFolders());
    const QString stored = LanguageChoice::stored();
    if (!stored.isEmpty() && !languages.contains(stored))
        languages.append(stored);
    for (const QString &language : qAsConst(languages))
        m_language->addItem(LanguageChoice::nameOf(language), language);
    m_language->setCurrentIndex(m_language->findData(stored));
    auto *const layout = new QHBoxLayout(group);
    layout->addWidget(m_language);
    layout->addWidget(new QLabel(explanation, group), 1);
    return group;
}

QGroupBox *ConfigurationDialog::createFolderBox()
{
    auto *const group = new QGroupBox(tr("Data folder"), this);
    m_folder = new QLineEdit(QDir::toNativeSeparators(DataFolderChoice::stored()), group);
    m_folder->setObjectName(QLatin1String(HostNames::dataFolderField));
    m_folder->setAccessibleName(tr("Data folder"));
    m_folder->setPlaceholderText(tr("The usual folder of this user"));
    auto *const browseButton = new QPushButton(tr("&Browse..."), group);
    browseButton->setAutoDefault(false);
    auto *const row = new QHBoxLayout;
    row->addWidget(m_folder);
    row->addWidget(browseButton);
    const QString explanation =
        tr("Channels and stages lie there. The program opens this folder from the next start on, "
           "unless it is started with another one. Now open: %1")
            .arg(QDir::toNativeSeparators(ZvEditorConfig::dataDir()));
    m_folder->setAccessibleDescription(explanation);
    m_folder->setStatusTip(explanation);
    auto *const layout = new QVBoxLayout(group);
    layout->addLayout(row);
    layout->addWidget(createExplanation(explanation, group));
    connect(browseButton, SIGNAL(clicked()), this, SLOT(browse()));
    return group;
}

QGroupBox *ConfigurationDialog::createFileBox()
{
    const ZvConfig &config = *ZvEditorConfig::getConfig();
    auto *const group = new QGroupBox(tr("Schedules"), this);
    auto *const layout = new QVBoxLayout(group);
    layout->addWidget(createExplanation(tr("These hold for everybody who uses the data folder that "
                                           "is open; they are kept in its file config.ini."),
                                        group));
    m_allInOne = addSwitch(layout, HostNames::allInOneBox, tr("Player and editor are &one machine"),
                           tr("Then there is nothing to upload, and the command is disabled. Takes "
                              "effect at the next start."));
    m_allInOne->setChecked(config.allInOne());
    m_defaultScheduleUsedFirst = addSwitch(
        layout, HostNames::defaultFirstBox, tr("Show the &default schedule first"),
        tr("At a start the default schedule of a channel is shown, instead of the kind of "
           "schedule that was shown last."));
    m_defaultScheduleUsedFirst->setChecked(config.defaultScheduleUsedFirst());
    m_removingDuration = new QSpinBox(group);
    m_removingDuration->setObjectName(QLatin1String(HostNames::removingDurationBox));
    m_removingDuration->setRange(0, mostRemovingDays);
    m_removingDuration->setSuffix(tr(" days"));
    m_removingDuration->setValue(config.removingDuration());
    auto *const label = new QLabel(tr("&Keep schedules of past dates for"), group);
    label->setBuddy(m_removingDuration);
    auto *const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_removingDuration);
    row->addStretch();
    layout->addLayout(row);
    const QString explanation =
        tr("Schedules of dates that lie further back are removed when their "
           "channel is opened at the next start, and from its file when it "
           "is saved.");
    m_removingDuration->setAccessibleName(tr("Days for which schedules of past dates are kept"));
    m_removingDuration->setAccessibleDescription(explanation);
    m_removingDuration->setStatusTip(explanation);
    layout->addWidget(createExplanation(explanation, group));
    return group;
}

QGroupBox *ConfigurationDialog::createTargetBox(bool targetsAreInUse)
{
    auto *const group = new QGroupBox(tr("Upload targets"), this);
    m_targets = new UploadTargetList({}, group);
    m_targets->setTargets(UploadTargets::load());
    m_targets->setEnabled(!targetsAreInUse);
    m_targets->setMinimumHeight(fontMetrics().lineSpacing() * targetListHeightInLines);
    auto *const label = createExplanation(
        targetsAreInUse ? tr("An upload is going on, so its targets cannot be changed now.")
                        : tr("Folders and machines that get the channels with an upload. Those "
                             "that are checked are offered first."),
        group);
    auto *const layout = new QVBoxLayout(group);
    layout->addWidget(m_targets);
    layout->addWidget(label);
    return group;
}

QString ConfigurationDialog::chosenFolder() const
{
    return QDir::fromNativeSeparators(m_folder->text().trimmed());
}

bool ConfigurationDialog::checkFolder()
{
    const QString folder = chosenFolder();
    if (folder.isEmpty() || folder == DataFolderChoice::stored())
        return true;
    const bool isPlain = QDir::isAbsolutePath(folder) && !folder.contains(QChar::Null);
    const QString problem = isPlain ? DataFolderCheck().problem(folder)
                                    : tr("\"%1\" is not the full path of a folder.").arg(folder);
    if (problem.isEmpty())
        return true;
    m_folder->setFocus();
    complain(problem);
    return false;
}

bool ConfigurationDialog::writeFile()
{
    const ZvConfig &current = *ZvEditorConfig::getConfig();
    ZvConfig config = current;
    config.setAllInOne(m_allInOne->isChecked());
    config.setDefaultScheduleUsedFirst(m_defaultScheduleUsedFirst->isChecked());
    config.setRemovingDuration(m_removingDuration->value());
    if (config.allInOne() == current.allInOne() &&
        config.defaultScheduleUsedFirst() == current.defaultScheduleUsedFirst() &&
        config.removingDuration() == current.removingDuration())
        return true;
    if (config.write()) {
        ZvEditorConfig::reload();
        return true;
    }
    complain(tr("The configuration cannot be written to \"%1\". Nothing has been changed.")
                 .arg(QDir::toNativeSeparators(config.filePath())));
    return false;
}

void ConfigurationDialog::complain(const QString &message)
{
    QMessageBox::critical(this, windowTitle(), message);
}

} // namespace Zavo

#include "safety/BackupDialog.h"

#include "safety/SafetyNames.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QXmlStreamReader>

namespace Zavo {

namespace {

constexpr QSize backupDialogSize(760, 440);
constexpr int channelListWidth = 220;
constexpr int restorableRole = Qt::UserRole + 1;
enum BackupColumn { DateColumn, DifferenceColumn };

/// The name of a channel without reading its schedules.
QString nameInFile(const QString &path)
{
    constexpr int headBytes = 4096;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader reader(file.read(headBytes));
    return reader.readNextStartElement()
               ? reader.attributes().value(QLatin1String("name")).toString()
               : QString();
}

} // namespace

BackupDialog::BackupDialog(const QString &dataDir, const BackupStore *store, QWidget *parent)
    : QDialog(parent)
    , m_store(store)
    , m_comparer(dataDir)
{
    setWindowTitle(tr("Safety Copies"));
    resize(backupDialogSize);
    createWidgets();
    connectWidgets();
    fillChannels();
}

std::optional<BackupState> BackupDialog::chosenState() const
{
    const QTreeWidgetItem *const item = m_tree->currentItem();
    if (!item || !item->isSelected() || !item->data(DateColumn, restorableRole).toBool())
        return std::nullopt;
    return m_states.at(m_tree->currentIndex().row());
}

QString BackupDialog::titleOf(const BackupState &state)
{
    const QString name = nameInFile(state.path);
    return name.isEmpty() ? state.fileName : name;
}

void BackupDialog::showStates()
{
    m_tree->clear();
    m_itemOfPath.clear();
    m_states.clear();
    if (const QListWidgetItem *const channel = m_channels->currentItem())
        m_states = m_store->states(channel->data(Qt::UserRole).toString());
    for (const BackupState &state : qAsConst(m_states)) {
        auto *const item = new QTreeWidgetItem(m_tree);
        const QString time =
            QLocale().toString(state.modified, QStringLiteral("yyyy-MM-dd  HH:mm:ss"));
        item->setText(DateColumn, state.wasAtTarget ? tr("%1  at a target").arg(time) : time);
        item->setToolTip(DateColumn, QDir::toNativeSeparators(state.path));
        item->setText(DifferenceColumn, tr("..."));
        m_itemOfPath.insert(state.path, item);
    }
    m_comparer.compare(m_states);
    updateButton();
}

void BackupDialog::onCompared(const QString &path, const QString &text, bool isRestorable)
{
    QTreeWidgetItem *const item = m_itemOfPath.value(path);
    if (!item)
        return;
    item->setText(DifferenceColumn, text);
    item->setToolTip(DifferenceColumn, text);
    item->setData(DateColumn, restorableRole, isRestorable);
    updateButton();
}

void BackupDialog::updateButton()
{
    m_restoreButton->setEnabled(chosenState().has_value());
}

void BackupDialog::createWidgets()
{
    m_channels = new QListWidget;
    m_channels->setObjectName(QLatin1String(SafetyNames::channelList));
    m_channels->setAccessibleName(tr("Channels"));
    m_tree = new QTreeWidget;
    m_tree->setObjectName(QLatin1String(SafetyNames::stateTree));
    m_tree->setAccessibleName(tr("States of the channel"));
    m_tree->setHeaderLabels({tr("Saved"), tr("Change if restored")});
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->header()->setSectionResizeMode(DateColumn, QHeaderView::ResizeToContents);
    auto *const splitter = new QSplitter;
    splitter->addWidget(m_channels);
    splitter->addWidget(m_tree);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({channelListWidth, backupDialogSize.width() - channelListWidth});
    splitter->setChildrenCollapsible(false);

    auto *const folder = new QLabel(
        tr("The copies lie in \"%1\".").arg(QDir::toNativeSeparators(m_store->folder())));
    folder->setTextFormat(Qt::PlainText);
    folder->setWordWrap(true);
    folder->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    m_restoreButton = buttons->addButton(tr("&Restore..."), QDialogButtonBox::AcceptRole);
    m_restoreButton->setObjectName(QLatin1String(SafetyNames::restoreButton));
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));

    auto *const box = new QVBoxLayout(this);
    box->addWidget(splitter, 1);
    box->addWidget(folder);
    box->addWidget(buttons);
}

void BackupDialog::connectWidgets()
{
    // clang-format off
    connect(m_channels, SIGNAL(currentRowChanged(int)), this, SLOT(showStates()));
    connect(&m_nameTimer, SIGNAL(timeout()), this, SLOT(nameNext()));
    connect(m_tree, SIGNAL(itemSelectionChanged()), this, SLOT(updateButton()));
    connect(&m_comparer, SIGNAL(compared(QString,QString,bool)),
            this, SLOT(onCompared(QString,QString,bool)), Qt::QueuedConnection);
    // clang-format on
}

void BackupDialog::fillChannels()
{
    const QStringList fileNames = m_store->fileNames();
    for (const QString &fileName : fileNames) {
        auto *const item = new QListWidgetItem(fileName, m_channels);
        item->setData(Qt::UserRole, fileName);
    }
    m_channels->setCurrentRow(0);
    m_channels->setFocus();
    updateButton();
    m_nameTimer.start(0);
}

void BackupDialog::nameNext()
{
    constexpr int namesAtOnce = 20;
    for (int count = 0; count < namesAtOnce; ++count) {
        if (m_namedCount >= m_channels->count()) {
            m_nameTimer.stop();
            return;
        }
        nameChannel(m_namedCount);
    }
}

void BackupDialog::nameChannel(int row)
{
    QListWidgetItem *const item = m_channels->item(row);
    const QString fileName = item->data(Qt::UserRole).toString();
    const QList<BackupState> states = m_store->states(fileName);
    if (states.isEmpty()) {
        delete item;
        return;
    }
    const QString name = nameInFile(states.constFirst().path);
    if (!name.isEmpty())
        item->setText(QStringLiteral("%1  (%2)").arg(name, fileName));
    ++m_namedCount;
}

} // namespace Zavo

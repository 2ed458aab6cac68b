#include "shortcuts/ShortcutDialog.h"

#include "shortcuts/ShortcutEdit.h"
#include "shortcuts/ShortcutNames.h"
#include "shortcuts/Shortcuts.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Zavo {

namespace {

constexpr int commandColumn = 0;
constexpr int keysColumn = 1;
constexpr int defaultColumn = 2;
constexpr int commandRole = Qt::UserRole;
constexpr int treeHeightInLines = 22;
constexpr int commandWidthInCharacters = 40;
constexpr int keysWidthInCharacters = 30;

QString keyText(const QList<QKeySequence> &sequences)
{
    QStringList texts;
    for (const QKeySequence &sequence : sequences)
        texts.append(sequence.toString(QKeySequence::NativeText));
    return texts.join(QStringLiteral("  "));
}

QPushButton *addButton(QBoxLayout *layout, const char *name, const QString &text)
{
    auto *const button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    // The Enter key belongs to the dialog.
    button->setAutoDefault(false);
    layout->addWidget(button);
    return button;
}

} // namespace

ShortcutDialog::ShortcutDialog(Shortcuts *shortcuts, QWidget *parent)
    : QDialog(parent)
    , m_shortcuts(shortcuts)
    , m_keys(shortcuts->keys())
{
    setObjectName(QLatin1String(ShortcutNames::dialog));
    setWindowTitle(tr("Keyboard Shortcuts"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_filter = new QLineEdit(this);
    m_filter->setObjectName(QLatin1String(ShortcutNames::filterField));
    m_filter->setPlaceholderText(tr("Find a command or a key"));
    m_filter->setAccessibleName(m_filter->placeholderText());
    m_filter->setClearButtonEnabled(true);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    createTree();
    layout->addWidget(m_tree, 1);
    layout->addLayout(createEditor());
    layout->addWidget(createButtons());
    fillTree();
    showEditor();
    // clang-format off
    connect(m_filter, SIGNAL(textChanged(QString)), this, SLOT(filter(QString)));
    connect(m_tree, SIGNAL(currentItemChanged(QTreeWidgetItem*,QTreeWidgetItem*)), this, SLOT(onCurrentItemChanged()));
    connect(m_tree, SIGNAL(itemActivated(QTreeWidgetItem*,int)), m_keyEdit, SLOT(setFocus()));
    connect(m_keyEdit, SIGNAL(typed(QKeySequence)), this, SLOT(onKeysTyped(QKeySequence)));
    connect(m_clearButton, SIGNAL(clicked()), this, SLOT(clearKeys()));
    connect(m_resetButton, SIGNAL(clicked()), this, SLOT(resetKeys()));
    connect(m_resetAllButton, SIGNAL(clicked()), this, SLOT(resetAllKeys()));
    connect(m_reassignButton, SIGNAL(clicked()), this, SLOT(reassignKeys()));
    // clang-format on
}

void ShortcutDialog::createTree()
{
    m_tree = new QTreeWidget(this);
    m_tree->setObjectName(QLatin1String(ShortcutNames::tree));
    m_tree->setAccessibleName(tr("Commands"));
    m_tree->setHeaderLabels({tr("Command"), tr("Keys"), tr("Default")});
    m_tree->setAllColumnsShowFocus(true);
    m_tree->setUniformRowHeights(true);
    m_tree->header()->setSectionsMovable(false);
    const int character = fontMetrics().averageCharWidth();
    m_tree->setColumnWidth(commandColumn, commandWidthInCharacters * character);
    m_tree->setColumnWidth(keysColumn, keysWidthInCharacters * character);
    const int columns = commandWidthInCharacters + 2 * keysWidthInCharacters;
    m_tree->setMinimumSize(columns * character, treeHeightInLines * fontMetrics().lineSpacing());
}

void ShortcutDialog::fillTree()
{
    QTreeWidgetItem *group = nullptr;
    const QVector<ShortcutCommand> &commands = m_shortcuts->commands();
    for (int command = 0; command < commands.size(); ++command) {
        const QString &category = commands.at(command).category;
        if (!group || group->text(commandColumn) != category) {
            group = new QTreeWidgetItem(m_tree, {category});
            group->setFlags(Qt::ItemIsEnabled);
            group->setFirstColumnSpanned(true);
            group->setExpanded(true);
        }
        auto *const item = new QTreeWidgetItem(group, {commands.at(command).name});
        item->setData(commandColumn, commandRole, command);
        item->setText(defaultColumn, keyText(commands.at(command).defaults));
        item->setForeground(defaultColumn, palette().brush(QPalette::Disabled, QPalette::Text));
        m_items.append(item);
        showKeys(command);
    }
}

QBoxLayout *ShortcutDialog::createEditor()
{
    m_keyLabel = new QLabel(this);
    m_keyLabel->setTextFormat(Qt::PlainText);
    m_keyEdit = new ShortcutEdit(this);
    m_keyEdit->setObjectName(QLatin1String(ShortcutNames::keyField));
    m_keyLabel->setBuddy(m_keyEdit);
    m_problem = new QLabel(this);
    m_problem->setObjectName(QLatin1String(ShortcutNames::problemLabel));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);

    auto *const row = new QHBoxLayout;
    row->addWidget(m_keyEdit, 1);
    m_clearButton = addButton(row, ShortcutNames::clearButton, tr("&No Keys"));
    m_resetButton = addButton(row, ShortcutNames::resetButton, tr("&Default"));
    auto *const problemRow = new QHBoxLayout;
    problemRow->addWidget(m_problem, 1);
    m_reassignButton = addButton(problemRow, ShortcutNames::reassignButton, tr("&Take It Away"));
    // The lines below must not jump when there is something to tell.
    m_problem->setMinimumHeight(
        qMax(2 * fontMetrics().lineSpacing(), m_reassignButton->sizeHint().height()));

    auto *const layout = new QVBoxLayout;
    layout->addWidget(m_keyLabel);
    layout->addLayout(row);
    layout->addLayout(problemRow);
    return layout;
}

QWidget *ShortcutDialog::createButtons()
{
    auto *const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_resetAllButton = buttons->addButton(tr("&All to Default"), QDialogButtonBox::ResetRole);
    m_resetAllButton->setObjectName(QLatin1String(ShortcutNames::resetAllButton));
    m_resetAllButton->setAutoDefault(false);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    return buttons;
}

void ShortcutDialog::accept()
{
    m_shortcuts->store(m_keys);
    QDialog::accept();
}

void ShortcutDialog::filter(const QString &text)
{
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const group = m_tree->topLevelItem(i);
        const bool isGroupFound = group->text(commandColumn).contains(text, Qt::CaseInsensitive);
        bool isAnyFound = false;
        for (int j = 0; j < group->childCount(); ++j) {
            QTreeWidgetItem *const item = group->child(j);
            const bool isFound = isGroupFound ||
                                 item->text(commandColumn).contains(text, Qt::CaseInsensitive) ||
                                 item->text(keysColumn).contains(text, Qt::CaseInsensitive);
            item->setHidden(!isFound);
            isAnyFound = isAnyFound || isFound;
        }
        group->setHidden(!isAnyFound);
    }
    // What is not shown is not to be changed.
    const QTreeWidgetItem *const current = m_tree->currentItem();
    if (current && current->isHidden())
        m_tree->setCurrentItem(nullptr);
}

void ShortcutDialog::onCurrentItemChanged()
{
    showEditor();
}

void ShortcutDialog::onKeysTyped(const QKeySequence &sequence)
{
    const int command = currentCommand();
    if (command < 0)
        return;
    const Shortcuts::Conflict conflict = m_shortcuts->conflict(sequence, command, m_keys);
    m_wantedSequence = sequence;
    showProblem(conflict.reason, conflict.command);
    if (conflict.isNone())
        setKeys(command, {sequence});
    else
        m_keyEdit->setKeySequence(sequence); // so that the next key begins anew
}

void ShortcutDialog::clearKeys()
{
    const int command = currentCommand();
    if (command < 0)
        return;
    setKeys(command, {});
    showEditor();
}

void ShortcutDialog::resetKeys()
{
    const int command = currentCommand();
    if (command < 0)
        return;
    const QList<QKeySequence> &defaults = m_shortcuts->commands().at(command).defaults;
    for (const QKeySequence &sequence : defaults) {
        const Shortcuts::Conflict conflict = m_shortcuts->conflict(sequence, command, m_keys);
        if (conflict.isNone())
            continue;
        m_wantedSequence = {};
        showProblem(conflict.reason, conflict.command);
        return;
    }
    setKeys(command, defaults);
    showEditor();
}

void ShortcutDialog::resetAllKeys()
{
    m_keys = m_shortcuts->defaultKeys();
    for (int command = 0; command < m_keys.size(); ++command)
        showKeys(command);
    showEditor();
}

// The holder loses what is in the way; this command gets the wanted keys or, if its defaults were
// wanted, tries them again.
void ShortcutDialog::reassignKeys()
{
    const int command = currentCommand();
    if (command < 0 || m_holder < 0)
        return;
    const QKeySequence wanted = m_wantedSequence;
    const QList<QKeySequence> sequences = wanted.isEmpty()
                                              ? m_shortcuts->commands().at(command).defaults
                                              : QList<QKeySequence>{wanted};
    setKeys(m_holder, Shortcuts::without(m_keys.at(m_holder), sequences));
    if (wanted.isEmpty())
        resetKeys();
    else
        onKeysTyped(wanted);
}

int ShortcutDialog::currentCommand() const
{
    const QTreeWidgetItem *const item = m_tree->currentItem();
    const QVariant command = item ? item->data(commandColumn, commandRole) : QVariant();
    return command.isValid() ? command.toInt() : -1;
}

void ShortcutDialog::setKeys(int command, const QList<QKeySequence> &sequences)
{
    m_keys[command] = sequences;
    showKeys(command);
}

// What was changed stands out.
void ShortcutDialog::showKeys(int command)
{
    QTreeWidgetItem *const item = m_items.at(command);
    item->setText(keysColumn, keyText(m_keys.at(command)));
    QFont keyFont = m_tree->font();
    keyFont.setBold(m_keys.at(command) != m_shortcuts->commands().at(command).defaults);
    item->setFont(keysColumn, keyFont);
}

void ShortcutDialog::showEditor()
{
    const int command = currentCommand();
    const bool isChosen = command >= 0;
    m_keyLabel->setText(isChosen ? tr("&Press the keys for \"%1\":")
                                       .arg(QString(m_shortcuts->commands().at(command).name)
                                                .replace(QLatin1Char('&'), QLatin1String("&&")))
                                 : tr("Choose a command, then press its keys."));
    m_keyEdit->setKeySequence(isChosen ? m_keys.at(command).value(0) : QKeySequence());
    for (QWidget *widget :
         std::initializer_list<QWidget *>{m_keyEdit, m_clearButton, m_resetButton})
        widget->setEnabled(isChosen);
    showProblem({}, -1);
}

void ShortcutDialog::showProblem(const QString &reason, int holder)
{
    m_holder = holder;
    m_problem->setText(reason);
    m_reassignButton->setVisible(holder >= 0);
}

} // namespace Zavo

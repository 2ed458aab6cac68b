#include "TextFit.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>

namespace {

constexpr int comboBoxArrowPx = 24;
constexpr int lineEditFramePx = 10;
constexpr int cellMarginPx = 3;
constexpr int groupTitleMarginPx = 12;

bool isTextShown(const QWidget *widget)
{
    if (const auto *button = qobject_cast<const QToolButton *>(widget))
        return button->toolButtonStyle() != Qt::ToolButtonIconOnly || button->icon().isNull();
    return true;
}

/// The width that a text needs beyond what the widget has; none for a widget that wraps or elides.
int missingWidth(const QWidget *widget, QString *text)
{
    const QFontMetrics metrics = widget->fontMetrics();
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        *text = label->text();
        const bool givesWay = label->wordWrap() || label->inherits("Zavo::ElidedLabel") ||
                              label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        // Some ask for all the width that there is.
        const int needed = label->sizeHint().width() < QWIDGETSIZE_MAX
                               ? label->sizeHint().width()
                               : metrics.horizontalAdvance(*text);
        return givesWay ? 0 : needed - label->width();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        *text = isTextShown(button) ? button->text() : QString();
        return button->minimumSizeHint().width() - button->width();
    }
    if (const auto *group = qobject_cast<const QGroupBox *>(widget)) {
        *text = group->title();
        return metrics.horizontalAdvance(*text) + groupTitleMarginPx - group->width();
    }
    if (const auto *box = qobject_cast<const QComboBox *>(widget)) {
        *text = box->currentText();
        return metrics.horizontalAdvance(*text) + comboBoxArrowPx - box->width();
    }
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(widget)) {
        *text = box->text();
        return box->minimumSizeHint().width() - box->width();
    }
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget)) {
        *text = edit->text().isEmpty() ? edit->placeholderText() : QString();
        return metrics.horizontalAdvance(*text) + lineEditFramePx - edit->width();
    }
    return 0;
}

int missingHeight(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    return label && label->wordWrap() ? label->heightForWidth(label->width()) - label->height() : 0;
}

QString named(const QWidget *widget, const QString &text, int missing)
{
    return QStringLiteral("%1 %2 \"%3\" lacks %4 px")
        .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(), text)
        .arg(missing);
}

QStringList cutHeaders(const QWidget *window)
{
    QStringList cut;
    const QList<QHeaderView *> headers = window->findChildren<QHeaderView *>();
    for (const QHeaderView *header : headers) {
        if (!header->isVisible() || header->orientation() != Qt::Horizontal || !header->model())
            continue;
        for (int section = 0; section < header->count(); ++section) {
            const QString text = header->model()->headerData(section, Qt::Horizontal).toString();
            const int missing = header->sectionSizeHint(section) - header->sectionSize(section);
            if (missing > 0 && !header->isSectionHidden(section))
                cut.append(named(header, text, missing));
        }
    }
    return cut;
}

/// The cells of a calendar, names of days among them.
QStringList cutCells(const QWidget *window)
{
    QStringList cut;
    const QList<QTableView *> tables = window->findChildren<QTableView *>();
    for (const QTableView *table : tables) {
        const QAbstractItemModel *model = table->model();
        for (int column = 0; table->isVisible() && column < model->columnCount(); ++column) {
            const QModelIndex index = model->index(0, column);
            const QString text = index.data().toString();
            const QFontMetrics metrics(index.data(Qt::FontRole).value<QFont>());
            const int needed = metrics.horizontalAdvance(text) + 2 * cellMarginPx;
            if (needed > table->columnWidth(column) && !table->isColumnHidden(column))
                cut.append(named(table, text, needed - table->columnWidth(column)));
        }
    }
    return cut;
}

QStringList cutAreas(const QWidget *window)
{
    QStringList cut;
    const QList<QScrollArea *> areas = window->findChildren<QScrollArea *>();
    for (const QScrollArea *area : areas) {
        const QScrollBar *bar = area->horizontalScrollBar();
        if (!area->visibleRegion().isEmpty() && bar->isVisible())
            cut.append(named(area, QString(), bar->maximum() - bar->minimum()));
    }
    return cut;
}

QStringList shared(const QStringList &texts)
{
    QMap<QString, QStringList> users;
    for (const QString &text : texts) {
        const QString keys = QKeySequence::mnemonic(text).toString();
        if (!keys.isEmpty())
            users[keys].append(text);
    }
    QStringList lines;
    for (const QStringList &sharing : qAsConst(users)) {
        if (sharing.size() > 1)
            lines.append(sharing.join(QStringLiteral(" | ")));
    }
    return lines;
}

QString mnemonicText(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->buddy() ? label->text() : QString();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return isTextShown(button) ? button->text() : QString();
    const auto *group = qobject_cast<const QGroupBox *>(widget);
    return group ? group->title() : QString();
}

} // namespace

QStringList TextFit::cutTexts(const QWidget *window)
{
    QStringList cut = cutHeaders(window) + cutCells(window) + cutAreas(window);
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        // A dock behind another one is out of sight, but not hidden.
        if (!widget->isVisible() || widget->window() != window || widget->visibleRegion().isEmpty())
            continue;
        QString text;
        const int missing = qMax(missingWidth(widget, &text), missingHeight(widget));
        if (missing > 0 && !text.isEmpty())
            cut.append(named(widget, text, missing));
    }
    return cut;
}

QStringList TextFit::sharedMnemonics(const QWidget *window)
{
    QStringList texts;
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->isVisible() && widget->window() == window)
            texts.append(mnemonicText(widget));
    }
    return shared(texts);
}

QStringList TextFit::sharedMnemonics(const QMenu *menu)
{
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions)
        texts.append(action->text());
    return shared(texts);
}

#pragma once

#include "navigation/ZvScheduleSpecifyScheduleDialog.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>

namespace ZavoTest {

/// What a user finds in the dialog that specifies a schedule.
struct SpecifyDialogParts
{
    using Dialog = Zavo::ZvScheduleSpecifyScheduleDialog;

    explicit SpecifyDialogParts(const Dialog *shown)
        : dialog(shown)
    {
    }

    QRadioButton *button(const char *name) const
    {
        return dialog->findChild<QRadioButton *>(QLatin1String(name));
    }
    QRadioButton *day(int number) const
    {
        return dialog->findChild<QRadioButton *>(QStringLiteral("DayOfWeek_%1").arg(number));
    }
    QString checkedType() const
    {
        for (const char *name : {"Type_Default", "Type_DayOfWeek", "Type_Date"}) {
            if (button(name)->isChecked())
                return QLatin1String(name);
        }
        return {};
    }
    QList<int> enabledDays() const
    {
        QList<int> days;
        for (int number = 1; number <= 7; ++number) {
            if (day(number)->isEnabled())
                days.append(number);
        }
        return days;
    }
    QGroupBox *groupOf(const QWidget *child) const
    {
        QWidget *parent = child->parentWidget();
        while (parent && !qobject_cast<QGroupBox *>(parent))
            parent = parent->parentWidget();
        return qobject_cast<QGroupBox *>(parent);
    }
    QGroupBox *dayGroup() const { return groupOf(day(1)); }
    QGroupBox *dateGroup() const { return groupOf(dateEdit()); }
    QDateEdit *dateEdit() const { return dialog->findChild<QDateEdit *>(); }
    QPushButton *standardButton(QDialogButtonBox::StandardButton which) const
    {
        return dialog->findChild<QDialogButtonBox *>()->button(which);
    }
    QPushButton *ok() const { return standardButton(QDialogButtonBox::Ok); }
    QPushButton *cancel() const { return standardButton(QDialogButtonBox::Cancel); }

    const Dialog *dialog;
};

} // namespace ZavoTest

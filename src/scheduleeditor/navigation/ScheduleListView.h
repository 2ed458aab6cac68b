#pragma once

#include <QTreeView>

namespace Zavo {

/// The flat table of the schedule list. Its rows can be selected and marked, by mouse and key, and
/// not edited.
class ScheduleListView final : public QTreeView
{
    Q_OBJECT

public:
    explicit ScheduleListView(QWidget *parent = nullptr);

    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QVector<int> &roles) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

} // namespace Zavo

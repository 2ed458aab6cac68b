#pragma once

#include "check/CheckFinding.h"

#include <QAbstractTableModel>

namespace Zavo {

/// The findings of a check as rows, however many there are.
class CheckFindingModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { FindingFile, FindingChannel, FindingSchedule, FindingText, FindingColumns };

    explicit CheckFindingModel(QObject *parent = nullptr);

    void setFindings(const QVector<CheckFinding> &findings);
    const QVector<CheckFinding> &findings() const { return m_findings; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    QVector<CheckFinding> m_findings;
};

} // namespace Zavo

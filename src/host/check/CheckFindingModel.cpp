#include "check/CheckFindingModel.h"

namespace Zavo {

CheckFindingModel::CheckFindingModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void CheckFindingModel::setFindings(const QVector<CheckFinding> &findings)
{
    beginResetModel();
    m_findings = findings;
    endResetModel();
}

int CheckFindingModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_findings.size();
}

int CheckFindingModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : FindingColumns;
}

QVariant CheckFindingModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_findings.size())
        return {};
    const CheckFinding &finding = m_findings.at(index.row());
    // A sentence that does not fit is read in its tip; a name must not be taken for rich text.
    if (role == Qt::ToolTipRole && index.column() == FindingText)
        return QStringLiteral("<p>%1</p>").arg(finding.text.toHtmlEscaped());
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case FindingFile:
        return finding.file;
    case FindingChannel:
        return finding.channel;
    case FindingSchedule:
        return finding.schedule;
    default:
        return finding.text;
    }
}

QVariant CheckFindingModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case FindingFile:
        return tr("File");
    case FindingChannel:
        return tr("Channel");
    case FindingSchedule:
        return tr("Schedule");
    case FindingText:
        return tr("Finding");
    default:
        return {};
    }
}

} // namespace Zavo

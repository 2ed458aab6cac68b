#pragma once

#include <QFrame>
#include <QPointer>

class QLabel;
class QMenu;

namespace Zavo {

/// Stands for the default schedule in the switcher and tells how many stages it assigns.
class ZvScheduleDefaultWidget final : public QFrame
{
    Q_OBJECT

public:
    explicit ZvScheduleDefaultWidget(QWidget *parent = nullptr);

    /// The context menu, which stays its owner's; null for none.
    void setEditMenu(QMenu *menu);
    /// Bands, and one more for a default stage; 0 or less is shown as none.
    void setStageCount(int count);

private Q_SLOTS:
    void showContextMenu(const QPoint &pos);

private:
    QLabel *m_titleLabel;
    QLabel *m_stageLabel;
    QPointer<QMenu> m_editMenu;
    int m_stageCount = 0;
};

} // namespace Zavo

#pragma once

#include <QMap>
#include <QString>
#include <QWidget>

class QGridLayout;
class QLabel;

namespace Zavo {

class ZvChannel;

/// What a channel is called, where it stands and how many schedules it holds, as it is when the
/// page is made; later changes are not followed. A table on show that was not stored yet counts as
/// it was stored last.
class ZvChannelInformationWidget final : public QWidget
{
    Q_OBJECT

public:
    /// @p channel is not owned; a null one leaves the values empty.
    explicit ZvChannelInformationWidget(ZvChannel *channel, QWidget *parent = nullptr);

    /// Shows the page of @p channel in a modal dialog above @p parent, until it is closed.
    static void showDialog(ZvChannel *channel, QWidget *parent);

private:
    void addRow(QGridLayout *layout, int row, const QString &caption, const QString &key);
    void showValues();
    void setValue(const QString &key, const QString &value);

    ZvChannel *m_channel;
    QMap<QString, QLabel *> m_valueLabels;
};

} // namespace Zavo

#pragma once

#include <QDialog>
#include <QList>

class QComboBox;
class QLabel;
class QVBoxLayout;

namespace Zavo {

class ZvChannel;

/// Lets the user choose the place that a channel moves to, as a drag of its tab would. It moves
/// nothing itself.
class ZvScheduleChangeChannelOrderDialog final : public QDialog
{
    Q_OBJECT

public:
    /// Offers the places of @p channels for @p channel. Neither is owned; the list outlives the
    /// dialog.
    ZvScheduleChangeChannelOrderDialog(ZvChannel *channel, const QList<ZvChannel *> &channels,
                                       QWidget *parent, Qt::WindowFlags flags = Qt::WindowFlags());

    /// The index of the chosen channel, which is the place to move to. 0, the place that nothing
    /// moves to, if there was nothing to choose.
    int selectedIndex() const;

private:
    QLabel *createChannelLabel();
    QComboBox *createOrderComboBox();
    void addButtons(QVBoxLayout *layout);

    ZvChannel *m_channel;
    const QList<ZvChannel *> &m_targetChannels;
    QComboBox *m_orderComboBox = nullptr;
};

} // namespace Zavo

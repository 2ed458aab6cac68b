#include "workspace/ZvScheduleChangeChannelOrderDialog.h"

#include "ZvChannel.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QSpacerItem>
#include <QVBoxLayout>

namespace Zavo {

namespace {

constexpr int OrderDialogWidth = 360; // px
constexpr int OrderDialogSpacer = 16; // px

} // namespace

ZvScheduleChangeChannelOrderDialog::ZvScheduleChangeChannelOrderDialog(
    ZvChannel *channel, const QList<ZvChannel *> &channels, QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
    , m_channel(channel)
    , m_targetChannels(channels)
{
    setWindowTitle(tr("Change Channel Order"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    setMinimumWidth(OrderDialogWidth);
    m_orderComboBox = createOrderComboBox();
    auto *note = new QLabel(tr("*This operation can not be undone."), this);
    note->setStyleSheet(QStringLiteral("QLabel{color:blue;}"));

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(tr("You can change the channel order."), this));
    layout->addWidget(createChannelLabel());
    auto *moveTo = new QLabel(tr("Move To"), this);
    moveTo->setBuddy(m_orderComboBox);
    layout->addWidget(moveTo);
    layout->addWidget(m_orderComboBox);
    layout->addWidget(note);
    layout->addSpacerItem(new QSpacerItem(OrderDialogSpacer, OrderDialogSpacer,
                                          QSizePolicy::Minimum, QSizePolicy::Expanding));
    addButtons(layout);
}

// A name is text, whatever it looks like, and a long one does not stretch the dialog.
QLabel *ZvScheduleChangeChannelOrderDialog::createChannelLabel()
{
    auto *label = new QLabel(this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setStyleSheet(
        QStringLiteral("padding: 5px; margin-bottom: 5px; border-style: solid; border-width: 1px; "
                       "border-color: darkgray;"));
    if (m_channel) {
        label->setText(tr("ID: %1  Name: %2  Order: #%3")
                           .arg(QString::number(m_channel->id()), m_channel->name(),
                                QString::number(m_channel->index())));
    }
    return label;
}

QComboBox *ZvScheduleChangeChannelOrderDialog::createOrderComboBox()
{
    auto *comboBox = new QComboBox(this);
    comboBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    for (const ZvChannel *target : m_targetChannels) {
        const int index = target->index();
        comboBox->addItem(tr("#%1: %2").arg(QString::number(index), target->name()), index);
    }
    return comboBox;
}

void ZvScheduleChangeChannelOrderDialog::addButtons(QVBoxLayout *layout)
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    layout->addWidget(buttons);
}

int ZvScheduleChangeChannelOrderDialog::selectedIndex() const
{
    return m_orderComboBox ? m_orderComboBox->currentData().toInt() : -1;
}

} // namespace Zavo

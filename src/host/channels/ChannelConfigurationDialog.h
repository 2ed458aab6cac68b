#pragma once

#include <QDialog>
#include <QTimer>

#include <memory>

class QDialogButtonBox;
class QLabel;
class QTreeWidget;

namespace Zavo {

class ChannelOverview;
struct ChannelLine;

/// Shows the channels as they are saved, and lets choose which of them are uploaded.
class ChannelConfigurationDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit ChannelConfigurationDialog(QWidget *parent = nullptr);
    ~ChannelConfigurationDialog() override;

    void accept() override;

private Q_SLOTS:
    void onChannelsRead();
    void showProgress();

private:
    void createTree();
    void addLine(const ChannelLine &line, bool uploaded);

    std::unique_ptr<ChannelOverview> m_overview;
    QTimer m_progressTimer;
    QLabel *m_label = nullptr;
    QTreeWidget *m_tree = nullptr;
    QDialogButtonBox *m_buttons = nullptr;
};

} // namespace Zavo

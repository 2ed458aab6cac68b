#pragma once

#include "domain/DpiRatioWatch.h"

#include "ZvStage.h"
#include "ZvTime.h"

#include <QList>
#include <QScrollArea>
#include <QString>

class QCheckBox;
class QItemSelection;
class QSplitter;

namespace Zavo {

class ZvScheduleStageListView;
class ZvStagePreview;

/// The content of the dock in which stages are chosen: a preview of the selected stage, which folds
/// away, above the list of stages. What the list asks for it passes on.
class ZvScheduleStageChooserWidget final : public QScrollArea
{
    Q_OBJECT

public:
    explicit ZvScheduleStageChooserWidget(QWidget *parent = nullptr);

    /// Whether the preview is on the screen, so false in a dock that is closed.
    bool isPreviewVisible() const;

    /// Shows or hides the preview, with the check box that tells so.
    void setPreviewVisible(bool visible);

public Q_SLOTS:
    /// Makes the preview as high as a 16:9 picture of its width, and leaves the rest to the list.
    void setPreviewSizeToDefault();

Q_SIGNALS:
    /// There is no stage to preview.
    void clearDescription();
    /// @p stage, which has been read, is to be previewed.
    void stageSelectionChanged(const ZvStage &stage);

    /// The user wants the stage @p name to be the default stage of the schedule on show.
    void requestSetToDefaultStage(const QString &name);
    /// The user wants the schedule on show to hold @p newTimes and nothing else, with
    /// @p newDefaultStageName in the gaps.
    void requestRestTimeTable(const QString &newDefaultStageName, const QList<ZvTime> &newTimes);
    /// Whether the schedule on show can be edited. The receiver fills @p enabled, so the connection
    /// is direct.
    void requestIsCurrentScheduleEnabled(bool *enabled);

protected:
    bool event(QEvent *event) override;

private Q_SLOTS:
    void onPreviewCheckBoxToggled(bool checked);
    void listViewSelectionChanged(const QItemSelection &selected, const QItemSelection &deselected);
    void onSetToDefaultStageRequested(const QString &name);
    void onResetTimeTableRequested(const QString &newDefaultStageName,
                                   const QList<ZvTime> &newTimes);
    void onIsCurrentScheduleEnabled(bool *enabled);

private:
    void setupPreview();
    QWidget *createListPane();
    void setupContent();
    void connectWidgets();
    void scaleIcons();
    void applyDpiRatio();

    ZvStagePreview *m_preview;
    ZvScheduleStageListView *m_listView;
    QCheckBox *m_previewCheckBox;
    DpiRatioWatch m_dpiRatio;
    QSize m_previewMinimumSize;
    QSize m_previewMaximumSize;
    QSplitter *m_splitter;
};

} // namespace Zavo

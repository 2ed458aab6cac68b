#pragma once

/// What uploads leave at a target, how their settings are kept, and by which names the widgets of
/// their dialogs are found.
namespace Zavo::UploadNames {

constexpr char channelFolder[] = "channel";
constexpr char stageFolder[] = "stage";

/// Lies at the target once an upload has put its files there.
constexpr char markFile[] = ".zavo-uploaded";

/// An empty folder in the set, which is sent nowhere.
constexpr char emptyFolder[] = ".empty";

/// Folder at the target in which a set is put together; a word for the sender follows.
constexpr char stagingPrefix[] = ".zavo-upload-";

/// Folder at the target that keeps what lay there before the first upload; the time follows.
constexpr char keptPrefix[] = "before-upload-";

constexpr char targetsKey[] = "upload_targets";
constexpr char deselectedTargetsKey[] = "upload_targets_deselected";

constexpr char dialog[] = "UploadDialog";
constexpr char targetList[] = "UploadTargetList";
constexpr char addButton[] = "UploadAddButton";
constexpr char changeButton[] = "UploadChangeButton";
constexpr char removeButton[] = "UploadRemoveButton";
constexpr char uploadButton[] = "UploadStartButton";
constexpr char retryButton[] = "UploadRetryButton";
constexpr char cancelButton[] = "UploadCancelButton";
constexpr char closeButton[] = "UploadCloseButton";
constexpr char logButton[] = "UploadLogButton";
constexpr char summaryLabel[] = "UploadSummary";
constexpr char findingsDialog[] = "UploadFindingsDialog";
constexpr char goOnButton[] = "UploadGoOnButton";
constexpr char stopButton[] = "UploadStopButton";
constexpr char addressField[] = "UploadAddressField";
constexpr char problemLabel[] = "UploadAddressProblem";

} // namespace Zavo::UploadNames

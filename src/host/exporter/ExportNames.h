#pragma once

/// Object names and settings of the dialog that exports a channel.
namespace Zavo::ExportNames {

constexpr char dialog[] = "ExportDialog";
constexpr char format[] = "ExportDialog_Format";
constexpr char firstDate[] = "ExportDialog_FirstDate";
constexpr char lastDate[] = "ExportDialog_LastDate";
constexpr char target[] = "ExportDialog_Target";
constexpr char browse[] = "ExportDialog_Browse";
constexpr char message[] = "ExportDialog_Message";
constexpr char exportButton[] = "ExportDialog_Export";

/// Key of the user settings under which the last folder is kept.
constexpr char folderKey[] = "Export/Folder";

} // namespace Zavo::ExportNames

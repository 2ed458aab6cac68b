#pragma once

/// Object names of the dialog that checks the data.
namespace Zavo::CheckNames {

constexpr char dialog[] = "CheckDialog";
constexpr char summary[] = "CheckDialog_Summary";
constexpr char progress[] = "CheckDialog_Progress";
constexpr char findings[] = "CheckDialog_Findings";
constexpr char again[] = "CheckDialog_Again";
constexpr char cancel[] = "CheckDialog_Cancel";
constexpr char copy[] = "CheckDialog_Copy";

} // namespace Zavo::CheckNames

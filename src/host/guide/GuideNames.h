#pragma once

/// Object names of the guide's window, and where its pages are.
namespace Zavo::GuideNames {

constexpr char dialog[] = "GuideDialog";
constexpr char browser[] = "GuideBrowser";
constexpr char findField[] = "GuideFindField";
constexpr char backButton[] = "GuideBackButton";
constexpr char forwardButton[] = "GuideForwardButton";

constexpr char firstPage[] = "qrc:/guide/users-guide.md";

} // namespace Zavo::GuideNames

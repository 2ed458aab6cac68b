#pragma once

/// Shows what the switcher paints by itself to assistive technology: the frames and the days of the
/// week as choices of which one is made, the line of today as a button, the calendar with its
/// cells.
namespace Zavo::SwitcherAccessibility {

/// To be called before a switcher is asked for; once is enough.
void install();

} // namespace Zavo::SwitcherAccessibility

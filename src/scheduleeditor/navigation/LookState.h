#pragma once

class QWidget;

namespace Zavo {

/// Writes a property that the style sheet of @p widget reads, and has the style read it if that
/// changes it.
void setLookState(QWidget *widget, const char *property, bool on);

} // namespace Zavo

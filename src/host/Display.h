#pragma once

namespace Zavo::Display {

/// True if the environment names no screen to show a window on. Can be asked before there is an
/// application object.
bool isMissing();

/// Lets Qt draw into memory. To be called before there is an application object.
void useOffscreen();

/// True if a person sees the windows of this application.
bool isSeen();

} // namespace Zavo::Display

#pragma once

namespace Zavo::Display {

/// True if the environment names no screen to show a window on. Can be asked before there is an
/// application object.
bool isMissing();

/// Lets Qt draw into memory. To be called before there is an application object.
void useOffscreen();

/// True if a person sees the windows of this application.
bool isSeen();

/// Where nobody sees the windows there is no desktop that chooses a font: takes the one of a
/// desktop without settings of its own. To be called once there is an application object.
void chooseFont();

} // namespace Zavo::Display

#pragma once

namespace Zavo {

/// Style sheet of the tool buttons that stand in a title or a navigation bar: text or icon alone
/// until the mouse is over them.
inline constexpr char ToolButtonStyle[] =
    "QToolButton{border-style: none;margin: 1px;color: black;}"
    "QToolButton:hover{background-color: rgb(240, 240, 250);border-style: solid;"
    "border-color: rgb(190, 190, 200);border-width: 1px;border-radius: 2px;}"
    "QToolButton:pressed, QToolButton::menu-button{background-color: rgb(204, 204, 255);"
    "border-style: solid;border-color: rgb( 180, 180, 180);border-width: 1px;border-radius: 2px;}"
    "QToolButton::menu-indicator{width:7px;height:7px;left:1px;top:1px;}"
    "QToolButton::menu-indicator:pressed{left:0px;top:0px;}";

} // namespace Zavo

#pragma once

#include <QPoint>
#include <Qt>

class QEvent;

namespace ZavoFuzz {

class FuzzInput;
class StripHouse;

/// Mouse and keyboard over the strip: the events that a window system would send. Buttons and keys
/// stay down until they are let go.
class StripHand final
{
public:
    explicit StripHand(StripHouse *house);

    /// Whether a button or a key is down, or the last move by keys has not been reported yet.
    bool isBusy() const { return m_button != Qt::NoButton || m_isKeyMove; }

    bool holdsButton() const { return m_button != Qt::NoButton; }

    void press(FuzzInput *input);
    void move(FuzzInput *input);
    void release();
    void pressKey(FuzzInput *input);
    void releaseKey();
    /// The moment passes after which a move by keys is reported.
    void waitForKeyMove();
    /// Opens a menu, which takes the focus.
    void leave();
    /// Strikes a shortcut, of which the view hears before it is carried out.
    void strikeShortcut();
    /// One of the boxes of the panel goes up or down.
    void stepPanel(FuzzInput *input);

    void letGo();

private:
    void clickAside(int how);
    QPoint place(FuzzInput *input) const;
    void sendMouse(int type, Qt::MouseButton button);

    StripHouse *m_house;
    QPoint m_place;
    Qt::MouseButton m_button = Qt::NoButton;
    Qt::MouseButtons m_buttons;
    Qt::KeyboardModifiers m_modifiers;
    Qt::Key m_key = Qt::Key_unknown;
    bool m_isKeyMove = false;
};

} // namespace ZavoFuzz

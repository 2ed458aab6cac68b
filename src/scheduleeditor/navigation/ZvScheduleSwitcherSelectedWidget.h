#pragma once

#include <QFrame>
#include <QList>
#include <QPointer>

class QBoxLayout;

namespace Zavo {

/// A frame of the switcher that shows whether it is selected, in its property "selected", and tells
/// of every press on it. Which frames are selected is the switcher's affair.
class ZvScheduleSwitcherSelectedWidget final : public QFrame
{
    Q_OBJECT

public:
    explicit ZvScheduleSwitcherSelectedWidget(QWidget *parent = nullptr);

    bool isSelected() const;

    /// Whether @p object was added as one that counts as inside.
    bool containsObject(const QObject *object) const;

    /// Puts the widget into the frame; it counts as inside from then on.
    void addChildWidget(QWidget *widget);
    /// Puts the layout into the frame. What it holds does not count as inside by this.
    void addChildLayout(QLayout *layout);
    /// Lets @p object, which is not owned, count as inside.
    void addManagedObject(QObject *object);

public Q_SLOTS:
    void setSelected(bool selected);

Q_SIGNALS:
    /// The frame, which is @p object, or what it holds and lets through was pressed.
    void clicked(QObject *object);

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    QList<QPointer<QObject>> m_objects;
    QBoxLayout *m_layout;
};

} // namespace Zavo

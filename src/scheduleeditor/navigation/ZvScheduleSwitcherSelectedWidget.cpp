#include "navigation/ZvScheduleSwitcherSelectedWidget.h"

#include "navigation/NavigationNames.h"

#include <QMouseEvent>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

#include <algorithm>

namespace Zavo {

namespace {

const QLatin1String FrameStyle(
    "[selected=false]{border-top-color: rgb(64, 64, 64);border-top-style: solid;"
    "border-top-width: 1px;}"
    "[selected=true]{border-color: gray;border-style: solid;border-width: 1px;"
    "border-top-right-radius: 3px;border-bottom-right-radius: 3px;border-left-width: 3px;"
    "border-left-color: rgb(51,51,204);border-top-left-radius: 1px;"
    "border-bottom-left-radius: 1px;background-color: rgb(230, 230, 230);}"
    ":hover[selected=false]{background-color: rgba(204, 204, 255, 64);"
    "border-color: rgb(204, 204, 204);border-style: solid;border-width: 1px;"
    "border-radius: 3px;}");

} // namespace

ZvScheduleSwitcherSelectedWidget::ZvScheduleSwitcherSelectedWidget(QWidget *parent)
    : QFrame(parent)
    , m_layout(new QVBoxLayout(this))
{
    // What a frame holds keeps its own distance.
    m_layout->setContentsMargins(0, 0, 0, 0);
    setProperty(NavigationName::SelectedProperty, false);
    setStyleSheet(FrameStyle);
}

bool ZvScheduleSwitcherSelectedWidget::isSelected() const
{
    return property(NavigationName::SelectedProperty).toBool();
}

bool ZvScheduleSwitcherSelectedWidget::containsObject(const QObject *object) const
{
    return object && std::any_of(m_objects.begin(), m_objects.end(),
                                 [object](const QPointer<QObject> &one) { return one == object; });
}

void ZvScheduleSwitcherSelectedWidget::addChildWidget(QWidget *widget)
{
    m_layout->addWidget(widget);
    addManagedObject(widget);
}

void ZvScheduleSwitcherSelectedWidget::addChildLayout(QLayout *layout)
{
    m_layout->addLayout(layout);
}

void ZvScheduleSwitcherSelectedWidget::addManagedObject(QObject *object)
{
    if (object && !containsObject(object))
        m_objects.append(object);
}

void ZvScheduleSwitcherSelectedWidget::setSelected(bool selected)
{
    if (selected == isSelected())
        return;
    setProperty(NavigationName::SelectedProperty, selected);
    style()->unpolish(this);
    style()->polish(this);
    update();
}

void ZvScheduleSwitcherSelectedWidget::mousePressEvent(QMouseEvent *event)
{
    Q_EMIT clicked(this);
    QFrame::mousePressEvent(event);
    event->accept();
}

} // namespace Zavo

#pragma once

#include "workspace/ScheduleRecorder.h"

#include <QObject>
#include <QPointer>

#include <memory>

namespace Zavo {
class ZvChannel;
class ZvScheduleItemPropertyWidget;
class ZvScheduleWorkingArea;
class ZvTimeTableScene;
class ZvTimeTableTimeZoneItem;
class ZvTimeTableView;
} // namespace Zavo

namespace ZavoFuzz {

/// The central widget with one page and no tabs.
class OnePage final : public Zavo::ScheduleRecorder
{
    Q_OBJECT

public:
    explicit OnePage(Zavo::ZvChannel *channel);
    ~OnePage() override;

    Zavo::ZvScheduleWorkingArea *currentWorkingArea() const override { return m_area; }

private:
    Zavo::ZvScheduleWorkingArea *m_area;
};

/// A page with an empty channel and the panel of its bands, and all parts that a hand can reach.
/// Every message box is answered as soon as it is shown.
class StripHouse final : public QObject
{
    Q_OBJECT

public:
    StripHouse();
    ~StripHouse() override;

    OnePage *page() const { return m_page.get(); }
    Zavo::ZvScheduleWorkingArea *area() const { return m_page->currentWorkingArea(); }
    Zavo::ZvScheduleItemPropertyWidget *panel() const { return m_panel.get(); }
    Zavo::ZvTimeTableView *view() const;
    Zavo::ZvTimeTableScene *scene() const;
    Zavo::ZvTimeTableTimeZoneItem *zone() const;

    /// The channel as a save would write it now, less a default schedule without content, which is
    /// the same as none. Changes nothing.
    Zavo::ZvChannel content() const;

    /// How many boxes have come.
    int boxCount() const { return m_boxCount; }

    /// Makes everything as it was at first, which takes much less time than a new house.
    void reset();
    void setAnswer(bool yes) { m_answersYes = yes; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::unique_ptr<OnePage> m_page;
    std::unique_ptr<Zavo::ZvScheduleItemPropertyWidget> m_panel;
    int m_boxCount = 0;
    bool m_answersYes = true;
};

} // namespace ZavoFuzz

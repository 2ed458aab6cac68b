#pragma once

#include "../timetable/WorkingAreaFixture.h"

#include <QObject>
#include <QString>

#include <memory>

namespace ZavoTest {

/// A program with one page, which obeys lines on its standard input and answers each by one line on
/// its standard output. In between it runs its event loop, so that others get its clipboard.
///
///     bands COUNT      shows a default schedule with that many bands
///     copy, cut        with all bands selected
///     possible         whether the clipboard can be pasted at a click on 06:00
///     paste            at a click on 06:00; answers the bands on show
///     writeSchedules   puts three schedules, the middle one empty, on the clipboard
///     readSchedules    answers the schedules on the clipboard
class ClipboardPage final : public QObject
{
    Q_OBJECT

public:
    ClipboardPage();

    static constexpr char Argument[] = "--page";

private Q_SLOTS:
    void readLine();

private:
    QString obey(const QString &command);
    QString obeyAtAClick(const QString &command);
    void showBands(int count);
    void clickStrip();

    std::unique_ptr<WorkingAreaFixture> m_page;
};

} // namespace ZavoTest

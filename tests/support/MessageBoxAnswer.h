#pragma once

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <list>
#include <optional>

namespace ZavoTest {

/// One message box that is to come, and the answer to it. What is not set is not checked.
class ExpectedBox final
{
public:
    explicit ExpectedBox(QMessageBox::StandardButton reply);

    ExpectedBox &title(const QString &title);
    ExpectedBox &text(const QString &text);
    ExpectedBox &informativeText(const QString &text);
    ExpectedBox &icon(QMessageBox::Icon icon);
    /// Exactly these buttons.
    ExpectedBox &buttons(QMessageBox::StandardButtons buttons);
    /// Called while the box is on the screen, before it is answered. It may delete the box.
    ExpectedBox &whileShown(std::function<void(QMessageBox *)> look);

private:
    friend class MessageBoxAnswer;

    QString differences(const QMessageBox *box) const;

    QMessageBox::StandardButton m_reply;
    std::optional<QString> m_title;
    std::optional<QString> m_text;
    std::optional<QString> m_informativeText;
    std::optional<QMessageBox::Icon> m_icon;
    std::optional<QMessageBox::StandardButtons> m_buttons;
    std::function<void(QMessageBox *)> m_look;
};

/// Answers the message boxes that come while it lives, in the order in which they were announced,
/// by a click on the button (or by Escape for QMessageBox::NoButton).
///
///     MessageBoxAnswer answer;
///     answer.expect(QMessageBox::Yes).title(...).text(...);
///     widget.doSomethingThatAsks();
///
/// The test fails if a box differs from its announcement, if one comes that was not announced (it
/// is closed by Escape), or if an announced one has not come when this object dies. Any modal
/// dialog that stays open longer than the watchdog's time is closed and fails the test too, so no
/// test hangs on a box. One without announcements forbids all boxes.
class MessageBoxAnswer final : public QObject
{
    Q_OBJECT

public:
    /// File and line are the caller's; a failure is reported there.
    explicit MessageBoxAnswer(const char *file = __builtin_FILE(), int line = __builtin_LINE());
    ~MessageBoxAnswer() override;

    /// Announces one more box. The reference is valid as long as this object.
    ExpectedBox &expect(QMessageBox::StandardButton reply);

    /// How long a modal dialog may stay open; 5000 ms unless told otherwise.
    void setWatchdogInterval(int intervalMs);

    /// How many announced boxes have been answered.
    int answeredCount() const;

    /// True if every announced box has come.
    bool isDone() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void closeStrayDialog();

private:
    void answer(QMessageBox *box);
    void fail(const QString &message) const;

    const char *m_file = nullptr;
    int m_line = 0;
    std::list<ExpectedBox> m_expected;
    int m_answered = 0;
    QPointer<QMessageBox> m_shown;
    QPointer<QWidget> m_lastModal;
    QTimer m_watchdog;
};

} // namespace ZavoTest

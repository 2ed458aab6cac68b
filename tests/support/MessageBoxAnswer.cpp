#include "MessageBoxAnswer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QtTest>

namespace ZavoTest {

namespace {

void describe(QStringList &differences, const char *what, const QString &expected,
              const QString &actual)
{
    if (expected != actual) {
        differences.append(QStringLiteral("%1 is \"%2\", not \"%3\"")
                               .arg(QString::fromLatin1(what), actual, expected));
    }
}

QString describeBox(const QMessageBox *box)
{
    return QStringLiteral("\"%1\": \"%2\"").arg(box->windowTitle(), box->text());
}

} // namespace

ExpectedBox::ExpectedBox(QMessageBox::StandardButton reply)
    : m_reply(reply)
{
}

ExpectedBox &ExpectedBox::title(const QString &title)
{
    m_title = title;
    return *this;
}

ExpectedBox &ExpectedBox::text(const QString &text)
{
    m_text = text;
    return *this;
}

ExpectedBox &ExpectedBox::informativeText(const QString &text)
{
    m_informativeText = text;
    return *this;
}

ExpectedBox &ExpectedBox::icon(QMessageBox::Icon icon)
{
    m_icon = icon;
    return *this;
}

ExpectedBox &ExpectedBox::buttons(QMessageBox::StandardButtons buttons)
{
    m_buttons = buttons;
    return *this;
}

ExpectedBox &ExpectedBox::whileShown(std::function<void(QMessageBox *)> look)
{
    m_look = std::move(look);
    return *this;
}

QString ExpectedBox::differences(const QMessageBox *box) const
{
    QStringList differences;
    if (m_title)
        describe(differences, "title", *m_title, box->windowTitle());
    if (m_text)
        describe(differences, "text", *m_text, box->text());
    if (m_informativeText)
        describe(differences, "informative text", *m_informativeText, box->informativeText());
    if (m_icon)
        describe(differences, "icon", QString::number(*m_icon), QString::number(box->icon()));
    if (m_buttons) {
        describe(differences, "set of buttons", QString::number(*m_buttons, 16),
                 QString::number(box->standardButtons(), 16));
    }
    if (m_reply != QMessageBox::NoButton && !box->button(m_reply))
        differences.append(QStringLiteral("button %1 is missing").arg(m_reply, 0, 16));
    return differences.join(QStringLiteral("; "));
}

MessageBoxAnswer::MessageBoxAnswer(const char *file, int line)
    : m_file(file)
    , m_line(line)
{
    qApp->installEventFilter(this);
    connect(&m_watchdog, SIGNAL(timeout()), this, SLOT(closeStrayDialog()));
    setWatchdogInterval(5000);
}

MessageBoxAnswer::~MessageBoxAnswer()
{
    if (!isDone()) {
        fail(QStringLiteral("%1 of %2 announced message boxes came")
                 .arg(m_answered)
                 .arg(m_expected.size()));
    }
}

ExpectedBox &MessageBoxAnswer::expect(QMessageBox::StandardButton reply)
{
    return m_expected.emplace_back(reply);
}

void MessageBoxAnswer::setWatchdogInterval(int intervalMs)
{
    // A dialog counts as stray when two looks in a row find it.
    m_watchdog.start(intervalMs / 2);
}

int MessageBoxAnswer::answeredCount() const
{
    return m_answered;
}

bool MessageBoxAnswer::isDone() const
{
    return m_answered == static_cast<int>(m_expected.size());
}

bool MessageBoxAnswer::eventFilter(QObject *watched, QEvent *event)
{
    auto *const box =
        event->type() == QEvent::Show ? qobject_cast<QMessageBox *>(watched) : nullptr;
    if (box && box != m_shown) {
        m_shown = box;
        // The box must be in its event loop before it is answered.
        QTimer::singleShot(0, box, [this, guard = QPointer<MessageBoxAnswer>(this), box] {
            if (guard)
                answer(box);
        });
    }
    return QObject::eventFilter(watched, event);
}

void MessageBoxAnswer::closeStrayDialog()
{
    QWidget *const modal = QApplication::activeModalWidget();
    if (modal && modal == m_lastModal) {
        fail(QStringLiteral("a modal dialog \"%1\" stayed open").arg(modal->windowTitle()));
        if (auto *const dialog = qobject_cast<QDialog *>(modal))
            dialog->done(QDialog::Rejected);
        else
            modal->close();
    }
    m_lastModal = modal;
}

void MessageBoxAnswer::answer(QMessageBox *box)
{
    m_shown.clear();
    if (isDone()) {
        fail(QStringLiteral("unexpected message box ") + describeBox(box));
        box->done(QMessageBox::Cancel);
        return;
    }
    const ExpectedBox &expected = *std::next(m_expected.cbegin(), m_answered);
    ++m_answered;
    const QString differences = expected.differences(box);
    if (!differences.isEmpty())
        fail(QStringLiteral("message box %1: %2").arg(describeBox(box), differences));
    const QPointer<QMessageBox> live(box);
    if (expected.m_look)
        expected.m_look(box);
    if (!live)
        return;
    if (QAbstractButton *const button = box->button(expected.m_reply))
        QTest::mouseClick(button, Qt::LeftButton);
    else
        QTest::keyClick(box, Qt::Key_Escape);
}

void MessageBoxAnswer::fail(const QString &message) const
{
    QTest::qVerify(false, "message boxes as announced", qPrintable(message), m_file, m_line);
}

} // namespace ZavoTest

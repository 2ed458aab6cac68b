#include "BoxClerk.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

namespace ZavoTest {

BoxClerk::BoxClerk(const ForkedRun::Report &report)
    : m_report(report)
{
    qApp->installEventFilter(this);
}

QStringList BoxClerk::takeTexts()
{
    QStringList texts;
    texts.swap(m_texts);
    return texts;
}

bool BoxClerk::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show) {
        if (const QPointer<QMessageBox> box = qobject_cast<QMessageBox *>(watched)) {
            m_texts.append(box->text());
            m_report(QStringLiteral("box %1|%2").arg(box->windowTitle(), box->text()));
            QTimer::singleShot(0, this, [this, box] {
                if (box)
                    answer(box);
            });
        }
    }
    return QObject::eventFilter(watched, event);
}

void BoxClerk::answer(QMessageBox *box)
{
    const bool isQuestion = box->standardButtons().testFlag(QMessageBox::No);
    const bool agrees = !m_agrees || !isQuestion || m_agrees();
    const auto wanted =
        agrees ? QList<QMessageBox::StandardButton>{QMessageBox::YesToAll, QMessageBox::Yes,
                                                    QMessageBox::Cancel, QMessageBox::Ok}
               : QList<QMessageBox::StandardButton>{QMessageBox::No};
    for (const QMessageBox::StandardButton one : wanted) {
        if (QAbstractButton *const button = box->button(one)) {
            button->click();
            return;
        }
    }
    box->reject();
}

} // namespace ZavoTest

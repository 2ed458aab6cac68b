#include "MessageBoxAnswer.h"

#include <QDialog>
#include <QMessageBox>
#include <QtTest>

using ZavoTest::MessageBoxAnswer;

class tst_MessageBoxAnswer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersInOrder();
    void checksTheWholeBox();
    void looksBeforeItAnswers();
    void answersByEscape();
    void reportsWhatDiffers();
    void reportsABoxThatWasNotAnnounced();
    void reportsABoxThatDidNotCome();
    void closesAStrayDialog();
};

void tst_MessageBoxAnswer::answersInOrder()
{
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Yes).text(QStringLiteral("first"));
    answer.expect(QMessageBox::No).text(QStringLiteral("second"));
    const auto buttons = QMessageBox::Yes | QMessageBox::No;
    const QString title = QStringLiteral("t");
    QCOMPARE(QMessageBox::question(nullptr, title, QStringLiteral("first"), buttons),
             QMessageBox::Yes);
    QCOMPARE(answer.answeredCount(), 1);
    QVERIFY(!answer.isDone());
    QCOMPARE(QMessageBox::question(nullptr, title, QStringLiteral("second"), buttons),
             QMessageBox::No);
    QVERIFY(answer.isDone());
}

void tst_MessageBoxAnswer::checksTheWholeBox()
{
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::YesToAll)
        .title(QStringLiteral("Save"))
        .text(QStringLiteral("Changed."))
        .informativeText(QStringLiteral("Save it?"))
        .icon(QMessageBox::Question)
        .buttons(QMessageBox::Yes | QMessageBox::YesToAll);
    QMessageBox box(QMessageBox::Question, QStringLiteral("Save"), QStringLiteral("Changed."),
                    QMessageBox::Yes | QMessageBox::YesToAll);
    box.setInformativeText(QStringLiteral("Save it?"));
    QCOMPARE(box.exec(), int(QMessageBox::YesToAll));
}

void tst_MessageBoxAnswer::looksBeforeItAnswers()
{
    bool wasVisible = false;
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).whileShown([&wasVisible](QMessageBox *box) {
        wasVisible = box->isVisible();
    });
    QMessageBox::information(nullptr, QStringLiteral("t"), QStringLiteral("x"));
    QVERIFY(wasVisible);
}

void tst_MessageBoxAnswer::answersByEscape()
{
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::NoButton);
    QCOMPARE(QMessageBox::question(nullptr, QStringLiteral("t"), QStringLiteral("x"),
                                   QMessageBox::Yes | QMessageBox::Cancel),
             QMessageBox::Cancel);
}

void tst_MessageBoxAnswer::reportsWhatDiffers()
{
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).icon(QMessageBox::Critical);
    QEXPECT_FAIL("", "the icon is another", Continue);
    QMessageBox::information(nullptr, QStringLiteral("t"), QStringLiteral("x"));
    QVERIFY(answer.isDone());
}

void tst_MessageBoxAnswer::reportsABoxThatWasNotAnnounced()
{
    MessageBoxAnswer answer;
    QEXPECT_FAIL("", "no box was announced", Continue);
    QMessageBox::information(nullptr, QStringLiteral("t"), QStringLiteral("x"));
    QCOMPARE(answer.answeredCount(), 0);
}

void tst_MessageBoxAnswer::reportsABoxThatDidNotCome()
{
    MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok);
    QEXPECT_FAIL("", "an announced box did not come", Continue);
}

void tst_MessageBoxAnswer::closesAStrayDialog()
{
    MessageBoxAnswer answer;
    answer.setWatchdogInterval(200);
    QEXPECT_FAIL("", "nothing answers a plain dialog", Continue);
    QDialog dialog;
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

QTEST_MAIN(tst_MessageBoxAnswer)
#include "tst_messageboxanswer.moc"

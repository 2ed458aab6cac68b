#include "domain/MessageBox.h"

#include "MessageBoxAnswer.h"

#include <QtTest>

using namespace Zavo;

class tst_MessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void returnsThePressedButton();
    void escapeOfASingleButtonIsThatButton();
    void showsTextAsItStands();
    void standsTheDeathOfItsParent();
};

void tst_MessageBox::returnsThePressedButton()
{
    QWidget parent;
    const QMessageBox::StandardButtons yesOrNo = QMessageBox::Yes | QMessageBox::No;
    for (const QMessageBox::StandardButton button : {QMessageBox::Yes, QMessageBox::No}) {
        ZavoTest::MessageBoxAnswer answer;
        answer.expect(button)
            .title(QStringLiteral("Title"))
            .text(QStringLiteral("Text"))
            .icon(QMessageBox::Question)
            .buttons(yesOrNo);
        QCOMPARE(showMessageBox(&parent, QMessageBox::Question, QStringLiteral("Title"),
                                QStringLiteral("Text"), yesOrNo),
                 button);
    }
    QVERIFY(parent.findChildren<QMessageBox *>().isEmpty());
}

void tst_MessageBox::escapeOfASingleButtonIsThatButton()
{
    ZavoTest::MessageBoxAnswer answer;
    answer.expect(QMessageBox::NoButton).buttons(QMessageBox::Ok);
    QCOMPARE(showMessageBox(nullptr, QMessageBox::Critical, QString(), QStringLiteral("Text")),
             QMessageBox::Ok);
}

void tst_MessageBox::showsTextAsItStands()
{
    ZavoTest::MessageBoxAnswer answer;
    answer.expect(QMessageBox::Ok).whileShown([](QMessageBox *box) {
        QCOMPARE(box->textFormat(), Qt::PlainText);
    });
    showMessageBox(nullptr, QMessageBox::Critical, QString(), QStringLiteral("<b>name</b>"));
}

void tst_MessageBox::standsTheDeathOfItsParent()
{
    auto *parent = new QWidget;
    QTimer::singleShot(0, parent, [parent] { delete parent; });
    QCOMPARE(showMessageBox(parent, QMessageBox::Warning, QString(), QStringLiteral("Text")),
             QMessageBox::NoButton);
}

QTEST_MAIN(tst_MessageBox)
#include "tst_messagebox.moc"

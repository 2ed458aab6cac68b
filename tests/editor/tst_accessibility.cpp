#include "AccessibleControls.h"
#include "EditorFixture.h"

#include "navigation/ZvScheduleSpecifyScheduleDialog.h"
#include "stages/ZvScheduleAutoStageSwichSettingWidget.h"
#include "workspace/ZvScheduleChangeChannelOrderDialog.h"

#include <QLineEdit>

using namespace Zavo;
using namespace ZavoTest;

namespace {

// The dialog as a person meets it.
template<typename Dialog>
QString dialogProblem(Dialog *dialog)
{
    dialog->show();
    dialog->activateWindow();
    if (!QTest::qWaitForWindowActive(dialog))
        return QStringLiteral("not active");
    const QStringList nameless = namelessControls(dialog);
    return nameless.isEmpty() ? tabOrderProblem(dialog) : nameless.join(QStringLiteral("; "));
}

} // namespace

class tst_Accessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void controlsHaveNames();
    void renameEditorHasAName();
    void tabKeyReadsTheWindow();
    void specifyDialog_data();
    void specifyDialog();
    void orderDialog();
    void switchingDialog();
};

void tst_Accessibility::controlsHaveNames()
{
    EditorFixture host;
    QVERIFY(host.start());
    for (int i = 0; i < host.tabs()->count(); ++i)
        host.tabs()->setCurrentIndex(i);
    QCOMPARE(namelessControls(host.window.get()).join(QStringLiteral("; ")), QString());
}

void tst_Accessibility::renameEditorHasAName()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.tabs()->editTabNameRequested();
    const auto *const editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(editor);
    QCOMPARE(editor->accessibleName(), QStringLiteral("Name of the channel"));
    QCOMPARE(namelessControls(host.window.get()).join(QStringLiteral("; ")), QString());
}

void tst_Accessibility::tabKeyReadsTheWindow()
{
    EditorFixture host;
    QVERIFY(host.start());
    host.window->resize(1280, 900);
    host.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(host.window.get()));
    QCOMPARE(tabOrderProblem(host.window.get()), QString());
}

void tst_Accessibility::specifyDialog_data()
{
    using Dialog = ZvScheduleSpecifyScheduleDialog;
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("type");
    QTest::newRow("create for a date") << int(Dialog::Create) << int(ZvSchedule::Date);
    QTest::newRow("create for a day") << int(Dialog::Create) << int(ZvSchedule::DayOfWeek);
    QTest::newRow("paste to a date") << int(Dialog::Paste) << int(ZvSchedule::Date);
    QTest::newRow("paste to the default") << int(Dialog::Paste) << int(ZvSchedule::Default);
}

void tst_Accessibility::specifyDialog()
{
    QFETCH(int, mode);
    QFETCH(int, type);
    const TemporaryDataFolder data;
    const ZvChannel channel(data.filePath(QStringLiteral("channel/channel0.xml")));
    ZvScheduleSpecifyScheduleDialog dialog(ZvScheduleSpecifyScheduleDialog::Mode(mode), &channel,
                                           nullptr, {});
    dialog.setType(type);
    QCOMPARE(dialogProblem(&dialog), QString());
}

void tst_Accessibility::orderDialog()
{
    const TemporaryDataFolder data;
    ZvChannel first(data.filePath(QStringLiteral("channel/channel1.xml")));
    ZvChannel second(data.filePath(QStringLiteral("channel/channel2.xml")));
    ZvScheduleChangeChannelOrderDialog dialog(&first, {&second}, nullptr, {});
    QCOMPARE(dialogProblem(&dialog), QString());
}

void tst_Accessibility::switchingDialog()
{
    const TemporaryDataFolder data;
    ZvScheduleAutoStageSwichSettingWidget page;
    QCOMPARE(dialogProblem(&page), QString());
}

QTEST_MAIN(tst_Accessibility)

#include "tst_accessibility.moc"
